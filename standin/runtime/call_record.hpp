// Which routines of a plug-in were called, and how each call ended: the data for the check that the
// tests leave nothing out.
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "standin/runtime/host.hpp"

namespace standin {

/// The record of a process, over all of its hosts. It is kept when the environment variable
/// STANDIN_CALL_RECORD names a file, to which the end of the process adds lines of fields with tabs
/// between.
///
///   entry   CLASS  KIND  DECLARATION  PART                         an entry of a registered table
///   call    CLASS  KIND  DECLARATION  PART  WORDS  OUTCOME  COUNT  its routine's calls
///   lookup  NAME  COUNT                                            a name asked of the resolver
///
/// KIND is "property", "method", "shared property", "shared method" or "destructor", and PART
/// "get", "set" or "call". WORDS shows the arguments, 0 for a word of zero and x for any other.
/// OUTCOME is "answered", "null" for a zero in the result's word, or "raised CLASS: MESSAGE" with #
/// for every number. Entries that share a routine have its calls in common.
class CallRecord {
public:
    static CallRecord& OfProcess();

    CallRecord(const CallRecord&) = delete;
    CallRecord& operator=(const CallRecord&) = delete;

    /// Whether a record is kept; nothing else is to be called when not.
    bool IsKept() const { return !path_.empty(); }

    void NoteClass(const ClassInfo& info);
    void NoteLookup(std::string_view name);
    /// An exception that the running call raises.
    void NoteRaise(std::string_view className, std::string_view message);
    /// A call that came back.
    void NoteCall(Routine routine, std::span<const CallArgument> arguments, ReturnKind kind,
                  const ReturnValue& value);
    /// The plug-in is unloaded: the recorded addresses are no routines any more.
    void ForgetRoutines();

private:
    /// The argument words and the outcome of a call.
    using Form = std::pair<std::string, std::string>;
    using Forms = std::map<Form, std::uint64_t>;

    CallRecord();
    ~CallRecord();
    void Add(Routine routine, const std::string& entry);
    void Write() const;

    std::string path_;
    /// By the fields that name an entry; an element stays where it is.
    std::map<std::string, Forms> entries_;
    std::unordered_map<Routine, std::vector<Forms*>> routines_;
    std::map<std::string, std::uint64_t, std::less<>> lookups_;
    std::string raised_;
};

/// A text with # in the place of every number; digits within a word stay.
std::string WithoutNumbers(std::string_view text);

}  // namespace standin
