// Drives ZORBWord from C++ and writes what each member answered, bound late (by name) or early (by vtable).
// Every host must write the same lines. Usage: cpp_host late|early FOLDER SPECIAL
#include <windows.h>
#include <oleauto.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "ZORBOffice/common/bstr.h"
#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/common/variant.h"
#include "ZORBOffice/surface/identifiers.h"
#include "ZORBOffice/surface/word_processor_interface.h"

namespace {

using zorboffice::Bstr;
using zorboffice::ComPtr;
using zorboffice::Variant;
using zorboffice::WordProcessorInterface;

Variant value(VARTYPE type, LONG number) {
  Variant variant;
  V_VT(&variant.get()) = VT_I4;
  V_I4(&variant.get()) = number;
  VariantChangeType(&variant.get(), &variant.get(), 0, type);
  return variant;
}

Variant value(const std::wstring& text) {
  Variant variant;
  V_VT(&variant.get()) = VT_BSTR;
  V_BSTR(&variant.get()) = Bstr(text).release();
  return variant;
}

Variant missing() {
  Variant variant;
  V_VT(&variant.get()) = VT_ERROR;
  V_ERROR(&variant.get()) = DISP_E_PARAMNOTFOUND;
  return variant;
}

std::wstring special;

void replace(std::wstring& text, const std::wstring& part, const wchar_t* with) {
  if (const std::size_t position = text.find(part); position != std::wstring::npos) {
    text.replace(position, part.size(), with);
  }
}

void say(const char* member, const Variant& answer) {
  Variant text;
  VariantChangeType(&text.get(), const_cast<VARIANT*>(&answer.get()), 0, VT_BSTR);
  std::wstring line(zorboffice::view(V_BSTR(&text.get())));
  replace(line, L"\r", L"\\r");
  replace(line, special, L"<special>");
  std::printf("%s: %ls\n", member, line.c_str());
}

class LateHost {
 public:
  explicit LateHost(IDispatch* word) : word_(word) {}

  template <class... Arguments>
  void operator()(const char* member, Arguments... arguments) {
    std::vector<VARIANT> list = {arguments.release()...};
    for (std::size_t i = 0; i < list.size() / 2; ++i) std::swap(list[i], list[list.size() - 1 - i]);
    const std::wstring name(member, member + std::strlen(member));
    LPOLESTR names[] = {const_cast<LPOLESTR>(name.c_str())};
    DISPID id = DISPID_UNKNOWN;
    word_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    DISPPARAMS parameters{list.data(), nullptr, static_cast<UINT>(list.size()), 0};
    Variant result;
    EXCEPINFO raised{};
    const HRESULT status =
        word_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &parameters,
                      result.receive(), &raised, nullptr);
    const bool may_raise = name == L"InTable" || name == L"StopWord";
    if (status == DISP_E_EXCEPTION) {
      say(member, value(std::to_wstring(raised.scode & 0xFFFF) + L" " + raised.bstrDescription));
    } else if (FAILED(status)) {
      std::printf("%s: failed with %08lX\n", member, status);
    } else {
      say(member, may_raise ? value(L"0 ") : std::move(result));
    }
    for (VARIANT& argument : list) VariantClear(&argument);
  }

 private:
  IDispatch* word_;
};

void drive_late(IDispatch* word, const std::wstring& path, const std::wstring& text) {
  LateHost call(word);
  call("Start");
  call("CreateDoc");
  call("SendText", value(text));
  call("CursorLeft", value(VT_I2, 5), value(VT_I2, 1), value(VT_I4, 1));
  call("SelectionText");
  call("Cut");
  call("ReadText", value(VT_I4, 0), value(VT_I4, 0));
  call("Paste");
  call("ReadText", value(VT_I4, 1), value(VT_R8, 3));
  call("CursorLeft", value(L"3"), missing(), value(VT_I2, 0));
  say("units", value(L"3"));
  call("SendText", value(L"-"));
  call("ReadText", value(VT_I4, 0), value(VT_I4, 0));
  call("GotoLine", value(VT_I2, 1));
  call("SelectParagraph");
  call("SelectionText");
  call("SaveDoc", value(path));
  call("CloseDoc");
  call("OpenDoc", value(path));
  call("ReadText", value(VT_I4, 0), value(VT_I4, 0));
  call("IsPrinting");
  call("CloseDoc", value(VT_I2, 0));
  call("GotoLine", value(VT_I2, 1));
  call("InTable");
  call("StopWord", value(VT_BOOL, 0));
  call("StopWord", value(VT_BOOL, 1));
  call("GetLastErrorNumber");
  call("GetLastErrorDescription");
}

class EarlyHost {
 public:
  explicit EarlyHost(WordProcessorInterface* word) : word_(word) {}

  template <class Method, class... Arguments>
  void byte(const char* member, Method method, Arguments... arguments) {
    BYTE result = 9;
    const HRESULT status = (word_->*method)(arguments..., &result);
    report(member, status, value(VT_I4, result));
  }

