// The runtime package as a whole: its identity and version.
#pragma once

#include <kornum/KornumExport.h>
#include <string>

namespace KORNUM_API KornumPackage {

// "MAJOR.MINOR.PATCH" of the installed runtime package.
std::string Version();

}  // namespace KornumPackage
