#pragma once

#include <filesystem>

// Page files: bitmaps of a report's pages in the folder for temporary files, "PPview0.bmp" and so on.
namespace tarvane::printing {

// What the environment calls TEMP, else the platform's own.
std::filesystem::path PageFolder();
std::filesystem::path PageFile(const std::filesystem::path& folder, int page);  // from 0

// Removes the page files, whoever wrote them, and nothing else. What can't be removed stays.
void RemovePageFiles(const std::filesystem::path& folder);

// Whether the file is there and is a bitmap of the length that it tells itself.
bool IsPageFile(const std::filesystem::path& file);

}  // namespace tarvane::printing
