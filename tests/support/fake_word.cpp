#include "fake_word.h"

namespace {

// {5D3A2E0B-6C0E-4F53-9C0B-1B8E0A7D6F21}
constexpr GUID class_id = {0x5d3a2e0b, 0x6c0e, 0x4f53, {0x9c, 0x0b, 0x1b, 0x8e, 0x0a, 0x7d, 0x6f, 0x21}};
const std::wstring class_text = L"{5D3A2E0B-6C0E-4F53-9C0B-1B8E0A7D6F21}";
constexpr wchar_t program_key[] = L"Software\\Classes\\Word.Application";
constexpr wchar_t class_key[] = L"Software\\Classes\\Word.Application\\CLSID";

void register_class(const std::wstring& text) {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, class_key, nullptr, REG_SZ, text.c_str(), bytes);
}

}  // namespace

FakeWord::FakeWord() {
  CoInitialize(nullptr);
  objects = {"ActiveWindow", "Cells", "Documents", "Find",     "Footers",   "Headers", "Options",
             "Paragraphs",   "Range", "Rows",      "Sections", "Selection", "System"};
  answers = {
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
  wchar_t earlier[64] = {};
  DWORD bytes = sizeof(earlier);
  RegGetValueW(HKEY_LOCAL_MACHINE, class_key, nullptr, RRF_RT_REG_SZ, nullptr, earlier, &bytes);
  // What an interrupted test left behind was not there before either.
  if (earlier != class_text) earlier_class_ = earlier;
  register_class(class_text);
  CoRegisterClassObject(class_id, static_cast<IClassFactory*>(this),
                        CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &registration_);
}

FakeWord::~FakeWord() {
  CoRevokeClassObject(registration_);
  if (earlier_class_.empty()) {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, program_key);
  } else {
    register_class(earlier_class_);
  }
}

HRESULT FakeWord::QueryInterface(REFIID iid, void** object) {
  const bool known = iid == IID_IUnknown || iid == IID_IClassFactory;
  *object = known ? static_cast<IClassFactory*>(this) : nullptr;
  return known ? S_OK : E_NOINTERFACE;
}

HRESULT FakeWord::CreateInstance(IUnknown*, REFIID iid, void** object) {
  *object = nullptr;
  if (const HRESULT failed = step("create Word.Application"); FAILED(failed)) return failed;
  IDispatch* application = make("Application");
  const HRESULT result = application->QueryInterface(iid, object);
  application->Release();
  return result;
}
