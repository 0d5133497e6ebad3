#include "DistCommand.h"

#include "Options.h"
#include "Output.h"
#include "Parameters.h"
#include "PlotOutput.h"
#include "frontend/DistributionFamilies.h"
#include "frontend/DistributionPlot.h"

#include <kornum/KornumStatistics.h>
#include <kornum/PlatformExceptions.h>

#include <cmath>
#include <limits>

namespace KornumCli {
namespace {

using namespace KornumStatistics;
using Kornumglobals::Cardinal;

struct DistSettings {
    int decimals = -1;
    std::string output;  // the picture of plot
    bool cdf = false, log = false;
};

CommandTable DistTable(DistSettings& s) {
    return {
        "dist",
        "Usage: kornum dist FAMILY less|greater|pdf|inv|isf VALUE PARAMETERS... [--decimals N]\n"
        "       kornum dist FAMILY table XLO XHI N PARAMETERS... [--decimals N]\n"
        "       kornum dist FAMILY plot XLO XHI PARAMETERS... -o FILE [--cdf] [--log]",
        "less and greater are P(X <= VALUE) and P(X > VALUE), each computed directly, so that\n"
        "small tails on either side keep their digits; pdf is the density (or the probability\n"
        "of VALUE for the discrete families); inv is the x with P(X <= x) = P, and isf the x\n"
        "with P(X > x) = Q, computed from the upper tail (for the discrete families the\n"
        "smallest k with P(X <= k) >= P, or with P(X > k) <= Q). table prints N\n"
        "equally spaced points from XLO to XHI and the density at each, two columns; for the\n"
        "discrete families it prints k and P(X = k) for the whole k from XLO to XHI (N is\n"
        "ignored). Results carry every digit a long double needs to read back the same.\n"
        "plot draws the density over [XLO, XHI] from the family's table (for the discrete\n"
        "families the probabilities of the counts in it, as bars; XHI at most 100000), or\n"
        "with --cdf P(X <= x), into an SVG, PNG or PDF; --log gives a logarithmic value\n"
        "axis, on which far tails show.\n"
        "\n"
        "Families and their parameters:\n"
        "  normal MEAN SD          lognormal MEAN SD (of ln X)\n"
        "  chisq DF                t DF\n"
        "  f N1 N2                 beta A B [LO HI]\n"
        "  exponential LAMBDA      binomial N P       poisson MU\n"
        "Degrees of freedom and trials are whole numbers; a discrete VALUE is a whole k >= 0.\n",
        {
            DecimalsOption(s.decimals),
            {"--output", "-o", "FILE", "plot: the image to write; its extension chooses SVG,\nPNG or PDF",
             [&s](const std::string& v) { s.output = ImagePath(v, "-o"); }},
            {"--cdf", "", "", "plot: the distribution function instead of the density",
             [&s](const std::string&) { s.cdf = true; }},
            {"--log", "", "", "plot: a logarithmic value axis", [&s](const std::string&) { s.log = true; }},
        },
        ""};
}

using namespace KornumFrontend;

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

// Streams the table: a line at a time, in constant memory, each point as the library's
// tables place it.
void WriteTable(Output& out, const Family& family, const std::vector<std::string>& operands, const Values& p,
                int decimals) {
    if (family.discrete) {
        const Int64 most = std::numeric_limits<Cardinal>::max();
        const Int64 first = WholeNumber(operands[2], "XLO", 0, most), last = WholeNumber(operands[3], "XHI", 0, most);
        WholeNumber(operands[4], "N", 0, std::numeric_limits<Int64>::max());
        CheckTable(family, 0, 1, p);
        const Int64 end = family.parameters[0].kind == Kind::Trials ? std::min(last, Int64(p[0])) : last;
        for (Int64 k = first; k <= end; ++k)
            out.Write(std::to_string(k) + '\t' + NumberText(family.pdf(Float(k), p), decimals) + '\n');
        return;
    }
    const Float lo = FiniteNumber(operands[2], "XLO"), hi = FiniteNumber(operands[3], "XHI");
    const Int64 n = WholeNumber(operands[4], "N", 2, std::numeric_limits<Integer>::max());
    CheckTable(family, lo, hi, p);
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
    const bool table = function == "table", plot = function == "plot";
    const bool inverse = function == "inv" || function == "isf";
    if (!table && !plot && !inverse && function != "less" && function != "greater" && function != "pdf")
        throw UsageError("unknown function " + Quoted(function) + " (less, greater, pdf, inv, isf, table or plot)");
    if (plot && s.output.empty()) throw UsageError("plot needs -o FILE");
    const std::size_t leading = 2 + (table ? 3 : plot ? 2 : 1), most = family.parameters.size();
    const std::size_t given = operands.size() < leading ? 0 : operands.size() - leading;
    if (operands.size() < leading || given > most || given < most - family.optional ||
        (given < most && given != most - family.optional)) {
        std::string names, counts = std::to_string(most - family.optional);
        for (const Parameter& parameter : family.parameters) names += (names.empty() ? "" : ", ") + std::string(parameter.name);
        if (family.optional > 0) counts += " or " + std::to_string(most);
        throw UsageError("'" + operands[0] + " " + function + "' takes " + (table ? "XLO XHI N" : plot ? "XLO XHI" : "a value") + " and " +
                         counts + " parameter" + (most == 1 ? "" : "s") + " (" + names + ")");
    }
    const Function& routine = function == "less"    ? family.less
                              : function == "greater" ? family.greater
                              : function == "pdf"     ? family.pdf
                              : function == "inv"     ? family.inv
                                                      : family.isf;
    Values p;
    for (std::size_t i = 0; i < given; ++i) p.push_back(ReadParameter(operands[leading + i], family.parameters[i]));
    if (plot) {
        const Float lo = FiniteNumber(operands[2], "XLO"), hi = FiniteNumber(operands[3], "XHI");
        if (!(lo < hi)) throw UsageError("XLO must be less than XHI");
        return WritePlot("dist", s.output, [&] { return DistributionPlot(family, p, lo, hi, s.cdf, s.log); });
    }
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
