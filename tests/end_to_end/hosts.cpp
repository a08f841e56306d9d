// Drives ZORBWord from C++ and writes what each member answered, bound late (by name) or early (by vtable).
// Every host must write the same lines. Usage: cpp_host late|early FOLDER SPECIAL
#include <windows.h>
#include <comutil.h>

#include <cstdio>
#include <cstring>
#include <regex>
#include <string>

#include "ZORBOffice/surface/identifiers.h"
#include "ZORBOffice/surface/word_processor_interface.h"
#include "outside/library.h"
#include "support/fake_object.h"
#include "support/late_call.h"
#include "support/text.h"

namespace {

using Arguments = std::vector<_variant_t>;
using Microsoft::WRL::ComPtr;
using zorboffice::WordProcessorInterface;

std::wstring special;

// Writes an answer as the scripts do: without the variant kind, and a failure by its number. StopWord answers
// nothing, and the hosts write what it raised.
void say(const std::string& member, std::string answer) {
  if (answer.starts_with("raised ")) {
    answer = std::to_string(std::stoul(answer.substr(7, 8), nullptr, 16) & 0xFFFF) + answer.substr(15);
  } else if (member == "StopWord") {
    answer = "0 ";
  }
  answer = std::regex_replace(answer, std::regex("^(empty|(ui1|i2|i4|bool|bstr) )|\""), "");
  answer = std::regex_replace(answer, std::regex("\r"), "\\r");
  answer = std::regex_replace(answer, std::regex(utf8(special)), "<special>");
  std::printf("%s: %s\n", member.c_str(), answer.c_str());
}

void say(IDispatch* word, const std::string& member, const Arguments& arguments = {}) {
  say(member, late_call(word, std::wstring(member.begin(), member.end()).c_str(), arguments));
}

// A host's variable, as script engines pass it.
_variant_t by_reference(VARIANT* variable) {
  VARIANT reference{};
  V_VT(&reference) = VT_BYREF | VT_VARIANT;
  V_VARIANTREF(&reference) = variable;
  return _variant_t(reference, false);
}

void drive_late(IDispatch* word, const std::wstring& path, const std::wstring& text) {
  const _variant_t file(path.c_str());
  const Arguments everything = {0L, 0L};
  say(word, "Start");
  say(word, "CreateDoc");
  say(word, "SendText", {text.c_str()});
  say(word, "CursorLeft", {5, 1, 1});
  say(word, "SelectionText");
  say(word, "Cut");
  say(word, "ReadText", everything);
  say(word, "Paste");
  say(word, "ReadText", {1L, 3.0});
  const _variant_t missing(DISP_E_PARAMNOTFOUND, VT_ERROR);
  _variant_t units(L"3");
  say(word, "CursorLeft", {by_reference(&units), missing, 0});
  say("units", describe(units));
  say(word, "SendText", {L"-"});
  say(word, "ReadText", everything);
  say(word, "GotoLine", {1});
  say(word, "SelectParagraph");
  say(word, "SelectionText");
  say(word, "SaveDoc", {file});
  say(word, "CloseDoc");
  say(word, "OpenDoc", {file});
  say(word, "ReadText", everything);
  say(word, "IsPrinting");
  say(word, "CloseDoc", {0});
  say(word, "GotoLine", {1});
  say(word, "NumberOfSections");
  say(word, "StopWord", {false});
  say(word, "StopWord", {true});
  say(word, "GetLastErrorNumber");
  say(word, "GetLastErrorDescription");
}

class EarlyHost {
 public:
  explicit EarlyHost(WordProcessorInterface* word) : word_(word) {}

  // Calls a member whose result is of the C++ type Result, shown as a variant of the type `type`.
  template <class Result, class Method, class... Parameters>
  void call(const std::string& member, VARTYPE type, Method method, Parameters... parameters) {
    Result result{};
    const HRESULT status = (word_->*method)(parameters..., &result);
    if (FAILED(status)) return say(member, raised(status));
    VARIANT answer{};
    V_VT(&answer) = type;
    std::memcpy(&V_UI1(&answer), &result, type == VT_EMPTY ? 0 : sizeof result);
    say(member, describe(answer));
    VariantClear(&answer);
  }

