' Drives the stand-in for Outlook as any client would, as far as the demo of its control does not. Its last line is
' "outlook_smoke.vbs: done" only if every check held: Wine's script host ends without a word, and with exit code 0, at an error
' that nobody handles.
'   cscript //nologo outlook_smoke.vbs FOLDER      (a Windows path; what the checks write goes there)
Option Explicit
Const deleted_items = 3, sent_items = 5, inbox = 6, calendar = 9, contacts = 10, notes = 12, tasks = 13, drafts = 16
Dim folder, files, fails, outlook, mapi, other, items, item, again, id, pattern, part, text, rows, row, i
folder = WScript.Arguments(0) & "\outlook-smoke-"
Set files = CreateObject("Scripting.FileSystemObject")
fails = 0

Sub Check(what, got, wanted)
  If got = wanted Then Exit Sub
  fails = fails + 1
  WScript.Echo Replace("FAILED " & what & ": '" & got & "', not '" & wanted & "'", vbCrLf, "|")
End Sub

' A failure is checked by its number: CheckFailure goes right behind the call, under On Error Resume Next.
Sub CheckFailure(what, wanted)
  Dim number
  number = Err.Number
  Err.Clear
  Check what, CStr(number), CStr(wanted)
End Sub

Sub WriteFile(path, content)
  Dim stream
  Set stream = files.CreateTextFile(path, True)
  stream.Write content
  stream.Close
End Sub

Function ItemsOf(number)
  Set ItemsOf = mapi.GetDefaultFolder(number).Items
End Function

Function Subjects(collection)
  Dim each_one
  For Each each_one In collection
    Subjects = Subjects & each_one.Subject & " "
  Next
End Function

' A mailbox of its own, whatever other clients left.
text = "{`folder`: `Inbox`, `class`: `IPM.Note`, `Subject`: `Mail #`, `HTMLBody`: `<p>Hi</p><img src=\`cid:a.png@1\`>`, " & _
  "`To`: `a@b.c; d@e.f`, `SenderName`: `S`, " & _
  "`attachments`: [{`name`: `a.png`, `base64`: `iVBORw0=`}, {`name`: `b.txt`, `text`: `B`}]}"
For Each row In Array("REPORT.IPM.Note.NDR", "IPM.Schedule.Meeting.Request", "IPM.Post", "IPM.Document.txt")
  text = text & ", {`folder`: `Inbox`, `class`: `" & row & "`, `Subject`: `Other #`}"
