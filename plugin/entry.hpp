// Start-up: from the host's first call to three registered classes.
#pragma once

#include <cstdint>

#include "interface/host_interface.hpp"

/// The entry that the host calls once, right after loading the library.
extern "C" void REALPluginMain(host_interface::Resolver resolver);

namespace vqz {

/// The plug-in interface version that a host of this release speaks: 9 to 13.
std::uint32_t InterfaceVersionOf(double hostVersion);

/// Stores the address of the version marker, and switches the debug log on when the environment
/// variable VQZDEBUG asks for it.
void InitPlugin();

/// Does everything after the versions are known: calls `InitPlugin`, seeds the random numbers and
/// registers the classes.
void PluginStartup();

}  // namespace vqz
