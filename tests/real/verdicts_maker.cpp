// verdicts_maker CASES BOTFILES FOLDER: writes the bots of engine_cases.tsv
// into FOLDER/DEFAULT/NUMBER, a home for a game each, and prints a line for
// each case with what we make of it, given the game's own BOTFILES: folder,
// bot, verdicts of the table, ours, title.

#include <cstdio>
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
constexpr int kMostInHome = 100;

std::optional<std::string> ReadWhole(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file || !fs::is_regular_file(path)) return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

void Write(const fs::path& path, const std::string& bytes) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace

int main(int count, char** arguments) {
  using namespace fragsmith;
  if (count != 4) {
    std::cerr << "usage: verdicts_maker CASES BOTFILES FOLDER\n";
    return 2;
  }
  const fs::path botfiles = arguments[2];
  const IncludeLookup game = [&](std::string_view path) {
    return ReadWhole(botfiles / ToLower(path));
  };
  std::map<std::string, int> numbers;
  for (const EngineCase& one : ReadEngineCases(arguments[1])) {
    const int number = numbers[one.fallback]++;
    const std::string home =
        one.fallback + "/" + std::to_string(number / kMostInHome);
    const std::string digits = std::to_string(1000 + number % kMostInHome);
    const std::string name = "e" + digits.substr(1);
    std::map<std::string, std::string> files;
    if (!MakeEngineCase(one, name, files)) {
      std::cerr << "nothing to change: " << one.title << '\n';
      return 1;
    }
    const fs::path folder = fs::path(arguments[3]) / home;
    for (const auto& [part, bytes] : files) {
      Write(part == "bot"
                ? folder / "scripts" / (name + ".bot")
                : folder / "botfiles/bots" / (name + "_" + part + ".c"),
            bytes);
    }
    for (const auto& [other, bytes] : FallbackFiles(one.fallback)) {
      Write(folder / "botfiles/bots" / other, bytes);
    }
    std::cout << home << '\t' << name << '\t' << one.verdicts << '\t'
              << VerdictLetters(FileSetOf(files, name), one.fallback, game)
              << '\t' << one.part << ": " << one.title << '\n';
  }
  return 0;
}
