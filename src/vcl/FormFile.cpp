#include "vcl/FormFile.h"

#include "platform/Text.h"
#include "vcl/FormBinary.h"
#include "vcl/FormOrder.h"
#include "vcl/FormText.h"

namespace glotta {

namespace {
template <class Properties> auto FindIn(Properties& properties, std::string_view name) {
    return std::find_if(properties.begin(), properties.end(),
                        [&](const FormProperty& property) { return SameText(property.name, name); });
}
} // namespace

FormProperty* FormNode::Find(std::string_view property) {
    const auto found = FindIn(properties, property);
    return found == properties.end() ? nullptr : &*found;
}

const FormProperty* FormNode::Find(std::string_view property) const {
    const auto found = FindIn(properties, property);
    return found == properties.end() ? nullptr : &*found;
}

void FormNode::Set(std::string_view property, FormValue value) {
    if (FormProperty* present = Find(property)) {
        if (present->value == value) return;
        present->value = std::move(value);
        present->raw.clear();
        return;
    }
    const auto place = static_cast<std::ptrdiff_t>(NewPropertyIndex(*this, property));
    properties.insert(properties.begin() + place, {std::string(property), std::move(value), {}});
}

bool FormNode::Remove(std::string_view property) {
    const auto found = FindIn(properties, property);
    if (found == properties.end()) return false;
    properties.erase(found);
    return true;
}

FormNode& FormNode::AddChild(std::string childName, std::string childClass) {
    auto child = std::make_unique<FormNode>();
    child->name = std::move(childName);
    child->className = std::move(childClass);
    return *children.emplace_back(std::move(child));
}

void FormNode::Rename(std::string newName) {
    if (newName == name) return;
    name = std::move(newName);
    rawHead.clear();
}

std::unique_ptr<FormNode> NodeOf(FormHead head) {
    auto node = std::make_unique<FormNode>();
    node->kind = head.kind;
    node->name = std::move(head.name);
    node->className = std::move(head.className);
    node->index = head.index;
    return node;
}

FormFile FormFile::Parse(std::string_view bytes, const std::string& fileName, unsigned codePage) {
    FormFile file;
    file.shape_.fileName = fileName;
    file.shape_.codePage = codePage;
    file.shape_.binary = IsBinaryForm(bytes);
    file.root_ = file.shape_.binary ? ReadFormBinary(bytes, file.shape_) : ReadFormText(bytes, file.shape_);
    return file;
}

FormHead FormFile::PeekHead(std::string_view bytes, const std::string& fileName) {
    FormShape shape;
    shape.fileName = fileName;
    return IsBinaryForm(bytes) ? ReadFormBinaryHead(bytes, shape) : ReadFormTextHead(bytes, shape);
}

std::string FormFile::Write() const {
    return shape_.binary ? WriteFormBinary(*root_, shape_) : WriteFormText(*root_, shape_);
}

} // namespace glotta
