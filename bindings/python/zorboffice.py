"""ZORBOffice for Python, over pywin32. Written by the build from the tables of the library; not to be edited.

    import zorboffice
    with zorboffice.UnregisteredLibrary(r"C:\Tools\ZORBOffice.manifest"):  # not needed where it is registered
        word = zorboffice.ZORBWord()
    if word.Start() and word.OpenDoc(r"C:\letters\offer.docx"):
        text = word.ReadText(0, 0)

What fails inside a member is told by its result, often after a message box; what reaches the host, and a control that cannot be
created, is raised as pywintypes.com_error. A control belongs to the thread that creates it. Members are called by their fixed
numbers: neither makepy nor a type library is needed.
"""
from __future__ import annotations

import ctypes
from enum import IntEnum

import pythoncom


class WdFindWrap(IntEnum):
    """What a search does when it reaches the end of the text."""
    wdFindStop = 0  # It ends.
    wdFindContinue = 1  # It goes on from the other end.
    wdFindAsk = 2  # It asks the user.


class WdReplace(IntEnum):
    """How much is replaced."""
    wdReplaceNone = 0  # Nothing.
    wdReplaceOne = 1  # The first occurrence.
    wdReplaceAll = 2  # Every occurrence.


class WdHeaderFooterIndex(IntEnum):
    """Which of a section's headers or footers is meant."""
    wdHeaderFooterPrimary = 1  # The one of all pages that have none of their own.
    wdHeaderFooterFirstPage = 2  # The first page's.
    wdHeaderFooterEvenPages = 3  # The even pages'.


class WdUnits(IntEnum):
    """By what the insertion point moves."""
    wdCharacter = 1  # Characters.
    wdWord = 2  # Words.
    wdSentence = 3  # Sentences.
    wdParagraph = 4  # Paragraphs.
    wdLine = 5  # Lines.
    wdStory = 6  # Stories: the main text, a header and so on.
    wdScreen = 7  # Screens.
    wdSection = 8  # Sections.
    wdColumn = 9  # Columns.
    wdRow = 10  # Rows.
    wdWindow = 11  # Windows.
    wdCell = 12  # Cells.
    wdCharacterFormatting = 13  # Runs of one character formatting.
    wdParagraphFormatting = 14  # Runs of one paragraph formatting.
    wdTable = 15  # Tables.
    wdItem = 16  # The selected item.


class WdMovementType(IntEnum):
    """Whether a movement selects."""
    wdMove = 0  # The selection becomes an insertion point and moves.
    wdExtend = 1  # The selection is extended.


class WdSaveOptions(IntEnum):
    """What becomes of changes when a document is closed."""
    wdDoNotSaveChanges = 0  # They are lost.
    wdSaveChanges = -1  # They are saved.
    wdPromptToSaveChanges = -2  # The user is asked.


class WdDefaultFilePath(IntEnum):
    """One of the word processor's default folders."""
    wdDocumentsPath = 0  # Documents.
    wdPicturesPath = 1  # Pictures.
    wdUserTemplatesPath = 2  # The user's templates.
    wdWorkgroupTemplatesPath = 3  # The workgroup's templates.
    wdUserOptionsPath = 4  # The user's options.
    wdAutoRecoverPath = 5  # Files for recovery.
    wdToolsPath = 6  # Tools.
    wdTutorialPath = 7  # The tutorial.
    wdStartupPath = 8  # What is loaded at the start.
    wdProgramPath = 9  # The program.
    wdGraphicsFiltersPath = 10  # Filters for pictures.
    wdTextConvertersPath = 11  # Converters of text.
    wdProofingToolsPath = 12  # Proofing tools.
    wdTempFilePath = 13  # Temporary files.
    wdCurrentFolderPath = 14  # The current folder.
    wdStyleGalleryPath = 15  # The style gallery.
    wdBorderArtPath = 19  # Art for borders.


class OlImportance(IntEnum):
    """Values of `Importance`, and of a task's `Priority`."""
    olImportanceLow = 0  # Low.
    olImportanceNormal = 1  # Normal.
    olImportanceHigh = 2  # High.


class OlSensitivity(IntEnum):
    """Values of `Sensitivity`. Only olPrivate can be written; any other becomes olNormal."""
    olNormal = 0  # Normal.
    olPersonal = 1  # Personal.
    olPrivate = 2  # Private.
    olConfidential = 3  # Confidential.


class OlRecurrenceType(IntEnum):
    """Values of `RecurrenceType`."""
    olRecursDaily = 0  # Every so many days.
    olRecursWeekly = 1  # On days of the week.
    olRecursMonthly = 2  # On a day of the month.
    olRecursMonthNth = 3  # On, say, the second Tuesday of the month: see `Instance`.
    olRecursYearly = 5  # On a day of the year.
    olRecursYearNth = 6  # On, say, the second Tuesday of May: see `Instance`.


class OlDaysOfWeek(IntEnum):
    """Values of `DayOfWeekMask`: one of them, or the sum of several."""
    olSunday = 1  # Sunday.
    olMonday = 2  # Monday.
    olTuesday = 4  # Tuesday.
    olWednesday = 8  # Wednesday.
    olThursday = 16  # Thursday.
    olFriday = 32  # Friday.
    olSaturday = 64  # Saturday.


class OlMeetingStatus(IntEnum):
    """Values of `MeetingStatus`."""
    olNonMeeting = 0  # An appointment without attendees.
    olMeeting = 1  # A meeting.
    olMeetingReceived = 3  # A meeting to which one was invited.
    olMeetingCanceled = 5  # A cancelled meeting.
    olMeetingReceivedAndCanceled = 7  # A cancelled meeting that is still in the calendar.


class OlRecurrenceState(IntEnum):
    """Values of `RecurrenceState`."""
    olApptNotRecurring = 0  # A single appointment.
    olApptMaster = 1  # A series.
    olApptOccurrence = 2  # One occurrence of a series.
    olApptException = 3  # A changed occurrence of a series.


class OlMailingAddress(IntEnum):
    """Values of `SelectedMailingAddress`."""
    olNone = 0  # None.
    olHome = 1  # The home address.
    olBusiness = 2  # The business address.
    olOther = 3  # The other address.


class OlDownloadState(IntEnum):
    """Values of `DownloadState`."""
    olHeaderOnly = 0  # Only the header is there.
    olFullItem = 1  # All of the item is there.


class OlRemoteStatus(IntEnum):
    """Values of `MarkForDownload`."""
    olRemoteStatusNone = 0  # None was set.
    olUnMarked = 1  # Not marked.
    olMarkedForDownload = 2  # Marked to be downloaded.
    olMarkedForCopy = 3  # Marked to be copied.
    olMarkedForDelete = 4  # Marked to be deleted.


