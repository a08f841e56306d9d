// What script/pictures photographs: a business application's form that holds the three controls, which ATL's
// container creates by their names. Usage: letters_form PICTURE [FONT]...; PICTURE becomes a bitmap file of
// what the screen shows of the form, and a FONT is a file of one that Windows has and Wine may not have, such
// as that of the buttons in a caption.
#include <windows.h>

#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace {

constexpr int control_side = 28;
constexpr SIZE inside = {430, 306};

struct Part {
  const wchar_t* kind;
  const wchar_t* text;
  DWORD style;
  RECT place;  // left, top, width, height
};

constexpr const wchar_t* holder = L"AtlAxWin100";  // creates the control that its text names
constexpr DWORD label = SS_LEFT, field = WS_BORDER | ES_AUTOHSCROLL | WS_TABSTOP,
                button = BS_PUSHBUTTON | WS_TABSTOP;
constexpr Part parts[] = {
    {L"BUTTON", L"Customer", BS_GROUPBOX, {10, 8, 300, 132}},
    {L"STATIC", L"Number", label, {22, 32, 60, 18}},
    {L"EDIT", L"1001", field, {90, 29, 70, 21}},
    {L"STATIC", L"Name", label, {22, 58, 60, 18}},
    {L"EDIT", L"Anna Miller", field, {90, 55, 206, 21}},
    {L"STATIC", L"Street", label, {22, 84, 60, 18}},
    {L"EDIT", L"4 Harbour Road", field, {90, 81, 206, 21}},
    {L"STATIC", L"Town", label, {22, 110, 60, 18}},
    {L"EDIT", L"Newhaven", field, {90, 107, 206, 21}},
    {L"BUTTON", L"Letter", BS_GROUPBOX, {10, 146, 300, 84}},
    {L"STATIC", L"Template", label, {22, 170, 60, 18}},
    {L"EDIT", L"C:\\letters\\letters.dotx", field, {90, 167, 206, 21}},
    {L"BUTTON", L"Close the letter when it is written", BS_AUTOCHECKBOX | WS_TABSTOP, {90, 198, 206, 20}},
    {L"BUTTON", L"Write letter", button, {324, 14, 94, 25}},
    {L"BUTTON", L"Print", button, {324, 45, 94, 25}},
    {L"BUTTON", L"Send by mail", button, {324, 76, 94, 25}},
    {L"BUTTON", L"Close", button, {324, 205, 94, 25}},
    {L"STATIC", L"", SS_ETCHEDHORZ, {10, 240, 410, 2}},
    {holder, L"ZORBOffice.ZORBWord", 0, {61, 250, control_side, control_side}},
    {L"STATIC", L"ZORBWord", SS_CENTER, {30, 283, 90, 18}},
    {holder, L"ZORBOffice.ZORBOutlook", 0, {201, 250, control_side, control_side}},
    {L"STATIC", L"ZORBOutlook", SS_CENTER, {170, 283, 90, 18}},
    {holder, L"ZORBOffice.OpenWriter", 0, {341, 250, control_side, control_side}},
    {L"STATIC", L"OpenWriter", SS_CENTER, {310, 283, 90, 18}},
};

void require(bool condition, const char* what) {
  if (!condition) throw std::runtime_error(what);
}

template <class Function>
Function* atl_function(const char* name) {
  static const HMODULE atl = LoadLibraryW(L"atl100.dll");
  const auto found = reinterpret_cast<Function*>(GetProcAddress(atl, name));
  require(found, name);
  return found;
}

// The container's extent is in another unit than HIMETRIC under Wine, and would cut the control.
void fit(HWND window) {
  IUnknown* control = nullptr;
  const HRESULT status = atl_function<HRESULT WINAPI(HWND, IUnknown**)>("AtlAxGetControl")(window, &control);
  require(SUCCEEDED(status) && control, "a control was not created");
  IOleObject* object = nullptr;
  require(SUCCEEDED(control->QueryInterface(IID_IOleObject, reinterpret_cast<void**>(&object))),
          "no control");
  SIZEL extent = {control_side * 2540 / 96, control_side * 2540 / 96};
  object->SetExtent(DVASPECT_CONTENT, &extent);
  object->Release();
  control->Release();
}

