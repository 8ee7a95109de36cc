#include "database/load.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <algorithm>
#include <filesystem>

#include "database/db_connection.h"
#include "database/raw_database.h"
#include "support/places.h"
#include "support/scripted_host.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::RawDatabase;
using test::readFile;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kHead = "<HEAD>\nt_adm = F\nt_email_addr = plan@adm.example\n</HEAD>\n";

std::string notice(std::string_view keys) {
  return "<NOTICE>\n" + std::string(keys) + "</NOTICE>\n";
}

std::string assignment(std::string_view reference, std::string_view frequency = "474",
                       std::string_view longitude = "+0021000") {
  return notice("t_notice_type = GT1\nt_action = ADD\nt_fragment = KV19D\nt_adm_ref_id = " +
                std::string(reference) + "\nt_ctry = F\nt_freq_assgn = " + std::string(frequency) +
                "\nt_long = " + std::string(longitude) + "\nt_lat = +485000\n");
}

std::string contour(std::string_view id, int points = 3) {
  std::string keys = "t_notice_type = GA1\nt_action = ADD\nt_ctry = F\nt_contour_id = " + std::string(id) +
                     "\nt_nb_test_pts = " + std::to_string(points) + "\n";
  for (int i = 0; i < points; ++i) {
    keys += "<POINT>\nt_long = +00210" + std::to_string(10 + i) + "\nt_lat = +4850" + std::to_string(10 + i) +
            "\n</POINT>\n";
  }
  return notice(keys);
}

class Load : public testing::Test {
 protected:
  Load() {
    host = makeScriptedHost(script);
    std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", folder.file("notices.mdb"));
    OpenDB(host, folder.file("notices.mdb"), connection);
  }

  LoadResult load(const std::string& content) {
    const std::string path = folder.write("notices.txt", content);
    LineSource lines(path);
    const auto show = [this](const std::string& report, std::string_view head) {
      shown.push_back(report);
      heads.emplace_back(head);
    };
    return readNtcsFromFileToDB(host, lines, {ntc, path, " The Caption", show}, *connection);
  }

  std::string count(const std::string& table) { return raw().value("SELECT count(*) FROM " + table); }
  RawDatabase raw() const { return RawDatabase(folder.file("notices.mdb")); }
  std::string report() const { return folder.file("notices_duplicat_report_732026-954.txt"); }

  // What stands above the entries of every report.
  std::string reportHead() const {
    return "The report of duplicate notices in " + folder.file("notices.txt") +
           "\r\nwith  The Caption\r\nOn 2026-03-07 -  09:05:04 by tester\r\n \r\n";
  }

  test::Script script;
  test::TempFolder folder;
  Host host;
  DbConnection connection;
  NtcRec ntc;
  std::vector<std::string> shown;
  std::vector<std::string> heads;
};

TEST_F(Load, stores_every_notice_with_what_the_load_itself_sets) {
  const LoadResult result = load(std::string(kHead) + assignment("A1") + contour("7"));
  EXPECT_EQ(result.noticesRead, 2);
  EXPECT_TRUE(result.complete);
  EXPECT_EQ(raw().value("SELECT vornakey || adm || d_rcv || adm_ref_id FROM fmtv_vorna"),
            "83700001F2026-03-07A1");
  EXPECT_EQ(raw().value("SELECT email_addr || src_update || d_updated FROM proc_ntc_hist"),
            "plan@adm.exampletester2026-03-07");
  EXPECT_EQ(raw().value("SELECT adm || d_updated FROM lmz_contour"), "F2026-03-07");
  EXPECT_THAT(script.statuses, ElementsAre("Notice no : 1", "Notice no : 2"));
  EXPECT_EQ(script.repaints, 2);
  EXPECT_THAT(script.questions, IsEmpty());
  EXPECT_THAT(script.boxes, IsEmpty());
}

TEST_F(Load, without_a_duplicate_leaves_no_report) {
  load(std::string(kHead) + assignment("A1"));
  EXPECT_FALSE(std::filesystem::exists(report()));
  EXPECT_THAT(shown, IsEmpty());
}

