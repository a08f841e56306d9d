Attribute VB_Name = "AppointmentsJob"
Option Explicit

Private outlook As ZORBOffice50.ZORBOutlook
Private lines() As String
Private count As Long

' Lists the appointments that begin on a day, tomorrow if it is empty. In the Immediate window:
'   Appointments "2026-11-23"
Public Sub Appointments(ByVal wanted As String)
  Dim found As Boolean, begins As Boolean, i As Long
  If wanted = "" Then wanted = Format(Date + 1, "yyyy-mm-dd")
  count = 0
  Set outlook = New ZORBOffice50.ZORBOutlook
  If Not outlook.StartOutlook Then Fail
  ' A series is one item, which begins when the series does.
  If Not outlook.InitItems("Appointment", "[Start] <= '" & wanted & " 23:59' AND ([Start] >= '" & wanted & _
    " 00:00' OR [IsRecurring] = True)") Then Fail
  found = outlook.GetFirstItem("Appointment")
  Do While found
    begins = True
    If outlook.GetAppointmentProperty("IsRecurring") = "True" Then
      begins = outlook.GetAppointmentInstance(wanted & " " & StartTime())
    End If
    ' An occurrence that was moved may answer to the day that it had.
    If begins And StartDay() = wanted Then Insert StartTime() & " " & outlook.GetAppointmentProperty("Subject")
    found = outlook.GetNextItem("Appointment")
  Loop
  For i = 0 To count - 1
    Debug.Print lines(i)
  Next
End Sub

' Dates and times read with the separators of the user's settings: only the digits are sure.
Private Function StartDay() As String
  Dim digits As String
  digits = outlook.GetAppointmentProperty("StartDate")
  StartDay = Mid(digits, 7, 4) & "-" & Mid(digits, 4, 2) & "-" & Left(digits, 2)
End Function

Private Function StartTime() As String
  Dim digits As String
  digits = outlook.GetAppointmentProperty("StartTime")
  StartTime = Left(digits, 2) & ":" & Mid(digits, 4, 2)
End Function

' Keeps the lines in order: the control gives series by the day of their first occurrence.
Private Sub Insert(ByVal entry As String)
  Dim i As Long
  ReDim Preserve lines(count)
  For i = count To 1 Step -1
    If lines(i - 1) <= entry Then Exit For
    lines(i) = lines(i - 1)
  Next
  lines(i) = entry
  count = count + 1
End Sub

Private Sub Fail()
  Err.Raise vbObjectError + 513, "Appointments", outlook.GetLastErrorDescription
End Sub
