#include "standin/runtime/string_store.hpp"

#include <algorithm>
#include <bit>
#include <functional>
#include <new>
#include <utility>

#include "standin/runtime/record_layout.hpp"
#include "standin/runtime/text_encoding.hpp"
#include "standin/runtime/wrong_facts.hpp"

namespace standin {
namespace {

using host_interface::StringData;

/// Fills the bytes and words of a string that a plug-in must not use.
constexpr std::byte NoiseByte{0xEE};
/// The host's bytes in front of a text.
constexpr std::size_t TextOffset = 1;

constexpr FactOf<HostTextEncoding> EncodingFacts[] = {
    {HostTextEncoding::Utf8, "text-in-utf8"},
    {HostTextEncoding::Utf16, "text-in-utf16"},
    {HostTextEncoding::Latin1, "text-in-latin1"},
    {HostTextEncoding::Unknown, "text-of-unknown-encoding"},
};

/// The encoding that the host takes the text to be in when a plug-in asks for it.
HostTextEncoding TakenEncoding(const StringEntry& entry) {
    if (!IsWrongAbout<HostTextEncoding>(EncodingFacts, entry.encoding)) {
        return entry.encoding;
    }
    return entry.encoding == HostTextEncoding::Unknown ? HostTextEncoding::Utf16
                                                       : HostTextEncoding::MacRoman;
}

std::string Describe(std::uint64_t serial, std::string_view bytes, HostTextEncoding encoding) {
    return "string #" + std::to_string(serial) + " " + Quoted(bytes) + " (" +
           EncodingName(encoding) + ", " + std::to_string(bytes.size()) + " bytes)";
}

std::string_view TextOf(const StringEntry& entry) {
    return {reinterpret_cast<const char*>(entry.text.data()) + TextOffset, entry.length};
}

std::string Describe(const StringEntry& entry) {
    return Describe(entry.serial, TextOf(entry), entry.encoding);
}

/// The encoding in which the joined bytes of two texts are their joined text, if there is one.
std::optional<HostTextEncoding> CommonEncoding(HostTextEncoding left, HostTextEncoding right) {
    if (left == right || (right == HostTextEncoding::Ascii && ExtendsAscii(left))) {
        return left;
    }
    if (left == HostTextEncoding::Ascii && ExtendsAscii(right)) {
        return right;
    }
    return std::nullopt;
}

/// The handle of a string whose fields no plug-in may read: an address at which no processor lets a
/// program read, and which is no other string's.
String OpaqueHandle(std::uint64_t serial) {
    constexpr std::uint64_t NobodysAddresses = 0x00F0'0000'0000'0000;
    constexpr std::uint64_t Distance = 64;
    return std::bit_cast<String>(static_cast<std::uintptr_t>(NobodysAddresses + Distance * serial));
}

/// Fills the record that 32-bit plug-ins read and answers its handle.
String ReadableHandle(const StringEntry& entry) {
    std::byte* record = entry.record.data();
    std::fill_n(record, entry.record.size(), NoiseByte);
    layout::Set(record, layout::String::Storage, reinterpret_cast<const char*>(entry.text.data()));
    layout::Set(record, layout::String::Length, static_cast<std::int32_t>(entry.length));
    return reinterpret_cast<String>(record);
}

/// Whether the record that 32-bit plug-ins read is as the host made it.
bool RecordKept(const StringEntry& entry) {
    if (!layout::IsNarrow) {
        return true;
    }
    const layout::Record record(entry.record.data());
    return record.Get(layout::String::Storage) ==
               reinterpret_cast<const char*>(entry.text.data()) &&
           record.Get(layout::String::Length) == static_cast<std::int32_t>(entry.length);
}

}  // namespace

String StringStore::Make(std::string_view bytes, HostTextEncoding encoding) {
    return bytes.empty() ? nullptr : MakeRecord(bytes, encoding);
}

String StringStore::MakeRecord(std::string_view bytes, HostTextEncoding encoding) {
    if (failures_.FailsNow(Allocation::String)) {
        return nullptr;
    }
    StringEntry entry;
    try {
        entry.record = VisibleMemory(layout::String::Size.Here());
        entry.text = MakeText(bytes, TextOffset);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
    entry.length = bytes.size();
    entry.textHash = std::hash<std::string_view>{}(bytes);
    entry.encoding = encoding;
    entry.serial = ++lastSerial_;
    entry.references += spareReferences_;

    String handle = layout::IsNarrow ? ReadableHandle(entry) : OpaqueHandle(entry.serial);
    strings_.Add(handle, std::move(entry));
    return handle;
}

String StringStore::Join(String left, String right, const char* user) {
    if (left == nullptr || right == nullptr) {
        String only = left == nullptr ? right : left;
        return only == nullptr ? nullptr : MakeRecord(Bytes(only, user), Encoding(only, user));
    }
    const HostTextEncoding leftEncoding = Encoding(left, user);
    const HostTextEncoding rightEncoding = Encoding(right, user);
    if (const auto common = CommonEncoding(leftEncoding, rightEncoding)) {
        return Make(std::string(Bytes(left, user)).append(Bytes(right, user)), *common);
    }
    const auto leftText = BytesAs(left, HostTextEncoding::Utf8, user);
    const auto rightText = BytesAs(right, HostTextEncoding::Utf8, user);
    if (leftText && rightText) {
        return Make(*leftText + *rightText, HostTextEncoding::Utf8);
    }
    return Make(std::string(Bytes(left, user)).append(Bytes(right, user)),
                HostTextEncoding::Unknown);
}

String StringStore::Convert(String text, HostTextEncoding encoding, const char* user) {
    if (text == nullptr) {
        return nullptr;
    }
    const auto bytes = BytesForPlugin(text, encoding, user);
    return bytes ? MakeRecord(*bytes, encoding) : nullptr;
}

std::string_view StringStore::Bytes(String text, const char* user) {
    const StringEntry* entry = Find(text, user);
    return entry == nullptr ? std::string_view{} : TextOf(*entry);
}

std::optional<std::string> StringStore::BytesAs(String text, HostTextEncoding encoding,
                                                const char* user) {
    if (text == nullptr) {
        return std::string{};
    }
    const StringEntry* entry = Find(text, user);
    if (entry == nullptr) {
        return std::nullopt;
    }
    return ConvertText(TextOf(*entry), entry->encoding, encoding);
}

std::optional<std::string> StringStore::BytesForPlugin(String text, HostTextEncoding encoding,
                                                       const char* user) {
    const StringEntry* entry = strings_.Find(text);
    if (entry == nullptr || TakenEncoding(*entry) == entry->encoding) {
        return BytesAs(text, encoding, user);
    }
    return ConvertText(TextOf(*entry), TakenEncoding(*entry), encoding);
}

HostTextEncoding StringStore::EncodingForPlugin(String text, const char* user) {
    const StringEntry* entry = Find(text, user);
    return entry == nullptr ? HostTextEncoding::Ascii : TakenEncoding(*entry);
}

HostTextEncoding StringStore::Encoding(String text, const char* user) {
    const StringEntry* entry = Find(text, user);
    return entry == nullptr ? HostTextEncoding::Ascii : entry->encoding;
}

void StringStore::SetEncoding(String text, HostTextEncoding encoding, const char* user) {
    if (StringEntry* entry = Find(text, user)) {
        entry->encoding = encoding;
    }
}

std::uint32_t StringStore::References(String text, const char* user) {
    const StringEntry* entry = Find(text, user);
    return entry == nullptr ? 0 : entry->references;
}

void StringStore::Lock(String text, const char* user) {
    if (StringEntry* entry = Find(text, user)) {
        ++entry->references;
    }
}

void StringStore::Unlock(String text, const char* user) {
    StringEntry* entry = Find(text, user);
    if (entry == nullptr) {
        return;
    }
    if (--entry->references == 0) {
        Die(text, *entry, user);
    }
}

bool StringStore::LendData(String text, HostTextEncoding encoding, StringData* record,
                           const char* user) {
    if (record == nullptr) {
        violations_.Add(std::string(user) + ": no record to fill");
        return false;
    }
    if (const auto held = lent_.find(record); held != lent_.end()) {
        violations_.Add(std::string(user) + ": the record is filled again, but " +
                        held->second.description + " was not given back");
        lent_.erase(held);
    }
    // What a 64-bit plug-in asks for in the string's own encoding are the bytes as they are.
    const StringEntry* entry = layout::IsNarrow ? nullptr : strings_.Find(text);
    const bool asTheyAre = encoding == HostTextEncoding::Unknown ||
                           (entry != nullptr && encoding == TakenEncoding(*entry));
    const auto bytes = asTheyAre ? std::optional<std::string>(Bytes(text, user))
                                 : BytesForPlugin(text, encoding, user);
    if (!bytes || failures_.FailsNow(Allocation::String)) {
        return false;
    }
    LentData data;
    data.bytes = MakeText(*bytes, 0);
    data.serial = ++lastLentSerial_;
    data.description = "string data #" + std::to_string(data.serial) + " " + Quoted(*bytes) + " (" +
                       EncodingName(encoding) + ", " + std::to_string(bytes->size()) + " bytes)";
    using Fields = layout::StringData;
    layout::Set(record, Fields::Data, reinterpret_cast<const char*>(data.bytes.data()));
    layout::Set(record, Fields::Length, bytes->size());
    layout::Set(record, Fields::Encoding, static_cast<std::uint32_t>(encoding));
    layout::Set(record, Fields::HostPointer, data.bytes.data());
    layout::Set(record, Fields::HostWord, data.serial);
    lent_.insert_or_assign(record, std::move(data));
    return true;
}

void StringStore::ReturnData(StringData* record, const char* user) {
    const auto complain = [&](const std::string& what) {
        violations_.Add(std::string(user) + ": " + what);
    };
    if (record == nullptr) {
        complain("no record to give back");
        return;
    }
    const auto held = lent_.find(record);
    const std::uint32_t serial = layout::Record(record).Get(layout::StringData::HostWord);
    if (held != lent_.end() && held->second.serial == serial) {
        quarantine_.Add(std::move(held->second.bytes), "string data", held->second.serial);
        lent_.erase(held);
        return;
    }
    if (held != lent_.end()) {
        complain("the record of " + held->second.description + " was overwritten");
        return;
    }
    const auto original =
        std::ranges::find_if(lent_, [&](const auto& lent) { return lent.second.serial == serial; });
    if (original != lent_.end()) {
        complain("a copy of the record of " + original->second.description + " is given back");
    } else if (serial > 0 && serial <= lastLentSerial_) {
        complain("string data #" + std::to_string(serial) + " was given back before");
    } else {
        complain("a record that the host never filled is given back");
    }
}

void StringStore::Count(LedgerCounts& counts) const {
    counts.stringsMade = lastSerial_ - resetSerial_;
    counts.stringsAlive = static_cast<std::uint64_t>(std::ranges::count_if(
        strings_.Living(), [&](const auto& item) { return item.second.serial > resetSerial_; }));
    for (const auto& [handle, entry] : strings_.Living()) {
        counts.stringReferences += std::int64_t{entry.references} - spareReferences_;
    }
    counts.stringDataHeld = static_cast<std::uint64_t>(std::ranges::count_if(
        lent_, [&](const auto& item) { return item.second.serial > resetLentSerial_; }));
}

void StringStore::AppendLeaks(std::vector<std::string>& lines) const {
    std::vector<std::pair<std::uint64_t, std::string>> found;
    for (const auto& [handle, entry] : strings_.Living()) {
        if (entry.serial > resetSerial_) {
            found.emplace_back(entry.serial, "still alive: " + Describe(entry) + ", references: " +
                                                 std::to_string(entry.references));
        }
    }
    std::ranges::sort(found);
    const std::size_t stringCount = found.size();
    for (const auto& [record, data] : lent_) {
        if (data.serial > resetLentSerial_) {
            found.emplace_back(data.serial, "not given back: " + data.description);
        }
    }
    std::sort(found.begin() + static_cast<std::ptrdiff_t>(stringCount), found.end());
    for (auto& [serial, line] : found) {
        lines.push_back(std::move(line));
    }
}

void StringStore::ResetLedger() {
    resetSerial_ = lastSerial_;
    resetLentSerial_ = lastLentSerial_;
}

StringEntry* StringStore::Find(String text, const char* user) {
    if (text == nullptr) {
        return nullptr;
    }
    if (StringEntry* entry = strings_.Find(text)) {
        return entry;
    }
    const std::string_view epitaph = strings_.Epitaph(text);
    violations_.Add(epitaph.empty()
                        ? std::string(user) + ": the handle is no string of this host"
                        : std::string(user) + ": " + std::string(epitaph) + " was released before");
    return nullptr;
}

/// The bytes of a text with the host's own in front and one behind it.
VisibleMemory StringStore::MakeText(std::string_view bytes, std::size_t before) const {
    VisibleMemory memory(before + bytes.size() + 1);
    std::fill_n(memory.data(), before, NoiseByte);
    bytes.copy(reinterpret_cast<char*>(memory.data()) + before, bytes.size());
    memory.data()[before + bytes.size()] = unterminated_ ? NoiseByte : std::byte{0};
    return memory;
}

void StringStore::Die(String text, const StringEntry& entry, const char* user) {
    CheckUnchanged(entry, user);
    StringEntry dead = strings_.Bury(text, quarantine_.keeps() ? Describe(entry) : "");
    quarantine_.Add(std::move(dead.text), "string", dead.serial);
    quarantine_.Add(std::move(dead.record), "string", dead.serial);
}

void StringStore::CheckUnchanged(const StringEntry& entry, const char* user) {
    if (!RecordKept(entry) || std::hash<std::string_view>{}(TextOf(entry)) != entry.textHash) {
        violations_.Add(std::string(user) + ": " + Describe(entry) +
                        " was changed, but strings belong to the host");
    }
}

}  // namespace standin
