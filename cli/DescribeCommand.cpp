#include "DescribeCommand.h"

#include "CommandOptions.h"
#include "NumberReader.h"

#include <kornum/KornumDescStats.h>

#include <cstdio>
#include <utility>

namespace KornumCli {

const char* const DescribeUsage =
    "Usage: kornum describe [--population] [--decimals N] [FILE ...]\n"
    "\n"
    "Reads numbers from the files (standard input when there are none, or for '-'),\n"
    "separated by any white space, and prints their descriptive statistics: count,\n"
    "extremes, range, sums, mean, mode, median, variance and standard deviation,\n"
    "kurtosis, skew and quartiles, one 'caption<TAB>value' line each.\n"
    "\n"
    "Options:\n"
    "  --population  treat the numbers as a whole population (default: a sample)\n"
    "  --decimals N  decimals in the report, 0 to 255 (default 4)\n"
    "  --help        show this text\n"
    "\n"
    "A token that is not a number stops the command with exit status 2 and a message\n"
    "naming the file, the line and the text; no report is printed then.\n";

namespace {

int UsageError(const std::string& message) {
    std::fprintf(stderr, "kornum describe: %s\nTry 'kornum describe --help'.\n", message.c_str());
    return 2;
}

}  // namespace

int RunDescribe(const std::vector<std::string>& arguments) {
    bool population = false;
    int decimals = 4;
    std::vector<std::string> files;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--help") {
            std::fputs(DescribeUsage, stdout);
            return 0;
        } else if (argument == "--population") {
            population = true;
        } else if (argument == "--decimals") {
            const std::string problem = ReadDecimals(arguments, i, decimals);
            if (!problem.empty()) return UsageError(problem);
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
        for (const std::string& file : files) ReadNumbers(ReadSource(file), file, values, count);
    } catch (const InputError& error) {
        std::fprintf(stderr, "kornum describe: %s\n", error.what());
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

    std::fputs(stats.DescStats()->Text().c_str(), stdout);
    return 0;
}

}  // namespace KornumCli
