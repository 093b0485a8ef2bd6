// Native memory that runs out when a test asks for it.
#pragma once

#include <cstddef>

namespace tests {

/// While it lives, the plug-in's temporary buffers cannot be allocated.
class FailingBuffers {
public:
    FailingBuffers();
    ~FailingBuffers();
    FailingBuffers(const FailingBuffers&) = delete;
    FailingBuffers& operator=(const FailingBuffers&) = delete;
};

/// While it lives, `new` throws std::bad_alloc for objects of exactly this size, so that values of
/// a number fail and whatever else the process allocates does not.
class FailingNew {
public:
    explicit FailingNew(std::size_t size);
    ~FailingNew();
    FailingNew(const FailingNew&) = delete;
    FailingNew& operator=(const FailingNew&) = delete;
};

/// How many of the plug-in's temporary buffers were allocated and not freed.
int LivingBuffers();

}  // namespace tests
