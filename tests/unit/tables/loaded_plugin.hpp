// The built library in a host of its own, driven only by the tables that it registers.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "interface/host_interface.hpp"
#include "standin/runtime/host.hpp"
#include "tests/unit/support/environment.hpp"
#include "tests/unit/support/host_values.hpp"

namespace tests {

using host_interface::HostTextEncoding;
using host_interface::Integer;
using host_interface::Object;
using host_interface::Routine;
using host_interface::String;

/// The arguments of a call. A Boolean gets garbage above its byte.
template <typename Argument>
void AddArgument(standin::CallArguments& call, const Argument& argument) {
    if constexpr (std::is_same_v<Argument, bool>) {
        constexpr std::uint64_t Garbage = 0xDEADBE00;
        call.Add({standin::Passing::Boolean, Garbage | (argument ? 1U : 0U)});
    } else {
        call.Add(argument);
    }
}

/// Calls a routine of the plug-in. The result is one of the host's types; handles come with the
/// reference that the routine hands over.
template <typename Result, typename... Arguments>
Result CallRoutine(Routine routine, const Arguments&... arguments) {
    using standin::ReturnKind;
    standin::CallArguments all;
    (AddArgument(all, arguments), ...);
    const auto call = [&](ReturnKind kind) {
        return standin::Host::Current().Call(routine, all, kind);
    };
    if constexpr (std::is_void_v<Result>) {
        call(ReturnKind::None);
    } else if constexpr (std::is_same_v<Result, bool>) {
        return (call(ReturnKind::Word).low & 0xFFU) != 0;
    } else if constexpr (std::is_same_v<Result, HeldObject>) {
        return HeldObject(std::bit_cast<Object>(call(ReturnKind::Word).Word()));
    } else if constexpr (std::is_same_v<Result, HeldString>) {
        return HeldString(std::bit_cast<String>(call(ReturnKind::Word).Word()));
    } else if constexpr (std::is_same_v<Result, double>) {
        return call(ReturnKind::Double).real;
    } else if constexpr (std::is_same_v<Result, std::int64_t> ||
                         std::is_same_v<Result, std::uint64_t>) {
        return static_cast<Result>(call(ReturnKind::TwoWords).Wide());
    } else {
        static_assert(std::is_same_v<Result, std::int32_t>);
        return static_cast<std::int32_t>(call(ReturnKind::Word).low);
    }
}

/// One of the two number classes as a program of the host uses it. Members are named by their
/// declarations, in which '$' stands for the name of the class.
class NumberClass {
public:
    /// The record of a value has `wordCount` words and the byte of its flags behind them.
    NumberClass(standin::Host& host, std::string name, std::size_t wordCount);

    const std::string& name() const { return name_; }
    const standin::ClassInfo& info() const;

    /// The declaration as this class registers it.
    std::string Declaration(std::string_view pattern) const;
    /// The entry of a method or shared method; the test fails when there is none.
    const standin::MethodInfo& Method(std::string_view pattern) const;
    const standin::MethodInfo& SharedMethod(std::string_view pattern) const;
    const standin::PropertyInfo& Property(std::string_view name) const;

    /// Calls an instance method.
    template <typename Result, typename... Arguments>
    Result Call(std::string_view pattern, Object self, const Arguments&... arguments) {
        return CallRoutine<Result>(Method(pattern).function, self, arguments...);
    }
    /// Reads a property.
    template <typename Result>
    Result Get(std::string_view name, Object self) {
        const standin::PropertyInfo& property = Property(name);
        return CallRoutine<Result>(property.getter, self, property.parameter);
    }
    /// Writes a property.
    template <typename Value>
    void Set(std::string_view name, Object self, const Value& value) {
        const standin::PropertyInfo& property = Property(name);
        CallRoutine<void>(property.setter, self, property.parameter, value);
    }

    /// An object whose constructor did not run.
    HeldObject Unconstructed();
    /// An object made from text, which must be a number.
    HeldObject Make(std::string_view text);
    /// An object that is not a number.
    HeldObject MakeNan();
    /// The number's text, "null" when there is none.
    std::string Text(Object object);

    /// The bytes of the object's value: exponent, mantissa and flags; empty without a value.
    std::string ValueBytes(Object object) const;
    /// The flags of the object's value; its number must be there.
    int Flags(Object object) const;

private:
    standin::Host* host_;
    std::string name_;
    std::size_t wordCount_;
};

/// The file that is loaded: a copy, or the library itself in a process that loads it only once.
enum class LibraryFile { Copy, Original };

/// A host with the library loaded. At its end the library is unloaded and the ledger must be empty.
/// Every one has the library's first state, however often the process loaded it before.
class LoadedPlugin {
public:
    /// `debugSetting` is the value of VQZDEBUG while the library starts.
    explicit LoadedPlugin(standin::HostOptions options = {},
                          const std::optional<std::string>& debugSetting = std::nullopt,
                          bool withResolver = true, LibraryFile file = LibraryFile::Copy);
    /// In a host of this release.
    explicit LoadedPlugin(double version);
    ~LoadedPlugin();
    LoadedPlugin(const LoadedPlugin&) = delete;
    LoadedPlugin& operator=(const LoadedPlugin&) = delete;

    standin::Host& host() { return host_; }
    standin::PluginLibrary& library() { return *library_; }
    /// The smaller and the larger precision.
    std::array<NumberClass, 2>& classes() { return classes_; }
    NumberClass& bigNumber() { return classes_[0]; }
    NumberClass& biggerNumber() { return classes_[1]; }

    /// A string of the host.
    HeldString MakeString(std::string_view bytes,
                          HostTextEncoding encoding = HostTextEncoding::Utf8);

    /// Switches the debug log by the shared property.
    void SwitchDebugLog(bool on);
    /// The debug log that `action` writes with the switch on, as one text.
    template <typename Action>
    std::string LogOf(Action action) {
        SwitchDebugLog(true);
        action();
        SwitchDebugLog(false);
        return Joined(host_.TakeDebugLog());
    }

private:
    /// A copy of the library's file. A system may keep a library loaded, with the state that it has
    /// got; a file of another name is another library.
    class LibraryCopy {
    public:
        explicit LibraryCopy(LibraryFile file);
        ~LibraryCopy();
        LibraryCopy(const LibraryCopy&) = delete;
        LibraryCopy& operator=(const LibraryCopy&) = delete;
        const std::string& path() const { return path_; }

    private:
        std::string path_;
        bool isCopy_;
    };

    LibraryCopy file_;
    EnvironmentVariable debugSetting_;
    standin::Host host_;
    std::optional<standin::PluginLibrary> library_;
    std::array<NumberClass, 2> classes_;
};

}  // namespace tests
