// Class tables as the host reads them, made from the rows of members.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>
#include <type_traits>

#include "interface/host_interface.hpp"
#include "plugin/members/description.hpp"

namespace vqz {

/// The one attribute in use: the host leaves an entry that has it out of the lists that it shows.
inline constexpr host_interface::AttributeDefinition HiddenAttribute = {"Hidden", ""};

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

/// A table as the host gets it: one entry for each row.
template <typename... Description, std::size_t... Counts>
auto Table(const std::array<Description, Counts>&... parts) {
    using Entry = std::common_type_t<decltype(Define(parts[0]))...>;
    std::array<Entry, (Counts + ...)> table;
    auto next = table.begin();
    ((next = std::ranges::transform(parts, next, [](const auto& row) { return Define(row); }).out),
     ...);
    return table;
}

/// The same for rows in several arrays.
template <typename... Parts>
auto Table(const std::tuple<Parts...>& parts) {
    return std::apply([](const auto&... part) { return Table(part...); }, parts);
}

}  // namespace vqz
