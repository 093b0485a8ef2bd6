#include "plugin/class_tables.hpp"

#include <algorithm>
#include <array>

#include "host/exceptions.hpp"
#include "plugin/member_descriptions.hpp"
#include "plugin/startup_globals.hpp"

namespace vqz {
namespace {

using host_interface::AttributeDefinition;
using host_interface::ClassDefinition;
using host_interface::MethodDefinition;
using host_interface::PropertyDefinition;
namespace flags = host_interface::flags;

constexpr AttributeDefinition Hidden = {"Hidden", ""};

MethodDefinition Define(const MethodDescription& method) {
    return {.function = method.function,
            .setterFunction = method.setter,
            .declaration = method.declaration,
            .flags = flags::AllTargets,
            .attributeCount = method.hidden ? 1U : 0U,
            .attributes = method.hidden ? &Hidden : nullptr};
}

PropertyDefinition Define(const PropertyDescription& property) {
    return {.group = nullptr,
            .name = property.name,
            .type = property.type,
            .flags = flags::RunTimeOnly,
            .getter = property.getter,
            .setter = property.setter,
            .parameter = 0,
            .reserved = {},
            .attributeCount = 0,
            .attributes = nullptr};
}

/// The table that the host gets, entry by entry from the descriptions.
template <typename Description, std::size_t Count>
auto Table(const std::array<Description, Count>& descriptions) {
    std::array<decltype(Define(descriptions[0])), Count> table;
    std::ranges::transform(descriptions, table.begin(),
                           [](const Description& description) { return Define(description); });
    return table;
}

template <typename Value>
auto Properties = Table(NumberProperties<Value>());
template <typename Value>
auto Methods = Table(NumberMethods<Value>());
template <typename Value>
auto SharedMethods = Table(NumberSharedMethods<Value>());

/// One table serves both number classes. Programs find the property in no list of members.
auto SharedProperties = [] {
    auto table = Table(NumberSharedProperties());
    for (PropertyDefinition& property : table) {
        property.flags = flags::RunTimeOnly | flags::AllTargets | flags::PublicScope;
        property.attributeCount = 1;
        property.attributes = &Hidden;
    }
    return table;
}();

template <typename Value>
ClassDefinition NumberRecord() {
    static_assert(std::tuple_size_v<decltype(Properties<Value>)> == 14);
    static_assert(std::tuple_size_v<decltype(Methods<Value>)> == 52);
    static_assert(std::tuple_size_v<decltype(SharedMethods<Value>)> == 55);
    static_assert(std::tuple_size_v<decltype(SharedProperties)> == 1);

    ClassDefinition record = {};
    record.version = UnregisteredInterfaceVersion;
    record.name = NumberClass<Value>::Name.text;
    record.dataSize = sizeof(NumberInstance<Value>);
    record.destructor = Destruct<Value, "Destructor">();
    record.properties = Properties<Value>.data();
    record.propertyCount = Properties<Value>.size();
    record.methods = Methods<Value>.data();
    record.methodCount = Methods<Value>.size();
    record.flags = flags::AllTargets;
    record.sharedProperties = SharedProperties.data();
    record.sharedPropertyCount = SharedProperties.size();
    record.sharedMethods = SharedMethods<Value>.data();
    record.sharedMethodCount = SharedMethods<Value>.size();
    return record;
}

ClassDefinition ExceptionRecord() {
    ClassDefinition record = {};
    record.version = UnregisteredInterfaceVersion;
    record.name = NumberErrorClass;
    record.superName = "RuntimeException";
    record.flags = flags::AllTargets;
    return record;
}

}  // namespace

ClassDefinition NumberClass<BigNumberValue>::Record = NumberRecord<BigNumberValue>();
ClassDefinition NumberClass<BiggerNumberValue>::Record = NumberRecord<BiggerNumberValue>();
ClassDefinition NumberErrorRecord = ExceptionRecord();

}  // namespace vqz
