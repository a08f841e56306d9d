' Opens a dialog in the Word that runs, for four seconds, and says in a file how that went: busy.vbs FILE
Dim application, files, result
On Error Resume Next
Set application = GetObject(, "Word.Application")
If Err.Number = 0 Then application.Visible = True
If Err.Number = 0 Then result = application.Dialogs(228).Display(4000)
Set files = CreateObject("Scripting.FileSystemObject").CreateTextFile(WScript.Arguments(0), True)
If Err.Number = 0 Then files.Write "closed with " & result Else files.Write "not shown: " & Err.Number
files.Close
