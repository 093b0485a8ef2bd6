// The stand-in host: strings, objects and classes as the real host offers them to a plug-in, with
// a ledger that knows every reference. One host lives in a process at a time.
#pragma once

#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "interface/host_interface.hpp"

namespace standin {

/// What can be made to fail: the n-th allocation from now (1 is the next), once or from then on.
/// The buffers of "PluginGetStringData" count as strings; Variants and MemoryBlocks count as
/// objects.
enum class Allocation { String, Object };

using host_interface::HostTextEncoding;
using host_interface::Integer;
using host_interface::Object;
using host_interface::Routine;
using host_interface::String;
using host_interface::UInteger;

/// The version of the host that this one stands in for by default.
inline constexpr double CurrentHostVersion = 2023.04;

/// The first release with 64-bit programs.
inline constexpr double First64BitVersion = 2015.03;

/// What kind of host to be. The defaults are a current host in the development environment.
struct HostOptions {
    /// What "REALGetRBVersion" returns; without a value the host does not offer that function.
    /// 64-bit hosts have one, `First64BitVersion` or later.
    std::optional<double> version = CurrentHostVersion;
    /// What the host lacks: functions by the name that the resolver is asked for, global methods by
    /// declaration or name, and classes and properties of its own by name.
    std::set<std::string, std::less<>> missing = {};
    /// What "REALinRuntime" returns.
    bool builtApplication = false;
    /// Whether "PluginNewInstance" runs the class's parameterless constructor.
    bool newInstanceRunsConstructor = false;
    /// Whether the byte after a string's text is something else than NUL.
    bool unterminatedStrings = false;
    /// Whether plug-in routines are called with a stack that is aligned to 4 bytes only. 32-bit
    /// hosts only.
    bool misalignedStack = false;
    /// Whether plug-in routines are called with an x87 control word of single precision and
    /// rounding toward zero. 32-bit hosts only.
    bool changedControlWord = false;
    /// Whether new memory blocks have a size but no data pointer.
    bool blocksWithoutData = false;
    /// Whether what was released stays known and untouched for a while, so that its use is noticed.
    /// Without that, calls cost the host less, which is for measuring.
    bool remembersReleased = true;
    /// References that every new string and object has beyond its maker's, so that one which is
    /// released too often lives on. They count in no ledger; `Leaks` then reports by how
    /// many references the counts are off.
    std::uint32_t spareReferences = 0;
};

/// How a routine takes an argument.
enum class Passing : std::uint8_t {
    /// One byte; what stands above it is nobody's.
    Boolean,
    /// 32 bits; what stands above them, where a register has more, is nobody's.
    Narrow,
    /// 64 bits, two words of a 32-bit host.
    Wide,
    /// As wide as a pointer: handles, addresses, Integer and UInteger.
    Word,
    Single,
    Double,
};

/// An argument: how it is passed, and its bits.
struct CallArgument {
    Passing passing = Passing::Word;
    std::uint64_t bits = 0;
};

inline constexpr std::size_t MostArguments = 32;

/// The arguments of one call, in order. Throws std::length_error when there are too many.
class CallArguments {
public:
    CallArguments() = default;
    /// Arguments that are a word each, or halves of wider ones on a 32-bit host.
    template <typename Words>
    requires std::convertible_to<const Words&, std::span<const std::uintptr_t>>
    // NOLINTNEXTLINE(google-explicit-constructor): most calls have nothing but words
    explicit(false) CallArguments(const Words& words) {
        for (const std::uintptr_t word : std::span<const std::uintptr_t>(words)) {
            Add({Passing::Word, word});
        }
    }

    void Add(CallArgument argument) {
        if (count_ == arguments_.size()) {
            throw std::length_error("a call with more than " + std::to_string(count_) +
                                    " arguments");
        }
        arguments_[count_++] = argument;
    }

