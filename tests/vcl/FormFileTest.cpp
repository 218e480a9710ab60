#include "vcl/FormFile.h"

#include "platform/Error.h"

using namespace glotta;

namespace {

using Change = std::function<void(FormNode& root)>;

std::string Written(const std::string& bytes, const Change& change = {}, unsigned codePage = 1252) {
    try {
        FormFile form = FormFile::Parse(bytes, "Main.dfm", codePage);
        if (change) change(form.Root());
        return form.Write();
    } catch (const Error& error) {
        return error.what();
    }
}

// A form with one property whose value is written so.
std::string FormWith(const std::string& value) {
    return "object Form1: TForm1\n  Caption = " + value + "\nend\n";
}

std::string TextOf(const std::string& value, unsigned codePage = 1252) {
    return FormFile::Parse(FormWith(value), "Main.dfm", codePage).Root().Find("caption")->value.text;
}

void ForgetRaw(FormNode& node) {
    node.rawHead.clear();
    node.rawTail.clear();
    for (FormProperty& property : node.properties)
        property.raw.clear();
    for (const auto& child : node.children)
        ForgetRaw(*child);
}

// All kinds of values in the IDE's own layout.
const std::string Canonical = R"(inherited Form1: TForm1
  Left = -5
  Big = 5000000000
  Caption = 'Don'#39't'#13#10'stop'
  Empty = ''
  Font.Name = 'MS Sans Serif'
  Font.Style = []
  Anchors = [akLeft, akTop]
  Menu = DataModule1.Menu
  Visible = True
  Long = 
    '1234567890123456789012345678901234567890123456789012345678901234' +
    '5'
  Ratio = 1.250000000000000000
  Cost = 1.25c
  When = 36892.5d
  Small = {0102FF}
  Large = {
    0102030405060708090A0B0C0D0E0F101112131415161718191A1B1C1D1E1F20
    21}
  Nothing = ()
  Lines.Strings = (
    'one'
    
      '1234567890123456789012345678901234567890123456789012345678901234' +
      '5')
  DesignSize = (
    10
    20)
  Columns = <
    item
      Caption = 'A'
      Inner = <
        item [2]
          Width = 50
        end>
    end
    item
    end>
  None = <>
  Action = nil
  object Button1: TButton
    OnClick = Button1Click
  end
  inline Frame1: TFrame1 [3]
    object TMenuItem
    end
  end
end
)";

} // namespace

TEST(FormText, WhatIsNotChangedComesBackAsItWas) {
    const std::string forms[] = {
        Canonical,
        "object Form1: TForm1\r\n  A =True \t\r\n\n  B= 'x''y'   \n\n  object L:TLabel\r\n  end  \r\nEND  ",
        "\xEF\xBB\xBFobject Form1: TForm1\n  Caption = 'gr\xC3\xBC\xC3\x9F'\nend\n\n\x1A",
        "\n\n  object Form1: TForm1\n  Caption = 'gr\xFC\xDF\x81'#129\nend",
        "object Form1: TForm1 object A: TA X = $FF end end",
        "object Form1: TForm1\r  Caption = 'a' + 'b' +\r\r 'c'\rend\r",
    };
    for (const std::string& form : forms)
        EXPECT_EQ(Written(form), form);
    EXPECT_EQ(Written(Canonical, ForgetRaw), Canonical);
}

TEST(FormText, AChangeTouchesItsOwnLinesOnly) {
    const std::string form = "object Form1: TForm1 \r\n"
                             "   Left = 1 \r\n"
                             "   OnCreate = FormCreate\n"
                             "   object Label1: TLabel\n"
                             "     Caption = 'x'\n"
                             "   end \r\n"
                             "end\r\n";
    const Change change = [](FormNode& root) {
        root.Set("left", FormValue::Integer(1)); // equal: nothing to write
        root.Set("OnDestroy", FormValue::Identifier("Done"));
        root.Set("Caption", FormValue::String("T"));
        root.children[0]->Set("CAPTION", FormValue::StringListOf({"a", "it's"}));
        root.children[0]->Rename("Label2");
        root.AddChild("Glotta1", "TGlotta").Set("Left", FormValue::Bool(true));
        root.Remove("oncreate");
    };
    EXPECT_EQ(Written(form, change), "object Form1: TForm1 \r\n"
                                     "   Left = 1 \r\n"
                                     "   Caption = 'T'\r\n"
                                     "   OnDestroy = Done\r\n"
                                     "   object Label2: TLabel\r\n"
                                     "     Caption = (\r\n"
                                     "       'a'\r\n"
                                     "       'it'#39's')\r\n"
                                     "   end \r\n"
                                     "   object Glotta1: TGlotta\r\n"
                                     "     Left = True\r\n"
                                     "   end\r\n"
                                     "end\r\n");
}

