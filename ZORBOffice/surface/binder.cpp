#include "ZORBOffice/surface/binder.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>

#include "ZORBOffice/common/bstr.h"
#include "ZORBOffice/common/com_ptr.h"
#include "ZORBOffice/common/failure.h"
#include "ZORBOffice/common/variant.h"
#include "ZORBOffice/surface/host_argument.h"

namespace zorboffice {
namespace {

bool equal_names(const wchar_t* left, const wchar_t* right) {
  return CompareStringOrdinal(left, -1, right, -1, TRUE) == CSTR_EQUAL;
}

const Member* find_member(MemberTable members, const wchar_t* name) {
  for (const Member& member : members) {
    if (equal_names(member.name, name)) return &member;
  }
  return nullptr;
}

const Member* find_member(MemberTable members, DISPID id) {
  for (const Member& member : members) {
    if (member.id == id) return &member;
  }
  return nullptr;
}

DISPID find_parameter(const Member& member, const wchar_t* name) {
  DISPID id = 0;
  for (const Parameter& parameter : member.parameters) {
    if (equal_names(parameter.name, name)) return id;
    ++id;
  }
  return DISPID_UNKNOWN;
}

// A parameter's value during the call, and the host's argument behind it.
struct Binding {
  Variant cell;
  VARIANT before{};  // the cell's bits, not owned
  Bstr text_before;  // a string may come back changed at the same address
  HostArgument argument;
  UINT index = 0;
  bool given = false;
};

// As many as the member has parameters; most have one or two of the fourteen.
class Bindings {
 public:
  explicit Bindings(std::size_t count) : end_(begin() + count) {
    std::uninitialized_value_construct(begin(), end_);
  }
  Bindings(const Bindings&) = delete;
  Bindings& operator=(const Bindings&) = delete;
  ~Bindings() { std::destroy(begin(), end_); }

  Binding* begin() { return reinterpret_cast<Binding*>(room_); }
  Binding* end() { return end_; }
  Binding& operator[](std::size_t index) { return begin()[index]; }

 private:
  alignas(Binding) std::byte room_[max_parameters * sizeof(Binding)];
  Binding* end_;
};

class Binder {
 public:
  Binder(const Member& member, LCID locale)
      : member_(member), locale_(locale), bindings_(member.parameters.size()) {}

  HRESULT bind(DISPPARAMS& parameters, UINT& error) {
    if (parameters.cArgs > member_.parameters.size()) return DISP_E_BADPARAMCOUNT;
    if (parameters.cNamedArgs > parameters.cArgs) return DISP_E_BADPARAMCOUNT;
    if (parameters.cArgs && !parameters.rgvarg) return E_INVALIDARG;
    if (parameters.cNamedArgs && !parameters.rgdispidNamedArgs) return E_INVALIDARG;
    for (UINT index = 0; index < parameters.cArgs; ++index) {
      // Named arguments stand first, positional ones behind them from last to first.
      const bool named = index < parameters.cNamedArgs;
      const DISPID position =
          named ? parameters.rgdispidNamedArgs[index] : DISPID(parameters.cArgs - 1 - index);
      error = index;
      if (const HRESULT status = open(parameters.rgvarg[index], position, index); FAILED(status))
        return status;
    }
    for (std::size_t i = 0; i < member_.parameters.size(); ++i) {
      error = bindings_[i].index;
      if (const HRESULT status = read(member_.parameters.begin()[i], bindings_[i]); FAILED(status))
        return status;
    }
    return S_OK;
  }

  HRESULT call(IDispatch* object, Variant& result) {
    std::array<VARIANT, max_parameters + 1> cells;
    const std::size_t count = member_.parameters.size();
    for (std::size_t i = 0; i < count; ++i) cells[i] = bindings_[i].cell.release();
    VARIANT& result_cell = cells[count];
    VariantInit(&result_cell);
    const HRESULT status = member_.call.invoke(object, cells.data());
    for (std::size_t i = 0; i < count; ++i) *bindings_[i].cell.receive() = cells[i];
    if (member_.result != VT_VARIANT) V_VT(&result_cell) = member_.result;
    *result.receive() = result_cell;
    return status;
  }

  HRESULT write_back(UINT& error) {
    HRESULT status = S_OK;
    for (std::size_t i = 0; i < member_.parameters.size(); ++i) {
      Binding& binding = bindings_[i];
      if (!member_.parameters.begin()[i].by_reference || !is_changed_variable(binding)) continue;
      if (const HRESULT written = binding.argument.write(binding.cell.get(), locale_); FAILED(written)) {
        error = binding.index;
        status = written;
      }
    }
    return status;
  }

