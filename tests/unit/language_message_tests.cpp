// What is said of a wrong program: the cause and nothing that follows from it, what is not
// supported by its name, and what there is in place of what was written.
#include <algorithm>
#include <string>
#include <string_view>

#include "tests/unit/language_support.hpp"

using language_tests::ErrorsIn;
using language_tests::SampleHost;
using standin::language::Quoted;

namespace {

/// The errors of a program without the lines that they show, one behind the other.
std::string MessagesOf(SampleHost& sample, const std::string& text) {
    std::string messages;
    std::string_view rest;
    const auto errors = ErrorsIn(sample, text);
    for (rest = errors; !rest.empty();) {
        const auto end = rest.find('\n');
        const auto line = rest.substr(0, end);
        if (line.starts_with("p:")) {
            messages += (messages.empty() ? "" : "; ") + std::string(line.substr(2));
        }
        rest.remove_prefix(end + 1);
    }
    return messages;
}

}  // namespace

TEST_CASE("errors come in the order of the text") {
    SampleHost host;
    CHECK(MessagesOf(host, "Print missing\nIf 1 = 1 The\nPrint \"x\"\nEnd If\nPrint lost") ==
          "1:7: error: there is nothing named \"missing\"; "
          "2:10: error: expected \"Then\", found \"The\"; "
          "5:7: error: there is nothing named \"lost\"");
}

TEST_CASE("a variable whose first value is wrong is there nevertheless") {
    SampleHost host;
    CHECK(MessagesOf(host, "Dim n As Integer = \"a\"\nn = n + 1\nStatic s As String = 5\ns = n") ==
          "1:20: error: expected Integer, this is String; use Val; "
          "3:22: error: expected String, this is Integer; use Str; "
          "4:5: error: expected String, this is Integer; use Str");
    CHECK(MessagesOf(host, "Dim x As Nowhere\nx.Anything\nDim y As Integer = x.Value\ny = 1") ==
          "1:10: error: there is no type \"Nowhere\"");
    CHECK(MessagesOf(host, "Const k = nothing\nPrint Str(k)") ==
          "1:11: error: there is nothing named \"nothing\"");
}

TEST_CASE("what stands in a block with a wrong head is looked at") {
    SampleHost host;
    CHECK(MessagesOf(host, "For i As Integer = 1 To lost\nPrint Str(i)\nPrint 5\nNext") ==
          "1:25: error: there is nothing named \"lost\"; "
          "3:7: error: \"Print\" takes a String, this is Integer; use Str");
    CHECK(MessagesOf(host, "For Each s As String In 5\nPrint s\nPrint 5\nNext") ==
          "1:25: error: \"For Each\" takes an array or a Dictionary, this is Integer; "
          "3:7: error: \"Print\" takes a String, this is Integer; use Str");
    CHECK(MessagesOf(host, "Select Case lost\nCase 1, 2\nPrint 5\nEnd Select") ==
          "1:13: error: there is nothing named \"lost\"; "
          "3:7: error: \"Print\" takes a String, this is Integer; use Str");
    CHECK(MessagesOf(host,
                     "Try\nPrint \"x\"\nCatch e As Nowhere\nPrint e.Message\nPrint 5\nEnd Try") ==
          "3:12: error: there is no type \"Nowhere\"; "
          "5:7: error: \"Print\" takes a String, this is Integer; use Str");
}

TEST_CASE("a wrong or a missing end is one error") {
    SampleHost host;
    const std::string use = "Print Str(F + G)";
    const std::string g = "Function G() As Integer\nReturn 1\nEnd Function\n";
    CHECK(MessagesOf(host, "Function F() As Integer\nReturn 1\nEnd Sub\n" + g + use) ==
          "3:5: error: expected \"Function\", found \"Sub\"");
    CHECK(MessagesOf(host,
                     "Function F() As Integer\nFor i As Integer = 1 To 3\nReturn i\n"
                     "End Function\n" +
                         g + use) ==
          "2:1: error: this \"For\" is not closed before \"End Function\"");
    CHECK(MessagesOf(host, "Function F() As Integer\nIf True Then\nReturn 1\n" + g + use) ==
          "2:1: error: this \"If\" is not closed before \"Function\"");
    CHECK(MessagesOf(host, "Function F() As Integer\nReturn 1\nEnd If\nReturn 2\nEnd Function\n" +
                               g + use) == "3:1: error: there is no \"If\" to end here");
    CHECK(
        MessagesOf(host, "Module M\nSub A()\nEnd Sub\nEnd Sub\nSub B()\nEnd Sub\nEnd Module\nB") ==
        "4:1: error: there is no \"Sub\" to end here");
    CHECK(MessagesOf(host, "While False\nPrint \"x\"\nEnd While\nPrint 5") ==
          "3:1: error: expected \"Wend\", found \"End\"; "
          "4:7: error: \"Print\" takes a String, this is Integer; use Str");
    CHECK(MessagesOf(host,
                     "Class C\nPrivate Function F(a As) As Integer\nReturn 1\nEnd Function\n"
                     "Function H() As Integer\nReturn F\nEnd Function\nEnd Class\n"
                     "Dim c As New C\nPrint Str(c.H + c.F)") ==
          "2:24: error: expected the name of a type, found \")\"");
}

