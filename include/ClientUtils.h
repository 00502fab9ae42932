/// @file
/// The utility library, which the message library uses for escaping and for decimal numbers. The
/// one built here is a stand-in for the product's own, which can be linked instead.
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
  /// `&` by `&amp;`, `<` by `&lt;`, `>` by `&gt;`, `"` by `&quot;`, `'` by `&apos;`.
  /// Every other byte, NUL included, is copied as it is.
  /// @param text any bytes
  /// @return the escaped text
  static std::string escapeXMLString(std::string const& text);

  /// Replaces each of the five predefined entities by its character, in one pass from the front: a
  /// replacement is not looked at again, so `&amp;lt;` gives `&lt;`. A lone ampersand and an
  /// unknown entity are copied as they are. unescapeXMLString(escapeXMLString(text)) is text for
  /// every text.
  /// @param text any bytes
  /// @return the unescaped text
  static std::string unescapeXMLString(std::string const& text);

  /// @param value any int, the smallest included
  /// @return the value in decimal, with a leading "-" when negative, whatever the locale
  static std::string itos(int value);
};

#endif
