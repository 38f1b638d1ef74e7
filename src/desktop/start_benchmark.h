#pragma once

#include <filesystem>

namespace tarvane::desktop {

// Starts the program on `folder` as a worker would who presses OK on the splash at once, and ends it after
// the main window's first paint. Prints "first paint MS ms, peak memory KIB KiB", the time since the process
// began. Gives the exit code.
int BenchmarkStart(const std::filesystem::path& folder);

}  // namespace tarvane::desktop
