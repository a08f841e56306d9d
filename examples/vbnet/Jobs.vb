' The three jobs, late bound: neither a reference nor an interop assembly is needed.
Option Strict Off
Imports System
Imports System.Collections.Generic
Imports System.IO
Imports Microsoft.VisualBasic

Module Jobs
  ' The controls belong to the thread that creates them, which has to have an apartment of its own.
  <STAThread> Function Main(arguments As String()) As Integer
    Try
      Select Case If(arguments.Length = 0, "", arguments(0)) & arguments.Length
        Case "letter4" : WithWord(Sub(word) Letter(word, Path.GetFullPath(arguments(1)), Path.GetFullPath(arguments(2)), arguments(3)))
        Case "table2" : WithWord(Sub(word) Table(word, Path.GetFullPath(arguments(1))))
        Case "appointments1" : Appointments(Date.Today.AddDays(1).ToString("yyyy'-'MM'-'dd"))
        Case "appointments2" : Appointments(arguments(1))
        Case Else : Throw New ArgumentException("usage: Jobs letter TEMPLATE OUTPUT NAME | table DOCUMENT | appointments [DAY]")
      End Select
      Return 0
    Catch failure As Exception
      Console.Error.WriteLine(failure.Message)
      Return 1
    End Try
  End Function

  Sub WithWord(job As Action(Of Object))
    Dim word As Object = CreateObject("ZORBOffice.ZORBWord")
    Dim started = word.Start = 1
    Try
      If Not started Then Throw New InvalidOperationException("Word does not start")
      job(word)
    Finally
      ' Word stays behind unless it is told to quit.
      If started Then word.StopWord(True)
    End Try
  End Sub

  Sub Letter(word As Object, template As String, output As String, name As String)
    If File.Exists(output) Then Throw New IOException(output & " exists")
    If word.CreateDoc(template) <> 1 Then Throw New IOException("the template cannot be opened")
    Fill(word, "<<Name>>", name)
    Fill(word, "<<Order>>", "12 boxes of paper, EUR 49.90 each")
    If Not word.ReadText(0, 0).Contains("<<") Then word.SaveDoc(output)
    ' Word asks about changes when it quits, not when a document is closed without them.
    word.CloseDoc(0)
    ' Saving has no result.
    If Not File.Exists(output) Then Throw New IOException("the letter is not filled, or cannot be saved")
    Console.WriteLine("saved " & Path.GetFileName(output))
  End Sub

  Sub Fill(word As Object, field As String, value As String)
    ' A "^" begins a code of Word's.
    word.Replace(field, value.Replace("^", "^^"), ReplaceOption:=2)
  End Sub

  Sub Table(word As Object, document As String)
    If word.OpenDoc(document) <> 1 Then Throw New IOException("the document cannot be opened")
    Dim found = word.Search("Article") = 1
    Do While found AndAlso word.InTable = 1
      Dim cells As New List(Of String)
      For cell = 1 To word.CellCount
        ' A cell's text ends in its end mark, and holds paragraph marks in between.
        cells.Add(word.CellText(cell).Replace(vbCr & Chr(7), "").Replace(vbCr, " "))
      Next
      Console.WriteLine(String.Join(" | ", cells))
      ' Behind a row that is selected as a whole lies the next one, or the text after the table.
      word.SelectRow()
      word.CursorRight(1)
    Loop
    word.CloseDoc(0)
    If Not found Then Throw New IOException("the document has no price table")
  End Sub
End Module
