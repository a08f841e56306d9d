#include "fake_suite.h"

#include "fake_word.h"

namespace {

// {1C2F7A60-5B0D-4E55-8D6B-7A0F6E1B93C4}
constexpr GUID manager_id = {0x1c2f7a60, 0x5b0d, 0x4e55, {0x8d, 0x6b, 0x7a, 0x0f, 0x6e, 0x1b, 0x93, 0xc4}};
// The word processor's own.
constexpr GUID global_id = {0x000209f0, 0, 0, {0xc0, 0, 0, 0, 0, 0, 0, 0x46}};

constexpr auto program_id = "com.sun.star.ServiceManager";

}  // namespace

FakeSuiteClasses::FakeSuiteClasses()
    : manager_(*this, manager_id, program_id, "Application"), global_(*this, global_id, "Global", "Global") {
  teach_word(*this);
  objects.insert({"GetSelection", "GetText", "createSearchDescriptor"});
  answers.merge(std::map<std::string, Answer>{
      {R"(Application.createInstance(bstr "com.sun.star.frame.Desktop"))", {.object = "Desktop"}},
      {"Application.createInstance", {.object = "Service"}},
      {"Desktop.loadComponentFromURL", {.object = "Document"}},
      {"Document.findFirst", {.object = "Match"}},
      {"GetSelection.GetString", {L"chosen"}},
      {"GetText.GetString", {L"all of it"}},
      {"Global.CentimetersToPoints(r4 0.5)", {14.25f}},
      {"Global.CentimetersToPoints(r4 3)", {85.5f}},
      {"Global.PixelsToPoints(r4 1024, missing)", {768.f}},
      {"Global.PixelsToPoints(r4 1280, missing)", {960.f}},
  });
}

FakeSuite::FakeSuite() : name_(program_id, manager_id) {}
