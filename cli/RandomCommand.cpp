#include "RandomCommand.h"

#include "Options.h"
#include "Output.h"
#include "Parameters.h"

#include <kornum/KornumRandom.h>
#include <kornum/PlatformExceptions.h>
#include <kornum/PlatformRandom.h>

#include <functional>
#include <limits>
#include <map>
#include <optional>

namespace KornumCli {
namespace {

using namespace KornumRandom;

struct RandomSettings {
    std::optional<Int64> count;
    std::optional<std::uint64_t> seed;
};

CommandTable RandomTable(RandomSettings& s) {
    return {
        "random",
        "Usage: kornum random DISTRIBUTION [PARAMETERS] -n N [--seed S]",
        "Prints N variates of the distribution, one a line (continuous ones with every\n"
        "digit a long double needs to read back the same). The same --seed gives the same\n"
        "variates on every machine; without it the generator is seeded from the system's\n"
        "entropy.\n"
        "\n"
        "Distributions:\n"
        "  normal                standard normal\n"
        "  exponential           standard exponential\n"
        "  gamma S               gamma with shape S > 0\n"
        "  chisq NDF             chi-square with NDF >= 1 degrees of freedom\n"
        "  weibull A             Weibull with shape A > 0\n"
        "  beta A B              beta with shapes A, B > 0\n"
        "  t M                   Student t with M >= 1 degrees of freedom\n"
        "  invgauss H B          generalised inverse Gaussian, density x^(H-1) e^(-B(x+1/x)/2),\n"
        "                        B > 0\n"
        "  vonmises K            von Mises angle with concentration 0 <= K < 10\n"
        "  cauchy                standard Cauchy\n"
        "  binomial N P          successes in N trials of probability 0 <= P <= 1 (BTPE\n"
        "                        above a mean of 30, inversion below)\n"
        "  binomial1 N P         the same by inversion from the mode\n"
        "  negbinomial SK P      negative binomial, power SK > 0, probability 0 < P < 1\n"
        "  poisson MU            Poisson with mean MU >= 0\n",
        {
            {"--count", "-n", "N", "how many variates (a whole number >= 0)",
             [&s](const std::string& v) { s.count = WholeNumber(v, "-n", 0, std::numeric_limits<Int64>::max()); }},
            {"--seed", "", "S", "seed the generator with S, 0 to 2^64 - 1",
             [&s](const std::string& v) { s.seed = Seed(v); }},
        },
        ""};
}

using Values = std::vector<Float>;
using Variate = std::function<std::string()>;

// A parameter: its name in messages and how its text is read and checked.
struct Parameter {
    const char* name;
    Float (*read)(const std::string& text, const std::string& name);
};

Float Degrees(const std::string& t, const std::string& n) {
    return Float(WholeNumber(t, n, 1, std::numeric_limits<Integer>::max()));
}
Float Trials32(const std::string& t, const std::string& n) {
    return Float(WholeNumber(t, n, 0, std::numeric_limits<Integer>::max()));
}
Float Trials64(const std::string& t, const std::string& n) {
    return Float(WholeNumber(t, n, 0, std::numeric_limits<Int64>::max()));
}
Float OpenChance(const std::string& t, const std::string& n) {
    const Float p = Probability(t, n);
    if (p == 0 || p == 1) throw UsageError(std::string(n) + " must be a number between 0 and 1, both excluded: " + Quoted(t));
    return p;
}
Float Concentration(const std::string& t, const std::string& n) {
    const Float k = NonNegativeNumber(t, n);
    if (!(k < 10)) throw UsageError(std::string(n) + " must be a number from 0 to below 10: " + Quoted(t));
    return k;
}

// Each distribution: its parameters and how it makes one variate from them.
struct Distribution {
    std::vector<Parameter> parameters;
    std::function<Variate(const Values&)> make;
};

template <class Generate>
Variate Continuous(Generate generate) {
    return [generate] { return NumberText(generate()); };
}
template <class Generate>
Variate Discrete(Generate generate) {
    return [generate] { return std::to_string(generate()); };
}

const std::map<std::string, Distribution>& Distributions() {
    using P = const Values&;
    static const std::map<std::string, Distribution> table{
        {"normal", {{}, [](P) { return Continuous([] { return Random_Normal(); }); }}},
        {"exponential", {{}, [](P) { return Continuous([] { return Random_Exponential(); }); }}},
        {"cauchy", {{}, [](P) { return Continuous([] { return Random_Cauchy(); }); }}},
        {"gamma", {{{"shape", PositiveNumber}}, [](P p) { return Continuous([s = p[0]] { return Random_Gamma(s); }); }}},
        {"chisq", {{{"degrees of freedom", Degrees}},
                   [](P p) { return Continuous([n = Integer(p[0])] { return Random_ChiSq(n); }); }}},
        {"weibull", {{{"shape A", PositiveNumber}}, [](P p) { return Continuous([a = p[0]] { return Random_Weibull(a); }); }}},
        {"beta", {{{"shape A", PositiveNumber}, {"shape B", PositiveNumber}},
                  [](P p) { return Continuous([a = p[0], b = p[1]] { return Random_Beta(a, b); }); }}},
        {"t", {{{"degrees of freedom", Degrees}},
               [](P p) { return Continuous([m = Integer(p[0])] { return Random_T(m); }); }}},
        {"invgauss", {{{"index", FiniteNumber}, {"concentration", PositiveNumber}},
                      [](P p) { return Continuous([h = p[0], b = p[1]] { return Random_Inv_Gauss(h, b); }); }}},
        {"vonmises", {{{"concentration", Concentration}},
                      [](P p) { return Continuous([k = p[0]] { return Random_von_Mises(k); }); }}},
        {"binomial", {{{"trials", Trials64}, {"probability", Probability}},
                      [](P p) { return Discrete([n = Int64(p[0]), q = p[1]] { return Random_Binomial2(n, q); }); }}},
        {"binomial1", {{{"trials", Trials32}, {"probability", Probability}},
                       [](P p) { return Discrete([n = Integer(p[0]), q = p[1]] { return Random_Binomial1(n, q); }); }}},
        {"negbinomial", {{{"power", PositiveNumber}, {"probability", OpenChance}},
                         [](P p) { return Discrete([sk = p[0], q = p[1]] { return Random_Neg_Binomial(sk, q); }); }}},
        {"poisson", {{{"mean", NonNegativeNumber}},
                     [](P p) { return Discrete([mu = p[0]] { return Random_Poisson(mu); }); }}},
    };
    return table;
}

int Run(const RandomSettings& s, const std::vector<std::string>& operands, Output& out) {
    if (operands.empty()) throw UsageError("a distribution is needed");
    const auto found = Distributions().find(operands[0]);
    if (found == Distributions().end()) throw UsageError("unknown distribution " + Quoted(operands[0]));
    const Distribution& distribution = found->second;
    const std::size_t wanted = distribution.parameters.size();
    if (operands.size() != wanted + 1) {
        std::string names;
        for (const Parameter& parameter : distribution.parameters)
            names += (names.empty() ? "" : ", ") + std::string(parameter.name);
        throw UsageError("'" + operands[0] + "' takes " + std::to_string(wanted) + " parameter" +
                         (wanted == 1 ? "" : "s") + (wanted == 0 ? "" : " (" + names + ")"));
    }
    if (!s.count) throw UsageError("-n N is needed");
    Values parameters;
    for (std::size_t k = 0; k < wanted; ++k)
        parameters.push_back(distribution.parameters[k].read(operands[k + 1], distribution.parameters[k].name));

    if (s.seed)
        Platform::RandSeed(*s.seed);
    else
        Platform::Randomize();
    const Variate next = distribution.make(parameters);
    try {
        for (Int64 i = 0; i < *s.count; ++i) {
            out.Write(next());
            out.Write('\n');
        }
    } catch (const Platform::Exception& error) {
        std::string call = operands[0];
        for (std::size_t k = 1; k < operands.size(); ++k) call += " " + operands[k];
        std::fprintf(stderr, "kornum random: %s: %s\n", call.c_str(), error.what());
        return 2;
    }
    return 0;
}

}  // namespace

int RunRandom(const std::vector<std::string>& arguments, Output& out) {
    RandomSettings settings;
    return RunCommand(RandomTable(settings), arguments, out,
                      [&](const std::vector<std::string>& operands) { return Run(settings, operands, out); });
}

}  // namespace KornumCli
