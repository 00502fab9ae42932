// Protobuf: the same fields as a binary message. Its message objects are used in four ways:
// created for each operation or reused, each on the heap and on an arena.
#ifndef BENCH_PEERS_PROTOBUFPEER_H
#define BENCH_PEERS_PROTOBUFPEER_H

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include <google/protobuf/arena.h>

#include "Kinds.h"
#include "LogConversion.h"

namespace bench {

namespace protobuf {

/// Copies each text, so that the message keeps its memory.
struct Copied {
  static void take(std::string& field, std::string const& text) {
    if (!text.empty())
      field = text;
  }
};

/// Moves each text out of the message.
struct Moved {
  static void take(std::string& field, std::string const& text) {
    // The cast is safe: the message itself is not const, and it owns every text that is not empty.
    // mutable_...() would create each absent text.
    if (!text.empty())
      field = std::move(const_cast<std::string&>(text));
  }
};

template <class Texts, class Message, class Log>
void readLog(Texts texts, Message const& message, Log& log) {
  for (auto const& entry : message.entries())
    read(texts, entry, log.emplace_back());
}

template <class Log, class Message>
void writeLog(Log const& log, Message& message) {
  for (auto const& item : log)
    write(item, *message.add_entries());
  message.set_handle(7);
}

template <class Kind>
using Message = decltype(messageOf(Kind()));

/// A new message, like any other object. Moving the texts out of it was slower than copying them.
template <class Kind>
class Fresh {
public:
  using Texts = Copied;

  template <class Use>
  auto with(Use use) {
    Message<Kind> message;
    return use(message);
  }
};

/// A new message on an arena whose first block is kept and is large enough for logs of 1,000
/// entries. Moving the texts out of it was faster than copying them.
template <class Kind>
class OnArena {
public:
  using Texts = Moved;

  template <class Use>
  auto with(Use use) {
    google::protobuf::ArenaOptions options;
    options.initial_block = block_.data();
    options.initial_block_size = block_.size();
    google::protobuf::Arena arena(options);
    return use(*google::protobuf::Arena::CreateMessage<Message<Kind>>(&arena));
  }

private:
  std::vector<char> block_ = std::vector<char>(4 << 20);
};

/// One message for all operations. After Clear() it keeps the memory of the last log for the next.
template <class Kind>
class Kept {
public:
  using Texts = Copied;

  template <class Use>
  auto with(Use use) {
    message_.Clear();
    return use(message_);
  }

private:
  Message<Kind> message_;
};

/// The same on an arena, which lives as long.
template <class Kind>
class KeptOnArena {
public:
  using Texts = Copied;

  template <class Use>
  auto with(Use use) {
    message_->Clear();
    return use(*message_);
  }

private:
  google::protobuf::Arena arena_;
  Message<Kind>* message_ = google::protobuf::Arena::CreateMessage<Message<Kind>>(&arena_);
};

} // namespace protobuf

template <class Kind, template <class> class Use = protobuf::Fresh>
class ProtobufEncoder {
public:
  explicit ProtobufEncoder(typename Kind::Log const& log) : log_(log) {}

  std::string const& encode() {
    use_.with([this](auto& message) {
      protobuf::writeLog(log_, message);
      return message.SerializeToString(&out_);
    });
    return out_;
  }

private:
  typename Kind::Log const& log_;
  Use<Kind> use_;
  std::string out_;
};

template <class Kind, template <class> class Use = protobuf::Fresh>
class ProtobufDecoder {
public:
  explicit ProtobufDecoder(std::string binary) : binary_(std::move(binary)) {}
  explicit ProtobufDecoder(typename Kind::Log const& log)
      : binary_(ProtobufEncoder<Kind>(log).encode()) {}

  typename Kind::Log decode() {
    return use_.with([this](auto& message) {
      typename Kind::Log log;
      message.ParseFromString(binary_);
      protobuf::readLog(typename Use<Kind>::Texts(), message, log);
      return log;
    });
  }

private:
  std::string binary_;
  Use<Kind> use_;
};

} // namespace bench

#endif
