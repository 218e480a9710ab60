#include "vcl/FormFile.h"

#include "platform/Error.h"

using namespace glotta;

namespace {

// Bytes from a readable form: '..' strings get their length before them, numbers are hexadecimal bytes.
std::string Bytes(std::string_view readable) {
    std::string bytes;
    for (std::size_t i = 0; i < readable.size(); ++i) {
        if (readable[i] == ' ' || readable[i] == '\n') continue;
        if (readable[i] == '\'') {
            const std::size_t end = readable.find('\'', i + 1);
            bytes += static_cast<char>(end - i - 1);
            bytes += readable.substr(i + 1, end - i - 1);
            i = end;
        } else {
            bytes += static_cast<char>(std::stoi(std::string(readable.substr(i++, 2)), nullptr, 16));
        }
    }
    return bytes;
}

std::string Resource(const std::string& objects) {
    const std::size_t size = objects.size() + 4;
    return std::string("\xFF\x0A\0TFORM1\0\x30\x10", 12) + static_cast<char>(size & 255) +
           static_cast<char>(size >> 8) + std::string(2, '\0') + "TPF0" + objects;
}

std::string Written(const std::string& bytes, const std::function<void(FormNode&)>& change = {}) {
    try {
        FormFile form = FormFile::Parse(bytes, "Main.dfm", 1251);
        if (change) change(form.Root());
        return form.Write();
    } catch (const Error& error) {
        return error.what();
    }
}

void ForgetRaw(FormNode& node) {
    node.rawHead.clear();
    for (FormProperty& property : node.properties)
        property.raw.clear();
    for (const auto& child : node.children)
        ForgetRaw(*child);
}

const std::string AllKinds =
    Bytes("F1 'TForm1' 'Form1'"
          "'I8' 02 FF 'I16' 03 00 80 'I32' 04 00 00 00 80 'I64' 13 00 00 00 00 00 01 00 00"
          "'Ext' 05 00 00 00 00 00 00 00 A0 FF 3F 'Zero' 05 00 00 00 00 00 00 00 00 00 00"
          "'Sgl' 0F 00 00 A0 3F 'Dbl' 15 00 00 00 00 00 00 F4 3F"
          "'Cur' 10 D4 30 00 00 00 00 00 00 'Dat' 11 00 00 00 00 00 00 F4 3F"
          "'S' 06 'abc' 'Cyr' 06 02 CF F0 'U' 14 02 00 00 00 C3 A9"
          "'Id' 07 'clRed' 'F' 08 'T' 09 'N' 0D 'Nu' 00 'B' 0A 03 00 00 00 01 02 03"
          "'Set' 0B 'akLeft' 'akTop' 00 'L' 01 06 'x' 06 'y' 00"
          "'Col' 0E 02 05 01 'Caption' 06 'c' 00 01 00 00"
          "00"
          "F6 02 01 'TFrame1' 'Frame1' 00 'TLabel' '' 00 00 00"
          "00");

} // namespace

TEST(FormBinary, EveryKindComesBackUntouchedAndWrittenAnew) {
    for (const std::string& form : {Resource(AllKinds), "TPF0" + AllKinds, Resource(AllKinds) + "trailing"}) {
        EXPECT_EQ(Written(form), form);
        EXPECT_EQ(Written(form, ForgetRaw), form);
    }
}

TEST(FormBinary, ValuesAreRead) {
    const FormFile form = FormFile::Parse(Resource(AllKinds), "Main.dfm", 1251);
    std::string values;
    for (const FormProperty& property : form.Root().properties)
        values += property.name + '=' + std::to_string(property.value.integer) + property.value.text + ' ';
    EXPECT_EQ(values,
              "I8=-1 I16=-32768 I32=-2147483648 I64=1099511627776 Ext=51.25 Zero=50 Sgl=151.25s Dbl=211.25 "
              "Cur=161.2500c Dat=171.25d S=0abc Cyr=0\u041F\u0440 U=0\u00E9 Id=0clRed F=0 T=0 N=0 Nu=0Null "
              "B=0\x01\x02\x03 Set=0 L=0 Col=0 ");
    EXPECT_EQ(form.Root().children[0]->kind, FormNodeKind::Inline);
    EXPECT_EQ(form.Root().children[0]->children[0]->className, "TLabel");
    EXPECT_TRUE(form.IsBinary());
}

TEST(FormBinary, AChangeAdjustsTheSizeInTheHeader) {
    const std::string before = Bytes("'TForm1' 'Form1' 'Hint' 06 'x' 00 00");
    const auto with = [](const std::string& value) {
        return Resource(Bytes("'TForm1' 'Form1' 'Hint'") + value + std::string(2, '\0'));
    };
    const auto set = [](const std::string& text) {
        return [text](FormNode& root) { root.Set("Hint", FormValue::String(text)); };
    };
    EXPECT_EQ(Written(Resource(before), set("\u041F!")), with("\x06\x02\xCF!"));
    EXPECT_EQ(Written(Resource(before), set("\u00FC")), with(Bytes("14 02 00 00 00 C3 BC")));
    const std::string longText(256, 'x');
    const std::string form = Written("TPF0" + before, set(longText));
    EXPECT_EQ(form,
              "TPF0" + Bytes("'TForm1' 'Form1' 'Hint' 0C 00 01 00 00") + longText + std::string(2, '\0'));
}

TEST(FormBinary, DamageIsNamedWithItsOffset) {
    std::string converted = Resource(Bytes("'TForm1' 'Form1' 'B' 0A 01 02 00 00"));
    converted[12] = 60;
    converted += std::string(513, '\x0A');
    const std::pair<std::string, std::string> cases[] = {
        {std::string("\xFF\x0A\0TFORM1", 9), "3: the resource header has no end"},
        {std::string("\xFF\x0A\0A\0\x30\x10\x50\0\0\0TPF0", 15),
         "11: the file is shorter than its header says"},
        {std::string("\xFF\x0A\0A\0\x30\x10\x04\0\0\0TPF1", 15), "11: 'TPF0' expected"},
        {std::string("\xFF\x0A\0A\0\x30", 6), "5: the file ends too early"},
        {"TPF0", "4: the file ends too early"},
        {"TPF0" + Bytes("'TForm1' 'Form1' 'X' 1F"), "19: unknown value type 31"},
        {"TPF0" + Bytes("'TForm1' 'Form1' 'X' 0C FF FF FF FF 00 00"), "24: the file ends too early"},
        {"TPF0" + Bytes("'TForm1' 'Form1' 'X' 12 FF FF FF FF 00 00"), "24: the file ends too early"},
        {"TPF0" + Bytes("'TForm1' 'Form1' 'X Y' 09 00 00"), "21: property name expected"},
        {"TPF0" + Bytes("'' ''"), "5: class name expected"},
        {"TPF0" + Bytes("'TForm1' 'Form1' 'X' 0E 07 00 00"), "20: collection item expected"},
        {"TPF0" + Bytes("'TForm1' 'Form1' 'X'") + std::string(100000, '\x01'),
         "220: values are nested too deeply"},
        {converted,
         "553: the file ends too early (line endings of this binary file seem to have been converted)"},
    };
    for (const auto& [form, message] : cases)
        EXPECT_EQ(Written(form), "Main.dfm: offset " + message);
}
