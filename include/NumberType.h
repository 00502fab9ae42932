// The type of a telephone number, as the records hold it and the messages spell it.
#ifndef NUMBERTYPE_H
#define NUMBERTYPE_H

#include <cstdint>

/// Holds the enumeration of number types; carried by the elements NumberType,
/// ConnectedNumberType and DeflectNumberType.
struct NumberType {
  /// Each member is spelled in messages by its own name. A value outside the members may be
  /// stored; it is written as NO_ICON. A text that names no member is read as NO_ICON.
  enum NT : std::int32_t {
    NO_ICON = 0, ///< no type known; the default
    PRIVATE = 1,
    BUSINESS1 = 2,
    BUSINESS2 = 3,
    MOBILE = 4
  };
};

#endif
