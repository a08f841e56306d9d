// A container that counts every reference it hands out, writes down every call, and fails or interrupts the
// one it is told to.
#pragma once

#include <ole2.h>
#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <string>
#include <utility>

// An object of the container, which answers for the interfaces it lists.
template <class First, class... More>
struct Counted : First, More... {
  explicit Counted(int& held) : held_(held) {}

  HRESULT WINAPI QueryInterface(REFIID id, void** object) override {
    *object = id == IID_IUnknown || id == __uuidof(First) ? static_cast<First*>(this) : nullptr;
    ((*object = id == __uuidof(More) ? static_cast<More*>(this) : *object), ...);
    return *object ? AddRef(), S_OK : E_NOINTERFACE;
  }
  ULONG WINAPI AddRef() override { return ++held_; }
  ULONG WINAPI Release() override { return --held_; }

 private:
  int& held_;
};

// What happens to the container: the calls by name, and one of them, counted from 1, that is special.
struct Happenings {
  HRESULT step(const std::string& name) {
    log += (log.empty() ? "" : " ") + name;
    if (++calls != special_call) return S_OK;
    if (interruption) interruption();
    return failure;
  }
  // A call that begins something, which lasts unless it fails, or ends it.
  HRESULT begin(int& lasting, const std::string& name) {
    ++lasting;
    const HRESULT status = step(name);
    return lasting -= FAILED(status), status;
  }
  HRESULT end(int& lasting, const std::string& name) {
    --lasting;
    out_of_order = out_of_order || lasting < 0;
    return step(name);
  }
  std::string take_log() { return std::exchange(log, {}); }

  int held = 0;  // references that others hold on the container's objects
  int in_place = 0, with_ui = 0;
  bool out_of_order = false;
  int calls = 0, special_call = 0;
  HRESULT failure = S_OK;
  std::function<void()> interruption;
  std::string log;
};

// The frame, and the document in it, which has the first methods of the frame.
struct Frame final : Counted<IOleInPlaceFrame> {
  Frame(Happenings& happenings, std::string name)
      : Counted(happenings.held), happenings_(happenings), name_(std::move(name)) {}

  void forget() {
    if (const auto object = std::exchange(active_, nullptr)) object->Release();
  }
  HRESULT WINAPI SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override {
    happenings_.out_of_order = happenings_.out_of_order || (object && !happenings_.with_ui);
    const HRESULT status = happenings_.step(name_ + (object ? ".SetActiveObject" : ".ClearActiveObject"));
    if (FAILED(status)) return status;
    forget();
    if (object) object->AddRef();
    return active_ = object, S_OK;
  }
  HRESULT WINAPI SetBorderSpace(LPCBORDERWIDTHS) override { return happenings_.step(name_ + ".NoTools"); }
  HRESULT WINAPI GetWindow(HWND*) override { return E_NOTIMPL; }
  HRESULT WINAPI ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  HRESULT WINAPI GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
  HRESULT WINAPI RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
  HRESULT WINAPI InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
  HRESULT WINAPI SetMenu(HMENU, HOLEMENU, HWND) override { return E_NOTIMPL; }
  HRESULT WINAPI RemoveMenus(HMENU) override { return E_NOTIMPL; }
  HRESULT WINAPI SetStatusText(LPCOLESTR) override { return E_NOTIMPL; }
  HRESULT WINAPI EnableModeless(BOOL) override { return E_NOTIMPL; }
  HRESULT WINAPI TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

 private:
  Happenings& happenings_;
  const std::string name_;
  IOleInPlaceActiveObject* active_ = nullptr;
};

