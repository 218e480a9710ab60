// glotta check: string identifiers that nothing uses, and calls that ask for none that is there.
#include "cli/CommandLine.h"
#include "cli/ProjectSession.h"
#include "cli/ScanReport.h"
#include "storage/IdentifierChecks.h"
#include "storage/ProjectUnits.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <iostream>
#include <unordered_map>

namespace glotta {

namespace {

struct CheckOptions {
    bool json = false;
    std::string project;
    std::vector<std::string> units;
};

class CheckRun {
public:
    CheckRun(const GlobalOptions& global, const CheckOptions& options)
        : session_(global, false), options_(options), project_(session_, options.project),
          checks_(project_.Services()) {
        for (const FormsListItem& item : project_.Forms().items)
            forms_.emplace(item.fileName, &item);
    }

    int Run() {
        const std::vector<ProjectUnit> units = ProjectUnits(project_.Services());
        for (const std::string& name : options_.units)
            Check(FindUnit(units, name));
        for (const ProjectUnit& unit : units)
            if (options_.units.empty() && IsChecked(unit)) Check(unit);
        project_.PrintProblems();
        if (!options_.json)
            std::cout << found_ << (found_ == 1 ? " bad identifier in " : " bad identifiers in ") << checked_
                      << (checked_ == 1 ? " unit\n" : " units\n");
        return failed_ ? 2 : found_ > 0 ? 1 : 0;
    }

private:
    // Units with a localized form, and those without any.
    bool IsChecked(const ProjectUnit& unit) const {
        return !forms_.contains(unit.fileName) || !LocalizedForm(unit).empty();
    }

    std::string LocalizedForm(const ProjectUnit& unit) const {
        const auto form = forms_.find(unit.fileName);
        return form == forms_.end() || form->second->languages == "0" ? std::string()
                                                                      : form->second->formName;
    }

    void Check(const ProjectUnit& unit) {
        std::vector<BadIDRow> rows;
        if (!checks_.CheckIDInFile(rows, LocalizedForm(unit), unit.fileName)) {
            std::cerr << project_.Shown(unit.fileName) << ": cannot be opened\n";
            failed_ = true;
            return;
        }
        ++checked_;
        found_ += rows.size();
        for (const BadIDRow& row : rows)
            Print(row);
    }

    void Print(const BadIDRow& row) const {
        const std::string file = project_.Shown(row.fileName);
        if (options_.json)
            std::cout << nlohmann::ordered_json{{"id", row.bad.id},
                                                {"type", row.bad.Type()},
                                                {"info", row.bad.Info()},
                                                {"file", file},
                                                {"form", row.formName}}
                             .dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
                      << "\n";
        else
            std::cout << file << ": " << OneLine(row.bad.id) << ": " << row.bad.Type() << " ("
                      << row.bad.Info() << ")\n";
    }

    Session session_;
    const CheckOptions& options_;
    ProjectSession project_;
    IdentifierChecks checks_;
    std::unordered_map<std::string, const FormsListItem*> forms_; // by unit file
    std::size_t found_ = 0, checked_ = 0;
    bool failed_ = false;
};

} // namespace

void AddCheckCommand(const CommandLine& line) {
    const auto options = std::make_shared<CheckOptions>();
    CLI::App* app = line.app.add_subcommand("check", "List string identifiers that the source does not use "
                                                     "or asks for in vain (exit code 1 when there are any)");
    app->add_flag("--json", options->json, "One JSON object per identifier and line");
    app->add_option("PROJECT", options->project, "The project file")->required();
    app->add_option("UNIT", options->units,
                    "Units, by name (else those with a localized form and those without any form)");
    app->final_callback([&line = line, options] {
        line.run = [&global = line.global, options] { return CheckRun(global, *options).Run(); };
    });
}

} // namespace glotta
