' Writes one letter for each customer of a list with ZORBWord, and reads each with OpenWriter to find the customer's name in it:
'   cscript letters.vbs TEMPLATE LIST FOLDER PDF-FOLDER
' LIST is a CSV file in the system's code page whose first line names the template's fields: <<Name>> takes the column Name.
' FOLDER gets letter-NUMBER.docx, and PDF-FOLDER, where the PDF printer writes, letter-NUMBER.pdf. Letters that are there
' are left alone; one that a broken run left half-written is written anew.
Option Explicit

Const all_of_them = 2      ' ReplaceOption: every occurrence
Const primary_header = 1   ' HeaderFooterType

Dim files, word, writer, template, folder, pdf_folder, lines, fields, customers, line, count, written, i

If WScript.Arguments.Count <> 4 Then Fail "usage: cscript letters.vbs TEMPLATE LIST FOLDER PDF-FOLDER"
Set files = CreateObject("Scripting.FileSystemObject")
template = files.GetAbsolutePathName(WScript.Arguments(0))
folder = files.GetAbsolutePathName(WScript.Arguments(2)) & "\"
pdf_folder = files.GetAbsolutePathName(WScript.Arguments(3)) & "\"
Set lines = files.OpenTextFile(WScript.Arguments(1), 1)
fields = Columns(lines.ReadLine)
count = 0
ReDim customers(0)
Do Until lines.AtEndOfStream
  line = lines.ReadLine
  If line <> "" Then
    ReDim Preserve customers(count)
    customers(count) = Columns(line)
    If UBound(customers(count)) <> UBound(fields) Then Fail "a line of the list has not as many columns as the first: " & line
    count = count + 1
  End If
Loop
lines.Close

Set word = CreateObject("ZORBOffice.ZORBWord")
If word.Start <> 1 Then Fail "the word processor does not start"
word.SetScreenUpdating False
written = 0
For i = 0 To count - 1
  If WriteLetter(customers(i)) Then written = written + 1
  WScript.Echo CStr(i + 1) & " of " & count & ": written " & customers(i)(0)
Next
word.StopWord False
Set word = Nothing
WScript.Echo written & " letters written, " & (count - written) & " were there"

Set writer = CreateObject("ZORBOffice.OpenWriter")
If writer.Start <> 1 Then Fail "the office suite does not start"
For i = 0 To count - 1
  If writer.OpenDoc(folder & "letter-" & customers(i)(0) & ".docx") <> 1 Then Fail "OpenWriter cannot open letter " & customers(i)(0)
  If InStr(writer.ReadText(0, 0), customers(i)(1)) = 0 Then Fail "OpenWriter does not find " & customers(i)(1) & " in the letter"
  WScript.Echo CStr(i + 1) & " of " & count & ": read " & customers(i)(0)
Next
WScript.Echo count & " letters read, each with its customer's name"
WScript.Echo "letters.vbs: done"

' The document gets its final name last: where that file is, the letter is whole.
Function WriteLetter(customer)
  Dim name, unfinished, column
  WriteLetter = False
  name = "letter-" & customer(0)
  If files.FileExists(folder & name & ".docx") And files.FileExists(pdf_folder & name & ".pdf") Then Exit Function
  unfinished = name & "-unfinished"
  RemoveFile folder & unfinished & ".docx"
  RemoveFile pdf_folder & unfinished & ".pdf"

  If word.CreateDoc(template) <> 1 Then Fail "the template cannot be opened"
  For column = 0 To UBound(fields)
    Fill "<<" & fields(column) & ">>", customer(column)
  Next
  CheckNoneIsLeft word.ReadText(0, 0)
  CheckNoneIsLeft word.ReadHeaderFooterText(1, True, primary_header, 0, 0)
  CheckNoneIsLeft word.ReadHeaderFooterText(1, False, primary_header, 0, 0)

  word.SaveDoc folder & unfinished & ".docx"
  If Not word.SaveDocAsPDF Then Fail "no printer's name contains PDF"
  WaitForPrint pdf_folder & unfinished & ".pdf"
  word.CloseDoc 0
  RemoveFile folder & name & ".docx"
  RemoveFile pdf_folder & name & ".pdf"
  files.MoveFile pdf_folder & unfinished & ".pdf", pdf_folder & name & ".pdf"
  files.MoveFile folder & unfinished & ".docx", folder & name & ".docx"
  WriteLetter = True
End Function

' A field may stand in the text, in the table, in the header and in the footer, and need not stand in each.
Sub Fill(field, text)
  Dim value
  value = Replace(text, "^", "^^")
  word.Replace field, value, 1, True, True, False, False, False, False, False, all_of_them
  word.ReplaceHeaderFooter 1, True, primary_header, field, value, 1, True, True, False, False, False, False, False, all_of_them
  word.ReplaceHeaderFooter 1, False, primary_header, field, value, 1, True, True, False, False, False, False, False, all_of_them
End Sub

Sub WaitForPrint(path)
  Dim started
  started = Timer
  Do Until word.IsPrinting = 0 And SizeOf(path) > 0
    If Abs(Timer - started) > 120 Then Fail "the printing does not end"
  Loop
End Sub

Function SizeOf(path)
  SizeOf = 0
  If files.FileExists(path) Then SizeOf = files.GetFile(path).Size
End Function

' What cannot be read is empty; a letter never is.
Sub CheckNoneIsLeft(text)
  If text = "" Then Fail "a part of the letter cannot be read"
  If InStr(text, "<<") > 0 Then Fail "a field is left: " & Mid(text, InStr(text, "<<"), 30)
End Sub

Sub RemoveFile(path)
  If files.FileExists(path) Then files.DeleteFile path
End Sub

' The columns of a line; a column in quotes may hold commas, and quotes written twice.
Function Columns(line)
  Dim list, position, character, quoted, last
  ReDim list(0)
  last = 0
  quoted = False
  position = 1
  Do While position <= Len(line)
    character = Mid(line, position, 1)
    If character = """" And quoted And Mid(line, position + 1, 1) = """" Then
      list(last) = list(last) & character
      position = position + 1
    ElseIf character = """" Then
      quoted = Not quoted
    ElseIf character = "," And Not quoted Then
      last = last + 1
      ReDim Preserve list(last)
    Else
      list(last) = list(last) & character
    End If
    position = position + 1
  Loop
  Columns = list
End Function

' Nothing is left open: the next run writes the same files.
Sub Fail(reason)
  WScript.Echo "letters.vbs: " & reason
  If IsObject(word) Then
    On Error Resume Next
    word.CloseDoc 0
    word.StopWord True
  End If
  WScript.Quit 1
End Sub
