#include "database/export.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <map>

#include "database/working_database.h"

namespace zamo {
namespace {

using test::readFile;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kAllNotices = "SELECT fmtv_vorna.vornakey FROM fmtv_vorna ";
constexpr std::string_view kAllContours =
    "SELECT lmz_contour.contourkey FROM lmz_contour WHERE lmz_contour.nb_test_pts > 0 ";

// What stands in front of every file here.
const std::string kHeader =
    "File created on 2026-03-07-09:05:04\r\n"
    "Processed by tester\r\n"
    "Program Id:  The Program 1.0\r\n"
    " \r\n"
    "\r\n";

const std::string kHeadOfF = "<HEAD>\r\nt_adm = F\r\n</HEAD>\r\n";

std::string suppression(int number, std::string_view reference) {
  return "<NOTICE>\r\nNotice No = " + std::to_string(number) +
         "\r\nt_notice_type = TB5\r\nt_trg_adm_ref_id = " + std::string(reference) + "\r\n</NOTICE>\r\n";
}

std::string contour(int number, std::string_view id) {
  return "<NOTICE>\r\nNotice No = " + std::to_string(number) +
         "\r\nt_notice_type = GA1\r\nt_ctry = F\r\nt_contour_id = " + std::string(id) +
         "\r\nt_nb_test_pts = 1\r\n<POINT>\r\nt_long = +0021030\r\nt_lat = +485000\r\n</POINT>\r\n"
         "</NOTICE>\r\n";
}

std::string tail(int notices) {
  return "<TAIL>\r\nt_num_notices = " + std::to_string(notices) + "\r\n</TAIL>\r\n\r\n";
}

// Lets files grow to `bytes` only, so that writes fail midway as they do on a full disk.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit limit{bytes, old_.rlim_max};
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, oldHandler_);
  }

 private:
  rlimit old_{};
  void (*oldHandler_)(int);
};

class AnExport : public test::WorkingDatabase {
 protected:
  AnExport() { script.answers = {true}; }

  void addNotice(int key, const std::string& adm, const std::string& reference) {
    raw.run("INSERT INTO fmtv_vorna (vornakey, adm, notice_typ, adm_ref_id) VALUES (" + std::to_string(key) +
            ", '" + adm + "', 'TB5', '" + reference + "')");
  }

  void addContour(int key, const std::string& adm, const std::string& id) {
    const std::string keyText = std::to_string(key);
    raw.run("INSERT INTO lmz_contour (contourkey, contour_id, ctry, adm, nb_test_pts) VALUES (" + keyText +
            ", " + id + ", 'F', '" + adm + "', 1)");
    raw.run("INSERT INTO lmz_contour_pt VALUES (" + keyText + ", 1, 2, 10, 30, 'E', 48, 50, 0, 'N')");
  }

  bool exported(std::string_view notices = kAllNotices, std::string_view contours = kAllContours,
                std::string_view header = "") {
    return exportDBToTxt(host, output, connection, run, notices, contours, header);
  }

  std::string written() const { return readFile(output); }

  void expectAsked(std::string_view text) {
    ASSERT_EQ(script.questions.size(), 1U);
    EXPECT_EQ(script.questions[0].text, text);
    EXPECT_EQ(script.questions[0].title, "Create text file");
  }

  void expectBoxes(const std::vector<std::string>& texts) {
    std::vector<std::string> shown;
    for (const Box& box : script.boxes) shown.push_back(box.title + ": " + box.text);
    EXPECT_EQ(shown, texts);
  }

  // The one box of an export that stops for an administration.
  void expectWarning(std::string_view text) {
    expectBoxes({"Error : Writing Electronic notice: " + std::string(text)});
    EXPECT_EQ(script.boxes.at(0).icon, BoxIcon::exclamation);
    EXPECT_EQ(run.end, ExportEnd::refused);
    expectTold();
  }

  // The status of an export that stopped before its end.
  void expectTold() {
    EXPECT_THAT(script.statuses, ElementsAre("Cannot save to text file. Please consult the administrator"));
    EXPECT_EQ(script.repaints, 1);
  }

