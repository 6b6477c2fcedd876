<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context><name>EmojiLocalisation</name>
<message><source>!</source><translation>punto esclamativo</translation></message>
<message><source>10:00</source><translation>10:00</translation></message>
<message><source>10:30</source><translation>10:30</translation></message>
<message><source>11:00</source><translation>11:00</translation></message>
<message><source>11:30</source><translation>11:30</translation></message>
<message><source>12:00</source><translation>12:00</translation></message>
<message><source>12:30</source><translation>12:30</translation></message>
<message><source>1st place medal</source><translation>medaglia d’oro</translation></message>
<message><source>2:00</source><translation>2:00</translation></message>
<message><source>2:30</source><translation>2:30</translation></message>
<message><source>2nd place medal</source><translation>medaglia d’argento</translation></message>
<message><source>3:00</source><translation>3:00</translation></message>
<message><source>3:30</source><translation>3:30</translation></message>
<message><source>3rd place medal</source><translation>medaglia di bronzo</translation></message>
<message><source>4:00</source><translation>4:00</translation></message>
<message><source>4:30</source><translation>4:30</translation></message>
<message><source>5:00</source><translation>5:00</translation></message>
<message><source>5:30</source><translation>5:30</translation></message>
<message><source>6:00</source><translation>6:00</translation></message>
<message><source>6:30</source><translation>6:30</translation></message>
<message><source>7:00</source><translation>7:00</translation></message>
<message><source>7:30</source><translation>7:30</translation></message>
<message><source>8:00</source><translation>8:00</translation></message>
<message><source>8:30</source><translation>8:30</translation></message>
<message><source>9:00</source><translation>9:00</translation></message>
<message><source>9:30</source><translation>9:30</translation></message>
<message><source>?</source><translation>punto interrogativo</translation></message>
<message><source>A button (blood type)</source><translation>gruppo sanguigno A</translation></message>
<message><source>AB button (blood type)</source><translation>gruppo sanguigno AB</translation></message>
<message><source>ATM sign</source><translation>simbolo dello sportello bancomat</translation></message>
<message><source>Aquarius</source><translation>Segno zodiacale dell’Acquario</translation></message>
<message><source>Aries</source><translation>Segno zodiacale dell’Ariete</translation></message>
<message><source>B button (blood type)</source><translation>gruppo sanguigno B</translation></message>
<message><source>BACK arrow</source><translation>freccia BACK</translation></message>
<message><source>CL button</source><translation>pulsante CL</translation></message>
<message><source>COOL button</source><translation>pulsante COOL</translation></message>
<message><source>Cancer</source><translation>Segno zodiacale del Cancro</translation></message>
<message><source>Capricorn</source><translation>Segno zodiacale del Capricorno</translation></message>
<message><source>Christmas tree</source><translation>albero di Natale</translation></message>
<message><source>END arrow</source><translation>freccia END</translation></message>
<message><source>FREE button</source><translation>pulsante FREE</translation></message>
<message><source>Gemini</source><translation>Segno zodiacale dei Gemelli</translation></message>
<message><source>ID button</source><translation>pulsante ID</translation></message>
<message><source>Japanese castle</source><translation>castello giapponese</translation></message>
<message><source>Japanese dolls</source><translation>bambole giapponesi</translation></message>
<message><source>Japanese post office</source><translation>ufficio postale giapponese</translation></message>
<message><source>Japanese symbol for beginner</source><translation>ideogramma giapponese di “Principiante”</translation></message>
<message><source>Japanese “acceptable” button</source><translation>ideogramma giapponese di “Accettabile”</translation></message>
<message><source>Japanese “application” button</source><translation>ideogramma giapponese di “Candidatura”</translation></message>
<message><source>Japanese “bargain” button</source><translation>ideogramma giapponese di “Occasione”</translation></message>
<message><source>Japanese “congratulations” button</source><translation>ideogramma giapponese di “Congratulazioni”</translation></message>
<message><source>Japanese “discount” button</source><translation>ideogramma giapponese di “Sconto”</translation></message>
<message><source>Japanese “free of charge” button</source><translation>ideogramma giapponese di “Gratis”</translation></message>
<message><source>Japanese “here” button</source><translation>ideogramma giapponese per “Qui”</translation></message>
<message><source>Japanese “monthly amount” button</source><translation>ideogramma giapponese di “Importo mensile”</translation></message>
<message><source>Japanese “no vacancy” button</source><translation>ideogramma giapponese di “Nessun posto libero”</translation></message>
<message><source>Japanese “not free of charge” button</source><translation>ideogramma giapponese di “A pagamento”</translation></message>
<message><source>Japanese “open for business” button</source><translation>ideogramma giapponese di “Aperto al pubblico”</translation></message>
<message><source>Japanese “passing grade” button</source><translation>ideogramma giapponese di “Voto di sufficienza”</translation></message>
<message><source>Japanese “prohibited” button</source><translation>ideogramma giapponese di “Proibito”</translation></message>
<message><source>Japanese “reserved” button</source><translation>ideogramma giapponese di “Riservato”</translation></message>
<message><source>Japanese “secret” button</source><translation>ideogramma giapponese di “Segreto”</translation></message>
<message><source>Japanese “service charge” button</source><translation>ideogramma giapponese di “Costo del servizio”</translation></message>
<message><source>Japanese “vacancy” button</source><translation>ideogramma giapponese di “Posto libero”</translation></message>
<message><source>Leo</source><translation>Segno zodiacale del Leone</translation></message>
<message><source>Libra</source><translation>Segno zodiacale della Bilancia</translation></message>
<message><source>Mrs. Claus</source><translation>Mamma Natale</translation></message>
<message><source>Mx Claus</source><translation>Santa Claus</translation></message>
<message><source>NEW button</source><translation>pulsante NEW</translation></message>
<message><source>NG button</source><translation>pulsante NG</translation></message>
<message><source>O button (blood type)</source><translation>gruppo sanguigno 0</translation></message>
<message><source>OK button</source><translation>pulsante OK</translation></message>
<message><source>OK hand</source><translation>mano che fa OK</translation></message>
<message><source>ON! arrow</source><translation>freccia ON</translation></message>
<message><source>Ophiuchus</source><translation>Segno zodiacale dell’Ofiuco</translation></message>
<message><source>P button</source><translation>pulsante P</translation></message>
<message><source>Pisces</source><translation>Segno zodiacale dei Pesci</translation></message>
<message><source>SOON arrow</source><translation>freccia SOON</translation></message>
<message><source>SOS button</source><translation>pulsante SOS</translation></message>
<message><source>Sagittarius</source><translation>Segno zodiacale del Saggitario</translation></message>
<message><source>Santa Claus</source><translation>Babbo Natale</translation></message>
<message><source>Scorpio</source><translation>Segno zodiacale dello Scorpione</translation></message>
<message><source>Statue of Liberty</source><translation>Statua della Libertà</translation></message>
<message><source>T-Rex</source><translation>T-Rex</translation></message>
<message><source>TOP arrow</source><translation>freccia TOP</translation></message>
<message><source>Taurus</source><translation>Segno zodiacale del Toro</translation></message>
<message><source>Tokyo tower</source><translation>Torre di Tokyo</translation></message>
<message><source>UP! button</source><translation>pulsante UP!</translation></message>
<message><source>VS button</source><translation>pulsante VS</translation></message>
<message><source>Virgo</source><translation>Segno zodiacale della Vergine</translation></message>
<message><source>ZZZ</source><translation>sonno</translation></message>
<message><source>abacus</source><translation>abaco</translation></message>
<message><source>abcd</source><translation>caratteri latini</translation></message>
<message><source>access</source><translation>accesso</translation></message>
<message><source>accessibility</source><translation>accessibilità</translation></message>
<message><source>accordion</source><translation>fisarmonica</translation></message>
<message><source>actor</source><translation>palco</translation></message>
<message><source>adhesive bandage</source><translation>cerotto</translation></message>
<message><source>admiration</source><translation>ammirazione</translation></message>
<message><source>admission</source><translation>ammissione</translation></message>
<message><source>admission tickets</source><translation>biglietto d’ingresso</translation></message>
<message><source>aerial</source><translation>aerea</translation></message>
<message><source>aerial tramway</source><translation>funivia aerea</translation></message>
<message><source>airplane</source><translation>aeroplano</translation></message>
<message><source>airplane arrival</source><translation>atterraggio</translation></message>
<message><source>airplane departure</source><translation>decollo</translation></message>
<message><source>alarm clock</source><translation>sveglia</translation></message>
<message><source>alces</source><translation>alce</translation></message>
<message><source>alcohol</source><translation>alcool</translation></message>
<message><source>alembic</source><translation>alambicco</translation></message>
<message><source>alien</source><translation>alieno</translation></message>
<message><source>alien monster</source><translation>mostro alieno</translation></message>
<message><source>aliens</source><translation>alieni</translation></message>
<message><source>alpaca</source><translation>alpaca</translation></message>
<message><source>alpha</source><translation>alpha</translation></message>
<message><source>alphabet</source><translation>alfabeto</translation></message>
<message><source>ambulance</source><translation>ambulanza</translation></message>
<message><source>american</source><translation>americano</translation></message>
<message><source>american football</source><translation>football americano</translation></message>
<message><source>amoeba</source><translation>ameba</translation></message>
<message><source>amphora</source><translation>anfora</translation></message>
<message><source>amulet</source><translation>amuleto</translation></message>
<message><source>anatomical</source><translation>anatomia</translation></message>
<message><source>anatomical heart</source><translation>organo del cuore</translation></message>
<message><source>anchor</source><translation>ancora</translation></message>
<message><source>angels</source><translation>angelo</translation></message>
<message><source>anger</source><translation>rabbia</translation></message>
<message><source>anger symbol</source><translation>rabbia</translation></message>
<message><source>angle</source><translation>angoli</translation></message>
<message><source>angry face</source><translation>faccina arrabbiata</translation></message>
<message><source>angry face with horns</source><translation>faccina arrabbiata con corna</translation></message>
<message><source>anguished face</source><translation>faccina angosciata</translation></message>
<message><source>animal</source><translation>animale</translation></message>
<message><source>annelid</source><translation>anellide</translation></message>
<message><source>anniversary</source><translation>anniversario</translation></message>
<message><source>ant</source><translation>formica</translation></message>
<message><source>antarctica</source><translation>antartico</translation></message>
<message><source>antenna</source><translation>antenna</translation></message>
<message><source>antenna bars</source><translation>segnale cellulare</translation></message>
<message><source>anxious</source><translation>ansioso</translation></message>
<message><source>anxious face with sweat</source><translation>faccina sudata in ansia</translation></message>
<message><source>apple</source><translation>apple pie</translation></message>
<message><source>application</source><translation>applicare</translation></message>
<message><source>aquarius</source><translation>acquario</translation></message>
<message><source>archery</source><translation>arciere</translation></message>
<message><source>architect</source><translation>architetto</translation></message>
<message><source>arepa</source><translation>arepa</translation></message>
<message><source>aries</source><translation>ariete</translation></message>
<message><source>arrest</source><translation>arresto</translation></message>
<message><source>arrived</source><translation>arrivare</translation></message>
<message><source>arrow</source><translation>freccia</translation></message>
<message><source>articulated lorry</source><translation>autoarticolato</translation></message>
<message><source>artist</source><translation>artista</translation></message>
<message><source>artist palette</source><translation>tavolozza</translation></message>
<message><source>assassin</source><translation>assassino</translation></message>
<message><source>assembly</source><translation>assemblaggio</translation></message>
<message><source>asterisk</source><translation>asterisco</translation></message>
<message><source>astonished face</source><translation>faccina stupita</translation></message>
<message><source>astronaut</source><translation>astronauta</translation></message>
<message><source>astronomy</source><translation>astro</translation></message>
<message><source>atheist</source><translation>ateismo</translation></message>
<message><source>atom</source><translation>atomo</translation></message>
<message><source>atom symbol</source><translation>simbolo dell’atomo</translation></message>
<message><source>attraction</source><translation>attrazione</translation></message>
<message><source>australia</source><translation>Australia</translation></message>
<message><source>auto rickshaw</source><translation>risciò a motore</translation></message>
<message><source>automobile</source><translation>auto</translation></message>
<message><source>autumn</source><translation>autunno</translation></message>
<message><source>aviation</source><translation>aviazione</translation></message>
<message><source>avocado</source><translation>avocado</translation></message>
<message><source>axe</source><translation>ascia</translation></message>
<message><source>babe</source><translation>romanticismo</translation></message>
<message><source>baby</source><translation>neonato</translation></message>
<message><source>baby angel</source><translation>angioletto</translation></message>
<message><source>baby bottle</source><translation>biberon</translation></message>
<message><source>baby chick</source><translation>pulcino</translation></message>
<message><source>baby symbol</source><translation>simbolo con immagine di bambino</translation></message>
<message><source>backhand</source><translation>dito indice</translation></message>
<message><source>backhand index pointing down</source><translation>indice abbassato</translation></message>
<message><source>backhand index pointing left</source><translation>indice verso sinistra</translation></message>
<message><source>backhand index pointing right</source><translation>indice verso destra</translation></message>
<message><source>backhand index pointing up</source><translation>indice alzato</translation></message>
<message><source>backpack</source><translation>zaino</translation></message>
<message><source>bacon</source><translation>pancetta</translation></message>
<message><source>badge</source><translation>badge</translation></message>
<message><source>badger</source><translation>tasso</translation></message>
<message><source>badminton</source><translation>badminton</translation></message>
<message><source>bag</source><translation>borsa</translation></message>
<message><source>bagel</source><translation>bagel</translation></message>
<message><source>baggage</source><translation>bagagli</translation></message>
<message><source>baggage claim</source><translation>simbolo del ritiro bagagli</translation></message>
<message><source>baguette</source><translation>baguette</translation></message>
<message><source>baguette bread</source><translation>baguette</translation></message>
<message><source>balance scale</source><translation>bilancia a doppio piatto</translation></message>
<message><source>ball</source><translation>palla</translation></message>
<message><source>ballet</source><translation>balletto</translation></message>
<message><source>ballet shoes</source><translation>scarpette da ballerina</translation></message>
<message><source>balloon</source><translation>palloncino</translation></message>
<message><source>ballot box with ballot</source><translation>urna elettorale con scheda</translation></message>
<message><source>banana</source><translation>banana</translation></message>
<message><source>banjo</source><translation>banjo</translation></message>
<message><source>bank</source><translation>banca</translation></message>
<message><source>banknote</source><translation>banconota</translation></message>
<message><source>bar chart</source><translation>grafico a barre</translation></message>
<message><source>barber</source><translation>barbiere</translation></message>
<message><source>barber pole</source><translation>barbiere</translation></message>
<message><source>baseball</source><translation>palla da baseball</translation></message>
<message><source>basket</source><translation>cesto</translation></message>
<message><source>basketball</source><translation>palla da pallacanestro</translation></message>
<message><source>bat</source><translation>pipistrello</translation></message>
<message><source>bathroom</source><translation>bagno</translation></message>
<message><source>bathtub</source><translation>vasca</translation></message>
<message><source>battery</source><translation>batteria</translation></message>
<message><source>beach</source><translation>spiaggia</translation></message>
<message><source>beach with umbrella</source><translation>spiaggia con ombrellone</translation></message>
<message><source>beaming face with smiling eyes</source><translation>faccina raggiante con occhi felici</translation></message>
<message><source>beans</source><translation>fagioli</translation></message>
<message><source>bear</source><translation>orso</translation></message>
<message><source>beating heart</source><translation>cuore che batte</translation></message>
<message><source>beauty</source><translation>bellezza</translation></message>
<message><source>beaver</source><translation>castoro</translation></message>
<message><source>bed</source><translation>letto</translation></message>
<message><source>bedtime</source><translation>zzz</translation></message>
<message><source>beer</source><translation>birra</translation></message>
<message><source>beer mug</source><translation>boccale di birra</translation></message>
<message><source>beetle</source><translation>coleottero</translation></message>
<message><source>behind</source><translation>variabile</translation></message>
<message><source>bell</source><translation>campana</translation></message>
<message><source>bell pepper</source><translation>peperone</translation></message>
<message><source>bell with slash</source><translation>campana sbarrata</translation></message>
<message><source>bellhop bell</source><translation>campanello da hotel</translation></message>
<message><source>bento box</source><translation>bento box</translation></message>
<message><source>beverage box</source><translation>bevanda monodose</translation></message>
<message><source>bff</source><translation>tenersi per mano</translation></message>
<message><source>bicycle</source><translation>bicicletta</translation></message>
<message><source>bicyclist</source><translation>ciclista</translation></message>
<message><source>big</source><translation>felino</translation></message>
<message><source>bike</source><translation>bici</translation></message>
<message><source>bikini</source><translation>bikini</translation></message>
<message><source>billed cap</source><translation>cappello con visiera</translation></message>
<message><source>billiard</source><translation>biliardo</translation></message>
<message><source>biohazard</source><translation>simbolo del rischio biologico</translation></message>
<message><source>biologist</source><translation>biologo</translation></message>
<message><source>bird</source><translation>uccello</translation></message>
<message><source>birthday</source><translation>compleanno</translation></message>
<message><source>birthday cake</source><translation>torta di compleanno</translation></message>
<message><source>bisexual</source><translation>bisex</translation></message>
<message><source>bison</source><translation>bisonte</translation></message>
<message><source>biting lip</source><translation>bocca che morde il labbro</translation></message>
<message><source>black bird</source><translation>merlo</translation></message>
<message><source>black cat</source><translation>gatto nero</translation></message>
<message><source>black circle</source><translation>cerchio nero</translation></message>
<message><source>black flag</source><translation>bandiera nera</translation></message>
<message><source>black heart</source><translation>cuore nero</translation></message>
<message><source>black large square</source><translation>quadrato nero grande</translation></message>
<message><source>black medium square</source><translation>quadrato nero medio</translation></message>
<message><source>black medium-small square</source><translation>quadrato nero medio-piccolo</translation></message>
<message><source>black nib</source><translation>pennino</translation></message>
<message><source>black small square</source><translation>quadrato nero piccolo</translation></message>
<message><source>black square button</source><translation>tasto quadrato bianco con bordo nero</translation></message>
<message><source>blossom</source><translation>fiore</translation></message>
<message><source>blowfish</source><translation>pesce palla</translation></message>
<message><source>blu-ray</source><translation>blu-ray</translation></message>
<message><source>blue</source><translation>blu</translation></message>
<message><source>blue book</source><translation>libro blu</translation></message>
<message><source>blue circle</source><translation>cerchio blu</translation></message>
<message><source>blue heart</source><translation>cuore blu</translation></message>
<message><source>blue square</source><translation>quadrato blu</translation></message>
<message><source>blueberries</source><translation>mirtilli</translation></message>
<message><source>boar</source><translation>cinghiale</translation></message>
<message><source>boat</source><translation>barca</translation></message>
<message><source>boba</source><translation>boba</translation></message>
<message><source>body</source><translation>corpo</translation></message>
<message><source>bodybuilder</source><translation>bodybuilding</translation></message>
<message><source>bomb</source><translation>bomba</translation></message>
<message><source>bone</source><translation>osso</translation></message>
<message><source>book</source><translation>libreria</translation></message>
<message><source>bookmark</source><translation>segnalibro</translation></message>
<message><source>bookmark tabs</source><translation>etichette segnalibro</translation></message>
<message><source>books</source><translation>libri</translation></message>
<message><source>boom</source><translation>boom</translation></message>
<message><source>boomerang</source><translation>boomerang</translation></message>
<message><source>bottle with popping cork</source><translation>bottiglia stappata</translation></message>
<message><source>bouquet</source><translation>mazzo di fiori</translation></message>
<message><source>bow and arrow</source><translation>arco e freccia</translation></message>
<message><source>bowl with spoon</source><translation>ciotola con cucchiaio</translation></message>
<message><source>bowling</source><translation>bowling</translation></message>
<message><source>boxing glove</source><translation>guantone da pugilato</translation></message>
<message><source>boy</source><translation>bambino</translation></message>
<message><source>brain</source><translation>cervello</translation></message>
<message><source>bread</source><translation>pane in cassetta</translation></message>
<message><source>breakfast</source><translation>colazione</translation></message>
<message><source>breast-feeding</source><translation>allattare</translation></message>
<message><source>brick</source><translation>mattoni</translation></message>
<message><source>bridge at night</source><translation>ponte di notte</translation></message>
<message><source>briefcase</source><translation>valigetta 24 ore</translation></message>
<message><source>briefs</source><translation>slip</translation></message>
<message><source>bright</source><translation>soleggiato</translation></message>
<message><source>bright button</source><translation>luminosità elevata</translation></message>
<message><source>brightness</source><translation>luminosità</translation></message>
<message><source>bro</source><translation>biondo</translation></message>
<message><source>broccoli</source><translation>broccoli</translation></message>
<message><source>broken chain</source><translation>catena spezzata</translation></message>
<message><source>broken heart</source><translation>cuore infranto</translation></message>
<message><source>bronze</source><translation>bronzo</translation></message>
<message><source>broom</source><translation>scopa</translation></message>
<message><source>brown</source><translation>marrone</translation></message>
<message><source>brown circle</source><translation>cerchio marrone</translation></message>
<message><source>brown heart</source><translation>cuore marrone</translation></message>
<message><source>brown mushroom</source><translation>fungo marrone</translation></message>
<message><source>brown square</source><translation>quadrato marrone</translation></message>
<message><source>bubble tea</source><translation>bubble tea</translation></message>
<message><source>bubbles</source><translation>bolle</translation></message>
<message><source>bucket</source><translation>secchio</translation></message>
<message><source>buckingham</source><translation>buckingham palace</translation></message>
<message><source>buffalo</source><translation>bufalo</translation></message>
<message><source>bug</source><translation>insetto</translation></message>
<message><source>building</source><translation>edificio</translation></message>
<message><source>building construction</source><translation>edificio in costruzione</translation></message>
<message><source>bullet train</source><translation>treno alta velocità punta arrotondata</translation></message>
<message><source>bullseye</source><translation>bersaglio</translation></message>
<message><source>burrito</source><translation>burrito</translation></message>
<message><source>bus</source><translation>bus</translation></message>
<message><source>bus stop</source><translation>fermata dell’autobus</translation></message>
<message><source>bust</source><translation>ombra</translation></message>
<message><source>bust in silhouette</source><translation>profilo di persona</translation></message>
<message><source>busts in silhouette</source><translation>profilo di due persone</translation></message>
<message><source>butter</source><translation>burro</translation></message>
<message><source>butterfly</source><translation>farfalla</translation></message>
<message><source>cabbage</source><translation>cavolo nero</translation></message>
<message><source>cactus</source><translation>cactus</translation></message>
<message><source>calendar</source><translation>calendario</translation></message>
<message><source>call me hand</source><translation>mano con gesto di chiamata</translation></message>
<message><source>camel</source><translation>dromedario</translation></message>
<message><source>camera</source><translation>fotocamera</translation></message>
<message><source>camera with flash</source><translation>fotocamera con flash</translation></message>
<message><source>camping</source><translation>campeggio</translation></message>
<message><source>cancel</source><translation>X</translation></message>
<message><source>cancer</source><translation>cancro</translation></message>
<message><source>candelabrum</source><translation>candelabro</translation></message>
<message><source>candle</source><translation>candela</translation></message>
<message><source>candy</source><translation>caramella</translation></message>
<message><source>canned food</source><translation>cibo in scatola</translation></message>
<message><source>canoe</source><translation>canoa</translation></message>
<message><source>cantaloupe</source><translation>cantaloupe</translation></message>
<message><source>capricorn</source><translation>capricorno</translation></message>
<message><source>car</source><translation>auto</translation></message>
<message><source>card file box</source><translation>schedario da tavolo</translation></message>
<message><source>card index</source><translation>schedario</translation></message>
<message><source>card index dividers</source><translation>divisori per schedario</translation></message>
<message><source>cardinal</source><translation>punto cardinale</translation></message>
<message><source>cardiology</source><translation>cardiologia</translation></message>
<message><source>carousel horse</source><translation>cavallo da giostra</translation></message>
<message><source>carp</source><translation>carpa</translation></message>
<message><source>carp streamer</source><translation>aquilone a forma di carpa</translation></message>
<message><source>carpentry saw</source><translation>sega da falegname</translation></message>
<message><source>carrot</source><translation>carota</translation></message>
<message><source>cash</source><translation>pagare</translation></message>
<message><source>casino</source><translation>casinò</translation></message>
<message><source>casserole</source><translation>casseruola</translation></message>
<message><source>castle</source><translation>castello</translation></message>
<message><source>casual</source><translation>casual</translation></message>
<message><source>cat</source><translation>gatto</translation></message>
<message><source>cat face</source><translation>muso di gatto</translation></message>
<message><source>cat with tears of joy</source><translation>gatto con lacrime di gioia</translation></message>
<message><source>cat with wry smile</source><translation>gatto con sorriso sarcastico</translation></message>
<message><source>celebration</source><translation>festa</translation></message>
<message><source>censor</source><translation>censura</translation></message>
<message><source>cereal</source><translation>cereali</translation></message>
<message><source>chain</source><translation>catene</translation></message>
<message><source>chains</source><translation>catene</translation></message>
<message><source>chair</source><translation>sedia</translation></message>
<message><source>champion</source><translation>campione</translation></message>
<message><source>chapel</source><translation>cappella</translation></message>
<message><source>chart decreasing</source><translation>grafico con andamento negativo</translation></message>
<message><source>chart increasing</source><translation>grafico con andamento positivo</translation></message>
<message><source>chart increasing with yen</source><translation>grafico ascendente</translation></message>
<message><source>check box with check</source><translation>riquadro con spunta</translation></message>
<message><source>check mark</source><translation>segno di spunta</translation></message>
<message><source>check mark button</source><translation>pulsante segno di spunta</translation></message>
<message><source>check-in</source><translation>check-in</translation></message>
<message><source>cheese</source><translation>formaggio</translation></message>
<message><source>cheese wedge</source><translation>fetta di formaggio</translation></message>
<message><source>chef</source><translation>chef</translation></message>
<message><source>chemist</source><translation>chimico</translation></message>
<message><source>chequered flag</source><translation>bandiera a scacchi</translation></message>
<message><source>cherries</source><translation>ciliegie</translation></message>
<message><source>cherry blossom</source><translation>fiore di ciliegio</translation></message>
<message><source>chess pawn</source><translation>pedina degli scacchi</translation></message>
<message><source>chestnut</source><translation>castagna</translation></message>
<message><source>chick</source><translation>gallina</translation></message>
<message><source>chicken</source><translation>gallina</translation></message>
<message><source>child</source><translation>bimbo</translation></message>
<message><source>children crossing</source><translation>attraversamento bambini</translation></message>
<message><source>chipmunk</source><translation>scoiattolo</translation></message>
<message><source>chocolate</source><translation>cioccolato</translation></message>
<message><source>chocolate bar</source><translation>cioccolato</translation></message>
<message><source>chopsticks</source><translation>bacchette</translation></message>
<message><source>christmas</source><translation>Natale</translation></message>
<message><source>church</source><translation>chiesa</translation></message>
<message><source>cigarette</source><translation>sigaretta</translation></message>
<message><source>cinema</source><translation>simbolo del cinema</translation></message>
<message><source>circle</source><translation>cerchio</translation></message>
<message><source>circled M</source><translation>pulsante M cerchiata</translation></message>
<message><source>circus</source><translation>circo</translation></message>
<message><source>circus tent</source><translation>circo</translation></message>
<message><source>citrus</source><translation>agrume</translation></message>
<message><source>cityscape</source><translation>paesaggio urbano</translation></message>
<message><source>cityscape at dusk</source><translation>città al tramonto</translation></message>
<message><source>clamp</source><translation>morsetto</translation></message>
<message><source>clapper board</source><translation>ciak</translation></message>
<message><source>clapping hands</source><translation>mani che applaudono</translation></message>
<message><source>classical building</source><translation>edificio classico</translation></message>
<message><source>classy</source><translation>classe</translation></message>
<message><source>claus</source><translation>Claus</translation></message>
<message><source>clean</source><translation>pulito</translation></message>
<message><source>climb</source><translation>arrampicarsi</translation></message>
<message><source>clinking beer mugs</source><translation>boccali di birra</translation></message>
<message><source>clinking glasses</source><translation>brindisi</translation></message>
<message><source>clipboard</source><translation>portablocco</translation></message>
<message><source>clock</source><translation>orologio</translation></message>
<message><source>clockwise</source><translation>senso orario</translation></message>
<message><source>clockwise vertical arrows</source><translation>frecce verticali che ruotano in senso orario</translation></message>
<message><source>closed book</source><translation>libro chiuso</translation></message>
<message><source>closed mailbox with lowered flag</source><translation>cassetta postale chiusa bandierina abbassata</translation></message>
<message><source>closed mailbox with raised flag</source><translation>cassetta postale chiusa bandierina alzata</translation></message>
<message><source>closed umbrella</source><translation>ombrello chiuso</translation></message>
<message><source>clothing</source><translation>abbigliamento</translation></message>
<message><source>cloud</source><translation>nuvola</translation></message>
<message><source>cloud with lightning</source><translation>fulmini</translation></message>
<message><source>cloud with lightning and rain</source><translation>temporale</translation></message>
<message><source>cloud with rain</source><translation>pioggia</translation></message>
<message><source>cloud with snow</source><translation>neve</translation></message>
<message><source>clown</source><translation>clown</translation></message>
<message><source>clown face</source><translation>faccina pagliaccio</translation></message>
<message><source>club suit</source><translation>fiori</translation></message>
<message><source>clue</source><translation>indizio</translation></message>
<message><source>clutch bag</source><translation>pochette</translation></message>
<message><source>coat</source><translation>cappotto</translation></message>
<message><source>cockroach</source><translation>scarafaggio</translation></message>
<message><source>cocktail</source><translation>cocktail</translation></message>
<message><source>cocktail glass</source><translation>cocktail</translation></message>
<message><source>coconut</source><translation>cocco</translation></message>
<message><source>coffin</source><translation>bara</translation></message>
<message><source>coin</source><translation>moneta</translation></message>
<message><source>cold</source><translation>freddo</translation></message>
<message><source>cold face</source><translation>faccina congelata</translation></message>
<message><source>collage</source><translation>collage</translation></message>
<message><source>collision</source><translation>collisione</translation></message>
<message><source>comet</source><translation>cometa</translation></message>
<message><source>comfort</source><translation>confortare</translation></message>
<message><source>comic</source><translation>fumetto</translation></message>
<message><source>communication</source><translation>comunicazione</translation></message>
<message><source>compass</source><translation>bussola</translation></message>
<message><source>computer</source><translation>computer</translation></message>
<message><source>computer disk</source><translation>minidisc</translation></message>
<message><source>computer mouse</source><translation>mouse</translation></message>
<message><source>concertina</source><translation>concertina</translation></message>
<message><source>condiment</source><translation>condimento</translation></message>
<message><source>confetti ball</source><translation>coriandoli</translation></message>
<message><source>confounded face</source><translation>faccina frustrata</translation></message>
<message><source>confused</source><translation>confuso</translation></message>
<message><source>confused face</source><translation>faccina confusa</translation></message>
<message><source>conga</source><translation>conga</translation></message>
<message><source>congratulations</source><translation>congratulazioni</translation></message>
<message><source>construction</source><translation>area cantiere</translation></message>
<message><source>construction worker</source><translation>operaio edile</translation></message>
<message><source>control</source><translation>controllo</translation></message>
<message><source>control knobs</source><translation>manopole di controllo</translation></message>
<message><source>controller</source><translation>console</translation></message>
<message><source>convenience store</source><translation>minimarket</translation></message>
<message><source>cook</source><translation>persona che cucina</translation></message>
<message><source>cooked rice</source><translation>riso bollito</translation></message>
<message><source>cookie</source><translation>biscotto</translation></message>
<message><source>cooking</source><translation>cucinare</translation></message>
<message><source>copyright</source><translation>copyright</translation></message>
<message><source>coral</source><translation>corallo</translation></message>
<message><source>cord</source><translation>corda</translation></message>
<message><source>corn</source><translation>mais</translation></message>
<message><source>corvid</source><translation>corvo</translation></message>
<message><source>cosmetics</source><translation>cosmetici</translation></message>
<message><source>couch and lamp</source><translation>divano e lampada</translation></message>
<message><source>counterclockwise arrows button</source><translation>frecce che ruotano in senso antiorario</translation></message>
<message><source>couple</source><translation>coppia</translation></message>
<message><source>couple with heart</source><translation>coppia con cuore</translation></message>
<message><source>couple with heart: man, man</source><translation>coppia con cuore: uomo e uomo</translation></message>
<message><source>couple with heart: woman, man</source><translation>coppia con cuore: donna e uomo</translation></message>
<message><source>couple with heart: woman, woman</source><translation>coppia con cuore: donna e donna</translation></message>
<message><source>cow</source><translation>mucca</translation></message>
<message><source>cow face</source><translation>muso di mucca</translation></message>
<message><source>cowboy</source><translation>cowboy</translation></message>
<message><source>cowboy hat face</source><translation>faccina con cappello da cowboy</translation></message>
<message><source>crab</source><translation>granchio</translation></message>
<message><source>crayon</source><translation>pastello a cera</translation></message>
<message><source>cream</source><translation>crema</translation></message>
<message><source>creative</source><translation>creativo</translation></message>
<message><source>credentials</source><translation>credenziali</translation></message>
<message><source>credit</source><translation>credito</translation></message>
<message><source>credit card</source><translation>carta di credito</translation></message>
<message><source>crescent</source><translation>crescente</translation></message>
<message><source>crescent moon</source><translation>spicchio di luna</translation></message>
<message><source>cricket</source><translation>grillo</translation></message>
<message><source>cricket game</source><translation>cricket</translation></message>
<message><source>criminal</source><translation>criminale</translation></message>
<message><source>crocodile</source><translation>coccodrillo</translation></message>
<message><source>croissant</source><translation>croissant</translation></message>
<message><source>cross</source><translation>croce</translation></message>
<message><source>cross mark</source><translation>croce</translation></message>
<message><source>cross mark button</source><translation>croce con quadrato</translation></message>
<message><source>crossed fingers</source><translation>dita incrociate</translation></message>
<message><source>crossed flags</source><translation>bandiere del Giappone incrociate</translation></message>
<message><source>crossed swords</source><translation>spade incrociate</translation></message>
<message><source>crown</source><translation>corona</translation></message>
<message><source>crutch</source><translation>stampella</translation></message>
<message><source>cry</source><translation>piangere</translation></message>
<message><source>crying</source><translation>faccina che piange</translation></message>
<message><source>crying cat</source><translation>gatto che piange</translation></message>
<message><source>crying face</source><translation>faccina che piange</translation></message>
<message><source>crystal</source><translation>cristallo</translation></message>
<message><source>crystal ball</source><translation>sfera di cristallo</translation></message>
<message><source>crêpe</source><translation>crêpe</translation></message>
<message><source>cucumber</source><translation>cetriolo</translation></message>
<message><source>cup with straw</source><translation>bicchiere con cannuccia</translation></message>
<message><source>cupcake</source><translation>cupcake</translation></message>
<message><source>cupid</source><translation>cupido</translation></message>
<message><source>curious</source><translation>curioso</translation></message>
<message><source>curling</source><translation>curling</translation></message>
<message><source>curling stone</source><translation>stone da curling</translation></message>
<message><source>curly loop</source><translation>occhiello</translation></message>
<message><source>currency</source><translation>valuta</translation></message>
<message><source>currency exchange</source><translation>cambio valuta</translation></message>
<message><source>curry rice</source><translation>riso al curry</translation></message>
<message><source>curving</source><translation>curva</translation></message>
<message><source>custard</source><translation>budino</translation></message>
<message><source>customs</source><translation>simbolo della dogana</translation></message>
<message><source>cut of meat</source><translation>taglio di carne</translation></message>
<message><source>cute</source><translation>affetto</translation></message>
<message><source>cyclone</source><translation>ciclone</translation></message>
<message><source>dagger</source><translation>pugnale</translation></message>
<message><source>dancer</source><translation>ballare</translation></message>
<message><source>dango</source><translation>dango</translation></message>
<message><source>dark skin tone</source><translation>carnagione scura</translation></message>
<message><source>dashing away</source><translation>nuvola di polvere</translation></message>
<message><source>data</source><translation>grafico</translation></message>
<message><source>date</source><translation>appuntamento</translation></message>
<message><source>deaf man</source><translation>uomo con problemi di udito</translation></message>
<message><source>deaf person</source><translation>persona con problemi di udito</translation></message>
<message><source>deaf woman</source><translation>donna con problemi di udito</translation></message>
<message><source>death</source><translation>morte</translation></message>
<message><source>deciduous</source><translation>deciduo</translation></message>
<message><source>deciduous tree</source><translation>albero deciduo</translation></message>
<message><source>decor</source><translation>decorare</translation></message>
<message><source>deer</source><translation>cervo</translation></message>
<message><source>delivery</source><translation>consegna</translation></message>
<message><source>delivery truck</source><translation>camion</translation></message>
<message><source>denim</source><translation>denim</translation></message>
<message><source>dental</source><translation>dentale</translation></message>
<message><source>dentist</source><translation>dentista</translation></message>
<message><source>department store</source><translation>grande magazzino</translation></message>
<message><source>depressed</source><translation>depresso</translation></message>
<message><source>derelict</source><translation>decrepita</translation></message>
<message><source>derelict house</source><translation>casa in rovina</translation></message>
<message><source>desert</source><translation>deserto</translation></message>
<message><source>desert island</source><translation>isola deserta</translation></message>
<message><source>desktop computer</source><translation>computer fisso</translation></message>
<message><source>dessert</source><translation>dessert</translation></message>
<message><source>detective</source><translation>detective</translation></message>
<message><source>devil</source><translation>diavolo</translation></message>
<message><source>dialog</source><translation>dialogo</translation></message>
<message><source>diamond</source><translation>rombo</translation></message>
<message><source>diamond suit</source><translation>quadri</translation></message>
<message><source>diamond with a dot</source><translation>petalo di fiore</translation></message>
<message><source>diet</source><translation>dieta</translation></message>
<message><source>dim button</source><translation>luminosità bassa</translation></message>
<message><source>dinosaur</source><translation>dinosauro</translation></message>
<message><source>direction</source><translation>direzione</translation></message>
<message><source>disappear</source><translation>sparire</translation></message>
<message><source>disappointed face</source><translation>faccina delusa</translation></message>
<message><source>disco</source><translation>discoteca</translation></message>
<message><source>discount</source><translation>sconto</translation></message>
<message><source>disguised face</source><translation>faccina travestita</translation></message>
<message><source>disk</source><translation>disc</translation></message>
<message><source>dissolve</source><translation>dissolversi</translation></message>
<message><source>divide</source><translation>divisione</translation></message>
<message><source>diving</source><translation>diving</translation></message>
<message><source>diving mask</source><translation>maschera da sub</translation></message>
<message><source>diya</source><translation>diya</translation></message>
<message><source>diya lamp</source><translation>diya</translation></message>
<message><source>dizzy</source><translation>stella con scia</translation></message>
<message><source>dna</source><translation>dna</translation></message>
<message><source>doctor</source><translation>dottore</translation></message>
<message><source>document</source><translation>documento</translation></message>
<message><source>dodo</source><translation>dodo</translation></message>
<message><source>dog</source><translation>cane</translation></message>
<message><source>dog face</source><translation>muso di cane</translation></message>
<message><source>dollar</source><translation>dollaro</translation></message>
<message><source>dollar banknote</source><translation>banconota Dollaro</translation></message>
<message><source>dolphin</source><translation>delfino</translation></message>
<message><source>donkey</source><translation>asino</translation></message>
<message><source>door</source><translation>porta</translation></message>
<message><source>dotted line face</source><translation>faccina tratteggiata</translation></message>
<message><source>dotted six-pointed star</source><translation>stella a sei punte</translation></message>
<message><source>double curly loop</source><translation>doppio occhiello</translation></message>
<message><source>double exclamation mark</source><translation>doppio punto esclamativo</translation></message>
<message><source>doughnut</source><translation>ciambella</translation></message>
<message><source>dove</source><translation>colomba</translation></message>
<message><source>down arrow</source><translation>freccia rivolta verso il basso</translation></message>
<message><source>down-left arrow</source><translation>freccia in basso a sinistra</translation></message>
<message><source>down-right arrow</source><translation>freccia in basso a destra</translation></message>
<message><source>downcast face with sweat</source><translation>faccina abbattuta sudata</translation></message>
<message><source>downwards button</source><translation>pulsante a triangolo rivolto verso il basso</translation></message>
<message><source>dragon</source><translation>drago</translation></message>
<message><source>dragon face</source><translation>testa di drago</translation></message>
<message><source>dress</source><translation>vestito</translation></message>
<message><source>dressage</source><translation>dressage</translation></message>
<message><source>dressed</source><translation>vestiti</translation></message>
<message><source>drink</source><translation>bere</translation></message>
<message><source>drinking</source><translation>bar</translation></message>
<message><source>drip</source><translation>schizzo</translation></message>
<message><source>dromedary</source><translation>dromedario</translation></message>
<message><source>drooling face</source><translation>faccina che sbava</translation></message>
<message><source>drop of blood</source><translation>goccia di sangue</translation></message>
<message><source>droplet</source><translation>goccia</translation></message>
<message><source>drum</source><translation>tamburo</translation></message>
<message><source>duck</source><translation>anatra</translation></message>
<message><source>dumpling</source><translation>raviolo</translation></message>
<message><source>dvd</source><translation>DVD</translation></message>
<message><source>dynamite</source><translation>dinamite</translation></message>
<message><source>e-mail</source><translation>e-mail</translation></message>
<message><source>eagle</source><translation>aquila</translation></message>
<message><source>ear</source><translation>orecchio</translation></message>
<message><source>ear of corn</source><translation>pannocchia</translation></message>
<message><source>ear with hearing aid</source><translation>orecchio con apparecchio acustico</translation></message>
<message><source>edamame</source><translation>edamame</translation></message>
<message><source>education</source><translation>compiti</translation></message>
<message><source>egg</source><translation>uovo</translation></message>
<message><source>eggplant</source><translation>melanzana</translation></message>
<message><source>eight o’clock</source><translation>ore otto</translation></message>
<message><source>eight-pointed star</source><translation>stella stilizzata</translation></message>
<message><source>eight-spoked asterisk</source><translation>asterisco</translation></message>
<message><source>eight-thirty</source><translation>ore otto e mezza</translation></message>
<message><source>eject button</source><translation>pulsante di espulsione</translation></message>
<message><source>electric</source><translation>elettrica</translation></message>
<message><source>electric plug</source><translation>spina elettrica</translation></message>
<message><source>electrician</source><translation>elettricista</translation></message>
<message><source>electricity</source><translation>elettricità</translation></message>
<message><source>electronic</source><translation>elettronica</translation></message>
<message><source>elephant</source><translation>elefante</translation></message>
<message><source>elevator</source><translation>ascensore</translation></message>
<message><source>eleven o’clock</source><translation>ore undici</translation></message>
<message><source>eleven-thirty</source><translation>ore undici e mezza</translation></message>
<message><source>elf</source><translation>elfo</translation></message>
<message><source>email</source><translation>email</translation></message>
<message><source>emergency</source><translation>emergenza</translation></message>
<message><source>emotion</source><translation>emozione</translation></message>
<message><source>empanada</source><translation>empanada</translation></message>
<message><source>empty nest</source><translation>nido vuoto</translation></message>
<message><source>enraged face</source><translation>faccina accigliata</translation></message>
<message><source>envelope</source><translation>busta</translation></message>
<message><source>envelope with arrow</source><translation>posta in uscita</translation></message>
<message><source>equine</source><translation>equino</translation></message>
<message><source>eruption</source><translation>eruzione</translation></message>
<message><source>euro banknote</source><translation>banconota Euro</translation></message>
<message><source>evergreen tree</source><translation>albero sempreverde</translation></message>
<message><source>evolution</source><translation>evoluzione</translation></message>
<message><source>ewe</source><translation>pecora</translation></message>
<message><source>exclamation</source><translation>esclamazione</translation></message>
<message><source>exclamation question mark</source><translation>punto esclamativo e interrogativo</translation></message>
<message><source>experiment</source><translation>esperimento</translation></message>
<message><source>explode</source><translation>esplodere</translation></message>
<message><source>exploding head</source><translation>testa che esplode</translation></message>
<message><source>explosive</source><translation>esplosivo</translation></message>
<message><source>expressionless face</source><translation>faccina inespressiva</translation></message>
<message><source>extinction</source><translation>estinzione</translation></message>
<message><source>extinguisher</source><translation>estinguere</translation></message>
<message><source>extraterrestrial</source><translation>extraterrestre</translation></message>
<message><source>eye</source><translation>occhio</translation></message>
<message><source>eye in speech bubble</source><translation>occhio nel fumetto</translation></message>
<message><source>eyes</source><translation>occhi</translation></message>
<message><source>face</source><translation>faccina</translation></message>
<message><source>face blowing a kiss</source><translation>faccina che manda un bacio</translation></message>
<message><source>face exhaling</source><translation>faccina che espira</translation></message>
<message><source>face holding back tears</source><translation>faccina che trattiene le lacrime</translation></message>
<message><source>face in clouds</source><translation>testa tra le nuvole</translation></message>
<message><source>face savoring food</source><translation>faccina che si lecca i baffi</translation></message>
<message><source>face screaming in fear</source><translation>faccina terrorizzata</translation></message>
<message><source>face vomiting</source><translation>faccina che vomita</translation></message>
<message><source>face with bags under eyes</source><translation>faccina con borse sotto gli occhi</translation></message>
<message><source>face with crossed-out eyes</source><translation>faccina frastornata</translation></message>
<message><source>face with diagonal mouth</source><translation>faccina perplessa</translation></message>
<message><source>face with hand over mouth</source><translation>faccina con mano sulla bocca</translation></message>
<message><source>face with head-bandage</source><translation>faccina con la testa bendata</translation></message>
<message><source>face with medical mask</source><translation>faccina con mascherina</translation></message>
<message><source>face with monocle</source><translation>faccina con monocolo</translation></message>
<message><source>face with open eyes and hand over mouth</source><translation>faccina con occhi aperti e mano sulla bocca</translation></message>
<message><source>face with open mouth</source><translation>faccina con bocca aperta</translation></message>
<message><source>face with peeking eye</source><translation>faccina che sbircia tra le dita</translation></message>
<message><source>face with raised eyebrow</source><translation>faccina con sopracciglia alzate</translation></message>
<message><source>face with rolling eyes</source><translation>faccina con occhi al cielo</translation></message>
<message><source>face with spiral eyes</source><translation>faccina con occhi a spirale</translation></message>
<message><source>face with steam from nose</source><translation>faccina che sbuffa</translation></message>
<message><source>face with symbols on mouth</source><translation>faccina con simboli sulla bocca</translation></message>
<message><source>face with tears of joy</source><translation>faccina con lacrime di gioia</translation></message>
<message><source>face with thermometer</source><translation>faccina con termometro</translation></message>
<message><source>face with tongue</source><translation>faccina che mostra la lingua</translation></message>
<message><source>face without mouth</source><translation>faccina senza bocca</translation></message>
<message><source>facepalm</source><translation>facepalm</translation></message>
<message><source>facing</source><translation>a</translation></message>
<message><source>factory</source><translation>fabbrica</translation></message>
<message><source>factory worker</source><translation>persona che lavora in fabbrica</translation></message>
<message><source>fairy</source><translation>fata</translation></message>
<message><source>falafel</source><translation>falafel</translation></message>
<message><source>fallen leaf</source><translation>foglia caduta</translation></message>
<message><source>family</source><translation>famiglia</translation></message>
<message><source>family: adult, adult, child</source><translation>famiglia: persone adulte, minore</translation></message>
<message><source>family: adult, adult, child, child</source><translation>famiglia: persone adulte, minori</translation></message>
<message><source>family: adult, child</source><translation>famiglia: persona adulta, minore</translation></message>
<message><source>family: adult, child, child</source><translation>famiglia: persona adulta, minore, minore</translation></message>
<message><source>family: man, boy</source><translation>famiglia: uomo e bambino</translation></message>
<message><source>family: man, boy, boy</source><translation>famiglia: uomo, bambino e bambino</translation></message>
<message><source>family: man, girl</source><translation>famiglia: uomo e bambina</translation></message>
<message><source>family: man, girl, boy</source><translation>famiglia: uomo, bambina e bambino</translation></message>
<message><source>family: man, girl, girl</source><translation>famiglia: uomo, bambina e bambina</translation></message>
<message><source>family: man, man, boy</source><translation>famiglia: uomo, uomo e bambino</translation></message>
<message><source>family: man, man, boy, boy</source><translation>famiglia: uomo, uomo, bambino e bambino</translation></message>
<message><source>family: man, man, girl</source><translation>famiglia: uomo, uomo e bambina</translation></message>
<message><source>family: man, man, girl, boy</source><translation>famiglia: uomo, uomo, bambina e bambino</translation></message>
<message><source>family: man, man, girl, girl</source><translation>famiglia: uomo, uomo, bambina e bambina</translation></message>
<message><source>family: man, woman, boy</source><translation>famiglia: uomo, donna e bambino</translation></message>
<message><source>family: man, woman, boy, boy</source><translation>famiglia: uomo, donna, bambino e bambino</translation></message>
<message><source>family: man, woman, girl</source><translation>famiglia: uomo, donna e bambina</translation></message>
<message><source>family: man, woman, girl, boy</source><translation>famiglia: uomo, donna, bambina e bambino</translation></message>
<message><source>family: man, woman, girl, girl</source><translation>famiglia: uomo, donna, bambina e bambina</translation></message>
<message><source>family: woman, boy</source><translation>famiglia: donna e bambino</translation></message>
<message><source>family: woman, boy, boy</source><translation>famiglia: donna, bambino e bambino</translation></message>
<message><source>family: woman, girl</source><translation>famiglia: donna e bambina</translation></message>
<message><source>family: woman, girl, boy</source><translation>famiglia: donna, bambina e bambino</translation></message>
<message><source>family: woman, girl, girl</source><translation>famiglia: donna, bambina e bambina</translation></message>
<message><source>family: woman, woman, boy</source><translation>famiglia: donna, donna e bambino</translation></message>
<message><source>family: woman, woman, boy, boy</source><translation>famiglia: donna, donna, bambino e bambino</translation></message>
<message><source>family: woman, woman, girl</source><translation>famiglia: donna, donna e bambina</translation></message>
<message><source>family: woman, woman, girl, boy</source><translation>famiglia: donna, donna, bambina e bambino</translation></message>
<message><source>family: woman, woman, girl, girl</source><translation>famiglia: donna, donna, bambina e bambina</translation></message>
<message><source>fancy</source><translation>elegante</translation></message>
<message><source>farm</source><translation>fattoria</translation></message>
<message><source>farmer</source><translation>agricoltore</translation></message>
<message><source>fast down button</source><translation>doppia freccia in basso</translation></message>
<message><source>fast reverse button</source><translation>pulsante di riavvolgimento rapido</translation></message>
<message><source>fast up button</source><translation>pulsante doppia freccia in alto</translation></message>
<message><source>fast-forward button</source><translation>pulsante di avanzamento rapido</translation></message>
<message><source>fax machine</source><translation>fax</translation></message>
<message><source>fearful face</source><translation>faccina impaurita</translation></message>
<message><source>feather</source><translation>piuma</translation></message>
<message><source>female sign</source><translation>simbolo genere femminile</translation></message>
<message><source>ferris wheel</source><translation>ruota panoramica</translation></message>
<message><source>ferry</source><translation>traghetto</translation></message>
<message><source>festival</source><translation>festival</translation></message>
<message><source>field hockey</source><translation>hockey su prato</translation></message>
<message><source>file</source><translation>file</translation></message>
<message><source>file cabinet</source><translation>schedario da ufficio</translation></message>
<message><source>file folder</source><translation>cartella file</translation></message>
<message><source>film</source><translation>film</translation></message>
<message><source>film frames</source><translation>pellicola cinematografica</translation></message>
<message><source>film projector</source><translation>proiettore cinematografico</translation></message>
<message><source>fingerprint</source><translation>impronta digitale</translation></message>
<message><source>fingers</source><translation>dita</translation></message>
<message><source>fire</source><translation>fuoco</translation></message>
<message><source>fire engine</source><translation>camion dei pompieri</translation></message>
<message><source>fire extinguisher</source><translation>estintore</translation></message>
<message><source>firecracker</source><translation>petardo</translation></message>
<message><source>firefighter</source><translation>pompiere</translation></message>
<message><source>fireworks</source><translation>fuochi d’artificio</translation></message>
<message><source>first quarter moon</source><translation>primo quarto di luna</translation></message>
<message><source>first quarter moon face</source><translation>faccina primo quarto di luna</translation></message>
<message><source>fish</source><translation>pesce</translation></message>
<message><source>fish cake with swirl</source><translation>tortino di pesce a spirale</translation></message>
<message><source>fishing pole</source><translation>canna da pesca</translation></message>
<message><source>fist</source><translation>pugno</translation></message>
<message><source>five o’clock</source><translation>ore cinque</translation></message>
<message><source>five-thirty</source><translation>ore cinque e mezza</translation></message>
<message><source>flag</source><translation>bandiera</translation></message>
<message><source>flag in hole</source><translation>bandiera in buca</translation></message>
<message><source>flag: Afghanistan</source><translation>bandiera: Afghanistan</translation></message>
<message><source>flag: Albania</source><translation>bandiera: Albania</translation></message>
<message><source>flag: Algeria</source><translation>bandiera: Algeria</translation></message>
<message><source>flag: American Samoa</source><translation>bandiera: Samoa Americane</translation></message>
<message><source>flag: Andorra</source><translation>bandiera: Andorra</translation></message>
<message><source>flag: Angola</source><translation>bandiera: Angola</translation></message>
<message><source>flag: Anguilla</source><translation>bandiera: Anguilla</translation></message>
<message><source>flag: Antarctica</source><translation>bandiera: Antartide</translation></message>
<message><source>flag: Antigua &amp; Barbuda</source><translation>bandiera: Antigua e Barbuda</translation></message>
<message><source>flag: Argentina</source><translation>bandiera: Argentina</translation></message>
<message><source>flag: Armenia</source><translation>bandiera: Armenia</translation></message>
<message><source>flag: Aruba</source><translation>bandiera: Aruba</translation></message>
<message><source>flag: Ascension Island</source><translation>bandiera: Isola Ascensione</translation></message>
<message><source>flag: Australia</source><translation>bandiera: Australia</translation></message>
<message><source>flag: Austria</source><translation>bandiera: Austria</translation></message>
<message><source>flag: Azerbaijan</source><translation>bandiera: Azerbaigian</translation></message>
<message><source>flag: Bahamas</source><translation>bandiera: Bahamas</translation></message>
<message><source>flag: Bahrain</source><translation>bandiera: Bahrein</translation></message>
<message><source>flag: Bangladesh</source><translation>bandiera: Bangladesh</translation></message>
<message><source>flag: Barbados</source><translation>bandiera: Barbados</translation></message>
<message><source>flag: Belarus</source><translation>bandiera: Bielorussia</translation></message>
<message><source>flag: Belgium</source><translation>bandiera: Belgio</translation></message>
<message><source>flag: Belize</source><translation>bandiera: Belize</translation></message>
<message><source>flag: Benin</source><translation>bandiera: Benin</translation></message>
<message><source>flag: Bermuda</source><translation>bandiera: Bermuda</translation></message>
<message><source>flag: Bhutan</source><translation>bandiera: Bhutan</translation></message>
<message><source>flag: Bolivia</source><translation>bandiera: Bolivia</translation></message>
<message><source>flag: Bosnia &amp; Herzegovina</source><translation>bandiera: Bosnia ed Erzegovina</translation></message>
<message><source>flag: Botswana</source><translation>bandiera: Botswana</translation></message>
<message><source>flag: Bouvet Island</source><translation>bandiera: Isola Bouvet</translation></message>
<message><source>flag: Brazil</source><translation>bandiera: Brasile</translation></message>
<message><source>flag: British Indian Ocean Territory</source><translation>bandiera: Territorio Britannico dell’Oceano Indiano</translation></message>
<message><source>flag: British Virgin Islands</source><translation>bandiera: Isole Vergini Britanniche</translation></message>
<message><source>flag: Brunei</source><translation>bandiera: Brunei</translation></message>
<message><source>flag: Bulgaria</source><translation>bandiera: Bulgaria</translation></message>
<message><source>flag: Burkina Faso</source><translation>bandiera: Burkina Faso</translation></message>
<message><source>flag: Burundi</source><translation>bandiera: Burundi</translation></message>
<message><source>flag: Cambodia</source><translation>bandiera: Cambogia</translation></message>
<message><source>flag: Cameroon</source><translation>bandiera: Camerun</translation></message>
<message><source>flag: Canada</source><translation>bandiera: Canada</translation></message>
<message><source>flag: Canary Islands</source><translation>bandiera: Isole Canarie</translation></message>
<message><source>flag: Cape Verde</source><translation>bandiera: Capo Verde</translation></message>
<message><source>flag: Caribbean Netherlands</source><translation>bandiera: Caraibi Olandesi</translation></message>
<message><source>flag: Cayman Islands</source><translation>bandiera: Isole Cayman</translation></message>
<message><source>flag: Central African Republic</source><translation>bandiera: Repubblica Centrafricana</translation></message>
<message><source>flag: Ceuta &amp; Melilla</source><translation>bandiera: Ceuta e Melilla</translation></message>
<message><source>flag: Chad</source><translation>bandiera: Ciad</translation></message>
<message><source>flag: Chile</source><translation>bandiera: Cile</translation></message>
<message><source>flag: China</source><translation>bandiera: Cina</translation></message>
<message><source>flag: Christmas Island</source><translation>bandiera: Isola Christmas</translation></message>
<message><source>flag: Clipperton Island</source><translation>bandiera: Isola di Clipperton</translation></message>
<message><source>flag: Cocos (Keeling) Islands</source><translation>bandiera: Isole Cocos (Keeling)</translation></message>
<message><source>flag: Colombia</source><translation>bandiera: Colombia</translation></message>
<message><source>flag: Comoros</source><translation>bandiera: Comore</translation></message>
<message><source>flag: Congo - Brazzaville</source><translation>bandiera: Congo-Brazzaville</translation></message>
<message><source>flag: Congo - Kinshasa</source><translation>bandiera: Congo - Kinshasa</translation></message>
<message><source>flag: Cook Islands</source><translation>bandiera: Isole Cook</translation></message>
<message><source>flag: Costa Rica</source><translation>bandiera: Costa Rica</translation></message>
<message><source>flag: Croatia</source><translation>bandiera: Croazia</translation></message>
<message><source>flag: Cuba</source><translation>bandiera: Cuba</translation></message>
<message><source>flag: Curaçao</source><translation>bandiera: Curaçao</translation></message>
<message><source>flag: Cyprus</source><translation>bandiera: Cipro</translation></message>
<message><source>flag: Czechia</source><translation>bandiera: Cechia</translation></message>
<message><source>flag: Côte d’Ivoire</source><translation>bandiera: Costa d’Avorio</translation></message>
<message><source>flag: Denmark</source><translation>bandiera: Danimarca</translation></message>
<message><source>flag: Diego Garcia</source><translation>bandiera: Diego Garcia</translation></message>
<message><source>flag: Djibouti</source><translation>bandiera: Gibuti</translation></message>
<message><source>flag: Dominica</source><translation>bandiera: Dominica</translation></message>
<message><source>flag: Dominican Republic</source><translation>bandiera: Repubblica Dominicana</translation></message>
<message><source>flag: Ecuador</source><translation>bandiera: Ecuador</translation></message>
<message><source>flag: Egypt</source><translation>bandiera: Egitto</translation></message>
<message><source>flag: El Salvador</source><translation>bandiera: El Salvador</translation></message>
<message><source>flag: England</source><translation>bandiera: Inghilterra</translation></message>
<message><source>flag: Equatorial Guinea</source><translation>bandiera: Guinea Equatoriale</translation></message>
<message><source>flag: Eritrea</source><translation>bandiera: Eritrea</translation></message>
<message><source>flag: Estonia</source><translation>bandiera: Estonia</translation></message>
<message><source>flag: Eswatini</source><translation>bandiera: Eswatini</translation></message>
<message><source>flag: Ethiopia</source><translation>bandiera: Etiopia</translation></message>
<message><source>flag: European Union</source><translation>bandiera: Unione europea</translation></message>
<message><source>flag: Falkland Islands</source><translation>bandiera: Isole Falkland</translation></message>
<message><source>flag: Faroe Islands</source><translation>bandiera: Isole Fær Øer</translation></message>
<message><source>flag: Fiji</source><translation>bandiera: Figi</translation></message>
<message><source>flag: Finland</source><translation>bandiera: Finlandia</translation></message>
<message><source>flag: France</source><translation>bandiera: Francia</translation></message>
<message><source>flag: French Guiana</source><translation>bandiera: Guyana Francese</translation></message>
<message><source>flag: French Polynesia</source><translation>bandiera: Polinesia Francese</translation></message>
<message><source>flag: French Southern Territories</source><translation>bandiera: Terre Australi Francesi</translation></message>
<message><source>flag: Gabon</source><translation>bandiera: Gabon</translation></message>
<message><source>flag: Gambia</source><translation>bandiera: Gambia</translation></message>
<message><source>flag: Georgia</source><translation>bandiera: Georgia</translation></message>
<message><source>flag: Germany</source><translation>bandiera: Germania</translation></message>
<message><source>flag: Ghana</source><translation>bandiera: Ghana</translation></message>
<message><source>flag: Gibraltar</source><translation>bandiera: Gibilterra</translation></message>
<message><source>flag: Greece</source><translation>bandiera: Grecia</translation></message>
<message><source>flag: Greenland</source><translation>bandiera: Groenlandia</translation></message>
<message><source>flag: Grenada</source><translation>bandiera: Grenada</translation></message>
<message><source>flag: Guadeloupe</source><translation>bandiera: Guadalupa</translation></message>
<message><source>flag: Guam</source><translation>bandiera: Guam</translation></message>
<message><source>flag: Guatemala</source><translation>bandiera: Guatemala</translation></message>
<message><source>flag: Guernsey</source><translation>bandiera: Guernsey</translation></message>
<message><source>flag: Guinea</source><translation>bandiera: Guinea</translation></message>
<message><source>flag: Guinea-Bissau</source><translation>bandiera: Guinea-Bissau</translation></message>
<message><source>flag: Guyana</source><translation>bandiera: Guyana</translation></message>
<message><source>flag: Haiti</source><translation>bandiera: Haiti</translation></message>
<message><source>flag: Heard &amp; McDonald Islands</source><translation>bandiera: Isole Heard e McDonald</translation></message>
<message><source>flag: Honduras</source><translation>bandiera: Honduras</translation></message>
<message><source>flag: Hong Kong SAR China</source><translation>bandiera: RAS di Hong Kong</translation></message>
<message><source>flag: Hungary</source><translation>bandiera: Ungheria</translation></message>
<message><source>flag: Iceland</source><translation>bandiera: Islanda</translation></message>
<message><source>flag: India</source><translation>bandiera: India</translation></message>
<message><source>flag: Indonesia</source><translation>bandiera: Indonesia</translation></message>
<message><source>flag: Iran</source><translation>bandiera: Iran</translation></message>
<message><source>flag: Iraq</source><translation>bandiera: Iraq</translation></message>
<message><source>flag: Ireland</source><translation>bandiera: Irlanda</translation></message>
<message><source>flag: Isle of Man</source><translation>bandiera: Isola di Man</translation></message>
<message><source>flag: Israel</source><translation>bandiera: Israele</translation></message>
<message><source>flag: Italy</source><translation>bandiera: Italia</translation></message>
<message><source>flag: Jamaica</source><translation>bandiera: Giamaica</translation></message>
<message><source>flag: Japan</source><translation>bandiera: Giappone</translation></message>
<message><source>flag: Jersey</source><translation>bandiera: Jersey</translation></message>
<message><source>flag: Jordan</source><translation>bandiera: Giordania</translation></message>
<message><source>flag: Kazakhstan</source><translation>bandiera: Kazakistan</translation></message>
<message><source>flag: Kenya</source><translation>bandiera: Kenya</translation></message>
<message><source>flag: Kiribati</source><translation>bandiera: Kiribati</translation></message>
<message><source>flag: Kosovo</source><translation>bandiera: Kosovo</translation></message>
<message><source>flag: Kuwait</source><translation>bandiera: Kuwait</translation></message>
<message><source>flag: Kyrgyzstan</source><translation>bandiera: Kirghizistan</translation></message>
<message><source>flag: Laos</source><translation>bandiera: Laos</translation></message>
<message><source>flag: Latvia</source><translation>bandiera: Lettonia</translation></message>
<message><source>flag: Lebanon</source><translation>bandiera: Libano</translation></message>
<message><source>flag: Lesotho</source><translation>bandiera: Lesotho</translation></message>
<message><source>flag: Liberia</source><translation>bandiera: Liberia</translation></message>
<message><source>flag: Libya</source><translation>bandiera: Libia</translation></message>
<message><source>flag: Liechtenstein</source><translation>bandiera: Liechtenstein</translation></message>
<message><source>flag: Lithuania</source><translation>bandiera: Lituania</translation></message>
<message><source>flag: Luxembourg</source><translation>bandiera: Lussemburgo</translation></message>
<message><source>flag: Macao SAR China</source><translation>bandiera: RAS di Macao</translation></message>
<message><source>flag: Madagascar</source><translation>bandiera: Madagascar</translation></message>
<message><source>flag: Malawi</source><translation>bandiera: Malawi</translation></message>
<message><source>flag: Malaysia</source><translation>bandiera: Malaysia</translation></message>
<message><source>flag: Maldives</source><translation>bandiera: Maldive</translation></message>
<message><source>flag: Mali</source><translation>bandiera: Mali</translation></message>
<message><source>flag: Malta</source><translation>bandiera: Malta</translation></message>
<message><source>flag: Marshall Islands</source><translation>bandiera: Isole Marshall</translation></message>
<message><source>flag: Martinique</source><translation>bandiera: Martinica</translation></message>
<message><source>flag: Mauritania</source><translation>bandiera: Mauritania</translation></message>
<message><source>flag: Mauritius</source><translation>bandiera: Mauritius</translation></message>
<message><source>flag: Mayotte</source><translation>bandiera: Mayotte</translation></message>
<message><source>flag: Mexico</source><translation>bandiera: Messico</translation></message>
<message><source>flag: Micronesia</source><translation>bandiera: Micronesia</translation></message>
<message><source>flag: Moldova</source><translation>bandiera: Moldavia</translation></message>
<message><source>flag: Monaco</source><translation>bandiera: Monaco</translation></message>
<message><source>flag: Mongolia</source><translation>bandiera: Mongolia</translation></message>
<message><source>flag: Montenegro</source><translation>bandiera: Montenegro</translation></message>
<message><source>flag: Montserrat</source><translation>bandiera: Montserrat</translation></message>
<message><source>flag: Morocco</source><translation>bandiera: Marocco</translation></message>
<message><source>flag: Mozambique</source><translation>bandiera: Mozambico</translation></message>
<message><source>flag: Myanmar (Burma)</source><translation>bandiera: Myanmar (Birmania)</translation></message>
<message><source>flag: Namibia</source><translation>bandiera: Namibia</translation></message>
<message><source>flag: Nauru</source><translation>bandiera: Nauru</translation></message>
<message><source>flag: Nepal</source><translation>bandiera: Nepal</translation></message>
<message><source>flag: Netherlands</source><translation>bandiera: Paesi Bassi</translation></message>
<message><source>flag: New Caledonia</source><translation>bandiera: Nuova Caledonia</translation></message>
<message><source>flag: New Zealand</source><translation>bandiera: Nuova Zelanda</translation></message>
<message><source>flag: Nicaragua</source><translation>bandiera: Nicaragua</translation></message>
<message><source>flag: Niger</source><translation>bandiera: Niger</translation></message>
<message><source>flag: Nigeria</source><translation>bandiera: Nigeria</translation></message>
<message><source>flag: Niue</source><translation>bandiera: Niue</translation></message>
<message><source>flag: Norfolk Island</source><translation>bandiera: Isola Norfolk</translation></message>
<message><source>flag: North Korea</source><translation>bandiera: Corea del Nord</translation></message>
<message><source>flag: North Macedonia</source><translation>bandiera: Macedonia del Nord</translation></message>
<message><source>flag: Northern Mariana Islands</source><translation>bandiera: Isole Marianne Settentrionali</translation></message>
<message><source>flag: Norway</source><translation>bandiera: Norvegia</translation></message>
<message><source>flag: Oman</source><translation>bandiera: Oman</translation></message>
<message><source>flag: Pakistan</source><translation>bandiera: Pakistan</translation></message>
<message><source>flag: Palau</source><translation>bandiera: Palau</translation></message>
<message><source>flag: Palestinian Territories</source><translation>bandiera: Territori Palestinesi</translation></message>
<message><source>flag: Panama</source><translation>bandiera: Panama</translation></message>
<message><source>flag: Papua New Guinea</source><translation>bandiera: Papua Nuova Guinea</translation></message>
<message><source>flag: Paraguay</source><translation>bandiera: Paraguay</translation></message>
<message><source>flag: Peru</source><translation>bandiera: Perù</translation></message>
<message><source>flag: Philippines</source><translation>bandiera: Filippine</translation></message>
<message><source>flag: Pitcairn Islands</source><translation>bandiera: Isole Pitcairn</translation></message>
<message><source>flag: Poland</source><translation>bandiera: Polonia</translation></message>
<message><source>flag: Portugal</source><translation>bandiera: Portogallo</translation></message>
<message><source>flag: Puerto Rico</source><translation>bandiera: Portorico</translation></message>
<message><source>flag: Qatar</source><translation>bandiera: Qatar</translation></message>
<message><source>flag: Romania</source><translation>bandiera: Romania</translation></message>
<message><source>flag: Russia</source><translation>bandiera: Russia</translation></message>
<message><source>flag: Rwanda</source><translation>bandiera: Ruanda</translation></message>
<message><source>flag: Réunion</source><translation>bandiera: Riunione</translation></message>
<message><source>flag: Samoa</source><translation>bandiera: Samoa</translation></message>
<message><source>flag: San Marino</source><translation>bandiera: San Marino</translation></message>
<message><source>flag: Sark</source><translation>bandiera: Sark</translation></message>
<message><source>flag: Saudi Arabia</source><translation>bandiera: Arabia Saudita</translation></message>
<message><source>flag: Scotland</source><translation>bandiera: Scozia</translation></message>
<message><source>flag: Senegal</source><translation>bandiera: Senegal</translation></message>
<message><source>flag: Serbia</source><translation>bandiera: Serbia</translation></message>
<message><source>flag: Seychelles</source><translation>bandiera: Seychelles</translation></message>
<message><source>flag: Sierra Leone</source><translation>bandiera: Sierra Leone</translation></message>
<message><source>flag: Singapore</source><translation>bandiera: Singapore</translation></message>
<message><source>flag: Sint Maarten</source><translation>bandiera: Sint Maarten</translation></message>
<message><source>flag: Slovakia</source><translation>bandiera: Slovacchia</translation></message>
<message><source>flag: Slovenia</source><translation>bandiera: Slovenia</translation></message>
<message><source>flag: Solomon Islands</source><translation>bandiera: Isole Salomone</translation></message>
<message><source>flag: Somalia</source><translation>bandiera: Somalia</translation></message>
<message><source>flag: South Africa</source><translation>bandiera: Sudafrica</translation></message>
<message><source>flag: South Georgia &amp; South Sandwich Islands</source><translation>bandiera: Georgia del Sud e Sandwich Australi</translation></message>
<message><source>flag: South Korea</source><translation>bandiera: Corea del Sud</translation></message>
<message><source>flag: South Sudan</source><translation>bandiera: Sud Sudan</translation></message>
<message><source>flag: Spain</source><translation>bandiera: Spagna</translation></message>
<message><source>flag: Sri Lanka</source><translation>bandiera: Sri Lanka</translation></message>
<message><source>flag: St. Barthélemy</source><translation>bandiera: Saint-Barthélemy</translation></message>
<message><source>flag: St. Helena</source><translation>bandiera: Sant’Elena</translation></message>
<message><source>flag: St. Kitts &amp; Nevis</source><translation>bandiera: Saint Kitts e Nevis</translation></message>
<message><source>flag: St. Lucia</source><translation>bandiera: Saint Lucia</translation></message>
<message><source>flag: St. Martin</source><translation>bandiera: Saint Martin</translation></message>
<message><source>flag: St. Pierre &amp; Miquelon</source><translation>bandiera: Saint-Pierre e Miquelon</translation></message>
<message><source>flag: St. Vincent &amp; Grenadines</source><translation>bandiera: Saint Vincent e Grenadine</translation></message>
<message><source>flag: Sudan</source><translation>bandiera: Sudan</translation></message>
<message><source>flag: Suriname</source><translation>bandiera: Suriname</translation></message>
<message><source>flag: Svalbard &amp; Jan Mayen</source><translation>bandiera: Svalbard e Jan Mayen</translation></message>
<message><source>flag: Sweden</source><translation>bandiera: Svezia</translation></message>
<message><source>flag: Switzerland</source><translation>bandiera: Svizzera</translation></message>
<message><source>flag: Syria</source><translation>bandiera: Siria</translation></message>
<message><source>flag: São Tomé &amp; Príncipe</source><translation>bandiera: São Tomé e Príncipe</translation></message>
<message><source>flag: Taiwan</source><translation>bandiera: Taiwan</translation></message>
<message><source>flag: Tajikistan</source><translation>bandiera: Tagikistan</translation></message>
<message><source>flag: Tanzania</source><translation>bandiera: Tanzania</translation></message>
<message><source>flag: Thailand</source><translation>bandiera: Thailandia</translation></message>
<message><source>flag: Timor-Leste</source><translation>bandiera: Timor Est</translation></message>
<message><source>flag: Togo</source><translation>bandiera: Togo</translation></message>
<message><source>flag: Tokelau</source><translation>bandiera: Tokelau</translation></message>
<message><source>flag: Tonga</source><translation>bandiera: Tonga</translation></message>
<message><source>flag: Trinidad &amp; Tobago</source><translation>bandiera: Trinidad e Tobago</translation></message>
<message><source>flag: Tristan da Cunha</source><translation>bandiera: Tristan da Cunha</translation></message>
<message><source>flag: Tunisia</source><translation>bandiera: Tunisia</translation></message>
<message><source>flag: Turkmenistan</source><translation>bandiera: Turkmenistan</translation></message>
<message><source>flag: Turks &amp; Caicos Islands</source><translation>bandiera: Isole Turks e Caicos</translation></message>
<message><source>flag: Tuvalu</source><translation>bandiera: Tuvalu</translation></message>
<message><source>flag: Türkiye</source><translation>bandiera: Turchia</translation></message>
<message><source>flag: U.S. Outlying Islands</source><translation>bandiera: Isole Minori Esterne degli Stati Uniti</translation></message>
<message><source>flag: U.S. Virgin Islands</source><translation>bandiera: Isole Vergini Americane</translation></message>
<message><source>flag: Uganda</source><translation>bandiera: Uganda</translation></message>
<message><source>flag: Ukraine</source><translation>bandiera: Ucraina</translation></message>
<message><source>flag: United Arab Emirates</source><translation>bandiera: Emirati Arabi Uniti</translation></message>
<message><source>flag: United Kingdom</source><translation>bandiera: Regno Unito</translation></message>
<message><source>flag: United Nations</source><translation>bandiera: Nazioni Unite</translation></message>
<message><source>flag: United States</source><translation>bandiera: Stati Uniti</translation></message>
<message><source>flag: Uruguay</source><translation>bandiera: Uruguay</translation></message>
<message><source>flag: Uzbekistan</source><translation>bandiera: Uzbekistan</translation></message>
<message><source>flag: Vanuatu</source><translation>bandiera: Vanuatu</translation></message>
<message><source>flag: Vatican City</source><translation>bandiera: Città del Vaticano</translation></message>
<message><source>flag: Venezuela</source><translation>bandiera: Venezuela</translation></message>
<message><source>flag: Vietnam</source><translation>bandiera: Vietnam</translation></message>
<message><source>flag: Wales</source><translation>bandiera: Galles</translation></message>
<message><source>flag: Wallis &amp; Futuna</source><translation>bandiera: Wallis e Futuna</translation></message>
<message><source>flag: Western Sahara</source><translation>bandiera: Sahara Occidentale</translation></message>
<message><source>flag: Yemen</source><translation>bandiera: Yemen</translation></message>
<message><source>flag: Zambia</source><translation>bandiera: Zambia</translation></message>
<message><source>flag: Zimbabwe</source><translation>bandiera: Zimbabwe</translation></message>
<message><source>flag: Åland Islands</source><translation>bandiera: Isole Åland</translation></message>
<message><source>flame</source><translation>fiamme</translation></message>
<message><source>flamenco</source><translation>flamenco</translation></message>
<message><source>flamingo</source><translation>fenicottero</translation></message>
<message><source>flash</source><translation>flash</translation></message>
<message><source>flashlight</source><translation>torcia</translation></message>
<message><source>flat shoe</source><translation>ballerina</translation></message>
<message><source>flatbread</source><translation>focaccia</translation></message>
<message><source>fleur-de-lis</source><translation>giglio araldico</translation></message>
<message><source>flexed biceps</source><translation>bicipite</translation></message>
<message><source>floppy</source><translation>floppy</translation></message>
<message><source>floppy disk</source><translation>floppy disc</translation></message>
<message><source>flower</source><translation>fiore</translation></message>
<message><source>flower playing cards</source><translation>carta da gioco Hanafuda</translation></message>
<message><source>flushed face</source><translation>faccina imbarazzata</translation></message>
<message><source>flute</source><translation>flauto</translation></message>
<message><source>fly</source><translation>mosca</translation></message>
<message><source>flying disc</source><translation>frisbee</translation></message>
<message><source>flying saucer</source><translation>disco volante</translation></message>
<message><source>fog</source><translation>nebbia</translation></message>
<message><source>foggy</source><translation>nebbioso</translation></message>
<message><source>folded hands</source><translation>mani giunte</translation></message>
<message><source>folding hand fan</source><translation>ventaglio</translation></message>
<message><source>folklore</source><translation>folclore</translation></message>
<message><source>fondue</source><translation>fonduta</translation></message>
<message><source>food</source><translation>cibo</translation></message>
<message><source>foot</source><translation>piede</translation></message>
<message><source>football</source><translation>football</translation></message>
<message><source>footprints</source><translation>impronta di piedi</translation></message>
<message><source>forbidden</source><translation>vietato</translation></message>
<message><source>fork and knife</source><translation>forchetta e coltello</translation></message>
<message><source>fork and knife with plate</source><translation>piatto e posate</translation></message>
<message><source>fortune cookie</source><translation>biscotto della fortuna</translation></message>
<message><source>fountain</source><translation>fontana</translation></message>
<message><source>fountain pen</source><translation>penna stilografica</translation></message>
<message><source>four</source><translation>quattro</translation></message>
<message><source>four leaf clover</source><translation>quadrifoglio</translation></message>
<message><source>four o’clock</source><translation>ore quattro</translation></message>
<message><source>four-thirty</source><translation>ore quattro e mezza</translation></message>
<message><source>fox</source><translation>volpe</translation></message>
<message><source>framed picture</source><translation>quadro incorniciato</translation></message>
<message><source>french fries</source><translation>patatine</translation></message>
<message><source>fried shrimp</source><translation>gambero fritto</translation></message>
<message><source>frog</source><translation>rana</translation></message>
<message><source>front-facing baby chick</source><translation>pulcino visto di fronte</translation></message>
<message><source>frown</source><translation>imbronciato</translation></message>
<message><source>frowning</source><translation>corrucciato</translation></message>
<message><source>frowning face</source><translation>faccina imbronciata</translation></message>
<message><source>frowning face with open mouth</source><translation>faccina imbronciata con bocca aperta</translation></message>
<message><source>fruit</source><translation>frutta</translation></message>
<message><source>frustrated</source><translation>frustrato</translation></message>
<message><source>fuel pump</source><translation>stazione di servizio</translation></message>
<message><source>fuji</source><translation>Fuji</translation></message>
<message><source>full moon</source><translation>luna piena</translation></message>
<message><source>full moon face</source><translation>faccina luna piena</translation></message>
<message><source>funeral</source><translation>funerale</translation></message>
<message><source>funeral urn</source><translation>urna funeraria</translation></message>
<message><source>fungus</source><translation>fungo</translation></message>
<message><source>future</source><translation>futuro</translation></message>
<message><source>game</source><translation>gioco</translation></message>
<message><source>game die</source><translation>dado</translation></message>
<message><source>garden</source><translation>giardino</translation></message>
<message><source>gardener</source><translation>giardiniere</translation></message>
<message><source>garlic</source><translation>aglio</translation></message>
<message><source>gear</source><translation>ingranaggio</translation></message>
<message><source>gem stone</source><translation>gemma</translation></message>
<message><source>genderqueer</source><translation>genderqueer</translation></message>
<message><source>genetics</source><translation>genetica</translation></message>
<message><source>genie</source><translation>genio</translation></message>
<message><source>geometric</source><translation>geometria</translation></message>
<message><source>germs</source><translation>germi</translation></message>
<message><source>gesture</source><translation>gesto</translation></message>
<message><source>ghost</source><translation>fantasma</translation></message>
<message><source>gibbous</source><translation>gibbosa</translation></message>
<message><source>ginger root</source><translation>radice di zenzero</translation></message>
<message><source>giraffe</source><translation>giraffa</translation></message>
<message><source>girl</source><translation>bambina</translation></message>
<message><source>glass</source><translation>bicchiere</translation></message>
<message><source>glass of milk</source><translation>bicchiere di latte</translation></message>
<message><source>glasses</source><translation>occhiali da vista</translation></message>
<message><source>glitter</source><translation>glitter</translation></message>
<message><source>globe</source><translation>globo</translation></message>
<message><source>globe showing Americas</source><translation>America</translation></message>
<message><source>globe showing Asia-Australia</source><translation>Asia e Australia</translation></message>
<message><source>globe showing Europe-Africa</source><translation>Europa e Africa</translation></message>
<message><source>globe with meridians</source><translation>globo con meridiani</translation></message>
<message><source>gloves</source><translation>guanti</translation></message>
<message><source>glowing star</source><translation>stella che brilla</translation></message>
<message><source>goal</source><translation>goal</translation></message>
<message><source>goal net</source><translation>porta da calcio</translation></message>
<message><source>goat</source><translation>capra</translation></message>
<message><source>goblin</source><translation>goblin</translation></message>
<message><source>goggles</source><translation>maschera</translation></message>
<message><source>gold</source><translation>oro</translation></message>
<message><source>golf</source><translation>golf</translation></message>
<message><source>goose</source><translation>oca</translation></message>
<message><source>gorilla</source><translation>gorilla</translation></message>
<message><source>gossip</source><translation>gossip</translation></message>
<message><source>graduation cap</source><translation>cappello da laureato</translation></message>
<message><source>grapes</source><translation>uva</translation></message>
<message><source>gratitude</source><translation>gratitudine</translation></message>
<message><source>green apple</source><translation>mela verde</translation></message>
<message><source>green book</source><translation>libro verde</translation></message>
<message><source>green circle</source><translation>cerchio verde</translation></message>
<message><source>green heart</source><translation>cuore verde</translation></message>
<message><source>green salad</source><translation>insalata verde</translation></message>
<message><source>green square</source><translation>quadrato verde</translation></message>
<message><source>grey heart</source><translation>cuore grigio</translation></message>
<message><source>grimacing face</source><translation>faccina con smorfia</translation></message>
<message><source>grinning cat</source><translation>gatto che sorride</translation></message>
<message><source>grinning cat with smiling eyes</source><translation>gatto che sogghigna</translation></message>
<message><source>grinning face</source><translation>faccina con un gran sorriso</translation></message>
<message><source>grinning face with big eyes</source><translation>faccina con sorriso e occhi spalancati</translation></message>
<message><source>grinning face with smiling eyes</source><translation>faccina con sorriso e occhi sorridenti</translation></message>
<message><source>grinning face with sweat</source><translation>faccina con sorriso e goccia di sudore</translation></message>
<message><source>grinning squinting face</source><translation>sorriso a bocca aperta con occhi chiusi</translation></message>
<message><source>growing heart</source><translation>cuore che cresce</translation></message>
<message><source>guanaco</source><translation>guanaco</translation></message>
<message><source>guard</source><translation>guardia</translation></message>
<message><source>guide dog</source><translation>cane guida</translation></message>
<message><source>guitar</source><translation>chitarra</translation></message>
<message><source>gymnastics</source><translation>ginnastica</translation></message>
<message><source>gyro</source><translation>gyro</translation></message>
<message><source>gyōza</source><translation>gyoza</translation></message>
<message><source>hahaha</source><translation>ahahah</translation></message>
<message><source>hair pick</source><translation>pettine afro</translation></message>
<message><source>halloween</source><translation>halloween</translation></message>
<message><source>hamburger</source><translation>hamburger</translation></message>
<message><source>hammer</source><translation>martello</translation></message>
<message><source>hammer and pick</source><translation>piccone e martello</translation></message>
<message><source>hammer and wrench</source><translation>martello e chiave inglese</translation></message>
<message><source>hamsa</source><translation>mano di Fatima</translation></message>
<message><source>hamster</source><translation>criceto</translation></message>
<message><source>hand</source><translation>mano</translation></message>
<message><source>hand with fingers splayed</source><translation>mano aperta</translation></message>
<message><source>hand with index finger and thumb crossed</source><translation>mano con indice e pollice incrociati</translation></message>
<message><source>handbag</source><translation>borsa</translation></message>
<message><source>handshake</source><translation>stretta di mano</translation></message>
<message><source>harp</source><translation>arpa</translation></message>
<message><source>hashi</source><translation>hashi</translation></message>
<message><source>hat</source><translation>cappello</translation></message>
<message><source>hatching chick</source><translation>pulcino che nasce</translation></message>
<message><source>head shaking horizontally</source><translation>scuotere la testa in senso orizzontale</translation></message>
<message><source>head shaking vertically</source><translation>scuotere la testa in senso verticale</translation></message>
<message><source>headphone</source><translation>cuffie</translation></message>
<message><source>headstone</source><translation>lapide</translation></message>
<message><source>health worker</source><translation>persona che lavora nella sanità</translation></message>
<message><source>hear-no-evil monkey</source><translation>non sento</translation></message>
<message><source>heart</source><translation>cuore</translation></message>
<message><source>heart decoration</source><translation>decorazione con cuore</translation></message>
<message><source>heart exclamation</source><translation>punto esclamativo a cuore</translation></message>
<message><source>heart hands</source><translation>mani a cuore</translation></message>
<message><source>heart on fire</source><translation>cuore in fiamme</translation></message>
<message><source>heart suit</source><translation>cuori</translation></message>
<message><source>heart with arrow</source><translation>cuore con freccia</translation></message>
<message><source>heart with ribbon</source><translation>cuore con fiocco</translation></message>
<message><source>heart-eyes</source><translation>occhi a cuore</translation></message>
<message><source>heartbeat</source><translation>pulsazione</translation></message>
<message><source>heavy dollar sign</source><translation>Dollaro</translation></message>
<message><source>heavy equals sign</source><translation>segno di uguaglianza</translation></message>
<message><source>hedgehog</source><translation>riccio</translation></message>
<message><source>helicopter</source><translation>elicottero</translation></message>
<message><source>helmet</source><translation>elmetto</translation></message>
<message><source>herb</source><translation>pianta</translation></message>
<message><source>hibiscus</source><translation>ibisco</translation></message>
<message><source>hidden</source><translation>invisibile</translation></message>
<message><source>high voltage</source><translation>alta tensione</translation></message>
<message><source>high-heeled shoe</source><translation>scarpa con il tacco</translation></message>
<message><source>high-speed train</source><translation>treno alta velocità</translation></message>
<message><source>hijab</source><translation>hijab</translation></message>
<message><source>hiking boot</source><translation>stivale da trekking</translation></message>
<message><source>hindu temple</source><translation>tempio indù</translation></message>
<message><source>hippo</source><translation>ippo</translation></message>
<message><source>hippopotamus</source><translation>ippopotamo</translation></message>
<message><source>hockey</source><translation>hockey</translation></message>
<message><source>hole</source><translation>buco</translation></message>
<message><source>holi</source><translation>holi</translation></message>
<message><source>hollow red circle</source><translation>cerchio rosso vuoto</translation></message>
<message><source>honey pot</source><translation>barattolo di miele</translation></message>
<message><source>honeybee</source><translation>ape</translation></message>
<message><source>hook</source><translation>gancio</translation></message>
<message><source>horizontal</source><translation>orizzontale</translation></message>
<message><source>horizontal traffic light</source><translation>semaforo orizzontale</translation></message>
<message><source>horoscope</source><translation>oroscopo</translation></message>
<message><source>horror</source><translation>horror</translation></message>
<message><source>horse</source><translation>cavallo</translation></message>
<message><source>horse face</source><translation>muso di cavallo</translation></message>
<message><source>horse racing</source><translation>ippica</translation></message>
<message><source>hospital</source><translation>ospedale</translation></message>
<message><source>hot beverage</source><translation>bevanda calda</translation></message>
<message><source>hot dog</source><translation>hot dog</translation></message>
<message><source>hot face</source><translation>faccina accaldata</translation></message>
<message><source>hot pepper</source><translation>peperoncino</translation></message>
<message><source>hot springs</source><translation>sorgenti termali</translation></message>
<message><source>hotel</source><translation>hotel</translation></message>
<message><source>hourglass done</source><translation>clessidra</translation></message>
<message><source>hourglass not done</source><translation>clessidra che scorre</translation></message>
<message><source>house</source><translation>casa</translation></message>
<message><source>house with garden</source><translation>casa con giardino</translation></message>
<message><source>houses</source><translation>case</translation></message>
<message><source>hug</source><translation>abbraccio</translation></message>
<message><source>hundred points</source><translation>100 punti</translation></message>
<message><source>hurt</source><translation>ferito</translation></message>
<message><source>hushed face</source><translation>faccina sorpresa</translation></message>
<message><source>hut</source><translation>capanna</translation></message>
<message><source>hyacinth</source><translation>giacinto</translation></message>
<message><source>hygiene</source><translation>igiene</translation></message>
<message><source>hóngbāo</source><translation>hóngbāo</translation></message>
<message><source>ice</source><translation>cubetto di ghiaccio</translation></message>
<message><source>ice cream</source><translation>coppa di gelato</translation></message>
<message><source>ice hockey</source><translation>hockey su ghiaccio</translation></message>
<message><source>ice skate</source><translation>pattinaggio su ghiaccio</translation></message>
<message><source>idea</source><translation>idea</translation></message>
<message><source>identification</source><translation>identificazione</translation></message>
<message><source>identification card</source><translation>carta d’identità</translation></message>
<message><source>identity</source><translation>identità</translation></message>
<message><source>ideograph</source><translation>ideogramma</translation></message>
<message><source>immortal</source><translation>immortale</translation></message>
<message><source>improvement</source><translation>attrezzo</translation></message>
<message><source>inbox tray</source><translation>posta ricevuta</translation></message>
<message><source>incognito</source><translation>incognito</translation></message>
<message><source>incoming envelope</source><translation>posta in arrivo</translation></message>
<message><source>index pointing at the viewer</source><translation>indice verso l’osservatore</translation></message>
<message><source>index pointing up</source><translation>indice verso l’alto</translation></message>
<message><source>indifference</source><translation>indifferenza</translation></message>
<message><source>inexpressive</source><translation>inespressiva</translation></message>
<message><source>infinity</source><translation>simbolo dell’infinito</translation></message>
<message><source>information</source><translation>punto informazioni</translation></message>
<message><source>input</source><translation>inserire</translation></message>
<message><source>input latin letters</source><translation>pulsante con lettere latine</translation></message>
<message><source>input latin lowercase</source><translation>pulsante con lettere latine minuscole</translation></message>
<message><source>input latin uppercase</source><translation>pulsante con lettere latine maiuscole</translation></message>
<message><source>input numbers</source><translation>pulsante con numeri</translation></message>
<message><source>input symbols</source><translation>pulsante con simboli</translation></message>
<message><source>insect</source><translation>insetto</translation></message>
<message><source>instrument</source><translation>strumento</translation></message>
<message><source>intelligent</source><translation>intelligente</translation></message>
<message><source>intercardinal</source><translation>punto intercardinale</translation></message>
<message><source>internet</source><translation>internet</translation></message>
<message><source>interrogation</source><translation>interrogativo</translation></message>
<message><source>introvert</source><translation>introverso</translation></message>
<message><source>invent</source><translation>inventare</translation></message>
<message><source>inventor</source><translation>inventore</translation></message>
<message><source>invertebrate</source><translation>invertebrato</translation></message>
<message><source>invoice</source><translation>invoice</translation></message>
<message><source>ironic</source><translation>ironico</translation></message>
<message><source>islam</source><translation>Islamismo</translation></message>
<message><source>island</source><translation>isola</translation></message>
<message><source>jack-o-lantern</source><translation>zucca di Halloween</translation></message>
<message><source>jar</source><translation>barattolo</translation></message>
<message><source>jeans</source><translation>jeans</translation></message>
<message><source>jellyfish</source><translation>medusa</translation></message>
<message><source>jeotgarak</source><translation>jeotgarak</translation></message>
<message><source>jiaozi</source><translation>jiaozi</translation></message>
<message><source>joker</source><translation>jolly</translation></message>
<message><source>joy</source><translation>gioia</translation></message>
<message><source>joystick</source><translation>joystick</translation></message>
<message><source>judge</source><translation>giudice</translation></message>
<message><source>judo</source><translation>judo</translation></message>
<message><source>kaaba</source><translation>Kaaba</translation></message>
<message><source>kale</source><translation>kale</translation></message>
<message><source>kangaroo</source><translation>canguro</translation></message>
<message><source>karaoke</source><translation>Karaoke</translation></message>
<message><source>karate</source><translation>karate</translation></message>
<message><source>katakana</source><translation>katakana</translation></message>
<message><source>kebab</source><translation>kebab</translation></message>
<message><source>key</source><translation>chiave</translation></message>
<message><source>keyboard</source><translation>tastiera</translation></message>
<message><source>keycap</source><translation>tasto</translation></message>
<message><source>keycap: #</source><translation>tasto: #</translation></message>
<message><source>keycap: *</source><translation>tasto: *</translation></message>
<message><source>keycap: 0</source><translation>tasto: 0</translation></message>
<message><source>keycap: 1</source><translation>tasto: 1</translation></message>
<message><source>keycap: 10</source><translation>tasto: 10</translation></message>
<message><source>keycap: 2</source><translation>tasto: 2</translation></message>
<message><source>keycap: 3</source><translation>tasto: 3</translation></message>
<message><source>keycap: 4</source><translation>tasto: 4</translation></message>
<message><source>keycap: 5</source><translation>tasto: 5</translation></message>
<message><source>keycap: 6</source><translation>tasto: 6</translation></message>
<message><source>keycap: 7</source><translation>tasto: 7</translation></message>
<message><source>keycap: 8</source><translation>tasto: 8</translation></message>
<message><source>keycap: 9</source><translation>tasto: 9</translation></message>
<message><source>khanda</source><translation>khanda</translation></message>
<message><source>kick scooter</source><translation>monopattino</translation></message>
<message><source>kimono</source><translation>kimono</translation></message>
<message><source>kiss</source><translation>bacio tra coppia</translation></message>
<message><source>kiss mark</source><translation>impronta della bocca</translation></message>
<message><source>kiss: man, man</source><translation>bacio tra coppia: uomo e uomo</translation></message>
<message><source>kiss: woman, man</source><translation>bacio tra coppia: donna e uomo</translation></message>
<message><source>kiss: woman, woman</source><translation>bacio tra coppia: donna e donna</translation></message>
<message><source>kissing cat</source><translation>gatto che manda baci</translation></message>
<message><source>kissing face</source><translation>faccina che bacia</translation></message>
<message><source>kissing face with closed eyes</source><translation>faccina che bacia con occhi chiusi</translation></message>
<message><source>kissing face with smiling eyes</source><translation>faccina che bacia con occhi sorridenti</translation></message>
<message><source>kitchen knife</source><translation>coltello da cucina</translation></message>
<message><source>kite</source><translation>aquilone</translation></message>
<message><source>kiwi</source><translation>kiwi</translation></message>
<message><source>kiwi fruit</source><translation>kiwi</translation></message>
<message><source>knife</source><translation>posate</translation></message>
<message><source>knot</source><translation>nodo</translation></message>
<message><source>koala</source><translation>koala</translation></message>
<message><source>kuaizi</source><translation>kuaizi</translation></message>
<message><source>lab coat</source><translation>camice</translation></message>
<message><source>label</source><translation>etichetta</translation></message>
<message><source>lacrosse</source><translation>lacrosse</translation></message>
<message><source>ladder</source><translation>scala</translation></message>
<message><source>lady</source><translation>viso</translation></message>
<message><source>lady beetle</source><translation>coccinella</translation></message>
<message><source>lamp</source><translation>lampada</translation></message>
<message><source>lantern</source><translation>lanterna</translation></message>
<message><source>laptop</source><translation>computer portatile</translation></message>
<message><source>large</source><translation>grande</translation></message>
<message><source>large blue diamond</source><translation>rombo blu grande</translation></message>
<message><source>large orange diamond</source><translation>rombo arancione grande</translation></message>
<message><source>last quarter moon</source><translation>ultimo quarto di luna</translation></message>
<message><source>last quarter moon face</source><translation>faccina ultimo quarto di luna</translation></message>
<message><source>last track button</source><translation>pulsante traccia precedente</translation></message>
<message><source>latin cross</source><translation>croce latina</translation></message>
<message><source>laugh</source><translation>risata</translation></message>
<message><source>lavash</source><translation>lavash</translation></message>
<message><source>leaf</source><translation>foglia</translation></message>
<message><source>leaf fluttering in wind</source><translation>foglia al vento</translation></message>
<message><source>leafless tree</source><translation>albero spoglio</translation></message>
<message><source>leafy green</source><translation>verdure a foglia</translation></message>
<message><source>ledger</source><translation>quaderno ad anelli</translation></message>
<message><source>left arrow</source><translation>freccia rivolta a sinistra</translation></message>
<message><source>left arrow curving right</source><translation>freccia curva a destra</translation></message>
<message><source>left luggage</source><translation>simbolo del deposito bagagli</translation></message>
<message><source>left speech bubble</source><translation>fumetto a sinistra</translation></message>
<message><source>left-facing fist</source><translation>pugno a sinistra</translation></message>
<message><source>left-right arrow</source><translation>freccia sinistra-destra</translation></message>
<message><source>leftwards hand</source><translation>mano rivolta a sinistra</translation></message>
<message><source>leftwards pushing hand</source><translation>mano che spinge a sinistra</translation></message>
<message><source>leg</source><translation>gamba</translation></message>
<message><source>legume</source><translation>legume</translation></message>
<message><source>lemon</source><translation>limone</translation></message>
<message><source>leopard</source><translation>leopardo</translation></message>
<message><source>lesbian</source><translation>lesbica</translation></message>
<message><source>letter</source><translation>lettera</translation></message>
<message><source>letters</source><translation>lettere</translation></message>
<message><source>level slider</source><translation>cursore del volume</translation></message>
<message><source>light blue heart</source><translation>cuore azzurro</translation></message>
<message><source>light bulb</source><translation>lampadina</translation></message>
<message><source>light rail</source><translation>metrotranvia</translation></message>
<message><source>light skin tone</source><translation>carnagione chiara</translation></message>
<message><source>lime</source><translation>lime</translation></message>
<message><source>link</source><translation>collegamento</translation></message>
<message><source>linked paperclips</source><translation>graffette attaccate</translation></message>
<message><source>links</source><translation>link</translation></message>
<message><source>lion</source><translation>leone</translation></message>
<message><source>lips</source><translation>labbra</translation></message>
<message><source>lipstick</source><translation>rossetto</translation></message>
<message><source>liquid</source><translation>liquido</translation></message>
<message><source>liquor</source><translation>liquore</translation></message>
<message><source>litter in bin sign</source><translation>simbolo per la raccolta dei rifiuti</translation></message>
<message><source>lizard</source><translation>lucertola</translation></message>
<message><source>llama</source><translation>lama</translation></message>
<message><source>lmao</source><translation>lmao</translation></message>
<message><source>lobster</source><translation>aragosta</translation></message>
<message><source>lock</source><translation>lucchetto</translation></message>
<message><source>locked</source><translation>lucchetto chiuso</translation></message>
<message><source>locked with key</source><translation>lucchetto chiuso con chiave</translation></message>
<message><source>locked with pen</source><translation>lucchetto con penna stilo</translation></message>
<message><source>locomotive</source><translation>locomotiva</translation></message>
<message><source>lollipop</source><translation>lecca lecca</translation></message>
<message><source>long drum</source><translation>tamburo lungo</translation></message>
<message><source>losing</source><translation>perdere</translation></message>
<message><source>lotion</source><translation>lozione</translation></message>
<message><source>lotion bottle</source><translation>flacone</translation></message>
<message><source>lotus</source><translation>loto</translation></message>
<message><source>loudly crying face</source><translation>faccina disperata</translation></message>
<message><source>loudspeaker</source><translation>altoparlante</translation></message>
<message><source>love</source><translation>amore</translation></message>
<message><source>love hotel</source><translation>love hotel</translation></message>
<message><source>love letter</source><translation>lettera d’amore</translation></message>
<message><source>love-you gesture</source><translation>gesto ti amo</translation></message>
<message><source>low battery</source><translation>batteria scarica</translation></message>
<message><source>luggage</source><translation>valigia</translation></message>
<message><source>lumber</source><translation>legname</translation></message>
<message><source>lungs</source><translation>polmoni</translation></message>
<message><source>lupine</source><translation>lupino</translation></message>
<message><source>lying face</source><translation>faccina bugiarda</translation></message>
<message><source>machine</source><translation>slot machine</translation></message>
<message><source>mad</source><translation>arrabbiato</translation></message>
<message><source>mage</source><translation>mago</translation></message>
<message><source>magic</source><translation>magia</translation></message>
<message><source>magic wand</source><translation>bacchetta magica</translation></message>
<message><source>magical</source><translation>magico</translation></message>
<message><source>magnet</source><translation>calamita</translation></message>
<message><source>magnetic</source><translation>magnetica</translation></message>
<message><source>magnifying glass tilted left</source><translation>lente di ingrandimento rivolta a sinistra</translation></message>
<message><source>magnifying glass tilted right</source><translation>lente di ingrandimento rivolta a destra</translation></message>
<message><source>mahjong red dragon</source><translation>tessera Mahjong</translation></message>
<message><source>mail</source><translation>mail</translation></message>
<message><source>makeup</source><translation>make up</translation></message>
<message><source>malaria</source><translation>malaria</translation></message>
<message><source>male sign</source><translation>simbolo genere maschile</translation></message>
<message><source>mammal</source><translation>mammifero</translation></message>
<message><source>mammoth</source><translation>mammut</translation></message>
<message><source>man</source><translation>uomo</translation></message>
<message><source>man artist</source><translation>artista uomo</translation></message>
<message><source>man astronaut</source><translation>astronauta uomo</translation></message>
<message><source>man biking</source><translation>ciclista uomo</translation></message>
<message><source>man bouncing ball</source><translation>uomo che fa rimbalzare una palla</translation></message>
<message><source>man bowing</source><translation>uomo che fa inchino profondo</translation></message>
<message><source>man cartwheeling</source><translation>uomo che fa la ruota</translation></message>
<message><source>man climbing</source><translation>scalatore</translation></message>
<message><source>man construction worker</source><translation>operaio edile uomo</translation></message>
<message><source>man cook</source><translation>cuoco</translation></message>
<message><source>man dancing</source><translation>uomo che balla</translation></message>
<message><source>man detective</source><translation>investigatore</translation></message>
<message><source>man elf</source><translation>elfo uomo</translation></message>
<message><source>man facepalming</source><translation>uomo esasperato</translation></message>
<message><source>man factory worker</source><translation>operaio</translation></message>
<message><source>man fairy</source><translation>folletto alato</translation></message>
<message><source>man farmer</source><translation>contadino</translation></message>
<message><source>man feeding baby</source><translation>uomo che allatta</translation></message>
<message><source>man firefighter</source><translation>pompiere uomo</translation></message>
<message><source>man frowning</source><translation>uomo corrucciato</translation></message>
<message><source>man genie</source><translation>genio uomo</translation></message>
<message><source>man gesturing NO</source><translation>uomo con gesto di rifiuto</translation></message>
<message><source>man gesturing OK</source><translation>uomo con gesto OK</translation></message>
<message><source>man getting haircut</source><translation>taglio di capelli per uomo</translation></message>
<message><source>man getting massage</source><translation>uomo che riceve un massaggio</translation></message>
<message><source>man golfing</source><translation>golfista uomo</translation></message>
<message><source>man guard</source><translation>guardia uomo</translation></message>
<message><source>man health worker</source><translation>operatore sanitario</translation></message>
<message><source>man in lotus position</source><translation>uomo in posizione del loto</translation></message>
<message><source>man in manual wheelchair</source><translation>uomo su sedia a rotelle manuale</translation></message>
<message><source>man in manual wheelchair: facing right</source><translation>uomo su sedia a rotelle manuale: a destra</translation></message>
<message><source>man in motorized wheelchair</source><translation>uomo su sedia a rotelle motorizzata</translation></message>
<message><source>man in motorized wheelchair: facing right</source><translation>uomo su sedia a rotelle motorizzata: a destra</translation></message>
<message><source>man in steamy room</source><translation>uomo in sauna</translation></message>
<message><source>man in tuxedo</source><translation>uomo in smoking</translation></message>
<message><source>man judge</source><translation>giudice uomo</translation></message>
<message><source>man juggling</source><translation>giocoliere uomo</translation></message>
<message><source>man kneeling</source><translation>uomo inginocchiato</translation></message>
<message><source>man kneeling: facing right</source><translation>uomo inginocchiato: a destra</translation></message>
<message><source>man lifting weights</source><translation>uomo che solleva pesi</translation></message>
<message><source>man mage</source><translation>mago uomo</translation></message>
<message><source>man mechanic</source><translation>meccanico uomo</translation></message>
<message><source>man mountain biking</source><translation>ciclista uomo di mountain bike</translation></message>
<message><source>man office worker</source><translation>impiegato</translation></message>
<message><source>man pilot</source><translation>pilota uomo</translation></message>
<message><source>man playing handball</source><translation>pallamanista uomo</translation></message>
<message><source>man playing water polo</source><translation>pallanuotista uomo</translation></message>
<message><source>man police officer</source><translation>poliziotto</translation></message>
<message><source>man pouting</source><translation>uomo imbronciato</translation></message>
<message><source>man raising hand</source><translation>uomo con mano alzata</translation></message>
<message><source>man rowing boat</source><translation>uomo in barca a remi</translation></message>
<message><source>man running</source><translation>uomo che corre</translation></message>
<message><source>man running: facing right</source><translation>uomo che corre: a destra</translation></message>
<message><source>man scientist</source><translation>scienziato</translation></message>
<message><source>man shrugging</source><translation>uomo che scrolla le spalle</translation></message>
<message><source>man singer</source><translation>cantante uomo</translation></message>
<message><source>man standing</source><translation>uomo in piedi</translation></message>
<message><source>man student</source><translation>studente maschio</translation></message>
<message><source>man superhero</source><translation>supereroe uomo</translation></message>
<message><source>man supervillain</source><translation>supercattivo uomo</translation></message>
<message><source>man surfing</source><translation>surfista uomo</translation></message>
<message><source>man swimming</source><translation>nuotatore</translation></message>
<message><source>man teacher</source><translation>professore</translation></message>
<message><source>man technologist</source><translation>tecnologo</translation></message>
<message><source>man tipping hand</source><translation>uomo con mano capovolta</translation></message>
<message><source>man vampire</source><translation>vampiro uomo</translation></message>
<message><source>man walking</source><translation>uomo che cammina</translation></message>
<message><source>man walking: facing right</source><translation>uomo che cammina: a destra</translation></message>
<message><source>man wearing turban</source><translation>uomo con turbante</translation></message>
<message><source>man with veil</source><translation>sposo con velo</translation></message>
<message><source>man with white cane</source><translation>uomo con bastone bianco di orientamento</translation></message>
<message><source>man with white cane: facing right</source><translation>uomo con bastone bianco di orientamento: a destra</translation></message>
<message><source>man zombie</source><translation>zombie uomo</translation></message>
<message><source>man: bald</source><translation>uomo: calvo</translation></message>
<message><source>man: beard</source><translation>uomo con la barba</translation></message>
<message><source>man: blond hair</source><translation>uomo biondo</translation></message>
<message><source>man: curly hair</source><translation>uomo: capelli ricci</translation></message>
<message><source>man: red hair</source><translation>uomo: capelli rossi</translation></message>
<message><source>man: white hair</source><translation>uomo: capelli bianchi</translation></message>
<message><source>manager</source><translation>manager</translation></message>
<message><source>mango</source><translation>mango</translation></message>
<message><source>manicure</source><translation>manicure</translation></message>
<message><source>mantelpiece clock</source><translation>orologio da mensola</translation></message>
<message><source>manual wheelchair</source><translation>sedia a rotelle manuale</translation></message>
<message><source>man’s shoe</source><translation>scarpa da uomo</translation></message>
<message><source>map</source><translation>mappa</translation></message>
<message><source>map of Japan</source><translation>mappa del Giappone</translation></message>
<message><source>maple leaf</source><translation>foglia d’acero</translation></message>
<message><source>maracas</source><translation>maracas</translation></message>
<message><source>marathon</source><translation>maratona</translation></message>
<message><source>marsupial</source><translation>marsupiale</translation></message>
<message><source>martial arts uniform</source><translation>kimono per arti marziali</translation></message>
<message><source>massage</source><translation>massaggio</translation></message>
<message><source>mate</source><translation>mate</translation></message>
<message><source>math</source><translation>matematica</translation></message>
<message><source>meat</source><translation>carne</translation></message>
<message><source>meat on bone</source><translation>carne</translation></message>
<message><source>mechanic</source><translation>meccanico</translation></message>
<message><source>mechanical arm</source><translation>protesi robotica per il braccio</translation></message>
<message><source>mechanical leg</source><translation>protesi robotica per la gamba</translation></message>
<message><source>medal</source><translation>medaglia</translation></message>
<message><source>medical</source><translation>medico</translation></message>
<message><source>medical symbol</source><translation>simbolo della medicina</translation></message>
<message><source>medicine</source><translation>medicina</translation></message>
<message><source>medieval</source><translation>medioevo</translation></message>
<message><source>meditate</source><translation>meditare</translation></message>
<message><source>medium skin tone</source><translation>carnagione olivastra</translation></message>
<message><source>medium-dark skin tone</source><translation>carnagione abbastanza scura</translation></message>
<message><source>medium-light skin tone</source><translation>carnagione abbastanza chiara</translation></message>
<message><source>megaphone</source><translation>megafono</translation></message>
<message><source>melon</source><translation>melone</translation></message>
<message><source>melting face</source><translation>faccina che si scioglie</translation></message>
<message><source>memo</source><translation>memo</translation></message>
<message><source>men holding hands</source><translation>due uomini che si tengono per mano</translation></message>
<message><source>men with bunny ears</source><translation>uomini con orecchie da coniglio</translation></message>
<message><source>men wrestling</source><translation>lottatori</translation></message>
<message><source>mending heart</source><translation>cuore guarito</translation></message>
<message><source>menorah</source><translation>Menorah</translation></message>
<message><source>menstruation</source><translation>mestruazioni</translation></message>
<message><source>men’s room</source><translation>simbolo del bagno degli uomini</translation></message>
<message><source>meridians</source><translation>meridiani</translation></message>
<message><source>mermaid</source><translation>sirena donna</translation></message>
<message><source>merman</source><translation>tritone</translation></message>
<message><source>merperson</source><translation>sirena</translation></message>
<message><source>metal</source><translation>metallo</translation></message>
<message><source>metro</source><translation>metropolitana</translation></message>
<message><source>mexican</source><translation>messicano</translation></message>
<message><source>mic</source><translation>cantare</translation></message>
<message><source>microbe</source><translation>microbo</translation></message>
<message><source>microphone</source><translation>microfono</translation></message>
<message><source>microscope</source><translation>microscopio</translation></message>
<message><source>middle finger</source><translation>dito medio</translation></message>
<message><source>military</source><translation>militare</translation></message>
<message><source>military helmet</source><translation>elmetto militare</translation></message>
<message><source>military medal</source><translation>medaglia militare</translation></message>
<message><source>milk</source><translation>latte</translation></message>
<message><source>milky way</source><translation>Via Lattea</translation></message>
<message><source>millionaire</source><translation>milionario</translation></message>
<message><source>minibus</source><translation>pulmino</translation></message>
<message><source>minus</source><translation>sottrazione</translation></message>
<message><source>mirror</source><translation>specchio</translation></message>
<message><source>mirror ball</source><translation>palla da discoteca</translation></message>
<message><source>miss</source><translation>mi manchi</translation></message>
<message><source>moai</source><translation>Moai</translation></message>
<message><source>mobile phone</source><translation>telefono cellulare</translation></message>
<message><source>mobile phone off</source><translation>cellulare spento</translation></message>
<message><source>mobile phone with arrow</source><translation>telefono cellulare con freccia</translation></message>
<message><source>mojito</source><translation>mojito</translation></message>
<message><source>mollusk</source><translation>mollusco</translation></message>
<message><source>monarch</source><translation>monarca</translation></message>
<message><source>money</source><translation>soldi</translation></message>
<message><source>money bag</source><translation>sacco di soldi</translation></message>
<message><source>money with wings</source><translation>soldi con le ali</translation></message>
<message><source>money-mouth face</source><translation>faccina avida di denaro</translation></message>
<message><source>monitor</source><translation>monitor</translation></message>
<message><source>monkey</source><translation>scimmia</translation></message>
<message><source>monkey face</source><translation>muso di scimmia</translation></message>
<message><source>monocle</source><translation>monocolo</translation></message>
<message><source>monorail</source><translation>monorotaia</translation></message>
<message><source>monster</source><translation>mostro</translation></message>
<message><source>moon</source><translation>luna</translation></message>
<message><source>moon cake</source><translation>torta della luna</translation></message>
<message><source>moon viewing ceremony</source><translation>contemplazione della luna</translation></message>
<message><source>moose</source><translation>alce</translation></message>
<message><source>mosque</source><translation>moschea</translation></message>
<message><source>mosquito</source><translation>zanzara</translation></message>
<message><source>motor</source><translation>motorino</translation></message>
<message><source>motor boat</source><translation>barca a motore</translation></message>
<message><source>motor scooter</source><translation>scooter</translation></message>
<message><source>motorcycle</source><translation>motocicletta</translation></message>
<message><source>motorized wheelchair</source><translation>sedia a rotelle motorizzata</translation></message>
<message><source>motorway</source><translation>autostrada</translation></message>
<message><source>mount</source><translation>monte</translation></message>
<message><source>mount fuji</source><translation>Monte Fuji</translation></message>
<message><source>mountain</source><translation>montagna</translation></message>
<message><source>mountain cableway</source><translation>funivia</translation></message>
<message><source>mountain railway</source><translation>ferrovia di montagna</translation></message>
<message><source>mountains</source><translation>montagne</translation></message>
<message><source>mouse</source><translation>topo</translation></message>
<message><source>mouse face</source><translation>muso di topo</translation></message>
<message><source>mouse trap</source><translation>trappola per topi</translation></message>
<message><source>mouth</source><translation>bocca</translation></message>
<message><source>movie</source><translation>cinepresa</translation></message>
<message><source>movie camera</source><translation>cinepresa</translation></message>
<message><source>mule</source><translation>mulo</translation></message>
<message><source>multiplication</source><translation>moltiplicazione</translation></message>
<message><source>multiply</source><translation>moltiplicazione</translation></message>
<message><source>multitask</source><translation>multitasking</translation></message>
<message><source>munch</source><translation>munch</translation></message>
<message><source>museum</source><translation>museo</translation></message>
<message><source>mushroom</source><translation>fungo</translation></message>
<message><source>music</source><translation>musica</translation></message>
<message><source>musical keyboard</source><translation>piano</translation></message>
<message><source>musical note</source><translation>nota musicale</translation></message>
<message><source>musical notes</source><translation>note musicali</translation></message>
<message><source>musical score</source><translation>pentagramma</translation></message>
<message><source>mute</source><translation>muto</translation></message>
<message><source>muted speaker</source><translation>altoparlante disattivato</translation></message>
<message><source>mysterious</source><translation>mistero</translation></message>
<message><source>myth</source><translation>creatura</translation></message>
<message><source>naan</source><translation>naan</translation></message>
<message><source>nail polish</source><translation>smalto per unghie</translation></message>
<message><source>name</source><translation>nome</translation></message>
<message><source>name badge</source><translation>tesserino per nome</translation></message>
<message><source>national park</source><translation>parco nazionale</translation></message>
<message><source>nauseated</source><translation>nauseato</translation></message>
<message><source>nauseated face</source><translation>faccina nauseata</translation></message>
<message><source>navigation</source><translation>navigazione</translation></message>
<message><source>nazar</source><translation>nazar</translation></message>
<message><source>nazar amulet</source><translation>occhio di Allah</translation></message>
<message><source>necktie</source><translation>cravatta</translation></message>
<message><source>needle</source><translation>ago</translation></message>
<message><source>nerd</source><translation>nerd</translation></message>
<message><source>nerd face</source><translation>faccina nerd</translation></message>
<message><source>nervous</source><translation>nervoso</translation></message>
<message><source>nest with eggs</source><translation>nido con uova</translation></message>
<message><source>nesting dolls</source><translation>matrioska</translation></message>
<message><source>neutral face</source><translation>faccina neutra</translation></message>
<message><source>new moon</source><translation>luna nuova</translation></message>
<message><source>new moon face</source><translation>faccina luna nuova</translation></message>
<message><source>newborn</source><translation>bebè</translation></message>
<message><source>newspaper</source><translation>quotidiano</translation></message>
<message><source>next track button</source><translation>traccia successiva</translation></message>
<message><source>night with stars</source><translation>notte stellata</translation></message>
<message><source>nine o’clock</source><translation>ore nove</translation></message>
<message><source>nine-thirty</source><translation>ore nove e mezza</translation></message>
<message><source>ninja</source><translation>ninja</translation></message>
<message><source>no bicycles</source><translation>segnale di divieto di transito delle biciclette</translation></message>
<message><source>no entry</source><translation>segnale di divieto di accesso</translation></message>
<message><source>no littering</source><translation>simbolo del divieto di gettare rifiuti</translation></message>
<message><source>no mobile phones</source><translation>simbolo che vieta l’uso dei cellulari</translation></message>
<message><source>no one under eighteen</source><translation>simbolo di divieto ai minorenni</translation></message>
<message><source>no pedestrians</source><translation>simbolo del divieto di transito pedoni</translation></message>
<message><source>no smoking</source><translation>segnale di vietato fumare</translation></message>
<message><source>noble</source><translation>nobile</translation></message>
<message><source>non-potable</source><translation>non potabile</translation></message>
<message><source>non-potable water</source><translation>simbolo di acqua non potabile</translation></message>
<message><source>noodle</source><translation>noodle</translation></message>
<message><source>nooo</source><translation>nooo</translation></message>
<message><source>northeast</source><translation>nord-est</translation></message>
<message><source>nose</source><translation>naso</translation></message>
<message><source>notebook</source><translation>quaderno</translation></message>
<message><source>notebook with decorative cover</source><translation>quaderno con copertina decorata</translation></message>
<message><source>numbers</source><translation>numeri</translation></message>
<message><source>nut and bolt</source><translation>vite e bullone</translation></message>
<message><source>ocean</source><translation>oceano</translation></message>
<message><source>octopus</source><translation>polpo</translation></message>
<message><source>oden</source><translation>oden giapponese</translation></message>
<message><source>odor</source><translation>odore</translation></message>
<message><source>office building</source><translation>edificio</translation></message>
<message><source>office worker</source><translation>persona che fa un lavoro d’ufficio</translation></message>
<message><source>ogre</source><translation>orco</translation></message>
<message><source>oil drum</source><translation>barile di petrolio</translation></message>
<message><source>ok</source><translation>d’accordo</translation></message>
<message><source>old key</source><translation>chiave antica</translation></message>
<message><source>old man</source><translation>uomo anziano</translation></message>
<message><source>old woman</source><translation>donna anziana</translation></message>
<message><source>older person</source><translation>persona anziana</translation></message>
<message><source>olive</source><translation>oliva</translation></message>
<message><source>om</source><translation>Om</translation></message>
<message><source>oncoming automobile</source><translation>auto in arrivo</translation></message>
<message><source>oncoming bus</source><translation>bus in arrivo</translation></message>
<message><source>oncoming fist</source><translation>pugno chiuso</translation></message>
<message><source>oncoming police car</source><translation>macchina della polizia in arrivo</translation></message>
<message><source>oncoming taxi</source><translation>taxi in arrivo</translation></message>
<message><source>one o’clock</source><translation>ore una</translation></message>
<message><source>one-piece swimsuit</source><translation>costume da bagno intero</translation></message>
<message><source>one-thirty</source><translation>ore una e mezza</translation></message>
<message><source>onion</source><translation>cipolla</translation></message>
<message><source>open book</source><translation>libro aperto</translation></message>
<message><source>open file folder</source><translation>cartella aperta</translation></message>
<message><source>open hands</source><translation>mani aperte</translation></message>
<message><source>open mailbox with lowered flag</source><translation>cassetta postale aperta bandierina abbassata</translation></message>
<message><source>open mailbox with raised flag</source><translation>cassetta postale aperta bandierina alzata</translation></message>
<message><source>optical</source><translation>disco</translation></message>
<message><source>optical disk</source><translation>disco ottico</translation></message>
<message><source>orange</source><translation>arancione</translation></message>
<message><source>orange book</source><translation>libro arancione</translation></message>
<message><source>orange circle</source><translation>cerchio arancione</translation></message>
<message><source>orange heart</source><translation>cuore arancione</translation></message>
<message><source>orange square</source><translation>quadrato arancione</translation></message>
<message><source>orangutan</source><translation>orangotango</translation></message>
<message><source>orchestra</source><translation>orchestra</translation></message>
<message><source>organ</source><translation>organo</translation></message>
<message><source>ornithology</source><translation>ornitologia</translation></message>
<message><source>orthodox</source><translation>ortodossi</translation></message>
<message><source>orthodox cross</source><translation>croce ortodossa</translation></message>
<message><source>otter</source><translation>lontra</translation></message>
<message><source>outbox tray</source><translation>posta inviata</translation></message>
<message><source>owl</source><translation>gufo</translation></message>
<message><source>ox</source><translation>bue</translation></message>
<message><source>oyster</source><translation>ostrica</translation></message>
<message><source>package</source><translation>pacco</translation></message>
<message><source>paella</source><translation>paella</translation></message>
<message><source>page</source><translation>pagina</translation></message>
<message><source>page facing up</source><translation>pagina</translation></message>
<message><source>page with curl</source><translation>pagina con piega</translation></message>
<message><source>pager</source><translation>cercapersone</translation></message>
<message><source>paintbrush</source><translation>pennello</translation></message>
<message><source>palette</source><translation>palette</translation></message>
<message><source>palm</source><translation>palma</translation></message>
<message><source>palm down hand</source><translation>mano con il palmo verso il basso</translation></message>
<message><source>palm tree</source><translation>palma</translation></message>
<message><source>palm up hand</source><translation>mano con il palmo verso l’alto</translation></message>
<message><source>palms</source><translation>palmi</translation></message>
<message><source>palms up together</source><translation>mani unite in alto</translation></message>
<message><source>pamonha</source><translation>pamonha</translation></message>
<message><source>pan</source><translation>padella</translation></message>
<message><source>pancakes</source><translation>pancake</translation></message>
<message><source>panda</source><translation>panda</translation></message>
<message><source>paperclip</source><translation>graffetta</translation></message>
<message><source>parachute</source><translation>paracadute</translation></message>
<message><source>parasail</source><translation>parasailing</translation></message>
<message><source>parasite</source><translation>parassita</translation></message>
<message><source>parent</source><translation>padre</translation></message>
<message><source>parrot</source><translation>pappagallo</translation></message>
<message><source>part alternation mark</source><translation>simbolo di alternanza delle parti</translation></message>
<message><source>party popper</source><translation>spara coriandoli</translation></message>
<message><source>partying</source><translation>party</translation></message>
<message><source>partying face</source><translation>faccina che festeggia</translation></message>
<message><source>passenger</source><translation>crociera</translation></message>
<message><source>passenger ship</source><translation>nave da crociera</translation></message>
<message><source>passport control</source><translation>simbolo del controllo passaporti</translation></message>
<message><source>password</source><translation>password</translation></message>
<message><source>pasta</source><translation>pasta</translation></message>
<message><source>pause button</source><translation>pulsante pausa</translation></message>
<message><source>paw prints</source><translation>impronte di zampe</translation></message>
<message><source>pea pod</source><translation>baccello di piselli</translation></message>
<message><source>peace</source><translation>pace</translation></message>
<message><source>peace symbol</source><translation>simbolo della pace</translation></message>
<message><source>peach</source><translation>pesca</translation></message>
<message><source>peacock</source><translation>pavone</translation></message>
<message><source>peanuts</source><translation>arachidi</translation></message>
<message><source>pear</source><translation>pera</translation></message>
<message><source>pearl</source><translation>perla</translation></message>
<message><source>pen</source><translation>penna a sfera</translation></message>
<message><source>pencil</source><translation>matita</translation></message>
<message><source>penguin</source><translation>pinguino</translation></message>
<message><source>pensive face</source><translation>faccina pensierosa</translation></message>
<message><source>people holding hands</source><translation>persone che si tengono per mano</translation></message>
<message><source>people hugging</source><translation>persone che si abbracciano</translation></message>
<message><source>people with bunny ears</source><translation>persone con orecchie da coniglio</translation></message>
<message><source>people wrestling</source><translation>persone che fanno la lotta</translation></message>
<message><source>pepper</source><translation>peperone</translation></message>
<message><source>percussion</source><translation>percussioni</translation></message>
<message><source>performing</source><translation>performance</translation></message>
<message><source>performing arts</source><translation>maschere</translation></message>
<message><source>persevering face</source><translation>faccina perseverante</translation></message>
<message><source>person</source><translation>persona</translation></message>
<message><source>person biking</source><translation>ciclista</translation></message>
<message><source>person bouncing ball</source><translation>persona che fa rimbalzare una palla</translation></message>
<message><source>person bowing</source><translation>persona che fa un inchino profondo</translation></message>
<message><source>person cartwheeling</source><translation>persona che fa la ruota</translation></message>
<message><source>person climbing</source><translation>persona che scala</translation></message>
<message><source>person facepalming</source><translation>persona esasperata</translation></message>
<message><source>person feeding baby</source><translation>persona che allatta</translation></message>
<message><source>person fencing</source><translation>schermidore</translation></message>
<message><source>person frowning</source><translation>persona corrucciata</translation></message>
<message><source>person gesturing NO</source><translation>persona che fa segno di no</translation></message>
<message><source>person gesturing OK</source><translation>persona con gesto OK</translation></message>
<message><source>person getting haircut</source><translation>taglio di capelli</translation></message>
<message><source>person getting massage</source><translation>persona che riceve un massaggio</translation></message>
<message><source>person golfing</source><translation>persona che gioca a golf</translation></message>
<message><source>person in bed</source><translation>persona a letto</translation></message>
<message><source>person in lotus position</source><translation>persona in posizione del loto</translation></message>
<message><source>person in manual wheelchair</source><translation>persona su sedia a rotelle manuale</translation></message>
<message><source>person in manual wheelchair: facing right</source><translation>persona su sedia a rotelle manuale: a destra</translation></message>
<message><source>person in motorized wheelchair</source><translation>persona su sedia a rotelle motorizzata</translation></message>
<message><source>person in motorized wheelchair: facing right</source><translation>persona su sedia a rotelle motorizzata: a destra</translation></message>
<message><source>person in steamy room</source><translation>persona in sauna</translation></message>
<message><source>person in suit levitating</source><translation>uomo con completo che levita</translation></message>
<message><source>person in tuxedo</source><translation>persona in smoking</translation></message>
<message><source>person juggling</source><translation>persona che fa giocoleria</translation></message>
<message><source>person kneeling</source><translation>persona inginocchiata</translation></message>
<message><source>person kneeling: facing right</source><translation>persona inginocchiata: a destra</translation></message>
<message><source>person lifting weights</source><translation>persona che solleva pesi</translation></message>
<message><source>person mountain biking</source><translation>ciclista di mountain bike</translation></message>
<message><source>person playing handball</source><translation>persona che gioca a pallamano</translation></message>
<message><source>person playing water polo</source><translation>persona che gioca a pallanuoto</translation></message>
<message><source>person pouting</source><translation>persona imbronciata</translation></message>
<message><source>person raising hand</source><translation>persona con mano alzata</translation></message>
<message><source>person rowing boat</source><translation>persona in barca a remi</translation></message>
<message><source>person running</source><translation>persona che corre</translation></message>
<message><source>person running: facing right</source><translation>persona che corre: a destra</translation></message>
<message><source>person shrugging</source><translation>persona che scrolla le spalle</translation></message>
<message><source>person standing</source><translation>persona in piedi</translation></message>
<message><source>person surfing</source><translation>persona che fa surf</translation></message>
<message><source>person swimming</source><translation>persona che nuota</translation></message>
<message><source>person taking bath</source><translation>persona che fa il bagno</translation></message>
<message><source>person tipping hand</source><translation>persona con mano capovolta</translation></message>
<message><source>person walking</source><translation>pedone</translation></message>
<message><source>person walking: facing right</source><translation>pedone: a destra</translation></message>
<message><source>person wearing turban</source><translation>persona con turbante</translation></message>
<message><source>person with crown</source><translation>persona con corona</translation></message>
<message><source>person with skullcap</source><translation>uomo con zucchetto cinese</translation></message>
<message><source>person with veil</source><translation>persona con velo</translation></message>
<message><source>person with white cane</source><translation>persona con bastone di orientamento</translation></message>
<message><source>person with white cane: facing right</source><translation>persona con bastone di orientamento: a destra</translation></message>
<message><source>person: bald</source><translation>persona: calvo</translation></message>
<message><source>person: beard</source><translation>persona con la barba</translation></message>
<message><source>person: blond hair</source><translation>persona bionda</translation></message>
<message><source>person: curly hair</source><translation>persona: capelli ricci</translation></message>
<message><source>person: red hair</source><translation>persona: capelli rossi</translation></message>
<message><source>person: white hair</source><translation>persona: capelli bianchi</translation></message>
<message><source>personal</source><translation>personal</translation></message>
<message><source>pet</source><translation>domestico</translation></message>
<message><source>petri dish</source><translation>piastra di Petri</translation></message>
<message><source>phoenix</source><translation>fenice</translation></message>
<message><source>phone</source><translation>cellulare</translation></message>
<message><source>piano</source><translation>piano</translation></message>
<message><source>pick</source><translation>piccone</translation></message>
<message><source>pickup truck</source><translation>pickup</translation></message>
<message><source>picnic</source><translation>picnic</translation></message>
<message><source>pie</source><translation>torta</translation></message>
<message><source>pierogi</source><translation>pierogi</translation></message>
<message><source>pig</source><translation>maiale</translation></message>
<message><source>pig face</source><translation>muso di maiale</translation></message>
<message><source>pig nose</source><translation>naso da maiale</translation></message>
<message><source>pile of poo</source><translation>cacca</translation></message>
<message><source>pill</source><translation>pillola</translation></message>
<message><source>pilot</source><translation>pilota</translation></message>
<message><source>pinched fingers</source><translation>mano a pigna</translation></message>
<message><source>pinching hand</source><translation>mano che fa il gesto del pizzico</translation></message>
<message><source>pine</source><translation>pino</translation></message>
<message><source>pine decoration</source><translation>bambù decorato</translation></message>
<message><source>pineapple</source><translation>ananas</translation></message>
<message><source>ping pong</source><translation>ping pong</translation></message>
<message><source>pingpong</source><translation>ping pong</translation></message>
<message><source>pink heart</source><translation>cuore rosa</translation></message>
<message><source>pinocchio</source><translation>pinocchio</translation></message>
<message><source>pint</source><translation>pinta</translation></message>
<message><source>pirate flag</source><translation>bandiera dei pirati</translation></message>
<message><source>pistol</source><translation>pistola</translation></message>
<message><source>pita</source><translation>pita</translation></message>
<message><source>pixelated</source><translation>pixel</translation></message>
<message><source>pizza</source><translation>pizza</translation></message>
<message><source>piñata</source><translation>pentolaccia</translation></message>
<message><source>placard</source><translation>cartello</translation></message>
<message><source>place of worship</source><translation>luogo di culto</translation></message>
<message><source>plane</source><translation>aereo</translation></message>
<message><source>plant</source><translation>pianta</translation></message>
<message><source>play button</source><translation>pulsante di riproduzione</translation></message>
<message><source>play or pause button</source><translation>pulsante riproduci/pausa</translation></message>
<message><source>playground slide</source><translation>scivolo</translation></message>
<message><source>pleading face</source><translation>faccina supplichevole</translation></message>
<message><source>please</source><translation>per favore</translation></message>
<message><source>plumber</source><translation>idraulico</translation></message>
<message><source>plunger</source><translation>sturalavandini</translation></message>
<message><source>plus</source><translation>addizione</translation></message>
<message><source>pointing</source><translation>indicare</translation></message>
<message><source>polar</source><translation>polare</translation></message>
<message><source>polar bear</source><translation>orso polare</translation></message>
<message><source>police</source><translation>polizia</translation></message>
<message><source>police car</source><translation>macchina della polizia</translation></message>
<message><source>police car light</source><translation>lampeggiante</translation></message>
<message><source>police officer</source><translation>agente di polizia</translation></message>
<message><source>poodle</source><translation>barboncino</translation></message>
<message><source>pool 8 ball</source><translation>palla da biliardo</translation></message>
<message><source>poop</source><translation>popò</translation></message>
<message><source>popcorn</source><translation>popcorn</translation></message>
<message><source>porous</source><translation>poroso</translation></message>
<message><source>porridge</source><translation>porridge</translation></message>
<message><source>poseidon</source><translation>poseidone</translation></message>
<message><source>post office</source><translation>ufficio postale</translation></message>
<message><source>postal</source><translation>postale</translation></message>
<message><source>postal horn</source><translation>corno postale</translation></message>
<message><source>postbox</source><translation>cassetta delle lettere</translation></message>
<message><source>pot of food</source><translation>pentola di cibo</translation></message>
<message><source>potable</source><translation>potabile</translation></message>
<message><source>potable water</source><translation>acqua potabile</translation></message>
<message><source>potassium</source><translation>potassio</translation></message>
<message><source>potato</source><translation>patata</translation></message>
<message><source>potted plant</source><translation>pianta in vaso</translation></message>
<message><source>poultry leg</source><translation>coscia di pollo</translation></message>
<message><source>pound banknote</source><translation>banconota Sterlina</translation></message>
<message><source>pounds</source><translation>pound</translation></message>
<message><source>pouring liquid</source><translation>liquido versato</translation></message>
<message><source>pouting</source><translation>broncio</translation></message>
<message><source>pouting cat</source><translation>gatto imbronciato</translation></message>
<message><source>pray</source><translation>preghiera</translation></message>
<message><source>prayer beads</source><translation>collana da preghiera</translation></message>
<message><source>predator</source><translation>predatore</translation></message>
<message><source>pregnant man</source><translation>uomo incinto</translation></message>
<message><source>pregnant person</source><translation>persona incinta</translation></message>
<message><source>pregnant woman</source><translation>donna incinta</translation></message>
<message><source>pretzel</source><translation>pretzel</translation></message>
<message><source>pride</source><translation>pride</translation></message>
<message><source>prince</source><translation>principe</translation></message>
<message><source>princess</source><translation>principessa</translation></message>
<message><source>printer</source><translation>stampante</translation></message>
<message><source>privacy</source><translation>privacy</translation></message>
<message><source>prohibited</source><translation>segnale di divieto</translation></message>
<message><source>protection</source><translation>protezione</translation></message>
<message><source>protest</source><translation>protesta</translation></message>
<message><source>proud</source><translation>orgoglioso</translation></message>
<message><source>puck</source><translation>puck</translation></message>
<message><source>pudding</source><translation>pudding</translation></message>
<message><source>pulse</source><translation>battito</translation></message>
<message><source>punctuation</source><translation>punteggiatura</translation></message>
<message><source>purple circle</source><translation>cerchio viola</translation></message>
<message><source>purple heart</source><translation>cuore viola</translation></message>
<message><source>purple square</source><translation>quadrato viola</translation></message>
<message><source>purse</source><translation>borsellino</translation></message>
<message><source>pushpin</source><translation>puntina</translation></message>
<message><source>puzzle</source><translation>puzzle</translation></message>
<message><source>puzzle piece</source><translation>pezzo di puzzle</translation></message>
<message><source>quarter</source><translation>quarto</translation></message>
<message><source>queen</source><translation>principessa</translation></message>
<message><source>question</source><translation>domanda</translation></message>
<message><source>quiet</source><translation>zitto</translation></message>
<message><source>rabbit</source><translation>coniglio</translation></message>
<message><source>rabbit face</source><translation>muso di coniglio</translation></message>
<message><source>raccoon</source><translation>procione</translation></message>
<message><source>race</source><translation>corsa</translation></message>
<message><source>racehorse</source><translation>corse</translation></message>
<message><source>racing car</source><translation>auto da corsa</translation></message>
<message><source>radio</source><translation>radio</translation></message>
<message><source>radio button</source><translation>pulsante rotondo</translation></message>
<message><source>radioactive</source><translation>simbolo della radioattività</translation></message>
<message><source>railway car</source><translation>vagone</translation></message>
<message><source>railway track</source><translation>binari</translation></message>
<message><source>rain</source><translation>pioggia</translation></message>
<message><source>rainbow</source><translation>arcobaleno</translation></message>
<message><source>rainbow flag</source><translation>bandiera arcobaleno</translation></message>
<message><source>raised back of hand</source><translation>dorso mano alzata</translation></message>
<message><source>raised fist</source><translation>pugno</translation></message>
<message><source>raised hand</source><translation>mano alzata</translation></message>
<message><source>raising hands</source><translation>mani alzate</translation></message>
<message><source>ram</source><translation>montone</translation></message>
<message><source>rat</source><translation>ratto</translation></message>
<message><source>razor</source><translation>rasoio</translation></message>
<message><source>reach</source><translation>dare la mano</translation></message>
<message><source>realize</source><translation>realizzare</translation></message>
<message><source>receipt</source><translation>scontrino</translation></message>
<message><source>record button</source><translation>pulsante di registrazione</translation></message>
<message><source>recycling symbol</source><translation>simbolo del riciclaggio</translation></message>
<message><source>red apple</source><translation>mela rossa</translation></message>
<message><source>red circle</source><translation>cerchio rosso</translation></message>
<message><source>red envelope</source><translation>busta hongbao</translation></message>
<message><source>red exclamation mark</source><translation>punto esclamativo rosso</translation></message>
<message><source>red heart</source><translation>cuore rosso</translation></message>
<message><source>red paper lantern</source><translation>lanterna rossa</translation></message>
<message><source>red question mark</source><translation>punto interrogativo rosso</translation></message>
<message><source>red square</source><translation>quadrato rosso</translation></message>
<message><source>red triangle pointed down</source><translation>triangolo rosso con punta verso il basso</translation></message>
<message><source>red triangle pointed up</source><translation>triangolo rosso con punta verso l’alto</translation></message>
<message><source>regal</source><translation>regale</translation></message>
<message><source>registered</source><translation>marchio registrato</translation></message>
<message><source>reincarnation</source><translation>reincarnazione</translation></message>
<message><source>reinvent</source><translation>reinventarsi</translation></message>
<message><source>relationship</source><translation>coppia con cuore</translation></message>
<message><source>relax</source><translation>relax</translation></message>
<message><source>relieved face</source><translation>faccina sollevata</translation></message>
<message><source>religion</source><translation>religione</translation></message>
<message><source>reminder ribbon</source><translation>nastro</translation></message>
<message><source>repeat</source><translation>frecce senso orario</translation></message>
<message><source>repeat button</source><translation>pulsante di ripetizione della riproduzione</translation></message>
<message><source>repeat single button</source><translation>pulsante di ripetizione della riproduzione di una traccia</translation></message>
<message><source>repercussion</source><translation>ripercussione</translation></message>
<message><source>reptile</source><translation>rettile</translation></message>
<message><source>rescue</source><translation>salvataggio</translation></message>
<message><source>rescue worker’s helmet</source><translation>elmetto con croce bianca</translation></message>
<message><source>resist</source><translation>resistere</translation></message>
<message><source>restroom</source><translation>simbolo dei servizi igienici</translation></message>
<message><source>reverse button</source><translation>pulsante di riavvolgimento</translation></message>
<message><source>revolver</source><translation>revolver</translation></message>
<message><source>revolving hearts</source><translation>cuori che girano</translation></message>
<message><source>rhinoceros</source><translation>rinoceronte</translation></message>
<message><source>ribbon</source><translation>fiocco</translation></message>
<message><source>rice</source><translation>riso</translation></message>
<message><source>rice ball</source><translation>onigiri</translation></message>
<message><source>rice cracker</source><translation>galletta di riso</translation></message>
<message><source>rich</source><translation>ricco</translation></message>
<message><source>right</source><translation>destra</translation></message>
<message><source>right anger bubble</source><translation>nuvoletta rabbia</translation></message>
<message><source>right arrow</source><translation>freccia rivolta verso destra</translation></message>
<message><source>right arrow curving down</source><translation>freccia curva in basso</translation></message>
<message><source>right arrow curving left</source><translation>freccia curva a sinistra</translation></message>
<message><source>right arrow curving up</source><translation>freccia curva in alto</translation></message>
<message><source>right-facing fist</source><translation>pugno a destra</translation></message>
<message><source>rightwards hand</source><translation>mano rivolta a destra</translation></message>
<message><source>rightwards pushing hand</source><translation>mano che spinge a destra</translation></message>
<message><source>ring</source><translation>anello</translation></message>
<message><source>ring buoy</source><translation>salvagente</translation></message>
<message><source>ringed planet</source><translation>pianeta con satellite</translation></message>
<message><source>roasted sweet potato</source><translation>patata dolce arrosto</translation></message>
<message><source>robot</source><translation>faccina di robot</translation></message>
<message><source>rock</source><translation>roccia</translation></message>
<message><source>rocket</source><translation>razzo</translation></message>
<message><source>rockstar</source><translation>rock star</translation></message>
<message><source>roflmao</source><translation>rofl</translation></message>
<message><source>roll of paper</source><translation>rotolo di carta igienica</translation></message>
<message><source>rolled-up newspaper</source><translation>quotidiano arrotolato</translation></message>
<message><source>roller</source><translation>trolley</translation></message>
<message><source>roller coaster</source><translation>montagne russe</translation></message>
<message><source>roller skate</source><translation>pattini a rotelle</translation></message>
<message><source>rolling on the floor laughing</source><translation>ridere a crepapelle</translation></message>
<message><source>romance</source><translation>romantico</translation></message>
<message><source>rooster</source><translation>gallo</translation></message>
<message><source>root vegetable</source><translation>ortaggio da radice</translation></message>
<message><source>rose</source><translation>rosa</translation></message>
<message><source>rosette</source><translation>rosetta</translation></message>
<message><source>round pushpin</source><translation>puntina arrotondata</translation></message>
<message><source>rugby</source><translation>rugby</translation></message>
<message><source>rugby football</source><translation>pallone da rugby</translation></message>
<message><source>running</source><translation>correre</translation></message>
<message><source>running shirt</source><translation>maglia da corsa</translation></message>
<message><source>running shoe</source><translation>scarpa sportiva</translation></message>
<message><source>russia</source><translation>russia</translation></message>
<message><source>sad</source><translation>triste</translation></message>
<message><source>sad but relieved face</source><translation>faccina delusa ma sollevata</translation></message>
<message><source>safety pin</source><translation>spilla da balia</translation></message>
<message><source>safety vest</source><translation>gilet di sicurezza</translation></message>
<message><source>sailboat</source><translation>barca a vela</translation></message>
<message><source>sake</source><translation>sakè</translation></message>
<message><source>salt</source><translation>sale</translation></message>
<message><source>salute</source><translation>saluto</translation></message>
<message><source>saluting face</source><translation>faccina che fa il saluto</translation></message>
<message><source>sandal</source><translation>sandalo</translation></message>
<message><source>sandals</source><translation>sandali</translation></message>
<message><source>sandwich</source><translation>sandwich</translation></message>
<message><source>sarcastic</source><translation>sarcastico</translation></message>
<message><source>sari</source><translation>sari</translation></message>
<message><source>satellite</source><translation>satellite</translation></message>
<message><source>satellite antenna</source><translation>antenna satellitare</translation></message>
<message><source>sauna</source><translation>sauna</translation></message>
<message><source>sauropod</source><translation>sauropode</translation></message>
<message><source>save</source><translation>salvare</translation></message>
<message><source>saxophone</source><translation>sassofono</translation></message>
<message><source>scale</source><translation>scalatore</translation></message>
<message><source>scarf</source><translation>sciarpa</translation></message>
<message><source>scary</source><translation>paura</translation></message>
<message><source>school</source><translation>scuola</translation></message>
<message><source>science</source><translation>scienza</translation></message>
<message><source>scientist</source><translation>persona che lavora in campo scientifico</translation></message>
<message><source>scissors</source><translation>forbici</translation></message>
<message><source>scooter</source><translation>scooter</translation></message>
<message><source>scorpion</source><translation>scorpione</translation></message>
<message><source>scorpius</source><translation>scorpione</translation></message>
<message><source>screwdriver</source><translation>cacciavite</translation></message>
<message><source>scroll</source><translation>pergamena</translation></message>
<message><source>scuba</source><translation>immersioni</translation></message>
<message><source>seal</source><translation>foca</translation></message>
<message><source>seat</source><translation>sedile</translation></message>
<message><source>secret</source><translation>segreto</translation></message>
<message><source>see-no-evil monkey</source><translation>non vedo</translation></message>
<message><source>seedling</source><translation>germoglio</translation></message>
<message><source>selfie</source><translation>selfie</translation></message>
<message><source>serenity</source><translation>serenità</translation></message>
<message><source>service dog</source><translation>cane da assistenza</translation></message>
<message><source>seven o’clock</source><translation>ore sette</translation></message>
<message><source>seven-thirty</source><translation>ore sette e mezza</translation></message>
<message><source>sewing needle</source><translation>ago da cucito</translation></message>
<message><source>sexy</source><translation>sexy</translation></message>
<message><source>shaking face</source><translation>faccina tremante</translation></message>
<message><source>shallow pan of food</source><translation>padella con cibo</translation></message>
<message><source>shampoo</source><translation>shampoo</translation></message>
<message><source>shamrock</source><translation>trifoglio</translation></message>
<message><source>shark</source><translation>squalo</translation></message>
<message><source>shaved ice</source><translation>granita</translation></message>
<message><source>sheaf of rice</source><translation>pianta di riso</translation></message>
<message><source>sheep</source><translation>montone</translation></message>
<message><source>shield</source><translation>scudo</translation></message>
<message><source>shinto shrine</source><translation>santuario shintoista</translation></message>
<message><source>ship</source><translation>nave</translation></message>
<message><source>shirt</source><translation>t-shirt</translation></message>
<message><source>shock</source><translation>shock</translation></message>
<message><source>shocked</source><translation>scioccato</translation></message>
<message><source>shoe</source><translation>scarpa</translation></message>
<message><source>shooting star</source><translation>stella cadente</translation></message>
<message><source>shopping</source><translation>shopping</translation></message>
<message><source>shopping bags</source><translation>borse della spesa</translation></message>
<message><source>shopping cart</source><translation>carrello</translation></message>
<message><source>shortcake</source><translation>fetta di torta</translation></message>
<message><source>shorts</source><translation>pantaloncini</translation></message>
<message><source>shovel</source><translation>vanga</translation></message>
<message><source>shower</source><translation>doccia</translation></message>
<message><source>shrimp</source><translation>gamberetto</translation></message>
<message><source>shuffle</source><translation>shuffle</translation></message>
<message><source>shuffle tracks button</source><translation>pulsante di riproduzione casuale</translation></message>
<message><source>shushing face</source><translation>faccina che zittisce</translation></message>
<message><source>sick</source><translation>malato</translation></message>
<message><source>sign of the horns</source><translation>segno delle corna</translation></message>
<message><source>silent</source><translation>silenzio</translation></message>
<message><source>silhouette</source><translation>silhouette</translation></message>
<message><source>silver</source><translation>argento</translation></message>
<message><source>singer</source><translation>cantante</translation></message>
<message><source>siren</source><translation>sirena</translation></message>
<message><source>six o’clock</source><translation>ore sei</translation></message>
<message><source>six-thirty</source><translation>ore sei e mezza</translation></message>
<message><source>skateboard</source><translation>skateboard</translation></message>
<message><source>skeleton</source><translation>scheletro</translation></message>
<message><source>skepticism</source><translation>scetticismo</translation></message>
<message><source>ski</source><translation>sci</translation></message>
<message><source>skier</source><translation>sciatore</translation></message>
<message><source>skis</source><translation>sci</translation></message>
<message><source>skull</source><translation>teschio</translation></message>
<message><source>skull and crossbones</source><translation>teschio con ossa incrociate</translation></message>
<message><source>skunk</source><translation>puzzola</translation></message>
<message><source>skydive</source><translation>skydiving</translation></message>
<message><source>sled</source><translation>slitta</translation></message>
<message><source>sleep</source><translation>sonno</translation></message>
<message><source>sleeping face</source><translation>faccina che dorme</translation></message>
<message><source>sleepy</source><translation>assonnato</translation></message>
<message><source>sleepy face</source><translation>faccina assonnata</translation></message>
<message><source>slice</source><translation>fetta</translation></message>
<message><source>slightly frowning face</source><translation>faccina leggermente imbronciata</translation></message>
<message><source>slightly smiling face</source><translation>faccina con sorriso accennato</translation></message>
<message><source>slot machine</source><translation>slot machine</translation></message>
<message><source>sloth</source><translation>bradipo</translation></message>
<message><source>slurp</source><translation>slurp</translation></message>
<message><source>small airplane</source><translation>aereo turistico</translation></message>
<message><source>small blue diamond</source><translation>rombo blu piccolo</translation></message>
<message><source>small orange diamond</source><translation>rombo arancione piccolo</translation></message>
<message><source>smiling</source><translation>sorriso</translation></message>
<message><source>smiling cat with heart-eyes</source><translation>gatto innamorato</translation></message>
<message><source>smiling face</source><translation>faccina sorridente</translation></message>
<message><source>smiling face with halo</source><translation>faccina con sorriso e aureola</translation></message>
<message><source>smiling face with heart-eyes</source><translation>faccina con sorriso e occhi a cuore</translation></message>
<message><source>smiling face with hearts</source><translation>faccina con cuoricini</translation></message>
<message><source>smiling face with horns</source><translation>faccina con sorriso e corna</translation></message>
<message><source>smiling face with open hands</source><translation>faccina che abbraccia</translation></message>
<message><source>smiling face with smiling eyes</source><translation>faccina con occhi sorridenti</translation></message>
<message><source>smiling face with sunglasses</source><translation>faccina con sorriso e occhiali da sole</translation></message>
<message><source>smiling face with tear</source><translation>faccina sorridente con lacrima</translation></message>
<message><source>smirking face</source><translation>faccina con sorrisetto</translation></message>
<message><source>smoke</source><translation>fumo</translation></message>
<message><source>smoking</source><translation>fumare</translation></message>
<message><source>snail</source><translation>lumaca</translation></message>
<message><source>snake</source><translation>serpente</translation></message>
<message><source>sneaker</source><translation>sneaker</translation></message>
<message><source>sneezing face</source><translation>faccina che starnutisce</translation></message>
<message><source>snorkeling</source><translation>snorkeling</translation></message>
<message><source>snow</source><translation>neve</translation></message>
<message><source>snow-capped mountain</source><translation>montagna innevata</translation></message>
<message><source>snowboarder</source><translation>persona sullo snowboard</translation></message>
<message><source>snowflake</source><translation>fiocco di neve</translation></message>
<message><source>snowman</source><translation>pupazzo di neve</translation></message>
<message><source>snowman without snow</source><translation>pupazzo di neve senza neve</translation></message>
<message><source>soap</source><translation>sapone</translation></message>
<message><source>soccer ball</source><translation>pallone da calcio</translation></message>
<message><source>socks</source><translation>calzini</translation></message>
<message><source>soft ice cream</source><translation>cono gelato</translation></message>
<message><source>softball</source><translation>palla da softball</translation></message>
<message><source>software</source><translation>software</translation></message>
<message><source>solid</source><translation>solido</translation></message>
<message><source>solidarity</source><translation>solidarietà</translation></message>
<message><source>sound</source><translation>suono</translation></message>
<message><source>sour</source><translation>limone</translation></message>
<message><source>space</source><translation>notte</translation></message>
<message><source>spade suit</source><translation>picche</translation></message>
<message><source>spaghetti</source><translation>spaghetti</translation></message>
<message><source>sparkle</source><translation>scintilla stilizzata</translation></message>
<message><source>sparkler</source><translation>stellina scintillante</translation></message>
<message><source>sparkles</source><translation>stelline</translation></message>
<message><source>sparkling heart</source><translation>cuore che luccica</translation></message>
<message><source>speak-no-evil monkey</source><translation>non parlo</translation></message>
<message><source>speaker</source><translation>speaker</translation></message>
<message><source>speaker high volume</source><translation>altoparlante a volume alto</translation></message>
<message><source>speaker low volume</source><translation>altoparlante a volume basso</translation></message>
<message><source>speaker medium volume</source><translation>altoparlante a volume intermedio</translation></message>
<message><source>speaking head</source><translation>persona che parla</translation></message>
<message><source>speech</source><translation>nuvoletta</translation></message>
<message><source>speech balloon</source><translation>fumetto</translation></message>
<message><source>speedboat</source><translation>motoscafo</translation></message>
<message><source>spider</source><translation>ragno</translation></message>
<message><source>spider web</source><translation>ragnatela</translation></message>
<message><source>spill</source><translation>rovesciare</translation></message>
<message><source>spinning</source><translation>spinning</translation></message>
<message><source>spiny</source><translation>spine</translation></message>
<message><source>spiral calendar</source><translation>calendario a spirale</translation></message>
<message><source>spiral notepad</source><translation>blocco per appunti con spirale</translation></message>
<message><source>spiral shell</source><translation>conchiglia</translation></message>
<message><source>spirit</source><translation>spirito</translation></message>
<message><source>splatter</source><translation>spruzzo</translation></message>
<message><source>sponge</source><translation>spugna</translation></message>
<message><source>spoon</source><translation>cucchiaio</translation></message>
<message><source>sport utility vehicle</source><translation>SUV</translation></message>
<message><source>sports medal</source><translation>medaglia sportiva</translation></message>
<message><source>spouting whale</source><translation>balena che spruzza acqua</translation></message>
<message><source>spring</source><translation>primavera</translation></message>
<message><source>square</source><translation>quadrato</translation></message>
<message><source>squid</source><translation>calamaro</translation></message>
<message><source>squinting face with tongue</source><translation>faccina che strizza gli occhi e mostra la lingua</translation></message>
<message><source>stadium</source><translation>stadio</translation></message>
<message><source>star</source><translation>stella</translation></message>
<message><source>star and crescent</source><translation>mezzaluna e stella</translation></message>
<message><source>star of David</source><translation>stella di David</translation></message>
<message><source>star-struck</source><translation>colpo di fulmine</translation></message>
<message><source>stare</source><translation>spiare</translation></message>
<message><source>station</source><translation>stazione</translation></message>
<message><source>statue</source><translation>statua</translation></message>
<message><source>steaming bowl</source><translation>ciotola fumante</translation></message>
<message><source>stethoscope</source><translation>stetoscopio</translation></message>
<message><source>stiletto</source><translation>stiletto</translation></message>
<message><source>stink</source><translation>puzza</translation></message>
<message><source>stop</source><translation>stop</translation></message>
<message><source>stop button</source><translation>pulsante stop</translation></message>
<message><source>stop sign</source><translation>segnale di stop</translation></message>
<message><source>stopwatch</source><translation>cronometro</translation></message>
<message><source>straight ruler</source><translation>righello</translation></message>
<message><source>strawberry</source><translation>fragola</translation></message>
<message><source>stressed</source><translation>stressato</translation></message>
<message><source>stripe</source><translation>strisce</translation></message>
<message><source>strong</source><translation>forte</translation></message>
<message><source>student</source><translation>studente</translation></message>
<message><source>studio</source><translation>studio</translation></message>
<message><source>studio microphone</source><translation>microfono radiofonico</translation></message>
<message><source>stuffed flatbread</source><translation>pita farcita</translation></message>
<message><source>sun</source><translation>sole</translation></message>
<message><source>sun behind cloud</source><translation>sole coperto</translation></message>
<message><source>sun behind large cloud</source><translation>molto nuvoloso</translation></message>
<message><source>sun behind rain cloud</source><translation>sole coperto e pioggia</translation></message>
<message><source>sun behind small cloud</source><translation>parzialmente nuvoloso</translation></message>
<message><source>sun with face</source><translation>faccina sole</translation></message>
<message><source>sunflower</source><translation>girasole</translation></message>
<message><source>sunglasses</source><translation>occhiali da sole</translation></message>
<message><source>sunrise</source><translation>alba</translation></message>
<message><source>sunrise over mountains</source><translation>alba sulle montagne</translation></message>
<message><source>sunset</source><translation>tramonto</translation></message>
<message><source>superhero</source><translation>supereroe</translation></message>
<message><source>supernatural</source><translation>supernaturale</translation></message>
<message><source>superpower</source><translation>supereroe</translation></message>
<message><source>supervillain</source><translation>supercattivo</translation></message>
<message><source>surprise</source><translation>sorpresa</translation></message>
<message><source>surprised</source><translation>wow</translation></message>
<message><source>sushi</source><translation>sushi</translation></message>
<message><source>suspension railway</source><translation>ferrovia sospesa</translation></message>
<message><source>sutures</source><translation>suture</translation></message>
<message><source>swan</source><translation>cigno</translation></message>
<message><source>sweat</source><translation>sudore</translation></message>
<message><source>sweat droplets</source><translation>gocce di sudore</translation></message>
<message><source>sweet</source><translation>dolce</translation></message>
<message><source>symbols</source><translation>simboli</translation></message>
<message><source>synagogue</source><translation>sinagoga</translation></message>
<message><source>syringe</source><translation>siringa</translation></message>
<message><source>t-shirt</source><translation>t-shirt</translation></message>
<message><source>taco</source><translation>taco</translation></message>
<message><source>taekwondo</source><translation>taekwondo</translation></message>
<message><source>takeout box</source><translation>confezione da asporto</translation></message>
<message><source>talisman</source><translation>talismano</translation></message>
<message><source>tamale</source><translation>tamale</translation></message>
<message><source>tanabata tree</source><translation>albero di Tanabata</translation></message>
<message><source>tangerine</source><translation>mandarino</translation></message>
<message><source>tango</source><translation>tango</translation></message>
<message><source>taoist</source><translation>Taoismo</translation></message>
<message><source>target</source><translation>target</translation></message>
<message><source>taxi</source><translation>taxi</translation></message>
<message><source>tea</source><translation>thè</translation></message>
<message><source>teacher</source><translation>insegnante</translation></message>
<message><source>teacup without handle</source><translation>tazza da tè senza manico</translation></message>
<message><source>teapot</source><translation>teiera</translation></message>
<message><source>tear</source><translation>lacrima</translation></message>
<message><source>tear-off calendar</source><translation>calendario a strappo</translation></message>
<message><source>technologist</source><translation>persona esperta di tecnologia</translation></message>
<message><source>teddy bear</source><translation>orsetto</translation></message>
<message><source>teeth</source><translation>denti</translation></message>
<message><source>telephone</source><translation>telefono fisso</translation></message>
<message><source>telephone receiver</source><translation>cornetta</translation></message>
<message><source>telescope</source><translation>telescopio</translation></message>
<message><source>television</source><translation>televisore</translation></message>
<message><source>tempura</source><translation>tempura</translation></message>
<message><source>ten o’clock</source><translation>ore dieci</translation></message>
<message><source>ten-thirty</source><translation>ore dieci e mezza</translation></message>
<message><source>tennis</source><translation>tennis</translation></message>
<message><source>tension</source><translation>tensione</translation></message>
<message><source>tent</source><translation>tenda</translation></message>
<message><source>tequila</source><translation>tequila</translation></message>
<message><source>test tube</source><translation>provetta</translation></message>
<message><source>thanksgiving</source><translation>Thanksgiving</translation></message>
<message><source>therapist</source><translation>terapista</translation></message>
<message><source>thermometer</source><translation>termometro</translation></message>
<message><source>thinking face</source><translation>faccina concentrata</translation></message>
<message><source>thong sandal</source><translation>infradito</translation></message>
<message><source>thought balloon</source><translation>nuvoletta</translation></message>
<message><source>thread</source><translation>filo</translation></message>
<message><source>three o’clock</source><translation>ore tre</translation></message>
<message><source>three-thirty</source><translation>ore tre e mezza</translation></message>
<message><source>thumbs down</source><translation>pollice verso</translation></message>
<message><source>thumbs up</source><translation>pollice in su</translation></message>
<message><source>ticket</source><translation>biglietto</translation></message>
<message><source>tickets</source><translation>ticket</translation></message>
<message><source>tiger</source><translation>tigre</translation></message>
<message><source>tiger face</source><translation>muso di tigre</translation></message>
<message><source>time</source><translation>ora</translation></message>
<message><source>timer</source><translation>timer</translation></message>
<message><source>timer clock</source><translation>timer</translation></message>
<message><source>tired</source><translation>stanco</translation></message>
<message><source>tired face</source><translation>faccina stanca</translation></message>
<message><source>toast</source><translation>toast</translation></message>
<message><source>toboggan</source><translation>toboggan</translation></message>
<message><source>toilet</source><translation>toilette</translation></message>
<message><source>tomato</source><translation>pomodoro</translation></message>
<message><source>tomb</source><translation>tomba</translation></message>
<message><source>tongue</source><translation>lingua</translation></message>
<message><source>toolbox</source><translation>cassetta degli attrezzi</translation></message>
<message><source>tooth</source><translation>dente</translation></message>
<message><source>toothbrush</source><translation>spazzolino da denti</translation></message>
<message><source>top hat</source><translation>cilindro</translation></message>
<message><source>torch</source><translation>torcia</translation></message>
<message><source>tornado</source><translation>tornado</translation></message>
<message><source>toy</source><translation>giocattolo</translation></message>
<message><source>trackball</source><translation>trackball</translation></message>
<message><source>tractor</source><translation>trattore</translation></message>
<message><source>trade mark</source><translation>marchio</translation></message>
<message><source>traffic</source><translation>traffico</translation></message>
<message><source>train</source><translation>treno</translation></message>
<message><source>tram</source><translation>tram</translation></message>
<message><source>tram car</source><translation>vagone del tram</translation></message>
<message><source>transgender</source><translation>transgender</translation></message>
<message><source>transgender flag</source><translation>bandiera transgender</translation></message>
<message><source>transgender symbol</source><translation>simbolo transgender</translation></message>
<message><source>transparent</source><translation>trasparente</translation></message>
<message><source>tray</source><translation>vaschetta</translation></message>
<message><source>tree</source><translation>albero</translation></message>
<message><source>trend</source><translation>trend</translation></message>
<message><source>triangle</source><translation>triangolo</translation></message>
<message><source>triangular flag</source><translation>bandierina rossa</translation></message>
<message><source>triangular ruler</source><translation>squadra</translation></message>
<message><source>trident</source><translation>tridente</translation></message>
<message><source>trident emblem</source><translation>tridente</translation></message>
<message><source>troll</source><translation>troll</translation></message>
<message><source>trolleybus</source><translation>filobus</translation></message>
<message><source>trophy</source><translation>coppa</translation></message>
<message><source>tropical</source><translation>tropicale</translation></message>
<message><source>tropical drink</source><translation>cocktail tropicale</translation></message>
<message><source>tropical fish</source><translation>pesce tropicale</translation></message>
<message><source>trumpet</source><translation>tromba</translation></message>
<message><source>tulip</source><translation>tulipano</translation></message>
<message><source>tumbler</source><translation>tumbler</translation></message>
<message><source>tumbler glass</source><translation>bicchiere tumbler</translation></message>
<message><source>turban</source><translation>turbante</translation></message>
<message><source>turkey</source><translation>tacchino</translation></message>
<message><source>turtle</source><translation>tartaruga</translation></message>
<message><source>twelve o’clock</source><translation>ore dodici</translation></message>
<message><source>twelve-thirty</source><translation>ore dodici e mezza</translation></message>
<message><source>two hearts</source><translation>due cuori</translation></message>
<message><source>two o’clock</source><translation>ore due</translation></message>
<message><source>two-hump camel</source><translation>cammello</translation></message>
<message><source>two-thirty</source><translation>ore due e mezza</translation></message>
<message><source>ufo</source><translation>UFO</translation></message>
<message><source>umbrella</source><translation>ombrello</translation></message>
<message><source>umbrella on ground</source><translation>ombrellone</translation></message>
<message><source>umbrella with rain drops</source><translation>ombrello con gocce di pioggia</translation></message>
<message><source>unamused face</source><translation>faccina contrariata</translation></message>
<message><source>undead</source><translation>morto vivente</translation></message>
<message><source>unicorn</source><translation>unicorno</translation></message>
<message><source>uniform</source><translation>uniforme</translation></message>
<message><source>unimpressed</source><translation>neutro</translation></message>
<message><source>universal</source><translation>universale</translation></message>
<message><source>unlocked</source><translation>lucchetto aperto</translation></message>
<message><source>up arrow</source><translation>freccia rivolta verso l’alto</translation></message>
<message><source>up-down arrow</source><translation>freccia su-giù</translation></message>
<message><source>up-left arrow</source><translation>freccia in alto a sinistra</translation></message>
<message><source>up-right arrow</source><translation>freccia rivolta verso destra che punta in alto</translation></message>
<message><source>upside-down face</source><translation>faccina sottosopra</translation></message>
<message><source>upwards button</source><translation>pulsante a triangolo rivolto verso l’alto</translation></message>
<message><source>utility</source><translation>utilitaria</translation></message>
<message><source>valentine</source><translation>san valentino</translation></message>
<message><source>vampire</source><translation>vampiro</translation></message>
<message><source>vegetarian</source><translation>vegetariano</translation></message>
<message><source>vehicle</source><translation>veicolo</translation></message>
<message><source>veil</source><translation>velo</translation></message>
<message><source>versus</source><translation>versus</translation></message>
<message><source>vertical</source><translation>verticale</translation></message>
<message><source>vertical traffic light</source><translation>semaforo verticale</translation></message>
<message><source>vibrate</source><translation>vibrazione</translation></message>
<message><source>vibration mode</source><translation>modalità vibrazione</translation></message>
<message><source>victory</source><translation>vincitore</translation></message>
<message><source>victory hand</source><translation>vittoria</translation></message>
<message><source>vicuña</source><translation>vicuña</translation></message>
<message><source>video</source><translation>video</translation></message>
<message><source>video camera</source><translation>videocamera</translation></message>
<message><source>video game</source><translation>gamepad</translation></message>
<message><source>videocassette</source><translation>videocassetta</translation></message>
<message><source>videogame</source><translation>videogame</translation></message>
<message><source>violin</source><translation>violino</translation></message>
<message><source>virus</source><translation>virus</translation></message>
<message><source>volcano</source><translation>vulcano</translation></message>
<message><source>volleyball</source><translation>palla da pallavolo</translation></message>
<message><source>volume</source><translation>megafono</translation></message>
<message><source>vomit</source><translation>vomito</translation></message>
<message><source>vulcan salute</source><translation>saluto vulcaniano</translation></message>
<message><source>waffle</source><translation>waffle</translation></message>
<message><source>walk</source><translation>camminare</translation></message>
<message><source>waning crescent moon</source><translation>luna calante</translation></message>
<message><source>waning gibbous moon</source><translation>luna gibbosa calante</translation></message>
<message><source>warning</source><translation>simbolo di avviso</translation></message>
<message><source>wastebasket</source><translation>cestino</translation></message>
<message><source>watch</source><translation>orologio</translation></message>
<message><source>water</source><translation>acqua</translation></message>
<message><source>water buffalo</source><translation>bufalo d’acqua</translation></message>
<message><source>water closet</source><translation>simbolo del WC</translation></message>
<message><source>water pistol</source><translation>pistola ad acqua</translation></message>
<message><source>water wave</source><translation>onda</translation></message>
<message><source>watermelon</source><translation>anguria</translation></message>
<message><source>waving</source><translation>bandiera che sventola</translation></message>
<message><source>waving hand</source><translation>mano che saluta</translation></message>
<message><source>wavy dash</source><translation>trattino ondulato</translation></message>
<message><source>waxing crescent moon</source><translation>luna crescente</translation></message>
<message><source>waxing gibbous moon</source><translation>luna gibbosa crescente</translation></message>
<message><source>weapon</source><translation>arma</translation></message>
<message><source>weary cat</source><translation>gatto esterrefatto</translation></message>
<message><source>weary face</source><translation>faccina esausta</translation></message>
<message><source>weather</source><translation>meteo</translation></message>
<message><source>wedding</source><translation>chiesa per matrimonio</translation></message>
<message><source>whale</source><translation>balena</translation></message>
<message><source>wheel</source><translation>ruota</translation></message>
<message><source>wheel of dharma</source><translation>ruota del Dharma</translation></message>
<message><source>wheelchair</source><translation>sedia a rotelle</translation></message>
<message><source>wheelchair symbol</source><translation>simbolo della disabilità</translation></message>
<message><source>white cane</source><translation>bastone per non vedenti</translation></message>
<message><source>white circle</source><translation>cerchio bianco</translation></message>
<message><source>white exclamation mark</source><translation>punto esclamativo bianco</translation></message>
<message><source>white flag</source><translation>bandiera bianca</translation></message>
<message><source>white flower</source><translation>fiore bianco</translation></message>
<message><source>white heart</source><translation>cuore bianco</translation></message>
<message><source>white large square</source><translation>quadrato bianco grande</translation></message>
<message><source>white medium square</source><translation>quadrato bianco medio</translation></message>
<message><source>white medium-small square</source><translation>quadrato bianco medio-piccolo</translation></message>
<message><source>white question mark</source><translation>punto interrogativo bianco</translation></message>
<message><source>white small square</source><translation>quadrato bianco piccolo</translation></message>
<message><source>white square button</source><translation>tasto quadrato nero con bordo bianco</translation></message>
<message><source>whoops</source><translation>oops</translation></message>
<message><source>wilted flower</source><translation>fiore appassito</translation></message>
<message><source>wind</source><translation>vento</translation></message>
<message><source>wind chime</source><translation>campana al vento</translation></message>
<message><source>wind face</source><translation>vento</translation></message>
<message><source>window</source><translation>finestra</translation></message>
<message><source>wine glass</source><translation>bicchiere di vino</translation></message>
<message><source>wing</source><translation>ala</translation></message>
<message><source>winking face</source><translation>faccina che fa l’occhiolino</translation></message>
<message><source>winking face with tongue</source><translation>faccina che fa l’occhiolino e mostra la lingua</translation></message>
<message><source>wireless</source><translation>wireless</translation></message>
<message><source>witch</source><translation>strega</translation></message>
<message><source>wolf</source><translation>lupo</translation></message>
<message><source>woman</source><translation>donna</translation></message>
<message><source>woman and man holding hands</source><translation>uomo e donna che si tengono per mano</translation></message>
<message><source>woman artist</source><translation>artista donna</translation></message>
<message><source>woman astronaut</source><translation>astronauta donna</translation></message>
<message><source>woman biking</source><translation>ciclista donna</translation></message>
<message><source>woman bouncing ball</source><translation>donna che fa rimbalzare una palla</translation></message>
<message><source>woman bowing</source><translation>donna che fa inchino profondo</translation></message>
<message><source>woman cartwheeling</source><translation>donna che fa la ruota</translation></message>
<message><source>woman climbing</source><translation>scalatrice</translation></message>
<message><source>woman construction worker</source><translation>operaia edile</translation></message>
<message><source>woman cook</source><translation>cuoca</translation></message>
<message><source>woman dancing</source><translation>donna che balla</translation></message>
<message><source>woman detective</source><translation>investigatrice</translation></message>
<message><source>woman elf</source><translation>elfo donna</translation></message>
<message><source>woman facepalming</source><translation>donna esasperata</translation></message>
<message><source>woman factory worker</source><translation>operaia</translation></message>
<message><source>woman fairy</source><translation>fata donna</translation></message>
<message><source>woman farmer</source><translation>contadina</translation></message>
<message><source>woman feeding baby</source><translation>donna che allatta</translation></message>
<message><source>woman firefighter</source><translation>pompiere donna</translation></message>
<message><source>woman frowning</source><translation>donna corrucciata</translation></message>
<message><source>woman genie</source><translation>genio donna</translation></message>
<message><source>woman gesturing NO</source><translation>donna con gesto di rifiuto</translation></message>
<message><source>woman gesturing OK</source><translation>donna con gesto OK</translation></message>
<message><source>woman getting haircut</source><translation>taglio di capelli per donna</translation></message>
<message><source>woman getting massage</source><translation>donna che riceve un massaggio</translation></message>
<message><source>woman golfing</source><translation>golfista donna</translation></message>
<message><source>woman guard</source><translation>guardia donna</translation></message>
<message><source>woman health worker</source><translation>operatrice sanitaria</translation></message>
<message><source>woman in lotus position</source><translation>donna in posizione del loto</translation></message>
<message><source>woman in manual wheelchair</source><translation>donna su sedia a rotelle manuale</translation></message>
<message><source>woman in manual wheelchair: facing right</source><translation>donna su sedia a rotelle manuale: a destra</translation></message>
<message><source>woman in motorized wheelchair</source><translation>donna su sedia a rotelle motorizzata</translation></message>
<message><source>woman in motorized wheelchair: facing right</source><translation>donna su sedia a rotelle motorizzata: a destra</translation></message>
<message><source>woman in steamy room</source><translation>donna in sauna</translation></message>
<message><source>woman in tuxedo</source><translation>donna in smoking</translation></message>
<message><source>woman judge</source><translation>giudice donna</translation></message>
<message><source>woman juggling</source><translation>giocoliere donna</translation></message>
<message><source>woman kneeling</source><translation>donna inginocchiata</translation></message>
<message><source>woman kneeling: facing right</source><translation>donna inginocchiata: a destra</translation></message>
<message><source>woman lifting weights</source><translation>donna che solleva pesi</translation></message>
<message><source>woman mage</source><translation>maga</translation></message>
<message><source>woman mechanic</source><translation>meccanico donna</translation></message>
<message><source>woman mountain biking</source><translation>ciclista donna di mountain bike</translation></message>
<message><source>woman office worker</source><translation>impiegata</translation></message>
<message><source>woman pilot</source><translation>pilota donna</translation></message>
<message><source>woman playing handball</source><translation>pallamanista donna</translation></message>
<message><source>woman playing water polo</source><translation>pallanuotista donna</translation></message>
<message><source>woman police officer</source><translation>poliziotta</translation></message>
<message><source>woman pouting</source><translation>donna imbronciata</translation></message>
<message><source>woman raising hand</source><translation>donna con mano alzata</translation></message>
<message><source>woman rowing boat</source><translation>donna in barca a remi</translation></message>
<message><source>woman running</source><translation>donna che corre</translation></message>
<message><source>woman running: facing right</source><translation>donna che corre: a destra</translation></message>
<message><source>woman scientist</source><translation>scienziata</translation></message>
<message><source>woman shrugging</source><translation>donna che scrolla le spalle</translation></message>
<message><source>woman singer</source><translation>cantante donna</translation></message>
<message><source>woman standing</source><translation>donna in piedi</translation></message>
<message><source>woman student</source><translation>studentessa</translation></message>
<message><source>woman superhero</source><translation>supereroina</translation></message>
<message><source>woman supervillain</source><translation>supercattiva</translation></message>
<message><source>woman surfing</source><translation>surfista donna</translation></message>
<message><source>woman swimming</source><translation>nuotatrice</translation></message>
<message><source>woman teacher</source><translation>professoressa</translation></message>
<message><source>woman technologist</source><translation>tecnologa</translation></message>
<message><source>woman tipping hand</source><translation>donna con mano capovolta</translation></message>
<message><source>woman vampire</source><translation>vampira</translation></message>
<message><source>woman walking</source><translation>donna che cammina</translation></message>
<message><source>woman walking: facing right</source><translation>donna che cammina: a destra</translation></message>
<message><source>woman wearing turban</source><translation>donna con turbante</translation></message>
<message><source>woman with headscarf</source><translation>donna con velo</translation></message>
<message><source>woman with veil</source><translation>sposa con velo</translation></message>
<message><source>woman with white cane</source><translation>donna con bastone bianco di orientamento</translation></message>
<message><source>woman with white cane: facing right</source><translation>donna con bastone bianco di orientamento: a destra</translation></message>
<message><source>woman zombie</source><translation>zombie donna</translation></message>
<message><source>woman: bald</source><translation>donna: calvo</translation></message>
<message><source>woman: beard</source><translation>donna con la barba</translation></message>
<message><source>woman: blond hair</source><translation>donna bionda</translation></message>
<message><source>woman: curly hair</source><translation>donna: capelli ricci</translation></message>
<message><source>woman: red hair</source><translation>donna: capelli rossi</translation></message>
<message><source>woman: white hair</source><translation>donna: capelli bianchi</translation></message>
<message><source>woman’s boot</source><translation>stivale da donna</translation></message>
<message><source>woman’s clothes</source><translation>maglietta da donna</translation></message>
<message><source>woman’s hat</source><translation>cappello da donna</translation></message>
<message><source>woman’s sandal</source><translation>sandalo da donna</translation></message>
<message><source>women holding hands</source><translation>due donne che si tengono per mano</translation></message>
<message><source>women with bunny ears</source><translation>donne con orecchie da coniglio</translation></message>
<message><source>women wrestling</source><translation>lottatrici</translation></message>
<message><source>women’s room</source><translation>simbolo del bagno delle donne</translation></message>
<message><source>wood</source><translation>legna</translation></message>
<message><source>wool</source><translation>lana</translation></message>
<message><source>woozy</source><translation>vertigini</translation></message>
<message><source>woozy face</source><translation>faccina stordita</translation></message>
<message><source>workout</source><translation>allenamento</translation></message>
<message><source>world map</source><translation>mappa mondiale</translation></message>
<message><source>worm</source><translation>verme</translation></message>
<message><source>worried</source><translation>preoccupato</translation></message>
<message><source>worried face</source><translation>faccina preoccupata</translation></message>
<message><source>wrapped gift</source><translation>regalo</translation></message>
<message><source>wrench</source><translation>chiave inglese</translation></message>
<message><source>writing hand</source><translation>mano che scrive</translation></message>
<message><source>x-ray</source><translation>radiografia</translation></message>
<message><source>yacht</source><translation>yacht</translation></message>
<message><source>yarn</source><translation>gomitolo</translation></message>
<message><source>yawning face</source><translation>faccina che sbadiglia</translation></message>
<message><source>yellow circle</source><translation>cerchio giallo</translation></message>
<message><source>yellow heart</source><translation>cuore giallo</translation></message>
<message><source>yellow square</source><translation>quadrato giallo</translation></message>
<message><source>yen banknote</source><translation>banconota Yen</translation></message>
<message><source>yin yang</source><translation>Yin e Yang</translation></message>
<message><source>yinyang</source><translation>Yin e Yang</translation></message>
<message><source>yo-yo</source><translation>yo-yo</translation></message>
<message><source>yolo</source><translation>yolo</translation></message>
<message><source>young</source><translation>giovane</translation></message>
<message><source>zany face</source><translation>faccina impazzita</translation></message>
<message><source>zebra</source><translation>zebra</translation></message>
<message><source>zen</source><translation>zen</translation></message>
<message><source>zero</source><translation>zero</translation></message>
<message><source>zipper-mouth face</source><translation>faccina con bocca con cerniera</translation></message>
<message><source>zodiac</source><translation>zodiaco</translation></message>
<message><source>zombie</source><translation>zombie</translation></message>
</context>
</TS>
