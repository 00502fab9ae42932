// What every consumer here builds: prints the surname that an entry comes back with after it was
// written and read, then the tag that the entry's message carries. Constants are used from the
// program too.
#include <JournalServiceHelper.h>

#include <iostream>

int main() {
  MissedCallItem entry;
  entry.surname = "Berg & Sohn";
  std::deque<MissedCallItem> log(1, entry);
  std::string const answer = JournalServiceHelper::respGetMissedCallList(log, 7);
  unsigned int handle = 0;
  JournalServiceHelper::parseXMLMissedCallList(answer, log, handle);
  std::cout << log.front().surname << ' ' << handle << ' '
            << JournalServiceHelper::GETMISSEDCALLLIST_XML << '\n';
  return JournalServiceHelper::getMethodFromXMLMsg(answer) ==
                 JournalServiceHelper::GETMISSEDCALLLIST
             ? 0
             : 1;
}
