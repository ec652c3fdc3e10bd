// The fleet office's and the guilds' share of the Game record: the loan,
// the star chart, guild membership and the special equipment the guilds
// sell (each a flag that the bridge and the fight read).
#pragma once

#include <cstdint>

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

struct FleetState {
  // One loan at a time: months until it is due (falls on the first of each
  // month and goes below 0) and the sum to repay.
  Flag LoanActive = False;
  std::int16_t LoanMonthsLeft = 0;
  std::int32_t LoanDue = 0;
  // The loan has been counted for this month.
  Flag LoanMonthMarked = False;
  // A star chart was bought (the science officer lists it).
  Flag ChartBought = False;
  // Guilds 1 exploration, 2 merchant, 3 mercenary.
  Table<Flag, 3> GuildMember{};
  // The guilds' special equipment.
  Flag CountermeasureRack = False;
  Flag ComputerVirus = False;
  Flag ExtraCargoContainer = False;
  Flag VirusProtection = False;
  Flag AutoRepairUnit = False;
  Flag ElectronicCM = False;
  Flag ElectronicCCM = False;
  Flag RapierMissile = False;
  Flag DragonIonBeam = False;
  Flag TargetingComputer = False;
};

template <class V>
void VisitFields(V& v, FleetState& s) {
  v("LoanActive", s.LoanActive);
  v("LoanMonthsLeft", s.LoanMonthsLeft);
  v("LoanDue", s.LoanDue);
  v("LoanMonthMarked", s.LoanMonthMarked);
  v("ChartBought", s.ChartBought);
  v("GuildMember", s.GuildMember);
  v("CountermeasureRack", s.CountermeasureRack);
  v("ComputerVirus", s.ComputerVirus);
  v("ExtraCargoContainer", s.ExtraCargoContainer);
  v("VirusProtection", s.VirusProtection);
  v("AutoRepairUnit", s.AutoRepairUnit);
  v("ElectronicCM", s.ElectronicCM);
  v("ElectronicCCM", s.ElectronicCCM);
  v("RapierMissile", s.RapierMissile);
  v("DragonIonBeam", s.DragonIonBeam);
  v("TargetingComputer", s.TargetingComputer);
}

}  // namespace lf
