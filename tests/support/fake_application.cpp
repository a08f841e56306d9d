#include "fake_application.h"

FakeClass::FakeClass(FakeOffice& office, const CLSID& class_id, const std::string& label,
                     const std::string& object)
    : office_(office), label_(label), object_(object) {
  CoInitialize(nullptr);
  CoRegisterClassObject(class_id, static_cast<IClassFactory*>(this),
                        CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &registration_);
}

FakeClass::~FakeClass() {
  CoRevokeClassObject(registration_);
  CoUninitialize();
}

HRESULT FakeClass::QueryInterface(REFIID iid, void** object) {
  const bool known = iid == IID_IUnknown || iid == IID_IClassFactory;
  *object = known ? static_cast<IClassFactory*>(this) : nullptr;
  return known ? S_OK : E_NOINTERFACE;
}

HRESULT FakeClass::CreateInstance(IUnknown*, REFIID iid, void** object) {
  *object = nullptr;
  if (const HRESULT failed = office_.step("create " + label_); FAILED(failed)) return failed;
  IDispatch* created = office_.make(object_);
  const HRESULT result = created->QueryInterface(iid, object);
  created->Release();
  return result;
}

FakeProgramId::FakeProgramId(const std::string& program_id, const CLSID& class_id)
    : program_key_(L"Software\\Classes\\" + std::wstring(program_id.begin(), program_id.end())),
      class_key_(program_key_ + L"\\CLSID") {
  wchar_t own[64] = {}, earlier[64] = {};
  StringFromGUID2(class_id, own, 64);
  DWORD bytes = sizeof(earlier);
  RegGetValueW(HKEY_LOCAL_MACHINE, class_key_.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, earlier, &bytes);
  // What an interrupted test left behind was not there before either.
  if (std::wstring_view(earlier) != own) earlier_class_ = earlier;
  name_class(own);
}

FakeProgramId::~FakeProgramId() {
  if (earlier_class_.empty()) {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, program_key_.c_str());
  } else {
    name_class(earlier_class_);
  }
}

void FakeProgramId::name_class(const std::wstring& class_id) const {
  const auto bytes = static_cast<DWORD>((class_id.size() + 1) * sizeof(wchar_t));
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, class_key_.c_str(), nullptr, REG_SZ, class_id.c_str(), bytes);
}
