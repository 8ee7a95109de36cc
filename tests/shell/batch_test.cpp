// The built companion, run as a script would run it.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "platform/code_page.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::readFile;
using test::TempFolder;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kIsSanitized = true;
#elif defined(__has_feature)
constexpr bool kIsSanitized = __has_feature(address_sanitizer);
#else
constexpr bool kIsSanitized = false;
#endif

constexpr std::string_view kGoodFile =
    "<HEAD>\nt_adm = F\n</HEAD>\n<NOTICE>\nt_notice_type = TB5\n</NOTICE>\n<TAIL>\nt_num_notices = "
    "1\n</TAIL>\n";

struct Outcome {
  int status = -1;
  std::string output;
  std::string messages;
};

class Batch : public testing::Test {
 protected:
  // `arguments` as a shell takes them; the program runs in the test's folder.
  Outcome run(const std::string& arguments, const std::string& before = "") const {
    return runProgram(before + ZAMO_BIN "/zamo-kv19-batch " + arguments);
  }

  Outcome runProgram(const std::string& call) const {
    const std::string command = "cd '" + folder.path() + "' && " + call + " >out.log 2>err.log";
    const int result = std::system(command.c_str());
    return {WIFEXITED(result) ? WEXITSTATUS(result) : -1, readFile(folder.file("out.log")),
            readFile(folder.file("err.log"))};
  }

  TempFolder folder;
};

TEST_F(Batch, a_sound_file_is_ok) {
  folder.write("good.txt", kGoodFile);
  const Outcome outcome = run("check --level 1 good.txt");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, "good.txt\tok\n");
  EXPECT_EQ(
      outcome.messages,
      "Checking the File format. Please be patient....\nBasic validation is running. Please be patient....\n"
      "Notice no : 1\n");
}

TEST_F(Batch, findings_name_their_stage_and_report_and_the_worst_file_gives_the_status) {
  folder.write("good.txt", kGoodFile);
  folder.write("basic.txt",
               "<HEAD>\nt_adm = F\n</HEAD>\n<NOTICE>\nt_notice_type = X\n</NOTICE>\n<TAIL>\nt_num_notices = "
               "1\n</TAIL>\n");
  folder.write("noise.txt", std::string_view("\0\xFF\x01<HEAD\r\r\r\n\n=\0=", 17));
  const Outcome outcome = run("check --level 1 basic.txt good.txt noise.txt");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(
      outcome.output,
      "basic.txt\tbasic\tbasic_val_outcome.txt\ngood.txt\tok\nnoise.txt\tstructure\tnoise_val_outcome.txt\n");
  EXPECT_EQ(
      readFile(folder.file("noise_val_outcome.txt")),
      "Number of Notice sections found : 0\r\n"
      "noise.txt : ERROR : An electronic notice file should start with \r\n ONE <HEAD> section \r\n\r\n");
}

TEST_F(Batch, a_missing_file_a_folder_and_wrong_usage_end_with_2) {
  std::filesystem::create_directory(folder.file("folder.txt"));
  const Outcome missing = run("check --level 1 missing.txt");
  EXPECT_EQ(missing.status, 2);
  EXPECT_NE(missing.messages.find("Validate File format: Erreur 53:File not found: missing.txt\n"),
            std::string::npos);
  const Outcome directory = run("check --level 1 folder.txt");
  EXPECT_EQ(directory.status, 2);
  EXPECT_NE(directory.messages.find("Validate File format: Erreur 70:Permission denied: folder.txt\n"),
            std::string::npos);
  EXPECT_EQ(run("").status, 2);
  EXPECT_EQ(run("check").status, 2);
  EXPECT_EQ(run("check --level 4 good.txt").status, 2);
  EXPECT_EQ(run("frobnicate").status, 2);
  EXPECT_EQ(run("--help").status, 0);
}

TEST_F(Batch, a_file_that_may_not_be_read_ends_with_2) {
  if (::geteuid() == 0) GTEST_SKIP() << "everything may be read as root";
  std::filesystem::permissions(folder.write("secret.txt", kGoodFile), std::filesystem::perms::none);
  EXPECT_EQ(run("check --level 1 secret.txt").status, 2);
}

TEST_F(Batch, a_report_without_room_on_the_disk_ends_with_2_and_leaves_the_old_one) {
  folder.write("bad_val_outcome.txt", "the old report");
  std::string errors = "<HEAD>\nt_adm = F\n</HEAD>\n<NOTICE>\n";
  for (int i = 0; i < 2000; ++i) errors += "t_polar = X\n";
  folder.write("bad.txt", errors + "</NOTICE>\n<TAIL>\nt_num_notices = 1\n</TAIL>\n");
  // Files may grow to 8 blocks of 1024 bytes, and a write beyond is an error and no signal.
  const Outcome outcome = run("check --level 1 bad.txt", "trap '' XFSZ; ulimit -f 8; ");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "bad.txt\tbasic\n");
  EXPECT_NE(outcome.messages.find("checkFormatAndBasic: Erreur 61:Disk full: bad_val_outcome.txt"),
            std::string::npos);
  EXPECT_EQ(readFile(folder.file("bad_val_outcome.txt")), "the old report");
  EXPECT_EQ(folder.names(),
            (std::vector<std::string>{"bad.txt", "bad_val_outcome.txt", "err.log", "out.log"}));
}

