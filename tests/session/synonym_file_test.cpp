#include "session/synonym_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;

TEST(SynonymFile, IsFoundInAnyCaseAndWithoutItsFirstLine) {
  const TestFolder folder;
  EXPECT_TRUE(LoadSynonyms(folder.path()).IsEmpty());
  folder.Write("FGS_SYNONYMS", "\"hi\"\r\n\"[bye]\"\r\n");
  const SynonymList list = LoadSynonyms(folder.path());
  EXPECT_THAT(list.words, ElementsAre("hi", "[bye]"));
  ASSERT_TRUE(SaveSynonyms(folder.path(), list));
  EXPECT_EQ(LoadSynonyms(folder.path()).words, list.words);
}

}  // namespace
}  // namespace fragsmith
