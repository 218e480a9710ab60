#include "editors/ExclusionModel.h"

#include "editors/ExclusionDesk.h"

#include <chrono>
#include <iostream>

namespace glotta {
namespace {

TEST(ExclusionModel, ComponentsStandUnderTheirControlsAndTheRestUnderTheForm) {
    ExclusionDesk desk;
    EXPECT_EQ(desk.Shown(desk.Model().tvComponents), "0 Form1\n"
                                                     "  2 Edit1\n"
                                                     "  3 Gadget1\n"
                                                     "  4 Item1\n"
                                                     "  2 List1\n"
                                                     "  4 MainMenu1\n"
                                                     "  4 PopupMenu1\n"
                                                     "  2 zPanel\n"
                                                     "    2 Button1\n"
                                                     "    10 Label1\n");
    ExclusionDesk module("object Data1: TData1\n  object Glotta1: TGlotta\n  end\nend\n");
    module.tree.SetRootBase("TDataModule");
    EXPECT_EQ(module.Shown(module.Model().tvComponents), "1 Data1\n");
}

// The candidate properties of one component as "name:type", children in brackets behind their node.
std::string Candidates(ExclusionDesk& desk, const std::string& component) {
    desk.Select(component);
    const TTree& tree = desk.Model().tvProperties;
    std::string text;
    int depth = 0;
    for (const int node : tree.InOrder()) {
        int level = 0;
        for (int above = tree[node].parent; above != TTree::None; above = tree[above].parent)
            ++level;
        text += level > depth ? "(" : std::string(std::size_t(depth - level), ')') + (text.empty() ? "" : " ");
        depth = level;
        desk.Model().tvProperties.Select(node);
        text += tree[node].text + ":" + desk.Model().SelectedData()->PropType;
    }
    return text + std::string(std::size_t(depth), ')');
}

TEST(ExclusionModel, CandidatesAreWhatHoldsTextsAtAnyDepth) {
    ExclusionDesk desk;
    const std::string control = "Hint:LString HelpKeyword:LString ";
    EXPECT_EQ(Candidates(desk, "Button1"), control + "StyleName:LString Caption:LString CommandLinkHint:LString "
                                                     "Font:TFont ImageName:LString");
    EXPECT_EQ(Candidates(desk, "Gadget1"),
              "Lamp:TPersistent(Texts:TStrings Font:TFont) Parts:TCollection(0 - TCollectionItem:TCollectionItem("
              "Title:LString))");
    EXPECT_EQ(Candidates(desk, "MainMenu1"), "") << "references are never looked into";
    EXPECT_EQ(Candidates(desk, "Label1"), "") << "an excluded component offers nothing";
    EXPECT_NE(Candidates(desk, "Edit1").find("EditLabel:TBoundLabel(Hint:LString"), std::string::npos);
    EXPECT_NE(Candidates(desk, "List1").find("Columns:TListColumns(0 - TListColumn:TListColumn("),
              std::string::npos);
    desk.Model().lbExclCompProps.Add("button1.CAPTION");
    desk.Model().lbExclProperties.Add("hint");
    EXPECT_EQ(Candidates(desk, "Button1"),
              "HelpKeyword:LString StyleName:LString CommandLinkHint:LString Font:TFont ImageName:LString");
    EXPECT_EQ(Candidates(desk, "Item1").substr(0, 15), "Caption:LString") << "only that component's is gone";
    EXPECT_FALSE(desk.Model().CanAddProperty("Name", "Button1"));
    EXPECT_TRUE(desk.Model().CanAddProperty("name", "Button1"));
}

// CLX publishes its texts as wide strings, whatever class they are of.
TEST(ExclusionModel, TextsOfClxFormsAreWide) {
    FormFile file = FormFile::Parse("object Form1: TForm1\n  object B: TButton\n    Odd = 'x'\n  end\nend\n", "Main.xfm");
    const auto types = [&](const char* formFile) {
        ComponentTree tree(file, "TForm", ClassCatalogue::OfForm(formFile));
        std::string text;
        for (const CandidateProperty& each : CandidateProperties(*tree.Root().FindComponent("B"), [](auto) { return true; }))
            if (each.text == "Odd" || each.text == "Caption" || each.text == "Name" || each.text == "Font")
                text += each.text + ":" + each.data.PropType + " ";
        return text;
    };
    EXPECT_EQ(types("Main.dfm"), "Name:LString Caption:LString Font:TFont Name:LString Odd:LString ");
    EXPECT_EQ(types("Main.XFM"), "Name:LString Caption:WString Font:TFont Name:WString Odd:WString ");
}

// A form owns what its own references name: those are looked into, also when they name each other in a circle.
TEST(ExclusionModel, TheFormsOwnComponentsAreLookedIntoOnce) {
    ExclusionDesk desk("object Form1: TForm1\n  ActiveControl = A\n"
                       "  object A: TCombo\n    Text = 'a'\n    FocusControl = B\n  end\n"
                       "  object B: TLabel\n    Caption = 'b'\n    FocusControl = B\n  end\n"
                       "  object Glotta1: TGlotta\n  end\nend\n");
    const std::string form = Candidates(desk, "Form1");
    EXPECT_NE(form.find("ActiveControl:TCombo(Text:LString)"), std::string::npos) << form;
    ExclusionDesk circle("object Form1: TForm1\n  PopupMenu = B\n"
                         "  object B: TLabel\n    PopupMenu = B\n    FocusControl = Form1\n  end\n"
                         "  object Glotta1: TGlotta\n  end\nend\n");
    EXPECT_NE(Candidates(circle, "Form1").find("PopupMenu:TLabel("), std::string::npos);
}

struct Adding {
    ExclusionPage page;
    TAddbyProperty addBy;
    const char* component;
    const char* property;
    const char* text;
    const char* result; // count, list of the page
};

TEST(ExclusionModel, FourWaysOfAdding) {
    const std::string form = "object Form1: TForm1\n"
                             "  object A: TTimer\n    Title = 'x'\n    Note.Strings = ('n')\n  end\n"
                             "  object B: TTimer\n    title = 'y'\n    Subtitle = 'z'\n    Font.Name = 'f'\n  end\n"
                             "  object Glotta1: TGlotta\n    ExcludedProperties.Strings = (\n      'Caption'\n"
                             "      'Hint')\n  end\nend\n";
    using enum TAddbyProperty;
    const Adding cases[] = {
        {ComponentsPage, apSelected, "A", "Title", "", "0 "},
        {PropertiesPage, apSelected, "A", "Title", "", "1 Caption,Hint,Title *"},
        {PropertiesPage, apSelected, "A", "", "", "0 Caption,Hint"},
        {CompPropertiesPage, apSelected, "A", "Note", "", "1 A.Note *"},
        {PropertiesPage, apByType, "A", "", "", "0 Caption,Hint"},
        {PropertiesPage, apByType, "A", "Note", "", "1 Caption,Hint,Note *"},
        {CompPropertiesPage, apByType, "B", "title", "",
         "6 Form1.HelpKeyword,Form1.StyleName,Form1.HelpFile,A.Title,B.title,B.Subtitle *"},
        {PropertiesPage, apByTypeName, "A", "", "FONT", "1 Caption,Hint,Font *"},
        {PropertiesPage, apByTypeName, "A", "", "font", "0 Caption,Hint *"},
        {PropertiesPage, apByName, "A", "", "TITLE", "2 Caption,Hint,Title,Subtitle *"},
        {CompPropertiesPage, apByName, "A", "", "TITLE", "3 A.Title,B.title,B.Subtitle *"},
        {PropertiesPage, apByName, "A", "", "CAP", "0 Caption,Hint *"},
        {ComponentsPage, apByName, "A", "", "TITLE", "0 "},
    };
    for (const Adding& each : cases) {
        ExclusionDesk desk(form);
        desk.Select(each.component, each.property);
        desk.Model().page = each.page;
        const TPropertyData* const selected = desk.Model().SelectedData();
        const int added = desk.Model().AddPropertyToList(each.addBy, selected ? *selected : TPropertyData(), each.text);
        EXPECT_EQ(std::to_string(added) + " " + desk.Joined(desk.Model().ActiveList().Items()) +
                      (desk.Model().modified ? " *" : ""),
                  each.result)
            << each.page << " " << int(each.addBy) << " " << each.text;
        EXPECT_EQ(desk.Model().SelectedComponent()->Name(), each.component);
    }
}

// As many components as the largest forms have.
TEST(ExclusionModel, SevenHundredComponentsAreDoneAtOnce) {
    std::string form = "object Form1: TForm1\n";
    for (int i = 0; i < 700; ++i) {
        const std::string n = std::to_string(i);
        form += "  object Item" + n + ": " + (i % 3 == 0 ? "TListView" : i % 3 == 1 ? "TButton" : "TJvGadget") +
                "\n    Width = 5\n    Height = 5\n    Caption = 'c'\n    PopupMenu = Item699\n    Own" + n +
                " = 'x'\n    Columns = <\n      item\n        Caption = 'k'\n      end>\n  end\n";
    }
    ExclusionDesk desk(form + "  object Glotta1: TGlotta\n  end\nend\n");
    ExclusionModel& model = desk.Model();
    const auto timed = [&](const char* what, auto act) {
        const auto start = std::chrono::steady_clock::now();
        const int added = act();
        const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now() - start);
        std::cout << what << ": " << added << " items, " << took.count() << " ms\n";
        EXPECT_LT(took.count(), 2000) << what; // far above what it takes, far below what a square costs
        return added;
    };
    model.page = CompPropertiesPage;
    desk.Select("Item1", "Caption");
    model.lbExclCompProps.SetSorted(true);
    EXPECT_GT(timed("selected", [&] { return model.AddPropertyToList(TAddbyProperty::apSelected, {}, {}); }), 0);
    EXPECT_EQ(timed("by type name", [&] { return model.AddPropertyToList(TAddbyProperty::apByTypeName, {}, "TLISTCOLUMNS"); }), 234);
    EXPECT_EQ(timed("by name", [&] { return model.AddPropertyToList(TAddbyProperty::apByName, {}, "CAP"); }), 700);
    desk.Select("Item2", "Own2");
    const TPropertyData type = *model.SelectedData();
    EXPECT_GT(timed("by type", [&] { return model.AddPropertyToList(TAddbyProperty::apByType, type, {}); }), 2000);
    model.ExcludeAllWithProperty("Caption");
    EXPECT_EQ(model.lbExclComponents.RowCount(), 701u);
    model.ClearList(ComponentsPage);
    model.ClearList(CompPropertiesPage);
    EXPECT_FALSE(model.tvComponents.IsMarked(model.tvComponents.Find("ITEM5")));
}

TEST(ExclusionModel, ALongRunShowsHowFarItIsAndCanBeStopped) {
    const auto run = [](std::chrono::milliseconds after, bool cancel) {
        ExclusionDesk desk;
        if (cancel) desk.ui.Cancel("Components: 1 of 10");
        desk.Model().progressAfter = after;
        desk.Model().page = CompPropertiesPage;
        const int added = desk.Model().AddPropertyToList(TAddbyProperty::apByName, {}, "CAPTION");
        return std::to_string(added) + " " + desk.ui.Transcript();
    };
    using std::chrono_literals::operator""ms;
    EXPECT_EQ(run(500ms, false), "6 ");
    EXPECT_TRUE(run(0ms, false).starts_with("6 Progress: Components: 1 of 10\n")) << run(0ms, false);
    EXPECT_TRUE(run(0ms, true).starts_with("1 Progress: Components: 1 of 10\n")) << run(0ms, true);
}

TEST(ExclusionModel, WhatIsExcludedIsNotCollectedUntilItIsTakenBack) {
    ExclusionDesk desk;
    const auto texts = [&] {
        desk.Reopen();
        desk.Lang().UpdateTranslations();
        std::string ids;
        for (int kind = 0; kind < StringsTypeCount; ++kind)
            for (const std::string& record : desk.Lang().Strings(static_cast<TStringsType>(kind)).Items())
                ids += RecordField(record, 1) + " ";
        return ids;
    };
    const std::string all = texts();
    EXPECT_EQ(all, "Form1.Caption zPanel.Caption Button1.Caption Edit1.EditLabel.Caption Item1.Caption Button1.Hint "
                   "Gadget1.Lamp.Font.Name Gadget1.Lamp.Texts Edit1.Text List1.Columns[0].Caption "
                   "List1.Columns[1].Caption Gadget1.Parts[0].Title ");
    desk.Select("Gadget1", "Font");
    desk.Model().page = PropertiesPage;
    desk.Model().AddPropertyToList(TAddbyProperty::apSelected, {}, {});
    desk.Select("Edit1", "Caption");
    desk.Model().ExcludePropertyOfClass();
    desk.Select("Gadget1", "Title");
    desk.Model().page = CompPropertiesPage;
    desk.Model().AddPropertyToList(TAddbyProperty::apSelected, {}, {});
    desk.Select("Item1");
    desk.Model().ExcludeClass();
    desk.Select("List1");
    desk.Model().ExcludeSelected();
    EXPECT_EQ(desk.Lists(), "label1,!TTimer,!TMenuItem,List1 / Font / !TLabeledEdit.Caption,Gadget1.Title *");
    desk.Model().WriteBack();
    EXPECT_EQ(texts(), "Form1.Caption zPanel.Caption Button1.Caption Button1.Hint Gadget1.Lamp.Texts Edit1.Text ");
    for (const ExclusionPage page : {ComponentsPage, PropertiesPage, CompPropertiesPage})
        desk.Model().ClearList(page);
    desk.Model().lbExclComponents.Add("LABEL1");
    desk.Model().WriteBack();
    EXPECT_EQ(texts().size(), all.size());
}

} // namespace
} // namespace glotta
