// kornum._kornum: the library for the Python package kornum, which gives it its public
// names, argument checks and documentation.
#include "Bindings.hpp"
#include "Arrays.hpp"
#include "Errors.hpp"
#include "frontend/NumberText.h"

#include <kornum/KornumPackage.h>

PYBIND11_MODULE(_kornum, m, pybind11::mod_gil_not_used()) {
    m.doc() = "The kornum library's engine for the kornum package (internal).";
    m.attr("__version__") = KornumPackage::Version();
    m.def("number_text", [](KornumPython::Real x) { return KornumFrontend::NumberText(x); }, pybind11::arg("x"),
          "The shortest text that reads back as the same long double, as the kornum program prints it.");
    m.def("as_floats", [](pybind11::handle values) { return KornumPython::ToFloats(values, "values"); },
          pybind11::arg("values"), "The array the engine reads for an argument: the argument itself when it is a "
          "C-contiguous np.longdouble array (internal).");
    KornumPython::RegisterErrors(m);
    KornumPython::BindDescribe(m);
    KornumPython::BindDistributions(m);
    KornumPython::BindRandom(m);
    KornumPython::BindStats(m);
    KornumPython::BindLinalg(m);
    KornumPython::BindSharded(m);
    KornumPython::BindPlot(m);
}
