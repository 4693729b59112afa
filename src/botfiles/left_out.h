#ifndef FRAGSMITH_BOTFILES_LEFT_OUT_H_
#define FRAGSMITH_BOTFILES_LEFT_OUT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "support/notes.h"

namespace fragsmith {

/// Names in a sentence, of many only the first: "A, B and 3 more".
class NameList {
 public:
  /// Each name counts once.
  void Add(std::string name);

  bool empty() const { return names_.empty(); }
  std::string Text() const;

 private:
  static constexpr std::size_t kMax = 40;
  static constexpr std::size_t kMaxLength = 1500;

  std::vector<std::string> names_;
  std::size_t length_ = 0;
  std::size_t left_out_ = 0;
};

/// The note on what a bot has no place for: the first line of it, how many
/// things it is and which.
Note AlsoInFile(const std::string& file, std::size_t line, std::size_t count,
                const std::string& what);

/// What a reader passes over and a save of the bot does not write again. Each
/// kind is told once for a file, with its first line.
class LeftOut {
 public:
  /// The second are the files that a save includes.
  explicit LeftOut(std::string file, std::vector<std::string> includes = {});

  const std::string& file() const { return file_; }

  void AddComment(std::size_t line);
  /// A key or macro that the bot does not have, by its name.
  void AddName(std::string_view name, std::size_t line);
  /// Anything else, as it stands in the file.
  void AddText(std::string_view text, std::size_t line);

  /// An #include directive as it stands in the file.
  void AddInclude(std::string_view directive, std::size_t line);

  void Tell(Notes& notes) const;

  /// Those that the file did not include.
  const std::vector<std::string>& missing_includes() const {
    return missing_includes_;
  }

 private:
  struct Kind {
    std::size_t count = 0;
    std::size_t first_line = 0;
  };

  struct Lines {
    std::size_t first;
    std::size_t last;
  };

  static void Count(Kind& kind, std::size_t line);
  /// The first of the texts, and the lines of all.
  std::string Texts() const;

  std::string file_;
  std::vector<std::string> includes_;
  std::vector<std::string> missing_includes_;
  Kind comments_;
  Kind others_;
  NameList names_;
  std::vector<Lines> texts_;
  std::string first_text_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_LEFT_OUT_H_
