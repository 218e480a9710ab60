#include "editors/ExclusionModel.h"

#include <optional>

namespace glotta {

namespace {

// Tells how far a long run is, once it has taken a while.
class LateProgress {
public:
    LateProgress(Ui& ui, std::size_t count, std::chrono::milliseconds after)
        : ui_(ui), count_(count), next_(std::chrono::steady_clock::now() + after) {}
    // False when the person asked to stop.
    bool Step() {
        ++done_;
        const auto now = std::chrono::steady_clock::now();
        if (now < next_) return true;
        next_ = now + std::chrono::milliseconds(100);
        const std::string text = "Components: " + std::to_string(done_) + " of " + std::to_string(count_);
        if (progress_)
            progress_->Text(text);
        else
            progress_.emplace(ui_, text);
        return !ui_.Cancelled();
    }

private:
    Ui& ui_;
    std::size_t count_, done_ = 0;
    std::chrono::steady_clock::time_point next_;
    std::optional<Progress> progress_;
};

} // namespace

ExclusionModel::ExclusionModel(Ui& ui, TgxCustomLang& lang) : ui_(ui), lang_(lang) {
    tvComponents.OnChange = [this] { RefillProperties(); };
    if (lang.Owner()) tvComponents.Build(*lang.Owner(), lang);
    lbExclComponents.Assign(lang.GetStrings("DoNotTranslate"));
    lbExclProperties.Assign(lang.GetStrings("ExcludedProperties"));
    lbExclCompProps.Assign(lang.GetStrings("SmartExcludeProps"));
    SyncExcluded();
}

ExclusionList& ExclusionModel::List(ExclusionPage which) {
    return which == ComponentsPage   ? lbExclComponents
           : which == PropertiesPage ? lbExclProperties
                                     : lbExclCompProps;
}

TComponent* ExclusionModel::SelectedComponent() const {
    return tvComponents.Current() == TTree::None ? nullptr : &tvComponents.At(tvComponents.Current());
}

std::string ExclusionModel::SelectedProperty() const {
    return tvProperties.Current() == TTree::None ? std::string() : tvProperties[tvProperties.Current()].text;
}

const TPropertyData* ExclusionModel::SelectedData() const {
    return tvProperties.Current() == TTree::None ? nullptr : &data_[std::size_t(tvProperties.Current())];
}

std::string ExclusionModel::SelectedPropertyOrCollection() const {
    const std::string text = SelectedProperty();
    if (text.find(" - ") == std::string::npos) return text;
    const int parent = tvProperties[tvProperties.Current()].parent;
    return parent == TTree::None ? text : tvProperties[parent].text;
}

// --- candidates ---

bool ExclusionModel::CanAddProperty(std::string_view propName, std::string_view compName) const {
    return propName != "Name" && !lbExclComponents.Contains(compName) && !lbExclProperties.Contains(propName) &&
           !lbExclCompProps.Contains(std::string(compName) + "." + std::string(propName));
}

bool ExclusionModel::CompHasProperty(const TComponent& component, std::string_view propName) {
    return component.FindProperty(propName).has_value();
}

std::vector<CandidateProperty> ExclusionModel::CandidatesOf(int node) const {
    const std::string& name = tvComponents[node].text;
    if (lbExclComponents.Contains(name)) return {}; // none could be added
    return CandidateProperties(tvComponents.At(node),
                               [&](std::string_view property) { return CanAddProperty(property, name); });
}

void ExclusionModel::FillProperties(const TComponent& component, std::string_view compName) {
    tvProperties.Clear();
    data_.clear();
    const auto canAdd = [&](std::string_view property) { return CanAddProperty(property, compName); };
    for (CandidateProperty& candidate : CandidateProperties(component, canAdd)) {
        const int image = candidate.Image();
        tvProperties.Add(candidate.parent, std::move(candidate.text), image);
        data_.push_back(std::move(candidate.data));
    }
    tvProperties.Filled();
}

void ExclusionModel::RefillProperties() {
    if (const TComponent* component = SelectedComponent())
        return FillProperties(*component, tvComponents[tvComponents.Current()].text);
    tvProperties.Clear();
    data_.clear();
    tvProperties.Filled();
}

// --- adding properties ---

std::string ExclusionModel::ItemOf(const std::string& component, const std::string& property) const {
    return page == PropertiesPage ? property : component + "." + property;
}

int ExclusionModel::AddPropertyToList(TAddbyProperty addBy, const TPropertyData& data,
                                      const std::string& text) {
    if (page == ComponentsPage) return 0;
    const auto holds = [&](const std::string& name) {
        return UpperCase(name).find(text) != std::string::npos;
    };
    switch (addBy) {
    case TAddbyProperty::apSelected:
        return AddSelected();
    case TAddbyProperty::apByType:
        if (!SelectedData()) return 0;
        return AddMatching([&, type = data.PropType](const CandidateProperty& candidate) {
            return candidate.data.PropType == type;
        });
    case TAddbyProperty::apByTypeName:
        return AddMatching([&](const CandidateProperty& candidate) { return holds(candidate.data.PropType); });
    case TAddbyProperty::apByName:
        return AddMatching([&](const CandidateProperty& candidate) { return holds(candidate.text); });
    }
    return 0;
}

int ExclusionModel::AddSelected() {
    const TComponent* const component = SelectedComponent();
    if (!component || !SelectedData()) return 0;
    ActiveList().Add(ItemOf(tvComponents[tvComponents.Current()].text, SelectedProperty()));
    modified = true;
    RefillProperties();
    return 1;
}

// The tree of each component is as it was before that component's own items were added.
int ExclusionModel::AddMatching(const Match& match) {
    modified = true;
    ExclusionList& list = ActiveList();
    int added = 0;
    {
        const ExclusionList::Batch batch(list);
        const std::vector<int> nodes = tvComponents.InOrder();
        LateProgress progress(ui_, nodes.size(), progressAfter);
        for (const int node : nodes) {
            for (const CandidateProperty& candidate : CandidatesOf(node))
                if (match(candidate)) added += list.AddNew(ItemOf(tvComponents[node].text, candidate.text));
            if (!progress.Step()) break;
        }
    }
    RefillProperties();
    return added;
}

void ExclusionModel::AddPropertyName(const std::string& name) {
    lbExclProperties.AddNew(name);
    modified = true;
    RefillProperties();
}

void ExclusionModel::ExcludePropertyOfClass() {
    const TComponent* const component = SelectedComponent();
    if (!component || !SelectedData()) return;
    lbExclCompProps.AddNew("!" + component->ClassName() + "." + SelectedProperty());
    modified = true;
}

// --- adding components ---

void ExclusionModel::ExcludeNode(int node) {
    if (node == TTree::None) return;
    lbExclComponents.AddNew(tvComponents[node].text);
    tvComponents.Mark(node, true);
    modified = true;
}

void ExclusionModel::ExcludeChildren() {
    if (tvComponents.Current() == TTree::None) return;
    const ExclusionList::Batch batch(lbExclComponents);
    for (const int child : tvComponents.Children(tvComponents.Current()))
        ExcludeNode(child);
}

void ExclusionModel::ExcludeAllWithProperty(const std::string& name) {
    const ExclusionList::Batch batch(lbExclComponents);
    for (const int node : tvComponents.InOrder())
        if (CompHasProperty(tvComponents.At(node), name)) ExcludeNode(node);
}

void ExclusionModel::ExcludeClass() {
    if (const TComponent* component = SelectedComponent()) {
        lbExclComponents.AddNew("!" + component->ClassName());
        modified = true;
    }
}

void ExclusionModel::SyncExcluded() {
    for (const std::string& item : lbExclComponents.Items())
        if (const int node = tvComponents.Find(item); node != TTree::None) tvComponents.Mark(node, true);
}

// --- taking away ---

void ExclusionModel::DeleteSelected(ExclusionPage which) {
    const std::vector<std::string> gone = List(which).DeleteSelected();
    if (gone.empty()) return;
    modified = true;
    if (which == ComponentsPage)
        for (const std::string& item : gone)
            if (const int node = tvComponents.Find(item); node != TTree::None) tvComponents.Mark(node, false);
    RefillProperties(); // what is excluded no more is offered again
}

void ExclusionModel::ClearList(ExclusionPage which) {
    List(which).SelectAll();
    DeleteSelected(which);
    modified = true;
}

void ExclusionModel::WriteBack() {
    lang_.SetDoNotList(lbExclComponents.Items());
    lang_.SetExProps(lbExclProperties.Items());
    lang_.SetSmartProps(lbExclCompProps.Items());
}

} // namespace glotta
