// The forms in which captures hold text.
#ifndef INSPECT_UNPACK_H
#define INSPECT_UNPACK_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace inspect {

enum class Capture : std::uint8_t { plain, hex, dump, base64, escaped };
std::string_view nameOf(Capture capture);

/// Unpacks what is pushed. The form is recognised by the front of the text.
class Unpacker {
public:
  /// Appends to `out` what can be unpacked by now.
  void push(std::string_view bytes, std::string& out);
  void finish(std::string& out);

  /// Absent until the form is recognised.
  std::optional<Capture> capture() const { return capture_; }

private:
  void recognise(std::string& out, bool final);
  void unpack(std::string& out, bool final);
  void unpackDump(std::string& out, bool final);
  void unpackDumpLine(std::string_view line, std::string& out);
  void unpackEscaped(std::string& out, bool final);

  std::optional<Capture> capture_;
  std::string held_;                                  ///< not yet unpacked
  std::string row_;                                   ///< bytes of the last line of a dump
  std::uint64_t rowOffset_ = 0;                       ///< its offset
  bool squeezed_ = false;                             ///< a '*' stands for repetitions of it
  std::uint64_t squeezable_ = std::uint64_t{1} << 24; ///< bytes; the offsets may be damaged
};

} // namespace inspect

#endif
