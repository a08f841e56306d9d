// The dispatch identifiers of an object's members, so that no name is looked up twice.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "ZORBOffice/common/com_ptr.h"

namespace zorboffice {

class MemberNames;
class PublishedTypes;

inline constexpr std::size_t max_named_arguments = 3;

// A member's name, and behind it the names of the arguments that a call names.
using Names = std::span<const wchar_t* const>;

struct MemberId {
  DISPID member = DISPID_UNKNOWN;
  std::array<DISPID, max_named_arguments> named_arguments{};
  // What the member is declared to take and to answer; no type where that may be any object.
  SHORT parameters = 0;
  MemberNames* answer = nullptr;
};

// What is known of the members of one object, or of all objects of one published type. Objects number their
// names as they like: what one object said holds for that object, and what a type library publishes holds for
// the objects that it is declared for.
//
// Counted, like the objects, and like them used in one apartment only.
class MemberNames {
 public:
  // Of one object. type: what it is declared as, null for any object; types: the session's, may be null.
  static ComPtr<MemberNames> of_object(PublishedTypes* types, MemberNames* type);

  // Of all objects of a type, which belongs to types and lives as long.
  MemberNames(ComPtr<ITypeInfo> type, const GUID& id, PublishedTypes& types);

  MemberNames(const MemberNames&) = delete;
  MemberNames& operator=(const MemberNames&) = delete;
  ~MemberNames() = default;

  void AddRef();
  void Release();

  // Returns what is known without asking the object, null for nothing.
  const MemberId* find(Names names);

  // Keeps what an object said of itself; nothing is kept of a type.
  void remember(Names names, const MemberId& id);

  // Says what the object is, where this is one object's.
  void declare(MemberNames* type) { declared_ = type; }

  // The type of a collection's elements: what its default member is declared to answer. Null for any object.
  MemberNames* element();

  // The published types of the session, null where the application publishes none.
  PublishedTypes* types() const { return types_; }

  // Whether what one object says is kept here.
  bool is_of_one_object() const { return !type_; }

  const GUID& type_id() const { return type_id_; }

 private:
  struct Entry {
    UINT name_count;
    std::wstring name;
    MemberId id;
  };

  Entry* known(Names names);
  const MemberId* published(Names names);
  const MemberId* add(Names names, const MemberId& id);

  explicit MemberNames(PublishedTypes* types);

  ComPtr<ITypeInfo> type_;
  GUID type_id_{};
  PublishedTypes* types_;  // counted where this is one object's and in use
  MemberNames* declared_ = nullptr;
  ULONG references_ = 0;
  std::vector<Entry> entries_;
  std::optional<MemberNames*> element_;
};

// The types that an application publishes, for one session: from the creation of its root object until
// nothing that came from it is held any more. An application that was started again is asked again.
class PublishedTypes {
 public:
  PublishedTypes(const PublishedTypes&) = delete;
  PublishedTypes& operator=(const PublishedTypes&) = delete;

  void AddRef() { ++references_; }
  void Release() {
    if (--references_ == 0) delete this;
  }

  // Asks a root object for its type library, loads that in this process, and returns the root's type. Null
  // where the object publishes none, where it cannot be loaded, or where it does not say what the object
  // says, which root_names keeps.
  static ComPtr<MemberNames> of_root(IDispatch* root, MemberNames& root_names);

  // The names of a type, null where it is not for automation.
  MemberNames* type(ComPtr<ITypeInfo> information);

  // The names of the class or interface of that name; null where the library has none.
  MemberNames* type(const wchar_t* name);

  // The identifier of a name for which all types that have it have the same; DISPID_UNKNOWN where they
  // differ.
  DISPID common_id(const wchar_t* name);

 private:
  friend class MemberNames;

  struct Named {
    std::wstring name;
    MemberNames* type;
  };
  struct Common {
    std::wstring name;
    DISPID id;
  };

  explicit PublishedTypes(ComPtr<ITypeLib> library) : library_(std::move(library)) {}
  ~PublishedTypes() = default;

  ComPtr<ITypeLib> library_;
  ULONG references_ = 1;
  std::vector<std::unique_ptr<MemberNames>> types_;
  std::vector<Named> named_;
  std::vector<Common> common_;
  std::unique_ptr<MemberNames> spare_;  // of an object that is gone: a walk needs one for each item
};

}  // namespace zorboffice
