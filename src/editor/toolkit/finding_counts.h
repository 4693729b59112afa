#ifndef FRAGSMITH_EDITOR_TOOLKIT_FINDING_COUNTS_H_
#define FRAGSMITH_EDITOR_TOOLKIT_FINDING_COUNTS_H_

#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "checks/finding.h"

namespace fragsmith {

/// How many findings there are of each severity.
class FindingCounts {
 public:
  explicit FindingCounts(const std::vector<Finding>& findings = {});

  /// Nothing where there are none.
  std::optional<Severity> Worst() const;
  /// "2 errors, 1 hint"; "Nothing to tell" for none.
  QString Text() const;
  /// The same of the worst alone.
  QString WorstText() const;

  /// Greater for graver findings and for more of them; 0 for none.
  qlonglong Gravity() const;

 private:
  std::array<int, 3> counts_ = {};  ///< By severity, the gravest first.
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_FINDING_COUNTS_H_
