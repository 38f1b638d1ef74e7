#include <iostream>

#include "setup/command_line.h"

int main(int argc, char** argv) {
  return tarvane::setup::RunSetup({argv + 1, argv + argc}, std::cout, std::cerr);
}
