' Times a walk through every mail of the inbox: walk.vbs
' The last line but one: ITEMS SECONDS
Option Explicit
Dim outlook, started, found
Set outlook = CreateObject("ZORBOffice.ZORBOutlook")
If Not outlook.StartOutlook Then Fail "Outlook does not start"
If Not outlook.InitItems("Email", "") Then Fail "the inbox cannot be read"

started = Timer
found = outlook.GetFirstItem("Email")
Do While found
  found = outlook.GetNextItem("Email")
Loop
WScript.Echo outlook.GetItemCount("Email") & " " & (Timer - started)
If outlook.GetLastErrorDescription <> "" Then Fail "the walk failed: " & outlook.GetLastErrorDescription
WScript.Echo "walk.vbs: done"

Sub Fail(reason)
  WScript.Echo "walk.vbs: " & reason
  WScript.Quit 1
End Sub
