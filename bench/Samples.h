// What is decoded and encoded: one sample per kind and size, made once, outside every timing.
#ifndef BENCH_SAMPLES_H
#define BENCH_SAMPLES_H

#include <cstddef>
#include <map>
#include <string>

#include "Documents.h"
#include "Kinds.h"
#include "Logs.h"

namespace bench {

template <class Kind>
struct Sample {
  typename Kind::Log log; // what is encoded
  std::string message;    // the list response that it is encoded to
  typename Kind::Log
      decoded; // what the oracle decodes from the message: the log without what reading drops
  std::string document; // the same contents as well-formed XML, for the XML parsers
};

template <class Kind>
Sample<Kind> makeSample(std::size_t entries) {
  Sample<Kind> sample;
  sample.log = makeLog<Kind>(entries);
  sample.message = Kind::oracleEncode(sample.log, 7);
  Kind::oracleDecode(sample.message, sample.decoded);
  sample.document = makeDocument<Kind>(sample.log);
  return sample;
}

template <class Kind>
Sample<Kind> const& sampleOf(std::size_t entries) {
  static std::map<std::size_t, Sample<Kind>> samples;
  auto const found = samples.find(entries);
  if (found != samples.end())
    return found->second;
  return samples.emplace(entries, makeSample<Kind>(entries)).first->second;
}

} // namespace bench

#endif
