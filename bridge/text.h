// Text between UTF-16 and UTF-8, and names whose case does not matter.
#pragma once

#include <string>
#include <string_view>

// UTF-16 to UTF-8; half of a surrogate pair becomes U+FFFD.
std::string narrow(std::wstring_view text);
// UTF-8 to UTF-16.
std::wstring wide(std::string_view text);

// A name in lower case, by the rules of no particular language.
std::wstring lower_case(std::wstring_view name);
