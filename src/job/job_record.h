#pragma once

#include <array>
#include <cstddef>
#include <string_view>

// The columns of a job that come in families. The job itself is a row of TblBrindel; its other columns go by
// their names.
namespace tarvane::job {

inline constexpr std::size_t kRoomCount = 12;

struct RoomColumns {
  std::string_view items;    // memo, the room's item lines (room_text.h)
  std::string_view summary;  // memo, compiled from the items' EstPageInfo
  std::string_view total;    // text, two decimals
};

// Room n is entry n-1.
inline constexpr std::array<RoomColumns, kRoomCount> kRoomColumns = {{
    {"1T(0)", "Text10", "Text11"},
    {"1T(1)", "Text12", "Text13"},
    {"1T(2)", "Text14", "Text15"},
    {"1T(3)", "Text16", "Text17"},
    {"1T(4)", "Text18", "Text19"},
    {"1T(5)", "Text20", "Text21"},
    {"1T(6)", "Text22", "Text23"},
    {"1T(7)", "Text24", "Text25"},
    {"1T(8)", "Text26", "Text27"},
    {"1T(9)", "Text28", "Text29"},
    {"1T(10)", "Text30", "Text31"},
    {"1T(11)", "Text32", "Text33"},
}};

// The flags of the check list. Check2 isn't one of them: it marks a lost job.
inline constexpr std::size_t kCheckListCount = 12;
inline constexpr std::array<std::string_view, kCheckListCount> kCheckListColumns = {
    "Check1", "YesNo2", "Check3", "Check4",  "Check5",  "Check6",
    "Check7", "Check8", "Check9", "Check10", "Check11", "Check12"};

// Percentages of a new job where the settings have none.
inline constexpr std::string_view kDefaultDiscountPercent = "0";
inline constexpr std::string_view kDefaultDepositPercent = "20";

}  // namespace tarvane::job
