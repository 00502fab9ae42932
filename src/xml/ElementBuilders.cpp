// The public builders of single elements.
#include "JournalServiceHelper.h"
#include "vocabulary/Tags.h"
#include "xml/Building.h"
#include "xml/Text.h"

using namespace journal;

std::string JournalServiceHelper::createXMLBegin(std::string const& name) {
  return joined({"<", name, ">"});
}

std::string JournalServiceHelper::createXMLClose(std::string const& name) {
  return joined({"</", name, ">"});
}

std::string JournalServiceHelper::createXMLField(std::string const& name,
                                                 std::string const& value) {
  if (value.empty())
    return {};
  return joined({"<", name, ">", value, "</", name, ">"});
}

std::string JournalServiceHelper::createXMLField(std::string const& name, unsigned int value) {
  return createXMLField(name, decimal(value));
}

std::string JournalServiceHelper::createXMLField(std::string const& name, bool value) {
  return createXMLField(name, value ? TRUE : FALSE);
}

std::string JournalServiceHelper::createXMLSchemaField(std::string const& name) {
  if (name.empty())
    return {};
  return joined({element<word::SCHEMA>.begin(), name});
}

std::string JournalServiceHelper::createXMLEntryIDList(std::set<std::string> const& ids) {
  std::string list;
  for (std::string const& id : ids)
    if (!id.empty())
      append(list, element<word::ENTRYID>, id);
  return list;
}
