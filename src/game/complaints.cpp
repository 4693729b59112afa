#include "game/complaints.h"

#include <algorithm>
#include <utility>

#include "support/code_page.h"

namespace fragsmith {

void Complaints::Add(Complaint complaint) {
  const auto count = std::count_if(
      list_.begin(), list_.end(),
      [&](const Complaint& one) { return one.severity == complaint.severity; });
  if (static_cast<std::size_t>(count) >= kMax) return;
  const bool is_known =
      std::find(list_.begin(), list_.end(), complaint) != list_.end();
  if (is_known) return;
  list_.push_back(std::move(complaint));
}

void Complaints::Soften(std::size_t first) {
  for (std::size_t at = first; at < list_.size(); ++at) {
    if (list_[at].severity == Severity::kError) {
      list_[at].severity = Severity::kWarning;
    }
  }
}

std::optional<Complaint> Complaints::FirstError(std::size_t first) const {
  const auto found = std::find_if(
      list_.begin() + static_cast<std::ptrdiff_t>(first), list_.end(),
      [](const Complaint& one) { return one.severity == Severity::kError; });
  return found == list_.end() ? std::nullopt : std::optional(*found);
}

void Complaints::KeepFirstError(std::size_t first) {
  bool has_error = false;
  const auto follows = [&has_error](const Complaint& one) {
    return one.severity == Severity::kError && std::exchange(has_error, true);
  };
  list_.erase(std::remove_if(list_.begin() + static_cast<std::ptrdiff_t>(first),
                             list_.end(), follows),
              list_.end());
}

void Complaints::ReplaceError(std::size_t first, Complaint fault) {
  for (std::size_t at = first; at < list_.size(); ++at) {
    if (list_[at].severity != Severity::kError) continue;
    if (fault.place.line > list_[at].place.line && list_[at].place.line > 0) {
      return;
    }
    fault.severity = Severity::kError;
    list_.erase(list_.begin() + static_cast<std::ptrdiff_t>(at));
    break;
  }
  Add(std::move(fault));
}

bool Complaints::IsTold(const FilePlace& place, std::string_view id) const {
  return std::ranges::any_of(list_, [&](const Complaint& one) {
    return one.severity != Severity::kHint && one.place == place &&
           (id.empty() || one.id == id);
  });
}

void Complaints::Raise(const Complaint& complaint) {
  std::erase_if(list_, [&complaint](const Complaint& one) {
    return one.id == complaint.id && one.place == complaint.place;
  });
  Add(complaint);
}

std::string Quoted(std::string_view game_text) {
  constexpr std::size_t kMaxShown = 40;
  std::string text = ShownText(game_text.substr(0, kMaxShown));
  if (game_text.size() > kMaxShown) text += "…";
  return "\"" + text + "\"";
}

}  // namespace fragsmith
