<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context><name>EmojiLocalisation</name>
<message><source>!</source><translation>!</translation></message>
<message><source>*</source><translation>*</translation></message>
<message><source>10:00</source><translation>10:00</translation></message>
<message><source>10:30</source><translation>10:30</translation></message>
<message><source>11:00</source><translation>11:00</translation></message>
<message><source>11:30</source><translation>11:30</translation></message>
<message><source>12:00</source><translation>12:00</translation></message>
<message><source>12:30</source><translation>12:30</translation></message>
<message><source>1:00</source><translation>1:00</translation></message>
<message><source>1:30</source><translation>1:30</translation></message>
<message><source>1st place medal</source><translation>medalla de oro</translation></message>
<message><source>2:00</source><translation>2:00</translation></message>
<message><source>2:30</source><translation>2:30</translation></message>
<message><source>2nd place medal</source><translation>medalla de plata</translation></message>
<message><source>3:00</source><translation>3:00</translation></message>
<message><source>3:30</source><translation>3:30</translation></message>
<message><source>3rd place medal</source><translation>medalla de bronce</translation></message>
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
<message><source>A button (blood type)</source><translation>grupo sanguíneo A</translation></message>
<message><source>AB button (blood type)</source><translation>grupo sanguíneo AB</translation></message>
<message><source>ATM sign</source><translation>señal de cajero automático</translation></message>
<message><source>Aquarius</source><translation>Acuario</translation></message>
<message><source>Aries</source><translation>Aries</translation></message>
<message><source>B button (blood type)</source><translation>grupo sanguíneo B</translation></message>
<message><source>BACK arrow</source><translation>flecha BACK</translation></message>
<message><source>CL button</source><translation>borrar</translation></message>
<message><source>COOL button</source><translation>botón COOL</translation></message>
<message><source>Cancer</source><translation>Cáncer</translation></message>
<message><source>Capricorn</source><translation>Capricornio</translation></message>
<message><source>Christmas tree</source><translation>árbol de Navidad</translation></message>
<message><source>END arrow</source><translation>flecha END</translation></message>
<message><source>FREE button</source><translation>botón FREE</translation></message>
<message><source>Gemini</source><translation>Géminis</translation></message>
<message><source>ID button</source><translation>símbolo de identificación</translation></message>
<message><source>Japanese castle</source><translation>castillo japonés</translation></message>
<message><source>Japanese dolls</source><translation>muñecas japonesas</translation></message>
<message><source>Japanese post office</source><translation>oficina de correos japonesa</translation></message>
<message><source>Japanese symbol for beginner</source><translation>símbolo japonés para principiante</translation></message>
<message><source>Japanese “acceptable” button</source><translation>ideograma japonés para "aceptable"</translation></message>
<message><source>Japanese “application” button</source><translation>ideograma japonés para "aplicación"</translation></message>
<message><source>Japanese “bargain” button</source><translation>ideograma japonés para "ganga"</translation></message>
<message><source>Japanese “congratulations” button</source><translation>ideograma japonés para "enhorabuena"</translation></message>
<message><source>Japanese “discount” button</source><translation>ideograma japonés para "descuento"</translation></message>
<message><source>Japanese “free of charge” button</source><translation>ideograma japonés para "gratis"</translation></message>
<message><source>Japanese “here” button</source><translation>ideograma japonés para "aquí"</translation></message>
<message><source>Japanese “monthly amount” button</source><translation>ideograma japonés para "cantidad mensual"</translation></message>
<message><source>Japanese “no vacancy” button</source><translation>ideograma japonés para "completo"</translation></message>
<message><source>Japanese “not free of charge” button</source><translation>ideograma japonés para "de pago"</translation></message>
<message><source>Japanese “open for business” button</source><translation>ideograma japonés para "abierto"</translation></message>
<message><source>Japanese “passing grade” button</source><translation>ideograma japonés para "aprobado"</translation></message>
<message><source>Japanese “prohibited” button</source><translation>ideograma japonés para "prohibido"</translation></message>
<message><source>Japanese “reserved” button</source><translation>ideograma japonés para "reservado"</translation></message>
<message><source>Japanese “secret” button</source><translation>ideograma japonés para "secreto"</translation></message>
<message><source>Japanese “service charge” button</source><translation>ideograma japonés para "de cortesía"</translation></message>
<message><source>Japanese “vacancy” button</source><translation>ideograma japonés para "vacante"</translation></message>
<message><source>Leo</source><translation>Leo</translation></message>
<message><source>Libra</source><translation>Libra</translation></message>
<message><source>Mrs. Claus</source><translation>Mamá Noel</translation></message>
<message><source>Mx Claus</source><translation>Noel</translation></message>
<message><source>NEW button</source><translation>botón NEW</translation></message>
<message><source>NG button</source><translation>botón NG</translation></message>
<message><source>O button (blood type)</source><translation>grupo sanguíneo tipo O</translation></message>
<message><source>OK button</source><translation>botón OK</translation></message>
<message><source>OK hand</source><translation>señal de aprobación con la mano</translation></message>
<message><source>ON! arrow</source><translation>flecha ON!</translation></message>
<message><source>Ophiuchus</source><translation>Ofiuco</translation></message>
<message><source>P button</source><translation>aparcamiento</translation></message>
<message><source>Pisces</source><translation>Piscis</translation></message>
<message><source>SOON arrow</source><translation>flecha SOON</translation></message>
<message><source>SOS button</source><translation>símbolo de socorro</translation></message>
<message><source>Sagittarius</source><translation>Sagitario</translation></message>
<message><source>Santa Claus</source><translation>Papá Noel</translation></message>
<message><source>Scorpio</source><translation>Escorpio</translation></message>
<message><source>Statue of Liberty</source><translation>Estatua de la Libertad</translation></message>
<message><source>T-Rex</source><translation>t-rex</translation></message>
<message><source>TOP arrow</source><translation>flecha TOP</translation></message>
<message><source>Taurus</source><translation>Tauro</translation></message>
<message><source>Tokyo tower</source><translation>Torre de Tokio</translation></message>
<message><source>UP! button</source><translation>botón UP!</translation></message>
<message><source>VS button</source><translation>botón VS</translation></message>
<message><source>Virgo</source><translation>Virgo</translation></message>
<message><source>ZZZ</source><translation>símbolo de sueño</translation></message>
<message><source>abacus</source><translation>ábaco</translation></message>
<message><source>abcd</source><translation>abcd</translation></message>
<message><source>absorbing</source><translation>absorbente</translation></message>
<message><source>acceptable</source><translation>aceptable</translation></message>
<message><source>access</source><translation>acceso</translation></message>
<message><source>accessibility</source><translation>accesibilidad</translation></message>
<message><source>accordion</source><translation>acordeón</translation></message>
<message><source>adhesive bandage</source><translation>tirita</translation></message>
<message><source>admission</source><translation>admisión</translation></message>
<message><source>admission tickets</source><translation>entradas</translation></message>
<message><source>adore</source><translation>adorar</translation></message>
<message><source>adult</source><translation>adulto</translation></message>
<message><source>aerial tramway</source><translation>teleférico</translation></message>
<message><source>aesculapius</source><translation>esculapio</translation></message>
<message><source>airplane</source><translation>avión</translation></message>
<message><source>airplane arrival</source><translation>avión aterrizando</translation></message>
<message><source>airplane departure</source><translation>avión despegando</translation></message>
<message><source>alarm</source><translation>alarma</translation></message>
<message><source>alarm clock</source><translation>reloj despertador</translation></message>
<message><source>alces</source><translation>alce</translation></message>
<message><source>alembic</source><translation>alambique</translation></message>
<message><source>alien</source><translation>alienígena</translation></message>
<message><source>alien monster</source><translation>monstruo alienígena</translation></message>
<message><source>alpaca</source><translation>alpaca</translation></message>
<message><source>alternation</source><translation>alternancia</translation></message>
<message><source>ambulance</source><translation>ambulancia</translation></message>
<message><source>american football</source><translation>balón de fútbol americano</translation></message>
<message><source>amoeba</source><translation>ameba</translation></message>
<message><source>amphora</source><translation>ánfora</translation></message>
<message><source>amulet</source><translation>amuleto</translation></message>
<message><source>anatomical</source><translation>anatomía</translation></message>
<message><source>anatomical heart</source><translation>corazón humano</translation></message>
<message><source>anchor</source><translation>ancla</translation></message>
<message><source>angelic</source><translation>angelical</translation></message>
<message><source>angels</source><translation>ángel</translation></message>
<message><source>anger</source><translation>enfadado</translation></message>
<message><source>anger symbol</source><translation>símbolo de enfado</translation></message>
<message><source>angry face</source><translation>cara enfadada</translation></message>
<message><source>angry face with horns</source><translation>cara enfadada con cuernos</translation></message>
<message><source>anguished face</source><translation>cara angustiada</translation></message>
<message><source>ant</source><translation>hormiga</translation></message>
<message><source>antenna</source><translation>antena</translation></message>
<message><source>antenna bars</source><translation>barras de cobertura</translation></message>
<message><source>anxious face with sweat</source><translation>cara con ansiedad y sudor</translation></message>
<message><source>application</source><translation>aplicación</translation></message>
<message><source>architect</source><translation>arquitecto</translation></message>
<message><source>arctic</source><translation>ártico</translation></message>
<message><source>arepa</source><translation>arepa</translation></message>
<message><source>aries</source><translation>aries</translation></message>
<message><source>arrow</source><translation>flecha</translation></message>
<message><source>articulated lorry</source><translation>camión articulado</translation></message>
<message><source>artist</source><translation>artista</translation></message>
<message><source>artist palette</source><translation>paleta de pintor</translation></message>
<message><source>arty</source><translation>arte</translation></message>
<message><source>assistance</source><translation>asistencia</translation></message>
<message><source>asterisk</source><translation>asterisco</translation></message>
<message><source>astonished face</source><translation>cara asombrada</translation></message>
<message><source>astronaut</source><translation>astronauta</translation></message>
<message><source>atom</source><translation>átomo</translation></message>
<message><source>atom symbol</source><translation>símbolo de átomo</translation></message>
<message><source>attraction</source><translation>atracción</translation></message>
<message><source>australia</source><translation>Australia</translation></message>
<message><source>auto rickshaw</source><translation>mototaxi</translation></message>
<message><source>automobile</source><translation>coche</translation></message>
<message><source>avocado</source><translation>aguacate</translation></message>
<message><source>axe</source><translation>hacha</translation></message>
<message><source>baby</source><translation>bebé</translation></message>
<message><source>baby angel</source><translation>bebé ángel</translation></message>
<message><source>baby bottle</source><translation>biberón</translation></message>
<message><source>baby chick</source><translation>pollito</translation></message>
<message><source>baby symbol</source><translation>señal de bebé</translation></message>
<message><source>backhand index pointing down</source><translation>dorso de mano con índice hacia abajo</translation></message>
<message><source>backhand index pointing left</source><translation>dorso de mano con índice a la izquierda</translation></message>
<message><source>backhand index pointing right</source><translation>dorso de mano con índice a la derecha</translation></message>
<message><source>backhand index pointing up</source><translation>dorso de mano con índice hacia arriba</translation></message>
<message><source>backpack</source><translation>mochila escolar</translation></message>
<message><source>bacon</source><translation>beicon</translation></message>
<message><source>bactrian</source><translation>bactriano</translation></message>
<message><source>badger</source><translation>tejón</translation></message>
<message><source>badminton</source><translation>bádminton</translation></message>
<message><source>bagel</source><translation>bagel</translation></message>
<message><source>baggage claim</source><translation>recogida de equipajes</translation></message>
<message><source>baguette bread</source><translation>baguete</translation></message>
<message><source>balance</source><translation>balanza</translation></message>
<message><source>balance scale</source><translation>balanza</translation></message>
<message><source>ball</source><translation>pelota</translation></message>
<message><source>ballet shoes</source><translation>zapatillas de ballet</translation></message>
<message><source>balloon</source><translation>globo</translation></message>
<message><source>ballot box with ballot</source><translation>urna con papeleta</translation></message>
<message><source>bamboo</source><translation>bambú</translation></message>
<message><source>banana</source><translation>plátano</translation></message>
<message><source>banjo</source><translation>banjo</translation></message>
<message><source>bank</source><translation>banco</translation></message>
<message><source>banknote</source><translation>billete de banco</translation></message>
<message><source>bar chart</source><translation>gráfico de barras</translation></message>
<message><source>barber</source><translation>barbería</translation></message>
<message><source>barber pole</source><translation>poste de barbero</translation></message>
<message><source>baseball</source><translation>béisbol</translation></message>
<message><source>basket</source><translation>cesta</translation></message>
<message><source>basketball</source><translation>balón de baloncesto</translation></message>
<message><source>bat</source><translation>murciélago</translation></message>
<message><source>bathtub</source><translation>bañera</translation></message>
<message><source>battery</source><translation>pila</translation></message>
<message><source>beach with umbrella</source><translation>playa y sombrilla</translation></message>
<message><source>beaming face with smiling eyes</source><translation>cara radiante con ojos sonrientes</translation></message>
<message><source>beans</source><translation>alubias</translation></message>
<message><source>bear</source><translation>oso</translation></message>
<message><source>beating heart</source><translation>corazón latiendo</translation></message>
<message><source>beaver</source><translation>castor</translation></message>
<message><source>bed</source><translation>cama</translation></message>
<message><source>beer</source><translation>cerveza</translation></message>
<message><source>beer mug</source><translation>jarra de cerveza</translation></message>
<message><source>beetle</source><translation>escarabajo</translation></message>
<message><source>bell</source><translation>campana</translation></message>
<message><source>bell pepper</source><translation>pimiento</translation></message>
<message><source>bell with slash</source><translation>campana con signo de cancelación</translation></message>
<message><source>bellhop bell</source><translation>timbre de hotel</translation></message>
<message><source>bento box</source><translation>caja de bento</translation></message>
<message><source>beverage box</source><translation>tetrabrik</translation></message>
<message><source>biceps</source><translation>bíceps</translation></message>
<message><source>bicycle</source><translation>bicicleta</translation></message>
<message><source>bicyclist</source><translation>ciclista</translation></message>
<message><source>bikini</source><translation>bikini</translation></message>
<message><source>bill</source><translation>billete</translation></message>
<message><source>billed cap</source><translation>gorra con visera</translation></message>
<message><source>billiard</source><translation>billar</translation></message>
<message><source>biohazard</source><translation>riesgo biológico</translation></message>
<message><source>biologist</source><translation>biólogo</translation></message>
<message><source>biology</source><translation>biología</translation></message>
<message><source>bird</source><translation>pájaro</translation></message>
<message><source>birthday cake</source><translation>tarta de cumpleaños</translation></message>
<message><source>bison</source><translation>bisonte</translation></message>
<message><source>biting lip</source><translation>labio mordido</translation></message>
<message><source>black</source><translation>negro</translation></message>
<message><source>black bird</source><translation>pájaro negro</translation></message>
<message><source>black cat</source><translation>gato negro</translation></message>
<message><source>black circle</source><translation>círculo negro</translation></message>
<message><source>black flag</source><translation>bandera negra</translation></message>
<message><source>black heart</source><translation>corazón negro</translation></message>
<message><source>black large square</source><translation>cuadrado negro grande</translation></message>
<message><source>black medium square</source><translation>cuadrado negro mediano</translation></message>
<message><source>black medium-small square</source><translation>cuadrado negro mediano-pequeño</translation></message>
<message><source>black nib</source><translation>pluma negra</translation></message>
<message><source>black small square</source><translation>cuadrado negro pequeño</translation></message>
<message><source>black square button</source><translation>botón cuadrado con borde negro</translation></message>
<message><source>blossom</source><translation>flor</translation></message>
<message><source>blouse</source><translation>blusa</translation></message>
<message><source>blowfish</source><translation>pez globo</translation></message>
<message><source>blue</source><translation>azul</translation></message>
<message><source>blue book</source><translation>libro azul</translation></message>
<message><source>blue circle</source><translation>círculo azul</translation></message>
<message><source>blue heart</source><translation>corazón azul</translation></message>
<message><source>blue square</source><translation>cuadrado azul</translation></message>
<message><source>blueberries</source><translation>arándanos</translation></message>
<message><source>boar</source><translation>jabalí</translation></message>
<message><source>boat</source><translation>barco</translation></message>
<message><source>boba</source><translation>boba</translation></message>
<message><source>body</source><translation>cuerpo</translation></message>
<message><source>bomb</source><translation>bomba</translation></message>
<message><source>bone</source><translation>hueso</translation></message>
<message><source>book</source><translation>libro</translation></message>
<message><source>bookmark</source><translation>marcapáginas</translation></message>
<message><source>bookmark tabs</source><translation>marcadores</translation></message>
<message><source>books</source><translation>libros</translation></message>
<message><source>boomerang</source><translation>bumerán</translation></message>
<message><source>boot</source><translation>bota</translation></message>
<message><source>bottle</source><translation>botella</translation></message>
<message><source>bottle with popping cork</source><translation>botella descorchada</translation></message>
<message><source>bouquet</source><translation>ramo de flores</translation></message>
<message><source>bow and arrow</source><translation>arco y flecha</translation></message>
<message><source>bowl with spoon</source><translation>cuenco con cuchara</translation></message>
<message><source>bowling</source><translation>bolos</translation></message>
<message><source>boxing glove</source><translation>guante de boxeo</translation></message>
<message><source>boy</source><translation>niño</translation></message>
<message><source>brain</source><translation>cerebro</translation></message>
<message><source>bread</source><translation>pan de molde</translation></message>
<message><source>breast-feeding</source><translation>lactancia materna</translation></message>
<message><source>brick</source><translation>ladrillo</translation></message>
<message><source>bridge at night</source><translation>puente de noche</translation></message>
<message><source>briefcase</source><translation>maletín</translation></message>
<message><source>briefs</source><translation>ropa interior</translation></message>
<message><source>bright button</source><translation>brillo alto</translation></message>
<message><source>brightness</source><translation>brillo</translation></message>
<message><source>bro</source><translation>persona adulta</translation></message>
<message><source>broccoli</source><translation>brócoli</translation></message>
<message><source>broken chain</source><translation>cadena rota</translation></message>
<message><source>broken heart</source><translation>corazón roto</translation></message>
<message><source>brontosaurus</source><translation>brontosaurio</translation></message>
<message><source>bronze</source><translation>bronce</translation></message>
<message><source>broom</source><translation>escoba</translation></message>
<message><source>brown</source><translation>marrón</translation></message>
<message><source>brown circle</source><translation>círculo marrón</translation></message>
<message><source>brown heart</source><translation>corazón marrón</translation></message>
<message><source>brown mushroom</source><translation>champiñón marrón</translation></message>
<message><source>brown square</source><translation>cuadrado marrón</translation></message>
<message><source>bubble</source><translation>burbuja</translation></message>
<message><source>bubble tea</source><translation>té de burbujas</translation></message>
<message><source>bubbles</source><translation>burbujas</translation></message>
<message><source>bucket</source><translation>cubo</translation></message>
<message><source>buffalo</source><translation>búfalo</translation></message>
<message><source>bug</source><translation>bicho</translation></message>
<message><source>building</source><translation>edificio</translation></message>
<message><source>building construction</source><translation>construcción</translation></message>
<message><source>bullet train</source><translation>tren bala</translation></message>
<message><source>bullseye</source><translation>diana</translation></message>
<message><source>bundle</source><translation>abrigo</translation></message>
<message><source>burrito</source><translation>burrito</translation></message>
<message><source>burro</source><translation>burro</translation></message>
<message><source>bus</source><translation>autobús</translation></message>
<message><source>bus stop</source><translation>parada de autobús</translation></message>
<message><source>bust</source><translation>busto</translation></message>
<message><source>bust in silhouette</source><translation>silueta de busto</translation></message>
<message><source>busts</source><translation>bustos</translation></message>
<message><source>busts in silhouette</source><translation>dos siluetas de bustos</translation></message>
<message><source>butter</source><translation>mantequilla</translation></message>
<message><source>butterfly</source><translation>mariposa</translation></message>
<message><source>cabbage</source><translation>col</translation></message>
<message><source>cableway</source><translation>cable</translation></message>
<message><source>cactus</source><translation>cactus</translation></message>
<message><source>cafe</source><translation>café</translation></message>
<message><source>calendar</source><translation>calendario</translation></message>
<message><source>call me hand</source><translation>mano haciendo el gesto de llamar</translation></message>
<message><source>camel</source><translation>dromedario</translation></message>
<message><source>camera</source><translation>cámara de fotos</translation></message>
<message><source>camera with flash</source><translation>cámara con flash</translation></message>
<message><source>camping</source><translation>camping</translation></message>
<message><source>cancel</source><translation>cancelar</translation></message>
<message><source>cancer</source><translation>cáncer</translation></message>
<message><source>candelabrum</source><translation>candelabro</translation></message>
<message><source>candle</source><translation>vela</translation></message>
<message><source>candy</source><translation>caramelo</translation></message>
<message><source>cane</source><translation>bastón</translation></message>
<message><source>canned food</source><translation>comida enlatada</translation></message>
<message><source>canoe</source><translation>canoa</translation></message>
<message><source>card file box</source><translation>archivador de tarjetas</translation></message>
<message><source>card index</source><translation>organizador de fichas</translation></message>
<message><source>card index dividers</source><translation>separador de fichas</translation></message>
<message><source>cardiology</source><translation>cardiología</translation></message>
<message><source>carousel horse</source><translation>caballo de tiovivo</translation></message>
<message><source>carp</source><translation>carpa</translation></message>
<message><source>carp streamer</source><translation>banderín de carpas</translation></message>
<message><source>carpentry saw</source><translation>sierra de carpintería</translation></message>
<message><source>carrot</source><translation>zanahoria</translation></message>
<message><source>cart</source><translation>carrito</translation></message>
<message><source>castle</source><translation>castillo europeo</translation></message>
<message><source>cat</source><translation>gato</translation></message>
<message><source>cat face</source><translation>cara de gato</translation></message>
<message><source>cat with tears of joy</source><translation>gato llorando de risa</translation></message>
<message><source>cat with wry smile</source><translation>gato haciendo una mueca</translation></message>
<message><source>celebration</source><translation>celebración</translation></message>
<message><source>cell</source><translation>celular</translation></message>
<message><source>cereal</source><translation>cereal</translation></message>
<message><source>chain</source><translation>cadena</translation></message>
<message><source>chains</source><translation>cadenas</translation></message>
<message><source>chair</source><translation>silla</translation></message>
<message><source>chapel</source><translation>iglesia</translation></message>
<message><source>chart decreasing</source><translation>gráfica de evolución descendente</translation></message>
<message><source>chart increasing</source><translation>gráfica de evolución ascendente</translation></message>
<message><source>chart increasing with yen</source><translation>mercado al alza</translation></message>
<message><source>check box with check</source><translation>casilla con marca de verificación</translation></message>
<message><source>check mark</source><translation>marca de verificación</translation></message>
<message><source>check mark button</source><translation>botón de marca de verificación</translation></message>
<message><source>checked</source><translation>marca</translation></message>
<message><source>cheese wedge</source><translation>cuña de queso</translation></message>
<message><source>chef</source><translation>cocinar</translation></message>
<message><source>chemist</source><translation>químico</translation></message>
<message><source>chequered flag</source><translation>bandera de cuadros</translation></message>
<message><source>cherries</source><translation>cerezas</translation></message>
<message><source>cherry blossom</source><translation>flor de cerezo</translation></message>
<message><source>chess pawn</source><translation>peón de ajedrez</translation></message>
<message><source>chestnut</source><translation>castaña</translation></message>
<message><source>chick</source><translation>pollito</translation></message>
<message><source>chicken</source><translation>gallina</translation></message>
<message><source>child</source><translation>infante</translation></message>
<message><source>children crossing</source><translation>niños cruzando</translation></message>
<message><source>chipmunk</source><translation>ardilla</translation></message>
<message><source>chocolate</source><translation>chocolate</translation></message>
<message><source>chocolate bar</source><translation>tableta de chocolate</translation></message>
<message><source>chopsticks</source><translation>palillos</translation></message>
<message><source>church</source><translation>iglesia</translation></message>
<message><source>cigarette</source><translation>cigarrillo</translation></message>
<message><source>cinema</source><translation>cine</translation></message>
<message><source>circle</source><translation>círculo</translation></message>
<message><source>circled M</source><translation>m en círculo</translation></message>
<message><source>circus</source><translation>circo</translation></message>
<message><source>circus tent</source><translation>carpa de circo</translation></message>
<message><source>cityscape</source><translation>paisaje urbano</translation></message>
<message><source>cityscape at dusk</source><translation>ciudad al atardecer</translation></message>
<message><source>clamp</source><translation>tornillo de banco</translation></message>
<message><source>clapper board</source><translation>claqueta</translation></message>
<message><source>clapping hands</source><translation>manos aplaudiendo</translation></message>
<message><source>classical</source><translation>clásico</translation></message>
<message><source>classical building</source><translation>edificio clásico</translation></message>
<message><source>claus</source><translation>claus</translation></message>
<message><source>clinking beer mugs</source><translation>jarras de cerveza brindando</translation></message>
<message><source>clinking glasses</source><translation>copas brindando</translation></message>
<message><source>clipboard</source><translation>portapapeles</translation></message>
<message><source>clock</source><translation>reloj</translation></message>
<message><source>clockwise</source><translation>flechas</translation></message>
<message><source>clockwise vertical arrows</source><translation>flechas verticales en sentido horario</translation></message>
<message><source>closed book</source><translation>libro cerrado</translation></message>
<message><source>closed mailbox with lowered flag</source><translation>buzón cerrado con la bandera bajada</translation></message>
<message><source>closed mailbox with raised flag</source><translation>buzón cerrado con la bandera levantada</translation></message>
<message><source>closed umbrella</source><translation>paraguas cerrado</translation></message>
<message><source>clothing</source><translation>ropa</translation></message>
<message><source>cloud</source><translation>nube</translation></message>
<message><source>cloud with lightning</source><translation>nube con rayo</translation></message>
<message><source>cloud with lightning and rain</source><translation>nube con rayo y lluvia</translation></message>
<message><source>cloud with rain</source><translation>nube con lluvia</translation></message>
<message><source>cloud with snow</source><translation>nube con nieve</translation></message>
<message><source>clown face</source><translation>cara de payaso</translation></message>
<message><source>club suit</source><translation>palo de tréboles</translation></message>
<message><source>clutch bag</source><translation>bolso de mano</translation></message>
<message><source>coat</source><translation>abrigo</translation></message>
<message><source>cockroach</source><translation>cucaracha</translation></message>
<message><source>cocktail</source><translation>cóctel</translation></message>
<message><source>cocktail glass</source><translation>copa de cóctel</translation></message>
<message><source>coconut</source><translation>coco</translation></message>
<message><source>coffin</source><translation>ataúd</translation></message>
<message><source>coin</source><translation>moneda</translation></message>
<message><source>colada</source><translation>piña colada</translation></message>
<message><source>cold</source><translation>frío</translation></message>
<message><source>cold face</source><translation>cara con frío</translation></message>
<message><source>collision</source><translation>colisión</translation></message>
<message><source>comet</source><translation>meteorito</translation></message>
<message><source>comic</source><translation>cómic</translation></message>
<message><source>compass</source><translation>brújula</translation></message>
<message><source>computer</source><translation>ordenador</translation></message>
<message><source>computer disk</source><translation>minidisc</translation></message>
<message><source>computer mouse</source><translation>ratón de ordenador</translation></message>
<message><source>concertina</source><translation>concertina</translation></message>
<message><source>conch</source><translation>concha</translation></message>
<message><source>condiment</source><translation>condimento</translation></message>
<message><source>confetti ball</source><translation>bola de confeti</translation></message>
<message><source>confounded face</source><translation>cara de frustración</translation></message>
<message><source>confused face</source><translation>cara de confusión</translation></message>
<message><source>confusing</source><translation>confuso</translation></message>
<message><source>conga</source><translation>conga</translation></message>
<message><source>construction</source><translation>obras</translation></message>
<message><source>construction worker</source><translation>profesional de la construcción</translation></message>
<message><source>control</source><translation>control</translation></message>
<message><source>control knobs</source><translation>ruedas de control</translation></message>
<message><source>convenience store</source><translation>tienda 24 horas</translation></message>
<message><source>cook</source><translation>chef</translation></message>
<message><source>cooked rice</source><translation>arroz cocido</translation></message>
<message><source>cookie</source><translation>galleta</translation></message>
<message><source>cooking</source><translation>cocinar</translation></message>
<message><source>copyright</source><translation>copyright</translation></message>
<message><source>coral</source><translation>coral</translation></message>
<message><source>corn</source><translation>maíz</translation></message>
<message><source>cosmetics</source><translation>cosmética</translation></message>
<message><source>couch and lamp</source><translation>sofá y lámpara</translation></message>
<message><source>counterclockwise arrows button</source><translation>flechas en sentido antihorario</translation></message>
<message><source>couple</source><translation>pareja</translation></message>
<message><source>couple with heart</source><translation>pareja enamorada</translation></message>
<message><source>couple with heart: man, man</source><translation>pareja enamorada: hombre y hombre</translation></message>
<message><source>couple with heart: woman, man</source><translation>pareja enamorada: mujer y hombre</translation></message>
<message><source>couple with heart: woman, woman</source><translation>pareja enamorada: mujer y mujer</translation></message>
<message><source>cow</source><translation>vaca</translation></message>
<message><source>cow face</source><translation>cara de vaca</translation></message>
<message><source>cowboy hat face</source><translation>cara con sombrero de vaquero</translation></message>
<message><source>crab</source><translation>cangrejo</translation></message>
<message><source>crayon</source><translation>lápiz de cera</translation></message>
<message><source>creature</source><translation>criatura</translation></message>
<message><source>credentials</source><translation>credenciales</translation></message>
<message><source>credit</source><translation>crédito</translation></message>
<message><source>credit card</source><translation>tarjeta de crédito</translation></message>
<message><source>crescent moon</source><translation>luna</translation></message>
<message><source>cricket</source><translation>grillo</translation></message>
<message><source>cricket game</source><translation>críquet</translation></message>
<message><source>crochet</source><translation>croché</translation></message>
<message><source>crocodile</source><translation>cocodrilo</translation></message>
<message><source>croissant</source><translation>cruasán</translation></message>
<message><source>cross</source><translation>cruz</translation></message>
<message><source>cross mark</source><translation>marca de cruz</translation></message>
<message><source>cross mark button</source><translation>botón con marca de cruz</translation></message>
<message><source>crossed fingers</source><translation>dedos cruzados</translation></message>
<message><source>crossed flags</source><translation>banderas cruzadas</translation></message>
<message><source>crossed swords</source><translation>espadas cruzadas</translation></message>
<message><source>crown</source><translation>corona</translation></message>
<message><source>crutch</source><translation>muleta</translation></message>
<message><source>cry</source><translation>triste</translation></message>
<message><source>crying cat</source><translation>gato llorando</translation></message>
<message><source>crying face</source><translation>cara llorando</translation></message>
<message><source>crystal</source><translation>cristal</translation></message>
<message><source>crystal ball</source><translation>bola de cristal</translation></message>
<message><source>cucumber</source><translation>pepino</translation></message>
<message><source>cup with straw</source><translation>vaso con pajita</translation></message>
<message><source>cupcake</source><translation>magdalena</translation></message>
<message><source>cupid</source><translation>cupido</translation></message>
<message><source>curious</source><translation>curioso</translation></message>
<message><source>curling stone</source><translation>piedra de curling</translation></message>
<message><source>curly loop</source><translation>bucle</translation></message>
<message><source>currency exchange</source><translation>cambio de divisas</translation></message>
<message><source>curry rice</source><translation>arroz con curry</translation></message>
<message><source>curving</source><translation>curva</translation></message>
<message><source>custard</source><translation>flan</translation></message>
<message><source>customs</source><translation>aduana</translation></message>
<message><source>cut of meat</source><translation>corte de carne</translation></message>
<message><source>cyan</source><translation>cián</translation></message>
<message><source>cyclone</source><translation>ciclón</translation></message>
<message><source>dagger</source><translation>puñal</translation></message>
<message><source>dance</source><translation>bailar</translation></message>
<message><source>dango</source><translation>dango</translation></message>
<message><source>dark skin tone</source><translation>tono de piel oscuro</translation></message>
<message><source>dashing away</source><translation>salir corriendo</translation></message>
<message><source>data</source><translation>gráfico</translation></message>
<message><source>deaf man</source><translation>hombre sordo</translation></message>
<message><source>deaf person</source><translation>persona sorda</translation></message>
<message><source>deaf woman</source><translation>mujer sorda</translation></message>
<message><source>death</source><translation>muerte</translation></message>
<message><source>deciduous tree</source><translation>árbol de hoja caduca</translation></message>
<message><source>decorative</source><translation>decoración</translation></message>
<message><source>deer</source><translation>ciervo</translation></message>
<message><source>delicious</source><translation>delicioso</translation></message>
<message><source>delivery truck</source><translation>camión de reparto</translation></message>
<message><source>demon</source><translation>demonio</translation></message>
<message><source>dental</source><translation>dental</translation></message>
<message><source>dentist</source><translation>dentista</translation></message>
<message><source>department store</source><translation>grandes almacenes</translation></message>
<message><source>derelict house</source><translation>casa abandonada</translation></message>
<message><source>desert</source><translation>desierto</translation></message>
<message><source>desert island</source><translation>isla desierta</translation></message>
<message><source>desktop computer</source><translation>ordenador de sobremesa</translation></message>
<message><source>detective</source><translation>detective</translation></message>
<message><source>devil</source><translation>cuernos</translation></message>
<message><source>dharma</source><translation>dharma</translation></message>
<message><source>dialog</source><translation>diálogo</translation></message>
<message><source>diamond</source><translation>rombo</translation></message>
<message><source>diamond suit</source><translation>palo de diamantes</translation></message>
<message><source>diamond with a dot</source><translation>rombo con pétalo</translation></message>
<message><source>dim button</source><translation>brillo bajo</translation></message>
<message><source>dinosaur</source><translation>tiranosaurio</translation></message>
<message><source>diplodocus</source><translation>diplodocus</translation></message>
<message><source>direction</source><translation>dirección</translation></message>
<message><source>disappear</source><translation>desaparecer</translation></message>
<message><source>disappointed</source><translation>decepcionado</translation></message>
<message><source>disappointed face</source><translation>cara decepcionada</translation></message>
<message><source>disco</source><translation>discoteca</translation></message>
<message><source>discount</source><translation>descuento</translation></message>
<message><source>disguised face</source><translation>cara disfrazada</translation></message>
<message><source>disk</source><translation>disco</translation></message>
<message><source>divide</source><translation>división</translation></message>
<message><source>diving mask</source><translation>máscara de buceo</translation></message>
<message><source>division</source><translation>división</translation></message>
<message><source>diya</source><translation>diya</translation></message>
<message><source>diya lamp</source><translation>lámpara de aceite</translation></message>
<message><source>dizzy</source><translation>símbolo de mareo</translation></message>
<message><source>dna</source><translation>adn</translation></message>
<message><source>doctor</source><translation>doctor</translation></message>
<message><source>document</source><translation>documento</translation></message>
<message><source>dodo</source><translation>dodo</translation></message>
<message><source>dog</source><translation>perro</translation></message>
<message><source>dog face</source><translation>cara de perro</translation></message>
<message><source>dollar</source><translation>dólar</translation></message>
<message><source>dollar banknote</source><translation>billete de dólar</translation></message>
<message><source>dolphin</source><translation>delfín</translation></message>
<message><source>donkey</source><translation>burro</translation></message>
<message><source>door</source><translation>puerta</translation></message>
<message><source>dotted line face</source><translation>cara con línea de puntos</translation></message>
<message><source>dotted six-pointed star</source><translation>estrella de seis puntas</translation></message>
<message><source>double curly loop</source><translation>bucle doble</translation></message>
<message><source>double exclamation mark</source><translation>exclamación doble</translation></message>
<message><source>doughnut</source><translation>dónut</translation></message>
<message><source>dove</source><translation>paloma</translation></message>
<message><source>down arrow</source><translation>flecha hacia abajo</translation></message>
<message><source>down-left arrow</source><translation>flecha hacia la esquina inferior izquierda</translation></message>
<message><source>down-right arrow</source><translation>flecha hacia la esquina inferior derecha</translation></message>
<message><source>downcast face with sweat</source><translation>cara con sudor frío</translation></message>
<message><source>downwards button</source><translation>triángulo hacia abajo</translation></message>
<message><source>dragon</source><translation>dragón</translation></message>
<message><source>dragon face</source><translation>cara de dragón</translation></message>
<message><source>dress</source><translation>vestido</translation></message>
<message><source>drink</source><translation>bebida</translation></message>
<message><source>drinking</source><translation>bar</translation></message>
<message><source>drooling face</source><translation>cara babeando</translation></message>
<message><source>drop of blood</source><translation>gota de sangre</translation></message>
<message><source>droplet</source><translation>gota</translation></message>
<message><source>drum</source><translation>tambor</translation></message>
<message><source>duck</source><translation>pato</translation></message>
<message><source>dumpling</source><translation>dumpling</translation></message>
<message><source>dvd</source><translation>disco DVD</translation></message>
<message><source>dynamite</source><translation>dinamita</translation></message>
<message><source>e-mail</source><translation>correo electrónico</translation></message>
<message><source>eagle</source><translation>águila</translation></message>
<message><source>ear</source><translation>oreja</translation></message>
<message><source>ear of corn</source><translation>espiga de maíz</translation></message>
<message><source>ear with hearing aid</source><translation>oreja con audífono</translation></message>
<message><source>east</source><translation>este</translation></message>
<message><source>edamame</source><translation>edamame</translation></message>
<message><source>egg</source><translation>huevo</translation></message>
<message><source>eggplant</source><translation>berenjena</translation></message>
<message><source>eight o’clock</source><translation>8 en punto</translation></message>
<message><source>eight-pointed star</source><translation>estrella de ocho puntas</translation></message>
<message><source>eight-spoked asterisk</source><translation>asterisco de ocho puntas</translation></message>
<message><source>eight-thirty</source><translation>ocho y media</translation></message>
<message><source>eject button</source><translation>expulsar</translation></message>
<message><source>elderly</source><translation>mayor</translation></message>
<message><source>electric plug</source><translation>enchufe eléctrico</translation></message>
<message><source>electrician</source><translation>electricista</translation></message>
<message><source>electricity</source><translation>electricidad</translation></message>
<message><source>electronic</source><translation>electrónico</translation></message>
<message><source>elephant</source><translation>elefante</translation></message>
<message><source>elevator</source><translation>ascensor</translation></message>
<message><source>eleven o’clock</source><translation>11 en punto</translation></message>
<message><source>eleven-thirty</source><translation>once y media</translation></message>
<message><source>elf</source><translation>elfo</translation></message>
<message><source>email</source><translation>correo electrónico</translation></message>
<message><source>emblem</source><translation>emblema</translation></message>
<message><source>emergency</source><translation>emergencia</translation></message>
<message><source>emotion</source><translation>emoción</translation></message>
<message><source>empty nest</source><translation>nido vacío</translation></message>
<message><source>engagement</source><translation>diamante</translation></message>
<message><source>enraged face</source><translation>cara cabreada</translation></message>
<message><source>entry</source><translation>entrar</translation></message>
<message><source>envelope</source><translation>sobre</translation></message>
<message><source>envelope with arrow</source><translation>sobre con flecha</translation></message>
<message><source>eruption</source><translation>erupción</translation></message>
<message><source>euro</source><translation>euro</translation></message>
<message><source>euro banknote</source><translation>billete de euro</translation></message>
<message><source>evergreen tree</source><translation>árbol de hoja perenne</translation></message>
<message><source>evil</source><translation>mal</translation></message>
<message><source>evolution</source><translation>evolución</translation></message>
<message><source>ewe</source><translation>oveja</translation></message>
<message><source>exclamation</source><translation>exclamación</translation></message>
<message><source>exclamation question mark</source><translation>exclamación e interrogación</translation></message>
<message><source>experiment</source><translation>experimento</translation></message>
<message><source>exploding</source><translation>explosión</translation></message>
<message><source>exploding head</source><translation>cabeza explotando</translation></message>
<message><source>explosive</source><translation>explosivo</translation></message>
<message><source>expressionless</source><translation>inexpresión</translation></message>
<message><source>expressionless face</source><translation>cara sin expresión</translation></message>
<message><source>extinction</source><translation>extinguido</translation></message>
<message><source>extraterrestrial</source><translation>extraterrestre</translation></message>
<message><source>eye</source><translation>ojo</translation></message>
<message><source>eye in speech bubble</source><translation>ojo en bocadillo de texto</translation></message>
<message><source>eyes</source><translation>ojos</translation></message>
<message><source>face</source><translation>cara</translation></message>
<message><source>face blowing a kiss</source><translation>cara lanzando un beso</translation></message>
<message><source>face exhaling</source><translation>cara exhalando</translation></message>
<message><source>face holding back tears</source><translation>cara aguantándose las lágrimas</translation></message>
<message><source>face in clouds</source><translation>cara entre las nubes</translation></message>
<message><source>face savoring food</source><translation>cara saboreando comida</translation></message>
<message><source>face screaming in fear</source><translation>cara gritando de miedo</translation></message>
<message><source>face vomiting</source><translation>cara vomitando</translation></message>
<message><source>face with bags under eyes</source><translation>cara con ojeras</translation></message>
<message><source>face with crossed-out eyes</source><translation>cara mareada</translation></message>
<message><source>face with diagonal mouth</source><translation>cara con boca diagonal</translation></message>
<message><source>face with hand over mouth</source><translation>cara con mano sobre la boca</translation></message>
<message><source>face with head-bandage</source><translation>cara con la cabeza vendada</translation></message>
<message><source>face with medical mask</source><translation>cara con mascarilla médica</translation></message>
<message><source>face with monocle</source><translation>cara con monóculo</translation></message>
<message><source>face with open eyes and hand over mouth</source><translation>cara con ojos abiertos y boca tapada</translation></message>
<message><source>face with open mouth</source><translation>cara con la boca abierta</translation></message>
<message><source>face with peeking eye</source><translation>cara tapada con ojo espiando</translation></message>
<message><source>face with raised eyebrow</source><translation>cara con ceja alzada</translation></message>
<message><source>face with rolling eyes</source><translation>cara con ojos en blanco</translation></message>
<message><source>face with spiral eyes</source><translation>cara con ojos en espiral</translation></message>
<message><source>face with steam from nose</source><translation>cara resoplando</translation></message>
<message><source>face with symbols on mouth</source><translation>cara con símbolos en la boca</translation></message>
<message><source>face with tears of joy</source><translation>cara llorando de risa</translation></message>
<message><source>face with thermometer</source><translation>cara con termómetro</translation></message>
<message><source>face with tongue</source><translation>cara sacando la lengua</translation></message>
<message><source>face without mouth</source><translation>cara sin boca</translation></message>
<message><source>facepalm</source><translation>facepalm</translation></message>
<message><source>factory</source><translation>fábrica</translation></message>
<message><source>factory worker</source><translation>profesional industrial</translation></message>
<message><source>fairy</source><translation>hada</translation></message>
<message><source>falafel</source><translation>falafel</translation></message>
<message><source>fallen leaf</source><translation>hojas caídas</translation></message>
<message><source>family</source><translation>familia</translation></message>
<message><source>family: adult, adult, child</source><translation>familia: adulto, adulto, niño</translation></message>
<message><source>family: adult, adult, child, child</source><translation>familia: adulto, adulto, niño, niño</translation></message>
<message><source>family: adult, child</source><translation>familia: adulto, niño</translation></message>
<message><source>family: adult, child, child</source><translation>familia: adulto, niño, niño</translation></message>
<message><source>family: man, boy</source><translation>familia: hombre y niño</translation></message>
<message><source>family: man, boy, boy</source><translation>familia: hombre, niño, niño</translation></message>
<message><source>family: man, girl</source><translation>familia: hombre y niña</translation></message>
<message><source>family: man, girl, boy</source><translation>familia: hombre, niña, niño</translation></message>
<message><source>family: man, girl, girl</source><translation>familia: hombre, niña, niña</translation></message>
<message><source>family: man, man, boy</source><translation>familia: hombre, hombre, niño</translation></message>
<message><source>family: man, man, boy, boy</source><translation>familia: hombre, hombre, niño, niño</translation></message>
<message><source>family: man, man, girl</source><translation>familia: hombre, hombre, niña</translation></message>
<message><source>family: man, man, girl, boy</source><translation>familia: hombre, hombre, niña, niño</translation></message>
<message><source>family: man, man, girl, girl</source><translation>familia: hombre, hombre, niña, niña</translation></message>
<message><source>family: man, woman, boy</source><translation>familia: hombre, mujer, niño</translation></message>
<message><source>family: man, woman, boy, boy</source><translation>familia: hombre, mujer, niño, niño</translation></message>
<message><source>family: man, woman, girl</source><translation>familia: hombre, mujer, niña</translation></message>
<message><source>family: man, woman, girl, boy</source><translation>familia: hombre, mujer, niña, niño</translation></message>
<message><source>family: man, woman, girl, girl</source><translation>familia: hombre, mujer, niña, niña</translation></message>
<message><source>family: woman, boy</source><translation>familia: mujer y niño</translation></message>
<message><source>family: woman, boy, boy</source><translation>familia: mujer, niño, niño</translation></message>
<message><source>family: woman, girl</source><translation>familia: mujer y niña</translation></message>
<message><source>family: woman, girl, boy</source><translation>familia: mujer, niña, niño</translation></message>
<message><source>family: woman, girl, girl</source><translation>familia: mujer, niña, niña</translation></message>
<message><source>family: woman, woman, boy</source><translation>familia: mujer, mujer, niño</translation></message>
<message><source>family: woman, woman, boy, boy</source><translation>familia: mujer, mujer, niño, niño</translation></message>
<message><source>family: woman, woman, girl</source><translation>familia: mujer, mujer, niña</translation></message>
<message><source>family: woman, woman, girl, boy</source><translation>familia: mujer, mujer, niña, niño</translation></message>
<message><source>family: woman, woman, girl, girl</source><translation>familia: mujer, mujer, niña, niña</translation></message>
<message><source>farmer</source><translation>profesional de la agricultura</translation></message>
<message><source>fast down button</source><translation>triángulo doble hacia abajo</translation></message>
<message><source>fast reverse button</source><translation>retroceso rápido</translation></message>
<message><source>fast up button</source><translation>triángulo doble hacia arriba</translation></message>
<message><source>fast-forward button</source><translation>avance rápido</translation></message>
<message><source>fax machine</source><translation>máquina de fax</translation></message>
<message><source>fear</source><translation>miedo</translation></message>
<message><source>fearful</source><translation>asustado</translation></message>
<message><source>fearful face</source><translation>cara asustada</translation></message>
<message><source>feather</source><translation>pluma</translation></message>
<message><source>female sign</source><translation>signo femenino</translation></message>
<message><source>ferris</source><translation>feria</translation></message>
<message><source>ferris wheel</source><translation>noria de feria</translation></message>
<message><source>ferry</source><translation>ferri</translation></message>
<message><source>festival</source><translation>festival</translation></message>
<message><source>field hockey</source><translation>hockey sobre hierba</translation></message>
<message><source>file</source><translation>archivo</translation></message>
<message><source>file cabinet</source><translation>archivador</translation></message>
<message><source>file folder</source><translation>carpeta de archivos</translation></message>
<message><source>film frames</source><translation>fotograma de película</translation></message>
<message><source>film projector</source><translation>proyector de cine</translation></message>
<message><source>finger</source><translation>dedo</translation></message>
<message><source>fingerprint</source><translation>huella dactilar</translation></message>
<message><source>fire</source><translation>fuego</translation></message>
<message><source>fire engine</source><translation>coche de bomberos</translation></message>
<message><source>fire extinguisher</source><translation>extintor</translation></message>
<message><source>firecracker</source><translation>petardo</translation></message>
<message><source>firefighter</source><translation>bombero</translation></message>
<message><source>fireworks</source><translation>fuegos artificiales</translation></message>
<message><source>first quarter moon</source><translation>luna en cuarto creciente</translation></message>
<message><source>first quarter moon face</source><translation>luna de cuarto creciente con cara</translation></message>
<message><source>fish</source><translation>pez</translation></message>
<message><source>fish cake with swirl</source><translation>pastel de pescado japonés</translation></message>
<message><source>fishing pole</source><translation>caña de pescar</translation></message>
<message><source>fist</source><translation>puño</translation></message>
<message><source>five o’clock</source><translation>5 en punto</translation></message>
<message><source>five-thirty</source><translation>cinco y media</translation></message>
<message><source>flag</source><translation>Bandera</translation></message>
<message><source>flag in hole</source><translation>banderín en hoyo</translation></message>
<message><source>flag: Afghanistan</source><translation>Bandera: Afganistán</translation></message>
<message><source>flag: Albania</source><translation>Bandera: Albania</translation></message>
<message><source>flag: Algeria</source><translation>Bandera: Argelia</translation></message>
<message><source>flag: American Samoa</source><translation>Bandera: Samoa Americana</translation></message>
<message><source>flag: Andorra</source><translation>Bandera: Andorra</translation></message>
<message><source>flag: Angola</source><translation>Bandera: Angola</translation></message>
<message><source>flag: Anguilla</source><translation>Bandera: Anguila</translation></message>
<message><source>flag: Antarctica</source><translation>Bandera: Antártida</translation></message>
<message><source>flag: Antigua &amp; Barbuda</source><translation>Bandera: Antigua y Barbuda</translation></message>
<message><source>flag: Argentina</source><translation>Bandera: Argentina</translation></message>
<message><source>flag: Armenia</source><translation>Bandera: Armenia</translation></message>
<message><source>flag: Aruba</source><translation>Bandera: Aruba</translation></message>
<message><source>flag: Ascension Island</source><translation>Bandera: Isla de la Ascensión</translation></message>
<message><source>flag: Australia</source><translation>Bandera: Australia</translation></message>
<message><source>flag: Austria</source><translation>Bandera: Austria</translation></message>
<message><source>flag: Azerbaijan</source><translation>Bandera: Azerbaiyán</translation></message>
<message><source>flag: Bahamas</source><translation>Bandera: Bahamas</translation></message>
<message><source>flag: Bahrain</source><translation>Bandera: Baréin</translation></message>
<message><source>flag: Bangladesh</source><translation>Bandera: Bangladés</translation></message>
<message><source>flag: Barbados</source><translation>Bandera: Barbados</translation></message>
<message><source>flag: Belarus</source><translation>Bandera: Bielorrusia</translation></message>
<message><source>flag: Belgium</source><translation>Bandera: Bélgica</translation></message>
<message><source>flag: Belize</source><translation>Bandera: Belice</translation></message>
<message><source>flag: Benin</source><translation>Bandera: Benín</translation></message>
<message><source>flag: Bermuda</source><translation>Bandera: Bermudas</translation></message>
<message><source>flag: Bhutan</source><translation>Bandera: Bután</translation></message>
<message><source>flag: Bolivia</source><translation>Bandera: Bolivia</translation></message>
<message><source>flag: Bosnia &amp; Herzegovina</source><translation>Bandera: Bosnia y Herzegovina</translation></message>
<message><source>flag: Botswana</source><translation>Bandera: Botsuana</translation></message>
<message><source>flag: Bouvet Island</source><translation>Bandera: Isla Bouvet</translation></message>
<message><source>flag: Brazil</source><translation>Bandera: Brasil</translation></message>
<message><source>flag: British Indian Ocean Territory</source><translation>Bandera: Territorio Británico del Océano Índico</translation></message>
<message><source>flag: British Virgin Islands</source><translation>Bandera: Islas Vírgenes Británicas</translation></message>
<message><source>flag: Brunei</source><translation>Bandera: Brunéi</translation></message>
<message><source>flag: Bulgaria</source><translation>Bandera: Bulgaria</translation></message>
<message><source>flag: Burkina Faso</source><translation>Bandera: Burkina Faso</translation></message>
<message><source>flag: Burundi</source><translation>Bandera: Burundi</translation></message>
<message><source>flag: Cambodia</source><translation>Bandera: Camboya</translation></message>
<message><source>flag: Cameroon</source><translation>Bandera: Camerún</translation></message>
<message><source>flag: Canada</source><translation>Bandera: Canadá</translation></message>
<message><source>flag: Canary Islands</source><translation>Bandera: Canarias</translation></message>
<message><source>flag: Cape Verde</source><translation>Bandera: Cabo Verde</translation></message>
<message><source>flag: Caribbean Netherlands</source><translation>Bandera: Caribe neerlandés</translation></message>
<message><source>flag: Cayman Islands</source><translation>Bandera: Islas Caimán</translation></message>
<message><source>flag: Central African Republic</source><translation>Bandera: República Centroafricana</translation></message>
<message><source>flag: Ceuta &amp; Melilla</source><translation>Bandera: Ceuta y Melilla</translation></message>
<message><source>flag: Chad</source><translation>Bandera: Chad</translation></message>
<message><source>flag: Chile</source><translation>Bandera: Chile</translation></message>
<message><source>flag: China</source><translation>Bandera: China</translation></message>
<message><source>flag: Christmas Island</source><translation>Bandera: Isla de Navidad</translation></message>
<message><source>flag: Clipperton Island</source><translation>Bandera: Isla Clipperton</translation></message>
<message><source>flag: Cocos (Keeling) Islands</source><translation>Bandera: Islas Cocos</translation></message>
<message><source>flag: Colombia</source><translation>Bandera: Colombia</translation></message>
<message><source>flag: Comoros</source><translation>Bandera: Comoras</translation></message>
<message><source>flag: Congo - Brazzaville</source><translation>Bandera: Congo</translation></message>
<message><source>flag: Congo - Kinshasa</source><translation>Bandera: República Democrática del Congo</translation></message>
<message><source>flag: Cook Islands</source><translation>Bandera: Islas Cook</translation></message>
<message><source>flag: Costa Rica</source><translation>Bandera: Costa Rica</translation></message>
<message><source>flag: Croatia</source><translation>Bandera: Croacia</translation></message>
<message><source>flag: Cuba</source><translation>Bandera: Cuba</translation></message>
<message><source>flag: Curaçao</source><translation>Bandera: Curazao</translation></message>
<message><source>flag: Cyprus</source><translation>Bandera: Chipre</translation></message>
<message><source>flag: Czechia</source><translation>Bandera: Chequia</translation></message>
<message><source>flag: Côte d’Ivoire</source><translation>Bandera: Côte d’Ivoire</translation></message>
<message><source>flag: Denmark</source><translation>Bandera: Dinamarca</translation></message>
<message><source>flag: Diego Garcia</source><translation>Bandera: Diego García</translation></message>
<message><source>flag: Djibouti</source><translation>Bandera: Yibuti</translation></message>
<message><source>flag: Dominica</source><translation>Bandera: Dominica</translation></message>
<message><source>flag: Dominican Republic</source><translation>Bandera: República Dominicana</translation></message>
<message><source>flag: Ecuador</source><translation>Bandera: Ecuador</translation></message>
<message><source>flag: Egypt</source><translation>Bandera: Egipto</translation></message>
<message><source>flag: El Salvador</source><translation>Bandera: El Salvador</translation></message>
<message><source>flag: England</source><translation>Bandera: Inglaterra</translation></message>
<message><source>flag: Equatorial Guinea</source><translation>Bandera: Guinea Ecuatorial</translation></message>
<message><source>flag: Eritrea</source><translation>Bandera: Eritrea</translation></message>
<message><source>flag: Estonia</source><translation>Bandera: Estonia</translation></message>
<message><source>flag: Eswatini</source><translation>Bandera: Esuatini</translation></message>
<message><source>flag: Ethiopia</source><translation>Bandera: Etiopía</translation></message>
<message><source>flag: European Union</source><translation>Bandera: Unión Europea</translation></message>
<message><source>flag: Falkland Islands</source><translation>Bandera: Islas Malvinas</translation></message>
<message><source>flag: Faroe Islands</source><translation>Bandera: Islas Feroe</translation></message>
<message><source>flag: Fiji</source><translation>Bandera: Fiyi</translation></message>
<message><source>flag: Finland</source><translation>Bandera: Finlandia</translation></message>
<message><source>flag: France</source><translation>Bandera: Francia</translation></message>
<message><source>flag: French Guiana</source><translation>Bandera: Guayana Francesa</translation></message>
<message><source>flag: French Polynesia</source><translation>Bandera: Polinesia Francesa</translation></message>
<message><source>flag: French Southern Territories</source><translation>Bandera: Territorios Australes Franceses</translation></message>
<message><source>flag: Gabon</source><translation>Bandera: Gabón</translation></message>
<message><source>flag: Gambia</source><translation>Bandera: Gambia</translation></message>
<message><source>flag: Georgia</source><translation>Bandera: Georgia</translation></message>
<message><source>flag: Germany</source><translation>Bandera: Alemania</translation></message>
<message><source>flag: Ghana</source><translation>Bandera: Ghana</translation></message>
<message><source>flag: Gibraltar</source><translation>Bandera: Gibraltar</translation></message>
<message><source>flag: Greece</source><translation>Bandera: Grecia</translation></message>
<message><source>flag: Greenland</source><translation>Bandera: Groenlandia</translation></message>
<message><source>flag: Grenada</source><translation>Bandera: Granada</translation></message>
<message><source>flag: Guadeloupe</source><translation>Bandera: Guadalupe</translation></message>
<message><source>flag: Guam</source><translation>Bandera: Guam</translation></message>
<message><source>flag: Guatemala</source><translation>Bandera: Guatemala</translation></message>
<message><source>flag: Guernsey</source><translation>Bandera: Guernesey</translation></message>
<message><source>flag: Guinea</source><translation>Bandera: Guinea</translation></message>
<message><source>flag: Guinea-Bissau</source><translation>Bandera: Guinea-Bisáu</translation></message>
<message><source>flag: Guyana</source><translation>Bandera: Guyana</translation></message>
<message><source>flag: Haiti</source><translation>Bandera: Haití</translation></message>
<message><source>flag: Heard &amp; McDonald Islands</source><translation>Bandera: Islas Heard y McDonald</translation></message>
<message><source>flag: Honduras</source><translation>Bandera: Honduras</translation></message>
<message><source>flag: Hong Kong SAR China</source><translation>Bandera: RAE de Hong Kong (China)</translation></message>
<message><source>flag: Hungary</source><translation>Bandera: Hungría</translation></message>
<message><source>flag: Iceland</source><translation>Bandera: Islandia</translation></message>
<message><source>flag: India</source><translation>Bandera: India</translation></message>
<message><source>flag: Indonesia</source><translation>Bandera: Indonesia</translation></message>
<message><source>flag: Iran</source><translation>Bandera: Irán</translation></message>
<message><source>flag: Iraq</source><translation>Bandera: Irak</translation></message>
<message><source>flag: Ireland</source><translation>Bandera: Irlanda</translation></message>
<message><source>flag: Isle of Man</source><translation>Bandera: Isla de Man</translation></message>
<message><source>flag: Israel</source><translation>Bandera: Israel</translation></message>
<message><source>flag: Italy</source><translation>Bandera: Italia</translation></message>
<message><source>flag: Jamaica</source><translation>Bandera: Jamaica</translation></message>
<message><source>flag: Japan</source><translation>Bandera: Japón</translation></message>
<message><source>flag: Jersey</source><translation>Bandera: Jersey</translation></message>
<message><source>flag: Jordan</source><translation>Bandera: Jordania</translation></message>
<message><source>flag: Kazakhstan</source><translation>Bandera: Kazajistán</translation></message>
<message><source>flag: Kenya</source><translation>Bandera: Kenia</translation></message>
<message><source>flag: Kiribati</source><translation>Bandera: Kiribati</translation></message>
<message><source>flag: Kosovo</source><translation>Bandera: Kosovo</translation></message>
<message><source>flag: Kuwait</source><translation>Bandera: Kuwait</translation></message>
<message><source>flag: Kyrgyzstan</source><translation>Bandera: Kirguistán</translation></message>
<message><source>flag: Laos</source><translation>Bandera: Laos</translation></message>
<message><source>flag: Latvia</source><translation>Bandera: Letonia</translation></message>
<message><source>flag: Lebanon</source><translation>Bandera: Líbano</translation></message>
<message><source>flag: Lesotho</source><translation>Bandera: Lesoto</translation></message>
<message><source>flag: Liberia</source><translation>Bandera: Liberia</translation></message>
<message><source>flag: Libya</source><translation>Bandera: Libia</translation></message>
<message><source>flag: Liechtenstein</source><translation>Bandera: Liechtenstein</translation></message>
<message><source>flag: Lithuania</source><translation>Bandera: Lituania</translation></message>
<message><source>flag: Luxembourg</source><translation>Bandera: Luxemburgo</translation></message>
<message><source>flag: Macao SAR China</source><translation>Bandera: RAE de Macao (China)</translation></message>
<message><source>flag: Madagascar</source><translation>Bandera: Madagascar</translation></message>
<message><source>flag: Malawi</source><translation>Bandera: Malaui</translation></message>
<message><source>flag: Malaysia</source><translation>Bandera: Malasia</translation></message>
<message><source>flag: Maldives</source><translation>Bandera: Maldivas</translation></message>
<message><source>flag: Mali</source><translation>Bandera: Mali</translation></message>
<message><source>flag: Malta</source><translation>Bandera: Malta</translation></message>
<message><source>flag: Marshall Islands</source><translation>Bandera: Islas Marshall</translation></message>
<message><source>flag: Martinique</source><translation>Bandera: Martinica</translation></message>
<message><source>flag: Mauritania</source><translation>Bandera: Mauritania</translation></message>
<message><source>flag: Mauritius</source><translation>Bandera: Mauricio</translation></message>
<message><source>flag: Mayotte</source><translation>Bandera: Mayotte</translation></message>
<message><source>flag: Mexico</source><translation>Bandera: México</translation></message>
<message><source>flag: Micronesia</source><translation>Bandera: Micronesia</translation></message>
<message><source>flag: Moldova</source><translation>Bandera: Moldavia</translation></message>
<message><source>flag: Monaco</source><translation>Bandera: Mónaco</translation></message>
<message><source>flag: Mongolia</source><translation>Bandera: Mongolia</translation></message>
<message><source>flag: Montenegro</source><translation>Bandera: Montenegro</translation></message>
<message><source>flag: Montserrat</source><translation>Bandera: Montserrat</translation></message>
<message><source>flag: Morocco</source><translation>Bandera: Marruecos</translation></message>
<message><source>flag: Mozambique</source><translation>Bandera: Mozambique</translation></message>
<message><source>flag: Myanmar (Burma)</source><translation>Bandera: Myanmar (Birmania)</translation></message>
<message><source>flag: Namibia</source><translation>Bandera: Namibia</translation></message>
<message><source>flag: Nauru</source><translation>Bandera: Nauru</translation></message>
<message><source>flag: Nepal</source><translation>Bandera: Nepal</translation></message>
<message><source>flag: Netherlands</source><translation>Bandera: Países Bajos</translation></message>
<message><source>flag: New Caledonia</source><translation>Bandera: Nueva Caledonia</translation></message>
<message><source>flag: New Zealand</source><translation>Bandera: Nueva Zelanda</translation></message>
<message><source>flag: Nicaragua</source><translation>Bandera: Nicaragua</translation></message>
<message><source>flag: Niger</source><translation>Bandera: Níger</translation></message>
<message><source>flag: Nigeria</source><translation>Bandera: Nigeria</translation></message>
<message><source>flag: Niue</source><translation>Bandera: Niue</translation></message>
<message><source>flag: Norfolk Island</source><translation>Bandera: Isla Norfolk</translation></message>
<message><source>flag: North Korea</source><translation>Bandera: Corea del Norte</translation></message>
<message><source>flag: North Macedonia</source><translation>Bandera: Macedonia del Norte</translation></message>
<message><source>flag: Northern Mariana Islands</source><translation>Bandera: Islas Marianas del Norte</translation></message>
<message><source>flag: Norway</source><translation>Bandera: Noruega</translation></message>
<message><source>flag: Oman</source><translation>Bandera: Omán</translation></message>
<message><source>flag: Pakistan</source><translation>Bandera: Pakistán</translation></message>
<message><source>flag: Palau</source><translation>Bandera: Palaos</translation></message>
<message><source>flag: Palestinian Territories</source><translation>Bandera: Territorios Palestinos</translation></message>
<message><source>flag: Panama</source><translation>Bandera: Panamá</translation></message>
<message><source>flag: Papua New Guinea</source><translation>Bandera: Papúa Nueva Guinea</translation></message>
<message><source>flag: Paraguay</source><translation>Bandera: Paraguay</translation></message>
<message><source>flag: Peru</source><translation>Bandera: Perú</translation></message>
<message><source>flag: Philippines</source><translation>Bandera: Filipinas</translation></message>
<message><source>flag: Pitcairn Islands</source><translation>Bandera: Islas Pitcairn</translation></message>
<message><source>flag: Poland</source><translation>Bandera: Polonia</translation></message>
<message><source>flag: Portugal</source><translation>Bandera: Portugal</translation></message>
<message><source>flag: Puerto Rico</source><translation>Bandera: Puerto Rico</translation></message>
<message><source>flag: Qatar</source><translation>Bandera: Catar</translation></message>
<message><source>flag: Romania</source><translation>Bandera: Rumanía</translation></message>
<message><source>flag: Russia</source><translation>Bandera: Rusia</translation></message>
<message><source>flag: Rwanda</source><translation>Bandera: Ruanda</translation></message>
<message><source>flag: Réunion</source><translation>Bandera: Reunión</translation></message>
<message><source>flag: Samoa</source><translation>Bandera: Samoa</translation></message>
<message><source>flag: San Marino</source><translation>Bandera: San Marino</translation></message>
<message><source>flag: Sark</source><translation>Bandera: Sark</translation></message>
<message><source>flag: Saudi Arabia</source><translation>Bandera: Arabia Saudí</translation></message>
<message><source>flag: Scotland</source><translation>Bandera: Escocia</translation></message>
<message><source>flag: Senegal</source><translation>Bandera: Senegal</translation></message>
<message><source>flag: Serbia</source><translation>Bandera: Serbia</translation></message>
<message><source>flag: Seychelles</source><translation>Bandera: Seychelles</translation></message>
<message><source>flag: Sierra Leone</source><translation>Bandera: Sierra Leona</translation></message>
<message><source>flag: Singapore</source><translation>Bandera: Singapur</translation></message>
<message><source>flag: Sint Maarten</source><translation>Bandera: Sint Maarten</translation></message>
<message><source>flag: Slovakia</source><translation>Bandera: Eslovaquia</translation></message>
<message><source>flag: Slovenia</source><translation>Bandera: Eslovenia</translation></message>
<message><source>flag: Solomon Islands</source><translation>Bandera: Islas Salomón</translation></message>
<message><source>flag: Somalia</source><translation>Bandera: Somalia</translation></message>
<message><source>flag: South Africa</source><translation>Bandera: Sudáfrica</translation></message>
<message><source>flag: South Georgia &amp; South Sandwich Islands</source><translation>Bandera: Islas Georgia del Sur y Sandwich del Sur</translation></message>
<message><source>flag: South Korea</source><translation>Bandera: Corea del Sur</translation></message>
<message><source>flag: South Sudan</source><translation>Bandera: Sudán del Sur</translation></message>
<message><source>flag: Spain</source><translation>Bandera: España</translation></message>
<message><source>flag: Sri Lanka</source><translation>Bandera: Sri Lanka</translation></message>
<message><source>flag: St. Barthélemy</source><translation>Bandera: San Bartolomé</translation></message>
<message><source>flag: St. Helena</source><translation>Bandera: Santa Elena</translation></message>
<message><source>flag: St. Kitts &amp; Nevis</source><translation>Bandera: San Cristóbal y Nieves</translation></message>
<message><source>flag: St. Lucia</source><translation>Bandera: Santa Lucía</translation></message>
<message><source>flag: St. Martin</source><translation>Bandera: San Martín</translation></message>
<message><source>flag: St. Pierre &amp; Miquelon</source><translation>Bandera: San Pedro y Miquelón</translation></message>
<message><source>flag: St. Vincent &amp; Grenadines</source><translation>Bandera: San Vicente y las Granadinas</translation></message>
<message><source>flag: Sudan</source><translation>Bandera: Sudán</translation></message>
<message><source>flag: Suriname</source><translation>Bandera: Surinam</translation></message>
<message><source>flag: Svalbard &amp; Jan Mayen</source><translation>Bandera: Svalbard y Jan Mayen</translation></message>
<message><source>flag: Sweden</source><translation>Bandera: Suecia</translation></message>
<message><source>flag: Switzerland</source><translation>Bandera: Suiza</translation></message>
<message><source>flag: Syria</source><translation>Bandera: Siria</translation></message>
<message><source>flag: São Tomé &amp; Príncipe</source><translation>Bandera: Santo Tomé y Príncipe</translation></message>
<message><source>flag: Taiwan</source><translation>Bandera: Taiwán</translation></message>
<message><source>flag: Tajikistan</source><translation>Bandera: Tayikistán</translation></message>
<message><source>flag: Tanzania</source><translation>Bandera: Tanzania</translation></message>
<message><source>flag: Thailand</source><translation>Bandera: Tailandia</translation></message>
<message><source>flag: Timor-Leste</source><translation>Bandera: Timor-Leste</translation></message>
<message><source>flag: Togo</source><translation>Bandera: Togo</translation></message>
<message><source>flag: Tokelau</source><translation>Bandera: Tokelau</translation></message>
<message><source>flag: Tonga</source><translation>Bandera: Tonga</translation></message>
<message><source>flag: Trinidad &amp; Tobago</source><translation>Bandera: Trinidad y Tobago</translation></message>
<message><source>flag: Tristan da Cunha</source><translation>Bandera: Tristán de Acuña</translation></message>
<message><source>flag: Tunisia</source><translation>Bandera: Túnez</translation></message>
<message><source>flag: Turkmenistan</source><translation>Bandera: Turkmenistán</translation></message>
<message><source>flag: Turks &amp; Caicos Islands</source><translation>Bandera: Islas Turcas y Caicos</translation></message>
<message><source>flag: Tuvalu</source><translation>Bandera: Tuvalu</translation></message>
<message><source>flag: Türkiye</source><translation>Bandera: Turquía</translation></message>
<message><source>flag: U.S. Outlying Islands</source><translation>Bandera: Islas menores alejadas de EE. UU.</translation></message>
<message><source>flag: U.S. Virgin Islands</source><translation>Bandera: Islas Vírgenes de EE. UU.</translation></message>
<message><source>flag: Uganda</source><translation>Bandera: Uganda</translation></message>
<message><source>flag: Ukraine</source><translation>Bandera: Ucrania</translation></message>
<message><source>flag: United Arab Emirates</source><translation>Bandera: Emiratos Árabes Unidos</translation></message>
<message><source>flag: United Kingdom</source><translation>Bandera: Reino Unido</translation></message>
<message><source>flag: United Nations</source><translation>Bandera: Naciones Unidas</translation></message>
<message><source>flag: United States</source><translation>Bandera: Estados Unidos</translation></message>
<message><source>flag: Uruguay</source><translation>Bandera: Uruguay</translation></message>
<message><source>flag: Uzbekistan</source><translation>Bandera: Uzbekistán</translation></message>
<message><source>flag: Vanuatu</source><translation>Bandera: Vanuatu</translation></message>
<message><source>flag: Vatican City</source><translation>Bandera: Ciudad del Vaticano</translation></message>
<message><source>flag: Venezuela</source><translation>Bandera: Venezuela</translation></message>
<message><source>flag: Vietnam</source><translation>Bandera: Vietnam</translation></message>
<message><source>flag: Wales</source><translation>Bandera: Gales</translation></message>
<message><source>flag: Wallis &amp; Futuna</source><translation>Bandera: Wallis y Futuna</translation></message>
<message><source>flag: Western Sahara</source><translation>Bandera: Sáhara Occidental</translation></message>
<message><source>flag: Yemen</source><translation>Bandera: Yemen</translation></message>
<message><source>flag: Zambia</source><translation>Bandera: Zambia</translation></message>
<message><source>flag: Zimbabwe</source><translation>Bandera: Zimbabue</translation></message>
<message><source>flag: Åland Islands</source><translation>Bandera: Islas Aland</translation></message>
<message><source>flamingo</source><translation>flamenco</translation></message>
<message><source>flash</source><translation>flash</translation></message>
<message><source>flashlight</source><translation>linterna</translation></message>
<message><source>flat shoe</source><translation>bailarina</translation></message>
<message><source>flatbread</source><translation>pan sin levadura</translation></message>
<message><source>fleur-de-lis</source><translation>flor de lis</translation></message>
<message><source>flexed biceps</source><translation>bíceps flexionado</translation></message>
<message><source>floppy disk</source><translation>disquete</translation></message>
<message><source>flower</source><translation>flor</translation></message>
<message><source>flower playing cards</source><translation>cartas de flores</translation></message>
<message><source>fluctuate</source><translation>fluctuar</translation></message>
<message><source>flushed face</source><translation>cara sonrojada</translation></message>
<message><source>flute</source><translation>flauta</translation></message>
<message><source>fly</source><translation>mosca</translation></message>
<message><source>flying disc</source><translation>disco volador</translation></message>
<message><source>flying saucer</source><translation>platillo volante</translation></message>
<message><source>fog</source><translation>niebla</translation></message>
<message><source>foggy</source><translation>bruma</translation></message>
<message><source>folded hands</source><translation>manos en oración</translation></message>
<message><source>folder</source><translation>carpeta</translation></message>
<message><source>folding hand fan</source><translation>abanico abierto</translation></message>
<message><source>fondue</source><translation>fondue</translation></message>
<message><source>foot</source><translation>pie</translation></message>
<message><source>football</source><translation>balón</translation></message>
<message><source>footprints</source><translation>huellas de pies</translation></message>
<message><source>forensics</source><translation>forense</translation></message>
<message><source>fork</source><translation>tenedor</translation></message>
<message><source>fork and knife</source><translation>tenedor y cuchillo</translation></message>
<message><source>fork and knife with plate</source><translation>cuchillo y tenedor con un plato</translation></message>
<message><source>fortune</source><translation>adivinación</translation></message>
<message><source>fortune cookie</source><translation>galleta de la fortuna</translation></message>
<message><source>fountain</source><translation>fuente</translation></message>
<message><source>fountain pen</source><translation>estilográfica</translation></message>
<message><source>four leaf clover</source><translation>trébol de cuatro hojas</translation></message>
<message><source>four o’clock</source><translation>4 en punto</translation></message>
<message><source>four-thirty</source><translation>cuatro y media</translation></message>
<message><source>fox</source><translation>zorro</translation></message>
<message><source>frame</source><translation>marco</translation></message>
<message><source>framed picture</source><translation>cuadro enmarcado</translation></message>
<message><source>french fries</source><translation>patatas fritas</translation></message>
<message><source>fried shrimp</source><translation>gamba frita</translation></message>
<message><source>frog</source><translation>rana</translation></message>
<message><source>front-facing baby chick</source><translation>pollito de frente</translation></message>
<message><source>frowning face</source><translation>cara con el ceño fruncido</translation></message>
<message><source>frowning face with open mouth</source><translation>cara con el ceño fruncido y la boca abierta</translation></message>
<message><source>fruit</source><translation>fruta</translation></message>
<message><source>fuel pump</source><translation>surtidor de gasolina</translation></message>
<message><source>fuji</source><translation>Fuji</translation></message>
<message><source>full moon</source><translation>luna llena</translation></message>
<message><source>full moon face</source><translation>luna llena con cara</translation></message>
<message><source>funeral</source><translation>funeraria</translation></message>
<message><source>funeral urn</source><translation>urna funeraria</translation></message>
<message><source>futbol</source><translation>fútbol</translation></message>
<message><source>game</source><translation>juego</translation></message>
<message><source>game die</source><translation>dado</translation></message>
<message><source>gardener</source><translation>jardinero</translation></message>
<message><source>garlic</source><translation>ajo</translation></message>
<message><source>gasoline</source><translation>gasolina</translation></message>
<message><source>gear</source><translation>engranaje</translation></message>
<message><source>gem stone</source><translation>piedra preciosa</translation></message>
<message><source>genetics</source><translation>genética</translation></message>
<message><source>genie</source><translation>genio</translation></message>
<message><source>geometric</source><translation>geometría</translation></message>
<message><source>gesture</source><translation>gesto</translation></message>
<message><source>ghost</source><translation>fantasma</translation></message>
<message><source>gibbous</source><translation>gibosa</translation></message>
<message><source>gift</source><translation>regalo</translation></message>
<message><source>ginger root</source><translation>raíz de jengibre</translation></message>
<message><source>giraffe</source><translation>jirafa</translation></message>
<message><source>girl</source><translation>niña</translation></message>
<message><source>glass</source><translation>vaso</translation></message>
<message><source>glass of milk</source><translation>vaso de leche</translation></message>
<message><source>glasses</source><translation>gafas</translation></message>
<message><source>globe</source><translation>globo</translation></message>
<message><source>globe showing Americas</source><translation>globo terráqueo mostrando América</translation></message>
<message><source>globe showing Asia-Australia</source><translation>globo terráqueo mostrando Asia y Australia</translation></message>
<message><source>globe showing Europe-Africa</source><translation>globo terráqueo mostrando Europa y África</translation></message>
<message><source>globe with meridians</source><translation>globo terráqueo con meridianos</translation></message>
<message><source>gloves</source><translation>guantes</translation></message>
<message><source>glowing star</source><translation>estrella brillante</translation></message>
<message><source>goal net</source><translation>portería</translation></message>
<message><source>goat</source><translation>cabra</translation></message>
<message><source>goblin</source><translation>demonio japonés tengu</translation></message>
<message><source>goggles</source><translation>gafas de protección</translation></message>
<message><source>golf</source><translation>golf</translation></message>
<message><source>goose</source><translation>oca</translation></message>
<message><source>gorilla</source><translation>gorila</translation></message>
<message><source>graduation cap</source><translation>birrete</translation></message>
<message><source>grapes</source><translation>uvas</translation></message>
<message><source>green</source><translation>verde</translation></message>
<message><source>green apple</source><translation>manzana verde</translation></message>
<message><source>green book</source><translation>libro verde</translation></message>
<message><source>green circle</source><translation>círculo verde</translation></message>
<message><source>green heart</source><translation>corazón verde</translation></message>
<message><source>green salad</source><translation>ensalada</translation></message>
<message><source>green square</source><translation>cuadrado verde</translation></message>
<message><source>grey heart</source><translation>corazón gris</translation></message>
<message><source>grimacing face</source><translation>cara haciendo una mueca</translation></message>
<message><source>grinning cat</source><translation>gato sonriendo</translation></message>
<message><source>grinning cat with smiling eyes</source><translation>gato sonriendo con ojos sonrientes</translation></message>
<message><source>grinning face</source><translation>cara sonriendo</translation></message>
<message><source>grinning face with big eyes</source><translation>cara sonriendo con ojos grandes</translation></message>
<message><source>grinning face with smiling eyes</source><translation>cara sonriendo con ojos sonrientes</translation></message>
<message><source>grinning face with sweat</source><translation>cara sonriendo con sudor frío</translation></message>
<message><source>grinning squinting face</source><translation>cara sonriendo con los ojos cerrados</translation></message>
<message><source>growing heart</source><translation>corazón creciente</translation></message>
<message><source>guanaco</source><translation>guanaco</translation></message>
<message><source>guard</source><translation>guardia</translation></message>
<message><source>guide dog</source><translation>perro guía</translation></message>
<message><source>guitar</source><translation>guitarra</translation></message>
<message><source>gyōza</source><translation>gyōza</translation></message>
<message><source>hair pick</source><translation>peineta</translation></message>
<message><source>halo</source><translation>halo</translation></message>
<message><source>hamburger</source><translation>hamburguesa</translation></message>
<message><source>hammer</source><translation>martillo</translation></message>
<message><source>hammer and pick</source><translation>martillo y pico</translation></message>
<message><source>hammer and wrench</source><translation>martillo y llave inglesa</translation></message>
<message><source>hamsa</source><translation>hamsa</translation></message>
<message><source>hamster</source><translation>hámster</translation></message>
<message><source>hand</source><translation>mano</translation></message>
<message><source>hand with fingers splayed</source><translation>mano abierta</translation></message>
<message><source>hand with index finger and thumb crossed</source><translation>mano con dedo índice y pulgar cruzados</translation></message>
<message><source>handbag</source><translation>bolso</translation></message>
<message><source>handshake</source><translation>apretón de manos</translation></message>
<message><source>harp</source><translation>arpa</translation></message>
<message><source>hashi</source><translation>hashi</translation></message>
<message><source>hatching chick</source><translation>pollito rompiendo el cascarón</translation></message>
<message><source>head shaking horizontally</source><translation>cabeza negando</translation></message>
<message><source>head shaking vertically</source><translation>cabeza asintiendo</translation></message>
<message><source>headphone</source><translation>auricular</translation></message>
<message><source>headstone</source><translation>lápida</translation></message>
<message><source>health worker</source><translation>profesional sanitario</translation></message>
<message><source>hear-no-evil monkey</source><translation>mono con los oídos tapados</translation></message>
<message><source>heart</source><translation>corazón</translation></message>
<message><source>heart decoration</source><translation>adorno de corazón</translation></message>
<message><source>heart exclamation</source><translation>exclamación de corazón</translation></message>
<message><source>heart hands</source><translation>manos formando un corazón</translation></message>
<message><source>heart on fire</source><translation>corazón en llamas</translation></message>
<message><source>heart suit</source><translation>palo de corazones</translation></message>
<message><source>heart with arrow</source><translation>corazón con flecha</translation></message>
<message><source>heart with ribbon</source><translation>corazón con lazo</translation></message>
<message><source>heavy dollar sign</source><translation>símbolo de dólar</translation></message>
<message><source>heavy equals sign</source><translation>signo igual grueso</translation></message>
<message><source>hedgehog</source><translation>erizo</translation></message>
<message><source>helicopter</source><translation>helicóptero</translation></message>
<message><source>herb</source><translation>hierba</translation></message>
<message><source>hibiscus</source><translation>flor de hibisco</translation></message>
<message><source>high</source><translation>choca esos cinco</translation></message>
<message><source>high voltage</source><translation>alto voltaje</translation></message>
<message><source>high-heeled shoe</source><translation>zapato de tacón</translation></message>
<message><source>high-speed train</source><translation>tren de alta velocidad</translation></message>
<message><source>hijab</source><translation>hiyab</translation></message>
<message><source>hiking boot</source><translation>bota de senderismo</translation></message>
<message><source>hindu</source><translation>hindú</translation></message>
<message><source>hindu temple</source><translation>templo hindú</translation></message>
<message><source>hippopotamus</source><translation>hipopótamo</translation></message>
<message><source>hockey</source><translation>hockey</translation></message>
<message><source>hole</source><translation>agujero</translation></message>
<message><source>hollow red circle</source><translation>círculo rojo hueco</translation></message>
<message><source>honey pot</source><translation>tarro de miel</translation></message>
<message><source>honeybee</source><translation>abeja</translation></message>
<message><source>hook</source><translation>gancho</translation></message>
<message><source>horizontal traffic light</source><translation>semáforo horizontal</translation></message>
<message><source>horoscope</source><translation>horóscopo</translation></message>
<message><source>horse</source><translation>caballo</translation></message>
<message><source>horse face</source><translation>cara de caballo</translation></message>
<message><source>horse racing</source><translation>carrera de caballos</translation></message>
<message><source>hospital</source><translation>hospital</translation></message>
<message><source>hot beverage</source><translation>bebida caliente</translation></message>
<message><source>hot dog</source><translation>perrito caliente</translation></message>
<message><source>hot face</source><translation>cara con calor</translation></message>
<message><source>hot pepper</source><translation>chile picante</translation></message>
<message><source>hot springs</source><translation>aguas termales</translation></message>
<message><source>hotel</source><translation>hotel</translation></message>
<message><source>hourglass done</source><translation>reloj de arena sin tiempo</translation></message>
<message><source>hourglass not done</source><translation>reloj de arena con tiempo</translation></message>
<message><source>house</source><translation>casa</translation></message>
<message><source>house with garden</source><translation>casa con jardín</translation></message>
<message><source>houses</source><translation>casas</translation></message>
<message><source>hugging</source><translation>abrazo</translation></message>
<message><source>hump</source><translation>dromedario</translation></message>
<message><source>hundred points</source><translation>cien puntos</translation></message>
<message><source>hushed face</source><translation>cara estupefacta</translation></message>
<message><source>hut</source><translation>cabaña</translation></message>
<message><source>hyacinth</source><translation>campanilla</translation></message>
<message><source>hygiene</source><translation>higiene</translation></message>
<message><source>hypnotized</source><translation>hipnotizado</translation></message>
<message><source>hóngbāo</source><translation>hóngbāo</translation></message>
<message><source>ice</source><translation>cubito de hielo</translation></message>
<message><source>ice cream</source><translation>helado</translation></message>
<message><source>ice hockey</source><translation>hockey sobre hielo</translation></message>
<message><source>ice skate</source><translation>patín de hielo</translation></message>
<message><source>iceberg</source><translation>iceberg</translation></message>
<message><source>idea</source><translation>idea</translation></message>
<message><source>identification</source><translation>identificación</translation></message>
<message><source>identification card</source><translation>carné de identidad</translation></message>
<message><source>identity</source><translation>identidad</translation></message>
<message><source>ideograph</source><translation>ideograma</translation></message>
<message><source>inbox tray</source><translation>bandeja de entrada</translation></message>
<message><source>incognito</source><translation>incógnito</translation></message>
<message><source>incoming envelope</source><translation>sobre entrante</translation></message>
<message><source>index pointing at the viewer</source><translation>dedo índice apuntándote a ti</translation></message>
<message><source>index pointing up</source><translation>dedo índice hacia arriba</translation></message>
<message><source>indifference</source><translation>indiferencia</translation></message>
<message><source>industrial</source><translation>industria</translation></message>
<message><source>infinity</source><translation>infinito</translation></message>
<message><source>information</source><translation>información</translation></message>
<message><source>inhalation</source><translation>inhalar</translation></message>
<message><source>injury</source><translation>herida</translation></message>
<message><source>input latin letters</source><translation>alfabeto latino</translation></message>
<message><source>input latin lowercase</source><translation>letras latinas minúsculas</translation></message>
<message><source>input latin uppercase</source><translation>letras latinas mayúsculas</translation></message>
<message><source>input numbers</source><translation>números</translation></message>
<message><source>input symbols</source><translation>símbolos</translation></message>
<message><source>insect</source><translation>insecto</translation></message>
<message><source>instrument</source><translation>instrumento</translation></message>
<message><source>intelligent</source><translation>inteligente</translation></message>
<message><source>internet</source><translation>internet</translation></message>
<message><source>intoxicated</source><translation>intoxicado</translation></message>
<message><source>introvert</source><translation>introvertido</translation></message>
<message><source>invertebrate</source><translation>invertebrado</translation></message>
<message><source>invisible</source><translation>invisible</translation></message>
<message><source>irish</source><translation>trébol</translation></message>
<message><source>ironic</source><translation>irónico</translation></message>
<message><source>islam</source><translation>islam</translation></message>
<message><source>island</source><translation>isla</translation></message>
<message><source>jack-o-lantern</source><translation>calabaza de Halloween</translation></message>
<message><source>jar</source><translation>tarro</translation></message>
<message><source>jeans</source><translation>vaqueros</translation></message>
<message><source>jellyfish</source><translation>medusa</translation></message>
<message><source>jiaozi</source><translation>jiaozi</translation></message>
<message><source>joker</source><translation>comodín</translation></message>
<message><source>joystick</source><translation>joystick</translation></message>
<message><source>judaism</source><translation>judaísmo</translation></message>
<message><source>judge</source><translation>fiscal</translation></message>
<message><source>judo</source><translation>judo</translation></message>
<message><source>justice</source><translation>justicia</translation></message>
<message><source>kaaba</source><translation>Kaaba</translation></message>
<message><source>kale</source><translation>kale</translation></message>
<message><source>kangaroo</source><translation>canguro</translation></message>
<message><source>karaoke</source><translation>karaoke</translation></message>
<message><source>karate</source><translation>kárate</translation></message>
<message><source>katakana</source><translation>katakana</translation></message>
<message><source>kebab</source><translation>kebab</translation></message>
<message><source>key</source><translation>llave</translation></message>
<message><source>keyboard</source><translation>teclado</translation></message>
<message><source>keycap</source><translation>tecla</translation></message>
<message><source>keycap: #</source><translation>Teclas: #</translation></message>
<message><source>keycap: *</source><translation>Teclas: *</translation></message>
<message><source>keycap: 0</source><translation>tecla: 0</translation></message>
<message><source>keycap: 1</source><translation>tecla: 1</translation></message>
<message><source>keycap: 10</source><translation>Teclas: 10</translation></message>
<message><source>keycap: 2</source><translation>tecla: 2</translation></message>
<message><source>keycap: 3</source><translation>tecla: 3</translation></message>
<message><source>keycap: 4</source><translation>tecla: 4</translation></message>
<message><source>keycap: 5</source><translation>tecla: 5</translation></message>
<message><source>keycap: 6</source><translation>tecla: 6</translation></message>
<message><source>keycap: 7</source><translation>tecla: 7</translation></message>
<message><source>keycap: 8</source><translation>tecla: 8</translation></message>
<message><source>keycap: 9</source><translation>tecla: 9</translation></message>
<message><source>khanda</source><translation>khanda</translation></message>
<message><source>kick scooter</source><translation>patinete</translation></message>
<message><source>kimono</source><translation>kimono</translation></message>
<message><source>king</source><translation>corona</translation></message>
<message><source>kiss</source><translation>beso</translation></message>
<message><source>kiss mark</source><translation>marca de beso</translation></message>
<message><source>kiss: man, man</source><translation>beso: hombre y hombre</translation></message>
<message><source>kiss: woman, man</source><translation>beso: mujer y hombre</translation></message>
<message><source>kiss: woman, woman</source><translation>beso: mujer y mujer</translation></message>
<message><source>kissing cat</source><translation>gato besando</translation></message>
<message><source>kissing face</source><translation>cara besando</translation></message>
<message><source>kissing face with closed eyes</source><translation>cara besando con los ojos cerrados</translation></message>
<message><source>kissing face with smiling eyes</source><translation>cara besando con ojos sonrientes</translation></message>
<message><source>kitchen knife</source><translation>cuchillo de cocina</translation></message>
<message><source>kite</source><translation>cometa</translation></message>
<message><source>kiwi</source><translation>kiwi</translation></message>
<message><source>kiwi fruit</source><translation>kiwi</translation></message>
<message><source>knife</source><translation>cuchillo</translation></message>
<message><source>knot</source><translation>nudo</translation></message>
<message><source>koala</source><translation>koala</translation></message>
<message><source>lab</source><translation>laboratorio</translation></message>
<message><source>lab coat</source><translation>bata de laboratorio</translation></message>
<message><source>label</source><translation>etiqueta</translation></message>
<message><source>lacrosse</source><translation>lacrosse</translation></message>
<message><source>ladder</source><translation>escalera</translation></message>
<message><source>lady</source><translation>adulta</translation></message>
<message><source>lady beetle</source><translation>mariquita</translation></message>
<message><source>lamp</source><translation>lámpara</translation></message>
<message><source>lantern</source><translation>linterna</translation></message>
<message><source>laptop</source><translation>ordenador portátil</translation></message>
<message><source>large blue diamond</source><translation>rombo azul grande</translation></message>
<message><source>large orange diamond</source><translation>rombo naranja grande</translation></message>
<message><source>last quarter moon</source><translation>luna en cuarto menguante</translation></message>
<message><source>last quarter moon face</source><translation>luna de cuarto menguante con cara</translation></message>
<message><source>last track button</source><translation>pista anterior</translation></message>
<message><source>latin cross</source><translation>cruz latina</translation></message>
<message><source>leaf</source><translation>hoja</translation></message>
<message><source>leaf fluttering in wind</source><translation>hojas revoloteando al viento</translation></message>
<message><source>leafless tree</source><translation>árbol sin hojas</translation></message>
<message><source>leafy green</source><translation>verdura de hoja verde</translation></message>
<message><source>ledger</source><translation>libro de contabilidad</translation></message>
<message><source>left arrow</source><translation>flecha hacia la izquierda</translation></message>
<message><source>left arrow curving right</source><translation>flecha izquierda curvándose a la derecha</translation></message>
<message><source>left luggage</source><translation>consigna</translation></message>
<message><source>left speech bubble</source><translation>bocadillo de diálogo por la izquierda</translation></message>
<message><source>left-facing fist</source><translation>puño hacia la izquierda</translation></message>
<message><source>left-right arrow</source><translation>flecha izquierda y derecha</translation></message>
<message><source>leftward</source><translation>a la izquierda</translation></message>
<message><source>leftwards hand</source><translation>mano hacia la izquierda</translation></message>
<message><source>leftwards pushing hand</source><translation>mano empujando hacia la izquierda</translation></message>
<message><source>leg</source><translation>pierna</translation></message>
<message><source>legume</source><translation>legumbre</translation></message>
<message><source>lemon</source><translation>limón</translation></message>
<message><source>leopard</source><translation>leopardo</translation></message>
<message><source>letter</source><translation>correo</translation></message>
<message><source>letters</source><translation>letras</translation></message>
<message><source>level slider</source><translation>control de volumen</translation></message>
<message><source>levitating</source><translation>levitar</translation></message>
<message><source>libra</source><translation>libra</translation></message>
<message><source>light blue heart</source><translation>corazón azul claro</translation></message>
<message><source>light bulb</source><translation>bombilla</translation></message>
<message><source>light rail</source><translation>tren ligero</translation></message>
<message><source>light skin tone</source><translation>tono de piel claro</translation></message>
<message><source>lilac</source><translation>lila</translation></message>
<message><source>lime</source><translation>lima</translation></message>
<message><source>link</source><translation>eslabón</translation></message>
<message><source>linked paperclips</source><translation>clips unidos</translation></message>
<message><source>lion</source><translation>león</translation></message>
<message><source>lipstick</source><translation>pintalabios</translation></message>
<message><source>liquid</source><translation>líquido</translation></message>
<message><source>liquor</source><translation>licor</translation></message>
<message><source>litter in bin sign</source><translation>señal de usar papelera</translation></message>
<message><source>lizard</source><translation>lagarto</translation></message>
<message><source>llama</source><translation>llama</translation></message>
<message><source>lobster</source><translation>bogavante</translation></message>
<message><source>locked</source><translation>candado cerrado</translation></message>
<message><source>locked with key</source><translation>candado cerrado y llave</translation></message>
<message><source>locked with pen</source><translation>candado con pluma estilográfica</translation></message>
<message><source>locomotive</source><translation>locomotora de vapor</translation></message>
<message><source>lollipop</source><translation>piruleta</translation></message>
<message><source>long drum</source><translation>tamboril</translation></message>
<message><source>lotion bottle</source><translation>bote de crema</translation></message>
<message><source>lotus</source><translation>loto</translation></message>
<message><source>loudly crying face</source><translation>cara llorando fuerte</translation></message>
<message><source>loudspeaker</source><translation>altavoz de mano</translation></message>
<message><source>love</source><translation>amor</translation></message>
<message><source>love hotel</source><translation>hotel del amor</translation></message>
<message><source>love letter</source><translation>carta de amor</translation></message>
<message><source>love-you gesture</source><translation>gesto de te quiero</translation></message>
<message><source>low battery</source><translation>batería baja</translation></message>
<message><source>luggage</source><translation>equipaje</translation></message>
<message><source>lungs</source><translation>pulmones</translation></message>
<message><source>lupine</source><translation>lupino</translation></message>
<message><source>lying face</source><translation>cara de mentiroso</translation></message>
<message><source>mage</source><translation>persona maga</translation></message>
<message><source>magic wand</source><translation>varita mágica</translation></message>
<message><source>magical</source><translation>mágico</translation></message>
<message><source>magician</source><translation>magia</translation></message>
<message><source>magnet</source><translation>imán</translation></message>
<message><source>magnetic</source><translation>magnético</translation></message>
<message><source>magnifying glass tilted left</source><translation>lupa orientada hacia la izquierda</translation></message>
<message><source>magnifying glass tilted right</source><translation>lupa orientada hacia la derecha</translation></message>
<message><source>mahjong red dragon</source><translation>dragón rojo de mahjong</translation></message>
<message><source>mail</source><translation>buzón</translation></message>
<message><source>malaria</source><translation>malaria</translation></message>
<message><source>male sign</source><translation>signo masculino</translation></message>
<message><source>mammal</source><translation>mamífero</translation></message>
<message><source>mammoth</source><translation>mamut</translation></message>
<message><source>man</source><translation>hombre</translation></message>
<message><source>man artist</source><translation>artista hombre</translation></message>
<message><source>man astronaut</source><translation>astronauta hombre</translation></message>
<message><source>man biking</source><translation>hombre en bicicleta</translation></message>
<message><source>man bouncing ball</source><translation>hombre botando un balón</translation></message>
<message><source>man bowing</source><translation>hombre haciendo una reverencia</translation></message>
<message><source>man cartwheeling</source><translation>hombre dando una voltereta lateral</translation></message>
<message><source>man climbing</source><translation>hombre escalando</translation></message>
<message><source>man construction worker</source><translation>profesional de la construcción hombre</translation></message>
<message><source>man cook</source><translation>chef hombre</translation></message>
<message><source>man dancing</source><translation>hombre bailando</translation></message>
<message><source>man detective</source><translation>detective hombre</translation></message>
<message><source>man elf</source><translation>elfo hombre</translation></message>
<message><source>man facepalming</source><translation>hombre con la mano en la frente</translation></message>
<message><source>man factory worker</source><translation>profesional industrial hombre</translation></message>
<message><source>man fairy</source><translation>hada hombre</translation></message>
<message><source>man farmer</source><translation>profesional de la agricultura hombre</translation></message>
<message><source>man feeding baby</source><translation>hombre alimentando a bebé</translation></message>
<message><source>man firefighter</source><translation>bombero hombre</translation></message>
<message><source>man frowning</source><translation>hombre frunciendo el ceño</translation></message>
<message><source>man genie</source><translation>genio hombre</translation></message>
<message><source>man gesturing NO</source><translation>hombre haciendo el gesto de "no"</translation></message>
<message><source>man gesturing OK</source><translation>hombre haciendo el gesto de "de acuerdo"</translation></message>
<message><source>man getting haircut</source><translation>hombre cortándose el pelo</translation></message>
<message><source>man getting massage</source><translation>hombre recibiendo masaje</translation></message>
<message><source>man golfing</source><translation>hombre jugando al golf</translation></message>
<message><source>man guard</source><translation>guardia hombre</translation></message>
<message><source>man health worker</source><translation>profesional sanitario hombre</translation></message>
<message><source>man in lotus position</source><translation>hombre en posición de loto</translation></message>
<message><source>man in manual wheelchair</source><translation>hombre en silla de ruedas manual</translation></message>
<message><source>man in manual wheelchair: facing right</source><translation>hombre en silla de ruedas manual: hacia la derecha</translation></message>
<message><source>man in motorized wheelchair</source><translation>hombre en silla de ruedas eléctrica</translation></message>
<message><source>man in motorized wheelchair: facing right</source><translation>hombre en silla de ruedas eléctrica: hacia la derecha</translation></message>
<message><source>man in steamy room</source><translation>hombre en una sauna</translation></message>
<message><source>man in tuxedo</source><translation>hombre con esmoquin</translation></message>
<message><source>man judge</source><translation>fiscal hombre</translation></message>
<message><source>man juggling</source><translation>hombre haciendo malabares</translation></message>
<message><source>man kneeling</source><translation>hombre de rodillas</translation></message>
<message><source>man kneeling: facing right</source><translation>hombre de rodillas: hacia la derecha</translation></message>
<message><source>man lifting weights</source><translation>hombre levantando pesas</translation></message>
<message><source>man mage</source><translation>mago</translation></message>
<message><source>man mechanic</source><translation>profesional de la mecánica hombre</translation></message>
<message><source>man mountain biking</source><translation>hombre en bicicleta de montaña</translation></message>
<message><source>man office worker</source><translation>oficinista hombre</translation></message>
<message><source>man pilot</source><translation>piloto hombre</translation></message>
<message><source>man playing handball</source><translation>hombre jugando al balonmano</translation></message>
<message><source>man playing water polo</source><translation>hombre jugando al waterpolo</translation></message>
<message><source>man police officer</source><translation>agente de policía hombre</translation></message>
<message><source>man pouting</source><translation>hombre haciendo pucheros</translation></message>
<message><source>man raising hand</source><translation>hombre con la mano levantada</translation></message>
<message><source>man rowing boat</source><translation>hombre remando en un bote</translation></message>
<message><source>man running</source><translation>hombre corriendo</translation></message>
<message><source>man running: facing right</source><translation>hombre corriendo: hacia la derecha</translation></message>
<message><source>man scientist</source><translation>profesional de la ciencia hombre</translation></message>
<message><source>man shrugging</source><translation>hombre encogido de hombros</translation></message>
<message><source>man singer</source><translation>cantante hombre</translation></message>
<message><source>man standing</source><translation>hombre de pie</translation></message>
<message><source>man student</source><translation>estudiante hombre</translation></message>
<message><source>man superhero</source><translation>superhéroe</translation></message>
<message><source>man supervillain</source><translation>supervillano</translation></message>
<message><source>man surfing</source><translation>hombre haciendo surf</translation></message>
<message><source>man swimming</source><translation>hombre nadando</translation></message>
<message><source>man teacher</source><translation>docente hombre</translation></message>
<message><source>man technologist</source><translation>profesional de la tecnología hombre</translation></message>
<message><source>man tipping hand</source><translation>empleado de mostrador de información</translation></message>
<message><source>man vampire</source><translation>vampiro hombre</translation></message>
<message><source>man walking</source><translation>hombre caminando</translation></message>
<message><source>man walking: facing right</source><translation>hombre caminando: hacia la derecha</translation></message>
<message><source>man wearing turban</source><translation>hombre con turbante</translation></message>
<message><source>man with veil</source><translation>hombre con velo</translation></message>
<message><source>man with white cane</source><translation>hombre con bastón</translation></message>
<message><source>man with white cane: facing right</source><translation>hombre con bastón: hacia la derecha</translation></message>
<message><source>man zombie</source><translation>zombi hombre</translation></message>
<message><source>man: bald</source><translation>hombre: sin pelo</translation></message>
<message><source>man: beard</source><translation>hombre: barba</translation></message>
<message><source>man: blond hair</source><translation>hombre rubio</translation></message>
<message><source>man: curly hair</source><translation>hombre: pelo rizado</translation></message>
<message><source>man: red hair</source><translation>hombre: pelo pelirrojo</translation></message>
<message><source>man: white hair</source><translation>hombre: pelo blanco</translation></message>
<message><source>mango</source><translation>mango</translation></message>
<message><source>manicure</source><translation>manicura</translation></message>
<message><source>mantelpiece clock</source><translation>reloj de sobremesa</translation></message>
<message><source>manual wheelchair</source><translation>silla de ruedas manual</translation></message>
<message><source>man’s shoe</source><translation>zapato de hombre</translation></message>
<message><source>map of Japan</source><translation>mapa de Japón</translation></message>
<message><source>maple leaf</source><translation>hoja de arce</translation></message>
<message><source>maracas</source><translation>maracas</translation></message>
<message><source>marathon</source><translation>maratón</translation></message>
<message><source>marine</source><translation>marino</translation></message>
<message><source>marsupial</source><translation>marsupial</translation></message>
<message><source>martial arts uniform</source><translation>uniforme de artes marciales</translation></message>
<message><source>massage</source><translation>masaje</translation></message>
<message><source>mate</source><translation>mate</translation></message>
<message><source>matryoshka</source><translation>matrioska</translation></message>
<message><source>meat</source><translation>carne</translation></message>
<message><source>meat on bone</source><translation>carne con hueso</translation></message>
<message><source>mechanic</source><translation>profesional de la mecánica</translation></message>
<message><source>mechanical arm</source><translation>brazo mecánico</translation></message>
<message><source>mechanical leg</source><translation>pierna mecánica</translation></message>
<message><source>medal</source><translation>medalla</translation></message>
<message><source>medical</source><translation>médica</translation></message>
<message><source>medical symbol</source><translation>símbolo de medicina</translation></message>
<message><source>medicine</source><translation>medicina</translation></message>
<message><source>meditation</source><translation>meditación</translation></message>
<message><source>medium skin tone</source><translation>tono de piel medio</translation></message>
<message><source>medium-dark skin tone</source><translation>tono de piel oscuro medio</translation></message>
<message><source>medium-light skin tone</source><translation>tono de piel claro medio</translation></message>
<message><source>megaphone</source><translation>megáfono</translation></message>
<message><source>melon</source><translation>melón</translation></message>
<message><source>melting face</source><translation>cara derritiéndose</translation></message>
<message><source>memo</source><translation>cuaderno de notas</translation></message>
<message><source>men holding hands</source><translation>hombres de la mano</translation></message>
<message><source>men with bunny ears</source><translation>hombres con orejas de conejo</translation></message>
<message><source>men wrestling</source><translation>hombres luchando</translation></message>
<message><source>mending heart</source><translation>corazón vendado</translation></message>
<message><source>menorah</source><translation>menorá</translation></message>
<message><source>men’s room</source><translation>aseo para hombres</translation></message>
<message><source>meridians</source><translation>meridianos</translation></message>
<message><source>mermaid</source><translation>sirena</translation></message>
<message><source>merman</source><translation>sirena hombre</translation></message>
<message><source>merperson</source><translation>persona sirena</translation></message>
<message><source>metal</source><translation>metal</translation></message>
<message><source>metro</source><translation>metro</translation></message>
<message><source>mexican</source><translation>mexicano</translation></message>
<message><source>microbe</source><translation>microbio</translation></message>
<message><source>microphone</source><translation>micrófono</translation></message>
<message><source>microscope</source><translation>microscopio</translation></message>
<message><source>middle finger</source><translation>dedo corazón hacia arriba</translation></message>
<message><source>military</source><translation>militar</translation></message>
<message><source>military helmet</source><translation>casco militar</translation></message>
<message><source>military medal</source><translation>medalla militar</translation></message>
<message><source>milk</source><translation>leche</translation></message>
<message><source>milky way</source><translation>Vía Láctea</translation></message>
<message><source>minibus</source><translation>minibús</translation></message>
<message><source>minidisk</source><translation>minidisc</translation></message>
<message><source>minus</source><translation>menos</translation></message>
<message><source>mirror</source><translation>espejo</translation></message>
<message><source>mirror ball</source><translation>bola de espejos</translation></message>
<message><source>moai</source><translation>estatua moái</translation></message>
<message><source>mobile</source><translation>móvil</translation></message>
<message><source>mobile phone</source><translation>teléfono móvil</translation></message>
<message><source>mobile phone off</source><translation>teléfono móvil apagado</translation></message>
<message><source>mobile phone with arrow</source><translation>móvil con una flecha</translation></message>
<message><source>mollusk</source><translation>molusco</translation></message>
<message><source>monarch</source><translation>monarca</translation></message>
<message><source>money</source><translation>dinero</translation></message>
<message><source>money bag</source><translation>bolsa de dinero</translation></message>
<message><source>money with wings</source><translation>billete con alas</translation></message>
<message><source>money-mouth face</source><translation>cara con lengua de dinero</translation></message>
<message><source>monkey</source><translation>mono</translation></message>
<message><source>monkey face</source><translation>cara de mono</translation></message>
<message><source>monorail</source><translation>monorraíl</translation></message>
<message><source>monster</source><translation>monstruo</translation></message>
<message><source>moon</source><translation>luna</translation></message>
<message><source>moon cake</source><translation>pastel de luna</translation></message>
<message><source>moon viewing ceremony</source><translation>ceremonia de contemplación de la luna</translation></message>
<message><source>moose</source><translation>alce</translation></message>
<message><source>mosque</source><translation>mezquita</translation></message>
<message><source>mosquito</source><translation>mosquito</translation></message>
<message><source>motor</source><translation>moto</translation></message>
<message><source>motor boat</source><translation>barco a motor</translation></message>
<message><source>motor scooter</source><translation>scooter</translation></message>
<message><source>motorboat</source><translation>motor</translation></message>
<message><source>motorcycle</source><translation>moto</translation></message>
<message><source>motorized wheelchair</source><translation>silla de ruedas eléctrica</translation></message>
<message><source>motorway</source><translation>autopista</translation></message>
<message><source>mount</source><translation>monte</translation></message>
<message><source>mount fuji</source><translation>monte Fuji</translation></message>
<message><source>mountain</source><translation>montaña</translation></message>
<message><source>mountain cableway</source><translation>teleférico de montaña</translation></message>
<message><source>mountain railway</source><translation>ferrocarril de montaña</translation></message>
<message><source>mouse</source><translation>ratón</translation></message>
<message><source>mouse face</source><translation>cara de ratón</translation></message>
<message><source>mouse trap</source><translation>trampa de ratones</translation></message>
<message><source>mouth</source><translation>boca</translation></message>
<message><source>movie</source><translation>película</translation></message>
<message><source>movie camera</source><translation>cámara de cine</translation></message>
<message><source>mule</source><translation>mula</translation></message>
<message><source>multiply</source><translation>multiplicación</translation></message>
<message><source>museum</source><translation>museo</translation></message>
<message><source>mushroom</source><translation>champiñón</translation></message>
<message><source>music</source><translation>música</translation></message>
<message><source>musical keyboard</source><translation>teclado musical</translation></message>
<message><source>musical note</source><translation>nota musical</translation></message>
<message><source>musical notes</source><translation>notas musicales</translation></message>
<message><source>musical score</source><translation>pentagrama</translation></message>
<message><source>muted</source><translation>mute</translation></message>
<message><source>muted speaker</source><translation>altavoz silenciado</translation></message>
<message><source>naan</source><translation>naan</translation></message>
<message><source>nail polish</source><translation>pintarse las uñas</translation></message>
<message><source>name badge</source><translation>etiqueta identificativa</translation></message>
<message><source>national</source><translation>nacional</translation></message>
<message><source>national park</source><translation>parque nacional</translation></message>
<message><source>nauseated</source><translation>náuseas</translation></message>
<message><source>nauseated face</source><translation>cara de náuseas</translation></message>
<message><source>navigation</source><translation>navegación</translation></message>
<message><source>nazar</source><translation>nazar</translation></message>
<message><source>nazar amulet</source><translation>ojo turco</translation></message>
<message><source>necktie</source><translation>corbata</translation></message>
<message><source>needle</source><translation>aguja</translation></message>
<message><source>nerd face</source><translation>cara de empollón</translation></message>
<message><source>nervous</source><translation>nervioso</translation></message>
<message><source>nest with eggs</source><translation>nido con huevos</translation></message>
<message><source>nesting dolls</source><translation>muñeca rusa</translation></message>
<message><source>neutral</source><translation>neutral</translation></message>
<message><source>neutral face</source><translation>cara neutral</translation></message>
<message><source>new moon</source><translation>luna nueva</translation></message>
<message><source>new moon face</source><translation>luna nueva con cara</translation></message>
<message><source>newspaper</source><translation>periódico</translation></message>
<message><source>next track button</source><translation>pista siguiente</translation></message>
<message><source>night with stars</source><translation>noche estrellada</translation></message>
<message><source>nine o’clock</source><translation>9 en punto</translation></message>
<message><source>nine-thirty</source><translation>nueve y media</translation></message>
<message><source>ninja</source><translation>ninja</translation></message>
<message><source>no bicycles</source><translation>bicicletas prohibidas</translation></message>
<message><source>no entry</source><translation>dirección prohibida</translation></message>
<message><source>no littering</source><translation>prohibido tirar basura</translation></message>
<message><source>no mobile phones</source><translation>prohibido el uso de móviles</translation></message>
<message><source>no one under eighteen</source><translation>prohibido para menos de 18 años</translation></message>
<message><source>no pedestrians</source><translation>prohibido el paso de peatones</translation></message>
<message><source>no smoking</source><translation>prohibido fumar</translation></message>
<message><source>noble</source><translation>noble</translation></message>
<message><source>non-potable</source><translation>no potable</translation></message>
<message><source>non-potable water</source><translation>agua no potable</translation></message>
<message><source>north</source><translation>norte</translation></message>
<message><source>northeast</source><translation>noreste</translation></message>
<message><source>northwest</source><translation>noroeste</translation></message>
<message><source>nose</source><translation>nariz</translation></message>
<message><source>notebook</source><translation>cuaderno</translation></message>
<message><source>notebook with decorative cover</source><translation>cuaderno con tapa decorativa</translation></message>
<message><source>numbers</source><translation>números</translation></message>
<message><source>nut and bolt</source><translation>tornillo y tuerca</translation></message>
<message><source>o</source><translation>o</translation></message>
<message><source>octagonal</source><translation>octágono</translation></message>
<message><source>octopus</source><translation>pulpo</translation></message>
<message><source>oden</source><translation>brocheta</translation></message>
<message><source>office building</source><translation>edificio de oficinas</translation></message>
<message><source>office worker</source><translation>oficinista</translation></message>
<message><source>ogre</source><translation>demonio japonés oni</translation></message>
<message><source>oil drum</source><translation>barril de petróleo</translation></message>
<message><source>okay</source><translation>ok</translation></message>
<message><source>old key</source><translation>llave antigua</translation></message>
<message><source>old man</source><translation>anciano</translation></message>
<message><source>old woman</source><translation>anciana</translation></message>
<message><source>older person</source><translation>persona mayor</translation></message>
<message><source>olive</source><translation>aceituna</translation></message>
<message><source>om</source><translation>om</translation></message>
<message><source>oncoming</source><translation>próximo</translation></message>
<message><source>oncoming automobile</source><translation>coche próximo</translation></message>
<message><source>oncoming bus</source><translation>autobús próximo</translation></message>
<message><source>oncoming fist</source><translation>puño cerrado</translation></message>
<message><source>oncoming police car</source><translation>coche de policía próximo</translation></message>
<message><source>oncoming taxi</source><translation>taxi próximo</translation></message>
<message><source>one o’clock</source><translation>1 en punto</translation></message>
<message><source>one-piece swimsuit</source><translation>traje de baño de una pieza</translation></message>
<message><source>one-thirty</source><translation>una y media</translation></message>
<message><source>onion</source><translation>cebolla</translation></message>
<message><source>open book</source><translation>libro abierto</translation></message>
<message><source>open file folder</source><translation>carpeta de archivos abierta</translation></message>
<message><source>open hands</source><translation>manos abiertas</translation></message>
<message><source>open mailbox with lowered flag</source><translation>buzón abierto con la bandera bajada</translation></message>
<message><source>open mailbox with raised flag</source><translation>buzón abierto con la bandera levantada</translation></message>
<message><source>optical disk</source><translation>disco óptico</translation></message>
<message><source>orange</source><translation>naranja</translation></message>
<message><source>orange book</source><translation>libro naranja</translation></message>
<message><source>orange circle</source><translation>círculo naranja</translation></message>
<message><source>orange heart</source><translation>corazón naranja</translation></message>
<message><source>orange square</source><translation>cuadrado naranja</translation></message>
<message><source>orangutan</source><translation>orangután</translation></message>
<message><source>orchestra</source><translation>orquesta</translation></message>
<message><source>organ</source><translation>órgano</translation></message>
<message><source>orthodox cross</source><translation>cruz ortodoxa</translation></message>
<message><source>otter</source><translation>nutria</translation></message>
<message><source>outbox tray</source><translation>bandeja de salida</translation></message>
<message><source>owl</source><translation>búho</translation></message>
<message><source>ox</source><translation>buey</translation></message>
<message><source>oyster</source><translation>ostra</translation></message>
<message><source>package</source><translation>paquete</translation></message>
<message><source>paella</source><translation>paella</translation></message>
<message><source>page</source><translation>página</translation></message>
<message><source>page facing up</source><translation>página hacia arriba</translation></message>
<message><source>page with curl</source><translation>página doblada</translation></message>
<message><source>pager</source><translation>busca</translation></message>
<message><source>paintbrush</source><translation>pincel</translation></message>
<message><source>painter</source><translation>pintura</translation></message>
<message><source>palette</source><translation>paleta</translation></message>
<message><source>palm</source><translation>palmera</translation></message>
<message><source>palm down hand</source><translation>mano con la palma hacia abajo</translation></message>
<message><source>palm tree</source><translation>palmera</translation></message>
<message><source>palm up hand</source><translation>mano con la palma hacia arriba</translation></message>
<message><source>palms up together</source><translation>palmas hacia arriba juntas</translation></message>
<message><source>pancakes</source><translation>tortitas</translation></message>
<message><source>panda</source><translation>panda</translation></message>
<message><source>paperclip</source><translation>clip</translation></message>
<message><source>parachute</source><translation>paracaídas</translation></message>
<message><source>parasite</source><translation>parásito</translation></message>
<message><source>park</source><translation>parque</translation></message>
<message><source>parrot</source><translation>loro</translation></message>
<message><source>part alternation mark</source><translation>marca de alternancia</translation></message>
<message><source>party</source><translation>fiesta</translation></message>
<message><source>party popper</source><translation>cañón de confeti</translation></message>
<message><source>partying face</source><translation>cara de fiesta</translation></message>
<message><source>passenger ship</source><translation>barco de pasajeros</translation></message>
<message><source>passport</source><translation>pasaportes</translation></message>
<message><source>passport control</source><translation>control de pasaportes</translation></message>
<message><source>pasta</source><translation>pasta</translation></message>
<message><source>pause</source><translation>pausa</translation></message>
<message><source>pause button</source><translation>pausa</translation></message>
<message><source>paw prints</source><translation>huellas de pezuñas</translation></message>
<message><source>pea pod</source><translation>vaina</translation></message>
<message><source>peace symbol</source><translation>símbolo de la paz</translation></message>
<message><source>peach</source><translation>melocotón</translation></message>
<message><source>peacock</source><translation>pavo real</translation></message>
<message><source>peanuts</source><translation>cacahuetes</translation></message>
<message><source>pear</source><translation>pera</translation></message>
<message><source>pearl</source><translation>perla</translation></message>
<message><source>pen</source><translation>bolígrafo</translation></message>
<message><source>pencil</source><translation>lápiz</translation></message>
<message><source>penguin</source><translation>pingüino</translation></message>
<message><source>pensive face</source><translation>cara desanimada</translation></message>
<message><source>people holding hands</source><translation>dos personas de la mano</translation></message>
<message><source>people hugging</source><translation>personas abrazándose</translation></message>
<message><source>people with bunny ears</source><translation>personas con orejas de conejo</translation></message>
<message><source>people wrestling</source><translation>personas luchando</translation></message>
<message><source>pepper</source><translation>chile</translation></message>
<message><source>percussion</source><translation>percusión</translation></message>
<message><source>performing arts</source><translation>máscaras de teatro</translation></message>
<message><source>persevering face</source><translation>cara desesperada</translation></message>
<message><source>person</source><translation>persona adulta</translation></message>
<message><source>person biking</source><translation>persona en bicicleta</translation></message>
<message><source>person bouncing ball</source><translation>persona botando un balón</translation></message>
<message><source>person bowing</source><translation>persona haciendo una reverencia</translation></message>
<message><source>person cartwheeling</source><translation>persona haciendo voltereta lateral</translation></message>
<message><source>person climbing</source><translation>persona escalando</translation></message>
<message><source>person facepalming</source><translation>persona con la mano en la frente</translation></message>
<message><source>person feeding baby</source><translation>persona alimentando a bebé</translation></message>
<message><source>person fencing</source><translation>persona haciendo esgrima</translation></message>
<message><source>person frowning</source><translation>persona frunciendo el ceño</translation></message>
<message><source>person gesturing NO</source><translation>persona haciendo el gesto de "no"</translation></message>
<message><source>person gesturing OK</source><translation>persona haciendo el gesto de "de acuerdo"</translation></message>
<message><source>person getting haircut</source><translation>persona cortándose el pelo</translation></message>
<message><source>person getting massage</source><translation>persona recibiendo masaje</translation></message>
<message><source>person golfing</source><translation>persona jugando al golf</translation></message>
<message><source>person in bed</source><translation>persona en la cama</translation></message>
<message><source>person in lotus position</source><translation>persona en posición de loto</translation></message>
<message><source>person in manual wheelchair</source><translation>persona en silla de ruedas manual</translation></message>
<message><source>person in manual wheelchair: facing right</source><translation>persona en silla de ruedas manual: hacia la derecha</translation></message>
<message><source>person in motorized wheelchair</source><translation>persona en silla de ruedas eléctrica</translation></message>
<message><source>person in motorized wheelchair: facing right</source><translation>persona en silla de ruedas eléctrica: hacia la derecha</translation></message>
<message><source>person in steamy room</source><translation>persona en una sauna</translation></message>
<message><source>person in suit levitating</source><translation>persona trajeada levitando</translation></message>
<message><source>person in tuxedo</source><translation>persona con esmoquin</translation></message>
<message><source>person juggling</source><translation>persona haciendo malabares</translation></message>
<message><source>person kneeling</source><translation>persona de rodillas</translation></message>
<message><source>person kneeling: facing right</source><translation>persona de rodillas: hacia la derecha</translation></message>
<message><source>person lifting weights</source><translation>persona levantando pesas</translation></message>
<message><source>person mountain biking</source><translation>persona en bicicleta de montaña</translation></message>
<message><source>person playing handball</source><translation>persona jugando al balonmano</translation></message>
<message><source>person playing water polo</source><translation>persona jugando al waterpolo</translation></message>
<message><source>person pouting</source><translation>persona haciendo pucheros</translation></message>
<message><source>person raising hand</source><translation>persona con la mano levantada</translation></message>
<message><source>person rowing boat</source><translation>persona remando en un bote</translation></message>
<message><source>person running</source><translation>persona corriendo</translation></message>
<message><source>person running: facing right</source><translation>persona corriendo: hacia la derecha</translation></message>
<message><source>person shrugging</source><translation>persona encogida de hombros</translation></message>
<message><source>person standing</source><translation>persona de pie</translation></message>
<message><source>person surfing</source><translation>persona haciendo surf</translation></message>
<message><source>person swimming</source><translation>persona nadando</translation></message>
<message><source>person taking bath</source><translation>persona en la bañera</translation></message>
<message><source>person tipping hand</source><translation>persona de mostrador de información</translation></message>
<message><source>person walking</source><translation>persona caminando</translation></message>
<message><source>person walking: facing right</source><translation>persona caminando: hacia la derecha</translation></message>
<message><source>person wearing turban</source><translation>persona con turbante</translation></message>
<message><source>person with crown</source><translation>persona con corona</translation></message>
<message><source>person with skullcap</source><translation>persona con gorro chino</translation></message>
<message><source>person with veil</source><translation>persona con velo</translation></message>
<message><source>person with white cane</source><translation>persona con bastón</translation></message>
<message><source>person with white cane: facing right</source><translation>persona con bastón: hacia la derecha</translation></message>
<message><source>person: bald</source><translation>persona adulta: sin pelo</translation></message>
<message><source>person: beard</source><translation>persona con barba</translation></message>
<message><source>person: blond hair</source><translation>persona adulta rubia</translation></message>
<message><source>person: curly hair</source><translation>persona adulta: pelo rizado</translation></message>
<message><source>person: red hair</source><translation>persona adulta: pelo pelirrojo</translation></message>
<message><source>person: white hair</source><translation>persona adulta: pelo blanco</translation></message>
<message><source>personal</source><translation>personal</translation></message>
<message><source>pet</source><translation>mascota</translation></message>
<message><source>petri dish</source><translation>placa de petri</translation></message>
<message><source>phoenix</source><translation>fénix</translation></message>
<message><source>piano</source><translation>piano</translation></message>
<message><source>pick</source><translation>pico</translation></message>
<message><source>pickup truck</source><translation>camioneta</translation></message>
<message><source>picnic</source><translation>pícnic</translation></message>
<message><source>pie</source><translation>pastel</translation></message>
<message><source>pig</source><translation>cerdo</translation></message>
<message><source>pig face</source><translation>cara de cerdo</translation></message>
<message><source>pig nose</source><translation>nariz de cerdo</translation></message>
<message><source>pile of poo</source><translation>caca con ojos</translation></message>
<message><source>pill</source><translation>píldora</translation></message>
<message><source>pilot</source><translation>piloto</translation></message>
<message><source>pina</source><translation>piña</translation></message>
<message><source>pinched fingers</source><translation>dedos juntos apuntando hacia arriba</translation></message>
<message><source>pinching hand</source><translation>mano pellizcando</translation></message>
<message><source>pine decoration</source><translation>decoración de pino</translation></message>
<message><source>pineapple</source><translation>piña</translation></message>
<message><source>ping pong</source><translation>tenis de mesa</translation></message>
<message><source>pingpong</source><translation>ping pong</translation></message>
<message><source>pink heart</source><translation>corazón rosa</translation></message>
<message><source>pinocchio</source><translation>pinocho</translation></message>
<message><source>pirate</source><translation>pirata</translation></message>
<message><source>pirate flag</source><translation>bandera pirata</translation></message>
<message><source>pisces</source><translation>piscis</translation></message>
<message><source>pistol</source><translation>pistola</translation></message>
<message><source>pita</source><translation>pita</translation></message>
<message><source>pizza</source><translation>pizza</translation></message>
<message><source>piñata</source><translation>piñata</translation></message>
<message><source>placard</source><translation>letrero</translation></message>
<message><source>place of worship</source><translation>lugar de culto</translation></message>
<message><source>plane</source><translation>avión</translation></message>
<message><source>plate</source><translation>plato</translation></message>
<message><source>play button</source><translation>reproducir</translation></message>
<message><source>play or pause button</source><translation>reproducir o pausa</translation></message>
<message><source>playground slide</source><translation>tobogán</translation></message>
<message><source>pleading face</source><translation>cara suplicante</translation></message>
<message><source>plumage</source><translation>plumaje</translation></message>
<message><source>plumber</source><translation>fontanero</translation></message>
<message><source>plunger</source><translation>desatascador</translation></message>
<message><source>plus</source><translation>más</translation></message>
<message><source>pointing</source><translation>apuntar</translation></message>
<message><source>polar</source><translation>polar</translation></message>
<message><source>polar bear</source><translation>oso polar</translation></message>
<message><source>police</source><translation>policía</translation></message>
<message><source>police car</source><translation>coche de policía</translation></message>
<message><source>police car light</source><translation>luces de policía</translation></message>
<message><source>police officer</source><translation>agente de policía</translation></message>
<message><source>poodle</source><translation>caniche</translation></message>
<message><source>pool 8 ball</source><translation>bola negra de billar</translation></message>
<message><source>popcorn</source><translation>palomitas</translation></message>
<message><source>pork</source><translation>gorrino</translation></message>
<message><source>porous</source><translation>poroso</translation></message>
<message><source>post office</source><translation>oficina de correos europea</translation></message>
<message><source>postal</source><translation>posta</translation></message>
<message><source>postal horn</source><translation>corneta de posta</translation></message>
<message><source>postbox</source><translation>buzón</translation></message>
<message><source>pot of food</source><translation>olla de comida</translation></message>
<message><source>potable</source><translation>potable</translation></message>
<message><source>potable water</source><translation>agua potable</translation></message>
<message><source>potato</source><translation>patata</translation></message>
<message><source>potted plant</source><translation>planta de maceta</translation></message>
<message><source>poultry leg</source><translation>muslo de pollo</translation></message>
<message><source>pound banknote</source><translation>billete de libra</translation></message>
<message><source>pouring liquid</source><translation>líquido derramándose</translation></message>
<message><source>pouting cat</source><translation>gato enfadado</translation></message>
<message><source>prayer beads</source><translation>rosario</translation></message>
<message><source>pregnant man</source><translation>hombre embarazado</translation></message>
<message><source>pregnant person</source><translation>persona embarazada</translation></message>
<message><source>pregnant woman</source><translation>mujer embarazada</translation></message>
<message><source>present</source><translation>presente</translation></message>
<message><source>pretzel</source><translation>bretzel</translation></message>
<message><source>prince</source><translation>príncipe</translation></message>
<message><source>princess</source><translation>princesa</translation></message>
<message><source>printer</source><translation>impresora</translation></message>
<message><source>privacy</source><translation>privacidad</translation></message>
<message><source>prohibited</source><translation>prohibido</translation></message>
<message><source>projector</source><translation>proyector</translation></message>
<message><source>proud</source><translation>orgulloso</translation></message>
<message><source>pudding</source><translation>pudding</translation></message>
<message><source>pulse</source><translation>latido</translation></message>
<message><source>punctuation</source><translation>puntuación</translation></message>
<message><source>purple</source><translation>morado</translation></message>
<message><source>purple circle</source><translation>círculo morado</translation></message>
<message><source>purple heart</source><translation>corazón morado</translation></message>
<message><source>purple square</source><translation>cuadrado morado</translation></message>
<message><source>purse</source><translation>monedero</translation></message>
<message><source>pushpin</source><translation>chincheta</translation></message>
<message><source>puzzle</source><translation>puzle</translation></message>
<message><source>puzzle piece</source><translation>pieza de puzle</translation></message>
<message><source>quarter</source><translation>cuarto</translation></message>
<message><source>rabbit</source><translation>conejo</translation></message>
<message><source>rabbit face</source><translation>cara de conejo</translation></message>
<message><source>raccoon</source><translation>mapache</translation></message>
<message><source>racehorse</source><translation>caballo de carreras</translation></message>
<message><source>racing</source><translation>carreras</translation></message>
<message><source>racing car</source><translation>coche de carreras</translation></message>
<message><source>racquet</source><translation>raqueta</translation></message>
<message><source>radio</source><translation>radio</translation></message>
<message><source>radio button</source><translation>botón de opción</translation></message>
<message><source>radioactive</source><translation>radiactivo</translation></message>
<message><source>railway</source><translation>ferrocarril</translation></message>
<message><source>railway car</source><translation>vagón</translation></message>
<message><source>railway track</source><translation>vía de tren</translation></message>
<message><source>rain</source><translation>lluvia</translation></message>
<message><source>rainbow</source><translation>arcoíris</translation></message>
<message><source>rainbow flag</source><translation>bandera del arcoíris</translation></message>
<message><source>raised back of hand</source><translation>dorso de la mano</translation></message>
<message><source>raised fist</source><translation>puño en alto</translation></message>
<message><source>raised hand</source><translation>mano levantada</translation></message>
<message><source>raising hands</source><translation>manos levantadas celebrando</translation></message>
<message><source>ram</source><translation>carnero</translation></message>
<message><source>rat</source><translation>rata</translation></message>
<message><source>rays</source><translation>rayos</translation></message>
<message><source>razor</source><translation>cuchilla de afeitar</translation></message>
<message><source>receipt</source><translation>recibo</translation></message>
<message><source>record button</source><translation>grabar</translation></message>
<message><source>recuperating</source><translation>recuperación</translation></message>
<message><source>recycling symbol</source><translation>símbolo de reciclaje</translation></message>
<message><source>red apple</source><translation>manzana roja</translation></message>
<message><source>red circle</source><translation>círculo rojo</translation></message>
<message><source>red envelope</source><translation>sobre rojo</translation></message>
<message><source>red exclamation mark</source><translation>exclamación roja</translation></message>
<message><source>red heart</source><translation>corazón rojo</translation></message>
<message><source>red paper lantern</source><translation>lámpara japonesa</translation></message>
<message><source>red question mark</source><translation>interrogación roja</translation></message>
<message><source>red square</source><translation>cuadrado rojo</translation></message>
<message><source>red triangle pointed down</source><translation>triángulo rojo hacia abajo</translation></message>
<message><source>red triangle pointed up</source><translation>triángulo rojo hacia arriba</translation></message>
<message><source>regal</source><translation>real</translation></message>
<message><source>registered</source><translation>marca registrada</translation></message>
<message><source>reincarnation</source><translation>reencarnación</translation></message>
<message><source>relieved</source><translation>aliviado</translation></message>
<message><source>relieved face</source><translation>cara de alivio</translation></message>
<message><source>religion</source><translation>religión</translation></message>
<message><source>reminder ribbon</source><translation>lazo conmemorativo</translation></message>
<message><source>repeat</source><translation>repetición</translation></message>
<message><source>repeat button</source><translation>repetir</translation></message>
<message><source>repeat single button</source><translation>repetir una vez</translation></message>
<message><source>reptile</source><translation>reptil</translation></message>
<message><source>rescue</source><translation>rescate</translation></message>
<message><source>rescue worker’s helmet</source><translation>casco con una cruz blanca</translation></message>
<message><source>reserved</source><translation>reservado</translation></message>
<message><source>resist</source><translation>resistir</translation></message>
<message><source>restroom</source><translation>señal de aseos</translation></message>
<message><source>reverse button</source><translation>retroceso</translation></message>
<message><source>revolving hearts</source><translation>corazones giratorios</translation></message>
<message><source>rhinoceros</source><translation>rinoceronte</translation></message>
<message><source>ribbon</source><translation>lazo</translation></message>
<message><source>rice</source><translation>arroz</translation></message>
<message><source>rice ball</source><translation>bola de arroz</translation></message>
<message><source>rice cracker</source><translation>galleta de arroz</translation></message>
<message><source>rickshaw</source><translation>rickshaw</translation></message>
<message><source>right</source><translation>derecha</translation></message>
<message><source>right anger bubble</source><translation>bocadillo de enfado por la derecha</translation></message>
<message><source>right arrow</source><translation>flecha hacia la derecha</translation></message>
<message><source>right arrow curving down</source><translation>flecha derecha curvándose hacia abajo</translation></message>
<message><source>right arrow curving left</source><translation>flecha derecha curvándose a la izquierda</translation></message>
<message><source>right arrow curving up</source><translation>flecha derecha curvándose hacia arriba</translation></message>
<message><source>right-facing fist</source><translation>puño hacia la derecha</translation></message>
<message><source>rightward</source><translation>a la derecha</translation></message>
<message><source>rightwards hand</source><translation>mano hacia la derecha</translation></message>
<message><source>rightwards pushing hand</source><translation>mano empujando hacia la derecha</translation></message>
<message><source>ring</source><translation>anillo</translation></message>
<message><source>ring buoy</source><translation>salvavidas</translation></message>
<message><source>ringed planet</source><translation>planeta con anillos</translation></message>
<message><source>roasted sweet potato</source><translation>patata asada</translation></message>
<message><source>robot</source><translation>robot</translation></message>
<message><source>rock</source><translation>piedra</translation></message>
<message><source>rock-on</source><translation>rock</translation></message>
<message><source>rocket</source><translation>cohete</translation></message>
<message><source>rofl</source><translation>risa</translation></message>
<message><source>roll of paper</source><translation>rollo de papel</translation></message>
<message><source>rolled-up newspaper</source><translation>periódico enrollado</translation></message>
<message><source>roller coaster</source><translation>montaña rusa</translation></message>
<message><source>roller skate</source><translation>patines</translation></message>
<message><source>rolling on the floor laughing</source><translation>cara revolviéndose de la risa</translation></message>
<message><source>rooster</source><translation>gallo</translation></message>
<message><source>root</source><translation>raíz</translation></message>
<message><source>root vegetable</source><translation>túberculo comestible</translation></message>
<message><source>rose</source><translation>rosa</translation></message>
<message><source>rosette</source><translation>roseta</translation></message>
<message><source>round pushpin</source><translation>chincheta redonda</translation></message>
<message><source>rugby</source><translation>rugby</translation></message>
<message><source>rugby football</source><translation>balón de rugby</translation></message>
<message><source>running</source><translation>correr</translation></message>
<message><source>running shirt</source><translation>camiseta sin mangas</translation></message>
<message><source>running shoe</source><translation>zapatilla deportiva</translation></message>
<message><source>russia</source><translation>rusia</translation></message>
<message><source>sad but relieved face</source><translation>cara triste pero aliviada</translation></message>
<message><source>safety</source><translation>seguridad</translation></message>
<message><source>safety pin</source><translation>imperdible</translation></message>
<message><source>safety vest</source><translation>chaleco de seguridad</translation></message>
<message><source>sagittarius</source><translation>sagitario</translation></message>
<message><source>sailboat</source><translation>velero</translation></message>
<message><source>sake</source><translation>sake</translation></message>
<message><source>salad</source><translation>ensalada</translation></message>
<message><source>salon</source><translation>salón</translation></message>
<message><source>salt</source><translation>sal</translation></message>
<message><source>saluting face</source><translation>cara saludando</translation></message>
<message><source>sandal</source><translation>sandalia</translation></message>
<message><source>sandwich</source><translation>sándwich</translation></message>
<message><source>santa</source><translation>santa</translation></message>
<message><source>sarcastic</source><translation>sarcasmo</translation></message>
<message><source>sari</source><translation>sari</translation></message>
<message><source>satellite</source><translation>satélite</translation></message>
<message><source>satellite antenna</source><translation>antena de satélite</translation></message>
<message><source>sauna</source><translation>sauna</translation></message>
<message><source>sauropod</source><translation>saurópodo</translation></message>
<message><source>saxophone</source><translation>saxofón</translation></message>
<message><source>scale</source><translation>fiscal</translation></message>
<message><source>scarf</source><translation>bufanda</translation></message>
<message><source>school</source><translation>colegio</translation></message>
<message><source>scientist</source><translation>profesional de la ciencia</translation></message>
<message><source>scissors</source><translation>tijeras</translation></message>
<message><source>scorpion</source><translation>escorpión</translation></message>
<message><source>scorpius</source><translation>escorpio</translation></message>
<message><source>screwdriver</source><translation>destornillador</translation></message>
<message><source>scroll</source><translation>pergamino</translation></message>
<message><source>seal</source><translation>foca</translation></message>
<message><source>seat</source><translation>asiento de transporte</translation></message>
<message><source>see-no-evil monkey</source><translation>mono con los ojos tapados</translation></message>
<message><source>seedling</source><translation>planta joven</translation></message>
<message><source>selfie</source><translation>selfi</translation></message>
<message><source>serpent</source><translation>serpiente</translation></message>
<message><source>service dog</source><translation>perro de servicio</translation></message>
<message><source>seven o’clock</source><translation>7 en punto</translation></message>
<message><source>seven-thirty</source><translation>siete y media</translation></message>
<message><source>sewing needle</source><translation>aguja de coser</translation></message>
<message><source>shaking face</source><translation>cara temblorosa</translation></message>
<message><source>shallow pan of food</source><translation>paella</translation></message>
<message><source>shamrock</source><translation>trébol</translation></message>
<message><source>shark</source><translation>tiburón</translation></message>
<message><source>shave</source><translation>barbero</translation></message>
<message><source>shaved ice</source><translation>granizado hawaiano</translation></message>
<message><source>sheaf of rice</source><translation>espiga de arroz</translation></message>
<message><source>shield</source><translation>escudo</translation></message>
<message><source>shinkansen</source><translation>shinkansen</translation></message>
<message><source>shinto shrine</source><translation>santuario sintoísta</translation></message>
<message><source>ship</source><translation>barco</translation></message>
<message><source>shoe</source><translation>calzado</translation></message>
<message><source>shooting star</source><translation>estrella fugaz</translation></message>
<message><source>shopping bags</source><translation>bolsas de compras</translation></message>
<message><source>shopping cart</source><translation>carrito de la compra</translation></message>
<message><source>shortcake</source><translation>trozo de tarta</translation></message>
<message><source>shorts</source><translation>pantalones cortos</translation></message>
<message><source>shovel</source><translation>pala</translation></message>
<message><source>shower</source><translation>ducha</translation></message>
<message><source>showing</source><translation>planeta</translation></message>
<message><source>shrimp</source><translation>gamba</translation></message>
<message><source>shuffle tracks button</source><translation>reproducción aleatoria</translation></message>
<message><source>shushing face</source><translation>cara pidiendo silencio</translation></message>
<message><source>sign of the horns</source><translation>mano haciendo el signo de cuernos</translation></message>
<message><source>silent</source><translation>silencio</translation></message>
<message><source>silhouette</source><translation>silueta</translation></message>
<message><source>silver</source><translation>plata</translation></message>
<message><source>singer</source><translation>cantante</translation></message>
<message><source>siren</source><translation>sirena</translation></message>
<message><source>six o’clock</source><translation>6 en punto</translation></message>
<message><source>six-thirty</source><translation>seis y media</translation></message>
<message><source>skateboard</source><translation>monopatín</translation></message>
<message><source>skeleton</source><translation>esqueleto</translation></message>
<message><source>skeptical</source><translation>escéptico</translation></message>
<message><source>skewer</source><translation>pincho</translation></message>
<message><source>skier</source><translation>persona esquiando</translation></message>
<message><source>skis</source><translation>esquís</translation></message>
<message><source>skull</source><translation>calavera</translation></message>
<message><source>skull and crossbones</source><translation>calavera y huesos cruzados</translation></message>
<message><source>skunk</source><translation>mofeta</translation></message>
<message><source>sled</source><translation>trineo</translation></message>
<message><source>sleep</source><translation>dormir</translation></message>
<message><source>sleeping face</source><translation>cara durmiendo</translation></message>
<message><source>sleepy</source><translation>sueño</translation></message>
<message><source>sleepy face</source><translation>cara de sueño</translation></message>
<message><source>slightly frowning face</source><translation>cara con el ceño ligeramente fruncido</translation></message>
<message><source>slightly smiling face</source><translation>cara sonriendo ligeramente</translation></message>
<message><source>slot machine</source><translation>máquina tragaperras</translation></message>
<message><source>sloth</source><translation>perezoso</translation></message>
<message><source>small airplane</source><translation>avioneta</translation></message>
<message><source>small blue diamond</source><translation>rombo azul pequeño</translation></message>
<message><source>small orange diamond</source><translation>rombo naranja pequeño</translation></message>
<message><source>smile</source><translation>sonrisa</translation></message>
<message><source>smiling cat with heart-eyes</source><translation>gato sonriendo con ojos de corazón</translation></message>
<message><source>smiling face</source><translation>cara sonriente</translation></message>
<message><source>smiling face with halo</source><translation>cara sonriendo con aureola</translation></message>
<message><source>smiling face with heart-eyes</source><translation>cara sonriendo con ojos de corazón</translation></message>
<message><source>smiling face with hearts</source><translation>cara sonriendo con corazones</translation></message>
<message><source>smiling face with horns</source><translation>cara sonriendo con cuernos</translation></message>
<message><source>smiling face with open hands</source><translation>cara con manos abrazando</translation></message>
<message><source>smiling face with smiling eyes</source><translation>cara feliz con ojos sonrientes</translation></message>
<message><source>smiling face with sunglasses</source><translation>cara sonriendo con gafas de sol</translation></message>
<message><source>smiling face with tear</source><translation>cara sonriente con lágrima</translation></message>
<message><source>smirking face</source><translation>cara sonriendo con superioridad</translation></message>
<message><source>smoking</source><translation>fumar</translation></message>
<message><source>snail</source><translation>caracol</translation></message>
<message><source>snake</source><translation>serpiente</translation></message>
<message><source>sneezing face</source><translation>cara estornudando</translation></message>
<message><source>snow</source><translation>nieve</translation></message>
<message><source>snow-capped mountain</source><translation>montaña con nieve</translation></message>
<message><source>snowboarder</source><translation>practicante de snowboard</translation></message>
<message><source>snowflake</source><translation>copo de nieve</translation></message>
<message><source>snowman</source><translation>muñeco de nieve con nieve</translation></message>
<message><source>snowman without snow</source><translation>muñeco de nieve</translation></message>
<message><source>soap</source><translation>jabón</translation></message>
<message><source>soccer ball</source><translation>balón de fútbol</translation></message>
<message><source>socks</source><translation>calcetines</translation></message>
<message><source>soft ice cream</source><translation>cucurucho de helado</translation></message>
<message><source>softball</source><translation>pelota de softball</translation></message>
<message><source>software</source><translation>software</translation></message>
<message><source>sour</source><translation>cítrico</translation></message>
<message><source>space</source><translation>espacio</translation></message>
<message><source>spade suit</source><translation>palo de picas</translation></message>
<message><source>spaghetti</source><translation>espagueti</translation></message>
<message><source>sparkle</source><translation>chispa</translation></message>
<message><source>sparkler</source><translation>bengala</translation></message>
<message><source>sparkles</source><translation>chispas</translation></message>
<message><source>sparkling heart</source><translation>corazón brillante</translation></message>
<message><source>speak-no-evil monkey</source><translation>mono con la boca tapada</translation></message>
<message><source>speaker high volume</source><translation>altavoz a volumen alto</translation></message>
<message><source>speaker low volume</source><translation>altavoz a volumen bajo</translation></message>
<message><source>speaker medium volume</source><translation>altavoz a volumen medio</translation></message>
<message><source>speaking head</source><translation>cabeza parlante</translation></message>
<message><source>speculum</source><translation>espéculo</translation></message>
<message><source>speech balloon</source><translation>bocadillo de diálogo</translation></message>
<message><source>speedboat</source><translation>lancha motora</translation></message>
<message><source>spider</source><translation>araña</translation></message>
<message><source>spider web</source><translation>tela de araña</translation></message>
<message><source>spiral</source><translation>espiral</translation></message>
<message><source>spiral calendar</source><translation>calendario de espiral</translation></message>
<message><source>spiral notepad</source><translation>bloc de notas de espiral</translation></message>
<message><source>spiral shell</source><translation>caracola</translation></message>
<message><source>splatter</source><translation>salpicadura</translation></message>
<message><source>sponge</source><translation>esponja</translation></message>
<message><source>spoon</source><translation>cuchara</translation></message>
<message><source>sport utility vehicle</source><translation>vehículo deportivo utilitario</translation></message>
<message><source>sports medal</source><translation>medalla deportiva</translation></message>
<message><source>spouting whale</source><translation>ballena soltando un chorro</translation></message>
<message><source>square</source><translation>cuadrado</translation></message>
<message><source>squid</source><translation>calamar</translation></message>
<message><source>squinting face with tongue</source><translation>cara con ojos cerrados y lengua fuera</translation></message>
<message><source>stadium</source><translation>estadio</translation></message>
<message><source>star</source><translation>estrella</translation></message>
<message><source>star and crescent</source><translation>media luna y estrella</translation></message>
<message><source>star of David</source><translation>estrella de David</translation></message>
<message><source>star-struck</source><translation>cara sonriendo con estrellas</translation></message>
<message><source>station</source><translation>estación de tren</translation></message>
<message><source>statue</source><translation>estatua</translation></message>
<message><source>steaming bowl</source><translation>tazón de fideos</translation></message>
<message><source>stethoscope</source><translation>estetoscopio</translation></message>
<message><source>stop</source><translation>stop</translation></message>
<message><source>stop button</source><translation>detener</translation></message>
<message><source>stop sign</source><translation>señal de stop</translation></message>
<message><source>stopwatch</source><translation>cronómetro</translation></message>
<message><source>straight ruler</source><translation>regla</translation></message>
<message><source>strawberry</source><translation>fresa</translation></message>
<message><source>student</source><translation>estudiante</translation></message>
<message><source>studio</source><translation>estudio</translation></message>
<message><source>studio microphone</source><translation>micrófono de estudio</translation></message>
<message><source>stuffed flatbread</source><translation>pan relleno</translation></message>
<message><source>suction</source><translation>succión</translation></message>
<message><source>sun</source><translation>sol</translation></message>
<message><source>sun behind cloud</source><translation>sol detrás de una nube</translation></message>
<message><source>sun behind large cloud</source><translation>sol detrás de una nube grande</translation></message>
<message><source>sun behind rain cloud</source><translation>sol detrás de una nube con lluvia</translation></message>
<message><source>sun behind small cloud</source><translation>sol detrás de una nube pequeña</translation></message>
<message><source>sun with face</source><translation>sol con cara</translation></message>
<message><source>sunflower</source><translation>girasol</translation></message>
<message><source>sunglasses</source><translation>gafas de sol</translation></message>
<message><source>sunrise</source><translation>amanecer</translation></message>
<message><source>sunrise over mountains</source><translation>amanecer sobre montañas</translation></message>
<message><source>sunset</source><translation>puesta del sol</translation></message>
<message><source>superhero</source><translation>personaje de superhéroe</translation></message>
<message><source>superpower</source><translation>superpoder</translation></message>
<message><source>supervillain</source><translation>personaje de supervillano</translation></message>
<message><source>sushi</source><translation>sushi</translation></message>
<message><source>suspension</source><translation>suspensión</translation></message>
<message><source>suspension railway</source><translation>ferrocarril de suspensión</translation></message>
<message><source>swan</source><translation>cisne</translation></message>
<message><source>sweat</source><translation>sudor</translation></message>
<message><source>sweat droplets</source><translation>gotas de sudor</translation></message>
<message><source>swimsuit</source><translation>bañador</translation></message>
<message><source>symbols</source><translation>símbolos</translation></message>
<message><source>synagogue</source><translation>sinagoga</translation></message>
<message><source>syringe</source><translation>jeringuilla</translation></message>
<message><source>t-shirt</source><translation>camiseta</translation></message>
<message><source>taco</source><translation>taco</translation></message>
<message><source>taekwondo</source><translation>taekwondo</translation></message>
<message><source>takeout box</source><translation>caja para llevar</translation></message>
<message><source>talisman</source><translation>talismán</translation></message>
<message><source>tamale</source><translation>tamal</translation></message>
<message><source>tanabata</source><translation>tanabata</translation></message>
<message><source>tanabata tree</source><translation>árbol de tanabata</translation></message>
<message><source>tangerine</source><translation>mandarina</translation></message>
<message><source>taoist</source><translation>taoísmo</translation></message>
<message><source>taurus</source><translation>tauro</translation></message>
<message><source>taxi</source><translation>taxi</translation></message>
<message><source>tea</source><translation>té</translation></message>
<message><source>teacher</source><translation>docente</translation></message>
<message><source>teacup without handle</source><translation>tazón de té</translation></message>
<message><source>teapot</source><translation>tetera</translation></message>
<message><source>tear</source><translation>lágrima</translation></message>
<message><source>tear-off calendar</source><translation>calendario recortable</translation></message>
<message><source>technologist</source><translation>profesional de la tecnología</translation></message>
<message><source>teddy bear</source><translation>osito de peluche</translation></message>
<message><source>telephone</source><translation>teléfono</translation></message>
<message><source>telephone receiver</source><translation>auricular de teléfono</translation></message>
<message><source>telescope</source><translation>telescopio</translation></message>
<message><source>television</source><translation>televisión</translation></message>
<message><source>temple</source><translation>templo</translation></message>
<message><source>ten o’clock</source><translation>10 en punto</translation></message>
<message><source>ten-thirty</source><translation>diez y media</translation></message>
<message><source>tennis</source><translation>pelota de tenis</translation></message>
<message><source>tent</source><translation>tienda de campaña</translation></message>
<message><source>test tube</source><translation>tubo de ensayo</translation></message>
<message><source>thanks</source><translation>gracias</translation></message>
<message><source>thermometer</source><translation>termómetro</translation></message>
<message><source>thinking face</source><translation>cara pensativa</translation></message>
<message><source>thong sandal</source><translation>chancla</translation></message>
<message><source>thought balloon</source><translation>bocadillo de pensamiento</translation></message>
<message><source>thread</source><translation>hilo</translation></message>
<message><source>three o’clock</source><translation>3 en punto</translation></message>
<message><source>three-thirty</source><translation>tres y media</translation></message>
<message><source>thumbs down</source><translation>pulgar hacia abajo</translation></message>
<message><source>thumbs up</source><translation>pulgar hacia arriba</translation></message>
<message><source>ticket</source><translation>tique</translation></message>
<message><source>tiger</source><translation>tigre</translation></message>
<message><source>tiger face</source><translation>cara de tigre</translation></message>
<message><source>timer</source><translation>temporizador</translation></message>
<message><source>timer clock</source><translation>temporizador</translation></message>
<message><source>tired</source><translation>cansado</translation></message>
<message><source>tired face</source><translation>cara cansada</translation></message>
<message><source>toilet</source><translation>inodoro</translation></message>
<message><source>tomato</source><translation>tomate</translation></message>
<message><source>tone</source><translation>tono</translation></message>
<message><source>tongue</source><translation>lengua</translation></message>
<message><source>tool</source><translation>herramienta</translation></message>
<message><source>toolbox</source><translation>caja de herramientas</translation></message>
<message><source>tooth</source><translation>diente</translation></message>
<message><source>toothbrush</source><translation>cepillo de dientes</translation></message>
<message><source>top hat</source><translation>sombrero de copa</translation></message>
<message><source>tornado</source><translation>tornado</translation></message>
<message><source>trackball</source><translation>bola de desplazamiento</translation></message>
<message><source>tractor</source><translation>tractor</translation></message>
<message><source>trade mark</source><translation>símbolo de marca comercial</translation></message>
<message><source>traffic</source><translation>tráfico</translation></message>
<message><source>train</source><translation>tren</translation></message>
<message><source>tram</source><translation>tranvía</translation></message>
<message><source>tram car</source><translation>vagón de tranvía</translation></message>
<message><source>transgender</source><translation>transgénero</translation></message>
<message><source>transgender flag</source><translation>bandera transgénero</translation></message>
<message><source>transgender symbol</source><translation>símbolo de transgénero</translation></message>
<message><source>transparent</source><translation>transparente</translation></message>
<message><source>trap</source><translation>trampa</translation></message>
<message><source>tray</source><translation>bandeja</translation></message>
<message><source>treasure</source><translation>tesoro</translation></message>
<message><source>tree</source><translation>árbol</translation></message>
<message><source>triangle</source><translation>triángulo</translation></message>
<message><source>triangular flag</source><translation>bandera triangular</translation></message>
<message><source>triangular ruler</source><translation>escuadra</translation></message>
<message><source>trident</source><translation>tridente</translation></message>
<message><source>trident emblem</source><translation>emblema de tridente</translation></message>
<message><source>troll</source><translation>trol</translation></message>
<message><source>trolleybus</source><translation>trolebús</translation></message>
<message><source>trophy</source><translation>trofeo</translation></message>
<message><source>tropical</source><translation>tropical</translation></message>
<message><source>tropical drink</source><translation>bebida tropical</translation></message>
<message><source>tropical fish</source><translation>pez tropical</translation></message>
<message><source>trumpet</source><translation>trompeta</translation></message>
<message><source>tulip</source><translation>tulipán</translation></message>
<message><source>tumbler glass</source><translation>vaso de whisky</translation></message>
<message><source>turban</source><translation>turbante</translation></message>
<message><source>turkey</source><translation>pavo</translation></message>
<message><source>turtle</source><translation>tortuga</translation></message>
<message><source>twelve o’clock</source><translation>12 en punto</translation></message>
<message><source>twelve-thirty</source><translation>doce y media</translation></message>
<message><source>two hearts</source><translation>dos corazones</translation></message>
<message><source>two o’clock</source><translation>2 en punto</translation></message>
<message><source>two-hump camel</source><translation>camello</translation></message>
<message><source>two-thirty</source><translation>dos y media</translation></message>
<message><source>ufo</source><translation>ovni</translation></message>
<message><source>umbrella</source><translation>paraguas</translation></message>
<message><source>umbrella on ground</source><translation>sombrilla en la arena</translation></message>
<message><source>umbrella with rain drops</source><translation>paraguas con gotas de lluvia</translation></message>
<message><source>umrah</source><translation>umrah</translation></message>
<message><source>unamused face</source><translation>cara de desaprobación</translation></message>
<message><source>unicorn</source><translation>unicornio</translation></message>
<message><source>unimpressed</source><translation>inexpresivo</translation></message>
<message><source>universal</source><translation>universal</translation></message>
<message><source>unlocked</source><translation>candado abierto</translation></message>
<message><source>up arrow</source><translation>flecha hacia arriba</translation></message>
<message><source>up-down arrow</source><translation>flecha arriba y abajo</translation></message>
<message><source>up-left arrow</source><translation>flecha hacia la esquina superior izquierda</translation></message>
<message><source>up-right arrow</source><translation>flecha hacia la esquina superior derecha</translation></message>
<message><source>upside-down face</source><translation>cara al revés</translation></message>
<message><source>upwards button</source><translation>triángulo hacia arriba</translation></message>
<message><source>vacancy</source><translation>vacante</translation></message>
<message><source>vampire</source><translation>vampiro</translation></message>
<message><source>vegetable</source><translation>verdura</translation></message>
<message><source>veil</source><translation>velo</translation></message>
<message><source>versus</source><translation>versus</translation></message>
<message><source>vertical</source><translation>vertical</translation></message>
<message><source>vertical traffic light</source><translation>semáforo</translation></message>
<message><source>vibrate</source><translation>vibrar</translation></message>
<message><source>vibration</source><translation>vibración</translation></message>
<message><source>vibration mode</source><translation>modo vibración</translation></message>
<message><source>victory</source><translation>victoria</translation></message>
<message><source>victory hand</source><translation>mano con señal de victoria</translation></message>
<message><source>vicuña</source><translation>vicuña</translation></message>
<message><source>video camera</source><translation>videocámara</translation></message>
<message><source>video game</source><translation>mando de videoconsola</translation></message>
<message><source>videocassette</source><translation>cinta de vídeo</translation></message>
<message><source>violin</source><translation>violín</translation></message>
<message><source>virus</source><translation>virus</translation></message>
<message><source>volcano</source><translation>volcán</translation></message>
<message><source>volleyball</source><translation>pelota de voleibol</translation></message>
<message><source>voltage</source><translation>voltaje</translation></message>
<message><source>vomit</source><translation>vomitar</translation></message>
<message><source>vulcan salute</source><translation>saludo vulcano</translation></message>
<message><source>waffle</source><translation>gofre</translation></message>
<message><source>waning crescent moon</source><translation>luna menguante</translation></message>
<message><source>waning gibbous moon</source><translation>luna gibosa menguante</translation></message>
<message><source>warning</source><translation>advertencia</translation></message>
<message><source>wastebasket</source><translation>papelera</translation></message>
<message><source>watch</source><translation>reloj</translation></message>
<message><source>water</source><translation>agua</translation></message>
<message><source>water buffalo</source><translation>búfalo de agua</translation></message>
<message><source>water closet</source><translation>aseos</translation></message>
<message><source>water pistol</source><translation>pistola de agua</translation></message>
<message><source>water wave</source><translation>ola de mar</translation></message>
<message><source>watermelon</source><translation>sandía</translation></message>
<message><source>waving</source><translation>ondear</translation></message>
<message><source>waving hand</source><translation>mano saludando</translation></message>
<message><source>wavy dash</source><translation>guion ondulado</translation></message>
<message><source>waxing crescent moon</source><translation>luna creciente</translation></message>
<message><source>waxing gibbous moon</source><translation>luna gibosa creciente</translation></message>
<message><source>weary cat</source><translation>gato asustado</translation></message>
<message><source>weary face</source><translation>cara agotada</translation></message>
<message><source>wedding</source><translation>iglesia celebrando boda</translation></message>
<message><source>weight</source><translation>peso</translation></message>
<message><source>whale</source><translation>ballena</translation></message>
<message><source>wheel</source><translation>rueda</translation></message>
<message><source>wheel of dharma</source><translation>rueda del dharma</translation></message>
<message><source>wheelchair</source><translation>silla de ruedas</translation></message>
<message><source>wheelchair symbol</source><translation>símbolo de silla de ruedas</translation></message>
<message><source>white cane</source><translation>bastón</translation></message>
<message><source>white circle</source><translation>círculo blanco</translation></message>
<message><source>white exclamation mark</source><translation>exclamación blanca</translation></message>
<message><source>white flag</source><translation>bandera blanca</translation></message>
<message><source>white flower</source><translation>flor blanca</translation></message>
<message><source>white heart</source><translation>corazón blanco</translation></message>
<message><source>white large square</source><translation>cuadrado blanco grande</translation></message>
<message><source>white medium square</source><translation>cuadrado blanco mediano</translation></message>
<message><source>white medium-small square</source><translation>cuadrado blanco mediano-pequeño</translation></message>
<message><source>white question mark</source><translation>interrogación blanca</translation></message>
<message><source>white small square</source><translation>cuadrado blanco pequeño</translation></message>
<message><source>white square button</source><translation>botón cuadrado con borde blanco</translation></message>
<message><source>wilted flower</source><translation>flor marchita</translation></message>
<message><source>wind</source><translation>viento</translation></message>
<message><source>wind chime</source><translation>campanilla de viento</translation></message>
<message><source>wind face</source><translation>cara de viento</translation></message>
<message><source>window</source><translation>ventana</translation></message>
<message><source>wine glass</source><translation>copa de vino</translation></message>
<message><source>wing</source><translation>ala</translation></message>
<message><source>winking face</source><translation>cara guiñando el ojo</translation></message>
<message><source>winking face with tongue</source><translation>cara sacando la lengua y guiñando un ojo</translation></message>
<message><source>wireless</source><translation>wifi</translation></message>
<message><source>witch</source><translation>bruja</translation></message>
<message><source>wolf</source><translation>lobo</translation></message>
<message><source>woman</source><translation>mujer</translation></message>
<message><source>woman and man holding hands</source><translation>mujer y hombre de la mano</translation></message>
<message><source>woman artist</source><translation>artista mujer</translation></message>
<message><source>woman astronaut</source><translation>astronauta mujer</translation></message>
<message><source>woman biking</source><translation>mujer en bicicleta</translation></message>
<message><source>woman bouncing ball</source><translation>mujer botando un balón</translation></message>
<message><source>woman bowing</source><translation>mujer haciendo una reverencia</translation></message>
<message><source>woman cartwheeling</source><translation>mujer dando una voltereta lateral</translation></message>
<message><source>woman climbing</source><translation>mujer escalando</translation></message>
<message><source>woman construction worker</source><translation>profesional de la construcción mujer</translation></message>
<message><source>woman cook</source><translation>chef mujer</translation></message>
<message><source>woman dancing</source><translation>mujer bailando</translation></message>
<message><source>woman detective</source><translation>detective mujer</translation></message>
<message><source>woman elf</source><translation>elfa</translation></message>
<message><source>woman facepalming</source><translation>mujer con la mano en la frente</translation></message>
<message><source>woman factory worker</source><translation>profesional industrial mujer</translation></message>
<message><source>woman fairy</source><translation>hada mujer</translation></message>
<message><source>woman farmer</source><translation>profesional de la agricultura mujer</translation></message>
<message><source>woman feeding baby</source><translation>mujer alimentando a bebé</translation></message>
<message><source>woman firefighter</source><translation>bombera</translation></message>
<message><source>woman frowning</source><translation>mujer frunciendo el ceño</translation></message>
<message><source>woman genie</source><translation>genio mujer</translation></message>
<message><source>woman gesturing NO</source><translation>mujer haciendo el gesto de "no"</translation></message>
<message><source>woman gesturing OK</source><translation>mujer haciendo el gesto de "de acuerdo"</translation></message>
<message><source>woman getting haircut</source><translation>mujer cortándose el pelo</translation></message>
<message><source>woman getting massage</source><translation>mujer recibiendo masaje</translation></message>
<message><source>woman golfing</source><translation>mujer jugando al golf</translation></message>
<message><source>woman guard</source><translation>guardia mujer</translation></message>
<message><source>woman health worker</source><translation>profesional sanitario mujer</translation></message>
<message><source>woman in lotus position</source><translation>mujer en posición de loto</translation></message>
<message><source>woman in manual wheelchair</source><translation>mujer en silla de ruedas manual</translation></message>
<message><source>woman in manual wheelchair: facing right</source><translation>mujer en silla de ruedas manual: hacia la derecha</translation></message>
<message><source>woman in motorized wheelchair</source><translation>mujer en silla de ruedas eléctrica</translation></message>
<message><source>woman in motorized wheelchair: facing right</source><translation>mujer en silla de ruedas eléctrica: hacia la derecha</translation></message>
<message><source>woman in steamy room</source><translation>mujer en una sauna</translation></message>
<message><source>woman in tuxedo</source><translation>mujer con esmoquin</translation></message>
<message><source>woman judge</source><translation>fiscal mujer</translation></message>
<message><source>woman juggling</source><translation>mujer haciendo malabares</translation></message>
<message><source>woman kneeling</source><translation>mujer de rodillas</translation></message>
<message><source>woman kneeling: facing right</source><translation>mujer de rodillas: hacia la derecha</translation></message>
<message><source>woman lifting weights</source><translation>mujer levantando pesas</translation></message>
<message><source>woman mage</source><translation>maga</translation></message>
<message><source>woman mechanic</source><translation>profesional de la mecánica mujer</translation></message>
<message><source>woman mountain biking</source><translation>mujer en bicicleta de montaña</translation></message>
<message><source>woman office worker</source><translation>oficinista mujer</translation></message>
<message><source>woman pilot</source><translation>piloto mujer</translation></message>
<message><source>woman playing handball</source><translation>mujer jugando al balonmano</translation></message>
<message><source>woman playing water polo</source><translation>mujer jugando al waterpolo</translation></message>
<message><source>woman police officer</source><translation>agente de policía mujer</translation></message>
<message><source>woman pouting</source><translation>mujer haciendo pucheros</translation></message>
<message><source>woman raising hand</source><translation>mujer con la mano levantada</translation></message>
<message><source>woman rowing boat</source><translation>mujer remando en un bote</translation></message>
<message><source>woman running</source><translation>mujer corriendo</translation></message>
<message><source>woman running: facing right</source><translation>mujer corriendo: hacia la derecha</translation></message>
<message><source>woman scientist</source><translation>profesional de la ciencia mujer</translation></message>
<message><source>woman shrugging</source><translation>mujer encogida de hombros</translation></message>
<message><source>woman singer</source><translation>cantante mujer</translation></message>
<message><source>woman standing</source><translation>mujer de pie</translation></message>
<message><source>woman student</source><translation>estudiante mujer</translation></message>
<message><source>woman superhero</source><translation>superheroína</translation></message>
<message><source>woman supervillain</source><translation>supervillana</translation></message>
<message><source>woman surfing</source><translation>mujer haciendo surf</translation></message>
<message><source>woman swimming</source><translation>mujer nadando</translation></message>
<message><source>woman teacher</source><translation>docente mujer</translation></message>
<message><source>woman technologist</source><translation>profesional de la tecnología mujer</translation></message>
<message><source>woman tipping hand</source><translation>empleada de mostrador de información</translation></message>
<message><source>woman vampire</source><translation>vampiresa</translation></message>
<message><source>woman walking</source><translation>mujer caminando</translation></message>
<message><source>woman walking: facing right</source><translation>mujer caminando: hacia la derecha</translation></message>
<message><source>woman wearing turban</source><translation>mujer con turbante</translation></message>
<message><source>woman with headscarf</source><translation>mujer con hiyab</translation></message>
<message><source>woman with veil</source><translation>mujer con velo</translation></message>
<message><source>woman with white cane</source><translation>mujer con bastón</translation></message>
<message><source>woman with white cane: facing right</source><translation>mujer con bastón: hacia la derecha</translation></message>
<message><source>woman zombie</source><translation>zombi mujer</translation></message>
<message><source>woman: bald</source><translation>mujer: sin pelo</translation></message>
<message><source>woman: beard</source><translation>mujer: barba</translation></message>
<message><source>woman: blond hair</source><translation>mujer rubia</translation></message>
<message><source>woman: curly hair</source><translation>mujer: pelo rizado</translation></message>
<message><source>woman: red hair</source><translation>mujer: pelo pelirrojo</translation></message>
<message><source>woman: white hair</source><translation>mujer: pelo blanco</translation></message>
<message><source>woman’s boot</source><translation>bota de mujer</translation></message>
<message><source>woman’s clothes</source><translation>ropa de mujer</translation></message>
<message><source>woman’s hat</source><translation>sombrero de mujer</translation></message>
<message><source>woman’s sandal</source><translation>sandalia de mujer</translation></message>
<message><source>women holding hands</source><translation>mujeres de la mano</translation></message>
<message><source>women with bunny ears</source><translation>mujeres con orejas de conejo</translation></message>
<message><source>women wrestling</source><translation>mujeres luchando</translation></message>
<message><source>women’s room</source><translation>señal de aseo para mujeres</translation></message>
<message><source>wood</source><translation>madera</translation></message>
<message><source>woohoo</source><translation>confeti</translation></message>
<message><source>woozy</source><translation>mareado</translation></message>
<message><source>woozy face</source><translation>cara de grogui</translation></message>
<message><source>world</source><translation>mundo</translation></message>
<message><source>world map</source><translation>mapa mundial</translation></message>
<message><source>worm</source><translation>gusano</translation></message>
<message><source>worried face</source><translation>cara preocupada</translation></message>
<message><source>worry</source><translation>preocupado</translation></message>
<message><source>wrap</source><translation>wrap</translation></message>
<message><source>wrapped gift</source><translation>regalo</translation></message>
<message><source>wrench</source><translation>llave inglesa</translation></message>
<message><source>writing hand</source><translation>mano escribiendo</translation></message>
<message><source>x-ray</source><translation>radiografía</translation></message>
<message><source>yarn</source><translation>ovillo</translation></message>
<message><source>yawn</source><translation>dormido</translation></message>
<message><source>yawning face</source><translation>cara de bostezo</translation></message>
<message><source>yellow</source><translation>amarillo</translation></message>
<message><source>yellow circle</source><translation>círculo amarillo</translation></message>
<message><source>yellow heart</source><translation>corazón amarillo</translation></message>
<message><source>yellow square</source><translation>cuadrado amarillo</translation></message>
<message><source>yen banknote</source><translation>billete de yen</translation></message>
<message><source>yin yang</source><translation>yin yang</translation></message>
<message><source>yo-yo</source><translation>yoyó</translation></message>
<message><source>york</source><translation>york</translation></message>
<message><source>young</source><translation>joven</translation></message>
<message><source>yurt</source><translation>yurta</translation></message>
<message><source>yuèbǐng</source><translation>yuebing</translation></message>
<message><source>zany face</source><translation>cara de loco</translation></message>
<message><source>zebra</source><translation>cebra</translation></message>
<message><source>zero</source><translation>cero</translation></message>
<message><source>zipper-mouth face</source><translation>cara con la boca cerrada con cremallera</translation></message>
<message><source>zodiac</source><translation>zodiaco</translation></message>
<message><source>zombie</source><translation>zombi</translation></message>
</context>
</TS>
