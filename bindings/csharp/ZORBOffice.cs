// ZORBOffice for C#: the controls' interfaces, and a class a control that is called with plain values. For .NET Framework 4 and
// for .NET on Windows; add this file to the project, no interop assembly is needed. Written by the build from the tables of the
// library; not to be edited.
//
//   [STAThread] static void Main() {
//     using (new UnregisteredLibrary(@"C:\Tools\ZORBOffice.manifest"))  // not needed where it is registered
//     using (var word = new ZORBWord()) { if (word.Start() && word.OpenDoc(@"C:\letters\offer.docx")) ... }
//   }
//
// What fails inside a member is told by its result, often after a message box; what reaches the host, and a control that cannot
// be created, is thrown as COMException. A control belongs to the thread that creates it, which should be an [STAThread].
using System;
using System.ComponentModel;
using System.IO;
using System.Runtime.InteropServices;

namespace ZORBOffice {
  /// <summary>What a search does when it reaches the end of the text.</summary>
  public enum WdFindWrap : byte {
    /// <summary>It ends.</summary>
    wdFindStop = 0,
    /// <summary>It goes on from the other end.</summary>
    wdFindContinue = 1,
    /// <summary>It asks the user.</summary>
    wdFindAsk = 2,
  }

  /// <summary>How much is replaced.</summary>
  public enum WdReplace : byte {
    /// <summary>Nothing.</summary>
    wdReplaceNone = 0,
    /// <summary>The first occurrence.</summary>
    wdReplaceOne = 1,
    /// <summary>Every occurrence.</summary>
    wdReplaceAll = 2,
  }

  /// <summary>Which of a section's headers or footers is meant.</summary>
  public enum WdHeaderFooterIndex : byte {
    /// <summary>The one of all pages that have none of their own.</summary>
    wdHeaderFooterPrimary = 1,
    /// <summary>The first page's.</summary>
    wdHeaderFooterFirstPage = 2,
    /// <summary>The even pages'.</summary>
    wdHeaderFooterEvenPages = 3,
  }

  /// <summary>By what the insertion point moves.</summary>
  public enum WdUnits : short {
    /// <summary>Characters.</summary>
    wdCharacter = 1,
    /// <summary>Words.</summary>
    wdWord = 2,
    /// <summary>Sentences.</summary>
    wdSentence = 3,
    /// <summary>Paragraphs.</summary>
    wdParagraph = 4,
    /// <summary>Lines.</summary>
    wdLine = 5,
    /// <summary>Stories: the main text, a header and so on.</summary>
    wdStory = 6,
    /// <summary>Screens.</summary>
    wdScreen = 7,
    /// <summary>Sections.</summary>
    wdSection = 8,
    /// <summary>Columns.</summary>
    wdColumn = 9,
    /// <summary>Rows.</summary>
    wdRow = 10,
    /// <summary>Windows.</summary>
    wdWindow = 11,
    /// <summary>Cells.</summary>
    wdCell = 12,
    /// <summary>Runs of one character formatting.</summary>
    wdCharacterFormatting = 13,
    /// <summary>Runs of one paragraph formatting.</summary>
    wdParagraphFormatting = 14,
    /// <summary>Tables.</summary>
    wdTable = 15,
    /// <summary>The selected item.</summary>
    wdItem = 16,
  }

  /// <summary>Whether a movement selects.</summary>
  public enum WdMovementType : int {
    /// <summary>The selection becomes an insertion point and moves.</summary>
    wdMove = 0,
    /// <summary>The selection is extended.</summary>
    wdExtend = 1,
  }

  /// <summary>What becomes of changes when a document is closed.</summary>
  public enum WdSaveOptions : short {
    /// <summary>They are lost.</summary>
    wdDoNotSaveChanges = 0,
    /// <summary>They are saved.</summary>
    wdSaveChanges = -1,
    /// <summary>The user is asked.</summary>
    wdPromptToSaveChanges = -2,
  }

  /// <summary>One of the word processor's default folders.</summary>
  public enum WdDefaultFilePath : short {
    /// <summary>Documents.</summary>
    wdDocumentsPath = 0,
    /// <summary>Pictures.</summary>
    wdPicturesPath = 1,
    /// <summary>The user's templates.</summary>
    wdUserTemplatesPath = 2,
    /// <summary>The workgroup's templates.</summary>
    wdWorkgroupTemplatesPath = 3,
    /// <summary>The user's options.</summary>
    wdUserOptionsPath = 4,
    /// <summary>Files for recovery.</summary>
    wdAutoRecoverPath = 5,
    /// <summary>Tools.</summary>
    wdToolsPath = 6,
    /// <summary>The tutorial.</summary>
    wdTutorialPath = 7,
    /// <summary>What is loaded at the start.</summary>
    wdStartupPath = 8,
    /// <summary>The program.</summary>
    wdProgramPath = 9,
    /// <summary>Filters for pictures.</summary>
    wdGraphicsFiltersPath = 10,
    /// <summary>Converters of text.</summary>
    wdTextConvertersPath = 11,
    /// <summary>Proofing tools.</summary>
    wdProofingToolsPath = 12,
    /// <summary>Temporary files.</summary>
    wdTempFilePath = 13,
    /// <summary>The current folder.</summary>
    wdCurrentFolderPath = 14,
    /// <summary>The style gallery.</summary>
    wdStyleGalleryPath = 15,
    /// <summary>Art for borders.</summary>
    wdBorderArtPath = 19,
  }

  /// <summary>Values of `Importance`, and of a task's `Priority`.</summary>
  public enum OlImportance : int {
    /// <summary>Low.</summary>
    olImportanceLow = 0,
    /// <summary>Normal.</summary>
    olImportanceNormal = 1,
    /// <summary>High.</summary>
    olImportanceHigh = 2,
  }

  /// <summary>Values of `Sensitivity`. Only olPrivate can be written; any other becomes olNormal.</summary>
  public enum OlSensitivity : int {
    /// <summary>Normal.</summary>
    olNormal = 0,
    /// <summary>Personal.</summary>
    olPersonal = 1,
    /// <summary>Private.</summary>
    olPrivate = 2,
    /// <summary>Confidential.</summary>
    olConfidential = 3,
  }

  /// <summary>Values of `RecurrenceType`.</summary>
  public enum OlRecurrenceType : int {
    /// <summary>Every so many days.</summary>
    olRecursDaily = 0,
    /// <summary>On days of the week.</summary>
    olRecursWeekly = 1,
    /// <summary>On a day of the month.</summary>
    olRecursMonthly = 2,
    /// <summary>On, say, the second Tuesday of the month: see `Instance`.</summary>
    olRecursMonthNth = 3,
    /// <summary>On a day of the year.</summary>
    olRecursYearly = 5,
    /// <summary>On, say, the second Tuesday of May: see `Instance`.</summary>
    olRecursYearNth = 6,
  }

  /// <summary>Values of `DayOfWeekMask`: one of them, or the sum of several.</summary>
  public enum OlDaysOfWeek : int {
    /// <summary>Sunday.</summary>
    olSunday = 1,
    /// <summary>Monday.</summary>
    olMonday = 2,
    /// <summary>Tuesday.</summary>
    olTuesday = 4,
    /// <summary>Wednesday.</summary>
    olWednesday = 8,
    /// <summary>Thursday.</summary>
    olThursday = 16,
    /// <summary>Friday.</summary>
    olFriday = 32,
    /// <summary>Saturday.</summary>
    olSaturday = 64,
  }

  /// <summary>Values of `MeetingStatus`.</summary>
  public enum OlMeetingStatus : int {
    /// <summary>An appointment without attendees.</summary>
    olNonMeeting = 0,
    /// <summary>A meeting.</summary>
    olMeeting = 1,
    /// <summary>A meeting to which one was invited.</summary>
    olMeetingReceived = 3,
    /// <summary>A cancelled meeting.</summary>
    olMeetingCanceled = 5,
    /// <summary>A cancelled meeting that is still in the calendar.</summary>
    olMeetingReceivedAndCanceled = 7,
  }