TEST_F(Batch, a_write_protected_report_is_not_replaced_and_ends_with_2) {
  folder.write("bad_val_outcome.txt", "the old report");
  std::filesystem::permissions(folder.file("bad_val_outcome.txt"), std::filesystem::perms::owner_read);
  folder.write("bad.txt", "");
  const Outcome outcome = run("check --level 1 bad.txt");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "bad.txt\tstructure\n");
  EXPECT_TRUE(
      outcome.messages.ends_with("checkFormatAndBasic: Erreur 70:Permission denied: bad_val_outcome.txt\n"));
  EXPECT_EQ(readFile(folder.file("bad_val_outcome.txt")), "the old report");
}

TEST_F(Batch, a_write_protected_database_is_not_replaced_and_ends_with_2) {
  folder.write("good.mdb", "the old database");
  std::filesystem::permissions(folder.file("good.mdb"), std::filesystem::perms::owner_read);
  folder.write("good.txt", kGoodFile);
  const Outcome outcome = run("load --level 1 good.txt");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "good.txt\tload\n");
  EXPECT_NE(outcome.messages.find("Error 70 : Permission denied: good.mdb\n"), std::string::npos);
  EXPECT_EQ(readFile(folder.file("good.mdb")), "the old database");
}

TEST_F(Batch, no_link_leads_what_is_written_elsewhere) {
  folder.write("precious", "not touched");
  for (const char* name : {"good.mdb", "good.mdb.part", "bad_val_outcome.txt", "bad_val_outcome.txt.part"})
    std::filesystem::create_symlink("precious", folder.file(name));
  folder.write("bad.txt", "");
  folder.write("good.txt", kGoodFile);
  EXPECT_EQ(run("check --level 1 bad.txt").output, "bad.txt\tstructure\tbad_val_outcome.txt\n");
  EXPECT_EQ(run("load --level 1 good.txt").output, "good.txt\tok\n");
  EXPECT_EQ(readFile(folder.file("precious")), "not touched");
}

TEST_F(Batch, a_file_is_loaded_and_its_notices_are_shown) {
  folder.write(
      "good.txt",
      "<HEAD>\nt_adm = F\n</HEAD>\n<NOTICE>\nt_notice_type = TB5\nt_fragment = KV19D\nt_action = SUPPRESS\n"
      "t_trg_adm_ref_id = A1\n</NOTICE>\n<NOTICE>\nt_notice_type = GA1\nt_ctry = F\nt_contour_id = 7\n"
      "t_nb_test_pts = 3\n<POINT>\nt_long = +0021000\nt_lat = +485000\n</POINT>\n</NOTICE>\n"
      "<TAIL>\nt_num_notices = 2\n</TAIL>\n");
  const Outcome load = run("load --level 1 good.txt");
  EXPECT_EQ(load.status, 0);
  EXPECT_EQ(load.output, "good.txt\tok\n");
  EXPECT_EQ(
      run("show good.mdb 83700001").output,
      "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = TB5\r\nt_action = SUPPRESS\r\nt_fragment = KV19D\r\n"
      "t_trg_adm_ref_id = A1\r\n</NOTICE>\n");
  EXPECT_EQ(
      run("show --contour good.mdb 1").output,
      "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = GA1\r\nt_ctry = F\r\nt_contour_id = 7\r\n"
      "t_nb_test_pts = 3\r\n<POINT>\r\nt_long = +0021000\r\nt_lat = +485000\r\n</POINT>\r\n</NOTICE>\n");
  EXPECT_EQ(run("show good.mdb 5").status, 2);
  EXPECT_EQ(run("show missing.mdb 5").status, 2);
  EXPECT_FALSE(std::filesystem::exists(folder.file("good.mdb-wal")));
}

class BatchShow : public Batch {
 protected:
  // A database with one notice and one contour, and remarks of the notice as the engine is told them.
  void loadWithRemarks(const std::string& remarks) const {
    folder.write("good.txt",
                 "<HEAD>\nt_adm = F\n</HEAD>\n<NOTICE>\nt_notice_type = TB5\nt_trg_adm_ref_id = A1\n"
                 "t_remarks = x\n</NOTICE>\n<TAIL>\nt_num_notices = 1\n</TAIL>\n");
    ASSERT_EQ(run("load --level 1 good.txt").output, "good.txt\tok\n");
    ASSERT_EQ(std::system(("sqlite3 '" + folder.file("good.mdb") +
                           "' \"UPDATE fmtv_rmks SET rmk_text = " + remarks + "\"")
                              .c_str()),
              0);
  }

