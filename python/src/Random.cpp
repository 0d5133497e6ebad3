// kornum.random's engine: the library's generators drawing from a stream that belongs to
// one Generator, so that Generators never share state and the library's global source is
// never touched.
#include "Bindings.hpp"

#include "Arrays.hpp"
#include "Errors.hpp"

#include <kornum/KornumRandom.h>
#include <kornum/PlatformRandom.h>

#include <functional>
#include <map>
#include <mutex>
#include <random>

namespace KornumPython {

namespace {

using namespace KornumRandom;
using Kornumglobals::Int64;
using Kornumglobals::Integer;

// A Generator's state: the global source's algorithm, with a lock so that threads sharing
// one Generator take turns.
struct Stream {
    Platform::TRandomStream state;
    std::mutex lock;
};

// The generators take a plain function as their uniform source: it reads the stream that
// the drawing thread has lent it for the duration of a draw.
// Initial-exec: a fixed offset from the thread pointer, not a lookup call per uniform.
thread_local Platform::TRandomStream* lent __attribute__((tls_model("initial-exec"))) = nullptr;
Float FromLentStream() { return lent->Random(); }

class Lending {
public:
    explicit Lending(Stream& s) : guard_(s.lock) { lent = &s.state; }
    ~Lending() { lent = nullptr; }

private:
    std::lock_guard<std::mutex> guard_;
};

using P = const std::vector<Float>&;
using ContinuousDraw = std::function<Float(P)>;
using DiscreteDraw = std::function<Int64(P)>;

// The generators by the name kornum.random gives them, with the parameters Python has
// checked (the same ranges as the command line's).
const std::map<std::string, ContinuousDraw>& ContinuousGenerators() {
    constexpr TKorUniformFunc u = FromLentStream;
    static const std::map<std::string, ContinuousDraw> table{
        {"normal", [](P) { return Random_Normal(u); }},
        {"exponential", [](P) { return Random_Exponential(u); }},
        {"cauchy", [](P) { return Random_Cauchy(u); }},
        {"gamma", [](P p) { return Random_Gamma(p[0], u); }},
        {"chisquare", [](P p) { return Random_ChiSq(Integer(p[0]), u); }},
        {"weibull", [](P p) { return Random_Weibull(p[0], u); }},
        {"beta", [](P p) { return Random_Beta(p[0], p[1], u); }},
        {"standard_t", [](P p) { return Random_T(Integer(p[0]), u); }},
        {"invgauss", [](P p) { return Random_Inv_Gauss(p[0], p[1], u); }},
        {"vonmises", [](P p) { return Random_von_Mises(p[0], u); }},
    };
    return table;
}

const std::map<std::string, DiscreteDraw>& DiscreteGenerators() {
    constexpr TKorUniformFunc u = FromLentStream;
    static const std::map<std::string, DiscreteDraw> table{
        {"binomial", [](P p) { return Random_Binomial2(Int64(p[0]), p[1], u); }},
        {"binomial_inversion", [](P p) { return Random_Binomial1(Integer(p[0]), p[1], u); }},
        {"negative_binomial", [](P p) { return Random_Neg_Binomial(p[0], p[1], u); }},
        {"poisson", [](P p) { return Random_Poisson(p[0], u); }},
    };
    return table;
}

template <class Result, class Table>
py::array_t<Result> DrawMany(const Table& table, const std::string& name, Stream& stream, P parameters,
                             py::ssize_t count) {
    const auto& draw = table.at(name);
    py::array_t<Result> result(count);
    Result* out = result.mutable_data();
    py::gil_scoped_release release;
    Lending lending(stream);
    for (py::ssize_t i = 0; i < count; ++i) out[i] = draw(parameters);
    return result;
}

py::array Draw(Stream& stream, const std::string& name, const std::vector<Real>& given, py::ssize_t count) {
    if (count < 0) ArgumentError(PyExc_ValueError, "size", "must not be negative");
    const std::vector<Float> parameters(given.begin(), given.end());
    if (ContinuousGenerators().count(name))
        return DrawMany<Float>(ContinuousGenerators(), name, stream, parameters, count);
    if (DiscreteGenerators().count(name))
        return DrawMany<Int64>(DiscreteGenerators(), name, stream, parameters, count);
    ArgumentError(PyExc_ValueError, "distribution", "is unknown: '" + name + "'");
}

// `count` multivariate normal vectors of the means `mean` and the covariance `cov` (a
// full symmetric matrix), one a row.
py::array_t<Float> DrawMultivariateNormal(Stream& stream, py::handle mean, py::handle cov, py::ssize_t count) {
    const TKorFloatVector h = ToVector(mean, "mean");
    const TKorFloatMatrix c = ToMatrix(cov, "cov");
    const Integer n = h.Length();
    if (n == 0) ArgumentError(PyExc_ValueError, "mean", "must not be empty");
    if (c.Length() != n || c[0].Length() != n)
        ArgumentError(PyExc_ValueError, "cov", "must be a square matrix with one row for each mean");
    // The generator takes the upper triangle packed column by column.
    TKorFloatVector d;
    d.SetLength(n * (n + 1) / 2);
    for (Integer j = 0, at = 0; j < n; ++j)
        for (Integer i = 0; i <= j; ++i, ++at) {
            if (!(Float(c[i][j]) == Float(c[j][i])))
                ArgumentError(PyExc_ValueError, "cov", "must be symmetric");
            d[at] = c[i][j];
        }
    if (count < 0) ArgumentError(PyExc_ValueError, "size", "must not be negative");
    py::array_t<Float> result({count, py::ssize_t(n)});
    Float* out = result.mutable_data();
    Integer failed = 0;
    {
        py::gil_scoped_release release;
        Lending lending(stream);
        TKorFloatVector factor, x;
        for (py::ssize_t k = 0; k < count && !failed; ++k) {
            Random_MVNorm(h, d, factor, x, failed, FromLentStream);
            for (Integer i = 0; i < n && !failed; ++i) *out++ = x[i];
        }
    }
    if (failed) ArgumentError(PyExc_ValueError, "cov", "must be positive semi-definite");
    return result;
}

std::uint64_t EntropySeed() {
    std::random_device entropy;
    return std::uint64_t(entropy()) << 32 | entropy();
}

}  // namespace

void BindRandom(py::module_& m) {
    py::class_<Stream>(m, "Stream", "A Generator's own uniform stream (internal).")
        .def(py::init([](std::optional<std::uint64_t> seed) {
                 auto stream = std::make_unique<Stream>();
                 stream->state.Seed(seed ? *seed : EntropySeed());
                 return stream;
             }),
             py::arg("seed"))
        .def("draw", &Draw, py::arg("name"), py::arg("parameters"), py::arg("count"))
        .def("multivariate_normal", &DrawMultivariateNormal, py::arg("mean"), py::arg("cov"), py::arg("count"));
}

}  // namespace KornumPython
