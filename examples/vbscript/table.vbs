' Reads the price table out of a document, a line a row:
'   cscript //nologo table.vbs DOCUMENT
Option Explicit

Dim files, word, document, reason
If WScript.Arguments.Count <> 1 Then Fail "usage: cscript //nologo table.vbs DOCUMENT"
Set files = CreateObject("Scripting.FileSystemObject")
' Word has a current folder of its own.
document = files.GetAbsolutePathName(WScript.Arguments(0))

Set word = CreateObject("ZORBOffice.ZORBWord")
reason = ReadTable
' Word stays behind unless it is told to quit. Where it could not be created, this raises "Object required".
On Error Resume Next
word.StopWord True
On Error GoTo 0
If reason <> "" Then Fail reason

' What went wrong; nothing if all went well.
Function ReadTable
  ReadTable = "Word does not start"
  If word.Start <> 1 Then Exit Function
  ReadTable = "the document cannot be opened"
  If word.OpenDoc(document) <> 1 Then Exit Function
  ReadTable = "the document has no price table"
  If word.Search("Article") = 1 Then
    Do While word.InTable = 1
      ReadTable = ""
      WScript.Echo Row
      ' Behind a row that is selected as a whole lies the next one, or the text after the table.
      word.SelectRow
      word.CursorRight 1
    Loop
  End If
  word.CloseDoc 0
End Function

Function Row
  Dim cell
  For cell = 1 To word.CellCount
    If cell > 1 Then Row = Row & " | "
    Row = Row & CellText(cell)
  Next
End Function

' A cell's text ends in its end mark, and holds paragraph marks in between.
Function CellText(cell)
  CellText = Replace(word.CellText(cell), vbCr & Chr(7), "")
  CellText = Replace(CellText, vbCr, " ")
End Function

Sub Fail(reason)
  WScript.Echo reason
  WScript.Quit 1
End Sub
