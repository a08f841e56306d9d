// The three jobs of examples/README.md: jobs letter TEMPLATE OUTPUT NAME | table DOCUMENT | appointments [DAY]
//   cl /EHsc /I..\..\bindings\cpp jobs.cpp
//   i686-w64-mingw32-g++ -std=c++11 -municode -static -I../../bindings/cpp jobs.cpp -o jobs.exe -lole32 -loleaut32
#include "ZORBOffice.h"

#include <fcntl.h>
#include <io.h>

#include <ctime>
#include <iostream>
#include <set>

using namespace ZORBOffice;
using std::wstring;

void require(bool holds, const wstring& reason) {
  if (!holds) throw Error(E_FAIL, reason);
}

bool exists(const wstring& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

// Word has a current folder of its own.
wstring full(const wchar_t* path) {
  wchar_t buffer[MAX_PATH];
  require(_wfullpath(buffer, path, MAX_PATH) != nullptr, path);
  return buffer;
}

wstring replaced(wstring text, const wstring& part, const wstring& by) {
  for (auto at = text.find(part); at != wstring::npos; at = text.find(part, at + by.size())) text.replace(at, part.size(), by);
  return text;
}

// Word stays behind unless it is told to quit, and asks about changes unless the document is closed without them.
struct Document : ZORBWord {
  Document(const wstring& path, bool is_template) {
    require(Start(), L"Word does not start");
    if (is_template ? CreateDoc(path) : OpenDoc(path)) return;
    StopWord(true);
    throw Error(E_FAIL, L"cannot be opened: " + path);
  }
  ~Document() {
    try {
      CloseDoc(wdDoNotSaveChanges);
      StopWord(true);
    } catch (const Error&) {  // Word has ended
    }
  }
};

void letter(const wstring& letter_template, const wstring& output, const wstring& name) {
  require(!exists(output), output + L" exists");
  Document word(letter_template, true);
  const auto fill = [&](const wstring& field, const wstring& value) {
    // A "^" begins a code of Word's.
    word.Replace(field, replaced(value, L"^", L"^^"), wdFindContinue, true, true, false, false, false, false, false, wdReplaceAll);
  };
  fill(L"<<Name>>", name);
  fill(L"<<Order>>", L"12 boxes of paper, EUR 49.90 each");
  const wstring text = word.ReadText(0, 0);
  require(!text.empty() && text.find(L"<<") == wstring::npos, L"a field is left in the letter");
  word.SaveDoc(output);
  require(exists(output), L"the letter cannot be saved");  // saving has no result
  std::wcout << L"saved " << output.substr(output.rfind(L'\\') + 1) << L'\n';
}

void table(const wstring& document) {
  Document word(document, false);
  require(word.Search(L"Article") && word.InTable(), L"the document has no price table");
  while (word.InTable()) {
    // A cell's text ends in its end mark, and holds paragraph marks in between.
    for (long cell = 1, count = word.CellCount(); cell <= count; ++cell)
      std::wcout << (cell > 1 ? L" | " : L"") << replaced(replaced(word.CellText(cell), L"\r\a", L""), L"\r", L" ");
    std::wcout << L'\n';
    // Behind a row that is selected as a whole lies the next one, or the text after the table.
    word.SelectRow();
    word.CursorRight(1);
  }
}

void appointments(const wstring& day) {
  ZORBOutlook outlook;
  const auto get = [&](const wchar_t* key) { return outlook.GetAppointmentProperty(key); };
  // Dates and times read with the separators of the user's settings: only the digits are sure.
  const auto day_of = [](const wstring& d) { return d.substr(6, 4) + L"-" + d.substr(3, 2) + L"-" + d.substr(0, 2); };
  const auto time_of = [](const wstring& t) { return t.substr(0, 2) + L":" + t.substr(3, 2); };
  // A series is one item, which begins when the series does.
  const wstring condition = L"[Start] <= '" + day + L" 23:59' AND ([Start] >= '" + day + L" 00:00' OR [IsRecurring] = True)";
  require(outlook.StartOutlook() && outlook.InitItems(EntryType::Appointment, condition), outlook.GetLastErrorDescription());
  std::multiset<wstring> lines;
  for (bool found = outlook.GetFirstItem(EntryType::Appointment); found; found = outlook.GetNextItem(EntryType::Appointment)) {
    const wstring time = time_of(get(AppointmentKey::StartTime));
    if (get(AppointmentKey::IsRecurring) == L"True" && !outlook.GetAppointmentInstance(day + L" " + time)) continue;
    // An occurrence that was moved may answer to the day that it had.
    if (day_of(get(AppointmentKey::StartDate)) == day)
      lines.insert(time_of(get(AppointmentKey::StartTime)) + L" " + get(AppointmentKey::Subject));
  }
  for (const wstring& line : lines) std::wcout << line << L'\n';
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
  const Apartment apartment;
  const wstring job = count > 1 ? arguments[1] : L"";
  if (job == L"letter" && count == 5)
    letter(full(arguments[2]), full(arguments[3]), arguments[4]);
  else if (job == L"table" && count == 3)
    table(full(arguments[2]));
  else if (job == L"appointments" && count <= 3)
    appointments(count == 3 ? arguments[2] : tomorrow());
  else
    throw Error(E_INVALIDARG, L"usage: jobs letter TEMPLATE OUTPUT NAME | table DOCUMENT | appointments [DAY]");
  return 0;
} catch (const Error& failure) {
  std::cerr << failure.what() << '\n';
  return 1;
}
