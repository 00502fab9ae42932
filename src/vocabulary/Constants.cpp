// The public constants, each made from its word when the library is loaded.
#include <string>

#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"
#include "vocabulary/Words.h"

namespace {

using namespace journal;

// Not inlined: each construction in place would take three times the code.
[[gnu::noinline]] std::string text(std::string_view word) {
  return std::string(word);
}

} // namespace

#define WORD(NAME, literal) std::string const JournalServiceHelper::NAME = text(word::NAME);
#define TAGS(NAME, WORD)                                                                           \
  std::string const JournalServiceHelper::NAME##_XML_BEGIN = text(element<word::WORD>.begin());    \
  std::string const JournalServiceHelper::NAME##_XML_CLOSE = text(element<word::WORD>.close());
#define ELEMENT(NAME, literal) WORD(NAME, literal) TAGS(NAME, NAME)
#include "vocabulary/Words.def"

// The two pairs whose names differ from their element's: the one for Handle has no constant for the
// element's name, the one for CallLogEnabled is named differently.
TAGS(HANDLE, HANDLE)
TAGS(ENABLED, CALL_LOG_ENABLED)
