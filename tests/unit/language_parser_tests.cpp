// The shape of programs and declarations, and the mistakes in them.
#include <string>
#include <variant>

#include <doctest/doctest.h>

#include "standin/language/parser.hpp"

using standin::language::ParseDeclaration;
using standin::language::ParseProgram;
using standin::language::ProgramError;
using standin::language::Source;

namespace syntax = standin::language::syntax;

namespace {

/// Where a program is wrong and how, or "none".
std::string MistakeIn(const std::string& text) {
    try {
        ParseProgram(text);
    } catch (const ProgramError& error) {
        const auto place = Source("p", text).Locate(error.position());
        return std::to_string(place.line) + ":" + std::to_string(place.column) + ": " +
               error.what();
    }
    return "none";
}

/// What is wrong with a program, all of it.
std::string MistakesIn(const std::string& text) {
    try {
        ParseProgram(text);
    } catch (const ProgramError& error) {
        std::string mistakes = error.what();
        for (const auto& further : error.further()) {
            mistakes += std::string("; ") + further.what();
        }
        return mistakes;
    }
    return "none";
}

/// An expression with parentheses around everything that belongs together.
std::string Shape(const syntax::Expression& expression) {
    static constexpr std::string_view Signs[] = {"^",  "*",  "/",   "\\", "Mod", "+",
                                                 "-",  "=",  "<>",  "<",  "<=",  ">",
                                                 ">=", "Is", "And", "Or", "Xor"};
    if (const auto* name = std::get_if<syntax::Name>(&expression.node)) {
        return name->name;
    }
    if (const auto* number = std::get_if<syntax::IntegerLiteral>(&expression.node)) {
        return std::to_string(number->value);
    }
    if (const auto* unary = std::get_if<syntax::Unary>(&expression.node)) {
        static constexpr std::string_view Names[] = {"+", "-", "Not "};
        return "(" + std::string(Names[static_cast<std::size_t>(unary->operation)]) +
               Shape(*unary->operand) + ")";
    }
    if (const auto* test = std::get_if<syntax::ClassTest>(&expression.node)) {
        return "(" + Shape(*test->value) + " IsA " + test->type.name + ")";
    }
    if (const auto* member = std::get_if<syntax::Member>(&expression.node)) {
        return Shape(*member->object) + "." + member->name;
    }
    const auto& binary = std::get<syntax::Binary>(expression.node);
    return "(" + Shape(*binary.left) + " " +
           std::string(Signs[static_cast<std::size_t>(binary.operation)]) + " " +
           Shape(*binary.right) + ")";
}

std::string ShapeOf(const std::string& expression) {
    const auto program = ParseProgram("Print " + expression);
    return Shape(*std::get<syntax::Print>(program.main.front()->node).value);
}

}  // namespace

TEST_CASE("operators bind from ^ down to Or") {
    CHECK(ShapeOf("-2 ^ 2") == "(-(2 ^ 2))");
    CHECK(ShapeOf("2 ^ 3 ^ 2") == "((2 ^ 3) ^ 2)");
    CHECK(ShapeOf("2 ^ -1 ^ 2") == "((2 ^ (-1)) ^ 2)");
    CHECK(ShapeOf("a * -b ^ c") == "(a * (-(b ^ c)))");
    CHECK(ShapeOf("Not a = b") == "((Not a) = b)");
    CHECK(ShapeOf("Not a And b") == "((Not a) And b)");
    CHECK(ShapeOf("a + b * c Mod d \\ e / f") == "(a + ((((b * c) Mod d) \\ e) / f))");
    CHECK(ShapeOf("a - b - c + d") == "(((a - b) - c) + d)");
    CHECK(ShapeOf("a < b = c") == "((a < b) = c)");
    CHECK(ShapeOf("a Is b And c IsA D") == "((a Is b) And (c IsA D))");
    CHECK(ShapeOf("a + b IsA D = c") == "(((a + b) IsA D) = c)");
    CHECK(ShapeOf("a Or b And c Xor d") == "((a Or (b And c)) Xor d)");
    CHECK(ShapeOf("(a Or b) And c") == "((a Or b) And c)");
    CHECK(ShapeOf("- - a") == "(-(-a))");
    CHECK(ShapeOf("a.Mod.Next + b") == "(a.Mod.Next + b)");
    CHECK(ShapeOf("a _\n + b") == "(a + b)");
}

TEST_CASE("declarations of plug-ins") {
    const auto full = ParseDeclaration(
        "SetIt(Text As String, Base as integer = -1, byref After as STRING, ByRef Ok as boolean, "
        "end as String = \".\") as Thing");
    CHECK(full.name == "SetIt");
    REQUIRE(full.parameters.size() == 5);
    CHECK(full.parameters[0].name == "Text");
    CHECK(full.parameters[1].defaultValue != nullptr);
    CHECK(full.parameters[2].byRef);
    CHECK(full.parameters[2].type.name == "STRING");
    CHECK(full.parameters[3].byRef);
    CHECK_FALSE(full.parameters[4].byRef);
    CHECK(full.parameters[4].name == "end");
    CHECK(full.result->name == "Thing");

    CHECK(ParseDeclaration("Close").parameters.empty());
    CHECK(ParseDeclaration("Close()").parameters.empty());
    CHECK_FALSE(ParseDeclaration("Close()").result);
    CHECK(ParseDeclaration("Mod as X").name == "Mod");
    CHECK(ParseDeclaration("F(optional as Integer)").parameters[0].name == "optional");

    CHECK_THROWS_AS(ParseDeclaration(""), ProgramError);
    CHECK_THROWS_WITH_AS(ParseDeclaration("F(a as Integer = b)"), "a default is a literal",
                         ProgramError);
    CHECK_THROWS_AS(ParseDeclaration("F(a as Integer = 1 + 1)"), ProgramError);
    CHECK_THROWS_AS(ParseDeclaration("F(a as Integer"), ProgramError);
    CHECK_THROWS_AS(ParseDeclaration("F(a)"), ProgramError);
    CHECK_THROWS_AS(ParseDeclaration("F as Integer x"), ProgramError);
}

