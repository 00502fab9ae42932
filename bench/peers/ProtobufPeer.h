// Protobuf: the same fields as a binary message. The message object is kept from one operation to
// the next, as Protobuf advises: cleared, it keeps its memory.
#ifndef BENCH_PEERS_PROTOBUFPEER_H
#define BENCH_PEERS_PROTOBUFPEER_H

#include <string>
#include <utility>

#include "Kinds.h"
#include "peers/ProtobufRecords.h"

namespace bench {

namespace protobuf {
inline pb::MissedLog messageOf(Missed) {
  return {};
}
inline pb::DialledLog messageOf(Dialled) {
  return {};
}
inline pb::ReceivedLog messageOf(Received) {
  return {};
}
inline pb::ForwardedLog messageOf(Forwarded) {
  return {};
}

template <class Kind>
using Message = decltype(messageOf(Kind()));
} // namespace protobuf

template <class Kind>
class ProtobufEncoder {
public:
  explicit ProtobufEncoder(typename Kind::Log const& log) : log_(log) {}

  std::string const& encode() {
    message_.Clear();
    protobuf::writeLog(log_, message_);
    message_.SerializeToString(&out_);
    return out_;
  }

private:
  typename Kind::Log const& log_;
  protobuf::Message<Kind> message_;
  std::string out_;
};

template <class Kind>
class ProtobufDecoder {
public:
  explicit ProtobufDecoder(std::string binary) : binary_(std::move(binary)) {}
  explicit ProtobufDecoder(typename Kind::Log const& log)
      : binary_(ProtobufEncoder<Kind>(log).encode()) {}

  typename Kind::Log decode() {
    typename Kind::Log log;
    message_.ParseFromString(binary_);
    protobuf::readLog(message_, log);
    return log;
  }

private:
  std::string binary_;
  protobuf::Message<Kind> message_;
};

} // namespace bench

#endif
