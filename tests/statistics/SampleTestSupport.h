// Helpers shared by the sample-statistics tests: exact failure checks and the reader
// of the mpmath reference files (tests/data/sample_*.tsv).
#pragma once

#include <kornum/Kornumglobals.h>
#include <kornum/Platform.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace SampleTestSupport {

using Kornumglobals::Float;

// Runs call and checks that it raises EMathError carrying exactly the text of message.
template <class Call>
::testing::AssertionResult RaisesMath(Call&& call, const Platform::ResourceString& message) {
    try {
        call();
    } catch (const Platform::EMathError& error) {
        if (std::string(error.what()) == message.Text()) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "raised \"" << error.what() << "\", expected \""
                                             << message.Text() << "\"";
    } catch (...) {
        return ::testing::AssertionFailure() << "raised something other than EMathError";
    }
    return ::testing::AssertionFailure() << "raised nothing";
}

// One reference file: the element type, the elements, and the reference statistics
// (each as its Float rounding and as a long decimal).
struct ReferenceSample {
    std::string type;
    std::vector<Float> x;
    std::map<std::string, Float> value;
};

inline ReferenceSample ReadReference(const std::string& name) {
    ReferenceSample sample;
    std::ifstream in(std::string(KORNUM_TEST_DATA_DIR) + "/sample_" + name + ".tsv");
    EXPECT_TRUE(in.good()) << "missing reference file for " << name;
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream fields(line);
        std::string key, text;
        fields >> key >> text;
        if (key == "type") {
            sample.type = text;
        } else if (key == "x") {
            sample.x.push_back(std::strtold(text.c_str(), nullptr));
        } else {
            sample.value[key] = std::strtold(text.c_str(), nullptr);
        }
    }
    return sample;
}

// Relative difference, for accuracy in significant digits.
inline Float RelativeError(Float computed, Float reference) {
    const Float difference = computed - reference;
    return (difference < 0 ? -difference : difference) / (reference < 0 ? -reference : reference);
}

}  // namespace SampleTestSupport
