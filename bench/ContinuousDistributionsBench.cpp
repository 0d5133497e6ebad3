// Cost per call of the chi-square, Student t, F, beta and exponential functions against
// Boost.Math's long double distributions (cdf, cdf of the complement, quantile), over the
// same arguments, with our tolerance at its default. The F and beta tails are also timed
// shape by shape at the deciles of each distribution, and the run ends with the ratio of
// every pair, so that a regression at one shape shows.
//
// Boost's distribution objects hold their real parameters in memory; ours are passed the
// same way, from variables. A long double literal at the call site would time the
// caller's code instead: GCC builds such an argument with an 80-bit store and two
// integer reloads of it, a failed store forwarding that costs about 35 ns per call.
#include <kornum/KornumStatistics.h>

#include <benchmark/benchmark.h>
#include <boost/math/distributions/beta.hpp>
#include <boost/math/distributions/chi_squared.hpp>
#include <boost/math/distributions/exponential.hpp>
#include <boost/math/distributions/fisher_f.hpp>
#include <boost/math/distributions/students_t.hpp>

#include <cmath>
#include <cstdio>
#include <map>
#include <random>
#include <string>
#include <vector>

using Float = long double;
using Kornumglobals::Integer;

// Outside the anonymous namespace, so that the compiler cannot fold them into literals.
namespace parameters {
Float betaA = 2.5L, betaB = 4, rate = 1.5L;
}

namespace {

using namespace KornumStatistics;
namespace bm = boost::math;
constexpr std::size_t Count = 256;

// Points spread over the body and the tails of each distribution (scale: its typical
// size), and probabilities with a tenth in the far tails.
std::vector<Float> Points(Float scale, bool symmetric) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> uniform(0, 1);
    std::vector<Float> values(Count);
    for (auto& v : values) {
        v = scale * std::exp(4 * (uniform(random) - 0.5));
        if (symmetric && uniform(random) < 0.5) v = -v;
    }
    return values;
}
std::vector<Float> Probabilities() {
    std::mt19937_64 random(8);
    std::uniform_real_distribution<double> uniform(0, 1);
    std::vector<Float> values(Count);
    for (std::size_t i = 0; i < Count; ++i) {
        const Float u = uniform(random);
        values[i] = i % 10 == 0 ? std::pow(10.0L, -2 - 20 * u) : 0.01L + 0.98L * u;
    }
    return values;
}

template <class Function>
void Run(benchmark::State& state, const std::vector<Float>& values, Function function) {
    for (auto _ : state)
        for (const Float x : values) benchmark::DoNotOptimize(function(x));
    state.SetItemsProcessed(state.iterations() * std::int64_t(Count));
}

const bm::chi_squared_distribution<Float> chi(7);
const bm::students_t_distribution<Float> student(7), student100(100);
const bm::fisher_f_distribution<Float> fisher(5, 12);
const bm::beta_distribution<Float> betaDist(2.5L, 4);
const bm::exponential_distribution<Float> expo(1.5L);

