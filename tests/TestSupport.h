// Helpers shared by every test program: the exact-failure check and a scoped tolerance.
#pragma once

#include <kornum/Kornumglobals.h>
#include <kornum/Platform.h>

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <sstream>
#include <string>
#include <typeinfo>
#include <utility>

namespace KornumTest {

using Kornumglobals::Float;

// call must raise exactly class E (not a subclass or base) carrying exactly text.
template <class E = Platform::EMathError, class Call>
::testing::AssertionResult Raises(Call&& call, const std::string& text) {
    try {
        call();
    } catch (const Platform::Exception& error) {
        if (typeid(error) == typeid(E) && error.Message() == text) return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "raised " << typeid(error).name() << " \"" << error.Message() << "\"";
    }
    return ::testing::AssertionFailure() << "raised nothing";
}

// The same for a failure raised from an identifier, which the exception must carry.
template <class E = Platform::EMathError, class Call>
::testing::AssertionResult Raises(Call&& call, const Platform::ResourceString& message) {
    try {
        call();
    } catch (const Platform::Exception& error) {
        if (typeid(error) == typeid(E) && error.Message() == message.Text() && error.Resource() &&
            error.Resource()->Id == message.Id)
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "raised " << typeid(error).name() << " \"" << error.Message()
                                             << "\" from " << (error.Resource() ? error.Resource()->Name : "no identifier");
    }
    return ::testing::AssertionFailure() << "raised nothing";
}

// Each pair is (computed, expected), equal or within tolerance; every mismatch is named by
// its position in the list.
inline ::testing::AssertionResult AllMatch(std::initializer_list<std::pair<Float, Float>> pairs, Float tolerance = 0) {
    std::ostringstream mismatches;
    mismatches.precision(21);
    int position = 0;
    for (const auto& [computed, expected] : pairs) {
        if (!(computed == expected || std::fabs(computed - expected) <= tolerance))
            mismatches << " #" << position << ": " << computed << " != " << expected << ";";
        ++position;
    }
    if (mismatches.str().empty()) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "mismatches:" << mismatches.str();
}

// Sets KorTolerance for one scope and restores it afterwards.
struct ToleranceScope {
    explicit ToleranceScope(Float tolerance) { Kornumglobals::KorTolerance = tolerance; }
    ~ToleranceScope() { Kornumglobals::KorTolerance = saved; }
    const Float saved = Kornumglobals::KorTolerance;
};

}  // namespace KornumTest
