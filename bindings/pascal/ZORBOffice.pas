{ ZORBOffice for Delphi and Free Pascal: the controls' interfaces, a record a control that is called with plain values, and under
  Delphi the controls for a form. Written by the build from the tables of the library; not to be edited.

    Library_ := TUnregisteredLibrary.Create('C:\Tools\ZORBOffice.manifest');  // not needed where it is registered
    Word := TZORBWord.Create;
    if Word.Start and Word.OpenDoc('C:\letters\offer.docx') then Text := Word.ReadText(0, 0);

  What fails inside a member is told by its result, often after a message box; what reaches the host, and a control that cannot
  be created, is raised as EOleException or EOleSysError. A control belongs to the thread that creates it, where COM has been
  initialised: the unit ComObj does that for the main thread of a program. A record lets go of its control by itself.

  On a form of Lazarus a TActiveXContainer holds the control: Container.ComServer := CoZORBWord.Create. }
unit ZORBOffice;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}

interface

uses
  Windows, ActiveX, ComObj, SysUtils{$IFNDEF FPC}, Classes, {$IF CompilerVersion >= 23}Vcl.OleCtrls{$ELSE}OleCtrls{$IFEND}{$ENDIF};

const
  LIBID_ZORBOffice50: TGUID = '{8698DD46-FA38-4FD0-8336-FA997FB10D92}';
  CLASS_ZORBWord: TGUID = '{495CDEB3-7F1E-4663-9DB2-E33437412CE0}';
  CLASS_ZORBOutlook: TGUID = '{A04BAF5A-D329-4C3A-A012-CFFA919D559F}';
  CLASS_OpenWriter: TGUID = '{B0584FF2-C51E-4844-94E6-AAC137F18002}';

  { WdFindWrap: What a search does when it reaches the end of the text. }
  wdFindStop = 0;  { It ends. }
  wdFindContinue = 1;  { It goes on from the other end. }
  wdFindAsk = 2;  { It asks the user. }

  { WdReplace: How much is replaced. }
  wdReplaceNone = 0;  { Nothing. }
  wdReplaceOne = 1;  { The first occurrence. }
  wdReplaceAll = 2;  { Every occurrence. }

  { WdHeaderFooterIndex: Which of a section's headers or footers is meant. }
  wdHeaderFooterPrimary = 1;  { The one of all pages that have none of their own. }
  wdHeaderFooterFirstPage = 2;  { The first page's. }
  wdHeaderFooterEvenPages = 3;  { The even pages'. }

  { WdUnits: By what the insertion point moves. }
  wdCharacter = 1;  { Characters. }
  wdWord = 2;  { Words. }
  wdSentence = 3;  { Sentences. }
  wdParagraph = 4;  { Paragraphs. }
  wdLine = 5;  { Lines. }
  wdStory = 6;  { Stories: the main text, a header and so on. }
  wdScreen = 7;  { Screens. }
  wdSection = 8;  { Sections. }
  wdColumn = 9;  { Columns. }
  wdRow = 10;  { Rows. }
  wdWindow = 11;  { Windows. }
  wdCell = 12;  { Cells. }
  wdCharacterFormatting = 13;  { Runs of one character formatting. }
  wdParagraphFormatting = 14;  { Runs of one paragraph formatting. }
  wdTable = 15;  { Tables. }
  wdItem = 16;  { The selected item. }

  { WdMovementType: Whether a movement selects. }
  wdMove = 0;  { The selection becomes an insertion point and moves. }
  wdExtend = 1;  { The selection is extended. }

  { WdSaveOptions: What becomes of changes when a document is closed. }
  wdDoNotSaveChanges = 0;  { They are lost. }
  wdSaveChanges = -1;  { They are saved. }
  wdPromptToSaveChanges = -2;  { The user is asked. }

  { WdDefaultFilePath: One of the word processor's default folders. }
  wdDocumentsPath = 0;  { Documents. }
  wdPicturesPath = 1;  { Pictures. }
  wdUserTemplatesPath = 2;  { The user's templates. }
  wdWorkgroupTemplatesPath = 3;  { The workgroup's templates. }
  wdUserOptionsPath = 4;  { The user's options. }
  wdAutoRecoverPath = 5;  { Files for recovery. }
  wdToolsPath = 6;  { Tools. }
  wdTutorialPath = 7;  { The tutorial. }
  wdStartupPath = 8;  { What is loaded at the start. }
  wdProgramPath = 9;  { The program. }
  wdGraphicsFiltersPath = 10;  { Filters for pictures. }
  wdTextConvertersPath = 11;  { Converters of text. }
  wdProofingToolsPath = 12;  { Proofing tools. }
  wdTempFilePath = 13;  { Temporary files. }
  wdCurrentFolderPath = 14;  { The current folder. }
  wdStyleGalleryPath = 15;  { The style gallery. }
  wdBorderArtPath = 19;  { Art for borders. }

  { OlImportance: Values of `Importance`, and of a task's `Priority`. }
  olImportanceLow = 0;  { Low. }
  olImportanceNormal = 1;  { Normal. }
  olImportanceHigh = 2;  { High. }

  { OlSensitivity: Values of `Sensitivity`. Only olPrivate can be written; any other becomes olNormal. }
  olNormal = 0;  { Normal. }
  olPersonal = 1;  { Personal. }
  olPrivate = 2;  { Private. }
  olConfidential = 3;  { Confidential. }

  { OlRecurrenceType: Values of `RecurrenceType`. }
  olRecursDaily = 0;  { Every so many days. }
  olRecursWeekly = 1;  { On days of the week. }
  olRecursMonthly = 2;  { On a day of the month. }
  olRecursMonthNth = 3;  { On, say, the second Tuesday of the month: see `Instance`. }
  olRecursYearly = 5;  { On a day of the year. }
  olRecursYearNth = 6;  { On, say, the second Tuesday of May: see `Instance`. }

  { OlDaysOfWeek: Values of `DayOfWeekMask`: one of them, or the sum of several. }
  olSunday = 1;  { Sunday. }
  olMonday = 2;  { Monday. }
  olTuesday = 4;  { Tuesday. }
  olWednesday = 8;  { Wednesday. }
  olThursday = 16;  { Thursday. }
  olFriday = 32;  { Friday. }
  olSaturday = 64;  { Saturday. }

  { OlMeetingStatus: Values of `MeetingStatus`. }
  olNonMeeting = 0;  { An appointment without attendees. }
  olMeeting = 1;  { A meeting. }
  olMeetingReceived = 3;  { A meeting to which one was invited. }
  olMeetingCanceled = 5;  { A cancelled meeting. }
  olMeetingReceivedAndCanceled = 7;  { A cancelled meeting that is still in the calendar. }

  { OlRecurrenceState: Values of `RecurrenceState`. }
  olApptNotRecurring = 0;  { A single appointment. }
  olApptMaster = 1;  { A series. }
  olApptOccurrence = 2;  { One occurrence of a series. }
  olApptException = 3;  { A changed occurrence of a series. }

  { OlMailingAddress: Values of `SelectedMailingAddress`. }
  olNone = 0;  { None. }
  olHome = 1;  { The home address. }
  olBusiness = 2;  { The business address. }
  olOther = 3;  { The other address. }

  { OlDownloadState: Values of `DownloadState`. }
  olHeaderOnly = 0;  { Only the header is there. }
  olFullItem = 1;  { All of the item is there. }

  { OlRemoteStatus: Values of `MarkForDownload`. }
  olRemoteStatusNone = 0;  { None was set. }
  olUnMarked = 1;  { Not marked. }
  olMarkedForDownload = 2;  { Marked to be downloaded. }
  olMarkedForCopy = 3;  { Marked to be copied. }
  olMarkedForDelete = 4;  { Marked to be deleted. }

  { Kinds of items. InitItems knows six more words: `Sent Items`, and `Deleted ` in front of a kind. }
  EntryTypeAppointment = 'Appointment';
  EntryTypeContact = 'Contact';
  EntryTypeNote = 'Note';
  EntryTypeTask = 'Task';
  EntryTypeEmail = 'Email';
  EntryTypeSentItems = 'Sent Items';
  EntryTypeDeletedAppointment = 'Deleted Appointment';
  EntryTypeDeletedContact = 'Deleted Contact';
  EntryTypeDeletedNote = 'Deleted Note';
  EntryTypeDeletedTask = 'Deleted Task';
  EntryTypeDeletedEmail = 'Deleted Email';

  { Values of a task's `Status`. }
  TaskStatusNotStarted = 'Not Started';
  TaskStatusInProgress = 'In Progress';
  TaskStatusCompleted = 'Completed';
  TaskStatusWaiting = 'Waiting on someone else';
  TaskStatusDeferred = 'Deferred';

  { Keys of GetAppointmentProperty and SetAppointmentProperty, for the current appointment. }
  AppointmentKeyAllDayEvent = 'AllDayEvent';
  AppointmentKeyBilling = 'Billing';
  AppointmentKeyBody = 'Body';
  AppointmentKeyCompanies = 'Companies';
  AppointmentKeyCreatedDate = 'CreatedDate';
  AppointmentKeyCreatedTime = 'CreatedTime';
  AppointmentKeyDuration = 'Duration';
  AppointmentKeyEnd = 'End';
  AppointmentKeyEndDate = 'EndDate';
  AppointmentKeyEndTime = 'EndTime';
  AppointmentKeyEntryID = 'EntryID';
  AppointmentKeyFolder = 'Folder';
  AppointmentKeyIsRecurring = 'IsRecurring';
  AppointmentKeyImportance = 'Importance';
  AppointmentKeyModifiedDate = 'ModifiedDate';
  AppointmentKeyModifiedTime = 'ModifiedTime';
  AppointmentKeyLocation = 'Location';
  AppointmentKeyMeetingStatus = 'MeetingStatus';
  AppointmentKeyMessageClass = 'MessageClass';
  AppointmentKeyMileage = 'Mileage';
  AppointmentKeyRecurrenceState = 'RecurrenceState';
  AppointmentKeyReminderMinutesBeforeStart = 'ReminderMinutesBeforeStart';
  AppointmentKeyReminderSet = 'ReminderSet';
  AppointmentKeySensitivity = 'Sensitivity';
  AppointmentKeyStart = 'Start';
  AppointmentKeyStartDate = 'StartDate';
  AppointmentKeyStartTime = 'StartTime';
  AppointmentKeySubject = 'Subject';

  { Keys of GetRecurrenceProperty and SetRecurrenceProperty, for the recurrence pattern. }
  RecurrenceKeyClass = 'Class';
  RecurrenceKeyDayOfMonth = 'DayOfMonth';
  RecurrenceKeyDayOfWeekMask = 'DayOfWeekMask';
  RecurrenceKeyDuration = 'Duration';
  RecurrenceKeyEndTime = 'EndTime';
  RecurrenceKeyInterval = 'Interval';
  RecurrenceKeyInstance = 'Instance';
  RecurrenceKeyMonthOfYear = 'MonthOfYear';
  RecurrenceKeyNoEndDate = 'NoEndDate';
  RecurrenceKeyOccurrences = 'Occurrences';
  RecurrenceKeyPatternEndDate = 'PatternEndDate';
  RecurrenceKeyPatternStartDate = 'PatternStartDate';
  RecurrenceKeyRecurrenceType = 'RecurrenceType';
  RecurrenceKeyStartTime = 'StartTime';
  RecurrenceKeyExceptionCount = 'Exception Count';
  RecurrenceKeyExceptionList = 'Exception List';

  { Keys of GetExceptionProperty, for one exception of the recurrence pattern. }
  ExceptionKeyOriginalDate = 'OriginalDate';
  ExceptionKeyDeleted = 'Deleted';

  { Keys of GetContactProperty and SetContactProperty, for the current contact. }
  ContactKeyAssistantTelephoneNumber = 'AssistantTelephoneNumber';
  ContactKeyBody = 'Body';
  ContactKeyBusiness2TelephoneNumber = 'Business2TelephoneNumber';
  ContactKeyBusinessAddress = 'BusinessAddress';
  ContactKeyBusinessAddressCity = 'BusinessAddressCity';
  ContactKeyBusinessAddressCountry = 'BusinessAddressCountry';
  ContactKeyBusinessAddressPostalCode = 'BusinessAddressPostalCode';
  ContactKeyBusinessAddressState = 'BusinessAddressState';
  ContactKeyBusinessAddressStreet = 'BusinessAddressStreet';
  ContactKeyBusinessFaxNumber = 'BusinessFaxNumber';
  ContactKeyBusinesshomePage = 'BusinesshomePage';
  ContactKeyBusinessTelephoneNumber = 'BusinessTelephoneNumber';
  ContactKeyCarTelephoneNumber = 'CarTelephoneNumber';
  ContactKeyCompanyMainTelephoneNumber = 'CompanyMainTelephoneNumber';
  ContactKeyCompanyName = 'CompanyName';
  ContactKeyEmail1Address = 'Email1Address';
  ContactKeyEmail2Address = 'Email2Address';
  ContactKeyEmail3Address = 'Email3Address';
  ContactKeyFirstName = 'FirstName';
  ContactKeyFullName = 'FullName';
  ContactKeyGovernmentIDNumber = 'GovernmentIDNumber';
  ContactKeyHome2TelephoneNumber = 'Home2TelephoneNumber';
  ContactKeyHomeAddress = 'HomeAddress';
  ContactKeyHomeAddressCity = 'HomeAddressCity';
  ContactKeyHomeAddressCountry = 'HomeAddressCountry';
  ContactKeyHomeAddressPostalCode = 'HomeAddressPostalCode';
  ContactKeyHomeAddressState = 'HomeAddressState';
  ContactKeyHomeAddressStreet = 'HomeAddressStreet';
  ContactKeyHomeFaxNumber = 'HomeFaxNumber';
  ContactKeyHomeTelephoneNumber = 'HomeTelephoneNumber';
  ContactKeyJobTitle = 'JobTitle';
  ContactKeyMailingAddress = 'MailingAddress';
  ContactKeyMailingAddressCity = 'MailingAddressCity';
  ContactKeyMailingAddressCountry = 'MailingAddressCountry';
  ContactKeyMailingAddressPostalCode = 'MailingAddressPostalCode';
  ContactKeyMailingAddressState = 'MailingAddressState';
  ContactKeyMailingAddressStreet = 'MailingAddressStreet';
  ContactKeyMobileTelephoneNumber = 'MobileTelephoneNumber';
  ContactKeyNickname = 'Nickname';
  ContactKeyOtherAddress = 'OtherAddress';
  ContactKeyOtherAddressCity = 'OtherAddressCity';
  ContactKeyOtherAddressCountry = 'OtherAddressCountry';
  ContactKeyOtherAddressPostalCode = 'OtherAddressPostalCode';
  ContactKeyOtherAddressState = 'OtherAddressState';
  ContactKeyOtherAddressStreet = 'OtherAddressStreet';
  ContactKeyOtherFaxNumber = 'OtherFaxNumber';
  ContactKeyOtherTelephoneNumber = 'OtherTelephoneNumber';
  ContactKeyPrimaryTelephoneNumber = 'PrimaryTelephoneNumber';
  ContactKeyRadioTelephoneNumber = 'RadioTelephoneNumber';
  ContactKeyTitle = 'Title';
  ContactKeyWebPage = 'WebPage';
  ContactKeyEntryID = 'EntryID';
  ContactKeyFolder = 'Folder';
  ContactKeyModifiedDate = 'ModifiedDate';
  ContactKeyModifiedTime = 'ModifiedTime';
  ContactKeySelectedMailingAddress = 'SelectedMailingAddress';
  ContactKeyAllTelephoneNumbers = 'AllTelephoneNumbers';
  ContactKeyAllFaxNumbers = 'AllFaxNumbers';
  ContactKeyAllEmailAddresses = 'AllEmailAddresses';

  { Keys of GetTaskProperty and SetTaskProperty, for the current task. }
  TaskKeyBody = 'Body';
  TaskKeyCreationDate = 'CreationDate';
  TaskKeyCreationTime = 'CreationTime';
  TaskKeyDueDate = 'DueDate';
  TaskKeyEntryID = 'EntryID';
  TaskKeyFolder = 'Folder';
  TaskKeyModifiedDate = 'ModifiedDate';
  TaskKeyModifiedTime = 'ModifiedTime';
  TaskKeyPercentComplete = 'PercentComplete';
  TaskKeyPriority = 'Priority';
  TaskKeyReminder = 'Reminder';
  TaskKeyReminderDate = 'ReminderDate';
  TaskKeyReminderTime = 'ReminderTime';
  TaskKeySubject = 'Subject';
  TaskKeyStartDate = 'StartDate';
  TaskKeyStatus = 'Status';

  { Keys of GetEmailProperty, for the current e-mail. }
  EmailKeyAttachmentCount = 'Attachment Count';
  EmailKeyAttachments = 'Attachments';
  EmailKeyBCC = 'BCC';
  EmailKeyBody = 'Body';
  EmailKeyCC = 'CC';
  EmailKeyClass = 'Class';
  EmailKeyEntryID = 'EntryID';
  EmailKeyHTMLBody = 'HTMLBody';
  EmailKeyImportance = 'Importance';
  EmailKeyParent = 'Parent';
  EmailKeyReceivedDate = 'ReceivedDate';
  EmailKeyReceivedTime = 'ReceivedTime';
  EmailKeyRecipients = 'Recipients';
  EmailKeySenderEmailAddress = 'SenderEmailAddress';
  EmailKeySenderName = 'SenderName';
  EmailKeySensitivity = 'Sensitivity';
  EmailKeySize = 'Size';
  EmailKeySubject = 'Subject';
  EmailKeyTo = 'To';

  { Keys of GetNoteProperty and SetNoteProperty, for the current note. }
  NoteKeyBody = 'Body';
  NoteKeyCategories = 'Categories';
  NoteKeyClass = 'Class';
  NoteKeyColor = 'Color';
  NoteKeyCreationTime = 'CreationTime';
  NoteKeyDownloadState = 'DownloadState';
  NoteKeyEntryID = 'EntryID';
  NoteKeyFolder = 'Folder';
  NoteKeyHeight = 'Height';
  NoteKeyIsConflict = 'IsConflict';
  NoteKeyModifiedDate = 'ModifiedDate';
  NoteKeyModifiedTime = 'ModifiedTime';
  NoteKeyLeft = 'Left';
  NoteKeyMarkForDownload = 'MarkForDownload';
  NoteKeyMessageClass = 'MessageClass';
  NoteKeyParent = 'Parent';
  NoteKeySaved = 'Saved';
  NoteKeySize = 'Size';
  NoteKeySubject = 'Subject';
  NoteKeyTop = 'Top';
  NoteKeyWidth = 'Width';

type
  { The interfaces, in the order of their slots. What the members do stands with the records below. }

  { Published as _ZORBWord. }
  IZORBWord = interface(IDispatch)
    ['{79397B6A-4416-4196-8824-6E599916DC95}']
    function Start(var Template: WordBool): Byte; safecall;
    function SetVisible(var IsVisible: WordBool): Byte; safecall;
    function SetActive(var IsActive: WordBool): Byte; safecall;
    function OpenDoc(var Doc: WideString): Byte; safecall;
    function CreateDoc(var Doc: WideString): Byte; safecall;
    function SendText(var Text: WideString): Byte; safecall;
    function ReadText(var StartPos: Integer; var EndPos: Integer): WideString; safecall;
    function SetScreenUpdating(var Update: WordBool): Byte; safecall;
    function Search(var SearchString: WideString; var WrapAction: Byte; var SearchForward: WordBool;
        var BeginAtTop: WordBool; var MatchCase: WordBool; var MatchWholeWord: WordBool;
        var MatchWildcards: WordBool; var MatchSoundsLike: WordBool; var MatchAllWordForms: WordBool): Byte;
        safecall;
    function InTable: Byte; safecall;
    function SelectRow: OleVariant; safecall;
    function Replace(var SearchString: WideString; var ReplaceString: WideString; var WrapAction: Byte;
        var SearchForward: WordBool; var BeginAtTop: WordBool; var MatchCase: WordBool;
        var MatchWholeWord: WordBool; var MatchWildcards: WordBool; var MatchSoundsLike: WordBool;
        var MatchAllWordForms: WordBool; var ReplaceOption: Byte): Byte; safecall;
    function NumberOfSections: Integer; safecall;
    function ReadHeaderFooterText(var Section: Integer; var IsHeader: WordBool; var HeaderFooterType: Byte;
        var StartPos: Integer; var EndPos: Integer): WideString; safecall;
    function SetHeaderFooter(var SourceTemplate: WideString; var DestTemplate: WideString;
        var ApplyHeader: WordBool; var ApplyFooter: WordBool; var ApplyFont: WordBool): Byte; safecall;
    function ReplaceHeaderFooter(var Section: Integer; var IsHeader: WordBool; var HeaderFooterType: Byte;
        var SearchString: WideString; var ReplaceString: WideString; var WrapAction: Byte;
        var SearchForward: WordBool; var BeginAtTop: WordBool; var MatchCase: WordBool;
        var MatchWholeWord: WordBool; var MatchWildcards: WordBool; var MatchSoundsLike: WordBool;
        var MatchAllWordForms: WordBool; var ReplaceOption: Byte): Byte; safecall;
    function CellCount: Integer; safecall;
    function CellText(var CellId: Integer): WideString; safecall;
    function Cut: OleVariant; safecall;
    function SelectParagraph: OleVariant; safecall;
    function SelectionText: WideString; safecall;
    function Paste: OleVariant; safecall;
    function CursorLeft(var Units: SmallInt; var Unit_: SmallInt; var Selecting: OleVariant): OleVariant;
        safecall;
    function CursorRight(var Units: SmallInt; var Unit_: SmallInt; var Selecting: OleVariant): OleVariant;
        safecall;
    function CursorStartOfParagraph: OleVariant; safecall;
    function CursorStartOfCell: OleVariant; safecall;
    function CursorEndOfCell: OleVariant; safecall;
    function CursorEndOfParagraph: OleVariant; safecall;
    function Move(var Unit_: SmallInt; var Units: SmallInt): OleVariant; safecall;
    function FinaliseDoc: OleVariant; safecall;
    function SaveDoc(var Docname: WideString): OleVariant; safecall;
    function SaveDocAsPDF: WordBool; safecall;
    function CloseDoc(var SaveOption: SmallInt): OleVariant; safecall;
    function StopWord(var Force: WordBool): OleVariant; safecall;
    function PrintDoc(var Copies: SmallInt; var Background: WordBool): OleVariant; safecall;
    function IsPrinting: SmallInt; safecall;
    function GetDefaultPaths(var PathId: SmallInt): WideString; safecall;
    function GotoLine(var LineNo: SmallInt): WordBool; safecall;
    function GetLastErrorNumber: Integer; safecall;
    function GetLastErrorDescription: WideString; safecall;
  end;

  CoZORBWord = class
    class function Create: IZORBWord;
  end;

  { Published as _ZORBOutlook. }
  IZORBOutlook = interface(IDispatch)
    ['{A7E31FE0-E2A1-4B1E-B386-22564026551D}']
    function StartOutlook: WordBool; safecall;
    function StopOutlook(Force: WordBool): WordBool; safecall;
    function NewEmail(var Template: WideString; var ToAddress: WideString; var CCAddress: WideString;
        var BCCAddress: WideString; var Subject: WideString; var Content: WideString; var UseHTML: WordBool;
        var AutoSend: WordBool; var Attachment: WideString): WordBool; safecall;
    function OpenItem(const EntryType: WideString): WordBool; safecall;
    function InitItems(const EntryType: WideString; const Condition: WideString): WordBool; safecall;
    function CreateItem(const EntryType: WideString): WordBool; safecall;
    function DeleteItem(const EntryType: WideString): WordBool; safecall;
    function GetItem(const EntryType: WideString; const EntryId: WideString): WordBool; safecall;
    function GetAppointmentInstance(const EntryDate: WideString): WordBool; safecall;
    function SaveItem(const EntryType: WideString): WordBool; safecall;
    function SaveItemToFile(const EntryType: WideString; const FileName: WideString): WordBool; safecall;
    function SaveEmailAttachment(AttachmentNo: SmallInt; const FileName: WideString): WordBool; safecall;
    function GetItemCount(const EntryType: WideString): SmallInt; safecall;
    function GetFirstItem(const EntryType: WideString): WordBool; safecall;
    function GetNextItem(const EntryType: WideString): WordBool; safecall;
    function GetAppointmentProperty(const AppProp: WideString): WideString; safecall;
    function SetAppointmentProperty(const AppProp: WideString; const PropertyValue: WideString): WordBool;
        safecall;
    function GetRecurrencePattern: WordBool; safecall;
    function ClearRecurrencePattern: WordBool; safecall;
    function GetRecurrenceProperty(const RecurProp: WideString): WideString; safecall;
    function SetRecurrenceProperty(const RecurProp: WideString; const PropertyValue: WideString): WideString;
        safecall;
    function GetExceptionProperty(Instance: SmallInt; const ExceptProp: WideString): WideString; safecall;
    function GetContactProperty(const ContactProp: WideString): WideString; safecall;
    function SetContactProperty(const ContactProp: WideString; const PropertyValue: WideString): WordBool;
        safecall;
    function GetTaskProperty(const TaskProp: WideString): WideString; safecall;
    function SetTaskProperty(const TaskProperty: WideString; const PropertyValue: WideString): WordBool;
        safecall;
    function GetEmailProperty(const EmailProp: WideString): WideString; safecall;
    function GetNoteProperty(const NoteProperty: WideString): WideString; safecall;
    function SetNoteProperty(const NoteProperty: WideString; const PropertyValue: WideString): WordBool;
        safecall;
    function GetLastErrorNumber: SmallInt; safecall;
    function GetLastErrorDescription: WideString; safecall;
  end;

  CoZORBOutlook = class
    class function Create: IZORBOutlook;
  end;

  { Published as _OpenWriter. }
  IOpenWriter = interface(IDispatch)
    ['{8A83A708-86A0-414A-A588-7DC374938729}']
    function Start(var Template: WordBool): Byte; safecall;
    function SetVisible(var IsVisible: WordBool): Byte; safecall;
    function SetActive(var IsActive: WordBool): Byte; safecall;
    function OpenDoc(var Doc: WideString): Byte; safecall;
    function CreateDoc(var Doc: WideString): Byte; safecall;
    function SendText(var Text: WideString): Byte; safecall;
    function ReadText(var StartPos: Integer; var EndPos: Integer): WideString; safecall;
    function SetScreenUpdating(var Update: WordBool): Byte; safecall;
    function Search(var SearchString: WideString; var WrapAction: Byte; var SearchForward: WordBool;
        var BeginAtTop: WordBool; var MatchCase: WordBool; var MatchWholeWord: WordBool;
        var MatchWildcards: WordBool; var MatchSoundsLike: WordBool; var MatchAllWordForms: WordBool): Byte;
        safecall;
    function InTable: Byte; safecall;
    function SelectRow: OleVariant; safecall;
    function Replace(var SearchString: WideString; var ReplaceString: WideString; var WrapAction: Byte;
        var SearchForward: WordBool; var BeginAtTop: WordBool; var MatchCase: WordBool;
        var MatchWholeWord: WordBool; var MatchWildcards: WordBool; var MatchSoundsLike: WordBool;
        var MatchAllWordForms: WordBool; var ReplaceOption: Byte): Byte; safecall;
    function NumberOfSections: Integer; safecall;
    function ReadHeaderFooterText(var Section: Integer; var IsHeader: WordBool; var HeaderFooterType: Byte;
        var StartPos: Integer; var EndPos: Integer): WideString; safecall;
    function SetHeaderFooter(var SourceTemplate: WideString; var DestTemplate: WideString;
        var ApplyHeader: Byte; var ApplyFooter: Byte; var ApplyFont: Byte): Byte; safecall;
    function ReplaceHeaderFooter(var Section: Integer; var IsHeader: WordBool; var HeaderFooterType: Byte;
        var SearchString: WideString; var ReplaceString: WideString; var WrapAction: Byte;
        var SearchForward: WordBool; var BeginAtTop: WordBool; var MatchCase: WordBool;
        var MatchWholeWord: WordBool; var MatchWildcards: WordBool; var MatchSoundsLike: WordBool;
        var MatchAllWordForms: WordBool; var ReplaceOption: Byte): Byte; safecall;
    function CellCount: Integer; safecall;
    function CellText(var CellId: Integer): WideString; safecall;
    function Cut: OleVariant; safecall;
    function SelectParagraph: OleVariant; safecall;
    function SelectionText: WideString; safecall;
    function Paste: OleVariant; safecall;
    function CursorLeft(var Units: SmallInt; var Unit_: SmallInt; var Selecting: OleVariant): OleVariant;
        safecall;
    function CursorRight(var Units: SmallInt; var Unit_: SmallInt; var Selecting: OleVariant): OleVariant;
        safecall;
    function CursorStartOfParagraph: OleVariant; safecall;
    function CursorStartOfCell: OleVariant; safecall;
    function CursorEndOfCell: OleVariant; safecall;
    function CursorEndOfParagraph: OleVariant; safecall;
    function Move(var Unit_: SmallInt; var Units: SmallInt): OleVariant; safecall;
    function FinaliseDoc: OleVariant; safecall;
    function SaveDoc(var Docname: WideString): OleVariant; safecall;
    function SaveDocAsPDF: WordBool; safecall;
    function CloseDoc(var SaveOption: SmallInt): OleVariant; safecall;
    function StopWord(var Force: WordBool): OleVariant; safecall;
    function PrintDoc(var Copies: SmallInt; var Background: WordBool): OleVariant; safecall;
    function IsPrinting: SmallInt; safecall;
    function GetDefaultPaths(var PathId: SmallInt): WideString; safecall;
    function GotoLine(var LineNo: SmallInt): WordBool; safecall;
    function GetLastErrorNumber: Integer; safecall;
    function GetLastErrorDescription: WideString; safecall;
  end;

  CoOpenWriter = class
    class function Create: IOpenWriter;
  end;

  { Makes the controls known to this thread without registration until it is freed, by the same thread; controls that were
    created stay usable. Path names ZORBOffice.manifest or ZORBOffice.ocx, of the program's own bitness. }
  TUnregisteredLibrary = class
  private
    FContext: THandle;
    FCookie: ULONG_PTR;
  public
    constructor Create(const Path: UnicodeString);
    destructor Destroy; override;
  end;

  /// Drives Microsoft Word.
  TZORBWord = record
    { The control itself, for calls by interface. }
    Control: IZORBWord;
    class function Create: TZORBWord; static;
    /// <summary>Both classes publish the same forty members in the same slots; early-bound hosts rely on
    /// it.</summary>
    function Start(Template: WordBool = False): Boolean;
    /// <summary>Shows or hides the application (IsVisible: flag) and activates it.</summary>
    function SetVisible(IsVisible: WordBool): Boolean;
    /// <summary>Activates the application, whatever IsActive (flag) says.</summary>
    function SetActive(IsActive: WordBool): Boolean;
    /// <summary>Opens the file Doc (path) and makes it the active document.</summary>
    function OpenDoc(Doc: WideString): Boolean;
    /// <summary>Creates a document from the template Doc (path, optional, default "": the normal template)
    /// and makes it the active document; the earlier one stays when that fails.</summary>
    function CreateDoc(Doc: WideString = ''): Boolean;
    /// <summary>Types Text at the selection.</summary>
    function SendText(Text: WideString): Boolean;
    /// <summary>Reads the document's text from character StartPos to EndPos, counted from 0. A start of 0 or
    /// less with an end means 1, so the first character is left out; an end of 0 or less means the text's
    /// length; both 0 or less read all sections' texts, joined.</summary>
    function ReadText(StartPos: Integer; EndPos: Integer): WideString;
    /// <summary>Switches the redrawing of the application's windows (Update: flag).</summary>
    function SetScreenUpdating(Update: WordBool): Boolean;
    /// <summary>Finds SearchString and selects it.</summary>
    function Search(SearchString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = False; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False): Boolean;
    /// <summary>Returns 1 when the selection is in a table.</summary>
    function InTable: Boolean;
    /// <summary>Selects the row of the table in which the selection is.</summary>
    procedure SelectRow;
    /// <summary>Finds SearchString from the selection on and replaces it by ReplaceString.</summary>
    function Replace(SearchString: WideString; ReplaceString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = True; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False; ReplaceOption: Byte = wdReplaceOne): Boolean;
    /// <summary>Returns the number of sections of the active document.</summary>
    function NumberOfSections: Integer;
    /// <summary>Reads a header's (IsHeader true) or footer's text of Section (counted from 1).</summary>
    function ReadHeaderFooterText(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
        StartPos: Integer; EndPos: Integer): WideString;
    /// <summary>Copies headers, footers and the normal style's font, each if chosen, from SourceTemplate to
    /// DestTemplate (paths; empty or "Normal": the application's template), and saves the latter.</summary>
    function SetHeaderFooter(SourceTemplate: WideString; DestTemplate: WideString; ApplyHeader: WordBool;
        ApplyFooter: WordBool; ApplyFont: WordBool): Boolean;
    /// <summary>Replace, within one header or footer, named as in ReadHeaderFooterText; in one that does not
    /// exist nothing is found.</summary>
    function ReplaceHeaderFooter(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
        SearchString: WideString; ReplaceString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = True; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False; ReplaceOption: Byte = wdReplaceOne): Boolean;
    /// <summary>Returns the number of cells of the selection's first row.</summary>
    function CellCount: Integer;
    /// <summary>Returns the text of cell CellId (counted from 1) of the selection's first row, its
    /// end-of-cell mark included.</summary>
    function CellText(CellId: Integer): WideString;
    /// <summary>Cuts the selection to the clipboard.</summary>
    procedure Cut;
    /// <summary>Selects the paragraph in which the selection starts.</summary>
    procedure SelectParagraph;
    /// <summary>Returns the selected text, "" on failure.</summary>
    function SelectionText: WideString;
    /// <summary>Pastes the clipboard at the selection.</summary>
    procedure Paste;
    /// <summary>Moves the insertion point left by Units units.</summary>
    procedure CursorLeft(Units: SmallInt; Unit_: SmallInt = wdCharacter; Selecting: SmallInt = wdMove);
    /// <summary>CursorLeft to the right.</summary>
    procedure CursorRight(Units: SmallInt; Unit_: SmallInt = wdCharacter; Selecting: SmallInt = wdMove);
    /// <summary>Moves the insertion point to the start of its paragraph.</summary>
    procedure CursorStartOfParagraph;
    /// <summary>Moves the insertion point to the start of its cell.</summary>
    procedure CursorStartOfCell;
    /// <summary>Moves the insertion point to the end of its cell.</summary>
    procedure CursorEndOfCell;
    /// <summary>Moves the insertion point to the end of its paragraph.</summary>
    procedure CursorEndOfParagraph;
    /// <summary>Collapses the selection and moves it by Units units of Unit (a wdUnits value).</summary>
    procedure Move(Unit_: SmallInt; Units: SmallInt);
    /// <summary>Updates the document's styles and parts it from its template.</summary>
    procedure FinaliseDoc;
    /// <summary>Saves the document, as Docname (path, optional) when that is not empty.</summary>
    procedure SaveDoc(Docname: WideString = '');
    /// <summary>Prints the document to the first installed printer whose name contains "PDF", in capitals,
    /// and returns true; false when there is none.</summary>
    function SaveDocAsPDF: Boolean;
    /// <summary>Closes the document and lets go of it.</summary>
    procedure CloseDoc(SaveOption: SmallInt = wdDoNotSaveChanges);
    /// <summary>Quits the application and lets go of it: with Force (flag, optional) always, otherwise only
    /// when no document is open.</summary>
    procedure StopWord(Force: WordBool = False);
    /// <summary>Prints Copies copies of the document, then lets the host's pending window messages run
    /// once.</summary>
    procedure PrintDoc(Copies: SmallInt; Background: WordBool = False);
    /// <summary>Returns how many documents are being printed or saved in the background, 0 when
    /// none.</summary>
    function IsPrinting: SmallInt;
    /// <summary>Returns the application's default folder PathId (a wdDefaultFilePath value), "" on
    /// failure.</summary>
    function GetDefaultPaths(PathId: SmallInt): WideString;
    /// <summary>Moves the insertion point to line LineNo, counted from 1; returns true, or false on
    /// failure.</summary>
    function GotoLine(LineNo: SmallInt): Boolean;
    /// <summary>Returns the number of the last recorded failure: always 0, because no member of these classes
    /// records.</summary>
    function GetLastErrorNumber: Integer;
    /// <summary>Returns the description of the last recorded failure: always "".</summary>
    function GetLastErrorDescription: WideString;
  end;

  /// Drives Microsoft Outlook.
  TZORBOutlook = record
    { The control itself, for calls by interface. }
    Control: IZORBOutlook;
    class function Create: TZORBOutlook; static;
    /// <summary>All parameters are passed by value, but for NewEmail's.</summary>
    function StartOutlook: Boolean;
    /// <summary>Ends the work; quits Outlook only when Force (optional, default false) is true.</summary>
    function StopOutlook(Force: WordBool = False): Boolean;
    /// <summary>Composes one mail, and sends (AutoSend) or shows it.</summary>
    function NewEmail(Template: WideString; ToAddress: WideString; CCAddress: WideString;
        BCCAddress: WideString; Subject: WideString; Content: WideString; UseHTML: WordBool;
        AutoSend: WordBool; Attachment: WideString): Boolean;
    /// <summary>Shows the current item of the entry type in Outlook's own window.</summary>
    function OpenItem(EntryType: WideString): Boolean;
    /// <summary>Fills the entry type's collection from its default folder, restricted by Condition unless
    /// that is empty, sorted.</summary>
    function InitItems(EntryType: WideString; Condition: WideString): Boolean;
    /// <summary>Makes a new, unsaved item current.</summary>
    function CreateItem(EntryType: WideString): Boolean;
    /// <summary>Deletes the current item.</summary>
    function DeleteItem(EntryType: WideString): Boolean;
    /// <summary>Makes the item with the identifier EntryId current.</summary>
    function GetItem(EntryType: WideString; EntryId: WideString): Boolean;
    /// <summary>Makes the current appointment's occurrence of EntryDate (date text in the user's locale)
    /// current.</summary>
    function GetAppointmentInstance(EntryDate: WideString): Boolean;
    /// <summary>Saves the current item.</summary>
    function SaveItem(EntryType: WideString): Boolean;
    /// <summary>Exports the current item to FileName (path) in Outlook's default format.</summary>
    function SaveItemToFile(EntryType: WideString; FileName: WideString): Boolean;
    /// <summary>Saves an attachment of the current e-mail to FileName (path).</summary>
    function SaveEmailAttachment(AttachmentNo: SmallInt; FileName: WideString): Boolean;
    /// <summary>Returns the number of items in the entry type's collection, 0 on failure and above
    /// 32767.</summary>
    function GetItemCount(EntryType: WideString): SmallInt;
    /// <summary>Makes the collection's first item of the entry type's class current; false when there is
    /// none.</summary>
    function GetFirstItem(EntryType: WideString): Boolean;
    /// <summary>Makes the collection's next item of the entry type's class current; false at the
    /// end.</summary>
    function GetNextItem(EntryType: WideString): Boolean;
    /// <summary>Returns the current appointment's property AppProp as text.</summary>
    function GetAppointmentProperty(AppProp: WideString): WideString;
    /// <summary>Converts PropertyValue and writes it to the current appointment's property AppProp.</summary>
    function SetAppointmentProperty(AppProp: WideString; PropertyValue: WideString): Boolean;
    /// <summary>Takes the current appointment's recurrence pattern into the control.</summary>
    function GetRecurrencePattern: Boolean;
    /// <summary>Makes the current appointment a single one.</summary>
    function ClearRecurrencePattern: Boolean;
    /// <summary>Returns the recurrence pattern's property RecurProp as text.</summary>
    function GetRecurrenceProperty(RecurProp: WideString): WideString;
    /// <summary>Converts PropertyValue and writes it to the recurrence pattern's property
    /// RecurProp.</summary>
    function SetRecurrenceProperty(RecurProp: WideString; PropertyValue: WideString): WideString;
    /// <summary>Returns the property ExceptProp of the pattern's exception Instance (counted from 1) as
    /// text.</summary>
    function GetExceptionProperty(Instance: SmallInt; ExceptProp: WideString): WideString;
    /// <summary>Returns the current contact's property ContactProp as text.</summary>
    function GetContactProperty(ContactProp: WideString): WideString;
    /// <summary>Writes PropertyValue to the current contact's property ContactProp.</summary>
    function SetContactProperty(ContactProp: WideString; PropertyValue: WideString): Boolean;
    /// <summary>Returns the current task's property TaskProp as text.</summary>
    function GetTaskProperty(TaskProp: WideString): WideString;
    /// <summary>Converts PropertyValue and writes it to the current task's property TaskProperty.</summary>
    function SetTaskProperty(TaskProperty: WideString; PropertyValue: WideString): Boolean;
    /// <summary>Returns the current e-mail's property EmailProp as text.</summary>
    function GetEmailProperty(EmailProp: WideString): WideString;
    /// <summary>Returns the current note's property NoteProperty as text.</summary>
    function GetNoteProperty(NoteProperty: WideString): WideString;
    /// <summary>Converts PropertyValue and writes it to the current note's property NoteProperty.</summary>
    function SetNoteProperty(NoteProperty: WideString; PropertyValue: WideString): Boolean;
    /// <summary>Returns the number of the last recorded failure, 0 before any.</summary>
    function GetLastErrorNumber: SmallInt;
    /// <summary>Returns the description of the last recorded failure, "" before any.</summary>
    function GetLastErrorDescription: WideString;
  end;

  /// Drives an office suite.
  TOpenWriter = record
    { The control itself, for calls by interface. }
    Control: IOpenWriter;
    class function Create: TOpenWriter; static;
    /// <summary>Both classes publish the same forty members in the same slots; early-bound hosts rely on
    /// it.</summary>
    function Start(Template: WordBool = False): Boolean;
    /// <summary>Shows or hides the application (IsVisible: flag) and activates it.</summary>
    function SetVisible(IsVisible: WordBool): Boolean;
    /// <summary>Activates the application, whatever IsActive (flag) says.</summary>
    function SetActive(IsActive: WordBool): Boolean;
    /// <summary>Opens the file Doc (path) and makes it the active document.</summary>
    function OpenDoc(Doc: WideString): Boolean;
    /// <summary>Creates a document from the template Doc (path, optional, default "": the normal template)
    /// and makes it the active document; the earlier one stays when that fails.</summary>
    function CreateDoc(Doc: WideString = ''): Boolean;
    /// <summary>Types Text at the selection.</summary>
    function SendText(Text: WideString): Boolean;
    /// <summary>Reads the document's text from character StartPos to EndPos, counted from 0. A start of 0 or
    /// less with an end means 1, so the first character is left out; an end of 0 or less means the text's
    /// length; both 0 or less read all sections' texts, joined.</summary>
    function ReadText(StartPos: Integer; EndPos: Integer): WideString;
    /// <summary>Switches the redrawing of the application's windows (Update: flag).</summary>
    function SetScreenUpdating(Update: WordBool): Boolean;
    /// <summary>Finds SearchString and selects it.</summary>
    function Search(SearchString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = False; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False): Boolean;
    /// <summary>Returns 1 when the selection is in a table.</summary>
    function InTable: Boolean;
    /// <summary>Selects the row of the table in which the selection is.</summary>
    procedure SelectRow;
    /// <summary>Finds SearchString from the selection on and replaces it by ReplaceString.</summary>
    function Replace(SearchString: WideString; ReplaceString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = True; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False; ReplaceOption: Byte = wdReplaceOne): Boolean;
    /// <summary>Returns the number of sections of the active document.</summary>
    function NumberOfSections: Integer;
    /// <summary>Reads a header's (IsHeader true) or footer's text of Section (counted from 1).</summary>
    function ReadHeaderFooterText(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
        StartPos: Integer; EndPos: Integer): WideString;
    /// <summary>Copies headers, footers and the normal style's font, each if chosen, from SourceTemplate to
    /// DestTemplate (paths; empty or "Normal": the application's template), and saves the latter.</summary>
    function SetHeaderFooter(SourceTemplate: WideString; DestTemplate: WideString; ApplyHeader: Byte;
        ApplyFooter: Byte; ApplyFont: Byte): Boolean;
    /// <summary>Replace, within one header or footer, named as in ReadHeaderFooterText; in one that does not
    /// exist nothing is found.</summary>
    function ReplaceHeaderFooter(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
        SearchString: WideString; ReplaceString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = True; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False; ReplaceOption: Byte = wdReplaceOne): Boolean;
    /// <summary>Returns the number of cells of the selection's first row.</summary>
    function CellCount: Integer;
    /// <summary>Returns the text of cell CellId (counted from 1) of the selection's first row, its
    /// end-of-cell mark included.</summary>
    function CellText(CellId: Integer): WideString;
    /// <summary>Cuts the selection to the clipboard.</summary>
    procedure Cut;
    /// <summary>Selects the paragraph in which the selection starts.</summary>
    procedure SelectParagraph;
    /// <summary>Returns the selected text, "" on failure.</summary>
    function SelectionText: WideString;
    /// <summary>Pastes the clipboard at the selection.</summary>
    procedure Paste;
    /// <summary>Moves the insertion point left by Units units.</summary>
    procedure CursorLeft(Units: SmallInt; Unit_: SmallInt = wdCharacter; Selecting: SmallInt = wdMove);
    /// <summary>CursorLeft to the right.</summary>
    procedure CursorRight(Units: SmallInt; Unit_: SmallInt = wdCharacter; Selecting: SmallInt = wdMove);
    /// <summary>Moves the insertion point to the start of its paragraph.</summary>
    procedure CursorStartOfParagraph;
    /// <summary>Moves the insertion point to the start of its cell.</summary>
    procedure CursorStartOfCell;
    /// <summary>Moves the insertion point to the end of its cell.</summary>
    procedure CursorEndOfCell;
    /// <summary>Moves the insertion point to the end of its paragraph.</summary>
    procedure CursorEndOfParagraph;
    /// <summary>Collapses the selection and moves it by Units units of Unit (a wdUnits value).</summary>
    procedure Move(Unit_: SmallInt; Units: SmallInt);
    /// <summary>Updates the document's styles and parts it from its template.</summary>
    procedure FinaliseDoc;
    /// <summary>Saves the document, as Docname (path, optional) when that is not empty.</summary>
    procedure SaveDoc(Docname: WideString = '');
    /// <summary>Prints the document to the first installed printer whose name contains "PDF", in capitals,
    /// and returns true; false when there is none.</summary>
    function SaveDocAsPDF: Boolean;
    /// <summary>Closes the document and lets go of it.</summary>
    procedure CloseDoc(SaveOption: SmallInt = wdDoNotSaveChanges);
    /// <summary>Quits the application and lets go of it: with Force (flag, optional) always, otherwise only
    /// when no document is open.</summary>
    procedure StopWord(Force: WordBool = False);
    /// <summary>Prints Copies copies of the document, then lets the host's pending window messages run
    /// once.</summary>
    procedure PrintDoc(Copies: SmallInt; Background: WordBool = False);
    /// <summary>Returns how many documents are being printed or saved in the background, 0 when
    /// none.</summary>
    function IsPrinting: SmallInt;
    /// <summary>Returns the application's default folder PathId (a wdDefaultFilePath value), "" on
    /// failure.</summary>
    function GetDefaultPaths(PathId: SmallInt): WideString;
    /// <summary>Moves the insertion point to line LineNo, counted from 1; returns true, or false on
    /// failure.</summary>
    function GotoLine(LineNo: SmallInt): Boolean;
    /// <summary>Returns the number of the last recorded failure: always 0, because no member of these classes
    /// records.</summary>
    function GetLastErrorNumber: Integer;
    /// <summary>Returns the description of the last recorded failure: always "".</summary>
    function GetLastErrorDescription: WideString;
  end;

{$IFNDEF FPC}
  { ZORBWord on a form; its members are those of Calls. }
  TZORBWordControl = class(TOleControl)
  private
    function GetCalls: TZORBWord;
  protected
    procedure InitControlData; override;
  public
    property Calls: TZORBWord read GetCalls;
  published
    property Align;
    property Anchors;
    property TabStop;
    property Visible;
  end;

  { ZORBOutlook on a form; its members are those of Calls. }
  TZORBOutlookControl = class(TOleControl)
  private
    function GetCalls: TZORBOutlook;
  protected
    procedure InitControlData; override;
  public
    property Calls: TZORBOutlook read GetCalls;
  published
    property Align;
    property Anchors;
    property TabStop;
    property Visible;
  end;

  { OpenWriter on a form; its members are those of Calls. }
  TOpenWriterControl = class(TOleControl)
  private
    function GetCalls: TOpenWriter;
  protected
    procedure InitControlData; override;
  public
    property Calls: TOpenWriter read GetCalls;
  published
    property Align;
    property Anchors;
    property TabStop;
    property Visible;
  end;

procedure Register;

{$ENDIF}

implementation

type
  TSource = record  { ACTCTXW }
    Size: ULONG;
    Flags: DWORD;
    Path: PWideChar;
    Architecture, Language: Word;
    AssemblyDirectory, ResourceName, ApplicationName: PWideChar;
    Module: HMODULE;
  end;

function CreateActCtxW(const Source: TSource): THandle; stdcall; external 'kernel32.dll';
function ActivateActCtx(Context: THandle; out Cookie: ULONG_PTR): BOOL; stdcall; external 'kernel32.dll';
function DeactivateActCtx(Flags: DWORD; Cookie: ULONG_PTR): BOOL; stdcall; external 'kernel32.dll';
procedure ReleaseActCtx(Context: THandle); stdcall; external 'kernel32.dll';

constructor TUnregisteredLibrary.Create(const Path: UnicodeString);
var
  Source: TSource;
begin
  FContext := INVALID_HANDLE_VALUE;
  FillChar(Source, SizeOf(Source), 0);
  Source.Size := SizeOf(Source);
  Source.Path := PWideChar(Path);
  if not SameText(ExtractFileExt(Path), '.manifest') then
  begin
    Source.Flags := 8;  { ACTCTX_FLAG_RESOURCE_NAME_VALID }
    Source.ResourceName := PWideChar(1);  { where the library holds its manifest }
  end;
  FContext := CreateActCtxW(Source);
  if (FContext = INVALID_HANDLE_VALUE) or not ActivateActCtx(FContext, FCookie) then
    raise EOSError.CreateFmt('The library''s manifest cannot be used (%d): %s', [GetLastError, Path]);
end;

destructor TUnregisteredLibrary.Destroy;
begin
  if FCookie <> 0 then DeactivateActCtx(0, FCookie);
  if FContext <> INVALID_HANDLE_VALUE then ReleaseActCtx(FContext);
  inherited;
end;

class function CoZORBWord.Create: IZORBWord;
begin
  Result := CreateComObject(CLASS_ZORBWord) as IZORBWord;
end;

{ TZORBWord }

class function TZORBWord.Create: TZORBWord;
begin
  Result.Control := CoZORBWord.Create;
end;

function TZORBWord.Start(Template: WordBool): Boolean;
begin
  Result := Control.Start(Template) <> 0;
end;

function TZORBWord.SetVisible(IsVisible: WordBool): Boolean;
begin
  Result := Control.SetVisible(IsVisible) <> 0;
end;

function TZORBWord.SetActive(IsActive: WordBool): Boolean;
begin
  Result := Control.SetActive(IsActive) <> 0;
end;

function TZORBWord.OpenDoc(Doc: WideString): Boolean;
begin
  Result := Control.OpenDoc(Doc) <> 0;
end;

function TZORBWord.CreateDoc(Doc: WideString): Boolean;
begin
  Result := Control.CreateDoc(Doc) <> 0;
end;

function TZORBWord.SendText(Text: WideString): Boolean;
begin
  Result := Control.SendText(Text) <> 0;
end;

function TZORBWord.ReadText(StartPos: Integer; EndPos: Integer): WideString;
begin
  Result := Control.ReadText(StartPos, EndPos);
end;

function TZORBWord.SetScreenUpdating(Update: WordBool): Boolean;
begin
  Result := Control.SetScreenUpdating(Update) <> 0;
end;

function TZORBWord.Search(SearchString: WideString; WrapAction: Byte; SearchForward: WordBool;
    BeginAtTop: WordBool; MatchCase: WordBool; MatchWholeWord: WordBool; MatchWildcards: WordBool;
    MatchSoundsLike: WordBool; MatchAllWordForms: WordBool): Boolean;
begin
  Result := Control.Search(SearchString, WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms) <> 0;
end;

function TZORBWord.InTable: Boolean;
begin
  Result := Control.InTable <> 0;
end;

procedure TZORBWord.SelectRow;
begin
  Control.SelectRow;
end;

function TZORBWord.Replace(SearchString: WideString; ReplaceString: WideString; WrapAction: Byte;
    SearchForward: WordBool; BeginAtTop: WordBool; MatchCase: WordBool; MatchWholeWord: WordBool;
    MatchWildcards: WordBool; MatchSoundsLike: WordBool; MatchAllWordForms: WordBool;
    ReplaceOption: Byte): Boolean;
begin
  Result := Control.Replace(SearchString, ReplaceString, WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms, ReplaceOption) <> 0;
end;

function TZORBWord.NumberOfSections: Integer;
begin
  Result := Control.NumberOfSections;
end;

function TZORBWord.ReadHeaderFooterText(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
    StartPos: Integer; EndPos: Integer): WideString;
begin
  Result := Control.ReadHeaderFooterText(Section, IsHeader, HeaderFooterType, StartPos, EndPos);
end;

function TZORBWord.SetHeaderFooter(SourceTemplate: WideString; DestTemplate: WideString;
    ApplyHeader: WordBool; ApplyFooter: WordBool; ApplyFont: WordBool): Boolean;
begin
  Result := Control.SetHeaderFooter(SourceTemplate, DestTemplate, ApplyHeader, ApplyFooter, ApplyFont) <> 0;
end;

function TZORBWord.ReplaceHeaderFooter(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
    SearchString: WideString; ReplaceString: WideString; WrapAction: Byte; SearchForward: WordBool;
    BeginAtTop: WordBool; MatchCase: WordBool; MatchWholeWord: WordBool; MatchWildcards: WordBool;
    MatchSoundsLike: WordBool; MatchAllWordForms: WordBool; ReplaceOption: Byte): Boolean;
begin
  Result := Control.ReplaceHeaderFooter(Section, IsHeader, HeaderFooterType, SearchString, ReplaceString, WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms, ReplaceOption) <> 0;
end;

function TZORBWord.CellCount: Integer;
begin
  Result := Control.CellCount;
end;

function TZORBWord.CellText(CellId: Integer): WideString;
begin
  Result := Control.CellText(CellId);
end;

procedure TZORBWord.Cut;
begin
  Control.Cut;
end;

procedure TZORBWord.SelectParagraph;
begin
  Control.SelectParagraph;
end;

function TZORBWord.SelectionText: WideString;
begin
  Result := Control.SelectionText;
end;

procedure TZORBWord.Paste;
begin
  Control.Paste;
end;

procedure TZORBWord.CursorLeft(Units: SmallInt; Unit_: SmallInt; Selecting: SmallInt);
var
  Given: OleVariant;
begin
  Given := Selecting;
  Control.CursorLeft(Units, Unit_, Given);
end;

procedure TZORBWord.CursorRight(Units: SmallInt; Unit_: SmallInt; Selecting: SmallInt);
var
  Given: OleVariant;
begin
  Given := Selecting;
  Control.CursorRight(Units, Unit_, Given);
end;

procedure TZORBWord.CursorStartOfParagraph;
begin
  Control.CursorStartOfParagraph;
end;

procedure TZORBWord.CursorStartOfCell;
begin
  Control.CursorStartOfCell;
end;

procedure TZORBWord.CursorEndOfCell;
begin
  Control.CursorEndOfCell;
end;

procedure TZORBWord.CursorEndOfParagraph;
begin
  Control.CursorEndOfParagraph;
end;

procedure TZORBWord.Move(Unit_: SmallInt; Units: SmallInt);
begin
  Control.Move(Unit_, Units);
end;

procedure TZORBWord.FinaliseDoc;
begin
  Control.FinaliseDoc;
end;

procedure TZORBWord.SaveDoc(Docname: WideString);
begin
  Control.SaveDoc(Docname);
end;

function TZORBWord.SaveDocAsPDF: Boolean;
begin
  Result := Control.SaveDocAsPDF;
end;

procedure TZORBWord.CloseDoc(SaveOption: SmallInt);
begin
  Control.CloseDoc(SaveOption);
end;

procedure TZORBWord.StopWord(Force: WordBool);
begin
  Control.StopWord(Force);
end;

procedure TZORBWord.PrintDoc(Copies: SmallInt; Background: WordBool);
begin
  Control.PrintDoc(Copies, Background);
end;

function TZORBWord.IsPrinting: SmallInt;
begin
  Result := Control.IsPrinting;
end;

function TZORBWord.GetDefaultPaths(PathId: SmallInt): WideString;
begin
  Result := Control.GetDefaultPaths(PathId);
end;

function TZORBWord.GotoLine(LineNo: SmallInt): Boolean;
begin
  Result := Control.GotoLine(LineNo);
end;

function TZORBWord.GetLastErrorNumber: Integer;
begin
  Result := Control.GetLastErrorNumber;
end;

function TZORBWord.GetLastErrorDescription: WideString;
begin
  Result := Control.GetLastErrorDescription;
end;

class function CoZORBOutlook.Create: IZORBOutlook;
begin
  Result := CreateComObject(CLASS_ZORBOutlook) as IZORBOutlook;
end;

{ TZORBOutlook }

class function TZORBOutlook.Create: TZORBOutlook;
begin
  Result.Control := CoZORBOutlook.Create;
end;

function TZORBOutlook.StartOutlook: Boolean;
begin
  Result := Control.StartOutlook;
end;

function TZORBOutlook.StopOutlook(Force: WordBool): Boolean;
begin
  Result := Control.StopOutlook(Force);
end;

function TZORBOutlook.NewEmail(Template: WideString; ToAddress: WideString; CCAddress: WideString;
    BCCAddress: WideString; Subject: WideString; Content: WideString; UseHTML: WordBool; AutoSend: WordBool;
    Attachment: WideString): Boolean;
begin
  Result := Control.NewEmail(Template, ToAddress, CCAddress, BCCAddress, Subject, Content, UseHTML, AutoSend, Attachment);
end;

function TZORBOutlook.OpenItem(EntryType: WideString): Boolean;
begin
  Result := Control.OpenItem(EntryType);
end;

function TZORBOutlook.InitItems(EntryType: WideString; Condition: WideString): Boolean;
begin
  Result := Control.InitItems(EntryType, Condition);
end;

function TZORBOutlook.CreateItem(EntryType: WideString): Boolean;
begin
  Result := Control.CreateItem(EntryType);
end;

function TZORBOutlook.DeleteItem(EntryType: WideString): Boolean;
begin
  Result := Control.DeleteItem(EntryType);
end;

function TZORBOutlook.GetItem(EntryType: WideString; EntryId: WideString): Boolean;
begin
  Result := Control.GetItem(EntryType, EntryId);
end;

function TZORBOutlook.GetAppointmentInstance(EntryDate: WideString): Boolean;
begin
  Result := Control.GetAppointmentInstance(EntryDate);
end;

function TZORBOutlook.SaveItem(EntryType: WideString): Boolean;
begin
  Result := Control.SaveItem(EntryType);
end;

function TZORBOutlook.SaveItemToFile(EntryType: WideString; FileName: WideString): Boolean;
begin
  Result := Control.SaveItemToFile(EntryType, FileName);
end;

function TZORBOutlook.SaveEmailAttachment(AttachmentNo: SmallInt; FileName: WideString): Boolean;
begin
  Result := Control.SaveEmailAttachment(AttachmentNo, FileName);
end;

function TZORBOutlook.GetItemCount(EntryType: WideString): SmallInt;
begin
  Result := Control.GetItemCount(EntryType);
end;

function TZORBOutlook.GetFirstItem(EntryType: WideString): Boolean;
begin
  Result := Control.GetFirstItem(EntryType);
end;

function TZORBOutlook.GetNextItem(EntryType: WideString): Boolean;
begin
  Result := Control.GetNextItem(EntryType);
end;

function TZORBOutlook.GetAppointmentProperty(AppProp: WideString): WideString;
begin
  Result := Control.GetAppointmentProperty(AppProp);
end;

function TZORBOutlook.SetAppointmentProperty(AppProp: WideString; PropertyValue: WideString): Boolean;
begin
  Result := Control.SetAppointmentProperty(AppProp, PropertyValue);
end;

function TZORBOutlook.GetRecurrencePattern: Boolean;
begin
  Result := Control.GetRecurrencePattern;
end;

function TZORBOutlook.ClearRecurrencePattern: Boolean;
begin
  Result := Control.ClearRecurrencePattern;
end;

function TZORBOutlook.GetRecurrenceProperty(RecurProp: WideString): WideString;
begin
  Result := Control.GetRecurrenceProperty(RecurProp);
end;

function TZORBOutlook.SetRecurrenceProperty(RecurProp: WideString; PropertyValue: WideString): WideString;
begin
  Result := Control.SetRecurrenceProperty(RecurProp, PropertyValue);
end;

function TZORBOutlook.GetExceptionProperty(Instance: SmallInt; ExceptProp: WideString): WideString;
begin
  Result := Control.GetExceptionProperty(Instance, ExceptProp);
end;

function TZORBOutlook.GetContactProperty(ContactProp: WideString): WideString;
begin
  Result := Control.GetContactProperty(ContactProp);
end;

function TZORBOutlook.SetContactProperty(ContactProp: WideString; PropertyValue: WideString): Boolean;
begin
  Result := Control.SetContactProperty(ContactProp, PropertyValue);
end;

function TZORBOutlook.GetTaskProperty(TaskProp: WideString): WideString;
begin
  Result := Control.GetTaskProperty(TaskProp);
end;

function TZORBOutlook.SetTaskProperty(TaskProperty: WideString; PropertyValue: WideString): Boolean;
begin
  Result := Control.SetTaskProperty(TaskProperty, PropertyValue);
end;

function TZORBOutlook.GetEmailProperty(EmailProp: WideString): WideString;
begin
  Result := Control.GetEmailProperty(EmailProp);
end;

function TZORBOutlook.GetNoteProperty(NoteProperty: WideString): WideString;
begin
  Result := Control.GetNoteProperty(NoteProperty);
end;

function TZORBOutlook.SetNoteProperty(NoteProperty: WideString; PropertyValue: WideString): Boolean;
begin
  Result := Control.SetNoteProperty(NoteProperty, PropertyValue);
end;

function TZORBOutlook.GetLastErrorNumber: SmallInt;
begin
  Result := Control.GetLastErrorNumber;
end;

function TZORBOutlook.GetLastErrorDescription: WideString;
begin
  Result := Control.GetLastErrorDescription;
end;

class function CoOpenWriter.Create: IOpenWriter;
begin
  Result := CreateComObject(CLASS_OpenWriter) as IOpenWriter;
end;

{ TOpenWriter }

class function TOpenWriter.Create: TOpenWriter;
begin
  Result.Control := CoOpenWriter.Create;
end;

function TOpenWriter.Start(Template: WordBool): Boolean;
begin
  Result := Control.Start(Template) <> 0;
end;

function TOpenWriter.SetVisible(IsVisible: WordBool): Boolean;
begin
  Result := Control.SetVisible(IsVisible) <> 0;
end;

function TOpenWriter.SetActive(IsActive: WordBool): Boolean;
begin
  Result := Control.SetActive(IsActive) <> 0;
end;

function TOpenWriter.OpenDoc(Doc: WideString): Boolean;
begin
  Result := Control.OpenDoc(Doc) <> 0;
end;

function TOpenWriter.CreateDoc(Doc: WideString): Boolean;
begin
  Result := Control.CreateDoc(Doc) <> 0;
end;

function TOpenWriter.SendText(Text: WideString): Boolean;
begin
  Result := Control.SendText(Text) <> 0;
end;

function TOpenWriter.ReadText(StartPos: Integer; EndPos: Integer): WideString;
begin
  Result := Control.ReadText(StartPos, EndPos);
end;

function TOpenWriter.SetScreenUpdating(Update: WordBool): Boolean;
begin
  Result := Control.SetScreenUpdating(Update) <> 0;
end;

function TOpenWriter.Search(SearchString: WideString; WrapAction: Byte; SearchForward: WordBool;
    BeginAtTop: WordBool; MatchCase: WordBool; MatchWholeWord: WordBool; MatchWildcards: WordBool;
    MatchSoundsLike: WordBool; MatchAllWordForms: WordBool): Boolean;
begin
  Result := Control.Search(SearchString, WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms) <> 0;
end;

function TOpenWriter.InTable: Boolean;
begin
  Result := Control.InTable <> 0;
end;

procedure TOpenWriter.SelectRow;
begin
  Control.SelectRow;
end;

function TOpenWriter.Replace(SearchString: WideString; ReplaceString: WideString; WrapAction: Byte;
    SearchForward: WordBool; BeginAtTop: WordBool; MatchCase: WordBool; MatchWholeWord: WordBool;
    MatchWildcards: WordBool; MatchSoundsLike: WordBool; MatchAllWordForms: WordBool;
    ReplaceOption: Byte): Boolean;
begin
  Result := Control.Replace(SearchString, ReplaceString, WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms, ReplaceOption) <> 0;
end;

function TOpenWriter.NumberOfSections: Integer;
begin
  Result := Control.NumberOfSections;
end;

function TOpenWriter.ReadHeaderFooterText(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
    StartPos: Integer; EndPos: Integer): WideString;
begin
  Result := Control.ReadHeaderFooterText(Section, IsHeader, HeaderFooterType, StartPos, EndPos);
end;

function TOpenWriter.SetHeaderFooter(SourceTemplate: WideString; DestTemplate: WideString; ApplyHeader: Byte;
    ApplyFooter: Byte; ApplyFont: Byte): Boolean;
begin
  Result := Control.SetHeaderFooter(SourceTemplate, DestTemplate, ApplyHeader, ApplyFooter, ApplyFont) <> 0;
end;

function TOpenWriter.ReplaceHeaderFooter(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
    SearchString: WideString; ReplaceString: WideString; WrapAction: Byte; SearchForward: WordBool;
    BeginAtTop: WordBool; MatchCase: WordBool; MatchWholeWord: WordBool; MatchWildcards: WordBool;
    MatchSoundsLike: WordBool; MatchAllWordForms: WordBool; ReplaceOption: Byte): Boolean;
begin
  Result := Control.ReplaceHeaderFooter(Section, IsHeader, HeaderFooterType, SearchString, ReplaceString, WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms, ReplaceOption) <> 0;
end;

function TOpenWriter.CellCount: Integer;
begin
  Result := Control.CellCount;
end;

function TOpenWriter.CellText(CellId: Integer): WideString;
begin
  Result := Control.CellText(CellId);
end;

procedure TOpenWriter.Cut;
begin
  Control.Cut;
end;

procedure TOpenWriter.SelectParagraph;
begin
  Control.SelectParagraph;
end;

function TOpenWriter.SelectionText: WideString;
begin
  Result := Control.SelectionText;
end;

procedure TOpenWriter.Paste;
begin
  Control.Paste;
end;

procedure TOpenWriter.CursorLeft(Units: SmallInt; Unit_: SmallInt; Selecting: SmallInt);
var
  Given: OleVariant;
begin
  Given := Selecting;
  Control.CursorLeft(Units, Unit_, Given);
end;

procedure TOpenWriter.CursorRight(Units: SmallInt; Unit_: SmallInt; Selecting: SmallInt);
var
  Given: OleVariant;
begin
  Given := Selecting;
  Control.CursorRight(Units, Unit_, Given);
end;

procedure TOpenWriter.CursorStartOfParagraph;
begin
  Control.CursorStartOfParagraph;
end;

procedure TOpenWriter.CursorStartOfCell;
begin
  Control.CursorStartOfCell;
end;

procedure TOpenWriter.CursorEndOfCell;
begin
  Control.CursorEndOfCell;
end;

procedure TOpenWriter.CursorEndOfParagraph;
begin
  Control.CursorEndOfParagraph;
end;

procedure TOpenWriter.Move(Unit_: SmallInt; Units: SmallInt);
begin
  Control.Move(Unit_, Units);
end;

procedure TOpenWriter.FinaliseDoc;
begin
  Control.FinaliseDoc;
end;

procedure TOpenWriter.SaveDoc(Docname: WideString);
begin
  Control.SaveDoc(Docname);
end;

function TOpenWriter.SaveDocAsPDF: Boolean;
begin
  Result := Control.SaveDocAsPDF;
end;

procedure TOpenWriter.CloseDoc(SaveOption: SmallInt);
begin
  Control.CloseDoc(SaveOption);
end;

procedure TOpenWriter.StopWord(Force: WordBool);
begin
  Control.StopWord(Force);
end;

procedure TOpenWriter.PrintDoc(Copies: SmallInt; Background: WordBool);
begin
  Control.PrintDoc(Copies, Background);
end;

function TOpenWriter.IsPrinting: SmallInt;
begin
  Result := Control.IsPrinting;
end;

function TOpenWriter.GetDefaultPaths(PathId: SmallInt): WideString;
begin
  Result := Control.GetDefaultPaths(PathId);
end;

function TOpenWriter.GotoLine(LineNo: SmallInt): Boolean;
begin
  Result := Control.GotoLine(LineNo);
end;

function TOpenWriter.GetLastErrorNumber: Integer;
begin
  Result := Control.GetLastErrorNumber;
end;

function TOpenWriter.GetLastErrorDescription: WideString;
begin
  Result := Control.GetLastErrorDescription;
end;

{$IFNDEF FPC}
{ TZORBWordControl }

procedure TZORBWordControl.InitControlData;
const
  Data: TControlData2 = (
    ClassID: '{495CDEB3-7F1E-4663-9DB2-E33437412CE0}';
    EventIID: '{EDE70B6E-665B-435C-AC4B-27A4E10D18CC}';
    EventCount: 0;
    EventDispIDs: nil;
    LicenseKey: nil;
    Flags: $00000000;
    Version: 500);
begin
  ControlData := @Data;
end;

function TZORBWordControl.GetCalls: TZORBWord;
begin
  CreateControl;
  Result.Control := IUnknown(OleObject) as IZORBWord;
end;

{ TZORBOutlookControl }

procedure TZORBOutlookControl.InitControlData;
const
  Data: TControlData2 = (
    ClassID: '{A04BAF5A-D329-4C3A-A012-CFFA919D559F}';
    EventIID: '{A0FC765B-247C-4751-AB23-514B81F14DAF}';
    EventCount: 0;
    EventDispIDs: nil;
    LicenseKey: nil;
    Flags: $00000000;
    Version: 500);
begin
  ControlData := @Data;
end;

function TZORBOutlookControl.GetCalls: TZORBOutlook;
begin
  CreateControl;
  Result.Control := IUnknown(OleObject) as IZORBOutlook;
end;

{ TOpenWriterControl }

procedure TOpenWriterControl.InitControlData;
const
  Data: TControlData2 = (
    ClassID: '{B0584FF2-C51E-4844-94E6-AAC137F18002}';
    EventIID: '{4E2897A2-ADCE-42D9-850E-6A2BB5D32040}';
    EventCount: 0;
    EventDispIDs: nil;
    LicenseKey: nil;
    Flags: $00000000;
    Version: 500);
begin
  ControlData := @Data;
end;

function TOpenWriterControl.GetCalls: TOpenWriter;
begin
  CreateControl;
  Result.Control := IUnknown(OleObject) as IOpenWriter;
end;

procedure Register;
begin
  RegisterComponents('ActiveX', [TZORBWordControl, TZORBOutlookControl, TOpenWriterControl]);
end;

{$ENDIF}

end.