class EntryType:
    """Kinds of items. InitItems knows six more words: `Sent Items`, and `Deleted ` in front of a kind."""
    Appointment = "Appointment"  # The calendar's.
    Contact = "Contact"  # The contacts'.
    Note = "Note"  # The notes'.
    Task = "Task"  # The tasks'.
    Email = "Email"  # The inbox's.
    SentItems = "Sent Items"  # Sent mails; for InitItems only.
    DeletedAppointment = "Deleted Appointment"  # For InitItems only.
    DeletedContact = "Deleted Contact"  # For InitItems only.
    DeletedNote = "Deleted Note"  # For InitItems only.
    DeletedTask = "Deleted Task"  # For InitItems only.
    DeletedEmail = "Deleted Email"  # For InitItems only.


class TaskStatus:
    """Values of a task's `Status`."""
    NotStarted = "Not Started"  # olTaskNotStarted (0).
    InProgress = "In Progress"  # olTaskInProgress (1).
    Completed = "Completed"  # olTaskComplete (2).
    Waiting = "Waiting on someone else"  # olTaskWaiting (3).
    Deferred = "Deferred"  # olTaskDeferred (4).


class ExceptionAction:
    """What GetExceptionProperty does beside reading."""
    GetAppointment = "Get Appointment"  # Makes the exception's appointment the current one.


class AppointmentKey:
    """Keys of GetAppointmentProperty and SetAppointmentProperty, for the current appointment."""
    AllDayEvent = "AllDayEvent"  # Whether the appointment takes whole days.
    Billing = "Billing"  # Billing information.
    Body = "Body"  # The appointment's text.
    Companies = "Companies"  # The companies that have to do with the appointment.
    CreatedDate = "CreatedDate"  # The day on which the item was made.
    CreatedTime = "CreatedTime"  # The time of day at which the item was made.
    Duration = "Duration"  # How long it takes, in minutes.
    End = "End"  # When it ends.
    EndDate = "EndDate"  # The day on which it ends.
    EndTime = "EndTime"  # The time of day at which it ends.
    EntryID = "EntryID"  # The item's identifier, for GetItem.
    Folder = "Folder"  # The name of the folder that the item is in.
    IsRecurring = "IsRecurring"  # Whether the appointment is a series.
    Importance = "Importance"  # How important it is: low (0), normal (1) or high (2).
    ModifiedDate = "ModifiedDate"  # The day on which the item was last changed.
    ModifiedTime = "ModifiedTime"  # The time of day at which the item was last changed.
    Location = "Location"  # The place.
    MeetingStatus = "MeetingStatus"  # Whether the appointment is a meeting, and in which state: an OlMeetingStatus number.
    MessageClass = "MessageClass"  # The item's message class, as IPM.Appointment.
    Mileage = "Mileage"  # Miles travelled, as a text of the user's own.
    # Whether the item is a single appointment (0), a series (1), an occurrence (2) or an exception (3).
    RecurrenceState = "RecurrenceState"
    ReminderMinutesBeforeStart = "ReminderMinutesBeforeStart"  # How many minutes before the start the reminder comes.
    ReminderSet = "ReminderSet"  # Whether there is a reminder.
    Sensitivity = "Sensitivity"  # Who is to see it: everyone (0), or it is personal (1), private (2) or confidential (3).
    Start = "Start"  # When it begins.
    StartDate = "StartDate"  # The day on which it begins.
    StartTime = "StartTime"  # The time of day at which it begins.
    Subject = "Subject"  # The subject.


class RecurrenceKey:
    """Keys of GetRecurrenceProperty and SetRecurrenceProperty, for the recurrence pattern."""
    Class = "Class"  # The pattern's class: an OlObjectClass number, 28.
    DayOfMonth = "DayOfMonth"  # The day of the month.
    # The days of the week, added up: Sunday 1, Monday 2, Tuesday 4, Wednesday 8, Thursday 16, Friday 32, Saturday 64.
    DayOfWeekMask = "DayOfWeekMask"
    Duration = "Duration"  # How long an occurrence takes, in minutes.
    EndTime = "EndTime"  # The time of day at which an occurrence ends.
    Interval = "Interval"  # Every how many days, weeks, months or years it recurs.
    Instance = "Instance"  # Which such day of the month: first (1) to fourth (4), or last (5).
    MonthOfYear = "MonthOfYear"  # The month, 1 to 12.
    NoEndDate = "NoEndDate"  # Whether the series has no end.
    Occurrences = "Occurrences"  # How many occurrences there are.
    PatternEndDate = "PatternEndDate"  # The day on which the series ends.
    # The day on which the series begins; it cannot be written. Writes the day on which the series ends, as
    # PatternEndDate does: the start stays.
    PatternStartDate = "PatternStartDate"
    # How it recurs: daily (0), weekly (1), monthly (2), monthly by weekday (3), yearly (5) or yearly by weekday (6).
    RecurrenceType = "RecurrenceType"
    StartTime = "StartTime"  # The time of day at which an occurrence begins.
    ExceptionCount = "Exception Count"  # How many exceptions the series has.
    ExceptionList = "Exception List"  # All exceptions in one text.


class ExceptionKey:
    """Keys of GetExceptionProperty, for one exception of the recurrence pattern."""
    OriginalDate = "OriginalDate"  # The day on which the occurrence would have been.
    Deleted = "Deleted"  # Whether the occurrence was deleted; otherwise it was changed.


