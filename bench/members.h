// Every member that makes automation calls, with the arguments that it is measured with.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <span>
#include <variant>
#include <vector>

#include "ZORBOffice/surface/member_table.h"

namespace bench {

struct HostCall {
  const wchar_t* member;
  std::vector<std::variant<int, bool, const wchar_t*>> arguments = {};
};

struct MeasuredMember {
  HostCall call;
  std::vector<HostCall> ready = {};   // made once, before the first use
  std::vector<HostCall> before = {};  // made before each use, and not measured
  const char* variant = "";           // where a member is measured in more than one way
  const char* own_cost = "";          // of the system, which nobody saves; empty for none
  bool begins_session = false;
};

struct MeasuredClass {
  const char* name;
  const CLSID& class_id;
  const zorboffice::MemberTable& table;
  HostCall start;
  std::vector<MeasuredMember> members;
};

std::span<const MeasuredClass> measured_classes();

}  // namespace bench
