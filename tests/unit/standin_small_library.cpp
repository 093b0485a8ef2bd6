// A plug-in library as small as can be: its entry writes to the debugger's output how it was
// called, and registers one class.
#include "interface/host_interface.hpp"

#if defined(_WIN32)
#include <windows.h>
#else
extern "C" __attribute__((weak)) void OutputDebugStringA(const char* text);
#endif

namespace {

namespace functions = host_interface::functions;

constexpr std::int32_t InterfaceVersion = 13;

host_interface::ClassDefinition TheClass{};

template <typename Function>
Function* Find(host_interface::Resolver resolver, const char* name) {
    return reinterpret_cast<Function*>(resolver(name));
}

}  // namespace

#if defined(_WIN32)
extern "C" __declspec(dllexport) void REALPluginMain(host_interface::Resolver resolver);
#else
extern "C" __attribute__((visibility("default"))) void REALPluginMain(
    host_interface::Resolver resolver);
#endif

void REALPluginMain(host_interface::Resolver resolver) {
    OutputDebugStringA(resolver == nullptr ? "entered without a resolver"
                                           : "entered with a resolver");
    if (resolver == nullptr) {
        return;
    }
    Find<functions::RegisterPluginVersion>(resolver, "RegisterPluginVersion")(InterfaceVersion);
    TheClass.version = InterfaceVersion;
    TheClass.name = "Small";
    TheClass.dataSize = 16;
    Find<functions::PluginRegisterClass>(resolver, "PluginRegisterClass")(&TheClass);
}
