' Adds two weekly series to the stand-in's calendar, and to nobody else's. A file cannot bring series.
Option Explicit
Dim outlook
If CreateObject("Outlook.Application").Name <> "Stand-in for Outlook" Then WScript.Quit 1
Set outlook = CreateObject("ZORBOffice.ZORBOutlook")
outlook.StartOutlook
Weekly "Team meeting", "2026-11-02 09:00"
' Its meeting of 23 November has been moved to the next day.
Weekly "Canteen committee", "2026-11-09 12:00"
If outlook.GetAppointmentInstance("2026-11-23 12:00") Then
  outlook.SetAppointmentProperty "Start", "2026-11-24 12:00"
  If outlook.SaveItem("Appointment") Then WScript.Echo "series.vbs: done"
End If

Sub Weekly(subject, start)
  outlook.CreateItem "Appointment"
  outlook.SetAppointmentProperty "Subject", subject
  outlook.SetAppointmentProperty "Start", start
  outlook.GetRecurrencePattern
  outlook.SetRecurrenceProperty "RecurrenceType", "1"
  outlook.SetRecurrenceProperty "Occurrences", "8"
  outlook.SaveItem "Appointment"
End Sub
