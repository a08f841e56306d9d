// Drives ZORBWord from C++ by vtable and writes what each member answered. Every host must write the same
// lines. Usage: cpp_host FOLDER SPECIAL
#include <windows.h>
#include <comutil.h>

#include <cstdio>
#include <regex>
#include <string>

#include "ZORBOffice/surface/identifiers.h"
#include "ZORBOffice/surface/word_processor_interface.h"
#include "outside/library.h"
#include "support/text.h"

namespace {

using Microsoft::WRL::ComPtr;
using zorboffice::WordProcessorInterface;

std::wstring special;

std::string text_of(LONG number) { return std::to_string(number); }
std::string text_of(BSTR text) { return utf8(outside::take(text)); }
std::string text_of(const VARIANT& value) { return V_VT(&value) == VT_EMPTY ? "" : "not empty"; }

std::string raised(HRESULT status) {
  ComPtr<IErrorInfo> information;
  BSTR description = nullptr;
  if (GetErrorInfo(0, &information) == S_OK) information->GetDescription(&description);
  return text_of(static_cast<LONG>(LOWORD(status))) + " " + text_of(description);
}

struct Host {
  WordProcessorInterface* word;

  // Calls a member and writes its answer, or the number and description of what it raised.
  template <class Result, class Method, class... Parameters>
  void call(const char* member, Method method, Parameters... parameters) const {
    Result result{};
    const HRESULT status = (word->*method)(parameters..., &result);
    std::string answer = FAILED(status) ? raised(status) : text_of(result);
    answer = std::regex_replace(answer, std::regex("\r"), "\\r");
    answer = std::regex_replace(answer, std::regex(utf8(special)), "<special>");
    std::printf("%s: %s\n", member, answer.c_str());
  }
};

void drive(WordProcessorInterface* word, const std::wstring& path, const std::wstring& text) {
  using I = WordProcessorInterface;
  const Host host{word};
  VARIANT_BOOL no = VARIANT_FALSE, yes = VARIANT_TRUE;
  SHORT zero = 0, one = 1, five = 5, units = 3;
  LONG start = 0, end = 0;
  const _bstr_t typed(text.c_str()), dash(L"-"), file(path.c_str());
  BSTR empty_text = nullptr, typed_text = typed, dash_text = dash, file_text = file;
  _variant_t move(0), extend(1);

  host.call<BYTE>("Start", &I::get_Start, &no);
  host.call<BYTE>("CreateDoc", &I::get_CreateDoc, &empty_text);
  host.call<BYTE>("SendText", &I::get_SendText, &typed_text);
  host.call<VARIANT>("CursorLeft", &I::CursorLeft, &five, &one, &extend);
  host.call<BSTR>("SelectionText", &I::get_SelectionText);
  host.call<VARIANT>("Cut", &I::Cut);
  host.call<BSTR>("ReadText", &I::get_ReadText, &start, &end);
  host.call<VARIANT>("Paste", &I::Paste);
  start = 1;
  end = 3;
  host.call<BSTR>("ReadText", &I::get_ReadText, &start, &end);
  host.call<VARIANT>("CursorLeft", &I::CursorLeft, &units, &one, &move);
  host.call<BYTE>("SendText", &I::get_SendText, &dash_text);
  start = end = 0;
  host.call<BSTR>("ReadText", &I::get_ReadText, &start, &end);
  host.call<SHORT>("GotoLine", &I::GotoLine, &one);
  host.call<VARIANT>("SelectParagraph", &I::SelectParagraph);
  host.call<BSTR>("SelectionText", &I::get_SelectionText);
  host.call<VARIANT>("SaveDoc", &I::SaveDoc, &file_text);
  host.call<VARIANT>("CloseDoc", &I::CloseDoc, &zero);
  host.call<BYTE>("OpenDoc", &I::get_OpenDoc, &file_text);
  host.call<BSTR>("ReadText", &I::get_ReadText, &start, &end);
  host.call<SHORT>("IsPrinting", &I::IsPrinting);
  host.call<VARIANT>("CloseDoc", &I::CloseDoc, &zero);
  host.call<SHORT>("GotoLine", &I::GotoLine, &one);
  host.call<VARIANT>("StopWord", &I::StopWord, &no);
  host.call<LONG>("NumberOfSections", &I::get_NumberOfSections);
  host.call<VARIANT>("StopWord", &I::StopWord, &yes);
  host.call<LONG>("GetLastErrorNumber", &I::get_GetLastErrorNumber);
  host.call<BSTR>("GetLastErrorDescription", &I::get_GetLastErrorDescription);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 3) return 2;
  const std::wstring path = std::wstring(arguments[1]) + L"\\cpp.docx";
  special = arguments[2];
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  ComPtr<WordProcessorInterface> word;
  CLSID class_id{};
  CLSIDFromProgID(L"ZORBOffice.ZORBWord", &class_id);
  const HRESULT created =
      CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, zorboffice::zorb_word_interface_id, &word);
  if (FAILED(created)) return std::printf("not created: %08lX\n", created), 1;
  drive(word.Get(), path, L"One two " + special + L" three");
  return 0;
}
