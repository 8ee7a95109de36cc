// What the fuzzer does to a working database, as lines of text:
//
//   set TABLE.COLUMN ROW VALUE   VALUE is 'text (\n in it is a line end), #number, xBYTES in hexadecimal, or
//   null copy TABLE ROW TIMES         the same row again, where the engine lets it in drop TABLE ROW sql
//   STATEMENT                anything at all, the schema too byte PLACE VALUE             of the finished
//   file
//
// Rows are counted from 0 and round about. A line that says nothing is passed over.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace zamo::fuzz {

// A working database with one notice of each type, as bytes, and what it is made of. Its columns take values
// of any kind, as those of a file that somebody else made may.
struct Subject {
  struct Column {
    std::string table;
    std::string name;
  };
  std::string bytes;
  std::vector<Column> columns;
};

Subject makeSubject();

// The bytes of the file that comes of it.
std::string edited(const Subject& subject, std::string_view edits);

// Another text of edits: one line more, less, or other than before.
std::string mutated(const Subject& subject, std::string_view edits, std::size_t mostBytes,
                    std::mt19937& random);

}  // namespace zamo::fuzz
