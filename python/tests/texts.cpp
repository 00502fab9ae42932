// Prints texts near list responses, each with what the reference reads in it as a list response:
//   LOG HEX JSON
//
// usage: texts COUNT    how many for each log
#include <cstdlib>
#include <iostream>
#include <string>

#include "differential/Edits.h"
#include "differential/Messages.h"
#include "inspect/Json.h"
#include "reference/Reference.h"

namespace {

using comparison::Kind;

void readList(std::string const& text, std::deque<MissedCallItem>& log, unsigned& handle) {
  Reference::parseXMLMissedCallList(text, log, handle);
}
void readList(std::string const& text, std::deque<DialledCallItem>& log, unsigned& handle) {
  Reference::parseXMLDialledCallList(text, log, handle);
}
void readList(std::string const& text, std::deque<ReceivedCallItem>& log, unsigned& handle) {
  Reference::parseXMLReceivedCallList(text, log, handle);
}
void readList(std::string const& text, std::deque<ForwardedCallItem>& log, unsigned& handle) {
  Reference::parseXMLForwardedCallList(text, log, handle);
}

std::string hexOf(std::string const& text) {
  std::string hex;
  for (char const byte : text)
    for (int const shift : {4, 0})
      hex += "0123456789abcdef"[(static_cast<unsigned char>(byte) >> shift) & 0xF];
  return hex;
}

void print(inspect::Log log, std::string const& text) {
  inspect::ListResponse list{inspect::entriesOf(log), 0};
  unsigned handle = 0;
  std::visit([&](auto& entries) { readList(text, entries, handle); }, list.entries);
  list.handle = handle;
  std::cout << inspect::nameOf(log) << ' ' << hexOf(text) << ' '
            << inspect::toJson(inspect::Decoded{list, {}, false, {}}) << '\n';
}

void printNear(inspect::Log log, differential::Message const& message, std::uint64_t count) {
  auto const letters = differential::alphabet(true);
  differential::Edits const edits(letters);
  auto const all = edits.countPairs(message.tokens.size());
  for (std::uint64_t made = 0; made < count; ++made) {
    differential::Tokens tokens(message.tokens.begin(), message.tokens.end());
    std::string touched;
    edits.applyPair(all / count * made, tokens, touched);
    std::string text;
    for (auto const token : tokens)
      text += token;
    print(log, text);
  }
}

} // namespace

int main(int count, char** arguments) {
  auto const wanted = count == 2 ? std::strtoull(arguments[1], nullptr, 10) : 0;
  if (wanted == 0) {
    std::cerr << "usage: texts COUNT\n";
    return 2;
  }
  for (auto const log : inspect::allLogs) {
    auto const messages = differential::logsOf(static_cast<Kind>(log));
    for (auto const& message : messages)
      printNear(log, message, wanted / messages.size());
  }
}
