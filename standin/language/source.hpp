// The text of a program, places in it, and errors that point at such a place.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

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

    /// The errors that were found behind this one, in the order of the text.
    const std::vector<ProgramError>& further() const;
    void SetFurther(std::vector<ProgramError> errors);

    /// Where something that the message is about is declared; a report names the line.
    std::optional<Position> declaration() const { return declaration_; }
    void SetDeclaration(std::optional<Position> at) { declaration_ = at; }

private:
    Position position_;
    std::optional<Position> declaration_;
    std::shared_ptr<const std::vector<ProgramError>> further_;
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

/// Errors that are shown of one program.
inline constexpr std::size_t MaximumShownErrors = 20;

/// The text of a program with the name that messages show. A project's files stand one behind the
/// other, so that a position tells the file as well.
class Source {
public:
    /// What a project says of one of its files: what kind of item it is, its name, and the module
    /// around it.
    struct Item {
        std::string kind;
        std::string name;
        /// Empty outside of modules.
        std::string module;
    };
    /// Where a file stands in the text.
    struct File {
        std::string name;
        Position start;
        Position end;
        /// Empty where no project lists the file.
        Item item;
    };

    /// Takes UTF-8 text; a byte-order mark at its beginning is dropped.
    Source(const std::string& name, const std::string& text);

    /// Adds another file of the program and returns where it stands.
    const File& Add(const std::string& name, const std::string& text, const Item& item = {});

    /// The name of the first file.
    const std::string& name() const { return files_.front().name; }
    std::string_view text() const { return text_; }
    const std::vector<File>& files() const { return files_; }
    /// The file that holds a position.
    const File& FileAt(Position position) const;

    /// Throws ProgramError when the text is too large or is not UTF-8.
    void Validate() const;

    /// The line and column of a byte offset in its file; the end of the text is a place too.
    Place Locate(Position position) const;
    /// File and line of a byte offset: `name:line`.
    std::string NameLine(Position position) const;

    /// The full report of an error: name, line, column, message, the line and a caret below it.
    /// Its further errors follow, the first of each line, up to `MaximumShownErrors` in all.
    std::string Describe(const ProgramError& error) const;

private:
    std::string DescribeOne(const ProgramError& error) const;
    /// "; it is declared in line 3", with the file where that is another one; empty for an error
    /// that is about no declaration.
    std::string DescribeDeclaration(const ProgramError& error) const;

    std::string text_;
    std::vector<File> files_;
};

}  // namespace standin::language
