#include "vcl/ClassTables.h"

namespace glotta {

const std::string_view ControlClasses = R"(
@StdCtrls
TCustomLabel TGraphicControl:
TLabel TCustomLabel: Align Alignment Anchors AutoSize BiDiMode Caption Color Constraints DragCursor DragKind DragMode
 EllipsisPosition Enabled FocusControl Font GlowSize ParentBiDiMode ParentColor ParentFont ParentShowHint PopupMenu
 ShowAccelChar ShowHint Touch Transparent Layout Visible WordWrap OnClick OnContextPopup OnDblClick OnDragDrop
 OnDragOver OnEndDock OnEndDrag OnGesture OnMouseActivate OnMouseDown OnMouseMove OnMouseUp OnMouseEnter OnMouseLeave
 OnStartDock OnStartDrag
TCustomEdit TWinControl: TabStop
TEdit TCustomEdit: Align Alignment Anchors AutoSelect AutoSize BevelEdges BevelInner BevelKind BevelOuter BevelWidth
 BiDiMode BorderStyle CharCase Color Constraints Ctl3D DoubleBuffered DragCursor DragKind DragMode Enabled Font
 HideSelection ImeMode ImeName MaxLength NumbersOnly OEMConvert ParentBiDiMode ParentColor ParentCtl3D
 ParentDoubleBuffered ParentFont ParentShowHint PasswordChar PopupMenu ReadOnly ShowHint TabOrder TabStop Text TextHint
 Touch Visible OnChange OnClick OnContextPopup OnDblClick OnDragDrop OnDragOver OnEndDock OnEndDrag OnEnter OnExit
 OnGesture OnKeyDown OnKeyPress OnKeyUp OnMouseActivate OnMouseDown OnMouseEnter OnMouseLeave OnMouseMove OnMouseUp
 OnStartDock OnStartDrag
TCustomMemo TCustomEdit:
TMemo TCustomMemo: Align Alignment Anchors BevelEdges BevelInner BevelKind BevelOuter BiDiMode BorderStyle CharCase Color
 Constraints Ctl3D DoubleBuffered DragCursor DragKind DragMode Enabled Font HideSelection ImeMode ImeName Lines
 MaxLength OEMConvert ParentBiDiMode ParentColor ParentCtl3D ParentDoubleBuffered ParentFont ParentShowHint PopupMenu
 ReadOnly ScrollBars ShowHint TabOrder TabStop Touch Visible WantReturns WantTabs WordWrap OnChange OnClick
 OnContextPopup OnDblClick OnDragDrop OnDragOver OnEndDock OnEndDrag OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp
 OnMouseDown OnMouseMove OnMouseUp OnStartDock OnStartDrag
TButtonControl TWinControl:
TCustomButton TButtonControl:
TButton TCustomButton: Action Align Anchors BiDiMode Cancel Caption CommandLinkHint Constraints Default DisabledImageIndex
 DoubleBuffered DragCursor DragKind DragMode DropDownMenu Enabled ElevationRequired Font HotImageIndex ImageAlignment
 ImageIndex ImageMargins ImageName Images ModalResult ParentBiDiMode ParentDoubleBuffered ParentFont ParentShowHint
 PopupMenu PressedImageIndex SelectedImageIndex ShowHint Style=TButtonStyle TabOrder TabStop Touch Visible WordWrap
 OnClick OnContextPopup OnDragDrop OnDragOver OnDropDownClick OnEndDock OnEndDrag OnEnter OnExit OnKeyDown OnKeyPress
 OnKeyUp OnMouseDown OnMouseEnter OnMouseLeave OnMouseMove OnMouseUp OnStartDock OnStartDrag
TCustomCheckBox TButtonControl: TabStop
TCheckBox TCustomCheckBox: Action Align Alignment=TLeftRight AllowGrayed Anchors BiDiMode Caption Checked Color
 Constraints Ctl3D DoubleBuffered DragCursor DragKind DragMode Enabled Font ParentBiDiMode ParentColor ParentCtl3D
 ParentDoubleBuffered ParentFont ParentShowHint PopupMenu ShowHint State=TCheckBoxState TabOrder TabStop Visible
 WordWrap OnClick OnContextPopup OnDragDrop OnDragOver OnEndDock OnEndDrag OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp
 OnMouseDown OnMouseMove OnMouseUp OnStartDock OnStartDrag
TRadioButton TButtonControl: Action Align Alignment=TLeftRight Anchors BiDiMode Caption Checked Color Constraints Ctl3D
 DoubleBuffered DragCursor DragKind DragMode Enabled Font ParentBiDiMode ParentColor ParentCtl3D ParentDoubleBuffered
 ParentFont ParentShowHint PopupMenu ShowHint TabOrder TabStop Visible WordWrap OnClick OnContextPopup OnDblClick
 OnDragDrop OnDragOver OnEndDock OnEndDrag OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp OnMouseDown OnMouseMove OnMouseUp
 OnStartDock OnStartDrag
TCustomListControl TWinControl:
TCustomListBox TCustomListControl: TabStop
TListBox TCustomListBox: Style=TListBoxStyle AutoComplete Align Anchors BevelEdges BevelInner BevelKind BevelOuter BiDiMode
 BorderStyle Color Columns=Integer Constraints Ctl3D DoubleBuffered DragCursor DragKind DragMode Enabled ExtendedSelect
 Font ImeMode ImeName IntegralHeight ItemHeight Items MultiSelect ParentBiDiMode ParentColor ParentCtl3D
 ParentDoubleBuffered ParentFont ParentShowHint PopupMenu ScrollWidth ShowHint Sorted TabOrder TabStop TabWidth Visible
 OnClick OnContextPopup OnData OnDataFind OnDataObject OnDblClick OnDragDrop OnDragOver OnDrawItem OnEndDock OnEndDrag
 OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp OnMeasureItem OnMouseDown OnMouseMove OnMouseUp OnStartDock OnStartDrag
TCustomCombo TCustomListControl:
TCustomComboBox TCustomCombo:
TComboBox TCustomComboBox: AutoComplete AutoDropDown AutoCloseUp Align BevelEdges BevelInner BevelKind BevelOuter
 Style=TComboBoxStyle Anchors BiDiMode CharCase Color Constraints Ctl3D DoubleBuffered DragCursor DragKind DragMode
 DropDownCount Enabled Font ImeMode ImeName ItemHeight ItemIndex MaxLength ParentBiDiMode ParentColor ParentCtl3D
 ParentDoubleBuffered ParentFont ParentShowHint PopupMenu ShowHint Sorted TabOrder TabStop Text TextHint Visible
 OnChange OnClick OnCloseUp OnContextPopup OnDblClick OnDragDrop OnDragOver OnDrawItem OnDropDown OnEndDock OnEndDrag
 OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp OnMeasureItem OnSelect OnStartDock OnStartDrag Items
TScrollBar TWinControl: Align Anchors BiDiMode Constraints Ctl3D DragCursor DragKind DragMode Enabled Kind=TScrollBarKind
 LargeChange=Integer Max=Integer Min=Integer PageSize ParentBiDiMode ParentCtl3D ParentShowHint PopupMenu
 Position=Integer ShowHint SmallChange=Integer TabOrder TabStop Visible OnContextPopup OnChange OnDragDrop OnDragOver
 OnEndDrag OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp OnScroll OnStartDrag
TCustomGroupBox TCustomControl:
TGroupBox TCustomGroupBox: Align Anchors BiDiMode Caption Color Constraints Ctl3D DockSite DoubleBuffered DragCursor
 DragKind DragMode Enabled Font Padding ParentBackground ParentBiDiMode ParentColor ParentCtl3D ParentDoubleBuffered
 ParentFont ParentShowHint PopupMenu ShowHint TabOrder TabStop Visible OnClick OnContextPopup OnDblClick OnDragDrop
 OnDockDrop OnDockOver OnDragOver OnEndDock OnEndDrag OnEnter OnExit OnGetSiteInfo OnMouseDown OnMouseMove OnMouseUp
 OnStartDock OnStartDrag OnUnDock
TCustomStaticText TWinControl:
TStaticText TCustomStaticText: Align Alignment Anchors AutoSize BevelEdges BevelInner BevelKind BevelOuter BiDiMode
 BorderStyle=TStaticBorderStyle Caption Color Constraints DoubleBuffered DragCursor DragKind DragMode Enabled
 FocusControl Font ParentBiDiMode ParentColor ParentDoubleBuffered ParentFont ParentShowHint PopupMenu ShowAccelChar
 ShowHint TabOrder TabStop Transparent Visible OnClick OnContextPopup OnDblClick OnDragDrop OnDragOver OnEndDock
 OnEndDrag OnMouseDown OnMouseMove OnMouseUp OnStartDock OnStartDrag
@ExtCtrls
TShape TGraphicControl: Align Anchors Brush Constraints DragCursor DragKind DragMode Enabled ParentShowHint Pen
 Shape=TShapeType ShowHint Visible OnContextPopup OnDragDrop OnDragOver OnEndDock OnEndDrag OnMouseDown OnMouseMove
 OnMouseUp OnStartDock OnStartDrag
TPaintBox TGraphicControl: Align Anchors Color Constraints DragCursor DragKind DragMode Enabled Font ParentColor ParentFont
 ParentShowHint PopupMenu ShowHint Visible OnClick OnContextPopup OnDblClick OnDragDrop OnDragOver OnEndDock OnEndDrag
 OnMouseDown OnMouseMove OnMouseUp OnPaint OnStartDock OnStartDrag
TImage TGraphicControl: Align Anchors AutoSize Center Constraints DragCursor DragKind DragMode Enabled IncrementalDisplay
 ParentShowHint Picture PopupMenu Proportional ShowHint Stretch Transparent Visible OnClick OnContextPopup OnDblClick
 OnDragDrop OnDragOver OnEndDock OnEndDrag OnMouseDown OnMouseMove OnMouseUp OnProgress OnStartDock OnStartDrag
TBevel TGraphicControl: Align Anchors Constraints ParentShowHint Shape=TBevelShape ShowHint Style=TBevelStyle Visible
TTimer TComponent: Enabled Interval OnTimer
TCustomPanel TCustomControl:
TPanel TCustomPanel: Align Alignment Anchors AutoSize BevelEdges BevelInner BevelKind BevelOuter BevelWidth BiDiMode
 BorderWidth BorderStyle Caption Color Constraints Ctl3D UseDockManager DockSite DoubleBuffered DragCursor DragKind
 DragMode Enabled FullRepaint Font Locked Padding ParentBiDiMode ParentBackground ParentColor ParentCtl3D
 ParentDoubleBuffered ParentFont ParentShowHint PopupMenu ShowCaption ShowHint TabOrder TabStop Visible VerticalAlignment
 OnCanResize OnClick OnConstrainedResize OnContextPopup OnDockDrop OnDockOver OnDblClick OnDragDrop OnDragOver OnEndDock
 OnEndDrag OnEnter OnExit OnGetSiteInfo OnMouseDown OnMouseMove OnMouseUp OnResize OnStartDock OnStartDrag OnUnDock
TPage TCustomControl: Caption=string Height ImageIndex Left Top Width
TNotebook TCustomControl: Align Anchors Color Ctl3D DragCursor DragKind DragMode Font Enabled Constraints PageIndex
 Pages=TStrings ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ShowHint TabOrder TabStop Visible OnClick
 OnPageChanged
THeader TCustomControl: Align AllowResize Anchors BorderStyle Constraints Enabled Font ParentFont Sections=TStrings TabOrder
 TabStop Visible
TCustomRadioGroup TCustomGroupBox:
TRadioGroup TCustomRadioGroup: Align Anchors BiDiMode Caption Color Columns=Integer Ctl3D DoubleBuffered DragCursor
 DragKind DragMode Enabled Font ItemIndex Items Constraints ParentBiDiMode ParentBackground ParentColor ParentCtl3D
 ParentDoubleBuffered ParentFont ParentShowHint PopupMenu ShowHint TabOrder TabStop Visible WordWrap OnClick
 OnContextPopup OnDragDrop OnDragOver OnEndDock OnEndDrag OnEnter OnExit OnStartDock OnStartDrag
TSplitter TGraphicControl: Align AutoSnap Beveled Color Constraints MinSize ParentColor ResizeStyle Visible OnCanResize
 OnMoved OnPaint
TControlBar TCustomControl: Align Anchors AutoDock AutoDrag AutoSize BevelEdges BevelInner BevelOuter BevelKind BevelWidth
 BorderWidth Color Constraints Ctl3D DockSite DragCursor DragKind DragMode Enabled ParentColor ParentFont
 ParentShowHint Picture PopupMenu RowSize RowSnap ShowHint TabOrder TabStop Visible OnClick OnContextPopup OnDockDrop
 OnDockOver OnDragDrop OnDragOver OnResize
TBoundLabel TCustomLabel: BiDiMode Caption Color DragCursor DragKind DragMode Enabled Font Height Layout ParentBiDiMode
 ParentColor ParentFont ParentShowHint PopupMenu ShowAccelChar ShowHint Transparent Width WordWrap OnClick
TCustomLabeledEdit TCustomEdit:
TLabeledEdit TCustomLabeledEdit: Anchors AutoSelect AutoSize BevelEdges BevelInner BevelKind BevelOuter BiDiMode
 BorderStyle CharCase Color Constraints Ctl3D DragCursor DragKind DragMode EditLabel Enabled Font HideSelection ImeMode
 ImeName LabelPosition LabelSpacing MaxLength OEMConvert ParentBiDiMode ParentColor ParentCtl3D ParentFont
 ParentShowHint PasswordChar PopupMenu ReadOnly ShowHint TabOrder TabStop Text TextHint Visible OnChange OnClick
 OnDblClick OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp
TColorBox TCustomComboBox: Align AutoComplete AutoDropDown BevelEdges BevelInner BevelKind BevelOuter DefaultColorColor
 NoneColorColor Selected Style=TColorBoxStyle Anchors BiDiMode Color Constraints Ctl3D DropDownCount Enabled Font
 ItemHeight ParentBiDiMode ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ShowHint TabOrder TabStop Visible
 OnChange OnClick OnSelect
TTrayIcon TComponent: Animate AnimateInterval BalloonHint BalloonTitle BalloonTimeout BalloonFlags Hint Icon Icons IconIndex
 PopupMenu Visible OnClick OnDblClick OnMouseDown OnMouseMove OnMouseUp OnAnimate OnBalloonClick
TFlowPanel TCustomPanel: Align Anchors AutoSize AutoWrap BevelInner BevelOuter BorderStyle Caption Color Font TabOrder Visible
TGridPanel TCustomPanel: Align Anchors AutoSize BevelInner BevelOuter BorderStyle Caption Color Font TabOrder Visible
TLinkLabel TWinControl: Alignment Anchors AutoSize Caption Color Enabled Font ParentFont ShowHint TabOrder TabStop Visible OnClick
@Buttons
TSpeedButton TGraphicControl: Action Align AllowAllUp Anchors BiDiMode Constraints GroupIndex Down Caption Enabled
 ImageIndex ImageName Images Flat
 Font Glyph Layout=TButtonLayout Margin NumGlyphs ParentFont ParentShowHint ParentBiDiMode PopupMenu ShowHint Spacing
 Transparent Visible OnClick OnDblClick OnMouseDown OnMouseEnter OnMouseLeave OnMouseMove OnMouseUp
TBitBtn TButton: Action Anchors BiDiMode Cancel Caption Constraints Default DoubleBuffered Enabled Glyph Kind Layout=TButtonLayout
 Margin ModalResult NumGlyphs ParentShowHint ParentBiDiMode ShowHint Style=TButtonStyle Spacing TabOrder TabStop Visible
 OnEnter OnExit
@Mask
TCustomMaskEdit TCustomEdit:
TMaskEdit TCustomMaskEdit: Align Anchors AutoSelect AutoSize BevelEdges BevelInner BevelOuter BiDiMode BorderStyle CharCase
 Color Constraints Ctl3D DragCursor DragKind DragMode Enabled EditMask Font ImeMode ImeName MaxLength ParentBiDiMode
 ParentColor ParentCtl3D ParentFont ParentShowHint PasswordChar PopupMenu ReadOnly ShowHint TabOrder TabStop Text
 TextHint Visible OnChange OnClick OnDblClick OnDragDrop OnDragOver OnEndDock OnEndDrag OnEnter OnExit OnKeyDown
 OnKeyPress OnKeyUp
@Grids
TCustomGrid TCustomControl:
TCustomDrawGrid TCustomGrid:
TDrawGrid TCustomDrawGrid: Align Anchors BiDiMode BorderStyle Color ColCount Constraints Ctl3D DefaultColWidth
 DefaultRowHeight DefaultDrawing DragCursor DragKind DragMode Enabled FixedColor FixedCols RowCount FixedRows Font
 GridLineWidth Options=TGridOptions ParentBiDiMode ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu
 ScrollBars ShowHint TabOrder Visible VisibleColCount=Integer VisibleRowCount=Integer OnClick OnColumnMoved
 OnContextPopup OnDblClick OnDragDrop OnDragOver OnDrawCell OnEndDock OnEndDrag OnEnter OnExit OnGetEditMask OnGetEditText
 OnKeyDown OnKeyPress OnKeyUp OnMouseDown OnMouseMove OnMouseUp OnMouseWheelDown OnMouseWheelUp OnRowMoved OnSelectCell
 OnSetEditText OnStartDock OnStartDrag OnTopLeftChanged
TStringGrid TDrawGrid:
@ValEdit
TValueListEditor TCustomDrawGrid: Align Anchors BorderStyle Color Constraints Ctl3D DefaultColWidth DefaultRowHeight
 DisplayOptions DropDownRows Enabled FixedColor FixedCols Font KeyOptions Options=TGridOptions ParentColor ParentFont
 PopupMenu ScrollBars ShowHint Strings TabOrder TitleCaptions Visible OnClick OnEditButtonClick OnKeyDown OnValidate
@CheckLst
TCheckListBox TCustomListBox: OnClickCheck Align AllowGrayed Anchors AutoComplete BevelEdges BevelInner BevelKind
 BevelOuter BiDiMode BorderStyle Color Columns=Integer Constraints Ctl3D DragCursor DragKind DragMode Enabled Flat Font
 HeaderColor HeaderBackgroundColor ImeMode ImeName IntegralHeight ItemHeight Items ParentBiDiMode ParentColor
 ParentCtl3D ParentFont ParentShowHint PopupMenu ShowHint Sorted Style=TListBoxStyle TabOrder TabStop TabWidth Visible
 OnClick OnContextPopup OnDblClick OnDragDrop OnDragOver OnDrawItem OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp
 OnMeasureItem OnMouseDown OnMouseMove OnMouseUp
@AppEvnts
TApplicationEvents TComponent: OnActionExecute=TActionEvent OnActionUpdate=TActionEvent OnActivate OnDeactivate OnException
 OnIdle OnHelp OnHint OnMessage OnMinimize OnModalBegin OnModalEnd OnRestore OnShowHint OnShortCut
@ComCtrls
TCustomTabControl TWinControl:
TTabControl TCustomTabControl: Align Anchors BiDiMode Constraints DockSite DragCursor DragKind DragMode Enabled Font
 HotTrack Images MultiLine MultiSelect OwnerDraw ParentBiDiMode ParentFont ParentShowHint PopupMenu RaggedRight
 ScrollOpposite ShowHint Style=TTabStyle TabHeight TabOrder TabPosition Tabs=TStrings TabIndex TabStop TabWidth Visible
 OnChange OnChanging=TTabChangingEvent OnDrawTab OnEnter OnExit OnGetImageIndex OnResize
TTabSheet TWinControl: BorderWidth Caption DragMode Enabled Font Height Highlighted ImageIndex Left Constraints PageIndex
 ParentFont ParentShowHint PopupMenu ShowHint TabVisible Top Visible Width OnContextPopup OnDragDrop OnDragOver
 OnEndDrag OnEnter OnExit OnHide OnMouseDown OnMouseMove OnMouseUp OnResize OnShow OnStartDrag
TPageControl TCustomTabControl: ActivePage Align Anchors BiDiMode Constraints DockSite DoubleBuffered DragCursor DragKind
 DragMode Enabled Font HotTrack Images MultiLine OwnerDraw ParentBiDiMode ParentFont ParentShowHint PopupMenu RaggedRight
 ScrollOpposite ShowHint Style=TTabStyle TabHeight TabIndex TabOrder TabPosition TabStop TabWidth Visible OnChange
 OnChanging=TTabChangingEvent OnContextPopup OnDockDrop OnDockOver OnDragDrop OnDragOver OnDrawTab OnEndDock OnEndDrag
 OnEnter OnExit OnGetImageIndex OnGetSiteInfo OnMouseDown OnMouseMove OnMouseUp OnResize OnStartDock OnStartDrag OnUnDock
TStatusPanels TCollection <TStatusPanel>:
TStatusPanel TCollectionItem: Alignment Bevel=TStatusPanelBevel BiDiMode ParentBiDiMode Style=TStatusPanelStyle Text=string Width
TCustomStatusBar TWinControl:
TStatusBar TCustomStatusBar: Action AutoHint Align Anchors BiDiMode BorderWidth Color Constraints DragCursor DragKind
 DragMode Enabled Font Panels ParentBiDiMode ParentColor ParentFont ParentShowHint PopupMenu ShowHint SimplePanel
 SimpleText SizeGrip UseSystemFont Visible OnClick OnContextPopup OnCreatePanelClass OnDblClick OnDragDrop OnDragOver
 OnDrawPanel OnHint OnMouseDown OnMouseMove OnMouseUp OnResize
THeaderSections TCollection <THeaderSection>:
THeaderSection TCollectionItem: Alignment AllowClick AutoSize BiDiMode ImageIndex MaxWidth MinWidth ParentBiDiMode
 Style=THeaderSectionStyle Text=string Width
THeaderControl TWinControl: Align Anchors BiDiMode BorderWidth Constraints DragCursor DragKind DragMode DragReorder Enabled
 Font FullDrag HotTrack Images ParentBiDiMode ParentFont ParentShowHint PopupMenu Sections=THeaderSections ShowHint
 Style=THeaderStyle Visible OnDrawSection OnResize OnSectionClick OnSectionResize
TCustomTreeView TWinControl:
TTreeView TCustomTreeView: Align Anchors AutoExpand BevelEdges BevelInner BevelOuter BevelKind BevelWidth BiDiMode
 BorderStyle BorderWidth ChangeDelay Color Ctl3D Constraints DragKind DragCursor DragMode Enabled Font HideSelection
 HotTrack Images Indent MultiSelect MultiSelectStyle ParentBiDiMode ParentColor ParentCtl3D ParentFont ParentShowHint
 PopupMenu ReadOnly RightClickSelect RowSelect ShowButtons ShowHint ShowLines ShowRoot SortType StateImages TabOrder
 TabStop ToolTips Visible OnAdvancedCustomDraw OnAdvancedCustomDrawItem OnChange=TTVChangedEvent
 OnChanging=TTVChangingEvent OnClick OnCollapsed=TTVExpandedEvent OnCollapsing=TTVCollapsingEvent OnCompare=TTVCompareEvent
 OnContextPopup OnCreateNodeClass OnCustomDraw=TTVCustomDrawEvent OnCustomDrawItem=TTVCustomDrawItemEvent OnDblClick
 OnDeletion=TTVExpandedEvent OnDragDrop OnDragOver OnEdited=TTVEditedEvent OnEditing=TTVEditingEvent OnEndDock OnEndDrag
 OnEnter OnExit OnExpanded=TTVExpandedEvent OnExpanding=TTVExpandingEvent OnGetImageIndex=TTVExpandedEvent
 OnGetSelectedIndex=TTVExpandedEvent OnKeyDown OnKeyPress OnKeyUp OnMouseDown OnMouseMove OnMouseUp OnStartDock
 OnStartDrag Items=TTreeNodes
TTreeNodes TPersistent:
TListItems TPersistent:
TTrackBar TWinControl: Align Anchors BorderWidth Ctl3D DragCursor DragKind DragMode Enabled Constraints LineSize
 Max=Integer Min=Integer Orientation=TTrackBarOrientation ParentCtl3D ParentShowHint PageSize PopupMenu Frequency
 Position=Integer PositionToolTip SliderVisible SelEnd SelStart ShowHint TabOrder TabStop ThumbLength TickMarks TickStyle
 Visible OnContextPopup OnChange OnDragDrop OnDragOver OnEndDock OnEndDrag OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp
 OnStartDock OnStartDrag
TProgressBar TWinControl: Align Anchors BorderWidth DragCursor DragKind DragMode Enabled Hint Constraints Min=Integer
 Max=Integer Orientation=TProgressBarOrientation ParentShowHint PopupMenu Position=Integer Smooth Step Style=TProgressBarStyle
 MarqueeInterval SmoothReverse ShowHint State=TProgressBarState TabOrder TabStop Visible OnContextPopup OnDragDrop
 OnDragOver OnEndDock OnEndDrag OnEnter OnExit OnMouseDown OnMouseMove OnMouseUp OnStartDock OnStartDrag
TCustomRichEdit TCustomMemo:
TRichEdit TCustomRichEdit: Align Alignment Anchors BevelEdges BevelInner BevelOuter BevelKind BevelWidth BiDiMode
 BorderStyle BorderWidth Color Ctl3D DragCursor DragKind DragMode Enabled Font HideSelection HideScrollBars ImeMode
 ImeName Constraints Lines MaxLength ParentBiDiMode ParentColor ParentCtl3D ParentFont ParentShowHint PlainText PopupMenu
 ReadOnly ScrollBars ShowHint TabOrder TabStop Visible WantTabs WantReturns WordWrap OnChange OnClick OnContextPopup
 OnDblClick OnDragDrop OnDragOver OnEndDock OnEndDrag OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp OnMouseDown OnMouseMove
 OnMouseUp OnMouseWheel OnProtectChange OnResizeRequest OnSaveClipboard OnSelectionChange OnStartDock OnStartDrag
TCustomUpDown TWinControl:
TUpDown TCustomUpDown: AlignButton Anchors Associate ArrowKeys Enabled Hint Min=Integer Max=Integer Increment
 Constraints Orientation=TUDOrientation ParentShowHint PopupMenu Position=Integer ShowHint TabOrder TabStop Thousands
 Visible Wrap OnChanging=TUDChangingEvent OnChangingEx OnContextPopup OnClick=TUDClickEvent OnEnter OnExit OnMouseDown
 OnMouseMove OnMouseUp
THotKey TWinControl: Anchors AutoSize BiDiMode Constraints Enabled Hint HotKey InvalidKeys Modifiers ParentBiDiMode
 ParentShowHint PopupMenu ShowHint TabOrder TabStop Visible OnChange OnContextPopup OnEnter OnExit OnMouseDown
 OnMouseMove OnMouseUp
TListColumns TCollection <TListColumn>:
TListColumn TCollectionItem: Alignment AutoSize Caption=string ImageIndex MaxWidth MinWidth Tag Width
TListGroups TCollection <TListGroup>:
TListGroup TCollectionItem: Header=string Footer=string GroupID State=TListGroupStateSet HeaderAlign=TAlignment
 FooterAlign=TAlignment Subtitle=string TitleImage
TIconOptions TPersistent: Arrangement=TIconArrangement AutoArrange WrapText
TCustomListView TWinControl:
TListView TCustomListView: Action Align AllocBy Anchors BevelEdges BevelInner BevelOuter BevelKind BevelWidth BiDiMode
 BorderStyle BorderWidth Checkboxes Color Columns ColumnClick Constraints Ctl3D DragCursor DragKind DragMode Enabled Font
 FlatScrollBars FullDrag GridLines Groups HideSelection HotTrack HotTrackStyles HoverTime IconOptions Items=TListItems
 LargeImages MultiSelect OwnerData OwnerDraw GroupView ReadOnly RowSelect ParentBiDiMode ParentColor ParentFont
 ParentShowHint PopupMenu ShowColumnHeaders ShowWorkAreas ShowHint SmallImages SortType StateImages TabOrder TabStop
 ViewStyle Visible OnAdvancedCustomDraw OnAdvancedCustomDrawItem OnAdvancedCustomDrawSubItem OnChange=TLVChangeEvent
 OnChanging=TLVChangingEvent OnClick OnColumnClick=TLVColumnClickEvent OnColumnDragged OnColumnRightClick=TLVColumnRClickEvent
 OnCompare=TLVCompareEvent OnContextPopup OnCustomDraw=TLVCustomDrawEvent OnCustomDrawItem=TLVCustomDrawItemEvent
 OnCustomDrawSubItem=TLVCustomDrawSubItemEvent OnData=TLVOwnerDataEvent OnDataFind=TLVOwnerDataFindEvent
 OnDataHint=TLVOwnerDataHintEvent OnDataStateChange OnDblClick OnDeletion=TLVDeletedEvent OnDrawItem=TLVDrawItemEvent
 OnEdited=TLVEditedEvent OnEditing=TLVEditingEvent OnEndDock OnEndDrag OnEnter OnExit OnGetImageIndex=TLVNotifyEvent
 OnInfoTip OnInsert=TLVDeletedEvent OnItemChecked=TLVCheckedItemEvent OnKeyDown OnKeyPress OnKeyUp OnMouseDown
 OnMouseMove OnMouseUp OnResize OnSelectItem=TLVSelectItemEvent OnStartDock OnStartDrag
TAnimate TWinControl: Align Active AutoSize Anchors BorderWidth Center Color CommonAVI Constraints FileName ParentColor
 ParentShowHint Repetitions ShowHint StartFrame StopFrame Timers Transparent Visible OnOpen OnClose=TNotifyEvent OnStart OnStop
TToolButton TGraphicControl: Action AllowAllUp AutoSize Caption Down DragCursor DragKind DragMode DropdownMenu Enabled
 EnableDropdown Grouped Height ImageIndex ImageName Indeterminate Marked MenuItem ParentShowHint PopupMenu Wrap ShowHint
 Style=TToolButtonStyle Visible Width OnClick OnContextPopup OnDragDrop OnDragOver OnEndDock OnEndDrag OnMouseDown
 OnMouseMove OnMouseUp OnStartDock OnStartDrag
TToolWindow TWinControl:
TToolBar TToolWindow: Align Anchors AutoSize BorderWidth ButtonHeight ButtonWidth Caption Color Constraints Ctl3D Customizable
 DisabledImages DockSite DoubleBuffered DragCursor DragKind DragMode DrawingStyle=TTBDrawingStyle EdgeBorders EdgeInner
 EdgeOuter Enabled Flat Font Height HideClippedButtons HotImages Images Indent List Menu ParentColor ParentDoubleBuffered
 ParentFont ParentShowHint PopupMenu ShowCaptions ShowHint TabOrder TabStop Transparent Visible Wrapable OnClick
 OnContextPopup OnDblClick OnDockDrop OnDockOver OnDragDrop OnDragOver OnEndDock OnEndDrag OnEnter OnExit OnGetSiteInfo
 OnMouseDown OnMouseMove OnMouseUp OnResize OnStartDock OnStartDrag OnUnDock
TCoolBands TCollection <TCoolBand>:
TCoolBand TCollectionItem: Bitmap Break=Boolean Color Control=TWinControl FixedBackground FixedSize HorizontalOnly ImageIndex
 MinHeight=Integer MinWidth=Integer ParentColor ParentBitmap Text=string Visible Width
TCoolBar TToolWindow: Align Anchors AutoSize BandBorderStyle BandMaximize Bands=TCoolBands BorderWidth Color Constraints Ctl3D
 DockSite DragCursor DragKind DragMode EdgeBorders EdgeInner EdgeOuter Enabled FixedSize FixedOrder Font Images
 ParentColor ParentFont ParentShowHint Bitmap PopupMenu ShowHint ShowText Vertical Visible OnChange OnClick OnResize
TPageScroller TWinControl: Align Anchors AutoScroll ButtonSize Color Constraints Control=TWinControl Enabled Font Margin
 Orientation=TPageScrollerOrientation ParentColor ParentFont Position=Integer ShowHint TabOrder Visible OnScroll=TPageScrollEvent
TCommonCalendar TWinControl:
TMonthCalendar TCommonCalendar: Align Anchors AutoSize CalColors Constraints MultiSelect Date DragCursor DragKind DragMode
 Enabled EndDate=TDate FirstDayOfWeek Font MaxDate MinDate ParentFont ParentShowHint PopupMenu ShowHint ShowToday
 ShowTodayCircle TabOrder TabStop Visible WeekNumbers OnClick OnDblClick
TDateTimePicker TCommonCalendar: Anchors BevelEdges BevelInner BevelOuter BevelKind BevelWidth BiDiMode CalAlignment CalColors
 Constraints Date Format=string Time ShowCheckbox Checked Color DateFormat DateMode DragCursor DragKind DragMode Enabled
 Font ImeMode ImeName Kind=TDateTimeKind MaxDate MinDate ParseInput ParentBiDiMode ParentColor ParentFont ParentShowHint
 PopupMenu ShowHint TabOrder TabStop Visible OnClick OnCloseUp OnChange OnContextPopup OnDropDown OnDblClick OnEnter OnExit
 OnKeyDown OnKeyPress OnKeyUp OnUserInput
TComboExItems TCollection <TComboExItem>:
TComboExItem TCollectionItem: Caption=string Indent ImageIndex OverlayImageIndex SelectedImageIndex
TComboBoxEx TCustomComboBox: Align Anchors AutoCompleteOptions BiDiMode ItemsEx=TComboExItems Style=TComboBoxExStyle Color
 Constraints Ctl3D Enabled Font ItemHeight MaxLength ParentColor ParentFont ParentShowHint PopupMenu ShowHint TabOrder
 TabStop Text Visible OnChange OnClick OnDropDown OnEnter OnExit OnSelect Images DropDownCount
@Spin
TSpinButton TWinControl: Align Anchors Constraints Ctl3D DownGlyph DownNumGlyphs DragCursor DragKind DragMode Enabled
 FocusControl ParentCtl3D ParentShowHint PopupMenu ShowHint TabOrder TabStop UpGlyph UpNumGlyphs Visible OnDownClick
 OnUpClick
TSpinEdit TCustomEdit: Anchors AutoSelect AutoSize Color Constraints Ctl3D DragCursor DragMode EditorEnabled Enabled Font
 Increment MaxLength MaxValue MinValue ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ReadOnly ShowHint
 TabOrder TabStop Value=LongInt Visible OnChange OnClick OnDblClick OnDragDrop OnDragOver OnEndDrag OnEnter OnExit
 OnKeyDown OnKeyPress OnKeyUp OnMouseDown OnMouseMove OnMouseUp OnStartDrag
@Gauges
TGauge TGraphicControl: Align Anchors BackColor BorderStyle Color Constraints Enabled ForeColor Font Kind=TGaugeKind MinValue
 MaxValue ParentColor ParentFont ParentShowHint PopupMenu Progress=LongInt ShowHint ShowText Visible
@Calendar
TCalendar TCustomGrid: Align Anchors BorderStyle CalendarDate=TDateTime Color Constraints Ctl3D Day=Integer Enabled Font
 GridLineWidth Month=Integer ParentColor ParentFont ParentShowHint PopupMenu ReadOnly ShowHint StartOfWeek TabOrder
 TabStop UseCurrentDate Visible Year=Integer OnChange OnClick OnDblClick
@Tabs
TTabSet TCustomControl: Align Anchors AutoScroll BackgroundColor DitherBackground DragMode Enabled EndMargin Font
 ParentShowHint PopupMenu StartMargin SelectedColor ShowHint SoftTop Style=TTabStyle TabHeight Tabs=TStrings TabIndex
 UnselectedColor Visible VisibleTabs OnClick OnChange=TTabChangeEvent OnDrawTab OnEnter OnExit
@TabNotBk
TTabbedNotebook TCustomTabControl: ActivePage=string Align Anchors Enabled PageIndex Pages=TStrings Font TabsPerRow TabFont
 ParentShowHint PopupMenu TabOrder TabStop Visible OnClick OnChange=TPageChangeEvent OnEnter OnExit
@FileCtrl
TFileListBox TCustomListBox: Align Anchors AutoComplete Color Constraints Ctl3D DragCursor DragMode Enabled ExtendedSelect
 FileEdit FileType Font IntegralHeight ItemHeight Mask=string MultiSelect ParentColor ParentCtl3D ParentFont
 ParentShowHint PopupMenu ShowGlyphs ShowHint TabOrder TabStop Visible OnChange OnClick OnDblClick OnEnter OnExit
TDirectoryListBox TCustomListBox: Align Anchors AutoComplete Color Columns=Integer Constraints Ctl3D DirLabel DragCursor DragMode
 Enabled FileList Font IntegralHeight ItemHeight ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ShowHint
 TabOrder TabStop Visible OnChange OnClick OnDblClick OnEnter OnExit
TDriveComboBox TCustomComboBox: Align Anchors AutoComplete Color Constraints Ctl3D DirList DragCursor DragMode Enabled Font
 ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ShowHint TabOrder TabStop TextCase Visible OnChange OnClick
TFilterComboBox TCustomComboBox: Align Anchors AutoComplete Color Constraints Ctl3D Enabled FileList Filter Font ParentColor
 ParentFont ParentShowHint PopupMenu ShowHint TabOrder TabStop Visible OnChange OnClick
@ActnCtrls
TActionToolBar TCustomControl: ActionManager Align AllowHiding Anchors Caption Color ColorMap Constraints Enabled Font
 HorzMargin HorzSeparator ParentFont ParentShowHint ShowHint Spacing TabOrder Visible
@ActnMenus
TActionMainMenuBar TCustomControl: ActionManager Align Anchors AnimateDuration Caption Color ColorMap Constraints Enabled Font
 HorzMargin HorzSeparator ParentFont ParentShowHint PersistentHotKeys ShowHint Spacing UseSystemFont VertMargin Visible
@OleCtnrs
TOleContainer TCustomControl: Align Anchors AutoActivate AutoVerbMenu BorderStyle Caption Color Constraints Ctl3D Enabled
 Iconic OldStreamFormat ParentColor ParentShowHint PopupMenu ShowHint SizeMode TabOrder TabStop Visible
@Outline
TOutline TCustomGrid: Lines OutlineStyle Options=TOutlineOptions Style=TOutlineType Align Anchors BorderStyle Color Ctl3D
 Enabled Font ItemHeight ItemSeparator ParentColor ParentFont ScrollBars ShowHint TabOrder TabStop Visible OnClick OnDblClick
@QComCtrls
TIconView TWinControl: Align Anchors BorderStyle Color Constraints Enabled Font IconOptions Images Items=TListItems
 MultiSelect ParentColor ParentFont ParentShowHint PopupMenu ReadOnly ShowHint TabOrder TabStop Visible OnClick OnDblClick
TTextViewer TWinControl: Align Anchors BorderStyle Color Constraints Enabled FileName Font ParentColor ParentFont
 ParentShowHint PopupMenu ShowHint TabOrder TabStop Text Visible
TTextBrowser TTextViewer:
TLCDNumber TWinControl: Align Anchors AutoSize BorderStyle Color Constraints Digits=Integer Enabled ParentColor ParentShowHint
 PopupMenu ShowHint Value=string Visible
)";

} // namespace glotta