TEST_CASE("mistakes are told where they are") {
    CHECK(MistakeIn("Print (1 +") == "1:11: expected an expression, found the end of the line");
    CHECK(MistakeIn("If a\nEnd If") == "1:5: expected \"Then\", found the end of the line");
    CHECK(MistakeIn("x = 1 y") == "1:7: expected the end of the line, found \"y\"");
    CHECK(MistakeIn("Dim End As Integer") == "1:5: expected a name, found \"End\"");
    CHECK(MistakeIn("Dim a") == "1:6: expected \"As\", found the end of the line");
    CHECK(MistakeIn("Dim a As 5") == "1:10: expected the name of a type, found \"5\"");
    CHECK(MistakeIn("\n  While a\nPrint 1") == "2:3: this \"While\" is never closed");
    CHECK(MistakeIn("For i = 1 To 2\nPrint i\nEnd") == "3:1: expected \"Next\", found \"End\"");
    CHECK(MistakeIn("For i = 1\nNext") ==
          "1:10: expected \"To\" or \"DownTo\", found the end of "
          "the line");
    CHECK(MistakeIn("For i = 1 To 2\nNext j") ==
          "2:6: \"Next\" names \"j\", but the loop counts \"i\"");
    CHECK(MistakeIn("Try\nEnd Try") == "2:1: expected \"Catch\" or \"Finally\", found \"End\"");
    CHECK(MistakeIn("If a Then\nEnd While") == "2:5: expected \"If\", found \"While\"");
    CHECK(MistakeIn("Function F()\nEnd Function") == "1:13: a Function needs \"As\" and its type");
    CHECK(MistakeIn("Sub F() As Integer\nEnd Sub") == "1:19: a Sub returns nothing");
    CHECK(MistakeIn("If a Then\nSub F()\nEnd Sub\nEnd If") ==
          "1:1: this \"If\" is not closed before \"Sub\"");
    CHECK(MistakeIn("Loop") == "1:1: expected a statement, found \"Loop\"");
    CHECK(MistakeIn("5 = x") == "1:1: expected a statement, found \"5\"");
    CHECK(MistakeIn("f(1,)") == "1:5: expected an expression, found \")\"");
    CHECK(MistakeIn("Select Case x\nPrint 1\nEnd Select") ==
          "2:1: expected \"End\", found \"Print\"");
}

TEST_CASE("programs without mistakes") {
    CHECK(MistakeIn("") == "none");
    CHECK(MistakeIn("\r\n' only a comment\r\n") == "none");
    CHECK(MistakeIn("If a Then b Else c 1, 2") == "none");
    CHECK(MistakeIn("If a Then\nElseIf b Then\nElse\nEnd If") == "none");
    CHECK(MistakeIn("Dim a, b As Integer = 1, c As New D(1, \"x\")") == "none");
    CHECK(MistakeIn("Try\nCatch\nCatch e\nCatch e As X\nFinally\nEnd Try") == "none");
    CHECK(MistakeIn("Do Until a\nExit\nExit Do\nContinue While\nLoop Until b") == "none");
    CHECK(MistakeIn("Select Case x\nCase 1, 2 To 3, Is > 5\nCase Else\nEnd Select") == "none");
    CHECK(MistakeIn("Sub S(ByRef a As X, Optional b As Y = 1)\nReturn\nEnd Sub") == "none");
}

TEST_CASE("depth is bounded") {
    const auto repeated = [](const std::string& text, int count) {
        std::string result;
        for (int i = 0; i < count; ++i) {
            result += text;
        }
        return result;
    };
    CHECK(MistakeIn("Print " + repeated("(", 50) + "1" + repeated(")", 50)) == "none");
    CHECK(MistakeIn("Print " + repeated("(", 100000)).find("nested more than 100 levels deep") !=
          std::string::npos);
    CHECK(MistakeIn("Print " + repeated("-", 100000) + "1")
              .find("nested more than 100 levels deep") != std::string::npos);
    CHECK(MistakeIn("Print 1^" + repeated("-", 100000) + "1")
              .find("nested more than 100 levels deep") != std::string::npos);
    CHECK(MistakeIn("Print 1" + repeated(" + 1", 100000)).find("more than 500 levels") !=
          std::string::npos);
    CHECK(MistakeIn("Print a" + repeated(".b", 100000)).find("more than 500 levels") !=
          std::string::npos);
    CHECK(MistakesIn(repeated("If a Then\n", 100000)).find("nested more than 100 levels deep") !=
          std::string::npos);
    CHECK(MistakeIn(repeated("If a Then ", 100000)).find("nested more than 100 levels deep") !=
          std::string::npos);
    CHECK(MistakeIn("If a Then\n" + repeated("ElseIf a Then\n", 5000) + "End If") == "none");
}
