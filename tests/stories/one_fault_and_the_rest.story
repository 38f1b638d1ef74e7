# sample
# A paid amount that is no number stops the balance, and nothing else: grids fill, a deletion asks, room 2 keeps
# its total.
close
open QuickFinderGrid 10
choose SSTab2 Rooms
choose SSTab1 "Room 2"
show RoomItemGrid[1] Text13 5Text
type 5T(4) "to follow"
expect-said "\"to follow\" is not a number."
press MunAbout
press Command1
expect-screen Form1
expect-said "\"to follow\" is not a number."
show Text13
expect-rows RoomItemGrid 2
select RoomItemGrid 1
answer no
press CmdDeleteFromRoom
expect-said "is not a number"
expect-rows RoomItemGrid 2
show Text13 5Text
press "Save Records"
press CmdSize

# restart
# What was stored is the letters, and the totals as they stood.
close
open QuickFinderGrid 10
show 5T(4) Text13 5Text G-Total
choose SSTab2 Rooms
choose SSTab1 "Room 2"
expect-rows RoomItemGrid 2
