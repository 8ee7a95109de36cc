#include "platform/code_page.h"

#include <gtest/gtest.h>

namespace zamo {
namespace {

std::string allBytes() {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  return bytes;
}

TEST(CodePage, every_byte_survives_utf_16) {
  const std::string bytes = allBytes();
  EXPECT_EQ(utf16FromText(bytes).size(), 256U);
  EXPECT_EQ(textFromUtf16(utf16FromText(bytes)), bytes);
}

TEST(CodePage, every_byte_survives_utf_8) {
  const std::string bytes = allBytes();
  EXPECT_EQ(textFromUtf8(utf8FromText(bytes)), bytes);
}

TEST(CodePage, every_byte_survives_alone) {
  for (int i = 0; i < 256; ++i) {
    const char c = static_cast<char>(i);
    EXPECT_EQ(byteOf(unicodeOf(c)), c) << i;
  }
}

TEST(CodePage, bytes_are_the_characters_of_windows_1252) {
  EXPECT_EQ(utf16FromText("A\200\212\221\225\226\237\261\351\377"),
            u"A\u20AC\u0160\u2018\u2022\u2013\u0178\u00B1\u00E9\u00FF");
  EXPECT_EQ(utf8FromText("\261 \351 \200 \377"), "\xC2\xB1 \xC3\xA9 \xE2\x82\xAC \xC3\xBF");
  EXPECT_EQ(textFromUtf8("\xC2\xB1 \xC3\xA9 \xE2\x82\xAC \xC3\xBF"), "\261 \351 \200 \377");
}

TEST(CodePage, the_five_unassigned_bytes_are_control_characters) {
  for (const int byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
    EXPECT_EQ(unicodeOf(static_cast<char>(byte)), static_cast<char16_t>(byte));
    EXPECT_EQ(byteOf(static_cast<char32_t>(byte)), static_cast<char>(byte));
  }
}

TEST(CodePage, what_it_does_not_hold_becomes_a_question_mark) {
  EXPECT_EQ(textFromUtf16(u"a\u0141\u0434\u4E2Db"), "a???b");
  EXPECT_EQ(textFromUtf16(u"\u0080\u0085\u0100"), "???");
  EXPECT_EQ(textFromUtf8("\xC5\x81\xE4\xB8\xAD."), "??.");
}

TEST(CodePage, a_character_beyond_16_bits_becomes_one_question_mark) {
  EXPECT_EQ(textFromUtf16(u"a\U0001F4FBb"), "a?b");
  EXPECT_EQ(textFromUtf8("a\xF0\x9F\x93\xBB"
                         "b"),
            "a?b");
}

TEST(CodePage, a_lone_surrogate_becomes_one_question_mark) {
  EXPECT_EQ(textFromUtf16(std::u16string{0xD83D, u'a'}), "?a");
  EXPECT_EQ(textFromUtf16(std::u16string{0xDCFB, u'a'}), "?a");
  EXPECT_EQ(textFromUtf16(std::u16string{u'a', 0xD83D}), "a?");
}

TEST(CodePage, an_ill_formed_byte_of_utf_8_becomes_a_question_mark) {
  EXPECT_EQ(textFromUtf8("a\xE9"
                         "b"),
            "a?b");
  EXPECT_EQ(textFromUtf8("a\x80"
                         "b"),
            "a?b");
  EXPECT_EQ(textFromUtf8("a\xFF"
                         "b"),
            "a?b");
  EXPECT_EQ(textFromUtf8("a\xC3"), "a?");
  EXPECT_EQ(textFromUtf8("\xC3("), "?(");
}

TEST(CodePage, an_overlong_form_of_utf_8_is_never_taken_for_the_character) {
  for (const char* overlong :
       {"\xC0\xAF", "\xE0\x80\xAF", "\xF0\x80\x80\xAF", "\xE0\x9F\xBF", "\xF0\x80\x82\xB1"}) {
    for (const char c : textFromUtf8(overlong)) EXPECT_EQ(c, '?') << overlong;
  }
}

}  // namespace
}  // namespace zamo
