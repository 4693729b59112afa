#ifndef FRAGSMITH_BOTFILES_BLOCK_KEYS_H_
#define FRAGSMITH_BOTFILES_BLOCK_KEYS_H_

#include <algorithm>
#include <array>

#include "model/characteristic_catalogue.h"

namespace fragsmith {

/// Keys of the catalogue that stand together in a block of a character.
struct BlockKeys {
  IndexRange keys = {};
  bool ends_part = false;  ///< An empty line follows.
};

/// All of them, in the order in which a block is written.
inline constexpr std::array kBlockKeys = {
    BlockKeys{{kNameField.index(), kAttackSkillIndex}},
    BlockKeys{{kWeaponFileField.index(), kWeaponFileField.index()}},
    BlockKeys{{kAttackSkillIndex + 1, kReactionTimeIndex}, true},
    BlockKeys{{kChatFileField.index(), kChatFileField.index()}},
    BlockKeys{{kChatNameField.index(), kChatNameField.index()}},
    BlockKeys{kChatRange, true},
    BlockKeys{{8, 11}, true},
    BlockKeys{{kItemFileField.index(), kItemFileField.index()}},
    BlockKeys{{12, 15}, true},
    BlockKeys{{16, kOptionalRange.first - 1}, true},
    BlockKeys{kOptionalRange},
};

constexpr bool IsBlockKey(int index) {
  return std::any_of(
      kBlockKeys.begin(), kBlockKeys.end(),
      [index](const BlockKeys& row) { return row.keys.Contains(index); });
}

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_BLOCK_KEYS_H_
