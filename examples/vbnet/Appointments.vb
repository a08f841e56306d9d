Option Strict On
Option Infer On
Imports System
Imports System.Collections.Generic

Module AppointmentsJob
  Sub Appointments(day As String)
    Dim outlook As New Control("ZORBOffice.ZORBOutlook")
    ' A series is one item, which begins when the series does.
    Dim condition = $"[Start] <= '{day} 23:59' AND ([Start] >= '{day} 00:00' OR [IsRecurring] = True)"
    If Not outlook.Flag("StartOutlook") OrElse Not outlook.Flag("InitItems", "Appointment", condition) Then
      Throw New InvalidOperationException(outlook.Text("GetLastErrorDescription"))
    End If
    Dim lines As New List(Of String)
    Dim found = outlook.Flag("GetFirstItem", "Appointment")
    Do While found
      Dim begins = True
      If outlook.Text("GetAppointmentProperty", "IsRecurring") = "True" Then
        begins = outlook.Flag("GetAppointmentInstance", $"{day} {StartTime(outlook)}")
      End If
      ' An occurrence that was moved may answer to the day that it had.
      If begins AndAlso StartDay(outlook) = day Then
        lines.Add($"{StartTime(outlook)} {outlook.Text("GetAppointmentProperty", "Subject")}")
      End If
      found = outlook.Flag("GetNextItem", "Appointment")
    Loop
    ' The control gives series by the day of their first occurrence.
    lines.Sort(StringComparer.Ordinal)
    lines.ForEach(AddressOf Console.WriteLine)
  End Sub

  ' Dates and times read with the separators of the user's settings: only the digits are sure.
  Function StartDay(outlook As Control) As String
    Dim digits = outlook.Text("GetAppointmentProperty", "StartDate")
    Return $"{digits.Substring(6, 4)}-{digits.Substring(3, 2)}-{digits.Substring(0, 2)}"
  End Function

  Function StartTime(outlook As Control) As String
    Dim digits = outlook.Text("GetAppointmentProperty", "StartTime")
    Return $"{digits.Substring(0, 2)}:{digits.Substring(3, 2)}"
  End Function
End Module
