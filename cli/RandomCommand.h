// `kornum random`: variates of a distribution, one a line.
#pragma once

#include "Output.h"

#include <string>
#include <vector>

namespace KornumCli {

// Runs the command with the arguments after "random"; returns the exit status (0
// variates printed, 2 bad usage or a parameter the generator rejects).
int RunRandom(const std::vector<std::string>& arguments, Output& out);

}  // namespace KornumCli
