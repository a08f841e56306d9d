#include "ZORBOffice/common/failure.h"

#include <new>

#include "ZORBOffice/common/com_ptr.h"

namespace zorboffice {
namespace {

struct OwnText {
  LONG number;
  const wchar_t* text;
};

// Of the Basic runtime's numbers, and of the codes with which a call into another process fails, for which
// some systems have no text.
constexpr OwnText own_texts[] = {
    {5, L"Invalid procedure call or argument"},
    {6, L"Overflow"},
    {7, L"Out of memory"},
    {9, L"Subscript out of range"},
    {10, L"This array is fixed or temporarily locked"},
    {13, L"Type mismatch"},
    {70, L"Permission denied"},
    {76, L"Path not found"},
    {91, L"Object variable or With block variable not set"},
    {424, L"Object required"},
    {429, L"ActiveX component can't create object"},
    {430, L"Class doesn't support Automation"},
    {432, L"File name or class name not found during Automation operation"},
    {438, L"Object doesn't support this property or method"},
    {440, L"Automation error"},
    {445, L"Object doesn't support this action"},
    {446, L"Object doesn't support named arguments"},
    {447, L"Object doesn't support current locale setting"},
    {448, L"Named argument not found"},
    {449, L"Argument not optional"},
    {450, L"Wrong number of arguments or invalid property assignment"},
    {451, L"Object not a collection"},
    {458, L"Variable uses an Automation type not supported"},
    {462, L"The remote server machine does not exist or is unavailable"},
    {RPC_E_CALL_REJECTED, L"Call was rejected by callee."},
    {RPC_E_CALL_CANCELED, L"Call was canceled by the message filter."},
    {RPC_E_CONNECTION_TERMINATED,
     L"The connection terminated or is in a bogus state and cannot be used any more. Other connections are "
     L"still valid."},
    {RPC_E_SERVER_DIED,
     L"The callee (server [not server application]) is not available and disappeared; all connections are "
     L"invalid. The call may have executed."},
    {RPC_E_SERVER_DIED_DNE,
     L"The callee (server [not server application]) is not available and disappeared; all connections are "
     L"invalid. The call did not execute."},
    {RPC_E_SYS_CALL_FAILED, L"System call failed."},
    {RPC_E_SERVERFAULT, L"The server threw an exception."},
    {RPC_E_DISCONNECTED, L"The object invoked has disconnected from its clients."},
    {RPC_E_SERVERCALL_RETRYLATER, L"The message filter indicated that the application is busy."},
    {RPC_E_SERVERCALL_REJECTED, L"The message filter rejected the call."},
    {RPC_E_CANTCALLOUT_ININPUTSYNCCALL,
     L"An outgoing call cannot be made since the application is dispatching an input-synchronous call."},
    {RPC_E_WRONG_THREAD, L"The application called an interface that was marshalled for a different thread."},
    {CO_E_OBJNOTCONNECTED, L"Object is not connected to server"},
};

struct RuntimeNumber {
  HRESULT result;
  LONG number;
};

constexpr HRESULT server_unavailable = HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE);

constexpr RuntimeNumber runtime_numbers[] = {
    {E_INVALIDARG, 5},
    {DISP_E_OVERFLOW, 6},
    {E_OUTOFMEMORY, 7},
    {DISP_E_BADINDEX, 9},
    {DISP_E_ARRAYISLOCKED, 10},
    {DISP_E_TYPEMISMATCH, 13},
    {E_ACCESSDENIED, 70},
    {STG_E_PATHNOTFOUND, 76},
    {REGDB_E_CLASSNOTREG, 429},
    {MK_E_UNAVAILABLE, 429},
    {CO_E_CLASSSTRING, 429},
    {CO_E_APPNOTFOUND, 429},
    {CO_E_SERVER_EXEC_FAILURE, 429},
    {E_NOINTERFACE, 430},
    {STG_E_FILENOTFOUND, 432},
    {MK_E_CANTOPENFILE, 432},
    {DISP_E_UNKNOWNNAME, 438},
    {DISP_E_MEMBERNOTFOUND, 438},
    {E_NOTIMPL, 445},
    {DISP_E_NONAMEDARGS, 446},
    {DISP_E_UNKNOWNLCID, 447},
    {DISP_E_PARAMNOTFOUND, 448},
    {DISP_E_PARAMNOTOPTIONAL, 449},
    {DISP_E_BADPARAMCOUNT, 450},
    {DISP_E_NOTACOLLECTION, 451},
    {DISP_E_BADVARTYPE, 458},
    {server_unavailable, 462},
};

// The numbers of a Basic runtime, which travel as 0x800Axxxx.
constexpr bool is_runtime_number(LONG number) { return number > 0 && number <= 0xFFFF; }

const wchar_t* own_text(LONG number) {
  for (const OwnText& row : own_texts) {
    if (row.number == number) return row.text;
  }
  return nullptr;
}

Bstr thread_error_text() {
  ComPtr<IErrorInfo> information;
  Bstr text;
  if (GetErrorInfo(0, information.receive()) == S_OK) information->GetDescription(text.receive());
  return text;
}

Bstr system_text(LONG number) {
  wchar_t buffer[512];
  DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, number,
                                0, buffer, ARRAYSIZE(buffer), nullptr);
  while (length > 0 && buffer[length - 1] <= L' ') --length;
  return Bstr({buffer, length});
}

