// A host's late-bound call.
#pragma once

#include <windows.h>
#include <comutil.h>

#include <string>
#include <vector>

// Calls `member` of `object` by name and returns its result as the fakes' log shows values, or "raised NUMBER
// DESCRIPTION" with the failure that reached the host. The name is looked up in `bound_to` where that is
// given.
std::string late_call(IDispatch* object, const wchar_t* member, std::vector<_variant_t> arguments = {},
                      IDispatch* bound_to = nullptr);
