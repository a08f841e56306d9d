#include "ZORBOffice/surface/host_argument.h"

#include <cstring>

namespace zorboffice {
namespace {

// Script engines nest a variant in a variant once or twice; a longer chain is a damaged one.
constexpr int deepest_nesting = 8;

// The size of a plain value that lies in a variant's union; 0 for every other type.
std::size_t size_of_plain(VARTYPE type) {
  switch (type) {
    case VT_I1:
    case VT_UI1:
      return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
      return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
      return 8;
    default:
      return 0;
  }
}

HRESULT convert(VARIANT& target, const VARIANT& source, LCID locale, VARTYPE type) {
  return VariantChangeTypeEx(&target, const_cast<VARIANT*>(&source), locale, VARIANT_ALPHABOOL, type);
}

HRESULT store_through(VARIANT& reference, Variant& value) {
  if (value.type() == VT_BSTR) {
    BSTR earlier = *V_BSTRREF(&reference);
    VARIANT released = value.release();
    *V_BSTRREF(&reference) = V_BSTR(&released);
    SysFreeString(earlier);
  } else if (value.type() == VT_DECIMAL) {
    *V_DECIMALREF(&reference) = V_DECIMAL(&value.get());
  } else if (const std::size_t size = size_of_plain(value.type())) {
    std::memcpy(V_BYREF(&reference), &V_UI1(&value.get()), size);
  } else {
    return DISP_E_TYPEMISMATCH;
  }
  return S_OK;
}

}  // namespace

HRESULT HostArgument::open(VARIANTARG& argument) noexcept {
  variable_ = &argument;
  for (int depth = 0; V_VT(variable_) & VT_BYREF; ++depth) {
    if (!V_BYREF(variable_) || depth == deepest_nesting) return DISP_E_BADVARTYPE;
    if (V_VT(variable_) != (VT_BYREF | VT_VARIANT)) return S_OK;
    variable_ = V_VARIANTREF(variable_);
    in_variant_ = true;
  }
  return S_OK;
}

bool HostArgument::is_missing() const noexcept {
  if (V_VT(variable_) == (VT_BYREF | VT_ERROR)) return *V_ERRORREF(variable_) == DISP_E_PARAMNOTFOUND;
  return V_VT(variable_) == VT_ERROR && V_ERROR(variable_) == DISP_E_PARAMNOTFOUND;
}

HRESULT HostArgument::read(VARTYPE type, LCID locale, VARIANT& cell) const noexcept {
  HRESULT status = VariantCopyInd(&cell, variable_);
  if (FAILED(status)) return status == E_OUTOFMEMORY ? status : DISP_E_BADVARTYPE;
  if (type == VT_VARIANT || type == V_VT(&cell)) return S_OK;
  status = convert(cell, cell, locale, type);
  // An object's default property may fail in ways of its own; to the host the argument does not convert.
  const bool standard = SUCCEEDED(status) || status == DISP_E_OVERFLOW || status == E_OUTOFMEMORY;
  return standard ? status : DISP_E_TYPEMISMATCH;
}

HRESULT HostArgument::write(const VARIANT& cell, LCID locale) noexcept {
  const bool typed = V_VT(variable_) & VT_BYREF;
  const bool is_array = V_VT(variable_) & VT_ARRAY;
  const VARTYPE own_type = V_VT(variable_) & VT_TYPEMASK;
  Variant value;
  HRESULT status = is_array ? DISP_E_TYPEMISMATCH : convert(value.get(), cell, locale, own_type);
  if (typed) return FAILED(status) ? status : store_through(*variable_, value);

  const bool has_own_type = own_type != VT_EMPTY && own_type != VT_NULL;
  if (!has_own_type || FAILED(status)) status = VariantCopy(&value.get(), const_cast<VARIANT*>(&cell));
  if (SUCCEEDED(status)) {
    VariantClear(variable_);
    *variable_ = value.release();
  }
  return status;
}

}  // namespace zorboffice
