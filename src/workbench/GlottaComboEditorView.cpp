#include "editors/FlagPictures.h"
#include "editors/_gxcomboproped.h"
#include "platform/Error.h"
#include "ui_GlottaComboEditorView.h"
#include "workbench/Views.h"

#include <QtCore/QBuffer>
#include <QtGui/QFontDatabase>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>

namespace glotta {

namespace {

QPixmap Picture(const std::string& bitmap) {
    QPixmap picture;
    picture.loadFromData(reinterpret_cast<const uchar*>(bitmap.data()), uint(bitmap.size()), "BMP");
    return picture;
}

// Any picture that can be shown here, as a bitmap.
std::string LoadAnyPicture(const std::string& fileName) {
    QImageReader reader(Q(fileName));
    reader.setDecideFormatFromContent(true);
    const QImage image = reader.read();
    if (image.isNull()) throw Error(fileName + ": " + reader.errorString().toStdString());
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    // What shows through is white, as a form would show it.
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QPainter(&flat).drawImage(0, 0, image);
    if (!flat.convertToFormat(QImage::Format_RGB888).save(&buffer, "BMP"))
        throw Error(fileName + ": the picture cannot be kept as a bitmap");
    return bytes.toStdString();
}

class GlottaComboEditorView : public WindowOf<QDialog, Ui_GlottaComboEditorView, TfrmGlottaComboEditor> {
public:
    GlottaComboEditorView(TfrmGlottaComboEditor& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        for (const QString& family : QFontDatabase::families())
            fonts_.push_back(family.toStdString());
        bind.Bind(*c.lbLanguages, form.lbLanguages);
        c.lbLanguages->ShowAsList();
        bind.Bind(*c.edLangName, form.edLangName);
        bind.Bind(*c.cbLangFont, form.cbLangFont, fonts_);
        bind.Bind(*c.cbLangCharset, form.cbLangCharset, charsets_);
        bind.Bind(*c.btOK, form.btOK);
        bind.Bind(*c.btCancel, form.btCancel);
        form.LoadPicture = LoadAnyPicture;
        form.PictureFilter = "Pictures (*.bmp;*.png;*.jpg;*.jpeg;*.gif)|*.bmp;*.png;*.jpg;*.jpeg;*.gif|"
                             "All files (*.*)|*.*";
        ShowImage();
        OfferFlags();
    }

private:
    void ShowImage() {
        QLabel& panel = *controls.pnImage;
        bind.Follow(form.Image, [this, &panel] {
            const QPixmap picture = Picture(form.Image());
            if (picture.isNull())
                panel.setText(TfrmGlottaComboEditor::NoImage);
            else
                panel.setPixmap(
                    picture.width() <= panel.minimumWidth() && picture.height() <= panel.minimumHeight()
                        ? picture
                        : picture.scaled(panel.minimumSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
        });
    }

    void OfferFlags() {
        QComboBox& flags = *controls.cbFlags;
        const auto items = TfrmGlottaComboEditor::FlagItems();
        flags.setIconSize({FlagWidth, FlagHeight});
        for (std::size_t i = 0; i < items.size(); ++i)
            if (i < TfrmGlottaComboEditor::FirstFlag)
                flags.addItem(Q(items[i]));
            else
                flags.addItem(Picture(FlagBitmap(i - TfrmGlottaComboEditor::FirstFlag)), Q(items[i]));
        flags.setCurrentIndex(-1);
        connect(&flags, &QComboBox::activated, bind.Context(), [this, &flags](int item) {
            flags.setCurrentIndex(-1);
            bind.Act([&] { form.cbFlagsChange(item); });
        });
    }

    std::vector<std::string> fonts_, charsets_ = TfrmGlottaComboEditor::CharsetItems();
};

} // namespace

View* MakeGlottaComboEditorView(TfrmGlottaComboEditor& form, Ui& ui, QWidget* parent) {
    return new GlottaComboEditorView(form, ui, parent);
}

} // namespace glotta
