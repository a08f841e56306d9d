// The objects of the bench's office applications: all of one kind, as the table of types has them.
#pragma once

#include "bench/office.h"

namespace bench {

// A new application's root object, and an enumerator as its collections have them; the caller owns each.
IDispatch* make_root(const Application& application);
IEnumVARIANT* make_elements(const Application& application);

}  // namespace bench
