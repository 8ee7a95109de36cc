// Measures how long a notice form takes to open on a notice of a large database, to go on to the next one and
// to save, each until the window is painted, against the sqlite3 shell reading and rewriting the same rows.
#include <QApplication>
#include <QPushButton>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "database/agency_lookups.h"
#include "database/row_cursor.h"
#include "screens/field_checks.h"
#include "screens/notice_walk.h"
#include "screens/notice_window.h"
#include "shell/start_up.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kNotices = 60;

double millisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Processor time too: on a machine with other work on it the other one tells more of that work.
struct Stopwatch {
  Clock::time_point wall = Clock::now();
  std::clock_t processor = std::clock();
};

struct Series {
  std::vector<double> wall, processor;
  void add(const Stopwatch& since) {
    wall.push_back(millisecondsSince(since.wall));
    processor.push_back(1000.0 * static_cast<double>(std::clock() - since.processor) / CLOCKS_PER_SEC);
  }
};

double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2), values.end());
  return values[values.size() / 2];
}

double longest(const std::vector<double>& values) {
  return *std::max_element(values.begin(), values.end());
}

[[noreturn]] void fail(const std::string& what) {
  std::fprintf(stderr, "%s\n", what.c_str());
  std::exit(1);
}

struct Kind {
  const char* name;
  const char* type;       // that the grid hands over
  const char* selection;  // the keys, in the order of the walk
  const char* keyColumn;
  const char* table;
  std::vector<std::string> children;  // that hold rows of a notice and are written anew on saving
  const char* links = "";             // a statement that reads what it is linked to, the key left out
};

// clang-format off
std::vector<Kind> kinds() {
  return {
      {"GT1", "GT1", "SELECT vornakey FROM fmtv_vorna WHERE notice_typ = 'GT1'", "vornakey", "fmtv_vorna",
       {"fmtv_ant_hgt", "fmtv_ant_diag", "fmtv_coord", "fmtv_rmks", "fmtv_op_prd"}},
      {"GT2", "GT2", "SELECT vornakey FROM fmtv_vorna WHERE notice_typ = 'GT2'", "vornakey", "fmtv_vorna",
       {"fmtv_coord", "fmtv_rmks"},
       "SELECT * FROM lmz_allotment LEFT JOIN lmz_sub_area USING (allotkey) LEFT JOIN lmz_contour USING (contourkey)"},
      {"GA1", "GA1", "SELECT contourkey FROM lmz_contour WHERE nb_test_pts IS NOT NULL", "contourkey",
       "lmz_contour", {"lmz_contour_pt"}},
  };
}
// clang-format on

std::vector<std::int32_t> keysOf(const std::string& sql, zamo::Connection& connection) {
  std::vector<std::int32_t> keys;
  zamo::RowCursor rows(sql, connection);
  while (rows.next()) keys.push_back(std::stoi(std::string(rows.value(0).value_or("0"))));
  return keys;
}

// --- the sqlite3 shell, its start and the opening of the database included

std::string readingSql(const Kind& kind, std::int32_t key) {
  const std::string where = std::string(" WHERE ") + kind.keyColumn + " = " + std::to_string(key) + ";\n";
  std::string sql = std::string("SELECT * FROM ") + kind.table + where;
  for (const std::string& child : kind.children) sql += "SELECT * FROM " + child + where;
  return *kind.links == 0 ? sql : sql + kind.links + where;
}

// The notice's row, and its rows in the other tables taken out and put in again.
std::string writingSql(const Kind& kind, std::int32_t key) {
  const std::string where = std::string(" WHERE ") + kind.keyColumn + " = " + std::to_string(key) + ";\n";
  std::string sql = std::string("PRAGMA temp_store = MEMORY;\nBEGIN IMMEDIATE;\nUPDATE ") + kind.table +
                    " SET d_updated = date('now')" + where;
  for (const std::string& child : kind.children) {
    sql += "CREATE TEMP TABLE kept AS SELECT * FROM " + child + where + "DELETE FROM " + child + where +
           "INSERT INTO " + child + " SELECT * FROM kept;\nDROP TABLE kept;\n";
  }
  return sql + "COMMIT;\n";
}

double shellMilliseconds(const std::string& database, const std::string& sql) {
  const std::string file = database + ".bench.sql";
  std::ofstream(file) << sql;
  const std::string command = "sqlite3 '" + database + "' <'" + file + "' >/dev/null";
  const auto start = Clock::now();
  if (std::system(command.c_str()) != 0) fail("sqlite3 failed on " + sql);
  const double time = millisecondsSince(start);
  std::filesystem::remove(file);
  return time;
}

