#include "orders/exchange/harmless_words.h"

#include "orders/exchange/doubts.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/sayings.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace orb::exchange {
namespace {

/// PlainPhrases, parted by "|"; "~" is one name or two, "^" any word in capitals that is no place,
/// "@" a place. In the languages of the verbs.
constexpr std::string_view PlainPhrases =
    "rest stays|the rest stays|rest unchanged|rest is unchanged|rest the same|everything else "
    "stays|"
    "rest bleibt|der rest bleibt|alles andere bleibt|le reste ne change pas|le reste inchange|el "
    "resto igual|resto igual|il resto uguale|o resto igual|rest blijft|resten uandret|resten "
    "ofrandrat|reszta bez zmian|"
    "se deus quiser|si dios quiere|si dieu le veut|se dio vuole|so gott will|god willing|jesli bog "
    "da|sorry ^|desole ^|desolee ^|scusa ^|perdona ^|desculpa ^|beklager ^|forlat ^|wybacz "
    "^|wybacz|"
    "undskyld ^|unnskyld ^|pardon ^|przepraszam ^|hello @|hi @|hallo @|grus gott @|servus @|coucou "
    "@|bonjour @|salut @|ciao @|hola @|ola @|hej @|hei @|witaj @|witaj|czesc @|as we agreed ^|as "
    "agreed ^|wie besprochen ^|wie abgemacht ^|comme convenu ^|come d'accordo ^|come daccordo "
    "^|come "
    "concordato ^|como quedamos ^|como acordamos ^|como combinado ^|zoals afgesproken ^|som aftalt "
    "^|som avtalt ^|som overenskommet ^|tak jak sie umowilismy ^|tak jak sie umowilismy|no comment|"
    "kein kommentar|sans commentaire|senza commenti|sin comentarios|sem comentarios|geen "
    "commentaar|ingen kommentar|inga kommentarer|bez komentarza|s'il te plait|s'il vous plait|sil "
    "te "
    "plait|sil vous plait|svp|per favore|per piacere|por favor|se faz favor|se fazes favor|faz "
    "favor|"
    "alsjeblieft|alstublieft|prosze|er du sod|er du snill|my favourite opening|my favorite opening|"
    "meine lieblingseroffnung|mon ouverture preferee|la mia apertura preferita|mi apertura "
    "favorita|"
    "mi apertura preferida|a minha abertura preferida|a minha abertura favorita|mijn "
    "lievelingsopening|min yndlingsabning|min favoritoppning|min favorittapning|moje ulubione "
    "otwarcie|yes really|ja wirklich|wirklich|oui oui|oui vraiment|vraiment|si davvero|davvero|si "
    "de "
    "verdad|de verdad|sim a serio|a serio|ja echt waar|echt waar|ja virkelig|virkelig|ja faktiskt|"
    "faktiskt|tak naprawde|naprawde|i hate this|ich konnte heulen|je deteste ca|che schifo|que "
    "asco "
    "me da|que asco|detesto isto|ik baal hiervan|jeg hader det her|jeg hater dette|jag hatar det "
    "har|"
    "nienawidze tego|heisen|lauten|de rest blijft staan|resten star kvar|resten er uandret|el "
    "resto se queda "
    "igual|lo demas se queda igual|o resto mantem - se|il resto rimane|after all|make it|wish me "
    "luck|here we go|watch out|lets dance|couldnt resist|could not "
    "resist|a bit "
    "boring|i "
    "know|"
    "textbook|the crowd goes wild|you saw nothing|as if you didnt know|long live the king|"
    "long live the queen|long live|keep it secret|its a secret|oh la la|easy peasy|cant go wrong|"
    "it had to be done|had to be done|better safe than sorry|love this move|surprise|surprises|"
    "uberraschung|wunsch mir gluck|wunscht mir gluck|los gehts|achtung|langweilig|ich weis|"
    "klassiker|ein klassiker|lang lebe der konig|lang lebe|nachbar|schweren herzens|pst|geheim|"
    "musste sein|muss sein|sicher ist sicher|ganz klassisch|auf gute nachbarschaft|"
    "souhaitez moi bonne chance|bonne chance|cest parti|attention|un classique|vive le roi|"
    "vive lempereur|voisin|le coeur lourd|chut|cest secret|il le fallait|mieux vaut prevenir|"
    "sorpresa|deseame suerte|alla vamos|cuidado|un clasico|viva el rey|vecino|secreto|shh|"
    "con dolor de corazon|habia que hacerlo|mas vale prevenir|"
    "augurami buona fortuna|buona fortuna|si parte|attenta|un classico|viva il re|vicino|"
    "a malincuore|segreto|andava fatto|meglio prevenire|ahah|ahaha|"
    "surpresa|deseja me sorte|la vamos nos|um classico|viva o rei|vizinho|segredo|tinha de ser|"
    "verrassing|wens me succes|daar gaan we|pas op|een klassieker|lang leve de koning|buurman|"
    "met pijn in het hart|het is geheim|geheim|moest even|"
    "overraskelse|onsk mig held|sa korer vi|pas pa|en klassiker|lange leve kongen|nabo|hemmeligt|"
    "det skulle gores|overraskning|onska mig lycka till|nu kor vi|se upp|leve kungen|granne|"
    "hemligt|det maste goras|"
    "niespodzianka|zycz mi szczescia|zyczcie mi szczescia|no to jazda|klasyka|niech zyje krol|"
    "sasiedzie|tajemnica|trzeba bylo|kkkk|kkkkk|"
    "no surprise here|no surprise|no surprises|home sweet home|thanks for the help|standard "
    "opening|"
    "classic opening|usual opening|happy now ?|this one is final|this is final|our deal|"
    "with my compliments|nothing personal|my back|my flank|my home|"
    "zur sicherheit|naturlich|selbstverstandlich|klar|endlich|zur deckung|zum schutz|"
    "standarderoffnung|keine uberraschung|mit schonen grusen|mit besten grusen|unser deal|"
    "nichts personliches|nimms nicht personlich|"
    "desole|desolee|par securite|comme dhabitude|comme d'habitude|evidemment|bien sur|enfin|"
    "ouverture classique|ouverture standard|sans rancune|rien de personnel|"
    "lo siento|perdona|por seguridad|claro|por supuesto|por fin|apertura clasica|apertura estandar|"
    "sin rencores|sin rencor|nada personal|"
    "per sicurezza|ovviamente|certo|finalmente|apertura classica|apertura standard|eheh|"
    "senza rancore|niente di personale|"
    "como combinado|desculpa|por seguranca|abertura classica|nada pessoal|sem rancor|"
    "voor de zekerheid|natuurlijk|uiteraard|eindelijk|niets persoonlijks|standaardopening|"
    "undskyld|unnskyld|for en sikkerheds skyld|for sikkerhets skyld|selvfolgelig|naturligvis|"
    "endelig|ikke noget personligt|ikke personlig|"
    "som overenskommet|forlat|for sakerhets skull|sjalvklart|givetvis|antligen|inget personligt|"
    "scusa|scusate|sorki|oczywiscie|wreszcie|nareszcie|nic osobistego|bez urazy|dla bezpieczenstwa|"
    "this is ~|thats me|its me|its ~|it is ~|~ here|here is ~|i am ~|im ~|my name is ~|"
    "hier ist ~|hier spricht ~|ich bin ~|~ hier|cest ~|c moi|cest moi|ici ~|je suis ~|~ ici|"
    "soy ~|aqui ~|al habla ~|sono ~|qui ~|sou ~|aqui e ~|hier is ~|ik ben ~|her er ~|jeg er ~|"
    "det er ~|det ar ~|jag ar ~|har ar ~|tu ~|"
    "now then|here goes|here we go|here you go|there you go|off we go|without further ado|"
    "sorry im late|sorry i am late|sorry for being late|sorry to be late|sorry for the delay|"
    "sorry about the delay|sorry for the wait|a bit late|bin spat dran|sorry ich bin spat dran|"
    "desole du retard|desole pour le retard|perdon por el retraso|scusate il ritardo|"
    "scusa il ritardo|desculpa o atraso|sorry voor de vertraging|undskyld forsinkelsen|"
    "send message|send mail|end message|end of message|message ends|over and out|send that|"
    "thats all|thats it|that is all|thats the lot|thats everything|that will be all|all done|"
    "das wars|das war es|das ist alles|cest tout|eso es todo|es todo|e tutto|tutto qui|e tudo|"
    "dat was het|dat is alles|det var det|det var alt|det var allt|to wszystko|to tyle|"
    "from me|from us|von mir|von uns|de ma part|de mi parte|da parte mia|van mij|fra mig|"
    "fra meg|fran mig|ode mnie|nur eins|see you|see ya|see u|bis dann|bis bald|a bientot|"
    "hasta luego|hasta pronto|a presto|ate logo|tot straks|vi ses|na razie|talk soon|"
    "take care|have fun|have a good one|enjoy the show|well played|all fixed|as ever|"
    "as always|as every year|wie immer|comme toujours|como siempre|come sempre|como sempre|"
    "sowieso|auf jeden fall|in jedem fall|jedenfalls|de toute facon|en tout cas|de todas formas|"
    "de todos modos|en cualquier caso|in ogni caso|de qualquer forma|de qualquer modo|em todo caso|"
    "in elk geval|uansett|i hvert fald|i alle fall|i varje fall|w kazdym razie|tak czy siak|"
    "wie besprochen|wie abgesprochen|wie vereinbart|wie versprochen|wie immer|comme convenu|comme "
    "promis|"
    "como acordado|como acordamos|como quedamos|como prometido|como prometi|come concordato|come d "
    "accordo|come promesso|zoals afgesproken|zoals beloofd|som aftalt|som avtalt|som lovet|som "
    "avtalat|som utlovat|"
    "jak uzgodniono|jak ustalono|jak obiecalem|jak obiecalam|"
    "aan|en place|sur place|a posicao|la sua posizione|sa position|su posicion|beim halten|not my "
    "year|not my day|not my "
    "week|e o|ik ben|ich bin|je suis|yo soy|io sono|eu sou|jeg "
    "er|jag ar|zoals altijd|som altid|som alltid|jak zawsze|no "
    "worries|as everybody does|as everyone "
    "does|"
    "expecting a bounce|is arranged|its arranged|with ~|mit ~|avec ~|con ~|met ~|med ~|"
    "this time|diesmal|cette fois|cette fois ci|esta vez|questa volta|desta vez|deze keer|"
    "denne gang|denna gang|tym razem|press none|lets see what|do zobaczenia|do widzenia|do "
    "jutra|do uslyszenia|gg no "
    "re|voice message|voice "
    "note|media omitted|image omitted|sticker omitted|"
    "gif omitted|sprachnachricht|says hello|says hi|sends love|sends regards|off the board|from "
    "the board|the safe one|bounce i expect|bounce expected|i . e|i "
    ". e .";

/// Names of slips of the pen, in the languages of the verbs.
constexpr std::string_view SlipWords =
    "typo typos mistake oops whoops misread mistyped wrong slip tippfehler irrtum fehler "
    "vertippt verlesen verschrieben falsche ups erreur faute trompe coquille sbagliato "
    "errore equivoque equivocado error errata engano enganei erro foutje vergist verkeerde "
    "tikfout fejl feil forkert tastefejl skrivefeil fel skrivfel pomylka pomylilem "
    "pomylilam literowka blad autocorrect slafejl skrivfel typefoutje typefout frappe battitura "
    "enganei trompee fallo";

/// What may stand beside them: excuses, pronouns, the lines and maps that were misread.
constexpr std::string_view BesideSlips =
    "no nope nein non nee nej nei nie sorry scusate scusa desole desolee perdon desculpa "
    "undskyld unnskyld forlat beklager ursakta przepraszam verzeihung pardon "
    "entschuldigung my mine mein mea culpa a i ich je me mi ho sono ik jeg jag im ive was "
    "is it its that thats in the on of de di e line row zeile riga ligne linea linha regel "
    "third second first last one two three line dritten zweiten ersten letzten der die das zur "
    "troisieme deuxieme premiere derniere la le tercera segunda primera ultima en terza seconda "
    "prima ultima nella terceira ultima na derde tweede eerste laatste het tredje anden andra "
    "forste "
    "forsta siste sista pa raden linjen linii trzeciej drugiej pierwszej ostatniej w regeln linje "
    "rad "
    "map karte carte mappa mapa kaart frappe read made wrote bad en";

std::unordered_set<std::string_view> SetOf(std::string_view words) {
  const auto parts = Parts(words, ' ');
  return {parts.begin(), parts.end()};
}

/// Whether a word in capitals stands here that is neither a place nor any word of orders.
bool IsCapitalAt(Tokens tokens, std::size_t at, const PlaceNames& names) {
  const Token& token = tokens[at];
  return IsA(token, TokenKind::Word) && token.Capital && token.Text.size() > 1 &&
         VerbOf(token) == Verb::None && UnitTypeOf(token) == 0 && token.Means.Uses == 0 &&
         PowerAt(tokens, at).Power == 0 && names.At(tokens, at).empty();
}

/// The tokens that a phrase takes from here, or 0.
std::size_t LengthOfOne(Tokens tokens, std::size_t at, const std::vector<std::string_view>& phrase,
                        const PlaceNames& names) {
  std::size_t next = at;
  for (const std::string_view word : phrase) {
    if (next > at && next < tokens.size() && IsA(tokens[next], TokenKind::Comma)) ++next;
    if (next == tokens.size()) return 0;
    const bool isName = word == "~";
    const bool isHere = isName        ? IsPersonAt(tokens, next, names)
                        : word == "^" ? IsCapitalAt(tokens, next, names)
                        : word == "." ? IsA(tokens[next], TokenKind::Dot)
                        : word == "@" ? !names.At(tokens, next).empty()
                                      : IsWord(tokens[next], word);
    if (!isHere) return 0;
    next = word == "@" ? names.At(tokens, next)[0].Next : next + 1;
    if (isName && IsPersonAt(tokens, next, names)) ++next;
  }
  return next - at;
}

using PlainPhraseTable =
    std::unordered_map<std::string_view, std::vector<std::vector<std::string_view>>>;

const PlainPhraseTable& AllPlainPhrases() {
  static const PlainPhraseTable table = [] {
    PlainPhraseTable all;
    for (const std::string_view phrase : Parts(PlainPhrases, '|')) {
      auto words = Parts(phrase, ' ');
      const std::string_view first = words[0];
      all[first].push_back(std::move(words));
    }
    return all;
  }();
  return table;
}

/// Whether a word may bear on orders, so that no reason is harmless that has it.
bool BearsAt(Tokens words, std::size_t at, const PlaceNames& names) {
  const Token& token = words[at];
  if (!IsA(token, TokenKind::Word)) {
    return IsDoubtfulSign(token) || IsA(token, TokenKind::Dash) || IsA(token, TokenKind::Colon) ||
           IsA(token, TokenKind::Slash);
  }
  constexpr auto hints = static_cast<unsigned>(Signal::Hints);
  if ((token.Means.Signals & ~hints) != 0) return true;
  if (HasUse(token, WordUse::Condition, WordUse::SetsAside, WordUse::Aside, WordUse::Report))
    return true;
  // German wishes have it: "weil Tom es will".
  if (IsWord(token, "will")) return true;
  if (HasUse(token, WordUse::Reservation, WordUse::Correction, WordUse::Elsewhere, WordUse::Season))
    return true;
  const bool isUnit = UnitTypeOf(token) != 0 && token.Text.size() > 1;
  const Verb verb = VerbOf(token);
  const bool orders = verb != Verb::None && verb != Verb::Move && token.Text.size() > 1;
  return isUnit || orders || IsNumber(token) || PowerAt(words, at).Power != 0 ||
         (token.Text.size() > 2 && !names.At(words, at).empty());
}

}  // namespace