// The site, which is also every sink.
struct StrictContainer final
    : Happenings,
      Counted<IOleClientSite, IOleInPlaceSite, IOleControlSite, IDispatch, IAdviseSink, IPropertyNotifySink> {
  StrictContainer() : Counted(held) {}
  ~StrictContainer() { DestroyWindow(form); }

  // Drops the references on the active object, as a container does that goes away.
  void forget_active_object() { frame_.forget(), document_.forget(); }
  HWND window() const { return ::GetWindow(form, GW_CHILD); }

  const HWND form = CreateWindowW(L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                                  nullptr, nullptr, nullptr);
  bool user_mode = true;
  OLE_COLOR background = 0x80000000 | COLOR_BTNFACE;
  RECT position = {10, 10, 38, 38};

  HRESULT WINAPI SaveObject() override { return step("SaveObject"); }
  HRESULT WINAPI ShowObject() override { return step("ShowObject"); }
  HRESULT WINAPI GetWindow(HWND* window) override {
    const HRESULT status = step("GetWindow");
    return *window = FAILED(status) ? nullptr : form, status;
  }
  HRESULT WINAPI CanInPlaceActivate() override { return step("CanInPlaceActivate"); }
  HRESULT WINAPI OnInPlaceActivate() override { return begin(in_place, "OnInPlaceActivate"); }
  HRESULT WINAPI OnUIActivate() override { return begin(with_ui, "OnUIActivate"); }
  HRESULT WINAPI GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT place,
                                  LPRECT clip, LPOLEINPLACEFRAMEINFO) override {
    const HRESULT status = step("GetWindowContext");
    if (FAILED(status)) return status;
    (*frame = &frame_)->AddRef();
    (*document = &document_)->AddRef();
    return *place = *clip = position, S_OK;
  }
  HRESULT WINAPI OnUIDeactivate(BOOL) override { return end(with_ui, "OnUIDeactivate"); }
  HRESULT WINAPI OnInPlaceDeactivate() override { return end(in_place, "OnInPlaceDeactivate"); }
  HRESULT WINAPI TranslateAccelerator(MSG*, DWORD) override { return step("TranslateAccelerator"); }
  HRESULT WINAPI OnFocus(BOOL focus) override { return step(focus ? "Focus" : "NoFocus"); }
  HRESULT WINAPI Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                        UINT*) override {
    const HRESULT status = step("Ambient");
    if (FAILED(status)) return status;
    V_VT(result) = id == DISPID_AMBIENT_USERMODE ? VT_BOOL : VT_UI4;  // .NET gives colours so
    if (id == DISPID_AMBIENT_USERMODE) return V_BOOL(result) = user_mode ? VARIANT_TRUE : VARIANT_FALSE, S_OK;
    return V_UI4(result) = background, id == DISPID_AMBIENT_BACKCOLOR ? S_OK : E_FAIL;
  }
  void WINAPI OnDataChange(FORMATETC*, STGMEDIUM*) override { step("OnDataChange"); }
  void WINAPI OnViewChange(DWORD, LONG) override { step("OnViewChange"); }
  void WINAPI OnSave() override { step("OnSave"); }
  void WINAPI OnClose() override { step("OnClose"); }

  HRESULT WINAPI GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  HRESULT WINAPI GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
  HRESULT WINAPI OnShowWindow(BOOL) override { return E_NOTIMPL; }
  HRESULT WINAPI RequestNewObjectLayout() override { return E_NOTIMPL; }
  HRESULT WINAPI ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  HRESULT WINAPI Scroll(SIZE) override { return E_NOTIMPL; }
  HRESULT WINAPI DiscardUndoState() override { return E_NOTIMPL; }
  HRESULT WINAPI DeactivateAndUndo() override { return E_NOTIMPL; }
  HRESULT WINAPI OnPosRectChange(LPCRECT) override { return E_NOTIMPL; }
  HRESULT WINAPI OnControlInfoChanged() override { return E_NOTIMPL; }
  HRESULT WINAPI LockInPlaceActive(BOOL) override { return E_NOTIMPL; }
  HRESULT WINAPI GetExtendedControl(IDispatch**) override { return E_NOTIMPL; }
  HRESULT WINAPI TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
  HRESULT WINAPI ShowPropertyFrame() override { return E_NOTIMPL; }
  HRESULT WINAPI GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT WINAPI GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT WINAPI GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  void WINAPI OnRename(IMoniker*) override {}
  HRESULT WINAPI OnChanged(DISPID) override { return E_NOTIMPL; }
  HRESULT WINAPI OnRequestEdit(DISPID) override { return E_NOTIMPL; }

 private:
  Frame frame_{*this, "Frame"}, document_{*this, "Document"};
};
