// The option tables of the kornum program: each command declares its options once, and
// the parsing, --help and -h come from that table.
#pragma once

#include "Output.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace KornumCli {

// Bad usage: the message says what is wrong; the program adds where the help is and
// exits with status 2.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// One option. A flag has no ValueName; an option with one takes the next argument, or the
// text after '=' in --name=value. Apply stores the value or throws UsageError.
struct Option {
    std::string Name;       // "--decimals"
    std::string ShortName;  // "-n", or empty
    std::string ValueName;  // "N", or empty for a flag
    std::string Help;
    std::function<void(const std::string& value)> Apply;
};

// What a command shows in its help: the usage lines, a description, its options and a
// closing text.
struct CommandTable {
    std::string Name;  // "describe"
    std::string Usage;
    std::string Description;
    std::vector<Option> Options;
    std::string Epilogue;
};

// The --decimals N option of the commands that print numbers: N fixed decimals, 0 to 255,
// stored in Decimals (which stays -1, the shortest form, when the option is not given).
Option DecimalsOption(int& decimals);

// The help text of a command, its option list generated from the table.
std::string HelpText(const CommandTable& command);

// Applies the options of Arguments and returns the other arguments in order. "--" ends
// the options; an argument that begins with '-' and is not an option is an operand when
// it reads as a number (-3, -.5, -inf) and an unknown option otherwise. Returns false
// when -h or --help was given (nothing else is checked then).
bool ParseArguments(const CommandTable& command, const std::vector<std::string>& arguments,
                    std::vector<std::string>& operands);

// Runs a command: parses its arguments, writes its help to Out for -h or --help, and
// turns a UsageError into the message "kornum NAME: ...", the pointer to its help and
// status 2. Run receives the operands and returns the exit status.
int RunCommand(const CommandTable& command, const std::vector<std::string>& arguments, Output& out,
               const std::function<int(const std::vector<std::string>& operands)>& run);

}  // namespace KornumCli
