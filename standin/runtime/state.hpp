// The parts of the stand-in host, put together.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standin/runtime/class_table.hpp"
#include "standin/runtime/host.hpp"
#include "standin/runtime/ledger.hpp"
#include "standin/runtime/object_store.hpp"
#include "standin/runtime/string_store.hpp"

namespace standin {

/// The lines of the debug log.
struct DebugLog {
    std::function<void(std::string_view)> sink;
    std::vector<std::string> kept;

    void Write(std::string_view line);
};

struct Host::State {
    State(Host& host, HostOptions hostOptions);

    /// The class of the host that is needed by that name; throws std::runtime_error when the host
    /// is without it.
    const ClassEntry& Class(std::string_view name) const;
    /// Whether the options take that function or property away; letter case counts.
    bool Lacks(std::string_view name) const;
    /// Whether the options take that global method away, by its declaration or its name.
    bool LacksGlobalMethod(std::string_view declaration) const;

    HostOptions options;
    ViolationList violations;
    AllocationFailures failures;
    Quarantine quarantine;
    ClassTable classes;
    StringStore strings;
    ObjectStore objects;
    DebugLog debugLog;
    std::map<std::string, int, std::less<>> lookups;
    std::optional<std::int32_t> pluginInterfaceVersion;
    Object raised = nullptr;
    std::uint64_t raises = 0;
    /// Calls with a misaligned stack.
    std::uint32_t calls = 0;
};

}  // namespace standin
