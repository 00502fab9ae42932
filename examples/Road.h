// The road of the call logs between a client and the service, played with sample logs.
#ifndef EXAMPLES_ROAD_H
#define EXAMPLES_ROAD_H

#include <string>

#include "Report.h"

/// Plays every step with the four sample logs of a folder, comparing each with what it should be.
/// Throws FileError when a sample cannot be read.
void playRoad(std::string const& sampleFolder, Report& report);

#endif
