#include "botfiles/header_comment.h"

#include <array>
#include <optional>

#include "botfiles/game_text.h"
#include "support/program_version.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kHomepage = "https://fragsmith.example";
constexpr std::string_view kContact = "fragsmith@example.org";
constexpr std::size_t kRuleLength = 75;

constexpr std::string_view kMadeWith = "//\tMade with vexlor's Fragsmith v. ";

constexpr std::size_t kLineCount = 7;
using HeaderLines = std::array<std::string_view, kLineCount>;

/// The header at the top of the file; nothing when it is none of ours.
std::optional<HeaderLines> HeaderOf(std::string_view bytes) {
  HeaderLines header;
  LineReader lines(WithoutByteOrderMark(bytes));
  for (std::string_view& line : header) {
    const std::optional<std::string_view> next = lines.Next();
    if (!next || !next->starts_with("//")) return std::nullopt;
    line = *next;
  }
  constexpr std::size_t kMadeWithLine = 4;
  if (!header[kMadeWithLine].starts_with(kMadeWith)) return std::nullopt;
  return header;
}

}  // namespace

std::size_t HeaderLineCount(std::string_view bytes) {
  return HeaderOf(bytes) ? kLineCount : 0;
}

bool HeaderSaysMore(std::string_view bytes) {
  const std::optional<HeaderLines> header = HeaderOf(bytes);
  constexpr std::size_t kNameLine = 1;
  constexpr std::size_t kCommentLine = 3;
  return header && (!(*header)[kNameLine].ends_with("\tversion 0.0") ||
                    (*header)[kCommentLine] != "//");
}

std::string AuthorLine(std::string_view bytes) {
  const std::optional<HeaderLines> header = HeaderOf(bytes);
  constexpr std::size_t kAuthorLine = 2;
  return header ? std::string((*header)[kAuthorLine].substr(2)) : std::string();
}

std::string AuthorLine(const Author& author) {
  if (author.name.empty()) return {};
  std::string by = "\tBy: " + author.name;
  if (!author.email.empty()) by += ", " + author.email;
  if (!author.web_page.empty()) by += ", " + author.web_page;
  return by;
}

std::string HeaderComment(const Bot& bot, const Author& author) {
  std::string text;
  const auto add_line = [&text](std::string_view line) {
    text += "//";
    text += line;
    text += kLineEnd;
  };
  const std::string rule(kRuleLength, '=');

  add_line(rule);
  add_line("\t" + bot.Name() + "\tversion " + bot.Text(kVersionMajorField) +
           "." + bot.Text(kVersionMinorField));
  add_line(AuthorLine(author));
  const std::string comment = bot.Text(kCommentField);
  add_line(comment.empty() ? comment : "\t" + comment);
  add_line(std::string(kMadeWith.substr(2)) + std::string(kFileVersion));
  add_line("\t" + std::string(kHomepage) +
           "  e-mail: " + std::string(kContact));
  add_line(rule);
  return text;
}

}  // namespace fragsmith