  /// <summary>Values of `RecurrenceState`.</summary>
  public enum OlRecurrenceState : int {
    /// <summary>A single appointment.</summary>
    olApptNotRecurring = 0,
    /// <summary>A series.</summary>
    olApptMaster = 1,
    /// <summary>One occurrence of a series.</summary>
    olApptOccurrence = 2,
    /// <summary>A changed occurrence of a series.</summary>
    olApptException = 3,
  }

  /// <summary>Values of `SelectedMailingAddress`.</summary>
  public enum OlMailingAddress : int {
    /// <summary>None.</summary>
    olNone = 0,
    /// <summary>The home address.</summary>
    olHome = 1,
    /// <summary>The business address.</summary>
    olBusiness = 2,
    /// <summary>The other address.</summary>
    olOther = 3,
  }

  /// <summary>Values of `DownloadState`.</summary>
  public enum OlDownloadState : int {
    /// <summary>Only the header is there.</summary>
    olHeaderOnly = 0,
    /// <summary>All of the item is there.</summary>
    olFullItem = 1,
  }

  /// <summary>Values of `MarkForDownload`.</summary>
  public enum OlRemoteStatus : int {
    /// <summary>None was set.</summary>
    olRemoteStatusNone = 0,
    /// <summary>Not marked.</summary>
    olUnMarked = 1,
    /// <summary>Marked to be downloaded.</summary>
    olMarkedForDownload = 2,
    /// <summary>Marked to be copied.</summary>
    olMarkedForCopy = 3,
    /// <summary>Marked to be deleted.</summary>
    olMarkedForDelete = 4,
  }

  /// <summary>Kinds of items. InitItems knows six more words: `Sent Items`, and `Deleted ` in front of a kind.</summary>
  public static class EntryType {
    /// <summary>The calendar's.</summary>
    public const string Appointment = "Appointment";
    /// <summary>The contacts'.</summary>
    public const string Contact = "Contact";
    /// <summary>The notes'.</summary>
    public const string Note = "Note";
    /// <summary>The tasks'.</summary>
    public const string Task = "Task";
    /// <summary>The inbox's.</summary>
    public const string Email = "Email";
    /// <summary>Sent mails; for InitItems only.</summary>
    public const string SentItems = "Sent Items";
    /// <summary>For InitItems only.</summary>
    public const string DeletedAppointment = "Deleted Appointment";
    /// <summary>For InitItems only.</summary>
    public const string DeletedContact = "Deleted Contact";
    /// <summary>For InitItems only.</summary>
    public const string DeletedNote = "Deleted Note";
    /// <summary>For InitItems only.</summary>
    public const string DeletedTask = "Deleted Task";
    /// <summary>For InitItems only.</summary>
    public const string DeletedEmail = "Deleted Email";
  }

  /// <summary>Values of a task's `Status`.</summary>
  public static class TaskStatus {
    /// <summary>olTaskNotStarted (0).</summary>
    public const string NotStarted = "Not Started";
    /// <summary>olTaskInProgress (1).</summary>
    public const string InProgress = "In Progress";
    /// <summary>olTaskComplete (2).</summary>
    public const string Completed = "Completed";
    /// <summary>olTaskWaiting (3).</summary>
    public const string Waiting = "Waiting on someone else";
    /// <summary>olTaskDeferred (4).</summary>
    public const string Deferred = "Deferred";
  }

  /// <summary>Keys of GetAppointmentProperty and SetAppointmentProperty, for the current appointment.</summary>
  public static class AppointmentKey {
    public const string AllDayEvent = "AllDayEvent";
    public const string Billing = "Billing";
    public const string Body = "Body";
    public const string Companies = "Companies";
    public const string CreatedDate = "CreatedDate";
    public const string CreatedTime = "CreatedTime";
    public const string Duration = "Duration";
    public const string End = "End";
    public const string EndDate = "EndDate";
    public const string EndTime = "EndTime";
    public const string EntryID = "EntryID";
    public const string Folder = "Folder";
    public const string IsRecurring = "IsRecurring";
    public const string Importance = "Importance";
    public const string ModifiedDate = "ModifiedDate";
    public const string ModifiedTime = "ModifiedTime";
    public const string Location = "Location";
    public const string MeetingStatus = "MeetingStatus";
    public const string MessageClass = "MessageClass";
    public const string Mileage = "Mileage";
    public const string RecurrenceState = "RecurrenceState";
    public const string ReminderMinutesBeforeStart = "ReminderMinutesBeforeStart";
    public const string ReminderSet = "ReminderSet";
    public const string Sensitivity = "Sensitivity";
    public const string Start = "Start";
    public const string StartDate = "StartDate";
    public const string StartTime = "StartTime";
    public const string Subject = "Subject";
  }

  /// <summary>Keys of GetRecurrenceProperty and SetRecurrenceProperty, for the recurrence pattern.</summary>
  public static class RecurrenceKey {
    public const string Class = "Class";
    public const string DayOfMonth = "DayOfMonth";
    public const string DayOfWeekMask = "DayOfWeekMask";
    public const string Duration = "Duration";
    public const string EndTime = "EndTime";
    public const string Interval = "Interval";
    public const string Instance = "Instance";
    public const string MonthOfYear = "MonthOfYear";
    public const string NoEndDate = "NoEndDate";
    public const string Occurrences = "Occurrences";
    public const string PatternEndDate = "PatternEndDate";
    public const string PatternStartDate = "PatternStartDate";
    public const string RecurrenceType = "RecurrenceType";
    public const string StartTime = "StartTime";
    public const string ExceptionCount = "Exception Count";
    public const string ExceptionList = "Exception List";
  }

  /// <summary>Keys of GetExceptionProperty, for one exception of the recurrence pattern.</summary>
  public static class ExceptionKey {
    public const string OriginalDate = "OriginalDate";
    public const string Deleted = "Deleted";
  }

  /// <summary>Keys of GetContactProperty and SetContactProperty, for the current contact.</summary>
  public static class ContactKey {
    public const string AssistantTelephoneNumber = "AssistantTelephoneNumber";
    public const string Body = "Body";
    public const string Business2TelephoneNumber = "Business2TelephoneNumber";
    public const string BusinessAddress = "BusinessAddress";
    public const string BusinessAddressCity = "BusinessAddressCity";
    public const string BusinessAddressCountry = "BusinessAddressCountry";
    public const string BusinessAddressPostalCode = "BusinessAddressPostalCode";
    public const string BusinessAddressState = "BusinessAddressState";
    public const string BusinessAddressStreet = "BusinessAddressStreet";
    public const string BusinessFaxNumber = "BusinessFaxNumber";
    public const string BusinesshomePage = "BusinesshomePage";
    public const string BusinessTelephoneNumber = "BusinessTelephoneNumber";
    public const string CarTelephoneNumber = "CarTelephoneNumber";
    public const string CompanyMainTelephoneNumber = "CompanyMainTelephoneNumber";
    public const string CompanyName = "CompanyName";
    public const string Email1Address = "Email1Address";
    public const string Email2Address = "Email2Address";
    public const string Email3Address = "Email3Address";
    public const string FirstName = "FirstName";
    public const string FullName = "FullName";
    public const string GovernmentIDNumber = "GovernmentIDNumber";
    public const string Home2TelephoneNumber = "Home2TelephoneNumber";
    public const string HomeAddress = "HomeAddress";
    public const string HomeAddressCity = "HomeAddressCity";
    public const string HomeAddressCountry = "HomeAddressCountry";
    public const string HomeAddressPostalCode = "HomeAddressPostalCode";
    public const string HomeAddressState = "HomeAddressState";
    public const string HomeAddressStreet = "HomeAddressStreet";
    public const string HomeFaxNumber = "HomeFaxNumber";
    public const string HomeTelephoneNumber = "HomeTelephoneNumber";
    public const string JobTitle = "JobTitle";
    public const string MailingAddress = "MailingAddress";
    public const string MailingAddressCity = "MailingAddressCity";
    public const string MailingAddressCountry = "MailingAddressCountry";
    public const string MailingAddressPostalCode = "MailingAddressPostalCode";
    public const string MailingAddressState = "MailingAddressState";
    public const string MailingAddressStreet = "MailingAddressStreet";
    public const string MobileTelephoneNumber = "MobileTelephoneNumber";
    public const string Nickname = "Nickname";
    public const string OtherAddress = "OtherAddress";
    public const string OtherAddressCity = "OtherAddressCity";
    public const string OtherAddressCountry = "OtherAddressCountry";
    public const string OtherAddressPostalCode = "OtherAddressPostalCode";
    public const string OtherAddressState = "OtherAddressState";
    public const string OtherAddressStreet = "OtherAddressStreet";
    public const string OtherFaxNumber = "OtherFaxNumber";
    public const string OtherTelephoneNumber = "OtherTelephoneNumber";
    public const string PrimaryTelephoneNumber = "PrimaryTelephoneNumber";
    public const string RadioTelephoneNumber = "RadioTelephoneNumber";
    public const string Title = "Title";
    public const string WebPage = "WebPage";
    public const string EntryID = "EntryID";
    public const string Folder = "Folder";
    public const string ModifiedDate = "ModifiedDate";
    public const string ModifiedTime = "ModifiedTime";
    public const string SelectedMailingAddress = "SelectedMailingAddress";
    public const string AllTelephoneNumbers = "AllTelephoneNumbers";
    public const string AllFaxNumbers = "AllFaxNumbers";
    public const string AllEmailAddresses = "AllEmailAddresses";
  }

