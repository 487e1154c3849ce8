#include "amortix2/automation/whole_file.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "support.h"

namespace amortix2 {
namespace {

namespace fs = std::filesystem;

// Every test works in a fresh folder that holds the file "old" alone.
class WholeFile : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = (fs::temp_directory_path() / "whole_file_XXXXXX").string();
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    folder = name;
    std::ofstream(folder / "old") << "old";
  }
  void TearDown() override { fs::remove_all(folder); }

  std::string Path(const std::string& name) const { return (folder / name).string(); }
  std::string Content(const std::string& name) const {
    std::ifstream file(folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  auto Write(const std::string& path, std::size_t size) {
    return ErrorOf([&] { WriteWholeFile(path, std::vector<std::uint8_t>(size, 'n')); });
  }
  auto CountFiles() const { return std::distance(fs::directory_iterator(folder), fs::directory_iterator()); }

  fs::path folder;
};

TEST_F(WholeFile, ReplacesTheWholeFile) {
  fs::permissions(folder / "old", fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("old", folder / "link");
  EXPECT_FALSE(Write(Path("new"), 100000));
  EXPECT_FALSE(Write(Path("Größe"), 3));
  EXPECT_FALSE(Write(Path("link"), 10));
  EXPECT_EQ(Content("new"), std::string(100000, 'n'));
  EXPECT_EQ(Content("Größe"), "nnn");
  EXPECT_EQ(Content("old"), std::string(10, 'n'));
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(fs::status(folder / "old").permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(CountFiles(), 4);
  fs::create_symlink("made", folder / "early");
  fs::create_symlink("circle", folder / "circle");
  EXPECT_FALSE(Write(Path("early"), 7));
  EXPECT_TRUE(fs::is_symlink(folder / "early"));
  EXPECT_EQ(Content("made"), "nnnnnnn");
  EXPECT_EQ(Write(Path("circle"), 7), ErrorNumber::PathFileAccess);
}

// As an ordinary user in a folder of somebody else's; root may write everywhere.
TEST_F(WholeFile, FileInAFolderThatMayNotBeWrittenIsWrittenInPlace) {
  fs::permissions(folder / "old", fs::perms::all);
  fs::create_symlink("old", folder / "link");
  std::ofstream(folder / "guarded") << "guarded";
  fs::permissions(folder / "guarded", fs::perms::owner_read);
  fs::permissions(folder, fs::perms(0555));
  const pid_t child = fork();
  if (child == 0) {
    if (getuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) _exit(1);
    const bool isRight = !Write(Path("link"), 10) &&
                         Write(Path("guarded"), 10) == ErrorNumber::PathFileAccess &&
                         Write(Path("new"), 10) == ErrorNumber::PathFileAccess;
    _exit(isRight ? 0 : 2);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(status, 0);
  fs::permissions(folder, fs::perms::owner_all);
  EXPECT_EQ(Content("old"), std::string(10, 'n'));
  EXPECT_EQ(Content("guarded"), "guarded");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(CountFiles(), 3);
}

TEST_F(WholeFile, BadPathsAreErrors) {
  for (const std::string& path : {Path("none/new"), Path("old/new")}) {
    EXPECT_EQ(Write(path, 10), ErrorNumber::PathNotFound) << path;
  }
  for (const std::string& path : {std::string(), Path("a") + '\0', folder.string(), Path(""),
                                  std::string("/dev/null"), Path(std::string(300, 'x'))}) {
    EXPECT_EQ(Write(path, 10), ErrorNumber::PathFileAccess) << path;
  }
  EXPECT_EQ(CountFiles(), 1);
}

}  // namespace
}  // namespace amortix2
