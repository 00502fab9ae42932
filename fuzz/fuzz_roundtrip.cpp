// Fuzzes the encoders with records built from the input, and the decoders with what they wrote.
//
// The first byte chooses the kind, the second the number of calls and what is written, the third
// how the written text is read back. The fields follow in their order: a text up to the next line
// feed, a flag or an enumeration in one byte.
#include <set>
#include <string_view>

#include "Fuzz.h"
#include "differential/Comparison.h"
#include "differential/KindOperations.h"
#include "members/Members.h"

std::size_t const fuzz::selectorBytes = 3;

namespace {

class Fields {
public:
  explicit Fields(std::string_view input) : rest_(input) {}

  void operator()(std::string& field) {
    auto const text = rest_.substr(0, rest_.find('\n'));
    field = text;
    rest_.remove_prefix(text.size() < rest_.size() ? text.size() + 1 : text.size());
  }

  void operator()(bool& field) { field = number() % 2 != 0; }

  template <class Enumeration>
  void operator()(Enumeration& field) {
    field = static_cast<Enumeration>(number());
  }

  // Small numbers of either sign, and the two extreme ones.
  std::int32_t number() {
    if (rest_.empty())
      return 0;
    int const byte = static_cast<signed char>(rest_.front());
    rest_.remove_prefix(1);
    return byte == 127 ? 2147483647 : byte == -128 ? -2147483647 - 1 : byte;
  }

private:
  std::string_view rest_;
};

template <class Item>
void run(comparison::Kind kind, std::uint8_t const* selectors, std::string_view input) {
  Fields fields(input);
  auto const fill = [&fields](auto& field) { fields(field); };
  Item item;
  members::forEachValue(item, fill);
  item.callInfoList.resize(selectors[1] % 4);
  for (auto& call : item.callInfoList)
    members::forEachValue(call, fill);

  comparison::Notice notice;
  notice.action = static_cast<JournalServiceObserverIfc::ActionType>(fields.number());
  notice.handle = static_cast<unsigned int>(fields.number());
  fields(notice.uniqueIdToDelete);
  auto const writing = selectors[1] / 4 % (comparison::WRITINGS + 1);
  if (writing == comparison::WRITINGS)
    fuzz::expectEqual(comparison::compareRequests(item.entryId, {item.entryId, item.uniqueId}));
  else
    fuzz::expectEqual(comparison::compareEncoder(item, notice, comparison::Writing(writing)));

  using Library = comparison::KindOperations<Item, JournalServiceHelper>;
  auto const level = static_cast<comparison::Level>(selectors[2] % comparison::LEVELS);
  auto const text = level == comparison::Level::log || level == comparison::Level::logAndHandle
                        ? Library::respond({item, item}, notice.handle)
                        : Library::notify(item, notice.uniqueIdToDelete, notice.action, 1);
  fuzz::expectEqual(comparison::compareDecoder(text, kind, level, comparison::Outputs::filled));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < fuzz::selectorBytes)
    return 0;
  std::string_view const input(reinterpret_cast<char const*>(data) + fuzz::selectorBytes,
                               size - fuzz::selectorBytes);
  auto const kind = static_cast<comparison::Kind>(data[0] % comparison::KINDS);
  comparison::withKind(
      kind, [&](auto const& item) { run<std::decay_t<decltype(item)>>(kind, data, input); });
  return 0;
}
