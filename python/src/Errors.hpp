// How failures cross into Python: the library's exceptions become kornum.MathError
// (an ArithmeticError with the identifier's name in `.id`), bad arguments TypeError or
// ValueError with a message that names the argument.
#pragma once

#include <pybind11/pybind11.h>

#include <string>

namespace KornumPython {


// Defines kornum._kornum.MathError and translates Platform::Exception into it.
void RegisterErrors(pybind11::module_& m);

// Raises `type` with "NAME WHAT".
[[noreturn]] void ArgumentError(PyObject* type, const char* name, const std::string& what);

}  // namespace KornumPython
