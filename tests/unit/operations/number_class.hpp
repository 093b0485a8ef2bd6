// A number class of the built library, used the way a host uses it: through what it registered.
#pragma once

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include <doctest/doctest.h>

#include "standin/runtime/host.hpp"
#include "tests/unit/operations/number.hpp"
#include "tests/unit/support/host_values.hpp"

namespace operation_tests {

using host_interface::Object;
using host_interface::Routine;

/// A host with the built library in it.
class LoadedHost {
public:
    explicit LoadedHost(standin::HostOptions options = {}) : host_(std::move(options)) {
        // Where the system keeps a library in memory its switches stay as they were.
        SetDebugging(false);
    }

    standin::Host& host() { return host_; }

    /// Turns the debug log on or off and forgets the lines so far.
    void SetDebugging(bool on);

private:
    standin::Host host_;
    standin::PluginLibrary library_{PLUGIN_LIBRARY};
};

/// A number object's value, or nothing for Nil.
template <typename AnyNumber>
using Operand = std::optional<AnyNumber>;

/// What one call of a member did.
template <typename AnyNumber>
struct Observation {
    /// A number, the word of an Integer or Boolean, or nothing when Nil came back.
    std::variant<std::monostate, AnyNumber, std::intptr_t> result;
    /// "CLASS: MESSAGE", or empty when nothing was raised.
    std::string raised;
    /// The lines of the debug log.
    std::string log;

    bool operator==(const Observation&) const = default;

    friend std::ostream& operator<<(std::ostream& out, const Observation& observation) {
        if (const auto* number = std::get_if<AnyNumber>(&observation.result)) {
            out << *number;
        } else if (const auto* integer = std::get_if<std::intptr_t>(&observation.result)) {
            out << *integer;
        } else {
            out << "Nil";
        }
        return out << " raised [" << observation.raised << "] log [" << observation.log << "]";
    }
};

/// The declaration of a member with the class's name put in for '$'.
std::string DeclarationOf(std::string_view pattern, std::string_view className);

/// One of the two number classes, as registered with a host.
template <typename AnyNumber>
class NumberClass {
public:
    explicit NumberClass(LoadedHost& loaded) : host_(loaded.host()), type_(*host_.FindClass(Name)) {
        for (const auto* methods : {&type_.methods, &type_.sharedMethods}) {
            for (const standin::MethodInfo& method : *methods) {
                routines_[method.declaration] = method.function;
            }
        }
        for (const standin::PropertyInfo& property : type_.properties) {
            properties_[property.name] = property;
        }
    }

    const standin::ClassInfo& type() const { return type_; }

    /// The routine of a method, shared or not, by its declaration with '$' for the class's name.
    Routine RoutineOf(std::string_view pattern) const {
        const auto found = routines_.find(DeclarationOf(pattern, Name));
        const bool registered = found != routines_.end();
        REQUIRE_MESSAGE(registered, pattern);
        REQUIRE_MESSAGE((found->second != nullptr), pattern);
        return found->second;
    }

    /// A new object with that value; null for nothing.
    tests::HeldObject Make(const Operand<AnyNumber>& value) {
        if (!value) {
            return {};
        }
        tests::HeldObject object(host_.MakeObject(type_));
        Call(RoutineOf("Constructor"), {Word(object.Get())}, standin::ReturnKind::None);
        SetWords(object.Get(), "DataMantissa", value->mantissa);
        SetWords(object.Get(), "DataExponent", value->exponent);
        Call(properties_.at("DataFlags").setter, {Word(object.Get()), 0, value->flags},
             standin::ReturnKind::None);
        return object;
    }

    /// The value of an object.
    AnyNumber Read(Object object) {
        AnyNumber value;
        GetWords(object, "DataMantissa", value.mantissa);
        GetWords(object, "DataExponent", value.exponent);
        value.flags = static_cast<std::uint8_t>(
            Call(properties_.at("DataFlags").getter, {Word(object), 0}, standin::ReturnKind::Word));
        return value;
    }

    /// A member that returns a number.
    Operand<AnyNumber> ReadAndRelease(std::uintptr_t handle) {
        const tests::HeldObject object(reinterpret_cast<Object>(handle));
        if (!object) {
            return {};
        }
        return Read(object.Get());
    }

    /// Calls a routine with these words and returns the word that it returns.
    std::uintptr_t Call(Routine routine, std::span<const std::uintptr_t> words,
                        standin::ReturnKind kind) {
        return host_.Call(routine, words, kind).Word();
    }
    std::uintptr_t Call(Routine routine, std::initializer_list<std::uintptr_t> words,
                        standin::ReturnKind kind) {
        return Call(routine, std::span(words.begin(), words.size()), kind);
    }

    /// A handle as an argument word.
    static std::uintptr_t Word(Object object) { return reinterpret_cast<std::uintptr_t>(object); }

private:
    static constexpr const char* Name = ClassName<AnyNumber>;

    template <typename Words>
    void SetWords(Object object, const char* property, const Words& words) {
        std::string bytes(sizeof words, '\0');
        std::memcpy(bytes.data(), words.data(), bytes.size());
        const tests::HeldObject block(host_.MakeMemoryBlock(bytes));
        Call(properties_.at(property).setter, {Word(object), 0, Word(block.Get())},
             standin::ReturnKind::None);
    }

    template <typename Words>
    void GetWords(Object object, const char* property, Words& words) {
        const tests::HeldObject block(reinterpret_cast<Object>(
            Call(properties_.at(property).getter, {Word(object), 0}, standin::ReturnKind::Word)));
        REQUIRE(block);
        const std::span<std::byte> bytes = host_.BlockBytes(block.Get());
        REQUIRE(bytes.size() == sizeof words);
        std::memcpy(words.data(), bytes.data(), bytes.size());
    }

    standin::Host& host_;
    const standin::ClassInfo& type_;
    std::map<std::string, Routine, std::less<>> routines_;
    std::map<std::string, standin::PropertyInfo, std::less<>> properties_;
};

}  // namespace operation_tests

// How the tests of each precision are called.
TYPE_TO_STRING_AS("256 bits", operation_tests::Number256);
TYPE_TO_STRING_AS("2048 bits", operation_tests::Number2048);
