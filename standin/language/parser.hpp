// From text to syntax tree: programs, and the declarations that a plug-in registers.
#pragma once

#include <string_view>

#include "standin/language/constants.hpp"
#include "standin/language/errors.hpp"
#include "standin/language/source.hpp"
#include "standin/language/syntax.hpp"

namespace standin::language {

/// Parses a whole program. Throws ProgramError for the mistakes in it.
syntax::Program ParseProgram(std::string_view text);
/// Parses what is right of a program. `constants` are known to it and get those of its modules.
syntax::Program ParseProgram(std::string_view text, Constants& constants, ErrorList& errors);
/// The same for a project, whose first file lists the others.
syntax::Program ParseProject(const Source& source, Constants& constants, ErrorList& errors);

/// Parses an expression that stands alone. Throws ProgramError at the first mistake.
syntax::ExpressionPtr ParseExpression(std::string_view text);

/// Parses a declaration such as `Add(other As Number, round As Boolean = True) As Number`.
/// Throws ProgramError with a position inside the declaration.
syntax::Signature ParseDeclaration(std::string_view text);

/// Parses the type of a property. Throws ProgramError with a position inside the text.
syntax::TypeName ParseTypeName(std::string_view text);

}  // namespace standin::language
