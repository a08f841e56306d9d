// The three jobs of examples/README.md: jobs letter TEMPLATE OUTPUT NAME | table DOCUMENT | appointments [DAY]
//   cl /EHsc /utf-8 /I..\..\bindings\cpp jobs.cpp
//   i686-w64-mingw32-g++ -std=c++11 -municode -static -I../../bindings/cpp jobs.cpp -o jobs.exe -lole32 -loleaut32
#include "ZORBOffice.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <ctime>
#include <set>

using namespace ZORBOffice;
using std::wstring;

void require(bool holds, const wstring& reason) {
  if (!holds) throw Error(E_FAIL, reason);
}

void print(const wstring& line, FILE* where = stdout) { fputws((line + L'\n').c_str(), where); }

bool exists(const wstring& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

// Word has a current folder of its own.
wstring full(const wchar_t* path) {
  wchar_t buffer[MAX_PATH];
  require(_wfullpath(buffer, path, MAX_PATH) != nullptr, wstring(L"no such path: ") + path);
  return buffer;
}

wstring replaced(wstring text, const wstring& part, const wstring& by) {
  for (auto at = text.find(part); at != wstring::npos; at = text.find(part, at + by.size())) text.replace(at, part.size(), by);
  return text;
}

struct Word : ZORBWord {
  bool is_open = false;
  // Word stays behind unless it is told to quit, and asks about changes unless the document is closed without them.
  ~Word() {
    try {
      if (is_open) CloseDoc(wdDoNotSaveChanges);
      StopWord(true);
    } catch (const Error&) {  // it was not started, or has ended
    }
  }
};

void letter(const wstring& letter_template, const wstring& output, const wstring& name) {
  require(!exists(output), output + L" exists");
  Word word;
  require(word.Start(), L"Word does not start");
  require(word.is_open = word.CreateDoc(letter_template), L"the template cannot be opened");
  const auto fill = [&](const wstring& field, const wstring& value) {
    // A "^" begins a code of Word's.
    word.Replace(field, replaced(value, L"^", L"^^"), wdFindContinue, true, true, false, false, false, false, false, wdReplaceAll);
  };
  fill(L"<<Name>>", name);
  fill(L"<<Order>>", L"12 boxes of paper, EUR 49.90 each");
  const wstring text = word.ReadText(0, 0);
  require(!text.empty() && text.find(L"<<") == wstring::npos, L"a field is left in the letter");
  word.SaveDoc(output);
  require(exists(output), L"the letter cannot be saved");
  print(L"saved " + output.substr(output.rfind(L'\\') + 1));
}

void table(const wstring& document) {
  Word word;
  require(word.Start(), L"Word does not start");
  require(word.is_open = word.OpenDoc(document), L"the document cannot be opened");
  require(word.Search(L"Article") && word.InTable(), L"the document has no price table");
  while (word.InTable()) {
    wstring row;
    // A cell's text ends in its end mark, and holds paragraph marks in between.
    for (long cell = 1, count = word.CellCount(); cell <= count; ++cell)
      row += (cell > 1 ? L" | " : L"") + replaced(replaced(word.CellText(cell), L"\r\a", L""), L"\r", L" ");
    print(row);
    // Behind a row that is selected as a whole lies the next one, or the text after the table.
    word.SelectRow();
    word.CursorRight(1);
  }
}

void appointments(const wstring& day) {
  ZORBOutlook outlook;
  const auto get = [&](const wchar_t* key) { return outlook.GetAppointmentProperty(key); };
  // Dates and times read with the separators of the user's settings: only the digits are sure.
  const auto start_day = [&](wstring d) { return d.substr(6, 4) + L"-" + d.substr(3, 2) + L"-" + d.substr(0, 2); };
  const auto start_time = [&] { return replaced(get(AppointmentKey::StartTime), L".", L":").substr(0, 5); };
  // A series is one item, which begins when the series does.
  const wstring condition = L"[Start] <= '" + day + L" 23:59' AND ([Start] >= '" + day + L" 00:00' OR [IsRecurring] = True)";
  require(outlook.StartOutlook() && outlook.InitItems(EntryType::Appointment, condition), outlook.GetLastErrorDescription());
  std::multiset<wstring> lines;
  for (bool found = outlook.GetFirstItem(EntryType::Appointment); found; found = outlook.GetNextItem(EntryType::Appointment)) {
    if (get(AppointmentKey::IsRecurring) == L"True" && !outlook.GetAppointmentInstance(day + L" " + start_time())) continue;
    // An occurrence that was moved may answer to the day that it had.
    if (start_day(get(AppointmentKey::StartDate)) == day) lines.insert(start_time() + L" " + get(AppointmentKey::Subject));
  }
  for (const wstring& line : lines) print(line);
}

wstring tomorrow() {
  const std::time_t now = std::time(nullptr);
  std::tm day = *std::localtime(&now);
  ++day.tm_mday;
  std::mktime(&day);
  wchar_t written[11];
  return wstring(written, std::wcsftime(written, 11, L"%Y-%m-%d", &day));
}

int wmain(int count, wchar_t** arguments) try {
  _setmode(_fileno(stdout), _O_U8TEXT);
  _setmode(_fileno(stderr), _O_U8TEXT);
  const Apartment apartment;
  const wstring job = count > 1 ? arguments[1] : L"";
  if (job == L"letter" && count == 5)
    letter(full(arguments[2]), full(arguments[3]), arguments[4]);
  else if (job == L"table" && count == 3)
    table(full(arguments[2]));
  else if (job == L"appointments" && count <= 3)
    appointments(count == 3 ? arguments[2] : tomorrow());
  else
    require(false, L"usage: jobs letter TEMPLATE OUTPUT NAME | table DOCUMENT | appointments [DAY]");
  return 0;
} catch (const Error& failure) {
  print(failure.text(), stderr);
  return 1;
}
