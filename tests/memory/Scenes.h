// Inputs with which every operation that can allocate does allocate: long texts, markup, several
// entries and calls; in order and damaged.
#ifndef TESTS_MEMORY_SCENES_H
#define TESTS_MEMORY_SCENES_H

#include <string>
#include <vector>

#include "operations/Operations.h"

namespace scenes {

struct Scene {
  std::string name;
  int kind; // the kind of log whose decoders read it; NO_KIND for the other operations
  operations::Input input;
};

/// Whether an operation is tried with a scene.
bool fits(operations::Operation const& operation, Scene const& scene);

std::vector<Scene> all();

} // namespace scenes

#endif