  std::vector<std::string> filesHere() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  std::string output = folder.file("working954.corr.txt");
  ExportRun run{" The Program 1.0"};
};

TEST_F(AnExport, writes_five_lines_head_notices_contours_and_tail) {
  addNotice(83700001, "F", "A1");
  addContour(1, "F", "7");
  EXPECT_TRUE(exported());
  EXPECT_EQ(written(), kHeader + kHeadOfF + suppression(1, "A1") + contour(2, "7") + tail(2));
  expectAsked("2 Notices will be written to a text file. Do you want to proceed?");
  EXPECT_THAT(script.boxes, IsEmpty());
  EXPECT_THAT(script.statuses, IsEmpty());
  EXPECT_EQ(run.end, ExportEnd::written);
  EXPECT_EQ(run.noticesWritten, 2);
}

TEST_F(AnExport, of_an_assignment_writes_all_that_is_stored_of_it_and_counts_the_contours_in_its_tail) {
  raw.run(
      "INSERT INTO fmtv_vorna (vornakey, adm, notice_typ, fragment, intent, adm_ref_id, ctry, site_name, "
      "long_deg, long_min, long_sec, long_ew, lat_deg, lat_min, lat_sec, lat_ns, freq_assgn, polar, "
      "ant_dir, is_pub_req, ref_plan_cfg) VALUES (83700001, 'F', 'GS1', 'KV19D', 'ADD', 'A1', 'F', "
      "'CH\303\202TEAU', 2, 10, 0, 'E', 48, 50, 7, 'N', 174.928, 'H', 'D', 'TRUE', 'RPC4')");
  raw.run("INSERT INTO fmtv_ant_hgt (vornakey, azm, eff_hgt) VALUES (83700001, 0, 150), (83700001, 10, -3)");
  raw.run("INSERT INTO fmtv_ant_diag (vornakey, polar, azm, attn) VALUES (83700001, 'H', 350, 2.5)");
  raw.run(
      "INSERT INTO fmtv_coord (vornakey, adm, coord_st, src_status) VALUES (83700001, 'BEL', 'COORD "
      "COMPLETED', 'NOTIFIER')");
  raw.run("INSERT INTO fmtv_rmks (vornakey, rmk_type, rmk_text) VALUES (83700001, 'ASSIGNMENT', 'new')");
  raw.run("INSERT INTO proc_ntc_hist (vornakey, email_addr) VALUES (83700001, 'plan@adm.example')");
  addContour(1, "F", "7");
  EXPECT_TRUE(exported());
  EXPECT_EQ(written(), kHeader +
                           "<HEAD>\r\nt_adm = F\r\nt_email_addr = plan@adm.example\r\n</HEAD>\r\n"
                           "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = GS1\r\nt_fragment = KV19D\r\n"
                           "t_action = ADD\r\nt_adm_ref_id = A1\r\nt_site_name = CH\302TEAU\r\nt_ctry = F\r\n"
                           "t_long = +0021000\r\nt_lat = +485007\r\nt_freq_assgn = 174.928\r\n"
                           "t_polar = H\r\nt_ant_dir = D\r\nt_is_pub_req = TRUE\r\nt_ref_plan_cfg = RPC4\r\n"
                           "<COORD>\r\nt_adm = BEL\r\n</COORD>\r\n"
                           "<ANT_HGT>\r\nt_eff_hgt@azm0 = 150\r\nt_eff_hgt@azm10 = -3\r\n</ANT_HGT>\r\n"
                           "<ANT_DIAGR_H>\r\nt_attn@azm350 = 2.5\r\n</ANT_DIAGR_H>\r\n"
                           "t_remarks = new\r\n</NOTICE>\r\n" +
                           contour(2, "7") + tail(2));
  EXPECT_THAT(script.boxes, IsEmpty());
}

TEST_F(AnExport, without_contours_has_its_tail_all_the_same) {
  addNotice(83700001, "F", "A1");
  addNotice(83700002, "F", "A2");
  EXPECT_TRUE(exported());
  EXPECT_EQ(written(), kHeader + kHeadOfF + suppression(1, "A1") + suppression(2, "A2") + tail(2));
  EXPECT_EQ(run.noticesWritten, 2);
}

