// A host's late-bound call.
#pragma once

#include <algorithm>

#include "fake_object.h"
#include "outside/library.h"
#include "text.h"

// Calls `member` of `object` by name and returns its result as the fakes' log shows values, or "raised NUMBER
// DESCRIPTION" with the failure that reached the host. The name is looked up in `bound_to` where that is
// given.
inline std::string late_call(IDispatch* object, const wchar_t* member, std::vector<_variant_t> arguments = {},
                             IDispatch* bound_to = nullptr) {
  DISPID identifier = DISPID_UNKNOWN;
  auto* name = const_cast<wchar_t*>(member);
  (bound_to ? bound_to : object)->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &identifier);
  std::ranges::reverse(arguments);
  DISPPARAMS parameters = {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
  _variant_t result;
  EXCEPINFO raised = {};
  const HRESULT called =
      object->Invoke(identifier, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                     &parameters, &result, &raised, nullptr);
  const auto description = utf8(outside::take(raised.bstrDescription));
  SysFreeString(raised.bstrSource);
  SysFreeString(raised.bstrHelpFile);
  if (called == S_OK) return describe(result);
  char number[16];
  snprintf(number, sizeof(number), "%08lX", called == DISP_E_EXCEPTION ? raised.scode : called);
  return std::string("raised ") + number + " " + description;
}
