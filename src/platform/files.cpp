#include "platform/files.h"

#include <algorithm>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>

#include "platform/run_time_error.h"

namespace zamo {
namespace {

constexpr std::size_t kCopyBuffer = 256 * std::size_t{1024};
constexpr std::size_t kLargePiece = 64 * std::size_t{1024};

// With what is added it stays far below what any file system takes.
constexpr std::size_t kLongestOwnName = 128;
constexpr int kRandomLetters = 12;

constexpr std::string_view kEnding = ".part";

std::string nameNobodyHas(const std::string& place) {
  std::filesystem::path path(place);
  std::string name = path.filename().string();
  if (name.size() > kLongestOwnName) name = "new";
  name += '.';
  std::random_device random;
  std::uniform_int_distribution<int> letter('a', 'z');
  for (int i = 0; i < kRandomLetters; ++i) name += static_cast<char>(letter(random));
  return path.replace_filename(name.append(kEnding)).string();
}

template <typename Taker>
void readAll(const OpenFile& file, Taker take) {
  std::string part(kCopyBuffer, '\0');
  while (const std::size_t count = file.read(part.data(), part.size())) take({part.data(), count});
}

}  // namespace

bool fileExists(const std::string& path, const Yield& yield) {
  if (yield) yield();
  std::error_code error;
  return std::filesystem::exists(path, error);
}

NewFile::NewFile(std::string place) : place_(std::move(place)) {
  requireReplaceable(place_);
  while (!file_) {
    path_ = nameNobodyHas(place_);
    file_ = OpenFile::ofNewName(path_, place_);
  }
}

NewFile::~NewFile() {
  if (isInPlace_) return;
  file_.reset();
  try {
    removeFile(path_);
  } catch (const RunTimeError&) {
    // Its name tells what it is.
  }
}

void NewFile::write(std::string_view content) {
  file_->write(content);
}

void NewFile::writeCopyOf(const std::string& from) {
  readAll(OpenFile::forReading(from), [this](std::string_view part) { write(part); });
}

void NewFile::close() {
  file_->closeFlushed();
}

void NewFile::takePlace() {
  requireReplaceable(place_);
  renameFile(path_, place_);
  isInPlace_ = true;
}

bool isNewFileName(std::string_view name, std::string_view place) {
  if (!name.starts_with(place) || name.size() != place.size() + 1 + kRandomLetters + kEnding.size())
    return false;
  const std::string_view letters = name.substr(place.size() + 1, kRandomLetters);
  return name[place.size()] == '.' && name.ends_with(kEnding) &&
         std::all_of(letters.begin(), letters.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

void replaceFile(const std::string& path, std::string_view content) {
  NewFile file(path);
  file.write(content);
  file.close();
  file.takePlace();
}

bool isSameFile(const std::string& one, const std::string& other) {
  std::error_code error;
  return std::filesystem::equivalent(one, other, error);
}

void requireReadable(const std::string& path) {
  OpenFile::forReading(path);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

void keepStandardInput(const std::string& path) {
  NewFile file(path);
  readAll(OpenFile::standardInput(), [&file](std::string_view part) { file.write(part); });
  file.close();
  file.takePlace();
}

std::string contentOf(const std::string& path) {
  std::string content;
  readAll(OpenFile::forReading(path), [&content](std::string_view part) { content += part; });
  return content;
}

void appendToFile(const std::string& path, std::string_view content) {
  OpenFile::forAppending(path).write(content);
}

GrowingFile::GrowingFile(const std::string& path) : file_(path) {
  file_.takePlace();
}

GrowingFile::~GrowingFile() {
  try {
    flush();
  } catch (const RunTimeError&) {
    // Whoever lets go of an unfinished file knows that it isn't whole.
  }
}

void GrowingFile::write(std::string_view content) {
  held_ += content;
  if (held_.size() >= kLargePiece) flush();
}

void GrowingFile::flush() {
  if (!held_.empty()) file_.write(std::exchange(held_, {}));
}

void GrowingFile::close() {
  flush();
  file_.close();
}

std::string baseOf(std::string_view path) {
  return std::string(path.substr(0, path.size() < 4 ? 0 : path.size() - 4));
}

}  // namespace zamo
