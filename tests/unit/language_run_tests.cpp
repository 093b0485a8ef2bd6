// Programs that use nothing but the language.
#include <string>

#include <doctest/doctest.h>

#include "tests/unit/language_support.hpp"

using language_tests::PerWidth;
using language_tests::SampleHost;

TEST_CASE("integers have their width and wrap") {
    SampleHost host;
    CHECK(host.Show("2147483647 + 1") == PerWidth("-2147483648", "2147483648"));
    CHECK(host.Show("2147483648 + 1") == "2147483649");
    CHECK(host.Show("-2147483648") == "-2147483648");
    CHECK(host.Show("-2147483648 - 1") == PerWidth("2147483647", "-2147483649"));
    CHECK(host.Show("9223372036854775807 + 1") == "-9223372036854775808");
    CHECK(host.Show("-9223372036854775808") == "-9223372036854775808");
    CHECK(host.Show("18446744073709551615") == "18446744073709551615");
    CHECK(host.Show("-9223372036854775809") == "1:7: the number does not fit in 64 bits");
    CHECK(host.Show("46341 * 46341") == PerWidth("-2147479015", "2147488281"));
    CHECK(host.Show("7 \\ 2") == "3");
    CHECK(host.Show("-7 \\ 2") == "-3");
    CHECK(host.Show("-7 Mod 2") == "-1");
    CHECK(host.Show("(-2147483647 - 1) \\ -1") == PerWidth("-2147483648", "2147483648"));
    CHECK(host.Show("(-2147483647 - 1) Mod -1") == "0");
    CHECK(host.Show("CType(-9223372036854775808, Int64) \\ -1") == "-9223372036854775808");
    CHECK(host.Show("7.9 \\ 2") == "3");
    CHECK(host.Show("6 And 3") == "2");
    CHECK(host.Show("6 Or 3") == "7");
    CHECK(host.Show("6 Xor 3") == "5");
    CHECK(host.Show("Not 0") == "-1");
    CHECK(host.Show("&hFF") == "255");
    CHECK(host.Show("CType(&hFFFFFFFF, Integer)") == PerWidth("-1", "4294967295"));
    CHECK(host.Show("CType(-1, UInt32)") == "4294967295");
    CHECK(host.Show("CType(-1, UInt64)") == "18446744073709551615");
    CHECK(host.Show("CType(18446744073709551615, Int64)") == "-1");
    CHECK(host.Run("Dim u As UInt32 = 1\nu = u - 2\nPrint Str(u)\nPrint Str(u + 1)") ==
          "4294967295\n0\n");
    CHECK(host.Run("Dim u As UInt64 = 1\nPrint Str(u - 2)") == "18446744073709551615\n");
    CHECK(host.Run("Dim u As UInt32 = 1, i As Int32 = -2\nPrint Str(u + i)") == "-1\n");
}

TEST_CASE("a divisor of 0 raises") {
    SampleHost host;
    CHECK(host.Run("Dim z As Integer\nPrint Str(1 \\ z)") ==
          "Unhandled RuntimeException: Division by zero. (line 2)\n");
    CHECK(host.Run("Dim z As UInt64\nPrint Str(1 Mod z)") ==
          "Unhandled RuntimeException: Division by zero. (line 2)\n");
    CHECK(host.Show("1 / 0") == "inf");
    CHECK(host.Show("-1 / 0") == "-inf");
    CHECK(host.Show("Str(0 / 0) = \"nan\" Or Str(0 / 0) = \"-nan\"") == "True");
}

TEST_CASE("real numbers") {
    SampleHost host;
    CHECK(host.Show("7 / 2") == "3.5");
    CHECK(host.Show("6 / 2") == "3");
    CHECK(host.Show("2 ^ 10") == "1024");
    CHECK(host.Show("-2 ^ 2") == "-4");
    CHECK(host.Show("2 ^ 3 ^ 2") == "64");
    CHECK(host.Show("2 ^ -1") == "0.5");
    CHECK(host.Show("0.1 + 0.2") == "0.30000000000000004");
    CHECK(host.Show("1e20") == "1e+20");
    CHECK(host.Show("10000.0") == "10000");
    CHECK(host.Show("100000.0") == "1e+05");
    CHECK(host.Show("CType(0.1, Single)") == "0.1");
    CHECK(host.Show("CType(0.1, Single) + 0") == "0.10000000149011612");
    CHECK(host.Run("Dim i As Integer = 2.9\nPrint Str(i)\ni = -2.9\nPrint Str(i)") == "2\n-2\n");
    CHECK(host.Show("CType(1e300, Int64)") == "9223372036854775807");
    CHECK(host.Show("CType(-1e300, Int64)") == "-9223372036854775808");
    CHECK(host.Show("CType(1e300, UInt64)") == "18446744073709551615");
    CHECK(host.Show("CType(0 / 0, Integer)") == "0");
}

