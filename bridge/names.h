// Member names and their dispatch identifiers, the same for every object of the process.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "locked.h"
#include "peer.h"

// What the peer said about one member of one class.
struct Member {
  bool exists = false;
  std::vector<std::string> parameters;  // In lower case; empty where the peer knows no names.
  std::optional<long> constant;         // The value, where all objects of the class have the same for ever.
};

class Names {
 public:
  // The peer, which outlives the table, is asked about members.
  explicit Names(Peer& peer) : peer_(peer) {}

  // The identifier of a name, whatever its case; a new name gets the next number.
  DISPID id_of(std::wstring_view name);
  // The name of an identifier as it was first spelt, or nothing for one that was never given out.
  std::optional<std::string> name_of(DISPID id);
  // What is known of a class's member, asking the peer through the object when it is met for the first time.
  // Throws CallError when the peer cannot be asked.
  Member member(const std::string& class_name, DISPID name, long object);
  // The constant value of a class's member, if it has one and the member has been met.
  std::optional<long> constant(const std::string& class_name, DISPID name);

 private:
  Peer& peer_;
  Lock lock_;
  std::map<std::wstring, DISPID> ids_;
  std::vector<std::string> spelt_;
  std::map<std::pair<std::string, DISPID>, Member> members_;
};
