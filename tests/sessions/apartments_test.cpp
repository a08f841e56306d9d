// Sessions in several apartments, and instances that are called from another one.

#include <array>

#include "ZORBOffice/surface/word_processor_interface.h"
#include "server.h"
#include "support/control_test.h"
#include "support/fake_offices.h"

namespace {

using Microsoft::WRL::ComPtr;

// A thread with an apartment of its own.
class Apartment {
 public:
  Apartment(COINIT kind, std::function<void()> run) : kind_(kind), run_(std::move(run)) {}
  ~Apartment() { CloseHandle(thread_); }
  Apartment(const Apartment&) = delete;

  // Waits for its end, while this apartment answers.
  void join() const {
    DWORD index = 0;
    EXPECT_EQ(CoWaitForMultipleHandles(0, 30'000, 1, const_cast<HANDLE*>(&thread_), &index), S_OK);
  }

 private:
  static DWORD WINAPI start(void* self) {
    const auto& own = *static_cast<const Apartment*>(self);
    CoInitializeEx(nullptr, own.kind_);
    own.run_();
    CoUninitialize();
    return 0;
  }

  const COINIT kind_;
  const std::function<void()> run_;
  const HANDLE thread_ = CreateThread(nullptr, 0, start, this, 0, nullptr);
};

constexpr std::array kinds = {COINIT_APARTMENTTHREADED, COINIT_MULTITHREADED};

struct Marshalled : ControlTest<FakeWord, 0> {
  Marshalled() { EXPECT_EQ(outside::call("DllRegisterServer"), S_OK); }
  ~Marshalled() { EXPECT_EQ(outside::call("DllUnregisterServer"), S_OK); }
};

// The office's objects tell when they are called from another apartment than the control's.
TEST_F(Marshalled, AnInstanceIsCalledFromAnotherApartmentWhichReleasesItLast) {
  office_.answers["Selection.TypeText"].effect = [&](const DISPPARAMS&) { control_.Reset(); };
  for (const auto kind : kinds) {
    renew();
    IStream* stream = nullptr;
    const GUID published = outside::guid(outside::classes[0].interface_id);
    ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(published, control_.Get(), &stream), S_OK);
    const Apartment other(kind, [&] {
      ComPtr<zorboffice::WordProcessorInterface> word;
      ASSERT_EQ(CoGetInterfaceAndReleaseStream(stream, published, &word), S_OK);
      VARIANT_BOOL place = VARIANT_FALSE;
      BYTE started = 0;
      EXPECT_EQ(word->get_Start(&place, &started), S_OK);
      EXPECT_EQ(started, 1);
      EXPECT_EQ(late_call(word.Get(), L"CreateDoc"), "ui1 1");
      EXPECT_EQ(late_call(word.Get(), L"SendText", {L"text"}), "ui1 1");
      EXPECT_EQ(late_call(word.Get(), L"SelectionText"), "bstr \"chosen\"");
    });
    other.join();
    EXPECT_EQ(office_.live, 0);
    EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
  }
}

// Each with a word processor of its own, in another process, which is busy for a while. One ends its
// apartment before it releases the control.
TEST(Apartments, HaveTheirOwnSessionsAtOnce) {
  const Registered registered("published");
  outside::library();
  const auto session = [](const wchar_t* own) {
    const auto control = outside::create(outside::classes[0]);
    std::wstring all;
    EXPECT_EQ(late_call(control.Get(), L"Start"), "ui1 1");
    EXPECT_EQ(late_call(control.Get(), L"CreateDoc"), "ui1 1");
    for (const auto* text : {own, be_busy, own, own}) {
      EXPECT_EQ(late_call(control.Get(), L"SendText", {text}), "ui1 1");
      EXPECT_EQ(late_call(control.Get(), L"SelectionText"), "bstr \"" + utf8(all += text) + "\"");
    }
    return control;
  };
  const Apartment first(kinds[0], [&] {
    auto control = session(L"first");
    CoUninitialize();
    control.Reset();
    CoInitialize(nullptr);
  });
  const Apartment second(kinds[1], [&] { session(L"second"); });
  first.join();
  second.join();
  EXPECT_EQ(outside::call("DllCanUnloadNow"), S_OK);
}

}  // namespace
