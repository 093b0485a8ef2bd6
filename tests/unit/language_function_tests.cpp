// The functions of the language on text and real numbers.
#include <string>

#include <doctest/doctest.h>

#include "standin/language/constants.hpp"
#include "standin/language/unicode.hpp"
#include "tests/unit/language_support.hpp"

using language_tests::SampleHost;

TEST_CASE("letters and blanks") {
    SampleHost host;
    CHECK(host.Show("Uppercase(\"aZ9ä\") + Lowercase(\"aZ9Ä\")") == "AZ9Äaz9ä");
    CHECK(host.Show("Uppercase(\"éažώЖя÷ß\")") == "ÉAŽΏЖЯ÷ß");
    CHECK(host.Show("Lowercase(\"ÀBŽΏЖЯ×ẞ\")") == "àbžώжя×ẞ");
    CHECK(host.Show("Titlecase(\"éA öÇ\")") == "Éa Öç");
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
    CHECK(host.Show("\"Hello\".IndexOf(3, \"l\")") == "3");
    CHECK(host.Show("\"Hello\".IndexOf(\"x\")") == "-1");
    CHECK(host.Show("\"Hello\".IndexOf(2147483647, \"l\")") == "-1");
    CHECK(
        host.Show("\"Hello\".IndexOf(\"l\", 3)").find("does not take (String, String, Integer)") !=
        std::string::npos);
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

TEST_CASE("small and capital letters have the same size and belong together") {
    for (char32_t letter = 0; letter <= 0x2000; ++letter) {
        const auto text = standin::language::EncodeUtf8(letter);
        const auto small = standin::language::Lowercase(text);
        const auto large = standin::language::Uppercase(text);
        CHECK(small.size() == text.size());
        CHECK(large.size() == text.size());
        CHECK((small == text || standin::language::Uppercase(small) == text));
        CHECK((large == text || standin::language::Lowercase(large) == text));
        CHECK(standin::language::Lowercase(large) == small);
    }
    const std::string malformed =
        "\xC3"
        "a\xFF";
    CHECK(standin::language::Uppercase(malformed) ==
          "\xC3"
          "A\xFF");
}

TEST_CASE("text is searched and compared without regard to letter case") {
    SampleHost host;
    CHECK(host.Show("\"ä\" = \"Ä\"") == "True");
    CHECK(host.Show("\"Ä\" < \"ä\"") == "False");
    CHECK(host.Show("\"Ö\" < \"ä\"") == "False");
    CHECK(host.Show("InStr(\"xÖy\", \"öY\")") == "2");
    CHECK(host.Show("Replace(\"xÖyö\", \"ö\", \"-\")") == "x-yö");
    CHECK(host.Show("ReplaceAll(\"xÖyö\", \"ö\", \"-\")") == "x-y-");
    CHECK(host.Show("NthField(\"1Ä2ä3\", \"ä\", 3)") == "3");
    CHECK(host.Show("\"Äb\".BeginsWith(\"ä\") And \"bÄ\".EndsWith(\"ä\")") == "True");
    CHECK(host.Run("Dim d As New Dictionary\nd.Value(\"Ä\") = 1\nPrint Str(d.HasKey(\"ä\"))\n"
                   "#If \"Ä\" = \"ä\"\nPrint \"constant\"\n#EndIf") == "True\nconstant\n");
}

TEST_CASE("the ends of lines") {
    SampleHost host;
    const std::string width = standin::language::IsWindows ? "2" : "1";
    CHECK(host.Show("Len(EndOfLine)") == width);
    CHECK(host.Show("EncodeHex(EndOfLine.Windows + EndOfLine.UNIX + EndOfLine.Macintosh)") ==
          "0D0A0A0D");
    CHECK(host.Run("StdOut.Write(\"a\")\nStdOut.Write \"b\"\nStdOut.Flush\nPrint \"c\" + "
                   "EndOfLine.LF + \"d\"") == "abc\nd\n");
    CHECK(host.Run("Print Str(System.Microseconds > 0 And System.Ticks >= 0)") == "True\n");
}

TEST_CASE("a text's number is the one that it begins with") {
    SampleHost host;
    CHECK(host.Show("\"abc\".ToInteger") == "0");
    CHECK(host.Show("\" -12abc\".ToInteger") == "-12");
    CHECK(host.Show("\"1.9\".ToInteger") == "1");
    CHECK(host.Show("\"1e3\".ToInt64") == "1000");
    CHECK(host.Show("\"&hFF\".ToInteger") == "255");
    CHECK(host.Show("\"9007199254740993\".ToInt64") == "9007199254740993");
    CHECK(host.Show("\"99999999999999999999\".ToInt64") == "9223372036854775807");
    CHECK(host.Show("\"1,5\".ToDouble") == "1");
    CHECK(host.Show("\"\".ToDouble") == "0");
    CHECK(host.Run("Print Str(Integer.FromString(\"abc\"))")
              .starts_with("Unhandled InvalidArgumentException: "));
}

TEST_CASE("real functions") {
    SampleHost host;
    CHECK(host.Show("Abs(-2.5) + Sqrt(16) + Pow(2, 3)") == "14.5");
    CHECK(host.Show("Floor(-1.5) * 100 + Ceil(1.2) * 10 + Round(2.5)") == "-177");
    CHECK(host.Show("Min(2, 3) * 10 + Max(2, 3.5)") == "23.5");
    CHECK(host.Show("Min(3, 2, 1) * 10 + Max(2, 3.5, 3, -4)") == "13.5");
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
