#pragma once

// The kinds of calls that the preloaded library counts and fails.
namespace tarvane::soak {

enum class CallKind : int { kOpen, kRead, kWrite, kSync, kTruncate, kRename, kUnlink };
inline constexpr int kCallKinds = 7;
inline constexpr const char* kCallNames[kCallKinds] = {"open",     "read",   "write", "sync",
                                                       "truncate", "rename", "unlink"};

}  // namespace tarvane::soak
