' Times ReadText of a whole document and ReplaceHeaderFooter for each of its sections: sections.vbs DOCUMENT
' The last line but one: SECTIONS READ-SECONDS REPLACE-SECONDS
Option Explicit
Dim word, count, started, read, replaced, text, i
Set word = CreateObject("ZORBOffice.ZORBWord")
If word.Start <> 1 Then Fail "the word processor does not start"
If word.OpenDoc(WScript.Arguments(0)) <> 1 Then Fail "the document cannot be opened"
count = word.NumberOfSections

started = Timer
text = word.ReadText(0, 0)
read = Timer - started
If InStr(text, "Section " & count) = 0 Then Fail "the last section was not read"

started = Timer
For i = 1 To count
  If word.ReplaceHeaderFooter(i, True, 1, "OLD", "NEW") <> 1 Then Fail "nothing to replace in section " & i
Next
replaced = Timer - started
If InStr(word.ReadHeaderFooterText(count, True, 1, 0, 0), "NEW " & count) = 0 Then Fail "the last header was not changed"

word.CloseDoc 0
word.StopWord True
WScript.Echo count & " " & read & " " & replaced
WScript.Echo "sections.vbs: done"

Sub Fail(reason)
  WScript.Echo "sections.vbs: " & reason
  WScript.Quit 1
End Sub
