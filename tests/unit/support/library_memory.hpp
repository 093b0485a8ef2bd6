// The memory that a loaded library asks for: counted, and failing when a test asks for it.
#pragma once

#include <array>
#include <cstddef>

#include "interface/host_interface.hpp"

namespace tests {

/// Where a library gets memory: the allocator of its language, or the zero-filled buffers that it
/// asks the system for.
enum class MemorySource { Language, Buffers };

/// Stands between one library and its allocators while it lives; one at a time.
///
/// The delivered library takes everything of its language from "malloc", and its buffers from
/// "GlobalAlloc". Natively the buffers come from "calloc". A library that shares its language's
/// runtime with the test, as the sanitizers require, is seen at its own calls of "operator new"
/// only: what the runtime allocates for it neither fails nor counts.
class LibraryMemory {
public:
    /// For the library that holds this routine.
    explicit LibraryMemory(host_interface::Routine inside);
    ~LibraryMemory();
    LibraryMemory(const LibraryMemory&) = delete;
    LibraryMemory& operator=(const LibraryMemory&) = delete;

    /// From now, the n-th allocation of that source fails (1 is the next), or all from it on.
    static void Fail(MemorySource source, int n, bool persistent);
    /// Lets all allocations succeed again; how many failed.
    static int StopFailing();

    /// How many allocations were asked for so far, failing ones counted.
    static int Asked(MemorySource source);
    /// How many allocations live that were made since this was made.
    static std::size_t Living();

private:
    host_interface::Routine inside_;
};

}  // namespace tests
