#include "standin/process_output.hpp"

#include <string>

#include "standin/process.hpp"

namespace standin::process {
namespace {

constexpr std::size_t LargestKept = 65536;

std::string kept;

}  // namespace

void WriteOutput(std::string_view bytes) {
    kept += bytes;
    if (kept.size() >= LargestKept) {
        FlushOutput();
    }
}

void FlushOutput() {
    WriteBytes(Stream::Output, kept);
    kept.clear();
}

void WriteAtOnce(std::string_view bytes) {
    WriteOutput(bytes);
    FlushOutput();
}

void WriteError(std::string_view bytes) {
    FlushOutput();
    WriteBytes(Stream::Error, bytes);
}

void WriteCrash(const char* what, const char* currentCall) {
    WriteBytes(Stream::Output, kept);
    const auto writeError = [](std::string_view text) { WriteBytes(Stream::Error, text); };
    writeError("the plug-in crashed (");
    writeError(what);
    writeError(currentCall == nullptr ? ") outside of the calls of the program" : ") in ");
    writeError(currentCall == nullptr ? "" : currentCall);
    writeError("\n");
}

}  // namespace standin::process
