# What editors and type checkers know of zorboffice. Written by the build from the tables of the library; not to be edited.
from enum import IntEnum
from typing import Any

class WdFindWrap(IntEnum):
    wdFindStop = 0
    wdFindContinue = 1
    wdFindAsk = 2

class WdReplace(IntEnum):
    wdReplaceNone = 0
    wdReplaceOne = 1
    wdReplaceAll = 2

class WdHeaderFooterIndex(IntEnum):
    wdHeaderFooterPrimary = 1
    wdHeaderFooterFirstPage = 2
    wdHeaderFooterEvenPages = 3

class WdUnits(IntEnum):
    wdCharacter = 1
    wdWord = 2
    wdSentence = 3
    wdParagraph = 4
    wdLine = 5
    wdStory = 6
    wdScreen = 7
    wdSection = 8
    wdColumn = 9
    wdRow = 10
    wdWindow = 11
    wdCell = 12
    wdCharacterFormatting = 13
    wdParagraphFormatting = 14
    wdTable = 15
    wdItem = 16

class WdMovementType(IntEnum):
    wdMove = 0
    wdExtend = 1

class WdSaveOptions(IntEnum):
    wdDoNotSaveChanges = 0
    wdSaveChanges = -1
    wdPromptToSaveChanges = -2

class WdDefaultFilePath(IntEnum):
    wdDocumentsPath = 0
    wdPicturesPath = 1
    wdUserTemplatesPath = 2
    wdWorkgroupTemplatesPath = 3
    wdUserOptionsPath = 4
    wdAutoRecoverPath = 5
    wdToolsPath = 6
    wdTutorialPath = 7
    wdStartupPath = 8
    wdProgramPath = 9
    wdGraphicsFiltersPath = 10
    wdTextConvertersPath = 11
    wdProofingToolsPath = 12
    wdTempFilePath = 13
    wdCurrentFolderPath = 14
    wdStyleGalleryPath = 15
    wdBorderArtPath = 19

class OlImportance(IntEnum):
    olImportanceLow = 0
    olImportanceNormal = 1
    olImportanceHigh = 2

class OlSensitivity(IntEnum):
    olNormal = 0
    olPersonal = 1
    olPrivate = 2
    olConfidential = 3

class OlRecurrenceType(IntEnum):
    olRecursDaily = 0
    olRecursWeekly = 1
    olRecursMonthly = 2
    olRecursMonthNth = 3
    olRecursYearly = 5
    olRecursYearNth = 6

class OlDaysOfWeek(IntEnum):
    olSunday = 1
    olMonday = 2
    olTuesday = 4
    olWednesday = 8
    olThursday = 16
    olFriday = 32
    olSaturday = 64

class OlMeetingStatus(IntEnum):
    olNonMeeting = 0
    olMeeting = 1
    olMeetingReceived = 3
    olMeetingCanceled = 5
    olMeetingReceivedAndCanceled = 7

class OlRecurrenceState(IntEnum):
    olApptNotRecurring = 0
    olApptMaster = 1
    olApptOccurrence = 2
    olApptException = 3

class OlMailingAddress(IntEnum):
    olNone = 0
    olHome = 1
    olBusiness = 2
    olOther = 3

class OlDownloadState(IntEnum):
    olHeaderOnly = 0
    olFullItem = 1

class OlRemoteStatus(IntEnum):
    olRemoteStatusNone = 0
    olUnMarked = 1
    olMarkedForDownload = 2
    olMarkedForCopy = 3
    olMarkedForDelete = 4

class EntryType:
    Appointment: str
    Contact: str
    Note: str
    Task: str
    Email: str
    SentItems: str
    DeletedAppointment: str
    DeletedContact: str
    DeletedNote: str
    DeletedTask: str
    DeletedEmail: str

class TaskStatus:
    NotStarted: str
    InProgress: str
    Completed: str
    Waiting: str
    Deferred: str

