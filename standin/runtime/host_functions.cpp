#include "standin/runtime/host_functions.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string>
#include <type_traits>
#include <utility>

#include "interface/host_interface.hpp"
#include "standin/runtime/call_record.hpp"
#include "standin/runtime/properties.hpp"
#include "standin/runtime/state.hpp"
#include "standin/runtime/variants.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin {
namespace {

using host_interface::BooleanWord;
using host_interface::ClassDefinition;
using host_interface::ClassReference;
using host_interface::StringData;
namespace functions = host_interface::functions;

Host::State& Current() {
    return Host::Current().state();
}

void Violation(const char* function, const std::string& what) {
    Current().violations.Add(std::string(function) + ": " + what);
}

/// A Boolean of which only the low byte counts; the rest of the word is whatever was there.
BooleanWord InLowByte(bool value) {
    return 0xA5A5A500U | static_cast<BooleanWord>(value);
}

/// A Boolean of which a 32-bit plug-in may read the whole word.
BooleanWord InWholeWord(bool value) {
    return HOST_INTERFACE_32_BIT != 0 ? static_cast<BooleanWord>(value) : InLowByte(value);
}

/// The name of a host function as a template argument.
template <std::size_t Size>
struct FunctionName {
    // NOLINTNEXTLINE(google-explicit-constructor): a literal stands where the argument is written.
    constexpr FunctionName(const char (&literal)[Size]) { std::ranges::copy(literal, text); }
    char text[Size]{};
};

std::string_view TextOrEmpty(const char* text) {
    return text == nullptr ? "" : text;
}

// An exception of the host's own must not end up in the plug-in: none of these lets one out.

// Version and registration ----------------------------------------------------------------------

double GetVersion() noexcept {
    return Current().options.version.value_or(0.0);
}

void RegisterVersion(std::int32_t version) noexcept {
    Current().pluginInterfaceVersion = version;
}

void RegisterClass(ClassDefinition* definition) noexcept {
    if (definition == nullptr) {
        Violation("PluginRegisterClass", "no record");
        return;
    }
    Host::State& state = Current();
    const ClassEntry* entry =
        state.classes.Register(definition, state.pluginInterfaceVersion, state.violations);
    CallRecord& record = CallRecord::OfProcess();
    if (record.IsKept() && entry != nullptr) {
        record.NoteClass(*entry);
    }
}

BooleanWord InRuntime() noexcept {
    return InLowByte(Current().options.builtApplication);
}

// Strings ---------------------------------------------------------------------------------------

String BuildStringAs(const char* bytes, std::int32_t length, HostTextEncoding encoding,
                     const char* user) {
    if (length < 0 || (bytes == nullptr && length > 0)) {
        Violation(user, length < 0 ? "the length is negative" : "no bytes");
        return nullptr;
    }
    if (length == 0) {
        return nullptr;
    }
    if (encoding == HostTextEncoding::Utf8 && IsWrongAbout("text-returned-as-utf8")) {
        encoding = HostTextEncoding::MacRoman;
    } else if (encoding == HostTextEncoding::Ascii && IsWrongAbout("text-returned-as-ascii")) {
        encoding = HostTextEncoding::Unknown;
    }
    return Current().strings.Make({bytes, static_cast<std::size_t>(length)}, encoding);
}

String BuildString(const char* bytes, std::int32_t length) noexcept {
    return BuildStringAs(bytes, length, HostTextEncoding::Unknown, "REALBuildString");
}

String BuildStringWithEncoding(const char* bytes, std::int32_t byteCount,
                               std::uint32_t encoding) noexcept {
    return BuildStringAs(bytes, byteCount, static_cast<HostTextEncoding>(encoding),
                         "REALBuildStringWithEncoding");
}

String AddString(String left, String right) noexcept {
    return Current().strings.Join(left, right, "RuntimeAddString");
}

String ConvertString(String text, std::uint32_t encoding) noexcept {
    return Current().strings.Convert(text, static_cast<HostTextEncoding>(encoding),
                                     "REALConvertString");
}

BooleanWord GetStringData(String text, std::uint32_t encoding, StringData* out) noexcept {
    return InLowByte(Current().strings.LendData(text, static_cast<HostTextEncoding>(encoding), out,
                                                "PluginGetStringData"));
}

void DisposeStringData(StringData* data) noexcept {
    Current().strings.ReturnData(data, "PluginDisposeStringData");
}

std::uint32_t GetStringEncoding(String text) noexcept {
    return static_cast<std::uint32_t>(
        Current().strings.EncodingForPlugin(text, "REALGetStringEncoding"));
}

void SetStringEncoding(String text, std::uint32_t encoding) noexcept {
    Current().strings.SetEncoding(text, static_cast<HostTextEncoding>(encoding),
                                  "REALSetStringEncoding");
}

void LockString(String text) noexcept {
    Current().strings.Lock(text, "REALLockString");
}
void UnlockString(String text) noexcept {
    Current().strings.Unlock(text, "REALUnlockString");
}

// Objects and classes ---------------------------------------------------------------------------

void LockObject(Object object) noexcept {
    Current().objects.Lock(object, "REALLockObject");
}
void UnlockObject(Object object) noexcept {
    Current().objects.Unlock(object, "REALUnlockObject");
}

ClassReference ObjectType(const char* className) noexcept {
    const ClassEntry* type = Current().classes.Find(TextOrEmpty(className));
    return type == nullptr ? nullptr : ClassTable::ReferenceOf(*type);
}

BooleanWord ObjectIsa(Object object, ClassReference classReference) noexcept {
    const char* user = "RuntimeObjectIsa";
    const ObjectEntry* entry = Current().objects.Find(object, user);
    const ClassEntry* type = Current().classes.FromReference(classReference);
    if (type == nullptr) {
        Violation(user, "the reference is of no class of this host");
    }
    return InLowByte(entry != nullptr && type != nullptr && entry->type->IsA(*type));
}

/// The constructor without parameters that a class registered with a routine.
Routine EmptyConstructor(const ClassEntry& type) {
    const auto found = std::ranges::find_if(type.methods, [](const MethodInfo& method) {
        return NormalDeclaration(method.declaration) == "constructor";
    });
    return found == type.methods.end() ? nullptr : found->function;
}

Object NewInstance(const char* className) noexcept {
    Host::State& state = Current();
    const ClassEntry* type = state.classes.Find(TextOrEmpty(className));
    if (type == nullptr) {
        return nullptr;
    }
    if (type->payload == Payload::Exception && IsWrongAbout("exception-class")) {
        type = &state.Class("RuntimeException");
    }
    Object object = state.objects.Make(*type);
    if (object != nullptr && state.options.newInstanceRunsConstructor) {
        if (const Routine constructor = EmptyConstructor(*type)) {
            const std::array words = {reinterpret_cast<std::uintptr_t>(object)};
            Host::Current().Call(constructor, words, ReturnKind::None);
        }
    }
    return object;
}

/// The host keeps the first exception; one that is raised while it is on its way is dropped.
void RaiseException(Object exception) noexcept {
    const char* user = "RuntimeRaiseException";
    Host::State& state = Current();
    ++state.raises;
    const ObjectEntry* entry = state.objects.Find(exception, user);
    if (entry == nullptr || entry->type->payload != Payload::Exception) {
        Violation(user, entry == nullptr ? "no exception to raise"
                                         : "an object of the class \"" + entry->type->name +
                                               "\" is no exception");
        return;
    }
    if (CallRecord& record = CallRecord::OfProcess(); record.IsKept()) {
        record.NoteRaise(entry->type->name, Host::Current().Message(exception));
    }
    if (IsWrongAbout("exception-raised")) {
        return;
    }
    if (state.raised == nullptr) {
        state.objects.Lock(exception, user);
        if (IsWrongAbout("exception-reference")) {
            state.objects.Lock(exception, user);
        }
        state.raised = exception;
    }
}

void* LoadGlobalMethod(const char* /*module*/, const char* declaration) noexcept {
    return FindGlobalMethod(TextOrEmpty(declaration));
}

// Memory blocks ---------------------------------------------------------------------------------

void* BlockPointer(Object block) noexcept {
    const auto* payload = Current().objects.PayloadOf<BlockPayload>(block, "memoryBlockGetPtr");
    return payload == nullptr || !payload->hasData ? nullptr : payload->bytes.data();
}

Integer BlockSize(Object block) noexcept {
    const auto* payload = Current().objects.PayloadOf<BlockPayload>(block, "memoryBlockGetSize");
    const Integer difference = IsWrongAbout("block-passed") ? 1 : 0;
    return payload == nullptr ? Integer{0}
                              : static_cast<Integer>(payload->bytes.size()) - difference;
}

Object NewBlock(std::int32_t byteCount) noexcept {
    byteCount += IsWrongAbout("block-returned") ? 1 : 0;
    // More than this host has, whatever the machine could give.
    constexpr std::int32_t MostBytes = 256 << 20;
    if (byteCount < 0 || byteCount > MostBytes) {
        return nullptr;
    }
    Host::State& state = Current();
    try {
        return state.objects.Make(state.Class("MemoryBlock"),
                                  BlockPayload{VisibleMemory(static_cast<std::size_t>(byteCount)),
                                               !state.options.blocksWithoutData});
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

// Variants --------------------------------------------------------------------------------------

/// The type of a Variant that is made, or Single if the host is wrong about that.
std::int32_t TypeToMake(host_interface::VariantTypeCode code, Fact fact) {
    return static_cast<std::int32_t>(IsWrongAbout(fact) ? host_interface::VariantTypeCode::Single
                                                        : code);
}

Object BoxInt32(std::int32_t value) noexcept {
    return Host::Current().MakeVariant(
        TypeToMake(host_interface::VariantTypeCode::Int32, "variant-from-int32"),
        std::int64_t{value});
}

Object BoxInt64(std::int64_t value) noexcept {
    return Host::Current().MakeVariant(
        TypeToMake(host_interface::VariantTypeCode::Int64, "variant-from-int64"), value);
}

Object BoxUInt64(std::uint64_t value) noexcept {
    return Host::Current().MakeVariant(
        static_cast<std::int32_t>(host_interface::VariantTypeCode::Int64), value);
}

Object BoxString(String value) noexcept {
    return Host::Current().MakeVariant(
        TypeToMake(host_interface::VariantTypeCode::String, "variant-from-string"), value);
}

double UnboxDouble(Object variant) noexcept {
    return VariantDouble(Current(), variant, "VariantToDouble");
}

float UnboxSingle(Object variant) noexcept {
    return static_cast<float>(VariantDouble(Current(), variant, "VariantToSingle"));
}

std::int32_t UnboxInt32(Object variant) noexcept {
    return static_cast<std::int32_t>(VariantInt64(Current(), variant, "VariantToInt32"));
}

std::int64_t UnboxInt64(Object variant) noexcept {
    return VariantInt64(Current(), variant, "VariantToInt64");
}

std::uint32_t UnboxUInt32(Object variant) noexcept {
    return static_cast<std::uint32_t>(VariantUInt64(Current(), variant, "VariantToUInt32"));
}

std::uint64_t UnboxUInt64(Object variant) noexcept {
    return VariantUInt64(Current(), variant, "VariantToUInt64");
}

String UnboxString(Object variant) noexcept {
    return VariantText(Current(), variant, "VariantToString");
}

constexpr FactOf<host_interface::VariantTypeCode> VariantFacts[] = {
    {host_interface::VariantTypeCode::Nil, "variant-of-nil"},
    {host_interface::VariantTypeCode::Int32, "variant-of-int32"},
    {host_interface::VariantTypeCode::Int64, "variant-of-int64"},
    {host_interface::VariantTypeCode::Single, "variant-of-single"},
    {host_interface::VariantTypeCode::Double, "variant-of-double"},
    {host_interface::VariantTypeCode::Currency, "variant-of-currency"},
    {host_interface::VariantTypeCode::Date, "variant-of-date"},
    {host_interface::VariantTypeCode::DateTime, "variant-of-datetime"},
    {host_interface::VariantTypeCode::String, "variant-of-string"},
    {host_interface::VariantTypeCode::Object, "variant-of-number"},
    {host_interface::VariantTypeCode::Boolean, "variant-of-boolean"},
    {host_interface::VariantTypeCode::Color, "variant-of-color"},
};

Integer TypeOf(Object variant) noexcept {
    using host_interface::VariantTypeCode;
    const auto type = VariantTypeOf(Current(), variant, "VarType");
    const bool isWrong =
        IsWrongAbout<VariantTypeCode>(VariantFacts, static_cast<VariantTypeCode>(type));
    return isWrong ? static_cast<Integer>(VariantTypeCode::Window) : type;
}

// Properties ------------------------------------------------------------------------------------

/// "REALGetPropValue…" for properties of the type T; a Boolean result in the form of `Answer`.
template <FunctionName Name, typename T, BooleanWord (*Answer)(bool)>
BooleanWord GetProperty(Object object, const char* name, T* out) noexcept {
    Host& host = Host::Current();
    const auto value = ReadProperty(host, object, TextOrEmpty(name), Name.text);
    if (!value) {
        return Answer(false);
    }
    const T* typed = std::get_if<T>(&*value);
    if (typed == nullptr || out == nullptr) {
        if (const String* text = std::get_if<String>(&*value)) {
            host.state().strings.Unlock(*text, Name.text);
        }
        return Answer(false);
    }
    *out = *typed;
    return Answer(true);
}

/// "REALSetPropValue…" for properties of the type T.
template <FunctionName Name, typename T>
BooleanWord SetProperty(Object object, const char* name, T value) noexcept {
    const std::string_view property = TextOrEmpty(name);
    if constexpr (std::is_integral_v<T>) {
        value += property == "ErrorNumber" && IsWrongAbout("exception-number") ? 1 : 0;
    }
    return InLowByte(
        !(property == "Message" && IsWrongAbout("exception-message")) &&
        WriteProperty(Host::Current(), object, property, PropertyValue(value), Name.text));
}

// The table -------------------------------------------------------------------------------------

struct HostFunction {
    std::string_view name;
    void* address;
};

/// A row of the table. Both types must be the same: the one that the interface states, and the
/// one that the function has.
template <typename Stated>
HostFunction Offer(std::string_view name, Stated* function) {
    return {name, reinterpret_cast<void*>(function)};
}

/// A reader and a writer carry their name, so the row is made from it.
template <typename Stated, FunctionName Name, typename T, BooleanWord (*Answer)(bool)>
HostFunction OfferReader() {
    return Offer<Stated>(Name.text, GetProperty<Name, T, Answer>);
}

template <typename Stated, FunctionName Name, typename T>
HostFunction OfferWriter() {
    return Offer<Stated>(Name.text, SetProperty<Name, T>);
}

const auto& HostFunctions() {
    static const std::array table = {
        Offer<functions::REALGetRBVersion>(VersionFunctionName, GetVersion),
        Offer<functions::RegisterPluginVersion>("RegisterPluginVersion", RegisterVersion),
        Offer<functions::PluginRegisterClass>("PluginRegisterClass", RegisterClass),
        Offer<functions::REALinRuntime>("REALinRuntime", InRuntime),

        Offer<functions::REALBuildString>("REALBuildString", BuildString),
        Offer<functions::REALBuildStringWithEncoding>("REALBuildStringWithEncoding",
                                                      BuildStringWithEncoding),
        Offer<functions::RuntimeAddString>("RuntimeAddString", AddString),
        Offer<functions::REALConvertString>("REALConvertString", ConvertString),
        Offer<functions::PluginGetStringData>("PluginGetStringData", GetStringData),
        Offer<functions::PluginDisposeStringData>("PluginDisposeStringData", DisposeStringData),
        Offer<functions::REALGetStringEncoding>("REALGetStringEncoding", GetStringEncoding),
        Offer<functions::REALSetStringEncoding>("REALSetStringEncoding", SetStringEncoding),
        Offer<functions::REALLockString>("REALLockString", LockString),
        Offer<functions::REALUnlockString>("REALUnlockString", UnlockString),

        Offer<functions::REALLockObject>("REALLockObject", LockObject),
        Offer<functions::REALUnlockObject>("REALUnlockObject", UnlockObject),
        Offer<functions::pluginObjectType>("pluginObjectType", ObjectType),
        Offer<functions::RuntimeObjectIsa>("RuntimeObjectIsa", ObjectIsa),
        Offer<functions::PluginNewInstance>("PluginNewInstance", NewInstance),
        Offer<functions::RuntimeRaiseException>("RuntimeRaiseException", RaiseException),
        Offer<functions::REALLoadGlobalMethod>("REALLoadGlobalMethod", LoadGlobalMethod),

        Offer<functions::memoryBlockGetPtr>("memoryBlockGetPtr", BlockPointer),
        Offer<functions::memoryBlockGetSize>("memoryBlockGetSize", BlockSize),
        Offer<functions::newMemoryBlock>("newMemoryBlock", NewBlock),

        Offer<functions::Int32ToVariant>("Int32ToVariant", BoxInt32),
        Offer<functions::Int64ToVariant>("Int64ToVariant", BoxInt64),
        Offer<functions::UInt64ToVariant>("UInt64ToVariant", BoxUInt64),
        Offer<functions::StringToVariant>("StringToVariant", BoxString),
        Offer<functions::VariantToDouble>("VariantToDouble", UnboxDouble),
        Offer<functions::VariantToSingle>("VariantToSingle", UnboxSingle),
        Offer<functions::VariantToInt32>("VariantToInt32", UnboxInt32),
        Offer<functions::VariantToInt64>("VariantToInt64", UnboxInt64),
        Offer<functions::VariantToUInt32>("VariantToUInt32", UnboxUInt32),
        Offer<functions::VariantToUInt64>("VariantToUInt64", UnboxUInt64),
        Offer<functions::VariantToString>("VariantToString", UnboxString),

        OfferReader<functions::REALGetPropValueCurrency, "REALGetPropValueCurrency",
                    host_interface::Currency, InLowByte>(),
        OfferReader<functions::REALGetPropValueDouble, "REALGetPropValueDouble", double,
                    InWholeWord>(),
        OfferReader<functions::REALGetPropValueInt, "REALGetPropValueInt", std::int32_t,
                    InWholeWord>(),
        OfferReader<functions::REALGetPropValueInt64, "REALGetPropValueInt64", std::int64_t,
                    InLowByte>(),
        OfferReader<functions::REALGetPropValueInteger, "REALGetPropValueInteger", Integer,
                    InLowByte>(),
        OfferReader<functions::REALGetPropValueSingle, "REALGetPropValueSingle", float,
                    InLowByte>(),
        OfferReader<functions::REALGetPropValueString, "REALGetPropValueString", String,
                    InWholeWord>(),
        OfferReader<functions::REALGetPropValueUInt32, "REALGetPropValueUInt32", std::uint32_t,
                    InLowByte>(),
        OfferReader<functions::REALGetPropValueUInt64, "REALGetPropValueUInt64", std::uint64_t,
                    InLowByte>(),
        OfferWriter<functions::REALSetPropValueInt, "REALSetPropValueInt", std::int32_t>(),
        OfferWriter<functions::REALSetPropValueInteger, "REALSetPropValueInteger", Integer>(),
        OfferWriter<functions::REALSetPropValueString, "REALSetPropValueString", String>(),
    };
    return table;
}

}  // namespace

void* FindHostFunction(std::string_view name) {
    const auto& table = HostFunctions();
    const auto* found = std::ranges::find(table, name, &HostFunction::name);
    return found == table.end() ? nullptr : found->address;
}

void* FindGlobalMethod(std::string_view declaration) {
    static const std::string VarType = NormalDeclaration("VarType(value As Variant) As Integer");
    if (NormalDeclaration(declaration) != VarType || Current().LacksGlobalMethod(declaration)) {
        return nullptr;
    }
    return Offer<functions::VarType>("VarType", TypeOf).address;
}

}  // namespace standin
