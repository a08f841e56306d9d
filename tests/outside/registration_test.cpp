// What registration writes into the machine's classes or the user's, key by key, and that nothing of it
// stays.
#include <comcat.h>
#include <sddl.h>

#include "registry.h"

namespace outside {
namespace {

// %n is the class's name, %c %i %e its identifiers, %b its bitmap; %l is the library, %p its file,
// %f its folder.
constexpr const wchar_t* class_keys[] = {
    L"\\CLSID\\%c =ZORBOffice.%n",
    L"\\CLSID\\%c\\Control",
    L"\\CLSID\\%c\\Implemented Categories",
    L"\\CLSID\\%c\\Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}",
    L"\\CLSID\\%c\\InprocServer32 =%p ThreadingModel=Apartment",
    L"\\CLSID\\%c\\MiscStatus =0",
    L"\\CLSID\\%c\\MiscStatus\\1 =131473",
    L"\\CLSID\\%c\\ProgID =ZORBOffice.%n.1",
    L"\\CLSID\\%c\\ToolboxBitmap32 =%p, %b",
    L"\\CLSID\\%c\\TypeLib =%l",
    L"\\CLSID\\%c\\Version =1.0",
    L"\\CLSID\\%c\\VersionIndependentProgID =ZORBOffice.%n",
    L"\\Interface\\%e =__%n",
    L"\\Interface\\%e\\ProxyStubClsid32 ={00020420-0000-0000-C000-000000000046}",
    L"\\Interface\\%e\\TypeLib =%l Version=1.0",
    L"\\Interface\\%i =_%n",
    L"\\Interface\\%i\\ProxyStubClsid32 ={00020424-0000-0000-C000-000000000046}",
    L"\\Interface\\%i\\TypeLib =%l Version=1.0",
    L"\\ZORBOffice.%n =ZORBOffice.%n",
    L"\\ZORBOffice.%n\\CLSID =%c",
    L"\\ZORBOffice.%n\\CurVer =ZORBOffice.%n.1",
    L"\\ZORBOffice.%n.1 =ZORBOffice.%n",
    L"\\ZORBOffice.%n.1\\CLSID =%c",
    L"\\TypeLib\\%l",
    L"\\TypeLib\\%l\\1.0 =ZORBOffice50",
    L"\\TypeLib\\%l\\1.0\\0",
    L"\\TypeLib\\%l\\1.0\\0\\%w =%p",
    L"\\TypeLib\\%l\\1.0\\409",
    L"\\TypeLib\\%l\\1.0\\409\\%w =%p",
    L"\\TypeLib\\%l\\1.0\\FLAGS =2",
    L"\\TypeLib\\%l\\1.0\\HELPDIR =%f"};

std::wstring filled(std::wstring row, const ClassIds& ids) {
  const std::wstring path = library_path(), folder = path.substr(0, path.rfind(L'\\'));
  const std::wstring bitmap = std::to_wstring(30000 + (&ids - classes));
  const std::wstring texts[] = {ids.name,      ids.class_id, ids.interface_id,
                                ids.events_id, library_id,   bitmap,
                                path,          folder,       sizeof(void*) == 4 ? L"win32" : L"win64"};
  for (size_t mark = 0; mark < std::size(texts); ++mark)
    for (size_t at; (at = row.find({L'%', L"ncielbpfw"[mark]})) != row.npos;) row.replace(at, 2, texts[mark]);
  return row;
}

// What is there once the library is registered among classes of which `before` was there.
Keys registered(HKEY among, const Keys& before) {
  Keys keys = before;
  const std::wstring above = among == HKEY_CURRENT_USER ? L"\\" + root : L"";
  if (!above.empty()) keys.insert({above, above + L"\\CLSID", above + L"\\Interface", above + L"\\TypeLib"});
  for (const ClassIds& ids : classes)
    for (const auto key : class_keys) keys.insert(above + filled(key, ids));
  return keys;
}

TEST(Registration, writes_exactly_its_own_keys_and_takes_them_back) {
  struct Step {
    const wchar_t* options;
    bool for_machine, for_user;  // what is registered afterwards
  };
  unregister_all();
  const Keys machine = registry(), user = registry(HKEY_CURRENT_USER);
  for (const Step& step : {Step{L"", true, false},
                           {L"/n /i:user", true, true},
                           {L"/u", false, true},
                           {L"/i", true, true},
                           {L"/u /n /i:USER", true, false},
                           {L"/u /n /i", false, false},
                           {L"/n /i:User", false, true},
                           {L"/u /n /i:user", false, false}}) {
    EXPECT_EQ(regsvr32(step.options), 0u);
    EXPECT_EQ(difference(step.for_machine ? registered(HKEY_LOCAL_MACHINE, machine) : machine, registry()),
              L"")
        << step.options;
    EXPECT_EQ(
        difference(step.for_user ? registered(HKEY_CURRENT_USER, user) : user, registry(HKEY_CURRENT_USER)),
        L"")
        << step.options;
  }
  for (const LPCWSTR unknown : {L"users", L"use", L" user", L"machine"})
    for (const BOOL install : {TRUE, FALSE})
      EXPECT_EQ(call("DllInstall", install, unknown), E_INVALIDARG) << unknown;
  EXPECT_EQ(difference(machine, registry()), L"");
  EXPECT_EQ(difference(user, registry(HKEY_CURRENT_USER)), L"");
}

// A key that may only be read, as all of the machine's are for everybody but administrators.
class ReadOnlyKey {
 public:
  explicit ReadOnlyKey(const std::wstring& path) : path_(path) {
    RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, &made_);
    allow(L"D:P(A;;KR;;;WD)");
  }
  ~ReadOnlyKey() {
    allow(L"D:P(A;;KA;;;WD)");
    RegCloseKey(key_);
    if (made_ == REG_CREATED_NEW_KEY) RegDeleteKeyW(HKEY_LOCAL_MACHINE, path_.c_str());
  }

