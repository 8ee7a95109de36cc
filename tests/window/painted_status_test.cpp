// What the operator sees of the status line while commands run: every status is painted, in its order.
#include <QFileDialog>

#include "query/query_form.h"
#include "shell/qt_forms.h"
#include "shell/qt_host.h"
#include "window/operators_hand.h"
#include "window/selection_fixture.h"

namespace zamo::test {
namespace {

using Texts = std::vector<std::string>;

constexpr std::string_view kTwoNoticesOneBad =
    "<HEAD>\r\nt_adm = F\r\n</HEAD>\r\n"
    "<NOTICE>\r\nt_notice_type = GT1\r\nt_fragment = KV19D\r\nt_action = ADD\r\nt_adm_ref_id = F-1\r\n"
    "t_freq_assgn = 474\r\n</NOTICE>\r\n"
    "<NOTICE>\r\nt_notice_type = GT2\r\nt_fragment = KV19D\r\nt_action = ADD\r\nt_adm_ref_id = F-2\r\n"
    "t_freq_assgn = 482\r\nt_geo_area = F\r\n</NOTICE>\r\n"
    "<TAIL>\r\nt_num_notices = 2\r\n</TAIL>\r\n";

// Writes down what the line and its mark look like each time they are painted.
class Eye : public QObject {
 public:
  explicit Eye(QLineEdit& line) : line_(line) {
    line.installEventFilter(this);
    for (QAbstractButton* const mark : line.findChildren<QAbstractButton*>()) mark->installEventFilter(this);
  }

  Texts seen;
  bool markIsPainted = false;  // with the text that was seen last

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    if (watched != &line_) {
      seen.back() = "! " + line_.text().toStdString();
      return false;
    }
    const std::string text = line_.text().toStdString();
    if (seen.empty() || (seen.back() != text && seen.back() != "! " + text)) seen.push_back(text);
    return false;
  }

 private:
  QLineEdit& line_;
};

// The program's own host; the operator's answers come from the test.
class PaintedStatus : public SelectionWindow {
 protected:
  PaintedStatus() {
    shell.host.setStatus = real.setStatus;
    shell.host.repaint = real.repaint;
    shell.host.yield = real.yield;
    (void)QTest::qWaitForWindowExposed(&window);
  }

  const Host real = makeQtHost(window);
  Eye eye{control<QLineEdit>("TxtProcessingStatus")};
};

TEST_F(PaintedStatus, of_a_load_with_findings_is_seen_from_the_check_to_the_grid) {
  open(kTwoNoticesOneBad, "mnuFileOpenTxtComplVNoGeo");
  EXPECT_EQ(eye.seen,
            (Texts{"Checking the File format. Please be patient....",
                   "Basic validation is running. Please be patient....", "Notice no : 1", "Notice no : 2",
                   "Complete validation without geo coordinates is running. Please be patient....",
                   "Complete validation without Geographic validation : Notice no : 1",
                   "Complete validation without Geographic validation : Notice no : 2",
                   "! Complete validation without geo coordinates has error(s).",
                   "Creating database structure", "Reading and writing to the database", "Notice no : 1",
                   "Notice no : 2", "Retrieving the data ... Please be patient", "Number of records : 2",
                   "Written sucessfully to the database - Number of notices : 2"}));
}

TEST_F(PaintedStatus, of_a_file_that_is_refused_has_its_mark) {
  open(kFileWithoutTail);
  EXPECT_EQ(eye.seen, (Texts{"Checking the File format. Please be patient....",
                             "! File format has errors. Please correct and re-validate to proceed"}));
  eye.seen.clear();
  open(kFileWithBadPolar);
  EXPECT_EQ(eye.seen, (Texts{"Checking the File format. Please be patient....",
                             "Basic validation is running. Please be patient....", "Notice no : 1",
                             "! Basic validation has errors. Please correct and re-validate to proceed"}));
}

TEST_F(PaintedStatus, of_a_database_a_notice_and_an_export_is_seen) {
  store(1);
  openDatabase();
  EXPECT_EQ(eye.seen, (Texts{"Retrieving the data ... Please be patient", "Number of records : 1",
                             "Sucessfully opened the database - Number of notices : 1"}));
  eye.seen.clear();
  doubleClick(grid(), 0, 0);
  EXPECT_EQ(eye.seen, (Texts{"Reading the selected notice from database",
                             "Database was sucessfully updated - Number of notices : 1"}));
  eye.seen.clear();
  script.answers.push_back(true);
  menu("mnuTxtDBAll").trigger();
  EXPECT_EQ(eye.seen,
            (Texts{"Writing the selected record to an electronic file", "Electronic file completed"}));
}

TEST_F(PaintedStatus, of_many_notices_costs_little_and_ends_with_the_last_number) {
  shell.screen.statusVisible = true;
  shell.draw(shell.screen);
  const int count = 200000;
  for (int i = 1; i <= count; ++i) shell.host.setStatus("Notice no : " + std::to_string(i));
  EXPECT_LT(eye.seen.size(), count / 2U);
  shell.host.setStatus("Creating database structure");
  ASSERT_GE(eye.seen.size(), 2U);
  EXPECT_EQ(eye.seen[eye.seen.size() - 2], "Notice no : 200000");
  EXPECT_EQ(eye.seen.back(), "Creating database structure");
}

}  // namespace
}  // namespace zamo::test
