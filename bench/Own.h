// The library, the plain oracle and the bounds, with the interface of the peers.
#ifndef BENCH_OWN_H
#define BENCH_OWN_H

#include <string>

#include "Samples.h"

namespace bench {

template <class Kind>
struct LibraryDecoder {
  typename Kind::Log decode() {
    typename Kind::Log log;
    Kind::decode(message, log);
    return log;
  }
  std::string const& message;
};

/// With the handle, which the library searches for from the start of the message.
template <class Kind>
struct LibraryHandleDecoder {
  typename Kind::Log decode() {
    typename Kind::Log log;
    unsigned int handle = 0;
    Kind::decodeHandle(message, log, handle);
    return log;
  }
  std::string const& message;
};

template <class Kind>
struct OracleDecoder {
  typename Kind::Log decode() {
    typename Kind::Log log;
    Kind::oracleDecode(message, log);
    return log;
  }
  std::string const& message;
};

/// The lower bound of decoding: any decoder has to create the records.
template <class Kind>
struct DeepCopy {
  typename Kind::Log decode() { return decoded; }
  typename Kind::Log const& decoded;
};

template <class Kind>
struct LibraryEncoder {
  std::string encode() { return Kind::encode(log, 7); }
  typename Kind::Log const& log;
};

/// The lower bound of encoding: any encoder has to store the bytes. The string keeps its memory, so
/// this is a memcpy.
template <class Kind>
class CopyOfMessage {
public:
  explicit CopyOfMessage(std::string const& message) : message_(message) {
    out_.reserve(message.size());
  }
  std::string const& encode() {
    out_.clear();
    out_.append(message_);
    return out_;
  }

private:
  std::string const& message_;
  std::string out_;
};

} // namespace bench

#endif