TEST_F(Load, takes_its_tags_in_upper_case_alone) {
  const LoadResult result = load("<head>\nt_adm = F\n</head>\n<notice>\nt_notice_type = GT1\n</notice>\n");
  EXPECT_EQ(result.noticesRead, 0);
  EXPECT_EQ(count("fmtv_vorna"), "0");
}

TEST_F(Load, asks_about_a_reference_that_is_there_and_leaves_it_out_on_no) {
  script.answers = {false};
  const LoadResult result = load(std::string(kHead) + assignment("A1") + assignment("A1", "482"));
  EXPECT_EQ(result.noticesRead, 2);
  EXPECT_EQ(count("fmtv_vorna"), "1");
  ASSERT_EQ(script.questions.size(), 1U);
  EXPECT_EQ(script.questions[0].text,
            "Notice No 2: has the same AdminRefID, Adm. Do you still want to save it?");
  EXPECT_EQ(script.questions[0].title, "DataBase : Error");
  EXPECT_EQ(readFile(report()),
            reportHead() + "t_adm_ref_id = A1 - is repeated\r\nInput text file : Notice No :  2 \r\n \r\n");
  EXPECT_THAT(shown, ElementsAre(report()));
  EXPECT_THAT(heads, ElementsAre("The duplicate report cannot be shown, but is available on "));
}

TEST_F(Load, stores_a_repeated_reference_as_a_second_row_on_yes) {
  script.answers = {true};
  load(std::string(kHead) + assignment("A1") + assignment("A1", "482"));
  EXPECT_EQ(count("fmtv_vorna"), "2");
  EXPECT_EQ(readFile(report()), reportHead() +
                                    "t_adm_ref_id = A1 - is repeated\r\nInput text file : Notice No :  2 \r\n"
                                    "In Assign/Allot database : RecordIndex :  83700002  - Admin_ref_id : A1 "
                                    "and RecordIndex :  83700001  - "
                                    "Admin_ref_id : \r\n \r\n");
}

TEST_F(Load, asks_about_equal_elements_under_another_reference) {
  script.answers = {true, false};
  load(std::string(kHead) + assignment("A1") + assignment("A2") + assignment("A3"));
  EXPECT_EQ(count("fmtv_vorna"), "2");
  ASSERT_EQ(script.questions.size(), 2U);
  EXPECT_EQ(script.questions[0].text,
            "Notice No 2: has the same Identifying elements, Adm. Do you still want to save it?");
  EXPECT_EQ(readFile(report()),
            reportHead() +
                "Identifying elements are repeated\r\nInput text file : Notice No :  2 \r\n"
                "In Assign/Allot database : RecordIndex :  83700002  - Admin_ref_id : A2 and RecordIndex :  "
                "83700001  - "
                "Admin_ref_id : A1\r\n \r\n"
                " Identifying elements are repeated\r\nInput text file : Notice No :  3 \r\n \r\n");
}

TEST_F(Load, keeps_the_reference_of_the_last_test_by_elements_for_a_repeated_reference) {
  script.answers = {true, true};
  load(std::string(kHead) + assignment("A1") + assignment("A2") + assignment("A2", "482"));
  EXPECT_NE(
      readFile(report()).find("In Assign/Allot database : RecordIndex :  83700003  - Admin_ref_id : A2 and "
                              "RecordIndex :  83700002  - Admin_ref_id : A1\r\n"),
      std::string::npos);
}

TEST_F(Load, compares_within_one_administration) {
  load(std::string(kHead) + assignment("A1"));
  ntc = {};
  load("<HEAD>\nt_adm = D\n</HEAD>\n" + assignment("A1"));
  EXPECT_THAT(script.questions, IsEmpty());
  EXPECT_EQ(count("fmtv_vorna"), "2");
}

