#ifndef FRAGSMITH_CHECKS_WEIGHT_KIND_H_
#define FRAGSMITH_CHECKS_WEIGHT_KIND_H_

#include <optional>

#include "game/complaints.h"
#include "game/preprocessor.h"
#include "game/weight_reader.h"

namespace fragsmith {

/// A file that the game takes for the weights of weapons, or of items, and that
/// includes the game's code for the others: by a slip, or as two files have
/// each other's name. As an error; nothing where it is what it should be.
std::optional<Complaint> FaultOfKind(const GameFile& file,
                                     const WeightsRead& read, bool are_weapons);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_WEIGHT_KIND_H_
