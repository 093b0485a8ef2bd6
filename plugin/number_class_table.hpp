// The tables and the record of one number class, made from the descriptions of its members.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>
#include <type_traits>

#include "interface/host_interface.hpp"
#include "number/lifecycle.hpp"
#include "number/value/number_object.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "plugin/class_tables.hpp"
#include "plugin/member_descriptions.hpp"

namespace vqz {

/// A method as the host gets it.
template <HelpTexts Texts>
host_interface::MethodDefinition Define(const MethodDescription<Texts>& method) {
    return {.function = method.function.function,
            .setterFunction = method.setter.function,
            .declaration = method.declaration,
            .flags = host_interface::flags::AllTargets,
            .attributeCount = method.hidden ? 1U : 0U,
            .attributes = method.hidden ? &HiddenAttribute : nullptr};
}

/// A property as the host gets it.
template <HelpTexts Texts>
host_interface::PropertyDefinition Define(const PropertyDescription<Texts>& property) {
    return {.group = nullptr,
            .name = property.name,
            .type = property.type,
            .flags = property.flags,
            .getter = property.getter.function,
            .setter = property.setter.function,
            .parameter = 0,
            .reserved = {},
            .attributeCount = property.hidden ? 1U : 0U,
            .attributes = property.hidden ? &HiddenAttribute : nullptr};
}

/// A table as the host gets it, entry by entry from the descriptions.
template <typename... Description, std::size_t... Counts>
auto Table(const std::array<Description, Counts>&... parts) {
    using Entry = std::common_type_t<decltype(Define(parts[0]))...>;
    std::array<Entry, (Counts + ...)> table;
    auto next = table.begin();
    ((next = std::ranges::transform(parts, next, [](const auto& row) { return Define(row); }).out),
     ...);
    return table;
}

/// A table whose descriptions stand in several arrays.
template <typename... Parts>
auto Table(const std::tuple<Parts...>& parts) {
    return std::apply([](const auto&... part) { return Table(part...); }, parts);
}

template <typename Value>
inline auto Properties = Table(NumberProperties<Value, HelpTexts::Dropped>());
template <typename Value>
inline auto Methods = Table(NumberMethods<Value, HelpTexts::Dropped>());
template <typename Value>
inline auto SharedMethods = Table(NumberSharedMethods<Value, HelpTexts::Dropped>());

/// The record of a number class with its tables.
template <typename Value>
host_interface::ClassDefinition NumberRecord() {
    host_interface::ClassDefinition record = {};
    record.version = UnregisteredInterfaceVersion;
    record.name = NumberClass<Value>::Name.text;
    record.dataSize = sizeof(NumberInstance<Value>);
    record.destructor = Destruct<Value, "Destructor">().function;
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
