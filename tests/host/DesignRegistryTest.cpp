#include "host/DesignRegistry.h"

#include "ide/DesignEditors.h"
#include "support/FakeIde.h"

namespace glotta {
namespace {

const std::string Form = "object Form1: TForm1\r\n"
                         "  object ListBox1: TListBox\r\n"
                         "    Items.Strings = (\r\n"
                         "      'a')\r\n"
                         "  end\r\n"
                         "  object Memo1: TMemo\r\n"
                         "  end\r\n"
                         "  object Timer1: TTimer\r\n"
                         "  end\r\n"
                         "end\r\n";

// Editors that tell their names.
struct NamedProperty : TStringProperty {
    NamedProperty(DesignPlace place, TComponent& component, PropertyInfo info, const char* its)
        : TStringProperty(place, component, std::move(info)), name(its) {}
    std::string GetValue() const override { return name; }
    const char* name;
};
struct NamedEditor : TComponentEditor {
    NamedEditor(DesignPlace place, TComponent& component, const char* its)
        : TComponentEditor(place, component), name(its) {}
    std::string GetVerb(int) const override { return name; }
    const char* name;
};
struct NamedSelection : TSelectionEditor {
    NamedSelection(DesignPlace place, const char* its) : TSelectionEditor(place), name(its) {}
    std::string GetVerb(int) const override { return name; }
    const char* name;
};
TPropertyEditorClass Property(const char* name) {
    return {name, [name](DesignPlace place, TComponent& component, const PropertyInfo& info) {
                return std::make_unique<NamedProperty>(place, component, info, name);
            }};
}
TComponentEditorClass Editor(const char* name) {
    return {name, [name](DesignPlace place, TComponent& component) {
                return std::make_unique<NamedEditor>(place, component, name);
            }};
}
TSelectionEditorClass Selection(const char* name) {
    return {name, [name](DesignPlace place) { return std::make_unique<NamedSelection>(place, name); }};
}

struct Desk {
    FakeIde ide;
    FakeForm& form = *ide.OpenForm("/p/Unit1.pas", "Form1", Form).form;
    DesignRegistry registry;

    TComponent& Find(const char* name) {
        return SameText(name, "Form1") ? form.Root() : *form.Root().FindComponent(name);
    }
    std::string PropertyEditor(const char* component, const char* property) {
        const auto editor = registry.PropertyEditorOf(Find(component), *Find(component).FindProperty(property), form);
        return editor ? editor->GetValue() : "-";
    }
    std::string ComponentEditor(const char* component) {
        const auto editor = registry.ComponentEditorOf(Find(component), form);
        return editor ? editor->GetVerb(0) : "-";
    }
    std::string Selections(const std::vector<const char*>& names) {
        IDesignerSelections selection;
        for (const char* name : names)
            selection.push_back(&Find(name));
        std::string text;
        for (const auto& editor : registry.SelectionEditorsOf(selection, form))
            text += editor->GetVerb(0) + " ";
        return text;
    }
    std::string Pages() {
        std::string text;
        for (const auto& pages : {registry.PalettePages(), registry.ActionCategories()})
            for (const ClassesOnPage& page : pages)
                text += page.name + ": " + JoinLines(page.classes, " ") + "; ";
        return text;
    }
};

TEST(DesignRegistry, TheNearestClassWinsAndOfThoseTheLastRegistered) {
    Desk desk;
    DesignRegistry& registry = desk.registry;
    registry.RegisterComponentEditor("TComponent", Editor("any"));
    registry.RegisterComponentEditor("TMemo", Editor("memo"));
    registry.RegisterComponentEditor("TWinControl", Editor("window1"));
    registry.RegisterComponentEditor("TWinControl", Editor("window2"));
    EXPECT_EQ(desk.ComponentEditor("Memo1") + desk.ComponentEditor("ListBox1") + desk.ComponentEditor("Timer1") +
                  desk.ComponentEditor("Form1"),
              "memowindow2anywindow2");

    registry.RegisterPropertyEditor("TStrings", "", "", Property("lists"));
    registry.RegisterPropertyEditor("TStrings", "TComponent", "Items", Property("items"));
    registry.RegisterPropertyEditor("TStrings", "TListBox", "items", Property("box"));
    registry.RegisterPropertyEditor("TPersistent", "TMemo", "Lines", Property("object"));
    registry.RegisterPropertyEditor("string", "", "Items", Property("wrong type"));
    EXPECT_EQ(desk.PropertyEditor("ListBox1", "Items") + " " + desk.PropertyEditor("Memo1", "Lines") + " " +
                  desk.PropertyEditor("Memo1", "Font") + " " + desk.PropertyEditor("Timer1", "Interval"),
              "box object - -");
    std::string all;
    for (const auto& property : registry.GetComponentProperties(desk.Find("ListBox1"), desk.form))
        all += property->GetName() + "=" + property->GetValue() + " ";
    EXPECT_EQ(all, "Items=box ");

    registry.RegisterSelectionEditor("TComponent", Selection("all"));
    registry.RegisterSelectionEditor("TControl", Selection("controls"));
    EXPECT_EQ(desk.Selections({"Memo1", "ListBox1"}) + "| " + desk.Selections({"Memo1", "Timer1"}),
              "all controls | all ");
}

TEST(DesignRegistry, AnUnloadedPackageLeavesNothingBehind) {
    Desk desk;
    DesignRegistry& registry = desk.registry;
    int told = 0;
    registry.OnView = [&told] { ++told; };
    registry.RegisterPropertyEditor("TStrings", "", "", Property("own"));
    const int first = registry.NewEditorGroup();
    registry.RegisterComponents("A", {"TOne", "TTwo"});
    registry.RegisterComponents("B", {"TThree"});
    const int second = registry.NewEditorGroup();
    registry.RegisterComponents("a", {"TFour"});
    registry.RegisterActions("Acts", {"TAct"}, {});
    registry.RegisterComponentEditor("TMemo", Editor("memo"));
    registry.RegisterPropertyEditor("TStrings", "TMemo", "Lines", Property("lines"));
    registry.RegisterSelectionEditor("TComponent", Selection("all"));
    EXPECT_EQ(desk.Pages(), "A: TOne TTwo TFour; B: TThree; Acts: TAct; ");
    EXPECT_EQ(desk.ComponentEditor("Memo1") + desk.PropertyEditor("Memo1", "Lines") + desk.Selections({"Memo1"}),
              "memolinesall ");
    EXPECT_EQ(told, 8);
    registry.FreeEditorGroup(second);
    EXPECT_EQ(desk.Pages(), "A: TOne TTwo; B: TThree; ");
    EXPECT_EQ(desk.ComponentEditor("Memo1") + desk.PropertyEditor("Memo1", "Lines") + desk.Selections({"Memo1"}),
              "-own");
    registry.FreeEditorGroup(first);
    EXPECT_EQ(desk.Pages(), "");
    EXPECT_EQ(told, 10);
}

} // namespace
} // namespace glotta
