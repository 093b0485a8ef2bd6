// What the library registers: classes, members, their order, flags and attributes.
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

struct PropertyRow {
    const char* name;
    const char* type;
    bool readOnly;
};

constexpr PropertyRow PropertyRows[] = {
    {"IsZero", "Boolean", true},
    {"IsNegative", "Boolean", true},
    {"IsNan", "Boolean", true},
    {"IsInteger", "Boolean", true},
    {"IntegerValue", "Integer", false},
    {"Int64Value", "Int64", false},
    {"UInt64Value", "UInt64", false},
    {"DoubleValue", "Double", false},
    {"StringValue", "String", false},
    {"CurrencyValue", "Currency", false},
    {"VariantValue", "Variant", false},
    {"DataMantissa", "MemoryBlock", false},
    {"DataExponent", "MemoryBlock", false},
    {"DataFlags", "Integer", false},
};

constexpr const char* Formatted =
    "GetStringValue(Base as Integer = 10, scientific as boolean = false, scientificFrom as Integer "
    "= 15, round as Integer = -1, TrimZeros as Boolean = true, comma as String = \".\") as String";
constexpr const char* SetWithRest =
    "SetStringValue(Text As String, Base as Integer, byref AfterText as String, Byref ValueRead as "
    "boolean)";

constexpr const char* MethodRows[] = {
    "Ceil as $",
    "SkipFraction as $",
    "Frac as $",
    "Floor as $",
    Formatted,
    SetWithRest,
    "StringValue(Base as Integer) as String",
    "Round as $",
    "Equals(other as $) as Boolean",
    "Sqrt as $",
    "Pow(other as $) as $",
    "Modulate2 as Integer",
    "Modulate(other as $) as $",
    "Divide(other as $, round as boolean = true) as $",
    "Multiply(other as $, round as boolean = true) as $",
    "Multiply(value as Integer) as $",
    "Multiply(value as UInt32) as $",
    "BitXOr(other as $) as $",
    "BitOr(other as $) as $",
    "BitAnd(other as $) as $",
    "Subtract(other as $, round as boolean = true) as $",
    "Add(other as $, round as boolean = true) as $",
    "Abs as $",
    "Negate as $",
    "Constructor",
    "Constructor(value as String)",
    "Constructor(value as Int32)",
    "Constructor(value as Int64)",
    "Constructor(value as UInt32)",
    "Constructor(value as UInt64)",
    "Constructor(value as Double)",
    "Constructor(value as Single)",
    "Constructor(value as Currency)",
    "Constructor(other as $)",
    "Operator_Convert(value as String)",
    "Operator_Convert as String",
    "Operator_Add(other as $) as $",
    "Operator_AddRight(other as $) as $",
    "Operator_Subtract(other as $) as $",
    "Operator_SubtractRight(other as $) as $",
    "Operator_Multiply(other as $) as $",
    "Operator_MultiplyRight(other as $) as $",
    "Operator_Divide(other as $) as $",
    "Operator_DivideRight(other as $) as $",
    "Operator_IntegerDivide(other as $) as $",
    "Operator_IntegerDivideRight(other as $) as $",
    "Operator_Modulo(other as $) as $",
    "Operator_ModuloRight(other as $) as $",
    "Operator_Negate as $",
    "Operator_Power(other as $) as $",
    "Operator_PowerRight(other as $) as $",
    "Operator_Compare(other as $) as Integer",
};

