// The built companion, run as a script would run it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::readFile;
using test::TempFolder;

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
    const std::string command = "cd '" + folder.path() + "' && " + before + ZAMO_BIN "/zamo-kv19-batch " +
                                arguments + " >out.log 2>err.log";
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
  EXPECT_FALSE(std::filesystem::exists(folder.file("bad_val_outcome.txt.part")));
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

TEST_F(Batch, a_line_of_100_megabytes_is_read) {
  std::string content(kGoodFile);
  content.insert(content.find("t_notice_type"), "t_remarks = " + std::string(100'000'000, 'x') + "\n");
  folder.write("long.txt", content);
  const Outcome outcome = run("check --level 1 long.txt");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, "long.txt\tok\n");
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
