// What holds for the tables that the library registers, whichever members they have. The golden
// tables list the members.
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

#include "tests/unit/tables/loaded_plugin.hpp"

namespace {

using standin::Attributes;
using tests::AddressOf;
using tests::LoadedPlugin;
using tests::NumberClass;

constexpr std::uint32_t RunTimeOnly = 0x2;
constexpr std::uint32_t AllTargets = 0x4;

const Attributes Hidden = {{"Hidden", ""}};

/// Two methods that are one routine.
struct RoutinePair {
    const char* first;
    const char* second;
};
constexpr RoutinePair SharedRoutines[] = {
    {"Constructor(value as String)", "Operator_Convert(value as String)"},
    {"Modulate(other as $) as $", "Operator_Modulo(other as $) as $"},
    {"Modulate(other as $) as $", "Operator_ModuloRight(other as $) as $"},
    {"Pow(other as $) as $", "Operator_Power(other as $) as $"},
    {"Pow(other as $) as $", "Operator_PowerRight(other as $) as $"},
    {"Operator_Add(other as $) as $", "Operator_AddRight(other as $) as $"},
    {"Operator_Subtract(other as $) as $", "Operator_SubtractRight(other as $) as $"},
    {"Operator_Multiply(other as $) as $", "Operator_MultiplyRight(other as $) as $"},
    {"Operator_Divide(other as $) as $", "Operator_DivideRight(other as $) as $"},
    {"Operator_IntegerDivide(other as $) as $", "Operator_IntegerDivideRight(other as $) as $"},
};

/// The declarations of a table, with "$" for the name of the class.
std::vector<std::string> Declarations(const NumberClass& number,
                                      const std::vector<standin::MethodInfo>& methods) {
    std::vector<std::string> lines;
    lines.reserve(methods.size());
    for (const standin::MethodInfo& method : methods) {
        std::string_view rest = method.declaration;
        std::string& line = lines.emplace_back();
        for (auto place = rest.find(number.name()); place != std::string_view::npos;
             place = rest.find(number.name())) {
            line.append(rest.substr(0, place)).append("$");
            rest.remove_prefix(place + number.name().size());
        }
        line.append(rest);
    }
    return lines;
}

/// A property without its routines.
std::string Described(const standin::PropertyInfo& property) {
    std::string text = property.name;
    text.append(" as ").append(property.type);
    return property.setter == nullptr ? text.append(", read-only") : text;
}

/// The members of a number class as a host sees them, the class's name replaced by "$".
struct Members {
    std::vector<std::string> methods;
    std::vector<std::string> sharedMethods;
    std::vector<std::string> properties;

    explicit Members(const NumberClass& number)
        : methods(Declarations(number, number.info().methods)),
          sharedMethods(Declarations(number, number.info().sharedMethods)) {
        for (const standin::PropertyInfo& property : number.info().properties) {
            properties.push_back(Described(property));
        }
    }
};

/// What a current host sees of the smaller class.
Members CurrentMembers() {
    LoadedPlugin plugin;
    return Members(plugin.bigNumber());
}

/// The ages of hosts that see different tables.
constexpr std::optional<double> HostVersions[] = {std::nullopt, 2011.99, 2012.0, 2013.0,
                                                  2013.04,      2014.99, 2015.0, 2023.04};

}  // namespace

TEST_CASE("The library registers its three classes, in order, on hosts of every age") {
    for (const auto& version : HostVersions) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        CAPTURE(version.value_or(0.0));
        LoadedPlugin plugin(standin::HostOptions{.version = version});
        const auto classes = plugin.host().RegisteredClasses();
        REQUIRE(classes.size() == 3);
        CHECK(classes[0]->name == "BigNumberVQZ");
        CHECK(classes[1]->name == "BiggerNumberVQZ");
        CHECK(classes[2]->name == "BigNumberErrorExceptionVQZ");
        const std::int32_t interfaceVersion = !version || *version < 2012.0 ? 9
                                              : *version < 2013.0           ? 10
                                              : *version < 2013.03          ? 11
                                                                            : 13;
        CHECK(plugin.host().pluginInterfaceVersion() == interfaceVersion);
        for (const standin::ClassInfo* info : classes) {
            CHECK(info->version == static_cast<std::uint32_t>(interfaceVersion));
            CHECK(info->flags == AllTargets);
            CHECK(AddressOf(info->constructor) == nullptr);
            CHECK(info->events.empty());
            CHECK(info->constants.empty());
        }
        CHECK(plugin.host().TakeDebugLog().empty());
    }
}

