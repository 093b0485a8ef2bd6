// The functions of the host, each looked up by name at its first call.
//
// `host::NAME(...)` calls the host function NAME; only host functions are in this namespace.
// Helpers of the plug-in whose names look alike, such as `REALBuildMemoryblock`, are outside of it.
// When the host lacks the function, the call returns null or false; nothing is logged or raised,
// and the caller goes on with that result.
#pragma once

#include <cstdint>

#include "interface/host_interface.hpp"
#include "plugin/bindings/relaxed.hpp"
#include "plugin/bindings/startup_globals.hpp"

namespace vqz {

/// A host function and the address under which it was found. A found address is kept for good;
/// a failed lookup is repeated at the next call. Threads that resolve at the same time store the
/// same address, so no lock is needed.
template <typename Function>
class HostFunctionSlot;

template <typename Result, typename... Arguments>
class HostFunctionSlot<Result(Arguments...)> {
public:
    constexpr explicit HostFunctionSlot(const char* name, const char* fallbackName = nullptr)
        : name_(name), fallbackName_(fallbackName) {}

    /// The host function's result; null, 0 or nothing when the host lacks it.
    Result operator()(Arguments... arguments) {
        const Function function = Resolve();
        return function == nullptr ? Result() : function(arguments...);
    }

protected:
    using Function = Result (*)(Arguments...);

    /// The host function's address, looked up when it is not yet known; null when it is missing.
    Function Resolve() {
        Function address = address_;
        if (address == nullptr) {
            void* found = HostResolver(name_);
            if (found == nullptr && fallbackName_ != nullptr) {
                found = HostResolver(fallbackName_);
            }
            address = reinterpret_cast<Function>(found);
            address_ = address;
        }
        return address;
    }

private:
    const char* name_;
    const char* fallbackName_;
    Relaxed<Function> address_ = nullptr;
};

/// How much of the word that a host function returns belongs to its Boolean result.
enum class BooleanWidth : std::uint32_t { LowByte = 0xFF, Word = 0xFFFFFFFF };

template <typename Function, BooleanWidth Width>
class HostPredicateSlot;

/// A host function that returns a Boolean; false when the host lacks it.
template <typename... Arguments, BooleanWidth Width>
class HostPredicateSlot<host_interface::BooleanWord(Arguments...), Width>
    : private HostFunctionSlot<host_interface::BooleanWord(Arguments...)> {
    using Slot = HostFunctionSlot<host_interface::BooleanWord(Arguments...)>;

public:
    using Slot::Slot;

    bool operator()(Arguments... arguments) {
        // 64-bit hosts have low bytes only.
        constexpr auto Mask = HOST_INTERFACE_32_BIT != 0 ? Width : BooleanWidth::LowByte;
        return (Slot::operator()(arguments...) & static_cast<std::uint32_t>(Mask)) != 0;
    }
};

template <typename Function>
using LowBytePredicate = HostPredicateSlot<Function, BooleanWidth::LowByte>;
template <typename Function>
using WordPredicate = HostPredicateSlot<Function, BooleanWidth::Word>;

namespace functions = host_interface::functions;

/// The "REALLoadGlobalMethod" of the host, always asked for the global module.
class GlobalMethodLoader : private HostFunctionSlot<functions::REALLoadGlobalMethod> {
    using Slot = HostFunctionSlot<functions::REALLoadGlobalMethod>;

public:
    using Slot::Slot;

