// What lives for the whole run and is read and written by every command, the query and the screens.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "database/db_connection.h"
#include "model/ntc_rec.h"

namespace zamo {

inline constexpr std::string_view kWindowVersion = " KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009";

enum ValLevels : std::int16_t { kBasic = 1, kCompleteWithoutGeo = 2, kCompleteWithGeo = 3 };

// Stands in IndexList for a notice that was deleted during the selection.
inline constexpr std::int32_t kDeletedKey = 888888888;
// Tells that IndexList has no such entry.
inline constexpr std::int32_t kNoSuchEntry = 999999999;

struct RunState {
  std::int16_t RunMode = 5;  // data correction, the one mode there is
  std::string WorkDir;
  std::string UserName;
  DbConnection DbConn;
  std::int16_t ValLevel = 0;
  NtcRec CurrNtc;
  std::string NtcFileName;  // paths are as the operating system has them
  std::string DbFileName;
  std::string CorrFileName;
  std::vector<std::int32_t> IndexList;  // keys of the selection, kDeletedKey for what was deleted since
  std::int32_t IndexPos = 0;
  std::int32_t NtcCount = 0;
  std::int32_t SelKey = 0;
  std::string qrySql;
  bool qryIsNotice = false;
  bool qryConfirmed = false;
  bool GridListsContours = false;
  bool QryGT1 = false;
  bool QryGT2 = false;
  bool QryGS1 = false;
  bool QryGS2 = false;

  // Stamps for the run log: when the command started and when its file was chosen.
  std::string startTime;
  std::string fileTime;
};

}  // namespace zamo
