// The dialog "Configure Languages": number, names and order of languages. It works on a plain list of names.
#pragma once
#include "platform/Form.h"
#include "platform/Grid.h"

#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// "Language N3"
std::string DefaultLanguageName(int number);
// The name for the language behind the first `names.size()`: the default name at that place unless it is in
// the list already, else "Language N%d".
std::string NextLanguageName(const std::vector<std::string>& names,
                             const std::vector<std::string>& defaultNames);

class TfrmConfigureLanguages : public TForm {
public:
    // Larger numbers count as no number: the list would grow without end.
    static constexpr int MaxLanguages = 1000;

    TfrmConfigureLanguages(Ui& ui, const std::vector<std::string>& names,
                           std::vector<std::string> defaultNames);

    TField<std::string> edLangCount;
    TAction sbUp2, sbDown2;
    TListBox lbLangNames{"Ordered list of languages:", TGrid::Picking::Extended};
    TAction btnMoveUp, btnMoveDown, btnRename, btnAdd, btnDelete, btnHelp, btOK, btCancel;

    // Key filter of the number edit.
    static bool AcceptsKey(char32_t key) { return key < 32 || (key >= '0' && key <= '9'); }

    std::function<void()> ShowHelp; // the host's; without it "Help" is disabled

private:
    void Step(int tag);
    void SetCount(int count);
    void edLangCountChange();
    int Count() const; // 0 when the edit holds no number
    void MoveUp();
    void MoveDown();
    void Rename();
    void Add();
    void Delete();
    Ui& ui_;
    std::vector<std::string> defaultNames_;
};

// Shows the dialog; on OK `names` becomes the edited list.
ModalResult ConfigureLanguages(Ui& ui, std::vector<std::string>& names, const std::string& defaultLangNames);

} // namespace glotta
