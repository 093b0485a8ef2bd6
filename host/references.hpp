// Smart pointers for host strings and objects, whose references the host counts.
#pragma once

#include <utility>

#include "plugin/bindings/host_functions.hpp"

namespace vqz {

/// Owns one reference and releases it in the destructor. Not copyable.
template <typename Handle, auto& LockFunction, auto& UnlockFunction>
class HostReference {
public:
    HostReference() = default;
    /// Takes over the one reference that came with `handle`; null owns nothing.
    explicit HostReference(Handle handle) noexcept : handle_(handle) {}
    HostReference(HostReference&& other) noexcept : handle_(other.Release()) {}
    HostReference& operator=(HostReference&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    HostReference(const HostReference&) = delete;
    HostReference& operator=(const HostReference&) = delete;
    ~HostReference() { Reset(); }

    /// Adds a reference of its own to a handle that another owner keeps.
    static HostReference Share(Handle handle) {
        if (handle != nullptr) {
            LockFunction(handle);
        }
        return HostReference(handle);
    }

    Handle Get() const noexcept { return handle_; }
    explicit operator bool() const noexcept { return handle_ != nullptr; }

    /// Releases the reference now.
    void Reset() noexcept {
        if (const Handle handle = Release()) {
            UnlockFunction(handle);
        }
    }

    /// Gives the reference to the caller, who has to release it.
    [[nodiscard]] Handle Release() noexcept { return std::exchange(handle_, nullptr); }

private:
    Handle handle_ = nullptr;
};

using StringReference =
    HostReference<host_interface::String, host::REALLockString, host::REALUnlockString>;
using ObjectReference =
    HostReference<host_interface::Object, host::REALLockObject, host::REALUnlockObject>;

}  // namespace vqz
