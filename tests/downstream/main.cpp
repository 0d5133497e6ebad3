// Builds against the installed headers and libraries and checks a few results.
#include <kornum/kornum.h>

#include <cstdio>

int main() {
    using namespace Kornumglobals;
    TKorFloatVector v{1, 2, 3};
    TKorFloatVector shared = v;
    shared[0] = 5;
    const bool ok = v[0] == 5 && Kornummath::SameFloat(Kornummath::Gamma(5), 24.0L) &&
                    Kornumconvert::Str2Float(" 2.5 ") == 2.5L &&
                    Kornum_RS_Math::rsVectorIsEmpty.Text() == "The vector is empty";
    std::printf("downstream: kornum %s %s\n", KornumPackage::Version().c_str(), ok ? "ok" : "FAILED");
    return ok ? 0 : 1;
}