    /// The address of the global method with a declaration, such as
    /// "VarType(value As Variant) As Integer"; null when the host does not know it.
    void* operator()(const char* declaration) {
        constexpr const char* GlobalModule = nullptr;
        return Slot::operator()(GlobalModule, declaration);
    }
};

namespace host {

// Strings and text encodings.
inline constinit HostFunctionSlot<functions::REALBuildString> REALBuildString("REALBuildString");
inline constinit HostFunctionSlot<functions::REALBuildStringWithEncoding>
    REALBuildStringWithEncoding("REALBuildStringWithEncoding");
inline constinit HostFunctionSlot<functions::RuntimeAddString> RuntimeAddString("RuntimeAddString");
inline constinit HostFunctionSlot<functions::REALConvertString> REALConvertString(
    "REALConvertString");
inline constinit LowBytePredicate<functions::PluginGetStringData> PluginGetStringData(
    "PluginGetStringData");
inline constinit HostFunctionSlot<functions::PluginDisposeStringData> PluginDisposeStringData(
    "PluginDisposeStringData");
inline constinit HostFunctionSlot<functions::REALGetStringEncoding> REALGetStringEncoding(
    "REALGetStringEncoding");
inline constinit HostFunctionSlot<functions::REALSetStringEncoding> REALSetStringEncoding(
    "REALSetStringEncoding");
inline constinit HostFunctionSlot<functions::REALLockString> REALLockString("REALLockString");
inline constinit HostFunctionSlot<functions::REALUnlockString> REALUnlockString("REALUnlockString");

// Objects, classes and exceptions.
inline constinit HostFunctionSlot<functions::PluginRegisterClass> PluginRegisterClass(
    "PluginRegisterClass");
inline constinit HostFunctionSlot<functions::PluginNewInstance> PluginNewInstance(
    "PluginNewInstance");
inline constinit HostFunctionSlot<functions::REALLockObject> REALLockObject("REALLockObject");
inline constinit HostFunctionSlot<functions::REALUnlockObject> REALUnlockObject("REALUnlockObject");
inline constinit HostFunctionSlot<functions::pluginObjectType> pluginObjectType("pluginObjectType");
inline constinit LowBytePredicate<functions::RuntimeObjectIsa> RuntimeObjectIsa("RuntimeObjectIsa");
inline constinit HostFunctionSlot<functions::RuntimeRaiseException> RuntimeRaiseException(
    "RuntimeRaiseException");
inline constinit LowBytePredicate<functions::REALinRuntime> REALinRuntime("REALinRuntime");

// Properties of host objects.
inline constinit LowBytePredicate<functions::REALGetPropValueCurrency> REALGetPropValueCurrency(
    "REALGetPropValueCurrency", "REALGetPropValueInt64");
inline constinit WordPredicate<functions::REALGetPropValueDouble> REALGetPropValueDouble(
    "REALGetPropValueDouble");
inline constinit WordPredicate<functions::REALGetPropValueInt> REALGetPropValueInt(
    "REALGetPropValueInt");
inline constinit LowBytePredicate<functions::REALGetPropValueInt64> REALGetPropValueInt64(
    "REALGetPropValueInt64");
inline constinit LowBytePredicate<functions::REALGetPropValueInteger> REALGetPropValueInteger(
    "REALGetPropValueInteger", HOST_INTERFACE_32_BIT != 0 ? "REALGetPropValueInt" : nullptr);
inline constinit LowBytePredicate<functions::REALGetPropValueSingle> REALGetPropValueSingle(
    "REALGetPropValueSingle");
inline constinit WordPredicate<functions::REALGetPropValueString> REALGetPropValueString(
    "REALGetPropValueString");
inline constinit LowBytePredicate<functions::REALGetPropValueUInt32> REALGetPropValueUInt32(
    "REALGetPropValueUInt32");
inline constinit LowBytePredicate<functions::REALGetPropValueUInt64> REALGetPropValueUInt64(
    "REALGetPropValueUInt64");
inline constinit LowBytePredicate<functions::REALSetPropValueInteger> REALSetPropValueInteger(
    "REALSetPropValueInteger", HOST_INTERFACE_32_BIT != 0 ? "REALSetPropValueInt" : nullptr);
inline constinit LowBytePredicate<functions::REALSetPropValueString> REALSetPropValueString(
    "REALSetPropValueString");

// MemoryBlocks and Variants.
inline constinit HostFunctionSlot<functions::memoryBlockGetPtr> memoryBlockGetPtr(
    "memoryBlockGetPtr");
inline constinit HostFunctionSlot<functions::memoryBlockGetSize> memoryBlockGetSize(
    "memoryBlockGetSize");
inline constinit HostFunctionSlot<functions::newMemoryBlock> newMemoryBlock("newMemoryBlock");
inline constinit HostFunctionSlot<functions::Int32ToVariant> Int32ToVariant("Int32ToVariant");
inline constinit HostFunctionSlot<functions::Int64ToVariant> Int64ToVariant("Int64ToVariant");
inline constinit HostFunctionSlot<functions::UInt64ToVariant> UInt64ToVariant("UInt64ToVariant");
inline constinit HostFunctionSlot<functions::StringToVariant> StringToVariant("StringToVariant");
inline constinit GlobalMethodLoader REALLoadGlobalMethod("REALLoadGlobalMethod");

}  // namespace host
}  // namespace vqz
