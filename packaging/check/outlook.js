// ZORBOutlook with Outlook: items of each kind, a walk, attachments, a series. Everything made has a subject of its own and
// is moved to Deleted Items at the end; nothing else is touched, and nothing is sent.
var here = WScript.ScriptFullName.replace(/[^\\]*$/, "");
eval(new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(here + "lib.js", 1).ReadAll());
var work = WScript.Arguments(0) + "\\", bits = WScript.Arguments(1), key = "outlook." + bits + ".";
var mark = "ZORBOffice check " + Math.floor(Math.random() * 1000000), made = [];
var outlook = new ActiveXObject("ZORBOffice.ZORBOutlook");

function get(kind, name) {
  switch (kind) {
    case "Appointment":
      return outlook.GetAppointmentProperty(name);
    case "Contact":
      return outlook.GetContactProperty(name);
    case "Task":
      return outlook.GetTaskProperty(name);
    case "Note":
      return outlook.GetNoteProperty(name);
    case "Email":
      return outlook.GetEmailProperty(name);
  }
}

function set(kind, name, value) {
  switch (kind) {
    case "Appointment":
      return outlook.SetAppointmentProperty(name, value);
    case "Contact":
      return outlook.SetContactProperty(name, value);
    case "Task":
      return outlook.SetTaskProperty(name, value);
    case "Note":
      return outlook.SetNoteProperty(name, value);
  }
}

// Makes an item, saves it and finds it again; values are keys and what is written, read are keys and what should be read.
function item(kind, values, read, called) {
  var name = key + (called || kind.toLowerCase());
  var saved = expect(name, "made, written and saved", true, function() {
    if (!outlook.CreateItem(kind)) return outlook.GetLastErrorDescription();
    for (var one in values)
      if (!set(kind, one, values[one])) return one + ": " + outlook.GetLastErrorDescription();
    return outlook.SaveItem(kind) || outlook.GetLastErrorDescription();
  });
  if (!saved) return false;
  var id = get(kind, "EntryID");
  made.push([kind, id]);
  expect(name + ".again", "found by its identifier", true, function() { return outlook.GetItem(kind, id); });
  for (var one in read) expect(name + "." + one.replace(/ /g, ""), one, read[one], function() { return get(kind, one); });
  expect(name + ".file", "SaveItemToFile makes a file", true, function() {
    var path = work + kind + bits + ".msg";
    return outlook.SaveItemToFile(kind, path) && files.FileExists(path);
  });
  return true;
}

function try_items() {
  item(
      "Appointment", {
        Subject: mark,
        Start: "2036-11-24 14:30:00",
        Duration: "90",
        Location: "Store",
        ReminderSet: "False",
        Sensitivity: "2"
      },
      {
        Subject: mark,
        StartDate: "24/11/2036",
        StartTime: "14:30:00",
        EndTime: "16:00:00",
        Duration: "90",
        Sensitivity: "2",
        ReminderSet: "False"
      });
  item(
      "Contact", {FullName: mark, CompanyName: "Weber & Sons", BusinessAddressCity: "Berlin"},
      {CompanyName: "Weber & Sons", BusinessAddressCity: "Berlin"});
  item("Note", {Body: mark + "\r\nsecond line"}, {Subject: mark});
  if (item(
          "Task", {Subject: mark, StartDate: "2036-11-24", DueDate: "2036-11-28", PercentComplete: "40"},
          {StartDate: "24/11/2036", DueDate: "28/11/2036", PercentComplete: "40", Status: "In Progress"})) {
    tell(key + "task.reminder", "Reminder before and after ReminderDate is written, and the date", function() {
      var before = get("Task", "Reminder");
      set("Task", "ReminderDate", "2036-11-27 09:00");
      outlook.SaveItem("Task");
      return [before, get("Task", "Reminder"), get("Task", "ReminderDate") + " " + get("Task", "ReminderTime")];
    }, "False,False,27/11/2036 09:00:00 if Outlook leaves the switch alone");
    item("Task", {Subject: mark}, {DueDate: "01/01/4501"}, "undated");
  }
  expect(key + "walk", "InitItems, and a walk over the two tasks", "true,2,2", function() {
    var found = 0, restricted = outlook.InitItems("Task", "[Subject] = '" + mark + "'");
    for (var more = outlook.GetFirstItem("Task"); more && found < 10; more = outlook.GetNextItem("Task")) ++found;
    return [restricted, outlook.GetItemCount("Task"), found];
  });
  tell(key + "dates", "a date that is written in the user's order, 5 November as 05/11/2036: what is read", function() {
    outlook.CreateItem("Task");
    set("Task", "DueDate", "05/11/2036");
    return get("Task", "DueDate");
  }, "05/11/2036 where the day is first, 11/05/2036 where the month is");
  expect(key + "overflow", "GetLastErrorNumber after a failure of Outlook's own", true, function() {
    outlook.GetItem("Task", "no such identifier");
    try {
      return "number " + outlook.GetLastErrorNumber();
    } catch (failure) {
      return /800a0006/i.test(code_of(failure)) || code_of(failure);
    }
  });
}

