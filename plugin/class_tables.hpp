// The records of the three classes as they are handed to the host.
#pragma once

#include "interface/host_interface.hpp"
#include "number/number_value.hpp"

namespace vqz {

/// The record of `BigNumberErrorExceptionVQZ`. Those of the number classes are
/// `NumberClass<Value>::Record`.
extern host_interface::ClassDefinition NumberErrorRecord;

}  // namespace vqz
