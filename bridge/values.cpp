#include "values.h"

#include <cmath>
#include <cstdint>
#include <vector>

#include "call_error.h"
#include "text.h"
#include "variant.h"

namespace {

Json number(double value) {
  if (!std::isfinite(value)) throw CallError{DISP_E_OVERFLOW};
  return value;
}

Json element(SAFEARRAY* array, LONG* indices, Objects& objects) {
  VARTYPE type = VT_EMPTY;
  SafeArrayGetVartype(array, &type);
  Variant item;
  void* place = item.out();
  if (type != VT_VARIANT && type != VT_DECIMAL) place = &V_UI1(item.out());
  const HRESULT result = SafeArrayGetElement(array, indices, place);
  if (FAILED(result)) throw CallError{result};
  if (type != VT_VARIANT) item->vt = type;
  return to_json(*item.out(), objects);
}

// An array of several dimensions becomes arrays within arrays, the first dimension outermost.
Json elements(SAFEARRAY* array, std::vector<LONG>& indices, UINT dimension, Objects& objects) {
  LONG first = 0, last = -1;
  SafeArrayGetLBound(array, dimension + 1, &first);
  SafeArrayGetUBound(array, dimension + 1, &last);
  Json list = Json::array();
  for (LONG index = first; index <= last; ++index) {
    indices[dimension] = index;
    list.push_back(dimension + 1 == indices.size() ? element(array, indices.data(), objects)
                                                   : elements(array, indices, dimension + 1, objects));
  }
  return {{"array", list}};
}

Json object_to_json(IUnknown* object, Objects& objects) {
  if (!object) return {{"nothing", true}};
  const auto id = objects.id_of(*object);
  if (!id) throw CallError{DISP_E_TYPEMISMATCH};
  return {{"object", *id}};
}

Json by_value(const VARIANT& value, Objects& objects) {
  switch (value.vt) {
    case VT_EMPTY:
      return nullptr;
    case VT_NULL:
      return {{"null", true}};
    case VT_BOOL:
      return value.boolVal != VARIANT_FALSE;
    case VT_I1:
      return value.cVal;
    case VT_UI1:
      return value.bVal;
    case VT_I2:
      return value.iVal;
    case VT_UI2:
      return value.uiVal;
    case VT_I4:
    case VT_INT:
      return value.lVal;
    case VT_UI4:
    case VT_UINT:
      return value.ulVal;
    case VT_I8:
      return value.llVal;
    case VT_UI8:
      return value.ullVal;
    case VT_R4:
      return number(value.fltVal);
    case VT_R8:
      return number(value.dblVal);
    case VT_DATE:
      return {{"date", number(value.date)}};
    case VT_CY:
    case VT_DECIMAL: {
      Variant converted;
      const HRESULT result = VariantChangeType(converted.out(), const_cast<VARIANT*>(&value), 0, VT_R8);
      if (FAILED(result)) throw CallError{result};
      return number(converted->dblVal);
    }
    case VT_BSTR:
      return narrow({value.bstrVal ? value.bstrVal : L"", SysStringLen(value.bstrVal)});
    case VT_ERROR:
      if (value.scode == DISP_E_PARAMNOTFOUND) return {{"missing", true}};
      return value.scode;
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return object_to_json(value.punkVal, objects);
    default:
      throw CallError{DISP_E_BADVARTYPE};
  }
}

VARIANT array_to_variant(const Json& list, Objects& objects) {
  Variant result;
  SAFEARRAY* array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(list.size()));
  if (!array) throw CallError{E_OUTOFMEMORY};
  result->vt = VT_ARRAY | VT_VARIANT;
  result->parray = array;
  for (LONG index = 0; index < static_cast<LONG>(list.size()); ++index) {
    VARIANT item = to_variant(list[index], objects);
    SafeArrayPutElement(array, &index, &item);
    VariantClear(&item);
  }
  return result.detach();
}

}  // namespace

Json to_json(const VARIANT& value, Objects& objects) {
  if (value.vt == (VT_BYREF | VT_VARIANT)) {
    if (!value.pvarVal || value.pvarVal->vt == (VT_BYREF | VT_VARIANT)) throw CallError{DISP_E_BADVARTYPE};
    return to_json(*value.pvarVal, objects);
  }
  if (value.vt & VT_ARRAY) {
    SAFEARRAY* array = value.vt & VT_BYREF ? (value.pparray ? *value.pparray : nullptr) : value.parray;
    if (!array || SafeArrayGetDim(array) == 0) return {{"array", Json::array()}};
    std::vector<LONG> indices(SafeArrayGetDim(array));
    return elements(array, indices, 0, objects);
  }
  if (!(value.vt & VT_BYREF)) return by_value(value, objects);
  if (!value.byref) throw CallError{DISP_E_BADVARTYPE};
  Variant copy;
  const HRESULT result = VariantCopyInd(copy.out(), const_cast<VARIANT*>(&value));
  if (FAILED(result)) throw CallError{result};
  return by_value(*copy.out(), objects);
}

VARIANT to_variant(const Json& value, Objects& objects) {
  Variant result;
  if (value.is_boolean()) {
    result->vt = VT_BOOL;
    result->boolVal = value.get<bool>() ? VARIANT_TRUE : VARIANT_FALSE;
  } else if (value.is_number_integer() && value >= INT32_MIN && value <= INT32_MAX) {
    result->vt = VT_I4;
    result->lVal = value.get<LONG>();
  } else if (value.is_number()) {
    result->vt = VT_R8;
    result->dblVal = value.get<double>();
  } else if (value.is_string()) {
    const std::wstring text = wide(value.get_ref<const std::string&>());
    result->bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!result->bstrVal) throw CallError{E_OUTOFMEMORY};
    result->vt = VT_BSTR;
  } else if (value.contains("object")) {
    result->pdispVal = objects.make(value["object"].get<long>(), value.value("class", std::string()));
    result->vt = VT_DISPATCH;
  } else if (value.contains("array")) {
    return array_to_variant(value["array"], objects);
  } else if (value.contains("date")) {
    result->vt = VT_DATE;
    result->date = value["date"].get<DATE>();
  } else if (value.contains("short")) {
    result->vt = VT_I2;
    result->iVal = value["short"].get<SHORT>();
  } else if (value.contains("byte")) {
    result->vt = VT_UI1;
    result->bVal = value["byte"].get<BYTE>();
  } else if (value.contains("single")) {
    result->vt = VT_R4;
    result->fltVal = value["single"].get<float>();
  } else if (value.contains("nothing")) {
    result->vt = VT_DISPATCH;
    result->pdispVal = nullptr;
  } else if (value.contains("null")) {
    result->vt = VT_NULL;
  }
  return result.detach();
}
