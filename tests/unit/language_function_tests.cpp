// The functions of the language on text and real numbers.
#include <string>

#include <doctest/doctest.h>

#include "tests/unit/language_support.hpp"

using language_tests::SampleHost;

TEST_CASE("letters and blanks") {
    SampleHost host;
    CHECK(host.Show("Uppercase(\"aZ9ä\") + Lowercase(\"aZ9Ä\")") == "AZ9äaz9Ä");
    CHECK(host.Show("\"[\" + Trim(\"  a b\" + Chr(9)) + LTrim(\" c \") + RTrim(\" d \") + \"]\"") ==
          "[a bc  d]");
    CHECK(host.Show("Trim(\"  \") + \"|\"") == "|");
    CHECK(host.Show("Titlecase(\"two bIG words\") + \"|\" + Titlecase(\" 1a\")") ==
          "Two Big Words| 1a");
    CHECK(host.Show("Titlecase(\"\")").empty());
}

TEST_CASE("searching text") {
    SampleHost host;
    CHECK(host.Show("InStr(\"Hello\", \"L\")") == "3");
    CHECK(host.Show("InStr(4, \"Hello\", \"l\")") == "4");
    CHECK(host.Show("InStr(5, \"Hello\", \"l\")") == "0");
    CHECK(host.Show("InStr(100, \"Hello\", \"l\")") == "0");
    CHECK(host.Show("InStr(-100, \"Hello\", \"l\")") == "3");
    CHECK(host.Show("InStr(\"äöü\", \"ü\")") == "3");
    CHECK(host.Show("InStr(\"abc\", \"\")") == "1");
    CHECK(host.Show("InStr(\"\", \"a\")") == "0");
    CHECK(host.Show("\"Hello\".IndexOf(\"l\")") == "2");
    CHECK(host.Show("\"Hello\".IndexOf(\"l\", 3)") == "3");
    CHECK(host.Show("\"Hello\".IndexOf(\"x\")") == "-1");
    CHECK(host.Show("\"Hello\".IndexOf(\"l\", 2147483647)") == "-1");
    CHECK(host.Show("\"Hello\".Contains(\"ELL\")") == "True");
    CHECK(host.Show("\"Hello\".BeginsWith(\"he\")") == "True");
    CHECK(host.Show("\"Hello\".BeginsWith(\"lo\")") == "False");
    CHECK(host.Show("\"Hello\".EndsWith(\"LO\")") == "True");
    CHECK(host.Show("\"lo\".EndsWith(\"Hello\")") == "False");
}

TEST_CASE("replacing text") {
    SampleHost host;
    CHECK(host.Show("Replace(\"aXbxc\", \"x\", \"--\")") == "a--bxc");
    CHECK(host.Show("ReplaceAll(\"aXbxc\", \"x\", \"--\")") == "a--b--c");
    CHECK(host.Show("ReplaceAll(\"aaa\", \"aa\", \"b\")") == "ba");
    CHECK(host.Show("ReplaceAll(\"abc\", \"\", \"x\")") == "abc");
    CHECK(host.Show("ReplaceAll(\"abc\", \"b\", \"\")") == "ac");
}

TEST_CASE("fields of text") {
    SampleHost host;
    CHECK(
        host.Run(
            "Dim p() As String = Split(\"a,b,,c\", \",\")\nPrint Str(p.Count)\nPrint p(1) + p(3)\n"
            "Print Join(p, \"+\")\nPrint p.Join") == "4\nbc\na+b++c\na b  c\n");
    CHECK(host.Run("Print Str(Split(\"\", \",\").Count)\nPrint Str(Split(\"ä1\", \"\").Count)\n"
                   "Print Str(Split(\"a b\").Count)\nPrint Str(Split(\"a,\", \",\").Count)") ==
          "0\n2\n2\n2\n");
    CHECK(host.Run("Dim none() As String\nPrint Join(none, \",\") + \"|\"") == "|\n");
    CHECK(host.Show("CountFields(\"a;b;c\", \";\")") == "3");
    CHECK(host.Show("CountFields(\"abc\", \";\")") == "1");
    CHECK(host.Show("NthField(\"a;b;c\", \";\", 2)") == "b");
    CHECK(host.Show("Str(StrComp(\"a\", \"A\", 0))") == "1");
    CHECK(host.Show("Str(StrComp(\"a\", \"b\", 0))") == "-1");
    CHECK(host.Show("Str(StrComp(\"ab\", \"ab\", 0))") == "0");
    CHECK(host.Show("NthField(\"a;b;c\", \";\", 4) + NthField(\"a\", \";\", 0) + \"|\"") == "|");
}

TEST_CASE("values into each other") {
    SampleHost host;
    CHECK(host.Show("CStr(5) + CStr(2.5) + CStr(True) + CStr(\"x\")") == "52.5Truex");
    CHECK(host.Show("CDbl(\"2.5e3\") + CDbl(1)") == "2501");
    CHECK(host.Show("CLong(\"9007199254740993\")") == "9007199254740993");
}

TEST_CASE("real functions") {
    SampleHost host;
    CHECK(host.Show("Abs(-2.5) + Sqrt(16) + Pow(2, 3)") == "14.5");
    CHECK(host.Show("Floor(-1.5) * 100 + Ceil(1.2) * 10 + Round(2.5)") == "-177");
    CHECK(host.Show("Min(2, 3) * 10 + Max(2, 3.5)") == "23.5");
    CHECK(host.Show(
              "Str(Min(0 / 0, 1)).Contains(\"nan\") And Str(Max(1, 0 / 0)).Contains(\"nan\")") ==
          "True");
    CHECK(host.Show("Sin(0) + Cos(0) + Tan(0) + Asin(0) + Acos(1) + Atan(0) + Atan2(0, 1)") == "1");
    CHECK(host.Show("Exp(0) + Log(1) + Sign(-3) + Ceiling(0.5)") == "1");
    CHECK(host.Run("For i As Integer = 1 To 100\nDim r As Double = Rnd\n"
                   "If r < 0 Or r >= 1 Then Print Str(r)\nNext\nPrint Str(Rnd <> Rnd)") ==
          "True\n");
    CHECK(host.Run("Dim start As Double = Microseconds\nPrint Str(Microseconds >= start)") ==
          "True\n");
    CHECK(host.Run("Dim t As Integer = Ticks\nDim m As Double = Microseconds / 1000000 * 60\n"
                   "Print Str(Abs(m - t) < 60 Or m > 2147483647)") == "True\n");
    CHECK(host.Run("Function Max(a As Integer, b As Integer) As Integer\nReturn -1\nEnd Function\n"
                   "Print Str(Max(1, 2))") == "-1\n");
}
