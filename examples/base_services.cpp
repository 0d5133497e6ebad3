// A tour of the base services: special functions, tolerant comparisons, currency and
// text conversions, and the failure convention.
#include <kornum/kornum.h>

#include <iostream>

int main() {
    using namespace Kornumglobals;
    using Kornumconvert::Float2EStr;

    std::cout << "kornum " << KornumPackage::Version() << "\n\n";

    std::cout << "Gamma(5)                   = " << Float2EStr(Kornummath::Gamma(5), 18) << '\n'
              << "Gamma(0.5)^2               = "
              << Float2EStr(Kornummath::Gamma(0.5L) * Kornummath::Gamma(0.5L), 18) << '\n'
              << "LnGamma(100)               = " << Float2EStr(Kornummath::LnGamma(100), 15) << '\n'
              << "Beta(2, 3)                 = " << Float2EStr(Kornummath::Beta(2, 3), 18) << '\n'
              << "IncompleteBeta(0.5, 2, 3)  = "
              << Float2EStr(Kornummath::IncompleteBeta(0.5L, 2, 3), 18) << '\n'
              << "InverseIncompleteBeta(0.6875, 2, 3) = "
              << Float2EStr(Kornummath::InverseIncompleteBeta(0.6875L, 2, 3), 18) << '\n'
              << "XtoY(-2, 3)                = " << Float2EStr(Kornummath::XtoY(-2, 3), 0) << "\n\n";

    std::cout << "SameFloat(0.1 + 0.2, 0.3)  = " << std::boolalpha
              << Kornummath::SameFloat(0.1 + 0.2, 0.3) << '\n'
              << "FloatIsZero(1e-16)         = " << Kornummath::FloatIsZero(1e-16L) << "\n\n";

    const KorCurrency price = Kornumfinancials::Float2KorCurrency(19.995L);
    std::cout << "19.995 in hundredths       = " << price << '\n'
              << "as Currency (raw)          = "
              << Kornumfinancials::KorCurrency2Currency(price).Raw << "\n\n";

    try {
        Kornumconvert::Str2Float("12,5");
    } catch (const Platform::Exception& error) {
        std::cout << "Str2Float(\"12,5\") raised: " << error.Message() << '\n';
    }
    return 0;
}
