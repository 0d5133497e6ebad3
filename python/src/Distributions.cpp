// kornum.dist's engine: one family function over broadcast arrays of values and
// parameters, with NumPy's broadcasting and SciPy's conventions at the edges of the support.
#include "Bindings.hpp"

#include "Arrays.hpp"
#include "Errors.hpp"
#include "frontend/DistributionFamilies.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace KornumPython {

namespace {

using KornumFrontend::Family;
using KornumFrontend::Kind;
using Values = KornumFrontend::Values;

constexpr Float Inf = std::numeric_limits<Float>::infinity();
constexpr Float NaN = std::numeric_limits<Float>::quiet_NaN();

enum class Function { Cdf, Sf, Pdf, Ppf, Isf };

Function FunctionNamed(const std::string& name) {
    if (name == "cdf") return Function::Cdf;
    if (name == "sf") return Function::Sf;
    if (name == "pdf") return Function::Pdf;
    if (name == "ppf") return Function::Ppf;
    if (name == "isf") return Function::Isf;
    ArgumentError(PyExc_ValueError, "function", "must be cdf, sf, pdf, ppf or isf, not '" + name + "'");
}

// Where a family's probability lives, which decides its values at and beyond the ends.
enum class Support {
    Line,          // normal, t: every real x
    HalfLine,      // chi-square, exponential: x >= 0
    OpenHalfLine,  // log-normal: x > 0
    FRatio,        // F: x > 0, with the density's limit at 0
    Bounded,       // beta: lo <= x <= hi, the third and fourth parameters
    Trials,        // binomial: k from 0 to the trials, the first parameter
    Counts,        // Poisson: every whole k >= 0
};

Support SupportOf(const std::string& family) {
    if (family == "normal" || family == "t") return Support::Line;
    if (family == "lognormal") return Support::OpenHalfLine;
    if (family == "f") return Support::FRatio;
    if (family == "beta") return Support::Bounded;
    if (family == "binomial") return Support::Trials;
    if (family == "poisson") return Support::Counts;
    return Support::HalfLine;
}

// One family function at one point, the family and function chosen once per call. The
// point is passed on by reference to the element of the input array: a Float stored from
// a register for the call would stall the family's load of it.
struct Point {
    const Family& family;
    Support support;
    Function function;

    Float operator()(const Float& x, const Values& p) const {
        if (function == Function::Ppf || function == Function::Isf) return Inverse(x, p);
        if (std::isnan(x)) return NaN;
        return family.discrete ? Discrete(x, p) : Continuous(x, p);
    }

    // The value outside the support (or at an open end) as SciPy gives it.
    Float Outside(bool below, Float density = 0) const {
        switch (function) {
            case Function::Cdf: return below ? 0 : 1;
            case Function::Sf: return below ? 1 : 0;
            default: return density;
        }
    }

    Float Inside(const Float& x, const Values& p) const {
        return function == Function::Cdf ? family.less(x, p) : function == Function::Sf ? family.greater(x, p) : family.pdf(x, p);
    }

    Float Low(const Values& p) const { return support == Support::Bounded ? p[2] : support == Support::Line ? -Inf : 0; }
    Float High(const Values& p) const { return support == Support::Bounded ? p[3] : Inf; }

    Float Continuous(const Float& x, const Values& p) const {
        const Float lo = Low(p), hi = High(p);
        const bool openLow = support == Support::OpenHalfLine || support == Support::FRatio;
        if (x == -Inf || x < lo || (openLow && x == lo)) {
            // The F density at 0: infinite for one numerator degree of freedom, 1 for two.
            const Float density = support == Support::FRatio && x == 0 ? (p[0] < 2 ? Inf : p[0] == 2 ? 1 : 0) : 0;
            return Outside(true, density);
        }
        if (x == Inf || x > hi) return Outside(false);
        return Inside(x, p);
    }

