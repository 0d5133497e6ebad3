// `kornum dist`: distribution functions and density tables on the command line.
#pragma once

#include "Output.h"

#include <string>
#include <vector>

namespace KornumCli {

// Runs the command with the arguments after "dist"; returns the exit status (0 result
// printed, 2 bad usage or arguments the library rejects: a message on standard error).
int RunDist(const std::vector<std::string>& arguments, Output& out);

}  // namespace KornumCli
