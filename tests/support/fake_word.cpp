#include "fake_word.h"

namespace {

// {5D3A2E0B-6C0E-4F53-9C0B-1B8E0A7D6F21}
constexpr GUID class_id = {0x5d3a2e0b, 0x6c0e, 0x4f53, {0x9c, 0x0b, 0x1b, 0x8e, 0x0a, 0x7d, 0x6f, 0x21}};

}  // namespace

FakeWord::FakeWord() : FakeApplication("Word.Application", class_id) { teach_word(*this); }

void teach_word(FakeOffice& office) {
  office.objects = {"ActiveWindow", "Cells", "Documents", "Find",     "Footers",   "Headers", "Options",
                    "Paragraphs",   "Range", "Rows",      "Sections", "Selection", "System"};
  office.answers = {
      {"Application.ActivePrinter", {L"Kept"}},
      {"Application.BackgroundPrintingStatus", {1}},
      {"Application.BackgroundSavingStatus", {1}},
      {"Application.CentimetersToPoints(r4 0.5)", {14.25f}},
      {"Application.CentimetersToPoints(r4 3)", {85.5f}},
      {"Application.PixelsToPoints(r4 1024)", {768.f}},
      {"Application.PixelsToPoints(r4 1280)", {960.f}},
      {"Application.Version", {L"11.0"}},
      {"Documents.Add", {.object = "Document"}},
      {"Documents.Count", {0}},
      {"Documents.Open", {.object = "Document"}},
      {"Cells.Count", {4}},
      {"Find.Execute", {true}},
      {"Footers.Exists", {true}},
      {"Headers.Exists", {true}},
      {"Options.DefaultFilePath", {L"C:\\Documents"}},
      {"Range.Text", {L"0123456789"}},
      {"Range.[value]", {L"3456789"}},
      {"Range1.Text", {L"one "}},
      {"Range2.Text", {L"two "}},
      {"Range3.Text", {L"three"}},
      {"Section1.Range", {.object = "Range1"}},
      {"Section2.Range", {.object = "Range2"}},
      {"Section3.Range", {.object = "Range3"}},
      {"Sections.Count", {3}},
      {"Sections.[newenum]", {.items = {"Section1", "Section2", "Section3"}}},
      {"Selection.Information", {true}},
      {"Selection.Text", {L"chosen"}},
      {"System.HorizontalResolution", {1280}},
      {"System.VerticalResolution", {1024}},
  };
}
