#include "package/Gxdialog_reg.h"

namespace glotta::Gxdialog_reg {

void Register(IDesignServices& ide) {
    ide.RegisterComponents("gxDialogs",
                           {"TgxOpenDialog", "TgxSaveDialog", "TgxOpenPictureDialog", "TgxSavePictureDialog",
                            "TgxFontDialog", "TgxColorDialog", "TgxPrintDialog", "TgxPrinterSetupDialog", "TgxFindDialog",
                            "TgxReplaceDialog", "TgxBrowseForFolder"});
}

} // namespace glotta::Gxdialog_reg
