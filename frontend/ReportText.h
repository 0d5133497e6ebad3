// The descriptive-statistics report as the command line and the Python package print it
// by default: every value in the shortest form that reads back as the same Float.
#pragma once

#include <kornum/KornumDescStats.h>

#include <string>
#include <vector>

namespace KornumFrontend {

// One line an entry: its caption and, for a value, a TAB and the value (a count as an
// integer).
std::string ShortestReportText(const std::vector<KornumDescStats::TKorReportEntry>& entries);

}  // namespace KornumFrontend
