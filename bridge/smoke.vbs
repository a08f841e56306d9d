' Drives both object models of the bridge as any client would, as far as the tests of the controls do not. Its last line is
' "smoke.vbs: done" only if every check held: Wine's script host ends without a word, and with exit code 0, at an error that
' nobody handles.
'   cscript //nologo smoke.vbs FOLDER PDF-FOLDER      (Windows paths; the second as given to script/bridge)
Option Explicit
Dim folder, pdf_folder, files, fails, smiley, third, word, document, selection, texts, each_one
Dim manager, desktop, component, table, part, style, store_as, header, copied, missing
folder = WScript.Arguments(0) & "\"
pdf_folder = WScript.Arguments(1) & "\"
Set files = CreateObject("Scripting.FileSystemObject")
fails = 0

Sub Check(what, got, wanted)
  If got = wanted Then Exit Sub
  fails = fails + 1
  WScript.Echo Replace("FAILED " & what & ": '" & got & "', not '" & wanted & "'", vbCr, "|")
End Sub

' A failure is checked by its number: CheckFailure goes right behind the call, under On Error Resume Next.
Sub CheckFailure(what, wanted)
  Dim number
  number = Err.Number
  Err.Clear
  Check what, CStr(number), CStr(wanted)
End Sub

Sub Remove(path)
  If files.FileExists(path) Then files.DeleteFile path
End Sub

' The word processor: write.
Remove folder & "smoke.docx"
Remove pdf_folder & "smoke.pdf"
With CreateObject("MSScriptControl.ScriptControl")
  .Language = "JScript"
  smiley = .Eval("'\uD83D\uDE00'")
End With
third = "Third" & vbVerticalTab & "broken"
Set word = CreateObject("Word.Application")
Set document = word.Documents.Add("")
Set selection = document.ActiveWindow.Selection
selection.TypeText "First line" & vbCr & "Second " & smiley & vbCrLf & third
Check "typed", document.Range().Text, "First line" & vbCr & "Second " & smiley & vbCr & third & vbCr
Check "range's default member", document.Range(6, 13), "line" & vbCr & "Se"
Check "insertion point reads on", selection.Text, vbCr

' Move and select.
selection.GoTo 3, 1, 2
Check "second line", selection.Start, 11
Check "right", selection.MoveRight(1, 3, 0), 3
Check "extend", selection.MoveRight(1, 2, 1) & selection.Text, "2on"
selection.TypeText "ON"
Check "start of paragraph", selection.StartOf(4, 0), -5
Check "end of paragraph", selection.EndOf(4, 0), 10
Check "move two paragraphs back", selection.Move(4, -2), -2

' Save, print, close, open again.
document.SaveAs folder & "smoke.docx"
Check "name", document.Name, "smoke.docx"
word.ActivePrinter = "ZORBOffice PDF"
document.PrintOut
Check "PDF", files.OpenTextFile(pdf_folder & "smoke.pdf").Read(5), "%PDF-"
document.Close 0, 1, False
Check "closed", word.Documents.Count, 0
Set document = word.Documents.Open(UCase(folder) & "SMOKE.docx")
Check "opened again", document.Range().Text, "First line" & vbCr & "SecONd " & smiley & vbCr & third & vbCr

' The suite: load with an empty array, write, read, close.
Set manager = CreateObject("com.sun.star.ServiceManager")
Set desktop = manager.createInstance("com.sun.star.frame.Desktop")
Set component = desktop.loadComponentFromURL("private:factory/swriter", "_blank", 0, Array())
component.getText().setString "In the suite " & smiley
Check "suite's text", component.GetText().GetString(), "In the suite " & smiley
' A letter with a table, for the word processor.
Set table = component.createInstance("com.sun.star.text.TextTable")
table.initialize 2, 2
component.getText().setString "Dear NAME," & vbLf & "name and Name."
component.getText().insertTextContent component.getText().getEnd(), table, False
For Each part In table.getCellNames()
  table.getCellByName(part).setString "NAME " & part