// Each benchmark pair: ours, then Boost's, on the same points.
#define KORNUM_PAIR(Name, points, ours, theirs)                                                     \
    void Ours##Name(benchmark::State& s) { Run(s, points, [](Float x) { return ours; }); }          \
    void Boost##Name(benchmark::State& s) { Run(s, points, [](Float x) { return theirs; }); }       \
    BENCHMARK(Ours##Name);                                                                          \
    BENCHMARK(Boost##Name);

const std::vector<Float> chiPoints = Points(7, false), tPoints = Points(2, true), fPoints = Points(1, false),
                         betaPoints = [] {
                             std::vector<Float> v = Points(0.3L, false);
                             for (auto& x : v) x = x / (1 + x);
                             return v;
                         }(),
                         expPoints = Points(0.7L, false), probabilities = Probabilities();

KORNUM_PAIR(ChiSquareLess, chiPoints, ChiSquareLess(x, 7), bm::cdf(chi, x))
KORNUM_PAIR(ChiSquareGreater, chiPoints, ChiSquareGreater(x, 7), bm::cdf(bm::complement(chi, x)))
KORNUM_PAIR(InvChiSquareLess, probabilities, InvChiSquareLess(x, 7), bm::quantile(chi, x))
KORNUM_PAIR(InvChiSquareGreater, probabilities, InvChiSquareGreater(x, 7), bm::quantile(bm::complement(chi, x)))
KORNUM_PAIR(StudentTLess, tPoints, StudentTLess(x, 7), bm::cdf(student, x))
KORNUM_PAIR(StudentTGreater, tPoints, StudentTGreater(x, 7), bm::cdf(bm::complement(student, x)))
KORNUM_PAIR(InvStudentTLess, probabilities, InvStudentTLess(x, 7), bm::quantile(student, x))
KORNUM_PAIR(InvStudentTGreater, probabilities, InvStudentTGreater(x, 7), bm::quantile(bm::complement(student, x)))
// Beyond 60 degrees of freedom the t family leaves its closed forms for the incomplete beta.
KORNUM_PAIR(StudentTLess100, tPoints, StudentTLess(x, 100), bm::cdf(student100, x))
KORNUM_PAIR(InvStudentTLess100, probabilities, InvStudentTLess(x, 100), bm::quantile(student100, x))
KORNUM_PAIR(InvStudentTGreater100, probabilities, InvStudentTGreater(x, 100),
            bm::quantile(bm::complement(student100, x)))
KORNUM_PAIR(FDistLess, fPoints, FDistLess(x, 5, 12), bm::cdf(fisher, x))
KORNUM_PAIR(FDistGreater, fPoints, FDistGreater(x, 5, 12), bm::cdf(bm::complement(fisher, x)))
KORNUM_PAIR(InvFDistLess, probabilities, InvFDistLess(x, 5, 12), bm::quantile(fisher, x))
KORNUM_PAIR(InvFDistGreater, probabilities, InvFDistGreater(x, 5, 12), bm::quantile(bm::complement(fisher, x)))
KORNUM_PAIR(BetaDistLess, betaPoints, BetaDistLess(x, parameters::betaA, parameters::betaB), bm::cdf(betaDist, x))
KORNUM_PAIR(BetaDistGreater, betaPoints, BetaDistGreater(x, parameters::betaA, parameters::betaB), bm::cdf(bm::complement(betaDist, x)))
KORNUM_PAIR(InvBetaDistLess, probabilities, InvBetaDistLess(x, parameters::betaA, parameters::betaB), bm::quantile(betaDist, x))
KORNUM_PAIR(InvBetaDistGreater, probabilities, InvBetaDistGreater(x, parameters::betaA, parameters::betaB),
            bm::quantile(bm::complement(betaDist, x)))
KORNUM_PAIR(ExponentialLess, expPoints, ExponentialLess(x, parameters::rate), bm::cdf(expo, x))
KORNUM_PAIR(ExponentialGreater, expPoints, ExponentialGreater(x, parameters::rate), bm::cdf(bm::complement(expo, x)))
KORNUM_PAIR(InvExponentialLess, probabilities, InvExponentialLess(x, parameters::rate), bm::quantile(expo, x))
KORNUM_PAIR(InvExponentialGreater, probabilities, InvExponentialGreater(x, parameters::rate),
            bm::quantile(bm::complement(expo, x)))

// ---- Per shape: the nine deciles of each distribution --------------------------------

template <class Distribution>
std::vector<Float> Deciles(const Distribution& distribution) {
    std::vector<Float> values;
    for (int k = 1; k <= 9; ++k) values.push_back(bm::quantile(distribution, Float(k) / 10));
    return values;
}

template <class Shape, class Ours, class Theirs>
void RegisterShapePair(const std::string& name, const Shape& shape, Ours ours, Theirs theirs) {
    const std::string label = "/(" + shape.Label() + ")";
    benchmark::RegisterBenchmark(("Ours" + name + label).c_str(), [&shape, ours](benchmark::State& s) {
        Run(s, shape.deciles, [&](Float x) { return ours(shape, x); });
    });
    benchmark::RegisterBenchmark(("Boost" + name + label).c_str(), [&shape, theirs](benchmark::State& s) {
        Run(s, shape.deciles, [&](Float x) { return theirs(shape.peer, x); });
    });
}

// A family's two tails at each of its shapes, beside Boost's cdf and its complement.
template <class Shape, class Less, class Greater>
void RegisterFamily(const std::string& family, const std::vector<Shape>& shapes, Less less, Greater greater) {
    for (const Shape& shape : shapes) {
        RegisterShapePair(family + "Less", shape, less, [](const auto& peer, Float x) { return bm::cdf(peer, x); });
        RegisterShapePair(family + "Greater", shape, greater,
                          [](const auto& peer, Float x) { return bm::cdf(bm::complement(peer, x)); });
    }
}

struct FShape {
    Integer n1, n2;
    bm::fisher_f_distribution<Float> peer;
    std::vector<Float> deciles;
    std::string Label() const { return std::to_string(n1) + ", " + std::to_string(n2); }
};
struct BetaShape {
    Float a, b;
    bm::beta_distribution<Float> peer;
    std::vector<Float> deciles;
    std::string Label() const {
        const auto text = [](Float v) { return v == std::floor(v) ? std::to_string(int(v)) : std::to_string(double(v)).substr(0, 3); };
        return text(a) + ", " + text(b);
    }
};

// Held for the whole run: the benchmarks refer to them.
const std::vector<FShape> fShapes = [] {
    std::vector<FShape> shapes;
    for (auto [n1, n2] : {std::pair{1, 1}, {2, 5}, {5, 10}, {10, 30}, {30, 100}, {100, 1000}, {3, 1000}, {1000, 3}}) {
        const bm::fisher_f_distribution<Float> peer(n1, n2);
        shapes.push_back({n1, n2, peer, Deciles(peer)});
    }
    return shapes;
}();
const std::vector<BetaShape> betaShapes = [] {
    std::vector<BetaShape> shapes;
    for (auto [a, b] : {std::pair{0.5L, 0.5L}, {1.0L, 3.0L}, {2.0L, 5.0L}, {5.0L, 2.0L}, {10.0L, 10.0L},
                        {50.0L, 200.0L}, {0.5L, 20.0L}, {200.0L, 2.0L}}) {
        const bm::beta_distribution<Float> peer(a, b);
        shapes.push_back({a, b, peer, Deciles(peer)});
    }
    return shapes;
}();

void RegisterShapes() {
    RegisterFamily(
        "FDist", fShapes, [](const FShape& f, Float x) { return FDistLess(x, f.n1, f.n2); },
        [](const FShape& f, Float x) { return FDistGreater(x, f.n1, f.n2); });
    RegisterFamily(
        "BetaDist", betaShapes, [](const BetaShape& b, Float x) { return BetaDistLess(x, b.a, b.b); },
        [](const BetaShape& b, Float x) { return BetaDistGreater(x, b.a, b.b); });
}

// The console report, then ours over Boost's CPU time for every pair that ran (the
// median where repetitions are asked for).
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration ? !times_.count(run.run_name.str()) || run.repetitions <= 1
                                                  : run.aggregate_name == "median")
                Record(run.run_name.str(), run.GetAdjustedCPUTime());
        ConsoleReporter::ReportRuns(runs);
    }
    void Finalize() override {
        ConsoleReporter::Finalize();
        std::printf("\nours / Boost (CPU time per call)\n");
        for (const std::string& name : order_) {
            if (name.rfind("Ours", 0) != 0) continue;
            const auto peer = times_.find("Boost" + name.substr(4));
            if (peer != times_.end())
                std::printf("%-40s %5.2f\n", name.substr(4).c_str(), times_[name] / peer->second);
        }
    }

private:
    void Record(const std::string& name, double time) {
        if (times_.emplace(name, time).second) order_.push_back(name);
        else times_[name] = time;
    }
    std::map<std::string, double> times_;
    std::vector<std::string> order_;  // as run
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    RegisterShapes();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
}