TEST_CASE("currency counts in ten-thousandths") {
    SampleHost host;
    CHECK(host.Run("Dim c As Currency = 12.34567\nPrint Str(c)\nPrint Str(c + 1)\nPrint "
                   "Str(-c)\nPrint Str(c * 2)") == "12.3457\n13.3457\n-12.3457\n24.6914\n");
    CHECK(host.Run("Dim c As Currency = 5\nPrint Str(c)\nDim i As Integer = c\nPrint Str(i)\nPrint "
                   "Str(c = 5)") == "5\n5\nTrue\n");
    CHECK(host.Run("Dim c As Currency = -0.5\nPrint Str(c)") == "-0.5\n");
    CHECK(
        host.Run("Dim c As Currency = 922337203685477.5807\nPrint Str(c)\nPrint Str(c - 0.0001)\n"
                 "c = -922337203685477.5808\nPrint Str(c)\nc = 0.00005\nPrint Str(c)\nc = 0.00016\n"
                 "Print Str(c)\nc = -0.00016\nPrint Str(c)\nc = 1.25e2\nPrint Str(c)") ==
        "922337203685477.5807\n922337203685477.5806\n-922337203685477.5808\n0\n0.0002\n"
        "-0.0002\n125\n");
    CHECK(
        host.Run(
            "Dim c As Currency = 922337203685477.5807, d As Currency = 0.0001\nPrint Str(c * 1)\n"
            "Print Str(c * d)\nPrint Str(-c * d)\nd = 1.0001\nPrint Str(d * d)\nc = 30000000.0005\n"
            "Print Str(c * c)\nc = 0.5\nd = 0.0001\nPrint Str(c * d)\nd = 0.0003\nPrint Str(c * "
            "d)") ==
        "922337203685477.5807\n92233720368.5478\n-92233720368.5478\n1.0002\n"
        "900000000030000\n0\n0.0002\n");
}

TEST_CASE("comparisons") {
    SampleHost host;
    CHECK(host.Show("1 < 2") == "True");
    CHECK(host.Show("1 = 1.0") == "True");
    CHECK(host.Show("-1 < 18446744073709551615") == "True");
    CHECK(host.Show("\"abc\" = \"ABC\"") == "True");
    CHECK(host.Show("\"abc\" < \"abd\"") == "True");
    CHECK(host.Show("\"ab\" < \"abc\"") == "True");
    CHECK(host.Show("True <> False") == "True");
    CHECK(host.Run(
              "Dim n As Double = 0 / 0\nPrint Str(n = n)\nPrint Str(n <> n)\nPrint Str(n < n)") ==
          "False\nTrue\nFalse\n");
    CHECK(host.Show("True < False") == "1:12: \"<\" cannot stand between Boolean and Boolean");
    CHECK(host.Show("1 = \"1\"") == "1:9: \"=\" cannot stand between Integer and String");
    CHECK(host.Show("1 + \"1\"") ==
          "1:9: \"+\" cannot stand between Integer and String; use Str to join texts, Val to add "
          "numbers");
}

TEST_CASE("And and Or leave out what cannot matter") {
    SampleHost host;
    const std::string side =
        "Function Side(b As Boolean) As Boolean\nPrint \"side\"\nReturn b\n"
        "End Function\n";
    CHECK(host.Run(side + "Print Str(False And Side(True))") == "False\n");
    CHECK(host.Run(side + "Print Str(True Or Side(True))") == "True\n");
    CHECK(host.Run(side + "Print Str(True And Side(False))") == "side\nFalse\n");
    CHECK(host.Run(side + "Print Str(True Xor Side(True))") == "side\nFalse\n");
}

