#include "model/characteristic_catalogue.h"

#include <gtest/gtest.h>

#include <set>

namespace fragsmith {
namespace {

TEST(CharacteristicCatalogue, PadsEveryKeyToItsColumn) {
  std::set<std::string_view> keys;
  for (int index = 0; index < kCatalogueSize; ++index) {
    const bool is_macro = index >= 44 && index <= 80;
    const std::string_view start = is_macro ? "#define " : "CHARACTERISTIC_";
    int column = 0;
    for (const char letter : PaddedKey(index)) {
      column = letter == '\t' ? (column / 4 + 1) * 4 : column + 1;
    }
    EXPECT_EQ(column, index == 84 ? 0 : is_macro ? 32 : 44) << index;
    EXPECT_EQ(BareKey(index).starts_with(start), index != 84) << index;
    // Eight weapons stand twice, to fight with and to pick up.
    EXPECT_EQ(keys.insert(BareKey(index)).second, index < 56 || index > 63);
  }
}

}  // namespace
}  // namespace fragsmith
