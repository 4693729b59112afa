#ifndef FRAGSMITH_FUZZ_ORACLE_H_
#define FRAGSMITH_FUZZ_ORACLE_H_

#include <string>
#include <string_view>

#include "support/notes.h"

namespace fragsmith {

/// What a fuzz target does with one input; each target defines it.
void FuzzOne(std::string_view bytes);

/// Ends the run as a crash does, with the message, unless it holds.
void Expect(bool holds, std::string_view message);

/// The same for two texts; the message shows where they part.
void ExpectEqual(std::string_view wanted, std::string_view got,
                 std::string_view message);

/// Expects what a user can be shown: valid UTF-8 of bearable length.
void ExpectShowable(std::string_view text);
void ExpectShowable(const Notes& notes);

}  // namespace fragsmith

#endif  // FRAGSMITH_FUZZ_ORACLE_H_