  // The call on a terminal of its own, which passes all bytes as they are.
  std::string onTerminal(const std::string& arguments) const {
    folder.write("terminal.py",
                 "import pty, sys\n"
                 "pty.spawn(['sh', '-c', 'stty -opost; exec \"$@\" 2>err.log', 'sh'] + sys.argv[1:])\n");
    const std::string command = "cd '" + folder.path() +
                                "' && python3 terminal.py " ZAMO_BIN "/zamo-kv19-batch " + arguments +
                                " >out.log </dev/null";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return readFile(folder.file("out.log"));
  }
};

TEST_F(BatchShow, of_an_unknown_key_says_so) {
  loadWithRemarks("'x'");
  const Outcome notice = run("show good.mdb 5");
  EXPECT_EQ(notice.status, 2);
  EXPECT_EQ(notice.output, "");
  EXPECT_EQ(notice.messages, "The database has no notice with the key 5\n");
  const Outcome contour = run("show --contour good.mdb 5");
  EXPECT_EQ(contour.status, 2);
  EXPECT_EQ(contour.output, "");
  EXPECT_EQ(contour.messages,
            "Read Error: readOnlyContourID: The contour 5 is Missing . Please consult the administrator!\n");
}

TEST_F(BatchShow, prints_a_notice_with_a_nul_in_it_as_a_whole) {
  loadWithRemarks("'a' || char(0) || 'b'");
  const Outcome outcome = run("show good.mdb 83700001");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, std::string("<NOTICE>\r\nNotice No = 1\r\nt_notice_type = TB5\r\n"
                                        "t_trg_adm_ref_id = A1\r\nt_remarks = a") +
                                '\0' + "b\r\n</NOTICE>\n");
}

TEST_F(BatchShow, escapes_control_characters_on_a_terminal_and_nowhere_else) {
  loadWithRemarks(
      "'a' || char(0) || char(27) || '[2J' || char(9) || char(13) || 'b' || char(10) || 'c' || char(127) || "
      "char(129) || char(233) || '\\d'");
  EXPECT_EQ(onTerminal("show good.mdb 83700001"),
            "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = TB5\r\nt_trg_adm_ref_id = A1\r\n"
            "t_remarks = a\\x00\\x1B[2J\\x09\\x0Db\\x0Ac\\x7F\\x81\xC3\xA9\\d\r\n</NOTICE>\n");
  EXPECT_EQ(run("show good.mdb 83700001").output,
            std::string("<NOTICE>\r\nNotice No = 1\r\nt_notice_type = TB5\r\nt_trg_adm_ref_id = A1\r\n"
                        "t_remarks = a") +
                '\0' + "\x1B[2J\t\rb\nc\x7F\xC2\x81\xC3\xA9\\d\r\n</NOTICE>\n");
}

TEST_F(Batch, a_question_of_the_load_is_answered_as_the_call_says) {
  const std::string notice =
      "<NOTICE>\nt_notice_type = GT1\nt_adm_ref_id = A1\nt_freq_assgn = 474\n</NOTICE>\n";
  folder.write("twice.txt",
               "<HEAD>\nt_adm = F\n</HEAD>\n" + notice + notice + "<TAIL>\nt_num_notices = 2\n</TAIL>\n");
  EXPECT_EQ(run("load --level 1 --no twice.txt").status, 0);
  EXPECT_EQ(run("show twice.mdb 83700002").status, 2);
  const Outcome yes = run("load --level 1 --yes twice.txt");
  EXPECT_NE(yes.messages.find(
                "DataBase : Error: Notice No 2: has the same AdminRefID, Adm. Do you still want to save "
                "it?\nYes\n"),
            std::string::npos);
  EXPECT_EQ(run("show twice.mdb 83700002").status, 0);
}

class BatchExport : public Batch {
 protected:
  // A database of two notices, or of those of another file.
  void load(std::string_view content = kTwoNotices) const {
    folder.write("good.txt", content);
    ASSERT_EQ(run("load --level 1 good.txt").output, "good.txt\tok\n");
  }

  void change(const std::string& sql) const {
    ASSERT_EQ(std::system(("sqlite3 '" + folder.file("good.mdb") + "' \"" + sql + "\"").c_str()), 0);
  }

  // The one exported file here, by its name alone; empty when there is none.
  std::string exported() const {
    std::string found;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
      const std::string name = entry.path().filename().string();
      if (!name.ends_with(".corr.txt")) continue;
      EXPECT_EQ(found, "");
      found = name;
    }
    return found;
  }

  static constexpr std::string_view kTwoNotices =
      "<HEAD>\nt_adm = F\n</HEAD>\n<NOTICE>\nt_notice_type = TB5\nt_trg_adm_ref_id = A1\n</NOTICE>\n"
      "<NOTICE>\nt_notice_type = TB5\nt_trg_adm_ref_id = A2\n</NOTICE>\n"
      "<TAIL>\nt_num_notices = 2\n</TAIL>\n";
};

// Behind the five lines.
std::string withoutItsHeader(const std::string& text) {
  std::size_t at = 0;
  for (int line = 0; line < 5; ++line) at = text.find("\r\n", at) + 2;
  return text.substr(at);
}

