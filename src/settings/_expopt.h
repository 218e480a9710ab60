// The dialog "Options": every setting of the expert that a person may change.
#pragma once
#include "platform/Form.h"
#include "platform/Grid.h"
#include "settings/ExpertSettings.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

// A choice of texts: the chosen one and those to choose from.
struct TComboBox : TField<std::string> {
    std::vector<std::string> Items;
    int ItemIndex() const; // -1: the text is none of the items
};

class TfrmOptions : public TForm {
public:
    static constexpr std::array<std::string_view, 3> PageCaptions = {"General", "Strings in Source",
                                                                     "Exclude && Skip"};
    static constexpr std::array<std::string_view, 3> ButtonCaptions = {"General", "Source Strings",
                                                                       "Exclude && Skip"};
    static constexpr std::string_view SectionsCaption = "Sections";
    static constexpr std::string_view SectionsHint = "Press Ctrl+Tab to switch pages";

    // What the runtime library offers: names of look-up methods and classes of components.
    TfrmOptions(Ui& ui, std::vector<std::string> replaceMethods, std::vector<std::string> componentNames);

    TField<int> pcOptions{0}; // the active page, from 0
    void SwitchPage();        // Ctrl+Tab: on to the next one

    // General
    TComboBox cbMenuItems, cbDefTGlotta;
    TField<TShortCut> hkInMenu{0};
    TField<bool> cbOpenAll;
    TListBox lbLangNames{"Ordered list of languages:", TGrid::Picking::Extended};
    TAction btnRename, btnAdd, btnDelete, btnMoveUp, btnMoveDown;
    TField<std::string> edNLang;
    TAction sbNLangUp, sbNLangDown;

    // Strings in Source
    TField<std::string> edIgnorableLength, edCommentsLength, edPreviewLines, edHCPfx, edConstPfx;
    TAction sbIgnorableUp, sbIgnorableDown, sbCommentsUp, sbCommentsDown, sbPreviewUp, sbPreviewDown;
    TComboBox cbReplaceMethod;
    TField<bool> ckbAddFormName, ckbNoCommentsAtAll, ckbEmptyConsts;
    TField<int> rgCnstPfx{0}; // 0 "&Don't Change", 1 "&All UPPERCASE"

    // Exclude && Skip
    TField<std::string> edExcludeChars;
    TField<std::string> memSkipLines, memSkipWords; // lines joined by CR LF
    TField<bool> ckbUseREtoSkip;

    TAction btHelp, btOK, btCancel;

    // Key filter of edIgnorableLength.
    static bool AcceptsKey(char32_t key) { return key < 32 || (key >= '0' && key <= '9'); }

    void Fill(SettingsValues values);
    // Through the setters, in their order. A number that is none is an Error; what was set before it stays.
    void Apply(ExpertSettings& settings) const;

    std::function<void()> ShowHelp; // the host's; without it "Help" is disabled

private:
    void DeclareSteps();
    void DeclareLanguages();
    void memSkipWordsChange();
    void RenameLanguage();
    void AddLanguage();
    void DeleteLanguages();
    void MoveLanguage(int step);
    Ui& ui_;
};

} // namespace glotta
