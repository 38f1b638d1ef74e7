#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// One writer of the comparison. Each puts itself into the list when its file is linked in.
struct Peer {
  std::string_view name;
  // Writes `pages` pages of kLines lines to the file.
  void (*write_pages)(const std::string& path, int pages);
  // Prepares a measurer of a line's width in Helvetica 10; empty where the peer isn't compared in it.
  std::function<std::function<double(const std::string& line)>()> measurer;
};

inline constexpr int kLines = 50;

std::vector<Peer>& Peers();
bool AddPeer(Peer peer);

// Line `line` of a page, the same for every writer.
inline std::string LineText(int page, int line) {
  return "Page " + std::to_string(page) + ", line " + std::to_string(line) +
         ": 2.40 m of fabric at 18.50, track width 180 cm, heading 2.5, drop 228";
}