 private:
  HRESULT open(VARIANTARG& argument, DISPID position, UINT index) {
    if (position < 0 || static_cast<std::size_t>(position) >= member_.parameters.size())
      return DISP_E_PARAMNOTFOUND;
    Binding& binding = bindings_[position];
    if (binding.given) return DISP_E_BADPARAMCOUNT;
    binding.index = index;
    if (const HRESULT status = binding.argument.open(argument); FAILED(status)) return status;
    binding.given = !binding.argument.is_missing();
    return S_OK;
  }

  HRESULT read(const Parameter& parameter, Binding& binding) const {
    if (!binding.given) return set_default(parameter, binding.cell.get());
    if (const HRESULT status = binding.argument.read(parameter.type, locale_, binding.cell.get());
        FAILED(status)) {
      return status;
    }
    binding.before = binding.cell.get();
    if (binding.cell.type() != VT_BSTR || !binding.argument.is_variable()) return S_OK;
    const std::wstring_view text = view(V_BSTR(&binding.before));
    binding.text_before = Bstr::adopt(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())));
    return binding.text_before.get() ? S_OK : E_OUTOFMEMORY;
  }

  static HRESULT set_default(const Parameter& parameter, VARIANT& cell) {
    if (parameter.presence == Presence::required) return DISP_E_PARAMNOTOPTIONAL;
    V_VT(&cell) = VT_I2;
    V_I2(&cell) = parameter.default_value;
    if (parameter.type == VT_VARIANT) return S_OK;
    if (parameter.type != VT_BSTR) return VariantChangeType(&cell, &cell, 0, parameter.type);
    V_VT(&cell) = VT_BSTR;
    V_BSTR(&cell) = SysAllocStringLen(nullptr, 0);
    return V_BSTR(&cell) ? S_OK : E_OUTOFMEMORY;
  }

  static bool is_changed_variable(const Binding& binding) {
    if (!binding.given || !binding.argument.is_variable()) return false;
    const VARIANT& now = binding.cell.get();
    if (V_VT(&now) != V_VT(&binding.before)) return true;
    if (V_VT(&now) == VT_BSTR) return view(V_BSTR(&now)) != binding.text_before.view();
    // The bits were copied as a whole; whatever differs was written since.
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison,cert-exp42-c,cert-flp37-c)
    return std::memcmp(&now, &binding.before, sizeof now) != 0;
  }

  const Member& member_;
  LCID locale_;
  Bindings bindings_;
};

// A failure without information of its own still says what it is and where it comes from.
void fill_exception(HRESULT status, EXCEPINFO& exception) {
  Bstr source;
  Bstr description;
  ComPtr<IErrorInfo> information;
  if (GetErrorInfo(0, information.receive()) == S_OK) {
    information->GetSource(source.receive());
    information->GetDescription(description.receive());
  }
  if (source.view().empty()) source = Bstr::adopt(SysAllocString(failure_source));
  if (description.view().empty()) description = description_of(status);
  exception = {};
  exception.scode = status;
  exception.bstrSource = source.release();
  exception.bstrDescription = description.release();
}

}  // namespace

HRESULT get_ids_of_names(MemberTable members, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
  if (!names || !ids || count == 0) return E_INVALIDARG;
  const Member* member = names[0] ? find_member(members, names[0]) : nullptr;
  ids[0] = member ? member->id : DISPID_UNKNOWN;
  HRESULT status = member ? S_OK : DISP_E_UNKNOWNNAME;
  for (UINT i = 1; i < count; ++i) {
    ids[i] = member && names[i] ? find_parameter(*member, names[i]) : DISPID_UNKNOWN;
    if (ids[i] == DISPID_UNKNOWN) status = DISP_E_UNKNOWNNAME;
  }
  return status;
}

HRESULT invoke_member(IDispatch* object, MemberTable members, DISPID id, LCID locale, WORD flags,
                      DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                      UINT* argument_error) noexcept {
  if (result) VariantInit(result);
  if (!parameters) return E_INVALIDARG;
  const Member* member = find_member(members, id);
  if (!member || !(flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET))) return DISP_E_MEMBERNOTFOUND;

  UINT unused = 0;
  UINT& error = argument_error ? *argument_error : unused;
  Binder binder(*member, locale);
  if (const HRESULT status = binder.bind(*parameters, error); FAILED(status)) return status;

  SetErrorInfo(0, nullptr);
  Variant answer;
  const HRESULT called = binder.call(object, answer);
  // Before anything is written back: what that releases may set error information of its own.
  if (FAILED(called) && exception) fill_exception(called, *exception);
  const HRESULT written = binder.write_back(FAILED(called) ? unused : error);
  if (FAILED(called)) return DISP_E_EXCEPTION;
  if (FAILED(written)) return written;
  if (result) *result = answer.release();
  return S_OK;
}

}  // namespace zorboffice
