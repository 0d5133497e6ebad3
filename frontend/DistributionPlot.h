// A distribution's picture, as the command line and the Python package draw it: the
// density (probabilities as bars for a discrete family) or the distribution function
// over a range, from the family's table.
#pragma once

#include "frontend/DistributionFamilies.h"

#include <kornum/KornumPlot.h>

#include <string>

namespace KornumFrontend {

// The plot of the family's density over [lo, hi] (its table at 501 points; a discrete
// family's probabilities as bars at the counts in the range), or with cdf its P(X <= x);
// with log a logarithmic value axis. The title names the family and its parameters with
// their symbols ("Normal density, ^m = 0, ^s = 1"). Raises what the table raises for the
// range and the parameters, and Platform::Exception for a range without width or a
// discrete range of more than MaxCounts counts.
KornumPlot::TKorPlot DistributionPlot(const Family& family, const Values& p, Float lo, Float hi, bool cdf, bool log);

// The most counts a discrete family's plot covers (its table reaches from 0 to them).
inline constexpr Float MaxCounts = 100000;

}  // namespace KornumFrontend
