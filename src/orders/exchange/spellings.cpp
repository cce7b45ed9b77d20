#include "orders/exchange/spellings.h"

#include <array>

namespace orb::exchange {
namespace {

constexpr std::array Spellings{
    UsualSpellings{"Edi", "edynburgu|edynburga|edimbourg|edimburgo|edinburg|edynburg|edimburg"},
    UsualSpellings{"Lon", "londynie|londynu|ldn|londres|londra|londen|londyn"},
    UsualSpellings{"Wal", "walii|galles|gales|pays de galles|walia|pais de gales"},
    UsualSpellings{"Bur",
                   "burgundii|bourgogne|borgogna|borgona|burgund|bourgondie|borgonha|burgundia"},
    UsualSpellings{"Gas", "gaskonii|gascogne|gascogna|gascuna|gascona|gaskogne|gasconha|gaskonia"},
    UsualSpellings{"Mar", "marsylii|marsella|marsiglia|marselha|marsylia"},
    UsualSpellings{"Par", "paryza|paryzu|paryza|parigi|parijs|paryz"},
    UsualSpellings{"Pic",
                   "picardiet|pikardiet|pikardii|picardie|picardia|piccardia|pikardie|pikardia"},
    UsualSpellings{"Ber", "berlinie|berlina|berlino|berlijn|berlim"},
    UsualSpellings{"Kie", "kilonii|kilonia"},
    UsualSpellings{"Mun", "munchen|muenchen|monaco|monachium|monaco di baviera|munique"},
    UsualSpellings{"Pru", "projsen|prus|preussen|preusen|prusse|pruisen|prusy|preusse"},
    UsualSpellings{"Ruh", "ruhrgebiet|ruhrgebied|ruhromradet|zaglebie ruhry|zaglebie"},
    UsualSpellings{"Sil", "slaska|schlesien|silesie|slesia|silezie|slask|silezja"},
    UsualSpellings{"Fin", "finlandii|finlande|finlandia|suomi"},
    UsualSpellings{
        "Lvn",
        "letland|lettland|letonia|inflant|lvo|lva|livland|livonie|lijfland|inflanty|liwonia"},
    UsualSpellings{"Mos",
                   "moskwie|moskwy|moskva|moskau|moscou|mosca|moscu|moskou|moskwa|moskova|moscovo"},
    UsualSpellings{"Sev", "sewastopolu|sewastopola|sebastopol|sewastopol|sebastopoli"},
    UsualSpellings{
        "Stp",
        "petersburgu|petersburga|sankt petersburga|pet|spb|stpete|saint petersburg|st pete|st "
        "pet|st p|saint pete|petersburg|"
        "petrograd|s petersburg|stpt|sankt petersburg|saint petersbourg|st petersbourg|"
        "san pietroburgo|pietroburgo|san petersburgo|sint petersburg|sao petersburgo|"
        "st petersburgo|petersbourg|petersburgo|sankt petersborg|st petersborg"},
    UsualSpellings{"Ukr", "ukrainy|ukraina|ucraina|ucrania|oekraine"},
    UsualSpellings{"War", "warszawie|warszawy|warszawa|warschau|varsovie|varsavia|varsovia"},
    UsualSpellings{"Ank", "ankarze|ankary|angora|ancara"},
    UsualSpellings{"Arm", "armenii|armenien|armenie"},
    UsualSpellings{
        "Con",
        "konstantynopolu|konstantynopola|kon|cst|istanbul|cple|konstantinopel|costantinopoli|"
        "constantinopla|konstantynopol|"
        "istambul|estambul|stambul"},
    UsualSpellings{"Smy", "smyrnie|smyrny|izmir|smirne|esmirna|smirna|smyrne"},
    UsualSpellings{"Syr", "syrii|syrien|syrie|siria"},
    UsualSpellings{"Boh", "czech|bohmen|boehmen|boheme|boemia|bohemen|czechy"},
    UsualSpellings{"Bud", "budapeszcie|budapesztu|budapeszt|boedapest|budapeste"},
    UsualSpellings{"Gal", "galicji|galizien|galicie|galizia|galicja|galitzia|galitzien"},
    UsualSpellings{"Tri", "triescie|triestu|trs|triest"},
    UsualSpellings{"Tyr", "tyrolu|tyrol|tirol|tir|tyo|trl|tyl|tirolo|tyrolen"},
    UsualSpellings{"Vie", "wiedniu|wiednia|wien|wenen|wieden"},
    UsualSpellings{"Apu", "apulii|puglia|apulien|pouilles|apulie|puglie"},
    UsualSpellings{"Nap", "neapolu|napoli|neapel|napoles|napels|neapol"},
    UsualSpellings{"Pie", "piemontu|piemonte|piemont|piamonte"},
    UsualSpellings{"Rom", "rzymie|rzymu|roma|rzym"},
    UsualSpellings{"Tus", "tos|toskanii|toskana|toscane|toscana|toskania"},
    UsualSpellings{"Ven", "wenecji|venezia|venedig|venecia|venetie|wenecja|veneza"},
    UsualSpellings{"Alb", "albanii|albanien|albanie"},
    UsualSpellings{"Bel", "belgii|belgien|belgique|belgio|belgica|belgie|belgia"},
    UsualSpellings{"Bul", "bulgarii|bulgarien|bulgarie|bulgarije"},
    UsualSpellings{"Den", "danii|danemark|danimarca|dinamarca|denemarken|danmark|dania"},
    UsualSpellings{
        "Gre", "grakenland|grecji|griechenland|grece|grecia|griekenland|grecja|grekland|hellas"},
    UsualSpellings{
        "Hol",
        "holandii|netherlands|the netherlands|hollande|olanda|holanda|niederlande|nederland|"
        "pays bas|holandia"},
    UsualSpellings{
        "Naf",
        "norte da africa|noa|nafr|n africa|north african|nordafrika|afrique du nord|nord africa|"
        "africa del nord|africa del norte|noord afrika|norte de africa|africa do norte|"
        "afryka polnocna|afrique nord"},
    UsualSpellings{"Nwy",
                   "norwegii|nrw|norge|norwegen|norvege|norvegia|noruega|noorwegen|norwegia"},
    UsualSpellings{"Por", "portugalii|portogallo|portugalia"},
    UsualSpellings{"Rum",
                   "rumunii|romania|roumania|rumanien|rumaenien|roumanie|roemenie|rumunia|romenia"},
    UsualSpellings{"Ser", "serbii|servia|serbien|serbie|servie"},
    UsualSpellings{"Spa",
                   "hiszpanii|esp|spanien|espagne|spagna|espana|spanje|hiszpania|espanha|spania"},
    UsualSpellings{"Swe", "szwecji|sve|schweden|suede|svezia|suecia|zweden|sverige|szwecja"},
    UsualSpellings{"Tun", "tunezji|tunisia|tns|tunesien|tunez|tunisi|tunisie|tunezja"},
    UsualSpellings{"ADR",
                   "adriatyku|morza adriatyckiego|ads|adria|adriatico|adriatique|mar "
                   "adriatico|mare adriatico|mer adriatique|"
                   "adriatisches meer|adriatische meer|adriatische zee|adriatyk|morze adriatyckie|"
                   "adriatiska havet|adriaterhavet"},
    UsualSpellings{"AEG",
                   "det agaiske hav|agaiske hav|morza egejskiego|agais|egee|egeo|mer egee|mar "
                   "egeo|mare egeo|egeische zee|agaisches meer|"
                   "agaische meer|egeu|mar egeu|morze egejskie|egeiska havet|egeerhavet|"
                   "agaiska havet"},
    UsualSpellings{
        "BAL",
        "baltische zee|morza baltyckiego|baltyku|bls|blt|bas|ostsee|baltique|mer baltique|mar "
        "baltico|mare baltico|oostzee|"
        "ostersjon|ostersoen|morze baltyckie|baltico|baltyk|ostersjoen"},
    UsualSpellings{"BAR",
                   "morza barentsa|brs|bas|barentssee|mer de barents|mare di barents|mar de "
                   "barents|barentszzee|"
                   "barentshavet|barents hav|morze barentsa|barentszee"},
    UsualSpellings{
        "BLA",
        "morzu czarnym|morza czarnego|bls|blk|schwarzes meer|schwarze meer|mer noire|mar nero|mare "
        "nero|mar negro|"
        "zwarte zee|morze czarne|svarta havet|sortehavet|schwarzmeer|svartehavet"},
    UsualSpellings{"BOT",
                   "zatoki botnickiej|gob|gbo|bothnia|gulf bothnia|g of bothnia|gulf of "
                   "botnia|gulf of bottnia|gulf of "
                   "both|bottnischer meerbusen|"
                   "bottnischen meerbusen|golfe de botnie|golfo di botnia|golfo de botnia|"
                   "botnische golf|bottenviken|botnia|bottenhavet|bottniska viken|bottniske "
                   "bugt|botniske bugt|den botniske bugt|"
                   "zatoka botnicka|bottenvik|golfo botnia"},
    UsualSpellings{"EAS",
                   "eme|emd|emed|e med|e mediterranean|east mediterranean|ostliches mittelmeer|"
                   "ostliche mittelmeer|mediterranee orientale|mediterraneo orientale|"
                   "mediterraneo oriental|ostra medelhavet|ostlige middelhav|"
                   "oostelijke middellandse zee|oost middellandse zee|wschodnie morze srodziemne|"
                   "ostmittelmeer|mediterranee est"},
    UsualSpellings{"ECH",
                   "engels kanaal|kanalu|kanalu la manche|eng|enc|channel|chan|chn|e "
                   "channel|armelkanal|kanal|manche|manica|mancha|"
                   "canal de la mancha|canal da mancha|kanaal|kanalen|engelska kanalen|canal|"
                   "la manche|englischen kanal|englischer kanal|engelske kanal|den engelske "
                   "kanal|engelse kanaal|kanal la "
                   "manche|canal ingles|canale della manica"},
    UsualSpellings{"GOL",
                   "lyonbugten|lyonbukta|lyo|gly|gln|lyon|lyons|gulf of lyons|gulf of lions|gulf "
                   "lyon|gulf of the lion|"
                   "g of lyon|golyon|golfe du lion|golfo di leone|golfo del leone|golfo de leon|"
                   "golf von lyon|golf van lyon|golfe de lyon|golfo de leao|golfo de lion|"
                   "golfo di lione|zatoka lwia|lionbukten|lionviken|golf van lion|golf de lyon"},
    UsualSpellings{"HEL",
                   "baie d'heligoland|helgolandbocht|duitse bocht|heb|hgb|heligoland|heligoland "
                   "bight|helig|helgolander bucht|helgoland|"
                   "baie de heligoland|baie de helgoland|baia di helgoland|bahia de heligoland|"
                   "bahia de helgoland|baia de heligolandia|bocht van helgoland|helgolandsbukten|"
                   "helgolandbukta|zatoka helgolandzka|deutsche bucht"},
    UsualSpellings{
        "ION",
        "det ioniske hav|morzu jonskim|morza jonskiego|ios|ionisches meer|ionische meer|mer "
        "ionienne|mar ionio|mare "
        "ionio|mar jonico|"
        "ionio|jonio|ionische zee|mar ionico|ionico|jonico|mer ionique|mare jonio|"
        "joniska havet|ioniske hav|joniske hav|morze jonskie|jonische zee|ionische see|"
        "ionienne"},
    UsualSpellings{"IRI",
                   "det irske hav|morza irlandzkiego|irs|irische see|mar de irlanda|ierse zee|mer "
                   "d'irlande|mare d'irlanda|"
                   "mar da irlanda|irlandska sjon|irske hav|irskesjoen|irskesjon|morze irlandzkie|"
                   "irisches meer"},
    UsualSpellings{
        "MAO",
        "milieu atlantique|mellanatlanten|atlantic|matl|mda|mida|middle "
        "atlantic|m atlantic|mid atlantic|mittelatlantik|"
        "atlantico medio|medio atlantico|atlantique central|atlantique|atlantico|"
        "atlantik|atlanten|atlanterhavet|atlantyk|atlantyk srodkowy|atlantische oceaan|"
        "mittlerer atlantik|mittlerer atlantic|mittl atlantik|mittl atlantic|atlantique "
        "centre|atlantique moyen|atlantico centrale|"
        "atlantico central|mid atlantische oceaan|midden atlantische oceaan|"
        "mellersta atlanten|mittatlanten|midtatlanten|srodkowy atlantyk|"
        "oceano atlantico|ocean atlantique|oceano atlantico medio|oceano atlantico central"},
    UsualSpellings{"NAO",
                   "atlantic|nordlicher atlantik|nordlicher atlantic|nat|natl|n atlantic|n "
                   "atlantic ocean|n atl|noa|nordatlantik|atlantique nord|"
                   "atlantico nord|atlantico norte|atlantique|atlantico|atlantik|atlanten|"
                   "atlanterhavet|atlantyk|atlantische oceaan|oceano atlantico|ocean atlantique|"
                   "nordlicher atlantik|atlantico del norte|atlantico do norte|nord atlantico|"
                   "atlantico del nord|nordatlanten|noord atlantische oceaan|polnocny atlantyk|"
                   "atlantique du nord"},
    UsualSpellings{"NTH",
                   "morzu polnocnym|morza polnocnego|nts|nos|nsea|n sea|nths|nth sea|nordsee|mer "
                   "du nord|mare del nord|"
                   "mar del norte|mar do norte|noordzee|nordsjon|nordsoen|nordsjoen|"
                   "morze polnocne|nordsjo|nordso"},
    UsualSpellings{
        "NWG",
        "nordmeer|morza norweskiego|nrg|nwe|nws|nwgs|nwg sea|norwegische see|norwegisches "
        "meer|mer de norvege|"
        "mare di norvegia|mar de noruega|noorse zee|norska havet|norskehavet|"
        "mar da noruega|norwegensee|europaisches nordmeer|norska sjon|morze norweskie|"
        "mer norvegienne|mar noruego"},
    UsualSpellings{"TYS",
                   "tir|tyrreense zee|det tyrrhenske hav|morza "
                   "tyrrenskiego|tyn|tyh|trs|tyrh|tyrrh|tyrrhenisches meer|tyrrhenische "
                   "meer|mer tyrrhenienne|"
                   "mar tirreno|mare tirreno|tirreno|tyrrheense zee|tyrrhenienne|tyrrenska havet|"
                   "tyrrhenska havet|tyrrhenske hav|tyrrenske hav|tyrrenhavet|morze tyrrenskie|"
                   "tyrrhenische see"},
    UsualSpellings{"WES",
                   "wme|wmd|wmed|w med|w mediterranean|west mediterranean|westliches mittelmeer|"
                   "westliche mittelmeer|mediterranee occidentale|mediterraneo occidentale|"
                   "mediterraneo occidental|vastra medelhavet|vestlige middelhav|"
                   "westelijke middellandse zee|west middellandse zee|zachodnie morze srodziemne|"
                   "westmittelmeer|mediterraneo ocidental|mediterranee ouest"},
    UsualSpellings{"Lvp", "liverpoolu|lpl|lip|lpool"},
    UsualSpellings{"SKA", "skagerraku|sgk|skg|skaggerak|skaggerrak|skagerak|skagerrack"},
    UsualSpellings{"Bre", "brescie|brestu"},
    UsualSpellings{"Yor", "yorks|yrk"},
};

}  // namespace

std::span<const UsualSpellings> AllUsualSpellings() {
  return Spellings;
}

}  // namespace orb::exchange
