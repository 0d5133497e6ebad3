// The pictures of the kornum program: the checked image path of an option, and writing a
// plot with the program's messages and exit statuses.
#pragma once

#include <kornum/KornumPlot.h>

#include <functional>
#include <string>

namespace KornumCli {

// Path, when it ends in .svg, .png or .pdf; otherwise a UsageError naming Option.
std::string ImagePath(const std::string& path, const std::string& option);

// Builds the plot and writes it to Path: 0 when written; 1, with "kornum COMMAND: cannot
// write 'PATH': REASON", when the file cannot be written (none is left behind); 2, with
// the reason, when the plot cannot be made from its arguments.
int WritePlot(const std::string& command, const std::string& path, const std::function<KornumPlot::TKorPlot()>& build);

}  // namespace KornumCli
