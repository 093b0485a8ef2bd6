#include "standin/language/statement_parser.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "standin/language/names.hpp"

namespace standin::language {
namespace {

using syntax::BinaryOperator;

/// Words of the host's language that begin what there is not here, and how messages call that.
struct Unsupported {
    std::string_view word;
    std::string_view name;
};

constexpr std::string_view SharedWord = "Shared";

constexpr auto UnsupportedWords = std::to_array<Unsupported>({
    {"AddHandler", "Event handlers are"},
    {"RemoveHandler", "Event handlers are"},
    {"RaiseEvent", "Events are"},
    {"Event", "Events are"},
    {"Declare", "Declares are"},
    {"Soft", "Declares are"},
    {"Delegate", "Delegates are"},
    {"GoTo", "\"GoTo\" is"},
    {"Implements", "Interfaces are"},
    {"Interface", "Interfaces are"},
    {"Namespace", "Namespaces are"},
    {"Property", "Computed properties are"},
    {SharedWord, "Shared members are"},
    {"Structure", "Structures are"},
    {"Using", "\"Using\" is"},
});

/// Words that begin the last line of a block.
constexpr auto Closers = {TokenKind::End, TokenKind::Next, TokenKind::Wend, TokenKind::Loop};
/// Words that begin another part of a block.
constexpr auto Dividers = {TokenKind::ElseIf, TokenKind::Else,    TokenKind::Case,
                           TokenKind::Catch,  TokenKind::Finally, TokenKind::Exception};
/// Words that begin a block.
constexpr auto Openers = {TokenKind::If,       TokenKind::Select, TokenKind::For,
                          TokenKind::While,    TokenKind::Do,     TokenKind::Try,
                          TokenKind::Function, TokenKind::Sub,    TokenKind::Class,
                          TokenKind::Module,   TokenKind::Enum};
/// Words that begin the declaration of a variable or constant.
constexpr auto Declarers = {TokenKind::Dim, TokenKind::Var, TokenKind::Static, TokenKind::Const};
/// Words that begin what cannot stand among statements.
constexpr auto UnitHeads = {TokenKind::Function, TokenKind::Sub, TokenKind::Class,
                            TokenKind::Module};
constexpr auto RoutineHeads = {TokenKind::Function, TokenKind::Sub};

struct Modifier {
    std::string_view word;
    syntax::Visibility visibility;
};

constexpr auto Modifiers = std::to_array<Modifier>({
    {"Global", syntax::Visibility::Global},
    {"Public", syntax::Visibility::Global},
    {"Protected", syntax::Visibility::Qualified},
    {"Private", syntax::Visibility::Private},
});

/// The first and last words of the loops.
struct LoopWords {
    TokenKind opener;
    TokenKind end;
};

constexpr auto Loops = std::to_array<LoopWords>({
    {TokenKind::For, TokenKind::Next},
    {TokenKind::While, TokenKind::Wend},
    {TokenKind::Do, TokenKind::Loop},
});

bool IsLoop(TokenKind opener) {
    return std::ranges::find(Loops, opener, &LoopWords::opener) != Loops.end();
}

/// Whether an `End` with that word ends nothing in a routine or a loop: any other may be meant for
/// it.
bool IsStrayEnd(TokenKind word, TokenKind opener) {
    const bool isRoutine = std::ranges::find(RoutineHeads, opener) != RoutineHeads.end();
    const bool endsBranches =
        word == TokenKind::If || word == TokenKind::Select || word == TokenKind::Try;
    return (endsBranches && (isRoutine || IsLoop(opener))) || (isRoutine && IsLoop(word));
}

const Unsupported* FindUnsupported(const Token& token) {
    const auto* found = std::ranges::find_if(UnsupportedWords, [&token](const Unsupported& row) {
        return token.kind == TokenKind::Name && SameName(row.word, token.text);
    });
    return found == UnsupportedWords.end() ? nullptr : found;
}

bool IsOneOf(TokenKind kind, std::initializer_list<TokenKind> kinds) {
    return std::ranges::find(kinds, kind) != kinds.end();
}

std::optional<BinaryOperator> CompoundOperator(TokenKind kind) {
    switch (kind) {
        case TokenKind::PlusEqual:
            return BinaryOperator::Add;
        case TokenKind::MinusEqual:
            return BinaryOperator::Subtract;
        case TokenKind::StarEqual:
            return BinaryOperator::Multiply;
        case TokenKind::SlashEqual:
            return BinaryOperator::Divide;
        default:
            return std::nullopt;
    }
}

}  // namespace

std::optional<syntax::Visibility> VisibilityOf(const Token& token) {
    const auto* found = std::ranges::find_if(Modifiers, [&token](const Modifier& row) {
        return token.kind == TokenKind::Name && SameName(row.word, token.text);
    });
    return found == Modifiers.end() ? std::nullopt : std::optional(found->visibility);
}

void StatementParser::ParseInto(syntax::Block& block) {
    const auto start = cursor_.Mark();
    isClosed_ = true;
    const bool isRight = errors_.Try([&] {
        auto statement = ParseUnended();
        if (isClosed_) {
            cursor_.ExpectEndOfLine();
        }
        block.push_back(std::move(statement));
    });
    if (!isRight) {
        Recover(start);
    }
}

void StatementParser::Recover(std::size_t start) {
    // What the line declares is not known now.
    DoubtNames(start);
    const auto line =
        cursor_.StartOfLine(cursor_.IsAt(TokenKind::EndOfText) ? start : cursor_.Mark());
    if (line > start && (IsOutsideOfStatements(line) || EndsOpenBlock(line, open_.size()))) {
        cursor_.Rewind(line);
        return;
    }
    const auto word = cursor_.TokenAt(line).kind;
    const bool isInside = OpensBlock(start) && (line <= start || IsOneOf(word, Dividers));
    cursor_.SkipLine();
    if (isInside) {
        SkipBlock();
    } else if (FindUnsupported(cursor_.TokenAt(start)) != nullptr) {
        SkipUnsupported(start);
    }
}

void StatementParser::DoubtNames(std::size_t start) {
    const auto end = cursor_.EndOfLine(start);
    for (auto mark = start; mark <= end; ++mark) {
        if (cursor_.TokenAt(mark).kind == TokenKind::Name) {
            errors_.Doubt(cursor_.TokenAt(mark).text);
        }
    }
}

void StatementParser::SkipDoubtfulLine() {
    DoubtNames(cursor_.Mark());
    cursor_.SkipLine();
}

void StatementParser::SkipToEndOfLine() {
    while (!cursor_.IsAtAny({TokenKind::EndOfLine, TokenKind::EndOfText})) {
        cursor_.Take();
    }
}

TokenKind StatementParser::HeadOf(std::size_t line) const {
    auto mark = line;
    while (VisibilityOf(cursor_.TokenAt(mark)) ||
           (cursor_.TokenAt(mark).kind == TokenKind::Name &&
            SameName(cursor_.TokenAt(mark).text, SharedWord))) {
        ++mark;
    }
    const auto kind = cursor_.TokenAt(mark).kind;
    return IsOneOf(kind, UnitHeads) ? kind : cursor_.TokenAt(line).kind;
}

bool StatementParser::OpensBlock(std::size_t start) const {
    const auto kind = HeadOf(start);
    if (kind != TokenKind::If) {
        return IsOneOf(kind, Openers);
    }
    // What stands behind "Then" makes it an If of one line.
    const auto end = cursor_.EndOfLine(start);
    for (auto mark = start; mark < end; ++mark) {
        if (cursor_.TokenAt(mark).kind == TokenKind::Then) {
            return false;
        }
    }
    return true;
}

bool StatementParser::BelongsTo(std::size_t line, TokenKind opener) const {
    const auto word = cursor_.TokenAt(line).kind;
    switch (word) {
        case TokenKind::End:
            return cursor_.TokenAt(line + 1).kind == opener;
        case TokenKind::Else:
            return opener == TokenKind::If || opener == TokenKind::Select;
        case TokenKind::ElseIf:
            return opener == TokenKind::If;
        case TokenKind::Case:
            return opener == TokenKind::Select;
        case TokenKind::Catch:
            return opener == TokenKind::Try;
        case TokenKind::Finally:
            return opener == TokenKind::Try || IsOneOf(opener, RoutineHeads);
        case TokenKind::Exception:
            return IsOneOf(opener, RoutineHeads);
        default:
            return std::ranges::any_of(Loops, [word, opener](const LoopWords& row) {
                return row.end == word && row.opener == opener;
            });
    }
}

bool StatementParser::EndsOpenBlock(std::size_t line, std::size_t count) const {
    return std::any_of(open_.begin(), open_.begin() + static_cast<std::ptrdiff_t>(count),
                       [this, line](TokenKind opener) { return BelongsTo(line, opener); });
}

bool StatementParser::IsOutsideOfStatements(std::size_t line) const {
    return IsOneOf(HeadOf(line), UnitHeads) || cursor_.TokenAt(line).kind == TokenKind::HashTag;
}

void StatementParser::LeaveUnclosed(TokenKind opener, Position openerAt) {
    const auto mark = cursor_.Mark();
    isClosed_ = false;
    if (unclosedBefore_ == mark) {
        return;
    }
    unclosedBefore_ = mark;
    const std::string message = "this " + Describe(opener) + " is ";
    if (cursor_.IsAt(TokenKind::EndOfText)) {
        unclosedAtEnd_ = UnclosedError(openerAt, message + "never closed");
        return;
    }
    const auto before = cursor_.IsAt(TokenKind::End) ? Quoted("End " + cursor_.Following().text)
                                                     : Describe(HeadOf(mark));
    errors_.Add(ProgramError(openerAt, message + "not closed before " + before));
}

void StatementParser::DoubtDeclarations(Position openerAt) {
    auto opener = cursor_.Mark();
    while (opener > 0 && cursor_.TokenAt(opener).at > openerAt) {
        --opener;
    }
    for (auto line = opener; line < cursor_.Mark(); line = cursor_.EndOfLine(line) + 2) {
        if (IsOneOf(cursor_.TokenAt(line).kind, Declarers)) {
            DoubtNames(line);
        }
    }
}

void StatementParser::SkipBlock() {
    for (std::size_t depth = 0; !cursor_.IsAt(TokenKind::EndOfText); cursor_.SkipLine()) {
        if (IsOneOf(cursor_.Kind(), Closers)) {
            if (depth == 0) {
                cursor_.SkipLine();
                return;
            }
            --depth;
        } else if (OpensBlock(cursor_.Mark())) {
            ++depth;
        }
    }
}

void StatementParser::SkipUnsupported(std::size_t start) {
    const auto& word = cursor_.TokenAt(start).text;
    const auto behind = cursor_.Mark();
    for (; !cursor_.IsAt(TokenKind::EndOfText); cursor_.SkipLine()) {
        if (cursor_.IsAt(TokenKind::End) && SameName(cursor_.Following().text, word)) {
            cursor_.SkipLine();
            return;
        }
    }
    cursor_.Rewind(behind);
}

void StatementParser::RefuseUnsupported() const {
    const auto* found = FindUnsupported(cursor_.Current());
    if (found != nullptr && IsWord(cursor_.Following())) {
        throw ProgramError(cursor_.At(), std::string(found->name) + " not supported here");
    }
}

syntax::Block StatementParser::ParseBlock(std::initializer_list<TokenKind> ends, TokenKind opener,
                                          Position openerAt) {
    const NestingGuard guard(depth_, cursor_.At());
    const OpenBlock open(*this, opener);
    syntax::Block block;
    for (SkipToCode(); !StopsBlock(ends, opener); SkipToCode()) {
        const auto line = cursor_.Mark();
        const bool endsOuter = !BelongsTo(line, opener) && EndsOpenBlock(line, open_.size() - 1);
        if (endsOuter || IsOutsideOfStatements(line) || cursor_.IsAt(TokenKind::EndOfText)) {
            // What stands behind the place where the end should be may declare variables for what
            // follows.
            DoubtDeclarations(openerAt);
            LeaveUnclosed(opener, openerAt);
            return block;
        }
        ParseInto(block);
    }
    isClosed_ = true;
    return block;
}

void StatementParser::RefuseEnd() {
    errors_.Add(ProgramError(cursor_.At(),
                             "there is no " + Describe(cursor_.Following().kind) + " to end here"));
    cursor_.SkipLine();
}

bool StatementParser::StopsBlock(std::initializer_list<TokenKind> ends, TokenKind opener) {
    const auto line = cursor_.Mark();
    if (EndsOpenBlock(line, open_.size() - 1) && !BelongsTo(line, opener)) {
        return false;
    }
    if (cursor_.IsAt(TokenKind::End) && IsStrayEnd(cursor_.Following().kind, opener)) {
        RefuseEnd();
        SkipToCode();
        return StopsBlock(ends, opener);
    }
    return cursor_.IsAtAny(ends) || (IsLoop(opener) && cursor_.IsAtAny(Closers));
}

syntax::Statement::Node StatementParser::ParseNode() {
    switch (cursor_.Kind()) {
        case TokenKind::Dim:
        case TokenKind::Var:
        case TokenKind::Static:
            return ParseDim();
        case TokenKind::Const:
            return ParseConst();
        case TokenKind::If:
            return ParseIf();
        case TokenKind::Select:
            return ParseSelect();
        case TokenKind::For:
            return ParseFor();
        case TokenKind::While:
            return ParseWhile();
        case TokenKind::Do:
            return ParseDo();
        case TokenKind::Exit:
            return ParseExit();
        case TokenKind::Continue:
            cursor_.Take();
            return syntax::Continue{ParseLoopTarget()};
        case TokenKind::Try:
            return ParseTry();
        case TokenKind::Raise:
            cursor_.Take();
            return syntax::Raise{expressions_.ParseExpression()};
        case TokenKind::Return:
            cursor_.Take();
            return syntax::Return{ParseOptionalExpression()};
        case TokenKind::Print:
            cursor_.Take();
            return syntax::Print{expressions_.ParseExpression()};
        case TokenKind::Redim:
            return ParseRedim();
        case TokenKind::Call:
            cursor_.Take();
            return syntax::CallStatement{expressions_.ParsePostfix(), true};
        case TokenKind::Enum:
            throw ProgramError(cursor_.At(), "a " + Describe(cursor_.Kind()) +
                                                 " cannot stand inside another block");
        default:
            return ParseAssignmentOrCall();
    }
}

syntax::StatementPtr StatementParser::ParseUnended() {
    const Position at = cursor_.At();
    auto node = ParseNode();
    return std::make_unique<syntax::Statement>(syntax::Statement{at, std::move(node)});
}

syntax::ExpressionPtr StatementParser::ParseOptionalExpression() {
    return expressions_.AtExpression() ? expressions_.ParseExpression() : nullptr;
}

syntax::Statement::Node StatementParser::ParseAssignmentOrCall() {
    RefuseUnsupported();
    if (!cursor_.IsAtAny({TokenKind::Name, TokenKind::OpenParenthesis, TokenKind::CType})) {
        cursor_.Fail("a statement");
    }
    const auto start = cursor_.Mark();
    auto target = expressions_.ParsePostfix();
    expressions_.RefuseStep();
    if (cursor_.TryTake(TokenKind::Equal)) {
        return syntax::Assignment{std::move(target), expressions_.ParseExpression()};
    }
    if (const auto operation = CompoundOperator(cursor_.Kind())) {
        return ParseCompound(*operation, start, std::move(target));
    }
    // The arguments of a call that stands alone need no parentheses.
    const bool hasArguments = std::holds_alternative<syntax::Call>(target->node);
    if (!hasArguments && expressions_.AtExpression()) {
        const Position at = target->at;
        const auto height = target->height;
        syntax::Call call{std::move(target), expressions_.ParseExpressions()};
        target = std::make_unique<syntax::Expression>(
            syntax::Expression{at, height + 1, std::move(call)});
    }
    return syntax::CallStatement{std::move(target)};
}

syntax::Statement::Node StatementParser::ParseCompound(BinaryOperator operation, std::size_t start,
                                                       syntax::ExpressionPtr target) {
    const Position at = cursor_.At();
    cursor_.Rewind(start);
    auto left = expressions_.ParsePostfix();
    cursor_.Take();
    auto right = expressions_.ParseExpression();
    const auto height = std::max(left->height, right->height);
    syntax::Binary binary{operation, std::move(left), std::move(right)};
    return syntax::Assignment{std::move(target),
                              std::make_unique<syntax::Expression>(
                                  syntax::Expression{at, height + 1, std::move(binary)})};
}

syntax::Statement::Node StatementParser::ParseRedim() {
    const Position at = cursor_.Take().at;
    auto sized = expressions_.ParsePostfix();
    auto* const call = std::get_if<syntax::Call>(&sized->node);
    if (call == nullptr) {
        throw ProgramError(at, "\"Redim\" takes an array with its last index in parentheses");
    }
    syntax::Member resize{std::move(call->callee), "ResizeTo"};
    call->callee = std::make_unique<syntax::Expression>(
        syntax::Expression{at, sized->height, std::move(resize)});
    ++sized->height;
    return syntax::CallStatement{std::move(sized)};
}

syntax::Statement::Node StatementParser::ParseDim() {
    syntax::Dim dim;
    dim.isStatic = cursor_.Take().kind == TokenKind::Static;
    do {
        ParseDeclarators(dim.declarators);
    } while (cursor_.TryTake(TokenKind::Comma));
    return dim;
}

void StatementParser::ParseDeclarators(std::vector<syntax::Declarator>& declarators) {
    std::vector<syntax::Declarator> started;
    do {
        started.push_back(ParseDeclaredName());
    } while (cursor_.TryTake(TokenKind::Comma));
    cursor_.Expect(TokenKind::As);
    const auto typeStart = cursor_.Mark();
    for (auto& declarator : started) {
        cursor_.Rewind(typeStart);
        ParseDeclaredType(declarator);
        declarators.push_back(std::move(declarator));
    }
}

syntax::Declarator StatementParser::ParseDeclaredName() {
    const auto name = cursor_.ExpectNewName();
    syntax::Declarator declarator{name.text, name.at, {}, nullptr};
    if (cursor_.TryTake(TokenKind::OpenParenthesis)) {
        declarator.type.dimensions = 1;
        if (expressions_.AtExpression()) {
            declarator.lastIndices = expressions_.ParseExpressions();
            declarator.type.dimensions = declarator.lastIndices.size();
        }
        while (declarator.lastIndices.empty() && cursor_.TryTake(TokenKind::Comma)) {
            ++declarator.type.dimensions;
        }
        cursor_.Expect(TokenKind::CloseParenthesis);
    }
    return declarator;
}

void StatementParser::ParseDeclaredType(syntax::Declarator& declarator) {
    const auto dimensions = declarator.type.dimensions;
    if (cursor_.IsAt(TokenKind::New) && dimensions == 0) {
        declarator.initialiser = expressions_.ParseNew();
        declarator.type = std::get<syntax::New>(declarator.initialiser->node).type;
        return;
    }
    declarator.type = expressions_.ParseTypeName();
    declarator.type.dimensions = dimensions;
    if (declarator.lastIndices.empty() && cursor_.TryTake(TokenKind::Equal)) {
        declarator.initialiser = expressions_.ParseExpression();
    }
}

syntax::Statement::Node StatementParser::ParseExit() {
    cursor_.Take();
    if (IsOneOf(cursor_.Kind(), RoutineHeads)) {
        throw ProgramError(cursor_.At(), "there is no " + Quoted("Exit " + cursor_.Current().text) +
                                             "; write Return");
    }
    return syntax::Exit{ParseLoopTarget()};
}

syntax::Const StatementParser::ParseConst() {
    cursor_.Take();
    syntax::Const constant;
    constant.name = cursor_.ExpectNewName().text;
    if (cursor_.TryTake(TokenKind::As)) {
        constant.type = expressions_.ParseTypeName();
    }
    cursor_.Expect(TokenKind::Equal);
    constant.value = expressions_.ParseExpression();
    try {
        constants_.Set(constant.name, Evaluate(*constant.value, constants_));
    } catch (const ProgramError&) {  // NOLINT(bugprone-empty-catch): only #If must know it
    }
    return constant;
}

}  // namespace standin::language
