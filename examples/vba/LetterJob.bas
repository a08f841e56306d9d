Attribute VB_Name = "LetterJob"
Option Explicit

Private Const all_of_them = 2   ' ReplaceOption
Private word As ZORBOffice50.ZORBWord

' Fills a letter from a template for one customer, and saves it. In the Immediate window:
'   Letter "C:\letters\letter.dotx", "C:\letters\miller.docx", "Anna Miller"
Public Sub Letter(ByVal template As String, ByVal target As String, ByVal customer As String)
  Dim reason As String
  If Dir(target) <> "" Then Err.Raise vbObjectError + 513, "Letter", target & " exists"
  Set word = New ZORBOffice50.ZORBWord
  reason = WriteLetter(template, target, customer)
  ' Word stays behind unless it is told to quit. Where it could not be created, this raises "Object required".
  On Error Resume Next
  word.StopWord True
  On Error GoTo 0
  If reason <> "" Then Err.Raise vbObjectError + 513, "Letter", reason
  Debug.Print "saved " & Dir(target)
End Sub

' What went wrong; nothing if all went well.
Private Function WriteLetter(ByVal template As String, ByVal target As String, ByVal customer As String) As String
  WriteLetter = "Word does not start"
  If word.Start <> 1 Then Exit Function
  WriteLetter = "the template cannot be opened"
  If word.CreateDoc(template) <> 1 Then Exit Function
  WriteLetter = FillAndSave(target, customer)
  ' Word asks about changes when it quits, not when a document is closed without them.
  word.CloseDoc 0
End Function

Private Function FillAndSave(ByVal target As String, ByVal customer As String) As String
  Dim text As String
  Fill "<<Name>>", customer
  Fill "<<Order>>", "12 boxes of paper, EUR 49.90 each"
  text = word.ReadText(0, 0)
  FillAndSave = "a field is left in the letter"
  If text = "" Or InStr(text, "<<") > 0 Then Exit Function
  word.SaveDoc target
  ' Saving has no result.
  FillAndSave = "the letter cannot be saved"
  If Dir(target) <> "" Then FillAndSave = ""
End Function

Private Sub Fill(ByVal field As String, ByVal value As String)
  Dim filled As Byte
  ' A "^" begins a code of Word's. Replace is published as a property: without using its result this would not compile.
  filled = word.Replace(field, Replace(value, "^", "^^"), , , , , , , , , all_of_them)
End Sub
