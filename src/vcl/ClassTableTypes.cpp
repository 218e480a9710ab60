#include "vcl/ClassTables.h"

namespace glotta {

const std::string_view PropertyTypes = R"(
TCaption s Caption Text
TTranslateString s
string s ItemSeparator Hint TextHint Title Filter HelpKeyword HelpFile Category ImageName ImeName StyleName DefaultExt FileName InitialDir
 FindText ReplaceText EditMask DisplayLabel DisplayFormat EditFormat DisplayValues DefaultExpression CustomConstraint
 ConstraintErrorMessage ImportedConstraint FieldName KeyFields LookupKeyFields LookupResultField Origin DatabaseName
 TableName IndexName IndexFieldNames MasterFields ConnectionString CommandText ProviderName DataField KeyField ListField
 ValueChecked ValueUnchecked ClientGuid BalloonHint BalloonTitle SimpleText CommandLinkHint Language PropertyName Host Provider
TComponentName s Name
TFontName s
AnsiString s
WideString w
Char h PasswordChar
Integer i Left Top Width Height ClientHeight ClientWidth ButtonHeight ButtonWidth Right Bottom Tag Increment ItemHeight
 ItemIndex MaxLength TabWidth ColCount RowCount FixedCols FixedRows DefaultColWidth DefaultRowHeight GridLineWidth Indent
 TabHeight TabIndex PageIndex GroupIndex ScrollWidth DropDownCount DropDownRows BorderWidth BevelWidth Spacing NumGlyphs
 Size Precision DisplayWidth MinSize MaxWidth MinWidth Frequency LineSize SelStart SelEnd ThumbLength PageSize Step
 MarqueeInterval ActiveLanguage NumberOfLanguages AlphaBlendValue SnapBuffer PixelsPerInch GlowSize RowSize ButtonSize
 ThumbSize Range HoverTime ChangeDelay AllocBy FilterIndex Copies FromPage ToPage MinPage MaxPage MinFontSize MaxFontSize
 LabelSpacing AnimateInterval BalloonTimeout IconIndex UsageCount TabsPerRow StartMargin EndMargin VisibleTabs
 AnimateDuration HorzMargin VertMargin ListFieldIndex DropDownWidth PanelHeight PanelWidth CommandTimeout
 ConnectionTimeout CacheSize PacketRecords MaxBlobSize GroupID TitleImage StartFrame StopFrame Repetitions NumericScale
 BufferChunks IdleTimer SQLDialect CommitCount ThreadCacheSize Port FileTypeIndex StartOfWeek MinHeight MaxHeight
 UpNumGlyphs DownNumGlyphs FontSize HorzSeparator GroupingLevel Margin
LongInt i MaxValue MinValue HelpContext
Word i
Cardinal i Interval
THelpContext i
TCursor i Cursor DragCursor
TColor i Color BkColor BlendColor TransparentColorValue FixedColor ForeColor BackColor BackgroundColor SelectedColor
 UnselectedColor HeaderColor HeaderBackgroundColor Selected DefaultColorColor NoneColorColor
TFontCharset i Charset
TShortCut i ShortCut HotKey
TImageIndex i ImageIndex DisabledImageIndex HotImageIndex PressedImageIndex SelectedImageIndex OverlayImageIndex
TTabOrder i TabOrder
TModalResult i ModalResult
TConstraintSize i
Int64 6
Double f
Single f
Extended f
Currency f
TDateTime f
TDate f Date MaxDate MinDate
TTime f Time
Variant v
Boolean e Active AggregatesActive AlignWithMargins AllowAllUp AllowClick AllowDelete AllowGrayed AllowHiding AllowInsert
 AllowResize AllowStreamedConnected AlphaBlend Animate ArrowKeys AutoArrange AutoCalcFields AutoCheck AutoCloseUp
 AutoComplete AutoDisplay AutoDock AutoDrag AutoDropDown AutoEdit AutoEnable AutoExpand AutoHint AutoMerge AutoOpen
 AutoPopup AutoRefresh AutoRewind AutoScroll AutoSelect AutoSessionName AutoSize AutoSnap AutoStretch AutoVerbMenu
 AutoWrap Beveled Browse CacheBlobs CachedUpdates Cancel Center Checkboxes Checked
 Collate ColumnClick ConfirmDelete Connected Constrained Ctl3D Currency Customizable Default DefaultDrawing
 DefaultIndex DisableStringTrim DitherBackground DockSite DoubleBuffered Down DragReorder EditorEnabled
 ElevationRequired EnableDropdown Enabled Exclusive Expanded Exported ExtendedSelect FetchOnDemand Filtered FixedBackground
 FixedChar FixedOrder FixedSize Flat FlatScrollBars FullDrag FullRepaint GraphicHeader GridLines GroupView Grouped
 HandleShared HasConstraints HideClippedButtons HideScrollBars HideSelection Highlighted HorizontalOnly HotTrack Iconic
 IgnoreRemovals IncrementalDisplay Indeterminate IntegralHeight KeepConnection KeepConnections KeyPreview List
 LoadParamsOnConnect Locked LoginPrompt LookupCache Marked Masked MultiLine MultiSelect NumbersOnly ObjectMenuItem
 ObjectView OEMConvert OldCreateOrder OldStreamFormat OwnerData OwnerDraw ParamCheck ParentBackground ParentBiDiMode
 ParentBitmap ParentColor ParentCtl3D ParentDoubleBuffered ParentFont ParentShowHint PersistentHotKeys PlainText
 PositionToolTip Prepared PrintToFile Proportional QuickDraw RadioItem RaggedRight ReadOnly RequestLive Required
 ResetAfterPrint ResolveToDataSet RightClickSelect RowSelect RowSnap Scaled ScreenSnap ScrollOpposite Shareable
 ShareImages ShowAccelChar ShowButtons ShowCaption ShowCaptions ShowCheckbox ShowColumnHeaders ShowGlyph ShowGlyphs
 ShowHint ShowLines ShowRoot ShowShortCut ShowText ShowToday ShowTodayCircle ShowWorkAreas SimplePanel SizeGrip
 SliderVisible Smooth SmoothReverse SoftTop Sorted SQLHourGlass StoreDefs Stretch TableDirect TabStop TabVisible
 Thousands Timers ToolTips Tracking Transliterate TransparentColor Transparent UniDirectional UseCurrentDate
 UseDefaultApp UseDockManager UseSystemFont Vertical Visible WantReturns WantTabs WeekNumbers WordWrap Wrap Wrapable
 WrapText ParseInput AlignToBand ColoredButtons AbortOnKeyViol AbortOnProblem
TAlign e Align
TAlignment e Alignment
TLeftRight e
TPopupAlignment e
TVerticalAlignment e VerticalAlignment
TBiDiMode e BiDiMode
TBevelCut e BevelInner BevelOuter
TBevelKind e BevelKind
TBorderStyle e BorderStyle BandBorderStyle
TFormBorderStyle e
TStaticBorderStyle e
TFormStyle e FormStyle
TPosition e
TPrintScale e PrintScale
TWindowState e WindowState
TDefaultMonitor e DefaultMonitor
TPopupMode e PopupMode
TDragKind e DragKind
TDragMode e DragMode
TEditCharCase e CharCase TextCase
TImeMode e ImeMode
TScrollStyle e ScrollBars
TTextLayout e Layout
TButtonLayout e GlyphLayout
TBitBtnKind e Kind
THelpType e HelpType
TFontPitch e Pitch
TSortType e SortType
TViewStyle e ViewStyle
TTabPosition e TabPosition
TTickMark e TickMarks
TTickStyle e TickStyle
TUDAlignButton e AlignButton
TLabelPosition e LabelPosition
TEllipsisPosition e EllipsisPosition
TResizeStyle e ResizeStyle
TFieldType e DataType BlobType
TFieldKind e FieldKind
TParamType e ParamType
TUpdateMode e UpdateMode
TColumnButtonStyle e ButtonStyle
TMenuAutoFlag e AutoHotkeys AutoLineReduction
TMenuAnimations t MenuAnimation
TTrackButton e TrackButton
TColorDepth e ColorDepth
TDrawingStyle e DrawingStyle
TImageType e ImageType
TImageAlignment e ImageAlignment
TEdgeStyle e EdgeInner EdgeOuter
TButtonStyle e
TScrollBarStyle e
TListBoxStyle e
TComboBoxStyle e
TComboBoxExStyle e
TColorBoxStyle t
TPenMode e
TPenStyle e
TBrushStyle e
TCheckBoxState e
TShapeType e
TBevelShape e
TBevelStyle e
TScrollBarKind e
TTabStyle e
TToolButtonStyle e
TTBDrawingStyle e
TStatusPanelBevel e
TStatusPanelStyle e
THeaderStyle e
THeaderSectionStyle e
TTrackBarOrientation e
TProgressBarOrientation e
TProgressBarStyle e
TProgressBarState e
TUDOrientation e
TPageScrollerOrientation e
TIconArrangement e
TDateTimeKind e
TDTDateFormat e DateFormat
TDTDateMode e DateMode
TDTCalAlignment e CalAlignment
TCalDayOfWeek e FirstDayOfWeek
TGaugeKind e
TMenuBreak e
TActionListState e
TFontQuality e
TShowCmd e
TBatchMode e
TConnectMode e
TDBCtrlGridOrientation e
TOutlineType e
TOutlineStyle e OutlineStyle
TPageMeasureUnits e
TOtherEnumeration e FileEditStyle Device PrintRange TableType ParamBindMode ConfigMode TransIsolation CursorLocation CursorType
 IsolationLevel LockType CommandType DropDownAlign PanelBorder AutoActivate SizeMode CommonAVI
 MainIcon FooterIcon DefaultButton DefaultAction AutoStopAction CommandStyle BackgroundLayout ClientType ServerType
 DeviceType BalloonFlags BandMaximize
TFontStyles t
TBorderIcons t BorderIcons
TAnchors t Anchors
TBevelEdges t BevelEdges
TEdgeBorders t EdgeBorders
TOpenOptions t
TFontDialogOptions t
TColorDialogOptions t
TPrintDialogOptions t
TPageSetupDialogOptions t
TFindOptions t
TFileDialogOptions t
TGridOptions t
TDBGridOptions t
TOutlineOptions t
TIndexOptions t
TFieldAttributes t
TProviderOptions t
TXactAttributes t
TListGroupStateSet t
TButtonSet t
TNavButtonSet t VisibleButtons
TOtherSet t OptionsEx HotTrackStyles MultiSelectStyle ProviderFlags FilterOptions ExecuteOptions ConnectOptions StyleElements
 InteractiveGestures InteractiveGestureOptions TabletOptions ParentTabletOptions InvalidKeys Modifiers DisplayOptions KeyOptions
 AutoCompleteOptions TraceFlags TableScope CommonButtons Flags ChangesAllowed EnabledButtons FileType
TStrings c Items Lines Strings SQL PickList Hints CustomColors TitleCaptions LangNames Captions DisplayLabels Fonts MultiLines
 DlgsCaptions OtherStrings Locales CharSets Collections ListView_TreeView_Items DoNotTranslate ExcludedProperties
 SmartExcludeProps PrioritySchedule
TFont c Font TitleFont TabFont
TBrush c Brush
TPen c Pen
TPicture c Picture
TBitmap c Bitmap Glyph UpGlyph DownGlyph
TIcon c Icon
TSizeConstraints c Constraints
TMargins c Margins ImageMargins
TPadding c Padding
TControlScrollBar c HorzScrollBar VertScrollBar
TTouchManager c Touch
TGlassFrame c GlassFrame
TIconOptions c IconOptions
TListColumns c Columns
TListGroups c Groups
TStatusPanels c Panels
THeaderSections c
TCoolBands c
TComboExItems c
TListItems c
TTreeNodes c
TDBGridColumns c
TColumnTitle c
TFieldDefs c FieldDefs
TIndexDefs c IndexDefs
TParams c
TAggregates c Aggregates
TCheckConstraints c
TActionBars c ActionBars
TActionClients c
TTaskDialogButtons c
TBoundLabel c EditLabel
TMonthCalColors c CalColors
TShortCutList c SecondaryShortCuts
TOtherPersistent c FavoriteLinks FileTypes Frame BackWall Foot LinkedActionLists
TChartTitle c
TCustomControl c
TTabSheet c ActivePage
TBasicAction c Action
TCustomImageList c Images LargeImages SmallImages StateImages HotImages DisabledImages SubMenuImages Icons
TPopupMenu c PopupMenu DropdownMenu DropDownMenu
TMainMenu c Menu
TMenuItem c MenuItem WindowMenu
TForm c PopupParent
TWinControl c FocusControl ActiveControl Associate
TCustomHint c CustomHint
TCustomGestureManager c GestureManager
TDataSource c DataSource MasterSource ListSource
TDataSet c DataSet LookupDataSet
TDataSetField c DataSetField
TUpdateSQL c UpdateObject
TCustomRemoteServer c RemoteServer
TADOConnection c
TSQLConnection c SQLConnection
TIBDatabase c Database
TIBTransaction c Transaction DefaultTransaction
TSession c
TTable c
TBDEDataSet c
TPageControl c
TSearchFind c
TEdit c FileEdit
TLabel c DirLabel
TFileListBox c FileList
TDirectoryListBox c DirList
TCustomActionManager c ActionManager
TCustomActionBarColorMap c ColorMap
TCommonDialog c Dialog
TOpenDialog c
TComponent c
TgxCustomLang c Glotta CommonContainer
TGlottaDispatcher c GlottaDispatcher LangDispatcher
TLanguageInfos c LanguageInfos
TExtendedTranslations c ExtendedTranslations
TNotifyEvent m OnHint OnActivate OnDeactivate OnChange OnClick OnCreate OnDblClick OnDestroy OnDropDown OnCloseUp OnSelect OnEnter OnExit
 OnHide OnShow OnPaint OnResize OnTimer OnPopup OnExecute OnUpdate OnMouseEnter OnMouseLeave OnStateChange
 OnChangeLanguage OnMoved OnPageChanged OnClickCheck OnSelectionChange OnFolderChange OnTypeChange OnFind OnReplace
 OnDownClick OnUpClick OnOpen OnStart OnStop OnTopLeftChanged OnColEnter OnColExit OnEditButtonClick OnUpdateData
 OnAccept OnCancel BeforeExecute OnMinimize OnModalBegin OnModalEnd OnRestore OnAnimate OnBalloonClick OnStartup
 AfterConnect AfterDisconnect BeforeConnect BeforeDisconnect OnDropDownClick OnNotify
TKeyEvent m OnKeyDown OnKeyUp
TKeyPressEvent m OnKeyPress
TMouseEvent m OnMouseDown OnMouseUp
TMouseMoveEvent m OnMouseMove
TMouseActivateEvent m OnMouseActivate
TMouseWheelEvent m OnMouseWheel
TMouseWheelUpDownEvent m OnMouseWheelDown OnMouseWheelUp
TGestureEvent m OnGesture
TCloseEvent m OnClose
TCloseQueryEvent m OnCloseQuery OnCanClose
TCanResizeEvent m OnCanResize
TConstrainedResizeEvent m OnConstrainedResize
TContextPopupEvent m OnContextPopup
TDragDropEvent m OnDragDrop
TDragOverEvent m OnDragOver
TEndDragEvent m OnEndDrag OnEndDock
TStartDragEvent m OnStartDrag
TStartDockEvent m OnStartDock
TDockDropEvent m OnDockDrop
TDockOverEvent m OnDockOver
TUnDockEvent m OnUnDock
TGetSiteInfoEvent m OnGetSiteInfo
THelpEvent m OnHelp
TShortCutEvent m OnShortCut
TScrollEvent m OnScroll
TPageScrollEvent m
TDrawItemEvent m OnDrawItem
TMeasureItemEvent m OnMeasureItem
TMenuChangeEvent m
TMenuDrawItemEvent m
TAdvancedMenuDrawItemEvent m OnAdvancedDrawItem
TMenuMeasureItemEvent m
TActionEvent m
TExceptionEvent m OnException
TIdleEvent m OnIdle
TMessageEvent m OnMessage
TShowHintEvent m OnShowHint
TProgressEvent m OnProgress
TTabChangingEvent m
TTabChangeEvent m
TPageChangeEvent m
TDrawTabEvent m OnDrawTab
TTabGetImageEvent m OnGetImageIndex
TTVChangedEvent m
TTVChangingEvent m
TTVExpandedEvent m
TTVExpandingEvent m
TTVCollapsingEvent m
TTVCompareEvent m
TTVCustomDrawEvent m
TTVCustomDrawItemEvent m
TTVEditedEvent m
TTVEditingEvent m
TLVChangeEvent m
TLVChangingEvent m
TLVColumnClickEvent m
TLVColumnRClickEvent m
TLVCompareEvent m
TLVCustomDrawEvent m
TLVCustomDrawItemEvent m
TLVCustomDrawSubItemEvent m
TLVDeletedEvent m
TLVDrawItemEvent m
TLVEditedEvent m
TLVEditingEvent m
TLVNotifyEvent m
TLVCheckedItemEvent m
TLVOwnerDataEvent m
TLVOwnerDataFindEvent m
TLVOwnerDataHintEvent m
TLVSelectItemEvent m
TUDChangingEvent m
TUDClickEvent m
TUDChangingEventEx m OnChangingEx
TDrawPanelEvent m OnDrawPanel
TSectionNotifyEvent m OnSectionClick OnSectionResize
TDrawSectionEvent m OnDrawSection
TDrawCellEvent m OnDrawCell
TSelectCellEvent m OnSelectCell
TMovedEvent m OnColumnMoved OnRowMoved
TGetEditEvent m OnGetEditMask OnGetEditText
TSetEditEvent m OnSetEditText
TLBGetDataEvent m OnData
TLBFindDataEvent m OnDataFind
TLBGetDataObjectEvent m OnDataObject
TDataChangeEvent m OnDataChange
TDataSetNotifyEvent m BeforeOpen AfterOpen BeforeClose AfterClose BeforeInsert AfterInsert BeforeEdit AfterEdit BeforePost AfterPost
 BeforeCancel AfterCancel BeforeDelete AfterDelete BeforeScroll AfterScroll BeforeRefresh AfterRefresh OnCalcFields
 OnNewRecord
TDataSetErrorEvent m OnDeleteError OnEditError OnPostError
TFilterRecordEvent m OnFilterRecord
TFieldNotifyEvent m
TFieldGetTextEvent m
TFieldSetTextEvent m
TDatabaseLoginEvent m
TPasswordEvent m OnPassword
TReconcileErrorEvent m OnReconcileError
TDBGridClickEvent m OnCellClick OnTitleClick
TDrawColumnCellEvent m OnDrawColumnCell
TDrawDataCellEvent m OnDrawDataCell
TNavClickEvent m
TBeforeNavClickEvent m BeforeAction
TSocketNotifyEvent m OnConnect OnConnecting OnDisconnect OnLookup OnRead OnWrite OnListen OnClientConnect OnClientDisconnect OnClientRead
 OnClientWrite
TSocketErrorEvent m OnError OnClientError
TOtherEvent m OnAfterMonitorDpiChanged OnBeforeMonitorDpiChanged OnAdvancedCustomDraw OnAdvancedCustomDrawItem
 OnAdvancedCustomDrawSubItem OnCreateNodeClass OnCreatePanelClass OnColumnDragged OnDataStateChange OnInfoTip OnProtectChange
 OnResizeRequest OnSaveClipboard OnUserInput OnIncludeItem OnApply OnValidate OnConnectComplete
)";

} // namespace glotta
