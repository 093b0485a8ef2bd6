// Random numbers.
#pragma once

#include <cstdint>

#include "platform/platform.hpp"

namespace vqz {

/// A uniformly random number: the system's, or the language runtime's when the system fails.
inline std::uint32_t RandomUInt32() {
    std::uint32_t value = 0;
    return platform::SystemRandom(value) ? value : platform::RuntimeRandom();
}

}  // namespace vqz
