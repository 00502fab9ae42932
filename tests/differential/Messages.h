// The messages around which the texts are made, and the tokens that are put into them.
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

/// All tags, damaged tags, whitespace, odd bytes, entities, flags, words and numbers; the methods'
/// tags only when they are asked for, else two of them.
std::vector<std::string> alphabet(bool withMethods);

/// Values alone: what of the alphabet is no tag.
std::vector<std::string> valueTokens();

/// A record with every field set, and one with none but the entry id.
template <class Item>
Item fullItem();
template <class Item>
Item sparseItem();

} // namespace differential

#endif
