<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context><name>EmojiLocalisation</name>
<message><source>!</source><translation>!</translation></message>
<message><source>*</source><translation>*</translation></message>
<message><source>10:00</source><translation>10h00</translation></message>
<message><source>10:30</source><translation>10h30</translation></message>
<message><source>11:30</source><translation>11h30</translation></message>
<message><source>12:00</source><translation>12h00</translation></message>
<message><source>12:30</source><translation>12h30</translation></message>
<message><source>143</source><translation>emoção</translation></message>
<message><source>1:00</source><translation>1h00</translation></message>
<message><source>1st place medal</source><translation>medalha de ouro</translation></message>
<message><source>2:00</source><translation>2h00</translation></message>
<message><source>2nd place medal</source><translation>medalha de prata</translation></message>
<message><source>3rd place medal</source><translation>medalha de bronze</translation></message>
<message><source>4:30</source><translation>4h30</translation></message>
<message><source>5</source><translation>cinco</translation></message>
<message><source>5:00</source><translation>5h00</translation></message>
<message><source>5:30</source><translation>5h30</translation></message>
<message><source>6:00</source><translation>6h00</translation></message>
<message><source>6:30</source><translation>6h30</translation></message>
<message><source>7:00</source><translation>7h00</translation></message>
<message><source>9:00</source><translation>9h00</translation></message>
<message><source>?</source><translation>?</translation></message>
<message><source>A button (blood type)</source><translation>botão A (tipo sanguíneo)</translation></message>
<message><source>AB button (blood type)</source><translation>botão AB (tipo sanguíneo)</translation></message>
<message><source>ATM sign</source><translation>símbolo de caixa automático</translation></message>
<message><source>Aquarius</source><translation>signo de Aquário</translation></message>
<message><source>Aries</source><translation>signo de Áries</translation></message>
<message><source>B button (blood type)</source><translation>botão B (tipo sanguíneo)</translation></message>
<message><source>BACK arrow</source><translation>seta "BACK"</translation></message>
<message><source>CL button</source><translation>botão CL</translation></message>
<message><source>COOL button</source><translation>botão "COOL"</translation></message>
<message><source>Cancer</source><translation>signo de Câncer</translation></message>
<message><source>Capricorn</source><translation>signo de Capricórnio</translation></message>
<message><source>Christmas tree</source><translation>árvore de natal</translation></message>
<message><source>END arrow</source><translation>seta "END"</translation></message>
<message><source>FREE button</source><translation>botão "FREE"</translation></message>
<message><source>Gemini</source><translation>signo de Gêmeos</translation></message>
<message><source>ID button</source><translation>botão ID</translation></message>
<message><source>Japanese castle</source><translation>castelo japonês</translation></message>
<message><source>Japanese dolls</source><translation>bonecas japonesas</translation></message>
<message><source>Japanese post office</source><translation>correio japonês</translation></message>
<message><source>Japanese symbol for beginner</source><translation>símbolo japonês de principiante</translation></message>
<message><source>Japanese “acceptable” button</source><translation>botão japonês de “aceitável”</translation></message>
<message><source>Japanese “application” button</source><translation>botão japonês de “aplicação”</translation></message>
<message><source>Japanese “bargain” button</source><translation>botão japonês de “barganha”</translation></message>
<message><source>Japanese “congratulations” button</source><translation>botão japonês de “parabéns”</translation></message>
<message><source>Japanese “discount” button</source><translation>botão japonês de “desconto”</translation></message>
<message><source>Japanese “free of charge” button</source><translation>botão japonês de “gratuito”</translation></message>
<message><source>Japanese “here” button</source><translation>botão japonês de “aqui”</translation></message>
<message><source>Japanese “monthly amount” button</source><translation>botão japonês de “quantidade mensal”</translation></message>
<message><source>Japanese “no vacancy” button</source><translation>botão japonês de “sem vagas”</translation></message>
<message><source>Japanese “not free of charge” button</source><translation>botão japonês de “não gratuito”</translation></message>
<message><source>Japanese “open for business” button</source><translation>botão japonês de “aberto para negócios”</translation></message>
<message><source>Japanese “passing grade” button</source><translation>botão japonês de “nota mínima”</translation></message>
<message><source>Japanese “prohibited” button</source><translation>botão japonês de “proibido”</translation></message>
<message><source>Japanese “reserved” button</source><translation>botão japonês de “reservado”</translation></message>
<message><source>Japanese “secret” button</source><translation>botão japonês de “segredo”</translation></message>
<message><source>Japanese “service charge” button</source><translation>botão japonês de “taxa de serviço”</translation></message>
<message><source>Japanese “vacancy” button</source><translation>botão japonês de “vago”</translation></message>
<message><source>Leo</source><translation>signo de Leão</translation></message>
<message><source>Libra</source><translation>signo de Libra</translation></message>
<message><source>Mrs. Claus</source><translation>Mamãe Noel</translation></message>
<message><source>Mx Claus</source><translation>noel</translation></message>
<message><source>NEW button</source><translation>botão "NEW"</translation></message>
<message><source>NG button</source><translation>botão NG</translation></message>
<message><source>O button (blood type)</source><translation>botão O (tipo sanguíneo)</translation></message>
<message><source>OK button</source><translation>botão OK</translation></message>
<message><source>OK hand</source><translation>sinal de ok</translation></message>
<message><source>ON! arrow</source><translation>seta "ON!"</translation></message>
<message><source>Ophiuchus</source><translation>signo de Ofiúco</translation></message>
<message><source>P button</source><translation>botão P</translation></message>
<message><source>Pisces</source><translation>signo de Peixes</translation></message>
<message><source>SOON arrow</source><translation>seta "SOON"</translation></message>
<message><source>SOS button</source><translation>botão SOS</translation></message>
<message><source>Sagittarius</source><translation>signo de Sagitário</translation></message>
<message><source>Santa Claus</source><translation>Papai Noel</translation></message>
<message><source>Scorpio</source><translation>signo de Escorpião</translation></message>
<message><source>Statue of Liberty</source><translation>Estátua da Liberdade</translation></message>
<message><source>T-Rex</source><translation>tiranossauro rex</translation></message>
<message><source>TOP arrow</source><translation>seta "TOP"</translation></message>
<message><source>Taurus</source><translation>signo de Touro</translation></message>
<message><source>Tokyo tower</source><translation>Torre de Tóquio</translation></message>
<message><source>UP! button</source><translation>botão "UP!"</translation></message>
<message><source>VS button</source><translation>botão VS</translation></message>
<message><source>Virgo</source><translation>signo de Virgem</translation></message>
<message><source>ZZZ</source><translation>zzz</translation></message>
<message><source>abacus</source><translation>ábaco</translation></message>
<message><source>abcd</source><translation>abcd</translation></message>
<message><source>access</source><translation>acesso</translation></message>
<message><source>accessibility</source><translation>acessibilidade</translation></message>
<message><source>accident</source><translation>acidente</translation></message>
<message><source>accordion</source><translation>acordeão</translation></message>
<message><source>actor</source><translation>ator</translation></message>
<message><source>adhesive</source><translation>adesiva</translation></message>
<message><source>adhesive bandage</source><translation>atadura adesiva</translation></message>
<message><source>admiration</source><translation>admiração</translation></message>
<message><source>admission tickets</source><translation>ingresso de cinema</translation></message>
<message><source>adorable</source><translation>adorável</translation></message>
<message><source>adult</source><translation>adulto</translation></message>
<message><source>aerial</source><translation>aérea</translation></message>
<message><source>aerial tramway</source><translation>teleférico</translation></message>
<message><source>aesculapius</source><translation>esculápio</translation></message>
<message><source>airplane</source><translation>avião</translation></message>
<message><source>airplane arrival</source><translation>avião aterrissando</translation></message>
<message><source>airplane departure</source><translation>avião decolando</translation></message>
<message><source>alarm</source><translation>alarme</translation></message>
<message><source>alarm clock</source><translation>despertador</translation></message>
<message><source>alces</source><translation>alce</translation></message>
<message><source>alembic</source><translation>alambique</translation></message>
<message><source>alien</source><translation>alienígena</translation></message>
<message><source>alien monster</source><translation>monstro alienígena</translation></message>
<message><source>alpaca</source><translation>alpaca</translation></message>
<message><source>ambulance</source><translation>ambulância</translation></message>
<message><source>american</source><translation>americano</translation></message>
<message><source>american football</source><translation>bola de futebol americano</translation></message>
<message><source>amoeba</source><translation>ameba</translation></message>
<message><source>amphora</source><translation>ânfora</translation></message>
<message><source>amulet</source><translation>amuleto</translation></message>
<message><source>anatomical</source><translation>anatomia</translation></message>
<message><source>anatomical heart</source><translation>coração humano</translation></message>
<message><source>anchor</source><translation>âncora</translation></message>
<message><source>angelic</source><translation>angelical</translation></message>
<message><source>anger symbol</source><translation>símbolo de raiva</translation></message>
<message><source>angle</source><translation>ângulo</translation></message>
<message><source>angry</source><translation>zangado</translation></message>
<message><source>angry face</source><translation>rosto zangado</translation></message>
<message><source>angry face with horns</source><translation>rosto zangado com chifres</translation></message>
<message><source>anguished face</source><translation>rosto angustiado</translation></message>
<message><source>animal</source><translation>animal</translation></message>
<message><source>annelid</source><translation>anelídeo</translation></message>
<message><source>ant</source><translation>formiga</translation></message>
<message><source>antarctica</source><translation>antartica</translation></message>
<message><source>antenna</source><translation>antena</translation></message>
<message><source>antenna bars</source><translation>barras de sinal</translation></message>
<message><source>anxious face with sweat</source><translation>rosto ansioso com gota de suor</translation></message>
<message><source>apocalypse</source><translation>apocalipse</translation></message>
<message><source>applause</source><translation>aplauso</translation></message>
<message><source>apple</source><translation>maçã</translation></message>
<message><source>aquarium</source><translation>aquário</translation></message>
<message><source>arctic</source><translation>ártico</translation></message>
<message><source>arepa</source><translation>arepa</translation></message>
<message><source>aries</source><translation>áries</translation></message>
<message><source>arrow</source><translation>seta</translation></message>
<message><source>art</source><translation>arte</translation></message>
<message><source>articulated lorry</source><translation>caminhão</translation></message>
<message><source>artist</source><translation>artista</translation></message>
<message><source>artist palette</source><translation>paleta de tintas</translation></message>
<message><source>arts</source><translation>artes</translation></message>
<message><source>ascend</source><translation>ascender</translation></message>
<message><source>assassin</source><translation>assassino</translation></message>
<message><source>assistance</source><translation>assistência</translation></message>
<message><source>asterisk</source><translation>asterisco</translation></message>
<message><source>astonished face</source><translation>rosto espantado</translation></message>
<message><source>astronaut</source><translation>astronauta</translation></message>
<message><source>astronomy</source><translation>astronomia</translation></message>
<message><source>atheist</source><translation>ateísmo</translation></message>
<message><source>athletic</source><translation>atleta</translation></message>
<message><source>atom</source><translation>átomo</translation></message>
<message><source>atom symbol</source><translation>símbolo de átomo</translation></message>
<message><source>attraction</source><translation>atração</translation></message>
<message><source>australia</source><translation>Austrália</translation></message>
<message><source>auto rickshaw</source><translation>automóvel riquixá</translation></message>
<message><source>automated</source><translation>automático</translation></message>
<message><source>automobile</source><translation>carro</translation></message>
<message><source>avocado</source><translation>abacate</translation></message>
<message><source>axe</source><translation>machado</translation></message>
<message><source>baby</source><translation>bebê</translation></message>
<message><source>baby angel</source><translation>bebê anjo</translation></message>
<message><source>baby bottle</source><translation>mamadeira</translation></message>
<message><source>baby chick</source><translation>pintinho de perfil</translation></message>
<message><source>baby symbol</source><translation>símbolo de bebê</translation></message>
<message><source>backhand</source><translation>dorso</translation></message>
<message><source>backhand index pointing down</source><translation>dorso da mão com indicador apontando para baixo</translation></message>
<message><source>backhand index pointing left</source><translation>dorso da mão com indicador apontando para a esquerda</translation></message>
<message><source>backhand index pointing right</source><translation>dorso da mão com indicador apontando para a direita</translation></message>
<message><source>backhand index pointing up</source><translation>dorso da mão com indicador apontando para cima</translation></message>
<message><source>backpack</source><translation>mochila</translation></message>
<message><source>bacon</source><translation>bacon</translation></message>
<message><source>bacteria</source><translation>bactéria</translation></message>
<message><source>badger</source><translation>texugo</translation></message>
<message><source>badminton</source><translation>badminton</translation></message>
<message><source>bag</source><translation>bolsa</translation></message>
<message><source>bagel</source><translation>bagel</translation></message>
<message><source>baggage</source><translation>bagagem</translation></message>
<message><source>baggage claim</source><translation>restituição de bagagem</translation></message>
<message><source>baguette</source><translation>baguete</translation></message>
<message><source>baguette bread</source><translation>baguete</translation></message>
<message><source>balance</source><translation>balança</translation></message>
<message><source>balance scale</source><translation>balança</translation></message>
<message><source>bald</source><translation>careca</translation></message>
<message><source>ball</source><translation>bola</translation></message>
<message><source>ballet</source><translation>sapatilha</translation></message>
<message><source>ballet shoes</source><translation>sapatilha de balé</translation></message>
<message><source>balloon</source><translation>balão</translation></message>
<message><source>ballot box with ballot</source><translation>urna eleitoral com cédula</translation></message>
<message><source>bamboo</source><translation>bambu</translation></message>
<message><source>banana</source><translation>banana</translation></message>
<message><source>band</source><translation>banda</translation></message>
<message><source>bandage</source><translation>bandaid</translation></message>
<message><source>banjo</source><translation>banjo</translation></message>
<message><source>bank</source><translation>banco</translation></message>
<message><source>bar</source><translation>bar</translation></message>
<message><source>bar chart</source><translation>gráfico de barras</translation></message>
<message><source>barber</source><translation>barbeiro</translation></message>
<message><source>barber pole</source><translation>barbearia</translation></message>
<message><source>baseball</source><translation>bola de beisebol</translation></message>
<message><source>basket</source><translation>cesta</translation></message>
<message><source>basketball</source><translation>bola de basquete</translation></message>
<message><source>bat</source><translation>morcego</translation></message>
<message><source>bathing</source><translation>banho</translation></message>
<message><source>bathroom</source><translation>banheiro</translation></message>
<message><source>bathtub</source><translation>banheira</translation></message>
<message><source>battery</source><translation>pilha</translation></message>
<message><source>bday</source><translation>feliz aniversário</translation></message>
<message><source>beach with umbrella</source><translation>praia e guarda-sol</translation></message>
<message><source>beaming face with smiling eyes</source><translation>rosto contente com olhos sorridentes</translation></message>
<message><source>beans</source><translation>feijões</translation></message>
<message><source>bear</source><translation>rosto de urso</translation></message>
<message><source>beating heart</source><translation>coração pulsante</translation></message>
<message><source>beaver</source><translation>castor</translation></message>
<message><source>bed</source><translation>cama</translation></message>
<message><source>beer</source><translation>cerveja</translation></message>
<message><source>beer mug</source><translation>cerveja</translation></message>
<message><source>beetle</source><translation>besouro</translation></message>
<message><source>behind</source><translation>nublado</translation></message>
<message><source>bell</source><translation>sino</translation></message>
<message><source>bell pepper</source><translation>pimentão</translation></message>
<message><source>bell with slash</source><translation>sino silenciado</translation></message>
<message><source>bellhop bell</source><translation>sineta</translation></message>
<message><source>bento box</source><translation>bentô</translation></message>
<message><source>berry</source><translation>blueberry</translation></message>
<message><source>beverage box</source><translation>suco de caixa</translation></message>
<message><source>biceps</source><translation>bíceps</translation></message>
<message><source>bicycle</source><translation>bicicleta</translation></message>
<message><source>bicyclist</source><translation>ciclista</translation></message>
<message><source>bike</source><translation>bike</translation></message>
<message><source>bikini</source><translation>biquíni</translation></message>
<message><source>billed cap</source><translation>boné</translation></message>
<message><source>billiard</source><translation>bilhar</translation></message>
<message><source>biohazard</source><translation>risco biológico</translation></message>
<message><source>biologist</source><translation>biólogo</translation></message>
<message><source>biology</source><translation>biologia</translation></message>
<message><source>bird</source><translation>pássaro</translation></message>
<message><source>birthday</source><translation>aniversário</translation></message>
<message><source>birthday cake</source><translation>bolo de aniversário</translation></message>
<message><source>bisexual</source><translation>bissexual</translation></message>
<message><source>bison</source><translation>bisão</translation></message>
<message><source>bisque</source><translation>bisque</translation></message>
<message><source>biting lip</source><translation>mordendo o lábio</translation></message>
<message><source>black</source><translation>preto</translation></message>
<message><source>black bird</source><translation>pássaro preto</translation></message>
<message><source>black cat</source><translation>gato preto</translation></message>
<message><source>black circle</source><translation>círculo preto</translation></message>
<message><source>black flag</source><translation>bandeira preta</translation></message>
<message><source>black heart</source><translation>coração preto</translation></message>
<message><source>black large square</source><translation>quadrado preto grande</translation></message>
<message><source>black medium square</source><translation>quadrado preto médio</translation></message>
<message><source>black medium-small square</source><translation>quadrado preto médio menor</translation></message>
<message><source>black nib</source><translation>ponta de caneta tinteiro</translation></message>
<message><source>black small square</source><translation>quadrado preto pequeno</translation></message>
<message><source>black square button</source><translation>botão quadrado preto</translation></message>
<message><source>blood</source><translation>sangue</translation></message>
<message><source>blossom</source><translation>flor</translation></message>
<message><source>blouse</source><translation>blusa</translation></message>
<message><source>blowfish</source><translation>baiacu</translation></message>
<message><source>blu-ray</source><translation>blu-ray</translation></message>
<message><source>blue</source><translation>azul</translation></message>
<message><source>blue book</source><translation>livro azul</translation></message>
<message><source>blue circle</source><translation>círculo azul</translation></message>
<message><source>blue heart</source><translation>coração azul</translation></message>
<message><source>blue square</source><translation>quadrado azul</translation></message>
<message><source>blueberries</source><translation>mirtilos</translation></message>
<message><source>bluebonnet</source><translation>bluebonnet</translation></message>
<message><source>boar</source><translation>javali</translation></message>
<message><source>boat</source><translation>barco</translation></message>
<message><source>boba</source><translation>pobá</translation></message>
<message><source>body</source><translation>corpo</translation></message>
<message><source>bodybuilder</source><translation>bodybuilder</translation></message>
<message><source>bomb</source><translation>bomba</translation></message>
<message><source>bone</source><translation>osso</translation></message>
<message><source>book</source><translation>livro</translation></message>
<message><source>bookmark</source><translation>marcador de página</translation></message>
<message><source>bookmark tabs</source><translation>marcadores de página</translation></message>
<message><source>books</source><translation>livros</translation></message>
<message><source>boomerang</source><translation>bumerangue</translation></message>
<message><source>boot</source><translation>bota</translation></message>
<message><source>bottle with popping cork</source><translation>garrafa de champanhe</translation></message>
<message><source>bouquet</source><translation>buquê</translation></message>
<message><source>bow and arrow</source><translation>arco e flecha</translation></message>
<message><source>bowl with spoon</source><translation>tigela com colher</translation></message>
<message><source>bowling</source><translation>boliche</translation></message>
<message><source>box</source><translation>caixa</translation></message>
<message><source>boxing glove</source><translation>luva de boxe</translation></message>
<message><source>boy</source><translation>menino</translation></message>
<message><source>brain</source><translation>cérebro</translation></message>
<message><source>bread</source><translation>pão</translation></message>
<message><source>breast-feeding</source><translation>amamentando</translation></message>
<message><source>brick</source><translation>tijolo</translation></message>
<message><source>bridge at night</source><translation>ponte à noite</translation></message>
<message><source>briefcase</source><translation>maleta</translation></message>
<message><source>briefs</source><translation>cueca</translation></message>
<message><source>bright button</source><translation>botão de aumentar brilho</translation></message>
<message><source>bro</source><translation>mina</translation></message>
<message><source>broccoli</source><translation>brócolis</translation></message>
<message><source>broken chain</source><translation>corrente quebrada</translation></message>
<message><source>broken heart</source><translation>coração partido</translation></message>
<message><source>bronze</source><translation>bronze</translation></message>
<message><source>broom</source><translation>vassoura</translation></message>
<message><source>brown</source><translation>marrom</translation></message>
<message><source>brown circle</source><translation>círculo marrom</translation></message>
<message><source>brown heart</source><translation>coração marrom</translation></message>
<message><source>brown mushroom</source><translation>cogumelo marrom</translation></message>
<message><source>brown square</source><translation>quadrado marrom</translation></message>
<message><source>bubble tea</source><translation>chá perolado</translation></message>
<message><source>bubbles</source><translation>bolhas</translation></message>
<message><source>bucket</source><translation>balde</translation></message>
<message><source>buckingham</source><translation>buckingham</translation></message>
<message><source>buffalo</source><translation>búfalo</translation></message>
<message><source>bug</source><translation>inseto</translation></message>
<message><source>building</source><translation>prédio</translation></message>
<message><source>building construction</source><translation>construção</translation></message>
<message><source>bullet train</source><translation>trem de alta velocidade japonês</translation></message>
<message><source>bullseye</source><translation>no alvo</translation></message>
<message><source>bunny</source><translation>coelho</translation></message>
<message><source>burrito</source><translation>burrito</translation></message>
<message><source>burro</source><translation>burro</translation></message>
<message><source>bus</source><translation>ônibus</translation></message>
<message><source>bus stop</source><translation>ponto de ônibus</translation></message>
<message><source>bust</source><translation>busto</translation></message>
<message><source>bust in silhouette</source><translation>silhueta de busto</translation></message>
<message><source>busts in silhouette</source><translation>silhueta de bustos</translation></message>
<message><source>butter</source><translation>manteiga</translation></message>
<message><source>butterfly</source><translation>borboleta</translation></message>
<message><source>cabinet</source><translation>gabinete</translation></message>
<message><source>cactus</source><translation>cacto</translation></message>
<message><source>calendar</source><translation>calendário</translation></message>
<message><source>call me hand</source><translation>sinal "me liga"</translation></message>
<message><source>calm</source><translation>calma</translation></message>
<message><source>camel</source><translation>camelo</translation></message>
<message><source>camera</source><translation>câmera</translation></message>
<message><source>camera with flash</source><translation>câmera com flash</translation></message>
<message><source>camping</source><translation>acampamento</translation></message>
<message><source>cancel</source><translation>cancelar</translation></message>
<message><source>cancer</source><translation>Câncer</translation></message>
<message><source>candle</source><translation>vela</translation></message>
<message><source>candy</source><translation>bala</translation></message>
<message><source>canned food</source><translation>comida enlatada</translation></message>
<message><source>canoe</source><translation>canoa</translation></message>
<message><source>capsicum</source><translation>capsicum</translation></message>
<message><source>car</source><translation>carro</translation></message>
<message><source>card</source><translation>baralho</translation></message>
<message><source>card file box</source><translation>caixa de arquivos</translation></message>
<message><source>card index</source><translation>índice de cartões</translation></message>
<message><source>card index dividers</source><translation>divisores de pastas</translation></message>
<message><source>cardinal</source><translation>cardinal</translation></message>
<message><source>cardiology</source><translation>cardiologia</translation></message>
<message><source>carousel</source><translation>carrossel</translation></message>
<message><source>carousel horse</source><translation>carrossel</translation></message>
<message><source>carp</source><translation>carpas</translation></message>
<message><source>carp streamer</source><translation>bandeira de carpas</translation></message>
<message><source>carpentry saw</source><translation>serrote</translation></message>
<message><source>carrot</source><translation>cenoura</translation></message>
<message><source>casino</source><translation>cassino</translation></message>
<message><source>castle</source><translation>castelo</translation></message>
<message><source>cat</source><translation>gato</translation></message>
<message><source>cat face</source><translation>rosto de gato</translation></message>
<message><source>cat with tears of joy</source><translation>rosto de gato com lágrimas de alegria</translation></message>
<message><source>cat with wry smile</source><translation>rosto de gato com sorriso irônico</translation></message>
<message><source>celebrate</source><translation>parabéns</translation></message>
<message><source>celebration</source><translation>comemoração</translation></message>
<message><source>cell</source><translation>celular</translation></message>
<message><source>cemetery</source><translation>cemitério</translation></message>
<message><source>cereal</source><translation>cereal</translation></message>
<message><source>chains</source><translation>correntes</translation></message>
<message><source>chair</source><translation>cadeira</translation></message>
<message><source>chapel</source><translation>capela</translation></message>
<message><source>chart decreasing</source><translation>gráfico caindo</translation></message>
<message><source>chart increasing</source><translation>gráfico subindo</translation></message>
<message><source>chart increasing with yen</source><translation>gráfico subindo com iene</translation></message>
<message><source>check</source><translation>check</translation></message>
<message><source>check box with check</source><translation>caixa de seleção marcada com tique</translation></message>
<message><source>check mark</source><translation>marca de seleção</translation></message>
<message><source>check mark button</source><translation>marca de seleção branca</translation></message>
<message><source>cheese</source><translation>queijo</translation></message>
<message><source>cheese wedge</source><translation>queijo</translation></message>
<message><source>chef</source><translation>chef</translation></message>
<message><source>chemist</source><translation>químico</translation></message>
<message><source>chequered flag</source><translation>bandeira quadriculada</translation></message>
<message><source>cherries</source><translation>cereja</translation></message>
<message><source>cherry</source><translation>cereja</translation></message>
<message><source>cherry blossom</source><translation>flor de cerejeira</translation></message>
<message><source>chess pawn</source><translation>peão de xadrez</translation></message>
<message><source>chestnut</source><translation>castanha</translation></message>
<message><source>chick</source><translation>galinha</translation></message>
<message><source>chicken</source><translation>galinha</translation></message>
<message><source>child</source><translation>criança</translation></message>
<message><source>children crossing</source><translation>crianças atravessando</translation></message>
<message><source>chipmunk</source><translation>esquilo</translation></message>
<message><source>chocolate</source><translation>chocolate</translation></message>
<message><source>chocolate bar</source><translation>chocolate</translation></message>
<message><source>chopsticks</source><translation>hashi</translation></message>
<message><source>christ</source><translation>cristão</translation></message>
<message><source>christmas</source><translation>natal</translation></message>
<message><source>church</source><translation>igreja</translation></message>
<message><source>cigarette</source><translation>cigarro</translation></message>
<message><source>cinema</source><translation>cinema</translation></message>
<message><source>circle</source><translation>círculo</translation></message>
<message><source>circled M</source><translation>círculo com a letra M</translation></message>
<message><source>circus</source><translation>circo</translation></message>
<message><source>circus tent</source><translation>circo</translation></message>
<message><source>cityscape</source><translation>cidade</translation></message>
<message><source>cityscape at dusk</source><translation>cidade ao anoitecer</translation></message>
<message><source>clamp</source><translation>braçadeira</translation></message>
<message><source>clapper board</source><translation>claquete</translation></message>
<message><source>clapping hands</source><translation>mãos aplaudindo</translation></message>
<message><source>classical</source><translation>clássico</translation></message>
<message><source>classical building</source><translation>prédio grego</translation></message>
<message><source>cleaning</source><translation>limpeza</translation></message>
<message><source>clinking beer mugs</source><translation>canecas de cerveja</translation></message>
<message><source>clinking glasses</source><translation>taças brindando</translation></message>
<message><source>clipboard</source><translation>prancheta</translation></message>
<message><source>clock</source><translation>relógio</translation></message>
<message><source>clockwise</source><translation>sentido horário</translation></message>
<message><source>clockwise vertical arrows</source><translation>setas verticais no sentido horário</translation></message>
<message><source>closed book</source><translation>livro fechado</translation></message>
<message><source>closed mailbox with lowered flag</source><translation>caixa de correio fechada com bandeira abaixada</translation></message>
<message><source>closed mailbox with raised flag</source><translation>caixa de correio fechada com bandeira levantada</translation></message>
<message><source>closed umbrella</source><translation>guarda-chuva fechado</translation></message>
<message><source>clothing</source><translation>acessório</translation></message>
<message><source>cloud</source><translation>nuvem</translation></message>
<message><source>cloud with lightning</source><translation>nuvem com trovão</translation></message>
<message><source>cloud with lightning and rain</source><translation>chuva com trovão</translation></message>
<message><source>cloud with rain</source><translation>nuvem com chuva</translation></message>
<message><source>cloud with snow</source><translation>nuvem com neve</translation></message>
<message><source>clown face</source><translation>rosto de palhaço</translation></message>
<message><source>club suit</source><translation>naipe de paus</translation></message>
<message><source>clutch bag</source><translation>bolsa pequena</translation></message>
<message><source>coat</source><translation>casaco</translation></message>
<message><source>cockroach</source><translation>barata</translation></message>
<message><source>cocktail glass</source><translation>coquetel</translation></message>
<message><source>coconut</source><translation>coco</translation></message>
<message><source>coffin</source><translation>caixão</translation></message>
<message><source>coin</source><translation>moeda</translation></message>
<message><source>colada</source><translation>piña colada</translation></message>
<message><source>cold</source><translation>frio</translation></message>
<message><source>cold face</source><translation>rosto gelado</translation></message>
<message><source>collision</source><translation>colisão</translation></message>
<message><source>combat</source><translation>combate</translation></message>
<message><source>comet</source><translation>cometa</translation></message>
<message><source>comfort</source><translation>conforto</translation></message>
<message><source>comic</source><translation>engraçado</translation></message>
<message><source>compass</source><translation>bússola</translation></message>
<message><source>compress</source><translation>compressão</translation></message>
<message><source>computer</source><translation>computador</translation></message>
<message><source>computer disk</source><translation>minidisc</translation></message>
<message><source>computer mouse</source><translation>mouse</translation></message>
<message><source>concertina</source><translation>concertina</translation></message>
<message><source>conch</source><translation>concha</translation></message>
<message><source>condiment</source><translation>condimento</translation></message>
<message><source>confetti</source><translation>confete</translation></message>
<message><source>confetti ball</source><translation>confete</translation></message>
<message><source>confounded face</source><translation>rosto perplexo</translation></message>
<message><source>confused</source><translation>confuso</translation></message>
<message><source>confused face</source><translation>rosto confuso</translation></message>
<message><source>confusion</source><translation>confusão</translation></message>
<message><source>conga</source><translation>conga</translation></message>
<message><source>connectivity</source><translation>conectividade</translation></message>
<message><source>construction</source><translation>em construção</translation></message>
<message><source>construction worker</source><translation>trabalhador de construção civil</translation></message>
<message><source>control</source><translation>controle</translation></message>
<message><source>control knobs</source><translation>botões giratórios</translation></message>
<message><source>convenience</source><translation>conveniência</translation></message>
<message><source>convenience store</source><translation>loja de conveniência</translation></message>
<message><source>cook</source><translation>chef de cozinha</translation></message>
<message><source>cooked rice</source><translation>arroz cozido</translation></message>
<message><source>cookie</source><translation>biscoito</translation></message>
<message><source>cooking</source><translation>ovo frito</translation></message>
<message><source>copyright</source><translation>símbolo de copyright</translation></message>
<message><source>coral</source><translation>coral</translation></message>
<message><source>corvid</source><translation>corvo</translation></message>
<message><source>cosmetics</source><translation>cosméticos</translation></message>
<message><source>couch and lamp</source><translation>sofá e luminária</translation></message>
<message><source>counterclockwise arrows button</source><translation>botão de setas em sentido anti-horário</translation></message>
<message><source>couple</source><translation>casal</translation></message>
<message><source>couple with heart</source><translation>casal apaixonado</translation></message>
<message><source>couple with heart: man, man</source><translation>casal apaixonado: homem e homem</translation></message>
<message><source>couple with heart: woman, man</source><translation>casal apaixonado: mulher e homem</translation></message>
<message><source>couple with heart: woman, woman</source><translation>casal apaixonado: mulher e mulher</translation></message>
<message><source>cow</source><translation>vaca</translation></message>
<message><source>cow face</source><translation>rosto de vaca</translation></message>
<message><source>cowboy</source><translation>cowboy</translation></message>
<message><source>cowboy hat face</source><translation>rosto com chapéu de caubói</translation></message>
<message><source>crab</source><translation>caranguejo</translation></message>
<message><source>cracker</source><translation>cracker</translation></message>
<message><source>crayon</source><translation>giz de cera</translation></message>
<message><source>cream</source><translation>sorvete</translation></message>
<message><source>credentials</source><translation>credenciais</translation></message>
<message><source>credit</source><translation>crédito</translation></message>
<message><source>credit card</source><translation>cartão de crédito</translation></message>
<message><source>crescent moon</source><translation>lua crescente</translation></message>
<message><source>cricket</source><translation>grilo</translation></message>
<message><source>cricket game</source><translation>críquete</translation></message>
<message><source>crochet</source><translation>crochê</translation></message>
<message><source>crocodile</source><translation>crocodilo</translation></message>
<message><source>croissant</source><translation>croissant</translation></message>
<message><source>cross mark</source><translation>xis</translation></message>
<message><source>cross mark button</source><translation>botão de xis</translation></message>
<message><source>crossed</source><translation>cruzadas</translation></message>
<message><source>crossed fingers</source><translation>dedos cruzados</translation></message>
<message><source>crossed flags</source><translation>bandeiras cruzadas</translation></message>
<message><source>crossed swords</source><translation>espadas cruzadas</translation></message>
<message><source>crown</source><translation>coroa</translation></message>
<message><source>crush</source><translation>crush</translation></message>
<message><source>crutch</source><translation>muleta</translation></message>
<message><source>cry</source><translation>chorando</translation></message>
<message><source>crying cat</source><translation>rosto de gato chorando</translation></message>
<message><source>crying face</source><translation>rosto chorando</translation></message>
<message><source>crystal</source><translation>cristal</translation></message>
<message><source>crystal ball</source><translation>bola de cristal</translation></message>
<message><source>crêpe</source><translation>crepes</translation></message>
<message><source>cucumber</source><translation>pepino</translation></message>
<message><source>culture</source><translation>cultura</translation></message>
<message><source>cup with straw</source><translation>copo com canudo</translation></message>
<message><source>cupcake</source><translation>cupcake</translation></message>
<message><source>cupid</source><translation>cupido</translation></message>
<message><source>curious</source><translation>curioso</translation></message>
<message><source>curling</source><translation>curling</translation></message>
<message><source>curling stone</source><translation>pedra de curling</translation></message>
<message><source>curly loop</source><translation>laço encaracolado</translation></message>
<message><source>currency</source><translation>moeda</translation></message>
<message><source>currency exchange</source><translation>câmbio de moeda</translation></message>
<message><source>curry rice</source><translation>arroz com curry</translation></message>
<message><source>curving</source><translation>curva</translation></message>
<message><source>custard</source><translation>pudim</translation></message>
<message><source>customs</source><translation>alfândega</translation></message>
<message><source>cut of meat</source><translation>corte de carne</translation></message>
<message><source>cyclone</source><translation>ciclone</translation></message>
<message><source>dagger</source><translation>adaga</translation></message>
<message><source>dance</source><translation>dança</translation></message>
<message><source>dango</source><translation>dango</translation></message>
<message><source>dark skin tone</source><translation>pele escura</translation></message>
<message><source>dashing away</source><translation>rapidez</translation></message>
<message><source>data</source><translation>diagrama</translation></message>
<message><source>deaf man</source><translation>homem surdo</translation></message>
<message><source>deaf person</source><translation>pessoa surda</translation></message>
<message><source>deaf woman</source><translation>mulher surda</translation></message>
<message><source>death</source><translation>morte</translation></message>
<message><source>deciduous tree</source><translation>árvore caidiça</translation></message>
<message><source>decor</source><translation>decoração</translation></message>
<message><source>decoration</source><translation>decorativo</translation></message>
<message><source>deer</source><translation>cervo</translation></message>
<message><source>delicious</source><translation>delicioso</translation></message>
<message><source>delivery</source><translation>delivery</translation></message>
<message><source>delivery truck</source><translation>caminhão de entrega</translation></message>
<message><source>demon</source><translation>demônio</translation></message>
<message><source>demonstration</source><translation>demonstração</translation></message>
<message><source>dental</source><translation>dental</translation></message>
<message><source>dentist</source><translation>dentista</translation></message>
<message><source>department</source><translation>departamentos</translation></message>
<message><source>department store</source><translation>loja de departamentos</translation></message>
<message><source>derelict house</source><translation>casa abandonada</translation></message>
<message><source>desert</source><translation>deserto</translation></message>
<message><source>desert island</source><translation>ilha deserta</translation></message>
<message><source>desktop</source><translation>desktop</translation></message>
<message><source>desktop computer</source><translation>computador de mesa</translation></message>
<message><source>dessert</source><translation>sobremesa</translation></message>
<message><source>detective</source><translation>detetive</translation></message>
<message><source>dharma</source><translation>dharma</translation></message>
<message><source>dialog</source><translation>diálogo</translation></message>
<message><source>diamond</source><translation>diamante</translation></message>
<message><source>diamond suit</source><translation>naipe de ouros</translation></message>
<message><source>diamond with a dot</source><translation>diamante com um ponto</translation></message>
<message><source>dim button</source><translation>botão de diminuir brilho</translation></message>
<message><source>dinosaur</source><translation>dinossauro</translation></message>
<message><source>direction</source><translation>direção</translation></message>
<message><source>disappear</source><translation>desaparecer</translation></message>
<message><source>disappointed</source><translation>chateado</translation></message>
<message><source>disappointed face</source><translation>rosto desapontado</translation></message>
<message><source>disco</source><translation>discoteca</translation></message>
<message><source>discount</source><translation>desconto</translation></message>
<message><source>disease</source><translation>doença</translation></message>
<message><source>disguised face</source><translation>rosto disfarçado</translation></message>
<message><source>disk</source><translation>disco</translation></message>
<message><source>dissolve</source><translation>dissolver</translation></message>
<message><source>divide</source><translation>símbolo de divisão</translation></message>
<message><source>diving mask</source><translation>máscara de mergulho</translation></message>
<message><source>division</source><translation>divisão</translation></message>
<message><source>diya</source><translation>diya</translation></message>
<message><source>diya lamp</source><translation>lâmpada de óleo</translation></message>
<message><source>dizzy</source><translation>zonzo</translation></message>
<message><source>dna</source><translation>dna</translation></message>
<message><source>doctor</source><translation>médico</translation></message>
<message><source>document</source><translation>documento</translation></message>
<message><source>dodo</source><translation>dodô</translation></message>
<message><source>dog</source><translation>cachorro</translation></message>
<message><source>dog face</source><translation>rosto de cachorro</translation></message>
<message><source>dollar</source><translation>dólar</translation></message>
<message><source>dollar banknote</source><translation>nota de dólar</translation></message>
<message><source>dolphin</source><translation>golfinho</translation></message>
<message><source>donkey</source><translation>burro</translation></message>
<message><source>door</source><translation>porta</translation></message>
<message><source>dotted line face</source><translation>rosto com linha pontilhada</translation></message>
<message><source>dotted six-pointed star</source><translation>estrela de seis pontas</translation></message>
<message><source>double</source><translation>dupla</translation></message>
<message><source>double curly loop</source><translation>loop encaracolado duas vezes</translation></message>
<message><source>double exclamation mark</source><translation>dupla exclamação</translation></message>
<message><source>doughnut</source><translation>donut</translation></message>
<message><source>dove</source><translation>pomba branca</translation></message>
<message><source>down arrow</source><translation>seta para baixo</translation></message>
<message><source>down-left arrow</source><translation>seta para baixo e para a esquerda</translation></message>
<message><source>down-right arrow</source><translation>seta para baixo e para a direita</translation></message>
<message><source>downcast face with sweat</source><translation>rosto cabisbaixo com gota de suor</translation></message>
<message><source>downwards button</source><translation>botão apontando para baixo</translation></message>
<message><source>dragon</source><translation>dragão</translation></message>
<message><source>dragon face</source><translation>rosto de dragão</translation></message>
<message><source>dress</source><translation>vestido</translation></message>
<message><source>drink</source><translation>bebida</translation></message>
<message><source>drinking</source><translation>happy hour</translation></message>
<message><source>dromedary</source><translation>dromedário</translation></message>
<message><source>drooling face</source><translation>rosto babando</translation></message>
<message><source>drop of blood</source><translation>gota de sangue</translation></message>
<message><source>droplet</source><translation>gota</translation></message>
<message><source>drought</source><translation>seca</translation></message>
<message><source>drum</source><translation>tambor</translation></message>
<message><source>duck</source><translation>pato</translation></message>
<message><source>dumpling</source><translation>bolinho asiático</translation></message>
<message><source>dvd</source><translation>DVD</translation></message>
<message><source>dynamite</source><translation>dinamite</translation></message>
<message><source>e-mail</source><translation>e-mail</translation></message>
<message><source>eagle</source><translation>águia</translation></message>
<message><source>ear</source><translation>orelha</translation></message>
<message><source>ear of corn</source><translation>milho</translation></message>
<message><source>ear with hearing aid</source><translation>ouvido com aparelho auditivo</translation></message>
<message><source>edamame</source><translation>edamame</translation></message>
<message><source>egg</source><translation>ovo</translation></message>
<message><source>eggplant</source><translation>berinjela</translation></message>
<message><source>eight o’clock</source><translation>8 horas</translation></message>
<message><source>eight-pointed star</source><translation>estrela de oito pontas</translation></message>
<message><source>eight-spoked asterisk</source><translation>asterisco de oito pontas</translation></message>
<message><source>eight-thirty</source><translation>oito e meia</translation></message>
<message><source>eject button</source><translation>botão ejetar</translation></message>
<message><source>electric</source><translation>elétrica</translation></message>
<message><source>electric plug</source><translation>tomada elétrica</translation></message>
<message><source>electrician</source><translation>eletricista</translation></message>
<message><source>electricity</source><translation>eletricidade</translation></message>
<message><source>electronic</source><translation>eletrônico</translation></message>
<message><source>elephant</source><translation>elefante</translation></message>
<message><source>elevator</source><translation>elevador</translation></message>
<message><source>eleven o’clock</source><translation>11 horas</translation></message>
<message><source>eleven-thirty</source><translation>onze e meia</translation></message>
<message><source>elf</source><translation>elfo</translation></message>
<message><source>email</source><translation>e-mail</translation></message>
<message><source>embarrassed</source><translation>vergonha</translation></message>
<message><source>emblem</source><translation>emblema</translation></message>
<message><source>emergency</source><translation>emergência</translation></message>
<message><source>emotion</source><translation>s2</translation></message>
<message><source>empanada</source><translation>empanada</translation></message>
<message><source>empty nest</source><translation>ninho vazio</translation></message>
<message><source>energy</source><translation>energia</translation></message>
<message><source>enraged face</source><translation>rosto furioso</translation></message>
<message><source>entry</source><translation>entre</translation></message>
<message><source>envelope</source><translation>envelope</translation></message>
<message><source>envelope with arrow</source><translation>envelope com seta</translation></message>
<message><source>equestrian</source><translation>equestre</translation></message>
<message><source>equine</source><translation>equino</translation></message>
<message><source>escargot</source><translation>escargot</translation></message>
<message><source>euro</source><translation>euro</translation></message>
<message><source>euro banknote</source><translation>nota de euro</translation></message>
<message><source>evergreen tree</source><translation>conífera</translation></message>
<message><source>evidence</source><translation>evidência</translation></message>
<message><source>evolution</source><translation>evolução</translation></message>
<message><source>ewe</source><translation>ovelha</translation></message>
<message><source>exclamation</source><translation>exclamação</translation></message>
<message><source>exclamation question mark</source><translation>exclamação com interrogação</translation></message>
<message><source>exercise</source><translation>exercício</translation></message>
<message><source>exhausted</source><translation>exausta</translation></message>
<message><source>expert</source><translation>esperto</translation></message>
<message><source>exploding</source><translation>explodindo</translation></message>
<message><source>exploding head</source><translation>cabeça explodindo</translation></message>
<message><source>explosion</source><translation>explosão</translation></message>
<message><source>expressionless</source><translation>sem comentários</translation></message>
<message><source>expressionless face</source><translation>rosto inexpressivo</translation></message>
<message><source>extinction</source><translation>extinto</translation></message>
<message><source>extra</source><translation>extra</translation></message>
<message><source>extraterrestrial</source><translation>extraterrestre</translation></message>
<message><source>eye</source><translation>olho</translation></message>
<message><source>eye in speech bubble</source><translation>olho no balão de diálogo</translation></message>
<message><source>eyes</source><translation>olhos</translation></message>
<message><source>face</source><translation>rosto</translation></message>
<message><source>face blowing a kiss</source><translation>rosto mandando um beijo</translation></message>
<message><source>face exhaling</source><translation>rosto exalando</translation></message>
<message><source>face holding back tears</source><translation>rosto segurando as lágrimas</translation></message>
<message><source>face in clouds</source><translation>rosto nas nuvens</translation></message>
<message><source>face savoring food</source><translation>rosto saboreando comida</translation></message>
<message><source>face screaming in fear</source><translation>rosto gritando de medo</translation></message>
<message><source>face vomiting</source><translation>rosto vomitando</translation></message>
<message><source>face with bags under eyes</source><translation>rosto com olheiras</translation></message>
<message><source>face with crossed-out eyes</source><translation>rosto atordoado</translation></message>
<message><source>face with diagonal mouth</source><translation>rosto com boca diagonal</translation></message>
<message><source>face with hand over mouth</source><translation>rosto com a mão sobre a boca</translation></message>
<message><source>face with head-bandage</source><translation>rosto com atadura na cabeça</translation></message>
<message><source>face with medical mask</source><translation>rosto com máscara médica</translation></message>
<message><source>face with monocle</source><translation>rosto com monóculo</translation></message>
<message><source>face with open eyes and hand over mouth</source><translation>rosto com olhos abertos e mão sobre a boca</translation></message>
<message><source>face with open mouth</source><translation>rosto com boca aberta</translation></message>
<message><source>face with peeking eye</source><translation>rosto com olho espiando</translation></message>
<message><source>face with raised eyebrow</source><translation>rosto com sobrancelha levantada</translation></message>
<message><source>face with rolling eyes</source><translation>rosto com olhos revirados</translation></message>
<message><source>face with spiral eyes</source><translation>rosto com olhos em espiral</translation></message>
<message><source>face with steam from nose</source><translation>rosto soltando vapor pelo nariz</translation></message>
<message><source>face with symbols on mouth</source><translation>rosto com símbolos na boca</translation></message>
<message><source>face with tears of joy</source><translation>rosto chorando de rir</translation></message>
<message><source>face with thermometer</source><translation>rosto com termômetro</translation></message>
<message><source>face with tongue</source><translation>rosto mostrando a língua</translation></message>
<message><source>face without mouth</source><translation>rosto sem boca</translation></message>
<message><source>factory</source><translation>fábrica</translation></message>
<message><source>factory worker</source><translation>funcionário de fábrica</translation></message>
<message><source>fairy</source><translation>fada</translation></message>
<message><source>falafel</source><translation>falafel</translation></message>
<message><source>fallen leaf</source><translation>folhas caídas</translation></message>
<message><source>family</source><translation>família</translation></message>
<message><source>family: adult, adult, child</source><translation>família: adulto, adulto, criança</translation></message>
<message><source>family: adult, adult, child, child</source><translation>família: adulto, adulto, criança, criança</translation></message>
<message><source>family: adult, child</source><translation>família: adulto, criança</translation></message>
<message><source>family: adult, child, child</source><translation>família: adulto, criança, criança</translation></message>
<message><source>family: man, boy</source><translation>família: homem e menino</translation></message>
<message><source>family: man, boy, boy</source><translation>família: homem, menino e menino</translation></message>
<message><source>family: man, girl</source><translation>família: homem e menina</translation></message>
<message><source>family: man, girl, boy</source><translation>família: homem, menina e menino</translation></message>
<message><source>family: man, girl, girl</source><translation>família: homem, menina e menina</translation></message>
<message><source>family: man, man, boy</source><translation>família: homem, homem e menino</translation></message>
<message><source>family: man, man, boy, boy</source><translation>família: homem, homem, menino e menino</translation></message>
<message><source>family: man, man, girl</source><translation>família: homem, homem e menina</translation></message>
<message><source>family: man, man, girl, boy</source><translation>família: homem, homem, menina e menino</translation></message>
<message><source>family: man, man, girl, girl</source><translation>família: homem, homem, menina e menina</translation></message>
<message><source>family: man, woman, boy</source><translation>família: homem, mulher e menino</translation></message>
<message><source>family: man, woman, boy, boy</source><translation>família: homem, mulher, menino e menino</translation></message>
<message><source>family: man, woman, girl</source><translation>família: homem, mulher e menina</translation></message>
<message><source>family: man, woman, girl, boy</source><translation>família: homem, mulher, menina e menino</translation></message>
<message><source>family: man, woman, girl, girl</source><translation>família: homem, mulher, menina e menina</translation></message>
<message><source>family: woman, boy</source><translation>família: mulher e menino</translation></message>
<message><source>family: woman, boy, boy</source><translation>família: mulher, menino e menino</translation></message>
<message><source>family: woman, girl</source><translation>família: mulher e menina</translation></message>
<message><source>family: woman, girl, boy</source><translation>família: mulher, menina e menino</translation></message>
<message><source>family: woman, girl, girl</source><translation>família: mulher, menina e menina</translation></message>
<message><source>family: woman, woman, boy</source><translation>família: mulher, mulher e menino</translation></message>
<message><source>family: woman, woman, boy, boy</source><translation>família: mulher, mulher, menino e menino</translation></message>
<message><source>family: woman, woman, girl</source><translation>família: mulher, mulher e menina</translation></message>
<message><source>family: woman, woman, girl, boy</source><translation>família: mulher, mulher, menina e menino</translation></message>
<message><source>family: woman, woman, girl, girl</source><translation>família: mulher, mulher, menina e menina</translation></message>
<message><source>farmer</source><translation>agricultor</translation></message>
<message><source>fast down button</source><translation>botão de avanço para baixo</translation></message>
<message><source>fast reverse button</source><translation>botão de retroceder</translation></message>
<message><source>fast up button</source><translation>botão de avanço para cima</translation></message>
<message><source>fast-forward button</source><translation>botão avançar</translation></message>
<message><source>father</source><translation>papai</translation></message>
<message><source>fax machine</source><translation>fax</translation></message>
<message><source>fear</source><translation>medo</translation></message>
<message><source>fearful face</source><translation>rosto amedrontado</translation></message>
<message><source>feather</source><translation>pena</translation></message>
<message><source>feline</source><translation>felino</translation></message>
<message><source>female sign</source><translation>símbolo de feminino</translation></message>
<message><source>ferris wheel</source><translation>roda gigante</translation></message>
<message><source>ferry</source><translation>balsa</translation></message>
<message><source>festival</source><translation>festival</translation></message>
<message><source>field hockey</source><translation>hóquei de campo</translation></message>
<message><source>file</source><translation>arquivo</translation></message>
<message><source>file cabinet</source><translation>gavetas de escritório</translation></message>
<message><source>file folder</source><translation>pasta de arquivos</translation></message>
<message><source>film</source><translation>filme</translation></message>
<message><source>film frames</source><translation>rolo de filmes</translation></message>
<message><source>film projector</source><translation>projetor de filmes</translation></message>
<message><source>fingerprint</source><translation>impressão digital</translation></message>
<message><source>fingers</source><translation>dedos</translation></message>
<message><source>fire</source><translation>fogo</translation></message>
<message><source>fire engine</source><translation>carro do corpo de bombeiros</translation></message>
<message><source>fire extinguisher</source><translation>extintor de incêndio</translation></message>
<message><source>firecracker</source><translation>bombinha</translation></message>
<message><source>firefighter</source><translation>bombeiro</translation></message>
<message><source>fireworks</source><translation>fogos de artifício</translation></message>
<message><source>first quarter moon</source><translation>quarto crescente</translation></message>
<message><source>first quarter moon face</source><translation>rosto da lua de quarto crescente</translation></message>
<message><source>fish</source><translation>peixe</translation></message>
<message><source>fish cake with swirl</source><translation>bolinho de peixe</translation></message>
<message><source>fishing</source><translation>pesca</translation></message>
<message><source>fishing pole</source><translation>pesca</translation></message>
<message><source>fist</source><translation>punho</translation></message>
<message><source>five o’clock</source><translation>5 horas</translation></message>
<message><source>five-thirty</source><translation>cinco e meia</translation></message>
<message><source>flag</source><translation>bandeira</translation></message>
<message><source>flag in hole</source><translation>bandeira no buraco</translation></message>
<message><source>flag: Afghanistan</source><translation>bandeira: Afeganistão</translation></message>
<message><source>flag: Albania</source><translation>bandeira: Albânia</translation></message>
<message><source>flag: Algeria</source><translation>bandeira: Argélia</translation></message>
<message><source>flag: American Samoa</source><translation>bandeira: Samoa Americana</translation></message>
<message><source>flag: Andorra</source><translation>bandeira: Andorra</translation></message>
<message><source>flag: Angola</source><translation>bandeira: Angola</translation></message>
<message><source>flag: Anguilla</source><translation>bandeira: Anguila</translation></message>
<message><source>flag: Antarctica</source><translation>bandeira: Antártida</translation></message>
<message><source>flag: Antigua &amp; Barbuda</source><translation>bandeira: Antígua e Barbuda</translation></message>
<message><source>flag: Argentina</source><translation>bandeira: Argentina</translation></message>
<message><source>flag: Armenia</source><translation>bandeira: Armênia</translation></message>
<message><source>flag: Aruba</source><translation>bandeira: Aruba</translation></message>
<message><source>flag: Ascension Island</source><translation>bandeira: Ilha de Ascensão</translation></message>
<message><source>flag: Australia</source><translation>bandeira: Austrália</translation></message>
<message><source>flag: Austria</source><translation>bandeira: Áustria</translation></message>
<message><source>flag: Azerbaijan</source><translation>bandeira: Azerbaijão</translation></message>
<message><source>flag: Bahamas</source><translation>bandeira: Bahamas</translation></message>
<message><source>flag: Bahrain</source><translation>bandeira: Barein</translation></message>
<message><source>flag: Bangladesh</source><translation>bandeira: Bangladesh</translation></message>
<message><source>flag: Barbados</source><translation>bandeira: Barbados</translation></message>
<message><source>flag: Belarus</source><translation>bandeira: Bielorrússia</translation></message>
<message><source>flag: Belgium</source><translation>bandeira: Bélgica</translation></message>
<message><source>flag: Belize</source><translation>bandeira: Belize</translation></message>
<message><source>flag: Benin</source><translation>bandeira: Benin</translation></message>
<message><source>flag: Bermuda</source><translation>bandeira: Bermudas</translation></message>
<message><source>flag: Bhutan</source><translation>bandeira: Butão</translation></message>
<message><source>flag: Bolivia</source><translation>bandeira: Bolívia</translation></message>
<message><source>flag: Bosnia &amp; Herzegovina</source><translation>bandeira: Bósnia e Herzegovina</translation></message>
<message><source>flag: Botswana</source><translation>bandeira: Botsuana</translation></message>
<message><source>flag: Bouvet Island</source><translation>bandeira: Ilha Bouvet</translation></message>
<message><source>flag: Brazil</source><translation>bandeira: Brasil</translation></message>
<message><source>flag: British Indian Ocean Territory</source><translation>bandeira: Território Britânico do Oceano Índico</translation></message>
<message><source>flag: British Virgin Islands</source><translation>bandeira: Ilhas Virgens Britânicas</translation></message>
<message><source>flag: Brunei</source><translation>bandeira: Brunei</translation></message>
<message><source>flag: Bulgaria</source><translation>bandeira: Bulgária</translation></message>
<message><source>flag: Burkina Faso</source><translation>bandeira: Burquina Faso</translation></message>
<message><source>flag: Burundi</source><translation>bandeira: Burundi</translation></message>
<message><source>flag: Cambodia</source><translation>bandeira: Camboja</translation></message>
<message><source>flag: Cameroon</source><translation>bandeira: Camarões</translation></message>
<message><source>flag: Canada</source><translation>bandeira: Canadá</translation></message>
<message><source>flag: Canary Islands</source><translation>bandeira: Ilhas Canárias</translation></message>
<message><source>flag: Cape Verde</source><translation>bandeira: Cabo Verde</translation></message>
<message><source>flag: Caribbean Netherlands</source><translation>bandeira: Países Baixos Caribenhos</translation></message>
<message><source>flag: Cayman Islands</source><translation>bandeira: Ilhas Cayman</translation></message>
<message><source>flag: Central African Republic</source><translation>bandeira: República Centro-Africana</translation></message>
<message><source>flag: Ceuta &amp; Melilla</source><translation>bandeira: Ceuta e Melilla</translation></message>
<message><source>flag: Chad</source><translation>bandeira: Chade</translation></message>
<message><source>flag: Chile</source><translation>bandeira: Chile</translation></message>
<message><source>flag: China</source><translation>bandeira: China</translation></message>
<message><source>flag: Christmas Island</source><translation>bandeira: Ilha Christmas</translation></message>
<message><source>flag: Clipperton Island</source><translation>bandeira: Ilha de Clipperton</translation></message>
<message><source>flag: Cocos (Keeling) Islands</source><translation>bandeira: Ilhas Cocos (Keeling)</translation></message>
<message><source>flag: Colombia</source><translation>bandeira: Colômbia</translation></message>
<message><source>flag: Comoros</source><translation>bandeira: Comores</translation></message>
<message><source>flag: Congo - Brazzaville</source><translation>bandeira: República do Congo</translation></message>
<message><source>flag: Congo - Kinshasa</source><translation>bandeira: Congo - Kinshasa</translation></message>
<message><source>flag: Cook Islands</source><translation>bandeira: Ilhas Cook</translation></message>
<message><source>flag: Costa Rica</source><translation>bandeira: Costa Rica</translation></message>
<message><source>flag: Croatia</source><translation>bandeira: Croácia</translation></message>
<message><source>flag: Cuba</source><translation>bandeira: Cuba</translation></message>
<message><source>flag: Curaçao</source><translation>bandeira: Curaçao</translation></message>
<message><source>flag: Cyprus</source><translation>bandeira: Chipre</translation></message>
<message><source>flag: Czechia</source><translation>bandeira: Tchéquia</translation></message>
<message><source>flag: Côte d’Ivoire</source><translation>bandeira: Costa do Marfim</translation></message>
<message><source>flag: Denmark</source><translation>bandeira: Dinamarca</translation></message>
<message><source>flag: Diego Garcia</source><translation>bandeira: Diego Garcia</translation></message>
<message><source>flag: Djibouti</source><translation>bandeira: Djibuti</translation></message>
<message><source>flag: Dominica</source><translation>bandeira: Dominica</translation></message>
<message><source>flag: Dominican Republic</source><translation>bandeira: República Dominicana</translation></message>
<message><source>flag: Ecuador</source><translation>bandeira: Equador</translation></message>
<message><source>flag: Egypt</source><translation>bandeira: Egito</translation></message>
<message><source>flag: El Salvador</source><translation>bandeira: El Salvador</translation></message>
<message><source>flag: England</source><translation>bandeira: Inglaterra</translation></message>
<message><source>flag: Equatorial Guinea</source><translation>bandeira: Guiné Equatorial</translation></message>
<message><source>flag: Eritrea</source><translation>bandeira: Eritreia</translation></message>
<message><source>flag: Estonia</source><translation>bandeira: Estônia</translation></message>
<message><source>flag: Eswatini</source><translation>bandeira: Essuatíni</translation></message>
<message><source>flag: Ethiopia</source><translation>bandeira: Etiópia</translation></message>
<message><source>flag: European Union</source><translation>bandeira: União Europeia</translation></message>
<message><source>flag: Falkland Islands</source><translation>bandeira: Ilhas Malvinas</translation></message>
<message><source>flag: Faroe Islands</source><translation>bandeira: Ilhas Faroé</translation></message>
<message><source>flag: Fiji</source><translation>bandeira: Fiji</translation></message>
<message><source>flag: Finland</source><translation>bandeira: Finlândia</translation></message>
<message><source>flag: France</source><translation>bandeira: França</translation></message>
<message><source>flag: French Guiana</source><translation>bandeira: Guiana Francesa</translation></message>
<message><source>flag: French Polynesia</source><translation>bandeira: Polinésia Francesa</translation></message>
<message><source>flag: French Southern Territories</source><translation>bandeira: Territórios Franceses do Sul</translation></message>
<message><source>flag: Gabon</source><translation>bandeira: Gabão</translation></message>
<message><source>flag: Gambia</source><translation>bandeira: Gâmbia</translation></message>
<message><source>flag: Georgia</source><translation>bandeira: Geórgia</translation></message>
<message><source>flag: Germany</source><translation>bandeira: Alemanha</translation></message>
<message><source>flag: Ghana</source><translation>bandeira: Gana</translation></message>
<message><source>flag: Gibraltar</source><translation>bandeira: Gibraltar</translation></message>
<message><source>flag: Greece</source><translation>bandeira: Grécia</translation></message>
<message><source>flag: Greenland</source><translation>bandeira: Groenlândia</translation></message>
<message><source>flag: Grenada</source><translation>bandeira: Granada</translation></message>
<message><source>flag: Guadeloupe</source><translation>bandeira: Guadalupe</translation></message>
<message><source>flag: Guam</source><translation>bandeira: Guam</translation></message>
<message><source>flag: Guatemala</source><translation>bandeira: Guatemala</translation></message>
<message><source>flag: Guernsey</source><translation>bandeira: Guernsey</translation></message>
<message><source>flag: Guinea</source><translation>bandeira: Guiné</translation></message>
<message><source>flag: Guinea-Bissau</source><translation>bandeira: Guiné-Bissau</translation></message>
<message><source>flag: Guyana</source><translation>bandeira: Guiana</translation></message>
<message><source>flag: Haiti</source><translation>bandeira: Haiti</translation></message>
<message><source>flag: Heard &amp; McDonald Islands</source><translation>bandeira: Ilhas Heard e McDonald</translation></message>
<message><source>flag: Honduras</source><translation>bandeira: Honduras</translation></message>
<message><source>flag: Hong Kong SAR China</source><translation>bandeira: Hong Kong, RAE da China</translation></message>
<message><source>flag: Hungary</source><translation>bandeira: Hungria</translation></message>
<message><source>flag: Iceland</source><translation>bandeira: Islândia</translation></message>
<message><source>flag: India</source><translation>bandeira: Índia</translation></message>
<message><source>flag: Indonesia</source><translation>bandeira: Indonésia</translation></message>
<message><source>flag: Iran</source><translation>bandeira: Irã</translation></message>
<message><source>flag: Iraq</source><translation>bandeira: Iraque</translation></message>
<message><source>flag: Ireland</source><translation>bandeira: Irlanda</translation></message>
<message><source>flag: Isle of Man</source><translation>bandeira: Ilha de Man</translation></message>
<message><source>flag: Israel</source><translation>bandeira: Israel</translation></message>
<message><source>flag: Italy</source><translation>bandeira: Itália</translation></message>
<message><source>flag: Jamaica</source><translation>bandeira: Jamaica</translation></message>
<message><source>flag: Japan</source><translation>bandeira: Japão</translation></message>
<message><source>flag: Jersey</source><translation>bandeira: Jersey</translation></message>
<message><source>flag: Jordan</source><translation>bandeira: Jordânia</translation></message>
<message><source>flag: Kazakhstan</source><translation>bandeira: Cazaquistão</translation></message>
<message><source>flag: Kenya</source><translation>bandeira: Quênia</translation></message>
<message><source>flag: Kiribati</source><translation>bandeira: Quiribati</translation></message>
<message><source>flag: Kosovo</source><translation>bandeira: Kosovo</translation></message>
<message><source>flag: Kuwait</source><translation>bandeira: Kuwait</translation></message>
<message><source>flag: Kyrgyzstan</source><translation>bandeira: Quirguistão</translation></message>
<message><source>flag: Laos</source><translation>bandeira: Laos</translation></message>
<message><source>flag: Latvia</source><translation>bandeira: Letônia</translation></message>
<message><source>flag: Lebanon</source><translation>bandeira: Líbano</translation></message>
<message><source>flag: Lesotho</source><translation>bandeira: Lesoto</translation></message>
<message><source>flag: Liberia</source><translation>bandeira: Libéria</translation></message>
<message><source>flag: Libya</source><translation>bandeira: Líbia</translation></message>
<message><source>flag: Liechtenstein</source><translation>bandeira: Liechtenstein</translation></message>
<message><source>flag: Lithuania</source><translation>bandeira: Lituânia</translation></message>
<message><source>flag: Luxembourg</source><translation>bandeira: Luxemburgo</translation></message>
<message><source>flag: Macao SAR China</source><translation>bandeira: Macau, RAE da China</translation></message>
<message><source>flag: Madagascar</source><translation>bandeira: Madagascar</translation></message>
<message><source>flag: Malawi</source><translation>bandeira: Malaui</translation></message>
<message><source>flag: Malaysia</source><translation>bandeira: Malásia</translation></message>
<message><source>flag: Maldives</source><translation>bandeira: Maldivas</translation></message>
<message><source>flag: Mali</source><translation>bandeira: Mali</translation></message>
<message><source>flag: Malta</source><translation>bandeira: Malta</translation></message>
<message><source>flag: Marshall Islands</source><translation>bandeira: Ilhas Marshall</translation></message>
<message><source>flag: Martinique</source><translation>bandeira: Martinica</translation></message>
<message><source>flag: Mauritania</source><translation>bandeira: Mauritânia</translation></message>
<message><source>flag: Mauritius</source><translation>bandeira: Maurício</translation></message>
<message><source>flag: Mayotte</source><translation>bandeira: Mayotte</translation></message>
<message><source>flag: Mexico</source><translation>bandeira: México</translation></message>
<message><source>flag: Micronesia</source><translation>bandeira: Micronésia</translation></message>
<message><source>flag: Moldova</source><translation>bandeira: Moldávia</translation></message>
<message><source>flag: Monaco</source><translation>bandeira: Mônaco</translation></message>
<message><source>flag: Mongolia</source><translation>bandeira: Mongólia</translation></message>
<message><source>flag: Montenegro</source><translation>bandeira: Montenegro</translation></message>
<message><source>flag: Montserrat</source><translation>bandeira: Montserrat</translation></message>
<message><source>flag: Morocco</source><translation>bandeira: Marrocos</translation></message>
<message><source>flag: Mozambique</source><translation>bandeira: Moçambique</translation></message>
<message><source>flag: Myanmar (Burma)</source><translation>bandeira: Mianmar (Birmânia)</translation></message>
<message><source>flag: Namibia</source><translation>bandeira: Namíbia</translation></message>
<message><source>flag: Nauru</source><translation>bandeira: Nauru</translation></message>
<message><source>flag: Nepal</source><translation>bandeira: Nepal</translation></message>
<message><source>flag: Netherlands</source><translation>bandeira: Países Baixos</translation></message>
<message><source>flag: New Caledonia</source><translation>bandeira: Nova Caledônia</translation></message>
<message><source>flag: New Zealand</source><translation>bandeira: Nova Zelândia</translation></message>
<message><source>flag: Nicaragua</source><translation>bandeira: Nicarágua</translation></message>
<message><source>flag: Niger</source><translation>bandeira: Níger</translation></message>
<message><source>flag: Nigeria</source><translation>bandeira: Nigéria</translation></message>
<message><source>flag: Niue</source><translation>bandeira: Niue</translation></message>
<message><source>flag: Norfolk Island</source><translation>bandeira: Ilha Norfolk</translation></message>
<message><source>flag: North Korea</source><translation>bandeira: Coreia do Norte</translation></message>
<message><source>flag: North Macedonia</source><translation>bandeira: Macedônia do Norte</translation></message>
<message><source>flag: Northern Mariana Islands</source><translation>bandeira: Ilhas Marianas do Norte</translation></message>
<message><source>flag: Norway</source><translation>bandeira: Noruega</translation></message>
<message><source>flag: Oman</source><translation>bandeira: Omã</translation></message>
<message><source>flag: Pakistan</source><translation>bandeira: Paquistão</translation></message>
<message><source>flag: Palau</source><translation>bandeira: Palau</translation></message>
<message><source>flag: Palestinian Territories</source><translation>bandeira: Territórios palestinos</translation></message>
<message><source>flag: Panama</source><translation>bandeira: Panamá</translation></message>
<message><source>flag: Papua New Guinea</source><translation>bandeira: Papua-Nova Guiné</translation></message>
<message><source>flag: Paraguay</source><translation>bandeira: Paraguai</translation></message>
<message><source>flag: Peru</source><translation>bandeira: Peru</translation></message>
<message><source>flag: Philippines</source><translation>bandeira: Filipinas</translation></message>
<message><source>flag: Pitcairn Islands</source><translation>bandeira: Ilhas Pitcairn</translation></message>
<message><source>flag: Poland</source><translation>bandeira: Polônia</translation></message>
<message><source>flag: Portugal</source><translation>bandeira: Portugal</translation></message>
<message><source>flag: Puerto Rico</source><translation>bandeira: Porto Rico</translation></message>
<message><source>flag: Qatar</source><translation>bandeira: Catar</translation></message>
<message><source>flag: Romania</source><translation>bandeira: Romênia</translation></message>
<message><source>flag: Russia</source><translation>bandeira: Rússia</translation></message>
<message><source>flag: Rwanda</source><translation>bandeira: Ruanda</translation></message>
<message><source>flag: Réunion</source><translation>bandeira: Reunião</translation></message>
<message><source>flag: Samoa</source><translation>bandeira: Samoa</translation></message>
<message><source>flag: San Marino</source><translation>bandeira: San Marino</translation></message>
<message><source>flag: Sark</source><translation>bandeira: Sark</translation></message>
<message><source>flag: Saudi Arabia</source><translation>bandeira: Arábia Saudita</translation></message>
<message><source>flag: Scotland</source><translation>bandeira: Escócia</translation></message>
<message><source>flag: Senegal</source><translation>bandeira: Senegal</translation></message>
<message><source>flag: Serbia</source><translation>bandeira: Sérvia</translation></message>
<message><source>flag: Seychelles</source><translation>bandeira: Seicheles</translation></message>
<message><source>flag: Sierra Leone</source><translation>bandeira: Serra Leoa</translation></message>
<message><source>flag: Singapore</source><translation>bandeira: Singapura</translation></message>
<message><source>flag: Sint Maarten</source><translation>bandeira: Sint Maarten</translation></message>
<message><source>flag: Slovakia</source><translation>bandeira: Eslováquia</translation></message>
<message><source>flag: Slovenia</source><translation>bandeira: Eslovênia</translation></message>
<message><source>flag: Solomon Islands</source><translation>bandeira: Ilhas Salomão</translation></message>
<message><source>flag: Somalia</source><translation>bandeira: Somália</translation></message>
<message><source>flag: South Africa</source><translation>bandeira: África do Sul</translation></message>
<message><source>flag: South Georgia &amp; South Sandwich Islands</source><translation>bandeira: Ilhas Geórgia do Sul e Sandwich do Sul</translation></message>
<message><source>flag: South Korea</source><translation>bandeira: Coreia do Sul</translation></message>
<message><source>flag: South Sudan</source><translation>bandeira: Sudão do Sul</translation></message>
<message><source>flag: Spain</source><translation>bandeira: Espanha</translation></message>
<message><source>flag: Sri Lanka</source><translation>bandeira: Sri Lanka</translation></message>
<message><source>flag: St. Barthélemy</source><translation>bandeira: São Bartolomeu</translation></message>
<message><source>flag: St. Helena</source><translation>bandeira: Santa Helena</translation></message>
<message><source>flag: St. Kitts &amp; Nevis</source><translation>bandeira: São Cristóvão e Névis</translation></message>
<message><source>flag: St. Lucia</source><translation>bandeira: Santa Lúcia</translation></message>
<message><source>flag: St. Martin</source><translation>bandeira: São Martinho</translation></message>
<message><source>flag: St. Pierre &amp; Miquelon</source><translation>bandeira: São Pedro e Miquelão</translation></message>
<message><source>flag: St. Vincent &amp; Grenadines</source><translation>bandeira: São Vicente e Granadinas</translation></message>
<message><source>flag: Sudan</source><translation>bandeira: Sudão</translation></message>
<message><source>flag: Suriname</source><translation>bandeira: Suriname</translation></message>
<message><source>flag: Svalbard &amp; Jan Mayen</source><translation>bandeira: Svalbard e Jan Mayen</translation></message>
<message><source>flag: Sweden</source><translation>bandeira: Suécia</translation></message>
<message><source>flag: Switzerland</source><translation>bandeira: Suíça</translation></message>
<message><source>flag: Syria</source><translation>bandeira: Síria</translation></message>
<message><source>flag: São Tomé &amp; Príncipe</source><translation>bandeira: São Tomé e Príncipe</translation></message>
<message><source>flag: Taiwan</source><translation>bandeira: Taiwan</translation></message>
<message><source>flag: Tajikistan</source><translation>bandeira: Tadjiquistão</translation></message>
<message><source>flag: Tanzania</source><translation>bandeira: Tanzânia</translation></message>
<message><source>flag: Thailand</source><translation>bandeira: Tailândia</translation></message>
<message><source>flag: Timor-Leste</source><translation>bandeira: Timor-Leste</translation></message>
<message><source>flag: Togo</source><translation>bandeira: Togo</translation></message>
<message><source>flag: Tokelau</source><translation>bandeira: Tokelau</translation></message>
<message><source>flag: Tonga</source><translation>bandeira: Tonga</translation></message>
<message><source>flag: Trinidad &amp; Tobago</source><translation>bandeira: Trinidad e Tobago</translation></message>
<message><source>flag: Tristan da Cunha</source><translation>bandeira: Tristão da Cunha</translation></message>
<message><source>flag: Tunisia</source><translation>bandeira: Tunísia</translation></message>
<message><source>flag: Turkmenistan</source><translation>bandeira: Turcomenistão</translation></message>
<message><source>flag: Turks &amp; Caicos Islands</source><translation>bandeira: Ilhas Turcas e Caicos</translation></message>
<message><source>flag: Tuvalu</source><translation>bandeira: Tuvalu</translation></message>
<message><source>flag: Türkiye</source><translation>bandeira: Turquia</translation></message>
<message><source>flag: U.S. Outlying Islands</source><translation>bandeira: Ilhas Menores Distantes dos EUA</translation></message>
<message><source>flag: U.S. Virgin Islands</source><translation>bandeira: Ilhas Virgens Americanas</translation></message>
<message><source>flag: Uganda</source><translation>bandeira: Uganda</translation></message>
<message><source>flag: Ukraine</source><translation>bandeira: Ucrânia</translation></message>
<message><source>flag: United Arab Emirates</source><translation>bandeira: Emirados Árabes Unidos</translation></message>
<message><source>flag: United Kingdom</source><translation>bandeira: Reino Unido</translation></message>
<message><source>flag: United Nations</source><translation>bandeira: Nações Unidas</translation></message>
<message><source>flag: United States</source><translation>bandeira: Estados Unidos</translation></message>
<message><source>flag: Uruguay</source><translation>bandeira: Uruguai</translation></message>
<message><source>flag: Uzbekistan</source><translation>bandeira: Uzbequistão</translation></message>
<message><source>flag: Vanuatu</source><translation>bandeira: Vanuatu</translation></message>
<message><source>flag: Vatican City</source><translation>bandeira: Cidade do Vaticano</translation></message>
<message><source>flag: Venezuela</source><translation>bandeira: Venezuela</translation></message>
<message><source>flag: Vietnam</source><translation>bandeira: Vietnã</translation></message>
<message><source>flag: Wales</source><translation>bandeira: País de Gales</translation></message>
<message><source>flag: Wallis &amp; Futuna</source><translation>bandeira: Wallis e Futuna</translation></message>
<message><source>flag: Western Sahara</source><translation>bandeira: Saara Ocidental</translation></message>
<message><source>flag: Yemen</source><translation>bandeira: Iêmen</translation></message>
<message><source>flag: Zambia</source><translation>bandeira: Zâmbia</translation></message>
<message><source>flag: Zimbabwe</source><translation>bandeira: Zimbábue</translation></message>
<message><source>flag: Åland Islands</source><translation>bandeira: Ilhas Aland</translation></message>
<message><source>flamenco</source><translation>flamenco</translation></message>
<message><source>flamingo</source><translation>flamingo</translation></message>
<message><source>flash</source><translation>flash</translation></message>
<message><source>flashlight</source><translation>lanterna</translation></message>
<message><source>flat shoe</source><translation>sapatilha</translation></message>
<message><source>flatbread</source><translation>pão sírio</translation></message>
<message><source>fleur-de-lis</source><translation>flor-de-lis</translation></message>
<message><source>flexed biceps</source><translation>bíceps</translation></message>
<message><source>flirt</source><translation>flerte</translation></message>
<message><source>floppy disk</source><translation>disquete</translation></message>
<message><source>flower</source><translation>flor</translation></message>
<message><source>flower playing cards</source><translation>carta de flores</translation></message>
<message><source>fluctuate</source><translation>flutua</translation></message>
<message><source>flushed face</source><translation>rosto ruborizado</translation></message>
<message><source>flute</source><translation>flauta</translation></message>
<message><source>fly</source><translation>mosca</translation></message>
<message><source>flying disc</source><translation>frisbee</translation></message>
<message><source>flying saucer</source><translation>disco voador</translation></message>
<message><source>fog</source><translation>nevoeiro</translation></message>
<message><source>foggy</source><translation>enevoado</translation></message>
<message><source>folded hands</source><translation>mãos juntas</translation></message>
<message><source>folding hand fan</source><translation>leque dobrável</translation></message>
<message><source>folklore</source><translation>ser encantado</translation></message>
<message><source>fondue</source><translation>fondue</translation></message>
<message><source>food</source><translation>comida</translation></message>
<message><source>foot</source><translation>pé</translation></message>
<message><source>football</source><translation>futebol</translation></message>
<message><source>footprints</source><translation>pegadas</translation></message>
<message><source>forest</source><translation>floresta</translation></message>
<message><source>fork and knife</source><translation>garfo e faca</translation></message>
<message><source>fork and knife with plate</source><translation>prato com talheres</translation></message>
<message><source>fortune cookie</source><translation>biscoito da sorte</translation></message>
<message><source>fountain</source><translation>fonte</translation></message>
<message><source>fountain pen</source><translation>caneta tinteiro</translation></message>
<message><source>four</source><translation>quatro</translation></message>
<message><source>four leaf clover</source><translation>trevo de quatro folhas</translation></message>
<message><source>four o’clock</source><translation>4 horas</translation></message>
<message><source>four-thirty</source><translation>quatro e meia</translation></message>
<message><source>fox</source><translation>rosto de raposa</translation></message>
<message><source>frame</source><translation>quadro</translation></message>
<message><source>framed picture</source><translation>quadro emoldurado</translation></message>
<message><source>french fries</source><translation>batata frita</translation></message>
<message><source>fresh</source><translation>fresco</translation></message>
<message><source>fried shrimp</source><translation>camarão frito</translation></message>
<message><source>friends</source><translation>amigos</translation></message>
<message><source>frog</source><translation>sapo</translation></message>
<message><source>front-facing baby chick</source><translation>pintinho de frente</translation></message>
<message><source>frowning face</source><translation>rosto descontente</translation></message>
<message><source>frowning face with open mouth</source><translation>rosto franzido com boca aberta</translation></message>
<message><source>fruit</source><translation>fruta</translation></message>
<message><source>frustration</source><translation>frustração</translation></message>
<message><source>fuel pump</source><translation>posto de gasolina</translation></message>
<message><source>full</source><translation>cheia</translation></message>
<message><source>full moon</source><translation>lua cheia</translation></message>
<message><source>full moon face</source><translation>rosto da lua cheia</translation></message>
<message><source>funeral</source><translation>funeral</translation></message>
<message><source>funeral urn</source><translation>urna funerária</translation></message>
<message><source>fungi</source><translation>fungos</translation></message>
<message><source>fungus</source><translation>fungo</translation></message>
<message><source>furious</source><translation>furiosa</translation></message>
<message><source>future</source><translation>futuro</translation></message>
<message><source>game</source><translation>jogo</translation></message>
<message><source>game die</source><translation>jogo de dado</translation></message>
<message><source>garlic</source><translation>alho</translation></message>
<message><source>gasoline</source><translation>gasolina</translation></message>
<message><source>gear</source><translation>engrenagem</translation></message>
<message><source>gem stone</source><translation>pedra preciosa</translation></message>
<message><source>gene</source><translation>gene</translation></message>
<message><source>genie</source><translation>gênio</translation></message>
<message><source>geometric</source><translation>geométrico</translation></message>
<message><source>gesture</source><translation>gesto</translation></message>
<message><source>ghost</source><translation>fantasma</translation></message>
<message><source>gibbous</source><translation>convexa</translation></message>
<message><source>ginger root</source><translation>gengibre</translation></message>
<message><source>giraffe</source><translation>girafa</translation></message>
<message><source>girl</source><translation>menina</translation></message>
<message><source>glass of milk</source><translation>copo de leite</translation></message>
<message><source>glasses</source><translation>óculos</translation></message>
<message><source>globe showing Americas</source><translation>globo mostrando as Américas</translation></message>
<message><source>globe showing Asia-Australia</source><translation>globo mostrando Ásia e Oceania</translation></message>
<message><source>globe showing Europe-Africa</source><translation>globo mostrando Europa e África</translation></message>
<message><source>globe with meridians</source><translation>globo com meridianos</translation></message>
<message><source>gloves</source><translation>luvas</translation></message>
<message><source>glowing star</source><translation>estrela brilhante</translation></message>
<message><source>goal net</source><translation>gol</translation></message>
<message><source>goat</source><translation>cabra</translation></message>
<message><source>goblin</source><translation>duende japonês</translation></message>
<message><source>goggles</source><translation>óculos de proteção</translation></message>
<message><source>golf</source><translation>golfe</translation></message>
<message><source>golfing</source><translation>golf</translation></message>
<message><source>gondola</source><translation>gôndola</translation></message>
<message><source>goose</source><translation>ganso</translation></message>
<message><source>gorilla</source><translation>gorila</translation></message>
<message><source>graduation cap</source><translation>chapéu de formatura</translation></message>
<message><source>grains</source><translation>grãos</translation></message>
<message><source>grapes</source><translation>uvas</translation></message>
<message><source>grateful</source><translation>gratidão</translation></message>
<message><source>green</source><translation>verde</translation></message>
<message><source>green apple</source><translation>maçã verde</translation></message>
<message><source>green book</source><translation>livro verde</translation></message>
<message><source>green circle</source><translation>círculo verde</translation></message>
<message><source>green heart</source><translation>coração verde</translation></message>
<message><source>green salad</source><translation>salada verde</translation></message>
<message><source>green square</source><translation>quadrado verde</translation></message>
<message><source>grey heart</source><translation>coração cinza</translation></message>
<message><source>grimace</source><translation>careta</translation></message>
<message><source>grimacing face</source><translation>rosto expressando desagrado</translation></message>
<message><source>grin</source><translation>riso</translation></message>
<message><source>grinning cat</source><translation>rosto de gato sorrindo</translation></message>
<message><source>grinning cat with smiling eyes</source><translation>rosto de gato sorrindo com olhos sorridentes</translation></message>
<message><source>grinning face</source><translation>rosto risonho</translation></message>
<message><source>grinning face with big eyes</source><translation>rosto risonho com olhos bem abertos</translation></message>
<message><source>grinning face with smiling eyes</source><translation>rosto risonho com olhos sorridentes</translation></message>
<message><source>grinning face with sweat</source><translation>rosto risonho com gota de suor</translation></message>
<message><source>grinning squinting face</source><translation>rosto risonho com olhos semicerrados</translation></message>
<message><source>growing heart</source><translation>coração crescendo</translation></message>
<message><source>guanaco</source><translation>guanaco</translation></message>
<message><source>guapi</source><translation>guapimao</translation></message>
<message><source>guard</source><translation>guarda</translation></message>
<message><source>guide</source><translation>guia</translation></message>
<message><source>guide dog</source><translation>cão-guia</translation></message>
<message><source>guitar</source><translation>guitarra</translation></message>
<message><source>gymnastics</source><translation>ginástica</translation></message>
<message><source>gyōza</source><translation>gyōza</translation></message>
<message><source>haha</source><translation>hahaha</translation></message>
<message><source>hair</source><translation>cabelo</translation></message>
<message><source>hair pick</source><translation>pente de cabelo</translation></message>
<message><source>halloween</source><translation>halloween</translation></message>
<message><source>hamburger</source><translation>hambúrguer</translation></message>
<message><source>hammer</source><translation>martelo</translation></message>
<message><source>hammer and pick</source><translation>martelo e picareta</translation></message>
<message><source>hammer and wrench</source><translation>martelo e chave-inglesa</translation></message>
<message><source>hamsa</source><translation>hamsá</translation></message>
<message><source>hamster</source><translation>rosto de hamster</translation></message>
<message><source>hand</source><translation>mão</translation></message>
<message><source>hand with fingers splayed</source><translation>mão aberta com os dedos separados</translation></message>
<message><source>hand with index finger and thumb crossed</source><translation>mão com dedo indicador e polegar cruzados</translation></message>
<message><source>handbag</source><translation>bolsa de mão</translation></message>
<message><source>handshake</source><translation>aperto de mãos</translation></message>
<message><source>harp</source><translation>harpa</translation></message>
<message><source>hashi</source><translation>hashi</translation></message>
<message><source>hat</source><translation>chapéu</translation></message>
<message><source>hatching chick</source><translation>pintinho chocando</translation></message>
<message><source>head</source><translation>cabeça</translation></message>
<message><source>head shaking horizontally</source><translation>cabeça virando de um lado para o outro</translation></message>
<message><source>head shaking vertically</source><translation>cabeça balançando na vertical</translation></message>
<message><source>headphone</source><translation>fones de ouvido</translation></message>
<message><source>headstone</source><translation>lápide</translation></message>
<message><source>health worker</source><translation>profissional de saúde</translation></message>
<message><source>hear-no-evil monkey</source><translation>macaco que não ouve nada</translation></message>
<message><source>heart</source><translation>coração</translation></message>
<message><source>heart decoration</source><translation>coração decorativo</translation></message>
<message><source>heart exclamation</source><translation>exclamação de coração</translation></message>
<message><source>heart hands</source><translation>mãos de coração</translation></message>
<message><source>heart on fire</source><translation>coração em chamas</translation></message>
<message><source>heart suit</source><translation>naipe de copas</translation></message>
<message><source>heart with arrow</source><translation>coração com flecha</translation></message>
<message><source>heart with ribbon</source><translation>coração com fita</translation></message>
<message><source>heart-eyes</source><translation>apaixonado</translation></message>
<message><source>heavy dollar sign</source><translation>cifrão</translation></message>
<message><source>heavy equals sign</source><translation>sinal de igual</translation></message>
<message><source>hedgehog</source><translation>porco-espinho</translation></message>
<message><source>helicopter</source><translation>helicóptero</translation></message>
<message><source>hello</source><translation>olá</translation></message>
<message><source>herb</source><translation>erva</translation></message>
<message><source>hibiscus</source><translation>hibisco</translation></message>
<message><source>high voltage</source><translation>alta tensão</translation></message>
<message><source>high-heeled shoe</source><translation>sapato de salto alto</translation></message>
<message><source>high-speed train</source><translation>trem de alta velocidade</translation></message>
<message><source>hijab</source><translation>hijab</translation></message>
<message><source>hiking boot</source><translation>bota de trekking</translation></message>
<message><source>hindu</source><translation>hindu</translation></message>
<message><source>hindu temple</source><translation>templo hindu</translation></message>
<message><source>hippopotamus</source><translation>hipopótamo</translation></message>
<message><source>hockey</source><translation>hóquei</translation></message>
<message><source>hole</source><translation>buraco</translation></message>
<message><source>hollow red circle</source><translation>círculo grande oco</translation></message>
<message><source>honey pot</source><translation>pote de mel</translation></message>
<message><source>honeybee</source><translation>abelha</translation></message>
<message><source>hook</source><translation>gancho</translation></message>
<message><source>horizontal</source><translation>horizontal</translation></message>
<message><source>horizontal traffic light</source><translation>semáforo horizontal</translation></message>
<message><source>horns</source><translation>chifres</translation></message>
<message><source>horrible</source><translation>horrível</translation></message>
<message><source>horse</source><translation>cavalo</translation></message>
<message><source>horse face</source><translation>rosto de cavalo</translation></message>
<message><source>horse racing</source><translation>corrida de cavalos</translation></message>
<message><source>hospital</source><translation>hospital</translation></message>
<message><source>hot</source><translation>quente</translation></message>
<message><source>hot beverage</source><translation>café</translation></message>
<message><source>hot dog</source><translation>cachorro-quente</translation></message>
<message><source>hot face</source><translation>rosto fervendo de calor</translation></message>
<message><source>hot pepper</source><translation>pimenta</translation></message>
<message><source>hot springs</source><translation>chamas</translation></message>
<message><source>hotel</source><translation>hotel</translation></message>
<message><source>hourglass done</source><translation>ampulheta</translation></message>
<message><source>hourglass not done</source><translation>ampulheta contando o tempo</translation></message>
<message><source>house</source><translation>casa</translation></message>
<message><source>house with garden</source><translation>casa com jardim</translation></message>
<message><source>houses</source><translation>casas</translation></message>
<message><source>hump</source><translation>corcova</translation></message>
<message><source>hundred points</source><translation>cem pontos</translation></message>
<message><source>hushed face</source><translation>rosto surpreso</translation></message>
<message><source>hut</source><translation>cabana</translation></message>
<message><source>hyacinth</source><translation>jacinto</translation></message>
<message><source>hygiene</source><translation>higiene</translation></message>
<message><source>hypnotized</source><translation>hipnotizado</translation></message>
<message><source>hóngbāo</source><translation>hóngbāo</translation></message>
<message><source>ice</source><translation>cubo de gelo</translation></message>
<message><source>ice cream</source><translation>sorvete</translation></message>
<message><source>ice hockey</source><translation>hóquei no gelo</translation></message>
<message><source>ice skate</source><translation>patins de gelo</translation></message>
<message><source>iceberg</source><translation>iceberg</translation></message>
<message><source>idea</source><translation>ideia</translation></message>
<message><source>identification card</source><translation>cartão de identificação</translation></message>
<message><source>ideograph</source><translation>ideograma</translation></message>
<message><source>ignorance</source><translation>ignorância</translation></message>
<message><source>immortal</source><translation>imortal</translation></message>
<message><source>impressed</source><translation>impressionado</translation></message>
<message><source>inbox tray</source><translation>bandeja de entrada</translation></message>
<message><source>incognito</source><translation>incógnito</translation></message>
<message><source>incoming envelope</source><translation>envelope chegando</translation></message>
<message><source>index</source><translation>indicador</translation></message>
<message><source>index pointing at the viewer</source><translation>indicador apontando para o visualizador</translation></message>
<message><source>index pointing up</source><translation>indicador apontando para cima</translation></message>
<message><source>indifference</source><translation>indiferença</translation></message>
<message><source>infinity</source><translation>infinito</translation></message>
<message><source>information</source><translation>informações</translation></message>
<message><source>input</source><translation>digitação</translation></message>
<message><source>input latin letters</source><translation>letras latinas</translation></message>
<message><source>input latin lowercase</source><translation>letras latinas minúsculas</translation></message>
<message><source>input latin uppercase</source><translation>letras latinas maiúsculas</translation></message>
<message><source>input numbers</source><translation>números</translation></message>
<message><source>input symbols</source><translation>símbolos</translation></message>
<message><source>insect</source><translation>inseto</translation></message>
<message><source>instrument</source><translation>instrumento</translation></message>
<message><source>intercardinal</source><translation>intercardinal</translation></message>
<message><source>internet</source><translation>internet</translation></message>
<message><source>intoxicated</source><translation>intoxicado</translation></message>
<message><source>introvert</source><translation>introvertido</translation></message>
<message><source>invertebrate</source><translation>invertebrado</translation></message>
<message><source>invisible</source><translation>invisível</translation></message>
<message><source>ironic</source><translation>irônico</translation></message>
<message><source>islam</source><translation>islã</translation></message>
<message><source>jack</source><translation>jack</translation></message>
<message><source>jack-o-lantern</source><translation>abóbora de halloween</translation></message>
<message><source>jar</source><translation>jarro</translation></message>
<message><source>jeans</source><translation>jeans</translation></message>
<message><source>jellyfish</source><translation>água-viva</translation></message>
<message><source>jiaozi</source><translation>jiaozi</translation></message>
<message><source>jockey</source><translation>jockey</translation></message>
<message><source>joey</source><translation>joey</translation></message>
<message><source>joker</source><translation>curinga</translation></message>
<message><source>joy</source><translation>lágrimas</translation></message>
<message><source>joystick</source><translation>joystick</translation></message>
<message><source>judaism</source><translation>judaísmo</translation></message>
<message><source>judge</source><translation>juiz no tribunal</translation></message>
<message><source>judo</source><translation>judô</translation></message>
<message><source>justice</source><translation>justiça</translation></message>
<message><source>kaaba</source><translation>caaba islã</translation></message>
<message><source>kangaroo</source><translation>canguru</translation></message>
<message><source>karaoke</source><translation>karaokê</translation></message>
<message><source>katakana</source><translation>katakana</translation></message>
<message><source>kebab</source><translation>kebab</translation></message>
<message><source>key</source><translation>chave</translation></message>
<message><source>keyboard</source><translation>teclado</translation></message>
<message><source>keycap</source><translation>tecla</translation></message>
<message><source>keycap: #</source><translation>tecla: #</translation></message>
<message><source>keycap: *</source><translation>tecla: *</translation></message>
<message><source>keycap: 0</source><translation>tecla: 0</translation></message>
<message><source>keycap: 1</source><translation>tecla: 1</translation></message>
<message><source>keycap: 10</source><translation>tecla: 10</translation></message>
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
<message><source>kimono</source><translation>quimono</translation></message>
<message><source>kiss</source><translation>beijo</translation></message>
<message><source>kiss mark</source><translation>marca de beijo</translation></message>
<message><source>kiss: man, man</source><translation>beijo: homem e homem</translation></message>
<message><source>kiss: woman, man</source><translation>beijo: mulher e homem</translation></message>
<message><source>kiss: woman, woman</source><translation>beijo: mulher e mulher</translation></message>
<message><source>kissing cat</source><translation>rosto de gato mandando um beijo</translation></message>
<message><source>kissing face</source><translation>rosto beijando</translation></message>
<message><source>kissing face with closed eyes</source><translation>rosto beijando com olhos fechados</translation></message>
<message><source>kissing face with smiling eyes</source><translation>rosto beijando com olhos sorridentes</translation></message>
<message><source>kitchen knife</source><translation>faca de cozinha</translation></message>
<message><source>kite</source><translation>pipa</translation></message>
<message><source>kiwi</source><translation>kiwi</translation></message>
<message><source>kiwi fruit</source><translation>kiwi</translation></message>
<message><source>knife</source><translation>faca</translation></message>
<message><source>knot</source><translation>nó</translation></message>
<message><source>koala</source><translation>coala</translation></message>
<message><source>lab coat</source><translation>jaleco</translation></message>
<message><source>label</source><translation>etiqueta</translation></message>
<message><source>lacrosse</source><translation>lacrosse</translation></message>
<message><source>ladder</source><translation>escada</translation></message>
<message><source>lady</source><translation>adulta</translation></message>
<message><source>lady beetle</source><translation>joaninha</translation></message>
<message><source>lamp</source><translation>lâmpada</translation></message>
<message><source>lantern</source><translation>lanterna</translation></message>
<message><source>laptop</source><translation>laptop</translation></message>
<message><source>large</source><translation>grande</translation></message>
<message><source>large blue diamond</source><translation>losango azul grande</translation></message>
<message><source>large orange diamond</source><translation>losango laranja grande</translation></message>
<message><source>last quarter moon</source><translation>quarto minguante</translation></message>
<message><source>last quarter moon face</source><translation>rosto da lua de quarto minguante</translation></message>
<message><source>last track button</source><translation>botão de faixa anterior</translation></message>
<message><source>latin</source><translation>latinas</translation></message>
<message><source>latin cross</source><translation>cruz latina</translation></message>
<message><source>lavash</source><translation>lavash</translation></message>
<message><source>lavatory</source><translation>lavabo</translation></message>
<message><source>leaf</source><translation>folha</translation></message>
<message><source>leaf fluttering in wind</source><translation>folha ao vento</translation></message>
<message><source>leafless tree</source><translation>árvore seca</translation></message>
<message><source>leafy green</source><translation>verdura</translation></message>
<message><source>ledger</source><translation>livro contábil</translation></message>
<message><source>left</source><translation>esquerda</translation></message>
<message><source>left arrow</source><translation>seta para a esquerda</translation></message>
<message><source>left arrow curving right</source><translation>seta curva da esquerda para a direita</translation></message>
<message><source>left luggage</source><translation>depósito de bagagem</translation></message>
<message><source>left speech bubble</source><translation>balão de diálogo à esquerda</translation></message>
<message><source>left-facing fist</source><translation>punho esquerdo</translation></message>
<message><source>left-right arrow</source><translation>seta para esquerda e direita</translation></message>
<message><source>leftwards hand</source><translation>mão para a esquerda</translation></message>
<message><source>leftwards pushing hand</source><translation>mão empurrando para a esquerda</translation></message>
<message><source>leg</source><translation>perna</translation></message>
<message><source>lemon</source><translation>limão</translation></message>
<message><source>leopard</source><translation>leopardo</translation></message>
<message><source>lesbian</source><translation>lésbica</translation></message>
<message><source>letters</source><translation>letras</translation></message>
<message><source>level slider</source><translation>controle de volume</translation></message>
<message><source>license</source><translation>licença</translation></message>
<message><source>light blue heart</source><translation>coração azul-claro</translation></message>
<message><source>light bulb</source><translation>lâmpada</translation></message>
<message><source>light rail</source><translation>trem urbano</translation></message>
<message><source>light skin tone</source><translation>pele clara</translation></message>
<message><source>lightning</source><translation>relâmpago</translation></message>
<message><source>lilac</source><translation>lilás</translation></message>
<message><source>lime</source><translation>lima</translation></message>
<message><source>link</source><translation>link</translation></message>
<message><source>linked paperclips</source><translation>clipes de papel conectados</translation></message>
<message><source>links</source><translation>link</translation></message>
<message><source>lion</source><translation>rosto de leão</translation></message>
<message><source>lipstick</source><translation>batom</translation></message>
<message><source>liquid</source><translation>líquido</translation></message>
<message><source>litter in bin sign</source><translation>símbolo de lixeira</translation></message>
<message><source>lizard</source><translation>lagartixa</translation></message>
<message><source>llama</source><translation>lhama</translation></message>
<message><source>lobster</source><translation>lagosta</translation></message>
<message><source>lock</source><translation>trancado</translation></message>
<message><source>locked</source><translation>cadeado</translation></message>
<message><source>locked with key</source><translation>cadeado fechado com chave</translation></message>
<message><source>locked with pen</source><translation>cadeado com caneta</translation></message>
<message><source>locomotive</source><translation>locomotiva</translation></message>
<message><source>lollipop</source><translation>pirulito</translation></message>
<message><source>long drum</source><translation>tambor comprido</translation></message>
<message><source>loop</source><translation>loop</translation></message>
<message><source>lotion bottle</source><translation>frasco de loção</translation></message>
<message><source>lotus</source><translation>lótus</translation></message>
<message><source>loud</source><translation>gritar</translation></message>
<message><source>loudly crying face</source><translation>rosto chorando aos berros</translation></message>
<message><source>loudspeaker</source><translation>buzina</translation></message>
<message><source>love</source><translation>amor</translation></message>
<message><source>love hotel</source><translation>motel</translation></message>
<message><source>love letter</source><translation>carta de amor</translation></message>
<message><source>love-you gesture</source><translation>gesto de "te amo"</translation></message>
<message><source>low battery</source><translation>pouca bateria</translation></message>
<message><source>luck</source><translation>boa sorte</translation></message>
<message><source>luggage</source><translation>mala</translation></message>
<message><source>lungs</source><translation>pulmões</translation></message>
<message><source>lupine</source><translation>lupinus</translation></message>
<message><source>lying face</source><translation>rosto de mentiroso</translation></message>
<message><source>mage</source><translation>mago</translation></message>
<message><source>magic</source><translation>magia</translation></message>
<message><source>magic wand</source><translation>varinha mágica</translation></message>
<message><source>magical</source><translation>mágico</translation></message>
<message><source>magician</source><translation>mágica</translation></message>
<message><source>magnet</source><translation>ímã</translation></message>
<message><source>magnetic</source><translation>magnético</translation></message>
<message><source>magnifying glass tilted left</source><translation>lupa para a esquerda</translation></message>
<message><source>magnifying glass tilted right</source><translation>lupa para a direita</translation></message>
<message><source>mahjong red dragon</source><translation>dragão vermelho de mahjong</translation></message>
<message><source>mail</source><translation>correspondência</translation></message>
<message><source>makeup</source><translation>makeup</translation></message>
<message><source>malaria</source><translation>malária</translation></message>
<message><source>male sign</source><translation>símbolo de masculino</translation></message>
<message><source>mammal</source><translation>mamífero</translation></message>
<message><source>mammoth</source><translation>mamute</translation></message>
<message><source>man</source><translation>homem</translation></message>
<message><source>man artist</source><translation>artista plástico</translation></message>
<message><source>man astronaut</source><translation>astronauta homem</translation></message>
<message><source>man biking</source><translation>homem ciclista</translation></message>
<message><source>man bouncing ball</source><translation>homem jogando basquete</translation></message>
<message><source>man bowing</source><translation>homem fazendo reverência</translation></message>
<message><source>man cartwheeling</source><translation>homem fazendo estrela</translation></message>
<message><source>man climbing</source><translation>homem escalando</translation></message>
<message><source>man construction worker</source><translation>pedreiro</translation></message>
<message><source>man cook</source><translation>cozinheiro</translation></message>
<message><source>man dancing</source><translation>homem dançando</translation></message>
<message><source>man detective</source><translation>detetive homem</translation></message>
<message><source>man elf</source><translation>elfo homem</translation></message>
<message><source>man facepalming</source><translation>homem decepcionado</translation></message>
<message><source>man factory worker</source><translation>operário</translation></message>
<message><source>man fairy</source><translation>homem fada</translation></message>
<message><source>man farmer</source><translation>fazendeiro</translation></message>
<message><source>man feeding baby</source><translation>homem alimentando bebê</translation></message>
<message><source>man firefighter</source><translation>bombeiro homem</translation></message>
<message><source>man frowning</source><translation>homem franzindo a sobrancelha</translation></message>
<message><source>man genie</source><translation>homem gênio</translation></message>
<message><source>man gesturing NO</source><translation>homem fazendo gesto de “não”</translation></message>
<message><source>man gesturing OK</source><translation>homem fazendo gesto de “OK”</translation></message>
<message><source>man getting haircut</source><translation>homem cortando o cabelo</translation></message>
<message><source>man getting massage</source><translation>homem recebendo massagem facial</translation></message>
<message><source>man golfing</source><translation>homem golfista</translation></message>
<message><source>man guard</source><translation>guarda homem</translation></message>
<message><source>man health worker</source><translation>homem profissional da saúde</translation></message>
<message><source>man in lotus position</source><translation>homem na posição de lótus</translation></message>
<message><source>man in manual wheelchair</source><translation>homem em cadeira de rodas manual</translation></message>
<message><source>man in manual wheelchair: facing right</source><translation>homem em cadeira de rodas manual: de frente para a direita</translation></message>
<message><source>man in motorized wheelchair</source><translation>homem em cadeira de rodas motorizada</translation></message>
<message><source>man in motorized wheelchair: facing right</source><translation>homem em cadeira de rodas motorizada: de frente para a direita</translation></message>
<message><source>man in steamy room</source><translation>homem na sauna</translation></message>
<message><source>man in tuxedo</source><translation>homem de smoking</translation></message>
<message><source>man judge</source><translation>juiz</translation></message>
<message><source>man juggling</source><translation>homem malabarista</translation></message>
<message><source>man kneeling</source><translation>homem ajoelhando</translation></message>
<message><source>man kneeling: facing right</source><translation>homem ajoelhando: de frente para a direita</translation></message>
<message><source>man lifting weights</source><translation>homem levantando peso</translation></message>
<message><source>man mage</source><translation>homem mago</translation></message>
<message><source>man mechanic</source><translation>mecânico</translation></message>
<message><source>man mountain biking</source><translation>homem fazendo mountain bike</translation></message>
<message><source>man office worker</source><translation>funcionário de escritório</translation></message>
<message><source>man pilot</source><translation>piloto de avião homem</translation></message>
<message><source>man playing handball</source><translation>jogador de handebol</translation></message>
<message><source>man playing water polo</source><translation>homem jogando polo aquático</translation></message>
<message><source>man police officer</source><translation>policial homem</translation></message>
<message><source>man pouting</source><translation>homem fazendo bico</translation></message>
<message><source>man raising hand</source><translation>homem levantando a mão</translation></message>
<message><source>man rowing boat</source><translation>homem remando</translation></message>
<message><source>man running</source><translation>homem correndo</translation></message>
<message><source>man running: facing right</source><translation>homem correndo: de frente para a direita</translation></message>
<message><source>man scientist</source><translation>cientista homem</translation></message>
<message><source>man shrugging</source><translation>homem dando de ombros</translation></message>
<message><source>man singer</source><translation>cantor homem</translation></message>
<message><source>man standing</source><translation>homem em pé</translation></message>
<message><source>man student</source><translation>estudante</translation></message>
<message><source>man superhero</source><translation>homem super-herói</translation></message>
<message><source>man supervillain</source><translation>homem supervilão</translation></message>
<message><source>man surfing</source><translation>homem surfista</translation></message>
<message><source>man swimming</source><translation>homem nadando</translation></message>
<message><source>man teacher</source><translation>professor</translation></message>
<message><source>man technologist</source><translation>tecnólogo</translation></message>
<message><source>man tipping hand</source><translation>homem com a palma virada para cima</translation></message>
<message><source>man vampire</source><translation>homem vampiro</translation></message>
<message><source>man walking</source><translation>homem andando</translation></message>
<message><source>man walking: facing right</source><translation>homem andando: de frente para a direita</translation></message>
<message><source>man wearing turban</source><translation>homem com turbante</translation></message>
<message><source>man with veil</source><translation>noivo com véu</translation></message>
<message><source>man with white cane</source><translation>homem com bengala para cego</translation></message>
<message><source>man with white cane: facing right</source><translation>homem com bengala para cego: de frente para a direita</translation></message>
<message><source>man zombie</source><translation>homem zumbi</translation></message>
<message><source>man: bald</source><translation>homem: careca</translation></message>
<message><source>man: beard</source><translation>homem: barbudo</translation></message>
<message><source>man: blond hair</source><translation>homem: cabelo loiro</translation></message>
<message><source>man: curly hair</source><translation>homem: cabelo cacheado</translation></message>
<message><source>man: red hair</source><translation>homem: cabelo vermelho</translation></message>
<message><source>man: white hair</source><translation>homem: cabelo branco</translation></message>
<message><source>mango</source><translation>manga</translation></message>
<message><source>manicure</source><translation>manicure</translation></message>
<message><source>mantelpiece clock</source><translation>relógio de mesa</translation></message>
<message><source>manual wheelchair</source><translation>cadeira de rodas manual</translation></message>
<message><source>man’s shoe</source><translation>sapato masculino</translation></message>
<message><source>map</source><translation>mapa</translation></message>
<message><source>map of Japan</source><translation>mapa do Japão</translation></message>
<message><source>maple</source><translation>maple</translation></message>
<message><source>maple leaf</source><translation>folha de bordo</translation></message>
<message><source>maracas</source><translation>maracás</translation></message>
<message><source>marine</source><translation>marinha</translation></message>
<message><source>marsupial</source><translation>marsupial</translation></message>
<message><source>martial arts uniform</source><translation>quimono de artes marciais</translation></message>
<message><source>martini</source><translation>martini</translation></message>
<message><source>mask</source><translation>máscara</translation></message>
<message><source>massage</source><translation>massagem</translation></message>
<message><source>mate</source><translation>mate</translation></message>
<message><source>math</source><translation>matemática</translation></message>
<message><source>meat</source><translation>carne</translation></message>
<message><source>meat on bone</source><translation>carne</translation></message>
<message><source>mechanic</source><translation>mecânico trabalhando</translation></message>
<message><source>mechanical arm</source><translation>braço mecânico</translation></message>
<message><source>mechanical leg</source><translation>perna mecânica</translation></message>
<message><source>medal</source><translation>medalha</translation></message>
<message><source>medical symbol</source><translation>símbolo da medicina</translation></message>
<message><source>medicine</source><translation>medicina</translation></message>
<message><source>medieval</source><translation>medieval</translation></message>
<message><source>meditate</source><translation>meditar</translation></message>
<message><source>meditation</source><translation>meditação</translation></message>
<message><source>medium skin tone</source><translation>pele morena</translation></message>
<message><source>medium-dark skin tone</source><translation>pele morena escura</translation></message>
<message><source>medium-light skin tone</source><translation>pele morena clara</translation></message>
<message><source>megaphone</source><translation>megafone</translation></message>
<message><source>meh</source><translation>tanto faz</translation></message>
<message><source>melon</source><translation>melão</translation></message>
<message><source>melting face</source><translation>rosto derretendo</translation></message>
<message><source>memo</source><translation>memorando</translation></message>
<message><source>men holding hands</source><translation>dois homens de mãos dadas</translation></message>
<message><source>men with bunny ears</source><translation>homens com orelhas de coelho</translation></message>
<message><source>men wrestling</source><translation>homens lutando</translation></message>
<message><source>mending heart</source><translation>coração remendado</translation></message>
<message><source>menorah</source><translation>menorá</translation></message>
<message><source>menstruation</source><translation>menstruação</translation></message>
<message><source>men’s room</source><translation>banheiro masculino</translation></message>
<message><source>meridians</source><translation>meridianos</translation></message>
<message><source>mermaid</source><translation>sereia</translation></message>
<message><source>merman</source><translation>sereio</translation></message>
<message><source>merperson</source><translation>pessoa sereia</translation></message>
<message><source>metal</source><translation>metal</translation></message>
<message><source>metro</source><translation>metrô</translation></message>
<message><source>mexican</source><translation>mexicano</translation></message>
<message><source>microbe</source><translation>micróbio</translation></message>
<message><source>microphone</source><translation>microfone</translation></message>
<message><source>microscope</source><translation>microscópio</translation></message>
<message><source>middle finger</source><translation>dedo do meio</translation></message>
<message><source>military</source><translation>militar</translation></message>
<message><source>military helmet</source><translation>capacete militar</translation></message>
<message><source>military medal</source><translation>medalha militar</translation></message>
<message><source>milk</source><translation>leite</translation></message>
<message><source>milky way</source><translation>via láctea</translation></message>
<message><source>minibus</source><translation>van</translation></message>
<message><source>minidisk</source><translation>minidisc</translation></message>
<message><source>minus</source><translation>símbolo de subtração</translation></message>
<message><source>mirror</source><translation>espelho</translation></message>
<message><source>mirror ball</source><translation>globo de espelhos</translation></message>
<message><source>moai</source><translation>moai</translation></message>
<message><source>mobile phone</source><translation>telefone celular</translation></message>
<message><source>mobile phone off</source><translation>telefone celular desligado</translation></message>
<message><source>mobile phone with arrow</source><translation>telefone celular com seta</translation></message>
<message><source>mode</source><translation>modo</translation></message>
<message><source>mollusk</source><translation>molusco</translation></message>
<message><source>monarch</source><translation>monarca</translation></message>
<message><source>money</source><translation>dinheiro</translation></message>
<message><source>money bag</source><translation>saco de dinheiro</translation></message>
<message><source>money with wings</source><translation>dinheiro voando</translation></message>
<message><source>money-mouth face</source><translation>rosto com cifrões</translation></message>
<message><source>monitor</source><translation>monitor</translation></message>
<message><source>monkey</source><translation>macaco</translation></message>
<message><source>monkey face</source><translation>rosto de macaco</translation></message>
<message><source>monorail</source><translation>monotrilho</translation></message>
<message><source>monster</source><translation>monstro</translation></message>
<message><source>moon</source><translation>lua</translation></message>
<message><source>moon cake</source><translation>bolo lunar</translation></message>
<message><source>moon viewing ceremony</source><translation>contemplação da lua</translation></message>
<message><source>moose</source><translation>alce</translation></message>
<message><source>mosque</source><translation>mesquita</translation></message>
<message><source>mosquito</source><translation>mosquito</translation></message>
<message><source>motor</source><translation>motoca</translation></message>
<message><source>motor boat</source><translation>barco</translation></message>
<message><source>motor scooter</source><translation>scooter</translation></message>
<message><source>motorboat</source><translation>motor</translation></message>
<message><source>motorcycle</source><translation>motocicleta</translation></message>
<message><source>motorized wheelchair</source><translation>cadeira de rodas motorizada</translation></message>
<message><source>motorway</source><translation>estrada</translation></message>
<message><source>mount fuji</source><translation>Monte Fuji</translation></message>
<message><source>mountain</source><translation>montanha</translation></message>
<message><source>mountain cableway</source><translation>teleférico de montanha</translation></message>
<message><source>mountain railway</source><translation>estrada de ferro na montanha</translation></message>
<message><source>mouse</source><translation>camundongo</translation></message>
<message><source>mouse face</source><translation>rosto de camundongo</translation></message>
<message><source>mouse trap</source><translation>ratoeira</translation></message>
<message><source>mouth</source><translation>boca</translation></message>
<message><source>movie camera</source><translation>câmera de cinema</translation></message>
<message><source>mule</source><translation>mula</translation></message>
<message><source>multiplication</source><translation>multiplicação</translation></message>
<message><source>multiply</source><translation>sinal de multiplicação</translation></message>
<message><source>multitask</source><translation>multitarefa</translation></message>
<message><source>museum</source><translation>museu</translation></message>
<message><source>mushroom</source><translation>cogumelo</translation></message>
<message><source>music</source><translation>música</translation></message>
<message><source>musical keyboard</source><translation>teclado musical</translation></message>
<message><source>musical note</source><translation>nota musical</translation></message>
<message><source>musical notes</source><translation>notas musicais</translation></message>
<message><source>musical score</source><translation>partitura musical</translation></message>
<message><source>muted</source><translation>mute</translation></message>
<message><source>muted speaker</source><translation>alto-falante silenciado</translation></message>
<message><source>mwah</source><translation>beijar</translation></message>
<message><source>mysterious</source><translation>mistério</translation></message>
<message><source>naan</source><translation>naan</translation></message>
<message><source>nail polish</source><translation>esmalte de unha</translation></message>
<message><source>name</source><translation>nome</translation></message>
<message><source>name badge</source><translation>crachá</translation></message>
<message><source>national park</source><translation>parque nacional</translation></message>
<message><source>natural</source><translation>natural</translation></message>
<message><source>nature</source><translation>natureza</translation></message>
<message><source>nauseated</source><translation>náusea</translation></message>
<message><source>nauseated face</source><translation>rosto nauseado</translation></message>
<message><source>nazar</source><translation>nazar</translation></message>
<message><source>nazar amulet</source><translation>olho grego</translation></message>
<message><source>necktie</source><translation>gravata</translation></message>
<message><source>needle</source><translation>agulha</translation></message>
<message><source>negative</source><translation>negativa</translation></message>
<message><source>nerd</source><translation>nerd</translation></message>
<message><source>nerd face</source><translation>rosto de nerd</translation></message>
<message><source>nervous</source><translation>nervoso</translation></message>
<message><source>nest with eggs</source><translation>ninho com ovos</translation></message>
<message><source>nesting dolls</source><translation>boneca russa</translation></message>
<message><source>neutral</source><translation>neutro</translation></message>
<message><source>neutral face</source><translation>rosto neutro</translation></message>
<message><source>new moon</source><translation>lua nova</translation></message>
<message><source>new moon face</source><translation>rosto da lua nova</translation></message>
<message><source>newspaper</source><translation>jornal</translation></message>
<message><source>next track button</source><translation>botão de próxima faixa</translation></message>
<message><source>night with stars</source><translation>noite estrelada</translation></message>
<message><source>nine o’clock</source><translation>9 horas</translation></message>
<message><source>nine-thirty</source><translation>nove e meia</translation></message>
<message><source>ninja</source><translation>ninja</translation></message>
<message><source>no</source><translation>não</translation></message>
<message><source>no bicycles</source><translation>proibido andar de bicicleta</translation></message>
<message><source>no entry</source><translation>entrada proibida</translation></message>
<message><source>no littering</source><translation>proibido jogar lixo no chão</translation></message>
<message><source>no mobile phones</source><translation>proibido o uso de telefone celular</translation></message>
<message><source>no one under eighteen</source><translation>proibido para menores de 18 anos</translation></message>
<message><source>no pedestrians</source><translation>proibida a passagem de pedestres</translation></message>
<message><source>no smoking</source><translation>proibido fumar</translation></message>
<message><source>noble</source><translation>nobre</translation></message>
<message><source>non-potable water</source><translation>água não potável</translation></message>
<message><source>north</source><translation>norte</translation></message>
<message><source>northeast</source><translation>nordeste</translation></message>
<message><source>northwest</source><translation>noroeste</translation></message>
<message><source>nose</source><translation>nariz</translation></message>
<message><source>note</source><translation>nota</translation></message>
<message><source>notebook</source><translation>caderno</translation></message>
<message><source>notebook with decorative cover</source><translation>caderno decorado</translation></message>
<message><source>numbers</source><translation>números</translation></message>
<message><source>nut and bolt</source><translation>porca e parafuso</translation></message>
<message><source>ocean</source><translation>oceano</translation></message>
<message><source>octopus</source><translation>polvo</translation></message>
<message><source>oden</source><translation>oden</translation></message>
<message><source>odor</source><translation>odor</translation></message>
<message><source>office building</source><translation>edifício comercial</translation></message>
<message><source>office worker</source><translation>trabalhador de escritório</translation></message>
<message><source>ogre</source><translation>ogro</translation></message>
<message><source>oil</source><translation>óleo</translation></message>
<message><source>oil drum</source><translation>barril de óleo</translation></message>
<message><source>old key</source><translation>chave antiga</translation></message>
<message><source>old man</source><translation>homem idoso</translation></message>
<message><source>old woman</source><translation>idosa</translation></message>
<message><source>older person</source><translation>idoso</translation></message>
<message><source>olive</source><translation>azeitona</translation></message>
<message><source>om</source><translation>om</translation></message>
<message><source>oncoming automobile</source><translation>carro se aproximando</translation></message>
<message><source>oncoming bus</source><translation>ônibus se aproximando</translation></message>
<message><source>oncoming fist</source><translation>soco</translation></message>
<message><source>oncoming police car</source><translation>viatura policial se aproximando</translation></message>
<message><source>oncoming taxi</source><translation>táxi se aproximando</translation></message>
<message><source>one o’clock</source><translation>1 hora</translation></message>
<message><source>one-piece swimsuit</source><translation>maiô</translation></message>
<message><source>one-thirty</source><translation>uma e meia</translation></message>
<message><source>onion</source><translation>cebola</translation></message>
<message><source>open book</source><translation>livro aberto</translation></message>
<message><source>open file folder</source><translation>pasta de arquivos aberta</translation></message>
<message><source>open hands</source><translation>mãos abertas</translation></message>
<message><source>open mailbox with lowered flag</source><translation>caixa de correio aberta com bandeira abaixada</translation></message>
<message><source>open mailbox with raised flag</source><translation>caixa de correio aberta com bandeira levantada</translation></message>
<message><source>optical</source><translation>óptico</translation></message>
<message><source>optical disk</source><translation>cd</translation></message>
<message><source>orange</source><translation>laranja</translation></message>
<message><source>orange book</source><translation>livro laranja</translation></message>
<message><source>orange circle</source><translation>círculo laranja</translation></message>
<message><source>orange heart</source><translation>coração laranja</translation></message>
<message><source>orange square</source><translation>quadrado laranja</translation></message>
<message><source>orangutan</source><translation>orangotango</translation></message>
<message><source>orchestra</source><translation>orquestra</translation></message>
<message><source>organ</source><translation>órgão</translation></message>
<message><source>ornithology</source><translation>pássaro</translation></message>
<message><source>orthodox cross</source><translation>cruz ortodoxa</translation></message>
<message><source>otter</source><translation>lontra</translation></message>
<message><source>outbox tray</source><translation>bandeja de saída</translation></message>
<message><source>owl</source><translation>coruja</translation></message>
<message><source>ox</source><translation>boi</translation></message>
<message><source>oyster</source><translation>ostra</translation></message>
<message><source>package</source><translation>pacote</translation></message>
<message><source>pad</source><translation>bloco</translation></message>
<message><source>paella</source><translation>paella</translation></message>
<message><source>page facing up</source><translation>página voltada para cima</translation></message>
<message><source>page with curl</source><translation>página dobrada</translation></message>
<message><source>pager</source><translation>pager</translation></message>
<message><source>paintbrush</source><translation>pincel</translation></message>
<message><source>painter</source><translation>pintor</translation></message>
<message><source>palette</source><translation>paleta</translation></message>
<message><source>palm down hand</source><translation>mão com a palma para baixo</translation></message>
<message><source>palm tree</source><translation>palmeira</translation></message>
<message><source>palm up hand</source><translation>mão com a palma para cima</translation></message>
<message><source>palms</source><translation>palmas</translation></message>
<message><source>palms up together</source><translation>palmas unidas para cima</translation></message>
<message><source>pamonha</source><translation>pamonha</translation></message>
<message><source>pancakes</source><translation>panquecas</translation></message>
<message><source>panda</source><translation>rosto de panda</translation></message>
<message><source>panic</source><translation>pânico</translation></message>
<message><source>paper</source><translation>papel</translation></message>
<message><source>paperclip</source><translation>clipe de papel</translation></message>
<message><source>parachute</source><translation>paraquedas</translation></message>
<message><source>parasail</source><translation>parasail</translation></message>
<message><source>parasite</source><translation>parasita</translation></message>
<message><source>park</source><translation>parque de diversões</translation></message>
<message><source>parrot</source><translation>papagaio</translation></message>
<message><source>part alternation mark</source><translation>sinal japonês indicando início de música</translation></message>
<message><source>party popper</source><translation>cone de festa</translation></message>
<message><source>partying face</source><translation>rosto festivo</translation></message>
<message><source>passenger</source><translation>passageiros</translation></message>
<message><source>passenger ship</source><translation>cruzeiro</translation></message>
<message><source>passport</source><translation>passaporte</translation></message>
<message><source>passport control</source><translation>controle de passaportes</translation></message>
<message><source>pause</source><translation>pausar</translation></message>
<message><source>pause button</source><translation>botão pausar</translation></message>
<message><source>paw prints</source><translation>patas</translation></message>
<message><source>pea pod</source><translation>vagem</translation></message>
<message><source>peace</source><translation>paz</translation></message>
<message><source>peace symbol</source><translation>símbolo da paz</translation></message>
<message><source>peach</source><translation>pêssego</translation></message>
<message><source>peacock</source><translation>pavão</translation></message>
<message><source>peanuts</source><translation>amendoim</translation></message>
<message><source>pear</source><translation>pera</translation></message>
<message><source>pedestrian</source><translation>pedestre</translation></message>
<message><source>pen</source><translation>caneta</translation></message>
<message><source>pencil</source><translation>lápis</translation></message>
<message><source>penguin</source><translation>pinguim</translation></message>
<message><source>pensive face</source><translation>rosto deprimido</translation></message>
<message><source>people holding hands</source><translation>pessoas de mãos dadas</translation></message>
<message><source>people hugging</source><translation>pessoas se abraçando</translation></message>
<message><source>people with bunny ears</source><translation>pessoas com orelhas de coelho</translation></message>
<message><source>people wrestling</source><translation>pessoas lutando</translation></message>
<message><source>pepper</source><translation>pimenta</translation></message>
<message><source>percussion</source><translation>percussão</translation></message>
<message><source>performing</source><translation>performance</translation></message>
<message><source>performing arts</source><translation>máscara</translation></message>
<message><source>persevering face</source><translation>rosto perseverante</translation></message>
<message><source>person</source><translation>pessoa</translation></message>
<message><source>person biking</source><translation>ciclista</translation></message>
<message><source>person bouncing ball</source><translation>pessoa jogando basquete</translation></message>
<message><source>person bowing</source><translation>pessoa fazendo reverência</translation></message>
<message><source>person cartwheeling</source><translation>pessoa fazendo estrela</translation></message>
<message><source>person climbing</source><translation>pessoa escalando</translation></message>
<message><source>person facepalming</source><translation>pessoa decepcionada</translation></message>
<message><source>person feeding baby</source><translation>pessoa alimentando bebê</translation></message>
<message><source>person fencing</source><translation>esgrimista</translation></message>
<message><source>person frowning</source><translation>franzindo a sobrancelha</translation></message>
<message><source>person gesturing NO</source><translation>pessoa fazendo gesto de “não”</translation></message>
<message><source>person gesturing OK</source><translation>pessoa fazendo gesto de “OK”</translation></message>
<message><source>person getting haircut</source><translation>pessoa cortando o cabelo</translation></message>
<message><source>person getting massage</source><translation>pessoa recebendo massagem facial</translation></message>
<message><source>person golfing</source><translation>golfista</translation></message>
<message><source>person in bed</source><translation>pessoa deitada na cama</translation></message>
<message><source>person in lotus position</source><translation>pessoa na posição de lótus</translation></message>
<message><source>person in manual wheelchair</source><translation>pessoa em cadeira de rodas manual</translation></message>
<message><source>person in manual wheelchair: facing right</source><translation>pessoa em cadeira de rodas manual: de frente para a direita</translation></message>
<message><source>person in motorized wheelchair</source><translation>pessoa em cadeira de rodas motorizada</translation></message>
<message><source>person in motorized wheelchair: facing right</source><translation>pessoa em cadeira de rodas motorizada: de frente para a direita</translation></message>
<message><source>person in steamy room</source><translation>pessoa na sauna</translation></message>
<message><source>person in suit levitating</source><translation>homem de terno levitando</translation></message>
<message><source>person in tuxedo</source><translation>pessoa de smoking</translation></message>
<message><source>person juggling</source><translation>malabarista</translation></message>
<message><source>person kneeling</source><translation>pessoa ajoelhando</translation></message>
<message><source>person kneeling: facing right</source><translation>pessoa ajoelhando: de frente para a direita</translation></message>
<message><source>person lifting weights</source><translation>pessoa levantando peso</translation></message>
<message><source>person mountain biking</source><translation>pessoa fazendo mountain bike</translation></message>
<message><source>person playing handball</source><translation>handebol</translation></message>
<message><source>person playing water polo</source><translation>pessoa jogando polo aquático</translation></message>
<message><source>person pouting</source><translation>pessoa fazendo bico</translation></message>
<message><source>person raising hand</source><translation>pessoa levantando a mão</translation></message>
<message><source>person rowing boat</source><translation>pessoa remando</translation></message>
<message><source>person running</source><translation>pessoa correndo</translation></message>
<message><source>person running: facing right</source><translation>pessoa correndo: de frente para a direita</translation></message>
<message><source>person shrugging</source><translation>pessoa dando de ombros</translation></message>
<message><source>person standing</source><translation>pessoa em pé</translation></message>
<message><source>person surfing</source><translation>surfista</translation></message>
<message><source>person swimming</source><translation>pessoa nadando</translation></message>
<message><source>person taking bath</source><translation>pessoa tomando banho</translation></message>
<message><source>person tipping hand</source><translation>pessoa com a palma virada para cima</translation></message>
<message><source>person walking</source><translation>pessoa andando</translation></message>
<message><source>person walking: facing right</source><translation>pessoa andando: de frente para a direita</translation></message>
<message><source>person wearing turban</source><translation>pessoa com turbante</translation></message>
<message><source>person with crown</source><translation>pessoa com coroa</translation></message>
<message><source>person with skullcap</source><translation>homem de boné</translation></message>
<message><source>person with veil</source><translation>pessoa com véu</translation></message>
<message><source>person with white cane</source><translation>pessoa com bengala para cego</translation></message>
<message><source>person with white cane: facing right</source><translation>pessoa com bengala para cego: de frente para a direita</translation></message>
<message><source>person: bald</source><translation>pessoa: careca</translation></message>
<message><source>person: beard</source><translation>homem: barba</translation></message>
<message><source>person: blond hair</source><translation>pessoa: cabelo louro</translation></message>
<message><source>person: curly hair</source><translation>pessoa: cabelo cacheado</translation></message>
<message><source>person: red hair</source><translation>pessoa: cabelo vermelho</translation></message>
<message><source>person: white hair</source><translation>pessoa: cabelo branco</translation></message>
<message><source>personal</source><translation>pessoal</translation></message>
<message><source>petri</source><translation>Petri</translation></message>
<message><source>petri dish</source><translation>placa de Petri</translation></message>
<message><source>phoenix</source><translation>fênix</translation></message>
<message><source>phone</source><translation>smartphone</translation></message>
<message><source>piano</source><translation>piano</translation></message>
<message><source>pick</source><translation>picareta</translation></message>
<message><source>pickle</source><translation>picles</translation></message>
<message><source>pickup truck</source><translation>caminhonete</translation></message>
<message><source>picture</source><translation>pintura</translation></message>
<message><source>pie</source><translation>torta</translation></message>
<message><source>pierogi</source><translation>pierogi</translation></message>
<message><source>pig</source><translation>porco</translation></message>
<message><source>pig face</source><translation>rosto de porco</translation></message>
<message><source>pig nose</source><translation>nariz de porco</translation></message>
<message><source>pile of poo</source><translation>cocô</translation></message>
<message><source>pill</source><translation>comprimido</translation></message>
<message><source>pilot</source><translation>piloto</translation></message>
<message><source>pin</source><translation>alfinete</translation></message>
<message><source>pinched fingers</source><translation>dedos comprimidos</translation></message>
<message><source>pinching hand</source><translation>mão beliscando</translation></message>
<message><source>pine decoration</source><translation>decoração de pinhos</translation></message>
<message><source>pineapple</source><translation>abacaxi</translation></message>
<message><source>ping pong</source><translation>pingue-pongue</translation></message>
<message><source>pink heart</source><translation>coração rosa</translation></message>
<message><source>pirate</source><translation>pirata</translation></message>
<message><source>pirate flag</source><translation>bandeira de pirata</translation></message>
<message><source>pistol</source><translation>pistola</translation></message>
<message><source>pita</source><translation>pita</translation></message>
<message><source>pixelated</source><translation>pixelado</translation></message>
<message><source>pizza</source><translation>pizza</translation></message>
<message><source>piñata</source><translation>pinhata</translation></message>
<message><source>placard</source><translation>placa</translation></message>
<message><source>place of worship</source><translation>local de culto</translation></message>
<message><source>plane</source><translation>avião</translation></message>
<message><source>planet</source><translation>planeta</translation></message>
<message><source>plant</source><translation>planta</translation></message>
<message><source>play</source><translation>play</translation></message>
<message><source>play button</source><translation>botão reproduzir</translation></message>
<message><source>play or pause button</source><translation>botão de reproduzir ou pausar</translation></message>
<message><source>playground</source><translation>playground</translation></message>
<message><source>playground slide</source><translation>escorregador</translation></message>
<message><source>pleading face</source><translation>rosto implorando</translation></message>
<message><source>plug</source><translation>plugue</translation></message>
<message><source>plumage</source><translation>plumagem</translation></message>
<message><source>plumber</source><translation>encanador</translation></message>
<message><source>plunger</source><translation>desentupidor</translation></message>
<message><source>plus</source><translation>símbolo de adição</translation></message>
<message><source>point</source><translation>costas</translation></message>
<message><source>pointing</source><translation>dedo</translation></message>
<message><source>polar bear</source><translation>urso polar</translation></message>
<message><source>police</source><translation>polícia</translation></message>
<message><source>police car</source><translation>viatura policial</translation></message>
<message><source>police car light</source><translation>sirene</translation></message>
<message><source>police officer</source><translation>policial</translation></message>
<message><source>polo</source><translation>polo</translation></message>
<message><source>poodle</source><translation>poodle</translation></message>
<message><source>pool 8 ball</source><translation>bilhar</translation></message>
<message><source>popcorn</source><translation>pipoca</translation></message>
<message><source>popping</source><translation>estourar</translation></message>
<message><source>post office</source><translation>correio</translation></message>
<message><source>postal</source><translation>postal</translation></message>
<message><source>postal horn</source><translation>corneta postal</translation></message>
<message><source>postbox</source><translation>caixa de correio</translation></message>
<message><source>pot of food</source><translation>panela</translation></message>
<message><source>potable</source><translation>potável</translation></message>
<message><source>potable water</source><translation>água potável</translation></message>
<message><source>potato</source><translation>batata</translation></message>
<message><source>potsticker</source><translation>potsticker</translation></message>
<message><source>potted plant</source><translation>vaso com planta</translation></message>
<message><source>poultry leg</source><translation>coxa de frango</translation></message>
<message><source>pound banknote</source><translation>nota de libra</translation></message>
<message><source>pouring liquid</source><translation>derramando líquido</translation></message>
<message><source>pouting cat</source><translation>rosto de gato mal-humorado</translation></message>
<message><source>prayer beads</source><translation>rosário de oração</translation></message>
<message><source>pregnant man</source><translation>homem grávido</translation></message>
<message><source>pregnant person</source><translation>pessoa grávida</translation></message>
<message><source>pregnant woman</source><translation>grávida</translation></message>
<message><source>pretzel</source><translation>pretzel</translation></message>
<message><source>prince</source><translation>príncipe</translation></message>
<message><source>princess</source><translation>princesa</translation></message>
<message><source>printer</source><translation>impressora</translation></message>
<message><source>privacy</source><translation>privado</translation></message>
<message><source>prohibit</source><translation>proibir</translation></message>
<message><source>prohibited</source><translation>proibido</translation></message>
<message><source>projector</source><translation>projetor</translation></message>
<message><source>protection</source><translation>proteção</translation></message>
<message><source>protest</source><translation>protesto</translation></message>
<message><source>pulsating</source><translation>pulsante</translation></message>
<message><source>pulse</source><translation>pulso</translation></message>
<message><source>pumpkin</source><translation>abóbora</translation></message>
<message><source>punctuation</source><translation>pontuação</translation></message>
<message><source>punk</source><translation>punk</translation></message>
<message><source>purple</source><translation>roxo</translation></message>
<message><source>purple circle</source><translation>círculo roxo</translation></message>
<message><source>purple heart</source><translation>coração roxo</translation></message>
<message><source>purple square</source><translation>quadrado roxo</translation></message>
<message><source>purse</source><translation>bolsinha</translation></message>
<message><source>pushpin</source><translation>tacha</translation></message>
<message><source>puzzle piece</source><translation>quebra-cabeça</translation></message>
<message><source>quarter</source><translation>quarto</translation></message>
<message><source>queer</source><translation>queer</translation></message>
<message><source>question</source><translation>pergunta</translation></message>
<message><source>quiet</source><translation>quieto</translation></message>
<message><source>rabbit</source><translation>coelho</translation></message>
<message><source>rabbit face</source><translation>rosto de coelho</translation></message>
<message><source>raccoon</source><translation>guaxinim</translation></message>
<message><source>racing</source><translation>corrida</translation></message>
<message><source>racing car</source><translation>carro de corrida</translation></message>
<message><source>racquet</source><translation>raquete</translation></message>
<message><source>radio</source><translation>rádio</translation></message>
<message><source>radio button</source><translation>botão de opção</translation></message>
<message><source>radioactive</source><translation>radioativo</translation></message>
<message><source>railway</source><translation>trem</translation></message>
<message><source>railway car</source><translation>vagão de trem</translation></message>
<message><source>railway track</source><translation>trilhos</translation></message>
<message><source>rain</source><translation>chuva</translation></message>
<message><source>rainbow</source><translation>arco-íris</translation></message>
<message><source>rainbow flag</source><translation>bandeira do arco-íris</translation></message>
<message><source>raised back of hand</source><translation>dorso da mão levantado</translation></message>
<message><source>raised fist</source><translation>punho levantado</translation></message>
<message><source>raised hand</source><translation>mão levantada</translation></message>
<message><source>raising hands</source><translation>mãos para cima</translation></message>
<message><source>ram</source><translation>carneiro</translation></message>
<message><source>rancher</source><translation>rancheiro</translation></message>
<message><source>rat</source><translation>rato</translation></message>
<message><source>razor</source><translation>lâmina</translation></message>
<message><source>reach</source><translation>apertar</translation></message>
<message><source>receipt</source><translation>recibo</translation></message>
<message><source>receive</source><translation>receber</translation></message>
<message><source>record button</source><translation>botão gravar</translation></message>
<message><source>recycling symbol</source><translation>símbolo de reciclagem</translation></message>
<message><source>red apple</source><translation>maçã vermelha</translation></message>
<message><source>red circle</source><translation>círculo vermelho</translation></message>
<message><source>red envelope</source><translation>envelope vermelho</translation></message>
<message><source>red exclamation mark</source><translation>ponto de exclamação vermelho</translation></message>
<message><source>red heart</source><translation>coração vermelho</translation></message>
<message><source>red paper lantern</source><translation>lanterna vermelha de papel</translation></message>
<message><source>red question mark</source><translation>ponto de interrogação vermelho</translation></message>
<message><source>red square</source><translation>quadrado vermelho</translation></message>
<message><source>red triangle pointed down</source><translation>triângulo vermelho para baixo</translation></message>
<message><source>red triangle pointed up</source><translation>triângulo vermelho para cima</translation></message>
<message><source>regal</source><translation>real</translation></message>
<message><source>registered</source><translation>símbolo de registrado</translation></message>
<message><source>relax</source><translation>relaxar</translation></message>
<message><source>relaxed</source><translation>relaxado</translation></message>
<message><source>relief</source><translation>alívio</translation></message>
<message><source>relieved face</source><translation>rosto aliviado</translation></message>
<message><source>religion</source><translation>religião</translation></message>
<message><source>reminder ribbon</source><translation>fita de lembrete</translation></message>
<message><source>repairs</source><translation>reparo</translation></message>
<message><source>repeat</source><translation>repetir</translation></message>
<message><source>repeat button</source><translation>botão de repetir</translation></message>
<message><source>repeat single button</source><translation>botão de repetir uma única faixa</translation></message>
<message><source>repercussion</source><translation>repercussão</translation></message>
<message><source>reptile</source><translation>réptil</translation></message>
<message><source>rescue</source><translation>resgate</translation></message>
<message><source>rescue worker’s helmet</source><translation>capacacete de socorrista</translation></message>
<message><source>resist</source><translation>resistir</translation></message>
<message><source>resort</source><translation>resort</translation></message>
<message><source>respect</source><translation>respeito</translation></message>
<message><source>restriction</source><translation>restrição</translation></message>
<message><source>restroom</source><translation>banheiro</translation></message>
<message><source>reverse button</source><translation>botão de voltar</translation></message>
<message><source>revolver</source><translation>revólver</translation></message>
<message><source>revolving hearts</source><translation>corações girando</translation></message>
<message><source>rhinoceros</source><translation>rinoceronte</translation></message>
<message><source>ribbon</source><translation>laço de fita</translation></message>
<message><source>rice</source><translation>arroz</translation></message>
<message><source>rice ball</source><translation>arroz japonês</translation></message>
<message><source>rice cracker</source><translation>biscoito de arroz</translation></message>
<message><source>right</source><translation>direita</translation></message>
<message><source>right anger bubble</source><translation>balão de raiva à direita</translation></message>
<message><source>right arrow</source><translation>seta para a direita</translation></message>
<message><source>right arrow curving down</source><translation>seta para a direita curvada para baixo</translation></message>
<message><source>right arrow curving left</source><translation>seta curva da direita para a esquerda</translation></message>
<message><source>right arrow curving up</source><translation>seta para a direita curvada para cima</translation></message>
<message><source>right-facing fist</source><translation>punho direito</translation></message>
<message><source>rightwards hand</source><translation>mão para a direita</translation></message>
<message><source>rightwards pushing hand</source><translation>mão empurrando para a direita</translation></message>
<message><source>ring</source><translation>anel</translation></message>
<message><source>ring buoy</source><translation>boia</translation></message>
<message><source>ringed planet</source><translation>planeta com anéis</translation></message>
<message><source>roasted sweet potato</source><translation>batata assada</translation></message>
<message><source>robot</source><translation>rosto de robô</translation></message>
<message><source>rock</source><translation>pedra</translation></message>
<message><source>rock-on</source><translation>rock</translation></message>
<message><source>rocket</source><translation>foguete</translation></message>
<message><source>roflmao</source><translation>rolando</translation></message>
<message><source>roll</source><translation>rolo</translation></message>
<message><source>roll of paper</source><translation>rolo de papel</translation></message>
<message><source>rolled-up newspaper</source><translation>jornal enrolado</translation></message>
<message><source>roller</source><translation>roller</translation></message>
<message><source>roller coaster</source><translation>montanha russa</translation></message>
<message><source>roller skate</source><translation>patins de rodas</translation></message>
<message><source>rolling on the floor laughing</source><translation>rolando no chão de rir</translation></message>
<message><source>romance</source><translation>romance</translation></message>
<message><source>rooster</source><translation>galo</translation></message>
<message><source>root</source><translation>raiz</translation></message>
<message><source>root vegetable</source><translation>tubérculo</translation></message>
<message><source>rose</source><translation>rosa</translation></message>
<message><source>rosette</source><translation>roseta</translation></message>
<message><source>round pushpin</source><translation>tacha redonda</translation></message>
<message><source>router</source><translation>roteador</translation></message>
<message><source>rugby</source><translation>rugby</translation></message>
<message><source>rugby football</source><translation>bola de rugby</translation></message>
<message><source>running</source><translation>correr</translation></message>
<message><source>running shirt</source><translation>camiseta de corrida</translation></message>
<message><source>running shoe</source><translation>tênis de corrida</translation></message>
<message><source>russia</source><translation>russa</translation></message>
<message><source>sad</source><translation>triste</translation></message>
<message><source>sad but relieved face</source><translation>rosto triste, mas aliviado</translation></message>
<message><source>safety</source><translation>segurança</translation></message>
<message><source>safety pin</source><translation>alfinete de segurança</translation></message>
<message><source>safety vest</source><translation>colete salva-vidas</translation></message>
<message><source>sailboat</source><translation>barco a vela</translation></message>
<message><source>sake</source><translation>saquê</translation></message>
<message><source>salad</source><translation>salada</translation></message>
<message><source>salon</source><translation>salão</translation></message>
<message><source>salsa</source><translation>salsa</translation></message>
<message><source>salt</source><translation>sal</translation></message>
<message><source>salute</source><translation>saudação</translation></message>
<message><source>saluting face</source><translation>rosto saudando</translation></message>
<message><source>sandal</source><translation>sandália</translation></message>
<message><source>sandwich</source><translation>sanduíche</translation></message>
<message><source>sarcasm</source><translation>sarcasmo</translation></message>
<message><source>sarcastic</source><translation>sarcástico</translation></message>
<message><source>sari</source><translation>sari</translation></message>
<message><source>satellite</source><translation>satélite</translation></message>
<message><source>satellite antenna</source><translation>antena parabólica</translation></message>
<message><source>satisfied</source><translation>satisfeita</translation></message>
<message><source>sauna</source><translation>sauna</translation></message>
<message><source>sauropod</source><translation>saurópode</translation></message>
<message><source>saxophone</source><translation>saxofone</translation></message>
<message><source>scarf</source><translation>cachecol</translation></message>
<message><source>scary</source><translation>assustador</translation></message>
<message><source>school</source><translation>escola</translation></message>
<message><source>science</source><translation>ciência</translation></message>
<message><source>scientist</source><translation>cientista</translation></message>
<message><source>scissors</source><translation>tesoura</translation></message>
<message><source>scooter</source><translation>scooter</translation></message>
<message><source>scorpion</source><translation>escorpião</translation></message>
<message><source>scorpius</source><translation>escorpião</translation></message>
<message><source>screwdriver</source><translation>chave de fenda</translation></message>
<message><source>scroll</source><translation>pergaminho</translation></message>
<message><source>scuba</source><translation>scuba</translation></message>
<message><source>seal</source><translation>foca</translation></message>
<message><source>seat</source><translation>assento</translation></message>
<message><source>see-no-evil monkey</source><translation>macaco que não vê nada</translation></message>
<message><source>seedling</source><translation>muda de planta</translation></message>
<message><source>selfie</source><translation>selfie</translation></message>
<message><source>semi</source><translation>semi</translation></message>
<message><source>serenity</source><translation>serenidade</translation></message>
<message><source>serpent</source><translation>serpente</translation></message>
<message><source>service</source><translation>serviço</translation></message>
<message><source>service dog</source><translation>cão de serviço</translation></message>
<message><source>seven o’clock</source><translation>7 horas</translation></message>
<message><source>seven-thirty</source><translation>sete e meia</translation></message>
<message><source>sewing needle</source><translation>agulha de costura</translation></message>
<message><source>sexy</source><translation>sexy</translation></message>
<message><source>shaking face</source><translation>rosto tremendo</translation></message>
<message><source>shallow pan of food</source><translation>caçarola com comida</translation></message>
<message><source>shampoo</source><translation>shampoo</translation></message>
<message><source>shamrock</source><translation>trevo</translation></message>
<message><source>shark</source><translation>tubarão</translation></message>
<message><source>shaved ice</source><translation>raspadinha de gelo</translation></message>
<message><source>sheaf of rice</source><translation>planta de arroz</translation></message>
<message><source>shield</source><translation>escudo</translation></message>
<message><source>shinto shrine</source><translation>santuário japonês</translation></message>
<message><source>ship</source><translation>navio</translation></message>
<message><source>shirt</source><translation>camiseta</translation></message>
<message><source>shoe</source><translation>sapato</translation></message>
<message><source>shooting star</source><translation>estrela cadente</translation></message>
<message><source>shopping bags</source><translation>sacolas de compras</translation></message>
<message><source>shopping cart</source><translation>carrinho de compras</translation></message>
<message><source>shortcake</source><translation>pão de ló de morango</translation></message>
<message><source>shorts</source><translation>shorts</translation></message>
<message><source>shovel</source><translation>pá</translation></message>
<message><source>shower</source><translation>chuveiro</translation></message>
<message><source>showing</source><translation>Terra</translation></message>
<message><source>shrimp</source><translation>camarão</translation></message>
<message><source>shuffle tracks button</source><translation>botão de músicas aleatórias</translation></message>
<message><source>shushing face</source><translation>rosto fazendo sinal de silêncio</translation></message>
<message><source>sick</source><translation>doente</translation></message>
<message><source>sign of the horns</source><translation>saudação do rock</translation></message>
<message><source>silent</source><translation>silêncio</translation></message>
<message><source>silhouette</source><translation>silhueta</translation></message>
<message><source>singer</source><translation>cantor</translation></message>
<message><source>siren</source><translation>sirene</translation></message>
<message><source>six o’clock</source><translation>6 horas</translation></message>
<message><source>six-thirty</source><translation>seis e meia</translation></message>
<message><source>skateboard</source><translation>skate</translation></message>
<message><source>skater</source><translation>skate</translation></message>
<message><source>skeleton</source><translation>esqueleto</translation></message>
<message><source>skeptical</source><translation>cético</translation></message>
<message><source>skepticism</source><translation>ceticismo</translation></message>
<message><source>skier</source><translation>esquiador</translation></message>
<message><source>skis</source><translation>esqui</translation></message>
<message><source>skull</source><translation>caveira</translation></message>
<message><source>skull and crossbones</source><translation>caveira e ossos cruzados</translation></message>
<message><source>skunk</source><translation>gambá</translation></message>
<message><source>sled</source><translation>trenó</translation></message>
<message><source>sleep</source><translation>sono</translation></message>
<message><source>sleeping face</source><translation>rosto dormindo</translation></message>
<message><source>sleepy</source><translation>cansada</translation></message>
<message><source>sleepy face</source><translation>rosto sonolento</translation></message>
<message><source>slice</source><translation>fatia</translation></message>
<message><source>slightly frowning face</source><translation>rosto meio triste</translation></message>
<message><source>slightly smiling face</source><translation>rosto levemente sorridente</translation></message>
<message><source>slot machine</source><translation>caça-níquel</translation></message>
<message><source>sloth</source><translation>preguiça</translation></message>
<message><source>small</source><translation>pequeno</translation></message>
<message><source>small airplane</source><translation>avião pequeno</translation></message>
<message><source>small blue diamond</source><translation>losango azul pequeno</translation></message>
<message><source>small orange diamond</source><translation>losango laranja pequeno</translation></message>
<message><source>smiling</source><translation>sorriso</translation></message>
<message><source>smiling cat with heart-eyes</source><translation>rosto de gato sorridente com olhos de coração</translation></message>
<message><source>smiling face</source><translation>rosto sorridente</translation></message>
<message><source>smiling face with halo</source><translation>rosto sorridente com auréola</translation></message>
<message><source>smiling face with heart-eyes</source><translation>rosto sorridente com olhos de coração</translation></message>
<message><source>smiling face with hearts</source><translation>rosto sorridente com 3 corações</translation></message>
<message><source>smiling face with horns</source><translation>rosto sorridente com chifres</translation></message>
<message><source>smiling face with open hands</source><translation>rosto abraçando</translation></message>
<message><source>smiling face with smiling eyes</source><translation>rosto sorridente com olhos sorridentes</translation></message>
<message><source>smiling face with sunglasses</source><translation>rosto sorridente com óculos escuros</translation></message>
<message><source>smiling face with tear</source><translation>rosto sorridente com lágrima</translation></message>
<message><source>smirking face</source><translation>rosto com sorriso maroto</translation></message>
<message><source>snail</source><translation>caracol</translation></message>
<message><source>snake</source><translation>cobra</translation></message>
<message><source>sneezing face</source><translation>rosto espirrando</translation></message>
<message><source>snow</source><translation>neve</translation></message>
<message><source>snow-capped mountain</source><translation>montanha com neve</translation></message>
<message><source>snowboarder</source><translation>praticante de snowboard</translation></message>
<message><source>snowflake</source><translation>floco de neve</translation></message>
<message><source>snowman</source><translation>boneco de neve</translation></message>
<message><source>snowman without snow</source><translation>boneco de neve sem neve</translation></message>
<message><source>soap</source><translation>sabonete</translation></message>
<message><source>soar</source><translation>voar</translation></message>
<message><source>soccer ball</source><translation>bola de futebol</translation></message>
<message><source>socks</source><translation>meias</translation></message>
<message><source>soft ice cream</source><translation>sorvete italiano</translation></message>
<message><source>softball</source><translation>softbol</translation></message>
<message><source>software</source><translation>software</translation></message>
<message><source>solid</source><translation>sólido</translation></message>
<message><source>soup</source><translation>sopa</translation></message>
<message><source>spa</source><translation>spa</translation></message>
<message><source>spade suit</source><translation>naipe de espadas</translation></message>
<message><source>spaghetti</source><translation>espaguete</translation></message>
<message><source>sparkle</source><translation>faísca</translation></message>
<message><source>sparkler</source><translation>vela estrela</translation></message>
<message><source>sparkles</source><translation>brilhos</translation></message>
<message><source>sparkling heart</source><translation>coração brilhante</translation></message>
<message><source>speak-no-evil monkey</source><translation>macaco que não fala nada</translation></message>
<message><source>speaker</source><translation>alto-falante</translation></message>
<message><source>speaker high volume</source><translation>alto-falante com volume alto</translation></message>
<message><source>speaker low volume</source><translation>alto-falante com volume baixo</translation></message>
<message><source>speaker medium volume</source><translation>alto-falante com volume médio</translation></message>
<message><source>speaking head</source><translation>silhueta falando</translation></message>
<message><source>special</source><translation>especial</translation></message>
<message><source>speculum</source><translation>espéculo</translation></message>
<message><source>speech balloon</source><translation>balão de diálogo</translation></message>
<message><source>speedboat</source><translation>lancha</translation></message>
<message><source>spider</source><translation>aranha</translation></message>
<message><source>spider web</source><translation>teia de aranha</translation></message>
<message><source>spiral</source><translation>espiral</translation></message>
<message><source>spiral calendar</source><translation>calendário espiral</translation></message>
<message><source>spiral notepad</source><translation>bloco espiral</translation></message>
<message><source>spiral shell</source><translation>caramujo</translation></message>
<message><source>splashing</source><translation>splash</translation></message>
<message><source>splatter</source><translation>respingo</translation></message>
<message><source>sponge</source><translation>esponja</translation></message>
<message><source>spoon</source><translation>colher</translation></message>
<message><source>sport</source><translation>esporte</translation></message>
<message><source>sport utility vehicle</source><translation>SUV</translation></message>
<message><source>sports medal</source><translation>medalha esportiva</translation></message>
<message><source>spouting whale</source><translation>baleia esguichando água</translation></message>
<message><source>spy</source><translation>espião</translation></message>
<message><source>square</source><translation>quadrado</translation></message>
<message><source>squid</source><translation>lula</translation></message>
<message><source>squinting face with tongue</source><translation>rosto com olhos semicerrados e língua para fora</translation></message>
<message><source>stadium</source><translation>estádio</translation></message>
<message><source>star</source><translation>estrela branca média</translation></message>
<message><source>star and crescent</source><translation>estrela e lua crescente</translation></message>
<message><source>star of David</source><translation>estrela de Davi</translation></message>
<message><source>star-struck</source><translation>rosto com olhar maravilhado</translation></message>
<message><source>station</source><translation>estação</translation></message>
<message><source>statue</source><translation>estátua</translation></message>
<message><source>steaming bowl</source><translation>lámen</translation></message>
<message><source>stethoscope</source><translation>estetoscópio</translation></message>
<message><source>stop button</source><translation>botão parar</translation></message>
<message><source>stop sign</source><translation>sinal de pare</translation></message>
<message><source>stopwatch</source><translation>cronômetro</translation></message>
<message><source>straight ruler</source><translation>régua reta</translation></message>
<message><source>strawberry</source><translation>morango</translation></message>
<message><source>strike</source><translation>strike</translation></message>
<message><source>student</source><translation>aluno</translation></message>
<message><source>studio</source><translation>estúdio</translation></message>
<message><source>studio microphone</source><translation>microfone de estúdio</translation></message>
<message><source>stuffed flatbread</source><translation>pão recheado</translation></message>
<message><source>suit</source><translation>naipe</translation></message>
<message><source>sun</source><translation>sol</translation></message>
<message><source>sun behind cloud</source><translation>sol por trás das nuvens</translation></message>
<message><source>sun behind large cloud</source><translation>nublado</translation></message>
<message><source>sun behind rain cloud</source><translation>sol com chuva</translation></message>
<message><source>sun behind small cloud</source><translation>sol com nuvens</translation></message>
<message><source>sun with face</source><translation>rosto do sol</translation></message>
<message><source>sunflower</source><translation>girassol</translation></message>
<message><source>sunglasses</source><translation>óculos escuros</translation></message>
<message><source>sunrise</source><translation>aurora sobre água</translation></message>
<message><source>sunrise over mountains</source><translation>aurora sobre montanhas</translation></message>
<message><source>sunset</source><translation>pôr do sol</translation></message>
<message><source>superhero</source><translation>super-herói</translation></message>
<message><source>superpower</source><translation>superpoder</translation></message>
<message><source>supervillain</source><translation>supervilão</translation></message>
<message><source>surfing</source><translation>surfe</translation></message>
<message><source>surprised</source><translation>surpreso</translation></message>
<message><source>sushi</source><translation>sushi</translation></message>
<message><source>suspension</source><translation>suspensão</translation></message>
<message><source>suspension railway</source><translation>estrada de ferro suspensa</translation></message>
<message><source>sutures</source><translation>suturas</translation></message>
<message><source>swan</source><translation>cisne</translation></message>
<message><source>sweat droplets</source><translation>pingos de suor</translation></message>
<message><source>sweet</source><translation>doce</translation></message>
<message><source>swimsuit</source><translation>nadar</translation></message>
<message><source>symbols</source><translation>símbolos</translation></message>
<message><source>synagogue</source><translation>sinagoga</translation></message>
<message><source>syringe</source><translation>seringa</translation></message>
<message><source>t-shirt</source><translation>camiseta</translation></message>
<message><source>taco</source><translation>taco</translation></message>
<message><source>taekwondo</source><translation>taekwondo</translation></message>
<message><source>takeout box</source><translation>caixa para viagem</translation></message>
<message><source>talisman</source><translation>talismã</translation></message>
<message><source>tamale</source><translation>tamale</translation></message>
<message><source>tanabata</source><translation>tanabata</translation></message>
<message><source>tanabata tree</source><translation>árvore de tanabata</translation></message>
<message><source>tangerine</source><translation>tangerina</translation></message>
<message><source>tango</source><translation>tango</translation></message>
<message><source>taxi</source><translation>táxi</translation></message>
<message><source>tea</source><translation>chá</translation></message>
<message><source>teacher</source><translation>professora na escola</translation></message>
<message><source>teacup without handle</source><translation>xícara de chá sem alça</translation></message>
<message><source>teapot</source><translation>bule</translation></message>
<message><source>tear</source><translation>choro</translation></message>
<message><source>tear-off calendar</source><translation>calendário com folhas destacáveis</translation></message>
<message><source>technologist</source><translation>programador</translation></message>
<message><source>teddy bear</source><translation>ursinho de pelúcia</translation></message>
<message><source>telephone</source><translation>telefone no gancho</translation></message>
<message><source>telephone receiver</source><translation>telefone</translation></message>
<message><source>telescope</source><translation>telescópio</translation></message>
<message><source>television</source><translation>televisão</translation></message>
<message><source>temple</source><translation>templo</translation></message>
<message><source>tempura</source><translation>tempura</translation></message>
<message><source>ten o’clock</source><translation>10 horas</translation></message>
<message><source>ten-thirty</source><translation>dez e meia</translation></message>
<message><source>tennis</source><translation>tênis</translation></message>
<message><source>tension</source><translation>tenso</translation></message>
<message><source>tent</source><translation>barraca</translation></message>
<message><source>tentacles</source><translation>tentáculos</translation></message>
<message><source>tequila</source><translation>tequila</translation></message>
<message><source>terrestrial</source><translation>terrestre</translation></message>
<message><source>test tube</source><translation>tubo de ensaio</translation></message>
<message><source>thermometer</source><translation>termômetro</translation></message>
<message><source>thinking face</source><translation>rosto pensativo</translation></message>
<message><source>thong sandal</source><translation>chinelo</translation></message>
<message><source>thought balloon</source><translation>balão de pensamento</translation></message>
<message><source>thread</source><translation>carretel</translation></message>
<message><source>three o’clock</source><translation>3 horas</translation></message>
<message><source>three-thirty</source><translation>três e meia</translation></message>
<message><source>thumbs down</source><translation>polegar para baixo</translation></message>
<message><source>thumbs up</source><translation>polegar para cima</translation></message>
<message><source>ticket</source><translation>ingresso</translation></message>
<message><source>tickets</source><translation>ticket</translation></message>
<message><source>tiger</source><translation>tigre</translation></message>
<message><source>tiger face</source><translation>rosto de tigre</translation></message>
<message><source>timer</source><translation>timer</translation></message>
<message><source>timer clock</source><translation>relógio temporizador</translation></message>
<message><source>tired</source><translation>cansado</translation></message>
<message><source>tired face</source><translation>rosto cansado</translation></message>
<message><source>toast</source><translation>tostex</translation></message>
<message><source>toboggan</source><translation>tobogã</translation></message>
<message><source>toilet</source><translation>vaso sanitário</translation></message>
<message><source>tomato</source><translation>tomate</translation></message>
<message><source>tongue</source><translation>língua</translation></message>
<message><source>tool</source><translation>ferramenta</translation></message>
<message><source>toolbox</source><translation>caixa de ferramentas</translation></message>
<message><source>tooth</source><translation>dente</translation></message>
<message><source>toothbrush</source><translation>escova de dentes</translation></message>
<message><source>top hat</source><translation>cartola</translation></message>
<message><source>tornado</source><translation>tornado</translation></message>
<message><source>trackball</source><translation>trackball</translation></message>
<message><source>tractor</source><translation>trator</translation></message>
<message><source>trade mark</source><translation>símbolo de marca registrada</translation></message>
<message><source>traffic</source><translation>trânsito</translation></message>
<message><source>train</source><translation>trem</translation></message>
<message><source>tram</source><translation>bonde elétrico</translation></message>
<message><source>tram car</source><translation>bonde</translation></message>
<message><source>transform</source><translation>transformação</translation></message>
<message><source>transgender</source><translation>transgênero</translation></message>
<message><source>transgender flag</source><translation>bandeira transgênero</translation></message>
<message><source>transgender symbol</source><translation>símbolo transgênero</translation></message>
<message><source>transparent</source><translation>transparente</translation></message>
<message><source>transportation</source><translation>transporte</translation></message>
<message><source>tray</source><translation>bandeja</translation></message>
<message><source>treasure</source><translation>tesouro</translation></message>
<message><source>treatment</source><translation>relaxamento</translation></message>
<message><source>tree</source><translation>árvore</translation></message>
<message><source>trend</source><translation>gráfico</translation></message>
<message><source>triangle</source><translation>triângulo</translation></message>
<message><source>triangular</source><translation>triangular</translation></message>
<message><source>triangular flag</source><translation>bandeira triangular</translation></message>
<message><source>triangular ruler</source><translation>régua triangular</translation></message>
<message><source>triathlon</source><translation>triatlo</translation></message>
<message><source>trident</source><translation>tridente</translation></message>
<message><source>trident emblem</source><translation>emblema de tridente</translation></message>
<message><source>troll</source><translation>troll</translation></message>
<message><source>trolleybus</source><translation>trólebus</translation></message>
<message><source>troops</source><translation>tropa</translation></message>
<message><source>trophy</source><translation>troféu</translation></message>
<message><source>tropical</source><translation>tropical</translation></message>
<message><source>tropical drink</source><translation>bebida tropical</translation></message>
<message><source>tropical fish</source><translation>peixe tropical</translation></message>
<message><source>truck</source><translation>caminhão</translation></message>
<message><source>trumpet</source><translation>trompete</translation></message>
<message><source>tube</source><translation>tubo</translation></message>
<message><source>tulip</source><translation>tulipa</translation></message>
<message><source>tumbler glass</source><translation>copo</translation></message>
<message><source>turban</source><translation>turbante</translation></message>
<message><source>turkey</source><translation>peru</translation></message>
<message><source>turtle</source><translation>tartaruga</translation></message>
<message><source>twelve o’clock</source><translation>12 horas</translation></message>
<message><source>twelve-thirty</source><translation>doze e meia</translation></message>
<message><source>twins</source><translation>gêmeos</translation></message>
<message><source>twister</source><translation>twister</translation></message>
<message><source>two hearts</source><translation>dois corações</translation></message>
<message><source>two o’clock</source><translation>2 horas</translation></message>
<message><source>two-hump camel</source><translation>camelo com duas corcovas</translation></message>
<message><source>two-thirty</source><translation>duas e meia</translation></message>
<message><source>ultimate</source><translation>ultimate</translation></message>
<message><source>umbrella</source><translation>guarda-chuva</translation></message>
<message><source>umbrella on ground</source><translation>guarda-sol</translation></message>
<message><source>umbrella with rain drops</source><translation>sombrinha na chuva</translation></message>
<message><source>unamused face</source><translation>rosto aborrecido</translation></message>
<message><source>unicorn</source><translation>rosto de unicórnio</translation></message>
<message><source>uniform</source><translation>uniforme</translation></message>
<message><source>universal</source><translation>universal</translation></message>
<message><source>unlocked</source><translation>cadeado aberto</translation></message>
<message><source>up arrow</source><translation>seta para cima</translation></message>
<message><source>up-down arrow</source><translation>seta para cima e para baixo</translation></message>
<message><source>up-left arrow</source><translation>seta para cima e para a esquerda</translation></message>
<message><source>up-right arrow</source><translation>seta para cima e para a direita</translation></message>
<message><source>upside-down face</source><translation>rosto de cabeça para baixo</translation></message>
<message><source>upwards button</source><translation>botão apontando para cima</translation></message>
<message><source>vampire</source><translation>vampiro</translation></message>
<message><source>vegetable</source><translation>vegetal</translation></message>
<message><source>vegetarian</source><translation>vegetariano</translation></message>
<message><source>versus</source><translation>versus</translation></message>
<message><source>vertical</source><translation>vertical</translation></message>
<message><source>vertical traffic light</source><translation>semáforo vertical</translation></message>
<message><source>vibrate</source><translation>vibrar</translation></message>
<message><source>vibration</source><translation>vibração</translation></message>
<message><source>vibration mode</source><translation>modo vibratório</translation></message>
<message><source>victory hand</source><translation>mão em V de vitória</translation></message>
<message><source>vicuña</source><translation>vicunha</translation></message>
<message><source>video</source><translation>vídeo</translation></message>
<message><source>video camera</source><translation>câmera de vídeo</translation></message>
<message><source>video game</source><translation>videogame</translation></message>
<message><source>videocassette</source><translation>videocassete</translation></message>
<message><source>villain</source><translation>vilã</translation></message>
<message><source>violet</source><translation>violeta</translation></message>
<message><source>violin</source><translation>violino</translation></message>
<message><source>virus</source><translation>vírus</translation></message>
<message><source>volcano</source><translation>vulcão</translation></message>
<message><source>volleyball</source><translation>bola de vôlei</translation></message>
<message><source>volume</source><translation>volume</translation></message>
<message><source>vomit</source><translation>vômito</translation></message>
<message><source>vomiting</source><translation>vomitando</translation></message>
<message><source>vulcan salute</source><translation>saudação vulcana</translation></message>
<message><source>waffle</source><translation>waffle</translation></message>
<message><source>waning</source><translation>minguante</translation></message>
<message><source>waning crescent moon</source><translation>lua minguante côncava</translation></message>
<message><source>waning gibbous moon</source><translation>lua minguante convexa</translation></message>
<message><source>warning</source><translation>aviso</translation></message>
<message><source>wastebasket</source><translation>lixeira</translation></message>
<message><source>watch</source><translation>relógio de pulso</translation></message>
<message><source>water</source><translation>água</translation></message>
<message><source>water buffalo</source><translation>búfalo-asiático</translation></message>
<message><source>water closet</source><translation>WC</translation></message>
<message><source>water pistol</source><translation>pistola d’água</translation></message>
<message><source>water wave</source><translation>onda</translation></message>
<message><source>watermelon</source><translation>melancia</translation></message>
<message><source>waving</source><translation>tremulando</translation></message>
<message><source>waving hand</source><translation>mão acenando</translation></message>
<message><source>wavy dash</source><translation>travessão ondulado</translation></message>
<message><source>waxing crescent moon</source><translation>lua crescente côncava</translation></message>
<message><source>waxing gibbous moon</source><translation>lua crescente convexa</translation></message>
<message><source>weapon</source><translation>arma</translation></message>
<message><source>weary cat</source><translation>rosto de gato desolado</translation></message>
<message><source>weary face</source><translation>rosto desolado</translation></message>
<message><source>weather</source><translation>clima</translation></message>
<message><source>wedding</source><translation>capela de casamento</translation></message>
<message><source>weight</source><translation>peso</translation></message>
<message><source>whale</source><translation>baleia</translation></message>
<message><source>wheel</source><translation>roda</translation></message>
<message><source>wheel of dharma</source><translation>roda do Dharma</translation></message>
<message><source>wheelchair</source><translation>cadeira de rodas</translation></message>
<message><source>wheelchair symbol</source><translation>símbolo de cadeira de rodas</translation></message>
<message><source>white cane</source><translation>bengala para cegos</translation></message>
<message><source>white circle</source><translation>círculo branco</translation></message>
<message><source>white exclamation mark</source><translation>ponto de exclamação branco</translation></message>
<message><source>white flag</source><translation>bandeira branca</translation></message>
<message><source>white flower</source><translation>flor branca</translation></message>
<message><source>white heart</source><translation>coração branco</translation></message>
<message><source>white large square</source><translation>quadrado branco grande</translation></message>
<message><source>white medium square</source><translation>quadrado branco médio</translation></message>
<message><source>white medium-small square</source><translation>quadrado branco médio menor</translation></message>
<message><source>white question mark</source><translation>ponto de interrogação branco</translation></message>
<message><source>white small square</source><translation>quadrado branco pequeno</translation></message>
<message><source>white square button</source><translation>botão quadrado branco</translation></message>
<message><source>wilted flower</source><translation>flor murcha</translation></message>
<message><source>wind</source><translation>vento</translation></message>
<message><source>wind chime</source><translation>carrilhão de vento</translation></message>
<message><source>wind face</source><translation>rosto de vento</translation></message>
<message><source>window</source><translation>janela</translation></message>
<message><source>wine glass</source><translation>vinho</translation></message>
<message><source>wing</source><translation>asa</translation></message>
<message><source>wings</source><translation>asas</translation></message>
<message><source>winking face</source><translation>rosto com olho piscando</translation></message>
<message><source>winking face with tongue</source><translation>rosto piscando e com língua para fora</translation></message>
<message><source>wireless</source><translation>sem fio</translation></message>
<message><source>witch</source><translation>bruxa</translation></message>
<message><source>wizard</source><translation>mago</translation></message>
<message><source>wolf</source><translation>rosto de lobo</translation></message>
<message><source>woman</source><translation>mulher</translation></message>
<message><source>woman and man holding hands</source><translation>homem e mulher de mãos dadas</translation></message>
<message><source>woman artist</source><translation>artista plástica</translation></message>
<message><source>woman astronaut</source><translation>astronauta mulher</translation></message>
<message><source>woman biking</source><translation>mulher ciclista</translation></message>
<message><source>woman bouncing ball</source><translation>mulher jogando basquete</translation></message>
<message><source>woman bowing</source><translation>mulher fazendo reverência</translation></message>
<message><source>woman cartwheeling</source><translation>mulher fazendo estrela</translation></message>
<message><source>woman climbing</source><translation>mulher escalando</translation></message>
<message><source>woman construction worker</source><translation>pedreira</translation></message>
<message><source>woman cook</source><translation>cozinheira</translation></message>
<message><source>woman dancing</source><translation>mulher dançando</translation></message>
<message><source>woman detective</source><translation>detetive mulher</translation></message>
<message><source>woman elf</source><translation>elfa</translation></message>
<message><source>woman facepalming</source><translation>mulher decepcionada</translation></message>
<message><source>woman factory worker</source><translation>operária</translation></message>
<message><source>woman fairy</source><translation>mulher fada</translation></message>
<message><source>woman farmer</source><translation>fazendeira</translation></message>
<message><source>woman feeding baby</source><translation>mulher alimentando bebê</translation></message>
<message><source>woman firefighter</source><translation>bombeira</translation></message>
<message><source>woman frowning</source><translation>mulher franzindo a sobrancelha</translation></message>
<message><source>woman genie</source><translation>mulher gênio</translation></message>
<message><source>woman gesturing NO</source><translation>mulher fazendo gesto de “não”</translation></message>
<message><source>woman gesturing OK</source><translation>mulher fazendo gesto de “OK”</translation></message>
<message><source>woman getting haircut</source><translation>mulher cortando o cabelo</translation></message>
<message><source>woman getting massage</source><translation>mulher recebendo massagem facial</translation></message>
<message><source>woman golfing</source><translation>mulher golfista</translation></message>
<message><source>woman guard</source><translation>guarda mulher</translation></message>
<message><source>woman health worker</source><translation>mulher profissional da saúde</translation></message>
<message><source>woman in lotus position</source><translation>mulher na posição de lótus</translation></message>
<message><source>woman in manual wheelchair</source><translation>mulher em cadeira de rodas manual</translation></message>
<message><source>woman in manual wheelchair: facing right</source><translation>mulher em cadeira de rodas manual: de frente para a direita</translation></message>
<message><source>woman in motorized wheelchair</source><translation>mulher em cadeira de rodas motorizada</translation></message>
<message><source>woman in motorized wheelchair: facing right</source><translation>mulher em cadeira de rodas motorizada: de frente para a direita</translation></message>
<message><source>woman in steamy room</source><translation>mulher na sauna</translation></message>
<message><source>woman in tuxedo</source><translation>mulher de smoking</translation></message>
<message><source>woman judge</source><translation>juíza</translation></message>
<message><source>woman juggling</source><translation>mulher malabarista</translation></message>
<message><source>woman kneeling</source><translation>mulher ajoelhando</translation></message>
<message><source>woman kneeling: facing right</source><translation>mulher ajoelhando: de frente para a direita</translation></message>
<message><source>woman lifting weights</source><translation>mulher levantando peso</translation></message>
<message><source>woman mage</source><translation>maga</translation></message>
<message><source>woman mechanic</source><translation>mecânica</translation></message>
<message><source>woman mountain biking</source><translation>mulher fazendo mountain bike</translation></message>
<message><source>woman office worker</source><translation>funcionária de escritório</translation></message>
<message><source>woman pilot</source><translation>piloto de avião mulher</translation></message>
<message><source>woman playing handball</source><translation>jogadora de handebol</translation></message>
<message><source>woman playing water polo</source><translation>mulher jogando polo aquático</translation></message>
<message><source>woman police officer</source><translation>policial mulher</translation></message>
<message><source>woman pouting</source><translation>mulher fazendo bico</translation></message>
<message><source>woman raising hand</source><translation>mulher levantando a mão</translation></message>
<message><source>woman rowing boat</source><translation>mulher remando</translation></message>
<message><source>woman running</source><translation>mulher correndo</translation></message>
<message><source>woman running: facing right</source><translation>mulher correndo: de frente para a direita</translation></message>
<message><source>woman scientist</source><translation>cientista mulher</translation></message>
<message><source>woman shrugging</source><translation>mulher dando de ombros</translation></message>
<message><source>woman singer</source><translation>cantora</translation></message>
<message><source>woman standing</source><translation>mulher em pé</translation></message>
<message><source>woman student</source><translation>aluna</translation></message>
<message><source>woman superhero</source><translation>super-heroína</translation></message>
<message><source>woman supervillain</source><translation>supervilã</translation></message>
<message><source>woman surfing</source><translation>mulher surfista</translation></message>
<message><source>woman swimming</source><translation>mulher nadando</translation></message>
<message><source>woman teacher</source><translation>professora</translation></message>
<message><source>woman technologist</source><translation>tecnóloga</translation></message>
<message><source>woman tipping hand</source><translation>mulher com a palma virada para cima</translation></message>
<message><source>woman vampire</source><translation>mulher vampira</translation></message>
<message><source>woman walking</source><translation>mulher andando</translation></message>
<message><source>woman walking: facing right</source><translation>mulher andando: de frente para a direita</translation></message>
<message><source>woman wearing turban</source><translation>mulher com turbante</translation></message>
<message><source>woman with headscarf</source><translation>mulher com véu</translation></message>
<message><source>woman with veil</source><translation>noiva com véu</translation></message>
<message><source>woman with white cane</source><translation>mulher com bengala para cego</translation></message>
<message><source>woman with white cane: facing right</source><translation>mulher com bengala para cego: de frente para a direita</translation></message>
<message><source>woman zombie</source><translation>mulher zumbi</translation></message>
<message><source>woman: bald</source><translation>mulher: careca</translation></message>
<message><source>woman: beard</source><translation>mulher: barba</translation></message>
<message><source>woman: blond hair</source><translation>mulher: cabelo loiro</translation></message>
<message><source>woman: curly hair</source><translation>mulher: cabelo cacheado</translation></message>
<message><source>woman: red hair</source><translation>mulher: cabelo vermelho</translation></message>
<message><source>woman: white hair</source><translation>mulher: cabelo branco</translation></message>
<message><source>woman’s boot</source><translation>bota feminina</translation></message>
<message><source>woman’s clothes</source><translation>roupas femininas</translation></message>
<message><source>woman’s hat</source><translation>chapéu feminino</translation></message>
<message><source>woman’s sandal</source><translation>sandália feminina</translation></message>
<message><source>women holding hands</source><translation>duas mulheres de mãos dadas</translation></message>
<message><source>women with bunny ears</source><translation>mulheres com orelhas de coelho</translation></message>
<message><source>women wrestling</source><translation>mulheres lutando</translation></message>
<message><source>women’s room</source><translation>banheiro feminino</translation></message>
<message><source>wood</source><translation>madeira</translation></message>
<message><source>woozy face</source><translation>rosto embriagado</translation></message>
<message><source>world map</source><translation>mapa-múndi</translation></message>
<message><source>worm</source><translation>minhoca</translation></message>
<message><source>worried face</source><translation>rosto preocupado</translation></message>
<message><source>wrapped gift</source><translation>presente</translation></message>
<message><source>wrench</source><translation>chave inglesa</translation></message>
<message><source>writing hand</source><translation>escrevendo à mão</translation></message>
<message><source>wtv</source><translation>meh</translation></message>
<message><source>x-ray</source><translation>raio x</translation></message>
<message><source>yarn</source><translation>novelo</translation></message>
<message><source>yawn</source><translation>zzz</translation></message>
<message><source>yawning face</source><translation>rosto bocejando</translation></message>
<message><source>yellow</source><translation>amarelo</translation></message>
<message><source>yellow circle</source><translation>círculo amarelo</translation></message>
<message><source>yellow heart</source><translation>coração amarelo</translation></message>
<message><source>yellow square</source><translation>quadrado amarelo</translation></message>
<message><source>yen</source><translation>iene</translation></message>
<message><source>yen banknote</source><translation>nota de iene</translation></message>
<message><source>yes</source><translation>sim</translation></message>
<message><source>yin yang</source><translation>yin yang</translation></message>
<message><source>yo-yo</source><translation>ioiô</translation></message>
<message><source>young</source><translation>jovem</translation></message>
<message><source>yurt</source><translation>yurt</translation></message>
<message><source>yuèbǐng</source><translation>yuèbǐng</translation></message>
<message><source>zany face</source><translation>rosto bizarro</translation></message>
<message><source>zebra</source><translation>zebra</translation></message>
<message><source>zen</source><translation>zen</translation></message>
<message><source>zero</source><translation>zero</translation></message>
<message><source>zipper</source><translation>zíper</translation></message>
<message><source>zipper-mouth face</source><translation>rosto com boca de zíper</translation></message>
<message><source>zodiac</source><translation>zodíaco</translation></message>
<message><source>zombie</source><translation>zumbi</translation></message>
</context>
</TS>
