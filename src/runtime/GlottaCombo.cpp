#include "runtime/GlottaCombo.h"

#include "platform/Text.h"
#include "runtime/Languages.h"
#include "runtime/ViewItems.h"

#include <algorithm>

namespace glotta {

namespace {

constexpr std::size_t SizeBytes = 4; // a bitmap's bytes follow their number

const FormProperty* Find(const FormItem& item, std::string_view name) {
    const auto found =
        std::find_if(item.properties.begin(), item.properties.end(),
                     [&](const FormProperty& property) { return SameText(property.name, name); });
    return found == item.properties.end() ? nullptr : &*found;
}

std::string Text(const FormItem& item, std::string_view name) {
    const FormProperty* const property = Find(item, name);
    return property ? property->value.text : std::string();
}

int Charset(const FormItem& item) {
    const FormProperty* const property = Find(item, "FontCharset");
    if (!property) return DefaultCharset;
    if (property->value.kind == FormValueKind::Integer) return int(property->value.integer & 0xFF);
    return IdentToCharset(property->value.text).value_or(DefaultCharset);
}

std::string SizeOf(std::string_view bytes) {
    std::string size;
    for (std::size_t i = 0; i < SizeBytes; ++i)
        size += char((bytes.size() >> (8 * i)) & 0xFF);
    return size;
}

std::string Image(const FormItem& item, bool binaryForm) {
    const FormProperty* const property = Find(item, "Image.Data");
    if (!property || property->value.kind != FormValueKind::Binary) return {};
    const std::string bytes = BinaryBytes(property->value, binaryForm);
    if (bytes.size() <= SizeBytes) return {};
    const std::string_view image = std::string_view(bytes).substr(SizeBytes);
    return bytes.starts_with(SizeOf(image)) ? std::string(image) : bytes;
}

TLanguageInfo InfoOf(const FormItem& item, bool binaryForm) {
    return {Text(item, "LanguageName"), Text(item, "FontName"), Charset(item), Image(item, binaryForm)};
}

// A property with its default is not written.
void Put(FormItem& item, std::string_view name, bool isDefault, FormValue value) {
    const auto found =
        std::find_if(item.properties.begin(), item.properties.end(),
                     [&](const FormProperty& property) { return SameText(property.name, name); });
    if (found == item.properties.end()) {
        if (!isDefault) item.properties.push_back({std::string(name), std::move(value), {}});
    } else if (isDefault) {
        item.properties.erase(found);
    } else {
        found->value = std::move(value);
        found->raw.clear();
    }
}

FormValue CharsetValue(int charset) {
    const auto ident = CharsetToIdent(charset);
    return ident ? FormValue::Identifier(*ident) : FormValue::Integer(charset);
}

FormValue ImageValue(const std::string& image, bool binaryForm) {
    FormValue value;
    value.kind = FormValueKind::Binary;
    const std::string bytes = SizeOf(image) + image;
    if (binaryForm) {
        value.text = bytes;
        return value;
    }
    value.text.reserve(2 * bytes.size());
    for (const unsigned char byte : bytes)
        for (const int digit : {byte >> 4, byte & 15})
            value.text += "0123456789ABCDEF"[digit];
    return value;
}

void Update(FormItem& item, const TLanguageInfo& info, bool binaryForm) {
    const TLanguageInfo before = InfoOf(item, binaryForm);
    if (info.languageName != before.languageName)
        Put(item, "LanguageName", info.languageName.empty(), FormValue::String(info.languageName));
    if (info.fontName != before.fontName)
        Put(item, "FontName", info.fontName.empty(), FormValue::String(info.fontName));
    if (info.fontCharset != before.fontCharset)
        Put(item, "FontCharset", info.fontCharset == DefaultCharset, CharsetValue(info.fontCharset));
    if (info.image != before.image)
        Put(item, "Image.Data", info.image.empty(), ImageValue(info.image, binaryForm));
}

} // namespace

std::string TGlottaCombo::SourceName(std::string_view property) const {
    const FormProperty* const found = Node().Find(property);
    return found && found->value.kind == FormValueKind::Identifier ? found->value.text : std::string();
}

bool TGlottaCombo::HasSource() const {
    return !SourceName().empty();
}

std::string TGlottaCombo::SourceName() const {
    std::string name = SourceName("Glotta");
    return name.empty() ? SourceName("GlottaDispatcher") : name;
}

std::vector<std::string> TGlottaCombo::LanguageNames(const TComponent& form, std::string_view name) {
    const TComponent* const source = form.FindComponent(name);
    if (!source) return {};
    Languages languages = Languages::Read(*source);
    languages.names.resize(std::size_t(languages.count));
    return languages.names;
}

std::vector<TLanguageInfo> TGlottaCombo::LanguageInfos() const {
    std::vector<TLanguageInfo> infos;
    if (const FormProperty* const property = Node().Find("LanguageInfos"))
        for (const FormItem& item : property->value.collection)
            infos.push_back(InfoOf(item, Tree().File().IsBinary()));
    return infos;
}

void TGlottaCombo::SetLanguageInfos(const std::vector<TLanguageInfo>& infos) {
    FormValue value;
    value.kind = FormValueKind::Collection;
    if (const FormProperty* const property = Node().Find("LanguageInfos"))
        value.collection = property->value.collection;
    value.collection.resize(infos.size());
    for (std::size_t i = 0; i < infos.size(); ++i)
        Update(value.collection[i], infos[i], Tree().File().IsBinary());
    Node().Set("LanguageInfos", std::move(value));
}

} // namespace glotta
