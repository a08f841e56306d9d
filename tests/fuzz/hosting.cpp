// Every method of the interfaces that containers use, in any order and with any arguments.
#include <cstring>

#include "life.h"

namespace {

// The methods in the order of their slots after IUnknown's, with a letter for each argument:
//   n number  v verb  a aspect  c cookie  F flags of advice  P point  0 null  t text  w window  h device
//   context  S client site k advise sink  u any sink  s stream  q storage  b property bag  i interface  p
//   plain memory, in or out  f format  Q container o an interface to receive  T a text to receive  M a medium
//   to receive
struct Face {
  const IID& id;
  std::vector<std::string> methods;
};
const Face faces[] = {
    {IID_IOleObject,
     {"SetClientSite S", "GetClientSite o",  "SetHostNames tt",     "Close n",        "SetMoniker n0",
      "GetMoniker nno",  "InitFromData 0nn", "GetClipboardData no", "DoVerb v0Snwp",  "EnumVerbs o",
      "Update ",         "IsUpToDate ",      "GetUserClassID p",    "GetUserType nT", "SetExtent ap",
      "GetExtent ap",    "Advise kp",        "Unadvise c",          "EnumAdvise o",   "GetMiscStatus ap",
      "SetColorScheme 0"}},
    {IID_IOleControl, {"GetControlInfo p", "OnMnemonic p", "OnAmbientPropertyChange n", "FreezeEvents n"}},
    {IID_IOleInPlaceObject,
     {"GetWindow p", "ContextSensitiveHelp n", "InPlaceDeactivate ", "UIDeactivate ", "SetObjectRects pp",
      "ReactivateAndUndo "}},
    {IID_IOleInPlaceActiveObject,
     {"GetWindow p", "ContextSensitiveHelp n", "TranslateAccelerator p", "OnFrameWindowActivate n",
      "OnDocWindowActivate n", "ResizeBorder p0n", "EnableModeless n"}},
    {IID_IViewObjectEx,
     {"Draw an000hp000", "GetColorSet an000o", "Freeze an0p", "Unfreeze n", "SetAdvise aFk", "GetAdvise ppo",
      "GetExtent an0p", "GetRect ap", "GetViewStatus p", "QueryHitPoint apPnp", "QueryHitRect appnp",
      "GetNaturalExtent an00pp"}},
    {IID_IDataObject,
     {"GetData fM", "GetDataHere fp", "QueryGetData f", "GetCanonicalFormatEtc fp", "SetData fpn",
      "EnumFormatEtc co", "DAdvise fFkp", "DUnadvise c", "EnumDAdvise o"}},
    {IID_IPersistStreamInit, {"GetClassID p", "IsDirty ", "Load s", "Save sn", "GetSizeMax p", "InitNew "}},
    {IID_IPersistStorage,
     {"GetClassID p", "IsDirty ", "InitNew q", "Load q", "Save qn", "SaveCompleted q", "HandsOffStorage "}},
    {IID_IPersistPropertyBag, {"GetClassID p", "InitNew ", "Load b0", "Save bnn"}},
    {IID_IConnectionPointContainer, {"EnumConnectionPoints o", "FindConnectionPoint io"}},
    {IID_IConnectionPoint,
     {"GetConnectionInterface p", "GetConnectionPointContainer o", "Advise up", "Unadvise c",
      "EnumConnections o"}},
    {IID_IProvideClassInfo2, {"GetClassInfo o", "GetGUID np"}},
    {IID_ISpecifyPropertyPages, {"GetPages p"}},
    {IID_ISupportErrorInfo, {"InterfaceSupportsErrorInfo i"}},
    {IID_IQuickActivate, {"QuickActivate Qp", "SetContentExtent p", "GetContentExtent p"}},
    {IID_IUnknown, {}},
};

// What an argument refers to.
union Memory {
  LONG numbers[24];
  FORMATETC format;
  QACONTAINER container;
  STGMEDIUM medium;
  IUnknown* object;
  LPOLESTR text;
};
IUnknown* const unset = reinterpret_cast<IUnknown*>(static_cast<size_t>(0x5A5A5A5A));

void fill(Life& life, char kind, Memory& memory, IUnknown* sink) {
  Chance& chance = life.chance;
  for (LONG& number : memory.numbers) number = chance.number();
  if (kind == 'o') memory.object = unset;
  if (kind == 'T') memory.text = nullptr;
  if (kind == 'f')
    memory.format = {chance.of<CLIPFORMAT>({CF_METAFILEPICT, CF_METAFILEPICT, CF_ENHMETAFILE, CF_TEXT}),
                     nullptr, chance.of<DWORD>({1, 1, 1, 4}), chance.number(),
                     chance.one_in(4) ? chance.bits() : 0xFF};
  if (kind != 'Q') return;
  auto* const advised = static_cast<IAdviseSink*>(&life.container);
  memory.container = {};
  memory.container.dwAmbientFlags = chance.bits();
  if (!chance.one_in(3)) memory.container.pClientSite = &life.container;
  if (chance.one_in(2)) memory.container.pAdviseSink = reinterpret_cast<IAdviseSinkEx*>(advised);
  if (chance.one_in(2)) memory.container.pPropertyNotifySink = &life.container;
  if (chance.one_in(2)) memory.container.pUnkEventSink = sink;
}

// A value of a variant type that is passed as the argument is.
VARIANT argument_of(Life& life, char kind, Memory& memory, IUnknown* sink, const IID& wanted) {
  Chance& chance = life.chance;
  VARIANT made = {};
  V_VT(&made) = VT_I4;
  V_I4(&made) = chance.number();
  const auto refer = [&](auto* target) {
    V_VT(&made) = VT_BYREF | VT_I4;
    V_BYREF(&made) =
        kind != 'i' && chance.one_in(20) ? nullptr : const_cast<void*>(static_cast<const void*>(target));
  };
  switch (kind) {
    case 'v':
      V_I4(&made) = static_cast<LONG>(chance.below(11)) - 7;
      break;
    case 'a':
      V_I4(&made) = chance.of<LONG>({1, 1, 1, 2, 4, 8, 16, 0});
      break;
    case 'c':
      V_I4(&made) = static_cast<LONG>(chance.below(4));
      break;
    // Wine's holder of data connections does not release the data that it sends.
    case 'F':
      V_I4(&made) = (chance.bits() & 0x7F) | ADVF_NODATA;
      break;
    case 'P':
      V_VT(&made) = VT_I8, V_I8(&made) = static_cast<LONGLONG>(chance.bits()) << 16;
      break;
    case '0':
      V_VT(&made) = VT_BYREF | VT_I4, V_BYREF(&made) = nullptr;
      break;
    case 'n':
      break;
    case 't':
      refer(L"a name");
      break;
    case 'w':
      refer(life.container.form);
      break;
    case 'h':
      refer(CreateCompatibleDC(nullptr));
      break;
    case 'S':
      refer(static_cast<IOleClientSite*>(&life.container));
      break;
    case 'k':
      refer(static_cast<IAdviseSink*>(&life.container));
      break;
    case 'u':
      refer(chance.one_in(3) ? static_cast<IUnknown*>(static_cast<IAdviseSink*>(&life.container)) : sink);
      break;
    case 's':
      refer(life.stream);
      break;
    case 'q':
      refer(life.storage);
      break;
    case 'b':
      refer(life.bag);
      break;
    case 'i':
      refer(&wanted);
      break;
    default:
      refer(&memory);
  }
  return made;
}

// Takes what was received; a failure leaves nothing.
void take(char kind, Memory& memory, HRESULT status) {
  if (kind == 'T') CoTaskMemFree(memory.text);
  if (kind == 'M' && status == S_OK) ReleaseStgMedium(&memory.medium);
  if (kind == 'M' && FAILED(status) && memory.medium.tymed) report.wrong("a medium was left unset", status);
  if (kind != 'o') return;
  if (memory.object == unset || (FAILED(status) && memory.object))
    report.wrong("an interface was left unset", status);
  if (memory.object && memory.object != unset) memory.object->Release();
}

bool is_known(HRESULT status) {
  const HRESULT successes[] = {S_OK, S_FALSE, DATA_S_SAMEFORMATETC, OLEOBJ_S_INVALIDVERB,
                               OLEOBJ_S_CANNOT_DOVERB_NOW};
  for (const HRESULT success : successes)
    if (status == success) return true;
  return FAILED(status) && HRESULT_FACILITY(status) <= FACILITY_CONTROL;
}

void call_window(Life& life) {
  const HWND window = life.container.window();
  const UINT messages[] = {WM_LBUTTONDOWN, WM_SETFOCUS,      WM_KILLFOCUS, WM_PAINT, WM_PRINTCLIENT,
                           WM_SIZE,        WM_SETTINGCHANGE, WM_CLOSE,     0x02E3};
  if (life.chance.one_in(12)) DestroyWindow(window);
  if (life.chance.one_in(4)) return pump();
  if (life.chance.one_in(4)) SetFocus(life.chance.one_in(2) ? window : life.container.form);
  if (window) SendMessageW(window, life.chance.of(messages), 0, 0);
}

}  // namespace

