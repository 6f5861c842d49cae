// The order in which the shared files are looked for: the test's own folder first, then the
// install beside the binary, then a build's source tree; a missing candidate is passed over and
// the line for "none found" names every place that was tried.
#include "base/shared_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace tesk {
namespace {

namespace fs = std::filesystem;

class SharedFilesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    std::random_device rd;
    root = fs::temp_directory_path() / ("tesk-shared-" + std::to_string(rd()));
    fs::create_directories(root / "usr" / "bin");
    exeDir = root / "usr" / "bin";
    installed = root / "usr" / "share" / "tesk";
    source = root / "src";
    fromEnv = root / "env";
  }
  void TearDown() override {
    std::error_code ec;
    fs::remove_all(root, ec);
  }
  fs::path root, exeDir, installed, source, fromEnv;
};

TEST_F(SharedFilesTest, TakesTheFirstFolderThatExistsInOrder) {
  fs::create_directories(fromEnv);
  fs::create_directories(installed);
  fs::create_directories(source / "data");
  const std::string env = fromEnv.string();

  // All three there: the environment variable wins, and every candidate is listed in order.
  SharedFilesSearch s = FindSharedFiles(env.c_str(), exeDir, source);
  EXPECT_EQ(s.found, fromEnv);
  ASSERT_EQ(s.lookedAt.size(), 3u);
  EXPECT_EQ(s.lookedAt[0], fromEnv);
  EXPECT_EQ(s.lookedAt[1], installed);  // "bin/../share/tesk", written without the ".."
  EXPECT_EQ(s.lookedAt[2], source / "data");

  // No variable (unset or empty): the install beside the binary comes before the source tree.
  EXPECT_EQ(FindSharedFiles(nullptr, exeDir, source).found, installed);
  EXPECT_EQ(FindSharedFiles("", exeDir, source).found, installed);
  EXPECT_EQ(FindSharedFiles(nullptr, exeDir, source).lookedAt.size(), 2u);

  // A variable naming a missing folder is passed over rather than stopping the search.
  fs::remove(fromEnv);
  EXPECT_EQ(FindSharedFiles(env.c_str(), exeDir, source).found, installed);

  // Without the install, a build tree falls back to the source tree.
  fs::remove(installed);
  EXPECT_EQ(FindSharedFiles(env.c_str(), exeDir, source).found, source / "data");

  // A plain file by the right name is not a folder to copy from.
  fs::remove(source / "data");
  { std::ofstream(source / "data") << "x"; }
  s = FindSharedFiles(env.c_str(), exeDir, source);
  EXPECT_TRUE(s.found.empty());
  const std::string line = DescribeMissingSharedFiles(s);
  EXPECT_EQ(line.find('\n'), std::string::npos);
  for (const fs::path& p : {fromEnv, installed, source / "data"})
    EXPECT_NE(line.find(p.string()), std::string::npos) << line;
}

}  // namespace
}  // namespace tesk
