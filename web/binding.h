// Internal. The operations of the page, as WebAssembly exports them.
#ifndef WEB_BINDING_H
#define WEB_BINDING_H

#include <cstddef>

#ifdef __EMSCRIPTEN__
#define WEB_EXPORT __attribute__((used, visibility("default")))
#else
#define WEB_EXPORT
#endif

extern "C" {

/// Where the caller puts so many bytes before journal_push and journal_add.
WEB_EXPORT char* journal_input(std::size_t size);
/// What the last operation below answered.
WEB_EXPORT char const* journal_output();
WEB_EXPORT std::size_t journal_output_size();

/// Starts a capture; the messages of the one before are forgotten.
/// @param redact whether numbers and names are masked
WEB_EXPORT void journal_open(int redact);
/// Takes the next bytes of the capture; answers the messages that are complete by now.
WEB_EXPORT void journal_push();
WEB_EXPORT void journal_finish();
/// Takes one message as it is, found elsewhere before; answers it alone.
WEB_EXPORT void journal_add(std::size_t offset, std::size_t line);

/// The bytes of a message of the capture.
WEB_EXPORT void journal_text(std::size_t index);
/// Its explanation, its records, and where each piece ends up.
/// @param log to which a bare entry belongs that does not tell it; -1 for none
WEB_EXPORT void journal_show(std::size_t index, int log);
WEB_EXPORT void journal_compare(std::size_t left, std::size_t right);

/// The rules, and the names of what becomes of a piece.
WEB_EXPORT void journal_vocabulary();
}

#endif
