#ifndef FRAGSMITH_CHECKS_FILE_DESCRIPTION_H_
#define FRAGSMITH_CHECKS_FILE_DESCRIPTION_H_

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "checks/game_preprocessor.h"

namespace fragsmith {

/// One { ... } of a description file: what the game keeps of it.
struct DescriptionSet {
  struct Value {
    std::string text;
    int line = 0;
  };
  std::map<std::string, Value, std::less<>> values;  ///< Keys in lower case.
  int line = 0;                                      ///< Of its {.

  /// Empty when the key is missing or was thrown away.
  std::string_view Text(std::string_view key) const;
  int Line(std::string_view key) const;
};

/// What the game writes for a key without a value.
inline constexpr std::string_view kNoDescriptionValue = "<NULL>";

std::vector<DescriptionSet> ReadGameDescription(const GameFile& file,
                                                FileFindings& findings);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_FILE_DESCRIPTION_H_
