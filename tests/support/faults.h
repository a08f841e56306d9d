// What can go wrong at a step, and what the host hears of it.
#pragma once

#include <regex>

#include "fake_object.h"
#include "office_model.h"

struct Fault {
  Failure failure = {};
  int number = 0;
  std::string description = "";

  // A text with the description for % and the number for #, for @ as a failed call's result.
  std::string in(const std::string& text) const {
    char code[12];
    snprintf(code, sizeof code, "%08X", number < 0 ? number : 0x800A0000 | number);
    auto told = std::regex_replace(text, std::regex("#"), std::to_string(number));
    told = std::regex_replace(told, std::regex("@"), code);
    return std::regex_replace(told, std::regex("%"), description);
  }
};

inline const std::string not_set = "Object variable or With block variable not set",
                         required = "Object required", mismatch = "Type mismatch";

inline const Fault failures[] = {
    {{DISP_E_EXCEPTION, 0x800A1735, 0, L"No such member."}, 5941, "No such member."},
    {{DISP_E_EXCEPTION, 0x800A1735}, 5941, "Automation error"},
    {{RPC_E_DISCONNECTED}, RPC_E_DISCONNECTED, "The object invoked has disconnected from its clients."},
    {{HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE)},
     462,
     "The remote server machine does not exist or is unavailable"},
    {{E_ACCESSDENIED}, 70, "Permission denied"},
    {{E_OUTOFMEMORY}, 7, "Out of memory"}};

inline _variant_t null_value() {
  _variant_t value;
  value.vt = VT_NULL;
  return value;
}
inline const _variant_t nothing(static_cast<IDispatch*>(nullptr));

// What is no answer where a value of that type is due.
inline std::vector<Fault> wrong_answers(VARTYPE due) {
  const auto answer = [](const _variant_t& value, int number, const std::string& description) {
    return Fault{{.answer = value}, number, description};
  };
  const Fault unset = answer(nothing, 91, not_set);
  if (due == VT_EMPTY) return {};
  if (due == VT_DISPATCH)
    return {unset, answer(7, 424, required), answer({}, 424, required), answer(null_value(), 424, required)};
  if (due == VT_UNKNOWN)
    return {unset, answer(7, 451, "Object not a collection"), answer({}, 451, "Object not a collection")};
  if (due == VT_BOOL) return {unset, answer(L"abc", 13, mismatch)};
  if (due == VT_BSTR) return {unset, answer(null_value(), 13, mismatch)};
  return {unset, answer(L"abc", 13, mismatch), answer(null_value(), 13, mismatch)};
}

// What goes wrong at a step that usually answers a value of that type; over other offices than the plain one,
// which differ in how names are looked up, only the first.
inline std::vector<Fault> faults_where(VARTYPE due) {
  std::vector<Fault> all(std::begin(failures), std::end(failures));
  if (office_kind() != Office::plain) return all.resize(1), all;
  for (const auto& fault : wrong_answers(due)) all.push_back(fault);
  return all;
}