Next
text = text & ", {`folder`: `Contacts`, `class`: `IPM.DistList`, `Subject`: `List #`}"
WriteFile folder & "mailbox.json", Replace("[{`rounds`: 2, `items`: [" & text & "]}]", "`", """")
Set outlook = CreateObject("Outlook.Application")
Check "says what it is", outlook.Name & ", " & outlook.Version, "Stand-in for Outlook, 0.0 (stand-in)"
Set mapi = outlook.GetNamespace("MAPI")
mapi.Logon folder & "mailbox.json", "", False, True

' Walks: a position of its own for each collection, real folders' mixed kinds, no item at the end.
Set items = ItemsOf(inbox)
Set item = items.GetFirst
text = ""
Do Until item Is Nothing
  text = text & item.Class & " "
  Set item = items.GetNext
Loop
Check "kinds", text & items.Count, "43 46 53 45 41 43 46 53 45 41 10"
Set other = ItemsOf(inbox)
Check "own positions", items.GetFirst.Subject & other.GetNext.Subject & items.GetNext.Subject, "Mail 1Mail 1Other 1"
items.Sort "[Subject]", True
Check "sorting starts again", items.GetNext.Subject & items.GetNext.Class & items(10).Subject, "Other 253Mail 1"
Check "distribution list", ItemsOf(contacts)("list 2").Class, 69
Check "folder", mapi.GetDefaultFolder(tasks) & mapi.GetDefaultFolder(tasks).DefaultItemType & items(1).Parent.Name, "Tasks3Inbox"

' Mails: seeded text, what is kept and what is sent.
Set item = ItemsOf(inbox).Item(1)
Check "text", item.Body, "Hi" & vbCrLf & "[cid:a.png@1]"
Check "seeded", item.To & item.Recipients.Count & item.SenderName & item.ReceivedTime, "a@b.c; d@e.f2S" & #2007-01-01#
With item.Attachments(2)
  Check "attachment", .FileName & .Type & .BlockLevel & .DisplayName, "b.txt10b.txt"
End With
WriteFile folder & "b.txt", "B"
Set item = outlook.CreateItem(0)
item.HTMLBody = "<p>A &amp; B</p>"
item.Attachments.Add folder & "b.txt", , , "Shown"
item.Attachments.Add folder & "mailbox.json"
item.Subject = "New"
Check "unsaved", item.EntryID & item.Saved & item.Size & item.Body & item.Parent, "False0A & BDrafts"
item.Save
Check "kept", ItemsOf(drafts)(1).Attachments("Shown").FileName & item.Saved & (item.Size > 0), "outlook-smoke-b.txtTrueTrue"
item.To = "x@y.z"
item.BCC = "h@i.j"
item.Send
With ItemsOf(sent_items)(1)
  Check "sent", ItemsOf(drafts).Count & .Sent & .Subject & .To & .BCC & .Attachments.Count, "0TrueNewx@y.zh@i.j2"
End With
Set item = outlook.CreateItem(0)
item.Display
Check "shown", outlook.Inspectors.Count & outlook.ActiveInspector.CurrentItem.EntryID, "1"
outlook.ActiveInspector.Close 1

' The other kinds: what hangs together, and kinds of values.
Set item = outlook.CreateItem(2)
item.FullName = "Dr. Ada Maria King"
item.BusinessAddressCity = "London"
item.SelectedMailingAddress = 2
item.Save
Check "contact", item.Title & item.FirstName & item.LastName & item.MailingAddressCity & item.Class, "Dr.AdaKingLondon40"
Set item = outlook.CreateItem(3)
Check "no date", VarType(item.DueDate) & item.DueDate, "7" & #4501-01-01#
item.StartDate = #2007-03-05 10:00:00#
item.DueDate = "3/4/2007"
item.PercentComplete = 100
Check "task", item.StartDate & item.Status & item.Complete & VarType(item.Status), #2007-03-04# & "2True3"
Check "note", outlook.CreateItem(5).Color, 3
Set item = outlook.CreateItem(1)
item.Start = #2007-03-05 14:30:00#
item.End = #2007-03-05 15:15:00#
Check "appointment", item.Duration & item.RecurrenceState & item.IsRecurring & item.EntryID, "450False"
item.AllDayEvent = True
Check "all day", item.Start & item.Duration, #2007-03-05# & "1440"

' Identifiers, views that keep their changes to themselves, deleting twice.
ItemsOf(tasks).Add.Save
Set item = ItemsOf(tasks).GetFirst
id = item.EntryID
Set again = mapi.GetItemFromID(id)
item.Subject = "Changed"
Check "not saved yet", again.Subject & item.Subject, "Changed"
item.Save
Check "saved", again.Subject & (item.LastModificationTime >= item.CreationTime), "ChangedTrue"
item.Delete
Check "deleted", ItemsOf(tasks).Count & mapi.GetItemFromID(id).Parent, "0Deleted Items"
ItemsOf(deleted_items)(1).Delete

' Conditions: three tasks, and what each condition leaves of them.
For i = 1 To 3
  With ItemsOf(tasks).Add
    .Subject = "T" & i & "'s"
    .DueDate = DateSerial(2007, i, 10)
    .PercentComplete = i * 40 - 40
    .Save
  End With
Next
rows = Array("[Subject] = 't2''s'", "T2's ", "[Subject] <> ""T2's""", "T1's T3's ", "[DueDate] >= '2/10/2007'", "T2's T3's ", _
  "[PercentComplete] > 0 AND NOT ([Subject] = 'T3''s')", "T2's ", "[Complete] = True OR [Status] = 0", "T1's ", _
  "[DueDate] < '2/10/2007 12:01 AM' and [Importance] = 1", "T1's T2's ", "[FullName] = 'x'", "", _
  "[FullName] <> 'x'", "T1's T2's T3's ")
For i = 0 To UBound(rows) Step 2
  Check rows(i), Subjects(ItemsOf(tasks).Restrict(rows(i))), rows(i + 1)
Next
Set items = ItemsOf(tasks).Restrict("[Status] = 1")
items.Sort "DueDate", True
Check "sorted rest", Subjects(items) & items.Restrict("[PercentComplete] = 40").Count, "T3's T2's 1"

