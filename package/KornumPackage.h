// The runtime package as a whole: its identity and version.
#pragma once

#include <string>

namespace KornumPackage {

// "MAJOR.MINOR.PATCH" of the installed runtime package.
std::string Version();

}  // namespace KornumPackage