class ContactKey:
    """Keys of GetContactProperty and SetContactProperty, for the current contact."""
    AssistantTelephoneNumber = "AssistantTelephoneNumber"  # Telephone number of the assistant.
    Body = "Body"  # Notes on the contact.
    Business2TelephoneNumber = "Business2TelephoneNumber"  # Second telephone number at work.
    BusinessAddress = "BusinessAddress"  # Address at work, whole.
    BusinessAddressCity = "BusinessAddressCity"  # City of the address at work.
    BusinessAddressCountry = "BusinessAddressCountry"  # Country of the address at work.
    BusinessAddressPostalCode = "BusinessAddressPostalCode"  # Postal code of the address at work.
    BusinessAddressState = "BusinessAddressState"  # State of the address at work.
    BusinessAddressStreet = "BusinessAddressStreet"  # Street of the address at work.
    BusinessFaxNumber = "BusinessFaxNumber"  # Fax number at work.
    BusinesshomePage = "BusinesshomePage"  # Web page of the business; the key has a small h.
    BusinessTelephoneNumber = "BusinessTelephoneNumber"  # Telephone number at work.
    CarTelephoneNumber = "CarTelephoneNumber"  # Telephone number in the car.
    CompanyMainTelephoneNumber = "CompanyMainTelephoneNumber"  # Main telephone number of the company.
    CompanyName = "CompanyName"  # Name of the company.
    Email1Address = "Email1Address"  # First mail address.
    Email2Address = "Email2Address"  # Second mail address.
    Email3Address = "Email3Address"  # Third mail address.
    FirstName = "FirstName"  # First name.
    FullName = "FullName"  # Whole name.
    GovernmentIDNumber = "GovernmentIDNumber"  # Number of an identity document.
    Home2TelephoneNumber = "Home2TelephoneNumber"  # Second telephone number at home.
    HomeAddress = "HomeAddress"  # Address at home, whole.
    HomeAddressCity = "HomeAddressCity"  # City of the address at home.
    HomeAddressCountry = "HomeAddressCountry"  # Country of the address at home.
    HomeAddressPostalCode = "HomeAddressPostalCode"  # Postal code of the address at home.
    HomeAddressState = "HomeAddressState"  # State of the address at home.
    HomeAddressStreet = "HomeAddressStreet"  # Street of the address at home.
    HomeFaxNumber = "HomeFaxNumber"  # Fax number at home.
    HomeTelephoneNumber = "HomeTelephoneNumber"  # Telephone number at home.
    JobTitle = "JobTitle"  # Job title.
    MailingAddress = "MailingAddress"  # The address that mail goes to, whole.
    MailingAddressCity = "MailingAddressCity"  # City of the address that mail goes to.
    MailingAddressCountry = "MailingAddressCountry"  # Country of the address that mail goes to.
    MailingAddressPostalCode = "MailingAddressPostalCode"  # Postal code of the address that mail goes to.
    MailingAddressState = "MailingAddressState"  # State of the address that mail goes to.
    MailingAddressStreet = "MailingAddressStreet"  # Street of the address that mail goes to.
    MobileTelephoneNumber = "MobileTelephoneNumber"  # Number of the mobile telephone.
    Nickname = "Nickname"  # Nickname.
    OtherAddress = "OtherAddress"  # Another address, whole.
    OtherAddressCity = "OtherAddressCity"  # City of the other address.
    OtherAddressCountry = "OtherAddressCountry"  # Country of the other address.
    OtherAddressPostalCode = "OtherAddressPostalCode"  # Postal code of the other address.
    OtherAddressState = "OtherAddressState"  # State of the other address.
    OtherAddressStreet = "OtherAddressStreet"  # Street of the other address.
    OtherFaxNumber = "OtherFaxNumber"  # Another fax number.
    OtherTelephoneNumber = "OtherTelephoneNumber"  # Another telephone number.
    PrimaryTelephoneNumber = "PrimaryTelephoneNumber"  # The telephone number to try first.
    RadioTelephoneNumber = "RadioTelephoneNumber"  # Number of the radio telephone.
    Title = "Title"  # Title before the name, as Dr.
    WebPage = "WebPage"  # Web page.
    EntryID = "EntryID"  # The item's identifier, for GetItem.
    Folder = "Folder"  # The name of the folder that the item is in.
    ModifiedDate = "ModifiedDate"  # The day on which the item was last changed.
    ModifiedTime = "ModifiedTime"  # The time of day at which the item was last changed.
    # Which address mail goes to: none (0), home (1), work (2) or the other (3).
    SelectedMailingAddress = "SelectedMailingAddress"
    # Nine telephone numbers in one text, without those of mobile and radio telephones.
    AllTelephoneNumbers = "AllTelephoneNumbers"
    AllFaxNumbers = "AllFaxNumbers"  # The three fax numbers in one text.
    AllEmailAddresses = "AllEmailAddresses"  # The three mail addresses in one text.


class TaskKey:
    """Keys of GetTaskProperty and SetTaskProperty, for the current task."""
    Body = "Body"  # The task's text.
    CreationDate = "CreationDate"  # The day on which the item was made.
    CreationTime = "CreationTime"  # The time of day at which the item was made.
    DueDate = "DueDate"  # The day on which the task is due.
    EntryID = "EntryID"  # The item's identifier, for GetItem.
    Folder = "Folder"  # The name of the folder that the item is in.
    ModifiedDate = "ModifiedDate"  # The day on which the item was last changed.
    ModifiedTime = "ModifiedTime"  # The time of day at which the item was last changed.
    PercentComplete = "PercentComplete"  # How much of it is done, 0 to 100.
    Priority = "Priority"  # How important it is: low (0), normal (1) or high (2).
    Reminder = "Reminder"  # Whether there is a reminder.
    ReminderDate = "ReminderDate"  # The day of the reminder; writing sets its time too, but switches no reminder on.
    ReminderTime = "ReminderTime"  # The time of day of the reminder.
    Subject = "Subject"  # The subject.
    StartDate = "StartDate"  # The day on which the task begins.
    Status = "Status"  # How far the task is, in English words.


class EmailKey:
    """Keys of GetEmailProperty, for the current mail."""
    AttachmentCount = "Attachment Count"  # How many attachments there are.
    Attachments = "Attachments"  # The names of the attachments.
    BCC = "BCC"  # Who gets a copy unseen by the others.
    Body = "Body"  # The mail's text without formatting.
    CC = "CC"  # Who gets a copy.
    Class = "Class"  # The item's class: an OlObjectClass number, 43 for a mail.
    EntryID = "EntryID"  # The item's identifier, for GetItem.
    HTMLBody = "HTMLBody"  # The mail's text as HTML.
    Importance = "Importance"  # How important it is: low (0), normal (1) or high (2).
    Parent = "Parent"  # The name of the folder that the item is in.
    ReceivedDate = "ReceivedDate"  # The day on which the mail came.
    ReceivedTime = "ReceivedTime"  # The time of day at which the mail came.
    Recipients = "Recipients"  # The names of all recipients.
    SenderEmailAddress = "SenderEmailAddress"  # The sender's mail address.
    SenderName = "SenderName"  # The sender's name.
    Sensitivity = "Sensitivity"  # Who is to see it: everyone (0), or it is personal (1), private (2) or confidential (3).
    Size = "Size"  # The size in bytes.
    Subject = "Subject"  # The subject.
    To = "To"  # The recipients.


class NoteKey:
    """Keys of GetNoteProperty and SetNoteProperty, for the current note."""
    Body = "Body"  # The note's text, its first line being the subject.
    Categories = "Categories"  # The note's categories, separated as the user's settings have it.
    Class = "Class"  # The item's class: an OlObjectClass number, 44 for a note.
    Color = "Color"  # The colour: blue (0), green (1), pink (2), yellow (3) or white (4).
    CreationTime = "CreationTime"  # The time of day at which the item was made.
    DownloadState = "DownloadState"  # Whether only the header is here (0) or the whole item (1).
    EntryID = "EntryID"  # The item's identifier, for GetItem.
    Folder = "Folder"  # The name of the folder that the item is in.
    Height = "Height"  # Height of the note's window, in pixels.
    IsConflict = "IsConflict"  # Whether the item is in conflict with another copy.
    ModifiedDate = "ModifiedDate"  # The day on which the item was last changed.
    ModifiedTime = "ModifiedTime"  # The time of day at which the item was last changed.
    Left = "Left"  # Distance of the note's window from the left of the screen, in pixels.
    MarkForDownload = "MarkForDownload"  # Whether the item is to be fetched: an OlRemoteStatus number.
    MessageClass = "MessageClass"  # The item's message class, IPM.StickyNote.
    Parent = "Parent"  # The name of the folder that the item is in, as Folder.
    Saved = "Saved"  # Whether nothing was changed since the item was saved.
    Size = "Size"  # The size in bytes.
    Subject = "Subject"  # The subject: the text's first line.
    Top = "Top"  # Distance of the note's window from the top of the screen, in pixels.
    Width = "Width"  # Width of the note's window, in pixels.


