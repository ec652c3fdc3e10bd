// What each script file needs: the writers of a node's text and replies, and
// the rows that say where each reply leads and what a click in a node does.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <span>

#include "events/events_state.h"
#include "shell/game_state.h"

namespace lf {

// Writes text lines 1.. of a node; a nullptr line keeps what it holds.
void Text(StoryEvent& e, int node, std::initializer_list<const char*> lines);
// Writes reply lines 1.. of a node and its marks, then a 0 behind the marks.
// Without marks each line is one reply: 1, 2, .. c + 1.
void Replies(StoryEvent& e, int node, std::initializer_list<const char*> lines,
             std::initializer_list<std::int16_t> marks = {});

// Where a reply leads.
enum class Go : std::uint8_t {
  None,           // no reply
  Node,           // node a
  End,            // the end of the event
  GameOver,       // the loss of the game
  Towed,          // the tow to the nearest station
  Fight,          // a fight with a ship of set a (FightSet)
  SkillAtLeast,   // Skill of the person at post p is s or more: node a, else node b
  SkillAbove,     // Skill above s: a, else b
  RndBelow,       // Rnd < x: a, else b
  RndAtMost,      // Rnd <= x: a, else b
  RndAbove,       // Rnd > x: a, else b
  LanderLaunch,   // the launch of the lander: landing, trouble, gas giant or station
  LanderTrouble,  // Rnd > 0.9 and a navigator of Skill above 2: a; else b, and lander and navigator are lost
};

struct Next {
  Go go = Go::None;
  std::int16_t a = 0, b = 0;
  std::int16_t post = 0, skill = 0;
  double chance = 0;
};

// What a click in a node does before its reply leads on.
enum class Do : std::uint8_t {
  None,
  AddCash,           // Cash + amount
  PayCash,           // Cash - amount, as far as Cash goes
  HalveHull,         // HullPoints / 2
  ScaleHealth,       // FittedHealth x amount in every slot of group arg
  EmptyPost,         // CrewPost[arg].Person = 0
  EmptyGroup,        // every slot of group arg loses its component
  DropCargoAndCash,  // Cargo 1..14 and Cash to 0
  HeroJoins,         // RescuedPerson joins, with face hero_<arg>
  MissionDone,       // CheckMission(6)
  LoseLander,        // HasLander False
  HalveHealth,       // CrewPost[arg].Health / 2
};

struct Effect {
  Do what = Do::None;
  double amount = 0;
  std::int16_t arg = 0;
};

struct NodeRule {
  std::int16_t node = 0;
  std::array<Next, 4> reply{};
  std::array<Effect, 2> effect{};
};

// The ship classes a fight of an event draws its opponent from.
inline constexpr std::array<std::int16_t, 3> kPirateClasses{5, 8, 19};
inline constexpr std::array<std::int16_t, 4> kSmugglerClasses{2, 10, 15, 17};

// The words of the rows, as the scripts write them.
namespace rule {
constexpr Next To(int node) { return {Go::Node, static_cast<std::int16_t>(node)}; }
constexpr Next End() { return {Go::End}; }
constexpr Next GameOver() { return {Go::GameOver}; }
constexpr Next Towed() { return {Go::Towed}; }
constexpr Next FightPirates() { return {Go::Fight, 1}; }
constexpr Next FightSmugglers() { return {Go::Fight, 2}; }
constexpr Next SkillAtLeast(int post, int skill, int pass, int fail) {
  return {Go::SkillAtLeast, static_cast<std::int16_t>(pass), static_cast<std::int16_t>(fail),
          static_cast<std::int16_t>(post), static_cast<std::int16_t>(skill)};
}
constexpr Next SkillAbove(int post, int skill, int pass, int fail) {
  Next n = SkillAtLeast(post, skill, pass, fail);
  n.go = Go::SkillAbove;
  return n;
}
constexpr Next Chance(Go go, double x, int pass, int fail) {
  return {go, static_cast<std::int16_t>(pass), static_cast<std::int16_t>(fail), 0, 0, x};
}
constexpr Next RndBelow(double x, int pass, int fail) { return Chance(Go::RndBelow, x, pass, fail); }
constexpr Next RndAtMost(double x, int pass, int fail) { return Chance(Go::RndAtMost, x, pass, fail); }
constexpr Next RndAbove(double x, int pass, int fail) { return Chance(Go::RndAbove, x, pass, fail); }
constexpr Next LanderLaunch() { return {Go::LanderLaunch}; }
constexpr Next LanderTrouble(int pass, int fail) {
  return {Go::LanderTrouble, static_cast<std::int16_t>(pass), static_cast<std::int16_t>(fail)};
}

constexpr Effect AddCash(double amount) { return {Do::AddCash, amount}; }
constexpr Effect PayCash(double amount) { return {Do::PayCash, amount}; }
constexpr Effect HalveHull() { return {Do::HalveHull}; }
constexpr Effect ScaleHealth(int group, double factor) {
  return {Do::ScaleHealth, factor, static_cast<std::int16_t>(group)};
}
constexpr Effect EmptyPost(int post) { return {Do::EmptyPost, 0, static_cast<std::int16_t>(post)}; }
constexpr Effect EmptyGroup(int group) { return {Do::EmptyGroup, 0, static_cast<std::int16_t>(group)}; }
constexpr Effect DropCargoAndCash() { return {Do::DropCargoAndCash}; }
constexpr Effect HeroJoins(int face) { return {Do::HeroJoins, 0, static_cast<std::int16_t>(face)}; }
constexpr Effect MissionDone() { return {Do::MissionDone}; }
constexpr Effect LoseLander() { return {Do::LoseLander}; }
constexpr Effect HalveHealth(int post) { return {Do::HalveHealth, 0, static_cast<std::int16_t>(post)}; }
}  // namespace rule

// The eighteen scripts: their text (written anew on each entry) and rows.
void DefineEventTextAndTemplate1();
void DefineEventTextAndTemplate2();
void DefineEventTextAndTemplate3();
void DefineEventTextAndTemplate4();
void DefineEventTextAndTemplate5();
void DefineEventTextAndTemplate6();
void DefineEventTextAndTemplate7();
void DefineEventTextAndTemplate8();
void DefineEventTextAndTemplate9();
void DefineEventTextAndTemplate10();
void DefineEventTextAndTemplate11();
void DefineEventTextAndTemplate12();
void DefineEventTextAndTemplate13();
void DefineEventTextAndTemplate14();
void DefineEventTextAndTemplate15();
void DefineEventTextAndTemplate16();
void DefineEventTextAndTemplate17();
void DefineEventTextAndTemplate18();
std::span<const NodeRule> EventRules1();
std::span<const NodeRule> EventRules2();
std::span<const NodeRule> EventRules3();
std::span<const NodeRule> EventRules4();
std::span<const NodeRule> EventRules5();
std::span<const NodeRule> EventRules6();
std::span<const NodeRule> EventRules7();
std::span<const NodeRule> EventRules8();
std::span<const NodeRule> EventRules9();
std::span<const NodeRule> EventRules10();
std::span<const NodeRule> EventRules11();
std::span<const NodeRule> EventRules12();
std::span<const NodeRule> EventRules13();
std::span<const NodeRule> EventRules14();
std::span<const NodeRule> EventRules15();
std::span<const NodeRule> EventRules16();
std::span<const NodeRule> EventRules17();
std::span<const NodeRule> EventRules18();

// The rows of event e (empty outside 1..18), and the row of one node.
std::span<const NodeRule> EventRules(int e);
const NodeRule* FindNodeRule(int e, int node);

}  // namespace lf
