#pragma once

namespace tarvane::curtain_wizard {
class MainCWizard;
}

namespace tarvane::setup {

struct SampleWindow;

// Types the window into a new entry of the curtain wizard, step by step as a worker does, and saves it.
// `track`: the width of this window's track, in the window's unit.
void EnterWindow(curtain_wizard::MainCWizard& wizard, const SampleWindow& window, int track);

}  // namespace tarvane::setup