TEST_CASE("variables") {
    SampleHost host;
    CHECK(host.Run("dim A, b as integer = 3, C As String\nvar d As Boolean\n"
                   "PRINT Str(a)\nPrint Str(B)\nPrint c + \"|\"\nPrint Str(D)") ==
          "3\n3\n|\nFalse\n");
    CHECK(host.Run("Dim a As Integer\nDim A As Integer") == "2:5: \"A\" is declared already");
    CHECK(host.Run("If True Then\nDim a As Integer = 1\nEnd If\nPrint a") ==
          "4:7: there is nothing named \"a\"");
    CHECK(
        host.Run("Dim a As Integer = 1\nIf True Then\nDim a As Integer = 2\nPrint Str(a)\nEnd If\n"
                 "Print Str(a)") == "2\n1\n");
    CHECK(host.Run("For i As Integer = 1 To 2\nDim n As Integer\nn = n + i\nPrint Str(n)\nNext") ==
          "1\n2\n");
    CHECK(host.Run("Const N = 5\nPrint Str(N)\nN = 6") == "3:1: a constant cannot be assigned to");
    CHECK(host.Run("Dim a As Integer = \"1\"") ==
          "1:20: expected Integer, this is String; use Val");
    CHECK(host.Run("Dim a As String = 1") == "1:19: expected String, this is Integer; use Str");
    CHECK(host.Run("a = 1") == "1:1: there is nothing named \"a\"");
    CHECK(host.Run("Dim a As Integer\na") ==
          "2:1: this does nothing; a statement is a call or an assignment");
}

TEST_CASE("branches") {
    SampleHost host;
    const std::string grade =
        "Function Grade(n As Integer) As String\nIf n < 0 Then\nReturn \"negative\"\nElseIf n = 0 "
        "Then\nReturn \"zero\"\nElse\nReturn \"positive\"\nEnd If\nEnd Function\n";
    CHECK(host.Run(grade + "Print Grade(-1)\nPrint Grade(0)\nPrint Grade(1)") ==
          "negative\nzero\npositive\n");
    CHECK(host.Run("If 1 > 2 Then Print \"yes\" Else Print \"no\"") == "no\n");
    CHECK(host.Run("If 1 < 2 Then Print \"yes\"") == "yes\n");
    CHECK(host.Run("If 1 Then Print 1") == "1:4: expected Boolean, this is Integer");
}

TEST_CASE("Select Case") {
    SampleHost host;
    const std::string text =
        "Sub Tell(n As Integer)\nSelect Case n\nCase 1, 2\nPrint \"few\"\nCase 3 To 5\n"
        "Print \"some\"\nCase Is > 5\nPrint \"many\"\nCase Else\nPrint \"none\"\nEnd Select\n"
        "End Sub\n";
    CHECK(host.Run(text + "Tell 2\nTell 4\nTell 6\nTell 0") == "few\nsome\nmany\nnone\n");
    CHECK(
        host.Run(
            "Select Case \"b\"\nCase \"A\"\nPrint Str(1)\nCase \"B\"\nPrint Str(2)\nEnd Select") ==
        "2\n");
}

TEST_CASE("counting loops") {
    SampleHost host;
    const auto count = [&host](const std::string& head) {
        return host.Run("Dim s As String\nFor i As " + head +
                        "\ns = s + Str(i) + \" \"\nNext i\nPrint s");
    };
    CHECK(count("Integer = 1 To 3") == "1 2 3 \n");
    CHECK(count("Integer = 3 DownTo 1") == "3 2 1 \n");
    CHECK(count("Integer = 3 To 1 Step -1") == "3 2 1 \n");
    CHECK(count("Integer = 1 To 6 Step 2") == "1 3 5 \n");
    CHECK(count("Integer = 1 To 0") == "\n");
    CHECK(count("Double = 0 To 1 Step 0.5") == "0 0.5 1 \n");
    CHECK(count("UInt32 = 2 DownTo 0") == "2 1 0 \n");
    CHECK(count("Int64 = 2147483647 To 2147483648") == "2147483647 2147483648 \n");
    CHECK(count("Integer = 2147483646 To 2147483647") == "2147483646 2147483647 \n");
    CHECK(host.Run("Dim i As Integer\nFor i = 1 To 3\nNext\nPrint Str(i)") == "4\n");
    CHECK(host.Run("Dim e As Integer = 3\nFor i As Integer = 1 To e\ne = 2\nPrint Str(i)\nNext") ==
          "1\n2\n");
    CHECK(host.Run("For i As String = 1 To 2\nNext") ==
          "1:19: expected String, this is Integer; use Str");
    CHECK(host.Run("For i As Boolean = True To False\nNext") ==
          "1:5: a loop counts in a variable of a number type");
    CHECK(host.Run("For c As Currency = 1 To 2\nNext") == "1:1: a loop cannot count in Currency");
    CHECK(host.Run("For j = 1 To 2\nNext") == "1:5: there is nothing named \"j\"");
}

