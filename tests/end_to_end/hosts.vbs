' Drives ZORBWord and writes what each member answered. Every host must write the same lines.
Dim word, units, path, special, i
path = WScript.Arguments(0) & "\vbs.docx"
special = WScript.Arguments(1)

Set word = CreateObject("ZORBOffice.ZORBWord")
Say "Start", word.Start
Say "CreateDoc", word.CreateDoc
Say "SendText", word.SendText("One two " & special & " three")
Say "CursorLeft", word.CursorLeft(5, 1, 1)
Say "SelectionText", word.SelectionText
Say "Cut", word.Cut
Say "ReadText", word.ReadText(0, 0)
Say "Paste", word.Paste
Say "ReadText", word.ReadText(1, 3)
units = "3"
Say "CursorLeft", word.cursorleft(units, , 0)
Say "SendText", word.SendText("-")
Say "ReadText", word.ReadText(0, 0)
Say "GotoLine", word.GotoLine(1)
Say "SelectParagraph", word.SelectParagraph
Say "SelectionText", word.SelectionText
Say "SaveDoc", word.SaveDoc(path)
Say "CloseDoc", word.CloseDoc
Say "OpenDoc", word.OpenDoc(path)
Say "ReadText", word.ReadText(0, 0)
Say "IsPrinting", word.IsPrinting
Say "CloseDoc", word.CloseDoc(0)
Say "GotoLine", word.GotoLine(1)
Say "StopWord", word.StopWord(False)
On Error Resume Next
i = word.NumberOfSections
Say "NumberOfSections", Err.Number & " " & Err.Description
Err.Clear
word.StopWord True
Say "StopWord", Err.Number & " " & Err.Description
On Error Goto 0
Say "GetLastErrorNumber", word.GetLastErrorNumber
Say "GetLastErrorDescription", word.GetLastErrorDescription
WScript.Echo "hosts.vbs: done"

Sub Say(member, answer)
  If VarType(answer) = vbBoolean Then answer = CInt(answer)
  WScript.Echo member & ": " & Replace(Replace(answer, vbCr, "\r"), special, "<special>")
End Sub
