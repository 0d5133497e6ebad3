#include "frontend/ReportText.h"

#include "frontend/NumberText.h"

namespace KornumFrontend {

std::string ShortestReportText(const std::vector<KornumDescStats::TKorReportEntry>& entries) {
    std::string text;
    for (const auto& entry : entries) {
        text += entry.Caption;
        if (entry.Value) text += '\t' + NumberText(*entry.Value, entry.Integral ? 0 : -1);
        text += '\n';
    }
    return text;
}

}  // namespace KornumFrontend
