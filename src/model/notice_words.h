// The words that a notice's type, action and fragment can be, and the two ways to compare a text with one.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "platform/text.h"

namespace zamo {

// A word of one of the lists. Those of one list aren't taken for those of another.
template <typename List>
struct NoticeWord {
  std::string_view text;
};
using NoticeType = NoticeWord<struct NoticeTypes>;
using NoticeAction = NoticeWord<struct NoticeActions>;
using NoticeFragment = NoticeWord<struct NoticeFragments>;

namespace types {
inline constexpr NoticeType GT1{"GT1"};
inline constexpr NoticeType GS1{"GS1"};
inline constexpr NoticeType GT2{"GT2"};
inline constexpr NoticeType GS2{"GS2"};
inline constexpr NoticeType GA1{"GA1"};
inline constexpr NoticeType TB2{"TB2"};
inline constexpr NoticeType TB3{"TB3"};
inline constexpr NoticeType TB5{"TB5"};
// The same notices under their older letter.
inline constexpr NoticeType DT1{"DT1"};
inline constexpr NoticeType DS1{"DS1"};
inline constexpr NoticeType DT2{"DT2"};
inline constexpr NoticeType DS2{"DS2"};
inline constexpr NoticeType DA1{"DA1"};
}  // namespace types

namespace actions {
inline constexpr NoticeAction ADD{"ADD"};
inline constexpr NoticeAction MODIFY{"MODIFY"};
inline constexpr NoticeAction SUPPRESS{"SUPPRESS"};
inline constexpr NoticeAction WITHDRAW{"WITHDRAW"};
inline constexpr NoticeAction CONFORM{"CONFORM"};
inline constexpr NoticeAction PARTB{"PARTB"};
}  // namespace actions

// Of t_fragment, and of t_plan.
namespace fragments {
inline constexpr NoticeFragment KV19D{"KV19D"};
inline constexpr NoticeFragment NTFD_PZ{"NTFD_PZ"};
}  // namespace fragments

template <typename List>
constexpr bool isExactly(std::string_view text, NoticeWord<List> word) {
  return text == word.text;
}

template <typename List>
bool isInAnyCase(std::string_view text, NoticeWord<List> word) {
  return equalsIgnoringCase(text, word.text);
}

// The same with several words, of which one is enough.
template <typename List>
constexpr bool isExactly(std::string_view text, std::initializer_list<NoticeWord<List>> words) {
  return std::any_of(words.begin(), words.end(),
                     [text](NoticeWord<List> word) { return isExactly(text, word); });
}

template <typename List>
bool isInAnyCase(std::string_view text, std::initializer_list<NoticeWord<List>> words) {
  return std::any_of(words.begin(), words.end(),
                     [text](NoticeWord<List> word) { return isInAnyCase(text, word); });
}

}  // namespace zamo
