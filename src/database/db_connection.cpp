#include "database/db_connection.h"

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/message.h"
#include "platform/run_time_error.h"
#include "platform/system.h"

namespace zamo {
namespace {

// clang-format off
const Message kNotSaved("box \"Erreur base de donn\351es\": a notice could not be stored as a whole", "The data was not saved to the database");
const Message kCentral("box \"Error in Reading Database\": the database is the full reference database", "Error : You must first create a working database by extracting the necessary data from this database. \r\nThis can be done using the tool 'Data Query and Extraction'\r\nand then you may open the extracted database with this tool");
const Message kOldStructure("box \"Old Database Structure\": the master template can't be opened, or it or a database has no table addr_code", "Addr_code and Op_agcy tables have been added to the database. Please get the latest database version. ");
const Message kNoTemplate("box: there is no master template to copy", "Please copy MasterHDLK_WQN.mdb to the same location as the executable");
const Message kCopyFailed("box: the master template can't be copied; number and text of the error", "Error %1 : %2");
// clang-format on

bool holdsTable(Connection& connection, std::string_view table) {
  try {
    connection.openTable(table);
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

// What the engine keeps beside an open database.
constexpr const char* kCompanions[] = {"-journal", "-wal", "-shm"};

// Takes what stands in an old database's journal into it, and makes sure that nobody else has it open.
void settleOldDatabase(const std::string& path) {
  if (!fileExists(path)) return;
  try {
    Connection old(path);
    if (!old.mergeJournal())
      throw RunTimeError{kPermissionDenied, "The database is open elsewhere: " + textFromUtf8(path)};
  } catch (const RunTimeError& error) {
    // What is no database, or a broken one, is replaced.
    if (error.number == kPermissionDenied) throw;
  }
}

// Beside the destination first, so that a copy that fails leaves what was there. What stands beside the old
// database goes with it: the engine would take it for that of the new one.
void copyDatabaseFile(const std::string& from, const std::string& destination) {
  if (isSameFile(from, destination)) {
    throw RunTimeError{kPermissionDenied, "The template can't be its own copy: " + textFromUtf8(destination)};
  }
  for (const char* ending : kCompanions) requireRemovable(destination + ending);
  NewFile copy(destination);
  copy.writeCopyOf(from);
  copy.close();
  settleOldDatabase(destination);
  for (const char* ending : kCompanions) removeFile(destination + ending);
  copy.takePlace();
}

bool tellOldStructure(const Host& host) {
  host.showBox({kOldStructure.filled({}), "Old Database Structure"});
  return false;
}

}  // namespace

bool OpenDB(const Host& host, const std::string& path, DbConnection& connection) {
  connection.reset();
  try {
    connection = std::make_unique<Connection>(path);
    return true;
  } catch (const RunTimeError& error) {
    showRunTimeError(host, error.number, "OpenDB", error.text);
    return false;
  }
}

void closeDB(DbConnection& connection) {
  connection.reset();
}

std::string masterTemplatePath() {
  return executableFolder() + "/MasterHDLK_WQN.mdb";
}

bool endTransaction(const Host& host, bool success, Connection& connection) {
  try {
    if (success) {
      connection.CommitTrans();
      return true;
    }
  } catch (const RunTimeError& error) {
    showRunTimeError(host, error.number, "endTransaction", error.text);
  }
  try {
    connection.RollbackTrans();
  } catch (const RunTimeError& error) {
    showRunTimeError(host, error.number, "endTransaction", error.text);
  }
  host.showBox({kNotSaved.filled({}), "Erreur base de donn\351es", BoxIcon::exclamation});
  return false;
}

bool isCentralDatabase(const Host& host, Connection& connection) {
  if (!holdsTable(connection, "lmz_aux_border_contour")) return false;
  host.showBox({kCentral.filled({}), "Error in Reading Database", BoxIcon::information});
  return true;
}

bool dbHasAddrCodeTable(const Host& host, Connection& connection) {
  return holdsTable(connection, "addr_code") || tellOldStructure(host);
}

bool copyMasterDB(const Host& host, const std::string& destination, const std::string& templatePath) {
  try {
    copyDatabaseFile(templatePath, destination);
    return true;
  } catch (const RunTimeError& error) {
    if (error.number == kFileNotFound) {
      host.showBox({kNoTemplate.filled({}), ""});
    } else {
      host.showBox({kCopyFailed.filled({std::to_string(error.number), error.text}), ""});
    }
    return false;
  }
}

bool masterHasAddrCodeTable(const Host& host, const std::string& templatePath) {
  DbConnection connection;
  const bool opened = OpenDB(host, templatePath, connection);
  return (opened && holdsTable(*connection, "addr_code")) || tellOldStructure(host);
}

}  // namespace zamo
