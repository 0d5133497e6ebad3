// kornum.linalg's engine: determinant, inverse, rank, row echelon form and product of
// 2-D array-likes in Floats.
#include "Bindings.hpp"

#include "Arrays.hpp"

#include <kornum/KornumMatrix.h>

namespace KornumPython {

void BindLinalg(py::module_& m) {
    using namespace KornumMatrix;
    m.def("det", [](py::handle a) {
        TKorFloatMatrix work = ToMatrix(a, "a");
        return Result(MatrixDeterminant(work));
    });
    // The inverse, or None for a singular matrix (the package raises LinAlgError).
    m.def("inv", [](py::handle a) -> py::object {
        TKorFloatMatrix work = ToMatrix(a, "a"), inverse;
        if (!MatrixInverse(work, inverse)) return py::none();
        return FromMatrix(inverse);
    });
    m.def("rank", [](py::handle a) {
        TKorFloatMatrix work = ToMatrix(a, "a");
        Kornumglobals::LongWord rank = 0;
        RowEchelonFormRank(work, rank);
        return rank;
    });
    m.def("echelon", [](py::handle a) {
        TKorFloatMatrix work = ToMatrix(a, "a");
        RowEchelonForm(work);
        return FromMatrix(work);
    });
    m.def("matmul", [](py::handle a, py::handle b) { return FromMatrix(MultiplyMatrices(ToMatrix(a, "a"), ToMatrix(b, "b"))); });
}

}  // namespace KornumPython
