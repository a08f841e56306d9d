// A control in the strict container, driven the way the usual containers do it.
#pragma once

#include <ocidl.h>
#include <olectl.h>

#include "outside/library.h"
#include "support/strict_container.h"

template <class Interface>
Microsoft::WRL::ComPtr<Interface> as(IUnknown* object) {
  Microsoft::WRL::ComPtr<Interface> found;
  object->QueryInterface(__uuidof(Interface), &found);
  outside::require(found.Get(), "interface");
  return found;
}

// The class's stream of a control that was sized 1000 by 900.
Microsoft::WRL::ComPtr<IStream> saved_stream();

// Whether the control still draws itself, knows its members and can be saved.
bool is_usable(IUnknown* control);

// How a container creates, loads, shows, activates, saves and closes a control, in its own order. Failures
// are met as a container meets them: it goes on.
using Host = void (*)(StrictContainer& container, IUnknown* control);
void windows_forms(StrictContainer& container, IUnknown* control);
void visual_basic(StrictContainer& container, IUnknown* control);