TEST_CASE("conditional loops") {
    SampleHost host;
    CHECK(host.Run("Dim i As Integer\nWhile i < 2\ni = i + 1\nPrint Str(i)\nWend") == "1\n2\n");
    CHECK(host.Run("Dim i As Integer\nDo Until i = 2\ni = i + 1\nLoop\nPrint Str(i)") == "2\n");
    CHECK(host.Run("Dim i As Integer\nDo\ni = i + 1\nLoop Until i >= 1\nPrint Str(i)") == "1\n");
}

TEST_CASE("Exit and Continue reach the loop that is meant") {
    SampleHost host;
    const std::string nested =
        "For i As Integer = 1 To 3\nDim n As Integer\nWhile n < 3\nn = n + 1\n"
        "If n = 2 Then {}\nPrint Str(i) + Str(n)\nWend\nNext";
    const auto with = [&](const std::string& statement) {
        std::string text = nested;
        return host.Run(text.replace(text.find("{}"), 2, statement));
    };
    CHECK(with("Exit") == "11\n21\n31\n");
    CHECK(with("Exit While") == "11\n21\n31\n");
    CHECK(with("Exit For") == "11\n");
    CHECK(with("Continue") == "11\n13\n21\n23\n31\n33\n");
    CHECK(with("Continue For") == "11\n21\n31\n");
    CHECK(with("Exit Do") == "5:15: there is no \"Do\" loop around this");
    CHECK(host.Run("Exit") == "1:1: there is no loop around this");
}

TEST_CASE("routines") {
    SampleHost host;
    CHECK(host.Run("Print Str(Twice(4))\nFunction Twice(n As Integer) As Integer\nReturn n * 2\n"
                   "End Function") == "8\n");
    CHECK(host.Run("Function Fib(n As Integer) As Integer\nIf n < 2 Then Return n\n"
                   "Return Fib(n - 1) + Fib(n - 2)\nEnd Function\nPrint Str(Fib(15))") == "610\n");
    CHECK(host.Run("Sub Swap(ByRef a As String, ByRef b As String)\nDim t As String = a\na = b\n"
                   "b = t\nEnd Sub\nDim x As String = \"1\", y As String = \"2\"\nSwap(x, y)\n"
                   "Swap x, y\nSwap x, y\nPrint x + y") == "21\n");
    CHECK(
        host.Run("Sub Inner(ByRef n As Integer)\nn = n + 1\nEnd Sub\nSub Outer(ByRef n As Integer)"
                 "\nInner(n)\nn = n * 10\nEnd Sub\nDim v As Integer = 1\nOuter(v)\nPrint Str(v)") ==
        "20\n");
    CHECK(host.Run("Function F(a As Integer = 1, b As String = \"x\") As String\n"
                   "Return Str(a) + b\nEnd Function\nPrint F\nPrint F(2)\nPrint F(2, \"y\")") ==
          "1x\n2x\n2y\n");
    CHECK(host.Run("Function F() As Integer\nEnd Function\nPrint Str(F())") == "0\n");
    CHECK(host.Run("Function F() As Sample\nEnd Function\nPrint Str(F() Is Nil)") == "True\n");
    CHECK(host.Run("Function F(n As Integer) As String\nReturn \"i\"\nEnd Function\n"
                   "Function F(n As String) As String\nReturn \"s\"\nEnd Function\n"
                   "Print F(1) + F(\"1\")") == "is\n");
    CHECK(host.Run("Dim total As Integer = 5\nSub Add(n As Integer)\ntotal = total + n\nEnd Sub\n"
                   "Add 3\nPrint Str(total)") == "8\n");
    CHECK(host.Run("Sub S(n As Integer = \"x\")\nEnd Sub") ==
          "1:22: expected Integer, this is String; use Val");
    CHECK(host.Run("Sub S(n As Integer)\nEnd Sub\nPrint S(1)") == "3:7: this returns no value");
    CHECK(host.Run("Sub S()\nReturn 1\nEnd Sub") == "2:8: only a Function returns a value");
    CHECK(host.Run("Function F() As Integer\nReturn\nEnd Function") ==
          "2:1: a Function returns a value, here Integer");
    CHECK(host.Run("Sub S(a As Integer, A As Integer)\nEnd Sub") ==
          "1:21: \"A\" is declared already");
    CHECK(host.Run("Sub S\nEnd Sub\nSub s()\nEnd Sub") == "3:5: \"s\" is declared already");
    CHECK(host.Run("Sub S(ByRef n As Integer)\nEnd Sub\nS(1)") ==
          "3:3: \"S(ByRef n As Integer)\" expects a variable of type Integer for \"n\", this is a "
          "value of type Integer; put it into a variable first");
    CHECK(host.Run("Sub S(n As Integer)\nEnd Sub\nS(1, 2)") ==
          "3:1: \"S\" has 2 arguments, but \"S(n As Integer)\" takes fewer");
    CHECK(host.Run("Dim v As Integer\nPrint v(1)") ==
          "2:7: \"v\" is a variable of type Integer here, and takes no arguments");
}

