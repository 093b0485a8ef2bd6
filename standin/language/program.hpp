// A program of the host's language, from its text to its run.
#pragma once

#include <string>
#include <vector>

#include "standin/language/class_model.hpp"
#include "standin/language/code.hpp"
#include "standin/language/compiler.hpp"
#include "standin/language/source.hpp"

namespace standin::language {

/// Gives the variables that live outside of frames the first values of their types. Those that
/// have values keep them.
void AddGlobals(const GlobalTypes& types, Machine& machine);

/// Runs the statements of a main program. Throws what they throw, and ProgramError when memory
/// ends.
void RunStatements(const code::Block& statements, Frame& frame);

/// A program that was found right and can run.
class Program {
public:
    /// Parses and checks; throws ProgramError for the errors in it. The types must outlive the
    /// program. The arguments, in UTF-8, are for the application of a project.
    Program(const Source& source, const TypeTable& types,
            const std::vector<std::string>& arguments = {});

    /// Runs the program from its first statement and returns its exit status: what the application
    /// of a project returns, or what Quit was given; else it is 0. Throws Thrown for an exception
    /// that nothing caught, OutOfObjects, and ProgramError when it takes more steps or more memory
    /// than it may. Every reference is given back by then, but the exception's own.
    int Run(Host& host, const Machine::Output& print,
            std::uint64_t maximumSteps = UnlimitedSteps) const;

private:
    Compiler compiler_;
    code::Block main_;
};

}  // namespace standin::language
