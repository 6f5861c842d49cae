// Where the files that fill a new program folder come from (sounds, passes, texts). An installed
// TESK finds them in ../share/tesk beside its binary, a build tree in the source tree's data/,
// and a test can name its own folder in $TESK_SHARED_DIR ahead of both.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tesk {

// The environment variable a test sets to its own shared folder.
inline constexpr const char* kSharedDirVariable = "TESK_SHARED_DIR";

struct SharedFilesSearch {
  std::filesystem::path found;                  // empty when no candidate is a folder
  std::vector<std::filesystem::path> lookedAt;  // the candidates, in the order tried
};

// Tries `envValue` (null or empty: skipped), then `exeDir`/../share/tesk, then `sourceDir`/data,
// and takes the first that is a folder.
SharedFilesSearch FindSharedFiles(const char* envValue, const std::filesystem::path& exeDir,
                                  const std::filesystem::path& sourceDir);

// The same for the running program: $TESK_SHARED_DIR and the source tree it was built from.
SharedFilesSearch FindSharedFiles(const std::filesystem::path& exeDir);

// One line naming every place looked at, for when none of them was there.
std::string DescribeMissingSharedFiles(const SharedFilesSearch& search);

}  // namespace tesk
