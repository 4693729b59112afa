#ifndef FRAGSMITH_SESSION_JSON_FORMAT_H_
#define FRAGSMITH_SESSION_JSON_FORMAT_H_

// What the readers of our JSON formats share: parsing within bounds, the
// version that a value says, and the steps that bring an old one up to date.
// For those readers alone: all others see a value of the program's own.

#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {

/// The key of the version. It is written first.
inline constexpr const char* kFormatKey = "format";

/// The first fault ends the reading, from however deep; ReadJson catches it.
struct JsonFault {
  Error error;
};

/// Ends the reading with "Field FIELD: REASON".
[[noreturn]] void RefuseField(const std::string& field,
                              const std::string& reason,
                              const std::string& advice = {});

/// Changes a value of one version into one of the next. Neither has the key
/// of the version.
struct Migration {
  std::uint64_t from;
  void (*Apply)(nlohmann::json& value);
};

/// The version that the last step leads to: the one that is written. A value
/// without a version is one of version 0, from before there were any.
constexpr std::uint64_t FormatBehind(std::span<const Migration> steps) {
  return steps.size();
}

/// True when the steps begin with version 0 and leave none out.
constexpr bool HasNoGap(std::span<const Migration> steps) {
  std::uint64_t version = 0;
  for (const Migration& step : steps) {
    if (step.from != version++) return false;
  }
  return true;
}

/// What becomes of the keys that a reader does not know.
struct UnknownKeys {
  bool are_slips;  ///< They are errors; else they are noted and left out.
  std::string file;
  Notes& notes;

  void Meet(const std::string& field, const std::string& reason) const;
  /// Meets the keys of an object that are none of the known ones.
  void MeetOthers(const nlohmann::json& json,
                  const std::vector<std::string_view>& known,
                  const std::string& path) const;
};

/// Takes the version out of an object and brings the rest up to date, one
/// step after the other. A newer version is noted; its unknown keys are no
/// slips then.
void BringUpToDate(nlohmann::json& value, std::span<const Migration> steps,
                   UnknownKeys& unknown);

/// The object in the text; throws what ReadJson catches. What is nested too
/// deeply is a fault, or, for a reader that asks whether there was any, left
/// out.
nlohmann::json ParseObject(std::string_view text, bool* was_cut = nullptr);

/// The error of an exception of the JSON library.
Error ErrorOf(const nlohmann::json::exception& exception);

/// What the function makes of the object in the text, or the first fault, with
/// the name of the file.
template <typename Function>
auto ReadJson(std::string_view text, const std::string& file, Function function,
              bool* was_cut = nullptr)
    -> Result<decltype(function(nlohmann::json()))> {
  Error error;
  try {
    return function(ParseObject(text, was_cut));
  } catch (const JsonFault& fault) {
    error = fault.error;
  } catch (const nlohmann::json::exception& exception) {
    error = ErrorOf(exception);
  }
  error.file = file;
  return Failure(std::move(error));
}

}  // namespace fragsmith

#endif  // FRAGSMITH_SESSION_JSON_FORMAT_H_
