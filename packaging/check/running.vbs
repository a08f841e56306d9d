' Says in a file whether a program runs already: running.vbs PROGRAM FILE. Only VBScript can ask that.
Dim found, files
On Error Resume Next
Set found = GetObject(, WScript.Arguments(0))
Set files = CreateObject("Scripting.FileSystemObject").CreateTextFile(WScript.Arguments(1), True)
If Err.Number = 429 Then files.Write "no" Else files.Write "yes, or not known: " & Err.Number
files.Close
