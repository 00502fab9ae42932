// The messages that are edited, and the tokens that are put into them.
#ifndef TESTS_DIFFERENTIAL_MESSAGES_H
#define TESTS_DIFFERENTIAL_MESSAGES_H

#include <string>
#include <vector>

#include "differential/Comparison.h"

namespace differential {

struct Message {
  comparison::Kind kind; // whose decoders are run in full
  std::vector<std::string> tokens;
};

/// A full and a sparse log of a kind, and the full one again with whole elements as tokens.
std::vector<Message> logsOf(comparison::Kind kind);

/// Requests, notifications, answers of the store and of the service.
std::vector<Message> otherMessages();

/// All tags, damaged tags, whitespace, odd bytes, entities, flags, words and numbers; all method
/// tags or only two of them.
std::vector<std::string> alphabet(bool withMethods);

/// The part of the alphabet that is no tag.
std::vector<std::string> valueTokens();

/// A record with every field set, and one with the entry id alone.
template <class Item>
Item fullItem();
template <class Item>
Item sparseItem();

} // namespace differential

#endif
