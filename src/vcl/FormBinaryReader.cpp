#include "platform/Encoding.h"
#include "platform/Error.h"
#include "platform/Text.h"
#include "vcl/FormBinary.h"
#include "vcl/FormText.h"

#include <cmath>
#include <cstdio>
#include <cstring>

namespace glotta {

namespace {

constexpr std::string_view ResourceStart = "\xFF\x0A";

std::string Printed(const char* format, long double value) {
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

// An 80-bit extended number from its bytes, on any machine.
long double ExtendedOf(std::string_view bytes) {
    std::uint64_t mantissa = 0;
    std::uint16_t exponent = 0;
    std::memcpy(&mantissa, bytes.data(), 8);
    std::memcpy(&exponent, bytes.data() + 8, 2);
    const int power = std::max(exponent & 0x7FFF, 1) - 16383 - 63;
    const long double value = std::ldexp(static_cast<long double>(mantissa), power);
    return exponent & 0x8000 ? -value : value;
}

class BinaryReader {
public:
    BinaryReader(std::string_view bytes, const FormShape& shape) : bytes_(bytes), shape_(shape) {}

    std::unique_ptr<FormNode> File(FormShape& shape) {
        const std::size_t end = Header();
        shape.before = bytes_.substr(0, pos_);
        const std::size_t start = pos_;
        pieceStart_ = pos_;
        std::unique_ptr<FormNode> root = Node(0);
        if (pos_ > end) Fail("the form is longer than its header says");
        shape.objectSize = pos_ - start;
        shape.after = bytes_.substr(pos_);
        return root;
    }

    // Moves behind the signature; the result is where the form ends at the latest.
    std::size_t Header() {
        std::size_t size = bytes_.size();
        if (bytes_.starts_with(ResourceStart)) {
            pos_ = 3;
            const std::size_t name = bytes_.find('\0', pos_);
            if (name == std::string_view::npos) Fail("the resource header has no end");
            pos_ = name + 1;
            Bytes(2); // flags
            size = Number<std::uint32_t>();
            if (size > bytes_.size() - pos_) Fail("the file is shorter than its header says" + Suspicion());
            size += pos_;
        }
        if (Bytes(4) != BinarySignature) {
            pos_ -= 4;
            Fail("'TPF0' expected");
        }
        return size;
    }

    FormHead Head() {
        FormHead head;
        const unsigned char prefix = Peek();
        if ((prefix & 0xF0) == BinaryPrefix) {
            ++pos_;
            if (prefix & BinaryInherited) head.kind = FormNodeKind::Inherited;
            if (prefix & BinaryInline) head.kind = FormNodeKind::Inline;
            if (prefix & BinaryChildPos) {
                FormValue index;
                Value(index, 0);
                if (index.kind != FormValueKind::Integer) Fail("bad child order");
                head.index = static_cast<int>(index.integer);
            }
        }
        head.className = ShortText();
        if (!IsName(head.className)) Fail("class name expected" + Suspicion());
        head.name = ShortText();
        return head;
    }

private:
    std::unique_ptr<FormNode> Node(int depth) {
        if (depth > MaxFormDepth) Fail("objects are nested too deeply");
        std::unique_ptr<FormNode> node = NodeOf(Head());
        node->rawHead = Piece();
        while (Peek() != 0) {
            FormProperty& property = node->properties.emplace_back();
            Property(property, depth);
            property.raw = Piece();
        }
        pieceStart_ = ++pos_;
        while (Peek() != 0)
            node->children.push_back(Node(depth + 1));
        pieceStart_ = ++pos_;
        return node;
    }

    void Property(FormProperty& property, int depth) {
        property.name = ShortText();
        if (!IsName(property.name)) Fail("property name expected" + Suspicion());
        Value(property.value, depth);
    }

    void Value(FormValue& value, int depth) {
        if (depth > MaxFormDepth) Fail("values are nested too deeply");
        const auto type = static_cast<BinaryValue>(Byte());
        switch (type) {
        case BinaryValue::Null:
            value = FormValue::Identifier("Null");
            break;
        case BinaryValue::Nil:
            value.kind = FormValueKind::Nil;
            break;
        case BinaryValue::False:
            value = FormValue::Bool(false);
            break;
        case BinaryValue::True:
            value = FormValue::Bool(true);
            break;
        case BinaryValue::Int8:
            value = FormValue::Integer(Number<std::int8_t>());
            break;
        case BinaryValue::Int16:
            value = FormValue::Integer(Number<std::int16_t>());
            break;
        case BinaryValue::Int32:
            value = FormValue::Integer(Number<std::int32_t>());
            break;
        case BinaryValue::Int64:
            value = FormValue::Integer(Number<std::int64_t>());
            break;
        case BinaryValue::Ident:
            value = FormValue::Identifier(ShortText());
            break;
        case BinaryValue::String:
            value = FormValue::String(Text(Bytes(Byte())));
            break;
        case BinaryValue::LString:
            value = FormValue::String(Text(Bytes(Number<std::uint32_t>())));
            break;
        case BinaryValue::Utf8String:
            value = FormValue::String(Utf8(Bytes(Number<std::uint32_t>())));
            break;
        case BinaryValue::WString:
            value = FormValue::String(Wide(Number<std::uint32_t>()));
            break;
        case BinaryValue::Binary:
            value.kind = FormValueKind::Binary;
            value.text = Bytes(Number<std::uint32_t>());
            break;
        case BinaryValue::Set:
            value.kind = FormValueKind::Set;
            for (std::string name = ShortText(); !name.empty(); name = ShortText())
                value.items.push_back(FormValue::Identifier(std::move(name)));
            break;
        case BinaryValue::List:
            value.kind = FormValueKind::List;
            for (; Peek() != 0; Value(value.items.emplace_back(), depth + 1)) {
            }
            ++pos_;
            break;
        case BinaryValue::Collection:
            Collection(value, depth);
            break;
        default:
            Float(type, value);
        }
    }

    void Float(BinaryValue type, FormValue& value) {
        value.kind = FormValueKind::Float;
        value.integer = static_cast<std::int64_t>(type);
        switch (type) {
        case BinaryValue::Extended:
            value.text = Printed("%.21Lg", ExtendedOf(Bytes(10)));
            break;
        case BinaryValue::Double:
            value.text = Printed("%.17Lg", Number<double>());
            break;
        case BinaryValue::Single:
            value.text = Printed("%.9Lg", Number<float>()) + 's';
            break;
        case BinaryValue::Currency:
            value.kind = FormValueKind::Currency;
            value.text = Printed("%.4Lf", static_cast<long double>(Number<std::int64_t>()) / 10000) + 'c';
            break;
        case BinaryValue::Date:
            value.kind = FormValueKind::Date;
            value.text = Printed("%.17Lg", Number<double>()) + 'd';
            break;
        default:
            --pos_;
            Fail("unknown value type " + std::to_string(static_cast<int>(type)) + Suspicion());
        }
    }

    void Collection(FormValue& value, int depth) {
        value.kind = FormValueKind::Collection;
        while (Peek() != 0) {
            FormItem& item = value.collection.emplace_back();
            const auto type = static_cast<BinaryValue>(Peek());
            if (type == BinaryValue::Int8 || type == BinaryValue::Int16 || type == BinaryValue::Int32) {
                FormValue index;
                Value(index, depth);
                item.index = index.integer;
            }
            if (static_cast<BinaryValue>(Byte()) != BinaryValue::List) {
                --pos_;
                Fail("collection item expected" + Suspicion());
            }
            while (Peek() != 0)
                Property(item.properties.emplace_back(), depth + 1);
            ++pos_;
        }
        ++pos_;
    }

    // Tokens

    std::string_view Bytes(std::size_t count) {
        if (count > bytes_.size() - pos_) Fail("the file ends too early" + Suspicion());
        pos_ += count;
        return bytes_.substr(pos_ - count, count);
    }
    unsigned char Byte() { return static_cast<unsigned char>(Bytes(1).front()); }
    unsigned char Peek() {
        const unsigned char byte = Byte();
        --pos_;
        return byte;
    }
    template <class T> T Number() {
        T number;
        std::memcpy(&number, Bytes(sizeof number).data(),
                    sizeof number); // little-endian, as all supported machines
        return number;
    }
    std::string ShortText() { return Text(Bytes(Byte())); }

    std::string Text(std::string_view bytes) const {
        if (IsAscii(bytes)) return std::string(bytes);
        return Decode(bytes, {EncodingKind::CodePage, shape_.codePage, false});
    }
    static std::string Utf8(std::string_view bytes) { return Decode(bytes, {EncodingKind::Utf8, 0, false}); }
    std::string Wide(std::size_t units) {
        if (units > bytes_.size() / 2) Fail("the file ends too early" + Suspicion());
        return Decode(Bytes(units * 2), {EncodingKind::Utf16LE, 0, false});
    }

    // Names in damaged files are the first to show it.
    static bool IsName(std::string_view name) {
        return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
            return static_cast<unsigned char>(c) > ' ' && c != 127;
        });
    }

