#include "botfiles/header_comment.h"

#include <algorithm>

#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kProgramVersion = "0.97";
constexpr std::string_view kHomepage = "https://fragsmith.example";
constexpr std::string_view kContact = "fragsmith@example.org";
constexpr std::size_t kRuleLength = 75;

constexpr std::string_view kMadeWith = "//\tMade with vexlor's Fragsmith v. ";

/// Takes the first line off the text.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find(kLineEnd), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(text.size(), end + kLineEnd.size()));
  return line;
}

}  // namespace

bool HeaderSaysMore(std::string_view bytes) {
  TakeLine(bytes);
  const std::string_view name = TakeLine(bytes);
  TakeLine(bytes);
  const std::string_view comment = TakeLine(bytes);
  return TakeLine(bytes).starts_with(kMadeWith) &&
         (!name.ends_with("\tversion 0.0") || comment != "//");
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
  std::string by;
  if (!author.name.empty()) {
    by = "\tBy: " + author.name;
    if (!author.email.empty()) by += ", " + author.email;
    if (!author.web_page.empty()) by += ", " + author.web_page;
  }
  add_line(by);
  const std::string comment = bot.Text(kCommentField);
  add_line(comment.empty() ? comment : "\t" + comment);
  add_line(std::string(kMadeWith.substr(2)) + std::string(kProgramVersion));
  add_line("\t" + std::string(kHomepage) +
           "  e-mail: " + std::string(kContact));
  add_line(rule);
  return text;
}

}  // namespace fragsmith
