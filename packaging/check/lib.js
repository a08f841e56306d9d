// For all scripts of the check, which evaluate it first. A line of the report is
//   RESULT  KEY: what it is = what came out (expected: what should)
// with the results ok, DIFFERS, told (nobody knew before), skipped (with the reason).
var files = new ActiveXObject("Scripting.FileSystemObject");
var shell = new ActiveXObject("WScript.Shell");

// Texts hold marks of Word's and line ends; a line of the report holds none.
function shown(value) {
  var text = String(value), out = "";
  for (var i = 0; i < text.length && i < 300; ++i) {
    var code = text.charCodeAt(i);
    out += code == 13 ? "<p>" : code == 7 ? "<cell>" : code < 32 ? "<" + code + ">" : text.charAt(i);
  }
  return out;
}

function code_of(failure) {
  var number = failure.number < 0 ? failure.number + 4294967296 : failure.number;
  return "0x" + Number(number).toString(16) + (failure.message ? " " + failure.message : "");
}

function attempt(step) {
  try {
    return step();
  } catch (failure) {
    return "raised " + code_of(failure);
  }
}

function say(result, key, what, got, expected) {
  var line = (result + "        ").substr(0, 8) + key + ": " + what + (got === undefined ? "" : " = " + shown(got));
  WScript.Echo(line + (expected === undefined ? "" : " (expected: " + shown(expected) + ")"));
}

// A step whose result is known beforehand; it returns whether that came out.
function expect(key, what, expected, step) {
  var got = attempt(step);
  var same = String(got) == String(expected);
  say(same ? "ok" : "DIFFERS", key, what, got, expected);
  return same;
}

// A step that only the real program can answer.
function tell(key, what, step, expected) { say("told", key, what, attempt(step), expected); }

function skip(key, reason) { say("skipped", key, reason); }

// Wine's script host cannot sleep.
function wait(milliseconds) {
  try {
    WScript.Sleep(milliseconds);
  } catch (failure) {
    for (var end = new Date().getTime() + milliseconds; new Date().getTime() < end;)
      ;
  }
}

function read_file(path) {
  if (!files.FileExists(path) || files.GetFile(path).Size == 0) return "";
  var stream = files.OpenTextFile(path, 1), text = stream.ReadAll();
  stream.Close();
  return text;
}

function lines_of(path) {
  var lines = read_file(path).split("\n"), kept = [];
  for (var i = 0; i < lines.length; ++i) {
    var line = lines[i].replace(/\r/g, "");
    if (line != "") kept.push(line);
  }
  return kept;
}

// Wine's script host leaves the null at the end of such texts.
function without_null(text) { return typeof text == "string" ? text.replace(/\u0000+$/, "") : text; }

function variable(name) { return without_null(shell.ExpandEnvironmentStrings("%" + name + "%")); }

function registry(path) {
  try {
    return without_null(shell.RegRead(path));
  } catch (failure) {
    return "";
  }
}

// Whether a program runs, as far as the list of processes tells; where it does not even name this one, it may.
function may_run(program, list) {
  attempt(function() { shell.Run("cmd /c \"tasklist /nh /fo csv > \"" + list + "\" 2> nul\"", 0, true); });
  var names = read_file(list).toLowerCase();
  return names.indexOf("cscript.exe") < 0 || names.indexOf(program) >= 0;
}

function is_registered(program) { return registry("HKCR\\" + program + "\\CLSID\\") != ""; }
