#include "platform/text.h"

#include <gtest/gtest.h>

namespace zamo {
namespace {

TEST(Text, upper_case_follows_windows_1252) {
  EXPECT_EQ(upperText("Bern-z 3150_{"), "BERN-Z 3150_{");
  EXPECT_EQ(upperText("\351\350\344\366\374\361\347\376\340"), "\311\310\304\326\334\321\307\336\300");
  EXPECT_EQ(upperText("\377\232\234\236"), "\237\212\214\216");
}

TEST(Text, lower_case_follows_windows_1252) {
  EXPECT_EQ(lowerText("T_ADM[Z"), "t_adm[z");
  EXPECT_EQ(lowerText("\311\310\304\326\334\321\307\336\300"), "\351\350\344\366\374\361\347\376\340");
  EXPECT_EQ(lowerText("\237\212\214\216"), "\377\232\234\236");
}

TEST(Text, characters_without_a_partner_keep_their_byte_in_both_cases) {
  // Sharp s, micro, the multiplication and division signs, the plus-minus sign, f with hook.
  const std::string alone = "\337\265\327\367\261\203";
  EXPECT_EQ(upperText(alone), alone);
  EXPECT_EQ(lowerText(alone), alone);
}

TEST(Text, every_byte_comes_back_from_the_other_case_or_has_none) {
  for (int i = 0; i < 256; ++i) {
    const std::string one(1, static_cast<char>(i));
    const bool lowered = lowerText(one) != one;
    const bool raised = upperText(one) != one;
    EXPECT_FALSE(lowered && raised) << i;
    if (lowered) {
      EXPECT_EQ(upperText(lowerText(one)), one) << i;
    }
    if (raised) {
      EXPECT_EQ(lowerText(upperText(one)), one) << i;
    }
  }
}

TEST(Text, comparison_ignores_the_case_of_accented_letters_too) {
  EXPECT_TRUE(equalsIgnoringCase("Gen\350ve", "GEN\310VE"));
  EXPECT_TRUE(equalsIgnoringCase("\377", "\237"));
  EXPECT_TRUE(equalsIgnoringCase("", ""));
  EXPECT_FALSE(equalsIgnoringCase("Gen\350ve", "Geneve"));
  EXPECT_FALSE(equalsIgnoringCase("ab", "abc"));
  EXPECT_FALSE(equalsIgnoringCase("@", "`"));
}

TEST(Text, trimming_takes_blanks_alone) {
  EXPECT_EQ(trimText("   a  b   "), "a  b");
  EXPECT_EQ(trimText("\ta\t"), "\ta\t");
  EXPECT_EQ(trimText(" \240a\240 "), "\240a\240");
  EXPECT_EQ(trimText(" \r\n "), "\r\n");
  EXPECT_EQ(trimText("    "), "");
  EXPECT_EQ(trimText(""), "");
}

TEST(Text, cuts_count_characters_from_one_and_stop_at_the_end) {
  EXPECT_EQ(characters("+0301020", 2, 4), "030");
  EXPECT_EQ(characters("+03", 2, 4), "03");
  EXPECT_EQ(characters("+", 2, 4), "");
  EXPECT_EQ(characters("", 2, 4), "");
  EXPECT_EQ(characters("\344b", 1, 1), "\344");
}

TEST(Padding, zeros_fill_up_to_the_width) {
  EXPECT_EQ(padTo2("7"), "07");
  EXPECT_EQ(padTo2(""), "00");
  EXPECT_EQ(padTo3("7"), "007");
  EXPECT_EQ(padTo3("12"), "012");
  EXPECT_EQ(padTo3(""), "000");
  EXPECT_EQ(padTo3IfShort("7"), "007");
  EXPECT_EQ(padTo3IfShort("12"), "012");
  EXPECT_EQ(padTo3IfShort(""), "000");
  EXPECT_EQ(padTo4("7"), "0007");
  EXPECT_EQ(padTo4("123"), "0123");
  EXPECT_EQ(padTo4(""), "0000");
}

TEST(Padding, texts_of_the_width_or_longer_stay) {
  EXPECT_EQ(padTo2("12"), "12");
  EXPECT_EQ(padTo2("123"), "123");
  EXPECT_EQ(padTo3("123"), "123");
  EXPECT_EQ(padTo3("1234"), "1234");
  EXPECT_EQ(padTo3IfShort("1234"), "1234");
  EXPECT_EQ(padTo4("1234"), "1234");
  EXPECT_EQ(padTo4("12345"), "12345");
}

TEST(Padding, a_given_width_gets_two_zeros_at_most) {
  EXPECT_EQ(padToWidth("7", 3), "007");
  EXPECT_EQ(padToWidth("17", 3), "017");
  EXPECT_EQ(padToWidth("117", 3), "117");
  EXPECT_EQ(padToWidth("1117", 3), "1117");
  EXPECT_EQ(padToWidth("", 3), "");
  EXPECT_EQ(padToWidth("", 2), "00");
  EXPECT_EQ(padToWidth("7", 4), "7");
  EXPECT_EQ(padToWidth("7", 0), "7");
  EXPECT_EQ(padToWidth("", 0), "");
}

TEST(Text, controls_are_escaped_and_line_ends_stay) {
  EXPECT_EQ(withControlsEscaped(""), "");
  EXPECT_EQ(withControlsEscaped("one\r\ntwo\r\n"), "one\r\ntwo\r\n");
  EXPECT_EQ(withControlsEscaped("\r\r\n\n\r"), "\\x0D\r\n\\x0A\\x0D");
  EXPECT_EQ(withControlsEscaped(std::string_view("\0\x1B]0;x\x07", 7)), "\\x00\\x1B]0;x\\x07");
}

TEST(Text, what_the_code_page_leaves_free_is_a_control_and_all_else_is_none) {
  EXPECT_EQ(withControlsEscaped("\x7F\x81\x8D\x8F\x90\x9D"), "\\x7F\\x81\\x8D\\x8F\\x90\\x9D");
  EXPECT_EQ(withControlsEscaped(" ~\\\x80\x82\x8C\x8E\x91\x9C\x9E\xA0\xFF"),
            " ~\\\x80\x82\x8C\x8E\x91\x9C\x9E\xA0\xFF");
}

}  // namespace
}  // namespace zamo
