// Creation, hosting and registration with every demand for memory refused in turn.
#include <algorithm>

#include "control/hosted.h"
#include "outside/registry.h"
#include "support/apartments.h"
#include "support/control_test.h"
#include "support/short_memory.h"

namespace {

// What a control or the library is asked for; the first failure ends it.
struct Use {
  const char* name;
  HRESULT (*run)(IUnknown* control);
  bool may_go_without = false;  // something that only some of it needs
};

// The first failure of several calls.
HRESULT first_failure(std::initializer_list<HRESULT> results) {
  const auto* const failed = std::ranges::find_if(results, [](HRESULT result) { return FAILED(result); });
  return failed == results.end() ? S_OK : *failed;
}

void verb(StrictContainer& container, IUnknown* control, LONG verb) {
  const HRESULT status =
      as<IOleObject>(control)->DoVerb(verb, nullptr, &container, 0, container.form, &container.position);
  EXPECT_FALSE(container.out_of_order) << container.log;
  EXPECT_TRUE(container.in_place == 1 || !container.window()) << container.log;
  const bool certain = verb == OLEIVERB_INPLACEACTIVATE;
  EXPECT_TRUE(!certain || container.in_place == (status == S_OK)) << container.log;
}

// Loads, activates, saves and closes a control. Failures are met as a container meets them: it goes on.
void host(StrictContainer& container, IUnknown* control) {
  IAdviseSink* const sink = &container;
  const auto object = as<IOleObject>(control);
  object->SetClientSite(&container);
  QACONTAINER given = {};
  QACONTROL taken = {};
  given.cbSize = offsetof(QACONTAINER, pOleControlSite);
  taken.cbSize = sizeof taken;
  given.pClientSite = &container;
  given.pAdviseSink = reinterpret_cast<IAdviseSinkEx*>(sink);
  given.pPropertyNotifySink = &container;
  given.pUnkEventSink = sink;
  given.dwAmbientFlags = QACONTAINER_USERMODE;
  given.colorBack = container.background;
  as<IQuickActivate>(control)->QuickActivate(&given, &taken);
  Bag bag;
  const auto stream = stream_of("");
  as<IPersistStreamInit>(control)->Save(stream.Get(), FALSE);
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  as<IPersistStreamInit>(control)->Load(stream.Get());
  as<IPersistPropertyBag>(control)->Load(&bag, nullptr);
  resize(control, 767, 741);
  verb(container, control, OLEIVERB_INPLACEACTIVATE);
  verb(container, control, OLEIVERB_UIACTIVATE);
  as<IPersistStreamInit>(control)->Save(stream.Get(), TRUE);
  as<IPersistPropertyBag>(control)->Save(&bag, TRUE, TRUE);
  object->Close(OLECLOSE_SAVEIFDIRTY);
  as<IViewObject>(control)->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
  GUID events = {};
  as<IProvideClassInfo2>(control)->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events);
  for (const auto& [id, cookie] :
       {std::pair{events, taken.dwEventCookie}, {IID_IPropertyNotifySink, taken.dwPropNotifyCookie}}) {
    ComPtr<IConnectionPoint> point;
    as<IConnectionPointContainer>(control)->FindConnectionPoint(id, &point);
    point->Unadvise(cookie);
  }
  object->SetClientSite(nullptr);
}

HRESULT use_in_container(IUnknown* control) {
  StrictContainer container;
  host(container, control);
  EXPECT_EQ(container.held, 0) << container.log;
  EXPECT_FALSE(container.window());
  return container.log.find("OnUIActivate") == std::string::npos ? E_FAIL : S_OK;
}

