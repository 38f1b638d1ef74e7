// Writes one document with the peer that is linked in, and prints the peak memory of the process in kB.
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "peers/peer.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  for (const Peer& peer : Peers()) peer.write_pages(argv[1], std::atoi(argv[2]));
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) std::cout << std::atoi(line.c_str() + 6) << '\n';
  }
  return 0;
}
