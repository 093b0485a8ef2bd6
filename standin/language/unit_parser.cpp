#include "standin/language/unit_parser.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <utility>

#include "standin/language/application.hpp"
#include "standin/language/names.hpp"
#include "standin/language/tags.hpp"

namespace standin::language {
namespace {

using syntax::Visibility;

/// Words that can stand where a statement of the main program ends a routine or block by mistake.
constexpr auto StrayWords = {TokenKind::End,  TokenKind::Next,  TokenKind::Wend,
                             TokenKind::Loop, TokenKind::Else,  TokenKind::ElseIf,
                             TokenKind::Case, TokenKind::Catch, TokenKind::Finally};

bool IsNamed(const Token& token, std::string_view name) {
    return token.kind == TokenKind::Name && SameName(token.text, name);
}

/// Throws when a project's file holds something else than the project says.
void RequireItem(const syntax::Unit& unit, const Source::File& file) {
    const std::string_view kind = unit.isClass || unit.isApplication ? "Class" : "Module";
    const auto& item = file.item;
    if (!SameName(unit.name, item.name) || !SameName(kind, item.kind)) {
        throw ProgramError(
            unit.at, "the project calls this file the " + item.kind + " " + Quoted(item.name));
    }
}

}  // namespace

void UnitParser::ParseScript(syntax::Program& program) {
    try {
        for (statements_.SkipToCode(); !cursor_.IsAt(TokenKind::EndOfText);
             statements_.SkipToCode()) {
            ParseTopLevel(program);
        }
        if (const auto& error = statements_.unclosedAtEnd()) {
            throw UnclosedError(*error);
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
    if (VisibilityOf(cursor_.Current()) && IsWord(cursor_.Following())) {
        TakeModifiers({});
    }
    switch (cursor_.Kind()) {
        case TokenKind::Function:
        case TokenKind::Sub:
            TryParse([&] { program.routines.push_back(statements_.ParseRoutine()); });
            break;
        case TokenKind::Module:
        case TokenKind::Class:
            TryParse([&] { ParseUnit(program, {}); });
            break;
        case TokenKind::Enum:
            TryParse([&] { ParseEnumeration(program, {}); });
            break;
        default:
            statements_.ParseInto(program.main);
            break;
    }
}

void UnitParser::ParseProjectFile(syntax::Program& program, const Source::File& file) {
    std::optional<std::size_t> unit;
    const auto errorsBefore = errors_.count();
    if (!errors_.Try([&] { RefuseForeignItem(cursor_); })) {
        return;
    }
    CheckTags(cursor_, errors_);
    try {
        for (statements_.SkipToCode(); !cursor_.IsAt(TokenKind::EndOfText);
             statements_.SkipToCode()) {
            if (cursor_.IsAt(TokenKind::HashTag)) {
                cursor_.SkipLine();
                continue;
            }
            TryParse([&] {
                TakeModifiers({});
                statements_.RefuseUnsupported();
                if (!cursor_.IsAtAny({TokenKind::Module, TokenKind::Class})) {
                    cursor_.Fail("a module or a class");
                }
                ParseUnit(program, file.item.module);
                unit = unit.value_or(program.units.size() - 1);
            });
        }
        if (const auto& error = statements_.unclosedAtEnd()) {
            throw UnclosedError(*error);
        }
    } catch (const UnclosedError& error) {
        // What ends nowhere may have swallowed the rest because of another error.
        if (errors_.count() == errorsBefore) {
            errors_.AddUnclosed(error);
        }
        DoubtAll();
    }
    if (unit) {
        if (!errors_.Try([&] { RequireItem(program.units[*unit], file); })) {
            errors_.Doubt(file.item.name);
        }
    } else if (errors_.count() == errorsBefore) {
        errors_.Add(ProgramError(cursor_.At(), "the file holds no module and no class"));
    }
}

void UnitParser::DoubtAll() {
    for (cursor_.Rewind(0); !cursor_.IsAt(TokenKind::EndOfText);) {
        statements_.SkipDoubtfulLine();
    }
}

void UnitParser::ParseUnit(syntax::Program& program, const std::string& module) {
    const auto head = cursor_.Take();
    syntax::Unit unit;
    unit.isClass = head.kind == TokenKind::Class;
    unit.module = module;
    const auto name = cursor_.ExpectNewName();
    unit.name = name.text;
    unit.at = name.at;
    cursor_.ExpectEndOfLine();
    ParseMembers(unit, head, program);
    statements_.ExpectEnd(head.kind);
    cursor_.ExpectEndOfLine();
    program.units.push_back(std::move(unit));
}

void UnitParser::ParseMembers(syntax::Unit& unit, const Token& head, syntax::Program& program) {
    const StatementParser::OpenBlock open(statements_, head.kind);
    tagged_ = {};
    for (statements_.SkipToCode();; statements_.SkipToCode()) {
        if (cursor_.IsAt(TokenKind::EndOfText)) {
            statements_.LeaveUnclosed(head.kind, head.at);
            return;
        }
        const auto word = cursor_.Following().kind;
        const bool endsUnit = word == TokenKind::Class || word == TokenKind::Module ||
                              word == TokenKind::EndOfLine || word == TokenKind::Name;
        if (!cursor_.IsAt(TokenKind::End)) {
            const bool isRight = TryParse([&] { ParseMember(unit, program); });
            unit.isIncomplete = unit.isIncomplete || !isRight;
        } else if (endsUnit) {
            return;
        } else if (errors_.empty()) {
            statements_.RefuseEnd();
        } else {
            // It ended something that has an error.
            cursor_.SkipLine();
        }
    }
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
    while (IsWord(cursor_.Following())) {
        const auto visibility = VisibilityOf(cursor_.Current());
        if (!visibility) {
            break;
        }
        cursor_.Take();
        modifiers.visibility = *visibility;
    }
    return modifiers;
}

void UnitParser::ParseMember(syntax::Unit& unit, syntax::Program& program) {
    if (cursor_.IsAt(TokenKind::HashTag)) {
        ParseTag(unit, program);
        return;
    }
    const auto modifiers = TakeModifiers(std::exchange(tagged_, {}));
    if (IsNamed(cursor_.Current(), "Inherits")) {
        ParseBase(unit);
        return;
    }
    if (IsNamed(cursor_.Current(), "Property") && IsWord(cursor_.Following())) {
        TakeProperty();
    }
    statements_.RefuseUnsupported();
    switch (cursor_.Kind()) {
        case TokenKind::Function:
        case TokenKind::Sub: {
            auto routine = statements_.ParseRoutine();
            routine.visibility = modifiers.visibility;
            routine.tag = modifiers.tag;
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
            ParseEnumeration(program, unit.name);
            return;
        case TokenKind::Class:
            if (!unit.isClass && !unit.isApplication) {
                ParseUnit(program, unit.name);
                return;
            }
            throw ProgramError(cursor_.At(), "Classes within classes are not supported here");
        case TokenKind::Module:
            throw ProgramError(cursor_.At(), "Modules within others are not supported here");
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
    tagged_ = {};
    if (!errors_.Try([&] { RefuseForeignMember(token); })) {
        cursor_.SkipLine();
        SkipTag(tag);
        unit.isIncomplete = true;
        return;
    }
    tagged_.tag = tag.Is("Event")    ? syntax::RoutineTag::Event
                  : tag.Is("Method") ? syntax::RoutineTag::Method
                                     : syntax::RoutineTag::None;
    if (const auto flags = tag.Number("Flags")) {
        constexpr std::uint64_t Private = 0x20;
        constexpr std::uint64_t Protected = 0x1;
        tagged_.visibility = (*flags & Private) != 0     ? Visibility::Private
                             : (*flags & Protected) != 0 ? Visibility::Qualified
                                                         : Visibility::Global;
    }
    if (tag.Is("Constant")) {
        if (!errors_.Try([&] { AddConstant(unit, ReadConstant()); })) {
            errors_.Doubt(std::string(tag.Text("Name").value_or("")));
        }
        return;
    }
    cursor_.SkipLine();
    if (tag.Is("Enum")) {
        syntax::Enumeration enumeration{
            std::string(tag.Text("Name").value_or("")), token.at, {}, unit.name};
        // A declaration in words may stand in place of the bare values.
        if (cursor_.IsAt(TokenKind::Enum)) {
            return;
        }
        ParseEnumerationItems(enumeration, TokenKind::HashTag);
        program.enumerations.push_back(std::move(enumeration));
    }
}

syntax::Constant UnitParser::ReadConstant() {
    const auto token = cursor_.Current();
    std::vector<Token> lines;
    const auto next = [this] {
        cursor_.SkipLine();
        cursor_.SkipEmptyLines();
    };
    for (next(); cursor_.IsAt(TokenKind::HashTag) && Tag(cursor_.Current()).Is("Instance");
         next()) {
        lines.push_back(cursor_.Current());
    }
    const std::vector<Tag> instances(lines.begin(), lines.end());
    return Tag(token).ReadConstant(instances);
}

void UnitParser::SkipTag(const Tag& tag) {
    bool isInside = true;
    while (isInside && !cursor_.IsAt(TokenKind::EndOfText)) {
        const auto word = cursor_.Following().kind;
        if (cursor_.IsAt(TokenKind::End) &&
            (word == TokenKind::Class || word == TokenKind::Module)) {
            return;
        }
        const auto line = cursor_.Current();
        isInside = line.kind != TokenKind::HashTag || !tag.IsEndedBy(Tag(line));
        statements_.SkipDoubtfulLine();
    }
}

void UnitParser::TakeProperty() {
    const auto property = cursor_.Mark();
    cursor_.SkipLine();
    cursor_.SkipEmptyLines();
    const bool isComputed = IsNamed(cursor_.Current(), "Get") || IsNamed(cursor_.Current(), "Set");
    cursor_.Rewind(property);
    if (!isComputed) {
        // `X As Type`
        std::string declaration = cursor_.Following().text;
        for (auto mark = property + 2; mark < property + 4 && mark <= cursor_.EndOfLine(property);
             ++mark) {
            declaration += " " + cursor_.TokenAt(mark).text;
        }
        errors_.Add(ProgramError(
            cursor_.At(), "a property is written " + Quoted(declaration) + ", without this word"));
        cursor_.Take();
    }
}

void UnitParser::AddConstant(syntax::Unit& unit, syntax::Constant constant) {
    constants_.Set(constant.name, constant.value);
    constants_.Set(unit.name + "." + constant.name, constant.value);
    unit.constants.push_back(std::move(constant));
}

void UnitParser::ParseEnumeration(syntax::Program& program, const std::string& module) {
    const auto at = cursor_.Take().at;
    syntax::Enumeration enumeration{cursor_.ExpectNewName().text, at, {}, module};
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
        const auto isSame = [&name](const auto& item) { return SameName(item.name, name.text); };
        if (std::ranges::any_of(enumeration.items, isSame)) {
            errors_.Add(ProgramError(name.at, Quoted(name.text) + " is declared already"));
        }
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
                constant = ReadConstant();
            }
            if (constant) {
                constants_.Set(constant->name, constant->value);
                constants_.Set(unit + "." + constant->name, constant->value);
            }
        });
    }
}

}  // namespace standin::language
