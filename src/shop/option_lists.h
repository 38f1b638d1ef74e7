#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "store/data_files.h"

// The lists that the shop may edit: a text file beside the program for each, its lines the entries.
namespace tarvane {

class Screen;

struct OptionList {
  std::string_view option;   // the round option of the lists manager
  std::string_view caption;  // its caption
  std::string_view file;
};

inline constexpr std::array<OptionList, 6> kOptionLists = {{
    {"Option1", "Curtains Style dropdown List on the Curtains Wizard", data_file::kCurtainList},
    {"Option2", "Tie Backs Size List on the Curtain Wizard", data_file::kTieBacksList},
    {"Option3", "Tie Back StyleList on the Curtain Wizard", data_file::kTieBacksStyleList},
    {"Option4", "Trimmings List on the Curtain Wizard", data_file::kTrimmingsList},
    {"Option5", "Edit Check list on Main Dialog Box", data_file::kCheckList},
    {"Option6", "Edit Sales Persons List (Main Dialog Box)", data_file::kSalesPersonsList},
}};

// The entries, whole lines in the order of the file; none where the file is missing. Faults where it is there
// and can't be read.
std::vector<std::string> LoadListFile(const std::filesystem::path& file);

// Replaces the file and shows "List has been saved" under the title "Tarvane Lists". A failure isn't
// reported but by false; the former file stands, also where it is one that can't be read.
bool SaveListFile(Screen& screen, const std::filesystem::path& file, const std::vector<std::string>& entries);

}  // namespace tarvane
