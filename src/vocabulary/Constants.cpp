// The public constants, each made from its word when the library is loaded.
#include <cstring>
#include <string>
#include <string_view>

#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"

namespace {

using namespace journal;

// The constants are initialised in the order of Words.def, so each takes the next word or the next
// tag. Passing every constructor its own text would take 1.9 KB more on the device.

[[gnu::noinline]] std::string nextWord() {
  static char const* at = word::texts;
  std::string word(at);
  at += word.size() + 1;
  return word;
}

[[gnu::noinline]] std::string nextTag() {
  static char const* at = detail::tags.text;
  auto const* const front = at;
  at = std::strchr(at, '>') + 1;
  return std::string(front, at);
}

} // namespace

#define WORD(NAME, text) std::string const JournalServiceHelper::NAME = nextWord();
#define ELEMENT(NAME, text)                                                                        \
  WORD(NAME, text)                                                                                 \
  std::string const JournalServiceHelper::NAME##_XML_BEGIN = nextTag();                            \
  std::string const JournalServiceHelper::NAME##_XML_CLOSE = nextTag();
#include "vocabulary/Words.def"

// The two pairs whose names differ from their element's. Their elements are the first behind the
// regular ones.
std::string const JournalServiceHelper::HANDLE_XML_BEGIN = nextTag();
std::string const JournalServiceHelper::HANDLE_XML_CLOSE = nextTag();
std::string const JournalServiceHelper::ENABLED_XML_BEGIN = nextTag();
std::string const JournalServiceHelper::ENABLED_XML_CLOSE = nextTag();
