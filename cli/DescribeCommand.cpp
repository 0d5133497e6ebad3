#include "DescribeCommand.h"

#include "Input.h"
#include "Options.h"
#include "Output.h"
#include "Parameters.h"
#include "PlotOutput.h"
#include "frontend/ReportText.h"

#include <kornum/KornumDescStats.h>
#include <kornum/KornumPlot.h>

#include <cmath>
#include <thread>
#include <utility>

namespace KornumCli {
namespace {

struct DescribeSettings {
    bool population = false, json = false;
    int decimals = -1;  // the shortest form that reads back the same
    ReadOptions read;
    std::string plot;  // the histogram's image, if asked for
    int bins = 0;      // 0: by the Freedman-Diaconis rule
};

CommandTable DescribeTable(DescribeSettings& s) {
    return {
        "describe",
        "Usage: kornum describe [OPTIONS] [FILE ...]",
        "Reads numbers from the files (standard input when there are none, or for '-')\n"
        "and prints their descriptive statistics: count, extremes, range, sums, mean,\n"
        "mode, median, variance and standard deviation, kurtosis, skew and quartiles,\n"
        "one 'caption<TAB>value' line each.\n"
        "\n"
        "By default every token of the text, separated by any white space, is a number.\n"
        "With --field or --delimiter each non-blank line is a record and one of its\n"
        "fields is the number (CSV: --delimiter , ; TSV: --delimiter '\\t'); fields may be\n"
        "quoted as in CSV. A UTF-8 byte-order mark is skipped.\n",
        {
            {"--population", "", "", "treat the numbers as a whole population (default: a sample)",
             [&s](const std::string&) { s.population = true; }},
            DecimalsOption(s.decimals),
            {"--json", "", "", "print the statistics as one JSON object (null where the\nreport gives no value)",
             [&s](const std::string&) { s.json = true; }},
            {"--field", "", "N", "the number is field N (1-based) of each record",
             [&s](const std::string& v) { s.read.field = int(WholeNumber(v, "--field", 1, 1000000)); }},
            {"--delimiter", "", "C", "fields are separated by the character C (default:\nwhite space)",
             [&s](const std::string& v) { s.read.delimiter = Delimiter(v); }},
            {"--header", "", "", "skip the first record of each file",
             [&s](const std::string&) { s.read.header = true; }},
            {"--allow-nonfinite", "", "", "take nan, inf and -inf as values (default: bad input)",
             [&s](const std::string&) { s.read.allowNonFinite = true; }},
            {"--plot", "", "FILE", "also draw a histogram with the normal density of the\nmean and standard deviation "
             "to FILE.svg, .png or .pdf",
             [&s](const std::string& v) { s.plot = ImagePath(v, "--plot"); }},
            {"--bins", "", "N", "the histogram's bins, 1 to 10000 (default: by the\nFreedman-Diaconis rule, at most 200)",
             [&s](const std::string& v) { s.bins = int(WholeNumber(v, "--bins", 1, 10000)); }},
        },
        "A token that is not a number, a record without the field, or no numbers at all\n"
        "stops the command with exit status 2 and a message naming the file, the line,\n"
        "the field and the text; no report is printed then. A histogram that cannot be\n"
        "written gives exit status 1 after the report, and no partial file.\n"};
}

// A statistic in JSON: a number, or null where the report gives none or JSON has none.
std::string JsonValue(const KornumDescStats::TKorReportEntry& entry, int decimals) {
    if (!entry.Value || !std::isfinite(*entry.Value)) return "null";
    return entry.Integral ? NumberText(*entry.Value, 0) : NumberText(*entry.Value, decimals);
}

int Describe(const DescribeSettings& s, const std::vector<std::string>& operands, Output& out) {
    std::vector<std::string> files = operands;
    if (files.empty()) files.push_back("-");
    Kornumglobals::TKorFloatVector values;
    Kornumglobals::Integer count = 0;
    // The plot's fonts load on the other core while the numbers are read.
    std::thread fonts;
    if (!s.plot.empty()) fonts = std::thread(KornumPlot::PrepareFonts);
    const struct Joined {
        std::thread& thread;
        ~Joined() {
            if (thread.joinable()) thread.join();
        }
    } joined{fonts};
    try {
        for (const std::string& file : files) ReadFileNumbers(file, s.read, values, count);
    } catch (const InputError& error) {
        std::fprintf(stderr, "kornum describe: %s\n", error.what());
        return 2;
    }
    if (count == 0) {
        std::fputs("kornum describe: no numbers in the input\n", stderr);
        return 2;
    }
    values.SetLength(count);

    // One batch: the values go in together, so the statistics are computed once; the
    // component takes the vector over instead of copying it.
    KornumDescStats::TKorDescStats stats(nullptr);
    if (s.decimals >= 0) stats.SetDecimalPlaces(Kornumglobals::Byte(s.decimals));
    stats.BeginUpdate();
    stats.SetPopulation(s.population);
    stats.SetValues(std::move(values));
    stats.EndUpdate();

    if (s.json) {
        std::string json = "{";
        for (const auto& entry : stats.ReportEntries())
            json += (json.size() > 1 ? ", \"" : "\"") + entry.Key + "\": " + JsonValue(entry, s.decimals);
        out.Write(json + "}\n");
    } else if (s.decimals >= 0) {
        out.Write(stats.DescStats()->Text());  // the component's report, as it defines it
    } else {
        out.Write(KornumFrontend::ShortestReportText(stats.ReportEntries()));
    }
    if (s.plot.empty()) return 0;
    return WritePlot("describe", s.plot, [&] { return KornumPlot::SampleHistogram(stats, s.bins); });
}

}  // namespace

int RunDescribe(const std::vector<std::string>& arguments, Output& out) {
    DescribeSettings settings;
    return RunCommand(DescribeTable(settings), arguments, out,
                      [&](const std::vector<std::string>& operands) { return Describe(settings, operands, out); });
}

}  // namespace KornumCli
