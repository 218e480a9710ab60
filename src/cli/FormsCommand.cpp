#include "cli/Commands.h"
#include "cli/ProjectSession.h"
#include "platform/Text.h"

#include <nlohmann/json.hpp>

#include <array>
#include <iostream>

namespace glotta {

namespace {

using Row = std::array<std::string, 5>;

const Row Headings = {"Form Name", "Unit Name", "File Name", "Languages", "TGlotta"};

Row RowOf(const FormsListItem& item, const ProjectSession& project) {
    return {item.formName, item.unitName, project.Shown(item.fileName), item.languages, item.glotta};
}

void PrintTable(const std::vector<Row>& rows) {
    std::array<std::size_t, 5> widths{};
    auto measure = [&](const Row& row) {
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], CharCount(row[i]));
    };
    measure(Headings);
    std::for_each(rows.begin(), rows.end(), measure);
    auto print = [&](const Row& row) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i)
            line += row[i] + std::string(widths[i] - CharCount(row[i]) + 2, ' ');
        std::cout << TrimRight(line) << "\n";
    };
    print(Headings);
    std::for_each(rows.begin(), rows.end(), print);
}

} // namespace

int RunForms(const GlobalOptions& global, const FormsOptions& options) {
    Session session(global);
    ProjectSession project(session, options.project);
    std::vector<Row> rows;
    std::size_t translated = 0;
    for (const FormsListItem& item : project.Forms().items) {
        rows.push_back(RowOf(item, project));
        translated += !item.glotta.empty();
    }
    project.PrintProblems();
    if (options.json) {
        for (const Row& row : rows)
            std::cout << nlohmann::ordered_json{{"form", row[0]},
                                                {"unit", row[1]},
                                                {"file", row[2]},
                                                {"languages", std::stoi(row[3])},
                                                {"glotta", row[4]}}
                             .dump()
                      << "\n";
        return 0;
    }
    PrintTable(rows);
    std::cout << "Forms translated: " << translated << " of " << rows.size() << "\n";
    return 0;
}

} // namespace glotta
