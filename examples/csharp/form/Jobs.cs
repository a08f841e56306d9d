// What the form's buttons do, with the controls that the form holds.
using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;

static class Jobs
{
    public static string[] Do(string job, string[] arguments, HeldControl word, HeldControl outlook)
    {
        if (job == "appointments")
            return Calendar.Appointments(outlook, arguments.FirstOrDefault() ?? Calendar.Tomorrow);
        if (arguments.Length < (job == "letter" ? 3 : 1))
            throw new ArgumentException("letter TEMPLATE OUTPUT NAME, or table DOCUMENT, is needed");
        try
        {
            if (!word.Does("Start")) throw new InvalidOperationException("Word does not start");
            return job == "letter" ? Letter(word, Path.GetFullPath(arguments[0]), Path.GetFullPath(arguments[1]), arguments[2])
                                   : Table(word, Path.GetFullPath(arguments[0]));
        }
        finally
        {
            // Word stays behind unless it is told to quit. Where it could not be created, this raises "Object required".
            try { word.Ask("StopWord", true); } catch (Exception) { }
        }
    }

    static string[] Letter(HeldControl word, string template, string output, string name)
    {
        if (File.Exists(output)) throw new IOException(output + " exists");
        if (!word.Does("CreateDoc", template)) throw new IOException("the template cannot be opened");
        Fill(word, "<<Name>>", name);
        Fill(word, "<<Order>>", "12 boxes of paper, EUR 49.90 each");
        var text = (string)word.Ask("ReadText", 0, 0);
        if (text != "" && !text.Contains("<<")) word.Ask("SaveDoc", output);
        // Word asks about changes when it quits, not when a document is closed without them.
        word.Ask("CloseDoc", 0);
        // Saving has no result.
        if (!File.Exists(output)) throw new IOException("the letter is not filled, or cannot be saved");
        return new[] { "saved " + Path.GetFileName(output) };
    }

    static void Fill(HeldControl word, string field, string value)
    {
        const int allOfThem = 2;
        // A "^" begins a code of Word's.
        word.Ask("Replace", field, value.Replace("^", "^^"), 1, true, true, false, false, false, false, false, allOfThem);
    }

    static string[] Table(HeldControl word, string document)
    {
        if (!word.Does("OpenDoc", document)) throw new IOException("the document cannot be opened");
        var rows = new List<string>();
        var found = word.Does("Search", "Article");
        while (found && word.Does("InTable"))
        {
            // A cell's text ends in its end mark, and holds paragraph marks in between.
            var cells = Enumerable.Range(1, (int)word.Ask("CellCount"))
                .Select(cell => ((string)word.Ask("CellText", cell)).Replace("\r\a", "").Replace("\r", " "));
            rows.Add(string.Join(" | ", cells));
            // Behind a row that is selected as a whole lies the next one, or the text after the table.
            word.Ask("SelectRow");
            word.Ask("CursorRight", 1);
        }
        word.Ask("CloseDoc", 0);
        if (rows.Count == 0) throw new IOException("the document has no price table");
        return rows.ToArray();
    }
}
