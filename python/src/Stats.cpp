// kornum.stats' engine: the sample, order and grouped-data statistics and the regression
// line over 1-D array-likes.
#include "Bindings.hpp"

#include "Arrays.hpp"
#include "Errors.hpp"

#include <kornum/KornumStatistics.h>
#include <kornum/KornumVector.h>

#include <cmath>
#include <limits>

namespace KornumPython {

namespace {

using namespace KornumStatistics;
using Kornumglobals::TKorLWordVector;

// A 1-D argument as the library's vector, sorted ascending as the order statistics want.
TKorFloatVector Sorted(py::handle x) {
    TKorFloatVector v = ToVector(x, "x");
    KornumVector::QSortVector(v, true);
    return v;
}

// Class counts: whole numbers from 0 to 2^32 - 1.
TKorLWordVector Frequencies(py::handle f) {
    const FloatArray a = ToFloatVector(f, "frequencies");
    TKorLWordVector v;
    v.SetLength(Kornumglobals::Integer(a.size()));
    for (py::ssize_t i = 0; i < a.size(); ++i) {
        const Float c = a.data()[i];
        if (!(c == std::floor(c) && c >= 0 && c <= std::numeric_limits<Kornumglobals::LongWord>::max()))
            ArgumentError(PyExc_ValueError, "frequencies", "must be whole numbers from 0 to 4294967295");
        v[Kornumglobals::Integer(i)] = Kornumglobals::LongWord(c);
    }
    return v;
}

// A statistic of one vector, with the vector packed and the statistic computed without
// the interpreter lock.
template <class Statistic>
auto OfVector(Statistic statistic) {
    return [statistic](py::handle x) {
        const FloatArray a = ToVectorArgument(x, "x");
        const auto value = [&] {
            py::gil_scoped_release release;
            return statistic(PackVector(a));
        }();
        return Result(value);
    };
}

// A statistic of grouped data: the class counts, the lower bound of the first class and
// the class width.
template <class Statistic>
auto OfGroups(Statistic statistic) {
    return [statistic](py::handle f, Real lower, Real width) { return Result(statistic(Frequencies(f), lower, width)); };
}

py::object OrNone(bool exists, Float value) { return exists ? Scalar(value) : py::object(py::none()); }

py::array_t<Float> FromArray(const Float* values, std::size_t n) {
    py::array_t<Float> result(static_cast<py::ssize_t>(n));
    std::copy(values, values + n, result.mutable_data());
    return result;
}

// The library's statistics of a Float vector with one result, or with two (the one-pass
// forms: the spread and the mean).
using OneResult = Float (*)(const TKorFloatVector&);
using TwoResults = void (*)(const TKorFloatVector&, Float&, Float&);

auto Statistic(OneResult statistic) { return OfVector(statistic); }
auto Statistic(TwoResults statistic) {
    return OfVector([statistic](const TKorFloatVector& v) {
        std::pair<Float, Float> r;
        statistic(v, r.first, r.second);
        return r;
    });
}

void BindSampleStatistics(py::module_& m) {
    m.def("mean", Statistic(KorMean));
    m.def("sample_variance", Statistic(SampleVariance));
    m.def("population_variance", Statistic(PopulationVariance));
    m.def("sample_sd", Statistic(SampleStdDev));
    m.def("population_sd", Statistic(PopulationStdDev));
    m.def("sample_variance_and_mean", Statistic(SampleVarianceAndMean));
    m.def("population_variance_and_mean", Statistic(PopulationVarianceAndMean));
    m.def("sample_sd_and_mean", Statistic(SampleStdDevAndMean));
    m.def("population_sd_and_mean", Statistic(PopulationStdDevAndMean));
    m.def("geometric_mean", Statistic(GeometricMean));
    m.def("harmonic_mean", Statistic(HarmonicMean));
    m.def("rms", Statistic(RootMeanSquare));
    m.def("mean_deviation", [](py::handle x, Real mean) { return Result(MeanDeviation(ToVector(x, "x"), mean)); });
    m.def("standardise", [](py::handle x, Real mean, Real sd, Real newMean, Real newSd) {
        TKorFloatVector v = ToVector(x, "x");
        Standardise(v, mean, sd, newMean, newSd);
        return FromVector(v);
    });
    m.def("sample_skew", [](py::handle x, Real mean, Real sd) { return Result(GetSampleSkew(ToVector(x, "x"), mean, sd)); });
    m.def("population_skew",
          [](py::handle x, Real mean, Real sd) { return Result(GetPopulationSkew(ToVector(x, "x"), mean, sd)); });
    m.def("sample_kurtosis",
          [](py::handle x, Real mean, Real sd) { return Result(GetSampleKurtosis(ToVector(x, "x"), mean, sd)); });
    m.def("population_kurtosis",
          [](py::handle x, Real mean, Real sd) { return Result(GetPopulationKurtosis(ToVector(x, "x"), mean, sd)); });
}

void BindOrderStatistics(py::module_& m) {
    m.def("median", [](py::handle x) { return Result(GetMedian(Sorted(x))); });
    m.def("quartiles", [](py::handle x) {
        Float q1, q3;
        GetQuartiles(Sorted(x), q1, q3);
        return Result(std::make_pair(q1, q3));
    });
    m.def("deciles", [](py::handle x) {
        const TKorDeciles d = GetDeciles(Sorted(x));
        return FromArray(d.Values.data(), d.Values.size());
    });
    m.def("mode", [](py::handle x) {
        Float mode;
        const bool exists = GetMode(Sorted(x), mode);
        return OrNone(exists, mode);
    });
    m.def("most_frequent", [](py::handle x) { return FromVector(GetMostFrequent(Sorted(x))); });
    m.def("trimmed_mean", [](py::handle x, Real alpha) { return Result(TrimmedMean(ToVector(x, "x"), alpha)); });
    m.def("trimmed_mean_total", [](py::handle x, Real alpha) { return Result(ExcelTrimmedMean(ToVector(x, "x"), alpha)); });
    m.def("linear_regression", [](py::handle x, py::handle y) {
        const TKorFloatVector vx = ToVector(x, "x"), vy = ToVector(y, "y");
        Float intercept = 0, slope = 0;
        GetRegressionLine(vx, vy, intercept, slope);
        return py::make_tuple(Scalar(slope), Scalar(intercept), Scalar(GetSSE(vx, vy, intercept, slope)));
    });
}

void BindGroupedStatistics(py::module_& m) {
    m.def("grouped_mean", OfGroups(GroupedMean));
    m.def("grouped_median", OfGroups(GroupedMedian));
    m.def("grouped_mode", OfGroups([](const TKorLWordVector& f, Float l, Float w) {
              Float mode;
              const bool exists = GroupedMode(f, l, w, mode);
              return OrNone(exists, mode);
          }));
    m.def("grouped_quartiles", OfGroups([](const TKorLWordVector& f, Float l, Float w) {
              Float q1, q3;
              GroupedQuartiles(f, l, w, q1, q3);
              return std::make_pair(q1, q3);
          }));
    m.def("grouped_deciles", OfGroups([](const TKorLWordVector& f, Float l, Float w) {
              Float d[9];
              GetGroupedDeciles(f, l, w, d);
              return FromArray(d, 9);
          }));
    m.def("grouped_sample_variance", OfGroups(GroupedSampleVariance));
    m.def("grouped_population_variance", OfGroups(GroupedPopulationVariance));
    m.def("grouped_sample_sd", OfGroups(GroupedSampleStdDev));
    m.def("grouped_population_sd", OfGroups(GroupedPopulationStdDev));
    m.def("grouped_sums", OfGroups([](const TKorLWordVector& f, Float l, Float w) {
              Float fm, fm2;
              GroupedSums(f, l, w, fm, fm2);
              return std::make_pair(fm, fm2);
          }));
    m.def("grouped_mean_deviation", [](py::handle f, Real l, Real w, Real mean) {
        return Result(GetGroupedMeanDev(Frequencies(f), l, w, mean));
    });
    using Shape = Float (*)(const TKorLWordVector&, Float, Float, Float, Float);
    const auto shape = [&m](const char* name, Shape statistic) {
        m.def(name, [statistic](py::handle f, Real l, Real w, Real mean, Real sd) {
            return Result(statistic(Frequencies(f), l, w, mean, sd));
        });
    };
    shape("grouped_sample_skew", GetGroupedSampleSkew);
    shape("grouped_population_skew", GetGroupedPopulationSkew);
    shape("grouped_sample_kurtosis", GetGroupedSampleKurtosis);
    shape("grouped_population_kurtosis", GetGroupedPopulationKurtosis);
}

}  // namespace

void BindStats(py::module_& m) {
    BindSampleStatistics(m);
    BindOrderStatistics(m);
    BindGroupedStatistics(m);
}

}  // namespace KornumPython