  template <class Method, class... Arguments>
  void text(const char* member, Method method, Arguments... arguments) {
    Variant result;
    V_VT(&result.get()) = VT_BSTR;
    const HRESULT status = (word_->*method)(arguments..., &V_BSTR(&result.get()));
    report(member, status, std::move(result));
  }

  template <class Method, class... Arguments>
  void number(const char* member, Method method, Arguments... arguments) {
    SHORT result = 9;
    const HRESULT status = (word_->*method)(arguments..., &result);
    report(member, status, value(VT_I4, result));
  }

  template <class Method, class... Arguments>
  void nothing(const char* member, Method method, Arguments... arguments) {
    Variant result;
    const HRESULT status = (word_->*method)(arguments..., result.receive());
    const bool may_raise = std::strcmp(member, "StopWord") == 0;
    report(member, status, may_raise ? value(L"0 ") : std::move(result));
  }

 private:
  static void report(const char* member, HRESULT status, Variant answer) {
    if (SUCCEEDED(status)) return say(member, answer);
    ComPtr<IErrorInfo> information;
    Bstr description;
    if (GetErrorInfo(0, information.receive()) == S_OK) information->GetDescription(description.receive());
    say(member, value(std::to_wstring(status & 0xFFFF) + L" " + std::wstring(description.view())));
  }

  WordProcessorInterface* word_;
};

void drive_early(WordProcessorInterface* word, const std::wstring& path, const std::wstring& text) {
  using I = WordProcessorInterface;
  EarlyHost host(word);
  VARIANT_BOOL no = VARIANT_FALSE;
  VARIANT_BOOL yes = VARIANT_TRUE;
  SHORT zero = 0;
  SHORT one = 1;
  SHORT five = 5;
  SHORT units = 3;
  LONG start = 0;
  LONG end = 0;
  Bstr empty;
  Bstr typed(text);
  Bstr dash(L"-");
  Bstr file(path);
  BSTR empty_text = empty.get();
  BSTR typed_text = typed.get();
  BSTR dash_text = dash.get();
  BSTR file_text = file.get();
  Variant move = value(VT_I2, 0);
  Variant extend = value(VT_I4, 1);

  host.byte("Start", &I::get_Start, &no);
  host.byte("CreateDoc", &I::get_CreateDoc, &empty_text);
  host.byte("SendText", &I::get_SendText, &typed_text);
  host.nothing("CursorLeft", &I::CursorLeft, &five, &one, &extend.get());
  host.text("SelectionText", &I::get_SelectionText);
  host.nothing("Cut", &I::Cut);
  host.text("ReadText", &I::get_ReadText, &start, &end);
  host.nothing("Paste", &I::Paste);
  start = 1;
  end = 3;
  host.text("ReadText", &I::get_ReadText, &start, &end);
  host.nothing("CursorLeft", &I::CursorLeft, &units, &one, &move.get());
  say("units", value(VT_I4, units));
  host.byte("SendText", &I::get_SendText, &dash_text);
  start = end = 0;
  host.text("ReadText", &I::get_ReadText, &start, &end);
  host.number("GotoLine", &I::GotoLine, &one);
  host.nothing("SelectParagraph", &I::SelectParagraph);
  host.text("SelectionText", &I::get_SelectionText);
  host.nothing("SaveDoc", &I::SaveDoc, &file_text);
  host.nothing("CloseDoc", &I::CloseDoc, &zero);
  host.byte("OpenDoc", &I::get_OpenDoc, &file_text);
  host.text("ReadText", &I::get_ReadText, &start, &end);
  host.number("IsPrinting", &I::IsPrinting);
  host.nothing("CloseDoc", &I::CloseDoc, &zero);
  host.number("GotoLine", &I::GotoLine, &one);
  host.byte("InTable", &I::get_InTable);
  host.nothing("StopWord", &I::StopWord, &no);
  host.nothing("StopWord", &I::StopWord, &yes);
  LONG number = 9;
  word->get_GetLastErrorNumber(&number);
  say("GetLastErrorNumber", value(VT_I4, number));
  host.text("GetLastErrorDescription", &I::get_GetLastErrorDescription);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 4) return 2;
  const bool early = std::wstring(arguments[1]) == L"early";
  const std::wstring path = std::wstring(arguments[2]) + (early ? L"\\early.docx" : L"\\late.docx");
  special = arguments[3];
  const std::wstring text = L"One two " + special + L" three";
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  {
    CLSID class_id{};
    CLSIDFromProgID(L"ZORBOffice.ZORBWord", &class_id);
    ComPtr<WordProcessorInterface> word;
    const HRESULT created = CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER,
                                             zorboffice::zorb_word_interface_id, word.receive_void());
    if (FAILED(created)) return std::printf("not created: %08lX\n", created), 1;
    early ? drive_early(word.get(), path, text) : drive_late(word.get(), path, text);
  }
  CoUninitialize();
  return 0;
}
