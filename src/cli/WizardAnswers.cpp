#include "cli/WizardAnswers.h"

#include "platform/Error.h"
#include "platform/IniFile.h"
#include "platform/Text.h"

#include <algorithm>

namespace glotta {

const char* const WizardAnswersHelp = R"(The answers file:
  [Forms]
  MainForm=TGlotta            a form and the class to insert: TGlotta, TGlottaRTSE, TGlottaRT,
                              TGlottaLinked, TGlottaTLV or (none)
  *=TGlottaLinked             all other forms; one that has a component keeps it
  [Languages]                 one of the first three
  Dispatcher=Data.GlottaDispatcher1
  NewDispatcher=Data          a new dispatcher on this form, with the default languages
  Languages=English,German    no dispatcher, but these languages
  CommonContainer=Data.Glotta1, or Data for the component that is inserted there; without it none is set
  [Properties]                all eight are set when one is given; missing ones to False
  AutoSkipEmpties=True        ChangeLocales, DoRaiseExceptions, IsInheritedOwner, StoreAsUTF8,
                              TranslateExtendedFirst, UseDefaultLanguage, UseTaskMsgDlg)";

namespace {

constexpr std::string_view Forms = "Forms", Languages = "Languages", Properties = "Properties";

class Reader {
public:
    explicit Reader(const std::string& fileName) : ini_(PathFromText(fileName)) {
        answers_.file = fileName;
        if (!std::filesystem::exists(PathFromText(fileName))) throw Error(fileName + ": the file is missing");
    }

    WizardAnswers Read() {
        for (const std::string& section : ini_.Sections()) {
            const bool known =
                SameText(section, Forms) || SameText(section, Languages) || SameText(section, Properties);
            if (!known) throw Error(answers_.file + ": [" + section + "] is no page of the wizard");
            for (const std::string& key : ini_.Keys(section))
                Take(section, key, ini_.ReadString(section, key, {}));
        }
        if (answers_.forms.empty() && !answers_.otherForms)
            throw Error(answers_.file + ": [Forms] names no form");
        if (ways_ != 1)
            throw Error(answers_.file + ": [Languages] needs one of Dispatcher, NewDispatcher and Languages");
        return std::move(answers_);
    }

private:
    [[noreturn]] void Refuse(const std::string& section, const std::string& key,
                             const std::string& why) const {
        throw Error(answers_.file + ": [" + section + "] " + key + ": " + why);
    }

    void Take(const std::string& section, const std::string& key, const std::string& value) {
        if (SameText(section, Forms))
            TakeForm(section, key, value);
        else if (SameText(section, Languages))
            TakeLanguages(section, key, value);
        else
            TakeProperty(section, key, value);
    }

    void TakeForm(const std::string& section, const std::string& key, const std::string& value) {
        std::string insert(NoComponent);
        if (!SameText(value, NoComponent)) {
            const auto known = std::find_if(WizardClasses.begin(), WizardClasses.end(),
                                            [&](std::string_view name) { return SameText(name, value); });
            if (known == WizardClasses.end())
                Refuse(section, key, "there is no class \"" + value + "\" to insert");
            insert = *known;
        }
        if (key == "*")
            answers_.otherForms = insert;
        else
            answers_.forms.emplace_back(key, insert);
    }

    void TakeLanguages(const std::string& section, const std::string& key, const std::string& value) {
        if (value.empty()) Refuse(section, key, "a value is missing");
        const std::size_t dot = value.find('.');
        const std::string form = value.substr(0, dot),
                          name = dot == std::string::npos ? "" : value.substr(dot + 1);
        if (SameText(key, "CommonContainer")) {
            answers_.commonForm = form;
            answers_.commonContainer = name;
            return;
        }
        ++ways_;
        if (SameText(key, "Languages")) {
            answers_.languages = value;
        } else if (SameText(key, "Dispatcher")) {
            if (name.empty()) Refuse(section, key, "write it as Form.Component");
            answers_.dispatcherForm = form;
            answers_.dispatcher = name;
        } else if (SameText(key, "NewDispatcher")) {
            answers_.dispatcherForm = value;
        } else {
            Refuse(section, key, "the wizard does not ask this");
        }
    }

    void TakeProperty(const std::string& section, const std::string& key, const std::string& value) {
        const auto property =
            std::find_if(WizardProperties.begin(), WizardProperties.end(),
                         [&](const WizardProperty& each) { return SameText(each.name, key); });
        if (property == WizardProperties.end()) Refuse(section, key, "there is no such property");
        const bool on = SameText(value, "True") || value == "1";
        if (!on && !SameText(value, "False") && value != "0")
            Refuse(section, key, "True or False is expected");
        answers_.changeProperties = true;
        answers_.properties[std::size_t(property - WizardProperties.begin())] = on;
    }

    TgxMemIniFile ini_;
    WizardAnswers answers_;
    int ways_ = 0;
};

} // namespace

WizardAnswers WizardAnswers::Read(const std::string& fileName) {
    return Reader(fileName).Read();
}

} // namespace glotta
