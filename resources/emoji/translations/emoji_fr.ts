<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context><name>EmojiLocalisation</name>
<message><source>!</source><translation>!</translation></message>
<message><source>*</source><translation>*</translation></message>
<message><source>1st place medal</source><translation>médaille d’or</translation></message>
<message><source>2nd place medal</source><translation>médaille d’argent</translation></message>
<message><source>3rd place medal</source><translation>médaille de bronze</translation></message>
<message><source>?</source><translation>?</translation></message>
<message><source>A button (blood type)</source><translation>groupe sanguin A</translation></message>
<message><source>AB button (blood type)</source><translation>groupe sanguin AB</translation></message>
<message><source>ATM sign</source><translation>distributeur de billets</translation></message>
<message><source>Aquarius</source><translation>verseau</translation></message>
<message><source>Aries</source><translation>bélier zodiaque</translation></message>
<message><source>B button (blood type)</source><translation>groupe sanguin B</translation></message>
<message><source>BACK arrow</source><translation>flèche Retour</translation></message>
<message><source>CL button</source><translation>bouton Effacer</translation></message>
<message><source>COOL button</source><translation>bouton Cool</translation></message>
<message><source>Cancer</source><translation>cancer</translation></message>
<message><source>Capricorn</source><translation>capricorne</translation></message>
<message><source>Christmas tree</source><translation>sapin de Noël</translation></message>
<message><source>END arrow</source><translation>flèche Fin</translation></message>
<message><source>FREE button</source><translation>bouton Gratuit</translation></message>
<message><source>Gemini</source><translation>gémeaux</translation></message>
<message><source>ID button</source><translation>bouton Identifiant</translation></message>
<message><source>Japanese castle</source><translation>château japonais</translation></message>
<message><source>Japanese dolls</source><translation>poupées japonaises</translation></message>
<message><source>Japanese post office</source><translation>bureau de poste japonais</translation></message>
<message><source>Japanese symbol for beginner</source><translation>symbole japonais de débutant</translation></message>
<message><source>Japanese “acceptable” button</source><translation>bouton accepter en japonais</translation></message>
<message><source>Japanese “application” button</source><translation>bouton application en japonais</translation></message>
<message><source>Japanese “bargain” button</source><translation>bouton bonne affaire en japonais</translation></message>
<message><source>Japanese “congratulations” button</source><translation>bouton félicitations en japonais</translation></message>
<message><source>Japanese “discount” button</source><translation>bouton réduction en japonais</translation></message>
<message><source>Japanese “free of charge” button</source><translation>bouton gratuit en japonais</translation></message>
<message><source>Japanese “here” button</source><translation>bouton ici en japonais</translation></message>
<message><source>Japanese “monthly amount” button</source><translation>bouton montant mensuel en japonais</translation></message>
<message><source>Japanese “no vacancy” button</source><translation>bouton complet en japonais</translation></message>
<message><source>Japanese “not free of charge” button</source><translation>bouton pas gratuit en japonais</translation></message>
<message><source>Japanese “open for business” button</source><translation>bouton ouvert pour affaires en japonais</translation></message>
<message><source>Japanese “passing grade” button</source><translation>bouton note pour réussir en japonais</translation></message>
<message><source>Japanese “prohibited” button</source><translation>bouton interdit en japonais</translation></message>
<message><source>Japanese “reserved” button</source><translation>bouton réservé en japonais</translation></message>
<message><source>Japanese “secret” button</source><translation>bouton secret en japonais</translation></message>
<message><source>Japanese “service charge” button</source><translation>bouton frais de service en japonais</translation></message>
<message><source>Japanese “vacancy” button</source><translation>bouton chambres disponibles en japonais</translation></message>
<message><source>Leo</source><translation>lion</translation></message>
<message><source>Libra</source><translation>balance</translation></message>
<message><source>Mrs. Claus</source><translation>mère Noël</translation></message>
<message><source>Mx Claus</source><translation>santa</translation></message>
<message><source>NEW button</source><translation>bouton Nouveau</translation></message>
<message><source>NG button</source><translation>bouton Pas bien</translation></message>
<message><source>O button (blood type)</source><translation>groupe sanguin O</translation></message>
<message><source>OK button</source><translation>bouton OK</translation></message>
<message><source>OK hand</source><translation>ok</translation></message>
<message><source>ON! arrow</source><translation>flèche Activé</translation></message>
<message><source>Ophiuchus</source><translation>serpentaire</translation></message>
<message><source>P button</source><translation>bouton P</translation></message>
<message><source>Pisces</source><translation>poissons</translation></message>
<message><source>SOON arrow</source><translation>flèche Bientôt</translation></message>
<message><source>SOS button</source><translation>bouton SOS</translation></message>
<message><source>Sagittarius</source><translation>sagittaire</translation></message>
<message><source>Santa Claus</source><translation>père Noël</translation></message>
<message><source>Scorpio</source><translation>scorpion zodiaque</translation></message>
<message><source>Statue of Liberty</source><translation>statue de la Liberté</translation></message>
<message><source>T-Rex</source><translation>T-Rex</translation></message>
<message><source>TOP arrow</source><translation>flèche En haut</translation></message>
<message><source>Taurus</source><translation>taureau</translation></message>
<message><source>Tokyo tower</source><translation>tour de Tokyo</translation></message>
<message><source>UP! button</source><translation>bouton Vers le haut</translation></message>
<message><source>VS button</source><translation>bouton VS</translation></message>
<message><source>Virgo</source><translation>vierge</translation></message>
<message><source>ZZZ</source><translation>endormi</translation></message>
<message><source>abacus</source><translation>abaque</translation></message>
<message><source>abcd</source><translation>lettres latines</translation></message>
<message><source>absolutely</source><translation>absolument</translation></message>
<message><source>access</source><translation>accès</translation></message>
<message><source>accessibility</source><translation>accessibilité</translation></message>
<message><source>accident</source><translation>accident</translation></message>
<message><source>accordion</source><translation>accordéon</translation></message>
<message><source>action</source><translation>action</translation></message>
<message><source>actor</source><translation>acteur</translation></message>
<message><source>actress</source><translation>actrice</translation></message>
<message><source>adhesive bandage</source><translation>sparadrap</translation></message>
<message><source>admiration</source><translation>admiration</translation></message>
<message><source>admission tickets</source><translation>billet d’entrée</translation></message>
<message><source>adorable</source><translation>adorable</translation></message>
<message><source>adult</source><translation>adulte</translation></message>
<message><source>aerial tramway</source><translation>tramway aérien</translation></message>
<message><source>aesculapius</source><translation>Esculape</translation></message>
<message><source>airplane</source><translation>avion</translation></message>
<message><source>airplane arrival</source><translation>avion à l’atterrissage</translation></message>
<message><source>airplane departure</source><translation>avion au décollage</translation></message>
<message><source>alarm</source><translation>alarme</translation></message>
<message><source>alarm clock</source><translation>réveil</translation></message>
<message><source>alcohol</source><translation>alcool</translation></message>
<message><source>alembic</source><translation>alambic</translation></message>
<message><source>alert</source><translation>alerte</translation></message>
<message><source>alien</source><translation>alien</translation></message>
<message><source>alien monster</source><translation>monstre de l’espace</translation></message>
<message><source>alphabet</source><translation>alphabet</translation></message>
<message><source>alternation</source><translation>alternance</translation></message>
<message><source>ambulance</source><translation>ambulance</translation></message>
<message><source>american football</source><translation>football américain</translation></message>
<message><source>amphora</source><translation>amphore</translation></message>
<message><source>amulet</source><translation>amulette</translation></message>
<message><source>anatomical</source><translation>anatomie</translation></message>
<message><source>anatomical heart</source><translation>cœur</translation></message>
<message><source>anchor</source><translation>ancre</translation></message>
<message><source>angel</source><translation>ange</translation></message>
<message><source>angelic</source><translation>angélique</translation></message>
<message><source>anger symbol</source><translation>symbole de colère</translation></message>
<message><source>angry</source><translation>colère</translation></message>
<message><source>angry face</source><translation>visage en colère</translation></message>
<message><source>angry face with horns</source><translation>visage en colère avec des cornes</translation></message>
<message><source>anguished face</source><translation>visage angoissé</translation></message>
<message><source>animal</source><translation>animal</translation></message>
<message><source>annelid</source><translation>annélide</translation></message>
<message><source>anniversary</source><translation>anniversaire</translation></message>
<message><source>ant</source><translation>fourmi</translation></message>
<message><source>antarctica</source><translation>Antarctique</translation></message>
<message><source>antenna</source><translation>antenne</translation></message>
<message><source>antenna bars</source><translation>barres de réseau</translation></message>
<message><source>anxious</source><translation>anxieux</translation></message>
<message><source>anxious face with sweat</source><translation>visage anxieux avec goutte de sueur</translation></message>
<message><source>application</source><translation>application</translation></message>
<message><source>aquarium</source><translation>aquarium</translation></message>
<message><source>archery</source><translation>archer</translation></message>
<message><source>architect</source><translation>architecte</translation></message>
<message><source>arctic</source><translation>arctique</translation></message>
<message><source>arepa</source><translation>arepa</translation></message>
<message><source>arrived</source><translation>arrivée</translation></message>
<message><source>arrow</source><translation>flèche</translation></message>
<message><source>art</source><translation>art</translation></message>
<message><source>articulated lorry</source><translation>semi-remorque</translation></message>
<message><source>artist</source><translation>artiste</translation></message>
<message><source>artist palette</source><translation>palette de peinture</translation></message>
<message><source>ascend</source><translation>mythologie</translation></message>
<message><source>assassin</source><translation>assassin</translation></message>
<message><source>assembly</source><translation>assemblage</translation></message>
<message><source>assistance</source><translation>chien d’assistance</translation></message>
<message><source>asterisk</source><translation>astérique</translation></message>
<message><source>astonished face</source><translation>visage stupéfait</translation></message>
<message><source>astronaut</source><translation>astronaute</translation></message>
<message><source>astronomy</source><translation>astronomie</translation></message>
<message><source>athletic</source><translation>athlétique</translation></message>
<message><source>atom</source><translation>atome</translation></message>
<message><source>atom symbol</source><translation>symbole de l’atome</translation></message>
<message><source>attraction</source><translation>attraction</translation></message>
<message><source>aubergine</source><translation>aubergine</translation></message>
<message><source>australia</source><translation>Australie</translation></message>
<message><source>auto rickshaw</source><translation>tuk tuk</translation></message>
<message><source>automobile</source><translation>voiture</translation></message>
<message><source>autumn</source><translation>automne</translation></message>
<message><source>aviation</source><translation>aviation</translation></message>
<message><source>avocado</source><translation>avocat</translation></message>
<message><source>awesome</source><translation>super</translation></message>
<message><source>awkward</source><translation>gêné</translation></message>
<message><source>axe</source><translation>hache</translation></message>
<message><source>baby</source><translation>bébé</translation></message>
<message><source>baby angel</source><translation>bébé ange</translation></message>
<message><source>baby bottle</source><translation>biberon</translation></message>
<message><source>baby chick</source><translation>poussin</translation></message>
<message><source>baby symbol</source><translation>symbole Bébé</translation></message>
<message><source>backhand index pointing down</source><translation>main avec index pointant vers le bas</translation></message>
<message><source>backhand index pointing left</source><translation>main avec index pointant à gauche</translation></message>
<message><source>backhand index pointing right</source><translation>main avec index pointant à droite</translation></message>
<message><source>backhand index pointing up</source><translation>main avec index pointant vers le haut</translation></message>
<message><source>backpack</source><translation>cartable</translation></message>
<message><source>bacon</source><translation>lard</translation></message>
<message><source>bacteria</source><translation>bactérie</translation></message>
<message><source>badge</source><translation>badge</translation></message>
<message><source>badger</source><translation>blaireau</translation></message>
<message><source>badminton</source><translation>badminton</translation></message>
<message><source>bag</source><translation>sac</translation></message>
<message><source>bagel</source><translation>bagel</translation></message>
<message><source>baggage</source><translation>bagages</translation></message>
<message><source>baggage claim</source><translation>retrait des bagages</translation></message>
<message><source>baguette</source><translation>baguette</translation></message>
<message><source>baguette bread</source><translation>baguette</translation></message>
<message><source>balance</source><translation>balance</translation></message>
<message><source>balance scale</source><translation>balance à poids</translation></message>
<message><source>bald</source><translation>chauve</translation></message>
<message><source>ball</source><translation>balle</translation></message>
<message><source>ballet</source><translation>ballet</translation></message>
<message><source>ballet shoes</source><translation>chaussons de danse</translation></message>
<message><source>balloon</source><translation>ballon gonflable</translation></message>
<message><source>ballot box with ballot</source><translation>urne électorale</translation></message>
<message><source>bamboo</source><translation>bambou</translation></message>
<message><source>banana</source><translation>banane</translation></message>
<message><source>bandage</source><translation>bandage</translation></message>
<message><source>bandana</source><translation>bandana</translation></message>
<message><source>banjo</source><translation>banjo</translation></message>
<message><source>bank</source><translation>banque</translation></message>
<message><source>banknote</source><translation>billet de banque</translation></message>
<message><source>bar chart</source><translation>graphiques à barres</translation></message>
<message><source>barber</source><translation>barbier</translation></message>
<message><source>barber pole</source><translation>enseigne de barbier</translation></message>
<message><source>barrier</source><translation>barrière</translation></message>
<message><source>baseball</source><translation>baseball</translation></message>
<message><source>basket</source><translation>panier</translation></message>
<message><source>basketball</source><translation>basket</translation></message>
<message><source>bat</source><translation>chauve-souris</translation></message>
<message><source>bathing</source><translation>maillot de bain</translation></message>
<message><source>bathroom</source><translation>WC</translation></message>
<message><source>bathtub</source><translation>baignoire</translation></message>
<message><source>battery</source><translation>pile</translation></message>
<message><source>bday</source><translation>joyeux anniversaire</translation></message>
<message><source>beach</source><translation>plage</translation></message>
<message><source>beach with umbrella</source><translation>plage avec parasol</translation></message>
<message><source>beaming face with smiling eyes</source><translation>visage souriant aux yeux rieurs</translation></message>
<message><source>beans</source><translation>haricots</translation></message>
<message><source>bear</source><translation>ours</translation></message>
<message><source>beating heart</source><translation>cœur battant</translation></message>
<message><source>beauty</source><translation>beauté</translation></message>
<message><source>beaver</source><translation>castor</translation></message>
<message><source>bed</source><translation>lit</translation></message>
<message><source>bedtime</source><translation>sieste</translation></message>
<message><source>beer</source><translation>bière</translation></message>
<message><source>beer mug</source><translation>chope</translation></message>
<message><source>beetle</source><translation>scarabée</translation></message>
<message><source>behind</source><translation>caché</translation></message>
<message><source>bell</source><translation>cloche</translation></message>
<message><source>bell pepper</source><translation>poivron</translation></message>
<message><source>bell with slash</source><translation>alarme désactivée</translation></message>
<message><source>bellhop bell</source><translation>cloche de comptoir</translation></message>
<message><source>bento box</source><translation>boîte déjeuner</translation></message>
<message><source>berries</source><translation>cerises</translation></message>
<message><source>beverage box</source><translation>briquette de jus</translation></message>
<message><source>bff</source><translation>amis</translation></message>
<message><source>biceps</source><translation>biceps</translation></message>
<message><source>bicycle</source><translation>vélo</translation></message>
<message><source>bicycles</source><translation>bicyclette</translation></message>
<message><source>bicyclist</source><translation>cycliste</translation></message>
<message><source>big</source><translation>félin</translation></message>
<message><source>bike</source><translation>cyclisme</translation></message>
<message><source>bikini</source><translation>bikini</translation></message>
<message><source>bill</source><translation>billet</translation></message>
<message><source>billed cap</source><translation>casquette américaine</translation></message>
<message><source>billiard</source><translation>billard</translation></message>
<message><source>biohazard</source><translation>danger biologique</translation></message>
<message><source>biologist</source><translation>biologiste</translation></message>
<message><source>biology</source><translation>biologie</translation></message>
<message><source>bird</source><translation>oiseau</translation></message>
<message><source>birthday cake</source><translation>gâteau d’anniversaire</translation></message>
<message><source>bison</source><translation>bison</translation></message>
<message><source>bisque</source><translation>bisque</translation></message>
<message><source>biting lip</source><translation>lèvres qui se mordent</translation></message>
<message><source>black bird</source><translation>oiseau noir</translation></message>
<message><source>black cat</source><translation>chat noir</translation></message>
<message><source>black circle</source><translation>disque noir</translation></message>
<message><source>black flag</source><translation>drapeau noir</translation></message>
<message><source>black heart</source><translation>cœur noir</translation></message>
<message><source>black large square</source><translation>grand carré noir</translation></message>
<message><source>black medium square</source><translation>carré moyen noir</translation></message>
<message><source>black medium-small square</source><translation>carré petit moyen noir</translation></message>
<message><source>black nib</source><translation>stylo plume noir</translation></message>
<message><source>black small square</source><translation>petit carré noir</translation></message>
<message><source>black square button</source><translation>carré noir</translation></message>
<message><source>blame</source><translation>blême</translation></message>
<message><source>blank</source><translation>sans commentaires</translation></message>
<message><source>blood</source><translation>groupe sanguin</translation></message>
<message><source>blossom</source><translation>bourgeon</translation></message>
<message><source>blowfish</source><translation>poisson-lune</translation></message>
<message><source>blu-ray</source><translation>blu-ray</translation></message>
<message><source>blue</source><translation>bleu</translation></message>
<message><source>blue book</source><translation>livre bleu</translation></message>
<message><source>blue circle</source><translation>disque bleu</translation></message>
<message><source>blue heart</source><translation>cœur bleu</translation></message>
<message><source>blue square</source><translation>carré bleu</translation></message>
<message><source>blueberries</source><translation>myrtilles</translation></message>
<message><source>blush</source><translation>rougir</translation></message>
<message><source>boar</source><translation>sanglier</translation></message>
<message><source>board</source><translation>longboard</translation></message>
<message><source>boat</source><translation>bateau</translation></message>
<message><source>boba</source><translation>boba</translation></message>
<message><source>body</source><translation>corps</translation></message>
<message><source>bodybuilder</source><translation>bodybuilding</translation></message>
<message><source>bomb</source><translation>bombe</translation></message>
<message><source>bone</source><translation>os</translation></message>
<message><source>book</source><translation>lire</translation></message>
<message><source>bookmark</source><translation>marque-page</translation></message>
<message><source>bookmark tabs</source><translation>signets</translation></message>
<message><source>books</source><translation>livres</translation></message>
<message><source>boom</source><translation>boum</translation></message>
<message><source>boomerang</source><translation>boomerang</translation></message>
<message><source>bottle with popping cork</source><translation>bouteille de champagne</translation></message>
<message><source>bouquet</source><translation>bouquet</translation></message>
<message><source>bow and arrow</source><translation>arc et flèche</translation></message>
<message><source>bowl with spoon</source><translation>bol avec cuillère</translation></message>
<message><source>bowling</source><translation>bowling</translation></message>
<message><source>boxing glove</source><translation>gant de boxe</translation></message>
<message><source>boy</source><translation>garçon</translation></message>
<message><source>brachiosaurus</source><translation>brachiosaure</translation></message>
<message><source>brain</source><translation>cerveau</translation></message>
<message><source>branch</source><translation>branches</translation></message>
<message><source>bread</source><translation>pain</translation></message>
<message><source>breakfast</source><translation>petit-déjeuner</translation></message>
<message><source>breast-feeding</source><translation>allaitement</translation></message>
<message><source>brick</source><translation>brique</translation></message>
<message><source>bridge at night</source><translation>pont de nuit</translation></message>
<message><source>briefcase</source><translation>porte-documents</translation></message>
<message><source>briefs</source><translation>slip</translation></message>
<message><source>bright button</source><translation>luminosité élevée</translation></message>
<message><source>bro</source><translation>petit ami</translation></message>
<message><source>broccoli</source><translation>brocoli</translation></message>
<message><source>broken chain</source><translation>chaîne brisée</translation></message>
<message><source>broken heart</source><translation>cœur brisé</translation></message>
<message><source>brontosaurus</source><translation>brontosaure</translation></message>
<message><source>bronze</source><translation>bronze</translation></message>
<message><source>broom</source><translation>balai</translation></message>
<message><source>brown</source><translation>marron</translation></message>
<message><source>brown circle</source><translation>disque marron</translation></message>
<message><source>brown heart</source><translation>cœur marron</translation></message>
<message><source>brown mushroom</source><translation>champignon marron</translation></message>
<message><source>brown square</source><translation>carré marron</translation></message>
<message><source>bubble</source><translation>bulle</translation></message>
<message><source>bubble tea</source><translation>thé aux perles</translation></message>
<message><source>bubbles</source><translation>bulles</translation></message>
<message><source>bucket</source><translation>seau</translation></message>
<message><source>buckingham</source><translation>Buckingham Palace</translation></message>
<message><source>buffalo</source><translation>buffle</translation></message>
<message><source>bug</source><translation>chenille</translation></message>
<message><source>building</source><translation>bâtiment</translation></message>
<message><source>building construction</source><translation>construction d’un bâtiment</translation></message>
<message><source>bullet train</source><translation>train à grande vitesse</translation></message>
<message><source>bullseye</source><translation>dans le mille</translation></message>
<message><source>bundle</source><translation>glagla</translation></message>
<message><source>bunny</source><translation>bunny</translation></message>
<message><source>burrito</source><translation>burrito</translation></message>
<message><source>burro</source><translation>bourricot</translation></message>
<message><source>bus</source><translation>bus</translation></message>
<message><source>bus stop</source><translation>arrêt de bus</translation></message>
<message><source>bust</source><translation>buste</translation></message>
<message><source>bust in silhouette</source><translation>silhouette de buste</translation></message>
<message><source>busts</source><translation>bustes</translation></message>
<message><source>busts in silhouette</source><translation>silhouettes de bustes</translation></message>
<message><source>butter</source><translation>beurre</translation></message>
<message><source>butterfly</source><translation>papillon</translation></message>
<message><source>cabbage</source><translation>chou</translation></message>
<message><source>cactus</source><translation>cactus</translation></message>
<message><source>calendar</source><translation>calendrier</translation></message>
<message><source>call me hand</source><translation>signe appel téléphonique avec les doigts</translation></message>
<message><source>calm</source><translation>calme</translation></message>
<message><source>camel</source><translation>dromadaire</translation></message>
<message><source>camera</source><translation>appareil photo</translation></message>
<message><source>camera with flash</source><translation>appareil photo avec flash</translation></message>
<message><source>camping</source><translation>camping</translation></message>
<message><source>cancel</source><translation>annuler</translation></message>
<message><source>candelabrum</source><translation>candélabre</translation></message>
<message><source>candle</source><translation>bougie</translation></message>
<message><source>candy</source><translation>bonbon</translation></message>
<message><source>cane</source><translation>canne</translation></message>
<message><source>canned food</source><translation>aliments en conserve</translation></message>
<message><source>canoe</source><translation>canoë</translation></message>
<message><source>captivated</source><translation>captivé</translation></message>
<message><source>car</source><translation>voiture</translation></message>
<message><source>card file box</source><translation>boîte à dossiers</translation></message>
<message><source>card index</source><translation>carnet d’adresses</translation></message>
<message><source>card index dividers</source><translation>intercalaires</translation></message>
<message><source>cardio</source><translation>cardio</translation></message>
<message><source>cardiology</source><translation>cardiologie</translation></message>
<message><source>carousel horse</source><translation>cheval de manège</translation></message>
<message><source>carp</source><translation>carpe</translation></message>
<message><source>carp streamer</source><translation>koinobori</translation></message>
<message><source>carpentry saw</source><translation>scie</translation></message>
<message><source>carrot</source><translation>carotte</translation></message>
<message><source>cart</source><translation>chariot</translation></message>
<message><source>case</source><translation>casier</translation></message>
<message><source>casino</source><translation>casino</translation></message>
<message><source>casserole</source><translation>casserole</translation></message>
<message><source>castle</source><translation>château</translation></message>
<message><source>cat</source><translation>chat</translation></message>
<message><source>cat face</source><translation>tête de chat</translation></message>
<message><source>cat with tears of joy</source><translation>chat qui pleure de joie</translation></message>
<message><source>cat with wry smile</source><translation>chat avec sourire en coin</translation></message>
<message><source>celebration</source><translation>fête</translation></message>
<message><source>cemetery</source><translation>cimetière</translation></message>
<message><source>censor</source><translation>censuré</translation></message>
<message><source>cereal</source><translation>céréales</translation></message>
<message><source>ceremony</source><translation>cérémonie</translation></message>
<message><source>chain</source><translation>chaîne</translation></message>
<message><source>chains</source><translation>chaînes</translation></message>
<message><source>chair</source><translation>chaise</translation></message>
<message><source>chapel</source><translation>chapelle</translation></message>
<message><source>chart decreasing</source><translation>graphique en baisse</translation></message>
<message><source>chart increasing</source><translation>graphique en hausse</translation></message>
<message><source>chart increasing with yen</source><translation>courbe avec yen en hausse</translation></message>
<message><source>check box with check</source><translation>case cochée</translation></message>
<message><source>check mark</source><translation>coche</translation></message>
<message><source>check mark button</source><translation>bouton coché</translation></message>
<message><source>checked</source><translation>oui</translation></message>
<message><source>cheese</source><translation>fromage</translation></message>
<message><source>cheese wedge</source><translation>part de fromage</translation></message>
<message><source>chef</source><translation>chef</translation></message>
<message><source>chemist</source><translation>chimiste</translation></message>
<message><source>chemistry</source><translation>chimie</translation></message>
<message><source>chequered flag</source><translation>drapeau à damier</translation></message>
<message><source>cherries</source><translation>cerises</translation></message>
<message><source>cherry blossom</source><translation>fleur de cerisier</translation></message>
<message><source>chess pawn</source><translation>pion d’échec</translation></message>
<message><source>chestnut</source><translation>châtaigne</translation></message>
<message><source>chevron</source><translation>chevron</translation></message>
<message><source>chick</source><translation>poussin</translation></message>
<message><source>chicken</source><translation>poule</translation></message>
<message><source>child</source><translation>enfant</translation></message>
<message><source>children crossing</source><translation>traversée d’enfants</translation></message>
<message><source>chipmunk</source><translation>écureuil</translation></message>
<message><source>chocolate</source><translation>chocolat</translation></message>
<message><source>chocolate bar</source><translation>barre chocolatée</translation></message>
<message><source>chopsticks</source><translation>baguettes</translation></message>
<message><source>christmas</source><translation>Noël</translation></message>
<message><source>church</source><translation>église</translation></message>
<message><source>cigarette</source><translation>cigarette</translation></message>
<message><source>cinema</source><translation>cinéma</translation></message>
<message><source>circle</source><translation>cercle</translation></message>
<message><source>circled M</source><translation>m encerclé</translation></message>
<message><source>circus tent</source><translation>chapiteau</translation></message>
<message><source>citrus</source><translation>agrume</translation></message>
<message><source>city</source><translation>ville</translation></message>
<message><source>cityscape</source><translation>ville</translation></message>
<message><source>cityscape at dusk</source><translation>ville au crépuscule</translation></message>
<message><source>clamp</source><translation>serre-joint</translation></message>
<message><source>clapper board</source><translation>clap</translation></message>
<message><source>clapping hands</source><translation>applaudissements</translation></message>
<message><source>classical building</source><translation>monument classique</translation></message>
<message><source>classy</source><translation>classe</translation></message>
<message><source>clinking beer mugs</source><translation>chopes de bière</translation></message>
<message><source>clinking glasses</source><translation>trinquer</translation></message>
<message><source>clipboard</source><translation>porte-bloc</translation></message>
<message><source>clock</source><translation>heure</translation></message>
<message><source>clockwise vertical arrows</source><translation>flèches dans le sens horaire</translation></message>
<message><source>close</source><translation>ouf</translation></message>
<message><source>closed book</source><translation>livre fermé</translation></message>
<message><source>closed mailbox with lowered flag</source><translation>boîte aux lettres fermée drapeau baissé</translation></message>
<message><source>closed mailbox with raised flag</source><translation>boîte aux lettres fermée drapeau levé</translation></message>
<message><source>closed umbrella</source><translation>parapluie fermé</translation></message>
<message><source>clothes</source><translation>courses</translation></message>
<message><source>clothing</source><translation>vêtements</translation></message>
<message><source>cloud</source><translation>nuage</translation></message>
<message><source>cloud with lightning</source><translation>nuage avec éclair</translation></message>
<message><source>cloud with lightning and rain</source><translation>nuage avec éclair et pluie</translation></message>
<message><source>cloud with rain</source><translation>nuage avec pluie</translation></message>
<message><source>cloud with snow</source><translation>nuage avec neige</translation></message>
<message><source>clown</source><translation>clown</translation></message>
<message><source>clown face</source><translation>visage de clown</translation></message>
<message><source>club</source><translation>club</translation></message>
<message><source>club suit</source><translation>trèfle cartes</translation></message>
<message><source>clutch bag</source><translation>pochette</translation></message>
<message><source>coat</source><translation>manteau</translation></message>
<message><source>cockroach</source><translation>cafard</translation></message>
<message><source>cocktail</source><translation>cocktail</translation></message>
<message><source>cocktail glass</source><translation>cocktail</translation></message>
<message><source>coconut</source><translation>noix de coco</translation></message>
<message><source>coder</source><translation>codeur</translation></message>
<message><source>coffin</source><translation>cercueil</translation></message>
<message><source>coin</source><translation>pièce</translation></message>
<message><source>colada</source><translation>piña colada</translation></message>
<message><source>cold</source><translation>froid</translation></message>
<message><source>cold face</source><translation>visage bleu et froid</translation></message>
<message><source>collision</source><translation>explosion</translation></message>
<message><source>colorful</source><translation>coloré</translation></message>
<message><source>combat</source><translation>combat</translation></message>
<message><source>comet</source><translation>comète</translation></message>
<message><source>comic</source><translation>BD</translation></message>
<message><source>communication</source><translation>communication</translation></message>
<message><source>compass</source><translation>boussole</translation></message>
<message><source>computer</source><translation>ordinateur</translation></message>
<message><source>computer disk</source><translation>disque d’ordinateur</translation></message>
<message><source>computer mouse</source><translation>souris d’ordinateur</translation></message>
<message><source>condiment</source><translation>condiments</translation></message>
<message><source>confetti</source><translation>confettis</translation></message>
<message><source>confetti ball</source><translation>confettis</translation></message>
<message><source>confounded face</source><translation>visage déconcerté</translation></message>
<message><source>confused</source><translation>confus</translation></message>
<message><source>confused face</source><translation>visage confus</translation></message>
<message><source>conga</source><translation>conga</translation></message>
<message><source>congee</source><translation>congee</translation></message>
<message><source>construction</source><translation>travaux</translation></message>
<message><source>construction worker</source><translation>personnel du bâtiment</translation></message>
<message><source>control</source><translation>contrôle</translation></message>
<message><source>control knobs</source><translation>boutons de réglage</translation></message>
<message><source>convenience store</source><translation>supérette</translation></message>
<message><source>cook</source><translation>cuisinier (tous genres)</translation></message>
<message><source>cooked rice</source><translation>bol de riz</translation></message>
<message><source>cookie</source><translation>cookie</translation></message>
<message><source>cooking</source><translation>œuf au plat</translation></message>
<message><source>cool</source><translation>cool</translation></message>
<message><source>copyright</source><translation>symbole copyright</translation></message>
<message><source>coral</source><translation>corail</translation></message>
<message><source>cord</source><translation>corde</translation></message>
<message><source>correct</source><translation>correct</translation></message>
<message><source>corvid</source><translation>corvidé</translation></message>
<message><source>cosmetics</source><translation>cosmétiques</translation></message>
<message><source>couch and lamp</source><translation>canapé et lampe</translation></message>
<message><source>counterclockwise arrows button</source><translation>flèches dans le sens antihoraire</translation></message>
<message><source>couple</source><translation>couple</translation></message>
<message><source>couple with heart</source><translation>couple avec cœur</translation></message>
<message><source>couple with heart: man, man</source><translation>couple avec cœur : homme et homme</translation></message>
<message><source>couple with heart: woman, man</source><translation>couple avec cœur : femme et homme</translation></message>
<message><source>couple with heart: woman, woman</source><translation>couple avec cœur : femme et femme</translation></message>
<message><source>cow</source><translation>vache</translation></message>
<message><source>cow face</source><translation>tête de vache</translation></message>
<message><source>cowboy</source><translation>cowboy</translation></message>
<message><source>cowboy hat face</source><translation>visage avec chapeau de cowboy</translation></message>
<message><source>crab</source><translation>crabe</translation></message>
<message><source>cracker</source><translation>cracker</translation></message>
<message><source>crayon</source><translation>crayon pastel</translation></message>
<message><source>cream</source><translation>crème</translation></message>
<message><source>creature</source><translation>créature</translation></message>
<message><source>credit card</source><translation>carte bancaire</translation></message>
<message><source>crescent</source><translation>croissant</translation></message>
<message><source>crescent moon</source><translation>croissant de lune</translation></message>
<message><source>cricket</source><translation>criquet</translation></message>
<message><source>cricket game</source><translation>cricket</translation></message>
<message><source>crochet</source><translation>crochet</translation></message>
<message><source>crocodile</source><translation>crocodile</translation></message>
<message><source>croissant</source><translation>croissant</translation></message>
<message><source>cross</source><translation>croix</translation></message>
<message><source>cross mark</source><translation>croix</translation></message>
<message><source>cross mark button</source><translation>bouton croix</translation></message>
<message><source>crossed fingers</source><translation>doigts croisés</translation></message>
<message><source>crossed flags</source><translation>drapeaux croisés</translation></message>
<message><source>crossed swords</source><translation>épées croisées</translation></message>
<message><source>crown</source><translation>couronne</translation></message>
<message><source>crutch</source><translation>béquille</translation></message>
<message><source>cry</source><translation>larme</translation></message>
<message><source>crying</source><translation>pleurer</translation></message>
<message><source>crying cat</source><translation>chat qui pleure</translation></message>
<message><source>crying face</source><translation>visage qui pleure</translation></message>
<message><source>crystal</source><translation>cristal</translation></message>
<message><source>crystal ball</source><translation>boule de cristal</translation></message>
<message><source>crêpe</source><translation>crêpe</translation></message>
<message><source>cube</source><translation>cube</translation></message>
<message><source>cucumber</source><translation>concombre</translation></message>
<message><source>culture</source><translation>culture</translation></message>
<message><source>cup with straw</source><translation>gobelet avec paille</translation></message>
<message><source>cupcake</source><translation>cupcake</translation></message>
<message><source>curious</source><translation>curieux</translation></message>
<message><source>curling</source><translation>curling</translation></message>
<message><source>curling stone</source><translation>pierre de curling</translation></message>
<message><source>curly loop</source><translation>boucle</translation></message>
<message><source>currency</source><translation>devise</translation></message>
<message><source>currency exchange</source><translation>conversion de devise</translation></message>
<message><source>curry rice</source><translation>riz au curry</translation></message>
<message><source>custard</source><translation>crème renversée</translation></message>
<message><source>customs</source><translation>douane</translation></message>
<message><source>cut of meat</source><translation>morceau de viande</translation></message>
<message><source>cyan</source><translation>cyan</translation></message>
<message><source>cyclone</source><translation>cyclone</translation></message>
<message><source>cygnet</source><translation>cygne</translation></message>
<message><source>dagger</source><translation>dague</translation></message>
<message><source>dance</source><translation>danse</translation></message>
<message><source>dancer</source><translation>danseur</translation></message>
<message><source>dango</source><translation>brochette de bonbons</translation></message>
<message><source>dark skin tone</source><translation>peau foncée</translation></message>
<message><source>dashing away</source><translation>décamper</translation></message>
<message><source>data</source><translation>données</translation></message>
<message><source>dating</source><translation>rendez-vous</translation></message>
<message><source>deaf man</source><translation>homme sourd</translation></message>
<message><source>deaf person</source><translation>personne sourde</translation></message>
<message><source>deaf woman</source><translation>femme sourde</translation></message>
<message><source>death</source><translation>mort</translation></message>
<message><source>deciduous tree</source><translation>arbre à feuilles caduques</translation></message>
<message><source>deer</source><translation>cerf</translation></message>
<message><source>delicious</source><translation>délicieux</translation></message>
<message><source>delivery truck</source><translation>camion de livraison</translation></message>
<message><source>demon</source><translation>démon</translation></message>
<message><source>denim</source><translation>denim</translation></message>
<message><source>dental</source><translation>dentaire</translation></message>
<message><source>dentist</source><translation>dentiste</translation></message>
<message><source>department store</source><translation>grand magasin</translation></message>
<message><source>derelict house</source><translation>maison abandonnée</translation></message>
<message><source>desert</source><translation>désert</translation></message>
<message><source>desert island</source><translation>île déserte</translation></message>
<message><source>desktop computer</source><translation>ordinateur de bureau</translation></message>
<message><source>dessert</source><translation>dessert</translation></message>
<message><source>detective</source><translation>détective</translation></message>
<message><source>dharma</source><translation>dharma</translation></message>
<message><source>dialog</source><translation>dialogue</translation></message>
<message><source>diamond</source><translation>diamant</translation></message>
<message><source>diamond suit</source><translation>carreau</translation></message>
<message><source>diamond with a dot</source><translation>diamant avec un point</translation></message>
<message><source>diesel</source><translation>diesel</translation></message>
<message><source>dim button</source><translation>luminosité faible</translation></message>
<message><source>dinosaur</source><translation>dinosaure</translation></message>
<message><source>diplodocus</source><translation>diplodocus</translation></message>
<message><source>direction</source><translation>direction</translation></message>
<message><source>disappear</source><translation>disparaître</translation></message>
<message><source>disappointed</source><translation>déçu</translation></message>
<message><source>disappointed face</source><translation>visage déçu</translation></message>
<message><source>disco</source><translation>disco</translation></message>
<message><source>disease</source><translation>maladie</translation></message>
<message><source>disguised face</source><translation>visage déguisé</translation></message>
<message><source>disk</source><translation>disque</translation></message>
<message><source>divide</source><translation>signe diviser</translation></message>
<message><source>diving mask</source><translation>masque de plongée</translation></message>
<message><source>division</source><translation>division</translation></message>
<message><source>diya</source><translation>diya</translation></message>
<message><source>diya lamp</source><translation>diya</translation></message>
<message><source>dizzy</source><translation>étourdissement</translation></message>
<message><source>dna</source><translation>adn</translation></message>
<message><source>doctor</source><translation>docteur</translation></message>
<message><source>document</source><translation>document</translation></message>
<message><source>dodo</source><translation>dodo</translation></message>
<message><source>dog</source><translation>chien</translation></message>
<message><source>dog face</source><translation>tête de chien</translation></message>
<message><source>dollar</source><translation>dollar</translation></message>
<message><source>dollar banknote</source><translation>billet en dollars</translation></message>
<message><source>dolphin</source><translation>dauphin</translation></message>
<message><source>donkey</source><translation>âne</translation></message>
<message><source>door</source><translation>porte</translation></message>
<message><source>dotted line face</source><translation>visage en pointillés</translation></message>
<message><source>dotted six-pointed star</source><translation>étoile à 6 branches</translation></message>
<message><source>double curly loop</source><translation>double boucle</translation></message>
<message><source>double exclamation mark</source><translation>double point d’exclamation</translation></message>
<message><source>doubt</source><translation>doute</translation></message>
<message><source>doughnut</source><translation>doughnut</translation></message>
<message><source>dove</source><translation>colombe</translation></message>
<message><source>down</source><translation>bas</translation></message>
<message><source>down arrow</source><translation>flèche bas</translation></message>
<message><source>down-left arrow</source><translation>flèche bas gauche</translation></message>
<message><source>down-right arrow</source><translation>flèche bas droite</translation></message>
<message><source>downcast face with sweat</source><translation>visage démoralisé avec goutte de sueur</translation></message>
<message><source>downwards button</source><translation>petit triangle bas</translation></message>
<message><source>dragon</source><translation>dragon</translation></message>
<message><source>dragon face</source><translation>tête de dragon</translation></message>
<message><source>dress</source><translation>robe</translation></message>
<message><source>dressage</source><translation>dressage</translation></message>
<message><source>dribble</source><translation>dribble</translation></message>
<message><source>drink</source><translation>boisson</translation></message>
<message><source>drinking</source><translation>bar</translation></message>
<message><source>dromedary</source><translation>dromadaire</translation></message>
<message><source>drooling face</source><translation>visage qui bave</translation></message>
<message><source>drop of blood</source><translation>goutte de sang</translation></message>
<message><source>droplet</source><translation>goutte d’eau</translation></message>
<message><source>drought</source><translation>sécheresse</translation></message>
<message><source>drum</source><translation>batterie</translation></message>
<message><source>duck</source><translation>canard</translation></message>
<message><source>duel</source><translation>duel</translation></message>
<message><source>dumpling</source><translation>boulette de pâte</translation></message>
<message><source>dunno</source><translation>je ne sais pas</translation></message>
<message><source>dupe</source><translation>duper</translation></message>
<message><source>dvd</source><translation>DVD</translation></message>
<message><source>dynamite</source><translation>dynamite</translation></message>
<message><source>e-mail</source><translation>e-mail</translation></message>
<message><source>eagle</source><translation>aigle</translation></message>
<message><source>ear</source><translation>oreille</translation></message>
<message><source>ear of corn</source><translation>épi de maïs</translation></message>
<message><source>ear with hearing aid</source><translation>oreille appareillée</translation></message>
<message><source>eat</source><translation>manger</translation></message>
<message><source>edamame</source><translation>edamame</translation></message>
<message><source>education</source><translation>école</translation></message>
<message><source>egg</source><translation>œuf</translation></message>
<message><source>eggplant</source><translation>aubergine</translation></message>
<message><source>eight o’clock</source><translation>huit heures</translation></message>
<message><source>eight-pointed star</source><translation>étoile huit branches</translation></message>
<message><source>eight-spoked asterisk</source><translation>astérisque huit branches</translation></message>
<message><source>eight-thirty</source><translation>huit heures et demie</translation></message>
<message><source>eject button</source><translation>bouton éjecter</translation></message>
<message><source>electric plug</source><translation>câble avec fiche électrique</translation></message>
<message><source>electricity</source><translation>électricité</translation></message>
<message><source>electronic</source><translation>électronique</translation></message>
<message><source>elephant</source><translation>éléphant</translation></message>
<message><source>elevator</source><translation>ascenseur</translation></message>
<message><source>eleven o’clock</source><translation>onze heures</translation></message>
<message><source>eleven-thirty</source><translation>onze heures et demie</translation></message>
<message><source>elf</source><translation>elfe</translation></message>
<message><source>email</source><translation>e-mail</translation></message>
<message><source>embarrass</source><translation>embarrassé</translation></message>
<message><source>emotion</source><translation>sentiment</translation></message>
<message><source>empanada</source><translation>empanada</translation></message>
<message><source>empty nest</source><translation>nid vide</translation></message>
<message><source>engagement</source><translation>fiançailles</translation></message>
<message><source>enraged face</source><translation>visage boudeur</translation></message>
<message><source>entry</source><translation>entrée interdite</translation></message>
<message><source>envelope</source><translation>enveloppe</translation></message>
<message><source>envelope with arrow</source><translation>enveloppe avec flèche</translation></message>
<message><source>eruption</source><translation>éruption</translation></message>
<message><source>escargot</source><translation>escargot</translation></message>
<message><source>euro banknote</source><translation>billet en euros</translation></message>
<message><source>evergreen tree</source><translation>conifère</translation></message>
<message><source>evolution</source><translation>évolution</translation></message>
<message><source>ewe</source><translation>mouton</translation></message>
<message><source>exasperation</source><translation>exaspération</translation></message>
<message><source>exchange</source><translation>change</translation></message>
<message><source>exclamation</source><translation>exclamation</translation></message>
<message><source>exclamation question mark</source><translation>points d’exclamation et d’interrogation</translation></message>
<message><source>experiment</source><translation>expérience</translation></message>
<message><source>exploding head</source><translation>tête qui explose</translation></message>
<message><source>explosion</source><translation>explosion</translation></message>
<message><source>expressionless</source><translation>neutre</translation></message>
<message><source>expressionless face</source><translation>visage sans expression</translation></message>
<message><source>extinction</source><translation>extinction</translation></message>
<message><source>extraterrestrial</source><translation>extraterrestre</translation></message>
<message><source>eye</source><translation>œil</translation></message>
<message><source>eye in speech bubble</source><translation>œil dans une bulle de BD</translation></message>
<message><source>eyes</source><translation>yeux</translation></message>
<message><source>face</source><translation>visage</translation></message>
<message><source>face blowing a kiss</source><translation>visage envoyant un bisou</translation></message>
<message><source>face exhaling</source><translation>visage expirant</translation></message>
<message><source>face holding back tears</source><translation>visage retenant ses larmes</translation></message>
<message><source>face in clouds</source><translation>visage dans les nuages</translation></message>
<message><source>face savoring food</source><translation>miam</translation></message>
<message><source>face screaming in fear</source><translation>visage qui hurle de peur</translation></message>
<message><source>face vomiting</source><translation>visage qui vomit</translation></message>
<message><source>face with bags under eyes</source><translation>visage avec des valises sous les yeux</translation></message>
<message><source>face with crossed-out eyes</source><translation>visage étourdi</translation></message>
<message><source>face with diagonal mouth</source><translation>visage avec bouche en diagonale</translation></message>
<message><source>face with hand over mouth</source><translation>visage avec une main sur la bouche</translation></message>
<message><source>face with head-bandage</source><translation>visage avec bandage autour de la tête</translation></message>
<message><source>face with medical mask</source><translation>visage avec masque</translation></message>
<message><source>face with monocle</source><translation>visage avec un monocle</translation></message>
<message><source>face with open eyes and hand over mouth</source><translation>visage avec yeux ouverts et main sur la bouche</translation></message>
<message><source>face with open mouth</source><translation>visage avec bouche ouverte</translation></message>
<message><source>face with peeking eye</source><translation>visage qui regarde entre ses doigts</translation></message>
<message><source>face with raised eyebrow</source><translation>visage avec les sourcils relevés</translation></message>
<message><source>face with rolling eyes</source><translation>visage roulant des yeux</translation></message>
<message><source>face with spiral eyes</source><translation>visage aux yeux en spirales</translation></message>
<message><source>face with steam from nose</source><translation>visage avec fumée sortant des narines</translation></message>
<message><source>face with symbols on mouth</source><translation>visage avec des symboles dans la bouche</translation></message>
<message><source>face with tears of joy</source><translation>visage riant aux larmes</translation></message>
<message><source>face with thermometer</source><translation>visage avec thermomètre</translation></message>
<message><source>face with tongue</source><translation>visage qui tire la langue</translation></message>
<message><source>face without mouth</source><translation>visage sans bouche</translation></message>
<message><source>factory</source><translation>usine</translation></message>
<message><source>factory worker</source><translation>ouvrier (tous genres)</translation></message>
<message><source>fairy</source><translation>personnage féérique</translation></message>
<message><source>fairytale</source><translation>fantastique</translation></message>
<message><source>falafel</source><translation>falafels</translation></message>
<message><source>fallen leaf</source><translation>feuille morte</translation></message>
<message><source>family</source><translation>famille</translation></message>
<message><source>family: adult, adult, child</source><translation>famille : adulte, adulte, enfant</translation></message>
<message><source>family: adult, adult, child, child</source><translation>famille : adulte, adulte, enfant, enfant</translation></message>
<message><source>family: adult, child</source><translation>famille : adulte, enfant</translation></message>
<message><source>family: adult, child, child</source><translation>famille : adulte, enfant, enfant</translation></message>
<message><source>family: man, boy</source><translation>famille : homme et garçon</translation></message>
<message><source>family: man, boy, boy</source><translation>famille : homme, garçon et garçon</translation></message>
<message><source>family: man, girl</source><translation>famille : homme et fille</translation></message>
<message><source>family: man, girl, boy</source><translation>famille : homme, fille et garçon</translation></message>
<message><source>family: man, girl, girl</source><translation>famille : homme, fille et fille</translation></message>
<message><source>family: man, man, boy</source><translation>famille : homme, homme et garçon</translation></message>
<message><source>family: man, man, boy, boy</source><translation>famille : homme, homme, garçon et garçon</translation></message>
<message><source>family: man, man, girl</source><translation>famille : homme, homme et fille</translation></message>
<message><source>family: man, man, girl, boy</source><translation>famille : homme, homme, fille et garçon</translation></message>
<message><source>family: man, man, girl, girl</source><translation>famille : homme, homme, fille et fille</translation></message>
<message><source>family: man, woman, boy</source><translation>famille : homme, femme et garçon</translation></message>
<message><source>family: man, woman, boy, boy</source><translation>famille : homme, femme, garçon et garçon</translation></message>
<message><source>family: man, woman, girl</source><translation>famille : homme, femme et fille</translation></message>
<message><source>family: man, woman, girl, boy</source><translation>famille : homme, femme, fille et garçon</translation></message>
<message><source>family: man, woman, girl, girl</source><translation>famille : homme, femme, fille et fille</translation></message>
<message><source>family: woman, boy</source><translation>famille : femme et garçon</translation></message>
<message><source>family: woman, boy, boy</source><translation>famille : femme, garçon et garçon</translation></message>
<message><source>family: woman, girl</source><translation>famille : femme et fille</translation></message>
<message><source>family: woman, girl, boy</source><translation>famille : femme, fille et garçon</translation></message>
<message><source>family: woman, girl, girl</source><translation>famille : femme, fille et fille</translation></message>
<message><source>family: woman, woman, boy</source><translation>famille : femme, femme et garçon</translation></message>
<message><source>family: woman, woman, boy, boy</source><translation>famille : femme, femme, garçon et garçon</translation></message>
<message><source>family: woman, woman, girl</source><translation>famille : femme, femme et fille</translation></message>
<message><source>family: woman, woman, girl, boy</source><translation>famille : femme, femme, fille et garçon</translation></message>
<message><source>family: woman, woman, girl, girl</source><translation>famille : femme, femme, fille et fille</translation></message>
<message><source>farm</source><translation>ferme</translation></message>
<message><source>farmer</source><translation>fermier (tous genres)</translation></message>
<message><source>fast down button</source><translation>double flèche vers le bas</translation></message>
<message><source>fast reverse button</source><translation>bouton retour rapide</translation></message>
<message><source>fast up button</source><translation>double flèche vers le haut</translation></message>
<message><source>fast-forward button</source><translation>bouton avance rapide</translation></message>
<message><source>fax machine</source><translation>fax</translation></message>
<message><source>fearful face</source><translation>visage effrayé</translation></message>
<message><source>feather</source><translation>plume</translation></message>
<message><source>female sign</source><translation>symbole de la femme</translation></message>
<message><source>ferris wheel</source><translation>grande roue</translation></message>
<message><source>ferry</source><translation>ferry</translation></message>
<message><source>festival</source><translation>festival</translation></message>
<message><source>fever</source><translation>fièvre</translation></message>
<message><source>field hockey</source><translation>hockey sur gazon</translation></message>
<message><source>fife</source><translation>fifre</translation></message>
<message><source>file</source><translation>dossier</translation></message>
<message><source>file cabinet</source><translation>meuble à dossiers</translation></message>
<message><source>file folder</source><translation>dossier</translation></message>
<message><source>film</source><translation>film</translation></message>
<message><source>film frames</source><translation>pellicule</translation></message>
<message><source>film projector</source><translation>projecteur cinématographique</translation></message>
<message><source>fingerprint</source><translation>empreinte digitale</translation></message>
<message><source>fire</source><translation>feu</translation></message>
<message><source>fire engine</source><translation>camion de pompier</translation></message>
<message><source>fire extinguisher</source><translation>extincteur</translation></message>
<message><source>firecracker</source><translation>pétard</translation></message>
<message><source>firefighter</source><translation>pompier</translation></message>
<message><source>fireworks</source><translation>feu d’artifice</translation></message>
<message><source>first quarter moon</source><translation>premier quartier de lune</translation></message>
<message><source>first quarter moon face</source><translation>premier quartier de lune avec visage</translation></message>
<message><source>fish</source><translation>poisson</translation></message>
<message><source>fish cake with swirl</source><translation>croquette de poisson</translation></message>
<message><source>fishing pole</source><translation>pêche à la ligne</translation></message>
<message><source>fist</source><translation>poing</translation></message>
<message><source>five o’clock</source><translation>cinq heures</translation></message>
<message><source>five-thirty</source><translation>cinq heures et demie</translation></message>
<message><source>flag</source><translation>drapeau</translation></message>
<message><source>flag in hole</source><translation>drapeau de golf</translation></message>
<message><source>flag: Afghanistan</source><translation>drapeau : Afghanistan</translation></message>
<message><source>flag: Albania</source><translation>drapeau : Albanie</translation></message>
<message><source>flag: Algeria</source><translation>drapeau : Algérie</translation></message>
<message><source>flag: American Samoa</source><translation>drapeau : Samoa américaines</translation></message>
<message><source>flag: Andorra</source><translation>drapeau : Andorre</translation></message>
<message><source>flag: Angola</source><translation>drapeau : Angola</translation></message>
<message><source>flag: Anguilla</source><translation>drapeau : Anguilla</translation></message>
<message><source>flag: Antarctica</source><translation>drapeau : Antarctique</translation></message>
<message><source>flag: Antigua &amp; Barbuda</source><translation>drapeau : Antigua-et-Barbuda</translation></message>
<message><source>flag: Argentina</source><translation>drapeau : Argentine</translation></message>
<message><source>flag: Armenia</source><translation>drapeau : Arménie</translation></message>
<message><source>flag: Aruba</source><translation>drapeau : Aruba</translation></message>
<message><source>flag: Ascension Island</source><translation>drapeau : Île de l’Ascension</translation></message>
<message><source>flag: Australia</source><translation>drapeau : Australie</translation></message>
<message><source>flag: Austria</source><translation>drapeau : Autriche</translation></message>
<message><source>flag: Azerbaijan</source><translation>drapeau : Azerbaïdjan</translation></message>
<message><source>flag: Bahamas</source><translation>drapeau : Bahamas</translation></message>
<message><source>flag: Bahrain</source><translation>drapeau : Bahreïn</translation></message>
<message><source>flag: Bangladesh</source><translation>drapeau : Bangladesh</translation></message>
<message><source>flag: Barbados</source><translation>drapeau : Barbade</translation></message>
<message><source>flag: Belarus</source><translation>drapeau : Biélorussie</translation></message>
<message><source>flag: Belgium</source><translation>drapeau : Belgique</translation></message>
<message><source>flag: Belize</source><translation>drapeau : Belize</translation></message>
<message><source>flag: Benin</source><translation>drapeau : Bénin</translation></message>
<message><source>flag: Bermuda</source><translation>drapeau : Bermudes</translation></message>
<message><source>flag: Bhutan</source><translation>drapeau : Bhoutan</translation></message>
<message><source>flag: Bolivia</source><translation>drapeau : Bolivie</translation></message>
<message><source>flag: Bosnia &amp; Herzegovina</source><translation>drapeau : Bosnie-Herzégovine</translation></message>
<message><source>flag: Botswana</source><translation>drapeau : Botswana</translation></message>
<message><source>flag: Bouvet Island</source><translation>drapeau : Île Bouvet</translation></message>
<message><source>flag: Brazil</source><translation>drapeau : Brésil</translation></message>
<message><source>flag: British Indian Ocean Territory</source><translation>drapeau : Territoire britannique de l’océan Indien</translation></message>
<message><source>flag: British Virgin Islands</source><translation>drapeau : Îles Vierges britanniques</translation></message>
<message><source>flag: Brunei</source><translation>drapeau : Brunei</translation></message>
<message><source>flag: Bulgaria</source><translation>drapeau : Bulgarie</translation></message>
<message><source>flag: Burkina Faso</source><translation>drapeau : Burkina Faso</translation></message>
<message><source>flag: Burundi</source><translation>drapeau : Burundi</translation></message>
<message><source>flag: Cambodia</source><translation>drapeau : Cambodge</translation></message>
<message><source>flag: Cameroon</source><translation>drapeau : Cameroun</translation></message>
<message><source>flag: Canada</source><translation>drapeau : Canada</translation></message>
<message><source>flag: Canary Islands</source><translation>drapeau : Îles Canaries</translation></message>
<message><source>flag: Cape Verde</source><translation>drapeau : Cap-Vert</translation></message>
<message><source>flag: Caribbean Netherlands</source><translation>drapeau : Pays-Bas caribéens</translation></message>
<message><source>flag: Cayman Islands</source><translation>drapeau : Îles Caïmans</translation></message>
<message><source>flag: Central African Republic</source><translation>drapeau : République centrafricaine</translation></message>
<message><source>flag: Ceuta &amp; Melilla</source><translation>drapeau : Ceuta et Melilla</translation></message>
<message><source>flag: Chad</source><translation>drapeau : Tchad</translation></message>
<message><source>flag: Chile</source><translation>drapeau : Chili</translation></message>
<message><source>flag: China</source><translation>drapeau : Chine</translation></message>
<message><source>flag: Christmas Island</source><translation>drapeau : Île Christmas</translation></message>
<message><source>flag: Clipperton Island</source><translation>drapeau : Île Clipperton</translation></message>
<message><source>flag: Cocos (Keeling) Islands</source><translation>drapeau : Îles Cocos</translation></message>
<message><source>flag: Colombia</source><translation>drapeau : Colombie</translation></message>
<message><source>flag: Comoros</source><translation>drapeau : Comores</translation></message>
<message><source>flag: Congo - Brazzaville</source><translation>drapeau : Congo-Brazzaville</translation></message>
<message><source>flag: Congo - Kinshasa</source><translation>drapeau : Congo-Kinshasa</translation></message>
<message><source>flag: Cook Islands</source><translation>drapeau : Îles Cook</translation></message>
<message><source>flag: Costa Rica</source><translation>drapeau : Costa Rica</translation></message>
<message><source>flag: Croatia</source><translation>drapeau : Croatie</translation></message>
<message><source>flag: Cuba</source><translation>drapeau : Cuba</translation></message>
<message><source>flag: Curaçao</source><translation>drapeau : Curaçao</translation></message>
<message><source>flag: Cyprus</source><translation>drapeau : Chypre</translation></message>
<message><source>flag: Czechia</source><translation>drapeau : Tchéquie</translation></message>
<message><source>flag: Côte d’Ivoire</source><translation>drapeau : Côte d’Ivoire</translation></message>
<message><source>flag: Denmark</source><translation>drapeau : Danemark</translation></message>
<message><source>flag: Diego Garcia</source><translation>drapeau : Diego Garcia</translation></message>
<message><source>flag: Djibouti</source><translation>drapeau : Djibouti</translation></message>
<message><source>flag: Dominica</source><translation>drapeau : Dominique</translation></message>
<message><source>flag: Dominican Republic</source><translation>drapeau : République dominicaine</translation></message>
<message><source>flag: Ecuador</source><translation>drapeau : Équateur</translation></message>
<message><source>flag: Egypt</source><translation>drapeau : Égypte</translation></message>
<message><source>flag: El Salvador</source><translation>drapeau : Salvador</translation></message>
<message><source>flag: England</source><translation>drapeau : Angleterre</translation></message>
<message><source>flag: Equatorial Guinea</source><translation>drapeau : Guinée équatoriale</translation></message>
<message><source>flag: Eritrea</source><translation>drapeau : Érythrée</translation></message>
<message><source>flag: Estonia</source><translation>drapeau : Estonie</translation></message>
<message><source>flag: Eswatini</source><translation>drapeau : Eswatini</translation></message>
<message><source>flag: Ethiopia</source><translation>drapeau : Éthiopie</translation></message>
<message><source>flag: European Union</source><translation>drapeau : Union européenne</translation></message>
<message><source>flag: Falkland Islands</source><translation>drapeau : Îles Malouines</translation></message>
<message><source>flag: Faroe Islands</source><translation>drapeau : Îles Féroé</translation></message>
<message><source>flag: Fiji</source><translation>drapeau : Fidji</translation></message>
<message><source>flag: Finland</source><translation>drapeau : Finlande</translation></message>
<message><source>flag: France</source><translation>drapeau : France</translation></message>
<message><source>flag: French Guiana</source><translation>drapeau : Guyane française</translation></message>
<message><source>flag: French Polynesia</source><translation>drapeau : Polynésie française</translation></message>
<message><source>flag: French Southern Territories</source><translation>drapeau : Terres australes françaises</translation></message>
<message><source>flag: Gabon</source><translation>drapeau : Gabon</translation></message>
<message><source>flag: Gambia</source><translation>drapeau : Gambie</translation></message>
<message><source>flag: Georgia</source><translation>drapeau : Géorgie</translation></message>
<message><source>flag: Germany</source><translation>drapeau : Allemagne</translation></message>
<message><source>flag: Ghana</source><translation>drapeau : Ghana</translation></message>
<message><source>flag: Gibraltar</source><translation>drapeau : Gibraltar</translation></message>
<message><source>flag: Greece</source><translation>drapeau : Grèce</translation></message>
<message><source>flag: Greenland</source><translation>drapeau : Groenland</translation></message>
<message><source>flag: Grenada</source><translation>drapeau : Grenade</translation></message>
<message><source>flag: Guadeloupe</source><translation>drapeau : Guadeloupe</translation></message>
<message><source>flag: Guam</source><translation>drapeau : Guam</translation></message>
<message><source>flag: Guatemala</source><translation>drapeau : Guatemala</translation></message>
<message><source>flag: Guernsey</source><translation>drapeau : Guernesey</translation></message>
<message><source>flag: Guinea</source><translation>drapeau : Guinée</translation></message>
<message><source>flag: Guinea-Bissau</source><translation>drapeau : Guinée-Bissau</translation></message>
<message><source>flag: Guyana</source><translation>drapeau : Guyana</translation></message>
<message><source>flag: Haiti</source><translation>drapeau : Haïti</translation></message>
<message><source>flag: Heard &amp; McDonald Islands</source><translation>drapeau : Îles Heard-et-MacDonald</translation></message>
<message><source>flag: Honduras</source><translation>drapeau : Honduras</translation></message>
<message><source>flag: Hong Kong SAR China</source><translation>drapeau : R.A.S. chinoise de Hong Kong</translation></message>
<message><source>flag: Hungary</source><translation>drapeau : Hongrie</translation></message>
<message><source>flag: Iceland</source><translation>drapeau : Islande</translation></message>
<message><source>flag: India</source><translation>drapeau : Inde</translation></message>
<message><source>flag: Indonesia</source><translation>drapeau : Indonésie</translation></message>
<message><source>flag: Iran</source><translation>drapeau : Iran</translation></message>
<message><source>flag: Iraq</source><translation>drapeau : Irak</translation></message>
<message><source>flag: Ireland</source><translation>drapeau : Irlande</translation></message>
<message><source>flag: Isle of Man</source><translation>drapeau : Île de Man</translation></message>
<message><source>flag: Israel</source><translation>drapeau : Israël</translation></message>
<message><source>flag: Italy</source><translation>drapeau : Italie</translation></message>
<message><source>flag: Jamaica</source><translation>drapeau : Jamaïque</translation></message>
<message><source>flag: Japan</source><translation>drapeau : Japon</translation></message>
<message><source>flag: Jersey</source><translation>drapeau : Jersey</translation></message>
<message><source>flag: Jordan</source><translation>drapeau : Jordanie</translation></message>
<message><source>flag: Kazakhstan</source><translation>drapeau : Kazakhstan</translation></message>
<message><source>flag: Kenya</source><translation>drapeau : Kenya</translation></message>
<message><source>flag: Kiribati</source><translation>drapeau : Kiribati</translation></message>
<message><source>flag: Kosovo</source><translation>drapeau : Kosovo</translation></message>
<message><source>flag: Kuwait</source><translation>drapeau : Koweït</translation></message>
<message><source>flag: Kyrgyzstan</source><translation>drapeau : Kirghizstan</translation></message>
<message><source>flag: Laos</source><translation>drapeau : Laos</translation></message>
<message><source>flag: Latvia</source><translation>drapeau : Lettonie</translation></message>
<message><source>flag: Lebanon</source><translation>drapeau : Liban</translation></message>
<message><source>flag: Lesotho</source><translation>drapeau : Lesotho</translation></message>
<message><source>flag: Liberia</source><translation>drapeau : Liberia</translation></message>
<message><source>flag: Libya</source><translation>drapeau : Libye</translation></message>
<message><source>flag: Liechtenstein</source><translation>drapeau : Liechtenstein</translation></message>
<message><source>flag: Lithuania</source><translation>drapeau : Lituanie</translation></message>
<message><source>flag: Luxembourg</source><translation>drapeau : Luxembourg</translation></message>
<message><source>flag: Macao SAR China</source><translation>drapeau : R.A.S. chinoise de Macao</translation></message>
<message><source>flag: Madagascar</source><translation>drapeau : Madagascar</translation></message>
<message><source>flag: Malawi</source><translation>drapeau : Malawi</translation></message>
<message><source>flag: Malaysia</source><translation>drapeau : Malaisie</translation></message>
<message><source>flag: Maldives</source><translation>drapeau : Maldives</translation></message>
<message><source>flag: Mali</source><translation>drapeau : Mali</translation></message>
<message><source>flag: Malta</source><translation>drapeau : Malte</translation></message>
<message><source>flag: Marshall Islands</source><translation>drapeau : Îles Marshall</translation></message>
<message><source>flag: Martinique</source><translation>drapeau : Martinique</translation></message>
<message><source>flag: Mauritania</source><translation>drapeau : Mauritanie</translation></message>
<message><source>flag: Mauritius</source><translation>drapeau : Maurice</translation></message>
<message><source>flag: Mayotte</source><translation>drapeau : Mayotte</translation></message>
<message><source>flag: Mexico</source><translation>drapeau : Mexique</translation></message>
<message><source>flag: Micronesia</source><translation>drapeau : Micronésie</translation></message>
<message><source>flag: Moldova</source><translation>drapeau : Moldavie</translation></message>
<message><source>flag: Monaco</source><translation>drapeau : Monaco</translation></message>
<message><source>flag: Mongolia</source><translation>drapeau : Mongolie</translation></message>
<message><source>flag: Montenegro</source><translation>drapeau : Monténégro</translation></message>
<message><source>flag: Montserrat</source><translation>drapeau : Montserrat</translation></message>
<message><source>flag: Morocco</source><translation>drapeau : Maroc</translation></message>
<message><source>flag: Mozambique</source><translation>drapeau : Mozambique</translation></message>
<message><source>flag: Myanmar (Burma)</source><translation>drapeau : Myanmar (Birmanie)</translation></message>
<message><source>flag: Namibia</source><translation>drapeau : Namibie</translation></message>
<message><source>flag: Nauru</source><translation>drapeau : Nauru</translation></message>
<message><source>flag: Nepal</source><translation>drapeau : Népal</translation></message>
<message><source>flag: Netherlands</source><translation>drapeau : Pays-Bas</translation></message>
<message><source>flag: New Caledonia</source><translation>drapeau : Nouvelle-Calédonie</translation></message>
<message><source>flag: New Zealand</source><translation>drapeau : Nouvelle-Zélande</translation></message>
<message><source>flag: Nicaragua</source><translation>drapeau : Nicaragua</translation></message>
<message><source>flag: Niger</source><translation>drapeau : Niger</translation></message>
<message><source>flag: Nigeria</source><translation>drapeau : Nigeria</translation></message>
<message><source>flag: Niue</source><translation>drapeau : Niue</translation></message>
<message><source>flag: Norfolk Island</source><translation>drapeau : Île Norfolk</translation></message>
<message><source>flag: North Korea</source><translation>drapeau : Corée du Nord</translation></message>
<message><source>flag: North Macedonia</source><translation>drapeau : Macédoine du Nord</translation></message>
<message><source>flag: Northern Mariana Islands</source><translation>drapeau : Îles Mariannes du Nord</translation></message>
<message><source>flag: Norway</source><translation>drapeau : Norvège</translation></message>
<message><source>flag: Oman</source><translation>drapeau : Oman</translation></message>
<message><source>flag: Pakistan</source><translation>drapeau : Pakistan</translation></message>
<message><source>flag: Palau</source><translation>drapeau : Palaos</translation></message>
<message><source>flag: Palestinian Territories</source><translation>drapeau : Territoires palestiniens</translation></message>
<message><source>flag: Panama</source><translation>drapeau : Panama</translation></message>
<message><source>flag: Papua New Guinea</source><translation>drapeau : Papouasie-Nouvelle-Guinée</translation></message>
<message><source>flag: Paraguay</source><translation>drapeau : Paraguay</translation></message>
<message><source>flag: Peru</source><translation>drapeau : Pérou</translation></message>
<message><source>flag: Philippines</source><translation>drapeau : Philippines</translation></message>
<message><source>flag: Pitcairn Islands</source><translation>drapeau : Îles Pitcairn</translation></message>
<message><source>flag: Poland</source><translation>drapeau : Pologne</translation></message>
<message><source>flag: Portugal</source><translation>drapeau : Portugal</translation></message>
<message><source>flag: Puerto Rico</source><translation>drapeau : Porto Rico</translation></message>
<message><source>flag: Qatar</source><translation>drapeau : Qatar</translation></message>
<message><source>flag: Romania</source><translation>drapeau : Roumanie</translation></message>
<message><source>flag: Russia</source><translation>drapeau : Russie</translation></message>
<message><source>flag: Rwanda</source><translation>drapeau : Rwanda</translation></message>
<message><source>flag: Réunion</source><translation>drapeau : La Réunion</translation></message>
<message><source>flag: Samoa</source><translation>drapeau : Samoa</translation></message>
<message><source>flag: San Marino</source><translation>drapeau : Saint-Marin</translation></message>
<message><source>flag: Sark</source><translation>drapeau : Sercq</translation></message>
<message><source>flag: Saudi Arabia</source><translation>drapeau : Arabie saoudite</translation></message>
<message><source>flag: Scotland</source><translation>drapeau : Écosse</translation></message>
<message><source>flag: Senegal</source><translation>drapeau : Sénégal</translation></message>
<message><source>flag: Serbia</source><translation>drapeau : Serbie</translation></message>
<message><source>flag: Seychelles</source><translation>drapeau : Seychelles</translation></message>
<message><source>flag: Sierra Leone</source><translation>drapeau : Sierra Leone</translation></message>
<message><source>flag: Singapore</source><translation>drapeau : Singapour</translation></message>
<message><source>flag: Sint Maarten</source><translation>drapeau : Saint-Martin (partie néerlandaise)</translation></message>
<message><source>flag: Slovakia</source><translation>drapeau : Slovaquie</translation></message>
<message><source>flag: Slovenia</source><translation>drapeau : Slovénie</translation></message>
<message><source>flag: Solomon Islands</source><translation>drapeau : Îles Salomon</translation></message>
<message><source>flag: Somalia</source><translation>drapeau : Somalie</translation></message>
<message><source>flag: South Africa</source><translation>drapeau : Afrique du Sud</translation></message>
<message><source>flag: South Georgia &amp; South Sandwich Islands</source><translation>drapeau : Géorgie du Sud-et-les Îles Sandwich du Sud</translation></message>
<message><source>flag: South Korea</source><translation>drapeau : Corée du Sud</translation></message>
<message><source>flag: South Sudan</source><translation>drapeau : Soudan du Sud</translation></message>
<message><source>flag: Spain</source><translation>drapeau : Espagne</translation></message>
<message><source>flag: Sri Lanka</source><translation>drapeau : Sri Lanka</translation></message>
<message><source>flag: St. Barthélemy</source><translation>drapeau : Saint-Barthélemy</translation></message>
<message><source>flag: St. Helena</source><translation>drapeau : Sainte-Hélène</translation></message>
<message><source>flag: St. Kitts &amp; Nevis</source><translation>drapeau : Saint-Christophe-et-Niévès</translation></message>
<message><source>flag: St. Lucia</source><translation>drapeau : Sainte-Lucie</translation></message>
<message><source>flag: St. Martin</source><translation>drapeau : Saint-Martin</translation></message>
<message><source>flag: St. Pierre &amp; Miquelon</source><translation>drapeau : Saint-Pierre-et-Miquelon</translation></message>
<message><source>flag: St. Vincent &amp; Grenadines</source><translation>drapeau : Saint-Vincent-et-les Grenadines</translation></message>
<message><source>flag: Sudan</source><translation>drapeau : Soudan</translation></message>
<message><source>flag: Suriname</source><translation>drapeau : Suriname</translation></message>
<message><source>flag: Svalbard &amp; Jan Mayen</source><translation>drapeau : Svalbard et Jan Mayen</translation></message>
<message><source>flag: Sweden</source><translation>drapeau : Suède</translation></message>
<message><source>flag: Switzerland</source><translation>drapeau : Suisse</translation></message>
<message><source>flag: Syria</source><translation>drapeau : Syrie</translation></message>
<message><source>flag: São Tomé &amp; Príncipe</source><translation>drapeau : Sao Tomé-et-Principe</translation></message>
<message><source>flag: Taiwan</source><translation>drapeau : Taïwan</translation></message>
<message><source>flag: Tajikistan</source><translation>drapeau : Tadjikistan</translation></message>
<message><source>flag: Tanzania</source><translation>drapeau : Tanzanie</translation></message>
<message><source>flag: Thailand</source><translation>drapeau : Thaïlande</translation></message>
<message><source>flag: Timor-Leste</source><translation>drapeau : Timor oriental</translation></message>
<message><source>flag: Togo</source><translation>drapeau : Togo</translation></message>
<message><source>flag: Tokelau</source><translation>drapeau : Tokelau</translation></message>
<message><source>flag: Tonga</source><translation>drapeau : Tonga</translation></message>
<message><source>flag: Trinidad &amp; Tobago</source><translation>drapeau : Trinité-et-Tobago</translation></message>
<message><source>flag: Tristan da Cunha</source><translation>drapeau : Tristan da Cunha</translation></message>
<message><source>flag: Tunisia</source><translation>drapeau : Tunisie</translation></message>
<message><source>flag: Turkmenistan</source><translation>drapeau : Turkménistan</translation></message>
<message><source>flag: Turks &amp; Caicos Islands</source><translation>drapeau : Îles Turques-et-Caïques</translation></message>
<message><source>flag: Tuvalu</source><translation>drapeau : Tuvalu</translation></message>
<message><source>flag: Türkiye</source><translation>drapeau : Turquie</translation></message>
<message><source>flag: U.S. Outlying Islands</source><translation>drapeau : Îles mineures éloignées des États-Unis</translation></message>
<message><source>flag: U.S. Virgin Islands</source><translation>drapeau : Îles Vierges des États-Unis</translation></message>
<message><source>flag: Uganda</source><translation>drapeau : Ouganda</translation></message>
<message><source>flag: Ukraine</source><translation>drapeau : Ukraine</translation></message>
<message><source>flag: United Arab Emirates</source><translation>drapeau : Émirats arabes unis</translation></message>
<message><source>flag: United Kingdom</source><translation>drapeau : Royaume-Uni</translation></message>
<message><source>flag: United Nations</source><translation>drapeau : Nations Unies</translation></message>
<message><source>flag: United States</source><translation>drapeau : États-Unis</translation></message>
<message><source>flag: Uruguay</source><translation>drapeau : Uruguay</translation></message>
<message><source>flag: Uzbekistan</source><translation>drapeau : Ouzbékistan</translation></message>
<message><source>flag: Vanuatu</source><translation>drapeau : Vanuatu</translation></message>
<message><source>flag: Vatican City</source><translation>drapeau : État de la Cité du Vatican</translation></message>
<message><source>flag: Venezuela</source><translation>drapeau : Venezuela</translation></message>
<message><source>flag: Vietnam</source><translation>drapeau : Viêt Nam</translation></message>
<message><source>flag: Wales</source><translation>drapeau : Pays de Galles</translation></message>
<message><source>flag: Wallis &amp; Futuna</source><translation>drapeau : Wallis-et-Futuna</translation></message>
<message><source>flag: Western Sahara</source><translation>drapeau : Sahara occidental</translation></message>
<message><source>flag: Yemen</source><translation>drapeau : Yémen</translation></message>
<message><source>flag: Zambia</source><translation>drapeau : Zambie</translation></message>
<message><source>flag: Zimbabwe</source><translation>drapeau : Zimbabwe</translation></message>
<message><source>flag: Åland Islands</source><translation>drapeau : Îles Åland</translation></message>
<message><source>flamboyant</source><translation>flamant</translation></message>
<message><source>flame</source><translation>flamme</translation></message>
<message><source>flamenco</source><translation>flamenco</translation></message>
<message><source>flamingo</source><translation>flamant</translation></message>
<message><source>flash</source><translation>flash</translation></message>
<message><source>flashlight</source><translation>torche</translation></message>
<message><source>flat shoe</source><translation>chaussure plate</translation></message>
<message><source>flatbread</source><translation>galette</translation></message>
<message><source>flavoring</source><translation>assaisonnement</translation></message>
<message><source>fleur-de-lis</source><translation>fleur de lys</translation></message>
<message><source>flexed biceps</source><translation>biceps contracté</translation></message>
<message><source>flipper</source><translation>Flipper</translation></message>
<message><source>flirting</source><translation>flirt</translation></message>
<message><source>floppy disk</source><translation>disquette</translation></message>
<message><source>flower</source><translation>fleur</translation></message>
<message><source>flower playing cards</source><translation>jeu des fleurs</translation></message>
<message><source>flushed face</source><translation>visage qui rougit</translation></message>
<message><source>flute</source><translation>flûte</translation></message>
<message><source>fly</source><translation>mouche</translation></message>
<message><source>flying disc</source><translation>disque volant</translation></message>
<message><source>flying saucer</source><translation>soucoupe volante</translation></message>
<message><source>fog</source><translation>brouillard</translation></message>
<message><source>foggy</source><translation>brume</translation></message>
<message><source>folded hands</source><translation>mains en prière</translation></message>
<message><source>folder</source><translation>répertoire</translation></message>
<message><source>folding hand fan</source><translation>éventail</translation></message>
<message><source>folklore</source><translation>folklore</translation></message>
<message><source>fondue</source><translation>fondue</translation></message>
<message><source>food</source><translation>nourriture</translation></message>
<message><source>foot</source><translation>pied</translation></message>
<message><source>football</source><translation>football</translation></message>
<message><source>footprints</source><translation>traces de pas</translation></message>
<message><source>forbidden</source><translation>interdit</translation></message>
<message><source>forest</source><translation>forêt</translation></message>
<message><source>forgot</source><translation>oubli</translation></message>
<message><source>fork and knife</source><translation>fourchette et couteau</translation></message>
<message><source>fork and knife with plate</source><translation>fourchette et couteau avec assiette</translation></message>
<message><source>formal</source><translation>élégant</translation></message>
<message><source>fortune cookie</source><translation>biscuit chinois</translation></message>
<message><source>fountain</source><translation>fontaine</translation></message>
<message><source>fountain pen</source><translation>stylo plume</translation></message>
<message><source>four leaf clover</source><translation>trèfle à quatre feuilles</translation></message>
<message><source>four o’clock</source><translation>quatre heures</translation></message>
<message><source>four-thirty</source><translation>quatre heures et demie</translation></message>
<message><source>fox</source><translation>renard</translation></message>
<message><source>framed picture</source><translation>cadre avec image</translation></message>
<message><source>french fries</source><translation>frites</translation></message>
<message><source>fried shrimp</source><translation>beignet de crevette</translation></message>
<message><source>frog</source><translation>grenouille</translation></message>
<message><source>front-facing baby chick</source><translation>poussin de face</translation></message>
<message><source>frowning face</source><translation>visage mécontent</translation></message>
<message><source>frowning face with open mouth</source><translation>visage mécontent avec bouche ouverte</translation></message>
<message><source>fruit</source><translation>fruit</translation></message>
<message><source>frustrated</source><translation>frustré</translation></message>
<message><source>frustration</source><translation>frustration</translation></message>
<message><source>fuel pump</source><translation>pompe à essence</translation></message>
<message><source>full moon</source><translation>pleine lune</translation></message>
<message><source>full moon face</source><translation>pleine lune avec visage</translation></message>
<message><source>funeral urn</source><translation>urne funéraire</translation></message>
<message><source>fungus</source><translation>fongus</translation></message>
<message><source>game</source><translation>jeu</translation></message>
<message><source>game die</source><translation>dés</translation></message>
<message><source>garden</source><translation>jardin</translation></message>
<message><source>gardener</source><translation>jardinier</translation></message>
<message><source>garlic</source><translation>ail</translation></message>
<message><source>gasoline</source><translation>gazole</translation></message>
<message><source>gear</source><translation>roue dentée</translation></message>
<message><source>geek</source><translation>geek</translation></message>
<message><source>gem stone</source><translation>pierre précieuse</translation></message>
<message><source>gene</source><translation>gène</translation></message>
<message><source>genetics</source><translation>génétique</translation></message>
<message><source>genie</source><translation>génie</translation></message>
<message><source>geometric</source><translation>géométrie</translation></message>
<message><source>germs</source><translation>germes</translation></message>
<message><source>gesture</source><translation>geste</translation></message>
<message><source>ghost</source><translation>fantôme</translation></message>
<message><source>gibbous</source><translation>gibbeux</translation></message>
<message><source>gift</source><translation>cadeau</translation></message>
<message><source>ginger</source><translation>gingembre</translation></message>
<message><source>ginger root</source><translation>racine de gingembre</translation></message>
<message><source>giraffe</source><translation>girafe</translation></message>
<message><source>girl</source><translation>fille</translation></message>
<message><source>glass</source><translation>verre</translation></message>
<message><source>glass of milk</source><translation>verre de lait</translation></message>
<message><source>glasses</source><translation>lunettes de vue</translation></message>
<message><source>globe</source><translation>globe</translation></message>
<message><source>globe showing Americas</source><translation>globe tourné sur les Amériques</translation></message>
<message><source>globe showing Asia-Australia</source><translation>globe tourné sur l’Asie et l’Australie</translation></message>
<message><source>globe showing Europe-Africa</source><translation>globe tourné sur l’Afrique et l’Europe</translation></message>
<message><source>globe with meridians</source><translation>globe avec méridiens</translation></message>
<message><source>glory</source><translation>gloire</translation></message>
<message><source>gloves</source><translation>gants</translation></message>
<message><source>glowing star</source><translation>étoile brillante</translation></message>
<message><source>goal</source><translation>but</translation></message>
<message><source>goal net</source><translation>cage</translation></message>
<message><source>goat</source><translation>chèvre</translation></message>
<message><source>goblin</source><translation>monstre japonais</translation></message>
<message><source>goggles</source><translation>lunettes</translation></message>
<message><source>golf</source><translation>golf</translation></message>
<message><source>goose</source><translation>oie</translation></message>
<message><source>gordita</source><translation>gordita</translation></message>
<message><source>gorilla</source><translation>gorille</translation></message>
<message><source>graduation cap</source><translation>toque universitaire</translation></message>
<message><source>grains</source><translation>grain</translation></message>
<message><source>grandpa</source><translation>grand-père</translation></message>
<message><source>grapes</source><translation>raisin</translation></message>
<message><source>graph</source><translation>graphique</translation></message>
<message><source>grateful</source><translation>ému</translation></message>
<message><source>gratitude</source><translation>gratitude</translation></message>
<message><source>green apple</source><translation>pomme verte</translation></message>
<message><source>green book</source><translation>livre vert</translation></message>
<message><source>green circle</source><translation>disque vert</translation></message>
<message><source>green heart</source><translation>cœur vert</translation></message>
<message><source>green salad</source><translation>salade verte</translation></message>
<message><source>green square</source><translation>carré vert</translation></message>
<message><source>grey heart</source><translation>cœur gris</translation></message>
<message><source>grimacing face</source><translation>visage grimaçant</translation></message>
<message><source>grin</source><translation>grand sourire</translation></message>
<message><source>grinning cat</source><translation>chat qui sourit</translation></message>
<message><source>grinning cat with smiling eyes</source><translation>chat qui sourit avec des yeux rieurs</translation></message>
<message><source>grinning face</source><translation>visage rieur</translation></message>
<message><source>grinning face with big eyes</source><translation>visage souriant avec de grands yeux</translation></message>
<message><source>grinning face with smiling eyes</source><translation>visage très souriant aux yeux rieurs</translation></message>
<message><source>grinning face with sweat</source><translation>visage souriant avec une goutte de sueur</translation></message>
<message><source>grinning squinting face</source><translation>visage souriant avec yeux plissés</translation></message>
<message><source>growing heart</source><translation>cœur grandissant</translation></message>
<message><source>guanaco</source><translation>guanaco</translation></message>
<message><source>guard</source><translation>garde</translation></message>
<message><source>guide</source><translation>guide</translation></message>
<message><source>guide dog</source><translation>chien guide</translation></message>
<message><source>guitar</source><translation>guitare</translation></message>
<message><source>gyōza</source><translation>gyoza</translation></message>
<message><source>hahaha</source><translation>ahah</translation></message>
<message><source>hair</source><translation>cheveux</translation></message>
<message><source>hair pick</source><translation>peigne afro</translation></message>
<message><source>halloween</source><translation>halloween</translation></message>
<message><source>halt</source><translation>halte</translation></message>
<message><source>hamburger</source><translation>hamburger</translation></message>
<message><source>hammer</source><translation>marteau</translation></message>
<message><source>hammer and pick</source><translation>marteau et pioche</translation></message>
<message><source>hammer and wrench</source><translation>marteau et clé à molette</translation></message>
<message><source>hamsa</source><translation>main de Fatma</translation></message>
<message><source>hamster</source><translation>hamster</translation></message>
<message><source>hand</source><translation>main</translation></message>
<message><source>hand with fingers splayed</source><translation>main levée doigts écartés</translation></message>
<message><source>hand with index finger and thumb crossed</source><translation>main avec index et pouce croisés</translation></message>
<message><source>handbag</source><translation>sac à main</translation></message>
<message><source>handshake</source><translation>poignée de main</translation></message>
<message><source>hanukkah</source><translation>Hanoukka</translation></message>
<message><source>harp</source><translation>harpe</translation></message>
<message><source>hashi</source><translation>hashi</translation></message>
<message><source>hat</source><translation>chapeau</translation></message>
<message><source>hatching chick</source><translation>poussin qui éclôt</translation></message>
<message><source>head shaking horizontally</source><translation>tête secouée horizontalement</translation></message>
<message><source>head shaking vertically</source><translation>tête secouée verticalement</translation></message>
<message><source>headphone</source><translation>casque</translation></message>
<message><source>headstone</source><translation>pierre tombale</translation></message>
<message><source>health worker</source><translation>professionnel de la santé (tous genres)</translation></message>
<message><source>hear-no-evil monkey</source><translation>singe ne rien entendre</translation></message>
<message><source>heart</source><translation>cœur</translation></message>
<message><source>heart decoration</source><translation>décoration avec cœur</translation></message>
<message><source>heart exclamation</source><translation>cœur point d’exclamation</translation></message>
<message><source>heart hands</source><translation>mains qui forment un cœur</translation></message>
<message><source>heart on fire</source><translation>cœur enflammé</translation></message>
<message><source>heart suit</source><translation>cœur cartes</translation></message>
<message><source>heart with arrow</source><translation>cœur et flèche</translation></message>
<message><source>heart with ribbon</source><translation>cœur avec ruban</translation></message>
<message><source>hearts</source><translation>cœurs</translation></message>
<message><source>heavy dollar sign</source><translation>symbole dollar</translation></message>
<message><source>heavy equals sign</source><translation>signe égal gras</translation></message>
<message><source>hedgehog</source><translation>hérisson</translation></message>
<message><source>helicopter</source><translation>hélicoptère</translation></message>
<message><source>hello</source><translation>au revoir</translation></message>
<message><source>helmet</source><translation>casque</translation></message>
<message><source>herb</source><translation>feuille</translation></message>
<message><source>here</source><translation>ici</translation></message>
<message><source>hibiscus</source><translation>hibiscus</translation></message>
<message><source>high voltage</source><translation>haute tension</translation></message>
<message><source>high-heeled shoe</source><translation>chaussure à talon haut</translation></message>
<message><source>high-speed train</source><translation>TGV</translation></message>
<message><source>hijab</source><translation>hijab</translation></message>
<message><source>hiking boot</source><translation>chaussure de randonnée</translation></message>
<message><source>hindu</source><translation>hindou</translation></message>
<message><source>hindu temple</source><translation>temple hindou</translation></message>
<message><source>hippo</source><translation>hippo</translation></message>
<message><source>hippopotamus</source><translation>hippopotame</translation></message>
<message><source>hockey</source><translation>hockey</translation></message>
<message><source>hole</source><translation>trou</translation></message>
<message><source>holi</source><translation>holi</translation></message>
<message><source>hollow red circle</source><translation>cercle rouge</translation></message>
<message><source>honey</source><translation>miel</translation></message>
<message><source>honey pot</source><translation>pot de miel</translation></message>
<message><source>honeybee</source><translation>abeille</translation></message>
<message><source>hook</source><translation>crochet</translation></message>
<message><source>horizontal traffic light</source><translation>feu tricolore horizontal</translation></message>
<message><source>horns</source><translation>cornes</translation></message>
<message><source>horoscope</source><translation>horoscope</translation></message>
<message><source>horrible</source><translation>horrible</translation></message>
<message><source>horror</source><translation>horreur</translation></message>
<message><source>horse</source><translation>cheval</translation></message>
<message><source>horse face</source><translation>tête de cheval</translation></message>
<message><source>horse racing</source><translation>course hippique</translation></message>
<message><source>hospital</source><translation>hôpital</translation></message>
<message><source>hot beverage</source><translation>boisson chaude</translation></message>
<message><source>hot dog</source><translation>hot dog</translation></message>
<message><source>hot face</source><translation>visage rouge et chaud</translation></message>
<message><source>hot pepper</source><translation>piment rouge</translation></message>
<message><source>hot springs</source><translation>sources chaudes</translation></message>
<message><source>hotel</source><translation>hôtel</translation></message>
<message><source>hotspot</source><translation>hotspot</translation></message>
<message><source>hourglass done</source><translation>sablier</translation></message>
<message><source>hourglass not done</source><translation>sablier avec sable qui coule</translation></message>
<message><source>house</source><translation>maison</translation></message>
<message><source>house with garden</source><translation>maison avec jardin</translation></message>
<message><source>houses</source><translation>maisons</translation></message>
<message><source>hugging</source><translation>câlin</translation></message>
<message><source>human</source><translation>humain</translation></message>
<message><source>hundred points</source><translation>cent points</translation></message>
<message><source>hungry</source><translation>faim</translation></message>
<message><source>hushed face</source><translation>visage ébahi</translation></message>
<message><source>hut</source><translation>hutte</translation></message>
<message><source>hyacinth</source><translation>jacinthe</translation></message>
<message><source>hygiene</source><translation>hygiène</translation></message>
<message><source>hóngbāo</source><translation>hóngbāo</translation></message>
<message><source>ice</source><translation>glaçon</translation></message>
<message><source>ice cream</source><translation>glace</translation></message>
<message><source>ice hockey</source><translation>hockey sur glace</translation></message>
<message><source>ice skate</source><translation>patin à glace</translation></message>
<message><source>iceberg</source><translation>iceberg</translation></message>
<message><source>idea</source><translation>idée</translation></message>
<message><source>identification card</source><translation>carte d’identité</translation></message>
<message><source>ideograph</source><translation>idéogramme</translation></message>
<message><source>ignorance</source><translation>ignorance</translation></message>
<message><source>immortal</source><translation>immortel</translation></message>
<message><source>impressed</source><translation>impressionné</translation></message>
<message><source>improvement</source><translation>travaux</translation></message>
<message><source>inbox tray</source><translation>boîte de réception</translation></message>
<message><source>incognito</source><translation>incognito</translation></message>
<message><source>incoming envelope</source><translation>message reçu</translation></message>
<message><source>index</source><translation>index</translation></message>
<message><source>index pointing at the viewer</source><translation>index pointant vers l’utilisateur</translation></message>
<message><source>index pointing up</source><translation>index pointant vers le haut</translation></message>
<message><source>indifference</source><translation>indifférence</translation></message>
<message><source>indigo</source><translation>indigo</translation></message>
<message><source>industrial</source><translation>industrie</translation></message>
<message><source>inexpressive</source><translation>inexpressif</translation></message>
<message><source>infinity</source><translation>infini</translation></message>
<message><source>information</source><translation>source d’informations</translation></message>
<message><source>input</source><translation>saisie</translation></message>
<message><source>input latin letters</source><translation>alphabet latin</translation></message>
<message><source>input latin lowercase</source><translation>minuscules</translation></message>
<message><source>input latin uppercase</source><translation>majuscules</translation></message>
<message><source>input numbers</source><translation>saisie de chiffres</translation></message>
<message><source>input symbols</source><translation>saisie de symboles</translation></message>
<message><source>insect</source><translation>insecte</translation></message>
<message><source>instrument</source><translation>instrument</translation></message>
<message><source>intelligent</source><translation>intelligent</translation></message>
<message><source>introvert</source><translation>introverti</translation></message>
<message><source>invertebrate</source><translation>invertébré</translation></message>
<message><source>invisible</source><translation>invisible</translation></message>
<message><source>irish</source><translation>Irlande</translation></message>
<message><source>ironic</source><translation>ironique</translation></message>
<message><source>islam</source><translation>islam</translation></message>
<message><source>jack-o-lantern</source><translation>citrouille</translation></message>
<message><source>jar</source><translation>bocal</translation></message>
<message><source>jealous</source><translation>jaloux</translation></message>
<message><source>jeans</source><translation>jean</translation></message>
<message><source>jellyfish</source><translation>méduse</translation></message>
<message><source>jiaozi</source><translation>jiaozi</translation></message>
<message><source>jockey</source><translation>jockey</translation></message>
<message><source>joey</source><translation>joey</translation></message>
<message><source>joker</source><translation>carte Joker</translation></message>
<message><source>joystick</source><translation>manette de jeu</translation></message>
<message><source>judaism</source><translation>judaïsme</translation></message>
<message><source>judge</source><translation>juge</translation></message>
<message><source>judo</source><translation>judo</translation></message>
<message><source>justice</source><translation>justice</translation></message>
<message><source>kaaba</source><translation>kaaba</translation></message>
<message><source>kale</source><translation>kale</translation></message>
<message><source>kangaroo</source><translation>kangourou</translation></message>
<message><source>karate</source><translation>karaté</translation></message>
<message><source>kebab</source><translation>kebab</translation></message>
<message><source>key</source><translation>clé</translation></message>
<message><source>keyboard</source><translation>clavier</translation></message>
<message><source>keycap</source><translation>touches</translation></message>
<message><source>keycap: #</source><translation>touches : #</translation></message>
<message><source>keycap: *</source><translation>touches : *</translation></message>
<message><source>keycap: 0</source><translation>touches : 0</translation></message>
<message><source>keycap: 1</source><translation>touches : 1</translation></message>
<message><source>keycap: 10</source><translation>touches : 10</translation></message>
<message><source>keycap: 2</source><translation>touches : 2</translation></message>
<message><source>keycap: 3</source><translation>touches : 3</translation></message>
<message><source>keycap: 4</source><translation>touches : 4</translation></message>
<message><source>keycap: 5</source><translation>touches : 5</translation></message>
<message><source>keycap: 6</source><translation>touches : 6</translation></message>
<message><source>keycap: 7</source><translation>touches : 7</translation></message>
<message><source>keycap: 8</source><translation>touches : 8</translation></message>
<message><source>keycap: 9</source><translation>touches : 9</translation></message>
<message><source>khanda</source><translation>khanda</translation></message>
<message><source>kick</source><translation>coup de pied</translation></message>
<message><source>kick scooter</source><translation>trottinette</translation></message>
<message><source>kimono</source><translation>kimono</translation></message>
<message><source>kiss</source><translation>bisou</translation></message>
<message><source>kiss mark</source><translation>trace de rouge à lèvres</translation></message>
<message><source>kiss: man, man</source><translation>bisou : homme et homme</translation></message>
<message><source>kiss: woman, man</source><translation>bisou : femme et homme</translation></message>
<message><source>kiss: woman, woman</source><translation>bisou : femme et femme</translation></message>
<message><source>kissing</source><translation>bisou</translation></message>
<message><source>kissing cat</source><translation>chat qui fait un bisou</translation></message>
<message><source>kissing face</source><translation>visage faisant un bisou</translation></message>
<message><source>kissing face with closed eyes</source><translation>visage faisant un bisou avec les yeux fermés</translation></message>
<message><source>kissing face with smiling eyes</source><translation>visage aux yeux rieurs faisant un bisou</translation></message>
<message><source>kitchen knife</source><translation>couteau de cuisine</translation></message>
<message><source>kite</source><translation>cerf-volant</translation></message>
<message><source>kiwi</source><translation>kiwi</translation></message>
<message><source>kiwi fruit</source><translation>kiwi</translation></message>
<message><source>knife</source><translation>couteau</translation></message>
<message><source>knot</source><translation>nœud</translation></message>
<message><source>koala</source><translation>koala</translation></message>
<message><source>lab</source><translation>laboratoire</translation></message>
<message><source>lab coat</source><translation>blouse blanche</translation></message>
<message><source>label</source><translation>étiquette</translation></message>
<message><source>lacrosse</source><translation>crosse</translation></message>
<message><source>ladder</source><translation>échelle</translation></message>
<message><source>lady</source><translation>blonde</translation></message>
<message><source>lady beetle</source><translation>coccinelle</translation></message>
<message><source>lamp</source><translation>lampe</translation></message>
<message><source>lantern</source><translation>lanterne</translation></message>
<message><source>laptop</source><translation>ordinateur portable</translation></message>
<message><source>large blue diamond</source><translation>grand losange bleu</translation></message>
<message><source>large orange diamond</source><translation>grand losange orange</translation></message>
<message><source>last quarter moon</source><translation>dernier quartier de lune</translation></message>
<message><source>last quarter moon face</source><translation>dernier quartier de lune avec visage</translation></message>
<message><source>last track button</source><translation>bouton piste précédente</translation></message>
<message><source>lather</source><translation>laver</translation></message>
<message><source>latin</source><translation>alphabet latin</translation></message>
<message><source>latin cross</source><translation>croix latine</translation></message>
<message><source>lavash</source><translation>lavash</translation></message>
<message><source>lavender</source><translation>lavande</translation></message>
<message><source>leaf</source><translation>feuille</translation></message>
<message><source>leaf fluttering in wind</source><translation>feuille virevoltante</translation></message>
<message><source>leafless tree</source><translation>arbre sans feuille</translation></message>
<message><source>leafy green</source><translation>légume à feuilles vertes</translation></message>
<message><source>ledger</source><translation>carnet de compte</translation></message>
<message><source>left arrow</source><translation>flèche gauche</translation></message>
<message><source>left arrow curving right</source><translation>flèche courbe droite</translation></message>
<message><source>left luggage</source><translation>consigne</translation></message>
<message><source>left speech bubble</source><translation>bulle de parole gauche</translation></message>
<message><source>left-facing fist</source><translation>poing à gauche</translation></message>
<message><source>left-right arrow</source><translation>flèche gauche droite</translation></message>
<message><source>leftwards</source><translation>gauche</translation></message>
<message><source>leftwards hand</source><translation>main vers la gauche</translation></message>
<message><source>leftwards pushing hand</source><translation>main qui pousse vers la gauche</translation></message>
<message><source>leg</source><translation>jambe</translation></message>
<message><source>legume</source><translation>légumineuse</translation></message>
<message><source>lemon</source><translation>citron</translation></message>
<message><source>leopard</source><translation>léopard</translation></message>
<message><source>lesbian</source><translation>lesbienne</translation></message>
<message><source>letter</source><translation>lettre</translation></message>
<message><source>letters</source><translation>lettres</translation></message>
<message><source>level slider</source><translation>curseur de niveau</translation></message>
<message><source>light blue heart</source><translation>cœur bleu clair</translation></message>
<message><source>light bulb</source><translation>ampoule</translation></message>
<message><source>light rail</source><translation>métro léger</translation></message>
<message><source>light skin tone</source><translation>peau claire</translation></message>
<message><source>lilac</source><translation>lilas</translation></message>
<message><source>lime</source><translation>citron vert</translation></message>
<message><source>link</source><translation>chaînons</translation></message>
<message><source>linked paperclips</source><translation>trombones</translation></message>
<message><source>lion</source><translation>tête de lion</translation></message>
<message><source>lips</source><translation>lèvres</translation></message>
<message><source>lipstick</source><translation>rouge à lèvres</translation></message>
<message><source>liquor</source><translation>liqueur</translation></message>
<message><source>list</source><translation>liste</translation></message>
<message><source>litter</source><translation>déchets</translation></message>
<message><source>litter in bin sign</source><translation>icône Poubelle</translation></message>
<message><source>lizard</source><translation>lézard</translation></message>
<message><source>llama</source><translation>lama</translation></message>
<message><source>lobster</source><translation>homard</translation></message>
<message><source>locked</source><translation>cadenas fermé</translation></message>
<message><source>locked with key</source><translation>cadenas fermé avec clé</translation></message>
<message><source>locked with pen</source><translation>cadenas fermé avec stylo</translation></message>
<message><source>locomotive</source><translation>locomotive</translation></message>
<message><source>lol</source><translation>rire</translation></message>
<message><source>lollipop</source><translation>sucette</translation></message>
<message><source>long drum</source><translation>djembé</translation></message>
<message><source>losing</source><translation>abattu</translation></message>
<message><source>lotion</source><translation>lotion</translation></message>
<message><source>lotion bottle</source><translation>bouteille de lotion</translation></message>
<message><source>lotus</source><translation>lotus</translation></message>
<message><source>loudly crying face</source><translation>visage qui pleure à chaudes larmes</translation></message>
<message><source>loudspeaker</source><translation>haut-parleur</translation></message>
<message><source>love</source><translation>amour</translation></message>
<message><source>love hotel</source><translation>love hotel</translation></message>
<message><source>love letter</source><translation>lettre d’amour</translation></message>
<message><source>love-you gesture</source><translation>signe je t’aime</translation></message>
<message><source>low battery</source><translation>pile faible</translation></message>
<message><source>luck</source><translation>bonne chance</translation></message>
<message><source>luge</source><translation>luge</translation></message>
<message><source>luggage</source><translation>bagage</translation></message>
<message><source>lungs</source><translation>poumons</translation></message>
<message><source>lupine</source><translation>lupin</translation></message>
<message><source>lure</source><translation>leurre</translation></message>
<message><source>lying face</source><translation>visage de menteur</translation></message>
<message><source>mage</source><translation>mage</translation></message>
<message><source>magic</source><translation>magie</translation></message>
<message><source>magic wand</source><translation>baguette magique</translation></message>
<message><source>magician</source><translation>magicien</translation></message>
<message><source>magnet</source><translation>aimant</translation></message>
<message><source>magnetic</source><translation>magnétique</translation></message>
<message><source>magnifying glass tilted left</source><translation>loupe orientée à gauche</translation></message>
<message><source>magnifying glass tilted right</source><translation>loupe orientée à droite</translation></message>
<message><source>mahjong red dragon</source><translation>dragon rouge mahjong</translation></message>
<message><source>mail</source><translation>courrier</translation></message>
<message><source>makeup</source><translation>maquillage</translation></message>
<message><source>malaria</source><translation>malaria</translation></message>
<message><source>male sign</source><translation>symbole de l’homme</translation></message>
<message><source>mammal</source><translation>mammifère</translation></message>
<message><source>mammoth</source><translation>mammouth</translation></message>
<message><source>man</source><translation>homme</translation></message>
<message><source>man artist</source><translation>artiste homme</translation></message>
<message><source>man astronaut</source><translation>astronaute homme</translation></message>
<message><source>man biking</source><translation>cycliste homme</translation></message>
<message><source>man bouncing ball</source><translation>homme avec ballon</translation></message>
<message><source>man bowing</source><translation>homme qui s’incline</translation></message>
<message><source>man cartwheeling</source><translation>homme faisant la roue</translation></message>
<message><source>man climbing</source><translation>homme qui grimpe</translation></message>
<message><source>man construction worker</source><translation>ouvrier du bâtiment</translation></message>
<message><source>man cook</source><translation>cuisinier</translation></message>
<message><source>man dancing</source><translation>danseur</translation></message>
<message><source>man detective</source><translation>détective homme</translation></message>
<message><source>man elf</source><translation>elfe homme</translation></message>
<message><source>man facepalming</source><translation>homme avec la paume sur le visage</translation></message>
<message><source>man factory worker</source><translation>ouvrier</translation></message>
<message><source>man fairy</source><translation>féetaud</translation></message>
<message><source>man farmer</source><translation>fermier</translation></message>
<message><source>man feeding baby</source><translation>homme allaitant un bébé</translation></message>
<message><source>man firefighter</source><translation>pompier homme</translation></message>
<message><source>man frowning</source><translation>homme fronçant les sourcils</translation></message>
<message><source>man genie</source><translation>génie homme</translation></message>
<message><source>man gesturing NO</source><translation>homme faisant un geste d’interdiction</translation></message>
<message><source>man gesturing OK</source><translation>homme faisant un geste d’acceptation</translation></message>
<message><source>man getting haircut</source><translation>homme qui se fait couper les cheveux</translation></message>
<message><source>man getting massage</source><translation>homme qui se fait masser</translation></message>
<message><source>man golfing</source><translation>golfeur</translation></message>
<message><source>man guard</source><translation>garde homme</translation></message>
<message><source>man health worker</source><translation>professionnel de la santé</translation></message>
<message><source>man in lotus position</source><translation>homme dans la posture du lotus</translation></message>
<message><source>man in manual wheelchair</source><translation>homme en fauteuil roulant manuel</translation></message>
<message><source>man in manual wheelchair: facing right</source><translation>homme en fauteuil roulant manuel : vers la droite</translation></message>
<message><source>man in motorized wheelchair</source><translation>homme en fauteuil motorisé</translation></message>
<message><source>man in motorized wheelchair: facing right</source><translation>homme en fauteuil motorisé : vers la droite</translation></message>
<message><source>man in steamy room</source><translation>homme au hammam</translation></message>
<message><source>man in tuxedo</source><translation>homme en smoking</translation></message>
<message><source>man judge</source><translation>juge homme</translation></message>
<message><source>man juggling</source><translation>jongleur</translation></message>
<message><source>man kneeling</source><translation>homme à genoux</translation></message>
<message><source>man kneeling: facing right</source><translation>homme à genoux : vers la droite</translation></message>
<message><source>man lifting weights</source><translation>homme haltérophile</translation></message>
<message><source>man mage</source><translation>mage homme</translation></message>
<message><source>man mechanic</source><translation>mécanicien</translation></message>
<message><source>man mountain biking</source><translation>homme en VTT</translation></message>
<message><source>man office worker</source><translation>employé de bureau</translation></message>
<message><source>man pilot</source><translation>pilote homme</translation></message>
<message><source>man playing handball</source><translation>handballeur</translation></message>
<message><source>man playing water polo</source><translation>joueur de water-polo</translation></message>
<message><source>man police officer</source><translation>policier</translation></message>
<message><source>man pouting</source><translation>homme qui boude</translation></message>
<message><source>man raising hand</source><translation>homme qui lève la main</translation></message>
<message><source>man rowing boat</source><translation>rameur dans une barque</translation></message>
<message><source>man running</source><translation>homme qui court</translation></message>
<message><source>man running: facing right</source><translation>homme qui court : vers la droite</translation></message>
<message><source>man scientist</source><translation>scientifique homme</translation></message>
<message><source>man shrugging</source><translation>homme qui hausse les épaules</translation></message>
<message><source>man singer</source><translation>chanteur</translation></message>
<message><source>man standing</source><translation>homme debout</translation></message>
<message><source>man student</source><translation>étudiant</translation></message>
<message><source>man superhero</source><translation>super-héros homme</translation></message>
<message><source>man supervillain</source><translation>super-vilain homme</translation></message>
<message><source>man surfing</source><translation>surfeur</translation></message>
<message><source>man swimming</source><translation>nageur</translation></message>
<message><source>man teacher</source><translation>enseignant</translation></message>
<message><source>man technologist</source><translation>informaticien</translation></message>
<message><source>man tipping hand</source><translation>homme paume vers le haut</translation></message>
<message><source>man vampire</source><translation>vampire homme</translation></message>
<message><source>man walking</source><translation>homme qui marche</translation></message>
<message><source>man walking: facing right</source><translation>homme qui marche : vers la droite</translation></message>
<message><source>man wearing turban</source><translation>homme en turban</translation></message>
<message><source>man with veil</source><translation>homme avec voile</translation></message>
<message><source>man with white cane</source><translation>homme avec canne blanche</translation></message>
<message><source>man with white cane: facing right</source><translation>homme avec canne blanche : vers la droite</translation></message>
<message><source>man zombie</source><translation>zombie homme</translation></message>
<message><source>man: bald</source><translation>homme : chauve</translation></message>
<message><source>man: beard</source><translation>homme barbu</translation></message>
<message><source>man: blond hair</source><translation>homme blond</translation></message>
<message><source>man: curly hair</source><translation>homme : cheveux bouclés</translation></message>
<message><source>man: red hair</source><translation>homme : cheveux roux</translation></message>
<message><source>man: white hair</source><translation>homme : cheveux blancs</translation></message>
<message><source>mango</source><translation>mangue</translation></message>
<message><source>manicure</source><translation>manucure</translation></message>
<message><source>mantelpiece clock</source><translation>pendule</translation></message>
<message><source>mantilla</source><translation>mantilla</translation></message>
<message><source>manual wheelchair</source><translation>fauteuil roulant manuel</translation></message>
<message><source>man’s shoe</source><translation>chaussure d’homme</translation></message>
<message><source>map of Japan</source><translation>carte du Japon</translation></message>
<message><source>maple leaf</source><translation>feuille d’érable</translation></message>
<message><source>maracas</source><translation>maracas</translation></message>
<message><source>marker</source><translation>marqueur</translation></message>
<message><source>martial arts uniform</source><translation>tenue d’arts martiaux</translation></message>
<message><source>martini</source><translation>martini</translation></message>
<message><source>mask</source><translation>masque</translation></message>
<message><source>massage</source><translation>massage</translation></message>
<message><source>mate</source><translation>maté</translation></message>
<message><source>math</source><translation>mathématiques</translation></message>
<message><source>matryoshka</source><translation>matriochka</translation></message>
<message><source>mean</source><translation>méchant</translation></message>
<message><source>meat</source><translation>viande</translation></message>
<message><source>meat on bone</source><translation>viande sur un os</translation></message>
<message><source>mechanic</source><translation>mécanicien (tous genres)</translation></message>
<message><source>mechanical arm</source><translation>bras mécanique</translation></message>
<message><source>mechanical leg</source><translation>jambe mécanique</translation></message>
<message><source>medal</source><translation>médaille</translation></message>
<message><source>medical</source><translation>médical</translation></message>
<message><source>medical symbol</source><translation>caducée</translation></message>
<message><source>medicated</source><translation>médicament</translation></message>
<message><source>medicine</source><translation>médecine</translation></message>
<message><source>meditate</source><translation>méditer</translation></message>
<message><source>meditation</source><translation>méditation</translation></message>
<message><source>medium skin tone</source><translation>peau légèrement mate</translation></message>
<message><source>medium-dark skin tone</source><translation>peau mate</translation></message>
<message><source>medium-light skin tone</source><translation>peau moyennement claire</translation></message>
<message><source>megaphone</source><translation>porte-voix</translation></message>
<message><source>melon</source><translation>melon</translation></message>
<message><source>melting face</source><translation>visage qui fond</translation></message>
<message><source>memo</source><translation>mémo</translation></message>
<message><source>memorial</source><translation>mémorial</translation></message>
<message><source>men holding hands</source><translation>deux hommes se tenant la main</translation></message>
<message><source>men with bunny ears</source><translation>hommes avec des oreilles de lapin</translation></message>
<message><source>men wrestling</source><translation>lutteurs</translation></message>
<message><source>mending heart</source><translation>cœur avec bandages</translation></message>
<message><source>menorah</source><translation>chandelier à sept branches</translation></message>
<message><source>men’s room</source><translation>symbole Toilettes hommes</translation></message>
<message><source>meridians</source><translation>méridiens</translation></message>
<message><source>mermaid</source><translation>sirène</translation></message>
<message><source>merman</source><translation>triton</translation></message>
<message><source>merperson</source><translation>créature aquatique</translation></message>
<message><source>metal</source><translation>métal</translation></message>
<message><source>metro</source><translation>métro</translation></message>
<message><source>mexican</source><translation>mexicain</translation></message>
<message><source>mic</source><translation>micro</translation></message>
<message><source>microbe</source><translation>microbe</translation></message>
<message><source>microphone</source><translation>micro</translation></message>
<message><source>microscope</source><translation>microscope</translation></message>
<message><source>middle finger</source><translation>doigt d’honneur</translation></message>
<message><source>military</source><translation>militaire</translation></message>
<message><source>military helmet</source><translation>casque militaire</translation></message>
<message><source>military medal</source><translation>médaille militaire</translation></message>
<message><source>milk</source><translation>lait</translation></message>
<message><source>milky way</source><translation>voie lactée</translation></message>
<message><source>minibus</source><translation>minibus</translation></message>
<message><source>minidisk</source><translation>minidisc</translation></message>
<message><source>minus</source><translation>moins</translation></message>
<message><source>mirror</source><translation>miroir</translation></message>
<message><source>mirror ball</source><translation>boule à facettes</translation></message>
<message><source>moai</source><translation>moai</translation></message>
<message><source>mobile phone</source><translation>téléphone portable</translation></message>
<message><source>mobile phone off</source><translation>téléphone éteint</translation></message>
<message><source>mobile phone with arrow</source><translation>appel entrant</translation></message>
<message><source>mojito</source><translation>mojito</translation></message>
<message><source>mollusk</source><translation>mollusque</translation></message>
<message><source>money</source><translation>argent</translation></message>
<message><source>money bag</source><translation>sac plein d’argent</translation></message>
<message><source>money with wings</source><translation>billet avec des ailes</translation></message>
<message><source>money-mouth face</source><translation>argent dans les yeux et la bouche</translation></message>
<message><source>monitor</source><translation>moniteur</translation></message>
<message><source>monkey</source><translation>singe</translation></message>
<message><source>monkey face</source><translation>tête de singe</translation></message>
<message><source>monocle</source><translation>monocle</translation></message>
<message><source>monorail</source><translation>monorail</translation></message>
<message><source>monster</source><translation>monstre</translation></message>
<message><source>moon</source><translation>lune</translation></message>
<message><source>moon cake</source><translation>gâteau de lune</translation></message>
<message><source>moon viewing ceremony</source><translation>cérémonie de la lune</translation></message>
<message><source>moose</source><translation>élan</translation></message>
<message><source>morning</source><translation>matin</translation></message>
<message><source>mortar</source><translation>mortier</translation></message>
<message><source>mosque</source><translation>mosquée</translation></message>
<message><source>mosquito</source><translation>moustique</translation></message>
<message><source>motor boat</source><translation>bateau à moteur</translation></message>
<message><source>motor scooter</source><translation>scooter</translation></message>
<message><source>motorcycle</source><translation>moto</translation></message>
<message><source>motorized wheelchair</source><translation>fauteuil motorisé</translation></message>
<message><source>motorway</source><translation>autoroute</translation></message>
<message><source>mount fuji</source><translation>mont Fuji</translation></message>
<message><source>mountain</source><translation>montagne</translation></message>
<message><source>mountain cableway</source><translation>téléphérique</translation></message>
<message><source>mountain railway</source><translation>train de montagne</translation></message>
<message><source>mouse</source><translation>souris</translation></message>
<message><source>mouse face</source><translation>tête de souris</translation></message>
<message><source>mouse trap</source><translation>tapette à souris</translation></message>
<message><source>mouth</source><translation>bouche</translation></message>
<message><source>movie camera</source><translation>caméra</translation></message>
<message><source>mule</source><translation>mule</translation></message>
<message><source>multiplication</source><translation>multiplication</translation></message>
<message><source>multiply</source><translation>signe multiplier</translation></message>
<message><source>multitask</source><translation>multitâche</translation></message>
<message><source>munch</source><translation>Munch</translation></message>
<message><source>museum</source><translation>musée</translation></message>
<message><source>mushroom</source><translation>champignon</translation></message>
<message><source>music</source><translation>musique</translation></message>
<message><source>musical</source><translation>note</translation></message>
<message><source>musical keyboard</source><translation>piano</translation></message>
<message><source>musical note</source><translation>note de musique</translation></message>
<message><source>musical notes</source><translation>notes de musique</translation></message>
<message><source>musical score</source><translation>partition</translation></message>
<message><source>mute</source><translation>muet</translation></message>
<message><source>muted speaker</source><translation>muet</translation></message>
<message><source>mysterious</source><translation>mystère</translation></message>
<message><source>naan</source><translation>naan</translation></message>
<message><source>nail polish</source><translation>vernis à ongles</translation></message>
<message><source>name badge</source><translation>badge nominatif</translation></message>
<message><source>national</source><translation>parc national</translation></message>
<message><source>national park</source><translation>parc national</translation></message>
<message><source>natural</source><translation>naturel</translation></message>
<message><source>nature</source><translation>nature</translation></message>
<message><source>nauseated</source><translation>nausée</translation></message>
<message><source>nauseated face</source><translation>visage nauséeux</translation></message>
<message><source>navigation</source><translation>navigation</translation></message>
<message><source>nazar</source><translation>nazar</translation></message>
<message><source>nazar amulet</source><translation>mauvais œil</translation></message>
<message><source>necktie</source><translation>cravate</translation></message>
<message><source>negative</source><translation>négatif</translation></message>
<message><source>nerd face</source><translation>visage de geek</translation></message>
<message><source>nervous</source><translation>nerveux</translation></message>
<message><source>nest with eggs</source><translation>nid avec œufs</translation></message>
<message><source>nesting dolls</source><translation>poupées russes</translation></message>
<message><source>neutral face</source><translation>visage neutre</translation></message>
<message><source>new moon</source><translation>nouvelle lune</translation></message>
<message><source>new moon face</source><translation>nouvelle lune avec visage</translation></message>
<message><source>newborn</source><translation>nouveau-né</translation></message>
<message><source>newspaper</source><translation>journal</translation></message>
<message><source>next track button</source><translation>bouton piste suivante</translation></message>
<message><source>night with stars</source><translation>nuit étoilée</translation></message>
<message><source>nine o’clock</source><translation>neuf heures</translation></message>
<message><source>nine-thirty</source><translation>neuf heures et demie</translation></message>
<message><source>ninja</source><translation>ninja</translation></message>
<message><source>no bicycles</source><translation>vélos interdits</translation></message>
<message><source>no entry</source><translation>sens interdit</translation></message>
<message><source>no littering</source><translation>dépôt d’ordures interdit</translation></message>
<message><source>no mobile phones</source><translation>téléphones portables interdits</translation></message>
<message><source>no one under eighteen</source><translation>18 ans et plus</translation></message>
<message><source>no pedestrians</source><translation>interdit aux piétons</translation></message>
<message><source>no smoking</source><translation>interdiction de fumer</translation></message>
<message><source>noble</source><translation>noble</translation></message>
<message><source>non-potable</source><translation>eau non potable</translation></message>
<message><source>non-potable water</source><translation>eau non potable</translation></message>
<message><source>northeast</source><translation>nord-est</translation></message>
<message><source>nose</source><translation>nez</translation></message>
<message><source>notebook</source><translation>carnet</translation></message>
<message><source>notebook with decorative cover</source><translation>carnet avec couverture</translation></message>
<message><source>nut and bolt</source><translation>vis et écrou</translation></message>
<message><source>o</source><translation>O</translation></message>
<message><source>ocean</source><translation>océan</translation></message>
<message><source>octagonal</source><translation>octogonal</translation></message>
<message><source>octopus</source><translation>pieuvre</translation></message>
<message><source>oden</source><translation>brochette de poisson</translation></message>
<message><source>offer</source><translation>offre</translation></message>
<message><source>office building</source><translation>immeuble de bureaux</translation></message>
<message><source>office worker</source><translation>employé de bureau (tous genres)</translation></message>
<message><source>officer</source><translation>officier</translation></message>
<message><source>ogre</source><translation>ogre</translation></message>
<message><source>oil drum</source><translation>baril de pétrole</translation></message>
<message><source>old key</source><translation>clé ancienne</translation></message>
<message><source>old man</source><translation>homme âgé</translation></message>
<message><source>old woman</source><translation>femme âgée</translation></message>
<message><source>older person</source><translation>personne âgée</translation></message>
<message><source>olive</source><translation>olive</translation></message>
<message><source>om</source><translation>om</translation></message>
<message><source>oncoming automobile</source><translation>voiture de face</translation></message>
<message><source>oncoming bus</source><translation>bus de face</translation></message>
<message><source>oncoming fist</source><translation>poing de face</translation></message>
<message><source>oncoming police car</source><translation>voiture de police de face</translation></message>
<message><source>oncoming taxi</source><translation>taxi de face</translation></message>
<message><source>one o’clock</source><translation>une heure</translation></message>
<message><source>one-piece</source><translation>une pièce</translation></message>
<message><source>one-piece swimsuit</source><translation>maillot de bain une pièce</translation></message>
<message><source>one-thirty</source><translation>une heure et demie</translation></message>
<message><source>onion</source><translation>oignon</translation></message>
<message><source>oops</source><translation>oups</translation></message>
<message><source>open book</source><translation>livre ouvert</translation></message>
<message><source>open file folder</source><translation>dossier ouvert</translation></message>
<message><source>open hands</source><translation>mains ouvertes</translation></message>
<message><source>open mailbox with lowered flag</source><translation>boîte aux lettres ouverte drapeau baissé</translation></message>
<message><source>open mailbox with raised flag</source><translation>boîte aux lettres ouverte drapeau levé</translation></message>
<message><source>optical disk</source><translation>CD</translation></message>
<message><source>orange</source><translation>orange</translation></message>
<message><source>orange book</source><translation>livre orange</translation></message>
<message><source>orange circle</source><translation>disque orange</translation></message>
<message><source>orange heart</source><translation>cœur orange</translation></message>
<message><source>orange square</source><translation>carré orange</translation></message>
<message><source>orangutan</source><translation>orang-outan</translation></message>
<message><source>orchestra</source><translation>orchestre</translation></message>
<message><source>organ</source><translation>organe</translation></message>
<message><source>orthodox cross</source><translation>croix orthodoxe</translation></message>
<message><source>otter</source><translation>loutre</translation></message>
<message><source>ouch</source><translation>aïe</translation></message>
<message><source>outbox tray</source><translation>boîte d’envoi</translation></message>
<message><source>owl</source><translation>chouette</translation></message>
<message><source>ox</source><translation>bœuf</translation></message>
<message><source>oyster</source><translation>huître</translation></message>
<message><source>package</source><translation>colis</translation></message>
<message><source>paella</source><translation>paella</translation></message>
<message><source>page</source><translation>page</translation></message>
<message><source>page facing up</source><translation>page</translation></message>
<message><source>page with curl</source><translation>page enroulée</translation></message>
<message><source>pager</source><translation>bipeur</translation></message>
<message><source>paintbrush</source><translation>pinceau</translation></message>
<message><source>painter</source><translation>peintre</translation></message>
<message><source>painting</source><translation>peinture</translation></message>
<message><source>palette</source><translation>palette</translation></message>
<message><source>palm</source><translation>palmier</translation></message>
<message><source>palm down hand</source><translation>main paume vers le bas</translation></message>
<message><source>palm tree</source><translation>palmier</translation></message>
<message><source>palm up hand</source><translation>main paume vers le haut</translation></message>
<message><source>palms up together</source><translation>paume contre paume doigts vers le haut</translation></message>
<message><source>pamonha</source><translation>pamonha</translation></message>
<message><source>pan</source><translation>poêle</translation></message>
<message><source>pancakes</source><translation>pancakes</translation></message>
<message><source>panda</source><translation>panda</translation></message>
<message><source>paperclip</source><translation>trombone</translation></message>
<message><source>parachute</source><translation>parachute</translation></message>
<message><source>parasite</source><translation>parasite</translation></message>
<message><source>parrot</source><translation>perroquet</translation></message>
<message><source>part alternation mark</source><translation>alternance</translation></message>
<message><source>party popper</source><translation>cotillons</translation></message>
<message><source>partying face</source><translation>visage festif</translation></message>
<message><source>passenger ship</source><translation>paquebot</translation></message>
<message><source>passport</source><translation>passeport</translation></message>
<message><source>passport control</source><translation>contrôle des passeports</translation></message>
<message><source>pastry</source><translation>gâteau</translation></message>
<message><source>patience</source><translation>patience</translation></message>
<message><source>patrol</source><translation>patrouille</translation></message>
<message><source>pause</source><translation>pause</translation></message>
<message><source>pause button</source><translation>bouton pause</translation></message>
<message><source>paw prints</source><translation>empreintes d’animaux</translation></message>
<message><source>pea pod</source><translation>cosse de petits pois</translation></message>
<message><source>peace symbol</source><translation>symbole de paix</translation></message>
<message><source>peach</source><translation>pêche</translation></message>
<message><source>peacock</source><translation>paon</translation></message>
<message><source>peanuts</source><translation>cacahuètes</translation></message>
<message><source>pear</source><translation>poire</translation></message>
<message><source>pearl</source><translation>perle</translation></message>
<message><source>pen</source><translation>stylo</translation></message>
<message><source>pencil</source><translation>crayon</translation></message>
<message><source>penguin</source><translation>pingouin</translation></message>
<message><source>pensive face</source><translation>visage pensif</translation></message>
<message><source>people holding hands</source><translation>deux personnes se tenant la main</translation></message>
<message><source>people hugging</source><translation>étreinte</translation></message>
<message><source>people with bunny ears</source><translation>personnes avec des oreilles de lapin</translation></message>
<message><source>people wrestling</source><translation>personnes faisant de la lutte</translation></message>
<message><source>pepper</source><translation>piment</translation></message>
<message><source>pepperoni</source><translation>pepperoni</translation></message>
<message><source>percussion</source><translation>percussion</translation></message>
<message><source>performing arts</source><translation>spectacle vivant</translation></message>
<message><source>persevering face</source><translation>visage persévérant</translation></message>
<message><source>person</source><translation>adulte</translation></message>
<message><source>person biking</source><translation>cycliste</translation></message>
<message><source>person bouncing ball</source><translation>personne avec ballon</translation></message>
<message><source>person bowing</source><translation>personne qui s’incline</translation></message>
<message><source>person cartwheeling</source><translation>personne faisant la roue</translation></message>
<message><source>person climbing</source><translation>personne qui grimpe</translation></message>
<message><source>person facepalming</source><translation>personne avec la paume sur le visage</translation></message>
<message><source>person feeding baby</source><translation>personne allaitant un bébé</translation></message>
<message><source>person fencing</source><translation>escrimeur</translation></message>
<message><source>person frowning</source><translation>personne fronçant les sourcils</translation></message>
<message><source>person gesturing NO</source><translation>personne faisant un geste d’interdiction</translation></message>
<message><source>person gesturing OK</source><translation>personne faisant un geste d’acceptation</translation></message>
<message><source>person getting haircut</source><translation>personne qui se fait couper les cheveux</translation></message>
<message><source>person getting massage</source><translation>personne qui se fait masser</translation></message>
<message><source>person golfing</source><translation>joueur de golf</translation></message>
<message><source>person in bed</source><translation>personne au lit</translation></message>
<message><source>person in lotus position</source><translation>personne dans la posture du lotus</translation></message>
<message><source>person in manual wheelchair</source><translation>personne en fauteuil roulant manuel</translation></message>
<message><source>person in manual wheelchair: facing right</source><translation>personne en fauteuil roulant manuel : vers la droite</translation></message>
<message><source>person in motorized wheelchair</source><translation>personne en fauteuil motorisé</translation></message>
<message><source>person in motorized wheelchair: facing right</source><translation>personne en fauteuil motorisé : vers la droite</translation></message>
<message><source>person in steamy room</source><translation>personne au hammam</translation></message>
<message><source>person in suit levitating</source><translation>homme d’affaires en lévitation</translation></message>
<message><source>person in tuxedo</source><translation>personne en smoking</translation></message>
<message><source>person juggling</source><translation>personne qui jongle</translation></message>
<message><source>person kneeling</source><translation>personne à genoux</translation></message>
<message><source>person kneeling: facing right</source><translation>personne à genoux : vers la droite</translation></message>
<message><source>person lifting weights</source><translation>haltérophile</translation></message>
<message><source>person mountain biking</source><translation>personne en VTT</translation></message>
<message><source>person playing handball</source><translation>personne jouant au handball</translation></message>
<message><source>person playing water polo</source><translation>personne jouant au water-polo</translation></message>
<message><source>person pouting</source><translation>personne qui boude</translation></message>
<message><source>person raising hand</source><translation>personne qui lève la main</translation></message>
<message><source>person rowing boat</source><translation>personne ramant dans une barque</translation></message>
<message><source>person running</source><translation>personne qui court</translation></message>
<message><source>person running: facing right</source><translation>personne qui court : vers la droite</translation></message>
<message><source>person shrugging</source><translation>personne qui hausse les épaules</translation></message>
<message><source>person standing</source><translation>personne debout</translation></message>
<message><source>person surfing</source><translation>personne faisant du surf</translation></message>
<message><source>person swimming</source><translation>personne nageant</translation></message>
<message><source>person taking bath</source><translation>personne prenant un bain</translation></message>
<message><source>person tipping hand</source><translation>personne paume vers le haut</translation></message>
<message><source>person walking</source><translation>personne qui marche</translation></message>
<message><source>person walking: facing right</source><translation>personne qui marche : vers la droite</translation></message>
<message><source>person wearing turban</source><translation>personne en turban</translation></message>
<message><source>person with crown</source><translation>personne avec une couronne</translation></message>
<message><source>person with skullcap</source><translation>homme avec casquette chinoise</translation></message>
<message><source>person with veil</source><translation>personne mariée avec voile</translation></message>
<message><source>person with white cane</source><translation>personne avec une canne blanche</translation></message>
<message><source>person with white cane: facing right</source><translation>personne avec une canne blanche : vers la droite</translation></message>
<message><source>person: bald</source><translation>adulte : chauve</translation></message>
<message><source>person: beard</source><translation>personne barbue</translation></message>
<message><source>person: blond hair</source><translation>personne blonde</translation></message>
<message><source>person: curly hair</source><translation>adulte : cheveux bouclés</translation></message>
<message><source>person: red hair</source><translation>adulte : cheveux roux</translation></message>
<message><source>person: white hair</source><translation>adulte : cheveux blancs</translation></message>
<message><source>pet</source><translation>animal domestique</translation></message>
<message><source>petri dish</source><translation>boîte de pétri</translation></message>
<message><source>phoenix</source><translation>phénix</translation></message>
<message><source>phone</source><translation>téléphone</translation></message>
<message><source>photo</source><translation>photo</translation></message>
<message><source>piano</source><translation>piano</translation></message>
<message><source>piccolo</source><translation>piccolo</translation></message>
<message><source>pick</source><translation>pioche</translation></message>
<message><source>pickup truck</source><translation>pick-up</translation></message>
<message><source>pie</source><translation>tarte</translation></message>
<message><source>pierogi</source><translation>pierogi</translation></message>
<message><source>pig</source><translation>cochon</translation></message>
<message><source>pig face</source><translation>tête de cochon</translation></message>
<message><source>pig nose</source><translation>groin</translation></message>
<message><source>pile of poo</source><translation>tas de crotte</translation></message>
<message><source>pill</source><translation>pilule</translation></message>
<message><source>pilot</source><translation>pilote</translation></message>
<message><source>pinched fingers</source><translation>bout des doigts joints</translation></message>
<message><source>pinching hand</source><translation>pouce et index rapprochés</translation></message>
<message><source>pine decoration</source><translation>bambou décoratif</translation></message>
<message><source>pineapple</source><translation>ananas</translation></message>
<message><source>ping pong</source><translation>ping-pong</translation></message>
<message><source>pingpong</source><translation>ping-pong</translation></message>
<message><source>pink heart</source><translation>cœur rose</translation></message>
<message><source>pinocchio</source><translation>pinocchio</translation></message>
<message><source>pint</source><translation>pinte</translation></message>
<message><source>pirate</source><translation>pirate</translation></message>
<message><source>pirate flag</source><translation>drapeau de pirate</translation></message>
<message><source>pistol</source><translation>pistolet</translation></message>
<message><source>pita</source><translation>pita</translation></message>
<message><source>pizza</source><translation>pizza</translation></message>
<message><source>piñata</source><translation>piñata</translation></message>
<message><source>placard</source><translation>pancarte</translation></message>
<message><source>place of worship</source><translation>lieu de culte</translation></message>
<message><source>plane</source><translation>avion</translation></message>
<message><source>plankton</source><translation>plancton</translation></message>
<message><source>plant</source><translation>plante</translation></message>
<message><source>play button</source><translation>bouton lecture</translation></message>
<message><source>play or pause button</source><translation>bouton lecture/pause</translation></message>
<message><source>playground slide</source><translation>toboggan</translation></message>
<message><source>pleading face</source><translation>visage implorant</translation></message>
<message><source>plumber</source><translation>plombier</translation></message>
<message><source>plunger</source><translation>ventouse</translation></message>
<message><source>plus</source><translation>plus</translation></message>
<message><source>pointing</source><translation>doigt</translation></message>
<message><source>polar bear</source><translation>ours polaire</translation></message>
<message><source>police</source><translation>police</translation></message>
<message><source>police car</source><translation>voiture de police</translation></message>
<message><source>police car light</source><translation>gyrophare</translation></message>
<message><source>police officer</source><translation>officier de police</translation></message>
<message><source>poodle</source><translation>caniche</translation></message>
<message><source>pool</source><translation>pool</translation></message>
<message><source>pool 8 ball</source><translation>boule de billard</translation></message>
<message><source>poop</source><translation>popo</translation></message>
<message><source>popcorn</source><translation>pop-corn</translation></message>
<message><source>pork</source><translation>porc</translation></message>
<message><source>porous</source><translation>poreuse</translation></message>
<message><source>poseidon</source><translation>Poséidon</translation></message>
<message><source>post</source><translation>poste</translation></message>
<message><source>post office</source><translation>bureau de poste</translation></message>
<message><source>postal</source><translation>cor postal</translation></message>
<message><source>postal horn</source><translation>cor postal</translation></message>
<message><source>postbox</source><translation>boîte aux lettres</translation></message>
<message><source>pot of food</source><translation>marmite</translation></message>
<message><source>potable</source><translation>eau potable</translation></message>
<message><source>potable water</source><translation>eau potable</translation></message>
<message><source>potassium</source><translation>potassium</translation></message>
<message><source>potato</source><translation>pomme de terre</translation></message>
<message><source>potsticker</source><translation>potsticker</translation></message>
<message><source>potted plant</source><translation>plante en pot</translation></message>
<message><source>poultry leg</source><translation>cuisse de poulet</translation></message>
<message><source>pound banknote</source><translation>billet en livres</translation></message>
<message><source>pouring liquid</source><translation>verser un liquide</translation></message>
<message><source>pouting cat</source><translation>chat qui boude</translation></message>
<message><source>pray</source><translation>prier</translation></message>
<message><source>prayer beads</source><translation>chapelet</translation></message>
<message><source>predator</source><translation>prédateur</translation></message>
<message><source>pregnant</source><translation>enceinte</translation></message>
<message><source>pregnant man</source><translation>homme enceint</translation></message>
<message><source>pregnant person</source><translation>personne enceinte</translation></message>
<message><source>pregnant woman</source><translation>femme enceinte</translation></message>
<message><source>pretzel</source><translation>bretzel</translation></message>
<message><source>pride</source><translation>Gay Pride</translation></message>
<message><source>prince</source><translation>prince</translation></message>
<message><source>princess</source><translation>princesse</translation></message>
<message><source>printer</source><translation>imprimante</translation></message>
<message><source>prints</source><translation>empreintes</translation></message>
<message><source>private</source><translation>privé</translation></message>
<message><source>prohibited</source><translation>symbole d’interdiction</translation></message>
<message><source>projector</source><translation>projecteur</translation></message>
<message><source>prophecy</source><translation>prophétie</translation></message>
<message><source>protect</source><translation>protection</translation></message>
<message><source>protest</source><translation>protestation</translation></message>
<message><source>pudding</source><translation>pudding</translation></message>
<message><source>pulsating</source><translation>pulsations</translation></message>
<message><source>pulse</source><translation>pouls</translation></message>
<message><source>punctuation</source><translation>ponctuation</translation></message>
<message><source>purple</source><translation>violet</translation></message>
<message><source>purple circle</source><translation>disque violet</translation></message>
<message><source>purple heart</source><translation>cœur violet</translation></message>
<message><source>purple square</source><translation>carré violet</translation></message>
<message><source>purse</source><translation>porte-monnaie</translation></message>
<message><source>pushpin</source><translation>punaise</translation></message>
<message><source>puzzle</source><translation>puzzle</translation></message>
<message><source>puzzle piece</source><translation>pièce de puzzle</translation></message>
<message><source>quarter</source><translation>quartier</translation></message>
<message><source>question</source><translation>question</translation></message>
<message><source>rabbit</source><translation>lapin</translation></message>
<message><source>rabbit face</source><translation>tête de lapin</translation></message>
<message><source>raccoon</source><translation>raton laveur</translation></message>
<message><source>racehorse</source><translation>course hippique</translation></message>
<message><source>racing car</source><translation>voiture de course</translation></message>
<message><source>radio</source><translation>radio</translation></message>
<message><source>radio button</source><translation>bouton radio</translation></message>
<message><source>radioactive</source><translation>radioactif</translation></message>
<message><source>rage</source><translation>rageur</translation></message>
<message><source>railway</source><translation>rail</translation></message>
<message><source>railway car</source><translation>wagon</translation></message>
<message><source>railway track</source><translation>voie ferrée</translation></message>
<message><source>rain</source><translation>pluie</translation></message>
<message><source>rainbow</source><translation>arc-en-ciel</translation></message>
<message><source>rainbow flag</source><translation>drapeau arc-en-ciel</translation></message>
<message><source>raised back of hand</source><translation>dos de main levée</translation></message>
<message><source>raised fist</source><translation>poing levé</translation></message>
<message><source>raised hand</source><translation>main levée</translation></message>
<message><source>raising hands</source><translation>mains levées</translation></message>
<message><source>ram</source><translation>bélier</translation></message>
<message><source>rat</source><translation>rat</translation></message>
<message><source>rays</source><translation>rayons</translation></message>
<message><source>razor</source><translation>rasoir</translation></message>
<message><source>receipt</source><translation>reçu</translation></message>
<message><source>record button</source><translation>bouton enregistrer</translation></message>
<message><source>recycling symbol</source><translation>symbole Recyclage</translation></message>
<message><source>red apple</source><translation>pomme rouge</translation></message>
<message><source>red circle</source><translation>disque rouge</translation></message>
<message><source>red envelope</source><translation>enveloppe rouge</translation></message>
<message><source>red exclamation mark</source><translation>point d’exclamation rouge</translation></message>
<message><source>red heart</source><translation>cœur rouge</translation></message>
<message><source>red paper lantern</source><translation>lampion rouge</translation></message>
<message><source>red question mark</source><translation>point d’interrogation rouge</translation></message>
<message><source>red square</source><translation>carré rouge</translation></message>
<message><source>red triangle pointed down</source><translation>triangle rouge pointant vers le bas</translation></message>
<message><source>red triangle pointed up</source><translation>triangle rouge pointant vers le haut</translation></message>
<message><source>refuse</source><translation>refuser</translation></message>
<message><source>registered</source><translation>marque déposée</translation></message>
<message><source>relationship</source><translation>couple avec cœur</translation></message>
<message><source>relax</source><translation>relaxation</translation></message>
<message><source>relief</source><translation>soulagement</translation></message>
<message><source>relieved face</source><translation>visage soulagé</translation></message>
<message><source>religion</source><translation>religion</translation></message>
<message><source>reminder ribbon</source><translation>ruban de mémoire</translation></message>
<message><source>repeat</source><translation>répéter</translation></message>
<message><source>repeat button</source><translation>bouton répétition</translation></message>
<message><source>repeat single button</source><translation>bouton répétition de la piste</translation></message>
<message><source>repercussion</source><translation>répercussion</translation></message>
<message><source>rescue</source><translation>secours</translation></message>
<message><source>rescue worker’s helmet</source><translation>casque de secouriste</translation></message>
<message><source>reserved</source><translation>réservé</translation></message>
<message><source>respect</source><translation>respect</translation></message>
<message><source>restaurant</source><translation>restaurant</translation></message>
<message><source>restroom</source><translation>panneau Toilettes</translation></message>
<message><source>reverse button</source><translation>bouton retour</translation></message>
<message><source>revolver</source><translation>revolver</translation></message>
<message><source>revolving hearts</source><translation>cœurs qui tournent</translation></message>
<message><source>rhinoceros</source><translation>rhinocéros</translation></message>
<message><source>rhythm</source><translation>rythme</translation></message>
<message><source>ribbon</source><translation>ruban</translation></message>
<message><source>rice</source><translation>riz</translation></message>
<message><source>rice ball</source><translation>boulette de riz</translation></message>
<message><source>rice cracker</source><translation>galette de riz</translation></message>
<message><source>rich</source><translation>riche</translation></message>
<message><source>rickshaw</source><translation>rickshaw</translation></message>
<message><source>right</source><translation>droite</translation></message>
<message><source>right anger bubble</source><translation>bulle colère droite</translation></message>
<message><source>right arrow</source><translation>flèche droite</translation></message>
<message><source>right arrow curving down</source><translation>flèche courbe bas</translation></message>
<message><source>right arrow curving left</source><translation>flèche courbe gauche</translation></message>
<message><source>right arrow curving up</source><translation>flèche courbe haut</translation></message>
<message><source>right-facing fist</source><translation>poing à droite</translation></message>
<message><source>rightwards hand</source><translation>main vers la droite</translation></message>
<message><source>rightwards pushing hand</source><translation>main qui pousse vers la droite</translation></message>
<message><source>ring</source><translation>bague</translation></message>
<message><source>ring buoy</source><translation>bouée de sauvetage</translation></message>
<message><source>ringed planet</source><translation>planète à anneaux</translation></message>
<message><source>river</source><translation>rivière</translation></message>
<message><source>roasted sweet potato</source><translation>patate douce</translation></message>
<message><source>robot</source><translation>robot</translation></message>
<message><source>rock</source><translation>rocher</translation></message>
<message><source>rock-on</source><translation>rock</translation></message>
<message><source>rocket</source><translation>fusée</translation></message>
<message><source>roll of paper</source><translation>rouleau de papier</translation></message>
<message><source>rolled-up newspaper</source><translation>journal roulé</translation></message>
<message><source>roller</source><translation>roller</translation></message>
<message><source>roller coaster</source><translation>montagnes russes</translation></message>
<message><source>roller skate</source><translation>patin à roulettes</translation></message>
<message><source>rolling on the floor laughing</source><translation>se rouler par terre de rire</translation></message>
<message><source>rolodex</source><translation>rolodex</translation></message>
<message><source>rooster</source><translation>coq</translation></message>
<message><source>root</source><translation>racine</translation></message>
<message><source>root vegetable</source><translation>légume-racine</translation></message>
<message><source>rose</source><translation>rose</translation></message>
<message><source>rosette</source><translation>rosette</translation></message>
<message><source>round pushpin</source><translation>épingle</translation></message>
<message><source>router</source><translation>routeur</translation></message>
<message><source>royal</source><translation>royal</translation></message>
<message><source>royalty</source><translation>royauté</translation></message>
<message><source>rugby</source><translation>rugby</translation></message>
<message><source>rugby football</source><translation>rugby</translation></message>
<message><source>running</source><translation>running</translation></message>
<message><source>running shirt</source><translation>maillot de course</translation></message>
<message><source>running shoe</source><translation>chaussure de sport</translation></message>
<message><source>sad</source><translation>triste</translation></message>
<message><source>sad but relieved face</source><translation>visage triste mais soulagé</translation></message>
<message><source>safari</source><translation>safari</translation></message>
<message><source>safety</source><translation>sécurité</translation></message>
<message><source>safety pin</source><translation>épingle de sûreté</translation></message>
<message><source>safety vest</source><translation>gilet de sécurité</translation></message>
<message><source>sailboat</source><translation>voilier</translation></message>
<message><source>sake</source><translation>saké</translation></message>
<message><source>salad</source><translation>salade</translation></message>
<message><source>salon</source><translation>salon</translation></message>
<message><source>salsa</source><translation>salsa</translation></message>
<message><source>salt</source><translation>sel</translation></message>
<message><source>saluting</source><translation>salut</translation></message>
<message><source>saluting face</source><translation>visage qui fait un salut militaire</translation></message>
<message><source>sandal</source><translation>sandale</translation></message>
<message><source>sandals</source><translation>sandales</translation></message>
<message><source>sandwich</source><translation>sandwich</translation></message>
<message><source>santa</source><translation>Santa</translation></message>
<message><source>sarcasm</source><translation>sarcasme</translation></message>
<message><source>sarcastic</source><translation>sarcastique</translation></message>
<message><source>sari</source><translation>sari</translation></message>
<message><source>satellite</source><translation>satellite</translation></message>
<message><source>satellite antenna</source><translation>antenne satellite</translation></message>
<message><source>satisfied</source><translation>satisfait</translation></message>
<message><source>sauce</source><translation>sauce</translation></message>
<message><source>sauna</source><translation>sauna</translation></message>
<message><source>sauropod</source><translation>sauropode</translation></message>
<message><source>savor</source><translation>savourer</translation></message>
<message><source>saxophone</source><translation>saxophone</translation></message>
<message><source>scale</source><translation>escalader</translation></message>
<message><source>scared</source><translation>effrayé</translation></message>
<message><source>scarf</source><translation>foulard</translation></message>
<message><source>scary</source><translation>effrayant</translation></message>
<message><source>schmear</source><translation>schmear</translation></message>
<message><source>school</source><translation>école</translation></message>
<message><source>science</source><translation>science</translation></message>
<message><source>scientist</source><translation>scientifique</translation></message>
<message><source>scissors</source><translation>ciseaux</translation></message>
<message><source>scooter</source><translation>scooter</translation></message>
<message><source>score</source><translation>score</translation></message>
<message><source>scorpion</source><translation>scorpion</translation></message>
<message><source>scorpius</source><translation>scorpion</translation></message>
<message><source>screwdriver</source><translation>tournevis</translation></message>
<message><source>scroll</source><translation>parchemin</translation></message>
<message><source>seal</source><translation>phoque</translation></message>
<message><source>seat</source><translation>siège</translation></message>
<message><source>secret</source><translation>secret</translation></message>
<message><source>secure</source><translation>sécurisé</translation></message>
<message><source>see-no-evil monkey</source><translation>singe ne rien voir</translation></message>
<message><source>seedling</source><translation>jeune pousse</translation></message>
<message><source>selfie</source><translation>selfie</translation></message>
<message><source>semi</source><translation>semi</translation></message>
<message><source>sent</source><translation>envoyer</translation></message>
<message><source>serenity</source><translation>sérénité</translation></message>
<message><source>serpent</source><translation>serpent</translation></message>
<message><source>service dog</source><translation>chien d’assistance</translation></message>
<message><source>seven o’clock</source><translation>sept heures</translation></message>
<message><source>seven-thirty</source><translation>sept heures et demie</translation></message>
<message><source>sewing needle</source><translation>aiguille à coudre</translation></message>
<message><source>sexy</source><translation>sexy</translation></message>
<message><source>shaking face</source><translation>visage secoué</translation></message>
<message><source>shallow pan of food</source><translation>plat mitonné</translation></message>
<message><source>shamrock</source><translation>trèfle</translation></message>
<message><source>shark</source><translation>requin</translation></message>
<message><source>shaved ice</source><translation>granité</translation></message>
<message><source>sheaf of rice</source><translation>plant de riz</translation></message>
<message><source>sheep</source><translation>mouton</translation></message>
<message><source>shield</source><translation>bouclier</translation></message>
<message><source>shinto</source><translation>shinto</translation></message>
<message><source>shinto shrine</source><translation>sanctuaire shinto</translation></message>
<message><source>ship</source><translation>navire</translation></message>
<message><source>shirt</source><translation>chemise</translation></message>
<message><source>shocked</source><translation>choqué</translation></message>
<message><source>shoes</source><translation>chaussure</translation></message>
<message><source>shooting</source><translation>étoile filante</translation></message>
<message><source>shooting star</source><translation>étoile filante</translation></message>
<message><source>shopping</source><translation>shopping</translation></message>
<message><source>shopping bags</source><translation>sacs de shopping</translation></message>
<message><source>shopping cart</source><translation>chariot</translation></message>
<message><source>shortcake</source><translation>gâteau sablé</translation></message>
<message><source>shorts</source><translation>short</translation></message>
<message><source>shovel</source><translation>pelle</translation></message>
<message><source>shower</source><translation>douche</translation></message>
<message><source>shrimp</source><translation>crevette</translation></message>
<message><source>shuffle tracks button</source><translation>bouton lecture aléatoire</translation></message>
<message><source>shushing face</source><translation>visage avec un doigt sur la bouche</translation></message>
<message><source>shy</source><translation>timide</translation></message>
<message><source>sick</source><translation>malade</translation></message>
<message><source>sign of the horns</source><translation>cornes avec les doigts</translation></message>
<message><source>silent</source><translation>silence</translation></message>
<message><source>singer</source><translation>chanteur (tous genres)</translation></message>
<message><source>siren</source><translation>sirène</translation></message>
<message><source>six o’clock</source><translation>six heures</translation></message>
<message><source>six-thirty</source><translation>six heures et demie</translation></message>
<message><source>skate</source><translation>skate</translation></message>
<message><source>skateboard</source><translation>planche à roulettes</translation></message>
<message><source>ski</source><translation>ski</translation></message>
<message><source>skier</source><translation>skieur</translation></message>
<message><source>skis</source><translation>ski</translation></message>
<message><source>skull</source><translation>crâne</translation></message>
<message><source>skull and crossbones</source><translation>tête de mort</translation></message>
<message><source>skunk</source><translation>mouffette</translation></message>
<message><source>sled</source><translation>luge</translation></message>
<message><source>sleep</source><translation>dormir</translation></message>
<message><source>sleeping face</source><translation>visage somnolent</translation></message>
<message><source>sleepy</source><translation>sommeil</translation></message>
<message><source>sleepy face</source><translation>visage endormi</translation></message>
<message><source>slightly frowning face</source><translation>visage légèrement mécontent</translation></message>
<message><source>slightly smiling face</source><translation>visage avec un léger sourire</translation></message>
<message><source>slot machine</source><translation>machine à sous</translation></message>
<message><source>sloth</source><translation>paresseux</translation></message>
<message><source>small airplane</source><translation>petit avion</translation></message>
<message><source>small blue diamond</source><translation>petit losange bleu</translation></message>
<message><source>small orange diamond</source><translation>petit losange orange</translation></message>
<message><source>smartphone</source><translation>smartphone</translation></message>
<message><source>smell</source><translation>sentir</translation></message>
<message><source>smiling</source><translation>sourire</translation></message>
<message><source>smiling cat with heart-eyes</source><translation>chat souriant aux yeux en cœurs</translation></message>
<message><source>smiling face</source><translation>visage souriant</translation></message>
<message><source>smiling face with halo</source><translation>visage souriant avec auréole</translation></message>
<message><source>smiling face with heart-eyes</source><translation>visage souriant avec yeux en forme de cœur</translation></message>
<message><source>smiling face with hearts</source><translation>visage souriant avec cœurs</translation></message>
<message><source>smiling face with horns</source><translation>visage souriant avec des cornes</translation></message>
<message><source>smiling face with open hands</source><translation>visage qui fait un câlin</translation></message>
<message><source>smiling face with smiling eyes</source><translation>visage souriant avec yeux rieurs</translation></message>
<message><source>smiling face with sunglasses</source><translation>visage avec lunettes de soleil</translation></message>
<message><source>smiling face with tear</source><translation>visage souriant avec une larme</translation></message>
<message><source>smirking face</source><translation>visage avec un sourire malin</translation></message>
<message><source>smoking</source><translation>fumer</translation></message>
<message><source>snail</source><translation>escargot</translation></message>
<message><source>snake</source><translation>serpent</translation></message>
<message><source>sneezing face</source><translation>visage qui éternue</translation></message>
<message><source>snorkeling</source><translation>snorkeling</translation></message>
<message><source>snow</source><translation>neige</translation></message>
<message><source>snow-capped mountain</source><translation>montagne enneigée</translation></message>
<message><source>snowboarder</source><translation>snowboardeur</translation></message>
<message><source>snowflake</source><translation>flocon</translation></message>
<message><source>snowman</source><translation>bonhomme de neige</translation></message>
<message><source>snowman without snow</source><translation>bonhomme de neige sans neige</translation></message>
<message><source>soap</source><translation>savon</translation></message>
<message><source>soccer ball</source><translation>ballon de football</translation></message>
<message><source>socks</source><translation>chaussettes</translation></message>
<message><source>soda</source><translation>soda</translation></message>
<message><source>soft ice cream</source><translation>glace italienne</translation></message>
<message><source>softball</source><translation>softball</translation></message>
<message><source>solid</source><translation>solide</translation></message>
<message><source>solidarity</source><translation>solidarité</translation></message>
<message><source>sorry</source><translation>désolé</translation></message>
<message><source>sound</source><translation>son</translation></message>
<message><source>spa</source><translation>détente</translation></message>
<message><source>space</source><translation>espace</translation></message>
<message><source>spade suit</source><translation>pique</translation></message>
<message><source>spaghetti</source><translation>spaghetti</translation></message>
<message><source>sparkle</source><translation>éclat</translation></message>
<message><source>sparkler</source><translation>cierge magique</translation></message>
<message><source>sparkles</source><translation>étincelles</translation></message>
<message><source>sparkling heart</source><translation>cœur étincelant</translation></message>
<message><source>speak</source><translation>parler</translation></message>
<message><source>speak-no-evil monkey</source><translation>singe ne rien dire</translation></message>
<message><source>speaker</source><translation>haut-parleur d’enceinte</translation></message>
<message><source>speaker high volume</source><translation>volume des enceintes élevé</translation></message>
<message><source>speaker low volume</source><translation>volume des enceintes faible</translation></message>
<message><source>speaker medium volume</source><translation>volume des enceintes moyen</translation></message>
<message><source>speaking head</source><translation>tête qui parle</translation></message>
<message><source>special</source><translation>spécial</translation></message>
<message><source>speech balloon</source><translation>bulle de parole</translation></message>
<message><source>speed</source><translation>rapide</translation></message>
<message><source>speedboat</source><translation>hors-bord</translation></message>
<message><source>spice</source><translation>épice</translation></message>
<message><source>spider</source><translation>araignée</translation></message>
<message><source>spider web</source><translation>toile d’araignée</translation></message>
<message><source>spiral calendar</source><translation>calendrier à spirale</translation></message>
<message><source>spiral notepad</source><translation>bloc-notes à spirale</translation></message>
<message><source>spiral shell</source><translation>coquille en spirale</translation></message>
<message><source>spirit</source><translation>spirituel</translation></message>
<message><source>splatter</source><translation>éclaboussure</translation></message>
<message><source>sponge</source><translation>éponge</translation></message>
<message><source>spoon</source><translation>cuillère</translation></message>
<message><source>sport</source><translation>sport</translation></message>
<message><source>sport utility vehicle</source><translation>véhicule utilitaire sport</translation></message>
<message><source>sports</source><translation>sports</translation></message>
<message><source>sports medal</source><translation>médaille sportive</translation></message>
<message><source>spouting whale</source><translation>baleine soufflant par son évent</translation></message>
<message><source>spring</source><translation>printemps</translation></message>
<message><source>spy</source><translation>espion</translation></message>
<message><source>square</source><translation>carré</translation></message>
<message><source>squid</source><translation>calamar</translation></message>
<message><source>squinting face with tongue</source><translation>visage qui tire la langue les yeux plissés</translation></message>
<message><source>stadium</source><translation>stade</translation></message>
<message><source>star</source><translation>étoile</translation></message>
<message><source>star and crescent</source><translation>lune et étoile</translation></message>
<message><source>star of David</source><translation>étoile de David</translation></message>
<message><source>star-struck</source><translation>visage avec des étoiles à la place des yeux</translation></message>
<message><source>station</source><translation>gare</translation></message>
<message><source>statue</source><translation>statue</translation></message>
<message><source>steak</source><translation>steak</translation></message>
<message><source>steaming bowl</source><translation>bol fumant</translation></message>
<message><source>stethoscope</source><translation>stéthoscope</translation></message>
<message><source>stick</source><translation>crosse</translation></message>
<message><source>stiletto</source><translation>stilletto</translation></message>
<message><source>stink</source><translation>puer</translation></message>
<message><source>stop</source><translation>stop</translation></message>
<message><source>stop button</source><translation>bouton stop</translation></message>
<message><source>stop sign</source><translation>stop</translation></message>
<message><source>stopwatch</source><translation>chronomètre</translation></message>
<message><source>straight ruler</source><translation>règle</translation></message>
<message><source>strawberry</source><translation>fraise</translation></message>
<message><source>stressed</source><translation>stressé</translation></message>
<message><source>strike</source><translation>strike</translation></message>
<message><source>student</source><translation>étudiant (tous genres)</translation></message>
<message><source>studio</source><translation>studio</translation></message>
<message><source>studio microphone</source><translation>micro de studio</translation></message>
<message><source>stuffed flatbread</source><translation>kebab</translation></message>
<message><source>style</source><translation>style</translation></message>
<message><source>suction</source><translation>succion</translation></message>
<message><source>suit</source><translation>couleur</translation></message>
<message><source>sun</source><translation>soleil</translation></message>
<message><source>sun behind cloud</source><translation>soleil derrière les nuages</translation></message>
<message><source>sun behind large cloud</source><translation>soleil derrière un gros nuage</translation></message>
<message><source>sun behind rain cloud</source><translation>soleil derrière un nuage de pluie</translation></message>
<message><source>sun behind small cloud</source><translation>soleil derrière un petit nuage</translation></message>
<message><source>sun with face</source><translation>soleil avec visage</translation></message>
<message><source>sunflower</source><translation>tournesol</translation></message>
<message><source>sunglasses</source><translation>lunettes de soleil</translation></message>
<message><source>sunrise</source><translation>soleil levant</translation></message>
<message><source>sunrise over mountains</source><translation>soleil levant derrière les montagnes</translation></message>
<message><source>sunset</source><translation>coucher de soleil</translation></message>
<message><source>superhero</source><translation>super-héros</translation></message>
<message><source>superpower</source><translation>superhéros</translation></message>
<message><source>supervillain</source><translation>super-vilain</translation></message>
<message><source>surprised</source><translation>surpris</translation></message>
<message><source>sushi</source><translation>sushi</translation></message>
<message><source>suspension railway</source><translation>train suspendu</translation></message>
<message><source>suspicious</source><translation>suspicieux</translation></message>
<message><source>sutures</source><translation>suture</translation></message>
<message><source>swan</source><translation>cygne</translation></message>
<message><source>sweat</source><translation>sueur</translation></message>
<message><source>sweat droplets</source><translation>gouttes de sueur</translation></message>
<message><source>sweet</source><translation>sucré</translation></message>
<message><source>symbols</source><translation>symboles</translation></message>
<message><source>synagogue</source><translation>synagogue</translation></message>
<message><source>syringe</source><translation>seringue</translation></message>
<message><source>t-shirt</source><translation>T-shirt</translation></message>
<message><source>taco</source><translation>taco</translation></message>
<message><source>taekwondo</source><translation>taekwondo</translation></message>
<message><source>takeout box</source><translation>boîte à emporter</translation></message>
<message><source>tamale</source><translation>tamal</translation></message>
<message><source>tanabata</source><translation>Tanabata</translation></message>
<message><source>tanabata tree</source><translation>arbre à vœux</translation></message>
<message><source>tangerine</source><translation>mandarine</translation></message>
<message><source>tango</source><translation>tango</translation></message>
<message><source>taoist</source><translation>taoïsme</translation></message>
<message><source>taxi</source><translation>taxi</translation></message>
<message><source>tea</source><translation>thé</translation></message>
<message><source>teacher</source><translation>personnel enseignant</translation></message>
<message><source>teacup without handle</source><translation>tasse</translation></message>
<message><source>teapot</source><translation>théière</translation></message>
<message><source>tear</source><translation>larmes</translation></message>
<message><source>tear-off calendar</source><translation>éphéméride</translation></message>
<message><source>technologist</source><translation>informaticien (tous genres)</translation></message>
<message><source>teddy bear</source><translation>ours en peluche</translation></message>
<message><source>teeth</source><translation>dents</translation></message>
<message><source>telephone</source><translation>téléphone</translation></message>
<message><source>telephone receiver</source><translation>combiné téléphonique</translation></message>
<message><source>telescope</source><translation>télescope</translation></message>
<message><source>television</source><translation>téléviseur</translation></message>
<message><source>temple</source><translation>temple</translation></message>
<message><source>ten o’clock</source><translation>dix heures</translation></message>
<message><source>ten-thirty</source><translation>dix heures et demie</translation></message>
<message><source>tennis</source><translation>tennis</translation></message>
<message><source>tension</source><translation>tension</translation></message>
<message><source>tent</source><translation>tente</translation></message>
<message><source>tentacles</source><translation>tentacules</translation></message>
<message><source>test tube</source><translation>tube à essai</translation></message>
<message><source>thanks</source><translation>merci</translation></message>
<message><source>thanksgiving</source><translation>thanksgiving</translation></message>
<message><source>therapist</source><translation>thérapeute</translation></message>
<message><source>therapy</source><translation>thérapie</translation></message>
<message><source>thermometer</source><translation>thermomètre</translation></message>
<message><source>thinking face</source><translation>visage en pleine réflexion</translation></message>
<message><source>thong sandal</source><translation>tong</translation></message>
<message><source>thought balloon</source><translation>bulle de pensée</translation></message>
<message><source>thread</source><translation>bobine de fil</translation></message>
<message><source>three o’clock</source><translation>trois heures</translation></message>
<message><source>three-thirty</source><translation>trois heures et demie</translation></message>
<message><source>thumbs down</source><translation>pouce vers le bas</translation></message>
<message><source>thumbs up</source><translation>pouce vers le haut</translation></message>
<message><source>tichel</source><translation>tichel</translation></message>
<message><source>ticket</source><translation>billet</translation></message>
<message><source>tiger</source><translation>tigre</translation></message>
<message><source>tiger face</source><translation>tête de tigre</translation></message>
<message><source>time</source><translation>horloge</translation></message>
<message><source>timer</source><translation>minuteur</translation></message>
<message><source>timer clock</source><translation>horloge</translation></message>
<message><source>tired</source><translation>fatigué</translation></message>
<message><source>tired face</source><translation>visage fatigué</translation></message>
<message><source>toilet</source><translation>toilettes</translation></message>
<message><source>tomato</source><translation>tomate</translation></message>
<message><source>tongue</source><translation>langue</translation></message>
<message><source>tool</source><translation>outil</translation></message>
<message><source>toolbox</source><translation>boîte à outils</translation></message>
<message><source>tooth</source><translation>dent</translation></message>
<message><source>toothbrush</source><translation>brosse à dents</translation></message>
<message><source>top hat</source><translation>haut de forme</translation></message>
<message><source>torch</source><translation>torche</translation></message>
<message><source>tornado</source><translation>tornade</translation></message>
<message><source>tortoise</source><translation>tortue</translation></message>
<message><source>touched</source><translation>touché</translation></message>
<message><source>trackball</source><translation>boule de commande</translation></message>
<message><source>tractor</source><translation>tracteur</translation></message>
<message><source>trade mark</source><translation>marque commerciale déposée</translation></message>
<message><source>train</source><translation>train</translation></message>
<message><source>tram</source><translation>tramway</translation></message>
<message><source>tram car</source><translation>wagon de tramway</translation></message>
<message><source>transform</source><translation>transformation</translation></message>
<message><source>transgender</source><translation>transgenre</translation></message>
<message><source>transgender flag</source><translation>drapeau transgenre</translation></message>
<message><source>transgender symbol</source><translation>symbole de la communauté transgenre</translation></message>
<message><source>transparent</source><translation>transparent</translation></message>
<message><source>transportation</source><translation>transports</translation></message>
<message><source>treasure</source><translation>trésor</translation></message>
<message><source>tree</source><translation>arbre</translation></message>
<message><source>trend</source><translation>tendance</translation></message>
<message><source>triangle</source><translation>triangle</translation></message>
<message><source>triangular flag</source><translation>drapeau triangulaire</translation></message>
<message><source>triangular ruler</source><translation>équerre</translation></message>
<message><source>trident</source><translation>trident</translation></message>
<message><source>trident emblem</source><translation>trident</translation></message>
<message><source>troll</source><translation>troll</translation></message>
<message><source>trolleybus</source><translation>trolleybus</translation></message>
<message><source>trophy</source><translation>trophée</translation></message>
<message><source>tropical</source><translation>tropical</translation></message>
<message><source>tropical drink</source><translation>cocktail tropical</translation></message>
<message><source>tropical fish</source><translation>poisson tropical</translation></message>
<message><source>trumpet</source><translation>trompette</translation></message>
<message><source>tulip</source><translation>tulipe</translation></message>
<message><source>tumbler</source><translation>tumbler</translation></message>
<message><source>tumbler glass</source><translation>verre tumbler</translation></message>
<message><source>turban</source><translation>turban</translation></message>
<message><source>turkey</source><translation>dindon</translation></message>
<message><source>turn</source><translation>tourner</translation></message>
<message><source>turtle</source><translation>tortue</translation></message>
<message><source>twelve o’clock</source><translation>midi/minuit</translation></message>
<message><source>twelve-thirty</source><translation>midi/minuit et demie</translation></message>
<message><source>two hearts</source><translation>deux cœurs</translation></message>
<message><source>two o’clock</source><translation>deux heures</translation></message>
<message><source>two-hump camel</source><translation>chameau</translation></message>
<message><source>two-thirty</source><translation>deux heures et demie</translation></message>
<message><source>type</source><translation>peau</translation></message>
<message><source>typhoon</source><translation>typhon</translation></message>
<message><source>umbrella</source><translation>parapluie ouvert</translation></message>
<message><source>umbrella on ground</source><translation>parasol sur le sol</translation></message>
<message><source>umbrella with rain drops</source><translation>parapluie avec gouttes de pluie</translation></message>
<message><source>unamused face</source><translation>visage blasé</translation></message>
<message><source>underwear</source><translation>sous-vêtement</translation></message>
<message><source>unhappy</source><translation>mécontent</translation></message>
<message><source>unicorn</source><translation>licorne</translation></message>
<message><source>unimpressed</source><translation>visage sans expression</translation></message>
<message><source>universal</source><translation>universel</translation></message>
<message><source>unlocked</source><translation>cadenas ouvert</translation></message>
<message><source>up arrow</source><translation>flèche haut</translation></message>
<message><source>up-down arrow</source><translation>flèche haut bas</translation></message>
<message><source>up-left arrow</source><translation>flèche haut gauche</translation></message>
<message><source>up-right arrow</source><translation>flèche haut droite</translation></message>
<message><source>upside-down face</source><translation>tête à l’envers</translation></message>
<message><source>upwards button</source><translation>petit triangle haut</translation></message>
<message><source>valentine</source><translation>Saint-Valentin</translation></message>
<message><source>vampire</source><translation>vampire</translation></message>
<message><source>vegetable</source><translation>légume</translation></message>
<message><source>vehicle</source><translation>véhicule</translation></message>
<message><source>versus</source><translation>versus</translation></message>
<message><source>vertical traffic light</source><translation>feu tricolore vertical</translation></message>
<message><source>vibrate</source><translation>vibration</translation></message>
<message><source>vibration mode</source><translation>mode vibreur</translation></message>
<message><source>victory</source><translation>victoire</translation></message>
<message><source>victory hand</source><translation>V de la victoire</translation></message>
<message><source>vicuña</source><translation>vicuña</translation></message>
<message><source>video</source><translation>vidéo</translation></message>
<message><source>video camera</source><translation>caméscope</translation></message>
<message><source>video game</source><translation>jeu vidéo</translation></message>
<message><source>videocassette</source><translation>cassette vidéo</translation></message>
<message><source>violin</source><translation>violon</translation></message>
<message><source>virus</source><translation>virus</translation></message>
<message><source>volcano</source><translation>volcan</translation></message>
<message><source>volleyball</source><translation>volley-ball</translation></message>
<message><source>volume</source><translation>haut-parleur</translation></message>
<message><source>vulcan salute</source><translation>salut vulcain</translation></message>
<message><source>waffle</source><translation>gaufre</translation></message>
<message><source>waning crescent moon</source><translation>lune décroissante</translation></message>
<message><source>waning gibbous moon</source><translation>lune gibbeuse décroissante</translation></message>
<message><source>warning</source><translation>symbole d’avertissement</translation></message>
<message><source>wastebasket</source><translation>corbeille à papiers</translation></message>
<message><source>watch</source><translation>montre</translation></message>
<message><source>water</source><translation>eau</translation></message>
<message><source>water buffalo</source><translation>buffle</translation></message>
<message><source>water closet</source><translation>WC</translation></message>
<message><source>water pistol</source><translation>pistolet à eau</translation></message>
<message><source>water wave</source><translation>vague</translation></message>
<message><source>watermelon</source><translation>pastèque</translation></message>
<message><source>waterpolo</source><translation>water-polo</translation></message>
<message><source>waving</source><translation>drapeau qui flotte au vent</translation></message>
<message><source>waving hand</source><translation>signe de la main</translation></message>
<message><source>wavy dash</source><translation>ligne ondulée</translation></message>
<message><source>waxing crescent moon</source><translation>lune croissante</translation></message>
<message><source>waxing gibbous moon</source><translation>lune gibbeuse croissante</translation></message>
<message><source>weapon</source><translation>arme</translation></message>
<message><source>weary cat</source><translation>chat fatigué</translation></message>
<message><source>weary face</source><translation>visage épuisé</translation></message>
<message><source>weather</source><translation>météo</translation></message>
<message><source>web</source><translation>toile</translation></message>
<message><source>wedding</source><translation>mariage</translation></message>
<message><source>weekend</source><translation>week-end</translation></message>
<message><source>weight</source><translation>poids</translation></message>
<message><source>whale</source><translation>baleine</translation></message>
<message><source>what</source><translation>quoi</translation></message>
<message><source>whatever</source><translation>peu importe</translation></message>
<message><source>wheel</source><translation>roue</translation></message>
<message><source>wheel of dharma</source><translation>roue du Dharma</translation></message>
<message><source>wheelchair</source><translation>fauteuil roulant</translation></message>
<message><source>wheelchair symbol</source><translation>symbole Accès handicapés</translation></message>
<message><source>white cane</source><translation>canne blanche</translation></message>
<message><source>white circle</source><translation>disque blanc</translation></message>
<message><source>white exclamation mark</source><translation>point d’exclamation blanc</translation></message>
<message><source>white flag</source><translation>drapeau blanc</translation></message>
<message><source>white flower</source><translation>fleur blanche</translation></message>
<message><source>white heart</source><translation>cœur blanc</translation></message>
<message><source>white large square</source><translation>grand carré blanc</translation></message>
<message><source>white medium square</source><translation>carré moyen blanc</translation></message>
<message><source>white medium-small square</source><translation>carré petit moyen blanc</translation></message>
<message><source>white question mark</source><translation>point d’interrogation blanc</translation></message>
<message><source>white small square</source><translation>petit carré blanc</translation></message>
<message><source>white square button</source><translation>carré blanc</translation></message>
<message><source>whoops</source><translation>oops</translation></message>
<message><source>wilted flower</source><translation>fleur fanée</translation></message>
<message><source>wind</source><translation>vent</translation></message>
<message><source>wind chime</source><translation>carillon éolien</translation></message>
<message><source>wind face</source><translation>vent avec visage</translation></message>
<message><source>window</source><translation>fenêtre</translation></message>
<message><source>wine glass</source><translation>verre de vin</translation></message>
<message><source>wing</source><translation>aile</translation></message>
<message><source>winking face</source><translation>visage faisant un clin d’œil</translation></message>
<message><source>winking face with tongue</source><translation>visage qui tire la langue et fait un clin d’œil</translation></message>
<message><source>wireless</source><translation>sans fil</translation></message>
<message><source>wise</source><translation>sage</translation></message>
<message><source>witch</source><translation>sorcière</translation></message>
<message><source>wlan</source><translation>wlan</translation></message>
<message><source>wolf</source><translation>loup</translation></message>
<message><source>woman</source><translation>femme</translation></message>
<message><source>woman and man holding hands</source><translation>femme et homme se tenant la main</translation></message>
<message><source>woman artist</source><translation>artiste femme</translation></message>
<message><source>woman astronaut</source><translation>astronaute femme</translation></message>
<message><source>woman biking</source><translation>cycliste femme</translation></message>
<message><source>woman bouncing ball</source><translation>femme avec ballon</translation></message>
<message><source>woman bowing</source><translation>femme qui s’incline</translation></message>
<message><source>woman cartwheeling</source><translation>femme faisant la roue</translation></message>
<message><source>woman climbing</source><translation>femme qui grimpe</translation></message>
<message><source>woman construction worker</source><translation>ouvrière du bâtiment</translation></message>
<message><source>woman cook</source><translation>cuisinière</translation></message>
<message><source>woman dancing</source><translation>danseuse</translation></message>
<message><source>woman detective</source><translation>détective femme</translation></message>
<message><source>woman elf</source><translation>elfe femme</translation></message>
<message><source>woman facepalming</source><translation>femme avec la paume sur le visage</translation></message>
<message><source>woman factory worker</source><translation>ouvrière</translation></message>
<message><source>woman fairy</source><translation>fée</translation></message>
<message><source>woman farmer</source><translation>fermière</translation></message>
<message><source>woman feeding baby</source><translation>femme allaitant un bébé</translation></message>
<message><source>woman firefighter</source><translation>pompier femme</translation></message>
<message><source>woman frowning</source><translation>femme fronçant les sourcils</translation></message>
<message><source>woman genie</source><translation>génie femme</translation></message>
<message><source>woman gesturing NO</source><translation>femme faisant un geste d’interdiction</translation></message>
<message><source>woman gesturing OK</source><translation>femme faisant un geste d’acceptation</translation></message>
<message><source>woman getting haircut</source><translation>femme qui se fait couper les cheveux</translation></message>
<message><source>woman getting massage</source><translation>femme qui se fait masser</translation></message>
<message><source>woman golfing</source><translation>golfeuse</translation></message>
<message><source>woman guard</source><translation>garde femme</translation></message>
<message><source>woman health worker</source><translation>professionnelle de la santé</translation></message>
<message><source>woman in lotus position</source><translation>femme dans la posture du lotus</translation></message>
<message><source>woman in manual wheelchair</source><translation>femme en fauteuil roulant manuel</translation></message>
<message><source>woman in manual wheelchair: facing right</source><translation>femme en fauteuil roulant manuel : vers la droite</translation></message>
<message><source>woman in motorized wheelchair</source><translation>femme en fauteuil motorisé</translation></message>
<message><source>woman in motorized wheelchair: facing right</source><translation>femme en fauteuil motorisé : vers la droite</translation></message>
<message><source>woman in steamy room</source><translation>femme au hammam</translation></message>
<message><source>woman in tuxedo</source><translation>femme en smoking</translation></message>
<message><source>woman judge</source><translation>juge femme</translation></message>
<message><source>woman juggling</source><translation>jongleuse</translation></message>
<message><source>woman kneeling</source><translation>femme à genoux</translation></message>
<message><source>woman kneeling: facing right</source><translation>femme à genoux : vers la droite</translation></message>
<message><source>woman lifting weights</source><translation>femme haltérophile</translation></message>
<message><source>woman mage</source><translation>mage femme</translation></message>
<message><source>woman mechanic</source><translation>mécanicienne</translation></message>
<message><source>woman mountain biking</source><translation>femme en VTT</translation></message>
<message><source>woman office worker</source><translation>employée de bureau</translation></message>
<message><source>woman pilot</source><translation>pilote femme</translation></message>
<message><source>woman playing handball</source><translation>handballeuse</translation></message>
<message><source>woman playing water polo</source><translation>joueuse de water-polo</translation></message>
<message><source>woman police officer</source><translation>policière</translation></message>
<message><source>woman pouting</source><translation>femme qui boude</translation></message>
<message><source>woman raising hand</source><translation>femme qui lève la main</translation></message>
<message><source>woman rowing boat</source><translation>rameuse dans une barque</translation></message>
<message><source>woman running</source><translation>femme qui court</translation></message>
<message><source>woman running: facing right</source><translation>femme qui court : vers la droite</translation></message>
<message><source>woman scientist</source><translation>scientifique femme</translation></message>
<message><source>woman shrugging</source><translation>femme qui hausse les épaules</translation></message>
<message><source>woman singer</source><translation>chanteuse</translation></message>
<message><source>woman standing</source><translation>femme debout</translation></message>
<message><source>woman student</source><translation>étudiante</translation></message>
<message><source>woman superhero</source><translation>super-héroïne</translation></message>
<message><source>woman supervillain</source><translation>super-vilain femme</translation></message>
<message><source>woman surfing</source><translation>surfeuse</translation></message>
<message><source>woman swimming</source><translation>nageuse</translation></message>
<message><source>woman teacher</source><translation>enseignante</translation></message>
<message><source>woman technologist</source><translation>informaticienne</translation></message>
<message><source>woman tipping hand</source><translation>femme paume vers le haut</translation></message>
<message><source>woman vampire</source><translation>vampire femme</translation></message>
<message><source>woman walking</source><translation>femme qui marche</translation></message>
<message><source>woman walking: facing right</source><translation>femme qui marche : vers la droite</translation></message>
<message><source>woman wearing turban</source><translation>femme en turban</translation></message>
<message><source>woman with headscarf</source><translation>femme avec foulard</translation></message>
<message><source>woman with veil</source><translation>femme avec voile</translation></message>
<message><source>woman with white cane</source><translation>femme avec canne blanche</translation></message>
<message><source>woman with white cane: facing right</source><translation>femme avec canne blanche : vers la droite</translation></message>
<message><source>woman zombie</source><translation>zombie femme</translation></message>
<message><source>woman: bald</source><translation>femme : chauve</translation></message>
<message><source>woman: beard</source><translation>femme barbue</translation></message>
<message><source>woman: blond hair</source><translation>femme blonde</translation></message>
<message><source>woman: curly hair</source><translation>femme : cheveux bouclés</translation></message>
<message><source>woman: red hair</source><translation>femme : cheveux roux</translation></message>
<message><source>woman: white hair</source><translation>femme : cheveux blancs</translation></message>
<message><source>woman’s boot</source><translation>botte de femme</translation></message>
<message><source>woman’s clothes</source><translation>vêtements de femme</translation></message>
<message><source>woman’s hat</source><translation>chapeau de femme</translation></message>
<message><source>woman’s sandal</source><translation>sandale de femme</translation></message>
<message><source>women</source><translation>femmes</translation></message>
<message><source>women holding hands</source><translation>deux femmes se tenant la main</translation></message>
<message><source>women with bunny ears</source><translation>femmes avec des oreilles de lapin</translation></message>
<message><source>women wrestling</source><translation>lutteuses</translation></message>
<message><source>women’s room</source><translation>symbole Toilettes femmes</translation></message>
<message><source>wood</source><translation>bois</translation></message>
<message><source>woozy</source><translation>tête qui tourne</translation></message>
<message><source>woozy face</source><translation>visage éméché</translation></message>
<message><source>world</source><translation>monde</translation></message>
<message><source>world map</source><translation>carte du monde</translation></message>
<message><source>worm</source><translation>lombric</translation></message>
<message><source>worried</source><translation>inquiet</translation></message>
<message><source>worried face</source><translation>visage inquiet</translation></message>
<message><source>wrap</source><translation>wrap</translation></message>
<message><source>wrapped gift</source><translation>cadeau</translation></message>
<message><source>wrench</source><translation>clé à molette</translation></message>
<message><source>writing hand</source><translation>main qui écrit</translation></message>
<message><source>x-ray</source><translation>radiographie</translation></message>
<message><source>yacht</source><translation>yacht</translation></message>
<message><source>yarn</source><translation>fil</translation></message>
<message><source>yawning face</source><translation>visage bâillant</translation></message>
<message><source>yay</source><translation>formidable</translation></message>
<message><source>yellow circle</source><translation>disque jaune</translation></message>
<message><source>yellow heart</source><translation>cœur jaune</translation></message>
<message><source>yellow square</source><translation>carré jaune</translation></message>
<message><source>yen banknote</source><translation>billet en yens</translation></message>
<message><source>yikes</source><translation>mince</translation></message>
<message><source>yin yang</source><translation>yin yang</translation></message>
<message><source>yo-yo</source><translation>yoyo</translation></message>
<message><source>young</source><translation>jeune</translation></message>
<message><source>yurt</source><translation>yourte</translation></message>
<message><source>yuèbǐng</source><translation>yuèbǐng</translation></message>
<message><source>zany face</source><translation>tête de fou</translation></message>
<message><source>zebra</source><translation>zèbre</translation></message>
<message><source>zero</source><translation>zéro</translation></message>
<message><source>zest</source><translation>zeste</translation></message>
<message><source>zipper-mouth face</source><translation>visage avec bouche fermeture éclair</translation></message>
<message><source>zodiac</source><translation>zodiaque</translation></message>
<message><source>zombie</source><translation>zombie</translation></message>
<message><source>zoo</source><translation>zoo</translation></message>
</context>
</TS>
