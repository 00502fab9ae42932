#include "inspect/JsonTree.h"

#include <rapidjson/error/en.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>

#include "inspect/Json.h"

namespace inspect {

bool json::parse(std::string_view text, rapidjson::Document& document, std::string& error) {
  document.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag>(
      text.data(), text.size());
  if (!document.HasParseError())
    return true;
  error = "offset " + std::to_string(document.GetErrorOffset()) + ": " +
          rapidjson::GetParseError_En(document.GetParseError());
  return false;
}

std::optional<std::string> valueAt(std::string const& text, std::string_view path,
                                   std::string& error) {
  rapidjson::Document document;
  if (!json::parse(text, document, error))
    return {};
  rapidjson::Value const* value = &document;
  while (!path.empty()) {
    auto const size = std::min(path.find_first_of(".[]"), path.size());
    auto const name = path.substr(0, size);
    path.remove_prefix(std::min(size + 1, path.size()));
    if (name.empty())
      continue;
    if (value->IsObject() && value->HasMember(std::string(name).c_str())) {
      value = &(*value)[std::string(name).c_str()];
      continue;
    }
    auto const isNumber = name.size() < 10 && name.find_first_not_of("0123456789") == name.npos;
    auto const index =
        static_cast<rapidjson::SizeType>(isNumber ? std::stoul(std::string(name)) : 0);
    if (!value->IsArray() || !isNumber || index >= value->Size()) {
      error = "there is no " + std::string(name) + " there";
      return {};
    }
    value = &(*value)[index];
  }
  if (value->IsString())
    return std::string(json::textOf(*value));
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
  value->Accept(writer);
  return std::string(buffer.GetString(), buffer.GetSize());
}

} // namespace inspect
