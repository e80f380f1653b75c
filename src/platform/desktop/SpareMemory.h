// Memory that is in nobody's use.
#pragma once

#include <cstddef>

namespace quendrel {

/// Called first of all: has all threads take memory from one heap. Each would reserve 64 megabytes
/// for one of its own, which the game misses where the system limits what it may take.
void HaveOneHeap();

/// Whether the system would still give the program so many megabytes.
bool MemoryIsLeft(std::size_t megabytes);

/// Gives back to the system what the program has let go of and the C library keeps in reserve.
/// Called where much was read that is not kept.
void GiveBackSpareMemory();

}  // namespace quendrel