TEST_CASE("what stands in and behind a block that is not closed is looked at") {
    SampleHost host;
    const std::string five = "error: \"Print\" takes a String, this is Integer; use Str";
    const std::string routine = "Sub S()\nPrint 5\nEnd Sub";
    CHECK(MessagesOf(host, "If True Then\nPrint lost\nElse\nPrint 5\n" + routine) ==
          "1:1: error: this \"If\" is not closed before \"Sub\"; "
          "2:7: error: there is nothing named \"lost\"; 4:7: " +
              five + "; 6:7: " + five);
    CHECK(MessagesOf(host, routine + "\nIf True Then\nPrint 5\nWhile True\nPrint 5") ==
          "2:7: " + five + "; 5:7: " + five +
              "; 6:1: error: this \"While\" is never closed; 7:7: " + five);
    const auto withUnclosed = [&](const std::string& head) {
        return "Sub A()\nDim a() As String\n" + head + "\nPrint 5\nEnd Sub\n" + routine;
    };
    const auto inBoth = [&](const std::string& first, const std::string& second) {
        return first + five + "; " + second + five;
    };
    for (const std::string head :
         {"For i As Integer = 1 To 3", "For Each s As String In a", "While True", "Do", "Try"}) {
        CAPTURE(head);
        const auto messages = MessagesOf(host, withUnclosed(head));
        CHECK(messages.starts_with("3:1: error: this \""));
        CHECK(messages.ends_with(inBoth("\"End Sub\"; 4:7: ", "7:7: ")));
    }
    for (const std::string head :
         {"Select Case 5\nCase 5", "Try\nCatch e As RuntimeException", "Try\nFinally"}) {
        CAPTURE(head);
        const auto messages = MessagesOf(host, withUnclosed(head));
        CHECK(messages.starts_with("3:1: error: this \""));
        CHECK(messages.ends_with(inBoth("\"End Sub\"; 5:7: ", "8:7: ")));
    }
    // The loop is there, and so is what it declares.
    CHECK(MessagesOf(host, "Sub A()\nFor i As Integer = 1 To 3\nPrint Str(i)\nExit For\nEnd Sub") ==
          "2:1: error: this \"For\" is not closed before \"End Sub\"");
    // A block that is never closed may have swallowed a declaration for what follows.
    CHECK(MessagesOf(host, "If True Then\nDim a As Integer\n" + routine + "\nPrint Str(a)") ==
          "1:1: error: this \"If\" is not closed before \"Sub\"; 4:7: " + five);
    CHECK(MessagesOf(host, "If True Then\nDim a As Integer\nElse\n" + routine + "\nPrint Str(a)") ==
          "1:1: error: this \"If\" is not closed before \"Sub\"; 5:7: " + five);
    CHECK(MessagesOf(host, "Class C\nSub A()\nPrint 5\nEnd Class\nDim c As New C\nc.A\nc.B") ==
          "2:1: error: this \"Sub\" is not closed before \"End Class\"; 3:7: " + five +
              "; 7:3: error: C has no member \"B\"");
    CHECK(MessagesOf(host, "Class C\nSub A()\nPrint 5\nEnd Sub") ==
          "1:1: error: this \"Class\" is never closed; 3:7: " + five);
}

