// `kornum random` on any arguments, from a fixed seed unless the input gives one, so that
// a finding replays.
#include "CommandArguments.hpp"
#include "cli/RandomCommand.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<std::string> arguments{"--seed", "0"};
    for (std::string& argument : KornumFuzz::Arguments(data, size)) arguments.push_back(std::move(argument));
    KornumFuzz::RunCommandOn(KornumCli::RunRandom, arguments);
    return 0;
}