bool SaysOfOrders(Tokens words) {
  constexpr std::array sayings{Saying::Revokes, Saying::Postpones, Saying::Gives,
                               Saying::Asks,    Saying::Titles,    Saying::Corrects,
                               Saying::Leaves,  Saying::Excludes};
  return std::ranges::any_of(sayings,
                             [&](Saying saying) { return FindSaying(words, saying).has_value(); });
}

bool IsPersonAt(Tokens tokens, std::size_t at, const PlaceNames& names) {
  if (at >= tokens.size() || !IsA(tokens[at], TokenKind::Word)) return false;
  const Token& token = tokens[at];
  return IsCapitalAt(tokens, at, names) && token.Means.Signals == 0 &&
         names.Near(token.Text).empty();
}

std::size_t LengthOfPlainPhrase(Tokens tokens, std::size_t at, const PlaceNames& names) {
  std::size_t longest = 0;
  const auto tryAll = [&](std::string_view first) {
    const auto found = AllPlainPhrases().find(first);
    if (found == AllPlainPhrases().end()) return;
    for (const auto& phrase : found->second)
      longest = std::max(longest, LengthOfOne(tokens, at, phrase, names));
  };
  tryAll(tokens[at].Text);
  if (tokens[at].Capital) tryAll("~");
  return longest;
}

