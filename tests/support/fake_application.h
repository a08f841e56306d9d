// An office application as a recording fake, creatable under its own program identifier.
#pragma once

#include "fake_object.h"

// While one lives, the program identifier names a class of this process whose every creation gives a new
// object "Application". A creation is the step "create " with the program identifier and fails as any other
// step. The machine's classes are put back at the end.
class FakeApplication : public FakeOffice, private IClassFactory {
 protected:
  FakeApplication(const std::string& program_id, const CLSID& class_id);
  ~FakeApplication();

 private:
  HRESULT WINAPI QueryInterface(REFIID iid, void** object) override;
  ULONG WINAPI AddRef() override { return 1; }
  ULONG WINAPI Release() override { return 1; }
  HRESULT WINAPI CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  HRESULT WINAPI LockServer(BOOL) override { return S_OK; }
  void name_class(const std::wstring& class_id) const;

  std::string program_id_;
  std::wstring program_key_, class_key_, earlier_class_;
  DWORD registration_ = 0;
};
