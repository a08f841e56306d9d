// OpenWriter's own members.
#include "ZORBOffice/writer/open_writer.h"

#include <string>

#include "ZORBOffice/word/window_placement.h"
#include "ZORBOffice/word/word_global.h"

namespace zorboffice {
namespace {

constexpr SHORT no_frame_search = 0;  // com.sun.star.frame.FrameSearchFlag.AUTO

// No load arguments: an array that was declared but never dimensioned, as a variable that a call may fill.
class NoLoadArguments {
 public:
  NoLoadArguments() = default;
  NoLoadArguments(const NoLoadArguments&) = delete;
  NoLoadArguments& operator=(const NoLoadArguments&) = delete;
  ~NoLoadArguments() { SafeArrayDestroy(array_); }

  Argument by_reference() { return Argument::array_reference(&array_); }

 private:
  SAFEARRAY* array_ = nullptr;
};

}  // namespace

HRESULT OpenWriter::get_Start(VARIANT_BOOL* Template, BYTE* result) noexcept {
  return trapped(result, both(message(L"Start "), message(L"")), [&] {
    const AutomationObject manager = AutomationObject::create_untyped(L"com.sun.star.ServiceManager");
    const auto service = [&](const wchar_t* name) { return manager.get(L"createInstance", Bstr(name)); };
    application_ = manager;
    // No member needs it: a suite without one does as well.
    core_reflection_ = service(L"com.sun.star.reflection.CoreReflection").object_or_nothing();
    desktop_ = service(L"com.sun.star.frame.Desktop").object();
    if (flag(Template)) place_window(manager, word_global, Argument::missing());
    return success;
  });
}

// A suite's window needs none of these: hosts written for the word processor call them all the same.

HRESULT OpenWriter::get_SetVisible(VARIANT_BOOL*, BYTE* result) noexcept {
  return trapped(result, none, [] { return success; });
}

HRESULT OpenWriter::get_SetActive(VARIANT_BOOL*, BYTE* result) noexcept {
  return trapped(result, none, [] { return success; });
}

HRESULT OpenWriter::get_SetScreenUpdating(VARIANT_BOOL*, BYTE* result) noexcept {
  return trapped(result, none, [] { return success; });
}

Success OpenWriter::load(BSTR* path) {
  const Bstr url(std::wstring(L"file:///").append(view(dereferenced(path))));
  const AutomationObject desktop = desktop_;
  NoLoadArguments arguments;
  active_document_ =
      desktop.get(L"loadComponentFromURL", url, Bstr(L"_blank"), no_frame_search, arguments.by_reference())
          .object();
  return success;
}

HRESULT OpenWriter::get_OpenDoc(BSTR* Doc, BYTE* result) noexcept {
  return trapped(result, message(L"OpenDoc "), [&] { return load(Doc); });
}

// No new empty document (private:factory/swriter) without a template: an omitted Doc arrives as its published
// default "", which cannot be told from a given one.
HRESULT OpenWriter::get_CreateDoc(BSTR* Doc, BYTE* result) noexcept {
  return trapped(result, message(L"Create Doc "), [&] { return load(Doc); });
}

HRESULT OpenWriter::CloseDoc(SHORT* SaveOption, VARIANT* result) noexcept {
  return trapped(result, silent, [&] { close(document(), SaveOption); });
}

HRESULT OpenWriter::get_ReadText(LONG*, LONG*, BSTR* result) noexcept {
  return trapped(result, message(L"ReadText : "),
                 [&] { return document().get(L"GetText").get(L"GetString").text(); });
}

HRESULT OpenWriter::get_Search(BSTR* SearchString, BYTE*, VARIANT_BOOL*, VARIANT_BOOL*, VARIANT_BOOL*,
                               VARIANT_BOOL*, VARIANT_BOOL* MatchWildcards, VARIANT_BOOL*, VARIANT_BOOL*,
                               BYTE* result) noexcept {
  return trapped(result, message(L"Search "), [&] {
    show_message(std::wstring(view(dereferenced(SearchString))));
    const AutomationObject held = document();
    AutomationObject descriptor = held.get(L"createSearchDescriptor").object();
    descriptor.put(L"SearchString", Argument::text(dereferenced(SearchString)));
    descriptor.put(L"SearchRegularExpression", flag(MatchWildcards));
    const AutomationObject match =
        held.get(L"findFirst", Argument::object_reference(descriptor.variable())).object_or_nothing();
    if (!match) return false;
    show_message(std::wstring(held.get(L"GetSelection").get(L"GetString").text().view()));
    return true;
  });
}

}  // namespace zorboffice
