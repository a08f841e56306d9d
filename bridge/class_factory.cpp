#include "class_factory.h"

#include "call_error.h"
#include "client_watch.h"
#include "peer.h"
#include "remote_object.h"
#include "values.h"

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
        peer().ask({{"do", "create"}, {"class", served_.peer_name}, {"client", watch_calling_client()}});
    Variant object;
    *object.out() = to_variant(created);
    if (object->vt != VT_DISPATCH) return E_UNEXPECTED;
    return object->pdispVal->QueryInterface(iid, result);
  } catch (const CallError& error) {
    return error.code;
  } catch (const std::exception&) {
    return E_UNEXPECTED;
  }
}
