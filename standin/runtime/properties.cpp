#include "standin/runtime/properties.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

#include "standin/runtime/variants.hpp"

namespace standin {
namespace {

/// A property that the host keeps for the objects of one kind.
struct HostProperty {
    Payload owner;
    std::string_view name;
    PropertyValue (*read)(Host::State& state, Object object, const char* user);
    /// Null for what is read-only.
    bool (*write)(Host::State& state, Object object, const PropertyValue& value, const char* user);
};

PropertyValue ReadMessage(Host::State& state, Object object, const char* user) {
    String message = state.objects.PayloadOf<ExceptionPayload>(object, user)->message;
    state.strings.Lock(message, user);
    return message;
}

bool WriteMessage(Host::State& state, Object object, const PropertyValue& value, const char* user) {
    const String* text = std::get_if<String>(&value);
    if (text == nullptr) {
        return false;
    }
    String& message = state.objects.PayloadOf<ExceptionPayload>(object, user)->message;
    state.strings.Lock(*text, user);
    state.strings.Unlock(message, user);
    message = *text;
    return true;
}

PropertyValue ReadErrorNumber(Host::State& state, Object object, const char* user) {
    return state.objects.PayloadOf<ExceptionPayload>(object, user)->errorNumber;
}

bool WriteErrorNumber(Host::State& state, Object object, const PropertyValue& value,
                      const char* user) {
    const auto* number = std::get_if<std::int32_t>(&value);
    if (number == nullptr) {
        return false;
    }
    state.objects.PayloadOf<ExceptionPayload>(object, user)->errorNumber = *number;
    return true;
}

PropertyValue ReadType(Host::State& state, Object object, const char* user) {
    return VariantTypeOf(state, object, user);
}

template <typename Number>
PropertyValue ReadSigned(Host::State& state, Object object, const char* user) {
    return static_cast<Number>(VariantInt64(state, object, user));
}

template <typename Number>
PropertyValue ReadUnsigned(Host::State& state, Object object, const char* user) {
    return static_cast<Number>(VariantUInt64(state, object, user));
}

template <typename Number>
PropertyValue ReadReal(Host::State& state, Object object, const char* user) {
    return static_cast<Number>(VariantDouble(state, object, user));
}

PropertyValue ReadCurrency(Host::State& state, Object object, const char* user) {
    return VariantCurrency(state, object, user);
}

PropertyValue ReadText(Host::State& state, Object object, const char* user) {
    return VariantText(state, object, user);
}

PropertyValue ReadSeconds(Host::State& state, Object object, const char* user) {
    return state.objects.PayloadOf<DatePayload>(object, user)->seconds;
}

PropertyValue ReadBlockSize(Host::State& state, Object object, const char* user) {
    const auto* block = state.objects.PayloadOf<BlockPayload>(object, user);
    return static_cast<std::int32_t>(block->bytes.size());
}

constexpr std::array HostProperties = {
    HostProperty{Payload::Exception, "Message", ReadMessage, WriteMessage},
    HostProperty{Payload::Exception, "ErrorNumber", ReadErrorNumber, WriteErrorNumber},
    HostProperty{Payload::Variant, "DoubleValue", ReadReal<double>, nullptr},
    HostProperty{Payload::Variant, "SingleValue", ReadReal<float>, nullptr},
    HostProperty{Payload::Variant, "IntegerValue", ReadSigned<std::int32_t>, nullptr},
    HostProperty{Payload::Variant, "Int32Value", ReadSigned<std::int32_t>, nullptr},
    HostProperty{Payload::Variant, "Int64Value", ReadSigned<std::int64_t>, nullptr},
    HostProperty{Payload::Variant, "LongValue", ReadSigned<std::int64_t>, nullptr},
    HostProperty{Payload::Variant, "UInt32Value", ReadUnsigned<std::uint32_t>, nullptr},
    HostProperty{Payload::Variant, "UInt64Value", ReadUnsigned<std::uint64_t>, nullptr},
    HostProperty{Payload::Variant, "CurrencyValue", ReadCurrency, nullptr},
    HostProperty{Payload::Variant, "StringValue", ReadText, nullptr},
    HostProperty{Payload::Date, "TotalSeconds", ReadSeconds, nullptr},
    HostProperty{Payload::DateTime, "SecondsFrom1970", ReadSeconds, nullptr},
    HostProperty{Payload::MemoryBlock, "Size", ReadBlockSize, nullptr},
};

/// Every object is a Variant of itself, and so its type can be asked for.
constexpr HostProperty TypeProperty{Payload::None, "Type", ReadType, nullptr};

const HostProperty* FindHostProperty(const Host::State& state, Payload owner,
                                     std::string_view name) {
    if (state.Lacks(name)) {
        return nullptr;
    }
    if (SameName(name, TypeProperty.name)) {
        return &TypeProperty;
    }
    const auto* found = std::ranges::find_if(HostProperties, [&](const HostProperty& property) {
        return property.owner == owner && SameName(property.name, name);
    });
    return found == HostProperties.end() ? nullptr : found;
}

const PropertyInfo* FindPluginProperty(const ClassEntry* type, std::string_view name) {
    for (; type != nullptr; type = type->SuperEntry()) {
        const auto found = std::ranges::find_if(
            type->properties, [&](const PropertyInfo& info) { return SameName(info.name, name); });
        if (found != type->properties.end()) {
            return &*found;
        }
    }
    return nullptr;
}

/// How a routine of the plug-in passes a value of one type.
struct PassedType {
    std::string_view name;
    ReturnKind kind;
    PropertyValue (*fromReturn)(const ReturnValue& value);
};

std::uint64_t BothWords(const ReturnValue& value) {
    return static_cast<std::uint64_t>(value.high) << 32U | value.low;
}

template <typename Integer>
PropertyValue FromWords(const ReturnValue& value) {
    return static_cast<Integer>(BothWords(value));
}

template <typename Real>
PropertyValue FromReal(const ReturnValue& value) {
    return static_cast<Real>(value.real);
}

PropertyValue FromString(const ReturnValue& value) {
    const std::uint64_t words = sizeof(void*) == 4 ? value.low : BothWords(value);
    return std::bit_cast<String>(static_cast<std::uintptr_t>(words));
}

constexpr std::array PassedTypes = {
    PassedType{"Integer", ReturnKind::Word, FromWords<std::int32_t>},
    PassedType{"Int32", ReturnKind::Word, FromWords<std::int32_t>},
    PassedType{"UInteger", ReturnKind::Word, FromWords<std::uint32_t>},
    PassedType{"UInt32", ReturnKind::Word, FromWords<std::uint32_t>},
    PassedType{"Int64", ReturnKind::TwoWords, FromWords<std::int64_t>},
    PassedType{"Currency", ReturnKind::TwoWords, FromWords<std::int64_t>},
    PassedType{"UInt64", ReturnKind::TwoWords, FromWords<std::uint64_t>},
    PassedType{"Single", ReturnKind::Single, FromReal<float>},
    PassedType{"Double", ReturnKind::Double, FromReal<double>},
    PassedType{"String", ReturnKind::Word, FromString},
};

const PassedType* FindPassedType(std::string_view name) {
    const auto* found = std::ranges::find_if(
        PassedTypes, [&](const PassedType& type) { return SameName(type.name, name); });
    return found == PassedTypes.end() ? nullptr : found;
}

/// A value as argument words, the low one first.
std::vector<std::uintptr_t> AsWords(const PropertyValue& value) {
    return std::visit(
        [](auto plain) -> std::vector<std::uintptr_t> {
            using Plain = decltype(plain);
            if constexpr (std::is_same_v<Plain, String>) {
                return {reinterpret_cast<std::uintptr_t>(plain)};
            } else if constexpr (sizeof(Plain) <= sizeof(std::uint32_t)) {
                return {static_cast<std::uintptr_t>(std::bit_cast<std::uint32_t>(plain))};
            } else {
                const auto bits = std::bit_cast<std::uint64_t>(plain);
                if constexpr (sizeof(std::uintptr_t) == sizeof bits) {
                    return {bits};
                } else {
                    return {static_cast<std::uintptr_t>(bits),
                            static_cast<std::uintptr_t>(bits >> 32U)};
                }
            }
        },
        value);
}

std::uintptr_t AsWord(Object object) {
    return reinterpret_cast<std::uintptr_t>(object);
}

/// The record's own word as the routine gets it.
std::uintptr_t AsWord(std::int32_t parameter) {
    return static_cast<std::uint32_t>(parameter);
}

std::optional<PropertyValue> ReadPluginProperty(Host& host, Object object,
                                                const PropertyInfo& property) {
    const PassedType* type = FindPassedType(property.type);
    if (type == nullptr || property.getter == nullptr) {
        return std::nullopt;
    }
    const std::array words = {AsWord(object), AsWord(property.parameter)};
    return type->fromReturn(host.Call(property.getter, words, type->kind));
}

bool WritePluginProperty(Host& host, Object object, const PropertyInfo& property,
                         const PropertyValue& value) {
    const PassedType* type = FindPassedType(property.type);
    if (type == nullptr || property.setter == nullptr ||
        type->fromReturn(ReturnValue{}).index() != value.index()) {
        return false;
    }
    std::vector<std::uintptr_t> words = {AsWord(object), AsWord(property.parameter)};
    const std::vector<std::uintptr_t> valueWords = AsWords(value);
    words.insert(words.end(), valueWords.begin(), valueWords.end());
    host.Call(property.setter, words, ReturnKind::None);
    return true;
}

}  // namespace

std::optional<PropertyValue> ReadProperty(Host& host, Object object, std::string_view name,
                                          const char* user) {
    const ObjectEntry* entry = host.state().objects.Find(object, user);
    if (entry == nullptr) {
        return std::nullopt;
    }
    if (const PropertyInfo* property = FindPluginProperty(entry->type, name)) {
        return ReadPluginProperty(host, object, *property);
    }
    if (const HostProperty* property = FindHostProperty(host.state(), entry->type->payload, name)) {
        return property->read(host.state(), object, user);
    }
    return std::nullopt;
}

bool WriteProperty(Host& host, Object object, std::string_view name, const PropertyValue& value,
                   const char* user) {
    const ObjectEntry* entry = host.state().objects.Find(object, user);
    if (entry == nullptr) {
        return false;
    }
    if (const PropertyInfo* property = FindPluginProperty(entry->type, name)) {
        return WritePluginProperty(host, object, *property, value);
    }
    const HostProperty* property = FindHostProperty(host.state(), entry->type->payload, name);
    return property != nullptr && property->write != nullptr &&
           property->write(host.state(), object, value, user);
}

}  // namespace standin
