' Times one job, without the start of the word processor: job.vbs HOW DOCUMENT COPY
' It opens DOCUMENT, searches and replaces fifty times each, reads two hundred cells, and saves a COPY. HOW is
'   library     ZORBWord does it
'   calls       the same calls, each written out, as ZORBWord makes them
'   variables   as an experienced author writes them: objects that are used again are held
' The last line but one: SECONDS
Option Explicit
Const searched = "Payable"
Dim word, started, how, document, i, text
how = WScript.Arguments(0)
If how = "library" Then
  Set word = CreateObject("ZORBOffice.ZORBWord")
  If word.Start <> 1 Then Fail "the word processor does not start"
Else
  Set word = CreateObject("Word.Application")
End If
started = Timer
Select Case how
  Case "library" WithLibrary
  Case "calls" WithCalls
  Case "variables" WithVariables
  Case Else Fail "how?"
End Select
started = Timer - started
If text = "" Then Fail "no cell was read"
If how = "library" Then
  word.CloseDoc 0
  word.StopWord True
Else
  document.Close 0
  word.Quit
End If
WScript.Echo started
WScript.Echo "job.vbs: done"

Sub WithLibrary
  If word.OpenDoc(WScript.Arguments(1)) <> 1 Then Fail "the document cannot be opened"
  For i = 1 To 50
    If word.Search(searched) <> 1 Then Fail "nothing found"
  Next
  For i = 1 To 50
    If word.Replace(searched, searched) <> 1 Then Fail "nothing replaced"
  Next
  For i = 1 To 200
    text = word.CellText(1 + i Mod 3)
  Next
  word.SaveDoc WScript.Arguments(2)
End Sub

Sub WithCalls
  Dim selected
  Set document = word.Documents.Open(WScript.Arguments(1))
  For i = 1 To 50
    Set selected = document.ActiveWindow.Selection
    selected.Find.ClearFormatting
    selected.Find.Text = searched
    selected.Find.Forward = True
    selected.Find.Wrap = 1
    selected.Find.Format = False
    selected.Find.MatchCase = False
    selected.Find.MatchWholeWord = False
    selected.Find.MatchWildcards = False
    selected.Find.MatchSoundsLike = False
    selected.Find.MatchAllWordForms = False
    If Not selected.Find.Execute Then Fail "nothing found"
  Next
  For i = 1 To 50
    If Not document.ActiveWindow.Selection.Find.Execute(searched, False, False, False, False, False, True, 1, False, _
        searched, 1) Then Fail "nothing replaced"
  Next
  For i = 1 To 200
    text = document.ActiveWindow.Selection.Rows(1).Cells(1 + i Mod 3).Range.Text
  Next
  document.SaveAs WScript.Arguments(2)
End Sub

Sub WithVariables
  Dim find, cells
  Set document = word.Documents.Open(WScript.Arguments(1))
  Set find = document.ActiveWindow.Selection.Find
  find.ClearFormatting
  For i = 1 To 50
    find.Text = searched
    find.Forward = True
    find.Wrap = 1
    If Not find.Execute Then Fail "nothing found"
  Next
  For i = 1 To 50
    If Not find.Execute(searched, False, False, False, False, False, True, 1, False, searched, 1) Then
      Fail "nothing replaced"
    End If
  Next
  Set cells = document.ActiveWindow.Selection.Rows(1).Cells
  For i = 1 To 200
    text = cells(1 + i Mod 3).Range.Text
  Next
  document.SaveAs WScript.Arguments(2)
End Sub

Sub Fail(reason)
  WScript.Echo "job.vbs: " & reason
  WScript.Quit 1
End Sub
