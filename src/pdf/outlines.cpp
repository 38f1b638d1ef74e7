#include "pdf/outlines.h"

#include <algorithm>

namespace tarvane::pdf {

Outline LinkOutline(const std::vector<int>& levels) {
  Outline outline;
  outline.nodes.resize(levels.size());
  std::vector<int> open;  // the newest bookmark of each level down to the one before
  for (int index = 0; index < static_cast<int>(levels.size()); ++index) {
    const auto level = std::clamp<size_t>(static_cast<size_t>(std::max(levels[index], 0)), 0, open.size());
    OutlineNode& node = outline.nodes[index];
    node.parent = level == 0 ? -1 : open[level - 1];
    node.previous = level < open.size() ? open[level] : -1;
    int& first = node.parent < 0 ? outline.first : outline.nodes[node.parent].first;
    int& last = node.parent < 0 ? outline.last : outline.nodes[node.parent].last;
    if (node.previous >= 0) outline.nodes[node.previous].next = index;
    if (first < 0) first = index;
    last = index;
    ++(node.parent < 0 ? outline.children : outline.nodes[node.parent].children);
    open.resize(level);
    open.push_back(index);
  }
  return outline;
}

}  // namespace tarvane::pdf
