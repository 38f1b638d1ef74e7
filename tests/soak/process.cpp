#include "soak/process.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <iterator>
#include <thread>

namespace tarvane::soak {
namespace {

using Clock = std::chrono::steady_clock;

constexpr uid_t kNobody = 65534;
constexpr rlim_t kMostBytes = 500'000'000;  // of a file: a program that prints for ever ends
constexpr int kNoStart = 97;
constexpr int kSanitizer = 99;

void Redirect(const std::filesystem::path& file, int handle) {
  ::dup2(::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666), handle);
}

[[noreturn]] void Become(const Process& process, const std::filesystem::path& scratch) {
  Redirect(scratch / "out", 1);
  Redirect(scratch / "err", 2);
  ::close(0);
  if (!process.closed_input) ::open("/dev/null", O_RDONLY);
  const rlimit limit{kMostBytes, kMostBytes};
  ::setrlimit(RLIMIT_FSIZE, &limit);
  const int program = ::open(process.command[0].c_str(), O_RDONLY | O_CLOEXEC);
  if (!process.folder.empty() && ::chdir(process.folder.c_str()) != 0) ::_exit(kNoStart);
  ::umask(process.mask);
  if (process.as_nobody && ::geteuid() == 0 &&
      (::setgroups(0, nullptr) != 0 || ::setgid(kNobody) != 0 || ::setuid(kNobody) != 0)) {
    ::_exit(kNoStart);
  }
  if (process.bare) ::clearenv();
  ::setenv("ASAN_OPTIONS", "exitcode=99:verify_asan_link_order=0", 1);
  for (const auto& [name, value] : process.environment) ::setenv(name.c_str(), value.c_str(), 1);
  std::vector<char*> words;
  for (const std::string& word : process.command) words.push_back(const_cast<char*>(word.c_str()));
  words.push_back(nullptr);
  ::fexecve(program, words.data(), environ);
  ::_exit(kNoStart);
}

// True where the child has ended by `until`. Looks often at first, as most runs take milliseconds.
bool WaitUntil(pid_t child, Clock::time_point until, int& status) {
  auto pause = std::chrono::microseconds(500);
  while (::waitpid(child, &status, WNOHANG) == 0) {
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(until - Clock::now());
    if (left.count() <= 0) return false;
    std::this_thread::sleep_for(std::min(left, pause));
    pause = std::min<std::chrono::microseconds>(pause * 2, std::chrono::milliseconds(20));
  }
  return true;
}

}  // namespace

std::string Ended::Wrong(bool killed) const {
  if (too_long) return fmt::format("it ran for more than {} s", kMostTime.count());
  if (signal != 0 && !(killed && signal == SIGKILL))
    return fmt::format("ended by signal {}: {}", signal, err);
  if (status == kNoStart || status == kSanitizer || status > 2)
    return fmt::format("status {}: {}", status, err);
  for (const char* sign : {"terminate called", "basic_filebuf", "std::", "runtime error"}) {
    if ((out + err).find(sign) != std::string::npos) return fmt::format("it tells \"{}\": {}", sign, err);
  }
  return "";
}

Ended Run(const Process& process, const std::filesystem::path& scratch) {
  const auto start = Clock::now();
  const pid_t child = ::fork();
  if (child == 0) Become(process, scratch);
  Ended ended;
  int status = 0;
  const bool timed = process.kill_after.count() > 0;
  if (!WaitUntil(child, start + (timed ? process.kill_after : std::chrono::microseconds(kMostTime)),
                 status)) {
    ended.too_long = !timed;
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
  }
  ended.took = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
  if (WIFEXITED(status)) ended.status = WEXITSTATUS(status);
  if (WIFSIGNALED(status)) ended.signal = WTERMSIG(status);
  ended.out = ReadAll(scratch / "out");
  ended.err = ReadAll(scratch / "err");
  return ended;
}

std::string ReadAll(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream || std::filesystem::is_directory(file)) return "(missing)";
  return {std::istreambuf_iterator<char>(stream), {}};
}

void WriteAll(const std::filesystem::path& file, std::string_view content) {
  std::ofstream(file, std::ios::binary) << content;
}

}  // namespace tarvane::soak
