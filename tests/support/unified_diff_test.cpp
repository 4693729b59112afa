#include "support/unified_diff.h"

#include <gtest/gtest.h>

#include <string>

namespace fragsmith {
namespace {

TEST(UnifiedDiffTest, ShowsEachChangeWithThreeLinesAround) {
  const std::string left = "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13\n";
  std::string right = left;
  right.replace(right.find("2\n"), 1, "two");
  right.erase(right.find("12\n"), 3);
  EXPECT_EQ(UnifiedDiff(left, right, "a/f", "b/f"),
            "--- a/f\n+++ b/f\n"
            "@@ -1,5 +1,5 @@\n 1\n-2\n+two\n 3\n 4\n 5\n"
            "@@ -9,5 +9,4 @@\n 9\n 10\n 11\n-12\n 13\n");
  EXPECT_EQ(UnifiedDiff(left, left, "a", "b"), "");
}

TEST(UnifiedDiffTest, KeepsLineEndsAndTellsOfAMissingOne) {
  EXPECT_EQ(UnifiedDiff("a\r\nb", "a\r\nb\r\n", "my file", "f"),
            "--- my file\t\n+++ f\n@@ -1,2 +1,2 @@\n a\r\n-b\n"
            "\\ No newline at end of file\n+b\r\n");
  EXPECT_EQ(UnifiedDiff("", "a\n", "f", "f"),
            "--- f\n+++ f\n@@ -0,0 +1 @@\n+a\n");
  EXPECT_EQ(UnifiedDiff("a\n", "", "f", "f"),
            "--- f\n+++ f\n@@ -1 +0,0 @@\n-a\n");
}

TEST(UnifiedDiffTest, JoinsChangesThatAreNear) {
  EXPECT_EQ(UnifiedDiff("a\n1\n2\n3\n4\n5\n6\nb\n", "A\n1\n2\n3\n4\n5\n6\nB\n",
                        "f", "f"),
            "--- f\n+++ f\n@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n"
            "-b\n+B\n");
}

/// No line in common, and more of them than are worth a search.
TEST(UnifiedDiffTest, EndsSoonWhereAllDiffers) {
  std::string left;
  std::string right;
  for (int line = 0; line < 20'000; ++line) {
    left += "l" + std::to_string(line) + "\n";
    right += "r" + std::to_string(line) + "\n";
  }
  const std::string diff = UnifiedDiff(left, right, "f", "f");
  EXPECT_TRUE(diff.starts_with("--- f\n+++ f\n@@ -1,20000 +1,20000 @@\n-l0\n"));
}

}  // namespace
}  // namespace fragsmith
