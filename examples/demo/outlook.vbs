' Works through a mailbox with ZORBOutlook and says what it did:
'   cscript outlook.vbs FOLDER      (FOLDER gets what is exported and what is attached)
' The mailbox holds a mail "Plan of the new store", which brings a picture in its text and two files.
Option Explicit

Dim files, outlook, folder, inbox_count, found, entry_id, kind, number, attachments, i

If WScript.Arguments.Count <> 1 Then Fail "usage: cscript outlook.vbs FOLDER"
Set files = CreateObject("Scripting.FileSystemObject")
folder = files.GetAbsolutePathName(WScript.Arguments(0)) & "\"
Set outlook = CreateObject("ZORBOffice.ZORBOutlook")
Need outlook.StartOutlook, "Outlook does not start"

Walk
SaveAttachments
Appointment
Contact
Task
Note
Email
ComposeMails
WeeklySeries
Need outlook.StopOutlook, "the session does not end"
WScript.Echo "outlook.vbs: done"

' Every mail of the inbox, whatever else lies between them.
Sub Walk
  Dim started, mails, expected
  started = Timer
  Need outlook.InitItems("Email", "[MessageClass] = 'IPM.Note'"), "the mails cannot be counted"
  expected = outlook.GetItemCount("Email")
  Need outlook.InitItems("Email", ""), "the inbox cannot be read"
  mails = 0
  found = outlook.GetFirstItem("Email")
  Do While found
    mails = mails + 1
    If mails Mod 100 = 0 Then WScript.Echo mails & " of " & expected & " mails"
    found = outlook.GetNextItem("Email")
  Loop
  WScript.Echo "Inbox: " & mails & " mails among " & outlook.GetItemCount("Email") & " items, walked in " & _
    Round(Timer - started) & " s"
  Need outlook.InitItems("Email", "[Importance] = 0 AND [Subject] <> 'Thanks 1'"), "the inbox cannot be restricted"
  Need outlook.GetFirstItem("Email"), "there is no unimportant mail"
  WScript.Echo "Unimportant: " & outlook.GetItemCount("Email") & ", first """ & outlook.GetEmailProperty("Subject") & """"
End Sub

' The attachments are counted without the picture that the text shows.
Sub SaveAttachments
  Need outlook.InitItems("Email", "[Subject] = 'Plan of the new store'"), "the inbox cannot be restricted"
  Need outlook.GetFirstItem("Email"), "the mail with the plan is missing"
  WScript.Echo "Mail from " & outlook.GetEmailProperty("SenderName") & " with " & outlook.GetEmailProperty("Attachments")
  For number = 1 To 2
    RemoveFile folder & "attachment-" & number
    Need outlook.SaveEmailAttachment(number, folder & "attachment-" & number), "an attachment cannot be saved"
    WScript.Echo "Attachment " & number & ": " & files.GetFile(folder & "attachment-" & number).Size & " bytes saved"
  Next
End Sub

Sub Appointment
  Create "Appointment"
  SetProperties "Appointment", Array("Subject", "Stocktaking", "Start", "2026-11-23 14:30:00", "Duration", "90", _
    "Location", "Store", "ReminderSet", "False", "Sensitivity", "2")
  SaveExportDelete "Appointment", Array("Subject", "StartDate", "StartTime", "EndTime", "Location", "ReminderSet", _
    "Sensitivity", "Folder")
End Sub

Sub Contact
  Create "Contact"
  SetProperties "Contact", Array("FullName", "Ms. Clara Weber", "CompanyName", "Weber & Sons", _
    "Email1Address", "clara@weber.example", "BusinessTelephoneNumber", "+49 30 1234", "BusinessAddressCity", "Berlin")
  SaveExportDelete "Contact", Array("FirstName", "CompanyName", "AllEmailAddresses", "BusinessAddressCity", "Folder")
End Sub

Sub Task
  Create "Task"
  SetProperties "Task", Array("Subject", "Order paper", "StartDate", "2026-11-23", "DueDate", "2026-11-27", _
    "PercentComplete", "40", "Priority", "2")
  SaveExportDelete "Task", Array("Subject", "StartDate", "DueDate", "PercentComplete", "Status", "Priority", "Folder")
End Sub

Sub Note
  Create "Note"
  SetProperties "Note", Array("Body", "Call Ms Miller" & vbCrLf & "before noon", "Categories", "Phone", "Width", "320")
  SaveExportDelete "Note", Array("Subject", "Categories", "Width", "Class", "Folder")
End Sub

' Of a mail in hand only the text of NewEmail can be given; this one stays empty.
Sub Email
  Create "Email"
  SaveExportDelete "Email", Array("Subject", "Attachment Count", "Class", "Parent")
End Sub

' Three mails, with no, one and three attachments. Each NewEmail that sends quits Outlook.
Sub ComposeMails
  Dim paths, list
  For i = 1 To 3
    WriteFile folder & "offer-" & i & ".txt", "Offer " & i
  Next
  paths = Array("", folder & "offer-1.txt", folder & "offer-1.txt; " & folder & "offer-2.txt;" & folder & "offer-3.txt")
  For i = 0 To 2
    list = paths(i)
    outlook.NewEmail "", "miller@example.org; jones@example.org", "office@harbour.example", "", "Offer " & (i + 1), _
      "<p>With <b>" & i & "</b> &amp; regards</p>", (i > 0), True, list
  Next
  If outlook.GetLastErrorDescription <> "" Then Fail "a mail cannot be sent: " & outlook.GetLastErrorDescription
  Need outlook.StartOutlook, "Outlook does not start again"
  Need outlook.InitItems("Sent Items", ""), "the sent mails cannot be read"
  found = outlook.GetFirstItem("Email")
  Do While found
    WScript.Echo "Sent: " & outlook.GetEmailProperty("Subject") & " to " & outlook.GetEmailProperty("To") & ", attached " & _
      outlook.GetEmailProperty("Attachment Count") & ": " & outlook.GetEmailProperty("Attachments")
    found = outlook.GetNextItem("Email")
  Loop
End Sub

' Eight meetings on Tuesdays and Thursdays of every other week; the third is moved, the fifth does not take place.
Sub WeeklySeries
  Create "Appointment"
  SetProperties "Appointment", Array("Subject", "Team meeting", "Start", "1997-09-02 09:00:00", "Duration", "60")
  Need outlook.GetRecurrencePattern, "there is no pattern"
  outlook.SetRecurrenceProperty "RecurrenceType", "1"
  outlook.SetRecurrenceProperty "DayOfWeekMask", "20"
  outlook.SetRecurrenceProperty "Interval", "2"
  outlook.SetRecurrenceProperty "Occurrences", "8"
  Need outlook.SaveItem("Appointment"), "the series cannot be saved"
  entry_id = outlook.GetAppointmentProperty("EntryID")
  WScript.Echo "Series: from " & outlook.GetRecurrenceProperty("PatternStartDate") & " to " & _
    outlook.GetRecurrenceProperty("PatternEndDate") & ", " & outlook.GetRecurrenceProperty("Occurrences") & " meetings"

  Need outlook.GetAppointmentInstance("1997-09-16 09:00:00"), "the third meeting is missing"
  SetProperties "Appointment", Array("Start", "1997-09-17 11:00:00", "Location", "Canteen")
  Need outlook.SaveItem("Appointment"), "the third meeting cannot be moved"
  Need outlook.GetItem("Appointment", entry_id), "the series is missing"
  Need outlook.GetAppointmentInstance("1997-09-30 09:00:00"), "the fifth meeting is missing"
  Need outlook.DeleteItem("Appointment"), "the fifth meeting cannot be deleted"

  Need outlook.GetItem("Appointment", entry_id), "the series is missing"
  Need outlook.GetRecurrencePattern, "there is no pattern any more"
  WScript.Echo "Exceptions: " & outlook.GetRecurrenceProperty("Exception Count") & ", " & _
    outlook.GetRecurrenceProperty("Exception List")
  Need outlook.GetAppointmentInstance("1997-10-02 09:00:00"), "the sixth meeting is missing"
  WScript.Echo "Sixth meeting: " & outlook.GetAppointmentProperty("StartDate") & " " & _
    outlook.GetAppointmentProperty("StartTime") & ", recurrence state " & outlook.GetAppointmentProperty("RecurrenceState")
  WScript.Echo outlook.GetExceptionProperty(1, "Get Appointment") & ": planned for " & _
    outlook.GetExceptionProperty(1, "OriginalDate") & ", now " & outlook.GetAppointmentProperty("StartDate") & " " & _
    outlook.GetAppointmentProperty("StartTime") & " in the " & outlook.GetAppointmentProperty("Location")
End Sub

Sub Create(entry_type)
  kind = entry_type
  Need outlook.CreateItem(kind), "it cannot be created"
End Sub

' Keys and values take turns in the list.
Sub SetProperties(entry_type, list)
  Dim done
  For i = 0 To UBound(list) Step 2
    Select Case entry_type
      Case "Appointment" done = outlook.SetAppointmentProperty(list(i), list(i + 1))
      Case "Contact" done = outlook.SetContactProperty(list(i), list(i + 1))
      Case "Task" done = outlook.SetTaskProperty(list(i), list(i + 1))
      Case "Note" done = outlook.SetNoteProperty(list(i), list(i + 1))
    End Select
    Need done, list(i) & " cannot be set"
  Next
End Sub

Function GetProperty(entry_type, key)
  Select Case entry_type
    Case "Appointment" GetProperty = outlook.GetAppointmentProperty(key)
    Case "Contact" GetProperty = outlook.GetContactProperty(key)
    Case "Task" GetProperty = outlook.GetTaskProperty(key)
    Case "Note" GetProperty = outlook.GetNoteProperty(key)
    Case "Email" GetProperty = outlook.GetEmailProperty(key)
  End Select
End Function

' Saves the current item, reads it back by its identifier, exports it, deletes it, and finds it among the deleted ones.
Sub SaveExportDelete(entry_type, keys)
  Dim key, text, path
  Need outlook.SaveItem(entry_type), "it cannot be saved"
  entry_id = GetProperty(entry_type, "EntryID")
  Need outlook.GetItem(entry_type, entry_id), "it is not found by its identifier"
  For Each key In keys
    text = text & ", " & key & " " & GetProperty(entry_type, key)
  Next
  path = folder & LCase(entry_type) & ".msg"
  RemoveFile path
  Need outlook.SaveItemToFile(entry_type, path), "it cannot be exported"
  Need outlook.DeleteItem(entry_type), "it cannot be deleted"
  Need outlook.InitItems("Deleted " & entry_type, ""), "the deleted items cannot be read"
  found = outlook.GetFirstItem(entry_type)
  Do While found
    If GetProperty(entry_type, "EntryID") = entry_id Then Exit Do
    found = outlook.GetNextItem(entry_type)
  Loop
  Need found, "it is not among the deleted items"
  WScript.Echo entry_type & ": saved" & text & "; exported; deleted"
End Sub

Sub WriteFile(path, content)
  Dim stream
  Set stream = files.CreateTextFile(path, True)
  stream.Write content
  stream.Close
End Sub

Sub RemoveFile(path)
  If files.FileExists(path) Then files.DeleteFile path
End Sub

Sub Need(done, otherwise)
  If Not done Then Fail kind & ": " & otherwise & ": " & outlook.GetLastErrorDescription
End Sub

Sub Fail(reason)
  WScript.Echo "outlook.vbs: " & reason
  WScript.Quit 1
End Sub
