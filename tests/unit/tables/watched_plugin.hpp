// The built library in a host whose functions a test can hide, count and replace.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "interface/host_interface.hpp"
#include "tests/unit/tables/loaded_plugin.hpp"

namespace tests {

/// A function that the library finds in place of the host's function of that name.
struct Replacement {
    const char* name;
    void* function;
};

/// `function` in place of the host's function `name`, which has the type `HostFunction`.
template <typename HostFunction>
Replacement Replace(const char* name, HostFunction* function) {
    return {name, reinterpret_cast<void*>(function)};
}

/// How often each name was looked up.
using LookupCounts = std::map<std::string, int, std::less<>>;

/// As a text: "REALLockString 1, RuntimeAddString 2".
std::string Shown(const LookupCounts& counts);

/// The library in a host that watches what it looks up. There is one at a time.
class WatchedPlugin : private LoadedPlugin {
public:
    explicit WatchedPlugin(const std::vector<Replacement>& replacements = {},
                           const standin::HostOptions& options = {});
    ~WatchedPlugin();
    WatchedPlugin(const WatchedPlugin&) = delete;
    WatchedPlugin& operator=(const WatchedPlugin&) = delete;

    using LoadedPlugin::biggerNumber;
    using LoadedPlugin::bigNumber;
    using LoadedPlugin::classes;
    using LoadedPlugin::host;
    using LoadedPlugin::library;
    using LoadedPlugin::MakeString;
    using LoadedPlugin::SwitchDebugLog;

    /// The same, for what takes any library.
    LoadedPlugin& loaded() { return *this; }

    /// From now on the host lacks the function of that name, or has it again.
    static void Hide(const std::string& name);
    static void Show(const std::string& name);

    /// The names that were looked up since the last call of this, each with how often.
    static LookupCounts TakeLookups();

private:
    static void* Resolve(const char* name);
};

/// "NumberWithVariant" of a class.
HeldObject NumberWithVariant(NumberClass& number, Object variant);

}  // namespace tests
