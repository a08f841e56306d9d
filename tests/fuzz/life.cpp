// What surrounds the control: its container, office objects and media, which fail, call back and end it as
// they like.
#include "life.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr HRESULT failures[] = {
    E_FAIL,           E_NOTIMPL,       E_OUTOFMEMORY,         E_INVALIDARG,       E_NOINTERFACE,
    E_POINTER,        E_ACCESSDENIED,  DISP_E_MEMBERNOTFOUND, DISP_E_UNKNOWNNAME, DISP_E_TYPEMISMATCH,
    DISP_E_EXCEPTION, DISP_E_OVERFLOW, STG_E_FILENOTFOUND,    RPC_E_DISCONNECTED, STG_E_READFAULT,
    DISP_E_EXCEPTION, DISP_E_BADINDEX, HRESULT(0x800A01B6),   HRESULT(0x800A0000)};

BSTR new_text(Chance& chance) {
  const std::wstring text = chance.text();
  return SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

// An office object, a collection, an argument with a default property, a sink: everything that answers by
// dispatch.
class Thing final : public IDispatch, public IEnumVARIANT {
 public:
  explicit Thing(Life& life) : life_(life) { ++Life::objects; }

  HRESULT WINAPI QueryInterface(REFIID id, void** object) override {
    *object = nullptr;
    if (id == IID_IEnumVARIANT && !life_.chance.one_in(4))
      *object = static_cast<IEnumVARIANT*>(this);
    else if (id == IID_IUnknown || (id == IID_IDispatch && !life_.chance.one_in(50)))
      *object = static_cast<IDispatch*>(this);
    return *object ? AddRef(), S_OK : E_NOINTERFACE;
  }
  ULONG WINAPI AddRef() override { return ++references_; }
  ULONG WINAPI Release() override {
    const ULONG left = --references_;
    if (left > 0) return left;
    references_ = 1;
    if (life_.chance.one_in(20)) life_.happen();
    delete this;
    return 0;
  }
  HRESULT WINAPI GetTypeInfoCount(UINT* count) override {
    return *count = life_.chance.below(2), life_.happen();
  }
  HRESULT WINAPI GetTypeInfo(UINT, LCID, ITypeInfo** information) override {
    *information = nullptr;
    const HRESULT status = life_.happen();
    if (FAILED(status) || !life_.control || life_.chance.one_in(2))
      return FAILED(status) ? status : E_NOTIMPL;
    return life_.raw<IDispatch>()->GetTypeInfo(0, 0, information);  // another object's
  }
  HRESULT WINAPI GetIDsOfNames(REFIID, LPOLESTR*, UINT count, LCID, DISPID* ids) override {
    for (UINT i = 0; i < count; ++i) ids[i] = static_cast<DISPID>(life_.chance.below(200));
    return life_.happen();
  }
  HRESULT WINAPI Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT* result, EXCEPINFO* info,
                        UINT*) override {
    if (const HRESULT status = life_.happen(info); FAILED(status)) return status;
    for (UINT i = 0; i < given->cArgs; ++i)
      if (life_.chance.one_in(4)) write(given->rgvarg[i]);
    if (!result) return S_OK;
    *result = life_.value();
    if (id == DISPID_NEWENUM || life_.chance.one_in(2)) {
      VariantClear(result);
      V_VT(result) = VT_DISPATCH;
      V_DISPATCH(result) = life_.object();
    }
    return S_OK;
  }
  HRESULT WINAPI Next(ULONG, VARIANT* values, ULONG* fetched) override {
    const HRESULT status = life_.happen();
    if (fetched) *fetched = 0;
    if (FAILED(status) || life_.chance.one_in(4)) return FAILED(status) ? status : S_FALSE;
    *values = life_.value();
    if (fetched) *fetched = 1;
    return S_OK;
  }
  HRESULT WINAPI Skip(ULONG) override { return E_NOTIMPL; }
  HRESULT WINAPI Reset() override { return E_NOTIMPL; }
  HRESULT WINAPI Clone(IEnumVARIANT**) override { return E_NOTIMPL; }

 private:
  ~Thing() { --Life::objects; }
  void write(VARIANT& argument) {
    const LONG number = life_.chance.number();
    if (argument.vt == (VT_BYREF | VT_I2)) *argument.piVal = static_cast<SHORT>(number);
    if (argument.vt == (VT_BYREF | VT_I4)) *argument.plVal = number;
    if (argument.vt == (VT_BYREF | VT_UI1)) *argument.pbVal = static_cast<BYTE>(number);
    if (argument.vt == (VT_BYREF | VT_BOOL)) *argument.pboolVal = number ? VARIANT_TRUE : VARIANT_FALSE;
    if (argument.vt == (VT_BYREF | VT_BSTR))
      SysFreeString(std::exchange(*argument.pbstrVal, new_text(life_.chance)));
  }

  Life& life_;
  ULONG references_ = 1;
};

}  // namespace

