// Class factories, the life of the library, and every slot of every vtable called as a host would.
#include <algorithm>
#include <cstring>

#include "members.h"
#include "support/message_boxes.h"

namespace outside {
namespace {

TEST(Factory, gives_a_class_its_own_interfaces_which_keep_the_library) {
  void* made = &made;
  EXPECT_EQ((call<REFCLSID, REFIID, void**>("DllGetClassObject", guid(library_id), IID_IUnknown, &made)),
            CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(made, nullptr);
  for (const ClassIds& ids : classes) {
    for (const ClassIds& other : classes) {
      ComPtr<IUnknown> instance;
      const HRESULT code = factory(ids)->CreateInstance(nullptr, guid(other.interface_id), &instance);
      EXPECT_EQ(code, &ids == &other ? S_OK : E_NOINTERFACE);
      EXPECT_EQ(call("DllCanUnloadNow"), instance ? S_FALSE : S_OK);
    }
    made = &made;
    EXPECT_EQ(factory(ids)->CreateInstance(factory(ids).Get(), IID_IDispatch, &made), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(call("DllCanUnloadNow"), S_OK);
    EXPECT_EQ(factory(ids)->LockServer(TRUE), S_OK);
    EXPECT_EQ(call("DllCanUnloadNow"), S_FALSE);
    EXPECT_EQ(factory(ids)->LockServer(FALSE), S_OK);
    EXPECT_EQ(call("DllCanUnloadNow"), S_OK);
  }
}

// Calls a slot with zeros and empty strings, and lets it write its result to `result`.
HRESULT call_member(IDispatch* instance, size_t slot, const std::vector<VARTYPE>& types, void* result) {
  VARIANT targets[16] = {};
  const VARIANT untouched[16] = {};
  std::vector<VARIANT> arguments(types.size());
  for (size_t i = 0; i < types.size(); ++i) {
    V_VT(&arguments[i]) = types[i];
    if (types[i] & VT_BYREF) V_BYREF(&arguments[i]) = &targets[i];
  }
  V_VT(&arguments.back()) |= VT_BYREF;
  V_BYREF(&arguments.back()) = result;
  const HRESULT code = call_slot(instance, 7 + slot, arguments);
  EXPECT_EQ(std::memcmp(targets, untouched, sizeof targets), 0) << "an argument was changed";
  return code;
}

// Whether zero or the empty text or variant, and for a number no byte more, was written over 0xCD.
bool is_failure_value(VARTYPE type, const unsigned char* result) {
  if (type == VT_BSTR && result[0] != 0xCD) return !SysStringLen(*reinterpret_cast<const BSTR*>(result));
  const size_t size = type == VT_UI1 ? 1 : type == VT_I4 ? 4 : 2;
  return std::all_of(result, result + size, [](unsigned char byte) { return byte == 0; }) &&
         (type == VT_VARIANT || result[size] == 0xCD);
}

// What a call let reach the host: nothing, or the description of its failure.
std::string raised(HRESULT code) {
  ComPtr<IErrorInfo> error;
  BSTR description = nullptr;
  if (SUCCEEDED(code)) return "";
  if (GetErrorInfo(0, &error) == S_OK) error->GetDescription(&description);
  return "raised: " + utf8(take(description));
}

TEST(Slots, answer_a_host_that_started_nothing) {
  CLSID office;
  ASSERT_NE(CLSIDFromProgID(L"Word.Application", &office), S_OK) << "an office program would start";
  MessageBoxes boxes;
  ComPtr<ICreateErrorInfo> earlier;
  ComPtr<IErrorInfo> anothers;
  ASSERT_EQ(CreateErrorInfo(&earlier), S_OK);
  ASSERT_EQ(earlier.As(&anothers), S_OK);
  for (const ClassIds& ids : classes) {
    const auto members = members_of(ids);
    ComPtr<IDispatch> instance;
    ASSERT_EQ(create(ids)->QueryInterface(guid(ids.interface_id), &instance), S_OK);
    // From the last slot to the first: the last error is read on a fresh instance.
    for (size_t slot = members.size(); slot-- > 0;) {
      const auto types = types_of(members[slot].signature);
      SCOPED_TRACE(std::wstring(ids.name) + L" " + members[slot].signature);
      std::string shown, last;
      alignas(VARIANT) unsigned char result[sizeof(VARIANT)];
      std::memset(result, 0xCD, sizeof result);
      SetErrorInfo(0, anothers.Get());
      const HRESULT code = call_member(instance.Get(), slot, types, result);
      for (const SeenBox& box : boxes.take()) {
        EXPECT_EQ(box.buttons, std::vector<std::string>{"OK"});
        if (box.text != last) shown += last = box.text;
      }
      EXPECT_TRUE(members[slot].succeeds || is_failure_value(types.back(), result));
      EXPECT_EQ(shown + raised(code), members[slot].fresh);
      EXPECT_EQ(call_member(instance.Get(), slot, types, nullptr), E_POINTER);
      EXPECT_TRUE(boxes.take().empty());
    }
  }
}

}  // namespace
}  // namespace outside
