Attribute VB_Name = "TableJob"
Option Explicit

Private word As ZORBOffice50.ZORBWord

' Reads the price table out of a document, a line a row. In the Immediate window:
'   Table "C:\letters\prices.docx"
Public Sub Table(ByVal document As String)
  Dim reason As String
  Set word = New ZORBOffice50.ZORBWord
  reason = ReadTable(document)
  ' Word stays behind unless it is told to quit. Where it could not be created, this raises "Object required".
  On Error Resume Next
  word.StopWord True
  On Error GoTo 0
  If reason <> "" Then Err.Raise vbObjectError + 513, "Table", reason
End Sub

' What went wrong; nothing if all went well.
Private Function ReadTable(ByVal document As String) As String
  ReadTable = "Word does not start"
  If word.Start <> 1 Then Exit Function
  ReadTable = "the document cannot be opened"
  If word.OpenDoc(document) <> 1 Then Exit Function
  ReadTable = "the document has no price table"
  If word.Search("Article") = 1 Then
    Do While word.InTable = 1
      ReadTable = ""
      Debug.Print Row()
      ' Behind a row that is selected as a whole lies the next one, or the text after the table.
      word.SelectRow
      word.CursorRight 1
    Loop
  End If
  word.CloseDoc 0
End Function

Private Function Row() As String
  Dim cell As Long
  For cell = 1 To word.CellCount
    If cell > 1 Then Row = Row & " | "
    Row = Row & CellText(cell)
  Next
End Function

' A cell's text ends in its end mark, and holds paragraph marks in between.
Private Function CellText(ByVal cell As Long) As String
  CellText = Replace(Replace(word.CellText(cell), vbCr & Chr(7), ""), vbCr, " ")
End Function
