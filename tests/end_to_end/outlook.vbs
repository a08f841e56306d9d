' Tells what a host left in the mailbox, asking Outlook's own object model:
'   cscript outlook.vbs FOLDER      (FOLDER gets the attachments of the sent mails)
Option Explicit
Const deleted_items = 3, sent_items = 5, inbox = 6, calendar = 9
Dim mapi, item, part, text, pattern, each_day, occurrence
Set mapi = CreateObject("Outlook.Application").GetNamespace("MAPI")

For Each item In mapi.GetDefaultFolder(sent_items).Items
  text = item.Subject & "|" & item.To & "|" & item.CC & "|" & item.Body & "|"
  For Each part In item.Attachments
    part.SaveAsFile WScript.Arguments(0) & "\sent-" & item.Attachments.Count & "-" & part.FileName
    text = text & part.FileName & " "
  Next
  WScript.Echo text
Next

For Each item In mapi.GetDefaultFolder(deleted_items).Items
  WScript.Echo item.Class & "|" & item.Subject
Next
With mapi.GetDefaultFolder(deleted_items).Items
  WScript.Echo .Item(1).Start & "|" & .Item(1).End & "|" & .Item(1).Sensitivity & .Item(1).ReminderSet & "|" & _
    .Item(2).CompanyName & "|" & .Item(3).DueDate & "|" & .Item(3).Status & .Item(3).Importance & "|" & _
    .Item(4).Categories & .Item(4).Width
End With

' Each day of the series' time is asked for a meeting.
WScript.Echo mapi.GetDefaultFolder(inbox).Items.Count & "|" & mapi.GetDefaultFolder(calendar).Items.Count
Set item = mapi.GetDefaultFolder(calendar).Items(1)
Set pattern = item.GetRecurrencePattern
text = item.Subject & "|" & pattern.Duration & "|"
On Error Resume Next
For each_day = #1997-08-25# To #1997-10-31#
  Err.Clear
  Set occurrence = pattern.GetOccurrence(each_day + #09:00:00#)
  If Err.Number = 0 Then text = text & " " & Month(each_day) & "/" & Day(each_day) & Mark(occurrence)
Next
WScript.Echo text
WScript.Echo "outlook.vbs: done"

Function Mark(occurrence)
  If occurrence.RecurrenceState = 3 Then Mark = " moved to " & occurrence.Start & " " & occurrence.Location
End Function
