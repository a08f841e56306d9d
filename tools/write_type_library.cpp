// A program of the build: writes the library's type library, and each interface's identifier as a file of 16
// bytes, from the member tables. Usage: write_type_library FOLDER
#include <windows.h>
#include <oleauto.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "ZORBOffice/common/bstr.h"
#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/surface/registration_values.h"
#include "tools/class_list.h"
#include "tools/mend_type_library.h"

namespace zorboffice {
namespace {

using File = std::unique_ptr<FILE, int (*)(FILE*)>;

constexpr UINT hidden_interface = TYPEFLAG_FHIDDEN | TYPEFLAG_FNONEXTENSIBLE | TYPEFLAG_FDISPATCHABLE;
constexpr UINT default_interface_flags = hidden_interface | TYPEFLAG_FDUAL | TYPEFLAG_FOLEAUTOMATION;
constexpr UINT class_flags = TYPEFLAG_FCANCREATE | TYPEFLAG_FCONTROL;
constexpr UINT inherited_slots = 7;  // IUnknown's and IDispatch's

void require(HRESULT result, const char* step) {
  if (FAILED(result)) throw std::runtime_error(std::string(step) + " failed: " + std::to_string(result));
}

// The platform's functions take text without const and do not change it.
LPOLESTR text(const wchar_t* constant) { return const_cast<LPOLESTR>(constant); }

template <class Interface>
ComPtr<Interface> query(IUnknown* object, REFIID id) {
  ComPtr<Interface> found;
  require(object->QueryInterface(id, found.receive_void()), "QueryInterface");
  return found;
}

ComPtr<ITypeInfo> dispatch_interface() {
  ComPtr<ITypeLib> library;
  ComPtr<ITypeInfo> information;
  require(LoadTypeLib(L"stdole2.tlb", library.receive()), "loading stdole2.tlb");
  require(library->GetTypeInfoOfGuid(IID_IDispatch, information.receive()), "finding IDispatch");
  return information;
}

std::wstring wide(const char* sentence) { return {sentence, sentence + std::strlen(sentence)}; }

ComPtr<ICreateTypeInfo> create(ICreateTypeLib2* library, const wchar_t* name, TYPEKIND kind, REFGUID id,
                               UINT flags) {
  ComPtr<ICreateTypeInfo> created;
  require(library->CreateTypeInfo(text(name), kind, created.receive()), "CreateTypeInfo");
  require(created->SetGuid(id), "SetGuid");
  require(created->SetTypeFlags(flags), "SetTypeFlags");
  require(created->SetAlignment(sizeof(void*)), "SetAlignment");
  return created;
}

void inherit(ICreateTypeInfo* heir, ITypeInfo* base) {
  HREFTYPE reference;
  require(heir->AddRefTypeInfo(base, &reference), "AddRefTypeInfo");
  require(heir->AddImplType(0, reference), "AddImplType");
}

ELEMDESC element(TYPEDESC* type, bool by_reference, USHORT flags) {
  ELEMDESC description{};
  description.tdesc = *type;
  if (by_reference) {
    description.tdesc.vt = VT_PTR;
    description.tdesc.lptdesc = type;
  }
  description.paramdesc.wParamFlags = flags;
  return description;
}

USHORT flags_of(const Parameter& parameter) {
  USHORT flags = PARAMFLAG_FIN;
  if (parameter.by_reference) flags |= PARAMFLAG_FOUT;
  if (parameter.presence != Presence::required) flags |= PARAMFLAG_FOPT;
  if (parameter.presence == Presence::optional_with_value) flags |= PARAMFLAG_FHASDEFAULT;
  return flags;
}

void set_default(const Parameter& parameter, PARAMDESCEX& description) {
  description.cBytes = sizeof description;
  VARIANT& value = description.varDefaultValue;
  V_VT(&value) = VT_I2;
  V_I2(&value) = parameter.default_value;
  if (parameter.type == VT_BSTR) {
    V_VT(&value) = VT_BSTR;
    V_BSTR(&value) = SysAllocString(L"");
  } else if (parameter.type != VT_VARIANT) {
    require(VariantChangeType(&value, &value, 0, parameter.type), "converting a default");
  }
}

void add_member(ICreateTypeInfo* target, UINT slot, const Member& member) {
  const UINT count = static_cast<UINT>(member.parameters.size());
  // The result is the last parameter.
  std::vector<TYPEDESC> types(count + 1);
  std::vector<PARAMDESCEX> defaults(count);
  std::vector<ELEMDESC> elements;
  std::vector<LPOLESTR> names = {text(member.name)};
  for (UINT i = 0; i < count; ++i) {
    const Parameter& parameter = member.parameters.begin()[i];
    types[i].vt = parameter.type;
    elements.push_back(element(&types[i], parameter.by_reference, flags_of(parameter)));
    if (parameter.presence == Presence::optional_with_value) {
      set_default(parameter, defaults[i]);
      elements[i].paramdesc.pparamdescex = &defaults[i];
    }
    names.push_back(text(parameter.name));
  }
  types[count].vt = member.result;
  elements.push_back(element(&types[count], true, PARAMFLAG_FOUT | PARAMFLAG_FRETVAL));

  FUNCDESC function{};
  function.memid = member.id;
  function.lprgelemdescParam = elements.data();
  function.funckind = FUNC_PUREVIRTUAL;
  if (member.kind == MemberKind::property_get) {
    function.invkind = INVOKE_PROPERTYGET;
    // They act: a property browser that reads what it shows must not start the office application.
    function.wFuncFlags = FUNCFLAG_FNONBROWSABLE;
  } else {
    function.invkind = INVOKE_FUNC;
  }
  function.callconv = CC_STDCALL;
  function.cParams = static_cast<SHORT>(elements.size());
  function.oVft = static_cast<SHORT>((inherited_slots + slot) * sizeof(void*));
  function.elemdescFunc.tdesc.vt = VT_HRESULT;
  require(target->AddFuncDesc(slot, &function), "AddFuncDesc");
  require(target->SetFuncAndParamNames(slot, names.data(), static_cast<UINT>(names.size())),
          "SetFuncAndParamNames");
  if (!member.sentence) throw std::runtime_error("a member has no sentence");
  require(target->SetFuncDocString(slot, wide(member.sentence).data()), "SetFuncDocString");
  for (UINT i = 0; i < count; ++i) VariantClear(&defaults[i].varDefaultValue);
}

void add_implementation(ICreateTypeInfo* coclass, UINT index, ICreateTypeInfo* implemented, INT flags) {
  const auto information = query<ITypeInfo>(implemented, IID_ITypeInfo);
  HREFTYPE reference;
  require(coclass->AddRefTypeInfo(information.get(), &reference), "AddRefTypeInfo");
  require(coclass->AddImplType(index, reference), "AddImplType");
  require(coclass->SetImplTypeFlags(index, flags), "SetImplTypeFlags");
}

void add_class(ICreateTypeLib2* library, ITypeInfo* dispatch, const Class& row) {
  const PublishedClass& published = row.published;
  const auto events =
      create(library, published.event_interface, TKIND_DISPATCH, row.event_interface_id, hidden_interface);
  inherit(events.get(), dispatch);
  require(events->LayOut(), "LayOut");

  const auto members = create(library, published.default_interface, TKIND_INTERFACE, row.default_interface_id,
                              default_interface_flags);
  inherit(members.get(), dispatch);
  UINT slot = 0;
  for (const Member& member : published.members) add_member(members.get(), slot++, member);
  require(members->LayOut(), "LayOut");

  const auto coclass = create(library, published.name, TKIND_COCLASS, published.class_id, class_flags);
  require(coclass->SetDocString(wide(row.sentence).data()), "SetDocString");
  add_implementation(coclass.get(), 0, members.get(), IMPLTYPEFLAG_FDEFAULT);
  add_implementation(coclass.get(), 1, events.get(), IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE);
  require(coclass->LayOut(), "LayOut");
  // Adding the interfaces marks the class as dispatchable in some implementations; only interfaces are.
  require(coclass->SetTypeFlags(class_flags), "SetTypeFlags");
}

std::size_t count_of_true_defaults() {
  std::size_t count = 0;
  for (const Class& row : classes) {
    for (const Member& member : row.published.members) {
      count +=
          std::count_if(member.parameters.begin(), member.parameters.end(), [](const Parameter& parameter) {
            return parameter.type == VT_BOOL && parameter.default_value == VARIANT_TRUE;
          });
    }
  }
  return count;
}

void write_type_library(const std::wstring& path) {
  constexpr SYSKIND system = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
  ComPtr<ICreateTypeLib2> library;
  require(CreateTypeLib2(system, path.c_str(), library.receive()), "CreateTypeLib2");
  require(library->SetName(text(type_library_name)), "SetName");
  require(library->SetDocString(text(type_library_name)), "SetDocString");
  require(library->SetGuid(library_id), "SetGuid");
  require(library->SetVersion(type_library_major, type_library_minor), "SetVersion");
  require(library->SetLcid(type_library_locale), "SetLcid");
  require(library->SetLibFlags(type_library_flags), "SetLibFlags");
  const auto dispatch = dispatch_interface();
  for (const Class& row : classes) add_class(library.get(), dispatch.get(), row);
  require(library->SaveAllChanges(), "SaveAllChanges");
}

void write_identifier(const std::wstring& folder, const wchar_t* name, const GUID& id) {
  const File file(_wfopen((folder + name + L".guid").c_str(), L"wb"), std::fclose);
  if (!file || std::fwrite(&id, sizeof id, 1, file.get()) != 1 || std::fflush(file.get()) != 0) {
    throw std::runtime_error("writing an identifier failed");
  }
}

}  // namespace
}  // namespace zorboffice

int wmain(int count, wchar_t** arguments) {
  using namespace zorboffice;
  if (count != 2) {
    (void)std::fputs("usage: write_type_library FOLDER\n", stderr);
    return 2;
  }
  const std::wstring folder = std::wstring(arguments[1]) + L"\\";
  try {
    require(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), "CoInitializeEx");
    write_type_library(folder + L"ZORBOffice.tlb");
    mend_type_library(folder + L"ZORBOffice.tlb", count_of_true_defaults());
    for (const Class& row : classes) {
      write_identifier(folder, row.published.default_interface, row.default_interface_id);
      write_identifier(folder, row.published.event_interface, row.event_interface_id);
    }
  } catch (const std::exception& failure) {
    (void)std::fprintf(stderr, "write_type_library: %s\n", failure.what());
    return 1;
  }
  return 0;
}
