' OpenWriter from a script host, over documents that ZORBWord wrote: writer.vbs FOLDER TEMPLATE SPECIAL
' No member is called here that would show a message box: nobody would press OK. The last line is "writer.vbs: done" only if
' every check held.
Option Explicit
Dim folder, special, kinds, kind, word, writer, text, read, i, fails
folder = WScript.Arguments(0) & "\"
special = WScript.Arguments(2)
kinds = Array("odt", "docx", "doc")
fails = 0

Sub Check(what, got, wanted)
  If got = wanted Then Exit Sub
  fails = fails + 1
  WScript.Echo "FAILED " & what & ": '" & Left(got, 200) & "', not '" & Left(wanted, 200) & "'"
End Sub

Set word = CreateObject("ZORBOffice.ZORBWord")
Check "word processor", word.Start, 1
For Each kind In kinds
  word.CreateDoc
  word.SendText kind & " " & special
  word.SaveDoc folder & "writer." & kind
  word.CloseDoc
Next
word.StopWord True

Set writer = CreateObject("ZORBOffice.OpenWriter")
Check "Start", writer.Start, 1
For Each kind In kinds
  Check "OpenDoc " & kind, writer.OpenDoc(folder & "writer." & kind), 1
  Check "ReadText " & kind, writer.ReadText(0, 0), kind & " " & special
Next
Check "CreateDoc", writer.CreateDoc(WScript.Arguments(1)), 1
Check "template", InStr(writer.ReadText(5, 10), "<<Name>>") > 0, True

' The two members that fail without a box here: in vain, and by raising.
writer.CloseDoc
Check "closed in vain", InStr(writer.ReadText(0, 0), "<<Name>>") > 0, True
On Error Resume Next
i = writer.NumberOfSections
Check "NumberOfSections", Err.Number & " " & Err.Description, "438 Object doesn't support this property or method"
On Error Goto 0

' Five megabytes, in lines of 1024 characters.
text = Replace(String(5 * 1024, "-"), "-", special & String(1023 - Len(special), "x") & vbLf)
With CreateObject("Scripting.FileSystemObject").CreateTextFile(folder & "writer.txt", True, True)
  .Write text
  .Close
End With
Check "OpenDoc txt", writer.OpenDoc(folder & "writer.txt"), 1
read = writer.ReadText(0, 0)
Check "length", Len(read), Len(text)
Check "large text", read = text, True
If fails = 0 Then WScript.Echo "writer.vbs: done"
