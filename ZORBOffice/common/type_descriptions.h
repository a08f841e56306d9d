// What a type library says of types and members.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <optional>

#include "ZORBOffice/common/com_ptr.h"

namespace zorboffice {

struct MemberDescription {
  SHORT parameters = 0;
  // The type of the object that it answers; null where that may be any object, or none.
  ComPtr<ITypeInfo> answer;
};

// The identifier of a type; nothing where it has none.
std::optional<GUID> type_id(ITypeInfo* type);

// The dispatch interface behind a type: itself, a class's default interface, a dual interface's other half,
// what an alias stands for. Null where there is none.
ComPtr<ITypeInfo> dispatch_type(ComPtr<ITypeInfo> type);

// What is declared of a dispatch interface's member; nothing is known of one that it does not declare itself.
MemberDescription describe_member(ITypeInfo* type, DISPID id);

// The identifier of the first member of its own that a dispatch interface declares; false where there is
// none.
bool first_member(ITypeInfo* type, DISPID& id);

// The library that holds a type, loaded in this process from where it is registered. Null where it cannot be.
ComPtr<ITypeLib> registered_library(ITypeInfo* type);

// The type of exactly that name; null where there is none.
ComPtr<ITypeInfo> find_type(ITypeLib* library, const wchar_t* name);

// The identifier that all types of the library that have a member of that name give it; DISPID_UNKNOWN where
// they differ or none has it.
DISPID common_member_id(ITypeLib* library, const wchar_t* name);

}  // namespace zorboffice
