#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tarvane::soak {

// A program to be run, its output caught.
struct Process {
  std::vector<std::string> command;                // [0]: the program's file
  std::map<std::string, std::string> environment;  // beside what this process has
  bool bare = false;                               // nothing but `environment`
  std::filesystem::path folder;                    // to run in; empty: this process's
  mode_t mask = 022;
  bool as_nobody = false;  // where this process is root's
  bool closed_input = false;
  std::chrono::microseconds kill_after{0};  // 0: never
};

struct Ended {
  int status = -1;  // -1: by a signal
  int signal = 0;
  bool too_long = false;  // it ran for more than kMostTime and was ended
  std::chrono::microseconds took{0};
  std::string out;
  std::string err;

  // What is wrong with the way that it ended; "" for status 0, 1 or 2. `killed`: SIGKILL is right, too.
  std::string Wrong(bool killed = false) const;
};

inline constexpr std::chrono::seconds kMostTime{10};

// `scratch`: a folder for the caught output.
Ended Run(const Process& process, const std::filesystem::path& scratch);

std::string ReadAll(const std::filesystem::path& file);  // "(missing)" where there is none
void WriteAll(const std::filesystem::path& file, std::string_view content);

}  // namespace tarvane::soak