// The draft is made by Outlook itself: the control's own way to a mail with attachments would show it.
function try_attachments() {
  var path = work + "attached.txt", stream = files.CreateTextFile(path, true);
  stream.Write("attached");
  stream.Close();
  var id = attempt(function() {
    var draft = new ActiveXObject("Outlook.Application").CreateItem(0);
    draft.Subject = mark;
    draft.Attachments.Add(path);
    draft.Save();
    return draft.EntryID;
  });
  if (!expect(key + "email", "a draft is found by its identifier, with its subject", "true," + mark, function() {
        return [outlook.GetItem("Email", id), get("Email", "Subject")];
      }))
    return;
  made.push(["Email", id]);
  expect(key + "email.attachments", "Attachments and their number", "attached.txt,1", function() {
    return [get("Email", "Attachments"), get("Email", "Attachment Count")];
  });
  expect(key + "email.save", "SaveEmailAttachment makes a file of 8 bytes", "true,8", function() {
    return [outlook.SaveEmailAttachment(1, work + "saved" + bits), files.GetFile(work + "saved" + bits).Size];
  });
}

// Eight meetings on Tuesdays and Thursdays of every other week; the third is moved, the fifth does not take place.
function try_series() {
  if (!item(
          "Appointment", {Subject: mark + " series", Start: "2036-09-02 09:00:00", Duration: "60", ReminderSet: "False"}, {},
          "meetings"))
    return;
  var id = get("Appointment", "EntryID");
  expect(key + "series", "the pattern, and the dates that it gives", "02/09/2036,16/10/2036,8", function() {
    if (!outlook.GetRecurrencePattern()) return outlook.GetLastErrorDescription();
    outlook.SetRecurrenceProperty("RecurrenceType", "1");
    outlook.SetRecurrenceProperty("DayOfWeekMask", "20");
    outlook.SetRecurrenceProperty("Interval", "2");
    outlook.SetRecurrenceProperty("Occurrences", "8");
    outlook.SaveItem("Appointment");
    return [
      outlook.GetRecurrenceProperty("PatternStartDate"), outlook.GetRecurrenceProperty("PatternEndDate"),
      outlook.GetRecurrenceProperty("Occurrences")
    ];
  });
  expect(key + "series.exceptions", "one moved, one deleted", "2,+16/09/2036,-30/09/2036", function() {
    outlook.GetAppointmentInstance("2036-09-16 09:00:00");
    set("Appointment", "Start", "2036-09-17 11:00:00");
    outlook.SaveItem("Appointment");
    outlook.GetItem("Appointment", id);
    if (outlook.GetAppointmentInstance("2036-09-30 09:00:00")) outlook.DeleteItem("Appointment");
    outlook.GetItem("Appointment", id);
    outlook.GetRecurrencePattern();
    return [outlook.GetRecurrenceProperty("Exception Count"), outlook.GetRecurrenceProperty("Exception List")];
  });
}

function remove_all() {
  var left = 0;
  for (var i = 0; i < made.length; ++i)
    if (attempt(function() { return outlook.GetItem(made[i][0], made[i][1]) && outlook.DeleteItem(made[i][0]); }) !== true)
      ++left;
  expect(
      key + "clean", "of " + made.length + " items that were made, not moved to Deleted Items", 0,
      function() { return left; });
}

// An Outlook that runs before is its user's.
var ours = !may_run("outlook.exe", work + "processes" + bits);
if (expect(key + "start", "StartOutlook", true, function() { return outlook.StartOutlook(); })) {
  try_items();
  try_attachments();
  try_series();
  remove_all();
  expect(
      key + "stop", ours ? "StopOutlook, which quits" : "StopOutlook, which leaves Outlook running", true,
      function() { return outlook.StopOutlook(ours); });
}
WScript.Echo("end");