TEST_F(BatchExport, writes_the_notices_of_a_database_beside_it) {
  load();
  const Outcome outcome = run("export good.mdb");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, "good.mdb\tok\t" + exported() + "\n");
  EXPECT_EQ(outcome.messages,
            "Writing the selected record to an electronic file\n"
            "Create text file: 2 Notices will be written to a text file. Do you want to proceed?\nYes\n"
            "Information: Electronic file completed\nElectronic file completed\n");
  const std::string text = readFile(folder.file(exported()));
  EXPECT_TRUE(text.starts_with("File created on "));
  EXPECT_NE(text.find("\r\nProgram Id:  KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009\r\n \r\n\r\n"),
            std::string::npos);
  EXPECT_EQ(withoutItsHeader(text),
            "<HEAD>\r\nt_adm = F\r\n</HEAD>\r\n"
            "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = TB5\r\nt_trg_adm_ref_id = A1\r\n</NOTICE>\r\n"
            "<NOTICE>\r\nNotice No = 2\r\nt_notice_type = TB5\r\nt_trg_adm_ref_id = A2\r\n</NOTICE>\r\n"
            "<TAIL>\r\nt_num_notices = 2\r\n</TAIL>\r\n\r\n");
}

TEST_F(BatchExport, of_updated_notices_takes_those_of_the_condition) {
  load();
  change("UPDATE fmtv_vorna SET d_updated = '2009-01-31' WHERE adm_ref_id = 'A1'");
  EXPECT_EQ(run("export --updated 'd_updated > #01/31/2009#' good.mdb").status, 0);
  const std::string text = readFile(folder.file(exported()));
  EXPECT_EQ(text.find("A1"), std::string::npos);
  EXPECT_NE(text.find("t_trg_adm_ref_id = A2\r\n"), std::string::npos);
  EXPECT_TRUE(text.ends_with("t_num_notices = 1\r\n</TAIL>\r\n\r\n"));
}

TEST_F(BatchExport, that_is_not_completed_ends_with_1_and_names_no_file) {
  load();
  const Outcome declined = run("export --no good.mdb");
  EXPECT_EQ(declined.status, 1);
  EXPECT_EQ(declined.output, "good.mdb\texport\n");
  EXPECT_TRUE(declined.messages.ends_with("No\nProcess canceled by the operator\n"));
  const Outcome none = run("export --updated 'd_updated < #01/31/2009#' good.mdb");
  EXPECT_EQ(none.status, 1);
  EXPECT_EQ(none.output, "good.mdb\texport\n");
  EXPECT_TRUE(
      none.messages.ends_with("There are no updated notices. Output text file will not be created\n"));
  change("UPDATE fmtv_vorna SET adm = 'SUI' WHERE adm_ref_id = 'A2'");
  const Outcome mixed = run("export good.mdb");
  EXPECT_EQ(mixed.status, 1);
  EXPECT_EQ(mixed.output, "good.mdb\texport\n");
  EXPECT_TRUE(
      mixed.messages.ends_with("Error : Writing Electronic notice: Notifiying administration is not the "
                               "same. Cannot create electronic "
                               "file\nCannot save to text file. Please consult the administrator\n"));
}

TEST_F(BatchExport, of_a_notice_that_can_not_be_read_as_a_whole_ends_with_1_and_its_file) {
  load();
  change("UPDATE fmtv_vorna SET notice_typ = 'GT2' WHERE adm_ref_id = 'A2'");
  const Outcome outcome = run("export good.mdb");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "good.mdb\tok\t" + exported() + "\n");
  EXPECT_NE(outcome.messages.find("Read Error: readFromAllotment: The assignment 83700002 is not UNIQUE. "
                                  "Please consult the administrator!\n"),
            std::string::npos);
}

TEST_F(BatchExport, of_what_is_no_working_database_ends_with_2) {
  const Outcome missing = run("export missing.mdb");
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.output, "missing.mdb\texport\n");
  EXPECT_EQ(missing.messages, "OpenDB: Erreur 14:unable to open database file\n");
  load();
  change("CREATE TABLE lmz_aux_border_contour (id)");
  const Outcome central = run("export good.mdb");
  EXPECT_EQ(central.status, 2);
  EXPECT_TRUE(central.messages.starts_with("Error in Reading Database: Error : You must first create"));
  change("DROP TABLE lmz_aux_border_contour; DROP TABLE addr_code");
  const Outcome old = run("export good.mdb");
  EXPECT_EQ(old.status, 2);
  EXPECT_EQ(
      old.messages,
      "Old Database Structure: Addr_code and Op_agcy tables have been added to the database. Please get "
      "the latest database version. \n");
  EXPECT_EQ(exported(), "");
}

TEST_F(BatchExport, with_a_condition_that_is_none_ends_with_2) {
  load();
  const Outcome outcome = run("export --updated nonsense good.mdb");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "good.mdb\texport\n");
  EXPECT_NE(outcome.messages.find("countSelectedRecords: Erreur 1:no such column: nonsense\n"),
            std::string::npos);
  EXPECT_EQ(run("export --updated '' good.mdb").status, 2);
  EXPECT_EQ(run("export").status, 2);
}

