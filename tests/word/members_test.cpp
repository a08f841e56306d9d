// What every member asks of the word processor or the suite, and how it fails at each of its steps.
#include <set>
#include <span>

#include "support/member_rows.h"

namespace {

// The steps that reach an object are left out of the rows.
const std::map<std::string, std::string> reached = {
    {"\\w+ Documents\\.", "get Application.Documents | "},
    {"\\w+ Options\\.", "get Application.Options | "},
    {"\\w+ System\\.", "get Application.System | "},
    {"\\w+ Selection\\.", "get Document.ActiveWindow | get ActiveWindow.Selection | "}};

const std::string no_text = "bstr \"\"";

const std::string unnumbered =
    "create Word.Application | put Options.AutoFormatAsYouTypeApplyNumberedLists=bool 0";
const std::string placed =
    "create Word.Application | put Application.WindowState=i4 0 | get Application.CentimetersToPoints(r4 3)"
    " | put Application.Left=r4 85.5 | put Application.Top=i2 1 | get Application.Version";
const std::string resized =
    placed +
    " | get System.HorizontalResolution | get Application.CentimetersToPoints(r4 3)"
    " | get System.VerticalResolution | get Application.CentimetersToPoints(r4 0.5)"
    " | get Application.PixelsToPoints(r4 1280) | get Application.PixelsToPoints(r4 1024)"
    " | call Application.Resize(Width:=r4 874.5, Height:=r4 753.75)";
const std::string activated = " | call Application.Activate", quit = "call Application.Quit";

const Row session[] = {
    {L"Start", {}, "ui1 1", unnumbered},
    {L"Start", {true}, "ui1 1", resized},
    {L"Start", {true}, "ui1 1", placed, {{"Application.Version", {L"85"}}}},
    {L"Start", {true}, "ui1 1", resized, {{"Application.Version", {L"18.0"}}}},
    {L"Start", {true}, "ui1 1", resized, {{"Application.Version", {L""}}}},
    {L"SetVisible", {1}, "ui1 1", "put Application.Visible=bool -1" + activated},
    {L"SetVisible", {false}, "ui1 1", "put Application.Visible=bool 0" + activated},
    {L"SetActive", {false}, "ui1 1", "call Application.Activate"},
    {L"SetScreenUpdating", {true}, "ui1 1", "put Application.ScreenUpdating=bool -1"},
    {L"SetScreenUpdating", {false}, "ui1 1", "put Application.ScreenUpdating=bool 0"},
    {L"StopWord", {true}, "empty", quit},
    {L"StopWord", {}, "empty", "get Documents.Count | " + quit},
    {L"StopWord", {false}, "empty", "get Documents.Count", {{"Documents.Count", {1}}}},
    {L"GetLastErrorNumber", {}, "i4 0", ""},
    {L"GetLastErrorDescription", {}, no_text, ""},
    {L"GetDefaultPaths", {2}, R"(bstr "C:\Documents")", "get Options.DefaultFilePath(&i2 2)"},
};

const std::string finalised =
    "call Document.UpdateStyles | put Document.UpdateStylesOnOpen=bool 0"
    " | put Document.AttachedTemplate=bstr \"\"";
const std::string printers = R"(get Application.ActivePrinter | put Application.ActivePrinter=bstr "Kept")";
const std::string statuses =
    "get Application.BackgroundPrintingStatus | get Application.BackgroundSavingStatus";

const std::pair<const std::string, Answer> busy = {"Application.BackgroundSavingStatus", {40000}};

const Row documents[] = {
    {L"OpenDoc", {L"C:\\b.docx"}, "ui1 1", R"(get Documents.Open(&bstr "C:\b.docx"))"},
    {L"CreateDoc", {}, "ui1 1", R"(get Documents.Add(Template:=&bstr ""))"},
    {L"CreateDoc", {L"a.dotx"}, "ui1 1", R"(get Documents.Add(Template:=&bstr "a.dotx"))"},
    {L"FinaliseDoc", {}, "empty", finalised},
    {L"SaveDoc", {}, "empty", "call Document.Save"},
    {L"SaveDoc", {L""}, "empty", "call Document.Save"},
    {L"SaveDoc", {L"c"}, "empty", R"(call Document.SaveAs(&bstr "c"))", {}, "", "Save Doc : % c"},
    {L"SaveDocAsPDF", {}, "bool 0", printers},
    {L"CloseDoc", {}, "empty", "call Document.Close(&i2 0, i4 1, bool 0)"},
    {L"CloseDoc", {-1}, "empty", "call Document.Close(&i2 -1, i4 1, bool 0)"},
    {L"PrintDoc", {2}, "empty", "call Document.PrintOut(Copies:=&i2 2)"},
    {L"PrintDoc", {2, true}, "empty", "call Document.PrintOut(Copies:=&i2 2)"},
    {L"IsPrinting", {}, "i2 2", statuses},
    {L"IsPrinting", {}, "raised 800A0006 Overflow", statuses, {busy}},
};

const std::string to_the_end =
    "get Document.Range | get Range.Text | get Document.Range(i4 3, i4 10) | get Range.[value]";
const std::string by_sections =
    "get Document.Sections | get Sections.[newenum] | next Sections | get Section1.Range | get Range1.Text"
    " | next Sections | get Section2.Range | get Range2.Text | next Sections | get Section3.Range"
    " | get Range3.Text | next Sections";

const std::string first_paragraph =
    "get Selection.Paragraphs(i2 1) | get Paragraphs.Range | call Range.Select";

const Row text[] = {
    {L"SendText", {L"Dear \x20ac"}, "ui1 1", "call Selection.TypeText(bstr \"Dear \xe2\x82\xac\")"},
    {L"ReadText", {2, 5}, R"(bstr "0123456789")", "get Document.Range(&i4 2, &i4 5) | get Range.Text"},
    {L"ReadText", {3, 0}, R"(bstr "3456789")", to_the_end},
    {L"ReadText", {0, 5}, R"(bstr "0123456789")", "get Document.Range(i2 1, i4 5) | get Range.Text"},
    {L"ReadText", {-7, 1}, R"(bstr "0123456789")", "get Document.Range(i2 1, i4 1) | get Range.Text"},
    {L"ReadText", {0, -1}, R"(bstr "one two three")", by_sections},
    {L"SelectionText", {}, R"(bstr "chosen")", "get Selection.Text"},
    {L"Cut", {}, "empty", "call Selection.Cut"},
    {L"Paste", {}, "empty", "call Selection.Paste"},
    {L"SelectParagraph", {}, "empty", first_paragraph},
    {L"CursorLeft", {3}, "empty", "call Selection.MoveLeft(&i2 1, &i2 3, i2 0)"},
    {L"CursorLeft", {3, 2, 1}, "empty", "call Selection.MoveLeft(&i2 2, &i2 3, int 1)"},
    {L"CursorRight", {2}, "empty", "call Selection.MoveRight(&i2 1, &i2 2, i2 0)"},
    {L"CursorRight", {2, 1, true}, "empty", "call Selection.MoveRight(&i2 1, &i2 2, bool -1)"},
    {L"CursorStartOfParagraph", {}, "empty", "call Selection.StartOf(Unit:=i4 4, Extend:=i4 0)"},
    {L"CursorStartOfCell", {}, "empty", "call Selection.StartOf(Unit:=i4 12, Extend:=i4 0)"},
    {L"CursorEndOfCell", {}, "empty", "call Selection.EndOf(Unit:=i4 12, Extend:=i4 0)"},
    {L"CursorEndOfParagraph", {}, "empty", "call Selection.EndOf(Unit:=i4 4, Extend:=i4 0)"},
    {L"Move", {4, -2}, "empty", "call Selection.Move(&i2 4, &i2 -2)"},
    {L"GotoLine", {7}, "bool -1", "call Selection.GoTo(What:=i4 3, Which:=i4 1, Count:=&i2 7)"},
};

// Text, direction and wrap, then the match flags, "1" for a true one. The selection is fetched once and its
// Find for every setting.
std::string searched(const std::string& top, std::string settings, const std::string& flags) {
  const char* const names[] = {"Case", "WholeWord", "Wildcards", "SoundsLike", "AllWordForms"};
  settings += ";Format=bool 0";
  for (size_t i = 0; i < 5; ++i)
    settings += std::string(";Match") + names[i] + (flags[i] == '1' ? "=bool -1" : "=bool 0");
  const std::string fetched = " | get Chosen.Find | ";
  return "get Document.ActiveWindow | get ActiveWindow.Selection" + top + fetched +
         "call Find.ClearFormatting" + std::regex_replace(settings, std::regex(";"), fetched + "put Find.") +
         fetched + "get Find.Execute";
}
Arguments with_flags(Arguments arguments, const std::string& flags) {
  for (const char flag : flags) arguments.emplace_back(flag == '1');
  return arguments;
}
const std::string forward_a = R"(;Text=bstr "a";Forward=bool -1;Wrap=ui1 1)",
                  back = R"(;Text=bstr "";Forward=bool 0;Wrap=ui1 2)";
const std::string none = "00000";

const std::string from_top = " | call Chosen.HomeKey(i2 6)";
const std::pair<const std::string, Answer> chosen = {"ActiveWindow.Selection", {.object = "Chosen"}},
                                           miss = {"Find.Execute", {false}};

// The match flags and the direction, wrap and what to replace.
std::string replaced(const std::string& flags, const std::string& wrap, const std::string& option) {
  std::string step = "get Find.Execute(&bstr \"a\"";
  for (const char flag : flags) step += flag == '1' ? ", &bool -1" : ", &bool 0";
  return step + ", &ui1 " + wrap + ", bool 0, &bstr \"b\", &ui1 " + option + ")";
}
const std::string one = replaced("000001", "1", "1"), all = replaced("101010", "0", "2");
const std::string selected = "get Selection.Find | ";

// Between them the rows with flags tell each flag from every other.
Row searching(const std::string& flags) {
  return {L"Search", with_flags({L"", 2, false, false}, flags), "ui1 1", searched("", back, flags), {chosen}};
}
Row replacing(const std::string& flags) {
  return {L"Replace", with_flags({L"a", L"b", 1, true, true}, flags), "ui1 1",
          selected + replaced(flags + "1", "1", "1")};
}

const Row search[] = {
    {L"Search", {L"a"}, "ui1 1", searched("", forward_a, none), {chosen}},
    {L"Search", {L"a", 1, true, true}, "ui1 1", searched(from_top, forward_a, none), {chosen}},
    searching("10101"),
    searching("01100"),
    searching("00011"),
    {L"Search", {L"a"}, "ui1 0", searched("", forward_a, none), {chosen, miss}},
    {L"Replace", {L"a", L"b"}, "ui1 1", selected + one},
    {L"Replace", {L"a", L"b", 1, true, false}, "ui1 1", selected + one},
    {L"Replace", {L"a", L"b", 0, false, true, true, false, true, false, true, 2}, "ui1 1", selected + all},
    replacing("01100"),
    replacing("00011"),
    {L"Replace", {L"a", L"b"}, "ui1 0", selected + one, {miss}},
};

const std::string whole = "get Range.Text", first_row = "get Selection.Rows(i2 1) | ";
const std::string cell = first_row + "get Rows.Cells(&i4 2) | get Cells.Range | get Range.Text";
const std::string in_table = "get Selection.Information(i2 12)";
const Row tables[] = {
    {L"InTable", {}, "ui1 1", in_table},
    {L"InTable", {}, "ui1 0", in_table, {{"Selection.Information", {false}}}},
    {L"SelectRow", {}, "empty", "call Selection.SelectRow"},
    {L"CellCount", {}, "i4 4", first_row + "get Rows.Cells | get Cells.Count"},
    {L"CellText", {2}, "bstr \"a\r\a\"", cell, {{"Range.Text", {L"a\r\a"}}}},
};

std::string part(const std::string& kind, int type, const std::string& then = "") {
  return "get Document.Sections(i4 2) | get Sections." + kind + "(i4 " + std::to_string(type) + ") | get " +
         kind + ".Exists" + (then.empty() ? "" : " | get " + kind + ".Range | ") + then;
}
std::string between(int start, int end) {
  return "call Range.SetRange(i4 " + std::to_string(start) + ", i4 " + std::to_string(end) + ") | " + whole;
}
Row reading(const Arguments& arguments, const std::string& steps) {
  return {L"ReadHeaderFooterText", arguments, "bstr \"0123456789\"", steps};
}
Row replacing_part(const Arguments& arguments, const std::string& step) {
  return {L"ReplaceHeaderFooter", arguments, "ui1 1", part("Headers", 1, "get Range.Find | " + step)};
}
const std::pair<const std::string, Answer> absent = {"Headers.Exists", {false}};
const Row headers[] = {
    {L"NumberOfSections", {}, "i4 3", "get Document.Sections | get Sections.Count"},
    reading({2, true, 1, 0, 0}, part("Headers", 1, whole)),
    reading({2, false, 3, 4, 6}, part("Footers", 3, between(4, 6))),
    reading({2, true, 2, -1, 6}, part("Headers", 2, between(1, 6))),
    reading({2, true, 2, 4, 0}, part("Headers", 2, whole + " | " + between(4, 10))),
    {L"ReadHeaderFooterText", {2, true, 2, 0, 0}, no_text, part("Headers", 2), {absent}},
    {L"ReplaceHeaderFooter", {2, true, 2, L"a", L"b"}, "ui1 0", part("Headers", 2), {absent}},
    replacing_part({2, true, 1, L"a", L"b"}, one),
    replacing_part({2, true, 1, L"a", L"b", 0, false, true, true, false, true, false, true, 2}, all),
};

// OpenWriter has all but its own members from ZORBWord.
using ControlTypes = testing::Types<WordTest, WriterTest>;
template <class Control>
using Members = Control;
TYPED_TEST_SUITE(Members, ControlTypes);

TYPED_TEST(Members, TakeTheirStepsAndStopAtTheOneThatFails) {
  const std::set<std::wstring> own = {L"Start",   L"SetVisible", L"SetActive", L"SetScreenUpdating",
                                      L"OpenDoc", L"CreateDoc",  L"CloseDoc",  L"ReadText",
                                      L"Search"};
  for (const auto table : {std::span<const Row>(session), {documents}, {text}, {search}, {tables}, {headers}})
    for (Row row : table) {
      if (std::is_same_v<TypeParam, WriterTest> && own.contains(row.member)) continue;
      for (const auto& [step, way] : reached)
        row.steps = std::regex_replace(row.steps, std::regex(step), way + "$&");
      this->check(row);
    }
}

}  // namespace
