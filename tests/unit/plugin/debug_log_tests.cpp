// The lines of the debug log and where they go.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "host/debug_log.hpp"
#include "host/host_string_log.hpp"
#include "plugin/bindings/startup_globals.hpp"
#include "tests/unit/plugin/direct_host.hpp"

namespace {

using host_interface::HostTextEncoding;
using tests::Address;
using tests::DirectHost;
using tests::HeldString;
using tests::Joined;

constexpr std::size_t LongestLine = 4095;

/// Sends the debug log to a temporary file while it lives.
class LogFile {
public:
    LogFile() : file_(std::tmpfile(), &std::fclose) {
        REQUIRE(file_ != nullptr);
        vqz::DebugLogStream = file_.get();
    }
    ~LogFile() { vqz::DebugLogStream = nullptr; }
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    /// What is in the file so far.
    std::string Content() {
        std::string content;
        std::rewind(file_.get());
        for (int byte = std::fgetc(file_.get()); byte != EOF; byte = std::fgetc(file_.get())) {
            content += static_cast<char>(byte);
        }
        return content;
    }

    std::FILE* Get() { return file_.get(); }

private:
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
};

}  // namespace

TEST_CASE("Every kind of line has the prefix, its label and its value") {
    DirectHost host;
    vqz::LogMessage("ConstructorCopy");
    vqz::LogMessage("");
    vqz::LogText("label", "text");
    vqz::LogText("label", "");
    vqz::LogUInt("REALGetStringData ok. Length", 12);
    vqz::LogUInt("label", 0xFFFFFFFF);
    vqz::LogDouble("label", 2.5);
    vqz::LogDouble("label", -1e9);
    vqz::LogInt64("label", std::numeric_limits<std::int64_t>::min());
    vqz::LogInt64("label", std::numeric_limits<std::int64_t>::max());
    CHECK(Joined(host.TakeDebugLog()) ==
          "VQZ Debug: ConstructorCopy\n"
          "VQZ Debug: \n"
          "VQZ Debug: label text\n"
          "VQZ Debug: label \n"
          "VQZ Debug: REALGetStringData ok. Length 12\n"
          "VQZ Debug: label 4294967295\n"
          "VQZ Debug: label 2.500000\n"
          "VQZ Debug: label -1000000000.000000\n"
          "VQZ Debug: label -9223372036854775808\n"
          "VQZ Debug: label 9223372036854775807\n");
}

TEST_CASE("The log routines do not look at the switch, and percent signs are text") {
    DirectHost host;
    vqz::DebugEnabled = false;
    vqz::LogMessage("100%s %d %n");
    vqz::LogText("%s", "%p");
    vqz::LogLine("no prefix, %d", 5);
    CHECK(Joined(host.TakeDebugLog()) ==
          "VQZ Debug: 100%s %d %n\nVQZ Debug: %s %p\nno prefix, 5\n");
}

TEST_CASE("A line is cut at 4095 characters, with the prefix counted in") {
    DirectHost host;
    const std::string prefix = "VQZ Debug: ";
    for (const std::size_t length : {4083U, 4084U, 4085U, 4095U, 4096U, 5000U, 100000U}) {
        CAPTURE(length);
        const std::string label(length, 'x');
        vqz::LogMessage(label.c_str());
        vqz::LogUInt(label.c_str(), 7);
        const auto lines = host.TakeDebugLog();
        REQUIRE(lines.size() == 2);
        CHECK(lines[0] == (prefix + label).substr(0, LongestLine));
        CHECK(lines[1] == (prefix + label + " 7").substr(0, LongestLine));
    }
}

TEST_CASE("With a stream set, lines go there, each ended, and not to the debugger") {
    DirectHost host;
    {
        LogFile file;
        vqz::LogMessage("first");
        vqz::LogUInt("second", 2);
        vqz::LogMessage(std::string(5000, 'x').c_str());
        CHECK(file.Content() == "VQZ Debug: first\nVQZ Debug: second 2\n" +
                                    ("VQZ Debug: " + std::string(5000, 'x')).substr(0, 4095) +
                                    "\n");
    }
    CHECK(host.TakeDebugLog().empty());
    vqz::LogMessage("after");
    CHECK(Joined(host.TakeDebugLog()) == "VQZ Debug: after\n");
}

TEST_CASE("Each line is written out to the stream at once") {
    DirectHost host;
    LogFile file;
    // A full buffer would hold a line of this size back.
    char buffer[BUFSIZ] = {};
    REQUIRE(std::setvbuf(file.Get(), buffer, _IOFBF, sizeof buffer) == 0);
    vqz::LogMessage("at once");
    std::memset(buffer, '?', sizeof buffer);
    CHECK(file.Content() == "VQZ Debug: at once\n");
}

TEST_CASE("A host string is shown with its address and its text as UTF-8") {
    DirectHost host;
    const HeldString plain(host.MakeString("12.5", HostTextEncoding::Ascii));
    vqz::LogHostString("value", plain.Get());
    CHECK(Joined(host.TakeDebugLog()) == "VQZ Debug: value " + Address(plain.Get()) + ": 12.5\n");

    const HeldString wide(host.MakeString({"\xE9\0\x31\0", 4}, HostTextEncoding::Utf16));
    vqz::LogHostString("value", wide.Get());
    CHECK(Joined(host.TakeDebugLog()) ==
          "VQZ Debug: value " + Address(wide.Get()) + ": \xC3\xA9\x31\n");
    CHECK(host.References(wide.Get()) == 1);
}

TEST_CASE("The lines of reading a host string stand around the line that shows it") {
    DirectHost host;
    const HeldString wide(host.MakeString({"\xE9\0\x31\0", 4}, HostTextEncoding::Utf16));
    CHECK(host.LogOf([&] { vqz::LogHostString("value", wide.Get()); }) ==
          "VQZ Debug: REALGetStringData ok. Length 3\n"
          "VQZ Debug: value " +
              Address(wide.Get()) +
              ": \xC3\xA9\x31\n"
              "VQZ Debug: REALDisposeStringData UTF8\n");
}

TEST_CASE("No host string is shown with the null address and no text") {
    DirectHost host;
    vqz::LogHostString("value", nullptr);
    CHECK(Joined(host.TakeDebugLog()) == "VQZ Debug: value " + Address(nullptr) + ": \n");
}

TEST_CASE("Text without a NUL behind it does not run on in the log") {
    DirectHost host(standin::HostOptions{.unterminatedStrings = true});
    const HeldString plain(host.MakeString("12.5", HostTextEncoding::Ascii));
    vqz::LogHostString("value", plain.Get());
    CHECK(Joined(host.TakeDebugLog()) == "VQZ Debug: value " + Address(plain.Get()) + ": 12.5\n");
}
