// The officer pages' buttons: label, sheet, place (column 1..4 at x = 140,
// 201, 262, 323; row 1..2 at y = 287, 351), presence and frame count. Pairs
// that share a place swap by presence. Blank plates carry an empty label and
// the sheet "\gfx\bb.bmp". Entries not listed are not present.
#include "universe/data/universe_data.h"

namespace lf::data {

const std::array<ButtonRow, 51> kButtonRows = {{
    // page, button, label, sheet, column, row, present, frames
    {1, 1, "NAVIGATE MODE", "\\gfx\\nav\\01.bmp", 1, 1, true, 8},
    {1, 2, "ENGAGE AUTOPILOT", "\\gfx\\nav\\02.bmp", 2, 1, true, 8},
    {1, 3, "DOCK WITH SPACE STATION", "\\gfx\\nav\\03.bmp", 3, 1, true, 8},
    {1, 4, "LAUNCH FROM SPACE STATION", "\\gfx\\nav\\04.bmp", 3, 1, false, 8},
    {1, 5, "ORBIT PLANET", "\\gfx\\nav\\05.bmp", 4, 1, true, 8},
    {1, 6, "LEAVE ORBIT", "\\gfx\\nav\\06.bmp", 4, 1, false, 8},
    {1, 7, "DEPLOY LANDER", "\\gfx\\nav\\07.bmp", 1, 2, true, 8},
    {1, 8, "TRACTOR BEAM", "\\gfx\\nav\\08.bmp", 2, 2, true, 8},
    {1, 9, "ALL STOP", "\\gfx\\nav\\09.bmp", 3, 2, true, 8},
    {1, 10, "", "\\gfx\\bb.bmp", 4, 2, true, 8},

    {2, 1, "HAIL", "\\gfx\\comm\\01.bmp", 1, 1, true, 8},
    {2, 2, "BREAK COMMUNICATIONS", "\\gfx\\comm\\02.bmp", 1, 1, false, 8},
    {2, 3, "IGNORE COMMUNICATIONS", "\\gfx\\comm\\03.bmp", 2, 1, true, 8},
    {2, 4, "SHIP SCANNER", "\\gfx\\comm\\04.bmp", 3, 1, true, 8},
    {2, 5, "EMERGENCY ACTIONS", "\\gfx\\comm\\05.bmp", 1, 2, true, 8},
    {2, 6, "AVAILABLE SOFTWARE", "\\gfx\\comm\\06.bmp", 2, 2, true, 8},
    {2, 7, "", "\\gfx\\bb.bmp", 4, 2, true, 8},
    {2, 8, "COMMUNICATION OPTIONS", "\\gfx\\comm\\08.bmp", 4, 1, true, 8},
    {2, 9, "", "\\gfx\\bb.bmp", 3, 2, true, 0},

    {3, 1, "WEAPONS", "\\gfx\\tac\\01.bmp", 1, 1, true, 8},
    {3, 2, "SHIELD", "\\gfx\\tac\\02.bmp", 2, 1, true, 8},
    {3, 3, "POWER DISTRIBUTION", "\\gfx\\tac\\03.bmp", 3, 1, true, 8},
    {3, 4, "COMBAT MODE", "\\gfx\\tac\\04.bmp", 4, 1, true, 8},
    {3, 5, "", "\\gfx\\bb.bmp", 4, 2, true, 8},
    {3, 8, "BACKUP GENERATOR CONTROL", "\\gfx\\tac\\06.bmp", 1, 2, true, 8},
    {3, 9, "", "\\gfx\\bb.bmp", 2, 2, true, 0},
    {3, 10, "", "\\gfx\\bb.bmp", 3, 2, true, 0},

    {4, 1, "MEDICAL STATUS", "\\gfx\\med\\01.bmp", 1, 1, true, 8},
    {4, 2, "MEDICAL SCANNER", "\\gfx\\med\\02.bmp", 2, 1, true, 8},
    {4, 3, "", "\\gfx\\bb.bmp", 4, 2, true, 8},
    {4, 4, "MEDICAL TREATMENT", "\\gfx\\med\\04.bmp", 3, 1, true, 8},
    {4, 5, "", "\\gfx\\bb.bmp", 4, 1, true, 0},
    {4, 6, "", "\\gfx\\bb.bmp", 1, 2, true, 0},
    {4, 7, "", "\\gfx\\bb.bmp", 2, 2, true, 0},
    {4, 8, "", "\\gfx\\bb.bmp", 3, 2, true, 0},

    {5, 1, "SCIENCE SCANNER", "\\gfx\\sci\\01.bmp", 1, 1, true, 8},
    {5, 2, "RESEARCH MODE", "\\gfx\\sci\\02.bmp", 2, 1, true, 8},
    {5, 3, "DIPLOMACY", "\\gfx\\sci\\03.bmp", 3, 1, true, 8},
    {5, 4, "MISSION OBJECTIVES", "\\gfx\\sci\\04.bmp", 4, 1, true, 8},
    {5, 5, "SHIP DATABASE", "\\gfx\\sci\\05.bmp", 1, 2, true, 8},
    {5, 6, "SAVE GAME", "\\gfx\\sci\\06.bmp", 4, 2, true, 8},
    {5, 7, "SHIP STATUS", "\\gfx\\sci\\07.bmp", 2, 2, true, 8},
    {5, 8, "GIULD MEMBERSHIP", "\\gfx\\sci\\08.bmp", 3, 2, true, 8},

    {6, 1, "MAINTENANCE", "\\gfx\\eng\\01.bmp", 1, 1, true, 8},
    {6, 2, "CARGO BAY", "\\gfx\\eng\\02.bmp", 2, 1, true, 8},
    {6, 3, "SPECIAL COMPONENTS", "\\gfx\\eng\\03.bmp", 4, 2, true, 8},
    {6, 4, "UNFITTED COMPONENTS", "\\gfx\\eng\\04.bmp", 3, 1, true, 8},
    {6, 5, "", "\\gfx\\bb.bmp", 4, 1, true, 0},
    {6, 6, "", "\\gfx\\bb.bmp", 1, 2, true, 0},
    {6, 7, "", "\\gfx\\bb.bmp", 2, 2, true, 0},
    {6, 8, "", "\\gfx\\bb.bmp", 3, 2, true, 0},
}};

const std::array<std::array<std::string_view, 4>, 7> kOfficerLines = {{
    {{"", "", "", ""}},
    {{"NAVIGATION COMPUTER ONLINE.", "NAVIGATOR REPORTING!", "AWAITING ORDERS, SIR.", "CAPTAIN?"}},
    {{"COMMUNICATION COMPUTER ONLINE.", "COMMUNICATIONS OFFICER REPORTING!", "AWAITING ORDERS, SIR.", "CAPTAIN?"}},
    {{"TACTICAL COMPUTER ONLINE.", "TACTICAL OFFICER REPORTING!", "AWAITING ORDERS, SIR.", "CAPTAIN?"}},
    {{"MEDICAL COMPUTER ONLINE.", "MEDICAL OFFICER REPORTING!", "AWAITING ORDERS, SIR.", "CAPTAIN?"}},
    {{"SCIENCE COMPUTER ONLINE.", "SCIENCE OFFICER REPORTING!", "AWAITING ORDERS, SIR.", "CAPTAIN?"}},
    {{"ENGINEER COMPUTER ONLINE.", "CHIEF ENGINEER REPORTING!", "AWAITING ORDERS, SIR.", "CAPTAIN?"}},
}};

}  // namespace lf::data
