// Helpers shared by the distribution and grouped-data tests: the exact-failure check
// and the reader of the reference tables under tests/data.
#pragma once

#include <kornum/Kornumglobals.h>
#include <kornum/Platform.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <typeinfo>
#include <vector>

namespace distribution_tests {

using Kornumglobals::Float;

// Runs call and checks that it throws exactly class E (not a subclass or base) with
// the text of the identifier, nothing appended.
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

// The rows of a tab-separated reference table, '#' lines skipped; fields stay text so
// each test parses them into the types it needs (strtold for Float).
inline std::vector<std::vector<std::string>> ReadTable(const std::string& name) {
    std::ifstream in(std::string(KORNUM_TEST_DATA_DIR) + "/" + name);
    EXPECT_TRUE(in.good()) << "missing reference table " << name;
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::vector<std::string> fields;
        std::istringstream split(line);
        for (std::string field; std::getline(split, field, '\t');) fields.push_back(field);
        rows.push_back(fields);
    }
    return rows;
}

inline Float ToFloat(const std::string& text) { return std::strtold(text.c_str(), nullptr); }

inline Float RelativeError(Float value, Float reference) {
    const Float difference = value - reference;
    return (difference < 0 ? -difference : difference) / (reference < 0 ? -reference : reference);
}

}  // namespace distribution_tests
