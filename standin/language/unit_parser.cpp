#include "standin/language/unit_parser.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <utility>

#include "standin/language/names.hpp"
#include "standin/language/tags.hpp"

namespace standin::language {
namespace {

using syntax::Visibility;

/// The class whose only object is the application.
constexpr std::string_view ApplicationBase = "ConsoleApplication";

struct Modifier {
    std::string_view word;
    Visibility visibility;
};

constexpr auto ModifierWords = std::to_array<Modifier>({
    {"Global", Visibility::Global},
    {"Public", Visibility::Global},
    {"Protected", Visibility::Qualified},
    {"Private", Visibility::Private},
});

/// Words that can stand where a statement of the main program ends a routine or block by mistake.
constexpr auto StrayWords = {TokenKind::End,  TokenKind::Next,  TokenKind::Wend,
                             TokenKind::Loop, TokenKind::Else,  TokenKind::ElseIf,
                             TokenKind::Case, TokenKind::Catch, TokenKind::Finally};

const Modifier* FindModifier(const Token& token) {
    const auto* found = std::ranges::find_if(ModifierWords, [&token](const Modifier& row) {
        return token.kind == TokenKind::Name && SameName(row.word, token.text);
    });
    return found == ModifierWords.end() ? nullptr : found;
}

}  // namespace

void UnitParser::ParseScript(syntax::Program& program) {
    try {
        for (statements_.SkipToCode(); !cursor_.IsAt(TokenKind::EndOfText);
             statements_.SkipToCode()) {
            ParseTopLevel(program);
        }
    } catch (const UnclosedError& error) {
        errors_.AddUnclosed(error);
    }
}

void UnitParser::ParseTopLevel(syntax::Program& program) {
    if (!errors_.empty() && cursor_.IsAtAny(StrayWords)) {
        cursor_.SkipLine();
        return;
    }
    if (FindModifier(cursor_.Current()) != nullptr && IsWord(cursor_.Following())) {
        TakeModifiers({});
    }
    switch (cursor_.Kind()) {
        case TokenKind::Function:
        case TokenKind::Sub:
            TryParse([&] { program.routines.push_back(statements_.ParseRoutine()); });
            break;
        case TokenKind::Module:
        case TokenKind::Class:
            TryParse([&] { ParseUnit(program); });
            break;
        case TokenKind::Enum:
            TryParse([&] { ParseEnumeration(program); });
            break;
        default:
            statements_.ParseInto(program.main);
            break;
    }
}

void UnitParser::ParseProjectFile(syntax::Program& program) {
    const auto count = program.units.size();
    try {
        for (statements_.SkipToCode(); !cursor_.IsAt(TokenKind::EndOfText);
             statements_.SkipToCode()) {
            if (cursor_.IsAt(TokenKind::HashTag)) {
                TryParse([&] {
                    RefuseForeignItem(cursor_.Current());
                    cursor_.SkipLine();
                });
                continue;
            }
            TryParse([&] {
                if (FindModifier(cursor_.Current()) != nullptr) {
                    TakeModifiers({});
                }
                statements_.RefuseUnsupported();
                if (!cursor_.IsAtAny({TokenKind::Module, TokenKind::Class})) {
                    cursor_.Fail("a module or a class");
                }
                ParseUnit(program);
            });
        }
    } catch (const UnclosedError& error) {
        errors_.AddUnclosed(error);
    }
    if (errors_.empty() && program.units.size() == count) {
        errors_.Add(ProgramError(cursor_.At(), "the file holds no module and no class"));
    }
}

void UnitParser::ParseUnit(syntax::Program& program) {
    const auto head = cursor_.Take();
    syntax::Unit unit;
    unit.isClass = head.kind == TokenKind::Class;
    const auto name = cursor_.ExpectName();
    unit.name = name.text;
    unit.at = name.at;
    cursor_.ExpectEndOfLine();
    tagged_ = {};
    for (statements_.SkipToCode(); !cursor_.IsAt(TokenKind::End); statements_.SkipToCode()) {
        if (cursor_.IsAt(TokenKind::EndOfText)) {
            throw UnclosedError(head.at, "this " + Describe(head.kind) + " is never closed");
        }
        TryParse([&] { ParseMember(unit, program); });
    }
    statements_.ExpectEnd(head.kind);
    cursor_.ExpectEndOfLine();
    program.units.push_back(std::move(unit));
}

void UnitParser::ParseBase(syntax::Unit& unit) {
    cursor_.Take();
    const auto base = cursor_.ExpectName();
    if (!SameName(base.text, ApplicationBase) && !SameName(base.text, "Object")) {
        throw ProgramError(
            base.at, "Classes that inherit from " + Quoted(base.text) + " are not supported here");
    }
    if (SameName(base.text, ApplicationBase)) {
        unit.isClass = false;
        unit.isApplication = true;
    }
    cursor_.ExpectEndOfLine();
}

UnitParser::Modifiers UnitParser::TakeModifiers(Modifiers modifiers) {
    const auto* modifier = FindModifier(cursor_.Current());
    for (; modifier != nullptr && IsWord(cursor_.Following());
         modifier = FindModifier(cursor_.Current())) {
        cursor_.Take();
        modifiers.visibility = modifier->visibility;
    }
    return modifiers;
}

void UnitParser::ParseMember(syntax::Unit& unit, syntax::Program& program) {
    if (cursor_.IsAt(TokenKind::HashTag)) {
        ParseTag(unit, program);
        return;
    }
    const auto modifiers = TakeModifiers(std::exchange(tagged_, {}));
    if (cursor_.IsAt(TokenKind::Name) && SameName(cursor_.Current().text, "Inherits")) {
        ParseBase(unit);
        return;
    }
    statements_.RefuseUnsupported();
    switch (cursor_.Kind()) {
        case TokenKind::Function:
        case TokenKind::Sub: {
            auto routine = statements_.ParseRoutine();
            routine.visibility = modifiers.visibility;
            unit.routines.push_back(std::move(routine));
            return;
        }
        case TokenKind::Const: {
            const auto at = cursor_.At();
            const auto constant = statements_.ParseConst();
            auto value = Evaluate(*constant.value, statements_.constants());
            AddConstant(unit, {constant.name, at, std::move(value), modifiers.visibility});
            cursor_.ExpectEndOfLine();
            return;
        }
        case TokenKind::Enum:
            ParseEnumeration(program);
            return;
        case TokenKind::Dim:
        case TokenKind::Var:
            cursor_.Take();
            break;
        default:
            break;
    }
    if (!cursor_.IsAt(TokenKind::Name)) {
        cursor_.Fail("a member of " + Quoted(unit.name));
    }
    std::vector<syntax::Declarator> declarators;
    do {
        statements_.ParseDeclarators(declarators);
    } while (cursor_.TryTake(TokenKind::Comma));
    cursor_.ExpectEndOfLine();
    for (auto& declarator : declarators) {
        unit.fields.push_back({std::move(declarator), modifiers.visibility});
    }
}

void UnitParser::ParseTag(syntax::Unit& unit, syntax::Program& program) {
    const auto token = cursor_.Current();
    const Tag tag(token);
    RefuseForeignMember(token);
    tagged_ = {};
    if (const auto flags = tag.Number("Flags")) {
        constexpr std::uint64_t Private = 0x20;
        constexpr std::uint64_t Protected = 0x1;
        tagged_.visibility = (*flags & Private) != 0     ? Visibility::Private
                             : (*flags & Protected) != 0 ? Visibility::Qualified
                                                         : Visibility::Global;
    }
    if (tag.Is("Constant")) {
        auto constant = tag.ReadConstant();
        cursor_.SkipLine();
        AddConstant(unit, std::move(constant));
        return;
    }
    cursor_.SkipLine();
    if (tag.Is("Enum")) {
        syntax::Enumeration enumeration{std::string(tag.Text("Name").value_or("")), token.at, {}};
        // A declaration in words may stand in place of the bare values.
        if (cursor_.IsAt(TokenKind::Enum)) {
            return;
        }
        ParseEnumerationItems(enumeration, TokenKind::HashTag);
        program.enumerations.push_back(std::move(enumeration));
    }
}

void UnitParser::AddConstant(syntax::Unit& unit, syntax::Constant constant) {
    constants_.Set(constant.name, constant.value);
    constants_.Set(unit.name + "." + constant.name, constant.value);
    unit.constants.push_back(std::move(constant));
}

void UnitParser::ParseEnumeration(syntax::Program& program) {
    const auto at = cursor_.Take().at;
    syntax::Enumeration enumeration{cursor_.ExpectName().text, at, {}};
    if (cursor_.TryTake(TokenKind::As)) {
        statements_.expressions().ParseTypeName();
    }
    cursor_.ExpectEndOfLine();
    ParseEnumerationItems(enumeration, TokenKind::End);
    statements_.ExpectEnd(TokenKind::Enum);
    cursor_.ExpectEndOfLine();
    program.enumerations.push_back(std::move(enumeration));
}

void UnitParser::ParseEnumerationItems(syntax::Enumeration& enumeration, TokenKind end) {
    std::int64_t next = 0;
    for (statements_.SkipToCode(); !cursor_.IsAt(end); statements_.SkipToCode()) {
        if (cursor_.IsAt(TokenKind::EndOfText)) {
            throw UnclosedError(enumeration.at, "this \"Enum\" is never closed");
        }
        const auto name = cursor_.ExpectWord();
        if (cursor_.TryTake(TokenKind::Equal)) {
            const auto expression = statements_.expressions().ParseExpression();
            const auto value = Evaluate(*expression, statements_.constants());
            const auto* number = std::get_if<std::int64_t>(&value);
            if (number == nullptr) {
                throw ProgramError(expression->at, "a value of an \"Enum\" is a whole number");
            }
            next = *number;
        }
        cursor_.ExpectEndOfLine();
        enumeration.items.push_back({name.text, name.at, next});
        next = static_cast<std::int64_t>(static_cast<std::uint64_t>(next) + 1);
    }
}

void UnitParser::CollectConstants() {
    ErrorList ignored;
    std::string unit;
    bool isInRoutine = false;
    for (; !cursor_.IsAt(TokenKind::EndOfText); cursor_.SkipLine()) {
        TakeModifiers({});
        const bool isEnd = cursor_.IsAt(TokenKind::End);
        const auto kind = isEnd ? cursor_.Following().kind : cursor_.Kind();
        if (kind == TokenKind::Function || kind == TokenKind::Sub) {
            isInRoutine = !isEnd;
        } else if (!isEnd && (kind == TokenKind::Module || kind == TokenKind::Class)) {
            unit = cursor_.Following().text;
        }
        ignored.Try([&] {
            std::optional<syntax::Constant> constant;
            if (kind == TokenKind::Const && !isEnd && !isInRoutine && !unit.empty()) {
                const auto parsed = statements_.ParseConst();
                constant = {parsed.name, 0, Evaluate(*parsed.value, statements_.constants()), {}};
            } else if (kind == TokenKind::HashTag && Tag(cursor_.Current()).Is("Constant")) {
                constant = Tag(cursor_.Current()).ReadConstant();
            }
            if (constant) {
                constants_.Set(constant->name, constant->value);
                constants_.Set(unit + "." + constant->name, constant->value);
            }
        });
    }
}

}  // namespace standin::language
