// A project on disk, opened in the plain-file IDE, and the driver that localizes its units.
#pragma once
#include "host/PlainIde.h"
#include "platform/RegFileStore.h"
#include "runtime/CustomLang.h"
#include "scanner/ScanCommands.h"
#include "scanner/_scan.h"
#include "settings/ExpertSettings.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"

#include <functional>
#include <map>

namespace glotta {

struct ScanDesk {
    using Files = std::map<std::string, std::string>;

    explicit ScanDesk(const std::string& project, const Files& files = {},
                      ScanReplace::Review review = ScanReplace::Review::Dialog)
        : driver({services, settings, registry, helper, results}, review) {
        for (const auto& [name, text] : files)
            folder.Put(name, text);
        ide.OpenProject(PathText(folder / project));
        forms = ListProjectForms(*services.GetActiveProject(), problems);
        settings.SetReplaceMethod("GetText(");
        settings.SetNoCommentsInSources(true);
        settings.SetIgnorableLength(0);
    }

    std::string Source(const std::string& unit) { return services.GetUnitSource(PathText(folder / unit)); }
    TgxCustomLang& Glotta(const std::string& form) {
        for (TComponent* component : services.GetOwnerByName(form)->Components())
            if (auto* glotta = dynamic_cast<TgxCustomLang*>(component)) return *glotta;
        throw Error(form + ": no component");
    }
    void Open(const std::string& unit) { services.OpenFile(PathText(folder / unit), false); }

    ScanCommands Commands() { return {translation, driver, services}; }

    // The review: `use` works with it, then "Modify Source" is confirmed.
    void Accept(std::function<void(TfrmFound&)> use = {}) {
        ui.Modal<TfrmFound>([use](TfrmFound& form) {
            if (use) use(form);
            form.acModifySource.Execute();
            return form.modalResult;
        });
        ui.Message("This will apply changes and modify source code. Continue?", ModalResult::Yes);
    }
    void Cancel() {
        ui.Modal<TfrmFound>([](TfrmFound&) { return ModalResult::Cancel; });
        ui.Message("This will close the Found Strings form! Continue?", ModalResult::Yes);
    }
    // Messages and forms so far, without the review's own question and what progress tells; "(progress open)"
    // behind them when it was not ended.
    std::string Told() {
        ui.Done();
        std::string told;
        bool open = false;
        for (const std::string& line : SplitLines(ReplaceStr(ui.Transcript(), "\r\n", "|"))) {
            if (line.starts_with("Progress"))
                open = line != "Progress ends";
            else if (line.find("This will ") == std::string::npos)
                told += line + "\n";
        }
        return told + (open ? "(progress open)\n" : "");
    }
    // "IDS_0=Hello" of each string, one a line.
    std::string Strings(const std::string& form) {
        std::string all;
        const TgxCustomLang& glotta = Glotta(form);
        for (int i = 0; i < static_cast<int>(glotta.Strings(stStrings).Count()); ++i)
            all +=
                glotta.GetIDByIndex(i) + "=" + ReplaceStr(glotta.GetTextFromByIndex(i), "\r\n", "|") + "\n";
        return all;
    }

    TempFolder folder;
    PlainIde ide;
    FormsList forms;
    ScriptedUi ui;
    IdeServices services{ide.Services(), forms, ui};
    RegFileStore registry{folder / "settings.reg"};
    ExpertSettings settings{registry, {NamesArray.begin(), NamesArray.end()}};
    HelperLibrary helper;
    FormTranslation translation{services, settings.Values()};
    ScanResults results;
    ScanReplace driver;
    std::vector<std::string> problems;
};

// What differs between two texts of which one was edited in few lines: "-old" and "+new" lines in order.
inline std::string ChangedLines(const std::string& before, const std::string& after) {
    const std::vector<std::string> a = SplitLines(before), b = SplitLines(after);
    std::string changes;
    std::size_t i = 0, j = 0;
    while (i < a.size() || j < b.size()) {
        if (i < a.size() && j < b.size() && a[i] == b[j]) {
            ++i, ++j;
            continue;
        }
        // The nearest place where both go on alike.
        std::size_t gone = 0, added = 0;
        for (std::size_t reach = 1;; ++reach) {
            bool found = false;
            for (std::size_t skip = 0; skip <= reach && !found; ++skip) {
                const std::size_t x = i + skip, y = j + reach - skip;
                const bool ends = x >= a.size() && y >= b.size();
                if (!ends && (x >= a.size() || y >= b.size() || a[x] != b[y])) continue;
                gone = std::min(skip, a.size() - i), added = std::min(reach - skip, b.size() - j);
                found = true;
            }
            if (found) break;
        }
        while (gone--)
            changes += "-" + a[i++] + "\n";
        while (added--)
            changes += "+" + b[j++] + "\n";
    }
    return changes;
}

} // namespace glotta