    /// Adds a value in the way of its type: a Boolean, a number, a handle or an address.
    template <typename T>
    requires std::is_scalar_v<T>
    void Add(T value) {
        if constexpr (std::is_same_v<T, bool>) {
            Add({Passing::Boolean, std::uint64_t{value}});
        } else if constexpr (std::is_same_v<T, float>) {
            Add({Passing::Single, std::bit_cast<std::uint32_t>(value)});
        } else if constexpr (std::is_same_v<T, double>) {
            Add({Passing::Double, std::bit_cast<std::uint64_t>(value)});
        } else if constexpr (std::is_null_pointer_v<T>) {
            Add({Passing::Word, 0});
        } else if constexpr (std::is_pointer_v<T>) {
            Add({Passing::Word, std::bit_cast<std::uintptr_t>(value)});
        } else if constexpr (sizeof(T) == sizeof(std::uint64_t)) {
            Add({Passing::Wide, static_cast<std::uint64_t>(value)});
        } else {
            Add({Passing::Narrow, static_cast<std::uint32_t>(value)});
        }
    }

    std::span<const CallArgument> All() const { return {arguments_.data(), count_}; }

private:
    std::array<CallArgument, MostArguments> arguments_{};
    std::size_t count_ = 0;
};

/// What a routine returns: nothing; 32 bits, a Boolean, a handle or an Integer; 64 bits; or a real
/// number.
enum class ReturnKind { None, Word, TwoWords, Single, Double };

/// What a plug-in routine returned: EAX and EDX, the halves of a 64-bit register, or the register
/// of real numbers.
struct ReturnValue {
    std::uint32_t low = 0;
    std::uint32_t high = 0;
    double real = 0.0;

    /// A result of 64 bits.
    std::uint64_t Wide() const { return std::uint64_t{high} << 32U | low; }
    /// A result that is as wide as a pointer.
    std::uintptr_t Word() const { return static_cast<std::uintptr_t>(Wide()); }
};

/// The attributes of an entry, name and value, in the plug-in's order.
using Attributes = std::vector<std::pair<std::string, std::string>>;

/// One registered property, as the host read it from the plug-in's table.
struct PropertyInfo {
    std::string name;
    std::string type;
    std::uint32_t flags = 0;
    Routine getter = nullptr;
    Routine setter = nullptr;
    std::int32_t parameter = 0;
    Attributes attributes;
    std::string group;
};

/// One registered method, as the host read it from the plug-in's table.
struct MethodInfo {
    std::string declaration;
    std::uint32_t flags = 0;
    Routine function = nullptr;
    Routine setter = nullptr;
    Attributes attributes;
};

/// One registered event or constant, as the host read it from the plug-in's table.
struct DeclarationInfo {
    std::string declaration;
    /// Of a constant; events have none.
    std::uint32_t flags = 0;
    Attributes attributes;
};

/// One class the host knows: its own (RuntimeException and its kin) or a plug-in's.
struct ClassInfo {
    std::string name;
    const ClassInfo* super = nullptr;
    /// The plug-in's record; null for a class of the host's own.
    host_interface::ClassDefinition* record = nullptr;
    std::uint32_t version = 0;
    std::uint32_t flags = 0;
    std::size_t dataSize = 0;
    std::size_t dataOffset = 0;
    Routine destructor = nullptr;
    std::vector<PropertyInfo> properties;
    std::vector<MethodInfo> methods;
    std::vector<PropertyInfo> sharedProperties;
    std::vector<MethodInfo> sharedMethods;
    /// The name of the superclass as registered; empty when the record had none.
    std::string superName;
    Routine constructor = nullptr;
    std::vector<DeclarationInfo> events;
    std::vector<DeclarationInfo> constants;

