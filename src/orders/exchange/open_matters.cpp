#include "orders/exchange/open_matters.h"

#include "orders/exchange/signal_words.h"
#include "orders/exchange/stem_table.h"
#include "orders/exchange/vocabulary.h"

#include <algorithm>
#include <array>

namespace orb::exchange {
namespace {

/// What words speak of. Each value is a bit.
enum Topic : unsigned {
  Sketch = 1U << 0U,  ///< no orders yet, or none at all: enough alone
  Decide = 1U << 1U,
  Enter = 1U << 2U,
  Until = 1U << 3U,
  Talk = 1U << 4U,
  Answer = 1U << 5U,
  Await = 1U << 6U,
  Tell = 1U << 7U,
  Which = 1U << 8U,
  Throw = 1U << 9U,
  Listing = 1U << 10U,
  Valid = 1U << 11U,
  Only = 1U << 12U,
  Look = 1U << 13U,
  Change = 1U << 14U,
  Still = 1U << 15U,
  Real = 1U << 16U,
  Come = 1U << 17U,
  Other = 1U << 18U,
  Game = 1U << 19U,
  Serious = 1U << 20U,
  Ask = 1U << 21U,
  Play = 1U << 22U,
  Know = 1U << 23U,
  Want = 1U << 24U,
  May = 1U << 25U,
  Use = 1U << 27U,
  Suppose = 1U << 28U,
  Send = 1U << 29U,
  Mail = 1U << 30U,
  Life = 1U << 31U,  ///< what people ask each other about
};

struct TopicRow {
  Topic Means;
  std::string_view Words;  ///< separated by blanks; "x*": any word that begins so
};

// English, German, French, Spanish, Italian, Portuguese, Dutch, Danish and Norwegian, Swedish,
// Polish, row by row.
constexpr std::array TopicRows{
    TopicRow{
        Sketch,
        "sketch* bluff* comparison unchecked proofread vorlage skizze* bluffe* vergleich* "
        "abgeschrieben wurf esquisse* comparer comparaison jet esbozo* farol faroles comparar "
        "comparacion abbozz* confronto esboco* comparacao opzet bluf bluft vergelijking "
        "vergelijken overgenomen sammenligning skitse* skisse* skiss* jamforelse jamfora szkic* "
        "blef* porownani* przepisane memory gedachtnis memoire memoria hukommelse* minnet pamieci "
        "dictes dicto dictado dettati ditou podyktowal* probelauf testlauf lessai ensayo ensaio "
        "proef provet proby hergerissen indecis dudas indeciso indecisa watpliwosci vorschlag* "
        "proposition propuesta proposta proposal voorstel forslag propozycj* confuse verwirren "
        "brouiller despistar confonder* confundir verwarren forvirre forvirra zmylic archive "
        "archiv archives archivo archivio arquivo archief arkiv archiwum duvidas tvekar wstrzymaj "
        "schwanke waham wavering vacilo hesito esito cajon schublade tiroir cassetto gaveta skuffe "
        "byralada szuflad*"},
    TopicRow{Decide,
             "decided settled agreed fixed certain chosen checked verified finished "
             "entschieden entschlossen fest festgelegt beschlossen gepruft sicher fertig "
             "decide decides choisi fixe arrete verifie certain "
             "decidido decidida decidid* elegido comprobado segur* "
             "deciso decisa decisi scelto controll* sicuro "
             "definido escolhi verific* certeza "
             "besloten beslist vast gekozen nagekeken zeker "
             "afgjort avgjort besluttet bestemt valgt tjekket sjekket sikkert "
             "bestamt beslutat valt kollat sakert "
             "zdecydowa* postanowi* wybral* sprawdz* pewne convinced uberzeugt convaincu "
             "convaincue convencido convencida convinto convinta overtuigd overbevist overbevisad "
             "overtygad przekonan* verifier comprob* tjekke sjekke kolla open offen ouvert ouverte "
             "abierta abierto aperto aperta aberto aben oppen oppet otwarty final definitiv* "
             "definitif* endgultig* endelig* slutgiltig* ostateczn* pewn*"},
    TopicRow{Enter,
             "enter entered file record submit process book trag trage tragt eintragen saisis "
             "saisissez saisir enregistre apuntes apuntar introduzcas anotes registres registes "
             "registre registar inserire inserisci inserirl* registrare voer voert invoeren invul* "
             "skriv indtast wpisuj* wpisywac wprowadza* program programm programme programa "
             "programma programmet programu eingeben lances lancar ror beruhr* touche toques "
             "toccare toccarli"},
    TopicRow{Until,
             "until till before unless once erst bevor ehe sobald solange avant jusqua jusque tant "
             "des hasta antes mientras cuanto prima finche appena quando ate antes enquanto assim "
             "pas totdat voordat zodra zolang indtil saa snart lange forran innan tills sa "
             "fort dopoki zanim poki bis az fino vanavond tonight"},
    TopicRow{Talk,
             "talk talked spoken spoke gesprochen geredet parle hablado hablar hable parlato parli "
             "parlare falado falar falei fale gesproken spreek talt snakket pratat talat "
             "porozmawia* rozmawia*"},
    TopicRow{Answer,
             "answer answers reply replies antwort* ruckmeldung reponse reponses respuesta "
             "respuestas risposta risposte resposta respostas antwoord svar svaret odpowied*"},
    TopicRow{Await,
             "wait waits waiting await awaiting warte warten attends attend attendant jattends "
             "nattends espero "
             "esperando esperar aspetto aspettando attendo espero wacht wachten wachtend venter "
             "vente avventer vantar vanta czekam czekajac poczekaj poczekajcie aspetta aspettate "
             "attendez espera esperad warte wartet vent zuruckhalten guarda "
             " segura"},
    TopicRow{Tell,
             "tell sage sag sagt dis dirai redis digo dime dire decir dico diro dimmi dirti "
             "diz digo direi zeg zegt siger sig sier sager sag powiem powiedz"},
    TopicRow{Which,
             "which welche welcher lesquels lesquelles cuales quali quais welke hvilke vilka "
             "ktore jakie"},
    TopicRow{Throw,
             "throw toss bin wegwerfen wegschmeisen wirf jeter jette tirar tira buttare butta "
             "deitar deita jogar weggooien gooi smide smid kaste kast slanga slang kasta wyrzuc* "
             "wywal*"},
    TopicRow{
        Listing,
        "list sheet orders moves these those them away liste zettel befehle zuge ordres "
        "lista listas ordenes ordini ordens lijst orders bevelen listen listan ordrer ordre order "
        "liste* rozkazy"},
    TopicRow{Valid,
             "valid void stand apply applies counts count gilt gelten gultig valable valables "
             "valent vaut valide valides vale valen valida validas valer vale valgono valido "
             "validi valem valido validas geldt gelden geldig gaelder galder gjelder gyldig* "
             "galler giltig* wazne wazny obowiazuj* obowiazywa* comptent tellen telt licza liczy "
             "cuentan contano contam teller raknas"},
    TopicRow{Only,
             "only provided should nur ausschlieslich solange seulement uniquement solo solamente "
             "soltanto apenas somente so alleen slechts kun bare bara endast tylko dopoki seuls "
             "seules seul seule"},
    TopicRow{Look,
             "look glance peek schau schaut guck regarde regardez jette oeil vistazo mira mirad "
             "occhiata guarda guardate olhadela olhada olha kijk kijkje kig kik titta kolla okiem "
             "spojrz zobacz"},
    TopicRow{Change,
             "change changes changed differently amend andern anders ausfallen changer change "
             "changerais modifier autrement cambiar cambie cambiarias cambia cambiare cambieresti "
             "cambi cambiando diversamente mudar mude mudavas mudaria diferente veranderen "
             "verandert wijzigen aendre andre endre aendres aendrer andrer annerledes anderledes "
             "andra andras andrar annorlunda zmienic zmieni zmienil* inaczej umwerfe umwerfen "
             "endrer zmienie redo rework"},
    TopicRow{Still,
             "still yet noch encore todavia aun ancora ainda nog stadig fortsatt fortfarande "
             "annu jeszcze wciaz sigue siguen"},
    TopicRow{Real,
             "real true proper right genuine echten echte richtigen richtige wahren endgultige* "
             "vraie vrais vraies vrai bonne bons bonnes verdadera verdaderas verdaderos buena "
             "buenas vera vere veri vero giusta giuste giusti verdadeira verdadeiras verdadeiros "
             "certas echte juiste goede rigtige riktige riktiga ratta prawdziw* wlasciw* verdad "
             "serio ordentlige ordentliga"},
    TopicRow{Come,
             "comes come coming follow follows arrive arrives tonight kommt kommen folgt folgen "
             "arrive arrivent viendra vient llega llegan vendra arriva arrivano chega chegam vem "
             "komt komen volgt volgen kommer folger foljer bedzie beda przyjdzie przysle get "
             "kriegst kriegt bekommst bekommt recevras recevrez recibiras recibes krijg krijgt far "
             "dostaniesz dostaniecie mando mandare schicke send"},
    TopicRow{Other,
             "other another anderen andere andern autre otra otro altra altro outro outra andet "
             "anden annet annen andra annat innej innego drugiej else anderes anders"},
    TopicRow{Game,
             "game board partie spiel runde brett partie jeu partida juego tablero partita gioco "
             "partida jogo tabuleiro spel partij bord spil parti spillet spelet spill partiet "
             "brettet gry partii planszy"},
    TopicRow{Serious,
             "serious seriously earnest ernst serieux serio seriamente serieus alvorligt alvorlig "
             "alvor allvar allvarligt serio powaznie"},
    TopicRow{Ask,
             "asked begged told bat gebeten verlangte wollte gern demande demandait pidio pedido "
             "pide chiesto chiede chiedeva pediu pediram pede vroeg gevraagd bad bedt ba bett "
             "prosil* poprosil* kazal*"},
    TopicRow{Play,
             "play spielen ziehen hatte jouer jouerai jugar jugara giocare giochi jogar jogue "
             "spelen speel spille spela grac zagra* mnie"},
    TopicRow{Know,
             "know sure weis sais se so sei weet ved vet wiem savoir saber sapere weten pewien "
             "pewna"},
    TopicRow{Want,
             "wanted meant intended gewollt wollte gemeint voulait voulu querria queria voleva "
             "queria pretendia wilde bedoelde ville mente menade chcial* zamierza*"},
    TopicRow{May,
             "can may might could kann konnte durfte peut pourrait puede podria puo potrebbe pode "
             "poderia kan kunne kunde moze moglby mozliwe"},
    TopicRow{Use,
             "use nimm nehmt benutze prends prenez utilise usa use usad toma "
             "coge prendi usate usem gebruik neem brug bruk anvand wez uzyj usarli usarle usare "
             "uses usar uzywaj uzywajcie utiliser utilisez verwenden gebruiken bruge anvanda"},
    TopicRow{Suppose,
             "if unless wenn falls sollte si se als indien mocht hvis om jesli jezeli gdyby"},
    TopicRow{
        Send,
        "send sends sending schicke sende envoie envoyer mande mando envio enviar mandare mandi "
        "invio enviar sturen stuur sender skickar wysle przesle"},
    TopicRow{Mail,
             "mail mails email message nachricht courriel correo mensaje messaggio "
             "mensagem bericht mejl mejlet besked melding wiadomosc"},
    TopicRow{
        Life,
        "monday tuesday wednesday thursday friday saturday sunday weekend* holiday* vacation* "
        "pub bar baby kids wife husband dog cat party beer dinner lunch birthday wedding exam* "
        "trip hike match concert film book books car train garden school umbrella photo* "
        "picture* deadline mail mails heard bbq barbecue coffee "
        "montag dienstag mittwoch donnerstag freitag samstag sonntag wochenende urlaub ferien "
        "kneipe kind kinder frau hund katze feier bier geburtstag hochzeit prufung reise "
        "wanderung konzert buch auto zug garten schule foto* bilder frist grillen kaffee "
        "lundi mardi mercredi jeudi vendredi samedi dimanche vacances bebe enfants femme mari "
        "chien chat fete biere anniversaire mariage examen voyage randonnee concert livre "
        "voiture jardin ecole cafe apero "
        "lunes martes miercoles jueves viernes sabado domingo finde vacaciones bebe ninos "
        "mujer marido perro gato fiesta cerveza cumpleanos boda examen viaje excursion libro "
        "coche tren jardin escuela "
        "lunedi martedi mercoledi giovedi venerdi domenica vacanza vacanze bambini bimbo moglie "
        "marito cane gatto festa birra compleanno matrimonio esame viaggio gita libro "
        "macchina treno giardino scuola "
        "segunda terca quarta quinta sexta domingo ferias filhos mulher cao festa cerveja "
        "aniversario casamento exame viagem passeio livro carro comboio jardim "
        "maandag dinsdag woensdag donderdag vrijdag zaterdag zondag vakantie kroeg kinderen "
        "vrouw hond kat feest verjaardag bruiloft examen reis wandeling boek trein tuin "
        "mandag tirsdag onsdag torsdag fredag lordag sondag ferie helg pubben barn kone hund "
        "fest fodselsdag bursdag bryllup eksamen tur billeder* bilder* bog bok bil tog have "
        "mandag tisdag torsdag lordag semester puben fru fodelsedag brollop resa vandring* bok "
        "tag tradgard "
        "poniedzialek wtorek srode czwartek piatek sobote niedziele wakacje urlop pubie dzieci "
        "zona maz pies kot impreza piwo urodziny wesele egzamin podroz wycieczk* zdjecia "
        "ksiazk* samochod pociag ogrod szkola"},
};

/// Topics that leave orders open where one sentence has all of them.
struct OpenMatter {
  unsigned Topics = 0;
  bool Denied = false;  ///< and only where something is denied
};

constexpr std::array OpenMatters{
    OpenMatter{Sketch, false},          OpenMatter{Decide, true},
    OpenMatter{Decide | Still, false},  OpenMatter{Enter, true},
    OpenMatter{Enter | Until, false},   OpenMatter{Until | Talk, false},
    OpenMatter{Await | Answer, false},  OpenMatter{Tell | Which, false},
    OpenMatter{Throw | Listing, false}, OpenMatter{Valid | Only, false},
    OpenMatter{Valid | Until, false},   OpenMatter{Valid, true},
    OpenMatter{Look | Tell, false},     OpenMatter{Await | Until, false},
    OpenMatter{Await | Mail, false},    OpenMatter{Other | Send, false},
    OpenMatter{Suppose | Use, false},   OpenMatter{Use, true},
    OpenMatter{Change | Still, false},  OpenMatter{Change | May, false},
    OpenMatter{Change | Tell, false},   OpenMatter{Real | Come, false},
    OpenMatter{Other | Game, false},    OpenMatter{Serious, true},
    OpenMatter{Ask | Play, false},      OpenMatter{Know | Want, true},
};

}  // namespace

unsigned TopicsOf(std::string_view word) {
  static const StemTable table = [] {
    StemTable all;
    for (const TopicRow& row : TopicRows)
      all.Add(row.Words, row.Means);
    return all;
  }();
  return table.BitsOf(word);
}

bool LeavesOpen(Tokens sentence) {
  unsigned topics = 0;
  unsigned signals = 0;
  for (const Token& token : sentence) {
    topics |= token.Means.Topics;
    signals |= token.Means.Signals;
  }
  const bool denies = (signals & static_cast<unsigned>(Signal::Denies)) != 0;
  return std::ranges::any_of(OpenMatters, [&](const OpenMatter& matter) {
    return (topics & matter.Topics) == matter.Topics && (denies || !matter.Denied);
  });
}

bool AsksOfLife(Tokens sentence) {
  constexpr auto bearing =
      static_cast<unsigned>(Signal::Points) | static_cast<unsigned>(Signal::Says) |
      static_cast<unsigned>(Signal::Leaves) | static_cast<unsigned>(Signal::Takes) |
      static_cast<unsigned>(Signal::Rejects) | static_cast<unsigned>(Signal::Chooses) |
      static_cast<unsigned>(Signal::Plans);
  constexpr auto auxiliaries = std::to_array<std::string_view>({"did", "do", "does", "can"});
  bool isOfLife = false;
  if (!sentence.empty() && IsOneOf(sentence[0], auxiliaries)) sentence = sentence.subspan(1);
  for (const Token& token : sentence) {
    const Verb verb = token.Means.Does;
    const bool orders = verb != Verb::None && verb != Verb::Move && token.Text.size() > 2;
    const bool isUnit = token.Means.UnitType != 0 && token.Text.size() > 1;
    if ((token.Means.Signals & bearing) != 0 || orders || isUnit ||
        HasUse(token, WordUse::Orders, WordUse::Reservation, WordUse::Correction)) {
      return false;
    }
    isOfLife = isOfLife || (token.Means.Topics & Life) != 0;
  }
  return isOfLife;
}

}  // namespace orb::exchange
