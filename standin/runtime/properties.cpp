#include "standin/runtime/properties.hpp"

#include <algorithm>
#include <array>
#include <bit>

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
    const auto* number = std::get_if<Integer>(&value);
    if (number == nullptr) {
        return false;
    }
    state.objects.PayloadOf<ExceptionPayload>(object, user)->errorNumber = *number;
    return true;
}

PropertyValue ReadType(Host::State& state, Object object, const char* user) {
    return Integer{VariantTypeOf(state, object, user)};
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
    return static_cast<Integer>(block->bytes.size());
}

constexpr std::array HostProperties = {
    HostProperty{Payload::Exception, "Message", ReadMessage, WriteMessage},
    HostProperty{Payload::Exception, "ErrorNumber", ReadErrorNumber, WriteErrorNumber},
    HostProperty{Payload::Variant, "DoubleValue", ReadReal<double>, nullptr},
    HostProperty{Payload::Variant, "SingleValue", ReadReal<float>, nullptr},
    HostProperty{Payload::Variant, "IntegerValue", ReadSigned<Integer>, nullptr},
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

template <typename Number>
PropertyValue FromWords(const ReturnValue& value) {
    return static_cast<Number>(value.Wide());
}

template <typename Real>
PropertyValue FromReal(const ReturnValue& value) {
    return static_cast<Real>(value.real);
}

PropertyValue FromString(const ReturnValue& value) {
    return std::bit_cast<String>(value.Word());
}

constexpr std::array PassedTypes = {
    PassedType{"Integer", ReturnKind::Word, FromWords<Integer>},
    PassedType{"Int32", ReturnKind::Word, FromWords<std::int32_t>},
    PassedType{"UInteger", ReturnKind::Word, FromWords<UInteger>},
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

std::optional<PropertyValue> ReadPluginProperty(Host& host, Object object,
                                                const PropertyInfo& property) {
    const PassedType* type = FindPassedType(property.type);
    if (type == nullptr || property.getter == nullptr) {
        return std::nullopt;
    }
    CallArguments arguments;
    arguments.Add(object);
    arguments.Add(property.parameter);
    return type->fromReturn(host.Call(property.getter, arguments, type->kind));
}

bool WritePluginProperty(Host& host, Object object, const PropertyInfo& property,
                         const PropertyValue& value) {
    const PassedType* type = FindPassedType(property.type);
    if (type == nullptr || property.setter == nullptr ||
        type->fromReturn(ReturnValue{}).index() != value.index()) {
        return false;
    }
    CallArguments arguments;
    arguments.Add(object);
    arguments.Add(property.parameter);
    std::visit([&](auto plain) { arguments.Add(plain); }, value);
    host.Call(property.setter, arguments, ReturnKind::None);
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
