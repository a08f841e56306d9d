// What a control holds between calls, what passes through it from and to the host, and the number and
// description of everything that can go wrong in a call.

#include "support/member_rows.h"

namespace {

using State = WordTest;

TEST_F(State, ADocumentOpenedWhileAnotherClosesStays) {
  make_ready();
  office_.answers["Document.Close"].effect = [&](const DISPPARAMS&) { expect(L"OpenDoc", {L"b"}, "ui1 1"); };
  expect(L"CloseDoc", {}, "empty");
  EXPECT_EQ(office_.live, 2);
  expect(L"SaveDoc", {}, "empty");
}

TEST_F(State, ASecondStartReplacesTheApplicationWhichAnEndingControlReleasesAndNothingQuits) {
  make_ready();
  expect(L"Start", {}, "ui1 1");
  EXPECT_EQ(office_.live, 2);
  control_.Reset();
  EXPECT_EQ(office_.live, 0);
  EXPECT_EQ(log().find("Quit"), std::string::npos);
}

TEST_F(State, ALateFailureOfStartKeepsTheNewApplication) {
  office_.fail_at = 3;
  expect(L"Start", {}, "ui1 0");
  expect(L"SetActive", {true}, "ui1 1");
}

TEST_F(State, ClosingAndStoppingLetGo) {
  make_ready();
  expect(L"CloseDoc", {}, "empty");
  EXPECT_EQ(office_.live, 1);
  expect(L"CloseDoc", {}, "empty", "Close Doc Object required");
  office_.answers["Documents.Count"] = {1};
  expect(L"StopWord", {}, "empty");
  EXPECT_EQ(office_.live, 1) << "with a document open the word processor goes on";
  expect(L"StopWord", {true}, "empty");
  EXPECT_EQ(office_.live, 0);
  expect(L"SetActive", {true}, "ui1 0", "Set Active Object required");
}

TEST_F(State, ANewDocumentReplacesTheEarlierOneWithoutClosingIt) {
  make_ready();
  office_.answers["Documents.Add"] = {.object = "Document2"};
  expect(L"CreateDoc", {}, "ui1 1");
  expect(L"SaveDoc", {}, "empty");
  EXPECT_EQ(log(),
            "get Application.Documents | get Documents.Add(Template:=&bstr \"\") | call Document2.Save");
  EXPECT_EQ(office_.live, 2);
}

TEST_F(State, TextOfAnyLengthAndEveryPlaneGoesThroughUnchanged) {
  _variant_t null_text(L"");
  SysFreeString(std::exchange(null_text.bstrVal, nullptr));
  // Lone halves of pairs and nulls are text, too.
  const wchar_t units[] = L"A\xFFFD\xD800\xDC00\xDBFF\xDFFD\xDC00\xD800";
  VARIANT odd = {};
  odd.vt = VT_BSTR;
  odd.bstrVal = SysAllocStringLen(units, std::size(units));
  make_ready();
  for (const auto& text :
       {_variant_t(L""), null_text, _variant_t(std::wstring(32000, L'x').c_str()), _variant_t(odd, false)}) {
    office_.answers["Selection.Text"] = {text};
    expect(L"OpenDoc", {text}, "ui1 1");
    EXPECT_TRUE(log().ends_with("Documents.Open(&" + describe(text) + ")"));
    expect(L"SendText", {text}, "ui1 1");
    EXPECT_TRUE(log().ends_with("Selection.TypeText(" + describe(text) + ")"));
    expect(L"SelectionText", {}, describe(text));
    log();
  }
}

const std::pair<Failure, const char*> told[] = {
    {{DISP_E_EXCEPTION, 0x80070057, 0, L"Own text."}, "-2147024809 :  Own text."},
    {{DISP_E_EXCEPTION, 0, 4605, L"Own text."}, "4605 :  Own text."},
    {{DISP_E_EXCEPTION, 0x800A1735, 0, L"Filled in.", true}, "5941 :  Filled in."},
    {{DISP_E_EXCEPTION, 0x800A1735, 0, nullptr, false, L"From the object."}, "5941 :  From the object."},
    {{DISP_E_EXCEPTION, 0x800A01A8}, "424 :  Object required"},
    {{DISP_E_EXCEPTION, 0x80041FFF}, "-2147213313 :  Automation error"},
    {{E_FAIL, 0, 0, nullptr, false, L"From the object."}, "-2147467259 :  From the object."},
    {{static_cast<HRESULT>(0x80041FFF)}, "-2147213313 :  Automation error"},
    {{static_cast<HRESULT>(0x800A01B8)}, "440 :  Automation error"},
    {{E_FAIL}, "-2147467259 :  Call failed."},  // in the words of the system, which here is Wine
    {{E_INVALIDARG}, "5 :  Invalid procedure call or argument"},
    {{DISP_E_OVERFLOW}, "6 :  Overflow"},
    {{DISP_E_BADINDEX}, "9 :  Subscript out of range"},
    {{DISP_E_ARRAYISLOCKED}, "10 :  This array is fixed or temporarily locked"},
    {{DISP_E_TYPEMISMATCH}, "13 :  Type mismatch"},
    {{STG_E_PATHNOTFOUND}, "76 :  Path not found"},
    {{REGDB_E_CLASSNOTREG}, "429 :  ActiveX component can't create object"},
    {{MK_E_UNAVAILABLE}, "429 :  ActiveX component can't create object"},
    {{CO_E_CLASSSTRING}, "429 :  ActiveX component can't create object"},
    {{CO_E_APPNOTFOUND}, "429 :  ActiveX component can't create object"},
    {{CO_E_SERVER_EXEC_FAILURE}, "429 :  ActiveX component can't create object"},
    {{E_NOINTERFACE}, "430 :  Class doesn't support Automation"},
    {{STG_E_FILENOTFOUND}, "432 :  File name or class name not found during Automation operation"},
    {{MK_E_CANTOPENFILE}, "432 :  File name or class name not found during Automation operation"},
    {{DISP_E_UNKNOWNNAME}, "438 :  Object doesn't support this property or method"},
    {{DISP_E_MEMBERNOTFOUND}, "438 :  Object doesn't support this property or method"},
    {{E_NOTIMPL}, "445 :  Object doesn't support this action"},
    {{DISP_E_NONAMEDARGS}, "446 :  Object doesn't support named arguments"},
    {{DISP_E_UNKNOWNLCID}, "447 :  Object doesn't support current locale setting"},
    {{DISP_E_PARAMNOTFOUND}, "448 :  Named argument not found"},
    {{DISP_E_PARAMNOTOPTIONAL}, "449 :  Argument not optional"},
    {{DISP_E_BADPARAMCOUNT}, "450 :  Wrong number of arguments or invalid property assignment"},
    {{DISP_E_NOTACOLLECTION}, "451 :  Object not a collection"},
    {{DISP_E_BADVARTYPE}, "458 :  Variable uses an Automation type not supported"},
    // What may have run is not tried again: a second attempt would not fail.
    {{DISP_E_EXCEPTION, 0x80010001}, "-2147418111 :  Call was rejected by callee."},
    {{DISP_E_EXCEPTION, 0x8001010A},
     "-2147417846 :  The message filter indicated that the application is busy."},
    {{RPC_E_SERVERCALL_REJECTED}, "-2147417845 :  The message filter rejected the call."},
    {{RPC_E_CALL_CANCELED}, "-2147418110 :  Call was canceled by the message filter."},
    {{RPC_E_SERVERFAULT}, "-2147417851 :  The server threw an exception."},
    {{RPC_E_DISCONNECTED}, "-2147417848 :  The object invoked has disconnected from its clients."},
    {{static_cast<HRESULT>(0x800706BE)}, "-2147023170 :  RPC call failed."},  // Wine's words
};

using Failures = WordTest;

TEST_F(Failures, HaveTheirNumberAndDescription) {
  make_ready();
  for (const auto& [failure, message] : told) {
    log();
    office_.fail_at = 1;
    office_.failure = failure;
    expect(L"PrintDoc", {1}, "empty", std::string("Print Doc ") + message);
  }
}

TEST_F(Failures, DoNotTakeTheTextOfAnEarlierOne) {
  for (const bool refused : {false, true}) {
    make_ready();
    office_.fail_at = 1;
    office_.failure = {DISP_E_EXCEPTION, 1, 0, L"Own.", false, L"Stale."};
    expect(L"Cut", {}, "empty");
    log();
    office_.failure = {static_cast<HRESULT>(0x80041FFF)};
    if (refused) office_.refused["Document.PrintOut"] = office_.failure.result;
    expect(L"PrintDoc", {1}, "empty", "Print Doc -2147213313 :  Automation error");
  }
}

}  // namespace
