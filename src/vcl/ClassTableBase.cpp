#include "vcl/ClassTables.h"

namespace glotta {

const std::string_view BaseClasses = R"(
@Classes
TPersistent:
TInterfacedPersistent TPersistent:
TStrings TPersistent:
TStringList TStrings:
TCollection TPersistent <TCollectionItem>:
TOwnedCollection TCollection <TCollectionItem>:
TCollectionItem TPersistent:
TComponent TPersistent: Name Tag
TBasicAction TComponent:
TDataModule TComponent: OldCreateOrder OnCreate OnDestroy
@Graphics
TGraphicsObject TPersistent: OnChange
TFont TGraphicsObject: Charset Color Height Name=TFontName Orientation=Integer Pitch Quality=TFontQuality Size=Integer
 Style=TFontStyles
TPen TGraphicsObject: Color Mode=TPenMode Style=TPenStyle Width
TBrush TGraphicsObject: Color Style=TBrushStyle
TGraphic TInterfacedPersistent:
TBitmap TGraphic:
TIcon TGraphic:
TMetafile TGraphic:
TPicture TInterfacedPersistent:
@Controls
TSizeConstraints TPersistent: MaxHeight MaxWidth MinHeight MinWidth
TMargins TPersistent: Left Top Right Bottom
TPadding TMargins:
TTouchManager TPersistent: GestureManager InteractiveGestureOptions InteractiveGestures ParentTabletOptions TabletOptions
TControl TComponent: AlignWithMargins Left Top Width Height Margins Cursor Hint HelpType HelpKeyword HelpContext
 CustomHint StyleElements StyleName
TWinControl TControl: Padding=TPadding
TGraphicControl TControl:
TCustomControl TWinControl:
TDragImageList TComponent: ColorDepth DrawingStyle
TCustomImageList TDragImageList:
TImageList TCustomImageList: AllocBy BlendColor BkColor Height ImageType Masked ShareImages Width OnChange
@Forms
TControlScrollBar TPersistent: ButtonSize Color Increment Margin ParentColor Position=Integer Range Smooth Size=Integer
 Style=TScrollBarStyle ThumbSize Tracking Visible
TScrollingWinControl TWinControl: HorzScrollBar VertScrollBar
TScrollBox TScrollingWinControl: Align Anchors AutoScroll AutoSize BevelEdges BevelInner BevelOuter BevelKind BevelWidth
 BiDiMode BorderStyle Constraints DockSite DragCursor DragKind DragMode Enabled Color Ctl3D DoubleBuffered Font
 ParentBiDiMode ParentBackground ParentColor ParentCtl3D ParentDoubleBuffered ParentFont ParentShowHint PopupMenu
 ShowHint TabOrder TabStop Touch Visible OnCanResize OnClick OnConstrainedResize OnContextPopup OnDblClick OnDockDrop
 OnDockOver OnDragDrop OnDragOver OnEndDock OnEndDrag OnEnter OnExit OnGetSiteInfo OnMouseDown OnMouseMove OnMouseUp
 OnMouseWheel OnMouseWheelDown OnMouseWheelUp OnResize OnStartDock OnStartDrag OnUnDock
TCustomFrame TScrollingWinControl:
TFrame TCustomFrame: Align Anchors AutoScroll AutoSize BiDiMode Color Constraints Ctl3D UseDockManager DockSite
 DoubleBuffered DragCursor DragKind DragMode Enabled Font ParentBackground ParentBiDiMode ParentColor ParentCtl3D
 ParentDoubleBuffered ParentFont ParentShowHint PopupMenu ShowHint TabOrder TabStop Touch Visible OnCanResize OnClick
 OnConstrainedResize OnContextPopup OnDblClick OnDockDrop OnDockOver OnDragDrop OnDragOver OnEndDock OnEndDrag OnEnter
 OnExit OnGetSiteInfo OnMouseDown OnMouseMove OnMouseUp OnMouseWheel OnMouseWheelDown OnMouseWheelUp OnResize
 OnStartDock OnStartDrag OnUnDock
TCustomForm TScrollingWinControl:
TForm TCustomForm: Action ActiveControl Align AlphaBlend AlphaBlendValue Anchors AutoScroll AutoSize BiDiMode
 BorderIcons BorderStyle=TFormBorderStyle BorderWidth Caption ClientHeight ClientWidth Color TransparentColor
 TransparentColorValue Constraints Ctl3D UseDockManager DefaultMonitor DockSite DoubleBuffered DragKind DragMode
 Enabled ParentFont Font FormStyle GlassFrame Height HelpFile HorzScrollBar Icon KeyPreview Padding Menu OldCreateOrder
 ObjectMenuItem ParentBiDiMode PixelsPerInch PopupMenu PopupMode PopupParent Position=TPosition PrintScale Scaled
 ScreenSnap ShowHint SnapBuffer Touch VertScrollBar Visible Width WindowState WindowMenu OnActivate
 OnAfterMonitorDpiChanged OnBeforeMonitorDpiChanged OnCanResize OnClick OnClose OnCloseQuery OnConstrainedResize
 OnContextPopup OnCreate OnDblClick OnDestroy OnDeactivate OnDockDrop OnDockOver OnDragDrop OnDragOver OnEndDock
 OnGesture OnGetSiteInfo OnHide OnHelp OnKeyDown OnKeyPress OnKeyUp OnMouseActivate OnMouseDown OnMouseEnter
 OnMouseLeave OnMouseMove OnMouseUp OnMouseWheel OnMouseWheelDown OnMouseWheelUp OnPaint OnResize OnShortCut OnShow
 OnStartDock OnUnDock
@Menus
TMenuItem TComponent: Action AutoCheck AutoHotkeys AutoLineReduction Bitmap Break=TMenuBreak Caption=string Checked
 SubMenuImages Default Enabled GroupIndex HelpContext Hint ImageIndex ImageName RadioItem ShortCut Visible OnClick
 OnDrawItem=TMenuDrawItemEvent OnAdvancedDrawItem OnMeasureItem=TMenuMeasureItemEvent
TMenu TComponent:
TMainMenu TMenu: AutoHotkeys AutoLineReduction AutoMerge BiDiMode Images OwnerDraw ParentBiDiMode OnChange=TMenuChangeEvent
TPopupMenu TMenu: Alignment=TPopupAlignment AutoHotkeys AutoLineReduction AutoPopup BiDiMode HelpContext Images
 MenuAnimation OwnerDraw ParentBiDiMode TrackButton OnChange=TMenuChangeEvent OnPopup
@ActnList
TContainedAction TBasicAction: Category
TCustomActionList TComponent:
TActionList TCustomActionList: Images State=TActionListState OnChange OnExecute=TActionEvent OnStateChange
 OnUpdate=TActionEvent
TCustomAction TContainedAction:
TAction TCustomAction: AutoCheck Caption=string Checked Enabled GroupIndex HelpContext HelpKeyword HelpType Hint
 ImageIndex ImageName ShortCut SecondaryShortCuts Visible OnExecute OnHint OnUpdate
@ActnMan
TCustomActionManager TCustomActionList:
TActionManager TCustomActionManager: FileName DisabledImages LargeImages LinkedActionLists ActionBars Images
 PrioritySchedule State=TActionListState OnChange OnExecute=TActionEvent OnStateChange OnUpdate=TActionEvent StyleName
TActionClients TCollection <TActionClientItem>:
TActionClientItem TCollectionItem: Action BackgroundLayout Caption ChangesAllowed Color CommandStyle Items=TActionClients
 Default HelpContext ImageIndex KeyTip=string ShortCut ShowCaption ShowGlyph ShowShortCut UsageCount Visible
TActionBars TCollection <TActionBarItem>:
TActionBarItem TCollectionItem: ActionBar=TCustomControl AutoSize ChangesAllowed Color ContextItems=TActionClients
 GlyphLayout Items=TActionClients Visible
@StdActns
TEditAction TAction: Control=TWinControl
TEditCut TEditAction:
TEditCopy TEditAction:
TEditPaste TEditAction:
TEditSelectAll TEditAction:
TEditUndo TEditAction:
TEditDelete TEditAction:
THintAction TCustomAction: Hint
TWindowAction TAction: Form=TForm
TWindowClose TWindowAction:
TWindowCascade TWindowAction:
TWindowTileHorizontal TWindowAction:
TWindowTileVertical TWindowAction:
TWindowMinimizeAll TWindowAction:
TWindowArrange TWindowAction:
THelpAction TAction:
THelpContents THelpAction:
THelpTopicSearch THelpAction:
THelpOnHelp THelpAction:
TCommonDialogAction TCustomAction: BeforeExecute OnAccept OnCancel
TFileAction TCommonDialogAction: Dialog
TFileOpen TFileAction: Caption=string Dialog Enabled HelpContext Hint ImageIndex ShortCut SecondaryShortCuts UseDefaultApp
 Visible BeforeExecute OnAccept OnCancel OnHint OnUpdate
TFileOpenWith TFileOpen:
TFileSaveAs TFileAction: Caption=string Dialog Enabled HelpContext Hint ImageIndex ShortCut SecondaryShortCuts Visible
 BeforeExecute OnAccept OnCancel OnHint OnUpdate
TFilePrintSetup TFileAction: Caption=string Enabled HelpContext Hint ImageIndex ShortCut Visible
TFileExit TCustomAction: Caption=string Enabled HelpContext Hint ImageIndex ShortCut SecondaryShortCuts Visible OnHint
 OnUpdate
TSearchAction TCommonDialogAction: Caption=string Dialog Enabled HelpContext Hint ImageIndex ShortCut SecondaryShortCuts
 Visible OnHint OnUpdate
TSearchFind TSearchAction:
TSearchFindNext TCustomAction: Caption=string Enabled HelpContext Hint ImageIndex SearchFind=TSearchFind ShortCut Visible
TSearchReplace TSearchAction:
TSearchFindFirst TSearchFind:
TFontEdit TCommonDialogAction: Caption=string Dialog Enabled HelpContext Hint ImageIndex ShortCut Visible
TColorSelect TCommonDialogAction: Caption=string Dialog Enabled HelpContext Hint ImageIndex ShortCut Visible
TPrintDlg TCommonDialogAction: Caption=string Dialog Enabled HelpContext Hint ImageIndex ShortCut Visible
TRichEditAction TEditAction: AutoCheck
TRichEditBold TRichEditAction:
TRichEditItalic TRichEditAction:
TRichEditUnderline TRichEditAction:
TRichEditStrikeOut TRichEditAction:
TRichEditBullets TRichEditAction:
TRichEditAlignLeft TRichEditAction:
TRichEditAlignRight TRichEditAction:
TRichEditAlignCenter TRichEditAction:
@ExtActns
TBrowseURL TAction: URL=string BeforeBrowse=TNotifyEvent AfterBrowse=TNotifyEvent
TFileRun TAction: Browse BrowseDlg=TOpenDialog Directory=string FileName Operation=string ParentControl=TWinControl
 Parameters=string ShowCmd=TShowCmd
TNextTab TAction: LastTabCaption=string SkipHiddenTabs=Boolean TabControl=TPageControl Wrap BeforeTabChange=TNotifyEvent
 AfterTabChange=TNotifyEvent OnFinish=TNotifyEvent
TPreviousTab TAction: SkipHiddenTabs=Boolean TabControl=TPageControl Wrap BeforeTabChange=TNotifyEvent
 AfterTabChange=TNotifyEvent
@DBActns
TDataSetAction TAction: DataSource
TDataSetFirst TDataSetAction:
TDataSetPrior TDataSetAction:
TDataSetNext TDataSetAction:
TDataSetLast TDataSetAction:
TDataSetInsert TDataSetAction:
TDataSetDelete TDataSetAction:
TDataSetEdit TDataSetAction:
TDataSetPost TDataSetAction:
TDataSetCancel TDataSetAction:
TDataSetRefresh TDataSetAction:
)";

} // namespace glotta
