' Writes a letter from a template with ZORBWord:
'   cscript letter.vbs TEMPLATE FOLDER
' leaves letter.docx in FOLDER, and prints the letter to the first printer whose name contains "PDF".

Dim word, template, folder, letter, text, started

If WScript.Arguments.Count <> 2 Then Fail "usage: cscript letter.vbs TEMPLATE FOLDER"
template = WScript.Arguments(0)
folder = WScript.Arguments(1)
letter = folder & "\letter.docx"

Set word = CreateObject("ZORBOffice.ZORBWord")
If word.Start <> 1 Then Fail "the word processor does not start"
If word.CreateDoc(template) <> 1 Then Fail "the template cannot be opened"
WScript.Echo "A new letter from " & template

' "To:" is the fourth line, "Date:" the fifth.
TypeAtEndOfLine 4, " Ms A. Miller, 4 Harbour Road"
TypeAtEndOfLine 5, " 21 November 2026"
WScript.Echo "Addressed and dated"

' The ninth line is empty: it takes the order.
TypeAtEndOfLine 9, "12 boxes of paper, EUR 49.90 each"
WScript.Echo "The order is in"

' A draft remark goes.
If Not word.GotoLine(10) Then Fail "there is no line 10"
word.SelectParagraph
WScript.Echo "Removing: " & WithoutMark(word.SelectionText)
word.Cut

text = word.ReadText(0, 0)
Require text, "Ms A. Miller, 4 Harbour Road"
Require text, "21 November 2026"
Require text, "12 boxes of paper"
If InStr(text, "Draft") > 0 Then Fail "the remark is still there"
WScript.Echo "Read back: " & Len(text) & " characters"

word.SaveDoc letter
WScript.Echo "Saved " & letter
If Not word.SaveDocAsPDF Then Fail "no printer's name contains PDF"
started = Timer
Do While word.IsPrinting > 0
  If Abs(Timer - started) > 120 Then Fail "the printing does not end"
Loop
WScript.Echo "Printed"

word.CloseDoc 0
word.StopWord False
WScript.Echo "letter.vbs: done"

Sub TypeAtEndOfLine(line, words)
  If Not word.GotoLine(line) Then Fail "there is no line " & line
  ' The end of a paragraph lies behind its mark.
  word.CursorEndOfParagraph
  word.CursorLeft 1
  If word.SendText(words) <> 1 Then Fail "cannot type: " & words
End Sub

Sub Require(whole, part)
  If InStr(whole, part) = 0 Then Fail "not in the letter: " & part
End Sub

Function WithoutMark(paragraph)
  WithoutMark = Replace(paragraph, vbCr, "")
End Function

Sub Fail(reason)
  WScript.Echo "letter.vbs: " & reason
  WScript.Quit 1
End Sub
