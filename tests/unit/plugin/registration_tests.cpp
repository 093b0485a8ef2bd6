// Adapting class records to the version of the host: flags, sizes and the short tables of old
// hosts.
#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

#include <doctest/doctest.h>

#include "platform/platform.hpp"
#include "plugin/bindings/host_functions.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "plugin/registration.hpp"
#include "tests/unit/plugin/direct_host.hpp"
#include "tests/unit/plugin/failing_memory.hpp"

namespace {

using namespace host_interface;
using tests::AddressOf;
using tests::DirectHost;

constexpr double NewestHost = 2023.04;
[[maybe_unused]] constexpr double OldestHost = 2011.99;

/// A routine to stand in a table; nobody calls it.
template <int Number>
void SomeRoutine() {}

template <int Number>
constexpr Routine Some = &SomeRoutine<Number>;

constexpr AttributeDefinition Attribute = {"Hidden", ""};

/// Words that a property's record keeps for the host.
char SomeBytes[4];
const PropertyHostWords HostWords[] = {{&SomeBytes[0], 12, &SomeBytes[1]},
                                       {&SomeBytes[2], 22, &SomeBytes[3]}};

/// Two entries of every kind of table, with something in every field.
struct SampleTables {
    std::array<PropertyDefinition, 2> properties = {{
        {"Group", "First", "Integer", 0x2, Some<1>, Some<2>, 7, HostWords[0], 1, &Attribute},
        {nullptr, "Second", "String", 0x26, Some<3>, nullptr, -1, HostWords[1], 0, nullptr},
    }};
    std::array<MethodDefinition, 2> methods = {{
        {Some<4>, Some<5>, "First as Integer", 0x4, 1, &Attribute},
        {Some<6>, nullptr, "Second(value as String)", 0x24, 0, nullptr},
    }};
    std::array<EventDefinition, 2> events = {{
        {"First()", nullptr, 1, &Attribute},
        {"Second()", &Attribute, 0, nullptr},
    }};
    std::array<ConstantDefinition, 2> constants = {{
        {"First = 1", &Attribute, 0x4, 1, &Attribute},
        {"Second = 2", nullptr, 0x24, 0, nullptr},
    }};

    /// A record that points at these tables.
    ClassDefinition Record() {
        ClassDefinition record = {};
        record.version = 15;
        record.name = "Sample";
        record.superName = "RuntimeException";
        record.dataSize = 4;
        record.constructor = Some<7>;
        record.destructor = Some<8>;
        record.properties = properties.data();
        record.propertyCount = 2;
        record.methods = methods.data();
        record.methodCount = 2;
        record.events = events.data();
        record.eventCount = 2;
        record.constants = constants.data();
        record.constantCount = 2;
        record.flags = 0x4;
        record.sharedProperties = properties.data();
        record.sharedPropertyCount = 1;
        record.sharedMethods = methods.data();
        record.sharedMethodCount = 1;
        return record;
    }
};

#if HOST_INTERFACE_32_BIT
/// Frees a short table, or an old record, that the plug-in keeps for good.
template <typename Entry>
using ShortTable = std::unique_ptr<Entry[], decltype(&vqz::platform::FreeBuffer)>;

template <typename Entry>
ShortTable<Entry> Owned(Entry* table) {
    return {table, &vqz::platform::FreeBuffer};
}

/// Frees all tables of a record that was brought into its old form.
void FreeTables(const ClassDefinition& record) {
    for (void* table :
         {static_cast<void*>(record.properties), static_cast<void*>(record.methods),
          static_cast<void*>(record.events), static_cast<void*>(record.constants),
          static_cast<void*>(record.sharedProperties), static_cast<void*>(record.sharedMethods)}) {
        vqz::platform::FreeBuffer(table);
    }
}

#endif

/// The word that `FixFlags` makes of a flag word on a host of that release.
std::uint32_t FixedOn(double hostVersion, std::uint32_t word) {
    const DirectHost host(hostVersion);
    ClassDefinition record = {};
    record.flags = word;
    vqz::FixFlags(record);
    return record.flags;
}

}  // namespace

