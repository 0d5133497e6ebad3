// `kornum label`: a math label's caption drawn into an SVG, PNG or PDF file.
#pragma once

#include "Output.h"

#include <string>
#include <vector>

namespace KornumCli {

// Runs the command with the arguments after "label"; returns the exit status (0 image
// written, 1 the file cannot be written, 2 bad usage: a message on standard error).
int RunLabel(const std::vector<std::string>& arguments, Output& out);

}  // namespace KornumCli
