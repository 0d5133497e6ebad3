// Helpers of the distribution and grouped-data tests.
#pragma once

#include <kornum/Kornumglobals.h>
#include <kornum/Platform.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <typeinfo>
#include <vector>

namespace distribution_tests {

using Kornumglobals::Float;

// call must throw exactly class E with the identifier's text, nothing appended.
template <class E = Platform::EMathError, class Call>
void ExpectRaises(Call call, const Platform::ResourceString& resource) {
    try {
        call();
        ADD_FAILURE() << "no exception; expected " << resource.Text();
    } catch (const Platform::Exception& error) {
        EXPECT_EQ(typeid(error), typeid(E)) << error.Message();
        EXPECT_EQ(error.Message(), resource.Text());
    }
}

// The rows of a tab-separated table under tests/data, parsed as Float ('#' lines skipped).
inline std::vector<std::vector<Float>> ReadTable(const std::string& name) {
    std::ifstream in(std::string(KORNUM_TEST_DATA_DIR) + "/" + name);
    EXPECT_TRUE(in.good()) << "missing reference table " << name;
    std::vector<std::vector<Float>> rows;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream fields(line);
        rows.emplace_back();
        for (std::string field; std::getline(fields, field, '\t');)
            rows.back().push_back(std::strtold(field.c_str(), nullptr));
    }
    return rows;
}

inline Float RelativeError(Float value, Float reference) {
    return std::fabs(value - reference) / std::fabs(reference);
}

}  // namespace distribution_tests
