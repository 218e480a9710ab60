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
    Nil, False, True, Integer, Float, Currency, Date, String, Identifier, Set, Binary, List, Collection
};

struct FormItem;

// A property value. Text is UTF-8; `text` holds the string, the identifier, or the float as written.
struct FormValue {
    FormValueKind kind = FormValueKind::Nil;
    std::int64_t integer = 0;
    std::string text;
    std::vector<FormValue> items;          // List: values; Set: identifiers
    std::vector<FormItem> collection;      // Collection

    static FormValue String(std::string text);
    static FormValue Identifier(std::string name);
    static FormValue Integer(std::int64_t value);
    static FormValue Bool(bool value);
    static FormValue StringListOf(const std::vector<std::string>& lines);

    bool IsStringList() const; // a list of strings only
    std::vector<std::string> Strings() const;
};

struct FormProperty {
    std::string name;    // as written; may be dotted: 'Font.Charset', 'Lines.Strings'
    FormValue value;     // Binary values are not decoded
    std::string raw;     // exactly as in the file, from the line's indentation to its end; empty when to be written anew
};

struct FormItem {
    std::vector<FormProperty> properties;
};

enum class FormNodeKind : std::uint8_t { Object, Inherited, Inline };

struct FormNode {
    FormNodeKind kind = FormNodeKind::Object;
    std::string name;               // may be empty
    std::string className;
    std::optional<int> index;       // child order of an inherited or inline object: [n]
    std::vector<FormProperty> properties;
    std::vector<std::unique_ptr<FormNode>> children;
    std::string rawHead, rawTail;   // header and end as written; empty when to be written anew

    // Ignores letter case.
    FormProperty* Find(std::string_view property);
    const FormProperty* Find(std::string_view property) const;
    // Adds or changes one property; a new one goes where the IDE would write it (see FormOrder.cpp).
    void Set(std::string_view property, FormValue value);
    bool Remove(std::string_view property);
    // The new child stands behind the present ones.
    FormNode& AddChild(std::string name, std::string className);
    void Rename(std::string name);
};

class FormFile {
public:
    // Reads either format. Throws Error "file: line N: reason" (text) or "file: offset N: reason" (binary).
    // 8-bit text in quotes and codes 128 to 255 are read in `codePage`; codes above are UTF-16.
    static FormFile Parse(std::string_view bytes, const std::string& fileName, unsigned codePage = 1252);

    // The file's bytes. Throws Error when a new text cannot be expressed.
    std::string Write() const;

    FormNode& Root() { return *root_; }
    const FormNode& Root() const { return *root_; }
    bool IsBinary() const { return binary_; }

private:
    std::unique_ptr<FormNode> root_;
    std::string before_, after_; // whatever stands around the root object
    std::string lineEnd_ = "\r\n";
    unsigned codePage_ = 1252;
    bool binary_ = false;
    bool utf8_ = false;
};

} // namespace glotta
