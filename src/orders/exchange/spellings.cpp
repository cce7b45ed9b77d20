#include "orders/exchange/spellings.h"

#include <array>

namespace orb::exchange {
namespace {

constexpr std::array Spellings{
    UsualSpellings{"Edi", "edimbourg|edimburgo|edinburg|edynburg|edimburg"},
    UsualSpellings{"Lon", "ldn|londres|londra|londen|londyn"},
    UsualSpellings{"Wal", "galles|gales|pays de galles|walia|pais de gales"},
    UsualSpellings{"Bur", "bourgogne|borgogna|borgona|burgund|bourgondie|borgonha|burgundia"},
    UsualSpellings{"Gas", "gascogne|gascogna|gascuna|gascona|gaskogne|gasconha|gaskonia"},
    UsualSpellings{"Mar", "marsella|marsiglia|marselha|marsylia"},
    UsualSpellings{"Par", "parigi|parijs|paryz"},
    UsualSpellings{"Pic", "picardie|picardia|piccardia|pikardie|pikardia"},
    UsualSpellings{"Ber", "berlino|berlijn|berlim"},
    UsualSpellings{"Kie", "kilonia"},
    UsualSpellings{"Mun", "munchen|muenchen|monaco|monachium|monaco di baviera|munique"},
    UsualSpellings{"Pru", "preussen|preusen|prusse|pruisen|prusy|preusse"},
    UsualSpellings{"Ruh", "ruhrgebiet|ruhrgebied|ruhromradet|zaglebie ruhry|zaglebie"},
    UsualSpellings{"Sil", "schlesien|silesie|slesia|silezie|slask|silezja"},
    UsualSpellings{"Fin", "finlande|finlandia|suomi"},
    UsualSpellings{"Lvn", "lvo|lva|livland|livonie|lijfland|inflanty|liwonia"},
    UsualSpellings{"Mos", "moskva|moskau|moscou|mosca|moscu|moskou|moskwa|moskova|moscovo"},
    UsualSpellings{"Sev", "sebastopol|sewastopol|sebastopoli"},
    UsualSpellings{"Stp",
                   "pet|spb|stpete|saint petersburg|st pete|st pet|st p|saint pete|petersburg|"
                   "petrograd|s petersburg|stpt|sankt petersburg|saint petersbourg|st petersbourg|"
                   "san pietroburgo|pietroburgo|san petersburgo|sint petersburg|sao petersburgo|"
                   "st petersburgo|petersbourg|petersburgo|sankt petersborg|st petersborg"},
    UsualSpellings{"Ukr", "ukraina|ucraina|ucrania|oekraine"},
    UsualSpellings{"War", "warszawa|warschau|varsovie|varsavia|varsovia"},
    UsualSpellings{"Ank", "angora|ancara"},
    UsualSpellings{"Arm", "armenien|armenie"},
    UsualSpellings{
        "Con",
        "kon|cst|istanbul|cple|konstantinopel|costantinopoli|constantinopla|konstantynopol|"
        "istambul|estambul|stambul"},
    UsualSpellings{"Smy", "izmir|smirne|esmirna|smirna|smyrne"},
    UsualSpellings{"Syr", "syrien|syrie|siria"},
    UsualSpellings{"Boh", "bohmen|boehmen|boheme|boemia|bohemen|czechy"},
    UsualSpellings{"Bud", "budapeszt|boedapest|budapeste"},
    UsualSpellings{"Gal", "galizien|galicie|galizia|galicja|galitzia|galitzien"},
    UsualSpellings{"Tri", "trs|triest"},
    UsualSpellings{"Tyr", "tyrol|tirol|tir|tyo|trl|tyl|tirolo|tyrolen"},
    UsualSpellings{"Vie", "wien|wenen|wieden"},
    UsualSpellings{"Apu", "puglia|apulien|pouilles|apulie|puglie"},
    UsualSpellings{"Nap", "napoli|neapel|napoles|napels|neapol"},
    UsualSpellings{"Pie", "piemonte|piemont|piamonte"},
    UsualSpellings{"Rom", "roma|rzym"},
    UsualSpellings{"Tus", "toskana|toscane|toscana|toskania"},
    UsualSpellings{"Ven", "venezia|venedig|venecia|venetie|wenecja|veneza"},
    UsualSpellings{"Alb", "albanien|albanie"},
    UsualSpellings{"Bel", "belgien|belgique|belgio|belgica|belgie|belgia"},
    UsualSpellings{"Bul", "bulgarien|bulgarie|bulgarije"},
    UsualSpellings{"Den", "danemark|danimarca|dinamarca|denemarken|danmark|dania"},
    UsualSpellings{"Gre", "griechenland|grece|grecia|griekenland|grecja|grekland|hellas"},
    UsualSpellings{"Hol",
                   "netherlands|the netherlands|hollande|olanda|holanda|niederlande|nederland|"
                   "pays bas|holandia"},
    UsualSpellings{"Naf",
                   "noa|nafr|n africa|north african|nordafrika|afrique du nord|nord africa|"
                   "africa del nord|africa del norte|noord afrika|norte de africa|africa do norte|"
                   "afryka polnocna|afrique nord"},
    UsualSpellings{"Nwy", "nrw|norge|norwegen|norvege|norvegia|noruega|noorwegen|norwegia"},
    UsualSpellings{"Por", "portogallo|portugalia"},
    UsualSpellings{"Rum", "romania|roumania|rumanien|rumaenien|roumanie|roemenie|rumunia|romenia"},
    UsualSpellings{"Ser", "servia|serbien|serbie|servie"},
    UsualSpellings{"Spa", "esp|spanien|espagne|spagna|espana|spanje|hiszpania|espanha|spania"},
    UsualSpellings{"Swe", "sve|schweden|suede|svezia|suecia|zweden|sverige|szwecja"},
    UsualSpellings{"Tun", "tunisia|tns|tunesien|tunez|tunisi|tunisie|tunezja"},
    UsualSpellings{"ADR",
                   "ads|adria|adriatico|adriatique|mar adriatico|mare adriatico|mer adriatique|"
                   "adriatisches meer|adriatische meer|adriatische zee|adriatyk|morze adriatyckie|"
                   "adriatiska havet|adriaterhavet"},
    UsualSpellings{"AEG",
                   "agais|egee|egeo|mer egee|mar egeo|mare egeo|egeische zee|agaisches meer|"
                   "agaische meer|egeu|mar egeu|morze egejskie|egeiska havet|egeerhavet|"
                   "agaiska havet"},
    UsualSpellings{"BAL",
                   "bls|blt|bas|ostsee|baltique|mer baltique|mar baltico|mare baltico|oostzee|"
                   "ostersjon|ostersoen|morze baltyckie|baltico|baltyk|ostersjoen"},
    UsualSpellings{"BAR",
                   "brs|bas|barentssee|mer de barents|mare di barents|mar de barents|barentszzee|"
                   "barentshavet|barents hav|morze barentsa|barentszee"},
    UsualSpellings{"BLA",
                   "bls|blk|schwarzes meer|schwarze meer|mer noire|mar nero|mare nero|mar negro|"
                   "zwarte zee|morze czarne|svarta havet|sortehavet|schwarzmeer|svartehavet"},
    UsualSpellings{"BOT",
                   "gob|gbo|bothnia|gulf bothnia|g of bothnia|gulf of both|bottnischer meerbusen|"
                   "bottnischen meerbusen|golfe de botnie|golfo di botnia|golfo de botnia|"
                   "botnische golf|bottenviken|botnia|bottenhavet|bottniska viken|bottniske bugt|"
                   "zatoka botnicka|bottenvik|golfo botnia"},
    UsualSpellings{"EAS",
                   "eme|emd|emed|e med|e mediterranean|east mediterranean|ostliches mittelmeer|"
                   "ostliche mittelmeer|mediterranee orientale|mediterraneo orientale|"
                   "mediterraneo oriental|ostra medelhavet|ostlige middelhav|"
                   "oostelijke middellandse zee|oost middellandse zee|wschodnie morze srodziemne|"
                   "ostmittelmeer|mediterranee est"},
    UsualSpellings{
        "ECH",
        "eng|enc|channel|chan|chn|e channel|armelkanal|kanal|manche|manica|mancha|"
        "canal de la mancha|canal da mancha|kanaal|kanalen|engelska kanalen|canal|"
        "la manche|engelske kanal|engelse kanaal|kanal la manche|canal ingles|canale della manica"},
    UsualSpellings{"GOL",
                   "lyo|gly|gln|lyon|lyons|gulf of lyons|gulf of lions|gulf lyon|gulf of the lion|"
                   "g of lyon|golyon|golfe du lion|golfo di leone|golfo del leone|golfo de leon|"
                   "golf von lyon|golf van lyon|golfe de lyon|golfo de leao|golfo de lion|"
                   "golfo di lione|zatoka lwia|lionbukten|lionviken|golf van lion|golf de lyon"},
    UsualSpellings{"HEL",
                   "heb|hgb|heligoland|heligoland bight|helig|helgolander bucht|helgoland|"
                   "baie de heligoland|baie de helgoland|baia di helgoland|bahia de heligoland|"
                   "bahia de helgoland|baia de heligolandia|bocht van helgoland|helgolandsbukten|"
                   "helgolandbukta|zatoka helgolandzka|deutsche bucht"},
    UsualSpellings{"ION",
                   "ios|ionisches meer|ionische meer|mer ionienne|mar ionio|mare ionio|mar jonico|"
                   "ionio|jonio|ionische zee|mar ionico|ionico|jonico|mer ionique|mare jonio|"
                   "joniska havet|ioniske hav|joniske hav|morze jonskie|jonische zee|ionische see|"
                   "ionienne"},
    UsualSpellings{"IRI",
                   "irs|irische see|mar de irlanda|ierse zee|mer d'irlande|mare d'irlanda|"
                   "mar da irlanda|irlandska sjon|irske hav|irskesjoen|irskesjon|morze irlandzkie|"
                   "irisches meer"},
    UsualSpellings{
        "MAO",
        "matl|mda|mida|middle atlantic|m atlantic|mid atlantic|mittelatlantik|"
        "atlantico medio|medio atlantico|atlantique central|atlantique|atlantico|"
        "atlantik|atlanten|atlanterhavet|atlantyk|atlantische oceaan|"
        "mittlerer atlantik|atlantique centre|atlantique moyen|atlantico centrale|"
        "atlantico central|mid atlantische oceaan|midden atlantische oceaan|"
        "mellersta atlanten|mittatlanten|midtatlanten|srodkowy atlantyk|"
        "oceano atlantico|ocean atlantique|oceano atlantico medio|oceano atlantico central"},
    UsualSpellings{"NAO",
                   "nat|natl|n atlantic|n atlantic ocean|n atl|noa|nordatlantik|atlantique nord|"
                   "atlantico nord|atlantico norte|atlantique|atlantico|atlantik|atlanten|"
                   "atlanterhavet|atlantyk|atlantische oceaan|oceano atlantico|ocean atlantique|"
                   "nordlicher atlantik|atlantico del norte|atlantico do norte|nord atlantico|"
                   "atlantico del nord|nordatlanten|noord atlantische oceaan|polnocny atlantyk|"
                   "atlantique du nord"},
    UsualSpellings{"NTH",
                   "nts|nos|nsea|n sea|nths|nth sea|nordsee|mer du nord|mare del nord|"
                   "mar del norte|mar do norte|noordzee|nordsjon|nordsoen|nordsjoen|"
                   "morze polnocne|nordsjo|nordso"},
    UsualSpellings{"NWG",
                   "nrg|nwe|nws|nwgs|nwg sea|norwegische see|norwegisches meer|mer de norvege|"
                   "mare di norvegia|mar de noruega|noorse zee|norska havet|norskehavet|"
                   "mar da noruega|norwegensee|europaisches nordmeer|norska sjon|morze norweskie|"
                   "mer norvegienne|mar noruego"},
    UsualSpellings{"TYS",
                   "tyn|tyh|trs|tyrh|tyrrh|tyrrhenisches meer|tyrrhenische meer|mer tyrrhenienne|"
                   "mar tirreno|mare tirreno|tirreno|tyrrheense zee|tyrrhenienne|tyrrenska havet|"
                   "tyrrhenska havet|tyrrhenske hav|tyrrenske hav|tyrrenhavet|morze tyrrenskie|"
                   "tyrrhenische see"},
    UsualSpellings{"WES",
                   "wme|wmd|wmed|w med|w mediterranean|west mediterranean|westliches mittelmeer|"
                   "westliche mittelmeer|mediterranee occidentale|mediterraneo occidentale|"
                   "mediterraneo occidental|vastra medelhavet|vestlige middelhav|"
                   "westelijke middellandse zee|west middellandse zee|zachodnie morze srodziemne|"
                   "westmittelmeer|mediterraneo ocidental|mediterranee ouest"},
    UsualSpellings{"Lvp", "lpl|lip|lpool"},
    UsualSpellings{"SKA", "sgk|skg|skaggerak|skaggerrak|skagerak|skagerrack"},
    UsualSpellings{"Yor", "yorks|yrk"},
};

}  // namespace

std::span<const UsualSpellings> AllUsualSpellings() {
  return Spellings;
}

}  // namespace orb::exchange
