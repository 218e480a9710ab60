#include "runtime/CustomLang.h"

#include "platform/Error.h"

using namespace glotta;

namespace {

// A form with a localization component.
struct Form {
    explicit Form(const std::string& properties, const std::string& components = "",
                  const std::string& head = "")
        : file(FormFile::Parse("object Form1: TForm1\n" + head + components + "  object glotta1: TGlotta\n" +
                                   properties + "  end\nend\n",
                               "Main.dfm")),
          tree((RegisterGlottaClasses(), file), "TForm") {}

    TgxCustomLang& Lang() { return dynamic_cast<TgxCustomLang&>(*tree.Root().FindComponent("glotta1")); }
    std::string LangText() {
        tree.BeforeWrite();
        const std::string text = file.Write();
        return text.substr(text.find("  object glotta1"));
    }
    FormFile file;
    ComponentTree tree;
};

std::string Shown(const TStringList& list) {
    std::string text;
    for (std::string record : list) {
        std::replace(record.begin(), record.end(), ItemDelimiter, '|');
        text += record + '\n';
    }
    return text;
}

std::string All(const TgxCustomLang& lang) {
    std::string text;
    for (int kind = 0; kind < StringsTypeCount; ++kind)
        for (const std::string& record : lang.Strings(static_cast<TStringsType>(kind)).Items())
            text += std::string(StringsPropertyName(static_cast<TStringsType>(kind))) + ": " +
                    Shown(TStringList({record}));
    return text;
}

std::vector<std::string> Records(std::vector<std::string> records) {
    for (std::string& record : records)
        std::replace(record.begin(), record.end(), '|', ItemDelimiter);
    return records;
}

} // namespace

TEST(CustomLang, AFreshComponentIsSavedWithItsLanguagesAndTexts) {
    FormFile file = FormFile::Parse("object Form1: TForm1\r\nend\r\n", "Main.dfm");
    RegisterGlottaClasses();
    ComponentTree tree(file, "TForm");
    auto& lang = dynamic_cast<TgxCustomLang&>(tree.Create("TGlotta", "Glotta1"));
    lang.SetLangNames({"English", "German", "Czech"});
    lang.SetNumberOfLanguages(2);
    lang.AddString("IDS_0", "It's\r\nh\u00E9re");
    tree.BeforeWrite();
    EXPECT_EQ(file.Write(), "object Form1: TForm1\r\n"
                            "  object Glotta1: TGlotta\r\n"
                            "    NumberOfLanguages = 2\r\n"
                            "    LangNames.Strings = (\r\n"
                            "      'English'\r\n"
                            "      'German')\r\n"
                            "    Language = 'English'\r\n"
                            "    ActiveLanguage = 1\r\n"
                            "    Strings.Strings = (\r\n"
                            "      'IDS_0'#1'It'#39's'#13#10'h'#233're'#1)\r\n"
                            "  end\r\n"
                            "end\r\n");
}

TEST(CustomLang, AnUntouchedComponentLeavesTheFormAsItIs) {
    const std::string odd = "    Strings.Strings = (\n      'id'#1'a'+''  )\n    LangNames.Strings = ('E')\n";
    Form form(odd);
    EXPECT_EQ(form.LangText(), "  object glotta1: TGlotta\n" + odd + "  end\nend\n");
}

TEST(CustomLang, LanguagesKeepNamesRecordsAndPositionTogether) {
    Form form("    LangNames.Strings = (\n      'E'\n      'G')\n    ActiveLanguage = 2\n");
    TgxCustomLang& lang = form.Lang();
    EXPECT_EQ(lang.NumberOfLanguages(), 2);
    EXPECT_EQ(lang.Language(), "G");
    lang.SetStrings(stCaptions, Records({"a|x|y"}));
    lang.SetNumberOfLanguages(4);
    EXPECT_EQ(lang.LangNames(), (std::vector<std::string>{"E", "G", "Language N3", "Language N4"}));
    EXPECT_EQ(Shown(lang.Strings(stCaptions)), "a|x|y||\n");
    lang.SetNumberOfLanguages(1);
    EXPECT_EQ(Shown(lang.Strings(stCaptions)), "a|x\n");
    EXPECT_EQ(lang.Language(), "E");
    EXPECT_THROW(lang.SetLanguage("G"), Error);
    EXPECT_EQ(Form("    NumberOfLanguages = 2000000000\n").Lang().NumberOfLanguages(), 1000);
}

