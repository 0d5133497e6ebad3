// `kornum label`: a math label's caption drawn into an SVG, PNG or PDF file.
#pragma once

#include "Output.h"

#include <string>
#include <vector>

namespace KornumCli {

// Runs the command with the arguments after "label"; returns the exit status: 0 the image
// is written; 1 the file cannot be written (the system's reason on standard error, no
// partial file left); 2 bad usage, or a caption that cannot be drawn (not UTF-8, a
// character the font lacks, an image too large): a message on standard error.
int RunLabel(const std::vector<std::string>& arguments, Output& out);

}  // namespace KornumCli
