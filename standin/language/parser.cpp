#include "standin/language/parser.hpp"

#include <span>

#include "standin/language/constants.hpp"
#include "standin/language/expression_parser.hpp"
#include "standin/language/unit_parser.hpp"

namespace standin::language {
namespace {

/// Runs a parser over a text that must hold nothing else.
template <typename Parse>
auto ParseWhole(std::string_view text, Parse parse) {
    TokenCursor cursor(text);
    ExpressionParser expressions(cursor);
    auto result = parse(expressions);
    cursor.SkipEmptyLines();
    if (!cursor.IsAt(TokenKind::EndOfText)) {
        cursor.Fail("the end");
    }
    return result;
}

}  // namespace

syntax::Program ParseProgram(std::string_view text) {
    Constants constants;
    ErrorList errors;
    auto program = ParseProgram(text, constants, errors);
    errors.ThrowIfAny();
    return program;
}

syntax::Program ParseProgram(std::string_view text, Constants& constants, ErrorList& errors) {
    syntax::Program program;
    UnitParser(text, 0, constants, errors).CollectConstants();
    UnitParser(text, 0, constants, errors).ParseScript(program);
    return program;
}

syntax::Program ParseProject(const Source& source, Constants& constants, ErrorList& errors) {
    syntax::Program program;
    const auto textOf = [&source](const Source::File& file) {
        return source.text().substr(file.start, file.end - file.start);
    };
    // The first file lists the others.
    const std::span files(source.files().begin() + 1, source.files().end());
    for (const auto& file : files) {
        UnitParser(textOf(file), file.start, constants, errors).CollectConstants();
    }
    for (const auto& file : files) {
        UnitParser(textOf(file), file.start, constants, errors).ParseProjectFile(program, file);
    }
    return program;
}

syntax::ExpressionPtr ParseExpression(std::string_view text) {
    return ParseWhole(text, [](ExpressionParser& parser) { return parser.ParseExpression(); });
}

syntax::Signature ParseDeclaration(std::string_view text) {
    auto signature =
        ParseWhole(text, [](ExpressionParser& parser) { return parser.ParseSignature(); });
    for (const auto& parameter : signature.parameters) {
        if (parameter.defaultValue && !IsLiteral(*parameter.defaultValue)) {
            throw ProgramError(parameter.defaultValue->at, "a default is a literal");
        }
    }
    return signature;
}

syntax::TypeName ParseTypeName(std::string_view text) {
    return ParseWhole(text, [](ExpressionParser& parser) { return parser.ParseTypeName(); });
}

}  // namespace standin::language