TEST_CASE("a class with an error is not blamed for what it lacks") {
    SampleHost host;
    CHECK(MessagesOf(host,
                     "Class A\nInherits B\nSub F()\nSuper.F\nOther = 1\nEnd Sub\nEnd Class\n"
                     "Class B\nOther As Integer\nEnd Class\nDim b As B = New A\n"
                     "Dim a As New A\na.Other = 2") ==
          "2:10: error: Classes that inherit from \"B\" are not supported here");
    CHECK(MessagesOf(host,
                     "Class A\nFunction Operator_Add(a As A) As A\nReturn a\nEnd Function\n"
                     "End Class\nDim a As New A\na = a + a") ==
          "2:10: error: Operators of classes are not supported here");
    CHECK(MessagesOf(host,
                     "Class A\nShared Function Make() As A\nReturn New A\nEnd Function\n"
                     "Shared n As Integer\nEnd Class\nDim a As A = A.Make\nPrint Str(A.n)") ==
          "2:1: error: Shared members are not supported here; "
          "5:1: error: Shared members are not supported here");
    CHECK(MessagesOf(host, "Module M\nSub F(a As Nowhere)\nEnd Sub\nEnd Module\nM.F(1)\nF(2)") ==
          "2:12: error: there is no type \"Nowhere\"");
    CHECK(MessagesOf(host, "Delegate Sub D()\nSub F(d As D)\nEnd Sub\nF(1)") ==
          "1:1: error: Delegates are not supported here");
}

TEST_CASE("how a property of a class is written") {
    SampleHost host;
    CHECK(MessagesOf(host, "Class C\nProperty X As Integer\nEnd Class\nDim c As New C\nc.X = 1") ==
          "2:1: error: a property is written \"X As Integer\", without this word");
    CHECK(MessagesOf(host,
                     "Class C\nProperty X As Integer\nGet\nReturn 1\nEnd Get\nEnd Property\n"
                     "End Class\nDim c As New C\nc.X = 1") ==
          "2:1: error: Computed properties are not supported here");
}

TEST_CASE("what the host has is refused by its name") {
    SampleHost host;
    CHECK(host.Run("Print System.Random.InRange(1, 6)") ==
          "1:7: of \"System\" only this is supported here: System.Microseconds, System.Ticks, "
          "System.DebugLog");
    CHECK(host.Run("StdOut.Close") ==
          "1:1: of \"StdOut\" only this is supported here: StdOut.WriteLine, StdOut.Write, "
          "StdOut.Flush");
    CHECK(host.Run("StdErr.WriteLine(\"x\")") == "1:1: \"StdErr\" is not supported here");
    CHECK(host.Run("Dim r As New Random") == "1:14: the type \"Random\" is not supported here");
    CHECK(host.Run("Dim t As Introspection.TypeInfo") ==
          "1:10: the type \"Introspection.TypeInfo\" is not supported here");
    CHECK(host.Run("Dim d As New Xojo.Core.Dictionary") ==
          "1:14: the type \"Xojo.Core.Dictionary\" is not supported here");
    CHECK(host.Run("Print CurrentMethodName") ==
          "1:7: \"CurrentMethodName\" is not supported here");
    CHECK(host.Run("Dim d As New Date\nPrint Str(d.Year)") ==
          "2:13: \"Year\" of Date is not supported here");
    CHECK(host.Run("Dim m As New MemoryBlock(4)\nm = m.MidB(0, 2)") ==
          "2:7: \"MidB\" of MemoryBlock is not supported here");
    CHECK(host.Run("Dim a() As Integer\na.Shuffle") ==
          "2:3: \"Shuffle\" of Integer() is not supported here");
    CHECK(host.Run("Dim s As String\nPrint s.LeftBytes(2)") ==
          "2:9: \"LeftBytes\" of String is not supported here");
    CHECK(host.Run("Dim e As UnsupportedFormatException") ==
          "1:10: the type \"UnsupportedFormatException\" is not supported here");
    CHECK(host.Run("Dim n As Integer = \"a\".Compare(\"b\", ComparisonOptions.CaseSensitive)") ==
          "1:37: \"ComparisonOptions\" is not supported here");
    CHECK(host.Run("Print Encodings.UTF8.Chr(937)") ==
          "1:22: \"Chr\" of TextEncoding is not supported here");
    CHECK(host.Run("Dim d As New DateTime(2020, 1, 1)") ==
          "1:14: \"New DateTime\" has 3 arguments, but \"Constructor(secondsFrom1970 As Double)\" "
          "takes fewer; nothing else is supported here");
    CHECK(host.Run("Dim a() As Integer\nPrint Str(LBound(a))") ==
          "2:11: \"LBound\" of Integer() is not supported here");
    CHECK(host.Run("Print Str(&cFF0000)") ==
          "1:11: literals that begin with \"&c\" are not supported here");
    CHECK(host.Run("Sub T(Assigns x As Integer)\nEnd Sub") ==
          "1:7: \"Assigns\" is not supported here");
    CHECK(host.Run("Sub T(assigns As Integer)\nEnd Sub") ==
          "1:7: \"assigns\" is a reserved word and cannot be a name");
    // A name of the program's own goes first.
    CHECK(host.Run("Function Random() As String\nReturn \"mine\"\nEnd Function\nPrint Random") ==
          "mine\n");
}

