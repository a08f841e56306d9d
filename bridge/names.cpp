#include "names.h"

#include "text.h"

DISPID Names::id_of(std::wstring_view name) {
  Locked locked(lock_);
  const auto [entry, is_new] = ids_.try_emplace(lower_case(name), static_cast<DISPID>(spelt_.size()) + 1);
  if (is_new) spelt_.push_back(narrow(name));
  return entry->second;
}

std::optional<std::string> Names::name_of(DISPID id) {
  Locked locked(lock_);
  if (id < 1 || id > static_cast<DISPID>(spelt_.size())) return std::nullopt;
  return spelt_[id - 1];
}

Member Names::member(const std::string& class_name, DISPID name, long object) {
  const std::pair key(class_name, name);
  {
    Locked locked(lock_);
    if (const auto known = members_.find(key); known != members_.end()) return known->second;
  }
  // Asked outside the lock: two threads may both ask, and get the same answer.
  const Json answer = peer_.ask({{"do", "member"}, {"object", object}, {"name", *name_of(name)}});
  Member member;
  member.exists = answer.is_object();
  if (member.exists) {
    if (answer["constant"].is_number_integer()) member.constant = answer["constant"].get<long>();
    for (const Json& parameter : answer["parameters"]) {
      member.parameters.push_back(narrow(lower_case(wide(parameter.get<std::string>()))));
    }
  }
  Locked locked(lock_);
  members_[key] = member;
  return member;
}

std::optional<long> Names::constant(const std::string& class_name, DISPID name) {
  Locked locked(lock_);
  const auto known = members_.find({class_name, name});
  return known == members_.end() ? std::nullopt : known->second.constant;
}
