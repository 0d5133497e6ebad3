/// @file
/// The runtime package as a whole: its identity and version.
#pragma once

#include <kornum/KornumExport.h>
#include <string>

/// The package module: what identifies the runtime package kornum_stats_rt as a whole.
KORNUM_EXPORT_BEGIN
namespace KornumPackage {

/// The version of the runtime package, "MAJOR.MINOR.PATCH" (the project version the library
/// was built with, for example "0.1.0"); `KornumDescStats::TKorDescStats::Version` shows it.
std::string Version();

}  // namespace KornumPackage
KORNUM_EXPORT_END
