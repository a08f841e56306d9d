// The word processor as a recording fake, creatable under its own program identifier.
#pragma once

#include "fake_object.h"

// While one lives, "Word.Application" names a class of this process whose every creation gives a new object
// "Application", with as much of the object model behind it as the members use. A creation is the step
// "create Word.Application" and fails as any other step. The machine's classes are put back at the end.
class FakeWord final : public FakeOffice, private IClassFactory {
 public:
  FakeWord();
  ~FakeWord();

 private:
  HRESULT WINAPI QueryInterface(REFIID iid, void** object) override;
  ULONG WINAPI AddRef() override { return 1; }
  ULONG WINAPI Release() override { return 1; }
  HRESULT WINAPI CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  HRESULT WINAPI LockServer(BOOL) override { return S_OK; }

  std::wstring earlier_class_;
  DWORD registration_ = 0;
};
