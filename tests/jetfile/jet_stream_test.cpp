#include "jetfile/jet_stream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace zamo {
namespace {

constexpr std::uint64_t kMuch = std::uint64_t{1} << 40;

std::string written(const std::vector<JetPart>& parts) {
  std::string bytes;
  JetPartWriter writer([&bytes](std::string_view piece) { bytes += piece; });
  for (const JetPart& part : parts) writer.put(part);
  writer.flush();
  return bytes;
}

// The parts that come out of the bytes, given in pieces of that size.
std::vector<JetPart> readBack(std::string_view bytes, std::size_t piece = 1 << 20,
                              std::uint64_t most = kMuch) {
  JetPartReader reader(
      [&bytes, piece](char* into, std::size_t size) {
        const std::size_t count = std::min({size, piece, bytes.size()});
        std::copy_n(bytes.data(), count, into);
        bytes.remove_prefix(count);
        return count;
      },
      most);
  std::vector<JetPart> parts;
  while (std::optional<JetPart> part = reader.next()) parts.push_back(std::move(*part));
  return parts;
}

const JetCatalogue kCatalogue = {{{"fmtv_vorna", 2}, {"other", 0}}};
const JetTableHead kHead = {{"fmtv_vorna", 2}, {"vornakey", "adm"}};
const JetRow kRow = {std::int64_t{-7}, std::u16string(u"F\u041C")};

std::vector<JetPart> file() {
  return {kCatalogue,   kHead,         kRow,        JetRow{JetNull{}, std::u16string()},
          JetLostRow{}, JetTableEnd{}, JetFileEnd{}};
}

TEST(JetStream, gives_back_what_was_put_in_whatever_the_pieces) {
  const std::string bytes = written(file());
  for (const std::size_t piece : {std::size_t{1}, std::size_t{7}, bytes.size()}) {
    const std::vector<JetPart> parts = readBack(bytes, piece);
    ASSERT_EQ(parts.size(), 7U);
    EXPECT_EQ(std::get<JetCatalogue>(parts[0]).tables, kCatalogue.tables);
    EXPECT_EQ(std::get<JetTableHead>(parts[1]).table, kHead.table);
    EXPECT_EQ(std::get<JetTableHead>(parts[1]).columns, kHead.columns);
    EXPECT_EQ(std::get<JetRow>(parts[2]), kRow);
    EXPECT_EQ(std::get<JetRow>(parts[3]), (JetRow{JetNull{}, std::u16string()}));
    EXPECT_TRUE(std::holds_alternative<JetLostRow>(parts[4]));
    EXPECT_TRUE(std::holds_alternative<JetTableEnd>(parts[5]));
    EXPECT_TRUE(std::holds_alternative<JetFileEnd>(parts[6]));
  }
}

TEST(JetStream, holds_every_kind_of_value) {
  JetTableHead head = kHead;
  head.columns.assign(8, "column");
  const JetRow row = {JetNull{},
                      true,
                      std::int64_t{1} << 40,
                      0.1,
                      JetDecimal{"-0.5"},
                      JetMoment{-1.75},
                      std::u16string(100'000, u'x'),
                      JetUnreadable::tooLong};
  const std::vector<JetPart> parts = readBack(written({kCatalogue, head, row}));
  ASSERT_EQ(parts.size(), 3U);
  EXPECT_EQ(std::get<JetRow>(parts[2]), row);
}

TEST(JetStream, ends_at_a_part_that_is_out_of_order) {
  EXPECT_EQ(readBack(written({kHead})).size(), 0U);
  EXPECT_EQ(readBack(written({JetFileEnd{}})).size(), 0U);
  EXPECT_EQ(readBack(written({kCatalogue, kCatalogue})).size(), 1U);
  EXPECT_EQ(readBack(written({kCatalogue, kRow})).size(), 1U);
  EXPECT_EQ(readBack(written({kCatalogue, JetTableEnd{}})).size(), 1U);
  EXPECT_EQ(readBack(written({kCatalogue, kHead, kHead})).size(), 2U);
  EXPECT_EQ(readBack(written({kCatalogue, kHead, JetFileEnd{}})).size(), 2U);
  EXPECT_EQ(readBack(written({kCatalogue, JetFileEnd{}, JetFileEnd{}})).size(), 2U);
  EXPECT_EQ(readBack(written({kCatalogue, JetFileEnd{}, JetFailure::cutOff})).size(), 2U);
  EXPECT_EQ(readBack(written({JetFailure::notOpened, kCatalogue})).size(), 1U);
}

TEST(JetStream, ends_at_a_row_with_more_or_fewer_values_than_columns) {
  EXPECT_EQ(readBack(written({kCatalogue, kHead, JetRow{JetNull{}}})).size(), 2U);
  EXPECT_EQ(readBack(written({kCatalogue, kHead, JetRow(3, JetNull{})})).size(), 2U);
}

TEST(JetStream, ends_where_its_bytes_are_cut_and_where_there_are_too_many) {
  const std::string bytes = written(file());
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    EXPECT_LT(readBack(std::string_view(bytes).substr(0, size)).size(), 7U);
  }
  EXPECT_EQ(readBack(bytes, 1, bytes.size()).size(), 7U);
  EXPECT_EQ(readBack(bytes, 1, bytes.size() - 1).size(), 6U);
}

TEST(JetStream, refuses_a_decimal_that_is_no_number_and_text_of_odd_size) {
  EXPECT_EQ(readBack(written({kCatalogue, kHead, JetRow{JetDecimal{"1e9"}, JetNull{}}})).size(), 2U);
  EXPECT_EQ(readBack(written({kCatalogue, kHead, JetRow{JetDecimal{""}, JetNull{}}})).size(), 2U);
  std::string odd = written({kCatalogue, kHead, JetRow{std::u16string(u"ab"), JetNull{}}});
  const std::size_t length = odd.rfind(std::string("\4\0\0\0", 4));
  ASSERT_NE(length, std::string::npos);
  odd[length] = '\3';
  EXPECT_EQ(readBack(odd).size(), 2U);
}

TEST(JetStream, takes_no_memory_on_the_word_of_a_length) {
  const std::string huge("\xFF\xFF\xFF\x7F\x00", 5);
  EXPECT_EQ(readBack(huge).size(), 0U);
}

// Whatever the bytes are, reading them ends, and what comes out stands in order.
TEST(JetStream, comes_to_an_end_with_any_bytes) {
  const std::string bytes = written(file());
  std::mt19937 random(17);
  for (int round = 0; round < 20'000; ++round) {
    std::string changed = bytes;
    for (unsigned i = 0; i <= random() % 4; ++i)
      changed[random() % changed.size()] = static_cast<char>(random());
    const std::vector<JetPart> parts = readBack(changed, 1 + random() % 64);
    ASSERT_LE(parts.size(), 7U);
    for (const JetPart& part : parts) {
      const auto* row = std::get_if<JetRow>(&part);
      const auto* head = parts.size() > 1 ? std::get_if<JetTableHead>(&parts[1]) : nullptr;
      if (row != nullptr) {
        ASSERT_NE(head, nullptr);
        ASSERT_EQ(row->size(), head->columns.size());
      }
    }
  }
}

}  // namespace
}  // namespace zamo
