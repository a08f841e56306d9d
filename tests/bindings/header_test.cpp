// The C++ binding over the built library, which need not be registered. Compiled as C++11, the oldest that the binding is for.
#include "bindings/cpp/ZORBOffice.h"

#include <cstdio>

namespace {

using namespace ZORBOffice;

int failures = 0;

void expect(bool holds, const char* what) {
  if (holds) return;
  ++failures;
  (void)std::printf("not so: %s\n", what);
}

template <class Call>
HRESULT thrown_by(const Call& call, std::wstring* text = nullptr) {
  try {
    call();
  } catch (const Error& failure) {
    if (text) *text = failure.text();
    return failure.code();
  }
  return S_OK;
}

// Where the library stands: beside this program.
std::wstring beside(const wchar_t* name) {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::wstring program = path;
  return program.substr(0, program.rfind(L'\\') + 1) + name;
}

bool is_in_context(const CLSID& id) {
  ACTCTX_SECTION_KEYED_DATA found = ACTCTX_SECTION_KEYED_DATA();
  found.cbSize = sizeof found;
  return FindActCtxSectionGuid(0, nullptr, ACTIVATION_CONTEXT_SECTION_COM_SERVER_REDIRECTION, &id, &found);
}

// Before Start, and among the members without a box: what each answers then is known.
void call_fresh_controls() {
  ZORBWord word;
  expect(!word.GotoLine(1) && !word.Replace(L"a", L"b"), "GotoLine and Replace fail silently");
  std::wstring text;
  const HRESULT object_required = static_cast<HRESULT>(0x800A01A8);
  expect(thrown_by([&] { word.NumberOfSections(); }, &text) == object_required && text == L"Object required",
         "NumberOfSections tells the host what failed");
  // The last slots of the interface.
  expect(word.GetLastErrorNumber() == 0 && ZORBWord(word.control()).GetLastErrorDescription().empty(),
         "ZORBWord records nothing");

  ZORBOutlook outlook;
  expect(!outlook.GetAppointmentInstance(L"2026-11-23") && outlook.StopOutlook(), "ZORBOutlook takes texts and leaves out");
  expect(outlook.GetLastErrorNumber() == 91, "ZORBOutlook records a number");
  expect(outlook.GetLastErrorDescription() == L"Object variable or With block variable not set",
         "ZORBOutlook records a text");

  OpenWriter writer;
  expect(writer.SetVisible(true) && writer.GetLastErrorNumber() == 0, "OpenWriter's first and last members answer");
}

}  // namespace

int main() {
  const Apartment apartment;
  expect(thrown_by([] { UnregisteredLibrary(beside(L"missing.manifest")); }) != S_OK, "a missing manifest is told");
  for (const wchar_t* name : {L"ZORBOffice.manifest", L"ZORBOffice.ocx"}) {
    const UnregisteredLibrary library(beside(name));
    expect(is_in_context(CLSID_ZORBWord) && is_in_context(CLSID_OpenWriter), "the classes are known without registration");
    expect(thrown_by(call_fresh_controls) == S_OK, "the controls can be created");
  }
  expect(!is_in_context(CLSID_ZORBWord), "the classes are forgotten afterwards");
  return failures ? 1 : 0;
}
