#include "bench/office_registration.h"

#include <windows.h>
#include <oleauto.h>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <vector>

#include "ZORBOffice/common/com_ptr.h"
#include "bench/office_types.h"

namespace bench {
namespace {

using zorboffice::ComPtr;

constexpr SYSKIND system_kind = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
constexpr REGKIND no_registration = REGKIND_NONE;

void require(HRESULT result, const char* step) {
  if (FAILED(result)) throw std::runtime_error(std::string(step) + " failed: " + std::to_string(result));
}

LPOLESTR text(const std::wstring& constant) { return const_cast<LPOLESTR>(constant.c_str()); }

std::wstring text_of(const GUID& id) {
  wchar_t text[40];
  StringFromGUID2(id, text, 40);
  return text;
}

ComPtr<ITypeInfo> information(ICreateTypeInfo* type) {
  ComPtr<ITypeInfo> found;
  require(type->QueryInterface(IID_ITypeInfo, found.receive_void()), "QueryInterface");
  return found;
}

// The types refer to each other: all are made before the first member.
class Writer {
 public:
  Writer(const Application& application, const std::wstring& path) : application_(application) {
    require(CreateTypeLib2(system_kind, path.c_str(), library_.receive()), "CreateTypeLib2");
    std::wstring name = application.program_id;
    std::ranges::replace(name, L'.', L'_');
    require(library_->SetName(text(name)), "SetName");
    require(library_->SetGuid(application.library_id), "SetGuid");
    require(library_->SetVersion(1, 0), "SetVersion");
    require(library_->SetLcid(0), "SetLcid");
    for (const Type& type : application.types) {
      const std::wstring own_name = (type.is_class ? L"_" : L"") + std::wstring(type.name);
      const auto made = create(own_name, TKIND_DISPATCH, type_id(application, type, false));
      named_[type.name] = made;
      interfaces_.push_back(made);
      if (!type.is_class) continue;
      const auto coclass = create(type.name, TKIND_COCLASS, type_id(application, type, true));
      implement(coclass.get(), information(made.get()).get(), IMPLTYPEFLAG_FDEFAULT);
      named_[type.name] = coclass;
    }
    for (std::size_t i = 0; i < interfaces_.size(); ++i)
      add_members(interfaces_[i].get(), application.types[i]);
    for (const auto& made : interfaces_) require(made->LayOut(), "LayOut");
    require(library_->SaveAllChanges(), "SaveAllChanges");
  }

 private:
  ComPtr<ICreateTypeInfo> create(const std::wstring& name, TYPEKIND kind, const GUID& id) {
    ComPtr<ICreateTypeInfo> created;
    require(library_->CreateTypeInfo(text(name), kind, created.receive()), "CreateTypeInfo");
    require(created->SetGuid(id), "SetGuid");
    return created;
  }

  static void implement(ICreateTypeInfo* heir, ITypeInfo* base, INT flags) {
    HREFTYPE reference;
    require(heir->AddRefTypeInfo(base, &reference), "AddRefTypeInfo");
    require(heir->AddImplType(0, reference), "AddImplType");
    if (flags) require(heir->SetImplTypeFlags(0, flags), "SetImplTypeFlags");
  }

  void add_members(ICreateTypeInfo* target, const Type& type) {
    UINT index = 0;
    for (const MemberRow& member : type.members) {
      TYPEDESC object{};
      FUNCDESC function{};
      TYPEDESC& answer = function.elemdescFunc.tdesc;
      answer.vt = declared(member.answer.kind);
      if (answer.vt == VT_USERDEFINED) {
        const auto answered = information(named_.at(member.answer.name).get());
        require(target->AddRefTypeInfo(answered.get(), &object.hreftype), "AddRefTypeInfo");
        object.vt = VT_USERDEFINED;
        answer = {{&object}, VT_PTR};
      }
      std::vector<std::wstring> names = {member.name};
      std::wstring rest = member.parameters;
      for (auto end = rest.find(L' '); !rest.empty(); end = rest.find(L' ')) {
        names.push_back(rest.substr(0, end));
        rest.erase(0, end == std::wstring::npos ? end : end + 1);
      }
      std::vector<LPOLESTR> all_names;
      for (const auto& name : names) all_names.push_back(text(name));
      std::vector<ELEMDESC> parameters(names.size() - 1);
      for (ELEMDESC& parameter : parameters) {
        parameter.tdesc.vt = VT_VARIANT;
        parameter.paramdesc.wParamFlags = PARAMFLAG_FIN | PARAMFLAG_FOPT;
      }
      function.memid = member_id(application_, type, member);
      function.funckind = FUNC_DISPATCH;
      function.invkind = member.is_method ? INVOKE_FUNC : INVOKE_PROPERTYGET;
      function.callconv = CC_STDCALL;
      function.cParams = static_cast<SHORT>(parameters.size());
      function.lprgelemdescParam = parameters.data();
      require(target->AddFuncDesc(index, &function), "AddFuncDesc");
      require(target->SetFuncAndParamNames(index, all_names.data(), static_cast<UINT>(all_names.size())),
              "SetFuncAndParamNames");
      ++index;
    }
  }

  static VARTYPE declared(Answer::Kind kind) {
    switch (kind) {
      case Answer::nothing:
        return VT_VOID;
      case Answer::number:
      case Answer::counted:
      case Answer::item_class:
        return VT_I4;
      case Answer::real:
        return VT_R4;
      case Answer::flag:
        return VT_BOOL;
      case Answer::text:
        return VT_BSTR;
      case Answer::date:
        return VT_DATE;
      case Answer::elements:
        return VT_UNKNOWN;
      case Answer::object:
      case Answer::folder:
        return VT_USERDEFINED;
      default:
        return VT_DISPATCH;
    }
  }

  const Application& application_;
  ComPtr<ICreateTypeLib2> library_;
  std::vector<ComPtr<ICreateTypeInfo>> interfaces_;
  std::map<std::wstring, ComPtr<ICreateTypeInfo>> named_;
};

const std::wstring machine_classes = L"Software\\Classes\\";

void write(const std::wstring& key, const std::wstring& value) {
  const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  if (RegSetKeyValueW(HKEY_LOCAL_MACHINE, (machine_classes + key).c_str(), nullptr, REG_SZ, value.c_str(),
                      bytes)) {
    throw std::runtime_error("the registry cannot be written");
  }
}

}  // namespace

void register_applications(const std::wstring& folder, const std::wstring& command) {
  for (const Application& application : applications) {
    const std::wstring path = folder + L"\\" + application.program_id + L".tlb";
    Writer(application, path);
    ComPtr<ITypeLib> library;
    require(LoadTypeLibEx(path.c_str(), no_registration, library.receive()), "loading a type library");
    require(RegisterTypeLib(library.get(), text(path), nullptr), "RegisterTypeLib");
    const std::wstring id = text_of(application.class_id);
    write(std::wstring(application.program_id) + L"\\CLSID", id);
    write(L"CLSID\\" + id + L"\\LocalServer32", command);
  }
}

void unregister_applications() {
  for (const Application& application : applications) {
    UnRegisterTypeLib(application.library_id, 1, 0, 0, system_kind);
    const std::wstring keys[] = {application.program_id, L"CLSID\\" + text_of(application.class_id)};
    for (const std::wstring& key : keys) RegDeleteTreeW(HKEY_LOCAL_MACHINE, (machine_classes + key).c_str());
  }
}

}  // namespace bench
