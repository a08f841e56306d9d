// Sections, headers and footers.
#include <optional>
#include <utility>

#include "ZORBOffice/word/opened_document.h"
#include "ZORBOffice/word/replacement.h"
#include "ZORBOffice/word/word_members.h"

namespace zorboffice {
namespace {

constexpr LONG header_footer_types[] = {1, 2, 3};  // wdHeaderFooterPrimary, FirstPage, EvenPages
constexpr LONG normal_style = -1;                  // wdStyleNormal
constexpr LONG first_section = 1;

constexpr const wchar_t* headers = L"Headers";
constexpr const wchar_t* footers = L"Footers";

// Copies each header (or footer) that the source section has; a first-page or even-page one is switched on.
void copy_each_type(const AutomationObject& source, const AutomationObject& destination,
                    const wchar_t* kind) {
  for (const LONG type : header_footer_types) {
    const AutomationObject from = source.get(kind, type).object();
    if (!from.get(L"Exists").flag()) continue;
    const AutomationObject to = destination.get(kind, type).object();
    if (!to.get(L"Exists").flag()) to.put(L"Exists", true);
    const AutomationObject text = from.get(L"Range").get(L"FormattedText").object();
    to.get(L"Range").put(L"FormattedText", Argument::object(text.dispatch()));
  }
}

}  // namespace

AutomationObject WordMembers::header_footer(LONG* Section, VARIANT_BOOL* IsHeader,
                                            BYTE* HeaderFooterType) const {
  return document()
      .get(L"Sections", dereferenced(Section))
      .get(flag(IsHeader) ? headers : footers, LONG{dereferenced(HeaderFooterType)})
      .object();
}

HRESULT WordMembers::get_NumberOfSections(LONG* result) noexcept {
  return trapped(result, none, [&] { return document().get(L"Sections").get(L"Count").int32(); });
}

HRESULT WordMembers::get_ReadHeaderFooterText(LONG* Section, VARIANT_BOOL* IsHeader, BYTE* HeaderFooterType,
                                              LONG* StartPos, LONG* EndPos, BSTR* result) noexcept {
  return trapped(result, message(L"Read h/f : "), [&] {
    const LONG start = dereferenced(StartPos);
    const LONG end = dereferenced(EndPos);
    const AutomationObject read = header_footer(Section, IsHeader, HeaderFooterType);
    if (!read.get(L"Exists").flag()) return Bstr();
    const AutomationObject range = read.get(L"Range").object();
    if (start > 0 || end > 0) {
      const LONG last = end > 0 ? end : static_cast<LONG>(range.get(L"Text").text().view().size());
      range.call(L"SetRange", start > 0 ? start : LONG{1}, last);
    }
    return range.get(L"Text").text();
  });
}

HRESULT WordMembers::get_ReplaceHeaderFooter(LONG* Section, VARIANT_BOOL* IsHeader, BYTE* HeaderFooterType,
                                             BSTR* SearchString, BSTR* ReplaceString, BYTE* WrapAction,
                                             VARIANT_BOOL* SearchForward, VARIANT_BOOL*,
                                             VARIANT_BOOL* MatchCase, VARIANT_BOOL* MatchWholeWord,
                                             VARIANT_BOOL* MatchWildcards, VARIANT_BOOL* MatchSoundsLike,
                                             VARIANT_BOOL* MatchAllWordForms, BYTE* ReplaceOption,
                                             BYTE* result) noexcept {
  const Replacement replacement{SearchString,      ReplaceString,  WrapAction,     SearchForward,
                                MatchCase,         MatchWholeWord, MatchWildcards, MatchSoundsLike,
                                MatchAllWordForms, ReplaceOption};
  return trapped(result, message(L"Replace Header/Footer "), [&] {
    const AutomationObject searched = header_footer(Section, IsHeader, HeaderFooterType);
    if (!searched.get(L"Exists").flag()) return false;
    return replacement.execute(searched.get(L"Range").get(L"Find").object());
  });
}

HRESULT WordMembers::get_SetHeaderFooter(BSTR* SourceTemplate, BSTR* DestTemplate, Choice* ApplyHeader,
                                         Choice* ApplyFooter, Choice* ApplyFont, BYTE* result) noexcept {
  return trapped(result, message(L"Set Header/Footer "), [&] {
    const bool copies_headers = is_chosen(ApplyHeader);
    const bool copies_footers = is_chosen(ApplyFooter);
    const bool copies_font = is_chosen(ApplyFont);
    if (!copies_headers && !copies_footers && !copies_font) {
      show_message(L"Nothing has been set to be changed!");
      return false;
    }
    const AutomationObject held = application();
    const Bstr source_path = template_path(held, dereferenced(SourceTemplate));
    OpenedDocument source(held, source_path);
    const Bstr destination_path = template_path(held, dereferenced(DestTemplate));
    // One file is one document: opened, saved and closed once.
    std::optional<OpenedDocument> other;
    if (!name_the_same_file(source_path, destination_path)) other.emplace(held, destination_path);
    OpenedDocument& destination = other ? *other : source;

    if (copies_headers || copies_footers) {
      const AutomationObject source_section = source.document().get(L"Sections", first_section).object();
      bool is_source = !other;
      destination.document().get(L"Sections").object().for_each([&](const Result& section) {
        if (std::exchange(is_source, false)) return;
        if (copies_headers) copy_each_type(source_section, section.object(), headers);
        if (copies_footers) copy_each_type(source_section, section.object(), footers);
      });
    }
    if (copies_font) {
      const AutomationObject font = source.document().get(L"Styles", normal_style).get(L"Font").object();
      destination.document().get(L"Styles", normal_style).put(L"Font", Argument::object(font.dispatch()));
    }
    // The source first: what fails before the saving leaves the destination's file as it was.
    if (other) source.close();
    destination.document().call(L"Save");
    destination.close();
    return true;
  });
}

}  // namespace zorboffice
