#include "database/new_database.h"

#include <sqlite3.h>

#include <filesystem>
#include <utility>

#include "database/connection.h"
#include "database/corrections.h"
#include "database/files_beside.h"
#include "database/kept_copies.h"
#include "platform/code_page.h"
#include "platform/message.h"
#include "platform/open_file.h"

namespace zamo {
namespace {

namespace fs = std::filesystem;

// clang-format off
const Message kNoTemplate("box: there is no master template to copy", "Please copy MasterHDLK_WQN.mdb to the same location as the executable");
const Message kCopyFailed("box: the master template can't be copied, or the copy can't take its place; number and text of the error", "Error %1 : %2");
const Message kOpenElsewhere("box, behind number 70: a database that is to be replaced is in use; its path and by whom", "The database is open elsewhere: %1 (%2)");
const Message kUser("the same: a program, its process and the account it runs under", "%1, process %2, user %3");
const Message kUnseenUser("the same: it can't be seen who has it open", "by another user or on another computer");
const Message kTemplateItself("box, behind number 70: the working database would take the place of the template", "The template can't be its own copy: %1");
const Message kKept("line of its own below the status: a load has replaced a database that was worked on; the path of its copy", "The database that was there is kept as %1");
// clang-format on

// After a load of minutes, somebody who only looks into the old database is waited for.
constexpr std::chrono::milliseconds kPatience(2000);

std::string userText(const FileUser& user) {
  if (user.program.empty()) return kUnseenUser.filled({});
  return kUser.filled({user.program, std::to_string(user.process), user.account});
}

void requireNobody(const std::string& database, const std::optional<FileUser>& user) {
  if (user) throw DatabaseInUse(database, *user);
}

// What is no database, or a broken one, is no reason to fail; what is busy or can't be reached is.
bool isUnreadable(const RunTimeError& error) {
  switch (error.number & 0xFF) {
    case SQLITE_OK:
    case SQLITE_ERROR:
    case SQLITE_CORRUPT:
    case SQLITE_TOOBIG:
    case SQLITE_NOTADB:
      return true;
    default:
      return false;
  }
}

// Takes what stands in the database's journal into it. Gives whether the database must not be lost.
bool settle(const std::string& database) {
  std::error_code unknown;
  if (fs::file_size(database, unknown) == 0) return false;
  try {
    Connection old(database, Purpose::settle);
    if (!old.mergeJournal()) throw DatabaseInUse(database, {});
    return holdsCorrections(old);
  } catch (const DatabaseInUse&) {
    throw;
  } catch (const RunTimeError& error) {
    if (error.number == SQLITE_BUSY) throw DatabaseInUse(database, {});
    if (!isUnreadable(error)) throw;
    return true;
  }
}

// A name under which this database, or a copy that is kept of it, was in the making.
bool isLeftover(std::string_view name, std::string_view place) {
  const std::size_t dot = name.rfind(".mdb.");
  if (dot == std::string_view::npos) return false;
  const std::string_view made = name.substr(0, dot + 4);
  return isNewFileName(name, made) && (made == place || isCopyName(made, place));
}

void removeLeftover(const std::string& leftover, const std::string& place) {
  try {
    requireNobody(place, SoleUse(leftover).ask());
    removeFile(leftover);
  } catch (const DatabaseInUse&) {
    throw;
  } catch (const RunTimeError&) {
    // Somebody else's, which he may remove.
  }
}

// What is in use still is somebody else's making, and refuses ours.
void removeLeftovers(const std::string& place) {
  const std::string name = fs::path(place).filename().string();
  std::error_code failed;
  for (const fs::directory_entry& entry : fs::directory_iterator(folderOf(place), failed)) {
    if (isLeftover(entry.path().filename().string(), name)) removeLeftover(entry.path().string(), place);
  }
}

// The box in which a database that couldn't be made or put in place is told.
void tellFailure(const Host& host, const RunTimeError& error) {
  host.showBox({kCopyFailed.filled({std::to_string(error.number), error.text}), ""});
}

}  // namespace

DatabaseInUse::DatabaseInUse(const std::string& database, const FileUser& user)
    : RunTimeError{kPermissionDenied, kOpenElsewhere.filled({textFromUtf8(database), userText(user)})} {}

NewDatabase::NewDatabase(std::string place, const std::string& templatePath) : place_(std::move(place)) {
  if (isSameFile(templatePath, place_))
    throw RunTimeError{kPermissionDenied, kTemplateItself.filled({textFromUtf8(place_)})};
  {
    const FolderTurn turn(place_);
    requireReplaceable(place_);
    for (const char* ending : kJournalEndings) requireRemovable(place_ + ending);
    if (replacesAnother()) requireNobody(place_, SoleUse(place_).ask());
    removeLeftovers(place_);
    file_.emplace(place_);
    hold_ = holdFile(file_->path());
  }
  file_->writeCopyOf(templatePath);
  file_->close();
}

bool NewDatabase::replacesAnother() const {
  return fileExists(place_);
}

void NewDatabase::takePlace(const Host& host) {
  OpenFile::forAppending(file_->path()).closeFlushed();
  const FolderTurn turn(place_);
  std::string kept;
  std::optional<SoleUse> old;
  try {
    if (replacesAnother()) clearPlace(host, kept, old);
    // The engine would take them for those of the new database.
    for (const char* ending : kJournalEndings) removeFile(place_ + ending);
    file_->takePlace();
  } catch (const RunTimeError&) {
    // What fails behind the renaming leaves the old database nowhere but there.
    if (fileExists(file_->path())) removeCopy(kept);
    throw;
  }
  if (kept.empty()) return;
  removeOldCopies(place_);
  host.setNote(kKept.filled({textFromUtf8(kept)}));
}

void NewDatabase::clearPlace(const Host& host, std::string& kept, std::optional<SoleUse>& old) const {
  requireReplaceable(place_);
  old.emplace(place_);
  requireNobody(place_, old->ask(kPatience));
  // What a link leads to stays where it is.
  std::error_code unknown;
  if (!fs::is_symlink(place_, unknown) && settle(place_)) kept = keepCopy(place_, host.now());
  requireNobody(place_, old->shutOut());
}

MasterCopy copyMasterDB(const Host& host, const std::string& destination, const std::string& templatePath) {
  try {
    return {std::make_unique<NewDatabase>(destination, templatePath)};
  } catch (const DatabaseInUse& error) {
    tellFailure(host, error);
    return {nullptr, true};
  } catch (const RunTimeError& error) {
    if (error.number == kFileNotFound) {
      host.showBox({kNoTemplate.filled({}), ""});
    } else {
      tellFailure(host, error);
    }
    return {};
  }
}

bool putInPlace(const Host& host, NewDatabase& database) {
  try {
    database.takePlace(host);
    return true;
  } catch (const RunTimeError& error) {
    tellFailure(host, error);
    return false;
  }
}

}  // namespace zamo
