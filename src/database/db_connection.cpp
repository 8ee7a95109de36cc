#include "database/db_connection.h"

#include "platform/files.h"
#include "platform/message.h"
#include "platform/run_time_error.h"

namespace zamo {
namespace {

const Message kOldStructure(
    "box \"Old Database Structure\": the master template can't be opened or has no table addr_code",
    "Addr_code and Op_agcy tables have been added to the database. Please get the latest database version. ");

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

bool masterHasAddrCodeTable(const Host& host, const std::string& templatePath) {
  DbConnection connection;
  if (OpenDB(host, templatePath, connection)) {
    try {
      connection->openTable("addr_code");
      return true;
    } catch (const RunTimeError&) {
      // A template without the table: the user is told below, in words that help more than the engine's.
    }
  }
  host.showBox({kOldStructure.filled({}), "Old Database Structure"});
  return false;
}

}  // namespace zamo
