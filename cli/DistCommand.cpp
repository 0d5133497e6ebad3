#include "DistCommand.h"

#include "Options.h"
#include "Output.h"
#include "Parameters.h"

#include <kornum/KornumStatistics.h>
#include <kornum/PlatformExceptions.h>

#include <cmath>
#include <functional>
#include <limits>
#include <map>

namespace KornumCli {
namespace {

using namespace KornumStatistics;
using Kornumglobals::Cardinal;

struct DistSettings {
    int decimals = -1;
};

CommandTable DistTable(DistSettings& s) {
    return {
        "dist",
        "Usage: kornum dist FAMILY less|greater|pdf|inv|isf VALUE PARAMETERS... [--decimals N]\n"
        "       kornum dist FAMILY table XLO XHI N PARAMETERS... [--decimals N]",
        "less and greater are P(X <= VALUE) and P(X > VALUE), each computed directly, so that\n"
        "small tails on either side keep their digits; pdf is the density (or the probability\n"
        "of VALUE for the discrete families); inv is the x with P(X <= x) = P, and isf the x\n"
        "with P(X > x) = Q, computed from the upper tail (for the discrete families the\n"
        "smallest k with P(X <= k) >= P, or with P(X > k) <= Q). table prints N\n"
        "equally spaced points from XLO to XHI and the density at each, two columns; for the\n"
        "discrete families it prints k and P(X = k) for the whole k from XLO to XHI (N is\n"
        "ignored). Results carry every digit a long double needs to read back the same.\n"
        "\n"
        "Families and their parameters:\n"
        "  normal MEAN SD          lognormal MEAN SD (of ln X)\n"
        "  chisq DF                t DF\n"
        "  f N1 N2                 beta A B [LO HI]\n"
        "  exponential LAMBDA      binomial N P       poisson MU\n"
        "Degrees of freedom and trials are whole numbers; a discrete VALUE is a whole k >= 0.\n",
        {
            DecimalsOption(s.decimals),
        },
        ""};
}

// How a parameter is read and checked, and the name a message gives it.
enum class Kind { Real, Positive, Degrees, Trials, Probability };
struct Parameter {
    const char* name;
    Kind kind;
};

Float ReadParameter(const std::string& text, const Parameter& p) {
    switch (p.kind) {
        case Kind::Real: return FiniteNumber(text, p.name);
        case Kind::Positive: return PositiveNumber(text, p.name);
        case Kind::Degrees: return Float(WholeNumber(text, p.name, 1, std::numeric_limits<Integer>::max()));
        case Kind::Trials: return Float(WholeNumber(text, p.name, 0, std::numeric_limits<Cardinal>::max()));
        case Kind::Probability: return Probability(text, p.name);
    }
    return 0;
}

using Values = std::vector<Float>;
using Function = std::function<Float(Float, const Values&)>;

// One family: its parameters (the last `optional` of them may be left out together), its
// functions of (value, parameters) and the check of its density table.
struct Family {
    std::vector<Parameter> parameters;
    std::size_t optional;
    bool discrete;
    Function less, greater, pdf, inv, isf;
    std::function<void(Float, Float, const Values&)> checkTable;
};

Integer Whole(Float x) { return Integer(x); }
Cardinal Count(Float x) { return Cardinal(x); }
Float Lo(const Values& p) { return p.size() > 2 ? p[2] : 0; }  // the beta's bounds, [0, 1] by default
Float Hi(const Values& p) { return p.size() > 2 ? p[3] : 1; }

// The density table's own checks, on a two-point table: the command streams the points.
template <class Table>
std::function<void(Float, Float, const Values&)> TableCheck(Table table) {
    return [table](Float lo, Float hi, const Values& p) {
        TKorFloatVector X, Y;
        table(lo, hi, p, X, Y);
    };
}

const std::map<std::string, Family>& Families() {
    using P = const Values&;
    using V = TKorFloatVector&;
    const Parameter mean{"mean", Kind::Real}, sd{"standard deviation", Kind::Positive},
        df{"degrees of freedom", Kind::Degrees};
    static const std::map<std::string, Family> families{
        {"normal",
         {{mean, sd}, 0, false, [](Float x, P p) { return NormalDistLower(p[0], p[1], x); },
          [](Float x, P p) { return NormalDistUpper(p[0], p[1], x); },
          [](Float x, P p) { return NormalPDF(x, p[0], p[1]); },
          [](Float q, P p) { return InvNormalDistLess(p[0], p[1], q); },
          // By symmetry, from the lower inverse of the small Q itself.
          [](Float q, P p) { return p[0] - p[1] * InvNormalLess(q); },
          TableCheck([](Float lo, Float hi, P p, V X, V Y) { NormalPDFValues(lo, hi, 2, p[0], p[1], X, Y); })}},
        {"lognormal",
         {{mean, sd}, 0, false, [](Float x, P p) { return LogNormalLower(p[0], p[1], x); },
          [](Float x, P p) { return LogNormalUpper(p[0], p[1], x); },
          [](Float x, P p) { return LogNormalPDF(x, p[0], p[1]); },
          [](Float q, P p) { return InvLogNormalLess(p[0], p[1], q); },
          [](Float q, P p) { return std::exp(p[0] - p[1] * InvNormalLess(q)); },
          TableCheck([](Float lo, Float hi, P p, V X, V Y) { LogNormalPDFValues(lo, hi, 2, p[0], p[1], X, Y); })}},
        {"chisq",
         {{df}, 0, false, [](Float x, P p) { return ChiSquareLess(x, Whole(p[0])); },
          [](Float x, P p) { return ChiSquareGreater(x, Whole(p[0])); },
          [](Float x, P p) { return ChiSquarePDF(x, Whole(p[0])); },
          [](Float q, P p) { return InvChiSquareLess(q, Whole(p[0])); },
          [](Float q, P p) { return InvChiSquareGreater(q, Whole(p[0])); },
          TableCheck([](Float lo, Float hi, P p, V X, V Y) { ChiSquarePDFValues(lo, hi, 2, Whole(p[0]), X, Y); })}},
        {"t",
         {{df}, 0, false, [](Float x, P p) { return StudentTLess(x, Whole(p[0])); },
          [](Float x, P p) { return StudentTGreater(x, Whole(p[0])); },
          [](Float x, P p) { return StudentTPDF(x, Whole(p[0])); },
          [](Float q, P p) { return InvStudentTLess(q, Whole(p[0])); },
          [](Float q, P p) { return InvStudentTGreater(q, Whole(p[0])); },
          TableCheck([](Float lo, Float hi, P p, V X, V Y) { StudentTPDFValues(lo, hi, 2, Whole(p[0]), X, Y); })}},
        {"f",
         {{{"numerator degrees of freedom", Kind::Degrees}, {"denominator degrees of freedom", Kind::Degrees}},
          0, false, [](Float x, P p) { return FDistLess(x, Whole(p[0]), Whole(p[1])); },
          [](Float x, P p) { return FDistGreater(x, Whole(p[0]), Whole(p[1])); },
          [](Float x, P p) { return FDistPDF(x, Whole(p[0]), Whole(p[1])); },
          [](Float q, P p) { return InvFDistLess(q, Whole(p[0]), Whole(p[1])); },
          [](Float q, P p) { return InvFDistGreater(q, Whole(p[0]), Whole(p[1])); },
          TableCheck([](Float lo, Float hi, P p, V X, V Y) { FDistPDFValues(lo, hi, 2, Whole(p[0]), Whole(p[1]), X, Y); })}},
        {"beta",
         {{{"shape A", Kind::Positive}, {"shape B", Kind::Positive}, {"lower bound", Kind::Real},
           {"upper bound", Kind::Real}},
          2, false, [](Float x, P p) { return BetaDistLess(x, p[0], p[1], Lo(p), Hi(p)); },
          [](Float x, P p) { return BetaDistGreater(x, p[0], p[1], Lo(p), Hi(p)); },
          [](Float x, P p) { return BetaPDF(x, p[0], p[1], Lo(p), Hi(p)); },
          [](Float q, P p) { return InvBetaDistLess(q, p[0], p[1], Lo(p), Hi(p)); },
          [](Float q, P p) { return InvBetaDistGreater(q, p[0], p[1], Lo(p), Hi(p)); },
          TableCheck([](Float lo, Float hi, P p, V X, V Y) { BetaPDFValues(lo, hi, 2, p[0], p[1], Lo(p), Hi(p), X, Y); })}},
        {"exponential",
         {{{"rate", Kind::Positive}}, 0, false, [](Float x, P p) { return ExponentialLess(x, p[0]); },
          [](Float x, P p) { return ExponentialGreater(x, p[0]); }, [](Float x, P p) { return ExponentialPDF(x, p[0]); },
          [](Float q, P p) { return InvExponentialLess(q, p[0]); },
          [](Float q, P p) { return InvExponentialGreater(q, p[0]); },
          TableCheck([](Float lo, Float hi, P p, V X, V Y) { ExponentialPDFValues(lo, hi, 2, p[0], X, Y); })}},
        {"binomial",
         {{{"trials", Kind::Trials}, {"probability", Kind::Probability}}, 0, true,
          [](Float k, P p) { return BinomialLower(p[1], Count(p[0]), Count(k)); },
          [](Float k, P p) { return BinomialUpper(p[1], Count(p[0]), Count(k)); },
          [](Float k, P p) { return BinomialEq(p[1], Count(p[0]), Count(k)); },
          [](Float a, P p) { return Float(InvBinomialLess(p[1], Count(p[0]), a)); },
          [](Float a, P p) { return Float(InvBinomialGreater(p[1], Count(p[0]), a)); },
          [](Float, Float, P p) { BinomialEq(p[1], Count(p[0]), 0); }}},
        {"poisson",
         {{{"mean", Kind::Positive}}, 0, true, [](Float k, P p) { return PoissonLower(p[0], Count(k)); },
          [](Float k, P p) { return PoissonUpper(p[0], Count(k)); },
          [](Float k, P p) { return PoissonEq(p[0], Count(k)); },
          [](Float a, P p) { return Float(InvPoissonLess(p[0], a)); },
          [](Float a, P p) { return Float(InvPoissonGreater(p[0], a)); },
          [](Float, Float, P p) { PoissonEq(p[0], 0); }}},
    };
    return families;
}

// Streams the table: a line at a time, in constant memory, each point as the library's
// tables place it.
void WriteTable(Output& out, const Family& family, const std::vector<std::string>& operands, const Values& p,
                int decimals) {
    if (family.discrete) {
        const Int64 most = std::numeric_limits<Cardinal>::max();
        const Int64 first = WholeNumber(operands[2], "XLO", 0, most), last = WholeNumber(operands[3], "XHI", 0, most);
        WholeNumber(operands[4], "N", 0, std::numeric_limits<Int64>::max());
        family.checkTable(0, 1, p);
        const Int64 end = family.parameters[0].kind == Kind::Trials ? std::min(last, Int64(p[0])) : last;
        for (Int64 k = first; k <= end; ++k)
            out.Write(std::to_string(k) + '\t' + NumberText(family.pdf(Float(k), p), decimals) + '\n');
        return;
    }
    const Float lo = FiniteNumber(operands[2], "XLO"), hi = FiniteNumber(operands[3], "XHI");
    const Int64 n = WholeNumber(operands[4], "N", 2, std::numeric_limits<Integer>::max());
    family.checkTable(lo, hi, p);
    for (Int64 i = 0; i < n; ++i) {
        const Float x = i == n - 1 ? hi : lo + (hi - lo) * Float(i) / Float(n - 1);
        out.Write(NumberText(x, decimals) + '\t' + NumberText(family.pdf(x, p), decimals) + '\n');
    }
}

int Run(const DistSettings& s, const std::vector<std::string>& operands, Output& out) {
    if (operands.size() < 2) throw UsageError("a family and a function are needed");
    const auto found = Families().find(operands[0]);
    if (found == Families().end()) throw UsageError("unknown family " + Quoted(operands[0]));
    const Family& family = found->second;
    const std::string& function = operands[1];
    const bool table = function == "table";
    const bool inverse = function == "inv" || function == "isf";
    if (!table && !inverse && function != "less" && function != "greater" && function != "pdf")
        throw UsageError("unknown function " + Quoted(function) + " (less, greater, pdf, inv, isf or table)");
    const std::size_t leading = 2 + (table ? 3 : 1), most = family.parameters.size();
    const std::size_t given = operands.size() < leading ? 0 : operands.size() - leading;
    if (operands.size() < leading || given > most || given < most - family.optional ||
        (given < most && given != most - family.optional)) {
        std::string names, counts = std::to_string(most - family.optional);
        for (const Parameter& parameter : family.parameters) names += (names.empty() ? "" : ", ") + std::string(parameter.name);
        if (family.optional > 0) counts += " or " + std::to_string(most);
        throw UsageError("'" + operands[0] + " " + function + "' takes " + (table ? "XLO XHI N" : "a value") + " and " +
                         counts + " parameter" + (most == 1 ? "" : "s") + " (" + names + ")");
    }
    const Function& routine = function == "less"    ? family.less
                              : function == "greater" ? family.greater
                              : function == "pdf"     ? family.pdf
                              : function == "inv"     ? family.inv
                                                      : family.isf;
    Values p;
    for (std::size_t i = 0; i < given; ++i) p.push_back(ReadParameter(operands[leading + i], family.parameters[i]));
    try {
        if (table) {
            WriteTable(out, family, operands, p, s.decimals);
        } else {
            const std::string& text = operands[2];
            const Float x = function == "inv" ? Probability(text, "P")
                            : function == "isf" ? Probability(text, "Q")
                            : family.discrete ? Float(WholeNumber(text, "k", 0, std::numeric_limits<Cardinal>::max()))
                                              : AnyNumber(text, "VALUE");
            out.Write(NumberText(routine(x, p), s.decimals) + "\n");
        }
    } catch (const Platform::Exception& error) {
        std::fprintf(stderr, "kornum dist: %s\n", error.what());
        return 2;
    }
    return 0;
}

}  // namespace

int RunDist(const std::vector<std::string>& arguments, Output& out) {
    DistSettings settings;
    return RunCommand(DistTable(settings), arguments, out,
                      [&](const std::vector<std::string>& operands) { return Run(settings, operands, out); });
}

}  // namespace KornumCli
