#ifndef FRAGSMITH_TESTS_SESSION_PLAIN_FACTS_H_
#define FRAGSMITH_TESTS_SESSION_PLAIN_FACTS_H_

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

// What plainly stands in a bot's files, taken apart without any help of the
// readers that are tested: words, keys, lines and comments.

namespace fragsmith {

struct PlainFact {
  int level = 0;  ///< Of a characteristic file.
  std::string key;
  std::string value;
  std::size_t line = 0;
};

namespace plain {

struct Word {
  std::string text;
  std::size_t line = 0;
  bool begins_line = false;
};

/// The file without comments, which come as facts of their own. The header
/// that every file of ours has is none.
inline std::string WithoutComments(std::string_view bytes,
                                   std::vector<PlainFact>& facts) {
  constexpr std::size_t kHeaderLines = 7;
  const bool has_header = bytes.find("//\tMade with") < 1000;
  std::string code;
  std::string comment;
  std::size_t line = 1;
  enum { kCode, kText, kLine, kBlock } state = kCode;
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const char letter = bytes[at];
    const std::string_view pair = bytes.substr(at, 2);
    const bool is_comment = state == kLine || state == kBlock;
    const bool ends = (state == kLine && letter == '\n') ||
                      (state == kBlock && (pair == "*/" || letter == '\n'));
    if (ends) {
      const bool says_something =
          std::any_of(comment.begin(), comment.end(),
                      [](unsigned char c) { return std::isalnum(c) != 0; });
      if (says_something && !(has_header && line <= kHeaderLines)) {
        facts.push_back({0, "comment", comment, line});
      }
      comment.clear();
    }
    if (letter == '\n') ++line;
    if (ends && (state == kLine || pair == "*/")) {
      if (state == kBlock) ++at;
      state = kCode;
      code += state == kLine || letter == '\n' ? '\n' : ' ';
    } else if (is_comment) {
      if (letter == '\n') code += letter;
      comment += letter;
    } else if (state == kCode && (pair == "//" || pair == "/*")) {
      state = pair == "//" ? kLine : kBlock;
      ++at;
    } else {
      if (letter == '"') state = state == kText ? kCode : kText;
      if (letter == '\n') state = kCode;
      code += letter;
    }
  }
  if (code.starts_with("\xEF\xBB\xBF")) code.erase(0, 3);
  return code;
}

/// Words between blanks; texts with their quotes, and each of the signs, are
/// words of their own.
inline std::vector<Word> Words(std::string_view code, std::string_view signs) {
  std::vector<Word> words;
  std::size_t line = 1;
  bool begins = true;
  for (std::size_t at = 0; at < code.size();) {
    const char letter = code[at];
    if (static_cast<unsigned char>(letter) <= ' ') {
      if (letter == '\n') {
        ++line;
        begins = true;
      }
      ++at;
      continue;
    }
    std::size_t end = at + 1;
    if (letter == '"') {
      end = std::min(code.find_first_of("\"\n", end), code.size() - 1) + 1;
    } else if (signs.find(letter) == std::string_view::npos) {
      while (end < code.size() && static_cast<unsigned char>(code[end]) > ' ' &&
             signs.find(code[end]) == std::string_view::npos) {
        ++end;
      }
    }
    words.push_back({std::string(code.substr(at, end - at)), line, begins});
    begins = false;
    at = end;
  }
  return words;
}

/// Numbers by what they are worth, all else as it is written.
inline std::string Worth(const std::string& text) {
  const char* const start = text.c_str();
  char* end = nullptr;
  const double number = std::strtod(start, &end);
  if (text.empty() || *end != '\0') return text;
  char shown[64];
  std::snprintf(shown, sizeof(shown), "%.17g", number);
  return shown;
}

inline std::string Lower(std::string text) {
  for (char& letter : text) {
    letter =
        static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  }
  return text;
}

/// Takes the words of the line at the place, as one text.
inline std::string TakeLine(const std::vector<Word>& words, std::size_t& at) {
  const std::size_t line = words[at].line;
  std::string text;
  for (; at < words.size() && words[at].line == line; ++at) {
    text += words[at].text;
  }
  return text;
}

inline bool IsCharacterWord(const std::string& word) {
  return word == "{" || word == "}" || word == "skill" || word[0] == '#' ||
         word.starts_with("CHARACTERISTIC_");
}

}  // namespace plain

