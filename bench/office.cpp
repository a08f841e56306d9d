#include "bench/office.h"

#include <x86intrin.h>

#include <climits>
#include <stdexcept>
#include <utility>

#include "ZORBOffice/common/com_ptr.h"
#include "bench/counted_type.h"
#include "bench/office_objects.h"

namespace bench {
namespace {

using zorboffice::ComPtr;

class Factory final : public IClassFactory {
 public:
  explicit Factory(const Application& application) : application_(application) {}
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  // They live as long as the process.
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
    IDispatch* const root = make_root(application_);
    InterlockedIncrement(&settings().calls);
    if (on_call) {
      on_call({&application_, &application_.types.front(), nullptr, 0, number_of(root), 0, 0, nullptr, true});
    }
    const HRESULT status = root->QueryInterface(id, object);
    root->Release();
    return status;
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  const Application& application_;
};

Factory& factory(std::size_t index) {
  static Factory factories[] = {Factory(applications[0]), Factory(applications[1])};
  return factories[index];
}

}  // namespace

Settings& settings() {
  static Settings& shared = []() -> Settings& {
    const HANDLE mapping = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                              sizeof(Settings), L"ZORBOffice bench");
    const bool is_new = GetLastError() != ERROR_ALREADY_EXISTS;
    void* const view = mapping ? MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, sizeof(Settings)) : nullptr;
    if (!view) throw std::runtime_error("no shared memory");
    auto& made = *static_cast<Settings*>(view);
    if (is_new) {
      made.publishes = 1;
      made.items = LONG_MAX;
    }
    return made;
  }();
  return shared;
}

Trips take_counts() {
  Settings& all = settings();
  return {InterlockedExchange(&all.look_ups, 0), InterlockedExchange(&all.questions, 0),
          InterlockedExchange(&all.calls, 0)};
}

unsigned long long ticks() { return __rdtsc(); }

double ticks_in_nanosecond() {
  static const double measured = [] {
    LARGE_INTEGER frequency, begin, end;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begin);
    const auto first = ticks();
    do QueryPerformanceCounter(&end);
    while (end.QuadPart - begin.QuadPart < frequency.QuadPart / 5);
    const auto last = ticks();
    const double seconds =
        static_cast<double>(end.QuadPart - begin.QuadPart) / static_cast<double>(frequency.QuadPart);
    return static_cast<double>(last - first) / (seconds * 1e9);
  }();
  return measured;
}

void take_time(unsigned long long begin) {
  const LONG cost = settings().cost;
  if (cost == 0) return;
  const auto end = begin + static_cast<unsigned long long>(cost * ticks_in_nanosecond());
  while (ticks() < end) {
  }
}

ServedClasses::ServedClasses(DWORD context) {
  settings();
  ticks_in_nanosecond();
  for (std::size_t i = 0; i < applications.size(); ++i) {
    if (FAILED(CoRegisterClassObject(applications[i].class_id, &factory(i), context, REGCLS_MULTIPLEUSE,
                                     &cookies_[i]))) {
      throw std::runtime_error("a class cannot be offered");
    }
  }
}

void ServedClasses::keep_interfaces() const {
  const Application& application = applications[0];
  ComPtr<ITypeInfo> information;
  ComPtr<ITypeLib> library;
  UINT index = 0;
  IDispatch* const root = make_root(application);
  if (FAILED(root->GetTypeInfo(0, 0, information.receive())) ||
      FAILED(information->GetContainingTypeLib(library.receive(), &index))) {
    throw std::runtime_error("no type information");
  }
  const std::pair<const IID&, IUnknown*> kept[] = {{IID_IClassFactory, &factory(0)},
                                                   {IID_IDispatch, root},
                                                   {IID_IEnumVARIANT, make_elements(application)},
                                                   {IID_ITypeInfo, information.get()},
                                                   {IID_ITypeLib, library.get()}};
  for (const auto& [id, object] : kept) {
    IStream* stream = nullptr;
    if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, &stream)) ||
        FAILED(CoMarshalInterface(stream, id, object, MSHCTX_LOCAL, nullptr, MSHLFLAGS_TABLESTRONG))) {
      throw std::runtime_error("an interface cannot be offered");
    }
  }
}

ServedClasses::~ServedClasses() {
  for (const DWORD cookie : cookies_) CoRevokeClassObject(cookie);
}

}  // namespace bench
