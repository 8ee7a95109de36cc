#include "database/untrusted_file.h"

#include <sqlite3.h>

#include <algorithm>
#include <iterator>
#include <string_view>

#include "platform/text.h"

namespace zamo {
namespace {

struct Setting {
  int which;
  int value;
};

// clang-format off
constexpr Setting kSwitches[] = {
    {SQLITE_DBCONFIG_DEFENSIVE,             1},
    {SQLITE_DBCONFIG_TRUSTED_SCHEMA,        0},
    {SQLITE_DBCONFIG_ENABLE_TRIGGER,        0},
    {SQLITE_DBCONFIG_ENABLE_VIEW,           0},
    {SQLITE_DBCONFIG_WRITABLE_SCHEMA,       0},
    {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
};

// Far above what a working database and its statements need.
constexpr Setting kLimits[] = {
    {SQLITE_LIMIT_LENGTH,              64 * 1024 * 1024},
    {SQLITE_LIMIT_SQL_LENGTH,          1'000'000},
    {SQLITE_LIMIT_COLUMN,              200},
    {SQLITE_LIMIT_EXPR_DEPTH,          200},
    {SQLITE_LIMIT_COMPOUND_SELECT,     5},
    {SQLITE_LIMIT_VDBE_OP,             100'000},
    {SQLITE_LIMIT_FUNCTION_ARG,        8},
    {SQLITE_LIMIT_ATTACHED,            0},
    {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 1000},
    {SQLITE_LIMIT_VARIABLE_NUMBER,     250},
    {SQLITE_LIMIT_TRIGGER_DEPTH,       20},
    {SQLITE_LIMIT_WORKER_THREADS,      0},
};

constexpr std::string_view kTables[] = {
    "fmtv_vorna",     "lmz_allotment", "lmz_sub_area", "lmz_contour", "lmz_contour_pt", "fmtv_art5_target",
    "fmtv_op_prd",    "fmtv_rmks",     "fmtv_coord",   "fmtv_ant_hgt", "fmtv_ant_diag", "proc_ntc_hist",
    "fmtv_keys",      "op_agcy",       "addr_code",
};

// What may stand before a parenthesis within an expression of a table: the functions of the template and words that are no
// function.
constexpr std::string_view kBeforeParenthesis[] = {
    "abs", "date", "length", "substr", "and", "between", "case", "check", "else", "in", "is", "not", "or", "then", "when", "where",
};

// Operators that are functions.
constexpr std::string_view kFunctionWords[] = {"like", "glob", "regexp", "match"};
// clang-format on

template <std::size_t Count>
bool isOneOf(std::string_view word, const std::string_view (&words)[Count]) {
  return std::any_of(std::begin(words), std::end(words),
                     [word](std::string_view one) { return equalsIgnoringCase(word, one); });
}

bool isWordLetter(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x80 || c == '_' || c == '$' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') ||
         (c >= 'a' && c <= 'z');
}

// Takes the tokens of a statement one by one, as the engine divides it. A name keeps its quotes.
class Tokens {
 public:
  explicit Tokens(std::string_view sql) : rest_(sql) {}

  // Empty at the end.
  std::string_view next() {
    while (skipBlanks() || skipComment("--", "\n") || skipComment("/*", "*/")) continue;
    if (rest_.empty()) return {};
    if (isWordLetter(rest_[0])) return takeWord();
    const std::size_t quotes = std::string_view("'\"`[").find(rest_[0]);
    return quotes == std::string_view::npos ? take(1) : takeQuoted("'\"`]"[quotes]);
  }

 private:
  bool skipBlanks() { return !take(std::min(rest_.find_first_not_of(" \t\r\n\f"), rest_.size())).empty(); }

  bool skipComment(std::string_view begin, std::string_view end) {
    if (!rest_.starts_with(begin)) return false;
    const std::size_t found = rest_.find(end, begin.size());
    take(found == std::string_view::npos ? rest_.size() : found + end.size());
    return true;
  }

  std::string_view take(std::size_t count) {
    const std::string_view token = rest_.substr(0, count);
    rest_.remove_prefix(token.size());
    return token;
  }

  std::string_view takeWord() {
    const auto* const end = std::find_if_not(rest_.begin(), rest_.end(), isWordLetter);
    return take(static_cast<std::size_t>(end - rest_.begin()));
  }

  std::string_view takeQuoted(char quote) {
    std::size_t end = rest_.find(quote, 1);
    // A doubled quote stands for one within.
    while (quote != ']' && end != std::string_view::npos && rest_.substr(end + 1, 1) == rest_.substr(end, 1))
      end = rest_.find(quote, end + 2);
    return take(end == std::string_view::npos ? rest_.size() : end + 1);
  }

  std::string_view rest_;
};

bool isName(std::string_view token) {
  return !token.empty() && (isWordLetter(token[0]) || token[0] == '"' || token[0] == '`' || token[0] == '[');
}

// Whether the statement that made a table or an index computes nothing but what the template has it compute.
bool isPlain(std::string_view sql, bool isIndex) {
  Tokens tokens(sql);
  tokens.next();
  std::string_view before = tokens.next();
  if (equalsIgnoringCase(before, "virtual")) return false;
  // Expressions of a table stand in parentheses within the list of its columns.
  const int outermost = isIndex ? 0 : 2;
  bool namesTable = false;
  int depth = 0;
  for (std::string_view token; !(token = tokens.next()).empty(); before = token) {
    if (token == "(" && depth >= outermost && isName(before) && !namesTable &&
        !isOneOf(before, kBeforeParenthesis))
      return false;
    if (equalsIgnoringCase(token, "as") || (depth >= outermost && isOneOf(token, kFunctionWords)))
      return false;
    depth += token == "(" ? 1 : token == ")" ? -1 : 0;
    namesTable = isIndex && depth == 0 && equalsIgnoringCase(before, "on");
  }
  return true;
}

}  // namespace

void restrictEngine(sqlite3* database) {
  for (const Setting& one : kSwitches) sqlite3_db_config(database, one.which, one.value, nullptr);
  for (const Setting& one : kLimits) sqlite3_limit(database, one.which, one.value);
}

bool isPlainEntry(std::string_view type, std::string_view table, std::string_view sql) {
  if (!isOneOf(table, kTables) || equalsIgnoringCase(type, "trigger")) return true;
  // An index without a statement is that of a key.
  if (equalsIgnoringCase(type, "index")) return isPlain(sql, true);
  return equalsIgnoringCase(type, "table") && isPlain(sql, false);
}

}  // namespace zamo
