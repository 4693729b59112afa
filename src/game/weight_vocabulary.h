#ifndef FRAGSMITH_GAME_WEIGHT_VOCABULARY_H_
#define FRAGSMITH_GAME_WEIGHT_VOCABULARY_H_

#include <string_view>
#include <vector>

#include "game/weight_reader.h"
#include "model/characteristic_catalogue.h"
#include "model/parameter_id.h"

namespace fragsmith {

/// A weight of a bot, and the number of its own file from which the game comes
/// by it, under whatever macro, or none.
struct FoundWeight {
  ParameterId parameter;
  OwnNumber own;  ///< Of several numbers the largest.
  std::vector<OwnNumber> others;
};

/// Whether the game's weight is one of those that stand for the parameter, or
/// for none that the bot has.
enum class WeightOwner { kParameter, kOther, kNobody };
WeightOwner OwnerOf(const GameWeight& weight, ParameterId parameter);

/// The weights of the range that the game's weight code takes from numbers of
/// the bot's own file. Using a weapon counts with the weapon in hand and
/// ammunition there; picking one up counts once for a bot that has it and once
/// for one that has not. Health and armor are factors: where the code has no
/// single number for one, there is none.
std::vector<FoundWeight> FindWeights(const WeightsRead& read, IndexRange range);

/// The weapons as the weight code names them, those of the game's expansion
/// too.
std::vector<std::string_view> WeaponNames();

/// Takes out the weights that the game never looks at: of several by one name
/// it uses the first. A stand-in weight counts as all those of the game that it
/// stands for.
void KeepUsedWeights(WeightsRead& read);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_WEIGHT_VOCABULARY_H_
