#include "cli/ReplaceCommand.h"

#include "cli/FileChanges.h"
#include "cli/ProjectSession.h"
#include "cli/ScanReport.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "scanner/ScanCommands.h"
#include "scanner/SourceFlavour.h"

#include <algorithm>
#include <iostream>
#include <unordered_set>

namespace glotta {

namespace {

// One unit to localize.
struct Target {
    std::string form; // empty for a unit without a form
    std::string unit, file;
    bool asked = false; // by its name: what stands in the way is a fault then
};

class Replace {
public:
    Replace(Session& session, const ReplaceOptions& options)
        : session_(session), options_(options), project_(session, options.project),
          translation_(project_.Services(), session.Settings().Values()),
          scan_({project_.Services(), session.Settings(), session.Registry(), session.Helper(), results_},
                ScanReplace::Review::None),
          commands_{translation_, scan_, project_.Services()} {}

    int Run() {
        if (!options_.stringsForm.empty())
            stringsForm_ = project_.FindForm("--strings-form", options_.stringsForm).formName;
        else
            stringsForm_ = project_.ProjectOption("DefaultFormForUnits");
        for (const Target& target : Targets())
            Localize(target);
        project_.PrintProblems();
        if (failed_) {
            std::cerr << "nothing was written\n";
            return 2;
        }
        std::vector<FileChange> changes = project_.Ide().ModifiedFiles();
        if (!options_.json)
            PrintChanges(changes);
        if (options_.apply)
            project_.Ide().SaveAll();
        if (!options_.json)
            PrintEnd(changes.size());
        return refused_ ? 2 : 0;
    }

private:
    std::vector<Target> Targets() {
        std::vector<Target> targets;
        for (const std::string& form : options_.forms)
            targets.push_back(FormTarget(form));
        for (const std::string& unit : options_.units)
            targets.push_back(UnitTarget(unit));
        if (options_.all)
            AddAll(targets);
        if (targets.empty() && !options_.all)
            throw Error("nothing to localize: name forms (--form), units (--unit) or --all");
        return InOrder(std::move(targets));
    }

    // Each unit once, forms first: a unit without a form may need a component that is inserted only now.
    static std::vector<Target> InOrder(std::vector<Target> targets) {
        std::unordered_set<std::string> seen;
        std::erase_if(targets, [&](const Target& target) { return !seen.insert(target.file).second; });
        std::stable_partition(targets.begin(), targets.end(), [](const Target& target) { return !target.form.empty(); });
        return targets;
    }

    Target FormTarget(const std::string& name) {
        const FormsListItem& item = project_.FindForm("--form", name);
        return {item.formName, item.unitName, item.fileName, true};
    }

    Target UnitTarget(const std::string& name) {
        for (const IOTAModuleInfo& unit : project_.Project().Modules())
            if (!unit.missing && (SameText(unit.unitName, name) || SameFileName(unit.fileName, name)))
                return {unit.formName, unit.unitName, unit.fileName, true};
        throw Error("--unit " + name + ": the project has no such unit");
    }

    void AddAll(std::vector<Target>& targets) {
        for (const FormsListItem& item : project_.Forms().items)
            targets.push_back({item.formName, item.unitName, item.fileName});
        for (const IOTAModuleInfo& unit : project_.Project().Modules())
            if (!unit.missing && unit.formFile.empty() && IsSource(unit.fileName))
                targets.push_back({"", unit.unitName, unit.fileName});
    }

    static bool IsSource(const std::string& file) {
        std::string extension = LowerExtension(file);
        return extension == ".pas" || extension == ".cpp" || extension == ".c";
    }

    void Localize(const Target& target) {
        project_.GetUi().ClearMessages();
        try {
            if (options_.constMode)
                LocalizeConstants(target);
            else if (target.form.empty())
                commands_.TranslateUnit1Click(target.file, stringsForm_);
            else
                commands_.Translatesource1Click(*project_.Forms().FindExact(target.form));
            Report(target);
        } catch (const EGlottaSilent&) {
            refused_ |= target.asked;
            for (const CliUi::Message& message : project_.GetUi().Messages())
                std::cerr << target.unit << ": " << OneLine(message.text) << "\n";
        } catch (const Error& error) {
            failed_ = true;
            std::cerr << error.what() << "\n";
        }
    }

    // The handlers that call UpdateStrings come with the first constant that needs them.
    void LocalizeConstants(const Target& target) {
        results_.found.Clear();
        results_.skipped.clear();
        if (!scan_.FindsConstants(target.form.empty() ? target.file : target.form))
            return;
        if (target.form.empty())
            commands_.WithoutForm1Click(target.file, stringsForm_);
        else
            commands_.Const1Click(*project_.Forms().FindExact(target.form));
    }

    void Report(const Target& target) {
        std::string shown = project_.Shown(target.file);
        UnitReport report{shown, FlavourOf(target.file).IsCPPSource, results_.found, results_.skipped};
        totals_.Add(report);
        std::cout << (options_.json ? JsonLine(report) : Table(report));
    }

    void PrintChanges(const std::vector<FileChange>& changes) {
        if (changes.empty())
            return;
        std::cout << "\n";
        project_.PrintChanges(changes);
        std::cout << "\n";
    }

    void PrintEnd(std::size_t files) {
        std::cout << totals_.Text() << FilesText(files, options_.apply);
    }

    Session& session_;
    const ReplaceOptions& options_;
    ProjectSession project_;
    ScanResults results_;
    FormTranslation translation_;
    ScanReplace scan_;
    ScanCommands commands_;
    ScanTotals totals_;
    std::string stringsForm_;
    bool failed_ = false, refused_ = false;
};

} // namespace

int RunReplace(const GlobalOptions& global, const ReplaceOptions& options) {
    Session session(global);
    return Replace(session, options).Run();
}

} // namespace glotta