class ExceptionAction:
    GetAppointment: str

class AppointmentKey:
    AllDayEvent: str
    Billing: str
    Body: str
    Companies: str
    CreatedDate: str
    CreatedTime: str
    Duration: str
    End: str
    EndDate: str
    EndTime: str
    EntryID: str
    Folder: str
    IsRecurring: str
    Importance: str
    ModifiedDate: str
    ModifiedTime: str
    Location: str
    MeetingStatus: str
    MessageClass: str
    Mileage: str
    RecurrenceState: str
    ReminderMinutesBeforeStart: str
    ReminderSet: str
    Sensitivity: str
    Start: str
    StartDate: str
    StartTime: str
    Subject: str

class RecurrenceKey:
    Class: str
    DayOfMonth: str
    DayOfWeekMask: str
    Duration: str
    EndTime: str
    Interval: str
    Instance: str
    MonthOfYear: str
    NoEndDate: str
    Occurrences: str
    PatternEndDate: str
    PatternStartDate: str
    RecurrenceType: str
    StartTime: str
    ExceptionCount: str
    ExceptionList: str

class ExceptionKey:
    OriginalDate: str
    Deleted: str

class ContactKey:
    AssistantTelephoneNumber: str
    Body: str
    Business2TelephoneNumber: str
    BusinessAddress: str
    BusinessAddressCity: str
    BusinessAddressCountry: str
    BusinessAddressPostalCode: str
    BusinessAddressState: str
    BusinessAddressStreet: str
    BusinessFaxNumber: str
    BusinesshomePage: str
    BusinessTelephoneNumber: str
    CarTelephoneNumber: str
    CompanyMainTelephoneNumber: str
    CompanyName: str
    Email1Address: str
    Email2Address: str
    Email3Address: str
    FirstName: str
    FullName: str
    GovernmentIDNumber: str
    Home2TelephoneNumber: str
    HomeAddress: str
    HomeAddressCity: str
    HomeAddressCountry: str
    HomeAddressPostalCode: str
    HomeAddressState: str
    HomeAddressStreet: str
    HomeFaxNumber: str
    HomeTelephoneNumber: str
    JobTitle: str
    MailingAddress: str
    MailingAddressCity: str
    MailingAddressCountry: str
    MailingAddressPostalCode: str
    MailingAddressState: str
    MailingAddressStreet: str
    MobileTelephoneNumber: str
    Nickname: str
    OtherAddress: str
    OtherAddressCity: str
    OtherAddressCountry: str
    OtherAddressPostalCode: str
    OtherAddressState: str
    OtherAddressStreet: str
    OtherFaxNumber: str
    OtherTelephoneNumber: str
    PrimaryTelephoneNumber: str
    RadioTelephoneNumber: str
    Title: str
    WebPage: str
    EntryID: str
    Folder: str
    ModifiedDate: str
    ModifiedTime: str
    SelectedMailingAddress: str
    AllTelephoneNumbers: str
    AllFaxNumbers: str
    AllEmailAddresses: str

class TaskKey:
    Body: str
    CreationDate: str
    CreationTime: str
    DueDate: str
    EntryID: str
    Folder: str
    ModifiedDate: str
    ModifiedTime: str
    PercentComplete: str
    Priority: str
    Reminder: str
    ReminderDate: str
    ReminderTime: str
    Subject: str
    StartDate: str
    Status: str

class EmailKey:
    AttachmentCount: str
    Attachments: str
    BCC: str
    Body: str
    CC: str
    Class: str
    EntryID: str
    HTMLBody: str
    Importance: str
    Parent: str
    ReceivedDate: str
    ReceivedTime: str
    Recipients: str
    SenderEmailAddress: str
    SenderName: str
    Sensitivity: str
    Size: str
    Subject: str
    To: str

