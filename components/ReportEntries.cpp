#include "components/detail/ReportEntries.hpp"

#include <kornum/Kornum_RS_DescStats.h>
#include <kornum/Kornummath.h>

namespace KornumDescStats::detail {

using namespace Kornum_RS_DescStats;

std::vector<TKorReportEntry> ReportEntriesOf(const ReportStatistics& s) {
    std::vector<TKorReportEntry> entries;
    const Int64 n = s.Count;
    if (n == 0) return entries;
    const auto line = [&](const char* key, const Platform::ResourceString& caption, Float value) {
        entries.push_back({key, caption.Text(), value});
    };
    const auto alone = [&](const char* key, const Platform::ResourceString& message) {
        entries.push_back({key, message.Text(), std::nullopt});
    };

    entries.push_back({"count", rsDSNoOfValues.Text(), Float(n), true});
    line("maximum", rsDSMaximum, s.Maximum);
    line("minimum", rsDSMinimum, s.Minimum);
    line("range", rsDSRange, s.Maximum - s.Minimum);
    line("sum", rsDSSum, s.Sum);
    line("sum_of_squares", rsDSSumSQ, s.SumSq);
    line("mean", rsDSMean, s.Mean);
    if (s.ModeExists) {
        line("mode", rsDSMode, s.Mode);
    } else {
        alone("mode", rsDSNoMode);
    }
    line("median", rsDSMedian, s.Median);
    if (!s.Population && n == 1) {
        alone("variance", rsDSNEVariance);
        alone("standard_deviation", rsDSNEStdDev);
    } else {
        line("variance", rsDSVariance, s.Variance);
        line("standard_deviation", rsDSStdDev, s.StdDev);
    }
    const bool zeroSpread = Kornummath::FloatIsZero(s.StdDev);
    if (n < 4) {
        alone("kurtosis", rsDSNEKurtosis);
    } else if (zeroSpread) {
        alone("kurtosis", rsDSSDKurtosis);
    } else {
        line("kurtosis", rsDSKurtosis, s.Kurtosis);
    }
    if (n < 3) {
        alone("skew", rsDSNESkew);
    } else if (zeroSpread) {
        alone("skew", rsDSSDSkew);
    } else {
        line("skew", rsDSSkew, s.Skew);
    }
    line("first_quartile", rsDSQtr1, s.Quartile1st);
    line("third_quartile", rsDSQtr3, s.Quartile3rd);
    line("interquartile_range", rsDSIQR, s.Quartile3rd - s.Quartile1st);
    return entries;
}

}  // namespace KornumDescStats::detail
