// The three jobs of examples/README.md: Jobs letter TEMPLATE OUTPUT NAME | table DOCUMENT | appointments [DAY]
//   csc /platform:x86 Jobs.cs ..\..\bindings\csharp\ZORBOffice.cs      (/platform:x64 for the 64-bit library)
using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using ZORBOffice;

static class Jobs {
  [STAThread]
  static int Main(string[] arguments) {
    try {
      switch ((arguments.FirstOrDefault() ?? "") + arguments.Length) {
        // Word has a current folder of its own.
        case "letter4": Letter(Path.GetFullPath(arguments[1]), Path.GetFullPath(arguments[2]), arguments[3]); break;
        case "table2": Table(Path.GetFullPath(arguments[1])); break;
        case "appointments1": Appointments(DateTime.Today.AddDays(1).ToString("yyyy'-'MM'-'dd")); break;
        case "appointments2": Appointments(arguments[1]); break;
        default: throw new Exception("usage: Jobs letter TEMPLATE OUTPUT NAME | table DOCUMENT | appointments [DAY]");
      }
      return 0;
    } catch (Exception failure) {
      Console.Error.WriteLine(failure.Message);
      return 1;
    }
  }

  static void Require(bool holds, string reason) { if (!holds) throw new Exception(reason); }

  // Word stays behind unless it is told to quit, and asks about changes unless the document is closed without them.
  static void WithDocument(Func<ZORBWord, bool> open, Action<ZORBWord> job) {
    using (var word = new ZORBWord()) {
      Require(word.Start(), "Word does not start");
      try {
        Require(open(word), "the template or document cannot be opened");
        try { job(word); } finally { word.CloseDoc(WdSaveOptions.wdDoNotSaveChanges); }
      } finally { word.StopWord(true); }
    }
  }

  static void Letter(string template, string output, string name) {
    Require(!File.Exists(output), output + " exists");
    WithDocument(word => word.CreateDoc(template), word => {
      // A "^" begins a code of Word's.
      word.Replace("<<Name>>", name.Replace("^", "^^"), ReplaceOption: WdReplace.wdReplaceAll);
      word.Replace("<<Order>>", "12 boxes of paper, EUR 49.90 each", ReplaceOption: WdReplace.wdReplaceAll);
      var text = word.ReadText(0, 0);
      Require(text != "" && !text.Contains("<<"), "a field is left in the letter");
      word.SaveDoc(output);
      Require(File.Exists(output), "the letter cannot be saved");  // saving has no result
    });
    Console.WriteLine("saved " + Path.GetFileName(output));
  }

  static void Table(string document) => WithDocument(word => word.OpenDoc(document), word => {
    Require(word.Search("Article") && word.InTable(), "the document has no price table");
    while (word.InTable()) {
      // A cell's text ends in its end mark, and holds paragraph marks in between.
      var cells = from cell in Enumerable.Range(1, word.CellCount())
                  select word.CellText(cell).Replace("\r\a", "").Replace('\r', ' ');
      Console.WriteLine(string.Join(" | ", cells));
      // Behind a row that is selected as a whole lies the next one, or the text after the table.
      word.SelectRow();
      word.CursorRight(1);
    }
  });

  static void Appointments(string day) {
    using (var outlook = new ZORBOutlook()) {
      Func<string, string> get = outlook.GetAppointmentProperty;
      // Dates and times read with the separators of the user's settings: only the digits are sure.
      Func<string> time = () => get(AppointmentKey.StartTime).Remove(2, 1).Insert(2, ":").Remove(5);
      Func<string, string> dayOf = date => $"{date.Substring(6, 4)}-{date.Substring(3, 2)}-{date.Substring(0, 2)}";
      // A series is one item, which begins when the series does.
      var condition = $"[Start] <= '{day} 23:59' AND ([Start] >= '{day} 00:00' OR [IsRecurring] = True)";
      Require(outlook.StartOutlook() && outlook.InitItems(EntryType.Appointment, condition), outlook.GetLastErrorDescription());
      var lines = new List<string>();
      for (var found = outlook.GetFirstItem(EntryType.Appointment); found; found = outlook.GetNextItem(EntryType.Appointment)) {
        if (get(AppointmentKey.IsRecurring) == "True" && !outlook.GetAppointmentInstance($"{day} {time()}")) continue;
        // An occurrence that was moved may answer to the day that it had.
        if (dayOf(get(AppointmentKey.StartDate)) == day) lines.Add($"{time()} {get(AppointmentKey.Subject)}");
      }
      lines.Sort(StringComparer.Ordinal);
      foreach (var line in lines) Console.WriteLine(line);
    }
  }
}
