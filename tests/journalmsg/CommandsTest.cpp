// The commands as tables: a command, its input, and what it has to give.
#include <gtest/gtest.h>

#include "Program.h"

namespace {

#define DECLARATION "<?xml version=\"1.0\" encoding=\"utf-8\"?>"
#define REQUEST DECLARATION "<Method><subscribe></Method>"
#define CALL "<NumberType>MOBILE</NumberType><ConnectedNumberType>NO_ICON</ConnectedNumberType>"
#define ENTRY(id, calls) "<Entry><UniqueId>" id "</UniqueId><LogList>" calls "</LogList></Entry>"
#define LIST(entries) "<Method><getForwardedCallList></Method>" entries "<Handle>7</Handle>"
#define UPDATE(id, action)                                                                         \
  DECLARATION "<Method><forwardedCallsUpdate></Method><UniqueId>" id                               \
              "</UniqueId><LogList></LogList>" action "<Handle>8</Handle>"
#define ACTION(digit) "<ActionType>" digit "</ActionType>"

struct Row {
  char const* command;
  char const* input;
  char const* out;      ///< all of it
  char const* err = ""; ///< all of it
  int code = 0;
};

void expect(Row const& row) {
  SCOPED_TRACE(std::string(row.command) + " <<< " + row.input);
  auto const result = run(row.command, row.input);
  EXPECT_EQ(result.out, row.out);
  EXPECT_EQ(result.err, row.err);
  EXPECT_EQ(result.code, row.code);
}

#define TABLE(name, ...)                                                                           \
  TEST(Commands, name) {                                                                           \
    Row const rows[] = {__VA_ARGS__};                                                              \
    for (Row const& row : rows)                                                                    \
      expect(row);                                                                                 \
  }

TABLE(Identify,
      {"journalmsg identify", REQUEST,
       "request              subscribe                  code 18  entries     0  handle          -  "
       "      66 bytes  stdin:1\n"},
      {"journalmsg identify", "x\n" UPDATE("f", ACTION("5")) "\n",
       "entryNotification    forwardedCallsUpdate       code 26  entries     1  handle          8  "
       "     162 bytes  stdin:2  action 5\n"},
      {"journalmsg identify", UPDATE("f", ""),
       "entryNotification    forwardedCallsUpdate       code 26  entries     1  handle          8  "
       "     136 bytes  stdin:1  action none\n"},
      {"journalmsg identify --format jsonl", LIST(ENTRY("1", "")),
       "{\"kind\":\"listResponse\",\"method\":\"getForwardedCallList\",\"code\":14,"
       "\"log\":\"forwarded\",\"entries\":1,\"handle\":7,\"bytes\":113,\"place\":\"stdin:1\"}\n"},
      {"journalmsg identify", "<Method><nothing></Method>",
       "unknown              -                          code 27  entries     0  handle          -  "
       "      26 bytes  stdin:1\n",
       "", 4},
      {"journalmsg identify", "hello\n", "", "", 4}, {"journalmsg identify", "", "", "", 4})

TABLE(Decode,
      {"journalmsg decode", LIST(ENTRY("f-1", "<Item><Number>5550</Number>" CALL "</Item>")),
       "listResponse  forwarded calls, 1 entries, handle 7\n"
       "  uniqueId  number  numberType  connectedNumberType\n"
       "  f-1       5550    MOBILE      NO_ICON\n"},
      {"journalmsg decode --format jsonl", UPDATE("f", ""),
       "{\"kind\":\"entryNotification\",\"log\":\"forwarded\",\"entry\":{\"uniqueId\":\"f\","
       "\"entryId\":\"\",\"surname\":\"\",\"firstname\":\"\",\"picture\":\"\","
       "\"callInfoList\":[]},\"uniqueIdToDelete\":\"\",\"action\":null,\"handle\":8}\n"},
      {"journalmsg decode --format json", "<CallLogEnabled>True</CallLogEnabled>",
       "{\n  \"kind\": \"setting\",\n  \"callLogEnabled\": false\n}\n"},
      {"journalmsg decode --get 'entries[1].uniqueId'", LIST(ENTRY("a", "") ENTRY("b", "")), "b\n"},
      {"journalmsg decode --get handle", LIST(""), "7\n"},
      {"journalmsg decode --get 'entries[1]'", LIST(""), "",
       "journalmsg: not every message has a value at entries[1]\n", 2},
      {"journalmsg decode --get entry.uniqueId --kind forwarded",
       "<UniqueId>u</UniqueId><LogList></LogList>", "u\n"},
      {"journalmsg decode --format csv | cut -d, -f 1-8", LIST(ENTRY("a,\"b", "")),
       "place,kind,log,method,handle,action,uniqueId,entryId\n"
       "stdin:1,listResponse,forwarded,getForwardedCallList,7,,\"a,\"\"b\"\n"},
      {"journalmsg decode --redact --format jsonl --get entries[0].surname",
       LIST("<Entry><Surname>Be&amp;rg 1</Surname><LogList></LogList></Entry>"), "xx&xx 0\n"})

TABLE(EncodeAndMake,
      {"journalmsg make reqDeleteMissedCallList 7 12", "",
       DECLARATION "<Method><deleteMissedCallList></Method><EntryId>12</EntryId>"
                   "<EntryId>7</EntryId>"},
      {"journalmsg make subscribe", "", REQUEST},
      {"journalmsg make readEnabledState", "",
       DECLARATION "<Schema name=\"CallLogSettings\"><ReasonForMessage>read_request"
                   "</ReasonForMessage></Schema>"},
      {"journalmsg make missedGroupCallsUpdate 4294967295", "",
       DECLARATION "<Method><missedGroupCallsUpdate></Method><Value>-1</Value>"},
      {"journalmsg make success", "", "<Value>Success</Value>"},
      {"journalmsg make obsReqForwardedCallsUpdate '{\"uniqueId\":\"f\"}' 3 8", "",
       UPDATE("f", ACTION("3"))},
      {"journalmsg make reqDeletMissedCall", "", "",
       "journalmsg: reqDeletMissedCall: there is no operation of this name\n"
       "Did you mean reqDeleteMissedCall?\n",
       2},
      {"journalmsg make subscribe 1", "", "", "journalmsg: subscribe: takes no arguments\n", 2},
      {"journalmsg make missedCallsCountUpdate x", "", "",
       "journalmsg: missedCallsCountUpdate: takes one number from 0 to 4294967295\n", 2},
      {"journalmsg encode", "{\"kind\":\"request\",\"method\":\"subscribe\"}", REQUEST},
      {"journalmsg encode",
       "{\"kind\":\"outcome\",\"ok\":true}\n{\"kind\":\"outcome\",\"ok\":false}",
       "<Value>Success</Value>\n<Value>Failure</Value>"},
      {"journalmsg encode", "{\"kind\":\"unknown\",\"text\":{\"hex\":\"ff01\"}} ", "\xFF\x01"},
      {"journalmsg encode",
       "{\"kind\":\"listResponse\",\"log\":\"missed\",\"entries\":[{\"callInfoList\":"
       "[{\"nummer\":\"1\"}]}]}",
       "", "journalmsg: -: message 1: entries[0].callInfoList[0].nummer: is unknown here\n", 2},
      {"journalmsg encode", "{\"kind\":\"request\"}", "",
       "journalmsg: -: message 1: method: is missing\n", 2},
      {"journalmsg encode", "{\"kind\":\"outcome\",\"ok\":true,\"ok\":false}", "",
       "journalmsg: -: message 1: ok: is there twice\n", 2},
      {"journalmsg encode", "{\"kind\":", "", "journalmsg: -: the JSON ends too early\n", 2},
      {"journalmsg encode", "", "", "", 4})

TABLE(Check, {"journalmsg check", LIST(ENTRY("1", "")), ""}, {"journalmsg check", REQUEST "\n", ""},
      {"journalmsg check", "\xEF\xBB\xBF" REQUEST,
       "stdin:1: offset 0: warning: a byte-order mark [byte-order-mark]\n", "", 1},
      {"journalmsg check", DECLARATION "\n<Method>\n<subscribe>\n</Method>\n",
       "stdin:1: offset 38: note: white space between elements [white-space] 3 places\n"},
      {"journalmsg check --strict", DECLARATION "\n<Method>\n<subscribe>\n</Method>\n",
       "stdin:1: offset 38: note: white space between elements [white-space] 3 places\n", "", 1},
      {"journalmsg check", LIST("") LIST(""), ""},
      {"journalmsg check --format jsonl", "<CallLogEnabled>True</CallLogEnabled>",
       "{\"place\":\"stdin:1\",\"findings\":[{\"offset\":0,\"severity\":\"warning\","
       "\"rule\":\"setting-form\",\"element\":\"CallLogEnabled\","
       "\"what\":\"neither true nor false\",\"text\":\"True\",\"instead\":\"disabled\"}]}\n",
       "", 1})

TABLE(Explain,
      {"journalmsg explain", "<CallLogEnabled>yes</CallLogEnabled>",
       "stdin:1  setting \n"
       "offset  element           raw    stored      why\n"
       "     0  <CallLogEnabled>  \"yes\"  \"disabled\"  neither true nor false\n"},
      {"journalmsg explain",
       LIST(ENTRY("\x1b[31m", "<Item>" CALL "<ConnectedSurname>B&amp;C</ConnectedSurname></Item>")),
       "stdin:1  listResponse getForwardedCallList\n"
       "offset  element                      raw         stored      why\n"
       "     0  <Method>\n"
       "     8    <getForwardedCallList>\n"
       "    39  <Entry>\n"
       "    46    <UniqueId>                 \"\\x1b[31m\"  \"\\x1b[31m\"\n"
       "    72    <LogList>\n"
       "    81      <Item>\n"
       "    87        <NumberType>           \"MOBILE\"    \"MOBILE\"\n"
       "   118        <ConnectedNumberType>  \"NO_ICON\"   \"NO_ICON\"\n"
       "   168        <ConnectedSurname>     \"B&amp;C\"   \"\"          read, but not kept\n"
       "   237  <Handle>                     \"7\"         \"7\"\n"})

TABLE(Diff, {"cp $samples/missed.xml a; journalmsg diff a a", "", ""},
      {"cat >a; journalmsg make success >b; journalmsg diff a b", REQUEST,
       "kind: \"request\" -> \"outcome\"\n", "", 1},
      {"journalmsg encode >a <<< '{\"kind\":\"listResponse\",\"log\":\"missed\",\"entries\":"
       "[{\"uniqueId\":\"1\"},{\"uniqueId\":\"2\",\"surname\":\"A\"}],\"handle\":1}';"
       "journalmsg encode >b <<< '{\"kind\":\"listResponse\",\"log\":\"missed\",\"entries\":"
       "[{\"uniqueId\":\"3\"},{\"uniqueId\":\"2\",\"surname\":\"B\"}],\"handle\":2}';"
       "journalmsg diff --ignore handle a b",
       "", "entry 1 only left\nentry 2 surname: \"A\" -> \"B\"\nentry 3 only right\n", "", 1},
      {"cat >a; journalmsg diff --format json a a", REQUEST, "[]\n"},
      {"journalmsg make forwardedCallsUpdate '{\"callInfoList\":[{\"number\":\"1\"}]}' >a;"
       "journalmsg make forwardedCallsUpdate >b; journalmsg diff --ignore callInfoList a b",
       "", ""},
      {"cat >a; journalmsg diff --ignore surnam a a", REQUEST, "",
       "journalmsg: there is no field surnam; did you mean surname?\n", 2},
      {"journalmsg identify --limit -1", "", "",
       "journalmsg: --limit: must not be negative\nRun journalmsg identify --help for more.\n", 2},
      {"journalmsg diff a", "", "",
       "journalmsg: FILES: At least 2 required but received 1\nRun journalmsg diff --help for "
       "more.\n",
       2})

TABLE(Replay,
      {"cat >u; journalmsg encode >l <<< '{\"kind\":\"listResponse\",\"log\":\"forwarded\"}';"
       "journalmsg replay l u",
       UPDATE("a", ACTION("0")) UPDATE("b", ACTION("0")) UPDATE("a", ACTION("2")),
       "listResponse  forwarded calls, 1 entries, handle 8\n  uniqueId\n  b\n"},
      {"cat >u; journalmsg encode >l <<< '{\"kind\":\"listResponse\",\"log\":\"forwarded\"}';"
       "journalmsg replay l u --format message",
       UPDATE("a", ACTION("1")) UPDATE("b", ACTION("5")),
       "<Method><getForwardedCallList></Method>"
       "<Entry><UniqueId>a</UniqueId><LogList></LogList></Entry><Handle>8</Handle>",
       "journalmsg: u:1: changes an entry that is not there\n"
       "journalmsg: u:1: has action 5, which has no meaning of its own\n",
       1},
      {"cat >l; journalmsg replay l l", REQUEST, "",
       "journalmsg: l holds no list, or more than one message\n", 2})

TABLE(Stats,
      {"journalmsg stats --format json", REQUEST REQUEST,
       "{\"messages\":2,\"bytes\":132,\"largest\":66,\"entries\":0,\"calls\":0,"
       "\"kinds\":{\"request\":2},\"methods\":{\"subscribe\":2},\"days\":{},\"findings\":{}}\n"},
      {"journalmsg stats", "<Value>Success</Value>",
       "1 messages, 22 bytes, largest 22, 0 entries, 0 calls\nkind     count\noutcome  1\n"})

TABLE(Watch,
      {"journalmsg watch -n 1 | cut -c 24-61", REQUEST "\n" REQUEST "\n",
       "  request              subscribe      \n"},
      {"journalmsg watch --match getF | wc -l", REQUEST "\n" LIST("") "\n", "1\n"},
      {"cat >g; touch f; (sleep 0.3; cat g >>f) & journalmsg watch --follow -n 1 f | cut -c 26-32",
       REQUEST "\n", "request\n"},
      {"journalmsg watch --match '('", "", "",
       "journalmsg: --match takes an extended regular expression\n", 2})

TABLE(WrongUse,
      {"journalmsg", "", "",
       "journalmsg: A subcommand is required\n"
       "Run journalmsg --help for the commands.\n",
       2},
      {"journalmsg decod", "", "", "journalmsg: A subcommand is required\nDid you mean decode?\n",
       2},
      {"journalmsg decode --formt json", "", "",
       "journalmsg: The following argument was not expected: --formt\nDid you mean --format?\n", 2},
      {"journalmsg --version", "", "journalmsg 1.0.0\n"})

#define SLOT(name) "<script id=\"capture\" type=\"text/plain\" data-name=\"" name "\">"
TABLE(Report,
      {"echo '(" SLOT("") ")' >page; journalmsg report --page page -o out && cat out",
       "hi\n" REQUEST,
       "(" SLOT("") "3 2 PD94bWwgdmVyc2lvbj0iMS4wIiBlbmNvZGluZz0idXRmLTgiPz4"
                    "8TWV0aG9kPjxzdWJzY3JpYmU+PC9NZXRob2Q+\n)\n"},
      {"echo '" SLOT(
           "") "' >page; cat >'a<b'; journalmsg report --page page -o out 'a<b'; head -c61 out",
       REQUEST, SLOT("a&#60;b") "0 "},
      {"echo '" SLOT("") "' >page; journalmsg report --redact --page page -o out; cat out",
       "<UniqueId>1</UniqueId><Surname>A</Surname>",
       SLOT("") "0 1 PFVuaXF1ZUlkPjE8L1VuaXF1ZUlkPjxTdXJuYW1lPng8L1N1cm5hbWU+\n\n"},
      {"journalmsg report --page none -o out", REQUEST, "",
       "journalmsg: there is no page at none (see --page)\n", 3},
      {"echo >page; journalmsg report --page page -o out", REQUEST, "",
       "journalmsg: page is not the page of journalmsg\n", 3},
      {"echo '" SLOT("") "' >page; journalmsg report --page page -o none/out", REQUEST, "",
       "journalmsg: cannot write none/out: No such file or directory\n", 3},
      {"echo '" SLOT("") "' >page; cat >m; journalmsg report --page page -o m m || cat m", REQUEST,
       REQUEST, "journalmsg: the report would replace its input m\n", 0},
      {"echo '" SLOT("") "' >page; journalmsg report --page page -o /dev/full", REQUEST, "",
       "journalmsg: cannot write /dev/full: No space left on device\n", 3})

} // namespace
