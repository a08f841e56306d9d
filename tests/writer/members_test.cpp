// What OpenWriter's own members ask of the suite, and how they fail at each of their steps.
#include "support/member_rows.h"

namespace {

const std::string service = "get Application.createInstance(bstr \"com.sun.star.";
const std::string started = "create com.sun.star.ServiceManager | " + service +
                            "reflection.CoreReflection\") | " + service + "frame.Desktop\")";
const std::string placed =
    started +
    " | put Application.WindowState=i4 0 | create Global | get Global.CentimetersToPoints(r4 3)"
    " | put Application.Left=r4 85.5 | put Application.Top=i2 1 | get Application.Version";
const std::string resized =
    placed +
    " | get Global.System | get System.HorizontalResolution | get Global.CentimetersToPoints(r4 3)"
    " | get Global.System | get System.VerticalResolution | get Global.CentimetersToPoints(r4 0.5)"
    " | get Global.PixelsToPoints(r4 1280, missing) | get Global.PixelsToPoints(r4 1024, missing)"
    " | call Application.Resize(Width:=r4 874.5, Height:=r4 753.75)";
const std::string twice = "Start % | %";

std::string searched(const std::string& expression) {
  return "get Document.createSearchDescriptor | put createSearchDescriptor.SearchString=bstr \"a.c\""
         " | put createSearchDescriptor.SearchRegularExpression=bool " +
         expression + " | get Document.findFirst(&object)";
}
const std::string hit = " | get Document.GetSelection | get GetSelection.GetString";
const std::string search_fails = "a.c | Search %", found = "Document.findFirst";

const _variant_t unknown(static_cast<IUnknown*>(nullptr));

const Arguments other_flags = {L"a.c", 0, false, true, true, true, false, true, true},
                expression = {L"a.c", 1, true, false, false, false, true, false, false};

// With the Normal style's font, of documents that are open already.
std::string opened(const std::string& name) {
  return "get Application.Documents | get Documents.Count | get Documents.Open(bstr \"" + name +
         "\") | get Documents.Count | ";
}
const std::string fonts = opened("a") + opened("b") +
                          "get Document.Styles(i4 -1) | get Styles.Font"
                          " | get Document.Styles(i4 -1) | put Styles.Font=object | call Document.Save";

const std::string read = "get Document.GetText | get GetText.GetString", all = "bstr \"all of it\"";
const char no_reflection[] = R"(Application.createInstance(bstr "com.sun.star.reflection.CoreReflection"))";

const Row own[] = {
    {L"SetVisible", {false}, "ui1 1", ""},
    {L"SetActive", {true}, "ui1 1", ""},
    {L"SetScreenUpdating", {false}, "ui1 1", ""},
    {L"SetHeaderFooter", {L"a", L"b", 0, 0, 2}, "ui1 1", fonts, {}, "", "Set Header/Footer %"},
    {L"Start", {}, "ui1 1", started, {}, "", twice},
    {L"Start", {false}, "ui1 1", started, {{no_reflection, {nothing}}}, "", twice},
    {L"Start", {true}, "ui1 1", resized, {}, "", twice},
    {L"Start", {true}, "ui1 1", placed, {{"Application.Version", {L"85"}}}, "", twice},
    {L"OpenDoc", {L"C:\\my docs\\a.odt"}, "ui1 1", loaded("C:\\my docs\\a.odt")},
    {L"CreateDoc", {L"C:\\a.ott"}, "ui1 1", loaded("C:\\a.ott")},
    {L"CreateDoc", {}, "ui1 1", loaded("")},
    {L"CloseDoc", {}, "empty", "call Document.Close(&i2 0, i4 1, bool 0)"},
    {L"CloseDoc", {-1}, "empty", "call Document.Close(&i2 -1, i4 1, bool 0)"},
    {L"ReadText", {0, 0}, all, read},
    {L"ReadText", {5, 10}, all, read},
    {L"Search", {L"a.c"}, "ui1 1", searched("0") + hit, {}, "a.c | chosen", search_fails},
    {L"Search", other_flags, "ui1 1", searched("0") + hit, {}, "a.c | chosen", search_fails},
    {L"Search", expression, "ui1 0", searched("-1"), {{found, {nothing}}}, "a.c", search_fails},
    {L"Search", {L"a.c"}, "ui1 0", searched("0"), {{found, {unknown}}}, "a.c", search_fails},
};

using WriterState = WriterTest;

TEST_F(WriterTest, OwnMembersTakeTheirStepsAndStopAtTheOneThatFails) {
  office_.objects.insert({"Styles", "Font"});
  for (const auto& row : own) check(row);
}

TEST_F(WriterState, AClosedDocumentStaysActive) {
  make_ready();
  expect(L"CloseDoc", {}, "empty");
  log();
  check_kept();
}

TEST_F(WriterState, AFailedPlacementKeepsWhatWasStarted) {
  office_.refused["Application.WindowState"] = DISP_E_UNKNOWNNAME;
  const std::string text = "Object doesn't support this property or method";
  expect(L"Start", {true}, "ui1 0", "Start " + text + " | " + text);
  EXPECT_EQ(log(), started);
  expect(L"CreateDoc", {L"a"}, "ui1 1");
  EXPECT_EQ(office_.live, 4);
}

TEST_F(WriterState, WhatACallPutsIntoItsReferencesIsReleased) {
  make_ready();
  office_.answers["Document.findFirst"].effect = [&](const DISPPARAMS& parameters) {
    (*parameters.rgvarg->ppdispVal)->Release();
    *parameters.rgvarg->ppdispVal = office_.make("Other");
  };
  office_.answers["Desktop.loadComponentFromURL"].effect = [&](const DISPPARAMS& parameters) {
    SAFEARRAY* filled = *parameters.rgvarg->pparray = SafeArrayCreateVector(VT_VARIANT, 0, 1);
    LONG index = 0;
    _variant_t object(office_.make("Argument"), false);
    SafeArrayPutElement(filled, &index, &object);
  };
  expect(L"Search", {L"a"}, "ui1 1", "a | chosen");
  expect(L"OpenDoc", {L"a"}, "ui1 1");
  EXPECT_EQ(office_.live, 4);
}

// The word processor's Global object: one for the process, whatever apartment asks for it.
class Global : public WriterTest {
 protected:
  static long created(const std::vector<std::string>& log) {
    return std::ranges::count(log, "create Global");
  }

