#pragma once

#include <type_traits>

#include "job/job_screen.h"

namespace tarvane::app {

// A fresh screen of that class over the open job. Screens take the host and the shop; those that work on the
// job take it as well.
template <typename Shown>
Shown MakeScreen(job::JobScreen& job) {
  if constexpr (std::is_constructible_v<Shown, Host&, Shop&, job::JobScreen&>) {
    return Shown(job.host(), job.shop(), job);
  } else if constexpr (std::is_constructible_v<Shown, Host&, Shop&>) {
    return Shown(job.host(), job.shop());
  } else {
    return Shown(job.host());
  }
}

// Shows it on top of the job until it is closed.
template <typename Shown>
void ShowScreen(job::JobScreen& job) {
  Shown screen = MakeScreen<Shown>(job);
  job.ShowModal(screen);
}

}  // namespace tarvane::app
