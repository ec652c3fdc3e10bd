// Every bitmap handle of the game, by the table or variable the game names.
// Not part of the Game record's dump: handles are resources, not state.
// Which file goes into which handle, and in which set, is in
// display/bitmap_catalog.cpp.
#pragma once

#include "display/bitmap.h"
#include "shell/table.h"

namespace lf {

struct Gfx {
  // Menu, full pictures and cursor (loaded at start-up; the cursor again
  // with the bridge set).
  Table<Bitmap, 6> MenuBitmap;
  Table<Bitmap, 8> FullPicture;
  Bitmap CursorBitmap;  // "\gfx\cursor.bmp"

  // Progress display: the loading picture of the load under way and the bar.
  Bitmap LoadingPicture;
  Bitmap ProgressBarPicture;

  // --- The kept set: loaded at a new game, held to the end.
  Bitmap Back;             // "\gfx\back.bmp"
  Bitmap ResearchBack;     // "\gfx\backs\research.bmp"
  Bitmap SoftwareBack;     // "\gfx\backs\software.bmp"
  Bitmap SpecialBack;      // "\gfx\backs\special.bmp"
  Bitmap UnfittedBack;     // "\gfx\backs\unfitted.bmp"
  Bitmap UpgradePicture;   // "\gfx\misc\upgrade.bmp"
  Bitmap Yes;              // "\gfx\yes.bmp"
  Bitmap No;               // "\gfx\no.bmp"
  Table<Bitmap, 4> NebulaPicture;  // [1..4] "\gfx\nebulas\nebula_1..4.bmp"
  Bitmap AsteroidFieldPicture;     // "\gfx\nebulas\ast_field.bmp"
  // List icons by body type 1..10, 11 the station.
  Table<Bitmap, 11> PlanetIcon;

  // --- The bridge set.
  Bitmap Back2;                    // "\gfx\back2.bmp", the sector backdrop
  Table<Bitmap, 5> StaticBig;      // [1..5] "\gfx\static\static_big_n.bmp"
  Table<Bitmap, 5> StaticBig2;     // [1..5] "\gfx\static\static_big2_n.bmp"
  Bitmap Heart;                    // "\gfx\misc\heart.bmp"
  Bitmap RCross;                   // "\gfx\misc\rcross.bmp"
  Table<Bitmap, 4> ToolIcon;       // [1..4] "\gfx\misc\icon_n.bmp"
  Bitmap DebrisPicture;            // "\gfx\misc\debris.bmp"
  Bitmap CargoPodPicture;          // "\gfx\misc\cargo.bmp"
  Bitmap QuarantineUp, QuarantineDown;  // "\gfx\misc\quarantine_up/down.bmp"
  Bitmap TreatmentUp, TreatmentDown;    // "\gfx\misc\treatment_up/down.bmp"
  Table<Bitmap, 4> JobArrow;       // [1..4] "\gfx\misc\a_j_n.bmp"
  Table<Bitmap, 2> EnergyArrow;    // [1..2] "\gfx\misc\a_e_n.bmp"
  Bitmap MaintSlider;              // "\gfx\misc\maint_slider.bmp"
  Bitmap MaintSlider2;             // "\gfx\misc\maint_slider2.bmp"
  Bitmap HeroPod;                  // "\gfx\misc\hero_pod.bmp"
  Table<Bitmap, 13> PanelPicture;  // [1..13] the 130x130 officer panels
  Table<Bitmap, 18> ShipPicture;   // [0] unknown ship, [1..18] by ship class
  Bitmap ShipSel;                  // "\gfx\ships\sel.bmp"
  Table<Bitmap, 3> OwnShip;        // [0..3] "\gfx\ships\shp_n.bmp"
  Bitmap Health;                   // "\gfx\health.bmp"
  Bitmap Health2;                  // "\gfx\health2.bmp"
  Bitmap Slider;                   // "\gfx\slider.bmp"
  Bitmap Mask;                     // "\gfx\mask.bmp"
  Bitmap ScrollUp, ScrollDown;     // "\gfx\scroll_up/down.bmp"
  Bitmap StationMarker;            // "\gfx\planets\station.bmp"
  Bitmap Landing;                  // "\gfx\planets\landing.bmp"
  Table<Bitmap, 6> OfficerFace;    // [1..6] "\gfx\faces\likN.bmp"
  Table<Bitmap, 6> PromptPortrait; // [1..6] "\gfx\faces\likNb.bmp", 34x42
  Table<Bitmap, 6> ComputerFace;   // [1..6] "\gfx\faces\0_N.bmp", empty posts
  Bitmap Dest;                     // "\gfx\dest.bmp"
  Bitmap ButtState;                // "\gfx\buttstate.bmp"
  Bitmap Grid;                     // "\gfx\grid.bmp"
  Bitmap FontAdd;                  // "\gfx\fonts\add_font.bmp"
  Bitmap FontSml;                  // "\gfx\fonts\font_sml.bmp"
  Bitmap FontVsml;                 // "\gfx\fonts\font_vsml.bmp"
  Bitmap FontLed;                  // "\gfx\fonts\led.bmp"
  Table<Bitmap, 2> StarLayer;      // [1..2] "\gfx\stars\star_n.bmp"
  // Sensor rings by SensorRange: 1 huge (120), 2 large (100), 3 medium (80),
  // 4 small (50), 5 vsmall (30). SensorRingFor picks one.
  Table<Bitmap, 5> SensorRing;
  // Body pictures [1..26]; [0] the unknown marker "\gfx\ukn.bmp", [100] its
  // fade "\gfx\uknfade.bmp" (both bridge set), [101] the star lane
  // "\gfx\sl.bmp" (kept set).
  Table<Bitmap, 101> PlanetBitmap;
  // BridgeButton.Picture: the sheet of button (page 1..6, button 1..15).
  Table<Table<Bitmap, 15>, 6> ButtonPicture;