class NoteKey:
    Body: str
    Categories: str
    Class: str
    Color: str
    CreationTime: str
    DownloadState: str
    EntryID: str
    Folder: str
    Height: str
    IsConflict: str
    ModifiedDate: str
    ModifiedTime: str
    Left: str
    MarkForDownload: str
    MessageClass: str
    Parent: str
    Saved: str
    Size: str
    Subject: str
    Top: str
    Width: str

class UnregisteredLibrary:
    def __init__(self, path: str) -> None: ...
    def __enter__(self) -> UnregisteredLibrary: ...
    def __exit__(self, *failure: object) -> None: ...

class ZORBWord:
    dispatch: Any
    def __init__(self, dispatch: Any = ...) -> None: ...
    def Start(self, Template: bool = False) -> bool: ...
    def SetVisible(self, IsVisible: bool) -> bool: ...
    def SetActive(self, IsActive: bool) -> bool: ...
    def OpenDoc(self, Doc: str) -> bool: ...
    def CreateDoc(self, Doc: str = "") -> bool: ...
    def SendText(self, Text: str) -> bool: ...
    def ReadText(self, StartPos: int, EndPos: int) -> str: ...
    def SetScreenUpdating(self, Update: bool) -> bool: ...
    def Search(self, SearchString: str, WrapAction: WdFindWrap = WdFindWrap.wdFindContinue,
            SearchForward: bool = True, BeginAtTop: bool = False, MatchCase: bool = False,
            MatchWholeWord: bool = False, MatchWildcards: bool = False, MatchSoundsLike: bool = False,
            MatchAllWordForms: bool = False) -> bool: ...
    def InTable(self) -> bool: ...
    def SelectRow(self) -> None: ...
    def Replace(self, SearchString: str, ReplaceString: str,
            WrapAction: WdFindWrap = WdFindWrap.wdFindContinue, SearchForward: bool = True,
            BeginAtTop: bool = True, MatchCase: bool = False, MatchWholeWord: bool = False,
            MatchWildcards: bool = False, MatchSoundsLike: bool = False, MatchAllWordForms: bool = False,
            ReplaceOption: WdReplace = WdReplace.wdReplaceOne) -> bool: ...
    def NumberOfSections(self) -> int: ...
    def ReadHeaderFooterText(self, Section: int, IsHeader: bool, HeaderFooterType: WdHeaderFooterIndex,
            StartPos: int, EndPos: int) -> str: ...
    def SetHeaderFooter(self, SourceTemplate: str, DestTemplate: str, ApplyHeader: bool, ApplyFooter: bool,
            ApplyFont: bool) -> bool: ...
    def ReplaceHeaderFooter(self, Section: int, IsHeader: bool, HeaderFooterType: WdHeaderFooterIndex,
            SearchString: str, ReplaceString: str, WrapAction: WdFindWrap = WdFindWrap.wdFindContinue,
            SearchForward: bool = True, BeginAtTop: bool = True, MatchCase: bool = False,
            MatchWholeWord: bool = False, MatchWildcards: bool = False, MatchSoundsLike: bool = False,
            MatchAllWordForms: bool = False, ReplaceOption: WdReplace = WdReplace.wdReplaceOne) -> bool: ...
    def CellCount(self) -> int: ...
    def CellText(self, CellId: int) -> str: ...
    def Cut(self) -> None: ...
    def SelectParagraph(self) -> None: ...
    def SelectionText(self) -> str: ...
    def Paste(self) -> None: ...
    def CursorLeft(self, Units: int, Unit: WdUnits = WdUnits.wdCharacter,
            Selecting: WdMovementType = WdMovementType.wdMove) -> None: ...
    def CursorRight(self, Units: int, Unit: WdUnits = WdUnits.wdCharacter,
            Selecting: WdMovementType = WdMovementType.wdMove) -> None: ...
    def CursorStartOfParagraph(self) -> None: ...
    def CursorStartOfCell(self) -> None: ...
    def CursorEndOfCell(self) -> None: ...
    def CursorEndOfParagraph(self) -> None: ...
    def Move(self, Unit: WdUnits, Units: int) -> None: ...
    def FinaliseDoc(self) -> None: ...
    def SaveDoc(self, Docname: str = "") -> None: ...
    def SaveDocAsPDF(self) -> bool: ...
    def CloseDoc(self, SaveOption: WdSaveOptions = WdSaveOptions.wdDoNotSaveChanges) -> None: ...
    def StopWord(self, Force: bool = False) -> None: ...
    def PrintDoc(self, Copies: int, Background: bool = False) -> None: ...
    def IsPrinting(self) -> int: ...
    def GetDefaultPaths(self, PathId: WdDefaultFilePath) -> str: ...
    def GotoLine(self, LineNo: int) -> bool: ...
    def GetLastErrorNumber(self) -> int: ...
    def GetLastErrorDescription(self) -> str: ...