TEST_F(Load, asks_about_allotments_by_reference_and_by_a_shared_sub_area) {
  const auto allotment = [](std::string_view type, std::string_view reference, std::string_view id) {
    return notice("t_notice_type = " + std::string(type) + "\nt_adm_ref_id = " + std::string(reference) +
                  "\nt_ctry = F\nt_freq_assgn = 498\nt_allot_name = A\nt_nb_sub_areas = 1\nt_contour_id = " +
                  std::string(id) + "\n");
  };
  load(std::string(kHead) + allotment("GT2", "A1", "7") + allotment("GT2", "A1", "8") +
       allotment("GS2", "A2", "7"));
  ASSERT_EQ(script.questions.size(), 2U);
  EXPECT_EQ(script.questions[0].text,
            "Notice No 2: has the same AdminRefID, Adm. Do you still want to save it?");
  EXPECT_EQ(script.questions[1].text,
            "Notice No 3: has the same Identifying elements, Adm. Do you still want to save it?");
  EXPECT_EQ(script.questions[1].icon, BoxIcon::none);
  EXPECT_EQ(count("fmtv_vorna"), "1");
}

TEST_F(Load, refuses_a_number_that_is_beyond_a_double) {
  const LoadResult result = load(std::string(kHead) + notice("t_notice_type = TB5\nt_hgt_agl = 1e999\n"));
  EXPECT_FALSE(result.complete);
  EXPECT_EQ(count("fmtv_vorna"), "0");
}

TEST_F(Load, asks_nothing_about_tb_notices) {
  const std::string tb5 = notice("t_notice_type = TB5\nt_action = SUPPRESS\nt_trg_adm_ref_id = A1\n");
  load(std::string(kHead) + tb5 + tb5);
  EXPECT_THAT(script.questions, IsEmpty());
  EXPECT_EQ(count("fmtv_vorna"), "2");
}

TEST_F(Load, reports_a_contour_that_was_replaced) {
  script.answers = {true};
  load(std::string(kHead) + contour("7") + contour("7", 4));
  EXPECT_EQ(count("lmz_contour"), "1");
  EXPECT_EQ(count("lmz_contour_pt"), "4");
  EXPECT_EQ(readFile(report()),
            reportHead() +
                "lmz_contour_id = 7 - is repeated \r\nInput text file : Notice No :  2 \r\n"
                "In Sub Area database : RecordIndex :  1  Contour ID has been overwritten\r\n \r\n");
}

TEST_F(Load, reports_a_contour_that_was_not_to_be_replaced) {
  script.answers = {false};
  load(std::string(kHead) + contour("7") + contour("7", 4));
  EXPECT_EQ(count("lmz_contour_pt"), "3");
  EXPECT_EQ(readFile(report()),
            reportHead() + "lmz_contour_id = 7 - is repeated \r\nInput text file : Notice No :  2 \r\n \r\n");
}

TEST_F(Load, goes_on_behind_a_notice_that_the_database_refuses) {
  const LoadResult result = load(std::string(kHead) + assignment("A1", "not a number") + assignment("A2") +
                                 assignment("A3", "482"));
  EXPECT_EQ(result.noticesRead, 3);
  EXPECT_FALSE(result.complete);
  EXPECT_EQ(raw().value("SELECT group_concat(adm_ref_id) FROM fmtv_vorna"), "A2,A3");
  ASSERT_GE(script.boxes.size(), 2U);
  EXPECT_EQ(script.boxes.back().text, "The data was not saved to the database");
  EXPECT_EQ(script.boxes.back().title, "Erreur base de donn\351es");
}

TEST_F(Load, ends_at_a_failure_of_the_reader_and_keeps_what_came_before) {
  const LoadResult result =
      load(std::string(kHead) + assignment("A1") +
           notice("t_notice_type = GA1\n<POINT>\nt_long = +0021000\n</POINT>\n") + assignment("A2", "482"));
  EXPECT_FALSE(result.complete);
  EXPECT_EQ(raw().value("SELECT group_concat(adm_ref_id) FROM fmtv_vorna"), "A1");
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "readNtcsFromFileToDB");
  EXPECT_TRUE(script.boxes[0].text.starts_with("Erreur 9:"));
}

