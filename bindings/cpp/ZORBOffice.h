// ZORBOffice for C++11 and later: the controls' interfaces, and a class a control that is called with plain C++ values.
// Needs Windows' headers only. Link ole32 and oleaut32. Written by the build from the tables of the library; not to be edited.
//
//   ZORBOffice::Apartment apartment;
//   ZORBOffice::UnregisteredLibrary library(L"C:\\Tools\\ZORBOffice.manifest");  // not needed where it is registered
//   ZORBOffice::ZORBWord word;
//   if (word.Start() && word.OpenDoc(L"C:\\letters\\offer.docx")) text = word.ReadText(0, 0);
//
// What fails inside a member is told by its result, often after a message box; what reaches the host, and a control that cannot
// be created, is thrown as ZORBOffice::Error. A control belongs to the thread that creates it.
#pragma once

#include <windows.h>
#include <oaidl.h>
#include <objbase.h>

#include <new>
#include <stdexcept>
#include <string>

#ifdef _MSC_VER
#pragma comment(lib, "ole32")
#pragma comment(lib, "oleaut32")
#define ZORBOFFICE_UUID(text) __declspec(uuid(text))
#else
#define ZORBOFFICE_UUID(text)
#endif

namespace ZORBOffice {

// The type library ZORBOffice50, version 1.0.
constexpr GUID LIBID_ZORBOffice50 = {0x8698dd46, 0xfa38, 0x4fd0, {0x83, 0x36, 0xfa, 0x99, 0x7f, 0xb1, 0x0d, 0x92}};
constexpr CLSID CLSID_ZORBWord = {0x495cdeb3, 0x7f1e, 0x4663, {0x9d, 0xb2, 0xe3, 0x34, 0x37, 0x41, 0x2c, 0xe0}};
constexpr IID IID_IZORBWord = {0x79397b6a, 0x4416, 0x4196, {0x88, 0x24, 0x6e, 0x59, 0x99, 0x16, 0xdc, 0x95}};
constexpr CLSID CLSID_ZORBOutlook = {0xa04baf5a, 0xd329, 0x4c3a, {0xa0, 0x12, 0xcf, 0xfa, 0x91, 0x9d, 0x55, 0x9f}};
constexpr IID IID_IZORBOutlook = {0xa7e31fe0, 0xe2a1, 0x4b1e, {0xb3, 0x86, 0x22, 0x56, 0x40, 0x26, 0x55, 0x1d}};
constexpr CLSID CLSID_OpenWriter = {0xb0584ff2, 0xc51e, 0x4844, {0x94, 0xe6, 0xaa, 0xc1, 0x37, 0xf1, 0x80, 0x02}};
constexpr IID IID_IOpenWriter = {0x8a83a708, 0x86a0, 0x414a, {0xa5, 0x88, 0x7d, 0xc3, 0x74, 0x93, 0x87, 0x29}};

/// What a search does when it reaches the end of the text.
enum WdFindWrap : unsigned char {
  wdFindStop = 0,  ///< It ends.
  wdFindContinue = 1,  ///< It goes on from the other end.
  wdFindAsk = 2,  ///< It asks the user.
};

/// How much is replaced.
enum WdReplace : unsigned char {
  wdReplaceNone = 0,  ///< Nothing.
  wdReplaceOne = 1,  ///< The first occurrence.
  wdReplaceAll = 2,  ///< Every occurrence.
};

/// Which of a section's headers or footers is meant.
enum WdHeaderFooterIndex : unsigned char {
  wdHeaderFooterPrimary = 1,  ///< The one of all pages that have none of their own.
  wdHeaderFooterFirstPage = 2,  ///< The first page's.
  wdHeaderFooterEvenPages = 3,  ///< The even pages'.
};

/// By what the insertion point moves.
enum WdUnits : short {
  wdCharacter = 1,  ///< Characters.
  wdWord = 2,  ///< Words.
  wdSentence = 3,  ///< Sentences.
  wdParagraph = 4,  ///< Paragraphs.
  wdLine = 5,  ///< Lines.
  wdStory = 6,  ///< Stories: the main text, a header and so on.
  wdScreen = 7,  ///< Screens.
  wdSection = 8,  ///< Sections.
  wdColumn = 9,  ///< Columns.
  wdRow = 10,  ///< Rows.
  wdWindow = 11,  ///< Windows.
  wdCell = 12,  ///< Cells.
  wdCharacterFormatting = 13,  ///< Runs of one character formatting.
  wdParagraphFormatting = 14,  ///< Runs of one paragraph formatting.
  wdTable = 15,  ///< Tables.
  wdItem = 16,  ///< The selected item.
};

/// Whether a movement selects.
enum WdMovementType : long {
  wdMove = 0,  ///< The selection becomes an insertion point and moves.
  wdExtend = 1,  ///< The selection is extended.
};

/// What becomes of changes when a document is closed.
enum WdSaveOptions : short {
  wdDoNotSaveChanges = 0,  ///< They are lost.
  wdSaveChanges = -1,  ///< They are saved.
  wdPromptToSaveChanges = -2,  ///< The user is asked.
};

/// One of the word processor's default folders.
enum WdDefaultFilePath : short {
  wdDocumentsPath = 0,  ///< Documents.
  wdPicturesPath = 1,  ///< Pictures.
  wdUserTemplatesPath = 2,  ///< The user's templates.
  wdWorkgroupTemplatesPath = 3,  ///< The workgroup's templates.
  wdUserOptionsPath = 4,  ///< The user's options.
  wdAutoRecoverPath = 5,  ///< Files for recovery.
  wdToolsPath = 6,  ///< Tools.
  wdTutorialPath = 7,  ///< The tutorial.
  wdStartupPath = 8,  ///< What is loaded at the start.
  wdProgramPath = 9,  ///< The program.
  wdGraphicsFiltersPath = 10,  ///< Filters for pictures.
  wdTextConvertersPath = 11,  ///< Converters of text.
  wdProofingToolsPath = 12,  ///< Proofing tools.
  wdTempFilePath = 13,  ///< Temporary files.
  wdCurrentFolderPath = 14,  ///< The current folder.
  wdStyleGalleryPath = 15,  ///< The style gallery.
  wdBorderArtPath = 19,  ///< Art for borders.
};

/// Values of `Importance`, and of a task's `Priority`.
enum OlImportance : long {
  olImportanceLow = 0,  ///< Low.
  olImportanceNormal = 1,  ///< Normal.
  olImportanceHigh = 2,  ///< High.
};

/// Values of `Sensitivity`. Only olPrivate can be written; any other becomes olNormal.
enum OlSensitivity : long {
  olNormal = 0,  ///< Normal.
  olPersonal = 1,  ///< Personal.
  olPrivate = 2,  ///< Private.
  olConfidential = 3,  ///< Confidential.
};

/// Values of `RecurrenceType`.
enum OlRecurrenceType : long {
  olRecursDaily = 0,  ///< Every so many days.
  olRecursWeekly = 1,  ///< On days of the week.
  olRecursMonthly = 2,  ///< On a day of the month.
  olRecursMonthNth = 3,  ///< On, say, the second Tuesday of the month: see `Instance`.
  olRecursYearly = 5,  ///< On a day of the year.
  olRecursYearNth = 6,  ///< On, say, the second Tuesday of May: see `Instance`.
};

/// Values of `DayOfWeekMask`: one of them, or the sum of several.
enum OlDaysOfWeek : long {
  olSunday = 1,  ///< Sunday.
  olMonday = 2,  ///< Monday.
  olTuesday = 4,  ///< Tuesday.
  olWednesday = 8,  ///< Wednesday.
  olThursday = 16,  ///< Thursday.
  olFriday = 32,  ///< Friday.
  olSaturday = 64,  ///< Saturday.
};

/// Values of `MeetingStatus`.
enum OlMeetingStatus : long {
  olNonMeeting = 0,  ///< An appointment without attendees.
  olMeeting = 1,  ///< A meeting.
  olMeetingReceived = 3,  ///< A meeting to which one was invited.
  olMeetingCanceled = 5,  ///< A cancelled meeting.
  olMeetingReceivedAndCanceled = 7,  ///< A cancelled meeting that is still in the calendar.
};

/// Values of `RecurrenceState`.
enum OlRecurrenceState : long {
  olApptNotRecurring = 0,  ///< A single appointment.
  olApptMaster = 1,  ///< A series.
  olApptOccurrence = 2,  ///< One occurrence of a series.
  olApptException = 3,  ///< A changed occurrence of a series.
};

/// Values of `SelectedMailingAddress`.
enum OlMailingAddress : long {
  olNone = 0,  ///< None.
  olHome = 1,  ///< The home address.
  olBusiness = 2,  ///< The business address.
  olOther = 3,  ///< The other address.
};

/// Values of `DownloadState`.
enum OlDownloadState : long {
  olHeaderOnly = 0,  ///< Only the header is there.
  olFullItem = 1,  ///< All of the item is there.
};

/// Values of `MarkForDownload`.
enum OlRemoteStatus : long {
  olRemoteStatusNone = 0,  ///< None was set.
  olUnMarked = 1,  ///< Not marked.
  olMarkedForDownload = 2,  ///< Marked to be downloaded.
  olMarkedForCopy = 3,  ///< Marked to be copied.
  olMarkedForDelete = 4,  ///< Marked to be deleted.
};

/// Kinds of items. InitItems knows six more words: `Sent Items`, and `Deleted ` in front of a kind.
namespace EntryType {
constexpr const wchar_t* Appointment = L"Appointment";  ///< The calendar's.
constexpr const wchar_t* Contact = L"Contact";  ///< The contacts'.
constexpr const wchar_t* Note = L"Note";  ///< The notes'.
constexpr const wchar_t* Task = L"Task";  ///< The tasks'.
constexpr const wchar_t* Email = L"Email";  ///< The inbox's.
constexpr const wchar_t* SentItems = L"Sent Items";  ///< Sent mails; for InitItems only.
constexpr const wchar_t* DeletedAppointment = L"Deleted Appointment";  ///< For InitItems only.
constexpr const wchar_t* DeletedContact = L"Deleted Contact";  ///< For InitItems only.
constexpr const wchar_t* DeletedNote = L"Deleted Note";  ///< For InitItems only.
constexpr const wchar_t* DeletedTask = L"Deleted Task";  ///< For InitItems only.
constexpr const wchar_t* DeletedEmail = L"Deleted Email";  ///< For InitItems only.
}  // namespace EntryType

/// Values of a task's `Status`.
namespace TaskStatus {
constexpr const wchar_t* NotStarted = L"Not Started";  ///< olTaskNotStarted (0).
constexpr const wchar_t* InProgress = L"In Progress";  ///< olTaskInProgress (1).
constexpr const wchar_t* Completed = L"Completed";  ///< olTaskComplete (2).
constexpr const wchar_t* Waiting = L"Waiting on someone else";  ///< olTaskWaiting (3).
constexpr const wchar_t* Deferred = L"Deferred";  ///< olTaskDeferred (4).
}  // namespace TaskStatus

/// What GetExceptionProperty does beside reading.
namespace ExceptionAction {
constexpr const wchar_t* GetAppointment = L"Get Appointment";  ///< Makes the exception's appointment the current one.
}  // namespace ExceptionAction

/// Keys of GetAppointmentProperty and SetAppointmentProperty, for the current appointment.
namespace AppointmentKey {
constexpr const wchar_t* AllDayEvent = L"AllDayEvent";  ///< Whether the appointment takes whole days.
constexpr const wchar_t* Billing = L"Billing";  ///< Billing information.
constexpr const wchar_t* Body = L"Body";  ///< The appointment's text.
constexpr const wchar_t* Companies = L"Companies";  ///< The companies that have to do with the appointment.
constexpr const wchar_t* CreatedDate = L"CreatedDate";  ///< The day on which the item was made.
constexpr const wchar_t* CreatedTime = L"CreatedTime";  ///< The time of day at which the item was made.
constexpr const wchar_t* Duration = L"Duration";  ///< How long it takes, in minutes.
constexpr const wchar_t* End = L"End";  ///< When it ends.
constexpr const wchar_t* EndDate = L"EndDate";  ///< The day on which it ends.
constexpr const wchar_t* EndTime = L"EndTime";  ///< The time of day at which it ends.
constexpr const wchar_t* EntryID = L"EntryID";  ///< The item's identifier, for GetItem.
constexpr const wchar_t* Folder = L"Folder";  ///< The name of the folder that the item is in.
constexpr const wchar_t* IsRecurring = L"IsRecurring";  ///< Whether the appointment is a series.
constexpr const wchar_t* Importance = L"Importance";  ///< How important it is: low (0), normal (1) or high (2).
constexpr const wchar_t* ModifiedDate = L"ModifiedDate";  ///< The day on which the item was last changed.
constexpr const wchar_t* ModifiedTime = L"ModifiedTime";  ///< The time of day at which the item was last changed.
constexpr const wchar_t* Location = L"Location";  ///< The place.
/// Whether the appointment is a meeting, and in which state: an OlMeetingStatus number.
constexpr const wchar_t* MeetingStatus = L"MeetingStatus";
constexpr const wchar_t* MessageClass = L"MessageClass";  ///< The item's message class, as IPM.Appointment.
constexpr const wchar_t* Mileage = L"Mileage";  ///< Miles travelled, as a text of the user's own.
/// Whether the item is a single appointment (0), a series (1), an occurrence (2) or an exception (3).
constexpr const wchar_t* RecurrenceState = L"RecurrenceState";
/// How many minutes before the start the reminder comes.
constexpr const wchar_t* ReminderMinutesBeforeStart = L"ReminderMinutesBeforeStart";
constexpr const wchar_t* ReminderSet = L"ReminderSet";  ///< Whether there is a reminder.
/// Who is to see it: everyone (0), or it is personal (1), private (2) or confidential (3).
constexpr const wchar_t* Sensitivity = L"Sensitivity";
constexpr const wchar_t* Start = L"Start";  ///< When it begins.
constexpr const wchar_t* StartDate = L"StartDate";  ///< The day on which it begins.
constexpr const wchar_t* StartTime = L"StartTime";  ///< The time of day at which it begins.
constexpr const wchar_t* Subject = L"Subject";  ///< The subject.
}  // namespace AppointmentKey

/// Keys of GetRecurrenceProperty and SetRecurrenceProperty, for the recurrence pattern.
namespace RecurrenceKey {
constexpr const wchar_t* Class = L"Class";  ///< The pattern's class: an OlObjectClass number, 28.
constexpr const wchar_t* DayOfMonth = L"DayOfMonth";  ///< The day of the month.
/// The days of the week, added up: Sunday 1, Monday 2, Tuesday 4, Wednesday 8, Thursday 16, Friday 32, Saturday 64.
constexpr const wchar_t* DayOfWeekMask = L"DayOfWeekMask";
constexpr const wchar_t* Duration = L"Duration";  ///< How long an occurrence takes, in minutes.
constexpr const wchar_t* EndTime = L"EndTime";  ///< The time of day at which an occurrence ends.
constexpr const wchar_t* Interval = L"Interval";  ///< Every how many days, weeks, months or years it recurs.
constexpr const wchar_t* Instance = L"Instance";  ///< Which such day of the month: first (1) to fourth (4), or last (5).
constexpr const wchar_t* MonthOfYear = L"MonthOfYear";  ///< The month, 1 to 12.
constexpr const wchar_t* NoEndDate = L"NoEndDate";  ///< Whether the series has no end.
constexpr const wchar_t* Occurrences = L"Occurrences";  ///< How many occurrences there are.
constexpr const wchar_t* PatternEndDate = L"PatternEndDate";  ///< The day on which the series ends.
/// The day on which the series begins; it cannot be written. Writes the day on which the series ends, as PatternEndDate
/// does: the start stays.
constexpr const wchar_t* PatternStartDate = L"PatternStartDate";
/// How it recurs: daily (0), weekly (1), monthly (2), monthly by weekday (3), yearly (5) or yearly by weekday (6).
constexpr const wchar_t* RecurrenceType = L"RecurrenceType";
constexpr const wchar_t* StartTime = L"StartTime";  ///< The time of day at which an occurrence begins.
constexpr const wchar_t* ExceptionCount = L"Exception Count";  ///< How many exceptions the series has.
constexpr const wchar_t* ExceptionList = L"Exception List";  ///< All exceptions in one text.
}  // namespace RecurrenceKey

/// Keys of GetExceptionProperty, for one exception of the recurrence pattern.
namespace ExceptionKey {
constexpr const wchar_t* OriginalDate = L"OriginalDate";  ///< The day on which the occurrence would have been.
constexpr const wchar_t* Deleted = L"Deleted";  ///< Whether the occurrence was deleted; otherwise it was changed.
}  // namespace ExceptionKey

/// Keys of GetContactProperty and SetContactProperty, for the current contact.
namespace ContactKey {
constexpr const wchar_t* AssistantTelephoneNumber = L"AssistantTelephoneNumber";  ///< Telephone number of the assistant.
constexpr const wchar_t* Body = L"Body";  ///< Notes on the contact.
constexpr const wchar_t* Business2TelephoneNumber = L"Business2TelephoneNumber";  ///< Second telephone number at work.
constexpr const wchar_t* BusinessAddress = L"BusinessAddress";  ///< Address at work, whole.
constexpr const wchar_t* BusinessAddressCity = L"BusinessAddressCity";  ///< City of the address at work.
constexpr const wchar_t* BusinessAddressCountry = L"BusinessAddressCountry";  ///< Country of the address at work.
constexpr const wchar_t* BusinessAddressPostalCode = L"BusinessAddressPostalCode";  ///< Postal code of the address at work.
constexpr const wchar_t* BusinessAddressState = L"BusinessAddressState";  ///< State of the address at work.
constexpr const wchar_t* BusinessAddressStreet = L"BusinessAddressStreet";  ///< Street of the address at work.
constexpr const wchar_t* BusinessFaxNumber = L"BusinessFaxNumber";  ///< Fax number at work.
constexpr const wchar_t* BusinesshomePage = L"BusinesshomePage";  ///< Web page of the business; the key has a small h.
constexpr const wchar_t* BusinessTelephoneNumber = L"BusinessTelephoneNumber";  ///< Telephone number at work.
constexpr const wchar_t* CarTelephoneNumber = L"CarTelephoneNumber";  ///< Telephone number in the car.
constexpr const wchar_t* CompanyMainTelephoneNumber = L"CompanyMainTelephoneNumber";  ///< Main telephone number of the company.
constexpr const wchar_t* CompanyName = L"CompanyName";  ///< Name of the company.
constexpr const wchar_t* Email1Address = L"Email1Address";  ///< First mail address.
constexpr const wchar_t* Email2Address = L"Email2Address";  ///< Second mail address.
constexpr const wchar_t* Email3Address = L"Email3Address";  ///< Third mail address.
constexpr const wchar_t* FirstName = L"FirstName";  ///< First name.
constexpr const wchar_t* FullName = L"FullName";  ///< Whole name.
constexpr const wchar_t* GovernmentIDNumber = L"GovernmentIDNumber";  ///< Number of an identity document.
constexpr const wchar_t* Home2TelephoneNumber = L"Home2TelephoneNumber";  ///< Second telephone number at home.
constexpr const wchar_t* HomeAddress = L"HomeAddress";  ///< Address at home, whole.
constexpr const wchar_t* HomeAddressCity = L"HomeAddressCity";  ///< City of the address at home.
constexpr const wchar_t* HomeAddressCountry = L"HomeAddressCountry";  ///< Country of the address at home.
constexpr const wchar_t* HomeAddressPostalCode = L"HomeAddressPostalCode";  ///< Postal code of the address at home.
constexpr const wchar_t* HomeAddressState = L"HomeAddressState";  ///< State of the address at home.
constexpr const wchar_t* HomeAddressStreet = L"HomeAddressStreet";  ///< Street of the address at home.
constexpr const wchar_t* HomeFaxNumber = L"HomeFaxNumber";  ///< Fax number at home.
constexpr const wchar_t* HomeTelephoneNumber = L"HomeTelephoneNumber";  ///< Telephone number at home.
constexpr const wchar_t* JobTitle = L"JobTitle";  ///< Job title.
constexpr const wchar_t* MailingAddress = L"MailingAddress";  ///< The address that mail goes to, whole.
constexpr const wchar_t* MailingAddressCity = L"MailingAddressCity";  ///< City of the address that mail goes to.
constexpr const wchar_t* MailingAddressCountry = L"MailingAddressCountry";  ///< Country of the address that mail goes to.
/// Postal code of the address that mail goes to.
constexpr const wchar_t* MailingAddressPostalCode = L"MailingAddressPostalCode";
constexpr const wchar_t* MailingAddressState = L"MailingAddressState";  ///< State of the address that mail goes to.
constexpr const wchar_t* MailingAddressStreet = L"MailingAddressStreet";  ///< Street of the address that mail goes to.
constexpr const wchar_t* MobileTelephoneNumber = L"MobileTelephoneNumber";  ///< Number of the mobile telephone.
constexpr const wchar_t* Nickname = L"Nickname";  ///< Nickname.
constexpr const wchar_t* OtherAddress = L"OtherAddress";  ///< Another address, whole.
constexpr const wchar_t* OtherAddressCity = L"OtherAddressCity";  ///< City of the other address.
constexpr const wchar_t* OtherAddressCountry = L"OtherAddressCountry";  ///< Country of the other address.
constexpr const wchar_t* OtherAddressPostalCode = L"OtherAddressPostalCode";  ///< Postal code of the other address.
constexpr const wchar_t* OtherAddressState = L"OtherAddressState";  ///< State of the other address.
constexpr const wchar_t* OtherAddressStreet = L"OtherAddressStreet";  ///< Street of the other address.
constexpr const wchar_t* OtherFaxNumber = L"OtherFaxNumber";  ///< Another fax number.
constexpr const wchar_t* OtherTelephoneNumber = L"OtherTelephoneNumber";  ///< Another telephone number.
constexpr const wchar_t* PrimaryTelephoneNumber = L"PrimaryTelephoneNumber";  ///< The telephone number to try first.
constexpr const wchar_t* RadioTelephoneNumber = L"RadioTelephoneNumber";  ///< Number of the radio telephone.
constexpr const wchar_t* Title = L"Title";  ///< Title before the name, as Dr.
constexpr const wchar_t* WebPage = L"WebPage";  ///< Web page.
constexpr const wchar_t* EntryID = L"EntryID";  ///< The item's identifier, for GetItem.
constexpr const wchar_t* Folder = L"Folder";  ///< The name of the folder that the item is in.
constexpr const wchar_t* ModifiedDate = L"ModifiedDate";  ///< The day on which the item was last changed.
constexpr const wchar_t* ModifiedTime = L"ModifiedTime";  ///< The time of day at which the item was last changed.
/// Which address mail goes to: none (0), home (1), work (2) or the other (3).
constexpr const wchar_t* SelectedMailingAddress = L"SelectedMailingAddress";
/// Nine telephone numbers in one text, without those of mobile and radio telephones.
constexpr const wchar_t* AllTelephoneNumbers = L"AllTelephoneNumbers";
constexpr const wchar_t* AllFaxNumbers = L"AllFaxNumbers";  ///< The three fax numbers in one text.
constexpr const wchar_t* AllEmailAddresses = L"AllEmailAddresses";  ///< The three mail addresses in one text.
}  // namespace ContactKey

/// Keys of GetTaskProperty and SetTaskProperty, for the current task.
namespace TaskKey {
constexpr const wchar_t* Body = L"Body";  ///< The task's text.
constexpr const wchar_t* CreationDate = L"CreationDate";  ///< The day on which the item was made.
constexpr const wchar_t* CreationTime = L"CreationTime";  ///< The time of day at which the item was made.
constexpr const wchar_t* DueDate = L"DueDate";  ///< The day on which the task is due.
constexpr const wchar_t* EntryID = L"EntryID";  ///< The item's identifier, for GetItem.
constexpr const wchar_t* Folder = L"Folder";  ///< The name of the folder that the item is in.
constexpr const wchar_t* ModifiedDate = L"ModifiedDate";  ///< The day on which the item was last changed.
constexpr const wchar_t* ModifiedTime = L"ModifiedTime";  ///< The time of day at which the item was last changed.
constexpr const wchar_t* PercentComplete = L"PercentComplete";  ///< How much of it is done, 0 to 100.
constexpr const wchar_t* Priority = L"Priority";  ///< How important it is: low (0), normal (1) or high (2).
constexpr const wchar_t* Reminder = L"Reminder";  ///< Whether there is a reminder.
/// The day of the reminder; writing sets its time too, but switches no reminder on.
constexpr const wchar_t* ReminderDate = L"ReminderDate";
constexpr const wchar_t* ReminderTime = L"ReminderTime";  ///< The time of day of the reminder.
constexpr const wchar_t* Subject = L"Subject";  ///< The subject.
constexpr const wchar_t* StartDate = L"StartDate";  ///< The day on which the task begins.
constexpr const wchar_t* Status = L"Status";  ///< How far the task is, in English words.
}  // namespace TaskKey

/// Keys of GetEmailProperty, for the current mail.
namespace EmailKey {
constexpr const wchar_t* AttachmentCount = L"Attachment Count";  ///< How many attachments there are.
constexpr const wchar_t* Attachments = L"Attachments";  ///< The names of the attachments.
constexpr const wchar_t* BCC = L"BCC";  ///< Who gets a copy unseen by the others.
constexpr const wchar_t* Body = L"Body";  ///< The mail's text without formatting.
constexpr const wchar_t* CC = L"CC";  ///< Who gets a copy.
constexpr const wchar_t* Class = L"Class";  ///< The item's class: an OlObjectClass number, 43 for a mail.
constexpr const wchar_t* EntryID = L"EntryID";  ///< The item's identifier, for GetItem.
constexpr const wchar_t* HTMLBody = L"HTMLBody";  ///< The mail's text as HTML.
constexpr const wchar_t* Importance = L"Importance";  ///< How important it is: low (0), normal (1) or high (2).
constexpr const wchar_t* Parent = L"Parent";  ///< The name of the folder that the item is in.
constexpr const wchar_t* ReceivedDate = L"ReceivedDate";  ///< The day on which the mail came.
constexpr const wchar_t* ReceivedTime = L"ReceivedTime";  ///< The time of day at which the mail came.
constexpr const wchar_t* Recipients = L"Recipients";  ///< The names of all recipients.
constexpr const wchar_t* SenderEmailAddress = L"SenderEmailAddress";  ///< The sender's mail address.
constexpr const wchar_t* SenderName = L"SenderName";  ///< The sender's name.
/// Who is to see it: everyone (0), or it is personal (1), private (2) or confidential (3).
constexpr const wchar_t* Sensitivity = L"Sensitivity";
constexpr const wchar_t* Size = L"Size";  ///< The size in bytes.
constexpr const wchar_t* Subject = L"Subject";  ///< The subject.
constexpr const wchar_t* To = L"To";  ///< The recipients.
}  // namespace EmailKey

/// Keys of GetNoteProperty and SetNoteProperty, for the current note.
namespace NoteKey {
constexpr const wchar_t* Body = L"Body";  ///< The note's text, its first line being the subject.
constexpr const wchar_t* Categories = L"Categories";  ///< The note's categories, separated as the user's settings have it.
constexpr const wchar_t* Class = L"Class";  ///< The item's class: an OlObjectClass number, 44 for a note.
constexpr const wchar_t* Color = L"Color";  ///< The colour: blue (0), green (1), pink (2), yellow (3) or white (4).
constexpr const wchar_t* CreationTime = L"CreationTime";  ///< The time of day at which the item was made.
constexpr const wchar_t* DownloadState = L"DownloadState";  ///< Whether only the header is here (0) or the whole item (1).
constexpr const wchar_t* EntryID = L"EntryID";  ///< The item's identifier, for GetItem.
constexpr const wchar_t* Folder = L"Folder";  ///< The name of the folder that the item is in.
constexpr const wchar_t* Height = L"Height";  ///< Height of the note's window, in pixels.
constexpr const wchar_t* IsConflict = L"IsConflict";  ///< Whether the item is in conflict with another copy.
constexpr const wchar_t* ModifiedDate = L"ModifiedDate";  ///< The day on which the item was last changed.
constexpr const wchar_t* ModifiedTime = L"ModifiedTime";  ///< The time of day at which the item was last changed.
constexpr const wchar_t* Left = L"Left";  ///< Distance of the note's window from the left of the screen, in pixels.
/// Whether the item is to be fetched: an OlRemoteStatus number.
constexpr const wchar_t* MarkForDownload = L"MarkForDownload";
constexpr const wchar_t* MessageClass = L"MessageClass";  ///< The item's message class, IPM.StickyNote.
constexpr const wchar_t* Parent = L"Parent";  ///< The name of the folder that the item is in, as Folder.
constexpr const wchar_t* Saved = L"Saved";  ///< Whether nothing was changed since the item was saved.
constexpr const wchar_t* Size = L"Size";  ///< The size in bytes.
constexpr const wchar_t* Subject = L"Subject";  ///< The subject: the text's first line.
constexpr const wchar_t* Top = L"Top";  ///< Distance of the note's window from the top of the screen, in pixels.
constexpr const wchar_t* Width = L"Width";  ///< Width of the note's window, in pixels.
}  // namespace NoteKey

// The interfaces, for calls by vtable. What the members do stands with the classes below.

// Published as _ZORBWord.
struct ZORBOFFICE_UUID("79397B6A-4416-4196-8824-6E599916DC95") IZORBWord : public IDispatch {
  virtual HRESULT STDMETHODCALLTYPE get_Start(VARIANT_BOOL* Template, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetVisible(VARIANT_BOOL* IsVisible, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetActive(VARIANT_BOOL* IsActive, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_OpenDoc(BSTR* Doc, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_CreateDoc(BSTR* Doc, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SendText(BSTR* Text, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ReadText(LONG* StartPos, LONG* EndPos, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetScreenUpdating(VARIANT_BOOL* Update, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Search(BSTR* SearchString, BYTE* WrapAction,
      VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
      VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
      VARIANT_BOOL* MatchAllWordForms, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_InTable(BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SelectRow(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Replace(BSTR* SearchString, BSTR* ReplaceString, BYTE* WrapAction,
      VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
      VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
      VARIANT_BOOL* MatchAllWordForms, BYTE* ReplaceOption, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_NumberOfSections(LONG* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ReadHeaderFooterText(LONG* Section, VARIANT_BOOL* IsHeader,
      BYTE* HeaderFooterType, LONG* StartPos, LONG* EndPos, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetHeaderFooter(BSTR* SourceTemplate, BSTR* DestTemplate,
      VARIANT_BOOL* ApplyHeader, VARIANT_BOOL* ApplyFooter, VARIANT_BOOL* ApplyFont, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ReplaceHeaderFooter(LONG* Section, VARIANT_BOOL* IsHeader,
      BYTE* HeaderFooterType, BSTR* SearchString, BSTR* ReplaceString, BYTE* WrapAction,
      VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
      VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
      VARIANT_BOOL* MatchAllWordForms, BYTE* ReplaceOption, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_CellCount(LONG* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_CellText(LONG* CellId, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE Cut(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SelectParagraph(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SelectionText(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE Paste(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorLeft(SHORT* Units, SHORT* Unit, VARIANT* Selecting,
      VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorRight(SHORT* Units, SHORT* Unit, VARIANT* Selecting,
      VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorStartOfParagraph(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorStartOfCell(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorEndOfCell(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorEndOfParagraph(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE Move(SHORT* Unit, SHORT* Units, VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE FinaliseDoc(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveDoc(BSTR* Docname, VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveDocAsPDF(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CloseDoc(SHORT* SaveOption, VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE StopWord(VARIANT_BOOL* Force, VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE PrintDoc(SHORT* Copies, VARIANT_BOOL* Background, VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE IsPrinting(SHORT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetDefaultPaths(SHORT* PathId, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GotoLine(SHORT* LineNo, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_GetLastErrorNumber(LONG* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_GetLastErrorDescription(BSTR* result) = 0;
};

// Published as _ZORBOutlook.
struct ZORBOFFICE_UUID("A7E31FE0-E2A1-4B1E-B386-22564026551D") IZORBOutlook : public IDispatch {
  virtual HRESULT STDMETHODCALLTYPE StartOutlook(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE StopOutlook(VARIANT_BOOL Force, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE NewEmail(BSTR* Template, BSTR* ToAddress, BSTR* CCAddress,
      BSTR* BCCAddress, BSTR* Subject, BSTR* Content, VARIANT_BOOL* UseHTML, VARIANT_BOOL* AutoSend,
      BSTR* Attachment, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE OpenItem(BSTR EntryType, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE InitItems(BSTR EntryType, BSTR Condition, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CreateItem(BSTR EntryType, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE DeleteItem(BSTR EntryType, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetItem(BSTR EntryType, BSTR EntryId, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetAppointmentInstance(BSTR EntryDate, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveItem(BSTR EntryType, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveItemToFile(BSTR EntryType, BSTR FileName, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveEmailAttachment(SHORT AttachmentNo, BSTR FileName,
      VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetItemCount(BSTR EntryType, SHORT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetFirstItem(BSTR EntryType, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetNextItem(BSTR EntryType, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetAppointmentProperty(BSTR AppProp, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetAppointmentProperty(BSTR AppProp, BSTR PropertyValue,
      VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetRecurrencePattern(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE ClearRecurrencePattern(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetRecurrenceProperty(BSTR RecurProp, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetRecurrenceProperty(BSTR RecurProp, BSTR PropertyValue,
      BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetExceptionProperty(SHORT Instance, BSTR ExceptProp, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetContactProperty(BSTR ContactProp, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetContactProperty(BSTR ContactProp, BSTR PropertyValue,
      VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetTaskProperty(BSTR TaskProp, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetTaskProperty(BSTR TaskProperty, BSTR PropertyValue,
      VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetEmailProperty(BSTR EmailProp, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetNoteProperty(BSTR NoteProperty, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SetNoteProperty(BSTR NoteProperty, BSTR PropertyValue,
      VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetLastErrorNumber(SHORT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetLastErrorDescription(BSTR* result) = 0;
};

// Published as _OpenWriter.
struct ZORBOFFICE_UUID("8A83A708-86A0-414A-A588-7DC374938729") IOpenWriter : public IDispatch {
  virtual HRESULT STDMETHODCALLTYPE get_Start(VARIANT_BOOL* Template, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetVisible(VARIANT_BOOL* IsVisible, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetActive(VARIANT_BOOL* IsActive, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_OpenDoc(BSTR* Doc, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_CreateDoc(BSTR* Doc, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SendText(BSTR* Text, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ReadText(LONG* StartPos, LONG* EndPos, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetScreenUpdating(VARIANT_BOOL* Update, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Search(BSTR* SearchString, BYTE* WrapAction,
      VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
      VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
      VARIANT_BOOL* MatchAllWordForms, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_InTable(BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SelectRow(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Replace(BSTR* SearchString, BSTR* ReplaceString, BYTE* WrapAction,
      VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
      VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
      VARIANT_BOOL* MatchAllWordForms, BYTE* ReplaceOption, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_NumberOfSections(LONG* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ReadHeaderFooterText(LONG* Section, VARIANT_BOOL* IsHeader,
      BYTE* HeaderFooterType, LONG* StartPos, LONG* EndPos, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetHeaderFooter(BSTR* SourceTemplate, BSTR* DestTemplate,
      BYTE* ApplyHeader, BYTE* ApplyFooter, BYTE* ApplyFont, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ReplaceHeaderFooter(LONG* Section, VARIANT_BOOL* IsHeader,
      BYTE* HeaderFooterType, BSTR* SearchString, BSTR* ReplaceString, BYTE* WrapAction,
      VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
      VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
      VARIANT_BOOL* MatchAllWordForms, BYTE* ReplaceOption, BYTE* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_CellCount(LONG* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_CellText(LONG* CellId, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE Cut(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SelectParagraph(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SelectionText(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE Paste(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorLeft(SHORT* Units, SHORT* Unit, VARIANT* Selecting,
      VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorRight(SHORT* Units, SHORT* Unit, VARIANT* Selecting,
      VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorStartOfParagraph(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorStartOfCell(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorEndOfCell(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorEndOfParagraph(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE Move(SHORT* Unit, SHORT* Units, VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE FinaliseDoc(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveDoc(BSTR* Docname, VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveDocAsPDF(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE CloseDoc(SHORT* SaveOption, VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE StopWord(VARIANT_BOOL* Force, VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE PrintDoc(SHORT* Copies, VARIANT_BOOL* Background, VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE IsPrinting(SHORT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetDefaultPaths(SHORT* PathId, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GotoLine(SHORT* LineNo, VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_GetLastErrorNumber(LONG* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_GetLastErrorDescription(BSTR* result) = 0;
};

/// A call that failed: the code that the call returned, and what it said, in UTF-8 and as it came.
class Error : public std::runtime_error {
 public:
  Error(HRESULT code, const std::wstring& text) : std::runtime_error(narrow(text)), code_(code), text_(text) {}
  HRESULT code() const { return code_; }
  const std::wstring& text() const { return text_; }

 private:
  static std::string narrow(const std::wstring& text) {
    const int size = static_cast<int>(text.size());
    std::string bytes(3 * text.size(), '\0');
    if (size) bytes.resize(WideCharToMultiByte(CP_UTF8, 0, text.data(), size, &bytes[0], 3 * size, nullptr, nullptr));
    return bytes;
  }

  HRESULT code_;
  std::wstring text_;
};

/// COM in this thread, from here to the end of the block.
class Apartment {
 public:
  Apartment() : status_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {
    if (FAILED(status_)) throw Error(status_, L"COM cannot be initialised");
  }
  ~Apartment() { CoUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;

 private:
  HRESULT status_;
};

/// Makes the controls known to this thread without registration, from here to the end of the block; controls that were created
/// stay usable. The path names ZORBOffice.manifest or ZORBOffice.ocx, of the program's own bitness.
class UnregisteredLibrary {
 public:
  explicit UnregisteredLibrary(const std::wstring& path) : context_(INVALID_HANDLE_VALUE), cookie_(0) {
    ACTCTXW source = ACTCTXW();
    source.cbSize = sizeof source;
    source.lpSource = path.c_str();
    const std::size_t dot = path.rfind(L'.');
    if (dot == std::wstring::npos || lstrcmpiW(path.c_str() + dot, L".manifest") != 0) {
      source.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;  // the library holds its manifest as resource 1
      source.lpResourceName = MAKEINTRESOURCEW(1);
    }
    context_ = CreateActCtxW(&source);
    if (context_ == INVALID_HANDLE_VALUE) fail(path, GetLastError());
    if (!ActivateActCtx(context_, &cookie_)) {
      const DWORD error = GetLastError();
      ReleaseActCtx(context_);
      fail(path, error);
    }
  }
  ~UnregisteredLibrary() {
    DeactivateActCtx(0, cookie_);
    ReleaseActCtx(context_);
  }
  UnregisteredLibrary(const UnregisteredLibrary&) = delete;
  UnregisteredLibrary& operator=(const UnregisteredLibrary&) = delete;

 private:
  static void fail(const std::wstring& path, DWORD error) {
    throw Error(HRESULT_FROM_WIN32(error), L"The library's manifest cannot be used: " + path);
  }

  HANDLE context_;
  ULONG_PTR cookie_;
};

namespace detail {

// A value on its way to a member or back, by value or by reference.
template <class Published>
class Value {
 public:
  explicit Value(Published value = Published()) : value_(value) {}
  operator Published() const { return value_; }
  operator Published*() { return &value_; }
  Published plain() const { return value_; }

 protected:
  Published value_;
};

typedef Value<SHORT> Int16;
typedef Value<LONG> Int32;

struct Byte : Value<BYTE> {
  explicit Byte(BYTE value = 0) : Value<BYTE>(value) {}
  bool plain() const { return value_ != 0; }  // as a result it is 1 or 0
};

struct Flag : Value<VARIANT_BOOL> {
  explicit Flag(bool value = false) : Value<VARIANT_BOOL>(value ? VARIANT_TRUE : VARIANT_FALSE) {}
  bool plain() const { return value_ != VARIANT_FALSE; }
};

struct Text : Value<BSTR> {
  Text() {}
  explicit Text(const std::wstring& text)
      : Value<BSTR>(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
    if (!value_) throw std::bad_alloc();
  }
  ~Text() { SysFreeString(value_); }
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;
  std::wstring plain() const { return std::wstring(value_ ? value_ : L"", SysStringLen(value_)); }
};

struct Variant : Value<VARIANT> {
  explicit Variant(LONG number = 0) {
    VariantInit(&value_);
    value_.vt = VT_I4;
    value_.lVal = number;
  }
  ~Variant() { VariantClear(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
};

// Throws what a failed call says of itself.
inline void check(HRESULT status) {
  if (SUCCEEDED(status)) return;
  Text text;
  IErrorInfo* information = nullptr;
  if (GetErrorInfo(0, &information) == S_OK) {
    information->GetDescription(text);
    information->Release();
  }
  throw Error(status, SysStringLen(text) ? text.plain() : L"A call of ZORBOffice failed");
}

// Holds a control by its interface.
template <class Interface>
class Control {
 public:
  Interface* control() const { return control_; }

  Control(Control&& other) noexcept : control_(other.control_) { other.control_ = nullptr; }
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

 protected:
  Control(REFCLSID class_id, REFIID interface_id) : control_(nullptr) {
    void* made = nullptr;
    check(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, interface_id, &made));
    control_ = static_cast<Interface*>(made);
  }
  explicit Control(Interface* control) : control_(control) { control_->AddRef(); }
  ~Control() {
    if (control_) control_->Release();
  }

  Interface* control_;
};

}  // namespace detail

/// Drives Microsoft Word: opens and writes documents, searches them, prints and saves them.
class ZORBWord : public detail::Control<IZORBWord> {
 public:
  /// Creates the control.
  ZORBWord() : Control(CLSID_ZORBWord, IID_IZORBWord) {}
  /// Takes one that exists, such as a form's.
  explicit ZORBWord(IZORBWord* control) : Control(control) {}

  /// Starts a new Word and holds it.
  /// @param Template True places Word's window on the screen; False switches automatic numbering off.
  bool Start(bool Template = false) {
    detail::Byte result;
    detail::check(control_->get_Start(detail::Flag(Template), result));
    return result.plain();
  }

  /// Shows or hides Word, and brings it to the front.
  /// @param IsVisible True shows it, False hides it.
  bool SetVisible(bool IsVisible) {
    detail::Byte result;
    detail::check(control_->get_SetVisible(detail::Flag(IsVisible), result));
    return result.plain();
  }

  /// Brings Word to the front.
  /// @param IsActive Has no effect.
  bool SetActive(bool IsActive) {
    detail::Byte result;
    detail::check(control_->get_SetActive(detail::Flag(IsActive), result));
    return result.plain();
  }

  /// Opens a document and makes it the active one.
  /// @param Doc Path of the document.
  bool OpenDoc(const std::wstring& Doc) {
    detail::Byte result;
    detail::check(control_->get_OpenDoc(detail::Text(Doc), result));
    return result.plain();
  }

  /// Makes a new document from a template, and makes it the active one.
  /// @param Doc Path of the template; an empty text means the normal one.
  bool CreateDoc(const std::wstring& Doc = L"") {
    detail::Byte result;
    detail::check(control_->get_CreateDoc(detail::Text(Doc), result));
    return result.plain();
  }

  /// Types a text at the selection.
  /// @param Text The text to type.
  bool SendText(const std::wstring& Text) {
    detail::Byte result;
    detail::check(control_->get_SendText(detail::Text(Text), result));
    return result.plain();
  }

  /// Reads the document's text, or a part of it.
  /// @param StartPos First character, counted from 0; both positions 0 mean the whole text.
  /// @param EndPos Character after the last one; 0 means the end.
  std::wstring ReadText(long StartPos, long EndPos) {
    detail::Text result;
    detail::check(control_->get_ReadText(detail::Int32(StartPos), detail::Int32(EndPos), result));
    return result.plain();
  }

  /// Switches the redrawing of Word's windows on or off.
  /// @param Update True redraws, False does not.
  bool SetScreenUpdating(bool Update) {
    detail::Byte result;
    detail::check(control_->get_SetScreenUpdating(detail::Flag(Update), result));
    return result.plain();
  }

  /// Finds a text and selects it.
  /// @param SearchString The text to find.
  /// @param WrapAction What to do at the end of the text: stop (0), go on at its other end (1), or ask (2).
  /// @param SearchForward True searches towards the end, False towards the start.
  /// @param BeginAtTop True moves to the start of the document before it searches.
  /// @param MatchCase True tells capital letters from small ones.
  /// @param MatchWholeWord True finds whole words only.
  /// @param MatchWildcards True reads the text that is searched for as a pattern.
  /// @param MatchSoundsLike True also finds words that sound alike.
  /// @param MatchAllWordForms True also finds the other forms of the words.
  bool Search(const std::wstring& SearchString, WdFindWrap WrapAction = wdFindContinue,
      bool SearchForward = true, bool BeginAtTop = false, bool MatchCase = false, bool MatchWholeWord = false,
      bool MatchWildcards = false, bool MatchSoundsLike = false, bool MatchAllWordForms = false) {
    detail::Byte result;
    detail::check(control_->get_Search(detail::Text(SearchString), detail::Byte(WrapAction),
        detail::Flag(SearchForward), detail::Flag(BeginAtTop), detail::Flag(MatchCase),
        detail::Flag(MatchWholeWord), detail::Flag(MatchWildcards), detail::Flag(MatchSoundsLike),
        detail::Flag(MatchAllWordForms), result));
    return result.plain();
  }

  /// Tells whether the selection is in a table.
  bool InTable() {
    detail::Byte result;
    detail::check(control_->get_InTable(result));
    return result.plain();
  }

  /// Selects the table row that the selection is in.
  void SelectRow() {
    detail::Variant result;
    detail::check(control_->SelectRow(result));
  }

  /// Finds a text from the selection on and replaces it.
  /// @param SearchString The text to find.
  /// @param ReplaceString The text to put in its place.
  /// @param WrapAction What to do at the end of the text: stop (0), go on at its other end (1), or ask (2).
  /// @param SearchForward True searches towards the end, False towards the start.
  /// @param BeginAtTop Has no effect.
  /// @param MatchCase True tells capital letters from small ones.
  /// @param MatchWholeWord True finds whole words only.
  /// @param MatchWildcards True reads the text that is searched for as a pattern.
  /// @param MatchSoundsLike True also finds words that sound alike.
  /// @param MatchAllWordForms True also finds the other forms of the words.
  /// @param ReplaceOption How many to replace: none (0), the first one (1), or all (2).
  bool Replace(const std::wstring& SearchString, const std::wstring& ReplaceString,
      WdFindWrap WrapAction = wdFindContinue, bool SearchForward = true, bool BeginAtTop = true,
      bool MatchCase = false, bool MatchWholeWord = false, bool MatchWildcards = false,
      bool MatchSoundsLike = false, bool MatchAllWordForms = false, WdReplace ReplaceOption = wdReplaceOne) {
    detail::Byte result;
    detail::check(control_->get_Replace(detail::Text(SearchString), detail::Text(ReplaceString),
        detail::Byte(WrapAction), detail::Flag(SearchForward), detail::Flag(BeginAtTop),
        detail::Flag(MatchCase), detail::Flag(MatchWholeWord), detail::Flag(MatchWildcards),
        detail::Flag(MatchSoundsLike), detail::Flag(MatchAllWordForms), detail::Byte(ReplaceOption), result));
    return result.plain();
  }

  /// Counts the sections of the active document.
  long NumberOfSections() {
    detail::Int32 result;
    detail::check(control_->get_NumberOfSections(result));
    return result.plain();
  }

  /// Reads the text of a header or footer, or a part of it.
  /// @param Section The section, counted from 1.
  /// @param IsHeader True means the header, False the footer.
  /// @param HeaderFooterType Of which pages: all others (1), the first (2), or even ones (3).
  /// @param StartPos First character, counted from 0; both positions 0 mean the whole text.
  /// @param EndPos Character after the last one; 0 means the end.
  std::wstring ReadHeaderFooterText(long Section, bool IsHeader, WdHeaderFooterIndex HeaderFooterType,
      long StartPos, long EndPos) {
    detail::Text result;
    detail::check(control_->get_ReadHeaderFooterText(detail::Int32(Section), detail::Flag(IsHeader),
        detail::Byte(HeaderFooterType), detail::Int32(StartPos), detail::Int32(EndPos), result));
    return result.plain();
  }

  /// Copies headers, footers and the normal font from one document to another, and saves that.
  /// @param SourceTemplate Path of the document to copy from; an empty text means the normal template.
  /// @param DestTemplate Path of the document to change; an empty text means the normal template.
  /// @param ApplyHeader True copies the headers.
  /// @param ApplyFooter True copies the footers.
  /// @param ApplyFont True copies the normal style's font.
  bool SetHeaderFooter(const std::wstring& SourceTemplate, const std::wstring& DestTemplate, bool ApplyHeader,
      bool ApplyFooter, bool ApplyFont) {
    detail::Byte result;
    detail::check(control_->get_SetHeaderFooter(detail::Text(SourceTemplate), detail::Text(DestTemplate),
        detail::Flag(ApplyHeader), detail::Flag(ApplyFooter), detail::Flag(ApplyFont), result));
    return result.plain();
  }

  /// Finds a text in a header or footer and replaces it.
  /// @param Section The section, counted from 1.
  /// @param IsHeader True means the header, False the footer.
  /// @param HeaderFooterType Of which pages: all others (1), the first (2), or even ones (3).
  /// @param SearchString The text to find.
  /// @param ReplaceString The text to put in its place.
  /// @param WrapAction What to do at the end of the text: stop (0), go on at its other end (1), or ask (2).
  /// @param SearchForward True searches towards the end, False towards the start.
  /// @param BeginAtTop Has no effect.
  /// @param MatchCase True tells capital letters from small ones.
  /// @param MatchWholeWord True finds whole words only.
  /// @param MatchWildcards True reads the text that is searched for as a pattern.
  /// @param MatchSoundsLike True also finds words that sound alike.
  /// @param MatchAllWordForms True also finds the other forms of the words.
  /// @param ReplaceOption How many to replace: none (0), the first one (1), or all (2).
  bool ReplaceHeaderFooter(long Section, bool IsHeader, WdHeaderFooterIndex HeaderFooterType,
      const std::wstring& SearchString, const std::wstring& ReplaceString,
      WdFindWrap WrapAction = wdFindContinue, bool SearchForward = true, bool BeginAtTop = true,
      bool MatchCase = false, bool MatchWholeWord = false, bool MatchWildcards = false,
      bool MatchSoundsLike = false, bool MatchAllWordForms = false, WdReplace ReplaceOption = wdReplaceOne) {
    detail::Byte result;
    detail::check(control_->get_ReplaceHeaderFooter(detail::Int32(Section), detail::Flag(IsHeader),
        detail::Byte(HeaderFooterType), detail::Text(SearchString), detail::Text(ReplaceString),
        detail::Byte(WrapAction), detail::Flag(SearchForward), detail::Flag(BeginAtTop),
        detail::Flag(MatchCase), detail::Flag(MatchWholeWord), detail::Flag(MatchWildcards),
        detail::Flag(MatchSoundsLike), detail::Flag(MatchAllWordForms), detail::Byte(ReplaceOption), result));
    return result.plain();
  }

  /// Counts the cells of the selection's first table row.
  long CellCount() {
    detail::Int32 result;
    detail::check(control_->get_CellCount(result));
    return result.plain();
  }

  /// Reads a cell of the selection's first table row.
  /// @param CellId The cell, counted from 1.
  std::wstring CellText(long CellId) {
    detail::Text result;
    detail::check(control_->get_CellText(detail::Int32(CellId), result));
    return result.plain();
  }

  /// Cuts the selection to the clipboard.
  void Cut() {
    detail::Variant result;
    detail::check(control_->Cut(result));
  }

  /// Selects the paragraph in which the selection starts.
  void SelectParagraph() {
    detail::Variant result;
    detail::check(control_->SelectParagraph(result));
  }

  /// Reads the selected text.
  std::wstring SelectionText() {
    detail::Text result;
    detail::check(control_->get_SelectionText(result));
    return result.plain();
  }

  /// Pastes the clipboard at the selection.
  void Paste() {
    detail::Variant result;
    detail::check(control_->Paste(result));
  }

  /// Moves the insertion point to the left.
  /// @param Units How many units to move.
  /// @param Unit By what to move: a WdUnits number.
  /// @param Selecting Whether to extend the selection (1) or only to move (0).
  void CursorLeft(short Units, WdUnits Unit = wdCharacter, WdMovementType Selecting = wdMove) {
    detail::Variant result;
    detail::check(control_->CursorLeft(detail::Int16(Units), detail::Int16(Unit), detail::Variant(Selecting),
        result));
  }

  /// Moves the insertion point to the right.
  /// @param Units How many units to move.
  /// @param Unit By what to move: a WdUnits number.
  /// @param Selecting Whether to extend the selection (1) or only to move (0).
  void CursorRight(short Units, WdUnits Unit = wdCharacter, WdMovementType Selecting = wdMove) {
    detail::Variant result;
    detail::check(control_->CursorRight(detail::Int16(Units), detail::Int16(Unit), detail::Variant(Selecting),
        result));
  }

  /// Moves the insertion point to the start of its paragraph.
  void CursorStartOfParagraph() {
    detail::Variant result;
    detail::check(control_->CursorStartOfParagraph(result));
  }

  /// Moves the insertion point to the start of its table cell.
  void CursorStartOfCell() {
    detail::Variant result;
    detail::check(control_->CursorStartOfCell(result));
  }

  /// Moves the insertion point to the end of its table cell.
  void CursorEndOfCell() {
    detail::Variant result;
    detail::check(control_->CursorEndOfCell(result));
  }

  /// Moves the insertion point to the end of its paragraph.
  void CursorEndOfParagraph() {
    detail::Variant result;
    detail::check(control_->CursorEndOfParagraph(result));
  }

  /// Collapses the selection and moves it.
  /// @param Unit By what to move: a WdUnits number.
  /// @param Units How many units to move; a negative number moves back.
  void Move(WdUnits Unit, short Units) {
    detail::Variant result;
    detail::check(control_->Move(detail::Int16(Unit), detail::Int16(Units), result));
  }

  /// Updates the document's styles and parts it from its template.
  void FinaliseDoc() {
    detail::Variant result;
    detail::check(control_->FinaliseDoc(result));
  }

  /// Saves the document, under a new name where one is given.
  /// @param Docname Path to save as; an empty text keeps the name.
  void SaveDoc(const std::wstring& Docname = L"") {
    detail::Variant result;
    detail::check(control_->SaveDoc(detail::Text(Docname), result));
  }

  /// Prints the document to the first printer whose name has PDF in it.
  bool SaveDocAsPDF() {
    detail::Flag result;
    detail::check(control_->SaveDocAsPDF(result));
    return result.plain();
  }

  /// Closes the document.
  /// @param SaveOption What to do with changes: drop them (0), save them (-1), or ask (-2).
  void CloseDoc(WdSaveOptions SaveOption = wdDoNotSaveChanges) {
    detail::Variant result;
    detail::check(control_->CloseDoc(detail::Int16(SaveOption), result));
  }

  /// Quits the application.
  /// @param Force True quits also while documents are open.
  void StopWord(bool Force = false) {
    detail::Variant result;
    detail::check(control_->StopWord(detail::Flag(Force), result));
  }

  /// Prints the document.
  /// @param Copies How many copies.
  /// @param Background Has no effect.
  void PrintDoc(short Copies, bool Background = false) {
    detail::Variant result;
    detail::check(control_->PrintDoc(detail::Int16(Copies), detail::Flag(Background), result));
  }

  /// Counts the documents that are being printed or saved in the background.
  short IsPrinting() {
    detail::Int16 result;
    detail::check(control_->IsPrinting(result));
    return result.plain();
  }

  /// Reads one of the default folders.
  /// @param PathId Which folder: a WdDefaultFilePath number.
  std::wstring GetDefaultPaths(WdDefaultFilePath PathId) {
    detail::Text result;
    detail::check(control_->GetDefaultPaths(detail::Int16(PathId), result));
    return result.plain();
  }

  /// Moves the insertion point to a line.
  /// @param LineNo The line, counted from 1.
  bool GotoLine(short LineNo) {
    detail::Flag result;
    detail::check(control_->GotoLine(detail::Int16(LineNo), result));
    return result.plain();
  }

  /// Reads the number of the last recorded failure: always 0.
  long GetLastErrorNumber() {
    detail::Int32 result;
    detail::check(control_->get_GetLastErrorNumber(result));
    return result.plain();
  }

  /// Reads the text of the last recorded failure: always empty.
  std::wstring GetLastErrorDescription() {
    detail::Text result;
    detail::check(control_->get_GetLastErrorDescription(result));
    return result.plain();
  }
};

/// Drives Microsoft Outlook: walks, reads and writes its items, and makes mails.
class ZORBOutlook : public detail::Control<IZORBOutlook> {
 public:
  /// Creates the control.
  ZORBOutlook() : Control(CLSID_ZORBOutlook, IID_IZORBOutlook) {}
  /// Takes one that exists, such as a form's.
  explicit ZORBOutlook(IZORBOutlook* control) : Control(control) {}

  /// Starts a session with Outlook.
  bool StartOutlook() {
    detail::Flag result;
    detail::check(control_->StartOutlook(result));
    return result.plain();
  }

  /// Ends the work, and quits Outlook where that is asked for.
  /// @param Force True quits Outlook, the user's own too.
  bool StopOutlook(bool Force = false) {
    detail::Flag result;
    detail::check(control_->StopOutlook(detail::Flag(Force), result));
    return result.plain();
  }

  /// Makes one mail from its parts, and sends it or shows it; always answers False.
  /// @param Template Has no effect.
  /// @param ToAddress Addresses of the recipients, separated by semicolons.
  /// @param CCAddress Addresses of those who get a copy.
  /// @param BCCAddress Addresses of those who get a copy unseen by the others.
  /// @param Subject The subject.
  /// @param Content The mail's text.
  /// @param UseHTML True takes the text for HTML.
  /// @param AutoSend True sends the mail and quits Outlook; False shows it.
  /// @param Attachment Paths of files, separated by semicolons; the variable is used up, so hand over a copy.
  bool NewEmail(const std::wstring& Template, const std::wstring& ToAddress, const std::wstring& CCAddress,
      const std::wstring& BCCAddress, const std::wstring& Subject, const std::wstring& Content, bool UseHTML,
      bool AutoSend, const std::wstring& Attachment) {
    detail::Flag result;
    detail::check(control_->NewEmail(detail::Text(Template), detail::Text(ToAddress), detail::Text(CCAddress),
        detail::Text(BCCAddress), detail::Text(Subject), detail::Text(Content), detail::Flag(UseHTML),
        detail::Flag(AutoSend), detail::Text(Attachment), result));
    return result.plain();
  }

  /// Shows the current item in Outlook's own window.
  /// @param EntryType The kind of item: Appointment, Contact, Note, Task or Email.
  bool OpenItem(const std::wstring& EntryType) {
    detail::Flag result;
    detail::check(control_->OpenItem(detail::Text(EntryType), result));
    return result.plain();
  }

  /// Takes the items of the entry type's default folder, those that a condition names, for a walk.
  /// @param EntryType The kind of item, or Sent Items, or Deleted and a kind.
  /// @param Condition A condition in Outlook's own form, as [Complete] = False; an empty text takes all.
  bool InitItems(const std::wstring& EntryType, const std::wstring& Condition) {
    detail::Flag result;
    detail::check(control_->InitItems(detail::Text(EntryType), detail::Text(Condition), result));
    return result.plain();
  }

  /// Makes a new item, unsaved, the current one.
  /// @param EntryType The kind of item: Appointment, Contact, Note, Task or Email.
  bool CreateItem(const std::wstring& EntryType) {
    detail::Flag result;
    detail::check(control_->CreateItem(detail::Text(EntryType), result));
    return result.plain();
  }

  /// Deletes the current item.
  /// @param EntryType The kind of item: Appointment, Contact, Note, Task or Email.
  bool DeleteItem(const std::wstring& EntryType) {
    detail::Flag result;
    detail::check(control_->DeleteItem(detail::Text(EntryType), result));
    return result.plain();
  }

  /// Makes the item with a certain identifier the current one.
  /// @param EntryType The kind of item: Appointment, Contact, Note, Task or Email.
  /// @param EntryId The identifier: what the key EntryID reads.
  bool GetItem(const std::wstring& EntryType, const std::wstring& EntryId) {
    detail::Flag result;
    detail::check(control_->GetItem(detail::Text(EntryType), detail::Text(EntryId), result));
    return result.plain();
  }

  /// Makes one day's occurrence of the current appointment the current one.
  /// @param EntryDate The day of the occurrence, with the time at which it begins, in the user's own order or as
  /// year-month-day.
  bool GetAppointmentInstance(const std::wstring& EntryDate) {
    detail::Flag result;
    detail::check(control_->GetAppointmentInstance(detail::Text(EntryDate), result));
    return result.plain();
  }

  /// Saves the current item.
  /// @param EntryType The kind of item: Appointment, Contact, Note, Task or Email.
  bool SaveItem(const std::wstring& EntryType) {
    detail::Flag result;
    detail::check(control_->SaveItem(detail::Text(EntryType), result));
    return result.plain();
  }

  /// Writes the current item to a file, in Outlook's own format.
  /// @param EntryType The kind of item: Appointment, Contact, Note, Task or Email.
  /// @param FileName Path of the file to write.
  bool SaveItemToFile(const std::wstring& EntryType, const std::wstring& FileName) {
    detail::Flag result;
    detail::check(control_->SaveItemToFile(detail::Text(EntryType), detail::Text(FileName), result));
    return result.plain();
  }

  /// Writes an attachment of the current mail to a file.
  /// @param AttachmentNo The attachment, counted from 1 among those that the text does not name.
  /// @param FileName Path of the file to write.
  bool SaveEmailAttachment(short AttachmentNo, const std::wstring& FileName) {
    detail::Flag result;
    detail::check(control_->SaveEmailAttachment(detail::Int16(AttachmentNo), detail::Text(FileName), result));
    return result.plain();
  }

  /// Counts the items that InitItems took.
  /// @param EntryType The kind of item: Appointment, Contact, Note, Task or Email.
  short GetItemCount(const std::wstring& EntryType) {
    detail::Int16 result;
    detail::check(control_->GetItemCount(detail::Text(EntryType), result));
    return result.plain();
  }

  /// Makes the first of the items that InitItems took the current one.
  /// @param EntryType The kind of item: Appointment, Contact, Note, Task or Email.
  bool GetFirstItem(const std::wstring& EntryType) {
    detail::Flag result;
    detail::check(control_->GetFirstItem(detail::Text(EntryType), result));
    return result.plain();
  }

  /// Makes the next of the items that InitItems took the current one.
  /// @param EntryType The kind of item: Appointment, Contact, Note, Task or Email.
  bool GetNextItem(const std::wstring& EntryType) {
    detail::Flag result;
    detail::check(control_->GetNextItem(detail::Text(EntryType), result));
    return result.plain();
  }

  /// Reads a property of the current appointment, as text.
  /// @param AppProp The key of a property of the appointment.
  std::wstring GetAppointmentProperty(const std::wstring& AppProp) {
    detail::Text result;
    detail::check(control_->GetAppointmentProperty(detail::Text(AppProp), result));
    return result.plain();
  }

  /// Writes a property of the current appointment, from text.
  /// @param AppProp The key of a property of the appointment.
  /// @param PropertyValue The value as text.
  bool SetAppointmentProperty(const std::wstring& AppProp, const std::wstring& PropertyValue) {
    detail::Flag result;
    detail::check(control_->SetAppointmentProperty(detail::Text(AppProp), detail::Text(PropertyValue),
        result));
    return result.plain();
  }

  /// Takes the current appointment's recurrence pattern, for the members that read and write it.
  bool GetRecurrencePattern() {
    detail::Flag result;
    detail::check(control_->GetRecurrencePattern(result));
    return result.plain();
  }

  /// Makes the current appointment a single one.
  bool ClearRecurrencePattern() {
    detail::Flag result;
    detail::check(control_->ClearRecurrencePattern(result));
    return result.plain();
  }

  /// Reads a property of the recurrence pattern, as text.
  /// @param RecurProp The key of a property of the recurrence pattern.
  std::wstring GetRecurrenceProperty(const std::wstring& RecurProp) {
    detail::Text result;
    detail::check(control_->GetRecurrenceProperty(detail::Text(RecurProp), result));
    return result.plain();
  }

  /// Writes a property of the recurrence pattern, from text; always answers an empty text.
  /// @param RecurProp The key of a property of the recurrence pattern.
  /// @param PropertyValue The value as text.
  std::wstring SetRecurrenceProperty(const std::wstring& RecurProp, const std::wstring& PropertyValue) {
    detail::Text result;
    detail::check(control_->SetRecurrenceProperty(detail::Text(RecurProp), detail::Text(PropertyValue),
        result));
    return result.plain();
  }

  /// Reads a property of one exception of the recurrence pattern, as text.
  /// @param Instance The exception, counted from 1.
  /// @param ExceptProp The key of a property of the exception.
  std::wstring GetExceptionProperty(short Instance, const std::wstring& ExceptProp) {
    detail::Text result;
    detail::check(control_->GetExceptionProperty(detail::Int16(Instance), detail::Text(ExceptProp), result));
    return result.plain();
  }

  /// Reads a property of the current contact, as text.
  /// @param ContactProp The key of a property of the contact.
  std::wstring GetContactProperty(const std::wstring& ContactProp) {
    detail::Text result;
    detail::check(control_->GetContactProperty(detail::Text(ContactProp), result));
    return result.plain();
  }

  /// Writes a property of the current contact, from text.
  /// @param ContactProp The key of a property of the contact.
  /// @param PropertyValue The value as text.
  bool SetContactProperty(const std::wstring& ContactProp, const std::wstring& PropertyValue) {
    detail::Flag result;
    detail::check(control_->SetContactProperty(detail::Text(ContactProp), detail::Text(PropertyValue),
        result));
    return result.plain();
  }

  /// Reads a property of the current task, as text.
  /// @param TaskProp The key of a property of the task.
  std::wstring GetTaskProperty(const std::wstring& TaskProp) {
    detail::Text result;
    detail::check(control_->GetTaskProperty(detail::Text(TaskProp), result));
    return result.plain();
  }

  /// Writes a property of the current task, from text.
  /// @param TaskProperty The key of a property of the task.
  /// @param PropertyValue The value as text.
  bool SetTaskProperty(const std::wstring& TaskProperty, const std::wstring& PropertyValue) {
    detail::Flag result;
    detail::check(control_->SetTaskProperty(detail::Text(TaskProperty), detail::Text(PropertyValue), result));
    return result.plain();
  }

  /// Reads a property of the current mail, as text.
  /// @param EmailProp The key of a property of the mail.
  std::wstring GetEmailProperty(const std::wstring& EmailProp) {
    detail::Text result;
    detail::check(control_->GetEmailProperty(detail::Text(EmailProp), result));
    return result.plain();
  }

  /// Reads a property of the current note, as text.
  /// @param NoteProperty The key of a property of the note.
  std::wstring GetNoteProperty(const std::wstring& NoteProperty) {
    detail::Text result;
    detail::check(control_->GetNoteProperty(detail::Text(NoteProperty), result));
    return result.plain();
  }

  /// Writes a property of the current note, from text.
  /// @param NoteProperty The key of a property of the note.
  /// @param PropertyValue The value as text.
  bool SetNoteProperty(const std::wstring& NoteProperty, const std::wstring& PropertyValue) {
    detail::Flag result;
    detail::check(control_->SetNoteProperty(detail::Text(NoteProperty), detail::Text(PropertyValue), result));
    return result.plain();
  }

  /// Reads the number of the last recorded failure, 0 before any.
  short GetLastErrorNumber() {
    detail::Int16 result;
    detail::check(control_->GetLastErrorNumber(result));
    return result.plain();
  }

  /// Reads the text of the last recorded failure, empty before any.
  std::wstring GetLastErrorDescription() {
    detail::Text result;
    detail::check(control_->GetLastErrorDescription(result));
    return result.plain();
  }
};

/// Drives an office suite with the members of ZORBWord: opens, reads and searches documents.
class OpenWriter : public detail::Control<IOpenWriter> {
 public:
  /// Creates the control.
  OpenWriter() : Control(CLSID_OpenWriter, IID_IOpenWriter) {}
  /// Takes one that exists, such as a form's.
  explicit OpenWriter(IOpenWriter* control) : Control(control) {}

  /// Starts the office suite and holds its service manager and its desktop.
  /// @param Template True also asks for a window in a certain place, which fails; False does nothing more.
  bool Start(bool Template = false) {
    detail::Byte result;
    detail::check(control_->get_Start(detail::Flag(Template), result));
    return result.plain();
  }

  /// Does nothing: the suite decides itself what it shows.
  /// @param IsVisible Has no effect.
  bool SetVisible(bool IsVisible) {
    detail::Byte result;
    detail::check(control_->get_SetVisible(detail::Flag(IsVisible), result));
    return result.plain();
  }

  /// Does nothing: the suite decides itself what is in front.
  /// @param IsActive Has no effect.
  bool SetActive(bool IsActive) {
    detail::Byte result;
    detail::check(control_->get_SetActive(detail::Flag(IsActive), result));
    return result.plain();
  }

  /// Loads a document into the suite and makes it the active one.
  /// @param Doc Path of the document.
  bool OpenDoc(const std::wstring& Doc) {
    detail::Byte result;
    detail::check(control_->get_OpenDoc(detail::Text(Doc), result));
    return result.plain();
  }

  /// Loads a new document from a template into the suite, and makes it the active one.
  /// @param Doc Path of the template; an empty text means the normal one.
  bool CreateDoc(const std::wstring& Doc = L"") {
    detail::Byte result;
    detail::check(control_->get_CreateDoc(detail::Text(Doc), result));
    return result.plain();
  }

  /// Types a text at the selection.
  /// @param Text The text to type.
  bool SendText(const std::wstring& Text) {
    detail::Byte result;
    detail::check(control_->get_SendText(detail::Text(Text), result));
    return result.plain();
  }

  /// Reads the document's whole text.
  /// @param StartPos Has no effect.
  /// @param EndPos Has no effect.
  std::wstring ReadText(long StartPos, long EndPos) {
    detail::Text result;
    detail::check(control_->get_ReadText(detail::Int32(StartPos), detail::Int32(EndPos), result));
    return result.plain();
  }

  /// Does nothing: the suite redraws as it likes.
  /// @param Update Has no effect.
  bool SetScreenUpdating(bool Update) {
    detail::Byte result;
    detail::check(control_->get_SetScreenUpdating(detail::Flag(Update), result));
    return result.plain();
  }

  /// Shows the text to find in a box, and tells whether the document holds it.
  /// @param SearchString The text to find.
  /// @param WrapAction Has no effect.
  /// @param SearchForward Has no effect.
  /// @param BeginAtTop Has no effect.
  /// @param MatchCase Has no effect.
  /// @param MatchWholeWord Has no effect.
  /// @param MatchWildcards True reads the text that is searched for as a regular expression.
  /// @param MatchSoundsLike Has no effect.
  /// @param MatchAllWordForms Has no effect.
  bool Search(const std::wstring& SearchString, WdFindWrap WrapAction = wdFindContinue,
      bool SearchForward = true, bool BeginAtTop = false, bool MatchCase = false, bool MatchWholeWord = false,
      bool MatchWildcards = false, bool MatchSoundsLike = false, bool MatchAllWordForms = false) {
    detail::Byte result;
    detail::check(control_->get_Search(detail::Text(SearchString), detail::Byte(WrapAction),
        detail::Flag(SearchForward), detail::Flag(BeginAtTop), detail::Flag(MatchCase),
        detail::Flag(MatchWholeWord), detail::Flag(MatchWildcards), detail::Flag(MatchSoundsLike),
        detail::Flag(MatchAllWordForms), result));
    return result.plain();
  }

  /// Tells whether the selection is in a table.
  bool InTable() {
    detail::Byte result;
    detail::check(control_->get_InTable(result));
    return result.plain();
  }

  /// Selects the table row that the selection is in.
  void SelectRow() {
    detail::Variant result;
    detail::check(control_->SelectRow(result));
  }

  /// Finds a text from the selection on and replaces it.
  /// @param SearchString The text to find.
  /// @param ReplaceString The text to put in its place.
  /// @param WrapAction What to do at the end of the text: stop (0), go on at its other end (1), or ask (2).
  /// @param SearchForward True searches towards the end, False towards the start.
  /// @param BeginAtTop Has no effect.
  /// @param MatchCase True tells capital letters from small ones.
  /// @param MatchWholeWord True finds whole words only.
  /// @param MatchWildcards True reads the text that is searched for as a pattern.
  /// @param MatchSoundsLike True also finds words that sound alike.
  /// @param MatchAllWordForms True also finds the other forms of the words.
  /// @param ReplaceOption How many to replace: none (0), the first one (1), or all (2).
  bool Replace(const std::wstring& SearchString, const std::wstring& ReplaceString,
      WdFindWrap WrapAction = wdFindContinue, bool SearchForward = true, bool BeginAtTop = true,
      bool MatchCase = false, bool MatchWholeWord = false, bool MatchWildcards = false,
      bool MatchSoundsLike = false, bool MatchAllWordForms = false, WdReplace ReplaceOption = wdReplaceOne) {
    detail::Byte result;
    detail::check(control_->get_Replace(detail::Text(SearchString), detail::Text(ReplaceString),
        detail::Byte(WrapAction), detail::Flag(SearchForward), detail::Flag(BeginAtTop),
        detail::Flag(MatchCase), detail::Flag(MatchWholeWord), detail::Flag(MatchWildcards),
        detail::Flag(MatchSoundsLike), detail::Flag(MatchAllWordForms), detail::Byte(ReplaceOption), result));
    return result.plain();
  }

  /// Counts the sections of the active document.
  long NumberOfSections() {
    detail::Int32 result;
    detail::check(control_->get_NumberOfSections(result));
    return result.plain();
  }

  /// Reads the text of a header or footer, or a part of it.
  /// @param Section The section, counted from 1.
  /// @param IsHeader True means the header, False the footer.
  /// @param HeaderFooterType Of which pages: all others (1), the first (2), or even ones (3).
  /// @param StartPos First character, counted from 0; both positions 0 mean the whole text.
  /// @param EndPos Character after the last one; 0 means the end.
  std::wstring ReadHeaderFooterText(long Section, bool IsHeader, WdHeaderFooterIndex HeaderFooterType,
      long StartPos, long EndPos) {
    detail::Text result;
    detail::check(control_->get_ReadHeaderFooterText(detail::Int32(Section), detail::Flag(IsHeader),
        detail::Byte(HeaderFooterType), detail::Int32(StartPos), detail::Int32(EndPos), result));
    return result.plain();
  }

  /// Copies headers, footers and the normal font from one document to another, and saves that.
  /// @param SourceTemplate Path of the document to copy from; an empty text means the normal template.
  /// @param DestTemplate Path of the document to change; an empty text means the normal template.
  /// @param ApplyHeader True copies the headers.
  /// @param ApplyFooter True copies the footers.
  /// @param ApplyFont True copies the normal style's font.
  bool SetHeaderFooter(const std::wstring& SourceTemplate, const std::wstring& DestTemplate,
      unsigned char ApplyHeader, unsigned char ApplyFooter, unsigned char ApplyFont) {
    detail::Byte result;
    detail::check(control_->get_SetHeaderFooter(detail::Text(SourceTemplate), detail::Text(DestTemplate),
        detail::Byte(ApplyHeader), detail::Byte(ApplyFooter), detail::Byte(ApplyFont), result));
    return result.plain();
  }

  /// Finds a text in a header or footer and replaces it.
  /// @param Section The section, counted from 1.
  /// @param IsHeader True means the header, False the footer.
  /// @param HeaderFooterType Of which pages: all others (1), the first (2), or even ones (3).
  /// @param SearchString The text to find.
  /// @param ReplaceString The text to put in its place.
  /// @param WrapAction What to do at the end of the text: stop (0), go on at its other end (1), or ask (2).
  /// @param SearchForward True searches towards the end, False towards the start.
  /// @param BeginAtTop Has no effect.
  /// @param MatchCase True tells capital letters from small ones.
  /// @param MatchWholeWord True finds whole words only.
  /// @param MatchWildcards True reads the text that is searched for as a pattern.
  /// @param MatchSoundsLike True also finds words that sound alike.
  /// @param MatchAllWordForms True also finds the other forms of the words.
  /// @param ReplaceOption How many to replace: none (0), the first one (1), or all (2).
  bool ReplaceHeaderFooter(long Section, bool IsHeader, WdHeaderFooterIndex HeaderFooterType,
      const std::wstring& SearchString, const std::wstring& ReplaceString,
      WdFindWrap WrapAction = wdFindContinue, bool SearchForward = true, bool BeginAtTop = true,
      bool MatchCase = false, bool MatchWholeWord = false, bool MatchWildcards = false,
      bool MatchSoundsLike = false, bool MatchAllWordForms = false, WdReplace ReplaceOption = wdReplaceOne) {
    detail::Byte result;
    detail::check(control_->get_ReplaceHeaderFooter(detail::Int32(Section), detail::Flag(IsHeader),
        detail::Byte(HeaderFooterType), detail::Text(SearchString), detail::Text(ReplaceString),
        detail::Byte(WrapAction), detail::Flag(SearchForward), detail::Flag(BeginAtTop),
        detail::Flag(MatchCase), detail::Flag(MatchWholeWord), detail::Flag(MatchWildcards),
        detail::Flag(MatchSoundsLike), detail::Flag(MatchAllWordForms), detail::Byte(ReplaceOption), result));
    return result.plain();
  }

  /// Counts the cells of the selection's first table row.
  long CellCount() {
    detail::Int32 result;
    detail::check(control_->get_CellCount(result));
    return result.plain();
  }

  /// Reads a cell of the selection's first table row.
  /// @param CellId The cell, counted from 1.
  std::wstring CellText(long CellId) {
    detail::Text result;
    detail::check(control_->get_CellText(detail::Int32(CellId), result));
    return result.plain();
  }

  /// Cuts the selection to the clipboard.
  void Cut() {
    detail::Variant result;
    detail::check(control_->Cut(result));
  }

  /// Selects the paragraph in which the selection starts.
  void SelectParagraph() {
    detail::Variant result;
    detail::check(control_->SelectParagraph(result));
  }

  /// Reads the selected text.
  std::wstring SelectionText() {
    detail::Text result;
    detail::check(control_->get_SelectionText(result));
    return result.plain();
  }

  /// Pastes the clipboard at the selection.
  void Paste() {
    detail::Variant result;
    detail::check(control_->Paste(result));
  }

  /// Moves the insertion point to the left.
  /// @param Units How many units to move.
  /// @param Unit By what to move: a WdUnits number.
  /// @param Selecting Whether to extend the selection (1) or only to move (0).
  void CursorLeft(short Units, WdUnits Unit = wdCharacter, WdMovementType Selecting = wdMove) {
    detail::Variant result;
    detail::check(control_->CursorLeft(detail::Int16(Units), detail::Int16(Unit), detail::Variant(Selecting),
        result));
  }

  /// Moves the insertion point to the right.
  /// @param Units How many units to move.
  /// @param Unit By what to move: a WdUnits number.
  /// @param Selecting Whether to extend the selection (1) or only to move (0).
  void CursorRight(short Units, WdUnits Unit = wdCharacter, WdMovementType Selecting = wdMove) {
    detail::Variant result;
    detail::check(control_->CursorRight(detail::Int16(Units), detail::Int16(Unit), detail::Variant(Selecting),
        result));
  }

  /// Moves the insertion point to the start of its paragraph.
  void CursorStartOfParagraph() {
    detail::Variant result;
    detail::check(control_->CursorStartOfParagraph(result));
  }

  /// Moves the insertion point to the start of its table cell.
  void CursorStartOfCell() {
    detail::Variant result;
    detail::check(control_->CursorStartOfCell(result));
  }

  /// Moves the insertion point to the end of its table cell.
  void CursorEndOfCell() {
    detail::Variant result;
    detail::check(control_->CursorEndOfCell(result));
  }

  /// Moves the insertion point to the end of its paragraph.
  void CursorEndOfParagraph() {
    detail::Variant result;
    detail::check(control_->CursorEndOfParagraph(result));
  }

  /// Collapses the selection and moves it.
  /// @param Unit By what to move: a WdUnits number.
  /// @param Units How many units to move; a negative number moves back.
  void Move(WdUnits Unit, short Units) {
    detail::Variant result;
    detail::check(control_->Move(detail::Int16(Unit), detail::Int16(Units), result));
  }

  /// Updates the document's styles and parts it from its template.
  void FinaliseDoc() {
    detail::Variant result;
    detail::check(control_->FinaliseDoc(result));
  }

  /// Saves the document, under a new name where one is given.
  /// @param Docname Path to save as; an empty text keeps the name.
  void SaveDoc(const std::wstring& Docname = L"") {
    detail::Variant result;
    detail::check(control_->SaveDoc(detail::Text(Docname), result));
  }

  /// Prints the document to the first printer whose name has PDF in it.
  bool SaveDocAsPDF() {
    detail::Flag result;
    detail::check(control_->SaveDocAsPDF(result));
    return result.plain();
  }

  /// Closes the document.
  /// @param SaveOption What to do with changes: drop them (0), save them (-1), or ask (-2).
  void CloseDoc(WdSaveOptions SaveOption = wdDoNotSaveChanges) {
    detail::Variant result;
    detail::check(control_->CloseDoc(detail::Int16(SaveOption), result));
  }

  /// Quits the application.
  /// @param Force True quits also while documents are open.
  void StopWord(bool Force = false) {
    detail::Variant result;
    detail::check(control_->StopWord(detail::Flag(Force), result));
  }

  /// Prints the document.
  /// @param Copies How many copies.
  /// @param Background Has no effect.
  void PrintDoc(short Copies, bool Background = false) {
    detail::Variant result;
    detail::check(control_->PrintDoc(detail::Int16(Copies), detail::Flag(Background), result));
  }

  /// Counts the documents that are being printed or saved in the background.
  short IsPrinting() {
    detail::Int16 result;
    detail::check(control_->IsPrinting(result));
    return result.plain();
  }

  /// Reads one of the default folders.
  /// @param PathId Which folder: a WdDefaultFilePath number.
  std::wstring GetDefaultPaths(WdDefaultFilePath PathId) {
    detail::Text result;
    detail::check(control_->GetDefaultPaths(detail::Int16(PathId), result));
    return result.plain();
  }

  /// Moves the insertion point to a line.
  /// @param LineNo The line, counted from 1.
  bool GotoLine(short LineNo) {
    detail::Flag result;
    detail::check(control_->GotoLine(detail::Int16(LineNo), result));
    return result.plain();
  }

  /// Reads the number of the last recorded failure: always 0.
  long GetLastErrorNumber() {
    detail::Int32 result;
    detail::check(control_->get_GetLastErrorNumber(result));
    return result.plain();
  }

  /// Reads the text of the last recorded failure: always empty.
  std::wstring GetLastErrorDescription() {
    detail::Text result;
    detail::check(control_->get_GetLastErrorDescription(result));
    return result.plain();
  }
};

}  // namespace ZORBOffice

// For __uuidof and IID_PPV_ARGS with MinGW, as the attribute above is for the others.
#ifdef __CRT_UUID_DECL
__CRT_UUID_DECL(ZORBOffice::IZORBWord, 0x79397b6a, 0x4416, 0x4196, 0x88, 0x24, 0x6e, 0x59, 0x99, 0x16, 0xdc, 0x95)
__CRT_UUID_DECL(ZORBOffice::IZORBOutlook, 0xa7e31fe0, 0xe2a1, 0x4b1e, 0xb3, 0x86, 0x22, 0x56, 0x40, 0x26, 0x55, 0x1d)
__CRT_UUID_DECL(ZORBOffice::IOpenWriter, 0x8a83a708, 0x86a0, 0x414a, 0xa5, 0x88, 0x7d, 0xc3, 0x74, 0x93, 0x87, 0x29)
#endif
#undef ZORBOFFICE_UUID
