#pragma once

#include <vector>

namespace tarvane::pdf {

// How one bookmark hangs together with the others: places in their list, -1 for none. The parent -1 is the
// root.
struct OutlineNode {
  int parent = -1;
  int previous = -1;
  int next = -1;
  int first = -1;
  int last = -1;
  int children = 0;  // those right below it
};

struct Outline {
  std::vector<OutlineNode> nodes;
  int first = -1;  // of the root
  int last = -1;
  int children = 0;
};

// The tree of bookmarks in document order with these levels, 0 the outermost. A level that skips one is taken
// for the one below its parent.
Outline LinkOutline(const std::vector<int>& levels);

}  // namespace tarvane::pdf
