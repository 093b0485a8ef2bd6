// Tokens, and the texts that are none.
#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "standin/language/lexer.hpp"
#include "standin/language/source.hpp"

using standin::language::MaximumProgramSize;
using standin::language::ProgramError;
using standin::language::Source;
using standin::language::Token;
using standin::language::Tokenize;
using standin::language::TokenKind;

namespace {

std::vector<TokenKind> KindsOf(std::string_view text) {
    std::vector<TokenKind> kinds;
    for (const auto& token : Tokenize(text)) {
        kinds.push_back(token.kind);
    }
    return kinds;
}

/// The one token of a text that holds one.
Token Only(std::string_view text) {
    const auto tokens = Tokenize(text);
    REQUIRE(tokens.size() == 3);
    return tokens.front();
}

/// The mistake in a text: its offset and the message.
std::string MistakeIn(std::string_view text) {
    for (const auto& token : Tokenize(text)) {
        if (token.kind == TokenKind::Mistake) {
            return std::to_string(token.at) + ": " + token.text;
        }
    }
    return "none";
}

}  // namespace

TEST_CASE("words are reserved in any letter case") {
    CHECK(Only("dIm").kind == TokenKind::Dim);
    CHECK(Only("WEND").kind == TokenKind::Wend);
    CHECK(Only("dimension").kind == TokenKind::Name);
    CHECK(Only("a_1").text == "a_1");
    CHECK(Only("größe").text == "größe");
}

TEST_CASE("numbers") {
    CHECK(Only("0").integer == 0);
    CHECK(Only("18446744073709551615").integer == 18446744073709551615U);
    CHECK(Only("&hFf").integer == 255);
    CHECK(Only("&B101").integer == 5);
    CHECK(Only("&o17").integer == 15);
    CHECK(Only("1.5").real == 1.5);
    CHECK(Only(".5").real == 0.5);
    CHECK(Only("1e5").real == 1e5);
    CHECK(Only("1E+5").kind == TokenKind::Real);
    CHECK(Only("2.5e-3").real == 2.5e-3);
    CHECK(KindsOf("1.abs") == std::vector{TokenKind::Integer, TokenKind::Dot, TokenKind::Name,
                                          TokenKind::EndOfLine, TokenKind::EndOfText});
    CHECK(MistakeIn("18446744073709551616") ==
          "0: the number 18446744073709551616 does not fit in 64 bits");
    CHECK(MistakeIn("&h1FFFFFFFFFFFFFFFF") ==
          "0: the number &h1FFFFFFFFFFFFFFFF does not fit in 64 bits");
    CHECK(MistakeIn("1e999") == "0: the number 1e999 is outside the range of Double");
    CHECK(MistakeIn("&hXY") == "0: \"&hXY\" is not a number");
    CHECK(MistakeIn("&b12") == "0: \"&b12\" is not a number");
    CHECK(MistakeIn("&h") == "0: \"&h\" is not a number");
    CHECK(MistakeIn("&x1") ==
          "0: \"&\" begins a number in the forms &h, &o and &b; \"+\" joins texts");
    CHECK(MistakeIn("12ab") == "2: a number is directly followed by \"a\"");
    CHECK(MistakeIn("1e") == "1: a number is directly followed by \"e\"");
}

TEST_CASE("texts") {
    CHECK(Only("\"a\"\"b\"").text == "a\"b");
    CHECK(Only("\"\"").text.empty());
    CHECK(Only("\"' no comment // here\"").text == "' no comment // here");
    CHECK(MistakeIn("x = \"abc") == "4: the text is not closed with a quotation mark");
    CHECK(MistakeIn("\"a\nb\"") == "0: the text is not closed with a quotation mark");
}