TEST_CASE("Foreign flag words are rewritten for hosts that do not know them") {
    struct Row {
        double hostVersion;
        std::uint32_t before;
        std::uint32_t after;
    };
    constexpr Row Rows[] = {
        // The three targets without the fourth become "all" before 2020.02.
        {2020.01, 0x308, 0x4},
        {2020.02, 0x308, 0x308},
        {0.0, 0x308, 0x4},
        {2020.01, 0x3EF, 0xE7},  // the bits around them stay
        {2020.01, 0x80000308, 0x80000004},
        // With the fourth, or without one of the three, the word stays on any host.
        {2020.01, 0x708, 0x708},
        {2020.02, 0x708, 0x708},
        {2020.01, 0x300, 0x300},
        {2020.01, 0x208, 0x208},
        {2020.01, 0x108, 0x108},
        // The bit 0x40000 goes on every host, and becomes "all" from 2010.029 on.
        {2010.029, 0x40000, 0x4},
        {2010.028, 0x40000, 0x0},
        {0.0, 0x40000, 0x0},
        {NewestHost, 0x40000, 0x4},
        {2010.028, 0x40022, 0x22},
        {2010.029, 0x40022, 0x26},
        // Both rules in turn.
        {2020.01, 0x40308, 0x4},
        {2020.02, 0x40308, 0x30C},
        {2010.028, 0x40308, 0x4},
        // The words of the plug-in's own tables.
        {0.0, 0x4, 0x4},
        {0.0, 0x2, 0x2},
        {0.0, 0x26, 0x26},
        {NewestHost, 0x26, 0x26},
        {0.0, 0x0, 0x0},
    };
    for (const Row& row : Rows) {
        if (!tests::HasHosts(row.hostVersion)) {
            continue;
        }
        CAPTURE(row.hostVersion);
        CAPTURE(row.before);
        CHECK(FixedOn(row.hostVersion, row.before) == row.after);
    }
}

TEST_CASE("Flag words are rewritten in the record and in its four member tables") {
    const DirectHost host(2020.01);
    SampleTables tables;
    SampleTables shared;
    for (auto* sample : {&tables, &shared}) {
        for (auto& entry : sample->properties) {
            entry.flags = 0x308;
        }
        for (auto& entry : sample->methods) {
            entry.flags = 0x40308;
        }
        for (auto& entry : sample->constants) {
            entry.flags = 0x308;
        }
    }
    ClassDefinition record = tables.Record();
    record.flags = 0x308;
    record.sharedProperties = shared.properties.data();
    record.sharedPropertyCount = 2;
    record.sharedMethods = shared.methods.data();
    record.sharedMethodCount = 2;

    vqz::FixFlags(record);

    CHECK(record.flags == 0x4);
    for (const auto* sample : {&tables, &shared}) {
        for (const auto& entry : sample->properties) {
            CHECK(entry.flags == 0x4);
        }
        for (const auto& entry : sample->methods) {
            CHECK(entry.flags == 0x4);
        }
        for (const auto& entry : sample->constants) {
            CHECK(entry.flags == 0x308);
        }
    }
}

TEST_CASE("A table that is missing, or whose count is below 1, keeps its flag words") {
    const DirectHost host(2020.01);
    SampleTables tables;
    tables.methods[0].flags = 0x308;
    tables.properties[0].flags = 0x308;
    ClassDefinition record = tables.Record();
    record.methodCount = 0;
    record.sharedMethodCount = static_cast<std::size_t>(-1);
    record.propertyCount = static_cast<std::size_t>(PTRDIFF_MIN);
    record.sharedProperties = nullptr;
    record.sharedPropertyCount = 5;

    vqz::FixFlags(record);

    CHECK(tables.methods[0].flags == 0x308);
    CHECK(tables.properties[0].flags == 0x308);
}

TEST_CASE("Registration rewrites the flag words before the host sees them") {
    DirectHost host(NewestHost);
    host.RegisterClasses();
    SampleTables tables;
    tables.methods[0].flags = 0x40000;
    ClassDefinition record = tables.Record();
    record.flags = 0x40002;
    vqz::RegisterClassDefinition(record);
    CHECK(record.flags == 0x6);
    REQUIRE(host.FindClass("Sample") != nullptr);
    CHECK(tables.methods[0].flags == 0x4);
}

