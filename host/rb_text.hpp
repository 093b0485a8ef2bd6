// Reading a host string as NUL-terminated 8-bit text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "host/byte_view.hpp"
#include "host/string_building.hpp"
#include "interface/host_interface.hpp"

namespace vqz {

/// Indices into the arrays of `rbText`, which have room for the text in each of these encodings.
/// Pure ASCII text is in all 8-bit slots; otherwise only Ascii and Utf8 are ever filled.
enum class TextSlot : std::size_t { Windows, MacRoman, Ascii, Utf8, Latin1, Utf16, Utf32 };
inline constexpr std::size_t TextSlotCount = 7;

/// What is known about the bytes of the source string.
enum class TextKind : std::uint32_t {
    Unrecognised = 0,    ///< an encoding that this code does not know
    Shared = 1,          ///< ASCII only, or no string: all 8-bit slots point to the source's bytes
    Unchecked = 2,       ///< 8-bit text that has not been tested for bytes above 0x7F
    NeedsConversion = 3  ///< a wide encoding, or bytes above 0x7F
};

/// Converts one host string to NUL-terminated text. It is a local variable of the code that reads
/// the string: the pointers that it returns are valid as long as the object, whose destructor frees
/// everything that it acquired.
///
/// For pure ASCII text in an 8-bit encoding it returns the bytes where the host stores them, and
/// whether a NUL follows them is up to the host. Code that depends on the NUL uses
/// `TerminatedText`.
struct rbText {
    explicit rbText(host_interface::String text);
    ~rbText();
    rbText(const rbText&) = delete;
    rbText& operator=(const rbText&) = delete;

    /// The text as ASCII; empty on failure, never null. The number classes read all text as UTF-8;
    /// this is for code that needs ASCII from the host.
    const char* AsciiText();
    /// The text as UTF-8; empty on failure, never null.
    const char* Utf8Text();
    /// Bytes of the UTF-8 text.
    std::int32_t Utf8Length();

    static constexpr std::uint32_t CheckWord = 0x56515A54;

    std::uint32_t checkWord1 = CheckWord;
    host_interface::String source = nullptr;
    std::array<host_interface::String, TextSlotCount> converted = {};
    std::array<std::int32_t, TextSlotCount> length = {};
    std::array<const char*, TextSlotCount> data = {};
    std::array<char*, TextSlotCount> temp = {};
    std::array<host_interface::StringData, TextSlotCount> stringData;
    std::array<bool, TextSlotCount> hasStringData = {};
#if !HOST_INTERFACE_32_BIT
    /// The source's bytes, into which texts in place point.
    std::optional<ByteView> sourceBytes;
#endif
    bool failed = false;
    HostTextEncoding encoding = HostTextEncoding::Ascii;
    TextKind kind = TextKind::Shared;
    std::uint32_t spare = 0;
    std::uint32_t checkWord2 = CheckWord;

private:
    void Reset() noexcept;
    void ReplaceSource(host_interface::String text);
#if HOST_INTERFACE_32_BIT
    ByteView SourceBytes() const {
        return ByteView(source, encoding);
    }
#else
    /// The source's bytes, which stay where they are until the source is replaced. A text whose
    /// bytes cannot be had is empty and `failed`.
    const ByteView& SourceBytes();
#endif
    void Classify();
    void CheckForAscii();
    void RebuildUnknownEncoding();
    const char* Fill(TextSlot slot);
    void FillByHost(TextSlot slot);
    void Terminate(TextSlot slot);
    void MakeEmpty(TextSlot slot) noexcept;
    void Fail(const char* message);
};

}  // namespace vqz
