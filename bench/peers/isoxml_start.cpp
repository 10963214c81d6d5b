// This library at its start: a process that opens the set whose main document FILE is, and ends.

#include <cstdlib>
#include <exception>
#include <iostream>

#include "isoxml_set.h"

int main(int argc, char** argv) {
  try {
    if (argc == 2) bench::open_set(argv[1]);
  } catch (std::exception const& error) {
    std::cerr << argv[0] << ": " << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return argc == 2 ? EXIT_SUCCESS : EXIT_FAILURE;
}
