// The commands of the review: captions, shortcuts, hints, and when they are enabled.
#include "scanner/_scan.h"

#include "scanner/SourceFlavour.h"

namespace glotta {

void TfrmFound::DeclareActions() {
    acModifySource = {"Modify Source",
                      {},
                      "Applies changes and modifies source unit",
                      [this] { Close(ui_, ModalResult::OK); },
                      [this] { return sgStrings.RowCount() > 0; },
                      {}};
    acCancel = {"Cancel", {}, "Cancels source translation", [this] { Close(ui_, ModalResult::Cancel); },
                {},       {}};
    acHelp = {"Help", {}, {}, [this] { ShowHelp(); }, [this] { return bool(ShowHelp); }, {}};

    acSwitchDeleted = {"Deleted",
                       {},
                       "Shows deleted rows",
                       [this] { SwitchDeleted(); },
                       [this] { return sgDeleted.RowCount() > 0; },
                       {}};
    acRestoreDeletedRow = {
        "Restore",
        {},
        {},
        [this] { RestoreDeletedRow(); },
        [this] { return showsDeleted_ && (sgDeleted.SelectedCount() > 0 || sgDeleted.Row() >= 0); },
        {}};
    acViewSkipped = {"Excluded", {}, {}, [this] { ViewSkipped(); }, {}, {}};

    acSelectRow = {"&Select row",
                   "Ctrl+M",
                   {},
                   [this] { VisibleGrid().Select(std::size_t(VisibleGrid().Row()), true); },
                   [this] { return VisibleGrid().Row() >= 0; },
                   {}};
    acInvertSelection = {"&Invert selection",
                         "Ctrl+I",
                         {},
                         [this] { VisibleGrid().InvertSelection(); },
                         [this] { return VisibleGrid().RowCount() > 0; },
                         {}};
    acRemoveSelection = {"Re&move selection",
                         {},
                         {},
                         [this] { VisibleGrid().ClearSelection(); },
                         [this] { return VisibleGrid().SelectedCount() > 0; },
                         {}};

    acHideNotice = {"Click here to hide this notice",
                    {},
                    {},
                    [this] {
                        pnNotice.Show(false);
                        SaveState();
                    },
                    {},
                    {}};
}

void TfrmFound::DeclareRowActions() {
    const auto hasTarget = [this] { return HasTarget(); };
    const auto hasRows = [this] { return !showsDeleted_ && sgStrings.RowCount() > 0; };
    const auto mark = [this](bool on) { ForTargets([on](TgxFoundSourceString& row) { row.Ignored = on; }); };

    acDeleteRow = {"Delete", "Ctrl+Del", {}, [this] { DeleteRow(); }, hasTarget, {}};
    acDeleteRowsContains = {"Delete &rows that contains...",  {},      {},
                            [this] { DeleteRowsContains(); }, hasRows, {}};
    acStartID = {"Start ID...", {}, {}, [this] { StartID(); }, hasRows, {}};
    acExclude = {"Exclude", "Ctrl+E", {}, [this] { Exclude(); }, hasTarget, {}};
    acMarktoIgnore = {"&Mark to Ignore", "Ctrl+Shift+M", {}, [mark] { mark(true); }, hasTarget, {}};
    acRemoveIgnoreMark = {"&Remove Ignore Mark", "Ctrl+Shift+R", {}, [mark] { mark(false); }, hasTarget, {}};
    acTypecastPChar = {
        "&Typecast to PChar...",
        {},
        {},
        [this] {
            ForTargets([](TgxFoundSourceString& row) { row.Replacement = TypecastToPChar(row.Replacement); });
        },
        hasTarget,
        {}};

    for (std::size_t i = 0; i < acUseMethod.size(); ++i) {
        const std::string_view method = TextGetterNames[i];
        acUseMethod[i] = {std::string(method.substr(0, method.size() - 1)),
                          {},
                          {},
                          [this, method] { UseMethod(method); },
                          hasTarget,
                          [this, method] {
                              const TgxFoundSourceString* row = sgStrings.Current();
                              const std::string call =
                                  std::string(context_.flavour.METHODPOINT).append(method);
                              return row && row->Replacement.find(call) != std::string::npos;
                          }};
    }
}

} // namespace glotta
