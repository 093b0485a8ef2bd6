// The grammar around statements: programs, modules and classes, in a script or in a project's file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "standin/language/statement_parser.hpp"
#include "standin/language/tags.hpp"

namespace standin::language {

/// Parses one text into a program. Errors go to the list.
class UnitParser {
public:
    /// `constants` gets those that modules declare. `start` is the position of the text's first
    /// byte.
    UnitParser(std::string_view text, Position start, Constants& constants, ErrorList& errors)
        : cursor_(text, start),
          constants_(constants),
          errors_(errors),
          statements_(cursor_, constants, errors) {}

    /// Statements, routines, modules and classes in any order.
    void ParseScript(syntax::Program& program);
    /// The one module or class of a project's file, and what that file has to be.
    void ParseProjectFile(syntax::Program& program, const Source::File& file);
    /// Makes the constants of the text's modules known, which other texts may need before it is
    /// parsed. Mistakes are left for the parsing.
    void CollectConstants();

private:
    /// What can stand before a member.
    struct Modifiers {
        syntax::Visibility visibility = syntax::Visibility::Global;
        syntax::RoutineTag tag = syntax::RoutineTag::None;
    };

    void ParseTopLevel(syntax::Program& program);
    /// A module or class; `module` is the module around it.
    void ParseUnit(syntax::Program& program, const std::string& module);
    void ParseMembers(syntax::Unit& unit, const Token& head, syntax::Program& program);
    void ParseBase(syntax::Unit& unit);
    void ParseMember(syntax::Unit& unit, syntax::Program& program);
    /// `#tag ...` with what it says of the member that follows.
    void ParseTag(syntax::Unit& unit, syntax::Program& program);
    /// The constant of a tag, and steps past the line of the tag and those of its instances.
    syntax::Constant ReadConstant();
    /// Steps past all that a tag stands around, and its end.
    void SkipTag(const Tag& tag);
    /// Steps past `Property`, with which the host's scripts begin computed properties only.
    void TakeProperty();
    void ParseEnumeration(syntax::Program& program, const std::string& module);
    void ParseEnumerationItems(syntax::Enumeration& enumeration, TokenKind end);
    void AddConstant(syntax::Unit& unit, syntax::Constant constant);
    Modifiers TakeModifiers(Modifiers modifiers);
    /// Makes all names of the text doubtful.
    void DoubtAll();
    /// Runs an action that parses something; after an error in it goes behind that. Tells whether
    /// there was none.
    template <typename Action>
    bool TryParse(Action action) {
        const auto start = cursor_.Mark();
        const bool isRight = errors_.Try(action);
        if (!isRight) {
            statements_.Recover(start);
        }
        return isRight;
    }

    TokenCursor cursor_;
    Constants& constants_;
    ErrorList& errors_;
    StatementParser statements_;
    /// What the tag before a member says of it.
    Modifiers tagged_;
};

}  // namespace standin::language
