#include "model/notice_words.h"

#include <gtest/gtest.h>

namespace zamo {
namespace {

TEST(NoticeWords, exactly_means_every_letter) {
  EXPECT_TRUE(isExactly("GT1", types::GT1));
  EXPECT_FALSE(isExactly("gt1", types::GT1));
  EXPECT_FALSE(isExactly("GT1 ", types::GT1));
  EXPECT_FALSE(isExactly("", types::GT1));
  EXPECT_FALSE(isExactly("GT2", types::GT1));
}

TEST(NoticeWords, in_any_case_means_whatever_the_letters_case) {
  EXPECT_TRUE(isInAnyCase("MODIFY", actions::MODIFY));
  EXPECT_TRUE(isInAnyCase("modIFY", actions::MODIFY));
  EXPECT_FALSE(isInAnyCase("MODIFY ", actions::MODIFY));
  EXPECT_FALSE(isInAnyCase("MOD", actions::MODIFY));
}

TEST(NoticeWords, of_several_words_one_is_enough) {
  EXPECT_TRUE(isExactly("TB3", {types::TB2, types::TB3}));
  EXPECT_FALSE(isExactly("tb3", {types::TB2, types::TB3}));
  EXPECT_TRUE(isInAnyCase("ntfd_pz", {fragments::KV19D, fragments::NTFD_PZ}));
  EXPECT_FALSE(isInAnyCase("PZ", {fragments::KV19D, fragments::NTFD_PZ}));
}

}  // namespace
}  // namespace zamo
