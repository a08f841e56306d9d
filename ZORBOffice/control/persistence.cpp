#include "ZORBOffice/control/persistence.h"

#include <utility>

#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/common/variant.h"
#include "ZORBOffice/control/hosted_control.h"
#include "ZORBOffice/surface/class_row.h"

namespace zorboffice {
namespace {

// What a stream holds. Forms that were saved once must load for ever: this never changes.
struct Record {
  DWORD signature;
  LONG width;  // HIMETRIC
  LONG height;
};
static_assert(sizeof(Record) == 12);

constexpr DWORD signature = 0x3142525A;  // "ZRB1"
constexpr wchar_t stream_name[] = L"Contents";
constexpr const wchar_t* extent_names[] = {L"_ExtentX", L"_ExtentY"};

HRESULT write(IStream& stream, SIZEL extent) {
  const Record record = {signature, extent.cx, extent.cy};
  ULONG written = 0;
  const HRESULT status = stream.Write(&record, sizeof record, &written);
  if (FAILED(status)) return status;
  return written == sizeof record ? S_OK : STG_E_MEDIUMFULL;
}

// A stream may give less than it is asked for, and more when it is asked again.
HRESULT read(IStream& stream, Record& record) {
  auto* bytes = reinterpret_cast<BYTE*>(&record);
  for (ULONG total = 0; total < sizeof record;) {
    ULONG count = 0;
    const HRESULT status = stream.Read(bytes + total, sizeof record - total, &count);
    if (FAILED(status)) return status;
    if (count == 0 || count > sizeof record - total) return STG_E_READFAULT;
    total += count;
  }
  return record.signature == signature ? S_OK : STG_E_DOCFILECORRUPT;
}

}  // namespace

HRESULT Persistence::GetClassID(CLSID* id) noexcept {
  if (!id) return E_POINTER;
  *id = control_.row().published.class_id;
  return S_OK;
}

HRESULT Persistence::IsDirty() noexcept { return control_.is_dirty() ? S_OK : S_FALSE; }

HRESULT Persistence::InitNew() noexcept { return take(HostedControl::default_extent()); }

HRESULT Persistence::take(SIZEL extent) noexcept {
  const auto kept = control_.alive();
  if (FAILED(control_.set_extent(extent))) return STG_E_DOCFILECORRUPT;
  control_.set_clean();
  return S_OK;
}

HRESULT Persistence::Load(IStream* stream) noexcept {
  if (!stream) return E_POINTER;
  const auto kept = control_.alive();
  Record record = {};
  if (const HRESULT status = read(*stream, record); FAILED(status)) return status;
  return take({record.width, record.height});
}

HRESULT Persistence::Save(IStream* stream, BOOL clear_dirty) noexcept {
  if (!stream) return E_POINTER;
  const auto kept = control_.alive();
  const HRESULT status = write(*stream, control_.extent());
  if (SUCCEEDED(status) && clear_dirty) control_.set_clean();
  return status;
}

HRESULT Persistence::GetSizeMax(ULARGE_INTEGER* size) noexcept {
  if (!size) return E_POINTER;
  size->QuadPart = sizeof(Record);
  return S_OK;
}

HRESULT Persistence::InitNew(IStorage* storage) noexcept { return storage ? InitNew() : E_POINTER; }

HRESULT Persistence::Load(IStorage* storage) noexcept {
  if (!storage) return E_POINTER;
  const auto kept = control_.alive();
  ComPtr<IStream> stream;
  const HRESULT status =
      storage->OpenStream(stream_name, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, stream.receive());
  if (FAILED(status)) return status;
  return stream ? Load(stream.get()) : E_UNEXPECTED;
}

HRESULT Persistence::Save(IStorage* storage, BOOL same_as_load) noexcept {
  if (!storage) return E_POINTER;
  saved_in_place_ = same_as_load != FALSE;
  const auto kept = control_.alive();
  ComPtr<IStream> stream;
  const HRESULT status = storage->CreateStream(stream_name, STGM_WRITE | STGM_SHARE_EXCLUSIVE | STGM_CREATE,
                                               0, 0, stream.receive());
  if (FAILED(status)) return status;
  return stream ? write(*stream.get(), control_.extent()) : E_UNEXPECTED;
}

// Only now is it certain that the container kept what was saved. A copy that it made leaves the original as
// it was.
HRESULT Persistence::SaveCompleted(IStorage* storage) noexcept {
  const auto kept = control_.alive();
  if (std::exchange(saved_in_place_, false) || storage) control_.set_clean();
  control_.ole_object().notify_saved();
  return S_OK;
}

HRESULT Persistence::Load(IPropertyBag* bag, IErrorLog* log) noexcept {
  if (!bag) return E_POINTER;
  const auto kept = control_.alive();
  const SIZEL fresh = HostedControl::default_extent();
  LONG lengths[] = {fresh.cx, fresh.cy};
  for (int i = 0; i < 2; ++i) {
    Variant value;
    V_VT(&value.get()) = VT_I4;
    const HRESULT status = bag->Read(extent_names[i], value.receive(), log);
    if (status == E_INVALIDARG) continue;  // the bag has no such property
    if (FAILED(status)) return status;
    if (value.type() == VT_EMPTY || value.type() == VT_NULL) continue;  // some bags say it so
    Variant length;
    if (FAILED(VariantChangeType(length.receive(), &value.get(), 0, VT_I4))) return STG_E_DOCFILECORRUPT;
    lengths[i] = V_I4(&length.get());
  }
  return take({lengths[0], lengths[1]});
}

HRESULT Persistence::Save(IPropertyBag* bag, BOOL clear_dirty, BOOL) noexcept {
  if (!bag) return E_POINTER;
  const auto kept = control_.alive();
  const LONG lengths[] = {control_.extent().cx, control_.extent().cy};
  for (int i = 0; i < 2; ++i) {
    VARIANT value = {};
    V_VT(&value) = VT_I4;
    V_I4(&value) = lengths[i];
    if (const HRESULT status = bag->Write(extent_names[i], &value); FAILED(status)) return status;
  }
  if (clear_dirty) control_.set_clean();
  return S_OK;
}

}  // namespace zorboffice
