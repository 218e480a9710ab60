// A binary form shown as text.
#include "vcl/FormFile.h"
#include "vcl/FormText.h"

namespace glotta {

namespace {

std::string Hex(std::string_view bytes) {
    static constexpr char Digits[] = "0123456789ABCDEF";
    std::string hex;
    for (unsigned char byte : bytes) {
        hex += Digits[byte >> 4];
        hex += Digits[byte & 15];
    }
    return hex;
}

void Prepare(FormValue& value);

void Prepare(std::vector<FormProperty>& properties) {
    for (FormProperty& property : properties) {
        property.raw.clear();
        Prepare(property.value);
    }
}

void Prepare(FormValue& value) {
    if (value.kind == FormValueKind::Binary)
        value.text = Hex(value.text);
    for (FormValue& item : value.items)
        Prepare(item);
    for (FormItem& item : value.collection)
        Prepare(item.properties);
}

// Iterates rather than recurs: the depth is the file's.
void Prepare(FormNode& root) {
    std::vector<FormNode*> open = {&root};
    while (!open.empty()) {
        FormNode& node = *open.back();
        open.pop_back();
        node.rawHead.clear();
        node.rawTail.clear();
        Prepare(node.properties);
        for (const auto& child : node.children)
            open.push_back(child.get());
    }
}

} // namespace

std::string FormFile::AsText() && {
    if (shape_.binary) {
        Prepare(*root_);
        FormShape shape;
        shape.fileName = shape_.fileName;
        shape.codePage = shape_.codePage;
        shape_ = shape;
    }
    return WriteFormText(*root_, shape_);
}

} // namespace glotta
