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
// clang-format on

bool holdsTable(Connection& connection, std::string_view table) {
  try {
    connection.openTable(table);
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

bool tellOldStructure(const Host& host) {
  host.showBox({kOldStructure.filled({}), "Old Database Structure"});
  return false;
}

}  // namespace

bool OpenDB(const Host& host, const std::string& path, DbConnection& connection, Purpose purpose) {
  connection.reset();
  try {
    connection = std::make_unique<Connection>(path, purpose);
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

bool masterHasAddrCodeTable(const Host& host, const std::string& templatePath) {
  DbConnection connection;
  const bool opened = OpenDB(host, templatePath, connection);
  return (opened && holdsTable(*connection, "addr_code")) || tellOldStructure(host);
}

}  // namespace zamo
