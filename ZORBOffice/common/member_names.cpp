#include "ZORBOffice/common/member_names.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "ZORBOffice/common/bstr.h"
#include "ZORBOffice/common/busy_server.h"
#include "ZORBOffice/common/type_descriptions.h"

namespace zorboffice {
namespace {

bool are_equal(const wchar_t* left, const wchar_t* right) {
  for (; *left == *right; ++left, ++right) {
    if (!*left) return true;
  }
  return false;
}

// A library that is registered for a running application may be another version's, or damaged: the root
// object itself has to give this name the library's number. What it says is kept.
bool is_confirmed_by(IDispatch* root, MemberNames& root_names, ITypeInfo* type) {
  Bstr name;
  UINT count = 0;
  DISPID published = DISPID_UNKNOWN;
  DISPID own = DISPID_UNKNOWN;
  if (!first_member(type, published)) return false;
  if (FAILED(type->GetNames(published, name.receive(), 1, &count)) || count != 1) return false;
  LPOLESTR asked = name.get();
  const auto ask = [&] { return root->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_USER_DEFAULT, &own); };
  if (FAILED(until_taken(ask))) return false;
  const wchar_t* const names[] = {asked};
  if (own != published) root_names.remember(names, MemberId{own});
  return own == published;
}

}  // namespace

ComPtr<MemberNames> MemberNames::of_object(PublishedTypes* types, MemberNames* type) {
  ComPtr<MemberNames> names;
  MemberNames* const spare = types ? types->spare_.release() : nullptr;
  *names.receive() = spare ? spare : new MemberNames(types);
  names->references_ = 1;
  names->declared_ = type;
  if (types) types->AddRef();
  return names;
}

MemberNames::MemberNames(PublishedTypes* types) : types_(types) {}

MemberNames::MemberNames(ComPtr<ITypeInfo> type, const GUID& id, PublishedTypes& types)
    : type_(std::move(type)), type_id_(id), types_(&types) {}

void MemberNames::AddRef() {
  if (!is_of_one_object()) return types_->AddRef();
  ++references_;
}

void MemberNames::Release() {
  if (!is_of_one_object()) return types_->Release();
  if (--references_ > 0) return;
  std::unique_ptr<MemberNames> unused(this);
  if (!types_) return;
  entries_.clear();
  types_->spare_.swap(unused);
  types_->Release();
}

const MemberId* MemberNames::find(Names names) {
  if (const Entry* entry = known(names)) return &entry->id;
  if (type_) return published(names);
  if (!declared_) return nullptr;
  const Entry* entry = declared_->known(names);
  return entry ? &entry->id : declared_->published(names);
}

void MemberNames::remember(Names names, const MemberId& id) {
  if (type_) return;
  if (Entry* entry = known(names)) {
    entry->id = id;
  } else {
    add(names, id);
  }
}

MemberNames* MemberNames::element() {
  MemberNames& type = declared_ ? *declared_ : *this;
  if (!type.type_) return nullptr;
  if (!type.element_) {
    const MemberDescription member = describe_member(type.type_.get(), DISPID_VALUE);
    type.element_ = member.answer ? types_->type(member.answer) : nullptr;
  }
  return *type.element_;
}

MemberNames::Entry* MemberNames::known(Names names) {
  for (Entry& entry : entries_) {
    if (are_equal(entry.name.c_str(), names[0]) && entry.name_count == names.size()) return &entry;
  }
  return nullptr;
}

const MemberId* MemberNames::published(Names names) {
  std::array<DISPID, max_named_arguments + 1> ids{};
  if (FAILED(type_->GetIDsOfNames(const_cast<LPOLESTR*>(names.data()), static_cast<UINT>(names.size()),
                                  ids.data()))) {
    return nullptr;
  }
  const MemberDescription member = describe_member(type_.get(), ids[0]);
  MemberId id{ids[0], {}, member.parameters, member.answer ? types_->type(member.answer) : nullptr};
  std::copy(ids.begin() + 1, ids.end(), id.named_arguments.begin());
  return add(names, id);
}

const MemberId* MemberNames::add(Names names, const MemberId& id) {
  entries_.push_back({static_cast<UINT>(names.size()), names[0], id});
  return &entries_.back().id;
}

ComPtr<MemberNames> PublishedTypes::of_root(IDispatch* root, MemberNames& root_names) {
  ComPtr<ITypeInfo> own;
  const auto ask = [&] { return root->GetTypeInfo(0, LOCALE_USER_DEFAULT, own.receive()); };
  if (FAILED(until_taken(ask)) || !own) return {};
  const std::optional<GUID> id = type_id(own.get());
  const ComPtr<ITypeLib> library = registered_library(own.get());
  ComPtr<ITypeInfo> type;
  if (!id || !library || FAILED(library->GetTypeInfoOfGuid(*id, type.receive()))) return {};
  type = dispatch_type(type);
  if (!type || !is_confirmed_by(root, root_names, type.get())) return {};
  ComPtr<PublishedTypes> types;
  *types.receive() = new PublishedTypes(library);
  return ComPtr<MemberNames>(types->type(type));
}

MemberNames* PublishedTypes::type(ComPtr<ITypeInfo> information) {
  const ComPtr<ITypeInfo> dispatch = dispatch_type(std::move(information));
  const std::optional<GUID> id = dispatch ? type_id(dispatch.get()) : std::nullopt;
  if (!id) return nullptr;
  for (const auto& known : types_) {
    if (known->type_id() == *id) return known.get();
  }
  types_.push_back(std::make_unique<MemberNames>(dispatch, *id, *this));
  return types_.back().get();
}

MemberNames* PublishedTypes::type(const wchar_t* name) {
  const auto known = std::ranges::find(named_, std::wstring_view(name), &Named::name);
  if (known != named_.end()) return known->type;
  const ComPtr<ITypeInfo> found = find_type(library_.get(), name);
  named_.push_back({name, found ? type(found) : nullptr});
  return named_.back().type;
}

DISPID PublishedTypes::common_id(const wchar_t* name) {
  const auto known = std::ranges::find(common_, std::wstring_view(name), &Common::name);
  if (known != common_.end()) return known->id;
  common_.push_back({name, common_member_id(library_.get(), name)});
  return common_.back().id;
}

}  // namespace zorboffice
