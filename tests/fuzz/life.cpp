// What the container and the office do and answer, and what must be left of a control: nothing.
#include "life.h"

#include "support/fake_offices.h"
#include "thing.h"

namespace {

constexpr std::initializer_list<HRESULT> failures = {
    E_FAIL,           E_NOTIMPL,       E_OUTOFMEMORY,         E_INVALIDARG,       E_NOINTERFACE,
    E_POINTER,        E_ACCESSDENIED,  DISP_E_MEMBERNOTFOUND, DISP_E_UNKNOWNNAME, DISP_E_TYPEMISMATCH,
    DISP_E_EXCEPTION, DISP_E_OVERFLOW, STG_E_FILENOTFOUND,    RPC_E_DISCONNECTED, STG_E_READFAULT,
    DISP_E_EXCEPTION, DISP_E_BADINDEX, HRESULT(0x800A01B6),   HRESULT(0x800A0000)};

BSTR new_text(Chance& chance) {
  const std::wstring text = chance.text();
  return SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

struct Office final : FakeOffice {
  IDispatch* make(const std::string&, const std::string&) override { return new Thing(*Life::current); }
  FakeClass classes[4] = {
      {*this, {0xF0220001, 1, 1, {}}, "Word.Application", ""},
      {*this, {0xF0220002, 1, 1, {}}, "Outlook.Application", ""},
      {*this, {0xF0220003, 1, 1, {}}, "com.sun.star.ServiceManager", ""},
      {*this, {0x000209F0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}}, "Global", "", Serving::unnamed}};
};
Office& office() {
  static Office programs;
  return programs;
}

}  // namespace

Life::Life(uint64_t seed, uint64_t number) : chance(seed, ~number) {
  current = this;
  container.special_call = 1;
  container.interruption = [this] {
    const HRESULT status = happen();
    container.special_call = container.calls + 1;
    container.failure = status;
  };
}

Life::~Life() {
  report.begin("the end");
  container.interruption = nullptr, container.failure = S_OK;
  if (control && chance.one_in(2)) {
    raw<IOleObject>()->SetClientSite(nullptr);
    if (container.in_place || container.with_ui || container.window()) report.wrong("it is still active");
  }
  let_go();
  container.forget_active_object();
  // With the last instance goes what the process keeps of the office.
  if (outside::call("DllCanUnloadNow") != S_OK) report.wrong("the library is held");
  if (container.out_of_order) report.wrong("the container was told out of order");
  if (container.held) report.wrong("references to the container are left", container.held);
  if (objects) report.wrong("references to objects are left", objects);
  SetErrorInfo(0, nullptr);
  office().log.clear();
}

void Life::call(uint64_t seed, uint64_t number) {
  chance = Chance(seed, number);
  report.call = number;
  while (!control) begin();
  any_call();
  container.log.clear();
}

void Life::begin() {
  container.forget_active_object();
  container.in_place = container.with_ui = 0;
  if (outer_.inner) report.wrong("an aggregated control is held", outer_.references);
  ids = &outside::classes[chance.below(std::size(outside::classes))];
  const auto factory = outside::factory(*ids);
  if (chance.one_in(3))
    factory->CreateInstance(control = &outer_, IID_IUnknown, &outer_.inner);
  else
    factory->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(&control));
  if (!chance.one_in(4)) raw<IOleObject>()->SetClientSite(&container);
}

void Life::any_call() {
  office().fail_at = chance.one_in(6) ? office().log.size() + 1 : 0;
  office().failure = {chance.of(failures), DWORD(E_FAIL)};
  ends_ = chance.one_in(12);
  chance.one_in(2) ? call_hosting(*this) : call_automation(*this);
}

void Life::let_go() {
  ends_ = false;
  if (IUnknown* const last = std::exchange(control, nullptr)) last->Release();
}

HRESULT Life::happen(EXCEPINFO* info) {
  const size_t what = chance.below(64);
  if (what == 0 || ends_) let_go();
  if (what >= 1 && what < 4 && control && depth_ < 2) {
    ++depth_;
    any_call();
    --depth_;
  }
  if (what == 4) set_error_info();
  if (what == 5) DestroyWindow(container.window());
  if (what == 6) return S_FALSE;
  return what < 58 ? S_OK : failed(info);
}

HRESULT Life::failed(EXCEPINFO* info) {
  const HRESULT status = chance.of(failures);
  if (chance.one_in(2)) set_error_info();
  if (status != DISP_E_EXCEPTION) return status;
  if (!info) return E_FAIL;
  *info = {};
  info->scode = chance.one_in(4) ? chance.number() : chance.of(failures);
  if (chance.one_in(4)) info->wCode = static_cast<WORD>(chance.number());
  if (chance.one_in(2)) info->bstrDescription = new_text(chance);
  if (chance.one_in(2)) info->bstrSource = new_text(chance);
  if (chance.one_in(8))
    info->pfnDeferredFillIn = [](EXCEPINFO* late) WINAPI -> HRESULT { return late->scode = E_FAIL; };
  return status;
}

// Another failure's, or none.
void Life::set_error_info() {
  ComPtr<ICreateErrorInfo> made;
  ComPtr<IErrorInfo> information;
  CreateErrorInfo(&made);
  if (chance.one_in(2)) made->SetDescription(std::wstring(L"Another's.").data());
  if (!chance.one_in(3)) made.As(&information);
  SetErrorInfo(0, information.Get());
}

// The lowest bytes are what a smaller type takes.
VARIANT Life::value_of(VARTYPE type) {
  VARIANT made = {};
  if (type == VT_VARIANT) return value();
  V_VT(&made) = type;
  V_I8(&made) = chance.number();
  if (type == VT_BSTR) V_BSTR(&made) = chance.one_in(12) ? nullptr : new_text(chance);
  if (type == VT_BOOL && !chance.one_in(9)) V_BOOL(&made) = chance.one_in(2) ? VARIANT_TRUE : VARIANT_FALSE;
  if (type == VT_ERROR && !chance.one_in(4)) V_ERROR(&made) = DISP_E_PARAMNOTFOUND;
  if (type == VT_R8 || type == VT_DATE) V_R8(&made) = chance.fraction();
  if (type == VT_DISPATCH || type == VT_UNKNOWN)
    V_DISPATCH(&made) = chance.one_in(4) ? nullptr : new Thing(*this);
  if (type == VT_DECIMAL) made.decVal.scale = static_cast<BYTE>(chance.below(29)), made.decVal.sign = 0;
  if (type != VT_ARRAY) return made;
  const auto element = chance.of<VARTYPE>({VT_I4, VT_VARIANT, VT_BSTR});
  V_VT(&made) = VT_ARRAY | element;
  V_ARRAY(&made) = chance.one_in(4) ? nullptr : SafeArrayCreateVector(element, 0, ULONG(chance.below(4)));
  return made;
}

VARIANT Life::value() {
  return value_of(
      chance.of<VARTYPE>({VT_BSTR,    VT_BSTR,     VT_BSTR,     VT_I2,      VT_I2,    VT_I4,    VT_I4,
                          VT_UI1,     VT_BOOL,     VT_BOOL,     VT_R4,      VT_R8,    VT_DATE,  VT_CY,
                          VT_I8,      VT_UI4,      VT_I1,       VT_NULL,    VT_EMPTY, VT_ERROR, VT_ERROR,
                          VT_DECIMAL, VT_DISPATCH, VT_DISPATCH, VT_UNKNOWN, VT_ARRAY, 15,       77}));
}
