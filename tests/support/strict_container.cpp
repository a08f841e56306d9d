#include "strict_container.h"

#include <olectl.h>

#include <initializer_list>
#include <utility>
#include <vector>

namespace {

// Answers for the interfaces that a container's object names, and counts its references in `held`.
template <class... Interfaces>
struct Counted : Interfaces... {
  using Face = std::pair<IID, IUnknown*>;
  Counted(int& held, std::initializer_list<Face> faces) : held_(held), faces_(faces) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = nullptr;
    for (const auto& [known, face] : faces_)
      if (known == id) *object = face;
    if (!*object) return E_NOINTERFACE;
    ++held_;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++held_; }
  ULONG STDMETHODCALLTYPE Release() override { return --held_; }

 private:
  int& held_;
  const std::vector<Face> faces_;
};

}  // namespace

// The frame, and the document in it, which has the first four methods of the frame.
struct StrictContainer::Frame final : Counted<IOleInPlaceFrame> {
  Frame(StrictContainer& container, std::string name)
      : Counted(container.held_,
                {{IID_IUnknown, this}, {IID_IOleInPlaceUIWindow, this}, {IID_IOleInPlaceFrame, this}}),
        container_(container),
        name_(std::move(name)) {}
  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override {
    *window = container_.form_;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
  HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
  HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS) override { return step("SetBorderSpace"); }
  HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override {
    const HRESULT status = step(object ? "SetActiveObject" : "ClearActiveObject");
    if (FAILED(status)) return status;
    clear();
    if (object) object->AddRef();
    active_ = object;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return step("InsertMenus"); }
  HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override { return step("SetMenu"); }
  HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override { return step("RemoveMenus"); }
  HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override { return step("SetStatusText"); }
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return step("EnableModeless"); }
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }
  void clear() {
    if (const auto object = std::exchange(active_, nullptr)) object->Release();
  }

 private:
  HRESULT step(const char* call) { return container_.step((name_ + call).c_str()); }

  StrictContainer& container_;
  const std::string name_;
  IOleInPlaceActiveObject* active_ = nullptr;
};

struct StrictContainer::Site final : Counted<IOleClientSite, IOleInPlaceSite, IOleControlSite, IDispatch> {
  explicit Site(StrictContainer& container)
      : Counted(container.held_, {{IID_IUnknown, static_cast<IOleClientSite*>(this)},
                                  {IID_IOleClientSite, static_cast<IOleClientSite*>(this)},
                                  {IID_IOleWindow, static_cast<IOleInPlaceSite*>(this)},
                                  {IID_IOleInPlaceSite, static_cast<IOleInPlaceSite*>(this)},
                                  {IID_IOleControlSite, static_cast<IOleControlSite*>(this)},
                                  {IID_IDispatch, static_cast<IDispatch*>(this)}}),
        in_(container) {}

  HRESULT STDMETHODCALLTYPE SaveObject() override { return in_.step("SaveObject"); }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
  HRESULT STDMETHODCALLTYPE ShowObject() override { return in_.step("ShowObject"); }
  HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return in_.step("OnShowWindow"); }
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override {
    const HRESULT status = in_.step("GetWindow");
    *window = FAILED(status) ? nullptr : in_.form_;
    return status;
  }
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return in_.step("CanInPlaceActivate"); }
  HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return in_.step("OnInPlaceActivate"); }
  HRESULT STDMETHODCALLTYPE OnUIActivate() override { return in_.step("OnUIActivate"); }
  HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                             LPRECT position, LPRECT clip, LPOLEINPLACEFRAMEINFO) override {
    const HRESULT status = in_.step("GetWindowContext");
    if (FAILED(status)) return status;
    in_.frame_->QueryInterface(IID_IOleInPlaceFrame, reinterpret_cast<void**>(frame));
    in_.document_->QueryInterface(IID_IOleInPlaceUIWindow, reinterpret_cast<void**>(document));
    *position = *clip = in_.position;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override { return in_.step("OnUIDeactivate"); }
  HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return in_.step("OnInPlaceDeactivate"); }
  HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT) override { return in_.step("OnPosRectChange"); }

  HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return in_.step("OnControlInfoChanged"); }
  HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, DWORD) override { return in_.step("Accelerator"); }
  HRESULT STDMETHODCALLTYPE OnFocus(BOOL focus) override { return in_.step(focus ? "Focus" : "NoFocus"); }
  HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                   UINT*) override {
    const HRESULT status = in_.step("Ambient");
    if (FAILED(status)) return status;
    if (id != DISPID_AMBIENT_USERMODE && id != DISPID_AMBIENT_BACKCOLOR) return DISP_E_MEMBERNOTFOUND;
    V_VT(result) = id == DISPID_AMBIENT_USERMODE ? VT_BOOL : VT_I4;
    if (id == DISPID_AMBIENT_USERMODE) V_BOOL(result) = in_.user_mode ? VARIANT_TRUE : VARIANT_FALSE;
    if (id == DISPID_AMBIENT_BACKCOLOR) V_I4(result) = static_cast<LONG>(in_.background);
    return S_OK;
  }

  StrictContainer& in_;
};

struct StrictContainer::Sink final : Counted<IAdviseSink, IPropertyNotifySink, IDispatch> {
  explicit Sink(StrictContainer& container)
      : Counted(container.held_, {{IID_IUnknown, static_cast<IAdviseSink*>(this)},
                                  {IID_IAdviseSink, static_cast<IAdviseSink*>(this)},
                                  {IID_IPropertyNotifySink, static_cast<IPropertyNotifySink*>(this)},
                                  {IID_IDispatch, static_cast<IDispatch*>(this)}}),
        in_(container) {}

  void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override { in_.step("OnDataChange"); }
  void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override { in_.step("OnViewChange"); }
  void STDMETHODCALLTYPE OnRename(IMoniker*) override { in_.step("OnRename"); }
  void STDMETHODCALLTYPE OnSave() override { in_.step("OnSave"); }
  void STDMETHODCALLTYPE OnClose() override { in_.step("OnClose"); }
  HRESULT STDMETHODCALLTYPE OnChanged(DISPID) override { return in_.step("OnChanged"); }
  HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return in_.step("OnRequestEdit"); }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return in_.step("Event");
  }

  StrictContainer& in_;
};

StrictContainer::StrictContainer()
    : form_(CreateWindowW(L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr,
                          nullptr, nullptr)),
      site_(std::make_unique<Site>(*this)),
      sink_(std::make_unique<Sink>(*this)),
      frame_(std::make_unique<Frame>(*this, "Frame.")),
      document_(std::make_unique<Frame>(*this, "Document.")) {}

StrictContainer::~StrictContainer() { DestroyWindow(form_); }

void StrictContainer::forget_active_object() {
  frame_->clear();
  document_->clear();
}

IOleClientSite* StrictContainer::site() const { return site_.get(); }
IUnknown* StrictContainer::sink() const { return static_cast<IAdviseSink*>(sink_.get()); }

HRESULT StrictContainer::step(const char* name) {
  log_ += (log_.empty() ? "" : " ") + std::string(name);
  if (++calls != special_call) return S_OK;
  if (interruption) interruption();
  return failure;
}