TEST_F(AnExport, of_contours_alone_takes_its_head_from_the_first_and_has_no_address) {
  addContour(4, "F", "8");
  addContour(5, "F", "9");
  EXPECT_TRUE(exported());
  EXPECT_EQ(written(), kHeader + kHeadOfF + contour(1, "8") + contour(2, "9") + tail(2));
  EXPECT_THAT(script.boxes, IsEmpty());
}

TEST_F(AnExport, writes_its_header_text_as_the_fifth_line) {
  addNotice(83700001, "F", "A1");
  EXPECT_TRUE(exported(kAllNotices, kAllContours, "For the archive"));
  EXPECT_TRUE(written().starts_with(
      "File created on 2026-03-07-09:05:04\r\nProcessed by tester\r\nProgram Id:  The Program 1.0\r\n \r\n"
      "For the archive\r\n<HEAD>\r\n"));
}

TEST_F(AnExport, names_at_most_8_characters_of_the_logon_name) {
  script.logonName = "administrator";
  addNotice(83700001, "F", "A1");
  EXPECT_TRUE(exported());
  EXPECT_TRUE(written().starts_with("File created on 2026-03-07-09:05:04\r\nProcessed by administ\r\n"));
}

TEST_F(AnExport, keeps_the_order_of_its_statements) {
  addNotice(83700001, "F", "A1");
  addNotice(83700002, "F", "A2");
  addNotice(83700003, "F", "A3");
  EXPECT_TRUE(exported("SELECT vornakey FROM fmtv_vorna WHERE vornakey <> 83700002 ORDER BY vornakey DESC"));
  EXPECT_EQ(written(), kHeader + kHeadOfF + suppression(1, "A3") + suppression(2, "A1") + tail(2));
}

TEST_F(AnExport, carries_nothing_from_one_notice_into_the_next) {
  addNotice(83700001, "F", "A1");
  raw.run(
      "INSERT INTO fmtv_rmks (vornakey, rmk_type, rmk_text) VALUES (83700001, 'ASSIGNMENT', 'the first')");
  addNotice(83700002, "F", "A2");
  EXPECT_TRUE(exported());
  EXPECT_TRUE(written().ends_with("t_remarks = the first\r\n</NOTICE>\r\n" + suppression(2, "A2") + tail(2)));
}

TEST_F(AnExport, carries_no_field_and_no_section_into_a_notice_without_it) {
  raw.run(
      "INSERT INTO fmtv_vorna (vornakey, adm, notice_typ, site_name, polar) VALUES "
      "(83700001, 'F', 'GT1', 'BOURGES', 'H'), (83700002, 'F', 'GT1', NULL, NULL)");
  raw.run("INSERT INTO fmtv_ant_hgt (vornakey, azm, eff_hgt) VALUES (83700001, 0, 150)");
  EXPECT_TRUE(exported());
  EXPECT_EQ(written(), kHeader + kHeadOfF +
                           "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = GT1\r\nt_site_name = BOURGES\r\n"
                           "t_polar = H\r\n<ANT_HGT>\r\nt_eff_hgt@azm0 = 150\r\n</ANT_HGT>\r\n</NOTICE>\r\n"
                           "<NOTICE>\r\nNotice No = 2\r\nt_notice_type = GT1\r\n\r\n</NOTICE>\r\n" +
                           tail(2));
  EXPECT_THAT(script.boxes, IsEmpty());
}

TEST_F(AnExport, of_nothing_leaves_the_five_lines_and_says_so) {
  EXPECT_FALSE(exported());
  EXPECT_EQ(written(), kHeader);
  expectOnlyBox("There are no updated notices. Output text file will not be created", "");
  EXPECT_EQ(run.end, ExportEnd::nothingSelected);
  EXPECT_EQ(run.noticesWritten, 0);
}

