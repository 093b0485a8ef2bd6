// Reading a host string as NUL-terminated 8-bit text.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "host/string_building.hpp"
#include "interface/host_interface.hpp"

namespace vqz {

/// The encodings a text is kept in, in the order of all arrays of `rbText`. Only Ascii and Utf8 are
/// ever filled.
enum class TextSlot : std::size_t { Windows, MacRoman, Ascii, Utf8, Latin1, Utf16, Utf32 };
inline constexpr std::size_t TextSlotCount = 7;

/// What is known of the source's bytes.
enum class TextKind : std::uint32_t {
    Unrecognised = 0,    ///< an encoding of which nothing is known
    Shared = 1,          ///< pure ASCII or no string: every 8-bit slot is the source's bytes
    Unchecked = 2,       ///< 8-bit text whose bytes have not been looked at
    NeedsConversion = 3  ///< a wide encoding, or bytes above 0x7F
};

/// A view of one host string on the stack, for the length of one call of the host. The getters hand
/// out its text; their pointers live as long as the record, which frees all that it acquired.
///
/// Pure ASCII text in an 8-bit encoding is handed out in place, as the host stores it, so a NUL
/// behind it is only as certain as the host makes it. Whoever depends on the NUL takes a
/// `TerminatedText`.
struct rbText {
    explicit rbText(host_interface::String text);
    ~rbText();
    rbText(const rbText&) = delete;
    rbText& operator=(const rbText&) = delete;

    /// The text as ASCII; empty on failure, never null.
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
    bool failed = false;
    HostTextEncoding encoding = HostTextEncoding::Ascii;
    TextKind kind = TextKind::Shared;
    std::uint32_t spare = 0;
    std::uint32_t checkWord2 = CheckWord;

private:
    void Reset() noexcept;
    void ReplaceSource(host_interface::String text);
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
