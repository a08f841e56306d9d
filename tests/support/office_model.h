// The object model of an office application as its type library publishes it.
#pragma once

#include <windows.h>
#include <oaidl.h>
#include <wrl/client.h>

#include <string>
#include <vector>

// How the recording objects of the process number their names, and what they publish. The environment
// variable ZORB_OFFICE chooses.
enum class Office {
  plain,        // one list of numbers for all; nothing is published
  published,    // each type its own numbers, in a registered type library
  unloadable,   // the same, but the library is not where it is registered
  own_numbers,  // each object its own numbers; nothing is published
  stale         // the same, but a library is published that says otherwise
};
Office office_kind();

// The type of what a member of a type answers, "" where that may be any object. `arguments` is how many are
// given.
std::string declared_answer(const std::string& type, const std::string& member, size_t arguments);

// The names of a member's arguments in their order; empty where none is called by name.
const std::vector<std::string>& argument_names(const std::string& member);

// The names that published types have, and others as they come up.
std::vector<std::string>& model_names();

// Numbers and names of members; `shift` is how far a type's, or an object's, are moved. No name ("") is
// behind a number that was never given.
DISPID model_identifier(const std::string& name, int shift);
std::string model_name(DISPID identifier, int shift);
int shift_of(const std::string& key);

// What a type publishes; null where the process's office publishes nothing.
Microsoft::WRL::ComPtr<ITypeInfo> published_type(const std::string& type);
