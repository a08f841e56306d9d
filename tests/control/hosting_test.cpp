// The controls in a container that does as it should; one that does not is the business of tests/fuzz.
#include <objsafe.h>

#include "hosted.h"

namespace {

template <class... Interfaces>
const std::vector<IID> ids_of = {__uuidof(Interfaces)...};

// Also where the control is a part of another object.
TEST(Interfaces, are_those_that_containers_ask_for_and_no_promise_of_safety) {
  const auto known = ids_of<IUnknown, IDispatch, IOleObject, IOleControl, IOleWindow, IOleInPlaceObject,
                            IOleInPlaceActiveObject, IViewObject, IViewObject2, IViewObjectEx, IPersist,
                            IPersistStream, IPersistStreamInit, IPersistStorage, IPersistPropertyBag,
                            IDataObject, IProvideClassInfo, IProvideClassInfo2, IConnectionPointContainer,
                            ISpecifyPropertyPages, IQuickActivate, ISupportErrorInfo>;
  for (const auto& ids : classes) {
    const GUID own = guid(ids.interface_id);
    Outer outer;
    ASSERT_EQ(factory(ids)->CreateInstance(&outer, IID_IUnknown, &outer.inner), S_OK);
    EXPECT_EQ(outer.references, 1u);
    for (const auto& identity : {as<IUnknown>(create(ids).Get()), as<IUnknown>(&outer)}) {
      ComPtr<IUnknown> face, back;
      for (const IID& id : known) {
        ASSERT_EQ(identity->QueryInterface(id, &face), S_OK) << &id - known.data();
        EXPECT_EQ(as<IUnknown>(face), identity) << &id - known.data();
        ASSERT_EQ(face->QueryInterface(own, &back), S_OK) << &id - known.data();
        EXPECT_EQ(as<IUnknown>(back), identity) << &id - known.data();
      }
      EXPECT_EQ(as<ISupportErrorInfo>(identity)->InterfaceSupportsErrorInfo(own), S_OK);
      for (const IID& id :
           {IID_IObjectSafety, IID_IObjectWithSite, IID_IOleInPlaceObjectWindowless, GUID_NULL})
        EXPECT_EQ(identity->QueryInterface(id, &face), E_NOINTERFACE);
      ComPtr<IConnectionPoint> point;
      as<IConnectionPointContainer>(identity)->FindConnectionPoint(IID_IPropertyNotifySink, &point);
      EXPECT_EQ(outer.references, identity.Get() == &outer ? 4u : 2u);
    }
    EXPECT_EQ(outer.references, 1u);
    EXPECT_EQ(outer.inner.Reset(), 0u);
    EXPECT_EQ(call("DllCanUnloadNow"), S_OK);
  }
}

TEST(Verbs, do_what_they_say_with_and_without_a_container) {
  const std::string shown = "CanInPlaceActivate OnInPlaceActivate GetWindow GetWindowContext ShowObject";
  const std::string used = shown +
                           " OnUIActivate Focus Frame.SetActiveObject Document.SetActiveObject"
                           " Frame.NoTools Document.NoTools";
  const std::tuple<LONG, HRESULT, HRESULT, std::string> rows[] = {
      {OLEIVERB_PRIMARY, S_OK, OLEOBJ_S_CANNOT_DOVERB_NOW, used},
      {OLEIVERB_UIACTIVATE, S_OK, OLEOBJ_S_CANNOT_DOVERB_NOW, used},
      {OLEIVERB_SHOW, S_OK, OLEOBJ_S_CANNOT_DOVERB_NOW, shown},
      {OLEIVERB_OPEN, S_OK, OLEOBJ_S_CANNOT_DOVERB_NOW, shown},
      {OLEIVERB_INPLACEACTIVATE, S_OK, OLEOBJ_S_CANNOT_DOVERB_NOW, shown},
      {OLEIVERB_HIDE, S_OK, S_OK, ""},
      {OLEIVERB_DISCARDUNDOSTATE, S_OK, S_OK, ""},
      {1, OLEOBJ_S_INVALIDVERB, OLEOBJ_S_CANNOT_DOVERB_NOW, used},
      {-7, E_NOTIMPL, E_NOTIMPL, ""}};
  for (const auto& [verb, sited, alone, log] : rows) {
    SCOPED_TRACE(verb);
    StrictContainer container;
    const auto control = create(classes[1]);
    const auto object = as<IOleObject>(control);
    EXPECT_EQ(object->DoVerb(verb, nullptr, nullptr, 0, nullptr, nullptr), alone);
    ASSERT_EQ(object->SetClientSite(&container), S_OK);
    EXPECT_EQ(container.take_log(), "Ambient Ambient");
    EXPECT_EQ(object->DoVerb(verb, nullptr, &container, 0, container.form, nullptr), sited);
    EXPECT_EQ(container.take_log(), log);
    const HWND window = FindWindowExW(container.form, nullptr, nullptr, L"Picture1");
    EXPECT_EQ(window != nullptr, !log.empty());
    RECT client = {}, larger = {10, 10, 100, 80};
    GetClientRect(window, &client);
    EXPECT_EQ(client.right, window ? 28 : 0);
    if (window) as<IOleInPlaceObject>(control)->SetObjectRects(&larger, &larger);
    GetClientRect(window, &client);
    EXPECT_EQ(client.right, window ? 90 : 0);
    EXPECT_EQ(window && GetFocus() == window, log == used);
    EXPECT_EQ(as<IOleInPlaceObject>(control)->InPlaceDeactivate(), S_OK);
    const std::string left = "Document.ClearActiveObject Frame.ClearActiveObject OnUIDeactivate NoFocus ";
    EXPECT_EQ(container.take_log(), log.empty() ? "" : (log == used ? left : "") + "OnInPlaceDeactivate");
    EXPECT_FALSE(container.window());
    EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
    EXPECT_EQ(container.held, 0);
  }
}

// Any call of an activation fails, or the container ends the activation during it.
TEST(Verbs, broken_off_leave_nothing_active_and_are_done_anew) {
  for (int special = 1, calls = 1; special <= 2 * calls; ++special) {
    StrictContainer container;
    const auto object = as<IOleObject>(create(classes[0]).Get());
    object->SetClientSite(&container);
    const auto activate = [&] {
      return object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, &container, 0, container.form, nullptr);
    };
    container.special_call = container.calls + (special + 1) / 2;
    if (special % 2) container.failure = E_FAIL;
    if (special % 2 == 0)
      container.interruption = [&] { as<IOleInPlaceObject>(object)->InPlaceDeactivate(); };
    EXPECT_EQ(activate() == S_OK, container.in_place) << container.log;
    EXPECT_EQ(container.window() != nullptr, container.in_place) << container.log;
    calls = container.calls;
    container.special_call = 0;
    DestroyWindow(container.window());
    EXPECT_EQ(activate(), S_OK) << container.log;
    object->SetClientSite(nullptr);
    EXPECT_EQ(container.held, 0);
  }
}

