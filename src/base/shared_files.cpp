// The search for the shared files, in the order the header gives.
#include "base/shared_files.h"

#include <cstdlib>
#include <system_error>

namespace tesk {

namespace fs = std::filesystem;

SharedFilesSearch FindSharedFiles(const char* envValue, const fs::path& exeDir,
                                  const fs::path& sourceDir) {
  SharedFilesSearch search;
  if (envValue != nullptr && *envValue != '\0') search.lookedAt.emplace_back(envValue);
  search.lookedAt.push_back((exeDir / ".." / "share" / "tesk").lexically_normal());
  if (!sourceDir.empty()) search.lookedAt.push_back((sourceDir / "data").lexically_normal());
  for (const fs::path& candidate : search.lookedAt) {
    std::error_code ec;
    if (fs::is_directory(candidate, ec)) {
      search.found = candidate;
      break;
    }
  }
  return search;
}

SharedFilesSearch FindSharedFiles(const fs::path& exeDir) {
  return FindSharedFiles(std::getenv(kSharedDirVariable), exeDir, fs::path(TESK_SOURCE_DIR));
}

std::string DescribeMissingSharedFiles(const SharedFilesSearch& search) {
  std::string line = "no shared files to fill the new program folder from; looked at";
  for (std::size_t i = 0; i < search.lookedAt.size(); ++i)
    line += (i == 0 ? " " : ", ") + search.lookedAt[i].string();
  return line;
}

}  // namespace tesk
