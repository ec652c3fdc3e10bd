// The components, group by group, model by model; the cells are text from
// column 1 on, as the table holds them. Unlisted cells stay empty.
#include "universe/data/universe_data.h"

namespace lf::data {

const std::array<ComponentRow, 58> kComponentRows = {{
    // group 1: 1 Name, 2 Description, 3 Cost, 4 Weight, 5 FullHealth, 6 Damage, 7 Energy, 8 Reload, 9 Range, 10 Efficiency
    {1, 1, {"M-207 Phalanx", "Human laser cannon", "1500", "100", "120", "10", "220", "3", "3", "1"}},
    {1, 2, {"M-406 Ambrams", "Human Tachyon beam", "2700", "300", "210", "30", "350", "4", "3", "4"}},
    {1, 3, {"H4-B Hammer", "Hagel Mass Driver", "2300", "200", "230", "15", "370", "4", "5", "2"}},
    {1, 4, {"H5-A Storm", "Hagel Fusion Ray", "3400", "270", "150", "25", "500", "1", "1", "4"}},
    {1, 5, {"LA-5-B TigerShark", "LaGew Particle Disruptor", "3000", "240", "240", "35", "310", "3", "2", "4"}},
    {1, 6, {"JY8 Crossbow", "Jaytees Neutron Cannon", "3800", "180", "290", "15", "430", "5", "3", "1"}},
    {1, 7, {"JY12 Violator", "Jaytees Ion Penetrator", "5000", "350", "230", "60", "580", "2", "2", "5"}},
    {1, 8, {"JY9X Blade", "Jaytees Gauss Cutter", "4000", "200", "280", "75", "620", "2", "2", "5"}},
    {1, 9, {"MkA-2 Sunburn", "Markeen Neutrino Cannon", "2100", "200", "100", "25", "260", "5", "5", "3"}},
    {1, 10, {"WP-5-R Avenger", "Woot-Am Plasma Ray", "2700", "120", "260", "15", "320", "2", "3", "2"}},
    {1, 11, {"WP-9-B Vulcan", "Woot-Am Anti-matter Blaster", "4500", "200", "220", "35", "360", "1", "3", "3"}},
    // group 2: 1 Name, 2 Description, 3 Cost, 4 Weight, 5 PowerDraw, 6 FullHealth, 7 Grade
    {2, 1, {"E2000", "Human Electronic Computer", "4000", "30", "30", "90", "1"}},
    {2, 2, {"HC", "Hagel Cybertronic Computer", "5500", "40", "40", "140", "2"}},
    {2, 3, {"LaO", "LaGew Optronic Computer", "9000", "20", "30", "110", "3"}},
    {2, 4, {"LaM", "LaGew Moleculatronic Computer", "6500", "60", "10", "100", "2"}},
    {2, 5, {"Gateway", "Markeen Positronic Computer", "8500", "40", "30", "140", "3"}},
    {2, 6, {"Woot-CR", "Woot-Am Biotronic Computr", "6000", "50", "10", "150", "2"}},
    // group 3: 1 Name, 2 Description, 3 Cost, 4 Weight, 5 FullHealth, 6 Damage, 7 Energy, 8 Reload, 9 Range, 10 Ammo, 11 Accuracy
    {3, 1, {"AIM-4A Redeye", "Heatseeker", "500", "170", "130", "50", "10", "1", "3", "20", "2"}},
    {3, 2, {"AIM-48B Sparrow", "Computer guided", "700", "220", "140", "90", "20", "3", "3", "20", "3"}},
    {3, 3, {"B-12A Tomahawk", "Torpedo", "1500", "400", "210", "200", "25", "4", "4", "5", "4"}},
    {3, 4, {"HI-2 Spear", "Fast Light Missile, Good Accuracy", "500", "150", "90", "35", "10", "4", "4", "30", "1"}},
    {3, 5, {"HT-4 Arrow", "Fast Light Torpedo With Fair Accuracy", "700", "350", "170", "120", "20", "4", "2", "5", "2"}},
    {3, 6, {"Mark 12", "Energy Torpedo", "1200", "430", "220", "190", "25", "1", "5", "10", "3"}},
    {3, 7, {"J-1 Flail", "Heavy Missile", "600", "270", "230", "90", "15", "2", "3", "20", "5"}},
    {3, 8, {"J-2 Broadsword", "Heavy Slow Missile", "1500", "450", "250", "230", "20", "5", "3", "5", "5"}},
    {3, 9, {"JX-3 weasel", "Illegal Ship Killing Missile", "1700", "400", "170", "300", "30", "3", "4", "5", "5"}},
    {3, 10, {"Wo-Al Sai", "Light Missile", "450", "200", "190", "80", "30", "2", "3", "30", "1"}},
    {3, 11, {"Wo-B1 Bo", "Heavy Missile", "750", "250", "210", "100", "35", "4", "3", "10", "3"}},
    // group 4: 1 Name, 2 Description, 3 Cost, 4 Weight, 5 FullHealth, 6 Column 6, 7 Output, 8 Grade
    {4, 1, {"D-12 Ra", "Human Solar Collector", "5000", "200", "590", "0.06", "1200", "1"}},
    {4, 2, {"UY-4", "Hagel Nuclear Powerplant", "8000", "450", "590", "0.09", "1400", "2"}},
    {4, 3, {"UY-4X", "Enhanced Hagel Nuclear Powerplant", "12000", "200", "470", "0.12", "2000", "5"}},
    {4, 4, {"L-F-100G", "LaGew Fusion Generator", "10000", "400", "420", "0.12", "1800", "4"}},
    {4, 5, {"Galoss Mk2", "Jaytees Matter to Energy Converter", "6000", "300", "420", "0.09", "1700", "3"}},
    {4, 6, {"W-4-AP", "Woot-Am Antimatter Powersource", "17000", "700", "620", "0.06", "2400", "5"}},
    {4, 7, {"W-X-AP", "Woot-Am Meshfold Matrix", "24000", "800", "520", "0.12", "2200", "5"}},
    // group 5: 1 Name, 2 Description, 3 Cost, 4 Weight, 5 PowerDemand, 6 FullHealth, 7 Speed, 8 Evasion, 9 Agility
    {5, 1, {"Ram-Jet", "Human Bussard Ram-Jet", "2000", "400", "100", "300", "2", "1", "1"}},
    {5, 2, {"IPS Ion Propulsion System", "Human Io Drive", "3500", "550", "150", "320", "3", "2", "2"}},
    {5, 3, {"Nuclear Drive", "Hagel Nuclear Drive", "4500", "700", "140", "330", "4", "4", "4"}},
    {5, 4, {"Anti-Matter Drive", "Hagel Anti-Matter Propulsion", "6000", "600", "140", "250", "3", "5", "5"}},
    {5, 5, {"Gravity Control Propulsion", "LaGew Gravity Drive", "3700", "500", "70", "90", "3", "3", "3"}},
    {5, 6, {"MA Drive", "Jaytees Matter/Antimatter Drive", "5400", "600", "150", "360", "3", "2", "2"}},
    {5, 7, {"Woot-Io", "Woot-Am Enhanced Ion Propulsion", "7500", "640", "50", "300", "3", "4", "4"}},
    {5, 8, {"Woot-Ie", "Woot-Am Impulse Engine", "5500", "460", "200", "290", "4", "3", "3"}},
    // group 6: 1 Name, 2 Description, 3 Cost, 4 Column 4, 5 PowerDemand, 6 FullHealth, 7 RangeGrade
    {6, 1, {"APG-12", "Human Space Multi Sweep Scanner", "1200", "70", "50", "130", "2"}},
    {6, 2, {"Tach-Scan", "Human Tachyon Sensor Array", "2300", "120", "70", "200", "3"}},
    {6, 3, {"LaNeu", "LaGew Neutron Analyser", "3000", "200", "70", "170", "4"}},
    {6, 4, {"Bioscan B1", "Markeen BioScanner", "3300", "260", "50", "150", "4"}},
    {6, 5, {"Woot-Sen", "Woot-Am Sensor Array", "2500", "160", "90", "160", "4"}},
    // group 7: 1 Name, 2 Description, 3 Cost, 4 Column 4, 5 FullHealth, 6 PowerDemand, 7 Weight, 8 Efficiency
    {7, 1, {"ALS-40 Protector", "Human Light Energy Shield", "3000", "200", "120", "400", "150", "1"}},
    {7, 2, {"ALS-80 Guardian", "Human Electro-Magnetic Field", "4200", "600", "140", "520", "200", "3"}},
    {7, 3, {"HS Turtle", "Hagel Electron Shield", "5400", "400", "170", "500", "230", "2"}},
    {7, 4, {"LA-4-B LaFal", "LaGew Proton Deflector", "4500", "300", "170", "330", "120", "2"}},
    {7, 5, {"LA-5-B LaGot", "LaGew Energy Absorber", "5500", "800", "160", "650", "300", "4"}},
    {7, 6, {"LA-X-C LaSel", "LaGew Anti-Matter Shield", "6000", "900", "120", "560", "200", "5"}},
    {7, 7, {"J-9 Banshee", "Jaytees Fusion Amplifier", "5000", "600", "130", "620", "230", "3"}},
    {7, 8, {"MND", "Markeen Nanotech Deflector", "7300", "700", "150", "600", "150", "4"}},
    {7, 9, {"WR-40-0 Woot-Da", "Woot-Am Radiation Absorber", "5200", "500", "70", "550", "180", "3"}},
    {7, 10, {"WR-40-1 Woot-Ra", "Woot-Am Energy Flow Field", "8000", "1000", "100", "630", "200", "5"}},
}};

}  // namespace lf::data
