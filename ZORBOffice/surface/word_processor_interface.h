// The default interface of ZORBWord and of OpenWriter, as a vtable.
#pragma once

#include <windows.h>
#include <oaidl.h>

namespace zorboffice {

// One of the three choices of SetHeaderFooter. It is the only difference between the two interfaces: what it
// points to is a flag (VARIANT_BOOL) in ZORBWord and a byte in OpenWriter.
struct Choice;

// Both classes publish the same forty members in the same slots; early-bound hosts rely on it.
//
// Every parameter is passed by reference; a null reference is a failure like any other (through the member's
// trap), a null result pointer gives E_POINTER at once.
//
// A member's trap says what a failure does. Message: the text and the failure's description are shown in a
// message box, and the member answers its failure result and S_OK. Silent: the same without the box. None:
// the failure reaches the host as a failed call with number and description.
//
// In OpenWriter the suite's service manager stands where the application does. Where a member differs there,
// its comment says so; every other one asks the service manager and the suite's document for the word
// processor's members, and fails as in ZORBWord where they do not have them. docs/open-writer.md says member
// by member what that means on LibreOffice; documents that were loaded stay open there.
//
// A byte result is 1 for success and 0 for failure; a flag result is VARIANT_TRUE or VARIANT_FALSE; a variant
// result is always empty. Units and constants named wd... are those of the word processor's object model.
struct WordProcessorInterface : IDispatch {
  // Starts a new word application and holds it; an earlier one is released, not quit. Template (flag,
  // optional, default false): true places the window 3 cm from the left and fills the screen less margins,
  // false switches automatic numbered lists off instead. Trap: silent; the application stays held when a
  // later step failed.
  // OpenWriter: creates the service manager, its core reflection and its desktop; true then asks the service
  // manager to place the window, false does nothing more. Trap: message "Start ", and a second box with the
  // description alone; what was created stays held.
  virtual HRESULT STDMETHODCALLTYPE get_Start(VARIANT_BOOL* Template, BYTE* result) noexcept = 0;

  // Shows or hides the application (IsVisible: flag) and activates it. Trap: message "SetVisible", no blank.
  // OpenWriter: does nothing and returns 1, as SetActive and SetScreenUpdating do.
  virtual HRESULT STDMETHODCALLTYPE get_SetVisible(VARIANT_BOOL* IsVisible, BYTE* result) noexcept = 0;

  // Activates the application, whatever IsActive (flag) says. Trap: message "Set Active ".
  virtual HRESULT STDMETHODCALLTYPE get_SetActive(VARIANT_BOOL* IsActive, BYTE* result) noexcept = 0;

  // Opens the file Doc (path) and makes it the active document. The earlier one is not closed; it stays the
  // active document when opening fails. Trap: message "OpenDoc ".
  // OpenWriter: loads the URL "file:///" followed by Doc as it is.
  virtual HRESULT STDMETHODCALLTYPE get_OpenDoc(BSTR* Doc, BYTE* result) noexcept = 0;

  // Creates a document from the template Doc (path, optional, default "": the normal template) and makes it
  // the active document; the earlier one stays when that fails. Trap: message "Create Doc ".
  // OpenWriter: loads the URL "file:///" followed by Doc, also when Doc is empty.
  virtual HRESULT STDMETHODCALLTYPE get_CreateDoc(BSTR* Doc, BYTE* result) noexcept = 0;

  // Types Text at the selection. Trap: message "SendText ".
  virtual HRESULT STDMETHODCALLTYPE get_SendText(BSTR* Text, BYTE* result) noexcept = 0;

  // Reads the document's text from character StartPos to EndPos, counted from 0. A start of 0 or less with an
  // end means 1, so the first character is left out; an end of 0 or less means the text's length; both 0 or
  // less read all sections' texts, joined. Returns "" on failure. Trap: message "ReadText : ".
  // OpenWriter: reads all of the text, whatever the positions.
  virtual HRESULT STDMETHODCALLTYPE get_ReadText(LONG* StartPos, LONG* EndPos, BSTR* result) noexcept = 0;

  // Switches the redrawing of the application's windows (Update: flag). Trap: message "Set Screen Updating ".
  virtual HRESULT STDMETHODCALLTYPE get_SetScreenUpdating(VARIANT_BOOL* Update, BYTE* result) noexcept = 0;

  // Finds SearchString and selects it. The find options, all optional: WrapAction (wdFindStop 0,
  // wdFindContinue 1, wdFindAsk 2; default 1), SearchForward (default true), BeginAtTop (search from the
  // document's start; default false), and five match flags (default false). Returns 1 when found. Trap:
  // message "Search ".
  // OpenWriter: first shows SearchString in a message box, then finds its first occurrence, as a regular
  // expression with MatchWildcards (all other options have no effect), shows the selected text in a second
  // box and selects nothing.
  virtual HRESULT STDMETHODCALLTYPE get_Search(BSTR* SearchString, BYTE* WrapAction,
                                               VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop,
                                               VARIANT_BOOL* MatchCase, VARIANT_BOOL* MatchWholeWord,
                                               VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
                                               VARIANT_BOOL* MatchAllWordForms, BYTE* result) noexcept = 0;

