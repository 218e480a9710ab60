#include "platform/Encoding.h"
#include "platform/Error.h"
#include "platform/Text.h"
#include "vcl/FormBinary.h"

#include <cmath>
#include <cstdlib>
#include <cstring>

namespace glotta {

namespace {

class BinaryWriter {
public:
    explicit BinaryWriter(const FormShape& shape) : shape_(shape) {}

    std::string Write(const FormNode& root) {
        out_ = shape_.before;
        const std::size_t start = out_.size();
        Node(root);
        AdjustSize(out_.size() - start);
        out_ += shape_.after;
        return std::move(out_);
    }

private:
    // The size stands before the signature when there is a resource header.
    void AdjustSize(std::size_t objectSize) {
        if (objectSize == shape_.objectSize || shape_.before.size() == BinarySignature.size()) return;
        const std::size_t place = shape_.before.size() - BinarySignature.size() - 4;
        std::uint32_t size = 0;
        std::memcpy(&size, out_.data() + place, 4);
        size += static_cast<std::uint32_t>(objectSize - shape_.objectSize);
        std::memcpy(out_.data() + place, &size, 4);
    }

    void Node(const FormNode& node) {
        if (node.rawHead.empty())
            Head(node);
        else
            out_ += node.rawHead;
        for (const FormProperty& property : node.properties) {
            if (property.raw.empty())
                Property(property);
            else
                out_ += property.raw;
        }
        Byte(0);
        for (const auto& child : node.children)
            Node(*child);
        Byte(0);
    }

    void Head(const FormNode& node) {
        unsigned char flags = node.kind == FormNodeKind::Inherited ? BinaryInherited
                              : node.kind == FormNodeKind::Inline  ? BinaryInline
                                                                   : 0;
        if (node.index) flags |= BinaryChildPos;
        if (flags) Byte(BinaryPrefix | flags);
        if (node.index) Integer(*node.index);
        ShortText(node.className);
        ShortText(node.name);
    }

    void Property(const FormProperty& property) {
        ShortText(property.name);
        Value(property.value);
    }

    void Value(const FormValue& value) {
        switch (value.kind) {
        case FormValueKind::Nil:
            Type(BinaryValue::Nil);
            break;
        case FormValueKind::False:
            Type(BinaryValue::False);
            break;
        case FormValueKind::True:
            Type(BinaryValue::True);
            break;
        case FormValueKind::Integer:
            Integer(value.integer);
            break;
        case FormValueKind::String:
            String(value.text);
            break;
        case FormValueKind::Identifier:
            Identifier(value.text);
            break;
        case FormValueKind::Float:
        case FormValueKind::Currency:
        case FormValueKind::Date:
            Float(value);
            break;
        case FormValueKind::Binary:
            Type(BinaryValue::Binary);
            Long(value.text);
            break;
        case FormValueKind::Set:
            Type(BinaryValue::Set);
            for (const FormValue& item : value.items)
                ShortText(item.text);
            Byte(0);
            break;
        case FormValueKind::List:
            Type(BinaryValue::List);
            for (const FormValue& item : value.items)
                Value(item);
            Byte(0);
            break;
        case FormValueKind::Collection:
            Type(BinaryValue::Collection);
            for (const FormItem& item : value.collection)
                Item(item);
            Byte(0);
        }
    }

    void Item(const FormItem& item) {
        if (item.index) Integer(*item.index);
        Type(BinaryValue::List);
        for (const FormProperty& property : item.properties)
            Property(property);
        Byte(0);
    }

    void Identifier(const std::string& name) {
        if (name == "Null") return Type(BinaryValue::Null);
        Type(BinaryValue::Ident);
        ShortText(name);
    }

    // The smallest type that holds the number, as the IDE does.
    void Integer(std::int64_t value) {
        if (value == static_cast<std::int8_t>(value))
            Number(BinaryValue::Int8, static_cast<std::int8_t>(value));
        else if (value == static_cast<std::int16_t>(value))
            Number(BinaryValue::Int16, static_cast<std::int16_t>(value));
        else if (value == static_cast<std::int32_t>(value))
            Number(BinaryValue::Int32, static_cast<std::int32_t>(value));
        else
            Number(BinaryValue::Int64, value);
    }

    void String(const std::string& text) {
        const EncodeResult encoded = Encode(text, {EncodingKind::CodePage, shape_.codePage, false});
        if (encoded.unencodable) {
            Type(BinaryValue::Utf8String);
            Long(text);
        } else if (encoded.bytes.size() <= 255) {
            Type(BinaryValue::String);
            Byte(static_cast<unsigned char>(encoded.bytes.size()));
            out_ += encoded.bytes;
        } else {
            Type(BinaryValue::LString);
            Long(encoded.bytes);
        }
    }

    void Float(const FormValue& value) {
        const long double number = std::strtold(value.text.c_str(), nullptr);
        switch (static_cast<BinaryValue>(value.integer)) {
        case BinaryValue::Single:
            Number(BinaryValue::Single, static_cast<float>(number));
            break;
        case BinaryValue::Double:
            Number(BinaryValue::Double, static_cast<double>(number));
            break;
        case BinaryValue::Date:
            Number(BinaryValue::Date, static_cast<double>(number));
            break;
        case BinaryValue::Currency:
            Number(BinaryValue::Currency, static_cast<std::int64_t>(std::roundl(number * 10000)));
            break;
        default:
            Extended(number);
        }
    }

    void Extended(long double number) {
        int exponent = 0;
        std::uint64_t mantissa = std::uint64_t{1} << 63;
        if (std::isfinite(number))
            mantissa = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(number), &exponent), 64));
        else
            exponent = 0x7FFF - 16382;
        exponent += 16382;
        if (exponent <= 0) { // too small for a leading 1
            mantissa >>= std::min(1 - exponent, 63);
            exponent = 0;
        }
        const int sign = std::signbit(number) ? 0x8000 : 0;
        Number(BinaryValue::Extended, mantissa);
        Raw(static_cast<std::uint16_t>(mantissa == 0 ? sign : sign | exponent));
    }

    void Byte(unsigned char byte) { out_ += static_cast<char>(byte); }
    void Type(BinaryValue type) { Byte(static_cast<unsigned char>(type)); }
    template <class T> void Raw(T number) {
        out_.append(reinterpret_cast<const char*>(&number), sizeof number);
    }
    template <class T> void Number(BinaryValue type, T number) {
        Type(type);
        Raw(number);
    }
    void Long(std::string_view bytes) {
        Raw(static_cast<std::uint32_t>(bytes.size()));
        out_ += bytes;
    }
    void ShortText(const std::string& text) {
        const EncodeResult encoded = Encode(text, {EncodingKind::CodePage, shape_.codePage, false});
        if (encoded.unencodable || encoded.bytes.size() > 255)
            throw Error(shape_.fileName + ": a binary form cannot hold the name \"" + text + "\"");
        Byte(static_cast<unsigned char>(encoded.bytes.size()));
        out_ += encoded.bytes;
    }

    const FormShape& shape_;
    std::string out_;
};

} // namespace

std::string WriteFormBinary(const FormNode& root, const FormShape& shape) {
    return BinaryWriter(shape).Write(root);
}

} // namespace glotta
