#include "standin/language/program.hpp"

#include <algorithm>
#include <iterator>
#include <new>

#include "standin/language/parser.hpp"

namespace standin::language {

void AddGlobals(const GlobalTypes& types, Machine& machine) {
    for (auto slot = machine.globals.size(); slot < types.size(); ++slot) {
        machine.globals.push_back(Value::DefaultOf(types[slot]));
    }
}

void RunStatements(const code::Block& statements, Frame& frame) {
    try {
        statements.Execute(frame);
    } catch (const std::bad_alloc&) {
        throw ProgramError(frame.machine.position,
                           "the program needs more memory than there is for it");
    }
}

Program::Program(const Source& source, const TypeTable& types,
                 const std::vector<std::string>& arguments)
    : compiler_(types) {
    source.Validate();
    ErrorList errors;
    Constants constants(&types.constants());
    if (source.files().size() > 1) {
        std::vector<std::string> words{source.name()};
        std::ranges::copy(arguments, std::back_inserter(words));
        main_ = compiler_.CompileProject(ParseProject(source, constants, errors), words, errors);
    } else {
        main_ = compiler_.Compile(ParseProgram(source.text(), constants, errors), errors);
    }
}

int Program::Run(Host& host, const Machine::Output& print, std::uint64_t maximumSteps) const {
    Machine machine(host, print, maximumSteps);
    AddGlobals(compiler_.globals(), machine);
    Frame frame(machine, compiler_.slotCount());
    try {
        RunStatements(main_, frame);
    } catch (const Ended& end) {
        return end.status();
    }
    return static_cast<int>(frame.result.Get<std::int64_t>());
}

}  // namespace standin::language
