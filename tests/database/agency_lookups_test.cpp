#include "database/agency_lookups.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "database/raw_database.h"
#include "platform/run_time_error.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

namespace fs = std::filesystem;
using test::RawDatabase;
using test::TempFolder;

class TheAgencies : public testing::Test {
 protected:
  TheAgencies() {
    RawDatabase raw(path);
    raw.run(
        "CREATE TABLE op_agcy (adm TEXT COLLATE NOCASE NOT NULL, op_agcy TEXT COLLATE NOCASE NOT NULL) "
        "STRICT;"
        "CREATE TABLE addr_code (adm TEXT COLLATE NOCASE NOT NULL, addr_code TEXT COLLATE NOCASE NOT NULL) "
        "STRICT;"
        "INSERT INTO op_agcy VALUES ('F', '001'), ('F', '012'), ('F', 'X\xc3\xa9'), ('D', '003');"
        "INSERT INTO addr_code VALUES ('F', 'A'), ('F', 'c'), ('D', 'B')");
  }

  template <typename Ask>
  static int numberOf(Ask ask) {
    try {
      ask();
    } catch (const RunTimeError& error) {
      EXPECT_FALSE(error.text.empty());
      return error.number;
    }
    return 0;
  }

  TempFolder folder;
  std::string path = folder.file("template.mdb");
  MasterAgencies agencies{path};
};

TEST_F(TheAgencies, of_an_administration_are_found_wherever_they_stand) {
  EXPECT_TRUE(agencies.isOpAgcyOfAdm("F", "001"));
  EXPECT_TRUE(agencies.isOpAgcyOfAdm("F", "012"));
  EXPECT_TRUE(agencies.isOpAgcyOfAdm("D", "003"));
  EXPECT_TRUE(agencies.isAddrCodeOfAdm("F", "A"));
  EXPECT_TRUE(agencies.isAddrCodeOfAdm("F", "c"));
  EXPECT_TRUE(agencies.isAddrCodeOfAdm("D", "B"));
}

TEST_F(TheAgencies, of_another_administration_are_refused) {
  EXPECT_FALSE(agencies.isOpAgcyOfAdm("F", "003"));
  EXPECT_FALSE(agencies.isOpAgcyOfAdm("D", "001"));
  EXPECT_FALSE(agencies.isAddrCodeOfAdm("F", "B"));
  EXPECT_FALSE(agencies.isAddrCodeOfAdm("D", "A"));
}

TEST_F(TheAgencies, are_not_mixed_up_with_address_codes) {
  EXPECT_FALSE(agencies.isOpAgcyOfAdm("F", "A"));
  EXPECT_FALSE(agencies.isAddrCodeOfAdm("F", "001"));
}

TEST_F(TheAgencies, are_compared_as_whole_text) {
  for (const char* code : {"1", "01", "0010", "1.0", "", "%", "0_1"}) {
    EXPECT_FALSE(agencies.isOpAgcyOfAdm("F", code)) << code;
  }
}

TEST_F(TheAgencies, are_compared_without_regard_to_case) {
  EXPECT_TRUE(agencies.isAddrCodeOfAdm("F", "a"));
  EXPECT_TRUE(agencies.isAddrCodeOfAdm("F", "C"));
  EXPECT_TRUE(agencies.isOpAgcyOfAdm("F", "x\311"));
  EXPECT_TRUE(agencies.isOpAgcyOfAdm("f", "001"));
}

TEST_F(TheAgencies, of_an_unknown_administration_are_none) {
  EXPECT_FALSE(agencies.isOpAgcyOfAdm("XXX", "001"));
  EXPECT_FALSE(agencies.isOpAgcyOfAdm("", "001"));
  EXPECT_FALSE(agencies.isAddrCodeOfAdm("", "A"));
}

TEST_F(TheAgencies, are_right_when_the_administration_changes_back_and_forth) {
  for (int round = 0; round < 3; ++round) {
    EXPECT_TRUE(agencies.isOpAgcyOfAdm("F", "001"));
    EXPECT_TRUE(agencies.isAddrCodeOfAdm("D", "B"));
    EXPECT_FALSE(agencies.isOpAgcyOfAdm("D", "001"));
    EXPECT_FALSE(agencies.isAddrCodeOfAdm("F", "B"));
  }
}

TEST_F(TheAgencies, asked_for_with_a_quote_are_an_error_and_change_nothing) {
  const std::string before = test::readFile(path);
  for (const char* adm : {"F'", "O'N", "F'; DELETE FROM op_agcy; --", "F'; UPDATE addr_code SET adm = 'D"}) {
    SCOPED_TRACE(adm);
    EXPECT_NE(numberOf([&] { agencies.isOpAgcyOfAdm(adm, "001"); }), 0);
    EXPECT_NE(numberOf([&] { agencies.isAddrCodeOfAdm(adm, "A"); }), 0);
  }
  EXPECT_EQ(numberOf([&] { agencies.isOpAgcyOfAdm("O'N", "001"); }), 1);
  EXPECT_EQ(test::readFile(path), before);
  EXPECT_TRUE(agencies.isOpAgcyOfAdm("F", "001"));
  EXPECT_TRUE(agencies.isAddrCodeOfAdm("F", "A"));
}

TEST_F(TheAgencies, come_from_a_template_that_is_opened_once) {
  EXPECT_TRUE(agencies.isOpAgcyOfAdm("F", "001"));
  fs::remove(path);
  for (int round = 0; round < 100; ++round) {
    ASSERT_TRUE(agencies.isOpAgcyOfAdm("D", "003"));
    ASSERT_TRUE(agencies.isOpAgcyOfAdm("F", "012"));
    ASSERT_TRUE(agencies.isAddrCodeOfAdm("D", "B"));
    ASSERT_TRUE(agencies.isAddrCodeOfAdm("F", "A"));
  }
}

TEST_F(TheAgencies, leave_the_template_closed_until_the_first_question) {
  MasterAgencies early(folder.file("late.mdb"));
  fs::copy_file(path, folder.file("late.mdb"));
  EXPECT_TRUE(early.isOpAgcyOfAdm("F", "001"));
}

TEST_F(TheAgencies, without_a_template_are_an_error_at_every_question) {
  MasterAgencies none(folder.file("none.mdb"));
  EXPECT_EQ(numberOf([&] { none.isOpAgcyOfAdm("F", "001"); }), 14);
  EXPECT_EQ(numberOf([&] { none.isAddrCodeOfAdm("F", "A"); }), 14);
  EXPECT_FALSE(fs::exists(folder.file("none.mdb")));
}

TEST_F(TheAgencies, in_a_template_without_their_tables_are_an_error) {
  RawDatabase(folder.file("old.mdb")).run("CREATE TABLE fmtv_keys (vornakey INTEGER)");
  MasterAgencies old(folder.file("old.mdb"));
  EXPECT_EQ(numberOf([&] { old.isOpAgcyOfAdm("F", "001"); }), 1);
  EXPECT_EQ(numberOf([&] { old.isAddrCodeOfAdm("F", "A"); }), 1);
}

TEST(TheMasterTemplate, beside_the_program_is_the_one_that_is_asked) {
  MasterAgencies agencies;
  EXPECT_TRUE(agencies.isOpAgcyOfAdm("SUI", "001"));
  EXPECT_TRUE(agencies.isAddrCodeOfAdm("SUI", "A"));
  EXPECT_FALSE(agencies.isOpAgcyOfAdm("SUI", "999"));
  EXPECT_FALSE(agencies.isAddrCodeOfAdm("SUI", "?"));
}

}  // namespace
}  // namespace zamo
