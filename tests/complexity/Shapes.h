// Hostile inputs: texts and records of any size, each of one shape.
#ifndef TESTS_COMPLEXITY_SHAPES_H
#define TESTS_COMPLEXITY_SHAPES_H

#include <cstddef>
#include <string>
#include <vector>

#include "operations/Operations.h"

namespace shapes {

/// A text that repeats `unit` between two texts, up to a size.
struct Shape {
  std::string name;
  std::string front;
  std::string unit;
  std::string end;
};

std::vector<Shape> const& all();

/// The shape's text of about `size` bytes, and records of a similar size.
operations::Input inputOf(Shape const& shape, std::size_t size);

} // namespace shapes

#endif
