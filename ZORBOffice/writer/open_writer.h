// OpenWriter: drives an office suite through its service manager.
#pragma once

#include "ZORBOffice/common/member_frame.h"
#include "ZORBOffice/surface/control.h"
#include "ZORBOffice/surface/word_processor_interface.h"

namespace zorboffice {

// No member is built yet: each fails with "Object doesn't support this action".
class OpenWriter final : public Control<WordProcessorInterface> {
 public:
  using Control::Control;

  HRESULT STDMETHODCALLTYPE get_Start(VARIANT_BOOL*, BYTE* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_SetVisible(VARIANT_BOOL*, BYTE* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_SetActive(VARIANT_BOOL*, BYTE* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_OpenDoc(BSTR*, BYTE* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE get_CreateDoc(BSTR*, BYTE* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE get_SendText(BSTR*, BYTE* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE get_ReadText(LONG*, LONG*, BSTR* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_SetScreenUpdating(VARIANT_BOOL*, BYTE* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_Search(BSTR*, BYTE*, VARIANT_BOOL*, VARIANT_BOOL*, VARIANT_BOOL*,
                                       VARIANT_BOOL*, VARIANT_BOOL*, VARIANT_BOOL*, VARIANT_BOOL*,
                                       BYTE* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_InTable(BYTE* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE SelectRow(VARIANT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE get_Replace(BSTR*, BSTR*, BYTE*, VARIANT_BOOL*, VARIANT_BOOL*, VARIANT_BOOL*,
                                        VARIANT_BOOL*, VARIANT_BOOL*, VARIANT_BOOL*, VARIANT_BOOL*, BYTE*,
                                        BYTE* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_NumberOfSections(LONG* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE get_ReadHeaderFooterText(LONG*, VARIANT_BOOL*, BYTE*, LONG*, LONG*,
                                                     BSTR* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_SetHeaderFooter(BSTR*, BSTR*, Choice*, Choice*, Choice*,
                                                BYTE* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_ReplaceHeaderFooter(LONG*, VARIANT_BOOL*, BYTE*, BSTR*, BSTR*, BYTE*,
                                                    VARIANT_BOOL*, VARIANT_BOOL*, VARIANT_BOOL*,
                                                    VARIANT_BOOL*, VARIANT_BOOL*, VARIANT_BOOL*,
                                                    VARIANT_BOOL*, BYTE*, BYTE* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_CellCount(LONG* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE get_CellText(LONG*, BSTR* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE Cut(VARIANT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE SelectParagraph(VARIANT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE get_SelectionText(BSTR* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE Paste(VARIANT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE CursorLeft(SHORT*, SHORT*, VARIANT*, VARIANT* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE CursorRight(SHORT*, SHORT*, VARIANT*, VARIANT* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE CursorStartOfParagraph(VARIANT* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE CursorStartOfCell(VARIANT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE CursorEndOfCell(VARIANT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE CursorEndOfParagraph(VARIANT* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE Move(SHORT*, SHORT*, VARIANT* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE FinaliseDoc(VARIANT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE SaveDoc(BSTR*, VARIANT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE SaveDocAsPDF(VARIANT_BOOL* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE CloseDoc(SHORT*, VARIANT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE StopWord(VARIANT_BOOL*, VARIANT* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE PrintDoc(SHORT*, VARIANT_BOOL*, VARIANT* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE IsPrinting(SHORT* result) noexcept override { return not_built(result); }
  HRESULT STDMETHODCALLTYPE GetDefaultPaths(SHORT*, BSTR* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE GotoLine(SHORT*, VARIANT_BOOL* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_GetLastErrorNumber(LONG* result) noexcept override {
    return not_built(result);
  }
  HRESULT STDMETHODCALLTYPE get_GetLastErrorDescription(BSTR* result) noexcept override {
    return not_built(result);
  }
};

}  // namespace zorboffice
