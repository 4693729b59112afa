// verdicts_maker CASES DATA FOLDER: puts the bots of engine_cases.tsv into
// FOLDER/HOME/NUMBER each, given DATA with the game's own botfiles and scripts,
// and prints a line for each case with what we make of it: home, number, what
// the game adds the bot by, verdicts of the table, ours, message of the table,
// the bot's own name, title. Cases of one home go into one game.

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <string>

#include "support/text.h"
#include "tests/checks/engine_cases.h"

namespace {

namespace fs = std::filesystem;

/// The game reads no more than 1022 bytes of names of description files.
constexpr int kMaxInHome = 90;

std::optional<std::string> ReadWhole(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file || !fs::is_regular_file(path)) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

}  // namespace

int main(int count, char** arguments) {
  using namespace fragsmith;
  if (count != 4) {
    std::cerr << "usage: verdicts_maker CASES DATA FOLDER\n";
    return 2;
  }
  const fs::path data = arguments[2];
  const IncludeLookup game = [&](std::string_view path) {
    return ReadWhole(data / "botfiles" / ToLower(path));
  };
  const std::string bots = ReadWhole(data / "scripts/bots.txt").value_or("");
  std::map<std::string, int> numbers;
  int alone = 0;
  for (const EngineCase& one : ReadEngineCases(arguments[1])) {
    const int number = numbers[one.fallback]++;
    std::string home = ReplaceAll(one.fallback, ",", "-");
    home += one.Is("alone") ? "-" + std::to_string(++alone)
                            : std::to_string(number / kMaxInHome);
    const std::string digits = std::to_string(1000 + number % kMaxInHome);
    const std::string name = "e" + digits.substr(1);
    std::map<std::string, std::string> files;
    if (!MakeEngineCase(one, name, files)) {
      std::cerr << "nothing to change: " << one.title << '\n';
      return 1;
    }
    const fs::path folder = fs::path(arguments[3]) / home / digits;
    PutEngineCase(one, name, files, folder);
    for (const auto& [other, bytes] : FallbackFiles(one.Fallback())) {
      const fs::path place =
          fs::path(arguments[3]) / home / "game/botfiles/bots" / other;
      fs::create_directories(place.parent_path());
      std::ofstream(place, std::ios::binary) << bytes;
    }
    const CheckedCase checked = OpenEngineCase(one, name, folder, game, bots);
    std::cout << home << '\t' << digits << '\t' << NameToAdd(checked.set)
              << '\t' << one.verdicts << '\t'
              << VerdictLetters(checked.set, checked.look_up) << '\t'
              << one.message << '\t' << name << '\t' << one.part << ": "
              << one.title << " (" << one.fallback << ")\n";
  }
  return 0;
}
