{ ZORBOffice for Delphi (2009 and later) and Free Pascal: the controls' interfaces, a record a control that is called with
  plain values, and under Delphi the controls for a form. Written by the build from the tables of the library; not to be edited.

    Library_ := TUnregisteredLibrary.Create('C:\Tools\ZORBOffice.manifest');  // not needed where it is registered
    Word := TZORBWord.Create;
    if Word.Start and Word.OpenDoc('C:\letters\offer.docx') then Text := Word.ReadText(0, 0);

  What fails inside a member is told by its result, often after a message box; what reaches the host, and a control that cannot
  be created, is raised as EOleException or EOleSysError. A control belongs to the thread that creates it, where COM has been
  initialised: the unit ComObj does that for the main thread of a program. A record lets go of its control by itself.

  On a form of Lazarus a TActiveXContainer holds the control:
    Container.ComServer := Word.Control; Container.Active := True; }
unit ZORBOffice;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}

interface

uses
  {$IFNDEF FPC}Classes, {$IF CompilerVersion >= 23}Vcl.OleCtrls{$ELSE}OleCtrls{$IFEND},{$ENDIF}
  Windows, ActiveX, ComObj, SysUtils;

const
  LIBID_ZORBOffice50: TGUID = '{8698DD46-FA38-4FD0-8336-FA997FB10D92}';
  CLASS_ZORBWord: TGUID = '{495CDEB3-7F1E-4663-9DB2-E33437412CE0}';
  CLASS_ZORBOutlook: TGUID = '{A04BAF5A-D329-4C3A-A012-CFFA919D559F}';
  CLASS_OpenWriter: TGUID = '{B0584FF2-C51E-4844-94E6-AAC137F18002}';

  { WdFindWrap: What a search does when it reaches the end of the text. }
  wdFindStop = 0;  // It ends.
  wdFindContinue = 1;  // It goes on from the other end.
  wdFindAsk = 2;  // It asks the user.

  { WdReplace: How much is replaced. }
  wdReplaceNone = 0;  // Nothing.
  wdReplaceOne = 1;  // The first occurrence.
  wdReplaceAll = 2;  // Every occurrence.

  { WdHeaderFooterIndex: Which of a section's headers or footers is meant. }
  wdHeaderFooterPrimary = 1;  // The one of all pages that have none of their own.
  wdHeaderFooterFirstPage = 2;  // The first page's.
  wdHeaderFooterEvenPages = 3;  // The even pages'.

  { WdUnits: By what the insertion point moves. }
  wdCharacter = 1;  // Characters.
  wdWord = 2;  // Words.
  wdSentence = 3;  // Sentences.
  wdParagraph = 4;  // Paragraphs.
  wdLine = 5;  // Lines.
  wdStory = 6;  // Stories: the main text, a header and so on.
  wdScreen = 7;  // Screens.
  wdSection = 8;  // Sections.
  wdColumn = 9;  // Columns.
  wdRow = 10;  // Rows.
  wdWindow = 11;  // Windows.
  wdCell = 12;  // Cells.
  wdCharacterFormatting = 13;  // Runs of one character formatting.
  wdParagraphFormatting = 14;  // Runs of one paragraph formatting.
  wdTable = 15;  // Tables.
  wdItem = 16;  // The selected item.

  { WdMovementType: Whether a movement selects. }
  wdMove = 0;  // The selection becomes an insertion point and moves.
  wdExtend = 1;  // The selection is extended.

  { WdSaveOptions: What becomes of changes when a document is closed. }
  wdDoNotSaveChanges = 0;  // They are lost.
  wdSaveChanges = -1;  // They are saved.
  wdPromptToSaveChanges = -2;  // The user is asked.

  { WdDefaultFilePath: One of the word processor's default folders. }
  wdDocumentsPath = 0;  // Documents.
  wdPicturesPath = 1;  // Pictures.
  wdUserTemplatesPath = 2;  // The user's templates.
  wdWorkgroupTemplatesPath = 3;  // The workgroup's templates.
  wdUserOptionsPath = 4;  // The user's options.
  wdAutoRecoverPath = 5;  // Files for recovery.
  wdToolsPath = 6;  // Tools.
  wdTutorialPath = 7;  // The tutorial.
  wdStartupPath = 8;  // What is loaded at the start.
  wdProgramPath = 9;  // The program.
  wdGraphicsFiltersPath = 10;  // Filters for pictures.
  wdTextConvertersPath = 11;  // Converters of text.
  wdProofingToolsPath = 12;  // Proofing tools.
  wdTempFilePath = 13;  // Temporary files.
  wdCurrentFolderPath = 14;  // The current folder.
  wdStyleGalleryPath = 15;  // The style gallery.
  wdBorderArtPath = 19;  // Art for borders.

  { OlImportance: Values of `Importance`, and of a task's `Priority`. }
  olImportanceLow = 0;  // Low.
  olImportanceNormal = 1;  // Normal.
  olImportanceHigh = 2;  // High.

  { OlSensitivity: Values of `Sensitivity`. Only olPrivate can be written; any other becomes olNormal. }
  olNormal = 0;  // Normal.
  olPersonal = 1;  // Personal.
  olPrivate = 2;  // Private.
  olConfidential = 3;  // Confidential.

  { OlRecurrenceType: Values of `RecurrenceType`. }
  olRecursDaily = 0;  // Every so many days.
  olRecursWeekly = 1;  // On days of the week.
  olRecursMonthly = 2;  // On a day of the month.
  olRecursMonthNth = 3;  // On, say, the second Tuesday of the month: see `Instance`.
  olRecursYearly = 5;  // On a day of the year.
  olRecursYearNth = 6;  // On, say, the second Tuesday of May: see `Instance`.

  { OlDaysOfWeek: Values of `DayOfWeekMask`: one of them, or the sum of several. }
  olSunday = 1;  // Sunday.
  olMonday = 2;  // Monday.
  olTuesday = 4;  // Tuesday.
  olWednesday = 8;  // Wednesday.
  olThursday = 16;  // Thursday.
  olFriday = 32;  // Friday.
  olSaturday = 64;  // Saturday.

  { OlMeetingStatus: Values of `MeetingStatus`. }
  olNonMeeting = 0;  // An appointment without attendees.
  olMeeting = 1;  // A meeting.
  olMeetingReceived = 3;  // A meeting to which one was invited.
  olMeetingCanceled = 5;  // A cancelled meeting.
  olMeetingReceivedAndCanceled = 7;  // A cancelled meeting that is still in the calendar.

  { OlRecurrenceState: Values of `RecurrenceState`. }
  olApptNotRecurring = 0;  // A single appointment.
  olApptMaster = 1;  // A series.
  olApptOccurrence = 2;  // One occurrence of a series.
  olApptException = 3;  // A changed occurrence of a series.

  { OlMailingAddress: Values of `SelectedMailingAddress`. }
  olNone = 0;  // None.
  olHome = 1;  // The home address.
  olBusiness = 2;  // The business address.
  olOther = 3;  // The other address.

  { OlDownloadState: Values of `DownloadState`. }
  olHeaderOnly = 0;  // Only the header is there.
  olFullItem = 1;  // All of the item is there.

  { OlRemoteStatus: Values of `MarkForDownload`. }
  olRemoteStatusNone = 0;  // None was set.
  olUnMarked = 1;  // Not marked.
  olMarkedForDownload = 2;  // Marked to be downloaded.
  olMarkedForCopy = 3;  // Marked to be copied.
  olMarkedForDelete = 4;  // Marked to be deleted.

  { Kinds of items. InitItems knows six more words: `Sent Items`, and `Deleted ` in front of a kind. }
  EntryTypeAppointment = 'Appointment';  // The calendar's.
  EntryTypeContact = 'Contact';  // The contacts'.
  EntryTypeNote = 'Note';  // The notes'.
  EntryTypeTask = 'Task';  // The tasks'.
  EntryTypeEmail = 'Email';  // The inbox's.
  EntryTypeSentItems = 'Sent Items';  // Sent mails; for InitItems only.
  EntryTypeDeletedAppointment = 'Deleted Appointment';  // For InitItems only.
  EntryTypeDeletedContact = 'Deleted Contact';  // For InitItems only.
  EntryTypeDeletedNote = 'Deleted Note';  // For InitItems only.
  EntryTypeDeletedTask = 'Deleted Task';  // For InitItems only.
  EntryTypeDeletedEmail = 'Deleted Email';  // For InitItems only.

  { Values of a task's `Status`. }
  TaskStatusNotStarted = 'Not Started';  // olTaskNotStarted (0).
  TaskStatusInProgress = 'In Progress';  // olTaskInProgress (1).
  TaskStatusCompleted = 'Completed';  // olTaskComplete (2).
  TaskStatusWaiting = 'Waiting on someone else';  // olTaskWaiting (3).
  TaskStatusDeferred = 'Deferred';  // olTaskDeferred (4).

  { What GetExceptionProperty does beside reading. }
  ExceptionActionGetAppointment = 'Get Appointment';  // Makes the exception's appointment the current one.

  { Keys of GetAppointmentProperty and SetAppointmentProperty, for the current appointment. }
  AppointmentKeyAllDayEvent = 'AllDayEvent';  // Whether the appointment takes whole days.
  AppointmentKeyBilling = 'Billing';  // Billing information.
  AppointmentKeyBody = 'Body';  // The appointment's text.
  AppointmentKeyCompanies = 'Companies';  // The companies that have to do with the appointment.
  AppointmentKeyCreatedDate = 'CreatedDate';  // The day on which the item was made.
  AppointmentKeyCreatedTime = 'CreatedTime';  // The time of day at which the item was made.
  AppointmentKeyDuration = 'Duration';  // How long it takes, in minutes.
  AppointmentKeyEnd = 'End';  // When it ends.
  AppointmentKeyEndDate = 'EndDate';  // The day on which it ends.
  AppointmentKeyEndTime = 'EndTime';  // The time of day at which it ends.
  AppointmentKeyEntryID = 'EntryID';  // The item's identifier, for GetItem.
  AppointmentKeyFolder = 'Folder';  // The name of the folder that the item is in.
  AppointmentKeyIsRecurring = 'IsRecurring';  // Whether the appointment is a series.
  AppointmentKeyImportance = 'Importance';  // How important it is: low (0), normal (1) or high (2).
  AppointmentKeyModifiedDate = 'ModifiedDate';  // The day on which the item was last changed.
  AppointmentKeyModifiedTime = 'ModifiedTime';  // The time of day at which the item was last changed.
  AppointmentKeyLocation = 'Location';  // The place.
  // Whether the appointment is a meeting, and in which state: an OlMeetingStatus number.
  AppointmentKeyMeetingStatus = 'MeetingStatus';
  AppointmentKeyMessageClass = 'MessageClass';  // The item's message class, as IPM.Appointment.
  AppointmentKeyMileage = 'Mileage';  // Miles travelled, as a text of the user's own.
  // Whether the item is a single appointment (0), a series (1), an occurrence (2) or an exception (3).
  AppointmentKeyRecurrenceState = 'RecurrenceState';
  // How many minutes before the start the reminder comes.
  AppointmentKeyReminderMinutesBeforeStart = 'ReminderMinutesBeforeStart';
  AppointmentKeyReminderSet = 'ReminderSet';  // Whether there is a reminder.
  // Who is to see it: everyone (0), or it is personal (1), private (2) or confidential (3).
  AppointmentKeySensitivity = 'Sensitivity';
  AppointmentKeyStart = 'Start';  // When it begins.
  AppointmentKeyStartDate = 'StartDate';  // The day on which it begins.
  AppointmentKeyStartTime = 'StartTime';  // The time of day at which it begins.
  AppointmentKeySubject = 'Subject';  // The subject.

  { Keys of GetRecurrenceProperty and SetRecurrenceProperty, for the recurrence pattern. }
  RecurrenceKeyClass = 'Class';  // The pattern's class: an OlObjectClass number, 28.
  RecurrenceKeyDayOfMonth = 'DayOfMonth';  // The day of the month.
  // The days of the week, added up: Sunday 1, Monday 2, Tuesday 4, Wednesday 8, Thursday 16, Friday 32, Saturday 64.
  RecurrenceKeyDayOfWeekMask = 'DayOfWeekMask';
  RecurrenceKeyDuration = 'Duration';  // How long an occurrence takes, in minutes.
  RecurrenceKeyEndTime = 'EndTime';  // The time of day at which an occurrence ends.
  RecurrenceKeyInterval = 'Interval';  // Every how many days, weeks, months or years it recurs.
  RecurrenceKeyInstance = 'Instance';  // Which such day of the month: first (1) to fourth (4), or last (5).
  RecurrenceKeyMonthOfYear = 'MonthOfYear';  // The month, 1 to 12.
  RecurrenceKeyNoEndDate = 'NoEndDate';  // Whether the series has no end.
  RecurrenceKeyOccurrences = 'Occurrences';  // How many occurrences there are.
  RecurrenceKeyPatternEndDate = 'PatternEndDate';  // The day on which the series ends.
  // The day on which the series begins; it cannot be written. Writes the day on which the series ends, as
  // PatternEndDate does: the start stays.
  RecurrenceKeyPatternStartDate = 'PatternStartDate';
  // How it recurs: daily (0), weekly (1), monthly (2), monthly by weekday (3), yearly (5) or yearly by weekday (6).
  RecurrenceKeyRecurrenceType = 'RecurrenceType';
  RecurrenceKeyStartTime = 'StartTime';  // The time of day at which an occurrence begins.
  RecurrenceKeyExceptionCount = 'Exception Count';  // How many exceptions the series has.
  RecurrenceKeyExceptionList = 'Exception List';  // All exceptions in one text.

  { Keys of GetExceptionProperty, for one exception of the recurrence pattern. }
  ExceptionKeyOriginalDate = 'OriginalDate';  // The day on which the occurrence would have been.
  ExceptionKeyDeleted = 'Deleted';  // Whether the occurrence was deleted; otherwise it was changed.

  { Keys of GetContactProperty and SetContactProperty, for the current contact. }
  ContactKeyAssistantTelephoneNumber = 'AssistantTelephoneNumber';  // Telephone number of the assistant.
  ContactKeyBody = 'Body';  // Notes on the contact.
  ContactKeyBusiness2TelephoneNumber = 'Business2TelephoneNumber';  // Second telephone number at work.
  ContactKeyBusinessAddress = 'BusinessAddress';  // Address at work, whole.
  ContactKeyBusinessAddressCity = 'BusinessAddressCity';  // City of the address at work.
  ContactKeyBusinessAddressCountry = 'BusinessAddressCountry';  // Country of the address at work.
  ContactKeyBusinessAddressPostalCode = 'BusinessAddressPostalCode';  // Postal code of the address at work.
  ContactKeyBusinessAddressState = 'BusinessAddressState';  // State of the address at work.
  ContactKeyBusinessAddressStreet = 'BusinessAddressStreet';  // Street of the address at work.
  ContactKeyBusinessFaxNumber = 'BusinessFaxNumber';  // Fax number at work.
  ContactKeyBusinesshomePage = 'BusinesshomePage';  // Web page of the business; the key has a small h.
  ContactKeyBusinessTelephoneNumber = 'BusinessTelephoneNumber';  // Telephone number at work.
  ContactKeyCarTelephoneNumber = 'CarTelephoneNumber';  // Telephone number in the car.
  ContactKeyCompanyMainTelephoneNumber = 'CompanyMainTelephoneNumber';  // Main telephone number of the company.
  ContactKeyCompanyName = 'CompanyName';  // Name of the company.
  ContactKeyEmail1Address = 'Email1Address';  // First mail address.
  ContactKeyEmail2Address = 'Email2Address';  // Second mail address.
  ContactKeyEmail3Address = 'Email3Address';  // Third mail address.
  ContactKeyFirstName = 'FirstName';  // First name.
  ContactKeyFullName = 'FullName';  // Whole name.
  ContactKeyGovernmentIDNumber = 'GovernmentIDNumber';  // Number of an identity document.
  ContactKeyHome2TelephoneNumber = 'Home2TelephoneNumber';  // Second telephone number at home.
  ContactKeyHomeAddress = 'HomeAddress';  // Address at home, whole.
  ContactKeyHomeAddressCity = 'HomeAddressCity';  // City of the address at home.
  ContactKeyHomeAddressCountry = 'HomeAddressCountry';  // Country of the address at home.
  ContactKeyHomeAddressPostalCode = 'HomeAddressPostalCode';  // Postal code of the address at home.
  ContactKeyHomeAddressState = 'HomeAddressState';  // State of the address at home.
  ContactKeyHomeAddressStreet = 'HomeAddressStreet';  // Street of the address at home.
  ContactKeyHomeFaxNumber = 'HomeFaxNumber';  // Fax number at home.
  ContactKeyHomeTelephoneNumber = 'HomeTelephoneNumber';  // Telephone number at home.
  ContactKeyJobTitle = 'JobTitle';  // Job title.
  ContactKeyMailingAddress = 'MailingAddress';  // The address that mail goes to, whole.
  ContactKeyMailingAddressCity = 'MailingAddressCity';  // City of the address that mail goes to.
  ContactKeyMailingAddressCountry = 'MailingAddressCountry';  // Country of the address that mail goes to.
  ContactKeyMailingAddressPostalCode = 'MailingAddressPostalCode';  // Postal code of the address that mail goes to.
  ContactKeyMailingAddressState = 'MailingAddressState';  // State of the address that mail goes to.
  ContactKeyMailingAddressStreet = 'MailingAddressStreet';  // Street of the address that mail goes to.
  ContactKeyMobileTelephoneNumber = 'MobileTelephoneNumber';  // Number of the mobile telephone.
  ContactKeyNickname = 'Nickname';  // Nickname.
  ContactKeyOtherAddress = 'OtherAddress';  // Another address, whole.
  ContactKeyOtherAddressCity = 'OtherAddressCity';  // City of the other address.
  ContactKeyOtherAddressCountry = 'OtherAddressCountry';  // Country of the other address.
  ContactKeyOtherAddressPostalCode = 'OtherAddressPostalCode';  // Postal code of the other address.
  ContactKeyOtherAddressState = 'OtherAddressState';  // State of the other address.
  ContactKeyOtherAddressStreet = 'OtherAddressStreet';  // Street of the other address.
  ContactKeyOtherFaxNumber = 'OtherFaxNumber';  // Another fax number.
  ContactKeyOtherTelephoneNumber = 'OtherTelephoneNumber';  // Another telephone number.
  ContactKeyPrimaryTelephoneNumber = 'PrimaryTelephoneNumber';  // The telephone number to try first.
  ContactKeyRadioTelephoneNumber = 'RadioTelephoneNumber';  // Number of the radio telephone.
  ContactKeyTitle = 'Title';  // Title before the name, as Dr.
  ContactKeyWebPage = 'WebPage';  // Web page.
  ContactKeyEntryID = 'EntryID';  // The item's identifier, for GetItem.
  ContactKeyFolder = 'Folder';  // The name of the folder that the item is in.
  ContactKeyModifiedDate = 'ModifiedDate';  // The day on which the item was last changed.
  ContactKeyModifiedTime = 'ModifiedTime';  // The time of day at which the item was last changed.
  // Which address mail goes to: none (0), home (1), work (2) or the other (3).
  ContactKeySelectedMailingAddress = 'SelectedMailingAddress';
  // Nine telephone numbers in one text, without those of mobile and radio telephones.
  ContactKeyAllTelephoneNumbers = 'AllTelephoneNumbers';
  ContactKeyAllFaxNumbers = 'AllFaxNumbers';  // The three fax numbers in one text.
  ContactKeyAllEmailAddresses = 'AllEmailAddresses';  // The three mail addresses in one text.

  { Keys of GetTaskProperty and SetTaskProperty, for the current task. }
  TaskKeyBody = 'Body';  // The task's text.
  TaskKeyCreationDate = 'CreationDate';  // The day on which the item was made.
  TaskKeyCreationTime = 'CreationTime';  // The time of day at which the item was made.
  TaskKeyDueDate = 'DueDate';  // The day on which the task is due.
  TaskKeyEntryID = 'EntryID';  // The item's identifier, for GetItem.
  TaskKeyFolder = 'Folder';  // The name of the folder that the item is in.
  TaskKeyModifiedDate = 'ModifiedDate';  // The day on which the item was last changed.
  TaskKeyModifiedTime = 'ModifiedTime';  // The time of day at which the item was last changed.
  TaskKeyPercentComplete = 'PercentComplete';  // How much of it is done, 0 to 100.
  TaskKeyPriority = 'Priority';  // How important it is: low (0), normal (1) or high (2).
  TaskKeyReminder = 'Reminder';  // Whether there is a reminder.
  TaskKeyReminderDate = 'ReminderDate';  // The day of the reminder; writing sets its time too, but switches no reminder on.
  TaskKeyReminderTime = 'ReminderTime';  // The time of day of the reminder.
  TaskKeySubject = 'Subject';  // The subject.
  TaskKeyStartDate = 'StartDate';  // The day on which the task begins.
  TaskKeyStatus = 'Status';  // How far the task is, in English words.

  { Keys of GetEmailProperty, for the current mail. }
  EmailKeyAttachmentCount = 'Attachment Count';  // How many attachments there are.
  EmailKeyAttachments = 'Attachments';  // The names of the attachments.
  EmailKeyBCC = 'BCC';  // Who gets a copy unseen by the others.
  EmailKeyBody = 'Body';  // The mail's text without formatting.
  EmailKeyCC = 'CC';  // Who gets a copy.
  EmailKeyClass = 'Class';  // The item's class: an OlObjectClass number, 43 for a mail.
  EmailKeyEntryID = 'EntryID';  // The item's identifier, for GetItem.
  EmailKeyHTMLBody = 'HTMLBody';  // The mail's text as HTML.
  EmailKeyImportance = 'Importance';  // How important it is: low (0), normal (1) or high (2).
  EmailKeyParent = 'Parent';  // The name of the folder that the item is in.
  EmailKeyReceivedDate = 'ReceivedDate';  // The day on which the mail came.
  EmailKeyReceivedTime = 'ReceivedTime';  // The time of day at which the mail came.
  EmailKeyRecipients = 'Recipients';  // The names of all recipients.
  EmailKeySenderEmailAddress = 'SenderEmailAddress';  // The sender's mail address.
  EmailKeySenderName = 'SenderName';  // The sender's name.
  // Who is to see it: everyone (0), or it is personal (1), private (2) or confidential (3).
  EmailKeySensitivity = 'Sensitivity';
  EmailKeySize = 'Size';  // The size in bytes.
  EmailKeySubject = 'Subject';  // The subject.
  EmailKeyTo = 'To';  // The recipients.

  { Keys of GetNoteProperty and SetNoteProperty, for the current note. }
  NoteKeyBody = 'Body';  // The note's text, its first line being the subject.
  NoteKeyCategories = 'Categories';  // The note's categories, separated as the user's settings have it.
  NoteKeyClass = 'Class';  // The item's class: an OlObjectClass number, 44 for a note.
  NoteKeyColor = 'Color';  // The colour: blue (0), green (1), pink (2), yellow (3) or white (4).
  NoteKeyCreationTime = 'CreationTime';  // The time of day at which the item was made.
  NoteKeyDownloadState = 'DownloadState';  // Whether only the header is here (0) or the whole item (1).
  NoteKeyEntryID = 'EntryID';  // The item's identifier, for GetItem.
  NoteKeyFolder = 'Folder';  // The name of the folder that the item is in.
  NoteKeyHeight = 'Height';  // Height of the note's window, in pixels.
  NoteKeyIsConflict = 'IsConflict';  // Whether the item is in conflict with another copy.
  NoteKeyModifiedDate = 'ModifiedDate';  // The day on which the item was last changed.
  NoteKeyModifiedTime = 'ModifiedTime';  // The time of day at which the item was last changed.
  NoteKeyLeft = 'Left';  // Distance of the note's window from the left of the screen, in pixels.
  NoteKeyMarkForDownload = 'MarkForDownload';  // Whether the item is to be fetched: an OlRemoteStatus number.
  NoteKeyMessageClass = 'MessageClass';  // The item's message class, IPM.StickyNote.
  NoteKeyParent = 'Parent';  // The name of the folder that the item is in, as Folder.
  NoteKeySaved = 'Saved';  // Whether nothing was changed since the item was saved.
  NoteKeySize = 'Size';  // The size in bytes.
  NoteKeySubject = 'Subject';  // The subject: the text's first line.
  NoteKeyTop = 'Top';  // Distance of the note's window from the top of the screen, in pixels.
  NoteKeyWidth = 'Width';  // Width of the note's window, in pixels.

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

  /// Drives Microsoft Word: opens and writes documents, searches them, prints and saves them.
  TZORBWord = record
    { The control itself, for calls by interface. }
    Control: IZORBWord;
    class function Create: TZORBWord; static;
    /// <summary>Starts a new Word and holds it.</summary>
    /// <param name="Template">True places Word's window on the screen; False switches automatic numbering off.</param>
    function Start(Template: WordBool = False): Boolean;
    /// <summary>Shows or hides Word, and brings it to the front.</summary>
    /// <param name="IsVisible">True shows it, False hides it.</param>
    function SetVisible(IsVisible: WordBool): Boolean;
    /// <summary>Brings Word to the front.</summary>
    /// <param name="IsActive">Has no effect.</param>
    function SetActive(IsActive: WordBool): Boolean;
    /// <summary>Opens a document and makes it the active one.</summary>
    /// <param name="Doc">Path of the document.</param>
    function OpenDoc(Doc: WideString): Boolean;
    /// <summary>Makes a new document from a template, and makes it the active one.</summary>
    /// <param name="Doc">Path of the template; an empty text means the normal one.</param>
    function CreateDoc(Doc: WideString = ''): Boolean;
    /// <summary>Types a text at the selection.</summary>
    /// <param name="Text">The text to type.</param>
    function SendText(Text: WideString): Boolean;
    /// <summary>Reads the document's text, or a part of it.</summary>
    /// <param name="StartPos">First character, counted from 0; both positions 0 mean the whole text.</param>
    /// <param name="EndPos">Character after the last one; 0 means the end.</param>
    function ReadText(StartPos: Integer; EndPos: Integer): WideString;
    /// <summary>Switches the redrawing of Word's windows on or off.</summary>
    /// <param name="Update">True redraws, False does not.</param>
    function SetScreenUpdating(Update: WordBool): Boolean;
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
    function Search(SearchString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = False; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False): Boolean;
    /// <summary>Tells whether the selection is in a table.</summary>
    function InTable: Boolean;
    /// <summary>Selects the table row that the selection is in.</summary>
    procedure SelectRow;
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
    function Replace(SearchString: WideString; ReplaceString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = True; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False; ReplaceOption: Byte = wdReplaceOne): Boolean;
    /// <summary>Counts the sections of the active document.</summary>
    function NumberOfSections: Integer;
    /// <summary>Reads the text of a header or footer, or a part of it.</summary>
    /// <param name="Section">The section, counted from 1.</param>
    /// <param name="IsHeader">True means the header, False the footer.</param>
    /// <param name="HeaderFooterType">Of which pages: all others (1), the first (2), or even ones (3).</param>
    /// <param name="StartPos">First character, counted from 0; both positions 0 mean the whole text.</param>
    /// <param name="EndPos">Character after the last one; 0 means the end.</param>
    function ReadHeaderFooterText(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
        StartPos: Integer; EndPos: Integer): WideString;
    /// <summary>Copies headers, footers and the normal font from one document to another, and saves that.</summary>
    /// <param name="SourceTemplate">Path of the document to copy from; an empty text means the normal template.</param>
    /// <param name="DestTemplate">Path of the document to change; an empty text means the normal template.</param>
    /// <param name="ApplyHeader">True copies the headers.</param>
    /// <param name="ApplyFooter">True copies the footers.</param>
    /// <param name="ApplyFont">True copies the normal style's font.</param>
    function SetHeaderFooter(SourceTemplate: WideString; DestTemplate: WideString; ApplyHeader: WordBool;
        ApplyFooter: WordBool; ApplyFont: WordBool): Boolean;
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
    function ReplaceHeaderFooter(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
        SearchString: WideString; ReplaceString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = True; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False; ReplaceOption: Byte = wdReplaceOne): Boolean;
    /// <summary>Counts the cells of the selection's first table row.</summary>
    function CellCount: Integer;
    /// <summary>Reads a cell of the selection's first table row.</summary>
    /// <param name="CellId">The cell, counted from 1.</param>
    function CellText(CellId: Integer): WideString;
    /// <summary>Cuts the selection to the clipboard.</summary>
    procedure Cut;
    /// <summary>Selects the paragraph in which the selection starts.</summary>
    procedure SelectParagraph;
    /// <summary>Reads the selected text.</summary>
    function SelectionText: WideString;
    /// <summary>Pastes the clipboard at the selection.</summary>
    procedure Paste;
    /// <summary>Moves the insertion point to the left.</summary>
    /// <param name="Units">How many units to move.</param>
    /// <param name="Unit_">By what to move: a WdUnits number.</param>
    /// <param name="Selecting">Whether to extend the selection (1) or only to move (0).</param>
    procedure CursorLeft(Units: SmallInt; Unit_: SmallInt = wdCharacter; Selecting: SmallInt = wdMove);
    /// <summary>Moves the insertion point to the right.</summary>
    /// <param name="Units">How many units to move.</param>
    /// <param name="Unit_">By what to move: a WdUnits number.</param>
    /// <param name="Selecting">Whether to extend the selection (1) or only to move (0).</param>
    procedure CursorRight(Units: SmallInt; Unit_: SmallInt = wdCharacter; Selecting: SmallInt = wdMove);
    /// <summary>Moves the insertion point to the start of its paragraph.</summary>
    procedure CursorStartOfParagraph;
    /// <summary>Moves the insertion point to the start of its table cell.</summary>
    procedure CursorStartOfCell;
    /// <summary>Moves the insertion point to the end of its table cell.</summary>
    procedure CursorEndOfCell;
    /// <summary>Moves the insertion point to the end of its paragraph.</summary>
    procedure CursorEndOfParagraph;
    /// <summary>Collapses the selection and moves it.</summary>
    /// <param name="Unit_">By what to move: a WdUnits number.</param>
    /// <param name="Units">How many units to move; a negative number moves back.</param>
    procedure Move(Unit_: SmallInt; Units: SmallInt);
    /// <summary>Updates the document's styles and parts it from its template.</summary>
    procedure FinaliseDoc;
    /// <summary>Saves the document, under a new name where one is given.</summary>
    /// <param name="Docname">Path to save as; an empty text keeps the name.</param>
    procedure SaveDoc(Docname: WideString = '');
    /// <summary>Prints the document to the first printer whose name has PDF in it.</summary>
    function SaveDocAsPDF: Boolean;
    /// <summary>Closes the document.</summary>
    /// <param name="SaveOption">What to do with changes: drop them (0), save them (-1), or ask (-2).</param>
    procedure CloseDoc(SaveOption: SmallInt = wdDoNotSaveChanges);
    /// <summary>Quits the application.</summary>
    /// <param name="Force">True quits also while documents are open.</param>
    procedure StopWord(Force: WordBool = False);
    /// <summary>Prints the document.</summary>
    /// <param name="Copies">How many copies.</param>
    /// <param name="Background">Has no effect.</param>
    procedure PrintDoc(Copies: SmallInt; Background: WordBool = False);
    /// <summary>Counts the documents that are being printed or saved in the background.</summary>
    function IsPrinting: SmallInt;
    /// <summary>Reads one of the default folders.</summary>
    /// <param name="PathId">Which folder: a WdDefaultFilePath number.</param>
    function GetDefaultPaths(PathId: SmallInt): WideString;
    /// <summary>Moves the insertion point to a line.</summary>
    /// <param name="LineNo">The line, counted from 1.</param>
    function GotoLine(LineNo: SmallInt): Boolean;
    /// <summary>Reads the number of the last recorded failure: always 0.</summary>
    function GetLastErrorNumber: Integer;
    /// <summary>Reads the text of the last recorded failure: always empty.</summary>
    function GetLastErrorDescription: WideString;
  end;

  /// Drives Microsoft Outlook: walks, reads and writes its items, and makes mails.
  TZORBOutlook = record
    { The control itself, for calls by interface. }
    Control: IZORBOutlook;
    class function Create: TZORBOutlook; static;
    /// <summary>Starts a session with Outlook.</summary>
    function StartOutlook: Boolean;
    /// <summary>Ends the work, and quits Outlook where that is asked for.</summary>
    /// <param name="Force">True quits Outlook, the user's own too.</param>
    function StopOutlook(Force: WordBool = False): Boolean;
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
    function NewEmail(Template: WideString; ToAddress: WideString; CCAddress: WideString;
        BCCAddress: WideString; Subject: WideString; Content: WideString; UseHTML: WordBool;
        AutoSend: WordBool; Attachment: WideString): Boolean;
    /// <summary>Shows the current item in Outlook's own window.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    function OpenItem(EntryType: WideString): Boolean;
    /// <summary>Takes the items of the entry type's default folder, those that a condition names, for a walk.</summary>
    /// <param name="EntryType">The kind of item, or Sent Items, or Deleted and a kind.</param>
    /// <param name="Condition">A condition in Outlook's own form, as [Complete] = False; an empty text takes
    /// all.</param>
    function InitItems(EntryType: WideString; Condition: WideString): Boolean;
    /// <summary>Makes a new item, unsaved, the current one.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    function CreateItem(EntryType: WideString): Boolean;
    /// <summary>Deletes the current item.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    function DeleteItem(EntryType: WideString): Boolean;
    /// <summary>Makes the item with a certain identifier the current one.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    /// <param name="EntryId">The identifier: what the key EntryID reads.</param>
    function GetItem(EntryType: WideString; EntryId: WideString): Boolean;
    /// <summary>Makes one day's occurrence of the current appointment the current one.</summary>
    /// <param name="EntryDate">The day of the occurrence, with the time at which it begins, in the user's own order or
    /// as year-month-day.</param>
    function GetAppointmentInstance(EntryDate: WideString): Boolean;
    /// <summary>Saves the current item.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    function SaveItem(EntryType: WideString): Boolean;
    /// <summary>Writes the current item to a file, in Outlook's own format.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    /// <param name="FileName">Path of the file to write.</param>
    function SaveItemToFile(EntryType: WideString; FileName: WideString): Boolean;
    /// <summary>Writes an attachment of the current mail to a file.</summary>
    /// <param name="AttachmentNo">The attachment, counted from 1 among those that the text does not name.</param>
    /// <param name="FileName">Path of the file to write.</param>
    function SaveEmailAttachment(AttachmentNo: SmallInt; FileName: WideString): Boolean;
    /// <summary>Counts the items that InitItems took.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    function GetItemCount(EntryType: WideString): SmallInt;
    /// <summary>Makes the first of the items that InitItems took the current one.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    function GetFirstItem(EntryType: WideString): Boolean;
    /// <summary>Makes the next of the items that InitItems took the current one.</summary>
    /// <param name="EntryType">The kind of item: Appointment, Contact, Note, Task or Email.</param>
    function GetNextItem(EntryType: WideString): Boolean;
    /// <summary>Reads a property of the current appointment, as text.</summary>
    /// <param name="AppProp">The key of a property of the appointment.</param>
    function GetAppointmentProperty(AppProp: WideString): WideString;
    /// <summary>Writes a property of the current appointment, from text.</summary>
    /// <param name="AppProp">The key of a property of the appointment.</param>
    /// <param name="PropertyValue">The value as text.</param>
    function SetAppointmentProperty(AppProp: WideString; PropertyValue: WideString): Boolean;
    /// <summary>Takes the current appointment's recurrence pattern, for the members that read and write it.</summary>
    function GetRecurrencePattern: Boolean;
    /// <summary>Makes the current appointment a single one.</summary>
    function ClearRecurrencePattern: Boolean;
    /// <summary>Reads a property of the recurrence pattern, as text.</summary>
    /// <param name="RecurProp">The key of a property of the recurrence pattern.</param>
    function GetRecurrenceProperty(RecurProp: WideString): WideString;
    /// <summary>Writes a property of the recurrence pattern, from text; always answers an empty text.</summary>
    /// <param name="RecurProp">The key of a property of the recurrence pattern.</param>
    /// <param name="PropertyValue">The value as text.</param>
    function SetRecurrenceProperty(RecurProp: WideString; PropertyValue: WideString): WideString;
    /// <summary>Reads a property of one exception of the recurrence pattern, as text.</summary>
    /// <param name="Instance">The exception, counted from 1.</param>
    /// <param name="ExceptProp">The key of a property of the exception.</param>
    function GetExceptionProperty(Instance: SmallInt; ExceptProp: WideString): WideString;
    /// <summary>Reads a property of the current contact, as text.</summary>
    /// <param name="ContactProp">The key of a property of the contact.</param>
    function GetContactProperty(ContactProp: WideString): WideString;
    /// <summary>Writes a property of the current contact, from text.</summary>
    /// <param name="ContactProp">The key of a property of the contact.</param>
    /// <param name="PropertyValue">The value as text.</param>
    function SetContactProperty(ContactProp: WideString; PropertyValue: WideString): Boolean;
    /// <summary>Reads a property of the current task, as text.</summary>
    /// <param name="TaskProp">The key of a property of the task.</param>
    function GetTaskProperty(TaskProp: WideString): WideString;
    /// <summary>Writes a property of the current task, from text.</summary>
    /// <param name="TaskProperty">The key of a property of the task.</param>
    /// <param name="PropertyValue">The value as text.</param>
    function SetTaskProperty(TaskProperty: WideString; PropertyValue: WideString): Boolean;
    /// <summary>Reads a property of the current mail, as text.</summary>
    /// <param name="EmailProp">The key of a property of the mail.</param>
    function GetEmailProperty(EmailProp: WideString): WideString;
    /// <summary>Reads a property of the current note, as text.</summary>
    /// <param name="NoteProperty">The key of a property of the note.</param>
    function GetNoteProperty(NoteProperty: WideString): WideString;
    /// <summary>Writes a property of the current note, from text.</summary>
    /// <param name="NoteProperty">The key of a property of the note.</param>
    /// <param name="PropertyValue">The value as text.</param>
    function SetNoteProperty(NoteProperty: WideString; PropertyValue: WideString): Boolean;
    /// <summary>Reads the number of the last recorded failure, 0 before any.</summary>
    function GetLastErrorNumber: SmallInt;
    /// <summary>Reads the text of the last recorded failure, empty before any.</summary>
    function GetLastErrorDescription: WideString;
  end;

  /// Drives an office suite with the members of ZORBWord: opens, reads and searches documents.
  TOpenWriter = record
    { The control itself, for calls by interface. }
    Control: IOpenWriter;
    class function Create: TOpenWriter; static;
    /// <summary>Starts the office suite and holds its service manager and its desktop.</summary>
    /// <param name="Template">True also asks for a window in a certain place, which fails; False does nothing
    /// more.</param>
    function Start(Template: WordBool = False): Boolean;
    /// <summary>Does nothing: the suite decides itself what it shows.</summary>
    /// <param name="IsVisible">Has no effect.</param>
    function SetVisible(IsVisible: WordBool): Boolean;
    /// <summary>Does nothing: the suite decides itself what is in front.</summary>
    /// <param name="IsActive">Has no effect.</param>
    function SetActive(IsActive: WordBool): Boolean;
    /// <summary>Loads a document into the suite and makes it the active one.</summary>
    /// <param name="Doc">Path of the document.</param>
    function OpenDoc(Doc: WideString): Boolean;
    /// <summary>Loads a new document from a template into the suite, and makes it the active one.</summary>
    /// <param name="Doc">Path of the template; an empty text means the normal one.</param>
    function CreateDoc(Doc: WideString = ''): Boolean;
    /// <summary>Types a text at the selection.</summary>
    /// <param name="Text">The text to type.</param>
    function SendText(Text: WideString): Boolean;
    /// <summary>Reads the document's whole text.</summary>
    /// <param name="StartPos">Has no effect.</param>
    /// <param name="EndPos">Has no effect.</param>
    function ReadText(StartPos: Integer; EndPos: Integer): WideString;
    /// <summary>Does nothing: the suite redraws as it likes.</summary>
    /// <param name="Update">Has no effect.</param>
    function SetScreenUpdating(Update: WordBool): Boolean;
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
    function Search(SearchString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = False; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False): Boolean;
    /// <summary>Tells whether the selection is in a table.</summary>
    function InTable: Boolean;
    /// <summary>Selects the table row that the selection is in.</summary>
    procedure SelectRow;
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
    function Replace(SearchString: WideString; ReplaceString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = True; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False; ReplaceOption: Byte = wdReplaceOne): Boolean;
    /// <summary>Counts the sections of the active document.</summary>
    function NumberOfSections: Integer;
    /// <summary>Reads the text of a header or footer, or a part of it.</summary>
    /// <param name="Section">The section, counted from 1.</param>
    /// <param name="IsHeader">True means the header, False the footer.</param>
    /// <param name="HeaderFooterType">Of which pages: all others (1), the first (2), or even ones (3).</param>
    /// <param name="StartPos">First character, counted from 0; both positions 0 mean the whole text.</param>
    /// <param name="EndPos">Character after the last one; 0 means the end.</param>
    function ReadHeaderFooterText(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
        StartPos: Integer; EndPos: Integer): WideString;
    /// <summary>Copies headers, footers and the normal font from one document to another, and saves that.</summary>
    /// <param name="SourceTemplate">Path of the document to copy from; an empty text means the normal template.</param>
    /// <param name="DestTemplate">Path of the document to change; an empty text means the normal template.</param>
    /// <param name="ApplyHeader">True copies the headers.</param>
    /// <param name="ApplyFooter">True copies the footers.</param>
    /// <param name="ApplyFont">True copies the normal style's font.</param>
    function SetHeaderFooter(SourceTemplate: WideString; DestTemplate: WideString; ApplyHeader: Byte;
        ApplyFooter: Byte; ApplyFont: Byte): Boolean;
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
    function ReplaceHeaderFooter(Section: Integer; IsHeader: WordBool; HeaderFooterType: Byte;
        SearchString: WideString; ReplaceString: WideString; WrapAction: Byte = wdFindContinue;
        SearchForward: WordBool = True; BeginAtTop: WordBool = True; MatchCase: WordBool = False;
        MatchWholeWord: WordBool = False; MatchWildcards: WordBool = False; MatchSoundsLike: WordBool = False;
        MatchAllWordForms: WordBool = False; ReplaceOption: Byte = wdReplaceOne): Boolean;
    /// <summary>Counts the cells of the selection's first table row.</summary>
    function CellCount: Integer;
    /// <summary>Reads a cell of the selection's first table row.</summary>
    /// <param name="CellId">The cell, counted from 1.</param>
    function CellText(CellId: Integer): WideString;
    /// <summary>Cuts the selection to the clipboard.</summary>
    procedure Cut;
    /// <summary>Selects the paragraph in which the selection starts.</summary>
    procedure SelectParagraph;
    /// <summary>Reads the selected text.</summary>
    function SelectionText: WideString;
    /// <summary>Pastes the clipboard at the selection.</summary>
    procedure Paste;
    /// <summary>Moves the insertion point to the left.</summary>
    /// <param name="Units">How many units to move.</param>
    /// <param name="Unit_">By what to move: a WdUnits number.</param>
    /// <param name="Selecting">Whether to extend the selection (1) or only to move (0).</param>
    procedure CursorLeft(Units: SmallInt; Unit_: SmallInt = wdCharacter; Selecting: SmallInt = wdMove);
    /// <summary>Moves the insertion point to the right.</summary>
    /// <param name="Units">How many units to move.</param>
    /// <param name="Unit_">By what to move: a WdUnits number.</param>
    /// <param name="Selecting">Whether to extend the selection (1) or only to move (0).</param>
    procedure CursorRight(Units: SmallInt; Unit_: SmallInt = wdCharacter; Selecting: SmallInt = wdMove);
    /// <summary>Moves the insertion point to the start of its paragraph.</summary>
    procedure CursorStartOfParagraph;
    /// <summary>Moves the insertion point to the start of its table cell.</summary>
    procedure CursorStartOfCell;
    /// <summary>Moves the insertion point to the end of its table cell.</summary>
    procedure CursorEndOfCell;
    /// <summary>Moves the insertion point to the end of its paragraph.</summary>
    procedure CursorEndOfParagraph;
    /// <summary>Collapses the selection and moves it.</summary>
    /// <param name="Unit_">By what to move: a WdUnits number.</param>
    /// <param name="Units">How many units to move; a negative number moves back.</param>
    procedure Move(Unit_: SmallInt; Units: SmallInt);
    /// <summary>Updates the document's styles and parts it from its template.</summary>
    procedure FinaliseDoc;
    /// <summary>Saves the document, under a new name where one is given.</summary>
    /// <param name="Docname">Path to save as; an empty text keeps the name.</param>
    procedure SaveDoc(Docname: WideString = '');
    /// <summary>Prints the document to the first printer whose name has PDF in it.</summary>
    function SaveDocAsPDF: Boolean;
    /// <summary>Closes the document.</summary>
    /// <param name="SaveOption">What to do with changes: drop them (0), save them (-1), or ask (-2).</param>
    procedure CloseDoc(SaveOption: SmallInt = wdDoNotSaveChanges);
    /// <summary>Quits the application.</summary>
    /// <param name="Force">True quits also while documents are open.</param>
    procedure StopWord(Force: WordBool = False);
    /// <summary>Prints the document.</summary>
    /// <param name="Copies">How many copies.</param>
    /// <param name="Background">Has no effect.</param>
    procedure PrintDoc(Copies: SmallInt; Background: WordBool = False);
    /// <summary>Counts the documents that are being printed or saved in the background.</summary>
    function IsPrinting: SmallInt;
    /// <summary>Reads one of the default folders.</summary>
    /// <param name="PathId">Which folder: a WdDefaultFilePath number.</param>
    function GetDefaultPaths(PathId: SmallInt): WideString;
    /// <summary>Moves the insertion point to a line.</summary>
    /// <param name="LineNo">The line, counted from 1.</param>
    function GotoLine(LineNo: SmallInt): Boolean;
    /// <summary>Reads the number of the last recorded failure: always 0.</summary>
    function GetLastErrorNumber: Integer;
    /// <summary>Reads the text of the last recorded failure: always empty.</summary>
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

function CreateActCtxW(var Source: TSource): THandle; stdcall; external 'kernel32.dll';
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
  Result := Control.Search(SearchString, WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord,
      MatchWildcards, MatchSoundsLike, MatchAllWordForms) <> 0;
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
  Result := Control.Replace(SearchString, ReplaceString, WrapAction, SearchForward, BeginAtTop, MatchCase,
      MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms, ReplaceOption) <> 0;
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
  Result := Control.ReplaceHeaderFooter(Section, IsHeader, HeaderFooterType, SearchString, ReplaceString,
      WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike,
      MatchAllWordForms, ReplaceOption) <> 0;
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
  Result := Control.NewEmail(Template, ToAddress, CCAddress, BCCAddress, Subject, Content, UseHTML, AutoSend,
      Attachment);
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
  Result := Control.Search(SearchString, WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord,
      MatchWildcards, MatchSoundsLike, MatchAllWordForms) <> 0;
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
  Result := Control.Replace(SearchString, ReplaceString, WrapAction, SearchForward, BeginAtTop, MatchCase,
      MatchWholeWord, MatchWildcards, MatchSoundsLike, MatchAllWordForms, ReplaceOption) <> 0;
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
  Result := Control.ReplaceHeaderFooter(Section, IsHeader, HeaderFooterType, SearchString, ReplaceString,
      WrapAction, SearchForward, BeginAtTop, MatchCase, MatchWholeWord, MatchWildcards, MatchSoundsLike,
      MatchAllWordForms, ReplaceOption) <> 0;
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
  RegisterComponents('ActiveX', [TZORBWordControl]);
  RegisterComponents('ActiveX', [TZORBOutlookControl]);
  RegisterComponents('ActiveX', [TOpenWriterControl]);
end;

{$ENDIF}

end.
