Option Strict On
Option Infer On
Imports System
Imports System.Collections.Generic
Imports System.IO
Imports Microsoft.VisualBasic

Module Jobs
  ' The controls belong to the thread that creates them, which has to have an apartment of its own.
  <STAThread> Function Main(arguments As String()) As Integer
    Try
      Select Case If(arguments.Length = 0, "", arguments(0)) & arguments.Length
        Case "letter4"
          WithWord(Sub(word) Letter(word, Path.GetFullPath(arguments(1)), Path.GetFullPath(arguments(2)), arguments(3)))
        Case "table2" : WithWord(Sub(word) Table(word, Path.GetFullPath(arguments(1))))
        Case "appointments1" : Appointments(Date.Today.AddDays(1).ToString("yyyy'-'MM'-'dd"))
        Case "appointments2" : Appointments(arguments(1))
        Case Else : Throw New ArgumentException("usage: jobs letter TEMPLATE OUTPUT NAME | table DOCUMENT | appointments [DAY]")
      End Select
      Return 0
    Catch failure As Exception
      Console.Error.WriteLine(failure.GetBaseException().Message)
      Return 1
    End Try
  End Function

  Sub WithWord(job As Action(Of Control))
    Dim word As New Control("ZORBOffice.ZORBWord")
    Try
      If word.Number("Start") <> 1 Then Throw New InvalidOperationException("Word does not start")
      job(word)
    Finally
      ' Word stays behind unless it is told to quit. Where it could not be created, this raises "Object required".
      Try : word.Ask("StopWord", True) : Catch : End Try
    End Try
  End Sub

  Sub Letter(word As Control, template As String, output As String, name As String)
    If File.Exists(output) Then Throw New IOException(output & " exists")
    If word.Number("CreateDoc", template) <> 1 Then Throw New IOException("the template cannot be opened")
    Fill(word, "<<Name>>", name)
    Fill(word, "<<Order>>", "12 boxes of paper, EUR 49.90 each")
    Dim text = word.Text("ReadText", 0, 0)
    If text <> "" AndAlso Not text.Contains("<<") Then word.Ask("SaveDoc", output)
    ' Word asks about changes when it quits, not when a document is closed without them.
    word.Ask("CloseDoc", 0)
    ' Saving has no result.
    If Not File.Exists(output) Then Throw New IOException("the letter is not filled, or cannot be saved")
    Console.WriteLine("saved " & Path.GetFileName(output))
  End Sub

  Sub Fill(word As Control, field As String, value As String)
    Const all_of_them = 2
    ' A "^" begins a code of Word's.
    word.Ask("Replace", field, value.Replace("^", "^^"), 1, True, True, False, False, False, False, False, all_of_them)
  End Sub

  Sub Table(word As Control, document As String)
    If word.Number("OpenDoc", document) <> 1 Then Throw New IOException("the document cannot be opened")
    Dim found = word.Number("Search", "Article") = 1
    Do While found AndAlso word.Number("InTable") = 1
      Dim cells As New List(Of String)
      For cell = 1 To word.Number("CellCount")
        ' A cell's text ends in its end mark, and holds paragraph marks in between.
        cells.Add(word.Text("CellText", cell).Replace(vbCr & Chr(7), "").Replace(vbCr, " "))
      Next
      Console.WriteLine(String.Join(" | ", cells))
      ' Behind a row that is selected as a whole lies the next one, or the text after the table.
      word.Ask("SelectRow")
      word.Ask("CursorRight", 1)
    Loop
    word.Ask("CloseDoc", 0)
    If Not found Then Throw New IOException("the document has no price table")
  End Sub
End Module