// --- the forms

struct Times {
  Series open, walk, save;
  std::vector<double> shellRead, shellWrite;
};

void press(zamo::NoticeWindow& window, const char* button) {
  window.findChild<QPushButton*>(button)->click();
  window.grab();
}

class Bench {
 public:
  explicit Bench(const std::string& database) : database_(database) {
    makeHost();
    shell_.run.DbFileName = database;
    shell_.run.ValLevel = zamo::kCompleteWithGeo;
    if (!zamo::OpenDB(shell_.host, database, shell_.run.DbConn)) fail("no database " + database);
    if (!zamo::openMap(shell_.host, zamo::mapBesideExecutable(shell_))) fail("no map beside the executable");
  }

  Times measure(const Kind& kind) {
    zamo::RunState& run = shell_.run;
    run.IndexList = keysOf(kind.selection, *run.DbConn);
    run.NtcCount = static_cast<std::int32_t>(run.IndexList.size());
    if (run.IndexList.size() < 2 * kNotices) fail(std::string("too few notices of the kind ") + kind.name);
    Times times;
    work_.dialogs.showForm = [&](zamo::NoticeForm& form) { actOn(form, times); };
    for (std::size_t i = 0; i < kNotices; ++i) {
      const std::size_t place = i * (run.IndexList.size() - 1) / kNotices;
      run.SelKey = run.IndexList[place];
      start_ = Stopwatch();
      zamo::openNtcFromGrid(work_, run.SelKey, static_cast<std::int32_t>(place), kind.type);
      times.shellRead.push_back(shellMilliseconds(database_, readingSql(kind, run.SelKey)));
      times.shellWrite.push_back(shellMilliseconds(database_, writingSql(kind, run.SelKey)));
    }
    if (saved_ != kNotices || times.save.wall.size() != kNotices)
      fail("not every notice was saved: " + lastBox_);
    saved_ = 0;
    return times;
  }

 private:
  void makeHost() {
    zamo::Host& host = shell_.host;
    host.showBox = [this](const zamo::Box& box) {
      lastBox_ = box.text;
      if (box.text == "The notice was sucessfully updated in the Database") ++saved_;
    };
    host.askYesNo = [](const zamo::Box&) { return true; };
    host.askText = [](const zamo::Box&) { return std::string(); };
    host.beep = [] {};
    host.setStatus = [](std::string_view) {};
    host.repaint = [] {};
    host.yield = [] {};
    host.setHourglass = [](bool) {};
    host.now = [] { return zamo::DateTime{zamo::Date(std::chrono::year(2009) / 4 / 8), 12, 0, 0}; };
    host.systemLogonName = [] { return std::string("bench"); };
  }

  void actOn(zamo::NoticeForm& form, Times& times) {
    zamo::NoticeWindow window(form, zamo::mayLeaveField);
    window.show();
    window.grab();
    times.open.add(start_);
    Stopwatch start;
    press(window, "Button_Next_Ntc");
    times.walk.add(start);
    start = {};
    press(window, "Button_Next");
    times.save.add(start);
  }

  std::string database_;
  zamo::Shell shell_;
  zamo::MasterAgencies agencies_;
  zamo::Workplace work_{
      shell_.host,
      shell_.run,
      shell_.map.gzmp,
      {[this](std::string_view adm, std::string_view code) { return agencies_.isOpAgcyOfAdm(adm, code); },
       [this](std::string_view adm, std::string_view code) { return agencies_.isAddrCodeOfAdm(adm, code); }},
      {},
      {},
      {},
      false};
  Stopwatch start_;
  std::size_t saved_ = 0;
  std::string lastBox_;
};

void print(const char* kind, const char* what, const Series& form, const std::vector<double>& shell) {
  std::printf("%-4s %-16s %14.1f %10.1f %11.1f %17.1f\n", kind, what, median(form.processor),
              median(form.wall), longest(form.wall), median(shell));
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "default.warning=false");
  const QApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: screens_bench DATABASE\n", stderr);
    return 2;
  }
  Bench bench(argv[1]);
  std::printf("%-4s %-16s %14s %10s %11s %17s\n", "ms", "until painted", "processor", "median", "longest",
              "sqlite3 shell");
  for (const Kind& kind : kinds()) {
    const Times times = bench.measure(kind);
    print(kind.name, "open from grid", times.open, times.shellRead);
    print(kind.name, "next notice", times.walk, times.shellRead);
    print(kind.name, "update", times.save, times.shellWrite);
  }
}