TEST(CustomLang, StringsAreFoundByIdentifierAndByText) {
    Form form("    NumberOfLanguages = 2\n");
    TgxCustomLang& lang = form.Lang();
    lang.AddString("IDS_0", "same");
    lang.AddString("IDS_1", "same");
    lang.AddString("ids_2", "Other");
    EXPECT_EQ(lang.GetIDIndex("IDS_2"), 2);
    EXPECT_EQ(lang.GetStringID("same"), "IDS_0");
    EXPECT_EQ(lang.GetStringID("other"), "") << "texts compare exactly";
    lang.AddString("IDS_0", "changed");
    EXPECT_EQ(lang.GetStringID("same"), "IDS_1");
    EXPECT_EQ(lang.GetStringID("changed"), "IDS_0");
    EXPECT_TRUE(lang.DeleteString("Ids_0"));
    EXPECT_FALSE(lang.DeleteString("Ids_0"));
    EXPECT_EQ(lang.GetIDIndex("IDS_1"), 0);
    lang.SetStrings(stStrings, Records({"IDS_7|base|", "IDS_8|base2|zwei"}));
    lang.SetLanguage("Language N2");
    EXPECT_EQ(lang.GetText("ids_7") + '/' + lang.GetTextOrDefault("ids_7") + '/' + lang.GetText("IDS_8") +
                  '/' + lang.GetTextOrDefault("none"),
              "/base/zwei/");
}

TEST(CustomLang, TextsOfTheFormAreCollectedByKind) {
    const std::string components = R"(  object Button1: TButton
    Hint = 'Press'
    HelpKeyword = 'no text'
    Caption = '&OK'
    Font.Charset = RUSSIAN_CHARSET
    Font.Name = 'Tahoma'
    OnClick = Button1Click
  end
  object Line: TMenuItem
    Caption = '-'
  end
  object Memo1: TMemo
    Lines.Strings = (
      'one'
      'two')
    Text = 'a'#13#10'b'
  end
  object Query: TQuery
    Filter = 'a = 1'
    SQL.Strings = (
      'select')
    object QueryNAME: TStringField
      DisplayLabel = 'Name'
      FieldName = 'NAME'
    end
  end
  object Open: TOpenDialog
    DefaultExt = 'txt'
    Filter = 'Text|*.txt'
    Title = 'Open'
  end
  object List: TListView
    Columns = <
      item
        Caption = 'First'
      end
      item
        Width = 5
        Caption = 'Second'
      end>
  end
  object Edit1: TLabeledEdit
    Text = 'edit'
    EditLabel.Caption = 'Label'
  end
  inline Frame1: TFrame1
    object Label1: TLabel
      Caption = 'inside'
    end
  end
)";
    Form form("", components, "  Caption = 'Title'\n");
    form.Lang().UpdateTranslations();
    EXPECT_EQ(All(form.Lang()), "Captions: Form1.Caption|Title\n"
                                "Captions: Button1.Caption|&OK\n"
                                "Captions: Edit1.EditLabel.Caption|Label\n"
                                "Captions: Frame1.Label1.Caption|inside\n"
                                "Hints: Button1.Hint|Press\n"
                                "DisplayLabels: QueryNAME.DisplayLabel|Name\n"
                                "Fonts: Button1.Font.Name|Tahoma\n"
                                "MultiLines: Memo1.Lines|one\r\ntwo\n"
                                "MultiLines: Memo1.Text|a\r\nb\n"
                                "DlgsCaptions: Open.Filter|Text|*.txt\n"
                                "DlgsCaptions: Open.Title|Open\n"
                                "OtherStrings: Edit1.Text|edit\n"
                                "CharSets: Button1.Font.Charset|RUSSIAN_CHARSET\n"
                                "Collections: List.Columns[0].Caption|First\n"
                                "Collections: List.Columns[1].Caption|Second\n");
}

TEST(CustomLang, ViewItemsAreReadFromTheirData) {
    const std::string components = R"(  object List: TListView
    Items.Data = {
      2B0000000200000000000000FFFFFFFFFFFFFFFF0100000000000000016102E9
      6200000000FFFFFFFFFFFFFFFF0000000000000000016300}
  end
  object Tree: TTreeView
    Items.Data = {
      020000001A0000000000000000000000FFFFFFFFFFFFFFFF0000000001000000
      01781A0000000000000000000000FFFFFFFFFFFFFFFF00000000000000000179
      1A0000000000000000000000FFFFFFFFFFFFFFFF0000000000000000017A}
  end
  object Cut: TTreeView
    Items.Data = {020000001A00}
  end
)";
    FormFile file =
        FormFile::Parse("object Form1: TForm1\n" + components + "  object g: TGlottaTLV\n  end\nend\n", "M");
    RegisterGlottaClasses();
    ComponentTree tree(file, "TForm");
    auto& lang = dynamic_cast<TgxCustomLang&>(*tree.Root().FindComponent("g"));
    lang.UpdateTranslations();
    EXPECT_EQ(Shown(lang.Strings(stListView_TreeView_Items)), "List.Items[0]|a\n"
                                                              "List.Items[0].SubItems[0]|\u00E9b\n"
                                                              "List.Items[1]|c\n"
                                                              "Tree.Items[0]|x\n"
                                                              "Tree.Items[0][0]|y\n"
                                                              "Tree.Items[1]|z\n");
}

