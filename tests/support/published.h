// The published members and how each tells of a failure.
#pragma once

#include <map>
#include <regex>

#include "outside/members.h"

struct PublishedMember {
  std::wstring name;
  std::string result, boxes;  // after a failure
};

inline std::vector<PublishedMember> published_members(int class_index, int number,
                                                      const std::string& description) {
  const std::map<std::wstring, std::string> failures = {{L"byte", "ui1 0"},    {L"flag", "bool 0"},
                                                        {L"short", "i2 0"},    {L"long", "i4 0"},
                                                        {L"variant", "empty"}, {L"string", "bstr \"\""}};
  char raised[20];
  snprintf(raised, sizeof(raised), "raised 800A%04X ", number);
  std::vector<PublishedMember> published;
  for (const auto& member : outside::members_of(outside::classes[class_index])) {
    const std::wstring text = member.signature;
    auto boxes = std::regex_replace(member.fresh, std::regex("Object required"), description);
    boxes = std::regex_replace(boxes, std::regex("424"), std::to_string(number));
    const bool raises = boxes.starts_with("raised: ");
    published.push_back({text.substr(text.find(L' ') + 1, text.find(L'(') - text.find(L' ') - 1),
                         raises ? raised + description : failures.at(text.substr(text.rfind(L' ') + 1)),
                         raises ? "" : boxes});
  }
  return published;
}