bool ExcusesSlip(Tokens words) {
  static const std::unordered_set<std::string_view> slips = SetOf(SlipWords);
  static const std::unordered_set<std::string_view> besides = SetOf(BesideSlips);
  const auto isSlip = [](const Token& token) { return slips.contains(token.Text); };
  return std::ranges::any_of(words, isSlip) && std::ranges::all_of(words, [&](const Token& token) {
           if (!IsA(token, TokenKind::Word)) return token.Text != "?";
           return isSlip(token) || besides.contains(token.Text) || HasUse(token, WordUse::Filler);
         });
}

namespace {

/// "This", "these", "it".
bool PointsAt(const Token& token) {
  constexpr auto pointing =
      static_cast<unsigned>(Signal::Points) | static_cast<unsigned>(Signal::Hints);
  return (token.Means.Signals & pointing) != 0;
}

}  // namespace

bool AsksAfterHealth(Tokens words) {
  constexpr std::array<std::array<std::string_view, 2>, 20> openings{
      {{"how", "are"},     {"how", "is"},      {"hows", ""},         {"wie", "geht"},
       {"comment", "va"},  {"comment", "vas"}, {"comment", "allez"}, {"ca", "va"},
       {"como", "estas"},  {"como", "esta"},   {"como", "vai"},      {"come", "stai"},
       {"come", "va"},     {"come", "sta"},    {"hoe", "gaat"},      {"hoe", "is"},
       {"hvordan", "gar"}, {"hvordan", "har"}, {"hur", "mar"},       {"jak", "sie"}}};
  for (std::size_t at = 0; at < words.size(); ++at) {
    for (const auto& [first, second] : openings) {
      if (!IsWord(words[at], first)) continue;
      if (second.empty()) return true;
      if (at + 1 == words.size() || !IsWord(words[at + 1], second)) continue;
      // "How is this?" asks about the orders.
      const bool points = second == "is" && at + 2 < words.size() && PointsAt(words[at + 2]);
      if (!points) return true;
    }
  }
  return false;
}

