#include <kornum/KornumPackage.h>

namespace KornumPackage {

std::string Version() { return KORNUM_VERSION; }

}  // namespace KornumPackage