inline std::vector<PlainFact> CharacterFacts(std::string_view bytes) {
  std::vector<PlainFact> facts;
  const auto words = plain::Words(plain::WithoutComments(bytes, facts), "{}");
  int level = 0;
  for (std::size_t at = 0; at < words.size();) {
    const plain::Word& word = words[at];
    if (word.begins_line && word.text[0] == '#') {
      facts.push_back({0, "#", plain::TakeLine(words, at), word.line});
      continue;
    }
    ++at;
    if (word.text == "{" || word.text == "}") continue;
    std::string value;
    if (at < words.size() && !plain::IsCharacterWord(words[at].text)) {
      value = words[at++].text;
    }
    if (word.text == "skill") {
      level = std::atoi(value.c_str());
      continue;
    }
    const bool is_path = value.find("bots/") != std::string::npos;
    facts.push_back({level, word.text,
                     is_path ? plain::Lower(value) : plain::Worth(value),
                     word.line});
  }
  return facts;
}

inline std::vector<PlainFact> WeightFacts(std::string_view bytes) {
  std::vector<PlainFact> facts;
  const auto words = plain::Words(plain::WithoutComments(bytes, facts), "#");
  for (std::size_t at = 0; at < words.size();) {
    const std::size_t line = words[at].line;
    const bool is_macro = at + 2 < words.size() && words[at].text == "#" &&
                          words[at + 1].text == "define";
    if (!is_macro) {
      facts.push_back({0, "#", plain::TakeLine(words, at), line});
      continue;
    }
    const std::string name = words[at + 2].text;
    at += 3;
    std::string value;
    if (at < words.size() && words[at].line == line) {
      value = plain::TakeLine(words, at);
    }
    facts.push_back({0, name, plain::Worth(value), line});
  }
  return facts;
}

/// A pair belongs to the bot whose block it stands in.
inline std::vector<PlainFact> DescriptionFacts(std::string_view bytes) {
  std::vector<PlainFact> facts;
  const auto words = plain::Words(plain::WithoutComments(bytes, facts), "");
  for (std::size_t at = 0; at < words.size();) {
    const plain::Word& word = words[at++];
    if (word.text == "{" || word.text == "}") continue;
    std::string value;
    if (at < words.size() && words[at].line == word.line) {
      value = plain::Lower(words[at++].text);
    }
    std::erase(value, '"');
    if (value.ends_with("/default")) value.resize(value.size() - 8);
    facts.push_back({0, plain::Lower(word.text), value, word.line});
  }
  return facts;
}

/// Chat lines by their type, without blanks between and empty texts.
inline std::vector<PlainFact> ChatFacts(std::string_view bytes) {
  std::vector<PlainFact> facts;
  const auto words = plain::Words(plain::WithoutComments(bytes, facts), "{},;");
  std::string type;
  std::string line;
  std::size_t first = 0;
  const auto end_line = [&] {
    for (const std::string empty : {",\"\"", "\"\","}) {
      while (line.find(empty) != std::string::npos) {
        line.erase(line.find(empty), empty.size());
      }
    }
    if (!line.empty()) facts.push_back({0, type, line, first});
    line.clear();
  };
  for (std::size_t at = 0; at < words.size();) {
    const plain::Word& word = words[at];
    if (word.begins_line && word.text[0] == '#') {
      facts.push_back({0, "#", plain::TakeLine(words, at), word.line});
      continue;
    }
    ++at;
    const bool has_name = at < words.size() && words[at].text[0] == '"';
    if (word.text == "chat" && has_name) {
      facts.push_back({0, "chat", words[at++].text, word.line});
    } else if (word.text == "type" && has_name) {
      end_line();
      type = "type " + words[at++].text;
    } else if (word.text == ";" || word.text == "{" || word.text == "}") {
      if (word.text == ";" && line.empty()) line = ";";
      end_line();
    } else {
      if (line.empty()) first = word.line;
      line += word.text;
    }
  }
  return facts;
}

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_SESSION_PLAIN_FACTS_H_
