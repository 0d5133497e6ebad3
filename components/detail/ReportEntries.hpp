// The lines of the descriptive-statistics report from its statistics: which line gives a
// value and which a message (no mode, too few values, no spread). The component and the
// report over sharded data both write their entries through it.
#pragma once

#include <kornum/KornumDescStats.h>

namespace KornumDescStats::detail {

struct ReportStatistics {
    Int64 Count = 0;
    bool Population = false;
    Float Maximum = 0, Minimum = 0, Sum = 0, SumSq = 0, Mean = 0;
    bool ModeExists = false;
    Float Mode = 0, Median = 0, Variance = 0, StdDev = 0, Kurtosis = 0, Skew = 0;
    Float Quartile1st = 0, Quartile3rd = 0;
};

// Empty for no values.
std::vector<TKorReportEntry> ReportEntriesOf(const ReportStatistics& s);

}  // namespace KornumDescStats::detail
