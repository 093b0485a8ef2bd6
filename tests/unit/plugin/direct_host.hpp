// A stand-in host around routines of the plug-in that a test calls directly, with no library
// between them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "interface/host_interface.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "standin/runtime/host.hpp"
#include "tests/unit/plugin/failing_memory.hpp"
#include "tests/unit/support/host_values.hpp"

namespace tests {

/// A host that the plug-in's start-up globals are set for. At its end it checks that the ledger is
/// empty and that no buffer of the plug-in's was left over, and puts everything back as it was.
/// Host functions once found stay bound in this process, so a host that lacks functions is of use
/// only to bindings of a test's own.
class DirectHost : public standin::Host {
public:
    explicit DirectHost(standin::HostOptions options = {});
    /// A host of this release.
    explicit DirectHost(double version);
    ~DirectHost();

    /// Registers the plug-in's classes with this host.
    void RegisterClasses();

    /// The debug log that `action` writes with the switch on, as one text.
    template <typename Action>
    std::string LogOf(Action action) {
        SwitchDebugLog(true);
        action();
        SwitchDebugLog(false);
        return Joined(TakeDebugLog());
    }

private:
    void SwitchDebugLog(bool on);

    struct Globals {
        host_interface::Resolver resolver;
        double hostVersion;
        std::uint32_t interfaceVersion;
        host_interface::ClassDefinition records[3];
    };
    static Globals ReadGlobals();

    Globals before_ = ReadGlobals();
    int buffersBefore_ = LivingBuffers();
};

/// While it lives, a binding of the plug-in calls a function of the test instead of the host's.
/// There is one at a time, in a `DirectHost`.
template <typename Binding>
class Rebound {
public:
    template <typename Function>
    Rebound(Binding& binding, Function* function)
        : binding_(binding), before_(std::exchange(binding, Binding(Name))) {
        function_ = reinterpret_cast<void*>(function);
        vqz::HostResolver = [](const char* name) {
            return std::string_view(name) == Name ? function_ : standin::Host::Resolve(name);
        };
    }
    ~Rebound() {
        binding_ = before_;
        vqz::HostResolver = &standin::Host::Resolve;
    }
    Rebound(const Rebound&) = delete;
    Rebound& operator=(const Rebound&) = delete;

private:
    static constexpr const char* Name = "function of the test";
    static inline void* function_ = nullptr;

    Binding& binding_;
    Binding before_;
};

}  // namespace tests
