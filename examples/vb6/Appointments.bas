Attribute VB_Name = "AppointmentsJob"
Option Explicit

' The lines of the appointments that begin on a day (as 2026-11-23).
Public Function Appointments(ByVal outlook As ZORBOffice50.ZORBOutlook, ByVal wanted As String) As String
  Dim found As Boolean, begins As Boolean
  ' A series is one item, which begins when the series does.
  If Not outlook.InitItems("Appointment", "[Start] <= '" & wanted & " 23:59' AND ([Start] >= '" & wanted & _
    " 00:00' OR [IsRecurring] = True)") Then
    Err.Raise vbObjectError + 513, "Appointments", outlook.GetLastErrorDescription
  End If
  found = outlook.GetFirstItem("Appointment")
  Do While found
    begins = True
    If outlook.GetAppointmentProperty("IsRecurring") = "True" Then
      begins = outlook.GetAppointmentInstance(wanted & " " & StartTime(outlook))
    End If
    ' An occurrence that was moved may answer to the day that it had.
    If begins And StartDay(outlook) = wanted Then
      Appointments = Inserted(Appointments, StartTime(outlook) & " " & outlook.GetAppointmentProperty("Subject"))
    End If
    found = outlook.GetNextItem("Appointment")
  Loop
End Function

' Dates and times read with the separators of the user's settings: only the digits are sure.
Private Function StartDay(ByVal outlook As ZORBOffice50.ZORBOutlook) As String
  Dim digits As String
  digits = outlook.GetAppointmentProperty("StartDate")
  StartDay = Mid(digits, 7, 4) & "-" & Mid(digits, 4, 2) & "-" & Left(digits, 2)
End Function

Private Function StartTime(ByVal outlook As ZORBOffice50.ZORBOutlook) As String
  Dim digits As String
  digits = outlook.GetAppointmentProperty("StartTime")
  StartTime = Left(digits, 2) & ":" & Mid(digits, 4, 2)
End Function

' The lines with one more, in order: the control gives series by the day of their first occurrence.
Private Function Inserted(ByVal whole As String, ByVal entry As String) As String
  Dim each_one As Variant
  For Each each_one In Split(whole, vbCrLf)
    If entry <> "" And each_one > entry Then
      Inserted = Inserted & entry & vbCrLf
      entry = ""
    End If
    If each_one <> "" Then Inserted = Inserted & each_one & vbCrLf
  Next
  If entry <> "" Then Inserted = Inserted & entry & vbCrLf
End Function
