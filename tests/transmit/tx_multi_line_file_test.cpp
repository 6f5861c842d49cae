// TXMultiLine.ini: the three pages written with their markers and read back, a marker sharing
// the last line of a page that ends in a control character, files with LF line ends, a missing
// file, and a folder that refuses the new file.
#include "transmit/tx_multi_line_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

namespace fs = std::filesystem;

std::string LfOnly(std::string text) {
  std::string out;
  for (char c : text)
    if (c != '\r') out += c;
  return out;
}

TEST(MultiLineFile, PagesAreWrittenWithTheirMarkersAndReadBack) {
  const MultiLinePages pages = {"CQ CQ\r\nde XX9TK\r\nk", "", "tab at the end\t"};
  const std::string content = FormatMultiLineFile(pages);
  EXPECT_EQ(content,
            "CQ CQ\r\nde XX9TK\r\nk\r\n[**end**]\r\n"
            "\r\n[**end**]\r\n"              // an empty page is an empty line
            "tab at the end\t[**end**]\r\n"  // a control character at the end: same line
            "[Reserved]\r\n\r\n[Reserved]\r\n\r\n");
  EXPECT_EQ(ParseMultiLineFile(content), pages);

  // A page ending in its own CR LF gets no extra empty line; it loads back without that line
  // end and stays so from then on.
  const MultiLinePages endsInLineEnd = {"one\r\ntwo\r\n", "x", "\r\n"};
  const std::string first = FormatMultiLineFile(endsInLineEnd);
  EXPECT_EQ(first.substr(0, 19), "one\r\ntwo\r\n[**end**]");
  const MultiLinePages loaded = ParseMultiLineFile(first);
  EXPECT_EQ(loaded, (MultiLinePages{"one\r\ntwo", "x", ""}));
  EXPECT_EQ(ParseMultiLineFile(FormatMultiLineFile(loaded)), loaded);
}

TEST(MultiLineFile, AMarkerAtTheEndOfALineEndsThePageWithoutSwallowingTheNext) {
  const std::string content =
      "first\t[**end**]\r\nsecond\r\n[**end**]\r\n\t[**end**]\r\n[Reserved]\r\n\r\n";
  EXPECT_EQ(ParseMultiLineFile(content), (MultiLinePages{"first\t", "second", "\t"}));
  // A file cut short: the pages it has, the rest empty.
  EXPECT_EQ(ParseMultiLineFile("only\r\nthis"), (MultiLinePages{"only\r\nthis", "", ""}));
  EXPECT_EQ(ParseMultiLineFile(""), MultiLinePages{});
}

TEST(MultiLineFile, AFileWithLfLineEndsReadsAsOneWithCrLf) {
  const MultiLinePages pages = {"a\r\nb\r\nc", "", "d\t"};
  const std::string crlf = FormatMultiLineFile(pages);
  EXPECT_EQ(ParseMultiLineFile(LfOnly(crlf)), pages);
  // A CR that is no line end stays in the text.
  EXPECT_EQ(ParseMultiLineFile("a\rb\n[**end**]\n")[0], "a\rb");
}

TEST(MultiLineFile, MissingFileGivesEmptyPagesAndARefusedSaveKeepsTheOldFile) {
  TempDir dir;
  const std::string path = dir.file(kMultiLineFile);
  EXPECT_EQ(LoadMultiLineFile(path), MultiLinePages{});

  const MultiLinePages old = {"old\r\npage", "", "kept"};
  ASSERT_TRUE(SaveMultiLineFile(path, old));
  EXPECT_EQ(LoadMultiLineFile(path), old);
  const std::string before = ReadFile(path);

  // The folder refuses new files; the place of the temporary file is taken too, for a user
  // whom permissions do not stop.
  fs::create_directory(path + ".tmp");
  fs::permissions(dir.path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_FALSE(SaveMultiLineFile(path, {"new", "new", "new"}));
  fs::permissions(dir.path(), fs::perms::owner_all);
  EXPECT_EQ(ReadFile(path), before);
  EXPECT_EQ(LoadMultiLineFile(path), old);
}

}  // namespace
}  // namespace tesk::testing