HWND open_form() {
  WNDCLASSW kind = {};
  kind.lpfnWndProc = DefWindowProcW;
  kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  kind.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  kind.lpszClassName = L"LettersForm";
  RegisterClassW(&kind);
  constexpr DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
  RECT outside = {0, 0, inside.cx, inside.cy};
  AdjustWindowRect(&outside, style, FALSE);
  const HWND form = CreateWindowW(kind.lpszClassName, L"Letters", style, 20, 20, outside.right - outside.left,
                                  outside.bottom - outside.top, nullptr, nullptr, nullptr, nullptr);
  const auto font = GetStockObject(DEFAULT_GUI_FONT);
  for (const Part& part : parts) {
    const auto& [left, top, width, height] = part.place;
    const HWND made = CreateWindowW(part.kind, part.text, part.style | WS_CHILD | WS_VISIBLE, left, top,
                                    width, height, form, nullptr, nullptr, nullptr);
    require(made, "a part of the form was not created");
    SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    if (part.kind == holder) fit(made);
  }
  ShowWindow(form, SW_SHOW);
  SetForegroundWindow(form);
  return form;
}

struct Picture {
  BITMAPINFOHEADER format = {};
  std::vector<BYTE> pixels;
};

Picture on_screen(HWND window) {
  RECT place = {};
  GetWindowRect(window, &place);
  Picture picture;
  picture.format = {sizeof picture.format,
                    place.right - place.left,
                    place.bottom - place.top,
                    1,
                    24,
                    BI_RGB,
                    0,
                    0,
                    0,
                    0,
                    0};
  void* bits = nullptr;
  const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateDIBSection(memory, reinterpret_cast<BITMAPINFO*>(&picture.format),
                                          DIB_RGB_COLORS, &bits, nullptr, 0);
  require(bitmap, "no bitmap");
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, picture.format.biWidth, picture.format.biHeight, screen, place.left, place.top,
         SRCCOPY);
  GdiFlush();
  const size_t size = static_cast<size_t>((picture.format.biWidth * 3 + 3) / 4 * 4) * picture.format.biHeight;
  picture.pixels.assign(static_cast<BYTE*>(bits), static_cast<BYTE*>(bits) + size);
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  return picture;
}

// The screen when nothing has changed on it for a second.
Picture settled(HWND window) {
  Picture picture;
  for (int same = 0, rounds = 0; same < 10; ++rounds) {
    require(rounds < 100, "the form does not come to rest");
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    Sleep(100);
    Picture now = on_screen(window);
    same = now.pixels == picture.pixels ? same + 1 : 0;
    picture = std::move(now);
  }
  return picture;
}

void write(const Picture& picture, const wchar_t* path) {
  BITMAPFILEHEADER head = {};
  head.bfType = 0x4D42;  // "BM"
  head.bfOffBits = sizeof head + sizeof picture.format;
  head.bfSize = static_cast<DWORD>(head.bfOffBits + picture.pixels.size());
  const HANDLE file = CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  require(file != INVALID_HANDLE_VALUE, "the picture cannot be written");
  DWORD written = 0;
  bool done = WriteFile(file, &head, sizeof head, &written, nullptr);
  done = done && WriteFile(file, &picture.format, sizeof picture.format, &written, nullptr);
  done = done &&
         WriteFile(file, picture.pixels.data(), static_cast<DWORD>(picture.pixels.size()), &written, nullptr);
  CloseHandle(file);
  require(done, "the picture cannot be written");
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  try {
    require(count > 1, "usage: letters_form PICTURE [FONT]...");
    for (int i = 2; i < count; ++i) require(AddFontResourceW(arguments[i]), "a font cannot be used");
    require(SUCCEEDED(OleInitialize(nullptr)) && atl_function<BOOL WINAPI()>("AtlAxWinInit")(),
            "no container");
    const HWND form = open_form();
    write(settled(form), arguments[1]);
    DestroyWindow(form);
    OleUninitialize();
    return 0;
  } catch (const std::exception& failure) {
    (void)std::fprintf(stderr, "letters_form: %s\n", failure.what());
    return 1;
  }
}
