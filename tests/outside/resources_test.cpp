// The built file as the system's loader and resource functions see it.
#include <set>

#include "library.h"

namespace outside {
namespace {

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
  const std::set<std::string> windows = {"ADVAPI32.dll", "GDI32.dll",    "KERNEL32.dll", "msvcrt.dll",
                                         "ole32.dll",    "OLEAUT32.dll", "USER32.dll",   "WINSPOOL.DRV"};
  const auto imports = base + header.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  auto row = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(imports);
  for (int i = 0; i < 64 && row->Name; ++i, ++row)
    EXPECT_TRUE(windows.contains(base + row->Name)) << base + row->Name;
}

}  // namespace
}  // namespace outside
