#include "class_factory.h"

#include "call_error.h"
#include "json.h"
#include "values.h"
#include "variant.h"

STDMETHODIMP ClassFactory::QueryInterface(REFIID iid, void** result) {
  if (!result) return E_POINTER;
  *result = nullptr;
  if (iid != IID_IUnknown && iid != IID_IClassFactory) return E_NOINTERFACE;
  *result = this;
  return S_OK;
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** result) {
  if (!result) return E_POINTER;
  *result = nullptr;
  if (outer) return CLASS_E_NOAGGREGATION;
  try {
    const Json created =
        peer_.ask({{"do", "create"}, {"class", served_.peer_name}, {"client", clients_.watch_caller()}});
    Variant object;
    *object.out() = to_variant(created, objects_);
    if (object->vt != VT_DISPATCH) return E_UNEXPECTED;
    return object->pdispVal->QueryInterface(iid, result);
  } catch (const CallError& error) {
    return error.code;
  } catch (const std::exception&) {
    return E_UNEXPECTED;
  }
}
