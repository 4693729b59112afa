#ifndef FRAGSMITH_CHECKS_FILE_FINDINGS_H_
#define FRAGSMITH_CHECKS_FILE_FINDINGS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "checks/finding.h"

namespace fragsmith {

/// What reading files brings to light, each thing once and not without end:
/// the game reads a file several times, and so do we.
class FileFindings {
 public:
  static constexpr std::size_t kMost = 200;

  void Add(std::string_view id, Severity severity, const std::string& file,
           int line, std::string text);

  /// Errors from this place in the list on did no harm after all.
  void Soften(std::size_t first);

  const std::vector<Finding>& list() const { return list_; }

 private:
  std::vector<Finding> list_;
};

/// A piece of a file, quoted for a sentence: UTF-8, of bearable length.
std::string Quoted(std::string_view game_text);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_FILE_FINDINGS_H_