// What is saved to and loaded from: a stream of a record that may be damaged, a storage of that, and a
// property bag, which give and take what they like.
struct Medium final : Counted<IStream, IStorage, IPropertyBag> {
  explicit Medium(Life& life) : Counted(life.container.held), life_(life) {}

  HRESULT WINAPI Read(void* bytes, ULONG size, ULONG* read) override {
    Chance& chance = life_.chance;
    const LONG record[] = {0x3142525A, chance.number(), chance.number()};
    const auto given = static_cast<ULONG>(chance.one_in(3) ? chance.below(size + 1) : size);
    if (size <= sizeof record)
      std::memcpy(bytes, reinterpret_cast<const BYTE*>(record) + sizeof record - size, given);
    *read = chance.one_in(40) ? size + 1 : given;
    return life_.happen();
  }
  HRESULT WINAPI Write(const void*, ULONG size, ULONG* written) override {
    *written = static_cast<ULONG>(life_.chance.one_in(8) ? life_.chance.below(size) : size);
    return life_.happen();
  }
  HRESULT WINAPI OpenStream(LPCOLESTR, void*, DWORD, DWORD, IStream** stream) override {
    *stream = nullptr;
    const HRESULT status = life_.happen();
    if (SUCCEEDED(status) && !life_.chance.one_in(10)) (*stream = this)->AddRef();
    return status;
  }
  HRESULT WINAPI CreateStream(LPCOLESTR name, DWORD mode, DWORD, DWORD, IStream** made) override {
    return OpenStream(name, nullptr, mode, 0, made);
  }
  HRESULT WINAPI Read(LPCOLESTR, VARIANT* value, IErrorLog*) override {
    const HRESULT status = life_.chance.one_in(6) ? E_INVALIDARG : life_.happen();
    if (SUCCEEDED(status)) *value = life_.value();
    return status;
  }
  HRESULT WINAPI Write(LPCOLESTR, VARIANT*) override { return life_.happen(); }

  using Large = ULARGE_INTEGER;
  using Time = const FILETIME*;
  HRESULT WINAPI Seek(LARGE_INTEGER, DWORD, Large*) override { return E_NOTIMPL; }
  HRESULT WINAPI SetSize(Large) override { return E_NOTIMPL; }
  HRESULT WINAPI CopyTo(IStream*, Large, Large*, Large*) override { return E_NOTIMPL; }
  HRESULT WINAPI Commit(DWORD) override { return E_NOTIMPL; }
  HRESULT WINAPI Revert() override { return E_NOTIMPL; }
  HRESULT WINAPI LockRegion(Large, Large, DWORD) override { return E_NOTIMPL; }
  HRESULT WINAPI UnlockRegion(Large, Large, DWORD) override { return E_NOTIMPL; }
  HRESULT WINAPI Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
  HRESULT WINAPI Clone(IStream**) override { return E_NOTIMPL; }
  HRESULT WINAPI CreateStorage(LPCOLESTR, DWORD, DWORD, DWORD, IStorage**) override { return E_NOTIMPL; }
  HRESULT WINAPI OpenStorage(LPCOLESTR, IStorage*, DWORD, SNB, DWORD, IStorage**) override {
    return E_NOTIMPL;
  }
  HRESULT WINAPI CopyTo(DWORD, const IID*, SNB, IStorage*) override { return E_NOTIMPL; }
  HRESULT WINAPI MoveElementTo(LPCOLESTR, IStorage*, LPCOLESTR, DWORD) override { return E_NOTIMPL; }
  HRESULT WINAPI EnumElements(DWORD, void*, DWORD, IEnumSTATSTG**) override { return E_NOTIMPL; }
  HRESULT WINAPI DestroyElement(LPCOLESTR) override { return E_NOTIMPL; }
  HRESULT WINAPI RenameElement(LPCOLESTR, LPCOLESTR) override { return E_NOTIMPL; }
  HRESULT WINAPI SetElementTimes(LPCOLESTR, Time, Time, Time) override { return E_NOTIMPL; }
  HRESULT WINAPI SetClass(REFCLSID) override { return E_NOTIMPL; }
  HRESULT WINAPI SetStateBits(DWORD, DWORD) override { return E_NOTIMPL; }

