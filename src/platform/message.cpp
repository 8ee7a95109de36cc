#include "platform/message.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace zamo {
namespace {

// Filled while the program's static objects are made, so it can't be one that is made itself.
constinit const MessageListing* lastListing = nullptr;

std::string_view fileName(std::string_view path) {
  return path.substr(path.rfind('/') + 1);
}

}  // namespace

MessageListing::MessageListing(std::string_view trigger, SourcePlace where) noexcept
    : trigger_(trigger), where_(where), next_(lastListing) {
  lastListing = this;
}

void MessageListing::forEach(const MessageSink& sink) {
  std::vector<const MessageListing*> listings;
  for (const MessageListing* one = lastListing; one != nullptr; one = one->next_) listings.push_back(one);
  std::sort(listings.begin(), listings.end(), [](const MessageListing* a, const MessageListing* b) {
    return std::tuple(fileName(a->where_.file), a->where_.line) <
           std::tuple(fileName(b->where_.file), b->where_.line);
  });
  for (const MessageListing* one : listings) one->lister_(*one, sink);
}

void MessageListing::give(std::string_view words, const MessageSink& sink) const {
  if (!words.empty()) sink({fileName(where_.file), trigger_, words});
}

std::string Message::filled(std::initializer_list<std::string_view> values) const {
  std::string text;
  for (std::size_t at = 0; at < words_.size(); ++at) {
    const bool takesValue = words_[at] == '%' && at + 1 < words_.size();
    if (takesValue) {
      text += *(values.begin() + (words_[++at] - '1'));
    } else {
      text += words_[at];
    }
  }
  return text;
}

}  // namespace zamo
