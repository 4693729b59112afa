#ifdef _WIN32

#include "install/time_zone.h"

namespace fragsmith {

void PrepareTimeZone() {}

}  // namespace fragsmith

#endif  // _WIN32
