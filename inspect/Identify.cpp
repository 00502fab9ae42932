// What kind of message a text is, from its method and its elements.
#include "inspect/Format.h"
#include "inspect/Tags.h"
#include "inspect/Text.h"
#include "vocabulary/Tags.h"

namespace inspect {
namespace {

using Api = JournalServiceHelper;
namespace word = journal::word;
using journal::element;

constexpr std::string_view kindNames[kinds] = {
    "unknown",      "request", "listResponse", "entryNotification", "counterNotification",
    "storeRequest", "outcome", "setting",      "lastDialled",       "entry"};

bool has(std::string_view text, std::string_view tag) {
  return text.find(tag) != std::string_view::npos;
}

/// A request and its answer carry the same method.
Kind kindWith(Operation const& method, bool declared, std::string_view text) {
  if (method.kind != Kind::request)
    return method.kind;
  bool const list = method.takes == Takes::nothing && method.log;
  if (method.code == Api::GETLASTDIALLEDNUMBER) {
    if (has(text, element<word::LOGLIST>.begin()))
      return Kind::lastDialled;
  } else if (list) {
    if (has(text, element<word::ENTRY>.begin()))
      return Kind::listResponse;
    if (!declared && has(text, element<word::HANDLE>.begin()))
      return Kind::listResponse;
  }
  return has(text, element<word::VALUE>.begin()) ? Kind::outcome : Kind::request;
}

/// Which logs a bare entry can belong to, a bit for each.
class Candidates {
public:
  explicit Candidates(std::string_view text) {
    for (Tag tag = nextTag(text, 0); tag; tag = nextTag(text, tag.end))
      if (!tag.close && findElement(tag.name) != nullptr)
        meet(tag.name);
  }

  bool anyElement() const { return !names_.empty(); }

  std::optional<Log> only() const {
    std::optional<Log> found;
    for (Log const log : allLogs)
      if (isComplete(log)) {
        if (found)
          return {};
        found = log;
      }
    return found;
  }

private:
  bool met(std::string_view name) const {
    for (auto const one : names_)
      if (one == name)
        return true;
    return false;
  }
  void meet(std::string_view name) {
    if (!met(name))
      names_.push_back(name);
  }
  /// Whether all names are of this log, and all that its writers always write are there.
  bool isComplete(Log log) const {
    for (auto const name : names_)
      if (!fits(log, name))
        return false;
    for (Row const& row : entryRowsOf(log))
      if (row.content != Content::part && row.count == Count::must && !met(row.name))
        return false;
    for (Row const& row : callRowsOf(log))
      if (met(word::ITEM) && row.count == Count::must && !met(row.name))
        return false;
    return true;
  }

  std::vector<std::string_view> names_;
};

void identifyWithoutMethod(Identity& identity, std::string_view text) {
  if (has(text, element<word::CALL_LOG_ENABLED>.begin()))
    identity.kind = Kind::setting;
  else if (has(text, word::SCHEMA_NAMED_BEGIN))
    identity.kind = Kind::storeRequest;
  else if (has(text, element<word::METHOD>.begin()))
    identity.kind = Kind::unknown;
  else if (has(text, element<word::VALUE>.begin()))
    identity.kind = Kind::outcome;
  else if (Candidates const candidates(text); candidates.anyElement()) {
    identity.kind = Kind::entry;
    identity.log = candidates.only();
  }
}

} // namespace

std::string_view nameOf(Kind kind) {
  return kindNames[static_cast<std::size_t>(kind)];
}

std::optional<Kind> kindOf(std::string_view name) {
  for (std::size_t kind = 0; kind < kinds; ++kind)
    if (kindNames[kind] == name)
      return static_cast<Kind>(kind);
  return {};
}

bool isDeclared(Kind kind) {
  return kind == Kind::request || kind == Kind::entryNotification ||
         kind == Kind::counterNotification || kind == Kind::storeRequest;
}

Identity identify(std::string const& text) {
  Identity identity;
  auto front = std::string_view(text);
  identity.byteOrderMark = front.substr(0, byteOrderMark.size()) == byteOrderMark;
  if (identity.byteOrderMark)
    front.remove_prefix(byteOrderMark.size());
  front.remove_prefix(std::min(front.find_first_not_of(whitespace), front.size()));
  identity.declared = front.substr(0, word::XMLHEADER.size()) == word::XMLHEADER;
  identity.code = Api::getMethodFromXMLMsg(text);

  auto const* method = findMethod(identity.code);
  if (method == nullptr && has(text, word::MISSEDGROUPCALLSUPDATE_XML))
    method = findMethod(
        word::MISSEDGROUPCALLSUPDATE_XML.substr(1, word::MISSEDGROUPCALLSUPDATE_XML.size() - 2));
  if (method == nullptr) {
    identifyWithoutMethod(identity, text);
    return identity;
  }
  identity.method = method->method;
  identity.log = method->log;
  identity.kind = kindWith(*method, identity.declared, text);
  return identity;
}

} // namespace inspect