Next
Set style = component.getStyleFamilies().getByName("PageStyles").getByName("Standard")
style.HeaderIsOn = True
style.HeaderText.setString "Head of NAME"
Set part = style.HeaderText.createTextCursor()
part.gotoEnd True
part.CharWeight = 150
Set store_as = manager.Bridge_GetStruct("com.sun.star.beans.PropertyValue")
store_as.Name = "FilterName"
store_as.Value = "MS Word 2007 XML"
Remove folder & "letter.docx"
component.storeToURL "file:///" & Replace(folder, "\", "/") & "letter.docx", Array(store_as)
component.close True

' Search: settings stay with the selection; every hit is selected, and one that reaches over cells is none.
Set document = word.Documents.Open(folder & "letter.docx")
Set selection = document.ActiveWindow.Selection
selection.HomeKey 6
With selection.Find
  .ClearFormatting
  .Text = "name"
  .MatchCase = False
  .MatchWholeWord = True
  .Wrap = 0
End With
texts = ""
Do While selection.Find.Execute()
  texts = texts & selection.Start & selection.Text & " "
Loop
Check "hits", texts, "5NAME 11name 20Name 26NAME 34NAME 43NAME 51NAME "
Check "no hit", selection.Find.Execute("A1*B1", False, False, True), False

document.Tables(1).Cell(1, 2).Range.Select
texts = ""
Do While selection.Information(12) And Len(texts) < 40
  texts = texts & Left(selection.Rows(1).Cells(1).Range.Text, 7) & " "
  selection.SelectRow
  selection.MoveRight 1, 1
Loop
Check "row by row", texts, "NAME A1 NAME A2 "
selection.HomeKey 6
Check "tables", document.Tables.Count & document.Tables(1).Cell(2, 1).Range.Text, "1NAME A2" & vbCr & Chr(7)
document.Tables(1).Cell(1, 1).Range.Select
selection.SelectRow
selection.MoveRight
Check "behind a row", selection.Start, document.Tables(1).Cell(2, 1).Range.Start

' Replace all, in the table too, by a text with marks.
Check "all", selection.Find.Execute("name", False, False, False, False, False, True, 1, False, "<^&^t>", 2), True
texts = "Dear <NAME*>,!<name*> and <Name*>.!<NAME*> A1/<NAME*> B1//<NAME*> A2/<NAME*> B2//!"
texts = Replace(Replace(Replace(texts, "!", vbCr), "*", vbTab), "/", vbCr & Chr(7))
Check "replaced all", Replace(document.Range().Text, vbVerticalTab, vbCr), texts

' Sections, headers and footers: what was replaced in the main text was not in them.
Set part = document.Sections(1)
Set header = part.Headers(1).Range
Check "header", header.Text, "Head of NAME" & vbCr
Check "in the header", header.Find.Execute("name", , , , , , , 1, , "Customer", 2), True
Check "no footer yet", part.Footers(1).Exists & part.Footers(1).Range.Text, "True" & vbCr
part.Footers(1).Range.Text = "Foot"
Check "first page", part.Headers(2).Exists & document.PageSetup.DifferentFirstPageHeaderFooter, "False0"
document.PageSetup.DifferentFirstPageHeaderFooter = -1
part.Headers(2).Range.Text = "First"
Check "its own", part.Headers(2).Exists & part.Headers(1).Range.Text, "TrueHead of Customer" & vbCr
document.Save
document.Close 0

' From one document into another: a header with its formatting, and the normal style's font.
Set document = word.Documents.Open(folder & "letter.docx", , True)
Set copied = word.NormalTemplate.OpenAsDocument()
Set part = document.Sections(1)
Check "saved", part.Headers(2).Range.Text & part.Footers(1).Range.Text, "First" & vbCr & "Foot" & vbCr
Set header = copied.Sections(1).Headers(1).Range
Set header.FormattedText = part.Headers(1).Range.FormattedText
header.Find.Execute "Customer", , , , , , , , , "Somebody", 1
Set copied.Styles(-1).Font = document.Styles(-1).Font
With copied.Styles(-1).Font
  .Name = "Liberation Mono"
  .Size = 10.5
  .Bold = -1
End With
Remove folder & "copied.docx"
copied.SaveAs folder & "copied.docx"
copied.Close 0
document.Close 0
Set copied = word.Documents.Open(folder & "copied.docx")
Check "copied header", copied.Sections(1).Headers(1).Range.Text, "Head of Somebody" & vbCr
With copied.Styles("Normal").Font
  Check "font", .Name & .Size & .Bold & .Italic, "Liberation Mono10.5-10"
End With
Check "template", copied.AttachedTemplate, "Normal.dotx"
copied.Close 0
store_as.Name = "Hidden"
store_as.Value = True
each_one = "file:///" & Replace(folder, "\", "/") & "copied.docx"
Set component = desktop.loadComponentFromURL(each_one, "_blank", 0, Array(store_as))
Set style = component.getStyleFamilies().getByName("PageStyles").getByName("Standard")
Check "copied formatting", style.HeaderText.createTextCursor().CharWeight, 150
component.close True

' Failures come as the office programs number them.
On Error Resume Next
each_one = document.NoSuchMember
CheckFailure "unknown member", 438
document.Range 0, 9999
CheckFailure "range beyond the end", 4608
word.Documents.Open folder & "missing.docx"
CheckFailure "missing file", 5174
Set document = word.Documents.Add("")
document.Range.Find.Execute "(", False, False, True
CheckFailure "open group", 5560
Set missing = document.Sections(1).Headers(3).Range
CheckFailure "no header for even pages", 5941
word.ActivePrinter = ""
document.PrintOut
CheckFailure "no printer", 5216
component.getText
CheckFailure "disposed component", -2147352567
word.Quit
each_one = word.Version
CheckFailure "after Quit", 462
If fails = 0 Then WScript.Echo "smoke.vbs: done"
