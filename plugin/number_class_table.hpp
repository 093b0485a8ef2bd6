// The tables and the record of one number class, made from the descriptions of its members.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>

#include "interface/host_interface.hpp"
#include "number/number_object.hpp"
#include "plugin/class_tables.hpp"
#include "plugin/member_descriptions.hpp"
#include "plugin/startup_globals.hpp"

namespace vqz {

/// A method as the host gets it.
inline host_interface::MethodDefinition Define(const MethodDescription& method) {
    return {.function = method.function,
            .setterFunction = method.setter,
            .declaration = method.declaration,
            .flags = host_interface::flags::AllTargets,
            .attributeCount = method.hidden ? 1U : 0U,
            .attributes = method.hidden ? &HiddenAttribute : nullptr};
}

/// A property as the host gets it.
inline host_interface::PropertyDefinition Define(const PropertyDescription& property) {
    return {.group = nullptr,
            .name = property.name,
            .type = property.type,
            .flags = property.flags,
            .getter = property.getter,
            .setter = property.setter,
            .parameter = 0,
            .reserved = {},
            .attributeCount = property.hidden ? 1U : 0U,
            .attributes = property.hidden ? &HiddenAttribute : nullptr};
}

/// A table as the host gets it, entry by entry from the descriptions.
template <typename Description, std::size_t Count>
auto Table(const std::array<Description, Count>& descriptions) {
    std::array<decltype(Define(descriptions[0])), Count> table;
    std::ranges::transform(descriptions, table.begin(),
                           [](const Description& description) { return Define(description); });
    return table;
}

template <typename Value>
inline auto Properties = Table(NumberProperties<Value>());
template <typename Value>
inline auto Methods = Table(NumberMethods<Value>());
template <typename Value>
inline auto SharedMethods = Table(NumberSharedMethods<Value>());

/// The record of a number class with its tables.
template <typename Value>
host_interface::ClassDefinition NumberRecord() {
    static_assert(std::tuple_size_v<decltype(Properties<Value>)> == 14);
    static_assert(std::tuple_size_v<decltype(Methods<Value>)> == 52);
    static_assert(std::tuple_size_v<decltype(SharedMethods<Value>)> == 55);
    static_assert(std::tuple_size_v<decltype(SharedProperties)> == 1);

    host_interface::ClassDefinition record = {};
    record.version = UnregisteredInterfaceVersion;
    record.name = NumberClass<Value>::Name.text;
    record.dataSize = sizeof(NumberInstance<Value>);
    record.destructor = Destruct<Value, "Destructor">();
    record.properties = Properties<Value>.data();
    record.propertyCount = Properties<Value>.size();
    record.methods = Methods<Value>.data();
    record.methodCount = Methods<Value>.size();
    record.flags = host_interface::flags::AllTargets;
    record.sharedProperties = SharedProperties.data();
    record.sharedPropertyCount = SharedProperties.size();
    record.sharedMethods = SharedMethods<Value>.data();
    record.sharedMethodCount = SharedMethods<Value>.size();
    return record;
}

}  // namespace vqz
