#include "bench/office_objects.h"

#include <algorithm>
#include <string>

#include "ZORBOffice/common/com_ptr.h"
#include "bench/counted_type.h"

namespace bench {
namespace {

using zorboffice::ComPtr;

volatile LONG latest_number = 0;

// The number tells the objects of a process apart, also when one takes another's place.
template <class Interface>
class Numbered : public ComObject<Interface> {
 public:
  Numbered(const Application& application, const Type& type, const ItemKind* kind)
      : number(InterlockedIncrement(&latest_number)), application_(application), type_(type), kind_(kind) {}
  ~Numbered() override {
    if (on_release) on_release(number);
  }

  const LONG number;

 protected:
  const Application& application_;
  const Type& type_;
  const ItemKind* const kind_;
};

class Object final : public Numbered<IDispatch> {
 public:
  using Numbered::Numbered;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** information) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO*, UINT*) override;

 private:
  // Returns the number of the object in the answer.
  LONG answer(const Answer& answer, const DISPPARAMS& parameters, VARIANT& result);
  LONG give(const wchar_t* type, const ItemKind* kind, VARIANT& result);
  LONG give_item(VARIANT& result, bool exists = true);

  LONG position_ = 0;
};

class Elements final : public Numbered<IEnumVARIANT> {
 public:
  using Numbered::Numbered;
  HRESULT STDMETHODCALLTYPE Next(ULONG, VARIANT* values, ULONG* fetched) override {
    const auto begin = ticks();
    InterlockedIncrement(&settings().calls);
    constexpr int count = 3;
    const bool given = position_ < count;
    Object* const element = given ? new Object(application_, type_, kind_) : nullptr;
    if (given) {
      ++position_;
      V_VT(values) = VT_DISPATCH;
      V_DISPATCH(values) = element;
    }
    if (fetched) *fetched = given;
    if (on_call) {
      on_call({&application_, &type_, nullptr, number, given ? element->number : 0, 0, 0, nullptr, true});
    }
    take_time(begin);
    return given ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reset() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT**) override { return E_NOTIMPL; }

 private:
  int position_ = 0;
};

bool same(std::wstring_view name, const wchar_t* other) {
  return CompareStringOrdinal(name.data(), static_cast<int>(name.size()), other, -1, TRUE) == CSTR_EQUAL;
}

const ItemKind& kind_of(const VARIANT& value, auto field) {
  VARIANT number{};
  VariantChangeType(&number, const_cast<VARIANT*>(&value), 0, VT_I4);
  const auto* found = std::ranges::find(item_kinds, V_I4(&number), field);
  return found == std::end(item_kinds) ? item_kinds[0] : *found;
}

HRESULT Object::GetTypeInfoCount(UINT* count) {
  *count = settings().publishes ? 1 : 0;
  return question([] { return S_OK; });
}

HRESULT Object::GetTypeInfo(UINT, LCID, ITypeInfo** information) {
  return question([&]() -> HRESULT {
    *information = nullptr;
    ComPtr<ITypeLib> library;
    if (!settings().publishes) return E_NOTIMPL;
    HRESULT status = LoadRegTypeLib(application_.library_id, 1, 0, 0, library.receive());
    if (FAILED(status)) return status;
    status = library->GetTypeInfoOfGuid(type_id(application_, type_, false), information);
    if (SUCCEEDED(status)) *information = new CountedType(*information);
    return status;
  });
}

