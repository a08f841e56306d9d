// Fills a letter from a template for one customer, and saves it:
//   cscript //nologo letter.js TEMPLATE OUTPUT NAME
var allOfThem = 2;  // ReplaceOption

if (WScript.Arguments.Count() !== 3) fail("usage: cscript //nologo letter.js TEMPLATE OUTPUT NAME");
var files = new ActiveXObject("Scripting.FileSystemObject");
// Word has a current folder of its own.
var template = files.GetAbsolutePathName(WScript.Arguments(0));
var output = files.GetAbsolutePathName(WScript.Arguments(1));
if (files.FileExists(output)) fail(output + " exists");

var word = new ActiveXObject("ZORBOffice.ZORBWord");
var reason = writeLetter(WScript.Arguments(2));
try {
  // Word stays behind unless it is told to quit.
  word.StopWord(true);
} catch (error) {
  // "Object required": Word could not be created.
}
if (reason) fail(reason);
WScript.Echo("saved " + files.GetFileName(output));

// Returns what went wrong; nothing if all went well.
function writeLetter(name) {
  if (word.Start() !== 1) return "Word does not start";
  if (word.CreateDoc(template) !== 1) return "the template cannot be opened";
  var reason = fillAndSave(name);
  // Word asks about changes when it quits, not when a document is closed without them.
  word.CloseDoc(0);
  return reason;
}

function fillAndSave(name) {
  fill("Name", name);
  fill("Order", "12 boxes of paper, EUR 49.90 each");
  var text = word.ReadText(0, 0);
  if (!text || text.indexOf("<<") >= 0) return "a field is left in the letter";
  word.SaveDoc(output);
  // Saving has no result.
  return files.FileExists(output) ? "" : "the letter cannot be saved";
}

function fill(field, value) {
  // A "^" begins a code of Word's. JScript cannot leave out arguments in the middle.
  word.Replace("<<" + field + ">>", value.replace(/\^/g, "^^"), 1, true, true, false, false, false, false, false, allOfThem);
}

function fail(reason) {
  WScript.Echo(reason);
  WScript.Quit(1);
}
