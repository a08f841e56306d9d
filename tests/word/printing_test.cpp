// Printing: the host's messages, the owner of a message box and the system's printers.
#include "support/member_rows.h"

namespace {

using Printing = WordTest;

std::vector<std::string>* heard = nullptr;
constexpr UINT once = WM_APP, restless = WM_APP + 1;

LRESULT CALLBACK hear(HWND window, UINT message, WPARAM word, LPARAM value) {
  if (message == once) heard->push_back("message");
  if (message == restless) PostMessageW(window, restless, 0, 0);
  return DefWindowProcW(window, message, word, value);
}

HWND make_window() {
  HWND window = CreateWindowExW(0, L"Static", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100,
                                nullptr, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(hear));
  return window;
}

TEST_F(Printing, LetsTheHostsMessagesRunOnceAfterwards) {
  make_ready();
  heard = &office_.log;
  const HWND window = make_window();
  for (const UINT last : {once, restless}) {
    PostMessageW(window, once, 0, 0);
    PostQuitMessage(7);
    PostMessageW(window, last, 0, 0);
    expect(L"PrintDoc", {1}, "empty");
    EXPECT_EQ(log(), std::string("call Document.PrintOut(Copies:=&i2 1) | message") +
                         (last == once ? " | message" : ""));
    MSG left = {};
    PeekMessageW(&left, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    EXPECT_EQ(left.message, UINT{WM_QUIT}) << "the host must still end";
    EXPECT_EQ(left.wParam, 7u);
  }
  DestroyWindow(window);
}

TEST_F(Printing, MessageBoxesBelongToTheActiveWindow) {
  const HWND window = make_window();
  SetActiveWindow(window);
  call(L"PrintDoc", {1});
  const auto boxes = boxes_.take();
  DestroyWindow(window);
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].owner, window);
}

std::wstring loaded;
HMODULE WINAPI load(const wchar_t* path) { return LoadLibraryW((loaded = path).c_str()); }

TEST_F(Printing, ToPdfTakesTheFirstPrinterOfThatName) {
  void* const unwatched = replace_import("LoadLibraryW", reinterpret_cast<void*>(load));
  // Wine reads the list of printers from here at each request.
  const std::wstring key = L"System\\CurrentControlSet\\Control\\Print\\Printers\\";
  const std::string read = "get Application.ActivePrinter | ",
                    printed =
                        R"(put Application.ActivePrinter=bstr "!d PDF out" | call Document.PrintOut | )",
                    restored = R"(put Application.ActivePrinter=bstr "Kept")";
  for (const bool installed : {false, true}) {
    const std::wstring names[] = {L"!a plain", L"!b pdf", L"!c Pdf", installed ? L"!d PDF out" : L"!d",
                                  L"!e p"};
    for (const auto& name : names)
      RegSetKeyValueW(HKEY_LOCAL_MACHINE, (key + name).c_str(), L"Name", REG_SZ, name.c_str(),
                      static_cast<DWORD>((name.size() + 1) * sizeof(wchar_t)));
    const auto steps = read + (installed ? printed : "") + restored;
    check({L"SaveDocAsPDF", {}, installed ? "bool -1" : "bool 0", steps});
    for (const auto& name : names) RegDeleteTreeW(HKEY_LOCAL_MACHINE, (key + name).c_str());
  }
  replace_import("LoadLibraryW", unwatched);
  wchar_t system[MAX_PATH];
  GetSystemDirectoryW(system, MAX_PATH);
  EXPECT_EQ(loaded, std::wstring(system) + L"\\winspool.drv") << "a library is loaded by its full path";
}

}  // namespace
