// The lists of the exclusion editor: deleting, clearing, sorting, and what can be dropped on them.
#include "editors/Excludededitor.h"

namespace glotta {

namespace {
constexpr ExclusionPage Pages[] = {ComponentsPage, PropertiesPage, CompPropertiesPage};
}

void TfrmExcludeFromTranslation::DeclareListActions() {
    const auto hasItems = [this] { return Model.ActiveList().RowCount() > 0; };
    acDeleteFromList = {"Delete", {}, "Deletes selected component from list", [this] { DeleteFromList(); },
                        hasItems, {}};
    acClearList = {"Clear",
                   {},
                   "Clears current list",
                   [this] {
                       if (Confirm("This will remove all items from the current list! Continue?"))
                           Model.ClearList(Model.page);
                   },
                   hasItems,
                   {}};
    acClearAll = {"Clear All",
                  {},
                  "Clears all lists",
                  [this] { ClearAll(); },
                  [this] {
                      return Model.lbExclComponents.RowCount() + Model.lbExclProperties.RowCount() +
                                 Model.lbExclCompProps.RowCount() >
                             0;
                  },
                  {}};
    acSortList = {"Sorted",  {}, "Sorts active list", [this] { SortList(); }, {},
                  [this] { return Model.ActiveList().Sorted(); }};
}

void TfrmExcludeFromTranslation::DeleteFromList() {
    if (Confirm("Delete selected item(s) from list?")) Model.DeleteSelected(Model.page);
}

void TfrmExcludeFromTranslation::ClearAll() {
    if (!Confirm("This will empty all the exclusion lists! Continue?")) return;
    const int before = Model.page;
    for (const ExclusionPage each : Pages) {
        ShowPage(each, false);
        Model.ClearList(each);
    }
    ShowPage(before, false);
}

void TfrmExcludeFromTranslation::SortList() {
    ExclusionList& list = Model.ActiveList();
    list.SetSorted(!list.Sorted());
    Model.modified = true;
    UpdateActions();
}

bool TfrmExcludeFromTranslation::CanDrop(ExclusionPage on, DragSource from) const {
    const int node = Model.tvComponents.Current();
    if (on == ComponentsPage)
        return from == DragSource::Components && node != TTree::None &&
               !Model.lbExclComponents.Contains(Model.tvComponents[node].text);
    return on == PropertiesPage && from == DragSource::Properties;
}

// A dropped property neither warns nor counts as a change: dragging is for trying out.
void TfrmExcludeFromTranslation::Drop(ExclusionPage on, DragSource from) {
    if (!CanDrop(on, from)) return;
    if (on == ComponentsPage) {
        acAddComponent.Execute();
    } else if (const int node = Model.tvProperties.Current(); node != TTree::None) {
        Model.lbExclProperties.AddNew(Model.tvProperties[node].text);
        Model.tvProperties.Remove(node);
    }
}

} // namespace glotta
