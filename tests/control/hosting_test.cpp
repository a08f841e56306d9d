// The controls in containers: what they answer, the order of activation, containers that fail or misbehave,
// and nothing left behind.
#include <objsafe.h>
#include <servprov.h>

#include "atl_container.h"
#include "hosted.h"
#include "support/leaks.h"

using Microsoft::WRL::ComPtr;
using outside::classes;

namespace {

void expect_no_more_than(const Resources& before, const char* what) {
  const Resources after = resources_in_use();
  EXPECT_EQ(after.blocks, before.blocks) << what;
  EXPECT_EQ(after.bytes, before.bytes) << what;
  EXPECT_LT(after.handles, before.handles + 20) << what;
  EXPECT_LT(after.gdi_objects, before.gdi_objects + 20) << what;
  EXPECT_LT(after.windows, before.windows + 20) << what;
}

HWND window_on(HWND form) { return GetWindow(form, GW_CHILD); }

TEST(Interfaces, are_those_that_containers_ask_for_and_no_promise_of_safety) {
  const IID known[] = {IID_IOleObject,
                       IID_IOleControl,
                       IID_IOleWindow,
                       IID_IOleInPlaceObject,
                       IID_IOleInPlaceActiveObject,
                       IID_IViewObject,
                       IID_IViewObject2,
                       IID_IViewObjectEx,
                       IID_IPersist,
                       IID_IPersistStream,
                       IID_IPersistStreamInit,
                       IID_IPersistStorage,
                       IID_IPersistPropertyBag,
                       IID_IDataObject,
                       IID_IProvideClassInfo,
                       IID_IProvideClassInfo2,
                       IID_IConnectionPointContainer,
                       IID_ISpecifyPropertyPages,
                       IID_IQuickActivate,
                       IID_ISupportErrorInfo,
                       IID_IObjectWithSite};
  for (const auto& ids : classes) {
    const auto control = outside::create(ids);
    ComPtr<IUnknown> identity, face, back;
    control.As(&identity);
    for (const IID& id : known) {
      ASSERT_EQ(control->QueryInterface(id, &face), S_OK) << &id - known;
      ASSERT_EQ(face.As(&back), S_OK);
      EXPECT_EQ(back, identity) << &id - known;
      EXPECT_EQ(face->QueryInterface(outside::guid(ids.interface_id), &back), S_OK) << &id - known;
    }
    for (const IID& id :
         {IID_IObjectSafety, IID_IOleInPlaceObjectWindowless, IID_IServiceProvider, GUID_NULL})
      EXPECT_EQ(control->QueryInterface(id, &face), E_NOINTERFACE);
  }
}

// Counts its own references and hands every question on to the control it is made of.
struct Outer final : IUnknown {
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (id != IID_IUnknown) return inner->QueryInterface(id, object);
    AddRef();
    return *object = this, S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
  ULONG STDMETHODCALLTYPE Release() override { return --references; }
  ULONG references = 1;
  ComPtr<IUnknown> inner;
};

TEST(Aggregation, makes_the_control_a_part_of_another_object) {
  for (const auto& ids : classes) {
    Outer outer;
    ASSERT_EQ(outside::factory(ids)->CreateInstance(&outer, IID_IUnknown, &outer.inner), S_OK);
    EXPECT_EQ(outer.references, 1u);
    ComPtr<IUnknown> object, dispatch, identity;
    ComPtr<IConnectionPoint> point;
    ASSERT_EQ(outer.QueryInterface(IID_IOleObject, &object), S_OK);
    ASSERT_EQ(outer.QueryInterface(IID_IDispatch, &dispatch), S_OK);
    ASSERT_EQ(
        as<IConnectionPointContainer>(object.Get())->FindConnectionPoint(IID_IPropertyNotifySink, &point),
        S_OK);
    EXPECT_EQ(outer.references, 4u);
    for (const auto& part : {object, dispatch}) {
      ASSERT_EQ(part.As(&identity), S_OK);
      EXPECT_EQ(identity.Get(), &outer);
    }
    {
      StrictContainer container;
      windows_forms(container, &outer);
      EXPECT_EQ(container.held(), 0);
    }
    object.Reset(), dispatch.Reset(), identity.Reset(), point.Reset();
    EXPECT_EQ(outer.references, 1u);
    EXPECT_EQ(outer.inner.Reset(), 0u);
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
  }
}

TEST(Verbs, do_what_they_say_with_and_without_a_container) {
  const std::string shown = "CanInPlaceActivate OnInPlaceActivate GetWindow GetWindowContext ShowObject";
  const std::string used = shown +
                           " OnUIActivate Focus Frame.SetActiveObject Document.SetActiveObject"
                           " Frame.SetBorderSpace Document.SetBorderSpace";
  const struct {
    LONG verb;
    HRESULT sited, alone;
    std::string log;
  } rows[] = {{OLEIVERB_PRIMARY, S_OK, OLEOBJ_S_CANNOT_DOVERB_NOW, used},
              {OLEIVERB_UIACTIVATE, S_OK, OLEOBJ_S_CANNOT_DOVERB_NOW, used},
              {OLEIVERB_SHOW, S_OK, OLEOBJ_S_CANNOT_DOVERB_NOW, shown},
              {OLEIVERB_OPEN, S_OK, OLEOBJ_S_CANNOT_DOVERB_NOW, shown},
              {OLEIVERB_INPLACEACTIVATE, S_OK, OLEOBJ_S_CANNOT_DOVERB_NOW, shown},
              {OLEIVERB_HIDE, S_OK, S_OK, ""},
              {OLEIVERB_DISCARDUNDOSTATE, S_OK, S_OK, ""},
              {1, OLEOBJ_S_INVALIDVERB, OLEOBJ_S_CANNOT_DOVERB_NOW, used},
              {-7, E_NOTIMPL, E_NOTIMPL, ""},
              {-100, E_NOTIMPL, E_NOTIMPL, ""}};
  for (const auto& [verb, sited, alone, log] : rows) {
    SCOPED_TRACE(verb);
    StrictContainer container;
    const auto control = outside::create(classes[1]);
    const auto object = as<IOleObject>(control.Get());
    EXPECT_EQ(object->DoVerb(verb, nullptr, nullptr, 0, nullptr, nullptr), alone);
    ASSERT_EQ(object->SetClientSite(container.site()), S_OK);
    EXPECT_EQ(container.log(), "Ambient Ambient");
    EXPECT_EQ(object->DoVerb(verb, nullptr, container.site(), 0, container.form(), nullptr), sited);
    EXPECT_EQ(container.log(), log);
    const HWND window = FindWindowExW(container.form(), nullptr, nullptr, L"Picture1");
    EXPECT_EQ(window != nullptr, !log.empty());
    RECT client = {};
    if (window) GetClientRect(window, &client);
    EXPECT_EQ(client.right, window ? 28 : 0);
    EXPECT_EQ(window && GetFocus() == window, log == used);
    EXPECT_EQ(as<IOleInPlaceObject>(control.Get())->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(container.log(), log.empty() ? ""
                               : log == used
                                   ? "Document.ClearActiveObject Frame.ClearActiveObject OnUIDeactivate"
                                     " NoFocus OnInPlaceDeactivate"
                                   : "OnInPlaceDeactivate");
    EXPECT_FALSE(window_on(container.form()));
    EXPECT_EQ(object->SetClientSite(nullptr), S_OK);
    EXPECT_EQ(container.held(), 0);
  }
}

TEST(Form, in_design_leaves_the_mouse_to_the_designer) {
  for (const bool user_mode : {false, true}) {
    StrictContainer container;
    container.user_mode = user_mode;
    const auto control = outside::create(classes[2]);
    const auto object = as<IOleObject>(control.Get());
    object->SetClientSite(container.site());
    object->DoVerb(OLEIVERB_SHOW, nullptr, container.site(), 0, container.form(), nullptr);
    container.log();
    SendMessageW(window_on(container.form()), WM_LBUTTONDOWN, 0, 0);
    EXPECT_EQ(container.log().starts_with("OnUIActivate"), user_mode);
    object->SetClientSite(nullptr);
  }
}

TEST(Keys, go_to_the_container) {
  StrictContainer container;
  const auto control = outside::create(classes[0]);
  const auto active = as<IOleInPlaceActiveObject>(control.Get());
  MSG tab = {nullptr, WM_KEYDOWN, VK_TAB, 0, 0, {}};
  EXPECT_EQ(active->TranslateAccelerator(&tab), S_FALSE);
  as<IOleObject>(control.Get())->SetClientSite(container.site());
  EXPECT_EQ(active->TranslateAccelerator(&tab), S_OK) << "the container's answer";
  EXPECT_TRUE(container.log().ends_with("Accelerator"));
}

TEST(Extent, is_kept_and_refused_where_nobody_could_see_or_draw_it) {
  StrictContainer container;
  const auto control = outside::create(classes[0]);
  const auto object = as<IOleObject>(control.Get());
  as<IViewObject>(control.Get())->SetAdvise(DVASPECT_CONTENT, 0, as<IAdviseSink>(container.sink()).Get());
  FORMATETC format = {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
  DWORD connection = 0;
  const auto sink = as<IAdviseSink>(container.sink());
  ASSERT_EQ(as<IDataObject>(control.Get())->DAdvise(&format, ADVF_NODATA, sink.Get(), &connection), S_OK);
  const SIZEL fresh = {741, 741};  // 28 pixels of 1/96 inch
  const struct {
    SIZEL wanted;
    HRESULT status;
    SIZEL kept;
    const char* log;
  } rows[] = {{fresh, S_OK, fresh, ""},
              {{3000, 2000}, S_OK, {3000, 2000}, "OnViewChange OnDataChange"},
              {{0, 500}, E_INVALIDARG, {3000, 2000}, ""},
              {{500, -1}, E_INVALIDARG, {3000, 2000}, ""},
              {{0x7FFFFFFF, 500}, E_INVALIDARG, {3000, 2000}, ""},
              {{1, 1}, S_OK, {1, 1}, "OnViewChange OnDataChange"}};
  for (auto [wanted, status, kept, log] : rows) {
    EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, &wanted), status) << wanted.cx;
    SIZEL extent = {};
    EXPECT_EQ(as<IViewObject2>(control.Get())->GetExtent(DVASPECT_CONTENT, -1, nullptr, &extent), S_OK);
    EXPECT_TRUE(extent.cx == kept.cx && extent.cy == kept.cy) << extent.cx << " " << extent.cy;
    EXPECT_EQ(container.log(), log) << wanted.cx;
    EXPECT_TRUE(is_usable(control.Get())) << wanted.cx;
  }
}

TEST(Class, tells_its_events_its_pages_and_its_status) {
  for (const auto& ids : classes) {
    const auto control = outside::create(ids);
    const auto information = as<IProvideClassInfo2>(control.Get());
    GUID events = {};
    EXPECT_EQ(information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    EXPECT_EQ(events, outside::guid(ids.events_id));
    ComPtr<ITypeInfo> type;
    ASSERT_EQ(information->GetClassInfo(&type), S_OK);
    BSTR name = nullptr;
    type->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
    EXPECT_EQ(outside::take(name), ids.name);
    CAUUID pages = {7, nullptr};
    EXPECT_EQ(as<ISpecifyPropertyPages>(control.Get())->GetPages(&pages), S_OK);
    EXPECT_EQ(pages.cElems, 0u);
    DWORD status = 0;
    EXPECT_EQ(as<IOleObject>(control.Get())->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status, 131473u) << "what registration says";
    LPOLESTR type_name = nullptr;
    EXPECT_EQ(as<IOleObject>(control.Get())->GetUserType(USERCLASSTYPE_FULL, &type_name), S_OK);
    EXPECT_EQ(type_name, std::wstring(L"ZORBOffice.") + ids.name);
    CoTaskMemFree(type_name);
    ComPtr<IConnectionPoint> point;
    EXPECT_EQ(as<IConnectionPointContainer>(control.Get())->FindConnectionPoint(events, &point), S_OK);
    StrictContainer container;
    DWORD first = 0, second = 0;
    EXPECT_EQ(point->Advise(container.sink(), &first), S_OK);
    EXPECT_EQ(point->Advise(container.sink(), &second), S_OK);
    EXPECT_EQ(point->Advise(container.site(), &second), S_OK) << "any dispatch object listens to events";
    ComPtr<IEnumConnections> connections;
    CONNECTDATA found[4] = {};
    ULONG count = 0;
    EXPECT_EQ(point->EnumConnections(&connections), S_OK);
    EXPECT_EQ(connections->Next(4, found, &count), S_FALSE);
    ASSERT_EQ(count, 3u);
    for (ULONG i = 0; i < count; ++i) {
      found[i].pUnk->Release();
      EXPECT_EQ(point->Unadvise(found[i].dwCookie), S_OK);
    }
    EXPECT_EQ(point->Unadvise(first), CONNECT_E_NOCONNECTION);
    connections.Reset();
    EXPECT_EQ(container.held(), 0);
    control->QueryInterface(IID_IConnectionPointContainer, &point);
  }
}

TEST(Containers, come_and_go_a_thousand_times_without_a_trace) {
  for (const auto& ids : classes) {
    for (const Host host : {windows_forms, visual_basic}) {
      StrictContainer container;
      const auto round = [&] {
        const auto control = outside::create(ids);
        host(container, control.Get());
        EXPECT_EQ(container.held(), 0);
        EXPECT_FALSE(window_on(container.form()));
        container.log();
      };
      for (int i = 0; i < 50; ++i) round();
      const Resources before = resources_in_use();
      for (int i = 0; i < 1'000; ++i) round();
      expect_no_more_than(before, host == windows_forms ? "Windows Forms" : "Visual Basic");
      EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
    }
  }
}

TEST(AtlContainer, comes_and_goes_a_thousand_times_without_a_trace) {
  StrictContainer form;
  for (const auto& ids : classes) {
    const auto round = [&] {
      const auto control = outside::create(ids);
      const HWND holder = atl::hold(control.Get(), form.form(), {10, 10, 50, 50});
      ComPtr<IOleClientSite> site;
      const auto object = as<IOleObject>(control.Get());
      ASSERT_EQ(object->GetClientSite(&site), S_OK);
      HWND window = nullptr;
      EXPECT_EQ(as<IOleInPlaceObject>(control.Get())->GetWindow(&window), S_OK);
      MoveWindow(holder, 10, 10, 90, 70, TRUE);
      RECT client = {};
      GetClientRect(window, &client);
      EXPECT_TRUE(client.right == 90 && client.bottom == 70);
      EXPECT_EQ(object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, site.Get(), 0, holder, &client), S_OK);
      EXPECT_EQ(as<IOleInPlaceObject>(control.Get())->UIDeactivate(), S_OK);
      EXPECT_EQ(as<IPersistStreamInit>(control.Get())->Load(saved_stream().Get()), S_OK);
      EXPECT_EQ(as<IPersistStreamInit>(control.Get())->Save(saved_stream().Get(), TRUE), S_OK);
      site.Reset();
      DestroyWindow(holder);
      EXPECT_FALSE(IsWindow(window));
    };
    for (int i = 0; i < 50; ++i) round();
    const Resources before = resources_in_use();
    for (int i = 0; i < 1'000; ++i) round();
    expect_no_more_than(before, "ATL");
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
  }
}

// Every call that a container gets in turn: it fails, or it does the worst that it may do during the call.
TEST(Containers, may_fail_any_call_or_use_it_to_interrupt) {
  using Worst = void (*)(StrictContainer&, IUnknown*);
  const std::pair<HRESULT, Worst> ways[] = {
      {E_FAIL, nullptr},
      {S_FALSE, nullptr},
      {S_OK, [](StrictContainer&, IUnknown* control) { as<IOleObject>(control)->SetClientSite(nullptr); }},
      {S_OK, [](StrictContainer&, IUnknown* control) { as<IOleObject>(control)->Close(OLECLOSE_NOSAVE); }},
      {S_OK,
       [](StrictContainer& container, IUnknown* control) {
         as<IOleObject>(control)->DoVerb(OLEIVERB_UIACTIVATE, nullptr, container.site(), 0, nullptr, nullptr);
       }},
      {E_FAIL,
       [](StrictContainer&, IUnknown* control) { as<IOleInPlaceObject>(control)->InPlaceDeactivate(); }},
      {S_OK, [](StrictContainer& container, IUnknown*) { DestroyWindow(window_on(container.form())); }}};
  for (const Host host : {windows_forms, visual_basic}) {
    for (const auto& [failure, worst] : ways) {
      int special = 0;
      for (bool reached = true; reached;) {
        ++special;
        SCOPED_TRACE(std::to_string(&failure - &ways[0].first) + " " + std::to_string(special));
        StrictContainer container;
        const auto control = outside::create(classes[0]);
        container.special_call = special;
        container.failure = failure;
        if (worst) container.interruption = [&, worst] { worst(container, control.Get()); };
        host(container, control.Get());
        reached = container.calls >= special;
        container.forget_active_object();
        EXPECT_EQ(container.held(), 0) << container.log();
        EXPECT_FALSE(window_on(container.form()));
        EXPECT_TRUE(is_usable(control.Get()));
        container.special_call = 0;
        container.log();
        windows_forms(container, control.Get());
        EXPECT_NE(container.log().find("Document.SetBorderSpace"), std::string::npos) << "activated anew";
        EXPECT_EQ(container.held(), 0);
      }
      EXPECT_GT(special, 10);
    }
  }
  EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
}

// The container drops its only reference while the control is calling it.
TEST(Containers, may_release_the_control_during_a_call) {
  int special = 0;
  for (bool reached = true; reached;) {
    ++special;
    StrictContainer container;
    IOleObject* object = as<IOleObject>(outside::create(classes[0]).Get()).Detach();
    container.special_call = special;
    container.interruption = [&] { std::exchange(object, nullptr)->Release(); };
    const auto verb = [&](LONG number) {
      if (object) object->DoVerb(number, nullptr, container.site(), 0, container.form(), nullptr);
    };
    object->SetClientSite(container.site());
    verb(OLEIVERB_UIACTIVATE);
    verb(OLEIVERB_HIDE);
    verb(OLEIVERB_SHOW);
    if (object) object->Close(OLECLOSE_NOSAVE);
    reached = container.calls >= special;
    if (object) object->Release();
    container.forget_active_object();
    EXPECT_EQ(container.held(), 0) << special;
    EXPECT_FALSE(window_on(container.form())) << special;
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK) << special;
  }
  EXPECT_GT(special, 10);
}

}  // namespace
