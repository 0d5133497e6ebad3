// The distribution families as the command line and the Python package offer them: each
// family's parameters, its functions of a value and the parameters, and the check of its
// density table, in one table that both front ends read.
#pragma once

#include <kornum/Kornumglobals.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace KornumFrontend {

using Kornumglobals::Float;

// What values a parameter takes, and the name a message gives it.
enum class Kind { Real, Positive, Degrees, Trials, Probability };
struct Parameter {
    const char* name;
    Kind kind;
};

using Values = std::vector<Float>;
using Function = std::function<Float(Float, const Values&)>;

// One family: its parameters (the last `optional` of them may be left out together), its
// functions of (value, parameters) and the check of its density table.
struct Family {
    std::vector<Parameter> parameters;
    std::size_t optional;
    bool discrete;
    Function less, greater, pdf, inv, isf;
    std::function<void(Float, Float, const Values&)> checkTable;
};

// The families by the name the command line gives them: normal, lognormal, chisq, t, f,
// beta, exponential, binomial and poisson. The discrete families take a whole k >= 0 (no
// more than the trials for the binomial) as their value; less, greater and pdf are
// P(X <= x), P(X > x) and the density (the probability of k), inv and isf the inverses
// of less and greater.
const std::map<std::string, Family>& Families();

}  // namespace KornumFrontend