TEST_F(BatchExport, without_room_on_the_disk_ends_with_2_and_a_file_without_a_tail) {
  load();
  change(
      "WITH RECURSIVE n(i) AS (SELECT 83700003 UNION ALL SELECT i + 1 FROM n WHERE i < 83702000) "
      "INSERT INTO fmtv_vorna (vornakey, adm, notice_typ) SELECT i, 'F', 'TB5' FROM n");
  const Outcome outcome = run("export good.mdb", "trap '' XFSZ; ulimit -f 20; ");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "good.mdb\texport\n");
  EXPECT_NE(outcome.messages.find("writeNtcsToTxt: Erreur 61:Disk full: "), std::string::npos);
  const std::string half = readFile(folder.file(exported()));
  EXPECT_NE(half.find("<NOTICE>"), std::string::npos);
  EXPECT_EQ(half.find("<TAIL>"), std::string::npos);
}

// Notices that were valid stay so on their way through the database, and a second way changes nothing.
TEST_F(BatchExport, of_each_valid_example_is_valid_again) {
  int examples = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ZAMO_EXAMPLES)) {
    const std::string name = entry.path().filename().string();
    if (!name.starts_with("valid-")) continue;
    SCOPED_TRACE(name);
    ++examples;
    load(readFile(entry.path().string()));
    ASSERT_EQ(run("export good.mdb").status, 0);
    const std::string first = readFile(folder.file(exported()));
    std::filesystem::remove(folder.file(exported()));
    folder.write("again.txt", first);
    const Outcome checked = run("check --level 2 again.txt");
    EXPECT_EQ(checked.status, 0);
    EXPECT_EQ(checked.output, "again.txt\tok\n");
    load(first);
    ASSERT_EQ(run("export good.mdb").status, 0);
    EXPECT_EQ(withoutItsHeader(readFile(folder.file(exported()))), withoutItsHeader(first));
    std::filesystem::remove(folder.file(exported()));
  }
  EXPECT_EQ(examples, 8);
}

TEST_F(Batch, a_load_without_room_on_the_disk_ends_with_2_and_keeps_whole_notices) {
  std::string notices;
  for (int i = 0; i < 3000; ++i) {
    notices += "<NOTICE>\nt_notice_type = TB5\nt_trg_adm_ref_id = A" + std::to_string(i) + "\n</NOTICE>\n";
  }
  folder.write("many.txt",
               "<HEAD>\nt_adm = F\n</HEAD>\n" + notices + "<TAIL>\nt_num_notices = 3000\n</TAIL>\n");
  const Outcome outcome = run("load --level 1 many.txt", "trap '' XFSZ; ulimit -f 400; ");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "many.txt\tload\n");
  EXPECT_NE(outcome.messages.find("The data was not saved to the database\n"), std::string::npos);
  const int sound =
      std::system(("sqlite3 '" + folder.file("many.mdb") +
                   "' 'PRAGMA integrity_check; SELECT count(*) > 0 FROM fmtv_vorna; SELECT count(*) FROM "
                   "fmtv_vorna v WHERE (SELECT count(*) FROM proc_ntc_hist p WHERE p.vornakey = "
                   "v.vornakey) <> 1' > '" +
                   folder.file("sound.log") + "'")
                      .c_str());
  EXPECT_EQ(sound, 0);
  EXPECT_EQ(readFile(folder.file("sound.log")), "ok\n1\n0\n");
}

TEST_F(Batch, without_its_map_the_third_level_is_refused_and_the_others_work) {
  // A copy of the program without what stands beside it.
  std::filesystem::copy_file(ZAMO_BIN "/zamo-kv19-batch", folder.file("alone"));
  folder.write("good.txt", kGoodFile);
  const auto runAlone = [this](const std::string& arguments) {
    const std::string command = "cd '" + folder.path() + "' && ./alone " + arguments + " >out.log 2>err.log";
    const int result = std::system(command.c_str());
    return WIFEXITED(result) ? WEXITSTATUS(result) : -1;
  };
  EXPECT_EQ(runAlone("check good.txt"), 2);
  EXPECT_EQ(
      readFile(folder.file("err.log")),
      "File Missing: The file gzmp32d.dll not found. Cannot proceed any further. Plese install the GZMP\n");
  folder.write("gzmp32d.dat", "no map");
  EXPECT_EQ(runAlone("check --level 3 good.txt"), 2);
  EXPECT_EQ(readFile(folder.file("err.log")), "Can't find GZMP data files\n");
  EXPECT_EQ(runAlone("check --level 1 good.txt"), 0);
}

