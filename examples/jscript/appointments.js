// Lists the appointments that begin on a day, tomorrow if none is named:
//   cscript //nologo appointments.js [DAY]      (as 2026-11-23)
var wanted = WScript.Arguments.Count() > 0 ? WScript.Arguments(0) : tomorrow();
var lines = [];

var outlook = new ActiveXObject("ZORBOffice.ZORBOutlook");
if (!outlook.StartOutlook()) fail(outlook.GetLastErrorDescription());
// A series is one item, which begins when the series does.
var condition = "[Start] <= '" + wanted + " 23:59' AND ([Start] >= '" + wanted + " 00:00' OR [IsRecurring] = True)";
if (!outlook.InitItems("Appointment", condition)) fail(outlook.GetLastErrorDescription());
for (var found = outlook.GetFirstItem("Appointment"); found; found = outlook.GetNextItem("Appointment")) {
  var begins = true;
  if (outlook.GetAppointmentProperty("IsRecurring") === "True") {
    begins = outlook.GetAppointmentInstance(wanted + " " + startTime());
  }
  // An occurrence that was moved may answer to the day that it had.
  if (begins && startDay() === wanted) lines.push(startTime() + " " + outlook.GetAppointmentProperty("Subject"));
}
// The control gives series by the day of their first occurrence.
lines.sort();
if (lines.length > 0) WScript.Echo(lines.join("\r\n"));

// Dates and times read with the separators of the user's settings: only the digits are sure.
function startDay() {
  var read = outlook.GetAppointmentProperty("StartDate");
  return read.substr(6, 4) + "-" + read.substr(3, 2) + "-" + read.substr(0, 2);
}

function startTime() {
  var read = outlook.GetAppointmentProperty("StartTime");
  return read.substr(0, 2) + ":" + read.substr(3, 2);
}

function tomorrow() {
  var day = new Date();
  day.setDate(day.getDate() + 1);
  return day.getFullYear() + "-" + twoDigits(day.getMonth() + 1) + "-" + twoDigits(day.getDate());
}

function twoDigits(number) {
  return ("0" + number).slice(-2);
}

function fail(reason) {
  WScript.Echo(reason);
  WScript.Quit(1);
}
