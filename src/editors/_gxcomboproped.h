// The dialog "Edit Language Settings": name, font and flag of each language of a drop-down.
#pragma once
#include "platform/Form.h"
#include "platform/Grid.h"
#include "runtime/GlottaCombo.h"

#include <functional>
#include <string>
#include <vector>

namespace glotta {

class TfrmGlottaComboEditor : public TForm {
public:
    // `names` are shown; the line at a position belongs to the info there.
    TfrmGlottaComboEditor(Ui& ui, const std::vector<std::string>& names, std::vector<TLanguageInfo> infos);

    TListBox lbLanguages{"Languages:"};
    TField<std::string> edLangName, cbLangFont, cbLangCharset;
    TField<std::string> Image; // the bytes of a BMP file; empty shows NoImage
    TAction btOK, btCancel;

    static constexpr const char* NoImage = "(No image)";
    static std::vector<std::string> CharsetItems() { return CharsetIdents(); }
    // Entries of cbFlags: "Load...", "Clear", then the flags by their numbers.
    static std::vector<std::string> FlagItems();
    static constexpr int FirstFlag = 2;
    void cbFlagsChange(int item); // afterwards none is chosen

    // Reads a picture file into a BMP; throws Error for what is no picture. The view sets one that knows more
    // formats.
    std::function<std::string(const std::string& fileName)> LoadPicture;
    std::string PictureFilter = "Bitmaps (*.bmp)|*.bmp|All files (*.*)|*.*"; // of the file dialog

    const std::vector<TLanguageInfo>& Infos() const { return infos_; }
    bool CloseQuery(Ui& ui, ModalResult result) override;

private:
    void SelectLanguage(int index);
    void Store();
    void LoadImage();
    Ui& ui_;
    std::vector<TLanguageInfo> infos_;
    int current_ = -1;
};

// A file with a BMP picture; throws Error, which names the file, for any other.
std::string LoadBitmapFile(const std::string& fileName);

// Shows another form's root to the function; does not call it when there is no such form.
using VisitForm =
    std::function<void(const std::string& formName, const std::function<void(const TComponent&)>& visit)>;

// Edits the languages of the drop-down; on OK they are written back. Throws Error when neither Glotta nor
// GlottaDispatcher is assigned.
ModalResult EditComboSettings(Ui& ui, TGlottaCombo& combo, const VisitForm& otherForm = {});

} // namespace glotta