 private:
  static std::string raised(HRESULT status) {
    ComPtr<IErrorInfo> information;
    BSTR description = nullptr;
    if (GetErrorInfo(0, &information) == S_OK) information->GetDescription(&description);
    char number[16];
    std::snprintf(number, sizeof number, "%08lX ", status);
    return std::string("raised ") + number + utf8(outside::take(description));
  }

  WordProcessorInterface* word_;
};

void drive_early(WordProcessorInterface* word, const std::wstring& path, const std::wstring& text) {
  using I = WordProcessorInterface;
  EarlyHost host(word);
  VARIANT_BOOL no = VARIANT_FALSE, yes = VARIANT_TRUE;
  SHORT zero = 0, one = 1, five = 5, units = 3;
  LONG start = 0, end = 0;
  const _bstr_t typed(text.c_str()), dash(L"-"), file(path.c_str());
  BSTR empty_text = nullptr, typed_text = typed, dash_text = dash, file_text = file;
  _variant_t move(0), extend(1);

  host.call<BYTE>("Start", VT_UI1, &I::get_Start, &no);
  host.call<BYTE>("CreateDoc", VT_UI1, &I::get_CreateDoc, &empty_text);
  host.call<BYTE>("SendText", VT_UI1, &I::get_SendText, &typed_text);
  host.call<VARIANT>("CursorLeft", VT_EMPTY, &I::CursorLeft, &five, &one, &extend);
  host.call<BSTR>("SelectionText", VT_BSTR, &I::get_SelectionText);
  host.call<VARIANT>("Cut", VT_EMPTY, &I::Cut);
  host.call<BSTR>("ReadText", VT_BSTR, &I::get_ReadText, &start, &end);
  host.call<VARIANT>("Paste", VT_EMPTY, &I::Paste);
  start = 1;
  end = 3;
  host.call<BSTR>("ReadText", VT_BSTR, &I::get_ReadText, &start, &end);
  host.call<VARIANT>("CursorLeft", VT_EMPTY, &I::CursorLeft, &units, &one, &move);
  std::printf("units: %d\n", units);
  host.call<BYTE>("SendText", VT_UI1, &I::get_SendText, &dash_text);
  start = end = 0;
  host.call<BSTR>("ReadText", VT_BSTR, &I::get_ReadText, &start, &end);
  host.call<SHORT>("GotoLine", VT_BOOL, &I::GotoLine, &one);
  host.call<VARIANT>("SelectParagraph", VT_EMPTY, &I::SelectParagraph);
  host.call<BSTR>("SelectionText", VT_BSTR, &I::get_SelectionText);
  host.call<VARIANT>("SaveDoc", VT_EMPTY, &I::SaveDoc, &file_text);
  host.call<VARIANT>("CloseDoc", VT_EMPTY, &I::CloseDoc, &zero);
  host.call<BYTE>("OpenDoc", VT_UI1, &I::get_OpenDoc, &file_text);
  host.call<BSTR>("ReadText", VT_BSTR, &I::get_ReadText, &start, &end);
  host.call<SHORT>("IsPrinting", VT_I2, &I::IsPrinting);
  host.call<VARIANT>("CloseDoc", VT_EMPTY, &I::CloseDoc, &zero);
  host.call<SHORT>("GotoLine", VT_BOOL, &I::GotoLine, &one);
  host.call<LONG>("NumberOfSections", VT_I4, &I::get_NumberOfSections);
  host.call<VARIANT>("StopWord", VT_EMPTY, &I::StopWord, &no);
  host.call<VARIANT>("StopWord", VT_EMPTY, &I::StopWord, &yes);
  host.call<LONG>("GetLastErrorNumber", VT_I4, &I::get_GetLastErrorNumber);
  host.call<BSTR>("GetLastErrorDescription", VT_BSTR, &I::get_GetLastErrorDescription);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 4) return 2;
  const bool early = std::wstring(arguments[1]) == L"early";
  const std::wstring path = std::wstring(arguments[2]) + (early ? L"\\early.docx" : L"\\late.docx");
  special = arguments[3];
  const std::wstring text = L"One two " + special + L" three";
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  ComPtr<WordProcessorInterface> word;
  CLSID class_id{};
  CLSIDFromProgID(L"ZORBOffice.ZORBWord", &class_id);
  const HRESULT created =
      CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, zorboffice::zorb_word_interface_id, &word);
  if (FAILED(created)) return std::printf("not created: %08lX\n", created), 1;
  early ? drive_early(word.Get(), path, text) : drive_late(word.Get(), path, text);
  return 0;
}
