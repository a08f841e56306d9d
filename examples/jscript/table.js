// Reads the price table out of a document, a line a row:
//   cscript //nologo table.js DOCUMENT
if (WScript.Arguments.Count() !== 1) fail("usage: cscript //nologo table.js DOCUMENT");
// Word has a current folder of its own.
var document = new ActiveXObject("Scripting.FileSystemObject").GetAbsolutePathName(WScript.Arguments(0));

var word = new ActiveXObject("ZORBOffice.ZORBWord");
var reason = readTable();
try {
  // Word stays behind unless it is told to quit.
  word.StopWord(true);
} catch (error) {
  // "Object required": Word could not be created.
}
if (reason) fail(reason);

// Returns what went wrong; nothing if all went well.
function readTable() {
  if (word.Start() !== 1) return "Word does not start";
  if (word.OpenDoc(document) !== 1) return "the document cannot be opened";
  var reason = "the document has no price table";
  if (word.Search("Article") === 1) {
    while (word.InTable === 1) {
      reason = "";
      WScript.Echo(row());
      // Behind a row that is selected as a whole lies the next one, or the text after the table.
      word.SelectRow();
      word.CursorRight(1);
    }
  }
  word.CloseDoc(0);
  return reason;
}

function row() {
  var cells = [];
  for (var cell = 1; cell <= word.CellCount; ++cell) {
    // A cell's text ends in its end mark, and holds paragraph marks in between.
    cells.push(word.CellText(cell).replace(/\r\x07/g, "").replace(/\r/g, " "));
  }
  return cells.join(" | ");
}

function fail(reason) {
  WScript.Echo(reason);
  WScript.Quit(1);
}