TEST_F(Batch, without_its_template_nothing_is_loaded_and_an_old_database_stays) {
  std::filesystem::copy_file(ZAMO_BIN "/zamo-kv19-batch", folder.file("alone"));
  folder.write("good.txt", kGoodFile);
  folder.write("good.mdb", "an old database");
  const int result = std::system(
      ("cd '" + folder.path() + "' && ./alone load --level 1 good.txt >out.log 2>err.log").c_str());
  EXPECT_EQ(WEXITSTATUS(result), 2);
  EXPECT_EQ(readFile(folder.file("out.log")), "good.txt\tload\n");
  EXPECT_TRUE(
      readFile(folder.file("err.log")).ends_with("Error 53 : \n\rMasterHDLK_WQN.mdb file not found\n"));
  EXPECT_EQ(readFile(folder.file("good.mdb")), "an old database");
}

TEST_F(Batch, a_damaged_database_is_told_and_left_alone) {
  folder.write("noise.mdb", std::string(5000, 'x'));
  const Outcome outcome = run("show noise.mdb 1");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.messages, "OpenDB: Erreur 26:file is not a database\n");
  EXPECT_EQ(readFile(folder.file("noise.mdb")), std::string(5000, 'x'));
}

TEST_F(Batch, a_line_of_more_than_a_megabyte_ends_with_2_and_its_number) {
  std::string content(kGoodFile);
  content.insert(content.find("t_notice_type"), "t_remarks = " + std::string(1'100'000, 'x') + "\n");
  folder.write("long.txt", content);
  folder.write("good.txt", kGoodFile);
  const Outcome outcome = run("check --level 1 long.txt good.txt");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "long.txt\tstructure\ngood.txt\tok\n");
  EXPECT_NE(
      outcome.messages.find("Validate File format: Erreur 7:Out of memory: line 5 is longer than 1 MB\n"),
      std::string::npos);
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"err.log", "good.txt", "long.txt", "out.log"}));
}

TEST_F(Batch, a_line_of_a_gigabyte_is_refused_in_the_memory_that_a_sound_file_takes) {
  if (kIsSanitized) GTEST_SKIP() << "sanitizers take memory of their own";
  std::filesystem::resize_file(folder.write("huge.txt", kGoodFile), std::size_t{1} << 30);
  const std::string limit = "ulimit -v 100000; ";
  const Outcome outcome = run("check --level 1 huge.txt", limit);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "huge.txt\tstructure\n");
  EXPECT_NE(outcome.messages.find("Erreur 7:Out of memory: line 10 is longer than 1 MB\n"),
            std::string::npos);
}

TEST_F(Batch, memory_that_runs_out_ends_a_file_with_2_and_the_next_one_is_checked) {
  if (kIsSanitized) GTEST_SKIP() << "sanitizers take memory of their own";
  folder.write("good.txt", kGoodFile);
  std::string findings = "<HEAD>\nt_adm = F\n</HEAD>\n<NOTICE>\nt_notice_type = TB5\n";
  for (int i = 0; i < 1'000'000; ++i) findings += "t_x=\n";
  folder.write("findings.txt", findings + "</NOTICE>\n<TAIL>\nt_num_notices = 1\n</TAIL>\n");
  std::string nested = "<HEAD>\nt_adm = F\n</HEAD>\n<NOTICE>\n\n";
  for (int i = 0; i < 3'000'000; ++i) nested += "<POINT>\n";
  folder.write("nested.txt", nested);
  const Outcome outcome =
      run("check --level 1 findings.txt good.txt nested.txt good.txt", "ulimit -v 100000; ");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(
      outcome.output,
      "findings.txt\tbasic\tfindings_val_outcome.txt\ngood.txt\tok\nnested.txt\tstructure\ngood.txt\tok\n");
  EXPECT_NE(outcome.messages.find("Validate Notice: Erreur 7:Out of memory\n"), std::string::npos);
  EXPECT_NE(outcome.messages.find("Validate File format: Erreur 7:Out of memory\n"), std::string::npos);
  // The same files with room enough.
  EXPECT_EQ(run("check --level 1 findings.txt nested.txt").status, 1);
}

TEST_F(Batch, what_is_no_file_is_refused_at_once) {
  for (const char* name : {"pipe.txt", "pipe.mdb", "half.mdb-journal"})
    ASSERT_EQ(::mkfifo(folder.file(name).c_str(), 0600), 0);
  const std::string patience = "timeout 60 ";
  const Outcome check = run("check --level 1 pipe.txt /dev/zero", patience);
  EXPECT_EQ(check.status, 2);
  EXPECT_EQ(check.output, "pipe.txt\tstructure\n/dev/zero\tstructure\n");
  EXPECT_NE(check.messages.find("Validate File format: Erreur 70:Not a regular file: pipe.txt\n"),
            std::string::npos);
  EXPECT_NE(check.messages.find("Validate File format: Erreur 70:Not a regular file: /dev/zero\n"),
            std::string::npos);
  folder.write("pipe.txt.keep", "");
  const Outcome show = run("show pipe.mdb 1", patience);
  EXPECT_EQ(show.status, 2);
  EXPECT_EQ(show.messages, "OpenDB: Erreur 70:Not a regular file: pipe.mdb\n");
  EXPECT_EQ(run("export pipe.mdb", patience).status, 2);
  folder.write("half.mdb", "");
  EXPECT_EQ(run("show half.mdb 1", patience).messages,
            "OpenDB: Erreur 70:Not a regular file: half.mdb-journal\n");
  // Its database would stand where the pipe is.
  std::filesystem::remove(folder.file("pipe.txt"));
  folder.write("pipe.txt", kGoodFile);
  const Outcome load = run("load --level 1 pipe.txt", patience);
  EXPECT_EQ(load.status, 2);
  EXPECT_EQ(load.output, "pipe.txt\tload\n");
  EXPECT_NE(load.messages.find("Error 70 : Not a regular file: pipe.mdb\n"), std::string::npos);
}

