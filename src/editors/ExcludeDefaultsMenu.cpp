// The menu over the property names that a person excludes again and again.
#include "editors/Excludededitor.h"

namespace glotta {

namespace {

TMenuItem& AddAction(TMenuItem& menu, const TAction& action) {
    TMenuItem& item = menu.Add(action.caption, {}, [&action] { action.Execute(); });
    item.SetEnabled(action.Enabled());
    item.SetChecked(action.Checked());
    return item;
}

} // namespace

void TfrmExcludeFromTranslation::DeclareDefaultsActions() {
    acDefaults = {"Default",
                  {},
                  "Manages the default properties list",
                  [this] {
                      BuildDefaultsMenu();
                      if (OnDefaultsMenu) OnDefaultsMenu();
                  },
                  [this] { return Model.page == PropertiesPage; },
                  {}};
    acAddToDefaults = {"Add to Default List", {}, {}, [this] { AddToDefaults(); },
                       [this] { return Model.ActiveList().SelectedCount() > 0; }, {}};
    acInsertAllDefaults = {"Insert All", {}, {}, [this] { InsertDefaults(defaults_.Items()); }, {}, {}};
    acClearDefaults = {"Clear",
                       {},
                       {},
                       [this] {
                           if (Confirm("This will clear default list of properties! Continue?"))
                               defaults_.Clear();
                       },
                       [this] { return !defaults_.Items().empty(); },
                       {}};
    acSaveDefaults = {"Save Default List", {}, {}, [this] { defaults_.SaveDefaults(); }, {}, {}};
    acAutoSaveDefaults = {"Auto-save Default List",
                          {},
                          {},
                          [this] { defaults_.SetAutoSave(!defaults_.AutoSave()); },
                          {},
                          [this] { return defaults_.AutoSave(); }};
    DefaultsMenu.OnPopup = [this] { BuildDefaultsMenu(); };
}

void TfrmExcludeFromTranslation::BuildDefaultsMenu() {
    TMenuItem& menu = DefaultsMenu.Items;
    menu.Clear();
    AddAction(menu, acAddToDefaults);
    TMenuItem& insert = menu.Add("Insert from Default List");
    AddAction(insert, acInsertAllDefaults);
    TMenuItem& remove = menu.Add("Delete from Default List");
    AddAction(remove, acClearDefaults);
    if (!defaults_.Items().empty()) {
        insert.Add("-");
        remove.Add("-");
    }
    for (const std::string& name : defaults_.Items()) {
        insert.Add(name, {}, [this, name] { InsertDefaults({name}); });
        remove.Add(name, {}, [this, name] { defaults_.Delete(name); });
    }
    menu.Add("-");
    AddAction(menu, acSaveDefaults);
    AddAction(menu, acAutoSaveDefaults);
}

void TfrmExcludeFromTranslation::AddToDefaults() {
    for (const std::size_t row : Model.lbExclProperties.SelectedRows())
        defaults_.Add(Model.lbExclProperties.Items()[row]);
    if (defaults_.AutoSave()) defaults_.SaveDefaults();
}

void TfrmExcludeFromTranslation::InsertDefaults(const std::vector<std::string>& names) {
    const ExclusionList::Batch batch(Model.lbExclProperties);
    for (const std::string& name : names)
        if (Model.lbExclProperties.AddNew(name)) Model.modified = true;
}

} // namespace glotta
