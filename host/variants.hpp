// Reading Variants and the dates they hold. The host's own readers are preferred; a host without
// one is asked for the Variant's property instead.
//
// The property readers of the host return whether they succeeded. For a Variant that is not tested:
// what the reader wrote counts. For a date it is: after a failure nothing that was written counts.
#pragma once

#include <cstdint>

#include "host/references.hpp"
#include "interface/host_interface.hpp"

namespace vqz {

/// Type codes of the plug-in's own, for what the host reports as Int32 and Int64.
inline constexpr std::int32_t VariantTypeUInt32 = 102;
inline constexpr std::int32_t VariantTypeUInt64 = 103;
/// For what the host reports beyond 32 bits, where no code is.
inline constexpr std::int32_t VariantTypeNone = -1;

/// The Variant's type: a code of the host, or one of those above. 0 when the host writes none.
std::int32_t VariantType(host_interface::Object variant);

/// What the Variant holds, converted by the host; 0 when the host writes nothing.
double VariantToDouble(host_interface::Object variant);
float VariantToSingle(host_interface::Object variant);
std::int32_t VariantToInt32(host_interface::Object variant);
std::int64_t VariantToInt64(host_interface::Object variant);
std::uint32_t VariantToUInt32(host_interface::Object variant);
std::uint64_t VariantToUInt64(host_interface::Object variant);
host_interface::Currency VariantToCurrency(host_interface::Object variant);

/// The Variant's text; null for a null Variant and when the host writes none.
StringReference VariantToString(host_interface::Object variant);

/// Whether the object is of the class of that name or of one below it; false for null.
bool ObjectIsA(host_interface::Object object, const char* className);

/// The "TotalSeconds" of a Date; 0.0 when it cannot be read.
double GetDateTotalSeconds(host_interface::Object date);

/// The "SecondsFrom1970" of a DateTime; 0.0 when it cannot be read.
double GetSecondsFrom1970(host_interface::Object dateTime);

}  // namespace vqz