  // Returns 1 when the selection is in a table. Trap: message "InTable ".
  virtual HRESULT STDMETHODCALLTYPE get_InTable(BYTE* result) noexcept = 0;

  // Selects the row of the table in which the selection is. Trap: message "Select Row ".
  virtual HRESULT STDMETHODCALLTYPE SelectRow(VARIANT* result) noexcept = 0;

  // Finds SearchString from the selection on and replaces it by ReplaceString. The find options as in Search,
  // but BeginAtTop (default true) has no effect; ReplaceOption: wdReplaceNone 0, wdReplaceOne 1, wdReplaceAll
  // 2 (default 1). Returns 1 when found. Trap: silent.
  virtual HRESULT STDMETHODCALLTYPE get_Replace(BSTR* SearchString, BSTR* ReplaceString, BYTE* WrapAction,
                                                VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop,
                                                VARIANT_BOOL* MatchCase, VARIANT_BOOL* MatchWholeWord,
                                                VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
                                                VARIANT_BOOL* MatchAllWordForms, BYTE* ReplaceOption,
                                                BYTE* result) noexcept = 0;

  // Returns the number of sections of the active document. Trap: none.
  virtual HRESULT STDMETHODCALLTYPE get_NumberOfSections(LONG* result) noexcept = 0;

  // Reads a header's (IsHeader true) or footer's text of Section (counted from 1). HeaderFooterType:
  // wdHeaderFooterPrimary 1, wdHeaderFooterFirstPage 2, wdHeaderFooterEvenPages 3. Both positions 0 or less:
  // the whole text; otherwise the characters from StartPos (0 or less: 1) to EndPos (0 or less: the text's
  // length). Returns "" where there is no such header or footer, and on failure. Trap: message "Read h/f : ".
  virtual HRESULT STDMETHODCALLTYPE get_ReadHeaderFooterText(LONG* Section, VARIANT_BOOL* IsHeader,
                                                             BYTE* HeaderFooterType, LONG* StartPos,
                                                             LONG* EndPos, BSTR* result) noexcept = 0;

  // Copies headers, footers and the normal style's font, each if chosen, from SourceTemplate to DestTemplate
  // (paths; empty or "Normal": the application's template), and saves the latter. A document that is open
  // already is used as it stands and stays open. One file as both gives its first section's to the others.
  // With no choice a message says so, and the answer is 0. On failure DestTemplate is unchanged, unless its
  // closing failed. Trap: message "Set Header/Footer ". docs/headers-and-footers.md has it step by step.
  virtual HRESULT STDMETHODCALLTYPE get_SetHeaderFooter(BSTR* SourceTemplate, BSTR* DestTemplate,
                                                        Choice* ApplyHeader, Choice* ApplyFooter,
                                                        Choice* ApplyFont, BYTE* result) noexcept = 0;

  // Replace, within one header or footer, named as in ReadHeaderFooterText; in one that does not exist
  // nothing is found. Trap: message "Replace Header/Footer ".
  virtual HRESULT STDMETHODCALLTYPE get_ReplaceHeaderFooter(
      LONG* Section, VARIANT_BOOL* IsHeader, BYTE* HeaderFooterType, BSTR* SearchString, BSTR* ReplaceString,
      BYTE* WrapAction, VARIANT_BOOL* SearchForward, VARIANT_BOOL* BeginAtTop, VARIANT_BOOL* MatchCase,
      VARIANT_BOOL* MatchWholeWord, VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
      VARIANT_BOOL* MatchAllWordForms, BYTE* ReplaceOption, BYTE* result) noexcept = 0;

  // Returns the number of cells of the selection's first row. Trap: message "CellCount ".
  virtual HRESULT STDMETHODCALLTYPE get_CellCount(LONG* result) noexcept = 0;

  // Returns the text of cell CellId (counted from 1) of the selection's first row, its end-of-cell mark
  // included. Trap: message "CellText ".
  virtual HRESULT STDMETHODCALLTYPE get_CellText(LONG* CellId, BSTR* result) noexcept = 0;

  // Cuts the selection to the clipboard. Trap: silent.
  virtual HRESULT STDMETHODCALLTYPE Cut(VARIANT* result) noexcept = 0;

  // Selects the paragraph in which the selection starts. Trap: message "Select Paragraph ".
  virtual HRESULT STDMETHODCALLTYPE SelectParagraph(VARIANT* result) noexcept = 0;

  // Returns the selected text, "" on failure. Trap: message "SelectionText ".
  virtual HRESULT STDMETHODCALLTYPE get_SelectionText(BSTR* result) noexcept = 0;

  // Pastes the clipboard at the selection. Trap: message "Paste ".
  virtual HRESULT STDMETHODCALLTYPE Paste(VARIANT* result) noexcept = 0;

