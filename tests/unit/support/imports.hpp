// The imports of a loaded library, so that a test can put functions of its own in their place.
#pragma once

#include "interface/host_interface.hpp"

namespace tests {

/// Lets the library that holds the routine `inside` call `replacement` wherever it imports a
/// function of that name. Returns the function that it called before; null, and nothing is done,
/// when it imports none of that name. Other libraries are left alone.
host_interface::Routine ReplaceImport(host_interface::Routine inside, const char* name,
                                      host_interface::Routine replacement);

}  // namespace tests
