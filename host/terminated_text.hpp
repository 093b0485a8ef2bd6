// Host text for C functions that read up to a NUL.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "host/rb_text.hpp"

namespace vqz {

/// The UTF-8 text of a host string, always followed by a NUL, whatever the host stores there. Holds
/// a reference to the host string. May throw std::bad_alloc.
class TerminatedText {
public:
    explicit TerminatedText(host_interface::String text) : text_(text) {
        const char* bytes = text_.Utf8Text();
        const auto length = static_cast<std::size_t>(text_.Utf8Length());
        if (bytes[length] != '\0') {
            copy_.assign(bytes, length);
            bytes = copy_.c_str();
        }
        view_ = {bytes, length};
    }

    /// The first byte. A NUL follows the last one; the text itself may contain NULs, too.
    const char* begin() const noexcept { return view_.data(); }
    const char* end() const noexcept { return view_.data() + view_.size(); }

private:
    rbText text_;
    std::string copy_;
    std::string_view view_;
};

}  // namespace vqz
