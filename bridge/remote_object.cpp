#include "remote_object.h"

#include <algorithm>

#include "call_error.h"
#include "text.h"
#include "variant.h"

// {6B0A9C1E-3C44-4F0B-9D38-54E1C1B8F7A2}
const IID RemoteObject::kIid = {0x6b0a9c1e, 0x3c44, 0x4f0b, {0x9d, 0x38, 0x54, 0xe1, 0xc1, 0xb8, 0xf7, 0xa2}};

namespace {

BSTR bstr(const std::wstring& text) { return SysAllocStringLen(text.data(), static_cast<UINT>(text.size())); }

// Runs what a method does and turns whatever it throws into the method's result: nothing may leave an object
// that the outside can call.
template <typename Body>
HRESULT guarded(EXCEPINFO* failure, Body body) noexcept {
  try {
    return body();
  } catch (const CallError& error) {
    if (!error.has_text) return error.code;
    if (failure) {
      *failure = {};
      failure->scode = error.code;
      failure->bstrDescription = bstr(error.text);
      failure->bstrSource = bstr(error.source);
    }
    return DISP_E_EXCEPTION;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (const std::exception&) {
    return E_UNEXPECTED;
  }
}

}  // namespace

IDispatch* RemoteObjects::make(long id, std::string class_name) {
  return new RemoteObject(*this, id, std::move(class_name));
}

std::optional<long> RemoteObjects::id_of(IUnknown& object) {
  // A proxy of one of the bridge's own objects has come home as the object itself.
  RemoteObject* remote = nullptr;
  if (FAILED(object.QueryInterface(RemoteObject::kIid, reinterpret_cast<void**>(&remote))))
    return std::nullopt;
  const long id = remote->id();
  remote->Release();
  return id;
}

RemoteObject::~RemoteObject() {
  guarded(nullptr, [&] {
    all_.peer.release(id_);
    return S_OK;
  });
}

STDMETHODIMP RemoteObject::QueryInterface(REFIID iid, void** result) {
  if (!result) return E_POINTER;
  *result = nullptr;
  if (iid != IID_IUnknown && iid != IID_IDispatch && iid != kIid) return E_NOINTERFACE;
  *result = this;
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) RemoteObject::Release() {
  const ULONG left = InterlockedDecrement(&references_);
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP RemoteObject::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 0;
  return S_OK;
}

STDMETHODIMP RemoteObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info) *info = nullptr;
  return DISP_E_BADINDEX;
}

STDMETHODIMP RemoteObject::GetIDsOfNames(REFIID, LPOLESTR* texts, UINT count, LCID, DISPID* ids) {
  if (!texts || !ids || count == 0) return E_INVALIDARG;
  return guarded(nullptr, [&]() -> HRESULT {
    std::fill_n(ids, count, DISPID_UNKNOWN);
    if (lower_case(texts[0]) == L"_newenum") {
      ids[0] = DISPID_NEWENUM;
      return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
    }
    const DISPID id = all_.names.id_of(texts[0]);
    const Member member = all_.names.member(class_name_, id, id_);
    if (!member.exists) return DISP_E_UNKNOWNNAME;
    ids[0] = id;
    HRESULT result = S_OK;
    for (UINT index = 1; index < count; ++index) {
      const auto& known = member.parameters;
      if (std::find(known.begin(), known.end(), narrow(lower_case(texts[index]))) == known.end()) {
        result = DISP_E_UNKNOWNNAME;
      } else {
        ids[index] = all_.names.id_of(texts[index]);
      }
    }
    return result;
  });
}

STDMETHODIMP RemoteObject::Invoke(DISPID member, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                  VARIANT* result, EXCEPINFO* failure, UINT* bad_argument) {
  if (!parameters) return E_INVALIDARG;
  return guarded(failure, [&] {
    VARIANT value = invoke(member, flags, *parameters, bad_argument);
    if (result) {
      *result = value;
    } else {
      VariantClear(&value);
    }
    return S_OK;
  });
}

VARIANT RemoteObject::invoke(DISPID member, WORD flags, const DISPPARAMS& parameters, UINT* bad_argument) {
  if (member == DISPID_NEWENUM) return enumerate();
  std::string name;
  if (member != DISPID_VALUE) {
    const auto known = all_.names.name_of(member);
    if (!known) throw CallError{DISP_E_MEMBERNOTFOUND};
    name = *known;
  }
  const bool is_put = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
  if (!is_put && parameters.cArgs == 0) {
    if (const auto constant = all_.names.constant(class_name_, member)) return to_variant(*constant, all_);
  }
  Json arguments = Json::array();
  Json named = Json::object();
  // Arguments stand last first, the named ones before all others; the new value of a put is a named one.
  for (UINT index = parameters.cArgs; index-- > 0;) {
    try {
      Json value = to_json(parameters.rgvarg[index], all_);
      if (index >= parameters.cNamedArgs || parameters.rgdispidNamedArgs[index] == DISPID_PROPERTYPUT) {
        arguments.push_back(std::move(value));
        continue;
      }
      const auto argument_name = all_.names.name_of(parameters.rgdispidNamedArgs[index]);
      if (!argument_name) throw CallError{DISP_E_PARAMNOTFOUND};
      named[*argument_name] = std::move(value);
    } catch (const CallError&) {
      if (bad_argument) *bad_argument = index;
      throw;
    }
  }
  const Json answer = all_.peer.ask({{"do", is_put ? "put" : "call"},
                                     {"object", id_},
                                     {"name", name},
                                     {"arguments", std::move(arguments)},
                                     {"named", std::move(named)}});
  return to_variant(answer, all_);
}

VARIANT RemoteObject::enumerate() const {
  Variant result;
  VARIANT items = to_variant(all_.peer.ask({{"do", "items"}, {"object", id_}}), all_);
  if (items.vt != (VT_ARRAY | VT_VARIANT)) throw CallError{DISP_E_MEMBERNOTFOUND};
  result->punkVal = new Enumeration(items);
  result->vt = VT_UNKNOWN;
  return result.detach();
}

STDMETHODIMP Enumeration::QueryInterface(REFIID iid, void** result) {
  if (!result) return E_POINTER;
  *result = nullptr;
  if (iid != IID_IUnknown && iid != IID_IEnumVARIANT) return E_NOINTERFACE;
  *result = this;
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) Enumeration::Release() {
  const ULONG left = InterlockedDecrement(&references_);
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP Enumeration::Next(ULONG count, VARIANT* items, ULONG* fetched) {
  if (!items) return E_POINTER;
  const ULONG given = std::min(count, left());
  for (ULONG index = 0; index < given; ++index) {
    LONG position = static_cast<LONG>(next_++);
    VariantInit(&items[index]);
    SafeArrayGetElement(items_.parray, &position, &items[index]);
  }
  if (fetched) *fetched = given;
  return given == count ? S_OK : S_FALSE;
}

STDMETHODIMP Enumeration::Skip(ULONG count) {
  const ULONG skipped = std::min(count, left());
  next_ += skipped;
  return skipped == count ? S_OK : S_FALSE;
}

STDMETHODIMP Enumeration::Reset() {
  next_ = 0;
  return S_OK;
}

STDMETHODIMP Enumeration::Clone(IEnumVARIANT** copy) {
  if (!copy) return E_POINTER;
  *copy = nullptr;
  Variant items;
  const HRESULT result = VariantCopy(items.out(), &items_);
  if (FAILED(result)) return result;
  *copy = new (std::nothrow) Enumeration(*items.out(), next_);
  if (!*copy) return E_OUTOFMEMORY;
  items.detach();
  return S_OK;
}
