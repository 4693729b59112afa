#ifndef FRAGSMITH_FUZZ_WEIGHT_FILES_H_
#define FRAGSMITH_FUZZ_WEIGHT_FILES_H_

#include <string>
#include <string_view>

#include "botfiles/weight_file.h"
#include "fuzz/kept_values.h"
#include "fuzz/oracle.h"

namespace fragsmith {

/// Both weight files are read and written in the same way.
inline void FuzzWeightFile(std::string_view bytes, IndexRange range,
                           decltype(ReadItemWeightFile) read,
                           std::string (*write)(const Bot&, const Author&)) {
  Bot first;
  ExpectShowable(read(bytes, "file", first).notes);
  const std::string written = write(first, {});
  // A text that holds a macro feeds that macro's parameter.
  if (HasTextWith(first, range, "#define ")) return;

  Bot second;
  const ReadReport report = read(written, "file", second);
  ExpectKept(first, second, range);
  const bool reads_alike =
      !HasTextWith(first, range, "\"") && !HasPointInText(first, range);
  Expect(!reads_alike || report.plain_values.empty(),
         "the game reads our own file as we do");

  const std::string again = write(second, {});
  if (again == written) return;
  Bot third;
  read(again, "file", third);
  ExpectEqual(again, write(third, {}), "the file is stable");
}

}  // namespace fragsmith

#endif  // FRAGSMITH_FUZZ_WEIGHT_FILES_H_
