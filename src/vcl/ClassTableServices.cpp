#include "vcl/ClassTables.h"

namespace glotta {

const std::string_view ServiceClasses = R"(
@Dialogs
TCommonDialog TComponent: Ctl3D HelpContext OnClose=TNotifyEvent OnShow
TOpenDialog TCommonDialog: DefaultExt FileName Filter FilterIndex InitialDir Options=TOpenOptions Title OptionsEx
 FileEditStyle OnCanClose OnFolderChange OnSelectionChange OnTypeChange OnIncludeItem
TSaveDialog TOpenDialog:
TColorDialog TCommonDialog: Color CustomColors Options=TColorDialogOptions
TFontDialog TCommonDialog: Font Device MinFontSize MaxFontSize Options=TFontDialogOptions OnApply
TPrinterSetupDialog TCommonDialog:
TPrintDialog TCommonDialog: Collate Copies FromPage MinPage MaxPage Options=TPrintDialogOptions PrintToFile PrintRange ToPage
TPageSetupDialog TCommonDialog: MinMarginLeft=Integer MinMarginTop=Integer MinMarginRight=Integer MinMarginBottom=Integer
 MarginLeft=Integer MarginTop=Integer MarginRight=Integer MarginBottom=Integer Options=TPageSetupDialogOptions Units=TPageMeasureUnits
TFindDialog TCommonDialog: FindText Options=TFindOptions OnFind
TReplaceDialog TFindDialog: ReplaceText OnReplace
TTaskDialogButtons TCollection <TTaskDialogBaseButtonItem>:
TTaskDialogBaseButtonItem TCollectionItem: Caption=string Default ModalResult CommandLinkHint
TTaskDialog TComponent: Buttons=TTaskDialogButtons Caption=string CommonButtons DefaultButton ExpandButtonCaption=string
 ExpandedText=string Flags FooterIcon FooterText=string MainIcon RadioButtons=TTaskDialogButtons Text=string Title
 VerificationText=string
TFileOpenDialog TComponent: ClientGuid DefaultExtension=string DefaultFolder=string FavoriteLinks FileName FileNameLabel=string
 FileTypes FileTypeIndex OkButtonLabel=string Options=TFileDialogOptions Title
TFileSaveDialog TFileOpenDialog:
@ExtDlgs
TOpenPictureDialog TOpenDialog:
TSavePictureDialog TOpenPictureDialog:
@DB
TDataSource TComponent: AutoEdit DataSet Enabled OnStateChange OnDataChange OnUpdateData
TFieldDefs TCollection <TFieldDef>:
TFieldDef TCollectionItem: Name=string Attributes=TFieldAttributes DataType Precision Size
TIndexDefs TCollection <TIndexDef>:
TIndexDef TCollectionItem: Name=string CaseInsFields=string DescFields=string Expression=string Fields=string Options=TIndexOptions
 Source=string
TParams TCollection <TParam>:
TParam TCollectionItem: DataType Precision NumericScale Name=string ParamType Size Value=Variant
TCustomConnection TComponent:
TDataSet TComponent:
TDBDataSet TDataSet: Active AutoCalcFields
TField TComponent: Alignment ConstraintErrorMessage CustomConstraint DefaultExpression DisplayLabel DisplayWidth FieldKind
 FieldName HasConstraints ImportedConstraint Index=Integer KeyFields LookupCache LookupDataSet LookupKeyFields
 LookupResultField Origin ProviderFlags ReadOnly Required Visible OnChange=TFieldNotifyEvent OnGetText=TFieldGetTextEvent
 OnSetText=TFieldSetTextEvent OnValidate=TFieldNotifyEvent
TStringField TField: EditMask FixedChar Size Transliterate
TWideStringField TStringField:
TNumericField TField: Alignment DisplayFormat EditFormat
TIntegerField TNumericField: MaxValue MinValue
TSmallintField TIntegerField:
TWordField TIntegerField:
TAutoIncField TIntegerField:
TLargeintField TNumericField: MaxValue=Int64 MinValue=Int64
TFloatField TNumericField: Currency MaxValue=Double MinValue=Double Precision
TCurrencyField TFloatField: Currency
TBCDField TNumericField: Currency MaxValue=Currency MinValue=Currency Precision Size
TFMTBCDField TNumericField: Currency MaxValue=string MinValue=string Precision Size
TBooleanField TField: DisplayValues
TDateTimeField TField: DisplayFormat EditMask
TDateField TDateTimeField:
TTimeField TDateTimeField:
TSQLTimeStampField TField: DisplayFormat EditMask
TBinaryField TField: Size
TBytesField TBinaryField:
TVarBytesField TBytesField:
TBlobField TField: BlobType GraphicHeader Size
TMemoField TBlobField: Transliterate
TWideMemoField TBlobField:
TGraphicField TBlobField:
TAggregateField TField: Active DisplayName=string DisplayFormat Expression=string GroupingLevel IndexName
@DBTables
TSession TComponent: Active AutoSessionName ConfigMode KeepConnections NetFileDir=string PrivateDir=string SessionName=string
 SQLHourGlass OnPassword OnStartup
TDatabase TCustomConnection: AliasName=string Connected DatabaseName DriverName=string Exclusive HandleShared KeepConnection
 LoginPrompt Params=TStrings ReadOnly SessionName=string TransIsolation AfterConnect AfterDisconnect BeforeConnect
 BeforeDisconnect OnLogin=TDatabaseLoginEvent
TBDEDataSet TDataSet: CacheBlobs
TTable TBDEDataSet: Active AutoCalcFields AutoRefresh CachedUpdates DatabaseName SessionName=string BeforeOpen AfterOpen
 BeforeClose AfterClose BeforeInsert AfterInsert BeforeEdit AfterEdit BeforePost AfterPost BeforeCancel AfterCancel
 BeforeDelete AfterDelete BeforeScroll AfterScroll OnCalcFields OnDeleteError OnEditError OnFilterRecord OnNewRecord
 OnPostError Constraints=TCheckConstraints DefaultIndex Exclusive FieldDefs Filter Filtered FilterOptions
 IndexDefs IndexFieldNames IndexFiles=TStrings IndexName MasterFields MasterSource ReadOnly StoreDefs TableName TableType
 UpdateMode UpdateObject
TQuery TBDEDataSet: Active AutoCalcFields AutoRefresh CachedUpdates DatabaseName SessionName=string BeforeOpen AfterOpen
 BeforeClose AfterClose BeforeInsert AfterInsert BeforeEdit AfterEdit BeforePost AfterPost BeforeCancel AfterCancel
 BeforeDelete AfterDelete BeforeScroll AfterScroll OnCalcFields OnDeleteError OnEditError OnFilterRecord OnNewRecord
 OnPostError Constrained Constraints=TCheckConstraints DataSource Filter Filtered FilterOptions ParamCheck RequestLive SQL
 Params=TParams UniDirectional UpdateMode UpdateObject
TStoredProc TBDEDataSet: Active DatabaseName Overload=Word StoredProcName=string ParamBindMode Params=TParams
TUpdateSQL TComponent: ModifySQL=TStrings InsertSQL=TStrings DeleteSQL=TStrings
TBatchMove TComponent: AbortOnKeyViol AbortOnProblem ChangedTableName=string CommitCount Destination=TTable Mappings=TStrings
 Mode=TBatchMode ProblemTableName=string RecordCount=LongInt Source=TBDEDataSet Transliterate
@DBClient
TCustomClientDataSet TDataSet:
TClientDataSet TCustomClientDataSet: Active Aggregates AggregatesActive AutoCalcFields CommandText Constraints=TCheckConstraints
 DataSetField DisableStringTrim FetchOnDemand FieldDefs FileName Filter Filtered FilterOptions IndexDefs IndexFieldNames
 IndexName MasterFields MasterSource ObjectView PacketRecords Params=TParams ProviderName ReadOnly RemoteServer StoreDefs
 BeforeOpen AfterOpen BeforeClose AfterClose BeforeInsert AfterInsert BeforeEdit AfterEdit BeforePost AfterPost
 BeforeCancel AfterCancel BeforeDelete AfterDelete BeforeScroll AfterScroll BeforeRefresh AfterRefresh OnCalcFields
 OnDeleteError OnEditError OnFilterRecord OnNewRecord OnPostError OnReconcileError
TAggregates TCollection <TAggregate>:
TAggregate TCollectionItem: Active AggregateName=string Expression=string GroupingLevel IndexName Visible
@Provider
TDataSetProvider TComponent: DataSet Constraints=Boolean ResolveToDataSet Exported Options=TProviderOptions UpdateMode
@ADODB
TADOConnection TCustomConnection: Attributes=TXactAttributes CommandTimeout Connected ConnectionString ConnectionTimeout
 ConnectOptions CursorLocation DefaultDatabase=string IsolationLevel KeepConnection LoginPrompt Mode=TConnectMode Provider
 OnConnectComplete OnDisconnect AfterConnect BeforeConnect AfterDisconnect BeforeDisconnect
TCustomADODataSet TDataSet:
TADODataSet TCustomADODataSet: Active AutoCalcFields CacheSize CommandText CommandTimeout CommandType Connection=TADOConnection
 ConnectionString CursorLocation CursorType DataSource ExecuteOptions FieldDefs Filter Filtered IndexFieldNames IndexName
 LockType MasterFields Parameters=TParams BeforeOpen AfterOpen BeforePost AfterPost AfterScroll OnCalcFields OnNewRecord
TADOTable TCustomADODataSet: Active CacheSize Connection=TADOConnection ConnectionString CursorLocation CursorType Filter
 Filtered IndexFieldNames IndexName MasterFields MasterSource ReadOnly TableDirect TableName BeforeOpen AfterOpen
 BeforePost AfterPost AfterScroll OnCalcFields OnNewRecord
TADOQuery TCustomADODataSet: Active AutoCalcFields CacheSize Connection=TADOConnection ConnectionString CursorLocation
 CursorType DataSource Filter Filtered ParamCheck Parameters=TParams SQL BeforeOpen AfterOpen BeforePost AfterPost
 AfterScroll OnCalcFields OnNewRecord
TADOCommand TComponent: CommandText CommandTimeout CommandType Connection=TADOConnection ConnectionString ExecuteOptions
 Parameters=TParams Prepared
@IBDatabase
TIBDatabase TCustomConnection: Connected DatabaseName Params=TStrings LoginPrompt DefaultTransaction IdleTimer SQLDialect
 TraceFlags AllowStreamedConnected AfterConnect AfterDisconnect BeforeConnect BeforeDisconnect OnLogin=TDatabaseLoginEvent
TIBTransaction TComponent: Active DefaultDatabase=TIBDatabase IdleTimer DefaultAction Params=TStrings AutoStopAction
@IBQuery
TIBQuery TDataSet: Database Transaction AutoCalcFields BufferChunks CachedUpdates DataSource ParamCheck SQL UniDirectional
 UpdateObject BeforeOpen AfterOpen BeforePost AfterPost AfterScroll OnCalcFields OnNewRecord
@IBTable
TIBTable TDataSet: Database Transaction Active BufferChunks CachedUpdates FieldDefs IndexDefs IndexFieldNames MasterFields
 MasterSource StoreDefs TableName UpdateObject BeforeOpen AfterOpen BeforePost AfterPost AfterScroll OnCalcFields
@SqlExpr
TSQLConnection TCustomConnection: ConnectionName=string DriverName=string GetDriverFunc=string LibraryName=string LoadParamsOnConnect
 LoginPrompt Params=TStrings TableScope VendorLib=string Connected AfterConnect AfterDisconnect BeforeConnect
 BeforeDisconnect
TSQLDataSet TDataSet: Active CommandText CommandType DataSource MaxBlobSize ParamCheck Params=TParams SQLConnection
TSQLQuery TDataSet: Active DataSource MaxBlobSize ParamCheck Params=TParams SQL SQLConnection
TSQLTable TDataSet: Active IndexFieldNames IndexName MasterFields MasterSource MaxBlobSize SQLConnection TableName
@DBGrids
TDBGridColumns TCollection <TColumn>:
TColumnTitle TPersistent: Alignment Caption=string Color Font
TColumn TCollectionItem: Alignment ButtonStyle Color DropDownRows Expanded FieldName Font ImeMode ImeName PickList PopupMenu
 ReadOnly Title=TColumnTitle Width Visible
TCustomDBGrid TCustomGrid:
TDBGrid TCustomDBGrid: Align Anchors BiDiMode BorderStyle Color Columns=TDBGridColumns Constraints Ctl3D DataSource
 DefaultDrawing DragCursor DragKind DragMode Enabled FixedColor Font ImeMode ImeName Options=TDBGridOptions ParentBiDiMode
 ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ReadOnly ShowHint TabOrder TabStop TitleFont Visible
 OnCellClick OnColEnter OnColExit OnColumnMoved OnDrawDataCell OnDrawColumnCell OnDblClick OnDragDrop OnDragOver
 OnEditButtonClick OnEndDock OnEndDrag OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp OnMouseDown OnMouseMove OnMouseUp
 OnStartDock OnStartDrag OnTitleClick
@DBCtrls
TDBEdit TCustomMaskEdit: Anchors AutoSelect AutoSize BevelEdges BevelInner BevelKind BevelOuter BiDiMode BorderStyle CharCase
 Color Constraints Ctl3D DataField DataSource DragCursor DragKind DragMode Enabled Font ImeMode ImeName MaxLength
 ParentBiDiMode ParentColor ParentCtl3D ParentFont ParentShowHint PasswordChar PopupMenu ReadOnly ShowHint TabOrder
 TabStop Visible OnChange OnClick OnDblClick OnEnter OnExit OnKeyDown OnKeyPress OnKeyUp OnMouseDown OnMouseMove OnMouseUp
TDBText TCustomLabel: Align Alignment Anchors AutoSize BiDiMode Color Constraints DataField DataSource Enabled Font
 ParentBiDiMode ParentColor ParentFont ParentShowHint PopupMenu Transparent ShowHint Visible WordWrap OnClick OnDblClick
TDBCheckBox TCustomCheckBox: Action Alignment=TLeftRight AllowGrayed Anchors BiDiMode Caption Color Constraints Ctl3D DataField
 DataSource Enabled Font ParentBiDiMode ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ReadOnly ShowHint
 TabOrder TabStop ValueChecked ValueUnchecked Visible OnClick OnEnter OnExit
TDBComboBox TCustomComboBox: Style=TComboBoxStyle Anchors AutoComplete AutoDropDown BiDiMode CharCase Color Constraints Ctl3D
 DataField DataSource DropDownCount Enabled Font ItemHeight Items ParentBiDiMode ParentColor ParentCtl3D ParentFont
 ParentShowHint PopupMenu ReadOnly ShowHint Sorted TabOrder TabStop Visible OnChange OnClick OnDropDown OnEnter OnExit
TDBListBox TCustomListBox: Align Anchors BorderStyle Color Constraints Ctl3D DataField DataSource Enabled Font IntegralHeight
 ItemHeight Items ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ReadOnly ShowHint Style=TListBoxStyle TabOrder
 TabStop Visible OnClick OnDblClick OnEnter OnExit
TDBRadioGroup TCustomRadioGroup: Align Anchors BiDiMode Caption Color Columns=Integer Constraints Ctl3D DataField DataSource
 Enabled Font Items ParentBackground ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ReadOnly ShowHint
 TabOrder TabStop Values=TStrings Visible OnChange OnClick OnEnter OnExit
TDBMemo TCustomMemo: Align Alignment Anchors AutoDisplay BorderStyle Color Constraints Ctl3D DataField DataSource Enabled Font
 MaxLength ParentColor ParentCtl3D ParentFont ParentShowHint PopupMenu ReadOnly ScrollBars ShowHint TabOrder TabStop
 Visible WantReturns WantTabs WordWrap OnChange OnClick OnDblClick OnEnter OnExit
TDBImage TCustomControl: Align Anchors AutoDisplay BorderStyle Center Color Constraints Ctl3D DataField DataSource Enabled Font
 ParentColor ParentFont ParentShowHint PopupMenu QuickDraw ReadOnly ShowHint Stretch TabOrder TabStop Visible OnClick
TDBNavigator TCustomPanel: DataSource VisibleButtons Align Anchors Constraints DragCursor DragKind DragMode Enabled Flat Ctl3D
 Hints ParentCtl3D ParentShowHint PopupMenu ConfirmDelete ShowHint TabOrder TabStop Visible BeforeAction OnClick=TNavClickEvent
TDBLookupControl TCustomControl:
TDBLookupListBox TDBLookupControl: Align Anchors BorderStyle Color Constraints Ctl3D DataField DataSource Enabled Font KeyField
 ListField ListFieldIndex ListSource ParentColor ParentFont ParentShowHint PopupMenu ReadOnly RowCount ShowHint TabOrder
 TabStop Visible OnClick OnDblClick
TDBLookupComboBox TDBLookupControl: Anchors BiDiMode Color Constraints Ctl3D DataField DataSource DropDownAlign DropDownRows
 DropDownWidth Enabled Font KeyField ListField ListFieldIndex ListSource ParentColor ParentFont ParentShowHint PopupMenu
 ReadOnly ShowHint TabOrder TabStop Visible OnClick OnCloseUp OnDropDown OnEnter OnExit
TDBRichEdit TCustomRichEdit: Align Alignment Anchors AutoDisplay BorderStyle Color Constraints Ctl3D DataField DataSource
 Enabled Font ParentColor ParentFont PopupMenu ReadOnly ScrollBars ShowHint TabOrder TabStop Visible WordWrap OnChange
TDBCtrlGrid TWinControl: AllowDelete AllowInsert Align Anchors ColCount Color DataSource Enabled Font Orientation=TDBCtrlGridOrientation
 PanelBorder PanelHeight PanelWidth RowCount TabOrder TabStop Visible
@MPlayer
TMediaPlayer TCustomControl: ColoredButtons EnabledButtons VisibleButtons=TButtonSet Anchors AutoEnable AutoOpen AutoRewind
 DeviceType Display=TWinControl Enabled FileName Shareable Visible ParentShowHint ShowHint TabOrder TabStop OnClick OnNotify
@ScktComp
TClientSocket TComponent: Active Address=string ClientType Host Port Service=string OnConnect OnConnecting OnDisconnect OnError
 OnLookup OnRead OnWrite
TServerSocket TComponent: Active Port Service=string ServerType ThreadCacheSize OnAccept OnListen OnClientConnect
 OnClientDisconnect OnClientRead OnClientWrite OnClientError
@Chart
TChart TCustomPanel: BackWall Foot Title=TChartTitle Align Anchors BevelInner BevelOuter Color TabOrder Visible
TChartTitle TPersistent: Text=TStrings Font Visible
@QuickRpt
TQRLabel TGraphicControl: Frame Size=Integer Alignment AlignToBand AutoSize AutoStretch Caption=string Color Font ParentFont
 Transparent WordWrap FontSize
TQRExpr TGraphicControl: Frame Size=Integer Alignment AlignToBand AutoSize AutoStretch Font Color ParentFont ResetAfterPrint
 Transparent WordWrap Expression=string FontSize Mask=string
TQRDBText TGraphicControl: Frame Size=Integer Alignment AlignToBand AutoSize AutoStretch Color DataSet DataField Font ParentFont
 Transparent WordWrap FontSize Mask=string
)";

} // namespace glotta
