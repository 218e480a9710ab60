#include "runtime/CustomLang.h"

#include "runtime/CollectTexts.h"
#include "runtime/GlottaCombo.h"

namespace glotta {

void TgxCustomLang::Loaded() {
    languages_ = Languages::Read(*this);
    for (int kind = 0; kind < StringsTypeCount; ++kind)
        lists_[kind].Assign(GetStrings(StringsPropertyName(static_cast<TStringsType>(kind))));
    changed_.reset();
    index_.reset();
}

void TgxCustomLang::BeforeWrite() {
    for (int kind = 0; kind < StringsTypeCount; ++kind)
        if (changed_[static_cast<std::size_t>(kind)])
            TComponent::SetStrings(StringsPropertyName(static_cast<TStringsType>(kind)),
                                   lists_[kind].Items());
    changed_.reset();
}

void TgxCustomLang::SetNumberOfLanguages(int count) {
    languages_.SetCount(count);
    languages_.Write(*this);
    for (int kind = 0; kind < StringsTypeCount; ++kind) {
        std::vector<std::string> records = lists_[kind].Items();
        for (std::string& record : records)
            record = WithLanguages(record, languages_.count);
        if (records != lists_[kind].Items()) SetStrings(static_cast<TStringsType>(kind), std::move(records));
    }
}

void TgxCustomLang::SetLangNames(std::vector<std::string> names) {
    languages_.SetNames(std::move(names));
    languages_.Write(*this);
}

void TgxCustomLang::SetLanguage(const std::string& name) {
    languages_.SetActive(name);
    languages_.Write(*this);
}

void TgxCustomLang::SetStrings(TStringsType kind, std::vector<std::string> records) {
    lists_[kind].Assign(std::move(records));
    if (kind == stStrings) index_.reset();
    Changed(kind);
}

// Identifiers and texts of "Strings"

TgxCustomLang::Index& TgxCustomLang::StringsIndex() const {
    if (!index_) {
        index_.emplace();
        for (int i = 0; i < static_cast<int>(lists_[stStrings].Count()); ++i)
            AddToIndex(i);
    }
    return *index_;
}

void TgxCustomLang::AddToIndex(int record) const {
    index_->ids.emplace(GetIDByIndex(record), record);
    index_->texts.emplace(GetTextFromByIndex(record), record);
}

void TgxCustomLang::ForgetText(int record) const {
    const auto [first, last] = StringsIndex().texts.equal_range(GetTextFromByIndex(record));
    const auto found = std::find_if(first, last, [&](const auto& entry) { return entry.second == record; });
    if (found != last) index_->texts.erase(found);
}

void TgxCustomLang::AddString(std::string_view id, std::string_view text) {
    StringsIndex();
    const int present = GetIDIndex(id);
    if (present < 0) {
        AddToIndex(lists_[stStrings].Add(MakeRecord(id, text, NumberOfLanguages())));
    } else {
        if (GetTextFromByIndex(present) == text) return;
        ForgetText(present);
        const auto place = static_cast<std::size_t>(present);
        lists_[stStrings].Put(place, WithField(lists_[stStrings][place], 2, text));
        index_->texts.emplace(text, present);
    }
    Changed(stStrings);
}

bool TgxCustomLang::DeleteString(std::string_view id) {
    const int present = GetIDIndex(id);
    if (present < 0) return false;
    lists_[stStrings].Delete(static_cast<std::size_t>(present));
    index_.reset();
    Changed(stStrings);
    return true;
}

int TgxCustomLang::GetIDIndex(std::string_view id) const {
    const Index& index = StringsIndex();
    const auto found = index.ids.find(id);
    return found == index.ids.end() ? -1 : found->second;
}

std::string TgxCustomLang::GetStringID(std::string_view text) const {
    const auto [first, last] = StringsIndex().texts.equal_range(std::string(text));
    if (first == last) return {};
    const auto earliest =
        std::min_element(first, last, [](const auto& a, const auto& b) { return a.second < b.second; });
    return GetIDByIndex(earliest->second);
}

std::string TgxCustomLang::GetIDByIndex(int index) const {
    return RecordField(lists_[stStrings][static_cast<std::size_t>(index)], 1);
}

std::string TgxCustomLang::GetTextFromByIndex(int index, int language) const {
    return RecordField(lists_[stStrings][static_cast<std::size_t>(index)], language + 1);
}

std::string TgxCustomLang::TextIn(std::string_view id, int language) const {
    const int index = GetIDIndex(id);
    return index < 0 ? std::string() : GetTextFromByIndex(index, language);
}

std::string TgxCustomLang::GetText(std::string_view id) const {
    return TextIn(id, ActiveLanguage());
}

std::string TgxCustomLang::GetTextOrDefault(std::string_view id) const {
    std::string text = GetText(id);
    return text.empty() ? TextIn(id, 1) : text;
}

// Texts of the form

namespace {

// The records of one kind brought up to date: present ones keep their place, new ones follow.
std::vector<std::string> Merge(const std::vector<std::string>& old, const std::vector<const FormText*>& texts,
                               int languages, bool keepVanished) {
    std::unordered_map<std::string_view, const FormText*, TextHash, TextEqual> current;
    for (const FormText* text : texts)
        current.emplace(text->id, text);
    std::vector<std::string> records;
    for (const std::string& record : old) {
        const auto found = current.find(RecordField(record, 1));
        if (found == current.end()) {
            if (keepVanished) records.push_back(record);
            continue;
        }
        if (!found->second) continue; // a second record of the same identifier
        const std::string& text = found->second->text;
        records.push_back(RecordField(record, 2) == text ? record : WithField(record, 2, text));
        found->second = nullptr;
    }
    for (const FormText* text : texts)
        if (current[text->id] == text) records.push_back(MakeRecord(text->id, text->text, languages));
    return records;
}

} // namespace

void TgxCustomLang::UpdateTranslations() {
    CollectLists(IgnoreRemovals());
}

void TgxCustomLang::RefreshLists() {
    CollectLists(true);
}

void TgxCustomLang::CollectLists(bool keepVanished) {
    const std::vector<FormText> texts = CollectTexts(*this);
    std::array<std::vector<const FormText*>, StringsTypeCount> byKind;
    for (const FormText& text : texts)
        byKind[text.kind].push_back(&text);
    for (int kind = 0; kind < StringsTypeCount; ++kind) {
        if (kind == stStrings) continue;
        std::vector<std::string> records =
            Merge(lists_[kind].Items(), byKind[kind], NumberOfLanguages(), keepVanished);
        if (records != lists_[kind].Items()) SetStrings(static_cast<TStringsType>(kind), std::move(records));
    }
}

void TgxCustomLang::ClearTranslations() {
    for (int kind = 0; kind < StringsTypeCount; ++kind)
        if (!lists_[kind].Empty()) SetStrings(static_cast<TStringsType>(kind), {});
}

// TGlottaDispatcher

void TGlottaDispatcher::SetNumberOfLanguages(int count) {
    Languages languages = Languages::Read(*this);
    languages.SetCount(count);
    languages.Write(*this);
}

void TGlottaDispatcher::SetLangNames(const std::vector<std::string>& names) {
    Languages languages = Languages::Read(*this);
    languages.SetNames(names);
    languages.Write(*this);
}

void TGlottaDispatcher::SetLanguage(const std::string& name) {
    Languages languages = Languages::Read(*this);
    languages.SetActive(name);
    languages.Write(*this);
}

namespace {
template <class Component>
std::unique_ptr<TComponent> CreateComponent(ComponentTree& tree, FormNode& node, TComponent* owner) {
    return std::make_unique<Component>(tree, node, owner);
}
} // namespace

void RegisterGlottaClasses() {
    RegisterComponentClass("TGlotta", CreateComponent<TGlotta>);
    RegisterComponentClass("TGlottaRT", CreateComponent<TGlottaRT>);
    RegisterComponentClass("TGlottaRTSE", CreateComponent<TGlottaRTSE>);
    RegisterComponentClass("TGlottaLinked", CreateComponent<TGlottaLinked>);
    RegisterComponentClass("TGlottaTLV", CreateComponent<TGlottaTLV>);
    RegisterComponentClass("TGlottaDispatcher", CreateComponent<TGlottaDispatcher>);
    RegisterComponentClass("TGlottaCombo", CreateComponent<TGlottaCombo>);
}

} // namespace glotta
