// The translation editor: the texts of one localization component by kind, a row for each identifier, a
// column for each language.
#pragma once
#include "platform/Form.h"
#include "runtime/TransEditor.h"
#include "translation/TransGrid.h"

#include <string>
#include <utility>
#include <vector>

namespace glotta {

class TfrmTransEditor : public TForm {
public:
    // Both outlive the dialog. The form's texts are collected; unless the dialog is left with OK the
    // component is afterwards as it was before.
    TfrmTransEditor(Ui& ui, TgxCustomLang& component, const TransEditor& hooks);
    TfrmTransEditor(const TfrmTransEditor&) = delete;
    TfrmTransEditor& operator=(const TfrmTransEditor&) = delete;

private:
    using Lists = std::array<std::vector<std::string>, StringsTypeCount>;
    Lists before_; // the component's records
    TransTexts texts_;

public:
    KindsList lbKinds{texts_};
    TransGrid sgTexts{texts_};
    TField<int> Column{2}; // the current cell's; the language that the commands work on

    TField<std::string> edFilter, edFind;
    TField<bool> ckbUntranslated; // lists what lacks the current language

    // The current cell: its text, and for reference that of the first language.
    TField<std::string> lblFirst, memFirst, lblText, memText;

    TAction acFindNext, acFindPrevious, acNextUntranslated, acPreviousUntranslated, acCopyFirst, acRenameID,
        acNavigate;
    TAction btAbout, btOK, btCancel;

    // Texts shown and in all; what the current language lacks.
    std::array<std::string, 2> StatusTexts() const;

    void ShowPlace(const TransEditorPlace& place);
    bool Changed() const { return changed_; } // the component took changes
    bool CloseQuery(Ui& ui, ModalResult result) override;

private:
    void DeclareActions();
    bool HasCurrent() const { return sgTexts.Row() >= 0; }
    std::size_t CurrentRecord() const { return sgTexts.Record(std::size_t(sgTexts.Row())); }
    int Language() const;                     // the current one, 0 when the identifier is current
    std::vector<std::size_t> Targets() const; // records
    void ListTexts();
    void ShowCell();
    bool EnterText(std::size_t record, int column, const std::string& text);
    bool EnterID(std::size_t record, const std::string& id);
    void TypeText();
    void TextsChanged();
    void Find(int step, bool fromHere);
    void GoToUntranslated(int step);
    bool GoToUntranslatedIn(int language, int step, bool wholeKind);
    void CopyFirst();
    void RenameID();
    void RenameInSource();
    void Navigate();
    static Lists Collect(TgxCustomLang& component); // gives the lists as they were
    void Write();
    void TakeBack();

    Ui& ui_;
    TgxCustomLang& component_;
    const TransEditor& hooks_;
    struct Renamed {
        std::size_t record;
        std::string before, id;
    };
    std::vector<Renamed> renamed_; // in the order in which it was done
    bool changed_ = false;
};

// Opens the dialog.
class TransEditorDialog : public TransEditor {
public:
    explicit TransEditorDialog(Ui& ui) : ui_(ui) {}
    bool TransEditorDlg(TgxCustomLang& component, const std::optional<TransEditorPlace>& place) override;

private:
    Ui& ui_;
};

} // namespace glotta
