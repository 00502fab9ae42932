// Finds the kind of a message from its method and its elements.
#include <algorithm>

#include "Message.h"

namespace {

using J = JournalServiceHelper;

bool has(Nodes const& nodes, std::string_view name) {
  return std::any_of(nodes.begin(), nodes.end(), [&](Node const& node) {
    return node.name == name && node.kind != Node::Kind::CLOSE_TAG;
  });
}

/// getMethodFromXMLMsg does not recognise one counter: it is identified by its tag.
Method const* findMethodOf(J::MethodCode code, Nodes const& nodes) {
  if (Method const* const method = findMethod(code))
    return method;
  std::string const& tag = J::MISSEDGROUPCALLSUPDATE_XML;
  std::string_view const name = std::string_view(tag).substr(1, tag.size() - 2);
  return has(nodes, name) ? findMethod(name) : nullptr;
}

/// A request and its answer carry the same method: the answer has no declaration.
MessageKind kindOf(Method const& method, bool declared, Nodes const& nodes) {
  switch (method.role) {
  case Role::LIST:
    return declared && !has(nodes, J::ENTRY) ? MessageKind::REQUEST : MessageKind::LIST_RESPONSE;
  case Role::LAST_NUMBER:
    return declared && !has(nodes, J::LOGLIST) ? MessageKind::REQUEST
                                               : MessageKind::LAST_NUMBER_RESPONSE;
  case Role::NOTIFICATION:
    return MessageKind::NOTIFICATION;
  case Role::COUNTER:
    return MessageKind::COUNTER;
  default:
    return has(nodes, J::VALUE) ? MessageKind::OUTCOME : MessageKind::REQUEST;
  }
}

MessageKind kindWithoutMethod(Nodes const& nodes) {
  if (has(nodes, J::CALL_LOG_ENABLED))
    return MessageKind::STORE_ANSWER;
  if (has(nodes, J::SCHEMA))
    return MessageKind::STORE_REQUEST;
  bool const outcome = has(nodes, J::VALUE) && !has(nodes, J::METHOD);
  return outcome ? MessageKind::OUTCOME : MessageKind::OTHER;
}

} // namespace

Subject classify(std::string const& text, Nodes const& nodes) {
  Subject subject;
  subject.code = J::getMethodFromXMLMsg(text);
  subject.method = findMethodOf(subject.code, nodes);
  subject.declared = text.compare(0, J::XMLHEADER.size(), J::XMLHEADER) == 0;
  if (subject.method == nullptr) {
    subject.kind = kindWithoutMethod(nodes);
    return subject;
  }
  subject.kind = kindOf(*subject.method, subject.declared, nodes);
  subject.log = subject.method->log;
  return subject;
}