TEST_CASE("The number classes list the same members in the same order on hosts of every age") {
    const Members current = CurrentMembers();
    auto withoutNewest = current.sharedMethods;
    REQUIRE_FALSE(withoutNewest.empty());
    withoutNewest.pop_back();
    for (const auto& version : HostVersions) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        CAPTURE(version.value_or(0.0));
        LoadedPlugin plugin(standin::HostOptions{.version = version});
        for (const NumberClass& number : plugin.classes()) {
            CAPTURE(number.name());
            const standin::ClassInfo& info = number.info();
            CHECK(info.superName == "");
            CHECK(info.dataSize == 16);
            CHECK(AddressOf(info.destructor) != nullptr);
            const Members members(number);
            CHECK(tests::Joined(members.methods) == tests::Joined(current.methods));
            CHECK(tests::Joined(members.sharedMethods) ==
                  tests::Joined(version.value_or(0.0) < 2015.0 ? withoutNewest
                                                               : current.sharedMethods));
            for (const auto* table : {&info.methods, &info.sharedMethods}) {
                for (const standin::MethodInfo& method : *table) {
                    CAPTURE(method.declaration);
                    CHECK(method.flags == AllTargets);
                }
            }
        }
    }
}

TEST_CASE("The properties are the same on hosts of every age, and can be used at run time only") {
    const Members current = CurrentMembers();
    for (const auto& version : HostVersions) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        LoadedPlugin plugin(standin::HostOptions{.version = version});
        for (const NumberClass& number : plugin.classes()) {
            CHECK(tests::Joined(Members(number).properties) == tests::Joined(current.properties));
            for (const standin::PropertyInfo& property : number.info().properties) {
                CAPTURE(property.name);
                CHECK(property.flags == RunTimeOnly);
                CHECK(property.parameter == 0);
                CHECK(property.group == "");
                CHECK(property.attributes.empty());
                CHECK(AddressOf(property.getter) != nullptr);
            }
        }
    }
}

TEST_CASE("Debugging is a hidden shared property, the same of both classes") {
    for (const auto& version : HostVersions) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        LoadedPlugin plugin(standin::HostOptions{.version = version});
        const bool hasAttributes = version.value_or(0.0) >= 2012.0;
        for (const NumberClass& number : plugin.classes()) {
            REQUIRE(number.info().sharedProperties.size() == 1);
            const standin::PropertyInfo& property = number.info().sharedProperties[0];
            CHECK(property.name == "Debugging");
            CHECK(property.type == "Boolean");
            CHECK(property.flags == 0x26);
            CHECK(property.attributes == (hasAttributes ? Hidden : Attributes{}));
        }
        const auto& first = plugin.bigNumber().info().sharedProperties[0];
        const auto& second = plugin.biggerNumber().info().sharedProperties[0];
        CHECK(AddressOf(first.getter) == AddressOf(second.getter));
        CHECK(AddressOf(first.setter) == AddressOf(second.setter));
    }
}

TEST_CASE("Both classes have one shared-property table and one attribute record") {
    LoadedPlugin plugin;
    const auto* first = plugin.bigNumber().info().record;
    const auto* second = plugin.biggerNumber().info().record;
    CHECK(first->sharedProperties == second->sharedProperties);
    CHECK(first->sharedMethods[0].attributes == second->sharedMethods[0].attributes);
    CHECK(first->sharedMethods[0].attributes == first->sharedProperties[0].attributes);
}

TEST_CASE("Only LibTypeStr is a hidden method, and only StringValue can be assigned to") {
    LoadedPlugin plugin;
    for (const NumberClass& number : plugin.classes()) {
        for (const standin::MethodInfo& method : number.info().sharedMethods) {
            CAPTURE(method.declaration);
            CHECK(method.attributes ==
                  (method.declaration == "LibTypeStr as String" ? Hidden : Attributes{}));
            CHECK(AddressOf(method.setter) == nullptr);
        }
        for (const standin::MethodInfo& method : number.info().methods) {
            CAPTURE(method.declaration);
            CHECK(method.attributes.empty());
            CHECK((method.setter != nullptr) ==
                  (method.declaration == "StringValue(Base as Integer) as String"));
        }
    }
}