TEST_CASE("endless recursion ends in an exception") {
    SampleHost host;
    CHECK(host.Run("Function F(n As Integer) As Integer\nReturn F(n + 1)\nEnd Function\n"
                   "Try\nPrint Str(F(1))\nCatch e As RuntimeException\nPrint e.Message\nEnd Try\n"
                   "Print \"on\"") == "Routines call each other too deeply.\non\n");
    // The depth is counted back when an exception passes.
    CHECK(host.Run("Function F(n As Integer) As Integer\nIf n = 0 Then Raise New RuntimeException\n"
                   "Return F(n - 1)\nEnd Function\nFor i As Integer = 1 To 10\nTry\n"
                   "Print Str(F(500))\nCatch\nEnd Try\nNext\nPrint \"on\"") == "on\n");
    // A call inside an expression of the greatest height still fits the stack.
    std::string sum = "F(n + 1)";
    for (int i = 0; i < 480; ++i) {
        sum += " + 1";
    }
    CHECK(host.Run("Function F(n As Integer) As Integer\nReturn " + sum +
                   "\nEnd Function\nTry\nPrint Str(F(1))\nCatch\nPrint \"caught\"\nEnd Try") ==
          "caught\n");
}

TEST_CASE("exceptions") {
    SampleHost host;
    CHECK(host.Run("Try\nRaise New OutOfBoundsException(\"far\", 7)\nPrint \"no\"\n"
                   "Catch e As NilObjectException\nPrint \"wrong\"\n"
                   "Catch e As OutOfBoundsException\nPrint e.Message + Str(e.ErrorNumber)\n"
                   "Finally\nPrint \"finally\"\nEnd Try") == "far7\nfinally\n");
    CHECK(host.Run("Try\nRaise New SampleException\nCatch e\nPrint Str(e IsA SampleException)\n"
                   "Print Str(e IsA RuntimeException)\nPrint Str(e IsA Sample)\nEnd Try") ==
          "True\nTrue\nFalse\n");
    CHECK(host.Run("Try\nTry\nRaise New SampleException(\"a\")\nFinally\nPrint \"inner\"\nEnd Try\n"
                   "Catch\nPrint \"outer\"\nEnd Try") == "inner\nouter\n");
    CHECK(host.Run("Try\nTry\nRaise New SampleException(\"a\")\nCatch e As SampleException\n"
                   "Raise New SampleException(e.Message + \"b\")\nEnd Try\n"
                   "Catch e As SampleException\nPrint e.Message\nEnd Try") == "ab\n");
    CHECK(host.Run("Dim e As RuntimeException\nTry\nRaise e\nCatch n As NilObjectException\n"
                   "Print \"nil\"\nEnd Try\nPrint e.Message") ==
          "nil\nUnhandled NilObjectException: \"e\" is Nil; missing New? (line 7)\n");
    CHECK(
        host.Run("Dim e As New RuntimeException\ne.Message = \"m\"\ne.ErrorNumber = 3\nRaise e") ==
        "Unhandled RuntimeException: m (line 4)\n");
    CHECK(host.Run("Function F() As Integer\nTry\nReturn 1\nFinally\nPrint \"f\"\nEnd Try\n"
                   "End Function\nPrint Str(F())") == "f\n1\n");
    CHECK(host.Run("For i As Integer = 1 To 3\nTry\nIf i = 2 Then Exit For\nFinally\nPrint Str(i)\n"
                   "End Try\nNext") == "1\n2\n");
    CHECK(host.Run("Function F() As Integer\nTry\nRaise New SampleException\nFinally\nReturn 2\n"
                   "End Try\nEnd Function\nPrint Str(F())") == "2\n");
    CHECK(host.Run("Sub S()\nRaise New SampleException(\"deep\")\nEnd Sub\n\nS()") ==
          "Unhandled SampleException: deep (line 2)\n");
    CHECK(host.Run("Dim e As RuntimeException = New SampleException(\"x\")\n"
                   "Dim s As SampleException = CType(e, SampleException)\nPrint s.Message\n"
                   "Dim n As NilObjectException = NilObjectException(e)") ==
          "x\nUnhandled IllegalCastException: A SampleException is not a NilObjectException. (line "
          "4)\n");
    CHECK(host.Run("Dim e As RuntimeException\nDim s As SampleException = e") ==
          "2:28: expected SampleException, this is RuntimeException; use CType");
    CHECK(host.Run("Raise 5") == "1:7: Integer is not an exception");
    CHECK(host.Run("Try\nCatch e As Sample\nEnd Try") == "2:12: Sample is not an exception");
    CHECK(host.Run("Try\nCatch e As Integer\nEnd Try") == "2:12: Integer is not an exception");
    CHECK(host.Run("While 1 \\ CType(0, Integer) = 1\nWend") ==
          "Unhandled RuntimeException: Division by zero. (line 1)\n");
}

