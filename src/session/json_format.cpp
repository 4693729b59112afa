#include "session/json_format.h"

#include <algorithm>

#include "session/bot_document.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

using Json = nlohmann::json;

/// The name of a field; of a very long one the characters at its beginning.
std::string ShownField(const std::string& field) {
  constexpr std::size_t kMax = 80;
  if (field.size() <= kMax) return field;
  std::size_t end = kMax;
  while ((static_cast<unsigned char>(field[end]) & 0xC0U) == 0x80U) --end;
  return field.substr(0, end) + "...";
}

std::string AboutField(const std::string& field, const std::string& reason) {
  return Localized("Field %1: %2", {ShownField(field), reason});
}

[[noreturn]] void Refuse(std::string what, std::string advice = {}) {
  throw JsonFault{{.what = std::move(what),
                   .file = {},
                   .line = 0,
                   .advice = std::move(advice)}};
}

/// Parses. What is nested deeper than any document of ours is a fault or left
/// out, before it fills the memory.
Json ParseBounded(std::string_view text, bool* was_cut) {
  constexpr int kMaxDepth = 8;
  const auto limit = [was_cut](int depth, Json::parse_event_t event,
                               Json& /*part*/) {
    const bool opens = event == Json::parse_event_t::object_start ||
                       event == Json::parse_event_t::array_start;
    const bool is_too_deep = opens && depth > kMaxDepth;
    if (!is_too_deep) return true;
    if (was_cut == nullptr) {
      Refuse(Localized("The document is nested too deeply."));
    }
    *was_cut = true;
    return false;
  };
  return Json::parse(text, limit);
}

}  // namespace

void RefuseField(const std::string& field, const std::string& reason,
                 const std::string& advice) {
  Refuse(AboutField(field, reason), advice);
}

void UnknownKeys::Meet(const std::string& field,
                       const std::string& reason) const {
  if (are_slips) RefuseField(field, reason);
  notes.Add(
      {.file = file,
       .line = 0,
       .text = AboutField(field, reason) + " " + Localized("It is left out.")});
}

void UnknownKeys::MeetOthers(const Json& json,
                             const std::vector<std::string_view>& known,
                             const std::string& path) const {
  for (const auto& [key, part] : json.items()) {
    if (std::ranges::find(known, key) != known.end()) continue;
    Meet(path.empty() ? key : std::string(path).append(".").append(key),
         Localized("there is no such key."));
  }
}

void BringUpToDate(Json& value, std::span<const Migration> steps,
                   UnknownKeys& unknown) {
  std::uint64_t version = 0;
  if (const auto found = value.find(kFormatKey); found != value.end()) {
    if (!found->is_number_unsigned()) {
      RefuseField(kFormatKey, Localized("a whole number is wanted here."));
    }
    version = found->get<std::uint64_t>();
    value.erase(found);
  }
  const std::uint64_t known = FormatBehind(steps);
  if (version > known) {
    unknown.are_slips = false;
    unknown.notes.Add(
        {.file = unknown.file,
         .line = 0,
         .text = Localized("A newer Fragsmith wrote this: it has format %1, "
                           "and this one knows %2. What is known is read.",
                           {std::to_string(version), std::to_string(known)})});
  }
  for (; version < known; ++version) steps[version].Apply(value);
}

Json ParseObject(std::string_view text, bool* was_cut) {
  if (text.size() > kMaxDocumentBytes) {
    Refuse(Localized("The document is larger than %1 MiB.",
                     {std::to_string(kMaxDocumentBytes >> 20U)}),
           Localized("Check that it is the right one."));
  }
  Json value = ParseBounded(text, was_cut);
  if (!value.is_object()) Refuse(Localized("The document is no JSON object."));
  return value;
}

/// Without the library's own error number and without the text that it read
/// last, which may be megabytes of anything.
Error ErrorOf(const Json::exception& exception) {
  std::string_view text = exception.what();
  const std::size_t end = text.find("] ");
  if (end != std::string_view::npos) text.remove_prefix(end + 2);
  text = text.substr(0, text.find("; last read: "));
  constexpr std::size_t kMax = 200;
  return {
      .what = Localized("This is no valid JSON: %1", {text.substr(0, kMax)}),
      .file = {},
      .line = 0,
      .advice = {}};
}

}  // namespace fragsmith
