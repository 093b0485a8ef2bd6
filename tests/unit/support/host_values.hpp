// Values of the stand-in host in the form that tests keep and compare.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standin/runtime/host.hpp"

namespace tests {

/// Owns one reference of a handle of the host of this process. Not copyable.
template <typename Handle>
class Held {
public:
    Held() = default;
    /// Takes over the one reference that came with `handle`; null owns nothing.
    explicit Held(Handle handle) : handle_(handle) {}
    Held(Held&& other) noexcept : handle_(other.Release()) {}
    Held& operator=(Held&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
    ~Held() {
        if (handle_ != nullptr) {
            standin::Host::Current().Unlock(handle_);
        }
    }

    Handle Get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

    /// Hands the reference to the caller.
    [[nodiscard]] Handle Release() { return std::exchange(handle_, nullptr); }

private:
    Handle handle_ = nullptr;
};

using HeldString = Held<host_interface::String>;
using HeldObject = Held<host_interface::Object>;

/// Whether there are hosts of that release, or without one: 64-bit hosts have one, from 2015.03 on.
inline bool HasHosts(std::optional<double> version) {
    return HOST_INTERFACE_32_BIT != 0 || version.value_or(0.0) >= standin::First64BitVersion;
}

/// The lines as one text, so that a failed comparison shows them all.
std::string Joined(const std::vector<std::string>& lines);

/// The lines that the debug log shows for these events: each with the prefix of the log.
std::string LogLines(std::initializer_list<std::string_view> events);

/// "CLASS: MESSAGE" of the exception that the plug-in raised since the last call of this; empty
/// when it raised none. Checks that its error number is 0.
std::string TakeRaised(standin::Host& host);

/// The encoding and the bytes of a string, "UTF-8 43 61 66 C3 A9", or "null".
std::string Described(host_interface::String text);

/// A string's address as the debug log shows it.
std::string Address(host_interface::String text);

/// A routine's address, which can be compared and printed.
inline const void* AddressOf(host_interface::Routine routine) {
    return reinterpret_cast<const void*>(routine);
}

/// Checks that nothing is wrong or left behind in the ledger.
void CheckLedger(const standin::Host& host);

}  // namespace tests
