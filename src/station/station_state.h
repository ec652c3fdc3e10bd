// The station's share of the Game record: money, reputation, the fleet
// office's holdings, the loan and the guilds' special equipment.
#pragma once

#include <cstdint>

#include "shell/numeric.h"
#include "shell/table.h"

namespace lf {

struct StationState {
  double Cash = 0;
  double Reputation = 0;
  Table<Flag, 10> TranslatorOwned{};
  Flag StarLaneKnown = False;

  // The fleet office: star charts, the star lane's position, the loan.
  Flag ChartBought = False;
  std::int32_t StarLaneX = 0, StarLaneY = 0;
  Flag LoanActive = False;
  std::int16_t LoanMonthsLeft = 0;
  double LoanDue = 0;
  // The loan has been counted for this month.
  Flag LoanMonthMarked = False;
  // The day of the month of the last news change.
  std::int16_t NewsDay = 0;

  // Special equipment, one flag an item.
  Flag BlackDecoder = False, SecretCargo = False, CountermeasureRack = False;
  Flag ComputerVirus = False, ExtraCargoContainer = False, VirusProtection = False;
  Flag AutoRepairUnit = False, ElectronicCM = False, ElectronicCCM = False;
  Flag RapierMissile = False, DragonIonBeam = False, ShrikeMissile = False;
  Flag TargetingComputer = False;
};

template <class V>
void VisitFields(V& v, StationState& s) {
  v("Cash", s.Cash);
  v("Reputation", s.Reputation);
  v("TranslatorOwned", s.TranslatorOwned);
  v("StarLaneKnown", s.StarLaneKnown);
  v("ChartBought", s.ChartBought);
  v("StarLaneX", s.StarLaneX); v("StarLaneY", s.StarLaneY);
  v("LoanActive", s.LoanActive);
  v("LoanMonthsLeft", s.LoanMonthsLeft);
  v("LoanDue", s.LoanDue);
  v("LoanMonthMarked", s.LoanMonthMarked);
  v("NewsDay", s.NewsDay);
  v("BlackDecoder", s.BlackDecoder); v("SecretCargo", s.SecretCargo);
  v("CountermeasureRack", s.CountermeasureRack); v("ComputerVirus", s.ComputerVirus);
  v("ExtraCargoContainer", s.ExtraCargoContainer); v("VirusProtection", s.VirusProtection);
  v("AutoRepairUnit", s.AutoRepairUnit); v("ElectronicCM", s.ElectronicCM);
  v("ElectronicCCM", s.ElectronicCCM); v("RapierMissile", s.RapierMissile);
  v("DragonIonBeam", s.DragonIonBeam); v("ShrikeMissile", s.ShrikeMissile);
  v("TargetingComputer", s.TargetingComputer);
}

}  // namespace lf
