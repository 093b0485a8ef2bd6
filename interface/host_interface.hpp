// The binary interface between a plug-in library and the host that loads it: handles, records,
// codes and the C types of the host functions. It is the one header that the plug-in and the
// stand-in host share; everything here is a fact of the host, and nothing here is code.
//
// Calling convention everywhere: C linkage, cdecl, no structures returned by value.
#pragma once

#include <cstddef>
#include <cstdint>

namespace host_interface {

/// Text-encoding codes: the base encoding in the low 16 bits, the format in the top 6.
enum class HostTextEncoding : std::uint32_t {
    MacRoman = 0x00000000,
    Utf16 = 0x00000100,
    Latin1 = 0x00000201,
    WindowsAnsi = 0x00000500,
    Ascii = 0x00000600,
    Utf8 = 0x08000100,
    Utf32 = 0x0C000100,
    Utf16BigEndian = 0x10000100,
    Utf16LittleEndian = 0x14000100,
    Utf32BigEndian = 0x18000100,
    Utf32LittleEndian = 0x1C000100,
    Unknown = 0x0000FFFF,
};

/// What a Variant reports as its type.
enum class VariantTypeCode : std::int32_t {
    Nil = 0,
    Int32 = 2,
    Int64 = 3,
    Single = 4,
    Double = 5,
    Currency = 6,
    Date = 7,
    String = 8,
    Object = 9,
    Boolean = 11,
    Color = 16,
    CString = 18,
    WString = 19,
    PString = 20,
    CFString = 21,
    Window = 22,
    OSType = 23,
    Ptr = 26,
    Structure = 36,
    Text = 37,
    DateTime = 38,
    ArrayBit = 4096,
};

/// A routine whose real type depends on the declaration it stands beside.
using Routine = void (*)();

/// The part of a host string that a plug-in may read without a call. The text begins one byte
/// after `storage`, holds `length` bytes, and is not promised to be followed by a NUL.
struct StringRecord {
    void* hostWord0;
    const char* storage;
    void* hostWord2;
    std::int32_t length;
};

/// A handle of a reference-counted host string; null is the legal empty string.
using String = StringRecord*;

struct ObjectRecord;
/// A handle of a reference-counted host object (Variants and MemoryBlocks included); null is Nil.
using Object = ObjectRecord*;

struct ClassReferenceRecord;
/// The host's reference to a class, as "pluginObjectType" returns it. It is not counted.
using ClassReference = ClassReferenceRecord*;

/// A Boolean in a 4-byte slot of which only the low byte counts when a plug-in reads it.
using BooleanWord = std::uint32_t;

/// A signed amount times 10,000.
using Currency = std::int64_t;

/// The bytes of a host string in a requested encoding, filled by "PluginGetStringData", given back
/// exactly once with "PluginDisposeStringData" and never copied.
struct StringData {
    const char* data;
    std::size_t length;
    std::uint32_t encoding;
    void* hostPointer;
    std::uint32_t hostWord;
};

/// Flag bits of classes, methods and properties.
namespace flags {
inline constexpr std::uint32_t RunTimeOnly = 0x2;
inline constexpr std::uint32_t AllTargets = 0x4;
inline constexpr std::uint32_t Console = 0x8;
inline constexpr std::uint32_t PublicScope = 0x20;
inline constexpr std::uint32_t Web = 0x100;
inline constexpr std::uint32_t Desktop = 0x200;
inline constexpr std::uint32_t Ios = 0x400;
}  // namespace flags

// ---------------------------------------------------------------------------------------------
// Records that describe a class. The long forms are read by hosts of interface version 10 and
// later, the short ones (suffix Version9) by older hosts.

struct AttributeDefinition {
    const char* name;
    const char* value;
};

struct PropertyDefinition {
    const char* group;
    const char* name;
    const char* type;
    std::uint32_t flags;
    Routine getter;
    Routine setter;
    std::int32_t parameter;
    std::uint32_t reserved[3];
    std::uint32_t attributeCount;
    const AttributeDefinition* attributes;
};

struct PropertyDefinitionVersion9 {
    const char* group;
    const char* name;
    const char* type;
    std::uint32_t flags;
    Routine getter;
    Routine setter;
    std::int32_t parameter;
    std::uint32_t reserved[3];
};

struct MethodDefinition {
    Routine function;
    Routine setterFunction;
    const char* declaration;
    std::uint32_t flags;
    std::uint32_t attributeCount;
    const AttributeDefinition* attributes;
};

struct MethodDefinitionVersion9 {
    Routine function;
    Routine setterFunction;
    const char* declaration;
    std::uint32_t flags;
};

/// The host writes the second word: it identifies the event once it is registered.
struct EventDefinition {
    const char* declaration;
    const void* reference;
    std::uint32_t attributeCount;
    const AttributeDefinition* attributes;
};

struct EventDefinitionVersion9 {
    const char* declaration;
    const void* reference;
};

struct ConstantDefinition {
    const char* declaration;
    const void* value;
    std::uint32_t flags;
    std::uint32_t attributeCount;
    const AttributeDefinition* attributes;
};

struct ConstantDefinitionVersion9 {
    const char* declaration;
    const void* value;
    std::uint32_t flags;
};

/// One class as handed to "PluginRegisterClass". On interface version 9 the tables hold short
/// entries; the pointers keep their types here and are read as the short form by such a host.
/// The host writes `instanceDataOffset` at registration: the distance in bytes from an object's
/// address to the class's instance data.
struct ClassDefinition {
    std::uint32_t version;
    const char* name;
    const char* superName;
    std::uint32_t dataSize;
    std::uint32_t instanceDataOffset;
    Routine constructor;
    Routine destructor;
    PropertyDefinition* properties;
    std::uint32_t propertyCount;
    MethodDefinition* methods;
    std::uint32_t methodCount;
    EventDefinition* events;
    std::uint32_t eventCount;
    void* reservedTable1;
    std::uint32_t reservedCount1;
    void* reservedWord;
    void* reservedTable2;
    std::uint32_t reservedCount2;
    ConstantDefinition* constants;
    std::uint32_t constantCount;
    std::uint32_t flags;
    PropertyDefinition* sharedProperties;
    std::uint32_t sharedPropertyCount;
    MethodDefinition* sharedMethods;
    std::uint32_t sharedMethodCount;
};

// ---------------------------------------------------------------------------------------------
// C types of the host functions, by the name under which the host hands them out. What such a
// function returns carries one reference that the caller releases; the caller keeps the references
// of the arguments. Booleans are returned as words: whether the whole word or only its low byte
// counts differs from function to function, and the caller has to know it.

/// The lookup that the host passes to the library's entry: a host function's address, or null.
using Resolver = void* (*)(const char* name);

namespace functions {
using REALGetRBVersion = double();
using RegisterPluginVersion = void(std::int32_t version);
using PluginRegisterClass = void(ClassDefinition* definition);

using REALBuildString = String(const char* bytes, std::int32_t length);
using REALBuildStringWithEncoding = String(const char* bytes, std::int32_t byteCount,
                                           std::uint32_t encoding);
using RuntimeAddString = String(String left, String right);
using REALConvertString = String(String text, std::uint32_t encoding);
using PluginGetStringData = BooleanWord(String text, std::uint32_t encoding, StringData* out);
using PluginDisposeStringData = void(StringData* data);
using REALGetStringEncoding = std::uint32_t(String text);
using REALSetStringEncoding = void(String text, std::uint32_t encoding);
using REALLockString = void(String text);
using REALUnlockString = void(String text);

using REALLockObject = void(Object object);
using REALUnlockObject = void(Object object);
using pluginObjectType = ClassReference(const char* className);
using RuntimeObjectIsa = BooleanWord(Object object, ClassReference classReference);
using PluginNewInstance = Object(const char* className);
using RuntimeRaiseException = void(Object exception);
using REALLoadGlobalMethod = void*(const char* module, const char* declaration);
using REALinRuntime = BooleanWord();

using memoryBlockGetPtr = void*(Object block);
using memoryBlockGetSize = std::int32_t(Object block);
using newMemoryBlock = Object(std::int32_t byteCount);

using Int32ToVariant = Object(std::int32_t value);
using Int64ToVariant = Object(std::int64_t value);
using UInt64ToVariant = Object(std::uint64_t value);
using StringToVariant = Object(String value);
using VariantToDouble = double(Object variant);
using VariantToSingle = float(Object variant);
using VariantToInt32 = std::int32_t(Object variant);
using VariantToInt64 = std::int64_t(Object variant);
using VariantToUInt32 = std::uint32_t(Object variant);
using VariantToUInt64 = std::uint64_t(Object variant);
using VariantToString = String(Object variant);
/// Loaded with the declaration "VarType(value As Variant) As Integer".
using VarType = std::int32_t(Object variant);

template <typename T>
using PropertyReader = BooleanWord(Object object, const char* name, T* out);
template <typename T>
using PropertyWriter = BooleanWord(Object object, const char* name, T value);

using REALGetPropValueCurrency = PropertyReader<Currency>;
using REALGetPropValueDouble = PropertyReader<double>;
using REALGetPropValueInt = PropertyReader<std::int32_t>;
using REALGetPropValueInt64 = PropertyReader<std::int64_t>;
using REALGetPropValueInteger = PropertyReader<std::int32_t>;
using REALGetPropValueSingle = PropertyReader<float>;
using REALGetPropValueString = PropertyReader<String>;
using REALGetPropValueUInt32 = PropertyReader<std::uint32_t>;
using REALGetPropValueUInt64 = PropertyReader<std::uint64_t>;
using REALSetPropValueInt = PropertyWriter<std::int32_t>;
using REALSetPropValueInteger = PropertyWriter<std::int32_t>;
using REALSetPropValueString = PropertyWriter<String>;
}  // namespace functions

// ---------------------------------------------------------------------------------------------
// The layouts of a 32-bit host, with literal offsets. A 64-bit host has the same fields in the same
// order with wider pointers.
namespace layout_lock {
inline constexpr bool Is32Bit = sizeof(void*) == 4;
template <typename Record>
consteval bool Words(std::size_t count) {
    return !Is32Bit || sizeof(Record) == 4 * count;
}
consteval bool At(std::size_t offset, std::size_t expected) {
    return !Is32Bit || offset == expected;
}

static_assert(Words<AttributeDefinition>(2));
static_assert(Words<PropertyDefinition>(12) && Words<PropertyDefinitionVersion9>(10));
static_assert(Words<MethodDefinition>(6) && Words<MethodDefinitionVersion9>(4));
static_assert(Words<EventDefinition>(4) && Words<EventDefinitionVersion9>(2));
static_assert(Words<ConstantDefinition>(5) && Words<ConstantDefinitionVersion9>(3));
static_assert(Words<ClassDefinition>(25));
static_assert(Words<StringData>(5));
static_assert(Words<StringRecord>(4));

static_assert(At(offsetof(StringRecord, storage), 4));
static_assert(At(offsetof(StringRecord, length), 12));
static_assert(At(offsetof(StringData, data), 0));
static_assert(At(offsetof(StringData, length), 4));
static_assert(At(offsetof(StringData, encoding), 8));
static_assert(At(offsetof(StringData, hostPointer), 12));
static_assert(At(offsetof(StringData, hostWord), 16));

static_assert(At(offsetof(PropertyDefinition, group), 0));
static_assert(At(offsetof(PropertyDefinition, name), 4));
static_assert(At(offsetof(PropertyDefinition, type), 8));
static_assert(At(offsetof(PropertyDefinition, flags), 12));
static_assert(At(offsetof(PropertyDefinition, getter), 16));
static_assert(At(offsetof(PropertyDefinition, setter), 20));
static_assert(At(offsetof(PropertyDefinition, parameter), 24));
static_assert(At(offsetof(PropertyDefinition, reserved), 28));
static_assert(At(offsetof(PropertyDefinition, attributeCount), 40));
static_assert(At(offsetof(PropertyDefinition, attributes), 44));
static_assert(At(offsetof(PropertyDefinitionVersion9, reserved), 28));

static_assert(At(offsetof(MethodDefinition, function), 0));
static_assert(At(offsetof(MethodDefinition, setterFunction), 4));
static_assert(At(offsetof(MethodDefinition, declaration), 8));
static_assert(At(offsetof(MethodDefinition, flags), 12));
static_assert(At(offsetof(MethodDefinition, attributeCount), 16));
static_assert(At(offsetof(MethodDefinition, attributes), 20));
static_assert(At(offsetof(MethodDefinitionVersion9, flags), 12));

static_assert(At(offsetof(EventDefinition, reference), 4));
static_assert(At(offsetof(EventDefinition, attributes), 12));
static_assert(At(offsetof(ConstantDefinition, flags), 8));
static_assert(At(offsetof(ConstantDefinition, attributes), 16));

static_assert(At(offsetof(ClassDefinition, version), 0));
static_assert(At(offsetof(ClassDefinition, name), 4));
static_assert(At(offsetof(ClassDefinition, superName), 8));
static_assert(At(offsetof(ClassDefinition, dataSize), 12));
static_assert(At(offsetof(ClassDefinition, instanceDataOffset), 16));
static_assert(At(offsetof(ClassDefinition, constructor), 20));
static_assert(At(offsetof(ClassDefinition, destructor), 24));
static_assert(At(offsetof(ClassDefinition, properties), 28));
static_assert(At(offsetof(ClassDefinition, propertyCount), 32));
static_assert(At(offsetof(ClassDefinition, methods), 36));
static_assert(At(offsetof(ClassDefinition, methodCount), 40));
static_assert(At(offsetof(ClassDefinition, events), 44));
static_assert(At(offsetof(ClassDefinition, eventCount), 48));
static_assert(At(offsetof(ClassDefinition, reservedTable1), 52));
static_assert(At(offsetof(ClassDefinition, reservedCount1), 56));
static_assert(At(offsetof(ClassDefinition, reservedWord), 60));
static_assert(At(offsetof(ClassDefinition, reservedTable2), 64));
static_assert(At(offsetof(ClassDefinition, reservedCount2), 68));
static_assert(At(offsetof(ClassDefinition, constants), 72));
static_assert(At(offsetof(ClassDefinition, constantCount), 76));
static_assert(At(offsetof(ClassDefinition, flags), 80));
static_assert(At(offsetof(ClassDefinition, sharedProperties), 84));
static_assert(At(offsetof(ClassDefinition, sharedPropertyCount), 88));
static_assert(At(offsetof(ClassDefinition, sharedMethods), 92));
static_assert(At(offsetof(ClassDefinition, sharedMethodCount), 96));
}  // namespace layout_lock

}  // namespace host_interface
