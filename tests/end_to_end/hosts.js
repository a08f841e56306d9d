// Drives ZORBWord and writes what each member answered. Every host must write the same lines.
var path = WScript.Arguments(0) + "\\js.docx";
var special = WScript.Arguments(1);
var word = new ActiveXObject("ZORBOffice.ZORBWord");

function say(member, answer) {
  if (answer === undefined) answer = "";
  if (typeof answer === "boolean") answer = answer ? -1 : 0;
  WScript.Echo(member + ": " + String(answer).replace("\r", "\\r").replace(special, "<special>"));
}

function failure(member, call) {
  var raised = "0 ";
  try {
    call();
  } catch (error) {
    raised = (error.number & 0xFFFF) + " " + error.description;
  }
  say(member, raised);
}

say("Start", word.Start());
say("CreateDoc", word.CreateDoc());
say("SendText", word.SendText("One two " + special + " three"));
say("CursorLeft", word.CursorLeft(5, 1, 1));
say("SelectionText", word.SelectionText());
say("Cut", word.Cut());
say("ReadText", word.ReadText(0, 0));
say("Paste", word.Paste());
say("ReadText", word.ReadText(1, 3));
var units = "3";
say("CursorLeft", word.CursorLeft(units));
say("units", units);
say("SendText", word.SendText("-"));
say("ReadText", word.ReadText(0, 0));
say("GotoLine", word.GotoLine(1));
say("SelectParagraph", word.SelectParagraph());
say("SelectionText", word.SelectionText());
say("SaveDoc", word.SaveDoc(path));
say("CloseDoc", word.CloseDoc());
say("OpenDoc", word.OpenDoc(path));
say("ReadText", word.ReadText(0, 0));
say("IsPrinting", word.IsPrinting());
say("CloseDoc", word.CloseDoc(0));
say("GotoLine", word.GotoLine(1));
failure("NumberOfSections", function () { return word.NumberOfSections(); });
failure("StopWord", function () { word.StopWord(false); });
failure("StopWord", function () { word.StopWord(true); });
say("GetLastErrorNumber", word.GetLastErrorNumber());
say("GetLastErrorDescription", word.GetLastErrorDescription());
WScript.Echo("hosts.js: done");
