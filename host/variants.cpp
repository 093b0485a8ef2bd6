#include "host/variants.hpp"

#include <optional>

#include "host/debug_log.hpp"
#include "plugin/bindings/host_functions.hpp"

namespace vqz {
namespace {

using host_interface::ClassReference;
using host_interface::Object;
using host_interface::VariantTypeCode;

/// A host function that reads a Variant.
template <typename Function>
class VariantReader;

template <typename T>
class VariantReader<T(Object)> : private HostFunctionSlot<T(Object)> {
    using Slot = HostFunctionSlot<T(Object)>;

public:
    using Slot::Slot;

    /// What the host function returns; without one, the property that `propertyReader` reads. The
    /// reader's result is not tested: what it wrote counts, T() if it wrote nothing.
    template <typename PropertyReader>
    T Read(Object variant, const char* property, PropertyReader& propertyReader) {
        if (const auto function = Slot::Resolve()) {
            return function(variant);
        }
        T value = T();
        propertyReader(variant, property, &value);
        return value;
    }
};

constinit VariantReader<functions::VariantToDouble> DoubleReader("VariantToDouble");
constinit VariantReader<functions::VariantToSingle> SingleReader("VariantToSingle");
constinit VariantReader<functions::VariantToInt32> Int32Reader("VariantToInt32");
constinit VariantReader<functions::VariantToInt64> Int64Reader("VariantToInt64");
constinit VariantReader<functions::VariantToUInt32> UInt32Reader("VariantToUInt32");
constinit VariantReader<functions::VariantToUInt64> UInt64Reader("VariantToUInt64");
constinit VariantReader<functions::VariantToString> StringReader("VariantToString");

/// The host's global method that returns a Variant's type; kept once it is found.
using VarTypeMethod = functions::VarType*;
constinit VarTypeMethod VarType = nullptr;

std::int32_t HostVariantType(Object variant) {
    if (VarType == nullptr) {
        VarType = reinterpret_cast<VarTypeMethod>(
            host::REALLoadGlobalMethod("VarType(value As Variant) As Integer"));
    }
    if (VarType != nullptr) {
        return static_cast<std::int32_t>(VarType(variant));
    }
    host_interface::Integer type = 0;
    host::REALGetPropValueInteger(variant, "Type", &type);
    return static_cast<std::int32_t>(type);
}

/// A property of a date; nothing when the host reports a failure, whatever it wrote before.
std::optional<double> ReadSeconds(Object date, const char* property) {
    double seconds = 0.0;
    return host::REALGetPropValueDouble(date, property, &seconds) ? std::optional(seconds)
                                                                  : std::nullopt;
}

bool IsInstance(Object object, ClassReference classReference) {
    return classReference != nullptr && host::RuntimeObjectIsa(object, classReference);
}

}  // namespace

std::int32_t VariantType(Object variant) {
    const std::int32_t type = HostVariantType(variant);
    // Each class is looked up once per process, even when the host does not know it.
    if (type == static_cast<std::int32_t>(VariantTypeCode::Int32)) {
        static const ClassReference UInt32Class = host::pluginObjectType("_VariantUInt32");
        return IsInstance(variant, UInt32Class) ? VariantTypeUInt32 : type;
    }
    if (type == static_cast<std::int32_t>(VariantTypeCode::Int64)) {
        static const ClassReference UInt64Class = host::pluginObjectType("_VariantUInt64");
        return IsInstance(variant, UInt64Class) ? VariantTypeUInt64 : type;
    }
    return type;
}

double VariantToDouble(Object variant) {
    return DoubleReader.Read(variant, "DoubleValue", host::REALGetPropValueDouble);
}

float VariantToSingle(Object variant) {
    return SingleReader.Read(variant, "SingleValue", host::REALGetPropValueSingle);
}

std::int32_t VariantToInt32(Object variant) {
    return Int32Reader.Read(variant, "Int32Value", host::REALGetPropValueInt);
}

std::int64_t VariantToInt64(Object variant) {
    return Int64Reader.Read(variant, "LongValue", host::REALGetPropValueInt64);
}

std::uint32_t VariantToUInt32(Object variant) {
    return UInt32Reader.Read(variant, "UInt32Value", host::REALGetPropValueUInt32);
}

std::uint64_t VariantToUInt64(Object variant) {
    return UInt64Reader.Read(variant, "UInt64Value", host::REALGetPropValueUInt64);
}

host_interface::Currency VariantToCurrency(Object variant) {
    host_interface::Currency value = 0;
    host::REALGetPropValueCurrency(variant, "CurrencyValue", &value);
    return value;
}

StringReference VariantToString(Object variant) {
    if (variant == nullptr) {
        return {};
    }
    return StringReference(StringReader.Read(variant, "StringValue", host::REALGetPropValueString));
}

bool ObjectIsA(Object object, const char* className) {
    return object != nullptr && IsInstance(object, host::pluginObjectType(className));
}

double GetDateTotalSeconds(Object date) {
    const double seconds = ReadSeconds(date, "TotalSeconds").value_or(0.0);
    if (DebugEnabled) {
        LogDouble("GetDateTotalSeconds", seconds);
    }
    return seconds;
}

double GetSecondsFrom1970(Object dateTime) {
    const std::optional<double> seconds = ReadSeconds(dateTime, "SecondsFrom1970");
    if (!seconds && DebugEnabled) {
        LogMessage("Failed to read SecondsFrom1970 property.");
    }
    return seconds.value_or(0.0);
}

}  // namespace vqz
