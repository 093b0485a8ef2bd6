// The table that the number classes share, and the record of the exception class. The records of
// the number classes are `NumberClass<Value>::Record`.
#pragma once

#include <array>

#include "interface/host_interface.hpp"

namespace vqz {

/// The table that both number classes point at.
extern std::array<host_interface::PropertyDefinition, 1> SharedProperties;

/// The record of `BigNumberErrorExceptionVQZ`.
extern host_interface::ClassDefinition NumberErrorRecord;

}  // namespace vqz
