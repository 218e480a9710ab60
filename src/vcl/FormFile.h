// A form file (.dfm, .xfm), text or binary, as a tree that remembers how everything was written. What is not
// changed is written back byte for byte; a changed property changes its own lines only.
#pragma once
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

enum class FormValueKind : std::uint8_t {
    Nil,
    False,
    True,
    Integer,
    Float,
    Currency,
    Date,
    String,
    Identifier,
    Set,
    Binary,
    List,
    Collection
};

struct FormItem;

// A property value. Text is UTF-8; `text` holds the string, the identifier, the float as written (with its
// suffix s, c or d), or the binary data: its digits with their line breaks in a text form, its bytes in a
// binary one.
struct FormValue {
    FormValueKind kind = FormValueKind::Nil;
    std::int64_t integer = 0; // of a binary form's float: the value type it was stored as
    std::string text;
    std::vector<FormValue> items;     // List: values; Set: identifiers
    std::vector<FormItem> collection; // Collection

    static FormValue String(std::string text);
    static FormValue Identifier(std::string name);
    static FormValue Integer(std::int64_t value);
    static FormValue Bool(bool value);
    static FormValue StringListOf(const std::vector<std::string>& lines);

    bool IsStringList() const; // a list of strings only
    std::vector<std::string> Strings() const;
    bool operator==(const FormValue& other) const;
};

struct FormProperty {
    std::string name; // as written; may be dotted: 'Font.Charset', 'Lines.Strings'
    FormValue value;  // whoever changes it in place also clears `raw`
    std::string
        raw; // exactly as in the file, from the line's indentation to its end; empty when to be written anew
    bool operator==(const FormProperty& other) const { return name == other.name && value == other.value; }
};

struct FormItem {
    std::optional<std::int64_t> index; // item [n]
    std::vector<FormProperty> properties;
    bool operator==(const FormItem& other) const = default;
};

enum class FormNodeKind : std::uint8_t { Object, Inherited, Inline };

struct FormNode {
    FormNodeKind kind = FormNodeKind::Object;
    std::string name; // may be empty
    std::string className;
    std::optional<int> index; // child order of an inherited or inline object: [n]
    std::vector<FormProperty> properties;
    std::vector<std::unique_ptr<FormNode>> children;
    std::string rawHead, rawTail; // header and end as written; empty when to be written anew

    // Ignores letter case.
    FormProperty* Find(std::string_view property);
    const FormProperty* Find(std::string_view property) const;
    // Adds or changes one property (an equal value changes nothing); a new one goes where the IDE would write
    // it (see FormOrder.cpp).
    void Set(std::string_view property, FormValue value);
    bool Remove(std::string_view property);
    // The new child stands behind the present ones.
    FormNode& AddChild(std::string name, std::string className);
    void Rename(std::string name);
};

// What the first line of a form says.
struct FormHead {
    FormNodeKind kind = FormNodeKind::Object;
    std::string name, className;
    std::optional<int> index;
};

// How a form file is written around and between its nodes.
struct FormShape {
    std::string fileName;
    std::string before, after;    // whatever stands around the root object
    std::string lineEnd = "\r\n"; // text: the first line's
    unsigned codePage = 1252;
    bool binary = false;
    bool utf8 = false;
    bool units = false;         // text: #n codes are UTF-16 units (see FormLiteral.h)
    std::size_t objectSize = 0; // binary: bytes of the root object as read
};

class FormFile {
public:
    // Reads either format. Throws Error "file: line N: reason" (text) or "file: offset N: reason" (binary).
    // 8-bit text is read in `codePage`; for the meaning of #128 to #255 see FormLiteral.h.
    static FormFile Parse(std::string_view bytes, const std::string& fileName, unsigned codePage = 1252);
    // Reads the root's first line only; the rest of the file is not looked at.
    static FormHead PeekHead(std::string_view bytes, const std::string& fileName);

    // The file's bytes. Throws Error when a new text cannot be expressed.
    std::string Write() const;
    // A binary form as the text that an IDE shows for it; for reading only.
    std::string AsText() &&;

    FormNode& Root() { return *root_; }
    const FormNode& Root() const { return *root_; }
    bool IsBinary() const { return shape_.binary; }
    unsigned CodePage() const { return shape_.codePage; }

private:
    std::unique_ptr<FormNode> root_;
    FormShape shape_;
};

} // namespace glotta
