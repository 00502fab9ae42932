// Runs operations on hostile inputs, for valgrind to count or to check.
//
//   journal_complexity OPERATION SHAPE SIZE    one operation once, on one input
//   journal_complexity all SIZE...             every operation on every shape in every size
//   journal_complexity list                    the names of the operations and shapes
//
// Under callgrind with --collect-atstart=no only the operations are counted, not what builds their
// inputs, and each run is dumped separately as "OPERATION SHAPE SIZE".
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <valgrind/callgrind.h>

#include "complexity/Shapes.h"
#include "operations/Operations.h"

namespace {

using operations::Input;
using operations::Operation;
using operations::Outputs;
using shapes::Shape;

void countedRun(Operation const& operation, Input const& input, std::string const& label) {
  Outputs outputs(input);
  CALLGRIND_ZERO_STATS;
  CALLGRIND_TOGGLE_COLLECT;
  operation.run(input, outputs);
  CALLGRIND_TOGGLE_COLLECT;
  CALLGRIND_DUMP_STATS_AT(label.c_str());
}

// Leaves out those whose inputs cannot grow.
std::vector<Operation> growingOperations() {
  std::vector<Operation> growing;
  for (auto const& operation : operations::all())
    if (operation.readsText || operation.writesRecords || operation.readsIds)
      growing.push_back(operation);
  return growing;
}

std::size_t sizeOf(char const* argument) {
  return static_cast<std::size_t>(std::strtoul(argument, nullptr, 10));
}

int runOne(std::string const& operationName, std::string const& shapeName, std::size_t size) {
  for (auto const& operation : operations::all())
    for (auto const& shape : shapes::all())
      if (operation.name == operationName && shape.name == shapeName) {
        auto const label = operationName + " " + shapeName + " " + std::to_string(size);
        countedRun(operation, shapes::inputOf(shape, size), label);
        return 0;
      }
  std::fputs("complexity: no such operation or shape\n", stderr);
  return 2;
}

int runAll(std::vector<std::size_t> const& sizes) {
  auto const operations = growingOperations();
  std::size_t runs = 0;
  for (auto const& shape : shapes::all())
    for (auto const size : sizes) {
      auto const input = shapes::inputOf(shape, size);
      auto const label = " " + shape.name + " " + std::to_string(size);
      for (auto const& operation : operations) {
        countedRun(operation, input, operation.name + label);
        ++runs;
      }
    }
  std::printf("%zu operations, %zu shapes, %zu runs\n", operations.size(), shapes::all().size(),
              runs);
  return 0;
}

int list() {
  for (auto const& operation : operations::all())
    std::printf("operation %s\n", operation.name.c_str());
  for (auto const& shape : shapes::all())
    std::printf("shape %s\n", shape.name.c_str());
  return 0;
}

} // namespace

int main(int count, char** arguments) {
  std::vector<std::string> const words(arguments + 1, arguments + count);
  if (words.size() == 1 && words[0] == "list")
    return list();
  if (words.size() >= 2 && words[0] == "all") {
    std::vector<std::size_t> sizes;
    for (int at = 2; at < count; ++at)
      sizes.push_back(sizeOf(arguments[at]));
    return runAll(sizes);
  }
  if (words.size() == 3)
    return runOne(words[0], words[1], sizeOf(arguments[3]));
  std::fputs("usage: journal_complexity OPERATION SHAPE SIZE | all SIZE... | list\n", stderr);
  return 2;
}
