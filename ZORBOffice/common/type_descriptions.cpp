#include "ZORBOffice/common/type_descriptions.h"

#include "ZORBOffice/common/bstr.h"
#include "ZORBOffice/common/busy_server.h"

namespace zorboffice {
namespace {

// A library that was damaged may lead from type to type without end.
constexpr int longest_way = 8;

// The platform's descriptions go back to the type that gave them.
template <class Description, void (STDMETHODCALLTYPE ITypeInfo::*give_back)(Description*)>
class Described {
 public:
  // get stores the description.
  template <class Get>
  Described(ITypeInfo* type, const Get& get) : type_(type) {
    if (FAILED(until_taken([&] { return get(&description_); }))) description_ = nullptr;
  }
  ~Described() {
    if (description_) (type_->*give_back)(description_);
  }
  Described(const Described&) = delete;
  Described& operator=(const Described&) = delete;

  explicit operator bool() const { return description_ != nullptr; }
  const Description* operator->() const { return description_; }

 private:
  ITypeInfo* type_;
  Description* description_ = nullptr;
};

struct Attributes : Described<TYPEATTR, &ITypeInfo::ReleaseTypeAttr> {
  explicit Attributes(ITypeInfo* type)
      : Described(type, [type](TYPEATTR** found) { return type->GetTypeAttr(found); }) {}
};

struct Function : Described<FUNCDESC, &ITypeInfo::ReleaseFuncDesc> {
  Function(ITypeInfo* type, UINT index)
      : Described(type, [=](FUNCDESC** found) { return type->GetFuncDesc(index, found); }) {}
};

ComPtr<ITypeInfo> referred(ITypeInfo* type, HREFTYPE reference) {
  ComPtr<ITypeInfo> found;
  if (FAILED(type->GetRefTypeInfo(reference, found.receive()))) return {};
  return found;
}

ComPtr<ITypeInfo> implemented(ITypeInfo* type, UINT index) {
  HREFTYPE reference = 0;
  if (FAILED(type->GetRefTypeOfImplType(index, &reference))) return {};
  return referred(type, reference);
}

ComPtr<ITypeInfo> default_interface(ITypeInfo* coclass, UINT count) {
  for (UINT i = 0; i < count; ++i) {
    INT flags = 0;
    if (FAILED(coclass->GetImplTypeFlags(i, &flags))) continue;
    if ((flags & (IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE)) == IMPLTYPEFLAG_FDEFAULT) {
      return implemented(coclass, i);
    }
  }
  return {};
}

// What one step leads to from a type that is no dispatch interface itself.
ComPtr<ITypeInfo> next_type(ITypeInfo* type, const Attributes& about) {
  constexpr UINT dispatch_half = static_cast<UINT>(-1);
  switch (about->typekind) {
    case TKIND_COCLASS:
      return default_interface(type, about->cImplTypes);
    case TKIND_INTERFACE:
      return about->wTypeFlags & TYPEFLAG_FDUAL ? implemented(type, dispatch_half) : ComPtr<ITypeInfo>();
    case TKIND_ALIAS:
      return about->tdescAlias.vt == VT_USERDEFINED ? referred(type, about->tdescAlias.hreftype)
                                                    : ComPtr<ITypeInfo>();
    default:
      return {};
  }
}

ComPtr<ITypeInfo> object_type(ITypeInfo* type, const TYPEDESC& answer) {
  const TYPEDESC* description = &answer;
  if (description->vt == VT_PTR) description = description->lptdesc;
  return description->vt == VT_USERDEFINED ? referred(type, description->hreftype) : ComPtr<ITypeInfo>();
}

}  // namespace

std::optional<GUID> type_id(ITypeInfo* type) {
  const Attributes about(type);
  if (!about || about->guid == GUID_NULL) return std::nullopt;
  return about->guid;
}

ComPtr<ITypeInfo> dispatch_type(ComPtr<ITypeInfo> type) {
  for (int steps = 0; type && steps < longest_way; ++steps) {
    const Attributes about(type.get());
    if (!about) return {};
    if (about->typekind == TKIND_DISPATCH) return type;
    type = next_type(type.get(), about);
  }
  return {};
}

MemberDescription describe_member(ITypeInfo* type, DISPID id) {
  const auto describe = [&](UINT index) -> std::optional<MemberDescription> {
    const Function member(type, index);
    if (!member || member->memid != id || !(member->invkind & (INVOKE_FUNC | INVOKE_PROPERTYGET))) return {};
    return MemberDescription{member->cParams, object_type(type, member->elemdescFunc.tdesc)};
  };
  ComPtr<ITypeInfo2> information;
  UINT index = 0;
  if (SUCCEEDED(type->QueryInterface(IID_ITypeInfo2, information.receive_void())) &&
      (SUCCEEDED(information->GetFuncIndexOfMemId(id, INVOKE_PROPERTYGET, &index)) ||
       SUCCEEDED(information->GetFuncIndexOfMemId(id, INVOKE_FUNC, &index)))) {
    if (const auto member = describe(index)) return *member;
  }
  // Some systems leave inherited members out of that index and count them among the functions.
  const Attributes about(type);
  for (index = 0; about && index < about->cFuncs; ++index) {
    if (const auto member = describe(index)) return *member;
  }
  return {};
}

bool first_member(ITypeInfo* type, DISPID& id) {
  const Attributes about(type);
  ComPtr<ITypeInfo2> information;
  if (!about || FAILED(type->QueryInterface(IID_ITypeInfo2, information.receive_void()))) return false;
  for (UINT i = 0; i < about->cFuncs; ++i) {
    const Function member(type, i);
    UINT own = 0;
    // Some systems count IUnknown's and IDispatch's members too, but give them no index.
    if (!member || member->wFuncFlags & FUNCFLAG_FRESTRICTED ||
        FAILED(information->GetFuncIndexOfMemId(member->memid, member->invkind, &own))) {
      continue;
    }
    id = member->memid;
    return true;
  }
  return false;
}

ComPtr<ITypeLib> registered_library(ITypeInfo* type) {
  ComPtr<ITypeLib> own;
  UINT index = 0;
  TLIBATTR* about = nullptr;
  if (FAILED(until_taken([&] { return type->GetContainingTypeLib(own.receive(), &index); })) || !own)
    return {};
  if (FAILED(until_taken([&] { return own->GetLibAttr(&about); })) || !about) return {};
  const TLIBATTR library = *about;
  own->ReleaseTLibAttr(about);
  ComPtr<ITypeLib> loaded;
  if (FAILED(LoadRegTypeLib(library.guid, library.wMajorVerNum, library.wMinorVerNum, library.lcid,
                            loaded.receive()))) {
    return {};
  }
  return loaded;
}

ComPtr<ITypeInfo> find_type(ITypeLib* library, const wchar_t* name) {
  const UINT count = library->GetTypeInfoCount();
  for (UINT i = 0; i < count; ++i) {
    Bstr own;
    ComPtr<ITypeInfo> type;
    if (FAILED(library->GetDocumentation(static_cast<INT>(i), own.receive(), nullptr, nullptr, nullptr)))
      continue;
    if (own.view() == name && SUCCEEDED(library->GetTypeInfo(i, type.receive()))) return type;
  }
  return {};
}

DISPID common_member_id(ITypeLib* library, const wchar_t* name) {
  const UINT count = library->GetTypeInfoCount();
  DISPID common = DISPID_UNKNOWN;
  for (UINT i = 0; i < count; ++i) {
    ComPtr<ITypeInfo> type;
    DISPID id = DISPID_UNKNOWN;
    auto* asked = const_cast<LPOLESTR>(name);
    TYPEKIND kind = TKIND_MAX;
    if (FAILED(library->GetTypeInfoType(i, &kind)) || (kind != TKIND_DISPATCH && kind != TKIND_INTERFACE))
      continue;
    if (FAILED(library->GetTypeInfo(i, type.receive())) || FAILED(type->GetIDsOfNames(&asked, 1, &id)))
      continue;
    if (common != DISPID_UNKNOWN && common != id) return DISPID_UNKNOWN;
    common = id;
  }
  return common;
}

}  // namespace zorboffice
