#include "database/dialect.h"

#include <algorithm>
#include <vector>

#include "platform/dates.h"
#include "platform/numbers.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace zamo {
namespace {

// The engine's own number for a statement that it can't take.
constexpr int kSyntaxError = 1;

[[noreturn]] void throwSyntaxError(const std::string& text) {
  throw RunTimeError{kSyntaxError, text};
}

enum class TokenKind { word, text, date, other };

struct Token {
  TokenKind kind;
  std::string_view text;  // with its quotes or marks
};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isWordCharacter(char c) {
  return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '.';
}

bool isSignOfExponent(std::string_view sql, std::size_t numberAt, std::size_t at) {
  return (isDigit(sql[numberAt]) || sql[numberAt] == '.') && (sql[at] == '+' || sql[at] == '-') &&
         (sql[at - 1] == 'e' || sql[at - 1] == 'E');
}

// Behind the closing mark; one that is doubled belongs to the text. Without one the engine gets the rest as
// it is, to refuse it in its own words.
std::size_t endOfQuoted(std::string_view sql, std::size_t at, char mark) {
  std::size_t end = sql.find(mark, at + 1);
  while (end != std::string_view::npos && sql.substr(end + 1, 1) == std::string_view(&mark, 1)) {
    end = sql.find(mark, end + 2);
  }
  return end == std::string_view::npos ? end : end + 1;
}

// Blanks and line ends stand between tokens and are not kept.
std::vector<Token> tokensOf(std::string_view sql) {
  std::vector<Token> tokens;
  std::size_t at = 0;
  while (at < sql.size()) {
    const char c = sql[at];
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
      ++at;
      continue;
    }
    std::size_t end = at + 1;
    TokenKind kind = TokenKind::other;
    if (c == '\'') {
      end = endOfQuoted(sql, at, '\'');
      kind = TokenKind::text;
    } else if (c == '#') {
      end = endOfQuoted(sql, at, '#');
      kind = end == std::string_view::npos ? TokenKind::other : TokenKind::date;
    } else if (isWordCharacter(c)) {
      while (end < sql.size() && (isWordCharacter(sql[end]) || isSignOfExponent(sql, at, end))) ++end;
      kind = TokenKind::word;
    } else if (sql.substr(at, 2) == "--" || sql.substr(at, 2) == "/*") {
      throw RunTimeError{kInvalidArgument, "A statement has no comments"};
    } else if (sql.substr(at, 2) == "<=" || sql.substr(at, 2) == ">=" || sql.substr(at, 2) == "<>") {
      ++end;
    }
    tokens.push_back({kind, sql.substr(at, end - at)});
    at = std::min(end, sql.size());
  }
  return tokens;
}

// 'YYYY-MM-DD' from month, day and year between "#".
std::string engineDate(std::string_view date) {
  const std::string_view inner = date.substr(1, date.size() - 2);
  const std::size_t first = inner.find('/');
  const std::size_t second = first == std::string_view::npos ? first : inner.find('/', first + 1);
  if (second == std::string_view::npos) throwSyntaxError("Syntax error in date " + std::string(date));
  const std::string ordered = std::string(inner.substr(second + 1))
                                  .append("/")
                                  .append(inner.substr(0, first))
                                  .append("/")
                                  .append(inner.substr(first + 1, second - first - 1));
  const std::optional<Date> day = parseDate(ordered);
  if (!day) throwSyntaxError("Syntax error in date " + std::string(date));
  return "'" + shortDateText(*day) + "'";
}

bool isWord(const Token& token, std::string_view word) {
  return token.kind == TokenKind::word && equalsIgnoringCase(token.text, word);
}

// A RIGHT JOIN of two plain tables, turned round.
void turnRightJoins(std::vector<Token>& tokens) {
  for (std::size_t i = 1; i + 2 < tokens.size(); ++i) {
    if (!isWord(tokens[i], "RIGHT") || !isWord(tokens[i + 1], "JOIN")) continue;
    if (tokens[i - 1].kind != TokenKind::word || tokens[i + 2].kind != TokenKind::word) continue;
    tokens[i].text = "LEFT";
    std::swap(tokens[i - 1], tokens[i + 2]);
  }
}

bool isJoiner(const std::vector<Token>& tokens, std::size_t at) {
  return at < tokens.size() && tokens[at].kind == TokenKind::other && tokens[at].text == "&";
}

std::string engineToken(const std::vector<Token>& tokens, std::size_t at) {
  if (isJoiner(tokens, at)) return "||";
  const Token& token = tokens[at];
  std::string text = token.kind == TokenKind::date ? engineDate(token.text) : std::string(token.text);
  const bool isOperand =
      token.kind != TokenKind::other && ((at > 0 && isJoiner(tokens, at - 1)) || isJoiner(tokens, at + 1));
  return isOperand ? "shown_text(" + text + ")" : text;
}

}  // namespace

std::string engineSql(std::string_view sql) {
  std::vector<Token> tokens = tokensOf(sql);
  turnRightJoins(tokens);
  std::string result;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (!result.empty()) result += ' ';
    result += engineToken(tokens, i);
  }
  return result;
}

std::string_view joinedText(std::string_view value) {
  if (value.find('\'') != std::string_view::npos) {
    throwSyntaxError("Syntax error: an apostrophe in " + std::string(value));
  }
  return value;
}

std::string_view joinedNumber(std::string_view value) {
  if (!isNumericText(value))
    throwSyntaxError("Syntax error: no number in the statement: " + std::string(value));
  return value;
}

}  // namespace zamo
