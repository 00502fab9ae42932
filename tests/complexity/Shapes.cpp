// Hostile inputs: texts and records of any size, each of one shape.
#include "complexity/Shapes.h"

#include <deque>
#include <string>
#include <tuple>
#include <vector>

namespace shapes {
namespace {

using operations::Input;

std::string const entryFields = "<UniqueId>1</UniqueId><EntryId>2</EntryId><Surname>A</Surname>";
std::string const callFields = "<Number>110</Number><NumberType>MOBILE</NumberType>";
std::string const entry =
    "<Entry>" + entryFields + "<LogList><Item>" + callFields + "</Item></LogList></Entry>";

template <class Item>
void fillKind(Input& input, std::size_t size) {
  auto& item = std::get<Item>(input.records);
  item.uniqueId = item.surname = item.firstname = input.text;
  for (std::size_t calls = size / 256; calls > 0; --calls)
    item.callInfoList.emplace_back().number = "110";
  auto& log = std::get<std::deque<Item>>(input.records);
  for (std::size_t entries = size / 512; entries > 0; --entries) {
    log.emplace_back().surname = "A & B";
    log.back().callInfoList.emplace_back();
  }
}

} // namespace

std::vector<Shape> const& all() {
  static std::vector<Shape> const shapes = {
      // The elements of a log, left open or empty or repeated.
      {"unterminated-entries", "", "<Entry>" + entryFields, ""},
      {"entries-within-an-entry", "", "<Entry>", "</Entry>"},
      {"entries-unclosed-inside", "", "<Entry>" + entryFields + "<LogList><Item></Entry>", ""},
      {"unterminated-items", "<Entry><LogList>", "<Item>" + callFields, "</LogList></Entry>"},
      {"unterminated-lists", "<Entry>", "<LogList><Item></Item>", "</Entry>"},
      {"empty-items", "<Entry><LogList>", "<Item></Item>", "</LogList></Entry>"},
      {"empty-entries", "", "<Entry></Entry>", ""},
      {"entries-in-order", "", entry, "<Handle>1</Handle>"},
      {"entries-nearly-in-order", "", "<Entry>" + entryFields + "<LogList></LogList> </Entry>", ""},
      {"in-order-to-the-last-item", "<Entry><LogList>", "<Item>" + callFields + "</Item>",
       "<LogList></Entry>"},
      {"no-close-tags", "<Method>", "<Entry><UniqueId>1<Surname>A<LogList><Item><Number>2", ""},
      {"close-tags-only", "", "</Entry></UniqueId></LogList></Item></Number></Method>", ""},
      // What the fallback continues over, and what it leaves to plain searches.
      {"unknown-elements", "",
       "<Entry>" + entryFields + "<New>x</New><LogList><Item>" + callFields +
           "<New>x</New></Item></LogList></Entry>",
       ""},
      {"white-space", "<Entry><LogList>", "\n <Item>\n " + callFields + "\n </Item>",
       "</LogList></Entry>"},
      {"reversed-elements", "",
       "<Entry><LogList><Item><NumberType>MOBILE</NumberType><Number>1</Number></Item></LogList>"
       "<Surname>A</Surname><UniqueId>1</UniqueId></Entry>",
       ""},
      {"open-elements", "<Entry><LogList>", "<Item><Number>1<NumberType>MOBILE</Item>",
       "</LogList></Entry>"},
      {"nested-calls", "<Entry><LogList>", "<Item><Number>1<b>2</b></Number></Item>",
       "</LogList></Entry>"},
      {"one-nested-call", "<Entry><LogList><Item><Number>", "<b>2</b>",
       "</Number></Item></LogList></Entry>"},
      {"begin-tags-as-close-tags", "<Entry><LogList>",
       "<Item><NamePresentation>ALLOWED<NamePresentation></Item>", "</LogList></Entry>"},
      {"entry-fields-in-calls", "",
       "<Entry><LogList><Item><UniqueId>1</UniqueId></Item></LogList></Entry>", ""},
      {"long-tags", "<Entry><LogList><Item>", "<a-tag-that-is-longer-than-any-of-ours>",
       "</Item></LogList></Entry>"},
      {"less-than-signs-in-an-item", "<Entry><LogList><Item>", "<", "</Item></LogList></Entry>"},
      // What is inside elements, or in their place.
      {"huge-value", "<Entry><UniqueId>", "0123456789abcdef",
       "</UniqueId><LogList></LogList></Entry>"},
      {"unclosed-huge-value", "<Entry><UniqueId>", "0123456789abcdef", ""},
      {"absent-elements", "<Entry>", "<x>y</x> ", "<LogList><Item>z</Item></LogList></Entry>"},
      {"absent-elements-in-an-item", "<Entry><LogList><Item>", "<x>y</x> ",
       "</Item></LogList></Entry>"},
      {"repeated-elements", "", "<Number>1</Number><UniqueId>2</UniqueId>", ""},
      {"repeated-begin-tags", "", "<UniqueId><Number><NamePresentation>", ""},
      {"repeated-method-tags", "<Method>", "<getMissedCalls><get", "</Method>"},
      {"near-misses", "", "<Entr<LogLis<Ite<UniqueI<Numbe<Metho</Entr", ""},
      {"less-than-signs", "", "<", ""},
      {"less-than-signs-after-a-nul", std::string("<Entry>\0", 8), "<", ""},
      {"ampersands", "<Entry><UniqueId>", "&", "</UniqueId><LogList></LogList></Entry>"},
      {"entities", "<Entry><UniqueId>", "&amp;", "</UniqueId><LogList></LogList></Entry>"},
      {"digits", "<UniqueId>", "0", "</UniqueId>"},
  };
  return shapes;
}

Input inputOf(Shape const& shape, std::size_t size) {
  Input input;
  input.text = shape.front;
  while (input.text.size() + shape.end.size() < size)
    input.text += shape.unit;
  input.text += shape.end;
  input.text.shrink_to_fit(); // so that a read past its end is a read past its block
  input.name = "UniqueId";
  input.begin = "<UniqueId>";
  input.close = "</UniqueId>";
  for (std::size_t id = 0; id < size / 64; ++id)
    input.ids.insert("a long id of an entry, " + std::to_string(id));
  fillKind<operations::Missed>(input, size);
  fillKind<operations::Dialled>(input, size);
  fillKind<operations::Received>(input, size);
  fillKind<operations::Forwarded>(input, size);
  return input;
}

} // namespace shapes
