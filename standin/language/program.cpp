#include "standin/language/program.hpp"

#include <new>

#include "standin/language/parser.hpp"

namespace standin::language {

void RunStatements(const code::Block& statements, Frame& frame) {
    try {
        statements.Execute(frame);
    } catch (const std::bad_alloc&) {
        throw ProgramError(frame.machine.position,
                           "the program needs more memory than there is for it");
    }
}

Program::Program(const Source& source, const TypeTable& types) : compiler_(types) {
    source.Validate();
    main_ = compiler_.Compile(ParseProgram(source.text()));
}

void Program::Run(Host& host, const Machine::Output& print, std::uint64_t maximumSteps) const {
    Machine machine(host, print, maximumSteps);
    Frame frame(machine, compiler_.slotCount());
    RunStatements(main_, frame);
}

}  // namespace standin::language