    std::string Piece() {
        const std::size_t start = std::exchange(pieceStart_, pos_);
        return std::string(bytes_.substr(start, pos_ - start));
    }

    std::string Suspicion() const {
        constexpr std::size_t telling = 512; // a binary form of this size holds some byte 13
        const bool converted = bytes_.size() > telling && bytes_.find('\r') == std::string_view::npos;
        return converted ? " (line endings of this binary file seem to have been converted)" : "";
    }

    [[noreturn]] void Fail(const std::string& reason) const {
        throw Error(shape_.fileName + ": offset " + std::to_string(pos_) + ": " + reason);
    }

    std::string_view bytes_;
    const FormShape& shape_;
    std::size_t pos_ = 0;
    std::size_t pieceStart_ = 0;
};

} // namespace

bool IsBinaryForm(std::string_view bytes) {
    return bytes.starts_with(ResourceStart) || bytes.starts_with(BinarySignature);
}

std::unique_ptr<FormNode> ReadFormBinary(std::string_view bytes, FormShape& shape) {
    return BinaryReader(bytes, shape).File(shape);
}

FormHead ReadFormBinaryHead(std::string_view bytes, const FormShape& shape) {
    BinaryReader reader(bytes, shape);
    reader.Header();
    return reader.Head();
}

} // namespace glotta
