#include "bench/recording.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace bench {
namespace {

std::string narrow(std::wstring_view text) { return {text.begin(), text.end()}; }

void copy(const VARIANT& from, PassedArgument& to) {
  to.passed = from;
  V_VT(&to.value) = VT_EMPTY;
  if (V_VT(&from) == VT_DISPATCH) return;
  VariantCopyInd(&to.value, const_cast<VARIANT*>(&from));
  if (!(V_VT(&from) & VT_BYREF)) {
    to.passed = to.value;
  } else if (V_VT(&from) == (VT_BYREF | VT_VARIANT)) {
    V_VARIANTREF(&to.passed) = &to.value;
  } else {
    V_BYREF(&to.passed) = &V_UI1(&to.value);  // all values lie there
  }
}

}  // namespace

int Recorder::place(LONG number) {
  if (number == 0) return -1;
  return places_.emplace(number, static_cast<int>(places_.size())).first->second;
}

void Recorder::add(const SeenCall& call) {
  Step& step = recording_.emplace_back();
  step.application = call.application;
  step.member = call.member;
  step.target = place(call.object);
  step.answer = place(call.answer);
  step.id = call.id;
  step.flags = call.flags;
  step.wants_answer = call.wants_answer;
  if (!call.member || !call.parameters) return;
  const DISPPARAMS& parameters = *call.parameters;
  step.arguments = std::vector<PassedArgument>(parameters.cArgs);
  for (UINT i = 0; i < parameters.cArgs; ++i) {
    copy(parameters.rgvarg[i], step.arguments[i]);
    if (V_VT(&parameters.rgvarg[i]) == VT_DISPATCH)
      step.arguments[i].object = place(number_of(V_DISPATCH(&parameters.rgvarg[i])));
  }
  step.named.assign(parameters.rgdispidNamedArgs, parameters.rgdispidNamedArgs + parameters.cNamedArgs);
  // The default member and the enumerator have identifiers that everybody knows.
  if (call.id == DISPID_NEWENUM || std::wstring_view(call.member->name) == L"_Default") return;
  for (const DISPID position : step.named) {
    if (position == DISPID_PROPERTYPUT) continue;
    std::wstring rest = call.member->parameters;
    for (DISPID i = 0; i < position; ++i) rest.erase(0, rest.find(L' ') + 1);
    step.parameter_names.push_back(rest.substr(0, rest.find(L' ')));
  }
  step.names.push_back(call.member->name);
  for (const std::wstring& name : step.parameter_names) step.names.push_back(name.c_str());
}

void Recorder::add_release(LONG object) {
  Step& step = recording_.emplace_back();
  step.is_release = true;
  step.target = place(object);
}

std::string described(const Recording& recording) {
  std::string all;
  for (const Step& step : recording) {
    if (step.is_release) continue;
    all += std::to_string(step.target) + "." + (step.member ? narrow(step.member->name) : "-") + "[" +
           std::to_string(step.flags) + "](";
    for (const PassedArgument& argument : step.arguments)
      all += std::to_string(V_VT(&argument.passed)) + ":" + std::to_string(argument.object) + " ";
    for (const DISPID id : step.named) all += "#" + std::to_string(id);
    all += ")" + std::to_string(step.answer) + "\n";
  }
  return all;
}

int count_of_calls(const Recording& recording) {
  return static_cast<int>(std::ranges::count(recording, false, &Step::is_release));
}

int look_ups_of_script(const Recording& recording) {
  int count = 0;
  for (const Step& step : recording) count += step.names.empty() ? 0 : 1;
  return count;
}

IUnknown*& Client::object(int place) {
  if (objects_.size() <= static_cast<std::size_t>(place)) objects_.resize(place + 1);
  return objects_[place];
}

void Client::run(Recording& recording) {
  for (Step& step : recording) {
    if (step.is_release) {
      let_go(step.target);
    } else {
      take(step);
    }
  }
}

void Client::turn(const Recording& recording) {
  std::vector<int> replaced, left;
  for (const Step& step : recording) {
    if (!step.is_release) {
      if (step.answer >= 0) left.push_back(step.answer);
    } else if (std::erase(left, step.target) == 0) {
      replaced.push_back(step.target);
    }
  }
  for (std::size_t i = 0; i < std::min(replaced.size(), left.size()); ++i) {
    if (!object(replaced[i])) object(replaced[i]) = std::exchange(object(left[i]), nullptr);
  }
}

void Client::take(Step& step) {
  VARIANT answer{};
  HRESULT status = S_OK;
  if (step.target < 0) {
    V_VT(&answer) = VT_DISPATCH;
    status = CoCreateInstance(step.application->class_id, nullptr, CLSCTX_SERVER, IID_IDispatch,
                              reinterpret_cast<void**>(&V_DISPATCH(&answer)));
  } else if (!step.member) {
    ULONG fetched = 0;
    status = static_cast<IEnumVARIANT*>(objects_[step.target])->Next(1, &answer, &fetched);
  } else {
    auto* const target = static_cast<IDispatch*>(objects_[step.target]);
    VARIANT values[12];
    for (std::size_t i = 0; i < step.arguments.size(); ++i) {
      const PassedArgument& argument = step.arguments[i];
      values[i] = argument.passed;
      if (argument.object >= 0) V_DISPATCH(&values[i]) = static_cast<IDispatch*>(objects_[argument.object]);
    }
    DISPPARAMS parameters{values, step.named.data(), static_cast<UINT>(step.arguments.size()),
                          static_cast<UINT>(step.named.size())};
    DISPID ids[3] = {step.id};
    if (looks_up_ && !step.names.empty()) {
      status = target->GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(step.names.data()),
                                     static_cast<UINT>(step.names.size()), LOCALE_USER_DEFAULT, ids);
    }
    if (SUCCEEDED(status)) {
      EXCEPINFO information{};
      UINT argument = 0;
      status = target->Invoke(ids[0], IID_NULL, LOCALE_USER_DEFAULT, step.flags, &parameters,
                              step.wants_answer ? &answer : nullptr, &information, &argument);
    }
  }
  if (FAILED(status)) {
    throw std::runtime_error("a recorded step fails: " + std::to_string(status) + " " +
                             (step.member ? narrow(step.member->name) : "-"));
  }
  if (step.answer < 0) {
    VariantClear(&answer);
    return;
  }
  IUnknown*& place = object(step.answer);
  if (place) place->Release();
  place = V_UNKNOWN(&answer);
  if (V_VT(&answer) != VT_UNKNOWN) return;
  IEnumVARIANT* elements = nullptr;
  if (FAILED(place->QueryInterface(IID_IEnumVARIANT, reinterpret_cast<void**>(&elements)))) {
    throw std::runtime_error("no enumerator");
  }
  place->Release();
  place = elements;
}

Client::~Client() {
  for (int place = static_cast<int>(objects_.size()); place-- > 0;) let_go(place);
}

void Client::let_go(int place) {
  if (IUnknown* const held = std::exchange(object(place), nullptr)) held->Release();
}

}  // namespace bench
