#include "noticefile/lines.h"

#include <gtest/gtest.h>

#include <string>

namespace zamo {
namespace {

struct Split {
  bool found = false;
  std::string key;
  std::string value;
  bool operator==(const Split&) const = default;
};

Split split(std::string_view line) {
  KeyValue parts;
  const bool found = splitKeyValue(line, parts);
  return {found, std::string(parts.key), std::string(parts.value)};
}

std::ostream& operator<<(std::ostream& out, const Split& parts) {
  return out << parts.found << "|" << parts.key << "|" << parts.value << "|";
}

TEST(KeyLine, is_split_at_its_first_equals_sign) {
  EXPECT_EQ(split("t_remarks=a=b==c"), (Split{true, "t_remarks", "a=b==c"}));
  EXPECT_EQ(split("=x"), (Split{true, "", "x"}));
  EXPECT_EQ(split("="), (Split{true, "", ""}));
}

TEST(KeyLine, blanks_around_key_and_value_go) {
  EXPECT_EQ(split("t_adm   =    SUI"), (Split{true, "t_adm", "SUI"}));
  EXPECT_EQ(split("t_site_name = La  Dole"), (Split{true, "t_site_name", "La  Dole"}));
}

TEST(KeyLine, an_empty_value_is_a_key_line_all_the_same) {
  EXPECT_EQ(split("t_adm ="), (Split{true, "t_adm", ""}));
  EXPECT_EQ(split("t_adm"), (Split{}));
  EXPECT_EQ(split(""), (Split{}));
  EXPECT_EQ(split("<HEAD>"), (Split{}));
}

TEST(KeyLine, a_key_that_begins_with_t_becomes_lower_case_as_a_whole) {
  EXPECT_EQ(split("T_ADM = SUI"), (Split{true, "t_adm", "SUI"}));
  EXPECT_EQ(split("t_ADM = Sui"), (Split{true, "t_adm", "Sui"}));
  EXPECT_EQ(split("T\311 = x"), (Split{true, "t\351", "x"}));
  EXPECT_EQ(split("t_Attn@AZM010 = 1"), (Split{true, "t_attn@azm010", "1"}));
}

TEST(KeyLine, an_upper_case_letter_is_found_at_any_place_of_a_key_of_any_length) {
  KeyValue split;
  for (std::size_t length = 1; length <= 40; ++length) {
    for (std::size_t at = 1; at < length; ++at) {
      for (const auto& [upper, lower] :
           {std::pair('A', 'a'), std::pair('Z', 'z'), std::pair('\311', '\351')}) {
        std::string key(length, 't');
        std::string expected = key;
        key[at] = upper;
        expected[at] = lower;
        ASSERT_TRUE(splitKeyValue(key + " = V", split));
        EXPECT_EQ(split.key, expected);
      }
      for (const char other : {'@', '[', '_', '0', '`', '{', '\351', '\240'}) {
        std::string key(length, 't');
        key[at] = other;
        const std::string line = key + "=V";
        ASSERT_TRUE(splitKeyValue(line, split));
        EXPECT_EQ(split.key, key);
      }
    }
  }
}

TEST(KeyLine, any_other_key_stays_as_written) {
  EXPECT_EQ(split("X_ADM = SUI"), (Split{true, "X_ADM", "SUI"}));
  EXPECT_EQ(split("Notice No = 1"), (Split{true, "Notice No", "1"}));
}

TEST(KeyLine, a_line_without_equals_sign_leaves_the_parts_as_they_were) {
  KeyValue parts;
  ASSERT_TRUE(splitKeyValue("t_adm = SUI", parts));
  EXPECT_FALSE(splitKeyValue("comment text", parts));
  EXPECT_EQ(parts.key, "t_adm");
  EXPECT_EQ(parts.value, "SUI");
}

TEST(Tabs, each_becomes_one_blank) {
  std::string text = "\ta\t\tb c\t";
  tabsToBlanks(text.data(), text.data() + text.size());
  EXPECT_EQ(text, " a  b c ");
  std::string empty;
  tabsToBlanks(empty.data(), empty.data());
  EXPECT_EQ(empty, "");
}

struct Azimuth {
  bool numeric = false;
  std::string azimuth;
  bool operator==(const Azimuth&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Azimuth& parsed) {
  return out << parsed.numeric << "|" << parsed.azimuth << "|";
}

Azimuth azimuthOf(std::string_view key) {
  std::string_view azimuth = "before";
  const bool numeric = parseAzimuthKey(key, azimuth);
  return {numeric, std::string(azimuth)};
}

TEST(AzimuthKey, the_azimuth_starts_four_characters_behind_the_at_sign) {
  EXPECT_EQ(azimuthOf("t_eff_hgt@azm010"), (Azimuth{true, "010"}));
  EXPECT_EQ(azimuthOf("t_attn@azm350"), (Azimuth{true, "350"}));
  EXPECT_EQ(azimuthOf("t_attn@azm5.5"), (Azimuth{true, "5.5"}));
  EXPECT_EQ(azimuthOf("t_other@xyz7"), (Azimuth{true, "7"}));
}

TEST(AzimuthKey, an_azimuth_that_is_no_number_makes_it_no_azimuth_key) {
  EXPECT_EQ(azimuthOf("t_attn@azm"), (Azimuth{false, ""}));
  EXPECT_EQ(azimuthOf("t_attn@azmN10"), (Azimuth{false, "N10"}));
  EXPECT_EQ(azimuthOf("t_attn@az"), (Azimuth{false, ""}));
  EXPECT_EQ(azimuthOf("t_attn@"), (Azimuth{false, ""}));
}

TEST(AzimuthKey, without_an_at_sign_the_azimuth_is_left_alone) {
  EXPECT_EQ(azimuthOf("t_attn"), (Azimuth{false, "before"}));
  EXPECT_EQ(azimuthOf(""), (Azimuth{false, "before"}));
}

TEST(Tags, a_tag_line_begins_with_an_angle_bracket) {
  EXPECT_TRUE(isTagLine("<HEAD>"));
  EXPECT_TRUE(isTagLine("<"));
  EXPECT_FALSE(isTagLine(""));
  EXPECT_FALSE(isTagLine("a<"));
}

TEST(Tags, top_tags_in_any_case) {
  for (const char* tag : {"<HEAD>", "<NOTICE>", "<TAIL>", "<head>", "<Notice>", "<tail>"}) {
    EXPECT_TRUE(isTopTag(tag)) << tag;
    EXPECT_FALSE(isSubTag(tag)) << tag;
  }
}

TEST(Tags, sub_tags_in_any_case) {
  for (const char* tag : {"<ANT_HGT>", "<ANT_DIAGR_V>", "<ANT_DIAGR_H>", "<COORD>", "<COORDINATION>",
                          "<POINT>", "<ant_hgt>", "<Coord>", "<point>"}) {
    EXPECT_TRUE(isSubTag(tag)) << tag;
    EXPECT_FALSE(isTopTag(tag)) << tag;
  }
}

TEST(Tags, everything_else_is_neither) {
  for (const char* line : {"", "<", "HEAD", "<HEAD", "<HEAD >", "< HEAD>", "</HEAD>", "<HEADER>", "<COORD_A>",
                           "<COORD_O>", "<ANT_DIAGR>", "</POINT>", "<HEAD> x"}) {
    EXPECT_FALSE(isTopTag(line)) << line;
    EXPECT_FALSE(isSubTag(line)) << line;
  }
}

TEST(Tags, every_start_tag_has_its_end_tag) {
  EXPECT_EQ(endTagOf("<HEAD>"), "</HEAD>");
  EXPECT_EQ(endTagOf("<NOTICE>"), "</NOTICE>");
  EXPECT_EQ(endTagOf("<TAIL>"), "</TAIL>");
  EXPECT_EQ(endTagOf("<ANT_HGT>"), "</ANT_HGT>");
  EXPECT_EQ(endTagOf("<ANT_DIAGR_V>"), "</ANT_DIAGR_V>");
  EXPECT_EQ(endTagOf("<ANT_DIAGR_H>"), "</ANT_DIAGR_H>");
  EXPECT_EQ(endTagOf("<COORD>"), "</COORD>");
  EXPECT_EQ(endTagOf("<COORDINATION>"), "</COORDINATION>");
  EXPECT_EQ(endTagOf("<POINT>"), "</POINT>");
  EXPECT_EQ(endTagOf("<COORD_A>"), "</COORD_A>");
  EXPECT_EQ(endTagOf("<COORD_O>"), "</COORD_O>");
}

TEST(Tags, an_end_tag_is_upper_case) {
  EXPECT_EQ(endTagOf("<notice>"), "</NOTICE>");
  EXPECT_EQ(endTagOf("<Point>"), "</POINT>");
}

TEST(Tags, what_is_no_start_tag_has_no_end_tag) {
  for (const char* line : {"", "<FOO>", "</HEAD>", "HEAD", "<HEAD"}) EXPECT_EQ(endTagOf(line), "") << line;
}

}  // namespace
}  // namespace zamo
