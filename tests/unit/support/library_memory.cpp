#include "tests/unit/support/library_memory.hpp"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <optional>
#include <unordered_set>
#include <utility>

#include "tests/unit/support/imports.hpp"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace tests {
namespace {

using host_interface::Routine;

/// What is to fail of one source.
class Plan {
public:
    void Arm(int n, bool persistent) {
        countdown_ = n;
        persistent_ = persistent;
    }

    int Disarm() {
        countdown_ = 0;
        return std::exchange(failed_, 0);
    }

    /// Counts one allocation; whether it has to fail.
    bool FailsNow() {
        ++asked_;
        if (countdown_ == 0 || (countdown_ > 1 && --countdown_ > 0)) {
            return false;
        }
        countdown_ = persistent_ ? 1 : 0;
        ++failed_;
        return true;
    }

    int asked() const { return asked_; }

private:
    int countdown_ = 0;
    bool persistent_ = false;
    int failed_ = 0;
    int asked_ = 0;
};

struct State {
    std::array<Plan, 2> plans;
    std::unordered_set<const void*> living;
};
std::optional<State> state;

Plan& PlanOf(MemorySource source) {
    return state->plans.at(static_cast<std::size_t>(source));
}

/// What `allocate` returns, unless it has to fail.
template <typename Allocate>
void* Allocated(MemorySource source, Allocate allocate) {
    void* const memory = PlanOf(source).FailsNow() ? nullptr : allocate();
    if (memory != nullptr) {
        state->living.insert(memory);
    }
    return memory;
}

// The functions that the library calls instead of those of their name.

void* Malloc(std::size_t size) {
    return Allocated(MemorySource::Language, [&] { return std::malloc(size); });
}

template <MemorySource Source>
void* Calloc(std::size_t count, std::size_t size) {
    return Allocated(Source, [&] { return std::calloc(count, size); });
}

void* Realloc(void* memory, std::size_t size) {
    return Allocated(MemorySource::Language, [&] {
        state->living.erase(memory);
        return std::realloc(memory, size);
    });
}

void Free(void* memory) {
    state->living.erase(memory);
    std::free(memory);
}

struct StandIn {
    const char* name;
    Routine function;
    /// What the library called before.
    Routine original = nullptr;
};

template <typename Function>
StandIn For(const char* name, Function* function) {
    return {name, reinterpret_cast<Routine>(function)};
}

#if defined(_WIN32)

HGLOBAL WINAPI Alloc(UINT flags, SIZE_T size) {
    return Allocated(MemorySource::Buffers, [&] { return GlobalAlloc(flags, size); });
}

HGLOBAL WINAPI Release(HGLOBAL memory) {
    state->living.erase(memory);
    return GlobalFree(memory);
}

std::array standIns = {For("malloc", Malloc),     For("calloc", Calloc<MemorySource::Language>),
                       For("realloc", Realloc),   For("free", Free),
                       For("GlobalAlloc", Alloc), For("GlobalFree", Release)};

#else

/// Of a library that does not carry its own.
void* New(std::size_t size) {
    void* const memory =
        Allocated(MemorySource::Language, [&] { return operator new(size, std::nothrow); });
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void Delete(void* memory, std::size_t) {
    state->living.erase(memory);
    operator delete(memory);
}

std::array standIns = {For("malloc", Malloc),   For("calloc", Calloc<MemorySource::Buffers>),
                       For("realloc", Realloc), For("free", Free),
                       For("_Znwj", New),       For("_ZdlPvj", Delete)};

#endif

}  // namespace

LibraryMemory::LibraryMemory(Routine inside) : inside_(inside) {
    state.emplace();
    for (StandIn& standIn : standIns) {
        standIn.original = ReplaceImport(inside_, standIn.name, standIn.function);
    }
}

LibraryMemory::~LibraryMemory() {
    for (const StandIn& standIn : standIns) {
        if (standIn.original != nullptr) {
            ReplaceImport(inside_, standIn.name, standIn.original);
        }
    }
    state.reset();
}

void LibraryMemory::Fail(MemorySource source, int n, bool persistent) {
    PlanOf(source).Arm(n, persistent);
}

int LibraryMemory::StopFailing() {
    int failed = 0;
    for (Plan& plan : state->plans) {
        failed += plan.Disarm();
    }
    return failed;
}

int LibraryMemory::Asked(MemorySource source) {
    return PlanOf(source).asked();
}

std::size_t LibraryMemory::Living() {
    return state->living.size();
}

}  // namespace tests
