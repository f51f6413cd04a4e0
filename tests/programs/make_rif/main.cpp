#include <cstdlib>
#include <iostream>

#include "programs/sample_rif.hpp"

/// make_rif LAYERS DIAMETERS: a sample interface file with monopile curves on standard output, for the
/// browser test.
int main(int count, char** arguments) {
  if (count != 3) return 2;
  sample::shape s;
  s.layers = std::atoi(arguments[1]);
  s.diameters = std::atoi(arguments[2]);
  s.monopile = true;
  s.label = "Sample & <profile> of \"tests\"";
  std::cout << sample::rif(s);
  return std::cout.flush() ? 0 : 1;
}
