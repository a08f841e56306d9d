#include "hosted.h"

using Microsoft::WRL::ComPtr;

namespace {

// An unsaved property bag: what is written comes back.
struct Bag final : IPropertyBag {
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE Read(LPCOLESTR, VARIANT*, IErrorLog*) override { return E_INVALIDARG; }
  HRESULT STDMETHODCALLTYPE Write(LPCOLESTR, VARIANT*) override { return S_OK; }
};

void pump() {
  for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) DispatchMessageW(&message);
}

}  // namespace

ComPtr<IStream> saved_stream() {
  const auto control = outside::create(outside::classes[0]);
  SIZEL extent = {1000, 900};
  as<IOleObject>(control.Get())->SetExtent(DVASPECT_CONTENT, &extent);
  ComPtr<IStream> stream;
  CreateStreamOnHGlobal(nullptr, TRUE, &stream);
  as<IPersistStreamInit>(control.Get())->Save(stream.Get(), TRUE);
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  return stream;
}

bool is_usable(IUnknown* control) {
  wchar_t text[] = L"GetLastErrorNumber";
  LPOLESTR name = text;
  DISPID id = DISPID_UNKNOWN;
  const auto dispatch = as<IDispatch>(control);
  const bool known = SUCCEEDED(dispatch->GetIDsOfNames(IID_NULL, &name, 1, 0, &id));
  ComPtr<IStream> stream;
  CreateStreamOnHGlobal(nullptr, TRUE, &stream);
  const bool saved = SUCCEEDED(as<IPersistStreamInit>(control)->Save(stream.Get(), FALSE));
  const HDC dc = CreateCompatibleDC(nullptr);
  const RECTL bounds = {0, 0, 28, 28};
  const HRESULT drawn = as<IViewObject>(control)->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc,
                                                       &bounds, nullptr, nullptr, 0);
  DeleteDC(dc);
  return known && saved && drawn == S_OK;
}

void windows_forms(StrictContainer& container, IUnknown* control) {
  const auto object = as<IOleObject>(control);
  DWORD status = 0, cookie = 0;
  object->GetMiscStatus(DVASPECT_CONTENT, &status);
  object->SetClientSite(container.site());
  const auto persistence = as<IPersistStreamInit>(control);
  const auto stream = saved_stream();
  persistence->Load(stream.Get());
  SIZEL extent = {};
  object->GetExtent(DVASPECT_CONTENT, &extent);
  extent.cx += 26;
  object->SetExtent(DVASPECT_CONTENT, &extent);
  CONTROLINFO information = {sizeof information, nullptr, 0, 0};
  as<IOleControl>(control)->GetControlInfo(&information);
  ComPtr<IConnectionPoint> point;
  as<IConnectionPointContainer>(control)->FindConnectionPoint(IID_IPropertyNotifySink, &point);
  point->Advise(container.sink(), &cookie);
  object->DoVerb(OLEIVERB_HIDE, nullptr, container.site(), -1, container.form(), &container.position);
  object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, container.site(), -1, container.form(), nullptr);
  as<IOleInPlaceObject>(control)->SetObjectRects(&container.position, &container.position);
  object->DoVerb(OLEIVERB_SHOW, nullptr, container.site(), -1, container.form(), nullptr);
  object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, container.site(), -1, container.form(), nullptr);
  pump();
  MSG tab = {nullptr, WM_KEYDOWN, VK_TAB, 0, 0, {}};
  as<IOleInPlaceActiveObject>(control)->TranslateAccelerator(&tab);
  as<IOleInPlaceObject>(control)->UIDeactivate();
  as<IOleControl>(control)->OnAmbientPropertyChange(DISPID_AMBIENT_BACKCOLOR);
  const auto saved = saved_stream();
  persistence->Save(saved.Get(), TRUE);
  point->Unadvise(cookie);
  as<IOleInPlaceObject>(control)->InPlaceDeactivate();
  object->Close(OLECLOSE_NOSAVE);
  object->SetClientSite(nullptr);
}

void visual_basic(StrictContainer& container, IUnknown* control) {
  const auto sink = as<IAdviseSink>(container.sink());
  const auto notices = as<IPropertyNotifySink>(container.sink());
  QACONTAINER given = {};
  QACONTROL taken = {};
  given.cbSize = sizeof given;
  taken.cbSize = sizeof taken;
  given.pClientSite = container.site();
  given.pAdviseSink = reinterpret_cast<IAdviseSinkEx*>(sink.Get());
  given.pPropertyNotifySink = notices.Get();
  given.pUnkEventSink = container.sink();
  given.dwAmbientFlags = QACONTAINER_USERMODE;
  given.colorBack = container.background;
  as<IQuickActivate>(control)->QuickActivate(&given, &taken);
  Bag bag;
  const auto persistence = as<IPersistPropertyBag>(control);
  persistence->Load(&bag, nullptr);
  const auto object = as<IOleObject>(control);
  SIZEL extent = {2000, 1000};
  object->SetExtent(DVASPECT_CONTENT, &extent);
  DWORD connection = 0;
  object->Advise(sink.Get(), &connection);
  as<IOleControl>(control)->FreezeEvents(TRUE);
  object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, container.site(), 0, container.form(),
                 &container.position);
  as<IOleControl>(control)->FreezeEvents(FALSE);
  HWND window = nullptr;
  as<IOleInPlaceObject>(control)->GetWindow(&window);
  if (window) SendMessageW(window, WM_LBUTTONDOWN, 0, 0);
  pump();
  object->DoVerb(OLEIVERB_HIDE, nullptr, container.site(), 0, container.form(), &container.position);
  persistence->Save(&bag, TRUE, TRUE);
  extent = {1000, 1000};
  object->SetExtent(DVASPECT_CONTENT, &extent);
  object->Close(OLECLOSE_SAVEIFDIRTY);
  object->Unadvise(connection);
  as<IViewObject>(control)->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
  ComPtr<IConnectionPoint> events, properties;
  const auto points = as<IConnectionPointContainer>(control);
  GUID events_id = {};
  as<IProvideClassInfo2>(control)->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events_id);
  points->FindConnectionPoint(events_id, &events);
  points->FindConnectionPoint(IID_IPropertyNotifySink, &properties);
  events->Unadvise(taken.dwEventCookie);
  properties->Unadvise(taken.dwPropNotifyCookie);
  object->SetClientSite(nullptr);
}
