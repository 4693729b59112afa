#ifndef _WIN32

#include <cstdlib>
#include <ctime>

#include "support/system/time_zone.h"

namespace fragsmith {

void PrepareTimeZone() {
  // Before there is a second thread that could read the environment.
  ::setenv("TZ", ":/etc/localtime", 0);  // NOLINT(concurrency-mt-unsafe)
  ::tzset();
}

}  // namespace fragsmith

#endif  // _WIN32
