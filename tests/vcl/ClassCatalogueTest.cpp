#include "vcl/ClassCatalogue.h"

using namespace glotta;

namespace {
std::string Names(const std::vector<const PropertyInfo*>& properties) {
    std::string names;
    for (const PropertyInfo* property : properties)
        names += property->name + ':' + property->typeName + ' ';
    return names;
}
} // namespace

TEST(ClassCatalogue, AncestorsAndPropertiesOfBuiltInClasses) {
    const ClassCatalogue& catalogue = ClassCatalogue::BuiltIn();
    EXPECT_EQ(catalogue.Find("tbutton")->unit, "StdCtrls");
    EXPECT_EQ(catalogue.Find("TListColumns")->itemClass, "TListColumn");
    EXPECT_TRUE(catalogue.InheritsFrom("TBitBtn", "twincontrol"));
    EXPECT_TRUE(catalogue.InheritsFrom("TUnknown", "TUNKNOWN"));
    EXPECT_FALSE(catalogue.InheritsFrom("TDataModule", "TControl"));
    EXPECT_FALSE(catalogue.InheritsFrom("TFrame", "TCustomForm"));
    EXPECT_EQ(Names(catalogue.PublishedProperties("TTimer")),
              "Name:TComponentName Tag:Integer Enabled:Boolean Interval:Cardinal OnTimer:TNotifyEvent ");
    EXPECT_EQ(catalogue.FindProperty("TForm", "oncreate")->typeName, "TNotifyEvent");
    EXPECT_EQ(catalogue.FindProperty("TFrame", "OnCreate"), nullptr);
    EXPECT_EQ(TypeKindName(catalogue.FindProperty("TLabel", "Caption")->kind), "tkLString");
    EXPECT_EQ(catalogue.FindProperty("TListView", "OnChange")->typeName, "TLVChangeEvent");
}

// The tables are written by hand: every parent is there, every property has a type of a known kind.
TEST(ClassCatalogue, TheTablesHoldTogether) {
    const ClassCatalogue& catalogue = ClassCatalogue::BuiltIn();
    std::string loose;
    for (const auto& [name, info] : catalogue.Classes()) {
        if (!info.parent.empty() && !catalogue.Find(info.parent))
            loose += name + " from " + info.parent + '\n';
        if (!info.itemClass.empty() && !catalogue.Find(info.itemClass))
            loose += name + " of " + info.itemClass + '\n';
        for (const PropertyInfo& property : info.properties)
            if (property.kind == TTypeKind::tkUnknown)
                loose += name + '.' + property.name + ' ' + property.typeName + '\n';
    }
    EXPECT_EQ(loose, "");
}

TEST(ClassCatalogue, EventTypesHaveParametersInBothLanguages) {
    EXPECT_EQ(ClassCatalogue::PascalParameters("TCloseEvent"), "Sender: TObject; var Action: TCloseAction");
    EXPECT_EQ(ClassCatalogue::CppParameters("tcloseevent"), "TObject *Sender, TCloseAction &Action");
    EXPECT_EQ(ClassCatalogue::PascalParameters("TUnknownEvent"), "");
}
