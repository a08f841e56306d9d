// The default interface of ZORBWord and of OpenWriter, as a vtable.
#pragma once

#include <windows.h>
#include <oaidl.h>

namespace zorboffice {

// One of the three choices of SetHeaderFooter. It is the only difference between the two interfaces: what it
// points to is a flag (VARIANT_BOOL) in ZORBWord and a byte in OpenWriter.
struct Choice;

// docs/members/ZORBWord.md and OpenWriter.md say of each member what it does, gives back, shows and how it
// fails; its parameters stand in word_processor_members.cpp.
//
// Both classes publish the same forty members in the same slots; early-bound hosts rely on it.
//
// Every parameter is passed by reference; a null reference is a failure like any other (through the member's
// trap), a null result pointer gives E_POINTER at once.
//
// A member's trap says what a failure does. Message: the text and the failure's description are shown in a
// message box, and the member answers its failure result and S_OK. Silent: the same without the box. None:
// the failure reaches the host as a failed call with number and description.
//
// In OpenWriter the suite's service manager stands where the application does. Nine members are written for
// the suite; every other one asks the service manager and the suite's document for the word processor's
// members, and fails as in ZORBWord where they do not have them.
//
// A byte result is 1 for success and 0 for failure; a flag result is VARIANT_TRUE or VARIANT_FALSE; a variant
// result is always empty. Units and constants named wd... are those of the word processor's object model.
struct WordProcessorInterface : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE get_Start(VARIANT_BOOL* Template, BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetVisible(VARIANT_BOOL* IsVisible, BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetActive(VARIANT_BOOL* IsActive, BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_OpenDoc(BSTR* Doc, BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_CreateDoc(BSTR* Doc, BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SendText(BSTR* Text, BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ReadText(LONG* StartPos, LONG* EndPos, BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetScreenUpdating(VARIANT_BOOL* Update, BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Search(BSTR* SearchString, BYTE* WrapAction,
                                               VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop,
                                               VARIANT_BOOL* MatchCase, VARIANT_BOOL* MatchWholeWord,
                                               VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
                                               VARIANT_BOOL* MatchAllWordForms, BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_InTable(BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SelectRow(VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Replace(BSTR* SearchString, BSTR* ReplaceString, BYTE* WrapAction,
                                                VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop,
                                                VARIANT_BOOL* MatchCase, VARIANT_BOOL* MatchWholeWord,
                                                VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
                                                VARIANT_BOOL* MatchAllWordForms, BYTE* ReplaceOption,
                                                BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_NumberOfSections(LONG* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ReadHeaderFooterText(LONG* Section, VARIANT_BOOL* IsHeader,
                                                             BYTE* HeaderFooterType, LONG* StartPos,
                                                             LONG* EndPos, BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SetHeaderFooter(BSTR* SourceTemplate, BSTR* DestTemplate,
                                                        Choice* ApplyHeader, Choice* ApplyFooter,
                                                        Choice* ApplyFont, BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ReplaceHeaderFooter(
      LONG* Section, VARIANT_BOOL* IsHeader, BYTE* HeaderFooterType, BSTR* SearchString, BSTR* ReplaceString,
      BYTE* WrapAction, VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
      VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
      VARIANT_BOOL* MatchAllWordForms, BYTE* ReplaceOption, BYTE* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_CellCount(LONG* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_CellText(LONG* CellId, BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE Cut(VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SelectParagraph(VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SelectionText(BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE Paste(VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorLeft(SHORT* Units, SHORT* Unit, VARIANT* Selecting,
                                               VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorRight(SHORT* Units, SHORT* Unit, VARIANT* Selecting,
                                                VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorStartOfParagraph(VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorStartOfCell(VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorEndOfCell(VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE CursorEndOfParagraph(VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE Move(SHORT* Unit, SHORT* Units, VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE FinaliseDoc(VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveDoc(BSTR* Docname, VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE SaveDocAsPDF(VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE CloseDoc(SHORT* SaveOption, VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE StopWord(VARIANT_BOOL* Force, VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE PrintDoc(SHORT* Copies, VARIANT_BOOL* Background,
                                             VARIANT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE IsPrinting(SHORT* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GetDefaultPaths(SHORT* PathId, BSTR* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE GotoLine(SHORT* LineNo, VARIANT_BOOL* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_GetLastErrorNumber(LONG* result) noexcept = 0;
  virtual HRESULT STDMETHODCALLTYPE get_GetLastErrorDescription(BSTR* result) noexcept = 0;
};

}  // namespace zorboffice
