// A function of newer C libraries that the C++ runtime names, so that the library loads with older
// ones.
#if !defined(_WIN32)

#include <cstdint>
#include <cstdlib>

#include <sys/random.h>

/// Returns a random word. The C++ runtime, which is linked in, knows it as a source of its
/// std::random_device, which nothing here uses; glibc has it from 2.36 on only.
extern "C" __attribute__((visibility("hidden"))) std::uint32_t arc4random() noexcept {
    // GCOVR_EXCL_START: nothing calls it
    std::uint32_t value = 0;
    while (getrandom(&value, sizeof value, 0) != static_cast<ssize_t>(sizeof value)) {
    }
    return value;
    // GCOVR_EXCL_STOP
}

#endif
