// What was read is written as it was; anything else in the IDE's own layout, indented and ended like its
// neighbours.
#include "platform/Error.h"
#include "platform/Text.h"
#include "vcl/FormLiteral.h"
#include "vcl/FormText.h"

namespace glotta {

namespace {

constexpr std::size_t DigitsPerRow = 64;

bool EveryString(const FormValue& value, const std::function<bool(const std::string&)>& holds) {
    if (value.kind == FormValueKind::String && !holds(value.text)) return false;
    for (const FormValue& item : value.items)
        if (!EveryString(item, holds)) return false;
    for (const FormItem& item : value.collection)
        for (const FormProperty& property : item.properties)
            if (!EveryString(property.value, holds)) return false;
    return true;
}

bool EveryProperty(const FormNode& node, const std::function<bool(const FormProperty&)>& holds) {
    return std::all_of(node.properties.begin(), node.properties.end(), holds) &&
           std::all_of(node.children.begin(), node.children.end(),
                       [&](const auto& child) { return EveryProperty(*child, holds); });
}

// The blanks before the first word of a piece.
std::string IndentOf(std::string_view raw) {
    const std::size_t word = raw.find_first_not_of(" \t\r\n");
    if (word == std::string_view::npos) return {};
    const std::size_t line = raw.find_last_of("\r\n", word);
    const std::size_t start = line == std::string_view::npos ? 0 : line + 1;
    return std::string(raw.substr(start, word - start));
}

std::string_view Keyword(FormNodeKind kind) {
    switch (kind) {
    case FormNodeKind::Inherited:
        return "inherited";
    case FormNodeKind::Inline:
        return "inline";
    default:
        return "object";
    }
}

class TextWriter {
public:
    TextWriter(const FormNode& root, FormShape shape) : root_(root), shape_(std::move(shape)) {}

    std::string Write() {
        DecideUnits();
        out_ = shape_.before;
        Node(root_, {});
        out_ += shape_.after;
        if (turned_ && !HasCodes(out_, 256, MaxCode))
            throw Error(shape_.fileName + ": the form's code page cannot express a new text");
        return std::move(out_);
    }

private:
    // A text beyond the code page needs UTF-16 units. A form holds one kind of codes only, so the other texts
    // that are written with codes are then written anew with it.
    void DecideUnits() {
        if (shape_.units) return;
        const Encoding codePage{EncodingKind::CodePage, shape_.codePage, false};
        turned_ = !EveryProperty(root_, [&](const FormProperty& property) {
            return !property.raw.empty() || EveryString(property.value, [&](const std::string& text) {
                return IsAscii(text) || CanEncode(text, codePage);
            });
        });
        shape_.units = turned_;
    }

    bool IsAnew(const FormProperty& property) const {
        return property.raw.empty() || (turned_ && HasCodes(property.raw, 128, 255));
    }

    void Node(const FormNode& node, std::string indent) {
        if (node.rawHead.empty())
            Head(node, indent);
        else
            indent = IndentOf(node.rawHead);
        out_ += node.rawHead;
        const std::string inner = InnerIndent(node, indent);
        for (const FormProperty& property : node.properties) {
            if (IsAnew(property))
                Property(property, property.raw.empty() ? inner : IndentOf(property.raw), false);
            else
                out_ += property.raw;
        }
        for (const auto& child : node.children)
            Node(*child, inner);
        if (node.rawTail.empty())
            Line(indent + "end");
        else
            out_ += node.rawTail;
    }

    static std::string InnerIndent(const FormNode& node, const std::string& indent) {
        for (const FormProperty& property : node.properties)
            if (!property.raw.empty()) return IndentOf(property.raw);
        for (const auto& child : node.children)
            if (!child->rawHead.empty()) return IndentOf(child->rawHead);
        return indent + "  ";
    }

    void Head(const FormNode& node, const std::string& indent) {
        std::string line = indent;
        line += Keyword(node.kind);
        line += ' ';
        if (!node.name.empty()) line += node.name + ": ";
        line += node.className;
        if (node.index) line += " [" + std::to_string(*node.index) + ']';
        Line(line);
    }

    void Property(const FormProperty& property, const std::string& indent, bool nested) {
        if (!nested) StartLine();
        out_ += indent;
        out_ += property.name;
        out_ += " = ";
        Value(property.value, indent);
        out_ += eol_;
    }

    void Line(const std::string& text) {
        StartLine();
        out_ += text;
        out_ += eol_;
    }

    // Takes the line end of the line before.
    void StartLine() {
        if (out_.size() <= shape_.before.size()) {
            eol_ = shape_.lineEnd;
        } else if (out_.ends_with("\r\n")) {
            eol_ = "\r\n";
        } else if (out_.ends_with('\n') || out_.ends_with('\r')) {
            eol_ = out_.back();
        } else {
            eol_ = shape_.lineEnd;
            out_ += eol_;
        }
    }

    void Value(const FormValue& value, const std::string& indent) {
        switch (value.kind) {
        case FormValueKind::Nil:
            out_ += "nil";
            break;
        case FormValueKind::False:
            out_ += "False";
            break;
        case FormValueKind::True:
            out_ += "True";
            break;
        case FormValueKind::Integer:
            out_ += std::to_string(value.integer);
            break;
        case FormValueKind::String:
            AppendLiteral(out_, value.text, shape_, eol_ + indent + "  ");
            break;
        case FormValueKind::Set:
            Set(value);
            break;
        case FormValueKind::Binary:
            Binary(value.text, eol_ + indent + "  ");
            break;
        case FormValueKind::List:
            List(value, indent + "  ");
            break;
        case FormValueKind::Collection:
            Collection(value, indent + "  ");
            break;
        default:
            out_ += value.text;
        }
    }

    void Set(const FormValue& value) {
        out_ += '[';
        for (const FormValue& item : value.items) {
            if (&item != &value.items.front()) out_ += ", ";
            Value(item, {});
        }
        out_ += ']';
    }

    void List(const FormValue& value, const std::string& indent) {
        out_ += '(';
        for (const FormValue& item : value.items) {
            out_ += eol_;
            out_ += indent;
            Value(item, indent);
        }
        out_ += ')';
    }

    void Collection(const FormValue& value, const std::string& indent) {
        out_ += '<';
        for (const FormItem& item : value.collection) {
            out_ += eol_;
            out_ += indent;
            out_ += "item";
            if (item.index) out_ += " [" + std::to_string(*item.index) + ']';
            out_ += eol_;
            for (const FormProperty& property : item.properties)
                Property(property, indent + "  ", true);
            out_ += indent;
            out_ += "end";
        }
        out_ += '>';
    }

    void Binary(std::string_view written, const std::string& rowStart) {
        std::string digits;
        digits.reserve(written.size());
        std::copy_if(written.begin(), written.end(), std::back_inserter(digits),
                     [](char c) { return c > ' '; });
        out_ += '{';
        for (std::size_t row = 0; row < digits.size(); row += DigitsPerRow) {
            if (digits.size() >= DigitsPerRow) out_ += rowStart;
            out_.append(digits, row, DigitsPerRow);
        }
        out_ += '}';
    }

    const FormNode& root_;
    FormShape shape_;
    bool turned_ = false; // to UTF-16 units
    std::string out_;
    std::string eol_;
};

} // namespace

std::string WriteFormText(const FormNode& root, const FormShape& shape) {
    return TextWriter(root, shape).Write();
}

} // namespace glotta