TEST_F(AnExport, that_is_declined_leaves_the_five_lines) {
  addNotice(83700001, "F", "A1");
  script.answers = {false};
  EXPECT_FALSE(exported());
  EXPECT_EQ(written(), kHeader);
  expectAsked("1 Notices will be written to a text file. Do you want to proceed?");
  EXPECT_THAT(script.statuses, ElementsAre("Process canceled by the operator"));
  EXPECT_THAT(script.boxes, IsEmpty());
  EXPECT_EQ(run.end, ExportEnd::declined);
}

TEST_F(AnExport, has_its_five_lines_on_the_disk_while_it_asks) {
  addNotice(83700001, "F", "A1");
  std::string seen;
  host.askYesNo = [&](const Box&) {
    seen = written();
    return true;
  };
  EXPECT_TRUE(exported());
  EXPECT_EQ(seen, kHeader);
}

TEST_F(AnExport, stops_at_the_first_notice_of_a_second_administration) {
  addNotice(83700001, "F", "A1");
  addNotice(83700002, "SUI", "A2");
  addNotice(83700003, "F", "A3");
  EXPECT_FALSE(exported());
  EXPECT_EQ(written(), kHeader + kHeadOfF + suppression(1, "A1"));
  expectWarning("Notifiying administration is not the same. Cannot create electronic file");
  EXPECT_EQ(run.noticesWritten, 0);
}

TEST_F(AnExport, stops_at_the_first_contour_of_a_second_administration) {
  addNotice(83700001, "F", "A1");
  addContour(1, "F", "7");
  addContour(2, "SUI", "8");
  EXPECT_FALSE(exported());
  EXPECT_EQ(written(), kHeader + kHeadOfF + suppression(1, "A1") + contour(2, "7"));
  expectWarning("Notifiying administration is not the same. Cannot create electronic file");
}

TEST_F(AnExport, takes_the_same_letters_in_another_case_for_a_second_administration) {
  addNotice(83700001, "F", "A1");
  addNotice(83700002, "f", "A2");
  EXPECT_FALSE(exported());
  expectWarning("Notifiying administration is not the same. Cannot create electronic file");
}

TEST_F(AnExport, stops_at_a_first_notice_without_an_administration) {
  raw.run("INSERT INTO fmtv_vorna (vornakey, notice_typ) VALUES (83700001, 'TB5')");
  addNotice(83700002, "F", "A2");
  EXPECT_FALSE(exported());
  EXPECT_EQ(written(), kHeader);
  expectWarning("Notifiying administration is missing. Cannot create electronic file");
}

TEST_F(AnExport, takes_no_administration_of_a_later_notice_for_another_one) {
  addNotice(83700001, "F", "A1");
  raw.run("INSERT INTO fmtv_vorna (vornakey, notice_typ) VALUES (83700002, 'TB5')");
  EXPECT_FALSE(exported());
  EXPECT_EQ(written(), kHeader + kHeadOfF + suppression(1, "A1"));
  expectWarning("Notifiying administration is not the same. Cannot create electronic file");
}

TEST_F(AnExport, of_a_key_without_a_row_has_no_administration) {
  addNotice(83700001, "F", "A1");
  EXPECT_FALSE(exported("SELECT 5 AS vornakey"));
  EXPECT_EQ(written(), kHeader);
  expectWarning("Notifiying administration is missing. Cannot create electronic file");
}

TEST_F(AnExport, goes_on_with_what_it_could_read_of_a_notice) {
  raw.run("INSERT INTO fmtv_vorna (vornakey, adm, notice_typ) VALUES (83700001, 'F', 'GT2')");
  addNotice(83700002, "F", "A2");
  EXPECT_TRUE(exported());
  EXPECT_EQ(written(), kHeader + kHeadOfF +
                           "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = GT2\r\n</NOTICE>\r\n" +
                           suppression(2, "A2") + tail(2));
  expectBoxes(
      {"Read Error: readFromAllotment: The assignment 83700001 is not UNIQUE. Please consult the "
       "administrator!"});
}

