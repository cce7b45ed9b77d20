#pragma once

#include <array>
#include <string_view>

namespace orb::exchange {

using std::string_view_literals::operator""sv;

// Words that may stand at certain places of an order and add nothing to it.
inline constexpr std::array<std::string_view, 29> InWords{
    "z",         "ze",        "uit", "desde",     "depuis", "in",    "at",  "from", "of",  "the",
    "presently", "currently", "now", "stationed", "based",  "von",   "aus", "di",   "van", "fra",
    "fran",      "da",        "du",  "del",       "della",  "dello", "de",  "i",    "en"};
/// The same, right behind a type.
inline constexpr std::array TypeInWords{"a"sv,  "em"sv,   "no"sv,  "na"sv,  "w"sv,     "u"sv,
                                        "do"sv, "dans"sv, "im"sv,  "nel"sv, "nella"sv, "nello"sv,
                                        "al"sv, "au"sv,   "ved"sv, "we"sv};
inline constexpr std::array AllWords{"all"sv,       "alle"sv,  "tous"sv,  "toutes"sv, "tutti"sv,
                                     "tutte"sv,     "todos"sv, "todas"sv, "both"sv,   "allemaal"sv,
                                     "wszystkie"sv, "each"sv,  "beide"sv};
/// They remove a unit, but before a place it goes there.
inline constexpr std::array ReturnWords{"retira"sv, "retire"sv, "retiro"sv, "retirar"sv,
                                        "ritira"sv, "ritiro"sv, "retirer"sv};
inline constexpr std::array ViaWords{"via"sv,  "by"sv,    "using"sv, "with"sv, "through"sv,
                                     "par"sv,  "over"sv,  "mit"sv,   "met"sv,  "med"sv,
                                     "door"sv, "przez"sv, "per"sv,   "com"sv,  "por"sv};
inline constexpr std::array SeaWords{
    "convoy"sv,  "convoys"sv, "sea"sv,      "c"sv,        "water"sv,     "cv"sv,
    "konvoi"sv,  "konvoj"sv,  "convoi"sv,   "konwoj"sv,   "convoglio"sv, "comboio"sv,
    "konvooi"sv, "convooi"sv, "konvojen"sv, "konvoien"sv, "k"sv,         "konwoju"sv};
inline constexpr std::array<std::string_view, 48> HoldTails{
    "kvar",     "gewoon",   "natuurlijk", "naturlich",  "der",        "den",         "er",
    "is",       "staan",    "stehen",     "dort",       "tight",      "put",         "position",
    "fast",     "still",    "in",         "place",      "firm",       "home",        "strong",
    "steady",   "there",    "where",      "it",         "they",       "ferma",       "parada",
    "stellung", "posicion", "posizione",  "stand",      "stillingen", "stallningen", "pozycje",
    "staende",  "parado",   "hvor",       "dar",        "ar",         "stilling",    "liggen",
    "quieto",   "quieta",   "quietos",    "tranquillo", "tranquille", "rustig"};
inline constexpr std::array<std::string_view, 51> MoveTails{
    "sur",   "sie",     "tillbaka", "wstecz",  "dans",   "nel",     "ship",  "course",   "sail",
    "way",   "bound",   "rumbo",    "rotta",   "route",  "cap",     "large", "straight", "kurs",
    "sich",  "zich",    "sig",      "seg",     "ab",     "vor",     "back",  "zuruck",   "zurueck",
    "terug", "tilbage", "tilbake",  "against", "toward", "towards", "on",    "upon",     "for",
    "in",    "ins",     "im",       "over",    "across", "out",     "up",    "en",       "down",
    "get",   "off",     "home",     "round",   "around", "along"};
/// Before another unit's move that is helped: "the attack of Paris on Burgundy".
inline constexpr std::array Nouns{
    "move"sv,    "attack"sv,   "advance"sv,   "of"sv,        "for"sv,        "from"sv,
    "angriff"sv, "zug"sv,      "vormarsch"sv, "von"sv,       "attaque"sv,    "mouvement"sv,
    "avance"sv,  "de"sv,       "des"sv,       "ataque"sv,    "movimiento"sv, "attacco"sv,
    "mossa"sv,   "avanzata"sv, "di"sv,        "movimento"sv, "avanco"sv,     "do"sv,
    "da"sv,      "aanval"sv,   "zet"sv,       "opmars"sv,    "van"sv,        "angrebet"sv,
    "angreb"sv,  "angrepet"sv, "angrep"sv,    "fra"sv,       "anfallet"sv,   "anfall"sv,
    "fran"sv,    "draget"sv,   "trekket"sv,   "traekket"sv,  "atak"sv,       "ruch"sv};
inline constexpr std::array<std::string_view, 12> CountingWords{
    "one", "two", "a", "all", "remaining", "rest", "any", "other", "of", "both", "last", "for"};

}  // namespace orb::exchange
