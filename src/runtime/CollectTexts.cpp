#include "runtime/CollectTexts.h"

#include "runtime/Exclusions.h"
#include "runtime/ExtendedTranslations.h"
#include "runtime/ViewItems.h"

#include <unordered_set>

namespace glotta {

namespace {

using Names = std::unordered_set<std::string_view, TextHash, TextEqual>;

// String properties that no user reads: names of other things, files, data bases, expressions.
const Names& NotUserText() {
    static const Names names = {"Name",
                                "FieldName",
                                "HelpKeyword",
                                "HelpFile",
                                "ImageName",
                                "Category",
                                "StyleName",
                                "ImeName",
                                "SVGText",
                                "DataField",
                                "KeyField",
                                "KeyFields",
                                "ListField",
                                "LookupField",
                                "LookupKeyFields",
                                "LookupResultField",
                                "MasterFields",
                                "DetailFields",
                                "IndexName",
                                "IndexFieldNames",
                                "IndexFieldName",
                                "TableName",
                                "DatabaseName",
                                "AliasName",
                                "DriverName",
                                "SessionName",
                                "ConnectionName",
                                "ConnectionString",
                                "Provider",
                                "ProviderName",
                                "CommandText",
                                "StoredProcName",
                                "LibraryName",
                                "VendorLib",
                                "GetDriverFunc",
                                "Origin",
                                "Expression",
                                "DefaultExpression",
                                "CustomConstraint",
                                "ImportedConstraint",
                                "AggregateName",
                                "FileName",
                                "InitialDir",
                                "DefaultExt",
                                "DefaultFolder",
                                "Directory",
                                "NetFileDir",
                                "PrivateDir",
                                "SubKey",
                                "Section",
                                "Key",
                                "Root",
                                "RegistryPath",
                                "RegPath",
                                "IniFileName",
                                "IniSection",
                                "AppStoragePath",
                                "StoredProps",
                                "StoredValues",
                                "Mask",
                                "Host",
                                "HostName",
                                "Address",
                                "UserName",
                                "Password",
                                "Service",
                                "URL",
                                "ClientGuid",
                                "GUID",
                                "ProgID",
                                "ServerGUID",
                                "ServerName",
                                "ValueChecked",
                                "ValueUnchecked",
                                "PropertyName",
                                "Language",
                                "About",
                                "Version",
                                "AboutJVCL",
                                "ComponentName",
                                "ClassName",
                                "Fields",
                                "DescFields",
                                "CaseInsFields",
                                "Source",
                                "SQL",
                                "InsertSQL",
                                "ModifySQL",
                                "DeleteSQL",
                                "RefreshSQL",
                                "SelectSQL",
                                "Params",
                                "Mappings",
                                "CustomColors",
                                "IndexFiles",
                                "SectionName",
                                "PasswordChar",
                                "IniFile",
                                "CaretChar",
                                "CRLF",
                                "TabStops",
                                "Extension",
                                "PropertyToValidate",
                                "PluginID",
                                "CheckChars",
                                "MasterField",
                                "DetailField",
                                "ItemField",
                                "LookupDisplay",
                                "CsvFieldDef",
                                "Database",
                                "TempTable",
                                "DefaultSection",
                                "PathToSource",
                                "FontName",
                                "PrioritySchedule"};
    return names;
}

const Names& LocaleNames() {
    static const Names names = {"Locale", "LocaleName", "LocaleID", "LCID"};
    return names;
}

std::string_view LastPart(std::string_view path) {
    return path.substr(path.rfind('.') + 1);
}

std::string_view WithoutLastPart(std::string_view path) {
    const std::size_t dot = path.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : path.substr(0, dot);
}

bool EndsWithText(std::string_view text, std::string_view end) {
    return text.size() >= end.size() && SameText(text.substr(text.size() - end.size()), end);
}

// 'Font.Name', 'TitleFont.Name', 'EditLabel.Font.Name'
bool IsFontName(std::string_view path) {
    return SameText(LastPart(path), "Name") && EndsWithText(WithoutLastPart(path), "Font");
}

std::string ScalarText(const FormValue& value) {
    return value.kind == FormValueKind::Integer ? std::to_string(value.integer) : value.text;
}

class Collector {
public:
    Collector(const TComponent& localization, Exclusions exclusions)
        : exclusions_(std::move(exclusions)), form_(localization.Tree().File()),
          viewItems_(localization.InheritsFrom("TGlottaTLV")) {
        for (const ExtendedTranslation& item : ReadExtendedTranslations(localization))
            extended_.insert(item.ID());
    }

    void Component(const TComponent& component, const std::string& prefix) {
        const bool localization =
            component.InheritsFrom("TgxCustomLang") || component.InheritsFrom("TGlottaDispatcher");
        if (component.Name().empty() || localization) return;
        if (exclusions_.ComponentExcluded(component.Name(), component.ClassName())) return;
        component_ = &component;
        dataSet_ = component.InheritsFrom("TDataSet");
        dialog_ = component.InheritsFrom("TCommonDialog") || EndsWithText(component.ClassName(), "Dialog");
        const std::string id = prefix + component.Name();
        for (const FormProperty& property : component.Node().properties)
            Property(property, id + '.', false);
    }

