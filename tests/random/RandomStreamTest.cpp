// Every generator on a fixed sequence of uniforms against the replay of its steps in
// mpmath at 64-bit precision (tools/make_random_streams.py): the same draws must give
// the same variates.
#include "TestSupport.h"

#include <kornum/KornumRandom.h>

#include <cmath>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace KornumRandom;

// u_i = (i * 0x9E3779B97F4A7C15 mod 2^64) / 2^64 for i = 1, 2, ...
struct Sequence {
    static inline std::uint64_t i = 0;
    static Float Next() { return Float(++i * 0x9E3779B97F4A7C15ull) * 0x1p-64L; }
};

using Generator = std::function<Float(const std::vector<Float>&)>;

const std::map<std::string, Generator>& Generators() {
    static const std::map<std::string, Generator> table{
        {"normal", [](auto&) { return Random_Normal(Sequence::Next); }},
        {"exponential", [](auto&) { return Random_Exponential(Sequence::Next); }},
        {"cauchy", [](auto&) { return Random_Cauchy(Sequence::Next); }},
        {"gamma", [](auto& p) { return Random_Gamma(p[0], Sequence::Next); }},
        {"chisq", [](auto& p) { return Random_ChiSq(Integer(p[0]), Sequence::Next); }},
        {"weibull", [](auto& p) { return Random_Weibull(p[0], Sequence::Next); }},
        {"beta", [](auto& p) { return Random_Beta(p[0], p[1], Sequence::Next); }},
        {"t", [](auto& p) { return Random_T(Integer(p[0]), Sequence::Next); }},
        {"invgauss", [](auto& p) { return Random_Inv_Gauss(p[0], p[1], Sequence::Next); }},
        {"vonmises", [](auto& p) { return Random_von_Mises(p[0], Sequence::Next); }},
        {"binomial1", [](auto& p) { return Float(Random_Binomial1(Integer(p[0]), p[1], Sequence::Next)); }},
        {"binomial2", [](auto& p) { return Float(Random_Binomial2(Int64(p[0]), p[1], Sequence::Next)); }},
        {"negbinomial", [](auto& p) { return Float(Random_Neg_Binomial(p[0], p[1], Sequence::Next)); }},
        {"poisson", [](auto& p) { return Float(Random_Poisson(p[0], Sequence::Next)); }},
    };
    return table;
}

std::vector<Float> Numbers(const std::string& text) {
    std::vector<Float> numbers;
    std::istringstream in(text);
    for (std::string word; in >> word;) numbers.push_back(std::strtold(word.c_str(), nullptr));
    return numbers;
}

TEST(RandomStreams, EveryGeneratorReplaysItsSteps) {
    std::ifstream table(std::string(KORNUM_TEST_DATA_DIR) + "/random_streams.tsv");
    ASSERT_TRUE(table) << "random_streams.tsv";
    int rows = 0;
    for (std::string line; std::getline(table, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::vector<std::string> fields;
        std::istringstream cells(line);
        for (std::string cell; std::getline(cells, cell, '\t');) fields.push_back(cell);
        ASSERT_EQ(fields.size(), 7u) << line;
        const std::string& name = fields[0];
        const bool discrete = name.find("binomial") != std::string::npos || name == "poisson";
        const std::vector<Float> parameters = Numbers(fields[1]);
        Sequence::i = 0;
        for (std::size_t k = 2; k < fields.size(); ++k) {
            const Float expected = std::strtold(fields[k].c_str(), nullptr);
            const Float got = Generators().at(name)(parameters);
            if (discrete)
                EXPECT_EQ(got, expected) << name << " " << fields[1] << " #" << k - 2;
            else
                EXPECT_LE(std::fabs(got - expected), 1e-15L * std::fabs(expected)) << name << " " << fields[1] << " #" << k - 2;
        }
        ++rows;
    }
    EXPECT_EQ(rows, 25);
}

}  // namespace
