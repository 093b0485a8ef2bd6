#include "host/variants.hpp"

#include <atomic>
#include <optional>
#include <utility>

#include "host/debug_log.hpp"
#include "plugin/bindings/host_functions.hpp"
#include "plugin/bindings/relaxed.hpp"

namespace vqz {
namespace {

using host_interface::ClassReference;
using host_interface::Integer;
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

bool IsInstance(Object object, ClassReference classReference) {
    return classReference != nullptr && host::RuntimeObjectIsa(object, classReference);
}

/// The host's global method that returns a Variant's type; kept once it is found.
using VarTypeMethod = functions::VarType*;
constinit Relaxed<VarTypeMethod> VarType = nullptr;

Integer HostVariantType(Object variant) {
    VarTypeMethod method = VarType;
    if (method == nullptr) {
        method = reinterpret_cast<VarTypeMethod>(
            host::REALLoadGlobalMethod("VarType(value As Variant) As Integer"));
        VarType = method;
    }
    if (method != nullptr) {
        return method(variant);
    }
    Integer type = 0;
    host::REALGetPropValueInteger(variant, "Type", &type);
    return type;
}

/// A class of the host that is looked up once per process, at its first use, even when the host
/// does not know it. Threads that look it up at the same time store the same reference.
class KeptClass {
public:
    constexpr explicit KeptClass(const char* name) : name_(name) {}

    bool Holds(Object object) {
        if (!isKnown_.load(std::memory_order_acquire)) {
            reference_ = host::pluginObjectType(name_);
            isKnown_.store(true, std::memory_order_release);
        }
        return IsInstance(object, reference_);
    }

private:
    const char* name_;
    Relaxed<ClassReference> reference_ = nullptr;
    std::atomic<bool> isKnown_ = false;
};

constinit KeptClass UInt32Class("_VariantUInt32");
constinit KeptClass UInt64Class("_VariantUInt64");

/// A property of a date; nothing when the host reports a failure, whatever it wrote before.
std::optional<double> ReadSeconds(Object date, const char* property) {
    double seconds = 0.0;
    return host::REALGetPropValueDouble(date, property, &seconds) ? std::optional(seconds)
                                                                  : std::nullopt;
}

}  // namespace

std::int32_t VariantType(Object variant) {
    const Integer type = HostVariantType(variant);
    if (!std::in_range<std::int32_t>(type)) {
        return VariantTypeNone;
    }
    switch (static_cast<VariantTypeCode>(type)) {
        case VariantTypeCode::Int32:
            return UInt32Class.Holds(variant) ? VariantTypeUInt32 : static_cast<std::int32_t>(type);
        case VariantTypeCode::Int64:
            return UInt64Class.Holds(variant) ? VariantTypeUInt64 : static_cast<std::int32_t>(type);
        default:
            return static_cast<std::int32_t>(type);
    }
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
