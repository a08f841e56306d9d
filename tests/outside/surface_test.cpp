// The built file as the system reads it: its type library, held against the literal list of members, its
// resources and what it needs.
#include <set>

#include "members.h"

namespace outside {
namespace {

std::wstring type_name(const TYPEDESC& type) {
  if (type.vt == VT_PTR) return L"&" + type_name(*type.lptdesc);
  for (const auto& [kind, name] : type_names)
    if (kind == type.vt) return name;
  return L"type " + std::to_wstring(type.vt);
}

std::wstring parameter_text(const ELEMDESC& element, BSTR name) {
  const WORD flags = element.paramdesc.wParamFlags, bare = flags & ~(PARAMFLAG_FOPT | PARAMFLAG_FHASDEFAULT);
  const std::wstring type = type_name(element.tdesc);
  std::wstring text = take(name) + L" " + type;
  if (bare != (type[0] == L'&' ? PARAMFLAG_FIN | PARAMFLAG_FOUT : PARAMFLAG_FIN))
    text += L" flags " + std::to_wstring(bare);
  if (!(flags & PARAMFLAG_FHASDEFAULT)) return text + (flags & PARAMFLAG_FOPT ? L"?" : L"");
  VARIANT value = element.paramdesc.pparamdescex->varDefaultValue, written = {};
  const std::wstring kind = type_name({{}, V_VT(&value)});
  EXPECT_EQ(VariantChangeTypeEx(&written, &value, 0x409, 0, VT_BSTR), S_OK) << text;
  text += L"=" + (type.ends_with(kind) ? L"" : kind + L" ") + take(V_BSTR(&written));
  return text + (flags & PARAMFLAG_FOPT ? L"" : L" not optional");
}

// One member of a vtable interface, written as a row of the list is.
std::wstring member_text(ITypeInfo* info, const FUNCDESC& member) {
  BSTR names[16] = {};
  UINT count = 0;
  EXPECT_EQ(info->GetNames(member.memid, names, 16, &count), S_OK);
  const int last = std::min<int>(member.cParams, 16) - 1;
  std::wstring text = member.invkind == INVOKE_FUNC ? L"call " : L"put ";
  if (member.invkind == INVOKE_PROPERTYGET) text = L"get ";
  text += take(names[0]) + L"(";
  for (int i = 0; i < last; ++i)
    text += (i ? L", " : L"") + parameter_text(member.lprgelemdescParam[i], names[i + 1]);
  const ELEMDESC result = last < 0 ? ELEMDESC{} : member.lprgelemdescParam[last];
  EXPECT_EQ(result.paramdesc.wParamFlags, PARAMFLAG_FOUT | PARAMFLAG_FRETVAL) << text;
  return text + L") " + type_name(result.tdesc).substr(1);
}

ComPtr<ITypeLib> types() {
  ComPtr<ITypeLib> loaded;
  require(LoadTypeLibEx(library_path().c_str(), REGKIND_NONE, &loaded) == S_OK, "type library");
  return loaded;
}

ComPtr<ITypeInfo> find(const wchar_t* id) {
  ComPtr<ITypeInfo> info;
  require(types()->GetTypeInfoOfGuid(guid(id), &info) == S_OK, "type information");
  return info;
}

TYPEATTR attributes(ITypeInfo* info) {
  TYPEATTR *held = nullptr, copy = {};
  EXPECT_EQ(info->GetTypeAttr(&held), S_OK);
  std::swap(copy, *held);
  info->ReleaseTypeAttr(held);
  return copy;
}

// A type's kind, flags and name, and what it implements, each with its flags.
std::wstring type_text(ITypeInfo* info) {
  const TYPEATTR about = attributes(info);
  BSTR name = nullptr;
  EXPECT_EQ(info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr), S_OK);
  wchar_t head[32] = {};
  swprintf(head, 32, L"%d %X ", about.typekind, about.wTypeFlags);
  std::wstring text = head + take(name);
  for (UINT i = 0; i < std::min<UINT>(about.cImplTypes, 4); ++i) {
    HREFTYPE reference = 0;
    INT flags = -1;
    wchar_t id[40] = {};
    ComPtr<ITypeInfo> implemented;
    EXPECT_EQ(info->GetImplTypeFlags(i, &flags), S_OK);
    EXPECT_EQ(info->GetRefTypeOfImplType(i, &reference), S_OK);
    require(info->GetRefTypeInfo(reference, &implemented) == S_OK, "implemented interface");
    StringFromGUID2(attributes(implemented.Get()).guid, id, 40);
    text += L" " + std::to_wstring(flags) + id;
  }
  return text;
}

TEST(TypeLibrary, is_the_published_one) {
  const auto library_types = types();
  TLIBATTR* about = nullptr;
  ASSERT_EQ(library_types->GetLibAttr(&about), S_OK);
  EXPECT_EQ(about->guid, guid(library_id));
  EXPECT_TRUE(about->lcid == 0x409 && about->wMajorVerNum == 1 && about->wMinorVerNum == 0);
  EXPECT_EQ(about->wLibFlags & ~LIBFLAG_FHASDISKIMAGE, LIBFLAG_FCONTROL);
  library_types->ReleaseTLibAttr(about);
  BSTR name = nullptr, help = nullptr;
  ASSERT_EQ(library_types->GetDocumentation(-1, &name, &help, nullptr, nullptr), S_OK);
  EXPECT_EQ(take(name) + L"|" + take(help), L"ZORBOffice50|ZORBOffice50");
  EXPECT_EQ(library_types->GetTypeInfoCount(), 9u);
}

TEST(TypeLibrary, describes_its_classes_and_interfaces_as_published) {
  const std::wstring dispatch = L" 0{00020400-0000-0000-C000-000000000046}";
  for (const auto& [name, class_id, interface_id, events_id] : classes) {
    const std::wstring implemented = std::wstring(L" 1") + interface_id + L" 3" + events_id;
    EXPECT_EQ(type_text(find(class_id).Get()), L"5 22 " + (name + implemented));
    EXPECT_EQ(type_text(find(interface_id).Get()), L"4 10D0 _" + (name + dispatch));
    EXPECT_EQ(type_text(find(events_id).Get()), L"4 1090 __" + (name + dispatch));
    EXPECT_EQ(attributes(find(events_id).Get()).cFuncs, 0);
  }
}

TEST(TypeLibrary, lists_every_member_in_its_slot) {
  for (const ClassIds& ids : classes) {
    const auto dispatch = find(ids.interface_id);
    const auto members = members_of(ids);
    ComPtr<ITypeInfo> vtable;
    HREFTYPE reference = 0;
    ASSERT_EQ(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
    ASSERT_EQ(dispatch->GetRefTypeInfo(reference, &vtable), S_OK);
    const TYPEATTR about = attributes(vtable.Get());
    EXPECT_EQ(about.typekind, TKIND_INTERFACE);
    EXPECT_EQ(about.wTypeFlags, 0x11D0);
    EXPECT_EQ(about.cbSizeVft, (7 + members.size()) * sizeof(void*));
    ASSERT_EQ(about.cFuncs, members.size()) << ids.name;
    for (UINT slot = 0; slot < members.size(); ++slot) {
      FUNCDESC* member = nullptr;
      ASSERT_EQ(vtable->GetFuncDesc(slot, &member), S_OK);
      EXPECT_EQ(member_text(vtable.Get(), *member), members[slot].signature);
      EXPECT_EQ(member->memid, members[slot].id) << members[slot].signature;
      EXPECT_EQ(member->oVft, (7 + slot) * sizeof(void*)) << members[slot].signature;
      EXPECT_EQ(member->elemdescFunc.tdesc.vt, VT_HRESULT) << members[slot].signature;
      BSTR help = nullptr;
      EXPECT_EQ(vtable->GetDocumentation(member->memid, nullptr, &help, nullptr, nullptr), S_OK);
      EXPECT_TRUE(take(help).ends_with(L'.')) << members[slot].signature;
      // A property browser that read them would call them.
      const bool is_method = member->invkind == INVOKE_FUNC;
      EXPECT_EQ(member->wFuncFlags, is_method ? 0 : FUNCFLAG_FNONBROWSABLE) << members[slot].signature;
      vtable->ReleaseFuncDesc(member);
    }
  }
}

using namespace std::string_view_literals;

std::string resource(const wchar_t* name, const wchar_t* type) {
  const HRSRC found = FindResourceW(library(), name, type);
  require(found, "resource");
  return {static_cast<char*>(LockResource(LoadResource(library(), found))), SizeofResource(library(), found)};
}

TEST(Resources, are_three_different_bitmaps_and_six_interface_identifiers) {
  std::set<std::string> pictures;
  for (const auto& ids : classes) {
    const auto bitmap = resource(MAKEINTRESOURCEW(30000 + (&ids - classes)), MAKEINTRESOURCEW(2));
    const auto header = reinterpret_cast<const BITMAPINFOHEADER*>(bitmap.data());
    EXPECT_EQ(bitmap.size(), sizeof *header + 16 * sizeof(RGBQUAD) + 15 * 8);
    EXPECT_TRUE(header->biWidth == 16 && header->biHeight == 15 && header->biBitCount == 4) << ids.name;
    EXPECT_TRUE(pictures.insert(bitmap).second) << ids.name << " looks like another";
    for (const auto& [prefix, text] : {std::pair{L"_", ids.interface_id}, std::pair{L"__", ids.events_id}}) {
      const GUID id = guid(text);
      EXPECT_EQ(resource((std::wstring(prefix) + ids.name).c_str(), MAKEINTRESOURCEW(10)),
                std::string(reinterpret_cast<const char*>(&id), sizeof id));
    }
  }
}

TEST(Resources, hold_exactly_the_published_version_strings) {
  const std::string block = resource(MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(16));
  const std::u16string_view words(reinterpret_cast<const char16_t*>(block.data()), block.size() / 2);
  const auto& fixed = *reinterpret_cast<const VS_FIXEDFILEINFO*>(&block.at(40));
  EXPECT_EQ(fixed.dwSignature, 0xFEEF04BDu);
  EXPECT_TRUE(fixed.dwFileVersionMS == 0x50000 && fixed.dwFileVersionLS == 42);
  EXPECT_TRUE(fixed.dwProductVersionMS == 0x50000 && fixed.dwProductVersionLS == 42);
  EXPECT_TRUE(fixed.dwFileOS == VOS__WINDOWS32 && fixed.dwFileType == VFT_DLL);
  EXPECT_NE(words.find(u"Translation\0\0\x0409\x04B0"sv), words.npos);
  // All that reads as text is a key or a value: the numbers between them never make three letters in a row.
  std::string run, texts = "|";
  for (const char16_t word : words)
    if (word >= ' ' && word < 0x7F)
      run += static_cast<char>(word);
    else
      texts += run.size() > 2 ? std::exchange(run, "") + "|" : (run.clear(), "");
  EXPECT_EQ(
      texts,
      "|VS_VERSION_INFO|StringFileInfo|040904B0|FileDescription|ZORB Office Control file|FileVersion|"
      "5.00.0042|InternalName|ZORBOffice|OLESelfRegister|OriginalFilename|ZORBOffice.ocx|ProductName|ZORB|"
      "ProductVersion|5.00.0042|VarFileInfo|Translation|");
}

TEST(File, needs_only_windows_and_may_be_moved_and_protected) {
  const auto base = reinterpret_cast<const char*>(library());
  const auto offset = reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew;
  const auto& header = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + offset)->OptionalHeader;
  const WORD wanted = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT;
  EXPECT_EQ(header.DllCharacteristics & wanted, wanted);
  EXPECT_NE(header.DataDirectory[IMAGE_DIRECTORY_ENTRY_BASERELOC].Size, 0u);
  // Those that Windows itself has loaded from its own folder: of another one the host's folder might hold a
  // namesake.
  const std::set<std::string> windows = {"ADVAPI32.dll", "GDI32.dll",    "KERNEL32.dll", "msvcrt.dll",
                                         "ole32.dll",    "OLEAUT32.dll", "USER32.dll"};
  const auto imports = base + header.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  auto row = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(imports);
  for (int i = 0; i < 64 && row->Name; ++i, ++row)
    EXPECT_TRUE(windows.contains(base + row->Name)) << base + row->Name;
}

}  // namespace
}  // namespace outside