TEST_CASE("Instance data is registered in multiples of 16 bytes") {
    struct Row {
        std::uint32_t before;
        std::uint32_t after;
    };
    constexpr Row Rows[] = {{4, 16}, {16, 16}, {0, 0}, {17, 32}, {1, 16}, {15, 16}, {32, 32}};
    for (const Row& row : Rows) {
        CAPTURE(row.before);
        DirectHost host(NewestHost);
        host.RegisterClasses();
        SampleTables tables;
        ClassDefinition record = tables.Record();
        record.dataSize = row.before;
        vqz::RegisterClassDefinition(record);
        CHECK(record.dataSize == row.after);
        REQUIRE(host.FindClass("Sample") != nullptr);
        CHECK(host.FindClass("Sample")->dataSize == row.after);
    }
}

TEST_CASE("A host from 2012 on gets the record with its long tables and the interface version") {
    struct Row {
        double hostVersion;
        std::uint32_t interfaceVersion;
    };
    constexpr Row Rows[] = {
        {2012.0, 10}, {2013.0, 11}, {2013.03, 12}, {2013.04, 13}, {2023.04, 13}};
    for (const Row& row : Rows) {
        if (!tests::HasHosts(row.hostVersion)) {
            continue;
        }
        CAPTURE(row.hostVersion);
        DirectHost host(row.hostVersion);
        host.RegisterClasses();
        SampleTables tables;
        ClassDefinition record = tables.Record();

        vqz::RegisterClassDefinition(record);

        CHECK(record.version == row.interfaceVersion);
        CHECK(record.properties == tables.properties.data());
        CHECK(record.methods == tables.methods.data());
        CHECK(record.events == tables.events.data());
        CHECK(record.constants == tables.constants.data());
        CHECK(tables.events[1].reference == &Attribute);
        const auto* known = host.FindClass("Sample");
        REQUIRE(known != nullptr);
        CHECK(known->methods.at(0).attributes == standin::Attributes{{"Hidden", ""}});
        CHECK(known->properties.at(0).attributes == standin::Attributes{{"Hidden", ""}});
        CHECK(record.instanceDataOffset == known->dataOffset);
    }
}

// The short tables of interface version 9, which 32-bit hosts alone have.
#if HOST_INTERFACE_32_BIT
TEST_CASE("A host before 2012 gets tables without attributes, in the very same record") {
    DirectHost host(OldestHost);
    host.RegisterClasses();
    SampleTables tables;
    ClassDefinition record = tables.Record();
    const int buffersBefore = tests::LivingBuffers();

    vqz::RegisterClassDefinition(record);

    const int tablesOfARecord = 6;
    CHECK(tests::LivingBuffers() == buffersBefore + tablesOfARecord);
    CHECK(record.version == 9);
    CHECK(record.dataSize == 16);
    const auto* known = host.FindClass("Sample");
    REQUIRE(known != nullptr);
    CHECK(known->record == &record);
    CHECK(record.instanceDataOffset == known->dataOffset);
    REQUIRE(known->properties.size() == 2);
    CHECK(known->properties[0].name == "First");
    CHECK(known->properties[0].group == "Group");
    CHECK(known->properties[0].type == "Integer");
    CHECK(known->properties[0].parameter == 7);
    CHECK(known->properties[0].attributes.empty());
    CHECK(known->properties[1].name == "Second");
    CHECK(known->properties[1].flags == 0x26);
    CHECK(AddressOf(known->properties[1].getter) == AddressOf(Some<3>));
    CHECK(AddressOf(known->properties[1].setter) == nullptr);
    REQUIRE(known->methods.size() == 2);
    CHECK(known->methods[0].declaration == "First as Integer");
    CHECK(AddressOf(known->methods[0].setter) == AddressOf(Some<5>));
    CHECK(known->methods[1].declaration == "Second(value as String)");
    CHECK(AddressOf(known->methods[1].function) == AddressOf(Some<6>));
    CHECK(known->methods[1].flags == 0x24);
    REQUIRE(known->events.size() == 2);
    CHECK(known->events[1].declaration == "Second()");
    REQUIRE(known->constants.size() == 2);
    CHECK(known->constants[1].declaration == "Second = 2");
    CHECK(known->constants[1].flags == 0x24);
    CHECK(known->sharedProperties.size() == 1);
    CHECK(known->sharedMethods.size() == 1);
    FreeTables(record);
}

