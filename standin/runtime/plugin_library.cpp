#include <array>
#include <cstdint>
#include <stdexcept>

#include "standin/runtime/host.hpp"
#include "standin/runtime/platform.hpp"

namespace standin {
namespace {

constexpr const char* EntryName = "REALPluginMain";

}  // namespace

PluginLibrary::PluginLibrary(const std::string& path, bool withResolver)
    : handle_(platform::LoadLibraryFile(path)) {
    entry_ = reinterpret_cast<void (*)(host_interface::Resolver)>(
        platform::FindExport(handle_, EntryName));
    if (entry_ == nullptr) {
        platform::UnloadLibrary(handle_);
        throw std::runtime_error("the library \"" + path + "\" is no plug-in: it does not export " +
                                 EntryName);
    }
    CallEntry(withResolver ? &Host::Resolve : nullptr);
}

PluginLibrary::~PluginLibrary() {
    platform::UnloadLibrary(handle_);
}

void PluginLibrary::CallEntry(host_interface::Resolver resolver) {
    const std::array words = {reinterpret_cast<std::uintptr_t>(resolver)};
    Host::Current().Call(reinterpret_cast<Routine>(entry_), words, ReturnKind::None);
}

}  // namespace standin