HRESULT Object::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  const auto begin = ticks();
  InterlockedIncrement(&settings().look_ups);
  std::fill_n(ids, count, DISPID_UNKNOWN);
  const auto found =
      std::ranges::find_if(type_.members, [&](const auto& member) { return same(member.name, names[0]); });
  const bool known = found != type_.members.end();
  UINT matched = 0;
  if (known) {
    ids[matched++] = member_id(application_, type_, *found);
    for (UINT i = 1; i < count; ++i) {
      std::wstring_view rest = found->parameters;
      for (DISPID position = 0; !rest.empty(); ++position) {
        const auto length = std::min(rest.find(L' '), rest.size());
        if (same(rest.substr(0, length), names[i])) ids[i] = position, ++matched;
        rest.remove_prefix(std::min(length + 1, rest.size()));
      }
    }
  }
  take_time(begin);
  return matched == count ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT Object::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                       EXCEPINFO*, UINT*) {
  const auto begin = ticks();
  InterlockedIncrement(&settings().calls);
  const MemberRow* const member = find_member(application_, type_, id);
  VARIANT answered{};
  LONG object = 0;
  HRESULT status = member ? S_OK : DISP_E_MEMBERNOTFOUND;
  if (member && !(flags & DISPATCH_PROPERTYPUT)) {
    const Answer* given = &member->answer;
    // Arguments that a property does not take are its answer's default member's.
    const bool goes_on =
        given->kind == Answer::object && parameters->cArgs > static_cast<UINT>(count_of_parameters(*member));
    if (goes_on) {
      const Type& collection = find_type(application_, given->name);
      const MemberRow* const item = find_member(application_, collection, DISPID_VALUE);
      if (item) given = &item->answer;
      if (!item) status = DISP_E_BADPARAMCOUNT;
    }
    if (SUCCEEDED(status)) object = answer(*given, *parameters, answered);
  }
  if (on_call) {
    on_call({&application_, &type_, member, number, object, id, flags, parameters, result != nullptr});
  }
  if (result) {
    *result = answered;
  } else {
    VariantClear(&answered);
  }
  take_time(begin);
  return status;
}

LONG Object::answer(const Answer& answer, const DISPPARAMS& parameters, VARIANT& result) {
  static volatile LONG counter = 0;
  const VARIANT none{};
  const VARIANT& argument = parameters.cArgs ? parameters.rgvarg[parameters.cArgs - 1] : none;
  switch (answer.kind) {
    case Answer::nothing:
      return 0;
    case Answer::number:
      V_VT(&result) = VT_I4;
      V_I4(&result) = static_cast<LONG>(answer.value);
      return 0;
    case Answer::counted:
      V_VT(&result) = VT_I4;
      V_I4(&result) = InterlockedIncrement(&counter);
      return 0;
    case Answer::real:
      V_VT(&result) = VT_R4;
      V_R4(&result) = static_cast<float>(answer.value);
      return 0;
    case Answer::flag:
      V_VT(&result) = VT_BOOL;
      V_BOOL(&result) = VARIANT_TRUE;
      return 0;
    case Answer::text:
      V_VT(&result) = VT_BSTR;
      V_BSTR(&result) = SysAllocString(answer.name);
      return 0;
    case Answer::date:
      V_VT(&result) = VT_DATE;
      V_DATE(&result) = answer.value;
      return 0;
    case Answer::item_class:
      V_VT(&result) = VT_I4;
      V_I4(&result) = kind_->item_class;
      return 0;
    case Answer::object:
    case Answer::any:
      // An item that something else leads to is of the kind that its type says.
      return give(answer.name, kind_, result);
    case Answer::folder:
      return give(answer.name, &kind_of(argument, &ItemKind::folder), result);
    case Answer::created: {
      const ItemKind& kind = kind_of(argument, &ItemKind::item_type);
      return give(kind.type, &kind, result);
    }
    case Answer::found: {
      const auto* kind = std::ranges::find(item_kinds, std::wstring_view(V_BSTR(&argument)), &ItemKind::type);
      return give(kind->type, kind, result);
    }
    case Answer::first:
      position_ = 1;
      return give_item(result);
    case Answer::next:
      ++position_;
      return give_item(result, position_ <= settings().items);
    case Answer::elements: {
      auto* const made = new Elements(application_, find_type(application_, answer.name), kind_);
      V_VT(&result) = VT_UNKNOWN;
      V_UNKNOWN(&result) = made;
      return made->number;
    }
  }
  return 0;
}

LONG Object::give(const wchar_t* type, const ItemKind* kind, VARIANT& result) {
  auto* const made = new Object(application_, find_type(application_, type), kind);
  V_VT(&result) = VT_DISPATCH;
  V_DISPATCH(&result) = made;
  return made->number;
}

LONG Object::give_item(VARIANT& result, bool exists) {
  if (exists) return give(kind_->type, kind_, result);
  V_VT(&result) = VT_DISPATCH;
  V_DISPATCH(&result) = nullptr;
  return 0;
}

}  // namespace

IDispatch* make_root(const Application& application) {
  return new Object(application, application.types.front(), nullptr);
}

IEnumVARIANT* make_elements(const Application& application) {
  return new Elements(application, application.types.front(), nullptr);
}

LONG number_of(IUnknown* object) { return static_cast<Object*>(static_cast<IDispatch*>(object))->number; }

}  // namespace bench
