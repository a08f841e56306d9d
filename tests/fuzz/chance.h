// Everything that is random in a call comes from the run's seed and the call's number alone.
#pragma once

#include <windows.h>

#include <cstdint>
#include <initializer_list>
#include <string>

class Chance {
 public:
  Chance(uint64_t seed, uint64_t number) : state_(seed * 0x9E3779B97F4A7C15 ^ number * 0xD1B54A32D192ED03) {}

  uint32_t bits() {
    uint64_t mixed = state_ += 0x9E3779B97F4A7C15;
    mixed = (mixed ^ mixed >> 30) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ mixed >> 27) * 0x94D049BB133111EB;
    return static_cast<uint32_t>(mixed >> 32);
  }
  size_t below(size_t end) { return bits() % end; }
  bool one_in(size_t times) { return below(times) == 0; }
  template <class Value>
  Value of(std::initializer_list<Value> list) {
    return list.begin()[below(list.size())];
  }

  // Mostly small, often at an edge, sometimes anything.
  LONG number() {
    if (one_in(8)) return static_cast<LONG>(bits());
    if (one_in(2)) return static_cast<LONG>(below(60)) - 10;
    return of<LONG>({-1, 0, 127, 128, 255, 256, -32768, 32767, 32768, 0x7FFFFFFF, -0x7FFFFFFF - 1, 65536, 91,
                     999'999, 1'000'000, 1'000'001});
  }
  double fraction() {
    return one_in(2) ? of<double>({0, -0.5, 1e300, 1e-300, 2958465.9, -657435, 1e9, 0.1}) : number() / 8.0;
  }

  // What members know, numbers, dates, any units, and rarely a megabyte.
  std::wstring text() {
    if (one_in(2'000)) return std::wstring(below(500'000), L'm');
    if (!one_in(3))
      return of({L"Appointment",   L"Contact",     L"Note",       L"Task",
                 L"Email",         L"Subject",     L"Start",      L"Body",
                 L"12:30",         L"1/2/2003",    L"7",          L"-1.5",
                 L"True",          L"Attachments", L"Status",     L"EntryID",
                 L"Importance",    L"Parent",      L"C:\\a.docx", L"",
                 L"RecurrenceType"});
    std::wstring units(below(12), L' ');
    for (wchar_t& unit : units) unit = static_cast<wchar_t>(one_in(3) ? bits() : L' ' + below(95));
    return units;
  }

 private:
  uint64_t state_;
};
