// Memory that runs short for the library.
#pragma once

// While one lives, the demand number `refused` for memory that the library makes of the system in this thread
// is refused, counted from 1; where it is `lasting`, all that follow are, too.
class ShortMemory {
 public:
  ShortMemory(long refused, bool lasting);
  ~ShortMemory() { end(); }
  ShortMemory(const ShortMemory&) = delete;

  // Lets memory be had again; returns whether a demand was refused.
  bool end();
};

// The blocks of its heap that the library holds, and those of task memory, strings among it, that anybody
// does.
long blocks_in_use();
