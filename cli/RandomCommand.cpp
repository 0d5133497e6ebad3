#include "RandomCommand.h"

#include "CommandOptions.h"

#include <kornum/KornumRandom.h>
#include <kornum/Kornumconvert.h>
#include <kornum/PlatformExceptions.h>
#include <kornum/PlatformRandom.h>

#include <charconv>
#include <cstdio>
#include <functional>
#include <map>

namespace KornumCli {
namespace {

using namespace KornumRandom;

constexpr const char* Usage =
    "Usage: kornum random DISTRIBUTION [PARAMETERS] -n N [--seed S]\n"
    "\n"
    "Prints N variates of the distribution, one a line (continuous ones with every\n"
    "digit a long double needs to read back the same). The same --seed gives the same\n"
    "variates; without it the generator starts from its fixed default seed.\n"
    "\n"
    "Distributions:\n"
    "  normal                standard normal\n"
    "  exponential           standard exponential\n"
    "  gamma S               gamma with shape S > 0\n"
    "  chisq NDF             chi-square with NDF degrees of freedom\n"
    "  weibull A             Weibull with shape A\n"
    "  beta A B              beta with shapes A, B > 0\n"
    "  t M                   Student t with M >= 1 degrees of freedom\n"
    "  invgauss H B          generalised inverse Gaussian, density x^(H-1) e^(-B(x+1/x)/2)\n"
    "  vonmises K            von Mises angle with concentration 0 <= K < 10\n"
    "  cauchy                standard Cauchy\n"
    "  binomial N P          successes in N trials of probability P (BTPE above a\n"
    "                        mean of 30, inversion below)\n"
    "  binomial1 N P         the same by inversion from the mode\n"
    "  negbinomial SK P      negative binomial, power SK > 0, probability 0 < P < 1\n"
    "  poisson MU            Poisson with mean MU\n";

int UsageError(const std::string& message) { return KornumCli::UsageError("random", message); }

using Variate = std::function<std::string()>;
using Parameters = std::vector<Float>;

std::string FloatText(Float x) {
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, x).ptr;
    return std::string(text, end);
}

// Each distribution: its parameter count and how it makes one variate.
struct Distribution {
    std::size_t count;
    std::function<Variate(const Parameters&)> make;
};

template <class Generate>
Variate Continuous(Generate generate) {
    return [generate] { return FloatText(generate()); };
}
template <class Generate>
Variate Discrete(Generate generate) {
    return [generate] { return std::to_string(generate()); };
}

const std::map<std::string, Distribution>& Distributions() {
    static const std::map<std::string, Distribution> table{
        {"normal", {0, [](const Parameters&) { return Continuous([] { return Random_Normal(); }); }}},
        {"exponential", {0, [](const Parameters&) { return Continuous([] { return Random_Exponential(); }); }}},
        {"cauchy", {0, [](const Parameters&) { return Continuous([] { return Random_Cauchy(); }); }}},
        {"gamma", {1, [](const Parameters& p) { return Continuous([s = p[0]] { return Random_Gamma(s); }); }}},
        {"chisq", {1, [](const Parameters& p) { return Continuous([n = Integer(p[0])] { return Random_ChiSq(n); }); }}},
        {"weibull", {1, [](const Parameters& p) { return Continuous([a = p[0]] { return Random_Weibull(a); }); }}},
        {"beta", {2, [](const Parameters& p) { return Continuous([a = p[0], b = p[1]] { return Random_Beta(a, b); }); }}},
        {"t", {1, [](const Parameters& p) { return Continuous([m = Integer(p[0])] { return Random_T(m); }); }}},
        {"invgauss",
         {2, [](const Parameters& p) { return Continuous([h = p[0], b = p[1]] { return Random_Inv_Gauss(h, b); }); }}},
        {"vonmises", {1, [](const Parameters& p) { return Continuous([k = p[0]] { return Random_von_Mises(k); }); }}},
        {"binomial",
         {2, [](const Parameters& p) { return Discrete([n = Int64(p[0]), q = p[1]] { return Random_Binomial2(n, q); }); }}},
        {"binomial1",
         {2, [](const Parameters& p) { return Discrete([n = Integer(p[0]), q = p[1]] { return Random_Binomial1(n, q); }); }}},
        {"negbinomial",
         {2, [](const Parameters& p) { return Discrete([sk = p[0], q = p[1]] { return Random_Neg_Binomial(sk, q); }); }}},
        {"poisson", {1, [](const Parameters& p) { return Discrete([mu = p[0]] { return Random_Poisson(mu); }); }}},
    };
    return table;
}

// The integer parameters (degrees of freedom, trials) must be whole numbers.
bool WantsWhole(const std::string& name, std::size_t index) {
    return name == "chisq" || name == "t" || ((name == "binomial" || name == "binomial1") && index == 0);
}

}  // namespace

int RunRandom(const std::vector<std::string>& arguments) {
    std::vector<std::string> words;
    long long count = -1;
    std::uint64_t seed = Platform::DefaultRandSeed;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const bool hasValue = i + 1 < arguments.size();
        if (argument == "--help") {
            std::fputs(Usage, stdout);
            return 0;
        } else if (argument == "-n" || argument == "--seed") {
            const std::string value = hasValue ? arguments[++i] : "";
            const char* last = value.data() + value.size();
            const bool ok = argument == "-n" ? std::from_chars(value.data(), last, count).ptr == last && count >= 0
                                             : std::from_chars(value.data(), last, seed).ptr == last;
            if (!hasValue || value.empty() || !ok)
                return UsageError(argument == "-n" ? "-n takes a count of variates" : "--seed takes a whole number from 0 to 2^64 - 1");
        } else if (argument.size() > 1 && argument[0] == '-' && !(argument[1] >= '0' && argument[1] <= '9') &&
                   argument[1] != '.') {
            return UsageError("unknown option '" + argument + "'");
        } else {
            words.push_back(argument);
        }
    }
    if (words.empty()) return UsageError("a distribution is needed");
    const auto found = Distributions().find(words[0]);
    if (found == Distributions().end()) return UsageError("unknown distribution '" + words[0] + "'");
    const Distribution& distribution = found->second;
    if (words.size() != distribution.count + 1)
        return UsageError("'" + words[0] + "' takes " + std::to_string(distribution.count) + " parameter" +
                          (distribution.count == 1 ? "" : "s"));
    if (count < 0) return UsageError("-n N is needed");
    Parameters parameters;
    for (std::size_t k = 1; k < words.size(); ++k) {
        try {
            parameters.push_back(Kornumconvert::Str2Float(words[k]));
        } catch (const Platform::Exception& error) {
            return UsageError(error.Message());
        }
        if (WantsWhole(words[0], k - 1) && (parameters.back() != Float(Int64(parameters.back())) ||
                                             std::abs(parameters.back()) > 2147483647.0L))
            return UsageError("'" + words[k] + "' is not a whole number");
    }

    Platform::RandSeed(seed);
    const Variate next = distribution.make(parameters);
    std::string out;
    try {
        for (long long i = 0; i < count; ++i) {
            out += next();
            out += '\n';
            if (out.size() > (1 << 16)) {
                std::fputs(out.c_str(), stdout);
                out.clear();
            }
        }
    } catch (const Platform::Exception& error) {
        std::fprintf(stderr, "kornum random: %s\n", error.what());
        return 2;
    }
    std::fputs(out.c_str(), stdout);
    return 0;
}

}  // namespace KornumCli
