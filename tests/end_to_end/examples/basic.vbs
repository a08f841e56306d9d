' Runs a job of the Basic examples in VBScript, with what VBScript lacks: basic.vbs LANGUAGE JOB ARGUMENT...
' The modules' statements stand above, without their types.
Dim Debug, CurrentDb, outlook_of_form
Set Debug = New ImmediateWindow
Set CurrentDb = New Database
Select Case Given(0) & " " & Given(1)
  Case "vba letter" Letter Given(2), Given(3), Given(4)
  Case "vba table", "access table" Table Given(2)
  Case "vba appointments", "access appointments" Appointments Given(2)
  Case "access letter" Letters Given(2), Left(Given(3), InStrRev(Given(3), "\")), "all"
  Case "vb6 appointments"
    Set outlook_of_form = CreateObject("ZORBOffice.ZORBOutlook")
    If outlook_of_form.StartOutlook Then WScript.Echo Appointments(outlook_of_form, Given(2))
  Case "vb6 letter", "vb6 table" RunWithWord
End Select

' As the form of VB6 does.
Sub RunWithWord
  Dim word_of_form
  Set word_of_form = CreateObject("ZORBOffice.ZORBWord")
  If word_of_form.Start <> 1 Then Exit Sub
  On Error Resume Next
  If Given(1) = "letter" Then
    WScript.Echo Letter(word_of_form, Given(2), Given(3), Given(4))
  Else
    WScript.Echo Table(word_of_form, Given(2))
  End If
  word_of_form.StopWord True
End Sub

Function Given(number)
  If number < WScript.Arguments.Count Then Given = WScript.Arguments(number)
End Function

Class ImmediateWindow
  Public Sub Print(line)
    WScript.Echo line
  End Sub
End Class

' One record, of the customer and the file that were given.
Class Database
  Public Function OpenRecordset(query)
    Set OpenRecordset = New Record
  End Function
End Class

Class Record
  Public EOF
  Public Default Function Field(name)
    Select Case name
      Case "FileName" Field = Mid(Given(3), InStrRev(Given(3), "\") + 1)
      Case "CustomerName" Field = Given(4)
      Case "OrderText" Field = "12 boxes of paper, EUR 49.90 each"
    End Select
  End Function
  Public Sub MoveNext
    EOF = True
  End Sub
  Public Sub Close
  End Sub
End Class

Function Dir(path)
  With CreateObject("Scripting.FileSystemObject")
    If .FileExists(path) Then Dir = .GetFileName(path)
  End With
End Function
