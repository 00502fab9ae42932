// Messages from a stream of bytes: pushed in as they come, taken out one by one.
//
//   Stream stream;
//   while (read(bytes)) {
//     stream.push(bytes);
//     while (stream.next(found))
//       ...
//   }
//   stream.finish();
//   while (stream.next(found))
//     ...
//
// Messages may follow one another with or without line ends or NULs between them, and may be
// pretty-printed. Where the text does not begin with a message, it is scanned for messages between
// other text. Hexadecimal dumps, base64 and entity-escaped text are unpacked.
#ifndef INSPECT_STREAM_H
#define INSPECT_STREAM_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "inspect/Unpack.h"

namespace inspect {

/// A message and where it was found.
struct Found {
  std::string text;
  std::uint64_t offset = 0; ///< in the unpacked text
  std::uint64_t line = 1;   ///< likewise
};

class Stream {
public:
  struct Options {
    std::optional<bool> scan; ///< absent: when the text does not begin with a message
    std::size_t limit = std::size_t{64} << 20; ///< most bytes of one message
  };

  Stream() : Stream(Options()) {}
  explicit Stream(Options options);

  void push(std::string_view bytes);
  /// No more bytes come.
  void finish();

  /// The next message; false when there is none yet, at the end, or behind one that is too large.
  bool next(Found& found);

  /// Whether a message exceeded the limit. The stream ends there.
  bool isTooLarge() const { return tooLarge_; }
  std::optional<Capture> capture() const { return unpacker_.capture(); }

private:
  enum class Step : std::uint8_t { goOn, wait, found };

  /// What was seen of the message at hand.
  struct Seen {
    bool any = false;
    bool declared = false;
    bool method = false;
    bool awaitsMore = false; ///< elements behind a method that takes arguments
    bool schema = false;
    bool uniqueId = false;
    bool body = false;  ///< any other element but ids
    bool last = false;  ///< the element that ends messages of its kind
    bool lines = false; ///< line ends between its elements
    bool inMethod = false;
    bool inEntry = false;
    bool inCalls = false;
    bool inValue = false; ///< behind a begin tag of a value
  };

  bool decideScan();
  bool findStart();
  void begin(std::size_t at);
  Step step();
  Step endOfText();
  bool endsBefore(std::string_view between, bool separated) const;
  bool startsNew(std::size_t at, bool separated) const;
  bool isForeign(std::size_t at) const;
  bool isComplete() const;
  bool isWhole(std::size_t at) const;
  bool isCutMark(std::size_t at) const;
  void take(std::size_t at);
  void skipEntry();
  Step foundUpTo(std::size_t end);
  void emit(Found& found);
  void discard(std::size_t end);

  Options options_;
  Unpacker unpacker_;
  std::string text_;
  std::size_t head_ = 0;     ///< what is before it is taken
  std::size_t from_ = 0;     ///< where the next search starts
  std::uint64_t offset_ = 0; ///< of the head
  std::uint64_t line_ = 1;   ///< likewise
  bool finished_ = false;
  bool tooLarge_ = false;
  std::optional<bool> scan_;

  bool inMessage_ = false;
  Seen seen_;
  std::size_t start_ = 0;    ///< of the message
  std::size_t lastEnd_ = 0;  ///< behind its last tag
  std::size_t walkedTo_ = 0; ///< no entry can be skipped before it
  std::size_t end_ = 0;      ///< of the message that was found
};

} // namespace inspect

#endif
