// The binary interface between a plug-in library and the host that loads it: handles, records,
// codes and the C types of the host functions. It is the one header that the plug-in and the
// stand-in host share; everything here is a fact of the host, and nothing here is code.
//
// Calling convention everywhere: C linkage, no structures returned by value; cdecl on 32-bit x86,
// the platform's own C convention on 64-bit processors.
//
// The width of a pointer decides the width of Integer, of counts and sizes, and the layout of every
// record. 64-bit hosts are younger than interface version 9 and keep their strings to themselves,
// so the short records and the readable string record exist at 32 bits only.
#pragma once

#include <cstddef>
#include <cstdint>

/// Whether the host is a 32-bit program.
#if UINTPTR_MAX == UINT32_MAX
#define HOST_INTERFACE_32_BIT 1
#else
#define HOST_INTERFACE_32_BIT 0
#endif

namespace host_interface {

/// What declarations call Integer: as wide as a pointer.
using Integer = std::intptr_t;
/// What declarations call UInteger.
using UInteger = std::uintptr_t;

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

#if HOST_INTERFACE_32_BIT
/// The part of a host string that a plug-in may read without a call. The text begins one byte
/// after `storage`, holds `length` bytes, and is not promised to be followed by a NUL.
struct StringRecord {
    void* hostWord0;
    const char* storage;
    void* hostWord2;
    std::int32_t length;
};
#else
struct StringRecord;
#endif

/// A handle of a reference-counted host string; null is the legal empty string. At 64 bits it is
/// opaque: the bytes come from "PluginGetStringData".
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
// later, the short ones (suffix Version9) by older hosts, which are 32-bit programs.

struct AttributeDefinition {
    const char* name;
    const char* value;
};

/// Words of a property's record that are the host's own.
struct PropertyHostWords {
    void* pointer;
    std::size_t count;
    void* secondPointer;
};

struct PropertyDefinition {
    const char* group;
    const char* name;
    const char* type;
    std::uint32_t flags;
    Routine getter;
    Routine setter;
    std::int32_t parameter;
    PropertyHostWords reserved;
    std::size_t attributeCount;
    const AttributeDefinition* attributes;
};

#if HOST_INTERFACE_32_BIT
struct PropertyDefinitionVersion9 {
    const char* group;
    const char* name;
    const char* type;
    std::uint32_t flags;
    Routine getter;
    Routine setter;
    std::int32_t parameter;
    PropertyHostWords reserved;
};
#endif

struct MethodDefinition {
    Routine function;
    Routine setterFunction;
    const char* declaration;
    std::uint32_t flags;
    std::size_t attributeCount;
    const AttributeDefinition* attributes;
};

#if HOST_INTERFACE_32_BIT
struct MethodDefinitionVersion9 {
    Routine function;
    Routine setterFunction;
    const char* declaration;
    std::uint32_t flags;
};
#endif

/// The host writes the second word: it identifies the event once it is registered.
struct EventDefinition {
    const char* declaration;
    const void* reference;
    std::size_t attributeCount;
    const AttributeDefinition* attributes;
};

#if HOST_INTERFACE_32_BIT
struct EventDefinitionVersion9 {
    const char* declaration;
    const void* reference;
};
#endif

struct ConstantDefinition {
    const char* declaration;
    const void* value;
    std::uint32_t flags;
    std::size_t attributeCount;
    const AttributeDefinition* attributes;
};

#if HOST_INTERFACE_32_BIT
struct ConstantDefinitionVersion9 {
    const char* declaration;
    const void* value;
    std::uint32_t flags;
};
#endif

/// One class as handed to "PluginRegisterClass". On interface version 9 the tables hold short
/// entries; the pointers keep their types here and are read as the short form by such a host.
/// The host writes `instanceDataOffset` at registration: the distance in bytes from an object's
/// address to the class's instance data.
struct ClassDefinition {
    std::uint32_t version;
    const char* name;
    const char* superName;
    std::size_t dataSize;
    UInteger instanceDataOffset;
    Routine constructor;
    Routine destructor;
    PropertyDefinition* properties;
    std::size_t propertyCount;
    MethodDefinition* methods;
    std::size_t methodCount;
    EventDefinition* events;
    std::size_t eventCount;
    void* reservedTable1;
    std::size_t reservedCount1;
    void* reservedWord;
    void* reservedTable2;
    std::size_t reservedCount2;
    ConstantDefinition* constants;
    std::size_t constantCount;
    std::uint32_t flags;
    PropertyDefinition* sharedProperties;
    std::size_t sharedPropertyCount;
    MethodDefinition* sharedMethods;
    std::size_t sharedMethodCount;
};

// ---------------------------------------------------------------------------------------------
// C types of the host functions, by the name under which the host hands them out. What such a
// function returns carries one reference that the caller releases; what it is given does not
// change hands. Booleans come back as words: at 32 bits, whether the whole word or only its low
// byte counts is a fact of each function that the caller has to know; at 64 bits it is the low
// byte.

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
using memoryBlockGetSize = Integer(Object block);
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
using VarType = Integer(Object variant);

template <typename T>
using PropertyReader = BooleanWord(Object object, const char* name, T* out);
template <typename T>
using PropertyWriter = BooleanWord(Object object, const char* name, T value);

using REALGetPropValueCurrency = PropertyReader<Currency>;
using REALGetPropValueDouble = PropertyReader<double>;
using REALGetPropValueInt = PropertyReader<std::int32_t>;
using REALGetPropValueInt64 = PropertyReader<std::int64_t>;
using REALGetPropValueInteger = PropertyReader<Integer>;
using REALGetPropValueSingle = PropertyReader<float>;
using REALGetPropValueString = PropertyReader<String>;
using REALGetPropValueUInt32 = PropertyReader<std::uint32_t>;
using REALGetPropValueUInt64 = PropertyReader<std::uint64_t>;
using REALSetPropValueInt = PropertyWriter<std::int32_t>;
using REALSetPropValueInteger = PropertyWriter<Integer>;
using REALSetPropValueString = PropertyWriter<String>;
}  // namespace functions

