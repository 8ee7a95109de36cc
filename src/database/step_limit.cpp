#include "database/step_limit.h"

#include <sqlite3.h>

#include <cstdlib>

namespace zamo {
namespace {

// The engine looks in after so many steps.
constexpr int kGrain = 1000;
// Enough for some 5,000 tables.
constexpr std::int64_t kStepsToLook = 50'000;
// Some seconds; a search through a million notices takes a tenth.
constexpr std::int64_t kStepsToWork = 100'000'000;
// So many rows are taken without a thought.
constexpr std::int64_t kManyRows = 1'000'000;

int takeNumber(void* number, int /*count*/, char** values, char** /*names*/) {
  *static_cast<std::int64_t*>(number) = std::strtoll(values[0], nullptr, 10);
  return 0;
}

}  // namespace

StepLimit::StepLimit(sqlite3* database) : database_(database), most_(kStepsToLook) {
  sqlite3_progress_handler(database_, kGrain, countSteps, this);
}

StepLimit::~StepLimit() {
  sqlite3_progress_handler(database_, 0, nullptr, nullptr);
}

void StepLimit::allowWork() {
  most_ = kStepsToWork;
}

int StepLimit::step(sqlite3_stmt* statement) {
  if (reached_) return SQLITE_INTERRUPT;
  steps_ = 0;
  const int result = sqlite3_step(statement);
  rows_ = result == SQLITE_ROW ? rows_ + 1 : 0;
  reached_ = reached_ || (rows_ > 0 && rows_ % kManyRows == 0 && areTooManyRows());
  return reached_ ? SQLITE_INTERRUPT : result;
}

int StepLimit::run(const char* sql) {
  if (reached_) return SQLITE_INTERRUPT;
  steps_ = 0;
  return sqlite3_exec(database_, sql, nullptr, nullptr, nullptr);
}

int StepLimit::countSteps(void* self) {
  auto& limit = *static_cast<StepLimit*>(self);
  limit.steps_ += kGrain;
  limit.reached_ = limit.reached_ || limit.steps_ > limit.most_;
  return limit.reached_ ? 1 : 0;
}

// A row takes more than one byte.
bool StepLimit::areTooManyRows() const {
  std::int64_t bytes = 0;
  sqlite3_exec(database_, "SELECT page_count * page_size FROM pragma_page_count, pragma_page_size",
               takeNumber, &bytes, nullptr);
  return rows_ > bytes;
}

}  // namespace zamo
