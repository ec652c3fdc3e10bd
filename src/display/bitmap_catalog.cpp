#include "display/bitmap_catalog.h"

#include <set>

#include "universe/data/universe_data.h"

namespace lf {
namespace {

void Add(BitmapSet& s, std::string path, Bitmap& handle) { s.push_back({std::move(path), &handle}); }

// stem + n + tail for n = first..last into table[n + shift].
template <int Hi>
void AddRun(BitmapSet& s, std::string_view stem, int first, int last, std::string_view tail,
            Table<Bitmap, Hi>& table, int shift = 0) {
  for (int n = first; n <= last; ++n)
    Add(s, std::string(stem) + std::to_string(n) + std::string(tail), table[n + shift]);
}

}  // namespace

const std::array<std::string_view, 19> kShipClassFile = {
    "",    "1_1", "1_2", "1_3", "1_4", "1_5", "2_1", "2_3", "2_5", "3_1",
    "3_2", "3_5", "4_3", "4_4", "5_1", "5_2", "5_3", "6_1", "6_4",
};

BitmapSet MenuSet(Gfx& g) {
  BitmapSet s;
  Add(s, R"(\gfx\cursor.bmp)", g.CursorBitmap);
  AddRun(s, R"(\gfx\main\)", 0, 6, ".bmp", g.MenuBitmap);
  Add(s, R"(\gfx\credits\quelmar.bmp)", g.FullPicture[1]);
  AddRun(s, R"(\gfx\credits\story_)", 0, 5, ".bmp", g.FullPicture, 2);
  Add(s, R"(\gfx\credits\death.bmp)", g.FullPicture[8]);
  return s;
}

BitmapSet KeptSet(Gfx& g) {
  BitmapSet s;
  Add(s, R"(\gfx\back.bmp)", g.Back);
  Add(s, R"(\gfx\loading\progressbar.bmp)", g.ProgressBarPicture);
  Add(s, R"(\gfx\backs\research.bmp)", g.ResearchBack);
  Add(s, R"(\gfx\backs\software.bmp)", g.SoftwareBack);
  Add(s, R"(\gfx\backs\special.bmp)", g.SpecialBack);
  Add(s, R"(\gfx\backs\unfitted.bmp)", g.UnfittedBack);
  Add(s, R"(\gfx\misc\upgrade.bmp)", g.UpgradePicture);
  Add(s, R"(\gfx\yes.bmp)", g.Yes);
  Add(s, R"(\gfx\no.bmp)", g.No);
  Add(s, R"(\gfx\sl.bmp)", g.PlanetBitmap[101]);
  AddRun(s, R"(\gfx\nebulas\nebula_)", 1, 4, ".bmp", g.NebulaPicture);
  Add(s, R"(\gfx\nebulas\ast_field.bmp)", g.AsteroidFieldPicture);
  Add(s, R"(\gfx\planets\barren_icon.bmp)", g.PlanetIcon[1]);
  Add(s, R"(\gfx\planets\tundra_icon.bmp)", g.PlanetIcon[2]);
  Add(s, R"(\gfx\planets\desert_icon.bmp)", g.PlanetIcon[3]);
  Add(s, R"(\gfx\planets\terran_icon.bmp)", g.PlanetIcon[4]);
  Add(s, R"(\gfx\planets\swamp_icon.bmp)", g.PlanetIcon[5]);
  Add(s, R"(\gfx\planets\gasgiant_icon.bmp)", g.PlanetIcon[6]);
  Add(s, R"(\gfx\planets\genesis_icon.bmp)", g.PlanetIcon[7]);
  Add(s, R"(\gfx\planets\ocean_icon.bmp)", g.PlanetIcon[8]);
  Add(s, R"(\gfx\planets\radiated_icon.bmp)", g.PlanetIcon[9]);
  Add(s, R"(\gfx\planets\toxic_icon.bmp)", g.PlanetIcon[10]);
  Add(s, R"(\gfx\planets\station_icon.bmp)", g.PlanetIcon[11]);
  return s;
}

// The bridge set, 191 files:
//     1  loading picture            1  progress bar (see below)
//     1  sector backdrop           10  static
//    21  misc pictures             13  panel backs
//    19  ship class pictures        5  selection and own ship sheets
//     8  bars, slider, mask, scroll arrows, station marker, landing
//    18  faces: likN, likNb, 0_N for the six posts
//     4  dest, buttstate, grid, cursor
//     4  fonts                      2  star layers
//     5  sensor rings               2  unknown-body marker and its fade
//    26  body pictures             51  button sheets (36 sheets, 15 plates)
// The files named for the set come to 190. The 191st is the progress bar:
// leaving the station releases the station set, whose bar is the same
// handle, so the bridge set loads it again; otherwise a later load (the
// fight's) would have no bar to draw.
BitmapSet BridgeSet(Gfx& g) {
  BitmapSet s;
  Add(s, R"(\gfx\loading\loadingpic.bmp)", g.LoadingPicture);
  Add(s, R"(\gfx\loading\progressbar.bmp)", g.ProgressBarPicture);
  Add(s, R"(\gfx\back2.bmp)", g.Back2);
  AddRun(s, R"(\gfx\static\static_big_)", 1, 5, ".bmp", g.StaticBig);
  AddRun(s, R"(\gfx\static\static_big2_)", 1, 5, ".bmp", g.StaticBig2);
  Add(s, R"(\gfx\misc\heart.bmp)", g.Heart);
  Add(s, R"(\gfx\misc\rcross.bmp)", g.RCross);
  AddRun(s, R"(\gfx\misc\icon_)", 1, 4, ".bmp", g.ToolIcon);
  Add(s, R"(\gfx\misc\debris.bmp)", g.DebrisPicture);
  Add(s, R"(\gfx\misc\cargo.bmp)", g.CargoPodPicture);
  Add(s, R"(\gfx\misc\quarantine_up.bmp)", g.QuarantineUp);
  Add(s, R"(\gfx\misc\quarantine_down.bmp)", g.QuarantineDown);
  Add(s, R"(\gfx\misc\treatment_up.bmp)", g.TreatmentUp);
  Add(s, R"(\gfx\misc\treatment_down.bmp)", g.TreatmentDown);
  AddRun(s, R"(\gfx\misc\a_j_)", 1, 4, ".bmp", g.JobArrow);
  AddRun(s, R"(\gfx\misc\a_e_)", 1, 2, ".bmp", g.EnergyArrow);
  Add(s, R"(\gfx\misc\maint_slider.bmp)", g.MaintSlider);
  Add(s, R"(\gfx\misc\maint_slider2.bmp)", g.MaintSlider2);
  Add(s, R"(\gfx\misc\hero_pod.bmp)", g.HeroPod);
  Add(s, R"(\gfx\backs\apilot.bmp)", g.PanelPicture[1]);
  Add(s, R"(\gfx\backs\hail.bmp)", g.PanelPicture[2]);
  Add(s, R"(\gfx\backs\diplomacy.bmp)", g.PanelPicture[3]);
  Add(s, R"(\gfx\backs\maint.bmp)", g.PanelPicture[4]);
  Add(s, R"(\gfx\backs\energy.bmp)", g.PanelPicture[5]);
  Add(s, R"(\gfx\backs\cargo.bmp)", g.PanelPicture[6]);
  Add(s, R"(\gfx\backs\crew.bmp)", g.PanelPicture[7]);
  Add(s, R"(\gfx\backs\medical.bmp)", g.PanelPicture[8]);
  Add(s, R"(\gfx\backs\medical2.bmp)", g.PanelPicture[9]);
  Add(s, R"(\gfx\backs\status.bmp)", g.PanelPicture[10]);
  Add(s, R"(\gfx\backs\trade.bmp)", g.PanelPicture[11]);
  Add(s, R"(\gfx\backs\guilds.bmp)", g.PanelPicture[12]);
  Add(s, R"(\gfx\backs\mission.bmp)", g.PanelPicture[13]);
  Add(s, R"(\gfx\ships\0.bmp)", g.ShipPicture[0]);
  for (int c = 1; c <= 18; ++c)
    Add(s, std::string(R"(\gfx\ships\)") + std::string(kShipClassFile[c]) + ".bmp", g.ShipPicture[c]);
  Add(s, R"(\gfx\ships\sel.bmp)", g.ShipSel);
  AddRun(s, R"(\gfx\ships\shp_)", 0, 3, ".bmp", g.OwnShip);
  Add(s, R"(\gfx\health.bmp)", g.Health);
  Add(s, R"(\gfx\health2.bmp)", g.Health2);
  Add(s, R"(\gfx\slider.bmp)", g.Slider);
  Add(s, R"(\gfx\mask.bmp)", g.Mask);
  Add(s, R"(\gfx\scroll_up.bmp)", g.ScrollUp);
  Add(s, R"(\gfx\scroll_down.bmp)", g.ScrollDown);
  Add(s, R"(\gfx\planets\station.bmp)", g.StationMarker);
  Add(s, R"(\gfx\planets\landing.bmp)", g.Landing);
  for (int i = 1; i <= 6; ++i) {
    Add(s, R"(\gfx\faces\lik)" + std::to_string(i) + ".bmp", g.OfficerFace[i]);
    Add(s, R"(\gfx\faces\lik)" + std::to_string(i) + "b.bmp", g.PromptPortrait[i]);
    Add(s, R"(\gfx\faces\0_)" + std::to_string(i) + ".bmp", g.ComputerFace[i]);
  }
  Add(s, R"(\gfx\dest.bmp)", g.Dest);
  Add(s, R"(\gfx\buttstate.bmp)", g.ButtState);
  Add(s, R"(\gfx\grid.bmp)", g.Grid);
  Add(s, R"(\gfx\cursor.bmp)", g.CursorBitmap);
  Add(s, R"(\gfx\fonts\add_font.bmp)", g.FontAdd);
  Add(s, R"(\gfx\fonts\font_sml.bmp)", g.FontSml);
  Add(s, R"(\gfx\fonts\font_vsml.bmp)", g.FontVsml);
  Add(s, R"(\gfx\fonts\led.bmp)", g.FontLed);
  AddRun(s, R"(\gfx\stars\star_)", 1, 2, ".bmp", g.StarLayer);
  Add(s, R"(\gfx\srange_huge.bmp)", g.SensorRing[1]);
  Add(s, R"(\gfx\srange_large.bmp)", g.SensorRing[2]);
  Add(s, R"(\gfx\srange_medium.bmp)", g.SensorRing[3]);
  Add(s, R"(\gfx\srange_small.bmp)", g.SensorRing[4]);
  Add(s, R"(\gfx\srange_vsmall.bmp)", g.SensorRing[5]);
  Add(s, R"(\gfx\ukn.bmp)", g.PlanetBitmap[0]);
  Add(s, R"(\gfx\uknfade.bmp)", g.PlanetBitmap[100]);
  for (int p = 1; p <= 26; ++p)
    Add(s, std::string(R"(\gfx\planets\)") + std::string(data::kPictures[static_cast<std::size_t>(p)].File),
        g.PlanetBitmap[p]);
  // The button sheets in the order of the button table; each blank plate
  // loads its own copy of "\gfx\bb.bmp".
  for (const data::ButtonRow& b : data::kButtonRows)
    Add(s, std::string(b.Sheet), g.ButtonPicture[b.Page][b.Button]);
  return s;
}

BitmapSet StationSet(Gfx& g, int quadrant) {
  BitmapSet s;
  Add(s, R"(\gfx\loading\docking.bmp)", g.LoadingPicture);
  Add(s, R"(\gfx\loading\progressbar.bmp)", g.ProgressBarPicture);
  Add(s, R"(\gfx\station\a_fonts\ocr.bmp)", g.StationFontOcr);
  Add(s, R"(\gfx\station\a_fonts\stat_font_imp.bmp)", g.StationFontImp);
  Add(s, R"(\gfx\station\a_backs\terminal_)" + std::to_string(quadrant) + ".bmp", g.StationBack);
  Add(s, R"(\gfx\station\small\_denied.bmp)", g.ServicePicture[1]);
  Add(s, R"(\gfx\station\small\_bar.bmp)", g.ServicePicture[2]);
  Add(s, R"(\gfx\station\small\_commodity.bmp)", g.ServicePicture[3]);
  Add(s, R"(\gfx\station\small\_dealer.bmp)", g.ServicePicture[4]);
  Add(s, R"(\gfx\station\small\_explor.bmp)", g.ServicePicture[5]);
  Add(s, R"(\gfx\station\small\_fed.bmp)", g.ServicePicture[6]);
  Add(s, R"(\gfx\station\small\_mercenary.bmp)", g.ServicePicture[7]);
  Add(s, R"(\gfx\station\small\_merchant.bmp)", g.ServicePicture[8]);
  Add(s, R"(\gfx\station\a_misc\marker.bmp)", g.StationMarkerBig);
  Add(s, R"(\gfx\station\a_misc\marker2.bmp)", g.StationMarkerSmall);
  Add(s, R"(\gfx\station\a_misc\yes.bmp)", g.StationYes);
  Add(s, R"(\gfx\station\a_misc\yes2.bmp)", g.StationYes2);
  Add(s, R"(\gfx\station\a_misc\yes3.bmp)", g.StationYes3);
  Add(s, R"(\gfx\station\a_misc\no.bmp)", g.StationNo);
  Add(s, R"(\gfx\station\a_misc\dealer_butts.bmp)", g.DealerButts);
  Add(s, R"(\gfx\station\a_misc\guilds.bmp)", g.GuildsPicture);
  return s;
}

BitmapSet FightSetFixed(Gfx& g) {
  BitmapSet s;
  Add(s, R"(\gfx\loading\fight.bmp)", g.LoadingPicture);
  AddRun(s, R"(\gfx\static\static_big_)", 1, 5, ".bmp", g.StaticBig);
  Add(s, R"(\gfx\fight\surrender.bmp)", g.FightSurrender);
  Add(s, R"(\gfx\fight\warnings.bmp)", g.FightWarnings);
  Add(s, R"(\gfx\fight\target_butt.bmp)", g.FightTargetButt);
  Add(s, R"(\gfx\fight\enemy_icon.bmp)", g.FightEnemyIcon);
  Add(s, R"(\gfx\fight\impact.bmp)", g.FightImpact);
  Add(s, R"(\gfx\fight\fight_back.bmp)", g.FightBack);
  Add(s, R"(\gfx\fight\energy.bmp)", g.FightEnergy);
  Add(s, R"(\gfx\fight\energy_marker.bmp)", g.FightEnergyMarker);
  Add(s, R"(\gfx\fight\indi_small.bmp)", g.FightIndiSmall);
  Add(s, R"(\gfx\fight\indi_large.bmp)", g.FightIndiLarge);
  Add(s, R"(\gfx\fight\comps.bmp)", g.FightComps);
  Add(s, R"(\gfx\fight\ready_button.bmp)", g.FightReadyButton);
  Add(s, R"(\gfx\fight\specs.bmp)", g.FightSpecs);
  Add(s, R"(\gfx\fight\explo.bmp)", g.FightExplo);
  Add(s, R"(\gfx\fight\oshield.bmp)", g.FightOShield);
  Add(s, R"(\gfx\fight\shield.bmp)", g.FightShield);
  Add(s, R"(\gfx\fonts\font_vsml.bmp)", g.FontVsml);
  return s;
}

bool StaysThroughUnload(const Gfx& g, const Bitmap* handle) {
  return handle == &g.CursorBitmap || handle == &g.FontSml || handle == &g.ProgressBarPicture;
}

const Bitmap& SensorRingFor(double sensorRange) {
  static const Bitmap kNone;
  if (sensorRange == 120) return GFX.SensorRing[1];
  if (sensorRange == 100) return GFX.SensorRing[2];
  if (sensorRange == 80) return GFX.SensorRing[3];
  if (sensorRange == 50) return GFX.SensorRing[4];
  if (sensorRange == 30) return GFX.SensorRing[5];
  return kNone;
}

}  // namespace lf
