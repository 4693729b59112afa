#ifdef _WIN32

#include "support/system/time_zone.h"

namespace fragsmith {

void PrepareTimeZone() {}

}  // namespace fragsmith

#endif  // _WIN32
