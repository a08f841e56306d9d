// The library's message boxes without their windows: making one and pressing its button takes longer than all
// the rest of a call. What a user sees of them, life_test.cpp looks at.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "import_table.h"
#include "text.h"

struct ShownBox {
  std::string title, text;
  HWND owner;
};

// While the one lives, the library's boxes are recorded, and OK is pressed at once.
class ShownBoxes {
 public:
  ShownBoxes() : earlier_(replace_import("MessageBoxW", reinterpret_cast<void*>(show))) { current_ = this; }
  ~ShownBoxes() { replace_import("MessageBoxW", earlier_); }
  ShownBoxes(const ShownBoxes&) = delete;

  // The boxes that appeared since the last call, oldest first.
  std::vector<ShownBox> take() { return std::exchange(shown_, {}); }

  // What happens while a box is there.
  std::function<void()> at_box;

 private:
  static int WINAPI show(HWND owner, const wchar_t* text, const wchar_t* title, UINT kind) {
    EXPECT_EQ(kind, UINT{MB_OK});
    current_->shown_.push_back({utf8(title), utf8(text), owner});
    if (current_->at_box) current_->at_box();
    return IDOK;
  }

  inline static ShownBoxes* current_;
  std::vector<ShownBox> shown_;
  void* const earlier_;
};
