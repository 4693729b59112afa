#ifndef FRAGSMITH_BOTFILES_READ_REPORT_H_
#define FRAGSMITH_BOTFILES_READ_REPORT_H_

#include <map>

#include "model/value.h"
#include "support/notes.h"

namespace fragsmith {

/// What reading one bot file tells beside the values that it stored.
struct ReadReport {
  Notes notes;

  /// By bot parameter: the value that plainly stands behind the key, as the
  /// game takes it, wherever the reading rules took another one.
  std::map<int, Value> plain_values;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_READ_REPORT_H_
