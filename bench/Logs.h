// Realistic logs: the same on every machine and in every run.
#ifndef BENCH_LOGS_H
#define BENCH_LOGS_H

#include <cstddef>

#include "Kinds.h"

namespace bench {

/// A log of that many entries with 1 to 5 calls each. About 80 % of the entries are named and 20 %
/// have a picture; about 20 % of the calls have a connected party and 5 % were deflected. Some
/// names are not ASCII, some hold "&".
template <class Kind>
typename Kind::Log makeLog(std::size_t entries);

extern template Missed::Log makeLog<Missed>(std::size_t);
extern template Dialled::Log makeLog<Dialled>(std::size_t);
extern template Received::Log makeLog<Received>(std::size_t);
extern template Forwarded::Log makeLog<Forwarded>(std::size_t);

} // namespace bench

#endif
