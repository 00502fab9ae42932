// The utility library that the message library takes its escaping and integer texts from. The one
// built here stands in for the product's own, which may be linked in its place.
#ifndef CLIENTUTILS_H
#define CLIENTUTILS_H

#include <string>

#include "JournalServiceHelperExport.h"

/// Text helpers shared by the product's programs. All are pure functions of their argument and may
/// be called from any thread.
class JOURNAL_EXPORT ClientUtils {
public:
  ClientUtils() = delete;

  /// Replaces each of the five XML special characters by its predefined entity:
  /// & by &amp;  < by &lt;  > by &gt;  " by &quot;  ' by &apos;
  /// Every other byte, NUL included, is copied as it is.
  /// @param text any bytes
  /// @return the escaped text
  static std::string escapeXMLString(std::string const& text);

  /// Replaces each of the five predefined entities by its character, in one pass from the front:
  /// what a replacement yields is not looked at again, so "&amp;lt;" gives "&lt;". A lone ampersand
  /// and an unknown entity stay as they are.
  /// unescapeXMLString(escapeXMLString(text)) is text for every text.
  /// @param text any bytes
  /// @return the unescaped text
  static std::string unescapeXMLString(std::string const& text);

  /// @param value any int, the smallest included
  /// @return the value in decimal, with a leading "-" when negative, whatever the locale
  static std::string itos(int value);
};

#endif
