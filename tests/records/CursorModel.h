// A plain model of the decoders' cursor, for the tests to compute expectations with.
//
// The rule: a cursor starts at the front of the text. The elements are read in a fixed order. Each
// is searched from the cursor: the first begin tag, and behind it the first close tag. Both found,
// it has a value, and when the begin tag stood exactly at the cursor, the cursor moves behind the
// close tag; in every other case the cursor stays. The model knows no escaping: texts given to it
// hold no ampersand.
#ifndef CURSORMODEL_H
#define CURSORMODEL_H

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "records/TestedKinds.h"

namespace cursor_model {

enum class Sort {
  TEXT,
  NUMBER_TYPE,
  TARGET_LOG,
  PRESENTATION,
  TIME_FORMAT,
  FLAG,
  PASSED_OVER,                 // moves the cursor, sets no field
  PRESENTATION_BETWEEN_BEGINS, // the begin tag serves as close tag too
};

struct Element {
  std::string name;
  Sort sort;
};
using Order = std::vector<Element>;
using Values = std::map<std::string, std::string>;

struct Reading {
  Values values;                     // by element, but for those passed over
  std::string::size_type cursor = 0; // where the walk ended
};

/// The members of a sort, the default first; empty for texts.
inline std::vector<std::string> membersOf(Sort sort) {
  switch (sort) {
  case Sort::NUMBER_TYPE:
    return {"NO_ICON", "PRIVATE", "MOBILE", "BUSINESS1", "BUSINESS2"};
  case Sort::TARGET_LOG:
    return {"OUT_BUSY",        "IN_ANSWERED",  "IN_NO_ANSWER", "IN_BUSY",
            "IN_GROUP_MISSED", "OUT_ANSWERED", "OUT_NO_ANSWER"};
  case Sort::PRESENTATION:
  case Sort::PRESENTATION_BETWEEN_BEGINS:
    return {"NOT_AVAILABLE", "ALLOWED", "NOT_ALLOWED"};
  case Sort::TIME_FORMAT:
    return {"FORM_24", "FORM_AM", "FORM_PM"};
  case Sort::FLAG:
    return {"False", "True"};
  case Sort::TEXT:
  case Sort::PASSED_OVER:
    break;
  }
  return {};
}

/// What a field holds for a text between the tags.
inline std::string valueOf(Sort sort, std::string const& text) {
  std::vector<std::string> const members = membersOf(sort);
  if (members.empty())
    return text;
  return std::find(members.begin(), members.end(), text) != members.end() ? text : members.front();
}

inline Reading read(std::string const& text, Order const& order) {
  Reading reading;
  for (Element const& element : order) {
    bool const betweenBegins = element.sort == Sort::PRESENTATION_BETWEEN_BEGINS;
    std::string const begin = "<" + element.name + ">";
    std::string const close = betweenBegins ? begin : "</" + element.name + ">";
    std::string found;
    auto const at = text.find(begin, reading.cursor);
    if (at != std::string::npos) {
      auto const end = text.find(close, at + begin.size());
      if (end != std::string::npos) {
        found = text.substr(at + begin.size(), end - at - begin.size());
        if (at == reading.cursor)
          reading.cursor = end + close.size();
      }
    }
    if (element.sort != Sort::PASSED_OVER)
      reading.values[element.name] = valueOf(element.sort, found);
  }
  return reading;
}

/// The record's fields after reading: the values read, and every other field as it was before.
inline record_fields::Fields merged(record_fields::Fields fields, Values const& values) {
  for (auto& [name, value] : fields) {
    auto const read = values.find(name);
    if (read != values.end())
      value = read->second;
  }
  return fields;
}

// The orders in which the decoders read, typed by hand.

inline Order callOrder(kinds::Missed) {
  return {{"Number", Sort::TEXT},
          {"NumberType", Sort::NUMBER_TYPE},
          {"ConnectedNumber", Sort::TEXT},
          {"ConnectedNumberType", Sort::NUMBER_TYPE},
          {"ConnectedSurname", Sort::TEXT},
          {"ConnectedFirstName", Sort::TEXT},
          {"TimeDate", Sort::TEXT},
          {"TargetLog", Sort::TARGET_LOG},
          {"NumberPresentation", Sort::PRESENTATION},
          {"NamePresentation", Sort::PRESENTATION},
          {"DeflectNumberPresentation", Sort::PRESENTATION},
          {"DeflectNumber", Sort::TEXT},
          {"DeflectNumberType", Sort::NUMBER_TYPE},
          {"DeflectNamePresentation", Sort::PRESENTATION},
          {"DeflectName", Sort::TEXT},
          {"TimeFormat", Sort::TIME_FORMAT}};
}

inline Order callOrder(kinds::Dialled) {
  return {{"Number", Sort::TEXT},
          {"NumberType", Sort::NUMBER_TYPE},
          {"ResolvedNumber", Sort::TEXT},
          {"ConnectedNumberPriority", Sort::FLAG},
          {"ConnectedNumber", Sort::TEXT},
          {"ConnectedNumberType", Sort::NUMBER_TYPE},
          {"ConnectedSurname", Sort::TEXT},
          {"ConnectedFirstName", Sort::TEXT},
          {"TimeDate", Sort::TEXT},
          {"Duration", Sort::TEXT},
          {"TargetLog", Sort::TARGET_LOG},
          {"NumberPresentation", Sort::PRESENTATION},
          {"NamePresentation", Sort::PRESENTATION_BETWEEN_BEGINS},
          {"TimeFormat", Sort::TIME_FORMAT}};
}

inline Order callOrder(kinds::Received) {
  return {{"Number", Sort::TEXT},
          {"NumberType", Sort::NUMBER_TYPE},
          {"ConnectedNumber", Sort::TEXT},
          {"ConnectedNumberType", Sort::NUMBER_TYPE},
          {"ConnectedSurname", Sort::PASSED_OVER},
          {"ConnectedFirstName", Sort::PASSED_OVER},
          {"TimeDate", Sort::TEXT},
          {"Duration", Sort::TEXT},
          {"TargetLog", Sort::TARGET_LOG},
          {"NumberPresentation", Sort::PRESENTATION},
          {"NamePresentation", Sort::PRESENTATION},
          {"DeflectNumberPresentation", Sort::PRESENTATION},
          {"DeflectNumber", Sort::TEXT},
          {"DeflectNumberType", Sort::NUMBER_TYPE},
          {"DeflectNamePresentation", Sort::PRESENTATION},
          {"DeflectName", Sort::TEXT},
          {"TimeFormat", Sort::TIME_FORMAT}};
}

inline Order callOrder(kinds::Forwarded) {
  return {{"Number", Sort::TEXT},
          {"NumberType", Sort::NUMBER_TYPE},
          {"ConnectedNumber", Sort::TEXT},
          {"ConnectedNumberType", Sort::NUMBER_TYPE},
          {"ConnectedSurname", Sort::PASSED_OVER},
          {"ConnectedFirstName", Sort::PASSED_OVER},
          {"TimeDate", Sort::TEXT},
          {"Duration", Sort::TEXT}};
}

inline Order entryOrder(kinds::Missed) {
  return {{"UniqueId", Sort::TEXT},  {"EntryId", Sort::TEXT}, {"Surname", Sort::TEXT},
          {"Firstname", Sort::TEXT}, {"Picture", Sort::TEXT}, {"Viewed", Sort::FLAG}};
}

inline Order entryOrder(kinds::Dialled) {
  return {{"UniqueId", Sort::TEXT},  {"EntryId", Sort::TEXT}, {"Surname", Sort::TEXT},
          {"Firstname", Sort::TEXT}, {"Picture", Sort::TEXT}, {"JSGroupBy", Sort::TEXT}};
}

inline Order entryOrder(kinds::Received) {
  return {{"UniqueId", Sort::TEXT},
          {"EntryId", Sort::TEXT},
          {"Surname", Sort::TEXT},
          {"Firstname", Sort::TEXT},
          {"Picture", Sort::TEXT}};
}

inline Order entryOrder(kinds::Forwarded) {
  return {{"UniqueId", Sort::TEXT},
          {"EntryId", Sort::TEXT},
          {"Surname", Sort::TEXT},
          {"Firstname", Sort::TEXT},
          {"Picture", Sort::TEXT}};
}

/// A value that differs from what a missing element gives.
inline std::string sampleValue(Element const& element) {
  std::vector<std::string> const members = membersOf(element.sort);
  return members.empty() ? "the " + element.name : members.back();
}

inline std::string tagged(std::string const& name, std::string const& value) {
  return "<" + name + ">" + value + "</" + name + ">";
}

/// The element with its sample value, written so that it is found.
inline std::string sample(Element const& element) {
  if (element.sort == Sort::PRESENTATION_BETWEEN_BEGINS)
    return "<" + element.name + ">" + sampleValue(element) + "<" + element.name + ">";
  return tagged(element.name, sampleValue(element));
}

} // namespace cursor_model

#endif
