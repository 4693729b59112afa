#include "support/numbers.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace fragsmith {
namespace {

TEST(Numbers, KnowNumericTexts) {
  const std::string many(400, '9');
  // clang-format off
  const std::pair<std::string, std::optional<double>> numeric[] = {
      {"0", 0.0}, {" \t+07.5\t ", 7.5}, {"-.5", -0.5}, {"1.", 1.0}, {many, {}},
      {"0." + std::string(400, '0') + "1", 0.0}, {std::string(400, '0'), 0.0}};
  // clang-format on
  for (const auto& [text, number] : numeric) {
    EXPECT_TRUE(IsNumericText(text)) << text;
    EXPECT_EQ(NumberFromText(text), number) << text;
  }
  for (const char* text : {"", " ", ".", "-", "+-1", "1.2.3", "1,5", "1e5",
                           "0x10", "1 2", "- 1", "inf", "nan", "1\xA0"}) {
    EXPECT_FALSE(IsNumericText(text)) << text;
    EXPECT_EQ(NumberFromText(text), std::nullopt) << text;
  }
}

TEST(Numbers, PrintAsPlainDecimals) {
  // clang-format off
  const struct {
    double number;
    int digits;
    std::string_view text;
  } cases[] = {{0, 15, "0"}, {-0.0, 15, "0"}, {-2.5, 15, "-2.5"},
               {0.7, 15, "0.7"}, {2.0 / 3, 7, "0.6666667"},
               {static_cast<double>(0.7F), 15, "0.699999988079071"},
               {1e20, 15, "100000000000000000000"},
               {123456789, 7, "123456800"}, {9999999.6, 7, "10000000"},
               {0.00000012345678, 7, "0.0000001234568"}};
  // clang-format on
  for (const auto& row : cases) {
    EXPECT_EQ(PlainDecimal(row.number, row.digits), row.text);
  }
  EXPECT_EQ(PlainDecimal(5e-324, 15).size(), 2U + 323 + 15);
  EXPECT_EQ(ShortDecimal(0.1F), 0.1);
  EXPECT_EQ(ShortDecimal(1.1800001F), 1.18);
}

/// All that the sliders give, against the C library.
TEST(Numbers, PrintThousandthsAsTheyStand) {
  std::array<char, 32> text{};
  for (int thousandths = 1; thousandths < 1000000;
       thousandths += thousandths < 10000 ? 1 : 7) {
    std::snprintf(text.data(), text.size(), "%d.%03d", thousandths / 1000,
                  thousandths % 1000);
    const double number = std::strtod(text.data(), nullptr);
    ASSERT_EQ(NumberFromText(text.data()), number);
    const auto rounded = static_cast<float>(number);
    ASSERT_EQ(ShortDecimal(rounded), number) << text.data();
    std::snprintf(text.data(), text.size(), "%.7g",
                  static_cast<double>(rounded));
    // Nothing that small is printed with an exponent.
    ASSERT_EQ(PlainDecimal(rounded, kFloatDigits), text.data());
  }
}

}  // namespace
}  // namespace fragsmith
