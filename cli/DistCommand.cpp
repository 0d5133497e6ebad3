#include "DistCommand.h"

#include "CommandOptions.h"

#include <kornum/KornumStatistics.h>
#include <kornum/Kornumconvert.h>
#include <kornum/PlatformExceptions.h>

#include <charconv>
#include <cstdio>
#include <functional>
#include <map>
#include <optional>

namespace KornumCli {
namespace {

using namespace KornumStatistics;
using Kornumglobals::Cardinal;

constexpr const char* Usage =
    "Usage: kornum dist FAMILY less|greater|pdf|inv VALUE PARAMETERS...\n"
    "       kornum dist FAMILY table XLO XHI N PARAMETERS...\n"
    "\n"
    "less and greater are P(X < VALUE) and P(X > VALUE), each computed directly (small\n"
    "upper tails keep their digits); pdf is the density (or the probability of VALUE for\n"
    "the discrete families); inv is the VALUE with P(X < VALUE) = P. table prints N\n"
    "equally spaced points from XLO to XHI and the density at each, two columns; for the\n"
    "discrete families it prints k and P(X = k) for k from XLO to XHI (N is ignored).\n"
    "Results carry every digit a long double needs to read back the same.\n"
    "\n"
    "Families and their parameters:\n"
    "  normal MEAN SD          lognormal MEAN SD (of ln X)\n"
    "  chisq DF                t DF\n"
    "  f N1 N2                 beta A B [LO HI]\n"
    "  exponential LAMBDA      binomial N P       poisson MU\n";

int Error(const std::string& message) { return UsageError("dist", message); }

std::string Text(Float x) {
    char text[64];
    return std::string(text, std::to_chars(text, text + sizeof text, x).ptr);
}

using Parameters = std::vector<Float>;
// One family: how many parameters (min and max), its functions of (value, parameters),
// and its table.
struct Family {
    std::size_t least, most;
    std::function<Float(Float, const Parameters&)> less, greater, pdf, inv;
    std::function<void(Float, Float, Integer, const Parameters&, TKorFloatVector&, TKorFloatVector&)> table;
    bool discrete = false;
};

Integer Whole(Float x) { return Integer(x); }
// The beta family's optional bounds, [0, 1] when not given.
Float Lo(const Parameters& p) { return p.size() > 2 ? p[2] : 0; }
Float Hi(const Parameters& p) { return p.size() > 2 ? p[3] : 1; }
Cardinal Count(Float x) { return Cardinal(x); }

const std::map<std::string, Family>& Families() {
    using P = const Parameters&;
    static const std::map<std::string, Family> families{
        {"normal",
         {2, 2, [](Float x, P p) { return NormalDistLess(p[0], p[1], x); },
          [](Float x, P p) { return NormalDistGreater(p[0], p[1], x); }, [](Float x, P p) { return NormalPDF(x, p[0], p[1]); },
          [](Float q, P p) { return InvNormalDistLess(p[0], p[1], q); },
          [](Float lo, Float hi, Integer n, P p, TKorFloatVector& X, TKorFloatVector& Y) { NormalPDFValues(lo, hi, n, p[0], p[1], X, Y); }}},
        {"lognormal",
         {2, 2, [](Float x, P p) { return LogNormalLess(p[0], p[1], x); },
          [](Float x, P p) { return LogNormalGreater(p[0], p[1], x); }, [](Float x, P p) { return LogNormalPDF(x, p[0], p[1]); },
          [](Float q, P p) { return InvLogNormalLess(p[0], p[1], q); },
          [](Float lo, Float hi, Integer n, P p, TKorFloatVector& X, TKorFloatVector& Y) { LogNormalPDFValues(lo, hi, n, p[0], p[1], X, Y); }}},
        {"chisq",
         {1, 1, [](Float x, P p) { return ChiSquareLess(x, Whole(p[0])); },
          [](Float x, P p) { return ChiSquareGreater(x, Whole(p[0])); }, [](Float x, P p) { return ChiSquarePDF(x, Whole(p[0])); },
          [](Float q, P p) { return InvChiSquareLess(q, Whole(p[0])); },
          [](Float lo, Float hi, Integer n, P p, TKorFloatVector& X, TKorFloatVector& Y) { ChiSquarePDFValues(lo, hi, n, Whole(p[0]), X, Y); }}},
        {"t",
         {1, 1, [](Float x, P p) { return StudentTLess(x, Whole(p[0])); },
          [](Float x, P p) { return StudentTGreater(x, Whole(p[0])); }, [](Float x, P p) { return StudentTPDF(x, Whole(p[0])); },
          [](Float q, P p) { return InvStudentTLess(q, Whole(p[0])); },
          [](Float lo, Float hi, Integer n, P p, TKorFloatVector& X, TKorFloatVector& Y) { StudentTPDFValues(lo, hi, n, Whole(p[0]), X, Y); }}},
        {"f",
         {2, 2, [](Float x, P p) { return FDistLess(x, Whole(p[0]), Whole(p[1])); },
          [](Float x, P p) { return FDistGreater(x, Whole(p[0]), Whole(p[1])); },
          [](Float x, P p) { return FDistPDF(x, Whole(p[0]), Whole(p[1])); },
          [](Float q, P p) { return InvFDistLess(q, Whole(p[0]), Whole(p[1])); },
          [](Float lo, Float hi, Integer n, P p, TKorFloatVector& X, TKorFloatVector& Y) { FDistPDFValues(lo, hi, n, Whole(p[0]), Whole(p[1]), X, Y); }}},
        {"beta",
         {2, 4, [](Float x, P p) { return BetaDistLess(x, p[0], p[1], Lo(p), Hi(p)); },
          [](Float x, P p) { return BetaDistGreater(x, p[0], p[1], Lo(p), Hi(p)); },
          [](Float x, P p) { return BetaPDF(x, p[0], p[1], Lo(p), Hi(p)); },
          [](Float q, P p) { return InvBetaDistLess(q, p[0], p[1], Lo(p), Hi(p)); },
          [](Float lo, Float hi, Integer n, P p, TKorFloatVector& X, TKorFloatVector& Y) {
              BetaPDFValues(lo, hi, n, p[0], p[1], Lo(p), Hi(p), X, Y);
          }}},
        {"exponential",
         {1, 1, [](Float x, P p) { return ExponentialLess(x, p[0]); }, [](Float x, P p) { return ExponentialGreater(x, p[0]); },
          [](Float x, P p) { return ExponentialPDF(x, p[0]); }, nullptr,
          [](Float lo, Float hi, Integer n, P p, TKorFloatVector& X, TKorFloatVector& Y) { ExponentialPDFValues(lo, hi, n, p[0], X, Y); }}},
        {"binomial",
         {2, 2, [](Float x, P p) { return BinomialLess(p[1], Count(p[0]), Count(x)); },
          [](Float x, P p) { return BinomialGreater(p[1], Count(p[0]), Count(x)); },
          [](Float x, P p) { return BinomialEq(p[1], Count(p[0]), Count(x)); }, nullptr,
          [](Float, Float, Integer, P p, TKorFloatVector& X, TKorFloatVector& Y) { BinomialPDFValues(Count(p[0]), p[1], X, Y); }, true}},
        {"poisson",
         {1, 1, [](Float x, P p) { return PoissonLess(p[0], Count(x)); }, [](Float x, P p) { return PoissonGreater(p[0], Count(x)); },
          [](Float x, P p) { return PoissonEq(p[0], Count(x)); }, nullptr,
          [](Float, Float hi, Integer, P p, TKorFloatVector& X, TKorFloatVector& Y) { PoissonPDFValues(p[0], Count(hi), X, Y); }, true}},
    };
    return families;
}

std::optional<Float> Number(const std::string& text) {
    try {
        return Kornumconvert::Str2Float(text);
    } catch (const Platform::Exception&) {
        return std::nullopt;
    }
}

}  // namespace

int RunDist(const std::vector<std::string>& arguments) {
    if (!arguments.empty() && arguments[0] == "--help") {
        std::fputs(Usage, stdout);
        return 0;
    }
    if (arguments.size() < 2) return Error("a family and a function are needed");
    const auto found = Families().find(arguments[0]);
    if (found == Families().end()) return Error("unknown family '" + arguments[0] + "'");
    const Family& family = found->second;
    const std::string& function = arguments[1];
    const bool table = function == "table";
    if (!table && function != "less" && function != "greater" && function != "pdf" && function != "inv")
        return Error("unknown function '" + function + "' (less, greater, pdf, inv or table)");
    const std::size_t leading = table ? 3 : 1;
    std::vector<Float> numbers;
    for (std::size_t i = 2; i < arguments.size(); ++i) {
        const std::optional<Float> x = Number(arguments[i]);
        if (!x) return Error("'" + arguments[i] + "' is not a number");
        numbers.push_back(*x);
    }
    if (numbers.size() < leading + family.least || numbers.size() > leading + family.most)
        return Error("'" + arguments[0] + " " + function + "' takes " + (table ? "XLO XHI N and " : "a value and ") +
                     std::to_string(family.least) + (family.most > family.least ? " or " + std::to_string(family.most) : "") +
                     " parameters");
    const Parameters parameters(numbers.begin() + std::ptrdiff_t(leading), numbers.end());
    try {
        if (table) {
            TKorFloatVector X, Y;
            family.table(numbers[0], numbers[1], Integer(numbers[2]), parameters, X, Y);
            std::string out;
            for (Integer i = 0; i < X.Length(); ++i) {
                if (family.discrete && (X[i] < numbers[0] || X[i] > numbers[1])) continue;
                out += Text(X[i]) + '\t' + Text(Y[i]) + '\n';
            }
            std::fputs(out.c_str(), stdout);
            return 0;
        }
        const auto& routine = function == "less" ? family.less : function == "greater" ? family.greater
                              : function == "pdf"  ? family.pdf : family.inv;
        if (!routine) return Error("'" + arguments[0] + "' has no inverse here");
        std::printf("%s\n", Text(routine(numbers[0], parameters)).c_str());
    } catch (const Platform::Exception& error) {
        std::fprintf(stderr, "kornum dist: %s\n", error.what());
        return 2;
    }
    return 0;
}

}  // namespace KornumCli