TEST_CASE("text") {
    SampleHost host;
    CHECK(host.Show("\"a\"\"b\" + \"c\"") == "a\"bc");
    CHECK(host.Show("Len(\"äöü\")") == "3");
    CHECK(host.Show("LenB(\"äöü\")") == "6");
    CHECK(host.Show("Left(\"äöü\", 2)") == "äö");
    CHECK(host.Show("Left(\"abc\", -1) + Left(\"abc\", 9)") == "abc");
    CHECK(host.Show("Right(\"äöü\", 2)") == "öü");
    CHECK(host.Show("Right(\"abc\", 9) + Right(\"abc\", 0)") == "abc");
    CHECK(host.Show("Mid(\"äöü\", 2)") == "öü");
    CHECK(host.Show("Mid(\"äöü\", 2, 1)") == "ö");
    CHECK(host.Show("Mid(\"abc\", 9) + Mid(\"abc\", 0, 1)") == "a");
    CHECK(host.Show("MidB(\"abc\", 2, 1) + LeftB(\"abc\", 1) + RightB(\"abc\", 1)") == "bac");
    CHECK(host.Show("Chr(228) + Chr(65)") == "äA");
    CHECK(host.Show("Asc(\"ä\")") == "228");
    CHECK(host.Show("Asc(\"\")") == "0");
    CHECK(host.Show("AscB(ChrB(200))") == "200");
    CHECK(host.Show("LenB(ChrB(200) + ChrB(201))") == "2");
    CHECK(host.Show("Hex(255)") == "FF");
    CHECK(host.Show("Hex(-1)") == PerWidth("FFFFFFFF", "FFFFFFFFFFFFFFFF"));
    CHECK(host.Show("Hex(4294967296)") == "100000000");
    CHECK(host.Show("Hex(15.7) + Oct(-0.5) + Bin(2.9)") == "F010");
    CHECK(host.Run("Dim c As Currency = 15.75\nPrint Hex(c) + Oct(c) + Bin(c) + c.Hex\nc = -1.75\n"
                   "Print Hex(c)\nDim s As Single = 15.75\nDim b As Byte = 15\n"
                   "Print Hex(s) + Hex(b) + Oct(s) + Bin(b)") ==
          "F171111F\nFFFFFFFFFFFFFFFF\nFF171111\n");
    CHECK(host.Show("Bin(5) + Oct(8)") == "10110");
    CHECK(host.Show("Val(\" 12.5e1x\")") == "125");
    CHECK(host.Show("Val(\"-&hFF\")") == "-255");
    CHECK(host.Show("Val(\"x\")") == "0");
    CHECK(host.Show("Val(\"1e999\")") == "inf");
    CHECK(host.Show("Val(\"-.5\")") == "-0.5");
    CHECK(host.Show("Val(Str(1 / 0))") == "inf");
    CHECK(host.Show("Str(True)") == "True");
    CHECK(host.Run("Print") == "1:6: expected an expression, found the end of the line");
    CHECK(host.Run("Print \"\"") == "\n");
    CHECK(host.Show("Len(\"a\" + Chr(0) + \"b\")") == "3");
}