TEST_CASE("what to write where an object or a number stands in the other's place") {
    SampleHost host;
    CHECK(host.Run("Dim s As Sample\ns = 5") ==
          "2:5: expected Sample, this is Integer; write \"5\" or New Sample(5)");
    CHECK(host.Run("Dim n As Integer = 5\nDim s As Sample = n") ==
          "2:19: expected Sample, this is Integer; write New Sample(...)");
    CHECK(host.Run("Dim s As New Sample(1)\nDim b As Boolean = s") ==
          "2:20: expected Boolean, this is Sample; use its IsOdd");
    // There are several properties of that type, and none of them is named like it.
    CHECK(host.Run("Dim s As New Sample(1)\nDim n As Integer = s") ==
          "2:20: expected Integer, this is Sample");
    CHECK(host.Run("Dim s As New Sample(1)\ns = s.Multiply(2)") ==
          "2:7: Sample has no member \"Multiply\"; write a * b");
}

TEST_CASE("what to write where an operator takes the object first") {
    SampleHost host;
    const std::string make = "Dim s As New Sample(1)\n";
    // A text on the left of `-` would be subtracted from.
    CHECK(host.Run(make + "s = 5 - s").ends_with("; write New Sample(5)"));
    CHECK(host.Run(make + "s = 5 * s").ends_with("; write \"5\" or New Sample(5)"));
    CHECK(host.Run("Print \"3\" + 1").ends_with("; use Str to join texts, Val to add numbers"));
    // No text is a way to an operator that the class has not.
    CHECK(host.Run(make + "s = s And 1") == "2:7: \"And\" cannot stand between Sample and Integer");
}

TEST_CASE("what to write where a member of objects is called on their class") {
    SampleHost host;
    CHECK(host.Run("Print Sample.Greet(\"a\")") ==
          "1:14: \"Greet\" needs an object of Sample; write value.Greet(name, times, loud, factor, "
          "end)");
    CHECK(host.Run("Print Str(Sample.Value)") ==
          "1:18: \"Value\" needs an object of Sample; write value.Value");
    CHECK(host.Run("Dim s As New Sample(1)\nPrint Str(Max(s, s))") ==
          "2:11: \"Max\" takes no Sample; write If(a > b, a, b)");
    CHECK(host.Run("Dim l As Int64\nPrint Str(Sample.Twice(1.5))")
              .ends_with("; assign the value to a variable of the type that is meant first"));
}

TEST_CASE("what is written otherwise in this language") {
    SampleHost host;
    CHECK(host.Run("Print \"a\" & \"b\"") ==
          "1:11: \"&\" begins a number in the forms &h, &o and &b; \"+\" joins texts");
    const std::string joins =
        R"(: "&" begins a number in the forms &h, &o and &b; "+" joins texts)";
    CHECK(host.Run("s = \"x\"&hex") == "1:8" + joins);
    CHECK(host.Run("s = \"x\"&hF") == "1:8" + joins);
    CHECK(host.Run("s = \"x\" &b1") == "1:9" + joins);
    CHECK(host.Run("s = name&base") == "1:9" + joins);
    CHECK(host.Run("s = Str(1)&hF") == "1:11" + joins);
    CHECK(host.Run("s = 5&o7") == "1:6" + joins);
    CHECK(host.Run("Sub Show(a As Integer)\nPrint Str(a)\nEnd Sub\nShow &hF\nShow(&hF)\n"
                   "Show 1+&hF\nIf 15=&hF Then Show 0-&b1") == "15\n15\n16\n-1\n");
    CHECK(host.Run("Dim i As Integer\ni++") == "2:2: there is no \"++\"; write a += 1");
    CHECK(host.Run("Dim i As Integer\ni--") == "2:2: there is no \"--\"; write a -= 1");
    CHECK(host.Run("Dim i As Integer = 5\nPrint Str(i - -i)") == "10\n");
    CHECK(host.Run("prnt \"x\"") ==
          "1:1: there is nothing named \"prnt\"; did you mean \"Print\"?");
    CHECK(host.Run("Pritn \"x\"") ==
          "1:1: there is nothing named \"Pritn\"; did you mean \"Print\"?");
}