  // Starts a control with placement in an apartment of its own with a suite of its own, while this apartment
  // answers; that one has ended when this returns. Returns what was asked of its suite.
  static std::vector<std::string> start_elsewhere() {
    std::vector<std::string> log;
    const auto start = [](void* context) WINAPI -> DWORD {
      // It begins and ends the apartment: until then stubs hold its objects.
      FakeSuite suite(Serving::unnamed);
      EXPECT_EQ(late_call(outside::create(outside::classes[2]).Get(), L"Start", {true}), "ui1 1");
      *static_cast<std::vector<std::string>*>(context) = suite.log;
      return 0;
    };
    HANDLE thread = CreateThread(nullptr, 0, start, &log, 0, nullptr);
    DWORD index = 0;
    EXPECT_EQ(CoWaitForMultipleHandles(0, 30'000, 1, &thread, &index), S_OK);
    CloseHandle(thread);
    return log;
  }
};

TEST_F(Global, IsKeptUntilTheLibraryMayGo) {
  for (const long times : {1, 2}) {
    expect(L"Start", {true}, "ui1 1");
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_FALSE);
    control_ = outside::create(outside::classes[2]);
    expect(L"Start", {true}, "ui1 1");
    EXPECT_EQ(created(office_.log), times);
    end_control();
    EXPECT_EQ(office_.live, 0);
    control_ = outside::create(outside::classes[2]);
  }
}

TEST_F(Global, IsReplacedWhenItsWordProcessorHasEnded) {
  constexpr auto server_unavailable = static_cast<HRESULT>(0x800706BA);
  for (const auto& [status, times] :
       {std::pair{server_unavailable, 2}, {RPC_E_DISCONNECTED, 2}, {RPC_E_CALL_REJECTED, 1}}) {
    make_ready();
    expect(L"Start", {true}, "ui1 1");
    office_.refused["Global"] = status;
    expect(L"Start", {true}, "ui1 1");
    EXPECT_EQ(created(office_.log), times);
    EXPECT_EQ(office_.live, 5) << "the service manager, two services, a document and it";
  }
}

TEST_F(Global, ServesOtherApartments) {
  expect(L"Start", {true}, "ui1 1");
  taken_log(office_);
  EXPECT_EQ(created(start_elsewhere()), 0);
  EXPECT_EQ(std::ranges::count(office_.log, "get Global.CentimetersToPoints(r4 3)"), 2);
}

TEST_F(Global, IsReplacedWhenItsApartmentHasEnded) {
  EXPECT_EQ(created(start_elsewhere()), 1);
  expect(L"Start", {true}, "ui1 1");
  EXPECT_EQ(created(office_.log), 1);
}

}  // namespace
