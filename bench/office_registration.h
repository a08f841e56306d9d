// What the machine's classes say of the bench's office applications.
#pragma once

#include <string>

namespace bench {

// Writes the applications' type libraries into the folder, and registers them and the classes, which this
// program serves when it is started with `command`. Throws std::runtime_error.
void register_applications(const std::wstring& folder, const std::wstring& command);

// Takes out all of that, also what an interrupted run left.
void unregister_applications();

}  // namespace bench
