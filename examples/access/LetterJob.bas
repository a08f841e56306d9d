Attribute VB_Name = "LetterJob"
' Needs two references: ZORBOffice50, and "Microsoft Office Access database engine Object Library".
Option Compare Database
Option Explicit

Private Const all_of_them = 2   ' ReplaceOption
Private word As ZORBOffice50.ZORBWord

' Fills a letter from a template for each customer whose letter is not there yet. In the Immediate window:
'   Letters "C:\letters\letter.dotx", "C:\letters\", "CustomerName = 'Anna Miller'"
Public Sub Letters(ByVal template As String, ByVal folder As String, ByVal condition As String)
  Dim customers As DAO.Recordset, reason As String
  Set customers = CurrentDb.OpenRecordset("SELECT FileName, CustomerName, OrderText FROM Customers WHERE " & condition)
  Set word = New ZORBOffice50.ZORBWord
  If word.Start <> 1 Then reason = "Word does not start"
  Do Until customers.EOF Or reason <> ""
    If Dir(folder & customers("FileName")) <> "" Then
      reason = folder & customers("FileName") & " exists"
    ElseIf word.CreateDoc(template) <> 1 Then
      reason = "the template cannot be opened"
    Else
      ' A field may be Null, which is no text.
      reason = FillAndSave(folder & customers("FileName"), customers("CustomerName") & "", customers("OrderText") & "")
      ' Word asks about changes when it quits, not when a document is closed without them.
      word.CloseDoc 0
    End If
    If reason = "" Then Debug.Print "saved " & customers("FileName")
    customers.MoveNext
  Loop
  customers.Close
  ' Word stays behind unless it is told to quit. Where it could not be created, this raises "Object required".
  On Error Resume Next
  word.StopWord True
  On Error GoTo 0
  If reason <> "" Then Err.Raise vbObjectError + 513, "Letters", reason
End Sub

' What went wrong; nothing if all went well.
Private Function FillAndSave(ByVal target As String, ByVal customer As String, ByVal order As String) As String
  Dim text As String
  Fill "<<Name>>", customer
  Fill "<<Order>>", order
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
