#include "ZORBOffice/outlook/property.h"

#include <algorithm>
#include <string>
#include <utility>

#include "ZORBOffice/common/conversions.h"
#include "ZORBOffice/common/message_box.h"

namespace zorboffice {
namespace {

Result value_of(const AutomationObject& item, const wchar_t* member) { return item.typed().get(member); }

template <const wchar_t* picture>
Bstr read_date(const AutomationObject& item, const wchar_t* member) {
  return formatted(value_of(item, member).date(), picture);
}

constexpr wchar_t date_picture[] = L"dd/MM/yyyy";
constexpr wchar_t time_picture[] = L"HH:mm:ss";

Bstr joined_values(const AutomationObject& item, const wchar_t* members) {
  std::wstring joined;
  std::wstring member;
  for (std::wstring_view rest = members; !rest.empty();) {
    if (rest.data() != members) joined += L' ';
    member = rest.substr(0, rest.find(L' '));
    joined += value_of(item, member.c_str()).text().view();
    rest.remove_prefix(std::min(member.size() + 1, rest.size()));
  }
  return Bstr(joined);
}

template <const wchar_t* element_member>
Bstr joined_elements(const AutomationObject& item, const wchar_t* member) {
  std::wstring joined;
  const wchar_t* separator = L"";
  value_of(item, member).object().for_each([&](const Result& element) {
    joined += std::exchange(separator, L";");
    joined += element.get(element_member).text().view();
  });
  return Bstr(joined);
}

constexpr wchar_t name[] = L"Name";
constexpr wchar_t display_name[] = L"DisplayName";

const Property* find(std::span<const Property> properties, BSTR key, auto is_served) {
  const std::wstring_view wanted = view(key);
  const auto row = std::ranges::find_if(
      properties, [&](const Property& property) { return property.key == wanted && is_served(property); });
  return row == properties.end() ? nullptr : &*row;
}

}  // namespace

constinit const Format as_text = {says("text"), [](const AutomationObject& item, const wchar_t* member) {
                                    return value_of(item, member).text();
                                  }};
constinit const Format as_decimal = {says("decimal"),
                                     [](const AutomationObject& item, const wchar_t* member) {
                                       return decimal(value_of(item, member).int32());
                                     }};
constinit const Format as_flag = {says("`True` or `False`"),
                                  [](const AutomationObject& item, const wchar_t* member) {
                                    return Bstr(value_of(item, member).flag() ? L"True" : L"False");
                                  }};
constinit const Format as_date_time = {says("date and time as the user's settings have them"),
                                       [](const AutomationObject& item, const wchar_t* member) {
                                         return general_date(value_of(item, member).date());
                                       }};
constinit const Format as_date = {says("`dd/MM/yyyy`"), read_date<date_picture>};
constinit const Format as_time = {says("`HH:mm:ss`"), read_date<time_picture>};
constinit const Format as_name = {says("its `Name`"),
                                  [](const AutomationObject& item, const wchar_t* member) {
                                    return value_of(item, member).get(L"Name").text();
                                  }};
constinit const Format as_count = {says("its `Count`, decimal"),
                                   [](const AutomationObject& item, const wchar_t* member) {
                                     return decimal(value_of(item, member).get(L"Count").int32());
                                   }};
constinit const Format as_joined_values = {says("the texts, joined by a blank, empty ones too"),
                                           joined_values};
constinit const Format as_names = {says("each `Name`, joined by `;`"), joined_elements<name>};
constinit const Format as_display_names = {says("each `DisplayName`, joined by `;`"),
                                           joined_elements<display_name>};

constinit const Conversion from_text = {says("text"),
                                        [](const AutomationObject& item, const wchar_t* member, BSTR value) {
                                          item.typed().put(member, Argument::text(value));
                                        }};
constinit const Conversion from_flag = {says("`True`, `False` or a number"),
                                        [](const AutomationObject& item, const wchar_t* member, BSTR value) {
                                          const bool converted = flag_of(value);
                                          item.typed().put(member, converted);
                                        }};
constinit const Conversion from_int16 = {says("number of 16 bits, rounded"), write_int16};
constinit const Conversion from_date = {says("date, time or both as the user's settings have them"),
                                        [](const AutomationObject& item, const wchar_t* member, BSTR value) {
                                          const DATE converted = date_of(value);
                                          item.typed().put(member, Argument::date(converted));
                                        }};

void write_int16(const AutomationObject& item, const wchar_t* member, BSTR value) {
  const LONG converted = int16_of(value);
  item.typed().put(member, converted);
}

const Property* find_readable(std::span<const Property> properties, BSTR key) {
  return find(properties, key, [](const Property& property) { return property.format != nullptr; });
}

Bstr read_property(std::span<const Property> properties, const AutomationObject& item, BSTR key,
                   const wchar_t* unknown_key) {
  const Property* property = find_readable(properties, key);
  if (property) return property->format->read(item, property->member);
  show_message(concatenated({unknown_key, view(key)}));
  return Bstr();
}

void write_property(std::span<const Property> properties, const AutomationObject& item, BSTR key, BSTR value,
                    const wchar_t* unknown_key) {
  const Property* property =
      find(properties, key, [](const Property& row) { return row.conversion != nullptr; });
  if (property) return property->conversion->write(item, property->member, value);
  show_message(concatenated({unknown_key, view(key)}));
}

}  // namespace zorboffice
