// The sentence that a row of a table has for its readers. The type library, the reference and the bindings are written from it,
// by programs of the build; the library itself never reads it and is built without it.
#pragma once

namespace zorboffice {

#ifdef ZORBOFFICE_SENTENCES
static constexpr const char* says(const char* sentence) { return sentence; }
#else
static constexpr const char* says(const char*) { return nullptr; }
#endif

}  // namespace zorboffice
