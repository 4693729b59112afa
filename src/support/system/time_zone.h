#ifndef FRAGSMITH_SUPPORT_SYSTEM_TIME_ZONE_H_
#define FRAGSMITH_SUPPORT_SYSTEM_TIME_ZONE_H_

namespace fragsmith {

/// To be called at the start of a program that opens packages. The zip library
/// asks for the local time of every entry, and the C library of some systems
/// reads the time zone anew each time unless one is named.
void PrepareTimeZone();

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_SYSTEM_TIME_ZONE_H_
