#include "short_memory.h"

#include <cstdlib>

#include "control_test.h"
#include "import_table.h"

namespace {

long demands = 0, first_refused = 0, last_refused = 0, blocks = 0;
DWORD thread = 0;

bool is_refused() {
  if (GetCurrentThreadId() != thread) return false;
  ++demands;
  if (demands < first_refused || demands > last_refused) return false;
  SetLastError(ERROR_OUTOFMEMORY);
  return true;
}

void* counted(void* block) {
  blocks += block != nullptr;
  return block;
}
void* limited_malloc(size_t size) { return is_refused() ? nullptr : counted(malloc(size)); }
void* limited_calloc(size_t count, size_t size) {
  return is_refused() ? nullptr : counted(calloc(count, size));
}
void* limited_realloc(void* block, size_t size) {
  if (is_refused()) return nullptr;
  blocks -= block != nullptr;
  return counted(realloc(block, size));
}
void counting_free(void* block) {
  blocks -= block != nullptr;
  free(block);
}

// Task memory, which system and library hand to each other. Strings come from there.
class Spy final : public IMallocSpy {
 public:
  HRESULT WINAPI QueryInterface(REFIID iid, void** object) override {
    *object = iid == IID_IUnknown || iid == IID_IMallocSpy ? this : nullptr;
    return *object ? S_OK : E_NOINTERFACE;
  }
  ULONG WINAPI AddRef() override { return 2; }
  ULONG WINAPI Release() override { return 1; }
  SIZE_T WINAPI PreAlloc(SIZE_T size) override { return size; }
  void* WINAPI PostAlloc(void* block) override { return counted(block); }
  void* WINAPI PreFree(void* block, BOOL seen) override { return blocks -= seen && block, block; }
  void WINAPI PostFree(BOOL) override {}
  SIZE_T WINAPI PreRealloc(void* block, SIZE_T size, void** real, BOOL) override {
    return *real = block, size;
  }
  void* WINAPI PostRealloc(void* block, BOOL) override { return block; }
  void* WINAPI PreGetSize(void* block, BOOL) override { return block; }
  SIZE_T WINAPI PostGetSize(SIZE_T size, BOOL) override { return size; }
  void* WINAPI PreDidAlloc(void* block, BOOL) override { return block; }
  int WINAPI PostDidAlloc(void*, BOOL, int actual) override { return actual; }
  void WINAPI PreHeapMinimize() override {}
  void WINAPI PostHeapMinimize() override {}
};

struct Import {
  const char* name;
  void* own;
};

void replace(const std::same_as<Import> auto&... imports) {
  for (const auto& [name, own] : {imports...}) EXPECT_TRUE(replace_import(name, own)) << name;
}

Import instead_of(const char* name, auto* own) { return {name, reinterpret_cast<void*>(own)}; }

// A function of the system that fails where the demand is refused: with E_OUTOFMEMORY, or with no handle.
template <class Own = decltype([] {}), class Result, class... Parameters>
Import limited(const char* name, Result(WINAPI* function)(Parameters...)) {
  static const auto usual = function;
  Result(WINAPI * own)(Parameters...) = [](Parameters... parameters) WINAPI -> Result {
    if (!is_refused()) return usual(parameters...);
    if constexpr (std::is_same_v<Result, HRESULT>) return E_OUTOFMEMORY;
    return Result{};
  };
  return instead_of(name, own);
}

void replace_all() {
  static Spy spy;
  CoRegisterMallocSpy(&spy);
  // The system's strings would outlive their use.
  reinterpret_cast<void(WINAPI*)()>(GetProcAddress(GetModuleHandleW(L"oleaut32"), "SetOaNoCache"))();
  replace(instead_of("malloc", limited_malloc), instead_of("calloc", limited_calloc),
          instead_of("realloc", limited_realloc), instead_of("free", counting_free));
  replace(
      limited("CLSIDFromProgID", CLSIDFromProgID), limited("CoCreateInstance", CoCreateInstance),
      limited("CoTaskMemAlloc", CoTaskMemAlloc), limited("CreateDataAdviseHolder", CreateDataAdviseHolder),
      limited("CreateEnhMetaFileW", CreateEnhMetaFileW), limited("CreateErrorInfo", CreateErrorInfo),
      limited("CreateMetaFileW", CreateMetaFileW), limited("CreateOleAdviseHolder", CreateOleAdviseHolder),
      limited("CreateRectRgnIndirect", CreateRectRgnIndirect), limited("CreateSolidBrush", CreateSolidBrush),
      limited("CreateWindowExW", CreateWindowExW), limited("FormatMessageW", FormatMessageW),
      limited("GlobalAlloc", GlobalAlloc), limited("LoadRegTypeLib", LoadRegTypeLib),
      limited("LoadTypeLibEx", LoadTypeLibEx), limited("RegCreateKeyExW", RegCreateKeyExW),
      limited("RegSetKeyValueW", RegSetKeyValueW), limited("SysAllocString", SysAllocString),
      limited("SysAllocStringLen", SysAllocStringLen), limited("SysReAllocStringLen", SysReAllocStringLen),
      limited("VarBstrFromDate", VarBstrFromDate), limited("VarFormat", VarFormat),
      limited("VariantChangeType", VariantChangeType), limited("VariantChangeTypeEx", VariantChangeTypeEx),
      limited("VariantCopy", VariantCopy), limited("VariantCopyInd", VariantCopyInd));
  // The run-time takes something for a thread's first exception, and keeps it.
  late_call(outside::create(outside::classes[1]).Get(), L"SaveItem", {L"Note"});
}

}  // namespace

ShortMemory::ShortMemory(long refused, bool lasting) {
  static const bool replaced = (replace_all(), true);
  static_cast<void>(replaced);
  thread = GetCurrentThreadId();
  demands = 0;
  first_refused = refused;
  last_refused = lasting ? LONG_MAX : refused;
}

bool ShortMemory::end() {
  thread = 0;
  return demands >= first_refused;
}

long blocks_in_use() { return blocks; }
