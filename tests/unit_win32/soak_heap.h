#pragma once
// The bytes the test program holds through operator new, counted by the
// replacement of the global allocation functions in soak_heap.cpp: every
// C++ allocation of the program's code and of the tests goes through it.
#include <cstdint>

namespace qs::test {

// Bytes asked for by the blocks held now, and how many blocks they are.
std::int64_t HeapBytesHeld();
std::int64_t HeapBlocksHeld();

}  // namespace qs::test
