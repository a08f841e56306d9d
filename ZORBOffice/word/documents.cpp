// The active document: opened, created, saved, printed, closed.
#include <optional>
#include <string>

#include "ZORBOffice/word/printers.h"
#include "ZORBOffice/word/word_members.h"

namespace zorboffice {
namespace {

constexpr LONG original_document_format = 1;  // wdOriginalDocumentFormat

// Dispatches the pending messages. Windows that keep posting to themselves do not hold the member up.
void run_pending_messages() {
  constexpr DWORD longest = 250;  // milliseconds
  const DWORD start = GetTickCount();
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // The host's own loop must see it.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
    if (GetTickCount() - start > longest) return;
  }
}

}  // namespace

HRESULT WordMembers::get_OpenDoc(BSTR* Doc, BYTE* result) noexcept {
  return trapped(result, message(L"OpenDoc "), [&] {
    active_document_ = application().get(L"Documents").get(L"Open", by_ref(Doc)).object();
    return success;
  });
}

HRESULT WordMembers::get_CreateDoc(BSTR* Doc, BYTE* result) noexcept {
  return trapped(result, message(L"Create Doc "), [&] {
    active_document_ = application().get(L"Documents").get(L"Add", by_ref(Doc).named(L"Template")).object();
    return success;
  });
}

HRESULT WordMembers::FinaliseDoc(VARIANT* result) noexcept {
  return trapped(result, message(L"Finalise "), [&] {
    const AutomationObject held = document();
    held.call(L"UpdateStyles");
    held.put(L"UpdateStylesOnOpen", false);
    held.put(L"AttachedTemplate", Bstr(L""));
  });
}

HRESULT WordMembers::SaveDoc(BSTR* Docname, VARIANT* result) noexcept {
  const auto message_text = [&](const Failure& failure) {
    return std::wstring(L"Save Doc : ")
        .append(failure.description.view())
        .append(L" ")
        .append(view(Docname ? *Docname : nullptr));
  };
  return trapped(result, composed_message(message_text), [&] {
    if (view(dereferenced(Docname)).empty()) {
      document().call(L"Save");
    } else {
      document().call(L"SaveAs", by_ref(Docname));
    }
  });
}

HRESULT WordMembers::SaveDocAsPDF(VARIANT_BOOL* result) noexcept {
  return trapped(result, message(L"Unable to print pdf : "), [&] {
    const AutomationObject held = application();
    const Bstr own_printer = held.get(L"ActivePrinter").text();
    const std::optional<Bstr> pdf_printer = first_pdf_printer();
    if (pdf_printer) {
      held.put(L"ActivePrinter", *pdf_printer);
      document().call(L"PrintOut");
    }
    held.put(L"ActivePrinter", own_printer);  // when this fails the answer is false, although it was printed
    return pdf_printer.has_value();
  });
}

void WordMembers::close(const AutomationObject& document, SHORT* SaveOption) {
  document.call(L"Close", by_ref(SaveOption), original_document_format, false);
}

HRESULT WordMembers::CloseDoc(SHORT* SaveOption, VARIANT* result) noexcept {
  return trapped(result, message(L"Close Doc "), [&] {
    const AutomationObject held = document();
    close(held, SaveOption);
    if (active_document_ == held) active_document_ = {};
  });
}

HRESULT WordMembers::PrintDoc(SHORT* Copies, VARIANT_BOOL*, VARIANT* result) noexcept {
  const auto message_text = [](const Failure& failure) {
    return std::wstring(L"Print Doc ")
        .append(decimal(failure.number).view())
        .append(L" :  ")
        .append(failure.description.view());
  };
  return trapped(result, composed_message(message_text), [&] {
    document().call(L"PrintOut", by_ref(Copies).named(L"Copies"));
    run_pending_messages();
  });
}

HRESULT WordMembers::IsPrinting(SHORT* result) noexcept {
  return trapped(result, none, [&] {
    const AutomationObject held = application();
    const LONGLONG printing = held.get(L"BackgroundPrintingStatus").int32();
    const LONGLONG busy = printing + held.get(L"BackgroundSavingStatus").int32();
    if (busy < SHRT_MIN || busy > SHRT_MAX) throw_runtime_error(runtime_error::overflow);
    return static_cast<SHORT>(busy);
  });
}

}  // namespace zorboffice
