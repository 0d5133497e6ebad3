// The skew and kurtosis of KornumStatistics from the sums of the cubed and of the
// fourth-power deviations from the mean, for callers that gather those sums in a pass
// of their own. Internal to the library (not installed).
#pragma once

#include <kornum/Kornumglobals.h>

namespace KornumStatistics::detail {

using Kornumglobals::Float;
using Kornumglobals::Integer;

// n values, their StdDev (not zero) and the sum of (x - mean)^3, formed as d * d * d.
Float SampleSkewFromSum(Integer n, Float SumCubes, Float StdDev);
Float PopulationSkewFromSum(Integer n, Float SumCubes, Float StdDev);
// n values, their StdDev (not zero) and the sum of (x - mean)^4, formed as (d * d) * (d * d).
Float SampleKurtosisFromSum(Integer n, Float SumFourthPowers, Float StdDev);
Float PopulationKurtosisFromSum(Integer n, Float SumFourthPowers, Float StdDev);

}  // namespace KornumStatistics::detail