TEST_CASE("a variable that hides a function is named") {
    SampleHost host;
    CHECK(host.Run("Dim hex As String\nPrint Hex(5)") ==
          "2:7: \"Hex\" is a variable of type String here, and takes no arguments; rename it to "
          "call the function of that name");
    CHECK(host.Run("Dim n As Integer\nPrint Str(n(5))") ==
          "2:11: \"n\" is a variable of type Integer here, and takes no arguments");
    const std::string hidden =
        "error: \"Hex\" is a variable of type String here, and takes no arguments; rename it to "
        "call the function of that name";
    CHECK(MessagesOf(host, "\nDim hex As String\nPrint Hex(5)") ==
          "3:7: " + hidden + "; it is declared in line 2");
    CHECK(MessagesOf(host, "Sub S(hex As String)\nPrint Hex(5)\nEnd Sub") ==
          "2:7: " + hidden + "; it is declared in line 1");
    CHECK(MessagesOf(host, "Module M\nhex As String\nEnd Module\nSub S()\nPrint Hex(5)\nEnd Sub") ==
          "5:7: " + hidden + "; it is declared in line 2");
    // At the prompt the text with the declaration is gone.
    standin::language::Session session(host.host(), host.types(), [](std::string_view) {});
    session.Run({"input", "Dim hex As String"});
    const standin::language::Source call("input", "Print Hex(5)");
    try {
        session.Run(call);
        FAIL_CHECK("nothing was wrong");
    } catch (const standin::language::ProgramError& error) {
        CHECK(call.Describe(error) == "input:1:7: " + hidden + "\n  Print Hex(5)\n        ^\n");
    }
}

TEST_CASE("reserved words name nothing") {
    SampleHost host;
    const std::string refused = " is a reserved word and cannot be a name";
    CHECK(host.Run("Dim double As Integer") == "1:5: \"double\"" + refused);
    const auto requireRefused = [&](const std::string& word) {
        const auto named = Quoted(word) + refused;
        CHECK(host.Run("Dim " + word + " As Integer") == "1:5: " + named);
        CHECK(host.Run("Sub S(" + word + " As Integer)\nEnd Sub") == "1:7: " + named);
        CHECK(host.Run("Class C\n" + word + " As Integer\nEnd Class") == "2:1: " + named);
    };
    for (const std::string word : {"Me", "Self", "Super", "Variant"}) {
        requireRefused(word);
    }
    CHECK(host.Run("Dim byte, text As Integer = 5\nPrint Str(byte + text)") == "10\n");
    CHECK(host.Run("Dim a, object As Integer") == "1:8: \"object\"" + refused);
    CHECK(host.Run("Const String = 5") == "1:7: \"String\"" + refused);
    CHECK(host.Run("For object As Integer = 1 To 2\nNext") == "1:5: \"object\"" + refused);
    CHECK(host.Run("Function Double(i As Integer) As Integer\nReturn i\nEnd Function") ==
          "1:10: \"Double\"" + refused);
    CHECK(host.Run("Sub T(currency As Integer)\nEnd Sub") == "1:7: \"currency\"" + refused);
    CHECK(host.Run("Enum Color\nRed\nEnd Enum") == "1:6: \"Color\"" + refused);
    CHECK(host.Run("Class Object\nEnd Class") == "1:7: \"Object\"" + refused);
}