constexpr const char* SharedMethodRows[] = {
    "LibTypeStr as String",
    "NumberWithInteger(value as Integer) as $",
    "NumberWithInt64(value as Int64) as $",
    "NumberWithInt32(value as Int32) as $",
    "NumberWithUInt64(value as UInt64) as $",
    "NumberWithUInt32(value as UInt32) as $",
    "NumberWithVariant(value as variant) as $",
    "NumberWithSingle(value as single) as $",
    "NumberWithDouble(value as double) as $",
    "NumberWithCurrency(value as Currency) as $",
    "NumberWithString(value as String) as $",
    "Abs(value as $) as $",
    "Sgn(value as $) as $",
    "Root(value as $, index as $) as $",
    "DegToDeg(d as $, m as $, s as $) as $",
    "DegToRad(d as $, m as $, s as $) as $",
    "DegToGrad(d as $, m as $, s as $) as $",
    "DegToGrad(value as $) as $",
    "GradToDeg(value as $) as $",
    "GradToRad(value as $) as $",
    "RadToGrad(value as $) as $",
    "DegToRad(value as $) as $",
    "RadToDeg(value as $) as $",
    "ACoth(value as $) as $",
    "ATanh(value as $) as $",
    "ACosh(value as $) as $",
    "ASinh(value as $) as $",
    "Coth(value as $) as $",
    "Tanh(value as $) as $",
    "Cosh(value as $) as $",
    "Sinh(value as $) as $",
    "ACot(value as $) as $",
    "ATan(value as $) as $",
    "ACos(value as $) as $",
    "ASin(value as $) as $",
    "Cot(value as $) as $",
    "Tan(value as $) as $",
    "Cos(value as $) as $",
    "Sin(value as $) as $",
    "Log(value as $, base as $) as $",
    "Ln(value as $) as $",
    "Exp(value as $) as $",
    "Min as $",
    "Max as $",
    "Zero as $",
    "One as $",
    "Nan as $",
    "Pi as $",
    "HalfPi as $",
    "TwoPi as $",
    "E as $",
    "Ln2 as $",
    "Ln10 as $",
    "Rand as $",
    "NumberWithUInteger(value as UInteger) as $",
};

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

/// The declarations of a table, one a line.
std::string Declarations(const std::vector<standin::MethodInfo>& methods) {
    std::vector<std::string> lines;
    lines.reserve(methods.size());
    for (const standin::MethodInfo& method : methods) {
        lines.push_back(method.declaration);
    }
    return tests::Joined(lines);
}

/// The rows with the class's name put in, one a line.
template <std::size_t Count>
std::string Expected(const NumberClass& number, const char* const (&rows)[Count],
                     std::size_t visible = Count) {
    std::vector<std::string> lines;
    for (std::size_t index = 0; index < visible; ++index) {
        lines.push_back(number.Declaration(rows[index]));
    }
    return tests::Joined(lines);
}

/// The ages of hosts that see different tables.
constexpr std::optional<double> HostVersions[] = {std::nullopt, 2011.99, 2012.0, 2013.0,
                                                  2013.04,      2014.99, 2015.0, 2023.04};

}  // namespace

TEST_CASE("The library registers its three classes, in order, on hosts of every age") {
    for (const auto& version : HostVersions) {
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
    for (const auto& version : HostVersions) {
        CAPTURE(version.value_or(0.0));
        LoadedPlugin plugin(standin::HostOptions{.version = version});
        const std::size_t sharedMethods = version.value_or(0.0) < 2015.0 ? 54 : 55;
        for (const NumberClass& number : plugin.classes()) {
            CAPTURE(number.name());
            const standin::ClassInfo& info = number.info();
            CHECK(info.superName == "");
            CHECK(info.dataSize == 16);
            CHECK(AddressOf(info.destructor) != nullptr);
            CHECK(Declarations(info.methods) == Expected(number, MethodRows));
            CHECK(Declarations(info.sharedMethods) ==
                  Expected(number, SharedMethodRows, sharedMethods));
            for (const auto* table : {&info.methods, &info.sharedMethods}) {
                for (const standin::MethodInfo& method : *table) {
                    CAPTURE(method.declaration);
                    CHECK(method.flags == AllTargets);
                }
            }
        }
    }
}

TEST_CASE("The properties have their names, types and setters on hosts of every age") {
    for (const auto& version : HostVersions) {
        LoadedPlugin plugin(standin::HostOptions{.version = version});
        for (const NumberClass& number : plugin.classes()) {
            const auto& properties = number.info().properties;
            REQUIRE(properties.size() == std::size(PropertyRows));
            for (std::size_t index = 0; index < properties.size(); ++index) {
                const standin::PropertyInfo& property = properties[index];
                CAPTURE(property.name);
                CHECK(property.name == PropertyRows[index].name);
                CHECK(property.type == PropertyRows[index].type);
                CHECK(property.flags == RunTimeOnly);
                CHECK(property.parameter == 0);
                CHECK(property.group == "");
                CHECK(property.attributes.empty());
                CHECK((property.setter == nullptr) == PropertyRows[index].readOnly);
                CHECK(AddressOf(property.getter) != nullptr);
            }
        }
    }
}

TEST_CASE("Debugging is a hidden shared property, the same of both classes") {
    for (const auto& version : HostVersions) {
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
        // Nobody else has a routine of another.
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
