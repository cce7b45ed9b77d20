#include "orders/exchange/vocabulary.h"

#include "orders/exchange/everyday_words.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/saying_kinds.h"

#include <algorithm>
#include <array>
#include <string>
#include <unordered_map>
#include <utility>

namespace orb::exchange {
namespace {

struct VerbWords {
  Verb Meaning;
  std::string_view Words;  ///< separated by blanks
};

// Words in small letters, as tokens have them. A word missing here makes an order unclear, which
// somebody will notice; a word too many may turn prose into an order.
constexpr std::array Verbs{
    VerbWords{
        Verb::Move,
        "to into m mv mve move moves moving attack attacks attacking go goes going advance "
        "advances march marches sail sails enter enters invade invades head heads heading "
        "proceed proceeds travel travels send geht gehe gehen zieht ziehe ziehen marschiert "
        "marschiere nach attackiert va vais vado attaque ataca attacca marche avance avanza "
        "muove muovo mueve muevo rukt gaat ga naar trekt gar rykker rusza idzie vers hacia "
        "proceeding moved sailing marching till til mot nello nella negli nel alla al zum zur "
        "para walk walks walking run runs puts retires rueckt ruckt ruecke rucke avanzan "
        "marchar vai vao sposta spostano desplaza desplazan beweegt beweg marcheert flytter "
        "flyttar flytta gaa drar seglar sejler seiler plynie przechodzi atakuje atakuja "
        "angreift angriper angriber angrepp aanvalt valt attaquer greift greife attaquent "
        "attaccano atacan "
        "atacam entra entre desloca segue marszeruje przesuwa takes occupies occupy "
        "lands returns return slides slips pushes push slide shift shifts relocates transfers "
        "steams rolls charge charges rush rushes swings crosses besetzt besetze ruecken zieh "
        "fahrt fahren segelt segle setzt wandert verlegt entert gagne gagner rejoint bouge "
        "deplace deplacent avancer entrer vont navigue entran avanzar ocupa zarpa navega "
        "marchan muevan mover moverse entrano attaccare avanzano marciano marcia salpa naviga "
        "sposto spostare andare occupa avanca avancam movem mexe navega ocupa entram ataco "
        "vaart varen rukken verplaatst aanvallen trekken loopt reist flyttes sejle marcherer "
        "marsjerer marscherar rykke angripe angripa seile segla reser flytt jdzie ruszaja ida "
        "maszeruje plyna wplywa atak wchodzi przemieszcza siirtyy siirto menee hyokkaa "
        "liikkuu etenee siirra lep megy vonul tamad halad hajozik jde tahne utoci pluje "
        "presun presouva gider ilerler saldirir yuru idet idyot atakuet plyvet dvizhetsya "
        "pigainei paei kinitai take follow follows following folgt volgt sigue foljer folger come "
        "comes coming aille aillent ira iront aller vada vadano andasse uscisse vaya vayan fuese "
        "nips pops sneaks strolls rolls creeps dashes hops jumps hurries speeds storms assaults "
        "swoops drives rides treks cruises steers redeploys deploys repositions "
        "transfers embarks entrains hikes crawls wanders tae verso bound sets makes dirige "
        "dirigen pone ponen parte parten parti fonce foncent file filent cingle cinglent fait "
        "rend rendent prend prennent lauft laufen dampft dampfen stoomt koerst vertrekt vertrekken "
        "drager "
        "styrer styr beveger bevaeger beger kieruje udaje wyrusza ruma rumam fa fanno voga "
        "pasa pase pasara passe passa sende stuur stuurt sturen schicke schickt schicken verlege "
        "verlegen land"},
    VerbWords{
        Verb::Hold,
        "h hold holds holding hld stand stands stay stays remain remains halt haelt halte "
        "halten haller holdt holder houdt houden bleibt bleiben blijft blir reste tient tenir "
        "mantiene queda quedan resta sta pozostaje stoi mantem rimane rimangono fica ficam "
        "permanece permanecen zostaje stehen steht tiene tienen tiens tengo tengono mantenere "
        "segura seguram wartet verharrt halter trzyma bron resto rester restent restano "
        "zostaja blijven bly blijf stannar forblir forbliver holden warten sits sit stoja "
        "rests defends pysyy puolustaa odottaa paikallaan tart marad vedekezik drzi stoji "
        "zustava brani bekler kalir durur stoit derzhit ostaetsya kratai menei bleib steh "
        "verteidigt verteidigen defend defiende defienden defiendo difende difendono defende "
        "defendem verdedigt verdedigen forsvarer forsvar forsvarar forsvara broni bronia "
        "tenons tiennent restasse resti restera quede queden fique liggen ligger garde "
        "gardent aguanta mantienen staat staan wacht stilla avvakter ferma ferme fermo fermi "
        "parado "
        "parada quieto quieta immobile"},
    VerbWords{
        Verb::Support,
        "s u sup supp supports support supporting spt sprt unterst su backs backing unterstutzt "
        "unterstuetzt unterstutze unterstutzung understodjer understoder understotter stutzt "
        "stutze soutient soutien soutenir soutiens "
        "steunt "
        "ondersteunt apoya apoyo apoyando sostiene appoggia appoggio supporto supporta "
        "supporte appuie stotter stodjer stoder stoetter apoia wspiera wsparcie helps help "
        "aids unterstutzen unterstuetzen apoiam apoyan appoggiano sostengono soutiennent "
        "appuient steunen steun ondersteunen stotte stoette stottar stodja wspieram wspieraja "
        "popiera apoio assist assists assisting aiding helping tukee tuki tukea tamogat "
        "tamogatja segit podporuje podpora podpor destekler destek destekle podderzhivaet "
        "podderzhka podderzhit ypostirizei ypostirixi hilft helfen hjalper hjelper aide "
        "aident ayuda ayudan aiuta aiutano ajuda ajudam helpt helpen"},
    VerbWords{Verb::Convoy,
              "c cv cvy conv convoy convoys convoying transport transports carry carries carrying "
              "konvoi konvoit konvoiert convoie convoye convoya convoyer convoglia transporte "
              "transporta trasporta transportiert konvojerar konvojerer konwojuje konwoj vervoert "
              "konvoyiert konvoyiere konvooieert konvooien convoyeert ferries ferry k konvoy "
              "konvojera konvojere konwojuja convogliano "
              "convoiano convoient convoyons comboia comboio transportera transporterar "
              "transporterer transportieren vervoeren escolta kuljettaa saattaa szallit szallitja "
              "konvojuje preprava tasir konvoiruet perevozit metaferei befordert befoerdert "
              "ubersetzt traslada traghetta transportan trasportano"},
    VerbWords{
        Verb::Retreat,
        "r ret retr retreat retreats retreating withdraw withdraws ruckzug rueckzug retraite "
        "recule ritirata ritira retirada retira terugtocht retratt retraet tilbagetog odwrot "
        "weicht replie replient repliega repliegan repli retirent retiran retiram retirano "
        "ritirano tillbakadrar wycofuje wycofuja cofa retirerer retraiterer reculer rekul "
        "trekker vetaytyy peraantyy visszavonul hatral ustupuje stahuje cekilir otstupaet "
        "ypochorei replego retrocede retroceden indietreggia recua recuam wijkt vetarse "
        "retraites reculent flieht fluchtet fuit huye fugge foge vlucht flygter flykter flyr "
        "trakker retreter retrettere retirerar retirera ripiega ripiegano ucieka flees falls fall "
        "escapes escape flee runs"},
    VerbWords{
        Verb::Disband,
        "d dis disb disband disbands disbanded disbanding remove removes removed removing "
        "removal removals destroy destroys destroyed disbandment disbandments auflosen "
        "aufloesen aufgelost dissout dissoute dissoudre sciolta scioglie sciogliere disolver "
        "disuelve ontbonden ontbinden upploses upplosa oplost oploses rozwiazac rozwiazana "
        "abbau retirer supprimer eliminar eliminare dissolver rozwiazuje rozwiazuja usuwam "
        "usuwa likwiduje dissous dissolvent supprime supprimons sciolgo sciolgono rimuovo "
        "rimuove elimino elimina disuelvo disuelven dissolvo dissolve dissolvem removo remova "
        "ontbindt ontbind verwijder verwijdert verwijderen oploser fjerner fjern nedlagger "
        "nedlaegger nedlegger opploser upploser entferne entfernt entfernen auflosung "
        "auflosungen abbauten abbauen retraits desbanda desbando hajota hajotetaan poista "
        "poistaa lakkauttaa feloszlik feloszlat eltavolit torol rozpusti rozpousti zrusi "
        "dagit dagilir kaldir raspustit rozpuska ubrat dialyetai dialysi auflose aufgeloest "
        "loest elimine eliminez pierde retira quita toglie opheffen opgeheven opheft "
        "retire retiro ritiro disuelta disuelto dissolvida dissolvido sciolto suppression "
        "suppressions tolgo "
        "togliamo "
        "scuttle scuttles scuttled kill kills scrap scraps otb quito enleve verwijderd slette "
        "sletter stryger opplos fjerna "
        "usun usunac"},
    VerbWords{
        Verb::Build,
        "b bld build builds building raise raises baut bauen baue aufbau construit construire "
        "construction construis costruisce costruire costruisco costruzione construye "
        "construir construyo construccion bouwt bouwen bouw bygger bygg byg buduje budowa "
        "constroi bygga bygge bygges byggs bygningen budujemy buduja construo construimos "
        "costruiamo construisons construyen errichtet errichte aufbauten neubau neubauten "
        "constructions construcciones costruzioni construcoes bouwsels byggen budowy zbuduj "
        "rakenna rakentaa rakennan rakennetaan epit epitek epitunk epul stavi postavi stavim "
        "inssa insa yapar stroit stroim postroit chtizei chtizo erbaut ausheben aushebt leve "
        "levons recluta recluto recrute opricht bouwe opforer oppretter winteraufbau "
        "winteraufbauten"},
    VerbWords{Verb::Waive, "w waive waives waived waiving waiver"},
};

constexpr std::string_view Armies =
    "a army armies armeen armees ejercito ejercitos exercito esercito armata armia arme leger "
    "armia armie armii armen haren";
constexpr std::string_view Fleets =
    "f fleet fleets flotte flotten flottes flota flotas flotta vloot vloten flottan flaaden frota "
    "flaten flaade flote floty";

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
        "their unit units dislodged gives lends provides os as um een ein eine einen une una "
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
             "sono yr yours today now spieler joueur bonjour hallo two three one both so "
             "jetzt maintenant ahora adesso nu do"},
    UseWords{
        WordUse::Correction,
        "correction corrections korrektur correzione correccion correctie correcao rectification "
        "rectificatif rattelse rettelse andring endring aendring anderung wijziging alteracao "
        "korekta poprawka errata erratum update updates revision "
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
             "locked done my mine our ours final real actual true these those here hereby "
             "herewith "
             "now today "
             "following follows below submit submitted submitting sending proper official current "
             "meine mein unsere anbei hier folgende folgt gelten gilt nun jetzt heute mes mon nos "
             "voici voila cijoint maintenant aujourdhui suivants mis mi estas estos aqui ahora hoy "
             "siguientes adjunto miei mie nostri ecco oggi adesso seguenti qui meus minhas nossas "
             "seguem agora hoje segue mijn onze hierbij nu vandaag vores vare mina har her riktig "
             "riktige rett rigtige moje oto teraz tutaj omat tassa nyt itt most zde nyni copied "
             "deadline writing repeat again wie besprochen discussed agreed promised kopiert copie "
             "copiato copiado zo so asi cosi ainsi sadan slik takto igy nain suit publication "
             "standard usual description truth honestly seriously serious aside wirklich ernsthaft "
             "vraiment verite verdad davvero verdade echt sandheden sanning"},
    UseWords{WordUse::Report,
             "told tells proposed proposes suggests asked asks wants wanted said says claims "
             "claimed thinks expects believes promised promises offered offers lied pretended "
             "sagte meinte dit disait dice zei"},
    UseWords{WordUse::Definite,
             "final new revised updated corrected changed amended actual real definitive latest "
             "definitif definitifs definitives definitivos definitivas definitivi definitivo "
             "endgultige endgultigen definitieve endelige slutgiltiga slutliga ostateczne "
             "ostateczny lopulliset vegleges konecne finale finaux"},
    UseWords{
        WordUse::Orders,
        "order orders move moves version set list plan befehl befehle zuge zug ordre ordres coups "
        "ordenes orden movimientos jugadas ordini ordine mosse ordens ordem jogadas bevel "
        "bevelen zetten ordrer trekk traek drag rozkazy rozkaz ruchy kaskyt kasky siirrot "
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
             "boring buenas estimado estimada sehr geehrte geehrter spielleitung spielleiter "
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
    UseWords{WordUse::Purpose,
             "bounce bounces bouncing standoff selfbounce cover covers covering guard guards "
             "protect protects block blocks blocking defend defends defence defense defensive "
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
  for (const VerbWords& row : Verbs) {
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
  meaning.Sayings = SayingsBeginningWith(word);
  meaning.BeginsPower = MayBeginPower(word);
  constexpr unsigned hints = static_cast<unsigned>(Signal::Hints);
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
