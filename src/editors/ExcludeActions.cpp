// The actions of the exclusion editor: captions, hints, when each is enabled, and what it does.
#include "editors/Excludededitor.h"

#include "platform/Text.h"

namespace glotta {

namespace {

constexpr std::string_view AllOfClassHint = "Adds all component with same type of selected",
                           AllWithPropertyHint = "Adds all components that have selected property",
                           AsSelectedTypeHint =
                               "Adds properties with type same as selected property to list";

// Adding such a property to the excluded ones leaves nothing for this list of the localization component.
struct EmptiedList {
    std::string_view property, list;
};
constexpr EmptiedList EmptiedLists[] = {{"CAPTION", "Captions"},
                                        {"HINT", "Hints"},
                                        {"DISPLAYLABEL", "DisplayLabels"},
                                        {"FONT", "Font"},
                                        {"CHARSET", "Charsets"}};

// The hint's first part stays equal to the caption.
void SetCaption(TAction& action, std::string caption, std::string_view hint) {
    action.hint = caption + "|" + std::string(hint);
    action.caption = std::move(caption);
}

} // namespace

void TfrmExcludeFromTranslation::DeclareComponentActions() {
    acAddComponent = {"Add Component",
                      {},
                      "Adds selcted component to list",
                      [this] {
                          Model.ExcludeSelected();
                          UpdateActions();
                      },
                      [this] {
                          const int node = Model.tvComponents.Current();
                          return node != TTree::None &&
                                 (!Model.tvComponents.IsMarked(node) || Model.SelectedData());
                      },
                      {}};
    acAddAllByComponent.execute = [this] { Model.ExcludeClass(); };
    acAddAllByComponent.enabled = [this] {
        const TComponent* const component = Model.SelectedComponent();
        return component && !Model.lbExclComponents.Contains("!" + component->ClassName());
    };
    acAddCompChilds = {"All Child Nodes",
                       {},
                       "Add all child controls of selected components",
                       [this] { Model.ExcludeChildren(); },
                       [this] {
                           const int node = Model.tvComponents.Current();
                           return node != TTree::None && !Model.tvComponents.Children(node).empty();
                       },
                       {}};
    acAddAllWithProperty.execute = [this] {
        Model.ExcludeAllWithProperty(Model.SelectedPropertyOrCollection());
    };
    acAddAllWithProperty.enabled = [this] { return Model.SelectedData() != nullptr; };
}

bool TfrmExcludeFromTranslation::HasPlainProperty() const {
    const TPropertyData* const data = Model.SelectedData();
    return data && data->Description != TPropertyDescription::pdCollectionItem;
}

void TfrmExcludeFromTranslation::DeclarePropertyActions() {
    const auto offComponents = [this] { return !OnComponentsPage(); };
    acAddProperty = {"Add Property",
                     {},
                     "Adds selected property to list",
                     [this] { AddProperty(); },
                     [this] {
                         return Model.SelectedData() && Model.SelectedComponent() && !OnComponentsPage() &&
                                Model.CanAddProperty(Model.SelectedProperty(),
                                                     Model.tvComponents[Model.tvComponents.Current()].text);
                     },
                     {}};
    acAddPropertyByType = {"Add by Type...",
                           {},
                           "Adds property of specified type to list",
                           [this] {
                               AddByText(TAddbyProperty::apByTypeName, "Exclude properties by type name",
                                         "Type the full or partial property type name to exclude:");
                           },
                           offComponents,
                           {}};
    acAddPropertyAsSelectedType.execute = [this] {
        if (Confirm("This will iterate through all components and add properties with type equal as "
                    "selected and might take some time! Continue?"))
            AddMatching(TAddbyProperty::apByType, *Model.SelectedData(), {});
    };
    acAddPropertyAsSelectedType.enabled = [this] { return !OnComponentsPage() && HasPlainProperty(); };
    acAddPropertyByName = {"Add by Name...",
                           {},
                           "Adds properties with specified name to list",
                           [this] {
                               AddByText(TAddbyProperty::apByName, "Exclude properties by name",
                                         "Type the full or partial property name to exclude:");
                           },
                           {},
                           {}};
    acAddCustom = {"Custom...",
                   {},
                   "Adds custom property to exclude",
                   [this] { AddCustom(); },
                   [this] { return Model.page == PropertiesPage; },
                   {}};
    acAddPropOfCompType.execute = [this] { Model.ExcludePropertyOfClass(); };
    acAddPropOfCompType.enabled = [this] { return Model.page == CompPropertiesPage && HasPlainProperty(); };
}

void TfrmExcludeFromTranslation::UpdateActions() {
    const TComponent* const component = Model.SelectedComponent();
    const std::string className = component ? component->ClassName() : "<>";
    const TPropertyData* const data = Model.SelectedData();
    SetCaption(acAddAllByComponent, "All " + className + " Components", AllOfClassHint);
    SetCaption(acAddAllWithProperty, "All having <" + Model.SelectedPropertyOrCollection() + ">",
               AllWithPropertyHint);
    SetCaption(acAddPropertyAsSelectedType,
               "Add all <" + (data ? data->PropType : std::string()) + "> properties", AsSelectedTypeHint);
    acAddPropOfCompType.caption = acAddPropOfCompType.hint =
        "Add all " + className + "." + (data ? Model.SelectedProperty() : "<>") + " properties";
    if (OnView) OnView();
}

// --- what the property actions do ---

bool TfrmExcludeFromTranslation::ConfirmLosingTexts(const std::string& property) {
    for (const EmptiedList& emptied : EmptiedLists)
        if (SameText(property, emptied.property))
            return Confirm("Adding this property name will empty the TGlotta's \"" + std::string(emptied.list) +
                           "\" list! Continue?");
    return true;
}

void TfrmExcludeFromTranslation::AddProperty() {
    if (Model.page == PropertiesPage && !ConfirmLosingTexts(Model.SelectedProperty())) return;
    if (acAddProperty.Enabled()) Model.AddPropertyToList(TAddbyProperty::apSelected, {}, {});
    UpdateActions();
}

// Painting waits for the end of the run.
int TfrmExcludeFromTranslation::AddMatching(TAddbyProperty addBy, const TPropertyData& data,
                                            const std::string& text) {
    struct Freeze {
        explicit Freeze(TField<bool>& field) : frozen(field) { frozen.Set(true); }
        ~Freeze() { frozen.Set(false); }
        TField<bool>& frozen;
    } const freeze(Frozen);
    const int added = Model.AddPropertyToList(addBy, data, text);
    UpdateActions();
    return added;
}

void TfrmExcludeFromTranslation::AddByText(TAddbyProperty addBy, const char* title, const char* prompt) {
    const auto text = ui_.InputBox(title, prompt, {});
    if (!text || text->empty()) return;
    if (!Confirm("This will iterate through all components and add properties that apply to specified "
                 "criterion and might take some time! Continue?"))
        return;
    if (AddMatching(addBy, {}, UpperCase(*text)) > 0 || addBy != TAddbyProperty::apByName ||
        Model.page != PropertiesPage)
        return;
    if (Confirm("No property found by this name! Would you like to add \"" + *text + "\" to the list?",
                MsgType::Confirmation))
        Model.AddPropertyName(*text);
}

void TfrmExcludeFromTranslation::AddCustom() {
    const auto name = ui_.InputBox("Add property name", "Type the full property name to exclude:", {});
    if (name && !name->empty() && !Model.lbExclProperties.Contains(*name)) Model.AddPropertyName(*name);
}

} // namespace glotta
