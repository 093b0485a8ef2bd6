#include "tests/unit/support/host_values.hpp"

#include <cstdio>

#include <doctest/doctest.h>

namespace tests {
namespace {

using host_interface::HostTextEncoding;

std::string NameOf(HostTextEncoding encoding) {
    switch (encoding) {
        case HostTextEncoding::MacRoman:
            return "MacRoman";
        case HostTextEncoding::Latin1:
            return "Latin1";
        case HostTextEncoding::WindowsAnsi:
            return "Windows";
        case HostTextEncoding::Ascii:
            return "ASCII";
        case HostTextEncoding::Utf8:
            return "UTF-8";
        case HostTextEncoding::Utf16:
            return "UTF-16";
        case HostTextEncoding::Utf32:
            return "UTF-32";
        case HostTextEncoding::Unknown:
            return "unknown";
        default:
            return "code " + std::to_string(static_cast<std::uint32_t>(encoding));
    }
}

}  // namespace

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line;
        text += '\n';
    }
    return text;
}

std::string LogLines(std::initializer_list<std::string_view> events) {
    std::string text;
    for (const std::string_view event : events) {
        text.append("VQZ Debug: ").append(event).append("\n");
    }
    return text;
}

std::string TakeRaised(standin::Host& host) {
    const HeldObject exception(host.TakeException());
    if (!exception) {
        return {};
    }
    CHECK(host.ErrorNumber(exception.Get()) == 0);
    return host.ClassOf(exception.Get()).name + ": " + host.Message(exception.Get());
}

std::string Described(host_interface::String text) {
    if (text == nullptr) {
        return "null";
    }
    standin::Host& host = standin::Host::Current();
    std::string description = NameOf(host.Encoding(text));
    for (const char byte : host.Bytes(text)) {
        char digits[4] = {};
        std::snprintf(digits, sizeof digits, " %02X",
                      static_cast<unsigned>(static_cast<unsigned char>(byte)));
        description += digits;
    }
    return description;
}

void CheckLedger(const standin::Host& host) {
    CHECK(Joined(host.Leaks()) == "");
}

std::string Address(host_interface::String text) {
    char printed[32] = {};
    std::snprintf(printed, sizeof printed, "%p", static_cast<const void*>(text));
    return printed;
}

}  // namespace tests
