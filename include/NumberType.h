/// @file
/// The type of a telephone number.
#ifndef NUMBERTYPE_H
#define NUMBERTYPE_H

#include <cstdint>

/// Holds the enumeration of number types; elements NumberType, ConnectedNumberType and
/// DeflectNumberType.
struct NumberType {
  /// Messages carry a member by its name. Any 32-bit value may be stored; a value outside the
  /// members is written as NO_ICON, and a text that names no member is read as NO_ICON.
  enum NT : std::int32_t {
    NO_ICON = 0, ///< the type is not known; the default
    PRIVATE = 1,
    BUSINESS1 = 2,
    BUSINESS2 = 3,
    MOBILE = 4
  };
};

#endif