TEST_F(AnExport, replaces_a_file_of_its_name_and_touches_no_other) {
  addNotice(83700001, "F", "A1");
  folder.write("working954.corr.txt", std::string(10'000, 'x'));
  folder.write("working955.corr.txt", "another export");
  const std::string database = readFile(path);
  EXPECT_TRUE(exported());
  EXPECT_EQ(written(), kHeader + kHeadOfF + suppression(1, "A1") + tail(1));
  EXPECT_EQ(readFile(folder.file("working955.corr.txt")), "another export");
  EXPECT_EQ(readFile(path), database);
  EXPECT_THAT(filesHere(), ElementsAre("working.mdb", "working954.corr.txt", "working955.corr.txt"));
}

TEST_F(AnExport, sees_one_state_of_the_database) {
  raw.run("INSERT INTO fmtv_vorna (vornakey, adm, notice_typ) VALUES (83700001, 'F', 'GT2')");
  int others = SQLITE_OK;
  // In the middle of the export, at a box.
  host.showBox = [&](const Box&) { others = raw.codeOf("UPDATE fmtv_vorna SET adm = 'SUI'"); };
  EXPECT_TRUE(exported());
  EXPECT_EQ(others, SQLITE_BUSY);
  raw.run("UPDATE fmtv_vorna SET adm = 'SUI'");
}

TEST_F(AnExport, follows_changes_of_the_same_connection_and_is_followed_by_others) {
  addNotice(83700001, "F", "A1");
  connection.BeginTrans();
  connection.CommitTrans();
  EXPECT_TRUE(exported());
  EXPECT_TRUE(written().ends_with(tail(1)));
  connection.BeginTrans();
  connection.CommitTrans();
}

TEST_F(AnExport, into_a_missing_folder_is_told_and_asks_nothing) {
  addNotice(83700001, "F", "A1");
  output = "/nowhere/a.corr.txt";
  EXPECT_FALSE(exported());
  expectOnlyBox("Erreur 53:File not found: /nowhere/a.corr.txt", "exportDBToTxt");
  EXPECT_EQ(run.end, ExportEnd::failed);
}

TEST_F(AnExport, onto_a_folder_is_told_and_leaves_it) {
  addNotice(83700001, "F", "A1");
  std::filesystem::create_directory(output);
  EXPECT_FALSE(exported());
  expectOnlyBox("Erreur 70:Permission denied: " + output, "exportDBToTxt");
  EXPECT_TRUE(std::filesystem::is_directory(output));
}

TEST_F(AnExport, with_a_statement_that_the_engine_refuses_writes_no_notice) {
  addNotice(83700001, "F", "A1");
  EXPECT_FALSE(exported("SELECT vornakey FROM fmtv_vorna WHERE missing > 1"));
  EXPECT_EQ(written(), kHeader);
  expectBoxes({"countSelectedRecords: Erreur 1:no such column: missing",
               ": There are no updated notices. Output text file will not be created"});
  EXPECT_EQ(run.end, ExportEnd::failed);
  EXPECT_THAT(script.questions, IsEmpty());
}

TEST_F(AnExport, whose_list_of_notices_fails_stops_before_the_head) {
  addNotice(83700001, "F", "A1");
  EXPECT_FALSE(exported("SELECT adm AS vornakey FROM fmtv_vorna"));
  EXPECT_EQ(written(), kHeader);
  expectBoxes({"getVornaKeyList: Erreur 13:Type mismatch"});
  EXPECT_EQ(run.end, ExportEnd::failed);
  expectTold();
}

TEST_F(AnExport, whose_list_of_contours_fails_stops_before_the_tail) {
  addNotice(83700001, "F", "A1");
  addContour(1, "F", "7");
  EXPECT_FALSE(exported(kAllNotices, "SELECT adm AS contourkey FROM lmz_contour"));
  EXPECT_EQ(written(), kHeader + kHeadOfF + suppression(1, "A1"));
  expectBoxes({"getContourKeyList: Erreur 13:Type mismatch"});
  EXPECT_EQ(run.end, ExportEnd::failed);
  expectTold();
}

TEST_F(AnExport, onto_a_full_disk_is_told_before_it_asks) {
  addNotice(83700001, "F", "A1");
  {
    const FileSizeLimit limit(kHeader.size() - 1);
    EXPECT_FALSE(exported());
  }
  expectOnlyBox("Erreur 61:Disk full: " + output, "exportDBToTxt");
  EXPECT_EQ(run.end, ExportEnd::failed);
}

TEST_F(AnExport, that_fills_the_disk_midway_stays_as_far_as_it_got) {
  for (int i = 0; i < 2000; ++i) addNotice(83700001 + i, "F", "A" + std::to_string(i));
  EXPECT_TRUE(exported());
  const std::string whole = written();
  script.answers = {true};
  {
    const FileSizeLimit limit(100'000);
    EXPECT_FALSE(exported());
  }
  EXPECT_EQ(written(), whole.substr(0, 100'000));
  expectBoxes({"writeNtcsToTxt: Erreur 61:Disk full: " + output});
  EXPECT_EQ(run.end, ExportEnd::failed);
  expectTold();
}

TEST_F(AnExport, notices_a_disk_that_is_full_at_the_last_byte) {
  addNotice(83700001, "F", "A1");
  EXPECT_TRUE(exported());
  const std::string whole = written();
  script.answers = {true, true};
  {
    const FileSizeLimit limit(whole.size() - 1);
    EXPECT_FALSE(exported());
  }
  expectBoxes({"exportDBToTxt: Erreur 61:Disk full: " + output});
  EXPECT_EQ(run.end, ExportEnd::failed);
  EXPECT_EQ(written(), whole.substr(0, whole.size() - 1));
  expectTold();
  {
    const FileSizeLimit limit(whole.size());
    EXPECT_TRUE(exported());
  }
  EXPECT_EQ(script.boxes.size(), 1U);
}

TEST_F(AnExport, notices_a_full_disk_behind_its_contours) {
  addContour(1, "F", "7");
  EXPECT_TRUE(exported());
  const std::string whole = written();
  script.answers = {true};
  {
    const FileSizeLimit limit(whole.size() - 1);
    EXPECT_FALSE(exported());
  }
  expectBoxes({"writeNtcsToTxt: Erreur 61:Disk full: " + output});
  expectTold();
}

TEST_F(AnExport, writes_parts_of_a_file_one_behind_the_other) {
  addNotice(83700001, "F", "A1");
  addNotice(83700002, "F", "A2");
  addContour(1, "F", "7");
  GrowingFile stream(output);
  WrittenFile file{stream, false, 1, {}, false};
  EXPECT_TRUE(writeNtcsToTxt(host, file, {83700002}, false, false, connection));
  EXPECT_TRUE(file.headWritten);
  EXPECT_EQ(file.nextNumber, 2);
  EXPECT_EQ(file.adm, "F");
  EXPECT_TRUE(writeNtcsToTxt(host, file, {83700001}, false, false, connection));
  EXPECT_TRUE(writeNtcsToTxt(host, file, {1}, true, true, connection));
  EXPECT_EQ(written(), kHeadOfF + suppression(1, "A2") + suppression(2, "A1") + contour(3, "7") + tail(3));
  EXPECT_FALSE(file.refused);
  expectNoBox();
}

TEST_F(AnExport, finds_the_elements_of_a_target) {
  raw.run(
      "INSERT INTO fmtv_vorna (vornakey, freq_assgn, long_deg, long_min, long_sec, long_ew, lat_deg, "
      "lat_min, "
      "lat_sec, lat_ns) VALUES (83700001, 474, 2, 10, 0, 'W', 48, 50, 7, 'N')");
  const TargetLookup find = targetsOf(host, connection);
  const TargetElements found = find(83700001);
  EXPECT_EQ(found.freq_assgn, "474");
  EXPECT_EQ(found.longitude, "-0021000");
  EXPECT_EQ(found.latitude, "+485007");
  const TargetElements missing = find(83700002);
  EXPECT_EQ(missing.freq_assgn + missing.longitude + missing.latitude, "");
  expectNoBox();
}

}  // namespace
}  // namespace zamo
