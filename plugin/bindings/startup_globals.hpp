// Process-wide state that start-up fills in. All but the switch of the debug log is only read after
// that, by any thread.
#pragma once

#include <cstdint>

#include "interface/host_interface.hpp"
#include "plugin/bindings/relaxed.hpp"

namespace vqz {

/// The host's lookup of its functions by name. Set once by the entry, never cleared.
inline constinit host_interface::Resolver HostResolver = nullptr;

/// The host's release number, such as 2013.04; 0.0 when the host has no function that returns it.
inline constinit double HostVersion = 0.0;

/// The interface version in a class record that has not been registered.
inline constexpr std::uint32_t UnregisteredInterfaceVersion = 15;

/// The plug-in interface version, 9 to 13, which start-up derives from `HostVersion`.
inline constinit std::uint32_t PluginInterfaceVersion = UnregisteredInterfaceVersion;

/// The debug-log switch.
inline constinit Relaxed<bool> DebugEnabled = false;

}  // namespace vqz