TEST(FormText, CodesAreBytesInOldFormsAndUnitsInNewOnes) {
    EXPECT_EQ(TextOf("'caf'#233#146"), "caf\u00E9\u2019");
    EXPECT_EQ(TextOf("#207#240", 1251), "\u041F\u0440");
    EXPECT_EQ(TextOf("'\xCF'#240", 1251), "\u041F\u0440");
    EXPECT_EQ(TextOf("#233' '#1055", 1251), "\u00E9 \u041F");
    EXPECT_EQ(TextOf("#55357 +\n #56832"), "\U0001F600");
    EXPECT_EQ(TextOf("#233' #1055'", 1251), "\u0439 #1055") << "a code in quotes is text";
    EXPECT_EQ(TextOf("'\xC3\xA9'#233", 1251), "\u00E9\u00E9") << "UTF-8 holds units";
}

TEST(FormText, NewTextsAreWrittenAsTheFormsCodes) {
    const auto set = [](const std::string& text) {
        return [text](FormNode& root) { root.Set("Hint", FormValue::String(text)); };
    };
    const auto form = [](const std::string& caption, const std::string& hint) {
        return "object Form1: TForm1\n  Hint = " + hint + "\n  Caption = " + caption + "\nend\n";
    };
    EXPECT_EQ(Written(FormWith("'x'"), set("\u00E9\u2019")), form("'x'", "#233#146"));
    EXPECT_EQ(Written(FormWith("#1055"), set("\u00E9\u2019\U0001F600")),
              form("#1055", "#233#8217#55357#56832"));
    // The page cannot hold it: the form turns to units, and what was written in bytes with it.
    EXPECT_EQ(Written(FormWith("'a'#146"), set("\u041F")), form("'a'#8217", "#1055"));
    EXPECT_EQ(Written(FormWith("'\x92'#13"), set("\u041F")), form("'\x92'#13", "#1055"));
    EXPECT_EQ(Written(FormWith("'x'"), set("\u00FC"), 1251),
              "Main.dfm: the form's code page cannot express a new text");
}

TEST(FormText, DamageIsNamedWithItsLine) {
    const std::pair<std::string, std::string> cases[] = {
        {"", "1: the file holds no form"},
        {"garbage", "1: 'object' expected"},
        {"object Form1: TForm1\n", "2: the file ends too early"},
        {FormWith("'x"), "2: a string has no closing quote"},
        {FormWith("'x' + 5"), "2: string expected behind '+'"},
        {FormWith("#"), "2: bad character code"},
        {FormWith("#99999999999"), "2: bad character code"},
        {FormWith("{01\n0G}"), "3: binary data holds something else than hexadecimal digits"},
        {FormWith("{012}"), "2: binary data ends in half a byte"},
        {FormWith("{01"), "3: binary data holds something else than hexadecimal digits"},
        {FormWith("-"), "2: bad number"},
        {FormWith("[a b]"), "2: ']' expected"},
        {FormWith("<\nend>"), "3: 'item' expected"},
        {FormWith("%"), "2: name expected"},
        {"object A: TA\nend\nend\n", "3: text behind the end of the form"},
        {FormWith(std::string(100000, '(')), "2: values are nested too deeply"},
    };
    for (const auto& [form, message] : cases)
        EXPECT_EQ(Written(form), "Main.dfm: line " + message);
    std::string deep;
    for (int i = 0; i < 10000; ++i)
        deep += "object A: TA\n";
    EXPECT_EQ(Written(deep), "Main.dfm: line 202: objects are nested too deeply");
}

TEST(FormFile, TheHeadIsReadAlone) {
    const FormHead head =
        FormFile::PeekHead("\xEF\xBB\xBF  inherited Form1: TForm1 [2]\n garbage", "Main.dfm");
    EXPECT_EQ(head.name + head.className + std::to_string(*head.index), "Form1TForm12");
    EXPECT_EQ(head.kind, FormNodeKind::Inherited);
}

TEST(FormOrder, ANewPropertyStandsWhereTheIdeWritesIt) {
    const auto place = [](const std::string& className, const std::vector<std::string>& present,
                          const std::string& added) {
        FormNode node;
        node.className = className;
        for (const std::string& name : present)
            node.properties.push_back({name, {}, {}});
        node.Set(added, FormValue::Integer(1));
        std::string names;
        for (const FormProperty& property : node.properties)
            names += property.name + ' ';
        return names;
    };
    EXPECT_EQ(
        place("TForm1", {"Position", "OnCloseQuery", "OnShow", "PixelsPerInch", "TextHeight"}, "OnCreate"),
        "Position OnCloseQuery OnCreate OnShow PixelsPerInch TextHeight ");
    EXPECT_EQ(place("TForm1", {"Left", "Font.Charset", "Font.Name", "Menu"}, "Font.Height"),
              "Left Font.Charset Font.Height Font.Name Menu ");
    EXPECT_EQ(place("TDM", {"OldCreateOrder", "OnDestroy", "Left", "Top", "Height", "Width"}, "OnCreate"),
              "OldCreateOrder OnCreate OnDestroy Left Top Height Width ");
    EXPECT_EQ(place("TGlotta", {"LangNames.Strings", "Strings.Strings", "Left", "Top"}, "OnChangeLanguage"),
              "LangNames.Strings Strings.Strings OnChangeLanguage Left Top ");
    EXPECT_EQ(place("TForm1", {}, "Tag"), "Tag ");
}
