#include "fuzz/oracle.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>

namespace fragsmith {
namespace {

/// The text around a place, so that control characters can be seen.
std::string Around(std::string_view text, std::size_t place) {
  constexpr std::size_t kReach = 60;
  const std::size_t first = place - std::min(place, kReach);
  std::string shown;
  for (const char letter : text.substr(first, 2 * kReach)) {
    if (letter >= ' ' && letter <= '~') {
      shown += letter;
    } else {
      shown += '<' + std::to_string(static_cast<unsigned char>(letter)) + '>';
    }
  }
  return shown;
}

}  // namespace

void Expect(bool holds, std::string_view message) {
  if (holds) return;
  std::cerr << "Broken expectation: " << message << std::endl;
  std::abort();
}

void ExpectEqual(std::string_view wanted, std::string_view got,
                 std::string_view message) {
  if (wanted == got) return;
  const auto parted =
      std::mismatch(wanted.begin(), wanted.end(), got.begin(), got.end());
  const auto place = static_cast<std::size_t>(parted.first - wanted.begin());
  Expect(false, std::string(message) + "\nfrom byte " + std::to_string(place) +
                    "\nwanted: " + Around(wanted, place) +
                    "\ngot:    " + Around(got, place));
}

void ExpectShowable(std::string_view text) {
  // A note may name some dozens of keys.
  constexpr std::size_t kMax = 2000;
  Expect(text.size() <= kMax, "a text for the user has a bearable length");
  // The library throws on anything that is no valid UTF-8.
  (void)nlohmann::json(text).dump();
}

void ExpectShowable(const Notes& notes) {
  for (const Note& note : notes.list()) ExpectShowable(Describe(note));
}

}  // namespace fragsmith

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  fragsmith::FuzzOne({reinterpret_cast<const char*>(data), size});
  return 0;
}
