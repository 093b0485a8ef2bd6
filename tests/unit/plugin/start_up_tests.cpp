// From the entry to the registered classes.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "number/value/number_value.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "plugin/class_tables.hpp"
#include "plugin/entry.hpp"
#include "tests/unit/plugin/direct_host.hpp"
#include "tests/unit/support/environment.hpp"

namespace {

using tests::DirectHost;
using tests::EnvironmentVariable;

constexpr const char* DebugVariable = "VQZDEBUG";

host_interface::ClassDefinition& BigNumberRecord() {
    return vqz::NumberClass<vqz::BigNumberValue>::Record;
}

host_interface::ClassDefinition& BiggerNumberRecord() {
    return vqz::NumberClass<vqz::BiggerNumberValue>::Record;
}

/// Starts the plug-in as if nothing of it had run before.
void Start(host_interface::Resolver resolver) {
    vqz::HostResolver = nullptr;
    vqz::HostVersion = 0.0;
    vqz::PluginInterfaceVersion = vqz::UnregisteredInterfaceVersion;
    REALPluginMain(resolver);
}

std::vector<std::string> NamesOf(const std::vector<const standin::ClassInfo*>& classes) {
    std::vector<std::string> names;
    names.reserve(classes.size());
    for (const standin::ClassInfo* info : classes) {
        names.push_back(info->name);
    }
    return names;
}

}  // namespace

TEST_CASE("The interface version follows the host's release") {
    struct Row {
        double hostVersion;
        std::uint32_t interfaceVersion;
    };
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    const Row rows[] = {
        {2013.04, 13},
        {std::nextafter(2013.04, 0.0), 12},
        {2013.03, 12},
        {std::nextafter(2013.03, 0.0), 11},
        {2013.0, 11},
        {std::nextafter(2013.0, 0.0), 10},
        {2012.0, 10},
        {std::nextafter(2012.0, 0.0), 9},
        {2011.99, 9},
        {0.0, 9},
        {-1.0, 9},
        {2023.04, 13},
        {Infinity, 13},
        {-Infinity, 9},
        {std::numeric_limits<double>::quiet_NaN(), 9},
    };
    for (const Row& row : rows) {
        CAPTURE(row.hostVersion);
        CHECK(vqz::InterfaceVersionOf(row.hostVersion) == row.interfaceVersion);
    }
}

TEST_CASE("The debug log is on when VQZDEBUG is 1, true or yes, in any letter case") {
    struct Row {
        std::optional<std::string> value;
        bool expected;
    };
    const Row rows[] = {
        {"1", true},    {"true", true},   {"TRUE", true},      {"True", true},
        {"tRuE", true}, {"yes", true},    {"YES", true},       {"Yes", true},
        {"on", false},  {"2", false},     {"", false},         {"0", false},
        {"no", false},  {"false", false}, {" true", false},    {"true ", false},
        {"1 ", false},  {"\tyes", false}, {"truetrue", false}, {"tru", false},
        {"11", false},  {"yes\n", false}, {"y", false},        {std::nullopt, false}};
    for (const Row& row : rows) {
        CAPTURE(row.value.value_or("(not set)"));
        const DirectHost host;
        const EnvironmentVariable variable(DebugVariable, row.value);
        vqz::InitPlugin();
        CHECK(vqz::DebugEnabled == row.expected);
    }
}

TEST_CASE("The environment never switches the debug log off") {
    const DirectHost host;
    vqz::DebugEnabled = true;
    const EnvironmentVariable variable(DebugVariable, "no");
    vqz::InitPlugin();
    CHECK(vqz::DebugEnabled);
}

TEST_CASE("A start without resolver leaves everything as it was built") {
    const DirectHost host;
    const EnvironmentVariable variable(DebugVariable, "1");
    const auto sharedMethods = BigNumberRecord().sharedMethodCount;
    Start(nullptr);
    CHECK((vqz::HostResolver == nullptr));
    CHECK(vqz::HostVersion == (HOST_INTERFACE_32_BIT != 0 ? 0.0 : standin::First64BitVersion));
    CHECK(vqz::PluginInterfaceVersion == (HOST_INTERFACE_32_BIT != 0 ? 9 : 13));
    CHECK_FALSE(vqz::DebugEnabled);
    CHECK(host.RegisteredClasses().empty());
    CHECK_FALSE(host.pluginInterfaceVersion().has_value());
    CHECK(host.lookups().empty());
    for (const auto* record : {&BigNumberRecord(), &BiggerNumberRecord()}) {
        CHECK(record->version == 15);
        CHECK(record->dataSize == sizeof(void*));
        CHECK(record->instanceDataOffset == 0);
        CHECK(record->sharedMethodCount == sharedMethods);
    }
    CHECK(vqz::NumberErrorRecord.version == 15);
    CHECK(vqz::NumberErrorRecord.dataSize == 0);
}

TEST_CASE("A start registers the three classes in order and tells the interface version first") {
    constexpr double Version = HOST_INTERFACE_32_BIT != 0 ? 2013.03 : 2023.04;
    constexpr std::uint32_t InterfaceVersion = HOST_INTERFACE_32_BIT != 0 ? 12 : 13;
    DirectHost host(Version);
    Start(&standin::Host::Resolve);
    CHECK((vqz::HostResolver == &standin::Host::Resolve));
    CHECK(vqz::HostVersion == Version);
    CHECK(vqz::PluginInterfaceVersion == InterfaceVersion);
    CHECK(host.pluginInterfaceVersion() == InterfaceVersion);
    CHECK(tests::Joined(NamesOf(host.RegisteredClasses())) ==
          "BigNumberVQZ\nBiggerNumberVQZ\nBigNumberErrorExceptionVQZ\n");
    CHECK(BigNumberRecord().version == InterfaceVersion);
    CHECK(BigNumberRecord().dataSize == 16);
    CHECK(vqz::NumberErrorRecord.dataSize == 0);
    CHECK(host.TakeDebugLog().empty());
}

