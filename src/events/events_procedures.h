// The story event procedures: the draw of an event in flight, the event
// screen and its click, the scripts' table and the survivor who may join.
#pragma once

namespace lf {

// Tries story event n (1..11); raises EventSlot when its conditions hold.
void CheckNextEvent(int n);
// Writes the scripts anew, puts the event at node 1, loads its pictures;
// ends in c_EventLoop (screens.h).
void c_EnterEvent();
// A press while the event screen runs.
void c_CheckEventMouseDown();
// One pass of c_EventLoop, its yield included. c_EventLoop (the machine)
// repeats this while EventActive is set.
void c_EventLoopFrame();

// The screen's parts, in the order of a pass.
void c_DrawBackground();
void c_DrawEventPic();
void c_DrawDescText();
void c_DrawResponces();

// Fills EventScript with the eighteen scripts.
void DefineEventTextAndTemplate();
// Picks RescuedPerson and makes him a medic, scientist or engineer of skill 4..5.
void DefineHero();

// The choice 1..5 of the running node whose reply band holds screen row y,
// or 0 (bands are strict at both ends).
int EventChoiceAt(int y);

}  // namespace lf
