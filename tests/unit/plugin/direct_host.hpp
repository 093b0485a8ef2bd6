// A stand-in host around routines of the plug-in that a test calls directly, with no library
// between them.
#pragma once

#include <cstdint>
#include <string>

#include "interface/host_interface.hpp"
#include "standin/runtime/host.hpp"
#include "tests/unit/support/host_values.hpp"

namespace tests {

/// A host that the plug-in's start-up globals are set for. At its end it checks that the ledger is
/// empty and puts everything back as it was. Host functions once found stay bound in this process,
/// so a host that lacks functions is of use only to bindings of a test's own.
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
};

}  // namespace tests
