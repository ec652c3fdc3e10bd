// What lies within reach of the ship for the helm's actions: a body whose
// picture the ship stands over, and debris or a pod closer than 20 units.
#pragma once

namespace lf {

// The first body (1..PlanetCount) whose centre lies closer than its Width;
// 0 when there is none.
int FirstNearBody();

// Debris or pod i (1..50) lies closer than 20 units to the ship.
bool NearDebris(int i);
bool NearPod(int i);

// A post 1..6 drawn at random, up to 100 draws, until one holds a person who
// is not infected; 0 when every draw missed.
int DrawHealthyPost();

}  // namespace lf