HRESULT advise(IUnknown* control) {
  StrictContainer container;
  FORMATETC format = {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
  ComPtr<IConnectionPoint> point;
  ComPtr<IEnumConnections> connections;
  ComPtr<IEnumConnectionPoints> points;
  DWORD view = 0, data = 0, properties = 0;
  as<IConnectionPointContainer>(control)->FindConnectionPoint(IID_IPropertyNotifySink, &point);
  const HRESULT advised =
      first_failure({as<IOleObject>(control)->Advise(&container, &view),
                     as<IDataObject>(control)->DAdvise(&format, ADVF_NODATA, &container, &data),
                     point->Advise(static_cast<IAdviseSink*>(&container), &properties),
                     point->EnumConnections(&connections),
                     as<IConnectionPointContainer>(control)->EnumConnectionPoints(&points)});
  connections.Reset();
  as<IOleObject>(control)->Unadvise(view);
  as<IDataObject>(control)->DUnadvise(data);
  point->Unadvise(properties);
  EXPECT_EQ(container.held, 0);
  return advised;
}

HRESULT picture(IUnknown* control) {
  HRESULT drawn = S_OK;
  for (auto [kind, medium] : {std::pair{CF_METAFILEPICT, TYMED_MFPICT}, {CF_ENHMETAFILE, TYMED_ENHMF}}) {
    FORMATETC format = {static_cast<CLIPFORMAT>(kind), nullptr, DVASPECT_CONTENT, -1, DWORD(medium)};
    STGMEDIUM given = {};
    const HRESULT got = as<IDataObject>(control)->GetData(&format, &given);
    if (FAILED(got)) drawn = got;
    EXPECT_EQ(SUCCEEDED(got), given.hGlobal != nullptr);
    ReleaseStgMedium(&given);
  }
  return drawn;
}

const Use uses[] = {
    {"instances",
     [](IUnknown*) {
       HRESULT result = S_OK;
       for (const auto& ids : classes) {
         ComPtr<IClassFactory> factory;
         ComPtr<IUnknown> made;
         Outer outer;
         result =
             first_failure({result, call<REFCLSID, REFIID, void**>("DllGetClassObject", guid(ids.class_id),
                                                                   IID_IClassFactory, &factory)});
         if (!factory) continue;
         result = first_failure({result, factory->CreateInstance(nullptr, IID_IDispatch, &made),
                                 factory->CreateInstance(&outer, IID_IUnknown, &outer.inner)});
       }
       return result;
     }},
    {"types",
     [](IUnknown* control) {
       ComPtr<ITypeInfo> dispatch, type;
       return first_failure({as<IDispatch>(control)->GetTypeInfo(0, 0, &dispatch),
                             as<IProvideClassInfo2>(control)->GetClassInfo(&type)});
     }},
    {"formats",
     [](IUnknown* control) {
       ComPtr<IEnumFORMATETC> all, copy;
       const HRESULT begun = as<IDataObject>(control)->EnumFormatEtc(DATADIR_GET, &all);
       return FAILED(begun) ? begun : all->Clone(&copy);
     }},
    {"name",
     [](IUnknown* control) {
       LPOLESTR name = nullptr;
       const HRESULT got = as<IOleObject>(control)->GetUserType(USERCLASSTYPE_FULL, &name);
       EXPECT_EQ(SUCCEEDED(got), name != nullptr);
       CoTaskMemFree(name);
       return got;
     }},
    {"listeners", advise},
    {"pictures", picture, true},
    {"a container", use_in_container, true},
};

// Each use is made of a new control, once for every demand for memory. Each time it succeeds or fails in a
// way that says why, gives everything back, and leaves a control that succeeds as soon as there is memory.
TEST(ShortOfMemory, ControlsFailCleanlyAndStayUsable) {
  ShortMemory(1, false).end();
  for (const auto& [name, run, may_go_without] : uses) {
    EXPECT_EQ(run(create(classes[0]).Get()), S_OK) << name;
    const long held = blocks_in_use();
    for (const bool lasting : {false, true}) {
      long demand = 0;
      for (bool refused = true; refused;) {
        SCOPED_TRACE(name + std::string(lasting ? " from demand " : ", demand ") + std::to_string(++demand));
        auto control = create(classes[demand % std::size(classes)]);
        ShortMemory memory(demand, lasting);
        const HRESULT result = run(control.Get());
        refused = memory.end();
        const bool is_told = result == E_OUTOFMEMORY || (may_go_without && result == E_FAIL);
        EXPECT_TRUE(result == S_OK ? may_go_without || !refused : is_told) << std::hex << result;
        EXPECT_EQ(run(control.Get()), S_OK);
        EXPECT_TRUE(is_usable(control.Get()));
        control.Reset();
        EXPECT_EQ(blocks_in_use(), held);
        EXPECT_EQ(call("DllCanUnloadNow"), S_OK);
      }
      printf("counted: %ld demands of %s\n", demand - 1, name);
    }
  }
}

// The run-time's own needs for a thread's first exception must not end the process. Threads end, and come
// again.
TEST(ShortOfMemory, AThreadsFirstFailureIsOneLikeAnother) {
  ShortMemory(1, false).end();
  for (long demand = 1; demand < 100; ++demand)
    run_in({{COINIT_APARTMENTTHREADED, [=] {
               const auto control = create(classes[1]);
               {
                 ShortMemory memory(demand % 8 + 1, true);
                 const auto result = late_call(control.Get(), L"GetRecurrencePattern");
                 EXPECT_TRUE(result == "bool 0" || result == "raised 800A0007 ") << result;
               }
               EXPECT_EQ(late_call(control.Get(), L"GetRecurrencePattern"), "bool 0");
               EXPECT_EQ(late_call(control.Get(), L"GetLastErrorNumber"), "i2 91");
             }}});
}

TEST(ShortOfMemory, NothingIsRegisteredOrUnregisteredByHalves) {
  call<BOOL, LPCWSTR>("DllInstall", TRUE, L"user");  // makes the root of the user's classes, which stays
  std::vector<Keys> standing;
  for (const BOOL install : {TRUE, FALSE}) {
    call<BOOL, LPCWSTR>("DllInstall", !install, L"user");
    standing.push_back(registry(View::own_keys, HKEY_CURRENT_USER));
    HRESULT result = E_FAIL;
    for (long demand = 1; result != S_OK; demand += 5) {
      SCOPED_TRACE("from demand " + std::to_string(demand));
      ShortMemory memory(demand, true);
      result = call<BOOL, LPCWSTR>("DllInstall", install, L"user");
      EXPECT_EQ(memory.end(), result != S_OK);
      EXPECT_TRUE(result == S_OK || result == E_OUTOFMEMORY) << std::hex << result;
      EXPECT_EQ(registry(View::own_keys, HKEY_CURRENT_USER) == standing.back(), result != S_OK);
    }
  }
  EXPECT_EQ(registry(View::own_keys, HKEY_CURRENT_USER), standing.front());
}

}  // namespace