    /// Whether this class is `other` or descends from it.
    bool IsA(const ClassInfo& other) const;
    /// The method or shared method with that declaration, in which '$' stands for the name of the
    /// class. Throws std::runtime_error when there is none.
    const MethodInfo& Method(std::string_view pattern) const;
    /// The property with that name. Throws std::runtime_error when there is none.
    const PropertyInfo& Property(std::string_view propertyName) const;
};

/// What a Variant of the host holds. The alternative of the variant type distinguishes
/// unsigned integers from signed ones; text is a string of the host, of which the Variant keeps a
/// reference.
using VariantValue = std::variant<std::monostate, std::int64_t, std::uint64_t, double, String>;

/// What an object of a program's own class holds.
class HeldData {
public:
    HeldData() = default;
    virtual ~HeldData() = default;
    HeldData(const HeldData&) = delete;
    HeldData& operator=(const HeldData&) = delete;
};

/// Numbers of the ledger, for `--ledger` and for tests.
struct LedgerCounts {
    std::uint64_t stringsMade = 0;
    std::uint64_t stringsAlive = 0;
    std::uint64_t objectsMade = 0;
    std::uint64_t objectsAlive = 0;
    std::uint64_t stringDataHeld = 0;
    /// References to all strings and objects, without the spare ones and those that exceptions and
    /// Variants have to their texts; below zero where more were released than there were.
    std::int64_t stringReferences = 0;
    std::int64_t objectReferences = 0;
};

/// The host. Made before a plug-in is loaded, destroyed after it was unloaded.
/// Every member that returns a handle gives one reference, which the caller releases.
class Host {
public:
    /// Throws std::invalid_argument for options that no host of this width has.
    explicit Host(HostOptions options = {});
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /// The host of this process; there must be one.
    static Host& Current();

    const HostOptions& options() const;

    /// The lookup handed to a plug-in's entry.
    static void* Resolve(const char* name);
    /// How often each name was asked of the resolver.
    const std::map<std::string, int, std::less<>>& lookups() const;
    /// The version that the plug-in passed to "RegisterPluginVersion", if it did.
    std::optional<std::int32_t> pluginInterfaceVersion() const;

    // Classes --------------------------------------------------------------------------------
    /// The class of that name, letter case ignored; null when unknown.
    const ClassInfo* FindClass(std::string_view name) const;
    /// The classes that the plug-in registered, in the order of registration.
    std::vector<const ClassInfo*> RegisteredClasses() const;

    /// The class of a program of that name: an object of it holds what the program gives it.
    const ClassInfo& ProgramClass(const std::string& name);

    // Strings --------------------------------------------------------------------------------
    /// A new string; empty text gives null, the legal empty string. Null also when an allocation
    /// failure was asked for.
    String MakeString(std::string_view bytes, HostTextEncoding encoding);
    /// A string of length zero that is not null, which is legal too. Null on a failing allocation.
    String MakeEmptyString(HostTextEncoding encoding);
    /// The bytes of a string as they are; a null handle is empty.
    std::string Bytes(String text);
    HostTextEncoding Encoding(String text);
    /// A new string with the same text in another encoding; null for null and on failure.
    String Convert(String text, HostTextEncoding encoding);
    /// The text of a string as UTF-8 (a failed conversion returns the bytes as they are).
    std::string Utf8(String text);
    void Lock(String text);
    void Unlock(String text);
    /// How many references there are; 0 for null.
    std::uint32_t References(String text);

    // Objects --------------------------------------------------------------------------------
    /// A new object with zero-filled instance data; no constructor runs. Null when an allocation
    /// failure was asked for.
    Object MakeObject(const ClassInfo& type);
    /// A new object of a program's class. Null when an allocation failure was asked for.
    Object MakeObject(const ClassInfo& type, std::unique_ptr<HeldData> data);
    /// What such an object holds; null for every other object.
    HeldData* Held(Object object);
    const ClassInfo& ClassOf(Object object);
    void Lock(Object object);
    /// Drops a reference; the last one runs the destructors, from the class up to its ancestors.
    void Unlock(Object object);
    /// How many references there are; 0 for null.
    std::uint32_t References(Object object);
    /// The address of the instance data of an object's class.
    void* InstanceData(Object object);
    /// Properties that the host itself keeps, on exceptions "Message" and "ErrorNumber".
    std::string Message(Object exception);
    void SetMessage(Object exception, std::string_view utf8);
    Integer ErrorNumber(Object exception);
    void SetErrorNumber(Object exception, Integer number);