class ZORBOutlook:
    dispatch: Any
    def __init__(self, dispatch: Any = ...) -> None: ...
    def StartOutlook(self) -> bool: ...
    def StopOutlook(self, Force: bool = False) -> bool: ...
    def NewEmail(self, Template: str, ToAddress: str, CCAddress: str, BCCAddress: str, Subject: str,
            Content: str, UseHTML: bool, AutoSend: bool, Attachment: str) -> bool: ...
    def OpenItem(self, EntryType: str) -> bool: ...
    def InitItems(self, EntryType: str, Condition: str) -> bool: ...
    def CreateItem(self, EntryType: str) -> bool: ...
    def DeleteItem(self, EntryType: str) -> bool: ...
    def GetItem(self, EntryType: str, EntryId: str) -> bool: ...
    def GetAppointmentInstance(self, EntryDate: str) -> bool: ...
    def SaveItem(self, EntryType: str) -> bool: ...
    def SaveItemToFile(self, EntryType: str, FileName: str) -> bool: ...
    def SaveEmailAttachment(self, AttachmentNo: int, FileName: str) -> bool: ...
    def GetItemCount(self, EntryType: str) -> int: ...
    def GetFirstItem(self, EntryType: str) -> bool: ...
    def GetNextItem(self, EntryType: str) -> bool: ...
    def GetAppointmentProperty(self, AppProp: str) -> str: ...
    def SetAppointmentProperty(self, AppProp: str, PropertyValue: str) -> bool: ...
    def GetRecurrencePattern(self) -> bool: ...
    def ClearRecurrencePattern(self) -> bool: ...
    def GetRecurrenceProperty(self, RecurProp: str) -> str: ...
    def SetRecurrenceProperty(self, RecurProp: str, PropertyValue: str) -> str: ...
    def GetExceptionProperty(self, Instance: int, ExceptProp: str) -> str: ...
    def GetContactProperty(self, ContactProp: str) -> str: ...
    def SetContactProperty(self, ContactProp: str, PropertyValue: str) -> bool: ...
    def GetTaskProperty(self, TaskProp: str) -> str: ...
    def SetTaskProperty(self, TaskProperty: str, PropertyValue: str) -> bool: ...
    def GetEmailProperty(self, EmailProp: str) -> str: ...
    def GetNoteProperty(self, NoteProperty: str) -> str: ...
    def SetNoteProperty(self, NoteProperty: str, PropertyValue: str) -> bool: ...
    def GetLastErrorNumber(self) -> int: ...
    def GetLastErrorDescription(self) -> str: ...

