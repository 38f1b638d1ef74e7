#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tarvane::setup {

// tarvane-setup with `arguments` (without the program's name): tells on `out` what it did, on `err` what went
// wrong. The exit status: 0; 1 for a fault; 2 for a wrong command line.
int RunSetup(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace tarvane::setup