TEST_F(Batch, a_template_or_a_map_that_is_no_file_is_refused_at_once) {
  std::filesystem::copy_file(ZAMO_BIN "/zamo-kv19-batch", folder.file("alone"));
  folder.write("good.txt", kGoodFile);
  for (const char* name : {"MasterHDLK_WQN.mdb", "gzmp32d.dat"})
    ASSERT_EQ(::mkfifo(folder.file(name).c_str(), 0600), 0);
  const Outcome load = runProgram("timeout 60 ./alone load --level 1 good.txt");
  EXPECT_EQ(load.status, 2);
  EXPECT_EQ(load.output, "good.txt\tload\n");
  EXPECT_TRUE(load.messages.ends_with("Error 70 : \n\rMasterHDLK_WQN.mdb file not found\n"));
  const Outcome check = runProgram("timeout 60 ./alone check good.txt");
  EXPECT_EQ(check.status, 2);
  EXPECT_EQ(check.messages, "Can't find GZMP data files\n");
}

TEST_F(Batch, a_name_of_standard_input_is_no_file) {
  folder.write("bad.txt", "");
  for (const std::string name : {"/dev/stdin", "/dev/fd/0", "/proc/self/fd/0"}) {
    const Outcome outcome = run("check --level 1 " + name + " <bad.txt", "timeout 60 ");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, name + "\tstructure\n");
    EXPECT_NE(outcome.messages.find("Erreur 70:Not a regular file: " + name + "\n"), std::string::npos);
  }
}

TEST_F(Batch, standard_input_is_checked_and_its_report_goes_to_standard_output) {
  folder.write("empty.txt", "");
  folder.write("good.txt", kGoodFile);
  folder.write(
      "bad.txt",
      "<HEAD>\nt_adm = F\n</HEAD>\n<NOTICE>\nt_notice_type = \351\n</NOTICE>\n<TAIL>\nt_num_notices = "
      "1\n</TAIL>\n");
  std::filesystem::create_directory(folder.file("tmp"));
  const std::string keeping = "TMPDIR='" + folder.file("tmp") + "' ";
  const Outcome good = run("check --level 1 - <good.txt", keeping);
  EXPECT_EQ(good.status, 0);
  EXPECT_EQ(good.output, "-\tok\n");
  const Outcome empty = run("check --level 1 - good.txt <empty.txt", keeping);
  EXPECT_EQ(empty.status, 1);
  EXPECT_EQ(empty.output,
            "-\tstructure\nNumber of Notice sections found : 0\r\n"
            "- : ERROR : An electronic notice file should start with \r\n ONE <HEAD> section \r\n\r\n"
            "good.txt\tok\n");
  const Outcome bad = run("check --level 1 - <bad.txt", keeping);
  EXPECT_EQ(bad.status, 1);
  EXPECT_TRUE(
      bad.output.starts_with("-\tbasic\nThe input file has been validated with  LMZ Zamo HDLK Digital "
                             "Version 3.07 / 13.01.2006\r\nOn "));
  // What is left neither here nor there.
  EXPECT_EQ(folder.names(),
            (std::vector<std::string>{"bad.txt", "empty.txt", "err.log", "good.txt", "out.log", "tmp"}));
  EXPECT_TRUE(std::filesystem::is_empty(folder.file("tmp")));
  // The same as of a file, in the code of the terminal.
  const Outcome file = run("check --level 1 bad.txt");
  const auto behind = [](const std::string& text, std::string_view head) {
    return text.substr(text.find(head));
  };
  EXPECT_EQ(behind(bad.output, "Basic Validation error(s)"),
            utf8FromText(behind(readFile(folder.file("bad_val_outcome.txt")), "Basic Validation error(s)")));
}

