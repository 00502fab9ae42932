// Decoding damaged texts: the library against the plain oracle.
#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "Damage.h"
#include "Fields.h"
#include "Own.h"
#include "Samples.h"
#include "Timing.h"
#include "members/Equality.h"

namespace bench {

namespace {

std::map<std::string, Damage> const DAMAGES = {{"newlines", Damage::newlines},
                                               {"swapped", Damage::swapped},
                                               {"missing", Damage::missing},
                                               {"repeated", Damage::repeated}};

/// The names of a record's enumerations and flags: only texts are left out when they are empty.
template <class Record>
std::vector<std::string_view> alwaysWritten() {
  std::vector<std::string_view> names;
  forEachElement<Record>([&](auto const& member) {
    using Value = typename std::decay_t<decltype(member)>::Value;
    if (!std::is_same_v<Value, std::string>)
      names.push_back(member.element);
  });
  return names;
}

template <class Kind>
std::string const& damagedMessage(std::string const& how) {
  static std::map<std::string, std::string> messages;
  std::string& message = messages[how];
  if (message.empty())
    message = damaged(sampleOf<Kind>(COMPARED_SIZE).message, DAMAGES.at(how),
                      alwaysWritten<typename Kind::Call>());
  return message;
}

template <class Kind, class Decoder>
void add(std::string const& how, char const* who) {
  std::string const name = nameOf(how, Kind::name, COMPARED_SIZE, who);
  registerTiming(name, COMPARED_SIZE, [=](benchmark::State& state) {
    std::string const& message = damagedMessage<Kind>(how);
    Decoder decoder{message};
    timeProven(
        state, name, [&] { return decoder.decode(); },
        [&] {
          bool const isDamaged = message != sampleOf<Kind>(COMPARED_SIZE).message;
          return isDamaged &&
                 members::equal(decoder.decode(), OracleDecoder<Kind>{message}.decode());
        });
  });
}

} // namespace

void registerDamagedTexts() {
  for (auto const& damage : DAMAGES)
    forEachKind([&how = damage.first](auto kind) {
      using Kind = decltype(kind);
      add<Kind, LibraryDecoder<Kind>>(how, "library");
      add<Kind, OracleDecoder<Kind>>(how, "oracle");
    });
}

} // namespace bench
