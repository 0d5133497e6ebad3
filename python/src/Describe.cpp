// kornum.describe: the descriptive-statistics component over a 1-D array-like, its entries
// for kornum.Description and its text report.
#include "Bindings.hpp"

#include "Arrays.hpp"
#include "Errors.hpp"
#include "ReportEntries.hpp"
#include "frontend/ReportText.h"

#include <kornum/KornumDescStats.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Platform.h>

#include <mutex>

namespace KornumPython {

namespace {

using KornumDescStats::TKorDescStats;

// The component with the values, computed once; the report is written from it on demand.
class Summary {
public:
    Summary(TKorFloatVector values, bool population) : stats_(nullptr) {
        stats_.BeginUpdate();
        stats_.SetPopulation(population);
        stats_.SetValues(std::move(values));
        stats_.EndUpdate();
        entries_ = stats_.ReportEntries();
    }

    // (key, caption, value or None, integral) for each line of the report.
    py::list Entries() const { return EntryTuples(entries_); }

    // The report as `kornum describe` prints it: with `decimals` the component's own text,
    // without (None) every value in the shortest form.
    std::string Report(std::optional<int> decimals) {
        if (!decimals) return KornumFrontend::ShortestReportText(entries_);
        if (*decimals < 0 || *decimals > 255) ArgumentError(PyExc_ValueError, "decimals", "must be from 0 to 255");
        std::lock_guard lock(mutex_);  // the component's decimal places are shared state
        stats_.SetDecimalPlaces(Kornumglobals::Byte(*decimals));
        return stats_.DescStats()->Text();
    }

private:
    TKorDescStats stats_;
    std::vector<KornumDescStats::TKorReportEntry> entries_;
    std::mutex mutex_;
};

std::unique_ptr<Summary> Describe(py::handle values, bool population) {
    const FloatArray array = ToVectorArgument(values, "values");
    if (array.size() == 0) Platform::Raise(Kornum_RS_Math::rsVectorIsEmpty);
    py::gil_scoped_release release;
    return std::make_unique<Summary>(PackVector(array), population);
}

}  // namespace

void BindDescribe(py::module_& m) {
    py::class_<Summary>(m, "Summary", "The computed report of kornum.describe (internal).")
        .def("entries", &Summary::Entries)
        .def("report", &Summary::Report, py::arg("decimals"));
    m.def("describe", &Describe, py::arg("values"), py::kw_only(), py::arg("population") = false,
          "The report's statistics of a 1-D array-like (internal; see kornum.describe).");
}

}  // namespace KornumPython