TEST_CASE("encodings") {
    SampleHost host;
    CHECK(host.Show("LenB(ConvertEncoding(\"ä\", Encodings.ISOLatin1))") == "1");
    CHECK(host.Show("LenB(ConvertEncoding(\"ä\", Encodings.UTF16))") == "2");
    CHECK(host.Show("LenB(ConvertEncoding(\"ä\", Encodings.UTF32BE))") == "4");
    CHECK(host.Show("ConvertEncoding(\"aä€\", Encodings.WindowsANSI)") == "aä€");
    CHECK(host.Show("AscB(ConvertEncoding(\"ä\", Encodings.MacRoman))") == "138");
    CHECK(host.Show("Len(ConvertEncoding(Chr(119070) + \"x\", Encodings.UTF16LE))") == "2");
    CHECK(host.Show("Len(ConvertEncoding(Chr(119070) + \"x\", Encodings.UTF16BE))") == "2");
    CHECK(host.Show("Right(ConvertEncoding(Chr(119070) + \"x\", Encodings.UTF16), 1)") == "x");
    CHECK(host.Show("Mid(ConvertEncoding(\"aäb\", Encodings.UTF32LE), 2, 1)") == "ä");
    CHECK(host.Show("ConvertEncoding(\"ä\", Encodings.UTF16) + \"b\"") == "äb");
    CHECK(host.Show("ConvertEncoding(\"ä\", Encodings.UTF16) = \"ä\"") == "True");
    CHECK(host.Show("Encoding(\"a\") = Encodings.UTF8") == "True");
    CHECK(host.Show("Encoding(ChrB(65)) = Nil") == "True");
    CHECK(host.Show("Encoding(DefineEncoding(\"a\", Nil)) <> Nil") == "False");
    CHECK(host.Show("DefineEncoding(ChrB(228), Encodings.ISOLatin1)") == "ä");
    CHECK(host.Show("GetTextEncoding(&h100, 0, 2) = Encodings.UTF8") == "True");
    CHECK(host.Show("GetTextEncoding(&h500) = Encodings.WindowsANSI") == "True");
    CHECK(host.Show("LenB(DefineEncoding(\"ab\", GetTextEncoding(&h1234)))") == "2");
    CHECK(host.Show("Encodings.Klingon") == "1:17: there is no encoding \"Klingon\"");
    CHECK(host.Show("Encodings.UTF8") == "1:17: TextEncoding cannot be printed");
    CHECK(
        host.Run(
            "Dim e As TextEncoding\nPrint Str(e = Nil)\ne = Encodings.ASCII\nPrint Str(e = Nil)") ==
        "True\nFalse\n");
}

TEST_CASE("a failing allocation is an exception of the program") {
    SampleHost host;
    host.host().FailAllocation(standin::Allocation::String, 2, false);
    CHECK(host.Run("Dim a As String = \"x\"\nTry\na = a + \"y\"\nCatch e As OutOfMemoryException\n"
                   "Print \"no memory\"\nEnd Try\nPrint a") == "no memory\nx\n");
    host.host().StopFailing();
    host.host().FailAllocation(standin::Allocation::Object, 1, true);
    CHECK(host.Run("Dim a As New Sample") == "Out of objects\n");
    host.host().StopFailing();
}

TEST_CASE("a million statements take little time") {
    SampleHost host;
    CHECK(host.Run("Dim s As Integer\nFor i As Integer = 1 To 1000000\ns = s + i Mod 7\nNext\n"
                   "Print Str(s)") == "2999998\n");
}

TEST_CASE("End alone closes a statement") {
    SampleHost host;
    CHECK(host.Run("If True Then\nPrint \"if\"\nElse\nPrint \"else\"\nEnd\nSelect Case 1\nCase 1\n"
                   "Print \"case\"\nEnd\nTry\nPrint \"try\"\nFinally\nPrint \"last\"\nEnd") ==
          "if\ncase\ntry\nlast\n");
    CHECK(
        host.Run("Function F() As Integer\nIf True Then\nReturn 5\nEnd ' of the If\nEnd Function\n"
                 "Print Str(F)") == "5\n");
    CHECK(host.Run("Function F() As Integer\nReturn 5\nEnd") ==
          "3:4: expected \"Function\", found the end of the line");
}