 private:
  Life& life_;
};

namespace {

// The office programs, which answer things.
struct Office final : FakeOffice {
  IDispatch* make(const std::string&, const std::string&) override { return Life::current->object(); }
  FakeClass classes[4] = {{*this, {0xF0220001, 1, 1, {}}, "Word.Application", ""},
                          {*this, {0xF0220002, 1, 1, {}}, "Outlook.Application", ""},
                          {*this, {0xF0220003, 1, 1, {}}, "com.sun.star.ServiceManager", ""},
                          {*this, {0x000209F0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}}, "Global", "", Serving::unnamed}};
};
Office& office() {
  static Office programs;
  return programs;
}

}  // namespace

void Report::wrong(const char* why, unsigned long value) {
  ++faults;
  printf("fuzz: seed %llu call %llu (%s): %s %08lX\n", seed, call, what, why, value);
  fflush(stdout);
}

void Report::begin(const char* method, const wchar_t* member, const std::string& arguments) {
  what = method;
  if (!verbose) return;
  printf("call %llu: %s %s%s\n", call, method, utf8(member).c_str(), arguments.c_str());
  fflush(stdout);
}

Life::Life(uint64_t seed, uint64_t number)
    : chance(seed, ~number),
      medium_(new Medium(*this)),
      stream(medium_.get()),
      storage(medium_.get()),
      bag(medium_.get()) {
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
  if (control && chance.one_in(2)) raw<IOleObject>()->SetClientSite(nullptr);
  let_go();
  container.forget_active_object();
  // With the last instance goes what the process keeps of the office.
  if (outside::call("DllCanUnloadNow") != S_OK) report.wrong("the library is held");
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
  if (outer_.inner) report.wrong("an aggregated control is held", outer_.references);
  ids = &outside::classes[chance.below(std::size(outside::classes))];
  const bool aggregated = chance.one_in(3);
  const auto factory = outside::factory(*ids);
  if (aggregated)
    factory->CreateInstance(control = &outer_, IID_IUnknown, &outer_.inner);
  else
    factory->CreateInstance(nullptr, IID_IUnknown, reinterpret_cast<void**>(&control));
  if (!chance.one_in(4)) raw<IOleObject>()->SetClientSite(&container);
}

void Life::any_call() {
  office().fail_at = chance.one_in(6) ? office().log.size() + 1 : 0;
  office().failure = {chance.of(failures), DWORD(E_FAIL)};
  chance.one_in(2) ? call_hosting(*this) : call_automation(*this);
}

void Life::let_go() {
  if (IUnknown* const last = std::exchange(control, nullptr)) last->Release();
}

HRESULT Life::happen(EXCEPINFO* info) {
  const size_t what = chance.below(64);
  if (what == 0) let_go();
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

// Another failure's, with or without a text, or none.
void Life::set_error_info() {
  ComPtr<ICreateErrorInfo> made;
  ComPtr<IErrorInfo> information;
  if (!chance.one_in(3) && SUCCEEDED(CreateErrorInfo(&made))) {
    wchar_t text[] = L"Another's.";
    if (chance.one_in(2)) made->SetDescription(text);
    made.As(&information);
  }
  SetErrorInfo(0, information.Get());
}

IDispatch* Life::object() { return new Thing(*this); }

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
  if (type == VT_DISPATCH || type == VT_UNKNOWN) V_DISPATCH(&made) = chance.one_in(4) ? nullptr : object();
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
