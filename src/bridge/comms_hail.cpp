// The hail panel: the menu rebuilt each frame from the ship's kind, the
// race's relation and what this ship has said already; the answers to a
// click on a line; and breaking communications off.
#include <string>

#include "bridge/bridge_helpers.h"
#include "bridge/bridge_procedures.h"
#include "bridge/comms.h"
#include "bridge/comms_texts.h"
#include "bridge/later_procedures.h"
#include "display/gfx.h"
#include "display/screen.h"
#include "display/text_set.h"
#include "media/media.h"
#include "shell/cursor.h"
#include "shell/game_state.h"
#include "shell/guards.h"
#include "shell/prompts.h"

namespace lf {

namespace {

constexpr int kRowsX = 400;
constexpr int kFirstRowY = 286;
constexpr int kRowPitch = 11;

int RowY(int n) { return kFirstRowY + kRowPitch * n; }

bool InRow(int n) {
  const int y = RowY(n);
  return G.MouseX >= kRowsX - 3 && G.MouseX < 460 && G.MouseY > y - 2 && G.MouseY < y + 9;
}

void DrawCentredSmall(int centre, int y, std::string_view text, int band) {
  DrawSmallText(centre - 3 * CodePointCount(text) - 6, y, text, band);
}

// The menu's row of a kind: 0 scout, 1 trader, 2 patrol or warship, 3 pirate.
int MenuKind(ShipKind kind) {
  switch (kind) {
    case ShipKind::Scout: return 0;
    case ShipKind::Trader: return 1;
    case ShipKind::Military: return 2;
    case ShipKind::Pirate: return 3;
    default: return -1;
  }
}

bool Done(const OtherShipRecord& ship, std::string_view line) {
  if (line == comms::kGreet) return ship.Greeted != 0;
  if (line == comms::kTradeInfo) return ship.TradeInfoGiven != 0;
  if (line == comms::kExchangeInfo) return ship.InfoGiven != 0;
  if (line == comms::kTechnicalAssist) return ship.AssistGiven != 0;
  return false;
}

bool Forced(std::string_view line) {
  return line == comms::kEvade || line == comms::kPayFine || line == comms::kRedeem;
}

// Fills HailLine for the hailed ship; the forced answers lock (2,2).
void BuildMenu() {
  for (std::string& line : G.HailLine) line.clear();
  const int kind = MenuKind(ShipKindOf(G.HailedShip));
  if (kind < 0 || G.HailedShip == 0) return;
  const OtherShipRecord& ship = G.OtherShip[G.HailedShip];
  const int band = MenuBand(HailedRelation());
  int n = 0;
  for (std::string_view line : comms::kHailMenu[kind][band]) {
    if (line.empty()) break;
    if (Done(ship, line)) continue;
    G.HailLine[++n] = std::string(line);
    if (Forced(line)) ButtonState(2, 2) = 2;
  }
}

OtherShipRecord& Hailed() { return G.OtherShip[G.HailedShip]; }

template <std::size_t N>
void Say(const std::array<std::string_view, N>& lines) {
  std::string l[6];
  for (std::size_t k = 0; k < N && k < 6; ++k) l[k] = std::string(lines[k]);
  SetMessage(l[0], l[1], l[2], -1, l[3], l[4], l[5]);
}

void Greet() {
  std::int16_t& relation = HailedRelation();
  const int before = relation;
  AddRelation(relation, 1);
  const ShipKind kind = ShipKindOf(G.HailedShip);
  const int who = kind == ShipKind::Military ? 0 : kind == ShipKind::Pirate ? 1 : 2;
  Say(before >= 65 ? comms::kGreetFriendly[who] : comms::kGreetCool[who]);
  Hailed().Greeted = True;
}

void TradeInfo() {
  std::int16_t& relation = HailedRelation();
  AddRelation(relation, 5);
  ImproveRelation(relation);
  Say(comms::kTradeInfoReply);
  Hailed().TradeInfoGiven = True;
}

void Goods() {
  std::int16_t& relation = HailedRelation();
  AddRelation(relation, 10);
  ImproveRelation(relation);
  Say(comms::kGoodsReply);
  Hailed().WantsTrade = False;
  G.TradeOpen = True;
  RollShipOffer();
}

// Up to four bodies the player did not know become known; the draws stop
// when every body is known.
void RevealBodies() {
  const int bodies = std::min<int>(G.PlanetCount, decltype(G.Planet)::kHi);
  const int n = static_cast<int>(Int(Rnd() * 4)) + 1;
  for (int k = 0; k < n; ++k) {
    int unknown = 0;
    for (int i = 1; i <= bodies; ++i)
      if (G.Planet[i].Known == 0) ++unknown;
    if (unknown == 0) return;
    for (;;) {
      const int i = RandomInt(bodies);
      if (G.Planet[i].Known != 0) continue;
      G.Planet[i].Known = True;
      break;
    }
  }
}

void ExchangeInfo() {
  Say(comms::kExchangeInfoReply);
  ImproveRelation(HailedRelation());
  RevealBodies();
  Hailed().InfoGiven = True;
}

void TechnicalAssist() {
  int slot = 0;
  for (int i = 1; i <= decltype(G.UpgradeJob)::kHi && slot == 0; ++i)
    if (G.UpgradeJob[i].Active == True) slot = i;
  if (slot == 0) {
    Say(comms::kAssistNoResearch);
    return;
  }
  UpgradeJobRecord& job = G.UpgradeJob[slot];
  const double cost = Int((100 - job.Progress) * 3);
  if (G.Cash >= cost) {
    job.Progress += (100 - job.Progress) / 2;
    G.Cash -= cost;
    const std::string taken =
        std::string(comms::kAssistDone[2]) + IntText(cost) + std::string(comms::kAssistDone[3]);
    SetMessage(std::string(comms::kAssistDone[0]), std::string(comms::kAssistDone[1]), taken);
    Hailed().AssistGiven = True;
  } else {
    Say(comms::kAssistNoCredits);
  }
}

void Threat() {
  std::int16_t& relation = HailedRelation();
  AddRelation(relation, -5);
  const auto& ask = comms::kThreatAsk;
  if (Rnd() < 0.5) {
    LessATenth(relation);
    // The pod goes into one of the pods the sector draws (rows 1..50).
    CargoPodRecord& pod = G.CargoPod[static_cast<int>(Int(Rnd() * 50)) + 1];
    pod.X = Hailed().X;
    pod.Y = Hailed().Y;
    CloseHailLink();
    const auto& second = comms::kThreatYield;
    Say(std::array<std::string_view, 6>{ask[0], ask[1], ask[2], second[0], second[1], second[2]});
  } else {
    OtherShipRecord& ship = Hailed();
    ship.X = Int(Rnd() * 4800 + 100);
    ship.Y = Int(Rnd() * 4800 + 100);
    G.HailedShip = 0;
    CloseHailLink();
    const auto& second = comms::kThreatFlee;
    Say(std::array<std::string_view, 6>{ask[0], ask[1], ask[2], second[0], second[1], second[2]});
  }
}

void Evade() {
  Say(comms::kEvadeReply);
  G.HailedShip = 0;
  CloseHailLink();
}

void OfferAssistance() {
  AddRelation(HailedRelation(), 10);
  G.StatusSlot[DockedSlot].Active = False;
  G.StatusSlot[EventSlot].Active = True;
  G.StatusSlot[EventSlot].Value = 18;
}

// PAY FINE (0) and REDEEM (1): the fine is not tested against the cash.
void PayFine(int which) {
  std::int16_t& relation = HailedRelation();
  const int fine = (35 - relation) * 3;
  const comms::FineWords& words = comms::kFine[static_cast<std::size_t>(which)];
  SetMessage("", std::string(words.ask), "", -1, "_",
             std::string(words.before) + std::to_string(fine) + std::string(words.after), "");
  G.Cash -= fine;
  relation = 36;
  ButtonState(2, 2) = 0;
}

void CloseHail() {
  Skip([] { Hailed().Greeted = False; });
  CloseHailLink();
  PlayTrack(4);
}

void RunHailLine(const std::string& line) {
  if (line == comms::kGreet) Greet();
  else if (line == comms::kTradeInfo) TradeInfo();
  else if (line == comms::kBuyGoods || line == comms::kTradeGoods) Goods();
  else if (line == comms::kExchangeInfo) ExchangeInfo();
  else if (line == comms::kTechnicalAssist) TechnicalAssist();
  else if (line == comms::kThreat) Threat();
  else if (line == comms::kEvade) Evade();
  else if (line == comms::kOfferAssistance) OfferAssistance();
  else if (line == comms::kPayFine) PayFine(0);
  else if (line == comms::kRedeem) PayFine(1);
  else if (line == comms::kCloseHail) CloseHail();
}

}  // namespace

void DrawHailMessages() {
  if (G.TradeOpen == True) {
    DrawTradeList();
    return;
  }
  Skip([] {
    SetSrc(0, 0, 130, 130);
    BltFast(380, 277, GFX.PanelPicture[2], false);
  });
  Skip(BuildMenu);
  ReadCursor();
  for (int n = 1; n <= decltype(G.HailLine)::kHi; ++n) {
    const std::string& line = G.HailLine[n];
    if (line.empty()) break;
    DrawSmallText(kRowsX - 6, RowY(n), line, InRow(n) ? 6 : 0);
  }
  Skip([] {
    const int relation = HailedRelation();
    DrawCentredSmall(440, 370, comms::kYourRelation, 0);
    const int band = relation < 35 ? 12 : relation <= 65 ? 18 : 0;
    DrawCentredSmall(440, 382, HailRelationWord(relation), band);
  });
}

void CheckHailSel() {
  ReadCursor();
  for (int n = 1; n <= 10; ++n) {
    if (G.HailLine[n].empty() || G.TradeOpen != 0) break;
    if (!InRow(n)) continue;
    PlaySoundFx(4, 1);
    const std::string line = G.HailLine[n];
    Skip([&] { RunHailLine(line); });
  }
  G.PromptFace = 2;
}

void Butt_2_2() {
  if (ButtonState(2, 2) != 0) return;
  CloseHailLink();
  Skip([] { Hailed().Greeted = False; });
  PlaySoundFx(7, 1);
  for (std::string& line : G.PromptLine) line.clear();
  G.MessagePending = False;
  G.QuestionPending = False;
  G.PromptFace = 0;
  G.TradeOpen = False;
  PlayTrack(4);
}

}  // namespace lf
