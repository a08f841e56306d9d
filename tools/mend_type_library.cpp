#include "tools/mend_type_library.h"

#include <windows.h>
#include <oaidl.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <vector>

namespace zorboffice {
namespace {

using Words = std::vector<DWORD>;
using File = std::unique_ptr<FILE, int (*)(FILE*)>;

// The file is a header, one offset for each type, the directory of its segments and these; the first segment
// holds a record for each type.
constexpr DWORD signature = 0x5446534D;  // "MSFT"
constexpr std::size_t header_size = 21;
constexpr std::size_t header_flags = 5;
constexpr std::size_t header_type_count = 8;
constexpr DWORD has_help_library = 0x100;  // the header has one word more

constexpr std::size_t record_size = 25;
constexpr std::size_t kind_and_more = 0;  // the lowest four bits are a TYPEKIND
constexpr std::size_t type_flags = 12;
constexpr std::size_t implemented_and_vtable_size = 19;  // the upper half is the size
constexpr std::size_t base_reference = 21;
constexpr std::size_t inherited_counts = 22;  // the upper half counts functions, the lower one interfaces

constexpr DWORD dispatch_itself = 0xFFFFFFFF;
constexpr DWORD no_vtable = 0x0000FFFF;
constexpr DWORD seven_functions_of_two_interfaces = 0x00070002;  // IDispatch's and IUnknown's

Words read(FILE* file) {
  if (std::fseek(file, 0, SEEK_END) != 0) throw std::runtime_error("reading the type library failed");
  const long size = std::ftell(file);
  if (size < 0) throw std::runtime_error("reading the type library failed");
  Words words(static_cast<std::size_t>(size) / sizeof(DWORD));
  std::rewind(file);
  if (std::fread(words.data(), sizeof(DWORD), words.size(), file) != words.size()) {
    throw std::runtime_error("reading the type library failed");
  }
  return words;
}

void write(FILE* file, const Words& words) {
  std::rewind(file);
  if (std::fwrite(words.data(), sizeof(DWORD), words.size(), file) != words.size() ||
      std::fflush(file) != 0) {
    throw std::runtime_error("writing the type library failed");
  }
}

// Wine's writer keeps 8 bits of a flag's default, so that true (-1) becomes 255. In the file such a default
// is one word: the top bit, 5 bits of type, 26 bits of value. Replaces all of them, or none where the
// platform wrote them whole.
void mend_true_defaults(Words& words, std::size_t expected) {
  constexpr DWORD inline_flag = 0x80000000 | (VT_BOOL << 26);
  constexpr DWORD damaged = inline_flag | 0xFF;
  constexpr DWORD whole = inline_flag | 0xFFFF;
  const auto found = static_cast<std::size_t>(std::count(words.begin(), words.end(), damaged));
  if (found == 0) return;
  if (found != expected) throw std::runtime_error("the defaults are not where they were expected");
  std::replace(words.begin(), words.end(), damaged, whole);
}

// The writer gives an event interface the vtable of IDispatch, whose seven functions importers then take for
// events, and counts the types where the inherited functions are to be counted. The compilers write what is
// written here.
void mend_records(Words& words) {
  if (words.size() < header_size || words[0] != signature) throw std::runtime_error("not a type library");
  const std::size_t count = words[header_type_count];
  const std::size_t directory = header_size + (words[header_flags] & has_help_library ? 1 : 0) + count;
  const std::size_t first = words.at(directory) / sizeof(DWORD);
  if (first + count * record_size > words.size())
    throw std::runtime_error("the types are not where expected");
  for (std::size_t i = 0; i < count; ++i) {
    DWORD* const record = &words[first + i * record_size];
    const bool is_dual = (record[type_flags] & TYPEFLAG_FDUAL) != 0;
    if ((record[kind_and_more] & 0xF) == TKIND_DISPATCH && !is_dual) {
      record[implemented_and_vtable_size] &= no_vtable;
      record[base_reference] = dispatch_itself;
    }
    record[inherited_counts] = is_dual ? seven_functions_of_two_interfaces : 0;
  }
}

}  // namespace

void mend_type_library(const std::wstring& path, std::size_t count_of_true_defaults) {
  const File file(_wfopen(path.c_str(), L"r+b"), std::fclose);
  if (!file) throw std::runtime_error("opening the type library failed");
  Words words = read(file.get());
  mend_true_defaults(words, count_of_true_defaults);
  mend_records(words);
  write(file.get(), words);
}

}  // namespace zorboffice
