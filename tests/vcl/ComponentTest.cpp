#include "vcl/Component.h"

#include "platform/Error.h"

using namespace glotta;

namespace {

FormFile Parsed(const std::string& text) {
    return FormFile::Parse(text, "Main.dfm");
}

std::string NamesOf(const std::vector<TComponent*>& components) {
    std::string names;
    for (const TComponent* component : components)
        names += component->Name() + ' ';
    return names;
}

const std::string Nested = R"(object Form1: TForm1
  OnCreate = FormCreate
  object Panel1: TPanel
    object Button1: TButton
      Caption = 'x'
      Gadget = 5
      Lamp.Color = clRed
      Extra.Strings = (
        'a')
    end
    inline Frame11: TFrame1
      object Button2: TButton
      end
    end
  end
  object glotta1: TGlotta
    Left = 8
    Top = 8
  end
end
)";

} // namespace

TEST(ComponentTree, TheRootOwnsAllButTheInsidesOfFrames) {
    FormFile form = Parsed(Nested);
    ComponentTree tree(form, "TForm");
    EXPECT_EQ(NamesOf(tree.Root().Components()), "Panel1 Button1 Frame11 glotta1 ");
    EXPECT_EQ(NamesOf(tree.Root().FindComponent("FRAME11")->Components()), "Button2 ");
    EXPECT_EQ(tree.Root().FindComponent("Button2"), nullptr);
    EXPECT_TRUE(tree.Root().InheritsFrom("TCustomForm"));
    EXPECT_TRUE(tree.Root().FindComponent("glotta1")->InheritsFrom("TgxCustomLang"));
}

TEST(ComponentTree, CreatesComponentsUnderFreeNames) {
    FormFile form = Parsed(Nested);
    ComponentTree tree(form, "TForm");
    EXPECT_EQ(tree.UniqueName("TGlotta"), "Glotta2") << "names ignore letter case";
    EXPECT_EQ(tree.UniqueName("TGlottaRT"), "GlottaRT1");
    tree.Create("TGlotta", "Glotta2").SetMethodProp("OnChangeLanguage", "Glotta2ChangeLanguage");
    EXPECT_EQ(NamesOf(tree.Root().Components()), "Panel1 Button1 Frame11 glotta1 Glotta2 ");
    const std::string expected = Nested.substr(0, Nested.size() - 4) +
                                 "  object Glotta2: TGlotta\n"
                                 "    OnChangeLanguage = Glotta2ChangeLanguage\n"
                                 "  end\n"
                                 "end\n";
    EXPECT_EQ(form.Write(), expected);
    for (const char* taken : {"BUTTON1", "form1", "", "1a", "a.b"})
        EXPECT_THROW(tree.Create("TGlotta", taken), Error) << taken;
}

TEST(Component, PropertiesComeFromTheCatalogueAndTheFile) {
    FormFile form = Parsed(Nested);
    ComponentTree tree(form, "TBaseForm");
    TComponent& button = *tree.Root().FindComponent("Button1");
    EXPECT_EQ(tree.Root().FindProperty("OnCreate")->typeName, "TNotifyEvent") << "the ancestor is not known";
    const auto kind = [&](std::string_view name) { return TypeKindName(button.FindProperty(name)->kind); };
    EXPECT_EQ(kind("Caption"), "tkLString");
    EXPECT_EQ(kind("gadget"), "tkInteger");
    EXPECT_EQ(kind("Lamp"), "tkClass");
    EXPECT_EQ(button.FindProperty("Extra")->typeName, "TStrings");
    EXPECT_FALSE(button.FindProperty("Absent"));

    EXPECT_EQ(button.GetStrings("Extra"), std::vector<std::string>{"a"});
    button.SetStrings("Extra", {});
    EXPECT_EQ(button.Node().Find("Extra.Strings"), nullptr);
    EXPECT_EQ(button.GetStrProp("Hint", "none"), "none");
    button.SetBoolProp("Default", true);
    EXPECT_EQ(button.GetOrdProp("default"), 1);
    tree.Root().SetMethodProp("OnCreate", "");
    EXPECT_EQ(tree.Root().GetMethodProp("OnCreate"), "");
}