  // --- Loaded one at a time on the bridge.
  Bitmap OrbitPicture;   // LoadOrbitPic
  Bitmap HailPicture;    // LoadOShipOSidePic

  // --- The station set.
  Bitmap StationFontOcr;       // "\gfx\station\a_fonts\ocr.bmp"
  Bitmap StationFontImp;       // "\gfx\station\a_fonts\stat_font_imp.bmp"
  Bitmap StationBack;          // the background of the station screen on show
  // [1..8] _denied, _bar, _commodity, _dealer, _explor, _fed, _mercenary, _merchant
  Table<Bitmap, 8> ServicePicture;
  Bitmap StationMarkerBig;     // "\gfx\station\a_misc\marker.bmp"
  Bitmap StationMarkerSmall;   // "\gfx\station\a_misc\marker2.bmp"
  Bitmap StationYes;           // "\gfx\station\a_misc\yes.bmp"
  Bitmap StationYes2;          // "\gfx\station\a_misc\yes2.bmp"
  Bitmap StationYes3;          // "\gfx\station\a_misc\yes3.bmp"
  Bitmap StationNo;            // "\gfx\station\a_misc\no.bmp"
  Bitmap DealerButts;          // "\gfx\station\a_misc\dealer_butts.bmp"
  Bitmap GuildsPicture;        // "\gfx\station\a_misc\guilds.bmp"
  // Loaded by the station screens as they open; released with the set.
  Bitmap DealerSelect;         // "\gfx\station\a_misc\select.bmp"
  Bitmap NewsBitmap;           // "\gfx\station\a_misc\news.bmp"
  Bitmap CompAnimBitmap;       // "\gfx\station\comps\..."

  // --- Character faces: Character.Face of rows 0..144 ("\gfx\faces\N.bmp",
  // or a hero's face), loaded by RandomizeCharacters and held to the end.
  Table<Bitmap, 144> CharacterFace;

  // --- The event screen.
  Bitmap EventPicture;
  Bitmap EventBackground;      // "\gfx\events\back.bmp"

  // --- The fight set (d_LoadFightGfx; LoadingPicture is "\gfx\loading\fight.bmp",
  // StaticBig and FontVsml are shared with the bridge set).
  Bitmap FightSurrender;       // "\gfx\fight\surrender.bmp"
  Bitmap FightWarnings;        // "\gfx\fight\warnings.bmp"
  Bitmap FightTargetButt;      // "\gfx\fight\target_butt.bmp"
  Bitmap FightEnemyIcon;       // "\gfx\fight\enemy_icon.bmp"
  Bitmap FightImpact;          // "\gfx\fight\impact.bmp"
  Bitmap FightBack;            // "\gfx\fight\fight_back.bmp"
  Bitmap FightEnergy;          // "\gfx\fight\energy.bmp"
  Bitmap FightEnergyMarker;    // "\gfx\fight\energy_marker.bmp"
  Bitmap FightIndiSmall;       // "\gfx\fight\indi_small.bmp"
  Bitmap FightIndiLarge;       // "\gfx\fight\indi_large.bmp"
  Bitmap FightComps;           // "\gfx\fight\comps.bmp"
  Bitmap FightReadyButton;     // "\gfx\fight\ready_button.bmp"
  Bitmap FightSpecs;           // "\gfx\fight\specs.bmp"
  Bitmap FightExplo;           // "\gfx\fight\explo.bmp"
  Bitmap FightOShield;         // "\gfx\fight\oshield.bmp"
  Bitmap FightShield;          // "\gfx\fight\shield.bmp"
  Bitmap FightOShip;           // "\gfx\fight\oship\<race>_<hull class>.bmp"
  Table<Bitmap, 10> WeaponPicture;  // [1..10] the shot of each weapon line
};

// The one set of handles.
extern Gfx& GFX;

// Releases every handle (the closing sequence, and tests).
void ReleaseAllBitmaps();

}  // namespace lf