    // Values in objects ----------------------------------------------------------------------
    // All return null on a failing allocation; the readers take an object of that kind only.
    /// A Variant of any type code, known or not. An unsigned integer makes one of the class
    /// "_VariantUInt32" or "_VariantUInt64" where the host has it. Nil and objects need none: a
    /// null handle is the Variant Nil, and an object is a Variant of itself.
    Object MakeVariant(std::int32_t typeCode, VariantValue value);
    /// The type code of any Variant: 0 for null, that of its class for an object.
    std::int32_t VariantType(Object variant);
    /// What a Variant holds; nothing for null and for an object that is a Variant of itself. A text
    /// stays the Variant's.
    VariantValue VariantContents(Object variant);
    /// The Variant as each type of the language; what cannot be converted is 0 or null.
    std::int64_t VariantAsInt64(Object variant);
    double VariantAsDouble(Object variant);
    host_interface::Currency VariantAsCurrency(Object variant);
    String VariantAsString(Object variant);
    Object MakeMemoryBlock(std::string_view bytes);
    /// The bytes of a memory block, to read and to write.
    std::span<std::byte> BlockBytes(Object block);
    /// Gives a memory block another size; bytes that are new are zero. Throws std::bad_alloc.
    void ResizeBlock(Object block, std::size_t size);
    /// Whether a program wants the numbers of a memory block with the most significant byte first.
    bool IsBigEndian(Object block);
    void SetBigEndian(Object block, bool isBigEndian);
    /// A "Date" with that "TotalSeconds".
    Object MakeDate(double totalSeconds);
    /// A "DateTime" with that "SecondsFrom1970".
    Object MakeDateTime(double secondsFrom1970);
    /// The seconds of either.
    double Seconds(Object date);
    void SetSeconds(Object date, double seconds);

    // Calls ----------------------------------------------------------------------------------
    /// Calls a routine of the plug-in with these arguments, in the way `options()` tell.
    ReturnValue Call(Routine routine, const CallArguments& arguments, ReturnKind kind);
    /// Takes over the exception that was raised since the last call of this, if any.
    Object TakeException();
    /// How often "RuntimeRaiseException" was called since the host was made.
    std::uint64_t Raises() const;

    // Strictness -----------------------------------------------------------------------------
    void FailAllocation(Allocation kind, int n, bool persistent);
    /// Lets all allocations succeed again; how many failed since the last call of this.
    int StopFailing();
    LedgerCounts Counts() const;
    /// What went wrong so far: over-release, use after free, double dispose, unknown handles.
    std::vector<std::string> Violations() const;
    /// The violations, and everything that is still alive, one line each with what it is.
    std::vector<std::string> Leaks() const;
    /// Forgets what was recorded so far; things alive now do not count as leaks later.
    void ResetLedger();

    // Debug log ------------------------------------------------------------------------------
    /// Gets each debug-log line, as a debugger would see it. Without a sink lines are kept for
    /// `TakeDebugLog`.
    void SetDebugSink(std::function<void(std::string_view)> sink);
    std::vector<std::string> TakeDebugLog();

    struct State;
    State& state();
    const State& state() const;

private:
    std::unique_ptr<State> state_;
};

/// Everything that the plug-in registered, as readable text: classes, flags, declarations, which
/// entries have routines and which share one. Holds no address, so it is the same in every run.
std::string DumpTables(const Host& host);

/// A plug-in library that is loaded: the DLL under Windows, the shared object under Linux.
/// Needs a living `Host`. Unloads with its destruction.
class PluginLibrary {
public:
    /// Loads the file and calls its entry, "REALPluginMain", with the host's resolver (or with
    /// null when `withResolver` is false). Throws std::runtime_error with a clear message when the
    /// file cannot be loaded or has no such entry.
    explicit PluginLibrary(const std::string& path, bool withResolver = true);
    ~PluginLibrary();
    PluginLibrary(const PluginLibrary&) = delete;
    PluginLibrary& operator=(const PluginLibrary&) = delete;

    /// The library's entry.
    Routine entry() const { return reinterpret_cast<Routine>(entry_); }
    /// Calls the entry again, as no host is expected to.
    void CallEntry(host_interface::Resolver resolver);

private:
    void* handle_ = nullptr;
    void (*entry_)(host_interface::Resolver) = nullptr;
};

}  // namespace standin
