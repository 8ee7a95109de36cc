// What stands beside a database.
#pragma once

#include <filesystem>
#include <string>

namespace zamo {

// What the engine keeps beside a database, open or not closed well.
inline constexpr const char* kJournalEndings[] = {"-journal", "-wal", "-shm"};

inline std::filesystem::path folderOf(const std::string& path) {
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  return folder.empty() ? std::filesystem::path(".") : folder;
}

}  // namespace zamo