TEST_CASE("The operators on the right are the very routines of their left forms") {
    LoadedPlugin plugin;
    for (const NumberClass& number : plugin.classes()) {
        std::set<std::string> sharing;
        for (const RoutinePair& pair : SharedRoutines) {
            CAPTURE(pair.second);
            CHECK(AddressOf(number.Method(pair.first).function) ==
                  AddressOf(number.Method(pair.second).function));
            sharing.insert(number.Declaration(pair.first));
            sharing.insert(number.Declaration(pair.second));
        }
        // No other entries share a routine.
        std::map<const void*, std::string> owners;
        for (const auto* table : {&number.info().methods, &number.info().sharedMethods}) {
            for (const standin::MethodInfo& method : *table) {
                if (method.function == nullptr || sharing.contains(method.declaration)) {
                    continue;
                }
                const auto owner =
                    owners.try_emplace(AddressOf(method.function), method.declaration);
                CAPTURE(owner.first->second);
                CAPTURE(method.declaration);
                CHECK(owner.second);
            }
        }
    }
}

TEST_CASE("The exception class adds nothing to RuntimeException") {
    for (const auto& version : HostVersions) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        LoadedPlugin plugin(standin::HostOptions{.version = version});
        const standin::ClassInfo* info = plugin.host().FindClass("BigNumberErrorExceptionVQZ");
        REQUIRE(info != nullptr);
        CHECK(info->superName == "RuntimeException");
        CHECK(info->IsA(*plugin.host().FindClass("RuntimeException")));
        CHECK(info->dataSize == 0);
        CHECK(AddressOf(info->destructor) == nullptr);
        CHECK(info->properties.empty());
        CHECK(info->methods.empty());
        CHECK(info->sharedProperties.empty());
        CHECK(info->sharedMethods.empty());
    }
}

TEST_CASE("Start-up asks the host for four functions and nothing more") {
    for (const auto& version : {std::optional(2011.99), std::optional(2023.04)}) {
        if (!tests::HasHosts(version)) {
            continue;
        }
        LoadedPlugin plugin(standin::HostOptions{.version = version});
        CHECK((plugin.host().lookups() ==
               std::map<std::string, int, std::less<>>{{"PluginRegisterClass", 1},
                                                       {"REALGetRBVersion", 1},
                                                       {"REALinRuntime", 1},
                                                       {"RegisterPluginVersion", 1}}));
    }
}

TEST_CASE("A host that registers no classes is left alone, and asked again for each class") {
    LoadedPlugin plugin(standin::HostOptions{.missing = {"PluginRegisterClass"}});
    CHECK(plugin.host().RegisteredClasses().empty());
    CHECK(plugin.host().lookups().at("PluginRegisterClass") == 3);
}

TEST_CASE("Without a resolver the library registers nothing") {
    LoadedPlugin plugin({}, "1", false);
    CHECK(plugin.host().RegisteredClasses().empty());
    CHECK_FALSE(plugin.host().pluginInterfaceVersion().has_value());
    CHECK(plugin.host().lookups().empty());
}

TEST_CASE("Debugging shows and changes what the environment set at start-up") {
    for (const char* setting : {"1", "true", "YES", "", "0", "on"}) {
        CAPTURE(setting);
        LoadedPlugin plugin({}, setting);
        const std::string_view word = setting;
        const bool expected = word == "1" || word == "true" || word == "YES";
        const auto& debugging = plugin.bigNumber().info().sharedProperties[0];
        const auto isOn = [&] { return tests::CallRoutine<std::int32_t>(debugging.getter); };
        CHECK(isOn() == (expected ? 1 : 0));
        for (const std::uintptr_t argument : {0U, 1U, 2U, 0x80U, 0xFFFFFF00U, 0xFFFFFF01U}) {
            CAPTURE(argument);
            tests::CallRoutine<void>(debugging.setter, argument);
            CHECK(isOn() == ((argument & 0xFFU) != 0 ? 1 : 0));
        }
        CHECK(plugin.host().TakeDebugLog().empty());
    }
}
