// A working database with notices, their selection, and all that a notice form works with. Who shows the
// forms decides what becomes of them.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "database/raw_database.h"
#include "database/read_notice.h"
#include "database/write_notice.h"
#include "model/ntc_reset.h"
#include "screens/control_text.h"
#include "screens/notice_form.h"
#include "screens/notice_walk.h"
#include "support/places.h"
#include "support/scripted_host.h"
#include "support/temp_folder.h"
#include "support/valid_notices.h"

namespace zamo::test {

// A map on which every place lies in `country`, and no contour crosses itself.
inline GzmpMap makeOneCountryMap(const std::string& country) {
  GzmpMap map;
  map.gzmpSetUnit = [](int) {};
  map.gzmpInit = [] { return 0; };
  map.gzmpOpenData = [] { return 1; };
  map.gzmpParseCoords = [](const std::string&) { return GzmpPoint{47, 2}; };
  map.gzmpLoadMapAround = [](const GzmpPoint&, float) {};
  map.gzmpCountryAtPoint = [country](const GzmpPoint&) { return (country + "   ").substr(0, 3); };
  map.gzmpNearestCountries = [](const GzmpPoint&, float, int, const std::string&, int) {
    return GzmpNearest{};
  };
  map.gzmpFindCrossings = [](const std::vector<GzmpPoint>&) { return GzmpCrossings{}; };
  return map;
}

class NoticeSelection : public testing::Test {
 protected:
  NoticeSelection() {
    run.DbFileName = folder.file("notices.mdb");
    std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", run.DbFileName);
    run.DbConn = std::make_unique<Connection>(run.DbFileName);
    letTriggersRun(run.DbConn->handle());
    run.ValLevel = kCompleteWithGeo;
    work.agencies = {[this](std::string_view, std::string_view) { return agenciesKnown; },
                     [this](std::string_view, std::string_view) { return agenciesKnown; }};
  }

  // Stores a notice and puts it at the end of the selection.
  std::int32_t add(NtcRec ntc) {
    ContourOutcome outcome;
    EXPECT_TRUE(writeNtcToDB(host, ntc, *run.DbConn, outcome, true));
    const std::int32_t key = ntc.t_notice_type == "GA1" ? ++contours : ntc.vornakey;
    appendKeyToList(run.IndexList, run.NtcCount, key);
    return key;
  }
  std::int32_t add(std::string_view kind, const std::string& reference = "") {
    NtcRec ntc = makeKind(kind);
    if (!reference.empty()) ntc.t_adm_ref_id = reference;
    return add(ntc);
  }

  NtcRec stored(std::int32_t key) {
    NtcRec ntc;
    resetNtc(ntc);
    EXPECT_TRUE(readNtcFromDB(host, key, ntc, *run.DbConn)) << key;
    return ntc;
  }
  bool isStored(std::int32_t key) {
    NtcRec ntc;
    return readNtcFromDB(host, key, ntc, *run.DbConn);
  }

  // Opens the entry of the selection, as a row of the grid does.
  void openEntry(std::int32_t idx) {
    run.SelKey = run.IndexList.at(static_cast<std::size_t>(idx));
    openNtcFromGrid(work, run.SelKey, idx, run.qryIsNotice ? "" : "GA1");
  }

  // The boxes, each as "title: text", and nothing else of the kind.
  void expectBoxes(const std::vector<std::string>& expected) { EXPECT_EQ(toldBy(script.boxes), expected); }
  void expectQuestions(const std::vector<std::string>& expected) {
    EXPECT_EQ(toldBy(script.questions), expected);
  }
  static std::vector<std::string> toldBy(const std::vector<Box>& boxes) {
    std::vector<std::string> all;
    for (const Box& box : boxes) all.push_back(box.title + ": " + box.text);
    return all;
  }

  TempFolder folder;
  Script script;
  Host host = makeScriptedHost(script);
  RunState run;
  GzmpMap map = makeOneCountryMap("F");
  Workplace work{host, run, map, {}, {}, {}, {}, false};
  bool agenciesKnown = true;
  std::int32_t contours = 0;
};

}  // namespace zamo::test
