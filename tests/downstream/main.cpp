// Builds against the installed headers and libraries and checks a few results from
// each layer: storage, base services, vectors, matrices, statistics and the component.
#include <kornum/kornum.h>

#include <cstdio>

int main() {
    using namespace Kornumglobals;
    TKorFloatVector v{4, 1, 3, 2};
    TKorFloatVector shared = v;
    shared[0] = 5;
    KornumVector::QSortVector(v, true);

    KornumDescStats::TKorDescStats stats(nullptr);
    stats.SetValues(v);

    TKorFloatMatrix m = KornumMatrix::CreateFloatIdentityMatrix(2);
    m[0][1] = 3;

    const bool ok = v[3] == 5 && KornumVector::SumVector(v) == 11 &&
                    Kornummath::SameFloat(Kornummath::Gamma(5), 24.0L) &&
                    Kornumconvert::Str2Float(" 2.5 ") == 2.5L &&
                    KornumStatistics::GetMedian(v) == 2.5L && stats.Mean() == 2.75L &&
                    stats.DescStats()->Count() == 16 && KornumMatrix::MatrixDeterminant(m) == 1 &&
                    Kornum_RS_Math::rsVectorIsEmpty.Text() == "The vector is empty";
    std::printf("downstream: kornum %s %s\n", KornumPackage::Version().c_str(), ok ? "ok" : "FAILED");
    return ok ? 0 : 1;
}