// ---------------------------------------------------------------------------------------------
// The layouts, with the offset of every field at 32 and at 64 bits.
namespace layout_lock {
template <typename Record>
consteval bool Size(std::size_t narrow, std::size_t wide) {
    return sizeof(Record) == (HOST_INTERFACE_32_BIT != 0 ? narrow : wide);
}
consteval bool At(std::size_t offset, std::size_t narrow, std::size_t wide) {
    return offset == (HOST_INTERFACE_32_BIT != 0 ? narrow : wide);
}

static_assert(Size<AttributeDefinition>(8, 16));
static_assert(Size<PropertyDefinition>(48, 96));
static_assert(Size<MethodDefinition>(24, 48));
static_assert(Size<EventDefinition>(16, 32));
static_assert(Size<ConstantDefinition>(20, 40));
static_assert(Size<ClassDefinition>(100, 200));
static_assert(Size<StringData>(20, 40));

static_assert(At(offsetof(AttributeDefinition, name), 0, 0));
static_assert(At(offsetof(AttributeDefinition, value), 4, 8));

static_assert(At(offsetof(PropertyDefinition, group), 0, 0));
static_assert(At(offsetof(PropertyDefinition, name), 4, 8));
static_assert(At(offsetof(PropertyDefinition, type), 8, 16));
static_assert(At(offsetof(PropertyDefinition, flags), 12, 24));
static_assert(At(offsetof(PropertyDefinition, getter), 16, 32));
static_assert(At(offsetof(PropertyDefinition, setter), 20, 40));
static_assert(At(offsetof(PropertyDefinition, parameter), 24, 48));
static_assert(At(offsetof(PropertyDefinition, reserved.pointer), 28, 56));
static_assert(At(offsetof(PropertyDefinition, reserved.count), 32, 64));
static_assert(At(offsetof(PropertyDefinition, reserved.secondPointer), 36, 72));
static_assert(At(offsetof(PropertyDefinition, attributeCount), 40, 80));
static_assert(At(offsetof(PropertyDefinition, attributes), 44, 88));

static_assert(At(offsetof(MethodDefinition, function), 0, 0));
static_assert(At(offsetof(MethodDefinition, setterFunction), 4, 8));
static_assert(At(offsetof(MethodDefinition, declaration), 8, 16));
static_assert(At(offsetof(MethodDefinition, flags), 12, 24));
static_assert(At(offsetof(MethodDefinition, attributeCount), 16, 32));
static_assert(At(offsetof(MethodDefinition, attributes), 20, 40));

static_assert(At(offsetof(EventDefinition, declaration), 0, 0));
static_assert(At(offsetof(EventDefinition, reference), 4, 8));
static_assert(At(offsetof(EventDefinition, attributeCount), 8, 16));
static_assert(At(offsetof(EventDefinition, attributes), 12, 24));

static_assert(At(offsetof(ConstantDefinition, declaration), 0, 0));
static_assert(At(offsetof(ConstantDefinition, value), 4, 8));
static_assert(At(offsetof(ConstantDefinition, flags), 8, 16));
static_assert(At(offsetof(ConstantDefinition, attributeCount), 12, 24));
static_assert(At(offsetof(ConstantDefinition, attributes), 16, 32));

static_assert(At(offsetof(ClassDefinition, version), 0, 0));
static_assert(At(offsetof(ClassDefinition, name), 4, 8));
static_assert(At(offsetof(ClassDefinition, superName), 8, 16));
static_assert(At(offsetof(ClassDefinition, dataSize), 12, 24));
static_assert(At(offsetof(ClassDefinition, instanceDataOffset), 16, 32));
static_assert(At(offsetof(ClassDefinition, constructor), 20, 40));
static_assert(At(offsetof(ClassDefinition, destructor), 24, 48));
static_assert(At(offsetof(ClassDefinition, properties), 28, 56));
static_assert(At(offsetof(ClassDefinition, propertyCount), 32, 64));
static_assert(At(offsetof(ClassDefinition, methods), 36, 72));
static_assert(At(offsetof(ClassDefinition, methodCount), 40, 80));
static_assert(At(offsetof(ClassDefinition, events), 44, 88));
static_assert(At(offsetof(ClassDefinition, eventCount), 48, 96));
static_assert(At(offsetof(ClassDefinition, reservedTable1), 52, 104));
static_assert(At(offsetof(ClassDefinition, reservedCount1), 56, 112));
static_assert(At(offsetof(ClassDefinition, reservedWord), 60, 120));
static_assert(At(offsetof(ClassDefinition, reservedTable2), 64, 128));
static_assert(At(offsetof(ClassDefinition, reservedCount2), 68, 136));
static_assert(At(offsetof(ClassDefinition, constants), 72, 144));
static_assert(At(offsetof(ClassDefinition, constantCount), 76, 152));
static_assert(At(offsetof(ClassDefinition, flags), 80, 160));
static_assert(At(offsetof(ClassDefinition, sharedProperties), 84, 168));
static_assert(At(offsetof(ClassDefinition, sharedPropertyCount), 88, 176));
static_assert(At(offsetof(ClassDefinition, sharedMethods), 92, 184));
static_assert(At(offsetof(ClassDefinition, sharedMethodCount), 96, 192));

static_assert(At(offsetof(StringData, data), 0, 0));
static_assert(At(offsetof(StringData, length), 4, 8));
static_assert(At(offsetof(StringData, encoding), 8, 16));
static_assert(At(offsetof(StringData, hostPointer), 12, 24));
static_assert(At(offsetof(StringData, hostWord), 16, 32));

#if HOST_INTERFACE_32_BIT
static_assert(sizeof(PropertyDefinitionVersion9) == 40);
static_assert(sizeof(MethodDefinitionVersion9) == 16);
static_assert(sizeof(EventDefinitionVersion9) == 8);
static_assert(sizeof(ConstantDefinitionVersion9) == 12);
static_assert(sizeof(StringRecord) == 16);
static_assert(offsetof(PropertyDefinitionVersion9, reserved) == 28);
static_assert(offsetof(MethodDefinitionVersion9, flags) == 12);
static_assert(offsetof(ConstantDefinitionVersion9, flags) == 8);
static_assert(offsetof(StringRecord, storage) == 4);
static_assert(offsetof(StringRecord, length) == 12);
#endif
}  // namespace layout_lock

}  // namespace host_interface
