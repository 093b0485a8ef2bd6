#include "standin/language/source.hpp"

#include <algorithm>
#include <set>
#include <utility>

#include "standin/language/unicode.hpp"

namespace standin::language {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// A line of the report is never longer than this, in characters, so that a program of one huge
/// line still gives a readable message.
constexpr std::size_t LongestShownLine = 200;

constexpr bool IsLineEnd(char character) {
    return character == '\n' || character == '\r';
}

/// Where the line begins that holds `position`. A carriage return alone ends a line as well.
std::size_t LineStart(std::string_view text, Position position) {
    while (position > 0 && !IsLineEnd(text[position - 1])) {
        --position;
    }
    return position;
}

/// Line ends before `end`; CR LF counts once.
std::size_t CountLineEnds(std::string_view text, std::size_t end) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < end; ++i) {
        const bool pairFollows = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        count += IsLineEnd(text[i]) && !pairFollows ? 1 : 0;
    }
    return count;
}

/// One character of a line as the report shows it: what is not UTF-8 becomes a question mark.
struct ShownCharacter {
    std::string_view bytes;
    std::size_t size;
};

ShownCharacter ShowCharacter(std::string_view line, std::size_t offset) {
    if (const auto character = DecodeUtf8(line, offset)) {
        return {line.substr(offset, character->size), character->size};
    }
    return {"?", 1};
}

}  // namespace

const std::vector<ProgramError>& ProgramError::further() const {
    static const std::vector<ProgramError> None;
    return further_ == nullptr ? None : *further_;
}

void ProgramError::SetFurther(std::vector<ProgramError> errors) {
    further_ = std::make_shared<const std::vector<ProgramError>>(std::move(errors));
}

Source::Source(const std::string& name, const std::string& text) {
    Add(name, text);
}

const Source::File& Source::Add(const std::string& name, const std::string& text,
                                const Item& item) {
    if (!files_.empty()) {
        text_ += '\n';
    }
    const bool hasMark = text.starts_with(ByteOrderMark);
    const auto start = text_.size();
    text_ += std::string_view(text).substr(hasMark ? ByteOrderMark.size() : 0);
    files_.push_back({.name = name, .start = start, .end = text_.size(), .item = item});
    return files_.back();
}

const Source::File& Source::FileAt(Position position) const {
    const auto behind = std::ranges::upper_bound(files_, position, {}, &File::start);
    return behind == files_.begin() ? files_.front() : *(behind - 1);
}

void Source::Validate() const {
    if (text_.size() > MaximumProgramSize) {
        throw ProgramError(0, "the program is larger than " +
                                  std::to_string(MaximumProgramSize / 1024 / 1024) + " MB");
    }
    if (const auto invalid = FindInvalidUtf8(text_)) {
        throw ProgramError(*invalid, "the program is not UTF-8 text");
    }
}

Place Source::Locate(Position position) const {
    const auto& file = FileAt(position);
    const auto text = std::string_view(text_).substr(file.start, file.end - file.start);
    position = std::min(position - file.start, text.size());
    const std::size_t start = LineStart(text, position);
    const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
    Place place{CountLineEnds(text, start) + 1, 1, std::string(text.substr(start, end - start))};
    for (std::size_t offset = start; offset < position;) {
        offset += ShowCharacter(text, offset).size;
        ++place.column;
    }
    return place;
}

std::string Source::NameLine(Position position) const {
    return FileAt(position).name + ":" + std::to_string(Locate(position).line);
}

std::string Source::Describe(const ProgramError& error) const {
    std::string report = DescribeOne(error);
    std::size_t shown = 1;
    std::size_t more = 0;
    std::set<std::string> lines{NameLine(error.position())};
    for (const auto& next : error.further()) {
        if (!lines.insert(NameLine(next.position())).second) {
            continue;
        }
        if (shown == MaximumShownErrors) {
            ++more;
            continue;
        }
        report += DescribeOne(next);
        ++shown;
    }
    if (more > 0) {
        report += "and " + std::to_string(more) + (more == 1 ? " more error\n" : " more errors\n");
    }
    return report;
}

std::string Source::DescribeOne(const ProgramError& error) const {
    const Place place = Locate(error.position());
    std::string line;
    std::string caret;
    std::size_t column = 1;
    const std::size_t firstShown =
        place.column > LongestShownLine ? place.column - LongestShownLine / 2 : 1;
    for (std::size_t offset = 0;
         offset < place.lineText.size() && column < firstShown + LongestShownLine; ++column) {
        const auto shown = ShowCharacter(place.lineText, offset);
        offset += shown.size;
        if (column < firstShown) {
            continue;
        }
        line += shown.bytes;
        if (column < place.column) {
            // Tabs stay tabs so that the caret stands right however wide they are shown.
            caret += shown.bytes == "\t" ? '\t' : ' ';
        }
    }
    return FileAt(error.position()).name + ":" + std::to_string(place.line) + ":" +
           std::to_string(place.column) + ": error: " + error.what() + DescribeDeclaration(error) +
           "\n  " + line + "\n  " + caret + "^\n";
}

std::string Source::DescribeDeclaration(const ProgramError& error) const {
    const auto declaration = error.declaration();
    if (!declaration) {
        return {};
    }
    const auto& name = FileAt(*declaration).name;
    return "; it is declared in line " + std::to_string(Locate(*declaration).line) +
           (name == FileAt(error.position()).name ? "" : " of " + name);
}

}  // namespace standin::language
