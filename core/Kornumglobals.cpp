#include <kornum/Kornumglobals.h>

namespace Kornumglobals {

Float KorTolerance = KorDefaultTolerance;
std::string KorNullStr;

}  // namespace Kornumglobals
