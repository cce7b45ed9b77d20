#include "orders/exchange/verb_words.h"

#include <array>

namespace orb::exchange {
namespace {

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
        "anfaller angreift angriper angriber angrepp aanvalt valt attaquer greift greife attaquent "
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
        "parada quieto quieta immobile mantener mantenerse manter tenir tenere houde holde halla "
        "trzymac aguantar "
        "quedarse restare bliver blir"},
    VerbWords{
        Verb::Support,
        "s u sup supp supports support supporting spt sprt unterst su backs backing unterstutzt "
        "unterstuetzt unterstutze unterstutzung understodjer understoder understotter stutzt "
        "stutze soutient soutien soutenir soutiens app "
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
              "begleitet geleitet eskortiert transportuje konwojem ubersetzt traslada traghetta "
              "transportan trasportano"},
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
        "abbau abgebaut dissolution disolucion scioglimento dissolucao rozwiazanie "
        "retirer supprimer eliminar eliminare dissolver rozwiazuje rozwiazuja usuwam "
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

}  // namespace

std::span<const VerbWords> AllVerbWords() {
  return Verbs;
}

}  // namespace orb::exchange