TEST(CustomLang, WhatIsExcludedIsNotCollected) {
    const std::string components =
        "  object A: TButton\n    Caption = 'a'\n    Hint = 'ha'\n    Font.Name = 'f'\n  end\n"
        "  object B: TButton\n    Caption = 'b'\n    Hint = 'hb'\n  end\n"
        "  object C: TLabel\n    Caption = 'c'\n    Hint = 'hc'\n  end\n"
        "  object D: TEdit\n    Text = 'd'\n  end\n";
    const auto collected = [&](std::vector<std::string> components_, std::vector<std::string> properties,
                               std::vector<std::string> smart) {
        Form form("", components);
        form.Lang().SetDoNotList(components_);
        form.Lang().SetExProps(properties);
        form.Lang().SetSmartProps(smart);
        form.Lang().UpdateTranslations();
        std::string ids;
        for (int kind = 0; kind < StringsTypeCount; ++kind)
            for (const std::string& record : form.Lang().Strings(static_cast<TStringsType>(kind)))
                ids += RecordField(record, 1) + ' ';
        return ids;
    };
    EXPECT_EQ(collected({}, {}, {}),
              "A.Caption B.Caption C.Caption A.Hint B.Hint C.Hint A.Font.Name D.Text ");
    EXPECT_EQ(collected({"a", "!TLABEL"}, {}, {}), "B.Caption B.Hint D.Text ");
    EXPECT_EQ(collected({}, {"CAPTION", "font"}, {}), "A.Hint B.Hint C.Hint D.Text ");
    EXPECT_EQ(collected({}, {}, {"A.Font", "b.hint", "!TLabel.Caption"}),
              "A.Caption B.Caption A.Hint C.Hint D.Text ");
}

TEST(CustomLang, UpdateKeepsTranslationsAndDropsWhatVanished) {
    const std::string components = "  object A: TButton\n    Caption = 'new'\n  end\n"
                                   "  object B: TButton\n    Caption = 'b'\n  end\n";
    Form form("    NumberOfLanguages = 2\n", components);
    TgxCustomLang& lang = form.Lang();
    lang.SetStrings(stCaptions,
                    Records({"B.Caption|b|be", "Gone.Caption|g|ge", "a.caption|old|alt", "A.Caption|x|y"}));
    lang.SetStrings(stStrings, Records({"IDS_0|s|"}));
    lang.SetIgnoreRemovals(true);
    lang.UpdateTranslations();
    EXPECT_EQ(All(lang),
              "Captions: B.Caption|b|be\nCaptions: Gone.Caption|g|ge\nCaptions: a.caption|new|alt\n"
              "Strings: IDS_0|s|\n");
    lang.SetIgnoreRemovals(false);
    lang.SetDoNotList({"b"});
    lang.UpdateTranslations();
    EXPECT_EQ(All(lang), "Captions: a.caption|new|alt\nStrings: IDS_0|s|\n");
    lang.ClearTranslations();
    EXPECT_EQ(form.LangText(), "  object glotta1: TGlotta\n"
                               "    NumberOfLanguages = 2\n"
                               "    DoNotTranslate.Strings = (\n"
                               "      'b')\n"
                               "    IgnoreRemovals = False\n"
                               "  end\n"
                               "end\n");
}

TEST(Dispatcher, HoldsLanguagesInTheForm) {
    FormFile file = FormFile::Parse("object Form1: TForm1\nend\n", "Main.dfm");
    RegisterGlottaClasses();
    ComponentTree tree(file, "TForm");
    auto& dispatcher = dynamic_cast<TGlottaDispatcher&>(tree.Create("TGlottaDispatcher", "D"));
    dispatcher.SetLangNames({"E", "G"});
    dispatcher.SetNumberOfLanguages(3);
    dispatcher.SetLanguage("g");
    EXPECT_EQ(dispatcher.LangNames(), (std::vector<std::string>{"E", "G", "Language N3"}));
    EXPECT_EQ(dispatcher.ActiveLanguage(), 2);
    EXPECT_EQ(dispatcher.Language(), "G");
}