TEST_CASE("The old form of a record keeps all but the last reserved table") {
    const DirectHost host(OldestHost);
    SampleTables tables;
    ClassDefinition record = tables.Record();
    record.instanceDataOffset = 40;
    record.reservedTable1 = &tables;
    record.reservedCount1 = 41;
    record.reservedWord = &record;
    record.reservedTable2 = &tables;
    record.reservedCount2 = 42;

    const auto old = Owned(vqz::FixClass(record));

    REQUIRE(old != nullptr);
    CHECK(old[0].version == 9);
    CHECK(old[0].name == record.name);
    CHECK(old[0].superName == record.superName);
    CHECK(old[0].dataSize == 4);
    CHECK(old[0].instanceDataOffset == 40);
    CHECK(AddressOf(old[0].constructor) == AddressOf(Some<7>));
    CHECK(AddressOf(old[0].destructor) == AddressOf(Some<8>));
    CHECK(old[0].flags == 0x4);
    CHECK(old[0].reservedTable1 == &tables);
    CHECK(old[0].reservedCount1 == 41);
    CHECK(old[0].reservedWord == &record);
    CHECK(old[0].reservedTable2 == nullptr);
    CHECK(old[0].reservedCount2 == 0);
    CHECK(old[0].propertyCount == 2);
    CHECK(old[0].methodCount == 2);
    CHECK(old[0].eventCount == 2);
    CHECK(old[0].constantCount == 2);
    CHECK(old[0].sharedPropertyCount == 1);
    CHECK(old[0].sharedMethodCount == 1);
    CHECK(record.version == 15);
    CHECK(record.properties == tables.properties.data());
    FreeTables(old[0]);
}

TEST_CASE("A shortened property keeps its first ten words") {
    const DirectHost host(OldestHost);
    const SampleTables tables;
    const auto old = Owned(vqz::FixProperties(tables.properties.data(), 2));
    REQUIRE(old != nullptr);
    for (std::size_t index = 0; index < 2; ++index) {
        CAPTURE(index);
        const PropertyDefinition& source = tables.properties[index];
        CHECK(old[index].group == source.group);
        CHECK(old[index].name == source.name);
        CHECK(old[index].type == source.type);
        CHECK(old[index].flags == source.flags);
        CHECK(AddressOf(old[index].getter) == AddressOf(source.getter));
        CHECK(AddressOf(old[index].setter) == AddressOf(source.setter));
        CHECK(old[index].parameter == source.parameter);
        CHECK(old[index].reserved.pointer == source.reserved.pointer);
        CHECK(old[index].reserved.count == source.reserved.count);
        CHECK(old[index].reserved.secondPointer == source.reserved.secondPointer);
    }
}

TEST_CASE("A shortened method keeps its first four words") {
    const DirectHost host(OldestHost);
    const SampleTables tables;
    const auto old = Owned(vqz::FixMethods(tables.methods.data(), 2));
    REQUIRE(old != nullptr);
    for (std::size_t index = 0; index < 2; ++index) {
        CAPTURE(index);
        const MethodDefinition& source = tables.methods[index];
        CHECK(AddressOf(old[index].function) == AddressOf(source.function));
        CHECK(AddressOf(old[index].setterFunction) == AddressOf(source.setterFunction));
        CHECK(old[index].declaration == source.declaration);
        CHECK(old[index].flags == source.flags);
    }
}

TEST_CASE("A shortened constant keeps its first three words") {
    const DirectHost host(OldestHost);
    const SampleTables tables;
    const auto old = Owned(vqz::FixConstants(tables.constants.data(), 2));
    REQUIRE(old != nullptr);
    for (std::size_t index = 0; index < 2; ++index) {
        CAPTURE(index);
        const ConstantDefinition& source = tables.constants[index];
        CHECK(old[index].declaration == source.declaration);
        CHECK(old[index].value == source.value);
        CHECK(old[index].flags == source.flags);
    }
}

TEST_CASE("A shortened event keeps its first two words, and its source learns its address") {
    const DirectHost host(OldestHost);
    SampleTables tables;
    const auto old = Owned(vqz::FixEvents(tables.events.data(), 2));
    REQUIRE(old != nullptr);
    CHECK(old[0].declaration == tables.events[0].declaration);
    CHECK(old[0].reference == nullptr);
    CHECK(old[1].declaration == tables.events[1].declaration);
    CHECK(old[1].reference == &Attribute);
    CHECK(tables.events[0].reference == &old[0]);
    CHECK(tables.events[1].reference == &old[1]);
    CHECK(tables.events[0].attributeCount == 1);
}

