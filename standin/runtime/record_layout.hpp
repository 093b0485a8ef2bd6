// Where the host finds the fields of a plug-in's records, as literal offsets for both widths. This
// is the host's own knowledge: nothing here comes from the header that the plug-in is built with,
// so that a wrong layout there does not agree with itself here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace standin::layout {

/// The host's word is as wide as a pointer: 4 or 8 bytes.
inline constexpr bool IsNarrow = sizeof(void*) == 4;

/// A distance in bytes, in a record of a 32-bit and of a 64-bit plug-in.
struct Bytes {
    std::size_t narrow;
    std::size_t wide;

    constexpr std::size_t Here() const { return IsNarrow ? narrow : wide; }
};

/// A field that holds a T. Flags, versions and parameters have 32 bits; texts, routines, tables and
/// counts are as wide as a pointer.
template <typename T>
struct Field {
    Bytes offset;
};

using Text = const char*;
using Code = void (*)();
using Table = const void*;
using Count = std::size_t;

/// A record in the memory of a plug-in.
class Record {
public:
    explicit Record(const void* address) : bytes_(static_cast<const std::byte*>(address)) {}

    template <typename T>
    T Get(Field<T> field) const {
        std::remove_const_t<T> value;
        std::memcpy(&value, bytes_ + field.offset.Here(), sizeof value);
        return value;
    }

    /// The record at that place of a table of such records.
    Record Next(std::size_t place, Bytes size) const {
        return Record(bytes_ + place * size.Here());
    }

private:
    const std::byte* bytes_;
};

/// Writes a field of a record that the plug-in lets the host write.
template <typename T>
void Set(void* record, Field<T> field, std::type_identity_t<T> value) {
    std::memcpy(static_cast<std::byte*>(record) + field.offset.Here(), &value, sizeof value);
}

struct Attribute {
    static constexpr Bytes Size{8, 16};
    static constexpr Field<Text> Name{{0, 0}};
    static constexpr Field<Text> Value{{4, 8}};
};

/// The short form of an entry, which 32-bit hosts of interface version 9 read, ends before the
/// attributes.
struct Property {
    static constexpr Bytes Size{48, 96};
    static constexpr Bytes ShortSize{40, 0};
    static constexpr Field<Text> Group{{0, 0}};
    static constexpr Field<Text> Name{{4, 8}};
    static constexpr Field<Text> Type{{8, 16}};
    static constexpr Field<std::uint32_t> Flags{{12, 24}};
    static constexpr Field<Code> Getter{{16, 32}};
    static constexpr Field<Code> Setter{{20, 40}};
    static constexpr Field<std::int32_t> Parameter{{24, 48}};
    static constexpr Field<Count> AttributeCount{{40, 80}};
    static constexpr Field<Table> Attributes{{44, 88}};
};

struct Method {
    static constexpr Bytes Size{24, 48};
    static constexpr Bytes ShortSize{16, 0};
    static constexpr Field<Code> Function{{0, 0}};
    static constexpr Field<Code> Setter{{4, 8}};
    static constexpr Field<Text> Declaration{{8, 16}};
    static constexpr Field<std::uint32_t> Flags{{12, 24}};
    static constexpr Field<Count> AttributeCount{{16, 32}};
    static constexpr Field<Table> Attributes{{20, 40}};
};

struct Event {
    static constexpr Bytes Size{16, 32};
    static constexpr Bytes ShortSize{8, 0};
    static constexpr Field<Text> Declaration{{0, 0}};
    static constexpr Field<Count> AttributeCount{{8, 16}};
    static constexpr Field<Table> Attributes{{12, 24}};
};

struct Constant {
    static constexpr Bytes Size{20, 40};
    static constexpr Bytes ShortSize{12, 0};
    static constexpr Field<Text> Declaration{{0, 0}};
    static constexpr Field<std::uint32_t> Flags{{8, 16}};
    static constexpr Field<Count> AttributeCount{{12, 24}};
    static constexpr Field<Table> Attributes{{16, 32}};
};

struct Class {
    static constexpr Bytes Size{100, 200};
    static constexpr Field<std::uint32_t> Version{{0, 0}};
    static constexpr Field<Text> Name{{4, 8}};
    static constexpr Field<Text> SuperName{{8, 16}};
    static constexpr Field<Count> DataSize{{12, 24}};
    /// Written by the host.
    static constexpr Field<std::uintptr_t> InstanceDataOffset{{16, 32}};
    static constexpr Field<Code> Constructor{{20, 40}};
    static constexpr Field<Code> Destructor{{24, 48}};
    static constexpr Field<Table> Properties{{28, 56}};
    static constexpr Field<Count> PropertyCount{{32, 64}};
    static constexpr Field<Table> Methods{{36, 72}};
    static constexpr Field<Count> MethodCount{{40, 80}};
    static constexpr Field<Table> Events{{44, 88}};
    static constexpr Field<Count> EventCount{{48, 96}};
    static constexpr Field<Table> Constants{{72, 144}};
    static constexpr Field<Count> ConstantCount{{76, 152}};
    static constexpr Field<std::uint32_t> Flags{{80, 160}};
    static constexpr Field<Table> SharedProperties{{84, 168}};
    static constexpr Field<Count> SharedPropertyCount{{88, 176}};
    static constexpr Field<Table> SharedMethods{{92, 184}};
    static constexpr Field<Count> SharedMethodCount{{96, 192}};
};

/// What "PluginGetStringData" fills.
struct StringData {
    static constexpr Bytes Size{20, 40};
    static constexpr Field<Text> Data{{0, 0}};
    static constexpr Field<Count> Length{{4, 8}};
    static constexpr Field<std::uint32_t> Encoding{{8, 16}};
    static constexpr Field<Table> HostPointer{{12, 24}};
    static constexpr Field<std::uint32_t> HostWord{{16, 32}};
};

/// The part of a string that 32-bit plug-ins read without a call.
struct String {
    static constexpr Bytes Size{16, 0};
    static constexpr Field<Text> Storage{{4, 0}};
    static constexpr Field<std::int32_t> Length{{12, 0}};
};

}  // namespace standin::layout
