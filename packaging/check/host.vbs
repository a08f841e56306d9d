' Creates the three controls and asks each for its last error.
Dim said, name, control
For Each name In Array("ZORBWord", "ZORBOutlook", "OpenWriter")
  Set control = CreateObject("ZORBOffice." & name)
  If said <> "" Then said = said & ", "
  said = said & name & " " & control.GetLastErrorNumber
Next
WScript.Echo said
