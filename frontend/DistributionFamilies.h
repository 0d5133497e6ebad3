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

// What values a parameter takes, the name a message gives it and the symbol a picture's
// title gives it (a math label caption: "^m" is mu).
enum class Kind { Real, Positive, Degrees, Trials, Probability };
struct Parameter {
    const char* name;
    Kind kind;
    const char* symbol;
};

using Values = std::vector<Float>;
// A plain function pointer taking the value by reference: the Python package calls these
// once per point, and a Float handed on by value through std::function, or stored from a
// register for the call, stalls the next load of it for longer than most of the families'
// own arithmetic takes.
using Function = Float (*)(const Float&, const Values&);
// The family's density table over [lo, hi]: N points for a continuous family; the counts
// 0 to the trials (binomial) or to hi (Poisson) for a discrete one.
using Table = std::function<void(Float lo, Float hi, Kornumglobals::Integer n, const Values&,
                                 Kornumglobals::TKorFloatVector& X, Kornumglobals::TKorFloatVector& Y)>;

// One family: its parameters (the last `optional` of them may be left out together), its
// functions of (value, parameters), its density table with the cheap check of a table's
// arguments (a discrete family's; a continuous one checks on a two-point table), and the
// name a picture's title gives it.
struct Family {
    std::vector<Parameter> parameters;
    std::size_t optional;
    bool discrete;
    Function less, greater, pdf, inv, isf;
    std::function<void(Float, Float, const Values&)> checkTable;
    Table table;
    const char* title;
};

// The families by the name the command line gives them: normal, lognormal, chisq, t, f,
// beta, exponential, binomial and poisson. The discrete families take a whole k >= 0 (no
// more than the trials for the binomial) as their value; less, greater and pdf are
// P(X <= x), P(X > x) and the density (the probability of k), inv and isf the inverses
// of less and greater.
const std::map<std::string, Family>& Families();

// Raises what the family's density table raises for [lo, hi] and the parameters, without
// building it.
void CheckTable(const Family& family, Float lo, Float hi, const Values& p);

}  // namespace KornumFrontend
