#include "botfiles/header_comment.h"

#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kProgramVersion = "0.97";
constexpr std::string_view kHomepage = "https://fragsmith.example";
constexpr std::string_view kContact = "fragsmith@example.org";
constexpr std::size_t kRuleLength = 75;

}  // namespace

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
  add_line("\tMade with vexlor's Fragsmith v. " + std::string(kProgramVersion));
  add_line("\t" + std::string(kHomepage) +
           "  e-mail: " + std::string(kContact));
  add_line(rule);
  return text;
}

}  // namespace fragsmith