class OpenWriter:
    dispatch: Any
    def __init__(self, dispatch: Any = ...) -> None: ...
    def Start(self, Template: bool = False) -> bool: ...
    def SetVisible(self, IsVisible: bool) -> bool: ...
    def SetActive(self, IsActive: bool) -> bool: ...
    def OpenDoc(self, Doc: str) -> bool: ...
    def CreateDoc(self, Doc: str = "") -> bool: ...
    def SendText(self, Text: str) -> bool: ...
    def ReadText(self, StartPos: int, EndPos: int) -> str: ...
    def SetScreenUpdating(self, Update: bool) -> bool: ...
    def Search(self, SearchString: str, WrapAction: WdFindWrap = WdFindWrap.wdFindContinue,
            SearchForward: bool = True, BeginAtTop: bool = False, MatchCase: bool = False,
            MatchWholeWord: bool = False, MatchWildcards: bool = False, MatchSoundsLike: bool = False,
            MatchAllWordForms: bool = False) -> bool: ...
    def InTable(self) -> bool: ...
    def SelectRow(self) -> None: ...
    def Replace(self, SearchString: str, ReplaceString: str,
            WrapAction: WdFindWrap = WdFindWrap.wdFindContinue, SearchForward: bool = True,
            BeginAtTop: bool = True, MatchCase: bool = False, MatchWholeWord: bool = False,
            MatchWildcards: bool = False, MatchSoundsLike: bool = False, MatchAllWordForms: bool = False,
            ReplaceOption: WdReplace = WdReplace.wdReplaceOne) -> bool: ...
    def NumberOfSections(self) -> int: ...
    def ReadHeaderFooterText(self, Section: int, IsHeader: bool, HeaderFooterType: WdHeaderFooterIndex,
            StartPos: int, EndPos: int) -> str: ...
    def SetHeaderFooter(self, SourceTemplate: str, DestTemplate: str, ApplyHeader: int, ApplyFooter: int,
            ApplyFont: int) -> bool: ...
    def ReplaceHeaderFooter(self, Section: int, IsHeader: bool, HeaderFooterType: WdHeaderFooterIndex,
            SearchString: str, ReplaceString: str, WrapAction: WdFindWrap = WdFindWrap.wdFindContinue,
            SearchForward: bool = True, BeginAtTop: bool = True, MatchCase: bool = False,
            MatchWholeWord: bool = False, MatchWildcards: bool = False, MatchSoundsLike: bool = False,
            MatchAllWordForms: bool = False, ReplaceOption: WdReplace = WdReplace.wdReplaceOne) -> bool: ...
    def CellCount(self) -> int: ...
    def CellText(self, CellId: int) -> str: ...
    def Cut(self) -> None: ...
    def SelectParagraph(self) -> None: ...
    def SelectionText(self) -> str: ...
    def Paste(self) -> None: ...
    def CursorLeft(self, Units: int, Unit: WdUnits = WdUnits.wdCharacter,
            Selecting: WdMovementType = WdMovementType.wdMove) -> None: ...
    def CursorRight(self, Units: int, Unit: WdUnits = WdUnits.wdCharacter,
            Selecting: WdMovementType = WdMovementType.wdMove) -> None: ...
    def CursorStartOfParagraph(self) -> None: ...
    def CursorStartOfCell(self) -> None: ...
    def CursorEndOfCell(self) -> None: ...
    def CursorEndOfParagraph(self) -> None: ...
    def Move(self, Unit: WdUnits, Units: int) -> None: ...
    def FinaliseDoc(self) -> None: ...
    def SaveDoc(self, Docname: str = "") -> None: ...
    def SaveDocAsPDF(self) -> bool: ...
    def CloseDoc(self, SaveOption: WdSaveOptions = WdSaveOptions.wdDoNotSaveChanges) -> None: ...
    def StopWord(self, Force: bool = False) -> None: ...
    def PrintDoc(self, Copies: int, Background: bool = False) -> None: ...
    def IsPrinting(self) -> int: ...
    def GetDefaultPaths(self, PathId: WdDefaultFilePath) -> str: ...
    def GotoLine(self, LineNo: int) -> bool: ...
    def GetLastErrorNumber(self) -> int: ...
    def GetLastErrorDescription(self) -> str: ...
