#include "orders/exchange/vocabulary.h"

#include "orders/exchange/everyday_words.h"
#include "orders/exchange/open_matters.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/saying_kinds.h"
#include "orders/exchange/verb_words.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>
#include <utility>

namespace orb::exchange {
namespace {

constexpr std::string_view Armies =
    "a army armies armeen armees ejercito ejercitos exercito esercito armata armia arme leger "
    "armia armie armii armen haren";
constexpr std::string_view Fleets =
    "f fleet fleets flotte flotten flottes flota flotas flotta vloot vloten flottan flaaden frota "
    "fladen flaten flaade flade flader flate flater flote floty";

struct UseWords {
  WordUse Use;
  std::string_view Words;  ///< separated by blanks
};

// A word may have several uses. Of those that are harmless next to an order (Mood, Purpose, Plain)
// each must be so next to all others: a word missing there costs somebody a glance, one too many an
// order that nobody meant.
constexpr std::array Uses{
    UseWords{
        WordUse::Filler,
        "die das der la le il lo el los las bitte het les meine meiner mein mijn mon mes mio mia "
        "mi min "
        "mina moja nos onze notre our own both the my an please pls plz will shall is are his her "
        "their unit units dislodged gives lends provides os as um uma un een ein eine einen une "
        "una "
        "uno wird werden soll sollen therefore simply merely accordingly duly hereby einfach "
        "simplement simplemente semplicemente simplesmente gewoon bare"},
    UseWords{WordUse::Condition,
             "if unless otherwise else or either maybe perhaps instead not dont never cancel "
             "except depending should could might may cancelled canceled provided when until "
             "ignore no wont option alternative alternatively draft proposal proposed "
             "suggest suggestion disregard forget scratch delete undo revoke assuming case "
             "old wenn falls sofern oder vielleicht nicht noch si se sinon pas forse sino "
             "quiza niet als tenzij misschien inte kanske hvis ikke nie jesli chyba only "
             "whether arent isnt wasnt doesnt"},
    UseWords{WordUse::Aside, "previously formerly last next later tomorrow example eg previous"},
    UseWords{WordUse::SetsAside,
             "stary stara comptais gammel gammal rejected discarded abandoned verworfene "
             "verworfenen abandonnes descartadas "
             "descartados scartati verworpen forkastede forkastade odrzucone antiguas antiguos "
             "draft drafts example examples sample samples tentative provisional preliminary "
             "result results outcome outcomes report adjudication history idea ideas "
             "thoughts thinking hypothetical version previously yesterday yesterdays earlier "
             "considering possible possibly options scenario proposals suggestions suggested "
             "wrong invalid superseded obsolete outdated discarded dummy fake test tests "
             "probably unconfirmed pending tbc tbd withdrawn void vorige letzte entwurf "
             "beispiel brouillon exemple concept voorbeeld bozza borrador utkast kladde "
             "szkic rascunho vorlaufig provisoire provvisorio provisorio voorlopig "
             "preliminar forelopig ergebnisse ergebnis resultats risultati resultados uitslag "
             "resultat resultater wyniki"},
    UseWords{WordUse::Elsewhere,
             "original originally intended wanted planned fallback backup contingency plans trial "
             "practice theoretical hypothetically joke dream other was were had before formerly "
             "comparison record vorschlag alternativ alternative alternativplan alte alten "
             "bisherige bisherigen ungultig vergleich plane vorhatte wollte gestern letzter "
             "letzten letztes proposition anciens ancien precedent precedents precedente confirmer "
             "voulais propuesta anterior anteriores confirmar ejemplo ayer proposta precedenti "
             "vecchi vecchio confermare esempio ieri volevo quero antigas antigo passado exemplo "
             "ontem voorstel oude gisteren bevestigen forslag udkast sidste gamle eksempel forrige "
             "igar gamla exempel forra bekraftat propozycja poprzednia poprzednie stare przyklad "
             "wczoraj potwierdzenia ehdotus luonnos vanhat esimerkki javaslat tervezet regi navrh "
             "predchozi chernovik primer staryi nachster nachste prochain proximo prossimo "
             "volgende naste neste nasta nastepna yesterday bounced failed fails illegal "
             "impossible unmoglich impossibile imposible jokes blague broma scherzo grapje spog "
             "skamt zart vitsi vicc vtip scherz alt edit edited morgen demain manana domani amanha "
             "imorgon jutro huomenna holnap zitra spater tard later dopo luego depois senere "
             "senare pozniej succeeds succeeded dislodged cut wants"},
    UseWords{WordUse::Heading,
             "orders order for from of the my our your here are is follow follows following "
             "these as below in and spring autumn fall winter summer season year turn phase "
             "game player power country moves move movement movements retreat retreats build "
             "builds building adjustment adjustments removal removals disband disbands final "
             "new set press submitted by revised updated gm this disbandments with remove "
             "removes removing disbanding destroys correction corrections corrected change "
             "changes update herbst fruhjahr fruhling fruehjahr sommer automne printemps "
             "hiver autunno primavera inverno otono invierno herfst lente najaar voorjaar "
             "host hosten var varen efterar forar jesien wiosna outono befehle befehl ordres "
             "ordini ordine ordenes rozkazy ordens ordrer zuge zug ruckzuge fur pour per "
             "para voor till til voor dla de von der die das des le la les sind son sont "
             "sono el los del al da dos das della dello dell dei degli delle il lo di du det "
             "van op im zum vom am ajustes ajuste ajustements ajustement aggiustamenti "
             "aanpassingen justeringer justeringar anpassungen "
             "yr yours today now spieler joueur bonjour hallo two three one both so "
             "jetzt maintenant ahora adesso nu do"},
    UseWords{
        WordUse::Correction,
        "korrektion korrigering rectificatie correction corrections korrektur correzione "
        "correccion correctie correcao rectification "
        "rectificatif rattelse rettelse andring endring aendring anderung wijziging alteracao "
        "rettifica rectifico retificacao retifico sprostowanie anderung korekta poprawka errata "
        "erratum update updates revision "
        "amendment amendments edit instead"},
    UseWords{
        WordUse::Reservation,
        "but or unless if only except although though however otherwise else provided assuming "
        "depending aber oder falls wenn mais ou sauf ma pero maar tenzij men eller ale albo mas"},
    UseWords{WordUse::Offer,
             "prob probs issue issues question questions unclear wrong illegal mistake mistakes "
             "typo typos problem "
             "problems anything know missed error errors forgot missing understand help fragen "
             "unklar probleme domande preguntas vragen"},
    UseWords{
        WordUse::Wish,
        "give me us i id ill im we wed well lets let would like love want wish to will shall going "
        "please am be obliged grateful glad appreciate if you could should can kindly have "
        "make gonna may ich mochte wurde gerne gern bitte will hatte konnten sie "
        "dass wir lasst lass je voudrais souhaite souhaiterais aimerais que nous merci "
        "voglio vorrei desidero gradirei che favore quiero quisiera queria quero gostaria "
        "gustaria me ik wil zou graag dat jag vill skulle vilja garna att jeg vil "
        "onsker gerne gjerne at haluan haluaisin chce chcialbym chcialabym prosze zeby aby "
        "szeretnem chci chtel"},
    UseWords{WordUse::Season,
             "spring summer autumn fall winter herbst fruhjahr fruhling sommer automne "
             "printemps hiver ete autunno primavera estate inverno otono verano invierno "
             "outono verao herfst lente zomer najaar voorjaar host hosten var varen forar "
             "efterar jesien wiosna zima now jetzt maintenant ahora adesso nu"},
    UseWords{WordUse::Own,
             "promis promesso beloofd lovet utlovat versprochen also donc pues dunque entao dus "
             "altsa alltsa wiec eccoli alsjeblieft varsgo varsagod "
             "announced angekundigt annonce anuncie anunciado annunciato aangekondigd annonceret "
             "aviserat zapowiedzialem abgesprochen acordado concordato combinado afgesproken "
             "aftalt avtalt overenskommet uzgodnione confirmed bardzo locked done my mine our ours "
             "final real actual true these those here hereby "
             "herewith "
             "now today "
             "following follows below submit submitted submitting sending proper official current "
             "meine mein unsere anbei hier folgende folgt gelten gilt nun jetzt heute mes mon nos "
             "voici voila cijoint maintenant aujourdhui suivants mis mi estas estos aqui ahora hoy "
             "siguientes adjunto miei mie nostri ecco oggi adesso seguenti qui meus minhas nossas "
             "seguem agora hoje segue mijn onze hierbij nu vandaag vores vare mina har her riktig "
             "riktige rett rigtige eccomi eccoci juz tu aca ahi moje oto teraz tutaj omat tassa "
             "nyt itt most zde "
             "nyni copied "
             "deadline writing repeat again wie besprochen discussed agreed promised kopiert copie "
             "copiato copiado zo so asi cosi ainsi sadan slik takto igy nain suit publication "
             "standard usual description truth honestly seriously serious aside wirklich ernsthaft "
             "vraiment verite verdad davvero verdade echt sandheden sanning"},
    UseWords{WordUse::Report,
             "told tells proposed proposes suggests asked asks wants wanted said says claims "
             "claimed thinks expects believes promised promises offered offers lied pretended "
             "sagte meinte dit disait dice zei"},
    UseWords{WordUse::Definite,
             "neu neue neuer nouveau nouvelle nueva nuevo nuova nuovo nova novo nieuw nieuwe ny "
             "nytt nowa nowy korrigierte corrigee corregida corretta corrigida gecorrigeerde "
             "verbeterde rettet "
             "rettede rattad poprawiona aktualisierte endgultig definitief slutgiltigt endeligt "
             "ostatecznie definitivamente definitiva definitivo definitivas definitieve endelig "
             "slutgiltig ostateczna final "
             "new revised updated corrected changed amended actual real definitive latest "
             "definitif definitifs definitives definitivos definitivas definitivi definitivo "
             "endgultige endgultigen definitieve endelige slutgiltiga slutliga ostateczne "
             "ostateczny lopulliset vegleges konecne finale finaux"},
    UseWords{
        WordUse::Orders,
        "udgave versjon fassung versione versao versie wersja mouvements movimentos order orders "
        "move moves "
        "version set list plan befehl befehle zuge zug ordre ordres coups "
        "ordenes orden movimientos jugadas ordini ordine mosse ordens ordem jogadas bevel "
        "bevelen zetten ordrer trekk traek trak drag rozkazy rozkaz ruchy kaskyt kasky siirrot "
        "parancsok parancs lepesek rozkazy prikazy prikaz tahy emirler emirleri prikaz "
        "diatages diatagh ordrene orderna"},
    UseWords{WordUse::Greeting,
             "hi hello hey dear greetings good morning evening howdy salut bonjour hallo "
             "ciao regards best cheers thanks thank yours sincerely bye kind thx gl warm "
             "cordially moin goodbye love gruss grus grusse gruse gruesse saludos saluti "
             "groeten groetjes hilsen halsningar pozdrawiam abracos abrazos bisous mfg lg "
             "mvh hej hola ola dag czesc salve buongiorno bonsoir servus hiya yo sent kia nga kh "
             "alright szia shalom geia cher chere lieber liebe estimado estimada caro cara gentile "
             "beste "
             "geachte kare kjaere kaere szanowny drogi querido querida prezado prezada guten bonne "
             "buenas boa dzien god"},
    UseWords{WordUse::Mood,
             "thanks thank thx ty cheers regards greetings good luck gl hf glhf best danke "
             "bitte merci dank bedankt gracias grazie lol rofl haha hahaha hehe heh yay wow "
             "nice great cool fun sorry hi hello hey friend friends ally allies buddy mate "
             "dear everyone everybody guys folks gm yours sincerely love xoxo gruss grus "
             "grusse gruse gruesse saludos saluti groeten groetjes hilsen halsningar "
             "pozdrawiam abracos abrazos ciao bisous salut servus mfg lg vg mvh mfs bye "
             "night weekend ta tack takk tak dzieki obrigado obrigada prego wink grin cheeky "
             "achtung cuidado attenta attento uwazajcie boring buenas estimado estimada sehr "
             "geehrte geehrter spielleitung spielleiter "
             "arbitre arbitro umpire host moderator ref referee hoi hei hejsan moin slt "
             "coucou caro cara alright kia ora nga mihi kh vh trudno jammer helaas leider schade "
             "tant pis peccato lastima szkoda sniff brr jaja jajaja kkk vlw flw blz lmao lmaoo "
             "lmaooo bises bonne soiree"},
    UseWords{WordUse::Footer,
             "address adresse indirizzo direccion adres endereco attachments confidential "
             "recipient recipients addressee adressat empfanger destinataire umwelt "
             "environment environnement printing ausdrucken imprimer privileged "
             "vertraulich ausgedruckt ausdruckt eingangsbestatigung viren virus viruses "
             "antivirus avast virenfrei scanned virusfri virusvrij virussen disclaimer "
             "unauthorised unauthorized"},
    UseWords{WordUse::Plea,
             "sorry apologies excuse forgive pardon desole desolee undskyld unnskyld "
             "beklager ursakta entschuldigung entschuldige perdon scusate scusa desculpa "
             "przepraszam"},
    UseWords{
        WordUse::Purpose,
        "bounce bounces bouncing standoff selfbounce cover covers covering guard guards "
        "protect protects block blocks blocking defend defends defence defense defensive "
        "decken deckung schutzen schutz couvrir proteger cubrir coprire proteggere cobrir dekken "
        "beschermen dakke daekke dekke beskytte tacka skydda oslonic oslaniam chronic "
        "guarding defending protecting supported selfstandoff against"},
    UseWords{WordUse::Plain,
             "votes vote stimmen voix votos voti stemmen stemmer roster glosy "
             "both want better fine ok okay yes yep yeah you we us i am all hope hopefully it "
             "works fingers "
             "crossed of course obviously naturally fyi btw sure surely definitely certainly "
             "confirmed confirm confirming final agreed as discussed promised usual again still "
             "unchanged same corrected correction revised updated changed new safe safety self "
             "order orders and this that here in at from for with by really always now too also "
             "then well indeed just simply first second third 1st 2nd 3rd 4th 5th unit number dvs "
             "ie namely sprich cioe soit time so certain thus round please the anyway perfect "
             "voila ordres ordini ordenes befehle zuge end ende fin follows following below hes "
             "shes theyre while whilst period comma finally meanwhile likewise moreover"},
};

/// "s01", "f1901m", "1901", "1901s", "1st": letters about a number.
bool IsSeasonCode(std::string_view word) {
  const std::size_t first = word.find_first_of("0123456789");
  if (first > 1) return false;
  const std::size_t end = std::min(word.find_first_not_of("0123456789", first), word.size());
  return word.size() - end <= 2;
}

using Meanings = std::unordered_map<std::string_view, WordMeaning>;

Meanings AllMeanings() {
  Meanings meanings;
  for (const VerbWords& row : AllVerbWords()) {
    for (const std::string_view word : Parts(row.Words, ' '))
      meanings[word].Does = row.Meaning;
  }
  for (const UseWords& row : Uses) {
    for (const std::string_view word : Parts(row.Words, ' '))
      meanings[word].Uses |= static_cast<unsigned>(row.Use);
  }
  for (const std::string_view word : Parts(Armies, ' '))
    meanings[word].UnitType = 'A';
  for (const std::string_view word : Parts(Fleets, ' '))
    meanings[word].UnitType = 'F';
  return meanings;
}

WordMeaning FindMeaning(std::string_view word) {
  static const Meanings meanings = AllMeanings();
  const auto found = meanings.find(word);
  WordMeaning meaning = found == meanings.end() ? WordMeaning() : found->second;
  meaning.Prose = ProseUsesOf(word);
  meaning.Signals = SignalsOf(word);
  meaning.Topics = TopicsOf(word);
  meaning.Sayings = SayingsBeginningWith(word);
  meaning.BeginsPower = MayBeginPower(word);
  constexpr auto hints = static_cast<unsigned>(Signal::Hints);
  const bool says = meaning.Has(WordUse::Condition) || meaning.Has(WordUse::Aside) ||
                    meaning.Has(WordUse::SetsAside) || meaning.Has(WordUse::Elsewhere) ||
                    meaning.Has(WordUse::Reservation) || meaning.Has(WordUse::Report) ||
                    meaning.Has(WordUse::Correction);
  const bool isOfOrders = says || meaning.Does != Verb::None || meaning.UnitType != 0 ||
                          (meaning.Signals & ~hints) != 0 || meaning.BeginsPower;
  if (!isOfOrders && IsEverydayWord(word)) meaning.Uses |= static_cast<unsigned>(WordUse::Everyday);
  if (IsSeasonCode(word)) meaning.Uses |= static_cast<unsigned>(WordUse::Heading);
  return meaning;
}

}  // namespace

WordMeaning MeaningOf(std::string_view word) {
  // Texts repeat their words.
  constexpr std::size_t bound = 50'000;
  thread_local std::unordered_map<std::string, WordMeaning> known;
  if (known.size() > bound) known.clear();
  const auto [found, isNew] = known.try_emplace(std::string(word));
  if (isNew) found->second = FindMeaning(word);
  return found->second;
}

std::vector<std::string_view> Parts(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(separator), text.size());
    if (end > 0) parts.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return parts;
}

}  // namespace orb::exchange
