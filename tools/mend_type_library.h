// What the platform's writer of type libraries leaves other than the platform's compilers do.
#pragma once

#include <cstddef>
#include <string>

namespace zorboffice {

// Mends a written file in place. count_of_true_defaults: how many parameters default to true. Throws
// std::runtime_error where the file is not as expected, and leaves it as it was then.
void mend_type_library(const std::wstring& path, std::size_t count_of_true_defaults);

}  // namespace zorboffice
