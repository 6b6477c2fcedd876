<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context><name>EmojiLocalisation</name>
<message><source>*</source><translation>*</translation></message>
<message><source>10:00</source><translation>10:00 Uhr</translation></message>
<message><source>10:30</source><translation>10:30 Uhr</translation></message>
<message><source>11:00</source><translation>11:00 Uhr</translation></message>
<message><source>11:30</source><translation>11:30 Uhr</translation></message>
<message><source>12:00</source><translation>12:00 Uhr</translation></message>
<message><source>12:30</source><translation>12:30</translation></message>
<message><source>1st place medal</source><translation>Goldmedaille</translation></message>
<message><source>2nd place medal</source><translation>Silbermedaille</translation></message>
<message><source>3</source><translation>3</translation></message>
<message><source>3rd place medal</source><translation>Bronzemedaille</translation></message>
<message><source>4:30</source><translation>04:30</translation></message>
<message><source>5</source><translation>5</translation></message>
<message><source>5:00</source><translation>05:00</translation></message>
<message><source>5:30</source><translation>05:30</translation></message>
<message><source>?</source><translation>Fragezeichen</translation></message>
<message><source>A button (blood type)</source><translation>Großbuchstabe A in rotem Quadrat</translation></message>
<message><source>AB button (blood type)</source><translation>Großbuchstaben AB in rotem Quadrat</translation></message>
<message><source>ATM sign</source><translation>Symbol „Geldautomat“</translation></message>
<message><source>Aquarius</source><translation>Wassermann (Sternzeichen)</translation></message>
<message><source>Aries</source><translation>Widder (Sternzeichen)</translation></message>
<message><source>B button (blood type)</source><translation>Großbuchstabe B in rotem Quadrat</translation></message>
<message><source>BACK arrow</source><translation>BACK-Pfeil</translation></message>
<message><source>CL button</source><translation>Großbuchstaben CL in rotem Quadrat</translation></message>
<message><source>COOL button</source><translation>Wort „Cool“ in blauem Quadrat</translation></message>
<message><source>Cancer</source><translation>Krebs (Sternzeichen)</translation></message>
<message><source>Capricorn</source><translation>Steinbock (Sternzeichen)</translation></message>
<message><source>Christmas tree</source><translation>Weihnachtsbaum</translation></message>
<message><source>END arrow</source><translation>END-Pfeil</translation></message>
<message><source>FREE button</source><translation>Wort „Free“ in blauem Quadrat</translation></message>
<message><source>Gemini</source><translation>Zwillinge (Sternzeichen)</translation></message>
<message><source>ID button</source><translation>Großbuchstaben ID in lila Quadrat</translation></message>
<message><source>Japanese castle</source><translation>japanisches Schloss</translation></message>
<message><source>Japanese dolls</source><translation>japanische Puppen</translation></message>
<message><source>Japanese post office</source><translation>japanisches Postgebäude</translation></message>
<message><source>Japanese symbol for beginner</source><translation>japanisches Anfänger-Zeichen</translation></message>
<message><source>Japanese “acceptable” button</source><translation>Schriftzeichen für „akzeptieren“</translation></message>
<message><source>Japanese “application” button</source><translation>Schriftzeichen für „anwenden“</translation></message>
<message><source>Japanese “bargain” button</source><translation>Schriftzeichen für „Schnäppchen“</translation></message>
<message><source>Japanese “congratulations” button</source><translation>Schriftzeichen für „Gratulation“</translation></message>
<message><source>Japanese “discount” button</source><translation>Schriftzeichen für „Rabatt“</translation></message>
<message><source>Japanese “free of charge” button</source><translation>Schriftzeichen für „gratis“</translation></message>
<message><source>Japanese “here” button</source><translation>Schriftzeichen „koko“</translation></message>
<message><source>Japanese “monthly amount” button</source><translation>Schriftzeichen für „Monatsbetrag“</translation></message>
<message><source>Japanese “no vacancy” button</source><translation>Schriftzeichen für „Kein Zimmer frei“</translation></message>
<message><source>Japanese “not free of charge” button</source><translation>Schriftzeichen für „nicht gratis“</translation></message>
<message><source>Japanese “open for business” button</source><translation>Schriftzeichen für „Geöffnet“</translation></message>
<message><source>Japanese “passing grade” button</source><translation>Schriftzeichen für „Note zum Bestehen“</translation></message>
<message><source>Japanese “prohibited” button</source><translation>Schriftzeichen für „verbieten“</translation></message>
<message><source>Japanese “reserved” button</source><translation>Schriftzeichen für „reserviert“</translation></message>
<message><source>Japanese “secret” button</source><translation>Schriftzeichen für „Geheimnis“</translation></message>
<message><source>Japanese “service charge” button</source><translation>Schriftzeichen „sa“</translation></message>
<message><source>Japanese “vacancy” button</source><translation>Schriftzeichen für „Zimmer frei“</translation></message>
<message><source>Leo</source><translation>Löwe (Sternzeichen)</translation></message>
<message><source>Libra</source><translation>Waage (Sternzeichen)</translation></message>
<message><source>Mrs. Claus</source><translation>Weihnachtsfrau</translation></message>
<message><source>Mx Claus</source><translation>Weihnachtsperson</translation></message>
<message><source>NEW button</source><translation>Wort „New“ in blauem Quadrat</translation></message>
<message><source>NG button</source><translation>Großbuchstaben NG in blauem Quadrat</translation></message>
<message><source>O button (blood type)</source><translation>Großbuchstabe O in rotem Quadrat</translation></message>
<message><source>OK button</source><translation>Großbuchstaben OK in blauem Quadrat</translation></message>
<message><source>OK hand</source><translation>OK-Zeichen</translation></message>
<message><source>ON! arrow</source><translation>ON!-Pfeil</translation></message>
<message><source>Ophiuchus</source><translation>Schlangenträger</translation></message>
<message><source>P button</source><translation>Großbuchstabe P in blauem Quadrat</translation></message>
<message><source>Pisces</source><translation>Fische (Sternzeichen)</translation></message>
<message><source>SOON arrow</source><translation>SOON-Pfeil</translation></message>
<message><source>SOS button</source><translation>SOS-Zeichen</translation></message>
<message><source>Sagittarius</source><translation>Schütze (Sternzeichen)</translation></message>
<message><source>Santa Claus</source><translation>Weihnachtsmann</translation></message>
<message><source>Scorpio</source><translation>Skorpion (Sternzeichen)</translation></message>
<message><source>Statue of Liberty</source><translation>Freiheitsstatue</translation></message>
<message><source>T-Rex</source><translation>T-Rex</translation></message>
<message><source>TOP arrow</source><translation>TOP-Pfeil</translation></message>
<message><source>Taurus</source><translation>Stier (Sternzeichen)</translation></message>
<message><source>Tokyo tower</source><translation>Tokyo Tower</translation></message>
<message><source>UP! button</source><translation>Schriftzug „UP!“ im blauen Quadrat</translation></message>
<message><source>VS button</source><translation>Schriftzug VS in orangem Quadrat</translation></message>
<message><source>Virgo</source><translation>Jungfrau (Sternzeichen)</translation></message>
<message><source>ZZZ</source><translation>Schlafen</translation></message>
<message><source>abacus</source><translation>Abakus</translation></message>
<message><source>absolutely</source><translation>absolut</translation></message>
<message><source>absorbing</source><translation>absorbieren</translation></message>
<message><source>accessibility</source><translation>Barrierefreiheit</translation></message>
<message><source>accordion</source><translation>Akkordeon</translation></message>
<message><source>adhesive bandage</source><translation>Heftpflaster</translation></message>
<message><source>admission tickets</source><translation>Eintrittskarten</translation></message>
<message><source>adult</source><translation>erwachsen</translation></message>
<message><source>aerial tramway</source><translation>Bergseilbahn</translation></message>
<message><source>airplane</source><translation>Flugzeug</translation></message>
<message><source>airplane arrival</source><translation>Landung eines Flugzeugs</translation></message>
<message><source>airplane departure</source><translation>Abflug</translation></message>
<message><source>alarm clock</source><translation>Wecker</translation></message>
<message><source>alembic</source><translation>Destillierapparat</translation></message>
<message><source>alien</source><translation>Außerirdischer</translation></message>
<message><source>alien monster</source><translation>Computerspiel-Monster</translation></message>
<message><source>alphabet</source><translation>Alphabet</translation></message>
<message><source>ambulance</source><translation>Krankenwagen</translation></message>
<message><source>american</source><translation>Amerika</translation></message>
<message><source>american football</source><translation>Football</translation></message>
<message><source>amoeba</source><translation>Amöbe</translation></message>
<message><source>amphora</source><translation>Amphore</translation></message>
<message><source>amulet</source><translation>Amulett</translation></message>
<message><source>anatomical</source><translation>Anatomie</translation></message>
<message><source>anatomical heart</source><translation>Herz (Organ)</translation></message>
<message><source>anchor</source><translation>Anker</translation></message>
<message><source>angel</source><translation>Engel</translation></message>
<message><source>anger symbol</source><translation>Ärger</translation></message>
<message><source>angry</source><translation>wütend</translation></message>
<message><source>angry face</source><translation>verärgertes Gesicht</translation></message>
<message><source>angry face with horns</source><translation>wütendes Gesicht mit Hörnern</translation></message>
<message><source>anguished face</source><translation>qualvolles Gesicht</translation></message>
<message><source>animal</source><translation>Tier</translation></message>
<message><source>ant</source><translation>Ameise</translation></message>
<message><source>antenna</source><translation>Antenne</translation></message>
<message><source>antenna bars</source><translation>balkenförmige Signalstärkenanzeige</translation></message>
<message><source>anxious</source><translation>besorgt</translation></message>
<message><source>anxious face with sweat</source><translation>besorgtes Gesicht mit Schweißtropfen</translation></message>
<message><source>apocalypse</source><translation>Apokalypse</translation></message>
<message><source>architect</source><translation>Architekt(in)</translation></message>
<message><source>arepa</source><translation>Arepa</translation></message>
<message><source>arm</source><translation>Arm</translation></message>
<message><source>arrow</source><translation>Pfeil</translation></message>
<message><source>articulated lorry</source><translation>Sattelzug</translation></message>
<message><source>artist</source><translation>Künstler(in)</translation></message>
<message><source>artist palette</source><translation>Mischpalette</translation></message>
<message><source>ascend</source><translation>Asche</translation></message>
<message><source>assistance</source><translation>Assistenz</translation></message>
<message><source>astonished face</source><translation>erstauntes Gesicht</translation></message>
<message><source>astronaut</source><translation>Astronaut(in)</translation></message>
<message><source>astronomy</source><translation>astronomie</translation></message>
<message><source>atheist</source><translation>Atheist</translation></message>
<message><source>atom</source><translation>Atom</translation></message>
<message><source>atom symbol</source><translation>Atomzeichen</translation></message>
<message><source>aubergine</source><translation>Aubergine</translation></message>
<message><source>auto rickshaw</source><translation>Autorikscha</translation></message>
<message><source>automated</source><translation>Geldautomat</translation></message>
<message><source>automobile</source><translation>Auto</translation></message>
<message><source>avocado</source><translation>Avocado</translation></message>
<message><source>axe</source><translation>Axt</translation></message>
<message><source>baby</source><translation>Baby</translation></message>
<message><source>baby angel</source><translation>Putte</translation></message>
<message><source>baby bottle</source><translation>Babyflasche</translation></message>
<message><source>baby chick</source><translation>Küken</translation></message>
<message><source>baby symbol</source><translation>Symbol „Baby“</translation></message>
<message><source>backhand</source><translation>Handrückseite</translation></message>
<message><source>backhand index pointing down</source><translation>nach unten weisender Zeigefinger</translation></message>
<message><source>backhand index pointing left</source><translation>nach links weisender Zeigefinger</translation></message>
<message><source>backhand index pointing right</source><translation>nach rechts weisender Zeigefinger</translation></message>
<message><source>backhand index pointing up</source><translation>nach oben weisender Zeigefinger von hinten</translation></message>
<message><source>backpack</source><translation>Schulranzen</translation></message>
<message><source>bacon</source><translation>Bacon</translation></message>
<message><source>bacteria</source><translation>Bakterien</translation></message>
<message><source>badger</source><translation>Dachs</translation></message>
<message><source>badminton</source><translation>Badminton</translation></message>
<message><source>bag</source><translation>Tasche</translation></message>
<message><source>bagel</source><translation>Bagel</translation></message>
<message><source>baggage claim</source><translation>Gepäckausgabe</translation></message>
<message><source>baguette</source><translation>Baguette</translation></message>
<message><source>baguette bread</source><translation>Baguette</translation></message>
<message><source>bakery</source><translation>Bäckerei</translation></message>
<message><source>balance scale</source><translation>Waage</translation></message>
<message><source>ball</source><translation>Ball</translation></message>
<message><source>ballet</source><translation>Ballett</translation></message>
<message><source>ballet shoes</source><translation>Ballettschuhe</translation></message>
<message><source>balloon</source><translation>Luftballon</translation></message>
<message><source>ballot box with ballot</source><translation>Urne mit Wahlzettel</translation></message>
<message><source>banana</source><translation>Banane</translation></message>
<message><source>band</source><translation>Band</translation></message>
<message><source>banjo</source><translation>Banjo</translation></message>
<message><source>bank</source><translation>Bank</translation></message>
<message><source>bar chart</source><translation>Balkendiagramm</translation></message>
<message><source>barber pole</source><translation>Barbershop-Säule</translation></message>
<message><source>baseball</source><translation>Baseball</translation></message>
<message><source>basket</source><translation>Korb</translation></message>
<message><source>basketball</source><translation>Basketball</translation></message>
<message><source>bat</source><translation>Fledermaus</translation></message>
<message><source>bathing</source><translation>Badeanzug</translation></message>
<message><source>bathroom</source><translation>WC</translation></message>
<message><source>bathtub</source><translation>Badewanne</translation></message>
<message><source>battery</source><translation>Batterie</translation></message>
<message><source>beach with umbrella</source><translation>Strand mit Sonnenschirm</translation></message>
<message><source>beaming face with smiling eyes</source><translation>strahlendes Gesicht mit lachenden Augen</translation></message>
<message><source>beans</source><translation>Bohnen</translation></message>
<message><source>bear</source><translation>Bär</translation></message>
<message><source>beating heart</source><translation>schlagendes Herz</translation></message>
<message><source>beaver</source><translation>Biber</translation></message>
<message><source>bed</source><translation>Bett</translation></message>
<message><source>bedtime</source><translation>zzz</translation></message>
<message><source>beer</source><translation>Bier</translation></message>
<message><source>beer mug</source><translation>Bierkrug</translation></message>
<message><source>beet</source><translation>Bete</translation></message>
<message><source>beetle</source><translation>Käfer</translation></message>
<message><source>bell</source><translation>Glocke</translation></message>
<message><source>bell pepper</source><translation>Paprika</translation></message>
<message><source>bell with slash</source><translation>durchgestrichene Glocke</translation></message>
<message><source>bellhop bell</source><translation>Rezeptionsklingel</translation></message>
<message><source>bent</source><translation>Bein</translation></message>
<message><source>bento box</source><translation>Bento-Box</translation></message>
<message><source>berry</source><translation>Beere</translation></message>
<message><source>bestest</source><translation>beste</translation></message>
<message><source>beverage box</source><translation>Trinkpäckchen</translation></message>
<message><source>bff</source><translation>Händchen halten</translation></message>
<message><source>biceps</source><translation>Bizeps</translation></message>
<message><source>bicycle</source><translation>Fahrrad</translation></message>
<message><source>bikini</source><translation>Bikini</translation></message>
<message><source>billed cap</source><translation>Baseballmütze</translation></message>
<message><source>biohazard</source><translation>Biogefährdung</translation></message>
<message><source>bird</source><translation>Vogel</translation></message>
<message><source>birthday</source><translation>Geburtstag</translation></message>
<message><source>birthday cake</source><translation>Geburtstagskuchen</translation></message>
<message><source>bisexual</source><translation>bisexuell</translation></message>
<message><source>bison</source><translation>Bison</translation></message>
<message><source>biting lip</source><translation>auf Lippe beißen</translation></message>
<message><source>black</source><translation>schwarz</translation></message>
<message><source>black bird</source><translation>schwarzer Vogel</translation></message>
<message><source>black cat</source><translation>schwarze Katze</translation></message>
<message><source>black circle</source><translation>schwarzer Punkt</translation></message>
<message><source>black flag</source><translation>schwarze Flagge</translation></message>
<message><source>black heart</source><translation>schwarzes Herz</translation></message>
<message><source>black large square</source><translation>großes schwarzes Quadrat</translation></message>
<message><source>black medium square</source><translation>mittelgroßes schwarzes Quadrat</translation></message>
<message><source>black medium-small square</source><translation>mittelkleines schwarzes Quadrat</translation></message>
<message><source>black nib</source><translation>schwarzer Federhalter</translation></message>
<message><source>black small square</source><translation>kleines schwarzes Quadrat</translation></message>
<message><source>black square button</source><translation>schwarze quadratische Schaltfläche</translation></message>
<message><source>blind</source><translation>blind</translation></message>
<message><source>blossom</source><translation>gelbe Blüte</translation></message>
<message><source>blouse</source><translation>Bluse</translation></message>
<message><source>blowfish</source><translation>Kugelfisch</translation></message>
<message><source>blu-ray</source><translation>Blu-Ray</translation></message>
<message><source>blue</source><translation>blau</translation></message>
<message><source>blue book</source><translation>blaues Buch</translation></message>
<message><source>blue circle</source><translation>blauer Punkt</translation></message>
<message><source>blue heart</source><translation>blaues Herz</translation></message>
<message><source>blue square</source><translation>blaues Quadrat</translation></message>
<message><source>blueberries</source><translation>Blaubeeren</translation></message>
<message><source>boar</source><translation>Wildschwein</translation></message>
<message><source>board</source><translation>Board</translation></message>
<message><source>boat</source><translation>Boot</translation></message>
<message><source>body</source><translation>Körperteil</translation></message>
<message><source>bodybuilder</source><translation>Bodybuilder</translation></message>
<message><source>bomb</source><translation>Bombe</translation></message>
<message><source>bone</source><translation>Knochen</translation></message>
<message><source>book</source><translation>Buch</translation></message>
<message><source>bookmark</source><translation>Lesezeichen</translation></message>
<message><source>bookmark tabs</source><translation>Pagemarker</translation></message>
<message><source>books</source><translation>Bücherstapel</translation></message>
<message><source>boomerang</source><translation>Bumerang</translation></message>
<message><source>boot</source><translation>Stiefel</translation></message>
<message><source>bottle</source><translation>Flasche</translation></message>
<message><source>bottle with popping cork</source><translation>Flasche mit knallendem Korken</translation></message>
<message><source>bouquet</source><translation>Blumenstrauß</translation></message>
<message><source>bow and arrow</source><translation>Pfeil und Bogen</translation></message>
<message><source>bowl with spoon</source><translation>Schüssel mit Löffel</translation></message>
<message><source>bowling</source><translation>Bowling</translation></message>
<message><source>boxing</source><translation>Boxen</translation></message>
<message><source>boxing glove</source><translation>Boxhandschuh</translation></message>
<message><source>boy</source><translation>Junge</translation></message>
<message><source>brain</source><translation>Gehirn</translation></message>
<message><source>bread</source><translation>Brot</translation></message>
<message><source>breakfast</source><translation>Frühstück</translation></message>
<message><source>breast</source><translation>Brust</translation></message>
<message><source>breast-feeding</source><translation>Stillen</translation></message>
<message><source>brick</source><translation>Ziegelstein</translation></message>
<message><source>bridge at night</source><translation>Brücke vor Nachthimmel</translation></message>
<message><source>briefcase</source><translation>Aktentasche</translation></message>
<message><source>briefs</source><translation>Slip</translation></message>
<message><source>bright button</source><translation>Heller-Taste</translation></message>
<message><source>brightness</source><translation>Helligkeit</translation></message>
<message><source>bro</source><translation>erwachsene Person</translation></message>
<message><source>broccoli</source><translation>Brokkoli</translation></message>
<message><source>broken</source><translation>gebrochen</translation></message>
<message><source>broken chain</source><translation>gebrochene Kette</translation></message>
<message><source>broken heart</source><translation>gebrochenes Herz</translation></message>
<message><source>broom</source><translation>Besen</translation></message>
<message><source>brown</source><translation>braun</translation></message>
<message><source>brown circle</source><translation>brauner Punkt</translation></message>
<message><source>brown heart</source><translation>braunes Herz</translation></message>
<message><source>brown mushroom</source><translation>brauner Pilz</translation></message>
<message><source>brown square</source><translation>braunes Quadrat</translation></message>
<message><source>bubble tea</source><translation>Bubble Tea</translation></message>
<message><source>bubbles</source><translation>Blasen</translation></message>
<message><source>bucket</source><translation>Eimer</translation></message>
<message><source>buffalo</source><translation>Büffel</translation></message>
<message><source>bug</source><translation>Raupe</translation></message>
<message><source>building</source><translation>Gebäude</translation></message>
<message><source>building construction</source><translation>Kran</translation></message>
<message><source>bullet train</source><translation>Hochgeschwindigkeitszug</translation></message>
<message><source>bullseye</source><translation>Darts</translation></message>
<message><source>bundle</source><translation>warm anziehen</translation></message>
<message><source>burrito</source><translation>Burrito</translation></message>
<message><source>bus</source><translation>Bus</translation></message>
<message><source>bus stop</source><translation>Bushaltestelle</translation></message>
<message><source>business</source><translation>Business</translation></message>
<message><source>bust</source><translation>Büste</translation></message>
<message><source>bust in silhouette</source><translation>Silhouette einer Büste</translation></message>
<message><source>busts</source><translation>Büsten</translation></message>
<message><source>busts in silhouette</source><translation>Silhouette mehrerer Büsten</translation></message>
<message><source>butter</source><translation>Butter</translation></message>
<message><source>butterfly</source><translation>Schmetterling</translation></message>
<message><source>cabbage</source><translation>Kohl</translation></message>
<message><source>cactus</source><translation>Kaktus</translation></message>
<message><source>cafe</source><translation>Cafe</translation></message>
<message><source>caffeine</source><translation>Kaffee</translation></message>
<message><source>cake</source><translation>Kuchen</translation></message>
<message><source>calculation</source><translation>Kalkulation</translation></message>
<message><source>calendar</source><translation>Kalender</translation></message>
<message><source>call me hand</source><translation>Ruf-mich-an-Handzeichen</translation></message>
<message><source>camel</source><translation>Dromedar</translation></message>
<message><source>camera</source><translation>Fotoapparat</translation></message>
<message><source>camera with flash</source><translation>Fotoapparat mit Blitz</translation></message>
<message><source>camping</source><translation>Camping</translation></message>
<message><source>candle</source><translation>Kerze</translation></message>
<message><source>candy</source><translation>Bonbon</translation></message>
<message><source>canned food</source><translation>Konserve</translation></message>
<message><source>canoe</source><translation>Kanu</translation></message>
<message><source>cantaloupe</source><translation>cantaloupe</translation></message>
<message><source>card file box</source><translation>Karteikasten</translation></message>
<message><source>card index</source><translation>Rotationskartei</translation></message>
<message><source>card index dividers</source><translation>Karteireiter</translation></message>
<message><source>carousel</source><translation>Karussell</translation></message>
<message><source>carousel horse</source><translation>Karussellpferd</translation></message>
<message><source>carp streamer</source><translation>traditionelle japanische Windsäcke</translation></message>
<message><source>carpentry saw</source><translation>Handsäge</translation></message>
<message><source>carrot</source><translation>Karotte</translation></message>
<message><source>castle</source><translation>Schloss</translation></message>
<message><source>cat</source><translation>Katze</translation></message>
<message><source>cat face</source><translation>Katzengesicht</translation></message>
<message><source>cat with tears of joy</source><translation>Katze mit Freudentränen</translation></message>
<message><source>cat with wry smile</source><translation>verwegen lächelnde Katze</translation></message>
<message><source>celebrate</source><translation>Feier</translation></message>
<message><source>cereal</source><translation>Cerealien</translation></message>
<message><source>chains</source><translation>Ketten</translation></message>
<message><source>chair</source><translation>Stuhl</translation></message>
<message><source>chapel</source><translation>Kirche</translation></message>
<message><source>chart decreasing</source><translation>Abwärtstrend</translation></message>
<message><source>chart increasing</source><translation>Aufwärtstrend</translation></message>
<message><source>chart increasing with yen</source><translation>steigende Kurve mit Yen-Zeichen</translation></message>
<message><source>check box with check</source><translation>abgehaktes Kästchen</translation></message>
<message><source>check mark</source><translation>kräftiges Häkchen</translation></message>
<message><source>check mark button</source><translation>weißes Häkchen</translation></message>
<message><source>checkmark</source><translation>erledigt</translation></message>
<message><source>cheese</source><translation>Käse</translation></message>
<message><source>cheese wedge</source><translation>Käsestück</translation></message>
<message><source>chemist</source><translation>Chemie</translation></message>
<message><source>chemistry</source><translation>Chemiker</translation></message>
<message><source>chequered flag</source><translation>Zielflagge</translation></message>
<message><source>cherries</source><translation>Kirschen</translation></message>
<message><source>cherry</source><translation>Kirsche</translation></message>
<message><source>cherry blossom</source><translation>Kirschblüte</translation></message>
<message><source>chess pawn</source><translation>Bauer Schach</translation></message>
<message><source>chestnut</source><translation>Kastanie</translation></message>
<message><source>chick</source><translation>Küken</translation></message>
<message><source>chicken</source><translation>Huhn</translation></message>
<message><source>child</source><translation>Kind</translation></message>
<message><source>children crossing</source><translation>Kinder überqueren die Straße</translation></message>
<message><source>chipmunk</source><translation>Streifenhörnchen</translation></message>
<message><source>chocolate</source><translation>Schokolade</translation></message>
<message><source>chocolate bar</source><translation>Schokoladentafel</translation></message>
<message><source>chopsticks</source><translation>Essstäbchen</translation></message>
<message><source>christ</source><translation>Christentum</translation></message>
<message><source>christmas</source><translation>Weihnachten</translation></message>
<message><source>church</source><translation>Kirche</translation></message>
<message><source>cigarette</source><translation>Zigarette</translation></message>
<message><source>cinema</source><translation>Kinosymbol</translation></message>
<message><source>circle</source><translation>Kreis</translation></message>
<message><source>circled M</source><translation>Buchstabe „M“ in Kreis</translation></message>
<message><source>circus tent</source><translation>Zirkuszelt</translation></message>
<message><source>cityscape</source><translation>Skyline</translation></message>
<message><source>cityscape at dusk</source><translation>Abendstimmung in der Stadt</translation></message>
<message><source>clamp</source><translation>Schraubzwinge</translation></message>
<message><source>clapper board</source><translation>Filmklappe</translation></message>
<message><source>clapping hands</source><translation>klatschende Hände</translation></message>
<message><source>classical building</source><translation>antikes Gebäude</translation></message>
<message><source>cleaning</source><translation>sauber machen</translation></message>
<message><source>climb</source><translation>klettern</translation></message>
<message><source>clinking beer mugs</source><translation>Bierkrüge</translation></message>
<message><source>clinking glasses</source><translation>Sektgläser</translation></message>
<message><source>clipboard</source><translation>Klemmbrett</translation></message>
<message><source>clock</source><translation>Uhr</translation></message>
<message><source>clockwise</source><translation>im Uhrzeigersinn</translation></message>
<message><source>clockwise vertical arrows</source><translation>kreisförmige Pfeile im Uhrzeigersinn</translation></message>
<message><source>closed</source><translation>geschlossen</translation></message>
<message><source>closed book</source><translation>geschlossenes Buch</translation></message>
<message><source>closed mailbox with lowered flag</source><translation>geschlossener Briefkasten ohne Post</translation></message>
<message><source>closed mailbox with raised flag</source><translation>geschlossener Briefkasten mit Post</translation></message>
<message><source>closed umbrella</source><translation>geschlossener Regenschirm</translation></message>
<message><source>cloud</source><translation>Wolke</translation></message>
<message><source>cloud with lightning</source><translation>Wolke mit Blitz</translation></message>
<message><source>cloud with lightning and rain</source><translation>Wolke mit Blitz und Regen</translation></message>
<message><source>cloud with rain</source><translation>Wolke mit Regen</translation></message>
<message><source>cloud with snow</source><translation>Wolke mit Schnee</translation></message>
<message><source>clown</source><translation>Clown</translation></message>
<message><source>clown face</source><translation>Clown-Gesicht</translation></message>
<message><source>club suit</source><translation>Kreuz</translation></message>
<message><source>clutch</source><translation>Clutch</translation></message>
<message><source>clutch bag</source><translation>Clutch</translation></message>
<message><source>coat</source><translation>Mantel</translation></message>
<message><source>cockroach</source><translation>Kakerlake</translation></message>
<message><source>cocktail</source><translation>Cocktail</translation></message>
<message><source>cocktail glass</source><translation>Cocktailglas</translation></message>
<message><source>coconut</source><translation>Kokosnuss</translation></message>
<message><source>coffin</source><translation>Sarg</translation></message>
<message><source>coin</source><translation>Münze</translation></message>
<message><source>colada</source><translation>Colada</translation></message>
<message><source>cold</source><translation>kalt</translation></message>
<message><source>cold face</source><translation>frierendes Gesicht</translation></message>
<message><source>collar</source><translation>Shirt</translation></message>
<message><source>collision</source><translation>Zusammenstoß</translation></message>
<message><source>comet</source><translation>Komet</translation></message>
<message><source>comic</source><translation>Comic</translation></message>
<message><source>communication</source><translation>Kommunikation</translation></message>
<message><source>compass</source><translation>Kompass</translation></message>
<message><source>computer</source><translation>Computer</translation></message>
<message><source>computer disk</source><translation>Minidisc</translation></message>
<message><source>computer mouse</source><translation>Computermaus</translation></message>
<message><source>concentration</source><translation>Konzentration</translation></message>
<message><source>concertina</source><translation>Concertina</translation></message>
<message><source>confetti</source><translation>Konfettiball</translation></message>
<message><source>confetti ball</source><translation>Konfettiball</translation></message>
<message><source>confounded face</source><translation>verwirrtes Gesicht</translation></message>
<message><source>confused</source><translation>verwirrt</translation></message>
<message><source>confused face</source><translation>verwundertes Gesicht</translation></message>
<message><source>conga</source><translation>Conga</translation></message>
<message><source>congratulations</source><translation>Gratulation</translation></message>
<message><source>construction</source><translation>Baustellenabsperrung</translation></message>
<message><source>construction worker</source><translation>Bauarbeiter(in)</translation></message>
<message><source>control knobs</source><translation>Drehregler</translation></message>
<message><source>convenience store</source><translation>Minimarkt</translation></message>
<message><source>cook</source><translation>Koch/Köchin</translation></message>
<message><source>cooked rice</source><translation>Reis in Schüssel</translation></message>
<message><source>cookie</source><translation>Keks</translation></message>
<message><source>cooking</source><translation>Spiegelei in Bratpfanne</translation></message>
<message><source>cool</source><translation>cool</translation></message>
<message><source>copyright</source><translation>Copyright</translation></message>
<message><source>coral</source><translation>Koralle</translation></message>
<message><source>correct</source><translation>korrekt</translation></message>
<message><source>cosmetics</source><translation>Kosmetik</translation></message>
<message><source>couch</source><translation>Couch</translation></message>
<message><source>couch and lamp</source><translation>Sofa und Lampe</translation></message>
<message><source>counterclockwise arrows button</source><translation>Pfeile gegen den Uhrzeigersinn</translation></message>
<message><source>couple</source><translation>Paar</translation></message>
<message><source>couple with heart</source><translation>Liebespaar</translation></message>
<message><source>couple with heart: man, man</source><translation>Liebespaar: Mann, Mann</translation></message>
<message><source>couple with heart: woman, man</source><translation>Liebespaar: Frau, Mann</translation></message>
<message><source>couple with heart: woman, woman</source><translation>Liebespaar: Frau, Frau</translation></message>
<message><source>cow</source><translation>Kuh</translation></message>
<message><source>cow face</source><translation>Kuhgesicht</translation></message>
<message><source>cowboy hat face</source><translation>Gesicht mit Cowboyhut</translation></message>
<message><source>cowgirl</source><translation>Cowgirl</translation></message>
<message><source>crab</source><translation>Krebs</translation></message>
<message><source>crayon</source><translation>Wachsmalstift</translation></message>
<message><source>credit card</source><translation>Kreditkarte</translation></message>
<message><source>crescent moon</source><translation>Mondsichel</translation></message>
<message><source>cricket</source><translation>Grille</translation></message>
<message><source>cricket game</source><translation>Kricket</translation></message>
<message><source>crocodile</source><translation>Krokodil</translation></message>
<message><source>croissant</source><translation>Croissant</translation></message>
<message><source>cross</source><translation>Kreuz</translation></message>
<message><source>cross mark</source><translation>Kreuzzeichen</translation></message>
<message><source>cross mark button</source><translation>angekreuztes Kästchen</translation></message>
<message><source>crossed</source><translation>gekreuzt</translation></message>
<message><source>crossed fingers</source><translation>Hand mit gekreuzten Fingern</translation></message>
<message><source>crossed flags</source><translation>überkreuzte Flaggen</translation></message>
<message><source>crossed swords</source><translation>gekreuzte Schwerter</translation></message>
<message><source>crown</source><translation>Krone</translation></message>
<message><source>crutch</source><translation>Krücke</translation></message>
<message><source>cry</source><translation>weinen</translation></message>
<message><source>crying cat</source><translation>weinende Katze</translation></message>
<message><source>crying face</source><translation>weinendes Gesicht</translation></message>
<message><source>crystal ball</source><translation>Kristallkugel</translation></message>
<message><source>crêpe</source><translation>Crepe</translation></message>
<message><source>cucumber</source><translation>Gurke</translation></message>
<message><source>culture</source><translation>Kultur</translation></message>
<message><source>cup with straw</source><translation>Becher mit Strohhalm</translation></message>
<message><source>cupcake</source><translation>Cupcake</translation></message>
<message><source>cupid</source><translation>Cupido</translation></message>
<message><source>curling</source><translation>Curlingstein</translation></message>
<message><source>curling stone</source><translation>Curlingstein</translation></message>
<message><source>curly loop</source><translation>Schleife</translation></message>
<message><source>currency</source><translation>Geldschein</translation></message>
<message><source>currency exchange</source><translation>Geldwechsel</translation></message>
<message><source>curry rice</source><translation>Reis mit Curry</translation></message>
<message><source>curving</source><translation>geschwungen</translation></message>
<message><source>custard</source><translation>Pudding</translation></message>
<message><source>customs</source><translation>Zollkontrolle</translation></message>
<message><source>cut of meat</source><translation>Fleischstück</translation></message>
<message><source>cyan</source><translation>zyan</translation></message>
<message><source>cyclone</source><translation>Wirbel</translation></message>
<message><source>dagger</source><translation>Dolch</translation></message>
<message><source>dance</source><translation>Tanz</translation></message>
<message><source>dancer</source><translation>Tanzen</translation></message>
<message><source>dango</source><translation>Dango</translation></message>
<message><source>dark skin tone</source><translation>dunkle Hautfarbe</translation></message>
<message><source>dashing away</source><translation>Staubwolke</translation></message>
<message><source>deaf man</source><translation>gehörloser Mann</translation></message>
<message><source>deaf person</source><translation>gehörlose Person</translation></message>
<message><source>deaf woman</source><translation>gehörlose Frau</translation></message>
<message><source>death</source><translation>Tod</translation></message>
<message><source>deciduous tree</source><translation>Laubbaum</translation></message>
<message><source>decor</source><translation>Dekor</translation></message>
<message><source>decoration</source><translation>Herzdekoration</translation></message>
<message><source>deer</source><translation>Hirsch</translation></message>
<message><source>delivery truck</source><translation>Lieferwagen</translation></message>
<message><source>demon</source><translation>Dämon</translation></message>
<message><source>demonstration</source><translation>Demonstration</translation></message>
<message><source>department store</source><translation>Kaufhaus</translation></message>
<message><source>depressed</source><translation>depressiv</translation></message>
<message><source>derelict house</source><translation>verfallenes Haus</translation></message>
<message><source>desert</source><translation>Wüste</translation></message>
<message><source>desert island</source><translation>einsame Insel</translation></message>
<message><source>desktop</source><translation>Desktop</translation></message>
<message><source>desktop computer</source><translation>Desktopcomputer</translation></message>
<message><source>detective</source><translation>Detektiv(in)</translation></message>
<message><source>dialog</source><translation>Dialog</translation></message>
<message><source>diamond</source><translation>Raute</translation></message>
<message><source>diamond suit</source><translation>Karo</translation></message>
<message><source>diamond with a dot</source><translation>Rautenform mit Punkt</translation></message>
<message><source>dim button</source><translation>Taste Dimmen</translation></message>
<message><source>dinosaur</source><translation>Dinosaurier</translation></message>
<message><source>diplodocus</source><translation>Diplodocus</translation></message>
<message><source>disappear</source><translation>verschwinden</translation></message>
<message><source>disappointed</source><translation>enttäuscht</translation></message>
<message><source>disappointed face</source><translation>enttäuschtes Gesicht</translation></message>
<message><source>disco</source><translation>Disco</translation></message>
<message><source>disease</source><translation>Mücke</translation></message>
<message><source>disguised face</source><translation>verkleidet</translation></message>
<message><source>divide</source><translation>geteilt durch</translation></message>
<message><source>diving mask</source><translation>Tauchmaske</translation></message>
<message><source>division</source><translation>Division</translation></message>
<message><source>diya</source><translation>Diya</translation></message>
<message><source>diya lamp</source><translation>Öllampe</translation></message>
<message><source>dizzy</source><translation>schwindlig</translation></message>
<message><source>dna</source><translation>DNA</translation></message>
<message><source>doctor</source><translation>Arzt</translation></message>
<message><source>document</source><translation>Dokument</translation></message>
<message><source>dodo</source><translation>Dodo</translation></message>
<message><source>dog</source><translation>Hund</translation></message>
<message><source>dog face</source><translation>Hundegesicht</translation></message>
<message><source>dollar</source><translation>Dollar</translation></message>
<message><source>dollar banknote</source><translation>Dollar-Banknote</translation></message>
<message><source>dolphin</source><translation>Delfin</translation></message>
<message><source>donkey</source><translation>Esel</translation></message>
<message><source>door</source><translation>Tür</translation></message>
<message><source>dotted line face</source><translation>gestricheltes Gesicht</translation></message>
<message><source>dotted six-pointed star</source><translation>Hexagramm mit Punkt</translation></message>
<message><source>double curly loop</source><translation>Doppelschleife</translation></message>
<message><source>double exclamation mark</source><translation>doppeltes Ausrufezeichen</translation></message>
<message><source>doughnut</source><translation>Donut</translation></message>
<message><source>dove</source><translation>Taube</translation></message>
<message><source>down</source><translation>nach unten</translation></message>
<message><source>down arrow</source><translation>Pfeil nach unten</translation></message>
<message><source>down-left arrow</source><translation>Pfeil nach links unten</translation></message>
<message><source>down-right arrow</source><translation>Pfeil nach rechts unten</translation></message>
<message><source>downcast face with sweat</source><translation>bedrücktes Gesicht mit Schweiß</translation></message>
<message><source>downwards button</source><translation>Abwärts-Schaltfläche</translation></message>
<message><source>dragon</source><translation>Drache</translation></message>
<message><source>dragon face</source><translation>Drachengesicht</translation></message>
<message><source>dress</source><translation>Kleid</translation></message>
<message><source>dribble</source><translation>Dribbeln</translation></message>
<message><source>drink</source><translation>Getränk</translation></message>
<message><source>drinking</source><translation>Bar</translation></message>
<message><source>dromedary</source><translation>Dromedar</translation></message>
<message><source>drooling face</source><translation>sabberndes Gesicht</translation></message>
<message><source>drop of blood</source><translation>Blutstropfen</translation></message>
<message><source>droplet</source><translation>Tropfen</translation></message>
<message><source>drum</source><translation>Trommel</translation></message>
<message><source>duck</source><translation>Ente</translation></message>
<message><source>dumpling</source><translation>Teigtasche</translation></message>
<message><source>dunno</source><translation>weiß nicht</translation></message>
<message><source>dvd</source><translation>DVD</translation></message>
<message><source>dynamite</source><translation>Dynamit</translation></message>
<message><source>e-mail</source><translation>E-Mail</translation></message>
<message><source>eagle</source><translation>Adler</translation></message>
<message><source>ear</source><translation>Ohr</translation></message>
<message><source>ear of corn</source><translation>Maiskolben</translation></message>
<message><source>ear with hearing aid</source><translation>Ohr mit Hörgerät</translation></message>
<message><source>edamame</source><translation>Edamame</translation></message>
<message><source>egg</source><translation>Ei</translation></message>
<message><source>eggplant</source><translation>Aubergine</translation></message>
<message><source>eight o’clock</source><translation>8:00 Uhr</translation></message>
<message><source>eight-pointed star</source><translation>achtstrahliger Stern</translation></message>
<message><source>eight-spoked asterisk</source><translation>achtzackiger Stern</translation></message>
<message><source>eight-thirty</source><translation>8:30 Uhr</translation></message>
<message><source>eject button</source><translation>Auswerfen</translation></message>
<message><source>elderly</source><translation>alt</translation></message>
<message><source>electric plug</source><translation>Netzstecker</translation></message>
<message><source>electronic</source><translation>Elektronik</translation></message>
<message><source>elegant</source><translation>elegant</translation></message>
<message><source>elephant</source><translation>Elefant</translation></message>
<message><source>elevator</source><translation>Fahrstuhl</translation></message>
<message><source>eleven o’clock</source><translation>11:00 Uhr</translation></message>
<message><source>eleven-thirty</source><translation>11:30 Uhr</translation></message>
<message><source>elf</source><translation>Elf(e)</translation></message>
<message><source>email</source><translation>E-Mail</translation></message>
<message><source>emotion</source><translation>Gefühl</translation></message>
<message><source>empty nest</source><translation>leeres Nest</translation></message>
<message><source>engagement</source><translation>Edelstein</translation></message>
<message><source>enraged face</source><translation>schmollendes Gesicht</translation></message>
<message><source>entertainer</source><translation>Entertainer(in)</translation></message>
<message><source>envelope</source><translation>Briefumschlag</translation></message>
<message><source>envelope with arrow</source><translation>Umschlag mit Pfeil</translation></message>
<message><source>euro</source><translation>Euro</translation></message>
<message><source>euro banknote</source><translation>Euro-Banknote</translation></message>
<message><source>evergreen tree</source><translation>Nadelbaum</translation></message>
<message><source>evil</source><translation>böse</translation></message>
<message><source>evolution</source><translation>Evolution</translation></message>
<message><source>ewe</source><translation>Schaf</translation></message>
<message><source>exclamation</source><translation>Ausrufezeichen</translation></message>
<message><source>exclamation question mark</source><translation>Ausrufe- und Fragezeichen</translation></message>
<message><source>experiment</source><translation>Experiment</translation></message>
<message><source>explode</source><translation>explodieren</translation></message>
<message><source>exploding head</source><translation>explodierender Kopf</translation></message>
<message><source>explosion</source><translation>Explodieren</translation></message>
<message><source>explosive</source><translation>explosiv</translation></message>
<message><source>expressionless face</source><translation>ausdrucksloses Gesicht</translation></message>
<message><source>extinction</source><translation>Aussterben</translation></message>
<message><source>eye</source><translation>Auge</translation></message>
<message><source>eye in speech bubble</source><translation>Auge in Sprechblase</translation></message>
<message><source>eyes</source><translation>Augen</translation></message>
<message><source>face</source><translation>Gesicht</translation></message>
<message><source>face blowing a kiss</source><translation>Kuss zuwerfendes Gesicht</translation></message>
<message><source>face exhaling</source><translation>Gesicht, das ausatmet</translation></message>
<message><source>face holding back tears</source><translation>Gesicht, das Tränen zurückhält</translation></message>
<message><source>face in clouds</source><translation>Gesicht in Wolken</translation></message>
<message><source>face savoring food</source><translation>sich die Lippen leckendes Gesicht</translation></message>
<message><source>face screaming in fear</source><translation>vor Angst schreiendes Gesicht</translation></message>
<message><source>face vomiting</source><translation>kotzendes Gesicht</translation></message>
<message><source>face with bags under eyes</source><translation>Gesicht mit Augenringen</translation></message>
<message><source>face with crossed-out eyes</source><translation>benommenes Gesicht</translation></message>
<message><source>face with diagonal mouth</source><translation>Gesicht mit schrägem Mund</translation></message>
<message><source>face with hand over mouth</source><translation>verlegen kicherndes Gesicht</translation></message>
<message><source>face with head-bandage</source><translation>Gesicht mit Kopfverband</translation></message>
<message><source>face with medical mask</source><translation>Gesicht mit Atemschutzmaske</translation></message>
<message><source>face with monocle</source><translation>Gesicht mit Monokel</translation></message>
<message><source>face with open eyes and hand over mouth</source><translation>Gesicht mit offenen Augen und Hand über dem Mund</translation></message>
<message><source>face with open mouth</source><translation>Gesicht mit offenem Mund</translation></message>
<message><source>face with peeking eye</source><translation>Gesicht mit durch die Finger linsendem Auge</translation></message>
<message><source>face with raised eyebrow</source><translation>Gesicht mit hochgezogenen Augenbrauen</translation></message>
<message><source>face with rolling eyes</source><translation>Augen verdrehendes Gesicht</translation></message>
<message><source>face with spiral eyes</source><translation>Gesicht mit Spiralen als Augen</translation></message>
<message><source>face with steam from nose</source><translation>schnaubendes Gesicht</translation></message>
<message><source>face with symbols on mouth</source><translation>Gesicht mit Symbolen über dem Mund</translation></message>
<message><source>face with tears of joy</source><translation>Gesicht mit Freudentränen</translation></message>
<message><source>face with thermometer</source><translation>Gesicht mit Fieberthermometer</translation></message>
<message><source>face with tongue</source><translation>Gesicht mit herausgestreckter Zunge</translation></message>
<message><source>face without mouth</source><translation>Gesicht ohne Mund</translation></message>
<message><source>facing</source><translation>nach</translation></message>
<message><source>factory</source><translation>Fabrik</translation></message>
<message><source>factory worker</source><translation>Fabrikarbeiter(in)</translation></message>
<message><source>fairy</source><translation>Märchenfee</translation></message>
<message><source>fairytale</source><translation>Märchen</translation></message>
<message><source>falafel</source><translation>Falafel</translation></message>
<message><source>fallen leaf</source><translation>Laub</translation></message>
<message><source>family</source><translation>Familie</translation></message>
<message><source>family: adult, adult, child</source><translation>Familie: 2 Erwachsene, 1 Kind</translation></message>
<message><source>family: adult, adult, child, child</source><translation>Familie: 2 Erwachsene, 2 Kinder</translation></message>
<message><source>family: adult, child</source><translation>Familie: 1 Erwachsene(r), 1 Kind</translation></message>
<message><source>family: adult, child, child</source><translation>Familie: 1 Erwachsene(r), 2 Kinder</translation></message>
<message><source>family: man, boy</source><translation>Familie: Mann, Junge</translation></message>
<message><source>family: man, boy, boy</source><translation>Familie: Mann, Junge und Junge</translation></message>
<message><source>family: man, girl</source><translation>Familie: Mann, Mädchen</translation></message>
<message><source>family: man, girl, boy</source><translation>Familie: Mann, Mädchen und Junge</translation></message>
<message><source>family: man, girl, girl</source><translation>Familie: Mann, Mädchen und Mädchen</translation></message>
<message><source>family: man, man, boy</source><translation>Familie: Mann, Mann und Junge</translation></message>
<message><source>family: man, man, boy, boy</source><translation>Familie: Mann, Mann, Junge und Junge</translation></message>
<message><source>family: man, man, girl</source><translation>Familie: Mann, Mann und Mädchen</translation></message>
<message><source>family: man, man, girl, boy</source><translation>Familie: Mann, Mann, Mädchen und Junge</translation></message>
<message><source>family: man, man, girl, girl</source><translation>Familie: Mann, Mann, Mädchen und Mädchen</translation></message>
<message><source>family: man, woman, boy</source><translation>Familie: Mann, Frau und Junge</translation></message>
<message><source>family: man, woman, boy, boy</source><translation>Familie: Mann, Frau, Junge und Junge</translation></message>
<message><source>family: man, woman, girl</source><translation>Familie: Mann, Frau und Mädchen</translation></message>
<message><source>family: man, woman, girl, boy</source><translation>Familie: Mann, Frau, Mädchen und Junge</translation></message>
<message><source>family: man, woman, girl, girl</source><translation>Familie: Mann, Frau, Mädchen und Mädchen</translation></message>
<message><source>family: woman, boy</source><translation>Familie: Frau, Junge</translation></message>
<message><source>family: woman, boy, boy</source><translation>Familie: Frau, Junge und Junge</translation></message>
<message><source>family: woman, girl</source><translation>Familie: Frau, Mädchen</translation></message>
<message><source>family: woman, girl, boy</source><translation>Familie: Frau, Mädchen und Junge</translation></message>
<message><source>family: woman, girl, girl</source><translation>Familie: Frau, Mädchen und Mädchen</translation></message>
<message><source>family: woman, woman, boy</source><translation>Familie: Frau, Frau und Junge</translation></message>
<message><source>family: woman, woman, boy, boy</source><translation>Familie: Frau, Frau, Junge und Junge</translation></message>
<message><source>family: woman, woman, girl</source><translation>Familie: Frau, Frau und Mädchen</translation></message>
<message><source>family: woman, woman, girl, boy</source><translation>Familie: Frau, Frau, Mädchen und Junge</translation></message>
<message><source>family: woman, woman, girl, girl</source><translation>Familie: Frau, Frau, Mädchen und Mädchen</translation></message>
<message><source>farmer</source><translation>Bauer/Bäuerin</translation></message>
<message><source>fast down button</source><translation>Doppelpfeile nach unten</translation></message>
<message><source>fast reverse button</source><translation>Zurückspulen</translation></message>
<message><source>fast up button</source><translation>Doppelpfeile nach oben</translation></message>
<message><source>fast-forward button</source><translation>Doppelpfeile nach rechts</translation></message>
<message><source>fax machine</source><translation>Faxgerät</translation></message>
<message><source>fearful face</source><translation>ängstliches Gesicht</translation></message>
<message><source>feather</source><translation>Feder</translation></message>
<message><source>female sign</source><translation>Frauensymbol</translation></message>
<message><source>ferris wheel</source><translation>Riesenrad</translation></message>
<message><source>ferry</source><translation>Fähre</translation></message>
<message><source>festival</source><translation>Festival</translation></message>
<message><source>field hockey</source><translation>Feldhockey</translation></message>
<message><source>file cabinet</source><translation>Aktenschrank</translation></message>
<message><source>file folder</source><translation>Ordner</translation></message>
<message><source>filling</source><translation>Füllung</translation></message>
<message><source>film</source><translation>Film</translation></message>
<message><source>film frames</source><translation>Filmstreifen</translation></message>
<message><source>film projector</source><translation>Filmprojektor</translation></message>
<message><source>finger</source><translation>Zeigefinger</translation></message>
<message><source>fingerprint</source><translation>Fingerabdruck</translation></message>
<message><source>fire</source><translation>Feuer</translation></message>
<message><source>fire engine</source><translation>Feuerwehrauto</translation></message>
<message><source>fire extinguisher</source><translation>Feuerlöscher</translation></message>
<message><source>firecracker</source><translation>Feuerwerkskörper</translation></message>
<message><source>firefighter</source><translation>Feuerwehrmann/-frau</translation></message>
<message><source>fireworks</source><translation>Feuerwerk</translation></message>
<message><source>first quarter moon</source><translation>zunehmender Halbmond</translation></message>
<message><source>first quarter moon face</source><translation>Mondsichel mit Gesicht links</translation></message>
<message><source>fish</source><translation>Fisch</translation></message>
<message><source>fish cake with swirl</source><translation>Fischfrikadelle</translation></message>
<message><source>fishing pole</source><translation>Angel mit Fisch</translation></message>
<message><source>fist</source><translation>Faust</translation></message>
<message><source>five o’clock</source><translation>5:00 Uhr</translation></message>
<message><source>five-thirty</source><translation>5:30 Uhr</translation></message>
<message><source>flag</source><translation>Flagge</translation></message>
<message><source>flag in hole</source><translation>Golffahne</translation></message>
<message><source>flag: Afghanistan</source><translation>Flagge: Afghanistan</translation></message>
<message><source>flag: Albania</source><translation>Flagge: Albanien</translation></message>
<message><source>flag: Algeria</source><translation>Flagge: Algerien</translation></message>
<message><source>flag: American Samoa</source><translation>Flagge: Amerikanisch-Samoa</translation></message>
<message><source>flag: Andorra</source><translation>Flagge: Andorra</translation></message>
<message><source>flag: Angola</source><translation>Flagge: Angola</translation></message>
<message><source>flag: Anguilla</source><translation>Flagge: Anguilla</translation></message>
<message><source>flag: Antarctica</source><translation>Flagge: Antarktis</translation></message>
<message><source>flag: Antigua &amp; Barbuda</source><translation>Flagge: Antigua und Barbuda</translation></message>
<message><source>flag: Argentina</source><translation>Flagge: Argentinien</translation></message>
<message><source>flag: Armenia</source><translation>Flagge: Armenien</translation></message>
<message><source>flag: Aruba</source><translation>Flagge: Aruba</translation></message>
<message><source>flag: Ascension Island</source><translation>Flagge: Ascension</translation></message>
<message><source>flag: Australia</source><translation>Flagge: Australien</translation></message>
<message><source>flag: Austria</source><translation>Flagge: Österreich</translation></message>
<message><source>flag: Azerbaijan</source><translation>Flagge: Aserbaidschan</translation></message>
<message><source>flag: Bahamas</source><translation>Flagge: Bahamas</translation></message>
<message><source>flag: Bahrain</source><translation>Flagge: Bahrain</translation></message>
<message><source>flag: Bangladesh</source><translation>Flagge: Bangladesch</translation></message>
<message><source>flag: Barbados</source><translation>Flagge: Barbados</translation></message>
<message><source>flag: Belarus</source><translation>Flagge: Belarus</translation></message>
<message><source>flag: Belgium</source><translation>Flagge: Belgien</translation></message>
<message><source>flag: Belize</source><translation>Flagge: Belize</translation></message>
<message><source>flag: Benin</source><translation>Flagge: Benin</translation></message>
<message><source>flag: Bermuda</source><translation>Flagge: Bermuda</translation></message>
<message><source>flag: Bhutan</source><translation>Flagge: Bhutan</translation></message>
<message><source>flag: Bolivia</source><translation>Flagge: Bolivien</translation></message>
<message><source>flag: Bosnia &amp; Herzegovina</source><translation>Flagge: Bosnien und Herzegowina</translation></message>
<message><source>flag: Botswana</source><translation>Flagge: Botsuana</translation></message>
<message><source>flag: Bouvet Island</source><translation>Flagge: Bouvetinsel</translation></message>
<message><source>flag: Brazil</source><translation>Flagge: Brasilien</translation></message>
<message><source>flag: British Indian Ocean Territory</source><translation>Flagge: Britisches Territorium im Indischen Ozean</translation></message>
<message><source>flag: British Virgin Islands</source><translation>Flagge: Britische Jungferninseln</translation></message>
<message><source>flag: Brunei</source><translation>Flagge: Brunei Darussalam</translation></message>
<message><source>flag: Bulgaria</source><translation>Flagge: Bulgarien</translation></message>
<message><source>flag: Burkina Faso</source><translation>Flagge: Burkina Faso</translation></message>
<message><source>flag: Burundi</source><translation>Flagge: Burundi</translation></message>
<message><source>flag: Cambodia</source><translation>Flagge: Kambodscha</translation></message>
<message><source>flag: Cameroon</source><translation>Flagge: Kamerun</translation></message>
<message><source>flag: Canada</source><translation>Flagge: Kanada</translation></message>
<message><source>flag: Canary Islands</source><translation>Flagge: Kanarische Inseln</translation></message>
<message><source>flag: Cape Verde</source><translation>Flagge: Cabo Verde</translation></message>
<message><source>flag: Caribbean Netherlands</source><translation>Flagge: Karibische Niederlande</translation></message>
<message><source>flag: Cayman Islands</source><translation>Flagge: Kaimaninseln</translation></message>
<message><source>flag: Central African Republic</source><translation>Flagge: Zentralafrikanische Republik</translation></message>
<message><source>flag: Ceuta &amp; Melilla</source><translation>Flagge: Ceuta und Melilla</translation></message>
<message><source>flag: Chad</source><translation>Flagge: Tschad</translation></message>
<message><source>flag: Chile</source><translation>Flagge: Chile</translation></message>
<message><source>flag: China</source><translation>Flagge: China</translation></message>
<message><source>flag: Christmas Island</source><translation>Flagge: Weihnachtsinsel</translation></message>
<message><source>flag: Clipperton Island</source><translation>Flagge: Clipperton-Insel</translation></message>
<message><source>flag: Cocos (Keeling) Islands</source><translation>Flagge: Kokosinseln</translation></message>
<message><source>flag: Colombia</source><translation>Flagge: Kolumbien</translation></message>
<message><source>flag: Comoros</source><translation>Flagge: Komoren</translation></message>
<message><source>flag: Congo - Brazzaville</source><translation>Flagge: Kongo-Brazzaville</translation></message>
<message><source>flag: Congo - Kinshasa</source><translation>Flagge: Kongo-Kinshasa</translation></message>
<message><source>flag: Cook Islands</source><translation>Flagge: Cookinseln</translation></message>
<message><source>flag: Costa Rica</source><translation>Flagge: Costa Rica</translation></message>
<message><source>flag: Croatia</source><translation>Flagge: Kroatien</translation></message>
<message><source>flag: Cuba</source><translation>Flagge: Kuba</translation></message>
<message><source>flag: Curaçao</source><translation>Flagge: Curaçao</translation></message>
<message><source>flag: Cyprus</source><translation>Flagge: Zypern</translation></message>
<message><source>flag: Czechia</source><translation>Flagge: Tschechien</translation></message>
<message><source>flag: Côte d’Ivoire</source><translation>Flagge: Côte d’Ivoire</translation></message>
<message><source>flag: Denmark</source><translation>Flagge: Dänemark</translation></message>
<message><source>flag: Diego Garcia</source><translation>Flagge: Diego Garcia</translation></message>
<message><source>flag: Djibouti</source><translation>Flagge: Dschibuti</translation></message>
<message><source>flag: Dominica</source><translation>Flagge: Dominica</translation></message>
<message><source>flag: Dominican Republic</source><translation>Flagge: Dominikanische Republik</translation></message>
<message><source>flag: Ecuador</source><translation>Flagge: Ecuador</translation></message>
<message><source>flag: Egypt</source><translation>Flagge: Ägypten</translation></message>
<message><source>flag: El Salvador</source><translation>Flagge: El Salvador</translation></message>
<message><source>flag: England</source><translation>Flagge: England</translation></message>
<message><source>flag: Equatorial Guinea</source><translation>Flagge: Äquatorialguinea</translation></message>
<message><source>flag: Eritrea</source><translation>Flagge: Eritrea</translation></message>
<message><source>flag: Estonia</source><translation>Flagge: Estland</translation></message>
<message><source>flag: Eswatini</source><translation>Flagge: Eswatini</translation></message>
<message><source>flag: Ethiopia</source><translation>Flagge: Äthiopien</translation></message>
<message><source>flag: European Union</source><translation>Flagge: Europäische Union</translation></message>
<message><source>flag: Falkland Islands</source><translation>Flagge: Falklandinseln</translation></message>
<message><source>flag: Faroe Islands</source><translation>Flagge: Färöer</translation></message>
<message><source>flag: Fiji</source><translation>Flagge: Fidschi</translation></message>
<message><source>flag: Finland</source><translation>Flagge: Finnland</translation></message>
<message><source>flag: France</source><translation>Flagge: Frankreich</translation></message>
<message><source>flag: French Guiana</source><translation>Flagge: Französisch-Guayana</translation></message>
<message><source>flag: French Polynesia</source><translation>Flagge: Französisch-Polynesien</translation></message>
<message><source>flag: French Southern Territories</source><translation>Flagge: Französische Süd- und Antarktisgebiete</translation></message>
<message><source>flag: Gabon</source><translation>Flagge: Gabun</translation></message>
<message><source>flag: Gambia</source><translation>Flagge: Gambia</translation></message>
<message><source>flag: Georgia</source><translation>Flagge: Georgien</translation></message>
<message><source>flag: Germany</source><translation>Flagge: Deutschland</translation></message>
<message><source>flag: Ghana</source><translation>Flagge: Ghana</translation></message>
<message><source>flag: Gibraltar</source><translation>Flagge: Gibraltar</translation></message>
<message><source>flag: Greece</source><translation>Flagge: Griechenland</translation></message>
<message><source>flag: Greenland</source><translation>Flagge: Grönland</translation></message>
<message><source>flag: Grenada</source><translation>Flagge: Grenada</translation></message>
<message><source>flag: Guadeloupe</source><translation>Flagge: Guadeloupe</translation></message>
<message><source>flag: Guam</source><translation>Flagge: Guam</translation></message>
<message><source>flag: Guatemala</source><translation>Flagge: Guatemala</translation></message>
<message><source>flag: Guernsey</source><translation>Flagge: Guernsey</translation></message>
<message><source>flag: Guinea</source><translation>Flagge: Guinea</translation></message>
<message><source>flag: Guinea-Bissau</source><translation>Flagge: Guinea-Bissau</translation></message>
<message><source>flag: Guyana</source><translation>Flagge: Guyana</translation></message>
<message><source>flag: Haiti</source><translation>Flagge: Haiti</translation></message>
<message><source>flag: Heard &amp; McDonald Islands</source><translation>Flagge: Heard und McDonaldinseln</translation></message>
<message><source>flag: Honduras</source><translation>Flagge: Honduras</translation></message>
<message><source>flag: Hong Kong SAR China</source><translation>Flagge: Sonderverwaltungsregion Hongkong</translation></message>
<message><source>flag: Hungary</source><translation>Flagge: Ungarn</translation></message>
<message><source>flag: Iceland</source><translation>Flagge: Island</translation></message>
<message><source>flag: India</source><translation>Flagge: Indien</translation></message>
<message><source>flag: Indonesia</source><translation>Flagge: Indonesien</translation></message>
<message><source>flag: Iran</source><translation>Flagge: Iran</translation></message>
<message><source>flag: Iraq</source><translation>Flagge: Irak</translation></message>
<message><source>flag: Ireland</source><translation>Flagge: Irland</translation></message>
<message><source>flag: Isle of Man</source><translation>Flagge: Isle of Man</translation></message>
<message><source>flag: Israel</source><translation>Flagge: Israel</translation></message>
<message><source>flag: Italy</source><translation>Flagge: Italien</translation></message>
<message><source>flag: Jamaica</source><translation>Flagge: Jamaika</translation></message>
<message><source>flag: Japan</source><translation>Flagge: Japan</translation></message>
<message><source>flag: Jersey</source><translation>Flagge: Jersey</translation></message>
<message><source>flag: Jordan</source><translation>Flagge: Jordanien</translation></message>
<message><source>flag: Kazakhstan</source><translation>Flagge: Kasachstan</translation></message>
<message><source>flag: Kenya</source><translation>Flagge: Kenia</translation></message>
<message><source>flag: Kiribati</source><translation>Flagge: Kiribati</translation></message>
<message><source>flag: Kosovo</source><translation>Flagge: Kosovo</translation></message>
<message><source>flag: Kuwait</source><translation>Flagge: Kuwait</translation></message>
<message><source>flag: Kyrgyzstan</source><translation>Flagge: Kirgisistan</translation></message>
<message><source>flag: Laos</source><translation>Flagge: Laos</translation></message>
<message><source>flag: Latvia</source><translation>Flagge: Lettland</translation></message>
<message><source>flag: Lebanon</source><translation>Flagge: Libanon</translation></message>
<message><source>flag: Lesotho</source><translation>Flagge: Lesotho</translation></message>
<message><source>flag: Liberia</source><translation>Flagge: Liberia</translation></message>
<message><source>flag: Libya</source><translation>Flagge: Libyen</translation></message>
<message><source>flag: Liechtenstein</source><translation>Flagge: Liechtenstein</translation></message>
<message><source>flag: Lithuania</source><translation>Flagge: Litauen</translation></message>
<message><source>flag: Luxembourg</source><translation>Flagge: Luxemburg</translation></message>
<message><source>flag: Macao SAR China</source><translation>Flagge: Sonderverwaltungsregion Macau</translation></message>
<message><source>flag: Madagascar</source><translation>Flagge: Madagaskar</translation></message>
<message><source>flag: Malawi</source><translation>Flagge: Malawi</translation></message>
<message><source>flag: Malaysia</source><translation>Flagge: Malaysia</translation></message>
<message><source>flag: Maldives</source><translation>Flagge: Malediven</translation></message>
<message><source>flag: Mali</source><translation>Flagge: Mali</translation></message>
<message><source>flag: Malta</source><translation>Flagge: Malta</translation></message>
<message><source>flag: Marshall Islands</source><translation>Flagge: Marshallinseln</translation></message>
<message><source>flag: Martinique</source><translation>Flagge: Martinique</translation></message>
<message><source>flag: Mauritania</source><translation>Flagge: Mauretanien</translation></message>
<message><source>flag: Mauritius</source><translation>Flagge: Mauritius</translation></message>
<message><source>flag: Mayotte</source><translation>Flagge: Mayotte</translation></message>
<message><source>flag: Mexico</source><translation>Flagge: Mexiko</translation></message>
<message><source>flag: Micronesia</source><translation>Flagge: Mikronesien</translation></message>
<message><source>flag: Moldova</source><translation>Flagge: Republik Moldau</translation></message>
<message><source>flag: Monaco</source><translation>Flagge: Monaco</translation></message>
<message><source>flag: Mongolia</source><translation>Flagge: Mongolei</translation></message>
<message><source>flag: Montenegro</source><translation>Flagge: Montenegro</translation></message>
<message><source>flag: Montserrat</source><translation>Flagge: Montserrat</translation></message>
<message><source>flag: Morocco</source><translation>Flagge: Marokko</translation></message>
<message><source>flag: Mozambique</source><translation>Flagge: Mosambik</translation></message>
<message><source>flag: Myanmar (Burma)</source><translation>Flagge: Myanmar</translation></message>
<message><source>flag: Namibia</source><translation>Flagge: Namibia</translation></message>
<message><source>flag: Nauru</source><translation>Flagge: Nauru</translation></message>
<message><source>flag: Nepal</source><translation>Flagge: Nepal</translation></message>
<message><source>flag: Netherlands</source><translation>Flagge: Niederlande</translation></message>
<message><source>flag: New Caledonia</source><translation>Flagge: Neukaledonien</translation></message>
<message><source>flag: New Zealand</source><translation>Flagge: Neuseeland</translation></message>
<message><source>flag: Nicaragua</source><translation>Flagge: Nicaragua</translation></message>
<message><source>flag: Niger</source><translation>Flagge: Niger</translation></message>
<message><source>flag: Nigeria</source><translation>Flagge: Nigeria</translation></message>
<message><source>flag: Niue</source><translation>Flagge: Niue</translation></message>
<message><source>flag: Norfolk Island</source><translation>Flagge: Norfolkinsel</translation></message>
<message><source>flag: North Korea</source><translation>Flagge: Nordkorea</translation></message>
<message><source>flag: North Macedonia</source><translation>Flagge: Nordmazedonien</translation></message>
<message><source>flag: Northern Mariana Islands</source><translation>Flagge: Nördliche Marianen</translation></message>
<message><source>flag: Norway</source><translation>Flagge: Norwegen</translation></message>
<message><source>flag: Oman</source><translation>Flagge: Oman</translation></message>
<message><source>flag: Pakistan</source><translation>Flagge: Pakistan</translation></message>
<message><source>flag: Palau</source><translation>Flagge: Palau</translation></message>
<message><source>flag: Palestinian Territories</source><translation>Flagge: Palästinensische Autonomiegebiete</translation></message>
<message><source>flag: Panama</source><translation>Flagge: Panama</translation></message>
<message><source>flag: Papua New Guinea</source><translation>Flagge: Papua-Neuguinea</translation></message>
<message><source>flag: Paraguay</source><translation>Flagge: Paraguay</translation></message>
<message><source>flag: Peru</source><translation>Flagge: Peru</translation></message>
<message><source>flag: Philippines</source><translation>Flagge: Philippinen</translation></message>
<message><source>flag: Pitcairn Islands</source><translation>Flagge: Pitcairninseln</translation></message>
<message><source>flag: Poland</source><translation>Flagge: Polen</translation></message>
<message><source>flag: Portugal</source><translation>Flagge: Portugal</translation></message>
<message><source>flag: Puerto Rico</source><translation>Flagge: Puerto Rico</translation></message>
<message><source>flag: Qatar</source><translation>Flagge: Katar</translation></message>
<message><source>flag: Romania</source><translation>Flagge: Rumänien</translation></message>
<message><source>flag: Russia</source><translation>Flagge: Russland</translation></message>
<message><source>flag: Rwanda</source><translation>Flagge: Ruanda</translation></message>
<message><source>flag: Réunion</source><translation>Flagge: Réunion</translation></message>
<message><source>flag: Samoa</source><translation>Flagge: Samoa</translation></message>
<message><source>flag: San Marino</source><translation>Flagge: San Marino</translation></message>
<message><source>flag: Sark</source><translation>Flagge: Sark</translation></message>
<message><source>flag: Saudi Arabia</source><translation>Flagge: Saudi-Arabien</translation></message>
<message><source>flag: Scotland</source><translation>Flagge: Schottland</translation></message>
<message><source>flag: Senegal</source><translation>Flagge: Senegal</translation></message>
<message><source>flag: Serbia</source><translation>Flagge: Serbien</translation></message>
<message><source>flag: Seychelles</source><translation>Flagge: Seychellen</translation></message>
<message><source>flag: Sierra Leone</source><translation>Flagge: Sierra Leone</translation></message>
<message><source>flag: Singapore</source><translation>Flagge: Singapur</translation></message>
<message><source>flag: Sint Maarten</source><translation>Flagge: Sint Maarten</translation></message>
<message><source>flag: Slovakia</source><translation>Flagge: Slowakei</translation></message>
<message><source>flag: Slovenia</source><translation>Flagge: Slowenien</translation></message>
<message><source>flag: Solomon Islands</source><translation>Flagge: Salomonen</translation></message>
<message><source>flag: Somalia</source><translation>Flagge: Somalia</translation></message>
<message><source>flag: South Africa</source><translation>Flagge: Südafrika</translation></message>
<message><source>flag: South Georgia &amp; South Sandwich Islands</source><translation>Flagge: Südgeorgien und die Südlichen Sandwichinseln</translation></message>
<message><source>flag: South Korea</source><translation>Flagge: Südkorea</translation></message>
<message><source>flag: South Sudan</source><translation>Flagge: Südsudan</translation></message>
<message><source>flag: Spain</source><translation>Flagge: Spanien</translation></message>
<message><source>flag: Sri Lanka</source><translation>Flagge: Sri Lanka</translation></message>
<message><source>flag: St. Barthélemy</source><translation>Flagge: St. Barthélemy</translation></message>
<message><source>flag: St. Helena</source><translation>Flagge: St. Helena</translation></message>
<message><source>flag: St. Kitts &amp; Nevis</source><translation>Flagge: St. Kitts und Nevis</translation></message>
<message><source>flag: St. Lucia</source><translation>Flagge: St. Lucia</translation></message>
<message><source>flag: St. Martin</source><translation>Flagge: St. Martin</translation></message>
<message><source>flag: St. Pierre &amp; Miquelon</source><translation>Flagge: St. Pierre und Miquelon</translation></message>
<message><source>flag: St. Vincent &amp; Grenadines</source><translation>Flagge: St. Vincent und die Grenadinen</translation></message>
<message><source>flag: Sudan</source><translation>Flagge: Sudan</translation></message>
<message><source>flag: Suriname</source><translation>Flagge: Suriname</translation></message>
<message><source>flag: Svalbard &amp; Jan Mayen</source><translation>Flagge: Spitzbergen und Jan Mayen</translation></message>
<message><source>flag: Sweden</source><translation>Flagge: Schweden</translation></message>
<message><source>flag: Switzerland</source><translation>Flagge: Schweiz</translation></message>
<message><source>flag: Syria</source><translation>Flagge: Syrien</translation></message>
<message><source>flag: São Tomé &amp; Príncipe</source><translation>Flagge: São Tomé und Príncipe</translation></message>
<message><source>flag: Taiwan</source><translation>Flagge: Taiwan</translation></message>
<message><source>flag: Tajikistan</source><translation>Flagge: Tadschikistan</translation></message>
<message><source>flag: Tanzania</source><translation>Flagge: Tansania</translation></message>
<message><source>flag: Thailand</source><translation>Flagge: Thailand</translation></message>
<message><source>flag: Timor-Leste</source><translation>Flagge: Timor-Leste</translation></message>
<message><source>flag: Togo</source><translation>Flagge: Togo</translation></message>
<message><source>flag: Tokelau</source><translation>Flagge: Tokelau</translation></message>
<message><source>flag: Tonga</source><translation>Flagge: Tonga</translation></message>
<message><source>flag: Trinidad &amp; Tobago</source><translation>Flagge: Trinidad und Tobago</translation></message>
<message><source>flag: Tristan da Cunha</source><translation>Flagge: Tristan da Cunha</translation></message>
<message><source>flag: Tunisia</source><translation>Flagge: Tunesien</translation></message>
<message><source>flag: Turkmenistan</source><translation>Flagge: Turkmenistan</translation></message>
<message><source>flag: Turks &amp; Caicos Islands</source><translation>Flagge: Turks- und Caicosinseln</translation></message>
<message><source>flag: Tuvalu</source><translation>Flagge: Tuvalu</translation></message>
<message><source>flag: Türkiye</source><translation>Flagge: Türkei</translation></message>
<message><source>flag: U.S. Outlying Islands</source><translation>Flagge: Amerikanische Überseeinseln</translation></message>
<message><source>flag: U.S. Virgin Islands</source><translation>Flagge: Amerikanische Jungferninseln</translation></message>
<message><source>flag: Uganda</source><translation>Flagge: Uganda</translation></message>
<message><source>flag: Ukraine</source><translation>Flagge: Ukraine</translation></message>
<message><source>flag: United Arab Emirates</source><translation>Flagge: Vereinigte Arabische Emirate</translation></message>
<message><source>flag: United Kingdom</source><translation>Flagge: Vereinigtes Königreich</translation></message>
<message><source>flag: United Nations</source><translation>Flagge: Vereinte Nationen</translation></message>
<message><source>flag: United States</source><translation>Flagge: Vereinigte Staaten</translation></message>
<message><source>flag: Uruguay</source><translation>Flagge: Uruguay</translation></message>
<message><source>flag: Uzbekistan</source><translation>Flagge: Usbekistan</translation></message>
<message><source>flag: Vanuatu</source><translation>Flagge: Vanuatu</translation></message>
<message><source>flag: Vatican City</source><translation>Flagge: Vatikanstadt</translation></message>
<message><source>flag: Venezuela</source><translation>Flagge: Venezuela</translation></message>
<message><source>flag: Vietnam</source><translation>Flagge: Vietnam</translation></message>
<message><source>flag: Wales</source><translation>Flagge: Wales</translation></message>
<message><source>flag: Wallis &amp; Futuna</source><translation>Flagge: Wallis und Futuna</translation></message>
<message><source>flag: Western Sahara</source><translation>Flagge: Westsahara</translation></message>
<message><source>flag: Yemen</source><translation>Flagge: Jemen</translation></message>
<message><source>flag: Zambia</source><translation>Flagge: Sambia</translation></message>
<message><source>flag: Zimbabwe</source><translation>Flagge: Simbabwe</translation></message>
<message><source>flag: Åland Islands</source><translation>Flagge: Ålandinseln</translation></message>
<message><source>flair</source><translation>Flair</translation></message>
<message><source>flame</source><translation>Flamme</translation></message>
<message><source>flamenco</source><translation>Flamenco</translation></message>
<message><source>flamingo</source><translation>Flamingo</translation></message>
<message><source>flashlight</source><translation>Taschenlampe</translation></message>
<message><source>flat shoe</source><translation>flacher Schuh</translation></message>
<message><source>flatbread</source><translation>Fladenbrot</translation></message>
<message><source>fleur-de-lis</source><translation>Lilie</translation></message>
<message><source>flexed biceps</source><translation>angespannter Bizeps</translation></message>
<message><source>flirt</source><translation>flirten</translation></message>
<message><source>flirting</source><translation>flirtend</translation></message>
<message><source>floppy disk</source><translation>Diskette</translation></message>
<message><source>flower</source><translation>Blume</translation></message>
<message><source>flower playing cards</source><translation>japanische Blumenkarte</translation></message>
<message><source>flushed face</source><translation>errötetes Gesicht mit großen Augen</translation></message>
<message><source>flute</source><translation>Flöte</translation></message>
<message><source>fly</source><translation>Fliege</translation></message>
<message><source>flying disc</source><translation>Frisbee</translation></message>
<message><source>flying saucer</source><translation>fliegende Untertasse</translation></message>
<message><source>focus</source><translation>Fokus</translation></message>
<message><source>fog</source><translation>Nebel</translation></message>
<message><source>foggy</source><translation>neblig</translation></message>
<message><source>folded hands</source><translation>zusammengelegte Handflächen</translation></message>
<message><source>folder</source><translation>Ordner</translation></message>
<message><source>folding hand fan</source><translation>Faltfächer</translation></message>
<message><source>fondue</source><translation>Fondue</translation></message>
<message><source>foot</source><translation>Fuß</translation></message>
<message><source>football</source><translation>Football</translation></message>
<message><source>footprints</source><translation>Fußabdrücke</translation></message>
<message><source>forbidden</source><translation>verboten</translation></message>
<message><source>forensics</source><translation>Forensik</translation></message>
<message><source>forgot</source><translation>vergessen</translation></message>
<message><source>fork and knife</source><translation>Messer und Gabel</translation></message>
<message><source>fork and knife with plate</source><translation>Teller mit Messer und Gabel</translation></message>
<message><source>formal</source><translation>formell</translation></message>
<message><source>fortune cookie</source><translation>Glückskeks</translation></message>
<message><source>fountain</source><translation>Springbrunnen</translation></message>
<message><source>fountain pen</source><translation>Füllhalter</translation></message>
<message><source>four leaf clover</source><translation>Glücksklee</translation></message>
<message><source>four o’clock</source><translation>4:00 Uhr</translation></message>
<message><source>four-thirty</source><translation>4:30 Uhr</translation></message>
<message><source>fox</source><translation>Fuchs</translation></message>
<message><source>frame</source><translation>Rahmen</translation></message>
<message><source>framed picture</source><translation>gerahmtes Bild</translation></message>
<message><source>frankfurter</source><translation>Frankfurter</translation></message>
<message><source>french fries</source><translation>Pommes frites</translation></message>
<message><source>fried shrimp</source><translation>frittierte Garnele</translation></message>
<message><source>frog</source><translation>Frosch</translation></message>
<message><source>front-facing baby chick</source><translation>Küken von vorne</translation></message>
<message><source>frowning face</source><translation>düsteres Gesicht</translation></message>
<message><source>frowning face with open mouth</source><translation>entsetztes Gesicht</translation></message>
<message><source>fruit</source><translation>Frucht</translation></message>
<message><source>frustrated</source><translation>frustriert</translation></message>
<message><source>fuel pump</source><translation>Tanksäule</translation></message>
<message><source>fuji</source><translation>Fuji</translation></message>
<message><source>full moon</source><translation>Vollmond</translation></message>
<message><source>full moon face</source><translation>Vollmond mit Gesicht</translation></message>
<message><source>funeral urn</source><translation>Urne</translation></message>
<message><source>fungi</source><translation>Fungus</translation></message>
<message><source>game die</source><translation>Spielwürfel</translation></message>
<message><source>gander</source><translation>Ganter</translation></message>
<message><source>garlic</source><translation>Knoblauch</translation></message>
<message><source>gear</source><translation>Zahnrad</translation></message>
<message><source>gem stone</source><translation>Edelstein</translation></message>
<message><source>genie</source><translation>Flaschengeist</translation></message>
<message><source>gesture</source><translation>Geste</translation></message>
<message><source>gesundheit</source><translation>Gesundheit</translation></message>
<message><source>ghost</source><translation>Gespenst</translation></message>
<message><source>ginger root</source><translation>Ingwer</translation></message>
<message><source>giraffe</source><translation>Giraffe</translation></message>
<message><source>girl</source><translation>Mädchen</translation></message>
<message><source>glass</source><translation>Glas</translation></message>
<message><source>glass of milk</source><translation>Glas Milch</translation></message>
<message><source>glasses</source><translation>Brille</translation></message>
<message><source>glittery</source><translation>glitzern</translation></message>
<message><source>globe</source><translation>Globus</translation></message>
<message><source>globe showing Americas</source><translation>Globus mit Amerika</translation></message>
<message><source>globe showing Asia-Australia</source><translation>Globus mit Asien und Australien</translation></message>
<message><source>globe showing Europe-Africa</source><translation>Globus mit Europa und Afrika</translation></message>
<message><source>globe with meridians</source><translation>Globus mit Meridianen</translation></message>
<message><source>gloves</source><translation>Handschuhe</translation></message>
<message><source>glowing star</source><translation>funkelnder Stern</translation></message>
<message><source>goal</source><translation>Tor</translation></message>
<message><source>goal net</source><translation>Tor</translation></message>
<message><source>goat</source><translation>Ziege</translation></message>
<message><source>goblin</source><translation>Kobold</translation></message>
<message><source>goggles</source><translation>Schutzbrille</translation></message>
<message><source>gondola</source><translation>Gondel</translation></message>
<message><source>goose</source><translation>Gans</translation></message>
<message><source>gorilla</source><translation>Gorilla</translation></message>
<message><source>graduation cap</source><translation>Doktorhut</translation></message>
<message><source>grapes</source><translation>Trauben</translation></message>
<message><source>grasshopper</source><translation>grashüpfer</translation></message>
<message><source>gray</source><translation>grau</translation></message>
<message><source>green apple</source><translation>grüner Apfel</translation></message>
<message><source>green book</source><translation>grünes Buch</translation></message>
<message><source>green circle</source><translation>grüner Punkt</translation></message>
<message><source>green heart</source><translation>grünes Herz</translation></message>
<message><source>green salad</source><translation>Salat</translation></message>
<message><source>green square</source><translation>grünes Quadrat</translation></message>
<message><source>grey heart</source><translation>graues Herz</translation></message>
<message><source>grimace</source><translation>Grimasse</translation></message>
<message><source>grimacing face</source><translation>Grimassen schneidendes Gesicht</translation></message>
<message><source>grin</source><translation>grinsen</translation></message>
<message><source>grinning</source><translation>lustig</translation></message>
<message><source>grinning cat</source><translation>grinsende Katze</translation></message>
<message><source>grinning cat with smiling eyes</source><translation>grinsende Katze mit lachenden Augen</translation></message>
<message><source>grinning face</source><translation>grinsendes Gesicht</translation></message>
<message><source>grinning face with big eyes</source><translation>grinsendes Gesicht mit großen Augen</translation></message>
<message><source>grinning face with smiling eyes</source><translation>grinsendes Gesicht mit lachenden Augen</translation></message>
<message><source>grinning face with sweat</source><translation>grinsendes Gesicht mit Schweißtropfen</translation></message>
<message><source>grinning squinting face</source><translation>Grinsegesicht mit zugekniffenen Augen</translation></message>
<message><source>growing heart</source><translation>wachsendes Herz</translation></message>
<message><source>guard</source><translation>Wache</translation></message>
<message><source>guide dog</source><translation>Blindenhund</translation></message>
<message><source>guitar</source><translation>Gitarre</translation></message>
<message><source>gymnastics</source><translation>Gymnastik</translation></message>
<message><source>gyōza</source><translation>Gyōza</translation></message>
<message><source>haha</source><translation>haha</translation></message>
<message><source>hair</source><translation>Haar</translation></message>
<message><source>hair pick</source><translation>Haarkamm</translation></message>
<message><source>hajj</source><translation>Hajj</translation></message>
<message><source>halloween</source><translation>Halloween</translation></message>
<message><source>halt</source><translation>Halt</translation></message>
<message><source>hamburger</source><translation>Hamburger</translation></message>
<message><source>hammer</source><translation>Hammer</translation></message>
<message><source>hammer and pick</source><translation>Hammer und Pickel</translation></message>
<message><source>hammer and wrench</source><translation>Hammer und Schraubenschlüssel</translation></message>
<message><source>hamsa</source><translation>Hamsa</translation></message>
<message><source>hamster</source><translation>Hamster</translation></message>
<message><source>hand</source><translation>Hand</translation></message>
<message><source>hand with fingers splayed</source><translation>Hand mit gespreizten Fingern</translation></message>
<message><source>hand with index finger and thumb crossed</source><translation>Hand mit gekreuztem Zeigefinger und Daumen</translation></message>
<message><source>handbag</source><translation>Handtasche</translation></message>
<message><source>handball</source><translation>Handball</translation></message>
<message><source>hands</source><translation>Hände</translation></message>
<message><source>handshake</source><translation>Handschlag</translation></message>
<message><source>happy</source><translation>fröhlich</translation></message>
<message><source>harp</source><translation>Harfe</translation></message>
<message><source>hashi</source><translation>Hashi</translation></message>
<message><source>hat</source><translation>Hut</translation></message>
<message><source>hatching chick</source><translation>schlüpfendes Küken</translation></message>
<message><source>head shaking horizontally</source><translation>Kopfschütteln</translation></message>
<message><source>head shaking vertically</source><translation>Kopfnicken</translation></message>
<message><source>headache</source><translation>Kopfschmerzen</translation></message>
<message><source>headphone</source><translation>Kopfhörer</translation></message>
<message><source>headstone</source><translation>Grabstein</translation></message>
<message><source>health worker</source><translation>Arzt/Ärztin</translation></message>
<message><source>hear</source><translation>hören</translation></message>
<message><source>hear-no-evil monkey</source><translation>sich die Ohren zuhaltendes Affengesicht</translation></message>
<message><source>heart</source><translation>Herz</translation></message>
<message><source>heart decoration</source><translation>Herzdekoration</translation></message>
<message><source>heart exclamation</source><translation>Herz als Ausrufezeichen</translation></message>
<message><source>heart hands</source><translation>Hände, die Herz bilden</translation></message>
<message><source>heart on fire</source><translation>Herz in Flammen</translation></message>
<message><source>heart suit</source><translation>Herz</translation></message>
<message><source>heart with arrow</source><translation>Herz mit Pfeil</translation></message>
<message><source>heart with ribbon</source><translation>Herz mit Schleife</translation></message>
<message><source>heartbeat</source><translation>schlagen</translation></message>
<message><source>hearts</source><translation>Herzen</translation></message>
<message><source>heavy dollar sign</source><translation>Dollarzeichen extrafett</translation></message>
<message><source>heavy equals sign</source><translation>Gleichheitszeichen extrafett</translation></message>
<message><source>hedgehog</source><translation>Igel</translation></message>
<message><source>helicopter</source><translation>Hubschrauber</translation></message>
<message><source>helmet</source><translation>Helm</translation></message>
<message><source>herb</source><translation>Kräuter</translation></message>
<message><source>herd</source><translation>Herde</translation></message>
<message><source>hibiscus</source><translation>Hibiskus</translation></message>
<message><source>high</source><translation>High 5</translation></message>
<message><source>high voltage</source><translation>Hochspannung</translation></message>
<message><source>high-heeled shoe</source><translation>Stöckelschuh</translation></message>
<message><source>high-speed train</source><translation>Hochgeschwindigkeitszug mit spitzer Nase</translation></message>
<message><source>hijab</source><translation>Hijab</translation></message>
<message><source>hiking boot</source><translation>Wanderstiefel</translation></message>
<message><source>hilarious</source><translation>muahaha</translation></message>
<message><source>hindu</source><translation>Hindu</translation></message>
<message><source>hindu temple</source><translation>Hindutempel</translation></message>
<message><source>hippo</source><translation>Hippo</translation></message>
<message><source>hippopotamus</source><translation>Nilpferd</translation></message>
<message><source>hockey</source><translation>Hockey</translation></message>
<message><source>hole</source><translation>Loch</translation></message>
<message><source>holi</source><translation>Holi</translation></message>
<message><source>hollow red circle</source><translation>hohler roter Kreis</translation></message>
<message><source>honey pot</source><translation>Honigtopf</translation></message>
<message><source>honeybee</source><translation>Biene</translation></message>
<message><source>hook</source><translation>Haken</translation></message>
<message><source>horizontal traffic light</source><translation>horizontale Verkehrsampel</translation></message>
<message><source>horns</source><translation>Hörner</translation></message>
<message><source>horoscope</source><translation>Horoskop</translation></message>
<message><source>horror</source><translation>Horror</translation></message>
<message><source>horse</source><translation>Pferd</translation></message>
<message><source>horse face</source><translation>Pferdegesicht</translation></message>
<message><source>horse racing</source><translation>Pferderennen</translation></message>
<message><source>hospital</source><translation>Krankenhaus</translation></message>
<message><source>hot</source><translation>heiß</translation></message>
<message><source>hot beverage</source><translation>Heißgetränk</translation></message>
<message><source>hot dog</source><translation>Hotdog</translation></message>
<message><source>hot face</source><translation>schwitzendes Gesicht</translation></message>
<message><source>hot pepper</source><translation>Peperoni</translation></message>
<message><source>hot springs</source><translation>heiße Quellen</translation></message>
<message><source>hotel</source><translation>Hotel</translation></message>
<message><source>hotspot</source><translation>Hotspot</translation></message>
<message><source>hourglass done</source><translation>Sanduhr</translation></message>
<message><source>hourglass not done</source><translation>laufende Sanduhr</translation></message>
<message><source>house</source><translation>Haus</translation></message>
<message><source>house with garden</source><translation>Haus mit Garten</translation></message>
<message><source>houses</source><translation>Wohnhäuser</translation></message>
<message><source>hug</source><translation>Umarmung</translation></message>
<message><source>hundred points</source><translation>100 Punkte</translation></message>
<message><source>hushed face</source><translation>verdutztes Gesicht</translation></message>
<message><source>hut</source><translation>Hütte</translation></message>
<message><source>hyacinth</source><translation>Hyazinthe</translation></message>
<message><source>ice</source><translation>Eiswürfel</translation></message>
<message><source>ice cream</source><translation>Eiscreme</translation></message>
<message><source>ice hockey</source><translation>Eishockey</translation></message>
<message><source>ice skate</source><translation>Schlittschuh</translation></message>
<message><source>iceberg</source><translation>Eisberg</translation></message>
<message><source>idea</source><translation>Idee</translation></message>
<message><source>identification card</source><translation>Ausweis</translation></message>
<message><source>identity</source><translation>Identität</translation></message>
<message><source>ideograph</source><translation>japanisches Schriftzeichen</translation></message>
<message><source>inbox tray</source><translation>Posteingang</translation></message>
<message><source>incoming envelope</source><translation>eingehender Briefumschlag</translation></message>
<message><source>index pointing at the viewer</source><translation>auf Betrachter zeigender Zeigefinger</translation></message>
<message><source>index pointing up</source><translation>nach oben weisender Zeigefinger von vorne</translation></message>
<message><source>industrial</source><translation>industriell</translation></message>
<message><source>infinity</source><translation>Unendlichkeit</translation></message>
<message><source>information</source><translation>Buchstabe „i“ in blauem Quadrat</translation></message>
<message><source>input</source><translation>Symbol</translation></message>
<message><source>input latin letters</source><translation>Eingabesymbol lateinische Buchstaben</translation></message>
<message><source>input latin lowercase</source><translation>Eingabesymbol lateinische Kleinbuchstaben</translation></message>
<message><source>input latin uppercase</source><translation>Eingabesymbol lateinische Großbuchstaben</translation></message>
<message><source>input numbers</source><translation>Eingabesymbol Zahlen</translation></message>
<message><source>input symbols</source><translation>Eingabesymbol Sonderzeichen</translation></message>
<message><source>insect</source><translation>Insekt</translation></message>
<message><source>instrument</source><translation>Musikinstrument</translation></message>
<message><source>intelligent</source><translation>intelligent</translation></message>
<message><source>internet</source><translation>Internet</translation></message>
<message><source>introvert</source><translation>introvertiert</translation></message>
<message><source>irish</source><translation>Kleeblatt</translation></message>
<message><source>ironic</source><translation>ironisch</translation></message>
<message><source>islam</source><translation>Islam</translation></message>
<message><source>jack-o-lantern</source><translation>Halloweenkürbis</translation></message>
<message><source>jacket</source><translation>Jacke</translation></message>
<message><source>jar</source><translation>Einmachglas</translation></message>
<message><source>jazz</source><translation>Jazz</translation></message>
<message><source>jeans</source><translation>Jeans</translation></message>
<message><source>jellyfish</source><translation>Qualle</translation></message>
<message><source>jiaozi</source><translation>Jiaozi</translation></message>
<message><source>joker</source><translation>Jokerkarte</translation></message>
<message><source>joy</source><translation>Tränen</translation></message>
<message><source>joystick</source><translation>Joystick</translation></message>
<message><source>judaism</source><translation>jüdisch</translation></message>
<message><source>judge</source><translation>Richter(in)</translation></message>
<message><source>judo</source><translation>Judo</translation></message>
<message><source>kaaba</source><translation>Kaaba</translation></message>
<message><source>kangaroo</source><translation>Känguru</translation></message>
<message><source>karaoke</source><translation>Karaoke</translation></message>
<message><source>karate</source><translation>Karate</translation></message>
<message><source>key</source><translation>Schlüssel</translation></message>
<message><source>keyboard</source><translation>Tastatur</translation></message>
<message><source>keycap</source><translation>Taste</translation></message>
<message><source>keycap: #</source><translation>Taste: #</translation></message>
<message><source>keycap: *</source><translation>Taste: *</translation></message>
<message><source>keycap: 0</source><translation>Taste: 0</translation></message>
<message><source>keycap: 1</source><translation>Taste: 1</translation></message>
<message><source>keycap: 10</source><translation>Taste: 10</translation></message>
<message><source>keycap: 2</source><translation>Taste: 2</translation></message>
<message><source>keycap: 3</source><translation>Taste: 3</translation></message>
<message><source>keycap: 4</source><translation>Taste: 4</translation></message>
<message><source>keycap: 5</source><translation>Taste: 5</translation></message>
<message><source>keycap: 6</source><translation>Taste: 6</translation></message>
<message><source>keycap: 7</source><translation>Taste: 7</translation></message>
<message><source>keycap: 8</source><translation>Taste: 8</translation></message>
<message><source>keycap: 9</source><translation>Taste: 9</translation></message>
<message><source>khanda</source><translation>Khanda</translation></message>
<message><source>kick scooter</source><translation>Tretroller</translation></message>
<message><source>kidney</source><translation>Kidneybohne</translation></message>
<message><source>kimono</source><translation>Kimono</translation></message>
<message><source>kiss</source><translation>sich küssendes Paar</translation></message>
<message><source>kiss mark</source><translation>Kussabdruck</translation></message>
<message><source>kiss: man, man</source><translation>sich küssendes Paar: Mann, Mann</translation></message>
<message><source>kiss: woman, man</source><translation>sich küssendes Paar: Frau, Mann</translation></message>
<message><source>kiss: woman, woman</source><translation>sich küssendes Paar: Frau, Frau</translation></message>
<message><source>kisses</source><translation>Küsse</translation></message>
<message><source>kissing</source><translation>küssen</translation></message>
<message><source>kissing cat</source><translation>küssende Katze</translation></message>
<message><source>kissing face</source><translation>küssendes Gesicht</translation></message>
<message><source>kissing face with closed eyes</source><translation>küssendes Gesicht mit geschlossenen Augen</translation></message>
<message><source>kissing face with smiling eyes</source><translation>küssendes Gesicht mit lächelnden Augen</translation></message>
<message><source>kitchen knife</source><translation>Küchenmesser</translation></message>
<message><source>kite</source><translation>Drachen</translation></message>
<message><source>kiwi</source><translation>Kiwi</translation></message>
<message><source>kiwi fruit</source><translation>Kiwi</translation></message>
<message><source>knee</source><translation>Knie</translation></message>
<message><source>knife</source><translation>Messer</translation></message>
<message><source>knot</source><translation>Knoten</translation></message>
<message><source>koala</source><translation>Koala</translation></message>
<message><source>lab</source><translation>Labor</translation></message>
<message><source>lab coat</source><translation>Laborkittel</translation></message>
<message><source>label</source><translation>Etikett</translation></message>
<message><source>lacrosse</source><translation>Lacrosse</translation></message>
<message><source>ladder</source><translation>Leiter</translation></message>
<message><source>lady beetle</source><translation>Marienkäfer</translation></message>
<message><source>lake</source><translation>See</translation></message>
<message><source>lamp</source><translation>Lampe</translation></message>
<message><source>laptop</source><translation>Laptop</translation></message>
<message><source>large blue diamond</source><translation>große blaue Raute</translation></message>
<message><source>large orange diamond</source><translation>große orangefarbene Raute</translation></message>
<message><source>last quarter moon</source><translation>abnehmender Halbmond</translation></message>
<message><source>last quarter moon face</source><translation>Mondsichel mit Gesicht rechts</translation></message>
<message><source>last track button</source><translation>Vorheriger Titel</translation></message>
<message><source>latin</source><translation>lateinisch</translation></message>
<message><source>latin cross</source><translation>lateinisches Kreuz</translation></message>
<message><source>laugh</source><translation>lol</translation></message>
<message><source>lavash</source><translation>Lavasch</translation></message>
<message><source>lavender</source><translation>Lavendel</translation></message>
<message><source>leaf</source><translation>Blatt</translation></message>
<message><source>leaf fluttering in wind</source><translation>Blätter im Wind</translation></message>
<message><source>leafless tree</source><translation>kahler Baum</translation></message>
<message><source>leafy green</source><translation>Blattgemüse</translation></message>
<message><source>lecturer</source><translation>Lehrer</translation></message>
<message><source>ledger</source><translation>Spiralblock</translation></message>
<message><source>left arrow</source><translation>Pfeil nach links</translation></message>
<message><source>left arrow curving right</source><translation>geschwungener Pfeil nach rechts</translation></message>
<message><source>left luggage</source><translation>Gepäckaufbewahrung</translation></message>
<message><source>left speech bubble</source><translation>Sprechblase links</translation></message>
<message><source>left-facing fist</source><translation>Faust nach links</translation></message>
<message><source>left-right arrow</source><translation>Pfeil nach links und rechts</translation></message>
<message><source>leftwards hand</source><translation>nach links weisende Hand</translation></message>
<message><source>leftwards pushing hand</source><translation>nach links schiebende Hand</translation></message>
<message><source>leg</source><translation>Bein</translation></message>
<message><source>lemon</source><translation>Zitrone</translation></message>
<message><source>leopard</source><translation>Leopard</translation></message>
<message><source>level slider</source><translation>Schieberegler</translation></message>
<message><source>lift</source><translation>Lift</translation></message>
<message><source>light blue heart</source><translation>hellblaues Herz</translation></message>
<message><source>light bulb</source><translation>Glühbirne</translation></message>
<message><source>light rail</source><translation>S-Bahn</translation></message>
<message><source>light skin tone</source><translation>helle Hautfarbe</translation></message>
<message><source>lightning</source><translation>Gewitter</translation></message>
<message><source>like</source><translation>like</translation></message>
<message><source>lime</source><translation>Limette</translation></message>
<message><source>link</source><translation>Linksymbol</translation></message>
<message><source>linked paperclips</source><translation>verhakte Büroklammern</translation></message>
<message><source>lion</source><translation>Löwe</translation></message>
<message><source>lips</source><translation>Lippen</translation></message>
<message><source>lipstick</source><translation>Lippenstift</translation></message>
<message><source>litter in bin sign</source><translation>Symbol „Papierkorb“</translation></message>
<message><source>lizard</source><translation>Eidechse</translation></message>
<message><source>llama</source><translation>Lama</translation></message>
<message><source>lobster</source><translation>Hummer</translation></message>
<message><source>locked</source><translation>geschlossenes Schloss</translation></message>
<message><source>locked with key</source><translation>Schloss mit Schlüssel</translation></message>
<message><source>locked with pen</source><translation>Schloss mit Füller</translation></message>
<message><source>locomotive</source><translation>Dampflokomotive</translation></message>
<message><source>lollipop</source><translation>Lutscher</translation></message>
<message><source>london</source><translation>London</translation></message>
<message><source>long drum</source><translation>afrikanische Trommel</translation></message>
<message><source>losing</source><translation>verloren</translation></message>
<message><source>lotion</source><translation>Lotion</translation></message>
<message><source>lotion bottle</source><translation>Creme</translation></message>
<message><source>lotus</source><translation>Lotusblüte</translation></message>
<message><source>loudly crying face</source><translation>heulendes Gesicht</translation></message>
<message><source>loudspeaker</source><translation>Lautsprecher</translation></message>
<message><source>love</source><translation>Liebe</translation></message>
<message><source>love hotel</source><translation>Stundenhotel</translation></message>
<message><source>love letter</source><translation>Liebesbrief</translation></message>
<message><source>love-you gesture</source><translation>Ich-liebe-dich-Geste</translation></message>
<message><source>low battery</source><translation>schwache Batterie</translation></message>
<message><source>lucky</source><translation>Glück</translation></message>
<message><source>luggage</source><translation>Gepäck</translation></message>
<message><source>lungs</source><translation>Lunge</translation></message>
<message><source>lupine</source><translation>Lupine</translation></message>
<message><source>luxurious</source><translation>luxuriös</translation></message>
<message><source>luxury</source><translation>Luxus</translation></message>
<message><source>lying face</source><translation>lügendes Gesicht</translation></message>
<message><source>mage</source><translation>Magier(in)</translation></message>
<message><source>magic</source><translation>Magie</translation></message>
<message><source>magic wand</source><translation>Zauberstab</translation></message>
<message><source>magical</source><translation>magisch</translation></message>
<message><source>magnet</source><translation>Magnet</translation></message>
<message><source>magnetic</source><translation>magnetisch</translation></message>
<message><source>magnifying glass tilted left</source><translation>Lupe nach links</translation></message>
<message><source>magnifying glass tilted right</source><translation>Lupe nach rechts</translation></message>
<message><source>mahjong red dragon</source><translation>Mahjong-Stein</translation></message>
<message><source>mail</source><translation>Briefkasten</translation></message>
<message><source>malaria</source><translation>Malaria</translation></message>
<message><source>male sign</source><translation>Männersymbol</translation></message>
<message><source>mammal</source><translation>Säugetier</translation></message>
<message><source>mammoth</source><translation>Mammut</translation></message>
<message><source>man</source><translation>Mann</translation></message>
<message><source>man artist</source><translation>Künstler</translation></message>
<message><source>man astronaut</source><translation>Astronaut</translation></message>
<message><source>man biking</source><translation>Radfahrer</translation></message>
<message><source>man bouncing ball</source><translation>Mann mit Ball</translation></message>
<message><source>man bowing</source><translation>sich verbeugender Mann</translation></message>
<message><source>man cartwheeling</source><translation>Rad schlagender Mann</translation></message>
<message><source>man climbing</source><translation>Bergsteiger</translation></message>
<message><source>man construction worker</source><translation>Bauarbeiter</translation></message>
<message><source>man cook</source><translation>Koch</translation></message>
<message><source>man dancing</source><translation>tanzender Mann</translation></message>
<message><source>man detective</source><translation>Detektiv</translation></message>
<message><source>man elf</source><translation>Elf</translation></message>
<message><source>man facepalming</source><translation>sich an den Kopf fassender Mann</translation></message>
<message><source>man factory worker</source><translation>Fabrikarbeiter</translation></message>
<message><source>man fairy</source><translation>männliche Fee</translation></message>
<message><source>man farmer</source><translation>Bauer</translation></message>
<message><source>man feeding baby</source><translation>Mann, der Baby die Flasche gibt</translation></message>
<message><source>man firefighter</source><translation>Feuerwehrmann</translation></message>
<message><source>man frowning</source><translation>missmutiger Mann</translation></message>
<message><source>man genie</source><translation>männlicher Flaschengeist</translation></message>
<message><source>man gesturing NO</source><translation>Mann mit überkreuzten Armen</translation></message>
<message><source>man gesturing OK</source><translation>Mann mit Händen auf dem Kopf</translation></message>
<message><source>man getting haircut</source><translation>Mann beim Haareschneiden</translation></message>
<message><source>man getting massage</source><translation>Mann, der eine Kopfmassage bekommt</translation></message>
<message><source>man golfing</source><translation>Golfer</translation></message>
<message><source>man guard</source><translation>Wachsoldat</translation></message>
<message><source>man health worker</source><translation>Arzt</translation></message>
<message><source>man in lotus position</source><translation>Mann im Lotossitz</translation></message>
<message><source>man in manual wheelchair</source><translation>Mann in manuellem Rollstuhl</translation></message>
<message><source>man in manual wheelchair: facing right</source><translation>Mann in manuellem Rollstuhl: nach rechts</translation></message>
<message><source>man in motorized wheelchair</source><translation>Mann in elektrischem Rollstuhl</translation></message>
<message><source>man in motorized wheelchair: facing right</source><translation>Mann in elektrischem Rollstuhl: nach rechts</translation></message>
<message><source>man in steamy room</source><translation>Mann in Dampfsauna</translation></message>
<message><source>man in tuxedo</source><translation>Mann im Smoking</translation></message>
<message><source>man judge</source><translation>Richter</translation></message>
<message><source>man juggling</source><translation>Jongleur</translation></message>
<message><source>man kneeling</source><translation>kniender Mann</translation></message>
<message><source>man kneeling: facing right</source><translation>kniender Mann: nach rechts</translation></message>
<message><source>man lifting weights</source><translation>Gewichtheber</translation></message>
<message><source>man mage</source><translation>Magier</translation></message>
<message><source>man mechanic</source><translation>Mechaniker</translation></message>
<message><source>man mountain biking</source><translation>Mountainbiker</translation></message>
<message><source>man office worker</source><translation>Büroangestellter</translation></message>
<message><source>man pilot</source><translation>Pilot</translation></message>
<message><source>man playing handball</source><translation>Handballspieler</translation></message>
<message><source>man playing water polo</source><translation>Wasserballspieler</translation></message>
<message><source>man police officer</source><translation>Polizist</translation></message>
<message><source>man pouting</source><translation>schmollender Mann</translation></message>
<message><source>man raising hand</source><translation>Mann mit erhobenem Arm</translation></message>
<message><source>man rowing boat</source><translation>Mann im Ruderboot</translation></message>
<message><source>man running</source><translation>laufender Mann</translation></message>
<message><source>man running: facing right</source><translation>laufender Mann: nach rechts</translation></message>
<message><source>man scientist</source><translation>Wissenschaftler</translation></message>
<message><source>man shrugging</source><translation>schulterzuckender Mann</translation></message>
<message><source>man singer</source><translation>Sänger</translation></message>
<message><source>man standing</source><translation>stehender Mann</translation></message>
<message><source>man student</source><translation>Student</translation></message>
<message><source>man superhero</source><translation>Superheld</translation></message>
<message><source>man supervillain</source><translation>männlicher Bösewicht</translation></message>
<message><source>man surfing</source><translation>Surfer</translation></message>
<message><source>man swimming</source><translation>Schwimmer</translation></message>
<message><source>man teacher</source><translation>Lehrer</translation></message>
<message><source>man technologist</source><translation>IT-Experte</translation></message>
<message><source>man tipping hand</source><translation>Infoschalter-Mitarbeiter</translation></message>
<message><source>man vampire</source><translation>männlicher Vampir</translation></message>
<message><source>man walking</source><translation>Fußgänger</translation></message>
<message><source>man walking: facing right</source><translation>Fußgänger: nach rechts</translation></message>
<message><source>man wearing turban</source><translation>Mann mit Turban</translation></message>
<message><source>man with veil</source><translation>Mann mit Schleier</translation></message>
<message><source>man with white cane</source><translation>Mann mit Langstock</translation></message>
<message><source>man with white cane: facing right</source><translation>Mann mit Langstock: nach rechts</translation></message>
<message><source>man zombie</source><translation>männlicher Zombie</translation></message>
<message><source>man: bald</source><translation>Mann: Glatze</translation></message>
<message><source>man: beard</source><translation>Mann: Bart</translation></message>
<message><source>man: blond hair</source><translation>Mann: blond</translation></message>
<message><source>man: curly hair</source><translation>Mann: lockiges Haar</translation></message>
<message><source>man: red hair</source><translation>Mann: rotes Haar</translation></message>
<message><source>man: white hair</source><translation>Mann: weißes Haar</translation></message>
<message><source>mango</source><translation>Mango</translation></message>
<message><source>manicure</source><translation>Maniküre</translation></message>
<message><source>mantelpiece clock</source><translation>Kaminuhr</translation></message>
<message><source>mantilla</source><translation>Mantilla</translation></message>
<message><source>manual wheelchair</source><translation>manueller Rollstuhl</translation></message>
<message><source>man’s shoe</source><translation>Herrenschuh</translation></message>
<message><source>map of Japan</source><translation>Umriss von Japan</translation></message>
<message><source>maple leaf</source><translation>Ahornblatt</translation></message>
<message><source>maracas</source><translation>Maracas</translation></message>
<message><source>marathon</source><translation>Marathon</translation></message>
<message><source>marker</source><translation>Pagemarker</translation></message>
<message><source>market</source><translation>Markt</translation></message>
<message><source>martial arts uniform</source><translation>Kampfsportanzug</translation></message>
<message><source>martini</source><translation>martini</translation></message>
<message><source>mate</source><translation>Mate-Tee</translation></message>
<message><source>math</source><translation>Mathe</translation></message>
<message><source>meat on bone</source><translation>Fleischhachse</translation></message>
<message><source>mechanic</source><translation>Mechaniker(in)</translation></message>
<message><source>mechanical arm</source><translation>Armprothese</translation></message>
<message><source>mechanical leg</source><translation>Beinprothese</translation></message>
<message><source>medical symbol</source><translation>Äskulapstab</translation></message>
<message><source>medicine</source><translation>Medizin</translation></message>
<message><source>meditation</source><translation>Meditation</translation></message>
<message><source>medium skin tone</source><translation>mittlere Hautfarbe</translation></message>
<message><source>medium-dark skin tone</source><translation>mitteldunkle Hautfarbe</translation></message>
<message><source>medium-light skin tone</source><translation>mittelhelle Hautfarbe</translation></message>
<message><source>megaphone</source><translation>Megafon</translation></message>
<message><source>melon</source><translation>Honigmelone</translation></message>
<message><source>melting face</source><translation>schmelzendes Gesicht</translation></message>
<message><source>memo</source><translation>Papier und Bleistift</translation></message>
<message><source>men</source><translation>Männer</translation></message>
<message><source>men holding hands</source><translation>Händchen haltende Männer</translation></message>
<message><source>men with bunny ears</source><translation>Männer mit Hasenohren</translation></message>
<message><source>men wrestling</source><translation>ringende Männer</translation></message>
<message><source>mending heart</source><translation>Herz mit Verband</translation></message>
<message><source>menorah</source><translation>Menora</translation></message>
<message><source>menstruation</source><translation>Menstruation</translation></message>
<message><source>men’s room</source><translation>Herren</translation></message>
<message><source>mermaid</source><translation>Meerjungfrau</translation></message>
<message><source>merman</source><translation>Wassermann</translation></message>
<message><source>merperson</source><translation>Wassermensch</translation></message>
<message><source>metal</source><translation>Metall</translation></message>
<message><source>metro</source><translation>U-Bahn</translation></message>
<message><source>mexican</source><translation>mexikanisch</translation></message>
<message><source>microbe</source><translation>Mikrobe</translation></message>
<message><source>microphone</source><translation>Mikrofon</translation></message>
<message><source>microscope</source><translation>Mikroskop</translation></message>
<message><source>middle finger</source><translation>Mittelfinger</translation></message>
<message><source>military</source><translation>Militär</translation></message>
<message><source>military helmet</source><translation>Militärhelm</translation></message>
<message><source>military medal</source><translation>Militärorden</translation></message>
<message><source>milk</source><translation>Milch</translation></message>
<message><source>milky way</source><translation>Milchstraße</translation></message>
<message><source>million</source><translation>Moneten</translation></message>
<message><source>minibus</source><translation>Kleinbus</translation></message>
<message><source>minus</source><translation>minus</translation></message>
<message><source>mirror</source><translation>Spiegel</translation></message>
<message><source>mirror ball</source><translation>Discokugel</translation></message>
<message><source>moai</source><translation>Statue</translation></message>
<message><source>mobile phone</source><translation>Mobiltelefon</translation></message>
<message><source>mobile phone off</source><translation>Mobiltelefon aus</translation></message>
<message><source>mobile phone with arrow</source><translation>Mobiltelefon mit Pfeil</translation></message>
<message><source>money</source><translation>Geld</translation></message>
<message><source>money bag</source><translation>Geldsack</translation></message>
<message><source>money with wings</source><translation>Geldschein mit Flügeln</translation></message>
<message><source>money-mouth face</source><translation>Gesicht mit Dollarzeichen</translation></message>
<message><source>monitor</source><translation>Monitor</translation></message>
<message><source>monkey</source><translation>Affe</translation></message>
<message><source>monkey face</source><translation>Affengesicht</translation></message>
<message><source>monocle</source><translation>Monokel</translation></message>
<message><source>monorail</source><translation>Einschienenbahn</translation></message>
<message><source>monster</source><translation>Monster</translation></message>
<message><source>moon</source><translation>Mond</translation></message>
<message><source>moon cake</source><translation>Mondkuchen</translation></message>
<message><source>moon viewing ceremony</source><translation>traditionelles Mondfest</translation></message>
<message><source>moose</source><translation>Elch</translation></message>
<message><source>mosque</source><translation>Moschee</translation></message>
<message><source>mosquito</source><translation>Mücke</translation></message>
<message><source>motor boat</source><translation>Motorboot</translation></message>
<message><source>motor scooter</source><translation>Motorroller</translation></message>
<message><source>motorboat</source><translation>Motorboot</translation></message>
<message><source>motorcycle</source><translation>Motorrad</translation></message>
<message><source>motorized wheelchair</source><translation>elektrischer Rollstuhl</translation></message>
<message><source>motorway</source><translation>Autobahn</translation></message>
<message><source>mount fuji</source><translation>Fuji</translation></message>
<message><source>mountain</source><translation>Berg</translation></message>
<message><source>mountain cableway</source><translation>Bergschwebebahn</translation></message>
<message><source>mountain railway</source><translation>Bergbahn</translation></message>
<message><source>mouse</source><translation>Maus</translation></message>
<message><source>mouse face</source><translation>Mäusegesicht</translation></message>
<message><source>mouse trap</source><translation>Mausefalle</translation></message>
<message><source>mouth</source><translation>Mund</translation></message>
<message><source>movie</source><translation>Kino</translation></message>
<message><source>movie camera</source><translation>Filmkamera</translation></message>
<message><source>multiplication</source><translation>Multiplikationszeichen</translation></message>
<message><source>multiply</source><translation>mal</translation></message>
<message><source>munch</source><translation>Munch</translation></message>
<message><source>mushroom</source><translation>Fliegenpilz</translation></message>
<message><source>music</source><translation>Musik</translation></message>
<message><source>musical keyboard</source><translation>Klaviatur</translation></message>
<message><source>musical note</source><translation>Musiknote</translation></message>
<message><source>musical notes</source><translation>Musiknoten</translation></message>
<message><source>musical score</source><translation>Notenschlüssel</translation></message>
<message><source>muted speaker</source><translation>durchgestrichener Lautsprecher</translation></message>
<message><source>mythology</source><translation>Mythologie</translation></message>
<message><source>naan</source><translation>Naan</translation></message>
<message><source>nail polish</source><translation>Nagellack</translation></message>
<message><source>name badge</source><translation>Namensschild</translation></message>
<message><source>national</source><translation>Nationalpark</translation></message>
<message><source>national park</source><translation>Nationalpark</translation></message>
<message><source>nauseated face</source><translation>würgendes Gesicht</translation></message>
<message><source>navigation</source><translation>Navigation</translation></message>
<message><source>nazar</source><translation>Nazar</translation></message>
<message><source>nazar amulet</source><translation>Nazar-Amulett</translation></message>
<message><source>necktie</source><translation>Hemd mit Krawatte</translation></message>
<message><source>needle</source><translation>Nadel</translation></message>
<message><source>nerd</source><translation>Nerd</translation></message>
<message><source>nerd face</source><translation>Strebergesicht</translation></message>
<message><source>nervous</source><translation>nervös</translation></message>
<message><source>nest with eggs</source><translation>Nest mit Eiern</translation></message>
<message><source>nesting</source><translation>Nest</translation></message>
<message><source>nesting dolls</source><translation>Matroschka</translation></message>
<message><source>network</source><translation>Netzwerk</translation></message>
<message><source>neutral</source><translation>neutral</translation></message>
<message><source>neutral face</source><translation>neutrales Gesicht</translation></message>
<message><source>new moon</source><translation>Neumond</translation></message>
<message><source>new moon face</source><translation>Neumond mit Gesicht</translation></message>
<message><source>newspaper</source><translation>Zeitung</translation></message>
<message><source>next track button</source><translation>Nächster Titel</translation></message>
<message><source>night with stars</source><translation>Sternenhimmel</translation></message>
<message><source>nine o’clock</source><translation>9:00 Uhr</translation></message>
<message><source>nine-thirty</source><translation>9:30 Uhr</translation></message>
<message><source>ninja</source><translation>Ninja</translation></message>
<message><source>no bicycles</source><translation>Fahrräder verboten</translation></message>
<message><source>no entry</source><translation>Zutritt verboten</translation></message>
<message><source>no littering</source><translation>Abfall verboten</translation></message>
<message><source>no mobile phones</source><translation>Mobiltelefone verboten</translation></message>
<message><source>no one under eighteen</source><translation>Minderjährige verboten</translation></message>
<message><source>no pedestrians</source><translation>Fußgänger verboten</translation></message>
<message><source>no smoking</source><translation>Rauchverbot</translation></message>
<message><source>non-potable water</source><translation>Kein Trinkwasser</translation></message>
<message><source>northwest</source><translation>Nordwesten</translation></message>
<message><source>nose</source><translation>Nase</translation></message>
<message><source>notebook</source><translation>Notizbuch</translation></message>
<message><source>notebook with decorative cover</source><translation>Notizbuch mit dekorativem Einband</translation></message>
<message><source>nut and bolt</source><translation>Mutter und Schraube</translation></message>
<message><source>ocean</source><translation>Ozean</translation></message>
<message><source>octopus</source><translation>Oktopus</translation></message>
<message><source>oden</source><translation>Oden</translation></message>
<message><source>office building</source><translation>Bürogebäude</translation></message>
<message><source>office worker</source><translation>Büroangestellte(r)</translation></message>
<message><source>ogre</source><translation>Ungeheuer</translation></message>
<message><source>oil</source><translation>Öl</translation></message>
<message><source>oil drum</source><translation>Ölfass</translation></message>
<message><source>okay</source><translation>okay</translation></message>
<message><source>old key</source><translation>alter Schlüssel</translation></message>
<message><source>old man</source><translation>älterer Mann</translation></message>
<message><source>old woman</source><translation>ältere Frau</translation></message>
<message><source>older person</source><translation>ältere Person</translation></message>
<message><source>olive</source><translation>Olive</translation></message>
<message><source>om</source><translation>om</translation></message>
<message><source>omg</source><translation>omg</translation></message>
<message><source>oncoming automobile</source><translation>Auto von vorne</translation></message>
<message><source>oncoming bus</source><translation>Bus von vorne</translation></message>
<message><source>oncoming fist</source><translation>geballte Faust</translation></message>
<message><source>oncoming police car</source><translation>Polizeiwagen von vorne</translation></message>
<message><source>oncoming taxi</source><translation>Taxi von vorne</translation></message>
<message><source>one o’clock</source><translation>1:00 Uhr</translation></message>
<message><source>one-piece swimsuit</source><translation>einteiliger Badeanzug</translation></message>
<message><source>one-thirty</source><translation>1:30 Uhr</translation></message>
<message><source>onion</source><translation>Zwiebel</translation></message>
<message><source>oolong</source><translation>Oolong</translation></message>
<message><source>open</source><translation>offen</translation></message>
<message><source>open book</source><translation>offenes Buch</translation></message>
<message><source>open file folder</source><translation>geöffneter Ordner</translation></message>
<message><source>open hands</source><translation>offene Hände</translation></message>
<message><source>open mailbox with lowered flag</source><translation>offener Briefkasten ohne Post</translation></message>
<message><source>open mailbox with raised flag</source><translation>offener Briefkasten mit Post</translation></message>
<message><source>optical disk</source><translation>CD</translation></message>
<message><source>orange</source><translation>orange</translation></message>
<message><source>orange book</source><translation>orangefarbenes Buch</translation></message>
<message><source>orange circle</source><translation>oranger Punkt</translation></message>
<message><source>orange heart</source><translation>oranges Herz</translation></message>
<message><source>orange square</source><translation>oranges Quadrat</translation></message>
<message><source>orangutan</source><translation>Orang-Utan</translation></message>
<message><source>orchestra</source><translation>Orchester</translation></message>
<message><source>organ</source><translation>Organ</translation></message>
<message><source>orienteering</source><translation>Orientierung</translation></message>
<message><source>orthodox</source><translation>orthodox</translation></message>
<message><source>orthodox cross</source><translation>orthodoxes Kreuz</translation></message>
<message><source>otter</source><translation>Otter</translation></message>
<message><source>ouch</source><translation>autsch</translation></message>
<message><source>outbox tray</source><translation>Postausgang</translation></message>
<message><source>outdoors</source><translation>Outdoor</translation></message>
<message><source>owl</source><translation>Eule</translation></message>
<message><source>ox</source><translation>Ochse</translation></message>
<message><source>oyster</source><translation>Auster</translation></message>
<message><source>package</source><translation>Paket</translation></message>
<message><source>paddle</source><translation>Paddel</translation></message>
<message><source>paella</source><translation>Paella</translation></message>
<message><source>page facing up</source><translation>Vorderseite eines Blattes</translation></message>
<message><source>page with curl</source><translation>teilweise eingerolltes Blatt</translation></message>
<message><source>pager</source><translation>Pager</translation></message>
<message><source>paintbrush</source><translation>Pinsel</translation></message>
<message><source>palm</source><translation>Palme</translation></message>
<message><source>palm down hand</source><translation>Hand mit Handfläche nach unten</translation></message>
<message><source>palm tree</source><translation>Palme</translation></message>
<message><source>palm up hand</source><translation>Hand mit Handfläche nach oben</translation></message>
<message><source>palms up together</source><translation>Handflächen nach oben</translation></message>
<message><source>pancakes</source><translation>Pfannkuchen</translation></message>
<message><source>panda</source><translation>Panda</translation></message>
<message><source>panic</source><translation>Panik</translation></message>
<message><source>paperclip</source><translation>Büroklammer</translation></message>
<message><source>parachute</source><translation>Fallschirm</translation></message>
<message><source>parasite</source><translation>Parasit</translation></message>
<message><source>parrot</source><translation>Papagei</translation></message>
<message><source>part alternation mark</source><translation>Teilalternationszeichen</translation></message>
<message><source>party</source><translation>Party</translation></message>
<message><source>party popper</source><translation>Konfettibombe</translation></message>
<message><source>partying face</source><translation>Partygesicht</translation></message>
<message><source>passenger</source><translation>Schiff</translation></message>
<message><source>passenger ship</source><translation>Passagierschiff</translation></message>
<message><source>passport control</source><translation>Passkontrolle</translation></message>
<message><source>password</source><translation>Passwort</translation></message>
<message><source>pasta</source><translation>Pasta</translation></message>
<message><source>pastry</source><translation>Torte</translation></message>
<message><source>pause</source><translation>Pause</translation></message>
<message><source>pause button</source><translation>Pause</translation></message>
<message><source>paw prints</source><translation>Tatzenabdrücke</translation></message>
<message><source>pea pod</source><translation>Erbsenschote</translation></message>
<message><source>peace symbol</source><translation>Friedenszeichen</translation></message>
<message><source>peach</source><translation>Pfirsich</translation></message>
<message><source>peacock</source><translation>Pfau</translation></message>
<message><source>peanuts</source><translation>Erdnuss</translation></message>
<message><source>pear</source><translation>Birne</translation></message>
<message><source>pearl</source><translation>Perle</translation></message>
<message><source>pen</source><translation>Kugelschreiber</translation></message>
<message><source>pencil</source><translation>Bleistift</translation></message>
<message><source>penguin</source><translation>Pinguin</translation></message>
<message><source>pensive face</source><translation>nachdenkliches Gesicht</translation></message>
<message><source>people holding hands</source><translation>sich an den Händen haltende Personen</translation></message>
<message><source>people hugging</source><translation>sich umarmende Personen</translation></message>
<message><source>people with bunny ears</source><translation>Personen mit Hasenohren</translation></message>
<message><source>people wrestling</source><translation>Ringer(in)</translation></message>
<message><source>pepper</source><translation>Peperoni</translation></message>
<message><source>percussion</source><translation>Percussion</translation></message>
<message><source>performing arts</source><translation>Masken</translation></message>
<message><source>persevering face</source><translation>entschlossenes Gesicht</translation></message>
<message><source>person</source><translation>Person</translation></message>
<message><source>person biking</source><translation>Radfahrer(in)</translation></message>
<message><source>person bouncing ball</source><translation>Person mit Ball</translation></message>
<message><source>person bowing</source><translation>sich verbeugende Person</translation></message>
<message><source>person cartwheeling</source><translation>Rad schlagende Person</translation></message>
<message><source>person climbing</source><translation>Bergsteiger(in)</translation></message>
<message><source>person facepalming</source><translation>sich an den Kopf fassende Person</translation></message>
<message><source>person feeding baby</source><translation>Person, die Baby die Flasche gibt</translation></message>
<message><source>person fencing</source><translation>Fechter(in)</translation></message>
<message><source>person frowning</source><translation>missmutige Person</translation></message>
<message><source>person gesturing NO</source><translation>Person mit überkreuzten Armen</translation></message>
<message><source>person gesturing OK</source><translation>Person mit Händen auf dem Kopf</translation></message>
<message><source>person getting haircut</source><translation>Person beim Haareschneiden</translation></message>
<message><source>person getting massage</source><translation>Person, die eine Kopfmassage bekommt</translation></message>
<message><source>person golfing</source><translation>Golfer(in)</translation></message>
<message><source>person in bed</source><translation>im Bett liegende Person</translation></message>
<message><source>person in lotus position</source><translation>Person im Lotossitz</translation></message>
<message><source>person in manual wheelchair</source><translation>Person in manuellem Rollstuhl</translation></message>
<message><source>person in manual wheelchair: facing right</source><translation>Person in manuellem Rollstuhl: nach rechts</translation></message>
<message><source>person in motorized wheelchair</source><translation>Person in elektrischem Rollstuhl</translation></message>
<message><source>person in motorized wheelchair: facing right</source><translation>Person in elektrischem Rollstuhl: nach rechts</translation></message>
<message><source>person in steamy room</source><translation>Person in Dampfsauna</translation></message>
<message><source>person in suit levitating</source><translation>schwebender Mann im Anzug</translation></message>
<message><source>person in tuxedo</source><translation>Person im Smoking</translation></message>
<message><source>person juggling</source><translation>Jongleur(in)</translation></message>
<message><source>person kneeling</source><translation>kniende Person</translation></message>
<message><source>person kneeling: facing right</source><translation>kniende Person: nach rechts</translation></message>
<message><source>person lifting weights</source><translation>Gewichtheber(in)</translation></message>
<message><source>person mountain biking</source><translation>Mountainbiker(in)</translation></message>
<message><source>person playing handball</source><translation>Handballspieler(in)</translation></message>
<message><source>person playing water polo</source><translation>Wasserballspieler(in)</translation></message>
<message><source>person pouting</source><translation>schmollende Person</translation></message>
<message><source>person raising hand</source><translation>Person mit erhobenem Arm</translation></message>
<message><source>person rowing boat</source><translation>Person im Ruderboot</translation></message>
<message><source>person running</source><translation>laufende Person</translation></message>
<message><source>person running: facing right</source><translation>laufende Person: nach rechts</translation></message>
<message><source>person shrugging</source><translation>schulterzuckende Person</translation></message>
<message><source>person standing</source><translation>stehende Person</translation></message>
<message><source>person surfing</source><translation>Surfer(in)</translation></message>
<message><source>person swimming</source><translation>Schwimmer(in)</translation></message>
<message><source>person taking bath</source><translation>badende Person</translation></message>
<message><source>person tipping hand</source><translation>Infoschalter-Mitarbeiter(in)</translation></message>
<message><source>person walking</source><translation>Fußgänger(in)</translation></message>
<message><source>person walking: facing right</source><translation>Fußgänger(in): nach rechts</translation></message>
<message><source>person wearing turban</source><translation>Person mit Turban</translation></message>
<message><source>person with crown</source><translation>Person mit Krone</translation></message>
<message><source>person with skullcap</source><translation>Mann mit chinesischem Hut</translation></message>
<message><source>person with veil</source><translation>Person mit Schleier</translation></message>
<message><source>person with white cane</source><translation>Person mit Langstock</translation></message>
<message><source>person with white cane: facing right</source><translation>Person mit Langstock: nach rechts</translation></message>
<message><source>person: bald</source><translation>Person: Glatze</translation></message>
<message><source>person: beard</source><translation>Person: Bart</translation></message>
<message><source>person: blond hair</source><translation>Person: blondes Haar</translation></message>
<message><source>person: curly hair</source><translation>Person: lockiges Haar</translation></message>
<message><source>person: red hair</source><translation>Person: rotes Haar</translation></message>
<message><source>person: white hair</source><translation>Person: weißes Haar</translation></message>
<message><source>petri dish</source><translation>Petrischale</translation></message>
<message><source>phoenix</source><translation>Phönix</translation></message>
<message><source>phone</source><translation>Handy</translation></message>
<message><source>piano</source><translation>Piano</translation></message>
<message><source>pick</source><translation>Pickel</translation></message>
<message><source>pickup truck</source><translation>Pick-up</translation></message>
<message><source>picnic</source><translation>Picknick</translation></message>
<message><source>pie</source><translation>Kuchen</translation></message>
<message><source>pierogi</source><translation>Pierogi</translation></message>
<message><source>pig</source><translation>Schwein</translation></message>
<message><source>pig face</source><translation>Schweinegesicht</translation></message>
<message><source>pig nose</source><translation>Schweinerüssel</translation></message>
<message><source>pile of poo</source><translation>Kothaufen</translation></message>
<message><source>pill</source><translation>Kapsel</translation></message>
<message><source>pilot</source><translation>Pilot(in)</translation></message>
<message><source>pinched fingers</source><translation>zusammengedrückte Finger</translation></message>
<message><source>pinching hand</source><translation>Wenig-Geste</translation></message>
<message><source>pine decoration</source><translation>Piniendekoration</translation></message>
<message><source>pineapple</source><translation>Ananas</translation></message>
<message><source>ping pong</source><translation>Tischtennis</translation></message>
<message><source>pingpong</source><translation>Ping Pong</translation></message>
<message><source>pink</source><translation>pink</translation></message>
<message><source>pink heart</source><translation>pinkes Herz</translation></message>
<message><source>pinocchio</source><translation>Pinocchio</translation></message>
<message><source>pirate</source><translation>Pirat</translation></message>
<message><source>pirate flag</source><translation>Piratenflagge</translation></message>
<message><source>pistol</source><translation>Pistole</translation></message>
<message><source>pita</source><translation>Pita</translation></message>
<message><source>pizza</source><translation>Pizza</translation></message>
<message><source>piña</source><translation>Piña</translation></message>
<message><source>piñata</source><translation>Piñata</translation></message>
<message><source>placard</source><translation>Protestschild</translation></message>
<message><source>place of worship</source><translation>religiöse Stätte</translation></message>
<message><source>plane</source><translation>Flugzeug</translation></message>
<message><source>plant</source><translation>Pflanze</translation></message>
<message><source>play button</source><translation>Wiedergabe</translation></message>
<message><source>play or pause button</source><translation>Wiedergabe oder Pause</translation></message>
<message><source>playground slide</source><translation>Spielplatzrutsche</translation></message>
<message><source>pleading face</source><translation>bettelndes Gesicht</translation></message>
<message><source>plumber</source><translation>Klempner</translation></message>
<message><source>plunger</source><translation>Saugglocke</translation></message>
<message><source>plus</source><translation>plus</translation></message>
<message><source>point</source><translation>weisen</translation></message>
<message><source>pointing</source><translation>zeigen</translation></message>
<message><source>polar bear</source><translation>Eisbär</translation></message>
<message><source>police</source><translation>Polizei</translation></message>
<message><source>police car</source><translation>Polizeiwagen</translation></message>
<message><source>police car light</source><translation>Polizeilicht</translation></message>
<message><source>police officer</source><translation>Polizist(in)</translation></message>
<message><source>poodle</source><translation>Pudel</translation></message>
<message><source>pool 8 ball</source><translation>Billardkugel</translation></message>
<message><source>popcorn</source><translation>Popcorn</translation></message>
<message><source>popping</source><translation>knallen</translation></message>
<message><source>porous</source><translation>porös</translation></message>
<message><source>poseidon</source><translation>Poseidon</translation></message>
<message><source>post office</source><translation>Postgebäude</translation></message>
<message><source>postal horn</source><translation>Posthorn</translation></message>
<message><source>postbox</source><translation>Briefkasten</translation></message>
<message><source>pot of food</source><translation>Topf mit Essen</translation></message>
<message><source>potable water</source><translation>Trinkwasser</translation></message>
<message><source>potato</source><translation>Kartoffel</translation></message>
<message><source>potsticker</source><translation>potsticker</translation></message>
<message><source>potted plant</source><translation>Topfpflanze</translation></message>
<message><source>poultry leg</source><translation>Hähnchenschenkel</translation></message>
<message><source>pound banknote</source><translation>Pfund-Banknote</translation></message>
<message><source>pounds</source><translation>Pfund</translation></message>
<message><source>pouring liquid</source><translation>Flüssigkeit ausgießen</translation></message>
<message><source>pouting cat</source><translation>schmollende Katze</translation></message>
<message><source>prayer beads</source><translation>Gebetskette</translation></message>
<message><source>pregnant</source><translation>schwanger</translation></message>
<message><source>pregnant man</source><translation>schwangerer Mann</translation></message>
<message><source>pregnant person</source><translation>schwangere Person</translation></message>
<message><source>pregnant woman</source><translation>schwangere Frau</translation></message>
<message><source>pretzel</source><translation>Brezel</translation></message>
<message><source>pride</source><translation>Pride</translation></message>
<message><source>prince</source><translation>Prinz</translation></message>
<message><source>princess</source><translation>Prinzessin</translation></message>
<message><source>printer</source><translation>Drucker</translation></message>
<message><source>privacy</source><translation>privat</translation></message>
<message><source>prohibited</source><translation>Verboten</translation></message>
<message><source>projector</source><translation>Filmprojektor</translation></message>
<message><source>proud</source><translation>stolz</translation></message>
<message><source>puck</source><translation>Puck</translation></message>
<message><source>pudding</source><translation>Pudding</translation></message>
<message><source>puke</source><translation>spucken</translation></message>
<message><source>pulse</source><translation>Puls</translation></message>
<message><source>punctuation</source><translation>Satzzeichen</translation></message>
<message><source>punk</source><translation>Punk</translation></message>
<message><source>purple circle</source><translation>lila Punkt</translation></message>
<message><source>purple heart</source><translation>lila Herz</translation></message>
<message><source>purple square</source><translation>lila Quadrat</translation></message>
<message><source>purse</source><translation>Geldbörse</translation></message>
<message><source>pushpin</source><translation>Reißzwecke</translation></message>
<message><source>puzzle piece</source><translation>Puzzleteil</translation></message>
<message><source>queer</source><translation>queer</translation></message>
<message><source>question</source><translation>Frage</translation></message>
<message><source>quiet</source><translation>leise</translation></message>
<message><source>rabbit</source><translation>Hase</translation></message>
<message><source>rabbit face</source><translation>Hasengesicht</translation></message>
<message><source>raccoon</source><translation>Waschbär</translation></message>
<message><source>racing</source><translation>schnell</translation></message>
<message><source>racing car</source><translation>Rennauto</translation></message>
<message><source>radio</source><translation>Radio</translation></message>
<message><source>radio button</source><translation>Optionsfeld</translation></message>
<message><source>radioactive</source><translation>Radioaktiv</translation></message>
<message><source>railway</source><translation>Zug</translation></message>
<message><source>railway car</source><translation>Eisenbahnwagen</translation></message>
<message><source>railway track</source><translation>Bahngleis</translation></message>
<message><source>rain</source><translation>Regen</translation></message>
<message><source>rainbow</source><translation>Regenbogen</translation></message>
<message><source>rainbow flag</source><translation>Regenbogenflagge</translation></message>
<message><source>raised</source><translation>erhoben</translation></message>
<message><source>raised back of hand</source><translation>erhobene Hand von hinten</translation></message>
<message><source>raised fist</source><translation>erhobene Faust</translation></message>
<message><source>raised hand</source><translation>erhobene Hand</translation></message>
<message><source>raising hands</source><translation>zwei erhobene Handflächen</translation></message>
<message><source>ram</source><translation>Widder</translation></message>
<message><source>rancher</source><translation>Rancher</translation></message>
<message><source>rat</source><translation>Ratte</translation></message>
<message><source>razor</source><translation>Rasierer</translation></message>
<message><source>receipt</source><translation>Beleg</translation></message>
<message><source>record button</source><translation>Aufnehmen</translation></message>
<message><source>recycling symbol</source><translation>Recycling-Symbol</translation></message>
<message><source>red apple</source><translation>roter Apfel</translation></message>
<message><source>red circle</source><translation>roter Punkt</translation></message>
<message><source>red envelope</source><translation>roter Umschlag</translation></message>
<message><source>red exclamation mark</source><translation>rotes Ausrufezeichen</translation></message>
<message><source>red heart</source><translation>rotes Herz</translation></message>
<message><source>red paper lantern</source><translation>rote Papierlaterne</translation></message>
<message><source>red question mark</source><translation>rotes Fragezeichen</translation></message>
<message><source>red square</source><translation>rotes Quadrat</translation></message>
<message><source>red triangle pointed down</source><translation>rotes Dreieck mit der Spitze nach unten</translation></message>
<message><source>red triangle pointed up</source><translation>rotes Dreieck mit der Spitze nach oben</translation></message>
<message><source>reflection</source><translation>Reflexion</translation></message>
<message><source>registered</source><translation>Registered-Trademark</translation></message>
<message><source>reincarnation</source><translation>Reinkarnation</translation></message>
<message><source>relationship</source><translation>Liebespaar</translation></message>
<message><source>relaxing</source><translation>relaxen</translation></message>
<message><source>relieved</source><translation>erleichtert</translation></message>
<message><source>relieved face</source><translation>erleichtertes Gesicht</translation></message>
<message><source>religion</source><translation>Religion</translation></message>
<message><source>reminder ribbon</source><translation>Gedenkschleife</translation></message>
<message><source>repeat</source><translation>wiederholen</translation></message>
<message><source>repeat button</source><translation>Wiederholen</translation></message>
<message><source>repeat single button</source><translation>Titel wiederholen</translation></message>
<message><source>reptile</source><translation>Reptil</translation></message>
<message><source>rescue</source><translation>retten</translation></message>
<message><source>rescue worker’s helmet</source><translation>Rettungshelm</translation></message>
<message><source>reserved</source><translation>reserviert</translation></message>
<message><source>respect</source><translation>Respekt</translation></message>
<message><source>restroom</source><translation>Toiletten</translation></message>
<message><source>reverse button</source><translation>Pfeil zurück</translation></message>
<message><source>revolver</source><translation>Revolver</translation></message>
<message><source>revolving hearts</source><translation>kreisende Herzen</translation></message>
<message><source>rhinoceros</source><translation>Nashorn</translation></message>
<message><source>rhythm</source><translation>Rhythmus</translation></message>
<message><source>ribbon</source><translation>pinke Schleife</translation></message>
<message><source>rice</source><translation>Reis</translation></message>
<message><source>rice ball</source><translation>Reisbällchen</translation></message>
<message><source>rice cracker</source><translation>Reiscracker</translation></message>
<message><source>rich</source><translation>reich</translation></message>
<message><source>right</source><translation>rechts</translation></message>
<message><source>right anger bubble</source><translation>Sprechblase für wütende Aussage rechts</translation></message>
<message><source>right arrow</source><translation>Pfeil nach rechts</translation></message>
<message><source>right arrow curving down</source><translation>geschwungener Pfeil nach unten</translation></message>
<message><source>right arrow curving left</source><translation>geschwungener Pfeil nach links</translation></message>
<message><source>right arrow curving up</source><translation>geschwungener Pfeil nach oben</translation></message>
<message><source>right-facing fist</source><translation>Faust nach rechts</translation></message>
<message><source>rightwards hand</source><translation>nach rechts weisende Hand</translation></message>
<message><source>rightwards pushing hand</source><translation>nach rechts schiebende Hand</translation></message>
<message><source>ring</source><translation>Ring</translation></message>
<message><source>ring buoy</source><translation>Rettungsring</translation></message>
<message><source>ringed planet</source><translation>Ringplanet</translation></message>
<message><source>roasted sweet potato</source><translation>geröstete Süßkartoffel</translation></message>
<message><source>robot</source><translation>Roboter</translation></message>
<message><source>rock</source><translation>Felsen</translation></message>
<message><source>rock-on</source><translation>Rock</translation></message>
<message><source>rocket</source><translation>Rakete</translation></message>
<message><source>rofl</source><translation>hehe</translation></message>
<message><source>roflmao</source><translation>rofl</translation></message>
<message><source>roll of paper</source><translation>Küchenrolle</translation></message>
<message><source>rolled-up newspaper</source><translation>zusammengerollte Zeitung</translation></message>
<message><source>roller coaster</source><translation>Achterbahn</translation></message>
<message><source>roller skate</source><translation>Rollschuh</translation></message>
<message><source>rolling</source><translation>rollen</translation></message>
<message><source>rolling on the floor laughing</source><translation>sich vor Lachen auf dem Boden wälzen</translation></message>
<message><source>rooster</source><translation>Hahn</translation></message>
<message><source>root</source><translation>Wurzel</translation></message>
<message><source>root vegetable</source><translation>Wurzelgemüse</translation></message>
<message><source>rose</source><translation>Rose</translation></message>
<message><source>rosette</source><translation>Rosette</translation></message>
<message><source>round</source><translation>rund</translation></message>
<message><source>round pushpin</source><translation>Stecknadel</translation></message>
<message><source>roundhouse</source><translation>Rundhaus</translation></message>
<message><source>router</source><translation>Router</translation></message>
<message><source>rucksack</source><translation>Rucksack</translation></message>
<message><source>rugby football</source><translation>Rugbyball</translation></message>
<message><source>running</source><translation>rennen</translation></message>
<message><source>running shirt</source><translation>Laufshirt</translation></message>
<message><source>running shoe</source><translation>Sportschuh</translation></message>
<message><source>russia</source><translation>Russland</translation></message>
<message><source>sad</source><translation>traurig</translation></message>
<message><source>sad but relieved face</source><translation>trauriges aber erleichtertes Gesicht</translation></message>
<message><source>safety</source><translation>Sicherheit</translation></message>
<message><source>safety pin</source><translation>Sicherheitsnadel</translation></message>
<message><source>safety vest</source><translation>Sicherheitsweste</translation></message>
<message><source>sailboat</source><translation>Segelboot</translation></message>
<message><source>sake</source><translation>Sake-Flasche mit Tasse</translation></message>
<message><source>salad</source><translation>Salat</translation></message>
<message><source>salon</source><translation>Salon</translation></message>
<message><source>salsa</source><translation>Salsa</translation></message>
<message><source>salt</source><translation>Salz</translation></message>
<message><source>saluting</source><translation>salutieren</translation></message>
<message><source>saluting face</source><translation>salutierendes Gesicht</translation></message>
<message><source>sand</source><translation>Sanduhr</translation></message>
<message><source>sandal</source><translation>Sandale</translation></message>
<message><source>sandals</source><translation>Sandalen</translation></message>
<message><source>sandwich</source><translation>Sandwich</translation></message>
<message><source>sarcasm</source><translation>Sarkasmus</translation></message>
<message><source>sarcastic</source><translation>sarkastisch</translation></message>
<message><source>sari</source><translation>Sari</translation></message>
<message><source>satellite</source><translation>Satellit</translation></message>
<message><source>satellite antenna</source><translation>Satellitenschüssel</translation></message>
<message><source>sauna</source><translation>Sauna</translation></message>
<message><source>sauropod</source><translation>Sauropode</translation></message>
<message><source>saxophone</source><translation>Saxofon</translation></message>
<message><source>scarf</source><translation>Schal</translation></message>
<message><source>school</source><translation>Schule</translation></message>
<message><source>science</source><translation>Wissenschaft</translation></message>
<message><source>scientist</source><translation>Wissenschaftler(in)</translation></message>
<message><source>scissors</source><translation>Schere</translation></message>
<message><source>scooter</source><translation>Roller</translation></message>
<message><source>scorpion</source><translation>Skorpion</translation></message>
<message><source>screaming</source><translation>schreien</translation></message>
<message><source>screwdriver</source><translation>Schraubenzieher</translation></message>
<message><source>scroll</source><translation>Schriftrolle</translation></message>
<message><source>seal</source><translation>Seehund</translation></message>
<message><source>seat</source><translation>Sitzplatz</translation></message>
<message><source>secret</source><translation>Geheimnis</translation></message>
<message><source>see-no-evil monkey</source><translation>sich die Augen zuhaltendes Affengesicht</translation></message>
<message><source>seedling</source><translation>Spross</translation></message>
<message><source>seeing</source><translation>sehen</translation></message>
<message><source>selfie</source><translation>Selfie</translation></message>
<message><source>service dog</source><translation>Assistenzhund</translation></message>
<message><source>seven</source><translation>sieben</translation></message>
<message><source>seven o’clock</source><translation>7:00 Uhr</translation></message>
<message><source>seven-thirty</source><translation>7:30 Uhr</translation></message>
<message><source>sewing needle</source><translation>Nähnadel</translation></message>
<message><source>sexy</source><translation>sexy</translation></message>
<message><source>shaking face</source><translation>zitterndes Doppelgesicht</translation></message>
<message><source>shallow pan of food</source><translation>Pfannengericht</translation></message>
<message><source>shampoo</source><translation>Shampoo</translation></message>
<message><source>shamrock</source><translation>Kleeblatt</translation></message>
<message><source>shark</source><translation>Hai</translation></message>
<message><source>sharp</source><translation>scharf</translation></message>
<message><source>shaved ice</source><translation>Wassereis</translation></message>
<message><source>sheaf of rice</source><translation>Reisähre</translation></message>
<message><source>sheep</source><translation>Schaf</translation></message>
<message><source>shield</source><translation>Schutzschild</translation></message>
<message><source>shinkansen</source><translation>Shinkansen</translation></message>
<message><source>shinto</source><translation>Shinto</translation></message>
<message><source>shinto shrine</source><translation>Shinto-Schrein</translation></message>
<message><source>ship</source><translation>Schiff</translation></message>
<message><source>shock</source><translation>OMG</translation></message>
<message><source>shocked</source><translation>schockiert</translation></message>
<message><source>shoe</source><translation>Schuh</translation></message>
<message><source>shooting</source><translation>Sternschnuppe</translation></message>
<message><source>shooting star</source><translation>Sternschnuppe</translation></message>
<message><source>shopping bags</source><translation>Einkaufstüten</translation></message>
<message><source>shopping cart</source><translation>Einkaufswagen</translation></message>
<message><source>shortcake</source><translation>Torte</translation></message>
<message><source>shorts</source><translation>Shorts</translation></message>
<message><source>shovel</source><translation>Schaufel</translation></message>
<message><source>shower</source><translation>Dusche</translation></message>
<message><source>shrimp</source><translation>Garnele</translation></message>
<message><source>shrine</source><translation>Schrein</translation></message>
<message><source>shuffle tracks button</source><translation>Zufallsmodus</translation></message>
<message><source>shushing face</source><translation>ermahnendes Gesicht</translation></message>
<message><source>shy</source><translation>schüchtern</translation></message>
<message><source>sick</source><translation>krank</translation></message>
<message><source>sign of the horns</source><translation>Teufelsgruß</translation></message>
<message><source>silhouette</source><translation>Silhouette</translation></message>
<message><source>singer</source><translation>Sänger(in)</translation></message>
<message><source>siren</source><translation>Sirene</translation></message>
<message><source>six o’clock</source><translation>6:00 Uhr</translation></message>
<message><source>six-thirty</source><translation>6:30 Uhr</translation></message>
<message><source>skateboard</source><translation>Skateboard</translation></message>
<message><source>skeleton</source><translation>Skelett</translation></message>
<message><source>skeptical</source><translation>skeptisch</translation></message>
<message><source>skier</source><translation>Skifahrer(in)</translation></message>
<message><source>skis</source><translation>Ski</translation></message>
<message><source>skull</source><translation>Totenkopf</translation></message>
<message><source>skull and crossbones</source><translation>Totenkopf mit gekreuzten Knochen</translation></message>
<message><source>skunk</source><translation>Stinktier</translation></message>
<message><source>skydive</source><translation>Skydiving</translation></message>
<message><source>sled</source><translation>Schlitten</translation></message>
<message><source>sleeping face</source><translation>schlafendes Gesicht</translation></message>
<message><source>sleepy face</source><translation>schläfriges Gesicht</translation></message>
<message><source>slightly frowning face</source><translation>betrübtes Gesicht</translation></message>
<message><source>slightly smiling face</source><translation>leicht lächelndes Gesicht</translation></message>
<message><source>slipper</source><translation>Slipper</translation></message>
<message><source>slot machine</source><translation>Spielautomat</translation></message>
<message><source>sloth</source><translation>Faultier</translation></message>
<message><source>small airplane</source><translation>kleines Flugzeug</translation></message>
<message><source>small blue diamond</source><translation>kleine blaue Raute</translation></message>
<message><source>small orange diamond</source><translation>kleine orangefarbene Raute</translation></message>
<message><source>smart</source><translation>smart</translation></message>
<message><source>smile</source><translation>lächeln</translation></message>
<message><source>smiling cat with heart-eyes</source><translation>lachende Katze mit Herzen als Augen</translation></message>
<message><source>smiling face</source><translation>lächelndes Gesicht</translation></message>
<message><source>smiling face with halo</source><translation>lächelndes Gesicht mit Heiligenschein</translation></message>
<message><source>smiling face with heart-eyes</source><translation>lächelndes Gesicht mit herzförmigen Augen</translation></message>
<message><source>smiling face with hearts</source><translation>lächelndes Gesicht mit Herzen</translation></message>
<message><source>smiling face with horns</source><translation>grinsendes Gesicht mit Hörnern</translation></message>
<message><source>smiling face with open hands</source><translation>Gesicht mit umarmenden Händen</translation></message>
<message><source>smiling face with smiling eyes</source><translation>lächelndes Gesicht mit lachenden Augen</translation></message>
<message><source>smiling face with sunglasses</source><translation>lächelndes Gesicht mit Sonnenbrille</translation></message>
<message><source>smiling face with tear</source><translation>lachendes Gesicht mit Träne</translation></message>
<message><source>smirking face</source><translation>süffisant lächelndes Gesicht</translation></message>
<message><source>smoking</source><translation>Zigarette</translation></message>
<message><source>snail</source><translation>Schnecke</translation></message>
<message><source>snake</source><translation>Schlange</translation></message>
<message><source>sneaker</source><translation>Sneaker</translation></message>
<message><source>sneeze</source><translation>niesen</translation></message>
<message><source>sneezing face</source><translation>niesendes Gesicht</translation></message>
<message><source>snow</source><translation>Schnee</translation></message>
<message><source>snow-capped mountain</source><translation>schneebedeckter Berg</translation></message>
<message><source>snowboarder</source><translation>Snowboarder(in)</translation></message>
<message><source>snowflake</source><translation>Schneeflocke</translation></message>
<message><source>snowman</source><translation>Schneemann im Schnee</translation></message>
<message><source>snowman without snow</source><translation>Schneemann ohne Schneeflocken</translation></message>
<message><source>soap</source><translation>Seife</translation></message>
<message><source>soccer ball</source><translation>Fußball</translation></message>
<message><source>socks</source><translation>Socken</translation></message>
<message><source>soda</source><translation>soda</translation></message>
<message><source>soft</source><translation>Softeis</translation></message>
<message><source>soft ice cream</source><translation>Softeis</translation></message>
<message><source>softball</source><translation>Softball</translation></message>
<message><source>solidarity</source><translation>Solidarität</translation></message>
<message><source>sorry</source><translation>sorry</translation></message>
<message><source>soup</source><translation>Suppe</translation></message>
<message><source>spa</source><translation>Spa</translation></message>
<message><source>spade</source><translation>Spaten</translation></message>
<message><source>spade suit</source><translation>Pik</translation></message>
<message><source>spaghetti</source><translation>Spaghetti</translation></message>
<message><source>sparkle</source><translation>Funkeln</translation></message>
<message><source>sparkler</source><translation>Wunderkerze</translation></message>
<message><source>sparkles</source><translation>funkelnde Sterne</translation></message>
<message><source>sparkling heart</source><translation>funkelndes Herz</translation></message>
<message><source>speak-no-evil monkey</source><translation>sich den Mund zuhaltendes Affengesicht</translation></message>
<message><source>speaker high volume</source><translation>Lautsprecher mit hoher Lautstärke</translation></message>
<message><source>speaker low volume</source><translation>Lautsprecher mit geringer Lautstärke</translation></message>
<message><source>speaker medium volume</source><translation>Lautsprecher mit mittlerer Lautstärke</translation></message>
<message><source>speaking head</source><translation>sprechender Kopf</translation></message>
<message><source>speech</source><translation>sprechen</translation></message>
<message><source>speech balloon</source><translation>Sprechblase mit drei Punkten</translation></message>
<message><source>speedboat</source><translation>Schnellboot</translation></message>
<message><source>spider</source><translation>Spinne</translation></message>
<message><source>spider web</source><translation>Spinnennetz</translation></message>
<message><source>spinning</source><translation>Spinning</translation></message>
<message><source>spiral calendar</source><translation>Spiralkalender</translation></message>
<message><source>spiral notepad</source><translation>Notizblock</translation></message>
<message><source>spiral shell</source><translation>Schneckenhaus</translation></message>
<message><source>splatter</source><translation>Spritzer</translation></message>
<message><source>sponge</source><translation>Schwamm</translation></message>
<message><source>spoon</source><translation>Löffel</translation></message>
<message><source>sport</source><translation>Sport</translation></message>
<message><source>sport utility vehicle</source><translation>Wohnmobil</translation></message>
<message><source>sports medal</source><translation>Sportmedaille</translation></message>
<message><source>spouting whale</source><translation>blasender Wal</translation></message>
<message><source>square</source><translation>Quadrat</translation></message>
<message><source>squid</source><translation>Tintenfisch</translation></message>
<message><source>squinting</source><translation>zusammengekniffen</translation></message>
<message><source>squinting face with tongue</source><translation>Gesicht mit herausgestreckter Zunge und zusammengekniffenen Augen</translation></message>
<message><source>stadium</source><translation>Stadion</translation></message>
<message><source>star</source><translation>weißer mittelgroßer Stern</translation></message>
<message><source>star and crescent</source><translation>Hilal und Stern</translation></message>
<message><source>star of David</source><translation>Davidstern</translation></message>
<message><source>star-struck</source><translation>überwältigt</translation></message>
<message><source>stare</source><translation>starren</translation></message>
<message><source>station</source><translation>Bahnhof</translation></message>
<message><source>statue</source><translation>Statue</translation></message>
<message><source>steak</source><translation>Steak</translation></message>
<message><source>steaming</source><translation>dampfend</translation></message>
<message><source>steaming bowl</source><translation>Schüssel und Essstäbchen</translation></message>
<message><source>stethoscope</source><translation>Stethoskop</translation></message>
<message><source>stick</source><translation>Stock</translation></message>
<message><source>stitches</source><translation>Stiche</translation></message>
<message><source>stop</source><translation>Stopp</translation></message>
<message><source>stop button</source><translation>Stopp</translation></message>
<message><source>stop sign</source><translation>Stoppschild</translation></message>
<message><source>stopwatch</source><translation>Stoppuhr</translation></message>
<message><source>straight ruler</source><translation>Lineal</translation></message>
<message><source>strawberry</source><translation>Erdbeere</translation></message>
<message><source>stripe</source><translation>streifen</translation></message>
<message><source>stuck-out</source><translation>herausgestreckt</translation></message>
<message><source>student</source><translation>Student(in)</translation></message>
<message><source>studio microphone</source><translation>Studiomikrofon</translation></message>
<message><source>stuffed flatbread</source><translation>Döner</translation></message>
<message><source>suit</source><translation>Kartenspiel</translation></message>
<message><source>summer</source><translation>Sommer</translation></message>
<message><source>sun</source><translation>Sonne</translation></message>
<message><source>sun behind cloud</source><translation>Sonne hinter Wolke</translation></message>
<message><source>sun behind large cloud</source><translation>Sonne hinter großer Wolke</translation></message>
<message><source>sun behind rain cloud</source><translation>Sonne hinter Regenwolke</translation></message>
<message><source>sun behind small cloud</source><translation>Sonne hinter kleiner Wolke</translation></message>
<message><source>sun with face</source><translation>Sonne mit Gesicht</translation></message>
<message><source>sunflower</source><translation>Sonnenblume</translation></message>
<message><source>sunglasses</source><translation>Sonnenbrille</translation></message>
<message><source>sunrise</source><translation>Sonnenaufgang über dem Meer</translation></message>
<message><source>sunrise over mountains</source><translation>Sonnenaufgang über Bergen</translation></message>
<message><source>sunset</source><translation>Sonnenuntergang in der Stadt</translation></message>
<message><source>superhero</source><translation>Superheld(in)</translation></message>
<message><source>superpower</source><translation>Superkräfte</translation></message>
<message><source>supervillain</source><translation>Bösewicht</translation></message>
<message><source>sushi</source><translation>Sushi</translation></message>
<message><source>suspension railway</source><translation>Schwebebahn</translation></message>
<message><source>swan</source><translation>Schwan</translation></message>
<message><source>sweat</source><translation>Schweiß</translation></message>
<message><source>sweat droplets</source><translation>Schweißtropfen</translation></message>
<message><source>swell</source><translation>Wellen</translation></message>
<message><source>swimmer</source><translation>schwimmen</translation></message>
<message><source>swimming</source><translation>Schwimmen</translation></message>
<message><source>symbols</source><translation>Symbole</translation></message>
<message><source>synagogue</source><translation>Synagoge</translation></message>
<message><source>syringe</source><translation>Spritze</translation></message>
<message><source>t-shirt</source><translation>T-Shirt</translation></message>
<message><source>taco</source><translation>Taco</translation></message>
<message><source>taekwondo</source><translation>Taekwondo</translation></message>
<message><source>takeout box</source><translation>Takeaway-Schachtel</translation></message>
<message><source>talisman</source><translation>Talisman</translation></message>
<message><source>tamale</source><translation>Tamale</translation></message>
<message><source>tanabata</source><translation>Tanabata-Baum</translation></message>
<message><source>tanabata tree</source><translation>Tanabata-Baum</translation></message>
<message><source>tangerine</source><translation>Mandarine</translation></message>
<message><source>tango</source><translation>Tango</translation></message>
<message><source>taxi</source><translation>Taxi</translation></message>
<message><source>tea</source><translation>Tee</translation></message>
<message><source>teacher</source><translation>Lehrer(in)</translation></message>
<message><source>teacup without handle</source><translation>Teetasse ohne Henkel</translation></message>
<message><source>teapot</source><translation>Teekanne</translation></message>
<message><source>tear</source><translation>Träne</translation></message>
<message><source>tear-off calendar</source><translation>Abreißkalender</translation></message>
<message><source>technologist</source><translation>IT-Experte/IT-Expertin</translation></message>
<message><source>teddy bear</source><translation>Teddybär</translation></message>
<message><source>teeth</source><translation>Zähne</translation></message>
<message><source>telephone</source><translation>Telefon</translation></message>
<message><source>telephone receiver</source><translation>Telefonhörer</translation></message>
<message><source>telescope</source><translation>Teleskop</translation></message>
<message><source>television</source><translation>Fernseher</translation></message>
<message><source>temple</source><translation>Tempel</translation></message>
<message><source>tempura</source><translation>tempura</translation></message>
<message><source>ten o’clock</source><translation>10:00 Uhr</translation></message>
<message><source>ten-thirty</source><translation>10:30 Uhr</translation></message>
<message><source>tennis</source><translation>Tennisball</translation></message>
<message><source>tent</source><translation>Zelt</translation></message>
<message><source>tequila</source><translation>Tequila</translation></message>
<message><source>test tube</source><translation>Reagenzglas</translation></message>
<message><source>thanksgiving</source><translation>Thanksgiving</translation></message>
<message><source>therapy</source><translation>Therapie</translation></message>
<message><source>thermometer</source><translation>Thermometer</translation></message>
<message><source>thinking face</source><translation>nachdenkendes Gesicht</translation></message>
<message><source>thong sandal</source><translation>Zehensandale</translation></message>
<message><source>thought balloon</source><translation>Gedankenblase</translation></message>
<message><source>thread</source><translation>Faden</translation></message>
<message><source>three o’clock</source><translation>3:00 Uhr</translation></message>
<message><source>three-thirty</source><translation>3:30 Uhr</translation></message>
<message><source>thumb</source><translation>Daumen</translation></message>
<message><source>thumbs down</source><translation>Daumen runter</translation></message>
<message><source>thumbs up</source><translation>Daumen hoch</translation></message>
<message><source>tichel</source><translation>Tichel</translation></message>
<message><source>ticket</source><translation>Ticket</translation></message>
<message><source>tiger</source><translation>Tiger</translation></message>
<message><source>tiger face</source><translation>Tigergesicht</translation></message>
<message><source>time</source><translation>Zeit</translation></message>
<message><source>timer</source><translation>Timer</translation></message>
<message><source>timer clock</source><translation>Zeitschaltuhr</translation></message>
<message><source>tired</source><translation>müde</translation></message>
<message><source>tired face</source><translation>müdes Gesicht</translation></message>
<message><source>toast</source><translation>Toast</translation></message>
<message><source>toilet</source><translation>Toilette</translation></message>
<message><source>tomato</source><translation>Tomate</translation></message>
<message><source>tongue</source><translation>Zunge</translation></message>
<message><source>toolbox</source><translation>Werkzeugkasten</translation></message>
<message><source>tooth</source><translation>Zahn</translation></message>
<message><source>toothbrush</source><translation>Zahnbürste</translation></message>
<message><source>top hat</source><translation>Zylinder</translation></message>
<message><source>tornado</source><translation>Wirbelsturm</translation></message>
<message><source>trackball</source><translation>Trackball</translation></message>
<message><source>tractor</source><translation>Traktor</translation></message>
<message><source>trade mark</source><translation>Markenzeichen</translation></message>
<message><source>train</source><translation>Zug</translation></message>
<message><source>tram</source><translation>Straßenbahn</translation></message>
<message><source>tram car</source><translation>Straßenbahnwagen</translation></message>
<message><source>trans</source><translation>trans</translation></message>
<message><source>transgender</source><translation>Transgender</translation></message>
<message><source>transgender flag</source><translation>Transgender-Flagge</translation></message>
<message><source>transgender symbol</source><translation>Transgender-Symbol</translation></message>
<message><source>transportation</source><translation>Transport</translation></message>
<message><source>treasure</source><translation>Schatz</translation></message>
<message><source>tree</source><translation>Baum</translation></message>
<message><source>triangle</source><translation>Dreieck</translation></message>
<message><source>triangular flag</source><translation>Wimpel</translation></message>
<message><source>triangular ruler</source><translation>dreieckiges Lineal</translation></message>
<message><source>triathlon</source><translation>Triathlon</translation></message>
<message><source>trident emblem</source><translation>Dreizack</translation></message>
<message><source>trim</source><translation>trimmen</translation></message>
<message><source>troll</source><translation>Troll</translation></message>
<message><source>trolley</source><translation>Trolleybus</translation></message>
<message><source>trolleybus</source><translation>Oberleitungsbus</translation></message>
<message><source>trophy</source><translation>Pokal</translation></message>
<message><source>tropical</source><translation>tropisch</translation></message>
<message><source>tropical drink</source><translation>Cocktail</translation></message>
<message><source>tropical fish</source><translation>Tropenfisch</translation></message>
<message><source>trumpet</source><translation>Trompete</translation></message>
<message><source>tulip</source><translation>Tulpe</translation></message>
<message><source>tumbler glass</source><translation>Trinkglas</translation></message>
<message><source>turban</source><translation>Turban</translation></message>
<message><source>turkey</source><translation>Truthahn</translation></message>
<message><source>turtle</source><translation>Schildkröte</translation></message>
<message><source>twelve o’clock</source><translation>Ziffernblatt 12:00 Uhr</translation></message>
<message><source>twelve-thirty</source><translation>12:30 Uhr</translation></message>
<message><source>two hearts</source><translation>zwei Herzen</translation></message>
<message><source>two o’clock</source><translation>2:00 Uhr</translation></message>
<message><source>two-hump camel</source><translation>Kamel</translation></message>
<message><source>two-thirty</source><translation>2:30 Uhr</translation></message>
<message><source>type</source><translation>Hautfarbe</translation></message>
<message><source>ufo</source><translation>UFO</translation></message>
<message><source>ultimate</source><translation>Ultimate</translation></message>
<message><source>umbrella</source><translation>Regenschirm</translation></message>
<message><source>umbrella on ground</source><translation>aufgestellter Sonnenschirm</translation></message>
<message><source>umbrella with rain drops</source><translation>Regenschirm im Regen</translation></message>
<message><source>unamused face</source><translation>verstimmtes Gesicht</translation></message>
<message><source>underarm</source><translation>Unterarm</translation></message>
<message><source>unicorn</source><translation>Einhorn</translation></message>
<message><source>unlocked</source><translation>offenes Schloss</translation></message>
<message><source>unlucky</source><translation>Unglück</translation></message>
<message><source>up arrow</source><translation>Pfeil nach oben</translation></message>
<message><source>up-down arrow</source><translation>Pfeil nach oben und unten</translation></message>
<message><source>up-left arrow</source><translation>Pfeil nach links oben</translation></message>
<message><source>up-right arrow</source><translation>Pfeil nach rechts oben</translation></message>
<message><source>upset</source><translation>verärgert</translation></message>
<message><source>upside-down face</source><translation>umgekehrtes Gesicht</translation></message>
<message><source>upwards button</source><translation>Aufwärts-Schaltfläche</translation></message>
<message><source>vampire</source><translation>Vampir</translation></message>
<message><source>vegetable</source><translation>Gemüse</translation></message>
<message><source>versus</source><translation>versus</translation></message>
<message><source>vertical traffic light</source><translation>vertikale Verkehrsampel</translation></message>
<message><source>vibration mode</source><translation>Vibrationsmodus</translation></message>
<message><source>victory hand</source><translation>Victory-Geste</translation></message>
<message><source>vicuña</source><translation>Vicuña</translation></message>
<message><source>video camera</source><translation>Videokamera</translation></message>
<message><source>video game</source><translation>Gamepad</translation></message>
<message><source>videocassette</source><translation>Videokassette</translation></message>
<message><source>violin</source><translation>Geige</translation></message>
<message><source>virus</source><translation>Virus</translation></message>
<message><source>vitamin</source><translation>Vitamin</translation></message>
<message><source>volcano</source><translation>Vulkan</translation></message>
<message><source>volleyball</source><translation>Volleyball</translation></message>
<message><source>vulcan salute</source><translation>vulkanischer Gruß</translation></message>
<message><source>waffle</source><translation>Waffel</translation></message>
<message><source>walking</source><translation>Walking Dead</translation></message>
<message><source>waning crescent moon</source><translation>letztes Mondviertel</translation></message>
<message><source>waning gibbous moon</source><translation>drittes Mondviertel</translation></message>
<message><source>warning</source><translation>Warnung</translation></message>
<message><source>wastebasket</source><translation>Papierkorb</translation></message>
<message><source>watch</source><translation>Armbanduhr</translation></message>
<message><source>water</source><translation>Wasser</translation></message>
<message><source>water buffalo</source><translation>Wasserbüffel</translation></message>
<message><source>water closet</source><translation>WC</translation></message>
<message><source>water pistol</source><translation>Wasserpistole</translation></message>
<message><source>water wave</source><translation>Welle</translation></message>
<message><source>watermelon</source><translation>Wassermelone</translation></message>
<message><source>waving</source><translation>wehen</translation></message>
<message><source>waving hand</source><translation>winkende Hand</translation></message>
<message><source>wavy</source><translation>gewellt</translation></message>
<message><source>wavy dash</source><translation>Wellenlinie</translation></message>
<message><source>waxing crescent moon</source><translation>erstes Mondviertel</translation></message>
<message><source>waxing gibbous moon</source><translation>zweites Mondviertel</translation></message>
<message><source>weapon</source><translation>Waffe</translation></message>
<message><source>weary</source><translation>erschöpft</translation></message>
<message><source>weary cat</source><translation>erschöpfte Katze</translation></message>
<message><source>weary face</source><translation>erschöpftes Gesicht</translation></message>
<message><source>weather</source><translation>Wetter</translation></message>
<message><source>wedding</source><translation>Hochzeit</translation></message>
<message><source>weight</source><translation>Gewicht</translation></message>
<message><source>west</source><translation>Westen</translation></message>
<message><source>whale</source><translation>Wal</translation></message>
<message><source>wheel</source><translation>Autorad</translation></message>
<message><source>wheel of dharma</source><translation>Dharma-Rad</translation></message>
<message><source>wheelchair</source><translation>Rollstuhl</translation></message>
<message><source>wheelchair symbol</source><translation>Symbol „Rollstuhl“</translation></message>
<message><source>white</source><translation>weiß</translation></message>
<message><source>white cane</source><translation>Blindenstock</translation></message>
<message><source>white circle</source><translation>weißer Punkt</translation></message>
<message><source>white exclamation mark</source><translation>weißes Ausrufezeichen</translation></message>
<message><source>white flag</source><translation>weiße Flagge</translation></message>
<message><source>white flower</source><translation>Blumenstempel</translation></message>
<message><source>white heart</source><translation>weißes Herz</translation></message>
<message><source>white large square</source><translation>großes weißes Quadrat</translation></message>
<message><source>white medium square</source><translation>mittelgroßes weißes Quadrat</translation></message>
<message><source>white medium-small square</source><translation>mittelkleines weißes Quadrat</translation></message>
<message><source>white question mark</source><translation>weißes Fragezeichen</translation></message>
<message><source>white small square</source><translation>kleines weißes Quadrat</translation></message>
<message><source>white square button</source><translation>weiße quadratische Schaltfläche</translation></message>
<message><source>wilted flower</source><translation>welke Blume</translation></message>
<message><source>wind</source><translation>Wind</translation></message>
<message><source>wind chime</source><translation>japanisches Windspiel</translation></message>
<message><source>wind face</source><translation>Wind</translation></message>
<message><source>window</source><translation>Fenster</translation></message>
<message><source>wine</source><translation>Wein</translation></message>
<message><source>wine glass</source><translation>Weinglas</translation></message>
<message><source>wing</source><translation>Flügel</translation></message>
<message><source>winking face</source><translation>zwinkerndes Gesicht</translation></message>
<message><source>winking face with tongue</source><translation>zwinkerndes Gesicht mit herausgestreckter Zunge</translation></message>
<message><source>winter</source><translation>Winter</translation></message>
<message><source>wireless</source><translation>WLAN</translation></message>
<message><source>wise</source><translation>weise</translation></message>
<message><source>wisent</source><translation>Wisent</translation></message>
<message><source>witch</source><translation>Hexe</translation></message>
<message><source>wlan</source><translation>WLAN</translation></message>
<message><source>wolf</source><translation>Wolf</translation></message>
<message><source>woman</source><translation>Frau</translation></message>
<message><source>woman and man holding hands</source><translation>Mann und Frau halten Hände</translation></message>
<message><source>woman artist</source><translation>Künstlerin</translation></message>
<message><source>woman astronaut</source><translation>Astronautin</translation></message>
<message><source>woman biking</source><translation>Radfahrerin</translation></message>
<message><source>woman bouncing ball</source><translation>Frau mit Ball</translation></message>
<message><source>woman bowing</source><translation>sich verbeugende Frau</translation></message>
<message><source>woman cartwheeling</source><translation>Rad schlagende Frau</translation></message>
<message><source>woman climbing</source><translation>Bergsteigerin</translation></message>
<message><source>woman construction worker</source><translation>Bauarbeiterin</translation></message>
<message><source>woman cook</source><translation>Köchin</translation></message>
<message><source>woman dancing</source><translation>tanzende Frau</translation></message>
<message><source>woman detective</source><translation>Detektivin</translation></message>
<message><source>woman elf</source><translation>Elfe</translation></message>
<message><source>woman facepalming</source><translation>sich an den Kopf fassende Frau</translation></message>
<message><source>woman factory worker</source><translation>Fabrikarbeiterin</translation></message>
<message><source>woman fairy</source><translation>Fee</translation></message>
<message><source>woman farmer</source><translation>Bäuerin</translation></message>
<message><source>woman feeding baby</source><translation>Frau, die Baby die Flasche gibt</translation></message>
<message><source>woman firefighter</source><translation>Feuerwehrfrau</translation></message>
<message><source>woman frowning</source><translation>missmutige Frau</translation></message>
<message><source>woman genie</source><translation>weiblicher Flaschengeist</translation></message>
<message><source>woman gesturing NO</source><translation>Frau mit überkreuzten Armen</translation></message>
<message><source>woman gesturing OK</source><translation>Frau mit Händen auf dem Kopf</translation></message>
<message><source>woman getting haircut</source><translation>Frau beim Haareschneiden</translation></message>
<message><source>woman getting massage</source><translation>Frau, die eine Kopfmassage bekommt</translation></message>
<message><source>woman golfing</source><translation>Golferin</translation></message>
<message><source>woman guard</source><translation>Wachsoldatin</translation></message>
<message><source>woman health worker</source><translation>Ärztin</translation></message>
<message><source>woman in lotus position</source><translation>Frau im Lotossitz</translation></message>
<message><source>woman in manual wheelchair</source><translation>Frau in manuellem Rollstuhl</translation></message>
<message><source>woman in manual wheelchair: facing right</source><translation>Frau in manuellem Rollstuhl: nach rechts</translation></message>
<message><source>woman in motorized wheelchair</source><translation>Frau in elektrischem Rollstuhl</translation></message>
<message><source>woman in motorized wheelchair: facing right</source><translation>Frau in elektrischem Rollstuhl: nach rechts</translation></message>
<message><source>woman in steamy room</source><translation>Frau in Dampfsauna</translation></message>
<message><source>woman in tuxedo</source><translation>Frau im Smoking</translation></message>
<message><source>woman judge</source><translation>Richterin</translation></message>
<message><source>woman juggling</source><translation>Jongleurin</translation></message>
<message><source>woman kneeling</source><translation>kniende Frau</translation></message>
<message><source>woman kneeling: facing right</source><translation>kniende Frau: nach rechts</translation></message>
<message><source>woman lifting weights</source><translation>Gewichtheberin</translation></message>
<message><source>woman mage</source><translation>Magierin</translation></message>
<message><source>woman mechanic</source><translation>Mechanikerin</translation></message>
<message><source>woman mountain biking</source><translation>Mountainbikerin</translation></message>
<message><source>woman office worker</source><translation>Büroangestellte</translation></message>
<message><source>woman pilot</source><translation>Pilotin</translation></message>
<message><source>woman playing handball</source><translation>Handballspielerin</translation></message>
<message><source>woman playing water polo</source><translation>Wasserballspielerin</translation></message>
<message><source>woman police officer</source><translation>Polizistin</translation></message>
<message><source>woman pouting</source><translation>schmollende Frau</translation></message>
<message><source>woman raising hand</source><translation>Frau mit erhobenem Arm</translation></message>
<message><source>woman rowing boat</source><translation>Frau im Ruderboot</translation></message>
<message><source>woman running</source><translation>laufende Frau</translation></message>
<message><source>woman running: facing right</source><translation>laufende Frau: nach rechts</translation></message>
<message><source>woman scientist</source><translation>Wissenschaftlerin</translation></message>
<message><source>woman shrugging</source><translation>schulterzuckende Frau</translation></message>
<message><source>woman singer</source><translation>Sängerin</translation></message>
<message><source>woman standing</source><translation>stehende Frau</translation></message>
<message><source>woman student</source><translation>Studentin</translation></message>
<message><source>woman superhero</source><translation>Heldin</translation></message>
<message><source>woman supervillain</source><translation>weiblicher Bösewicht</translation></message>
<message><source>woman surfing</source><translation>Surferin</translation></message>
<message><source>woman swimming</source><translation>Schwimmerin</translation></message>
<message><source>woman teacher</source><translation>Lehrerin</translation></message>
<message><source>woman technologist</source><translation>IT-Expertin</translation></message>
<message><source>woman tipping hand</source><translation>Infoschalter-Mitarbeiterin</translation></message>
<message><source>woman vampire</source><translation>weiblicher Vampir</translation></message>
<message><source>woman walking</source><translation>Fußgängerin</translation></message>
<message><source>woman walking: facing right</source><translation>Fußgängerin: nach rechts</translation></message>
<message><source>woman wearing turban</source><translation>Frau mit Turban</translation></message>
<message><source>woman with headscarf</source><translation>Frau mit Kopftuch</translation></message>
<message><source>woman with veil</source><translation>Frau mit Schleier</translation></message>
<message><source>woman with white cane</source><translation>Frau mit Langstock</translation></message>
<message><source>woman with white cane: facing right</source><translation>Frau mit Langstock: nach rechts</translation></message>
<message><source>woman zombie</source><translation>weiblicher Zombie</translation></message>
<message><source>woman: bald</source><translation>Frau: Glatze</translation></message>
<message><source>woman: beard</source><translation>Frau: Bart</translation></message>
<message><source>woman: blond hair</source><translation>Frau: blond</translation></message>
<message><source>woman: curly hair</source><translation>Frau: lockiges Haar</translation></message>
<message><source>woman: red hair</source><translation>Frau: rotes Haar</translation></message>
<message><source>woman: white hair</source><translation>Frau: weißes Haar</translation></message>
<message><source>woman’s boot</source><translation>Damenstiefel</translation></message>
<message><source>woman’s clothes</source><translation>Bluse</translation></message>
<message><source>woman’s hat</source><translation>Damenhut</translation></message>
<message><source>woman’s sandal</source><translation>Damensandale</translation></message>
<message><source>women holding hands</source><translation>Händchen haltende Frauen</translation></message>
<message><source>women with bunny ears</source><translation>Frauen mit Hasenohren</translation></message>
<message><source>women wrestling</source><translation>ringende Frauen</translation></message>
<message><source>women’s room</source><translation>Damen</translation></message>
<message><source>wondering</source><translation>wundern</translation></message>
<message><source>wood</source><translation>Holz</translation></message>
<message><source>woohoo</source><translation>Konfetti</translation></message>
<message><source>woozy face</source><translation>schwindeliges Gesicht</translation></message>
<message><source>world map</source><translation>Weltkarte</translation></message>
<message><source>worm</source><translation>Wurm</translation></message>
<message><source>worried face</source><translation>besorgtes Gesicht</translation></message>
<message><source>wow</source><translation>wow</translation></message>
<message><source>wrapped</source><translation>Wrap</translation></message>
<message><source>wrapped gift</source><translation>Geschenk</translation></message>
<message><source>wrench</source><translation>Schraubenschlüssel</translation></message>
<message><source>writing hand</source><translation>schreibende Hand</translation></message>
<message><source>x-ray</source><translation>Röntgenbild</translation></message>
<message><source>xoxo</source><translation>xoxo</translation></message>
<message><source>yarn</source><translation>Wollknäuel</translation></message>
<message><source>yawn</source><translation>gähnen</translation></message>
<message><source>yawning face</source><translation>gähnendes Gesicht</translation></message>
<message><source>yellow</source><translation>gelb</translation></message>
<message><source>yellow circle</source><translation>gelber Punkt</translation></message>
<message><source>yellow heart</source><translation>gelbes Herz</translation></message>
<message><source>yellow square</source><translation>gelbes Quadrat</translation></message>
<message><source>yen banknote</source><translation>Yen-Banknote</translation></message>
<message><source>yikes</source><translation>Angstschweiß</translation></message>
<message><source>yin yang</source><translation>Yin und Yang</translation></message>
<message><source>yo-yo</source><translation>Jo-Jo</translation></message>
<message><source>young</source><translation>jung</translation></message>
<message><source>younger</source><translation>jünger</translation></message>
<message><source>yuèbǐng</source><translation>Yuebing</translation></message>
<message><source>zany face</source><translation>irres Gesicht</translation></message>
<message><source>zebra</source><translation>Zebra</translation></message>
<message><source>zen</source><translation>Zen</translation></message>
<message><source>zipper-mouth face</source><translation>Gesicht mit Reißverschlussmund</translation></message>
<message><source>zodiac</source><translation>Sternzeichen</translation></message>
<message><source>zombie</source><translation>Zombie</translation></message>
</context>
</TS>