  // Moves the insertion point left by Units units. Unit (default 1, wdCharacter) is a wdUnits value;
  // Selecting (variant, default 0, wdMove) is passed on as it is: 1, wdExtend, extends the selection. Beware:
  // the count comes before the unit. Trap: message "Cursor Left ".
  virtual HRESULT STDMETHODCALLTYPE CursorLeft(SHORT* Units, SHORT* Unit, VARIANT* Selecting,
                                               VARIANT* result) noexcept = 0;

  // CursorLeft to the right. Trap: message "Cursor Right ".
  virtual HRESULT STDMETHODCALLTYPE CursorRight(SHORT* Units, SHORT* Unit, VARIANT* Selecting,
                                                VARIANT* result) noexcept = 0;

  // Moves the insertion point to the start of its paragraph. Trap: message "CursorEndOfParagraph", no blank:
  // the text is shared with the end-of-paragraph member.
  virtual HRESULT STDMETHODCALLTYPE CursorStartOfParagraph(VARIANT* result) noexcept = 0;

  // Moves the insertion point to the start of its cell. Trap: message "CursorStartOfCell", no blank.
  virtual HRESULT STDMETHODCALLTYPE CursorStartOfCell(VARIANT* result) noexcept = 0;

  // Moves the insertion point to the end of its cell. Trap: message "CursorEndOfCell", no blank.
  virtual HRESULT STDMETHODCALLTYPE CursorEndOfCell(VARIANT* result) noexcept = 0;

  // Moves the insertion point to the end of its paragraph. Trap: message "CursorEndOfParagraph", no blank.
  virtual HRESULT STDMETHODCALLTYPE CursorEndOfParagraph(VARIANT* result) noexcept = 0;

  // Collapses the selection and moves it by Units units of Unit (a wdUnits value). Trap: message "Move :".
  virtual HRESULT STDMETHODCALLTYPE Move(SHORT* Unit, SHORT* Units, VARIANT* result) noexcept = 0;

  // Updates the document's styles and parts it from its template. Trap: message "Finalise ".
  virtual HRESULT STDMETHODCALLTYPE FinaliseDoc(VARIANT* result) noexcept = 0;

  // Saves the document, as Docname (path, optional) when that is not empty. Trap: message "Save Doc : ", the
  // description, a blank and Docname.
  virtual HRESULT STDMETHODCALLTYPE SaveDoc(BSTR* Docname, VARIANT* result) noexcept = 0;

  // Prints the document to the first installed printer whose name contains "PDF", in capitals, and returns
  // true; false when there is none. The application's printer is put back, unless the failure came between.
  // Trap: message "Unable to print pdf : ".
  virtual HRESULT STDMETHODCALLTYPE SaveDocAsPDF(VARIANT_BOOL* result) noexcept = 0;

  // Closes the document and lets go of it. SaveOption (optional, default 0): wdDoNotSaveChanges 0,
  // wdPromptToSaveChanges -2, wdSaveChanges -1. It stays the active document on failure.
  // Trap: message "Close Doc ".
  // OpenWriter: it stays the active document in any case. Trap: silent.
  virtual HRESULT STDMETHODCALLTYPE CloseDoc(SHORT* SaveOption, VARIANT* result) noexcept = 0;

  // Quits the application and lets go of it: with Force (flag, optional) always, otherwise only when no
  // document is open. Trap: none.
  virtual HRESULT STDMETHODCALLTYPE StopWord(VARIANT_BOOL* Force, VARIANT* result) noexcept = 0;

  // Prints Copies copies of the document, then lets the host's pending window messages run once. Background
  // (flag, optional) has no effect. Trap: message "Print Doc ", the failure's number, " :  " and the
  // description.
  virtual HRESULT STDMETHODCALLTYPE PrintDoc(SHORT* Copies, VARIANT_BOOL* Background,
                                             VARIANT* result) noexcept = 0;

  // Returns how many documents are being printed or saved in the background, 0 when none. It does not wait.
  // Trap: none.
  virtual HRESULT STDMETHODCALLTYPE IsPrinting(SHORT* result) noexcept = 0;

  // Returns the application's default folder PathId (a wdDefaultFilePath value), "" on failure.
  // Trap: message "GetDefaultPaths ".
  virtual HRESULT STDMETHODCALLTYPE GetDefaultPaths(SHORT* PathId, BSTR* result) noexcept = 0;

  // Moves the insertion point to line LineNo, counted from 1; returns true, or false on failure. Trap:
  // silent.
  virtual HRESULT STDMETHODCALLTYPE GotoLine(SHORT* LineNo, VARIANT_BOOL* result) noexcept = 0;

  // Returns the number of the last recorded failure: always 0, because no member of these classes records.
  virtual HRESULT STDMETHODCALLTYPE get_GetLastErrorNumber(LONG* result) noexcept = 0;

  // Returns the description of the last recorded failure: always "".
  virtual HRESULT STDMETHODCALLTYPE get_GetLastErrorDescription(BSTR* result) noexcept = 0;
};

}  // namespace zorboffice
