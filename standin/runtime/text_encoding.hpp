// Text encodings of the host: their names and the conversion of text from one to another.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "interface/host_interface.hpp"

namespace standin {

/// The readable name of an encoding, e.g. "UTF-8"; an unknown code is shown as a number.
std::string EncodingName(host_interface::HostTextEncoding encoding);

/// The bytes of a text in another encoding. No value when either code is not a known encoding
/// (0xFFFF, the unknown encoding, is none). What is malformed becomes U+FFFD, and what the target
/// cannot express becomes '?'.
std::optional<std::string> ConvertText(std::string_view bytes,
                                       host_interface::HostTextEncoding from,
                                       host_interface::HostTextEncoding to);

/// Whether every text in ASCII is the same bytes in that encoding.
bool ExtendsAscii(host_interface::HostTextEncoding encoding);

}  // namespace standin
