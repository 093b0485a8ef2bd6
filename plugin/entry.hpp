// Start-up: from the host's first call to three registered classes.
#pragma once

#include <cstdint>

#include "interface/host_interface.hpp"
#include "platform/platform.hpp"

/// The entry that the host calls once, right after loading the library.
extern "C" void REALPluginMain(host_interface::Resolver resolver);

/// The loader's callback: asks not to be told of threads, and always answers 1.
extern "C" int VQZ_LOADER_CALL DllMain(void* module, std::uint32_t reason, void* reserved);

namespace vqz {

/// The plug-in interface version that a host of this release speaks: 9 to 13.
std::uint32_t InterfaceVersionOf(double hostVersion);

/// Keeps the version marker and reads the debug switch from the environment.
void InitPlugin();

/// Registers the classes.
void PluginStartup();

}  // namespace vqz
