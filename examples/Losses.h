// What reading a message drops, and how that changes the text of a log.
#ifndef EXAMPLES_LOSSES_H
#define EXAMPLES_LOSSES_H

#include <string>
#include <type_traits>

#include "JournalServiceHelper.h"
#include "members/Enumerations.h"
#include "members/Members.h"

/// Calls visit(member) for each member of an entry and of its calls that messages carry.
template <class Item, class Visit>
void forEachCarriedMember(Visit const& visit) {
  auto const visitCarried = [&visit](auto const& member) {
    if (member.travel != members::Travel::never)
      visit(member);
  };
  members::forEachField<Item>(visitCarried);
  members::forEachField<members::CallOf<Item>>(visitCarried);
}

/// Calls visit(member) for each of them that reading drops.
template <class Item, class Visit>
void forEachDroppedMember(Visit const& visit) {
  forEachCarriedMember<Item>([&visit](auto const& member) {
    if (member.travel == members::Travel::writtenOnly)
      visit(member);
  });
}

/// The names of the elements that reading drops.
template <class Item>
std::string droppedElements() {
  std::string names;
  forEachDroppedMember<Item>([&names](auto const& member) {
    names += (names.empty() ? "" : ", ") + std::string(member.element);
  });
  return names.empty() ? "nothing" : names;
}

/// Replaces every element of that name.
inline std::string replaceElements(std::string text, std::string const& name,
                                   std::string const& replacement) {
  std::string const begin = JournalServiceHelper::createXMLBegin(name);
  std::string const close = JournalServiceHelper::createXMLClose(name);
  std::size_t at = 0;
  while ((at = text.find(begin, at)) != std::string::npos) {
    std::size_t const end = text.find(close, at);
    if (end == std::string::npos)
      break;
    text.replace(at, end + close.size() - at, replacement);
    at += replacement.size();
  }
  return text;
}

/// What is written for a member with its default: nothing for a text, because it is empty.
template <class Member>
std::string defaultElement(Member const& member) {
  using Value = typename Member::Value;
  [[maybe_unused]] Value const value = member.in(typename Member::Record());
  std::string const name(member.element);
  if constexpr (std::is_same_v<Value, std::string>)
    return "";
  else if constexpr (std::is_same_v<Value, bool>)
    return JournalServiceHelper::createXMLField(name, value);
  else
    return JournalServiceHelper::createXMLField(name, members::nameOf(value));
}

/// A message as it is when it is read and written again.
template <class Item>
std::string asWrittenAgain(std::string message) {
  forEachDroppedMember<Item>([&message](auto const& member) {
    message = replaceElements(message, std::string(member.element), defaultElement(member));
  });
  return message;
}

/// A message without the elements that a stored log has in none of its entries, as it was stored
/// before they were introduced. Only their defaults are removed.
template <class Item>
std::string asOldAs(std::string const& stored, std::string message) {
  forEachCarriedMember<Item>([&](auto const& member) {
    std::string const unset = defaultElement(member);
    bool const lacking =
        stored.find(JournalServiceHelper::createXMLBegin(std::string(member.element))) ==
        std::string::npos;
    if (unset.empty() || !lacking)
      return;
    for (auto at = message.find(unset); at != std::string::npos; at = message.find(unset, at))
      message.erase(at, unset.size());
  });
  return message;
}

#endif
