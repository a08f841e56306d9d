// A control in containers, driven the way the usual ones do it.
#pragma once

#include <map>
#include <vector>

#include "outside/library.h"
#include "support/strict_container.h"

using namespace outside;

template <class Interface>
ComPtr<Interface> as(IUnknown* object) {
  ComPtr<Interface> found;
  object->QueryInterface(__uuidof(Interface), &found);
  outside::require(found.Get(), "interface");
  return found;
}
template <class Interface, class Known>
ComPtr<Interface> as(const ComPtr<Known>& object) {
  return as<Interface>(object.Get());
}

// A property bag of texts, as a form's text file gives them.
struct Bag final : IPropertyBag {
  HRESULT WINAPI QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  ULONG WINAPI AddRef() override { return 2; }
  ULONG WINAPI Release() override { return 1; }
  HRESULT WINAPI Read(LPCOLESTR name, VARIANT* value, IErrorLog*) override {
    if (FAILED(failure)) return failure;
    if (!texts.contains(name)) return E_INVALIDARG;
    V_VT(value) = VT_BSTR;
    V_BSTR(value) = SysAllocString(texts[name].c_str());
    return S_OK;
  }
  HRESULT WINAPI Write(LPCOLESTR name, VARIANT* value) override {
    return texts[name] = std::to_wstring(V_I4(value)), failure;
  }
  std::map<std::wstring, std::wstring> texts;
  HRESULT failure = S_OK;
};

ComPtr<IStream> stream_of(const std::string& bytes);
ComPtr<IStorage> new_storage();
HRESULT draw(IUnknown* control, HDC dc, RECTL bounds, DWORD aspect = DVASPECT_CONTENT, LONG index = -1);
HRESULT resize(IUnknown* control, LONG width, LONG height);

bool is_usable(IUnknown* control);

// How a container creates, loads, shows, activates, saves and closes a control, in its own order. Failures
// are met as a container meets them: it goes on.
using Host = void (*)(StrictContainer& container, IUnknown* control);
void windows_forms(StrictContainer& container, IUnknown* control);
void visual_basic(StrictContainer& container, IUnknown* control);
