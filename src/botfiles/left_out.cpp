#include "botfiles/left_out.h"

#include <algorithm>
#include <utility>

#include "botfiles/game_text.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {

void NameList::Add(std::string name) {
  if (std::find(names_.begin(), names_.end(), name) != names_.end()) return;
  if (names_.size() < kMax && length_ + name.size() <= kMaxLength) {
    length_ += name.size();
    names_.push_back(std::move(name));
  } else {
    ++left_out_;
  }
}

std::string NameList::Text() const {
  std::string text;
  for (const std::string& name : names_) {
    if (!text.empty()) text += ", ";
    text += name;
  }
  if (left_out_ == 0) return text;
  return Localized("%1 and %2 more", {text, std::to_string(left_out_)});
}

Note AlsoInFile(const std::string& file, std::size_t line, std::size_t count,
                const std::string& what) {
  return {.file = file,
          .line = line,
          .text = Localized(
              "Also in this file, what a bot here has no place for (%1): %2. "
              "It stays when values are changed in place, and is left out of "
              "a file made anew.",
              {std::to_string(count), what}),
          .kind = NoteKind::kAlsoInFile};
}

LeftOut::LeftOut(std::string file, std::vector<std::string> includes)
    : file_(std::move(file)),
      includes_(std::move(includes)),
      missing_includes_(includes_) {}

void LeftOut::Count(Kind& kind, std::size_t line) {
  if (kind.count++ == 0) kind.first_line = line;
}

void LeftOut::AddComment(std::size_t line) { Count(comments_, line); }

void LeftOut::AddName(std::string_view name, std::size_t line) {
  Count(others_, line);
  names_.Add(ShownText(name));
}

void LeftOut::AddText(std::string_view text, std::size_t line) {
  Count(others_, line);
  if (texts_.empty()) first_text_ = ShownText(TrimBlanksAndTabs(text));
  if (!texts_.empty() && texts_.back().last + 1 >= line) {
    texts_.back().last = line;
  } else {
    texts_.push_back({line, line});
  }
}

std::string LeftOut::Texts() const {
  NameList list;
  for (const auto& [first, last] : texts_) {
    std::string lines = std::to_string(first);
    if (last > first) lines += "-" + std::to_string(last);
    list.Add(std::move(lines));
  }
  const bool is_one = texts_.size() == 1 && texts_[0].first == texts_[0].last;
  return Localized(is_one ? Localizable("%1 (line %2)")
                          : Localizable("%1 and more (lines %2)"),
                   {first_text_, list.Text()});
}

void LeftOut::AddInclude(std::string_view directive, std::size_t line) {
  std::string_view rest = directive;
  const std::string_view word = TakeWord(rest);
  const std::string name(WithoutQuotes(TakeWord(rest)));
  const bool is_ours =
      word == "#include" && TakeWord(rest).empty() &&
      std::find(includes_.begin(), includes_.end(), name) != includes_.end();
  if (!is_ours) {
    // Weight code of another game stands in the place of ours.
    constexpr std::string_view kScript = ".c";
    if (word == "#include" && EndsWithIgnoringCase(name, kScript)) {
      std::erase_if(missing_includes_, [kScript](const std::string& one) {
        return one.ends_with(kScript);
      });
    }
    return AddText(directive, line);
  }
  std::erase(missing_includes_, name);
}

void LeftOut::Tell(Notes& notes) const {
  if (comments_.count > 0) {
    notes.Add({file_, comments_.first_line,
               Localized(comments_.count == 1
                             ? Localizable("Comments are not read, and a file "
                                           "made anew leaves them out (%1 "
                                           "line).")
                             : Localizable("Comments are not read, and a file "
                                           "made anew leaves them out (%1 "
                                           "lines)."),
                         {std::to_string(comments_.count)})});
  }
  std::string others = names_.Text();
  if (!texts_.empty()) {
    if (!others.empty()) others += "; ";
    others += Texts();
  }
  if (others.empty()) return;
  notes.Add(AlsoInFile(file_, others_.first_line, others_.count, others));
}

}  // namespace fragsmith
