#pragma once

#include <unistd.h>

#include <cstdlib>

namespace tarvane {

// Takes an administrator's rights away for as long as it lives.
class OrdinaryUser {
 public:
  OrdinaryUser() : was_root_(::geteuid() == 0) { Become(kNobody); }
  ~OrdinaryUser() { Become(0); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;

  void Become(uid_t user) const {
    if (was_root_ && ::setresuid(user, user, 0) != 0) std::abort();
  }

  bool was_root_;
};

}  // namespace tarvane
