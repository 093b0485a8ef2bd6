// What the records of the three classes share. Those of the number classes are
// `NumberClass<Value>::Record`.
#pragma once

#include <array>

#include "interface/host_interface.hpp"

namespace vqz {

/// The one attribute in use: it keeps an entry out of the lists that the host shows.
inline constexpr host_interface::AttributeDefinition HiddenAttribute = {"Hidden", ""};

/// The table that both number classes point at.
extern std::array<host_interface::PropertyDefinition, 1> SharedProperties;

/// The record of `BigNumberErrorExceptionVQZ`.
extern host_interface::ClassDefinition NumberErrorRecord;

}  // namespace vqz
