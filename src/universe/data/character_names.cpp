// The 144 persons of the universe, 24 to a race in row order; within a
// race four to a post: navigators, communicators, tactical, medical,
// science, engineers.
#include "universe/data/universe_data.h"

namespace lf::data {

const std::array<std::string_view, 145> kCharacterNames = {
    "",  // 0: an empty post
    // Human
    "AGNES DEVERAUX",  // 1
    "ABEL JOHNSON",  // 2
    "CAXTON GARRECK",  // 3
    "FABIAN PENN",  // 4
    "FRED CARPENTER",  // 5
    "GEORGE SANCTON",  // 6
    "EVELYN HUDSON",  // 7
    "ADAM WILLIAMSON",  // 8
    "ADDISON COLBERT",  // 9
    "CATO TIMISHA",  // 10
    "CAROLINE DIAZ",  // 11
    "CECIL ANDERSON",  // 12
    "DWIGHT HARRIS",  // 13
    "EDDY SAPHO",  // 14
    "CHARLES FOX",  // 15
    "EDWARD WOOD",  // 16
    "EDITH ROCHERSER",  // 17
    "FELIX BYRD",  // 18
    "MANON MACDOWEL",  // 19
    "FREDDY JONES",  // 20
    "CHARLIE HASTINGS",  // 21
    "DUNCAN LETO",  // 22
    "MICHAEL PORTMAN",  // 23
    "ZOLA OWEN",  // 24
    // Hagel
    "ABETH DO",  // 25
    "AHAMETH AD",  // 26
    "ADEBOUR BATH",  // 27
    "DHAR DA",  // 28
    "EHMAN UD",  // 29
    "EDEL ID",  // 30
    "EBANO JI",  // 31
    "EMAH GO",  // 32
    "EFETH NA",  // 33
    "EDERH MA",  // 34
    "EPOTH UT",  // 35
    "EDMAN IR",  // 36
    "FHAR NO",  // 37
    "FOTHO PO",  // 38
    "FONTAH IN",  // 39
    "FORMAH HO",  // 40
    "HAHGEN NA",  // 41
    "PHEREM LO",  // 42
    "RATHIS IS",  // 43
    "ROTHNAN TU",  // 44
    "ROMATH OM",  // 45
    "THAN MA",  // 46
    "TRAH DA",  // 47
    "ZHAND RA",  // 48
    // Lagew
    "LATOS",  // 49
    "LANOTHIS",  // 50
    "LAMBDO",  // 51
    "LATAR",  // 52
    "LANOTH",  // 53
    "LATEN",  // 54
    "LATEEN",  // 55
    "LABANA",  // 56
    "LADONUS",  // 57
    "LABOTH",  // 58
    "LAHMATH",  // 59
    "LAONIHS",  // 60
    "LAPOP",  // 61
    "LAGANIS",  // 62
    "LATHON",  // 63
    "LAJOB",  // 64
    "LATRANOM",  // 65
    "LATODID",  // 66
    "LAMNOM",  // 67
    "LATHOS",  // 68
    "LACIDUS",  // 69
    "LAHOD",  // 70
    "LABONN",  // 71
    "LAGEEW",  // 72
    // Jaytees
    "JANMON JATOM",  // 73
    "JOHTEN JAR",  // 74
    "JOIMUS TAR",  // 75
    "JOMANI ODOM",  // 76
    "JOTIDUN DAR",  // 77
    "JOHMAN EDER",  // 78
    "JOKALD GARD",  // 79
    "JODAL HODEL",  // 80
    "JOSATON TORD",  // 81
    "JASADIN UMAN",  // 82
    "JORAND KAL",  // 83
    "JUMINOS TON",  // 84
    "JALKON IDEN",  // 85
    "JALIMATH THOR",  // 86
    "JOSAMITH ADEN",  // 87
    "JAMATHA ANDEN",  // 88
    "JOMISATH RODD",  // 89
    "JUNIMON GORTH",  // 90
    "JAMANA ZOO",  // 91
    "JNOM ODAH",  // 92
    "JEANDON MORMAH",  // 93
    "JASADTH IDEH",  // 94
    "JEDOH TURNAM",  // 95
    "JEUDOND PAR",  // 96
    // Markeen
    "MA MARKON",  // 97
    "MO MORDAN",  // 98
    "MI MISEN",  // 99
    "MA METHEN",  // 100
    "ME METHO",  // 101
    "MI MANAM",  // 102
    "MA MATEN",  // 103
    "MO MIMIN",  // 104
    "MA MUNTH",  // 105
    "MI MISAD",  // 106
    "MA MOLDON",  // 107
    "MI MISON",  // 108
    "MA MOTHAN",  // 109
    "MI MISAN",  // 110
    "MA MADHTEN",  // 111
    "MI MINIDES",  // 112
    "MA MAHATU",  // 113
    "ME MNOM",  // 114
    "MA MADHON",  // 115
    "MI MADEN",  // 116
    "MA MONTAM",  // 117
    "ME MOOLEN",  // 118
    "MA MAKAMA",  // 119
    "ME MISLAN",  // 120
    // Woot-Am
    "WOOT ROTH AM",  // 121
    "WMAN MADE ON",  // 122
    "WOTA ANDE TI",  // 123
    "WALI THON GA",  // 124
    "WATE ENDE PO",  // 125
    "WHAL TADE GA",  // 126
    "WROL LOME DO",  // 127
    "WAHA LODN LI",  // 128
    "WRAL GHAN DO",  // 129
    "WOND DOTH TH",  // 130
    "WLOD WOOD WU",  // 131
    "WHAN NADE RO",  // 132
    "WIND TEME NU",  // 133
    "WAGA GANE GA",  // 134
    "WITH NOTH NO",  // 135
    "WHAD LOKO NA",  // 136
    "WOON POKO DO",  // 137
    "WODE JOHM ME",  // 138
    "WLAD LAHN EL",  // 139
    "WODO DORE MO",  // 140
    "WOTH AMAT TO",  // 141
    "WOLH IDEH NO",  // 142
    "WOGA MANA DO",  // 143
    "WLAN KHAN GO",  // 144
};

}  // namespace lf::data
