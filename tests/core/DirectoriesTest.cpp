#include "DriverLIB/Directories.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

#include "DriverLIB/Platform.h"

namespace {

namespace fs = std::filesystem;

// A folder of the test's own below the current one.
class CreateDirectoryTreeTest : public testing::Test {
 protected:
  CreateDirectoryTreeTest() { fs::remove_all("directories_test"); }
  ~CreateDirectoryTreeTest() override { fs::remove_all("directories_test"); }
};

}  // namespace

TEST_F(CreateDirectoryTreeTest, CreatesEveryDirectory) {
  EXPECT_TRUE(CreateDirectoryTree(L"directories_test\\a b\\c"));
  EXPECT_TRUE(fs::is_directory("directories_test/a b/c"));
}

TEST_F(CreateDirectoryTreeTest, DirectoriesThatExistAreFine) {
  EXPECT_TRUE(CreateDirectoryTree(L"directories_test\\a"));
  EXPECT_TRUE(CreateDirectoryTree(L"directories_test\\a"));
  EXPECT_TRUE(CreateDirectoryTree(L"directories_test\\a\\b\\"));
  EXPECT_TRUE(fs::is_directory("directories_test/a/b"));
}

TEST_F(CreateDirectoryTreeTest, EmptyPiecesVanish) {
  EXPECT_TRUE(CreateDirectoryTree(L"directories_test\\\\\\a\\\\b\\\\"));
  EXPECT_TRUE(fs::is_directory("directories_test/a/b"));
}

TEST_F(CreateDirectoryTreeTest, SeparatorsAtTheStartAreLost) {
  EXPECT_TRUE(CreateDirectoryTree(L"\\\\directories_test\\a"));
  EXPECT_TRUE(fs::is_directory("directories_test/a"));
}

TEST_F(CreateDirectoryTreeTest, StartsAtTheRootOfADrive) {
  const std::string current = fs::current_path().string();
  std::wstring path(current.begin(), current.end());
  std::replace(path.begin(), path.end(), L'/', L'\\');
  if (path.front() == L'\\') path.insert(0, L"C:");
  EXPECT_TRUE(CreateDirectoryTree(path + L"\\directories_test\\deep\\er"));
  EXPECT_TRUE(fs::is_directory("directories_test/deep/er"));
}

TEST_F(CreateDirectoryTreeTest, AFailureEndsIt) {
  fs::create_directory("directories_test");
  std::ofstream("directories_test/file") << "in the way";
  EXPECT_FALSE(CreateDirectoryTree(L"directories_test\\file\\a"));
  EXPECT_NE(platform::kErrorAlreadyExists, platform::LastError());
}

TEST_F(CreateDirectoryTreeTest, AnEmptyPathIsDoneAlready) {
  EXPECT_TRUE(CreateDirectoryTree(L""));
  EXPECT_TRUE(CreateDirectoryTree(nullptr));
  EXPECT_TRUE(CreateDirectoryTree(L"\\\\"));
}