  /// <summary>Keys of GetTaskProperty and SetTaskProperty, for the current task.</summary>
  public static class TaskKey {
    public const string Body = "Body";
    public const string CreationDate = "CreationDate";
    public const string CreationTime = "CreationTime";
    public const string DueDate = "DueDate";
    public const string EntryID = "EntryID";
    public const string Folder = "Folder";
    public const string ModifiedDate = "ModifiedDate";
    public const string ModifiedTime = "ModifiedTime";
    public const string PercentComplete = "PercentComplete";
    public const string Priority = "Priority";
    public const string Reminder = "Reminder";
    public const string ReminderDate = "ReminderDate";
    public const string ReminderTime = "ReminderTime";
    public const string Subject = "Subject";
    public const string StartDate = "StartDate";
    public const string Status = "Status";
  }

  /// <summary>Keys of GetEmailProperty, for the current e-mail.</summary>
  public static class EmailKey {
    public const string AttachmentCount = "Attachment Count";
    public const string Attachments = "Attachments";
    public const string BCC = "BCC";
    public const string Body = "Body";
    public const string CC = "CC";
    public const string Class = "Class";
    public const string EntryID = "EntryID";
    public const string HTMLBody = "HTMLBody";
    public const string Importance = "Importance";
    public const string Parent = "Parent";
    public const string ReceivedDate = "ReceivedDate";
    public const string ReceivedTime = "ReceivedTime";
    public const string Recipients = "Recipients";
    public const string SenderEmailAddress = "SenderEmailAddress";
    public const string SenderName = "SenderName";
    public const string Sensitivity = "Sensitivity";
    public const string Size = "Size";
    public const string Subject = "Subject";
    public const string To = "To";
  }

  /// <summary>Keys of GetNoteProperty and SetNoteProperty, for the current note.</summary>
  public static class NoteKey {
    public const string Body = "Body";
    public const string Categories = "Categories";
    public const string Class = "Class";
    public const string Color = "Color";
    public const string CreationTime = "CreationTime";
    public const string DownloadState = "DownloadState";
    public const string EntryID = "EntryID";
    public const string Folder = "Folder";
    public const string Height = "Height";
    public const string IsConflict = "IsConflict";
    public const string ModifiedDate = "ModifiedDate";
    public const string ModifiedTime = "ModifiedTime";
    public const string Left = "Left";
    public const string MarkForDownload = "MarkForDownload";
    public const string MessageClass = "MessageClass";
    public const string Parent = "Parent";
    public const string Saved = "Saved";
    public const string Size = "Size";
    public const string Subject = "Subject";
    public const string Top = "Top";
    public const string Width = "Width";
  }

  // The interfaces, in the order of their slots. What the members do stands with the classes below.