class _Source(ctypes.Structure):  # ACTCTXW
    _fields_ = [("size", ctypes.c_uint32), ("flags", ctypes.c_uint32), ("path", ctypes.c_wchar_p),
                ("architecture", ctypes.c_uint16), ("language", ctypes.c_uint16), ("assembly_directory", ctypes.c_wchar_p),
                ("resource_name", ctypes.c_void_p), ("application_name", ctypes.c_wchar_p), ("module", ctypes.c_void_p)]


class UnregisteredLibrary:
    """Makes the controls known to this thread without registration, within a with statement; controls that were created stay
    usable. The path names ZORBOffice.manifest or ZORBOffice.ocx, of Python's own bitness."""

    def __init__(self, path: str) -> None:
        self._path = path

    def __enter__(self) -> UnregisteredLibrary:
        self._kernel32 = kernel32 = ctypes.WinDLL("kernel32", use_last_error=True)
        kernel32.CreateActCtxW.restype = ctypes.c_void_p
        kernel32.ActivateActCtx.argtypes = [ctypes.c_void_p, ctypes.POINTER(ctypes.c_size_t)]
        kernel32.DeactivateActCtx.argtypes = [ctypes.c_uint32, ctypes.c_size_t]
        kernel32.ReleaseActCtx.argtypes = [ctypes.c_void_p]
        source = _Source(ctypes.sizeof(_Source), path=self._path)
        if not self._path.lower().endswith(".manifest"):
            source.flags = 8  # ACTCTX_FLAG_RESOURCE_NAME_VALID
            source.resource_name = 1  # where the library holds its manifest
        self._context = kernel32.CreateActCtxW(ctypes.byref(source))
        if self._context == ctypes.c_void_p(-1).value:
            raise ctypes.WinError(ctypes.get_last_error())
        self._cookie = ctypes.c_size_t()
        if not kernel32.ActivateActCtx(self._context, ctypes.byref(self._cookie)):
            failure = ctypes.WinError(ctypes.get_last_error())
            kernel32.ReleaseActCtx(self._context)
            raise failure
        return self

    def __exit__(self, *failure: object) -> None:
        self._kernel32.DeactivateActCtx(0, self._cookie.value)
        self._kernel32.ReleaseActCtx(self._context)


class _Control:
    """Calls a control. The dispatch is one that exists, such as a form's (its PyIDispatch); without one it is created."""

    _class_id = ""

    def __init__(self, dispatch=None) -> None:
        self.dispatch = dispatch or pythoncom.CoCreateInstance(
            self._class_id, None, pythoncom.CLSCTX_INPROC_SERVER, pythoncom.IID_IDispatch)

    def _call(self, member: int, *arguments):
        # Whether a member is a method or a property, the control takes either.
        given = [int(value) if isinstance(value, IntEnum) else value for value in arguments]
        return self.dispatch.Invoke(member, 0, pythoncom.DISPATCH_METHOD | pythoncom.DISPATCH_PROPERTYGET, True, *given)


