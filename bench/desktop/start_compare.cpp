// start_compare YARDSTICK TARVANE FOLDER [RUNS]
// Starts both programs in turn, and tells the medians of the time from the process's start to its first paint
// and of its peak memory, and their ratios.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

extern char** environ;

namespace {

struct Start {
  double milliseconds = 0;
  double kibibytes = 0;
};

[[noreturn]] void Give(const std::string& why) {
  std::fprintf(stderr, "start_compare: %s\n", why.c_str());
  std::exit(1);
}

std::string ReadLine(int from) {
  std::string line;
  char letter = 0;
  while (read(from, &letter, 1) == 1 && letter != '\n') line += letter;
  return line;
}

// From before the process exists to the line that it writes after its first paint.
Start RunOnce(const std::vector<std::string>& command) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) Give("no pipe");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], 1);
  posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", 1, 0);
  posix_spawn_file_actions_addclose(&actions, ends[0]);
  std::vector<char*> arguments;
  for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  pid_t process = 0;
  const auto begin = std::chrono::steady_clock::now();
  if (posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ) != 0) {
    Give("can't start " + command[0]);
  }
  close(ends[1]);
  const std::string line = ReadLine(ends[0]);
  const auto end = std::chrono::steady_clock::now();
  close(ends[0]);
  posix_spawn_file_actions_destroy(&actions);
  waitpid(process, nullptr, 0);
  const std::size_t memory = line.find("peak memory ");
  if (memory == std::string::npos) Give(command[0] + " told no first paint");
  return {std::chrono::duration<double, std::milli>(end - begin).count(),
          std::stod(line.substr(memory + 12))};
}

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

struct Series {
  std::vector<double> milliseconds;
  std::vector<double> kibibytes;
  void Add(const Start& start) {
    milliseconds.push_back(start.milliseconds);
    kibibytes.push_back(start.kibibytes);
  }
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) Give("usage: start_compare YARDSTICK TARVANE FOLDER [RUNS]");
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  const int runs = argc > 4 ? std::atoi(argv[4]) : 21;
  const std::vector<std::string> yardstick = {argv[1]};
  const std::vector<std::string> tarvane = {argv[2], argv[3], "--benchmark-start"};
  RunOnce(yardstick);  // the first of each fills the caches
  RunOnce(tarvane);
  Series bare;
  Series program;
  for (int run = 0; run < runs; ++run) {
    bare.Add(RunOnce(yardstick));
    program.Add(RunOnce(tarvane));
  }
  const double bare_time = Median(bare.milliseconds);
  const double time = Median(program.milliseconds);
  const double bare_memory = Median(bare.kibibytes);
  const double memory = Median(program.kibibytes);
  std::printf("first paint: bare window %.1f ms, tarvane %.1f ms, ratio %.2f\n", bare_time, time,
              time / bare_time);
  std::printf("peak memory: bare window %.0f KiB, tarvane %.0f KiB, ratio %.2f\n", bare_memory, memory,
              memory / bare_memory);
  return 0;
}