TEST_CASE("an exception names what is Nil") {
    SampleHost host;
    const std::string link =
        "Class Link\nNumber As Integer\nFollowing As Link\nSub Show()\nEnd Sub\nEnd Class\n"
        "Function None() As Link\nReturn Nil\nEnd Function\n"
        "Sub Fill(ByRef a As Link)\nEnd Sub\n";
    const auto messageOf = [&](const std::string& code) {
        const auto output = host.Run(link + code);
        return output.substr(0, output.rfind(" (line"));
    };
    const std::string start = "Unhandled NilObjectException: ";
    CHECK(messageOf("Dim a As Link\na.Number = 1") == start + "\"a\" is Nil; missing New?");
    CHECK(messageOf("Dim a As Link\na.Show") == start + "\"a\" is Nil; missing New?");
    CHECK(messageOf("Dim a As Link\nPrint Str(a.Number)") == start + "\"a\" is Nil; missing New?");
    CHECK(messageOf("Sub S()\nDim a As Link\na.Show\nEnd Sub\nS") ==
          start + "\"a\" is Nil; missing New?");
    // Something is assigned somewhere, so New is not what is missing.
    CHECK(messageOf("Dim a As Link = Nil\na.Show") == start + "\"a\" is Nil.");
    CHECK(messageOf("Dim a As Link\na = None\na.Show") == start + "\"a\" is Nil.");
    CHECK(messageOf("Dim a As Link\nFill(a)\na.Show") == start + "\"a\" is Nil.");
    CHECK(messageOf("Dim a As Link\nDim all(0) As Link\nFor Each a In all\na.Show\nNext") ==
          start + "\"a\" is Nil.");
    CHECK(messageOf("Sub S(a As Link)\na.Show\nEnd Sub\nS(Nil)") == start + "\"a\" is Nil.");
    CHECK(messageOf("Dim a As New Link\na.Following.Number = 1") ==
          start + "\"a.Following\" is Nil.");
    CHECK(messageOf("Dim a As New Link\na.Following.Following.Show") ==
          start + "\"a.Following\" is Nil.");
    CHECK(messageOf("None.Show") == start + "\"None\" is Nil.");
    CHECK(messageOf("Dim d As Dictionary\nd.RemoveAll") == start + "\"d\" is Nil; missing New?");
    CHECK(messageOf("Dim e As RuntimeException\nRaise e") == start + "\"e\" is Nil; missing New?");
    // What is longer than names is not repeated.
    CHECK(messageOf("Dim all(0) As Link\nall(0).Show") ==
          start + "An object that is Nil was used.");
    const std::string longName(61, 'a');
    CHECK(messageOf("Dim " + longName + " As Link\n" + longName + ".Show") ==
          start + "An object that is Nil was used.");
}

TEST_CASE("values of enumerations and numbers name how one becomes the other") {
    SampleHost host;
    const auto fails = [&host](const std::string& line) {
        return host.Run("Enum E\nA\nEnd Enum\n" + line);
    };
    CHECK(fails("Print Str(E.A)") == "4:7: \"Str\" does not take (E); write Integer(...)");
    CHECK(fails("Print E.A") ==
          "4:9: \"Print\" takes a String, this is E; write Str(Integer(...))");
    CHECK(fails("Dim i As Integer = E.A") ==
          "4:22: expected Integer, this is E; write Integer(...)");
    CHECK(fails("Dim x As E = 0") == "4:14: expected E, this is Integer; write E(...)");
    CHECK(fails("Print Str(E.A = 0)") ==
          "4:15: \"=\" cannot stand between E and Integer; write Integer(...)");
    CHECK(fails("Print Str(0 = E.A)") ==
          "4:13: \"=\" cannot stand between Integer and E; write Integer(...)");
}

TEST_CASE("what other languages have names what is written here") {
    SampleHost host;
    CHECK(host.Run("Sub S()\nExit Sub\nEnd Sub") == "2:6: there is no \"Exit Sub\"; write Return");
    CHECK(host.Run("Function F() As Integer\nIf True Then Exit Function\nReturn 1\nEnd Function") ==
          "2:19: there is no \"Exit Function\"; write Return");
    constexpr auto Refused = R"("F" cannot be assigned to; "Return" tells what a Function returns)";
    CHECK(host.Run("Function F() As Integer\nF = 5\nEnd Function") ==
          std::string("2:1: ") + Refused);
    CHECK(host.Run("Class C\nFunction F() As Integer\nF = 5\nEnd Function\nEnd Class")
              .ends_with("\"Return\" tells what a Function returns"));
    CHECK(host.Run("Print 'x'") ==
          "1:10: expected an expression, found a comment; a text stands between double quotes");
    CHECK(host.Run("Print // x") == "1:11: expected an expression, found the end of the line");
}

TEST_CASE("what the host has beside is refused by its name") {
    SampleHost host;
    CHECK(host.Run("Print Str(Boolean.FromString(\"x\"))") ==
          "1:11: \"Boolean.FromString\" is not supported here");
    CHECK(host.Run("Print Str(Currency.FromString(\"x\"))") ==
          "1:11: \"Currency.FromString\" is not supported here");
    CHECK(host.Run("MsgBox \"x\", 1") ==
          "1:1: buttons and a title of \"MsgBox\" are not supported here");
    CHECK(host.Run("Print String.ChrByte(65) + Str(\"B\".AscByte)") == "A66\n");
}
