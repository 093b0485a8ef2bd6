// The text of a program, places in it, and errors that point at such a place.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace standin::language {

/// A place in a text: a byte offset.
using Position = std::size_t;

/// The largest program that is accepted, in bytes.
inline constexpr std::size_t MaximumProgramSize = std::size_t{16} * 1024 * 1024;

/// An error in a program, found before it runs, or the end of one that takes too much.
class ProgramError : public std::runtime_error {
public:
    ProgramError(Position at, const std::string& message)
        : std::runtime_error(message), position_(at) {}

    /// Where in the program's text the error is.
    Position position() const { return position_; }

private:
    Position position_;
};

/// The text ended inside a block; more text may make it right.
class UnclosedError : public ProgramError {
public:
    using ProgramError::ProgramError;
};

/// A place as people name it. Lines and columns count from 1, columns in characters.
struct Place {
    std::size_t line;
    std::size_t column;
    std::string lineText;
};

/// A program's name (as messages show it) and its text.
class Source {
public:
    /// Takes UTF-8 text; a byte-order mark at its beginning is dropped.
    Source(std::string name, std::string text);

    const std::string& name() const { return name_; }
    std::string_view text() const { return text_; }

    /// Throws ProgramError when the text is too large or is not UTF-8.
    void Validate() const;

    /// The line and column of a byte offset; the end of the text is a place too.
    Place Locate(Position position) const;

    /// The full report of an error: name, line, column, message, the line and a caret below it.
    std::string Describe(const ProgramError& error) const;

private:
    std::string name_;
    std::string text_;
};

}  // namespace standin::language
