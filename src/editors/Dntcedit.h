// A dialog that moves items between two lists.
#pragma once
#include "platform/Form.h"
#include "platform/Grid.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace glotta {

class RegistryStore;

class TfrmNotTranslate : public TForm {
public:
    static constexpr std::string_view PlacementKey = "\\Software\\Quorlane\\TGlotta\\ExcludeComponents";
    static constexpr int MinimumWidth = 387, MinimumHeight = 353;

    // What the dialog keeps; what was never stored is left to the view.
    struct Placement {
        std::optional<int> width, height, top, left, leftWidth;
        bool operator==(const Placement&) const = default;
    };

    TfrmNotTranslate(Ui& ui, RegistryStore& registry);
    TfrmNotTranslate(const TfrmNotTranslate&) = delete;
    TfrmNotTranslate& operator=(const TfrmNotTranslate&) = delete;

    // A caller may replace these, and `caption`.
    std::string lblPrompt = "Select components that shouldn't be translated.", lblComps = "C&omponents:",
                lblSelected = "&Selected Components:";
    TListBox lbComps{"Components", TGrid::Picking::Extended};
    TListBox lbSelected{"Selected Components", TGrid::Picking::Extended};
    TAction btMove, btMoveBack, btMoveAll, btMoveAllBack; // ">", "<", ">>", "<<"
    TAction btOK, btCancel;

    TField<Placement> Place; // set when the dialog is shown; the view enters what a person makes of it
    void FormShow();         // reads the placement back
    bool CloseQuery(Ui& ui, ModalResult result) override; // stores the placement

private:
    static void MoveSelected(TListBox& from, TListBox& to);
    static void MoveAll(TListBox& from, TListBox& to);

    Ui& ui_;
    RegistryStore& registry_;
};

} // namespace glotta