TEST(Input, is_the_container_s_in_design_and_keys_always) {
  MSG tab = {nullptr, WM_KEYDOWN, VK_TAB, 0, 0, {}};
  FORMATETC format = {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
  DWORD connection = 0;
  for (const bool user_mode : {false, true}) {
    StrictContainer container;
    container.user_mode = user_mode;
    const auto control = create(classes[2]);
    const auto active = as<IOleInPlaceActiveObject>(control);
    EXPECT_EQ(active->TranslateAccelerator(&tab), S_FALSE);
    const auto object = as<IOleObject>(control);
    object->SetClientSite(&container);
    object->DoVerb(OLEIVERB_SHOW, nullptr, &container, 0, container.form, nullptr);
    EXPECT_EQ(active->TranslateAccelerator(&tab), S_OK) << "the container's answer";
    for (const bool first : {true, false}) {
      container.take_log();
      SetFocus(container.form);
      SendMessageW(container.window(), WM_LBUTTONDOWN, 0, 0);
      EXPECT_EQ(container.take_log().find("OnUIActivate") != std::string::npos, user_mode && first);
      EXPECT_EQ(GetFocus() == container.window(), user_mode);
    }
    // At the end it saves if it is asked to, and sends data to whoever asked for it then.
    resize(control.Get(), 3000, 3000);
    EXPECT_EQ(
        as<IDataObject>(control)->DAdvise(&format, ADVF_DATAONSTOP | ADVF_NODATA, &container, &connection),
        S_OK);
    container.take_log();
    object->Close(user_mode ? OLECLOSE_SAVEIFDIRTY : OLECLOSE_NOSAVE);
    EXPECT_TRUE(
        container.log.ends_with(user_mode ? "SaveObject OnDataChange" : "OnInPlaceDeactivate OnDataChange"))
        << container.log;
    object->SetClientSite(nullptr);
  }
}

TEST(Extent, is_kept_and_refused_where_nobody_could_see_or_draw_it) {
  StrictContainer container;
  const auto control = create(classes[0]);
  FORMATETC format = {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
  DWORD connection = 0;
  as<IViewObject>(control)->SetAdvise(DVASPECT_CONTENT, 0, &container);
  EXPECT_EQ(as<IDataObject>(control)->DAdvise(&format, ADVF_NODATA, &container, &connection), S_OK);
  const std::tuple<LONG, LONG, HRESULT, LONG, const char*> rows[] = {
      {741, 741, S_OK, 741, ""},  // the size of a new one: 28 pixels of 1/96 inch
      {3000, 2000, S_OK, 3000, "OnViewChange OnDataChange"},
      {0, 500, S_OK, 0, "OnViewChange OnDataChange"},  // as a form's resizing code sets it
      {500, -1, E_INVALIDARG, 0, ""},
      {0x7FFFFFFF, 500, E_INVALIDARG, 0, ""},
      {1, 1, S_OK, 1, "OnViewChange OnDataChange"}};
  for (const auto& [width, height, status, kept, log] : rows) {
    EXPECT_EQ(resize(control.Get(), width, height), status) << width;
    SIZEL extent = {};
    EXPECT_EQ(as<IViewObject2>(control)->GetExtent(DVASPECT_CONTENT, 0, nullptr, &extent), S_OK);
    EXPECT_EQ(extent.cx, kept);
    EXPECT_EQ(container.take_log(), log) << width;
  }
}

TEST(Class, tells_its_events_its_pages_and_its_status) {
  for (const auto& ids : classes) {
    const auto control = create(ids);
    const auto information = as<IProvideClassInfo2>(control);
    const auto object = as<IOleObject>(control);
    ComPtr<ITypeInfo> type;
    ASSERT_EQ(information->GetClassInfo(&type), S_OK);
    BSTR name = nullptr;
    type->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
    EXPECT_EQ(take(name), ids.name);
    CAUUID pages = {7, nullptr};
    EXPECT_EQ(as<ISpecifyPropertyPages>(control)->GetPages(&pages), S_OK);
    EXPECT_EQ(pages.cElems, 0u);
    DWORD status = 0;
    EXPECT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status, 131473u) << "what registration says";
    LPOLESTR type_name = nullptr;
    EXPECT_EQ(object->GetUserType(USERCLASSTYPE_FULL, &type_name), S_OK);
    EXPECT_EQ(type_name, std::wstring(L"ZORBOffice.") + ids.name);
    CoTaskMemFree(type_name);
    GUID events = {};
    EXPECT_EQ(information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    EXPECT_EQ(events, guid(ids.events_id));
    ComPtr<IConnectionPoint> point;
    ASSERT_EQ(as<IConnectionPointContainer>(control)->FindConnectionPoint(events, &point), S_OK);
    StrictContainer container;
    DWORD first = 0, second = 0;
    EXPECT_EQ(point->Advise(static_cast<IAdviseSink*>(&container), &first), S_OK) << "it knows dispatch only";
    EXPECT_EQ(point->Advise(static_cast<IAdviseSink*>(&container), &second), S_OK);
    ComPtr<IEnumConnections> connections;
    CONNECTDATA found[3] = {};
    ULONG count = 0;
    EXPECT_EQ(point->EnumConnections(&connections), S_OK);
    EXPECT_EQ(connections->Next(3, found, &count), S_FALSE);
    EXPECT_TRUE(count == 2 && found[0].dwCookie == first && found[1].dwCookie == second);
    for (ULONG i = 0; i < count; ++i) found[i].pUnk->Release();
    connections.Reset();
    EXPECT_EQ(point->Unadvise(first), S_OK);
    EXPECT_EQ(point->Unadvise(first), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(container.held, 1);
    EXPECT_EQ(point->Unadvise(second), S_OK);
    EXPECT_EQ(container.held, 0);
  }
}

}  // namespace
