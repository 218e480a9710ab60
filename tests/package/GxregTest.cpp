// Everything that the package registers, in its order.
#include "package/Gxdialog_reg.h"
#include "package/Gxreg.h"

#include "host/PlainIde.h"
#include "platform/Error.h"
#include "platform/RegFileStore.h"
#include "support/DeskFakes.h"
#include "support/ScriptedUi.h"

namespace glotta {
namespace {

// Notes each call, one line each.
struct Registrar : IDesignServices, IOTAWizardServices {
    std::string log;
    std::vector<std::shared_ptr<IOTAWizard>> wizards;

    static std::string Joined(const std::vector<std::string_view>& classes) {
        std::string text;
        for (const std::string_view each : classes)
            text += " " + std::string(each);
        return text;
    }
    void Line(std::initializer_list<std::string_view> words) {
        std::string line;
        for (const std::string_view word : words)
            line += (line.empty() ? "" : " ") + std::string(word);
        log += line + "\n";
    }
    void RegisterComponents(std::string_view page, const std::vector<std::string_view>& classes) override {
        log += "components " + std::string(page) + ":" + Joined(classes) + "\n";
    }
    void RegisterComponentEditor(std::string_view componentClass, TComponentEditorClass editor) override {
        Line({"component editor", componentClass, editor.name});
    }
    void RegisterPropertyEditor(std::string_view type, std::string_view componentClass,
                                std::string_view propertyName, TPropertyEditorClass editor) override {
        Line({"property", componentClass, type, propertyName, editor.name});
    }
    void RegisterSelectionEditor(std::string_view componentClass, TSelectionEditorClass editor) override {
        Line({"selection editor", componentClass, editor.name});
    }
    void RegisterActions(std::string_view category, const std::vector<std::string_view>& classes,
                         std::string_view resource) override {
        log += "actions " + std::string(category) + ":" + Joined(classes) + " [" + std::string(resource) + "]\n";
    }
    std::vector<std::unique_ptr<IProperty>> GetComponentProperties(TComponent&, IDesigner&) override { return {}; }
    void RegisterPackageWizard(std::shared_ptr<IOTAWizard> wizard) override {
        Line({"wizard", wizard->GetIDString()});
        wizards.push_back(std::move(wizard));
    }
};

struct Desk {
    TempFolder folder;
    ScriptedUi ui;
    RegFileStore registry{folder / "settings.reg"};
    HelperLibrary helper = HelperLibrary::Absent();
    FakeLauncher launcher;
    FakeAutomation automation;
    FakeTransEditor editor;
    PlainIde ide;
    Registrar registrar;
    ExpertPorts Ports() {
        BorlandIDEServices services = ide.Services();
        services.design = &registrar;
        services.wizards = &registrar;
        return {services, ui, registry, helper, launcher, automation, &editor};
    }
};

TEST(Gxreg, RegistersInThisOrder) {
    Desk desk;
    const auto expert = Gxreg::Register(desk.Ports());
    EXPECT_EQ(expert.lock(), desk.registrar.wizards.at(0));
    Gxdialog_reg::Register(desk.registrar);
    EXPECT_EQ(desk.registrar.log,
              "components Quorlane: TGlotta TGlottaRTSE TGlottaRT TGlottaLinked TGlottaTLV TGlottaDispatcher TgxLabel "
              "TgxFormStorage\n"
              "component editor TgxCustomLang TTranslationsEditor\n"
              "property TgxCustomLang TStrings Captions TgxStringsProperty\n"
              "property TgxCustomLang TStrings Hints TgxStringsProperty\n"
              "property TgxCustomLang TStrings DisplayLabels TgxStringsProperty\n"
              "property TgxCustomLang TStrings Strings TgxStringsProperty\n"
              "property TgxCustomLang TStrings Fonts TgxStringsProperty\n"
              "property TgxCustomLang TStrings MultiLines TgxStringsProperty\n"
              "property TgxCustomLang TStrings DlgsCaptions TgxStringsProperty\n"
              "property TgxCustomLang TStrings OtherStrings TgxStringsProperty\n"
              "property TgxCustomLang TStrings Locales TgxStringsProperty\n"
              "property TgxCustomLang TStrings CharSets TgxStringsProperty\n"
              "property TgxCustomLang TStrings Collections TgxStringsProperty\n"
              "property TGlottaTLV TStrings ListView_TreeView_Items TgxStringsProperty\n"
              "wizard Delphi.GlottaAddInExpert\n"
              "property TGlottaLinked TgxCustomLang CommonContainer TCommonContainerProperty\n"
              "property TgxCustomLang TStrings DoNotTranslate TExcludePropertyEditor\n"
              "property TgxCustomLang TStrings ExcludedProperties TExcludePropertyEditor\n"
              "property TgxCustomLang TStrings SmartExcludeProps TExcludePropertyEditor\n"
              "actions Glotta: TGlottaChangeLanguage []\n"
              "component editor TGlottaDispatcher TDispatcherEditor\n"
              "property TgxCustomLang TCollection ExtendedTranslations TExtendedTranslationsProperty\n"
              "property TgxCustomLang string Language TActiveLanguageProperty\n"
              "property TGlottaDispatcher string Language TActiveLanguageProperty\n"
              "components Quorlane: TGlottaCombo\n"
              "property TGlottaCombo TLanguageInfos LanguageInfos TComboConfigurationProperty\n"
              "component editor TGlottaCombo TDispatcherEditor\n"
              "selection editor TComponent TExcludeComponentEditor\n"
              "components gxDialogs: TgxOpenDialog TgxSaveDialog TgxOpenPictureDialog TgxSavePictureDialog "
              "TgxFontDialog TgxColorDialog TgxPrintDialog TgxPrinterSetupDialog TgxFindDialog TgxReplaceDialog "
              "TgxBrowseForFolder\n");
}

TEST(Gxreg, AnIdeWithoutDesignServicesIsRefused) {
    Desk desk;
    ExpertPorts ports = desk.Ports();
    ports.ide.design = nullptr;
    EXPECT_THROW(Gxreg::Register(ports), Error);
    EXPECT_EQ(desk.registrar.log, "");
}

} // namespace
} // namespace glotta