TEST_F(Batch, standard_input_may_be_a_pipe_and_longer_than_any_buffer_of_one) {
  std::string remarks;
  for (int i = 0; i < 20'000; ++i) remarks += "t_remarks = some more of them\n";
  std::string content(kGoodFile);
  content.insert(content.find("t_notice_type"), remarks);
  folder.write("long.txt", content);
  EXPECT_EQ(runProgram("cat long.txt | " ZAMO_BIN "/zamo-kv19-batch check --level 1 -").output, "-\tok\n");
}

TEST_F(Batch, standard_input_that_is_closed_or_can_not_be_kept_ends_with_2) {
  const Outcome closed = run("check --level 1 - <&-");
  EXPECT_EQ(closed.status, 2);
  EXPECT_EQ(closed.output, "-\tstructure\n");
  EXPECT_EQ(closed.messages, "zamo-kv19-batch: Erreur 57:Device I/O error: -\n");
  const Outcome nowhere = run("check --level 1 - </dev/null", "TMPDIR=/nowhere ");
  EXPECT_EQ(nowhere.status, 2);
  EXPECT_EQ(nowhere.output, "-\tstructure\n");
}

TEST_F(Batch, standard_input_is_not_loaded_and_not_checked_twice) {
  const Outcome load = run("load --level 1 - </dev/null");
  EXPECT_EQ(load.status, 2);
  EXPECT_EQ(load.output, "");
  EXPECT_NE(load.messages.find("standard input can be checked and not loaded"), std::string::npos);
  EXPECT_EQ(run("check --level 1 - - </dev/null").status, 2);
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"err.log", "out.log"}));
  // A file of that name.
  folder.write("-", kGoodFile);
  EXPECT_EQ(run("check --level 1 ./-").output, "./-\tok\n");
}

TEST_F(Batch, a_name_too_long_for_the_files_beside_it_is_refused_before_anything_is_made) {
  const auto named = [this](std::size_t length) {
    const std::string name = std::string(length - 4, 'n') + ".txt";
    folder.write(name, "");
    return name;
  };
  const std::string checkable = named(255 - 12);
  const Outcome longest = run("check --level 1 " + checkable);
  EXPECT_EQ(longest.status, 1);
  const std::string base = checkable.substr(0, checkable.size() - 4);
  EXPECT_EQ(longest.output, checkable + "\tstructure\t" + base + "_val_outcome.txt\n");
  std::filesystem::remove(folder.file(base + "_val_outcome.txt"));

  const Outcome load = run("load --level 1 " + checkable);
  EXPECT_EQ(load.status, 2);
  EXPECT_EQ(load.output, checkable + "\tload\n");
  EXPECT_EQ(load.messages, "createAndLoadDb: Erreur 53:The name is too long for a file: " + base +
                               "_duplicat_report_31122000-235959.txt\n");
  std::filesystem::remove(folder.file(checkable));

  const std::string tooLong = named(255 - 11);
  const Outcome check = run("check --level 1 " + tooLong);
  EXPECT_EQ(check.status, 2);
  EXPECT_EQ(check.output, tooLong + "\tstructure\n");
  EXPECT_EQ(check.messages, "checkFormatAndBasic: Erreur 53:The name is too long for a file: " +
                                tooLong.substr(0, tooLong.size() - 4) + "_val_outcome.txt\n");
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"err.log", tooLong, "out.log"}));
}

TEST_F(Batch, the_longest_name_that_can_be_loaded_is_loaded) {
  const std::string base(255 - 36, 'n');
  const std::string notice =
      "<NOTICE>\nt_notice_type = GT1\nt_adm_ref_id = A1\nt_freq_assgn = 474\n</NOTICE>\n";
  folder.write(base + ".txt",
               "<HEAD>\nt_adm = F\n</HEAD>\n" + notice + notice + "<TAIL>\nt_num_notices = 2\n</TAIL>\n");
  const Outcome load = run("load --level 1 " + base + ".txt");
  EXPECT_EQ(load.status, 0);
  EXPECT_EQ(load.output, base + ".txt\tok\n");
  EXPECT_EQ(run("show " + base + ".mdb 83700002").status, 0);
}

TEST_F(Batch, a_line_end_in_a_name_makes_no_line_of_its_own) {
  folder.write("two\nlines.txt", "");
  folder.write("a\r\tb.txt", kGoodFile);
  const Outcome outcome = run("check --level 1 'two\nlines.txt' 'a\r\tb.txt'");
  EXPECT_EQ(outcome.output, "two\\nlines.txt\tstructure\ttwo\\nlines_val_outcome.txt\na\\r\\tb.txt\tok\n");
  EXPECT_TRUE(std::filesystem::exists(folder.file("two\nlines_val_outcome.txt")));
}

TEST_F(Batch, an_error_of_the_load_names_its_stage) {
  folder.write("notices.mdb", kGoodFile);
  const Outcome outcome = run("load --level 1 notices.mdb");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "notices.mdb\tload\n");
}

TEST_F(Batch, a_path_beyond_ascii_is_kept_on_disk_and_told_in_the_code_page) {
  folder.write("\u00e9t\u00e9.txt", "");
  const Outcome outcome = run("check --level 1 \u00e9t\u00e9.txt");
  EXPECT_EQ(outcome.output, "\u00e9t\u00e9.txt\tstructure\t\u00e9t\u00e9_val_outcome.txt\n");
  EXPECT_NE(readFile(folder.file("\u00e9t\u00e9_val_outcome.txt")).find("\r\n\351t\351.txt : ERROR : "),
            std::string::npos);
}

}  // namespace
}  // namespace zamo
