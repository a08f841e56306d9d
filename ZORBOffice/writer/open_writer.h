// OpenWriter: drives an office suite through its service manager.
#pragma once

#include "ZORBOffice/word/word_members.h"

namespace zorboffice {

// The members that it does not override are the word processor's, over the service manager in place of the
// word application and over the suite's document.
class OpenWriter final : public WordMembers {
 public:
  using WordMembers::WordMembers;

  HRESULT STDMETHODCALLTYPE get_Start(VARIANT_BOOL* Template, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_SetVisible(VARIANT_BOOL* IsVisible, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_SetActive(VARIANT_BOOL* IsActive, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_SetScreenUpdating(VARIANT_BOOL* Update, BYTE* result) noexcept override;

  HRESULT STDMETHODCALLTYPE get_OpenDoc(BSTR* Doc, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_CreateDoc(BSTR* Doc, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE CloseDoc(SHORT* SaveOption, VARIANT* result) noexcept override;

  HRESULT STDMETHODCALLTYPE get_ReadText(LONG* StartPos, LONG* EndPos, BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Search(BSTR* SearchString, BYTE* WrapAction, VARIANT_BOOL* SearchForward,
                                       VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
                                       VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards,
                                       VARIANT_BOOL* MatchSoundsLike, VARIANT_BOOL* MatchAllWordForms,
                                       BYTE* result) noexcept override;

 private:
  bool is_chosen(Choice* choice) const override { return dereferenced(reinterpret_cast<BYTE*>(choice)) != 0; }

  // Loads file:/// and the path as it is, and makes the document the active one.
  Success load(BSTR* path);

  KeptObject core_reflection_;  // held as long as the desktop, and never called
  KeptObject desktop_;
};

}  // namespace zorboffice
