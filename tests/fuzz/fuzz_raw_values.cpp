// Numbers of any bits and every member of them that is quick.
#include "tests/fuzz/raw_values.hpp"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static auto classes = fuzz::FuzzedPlugin::Get().ClassesWith(false);
    fuzz::Input input({data, size});
    fuzz::CallMember(input, classes[fuzz::FuzzedPlugin::TakeClass(input)]);
    fuzz::FuzzedPlugin::Get().FinishInput();
    return 0;
}