void call_hosting(Life& life) {
  Chance& chance = life.chance;
  const Face& face = faces[chance.one_in(4) ? 0 : chance.below(std::size(faces))];
  const GUID ids[] = {outside::guid(life.ids->events_id), IID_IPropertyNotifySink, GUID_NULL};
  const IID& wanted = ids[chance.below(3)];
  report.begin("a window message");
  if (face.methods.empty()) return call_window(life);
  IUnknown* target = nullptr;
  if (face.id == IID_IConnectionPoint) {
    IConnectionPoint* point = nullptr;
    if (FAILED(life.raw<IConnectionPointContainer>()->FindConnectionPoint(wanted, &point))) return;
    target = point;
    point->Release();
  } else {
    target = life.raw<IUnknown>(face.id);
  }
  constexpr size_t do_verb = 8;  // what most of the rest begins with
  const bool is_verb = face.id == IID_IOleObject && chance.one_in(3);
  const size_t slot = is_verb ? do_verb : chance.below(face.methods.size());
  const std::string kinds = face.methods[slot].substr(face.methods[slot].find(' ') + 1);
  const size_t count = kinds.size();
  std::vector<Memory> memory(count);
  std::vector<VARIANT> arguments(count);
  std::vector<VARIANT*> places(count);
  std::vector<VARTYPE> types(count);
  ComPtr<IDispatch> sink;
  *sink.GetAddressOf() = life.object();
  for (size_t i = 0; i < count; ++i) {
    fill(life, kinds[i], memory[i], sink.Get());
    arguments[i] = argument_of(life, kinds[i], memory[i], sink.Get(), wanted);
    types[i] = V_VT(places[i] = &arguments[i]);
  }
  if (chance.one_in(3) && count) std::memcpy(&life.container.position, &memory[0], sizeof(RECT));
  VARIANT answer = {};
  report.begin(face.methods[slot].c_str());
  DispCallFunc(target, (3 + slot) * sizeof(void*), CC_STDCALL, VT_ERROR, static_cast<UINT>(count),
               types.data(), places.data(), &answer);
  if (!is_known(V_ERROR(&answer))) report.wrong("a method's answer", V_ERROR(&answer));
  for (size_t i = 0; i < count; ++i) {
    if (kinds[i] == 'h') DeleteDC(static_cast<HDC>(V_BYREF(&arguments[i])));
    if (V_BYREF(&arguments[i]) == &memory[i]) take(kinds[i], memory[i], V_ERROR(&answer));
  }
}
