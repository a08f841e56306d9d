#include "fake_outlook.h"

#include "text.h"

namespace {

// {B7C1E0A4-52D9-4E0B-8F3A-6D5C2A91F7E8}
constexpr GUID class_id = {0xb7c1e0a4, 0x52d9, 0x4e0b, {0x8f, 0x3a, 0x6d, 0x5c, 0x2a, 0x91, 0xf7, 0xe8}};

}  // namespace

FakeOutlook::FakeOutlook() : FakeApplication("Outlook.Application", class_id) {
  objects = {"Attachments", "Exceptions"};
  answers = {
      {"Application.GetNamespace", {.object = "NameSpace"}},
      {"NameSpace.GetDefaultFolder(i4 5)", {.object = "SentMail"}},
      {"NameSpace.GetDefaultFolder(i4 3)", {.object = "DeletedItems"}},
      {"SentMail.Items", {.object = "SentItems"}},
      {"DeletedItems.Items", {.object = "RemovedItems"}},
      {"Foreign.Class", {69}},
      {"Appointment.GetRecurrencePattern", {.object = "Pattern"}},
      {"Pattern.GetOccurrence", {.object = "Occurrence"}},
      {"Occurrence.Class", {26}},
      {"Email.Body", {L"The picture logo.png is in the text."}},
      {"Attachments.[newenum]", {.items = {"Logo", "Report", "Figures"}}},
      {"Attachments.Count", {3}},
      {"Attachments.Item", {.object = "Attachment"}},
      {"Attachment.BlockLevel", {0}},
      {"Attachment.Type", {1}},
      {"Logo.FileName", {L"logo.png"}},
      {"Report.FileName", {L"report.pdf"}},
      {"Figures.FileName", {L"figures.csv"}},
  };
  for (const auto& kind : item_kinds) {
    const std::string items = kind.items;
    answers["Application.CreateItem(i4 " + std::to_string(kind.item_type) + ")"] = {.object = kind.name};
    answers["NameSpace.GetItemFromID(bstr \"" + utf8(kind.word) + "\")"] = {.object = kind.found};
    answers["NameSpace.GetDefaultFolder(i4 " + std::to_string(kind.folder_number) + ")"] = {.object =
                                                                                                kind.folder};
    answers[std::string(kind.folder) + ".Items"] = {.object = kind.items};
    for (const char* member : {".GetFirst", ".GetNext"}) answers[items + member] = {.object = kind.found};
    answers[items + ".Count"] = {7};
    for (const char* item : {kind.name, kind.found})
      answers[std::string(item) + ".Class"] = {kind.item_class};
  }
}
