// Helpers of the statistics tests: the readers of the reference files under tests/data.
#pragma once

#include "TestSupport.h"

#include <kornum/KornumStatistics.h>
#include <kornum/Kornum_RS_Math.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace StatisticsTest {

using namespace KornumTest;
using namespace KornumStatistics;
using namespace Kornumglobals;
using namespace Kornum_RS_Math;

inline Float ToFloat(const std::string& text) { return std::strtold(text.c_str(), nullptr); }

// Calls each(fields) for every line of a reference file ('#' lines skipped).
template <class Each>
void ForEachLine(const std::string& name, Each each) {
    std::ifstream in(std::string(KORNUM_TEST_DATA_DIR) + "/" + name);
    EXPECT_TRUE(in.good()) << "missing reference file " << name;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream stream(line);
        std::vector<std::string> fields;
        for (std::string field; stream >> field;) fields.push_back(field);
        each(fields);
    }
}

// The rows of a numeric table.
inline std::vector<std::vector<Float>> ReadTable(const std::string& name) {
    std::vector<std::vector<Float>> rows;
    ForEachLine(name, [&](const std::vector<std::string>& fields) {
        rows.emplace_back();
        for (const std::string& field : fields) rows.back().push_back(ToFloat(field));
    });
    return rows;
}

inline Float RelativeError(Float value, Float reference) {
    return std::fabs(value - reference) / std::fabs(reference);
}

}  // namespace StatisticsTest