class ZORBWord(_Control):
    """Drives Microsoft Word: opens and writes documents, searches them, prints and saves them."""

    _class_id = "{495CDEB3-7F1E-4663-9DB2-E33437412CE0}"

    def Start(self, Template: bool = False) -> bool:
        """Starts a new Word and holds it.

        Template: True places Word's window on the screen; False switches automatic numbering off.
        """
        return bool(self._call(0x68030013, Template))

    def SetVisible(self, IsVisible: bool) -> bool:
        """Shows or hides Word, and brings it to the front.

        IsVisible: True shows it, False hides it.
        """
        return bool(self._call(0x68030012, IsVisible))

    def SetActive(self, IsActive: bool) -> bool:
        """Brings Word to the front.

        IsActive: Has no effect.
        """
        return bool(self._call(0x68030011, IsActive))

    def OpenDoc(self, Doc: str) -> bool:
        """Opens a document and makes it the active one.

        Doc: Path of the document.
        """
        return bool(self._call(0x68030010, Doc))

    def CreateDoc(self, Doc: str = "") -> bool:
        """Makes a new document from a template, and makes it the active one.

        Doc: Path of the template; an empty text means the normal one.
        """
        return bool(self._call(0x6803000F, Doc))

    def SendText(self, Text: str) -> bool:
        """Types a text at the selection.

        Text: The text to type.
        """
        return bool(self._call(0x6803000E, Text))

    def ReadText(self, StartPos: int, EndPos: int) -> str:
        """Reads the document's text, or a part of it.

        StartPos: First character, counted from 0; both positions 0 mean the whole text.
        EndPos: Character after the last one; 0 means the end.
        """
        return self._call(0x6803000D, StartPos, EndPos)

    def SetScreenUpdating(self, Update: bool) -> bool:
        """Switches the redrawing of Word's windows on or off.

        Update: True redraws, False does not.
        """
        return bool(self._call(0x6803000C, Update))

    def Search(self, SearchString: str, WrapAction: WdFindWrap = WdFindWrap.wdFindContinue,
            SearchForward: bool = True, BeginAtTop: bool = False, MatchCase: bool = False,
            MatchWholeWord: bool = False, MatchWildcards: bool = False, MatchSoundsLike: bool = False,
            MatchAllWordForms: bool = False) -> bool:
        """Finds a text and selects it.

        SearchString: The text to find.
        WrapAction: What to do at the end of the text: stop (0), go on at its other end (1), or ask (2).
        SearchForward: True searches towards the end, False towards the start.
        BeginAtTop: True moves to the start of the document before it searches.
        MatchCase: True tells capital letters from small ones.
        MatchWholeWord: True finds whole words only.
        MatchWildcards: True reads the text that is searched for as a pattern.
        MatchSoundsLike: True also finds words that sound alike.
        MatchAllWordForms: True also finds the other forms of the words.
        """
        return bool(self._call(0x6803000B, SearchString, WrapAction, SearchForward, BeginAtTop, MatchCase,
            MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms))

    def InTable(self) -> bool:
        """Tells whether the selection is in a table."""
        return bool(self._call(0x6803000A))

    def SelectRow(self) -> None:
        """Selects the table row that the selection is in."""
        self._call(0x60030015)

    def Replace(self, SearchString: str, ReplaceString: str,
            WrapAction: WdFindWrap = WdFindWrap.wdFindContinue, SearchForward: bool = True,
            BeginAtTop: bool = True, MatchCase: bool = False, MatchWholeWord: bool = False,
            MatchWildcards: bool = False, MatchSoundsLike: bool = False, MatchAllWordForms: bool = False,
            ReplaceOption: WdReplace = WdReplace.wdReplaceOne) -> bool:
        """Finds a text from the selection on and replaces it.

        SearchString: The text to find.
        ReplaceString: The text to put in its place.
        WrapAction: What to do at the end of the text: stop (0), go on at its other end (1), or ask (2).
        SearchForward: True searches towards the end, False towards the start.
        BeginAtTop: Has no effect.
        MatchCase: True tells capital letters from small ones.
        MatchWholeWord: True finds whole words only.
        MatchWildcards: True reads the text that is searched for as a pattern.
        MatchSoundsLike: True also finds words that sound alike.
        MatchAllWordForms: True also finds the other forms of the words.
        ReplaceOption: How many to replace: none (0), the first one (1), or all (2).
        """
        return bool(self._call(0x68030009, SearchString, ReplaceString, WrapAction, SearchForward, BeginAtTop,
            MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms, ReplaceOption))

    def NumberOfSections(self) -> int:
        """Counts the sections of the active document."""
        return self._call(0x68030008)

    def ReadHeaderFooterText(self, Section: int, IsHeader: bool, HeaderFooterType: WdHeaderFooterIndex,
            StartPos: int, EndPos: int) -> str:
        """Reads the text of a header or footer, or a part of it.

        Section: The section, counted from 1.
        IsHeader: True means the header, False the footer.
        HeaderFooterType: Of which pages: all others (1), the first (2), or even ones (3).
        StartPos: First character, counted from 0; both positions 0 mean the whole text.
        EndPos: Character after the last one; 0 means the end.
        """
        return self._call(0x68030007, Section, IsHeader, HeaderFooterType, StartPos, EndPos)

    def SetHeaderFooter(self, SourceTemplate: str, DestTemplate: str, ApplyHeader: bool, ApplyFooter: bool,
            ApplyFont: bool) -> bool:
        """Copies headers, footers and the normal font from one document to another, and saves that.

        SourceTemplate: Path of the document to copy from; an empty text means the normal template.
        DestTemplate: Path of the document to change; an empty text means the normal template.
        ApplyHeader: True copies the headers.
        ApplyFooter: True copies the footers.
        ApplyFont: True copies the normal style's font.
        """
        return bool(self._call(0x68030006, SourceTemplate, DestTemplate, ApplyHeader, ApplyFooter, ApplyFont))

    def ReplaceHeaderFooter(self, Section: int, IsHeader: bool, HeaderFooterType: WdHeaderFooterIndex,
            SearchString: str, ReplaceString: str, WrapAction: WdFindWrap = WdFindWrap.wdFindContinue,
            SearchForward: bool = True, BeginAtTop: bool = True, MatchCase: bool = False,
            MatchWholeWord: bool = False, MatchWildcards: bool = False, MatchSoundsLike: bool = False,
            MatchAllWordForms: bool = False, ReplaceOption: WdReplace = WdReplace.wdReplaceOne) -> bool:
        """Finds a text in a header or footer and replaces it.

        Section: The section, counted from 1.
        IsHeader: True means the header, False the footer.
        HeaderFooterType: Of which pages: all others (1), the first (2), or even ones (3).
        SearchString: The text to find.
        ReplaceString: The text to put in its place.
        WrapAction: What to do at the end of the text: stop (0), go on at its other end (1), or ask (2).
        SearchForward: True searches towards the end, False towards the start.
        BeginAtTop: Has no effect.
        MatchCase: True tells capital letters from small ones.
        MatchWholeWord: True finds whole words only.
        MatchWildcards: True reads the text that is searched for as a pattern.
        MatchSoundsLike: True also finds words that sound alike.
        MatchAllWordForms: True also finds the other forms of the words.
        ReplaceOption: How many to replace: none (0), the first one (1), or all (2).
        """
        return bool(self._call(0x68030005, Section, IsHeader, HeaderFooterType, SearchString, ReplaceString,
            WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike,
            MatchAllWordForms, ReplaceOption))

    def CellCount(self) -> int:
        """Counts the cells of the selection's first table row."""
        return self._call(0x68030004)

    def CellText(self, CellId: int) -> str:
        """Reads a cell of the selection's first table row.

        CellId: The cell, counted from 1.
        """
        return self._call(0x68030003, CellId)

    def Cut(self) -> None:
        """Cuts the selection to the clipboard."""
        self._call(0x60030016)

    def SelectParagraph(self) -> None:
        """Selects the paragraph in which the selection starts."""
        self._call(0x60030017)

    def SelectionText(self) -> str:
        """Reads the selected text."""
        return self._call(0x68030002)

    def Paste(self) -> None:
        """Pastes the clipboard at the selection."""
        self._call(0x60030018)

    def CursorLeft(self, Units: int, Unit: WdUnits = WdUnits.wdCharacter,
            Selecting: WdMovementType = WdMovementType.wdMove) -> None:
        """Moves the insertion point to the left.

        Units: How many units to move.
        Unit: By what to move: a WdUnits number.
        Selecting: Whether to extend the selection (1) or only to move (0).
        """
        self._call(0x60030019, Units, Unit, Selecting)

    def CursorRight(self, Units: int, Unit: WdUnits = WdUnits.wdCharacter,
            Selecting: WdMovementType = WdMovementType.wdMove) -> None:
        """Moves the insertion point to the right.

        Units: How many units to move.
        Unit: By what to move: a WdUnits number.
        Selecting: Whether to extend the selection (1) or only to move (0).
        """
        self._call(0x6003001A, Units, Unit, Selecting)

    def CursorStartOfParagraph(self) -> None:
        """Moves the insertion point to the start of its paragraph."""
        self._call(0x6003001B)

    def CursorStartOfCell(self) -> None:
        """Moves the insertion point to the start of its table cell."""
        self._call(0x6003001C)

    def CursorEndOfCell(self) -> None:
        """Moves the insertion point to the end of its table cell."""
        self._call(0x6003001D)

    def CursorEndOfParagraph(self) -> None:
        """Moves the insertion point to the end of its paragraph."""
        self._call(0x6003001E)

    def Move(self, Unit: WdUnits, Units: int) -> None:
        """Collapses the selection and moves it.

        Unit: By what to move: a WdUnits number.
        Units: How many units to move; a negative number moves back.
        """
        self._call(0x6003001F, Unit, Units)

    def FinaliseDoc(self) -> None:
        """Updates the document's styles and parts it from its template."""
        self._call(0x60030020)

    def SaveDoc(self, Docname: str = "") -> None:
        """Saves the document, under a new name where one is given.

        Docname: Path to save as; an empty text keeps the name.
        """
        self._call(0x60030021, Docname)

    def SaveDocAsPDF(self) -> bool:
        """Prints the document to the first printer whose name has PDF in it."""
        return bool(self._call(0x60030022))

    def CloseDoc(self, SaveOption: WdSaveOptions = WdSaveOptions.wdDoNotSaveChanges) -> None:
        """Closes the document.

        SaveOption: What to do with changes: drop them (0), save them (-1), or ask (-2).
        """
        self._call(0x60030023, SaveOption)

    def StopWord(self, Force: bool = False) -> None:
        """Quits the application.

        Force: True quits also while documents are open.
        """
        self._call(0x60030024, Force)

    def PrintDoc(self, Copies: int, Background: bool = False) -> None:
        """Prints the document.

        Copies: How many copies.
        Background: Has no effect.
        """
        self._call(0x60030025, Copies, Background)

    def IsPrinting(self) -> int:
        """Counts the documents that are being printed or saved in the background."""
        return self._call(0x60030026)

    def GetDefaultPaths(self, PathId: WdDefaultFilePath) -> str:
        """Reads one of the default folders.

        PathId: Which folder: a WdDefaultFilePath number.
        """
        return self._call(0x60030027, PathId)

    def GotoLine(self, LineNo: int) -> bool:
        """Moves the insertion point to a line.

        LineNo: The line, counted from 1.
        """
        return bool(self._call(0x60030028, LineNo))

    def GetLastErrorNumber(self) -> int:
        """Reads the number of the last recorded failure: always 0."""
        return self._call(0x68030001)

    def GetLastErrorDescription(self) -> str:
        """Reads the text of the last recorded failure: always empty."""
        return self._call(0x68030000)


