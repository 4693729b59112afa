#ifndef FRAGSMITH_INPLACE_OUR_FACTS_H_
#define FRAGSMITH_INPLACE_OUR_FACTS_H_

#include "inplace/file_reading.h"

namespace fragsmith {

/// Adds what our reading rules give of the file, and what plainly stands there.
/// Where a load takes more than the value along, and tells so, the two are one.
void AddOurFacts(BotFile kind, FileReading& reading);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_OUR_FACTS_H_
