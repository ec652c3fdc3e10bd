// A press in a guild hall.
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/prompts.h"
#include "station/data/office_data.h"
#include "station/guilds.h"
#include "station/office_layout.h"
#include "station/station_common.h"
#include "station/station_procedures.h"

namespace lf {

namespace {

constexpr int kFee = 5000;

bool EquipmentOpen() { return G.ServicePage == 2 || (G.ServicePage >= 301 && G.ServicePage <= 349); }

const data::GuildItem* ItemOnLine(int guild, int line) {
  for (const data::GuildItem& item : data::kGuildItems)
    if (item.Guild == guild && item.Line == line) return &item;
  return nullptr;
}

Flag& Owned(const data::GuildItem& item) { return static_cast<FleetState&>(G).*item.Owned; }

// The board of each guild's missions.
int Board(int guild) { return guild + 1; }

// Steps 3 and 5 of a press: the left list, then the crew column. True when
// the press was taken.
bool CheckLists(int guild, int x, int y) {
  const bool member = G.GuildMember[guild] != 0;
  if (OnListLine(x, y, 1) && G.ServicePage != 1 && !member) {
    if (G.Reputation >= data::kGuilds[static_cast<std::size_t>(guild - 1)].ReputationNeeded) {
      PlaySoundFx(4, 1);
      G.ServicePage = 1;
    } else {
      PlaySoundFx(8, 1);
      G.ServicePage = 204;
    }
    a_ClearTermScreen();
    return true;
  }
  if (OnListLine(x, y, 2) && G.ServicePage != 2 && member) {
    G.ServicePage = 2;
    PlaySoundFx(4, 1);
    a_ClearTermScreen();
    return true;
  }
  for (int line = 2; line <= 12; ++line) {
    if (!OnListLine(x, y, line)) continue;
    const bool missionLine = line >= 3 && MissionOnBoardLine(Board(guild), line - 2) != 0;
    if (!member && (line == 2 || missionLine)) {
      PlaySoundFx(19, 1);
      G.ServicePage = 201;
      a_ClearTermScreen();
      return true;
    }
    if (member && missionLine && G.ServicePage != 97 + line) {
      PlaySoundFx(4, 1);
      G.ServicePage = static_cast<std::int16_t>(97 + line);
      a_ClearTermScreen();
      return true;
    }
  }
  return false;
}

void Confirm(int guild) {
  if (G.ServicePage == 1 && G.Cash >= kFee) {
    if (guild != 2) PlaySoundFx(4, 1);
    G.Cash -= kFee;
    a_ClearTermScreen();
    G.GuildMember[guild] = True;
    G.ServicePage = 0;
  }
  // The fee is the measure of every refusal here, whatever the page shows.
  if (G.Cash < kFee) PlaySoundFx(13, 5);
  if (G.ServicePage >= 100 && G.ServicePage <= 199) {
    PlaySoundFx(4, 1);
    a_MissionSelection(Board(guild));
    a_ClearTermScreen();
  }
  if (G.ServicePage >= 301 && G.ServicePage <= 349) {
    const data::GuildItem* item = ItemOnLine(guild, G.ServicePage - 300);
    if (item == nullptr) return;
    if (G.Cash >= item->Price && Owned(*item) == 0) {
      G.Cash -= item->Price;
      Owned(*item) = True;
      G.ServicePage = 2;
      if (guild != 1) PlaySoundFx(4, 1);
      if (item->Owned == &FleetState::ExtraCargoContainer) Assign(G.FreeCargo, G.FreeCargo + 1000.0);
    } else if (G.Cash < item->Price) {
      const bool six = item->Owned == &FleetState::CountermeasureRack || item->Owned == &FleetState::RapierMissile;
      PlaySoundFx(13, six ? 6 : 5);
    }
  }
}

}  // namespace

void CheckGuildMouseDown(int guild) {
  ReadCursor();
  const int x = G.MouseX, y = G.MouseY;

  if (OnExit(x, y)) {
    PlaySoundFx(2, 1);
    G.ServicePage = 0;
    ReturnToTerminal(true);
    return;
  }

  if (EquipmentOpen()) {
    for (int n = 1; n <= 5; ++n) {
      const data::GuildItem* item = ItemOnLine(guild, n);
      if (item == nullptr || !OnChoice(x, y, n) || Owned(*item) != 0) continue;
      G.ServicePage = static_cast<std::int16_t>(300 + n);
      // The mercenaries' fifth item is chosen in silence.
      if (!(guild == 3 && n == 5)) PlaySoundFx(4, 1);
    }
  }

  if (CheckLists(guild, x, y)) return;

  if (OnConfirm(x, y)) {
    Confirm(guild);
    return;
  }

  for (int post = 1; post <= 6; ++post) {
    if (G.CrewPost[post].Person == 0 || !OnCrewLine(x, y, post)) continue;
    G.ServicePage = static_cast<std::int16_t>(20 + post);
    PlaySoundFx(4, 1);
    a_ClearTermScreen();
    return;
  }
}

void a_CheckMouseDown6() { CheckGuildMouseDown(1); }
void a_CheckMouseDown7() { CheckGuildMouseDown(2); }
void a_CheckMouseDown8() { CheckGuildMouseDown(3); }

}  // namespace lf
