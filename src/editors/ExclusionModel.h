// What a person keeps out of a form's translation, while it is edited: the three lists, the components of the
// form, the candidate properties of the selected one, and every way of adding.
#pragma once
#include "editors/CandidateProperties.h"
#include "editors/ComponentNodes.h"
#include "editors/ExclusionList.h"
#include "platform/Ui.h"
#include "runtime/CustomLang.h"

#include <array>
#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace glotta {

enum class TAddbyProperty { apSelected, apByType, apByTypeName, apByName };
enum ExclusionPage : int { ComponentsPage, PropertiesPage, CompPropertiesPage };

class ExclusionModel {
public:
    // With the component's lists, its form's components, and the excluded ones marked.
    ExclusionModel(Ui& ui, TgxCustomLang& lang);
    ExclusionModel(const ExclusionModel&) = delete;
    ExclusionModel& operator=(const ExclusionModel&) = delete;

    ComponentNodes tvComponents;
    TTree tvProperties;
    ExclusionList lbExclComponents{"Components"}, lbExclProperties{"Properties"},
        lbExclCompProps{"Component's Properties"};
    ExclusionPage page = PropertiesPage; // the active one
    bool modified = false;
    std::chrono::milliseconds progressAfter{500}; // a longer run shows how far it is

    ExclusionList& List(ExclusionPage which);
    ExclusionList& ActiveList() { return List(page); }

    TComponent* SelectedComponent() const; // nil without
    // Nothing is selected: empty, nil.
    std::string SelectedProperty() const;
    const TPropertyData* SelectedData() const;
    // The name that the selected property node stands for: of an item that of its collection.
    std::string SelectedPropertyOrCollection() const;

    bool CanAddProperty(std::string_view propName, std::string_view compName) const;
    static bool CompHasProperty(const TComponent& component, std::string_view propName);
    void FillProperties(const TComponent& component, std::string_view compName);
    void SyncExcluded();

    // The number of items added to the active page's list.
    int AddPropertyToList(TAddbyProperty addBy, const TPropertyData& data, const std::string& text);
    void AddPropertyName(const std::string& name); // to the excluded properties, whatever page is active
    void ExcludeNode(int node);                    // of the component tree
    void ExcludeSelected() { ExcludeNode(tvComponents.Current()); }
    void ExcludeChildren();
    void ExcludeAllWithProperty(const std::string& name);
    void ExcludeClass();                     // of the selected component: "!" and its name
    void ExcludePropertyOfClass();           // the selected property
    void DeleteSelected(ExclusionPage which); // items of the list, and their marks
    void ClearList(ExclusionPage which);

    void WriteBack(); // the lists, as they stand, to the component

private:
    using Match = std::function<bool(const CandidateProperty&)>;
    std::string ItemOf(const std::string& component, const std::string& property) const;
    int AddSelected();
    int AddMatching(const Match& match);
    void RefillProperties();
    std::vector<CandidateProperty> CandidatesOf(int node) const;
    Ui& ui_;
    TgxCustomLang& lang_;
    std::vector<TPropertyData> data_; // by node of tvProperties
};

} // namespace glotta
