#include "plugin/entry.hpp"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>

#include "number/value/number_value.hpp"
#include "platform/platform.hpp"
#include "plugin/bindings/host_functions.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "plugin/class_tables.hpp"
#include "plugin/registration.hpp"

namespace vqz {
namespace {

/// The first host version that knows the type UInteger.
constexpr double FirstVersionWithUInteger = 2015.0;
/// The first release of 64-bit hosts: none is older, whatever it tells.
constexpr double First64BitVersion = 2015.03;

/// Points to a text by which the version is found in the library file. It is never read; volatile
/// keeps the compiler from dropping it.
const char* volatile VersionMarker = nullptr;

template <typename Function>
Function* LookUp(const char* name) {
    return reinterpret_cast<Function*>(HostResolver(name));
}

bool AsksForDebugLog(const char* setting) {
    constexpr std::array Words = {"1", "true", "yes"};
    return setting != nullptr && std::ranges::any_of(Words, [setting](const char* word) {
               return platform::EqualIgnoringCase(setting, word);
           });
}

/// Makes the language runtime allocate what it needs for exceptions. It would do so when the first
/// one is thrown, and that one may be thrown because memory is missing.
void PrepareForExceptions() {
    std::current_exception();
}

/// Hides the last shared method, whose declaration uses UInteger, from the host.
template <typename Value>
void HideUIntegerMethod() {
    --NumberClass<Value>::Record.sharedMethodCount;
}

}  // namespace

std::uint32_t InterfaceVersionOf(double hostVersion) {
    struct Step {
        double firstHostVersion;
        std::uint32_t interfaceVersion;
    };
    constexpr Step Steps[] = {{2013.04, 13}, {2013.03, 12}, {2013.0, 11}, {2012.0, 10}};
    constexpr std::uint32_t Oldest = 9;

    for (const Step& step : Steps) {
        if (hostVersion >= step.firstHostVersion) {
            return step.interfaceVersion;
        }
    }
    return Oldest;
}

void InitPlugin() {
    VersionMarker = "$$ Plugin version: " BIGNUMBERVQZ_RELEASE " $$";
    if (AsksForDebugLog(std::getenv("VQZDEBUG"))) {
        DebugEnabled = true;
    }
}

void PluginStartup() {
    PrepareForExceptions();
    InitPlugin();
    if (HostVersion < FirstVersionWithUInteger) {
        HideUIntegerMethod<BigNumberValue>();
        HideUIntegerMethod<BiggerNumberValue>();
    }
    if (host::REALinRuntime()) {
        platform::SeedRuntimeRandom();
    }
    RegisterClassDefinition(NumberClass<BigNumberValue>::Record);
    RegisterClassDefinition(NumberClass<BiggerNumberValue>::Record);
    RegisterClassDefinition(NumberErrorRecord);
}

}  // namespace vqz

void REALPluginMain(host_interface::Resolver resolver) {
    using namespace vqz;

    HostResolver = resolver;
    if (resolver != nullptr) {
        if (auto* hostVersion = LookUp<functions::REALGetRBVersion>("REALGetRBVersion")) {
            HostVersion = hostVersion();
        }
    }
    // A version that is no number counts as none at all.
    if (HOST_INTERFACE_32_BIT == 0 && !(HostVersion >= First64BitVersion)) {
        HostVersion = First64BitVersion;
    }
    PluginInterfaceVersion = InterfaceVersionOf(HostVersion);
    if (resolver == nullptr) {
        return;
    }
    // Every host that passes a resolver has this function.
    LookUp<functions::RegisterPluginVersion>("RegisterPluginVersion")(
        static_cast<std::int32_t>(PluginInterfaceVersion));
    PluginStartup();
}
