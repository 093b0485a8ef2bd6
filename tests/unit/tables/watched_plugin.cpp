#include "tests/unit/tables/watched_plugin.hpp"

#include <optional>
#include <set>
#include <utility>

namespace tests {
namespace {

std::map<std::string, void*, std::less<>> replaced;
std::set<std::string, std::less<>> hidden;
LookupCounts lookups;

}  // namespace

std::string Shown(const LookupCounts& counts) {
    std::string list;
    for (const auto& [name, count] : counts) {
        list += (list.empty() ? "" : ", ") + name + " " + std::to_string(count);
    }
    return list;
}

WatchedPlugin::WatchedPlugin(const std::vector<Replacement>& replacements,
                             const standin::HostOptions& options)
    : LoadedPlugin(options, std::nullopt, false) {
    for (const Replacement& replacement : replacements) {
        replaced[replacement.name] = replacement.function;
    }
    library().CallEntry(&Resolve);
}

WatchedPlugin::~WatchedPlugin() {
    replaced.clear();
    hidden.clear();
    lookups.clear();
}

void WatchedPlugin::Hide(const std::string& name) {
    hidden.insert(name);
}

void WatchedPlugin::Show(const std::string& name) {
    hidden.erase(name);
}

LookupCounts WatchedPlugin::TakeLookups() {
    return std::exchange(lookups, {});
}

void* WatchedPlugin::Resolve(const char* name) {
    ++lookups[name];
    if (hidden.contains(name)) {
        return nullptr;
    }
    const auto found = replaced.find(name);
    return found == replaced.end() ? standin::Host::Resolve(name) : found->second;
}

HeldObject NumberWithVariant(NumberClass& number, Object variant) {
    return CallRoutine<HeldObject>(
        number.SharedMethod("NumberWithVariant(value as variant) as $").function, variant);
}

}  // namespace tests
