// kornum.plot: the pictures of `kornum describe --plot` and `kornum dist FAMILY plot`,
// built by the same code and written to a file as its extension asks.
#include "Bindings.hpp"

#include "Arrays.hpp"
#include "Errors.hpp"
#include "frontend/DistributionFamilies.h"
#include "frontend/DistributionPlot.h"

#include <kornum/KornumCanvas.h>
#include <kornum/KornumDescStats.h>
#include <kornum/KornumPlot.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Platform.h>

#include <cerrno>
#include <cmath>
#include <optional>

namespace KornumPython {

namespace {

void CheckPath(const std::string& path) {
    if (!KornumCanvas::FormatOfPath(path))
        ArgumentError(PyExc_ValueError, "path", "must end in .svg, .png or .pdf, not '" + path + "'");
}

// Builds the plot and writes it without the interpreter lock. A file that cannot be
// written raises the OSError of its system error (none is left behind); what the plot
// raises in the making goes out as the library's error.
template <class Build>
void Save(const std::string& path, Build build) {
    std::optional<KornumCanvas::EWriteError> failed;
    {
        py::gil_scoped_release release;
        try {
            KornumPlot::TKorPlot plot = build();
            KornumPlot::SavePlot(plot, path);
        } catch (const KornumCanvas::EWriteError& error) {
            failed = error;
        }
    }
    if (failed) {
        errno = failed->Error();
        PyErr_SetFromErrnoWithFilename(PyExc_OSError, failed->Path().c_str());
        throw py::error_already_set();
    }
}

void Histogram(py::handle values, const std::string& path, std::optional<long long> bins, bool population) {
    const FloatArray array = ToVectorArgument(values, "values");
    CheckPath(path);
    if (bins && (*bins < 1 || *bins > 10000))
        ArgumentError(PyExc_ValueError, "bins", "must be from 1 to 10000, not " + std::to_string(*bins));
    if (array.size() == 0) Platform::Raise(Kornum_RS_Math::rsVectorIsEmpty);
    Save(path, [&] {
        KornumDescStats::TKorDescStats stats(nullptr);
        stats.BeginUpdate();
        stats.SetPopulation(population);
        stats.SetValues(PackVector(array));
        stats.EndUpdate();
        return KornumPlot::SampleHistogram(stats, Kornumglobals::Integer(bins.value_or(0)));
    });
}

void Distribution(const std::string& familyName, const std::vector<py::handle>& parameters, Real xlo, Real xhi,
                  const std::string& path, bool cdf, bool log) {
    const auto found = KornumFrontend::Families().find(familyName);
    if (found == KornumFrontend::Families().end()) ArgumentError(PyExc_ValueError, "family", "is unknown: '" + familyName + "'");
    KornumFrontend::Values p;
    for (py::handle parameter : parameters) {
        const FloatArray a = ToFloats(parameter, "family");
        if (a.size() != 1) ArgumentError(PyExc_ValueError, "family", "must have one value of each parameter to be drawn");
        p.push_back(a.data()[0]);
    }
    if (!std::isfinite(xlo)) ArgumentError(PyExc_ValueError, "xlo", "must be finite");
    if (!(std::isfinite(xhi) && xhi > xlo)) ArgumentError(PyExc_ValueError, "xhi", "must be finite and greater than xlo");
    CheckPath(path);
    Save(path, [&] { return KornumFrontend::DistributionPlot(found->second, p, xlo, xhi, cdf, log); });
}

}  // namespace

void BindPlot(py::module_& m) {
    m.def("plot_histogram", &Histogram, py::arg("values"), py::arg("path"), py::kw_only(), py::arg("bins"),
          py::arg("population"), "A sample's histogram with its fitted normal density (internal; see kornum.plot).");
    m.def("plot_distribution", &Distribution, py::arg("family"), py::arg("parameters"), py::arg("xlo"), py::arg("xhi"),
          py::arg("path"), py::kw_only(), py::arg("cdf"), py::arg("log"),
          "A distribution's density or distribution function (internal; see kornum.plot).");
}

}  // namespace KornumPython
