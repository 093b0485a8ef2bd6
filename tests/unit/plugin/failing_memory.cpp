#include "tests/unit/plugin/failing_memory.hpp"

#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

bool buffersFail = false;
int livingBuffers = 0;
constexpr std::size_t NoSize = SIZE_MAX;
std::size_t failingSize = NoSize;

}  // namespace

// The linker leads the calls of vqz::platform::AllocateZeroed and FreeBuffer to the functions named
// __wrap_… and keeps the originals as __real_… The build tells the name of the first one, which
// depends on the type of its argument.
// NOLINTBEGIN(readability-identifier-naming)
extern "C" {
#define JOINED(prefix, name) prefix##name
#define WITH_PREFIX(prefix, name) JOINED(prefix, name)
#define REAL_ALLOCATE_ZEROED WITH_PREFIX(__real_, ALLOCATE_ZEROED)
#define WRAPPED_ALLOCATE_ZEROED WITH_PREFIX(__wrap_, ALLOCATE_ZEROED)

void* REAL_ALLOCATE_ZEROED(std::size_t byteCount);
void* WRAPPED_ALLOCATE_ZEROED(std::size_t byteCount);
void __real__ZN3vqz8platform10FreeBufferEPv(void* buffer);
void __wrap__ZN3vqz8platform10FreeBufferEPv(void* buffer);

void* WRAPPED_ALLOCATE_ZEROED(std::size_t byteCount) {
    void* const buffer = buffersFail ? nullptr : REAL_ALLOCATE_ZEROED(byteCount);
    livingBuffers += buffer == nullptr ? 0 : 1;
    return buffer;
}

void __wrap__ZN3vqz8platform10FreeBufferEPv(void* buffer) {
    livingBuffers -= buffer == nullptr ? 0 : 1;
    __real__ZN3vqz8platform10FreeBufferEPv(buffer);
}
}
// NOLINTEND(readability-identifier-naming)

void* operator new(std::size_t size) {
    void* const memory = size == failingSize ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace tests {

FailingBuffers::FailingBuffers() {
    buffersFail = true;
}

FailingBuffers::~FailingBuffers() {
    buffersFail = false;
}

FailingNew::FailingNew(std::size_t size) {
    failingSize = size;
}

FailingNew::~FailingNew() {
    failingSize = NoSize;
}

int LivingBuffers() {
    return livingBuffers;
}

}  // namespace tests
