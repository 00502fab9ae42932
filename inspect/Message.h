// The inspection engine: what a message is and what readers make of it.
//
//   identify(text)          what kind of message it is
//   decode(text)            its records and values, as the library's own readers give them
//   encode(decoded)         the message again, as the library's own writers write it
//   make(operation, ...)    a message by the name of the operation or method that builds it
//
// The engine prints nothing, reads no files, and throws nothing of its own. See also Explain.h
// (element by element, findings), Diff.h (two messages, notifications applied to a log), Json.h
// and Stream.h (messages from captures).
#ifndef INSPECT_MESSAGE_H
#define INSPECT_MESSAGE_H

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "JournalServiceHelper.h"
#include "inspect/Records.h"

namespace inspect {

/// The kinds of messages, in the order of the alternatives of Message.
enum class Kind : std::uint8_t {
  unknown,
  request,
  listResponse,
  entryNotification,
  counterNotification,
  storeRequest,
  outcome,
  setting,
  lastDialled,
  entry
};
inline constexpr std::size_t kinds = 10;

/// The name of a kind, as in JSON.
std::string_view nameOf(Kind kind);
std::optional<Kind> kindOf(std::string_view name);

// ---- Decoded messages, one type for each kind

/// No message of the journal service.
struct Unknown {
  std::string text;
};
struct Request {
  std::string method; ///< without brackets
  std::vector<std::string> entryIds;
};
struct ListResponse {
  Entries entries;
  std::uint32_t handle = 0;
};
struct EntryNotification {
  Entry entry;
  std::string uniqueIdToDelete;
  std::optional<std::uint32_t> action; ///< absent where the message has none
  std::uint32_t handle = 0;
};
struct CounterNotification {
  std::string method;
  std::uint32_t value = 0;
};
struct StoreRequest {
  std::string schema;
  std::string reason;
};
/// Whether a request succeeded; alone, or appended to the request that it answers.
struct Outcome {
  std::string method; ///< empty when the message has none
  std::vector<std::string> entryIds;
  bool ok = true;
};
/// The store's answer about the call log.
struct Setting {
  bool enabled = true;
};
/// The answer about the last dialled number.
struct LastDialled {
  DialledCallItem entry;
};
/// The body of an entry without a message around it.
struct BareEntry {
  Entry entry;
};

using Message = std::variant<Unknown, Request, ListResponse, EntryNotification, CounterNotification,
                             StoreRequest, Outcome, Setting, LastDialled, BareEntry>;

inline Kind kindOf(Message const& message) {
  return static_cast<Kind>(message.index());
}
/// The entries that a message holds, as pointers to its records; none in most kinds.
std::vector<RecordView> entriesOf(Message const& message);
/// The log to which a message's entries belong.
std::optional<Log> logOf(Message const& message);
/// The handle of a list response or an entry notification.
std::optional<std::uint32_t> handleOf(Message const& message);

// ---- Identifying

struct Identity {
  Kind kind = Kind::unknown;
  JournalServiceHelper::MethodCode code = JournalServiceHelper::UNKNOWN_METHOD;
  std::string_view method;    ///< without brackets; empty when none is recognised
  std::optional<Log> log;     ///< absent also where a bare entry does not tell
  bool declared = false;      ///< whether it starts with the declaration
  bool byteOrderMark = false; ///< whether a byte-order mark precedes it
};
Identity identify(std::string const& text);

/// Whether writers put the declaration in front of messages of this kind.
bool isDeclared(Kind kind);

// ---- Decoding and encoding

/// A value as its writer was given it, where readers store another one: a forwarded call's
/// connected surname, which they do not keep, or an entity in a text that is written raw.
struct Written {
  static constexpr std::size_t none = static_cast<std::size_t>(-1);

  std::size_t entry;  ///< index of the entry; none for the message's own unique id to delete
  std::size_t call;   ///< index of the call; none for the entry itself
  Field const* field; ///< nullptr for the unique id to delete
  std::string value;
};

struct Decoded {
  Message message;
  std::vector<Written> written; ///< by entry, then by call, the entry's own first
  bool declared = false;
  std::optional<bool> outcome; ///< Success or Failure, appended to a list or a notification
};

/// What readers store, without the written values: nearly as fast as the library itself.
/// @param log to which a bare entry belongs that does not tell it. Without either, it is Unknown.
Decoded read(std::string const& text, std::optional<Log> log = {});

/// The same with the written values.
Decoded decode(std::string const& text, std::optional<Log> log = {});

/// The message as the library writes it, with the values that its writer was given.
std::string encode(Decoded const& decoded);

// ---- Making

/// How many ids, or what else, an operation takes.
enum class Takes : std::uint8_t { nothing, id, ids, count, entry, text };

/// An operation that builds messages.
struct Operation {
  std::string_view name;   ///< reqDeleteMissedCall
  std::string_view method; ///< deleteMissedCall; empty when its message has no method
  Kind kind;
  JournalServiceHelper::MethodCode code;
  std::optional<Log> log;
  Takes takes;
};
std::vector<Operation> const& operations();

/// The message of an operation, found by its name or its method's.
/// @param arguments ids, or a number, or the JSON of an entry (for a notification then the action,
///                  the handle and the unique id to delete)
/// @param error     says what is wrong when there is no result
std::optional<std::string> make(std::string_view name, std::vector<std::string> const& arguments,
                                std::string& error);

} // namespace inspect

#endif