    std::vector<FormText> Take() { return std::move(texts_); }

private:
    void Property(const FormProperty& property, const std::string& prefix, bool inItem) {
        if (exclusions_.PropertyExcluded(component_->Name(), component_->ClassName(), property.name)) return;
        const std::string_view path = property.name;
        if (SameText(LastPart(path), "Charset"))
            return Add(stCharSets, prefix + property.name, ScalarText(property.value));
        if (IsFontName(path)) return Add(stFonts, prefix + property.name, property.value.text);
        if (LocaleNames().contains(LastPart(path)))
            return Add(stLocales, prefix + property.name, ScalarText(property.value));
        switch (property.value.kind) {
        case FormValueKind::String:
            if (IsUserText(LastPart(path)) || extended_.contains(component_->Name() + '.' + property.name))
                Add(inItem ? stCollections : KindOf(path, property.value.text), prefix + property.name,
                    property.value.text);
            break;
        case FormValueKind::List:
            Lines(property, prefix, inItem);
            break;
        case FormValueKind::Binary:
            ViewItems(property, prefix);
            break;
        case FormValueKind::Collection:
            Items(property, prefix);
            break;
        default:
            break;
        }
    }

    // A data set's filter is an expression, a dialog's is text.
    bool IsUserText(std::string_view name) const {
        return !NotUserText().contains(name) && !(dataSet_ && SameText(name, "Filter"));
    }

    void Lines(const FormProperty& property, const std::string& prefix, bool inItem) {
        if (!SameText(LastPart(property.name), "Strings") || !property.value.IsStringList()) return;
        const std::string_view path = WithoutLastPart(property.name);
        if (NotUserText().contains(LastPart(path))) return;
        Add(inItem ? stCollections : stMultiLines, prefix + std::string(path),
            JoinLines(property.value.Strings()));
    }

    void Items(const FormProperty& property, const std::string& prefix) {
        for (std::size_t i = 0; i < property.value.collection.size(); ++i) {
            const std::string itemPrefix = prefix + property.name + '[' + std::to_string(i) + "].";
            for (const FormProperty& inner : property.value.collection[i].properties)
                Property(inner, itemPrefix, true);
        }
    }

    // Only TGlottaTLV serves these.
    void ViewItems(const FormProperty& property, const std::string& prefix) {
        if (!viewItems_ || !SameText(property.name, "Items.Data")) return;
        const auto texts = component_->InheritsFrom("TCustomListView")   ? &ListViewItemTexts
                           : component_->InheritsFrom("TCustomTreeView") ? &TreeViewItemTexts
                                                                         : nullptr;
        if (!texts) return;
        for (ViewItemText& item : texts(BinaryBytes(property.value, form_.IsBinary()), form_.CodePage()))
            Add(stListView_TreeView_Items, prefix + "Items" + item.place, std::move(item.text));
    }

    TStringsType KindOf(std::string_view path, std::string_view text) const {
        const std::string_view name = LastPart(path);
        if (dialog_) return stDlgsCaptions;
        if (SameText(name, "Caption")) return stCaptions;
        if (SameText(name, "Hint")) return stHints;
        if (SameText(name, "DisplayLabel")) return stDisplayLabels;
        return text.find_first_of("\r\n") == std::string_view::npos ? stOtherStrings : stMultiLines;
    }

    void Add(TStringsType kind, std::string id, std::string text) {
        const bool menuLine = text == "-";
        if (!text.empty() && !menuLine) texts_.push_back({kind, std::move(id), std::move(text)});
    }

    Exclusions exclusions_;
    std::unordered_set<std::string, TextHash, TextEqual> extended_; // what the developer adds to the user's texts
    const FormFile& form_;
    bool viewItems_;
    const TComponent* component_ = nullptr;
    bool dialog_ = false, dataSet_ = false;
    std::vector<FormText> texts_;
};

void CollectOwned(const TComponent& owner, const std::string& prefix, Collector& collector) {
    for (const TComponent* component : owner.Components()) {
        collector.Component(*component, prefix);
        if (!component->Components().empty())
            CollectOwned(*component, prefix + component->Name() + '.', collector);
    }
}

std::vector<FormText> Collect(const TComponent& localization, Exclusions exclusions) {
    Collector collector(localization, std::move(exclusions));
    const TComponent& root = localization.Tree().Root();
    collector.Component(root, {});
    CollectOwned(root, {}, collector);
    return collector.Take();
}

} // namespace

std::vector<FormText> CollectTexts(const TComponent& localization) {
    return Collect(localization, Exclusions(localization));
}

std::unordered_set<std::string, TextHash, TextEqual> ExcludedTexts(const TComponent& localization) {
    std::unordered_set<std::string, TextHash, TextEqual> ids;
    for (FormText& text : Collect(localization, {}))
        ids.insert(std::move(text.id));
    for (const FormText& text : CollectTexts(localization))
        ids.erase(text.id);
    return ids;
}

} // namespace glotta
