// The word processor's Global object, which converts units and knows the screen without a word application.
#pragma once

#include "ZORBOffice/common/automation_object.h"

namespace zorboffice {

// Returns the process's one Global object, for use in the calling thread's apartment. It is created on first
// use, and anew when the word processor behind it has ended. Throws Failure.
AutomationObject word_global();

// Lets go of it; to be called when the library may be unloaded, but not while the system unloads it.
void release_word_global() noexcept;

}  // namespace zorboffice
