#include "fake_offices.h"

#include "text.h"

namespace {

constexpr GUID word_id = {0x5d3a2e0b, 0x6c0e, 0x4f53, {0x9c, 0x0b, 0x1b, 0x8e, 0x0a, 0x7d, 0x6f, 0x21}};
constexpr GUID manager_id = {0x1c2f7a60, 0x5b0d, 0x4e55, {0x8d, 0x6b, 0x7a, 0x0f, 0x6e, 0x1b, 0x93, 0xc4}};
constexpr GUID outlook_id = {0xb7c1e0a4, 0x52d9, 0x4e0b, {0x8f, 0x3a, 0x6d, 0x5c, 0x2a, 0x91, 0xf7, 0xe8}};
// The word processor's own.
constexpr GUID global_id = {0x000209f0, 0, 0, {0xc0, 0, 0, 0, 0, 0, 0, 0x46}};

// Gives an office the word processor's objects and answers, below a root called "Application".
void teach_word(FakeOffice& office) {
  office.objects = {"ActiveWindow", "Cells", "Documents", "Find",     "Footers",   "Headers", "Options",
                    "Paragraphs",   "Range", "Rows",      "Sections", "Selection", "System"};
  office.answers = {
      {"Application.ActivePrinter", {L"Kept"}},
      {"Application.BackgroundPrintingStatus", {1}},
      {"Application.BackgroundSavingStatus", {1}},
      {"Application.CentimetersToPoints(r4 0.5)", {14.25f}},
      {"Application.CentimetersToPoints(r4 3)", {85.5f}},
      {"Application.PixelsToPoints(r4 1024)", {768.f}},
      {"Application.PixelsToPoints(r4 1280)", {960.f}},
      {"Application.Version", {L"11.0"}},
      {"Documents.Add", {.object = "Document"}},
      {"Documents.Count", {0}},
      {"Documents.Open", {.object = "Document"}},
      {"Cells.Count", {4}},
      {"Find.Execute", {true}},
      {"Footers.Exists", {true}},
      {"Headers.Exists", {true}},
      {"Options.DefaultFilePath", {L"C:\\Documents"}},
      {"Range.Text", {L"0123456789"}},
      {"Range.[value]", {L"3456789"}},
      {"Range1.Text", {L"one "}},
      {"Range2.Text", {L"two "}},
      {"Range3.Text", {L"three"}},
      {"Section1.Range", {.object = "Range1"}},
      {"Section2.Range", {.object = "Range2"}},
      {"Section3.Range", {.object = "Range3"}},
      {"Sections.Count", {3}},
      {"Sections.[newenum]", {.items = {"Section1", "Section2", "Section3"}}},
      {"Selection.Information", {true}},
      {"Selection.Text", {L"chosen"}},
      {"System.HorizontalResolution", {1280}},
      {"System.VerticalResolution", {1024}},
  };
}

}  // namespace

FakeClass::FakeClass(FakeOffice& office, const CLSID& class_id, const std::string& label, const char* object,
                     Serving serving)
    : office_(office), label_(label), object_(object) {
  CoInitialize(nullptr);
  CoRegisterClassObject(class_id, static_cast<IClassFactory*>(this),
                        CLSCTX_LOCAL_SERVER | (serving == Serving::others ? 0 : CLSCTX_INPROC_SERVER),
                        serving == Serving::others ? REGCLS_SINGLEUSE : REGCLS_MULTIPLEUSE, &registration_);
  if (serving != Serving::named) return;
  program_key_ = L"Software\\Classes\\" + std::wstring(label.begin(), label.end());
  wchar_t own[64] = {}, earlier[64] = {};
  StringFromGUID2(class_id, own, 64);
  DWORD bytes = sizeof(earlier);
  RegGetValueW(HKEY_LOCAL_MACHINE, (program_key_ + L"\\CLSID").c_str(), nullptr, RRF_RT_REG_SZ, nullptr,
               earlier, &bytes);
  // What an interrupted test left behind was not there before either.
  if (std::wstring_view(earlier) != own) earlier_class_ = earlier;
  name(own);
}

FakeClass::~FakeClass() {
  CoRevokeClassObject(registration_);
  CoUninitialize();
  if (!earlier_class_.empty())
    name(earlier_class_);
  else if (!program_key_.empty())
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, program_key_.c_str());
}

void FakeClass::name(const std::wstring& class_id) const {
  const auto bytes = static_cast<DWORD>((class_id.size() + 1) * sizeof(wchar_t));
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, (program_key_ + L"\\CLSID").c_str(), nullptr, REG_SZ, class_id.c_str(),
                  bytes);
}

HRESULT FakeClass::QueryInterface(REFIID iid, void** object) {
  const bool known = iid == IID_IUnknown || iid == IID_IClassFactory;
  *object = known ? static_cast<IClassFactory*>(this) : nullptr;
  return known ? S_OK : E_NOINTERFACE;
}

HRESULT FakeClass::CreateInstance(IUnknown*, REFIID iid, void** object) {
  *object = nullptr;
  if (const HRESULT turned_away = office_.gate(); FAILED(turned_away)) return turned_away;
  if (const HRESULT failed = office_.step("create " + label_); FAILED(failed)) return failed;
  IDispatch* created = office_.make(object_);
  const HRESULT result = created->QueryInterface(iid, object);
  created->Release();
  return result;
}

FakeWord::FakeWord(Serving serving) : class_(*this, word_id, "Word.Application", "Application", serving) {
  teach_word(*this);
}

FakeSuite::FakeSuite(Serving serving)
    : manager_(*this, manager_id, "com.sun.star.ServiceManager", "Application", serving),
      global_(*this, global_id, "Global", "Global", Serving::unnamed) {
  teach_word(*this);
  publishes = false;
  objects.insert({"GetSelection", "GetText", "createSearchDescriptor"});
  answers.merge(std::map<std::string, Answer>{
      {R"(Application.createInstance(bstr "com.sun.star.frame.Desktop"))", {.object = "Desktop"}},
      {"Application.createInstance", {.object = "Service"}},
      {"Desktop.loadComponentFromURL", {.object = "Document"}},
      {"Document.findFirst", {.object = "Match"}},
      {"GetSelection.GetString", {L"chosen"}},
      {"GetText.GetString", {L"all of it"}},
      {"Global.CentimetersToPoints(r4 0.5)", {14.25f}},
      {"Global.CentimetersToPoints(r4 3)", {85.5f}},
      {"Global.PixelsToPoints(r4 1024, missing)", {768.f}},
      {"Global.PixelsToPoints(r4 1280, missing)", {960.f}},
  });
}

FakeOutlook::FakeOutlook(Serving serving)
    : class_(*this, outlook_id, "Outlook.Application", "Application", serving) {
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
