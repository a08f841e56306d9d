// An office application as a recording fake, creatable under its own program identifier.
#pragma once

#include "fake_object.h"

// While one lives, every creation of the class in this apartment gives a new object of the office, called
// `object`. A creation is the step "create " with `label` and fails as any other step.
class FakeClass : private IClassFactory {
 public:
  FakeClass(FakeOffice& office, const CLSID& class_id, const std::string& label, const std::string& object);
  ~FakeClass();
  FakeClass(const FakeClass&) = delete;

 private:
  HRESULT WINAPI QueryInterface(REFIID iid, void** object) override;
  ULONG WINAPI AddRef() override { return 1; }
  ULONG WINAPI Release() override { return 1; }
  HRESULT WINAPI CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  HRESULT WINAPI LockServer(BOOL) override { return S_OK; }

  FakeOffice& office_;
  std::string label_, object_;
  DWORD registration_ = 0;
};

// While one lives, the program identifier names the class. The machine's classes are put back at the end.
class FakeProgramId {
 public:
  FakeProgramId(const std::string& program_id, const CLSID& class_id);
  ~FakeProgramId();
  FakeProgramId(const FakeProgramId&) = delete;

 private:
  void name_class(const std::wstring& class_id) const;

  std::wstring program_key_, class_key_, earlier_class_;
};

// Both: the program identifier creates new objects "Application".
class FakeApplication : public FakeOffice {
 protected:
  FakeApplication(const std::string& program_id, const CLSID& class_id)
      : name_(program_id, class_id), class_(*this, class_id, program_id, "Application") {}

 private:
  FakeProgramId name_;
  FakeClass class_;
};
