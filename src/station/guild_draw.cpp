// The guild halls' screens: the left list, the membership page, the special
// equipment, and the bridge's panel of memberships.
#include "bridge/bridge_helpers.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "station/data/office_data.h"
#include "station/guilds.h"
#include "station/office_layout.h"
#include "station/station_common.h"
#include "station/station_procedures.h"
#include "station/station_lines.h"

namespace lf {

namespace {
const data::GuildInfo& Info(int guild) { return data::kGuilds[static_cast<std::size_t>(guild - 1)]; }
bool EquipmentOpen() { return G.ServicePage == 2 || (G.ServicePage >= 301 && G.ServicePage <= 349); }
}  // namespace

int CurrentGuild() {
  const int page = StationPage();
  return page >= 6 && page <= 8 ? page - 5 : 0;
}

void a_DrawGuildSelection() {
  const int guild = CurrentGuild();
  if (guild == 0) return;
  ReadCursor();
  // A member's first line is left empty.
  if (G.GuildMember[guild] == 0) DrawListLine(1, Info(guild).JoinLine, G.ServicePage == 1);
  DrawListLine(2, "SPECIAL OFFER", EquipmentOpen());
}

void a_DrawGuildMembership() {
  const int guild = CurrentGuild();
  if (guild == 0) return;
  for (int n = 1; n <= 6; ++n) {
    const std::string_view line = Info(guild).Membership[static_cast<std::size_t>(n - 1)];
    if (!line.empty()) DrawPageLine(n, line);
  }
  DrawConfirmLabel("JOIN GUILD?");
  Skip([] {
    SetSrc(0, 0, 80, 100);
    BltFast(58, 270, GFX.CharacterFace[1], false);
  });
}

void DrawGuildEquipment(int guild) {
  if (guild < 1 || guild > 3) return;
  ReadCursor();
  DrawPageLine(1, Info(guild).Welcome);
  for (int n = 2; n <= 6; ++n) DrawPageLine(n, data::kGuildOfferText[static_cast<std::size_t>(n - 2)]);
  bool chosen = false;
  for (const data::GuildItem& item : data::kGuildItems) {
    if (item.Guild != guild) continue;
    const bool owned = static_cast<FleetState&>(G).*item.Owned != 0;
    const bool isChosen = G.ServicePage == 300 + item.Line;
    chosen = chosen || (isChosen && !owned);
    DrawChoice(item.Line, item.Name, owned, isChosen);
  }
  if (chosen) DrawConfirmLabel("PURCHASE EQUIPMENT");
}

void DrawGuildMembership() {
  Skip([] {
    SetSrc(0, 0, 130, 130);
    BltFast(380, 277, GFX.PanelPicture[12], false);
  });
  constexpr std::string_view kNames[3] = {"EXPLORATION", "MERCHANT", "MERCENARY"};
  for (int n = 1; n <= 3; ++n) {
    const int y = 286 + 11 * n;
    DrawSmallText(380, y, kNames[n - 1]);
    const std::string_view word = G.GuildMember[n] != 0 ? "MEMBER" : "NONE";
    DrawSmallText(500 - 6 * CodePointCount(word) - 6, y, word);
  }
}

}  // namespace lf
