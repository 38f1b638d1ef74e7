#include "peers/peer.h"

std::vector<Peer>& Peers() {
  static std::vector<Peer> peers;
  return peers;
}

bool AddPeer(Peer peer) {
  Peers().push_back(std::move(peer));
  return true;
}