' Series: five of the examples of RFC 5545, section 3.8.5.3, then the last workdays, Thanksgiving and days that short months
' lack. The columns: type, interval, days, instance, first day, count, last day.
For Each row In Array(Array(0, 10, 0, 0, #1997-09-02#, 5, #1997-10-12#), Array(1, 2, 20, 0, #1997-09-02#, 8, #1997-10-16#), _
    Array(1, 1, 20, 0, #1997-09-02#, 10, #1997-10-02#), Array(3, 1, 32, 1, #1997-09-05#, 10, #1998-06-05#), _
    Array(3, 1, 28, 3, #1997-09-04#, 3, #1997-11-06#), Array(3, 1, 62, 5, #1997-09-29#, 7, #1998-03-31#), _
    Array(6, 1, 16, 4, #1997-11-01#, 2, #1998-11-26#), _
    Array(2, 1, 0, 0, #1997-08-31#, 4, #1997-11-30#), Array(5, 1, 0, 0, #1996-02-29#, 2, #1997-02-28#))
  Set item = outlook.CreateItem(1)
  item.Start = row(4) + #09:00:00#
  Set pattern = item.GetRecurrencePattern
  pattern.RecurrenceType = row(0)
  pattern.Interval = row(1)
  If row(2) > 0 Then pattern.DayOfWeekMask = row(2)
  If row(3) > 0 Then pattern.Instance = row(3)
  pattern.Occurrences = row(5)
  Check "last day of type " & row(0), pattern.PatternEndDate, row(6)
  pattern.PatternEndDate = row(6)
  Check "count of type " & row(0), pattern.Occurrences & pattern.NoEndDate, row(5) & "False"
Next

' Exceptions: an occurrence that was changed, one that was deleted, one that never was.
Set item = outlook.CreateItem(1)
item.Subject = "Weekly"
item.Start = #1997-09-02 09:00:00#
Set pattern = item.GetRecurrencePattern
Check "new pattern", pattern.RecurrenceType & pattern.DayOfWeekMask & pattern.NoEndDate & item.IsRecurring, "14TrueTrue"
pattern.EndTime = #10:15:00#
item.Save
Set part = pattern.GetOccurrence(#1997-09-16 09:00:00#)
Check "occurrence", part.Start & part.Duration & part.RecurrenceState & part.Parent.Subject, #1997-09-16 09:00:00# & "752Weekly"
part.Start = #1997-09-17 11:00:00#
part.Subject = "Moved"
part.Save
pattern.GetOccurrence(#1997-09-09 09:00:00#).Delete
Check "by its own start", pattern.GetOccurrence(#1997-09-17 11:00:00#).Subject & part.RecurrenceState, "Moved3"

' Failures, with Outlook's numbers where it has its own.
On Error Resume Next
text = again.Subject
CheckFailure "deleted twice", &H8004010A
Set again = mapi.GetItemFromID(id)
CheckFailure "unknown identifier", &H8004010F
Set again = mapi.GetDefaultFolder(99)
CheckFailure "unknown folder", &H80070057
Set again = outlook.CreateItem(99)
CheckFailure "unknown item type", &H80070057
pattern.MonthOfYear = 13
CheckFailure "month 13", &H80070057
pattern.RecurrenceType = 4
CheckFailure "recurrence type 4", &H80070057
pattern.Interval = "abc"
CheckFailure "no number", 13
item.Start = #1997-09-02#
CheckFailure "start of a series", &H80070057
Set again = pattern.Exceptions(0)
CheckFailure "exception 0", &H80020009
Set again = pattern.Exceptions(1).AppointmentItem
CheckFailure "deleted occurrence", &H80020009
Set again = pattern.GetOccurrence(#1997-09-10 09:00:00#)
CheckFailure "no occurrence", &H80020009
item.EntryID = "x"
CheckFailure "read only", 438
item.NoSuchMember = 1
CheckFailure "unknown member", 438
text = outlook.CreateItem(5).Importance
CheckFailure "not a note's", 438
item.SaveAs folder & "missing\item.msg"
CheckFailure "no folder", &H80070003
item.SaveAs folder & "item.html", 5
CheckFailure "another format", &H80004001
outlook.CreateItem(0).Attachments.Add folder & "missing"
CheckFailure "no file", &H80070002
outlook.CreateItem(0).Send
CheckFailure "nobody to send to", &H80004005
For Each row In Array("", "Subject = 'x'", "[Subject] = 'x", "[Subject] ~ 'x'", "[Nonsense] = 1", "[DueDate] > 'soon'", _
    "[Status] = 'x'", "[Subject] = 'x' AND", "([Subject] = 'x'", "[Subject] = 'x' 'y'")
  Set again = ItemsOf(tasks).Restrict(row)
  CheckFailure "condition " & row, &H80020009
Next
ItemsOf(tasks).Sort "[Nonsense]"
CheckFailure "sorted by nonsense", &H80020009
mapi.Logon folder & "b.txt", "", False, True
CheckFailure "no mailbox", &H80070057
CreateObject("Outlook.Application").Quit
text = outlook.Name
CheckFailure "after Quit", 462
Check "the mailbox stays", CreateObject("Outlook.Application").Session.GetDefaultFolder(inbox).Items.Count, 10
If fails = 0 Then WScript.Echo "outlook_smoke.vbs: done"
