#include "support/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#endif

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/test_folder.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;

TEST(Files, AreFoundWhateverTheirCase) {
  const TestFolder folder;
  const auto find = [&folder](std::string_view name) {
    return FindFile(folder.path(), name);
  };
  for (const char* name : {"Sarge_C.C", "sarge_c.c.bak", "ÄGER_T.C", "日本_c.C",
                           "both_c.c", "fold_c.c/inside"}) {
    folder.Write(name, "");
  }
  EXPECT_TRUE(folder.Is(find("sarge_c.c"), "Sarge_C.C"));
  EXPECT_TRUE(folder.Is(find("\xE4ger_t.c"), "ÄGER_T.C"));
  EXPECT_TRUE(folder.Is(find("\xC4GER_T.C"), "ÄGER_T.C"));
  for (const char* name :
       {"sarge", "arge_c.c", "fold_c.c", "fold_c.c/inside", "../x", "..", ""}) {
    EXPECT_EQ(find(name), std::nullopt) << name;
  }
  const auto last = PathFromBytes("日本_c.C");
  EXPECT_THAT(ListFiles(folder.path(), "_c.c"),
              ElementsAre("both_c.c", "Sarge_C.C", last));
  EXPECT_TRUE(ListFiles(folder / "none", "").empty());
  // Elsewhere these two are one file.
  if (!kIsUnix) return;
  folder.Write("Both_C.c", "");
  EXPECT_EQ(find("both_c.c"), folder / "both_c.c");
  EXPECT_EQ(find("Both_C.c"), folder / "Both_C.c");
  EXPECT_THAT(ListFiles(folder.path(), "_c.c"),
              ElementsAre("Both_C.c", "both_c.c", "Sarge_C.C", last));
}

TEST(Files, HaveNamesThatAreNoPaths) {
  for (const char* good : {"a", "a b", "...", "a..b", "\x81", "-"}) {
    EXPECT_TRUE(IsFileName(good)) << good;
  }
  for (const char* bad : {"", ".", "..", "a/b", "a\\b", "a\n", "\x7F"}) {
    EXPECT_FALSE(IsFileName(bad)) << bad;
  }
  EXPECT_FALSE(IsFileName(std::string_view("a\0b", 3)));
}

TEST(Files, AreReadUpToTheLimit) {
  const TestFolder folder;
  const std::string bytes("\0\r\n\x1A\xFF", 5);
  const auto path = folder.Write("x", bytes);
  EXPECT_EQ(ReadFile(path, 5).value(), bytes);
  ASSERT_FALSE(ReadFile(path, 4));
  EXPECT_EQ(ReadFile(path, 4).error().file, Utf8FromPath(path));
  for (const auto& other :
       {folder / "none", folder.path(), std::filesystem::path("/dev/zero")}) {
    EXPECT_FALSE(ReadFile(other)) << other;
  }
  // Its size is 0, and it comes in pieces.
  const std::filesystem::path maps = "/proc/self/maps";
  if (!std::filesystem::exists(maps)) return;
  EXPECT_THAT(ReadFile(maps).value(), ::testing::HasSubstr("[stack]"));
  EXPECT_FALSE(ReadFile(maps, 100));
}

TEST(Files, AreSavedWholeOrNotAtAll) {
  const TestFolder folder;
  folder.Write("x", "old");
  folder.Write("taken/inside", "");
  ASSERT_TRUE(SaveFile(folder / "x", "new"));
  ASSERT_FALSE(SaveFile(folder / "taken", "new"));
  EXPECT_EQ(SaveFile(folder / "taken", "new").error().file,
            Utf8FromPath(folder / "taken"));
  EXPECT_FALSE(SaveFile(folder / "none" / "x", "new"));
#ifndef _WIN32
  // A limit of the process stands in for a full disk; root has it too.
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small = {1000, before.rlim_max};
  const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  EXPECT_FALSE(SaveFile(folder / "x", std::string(5000, 'n')));
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, old_handler);
#endif
  EXPECT_EQ(folder.Read("x"), "new");
  EXPECT_THAT(ListFiles(folder.path(), ""), ElementsAre("x"));
}

#ifdef _WIN32
TEST(Files, ThatAnotherHoldsOpenStayAsTheyAre) {
  const TestFolder folder;
  folder.Write("x", "old");
  {
    const std::ifstream other(folder / "x");
    const Result<void> saved = SaveFile(folder / "x", "new");
    ASSERT_FALSE(saved);
    EXPECT_THAT(saved.error().what, testing::HasSubstr("holds it open"));
    EXPECT_THAT(ListFiles(folder.path(), ""), ElementsAre("x"));
  }
  EXPECT_EQ(folder.Read("x"), "old");
  EXPECT_TRUE(SaveFile(folder / "x", "new"));
}
#endif

TEST(Files, LeftBehindByKilledRunsGoWithALaterSave) {
  const TestFolder folder;
  const auto make_old = [&folder](const std::string& name) {
    std::filesystem::last_write_time(
        folder.Write(name, "part"),
        std::filesystem::file_time_type::clock::now() - std::chrono::hours(2));
  };
  make_old(".x.1234567890.fgs-tmp");
  make_old(".of another file.7.fgs-tmp");
  const std::vector<std::string> others = {".x..fgs-tmp",
                                           ".x.12a.fgs-tmp",
                                           "x.1.fgs-tmp",
                                           ".5.fgs-tmp",
                                           ".x.1.tmp",
                                           ".fgs-tmp",
                                           "y"};
  for (const std::string& name : others) make_old(name);
  folder.Write(".x.99.fgs-tmp", "of a run that is still at it");
  ASSERT_TRUE(SaveFile(folder / "x", "new"));
  std::vector<std::string> wanted = others;
  wanted.insert(wanted.end(), {".x.99.fgs-tmp", "x"});
  std::vector<std::string> found;
  for (const auto& path : ListFiles(folder.path(), "")) {
    found.push_back(path.string());
  }
  EXPECT_THAT(found, ::testing::UnorderedElementsAreArray(wanted));
}

}  // namespace
}  // namespace fragsmith