// The text of a failure that came without one.
Bstr text_for(LONG number) {
  if (Bstr text = thread_error_text(); !text.view().empty()) return text;
  if (!is_runtime_number(number)) {
    if (Bstr text = system_text(number); !text.view().empty()) return text;
  }
  const wchar_t* const text = own_text(number);
  return Bstr(text ? text : own_text(runtime_error::automation_error));
}

}  // namespace

void throw_runtime_error(LONG number) { throw Failure{number, Bstr(own_text(number))}; }

void throw_hresult(HRESULT result) {
  for (const RuntimeNumber& row : runtime_numbers) {
    if (row.result == result) throw_runtime_error(row.number);
  }
  if (HRESULT_FACILITY(result) == FACILITY_CONTROL)
    throw Failure{HRESULT_CODE(result), text_for(HRESULT_CODE(result))};
  throw Failure{result, text_for(result)};
}

void throw_exception_info(EXCEPINFO& info) {
  if (info.pfnDeferredFillIn) info.pfnDeferredFillIn(&info);
  Bstr description = Bstr::adopt(info.bstrDescription);
  SysFreeString(info.bstrSource);
  SysFreeString(info.bstrHelpFile);

  LONG number = info.wCode ? info.wCode : info.scode;
  if (number == 0) number = runtime_error::automation_error;
  if (HRESULT_FACILITY(number) == FACILITY_CONTROL && number < 0) number = HRESULT_CODE(number);
  if (description.view().empty()) description = text_for(number);
  throw Failure{number, std::move(description)};
}

Failure current_failure() noexcept {
  try {
    throw;
  } catch (Failure& failure) {
    return std::move(failure);
  } catch (const std::bad_alloc&) {
    // Without memory there is no copy of the text either; an empty one is shown.
    return {runtime_error::out_of_memory,
            Bstr::adopt(SysAllocString(own_text(runtime_error::out_of_memory)))};
  } catch (...) {
    return {runtime_error::automation_error,
            Bstr::adopt(SysAllocString(own_text(runtime_error::automation_error)))};
  }
}

Bstr description_of(HRESULT result) noexcept {
  try {
    throw_hresult(result);
  } catch (...) {
    return current_failure().description;
  }
}

HRESULT raise_to_host(const Failure& failure) noexcept {
  ComPtr<ICreateErrorInfo> information;
  ComPtr<IErrorInfo> published;
  auto* const source = const_cast<wchar_t*>(failure_source);
  if (SUCCEEDED(CreateErrorInfo(information.receive())) && SUCCEEDED(information->SetSource(source)) &&
      SUCCEEDED(information->SetDescription(failure.description.get())) &&
      SUCCEEDED(information->QueryInterface(IID_IErrorInfo, published.receive_void()))) {
    SetErrorInfo(0, published.get());
  }
  if (failure.number < 0) return failure.number;
  const LONG number = is_runtime_number(failure.number) ? failure.number : runtime_error::automation_error;
  return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

}  // namespace zorboffice
