// What messages are made of: the elements of each part, in the writer's order, and the methods.
#ifndef TOOLS_ELEMENTS_H
#define TOOLS_ELEMENTS_H

#include <string>
#include <string_view>
#include <vector>

#include "JournalServiceHelper.h"

enum class Log { NONE, MISSED, DIALLED, RECEIVED, FORWARDED };

enum class MessageKind {
  REQUEST,
  LIST_RESPONSE,
  LAST_NUMBER_RESPONSE,
  NOTIFICATION,
  COUNTER,
  STORE_REQUEST,
  STORE_ANSWER,
  OUTCOME,
  OTHER
};

/// What the value of an element is. A PART holds elements.
enum class Value {
  PART,
  TEXT,
  FLAG,
  NUMBER_TYPE,
  TIME_FORMAT,
  PRESENTATION,
  TARGET_LOG,
  NUMBER,
  ACTION,
  OUTCOME,
  REASON,
  ENABLED
};

/// How often writers write an element.
enum class Count { MAY, MUST, MANY };

struct Row {
  std::string_view name;
  Value value;
  Count count;
};

using Rows = std::vector<Row>;

/// @return the elements of the part of that name, in the order of writing; the empty name is the
/// message itself. Empty when anything may be in it, or when the log is unknown.
Rows rowsOf(std::string_view part, MessageKind kind, Log log);

/// @return the element of that name, whatever part it is in; nullptr for an unknown name
Row const* findElement(std::string_view name);

enum class Role { REQUEST, LIST, LAST_NUMBER, NOTIFICATION, COUNTER };

struct Method {
  JournalServiceHelper::MethodCode code;
  std::string const* tag;
  Role role;
  Log log;
  Count entryIds; ///< MAY: the request names no entry, MUST: one, MANY: any number
};

Method const* findMethod(JournalServiceHelper::MethodCode code);

/// @param name without brackets
Method const* findMethod(std::string_view name);

/// @return the method's name, without brackets
std::string_view nameOf(Method const& method);

char const* nameOf(Log log);

#endif
