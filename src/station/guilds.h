// The guild halls (station screens 6, 7, 8): one family of screens that
// differ in the guild, 1 exploration, 2 merchant, 3 mercenary.
#pragma once

namespace lf {

// The guild of the screen on show, 0 on any other screen.
int CurrentGuild();
// The hall's press handler for guild 1..3.
void CheckGuildMouseDown(int guild);
// The guild's special equipment, kind 2..4 of a_DrawSpecialEquip.
void DrawGuildEquipment(int guild);

}  // namespace lf
