' Fills a letter from a template for one customer, and saves it:
'   cscript //nologo letter.vbs TEMPLATE OUTPUT NAME
Option Explicit

Const all_of_them = 2   ' ReplaceOption

Dim files, word, template, output, reason
If WScript.Arguments.Count <> 3 Then Fail "usage: cscript //nologo letter.vbs TEMPLATE OUTPUT NAME"
Set files = CreateObject("Scripting.FileSystemObject")
' Word has a current folder of its own.
template = files.GetAbsolutePathName(WScript.Arguments(0))
output = files.GetAbsolutePathName(WScript.Arguments(1))
If files.FileExists(output) Then Fail output & " exists"

Set word = CreateObject("ZORBOffice.ZORBWord")
reason = WriteLetter(WScript.Arguments(2))
' Word stays behind unless it is told to quit. Where it could not be created, this raises "Object required".
On Error Resume Next
word.StopWord True
On Error GoTo 0
If reason <> "" Then Fail reason
WScript.Echo "saved " & files.GetFileName(output)

' What went wrong; nothing if all went well.
Function WriteLetter(name)
  WriteLetter = "Word does not start"
  If word.Start <> 1 Then Exit Function
  WriteLetter = "the template cannot be opened"
  If word.CreateDoc(template) <> 1 Then Exit Function
  WriteLetter = FillAndSave(name)
  ' Word asks about changes when it quits, not when a document is closed without them.
  word.CloseDoc 0
End Function

Function FillAndSave(name)
  Dim text
  Fill "Name", name
  Fill "Order", "12 boxes of paper, EUR 49.90 each"
  text = word.ReadText(0, 0)
  FillAndSave = "a field is left in the letter"
  If text = "" Or InStr(text, "<<") > 0 Then Exit Function
  word.SaveDoc output
  ' Saving has no result.
  FillAndSave = "the letter cannot be saved"
  If files.FileExists(output) Then FillAndSave = ""
End Function

Sub Fill(field, value)
  ' A "^" begins a code of Word's.
  word.Replace "<<" & field & ">>", Replace(value, "^", "^^"), , , , , , , , , all_of_them
End Sub

Sub Fail(reason)
  WScript.Echo reason
  WScript.Quit 1
End Sub
