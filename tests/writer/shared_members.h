// The members that OpenWriter has from ZORBWord, as the published list has them.
#pragma once

#include <algorithm>
#include <map>
#include <set>

#include <comutil.h>

#include "outside/members.h"

struct SharedMember {
  std::wstring name;
  std::vector<_variant_t> fewest, all;  // its arguments without and with the optional ones, each 1
  std::string fresh;                    // what is shown or raised while nothing is started
  std::string failed;                   // its result then, where nothing is raised
};

inline std::vector<SharedMember> shared_members() {
  const std::set<size_t> own = {0, 1, 2, 3, 4, 6, 7, 8, 32};
  const std::map<std::wstring, std::string> failures = {{L"byte", "ui1 0"},    {L"flag", "bool 0"},
                                                        {L"short", "i2 0"},    {L"long", "i4 0"},
                                                        {L"variant", "empty"}, {L"string", "bstr \"\""}};
  const auto members = outside::members_of(outside::classes[2]);
  std::vector<SharedMember> shared;
  for (size_t slot = 0; slot < members.size(); ++slot) {
    if (own.contains(slot)) continue;
    const std::wstring text = members[slot].signature;
    const auto name = text.substr(text.find(L' ') + 1, text.find(L'(') - text.find(L' ') - 1);
    const auto all = std::ranges::count(text, L'&');
    const auto optional =
        std::ranges::count_if(text, [](wchar_t unit) { return unit == L'=' || unit == L'?'; });
    const auto ones = [](auto count) { return std::vector<_variant_t>(count, 1L); };
    const auto type = text.substr(text.rfind(L' ') + 1);
    shared.push_back({name, ones(all - optional), ones(all), members[slot].fresh, failures.at(type)});
  }
  return shared;
}
