// Runs a command of the kornum program on the arguments a fuzz input spells (separated by
// NUL bytes), writing to /dev/null with a small output limit so that a long table or
// stream ends early: bad usage, a math error or the limit are clean ends, anything else
// (a crash, a hang, undefined behaviour) is a finding.
#pragma once

#include "cli/Output.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace KornumFuzz {

inline std::vector<std::string> Arguments(const std::uint8_t* data, std::size_t size) {
    std::vector<std::string> arguments(1);
    for (std::size_t i = 0; i < size && arguments.size() <= 16; ++i) {
        if (data[i] == 0)
            arguments.emplace_back();
        else
            arguments.back() += char(data[i]);
    }
    return arguments;
}

template <class Command>
void RunCommandOn(Command command, std::vector<std::string> arguments) {
    static const int nowhere = ::open("/dev/null", O_WRONLY);
    KornumCli::Output out(nowhere, false, 1 << 12);
    try {
        command(arguments, out);
        out.Finish();
    } catch (const KornumCli::OutputLimit&) {
    }
}

}  // namespace KornumFuzz
