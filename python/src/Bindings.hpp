// The parts of the extension module kornum._kornum, each defined in its own file.
#pragma once

#include <pybind11/pybind11.h>

namespace KornumPython {

void BindDescribe(pybind11::module_& m);
void BindDistributions(pybind11::module_& m);
void BindRandom(pybind11::module_& m);
void BindStats(pybind11::module_& m);
void BindLinalg(pybind11::module_& m);
void BindSharded(pybind11::module_& m);
void BindPlot(pybind11::module_& m);

}  // namespace KornumPython
