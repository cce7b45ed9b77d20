#include "orders/exchange/signal_words.h"

#include "orders/exchange/stem_table.h"

#include <array>

namespace orb::exchange {
namespace {

struct SignalRow {
  Signal Means;
  std::string_view Words;  ///< separated by blanks; "x*": any word that begins so
};

// English, German, French, Spanish, Italian, Portuguese, Dutch, Danish and Norwegian, Swedish,
// Polish, row by row. A word missing here may file an order that nobody meant.
constexpr std::array SignalRows{
    SignalRow{
        Signal::Points,
        "these those them ones above line lines row others same last previous first second third "
        "order orders list lists version two half some none "
        "diese dieser dieses denen ihnen oben zeile zeilen anderen gleichen selben letzte letzten "
        "vorigen erste ersten zweite zweiten befehl befehle zug zuge "
        "pareil ceux celles ceci dernier derniere derniers precedents premier premiere memes "
        "autres ligne "
        "ordres coups "
        "mismo estos estas esos esas ultimo ultimos ultima pasado pasada anteriores primero "
        "primera "
        "mismos otros linea ordenes "
        "stesso questi queste quelli ultimi ultime scorso scorsa scorsi precedenti primo prima "
        "stessi altri riga ordini "
        "mesmo estes essas esses passado primeira mesmos outros linha ordens "
        "deze laatste vorige eerste tweede dezelfde anderen regel bevelen orders "
        "disse sidste siste forrige forste samme andre linje ordrer "
        "likadant dessa sista forra forsta samma andra rad order "
        "tych ostatnie ostatni ostatniej poprzedniej poprzednie pierwszy pierwsza rozkazy"},
    SignalRow{Signal::Hints,
              "it this that thats they all everything anything what whatever one both "
              "das dies es alles was beides ce cest cela ca tout tous eso esto todo todos cio "
              "questo tutto tutti quello isto isso aquilo tudo dit dat wat det dette alt hva "
              "hvad detta allt vad tego wszystko tak tym"},
    SignalRow{
        Signal::Denies,
        "not none no never dont doesnt didnt cant cannot wont wouldnt isnt arent wasnt werent "
        "shouldnt mustnt neednt couldnt havent hasnt nobody nothing without neither nor "
        "nicht nichts kein keine keinen nie niemals ohne ne pas jamais rien aucun aucune "
        "sans nunca nada "
        "ningun sin non mai niente nessun senza nao nem sem niet niets geen nooit zonder "
        "ikke aldri "
        "aldrig ingen intet inget uten uden inte ej utan nie nic nigdy bez zadn*"},
    SignalRow{
        Signal::Leaves,
        "should shouldnt might may could would must supposed ought shall "
        "soll sollte sollten durfte darf muss konnte wurde "
        "peut dois devrais devrait devrions pourrais pourrait debo deberia podria devo dovrei "
        "dovrebbe "
        "potrei devia deveria poderia moet mag zou skal burde bor borde ska powinien* moge mogl*"},
    SignalRow{
        Signal::Says,
        "say says said tell tells told ask asks asked want wants wanted think thinks thought "
        "claims claimed insists insisted suggests suggested agree agrees agreed promised mean "
        "means meant intended hates hate likes wrote made reckons believes "
        "sagt sagte meint meinte gemeint wolltest wollte wollten denkt gesagt verlangt "
        "dit disait veut voulais voulait voulez pense dice dijo quiere querias queria quieres "
        "chiede vuole volevi voleva pensa diz disse quer querias zegt zei wil wilde wilt vindt "
        "siger sagde sier vil ville mener sager vill tycker mowi mowil powiedzial chce chciales "
        "chodzilo mysli"},
    SignalRow{
        Signal::Takes,
        "park use uses used take takes took play plays played repeat reuse redo copy keep enter "
        "run "
        "process resubmit file do does did make call ring contact check wait await choose pick "
        "drop skip "
        "strike leave remove replace replaced swap reverse revert undo change changed switch "
        "improve improved same "
        "nimm nehmt nehmen nimmt benutze verwende spiel mach macht wiederhole schick tausche "
        "prends prenez reprends reprenez utilise utilisez joue fais faites refais "
        "usa usad use toma tomad juega haz haced repite coge prendi prendete usate gioca fai fate "
        "ripeti pega pegue joga faz faca repete neem gebruik speel doe herhaal "
        "tag tage brug bruk gor gjor spil spill anvand spela upprepa "
        "wez uzyj graj zrob powtorz"},
    SignalRow{Signal::Past,
              "was were war waren etait etaient era eran erano eram waren var byl "
              "byly bylo"},
    SignalRow{
        Signal::Later,
        "later tomorrow soon come comes coming follow follows following first before after once "
        "until till when yet wait await awaits morgen spater zuerst erst bevor sobald warte "
        "demain attendre bientot avant apres attends esperar aspettare manana luego antes cuando "
        "espera domani dopo prima "
        "quando aspetta amanha depois straks eerst zodra wacht wachten senere forst vent vente "
        "vanta imorgon "
        "snart jutro potem najpierw"},
    SignalRow{
        Signal::Rejects,
        "decoy ignorar* anulad* contraorden annullat* contrordine cancelad* provisori* contraordem "
        "geannuleerd annuleer* negeer* negeren voorlopig annuller* bekraftes bekreftes medmindre "
        "forelobig* installt bekraftas preliminar* niepewn* tymczasow* anulowan* zart zarty zartem "
        "blague blagues scherz scherze provisoire* "
        "wrong care mistaken error typo typos void invalid outdated obsolete nonsense rubbish "
        "garbage "
        "bogus fake doubt doubts doubtful hardly scarcely opposite contrary inverse forbid* "
        "forbade refuse* refusing allowed disallow* permitted permission veto* vetoed objects "
        "object* dreaming dreamt wishful fantasy imaginary archive debate discussion "
        "feedback opinion opinions advice approval approve* consent nods "
        "test tests testing testmail testlauf preview trial prueba ensayo essai prova proba "
        "scratch "
        "delete deleted loschen losche loscht supprimer supprime supprimez borrar borra cancellare "
        "apagar apaga verwijderen slet slett radera usun usunac roughly ungefahr approximately "
        "environ ongeveer omtrent cirka maybe perhaps possibly probably presumably guess likely "
        "vielleicht wahrscheinlich vermutlich womoglich eventuell probablement quiza quizas "
        "probablemente talvez forse magari probabilmente provavelmente misschien waarschijnlijk "
        "mogelijk maske kanskje sannsynligvis sandsynligvis kanske troligen formodligen moze chyba "
        "prawdopodobnie ungern ausgenommen ausser sauf excepto eccetto behalve undtagen unntatt "
        "utom oprocz jouerait "
        "accept* theor* permitting willing psych gotcha lie lies "
        "decide decides undecided dunno kidding joke joking joked jest pretend* imagine* "
        "suppose* assume* discard* cancel* withdraw* retract* reconsider* rethink* reviewed "
        "unsure uncertain tentative provisional preliminary temporary placeholder* draft* oops "
        "whoops nope nah lied lying bluff bluffing unless instead except minus swap* opposite "
        "falsch* verkehrt* unsinn quatsch blodsinn verbiete* verboten verbot erlaubt gegenteil "
        "umgekehrt egal wurscht wurst zweifel* gelogen geirrt irrtum versehen tippfehler ruckfrage "
        "faux fausse erreur trompe interdit* inverse fiche egal permis doute* "
        "equivocad* falso error prohib* contrario igual dudo duda permitid* "
        "sbagliat* errore proibi* vieta* contrario importa dubito dubbio permesso giusto "
        "errad* engano proib* contrario duvido duvida permitido "
        "fout* verkeerd* onzin verbied* verboden toegestaan tegendeel omgekeerd twijfel* uitmaakt "
        "klopt forkert* feil* vrovl forby* forbudt modsat* tvivl* tvil* ligeglad ligeglade "
        "likegyldig bryr rigtigt riktig fel felaktig* trams forbju* forbjud* motsats* likgiltig "
        "stammer stemmer zle blad bledne bzdura zabrani* zakaz* przeciwn* odwrotn* watpie"},
    SignalRow{
        Signal::Chooses,
        "whatever whichever whoever toss flip roll choose chooses choice choices pick picks coin "
        "dice quieras quieran quiseres quiserem prefer "
        "prefers preferred preferably either aussuchen wahl wahle entscheide entscheidest choisis "
        "choisissez choix prefere elige elegid scegli scegliete scelta escolhe escolha "
        "kies kiest keuze vaelg velg valg valj val wybierz wybor"},
    SignalRow{
        Signal::Plans,
        "plan plans idea ideas proposal proposals suggestion suggestions thread window recipient "
        "vorschlag idee proposition propuesta proposta voorstel forslag pomysl"},
};

StemTable MakeSignalTable() {
  StemTable table;
  for (const SignalRow& row : SignalRows)
    table.Add(row.Words, static_cast<unsigned>(row.Means));
  return table;
}

}  // namespace

unsigned SignalsOf(std::string_view word) {
  static const StemTable table = MakeSignalTable();
  return table.BitsOf(word);
}

}  // namespace orb::exchange
