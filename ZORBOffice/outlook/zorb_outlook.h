// ZORBOutlook: drives Microsoft Outlook.
#pragma once

#include "ZORBOffice/common/member_frame.h"
#include "ZORBOffice/surface/control.h"
#include "ZORBOffice/surface/outlook_interface.h"

namespace zorboffice {

// No member is built yet: each fails with "Object doesn't support this action".
class ZORBOutlook final : public Control<OutlookInterface> {
 public:
  using Control::Control;

  HRESULT STDMETHODCALLTYPE StartOutlook(VARIANT_BOOL* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE StopOutlook(VARIANT_BOOL, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE NewEmail(BSTR*, BSTR*, BSTR*, BSTR*, BSTR*, BSTR*, VARIANT_BOOL*, VARIANT_BOOL*,
                                     BSTR*, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE OpenItem(BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE InitItems(BSTR, BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE CreateItem(BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE DeleteItem(BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetItem(BSTR, BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetAppointmentInstance(BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE SaveItem(BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE SaveItemToFile(BSTR, BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE SaveEmailAttachment(SHORT, BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetItemCount(BSTR, SHORT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE GetFirstItem(BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetNextItem(BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetAppointmentProperty(BSTR, BSTR* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE SetAppointmentProperty(BSTR, BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetRecurrencePattern(VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE ClearRecurrencePattern(VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetRecurrenceProperty(BSTR, BSTR* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE SetRecurrenceProperty(BSTR, BSTR, BSTR* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetExceptionProperty(SHORT, BSTR, BSTR* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetContactProperty(BSTR, BSTR* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE SetContactProperty(BSTR, BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetTaskProperty(BSTR, BSTR* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE SetTaskProperty(BSTR, BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetEmailProperty(BSTR, BSTR* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetNoteProperty(BSTR, BSTR* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE SetNoteProperty(BSTR, BSTR, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GetLastErrorNumber(SHORT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE GetLastErrorDescription(BSTR* result) noexcept override {
    return not_built(result);
  }
};

}  // namespace zorboffice
