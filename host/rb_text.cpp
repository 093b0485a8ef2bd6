#include "host/rb_text.hpp"

#include <cstring>

#include "host/byte_view.hpp"
#include "host/debug_log.hpp"
#include "host/strings.hpp"
#include "platform/platform.hpp"
#include "plugin/bindings/host_functions.hpp"

namespace vqz {
namespace {

#if HOST_INTERFACE_32_BIT
/// The first host version that lends string data through "PluginGetStringData".
constexpr double FirstVersionWithStringData = 2012.0;
#endif

constexpr const char EmptyText[] = "";
constexpr const char16_t EmptyUtf16[] = u"";
constexpr const char32_t EmptyUtf32[] = U"";

constexpr std::array EightBitSlots = {TextSlot::Windows, TextSlot::MacRoman, TextSlot::Ascii,
                                      TextSlot::Utf8, TextSlot::Latin1};

struct ReleaseMessages {
    const char* stringData;
    const char* temp;
};
constexpr std::array<ReleaseMessages, TextSlotCount> SlotReleaseMessages = {{
    {"REALDisposeStringData Windows", "FreeMemoryNow tempWindows"},
    {"REALDisposeStringData MacRoman", "FreeMemoryNow tempMacRoman"},
    {"REALDisposeStringData ASCII", "FreeMemoryNow tempASCII"},
    {"REALDisposeStringData UTF8", "FreeMemoryNow tempUTF8"},
    {"REALDisposeStringData Latin1", "FreeMemoryNow tempLatin1"},
    {"REALDisposeStringData UTF16", "FreeMemoryNow tempUTF16"},
    {"REALDisposeStringData UTF32", "FreeMemoryNow tempUTF32"},
}};

constexpr std::size_t Index(TextSlot slot) {
    return static_cast<std::size_t>(slot);
}

constexpr std::uint32_t EncodingOf(TextSlot slot) {
    return static_cast<std::uint32_t>(slot == TextSlot::Ascii ? HostTextEncoding::Ascii
                                                              : HostTextEncoding::Utf8);
}

void LogIfEnabled(const char* message) {
    if (DebugEnabled) {
        LogMessage(message);
    }
}

/// Whether no byte is above 0x7F. Longer texts are looked at eight bytes at a time.
bool AllAscii(const char* bytes, std::int32_t count) {
    constexpr std::int32_t ShortestForBlocks = 21;
    constexpr std::uint32_t HighBits = 0x80808080;
    std::int32_t position = 0;
    if (count >= ShortestForBlocks) {
        for (; position < count - 8; position += 8) {
            std::uint32_t words[2];
            std::memcpy(words, bytes + position, sizeof words);
            if (((words[0] | words[1]) & HighBits) != 0) {
                return false;
            }
        }
    }
    for (; position < count; ++position) {
        if (static_cast<unsigned char>(bytes[position]) >= 0x80) {
            return false;
        }
    }
    return true;
}

void LogBadCheckWord(std::uint32_t word, const char* message) {
    if (word != rbText::CheckWord && DebugEnabled) {
        LogUInt(message, word);
    }
}

}  // namespace

rbText::rbText(host_interface::String text) {
    Reset();
    if (text == nullptr) {
        return;
    }
    ReplaceSource(text);
    length.fill(-1);
    kind = TextKind::Unrecognised;
    Classify();
}

rbText::~rbText() {
    LogBadCheckWord(checkWord1, "Check1 in rbText invalid");
    LogBadCheckWord(checkWord2, "Check2 in rbText invalid");

#if !HOST_INTERFACE_32_BIT
    sourceBytes.reset();
#endif
    if (source != nullptr) {
        host::REALUnlockString(source);
    }
    for (const host_interface::String string : converted) {
        if (string != nullptr) {
            host::REALUnlockString(string);
        }
    }
    for (std::size_t slot = 0; slot < TextSlotCount; ++slot) {
        if (hasStringData[slot]) {
            LogIfEnabled(SlotReleaseMessages[slot].stringData);
            host::PluginDisposeStringData(&stringData[slot]);
        }
    }
    for (std::size_t slot = 0; slot < TextSlotCount; ++slot) {
        if (temp[slot] != nullptr) {
            LogIfEnabled(SlotReleaseMessages[slot].temp);
            platform::FreeBuffer(temp[slot]);
        }
    }
    Reset();
}

void rbText::Reset() noexcept {
    source = nullptr;
    converted.fill(nullptr);
    length.fill(0);
    data.fill(EmptyText);
    data[Index(TextSlot::Utf16)] = reinterpret_cast<const char*>(EmptyUtf16);
    data[Index(TextSlot::Utf32)] = reinterpret_cast<const char*>(EmptyUtf32);
    temp.fill(nullptr);
    hasStringData.fill(false);
    failed = false;
    encoding = HostTextEncoding::Ascii;
    kind = TextKind::Shared;
    spare = 0;
}

void rbText::ReplaceSource(host_interface::String text) {
    if (text != source) {
        host::REALLockString(text);
        if (source != nullptr) {
            host::REALUnlockString(source);
        }
#if !HOST_INTERFACE_32_BIT
        sourceBytes.reset();
#endif
        source = text;
        encoding = static_cast<HostTextEncoding>(host::REALGetStringEncoding(source));
    }
}

#if !HOST_INTERFACE_32_BIT
const ByteView& rbText::SourceBytes() {
    if (!sourceBytes) {
        sourceBytes.emplace(source, encoding);
        if (sourceBytes->failed()) {
            Fail("REALGetStringData failed.");
        }
    }
    return *sourceBytes;
}
#endif

void rbText::Classify() {
    switch (encoding) {
        case HostTextEncoding::MacRoman:
        case HostTextEncoding::Latin1:
        case HostTextEncoding::WindowsAnsi:
        case HostTextEncoding::Ascii:
        case HostTextEncoding::Utf8:
            kind = TextKind::Unchecked;
            break;
        case HostTextEncoding::Utf16:
        case HostTextEncoding::Utf32:
        case HostTextEncoding::Utf16BigEndian:
        case HostTextEncoding::Utf16LittleEndian:
        case HostTextEncoding::Utf32BigEndian:
        case HostTextEncoding::Utf32LittleEndian:
            kind = TextKind::NeedsConversion;
            break;
        case HostTextEncoding::Unknown:
            kind = TextKind::Unchecked;
            CheckForAscii();
            if (kind != TextKind::Shared) {
                RebuildUnknownEncoding();
            }
            break;
        default:
            break;
    }
}

void rbText::CheckForAscii() {
    if (kind != TextKind::Unchecked) {
        return;
    }
    const ByteView& bytes = SourceBytes();
    if (!AllAscii(bytes.data(), static_cast<std::int32_t>(bytes.length()))) {
        kind = TextKind::NeedsConversion;
        return;
    }
    kind = TextKind::Shared;
    for (const TextSlot slot : EightBitSlots) {
        length[Index(slot)] = static_cast<std::int32_t>(bytes.length());
        data[Index(slot)] = bytes.length() > 0 ? bytes.data() : EmptyText;
    }
}

/// Bytes of no known encoding are taken for Windows ANSI. A rebuilt text counts as failed, too, and
/// the log says so: its encoding is a guess.
void rbText::RebuildUnknownEncoding() {
    const ByteView& bytes = SourceBytes();
    void* probe = platform::AllocateZeroed(static_cast<std::size_t>(bytes.length()) + 4);
    if (probe == nullptr) {
        kind = TextKind::Unchecked;
        Fail("Out of Memory.");
        return;
    }
    platform::FreeBuffer(probe);

    ReplaceSource(
        REALBuildUnicodeString(bytes.data(), bytes.length(), HostTextEncoding::WindowsAnsi).Get());
    kind = TextKind::NeedsConversion;
    Fail("REALBuildUnicodeString failed");
}

const char* rbText::AsciiText() {
    return Fill(TextSlot::Ascii);
}

const char* rbText::Utf8Text() {
    return Fill(TextSlot::Utf8);
}

std::int32_t rbText::Utf8Length() {
    Fill(TextSlot::Utf8);
    return length[Index(TextSlot::Utf8)];
}

const char* rbText::Fill(TextSlot slot) {
    const std::size_t index = Index(slot);
    if (length[index] >= 0) {
        return data[index];
    }
    MakeEmpty(slot);
    if (source == nullptr) {
        return data[index];
    }
    CheckForAscii();
    if (kind == TextKind::Shared) {
        return data[index];
    }
    const bool isUtf8Already =
        encoding == HostTextEncoding::Ascii || encoding == HostTextEncoding::Utf8;
    if (slot == TextSlot::Utf8 && isUtf8Already) {
#if HOST_INTERFACE_32_BIT
        length[index] = source->length;
        data[index] = source->storage + 1;
#else
        const ByteView& bytes = SourceBytes();
        length[index] = static_cast<std::int32_t>(bytes.length());
        data[index] = bytes.length() > 0 ? bytes.data() : EmptyText;
#endif
    } else {
        FillByHost(slot);
    }
    Terminate(slot);
    return data[index];
}

void rbText::FillByHost(TextSlot slot) {
    const std::size_t index = Index(slot);
#if HOST_INTERFACE_32_BIT
    if (HostVersion < FirstVersionWithStringData) {
        const host_interface::String text = host::REALConvertString(source, EncodingOf(slot));
        converted[index] = text;
        if (text == nullptr) {
            Fail("REALConvertString failed");
            return;
        }
        data[index] = text->storage + 1;
        length[index] = text->length;
        return;
    }
#endif
    if (slot == TextSlot::Ascii) {
        LogIfEnabled("REALGetStringData...");
    }
    hasStringData[index] = host::PluginGetStringData(source, EncodingOf(slot), &stringData[index]);
    if (HOST_INTERFACE_32_BIT == 0 && hasStringData[index] &&
        stringData[index].length > INT32_MAX) {
        host::PluginDisposeStringData(&stringData[index]);
        hasStringData[index] = false;
    }
    if (!hasStringData[index]) {
        Fail("REALGetStringData failed.");
        return;
    }
    // Where no bytes are, nobody may look for a NUL behind them.
    if (stringData[index].data != nullptr && stringData[index].length > 0) {
        data[index] = stringData[index].data;
        length[index] = static_cast<std::int32_t>(stringData[index].length);
    }
    if (DebugEnabled) {
        LogUInt("REALGetStringData ok. Length", static_cast<std::uint32_t>(length[index]));
    }
}

/// Hosts don't promise a NUL behind the text.
void rbText::Terminate(TextSlot slot) {
    const std::size_t index = Index(slot);
    const auto count = static_cast<std::size_t>(length[index]);
    // cppcheck-suppress charLiteralWithCharPtrCompare ; it takes the byte for an array of them
    if (length[index] <= 0 || data[index][count] == '\0') {
        return;
    }
    LogIfEnabled("String is not zero terminated. Fixed.");
    temp[index] = static_cast<char*>(platform::AllocateZeroed(count + 4));
    if (temp[index] == nullptr) {
        LogIfEnabled("Out of memory");
        MakeEmpty(slot);
        return;
    }
    std::memcpy(temp[index], data[index], count);
    data[index] = temp[index];
}

void rbText::MakeEmpty(TextSlot slot) noexcept {
    length[Index(slot)] = 0;
    data[Index(slot)] = EmptyText;
}

void rbText::Fail(const char* message) {
    LogIfEnabled(message);
    failed = true;
}

}  // namespace vqz
