// Host text that C string routines can be given.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "host/rb_text.hpp"

namespace vqz {

/// The UTF-8 text of a host string with a NUL behind it for certain, whatever the host stores
/// there. Holds the host string while it lives. May throw std::bad_alloc.
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

    /// The first byte; a NUL follows the last one. NULs may also stand inside.
    const char* begin() const noexcept { return view_.data(); }
    const char* end() const noexcept { return view_.data() + view_.size(); }

private:
    rbText text_;
    std::string copy_;
    std::string_view view_;
};

}  // namespace vqz
