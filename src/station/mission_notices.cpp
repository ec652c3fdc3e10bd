// The one-line notices of the mission boards and the guilds' doors.
#include "station/station_procedures.h"
#include "station/station_lines.h"

namespace lf {

namespace {
void Notice(std::string_view text) { DrawFadeText(170, 300, text, 1, kPlainRow); }
}  // namespace

void a_DrawMissionUnAvail() { Notice("YOU CANNOT SELECT MORE THAN TWO MISSIONS AT A SAME TIME!"); }
void a_DrawMissionUnAvail2() { Notice("YOU MUST BE A MEMBER OF THIS GUILD!"); }
void a_DrawMissionUnAvail3() { Notice("YOU DO NOT HAVE ENOUGHT ROOM ON YOUR SHIP!"); }
void a_DrawMissionUnAvail4() { Notice("WE NEED A MORE EXPERIENCED CAPTAIN FOR THIS MISSION!"); }
void a_DrawMissionUnAvail5() { Notice("WE ARE LOOKING FOR MORE EXPERIENCED CAPTAINS FOR OUR CAUSE!"); }

}  // namespace lf
