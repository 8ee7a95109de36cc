// What the tool tells an operator, with what brings it about: each message lists itself for the reference of
// messages.
#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zamo {

struct ListedMessage {
  std::string_view file;  // of the source, that tells the subject
  std::string_view trigger;
  std::string_view words;
};
// Where an object is made. The standard's own is not in every compiler that builds this.
struct SourcePlace {
  const char* file = "";
  unsigned line = 0;
};

using MessageSink = std::function<void(const ListedMessage&)>;

// One entry of the list of all messages. Entries are objects of static life.
class MessageListing {
 public:
  MessageListing(const MessageListing&) = delete;
  MessageListing& operator=(const MessageListing&) = delete;

  // Every message of the program, by source file and in its order there.
  static void forEach(const MessageSink& sink);

 protected:
  MessageListing(std::string_view trigger, SourcePlace where) noexcept;
  ~MessageListing() = default;

  using Lister = void (*)(const MessageListing& listing, const MessageSink& sink);
  void setLister(Lister lister) { lister_ = lister; }
  void give(std::string_view words, const MessageSink& sink) const;

 private:
  std::string_view trigger_;
  SourcePlace where_;
  Lister lister_ = nullptr;
  const MessageListing* next_;
};

// One message. "%1", "%2" and so on stand for the values that are known when it is told.
class Message : public MessageListing {
 public:
  Message(std::string_view trigger, std::string_view words,
          SourcePlace where = {__builtin_FILE(), __builtin_LINE()}) noexcept
      : MessageListing(trigger, where), words_(words) {
    setLister([](const MessageListing& listing, const MessageSink& sink) {
      const auto& message = static_cast<const Message&>(listing);
      message.give(message.words_, sink);
    });
  }

  std::string_view words() const { return words_; }
  std::string filled(std::initializer_list<std::string_view> values) const;

 private:
  std::string_view words_;
};

// The messages of a table's rows: the member `message` of each, or all that its member function `allWords`
// gives.
class TableMessages : public MessageListing {
 public:
  template <typename Row, std::size_t Count>
  TableMessages(std::string_view trigger, const Row (&rows)[Count],
                SourcePlace where = {__builtin_FILE(), __builtin_LINE()}) noexcept
      : MessageListing(trigger, where), rows_(rows) {
    setLister([](const MessageListing& listing, const MessageSink& sink) {
      const auto& table = static_cast<const TableMessages&>(listing);
      const auto* first = static_cast<const Row*>(table.rows_);
      for (const Row* row = first; row != first + Count; ++row) {
        if constexpr (requires { row->allWords(); }) {
          for (const std::string_view words : row->allWords()) table.give(words, sink);
        } else {
          table.give(row->message, sink);
        }
      }
    });
  }

 private:
  const void* rows_;
};

}  // namespace zamo
