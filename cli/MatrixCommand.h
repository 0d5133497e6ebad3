// `kornum matrix`: determinant, inverse, rank, echelon form, transpose and product of
// matrices read from text files.
#pragma once

#include "Output.h"

#include <string>
#include <vector>

namespace KornumCli {

// Runs the command with the arguments after "matrix"; returns the exit status (0 result
// printed, 1 the matrix is singular, 2 bad usage or bad input: a message on standard
// error, no result).
int RunMatrix(const std::vector<std::string>& arguments, Output& out);

}  // namespace KornumCli
