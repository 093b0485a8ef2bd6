// The strings of the stand-in host and the buffers that it lends out of them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "standin/runtime/host.hpp"
#include "standin/runtime/ledger.hpp"

namespace standin {

/// What the host knows of one string. A 32-bit plug-in sees `record` and `text`; for a 64-bit one
/// the handle is no address of anything.
struct StringEntry {
    VisibleMemory record;
    VisibleMemory text;
    std::size_t length = 0;
    std::size_t textHash = 0;
    HostTextEncoding encoding = HostTextEncoding::Unknown;
    std::uint32_t references = 1;
    std::uint64_t serial = 0;
};

class StringStore {
public:
    StringStore(bool unterminated, std::uint32_t spareReferences, ViolationList& violations,
                AllocationFailures& failures, Quarantine& quarantine)
        : unterminated_(unterminated),
          spareReferences_(spareReferences),
          violations_(violations),
          failures_(failures),
          quarantine_(quarantine) {}

    // In every routine `user` is the function that is being called, for the report of a violation.

    /// A new string; null for an empty text and for a failing allocation.
    String Make(std::string_view bytes, HostTextEncoding encoding);
    /// A new string that may be empty; null for a failing allocation, also one of the machine's.
    String MakeRecord(std::string_view bytes, HostTextEncoding encoding);
    /// A new string with the texts of both, in an encoding that has room for both.
    String Join(String left, String right, const char* user);
    /// A new string in another encoding; null when it cannot be converted.
    String Convert(String text, HostTextEncoding encoding, const char* user);

    /// The text's bytes; empty for null and, with a violation, for a handle that is not living.
    std::string_view Bytes(String text, const char* user);
    /// The text's bytes in another encoding; none when they cannot be converted.
    std::optional<std::string> BytesAs(String text, HostTextEncoding encoding, const char* user);
    /// The same two for a plug-in that asks: of another encoding on a host that is wrong about it.
    HostTextEncoding EncodingForPlugin(String text, const char* user);
    std::optional<std::string> BytesForPlugin(String text, HostTextEncoding encoding,
                                              const char* user);
    HostTextEncoding Encoding(String text, const char* user);
    void SetEncoding(String text, HostTextEncoding encoding, const char* user);
    std::uint32_t References(String text, const char* user);
    void Lock(String text, const char* user);
    void Unlock(String text, const char* user);

    /// Fills a record with the text in that encoding (0xFFFF, or at 64 bits its own encoding: its
    /// bytes as they are); false, with the record untouched, when that cannot be had.
    bool LendData(String text, HostTextEncoding encoding, host_interface::StringData* record,
                  const char* user);
    void ReturnData(host_interface::StringData* record, const char* user);

    /// Adds the numbers to a report.
    void Count(LedgerCounts& counts) const;
    /// One line for each string and each lent buffer that is still there.
    void AppendLeaks(std::vector<std::string>& lines) const;
    /// From now on, what exists now is not counted.
    void ResetLedger();

private:
    struct LentData {
        VisibleMemory bytes;
        std::uint32_t serial = 0;
        std::string description;
    };

    StringEntry* Find(String text, const char* user);
    VisibleMemory MakeText(std::string_view bytes, std::size_t before) const;
    void Die(String text, const StringEntry& entry, const char* user);
    void CheckUnchanged(const StringEntry& entry, const char* user);

    bool unterminated_;
    std::uint32_t spareReferences_;
    ViolationList& violations_;
    AllocationFailures& failures_;
    Quarantine& quarantine_;
    HandleTable<StringEntry> strings_;
    std::unordered_map<const host_interface::StringData*, LentData> lent_;
    std::uint64_t lastSerial_ = 0;
    std::uint64_t resetSerial_ = 0;
    std::uint32_t lastLentSerial_ = 0;
    std::uint32_t resetLentSerial_ = 0;
};

}  // namespace standin
