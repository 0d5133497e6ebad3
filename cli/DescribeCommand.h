// `kornum describe`: the descriptive-statistics report of the numbers in files.
#pragma once

#include "Output.h"

#include <string>
#include <vector>

namespace KornumCli {

// Runs the command with the arguments after "describe"; returns the exit status
// (0 report printed, 2 bad usage or bad input: a message on standard error, no report).
int RunDescribe(const std::vector<std::string>& arguments, Output& out);

}  // namespace KornumCli
