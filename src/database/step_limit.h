// An end to statements that a spoiled or hostile file would keep busy for ever.
#pragma once

#include <cstdint>

struct sqlite3;
struct sqlite3_stmt;

namespace zamo {

// Stops a statement that works on and on without giving a row, or that gives more rows than its file can
// hold. After that no statement takes a step any more.
class StepLimit {
 public:
  // Watches `database` from now on, which must outlive this. At first few steps do, as the file is only
  // looked at.
  explicit StepLimit(sqlite3* database);
  StepLimit(const StepLimit&) = delete;
  StepLimit& operator=(const StepLimit&) = delete;
  ~StepLimit();

  void allowWork();

  // To the next row, with the engine's result.
  int step(sqlite3_stmt* statement);
  // Statements without rows.
  int run(const char* sql);

  bool wasReached() const { return reached_; }

 private:
  static int countSteps(void* self);
  bool areTooManyRows() const;

  sqlite3* database_;
  std::int64_t most_;
  std::int64_t steps_ = 0;
  std::int64_t rows_ = 0;
  bool reached_ = false;
};

}  // namespace zamo
