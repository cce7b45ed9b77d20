#include "orders/exchange/spellings.h"

#include <array>

namespace orb::exchange {
namespace {

constexpr std::array Spellings{
    UsualSpellings{"Edi", "edimbourg|edimburgo|edinburg"},
    UsualSpellings{"Lon", "ldn|londres|londra|londen|londyn"},
    UsualSpellings{"Wal", "galles|gales|pays de galles"},
    UsualSpellings{"Bur", "bourgogne|borgogna|borgona|burgund|bourgondie|borgonha|burgundia"},
    UsualSpellings{"Gas", "gascogne|gascogna|gascuna|gascona|gaskogne"},
    UsualSpellings{"Mar", "marsella|marsiglia|marselha|marsylia"},
    UsualSpellings{"Par", "parigi|parijs|paryz"},
    UsualSpellings{"Pic", "picardie|picardia|piccardia|pikardie"},
    UsualSpellings{"Ber", "berlino|berlijn"},
    UsualSpellings{"Mun", "munchen|muenchen|monaco|monachium|monaco di baviera"},
    UsualSpellings{"Pru", "preussen|preusen|prusse|pruisen|prusy|preusse"},
    UsualSpellings{"Ruh", "ruhrgebiet"},
    UsualSpellings{"Sil", "schlesien|silesie|slesia|silezie|slask"},
    UsualSpellings{"Fin", "finlande|finlandia|suomi"},
    UsualSpellings{"Lvn", "lvo|lva|livland|livonie|lijfland|inflanty"},
    UsualSpellings{"Mos", "moskva|moskau|moscou|mosca|moscu|moskou|moskwa|moskova"},
    UsualSpellings{"Sev", "sebastopol|sewastopol|sebastopoli"},
    UsualSpellings{"Stp",
                   "pet|spb|stpete|saint petersburg|st pete|st pet|st p|saint pete|"
                   "petersburg|petrograd|s petersburg|stpt|sankt petersburg|"
                   "saint petersbourg|st petersbourg|san pietroburgo|pietroburgo|"
                   "san petersburgo|sint petersburg"},
    UsualSpellings{"Ukr", "ukraina|ucraina|ucrania|oekraine"},
    UsualSpellings{"War", "warszawa|warschau|varsovie|varsavia|varsovia"},
    UsualSpellings{"Ank", "angora"},
    UsualSpellings{"Arm", "armenien|armenie"},
    UsualSpellings{"Con",
                   "cst|istanbul|cple|konstantinopel|costantinopoli|constantinopla|"
                   "konstantynopol"},
    UsualSpellings{"Smy", "izmir|smirne|esmirna|smirna|smyrne"},
    UsualSpellings{"Syr", "syrien|syrie|siria"},
    UsualSpellings{"Boh", "bohmen|boehmen|boheme|boemia|bohemen|czechy"},
    UsualSpellings{"Bud", "budapeszt"},
    UsualSpellings{"Gal", "galizien|galicie|galizia|galicja"},
    UsualSpellings{"Tri", "trs|triest"},
    UsualSpellings{"Tyr", "tyrol|tirol|tir|tyo|trl|tyl|tirolo"},
    UsualSpellings{"Vie", "wien|wenen|wieden"},
    UsualSpellings{"Apu", "puglia|apulien|pouilles|apulie"},
    UsualSpellings{"Nap", "napoli|neapel|napoles|napels|neapol"},
    UsualSpellings{"Pie", "piemonte|piemont|piamonte"},
    UsualSpellings{"Rom", "roma|rzym"},
    UsualSpellings{"Tus", "toskana|toscane|toscana"},
    UsualSpellings{"Ven", "venezia|venedig|venecia|venetie|wenecja"},
    UsualSpellings{"Alb", "albanien|albanie"},
    UsualSpellings{"Bel", "belgien|belgique|belgio|belgica|belgie|belgia"},
    UsualSpellings{"Bul", "bulgarien|bulgarie"},
    UsualSpellings{"Den", "danemark|danimarca|dinamarca|denemarken|danmark|dania"},
    UsualSpellings{"Gre", "griechenland|grece|grecia|griekenland|grecja|grekland"},
    UsualSpellings{"Hol",
                   "netherlands|the netherlands|hollande|olanda|holanda|niederlande|"
                   "nederland|pays bas|holandia"},
    UsualSpellings{"Naf",
                   "noa|nafr|n africa|north african|nordafrika|afrique du nord|nord africa|"
                   "africa del nord|africa del norte|noord afrika|norte de africa"},
    UsualSpellings{"Nwy", "nrw|norge|norwegen|norvege|norvegia|noruega|noorwegen|norwegia"},
    UsualSpellings{"Por", "portogallo|portugalia"},
    UsualSpellings{"Rum", "romania|roumania|rumanien|rumaenien|roumanie|roemenie|rumunia"},
    UsualSpellings{"Ser", "servia|serbien|serbie"},
    UsualSpellings{"Spa", "spanien|espagne|spagna|espana|spanje|hiszpania|espanha"},
    UsualSpellings{"Swe", "schweden|suede|svezia|suecia|zweden|sverige|szwecja"},
    UsualSpellings{"Tun", "tunisia|tns|tunesien|tunez|tunisi|tunisie"},
    UsualSpellings{"ADR",
                   "ads|adria|adriatico|adriatique|mar adriatico|mare adriatico|"
                   "mer adriatique|adriatisches meer|adriatische meer|adriatische zee"},
    UsualSpellings{"AEG",
                   "agais|egee|egeo|mer egee|mar egeo|mare egeo|egeische zee|agaisches meer|"
                   "agaische meer"},
    UsualSpellings{"BAL",
                   "bls|blt|bas|ostsee|baltique|mer baltique|mar baltico|mare baltico|"
                   "oostzee|ostersjon|ostersoen|morze baltyckie"},
    UsualSpellings{"BAR",
                   "brs|bas|barentssee|mer de barents|mare di barents|mar de barents|"
                   "barentszzee"},
    UsualSpellings{"BLA",
                   "bls|blk|schwarzes meer|schwarze meer|mer noire|mar nero|mare nero|"
                   "mar negro|zwarte zee|morze czarne|svarta havet|sortehavet"},
    UsualSpellings{"BOT",
                   "gob|gbo|bothnia|gulf bothnia|g of bothnia|gulf of both|"
                   "bottnischer meerbusen|bottnischen meerbusen|golfe de botnie|"
                   "golfo di botnia|golfo de botnia|botnische golf|bottenviken|botnia"},
    UsualSpellings{"EAS",
                   "eme|emd|emed|e med|e mediterranean|east mediterranean|"
                   "ostliches mittelmeer|ostliche mittelmeer|mediterranee orientale|"
                   "mediterraneo orientale|mediterraneo oriental"},
    UsualSpellings{"ECH",
                   "eng|enc|channel|chan|chn|e channel|armelkanal|kanal|manche|manica|mancha|"
                   "canal de la mancha|canal da mancha|kanaal|kanalen|engelska kanalen"},
    UsualSpellings{"GOL",
                   "lyo|gly|gln|lyon|lyons|gulf of lyons|gulf of lions|gulf lyon|"
                   "gulf of the lion|g of lyon|golyon|golfe du lion|golfo di leone|"
                   "golfo del leone|golfo de leon|golf von lyon|golf van lyon"},
    UsualSpellings{"HEL", "heb|hgb|heligoland|heligoland bight|helig|helgolander bucht"},
    UsualSpellings{"ION",
                   "ios|ionisches meer|ionische meer|mer ionienne|mar ionio|mare ionio|"
                   "mar jonico|ionio|jonio|ionische zee"},
    UsualSpellings{"IRI", "irs|irische see|mer dirlande|mare dirlanda|mar de irlanda|ierse zee"},
    UsualSpellings{"MAO",
                   "matl|mda|mida|middle atlantic|m atlantic|mid atlantic|mittelatlantik|"
                   "atlantico medio|medio atlantico|atlantique central"},
    UsualSpellings{"NAO",
                   "nat|natl|n atlantic|n atlantic ocean|n atl|noa|nordatlantik|"
                   "atlantique nord|atlantico nord|atlantico norte"},
    UsualSpellings{"NTH",
                   "nts|nos|nsea|n sea|nths|nth sea|nordsee|mer du nord|mare del nord|"
                   "mar del norte|mar do norte|noordzee|nordsjon|nordsoen|nordsjoen|"
                   "morze polnocne"},
    UsualSpellings{"NWG",
                   "nrg|nwe|nws|nwgs|nwg sea|norwegische see|norwegisches meer|"
                   "mer de norvege|mare di norvegia|mar de noruega|noorse zee|norska havet|"
                   "norskehavet"},
    UsualSpellings{"TYS",
                   "tyn|tyh|trs|tyrh|tyrrh|tyrrhenisches meer|tyrrhenische meer|"
                   "mer tyrrhenienne|mar tirreno|mare tirreno|tirreno|tyrrheense zee"},
    UsualSpellings{"WES",
                   "wme|wmd|wmed|w med|w mediterranean|west mediterranean|"
                   "westliches mittelmeer|westliche mittelmeer|mediterranee occidentale|"
                   "mediterraneo occidentale|mediterraneo occidental"},
    UsualSpellings{"Lvp", "lpl|lip|lpool"},
    UsualSpellings{"SKA", "sgk|skg|skaggerak|skaggerrak|skagerak|skagerrack"},
    UsualSpellings{"Yor", "yorks|yrk"},
};

}  // namespace

std::span<const UsualSpellings> AllUsualSpellings() {
  return Spellings;
}

}  // namespace orb::exchange
