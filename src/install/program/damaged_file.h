#ifndef FRAGSMITH_INSTALL_PROGRAM_DAMAGED_FILE_H_
#define FRAGSMITH_INSTALL_PROGRAM_DAMAGED_FILE_H_

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string_view>

#include "support/result.h"

namespace fragsmith {

/// The most records that are read of one of the program's lists; more are
/// taken for an error. A catalogue of that size still answers at once.
inline constexpr std::size_t kMaxListRecords = 250'000;

/// What becomes of an old file when there is nothing to write: it stays, but
/// for a scan, which knows that nothing of it is there any more.
enum class EmptyList { kKeepsOldFile, kReplacesOldFile };

/// True for the bytes of a file that its reader reads to the end.
using IsWholeFile = std::function<bool(std::string_view bytes)>;

/// Saves one of the program's own files. A file that stands there and cannot
/// be read whole holds something that this run does not know of: it is kept
/// beside as NAME.bak before the new one takes its place.
Result<void> SaveKeepingDamaged(const std::filesystem::path& path,
                                std::string_view bytes,
                                const IsWholeFile& is_whole);

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_DAMAGED_FILE_H_
