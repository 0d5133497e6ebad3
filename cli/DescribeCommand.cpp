#include "DescribeCommand.h"

#include "CommandOptions.h"
#include "NumberReader.h"

#include <kornum/KornumDescStats.h>

#include <charconv>
#include <cstdio>
#include <utility>

namespace KornumCli {

const char* const DescribeUsage =
    "Usage: kornum describe [--population] [--decimals N] [--json]\n"
    "                       [--field N] [--delimiter C] [--header] [FILE ...]\n"
    "\n"
    "Reads numbers from the files (standard input when there are none, or for '-')\n"
    "and prints their descriptive statistics: count, extremes, range, sums, mean,\n"
    "mode, median, variance and standard deviation, kurtosis, skew and quartiles,\n"
    "one 'caption<TAB>value' line each.\n"
    "\n"
    "By default every token of the text, separated by any white space, is a number.\n"
    "With --field or --delimiter each non-blank line is a record and one of its\n"
    "fields is the number (CSV: --delimiter , ; TSV: --delimiter '\\t').\n"
    "\n"
    "Options:\n"
    "  --population   treat the numbers as a whole population (default: a sample)\n"
    "  --decimals N   decimals in the report, 0 to 255 (default 4)\n"
    "  --json         print the statistics as one JSON object (null where the\n"
    "                 report says a statistic cannot be given)\n"
    "  --field N      the number is field N (1-based) of each line (default 1)\n"
    "  --delimiter C  fields are separated by the character C (default: white space)\n"
    "  --header       skip the first line of each file\n"
    "  --help         show this text\n"
    "\n"
    "A token that is not a number, a line without the field, or no numbers at all\n"
    "stops the command with exit status 2 and a message naming the file, the line\n"
    "and the text; no report is printed then.\n";

namespace {

int UsageError(const std::string& message) { return KornumCli::UsageError("describe", message); }

// The keys of the JSON form, one for each line of the report, in its order.
constexpr const char* JsonKeys[] = {
    "count",  "maximum",  "minimum",            "range",    "sum",  "sum_of_squares", "mean",
    "mode",   "median",   "variance",           "standard_deviation", "kurtosis",     "skew",
    "first_quartile", "third_quartile", "interquartile_range"};

// The report as one JSON object: a line 'caption<TAB>value' gives its number, a line
// with a message in place of a value (not enough values, no modal value) gives null.
std::string JsonReport(const Platform::TStringList& report) {
    std::string json = "{";
    for (Kornumglobals::Integer i = 0; i < report.Count(); ++i) {
        const std::string& line = report[i];
        const std::size_t tab = line.find('\t');
        std::string value = tab == std::string::npos ? "null" : line.substr(tab + 1);
        if (value == "INF" || value == "-INF" || value == "NAN") value = "null";
        json += std::string(i == 0 ? "" : ", ") + "\"" + JsonKeys[i] + "\": " + value;
    }
    return json + "}\n";
}

// The delimiter option: one character, or \t for a tab.
bool ReadDelimiter(const std::string& text, char& delimiter) {
    if (text == "\\t") {
        delimiter = '\t';
        return true;
    }
    if (text.size() != 1 || text[0] == '\n') return false;
    delimiter = text[0];
    return true;
}

}  // namespace

int RunDescribe(const std::vector<std::string>& arguments) {
    bool population = false, json = false;
    int decimals = 4;
    ReadOptions options;
    std::vector<std::string> files;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const bool hasValue = i + 1 < arguments.size();
        if (argument == "--help") {
            std::fputs(DescribeUsage, stdout);
            return 0;
        } else if (argument == "--population") {
            population = true;
        } else if (argument == "--json") {
            json = true;
        } else if (argument == "--header") {
            options.header = true;
        } else if (argument == "--decimals") {
            const std::string problem = ReadDecimals(arguments, i, decimals);
            if (!problem.empty()) return UsageError(problem);
        } else if (argument == "--field") {
            const std::string& text = hasValue ? arguments[++i] : argument;
            auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), options.field);
            if (!hasValue || error != std::errc() || end != text.data() + text.size() || options.field < 1)
                return UsageError("--field takes a field number from 1 on" + (hasValue ? ", not '" + text + "'" : ""));
        } else if (argument == "--delimiter") {
            if (!hasValue || !ReadDelimiter(arguments[++i], options.delimiter))
                return UsageError("--delimiter takes one character (or \\t for a tab)");
        } else if (argument.size() > 1 && argument[0] == '-') {
            return UsageError("unknown option '" + argument + "'");
        } else {
            files.push_back(argument);
        }
    }
    if (files.empty()) files.push_back("-");

    Kornumglobals::TKorFloatVector values;
    Kornumglobals::Integer count = 0;
    try {
        for (const std::string& file : files) ReadFileNumbers(file, options, values, count);
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
    stats.SetDecimalPlaces(Kornumglobals::Byte(decimals));
    stats.BeginUpdate();
    stats.SetPopulation(population);
    stats.SetValues(std::move(values));
    stats.EndUpdate();

    const auto report = stats.DescStats();
    std::fputs(json ? JsonReport(*report).c_str() : report->Text().c_str(), stdout);
    return 0;
}

}  // namespace KornumCli
