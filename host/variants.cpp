#include "host/variants.hpp"

#include "host/debug_log.hpp"
#include "plugin/host_functions.hpp"

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

    /// What the host function answers; without one, the property that `propertyReader` reads. A
    /// property that cannot be read leaves T().
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

/// The host's global method that tells a Variant's type; kept once it is found.
using VarTypeMethod = functions::VarType*;
constinit VarTypeMethod VarType = nullptr;

std::int32_t HostVariantType(Object variant) {
    if (VarType == nullptr) {
        VarType = reinterpret_cast<VarTypeMethod>(
            REALLoadGlobalMethod("VarType(value As Variant) As Integer"));
    }
    if (VarType != nullptr) {
        return VarType(variant);
    }
    std::int32_t type = 0;
    REALGetPropValueInteger(variant, "Type", &type);
    return type;
}

bool IsInstance(Object object, ClassReference classReference) {
    return classReference != nullptr && RuntimeObjectIsa(object, classReference);
}

}  // namespace

std::int32_t VariantType(Object variant) {
    const std::int32_t type = HostVariantType(variant);
    // Each class is looked up once for good, also when the host does not know it.
    if (type == static_cast<std::int32_t>(VariantTypeCode::Int32)) {
        static const ClassReference UInt32Class = pluginObjectType("_VariantUInt32");
        return IsInstance(variant, UInt32Class) ? VariantTypeUInt32 : type;
    }
    if (type == static_cast<std::int32_t>(VariantTypeCode::Int64)) {
        static const ClassReference UInt64Class = pluginObjectType("_VariantUInt64");
        return IsInstance(variant, UInt64Class) ? VariantTypeUInt64 : type;
    }
    return type;
}

double VariantToDouble(Object variant) {
    return DoubleReader.Read(variant, "DoubleValue", REALGetPropValueDouble);
}

float VariantToSingle(Object variant) {
    return SingleReader.Read(variant, "SingleValue", REALGetPropValueSingle);
}

std::int32_t VariantToInt32(Object variant) {
    return Int32Reader.Read(variant, "Int32Value", REALGetPropValueInt);
}

std::int64_t VariantToInt64(Object variant) {
    return Int64Reader.Read(variant, "LongValue", REALGetPropValueInt64);
}

std::uint32_t VariantToUInt32(Object variant) {
    return UInt32Reader.Read(variant, "UInt32Value", REALGetPropValueUInt32);
}

std::uint64_t VariantToUInt64(Object variant) {
    return UInt64Reader.Read(variant, "UInt64Value", REALGetPropValueUInt64);
}

host_interface::Currency VariantToCurrency(Object variant) {
    host_interface::Currency value = 0;
    REALGetPropValueCurrency(variant, "CurrencyValue", &value);
    return value;
}

StringReference VariantToString(Object variant) {
    if (variant == nullptr) {
        return {};
    }
    return StringReference(StringReader.Read(variant, "StringValue", REALGetPropValueString));
}

bool ObjectIsA(Object object, const char* className) {
    return object != nullptr && IsInstance(object, pluginObjectType(className));
}

double GetDateTotalSeconds(Object date) {
    double seconds = 0.0;
    REALGetPropValueDouble(date, "TotalSeconds", &seconds);
    if (DebugEnabled) {
        LogDouble("GetDateTotalSeconds", seconds);
    }
    return seconds;
}

double GetSecondsFrom1970(Object dateTime) {
    double seconds = 0.0;
    const bool read = REALGetPropValueDouble(dateTime, "SecondsFrom1970", &seconds);
    if (!read && DebugEnabled) {
        LogMessage("Failed to read SecondsFrom1970 property.");
    }
    return seconds;
}

}  // namespace vqz