TEST_CASE("A converter complains when only one of table and count is there") {
    DirectHost host(OldestHost);
    SampleTables tables;
    struct Row {
        const char* name;
        const void* table;
        void* (*convert)(SampleTables& tables, bool withTable, std::uint32_t count);
    };
    const Row rows[] = {
        {"FixProperties", tables.properties.data(),
         [](SampleTables& source, bool withTable, std::uint32_t count) -> void* {
             return vqz::FixProperties(withTable ? source.properties.data() : nullptr, count);
         }},
        {"FixMethods", tables.methods.data(),
         [](SampleTables& source, bool withTable, std::uint32_t count) -> void* {
             return vqz::FixMethods(withTable ? source.methods.data() : nullptr, count);
         }},
        {"FixEvents", tables.events.data(),
         [](SampleTables& source, bool withTable, std::uint32_t count) -> void* {
             return vqz::FixEvents(withTable ? source.events.data() : nullptr, count);
         }},
        {"FixConstants", tables.constants.data(),
         [](SampleTables& source, bool withTable, std::uint32_t count) -> void* {
             return vqz::FixConstants(withTable ? source.constants.data() : nullptr, count);
         }},
    };
    const auto complaint = [](const char* name, const void* table, int count) {
        char line[200] = {};
        std::snprintf(line, sizeof line, "Error: %s called with wrong parameters: %p %d\n", name,
                      table, count);
        return std::string(line);
    };
    for (const bool debugLogIsOn : {false, true}) {
        vqz::DebugEnabled = debugLogIsOn;
        for (const Row& row : rows) {
            CAPTURE(row.name);
            CAPTURE(debugLogIsOn);
            CHECK(row.convert(tables, true, 0) == nullptr);
            CHECK(tests::Joined(host.TakeDebugLog()) == complaint(row.name, row.table, 0));
            CHECK(row.convert(tables, false, 3) == nullptr);
            CHECK(tests::Joined(host.TakeDebugLog()) == complaint(row.name, nullptr, 3));
            CHECK(row.convert(tables, false, 0) == nullptr);
            CHECK(tests::Joined(host.TakeDebugLog()) == "");
        }
    }
}

TEST_CASE("A record with a table but no count is registered with a null table") {
    DirectHost host(OldestHost);
    host.RegisterClasses();
    SampleTables tables;
    ClassDefinition record = tables.Record();
    record.methodCount = 0;

    vqz::RegisterClassDefinition(record);

    CHECK(host.TakeDebugLog().size() == 1);
    CHECK(record.methods == nullptr);
    CHECK(record.methodCount == 0);
    REQUIRE(host.FindClass("Sample") != nullptr);
    CHECK(host.FindClass("Sample")->methods.empty());
    CHECK(host.FindClass("Sample")->properties.size() == 2);
    FreeTables(record);
}

TEST_CASE("A count without its table stays in the record") {
    DirectHost host(OldestHost);
    SampleTables tables;
    ClassDefinition record = tables.Record();
    record.constants = nullptr;

    const auto old = Owned(vqz::FixClass(record));

    CHECK(host.TakeDebugLog().size() == 1);
    REQUIRE(old != nullptr);
    CHECK(old[0].constants == nullptr);
    CHECK(old[0].constantCount == 2);
    FreeTables(old[0]);
}

TEST_CASE("Without memory a converter answers null and says nothing") {
    DirectHost host(OldestHost);
    SampleTables tables;
    ClassDefinition record = tables.Record();
    const tests::FailingBuffers failing;
    CHECK(vqz::FixProperties(tables.properties.data(), 2) == nullptr);
    CHECK(vqz::FixMethods(tables.methods.data(), 2) == nullptr);
    CHECK(vqz::FixConstants(tables.constants.data(), 2) == nullptr);
    CHECK(vqz::FixEvents(tables.events.data(), 2) == nullptr);
    CHECK(tables.events[0].reference == nullptr);
    CHECK(vqz::FixClass(record) == nullptr);
    CHECK(host.TakeDebugLog().empty());
}

TEST_CASE("Without memory for its old form a record is not registered") {
    DirectHost host(OldestHost);
    host.RegisterClasses();
    SampleTables tables;
    ClassDefinition record = tables.Record();
    const tests::FailingBuffers failing;
    vqz::RegisterClassDefinition(record);
    CHECK(host.FindClass("Sample") == nullptr);
    CHECK(record.methods == tables.methods.data());
}
#endif
