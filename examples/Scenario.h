// The round trip of the call logs between a client and the service.
#ifndef EXAMPLES_SCENARIO_H
#define EXAMPLES_SCENARIO_H

#include <string>

#include "Report.h"

/// Plays every step with the four sample logs of a folder, and checks each.
/// Throws FileError when a sample cannot be read.
void playScenario(std::string const& sampleFolder, Report& report);

#endif
