// expat: fills the records while it parses, from handlers, without a tree.
#ifndef BENCH_PEERS_EXPATPEER_H
#define BENCH_PEERS_EXPATPEER_H

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>

#include <expat.h>

#include "Fields.h"
#include "Kinds.h"
#include "Values.h"

namespace bench {

/// Stores elements in a record. They usually come in the list's order, so the search for each
/// starts after its predecessor.
template <class Record>
class FieldSetter {
public:
  void restart() { expected_ = 0; }

  void set(Record& record, char const* name, std::string_view text) {
    for (std::size_t tried = 0; tried < SETTERS.size(); ++tried) {
      std::size_t const at = (expected_ + tried) % SETTERS.size();
      if (std::strcmp(name, SETTERS[at].name) != 0)
        continue;
      SETTERS[at].set(record, text);
      expected_ = at + 1;
      return;
    }
  }

private:
  struct Setter {
    char const* name;
    void (*set)(Record&, std::string_view);
  };

  template <std::size_t index>
  static void setField(Record& record, std::string_view text) {
    constexpr auto member = std::get<index>(elementsOf<Record>);
    if constexpr (isStored(member))
      assign(member.in(record), text);
  }

  template <std::size_t... index>
  static constexpr std::array<Setter, sizeof...(index)> setters(std::index_sequence<index...>) {
    return {Setter{std::get<index>(elementsOf<Record>).element.data(), &setField<index>}...};
  }

  static constexpr std::size_t SIZE = std::tuple_size_v<decltype(elementsOf<Record>)>;
  static constexpr std::array<Setter, SIZE> SETTERS = setters(std::make_index_sequence<SIZE>());

  std::size_t expected_ = 0;
};

template <class Kind>
class ExpatDecoder {
public:
  explicit ExpatDecoder(std::string const& document)
      : document_(document), parser_(XML_ParserCreate("UTF-8"), &XML_ParserFree) {}

  typename Kind::Log decode() {
    typename Kind::Log log;
    log_ = &log;
    depth_ = 0;
    XML_ParserReset(parser_.get(), "UTF-8");
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), &started, &ended);
    XML_SetCharacterDataHandler(parser_.get(), &texted);
    XML_Parse(parser_.get(), document_.data(), static_cast<int>(document_.size()), XML_TRUE);
    return log;
  }

private:
  // The depth inside each level: Log, Entry, its elements, Item, its elements.
  enum Depth : int { IN_ENTRY = 2, IN_ENTRY_FIELD = 3, IN_ITEM = 4, IN_ITEM_FIELD = 5 };

  static void XMLCALL started(void* self, XML_Char const* name, XML_Char const**) {
    static_cast<ExpatDecoder*>(self)->start(name);
  }
  static void XMLCALL ended(void* self, XML_Char const* name) {
    static_cast<ExpatDecoder*>(self)->end(name);
  }
  // Called for each entity, and for each text between them.
  static void XMLCALL texted(void* self, XML_Char const* text, int length) {
    static_cast<ExpatDecoder*>(self)->text_.append(text, static_cast<std::size_t>(length));
  }

  void start(char const* name) {
    ++depth_;
    text_.clear();
    if (depth_ == IN_ENTRY) {
      inEntry_ = std::strcmp(name, "Entry") == 0;
      if (inEntry_)
        log_->emplace_back();
      entrySetter_.restart();
    } else if (depth_ == IN_ITEM) {
      log_->back().callInfoList.emplace_back();
      callSetter_.restart();
    }
  }

  void end(char const* name) {
    if (depth_ == IN_ITEM_FIELD)
      callSetter_.set(log_->back().callInfoList.back(), name, text_);
    else if (depth_ == IN_ENTRY_FIELD && inEntry_)
      entrySetter_.set(log_->back(), name, text_);
    --depth_;
  }

  std::string const& document_;
  std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser_;
  typename Kind::Log* log_ = nullptr;
  int depth_ = 0;
  bool inEntry_ = false;
  std::string text_;
  FieldSetter<typename Kind::Item> entrySetter_;
  FieldSetter<typename Kind::Call> callSetter_;
};

} // namespace bench

#endif
