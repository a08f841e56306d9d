Attribute VB_Name = "Jobs"
' The three jobs, with the controls of the form. Each returns its lines, or raises what went wrong.
Option Explicit

Private Const all_of_them = 2   ' ReplaceOption

Public Function Letter(ByVal word As ZORBOffice50.ZORBWord, ByVal template As String, ByVal target As String, _
                       ByVal customer As String) As String
  Dim text As String
  If Dir(target) <> "" Then Err.Raise vbObjectError + 513, "Letter", target & " exists"
  If word.CreateDoc(template) <> 1 Then Err.Raise vbObjectError + 513, "Letter", "the template cannot be opened"
  Fill word, "<<Name>>", customer
  Fill word, "<<Order>>", "12 boxes of paper, EUR 49.90 each"
  text = word.ReadText(0, 0)
  If text <> "" And InStr(text, "<<") = 0 Then word.SaveDoc target
  ' Word asks about changes when it quits, not when a document is closed without them.
  word.CloseDoc 0
  ' Saving has no result.
  If Dir(target) = "" Then Err.Raise vbObjectError + 513, "Letter", "the letter is not filled, or cannot be saved"
  Letter = "saved " & Dir(target)
End Function

Private Sub Fill(ByVal word As ZORBOffice50.ZORBWord, ByVal field As String, ByVal value As String)
  Dim filled As Byte
  ' A "^" begins a code of Word's. Replace is published as a property: without using its result this would not compile.
  filled = word.Replace(field, Replace(value, "^", "^^"), , , , , , , , , all_of_them)
End Sub

Public Function Table(ByVal word As ZORBOffice50.ZORBWord, ByVal document As String) As String
  Dim cell As Long
  If word.OpenDoc(document) <> 1 Then Err.Raise vbObjectError + 513, "Table", "the document cannot be opened"
  If word.Search("Article") = 1 Then
    Do While word.InTable = 1
      For cell = 1 To word.CellCount
        If cell > 1 Then Table = Table & " | "
        ' A cell's text ends in its end mark, and holds paragraph marks in between.
        Table = Table & Replace(Replace(word.CellText(cell), vbCr & Chr(7), ""), vbCr, " ")
      Next
      Table = Table & vbCrLf
      ' Behind a row that is selected as a whole lies the next one, or the text after the table.
      word.SelectRow
      word.CursorRight 1
    Loop
  End If
  word.CloseDoc 0
  If Table = "" Then Err.Raise vbObjectError + 513, "Table", "the document has no price table"
End Function