  // Published as _ZORBWord.
  [ComImport, Guid("79397B6A-4416-4196-8824-6E599916DC95"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
  public interface IZORBWord {
    [DispId(0x68030013)] byte Start(ref bool Template);
    [DispId(0x68030012)] byte SetVisible(ref bool IsVisible);
    [DispId(0x68030011)] byte SetActive(ref bool IsActive);
    [DispId(0x68030010)] byte OpenDoc(ref string Doc);
    [DispId(0x6803000F)] byte CreateDoc(ref string Doc);
    [DispId(0x6803000E)] byte SendText(ref string Text);
    [DispId(0x6803000D)] string ReadText(ref int StartPos, ref int EndPos);
    [DispId(0x6803000C)] byte SetScreenUpdating(ref bool Update);
    [DispId(0x6803000B)] byte Search(ref string SearchString, ref WdFindWrap WrapAction,
        ref bool SearchForward, ref bool BeginAtTop, ref bool MatchCase, ref bool MatchWholeWord,
        ref bool MatchWildcards, ref bool MatchSoundsLike, ref bool MatchAllWordForms);
    [DispId(0x6803000A)] byte InTable();
    [DispId(0x60030015)] object SelectRow();
    [DispId(0x68030009)] byte Replace(ref string SearchString, ref string ReplaceString,
        ref WdFindWrap WrapAction, ref bool SearchForward, ref bool BeginAtTop, ref bool MatchCase,
        ref bool MatchWholeWord, ref bool MatchWildcards, ref bool MatchSoundsLike,
        ref bool MatchAllWordForms, ref WdReplace ReplaceOption);
    [DispId(0x68030008)] int NumberOfSections();
    [DispId(0x68030007)] string ReadHeaderFooterText(ref int Section, ref bool IsHeader,
        ref WdHeaderFooterIndex HeaderFooterType, ref int StartPos, ref int EndPos);
    [DispId(0x68030006)] byte SetHeaderFooter(ref string SourceTemplate, ref string DestTemplate,
        ref bool ApplyHeader, ref bool ApplyFooter, ref bool ApplyFont);
    [DispId(0x68030005)] byte ReplaceHeaderFooter(ref int Section, ref bool IsHeader,
        ref WdHeaderFooterIndex HeaderFooterType, ref string SearchString, ref string ReplaceString,
        ref WdFindWrap WrapAction, ref bool SearchForward, ref bool BeginAtTop, ref bool MatchCase,
        ref bool MatchWholeWord, ref bool MatchWildcards, ref bool MatchSoundsLike,
        ref bool MatchAllWordForms, ref WdReplace ReplaceOption);
    [DispId(0x68030004)] int CellCount();
    [DispId(0x68030003)] string CellText(ref int CellId);
    [DispId(0x60030016)] object Cut();
    [DispId(0x60030017)] object SelectParagraph();
    [DispId(0x68030002)] string SelectionText();
    [DispId(0x60030018)] object Paste();
    [DispId(0x60030019)] object CursorLeft(ref short Units, ref WdUnits Unit, ref object Selecting);
    [DispId(0x6003001A)] object CursorRight(ref short Units, ref WdUnits Unit, ref object Selecting);
    [DispId(0x6003001B)] object CursorStartOfParagraph();
    [DispId(0x6003001C)] object CursorStartOfCell();
    [DispId(0x6003001D)] object CursorEndOfCell();
    [DispId(0x6003001E)] object CursorEndOfParagraph();
    [DispId(0x6003001F)] object Move(ref WdUnits Unit, ref short Units);
    [DispId(0x60030020)] object FinaliseDoc();
    [DispId(0x60030021)] object SaveDoc(ref string Docname);
    [DispId(0x60030022)] bool SaveDocAsPDF();
    [DispId(0x60030023)] object CloseDoc(ref WdSaveOptions SaveOption);
    [DispId(0x60030024)] object StopWord(ref bool Force);
    [DispId(0x60030025)] object PrintDoc(ref short Copies, ref bool Background);
    [DispId(0x60030026)] short IsPrinting();
    [DispId(0x60030027)] string GetDefaultPaths(ref WdDefaultFilePath PathId);
    [DispId(0x60030028)] bool GotoLine(ref short LineNo);
    [DispId(0x68030001)] int GetLastErrorNumber();
    [DispId(0x68030000)] string GetLastErrorDescription();
  }

  // Published as _ZORBOutlook.
  [ComImport, Guid("A7E31FE0-E2A1-4B1E-B386-22564026551D"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
  public interface IZORBOutlook {
    [DispId(0x60030001)] bool StartOutlook();
    [DispId(0x60030002)] bool StopOutlook(bool Force);
    [DispId(0x60030003)] bool NewEmail(ref string Template, ref string ToAddress, ref string CCAddress,
        ref string BCCAddress, ref string Subject, ref string Content, ref bool UseHTML, ref bool AutoSend,
        ref string Attachment);
    [DispId(0x60030004)] bool OpenItem(string EntryType);
    [DispId(0x60030005)] bool InitItems(string EntryType, string Condition);
    [DispId(0x60030006)] bool CreateItem(string EntryType);
    [DispId(0x60030007)] bool DeleteItem(string EntryType);
    [DispId(0x60030008)] bool GetItem(string EntryType, string EntryId);
    [DispId(0x60030009)] bool GetAppointmentInstance(string EntryDate);
    [DispId(0x6003000A)] bool SaveItem(string EntryType);
    [DispId(0x6003000B)] bool SaveItemToFile(string EntryType, string FileName);
    [DispId(0x6003000C)] bool SaveEmailAttachment(short AttachmentNo, string FileName);
    [DispId(0x6003000D)] short GetItemCount(string EntryType);
    [DispId(0x6003000E)] bool GetFirstItem(string EntryType);
    [DispId(0x6003000F)] bool GetNextItem(string EntryType);
    [DispId(0x60030010)] string GetAppointmentProperty(string AppProp);
    [DispId(0x60030011)] bool SetAppointmentProperty(string AppProp, string PropertyValue);
    [DispId(0x60030012)] bool GetRecurrencePattern();
    [DispId(0x60030013)] bool ClearRecurrencePattern();
    [DispId(0x60030014)] string GetRecurrenceProperty(string RecurProp);
    [DispId(0x60030015)] string SetRecurrenceProperty(string RecurProp, string PropertyValue);
    [DispId(0x60030016)] string GetExceptionProperty(short Instance, string ExceptProp);
    [DispId(0x60030017)] string GetContactProperty(string ContactProp);
    [DispId(0x60030018)] bool SetContactProperty(string ContactProp, string PropertyValue);
    [DispId(0x60030019)] string GetTaskProperty(string TaskProp);
    [DispId(0x6003001A)] bool SetTaskProperty(string TaskProperty, string PropertyValue);
    [DispId(0x6003001B)] string GetEmailProperty(string EmailProp);
    [DispId(0x6003001C)] string GetNoteProperty(string NoteProperty);
    [DispId(0x6003001D)] bool SetNoteProperty(string NoteProperty, string PropertyValue);
    [DispId(0x6003001E)] short GetLastErrorNumber();
    [DispId(0x6003001F)] string GetLastErrorDescription();
  }

  // Published as _OpenWriter.
  [ComImport, Guid("8A83A708-86A0-414A-A588-7DC374938729"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
  public interface IOpenWriter {
    [DispId(0x68030013)] byte Start(ref bool Template);
    [DispId(0x68030012)] byte SetVisible(ref bool IsVisible);
    [DispId(0x68030011)] byte SetActive(ref bool IsActive);
    [DispId(0x68030010)] byte OpenDoc(ref string Doc);
    [DispId(0x6803000F)] byte CreateDoc(ref string Doc);
    [DispId(0x6803000E)] byte SendText(ref string Text);
    [DispId(0x6803000D)] string ReadText(ref int StartPos, ref int EndPos);
    [DispId(0x6803000C)] byte SetScreenUpdating(ref bool Update);
    [DispId(0x6803000B)] byte Search(ref string SearchString, ref WdFindWrap WrapAction,
        ref bool SearchForward, ref bool BeginAtTop, ref bool MatchCase, ref bool MatchWholeWord,
        ref bool MatchWildcards, ref bool MatchSoundsLike, ref bool MatchAllWordForms);
    [DispId(0x6803000A)] byte InTable();
    [DispId(0x60030015)] object SelectRow();
    [DispId(0x68030009)] byte Replace(ref string SearchString, ref string ReplaceString,
        ref WdFindWrap WrapAction, ref bool SearchForward, ref bool BeginAtTop, ref bool MatchCase,
        ref bool MatchWholeWord, ref bool MatchWildcards, ref bool MatchSoundsLike,
        ref bool MatchAllWordForms, ref WdReplace ReplaceOption);
    [DispId(0x68030008)] int NumberOfSections();
    [DispId(0x68030007)] string ReadHeaderFooterText(ref int Section, ref bool IsHeader,
        ref WdHeaderFooterIndex HeaderFooterType, ref int StartPos, ref int EndPos);
    [DispId(0x68030006)] byte SetHeaderFooter(ref string SourceTemplate, ref string DestTemplate,
        ref byte ApplyHeader, ref byte ApplyFooter, ref byte ApplyFont);
    [DispId(0x68030005)] byte ReplaceHeaderFooter(ref int Section, ref bool IsHeader,
        ref WdHeaderFooterIndex HeaderFooterType, ref string SearchString, ref string ReplaceString,
        ref WdFindWrap WrapAction, ref bool SearchForward, ref bool BeginAtTop, ref bool MatchCase,
        ref bool MatchWholeWord, ref bool MatchWildcards, ref bool MatchSoundsLike,
        ref bool MatchAllWordForms, ref WdReplace ReplaceOption);
    [DispId(0x68030004)] int CellCount();
    [DispId(0x68030003)] string CellText(ref int CellId);
    [DispId(0x60030016)] object Cut();
    [DispId(0x60030017)] object SelectParagraph();
    [DispId(0x68030002)] string SelectionText();
    [DispId(0x60030018)] object Paste();
    [DispId(0x60030019)] object CursorLeft(ref short Units, ref WdUnits Unit, ref object Selecting);
    [DispId(0x6003001A)] object CursorRight(ref short Units, ref WdUnits Unit, ref object Selecting);
    [DispId(0x6003001B)] object CursorStartOfParagraph();
    [DispId(0x6003001C)] object CursorStartOfCell();
    [DispId(0x6003001D)] object CursorEndOfCell();
    [DispId(0x6003001E)] object CursorEndOfParagraph();
    [DispId(0x6003001F)] object Move(ref WdUnits Unit, ref short Units);
    [DispId(0x60030020)] object FinaliseDoc();
    [DispId(0x60030021)] object SaveDoc(ref string Docname);
    [DispId(0x60030022)] bool SaveDocAsPDF();
    [DispId(0x60030023)] object CloseDoc(ref WdSaveOptions SaveOption);
    [DispId(0x60030024)] object StopWord(ref bool Force);
    [DispId(0x60030025)] object PrintDoc(ref short Copies, ref bool Background);
    [DispId(0x60030026)] short IsPrinting();
    [DispId(0x60030027)] string GetDefaultPaths(ref WdDefaultFilePath PathId);
    [DispId(0x60030028)] bool GotoLine(ref short LineNo);
    [DispId(0x68030001)] int GetLastErrorNumber();
    [DispId(0x68030000)] string GetLastErrorDescription();
  }

  /// <summary>Makes the controls known to this thread without registration until it is disposed of, by the same thread; controls
  /// that were created stay usable.</summary>
  public sealed class UnregisteredLibrary : IDisposable {
    private IntPtr context, cookie;

    /// <param name="path">ZORBOffice.manifest or ZORBOffice.ocx, of the program's own bitness.</param>
    public UnregisteredLibrary(string path) {
      var source = new Source { Size = Marshal.SizeOf(typeof(Source)), Path = path };
      if (!path.EndsWith(".manifest", StringComparison.OrdinalIgnoreCase)) {
        source.Flags = 8;  // ACTCTX_FLAG_RESOURCE_NAME_VALID
        source.ResourceName = (IntPtr)1;  // where the library holds its manifest
      }
      context = CreateActCtxW(ref source);
      if (context == (IntPtr)(-1)) throw new FileNotFoundException(new Win32Exception().Message, path);
      if (ActivateActCtx(context, out cookie)) return;
      var failure = new Win32Exception();
      ReleaseActCtx(context);
      throw failure;
    }

    public void Dispose() {
      if (context == IntPtr.Zero) return;
      DeactivateActCtx(0, cookie);
      ReleaseActCtx(context);
      context = IntPtr.Zero;
    }

    [StructLayout(LayoutKind.Sequential, CharSet = CharSet.Unicode)]
    private struct Source {  // ACTCTXW
      public int Size, Flags;
      public string Path;
      public short Architecture, Language;
      public string AssemblyDirectory;
      public IntPtr ResourceName;
      public string ApplicationName;
      public IntPtr Module;
    }

    [DllImport("kernel32", SetLastError = true)] private static extern IntPtr CreateActCtxW(ref Source source);
    [DllImport("kernel32", SetLastError = true)] private static extern bool ActivateActCtx(IntPtr context, out IntPtr cookie);
    [DllImport("kernel32")] private static extern bool DeactivateActCtx(int flags, IntPtr cookie);
    [DllImport("kernel32")] private static extern void ReleaseActCtx(IntPtr context);
  }

  /// <summary>Holds a control by its interface, and lets go of it when it is disposed of.</summary>
  public abstract class Control<Interface> : IDisposable where Interface : class {
    /// <summary>The control itself, for calls by interface.</summary>
    public Interface ComObject { get; private set; }

    protected Control(Interface comObject) { ComObject = comObject; }

    protected static Interface Create(string classId) {
      return (Interface)Activator.CreateInstance(Type.GetTypeFromCLSID(new Guid(classId), true));
    }

    public void Dispose() {
      if (ComObject != null) Marshal.ReleaseComObject(ComObject);
      ComObject = null;
    }
  }

  /// <summary>Drives Microsoft Word.</summary>
  public sealed class ZORBWord : Control<IZORBWord> {
    /// <summary>Creates the control.</summary>
    public ZORBWord() : base(Create("495CDEB3-7F1E-4663-9DB2-E33437412CE0")) {}
    /// <summary>Takes one that exists, such as a form's.</summary>
    public ZORBWord(IZORBWord comObject) : base(comObject) {}

    /// <summary>Both classes publish the same forty members in the same slots; early-bound hosts rely on
    /// it.</summary>
    public bool Start(bool Template = false) {
      return ComObject.Start(ref Template) != 0;
    }

    /// <summary>Shows or hides the application (IsVisible: flag) and activates it.</summary>
    public bool SetVisible(bool IsVisible) {
      return ComObject.SetVisible(ref IsVisible) != 0;
    }

    /// <summary>Activates the application, whatever IsActive (flag) says.</summary>
    public bool SetActive(bool IsActive) {
      return ComObject.SetActive(ref IsActive) != 0;
    }

    /// <summary>Opens the file Doc (path) and makes it the active document.</summary>
    public bool OpenDoc(string Doc) {
      return ComObject.OpenDoc(ref Doc) != 0;
    }

    /// <summary>Creates a document from the template Doc (path, optional, default "": the normal template)
    /// and makes it the active document; the earlier one stays when that fails.</summary>
    public bool CreateDoc(string Doc = "") {
      return ComObject.CreateDoc(ref Doc) != 0;
    }

    /// <summary>Types Text at the selection.</summary>
    public bool SendText(string Text) {
      return ComObject.SendText(ref Text) != 0;
    }

    /// <summary>Reads the document's text from character StartPos to EndPos, counted from 0. A start of 0 or
    /// less with an end means 1, so the first character is left out; an end of 0 or less means the text's
    /// length; both 0 or less read all sections' texts, joined.</summary>
    public string ReadText(int StartPos, int EndPos) {
      return ComObject.ReadText(ref StartPos, ref EndPos);
    }

    /// <summary>Switches the redrawing of the application's windows (Update: flag).</summary>
    public bool SetScreenUpdating(bool Update) {
      return ComObject.SetScreenUpdating(ref Update) != 0;
    }

    /// <summary>Finds SearchString and selects it.</summary>
    public bool Search(string SearchString, WdFindWrap WrapAction = WdFindWrap.wdFindContinue,
        bool SearchForward = true, bool BeginAtTop = false, bool MatchCase = false,
        bool MatchWholeWord = false, bool MatchWildcards = false, bool MatchSoundsLike = false,
        bool MatchAllWordForms = false) {
      return ComObject.Search(ref SearchString, ref WrapAction, ref SearchForward, ref BeginAtTop,
          ref MatchCase, ref MatchWholeWord, ref MatchWildcards, ref MatchSoundsLike,
          ref MatchAllWordForms) != 0;
    }

    /// <summary>Returns 1 when the selection is in a table.</summary>
    public bool InTable() {
      return ComObject.InTable() != 0;
    }

    /// <summary>Selects the row of the table in which the selection is.</summary>
    public void SelectRow() {
      ComObject.SelectRow();
    }

    /// <summary>Finds SearchString from the selection on and replaces it by ReplaceString.</summary>
    public bool Replace(string SearchString, string ReplaceString,
        WdFindWrap WrapAction = WdFindWrap.wdFindContinue, bool SearchForward = true, bool BeginAtTop = true,
        bool MatchCase = false, bool MatchWholeWord = false, bool MatchWildcards = false,
        bool MatchSoundsLike = false, bool MatchAllWordForms = false,
        WdReplace ReplaceOption = WdReplace.wdReplaceOne) {
      return ComObject.Replace(ref SearchString, ref ReplaceString, ref WrapAction, ref SearchForward,
          ref BeginAtTop, ref MatchCase, ref MatchWholeWord, ref MatchWildcards, ref MatchSoundsLike,
          ref MatchAllWordForms, ref ReplaceOption) != 0;
    }

    /// <summary>Returns the number of sections of the active document.</summary>
    public int NumberOfSections() {
      return ComObject.NumberOfSections();
    }

    /// <summary>Reads a header's (IsHeader true) or footer's text of Section (counted from 1).</summary>
    public string ReadHeaderFooterText(int Section, bool IsHeader, WdHeaderFooterIndex HeaderFooterType,
        int StartPos, int EndPos) {
      return ComObject.ReadHeaderFooterText(ref Section, ref IsHeader, ref HeaderFooterType, ref StartPos,
          ref EndPos);
    }

    /// <summary>Copies headers, footers and the normal style's font, each if chosen, from SourceTemplate to
    /// DestTemplate (paths; empty or "Normal": the application's template), and saves the latter.</summary>
    public bool SetHeaderFooter(string SourceTemplate, string DestTemplate, bool ApplyHeader,
        bool ApplyFooter, bool ApplyFont) {
      return ComObject.SetHeaderFooter(ref SourceTemplate, ref DestTemplate, ref ApplyHeader, ref ApplyFooter,
          ref ApplyFont) != 0;
    }

    /// <summary>Replace, within one header or footer, named as in ReadHeaderFooterText; in one that does not
    /// exist nothing is found.</summary>
    public bool ReplaceHeaderFooter(int Section, bool IsHeader, WdHeaderFooterIndex HeaderFooterType,
        string SearchString, string ReplaceString, WdFindWrap WrapAction = WdFindWrap.wdFindContinue,
        bool SearchForward = true, bool BeginAtTop = true, bool MatchCase = false,
        bool MatchWholeWord = false, bool MatchWildcards = false, bool MatchSoundsLike = false,
        bool MatchAllWordForms = false, WdReplace ReplaceOption = WdReplace.wdReplaceOne) {
      return ComObject.ReplaceHeaderFooter(ref Section, ref IsHeader, ref HeaderFooterType, ref SearchString,
          ref ReplaceString, ref WrapAction, ref SearchForward, ref BeginAtTop, ref MatchCase,
          ref MatchWholeWord, ref MatchWildcards, ref MatchSoundsLike, ref MatchAllWordForms,
          ref ReplaceOption) != 0;
    }

    /// <summary>Returns the number of cells of the selection's first row.</summary>
    public int CellCount() {
      return ComObject.CellCount();
    }

    /// <summary>Returns the text of cell CellId (counted from 1) of the selection's first row, its
    /// end-of-cell mark included.</summary>
    public string CellText(int CellId) {
      return ComObject.CellText(ref CellId);
    }

    /// <summary>Cuts the selection to the clipboard.</summary>
    public void Cut() {
      ComObject.Cut();
    }

    /// <summary>Selects the paragraph in which the selection starts.</summary>
    public void SelectParagraph() {
      ComObject.SelectParagraph();
    }

    /// <summary>Returns the selected text, "" on failure.</summary>
    public string SelectionText() {
      return ComObject.SelectionText();
    }

    /// <summary>Pastes the clipboard at the selection.</summary>
    public void Paste() {
      ComObject.Paste();
    }

    /// <summary>Moves the insertion point left by Units units.</summary>
    public void CursorLeft(short Units, WdUnits Unit = WdUnits.wdCharacter,
        WdMovementType Selecting = WdMovementType.wdMove) {
      object given = (int)Selecting;
      ComObject.CursorLeft(ref Units, ref Unit, ref given);
    }

    /// <summary>CursorLeft to the right.</summary>
    public void CursorRight(short Units, WdUnits Unit = WdUnits.wdCharacter,
        WdMovementType Selecting = WdMovementType.wdMove) {
      object given = (int)Selecting;
      ComObject.CursorRight(ref Units, ref Unit, ref given);
    }

    /// <summary>Moves the insertion point to the start of its paragraph.</summary>
    public void CursorStartOfParagraph() {
      ComObject.CursorStartOfParagraph();
    }

    /// <summary>Moves the insertion point to the start of its cell.</summary>
    public void CursorStartOfCell() {
      ComObject.CursorStartOfCell();
    }

    /// <summary>Moves the insertion point to the end of its cell.</summary>
    public void CursorEndOfCell() {
      ComObject.CursorEndOfCell();
    }

    /// <summary>Moves the insertion point to the end of its paragraph.</summary>
    public void CursorEndOfParagraph() {
      ComObject.CursorEndOfParagraph();
    }

    /// <summary>Collapses the selection and moves it by Units units of Unit (a wdUnits value).</summary>
    public void Move(WdUnits Unit, short Units) {
      ComObject.Move(ref Unit, ref Units);
    }

    /// <summary>Updates the document's styles and parts it from its template.</summary>
    public void FinaliseDoc() {
      ComObject.FinaliseDoc();
    }

    /// <summary>Saves the document, as Docname (path, optional) when that is not empty.</summary>
    public void SaveDoc(string Docname = "") {
      ComObject.SaveDoc(ref Docname);
    }

    /// <summary>Prints the document to the first installed printer whose name contains "PDF", in capitals,
    /// and returns true; false when there is none.</summary>
    public bool SaveDocAsPDF() {
      return ComObject.SaveDocAsPDF();
    }

    /// <summary>Closes the document and lets go of it.</summary>
    public void CloseDoc(WdSaveOptions SaveOption = WdSaveOptions.wdDoNotSaveChanges) {
      ComObject.CloseDoc(ref SaveOption);
    }

    /// <summary>Quits the application and lets go of it: with Force (flag, optional) always, otherwise only
    /// when no document is open.</summary>
    public void StopWord(bool Force = false) {
      ComObject.StopWord(ref Force);
    }

    /// <summary>Prints Copies copies of the document, then lets the host's pending window messages run
    /// once.</summary>
    public void PrintDoc(short Copies, bool Background = false) {
      ComObject.PrintDoc(ref Copies, ref Background);
    }

    /// <summary>Returns how many documents are being printed or saved in the background, 0 when
    /// none.</summary>
    public short IsPrinting() {
      return ComObject.IsPrinting();
    }

    /// <summary>Returns the application's default folder PathId (a wdDefaultFilePath value), "" on
    /// failure.</summary>
    public string GetDefaultPaths(WdDefaultFilePath PathId) {
      return ComObject.GetDefaultPaths(ref PathId);
    }

    /// <summary>Moves the insertion point to line LineNo, counted from 1; returns true, or false on
    /// failure.</summary>
    public bool GotoLine(short LineNo) {
      return ComObject.GotoLine(ref LineNo);
    }

    /// <summary>Returns the number of the last recorded failure: always 0, because no member of these classes
    /// records.</summary>
    public int GetLastErrorNumber() {
      return ComObject.GetLastErrorNumber();
    }

    /// <summary>Returns the description of the last recorded failure: always "".</summary>
    public string GetLastErrorDescription() {
      return ComObject.GetLastErrorDescription();
    }
  }

  /// <summary>Drives Microsoft Outlook.</summary>
  public sealed class ZORBOutlook : Control<IZORBOutlook> {
    /// <summary>Creates the control.</summary>
    public ZORBOutlook() : base(Create("A04BAF5A-D329-4C3A-A012-CFFA919D559F")) {}
    /// <summary>Takes one that exists, such as a form's.</summary>
    public ZORBOutlook(IZORBOutlook comObject) : base(comObject) {}

    /// <summary>All parameters are passed by value, but for NewEmail's.</summary>
    public bool StartOutlook() {
      return ComObject.StartOutlook();
    }

    /// <summary>Ends the work; quits Outlook only when Force (optional, default false) is true.</summary>
    public bool StopOutlook(bool Force = false) {
      return ComObject.StopOutlook(Force);
    }

    /// <summary>Composes one mail, and sends (AutoSend) or shows it.</summary>
    public bool NewEmail(string Template, string ToAddress, string CCAddress, string BCCAddress,
        string Subject, string Content, bool UseHTML, bool AutoSend, string Attachment) {
      return ComObject.NewEmail(ref Template, ref ToAddress, ref CCAddress, ref BCCAddress, ref Subject,
          ref Content, ref UseHTML, ref AutoSend, ref Attachment);
    }

    /// <summary>Shows the current item of the entry type in Outlook's own window.</summary>
    public bool OpenItem(string EntryType) {
      return ComObject.OpenItem(EntryType);
    }

    /// <summary>Fills the entry type's collection from its default folder, restricted by Condition unless
    /// that is empty, sorted.</summary>
    public bool InitItems(string EntryType, string Condition) {
      return ComObject.InitItems(EntryType, Condition);
    }

    /// <summary>Makes a new, unsaved item current.</summary>
    public bool CreateItem(string EntryType) {
      return ComObject.CreateItem(EntryType);
    }

    /// <summary>Deletes the current item.</summary>
    public bool DeleteItem(string EntryType) {
      return ComObject.DeleteItem(EntryType);
    }

    /// <summary>Makes the item with the identifier EntryId current.</summary>
    public bool GetItem(string EntryType, string EntryId) {
      return ComObject.GetItem(EntryType, EntryId);
    }

    /// <summary>Makes the current appointment's occurrence of EntryDate (date text in the user's locale)
    /// current.</summary>
    public bool GetAppointmentInstance(string EntryDate) {
      return ComObject.GetAppointmentInstance(EntryDate);
    }

    /// <summary>Saves the current item.</summary>
    public bool SaveItem(string EntryType) {
      return ComObject.SaveItem(EntryType);
    }

    /// <summary>Exports the current item to FileName (path) in Outlook's default format.</summary>
    public bool SaveItemToFile(string EntryType, string FileName) {
      return ComObject.SaveItemToFile(EntryType, FileName);
    }

    /// <summary>Saves an attachment of the current e-mail to FileName (path).</summary>
    public bool SaveEmailAttachment(short AttachmentNo, string FileName) {
      return ComObject.SaveEmailAttachment(AttachmentNo, FileName);
    }

    /// <summary>Returns the number of items in the entry type's collection, 0 on failure and above
    /// 32767.</summary>
    public short GetItemCount(string EntryType) {
      return ComObject.GetItemCount(EntryType);
    }

    /// <summary>Makes the collection's first item of the entry type's class current; false when there is
    /// none.</summary>
    public bool GetFirstItem(string EntryType) {
      return ComObject.GetFirstItem(EntryType);
    }

    /// <summary>Makes the collection's next item of the entry type's class current; false at the
    /// end.</summary>
    public bool GetNextItem(string EntryType) {
      return ComObject.GetNextItem(EntryType);
    }

    /// <summary>Returns the current appointment's property AppProp as text.</summary>
    public string GetAppointmentProperty(string AppProp) {
      return ComObject.GetAppointmentProperty(AppProp);
    }

    /// <summary>Converts PropertyValue and writes it to the current appointment's property AppProp.</summary>
    public bool SetAppointmentProperty(string AppProp, string PropertyValue) {
      return ComObject.SetAppointmentProperty(AppProp, PropertyValue);
    }

    /// <summary>Takes the current appointment's recurrence pattern into the control.</summary>
    public bool GetRecurrencePattern() {
      return ComObject.GetRecurrencePattern();
    }

    /// <summary>Makes the current appointment a single one.</summary>
    public bool ClearRecurrencePattern() {
      return ComObject.ClearRecurrencePattern();
    }

    /// <summary>Returns the recurrence pattern's property RecurProp as text.</summary>
    public string GetRecurrenceProperty(string RecurProp) {
      return ComObject.GetRecurrenceProperty(RecurProp);
    }

    /// <summary>Converts PropertyValue and writes it to the recurrence pattern's property
    /// RecurProp.</summary>
    public string SetRecurrenceProperty(string RecurProp, string PropertyValue) {
      return ComObject.SetRecurrenceProperty(RecurProp, PropertyValue);
    }

    /// <summary>Returns the property ExceptProp of the pattern's exception Instance (counted from 1) as
    /// text.</summary>
    public string GetExceptionProperty(short Instance, string ExceptProp) {
      return ComObject.GetExceptionProperty(Instance, ExceptProp);
    }

    /// <summary>Returns the current contact's property ContactProp as text.</summary>
    public string GetContactProperty(string ContactProp) {
      return ComObject.GetContactProperty(ContactProp);
    }

    /// <summary>Writes PropertyValue to the current contact's property ContactProp.</summary>
    public bool SetContactProperty(string ContactProp, string PropertyValue) {
      return ComObject.SetContactProperty(ContactProp, PropertyValue);
    }

    /// <summary>Returns the current task's property TaskProp as text.</summary>
    public string GetTaskProperty(string TaskProp) {
      return ComObject.GetTaskProperty(TaskProp);
    }

    /// <summary>Converts PropertyValue and writes it to the current task's property TaskProperty.</summary>
    public bool SetTaskProperty(string TaskProperty, string PropertyValue) {
      return ComObject.SetTaskProperty(TaskProperty, PropertyValue);
    }

    /// <summary>Returns the current e-mail's property EmailProp as text.</summary>
    public string GetEmailProperty(string EmailProp) {
      return ComObject.GetEmailProperty(EmailProp);
    }

    /// <summary>Returns the current note's property NoteProperty as text.</summary>
    public string GetNoteProperty(string NoteProperty) {
      return ComObject.GetNoteProperty(NoteProperty);
    }

    /// <summary>Converts PropertyValue and writes it to the current note's property NoteProperty.</summary>
    public bool SetNoteProperty(string NoteProperty, string PropertyValue) {
      return ComObject.SetNoteProperty(NoteProperty, PropertyValue);
    }

    /// <summary>Returns the number of the last recorded failure, 0 before any.</summary>
    public short GetLastErrorNumber() {
      return ComObject.GetLastErrorNumber();
    }

    /// <summary>Returns the description of the last recorded failure, "" before any.</summary>
    public string GetLastErrorDescription() {
      return ComObject.GetLastErrorDescription();
    }
  }

  /// <summary>Drives an office suite.</summary>
  public sealed class OpenWriter : Control<IOpenWriter> {
    /// <summary>Creates the control.</summary>
    public OpenWriter() : base(Create("B0584FF2-C51E-4844-94E6-AAC137F18002")) {}
    /// <summary>Takes one that exists, such as a form's.</summary>
    public OpenWriter(IOpenWriter comObject) : base(comObject) {}

    /// <summary>Both classes publish the same forty members in the same slots; early-bound hosts rely on
    /// it.</summary>
    public bool Start(bool Template = false) {
      return ComObject.Start(ref Template) != 0;
    }

    /// <summary>Shows or hides the application (IsVisible: flag) and activates it.</summary>
    public bool SetVisible(bool IsVisible) {
      return ComObject.SetVisible(ref IsVisible) != 0;
    }

    /// <summary>Activates the application, whatever IsActive (flag) says.</summary>
    public bool SetActive(bool IsActive) {
      return ComObject.SetActive(ref IsActive) != 0;
    }

    /// <summary>Opens the file Doc (path) and makes it the active document.</summary>
    public bool OpenDoc(string Doc) {
      return ComObject.OpenDoc(ref Doc) != 0;
    }

    /// <summary>Creates a document from the template Doc (path, optional, default "": the normal template)
    /// and makes it the active document; the earlier one stays when that fails.</summary>
    public bool CreateDoc(string Doc = "") {
      return ComObject.CreateDoc(ref Doc) != 0;
    }

    /// <summary>Types Text at the selection.</summary>
    public bool SendText(string Text) {
      return ComObject.SendText(ref Text) != 0;
    }

    /// <summary>Reads the document's text from character StartPos to EndPos, counted from 0. A start of 0 or
    /// less with an end means 1, so the first character is left out; an end of 0 or less means the text's
    /// length; both 0 or less read all sections' texts, joined.</summary>
    public string ReadText(int StartPos, int EndPos) {
      return ComObject.ReadText(ref StartPos, ref EndPos);
    }

    /// <summary>Switches the redrawing of the application's windows (Update: flag).</summary>
    public bool SetScreenUpdating(bool Update) {
      return ComObject.SetScreenUpdating(ref Update) != 0;
    }

    /// <summary>Finds SearchString and selects it.</summary>
    public bool Search(string SearchString, WdFindWrap WrapAction = WdFindWrap.wdFindContinue,
        bool SearchForward = true, bool BeginAtTop = false, bool MatchCase = false,
        bool MatchWholeWord = false, bool MatchWildcards = false, bool MatchSoundsLike = false,
        bool MatchAllWordForms = false) {
      return ComObject.Search(ref SearchString, ref WrapAction, ref SearchForward, ref BeginAtTop,
          ref MatchCase, ref MatchWholeWord, ref MatchWildcards, ref MatchSoundsLike,
          ref MatchAllWordForms) != 0;
    }

    /// <summary>Returns 1 when the selection is in a table.</summary>
    public bool InTable() {
      return ComObject.InTable() != 0;
    }

    /// <summary>Selects the row of the table in which the selection is.</summary>
    public void SelectRow() {
      ComObject.SelectRow();
    }

    /// <summary>Finds SearchString from the selection on and replaces it by ReplaceString.</summary>
    public bool Replace(string SearchString, string ReplaceString,
        WdFindWrap WrapAction = WdFindWrap.wdFindContinue, bool SearchForward = true, bool BeginAtTop = true,
        bool MatchCase = false, bool MatchWholeWord = false, bool MatchWildcards = false,
        bool MatchSoundsLike = false, bool MatchAllWordForms = false,
        WdReplace ReplaceOption = WdReplace.wdReplaceOne) {
      return ComObject.Replace(ref SearchString, ref ReplaceString, ref WrapAction, ref SearchForward,
          ref BeginAtTop, ref MatchCase, ref MatchWholeWord, ref MatchWildcards, ref MatchSoundsLike,
          ref MatchAllWordForms, ref ReplaceOption) != 0;
    }

    /// <summary>Returns the number of sections of the active document.</summary>
    public int NumberOfSections() {
      return ComObject.NumberOfSections();
    }

    /// <summary>Reads a header's (IsHeader true) or footer's text of Section (counted from 1).</summary>
    public string ReadHeaderFooterText(int Section, bool IsHeader, WdHeaderFooterIndex HeaderFooterType,
        int StartPos, int EndPos) {
      return ComObject.ReadHeaderFooterText(ref Section, ref IsHeader, ref HeaderFooterType, ref StartPos,
          ref EndPos);
    }

    /// <summary>Copies headers, footers and the normal style's font, each if chosen, from SourceTemplate to
    /// DestTemplate (paths; empty or "Normal": the application's template), and saves the latter.</summary>
    public bool SetHeaderFooter(string SourceTemplate, string DestTemplate, byte ApplyHeader,
        byte ApplyFooter, byte ApplyFont) {
      return ComObject.SetHeaderFooter(ref SourceTemplate, ref DestTemplate, ref ApplyHeader, ref ApplyFooter,
          ref ApplyFont) != 0;
    }

    /// <summary>Replace, within one header or footer, named as in ReadHeaderFooterText; in one that does not
    /// exist nothing is found.</summary>
    public bool ReplaceHeaderFooter(int Section, bool IsHeader, WdHeaderFooterIndex HeaderFooterType,
        string SearchString, string ReplaceString, WdFindWrap WrapAction = WdFindWrap.wdFindContinue,
        bool SearchForward = true, bool BeginAtTop = true, bool MatchCase = false,
        bool MatchWholeWord = false, bool MatchWildcards = false, bool MatchSoundsLike = false,
        bool MatchAllWordForms = false, WdReplace ReplaceOption = WdReplace.wdReplaceOne) {
      return ComObject.ReplaceHeaderFooter(ref Section, ref IsHeader, ref HeaderFooterType, ref SearchString,
          ref ReplaceString, ref WrapAction, ref SearchForward, ref BeginAtTop, ref MatchCase,
          ref MatchWholeWord, ref MatchWildcards, ref MatchSoundsLike, ref MatchAllWordForms,
          ref ReplaceOption) != 0;
    }

    /// <summary>Returns the number of cells of the selection's first row.</summary>
    public int CellCount() {
      return ComObject.CellCount();
    }

    /// <summary>Returns the text of cell CellId (counted from 1) of the selection's first row, its
    /// end-of-cell mark included.</summary>
    public string CellText(int CellId) {
      return ComObject.CellText(ref CellId);
    }

    /// <summary>Cuts the selection to the clipboard.</summary>
    public void Cut() {
      ComObject.Cut();
    }

    /// <summary>Selects the paragraph in which the selection starts.</summary>
    public void SelectParagraph() {
      ComObject.SelectParagraph();
    }

    /// <summary>Returns the selected text, "" on failure.</summary>
    public string SelectionText() {
      return ComObject.SelectionText();
    }

    /// <summary>Pastes the clipboard at the selection.</summary>
    public void Paste() {
      ComObject.Paste();
    }

    /// <summary>Moves the insertion point left by Units units.</summary>
    public void CursorLeft(short Units, WdUnits Unit = WdUnits.wdCharacter,
        WdMovementType Selecting = WdMovementType.wdMove) {
      object given = (int)Selecting;
      ComObject.CursorLeft(ref Units, ref Unit, ref given);
    }

    /// <summary>CursorLeft to the right.</summary>
    public void CursorRight(short Units, WdUnits Unit = WdUnits.wdCharacter,
        WdMovementType Selecting = WdMovementType.wdMove) {
      object given = (int)Selecting;
      ComObject.CursorRight(ref Units, ref Unit, ref given);
    }

    /// <summary>Moves the insertion point to the start of its paragraph.</summary>
    public void CursorStartOfParagraph() {
      ComObject.CursorStartOfParagraph();
    }

    /// <summary>Moves the insertion point to the start of its cell.</summary>
    public void CursorStartOfCell() {
      ComObject.CursorStartOfCell();
    }

    /// <summary>Moves the insertion point to the end of its cell.</summary>
    public void CursorEndOfCell() {
      ComObject.CursorEndOfCell();
    }

    /// <summary>Moves the insertion point to the end of its paragraph.</summary>
    public void CursorEndOfParagraph() {
      ComObject.CursorEndOfParagraph();
    }

    /// <summary>Collapses the selection and moves it by Units units of Unit (a wdUnits value).</summary>
    public void Move(WdUnits Unit, short Units) {
      ComObject.Move(ref Unit, ref Units);
    }

    /// <summary>Updates the document's styles and parts it from its template.</summary>
    public void FinaliseDoc() {
      ComObject.FinaliseDoc();
    }

    /// <summary>Saves the document, as Docname (path, optional) when that is not empty.</summary>
    public void SaveDoc(string Docname = "") {
      ComObject.SaveDoc(ref Docname);
    }

    /// <summary>Prints the document to the first installed printer whose name contains "PDF", in capitals,
    /// and returns true; false when there is none.</summary>
    public bool SaveDocAsPDF() {
      return ComObject.SaveDocAsPDF();
    }

    /// <summary>Closes the document and lets go of it.</summary>
    public void CloseDoc(WdSaveOptions SaveOption = WdSaveOptions.wdDoNotSaveChanges) {
      ComObject.CloseDoc(ref SaveOption);
    }

    /// <summary>Quits the application and lets go of it: with Force (flag, optional) always, otherwise only
    /// when no document is open.</summary>
    public void StopWord(bool Force = false) {
      ComObject.StopWord(ref Force);
    }

    /// <summary>Prints Copies copies of the document, then lets the host's pending window messages run
    /// once.</summary>
    public void PrintDoc(short Copies, bool Background = false) {
      ComObject.PrintDoc(ref Copies, ref Background);
    }

    /// <summary>Returns how many documents are being printed or saved in the background, 0 when
    /// none.</summary>
    public short IsPrinting() {
      return ComObject.IsPrinting();
    }

    /// <summary>Returns the application's default folder PathId (a wdDefaultFilePath value), "" on
    /// failure.</summary>
    public string GetDefaultPaths(WdDefaultFilePath PathId) {
      return ComObject.GetDefaultPaths(ref PathId);
    }

    /// <summary>Moves the insertion point to line LineNo, counted from 1; returns true, or false on
    /// failure.</summary>
    public bool GotoLine(short LineNo) {
      return ComObject.GotoLine(ref LineNo);
    }

    /// <summary>Returns the number of the last recorded failure: always 0, because no member of these classes
    /// records.</summary>
    public int GetLastErrorNumber() {
      return ComObject.GetLastErrorNumber();
    }

    /// <summary>Returns the description of the last recorded failure: always "".</summary>
    public string GetLastErrorDescription() {
      return ComObject.GetLastErrorDescription();
    }
  }
}
