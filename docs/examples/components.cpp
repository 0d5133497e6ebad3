// Fills a descriptive-statistics component with a few values and prints its report.
#include <kornum/KornumDescStats.h>
#include <kornum/PlatformClasses.h>

#include <cstdio>

int main() {
    KornumDescStats::TKorDescStats stats(nullptr);

    // One recomputation for the whole batch instead of one per value.
    stats.BeginUpdate();
    for (const int x : {2, 4, 4, 4, 5, 5, 7, 9}) stats.AddValue(x);
    stats.EndUpdate();

    stats.SetDecimalPlaces(3);
    const std::unique_ptr<Platform::TStringList> report = stats.DescStats();
    for (int i = 0; i < report->Count(); ++i) std::printf("%s\n", (*report)[i].c_str());

    // The statistics are also properties; Population switches to the divisor n.
    stats.SetPopulation(true);
    std::printf("\npopulation variance %.3Lf, standard deviation %.3Lf\n", stats.Variance(), stats.StdDev());
    std::printf("%u values, mode %s %.1Lf\n", stats.NoOfValues(), stats.ModeExists() ? "found:" : "none:", stats.Mode());
    return 0;
}
