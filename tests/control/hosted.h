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

// Counts its own references and hands every question on to the control it is made of,
// which its last reference ends.
struct Outer final : IUnknown {
  HRESULT WINAPI QueryInterface(REFIID id, void** object) override {
    return id == IID_IUnknown ? AddRef(), *object = this, S_OK : inner->QueryInterface(id, object);
  }
  ULONG WINAPI AddRef() override { return ++references; }
  ULONG WINAPI Release() override {
    const ULONG left = --references;
    if (left == 0) references = 1, inner.Reset();
    return left;
  }
  ULONG references = 1;
  ComPtr<IUnknown> inner;
};

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

inline ComPtr<IStream> stream_of(const std::string& bytes) {
  ComPtr<IStream> stream;
  CreateStreamOnHGlobal(nullptr, TRUE, &stream);
  stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  return stream;
}

inline ComPtr<IStorage> new_storage() {
  ComPtr<IStorage> made;
  EXPECT_EQ(
      StgCreateDocfile(nullptr, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE | STGM_DELETEONRELEASE, 0,
                       &made),
      S_OK);
  return made;
}

inline HRESULT draw(IUnknown* control, HDC dc, RECTL bounds, DWORD aspect = DVASPECT_CONTENT,
                    LONG index = -1) {
  return as<IViewObject>(control)->Draw(aspect, index, nullptr, nullptr, nullptr, dc, &bounds, nullptr,
                                        nullptr, 0);
}

inline HRESULT resize(IUnknown* control, LONG width, LONG height) {
  SIZEL extent = {width, height};
  return as<IOleObject>(control)->SetExtent(DVASPECT_CONTENT, &extent);
}

inline bool is_usable(IUnknown* control) {
  wchar_t text[] = L"GetLastErrorNumber";
  LPOLESTR name = text;
  DISPID id = DISPID_UNKNOWN;
  const bool known = SUCCEEDED(as<IDispatch>(control)->GetIDsOfNames(IID_NULL, &name, 1, 0, &id));
  const bool saved = SUCCEEDED(as<IPersistStreamInit>(control)->Save(stream_of("").Get(), FALSE));
  const HDC dc = CreateCompatibleDC(nullptr);
  const HRESULT drawn = draw(control, dc, {0, 0, 28, 28});
  DeleteDC(dc);
  return known && saved && drawn == S_OK;
}

inline void pump() {
  for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) DispatchMessageW(&message);
}
