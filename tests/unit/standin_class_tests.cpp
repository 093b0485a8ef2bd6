// How the stand-in host reads the records of a plug-in, in both forms of their tables.
#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "standin_support.hpp"

using namespace standin_tests;
using host_interface::AttributeDefinition;
using host_interface::ClassDefinition;
using host_interface::ConstantDefinition;
using host_interface::EventDefinition;
using host_interface::MethodDefinition;
using host_interface::PropertyDefinition;
using host_interface::Routine;
using standin::ClassInfo;
using standin::Host;
using standin::HostOptions;

namespace {

extern "C" {
void FirstRoutine() {}
void SecondRoutine() {}
}

constexpr AttributeDefinition Hidden{"Hidden", ""};

/// The same class in the long and in the short form.
struct LongTables {
    std::array<PropertyDefinition, 2> properties = {{
        {nullptr, "One", "Integer", 2, &FirstRoutine, nullptr, 0, {}, 0, nullptr},
        {"Look", "Two", "String", 0x26, &SecondRoutine, &FirstRoutine, -3, {}, 1, &Hidden},
    }};
    std::array<MethodDefinition, 2> methods = {{
        {&SecondRoutine, nullptr, "Twice As Integer", 4, 1, &Hidden},
        {nullptr, nullptr, "Nothing", 4, 0, nullptr},
    }};
    std::array<EventDefinition, 1> events = {{{"Changed()", nullptr, 0, nullptr}}};
    std::array<ConstantDefinition, 1> constants = {{{"Limit = 5", nullptr, 8, 0, nullptr}}};
};

#if HOST_INTERFACE_32_BIT
struct ShortTables {
    std::array<host_interface::PropertyDefinitionVersion9, 2> properties = {{
        {nullptr, "One", "Integer", 2, &FirstRoutine, nullptr, 0, {}},
        {"Look", "Two", "String", 0x26, &SecondRoutine, &FirstRoutine, -3, {}},
    }};
    std::array<host_interface::MethodDefinitionVersion9, 2> methods = {{
        {&SecondRoutine, nullptr, "Twice As Integer", 4},
        {nullptr, nullptr, "Nothing", 4},
    }};
    std::array<host_interface::EventDefinitionVersion9, 1> events = {{{"Changed()", nullptr}}};
    std::array<host_interface::ConstantDefinitionVersion9, 1> constants = {
        {{"Limit = 5", nullptr, 8}}};
};
#endif

template <typename Tables>
ClassDefinition Record(Tables& tables, std::uint32_t version) {
    ClassDefinition record{};
    record.version = version;
    record.name = "Sample";
    record.superName = "RuntimeException";
    record.dataSize = 16;
    record.flags = 4;
    record.destructor = &FirstRoutine;
    record.properties = reinterpret_cast<PropertyDefinition*>(tables.properties.data());
    record.propertyCount = tables.properties.size();
    record.methods = reinterpret_cast<MethodDefinition*>(tables.methods.data());
    record.methodCount = tables.methods.size();
    record.events = reinterpret_cast<EventDefinition*>(tables.events.data());
    record.eventCount = tables.events.size();
    record.constants = reinterpret_cast<ConstantDefinition*>(tables.constants.data());
    record.constantCount = tables.constants.size();
    record.sharedProperties = record.properties;
    record.sharedPropertyCount = 1;
    record.sharedMethods = record.methods;
    record.sharedMethodCount = 1;
    return record;
}

void RegisterVersion(std::int32_t version) {
    HostFunction<functions::RegisterPluginVersion>("RegisterPluginVersion")(version);
}

void Register(ClassDefinition* record) {
    HostFunction<functions::PluginRegisterClass>("PluginRegisterClass")(record);
}

void CheckSample(const ClassInfo& info) {
    CHECK(info.name == "Sample");
    CHECK(info.super->name == "RuntimeException");
    CHECK(info.flags == 4);
    CHECK((info.destructor == &FirstRoutine));
    REQUIRE(info.properties.size() == 2);
    CHECK(info.properties[0].name == "One");
    CHECK(info.properties[0].type == "Integer");
    CHECK(info.properties[0].flags == 2);
    CHECK((info.properties[0].getter == &FirstRoutine));
    CHECK((info.properties[0].setter == nullptr));
    CHECK(info.properties[1].group == "Look");
    CHECK(info.properties[1].name == "Two");
    CHECK((info.properties[1].setter == &FirstRoutine));
    CHECK(info.properties[1].parameter == -3);
    REQUIRE(info.methods.size() == 2);
    CHECK(info.methods[0].declaration == "Twice As Integer");
    CHECK((info.methods[0].function == &SecondRoutine));
    CHECK(info.methods[1].declaration == "Nothing");
    CHECK((info.methods[1].function == nullptr));
    CHECK(info.events.at(0).declaration == "Changed()");
    CHECK(info.constants.at(0).declaration == "Limit = 5");
    CHECK(info.constants.at(0).flags == 8);
    CHECK(info.sharedProperties.size() == 1);
    CHECK(info.sharedMethods.size() == 1);
}

}  // namespace