 private:
  void allow(const wchar_t* everyone) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(everyone, SDDL_REVISION_1, &descriptor, nullptr);
    RegSetKeySecurity(key_, DACL_SECURITY_INFORMATION, descriptor);
    LocalFree(descriptor);
  }
  const std::wstring path_;
  HKEY key_ = nullptr;
  DWORD made_ = 0;
};

TEST(Registration, that_fails_half_way_says_so_and_puts_everything_back) {
  unregister_all();
  const Keys unregistered = registry();
  const auto expect_failure = [](std::initializer_list<const wchar_t*> places) {
    const Keys before = registry();
    for (const auto place : places) {
      const auto path = root + filled(place, classes[2]);
      {
        const ReadOnlyKey obstacle(path);
        EXPECT_EQ(call("DllRegisterServer"), E_ACCESSDENIED) << path;
      }
      EXPECT_EQ(difference(before, registry()), L"") << path;
    }
  };
  expect_failure({L"\\CLSID\\%c", L"\\Interface\\%e", L"\\ZORBOffice.%n"});
  // Over an earlier registration, of which somebody else has written one value.
  const std::wstring older = library_path() + L".older.ocx";
  ASSERT_TRUE(CopyFileW(library_path().c_str(), older.c_str(), FALSE));
  ASSERT_EQ(regsvr32(L"", older), 0u);
  RegSetKeyValueW(HKEY_LOCAL_MACHINE, (root + filled(L"\\TypeLib\\%l\\1.0\\HELPDIR", classes[0])).c_str(),
                  nullptr, REG_EXPAND_SZ, L"%windir%", 18);
  expect_failure({L"\\TypeLib\\%l\\1.0", L"\\Interface\\%e"});
  EXPECT_EQ(call("DllRegisterServer"), S_OK);
  EXPECT_EQ(difference(registered(HKEY_LOCAL_MACHINE, unregistered), registry()), L"");
  unregister_all();
  EXPECT_EQ(difference(unregistered, registry()), L"");
  DeleteFileW(older.c_str());
}

// The exact keys above hold no Insertable or Programmable either.
TEST(Registration, calls_the_classes_controls_and_neither_safe_nor_insertable) {
  constexpr const wchar_t* safe_for_scripting = L"{7DD95801-9882-11CF-9FA9-00AA006C42C4}";
  constexpr const wchar_t* safe_for_initialising = L"{7DD95802-9882-11CF-9FA9-00AA006C42C4}";
  constexpr const wchar_t* insertable = L"{40FC6ED3-2438-11CF-A3DB-080036F12502}";
  constexpr const wchar_t* control = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";
  ComPtr<ICatInformation> categories;
  ASSERT_EQ(call("DllRegisterServer"), S_OK);
  ASSERT_EQ(CoCreateInstance(CLSID_StdComponentCategoriesMgr, nullptr, CLSCTX_INPROC_SERVER,
                             IID_ICatInformation, &categories),
            S_OK);
  for (const ClassIds& ids : classes) {
    for (const auto category : {control, safe_for_scripting, safe_for_initialising, insertable}) {
      CATID id = guid(category);
      EXPECT_EQ(categories->IsClassOfCategories(guid(ids.class_id), 1, &id, 0, nullptr),
                category == control ? S_OK : S_FALSE)
          << ids.name << category;
    }
  }
  EXPECT_EQ(call("DllUnregisterServer"), S_OK);
}

std::wstring text(HKEY among, const std::wstring& key) {
  wchar_t data[MAX_PATH] = {};
  DWORD size = sizeof data;
  RegGetValueW(among, (root + L"\\" + key).c_str(), nullptr, RRF_RT_REG_SZ, nullptr, data, &size);
  return data;
}

// The way of the platform itself, which under Wine does not look among the user's classes.
TEST(Registration, for_the_user_leads_a_host_from_the_name_to_an_instance) {
  unregister_all();
  ASSERT_EQ(regsvr32(L"/n /i:user"), 0u);
  for (const ClassIds& ids : classes) {
    const std::wstring id = text(HKEY_CURRENT_USER, L"ZORBOffice." + std::wstring(ids.name) + L"\\CLSID");
    const HMODULE server =
        LoadLibraryW(text(HKEY_CURRENT_USER, L"CLSID\\" + id + L"\\InprocServer32").c_str());
    const auto address = reinterpret_cast<void*>(GetProcAddress(server, "DllGetClassObject"));
    ASSERT_TRUE(address) << ids.name;
    ComPtr<IClassFactory> made;
    ComPtr<IDispatch> instance;
    ASSERT_EQ(reinterpret_cast<LPFNGETCLASSOBJECT>(address)(guid(id.c_str()), IID_IClassFactory, &made),
              S_OK);
    EXPECT_EQ(made->CreateInstance(nullptr, guid(ids.interface_id), &instance), S_OK);
    ComPtr<ITypeLib> types;
    const auto library = text(HKEY_CURRENT_USER, L"CLSID\\" + id + L"\\TypeLib");
    const auto file = text(HKEY_CURRENT_USER, filled(L"TypeLib\\" + library + L"\\1.0\\409\\%w", ids));
    EXPECT_EQ(LoadTypeLibEx(file.c_str(), REGKIND_NONE, &types), S_OK) << file;
    FreeLibrary(server);
  }
  unregister_all();
}

}  // namespace
}  // namespace outside
