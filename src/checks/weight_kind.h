#ifndef FRAGSMITH_CHECKS_WEIGHT_KIND_H_
#define FRAGSMITH_CHECKS_WEIGHT_KIND_H_

#include <optional>
#include <string_view>

#include "game/complaints.h"
#include "game/preprocessor.h"
#include "game/weight_reader.h"

namespace fragsmith {

/// That a file is no character, as of a Complaint.
inline constexpr std::string_view kNotACharacter = "not-a-character";

/// A file that the game takes for the weights of weapons, or of items, and that
/// includes the game's code for the others: by a slip, or as two files have
/// each other's name. As an error; nothing where it is what it should be.
/// Of two paths that are swapped it tells where this one is named.
std::optional<Complaint> FaultOfKind(const GameFile& file,
                                     const WeightsRead& read, bool are_weapons,
                                     const FilePlace& named_at);

/// The same of a file that the game takes for a character and that holds
/// weights or chats.
std::optional<Complaint> FaultOfCharacter(const GameFile& file,
                                          const FilePlace& named_at);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_WEIGHT_KIND_H_
