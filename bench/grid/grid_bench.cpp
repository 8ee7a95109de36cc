// Measures how long the grid of notices takes from OK in the query form to its first picture, and to scroll,
// against the sqlite3 shell reading the same rows.
#include <QApplication>
#include <QScrollBar>
#include <QTableView>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "database/dialect.h"
#include "platform/code_page.h"
#include "query/selection.h"
#include "shell/main_window.h"
#include "shell/qt_host.h"
#include "shell/start_up.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRounds = 5;
constexpr int kPages = 400;

double millisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2), values.end());
  return values[values.size() / 2];
}

double residentMegabytes() {
  std::ifstream status("/proc/self/statm");
  double size = 0;
  double resident = 0;
  status >> size >> resident;
  return resident * 4096 / 1e6;
}

struct Shape {
  const char* name;
  zamo::QueryChoices choices;
};

std::vector<Shape> shapes() {
  std::vector<Shape> all(4);
  all[0].name = "all notices";
  all[1].name = "assignments";
  all[1].choices.GT1 = all[1].choices.GS1 = true;
  all[2].name = "allotments";
  all[2].choices.GT2 = all[2].choices.GS2 = true;
  all[3].name = "contours";
  all[3].choices.isNotice = false;
  return all;
}

// The shell hasn't got the function that the joined texts go through; trim is as much work for it.
double shellMilliseconds(const std::string& database, const std::string& sql) {
  std::string statement = zamo::utf8FromText(zamo::engineSql(sql));
  for (std::size_t at = 0; (at = statement.find("shown_text(", at)) != std::string::npos;)
    statement.replace(at, 11, "trim(");
  const std::string file = database + ".bench.sql";
  std::ofstream(file) << statement << ";\n";
  const std::string command = "sqlite3 '" + database + "' <'" + file + "' >/dev/null";
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) {
    const auto start = Clock::now();
    if (std::system(command.c_str()) != 0) std::exit(1);
    times.push_back(millisecondsSince(start));
  }
  std::filesystem::remove(file);
  return median(times);
}

struct Measured {
  int rows = 0;
  double toPicture = 0;
  double longestPage = 0;
  double resident = 0;
};

Measured measure(zamo::Shell& shell, zamo::MainWindow& window, const Shape& shape) {
  auto& grid = *window.findChild<QTableView*>("NtcDataGrid");
  Clock::time_point confirmed;
  shell.forms.showQueryForm = [&] {
    shell.run.qrySql = zamo::makeSelection(shape.choices).qrySql;
    shell.run.qryIsNotice = shape.choices.isNotice;
    shell.run.qryConfirmed = true;
    shell.run.QryGT1 = shape.choices.GT1;
    shell.run.QryGT2 = shape.choices.GT2;
    shell.run.QryGS1 = shape.choices.GS1;
    shell.run.QryGS2 = shape.choices.GS2;
    confirmed = Clock::now();
  };
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) {
    zamo::mnuQueryNew(shell);
    window.grab();
    times.push_back(millisecondsSince(confirmed));
  }
  Measured measured{grid.model()->rowCount(), median(times), 0, residentMegabytes()};
  QScrollBar& bar = *grid.verticalScrollBar();
  for (int page = 0; page < kPages; ++page) {
    const auto start = Clock::now();
    bar.setValue(static_cast<int>(static_cast<long long>(bar.maximum()) * page / kPages));
    grid.grab();
    measured.longestPage = std::max(measured.longestPage, millisecondsSince(start));
  }
  return measured;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: grid_bench DATABASE\n", stderr);
    return 2;
  }
  const std::string database = argv[1];
  zamo::Shell shell;
  zamo::MainWindow window(shell);
  shell.host = zamo::makeQtHost(window);
  zamo::startUp(shell, {});
  window.show();
  if (!zamo::OpenDB(shell.host, database, shell.run.DbConn)) return 1;

  const double before = residentMegabytes();
  std::printf("%-14s %8s %16s %18s %16s %10s\n", "grid of", "rows", "to picture, ms", "sqlite3 shell, ms",
              "longest page, ms", "MB");
  for (const Shape& shape : shapes()) {
    const Measured measured = measure(shell, window, shape);
    std::printf("%-14s %8d %16.0f %18.0f %16.1f %+10.0f\n", shape.name, measured.rows, measured.toPicture,
                shellMilliseconds(database, zamo::makeSelection(shape.choices).qrySql), measured.longestPage,
                measured.resident - before);
  }
}