    Float Discrete(const Float& x, const Values& p) const {
        const Float k = std::floor(x);
        if (k < 0) return Outside(true);
        if (function == Function::Pdf && k != x) return 0;  // only whole k carry probability
        const Float last = support == Support::Trials ? p[0] : Float(std::numeric_limits<Kornumglobals::Cardinal>::max());
        if (k > last) return Outside(false);
        return Inside(k, p);
    }

    Float Inverse(const Float& q, const Values& p) const {
        if (!(q >= 0 && q <= 1)) return NaN;
        const bool lower = function == Function::Ppf;
        if (!family.discrete && (q == 0 || q == 1)) return (q == 0) == lower ? Low(p) : High(p);
        return lower ? family.inv(q, p) : family.isf(q, p);
    }
};

// NumPy's broadcasting of the inputs: the result's shape and, for each input, the step
// of each result dimension in its elements (0 where it is stretched).
struct Broadcast {
    std::vector<py::ssize_t> shape;
    std::vector<std::vector<py::ssize_t>> steps;
};

Broadcast BroadcastOf(const std::vector<FloatArray>& inputs) {
    Broadcast b;
    py::ssize_t dims = 0;
    for (const FloatArray& a : inputs) dims = std::max<py::ssize_t>(dims, a.ndim());
    b.shape.assign(std::size_t(dims), 1);
    for (const FloatArray& a : inputs)
        for (py::ssize_t d = 0; d < a.ndim(); ++d) {
            py::ssize_t& out = b.shape[std::size_t(dims - a.ndim() + d)];
            if (a.shape(d) == out || a.shape(d) == 1) continue;
            if (out != 1) {
                std::string shapes;
                for (const FloatArray& each : inputs) {
                    if (!shapes.empty()) shapes += ' ';
                    shapes += ShapeText(each);
                }
                ArgumentError(PyExc_ValueError, "x and the parameters", "cannot be broadcast together: shapes " + shapes);
            }
            out = a.shape(d);
        }
    for (const FloatArray& a : inputs) {
        std::vector<py::ssize_t> steps(std::size_t(dims), 0);
        py::ssize_t step = 1;
        for (py::ssize_t d = a.ndim() - 1; d >= 0; --d) {
            if (a.shape(d) != 1) steps[std::size_t(dims - a.ndim() + d)] = step;
            step *= a.shape(d);
        }
        b.steps.push_back(std::move(steps));
    }
    return b;
}

// Calls `each(offsets)` for every element of the result in C order, with the offset of
// that element in each input.
template <class Each>
void ForEachElement(const Broadcast& b, std::size_t inputs, Each each) {
    const std::size_t dims = b.shape.size();
    py::ssize_t total = 1;
    for (py::ssize_t n : b.shape) total *= n;
    if (total == 0) return;
    std::vector<py::ssize_t> index(dims, 0), offsets(inputs, 0);
    const py::ssize_t inner = dims ? b.shape[dims - 1] : 1;
    for (py::ssize_t done = 0; done < total; done += inner) {
        for (py::ssize_t i = 0; i < inner; ++i) {
            each(offsets);
            if (dims)
                for (std::size_t k = 0; k < inputs; ++k) offsets[k] += b.steps[k][dims - 1];
        }
        if (dims) {
            for (std::size_t k = 0; k < inputs; ++k) offsets[k] -= inner * b.steps[k][dims - 1];
            // The odometer over the outer dimensions.
            for (std::size_t d = dims - 1; d-- > 0;) {
                for (std::size_t k = 0; k < inputs; ++k) offsets[k] += b.steps[k][d];
                if (++index[d] < b.shape[d]) break;
                for (std::size_t k = 0; k < inputs; ++k) offsets[k] -= index[d] * b.steps[k][d];
                index[d] = 0;
            }
        }
    }
}

const Family& FamilyNamed(const std::string& name) {
    const auto found = KornumFrontend::Families().find(name);
    if (found == KornumFrontend::Families().end())
        ArgumentError(PyExc_ValueError, "family", "is unknown: '" + name + "'");
    return found->second;
}

py::object Evaluate(const std::string& familyName, const std::string& functionName, py::handle x,
                    const std::vector<py::handle>& parameters) {
    const Family& family = FamilyNamed(familyName);
    const Function function = FunctionNamed(functionName);
    const bool inverse = function == Function::Ppf || function == Function::Isf;
    std::vector<FloatArray> inputs{ToFloats(x, inverse ? "q" : "x")};
    for (py::handle p : parameters) inputs.push_back(ToFloats(p, "a parameter"));
    const Broadcast b = BroadcastOf(inputs);
    py::array_t<Float> result(b.shape);
    Float* out = result.mutable_data();
    {
        py::gil_scoped_release release;
        std::vector<const Float*> data;
        for (const FloatArray& a : inputs) data.push_back(a.data());
        Values p(parameters.size());
        const Point point{family, SupportOf(familyName), function};
        const bool fixed = std::all_of(inputs.begin() + 1, inputs.end(), [](const FloatArray& a) { return a.size() == 1; });
        if (fixed && inputs[0].size() == result.size()) {
            // The common call: one value of each parameter, the points in order.
            for (std::size_t k = 0; k < p.size(); ++k) p[k] = data[k + 1][0];
            const Float* x = data[0];
            for (py::ssize_t i = 0, n = result.size(); i < n; ++i) out[i] = point(x[i], p);
        } else {
            ForEachElement(b, inputs.size(), [&](const std::vector<py::ssize_t>& at) {
                for (std::size_t k = 0; k < p.size(); ++k) p[k] = data[k + 1][at[k + 1]];
                *out++ = point(data[0][at[0]], p);
            });
        }
    }
    if (b.shape.empty()) return Scalar(*result.data());
    return result;
}

// The parameters as arrays of Floats, each checked against the values its family allows
// (ValueError naming it).
std::vector<FloatArray> CheckParameters(const std::string& familyName, const std::vector<py::handle>& parameters,
                                        const std::vector<std::string>& names) {
    const Family& family = FamilyNamed(familyName);
    if (parameters.size() != family.parameters.size() && parameters.size() + family.optional != family.parameters.size())
        ArgumentError(PyExc_ValueError, "parameters", "do not match the family '" + familyName + "'");
    std::vector<FloatArray> checked;
    for (std::size_t k = 0; k < parameters.size(); ++k) {
        const FloatArray a = ToFloats(parameters[k], names.at(k).c_str());
        for (py::ssize_t i = 0; i < a.size(); ++i) {
            const Float v = a.data()[i];
            const Float whole = std::floor(v);
            const char* wanted = nullptr;
            switch (family.parameters[k].kind) {
                case Kind::Real:
                    if (!std::isfinite(v)) wanted = "a finite number";
                    break;
                case Kind::Positive:
                    if (!(std::isfinite(v) && v > 0)) wanted = "a finite number greater than 0";
                    break;
                case Kind::Degrees:
                    if (!(v == whole && v >= 1 && v <= std::numeric_limits<Kornumglobals::Integer>::max()))
                        wanted = "a whole number from 1 to 2147483647";
                    break;
                case Kind::Trials:
                    if (!(v == whole && v >= 0 && v <= std::numeric_limits<Kornumglobals::Cardinal>::max()))
                        wanted = "a whole number from 0 to 4294967295";
                    break;
                case Kind::Probability:
                    if (!(v >= 0 && v <= 1)) wanted = "a number from 0 to 1";
                    break;
            }
            if (wanted)
                ArgumentError(PyExc_ValueError, names[k].c_str(),
                              std::string("must be ") + wanted + ", not " + std::string(py::str(Scalar(v))));
        }
        checked.push_back(a);
    }
    return checked;
}

}  // namespace

void BindDistributions(py::module_& m) {
    m.def("evaluate", &Evaluate, py::arg("family"), py::arg("function"), py::arg("x"), py::arg("parameters"),
          "A family's function over broadcast values and parameters (internal; see kornum.dist).");
    m.def("check_parameters", &CheckParameters, py::arg("family"), py::arg("parameters"), py::arg("names"),
          "Checks a family's parameters (internal; see kornum.dist).");
}

}  // namespace KornumPython
