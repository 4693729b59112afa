#ifndef FRAGSMITH_MODEL_PARAMETER_ID_H_
#define FRAGSMITH_MODEL_PARAMETER_ID_H_

#include <compare>
#include <optional>

#include "model/level.h"

namespace fragsmith {

/// Names one value of a bot: a field or single parameter by its index, or a
/// parameter of one skill level by level and catalogue index. An index alone
/// means another thing than the same index at a level.
class ParameterId {
 public:
  constexpr explicit ParameterId(int index) : index_(index) {}
  constexpr ParameterId(Level level, int index)
      : level_number_(NumberOf(level)), index_(index) {}

  constexpr int index() const { return index_; }
  /// Nothing for what a bot has once.
  constexpr std::optional<Level> level() const {
    return LevelOfNumber(level_number_);
  }

  /// The same parameter at another level.
  constexpr ParameterId At(Level level) const { return {level, index_}; }

  /// As one number: the index, or, of a level, level x 100 + index.
  constexpr int number() const { return level_number_ * kPerLevel + index_; }
  /// That of such a number; of one without a level, the number is the index.
  static constexpr ParameterId OfNumber(int number) {
    const auto level = LevelOfNumber(number / kPerLevel);
    return level ? ParameterId(*level, number % kPerLevel)
                 : ParameterId(number);
  }

  // NOLINTNEXTLINE(modernize-use-nullptr): taken for a comparison with 0.
  constexpr auto operator<=>(const ParameterId&) const = default;

 private:
  static constexpr int kPerLevel = 100;

  int level_number_ = 0;  ///< 0 for what a bot has once.
  int index_;
};

/// The bot's fields beside its parameters.
inline constexpr ParameterId kNameField{0};
inline constexpr ParameterId kGenderField{1};
inline constexpr ParameterId kFunNameField{2};
inline constexpr ParameterId kRailColorField{3};
inline constexpr ParameterId kModelField{5};
inline constexpr ParameterId kSkinField{6};
inline constexpr ParameterId kVersionMajorField{7};
inline constexpr ParameterId kVersionMinorField{8};
inline constexpr ParameterId kCommentField{9};
inline constexpr ParameterId kArenaLordField{10};
/// Derived from the name, to be read only.
inline constexpr ParameterId kChatFileField{81};
inline constexpr ParameterId kWeaponFileField{82};
inline constexpr ParameterId kItemFileField{83};
inline constexpr ParameterId kCharacteristicFileField{84};
inline constexpr ParameterId kChatNameField{85};
inline constexpr ParameterId kDescriptionFileField{86};

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_PARAMETER_ID_H_