TEST_CASE("from interface version 10 on the tables hold long entries with attributes") {
    Host host;
    RegisterVersion(10);
    LongTables tables;
    ClassDefinition record = Record(tables, 10);
    Register(&record);
    CHECK(host.pluginInterfaceVersion() == 10);
    const ClassInfo* info = host.FindClass("SAMPLE");
    REQUIRE(info != nullptr);
    CheckSample(*info);
    CHECK(info->properties[1].attributes == standin::Attributes{{"Hidden", ""}});
    CHECK(info->methods[0].attributes == standin::Attributes{{"Hidden", ""}});
    CHECK(info->properties[0].attributes.empty());
    CHECK(record.instanceDataOffset == info->dataOffset);
    CHECK(info->dataOffset != 0);
    CHECK(host.Leaks().empty());
}

#if HOST_INTERFACE_32_BIT
TEST_CASE("up to interface version 9 the tables hold short entries") {
    Host host(HostOptions{.version = std::nullopt});
    RegisterVersion(9);
    ShortTables tables;
    ClassDefinition record = Record(tables, 9);
    Register(&record);
    const ClassInfo* info = host.FindClass("Sample");
    REQUIRE(info != nullptr);
    CheckSample(*info);
    CHECK(info->properties[1].attributes.empty());
    CHECK(host.Leaks().empty());
}
#else
TEST_CASE("no 64-bit host reads what a plug-in of interface version 9 registers") {
    Host host;
    RegisterVersion(9);
    LongTables tables;
    ClassDefinition record = Record(tables, 9);
    Register(&record);
    CHECK(Only(host.Violations()) ==
          "PluginRegisterClass: class \"Sample\": its version is 9, which no 64-bit host reads");
}
#endif

TEST_CASE("every class has an offset of its own") {
    Host host;
    RegisterVersion(13);
    std::array<ClassDefinition, 3> records{};
    constexpr std::array Names = {"A", "B", "C"};
    for (std::size_t k = 0; k < records.size(); ++k) {
        records[k].version = 13;
        records[k].name = Names[k];
        records[k].dataSize = 16;
        Register(&records[k]);
    }
    CHECK(records[0].instanceDataOffset != records[1].instanceDataOffset);
    CHECK(records[1].instanceDataOffset != records[2].instanceDataOffset);
    const auto classes = host.RegisteredClasses();
    REQUIRE(classes.size() == 3);
    CHECK(classes[2]->name == "C");
    CHECK(host.Leaks().empty());
}

