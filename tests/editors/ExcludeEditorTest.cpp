#include "editors/Excludededitor.h"

#include "editors/Dntcedit.h"
#include "editors/ExcludeCommand.h"
#include "editors/ExclusionDesk.h"
#include "host/PlainIde.h"
#include "platform/Files.h"

namespace glotta {
namespace {

using Form = TfrmExcludeFromTranslation;

// Names of the enabled actions, and the captions that follow the selection.
std::string Enabled(Form& form) {
    const std::pair<const char*, TAction*> actions[] = {{"comp", &form.acAddComponent},
                                                        {"class", &form.acAddAllByComponent},
                                                        {"childs", &form.acAddCompChilds},
                                                        {"having", &form.acAddAllWithProperty},
                                                        {"prop", &form.acAddProperty},
                                                        {"type", &form.acAddPropertyByType},
                                                        {"astype", &form.acAddPropertyAsSelectedType},
                                                        {"name", &form.acAddPropertyByName},
                                                        {"custom", &form.acAddCustom},
                                                        {"classprop", &form.acAddPropOfCompType},
                                                        {"delete", &form.acDeleteFromList},
                                                        {"clear", &form.acClearList},
                                                        {"clearall", &form.acClearAll},
                                                        {"sort", &form.acSortList},
                                                        {"defaults", &form.acDefaults},
                                                        {"todefaults", &form.acAddToDefaults}};
    std::string text;
    for (const auto& [name, action] : actions)
        if (action->Enabled()) text += std::string(name) + " ";
    return text;
}

std::string Captions(Form& form) {
    return form.acAddAllByComponent.caption + "; " + form.acAddAllWithProperty.caption + "; " +
           form.acAddPropertyAsSelectedType.caption + "; " + form.acAddPropOfCompType.caption;
}

TEST(ExcludeEditor, ActionsFollowSelectionPageAndLists) {
    ExclusionDesk desk;
    Form& form = desk.Form();
    EXPECT_EQ(Captions(form), "All <> Components; All having <>; Add all <> properties; Add all <>.<> properties");
    EXPECT_EQ(Enabled(form), "type name custom clearall sort defaults ");
    desk.Select("Button1");
    EXPECT_EQ(Enabled(form), "comp class type name custom clearall sort defaults ");
    EXPECT_EQ(form.cbComponents(), "Button1");
    desk.Select("Button1", "Caption");
    EXPECT_EQ(Captions(form), "All TButton Components; All having <Caption>; Add all <LString> properties; "
                              "Add all TButton.Caption properties");
    EXPECT_EQ(form.acAddAllByComponent.hint, "All TButton Components|Adds all component with same type of selected");
    EXPECT_EQ(Enabled(form), "comp class having prop type astype name custom clearall sort defaults ");
    form.pcExcluded.Enter(ComponentsPage);
    EXPECT_EQ(form.pnExcluded(), " Components to Exclude:");
    EXPECT_EQ(Enabled(form), "comp class having name delete clear clearall sort ");
    form.pcExcluded.Enter(CompPropertiesPage);
    EXPECT_EQ(Enabled(form), "comp class having prop type astype name classprop clearall sort ");
    desk.Select("List1", "0 - TListColumn");
    EXPECT_EQ(form.acAddAllWithProperty.caption, "All having <Columns>");
    EXPECT_EQ(Enabled(form), "comp class having prop type name clearall sort ");
    form.cbComponents.Enter("LABEL1"); // excluded: its mark, no properties
    EXPECT_EQ(Enabled(form), "class type name clearall sort ");
    desk.Select("zPanel");
    form.acAddCompChilds.Execute();
    form.pcExcluded.Enter(ComponentsPage);
    form.acAddAllByComponent.Execute();
    desk.Select("Button1");
    form.acAddComponent.Execute(); // already there
    form.Model.lbExclComponents.SelectOnly(0);
    EXPECT_EQ(Enabled(form), "class name delete clear clearall sort todefaults ");
    EXPECT_EQ(desk.Lists(), "label1,!TTimer,Button1,!TPanel /  /  *");
    desk.Select("Edit1", "Caption");
    form.acAddAllWithProperty.Execute();
    EXPECT_EQ(desk.Lists(), "label1,!TTimer,Button1,!TPanel,Form1,Item1,zPanel /  /  *");
}

constexpr const char* Losing = "Adding this property name will empty the TGlotta's \"Captions\" list! Continue?";
constexpr const char* ByType = "This will iterate through all components and add properties with type equal as "
                               "selected and might take some time! Continue?";
constexpr const char* ByCriterion = "This will iterate through all components and add properties that apply to "
                                    "specified criterion and might take some time! Continue?";
constexpr const char* TypePrompt = "Type the full or partial property type name to exclude:";
constexpr const char* NamePrompt = "Type the full or partial property name to exclude:";
constexpr const char* CustomPrompt = "Type the full property name to exclude:";
constexpr const char* NotFound =
    "No property found by this name! Would you like to add \"Größe\" to the list?";

TEST(ExcludeEditor, AddingPropertiesAsksFirst) {
    ExclusionDesk desk;
    Form& form = desk.Form();
    using enum ModalResult;
    const auto no = [&](TAction& action) {
        action.Execute();
        EXPECT_EQ(desk.Lists(), "label1,!TTimer /  / ");
    };
    desk.Select("Button1", "Caption");
    desk.ui.Message(Losing, No);
    no(form.acAddProperty);
    desk.ui.Message(ByType, No);
    no(form.acAddPropertyAsSelectedType);
    desk.ui.Input(TypePrompt, std::nullopt).Input(TypePrompt, "").Input(TypePrompt, "font").Message(ByCriterion, No);
    for (int i = 0; i < 3; ++i)
        no(form.acAddPropertyByType);
    desk.ui.Input(NamePrompt, "x").Message(ByCriterion, No).Input(CustomPrompt, "");
    no(form.acAddPropertyByName);
    no(form.acAddCustom);

    desk.ui.Message(Losing, Yes);
    form.acAddProperty.Execute();
    desk.Select("Gadget1", "Title");
    form.acAddProperty.Execute(); // no list of texts of its own
    desk.ui.Input(TypePrompt, "boundl").Message(ByCriterion, Yes);
    form.acAddPropertyByType.Execute();
    desk.ui.Input(NamePrompt, "Größe").Message(ByCriterion, Yes).Message(NotFound, No);
    form.acAddPropertyByName.Execute();
    desk.ui.Input(NamePrompt, "Größe").Message(ByCriterion, Yes).Message(NotFound, Yes);
    form.acAddPropertyByName.Execute();
    desk.ui.Input(CustomPrompt, "Tip").Input(CustomPrompt, "CAPTION");
    form.acAddCustom.Execute();
    form.acAddCustom.Execute();
    EXPECT_EQ(desk.Lists(), "label1,!TTimer / Caption,Title,EditLabel,Größe,Tip /  *");
    form.pcExcluded.Enter(CompPropertiesPage);
    desk.Select("Gadget1", "Texts");
    desk.ui.Message(ByType, Yes);
    form.acAddPropertyAsSelectedType.Execute();
    desk.Select("Button1", "Hint");
    form.acAddProperty.Execute(); // warns on the other page only
    desk.Select("Button1", "StyleName");
    form.acAddPropOfCompType.Execute();
    form.acAddPropOfCompType.Execute();
    EXPECT_EQ(desk.Lists(), "label1,!TTimer / Caption,Title,EditLabel,Größe,Tip / Gadget1.Texts,Button1.Hint,"
                            "!TButton.StyleName *");
    EXPECT_EQ(desk.ui.Transcript().substr(0, 100), ("Warning: " + std::string(Losing) + " -> No\nWarning: " + ByType).substr(0, 100));
    EXPECT_NE(desk.ui.Transcript().find("Input Exclude properties by type name|" + std::string(TypePrompt)), std::string::npos);
    EXPECT_NE(desk.ui.Transcript().find("Input Exclude properties by name|" + std::string(NamePrompt)), std::string::npos);
    EXPECT_NE(desk.ui.Transcript().find("Input Add property name|" + std::string(CustomPrompt)), std::string::npos);
    EXPECT_NE(desk.ui.Transcript().find("Confirmation: " + std::string(NotFound)), std::string::npos);
}

TEST(ExcludeEditor, DeletingClearingAndSorting) {
    constexpr const char* Delete = "Delete selected item(s) from list?";
    constexpr const char* Clear = "This will remove all items from the current list! Continue?";
    constexpr const char* ClearAll = "This will empty all the exclusion lists! Continue?";
    ExclusionDesk desk;
    Form& form = desk.Form();
    form.ShowPage(ComponentsPage, false);
    form.Model.lbExclProperties.Assign({"b", "C", "a"});
    const auto label = [&] { return form.Model.tvComponents.IsMarked(form.Model.tvComponents.Find("Label1")); };
    form.Model.lbExclComponents.SelectOnly(0);
    desk.ui.Message(Delete, ModalResult::No).Message(Clear, ModalResult::No).Message(ClearAll, ModalResult::No);
    form.acDeleteFromList.Execute();
    form.acClearList.Execute();
    form.acClearAll.Execute();
    EXPECT_EQ(desk.Lists(), "label1,!TTimer / b,C,a / ");
    EXPECT_TRUE(label());
    desk.ui.Message(Delete, ModalResult::Yes);
    form.acDeleteFromList.Execute();
    EXPECT_EQ(desk.Lists(), "!TTimer / b,C,a /  *");
    EXPECT_FALSE(label());
    form.ShowPage(PropertiesPage, false);
    form.acSortList.Execute();
    EXPECT_TRUE(form.acSortList.Checked());
    form.Model.AddPropertyName("B1");
    EXPECT_EQ(desk.Lists(), "!TTimer / a,b,B1,C /  *");
    form.acSortList.Execute();
    desk.ui.Message(Clear, ModalResult::Yes);
    form.acClearList.Execute();
    EXPECT_EQ(desk.Lists(), "!TTimer /  /  *");
    desk.ui.Message(ClearAll, ModalResult::Yes);
    form.acClearAll.Execute();
    EXPECT_EQ(desk.Lists(), " /  /  *");
    EXPECT_EQ(form.pcExcluded(), PropertiesPage);
    EXPECT_EQ(Enabled(form), "type name custom sort defaults ");
}

TEST(ExcludeEditor, DroppingDiffersFromAdding) {
    ExclusionDesk desk;
    Form& form = desk.Form();
    using From = Form::DragSource;
    const auto accepts = [&] {
        std::string text;
        for (const ExclusionPage page : {ComponentsPage, PropertiesPage, CompPropertiesPage})
            for (const From from : {From::None, From::Components, From::Properties})
                text += form.CanDrop(page, from) ? '1' : '0';
        return text;
    };
    EXPECT_EQ(accepts(), "000001000") << "nothing is selected";
    form.Drop(PropertiesPage, From::Properties);
    desk.Select("Label1");
    EXPECT_EQ(accepts(), "000001000") << "excluded already";
    desk.Select("Button1", "Caption");
    EXPECT_EQ(accepts(), "010001000");
    form.Drop(PropertiesPage, From::Properties);
    form.Drop(CompPropertiesPage, From::Properties);
    EXPECT_EQ(desk.Lists(), "label1,!TTimer / Caption / ") << "neither a warning nor a change";
    EXPECT_EQ(desk.Shown(form.Model.tvProperties).find("Caption"), std::string::npos);
    EXPECT_EQ(form.Model.SelectedProperty(), "");
    form.Drop(ComponentsPage, From::Components);
    EXPECT_EQ(desk.Lists(), "label1,!TTimer,Button1 / Caption /  *");
}

std::string Shown(const TMenuItem& menu) {
    std::string text;
    for (std::size_t i = 0; i < menu.Count(); ++i)
        text += (i ? " " : "") + menu[i].Caption() + (menu[i].Enabled() ? "" : "-off") +
                (menu[i].Checked() ? "-on" : "") + (menu[i].Count() ? "(" + Shown(menu[i]) + ")" : "");
    return text;
}

TEST(ExcludeEditor, DefaultsAreKeptForTheUser) {
    ExclusionDesk desk;
    const auto stored = [&] { return desk.registry.ReadString(Form::Key, "DefaultExclProps").value_or("none"); };
    desk.registry.WriteString("\\Software\\Borland\\TGlotta", "DefaultExclProps", "Zoom,\"two words\",ALT,alt");
    Form& form = desk.Form();
    EXPECT_EQ(desk.registry.ReadString("\\Software\\Borland\\TGlotta", "DefaultExclProps"), std::nullopt);
    TMenuItem& menu = form.DefaultsMenu.Items;
    form.acDefaults.Execute();
    EXPECT_EQ(Shown(menu), "Add to Default List-off Insert from Default List(Insert All - ALT two words Zoom) Delete "
                           "from Default List(Clear - ALT two words Zoom) - Save Default List Auto-save Default List");
    menu[1][4].Click();
    menu[1][0].Click();
    menu[2][3].Click();
    EXPECT_EQ(desk.Lists(), "label1,!TTimer / Zoom,ALT,two words /  *");
    EXPECT_EQ(stored(), "ALT,\"two words\",Zoom") << "kept when it moved";
    form.acSaveDefaults.Execute();
    EXPECT_EQ(stored(), "ALT,Zoom");
    form.acAutoSaveDefaults.Execute();
    form.Model.lbExclProperties.SelectAll();
    form.acAddToDefaults.Execute();
    EXPECT_EQ(stored(), "ALT,\"two words\",Zoom");
    form.acDefaults.Execute();
    EXPECT_TRUE(menu[5].Checked());
    constexpr const char* Clear = "This will clear default list of properties! Continue?";
    desk.ui.Message(Clear, ModalResult::No).Message(Clear, ModalResult::Yes);
    form.acClearDefaults.Execute();
    EXPECT_TRUE(form.acClearDefaults.Enabled());
    form.acClearDefaults.Execute();
    EXPECT_FALSE(form.acClearDefaults.Enabled());
    form.acDefaults.Execute();
    EXPECT_EQ(Shown(menu), "Add to Default List Insert from Default List(Insert All) Delete from Default "
                           "List(Clear-off) - Save Default List Auto-save Default List-on");
    EXPECT_EQ(stored(), "ALT,\"two words\",Zoom");
    desk.Reopen();
    EXPECT_TRUE(desk.Form().acAutoSaveDefaults.Checked());
    EXPECT_EQ(desk.registry.ReadString(Form::Key, "AutoSaveDefaults"), "1");
}

TEST(ExcludeEditor, SplittersAndPlacementAreKept) {
    ExclusionDesk desk;
    EXPECT_EQ(desk.Form().LeftPanelWidth(), 238);
    EXPECT_EQ(desk.Form().PropertiesPanelHeight(), 183);
    desk.Form().LeftPanelWidth.Enter(300);
    desk.Form().PropertiesPanelHeight.Enter(120);
    EXPECT_EQ(desk.registry.ReadString(Form::Key, "LeftPanelWidth"), "300");
    desk.Form().Placement.Enter(FormPlacement{10, 20, 600, 400});
    desk.Form().Close(desk.ui, ModalResult::Cancel);
    desk.Reopen();
    EXPECT_EQ(desk.Form().LeftPanelWidth(), 300);
    EXPECT_EQ(desk.Form().PropertiesPanelHeight(), 120);
    EXPECT_EQ(*desk.Form().Placement(), (FormPlacement{10, 20, 600, 400}));
}

TEST(ExcludeEditor, FourWaysOut) {
    constexpr const char* Save = "Properties data was changed! Save changes?";
    ExclusionDesk desk;
    const std::string before = desk.Saved();
    const auto show = [&](bool change, ModalResult way) {
        return [&desk, change, way](Form& form) {
            EXPECT_EQ(form.caption, "Exclude from Translations");
            EXPECT_EQ(form.pcExcluded(), PropertiesPage);
            if (change) form.Model.AddPropertyName("X");
            return way;
        };
    };
    const auto display = [&](bool onlyThisPage = false) {
        return DisplayExcludeDialog(desk.ui, desk.registry, desk.Lang(), PropertiesPage, onlyThisPage);
    };
    desk.ui.Modal<Form>(show(false, ModalResult::OK)).Modal<Form>(show(false, ModalResult::Cancel));
    EXPECT_FALSE(display());
    EXPECT_FALSE(display());
    desk.ui.Modal<Form>(show(true, ModalResult::Cancel)).Message(Save, ModalResult::No);
    EXPECT_FALSE(display());
    EXPECT_EQ(desk.Saved(), before);
    desk.ui.Modal<Form>(show(true, ModalResult::Cancel)).Message(Save, ModalResult::Cancel);
    desk.ui.Modal<Form>(show(false, ModalResult::OK));
    EXPECT_TRUE(display());
    EXPECT_EQ(desk.Saved(), "label1,!TTimer / X / ");
    desk.ui.Modal<Form>([&](Form& form) {
        EXPECT_EQ(std::string() + "012"[form.TabShown[0]()] + "012"[form.TabShown[1]()] + "012"[form.TabShown[2]()], "010");
        form.Model.ClearList(PropertiesPage);
        return ModalResult::Cancel;
    });
    desk.ui.Message(Save, ModalResult::Yes);
    EXPECT_TRUE(display(true));
    EXPECT_EQ(desk.Saved(), before);
    EXPECT_NE(desk.ui.Transcript().find("Warning: " + std::string(Save) + " -> Yes"), std::string::npos);
}

// --- the command ---

struct Project {
    explicit Project(const std::vector<std::string>& components) {
        RegisterGlottaClasses();
        std::string uses;
        for (std::size_t i = 0; i < components.size(); ++i) {
            const std::string n = std::to_string(i + 1);
            folder.Put("Unit" + n + ".pas", "unit Unit" + n + ";\n\ninterface\n\nuses\n  Forms, Glotta;\n\ntype\n  TForm" +
                                                n + " = class(TForm)\n    Glotta1: TGlotta;\n  end;\n\nimplementation\n\n"
                                                    "{$R *.dfm}\n\nend.\n");
            folder.Put("Unit" + n + ".dfm", "object Form" + n + ": TForm" + n + "\n" + components[i] + "end\n");
            uses += ",\n  Unit" + n + " in 'Unit" + n + ".pas' {Form" + n + "}";
        }
        ide.OpenProject(folder.Put("App.dpr", "program App;\n\nuses\n  Forms" + uses + ";\n\nbegin\nend.\n").string());
        std::vector<std::string> errors;
        forms = ListProjectForms(*services.GetActiveProject(), errors);
        for (FormsListItem& item : forms.items)
            item.selected = true;
    }
    // What the files say is excluded, and which forms are open; "*" marks modified ones.
    std::string State() {
        std::string text;
        for (const FormsListItem& item : forms.items) {
            const std::string dfm = ReadFile(PathFromText(item.fileName).replace_extension(".dfm"));
            text += dfm.find("'Wide'") != std::string::npos    ? "Wide"
                    : dfm.find("'Old'") != std::string::npos ? "Old"
                                                             : "-";
            if (services.IsFileOpen(item.fileName))
                text += services.GetModuleFromFileName(item.fileName)->Modified() ? " open*" : " open";
            text += "; ";
        }
        return text;
    }
    TempFolder folder;
    RegFileStore registry{folder / "settings.reg"};
    PlainIde ide;
    FormsList forms;
    ScriptedUi ui;
    IdeServices services{ide.Services(), forms, ui};
    SettingsValues settings;
    FormTranslation translation{services, settings};
};

const std::string Component = "  object Glotta1: TGlotta\n    ExcludedProperties.Strings = (\n      'Old')\n  end\n";

TEST(ExcludeEditor, SelectedFormsTakeOverTheFirstFormsProperties) {
    Project project({Component, "", Component, Component});
    project.services.OpenFile(project.forms.items[2].fileName, true);
    const auto edit = [](bool change) {
        return [change](Form& form) {
            EXPECT_FALSE(form.TabShown[0]());
            if (change) form.Model.AddPropertyName("Wide");
            return ModalResult::OK;
        };
    };
    project.ui.Modal<Form>(edit(false));
    ExcludeProperties(project.services, project.translation, project.registry);
    EXPECT_EQ(project.State(), "Old; -; Old open; Old; ");
    project.ui.Modal<Form>(edit(true));
    ExcludeProperties(project.services, project.translation, project.registry);
    EXPECT_EQ(project.State(), "Wide; -; Old open*; Wide; ");
    const TgxCustomLang* const third = project.translation.GetGlotta("Form3");
    EXPECT_EQ(ExclusionDesk::Joined(third->GetStrings("ExcludedProperties")), "Old,Wide");

    // A first form without a component has nothing to edit, and the others keep what they have.
    project.forms.items[0].selected = false;
    ExcludeProperties(project.services, project.translation, project.registry);
    EXPECT_EQ(project.State(), "Wide; -; Old open*; Wide; ");
}

// --- the dialog of two lists ---

TEST(NotTranslate, ItemsMoveBetweenTheLists) {
    TempFolder folder;
    RegFileStore registry(folder / "settings.reg");
    ScriptedUi ui;
    TfrmNotTranslate form(ui, registry);
    form.lbComps.SetItems({"b", "a", "C"});
    const auto state = [&] {
        std::string text = ExclusionDesk::Joined(form.lbComps.Items()) + " | " +
                           ExclusionDesk::Joined(form.lbSelected.Items()) + " ";
        for (const TAction* action : {&form.btMove, &form.btMoveBack, &form.btMoveAll, &form.btMoveAllBack})
            if (action->Enabled()) text += " " + action->caption;
        return text;
    };
    EXPECT_EQ(state(), "b,a,C |   >>");
    form.lbComps.Click(0);
    form.lbComps.Click(2, true);
    EXPECT_EQ(state(), "b,a,C |   > >>");
    form.btMove.Execute();
    EXPECT_EQ(state(), "a | b,C  >> <<");
    form.btMoveAll.Execute();
    EXPECT_EQ(state(), " | a,b,C  <<");
    form.lbSelected.Click(1);
    form.btMoveBack.Execute();
    EXPECT_EQ(state(), "b | a,C  >> <<");
    form.btMoveAllBack.Execute();
    EXPECT_EQ(state(), "a,b,C |   >>");

    registry.WriteString(TfrmNotTranslate::PlacementKey, "Left", "-7");
    form.FormShow();
    EXPECT_EQ(form.Place(), (TfrmNotTranslate::Placement{{}, {}, {}, -7, {}}));
    form.Place.Enter({400, 380, 5, 6, 170});
    form.btOK.Execute();
    EXPECT_EQ(form.modalResult, ModalResult::OK);
    EXPECT_EQ(registry.ReadString(TfrmNotTranslate::PlacementKey, "LeftWidth"), "170");
}

} // namespace
} // namespace glotta
