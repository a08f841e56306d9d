// What it costs to have the library at all.
#pragma once

namespace bench {

// Writes rows "fact": the library's size, the time to load it and to create instances, and an instance's
// memory.
void measure_life();

}  // namespace bench
