#include "PlotOutput.h"

#include "Options.h"
#include "Output.h"

#include <kornum/KornumCanvas.h>

#include <cstdio>

namespace KornumCli {

std::string ImagePath(const std::string& path, const std::string& option) {
    if (!KornumCanvas::FormatOfPath(path))
        throw UsageError(option + " takes a file ending in .svg, .png or .pdf: " + Quoted(path));
    return path;
}

int WritePlot(const std::string& command, const std::string& path, const std::function<KornumPlot::TKorPlot()>& build) {
    try {
        KornumPlot::TKorPlot plot = build();
        KornumPlot::SavePlot(plot, path);
    } catch (const KornumCanvas::EWriteError& error) {
        std::fprintf(stderr, "kornum %s: cannot write %s: %s\n", command.c_str(), Quoted(error.Path()).c_str(),
                     error.Reason().c_str());
        return 1;
    } catch (const Platform::Exception& error) {
        std::fprintf(stderr, "kornum %s: %s\n", command.c_str(), error.what());
        return 2;
    }
    return 0;
}

}  // namespace KornumCli
