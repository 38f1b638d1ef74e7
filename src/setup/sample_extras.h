#pragma once

namespace tarvane::app {
class MainScreen;
}

// What goes into a job besides curtains, through the same screens as a worker's.
namespace tarvane::setup {

class QuietHost;
struct SampleSingle;

// Types a single item into the open job.
void EnterSingle(QuietHost& host, app::MainScreen& main, const SampleSingle& single);
// Gives the open job, which is that of `job` from 0, what SampleExtras has for it.
void EnterExtras(QuietHost& host, app::MainScreen& main, int job);

}  // namespace tarvane::setup
