#include "Arrays.hpp"

#include "Errors.hpp"

#include <cstring>
#include <limits>
#include <string>

namespace KornumPython {

namespace {

// NumPy's own reading of the value, to learn what it holds before any cast: a cast would
// turn None into NaN and strings into numbers without a word.
py::array AsArray(py::handle value, const char* name) {
    if (value.is_none() || py::isinstance<py::str>(value) || py::isinstance<py::bytes>(value))
        ArgumentError(PyExc_TypeError, name, "must be a number or an array-like of numbers, not " +
                                        std::string(py::str(py::type::handle_of(value).attr("__name__"))));
    try {
        return py::module_::import("numpy").attr("asarray")(value);
    } catch (py::error_already_set& error) {
        ArgumentError(PyExc_ValueError, name, "is not a rectangular array of numbers: " + std::string(py::str(error.value())));
    }
}

}  // namespace

FloatArray ToFloats(py::handle value, const char* name) {
    if (FloatArray::check_(value)) {
        auto array = py::reinterpret_borrow<py::array>(value);
        if (array.flags() & py::array::c_style) return py::reinterpret_borrow<FloatArray>(value);
    }
    const py::array array = AsArray(value, name);
    const char kind = array.dtype().kind();
    if (kind != 'f' && kind != 'i' && kind != 'u' && kind != 'b')
        ArgumentError(PyExc_TypeError, name,
             "must hold real numbers, not values of dtype " + std::string(py::str(array.dtype())));
    return FloatArray::ensure(array);
}

FloatArray ToFloatVector(py::handle value, const char* name) {
    FloatArray array = ToFloats(value, name);
    if (array.ndim() != 1) ArgumentError(PyExc_ValueError, name, "must be one-dimensional, not of shape " + ShapeText(array));
    return array;
}

FloatArray ToVectorArgument(py::handle value, const char* name) {
    FloatArray array = ToFloatVector(value, name);
    if (array.size() > std::numeric_limits<Kornumglobals::Integer>::max())
        ArgumentError(PyExc_ValueError, name, "has more than 2147483647 elements");
    return array;
}

TKorFloatVector PackVector(const FloatArray& array) {
    TKorFloatVector v;
    v.SetLength(Kornumglobals::Integer(array.size()));
    // The 10 bytes of each value, copied as bytes: the same as storing the Float, without
    // the x87 load and store.
    const Float* data = array.data();
    Kornumglobals::PackedFloat* out = v.data();
    for (Kornumglobals::Integer i = 0; i < v.Length(); ++i) std::memcpy(out[i].Bytes, &data[i], sizeof out[i].Bytes);
    return v;
}

TKorFloatVector ToVector(py::handle value, const char* name) { return PackVector(ToVectorArgument(value, name)); }

TKorFloatMatrix ToMatrix(py::handle value, const char* name) {
    const FloatArray array = ToFloats(value, name);
    if (array.ndim() != 2) ArgumentError(PyExc_ValueError, name, "must be two-dimensional, not of shape " + ShapeText(array));
    const auto rows = array.shape(0), cols = array.shape(1);
    if (rows > std::numeric_limits<Kornumglobals::Integer>::max() || cols > std::numeric_limits<Kornumglobals::Integer>::max())
        ArgumentError(PyExc_ValueError, name, "is too large for a matrix");
    TKorFloatMatrix m;
    m.SetLength(Kornumglobals::Integer(rows));
    const Float* data = array.data();
    for (py::ssize_t r = 0; r < rows; ++r) {
        m[r].SetLength(Kornumglobals::Integer(cols));
        for (py::ssize_t c = 0; c < cols; ++c) m[r][c] = data[r * cols + c];
    }
    return m;
}

py::object Scalar(Float x) { return py::cast(py::make_scalar(x)); }

py::array_t<Float> FromVector(const TKorFloatVector& v) {
    py::array_t<Float> result(v.Length());
    Float* out = result.mutable_data();
    for (Kornumglobals::Integer i = 0; i < v.Length(); ++i) out[i] = v[i];
    return result;
}

py::array_t<Float> FromMatrix(const TKorFloatMatrix& m) {
    const py::ssize_t rows = m.Length(), cols = rows == 0 ? 0 : m[0].Length();
    py::array_t<Float> result({rows, cols});
    Float* out = result.mutable_data();
    for (py::ssize_t r = 0; r < rows; ++r)
        for (py::ssize_t c = 0; c < cols; ++c) out[r * cols + c] = c < m[r].Length() ? Float(m[r][c]) : Float(0);
    return result;
}

bool LoadReal(py::handle source, Float& value) {
    if (source.is_none() || py::isinstance<py::str>(source) || py::isinstance<py::bytes>(source)) return false;
    try {
        const py::array array = py::module_::import("numpy").attr("asarray")(source);
        const char kind = array.dtype().kind();
        if (array.ndim() != 0 || (kind != 'f' && kind != 'i' && kind != 'u' && kind != 'b')) return false;
        value = *FloatArray::ensure(array).data();
        return true;
    } catch (py::error_already_set&) {
        return false;
    }
}

std::string ShapeText(const py::array& a) {
    std::string text = "(";
    for (py::ssize_t d = 0; d < a.ndim(); ++d) text += (d ? ", " : "") + std::to_string(a.shape(d));
    return text + (a.ndim() == 1 ? ",)" : ")");
}

}  // namespace KornumPython
