// Runs the parts of the check one after the other, and writes the report. Nothing personal goes into it: names of the user
// and of the machine, and paths that hold them, are replaced.
var here = WScript.ScriptFullName.replace(/[^\\]*$/, "");
eval(new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(here + "lib.js", 1).ReadAll());

var CLASS = "\\CLSID\\{495CDEB3-7F1E-4663-9DB2-E33437412CE0}\\InprocServer32\\";
var options = {}, report = [], counts = {ok: 0, DIFFERS: 0, told: 0, skipped: 0};
for (var i = 0; i < WScript.Arguments.length; ++i) options[WScript.Arguments(i).toLowerCase()] = true;
var own_bits = variable("PROCESSOR_ARCHITECTURE") == "AMD64" ? 64 : 32;
var has64 = own_bits == 64 || variable("PROCESSOR_ARCHITEW6432") == "AMD64";
var windows = variable("SystemRoot") + "\\";
// Where the 32-bit and the 64-bit programs of Windows are, for this script's own bitness.
var systems = {
  32: has64 ? windows + "SysWOW64\\" : windows + "System32\\",
  64: own_bits == 64 ? windows + "System32\\" : windows + "Sysnative\\"
};
var bitnesses = has64 ? [32, 64] : [32];
var work = variable("TEMP") + "\\ZORBOffice check\\";

function without_names(line) {
  var names = [[here.replace(/\\$/, ""), "<here>"], [work.replace(/\\$/, ""), "<work>"]];
  var hidden = ["TEMP", "USERPROFILE", "COMPUTERNAME", "USERDOMAIN", "USERNAME"];
  for (var i = 0; i < hidden.length; ++i) names.push([variable(hidden[i]), "<" + hidden[i] + ">"]);
  for (var n = 0; n < names.length; ++n) {
    if (names[n][0].length < 2 || names[n][0].charAt(0) == "%") continue;
    var text = names[n][0].replace(/([.*+?^${}()|\[\]\\])/g, "\\$1");
    line = line.replace(new RegExp("(^|[^A-Za-z0-9])" + text + "(?![A-Za-z0-9])", "gi"), "$1" + names[n][1]);
  }
  return line.replace(/[A-Za-z]:[\\\/]Users[\\\/][^\\\/"'<>|:,;)]+/gi, "<USERPROFILE>");
}

function write_report() {
  var stream = files.CreateTextFile(here + "report.txt", true, true);
  for (var i = 0; i < report.length; ++i) stream.WriteLine(report[i]);
  stream.Close();
}

// A line of a part, or one of this script's own.
function take(line) {
  line = without_names(line);
  var result = line.replace(/ .*$/, "");
  if (counts[result] !== undefined) ++counts[result];
  report.push(line);
  WScript.Echo(line);
  write_report();
}

// Instead of the parts' own.
say = function(result, key, what, got, expected) {
  take(
      (result + "        ").substr(0, 8) + key + ": " + what + (got === undefined ? "" : " = " + shown(got)) +
      (expected === undefined ? "" : " (expected: " + shown(expected) + ")"));
};

function heading(text) {
  report.push("", text);
  WScript.Echo("-- " + text);
}

// Runs a command in a window that is not seen, for so many seconds at most; its output goes to a file.
function run(command, output, seconds) {
  var ended = output + ".ended";
  if (files.FileExists(ended)) files.DeleteFile(ended);
  // Not by a batch file, which could not name folders in all languages. What tells the end comes into being whole. The window
  // is shown: what is started from a hidden one may hide its message boxes.
  var quoted = "\"" + ended + "\"", coming = "\"" + ended + ".new\"";
  shell.Run(
      "cmd /c \"(" + command + " > \"" + output + "\" 2>&1 < nul && echo 0 || echo 1) > " + coming + " & move /y " + coming +
          " " + quoted + " > nul\"",
      1, false);
  for (var waited = 0; waited < seconds * 10; ++waited) {
    if (files.FileExists(ended)) return Number(read_file(ended));
    wait(100);
  }
  return "no end after " + seconds + " s";
}

// A script of the check in Windows' script host; its lines are the report's.
function run_part(name, bits, seconds) {
  var output = work + name + bits + ".out";
  var ended =
      run(systems[bits] + "cscript.exe //nologo \"" + here + name + "\" \"" + work.replace(/\\$/, "") + "\" " + bits, output,
          seconds);
  var lines = lines_of(output), done = false;
  for (var i = 0; i < lines.length; ++i) {
    if (lines[i] == "end")
      done = true;
    else
      take(lines[i]);
  }
  if (!done) {
    say("DIFFERS", name.replace(/\..*/, "") + ".end", "the " + bits + "-bit part comes to its end", ended, "0");
    say("told", name.replace(/\..*/, "") + ".left", "what it started may still run, and can be ended in the task manager");
  }
}

// Whatever goes wrong in one part, the others are tried.
function part(name, body) {
  try {
    return body();
  } catch (failure) {
    say("DIFFERS", name, "the part breaks off", code_of(failure), "its end");
  }
}

function finish(reason) {
  heading("Summary");
  take("ok " + counts.ok + ", DIFFERS " + counts.DIFFERS + ", told " + counts.told + ", skipped " + counts.skipped);
  take(reason || "The report is complete. Please send it: README.txt says where.");
  WScript.Echo("check: " + (reason || "report.txt is beside check.cmd"));
  WScript.Quit(reason ? 2 : counts.DIFFERS ? 1 : 0);
}

eval(files.OpenTextFile(here + "parts.js", 1).ReadAll());
heading("ZORBOffice " + read_file(here + "VERSION.txt").replace(/\s+$/, "") + ", check for Windows");
describe_system();
var elevated = registry("HKEY_USERS\\S-1-5-19\\Environment\\TEMP") != "";
if (elevated && !options["/machine"])
  finish("An elevated program does not see a user's classes: start it without, or with /machine.");
// What a check of this folder left that was broken off does not matter.
var standing = registry((options["/machine"] ? "HKLM" : "HKCU") + "\\Software\\Classes" + CLASS);
if (standing != "" && standing.toLowerCase().indexOf(here.toLowerCase()) != 0)
  finish("ZORBOffice is registered already. Uninstall it first: the check registers its own copy and takes that away again.");
if (!files.FolderExists(work)) files.CreateFolder(work.replace(/\\$/, ""));
part("tests", run_tests);
if (part("registration", function() { return register(true); })) {
  part("hosts", run_hosts);
  part("offices", run_offices);
}
part("registration.undo", function() { return register(false); });
finish();
