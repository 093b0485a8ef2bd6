// Numbers of any bits and the functions that compute long.
#include "tests/fuzz/raw_values.hpp"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static auto classes = fuzz::FuzzedPlugin::Get().ClassesWith(true);
    fuzz::Input input({data, size});
    fuzz::CallMember(input, classes[fuzz::FuzzedPlugin::TakeClass(input)]);
    fuzz::FuzzedPlugin::Get().FinishInput();
    return 0;
}
