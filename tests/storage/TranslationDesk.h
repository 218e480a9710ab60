// A project of small forms in the plain-file IDE, for the commands on stored translations.
#pragma once
#include "host/PlainIde.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"

namespace glotta {

// Stops a long run after so many steps; -1: never.
struct StoppingUi : ScriptedUi {
    int steps = -1;
    bool Cancelled() override { return steps >= 0 && steps-- == 0; }
};

struct TranslationDesk {
    TempFolder folder;
    StoppingUi ui;
    PlainIde ide;
    FormsList forms;
    IdeServices services{ide.Services(), forms, ui};

    // `components` as a form file has them, one a line, '|' ending a line of theirs.
    void AddForm(const std::string& name, const std::string& components) {
        folder.Put(name + ".pas", "unit " + name +
                                      ";\r\ninterface\r\nuses Forms, TGlottaUnit;\r\ntype\r\n  T" + name +
                                      " = class(TForm)\r\n  end;\r\nvar " + name + ": T" + name +
                                      ";\r\nimplementation\r\n{$R *.dfm}\r\nend.\r\n");
        folder.Put(name + ".dfm", "object " + name + ": T" + name + "\r\n" +
                                      ReplaceStr(components, "|", "\r\n") + "end\r\n");
        Use(name + " in '" + name + ".pas' {" + name + "}");
    }
    // Without a form.
    void AddUnit(const std::string& name, const std::string& source) {
        folder.Put(name + ".pas", source);
        Use(name + " in '" + name + ".pas'");
    }
    void Open() {
        ide.OpenProject(
            folder.Put("App.dpr", "program App;\r\nuses\r\n  " + uses_ + ";\r\nbegin\r\nend.\r\n").string());
        std::vector<std::string> errors;
        forms = ListProjectForms(*services.GetActiveProject(), errors);
        EXPECT_EQ(JoinLines(errors, "\n"), "");
    }
    std::string FileOf(const std::string& form) const { return (folder / (form + ".pas")).string(); }
    bool OpenUnit(const std::string& form) { return ide.OpenFile(FileOf(form)); }
    void Select(const std::vector<std::string>& names) {
        for (FormsListItem& item : forms.items)
            item.selected = std::find(names.begin(), names.end(), item.formName) != names.end();
    }
    // Each form on a line: its languages in the list, whether its unit is open ("open", "modified"), and the
    // records of its components; those of a closed one as its file holds them.
    std::string Shown() {
        std::string text;
        for (const FormsListItem& item : forms.items) {
            IOTAModule* const open = ide.FindModule(item.fileName);
            text += item.formName + " " + item.languages +
                    (!open              ? ""
                     : open->Modified() ? " modified"
                                        : " open") +
                    ":";
            if (open) {
                text += Records(*services.GetOwnerByName(item.formName)) + "\n";
                continue;
            }
            const std::string formFile = PathText(PathFromText(item.fileName).replace_extension(".dfm"));
            FormFile file = FormFile::Parse(ReadFile(PathFromText(formFile)), formFile);
            ComponentTree tree(file, "TForm");
            text += Records(tree.Root()) + "\n";
        }
        return text;
    }

private:
    void Use(const std::string& entry) { uses_ += (uses_.empty() ? "" : ",\r\n  ") + entry; }
    static std::string Records(const TComponent& root) {
        std::string text;
        for (const TComponent* component : root.Components())
            if (const auto* lang = dynamic_cast<const TgxCustomLang*>(component)) {
                text += " " + lang->Name();
                for (int kind = 0; kind < StringsTypeCount; ++kind)
                    for (const std::string& record : lang->Strings(static_cast<TStringsType>(kind)))
                        text += " " + ReplaceStr(record, std::string(1, ItemDelimiter), "|");
            }
        return text;
    }
    std::string uses_;
};

} // namespace glotta
