// Recording automation objects that stand where the office application's objects would.
#pragma once

#include <windows.h>
#include <comutil.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

// How a step fails: with `result` as it stands or, where that is DISP_E_EXCEPTION, with what the other fields
// say; `deferred` leaves them to the EXCEPINFO's fill-in function. `error_info` is the thread's IErrorInfo
// text. With S_OK the step goes well and has another answer than usual.
struct Failure {
  HRESULT result = S_OK;
  DWORD scode = 0;
  WORD code = 0;
  const wchar_t* description = nullptr;
  bool deferred = false;
  const wchar_t* error_info = nullptr;
  _variant_t answer = {};
};

// What a member answers: `value`, or a new object of the name `object`. An enumerator goes through objects of
// the names `items`. `effect` sees the arguments first and may write to those passed by reference.
struct Answer {
  _variant_t value = {};
  const char* object = nullptr;
  std::vector<const char*> items = {};
  std::function<void(const DISPPARAMS&)> effect = {};
};

// The office application as a test sees it: what its objects answer, and what was asked of them. Members
// without an answer return an empty variant. Must outlive its objects.
class FakeOffice {
 public:
  // The members that answer a new object of their own name, whatever object they belong to.
  std::set<std::string> objects;
  // Other answers by "Object.Member(arguments as logged)" or, for any arguments, "Object.Member".
  std::map<std::string, Answer> answers;
  // The members, as "Object.Member", that are not there, with what a look-up or a call returns; and the
  // objects whose process does not answer, with what a call returns that asks nothing of them.
  std::map<std::string, HRESULT> refused;
  // Whether an object may be asked for a name twice, as when there is no memory to keep the answer in.
  bool forgets = false;
  // The step that fails with `failure`, counted in lines of the log from 1; 0 for none.
  size_t fail_at = 0;
  Failure failure = {DISP_E_EXCEPTION, 0x800A1735, 0, L"No such member."};
  // Asked before each trip to the office, which it turns away with a failure: then nothing runs.
  std::function<HRESULT()> gate = [] { return S_OK; };
  // Whether numbers and texts that are passed by reference come back changed, the numbers ten times as large.
  bool writes = false;
  // One line a step: "get|call|put|next|create Object.Member(arguments)".
  std::vector<std::string> log;
  // The types of what the steps answered while none failed, by their numbers and lines.
  std::map<std::pair<size_t, std::string>, VARTYPE> answered;
  // Objects and enumerators that somebody still holds.
  int live = 0;
  // The one thread that may call them.
  const DWORD apartment = GetCurrentThreadId();

  // Whether its objects have the types that the process's type library publishes.
  bool publishes = true;

  // A new object called `name` of the type that is published for it; the caller owns the reference.
  virtual IDispatch* make(const std::string& name, const std::string& type = "");
  // Logs `line`; returns S_OK, or the failure that is due, described in `info` where there is one.
  HRESULT step(const std::string& line, EXCEPINFO* info = nullptr);
  // Gives the answer of the step with that number and line.
  void answer(size_t number, const std::string& line, _variant_t value, VARIANT* result);
};

// `value` as the log shows it: by-reference mark, kind and value, such as `&bstr "C:\a.docx"` or `bool -1`.
std::string describe(const VARIANT& value);