bool AsksMaster(Tokens words) {
  constexpr std::array<std::string_view, 10> nouns{"question", "frage",  "pregunta",  "domanda",
                                                   "pergunta", "vraag",  "sporgsmal", "sporsmal",
                                                   "fraga",    "pytanie"};
  const bool isTitled =
      words.size() > 4 && IsOneOf(words[0], nouns) && IsA(words[1], TokenKind::Colon);
  return isTitled && std::ranges::none_of(words, [](const Token& token) {
           return (PointsAt(token) && !HasUse(token, WordUse::Orders)) ||
                  (UnitTypeOf(token) != 0 && token.Text.size() > 1);
         });
}

bool IsOfEverydayLife(Tokens words) {
  constexpr std::ptrdiff_t few = 2;
  const auto isKnown = [](const Token& token) {
    return !IsA(token, TokenKind::Word) ? token.Text != "<" && token.Text != "%"
                                        : HasUse(token, WordUse::Everyday, WordUse::Filler,
                                                 WordUse::Mood, WordUse::Greeting);
  };
  return std::ranges::all_of(words, isKnown) &&
         std::ranges::count_if(
             words, [](const Token& token) { return HasUse(token, WordUse::Everyday); }) > few;
}

bool IsReason(Tokens words, const PlaceNames& names) {
  constexpr std::array<std::string_view, 31> leads{
      "because",   "since",  "cause",  "cos",    "coz",         "cuz",    "hope",    "hoping",
      "hopefully", "weil",   "denn",   "hoffe",  "hoffentlich", "car",    "puisque", "espere",
      "esperons",  "porque", "espero", "perche", "poiche",      "spero",  "pois",    "omdat",
      "hoop",      "fordi",  "haber",  "haper",  "eftersom",    "hoppas", "bo"};
  constexpr std::array<std::string_view, 6> places{"where", "wo", "ou", "donde", "dove", "waar"};
  std::size_t at = 0;
  while (at < words.size() &&
         (IsA(words[at], TokenKind::Open) || IsA(words[at], TokenKind::Comma) ||
          IsA(words[at], TokenKind::Dash) || IsWord(words[at], "i") || IsWord(words[at], "just")))
    ++at;
  if (at == words.size()) return false;
  const bool isParisian = IsWord(words[at], "parce") || IsWord(words[at], "ya");
  if (!isParisian && !IsOneOf(words[at], leads) && !IsOneOf(words[at], places)) return false;
  if (SaysOfOrders(words.subspan(at))) return false;
  for (++at; at < words.size(); ++at) {
    if (BearsAt(words, at, names)) return false;
  }
  return true;
}

}  // namespace orb::exchange
