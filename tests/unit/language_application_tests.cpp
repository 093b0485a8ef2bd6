// What an application does besides computing: its events, its end, what it reads.
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

#include "tests/unit/language_support.hpp"

using language_tests::RunProject;
using language_tests::SampleHost;

namespace {

constexpr auto ProjectName = "P.xojo_project";

/// What an application with these members prints, with its exit status, or the first line of its
/// errors.
std::string RunApplication(SampleHost& sample, const std::string& members) {
    return RunProject(sample, ProjectName,
                      {{ProjectName, "Type=Console\nClass=App;App.xojo_code;&h1;&h0;false\n"},
                       {"App.xojo_code",
                        "#tag Class\nProtected Class App\nInherits "
                        "ConsoleApplication\n" +
                            members + "End Class\n#tag EndClass\n"}});
}

std::string Event(const std::string& code) {
    return "#tag Event\n" + code + "\nEnd Function\n#tag EndEvent\n";
}

const std::string Failing = Event(
    "Function Run(args() As String) As Integer\nPrint \"runs\"\nRaise New "
    "SampleException(\"bad\")");

/// While it lives, standard input is this text.
class StandardInput {
public:
    explicit StandardInput(const std::string& text)
        : text_(text), before_(std::cin.rdbuf(text_.rdbuf())) {}
    ~StandardInput() {
        std::cin.rdbuf(before_);
        std::cin.clear();
    }
    StandardInput(const StandardInput&) = delete;
    StandardInput& operator=(const StandardInput&) = delete;

private:
    std::istringstream text_;
    std::streambuf* before_;
};

}  // namespace

TEST_CASE("an exception that nothing caught is an event") {
    SampleHost host;
    const auto handler = [](const std::string& result) {
        return Event(
            "Function UnhandledException(error As RuntimeException) As Boolean\n"
            "Print \"left: \" + error.Message\nReturn " +
            result);
    };
    CHECK(RunApplication(host, Failing + handler("True")) == "runs\nleft: bad\n0");
    CHECK_THROWS_AS(RunApplication(host, Failing + handler("False")), standin::language::Thrown);
    CHECK_THROWS_AS(RunApplication(host, Failing), standin::language::Thrown);
    // An exception within the event ends the program as well.
    CHECK_THROWS_AS(RunApplication(host, Failing + handler("New Sample(1).Fail(\"again\") Is Nil")),
                    standin::language::Thrown);
    // A method of that name is no event.
    CHECK_THROWS_AS(
        RunApplication(host, Failing + "#tag Method\nFunction UnhandledException(error As "
                                       "RuntimeException) As Boolean\nReturn True\nEnd Function\n"
                                       "#tag EndMethod\n"),
        standin::language::Thrown);
}

TEST_CASE("events that there are not, or that are declared otherwise, are refused") {
    SampleHost host;
    CHECK(RunApplication(host, Event("Function Runn(args() As String) As Integer")) ==
          "App.xojo_code:5:10: error: a ConsoleApplication has no event \"Runn\"; did you mean "
          "\"Run\"?");
    CHECK(
        RunApplication(host, Event("Function Opening() As Integer")) ==
        "App.xojo_code:5:10: error: a ConsoleApplication has no event \"Opening\"; it has Run and "
        "UnhandledException");
    for (const auto* head :
         {"Function Run() As Integer", "Function Run(args() As String) As Double",
          "Function Run(args As String) As Integer"}) {
        CAPTURE(head);
        CHECK(RunApplication(host, Event(head)) ==
              "App.xojo_code:5:10: error: the host declares this event as Function Run(args() As "
              "String) As Integer");
    }
    CHECK(RunApplication(host,
                         "#tag Method\nFunction Run(args() As String) As Integer\nEnd "
                         "Function\n#tag EndMethod\n")
              .ends_with("\"App\" has no Function Run(args() As String)"));
    CHECK(RunProject(host, ProjectName,
                     {{ProjectName, "Type=Console\nClass=C;C.xojo_code;&h1;&h0;false\n"},
                      {"C.xojo_code",
                       "Class C\n" + Event("Function Run() As Integer") + "End Class\n"}}) ==
          "C.xojo_code:3:10: error: \"C\" has no events: it does not inherit from "
          "ConsoleApplication");
}

TEST_CASE("Quit ends the program wherever it stands") {
    SampleHost host;
    CHECK(RunApplication(host, Event("Function Run(args() As String) As Integer\nLeave\nReturn 1") +
                                   "#tag Method\nSub Leave()\nTry\nPrint \"last\"\nQuit(7)\n"
                                   "Catch error As RuntimeException\nPrint \"caught\"\nFinally\n"
                                   "Print \"finally\"\nEnd Try\nEnd Sub\n#tag EndMethod\n") ==
          "last\n7");
    CHECK(host.Run("Print \"a\"\nQuit\nPrint \"b\"") == "a\n");
    standin::language::Session session(host.host(), host.types(), [](std::string_view) {});
    CHECK_THROWS_AS(session.Run(standin::language::Source("input", "Quit(2)")),
                    standin::language::Ended);
}

TEST_CASE("Input reads a line") {
    SampleHost host;
    const StandardInput input("first\r\n\xC3\xA4\n\xFF");
    CHECK(host.Run("Print Input + \"|\" + StdIn.ReadLine + \"|\" + Str(Input.Bytes) + Input") ==
          "first|\xC3\xA4|1\n");
}