TEST_CASE("comments end with the line") {
    const std::vector twoLines = {TokenKind::Name, TokenKind::EndOfLine, TokenKind::Name,
                                  TokenKind::EndOfLine, TokenKind::EndOfText};
    CHECK(KindsOf("a ' x\nb") == twoLines);
    CHECK(KindsOf("a // x\r\nb") == twoLines);
    CHECK(KindsOf("a Rem x\rb") == twoLines);
    CHECK(Only("remainder").kind == TokenKind::Name);
    CHECK(KindsOf("rem").size() == 2);
}

TEST_CASE("an underscore continues the line") {
    CHECK(KindsOf("a _\nb").size() == 4);
    CHECK(KindsOf("a _  \r\nb").size() == 4);
    CHECK(KindsOf("a _ ' why\nb").size() == 4);
    CHECK(MistakeIn("a _ b") == "2: \"_\" continues a line only at the line's end");
    CHECK(MistakeIn("a _") == "2: \"_\" continues a line only at the line's end");
}

TEST_CASE("operators are read as long as they go") {
    CHECK(KindsOf("<><=>=<>=") == std::vector{TokenKind::NotEqual, TokenKind::LessEqual,
                                              TokenKind::GreaterEqual, TokenKind::NotEqual,
                                              TokenKind::Equal, TokenKind::EndOfLine,
                                              TokenKind::EndOfText});
    CHECK(MistakeIn("a ? b") == "2: unexpected character \"?\"");
    CHECK(MistakeIn(std::string("a\0b", 3)) == "1: unexpected character with the code 0");
}

TEST_CASE("places are told by line and column, in characters") {
    const Source source("p",
                        "\xEF\xBB\xBF"
                        "ab\r\nDim \xC3\xB6 As X\rlast");
    CHECK(source.Locate(0).line == 1);
    CHECK(source.Locate(0).column == 1);
    const auto place = source.Locate(source.text().find("As"));
    CHECK(place.line == 2);
    CHECK(place.column == 7);
    CHECK(place.lineText == "Dim \xC3\xB6 As X");
    CHECK(source.Locate(source.text().size()).line == 3);
    CHECK(source.Locate(source.text().size()).column == 5);
}

TEST_CASE("a report shows the line with a caret below the place") {
    const Source source("p.txt", "one\n\tDim \xC3\xB6 As X\n");
    CHECK(source.Describe({source.text().find('X'), "no X"}) ==
          "p.txt:2:11: error: no X\n  \tDim \xC3\xB6 As X\n  \t         ^\n");
    const Source empty("e", "");
    CHECK(empty.Describe({0, "nothing"}) == "e:1:1: error: nothing\n  \n  ^\n");
}

TEST_CASE("a report of a huge line shows the part around the place") {
    const Source source("p", std::string(5000, 'a') + "?" + std::string(5000, 'b'));
    const auto report = source.Describe({5000, "here"});
    CHECK(report.starts_with("p:1:5001: error: here\n"));
    CHECK(report.size() < 500);
    const auto lineStart = report.find("\n  ") + 1;
    const auto caretStart = report.find("\n  ", lineStart) + 1;
    CHECK(report[lineStart + report.find('^') - caretStart] == '?');
}

TEST_CASE("a program is UTF-8 and of reasonable size") {
    const Source broken("p", "Print \"a\xFF\"\n");
    CHECK_THROWS_WITH_AS(broken.Validate(), "the program is not UTF-8 text", ProgramError);
    CHECK(broken.Describe({8, "x"}).find("\"a?\"") != std::string::npos);
    const Source overlong("p", "\xC0\x80");
    CHECK_THROWS_AS(overlong.Validate(), ProgramError);
    const Source surrogate("p", "\xED\xA0\x80");
    CHECK_THROWS_AS(surrogate.Validate(), ProgramError);
    const Source huge("p", std::string(MaximumProgramSize + 1, ' '));
    CHECK_THROWS_WITH_AS(huge.Validate(), "the program is larger than 16 MB", ProgramError);
    CHECK_NOTHROW(Source("p", "Print \"\xF0\x9D\x84\x9E\"").Validate());
}