class ZORBOutlook(_Control):
    """Drives Microsoft Outlook: walks, reads and writes its items, and makes mails."""

    _class_id = "{A04BAF5A-D329-4C3A-A012-CFFA919D559F}"

    def StartOutlook(self) -> bool:
        """Starts a session with Outlook."""
        return bool(self._call(0x60030001))

    def StopOutlook(self, Force: bool = False) -> bool:
        """Ends the work, and quits Outlook where that is asked for.

        Force: True quits Outlook, the user's own too.
        """
        return bool(self._call(0x60030002, Force))

    def NewEmail(self, Template: str, ToAddress: str, CCAddress: str, BCCAddress: str, Subject: str,
            Content: str, UseHTML: bool, AutoSend: bool, Attachment: str) -> bool:
        """Makes one mail from its parts, and sends it or shows it; always answers False.

        Template: Has no effect.
        ToAddress: Addresses of the recipients, separated by semicolons.
        CCAddress: Addresses of those who get a copy.
        BCCAddress: Addresses of those who get a copy unseen by the others.
        Subject: The subject.
        Content: The mail's text.
        UseHTML: True takes the text for HTML.
        AutoSend: True sends the mail and quits Outlook; False shows it.
        Attachment: Paths of files, separated by semicolons; the variable is used up, so hand over a copy.
        """
        return bool(self._call(0x60030003, Template, ToAddress, CCAddress, BCCAddress, Subject, Content,
            UseHTML, AutoSend, Attachment))

    def OpenItem(self, EntryType: str) -> bool:
        """Shows the current item in Outlook's own window.

        EntryType: The kind of item: Appointment, Contact, Note, Task or Email.
        """
        return bool(self._call(0x60030004, EntryType))

    def InitItems(self, EntryType: str, Condition: str) -> bool:
        """Takes the items of the entry type's default folder, those that a condition names, for a walk.

        EntryType: The kind of item, or Sent Items, or Deleted and a kind.
        Condition: A condition in Outlook's own form, as [Complete] = False; an empty text takes all.
        """
        return bool(self._call(0x60030005, EntryType, Condition))

    def CreateItem(self, EntryType: str) -> bool:
        """Makes a new item, unsaved, the current one.

        EntryType: The kind of item: Appointment, Contact, Note, Task or Email.
        """
        return bool(self._call(0x60030006, EntryType))

    def DeleteItem(self, EntryType: str) -> bool:
        """Deletes the current item.

        EntryType: The kind of item: Appointment, Contact, Note, Task or Email.
        """
        return bool(self._call(0x60030007, EntryType))

    def GetItem(self, EntryType: str, EntryId: str) -> bool:
        """Makes the item with a certain identifier the current one.

        EntryType: The kind of item: Appointment, Contact, Note, Task or Email.
        EntryId: The identifier: what the key EntryID reads.
        """
        return bool(self._call(0x60030008, EntryType, EntryId))

    def GetAppointmentInstance(self, EntryDate: str) -> bool:
        """Makes one day's occurrence of the current appointment the current one.

        EntryDate: The day of the occurrence, with the time at which it begins, in the user's own order or as
        year-month-day.
        """
        return bool(self._call(0x60030009, EntryDate))

    def SaveItem(self, EntryType: str) -> bool:
        """Saves the current item.

        EntryType: The kind of item: Appointment, Contact, Note, Task or Email.
        """
        return bool(self._call(0x6003000A, EntryType))

    def SaveItemToFile(self, EntryType: str, FileName: str) -> bool:
        """Writes the current item to a file, in Outlook's own format.

        EntryType: The kind of item: Appointment, Contact, Note, Task or Email.
        FileName: Path of the file to write.
        """
        return bool(self._call(0x6003000B, EntryType, FileName))

    def SaveEmailAttachment(self, AttachmentNo: int, FileName: str) -> bool:
        """Writes an attachment of the current mail to a file.

        AttachmentNo: The attachment, counted from 1 among those that the text does not name.
        FileName: Path of the file to write.
        """
        return bool(self._call(0x6003000C, AttachmentNo, FileName))

    def GetItemCount(self, EntryType: str) -> int:
        """Counts the items that InitItems took.

        EntryType: The kind of item: Appointment, Contact, Note, Task or Email.
        """
        return self._call(0x6003000D, EntryType)

    def GetFirstItem(self, EntryType: str) -> bool:
        """Makes the first of the items that InitItems took the current one.

        EntryType: The kind of item: Appointment, Contact, Note, Task or Email.
        """
        return bool(self._call(0x6003000E, EntryType))

    def GetNextItem(self, EntryType: str) -> bool:
        """Makes the next of the items that InitItems took the current one.

        EntryType: The kind of item: Appointment, Contact, Note, Task or Email.
        """
        return bool(self._call(0x6003000F, EntryType))

    def GetAppointmentProperty(self, AppProp: str) -> str:
        """Reads a property of the current appointment, as text.

        AppProp: The key of a property of the appointment.
        """
        return self._call(0x60030010, AppProp)

    def SetAppointmentProperty(self, AppProp: str, PropertyValue: str) -> bool:
        """Writes a property of the current appointment, from text.

        AppProp: The key of a property of the appointment.
        PropertyValue: The value as text.
        """
        return bool(self._call(0x60030011, AppProp, PropertyValue))

    def GetRecurrencePattern(self) -> bool:
        """Takes the current appointment's recurrence pattern, for the members that read and write it."""
        return bool(self._call(0x60030012))

    def ClearRecurrencePattern(self) -> bool:
        """Makes the current appointment a single one."""
        return bool(self._call(0x60030013))

    def GetRecurrenceProperty(self, RecurProp: str) -> str:
        """Reads a property of the recurrence pattern, as text.

        RecurProp: The key of a property of the recurrence pattern.
        """
        return self._call(0x60030014, RecurProp)

    def SetRecurrenceProperty(self, RecurProp: str, PropertyValue: str) -> str:
        """Writes a property of the recurrence pattern, from text; always answers an empty text.

        RecurProp: The key of a property of the recurrence pattern.
        PropertyValue: The value as text.
        """
        return self._call(0x60030015, RecurProp, PropertyValue)

    def GetExceptionProperty(self, Instance: int, ExceptProp: str) -> str:
        """Reads a property of one exception of the recurrence pattern, as text.

        Instance: The exception, counted from 1.
        ExceptProp: The key of a property of the exception.
        """
        return self._call(0x60030016, Instance, ExceptProp)

    def GetContactProperty(self, ContactProp: str) -> str:
        """Reads a property of the current contact, as text.

        ContactProp: The key of a property of the contact.
        """
        return self._call(0x60030017, ContactProp)

    def SetContactProperty(self, ContactProp: str, PropertyValue: str) -> bool:
        """Writes a property of the current contact, from text.

        ContactProp: The key of a property of the contact.
        PropertyValue: The value as text.
        """
        return bool(self._call(0x60030018, ContactProp, PropertyValue))

    def GetTaskProperty(self, TaskProp: str) -> str:
        """Reads a property of the current task, as text.

        TaskProp: The key of a property of the task.
        """
        return self._call(0x60030019, TaskProp)

    def SetTaskProperty(self, TaskProperty: str, PropertyValue: str) -> bool:
        """Writes a property of the current task, from text.

        TaskProperty: The key of a property of the task.
        PropertyValue: The value as text.
        """
        return bool(self._call(0x6003001A, TaskProperty, PropertyValue))

    def GetEmailProperty(self, EmailProp: str) -> str:
        """Reads a property of the current mail, as text.

        EmailProp: The key of a property of the mail.
        """
        return self._call(0x6003001B, EmailProp)

    def GetNoteProperty(self, NoteProperty: str) -> str:
        """Reads a property of the current note, as text.

        NoteProperty: The key of a property of the note.
        """
        return self._call(0x6003001C, NoteProperty)

    def SetNoteProperty(self, NoteProperty: str, PropertyValue: str) -> bool:
        """Writes a property of the current note, from text.

        NoteProperty: The key of a property of the note.
        PropertyValue: The value as text.
        """
        return bool(self._call(0x6003001D, NoteProperty, PropertyValue))

    def GetLastErrorNumber(self) -> int:
        """Reads the number of the last recorded failure, 0 before any."""
        return self._call(0x6003001E)

    def GetLastErrorDescription(self) -> str:
        """Reads the text of the last recorded failure, empty before any."""
        return self._call(0x6003001F)


