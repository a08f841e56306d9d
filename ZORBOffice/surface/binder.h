// Late-bound access to an interface by its member table.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include "ZORBOffice/surface/member_table.h"

namespace zorboffice {

// IDispatch::GetIDsOfNames: a member's name first, then names of its parameters; case does not matter.
HRESULT get_ids_of_names(MemberTable members, LPOLESTR* names, UINT count, DISPID* ids) noexcept;

// IDispatch::Invoke. Hosts disagree about flags and about the form in which arguments travel, and
// platforms about what their own helpers accept, hence no use of those.
//
// A method may be invoked as a property get and the other way round.
//
// An argument may come by value, by typed reference, in a variant by reference, by name, or as the missing
// variant; it is converted to the parameter's type under the host's locale.
//
// A reference into the host's variable gets what the member left in its parameter, in the variable's own
// type, but only when the member changed it.
//
// Returns DISP_E_* with the argument's index in argument_error where an argument is at fault, and
// DISP_E_EXCEPTION with the exception information filled where the member raised a failure.
HRESULT invoke_member(IDispatch* object, MemberTable members, DISPID id, LCID locale, WORD flags,
                      DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                      UINT* argument_error) noexcept;

}  // namespace zorboffice