#if HOST_INTERFACE_32_BIT
TEST_CASE("A host that does not tell its version counts as an old one") {
    DirectHost host(standin::HostOptions{.version = std::nullopt});
    const auto sharedMethods = BigNumberRecord().sharedMethodCount;
    Start(&standin::Host::Resolve);
    CHECK(vqz::HostVersion == 0.0);
    CHECK(host.pluginInterfaceVersion() == 9);
    CHECK(BigNumberRecord().version == 9);
    CHECK(BigNumberRecord().sharedMethodCount == sharedMethods - 1);
}
#else
TEST_CASE(
    "A 64-bit host that tells no version, or too old a one, counts as the first of its kind") {
    static double told = 0.0;
    constexpr auto Tell = +[] { return told; };
    for (const double version : {0.0, 2012.0, 2015.029, std::numeric_limits<double>::quiet_NaN()}) {
        CAPTURE(version);
        told = version;
        DirectHost host;
        const auto sharedMethods = BigNumberRecord().sharedMethodCount;
        Start([](const char* name) -> void* {
            if (std::string_view(name) != "REALGetRBVersion") {
                return standin::Host::Resolve(name);
            }
            // No version is told by a function that there is not.
            return told == 0.0 ? nullptr : reinterpret_cast<void*>(Tell);
        });
        CHECK(vqz::HostVersion == 2015.03);
        CHECK(host.pluginInterfaceVersion() == 13);
        CHECK(BigNumberRecord().version == 13);
        CHECK(BigNumberRecord().sharedMethodCount == sharedMethods);
    }
}
#endif

TEST_CASE("Hosts before 2015 are not told of the shared methods with UInteger") {
    struct Row {
        double hostVersion;
        std::size_t hiddenMethods;
    };
    constexpr Row Rows[] = {{2015.0, 0}, {2014.99, 1}, {2011.99, 1}, {2023.04, 0}};
    for (const Row& row : Rows) {
        if (!tests::HasHosts(row.hostVersion)) {
            continue;
        }
        CAPTURE(row.hostVersion);
        DirectHost host(row.hostVersion);
        const std::size_t allMethods = BigNumberRecord().sharedMethodCount;
        Start(&standin::Host::Resolve);
        for (const char* name : {"BigNumberVQZ", "BiggerNumberVQZ"}) {
            REQUIRE(host.FindClass(name) != nullptr);
            const auto& methods = host.FindClass(name)->sharedMethods;
            CHECK(methods.size() == allMethods - row.hiddenMethods);
            REQUIRE(allMethods >= 2);
            CHECK(methods[allMethods - 2].declaration == std::string("Rand as ") + name);
        }
        CHECK(host.FindClass("BigNumberErrorExceptionVQZ")->sharedMethods.empty());
    }
}

TEST_CASE("A second start runs every step again") {
    // No 64-bit host is so old that a method is hidden from it.
    constexpr std::size_t HiddenMethods = HOST_INTERFACE_32_BIT != 0 ? 2 : 0;
    DirectHost host(HOST_INTERFACE_32_BIT != 0 ? 2014.99 : 2023.04);
    const auto sharedMethods = BigNumberRecord().sharedMethodCount;
    Start(&standin::Host::Resolve);
    REALPluginMain(&standin::Host::Resolve);
    CHECK(BigNumberRecord().sharedMethodCount == sharedMethods - HiddenMethods);
    CHECK(BiggerNumberRecord().sharedMethodCount == sharedMethods - HiddenMethods);
    CHECK(BigNumberRecord().dataSize == 16);
    CHECK(host.RegisteredClasses().size() == 3);
}

TEST_CASE("Only a built application seeds the random generator, with the time") {
    constexpr unsigned OwnSeed = 12345;
    const auto firstDrawAfter = [](unsigned seed) {
        std::srand(seed);
        return std::rand();
    };
    SUBCASE("in the development environment the sequence goes on") {
        const DirectHost host;
        const int expected = firstDrawAfter(OwnSeed);
        std::srand(OwnSeed);
        Start(&standin::Host::Resolve);
        CHECK(std::rand() == expected);
    }
    SUBCASE("in a built application it starts with the current second") {
        const DirectHost host(standin::HostOptions{.builtApplication = true});
        const auto before = static_cast<unsigned>(std::time(nullptr));
        Start(&standin::Host::Resolve);
        const int drawn = std::rand();
        const auto after = static_cast<unsigned>(std::time(nullptr));
        bool matches = false;
        for (unsigned seed = before; seed <= after; ++seed) {
            matches = matches || firstDrawAfter(seed) == drawn;
        }
        CHECK(matches);
    }
}

#if defined(_WIN32)

/// As the loader calls it.
extern "C" int __stdcall DllMain(void* module, unsigned long reason, void* reserved);

TEST_CASE("The load callback returns 1 for every reason") {
    for (const unsigned long reason : {0UL, 1UL, 2UL, 3UL, 4UL, 0xFFFFFFFFUL}) {
        CAPTURE(reason);
        CHECK(DllMain(nullptr, reason, nullptr) == 1);
    }
}

#endif
