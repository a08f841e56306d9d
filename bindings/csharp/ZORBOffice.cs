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

  /// <summary>What GetExceptionProperty does beside reading.</summary>
  public static class ExceptionAction {
    /// <summary>Makes the exception's appointment the current one.</summary>
    public const string GetAppointment = "Get Appointment";
  }

  /// <summary>Keys of GetAppointmentProperty and SetAppointmentProperty, for the current appointment.</summary>
  public static class AppointmentKey {
    /// <summary>Whether the appointment takes whole days.</summary>
    public const string AllDayEvent = "AllDayEvent";
    /// <summary>Billing information.</summary>
    public const string Billing = "Billing";
    /// <summary>The appointment's text.</summary>
    public const string Body = "Body";
    /// <summary>The companies that have to do with the appointment.</summary>
    public const string Companies = "Companies";
    /// <summary>The day on which the item was made.</summary>
    public const string CreatedDate = "CreatedDate";
    /// <summary>The time of day at which the item was made.</summary>
    public const string CreatedTime = "CreatedTime";
    /// <summary>How long it takes, in minutes.</summary>
    public const string Duration = "Duration";
    /// <summary>When it ends.</summary>
    public const string End = "End";
    /// <summary>The day on which it ends.</summary>
    public const string EndDate = "EndDate";
    /// <summary>The time of day at which it ends.</summary>
    public const string EndTime = "EndTime";
    /// <summary>The item's identifier, for GetItem.</summary>
    public const string EntryID = "EntryID";
    /// <summary>The name of the folder that the item is in.</summary>
    public const string Folder = "Folder";
    /// <summary>Whether the appointment is a series.</summary>
    public const string IsRecurring = "IsRecurring";
    /// <summary>How important it is: low (0), normal (1) or high (2).</summary>
    public const string Importance = "Importance";
    /// <summary>The day on which the item was last changed.</summary>
    public const string ModifiedDate = "ModifiedDate";
    /// <summary>The time of day at which the item was last changed.</summary>
    public const string ModifiedTime = "ModifiedTime";
    /// <summary>The place.</summary>
    public const string Location = "Location";
    /// <summary>Whether the appointment is a meeting, and in which state: an OlMeetingStatus number.</summary>
    public const string MeetingStatus = "MeetingStatus";
    /// <summary>The item's message class, as IPM.Appointment.</summary>
    public const string MessageClass = "MessageClass";
    /// <summary>Miles travelled, as a text of the user's own.</summary>
    public const string Mileage = "Mileage";
    /// <summary>Whether the item is a single appointment (0), a series (1), an occurrence (2) or an exception
    /// (3).</summary>
    public const string RecurrenceState = "RecurrenceState";
    /// <summary>How many minutes before the start the reminder comes.</summary>
    public const string ReminderMinutesBeforeStart = "ReminderMinutesBeforeStart";
    /// <summary>Whether there is a reminder.</summary>
    public const string ReminderSet = "ReminderSet";
    /// <summary>Who is to see it: everyone (0), or it is personal (1), private (2) or confidential (3).</summary>
    public const string Sensitivity = "Sensitivity";
    /// <summary>When it begins.</summary>
    public const string Start = "Start";
    /// <summary>The day on which it begins.</summary>
    public const string StartDate = "StartDate";
    /// <summary>The time of day at which it begins.</summary>
    public const string StartTime = "StartTime";
    /// <summary>The subject.</summary>
    public const string Subject = "Subject";
  }

  /// <summary>Keys of GetRecurrenceProperty and SetRecurrenceProperty, for the recurrence pattern.</summary>
  public static class RecurrenceKey {
    /// <summary>The pattern's class: an OlObjectClass number, 28.</summary>
    public const string Class = "Class";
    /// <summary>The day of the month.</summary>
    public const string DayOfMonth = "DayOfMonth";
    /// <summary>The days of the week, added up: Sunday 1, Monday 2, Tuesday 4, Wednesday 8, Thursday 16, Friday 32,
    /// Saturday 64.</summary>
    public const string DayOfWeekMask = "DayOfWeekMask";
    /// <summary>How long an occurrence takes, in minutes.</summary>
    public const string Duration = "Duration";
    /// <summary>The time of day at which an occurrence ends.</summary>
    public const string EndTime = "EndTime";
    /// <summary>Every how many days, weeks, months or years it recurs.</summary>
    public const string Interval = "Interval";
    /// <summary>Which such day of the month: first (1) to fourth (4), or last (5).</summary>
    public const string Instance = "Instance";
    /// <summary>The month, 1 to 12.</summary>
    public const string MonthOfYear = "MonthOfYear";
    /// <summary>Whether the series has no end.</summary>
    public const string NoEndDate = "NoEndDate";
    /// <summary>How many occurrences there are.</summary>
    public const string Occurrences = "Occurrences";
    /// <summary>The day on which the series ends.</summary>
    public const string PatternEndDate = "PatternEndDate";
    /// <summary>The day on which the series begins; it cannot be written. Writes the day on which the series ends, as
    /// PatternEndDate does: the start stays.</summary>
    public const string PatternStartDate = "PatternStartDate";
    /// <summary>How it recurs: daily (0), weekly (1), monthly (2), monthly by weekday (3), yearly (5) or yearly by
    /// weekday (6).</summary>
    public const string RecurrenceType = "RecurrenceType";
    /// <summary>The time of day at which an occurrence begins.</summary>
    public const string StartTime = "StartTime";
    /// <summary>How many exceptions the series has.</summary>
    public const string ExceptionCount = "Exception Count";
    /// <summary>All exceptions in one text.</summary>
    public const string ExceptionList = "Exception List";
  }

  /// <summary>Keys of GetExceptionProperty, for one exception of the recurrence pattern.</summary>
  public static class ExceptionKey {
    /// <summary>The day on which the occurrence would have been.</summary>
    public const string OriginalDate = "OriginalDate";
    /// <summary>Whether the occurrence was deleted; otherwise it was changed.</summary>
    public const string Deleted = "Deleted";
  }

  /// <summary>Keys of GetContactProperty and SetContactProperty, for the current contact.</summary>
  public static class ContactKey {
    /// <summary>Telephone number of the assistant.</summary>
    public const string AssistantTelephoneNumber = "AssistantTelephoneNumber";
    /// <summary>Notes on the contact.</summary>
    public const string Body = "Body";
    /// <summary>Second telephone number at work.</summary>
    public const string Business2TelephoneNumber = "Business2TelephoneNumber";
    /// <summary>Address at work, whole.</summary>
    public const string BusinessAddress = "BusinessAddress";
    /// <summary>City of the address at work.</summary>
    public const string BusinessAddressCity = "BusinessAddressCity";
    /// <summary>Country of the address at work.</summary>
    public const string BusinessAddressCountry = "BusinessAddressCountry";
    /// <summary>Postal code of the address at work.</summary>
    public const string BusinessAddressPostalCode = "BusinessAddressPostalCode";
    /// <summary>State of the address at work.</summary>
    public const string BusinessAddressState = "BusinessAddressState";
    /// <summary>Street of the address at work.</summary>
    public const string BusinessAddressStreet = "BusinessAddressStreet";
    /// <summary>Fax number at work.</summary>
    public const string BusinessFaxNumber = "BusinessFaxNumber";
    /// <summary>Web page of the business; the key has a small h.</summary>
    public const string BusinesshomePage = "BusinesshomePage";
    /// <summary>Telephone number at work.</summary>
    public const string BusinessTelephoneNumber = "BusinessTelephoneNumber";
    /// <summary>Telephone number in the car.</summary>
    public const string CarTelephoneNumber = "CarTelephoneNumber";
    /// <summary>Main telephone number of the company.</summary>
    public const string CompanyMainTelephoneNumber = "CompanyMainTelephoneNumber";
    /// <summary>Name of the company.</summary>
    public const string CompanyName = "CompanyName";
    /// <summary>First mail address.</summary>
    public const string Email1Address = "Email1Address";
    /// <summary>Second mail address.</summary>
    public const string Email2Address = "Email2Address";
    /// <summary>Third mail address.</summary>
    public const string Email3Address = "Email3Address";
    /// <summary>First name.</summary>
    public const string FirstName = "FirstName";
    /// <summary>Whole name.</summary>
    public const string FullName = "FullName";
    /// <summary>Number of an identity document.</summary>
    public const string GovernmentIDNumber = "GovernmentIDNumber";
    /// <summary>Second telephone number at home.</summary>
    public const string Home2TelephoneNumber = "Home2TelephoneNumber";
    /// <summary>Address at home, whole.</summary>
    public const string HomeAddress = "HomeAddress";
    /// <summary>City of the address at home.</summary>
    public const string HomeAddressCity = "HomeAddressCity";
    /// <summary>Country of the address at home.</summary>
    public const string HomeAddressCountry = "HomeAddressCountry";
    /// <summary>Postal code of the address at home.</summary>
    public const string HomeAddressPostalCode = "HomeAddressPostalCode";
    /// <summary>State of the address at home.</summary>
    public const string HomeAddressState = "HomeAddressState";
    /// <summary>Street of the address at home.</summary>
    public const string HomeAddressStreet = "HomeAddressStreet";
    /// <summary>Fax number at home.</summary>
    public const string HomeFaxNumber = "HomeFaxNumber";
    /// <summary>Telephone number at home.</summary>
    public const string HomeTelephoneNumber = "HomeTelephoneNumber";
    /// <summary>Job title.</summary>
    public const string JobTitle = "JobTitle";
    /// <summary>The address that mail goes to, whole.</summary>
    public const string MailingAddress = "MailingAddress";
    /// <summary>City of the address that mail goes to.</summary>
    public const string MailingAddressCity = "MailingAddressCity";
    /// <summary>Country of the address that mail goes to.</summary>
    public const string MailingAddressCountry = "MailingAddressCountry";
    /// <summary>Postal code of the address that mail goes to.</summary>
    public const string MailingAddressPostalCode = "MailingAddressPostalCode";
    /// <summary>State of the address that mail goes to.</summary>
    public const string MailingAddressState = "MailingAddressState";
    /// <summary>Street of the address that mail goes to.</summary>
    public const string MailingAddressStreet = "MailingAddressStreet";
    /// <summary>Number of the mobile telephone.</summary>
    public const string MobileTelephoneNumber = "MobileTelephoneNumber";
    /// <summary>Nickname.</summary>
    public const string Nickname = "Nickname";
    /// <summary>Another address, whole.</summary>
    public const string OtherAddress = "OtherAddress";
    /// <summary>City of the other address.</summary>
    public const string OtherAddressCity = "OtherAddressCity";
    /// <summary>Country of the other address.</summary>
    public const string OtherAddressCountry = "OtherAddressCountry";
    /// <summary>Postal code of the other address.</summary>
    public const string OtherAddressPostalCode = "OtherAddressPostalCode";
    /// <summary>State of the other address.</summary>
    public const string OtherAddressState = "OtherAddressState";
    /// <summary>Street of the other address.</summary>
    public const string OtherAddressStreet = "OtherAddressStreet";
    /// <summary>Another fax number.</summary>
    public const string OtherFaxNumber = "OtherFaxNumber";
    /// <summary>Another telephone number.</summary>
    public const string OtherTelephoneNumber = "OtherTelephoneNumber";
    /// <summary>The telephone number to try first.</summary>
    public const string PrimaryTelephoneNumber = "PrimaryTelephoneNumber";
    /// <summary>Number of the radio telephone.</summary>
    public const string RadioTelephoneNumber = "RadioTelephoneNumber";
    /// <summary>Title before the name, as Dr.</summary>
    public const string Title = "Title";
    /// <summary>Web page.</summary>
    public const string WebPage = "WebPage";
    /// <summary>The item's identifier, for GetItem.</summary>
    public const string EntryID = "EntryID";
    /// <summary>The name of the folder that the item is in.</summary>
    public const string Folder = "Folder";
    /// <summary>The day on which the item was last changed.</summary>
    public const string ModifiedDate = "ModifiedDate";
    /// <summary>The time of day at which the item was last changed.</summary>
    public const string ModifiedTime = "ModifiedTime";
    /// <summary>Which address mail goes to: none (0), home (1), work (2) or the other (3).</summary>
    public const string SelectedMailingAddress = "SelectedMailingAddress";
    /// <summary>Nine telephone numbers in one text, without those of mobile and radio telephones.</summary>
    public const string AllTelephoneNumbers = "AllTelephoneNumbers";
    /// <summary>The three fax numbers in one text.</summary>
    public const string AllFaxNumbers = "AllFaxNumbers";
    /// <summary>The three mail addresses in one text.</summary>
    public const string AllEmailAddresses = "AllEmailAddresses";
  }

  /// <summary>Keys of GetTaskProperty and SetTaskProperty, for the current task.</summary>
  public static class TaskKey {
    /// <summary>The task's text.</summary>
    public const string Body = "Body";
    /// <summary>The day on which the item was made.</summary>
    public const string CreationDate = "CreationDate";
    /// <summary>The time of day at which the item was made.</summary>
    public const string CreationTime = "CreationTime";
    /// <summary>The day on which the task is due.</summary>
    public const string DueDate = "DueDate";
    /// <summary>The item's identifier, for GetItem.</summary>
    public const string EntryID = "EntryID";
    /// <summary>The name of the folder that the item is in.</summary>
    public const string Folder = "Folder";
    /// <summary>The day on which the item was last changed.</summary>
    public const string ModifiedDate = "ModifiedDate";
    /// <summary>The time of day at which the item was last changed.</summary>
    public const string ModifiedTime = "ModifiedTime";
    /// <summary>How much of it is done, 0 to 100.</summary>
    public const string PercentComplete = "PercentComplete";
    /// <summary>How important it is: low (0), normal (1) or high (2).</summary>
    public const string Priority = "Priority";
    /// <summary>Whether there is a reminder.</summary>
    public const string Reminder = "Reminder";
    /// <summary>The day of the reminder; writing sets its time too, but switches no reminder on.</summary>
    public const string ReminderDate = "ReminderDate";
    /// <summary>The time of day of the reminder.</summary>
    public const string ReminderTime = "ReminderTime";
    /// <summary>The subject.</summary>
    public const string Subject = "Subject";
    /// <summary>The day on which the task begins.</summary>
    public const string StartDate = "StartDate";
    /// <summary>How far the task is, in English words.</summary>
    public const string Status = "Status";
  }

  /// <summary>Keys of GetEmailProperty, for the current mail.</summary>
  public static class EmailKey {
    /// <summary>How many attachments there are.</summary>
    public const string AttachmentCount = "Attachment Count";
    /// <summary>The names of the attachments.</summary>
    public const string Attachments = "Attachments";
    /// <summary>Who gets a copy unseen by the others.</summary>
    public const string BCC = "BCC";
    /// <summary>The mail's text without formatting.</summary>
    public const string Body = "Body";
    /// <summary>Who gets a copy.</summary>
    public const string CC = "CC";
    /// <summary>The item's class: an OlObjectClass number, 43 for a mail.</summary>
    public const string Class = "Class";
    /// <summary>The item's identifier, for GetItem.</summary>
    public const string EntryID = "EntryID";
    /// <summary>The mail's text as HTML.</summary>
    public const string HTMLBody = "HTMLBody";
    /// <summary>How important it is: low (0), normal (1) or high (2).</summary>
    public const string Importance = "Importance";
    /// <summary>The name of the folder that the item is in.</summary>
    public const string Parent = "Parent";
    /// <summary>The day on which the mail came.</summary>
    public const string ReceivedDate = "ReceivedDate";
    /// <summary>The time of day at which the mail came.</summary>
    public const string ReceivedTime = "ReceivedTime";
    /// <summary>The names of all recipients.</summary>
    public const string Recipients = "Recipients";
    /// <summary>The sender's mail address.</summary>
    public const string SenderEmailAddress = "SenderEmailAddress";
    /// <summary>The sender's name.</summary>
    public const string SenderName = "SenderName";
    /// <summary>Who is to see it: everyone (0), or it is personal (1), private (2) or confidential (3).</summary>
    public const string Sensitivity = "Sensitivity";
    /// <summary>The size in bytes.</summary>
    public const string Size = "Size";
    /// <summary>The subject.</summary>
    public const string Subject = "Subject";
    /// <summary>The recipients.</summary>
    public const string To = "To";
  }

  /// <summary>Keys of GetNoteProperty and SetNoteProperty, for the current note.</summary>
  public static class NoteKey {
    /// <summary>The note's text, its first line being the subject.</summary>
    public const string Body = "Body";
    /// <summary>The note's categories, separated as the user's settings have it.</summary>
    public const string Categories = "Categories";
    /// <summary>The item's class: an OlObjectClass number, 44 for a note.</summary>
    public const string Class = "Class";
    /// <summary>The colour: blue (0), green (1), pink (2), yellow (3) or white (4).</summary>
    public const string Color = "Color";
    /// <summary>The time of day at which the item was made.</summary>
    public const string CreationTime = "CreationTime";
    /// <summary>Whether only the header is here (0) or the whole item (1).</summary>
    public const string DownloadState = "DownloadState";
    /// <summary>The item's identifier, for GetItem.</summary>
    public const string EntryID = "EntryID";
    /// <summary>The name of the folder that the item is in.</summary>
    public const string Folder = "Folder";
    /// <summary>Height of the note's window, in pixels.</summary>
    public const string Height = "Height";
    /// <summary>Whether the item is in conflict with another copy.</summary>
    public const string IsConflict = "IsConflict";
    /// <summary>The day on which the item was last changed.</summary>
    public const string ModifiedDate = "ModifiedDate";
    /// <summary>The time of day at which the item was last changed.</summary>
    public const string ModifiedTime = "ModifiedTime";
    /// <summary>Distance of the note's window from the left of the screen, in pixels.</summary>
    public const string Left = "Left";
    /// <summary>Whether the item is to be fetched: an OlRemoteStatus number.</summary>
    public const string MarkForDownload = "MarkForDownload";
    /// <summary>The item's message class, IPM.StickyNote.</summary>
    public const string MessageClass = "MessageClass";
    /// <summary>The name of the folder that the item is in, as Folder.</summary>
    public const string Parent = "Parent";
    /// <summary>Whether nothing was changed since the item was saved.</summary>
    public const string Saved = "Saved";
    /// <summary>The size in bytes.</summary>
    public const string Size = "Size";
    /// <summary>The subject: the text's first line.</summary>
    public const string Subject = "Subject";
    /// <summary>Distance of the note's window from the top of the screen, in pixels.</summary>
    public const string Top = "Top";
    /// <summary>Width of the note's window, in pixels.</summary>
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

  /// <summary>Makes the controls known to this thread without registration until it is disposed of, by the same
  /// thread; controls that were created stay usable.</summary>
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

  /// <summary>Drives Microsoft Word: opens and writes documents, searches them, prints and saves them.</summary>
  public sealed class ZORBWord : Control<IZORBWord> {
    /// <summary>Creates the control.</summary>
    public ZORBWord() : base(Create("495CDEB3-7F1E-4663-9DB2-E33437412CE0")) {}
    /// <summary>Takes one that exists, such as a form's.</summary>
    public ZORBWord(IZORBWord comObject) : base(comObject) {}

    /// <summary>Starts a new Word and holds it.</summary>
    /// <param name="Template">True places Word's window on the screen; False switches automatic numbering off.</param>
    public bool Start(bool Template = false) {
      return ComObject.Start(ref Template) != 0;
    }

    /// <summary>Shows or hides Word, and brings it to the front.</summary>
    /// <param name="IsVisible">True shows it, False hides it.</param>
    public bool SetVisible(bool IsVisible) {
      return ComObject.SetVisible(ref IsVisible) != 0;
    }

    /// <summary>Brings Word to the front.</summary>
    /// <param name="IsActive">Has no effect.</param>
    public bool SetActive(bool IsActive) {
      return ComObject.SetActive(ref IsActive) != 0;
    }

    /// <summary>Opens a document and makes it the active one.</summary>
    /// <param name="Doc">Path of the document.</param>
    public bool OpenDoc(string Doc) {
      return ComObject.OpenDoc(ref Doc) != 0;
    }

    /// <summary>Makes a new document from a template, and makes it the active one.</summary>
    /// <param name="Doc">Path of the template; an empty text means the normal one.</param>
    public bool CreateDoc(string Doc = "") {
      return ComObject.CreateDoc(ref Doc) != 0;
    }

    /// <summary>Types a text at the selection.</summary>
    /// <param name="Text">The text to type.</param>
    public bool SendText(string Text) {
      return ComObject.SendText(ref Text) != 0;
    }

    /// <summary>Reads the document's text, or a part of it.</summary>
    /// <param name="StartPos">First character, counted from 0; both positions 0 mean the whole text.</param>
    /// <param name="EndPos">Character after the last one; 0 means the end.</param>
    public string ReadText(int StartPos, int EndPos) {
      return ComObject.ReadText(ref StartPos, ref EndPos);
    }

    /// <summary>Switches the redrawing of Word's windows on or off.</summary>
    /// <param name="Update">True redraws, False does not.</param>
    public bool SetScreenUpdating(bool Update) {
      return ComObject.SetScreenUpdating(ref Update) != 0;
    }

    /// <summary>Finds a text and selects it.</summary>
    /// <param name="SearchString">The text to find.</param>
    /// <param name="WrapAction">What to do at the end of the text: stop (0), go on at its other end (1), or ask
    /// (2).</param>
    /// <param name="SearchForward">True searches towards the end, False towards the start.</param>
    /// <param name="BeginAtTop">True moves to the start of the document before it searches.</param>
    /// <param name="MatchCase">True tells capital letters from small ones.</param>
    /// <param name="MatchWholeWord">True finds whole words only.</param>
    /// <param name="MatchWildcards">True reads the text that is searched for as a pattern.</param>
    /// <param name="MatchSoundsLike">True also finds words that sound alike.</param>
    /// <param name="MatchAllWordForms">True also finds the other forms of the words.</param>
    public bool Search(string SearchString, WdFindWrap WrapAction = WdFindWrap.wdFindContinue,
        bool SearchForward = true, bool BeginAtTop = false, bool MatchCase = false,
        bool MatchWholeWord = false, bool MatchWildcards = false, bool MatchSoundsLike = false,
        bool MatchAllWordForms = false) {
      return ComObject.Search(ref SearchString, ref WrapAction, ref SearchForward, ref BeginAtTop,
          ref MatchCase, ref MatchWholeWord, ref MatchWildcards, ref MatchSoundsLike,
          ref MatchAllWordForms) != 0;
    }

    /// <summary>Tells whether the selection is in a table.</summary>
    public bool InTable() {
      return ComObject.InTable() != 0;
    }

    /// <summary>Selects the table row that the selection is in.</summary>
    public void SelectRow() {
      ComObject.SelectRow();
    }

    /// <summary>Finds a text from the selection on and replaces it.</summary>
    /// <param name="SearchString">The text to find.</param>
    /// <param name="ReplaceString">The text to put in its place.</param>
    /// <param name="WrapAction">What to do at the end of the text: stop (0), go on at its other end (1), or ask
    /// (2).</param>
    /// <param name="SearchForward">True searches towards the end, False towards the start.</param>
    /// <param name="BeginAtTop">Has no effect.</param>
    /// <param name="MatchCase">True tells capital letters from small ones.</param>
    /// <param name="MatchWholeWord">True finds whole words only.</param>
    /// <param name="MatchWildcards">True reads the text that is searched for as a pattern.</param>
    /// <param name="MatchSoundsLike">True also finds words that sound alike.</param>
    /// <param name="MatchAllWordForms">True also finds the other forms of the words.</param>
    /// <param name="ReplaceOption">How many to replace: none (0), the first one (1), or all (2).</param>
    public bool Replace(string SearchString, string ReplaceString,
        WdFindWrap WrapAction = WdFindWrap.wdFindContinue, bool SearchForward = true, bool BeginAtTop = true,
        bool MatchCase = false, bool MatchWholeWord = false, bool MatchWildcards = false,
        bool MatchSoundsLike = false, bool MatchAllWordForms = false,
        WdReplace ReplaceOption = WdReplace.wdReplaceOne) {
      return ComObject.Replace(ref SearchString, ref ReplaceString, ref WrapAction, ref SearchForward,
          ref BeginAtTop, ref MatchCase, ref MatchWholeWord, ref MatchWildcards, ref MatchSoundsLike,
          ref MatchAllWordForms, ref ReplaceOption) != 0;
    }

    /// <summary>Counts the sections of the active document.</summary>
    public int NumberOfSections() {
      return ComObject.NumberOfSections();
    }

    /// <summary>Reads the text of a header or footer, or a part of it.</summary>
    /// <param name="Section">The section, counted from 1.</param>
    /// <param name="IsHeader">True means the header, False the footer.</param>
    /// <param name="HeaderFooterType">Of which pages: all others (1), the first (2), or even ones (3).</param>
    /// <param name="StartPos">First character, counted from 0; both positions 0 mean the whole text.</param>
    /// <param name="EndPos">Character after the last one; 0 means the end.</param>
    public string ReadHeaderFooterText(int Section, bool IsHeader, WdHeaderFooterIndex HeaderFooterType,
        int StartPos, int EndPos) {
      return ComObject.ReadHeaderFooterText(ref Section, ref IsHeader, ref HeaderFooterType, ref StartPos,
          ref EndPos);
    }

    /// <summary>Copies headers, footers and the normal font from one document to another, and saves that.</summary>
    /// <param name="SourceTemplate">Path of the document to copy from; an empty text means the normal template.</param>
    /// <param name="DestTemplate">Path of the document to change; an empty text means the normal template.</param>
    /// <param name="ApplyHeader">True copies the headers.</param>
    /// <param name="ApplyFooter">True copies the footers.</param>
    /// <param name="ApplyFont">True copies the normal style's font.</param>
    public bool SetHeaderFooter(string SourceTemplate, string DestTemplate, bool ApplyHeader,
        bool ApplyFooter, bool ApplyFont) {
      return ComObject.SetHeaderFooter(ref SourceTemplate, ref DestTemplate, ref ApplyHeader, ref ApplyFooter,
          ref ApplyFont) != 0;
    }

    /// <summary>Finds a text in a header or footer and replaces it.</summary>
    /// <param name="Section">The section, counted from 1.</param>
    /// <param name="IsHeader">True means the header, False the footer.</param>
    /// <param name="HeaderFooterType">Of which pages: all others (1), the first (2), or even ones (3).</param>
    /// <param name="SearchString">The text to find.</param>
    /// <param name="ReplaceString">The text to put in its place.</param>
    /// <param name="WrapAction">What to do at the end of the text: stop (0), go on at its other end (1), or ask
    /// (2).</param>
    /// <param name="SearchForward">True searches towards the end, False towards the start.</param>
    /// <param name="BeginAtTop">Has no effect.</param>
    /// <param name="MatchCase">True tells capital letters from small ones.</param>
    /// <param name="MatchWholeWord">True finds whole words only.</param>
    /// <param name="MatchWildcards">True reads the text that is searched for as a pattern.</param>
    /// <param name="MatchSoundsLike">True also finds words that sound alike.</param>
    /// <param name="MatchAllWordForms">True also finds the other forms of the words.</param>
    /// <param name="ReplaceOption">How many to replace: none (0), the first one (1), or all (2).</param>
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

    /// <summary>Counts the cells of the selection's first table row.</summary>
    public int CellCount() {
      return ComObject.CellCount();
    }

    /// <summary>Reads a cell of the selection's first table row.</summary>
    /// <param name="CellId">The cell, counted from 1.</param>
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

    /// <summary>Reads the selected text.</summary>
    public string SelectionText() {
      return ComObject.SelectionText();
    }

    /// <summary>Pastes the clipboard at the selection.</summary>
    public void Paste() {
      ComObject.Paste();
    }

    /// <summary>Moves the insertion point to the left.</summary>
    /// <param name="Units">How many units to move.</param>
    /// <param name="Unit">By what to move: a WdUnits number.</param>
    /// <param name="Selecting">Whether to extend the selection (1) or only to move (0).</param>
    public void CursorLeft(short Units, WdUnits Unit = WdUnits.wdCharacter,
        WdMovementType Selecting = WdMovementType.wdMove) {
      object given = (int)Selecting;
      ComObject.CursorLeft(ref Units, ref Unit, ref given);
    }

    /// <summary>Moves the insertion point to the right.</summary>
    /// <param name="Units">How many units to move.</param>
    /// <param name="Unit">By what to move: a WdUnits number.</param>
    /// <param name="Selecting">Whether to extend the selection (1) or only to move (0).</param>
    public void CursorRight(short Units, WdUnits Unit = WdUnits.wdCharacter,
        WdMovementType Selecting = WdMovementType.wdMove) {
      object given = (int)Selecting;
      ComObject.CursorRight(ref Units, ref Unit, ref given);
    }

    /// <summary>Moves the insertion point to the start of its paragraph.</summary>
    public void CursorStartOfParagraph() {
      ComObject.CursorStartOfParagraph();
    }

    /// <summary>Moves the insertion point to the start of its table cell.</summary>
    public void CursorStartOfCell() {
      ComObject.CursorStartOfCell();
    }

    /// <summary>Moves the insertion point to the end of its table cell.</summary>
    public void CursorEndOfCell() {
      ComObject.CursorEndOfCell();
    }

    /// <summary>Moves the insertion point to the end of its paragraph.</summary>
    public void CursorEndOfParagraph() {
      ComObject.CursorEndOfParagraph();
    }

    /// <summary>Collapses the selection and moves it.</summary>
    /// <param name="Unit">By what to move: a WdUnits number.</param>
    /// <param name="Units">How many units to move; a negative number moves back.</param>
    public void Move(WdUnits Unit, short Units) {
      ComObject.Move(ref Unit, ref Units);
    }

    /// <summary>Updates the document's styles and parts it from its template.</summary>
    public void FinaliseDoc() {
      ComObject.FinaliseDoc();
    }

    /// <summary>Saves the document, under a new name where one is given.</summary>
    /// <param name="Docname">Path to save as; an empty text keeps the name.</param>
    public void SaveDoc(string Docname = "") {
      ComObject.SaveDoc(ref Docname);
    }

    /// <summary>Prints the document to the first printer whose name has PDF in it.</summary>
    public bool SaveDocAsPDF() {
      return ComObject.SaveDocAsPDF();
    }

    /// <summary>Closes the document.</summary>
    /// <param name="SaveOption">What to do with changes: drop them (0), save them (-1), or ask (-2).</param>
    public void CloseDoc(WdSaveOptions SaveOption = WdSaveOptions.wdDoNotSaveChanges) {
      ComObject.CloseDoc(ref SaveOption);
    }

    /// <summary>Quits the application.</summary>
    /// <param name="Force">True quits also while documents are open.</param>
    public void StopWord(bool Force = false) {
      ComObject.StopWord(ref Force);
    }

    /// <summary>Prints the document.</summary>
    /// <param name="Copies">How many copies.</param>
    /// <param name="Background">Has no effect.</param>
    public void PrintDoc(short Copies, bool Background = false) {
      ComObject.PrintDoc(ref Copies, ref Background);
    }

    /// <summary>Counts the documents that are being printed or saved in the background.</summary>
    public short IsPrinting() {
      return ComObject.IsPrinting();
    }

    /// <summary>Reads one of the default folders.</summary>
    /// <param name="PathId">Which folder: a WdDefaultFilePath number.</param>
    public string GetDefaultPaths(WdDefaultFilePath PathId) {
      return ComObject.GetDefaultPaths(ref PathId);
    }

    /// <summary>Moves the insertion point to a line.</summary>
    /// <param name="LineNo">The line, counted from 1.</param>
    public bool GotoLine(short LineNo) {
      return ComObject.GotoLine(ref LineNo);
    }

    /// <summary>Reads the number of the last recorded failure: always 0.</summary>
    public int GetLastErrorNumber() {
      return ComObject.GetLastErrorNumber();
    }

    /// <summary>Reads the text of the last recorded failure: always empty.</summary>
    public string GetLastErrorDescription() {
      return ComObject.GetLastErrorDescription();
    }
  }

  /// <summary>Drives Microsoft Outlook: walks, reads and writes its items, and makes mails.</summary>
  public sealed class ZORBOutlook : Control<IZORBOutlook> {
    /// <summary>Creates the control.</summary>
    public ZORBOutlook() : base(Create("A04BAF5A-D329-4C3A-A012-CFFA919D559F")) {}
    /// <summary>Takes one that exists, such as a form's.</summary>
    public ZORBOutlook(IZORBOutlook comObject) : base(comObject) {}

    /// <summary>Starts a session with Outlook.</summary>
    public bool StartOutlook() {
      return ComObject.StartOutlook();
    }

    /// <summary>Ends the work, and quits Outlook where that is asked for.</summary>
    /// <param name="Force">True quits Outlook, the user's own too.</param>
    public bool StopOutlook(bool Force = false) {
      return ComObject.StopOutlook(Force);
    }

    /// <summary>Makes one mail from its parts, and sends it or shows it; always answers False.</summary>
    /// <param name="Template">Has no effect.</param>
    /// <param name="ToAddress">Addresses of the recipients, separated by semicolons.</param>
    /// <param name="CCAddress">Addresses of those who get a copy.</param>
    /// <param name="BCCAddress">Addresses of those who get a copy unseen by the others.</param>
    /// <param name="Subject">The subject.</param>
    /// <param name="Content">The mail's text.</param>
    /// <param name="UseHTML">True takes the text for HTML.</param>
    /// <param name="AutoSend">True sends the mail and quits Outlook; False shows it.</param>
    /// <param name="Attachment">Paths of files, separated by semicolons; the variable is used up, so hand over a
    /// copy.</param>
    public bool NewEmail(string Template, string ToAddress, string CCAddress, string BCCAddress,
        string Subject, string Content, bool UseHTML, bool AutoSend, string Attachment) {
      return ComObject.NewEmail(ref Template, ref ToAddress, ref CCAddress, ref BCCAddress, ref Subject,
          ref Content, ref UseHTML, ref AutoSend, ref Attachment);
    }

    /// <summary>Shows the current item in Outlook's own window.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    public bool OpenItem(string EntryType) {
      return ComObject.OpenItem(EntryType);
    }

    /// <summary>Takes the items of the entry type's default folder, those that a condition names, for a walk.</summary>
    /// <param name="EntryType">The kind of item, or Sent Items, or Deleted and a kind.</param>
    /// <param name="Condition">A condition in Outlook's own form, as [Complete] = False; an empty text takes
    /// all.</param>
    public bool InitItems(string EntryType, string Condition) {
      return ComObject.InitItems(EntryType, Condition);
    }

    /// <summary>Makes a new item, unsaved, the current one.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    public bool CreateItem(string EntryType) {
      return ComObject.CreateItem(EntryType);
    }

    /// <summary>Deletes the current item.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    public bool DeleteItem(string EntryType) {
      return ComObject.DeleteItem(EntryType);
    }

    /// <summary>Makes the item with a certain identifier the current one.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    /// <param name="EntryId">The identifier: what the key EntryID reads.</param>
    public bool GetItem(string EntryType, string EntryId) {
      return ComObject.GetItem(EntryType, EntryId);
    }

    /// <summary>Makes one day's occurrence of the current appointment the current one.</summary>
    /// <param name="EntryDate">The day of the occurrence, with the time at which it begins, in the user's own order or
    /// as year-month-day.</param>
    public bool GetAppointmentInstance(string EntryDate) {
      return ComObject.GetAppointmentInstance(EntryDate);
    }

    /// <summary>Saves the current item.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    public bool SaveItem(string EntryType) {
      return ComObject.SaveItem(EntryType);
    }

    /// <summary>Writes the current item to a file, in Outlook's own format.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    /// <param name="FileName">Path of the file to write.</param>
    public bool SaveItemToFile(string EntryType, string FileName) {
      return ComObject.SaveItemToFile(EntryType, FileName);
    }

    /// <summary>Writes an attachment of the current mail to a file.</summary>
    /// <param name="AttachmentNo">The attachment, counted from 1 among those that the text does not name.</param>
    /// <param name="FileName">Path of the file to write.</param>
    public bool SaveEmailAttachment(short AttachmentNo, string FileName) {
      return ComObject.SaveEmailAttachment(AttachmentNo, FileName);
    }

    /// <summary>Counts the items that InitItems took.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    public short GetItemCount(string EntryType) {
      return ComObject.GetItemCount(EntryType);
    }

    /// <summary>Makes the first of the items that InitItems took the current one.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    public bool GetFirstItem(string EntryType) {
      return ComObject.GetFirstItem(EntryType);
    }

    /// <summary>Makes the next of the items that InitItems took the current one.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    public bool GetNextItem(string EntryType) {
      return ComObject.GetNextItem(EntryType);
    }

    /// <summary>Reads a property of the current appointment, as text.</summary>
    /// <param name="AppProp">The key of a property of the appointment.</param>
    public string GetAppointmentProperty(string AppProp) {
      return ComObject.GetAppointmentProperty(AppProp);
    }

    /// <summary>Writes a property of the current appointment, from text.</summary>
    /// <param name="AppProp">The key of a property of the appointment.</param>
    /// <param name="PropertyValue">The value as text.</param>
    public bool SetAppointmentProperty(string AppProp, string PropertyValue) {
      return ComObject.SetAppointmentProperty(AppProp, PropertyValue);
    }

    /// <summary>Takes the current appointment's recurrence pattern, for the members that read and write it.</summary>
    public bool GetRecurrencePattern() {
      return ComObject.GetRecurrencePattern();
    }

    /// <summary>Makes the current appointment a single one.</summary>
    public bool ClearRecurrencePattern() {
      return ComObject.ClearRecurrencePattern();
    }

    /// <summary>Reads a property of the recurrence pattern, as text.</summary>
    /// <param name="RecurProp">The key of a property of the recurrence pattern.</param>
    public string GetRecurrenceProperty(string RecurProp) {
      return ComObject.GetRecurrenceProperty(RecurProp);
    }

    /// <summary>Writes a property of the recurrence pattern, from text; always answers an empty text.</summary>
    /// <param name="RecurProp">The key of a property of the recurrence pattern.</param>
    /// <param name="PropertyValue">The value as text.</param>
    public string SetRecurrenceProperty(string RecurProp, string PropertyValue) {
      return ComObject.SetRecurrenceProperty(RecurProp, PropertyValue);
    }

    /// <summary>Reads a property of one exception of the recurrence pattern, as text.</summary>
    /// <param name="Instance">The exception, counted from 1.</param>
    /// <param name="ExceptProp">The key of a property of the exception.</param>
    public string GetExceptionProperty(short Instance, string ExceptProp) {
      return ComObject.GetExceptionProperty(Instance, ExceptProp);
    }

    /// <summary>Reads a property of the current contact, as text.</summary>
    /// <param name="ContactProp">The key of a property of the contact.</param>
    public string GetContactProperty(string ContactProp) {
      return ComObject.GetContactProperty(ContactProp);
    }

    /// <summary>Writes a property of the current contact, from text.</summary>
    /// <param name="ContactProp">The key of a property of the contact.</param>
    /// <param name="PropertyValue">The value as text.</param>
    public bool SetContactProperty(string ContactProp, string PropertyValue) {
      return ComObject.SetContactProperty(ContactProp, PropertyValue);
    }

    /// <summary>Reads a property of the current task, as text.</summary>
    /// <param name="TaskProp">The key of a property of the task.</param>
    public string GetTaskProperty(string TaskProp) {
      return ComObject.GetTaskProperty(TaskProp);
    }

    /// <summary>Writes a property of the current task, from text.</summary>
    /// <param name="TaskProperty">The key of a property of the task.</param>
    /// <param name="PropertyValue">The value as text.</param>
    public bool SetTaskProperty(string TaskProperty, string PropertyValue) {
      return ComObject.SetTaskProperty(TaskProperty, PropertyValue);
    }

    /// <summary>Reads a property of the current mail, as text.</summary>
    /// <param name="EmailProp">The key of a property of the mail.</param>
    public string GetEmailProperty(string EmailProp) {
      return ComObject.GetEmailProperty(EmailProp);
    }

    /// <summary>Reads a property of the current note, as text.</summary>
    /// <param name="NoteProperty">The key of a property of the note.</param>
    public string GetNoteProperty(string NoteProperty) {
      return ComObject.GetNoteProperty(NoteProperty);
    }

    /// <summary>Writes a property of the current note, from text.</summary>
    /// <param name="NoteProperty">The key of a property of the note.</param>
    /// <param name="PropertyValue">The value as text.</param>
    public bool SetNoteProperty(string NoteProperty, string PropertyValue) {
      return ComObject.SetNoteProperty(NoteProperty, PropertyValue);
    }

    /// <summary>Reads the number of the last recorded failure, 0 before any.</summary>
    public short GetLastErrorNumber() {
      return ComObject.GetLastErrorNumber();
    }

    /// <summary>Reads the text of the last recorded failure, empty before any.</summary>
    public string GetLastErrorDescription() {
      return ComObject.GetLastErrorDescription();
    }
  }

  /// <summary>Drives an office suite with the members of ZORBWord: opens, reads and searches documents.</summary>
  public sealed class OpenWriter : Control<IOpenWriter> {
    /// <summary>Creates the control.</summary>
    public OpenWriter() : base(Create("B0584FF2-C51E-4844-94E6-AAC137F18002")) {}
    /// <summary>Takes one that exists, such as a form's.</summary>
    public OpenWriter(IOpenWriter comObject) : base(comObject) {}

    /// <summary>Starts the office suite and holds its service manager and its desktop.</summary>
    /// <param name="Template">True also asks for a window in a certain place, which fails; False does nothing
    /// more.</param>
    public bool Start(bool Template = false) {
      return ComObject.Start(ref Template) != 0;
    }

    /// <summary>Does nothing: the suite decides itself what it shows.</summary>
    /// <param name="IsVisible">Has no effect.</param>
    public bool SetVisible(bool IsVisible) {
      return ComObject.SetVisible(ref IsVisible) != 0;
    }

    /// <summary>Does nothing: the suite decides itself what is in front.</summary>
    /// <param name="IsActive">Has no effect.</param>
    public bool SetActive(bool IsActive) {
      return ComObject.SetActive(ref IsActive) != 0;
    }

    /// <summary>Loads a document into the suite and makes it the active one.</summary>
    /// <param name="Doc">Path of the document.</param>
    public bool OpenDoc(string Doc) {
      return ComObject.OpenDoc(ref Doc) != 0;
    }

    /// <summary>Loads a new document from a template into the suite, and makes it the active one.</summary>
    /// <param name="Doc">Path of the template; an empty text means the normal one.</param>
    public bool CreateDoc(string Doc = "") {
      return ComObject.CreateDoc(ref Doc) != 0;
    }

    /// <summary>Types a text at the selection.</summary>
    /// <param name="Text">The text to type.</param>
    public bool SendText(string Text) {
      return ComObject.SendText(ref Text) != 0;
    }

    /// <summary>Reads the document's whole text.</summary>
    /// <param name="StartPos">Has no effect.</param>
    /// <param name="EndPos">Has no effect.</param>
    public string ReadText(int StartPos, int EndPos) {
      return ComObject.ReadText(ref StartPos, ref EndPos);
    }

    /// <summary>Does nothing: the suite redraws as it likes.</summary>
    /// <param name="Update">Has no effect.</param>
    public bool SetScreenUpdating(bool Update) {
      return ComObject.SetScreenUpdating(ref Update) != 0;
    }

    /// <summary>Shows the text to find in a box, and tells whether the document holds it.</summary>
    /// <param name="SearchString">The text to find.</param>
    /// <param name="WrapAction">Has no effect.</param>
    /// <param name="SearchForward">Has no effect.</param>
    /// <param name="BeginAtTop">Has no effect.</param>
    /// <param name="MatchCase">Has no effect.</param>
    /// <param name="MatchWholeWord">Has no effect.</param>
    /// <param name="MatchWildcards">True reads the text that is searched for as a regular expression.</param>
    /// <param name="MatchSoundsLike">Has no effect.</param>
    /// <param name="MatchAllWordForms">Has no effect.</param>
    public bool Search(string SearchString, WdFindWrap WrapAction = WdFindWrap.wdFindContinue,
        bool SearchForward = true, bool BeginAtTop = false, bool MatchCase = false,
        bool MatchWholeWord = false, bool MatchWildcards = false, bool MatchSoundsLike = false,
        bool MatchAllWordForms = false) {
      return ComObject.Search(ref SearchString, ref WrapAction, ref SearchForward, ref BeginAtTop,
          ref MatchCase, ref MatchWholeWord, ref MatchWildcards, ref MatchSoundsLike,
          ref MatchAllWordForms) != 0;
    }

    /// <summary>Tells whether the selection is in a table.</summary>
    public bool InTable() {
      return ComObject.InTable() != 0;
    }

    /// <summary>Selects the table row that the selection is in.</summary>
    public void SelectRow() {
      ComObject.SelectRow();
    }

    /// <summary>Finds a text from the selection on and replaces it.</summary>
    /// <param name="SearchString">The text to find.</param>
    /// <param name="ReplaceString">The text to put in its place.</param>
    /// <param name="WrapAction">What to do at the end of the text: stop (0), go on at its other end (1), or ask
    /// (2).</param>
    /// <param name="SearchForward">True searches towards the end, False towards the start.</param>
    /// <param name="BeginAtTop">Has no effect.</param>
    /// <param name="MatchCase">True tells capital letters from small ones.</param>
    /// <param name="MatchWholeWord">True finds whole words only.</param>
    /// <param name="MatchWildcards">True reads the text that is searched for as a pattern.</param>
    /// <param name="MatchSoundsLike">True also finds words that sound alike.</param>
    /// <param name="MatchAllWordForms">True also finds the other forms of the words.</param>
    /// <param name="ReplaceOption">How many to replace: none (0), the first one (1), or all (2).</param>
    public bool Replace(string SearchString, string ReplaceString,
        WdFindWrap WrapAction = WdFindWrap.wdFindContinue, bool SearchForward = true, bool BeginAtTop = true,
        bool MatchCase = false, bool MatchWholeWord = false, bool MatchWildcards = false,
        bool MatchSoundsLike = false, bool MatchAllWordForms = false,
        WdReplace ReplaceOption = WdReplace.wdReplaceOne) {
      return ComObject.Replace(ref SearchString, ref ReplaceString, ref WrapAction, ref SearchForward,
          ref BeginAtTop, ref MatchCase, ref MatchWholeWord, ref MatchWildcards, ref MatchSoundsLike,
          ref MatchAllWordForms, ref ReplaceOption) != 0;
    }

    /// <summary>Counts the sections of the active document.</summary>
    public int NumberOfSections() {
      return ComObject.NumberOfSections();
    }

    /// <summary>Reads the text of a header or footer, or a part of it.</summary>
    /// <param name="Section">The section, counted from 1.</param>
    /// <param name="IsHeader">True means the header, False the footer.</param>
    /// <param name="HeaderFooterType">Of which pages: all others (1), the first (2), or even ones (3).</param>
    /// <param name="StartPos">First character, counted from 0; both positions 0 mean the whole text.</param>
    /// <param name="EndPos">Character after the last one; 0 means the end.</param>
    public string ReadHeaderFooterText(int Section, bool IsHeader, WdHeaderFooterIndex HeaderFooterType,
        int StartPos, int EndPos) {
      return ComObject.ReadHeaderFooterText(ref Section, ref IsHeader, ref HeaderFooterType, ref StartPos,
          ref EndPos);
    }

    /// <summary>Copies headers, footers and the normal font from one document to another, and saves that.</summary>
    /// <param name="SourceTemplate">Path of the document to copy from; an empty text means the normal template.</param>
    /// <param name="DestTemplate">Path of the document to change; an empty text means the normal template.</param>
    /// <param name="ApplyHeader">True copies the headers.</param>
    /// <param name="ApplyFooter">True copies the footers.</param>
    /// <param name="ApplyFont">True copies the normal style's font.</param>
    public bool SetHeaderFooter(string SourceTemplate, string DestTemplate, byte ApplyHeader,
        byte ApplyFooter, byte ApplyFont) {
      return ComObject.SetHeaderFooter(ref SourceTemplate, ref DestTemplate, ref ApplyHeader, ref ApplyFooter,
          ref ApplyFont) != 0;
    }

    /// <summary>Finds a text in a header or footer and replaces it.</summary>
    /// <param name="Section">The section, counted from 1.</param>
    /// <param name="IsHeader">True means the header, False the footer.</param>
    /// <param name="HeaderFooterType">Of which pages: all others (1), the first (2), or even ones (3).</param>
    /// <param name="SearchString">The text to find.</param>
    /// <param name="ReplaceString">The text to put in its place.</param>
    /// <param name="WrapAction">What to do at the end of the text: stop (0), go on at its other end (1), or ask
    /// (2).</param>
    /// <param name="SearchForward">True searches towards the end, False towards the start.</param>
    /// <param name="BeginAtTop">Has no effect.</param>
    /// <param name="MatchCase">True tells capital letters from small ones.</param>
    /// <param name="MatchWholeWord">True finds whole words only.</param>
    /// <param name="MatchWildcards">True reads the text that is searched for as a pattern.</param>
    /// <param name="MatchSoundsLike">True also finds words that sound alike.</param>
    /// <param name="MatchAllWordForms">True also finds the other forms of the words.</param>
    /// <param name="ReplaceOption">How many to replace: none (0), the first one (1), or all (2).</param>
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

    /// <summary>Counts the cells of the selection's first table row.</summary>
    public int CellCount() {
      return ComObject.CellCount();
    }

    /// <summary>Reads a cell of the selection's first table row.</summary>
    /// <param name="CellId">The cell, counted from 1.</param>
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

    /// <summary>Reads the selected text.</summary>
    public string SelectionText() {
      return ComObject.SelectionText();
    }

    /// <summary>Pastes the clipboard at the selection.</summary>
    public void Paste() {
      ComObject.Paste();
    }

    /// <summary>Moves the insertion point to the left.</summary>
    /// <param name="Units">How many units to move.</param>
    /// <param name="Unit">By what to move: a WdUnits number.</param>
    /// <param name="Selecting">Whether to extend the selection (1) or only to move (0).</param>
    public void CursorLeft(short Units, WdUnits Unit = WdUnits.wdCharacter,
        WdMovementType Selecting = WdMovementType.wdMove) {
      object given = (int)Selecting;
      ComObject.CursorLeft(ref Units, ref Unit, ref given);
    }

    /// <summary>Moves the insertion point to the right.</summary>
    /// <param name="Units">How many units to move.</param>
    /// <param name="Unit">By what to move: a WdUnits number.</param>
    /// <param name="Selecting">Whether to extend the selection (1) or only to move (0).</param>
    public void CursorRight(short Units, WdUnits Unit = WdUnits.wdCharacter,
        WdMovementType Selecting = WdMovementType.wdMove) {
      object given = (int)Selecting;
      ComObject.CursorRight(ref Units, ref Unit, ref given);
    }

    /// <summary>Moves the insertion point to the start of its paragraph.</summary>
    public void CursorStartOfParagraph() {
      ComObject.CursorStartOfParagraph();
    }

    /// <summary>Moves the insertion point to the start of its table cell.</summary>
    public void CursorStartOfCell() {
      ComObject.CursorStartOfCell();
    }

    /// <summary>Moves the insertion point to the end of its table cell.</summary>
    public void CursorEndOfCell() {
      ComObject.CursorEndOfCell();
    }

    /// <summary>Moves the insertion point to the end of its paragraph.</summary>
    public void CursorEndOfParagraph() {
      ComObject.CursorEndOfParagraph();
    }

    /// <summary>Collapses the selection and moves it.</summary>
    /// <param name="Unit">By what to move: a WdUnits number.</param>
    /// <param name="Units">How many units to move; a negative number moves back.</param>
    public void Move(WdUnits Unit, short Units) {
      ComObject.Move(ref Unit, ref Units);
    }

    /// <summary>Updates the document's styles and parts it from its template.</summary>
    public void FinaliseDoc() {
      ComObject.FinaliseDoc();
    }

    /// <summary>Saves the document, under a new name where one is given.</summary>
    /// <param name="Docname">Path to save as; an empty text keeps the name.</param>
    public void SaveDoc(string Docname = "") {
      ComObject.SaveDoc(ref Docname);
    }

    /// <summary>Prints the document to the first printer whose name has PDF in it.</summary>
    public bool SaveDocAsPDF() {
      return ComObject.SaveDocAsPDF();
    }

    /// <summary>Closes the document.</summary>
    /// <param name="SaveOption">What to do with changes: drop them (0), save them (-1), or ask (-2).</param>
    public void CloseDoc(WdSaveOptions SaveOption = WdSaveOptions.wdDoNotSaveChanges) {
      ComObject.CloseDoc(ref SaveOption);
    }

    /// <summary>Quits the application.</summary>
    /// <param name="Force">True quits also while documents are open.</param>
    public void StopWord(bool Force = false) {
      ComObject.StopWord(ref Force);
    }

    /// <summary>Prints the document.</summary>
    /// <param name="Copies">How many copies.</param>
    /// <param name="Background">Has no effect.</param>
    public void PrintDoc(short Copies, bool Background = false) {
      ComObject.PrintDoc(ref Copies, ref Background);
    }

    /// <summary>Counts the documents that are being printed or saved in the background.</summary>
    public short IsPrinting() {
      return ComObject.IsPrinting();
    }

    /// <summary>Reads one of the default folders.</summary>
    /// <param name="PathId">Which folder: a WdDefaultFilePath number.</param>
    public string GetDefaultPaths(WdDefaultFilePath PathId) {
      return ComObject.GetDefaultPaths(ref PathId);
    }

    /// <summary>Moves the insertion point to a line.</summary>
    /// <param name="LineNo">The line, counted from 1.</param>
    public bool GotoLine(short LineNo) {
      return ComObject.GotoLine(ref LineNo);
    }

    /// <summary>Reads the number of the last recorded failure: always 0.</summary>
    public int GetLastErrorNumber() {
      return ComObject.GetLastErrorNumber();
    }

    /// <summary>Reads the text of the last recorded failure: always empty.</summary>
    public string GetLastErrorDescription() {
      return ComObject.GetLastErrorDescription();
    }
  }
}
