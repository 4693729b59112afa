#include "session/bot_origin.h"

#include <algorithm>

namespace fragsmith {

std::uint64_t FingerprintOf(std::string_view bytes) {
  // FNV-1a: std::hash need not be the same in another run.
  constexpr std::uint64_t kBasis = 14695981039346656037U;
  constexpr std::uint64_t kPrime = 1099511628211U;
  std::uint64_t hash = kBasis;
  for (const char byte : bytes) {
    hash ^= static_cast<unsigned char>(byte);
    hash *= kPrime;
  }
  return hash;
}

bool HasOddValues(const Bot& bot, const LoadReport& report) {
  return std::any_of(report.odd_values.begin(), report.odd_values.end(),
                     [&bot](const auto& entry) {
                       const auto& [parameter, value] = entry;
                       return value.read != value.plain &&
                              bot.Parameter(parameter) == value.read;
                     });
}

}  // namespace fragsmith