class OpenWriter(_Control):
    """Drives an office suite with the members of ZORBWord: opens, reads and searches documents."""

    _class_id = "{B0584FF2-C51E-4844-94E6-AAC137F18002}"

    def Start(self, Template: bool = False) -> bool:
        """Starts the office suite and holds its service manager and its desktop.

        Template: True also asks for a window in a certain place, which fails; False does nothing more.
        """
        return bool(self._call(0x68030013, Template))

    def SetVisible(self, IsVisible: bool) -> bool:
        """Does nothing: the suite decides itself what it shows.

        IsVisible: Has no effect.
        """
        return bool(self._call(0x68030012, IsVisible))

    def SetActive(self, IsActive: bool) -> bool:
        """Does nothing: the suite decides itself what is in front.

        IsActive: Has no effect.
        """
        return bool(self._call(0x68030011, IsActive))

    def OpenDoc(self, Doc: str) -> bool:
        """Loads a document into the suite and makes it the active one.

        Doc: Path of the document.
        """
        return bool(self._call(0x68030010, Doc))

    def CreateDoc(self, Doc: str = "") -> bool:
        """Loads a new document from a template into the suite, and makes it the active one.

        Doc: Path of the template; an empty text means the normal one.
        """
        return bool(self._call(0x6803000F, Doc))

    def SendText(self, Text: str) -> bool:
        """Types a text at the selection.

        Text: The text to type.
        """
        return bool(self._call(0x6803000E, Text))

    def ReadText(self, StartPos: int, EndPos: int) -> str:
        """Reads the document's whole text.

        StartPos: Has no effect.
        EndPos: Has no effect.
        """
        return self._call(0x6803000D, StartPos, EndPos)

    def SetScreenUpdating(self, Update: bool) -> bool:
        """Does nothing: the suite redraws as it likes.

        Update: Has no effect.
        """
        return bool(self._call(0x6803000C, Update))

    def Search(self, SearchString: str, WrapAction: WdFindWrap = WdFindWrap.wdFindContinue,
            SearchForward: bool = True, BeginAtTop: bool = False, MatchCase: bool = False,
            MatchWholeWord: bool = False, MatchWildcards: bool = False, MatchSoundsLike: bool = False,
            MatchAllWordForms: bool = False) -> bool:
        """Shows the text to find in a box, and tells whether the document holds it.

        SearchString: The text to find.
        WrapAction: Has no effect.
        SearchForward: Has no effect.
        BeginAtTop: Has no effect.
        MatchCase: Has no effect.
        MatchWholeWord: Has no effect.
        MatchWildcards: True reads the text that is searched for as a regular expression.
        MatchSoundsLike: Has no effect.
        MatchAllWordForms: Has no effect.
        """
        return bool(self._call(0x6803000B, SearchString, WrapAction, SearchForward, BeginAtTop, MatchCase,
            MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms))

    def InTable(self) -> bool:
        """Tells whether the selection is in a table."""
        return bool(self._call(0x6803000A))

    def SelectRow(self) -> None:
        """Selects the table row that the selection is in."""
        self._call(0x60030015)

    def Replace(self, SearchString: str, ReplaceString: str,
            WrapAction: WdFindWrap = WdFindWrap.wdFindContinue, SearchForward: bool = True,
            BeginAtTop: bool = True, MatchCase: bool = False, MatchWholeWord: bool = False,
            MatchWildcards: bool = False, MatchSoundsLike: bool = False, MatchAllWordForms: bool = False,
            ReplaceOption: WdReplace = WdReplace.wdReplaceOne) -> bool:
        """Finds a text from the selection on and replaces it.

        SearchString: The text to find.
        ReplaceString: The text to put in its place.
        WrapAction: What to do at the end of the text: stop (0), go on at its other end (1), or ask (2).
        SearchForward: True searches towards the end, False towards the start.
        BeginAtTop: Has no effect.
        MatchCase: True tells capital letters from small ones.
        MatchWholeWord: True finds whole words only.
        MatchWildcards: True reads the text that is searched for as a pattern.
        MatchSoundsLike: True also finds words that sound alike.
        MatchAllWordForms: True also finds the other forms of the words.
        ReplaceOption: How many to replace: none (0), the first one (1), or all (2).
        """
        return bool(self._call(0x68030009, SearchString, ReplaceString, WrapAction, SearchForward, BeginAtTop,
            MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms, ReplaceOption))

    def NumberOfSections(self) -> int:
        """Counts the sections of the active document."""
        return self._call(0x68030008)

    def ReadHeaderFooterText(self, Section: int, IsHeader: bool, HeaderFooterType: WdHeaderFooterIndex,
            StartPos: int, EndPos: int) -> str:
        """Reads the text of a header or footer, or a part of it.

        Section: The section, counted from 1.
        IsHeader: True means the header, False the footer.
        HeaderFooterType: Of which pages: all others (1), the first (2), or even ones (3).
        StartPos: First character, counted from 0; both positions 0 mean the whole text.
        EndPos: Character after the last one; 0 means the end.
        """
        return self._call(0x68030007, Section, IsHeader, HeaderFooterType, StartPos, EndPos)

    def SetHeaderFooter(self, SourceTemplate: str, DestTemplate: str, ApplyHeader: int, ApplyFooter: int,
            ApplyFont: int) -> bool:
        """Copies headers, footers and the normal font from one document to another, and saves that.

        SourceTemplate: Path of the document to copy from; an empty text means the normal template.
        DestTemplate: Path of the document to change; an empty text means the normal template.
        ApplyHeader: True copies the headers.
        ApplyFooter: True copies the footers.
        ApplyFont: True copies the normal style's font.
        """
        return bool(self._call(0x68030006, SourceTemplate, DestTemplate, ApplyHeader, ApplyFooter, ApplyFont))

    def ReplaceHeaderFooter(self, Section: int, IsHeader: bool, HeaderFooterType: WdHeaderFooterIndex,
            SearchString: str, ReplaceString: str, WrapAction: WdFindWrap = WdFindWrap.wdFindContinue,
            SearchForward: bool = True, BeginAtTop: bool = True, MatchCase: bool = False,
            MatchWholeWord: bool = False, MatchWildcards: bool = False, MatchSoundsLike: bool = False,
            MatchAllWordForms: bool = False, ReplaceOption: WdReplace = WdReplace.wdReplaceOne) -> bool:
        """Finds a text in a header or footer and replaces it.

        Section: The section, counted from 1.
        IsHeader: True means the header, False the footer.
        HeaderFooterType: Of which pages: all others (1), the first (2), or even ones (3).
        SearchString: The text to find.
        ReplaceString: The text to put in its place.
        WrapAction: What to do at the end of the text: stop (0), go on at its other end (1), or ask (2).
        SearchForward: True searches towards the end, False towards the start.
        BeginAtTop: Has no effect.
        MatchCase: True tells capital letters from small ones.
        MatchWholeWord: True finds whole words only.
        MatchWildcards: True reads the text that is searched for as a pattern.
        MatchSoundsLike: True also finds words that sound alike.
        MatchAllWordForms: True also finds the other forms of the words.
        ReplaceOption: How many to replace: none (0), the first one (1), or all (2).
        """
        return bool(self._call(0x68030005, Section, IsHeader, HeaderFooterType, SearchString, ReplaceString,
            WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike,
            MatchAllWordForms, ReplaceOption))

    def CellCount(self) -> int:
        """Counts the cells of the selection's first table row."""
        return self._call(0x68030004)

    def CellText(self, CellId: int) -> str:
        """Reads a cell of the selection's first table row.

        CellId: The cell, counted from 1.
        """
        return self._call(0x68030003, CellId)

    def Cut(self) -> None:
        """Cuts the selection to the clipboard."""
        self._call(0x60030016)

    def SelectParagraph(self) -> None:
        """Selects the paragraph in which the selection starts."""
        self._call(0x60030017)

    def SelectionText(self) -> str:
        """Reads the selected text."""
        return self._call(0x68030002)

    def Paste(self) -> None:
        """Pastes the clipboard at the selection."""
        self._call(0x60030018)

    def CursorLeft(self, Units: int, Unit: WdUnits = WdUnits.wdCharacter,
            Selecting: WdMovementType = WdMovementType.wdMove) -> None:
        """Moves the insertion point to the left.

        Units: How many units to move.
        Unit: By what to move: a WdUnits number.
        Selecting: Whether to extend the selection (1) or only to move (0).
        """
        self._call(0x60030019, Units, Unit, Selecting)

    def CursorRight(self, Units: int, Unit: WdUnits = WdUnits.wdCharacter,
            Selecting: WdMovementType = WdMovementType.wdMove) -> None:
        """Moves the insertion point to the right.

        Units: How many units to move.
        Unit: By what to move: a WdUnits number.
        Selecting: Whether to extend the selection (1) or only to move (0).
        """
        self._call(0x6003001A, Units, Unit, Selecting)

    def CursorStartOfParagraph(self) -> None:
        """Moves the insertion point to the start of its paragraph."""
        self._call(0x6003001B)

    def CursorStartOfCell(self) -> None:
        """Moves the insertion point to the start of its table cell."""
        self._call(0x6003001C)

    def CursorEndOfCell(self) -> None:
        """Moves the insertion point to the end of its table cell."""
        self._call(0x6003001D)

    def CursorEndOfParagraph(self) -> None:
        """Moves the insertion point to the end of its paragraph."""
        self._call(0x6003001E)

    def Move(self, Unit: WdUnits, Units: int) -> None:
        """Collapses the selection and moves it.

        Unit: By what to move: a WdUnits number.
        Units: How many units to move; a negative number moves back.
        """
        self._call(0x6003001F, Unit, Units)

    def FinaliseDoc(self) -> None:
        """Updates the document's styles and parts it from its template."""
        self._call(0x60030020)

    def SaveDoc(self, Docname: str = "") -> None:
        """Saves the document, under a new name where one is given.

        Docname: Path to save as; an empty text keeps the name.
        """
        self._call(0x60030021, Docname)

    def SaveDocAsPDF(self) -> bool:
        """Prints the document to the first printer whose name has PDF in it."""
        return bool(self._call(0x60030022))

    def CloseDoc(self, SaveOption: WdSaveOptions = WdSaveOptions.wdDoNotSaveChanges) -> None:
        """Closes the document.

        SaveOption: What to do with changes: drop them (0), save them (-1), or ask (-2).
        """
        self._call(0x60030023, SaveOption)

    def StopWord(self, Force: bool = False) -> None:
        """Quits the application.

        Force: True quits also while documents are open.
        """
        self._call(0x60030024, Force)

    def PrintDoc(self, Copies: int, Background: bool = False) -> None:
        """Prints the document.

        Copies: How many copies.
        Background: Has no effect.
        """
        self._call(0x60030025, Copies, Background)

    def IsPrinting(self) -> int:
        """Counts the documents that are being printed or saved in the background."""
        return self._call(0x60030026)

    def GetDefaultPaths(self, PathId: WdDefaultFilePath) -> str:
        """Reads one of the default folders.

        PathId: Which folder: a WdDefaultFilePath number.
        """
        return self._call(0x60030027, PathId)

    def GotoLine(self, LineNo: int) -> bool:
        """Moves the insertion point to a line.

        LineNo: The line, counted from 1.
        """
        return bool(self._call(0x60030028, LineNo))

    def GetLastErrorNumber(self) -> int:
        """Reads the number of the last recorded failure: always 0."""
        return self._call(0x68030001)

    def GetLastErrorDescription(self) -> str:
        """Reads the text of the last recorded failure: always empty."""
        return self._call(0x68030000)
