' Lists the appointments that begin on a day, tomorrow if none is named:
'   cscript //nologo appointments.vbs [DAY]      (as 2026-11-23)
Option Explicit

Dim outlook, wanted, found, begins, lines(), count, i
If WScript.Arguments.Count > 0 Then wanted = WScript.Arguments(0) Else wanted = Written(Date + 1)
count = 0

Set outlook = CreateObject("ZORBOffice.ZORBOutlook")
If Not outlook.StartOutlook Then Fail outlook.GetLastErrorDescription
' A series is one item, which begins when the series does.
If Not outlook.InitItems("Appointment", "[Start] <= '" & wanted & " 23:59' AND ([Start] >= '" & wanted & _
  " 00:00' OR [IsRecurring] = True)") Then Fail outlook.GetLastErrorDescription
found = outlook.GetFirstItem("Appointment")
Do While found
  begins = True
  If outlook.GetAppointmentProperty("IsRecurring") = "True" Then
    begins = outlook.GetAppointmentInstance(wanted & " " & StartTime)
  End If
  ' An occurrence that was moved may answer to the day that it had.
  If begins And StartDay = wanted Then Insert StartTime & " " & outlook.GetAppointmentProperty("Subject")
  found = outlook.GetNextItem("Appointment")
Loop
For i = 0 To count - 1
  WScript.Echo lines(i)
Next

' Dates and times read with the separators of the user's settings: only the digits are sure.
Function StartDay
  Dim read
  read = outlook.GetAppointmentProperty("StartDate")
  StartDay = Mid(read, 7, 4) & "-" & Mid(read, 4, 2) & "-" & Left(read, 2)
End Function

Function StartTime
  Dim read
  read = outlook.GetAppointmentProperty("StartTime")
  StartTime = Left(read, 2) & ":" & Mid(read, 4, 2)
End Function

Function Written(day_of_year)
  Written = Year(day_of_year) & "-" & Right("0" & Month(day_of_year), 2) & "-" & Right("0" & Day(day_of_year), 2)
End Function

' Keeps the lines in order: the control gives series by the day of their first occurrence.
Sub Insert(line)
  Dim i
  ReDim Preserve lines(count)
  For i = count To 1 Step -1
    If lines(i - 1) <= line Then Exit For
    lines(i) = lines(i - 1)
  Next
  lines(i) = line
  count = count + 1
End Sub

Sub Fail(reason)
  WScript.Echo reason
  WScript.Quit 1
End Sub
