// What becomes of edits: the difference that they make, and their writing.

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "inplace/bot_edits.h"
#include "inplace/origin_files.h"
#include "install/packages/package_writer.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/unified_diff.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

/// The folder that all of the bot's files lie below.
fs::path RootOf(const BotEdits& edits) {
  std::optional<fs::path> root;
  for (const auto& [kind, edit] : edits.files) {
    if (!edit.origin.is_on_disk()) continue;
    const fs::path folder = edit.origin.path.parent_path();
    if (!root) root = folder;
    const auto [mine, theirs] =
        std::mismatch(root->begin(), root->end(), folder.begin(), folder.end());
    fs::path common;
    for (auto part = root->begin(); part != mine; ++part) common /= *part;
    root = common;
  }
  return root.value_or(fs::path());
}

/// What a patch calls the file: a member by its name, another from the root.
std::string NameInDiff(const OriginFile& file, const fs::path& root) {
  if (!file.is_on_disk()) return Utf8FromGameText(file.entry);
  const fs::path name = file.path.lexically_relative(root);
  return BytesFromPath(name.generic_u8string());
}

/// Where a symbolic link leads to: an edit leaves the link itself as it is. A
/// file made anew takes the place of a link, but this one is the user's own.
fs::path BehindLinks(const fs::path& path) {
  std::error_code reason;
  if (!fs::is_symlink(fs::symlink_status(path, reason))) return path;
  fs::path target = fs::canonical(path, reason);
  return reason ? path : target;
}

/// Gives files that were written their old bytes again. The error says what
/// became of them.
Error PutBack(const std::vector<const FileEdit*>& written, Error error) {
  std::string kept;
  for (const FileEdit* const edit : written) {
    if (SaveFile(BehindLinks(edit->origin.path), edit->old_bytes)) continue;
    kept += (kept.empty() ? "" : ", ") + edit->shown;
  }
  if (!kept.empty()) {
    error.advice +=
        " " + Localized("Written already, and not put back: %1.", {kept});
  } else if (!written.empty()) {
    error.advice += " " + Localized("The other files are as they were.");
  }
  return error;
}

/// The edited members of packages, by the package.
std::map<fs::path, std::map<std::string, std::string>> PackedIn(
    const BotEdits& edits) {
  std::map<fs::path, std::map<std::string, std::string>> packages;
  for (const auto& [kind, edit] : edits.files) {
    if (edit.outcome == FileEdit::Outcome::kEdited &&
        !edit.origin.is_on_disk()) {
      packages[edit.origin.path][edit.origin.entry] = edit.bytes;
    }
  }
  return packages;
}

}  // namespace

std::string DiffOf(const BotEdits& edits) {
  std::string diff;
  const fs::path root = RootOf(edits);
  for (const BotFile kind : kOwnFilesFirst) {
    const auto edit = edits.files.find(kind);
    if (edit == edits.files.end() ||
        edit->second.outcome != FileEdit::Outcome::kEdited) {
      continue;
    }
    const std::string name = NameInDiff(edit->second.origin, root);
    const bool is_new =
        edit->second.origin.is_on_disk() && !IsFile(edit->second.origin.path);
    diff += UnifiedDiff(edit->second.old_bytes, edit->second.bytes,
                        is_new ? "/dev/null" : "a/" + name, "b/" + name);
  }
  return diff;
}

Result<void> CheckPackages(const BotEdits& edits) {
  for (const auto& [package, bytes] : PackedIn(edits)) {
    const Result<std::string> done = PackageWith(package, bytes);
    if (!done) return Failure(done.error());
  }
  return {};
}

Result<void> WriteEdits(BotEdits& edits) {
  std::vector<const FileEdit*> written;
  for (const auto& [kind, edit] : edits.files) {
    if (edit.outcome != FileEdit::Outcome::kEdited ||
        !edit.origin.is_on_disk()) {
      continue;
    }
    const Result<void> done =
        SaveFile(BehindLinks(edit.origin.path), edit.bytes);
    if (!done) return Failure(PutBack(written, done.error()));
    written.push_back(&edit);
  }
  // All of a bot's members lie in the same package.
  for (const auto& [package, bytes] : PackedIn(edits)) {
    const Result<void> done =
        ReplacePackageEntries(BehindLinks(package), bytes);
    if (!done) return Failure(PutBack(written, done.error()));
  }
  for (auto& [kind, edit] : edits.files) {
    if (edit.outcome != FileEdit::Outcome::kEdited) continue;
    edit.origin.fingerprint = FingerprintOf(edit.bytes);
    edit.origin.before_edits = edit.made_from;
  }
  return {};
}

}  // namespace fragsmith
