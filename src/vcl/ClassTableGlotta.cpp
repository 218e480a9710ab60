#include "vcl/ClassTables.h"

namespace glotta {

const std::string_view GlottaClasses = R"(
@Glotta
TgxCustomLang TComponent: NumberOfLanguages LangNames Language ActiveLanguage LangDispatcher Captions Hints
 DisplayLabels Strings Fonts MultiLines DlgsCaptions OtherStrings Locales CharSets Collections ListView_TreeView_Items
 ExtendedTranslations DoNotTranslate ExcludedProperties SmartExcludeProps IgnoreRemovals AutoSkipEmpties=Boolean
 ChangeLocales=Boolean DoRaiseExceptions=Boolean IsInheritedOwner=Boolean StoreAsUTF8=Boolean
 TranslateExtendedFirst=Boolean UseDefaultLanguage=Boolean UseTaskMsgDlg=Boolean OnChangeLanguage
TGlotta TgxCustomLang:
TGlottaRTSE TgxCustomLang:
TGlottaRT TgxCustomLang:
TGlottaLinked TgxCustomLang: CommonContainer
TGlottaTLV TgxCustomLang:
TGlottaDispatcher TComponent: NumberOfLanguages LangNames Language ActiveLanguage OnChangeLanguage
TGlottaCombo TCustomComboBox: Align Anchors Color Constraints Ctl3D Enabled Font Glotta GlottaDispatcher LanguageInfos
 ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ShowHint TabOrder TabStop Visible OnChange OnClick
 OnDropDown OnEnter OnExit
TGlottaChangeLanguage TAction: Glotta GlottaDispatcher Language
TLanguageInfos TCollection <TLanguageInfo>:
TLanguageInfo TCollectionItem: FontCharset=TFontCharset FontName=TFontName Image=TBitmap LanguageName=string
TExtendedTranslations TCollection <TExtendedTranslation>:
TExtendedTranslation TCollectionItem: Component=TComponent PropertyName
TgxLabel TCustomLabel: Align Alignment Anchors AutoSize Caption Color Constraints Enabled FocusControl Font ParentColor
 ParentFont ParentShowHint PopupMenu ShowAccelChar ShowHint Transparent Layout Visible WordWrap OnClick
TgxFormStorage TComponent: Active SubKey=string
@gxDialogs
TgxOpenDialog TOpenDialog:
TgxSaveDialog TSaveDialog:
TgxOpenPictureDialog TOpenPictureDialog:
TgxSavePictureDialog TSavePictureDialog:
TgxFontDialog TFontDialog:
TgxColorDialog TColorDialog:
TgxPrintDialog TPrintDialog:
TgxPrinterSetupDialog TPrinterSetupDialog:
TgxFindDialog TFindDialog:
TgxReplaceDialog TReplaceDialog:
TgxBrowseForFolder TComponent: DialogText=string Title Directory=string
)";

} // namespace glotta
