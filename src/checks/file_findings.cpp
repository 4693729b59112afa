#include "checks/file_findings.h"

#include <algorithm>
#include <utility>

#include "support/code_page.h"

namespace fragsmith {

void FileFindings::Add(std::string_view id, Severity severity,
                       const std::string& file, int line, std::string text) {
  const bool known =
      std::any_of(list_.begin(), list_.end(), [&](const Finding& other) {
        return other.id == id && other.place.file == file &&
               other.place.line == line && other.text == text;
      });
  if (known || list_.size() >= kMost) return;
  Finding finding;
  finding.id = id;
  finding.severity = severity;
  finding.place.file = file;
  finding.place.line = line;
  finding.text = std::move(text);
  list_.push_back(std::move(finding));
}

void FileFindings::Soften(std::size_t first) {
  for (std::size_t at = first; at < list_.size(); ++at) {
    if (list_[at].severity == Severity::kError) {
      list_[at].severity = Severity::kWarning;
    }
  }
}

std::string Quoted(std::string_view game_text) {
  constexpr std::size_t kMostShown = 40;
  std::string text = ShownText(game_text.substr(0, kMostShown));
  if (game_text.size() > kMostShown) text += "…";
  return "“" + text + "”";
}

}  // namespace fragsmith
