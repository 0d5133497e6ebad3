// `kornum dist` on any arguments.
#include "CommandArguments.hpp"
#include "cli/DistCommand.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    KornumFuzz::RunCommandOn(KornumCli::RunDist, KornumFuzz::Arguments(data, size));
    return 0;
}
