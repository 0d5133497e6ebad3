// Array-likes in and out of the extension: every argument becomes C-contiguous Floats
// (np.longdouble) once, and results go back as np.longdouble arrays and scalars.
#pragma once

#include <kornum/Kornumglobals.h>

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

namespace KornumPython {

namespace py = pybind11;
using Kornumglobals::Float;
using Kornumglobals::TKorFloatMatrix;
using Kornumglobals::TKorFloatVector;

using FloatArray = py::array_t<Float, py::array::c_style | py::array::forcecast>;

// `value` as an array of Floats of any shape: the array itself when it is a C-contiguous
// np.longdouble array already (no copy), else one conversion. A value that does not hold
// real numbers (strings, objects, complex numbers, None) raises TypeError naming `name`;
// a ragged nesting raises ValueError naming it.
FloatArray ToFloats(py::handle value, const char* name);

// The same for an argument that must be one-dimensional (ValueError naming it otherwise).
FloatArray ToFloatVector(py::handle value, const char* name);

// A 1-D argument that fits the library's vector (at most 2^31 - 1 elements), and its
// copy into the library's storage; PackVector reads no Python object, so that it runs
// without the interpreter lock.
FloatArray ToVectorArgument(py::handle value, const char* name);
TKorFloatVector PackVector(const FloatArray& array);

// The library's own vector and matrix of a 1-D or 2-D argument (a copy into their
// storage).
TKorFloatVector ToVector(py::handle value, const char* name);
TKorFloatMatrix ToMatrix(py::handle value, const char* name);

// Results as np.longdouble: a Float, a pair of them as a tuple.
py::object Scalar(Float x);
inline py::object Result(Float x) { return Scalar(x); }
inline py::object Result(const std::pair<Float, Float>& p) { return py::make_tuple(Scalar(p.first), Scalar(p.second)); }
inline py::object Result(py::object x) { return x; }
py::array_t<Float> FromVector(const TKorFloatVector& v);
py::array_t<Float> FromMatrix(const TKorFloatMatrix& m);

// A shape for messages: "(2, 3)".
std::string ShapeText(const py::array& a);

// A real number argument that keeps all 64 bits of an np.longdouble (pybind11's own
// long double argument goes through a double).
struct Real {
    Float value;
    operator Float() const { return value; }
};

// The value of a Python int or float, a NumPy real scalar or a 0-d array; false for
// anything else.
bool LoadReal(py::handle source, Float& value);

}  // namespace KornumPython

namespace pybind11::detail {

template <>
struct type_caster<KornumPython::Real> {
    PYBIND11_TYPE_CASTER(KornumPython::Real, const_name("float"));
    bool load(handle source, bool) { return KornumPython::LoadReal(source, value.value); }
    static handle cast(KornumPython::Real real, return_value_policy, handle) {
        return KornumPython::Scalar(real.value).release();
    }
};

}  // namespace pybind11::detail
