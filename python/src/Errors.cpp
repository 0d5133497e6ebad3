#include "Errors.hpp"

#include <kornum/PlatformExceptions.h>

namespace KornumPython {

namespace py = pybind11;

void RegisterErrors(py::module_& m) {
    // Kept for the life of the process: the translator may run until the interpreter ends.
    static auto& mathError = *new py::exception<Platform::Exception>(m, "MathError", PyExc_ArithmeticError);
    mathError.attr("id") = py::none();
    mathError.attr("__module__") = "kornum";
    mathError.attr("__doc__") =
        "A failure of the library: the message is the library's text, ``id`` the name of its\n"
        "message identifier (None for a composed message).\n\n"
        ">>> import kornum\n"
        ">>> try:\n"
        "...     kornum.stats.mean([])\n"
        "... except kornum.MathError as error:\n"
        "...     print(error.id)\n"
        "rsVectorIsEmpty\n";
    py::register_exception_translator([](std::exception_ptr thrown) {
        try {
            if (thrown) std::rethrow_exception(thrown);
        } catch (const Platform::Exception& error) {
            const Platform::ResourceString* resource = error.Resource();
            py::object instance = py::reinterpret_borrow<py::object>(mathError)(py::str(error.Message()));
            instance.attr("id") = resource ? py::object(py::str(resource->Name)) : py::object(py::none());
            PyErr_SetObject(mathError.ptr(), instance.ptr());
        }
    });
}

void ArgumentError(PyObject* type, const char* name, const std::string& what) {
    PyErr_SetString(type, (std::string(name) + " " + what).c_str());
    throw py::error_already_set();
}

}  // namespace KornumPython
