// The arrival chain as the player walks it with the OK button: each check
// that applies stops on its notice, and the welcome opens the services.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "station/station_fixture.h"

namespace lf::test {
namespace {

using ::testing::ElementsAre;

class Arrival : public StationTest {};

TEST_F(Arrival, AnUntroubledShipGoesFromTheArrivalTextStraightToTheWelcome) {
  ArrivalTyping();
  EXPECT_FALSE(PressOk());
  EXPECT_EQ(G.TermPrompt, 0);
  EXPECT_EQ(G.ServiceMenuOpen, True);
  EXPECT_THAT(Lines(), ElementsAre("WELCOME TO KALLISTO STATION!", "YOU ARE HEREBY OBLIGED TO ACT",
                                   "ACCORDING TO STATION LAWS AND ", "REGULATIONS.", "",
                                   "ANY MISBEHAVIOUR WILL BE PUNISHED", "SEVERELY AND PARTICIPANS INPRISONED.", "",
                                   "HAVE A NICE DAY!"));
  EXPECT_EQ(G.Cash, 50000);
  // The text types itself out anew: only letter 0 of each line is lit.
  EXPECT_EQ(G.PromptFade[1][0], 3);
  EXPECT_EQ(G.PromptFade[1][1], 0);
}

TEST_F(Arrival, RelationOf35IsWelcomeAnd34IsTurnedAway) {
  G.RaceRelation[1] = 35;
  ArrivalTyping();
  PressOk();
  EXPECT_EQ(G.TermPrompt, 0);

  G.RaceRelation[1] = 34;
  ArrivalTyping();
  PressOk();
  EXPECT_EQ(G.TermPrompt, 502);
  EXPECT_THAT(Lines(), ElementsAre("ACCORDING TO OUR RECORDS YOU ARE", "NOT WELCOME HERE...", "",
                                   "PLEASE LEAVE THIS STATION IN AN", "ORDERLY FASHION... OR ELSE!"));
  // The OK sends the ship away, and a ship fit to leave leaves.
  EXPECT_TRUE(PressOk());
  EXPECT_EQ(G.StationActive, False);
}

TEST_F(Arrival, AHostileStationServesAShipThatCannotLeave) {
  G.RaceRelation[1] = 10;
  G.CrewPost[1].Person = 0;
  ArrivalTyping();
  PressOk();
  EXPECT_FALSE(PressOk());
  EXPECT_EQ(G.TermPrompt, 507);
  PressOk();
  EXPECT_EQ(G.ServiceMenuOpen, True);
  EXPECT_EQ(G.StationActive, True);
}

TEST_F(Arrival, TheDecoderPassesAboutSevenArrivalsInTen) {
  G.RaceRelation[1] = 0;
  G.BlackDecoder = True;
  int passed = 0;
  for (int i = 0; i < 1000; ++i) {
    G.TermPrompt = 0;
    a_CheckHostility();
    if (G.TermPrompt != 502) ++passed;
  }
  EXPECT_GT(passed, 640);
  EXPECT_LT(passed, 760);
}

TEST_F(Arrival, TheHostilityCheckLooksFiveUnitsCloserIn) {
  G.RaceRelation[1] = 0;
  G.ShipX = 1000 + 57;  // inside the station's 60, outside 55
  a_CheckHostility();
  EXPECT_EQ(G.TermPrompt, 0);  // no station close enough to turn the ship away
  G.ShipX = 1000 + 54;
  a_CheckHostility();
  EXPECT_EQ(G.TermPrompt, 502);
}

TEST_F(Arrival, InfectedCrewAreAskedAndYesTreatsAndBillsThem) {
  G.CrewPost[2].Person = 12;
  G.CrewPost[1].Infected = True;
  G.CrewPost[2].Infected = True;
  G.CrewPost[2].Quarantined = True;
  ArrivalTyping();
  PressOk();
  ASSERT_EQ(G.TermPrompt, 2);
  EXPECT_EQ(Lines().back(), "DO YOU WISH TO PROCEED?");
  EXPECT_EQ(G.CrewPost[1].Infected, True) << "the OK press must not also answer the question";
  PressYes();
  EXPECT_EQ(G.TermPrompt, 503);
  EXPECT_EQ(Lines().front(), "2 OF YOUR CREWMEMBERS");
  EXPECT_GE(G.Cash, 50000 - 2 * 699);
  EXPECT_LE(G.Cash, 50000 - 2 * 400);
  EXPECT_EQ(G.CrewPost[1].Infected, False);
  EXPECT_EQ(G.CrewPost[2].Quarantined, False);
  PressOk();
  EXPECT_EQ(G.TermPrompt, 0);
}

TEST_F(Arrival, TreatmentNeverLeavesTheCaptainInDebt) {
  G.CrewPost[1].Infected = True;
  G.Cash = 300;
  ArrivalTyping();
  PressOk();
  PressYes();
  EXPECT_EQ(G.Cash, 0);
}

TEST_F(Arrival, AnInfectedEmptyPostRaisesNoQuestion) {
  G.CrewPost[4].Infected = True;
  ArrivalTyping();
  PressOk();
  EXPECT_EQ(G.TermPrompt, 0);
}

TEST_F(Arrival, NoToTheMedicalQuestionLeavesAtOnceWhenTheShipMay) {
  G.CrewPost[1].Infected = True;
  ArrivalTyping();
  PressOk();
  EXPECT_TRUE(PressNo());
  EXPECT_TRUE(Sounded(8, 2));
  EXPECT_EQ(G.StationActive, False);
}

TEST_F(Arrival, NoToTheMedicalQuestionWithAShipUnfitToLeaveGivesTheRefusal) {
  G.CrewPost[1].Infected = True;
  G.HullRace = 0;
  ArrivalTyping();
  PressOk();
  EXPECT_FALSE(PressNo());
  EXPECT_EQ(G.TermPrompt, 508);
}

TEST_F(Arrival, ContrabandIsConfiscatedAndFined) {
  G.Cargo[4] = 5;
  G.Cargo[5] = 3;
  G.Cargo[10] = 2;
  G.Cargo[1] = 7;
  ArrivalTyping();
  PressOk();
  ASSERT_EQ(G.TermPrompt, 504);
  EXPECT_EQ(G.Cargo[4] + G.Cargo[5] + G.Cargo[10], 0);
  EXPECT_EQ(G.Cargo[1], 7);
  EXPECT_EQ(G.FreeCargo, 110);
  const int fine = static_cast<int>(50000 - G.Cash);
  EXPECT_GE(fine, 30);
  EXPECT_LE(fine, 39);
  EXPECT_EQ(G.TermLine[7], std::to_string(fine) + " CREDITS!");
  PressOk();
  EXPECT_EQ(G.TermPrompt, 0);
}

TEST_F(Arrival, ACaptainWith20CreditsPaysThe20AndIsToldSo) {
  G.Cargo[5] = 1;
  G.Cash = 20;
  ArrivalTyping();
  PressOk();
  EXPECT_EQ(G.Cash, 0);
  EXPECT_EQ(G.TermLine[7], "20 CREDITS!");
}

TEST_F(Arrival, DrugsAreNoContrabandAtAPirateStationButSlavesAre) {
  DockAtPirates();
  G.Cargo[10] = 9;
  ArrivalTyping();
  PressOk();
  EXPECT_EQ(G.TermPrompt, 0);
  EXPECT_EQ(G.Cargo[10], 9);

  G.Cargo[4] = 1;
  ArrivalTyping();
  PressOk();
  EXPECT_EQ(G.TermPrompt, 504);
  EXPECT_EQ(G.TermLine[1], "YOU ARE CARYING CONTRABAND");
}

TEST_F(Arrival, TheSecretCargoHidesContrabandAboutSevenTimesInTen) {
  G.SecretCargo = True;
  int hidden = 0;
  for (int i = 0; i < 1000; ++i) {
    G.Cargo[4] = 1;
    G.TermPrompt = 0;
    a_CheckContraband();
    if (G.TermPrompt != 504) ++hidden;
  }
  EXPECT_GT(hidden, 640);
  EXPECT_LT(hidden, 760);
}

TEST_F(Arrival, AShipWithoutLanderIsSoldOneUntold) {
  G.HasLander = False;
  G.Cash = 35;
  ArrivalTyping();
  PressOk();
  EXPECT_EQ(G.TermPrompt, 505);
  EXPECT_EQ(G.HasLander, True);
  EXPECT_GE(G.Cash, 0);
  EXPECT_LE(G.Cash, 5);
  EXPECT_EQ(Lines().back(), "THERE...");
}

TEST_F(Arrival, CrewOwedThreeSalariesLeaveAndTwoStay) {
  G.CrewPost[2].Person = 12;
  G.CrewPost[3].Person = 13;
  G.CrewPost[1].SalaryBalance = 2;
  G.CrewPost[2].SalaryBalance = 3;
  G.CrewPost[3].SalaryBalance = 7;
  ArrivalTyping();
  PressOk();
  EXPECT_EQ(G.TermPrompt, 506);
  EXPECT_EQ(G.TermLine[2], "2 OF YOU CREW MEMBERS");
  EXPECT_EQ(G.CrewPost[1].Person, 11);
  EXPECT_EQ(G.CrewPost[2].Person, 0);
  EXPECT_EQ(G.CrewPost[3].Person, 0);
  PressOk();
  EXPECT_EQ(G.TermPrompt, 0);
  EXPECT_EQ(G.ServiceMenuOpen, True);
}

TEST_F(Arrival, EveryNoticeInTurnOnOneArrival) {
  G.CrewPost[1].Infected = True;
  G.Cargo[4] = 1;
  G.HasLander = False;
  G.CrewPost[2].Person = 12;
  G.CrewPost[2].SalaryBalance = 5;
  ArrivalTyping();
  std::vector<int> prompts;
  PressOk();
  prompts.push_back(G.TermPrompt);
  PressYes();
  prompts.push_back(G.TermPrompt);
  for (int i = 0; i < 4; ++i) {
    PressOk();
    prompts.push_back(G.TermPrompt);
  }
  EXPECT_THAT(prompts, ElementsAre(2, 503, 504, 505, 506, 0));
}

}  // namespace
}  // namespace lf::test
