/// @file
/// The enumerations of one call: time format, presentation and target log.
#ifndef CALLLOGENTRYEVENT_H
#define CALLLOGENTRYEVENT_H

#include <cstdint>

/// Holds the enumerations of a call. Messages carry a member by its name. Any 32-bit value may be
/// stored; a value outside the members is written as the enumeration's default member, and a text
/// that names no member is read as the default member.
struct CallLogEntryEvent {
  /// How to show the time of the call; element TimeFormat.
  enum _TFormat : std::int32_t {
    FORM_24 = 0, ///< 24-hour clock; the default
    FORM_AM = 1,
    FORM_PM = 2
  };

  /// Whether a number or a name may be shown; elements NumberPresentation, NamePresentation,
  /// DeflectNumberPresentation and DeflectNamePresentation.
  enum _PresentationValue : std::int32_t {
    NOT_AVAILABLE = 0, ///< nothing to show; the default
    ALLOWED = 1,
    NOT_ALLOWED = 2
  };

  /// Which log a call belongs to and how it ended; element TargetLog.
  enum _LogTarget : std::int32_t {
    IN_ANSWERED = 0,
    IN_NO_ANSWER = 1,
    IN_BUSY = 2,
    IN_GROUP_MISSED = 3,
    OUT_ANSWERED = 4,
    OUT_NO_ANSWER = 5,
    OUT_BUSY = 6 ///< the default
  };
};

#endif
