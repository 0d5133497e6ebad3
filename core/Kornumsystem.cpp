#include <kornum/Kornumsystem.h>

#include <cstring>

namespace Kornumsystem {

void KorClear(void* P, Cardinal Size) {
    if (Size != 0) std::memset(P, 0, Size);
}

}  // namespace Kornumsystem
