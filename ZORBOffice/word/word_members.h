// The word processor's members. surface/word_processor_interface.h says what each does.
#pragma once

#include "ZORBOffice/common/automation_object.h"
#include "ZORBOffice/common/member_frame.h"
#include "ZORBOffice/control/control.h"
#include "ZORBOffice/surface/word_processor_interface.h"

namespace zorboffice {

class WordMembers : public Control<WordProcessorInterface> {
 public:
  using Control::Control;

  // session.cpp
  HRESULT STDMETHODCALLTYPE get_Start(VARIANT_BOOL* Template, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_SetVisible(VARIANT_BOOL* IsVisible, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_SetActive(VARIANT_BOOL* IsActive, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_SetScreenUpdating(VARIANT_BOOL* Update, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE StopWord(VARIANT_BOOL* Force, VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GetDefaultPaths(SHORT* PathId, BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_GetLastErrorNumber(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_GetLastErrorDescription(BSTR* result) noexcept override;

  // documents.cpp
  HRESULT STDMETHODCALLTYPE get_OpenDoc(BSTR* Doc, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_CreateDoc(BSTR* Doc, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE FinaliseDoc(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE SaveDoc(BSTR* Docname, VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE SaveDocAsPDF(VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE CloseDoc(SHORT* SaveOption, VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE PrintDoc(SHORT* Copies, VARIANT_BOOL* Background,
                                     VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE IsPrinting(SHORT* result) noexcept override;

  // text.cpp
  HRESULT STDMETHODCALLTYPE get_SendText(BSTR* Text, BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_ReadText(LONG* StartPos, LONG* EndPos, BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_SelectionText(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE Cut(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE Paste(VARIANT* result) noexcept override;

  // cursor.cpp
  HRESULT STDMETHODCALLTYPE SelectParagraph(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE CursorLeft(SHORT* Units, SHORT* Unit, VARIANT* Selecting,
                                       VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE CursorRight(SHORT* Units, SHORT* Unit, VARIANT* Selecting,
                                        VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE CursorStartOfParagraph(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE CursorStartOfCell(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE CursorEndOfCell(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE CursorEndOfParagraph(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE Move(SHORT* Unit, SHORT* Units, VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE GotoLine(SHORT* LineNo, VARIANT_BOOL* result) noexcept override;

  // search.cpp
  HRESULT STDMETHODCALLTYPE get_Search(BSTR* SearchString, BYTE* WrapAction, VARIANT_BOOL* SearchForward,
                                       VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
                                       VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards,
                                       VARIANT_BOOL* MatchSoundsLike, VARIANT_BOOL* MatchAllWordForms,
                                       BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Replace(BSTR* SearchString, BSTR* ReplaceString, BYTE* WrapAction,
                                        VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop,
                                        VARIANT_BOOL* MatchCase, VARIANT_BOOL* MatchWholeWord,
                                        VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
                                        VARIANT_BOOL* MatchAllWordForms, BYTE* ReplaceOption,
                                        BYTE* result) noexcept override;

  // tables.cpp
  HRESULT STDMETHODCALLTYPE get_InTable(BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE SelectRow(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_CellCount(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_CellText(LONG* CellId, BSTR* result) noexcept override;

  // headers_footers.cpp
  HRESULT STDMETHODCALLTYPE get_NumberOfSections(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_ReadHeaderFooterText(LONG* Section, VARIANT_BOOL* IsHeader,
                                                     BYTE* HeaderFooterType, LONG* StartPos, LONG* EndPos,
                                                     BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_SetHeaderFooter(BSTR* SourceTemplate, BSTR* DestTemplate, Choice* ApplyHeader,
                                                Choice* ApplyFooter, Choice* ApplyFont,
                                                BYTE* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_ReplaceHeaderFooter(
      LONG* Section, VARIANT_BOOL* IsHeader, BYTE* HeaderFooterType, BSTR* SearchString, BSTR* ReplaceString,
      BYTE* WrapAction, VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
      VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
      VARIANT_BOOL* MatchAllWordForms, BYTE* ReplaceOption, BYTE* result) noexcept override;

 protected:
  // One of SetHeaderFooter's choices, whose type is the one difference between the two interfaces.
  virtual bool is_chosen(Choice* choice) const = 0;

  // Members work on references of their own: while an office call waits, the host may run a member that
  // replaces the fields. A member that clears a field leaves such a newer object alone.
  AutomationObject application() const { return application_; }
  AutomationObject document() const { return active_document_; }

  // Closes a document, in its own format, with the host's SaveOption by reference.
  static void close(const AutomationObject& document, SHORT* SaveOption);

  KeptObject application_;  // in OpenWriter the suite's service manager
  KeptObject active_document_;

 private:
  // A header or footer of the active document, whether it exists or not.
  AutomationObject header_footer(LONG* Section, VARIANT_BOOL* IsHeader, BYTE* HeaderFooterType) const;

  // The selection of the active document's window.
  AutomationObject selection() const;

  // Moves the selection to the start or end of a unit (a wdUnits value), without selecting.
  HRESULT move_to_edge(VARIANT* result, const wchar_t* prefix, const wchar_t* edge, LONG unit) noexcept;
};

}  // namespace zorboffice
