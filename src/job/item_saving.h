#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/field.h"

// How the item wizards put an item into a room of the open job, or back into its row there.
namespace tarvane::job {

class JobScreen;

// What follows the line number in a room's grid: six cells.
using ItemCells = std::vector<std::string>;

// The index that a wizard was given, from 0; faults for a text that is no room of the job.
std::size_t RoomOf(const TextField& room_index);

// Each commits the job with the item, its room's text and the totals at once. `after` changes what else goes
// with it, at most the summary that is in view; may be empty. Where something faults, also the making of the
// cells, the job is as it was, so that the worker may try again without a second item.
void AddItem(JobScreen& job, std::size_t room, const std::function<ItemCells()>& cells,
             const std::function<void()>& after = {});
// Faults as well where `row`, the text of a grid's row, isn't in the room any more.
void ReplaceItem(JobScreen& job, std::size_t room, std::string_view row,
                 const std::function<ItemCells()>& cells);

// The summary on the tab that is in view: a new item is told there, whichever room it belongs to.
TextField& ShownSummary(JobScreen& job);

}  // namespace tarvane::job
