#pragma once

#include <filesystem>

#include "desktop/shop_check.h"

namespace tarvane::desktop {

enum class StartChoice { kOtherFolder, kTryAgain, kQuit };

// Stands where the finder would, while the shop can't be opened: what is wrong, why, and what helps.
StartChoice ShowStartPage(const ShopTrouble& trouble);

// Asks for a folder; empty where the worker cancels.
std::filesystem::path AskForFolder(const std::filesystem::path& now);

}  // namespace tarvane::desktop