TEST_F(Load, treats_a_reference_with_an_apostrophe_as_new_after_the_error_box) {
  load(std::string(kHead) + assignment("A'1") + assignment("A'1", "482"));
  EXPECT_EQ(count("fmtv_vorna"), "2");
  EXPECT_THAT(script.questions, IsEmpty());
  ASSERT_EQ(script.boxes.size(), 2U);
  EXPECT_EQ(script.boxes[0].title, "findByAdmRefId");
}

// No file may grow beyond so many bytes while this lives.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limited{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limited);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    ::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

class ALoadOnAFullDisk : public Load {
 protected:
  ALoadOnAFullDisk() { OpenDB(host, folder.file("notices.mdb"), connection, Purpose::fill); }

  // More notices than there is room for, with one in the middle that no database takes.
  static std::string manyNotices() {
    std::string all(kHead);
    for (int i = 0; i < 1500; ++i) {
      all += i == 1400 ? assignment("BAD", "not a number")
                       : assignment("A" + std::to_string(i), std::to_string(i + 1));
    }
    return all;
  }

  std::size_t boxesOf(std::string_view text) const {
    return static_cast<std::size_t>(std::count_if(script.boxes.begin(), script.boxes.end(),
                                                  [text](const Box& box) { return box.text == text; }));
  }

  void expectAskedOnce() {
    ASSERT_EQ(script.questions.size(), 1U);
    EXPECT_TRUE(script.questions[0].text.starts_with("The disk is full or fails. Notice No "));
    EXPECT_TRUE(
        script.questions[0].text.ends_with(" was not saved to the database, and those behind it may not be "
                                           "either.\r\nDo you want to go on loading?"));
    EXPECT_EQ(script.questions[0].title, "Disk full");
    EXPECT_TRUE(script.questions[0].needsUser);
  }
};

TEST_F(ALoadOnAFullDisk, asks_once_and_stops_on_no_with_whole_notices) {
  script.answers = {false};
  LoadResult result;
  {
    const FileSizeLimit limit(std::filesystem::file_size(folder.file("notices.mdb")) + 100'000);
    result = load(manyNotices());
  }
  EXPECT_EQ(result.end, LoadEnd::stopped);
  EXPECT_FALSE(result.complete);
  EXPECT_LT(result.noticesRead, 1400);
  expectAskedOnce();
  EXPECT_EQ(boxesOf("The data was not saved to the database"), 1U);
  closeDB(connection);
  EXPECT_EQ(count("fmtv_vorna"), std::to_string(result.noticesRead - 1));
  EXPECT_EQ(count("proc_ntc_hist"), std::to_string(result.noticesRead - 1));
  EXPECT_EQ(raw().value("PRAGMA integrity_check"), "ok");
}

TEST_F(ALoadOnAFullDisk, goes_on_on_yes_and_tells_only_of_what_fails_otherwise) {
  script.answers = {true};
  LoadResult result;
  {
    const FileSizeLimit limit(std::filesystem::file_size(folder.file("notices.mdb")) + 100'000);
    result = load(manyNotices());
  }
  EXPECT_EQ(result.end, LoadEnd::done);
  EXPECT_FALSE(result.complete);
  EXPECT_EQ(result.noticesRead, 1500);
  expectAskedOnce();
  // That of the first notice without room, and that of the bad one.
  EXPECT_EQ(boxesOf("The data was not saved to the database"), 2U);
}

TEST_F(Load, that_cannot_write_its_report_stores_nothing_and_says_why) {
  std::filesystem::create_directory(report());
  const LoadResult result = load(std::string(kHead) + assignment("A1"));
  EXPECT_FALSE(result.complete);
  EXPECT_EQ(result.end, LoadEnd::failed);
  EXPECT_EQ(count("fmtv_vorna"), "0");
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "readNtcsFromFileToDB");
}

}  // namespace
}  // namespace zamo
