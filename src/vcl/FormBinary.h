// Binary forms ('TPF0', usually inside a resource header FF 0A 00 ...).
#pragma once
#include "vcl/FormFile.h"

namespace glotta {

// The value types of the binary format.
enum class BinaryValue : unsigned char {
    Null,
    List,
    Int8,
    Int16,
    Int32,
    Extended,
    String,
    Ident,
    False,
    True,
    Binary,
    Set,
    LString,
    Nil,
    Collection,
    Single,
    Currency,
    Date,
    WString,
    Int64,
    Utf8String,
    Double
};
inline constexpr std::string_view BinarySignature = "TPF0";
inline constexpr unsigned char BinaryPrefix =
    0xF0; // the high half of a byte before the class name; flags in the low
inline constexpr unsigned char BinaryInherited = 1, BinaryChildPos = 2, BinaryInline = 4;

bool IsBinaryForm(std::string_view bytes);
std::unique_ptr<FormNode> ReadFormBinary(std::string_view bytes, FormShape& shape);
FormHead ReadFormBinaryHead(std::string_view bytes, const FormShape& shape);
std::string WriteFormBinary(const FormNode& root, const FormShape& shape);

} // namespace glotta
