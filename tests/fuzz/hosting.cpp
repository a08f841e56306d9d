// Every other method of the interfaces that hosts use, in any order and with any arguments.
#include <algorithm>
#include <cstring>
#include <sstream>
#include <iterator>

#include "life.h"
#include "thing.h"

namespace {

// The methods in the order of their slots after IUnknown's, with a letter for each argument:
//   n number  v verb  a aspect  c small number  F flags of advice  P point  0 null  t text  w window  h
//   device context  S client site k advise sink  u any sink  s stream  q storage  b property bag  i interface
//   p plain memory, in or out  f format  Q container o an interface to receive  T a text to receive
//   M a medium to receive
struct Face {
  const IID& id;
  const char* methods;
};
const Face faces[] = {
    {IID_IOleObject,
     "SetClientSite:S GetClientSite:o SetHostNames:tt Close:n SetMoniker:n0 GetMoniker:nno "
     "InitFromData:0nn GetClipboardData:no DoVerb:v0Snwp EnumVerbs:o Update: IsUpToDate: GetUserClassID:p "
     "GetUserType:nT SetExtent:ap GetExtent:ap Advise:kp Unadvise:c EnumAdvise:o GetMiscStatus:ap "
     "SetColorScheme:0"},
    {IID_IOleControl, "GetControlInfo:p OnMnemonic:p OnAmbientPropertyChange:n FreezeEvents:n"},
    {IID_IOleInPlaceObject,
     "GetWindow:p ContextSensitiveHelp:n InPlaceDeactivate: UIDeactivate: SetObjectRects:pp "
     "ReactivateAndUndo:"},
    {IID_IOleInPlaceActiveObject,
     "GetWindow:p ContextSensitiveHelp:n TranslateAccelerator:p OnFrameWindowActivate:n "
     "OnDocWindowActivate:n ResizeBorder:p0n EnableModeless:n"},
    {IID_IViewObjectEx,
     "Draw:an000hp000 GetColorSet:an000o Freeze:an0p Unfreeze:n SetAdvise:aFk GetAdvise:ppo "
     "GetExtent:an0p GetRect:ap GetViewStatus:p QueryHitPoint:apPnp QueryHitRect:appnp "
     "GetNaturalExtent:an00pp"},
    {IID_IDataObject,
     "GetData:fM GetDataHere:fp QueryGetData:f GetCanonicalFormatEtc:fp SetData:fpn EnumFormatEtc:co "
     "DAdvise:fFkp DUnadvise:c EnumDAdvise:o"},
    {IID_IPersistStreamInit, "GetClassID:p IsDirty: Load:s Save:sn GetSizeMax:p InitNew:"},
    {IID_IPersistStorage, "GetClassID:p IsDirty: InitNew:q Load:q Save:qn SaveCompleted:q HandsOffStorage:"},
    {IID_IPersistPropertyBag, "GetClassID:p InitNew: Load:b0 Save:bnn"},
    {IID_IConnectionPointContainer, "EnumConnectionPoints:o FindConnectionPoint:io"},
    {IID_IConnectionPoint,
     "GetConnectionInterface:p GetConnectionPointContainer:o Advise:up Unadvise:c EnumConnections:o"},
    {IID_IProvideClassInfo2, "GetClassInfo:o GetGUID:np"},
    {IID_ISpecifyPropertyPages, "GetPages:p"},
    {IID_ISupportErrorInfo, "InterfaceSupportsErrorInfo:i"},
    {IID_IQuickActivate, "QuickActivate:Qp SetContentExtent:p GetContentExtent:p"},
    {IID_IDispatch, "GetTypeInfoCount:p GetTypeInfo:cno"},
    {IID_IUnknown, ""},  // window messages
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

// A value of a variant type that is passed as the argument is.
VARIANT argument_of(Life& life, char kind, Memory& memory, Thing* thing, const IID& wanted) {
  static const HDC dc = CreateCompatibleDC(nullptr);
  Chance& chance = life.chance;
  StrictContainer* const container = &life.container;
  IAdviseSink* const advised = container;
  VARIANT made = {};
  V_VT(&made) = kind == 'P' ? VT_I8 : VT_I4;
  V_I8(&made) = kind == 'P' ? static_cast<LONGLONG>(chance.bits()) << 16 : chance.number();
  if (kind == 'v') V_I4(&made) = static_cast<LONG>(chance.below(11)) - 7;
  if (kind == 'a') V_I4(&made) = chance.of<LONG>({1, 1, 1, 2, 4, 8, 16, 0});
  if (kind == 'c') V_I4(&made) = static_cast<LONG>(chance.below(4));
  // Wine's holder of data connections does not release the data that it sends.
  if (kind == 'F') V_I4(&made) = (chance.bits() & 0x7F) | ADVF_NODATA;
  if (std::strchr("nvacFP", kind)) return made;
  for (LONG& number : memory.numbers) number = chance.number();
  const void* place = &memory;
  if (kind == 'o') memory.object = unset;
  if (kind == 'T') memory.text = nullptr;
  if (kind == 'f')
    memory.format = {chance.of<CLIPFORMAT>({CF_METAFILEPICT, CF_METAFILEPICT, CF_ENHMETAFILE, CF_TEXT}),
                     nullptr, chance.of<DWORD>({1, 1, 1, 4}), chance.number(),
                     chance.one_in(4) ? chance.bits() : 0xFF};
  if (kind == 'Q') {
    memory.container = {};
    memory.container.dwAmbientFlags = chance.bits();
    if (!chance.one_in(3)) memory.container.pClientSite = container;
    if (chance.one_in(2)) memory.container.pAdviseSink = reinterpret_cast<IAdviseSinkEx*>(advised);
    if (chance.one_in(2)) memory.container.pPropertyNotifySink = container;
    if (chance.one_in(2)) memory.container.pUnkEventSink = static_cast<IDispatch*>(thing);
  }
  if (kind == 't') place = L"a name";
  if (kind == 'w') place = container->form;
  if (kind == 'h') place = dc;
  if (kind == 'S') place = static_cast<IOleClientSite*>(container);
  if (kind == 'k' || kind == 'u') place = advised;
  if (kind == 'u' && !chance.one_in(3)) place = static_cast<IDispatch*>(thing);
  if (kind == 's') place = static_cast<ISequentialStream*>(thing);
  if (kind == 'q') place = static_cast<StorageHead*>(thing);
  if (kind == 'b') place = static_cast<IPropertyBag*>(thing);
  if (kind == '0' || chance.one_in(20)) place = nullptr;
  V_VT(&made) = VT_BYREF | VT_I4;
  V_BYREF(&made) = const_cast<void*>(kind == 'i' ? &wanted : place);
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
  else if (memory.object)
    memory.object->Release();
}

void call_window(Life& life) {
  const HWND window = life.container.window();
  if (life.chance.one_in(12)) DestroyWindow(window);
  if (life.chance.one_in(4)) return pump();
  if (life.chance.one_in(4)) SetFocus(life.chance.one_in(2) ? window : life.container.form);
  if (window)
    SendMessageW(window,
                 life.chance.of<UINT>({WM_LBUTTONDOWN, WM_SETFOCUS, WM_KILLFOCUS, WM_PAINT, WM_PRINTCLIENT,
                                       WM_SIZE, WM_SETTINGCHANGE, WM_CLOSE, 0x02E3}),
                 0, 0);
}

}  // namespace

void call_hosting(Life& life) {
  Chance& chance = life.chance;
  const Face& face = faces[chance.one_in(4) ? 0 : chance.below(std::size(faces))];
  const GUID ids[] = {outside::guid(life.ids->events_id), IID_IPropertyNotifySink, GUID_NULL};
  const IID& wanted = ids[chance.below(3)];
  report.begin("a window message");
  std::istringstream text(face.methods);
  const std::vector<std::string> methods{std::istream_iterator<std::string>(text), {}};
  if (methods.empty()) return call_window(life);
  ComPtr<IConnectionPoint> point;
  life.raw<IConnectionPointContainer>()->FindConnectionPoint(wanted, &point);
  IUnknown* const target = face.id == IID_IConnectionPoint ? point.Get() : life.raw<IUnknown>(face.id);
  point.Reset();
  if (!target) return;
  constexpr size_t do_verb = 8;  // what most of the rest begins with
  const bool is_verb = face.id == IID_IOleObject && chance.one_in(3);
  const size_t slot = is_verb ? do_verb : chance.below(methods.size());
  const std::string kinds = methods[slot].substr(methods[slot].find(':') + 1);
  std::vector<Memory> memory(kinds.size());
  std::vector<VARIANT> arguments(kinds.size());
  ComPtr<Thing> thing;
  *thing.GetAddressOf() = new Thing(life);
  for (size_t i = 0; i < kinds.size(); ++i)
    arguments[i] = argument_of(life, kinds[i], memory[i], thing.Get(), wanted);

  if (chance.one_in(3) && !kinds.empty()) std::memcpy(&life.container.position, &memory[0], sizeof(RECT));
  report.begin(methods[slot]);
  const HRESULT status = call_slot(target, 3 + slot, arguments);
  constexpr HRESULT successes[] = {S_OK, S_FALSE, DATA_S_SAMEFORMATETC, OLEOBJ_S_INVALIDVERB,
                                   OLEOBJ_S_CANNOT_DOVERB_NOW};
  const bool known = FAILED(status) ? HRESULT_FACILITY(status) <= FACILITY_CONTROL
                                    : std::ranges::find(successes, status) != std::end(successes);
  if (!known) report.wrong("a method's answer", status);
  for (size_t i = 0; i < kinds.size(); ++i)
    if (V_BYREF(&arguments[i]) == &memory[i]) take(kinds[i], memory[i], status);
}