TEST_CASE("a record that is not sound is a violation") {
    Host host;
    LongTables tables;
    ClassDefinition record = Record(tables, 13);

    SUBCASE("no version was registered") {
        Register(&record);
        CHECK(Only(host.Violations()) ==
              "PluginRegisterClass: class \"Sample\": registered before \"RegisterPluginVersion\" "
              "was called");
    }
    SUBCASE("another version") {
        RegisterVersion(12);
        Register(&record);
        CHECK(Only(host.Violations()) ==
              "PluginRegisterClass: class \"Sample\": its version is 13, but the plug-in "
              "registered itself as 12");
    }
    SUBCASE("the size of the instance data") {
        RegisterVersion(13);
        record.dataSize = 4;
        Register(&record);
        CHECK(Contains(Only(host.Violations()), "its data size 4 is no multiple of 16"));
    }
    SUBCASE("an unknown superclass") {
        RegisterVersion(13);
        record.superName = "NoSuchClass";
        Register(&record);
        CHECK(Contains(Only(host.Violations()), "its superclass \"NoSuchClass\" is not known"));
        CHECK(host.FindClass("Sample")->super->name == "Object");
    }
    SUBCASE("a table without its count") {
        RegisterVersion(13);
        record.eventCount = 0;
        Register(&record);
        CHECK(Contains(Only(host.Violations()), "the event table and its count disagree"));
        CHECK(host.FindClass("Sample")->events.empty());
    }
    SUBCASE("a count without its table") {
        RegisterVersion(13);
        record.methods = nullptr;
        Register(&record);
        CHECK(Contains(Only(host.Violations()), "the method table and its count disagree"));
        CHECK(host.FindClass("Sample")->methods.empty());
    }
    SUBCASE("a property without a type and a method without a declaration") {
        RegisterVersion(13);
        tables.properties[1].type = nullptr;
        tables.methods[1].declaration = "";
        Register(&record);
        REQUIRE(host.Violations().size() == 2);
        CHECK(Contains(host.Violations()[0], "property 2 has no type"));
        CHECK(Contains(host.Violations()[1], "method 2 has no declaration"));
    }
    SUBCASE("the name of a class of the host") {
        RegisterVersion(13);
        record.name = "memoryblock";
        Register(&record);
        CHECK(Contains(Only(host.Violations()), "the host has a class of that name"));
    }
    SUBCASE("no name, no record") {
        RegisterVersion(13);
        record.name = nullptr;
        Register(&record);
        Register(nullptr);
        CHECK(host.Violations().size() == 2);
        CHECK(host.RegisteredClasses().empty());
    }
}

TEST_CASE("a class that is registered again is read anew and keeps its offset") {
    Host host;
    RegisterVersion(13);
    LongTables tables;
    ClassDefinition record = Record(tables, 13);
    Register(&record);
    const ClassInfo* info = host.FindClass("Sample");
    const host_interface::UInteger offset = record.instanceDataOffset;
    record.methodCount = 1;
    Register(&record);
    CHECK(host.FindClass("Sample") == info);
    CHECK(info->methods.size() == 1);
    CHECK(record.instanceDataOffset == offset);
    CHECK(host.RegisteredClasses().size() == 1);
    CHECK(host.Leaks().empty());
}

TEST_CASE("the dump shows all that was registered and which entries share a routine") {
    Host host;
    RegisterVersion(10);
    LongTables tables;
    ClassDefinition record = Record(tables, 10);
    Register(&record);
    CHECK(DumpTables(host) == R"dump(interface version 10

class Sample
  version 10
  superclass RuntimeException
  data size 16
  flags 0x4
  constructor: none
  destructor: present
  properties: 2
    1. "One" as "Integer", flags 0x2
      getter: same routine as destructor
      setter: none
    2. "Two" as "String", flags 0x26, attribute Hidden = ""
      group "Look"
      parameter -3
      getter: present
      setter: same routine as destructor
  methods: 2
    1. "Twice As Integer", flags 0x4, attribute Hidden = ""
      function: same routine as getter of property 2
    2. "Nothing", flags 0x4
      function: none
  events: 1
    1. "Changed()", flags 0x0
  constants: 1
    1. "Limit = 5", flags 0x8
  shared properties: 1
    1. "One" as "Integer", flags 0x2
      getter: same routine as destructor
      setter: none
  shared methods: 1
    1. "Twice As Integer", flags 0x4, attribute Hidden = ""
      function: same routine as getter of property 2
)dump");
}
