// ZORBWord with Word: a letter, a table, headers, searches; what only Word can answer is told.
var here = WScript.ScriptFullName.replace(/[^\\]*$/, "");
eval(new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(here + "lib.js", 1).ReadAll());
var work = WScript.Arguments(0) + "\\", bits = WScript.Arguments(1);
var key = "word." + bits + ".", letter = work + "letter" + bits + ".docx", copy = work + "copy" + bits + ".docx";
var word = new ActiveXObject("ZORBOffice.ZORBWord");

function count(text, part) { return text.split(part).length - 1; }

function type_at_line(line, text) {
  return word.GotoLine(line) && (word.CursorEndOfParagraph(), word.CursorLeft(1), word.SendText(text) == 1);
}

function write_letter() {
  expect(key + "create", "CreateDoc of a template", 1, function() { return word.CreateDoc(here + "letter.dotx"); });
  expect(key + "type", "three lines are filled", "true,true,true", function() {
    return [type_at_line(4, " Ms A. Miller"), type_at_line(5, " 21 November 2026"), type_at_line(9, "12 boxes of paper")];
  });
  expect(key + "cut", "a line is selected and cut", true, function() {
    word.GotoLine(10);
    word.SelectParagraph();
    var draft = word.SelectionText;
    word.Cut();
    return /Draft/.test(draft) && !/Draft/.test(word.ReadText(0, 0));
  });
  expect(key + "read", "what was typed is read back", "true,true,true", function() {
    var text = word.ReadText(0, 0);
    return [/To: Ms A. Miller\r/.test(text), /Date: 21 November 2026\r/.test(text), /12 boxes of paper\r/.test(text)];
  });
  expect(
      key + "positions", "ReadText 0 to 5 leaves the first character out", true,
      function() { return word.ReadText(0, 5) == word.ReadText(0, 0).substr(1, 4); });
  expect(key + "search", "Search of a text, of none, and with wildcards", "1,0,1", function() {
    return [word.Search("boxes"), word.Search("no such text"), word.Search("b[a-z]@es", 1, true, true, false, false, true)];
  });
  expect(key + "save", "SaveDoc makes a file", true, function() {
    word.SaveDoc(letter);
    return files.FileExists(letter);
  });
}

// Where the members that Word's own idea of a position decides leave the cursor.
function try_cursor() {
  word.GotoLine(4);
  tell(key + "EndOfParagraph", "CursorEndOfParagraph in line 4, then '#' typed: the text around it", function() {
    word.CursorEndOfParagraph();
    word.SendText("#");
    var text = word.ReadText(0, 0), at = text.indexOf("#");
    return text.substring(at - 3, at + 4);
  }, "the mark before '#', as the examples take it");
  tell(key + "StartOfParagraph", "CursorStartOfParagraph, then '@' typed: the text around it", function() {
    word.CursorStartOfParagraph();
    word.SendText("@");
    var text = word.ReadText(0, 0), at = text.indexOf("@");
    return text.substring(at - 3, at + 4);
  });
  word.CloseDoc(0);
}

function try_table() {
  expect(
      key + "create.table", "CreateDoc of a template with a table, a header and a footer", 1,
      function() { return word.CreateDoc(here + "letters.dotx"); });
  expect(key + "sections", "NumberOfSections", 1, function() { return word.NumberOfSections; });
  expect(key + "table", "the table's second row by Search, InTable, CellCount", "1,1,3", function() {
    return [word.Search("<<Amount>>", 1, true, true), word.InTable, (word.SelectRow(), word.CellCount)];
  });
  tell(
      key + "CellText", "CellText 1", function() { return word.CellText(1); },
      "the text and the mark of the cell's end, <p><cell>");
  tell(key + "EndOfCell", "CursorEndOfCell, then '#' typed: the cell's text", function() {
    word.CursorEndOfCell();
    word.SendText("#");
    return word.CellText(1);
  });
  expect(key + "replace", "Replace of all, Replace of what is not there", "1,0", function() {
    return [
      word.Replace("<<Name>>", "Ms Miller", 1, true, true, false, false, false, false, false, 2),
      word.Replace("<<Name>>", "x", 1, true, true, false, false, false, false, false, 2)
    ];
  });
  expect(key + "header.replace", "ReplaceHeaderFooter in the header, and what is read then", "1,true", function() {
    return [
      word.ReplaceHeaderFooter(1, true, 1, "<<Number>>", "1001", 1, true, true, false, false, false, false, false, 2),
      word.ReadHeaderFooterText(1, true, 1, 0, 0).indexOf("1001") >= 0
    ];
  });
  expect(
      key + "header.absent", "a first page's header that is not there", "",
      function() { return word.ReadHeaderFooterText(1, true, 2, 0, 0); });
  tell(key + "IsPrinting", "IsPrinting with nothing printed", function() { return word.IsPrinting(); }, 0);
  word.CloseDoc(0);
}

function try_headers() {
  files.CopyFile(letter, copy, true);
  expect(
      key + "SetHeaderFooter", "header, footer and font of one file to another", 1,
      function() { return word.SetHeaderFooter(here + "letters.dotx", copy, true, true, true); });
  var source, target;
  word.OpenDoc(here + "letters.dotx");
  source = word.ReadHeaderFooterText(1, true, 1, 0, 0);
  word.CloseDoc(0);
  word.OpenDoc(copy);
  target = word.ReadHeaderFooterText(1, true, 1, 0, 0);
  expect(
      key + "header.text", "the copied header begins with the source's text", true,
      function() { return target.indexOf(source.replace(/\r$/, "")) == 0; });
  tell(
      key + "header.paragraphs", "paragraphs of the copied header", function() { return count(target, "\r"); },
      count(source, "\r"));
  tell(
      key + "footer.paragraphs", "paragraphs of the copied footer",
      function() { return count(word.ReadHeaderFooterText(1, false, 1, 0, 0), "\r"); });
  word.CloseDoc(0);
}

// Another program has a dialog of this Word's open for four seconds; meanwhile calls are made.
function try_busy(ran_before) {
  if (ran_before)
    return skip(key + "busy", "whether another Word runs is not known, or it does: the dialog might be that one's");
  word.CreateDoc("");
  shell.Run("\"" + WScript.FullName + "\" //nologo \"" + here + "busy.vbs\" \"" + work + "busy" + bits + "\"", 0, false);
  var begin = new Date().getTime(), longest = 0, failed = 0, done = 0;
  while (new Date().getTime() - begin < 9000) {
    var before = new Date().getTime();
    if (attempt(function() { return word.SendText("x"); }) != 1) ++failed;
    longest = Math.max(longest, new Date().getTime() - before);
    ++done;
    wait(100);
  }
  tell(
      key + "busy.dialog", "what the other program said of its dialog",
      function() { return read_file(work + "busy" + bits) || "nothing"; });
  tell(key + "busy", "calls, those that failed, the longest in ms", function() {
    return [done, failed, longest];
  }, "none failed, and the longest took as long as the dialog");
  word.CloseDoc(0);
}

var ran_before = may_run("winword.exe", work + "processes" + bits);
if (expect(key + "start", "Start", 1, function() { return word.Start(false); })) {
  write_letter();
  try_cursor();
  try_table();
  try_headers();
  try_busy(ran_before);
  expect(key + "stop", "StopWord, and Start with a new Word after it", 1, function() {
    word.StopWord(true);
    return word.Start(true);
  });
  attempt(function() { word.StopWord(true); });
}
WScript.Echo("end");
