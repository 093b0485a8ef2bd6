#include "tests/unit/plugin/direct_host.hpp"

#include <array>
#include <utility>

#include <doctest/doctest.h>

#include "number/value/number_value.hpp"
#include "platform/platform.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "plugin/class_tables.hpp"
#include "plugin/entry.hpp"
#include "plugin/registration.hpp"

namespace tests {
namespace {

using host_interface::ClassDefinition;

std::array<ClassDefinition*, 3> Records() {
    return {&vqz::NumberClass<vqz::BigNumberValue>::Record,
            &vqz::NumberClass<vqz::BiggerNumberValue>::Record, &vqz::NumberErrorRecord};
}

template <typename Entry>
void PutBack(Entry*& table, Entry* original) {
    if (table != original) {
        vqz::platform::FreeBuffer(table);
        table = original;
    }
}

/// Frees the short tables that a record got on an old host.
void PutBack(ClassDefinition& record, const ClassDefinition& original) {
    PutBack(record.properties, original.properties);
    PutBack(record.methods, original.methods);
    PutBack(record.sharedProperties, original.sharedProperties);
    PutBack(record.sharedMethods, original.sharedMethods);
    record = original;
}

}  // namespace

DirectHost::DirectHost(standin::HostOptions options) : Host(std::move(options)) {
    vqz::HostResolver = &Host::Resolve;
    vqz::HostVersion = this->options().version.value_or(0.0);
    vqz::PluginInterfaceVersion = vqz::InterfaceVersionOf(vqz::HostVersion);
}

DirectHost::DirectHost(double version) : DirectHost(standin::HostOptions{.version = version}) {}

DirectHost::~DirectHost() {
    CheckLedger(*this);
    vqz::HostResolver = before_.resolver;
    vqz::HostVersion = before_.hostVersion;
    vqz::PluginInterfaceVersion = before_.interfaceVersion;
    vqz::DebugEnabled = false;
    for (std::size_t index = 0; index < std::size(before_.records); ++index) {
        PutBack(*Records()[index], before_.records[index]);
    }
    CHECK(LivingBuffers() == buffersBefore_);
}

void DirectHost::RegisterClasses() {
    using Function = host_interface::functions::RegisterPluginVersion;
    const auto tellVersion = reinterpret_cast<Function*>(Resolve("RegisterPluginVersion"));
    tellVersion(static_cast<std::int32_t>(vqz::PluginInterfaceVersion));
    for (ClassDefinition* record : Records()) {
        vqz::RegisterClassDefinition(*record);
    }
}

void DirectHost::SwitchDebugLog(bool on) {
    vqz::DebugEnabled = on;
}

DirectHost::Globals DirectHost::ReadGlobals() {
    const auto records = Records();
    return {vqz::HostResolver,
            vqz::HostVersion,
            vqz::PluginInterfaceVersion,
            {*records[0], *records[1], *records[2]}};
}

}  // namespace tests
