// Drives ZORBWord and writes what each member answered.
var path = WScript.Arguments(0) + "\\host.docx";
var special = WScript.Arguments(1);
var word = new ActiveXObject("ZORBOffice.ZORBWord");
var calls = ["Start()", "CreateDoc()", "SendText('One two ' + special + ' three')", "CursorLeft(5, 1, 1)", "SelectionText()",
  "Cut()", "ReadText(0, 0)", "Paste()", "ReadText(1, 3)", "CursorLeft('3')", "SendText('-')", "ReadText(0, 0)", "GotoLine(1)",
  "SelectParagraph()", "SelectionText()", "SaveDoc(path)", "CloseDoc()", "OpenDoc(path)", "ReadText(0, 0)", "IsPrinting()",
  "CloseDoc(0)", "GotoLine(1)", "StopWord(false)", "NumberOfSections()", "StopWord(true)", "GetLastErrorNumber()",
  "GetLastErrorDescription()"];

for (var i = 0; i < calls.length; ++i) {
  var answer;
  try {
    answer = eval("word." + calls[i]);
  } catch (error) {
    answer = (error.number & 0xFFFF) + " " + error.description;
  }
  if (answer === undefined) answer = "";
  if (typeof answer === "boolean") answer = answer ? -1 : 0;
  answer = String(answer).replace("\r", "\\r").replace(special, "<special>");
  WScript.Echo(calls[i].replace(/\(.*/, "") + ": " + answer);
}
WScript.Echo("host.js: done");
