#include "orders/exchange/saying_phrases.h"

#include <array>

namespace orb::exchange {
namespace {

// English, German, French, Spanish, Italian, Portuguese, Dutch, Danish and Norwegian, Swedish,
// Polish, Finnish, Hungarian, Czech. A phrase missing here may file an order that nobody meant; one
// too many costs somebody a glance.
constexpr std::array SayingTable{
    SayingPhrases{
        Saying::Revokes,
        "=as if|=no chance|=but i wont|=i wont|=yeah right|=in his dreams|=in your dreams|swap|"
        "dont want that|dont want this|kidding|joking|a joke|jk|jks|psych|sike|nope|"
        "by mistake|by accident|accidentally|everything holds|all units hold|all my units hold|"
        "changed my "
        "mind|ignore|disregard|cancel|cancelled|"
        "canceled|scrap|scratch that|forget that|forget these|forget those|forget the|"
        "forget my|forget what|forget about|nevermind|never mind|withdrawn|i withdraw|"
        "revoke|strike that|were examples|was wrong|were wrong|is void|are void|"
        "no longer valid|not valid|no longer stand|do not stand|forget it|take back|"
        "took back|takes back|taking back|was a joke|were a joke|april fool|was drunk|"
        "changed our minds|forget everything|forget all|just testing|just a test|"
        "only a test|dream on|over my dead|id never|i would never|ill never|"
        "never do that|not in a million|no way|was the plan|were the plan|his words|"
        "her words|their words|wants me to do|wanted me to do|told me to do|"
        "asked me to do|other way round|other way around|not the fleet|not the army|"
        "the second one not|the first one not|the last one not|not the last|not the first|"
        "not the second|superseded|obsolete|not valid anymore|on second thought|"
        "on second thoughts|was last turn|were last turn|was last season|"
        "were last season|did last turn|sent last|had last|did in spring|did in autumn|"
        "did in fall|from last turn|"
        "from last season|this was last|this was my|this was the plan|those were my|"
        "those were his|those were last|these were my|these were last|that was the plan|"
        "that was the idea|that was the old|one is wrong|order is wrong|line is wrong|"
        "ones are wrong|orders are wrong|lines are wrong|all wrong|these are wrong|"
        "i wont do|except the last|except the first|except the fleet|except the army|"
        "minus the last|minus the fleet|minus the army|apart from the fleet|"
        "apart from the army|apart from the last|apart from the first|swap the|swap them|"
        "swap these|s own words|his idea not|her idea not"},
    SayingPhrases{
        Saying::Revokes,
        "alles halt|alle einheiten halten|aus versehen|versehentlich|par erreur|por error|per "
        "errore|"
        "per sbaglio|por engano|per vergissing|ved en fejl|av misstag|przez pomylke|era "
        "broma|scherzo|"
        "toutes les unites tiennent|todas las unidades mantienen|tutte le unita tengono|"
        "ungultig|nicht mehr gultig|gilt nicht|gelten nicht|vergiss|vergesst|"
        "vergessen sie|nur spas|war spas|ein scherz|scherz|war ein witz|ein witz|nicht ernst|"
        "ziehe zuruck|nehme zuruck|zuruckgezogen|zuruckziehen|streich|streiche|"
        "streichen|gestrichen|hinfallig|verworfen|doch nicht|lieber nicht|ignorier*|"
        "storno|storniere*|stornier*|widerruf*|annulliere|annule|annulez|annuler|"
        "annulons|oublie|oubliez|une blague|je plaisante|je rigole|plaisanterie|"
        "laisse tomber|laissez tomber|ne pas tenir|ne tenez pas|ne pas prendre|"
        "ne prenez pas|nest plus valable|ne sont plus|plus valable|plus valables|ignorez|"
        "anular|anula|anulad*|anulo|olvida|olvidalo|olvidad*|olviden|era broma|"
        "es broma|una broma|bromeaba|ignora|ignorad|ignoren|no vale|no valen|"
        "no cuenta|no cuentan|ya no|annulla|annullo|annullate|scherzavo|uno scherzo|"
        "lascia perdere|lasciate perdere|lascia stare|dimentica|dimenticate|"
        "dimenticatevi|ignorate|non valgono|non vale|non piu"},
    SayingPhrases{Saying::Revokes,
                  "esquece|esquecam|esqueca|esquecer|a brincar|brincadeira|brincando|ignorem|"
                  "nao vale|nao valem|ja nao|vergeet|negeer|grapje|geintje|trek in|ingetrokken|"
                  "geldt niet|gelden niet|vervalt|vervallen|annuleer|glem|glom|for sjov|"
                  "for spog|for moro|bare tull|tuller|tulla|tullet|skojar|skojade|skamt|skamtar|"
                  "skamtade|pa skamt|se bort fra|bortse fran|bortse fra|annuller*|annullera*|"
                  "strunta i|galler inte|gjelder ikke|gaelder ikke|galder ikke|ignorera|ignorer|"
                  "zapomnij*|zignoruj*|ignoruj*|anuluj*|zartowalem|zartowalam|zartuje|to zart|"
                  "niewazn*|unohda|vitsailin|vitsi|peruutan|perun|peruttu|vicceltem|viccelek|"
                  "felejtsd*|ervenytelen|zertoval*|zapomen*|zrus*|neplati|shutka|shutil*|zabud*|"
                  "otmen*|xechna|ksechna|plaka kano|astei*"},
    SayingPhrases{
        Saying::Postpones,
        "ideal world|perfect world|50 / 50|50:50|50 : 50|hold on this|hold on these|=his idea|=her "
        "idea|"
        "=their idea|if possible|if still possible|wenn moglich|falls moglich|si possible|"
        "si es posible|se possibile|se possivel|indien mogelijk|hvis muligt|hvis mulig|om mojligt|"
        "jesli sie da|wird noch bestatigt|frag mich|om inte jag|contre ordre|contrordre|"
        "tegenbericht|gegenbefehl|contre - ordre|ya veremos|veremos|=vediamo|poi vediamo|on "
        "verra|=a voir|mal "
        "sehen|"
        "we zien wel|vi far se|zobaczymy|vamos ver|logo se ve|we shall see|fifty fifty|in "
        "theory|ideally|one day|some "
        "day|eventually|"
        "in my dreams|well see|who knows|in this order|in order of|as far "
        "as|preference|preferences|kann sich noch andern|konnte sich noch andern|andert sich "
        "noch|kann sich andern|peut changer|peut encore changer|puede cambiar|puede que cambie|puo "
        "cambiare|puo ancora cambiare|pode mudar|ainda pode mudar|kan nog veranderen|kan nog "
        "wijzigen|kan andre sig|kan endre seg|kan andras|moze sie zmienic|ne pas traiter|pas "
        "traiter|no procesar|non elaborare|niet verwerken|nie przetwarzaj|i would do|i would "
        "play|id do|id play|i could do|i could play|i might do|i might play|if i were|ich tun "
        "wurde|ich machen wurde|je ferais|je jouerais|yo haria|io farei|eu faria|ik zou doen|jeg "
        "ville gore|cold feet|=off|=crossed out|almost sure|nearly sure|kind of "
        "sure|sort of sure|=pretty sure|=quite sure|=fairly sure|=big mistake|=mail me|=text "
        "me|=phone me|=other game|=the other game|=other board|the other board|my other game|=in "
        "the evening|=in an hour|=let me know|=ask "
        "first|=check|=verify|1st choice|2nd "
        "choice|first choice|second choice|"
        "he wants|she wants|they want|promised by|suggested by|proposed by|not process|dont "
        "process|not use|dont use|not enter|dont enter|not file|"
        "dont file|not submit|dont submit|not final|arent final|isnt final|not yet|"
        "not my final|not the final|wait for my|wait for the final|wait for final|"
        "wait until|hold off|will follow|orders to follow|tentative|tentatively|"
        "provisional|provisionally|preliminary|pending|unconfirmed|tbc|tbd|"
        "be confirmed|may change|might change|could change|still thinking|a draft|"
        "placeholder|placeholders|if you agree|what you think|an example|just examples|"
        "not my|not mine|not real|not for real|not binding|not the real|not for now|"
        "not ready|not sure|not decided|not decide|not these|not count|dont count|"
        "doesnt count|not resolve|dont resolve|not orders|isnt decided|havent decided|"
        "undecided|something like|thinking about it|think about it|let me think|"
        "still deciding|sleep on it|back to you|will confirm|confirm later|subject to|"
        "check with|ask him|ask her|call him|call her|to follow|will send my|"
        "will send the|more later|more tomorrow|double check|let me check|"
        "dont have time to decide|might still|may still|could still|look like this|"
        "looks like this|would look|said something|ill confirm|"
        "confirm tomorrow|to be continued|final orders tomorrow|final orders follow|"
        "finals tomorrow|orders tomorrow|please wait|just wait|im torn|"
        "still have to talk|still need to|have to talk|have to ask|need to check|"
        "need to ask|need to talk|want to check|still open|still unsure|unsure|"
        "not convinced|on the fence|havent heard|wait to hear|waiting to hear|waiting on|"
        "until i|until you|until we|until he|until she|in the drawer|bis ich|bis er mir|"
        "in der schublade|jusqua ce que|tant que je|dans le tiroir|nel cassetto|"
        "hasta que yo|hasta que te|hasta que no|en el cajon|ate que eu|totdat ik|indtil jeg|tills "
        "jag|"
        "dopoki nie|w szufladzie|"
        "once i hear|depends on|a suggestion|a proposal|let me know what|"
        "hold these|keep these|a rough|what he wants|what she wants|what they want|"
        "above is what|above you|above was|ill write tomorrow|ill write again|"
        "will write again|write tomorrow|decide tomorrow|tell you tomorrow|send tomorrow|"
        "mail tomorrow|update tomorrow|yet to confirm|still to confirm|am torn|"
        "befehle kommen|befehle folgen|zuge folgen|nur als beispiel|nur als idee|"
        "in attesa di risposta|in attesa di conferma|in attesa della risposta|"
        "jattends la reponse|jattends sa|a la espera de respuesta|a la espera de confirm*|"
        "a falta de confirm*|dois encore parler|dois encore demander|dois encore voir|"
        "devo ancora parlare|devo ancora chiedere|devo ancora decidere|devo ancora sentire|"
        "estoy pensando|sigo pensando|estou pensando|ainda pensando|estou a pensar|"
        "moet nog met|moet nog overleggen|moet nog vragen|moet nog nadenken|ik twijfel|"
        "skal lige hore|skal lige tale|skal lige tanke|ma lige tanke|ma hore|"
        "ordrer kommer|ordre kommer|resten kommer|musze jeszcze zapytac|"
        "musze jeszcze pomyslec|ci sto ancora|ci sto pensando"},
    SayingPhrases{Saying::Postpones,
                  "noch nicht|nicht werten|nicht endgultig|vorlaufig|nur ein vorschlag|"
                  "ein vorschlag|ein entwurf|melde mich|noch offen|unsicher|uberlege noch|"
                  "uberlege es|folgen morgen|folgt morgen|folgen noch|folgt noch|nur wenn|"
                  "nur falls|gilt nur|bitte warten|nicht verwenden|nicht nehmen|nicht abgeben|"
                  "unter vorbehalt|vorbehaltlich|bestatige noch|bestatige morgen|warte noch|"
                  "muss noch mit|muss noch fragen|noch klaren|noch uberlegen|noch abklaren|"
                  "in absprache|bin mir nicht|provisoire|provisoires|pas encore|un brouillon|"
                  "brouillon|une proposition|je confirme demain|je confirmerai|confirme demain|"
                  "a confirmer|sera confirme|reflechis|reflechir|jhesite|hesite|pas sur|pas sure|"
                  "pas certain|pas definiti*|sous reserve|seulement si|uniquement si|que si|"
                  "en attente|attends la reponse|je te redis|je vous redis|a suivre|"
                  "ordres definitifs|non ancora|provvisori|provvisorio|una bozza|bozza|"
                  "una proposta|confermo domani|confermo piu tardi|confermero|da confermare|"
                  "sto pensando|ci devo pensare|non definitiv*|non sono sicur*|solo se|soltanto se|"
                  "faccio sapere"},
    SayingPhrases{Saying::Postpones,
                  "todavia no|todavia lo|todavia estoy|aun no|aun lo|un borrador|borrador|"
                  "una propuesta|confirmare|confirmo manana|confirmo luego|por confirmar|"
                  "pensandolo|no estoy segur*|no es definitiv*|no son definitiv*|solo si|"
                  "solamente si|unicamente si|ya te dire|no uses|no usar|tengo que hablar|"
                  "ainda nao|ainda estou|um rascunho|rascunho|a confirmar|confirmo amanha|"
                  "confirmo depois|confirmarei|vou confirmar|nao definitiv*|nao tenho certeza|"
                  "so se|somente se|apenas se|nao usar|tenho de falar|nog niet|voorlopig|"
                  "een concept|concept|een voorstel|ik bevestig|nog te bevestigen|bevestig morgen|"
                  "twijfel nog|weet niet zeker|onder voorbehoud|alleen als|alleen wanneer|hoor nog|"
                  "wacht nog|laat nog weten|laat het nog|volgen morgen|volgt morgen|volgen nog|"
                  "niet zeker|niet definitief"},
    SayingPhrases{Saying::Postpones,
                  "inte klart|inte annu|preliminart|preliminara|ikke endelig*|forelobig*|"
                  "et udkast|et utkast|ett utkast|udkast|utkast|et forslag|ett forslag|"
                  "bekrafter i morgen|bekrefter i morgen|bekraftar imorgon|bekraftar i morgon|"
                  "tanker stadig|tenker fortsatt|funderar fortfarande|funderar|usikker|osaker|"
                  "er i tvivl|er i tvil|inte slutgiltig*|inte klar*|endnu ikke|enda ikke|"
                  "annu inte|ikke brug|ikke bruk|anvand inte|kun hvis|bare hvis|bara om|"
                  "endast om|afventer|avventer|avvaktar|melder tilbage|maste forst|jeszcze nie|"
                  "szkic|to propozycja|propozycja|potwierdze|do potwierdzenia|jeszcze mysle|"
                  "mysle nad|zastanawiam|nie jestem pew*|nieostateczn*|tylko jesli|tylko gdy|"
                  "czekam na odp*|dam znac|luonnos|ehdotus|vahvistan|ei viela|epavarma|harkitsen|"
                  "mietin|vain jos|javaslat|tervezet|vazlat|megerosit*|meg nem|csak ha|"
                  "nem biztos|meg gondol*|navrh|potvrdim|jeste ne|jeste to|rozmyslim|premyslim|"
                  "jen pokud|pouze pokud|nejsem si jist*|chernovik|esche ne|podtverzh*|tolko esli|"
                  "prosxedio|protasi"},
    SayingPhrases{
        Saying::Gives,
        "z . b|p . ex|e . g|t . ex|f . eks|eg|zb|bv|np|zum beispiel|par exemple|por ejemplo|"
        "por exemplo|per esempio|bijvoorbeeld|for eksempel|till exempel|na przyklad|"
        "esimerkiksi|peldaul|napriklad|for example|for instance|how do i write|how do you write|"
        "how to write"},
    SayingPhrases{
        Saying::Asks,
        "what if|can i still|may i still|can i change|may i change|so richtig|ist das "
        "richtig|stimmt das|"
        "in my place|=thoughts|=opinions|what do you think|what do you reckon|what you "
        "reckon|would that work|"
        "would this work|does that work|does this work|would it work|is that ok|"
        "is this ok|okay like this|ok like this|is this legal|is that legal|"
        "is this allowed|is that allowed|do you agree|any thoughts|any objections|"
        "please advise|how does that|how does this|any better idea|any better ideas|"
        "let me know|was meinst du|was meint ihr|was meinen sie|was haltst du|passt das|"
        "geht das|quen penses|quen dis|que opinas|que te parece|que os parece|"
        "que piensas|te parece bien|che ne pensi|che ne dici|che ne dite|va bene cosi|"
        "o que acha*|que acha*|que achas|wat denk je|wat vind je|wat vinden|hvad synes|"
        "hva synes|vad tycker|hvad siger|hva sier|vad sager|co myslisz|co sadzisz|"
        "co o tym|co ty na to|mit szolsz|co na to|mita mielta|how about this|"
        "how about these|how about that|a better idea|is that a good idea|should i rather|"
        "should i instead"},
    SayingPhrases{
        Saying::Postpones,
        "vent til|wacht tot|espera a que|espera que o|espera que a|aspetta che|attends "
        "que|attendez que|he dictated|she dictated|han dikterede|hun dikterede|han dikterade|hon "
        "dikterade|heeft ze door|er hat sie mir|sie hat sie mir|mir diktiert|"
        "last word|letzte wort|dernier mot|ultima palabra|ultima parola|ultima palavra|laatste "
        "woord|sidste ord|siste ord|sista ord|ostatnie slowo|two minds|up to me|nach mir ginge|qua "
        "moi|de mi dependiera|dependesse de mim|dipendesse da me|aan mij lag|stod til mig|upp till "
        "mig|ode mnie zalezalo|"
        "dont believe a|dont believe him|dont believe her|dont believe it|dont believe them|"
        "glaub ihm|glaubt ihm|glaube ihm|nen crois pas|nen croyez pas|no le creas|no le creais|"
        "non credergli|nao acredites|nao acreditem|geloof er niets|geloof hem|tro ham ikke|"
        "tro honom inte|nie wierz|reserve the right|behalte mir vor|me reserve le|me reservo el|"
        "mi riservo|direito de enviar|direito de mudar|me reservo o|behoud me het|forbeholder "
        "mig|forbeholder meg|"
        "forbehaller mig|zastrzegam|which of them|which of these|which ones stand|"
        "wants me to|got this from|sent me the|toying with|thinks ill|thinks i will|to show|lie to|"
        "rumour has|rumor has|i dreamt|i dreamed|ce que veut|lo que quiere|quello che vuole|o que "
        "quer|no definitivo|"
        "no definitivas|in spring i did|in autumn i did|in fall i did|if theyre ok|better "
        "double|copied this|dictated by|orders for me|long as|valid until|"
        "valid till|expires|right to change|right to amend|right to alter|co player|my partner|"
        "still arguing|deal fell|deal is off|deals off|no deal|backed out|scrapping|=trash|silly "
        "me|"
        "will review|under review|rough cut|rough idea|=sketch|brainstorm*|=for fun|=for laughs|"
        "press only|for the press|not for the gm|wrong recipient|wrong person|unsent|out of date|"
        "=stale|=expired|old mail|my drafts|from drafts|saved draft|=template|a template|fill in "
        "later|"
        "=nvm|=nm|=n / m|=stop|=halt|=remove these|=drop these|=kill these|=delete these|"
        "hold on a|gimme a|give me a minute|einen moment noch|un momento mas|ein moment noch|other "
        "league|"
        "wishlist|wish list|wunschzettel|wunschliste|nicht meine|nicht von mir|pas de moi|no son "
        "mios|"
        "no son mias|non sono miei|niet van mij|inte mina|nie moje|auf anfang|kommando zuruck|"
        "anderungen folgen|kann sich andern|konnen sich andern|andert sich noch|finalement non|a "
        "revoir|"
        "envies esto|mandes esto|aguarde|aguardem|niet invoeren|nog niet|vent pa|resend|ill redo|"
        "=just in case|=for now|=at least for now|=for the time being|=fur den moment|=vorerst|"
        "=pour linstant|=por ahora|=per ora|=por enquanto|=voorlopig|=tills vidare|hasnt answered|"
        "havent answered|hasnt replied|no answer yet|waiting for|warte auf|attends une|esperando a|"
        "aspetto la|aspetto una|wachten op|venter pa|vantar pa|czekam na|haha as if|hahaha as if|"
        "lol as if|in your dreams|messing with|pulling your leg|winding you up|show this to|"
        "forwarding this|what he sent|what she sent|what they sent|sent me above|=as in 1901|"
        "no longer france|any more|is played by|takes over|took over|one back|nothing of this|"
        "work in progress|wip|=todo|todo :|todo list|=to do|finish this later|finish later|rest "
        "later|rest follows|"
        "rest to follow|check again|ruf mich|rufe mich|appelle moi|appelez "
        "moi|llamame|chiamami|bel me|"
        "bel mij|ring mig|ring meg|zadzwon|appelle moi avant|tom geschrieben|doch alles "
        "anders|doch ganz anders|hacked|wasnt me|was not me|cat sent|a mistake in|"
        "mistake above|fehler drin"},
    SayingPhrases{
        Saying::Titles,
        "how to write|how orders are written|"
        "fantasy|fantasy orders|decoy|press release|standing orders|testing|format|right "
        "format|like so|"
        "plan a|plan b|plan c|plan 1|plan 2|option a|option b|option 1|option 2|option one|"
        "option two|set a|set b|set 1|set 2|variant*|moglichkeit*|opcion*|opzion*|opcao|opcoes|"
        "optie|opties|wariant*|vaihtoehto*|draft|drafts|example|examples|sample|samples|proposal|"
        "proposals|suggestion|"
        "suggestions|results|last turn|last season|last year|previous turn|"
        "previous season|previous orders|old version|old orders|last moves|plan b|"
        "backup|backup orders|fallback|contingency|original plan|next turn|next season|"
        "trial|practice|theoretical|hypothetically|dream moves|joke orders|other game|"
        "letzter zug|letzte runde|vorschlag|alte befehle|bisherige befehle|nachster zug|"
        "nachste runde|beispiel|ergebnis|ergebnisse|entwurf|dernier tour|tour precedent|"
        "proposition|anciens ordres|ordres precedents|prochain tour|exemple|resultats|"
        "brouillon|ultimo turno|turno anterior|turno pasado|proximo turno|propuesta|"
        "ejemplo|resultados|borrador|turno precedente|turno scorso|prossimo turno|"
        "proposta|esempio|risultati|bozza|turno passado|exemplo|rascunho|vorige beurt|"
        "volgende beurt|voorstel|oude orders|voorbeeld|uitslag|sidste tur|forrige tur|"
        "naste tur|nasta tur|nasta drag|neste runde|nasta runda|forra "
        "rundan|forslag|udkast|utkast|eksempel|"
        "exempel|gamle ordrer|gamle ordre|gamla order|resultater|resultat|propozycja|"
        "szkic|przyklad|wyniki|poprzednia tura|nastepna tura|stare rozkazy|luonnos|"
        "ehdotus|esimerkki|javaslat|tervezet|pelda|navrh|priklad|chernovik|primer"},
    SayingPhrases{
        Saying::Corrects,
        "are the good ones|are the right ones|are the correct ones|sind die richtigen|sind die "
        "guten|"
        "sono quelli buoni|sono quelli giusti|son las buenas|son los buenos|son las correctas|"
        "son los correctos|sont les bons|sont les bonnes|sao os certos|sao os bons|sao as certas|"
        "sao as boas|zijn de juiste|zijn de goede|er de rigtige|er de riktige|ar de ratta|"
        "the truth|in truth|what i really do|what i really|i lied|changed my mind|change my "
        "mind|change of mind|change of plan|change of plans|"
        "change of heart|scrap that|scratch that|forget that|strike that|final version|"
        "these are final|these are my final|are definite|are final|are certain|are settled|is "
        "final|"
        "take this one|take these|use this one|use this list|sind endgultig|sind fest|nimm "
        "diese|nehmt diese|"
        "sont definitifs|prends ceux ci|son definitivas|usa estas|sono definitivi|usa questi|"
        "sao definitivas|usa estes|zijn definitief|neem deze|er endelige|brug disse|bruk disse|"
        "ar slutgiltiga|anvand dessa|sa ostateczne|i mean|i meant|make that|should be|"
        "should read|should have been|use these|use this instead|these instead|"
        "this one counts|these ones count|these count|the one that counts|the ones that count|"
        "diese gilt|diese gelten|diese zahlt|c'est la bonne|celle ci compte|vale esta|questa vale|"
        "deze telt|"
        "this instead|ignore my previous|ignore the previous|ignore my last|"
        "ignore my earlier|ignore the above|disregard my|disregard the|one correction|"
        "small correction|quick correction|a correction|slight correction|one change|"
        "small change|slight change|with one change|habe mich vertan|meinung geandert|"
        "je me suis trompe|me equivoque|mi sono sbagliato|ho cambiato idea|change d avis|"
        "changement d avis|verbeterde versie|angrat mig|ombestemt|zmiana zdania|"
        "scratch that last one|scrap that one|thought better of it|jokes aside|joking "
        "aside|kidding aside|skamt asido|"
        "spas beiseite|scherz beiseite|blague a part|bromas aparte|scherzi a parte|"
        "brincadeiras a parte|spog til side|zarty na bok|seriously now|no but seriously"},
    SayingPhrases{
        Saying::Leaves,
        "more or less|had better|d better|peut etre|tal vez|in another life|the real thing|your "
        "call|up to you|eyes only|comments "
        "welcome|wie du willst|wie du "
        "magst|comme tu veux|"
        "comme vous voulez|como quieras|come vuoi|come volete|como quiseres|zoals je wilt|"
        "wat je wilt|som du vil|som du vill|jak chcesz"},
    SayingPhrases{Saying::Shrugs,
                  "no hard feelings|lump it|tough luck|serves him right|nicht bose|selber schuld|"
                  "pech gehabt|tant pis|peor para|peggio per|pior para"},
    SayingPhrases{
        Saying::Chats,
        "hope that is clear|hope thats clear|hope this is clear|hope its clear|hope it is clear|"
        "hope its readable|hope it is readable|hope this is readable|hope that makes sense|"
        "hope this makes sense|hope it makes sense|happy whatever|whatever happens|whatever the "
        "result|whatever comes|come what may|was told there|see the match|saw the match|"
        "watch the match|see the game|saw the game|watch the game|no idea what the|my wife "
        "says|the "
        "wife says|my husband says|my mother says|took me an hour|took me ages|took me forever|"
        "took me a while|nobody tells me|no one tells me|not giving up|wont give up|never give up|"
        "spiel gesehen|vu le match|visteis el partido|viste el partido|vieron el partido|visto la "
        "partita|viram o jogo|viste o jogo|wedstrijd gezien|kampen i gar|matchen igar|matchen i "
        "gar|wczoraj mecz|mecz wczoraj|sagt ja sowieso keiner|sagt ja keiner|on ne me dit|nadie me "
        "cuenta|nessuno mi dice|a me nessuno|ninguem me diz|vertelt toch niemand|nikt nic nie mowi|"
        "egal wie es|egal was passiert|uanset hvad der|quoi quil arrive|pase lo que pase|"
        "comunque vada|aconteca o que|wat er ook gebeurt|vad som an hander|cokolwiek sie|"
        "keine ahnung was der|aucune idee de ce que|ni idea de lo que|idea di cosa|ideia do que|"
        "idee wat de|aner ikke hvad|aning om vad|pojecia co|cant believe it|cant believe its|kaum "
        "zu glauben|puedo creer que ya|posso credere che|nao acredito que ja|niet te geloven|"
        "taenk at det|tank at det|nie do wiary|narrive pas a croire|meine frau sagt|ma femme dit|"
        "mi mujer dice|mia moglie dice|minha mulher diz|mijn vrouw zegt|min kone siger|min kone "
        "sier|min fru sager|zona mowi|gebe nicht auf|nabandonne pas|no me rindo|non mi arrendo|nao "
        "desisto|geef niet op|giver ikke op|gir ikke opp|ger inte upp|nie poddaje|better than last|"
        "besser als letzt*|mieux que la derniere|mejor que la ultima|meglio dell ultima|beter dan "
        "vorige|bedre end sidst|battre an forra|lepiej niz ostatnio|doing all this|all this work|"
        "sorry for the essay|sorry for the long|sorry for the novel|well played|nicely "
        "played|looking forward to|cant wait to see|off to bed|should be "
        "all|muss fruh raus|"
        "moge der bessere|moge die bessere|que le meilleur gagne|que gane el mejor|vinca il "
        "migliore|"
        "que venca o melhor|moge de beste|gracias por todo|gracias por organizar|nos vemos|lycka "
        "till|"
        "dis moi si tu as|dites moi si vous avez|confirma se chegou|confirmame que|sig lige til "
        "hvis|"
        "do czwartku|do soboty|do niedzieli|do poniedzialku|do wtorku|do srody|do piatku|on "
        "holiday|on holidays|on vacation|out of office|out of town|im "
        "urlaub|"
        "en vacances|de vacaciones|in vacanza|de ferias|op vakantie|pa ferie|pa semester|na "
        "urlopie|"
        "when is the deadline|when is the next|wann ist die nachste|er fristen|er deadline|"
        "ar deadline|not my year|not my day|not my week|not my best|confirm "
        "receipt|confirm the receipt of same|confirm the receipt|acknowledge receipt|receipt of "
        "same|receipt of the same|"
        "confirm you got|confirm you received|confirm you have received|"
        "did it right|got it right|notation is right|format is right|"
        "spelling is right|no comment|no comments|would be proud|lets see what the|"
        "gut gespielt|bien joue|bien jugado|ben giocato|bem jogado|"
        "goed gespeeld|godt spillet|bra spelat|dobrze zagrane|dont ask|dont worry|dont laugh|"
        "dont judge|no laughing|saw it coming|saw that coming|seen it coming|gotta go|gotta run|"
        "gotta dash|got to go|got to run|have to go|have to run|have to dash|must go|must dash|"
        "must run|muss los|muss weg|mussen los|muss ins bett|muss schlafen|je dois filer|je file|"
        "dois y aller|tengo que irme|me tengo que ir|devo scappare|devo andare|tenho de ir|"
        "tenho que ir|moet gaan|moet rennen|moet ervandoor|ma lobe|ma stikke|maste springa|"
        "maste ga|musze leciec|musze isc|no joke|no jokes|not joking|not kidding|im serious|"
        "kein witz|kein scherz|kein spas|pas de blague|sans blague|sin broma|sin bromas|"
        "no es broma|niente scherzi|non scherzo|sem brincadeira|geen grap|geen grapje|"
        "ingen spog|ikke for sjov|inget skamt|bez zartow"},
    SayingPhrases{
        Saying::Excludes,
        "=no|=non|=nao|=nej|=nei|=nie|=nein|=nee|=not|=nicht|=pas|=niet|=ikke|=inte|=instead "
        "of|=rather than|=statt|=anstatt|=anstelle von|"
        ""
        "=au lieu de|=au lieu du|=au lieu de la|=en lugar "
        "de la|=en lugar del|=en vez de la|=en "
        "vez del|=invece della|=invece del|=invece dell|=em vez da|=em vez do|=em lugar da|=em "
        "lugar do|=anstelle|=plutot que|=en lugar de|=en vez de|=invece di|=invece che|=em vez de|"
        "=em lugar de|=in plaats van|=i stedet for|=istallet for|=i stallet for|=zamiast|=a nie|"
        "=misto|=helyett|=eika"},
    SayingPhrases{Saying::Reconsiders,
                  "oups|ups|uy|huy|ops|oeps|oj|hoppsan|hov|ojej|no|nope|nah|nay|wait|hang "
                  "on|actually|rather|hmm|hm|oops|whoops|ooops|"
                  "sorry|apologies|better|on reflection|second thought|second thoughts|not that|"
                  "i mean|i meant|make that|scratch that|strike that|scrap that|correction|"
                  "my mistake|my bad|instead|nein|nee|doch|lieber|besser|quatsch|moment|stopp|"
                  "verzeihung|korrektur|non|plutot|en fait|enfin|pardon|attends|attendez|mieux|"
                  "erreur|anzi|aspetta|aspetti|meglio|invece|scusa|scusate|mejor|espera|"
                  "perdon|en realidad|nao|alias|melhor|na verdade|afinal|desculpa|digo|wacht|"
                  "liever|toch|eigenlijk|foutje|nej|nei|vent|hellere|heller|alligevel|"
                  "egentlig|egentligen|vanta|hellre|snarare|undskyld|unnskyld|forlat|nie|"
                  "czekaj|raczej|jednak|wlasciwie|przepraszam"},
    SayingPhrases{
        Saying::Corrects,
        "ich meinte|ich meine|gemeint war|gemeint ist|je voulais dire|je veux dire|queria "
        "decir|quise decir|quiero decir|volevo dire|intendevo|voglio dire|queria dizer|quis "
        "dizer|quero dizer|ik bedoelde|ik bedoel|bedoelde ik|jeg mente|jeg mener|jag menade|jag "
        "menar|mialem na mysli|mialam na mysli|chodzilo mi o|planwijziging|plananderung|changement "
        "de plan|changement de programme|cambio de planes|cambio de plan|cambio di "
        "programma|cambio di piano|mudanca de planos|mudanca de plano|planandring|andrad "
        "plan|andrede planer|endret plan|zmiana planu|zmiana planow|un changement|une "
        "modification|une correction|petit changement|petite correction|un cambio|una "
        "correccion|pequeno cambio|una modifica|una correzione|piccola modifica|uma alteracao|uma "
        "correcao|pequena alteracao|een wijziging|kleine wijziging|een correctie|en andring|lille "
        "andring|liten andring|en endring|en rettelse|en rattelse|jedna zmiana|mala zmiana|jedna "
        "poprawka|eine anderung|kleine anderung|eine korrektur|kleine korrektur"},
    SayingPhrases{
        Saying::Corrects,
        "replacing everything|replaces everything|replace everything|ersetzt alles|ersetzen "
        "alles|remplace tout|remplacent tout|sustituye todo|sustituyen todo|sostituisce "
        "tutto|sostituiscono tutto|substitui tudo|substituem tudo|vervangt alles|vervangen "
        "alles|erstatter alt|erstatter allt|ersatter allt|zastepuje wszystko|zastepuja "
        "wszystko|prends ceux - ci|prends ceux ci a la place|prenez ceux - ci|gebruik deze|wez "
        "te|prosze wziac te"},
    SayingPhrases{Saying::Titles,
                  "in mind|en mente|em mente|in mente|in gedachten|i tankerne|i tankarna|en "
                  "tete|im kopf|im sinn|il veut que|vuole che|quiere que|ele quer que|vill han "
                  "att|vil han have|ode mnie chce|mochte er von|wil hij dat"},
    SayingPhrases{Saying::Postpones,
                  "details follow|details to follow|details folgen|details a suivre|detalles mas "
                  "tarde|dettagli a seguire|detalhes depois|details volgen|detaljer "
                  "folger|szczegoly pozniej"},
    SayingPhrases{Saying::Postpones,
                  "de cote|deja fuera|dejad fuera|lascia fuori|lasciate fuori|de fora|vaere "
                  "ude|vare ude|vara utanfor|lamna utanfor|hangt von|hangt ab|abhangig von|depend "
                  "de|dependent de|depende de|dependen de|dipende da|dipende dall|dipende "
                  "dal|dipende dalla|depende da|depende do|hangt van|hangt af|afhankelijk "
                  "van|afhanger|avhenger|beror pa|zalezy od|zaleza od|bis auf|hold back|hall inne"},
    SayingPhrases{Saying::Postpones,
                  "garde lordre|gardez lordre|garde l'ordre|guarda la orden|guarda a ordem|tieni "
                  "fermo|hold fladens|hou het"},
    SayingPhrases{
        Saying::Leaves,
        "a lo mejor|kan ook oud|kan vara gammal|kan vare gammel|kann auch alt|moze byc stare"},
    SayingPhrases{
        Saying::Postpones,
        "algo asi|nagot sant har|noget sadant|cos takiego|no idea if|no idea whether|aning om "
        "det|pojecia czy|keine ahnung ob|aucune idee si|ni idea de si|idea se|geen idee of|aner "
        "ikke om|would want|would have wanted|ville have folgende|skulle vilja ha|chcialby "
        "tak|aurait voulu|hubiera querido|avrebbe voluto|couldnt reach him|couldnt reach her|nicht "
        "erreichen|pas pu le joindre|fatt tag pa|faet fat i|fa fat i|quelque chose comme|so etwas "
        "wie|algo como|qualcosa come|iets als|nagot i stil|noget i stil|cos w stylu"},
    SayingPhrases{Saying::Corrects,
                  "bitte diese|diese verwenden|diese nehmen|prendre ceux - ci|prendre ceux ci|deze "
                  "gebruiken|brug venligst disse|anvand de har|uzyc tych|usar estas|usare "
                  "questi|verwende diese"},
    SayingPhrases{Saying::Corrects,
                  "il faut lire|faut lire|doveva essere|deve essere|tiene que ser|deberia ser|deve "
                  "ser|devia ser|dat moet|skal sta|ska sta|powinno byc|muss heisen|soll "
                  "heisen|sollte heisen|muss es heisen|muss"},
    SayingPhrases{
        Saying::Reconsiders,
        "nach reiflicher uberlegung|reiflicher uberlegung|tout bien reflechi|apres "
        "reflexion|reflexion "
        "faite|ripensandoci|pensandoci meglio|pensandolo mejor|pensandolo bien|pensando melhor|bij "
        "nader inzien|nader inzien|ved narmere eftertanke|ved nermere ettertanke|vid narmare "
        "eftertanke|po namysle|po przemysleniu|al final|alla fine|trots allt"},
    SayingPhrases{Saying::Revokes, "stryk|slet ordren|schrap|skresl|wykresl"},
    SayingPhrases{
        Saying::Chats,
        "no corrections|keine korrekturen|pas de correction|nessuna correzione|ninguna "
        "correccion|nenhuma correcao|geen correcties|ingen rettelser|inga rattelser|bez poprawek"},
    SayingPhrases{
        Saying::Postpones,
        "signed off|up in the air|en el aire|in der schwebe|en suspens|in sospeso|in de lucht|i "
        "luften|set in stone|in stein|dans le marbre|en piedra|em pedra|nella pietra|i sten|te "
        "dirai|vous dirai|te dire|ti diro|ti dico|te digo|sag ich dir|sage ich dir|zeg ik je|siger "
        "jeg dig|sager jag dig|powiem ci|doy vueltas|em discussao|en discusion|in discussione|in "
        "overleg|on ice|auf eis|in de ijskast|au frigo|stand by|vent lige|vent med|vanta med|warte "
        "damit|drubers schlafen|schlafe druber|dormir dessus|almohada|dormo sopra|sove pa|sova "
        "pa|przespac|aterkommer|melder meg|melder mig|czekaj na|czekac na|warte auf mein|attends "
        "mon|aspetta il mio|espera a mi"},
    SayingPhrases{Saying::Titles,
                  "pongamos por caso|supongamos|faz de conta|fais comme si|om jag vore|hvis jeg "
                  "var|gesetzt den fall|angenommen|supposons|mettons que|mettiamo che|facciamo "
                  "finta|stel dat|gdybym byl*|lets say i|lets pretend"},
    SayingPhrases{Saying::Postpones, "em discussao|da limare"},
    SayingPhrases{Saying::Revokes,
                  "raye|tacha lo|tacha la|risca a|risca "
                  "o|anulalas|anulalos|annullali|annullale|anula - as|nie bierz pod"},
};

}  // namespace

std::span<const SayingPhrases> AllSayingPhrases() {
  return SayingTable;
}

}  // namespace orb::exchange
