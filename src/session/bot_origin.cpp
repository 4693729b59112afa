#include "session/bot_origin.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

#include "session/identity_rules.h"

namespace fragsmith {

namespace {

// FNV-1a: std::hash need not be the same in another run.
constexpr std::uint64_t kBasis = 14695981039346656037U;

std::uint64_t Mixed(std::uint64_t hash, char byte) {
  constexpr std::uint64_t kPrime = 1099511628211U;
  return (hash ^ static_cast<unsigned char>(byte)) * kPrime;
}

std::uint64_t Mixed(std::uint64_t hash, std::string_view bytes) {
  for (const char byte : bytes) hash = Mixed(hash, byte);
  return hash;
}

}  // namespace

std::uint64_t FingerprintOf(std::string_view bytes) {
  return Mixed(kBasis, bytes);
}

std::vector<std::uint64_t> FingerprintsOf(
    const std::vector<std::string_view>& files) {
  std::vector<std::size_t> by_length(files.size());
  std::iota(by_length.begin(), by_length.end(), 0);
  std::ranges::sort(by_length, {},
                    [&files](std::size_t file) { return files[file].size(); });
  std::vector<std::uint64_t> hashes(files.size(), kBasis);
  // Each step waits for the one before it, but not for that of another file.
  std::size_t place = files.size() % 2;
  if (place == 1) hashes[by_length[0]] = FingerprintOf(files[by_length[0]]);
  for (; place < by_length.size(); place += 2) {
    const std::string_view shorter = files[by_length[place]];
    const std::string_view longer = files[by_length[place + 1]];
    std::uint64_t first = kBasis;
    std::uint64_t second = kBasis;
    for (std::size_t at = 0; at < shorter.size(); ++at) {
      first = Mixed(first, shorter[at]);
      second = Mixed(second, longer[at]);
    }
    hashes[by_length[place]] = first;
    hashes[by_length[place + 1]] = Mixed(second, longer.substr(shorter.size()));
  }
  return hashes;
}

bool StandsAsRead(const Bot& bot, ParameterId id, const OddValue& value) {
  return bot.Parameter(id) == value.read ||
         (id == kFunNameField &&
          bot.Text(id) == FunNameForFile(ToText(value.read)));
}

bool HasOddValues(const Bot& bot, const LoadReport& report) {
  return std::any_of(report.odd_values.begin(), report.odd_values.end(),
                     [&bot](const auto& entry) {
                       const auto& [parameter, value] = entry;
                       return value.read != value.plain &&
                              StandsAsRead(bot, parameter, value);
                     });
}

}  // namespace fragsmith
