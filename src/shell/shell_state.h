// The shell's share of the Game record: which screen runs, the status
// slots, the bridge sub-state, game time and the prompt strip.
#pragma once

#include <cstdint>
#include <string>

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

struct StatusRecord {
  Flag Active = False;
  std::int16_t Value = 0;
};
template <class V>
void VisitFields(V& v, StatusRecord& r) {
  v("Active", r.Active);
  v("Value", r.Value);
}

// The three slots that carry the hand-overs between screens.
inline constexpr int DockedSlot = 12;
inline constexpr int DeadSlot = 13;
inline constexpr int EventSlot = 20;

struct ShellState {
  // Screen flags, tested by Form_MouseDown in this order.
  Flag FightActive = False;
  Flag MenuActive = False;
  Flag EventActive = False;
  Flag StationActive = False;
  Flag BridgeActive = False;

  // Game flags.
  Flag NoGameRunning = False;
  Flag LoadAfterStart = False;
  Flag ClickSeen = False;

  // Bridge sub-state and what holds the game.
  std::int16_t OrbitState = 0;
  Flag QuestionPending = False;
  Flag MessagePending = False;
  std::int16_t HailedShip = 0;
  std::int16_t FollowShip = 0;
  std::int16_t FollowMode = 0;
  Flag MouseLook = False;

  Table<StatusRecord, 30> StatusSlot{};

  // Game time and the clocks' work.
  double GameHours = 0;
  double TimeStep = 0;
  double NextEventCountdown = 0;
  std::int16_t NextEventNumber = 0;
  std::int16_t StaticCountdown = 0;
  Flag StaticOn = False;
  std::int16_t StaticY = 0;
  std::int16_t StaticFrame = 0;
  std::int16_t ChartKind = 0;
  std::int32_t MouseX = 0;
  std::int32_t MouseY = 0;

  // The prompt strip, tool tips and the big doors.
  Table<std::string, 6> PromptLine{};
  double PromptFace = 0;
  double PromptAge = 0;
  Table<Table<double, 200>, 20> PromptFade{};
  std::string TooltipText;
  Flag TooltipVisible = False;
  Flag TooltipsOn = False;
  double CursorFrame = 0;
  std::int16_t BigDoorPos = 0;
  std::int16_t BigDoorStep = 0;
  Flag OrbitOfferOpen = False;

  // Frame-counted clocks (60 frames a second): each runs only while enabled,
  // and ticks after every 6th (100 ms) or 60th (1000 ms) frame of its run.
  Flag Timer1Enabled = False;
  Flag Timer2Enabled = False;
  std::int32_t Timer1Frames = 0;
  std::int32_t Timer2Frames = 0;

  // Frames run since the program started (one a yield).
  std::int64_t Frame = 0;

  RandomState Random{};
};

template <class V>
void VisitFields(V& v, ShellState& s) {
  v("FightActive", s.FightActive);
  v("MenuActive", s.MenuActive);
  v("EventActive", s.EventActive);
  v("StationActive", s.StationActive);
  v("BridgeActive", s.BridgeActive);
  v("NoGameRunning", s.NoGameRunning);
  v("LoadAfterStart", s.LoadAfterStart);
  v("ClickSeen", s.ClickSeen);
  v("OrbitState", s.OrbitState);
  v("QuestionPending", s.QuestionPending);
  v("MessagePending", s.MessagePending);
  v("HailedShip", s.HailedShip);
  v("FollowShip", s.FollowShip);
  v("FollowMode", s.FollowMode);
  v("MouseLook", s.MouseLook);
  v("StatusSlot", s.StatusSlot);
  v("GameHours", s.GameHours);
  v("TimeStep", s.TimeStep);
  v("NextEventCountdown", s.NextEventCountdown);
  v("NextEventNumber", s.NextEventNumber);
  v("StaticCountdown", s.StaticCountdown);
  v("StaticOn", s.StaticOn);
  v("StaticY", s.StaticY);
  v("StaticFrame", s.StaticFrame);
  v("ChartKind", s.ChartKind);
  v("MouseX", s.MouseX);
  v("MouseY", s.MouseY);
  v("PromptLine", s.PromptLine);
  v("PromptFace", s.PromptFace);
  v("PromptAge", s.PromptAge);
  v("PromptFade", s.PromptFade);
  v("TooltipText", s.TooltipText);
  v("TooltipVisible", s.TooltipVisible);
  v("TooltipsOn", s.TooltipsOn);
  v("CursorFrame", s.CursorFrame);
  v("BigDoorPos", s.BigDoorPos);
  v("BigDoorStep", s.BigDoorStep);
  v("OrbitOfferOpen", s.OrbitOfferOpen);
  v("Timer1Enabled", s.Timer1Enabled);
  v("Timer2Enabled", s.Timer2Enabled);
  v("Timer1Frames", s.Timer1Frames);
  v("Timer2Frames", s.Timer2Frames);
  v("Frame", s.Frame);
  v("RandomState", s.Random.State);
}

}  // namespace lf
