// Option values shared by the subcommands of the kornum program.
#pragma once

#include <charconv>
#include <cstdio>
#include <string>
#include <vector>

namespace KornumCli {

// Says what is wrong with a command's arguments and where its help is; the exit status
// of bad usage.
inline int UsageError(const char* command, const std::string& message) {
    std::fprintf(stderr, "kornum %s: %s\nTry 'kornum %s --help'.\n", command, message.c_str(), command);
    return 2;
}

// Reads the value of --decimals, the argument after position i, and moves i onto it.
// Returns an empty text, or what is wrong with the value.
inline std::string ReadDecimals(const std::vector<std::string>& arguments, std::size_t& i, int& decimals) {
    if (i + 1 == arguments.size()) return "--decimals needs a number";
    const std::string& count = arguments[++i];
    auto [end, error] = std::from_chars(count.data(), count.data() + count.size(), decimals);
    if (error != std::errc() || end != count.data() + count.size() || decimals < 0 || decimals > 255)
        return "--decimals takes a whole number from 0 to 255, not '" + count + "'";
    return {};
}

}  // namespace KornumCli
