<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context><name>EmojiLocalisation</name>
<message><source>10:00</source><translation>10:00</translation></message>
<message><source>10:30</source><translation>10:30</translation></message>
<message><source>11:00</source><translation>11:00</translation></message>
<message><source>11:30</source><translation>11:30</translation></message>
<message><source>12:00</source><translation>12:00</translation></message>
<message><source>12:30</source><translation>12:30</translation></message>
<message><source>1:30</source><translation>1:30</translation></message>
<message><source>1st place medal</source><translation>золотая медаль</translation></message>
<message><source>2:30</source><translation>2:30</translation></message>
<message><source>2nd place medal</source><translation>серебряная медаль</translation></message>
<message><source>3:00</source><translation>3:00</translation></message>
<message><source>3:30</source><translation>3:30</translation></message>
<message><source>3rd place medal</source><translation>бронзовая медаль</translation></message>
<message><source>4:00</source><translation>4:00</translation></message>
<message><source>4:30</source><translation>4:30</translation></message>
<message><source>5:00</source><translation>5:00</translation></message>
<message><source>5:30</source><translation>5:30</translation></message>
<message><source>6:00</source><translation>6:00</translation></message>
<message><source>6:30</source><translation>6:30</translation></message>
<message><source>7:00</source><translation>7:00</translation></message>
<message><source>7:30</source><translation>7:30</translation></message>
<message><source>8:30</source><translation>8:30</translation></message>
<message><source>9:00</source><translation>9:00</translation></message>
<message><source>9:30</source><translation>9:30</translation></message>
<message><source>?</source><translation>вопросительный</translation></message>
<message><source>A button (blood type)</source><translation>II группа крови</translation></message>
<message><source>AB button (blood type)</source><translation>IV группа крови</translation></message>
<message><source>ATM sign</source><translation>значок банкомата</translation></message>
<message><source>Aquarius</source><translation>знак зодиака Водолей</translation></message>
<message><source>Aries</source><translation>знак зодиака Овен</translation></message>
<message><source>B button (blood type)</source><translation>III группа крови</translation></message>
<message><source>BACK arrow</source><translation>стрелка «назад»</translation></message>
<message><source>CL button</source><translation>кнопка «очистить»</translation></message>
<message><source>COOL button</source><translation>значок «круто»</translation></message>
<message><source>Cancer</source><translation>знак зодиака Рак</translation></message>
<message><source>Capricorn</source><translation>знак зодиака Козерог</translation></message>
<message><source>Christmas tree</source><translation>новогодняя елка</translation></message>
<message><source>END arrow</source><translation>стрелка «конец»</translation></message>
<message><source>FREE button</source><translation>значок «бесплатно»</translation></message>
<message><source>Gemini</source><translation>знак зодиака Близнецы</translation></message>
<message><source>ID button</source><translation>значок «идентификация»</translation></message>
<message><source>Japanese castle</source><translation>японский замок</translation></message>
<message><source>Japanese dolls</source><translation>японские куклы</translation></message>
<message><source>Japanese post office</source><translation>японская почта</translation></message>
<message><source>Japanese symbol for beginner</source><translation>символ новичка</translation></message>
<message><source>Japanese “acceptable” button</source><translation>допустимость</translation></message>
<message><source>Japanese “application” button</source><translation>заявка</translation></message>
<message><source>Japanese “bargain” button</source><translation>удачная сделка</translation></message>
<message><source>Japanese “congratulations” button</source><translation>поздравление</translation></message>
<message><source>Japanese “discount” button</source><translation>скидка</translation></message>
<message><source>Japanese “free of charge” button</source><translation>бесплатно</translation></message>
<message><source>Japanese “here” button</source><translation>значок «здесь»</translation></message>
<message><source>Japanese “monthly amount” button</source><translation>месяц</translation></message>
<message><source>Japanese “no vacancy” button</source><translation>нет мест</translation></message>
<message><source>Japanese “not free of charge” button</source><translation>платно</translation></message>
<message><source>Japanese “open for business” button</source><translation>открыто</translation></message>
<message><source>Japanese “passing grade” button</source><translation>проходной балл</translation></message>
<message><source>Japanese “prohibited” button</source><translation>запрет</translation></message>
<message><source>Japanese “reserved” button</source><translation>забронировано</translation></message>
<message><source>Japanese “secret” button</source><translation>секрет</translation></message>
<message><source>Japanese “service charge” button</source><translation>цена услуги</translation></message>
<message><source>Japanese “vacancy” button</source><translation>есть места</translation></message>
<message><source>Leo</source><translation>знак зодиака Лев</translation></message>
<message><source>Libra</source><translation>знак зодиака Весы</translation></message>
<message><source>Mrs. Claus</source><translation>миссис Клаус</translation></message>
<message><source>Mx Claus</source><translation>Санта</translation></message>
<message><source>NEW button</source><translation>значок «новинка»</translation></message>
<message><source>NG button</source><translation>значок «не годится»</translation></message>
<message><source>O button (blood type)</source><translation>I группа крови</translation></message>
<message><source>OK button</source><translation>значок «ОК»</translation></message>
<message><source>OK hand</source><translation>жест «все хорошо»</translation></message>
<message><source>ON! arrow</source><translation>стрелка «активно»</translation></message>
<message><source>Ophiuchus</source><translation>знак зодиака Змееносец</translation></message>
<message><source>P button</source><translation>парковка</translation></message>
<message><source>Pisces</source><translation>знак зодиака Рыбы</translation></message>
<message><source>SOON arrow</source><translation>стрелка «скоро»</translation></message>
<message><source>SOS button</source><translation>значок SOS</translation></message>
<message><source>Sagittarius</source><translation>знак зодиака Стрелец</translation></message>
<message><source>Santa Claus</source><translation>Санта-Клаус</translation></message>
<message><source>Scorpio</source><translation>знак зодиака Скорпион</translation></message>
<message><source>Statue of Liberty</source><translation>статуя Свободы</translation></message>
<message><source>T-Rex</source><translation>Ти-Рекс</translation></message>
<message><source>TOP arrow</source><translation>стрелка «верх»</translation></message>
<message><source>Taurus</source><translation>знак зодиака Телец</translation></message>
<message><source>Tokyo tower</source><translation>Токийская башня</translation></message>
<message><source>UP! button</source><translation>значок «обновление»</translation></message>
<message><source>VS button</source><translation>значок «против»</translation></message>
<message><source>Virgo</source><translation>знак зодиака Дева</translation></message>
<message><source>ZZZ</source><translation>сон</translation></message>
<message><source>abacus</source><translation>счеты</translation></message>
<message><source>abcd</source><translation>латинские буквы</translation></message>
<message><source>accessibility</source><translation>инвалид</translation></message>
<message><source>accordion</source><translation>аккордеон</translation></message>
<message><source>adhesive bandage</source><translation>пластырь</translation></message>
<message><source>admission tickets</source><translation>билеты</translation></message>
<message><source>aerial tramway</source><translation>канатная дорога</translation></message>
<message><source>airplane</source><translation>самолет</translation></message>
<message><source>airplane arrival</source><translation>посадка</translation></message>
<message><source>airplane departure</source><translation>взлет</translation></message>
<message><source>alarm clock</source><translation>будильник</translation></message>
<message><source>alembic</source><translation>перегонный сосуд</translation></message>
<message><source>alien</source><translation>инопланетянин</translation></message>
<message><source>alien monster</source><translation>космический монстр</translation></message>
<message><source>ambulance</source><translation>машина скорой помощи</translation></message>
<message><source>american football</source><translation>американский футбол</translation></message>
<message><source>amphora</source><translation>амфора</translation></message>
<message><source>amulet</source><translation>амулет</translation></message>
<message><source>anatomical heart</source><translation>сердце человека</translation></message>
<message><source>anchor</source><translation>якорь</translation></message>
<message><source>anger</source><translation>ярость</translation></message>
<message><source>anger symbol</source><translation>значок «гнев»</translation></message>
<message><source>angry face</source><translation>сердится</translation></message>
<message><source>angry face with horns</source><translation>злой чертенок</translation></message>
<message><source>anguished face</source><translation>страдает</translation></message>
<message><source>animal</source><translation>животное</translation></message>
<message><source>ant</source><translation>муравей</translation></message>
<message><source>antenna</source><translation>антенна</translation></message>
<message><source>antenna bars</source><translation>сигнал сети</translation></message>
<message><source>anxious face with sweat</source><translation>сильно беспокоится</translation></message>
<message><source>arrow</source><translation>стрелка</translation></message>
<message><source>articulated lorry</source><translation>фура</translation></message>
<message><source>artist</source><translation>художник</translation></message>
<message><source>artist palette</source><translation>палитра с красками</translation></message>
<message><source>astonished face</source><translation>в шоке</translation></message>
<message><source>astronaut</source><translation>космонавт</translation></message>
<message><source>atom symbol</source><translation>символ атома</translation></message>
<message><source>auto rickshaw</source><translation>авторикша</translation></message>
<message><source>automobile</source><translation>автомобиль</translation></message>
<message><source>avocado</source><translation>авокадо</translation></message>
<message><source>awful</source><translation>жаль</translation></message>
<message><source>axe</source><translation>топор</translation></message>
<message><source>baby</source><translation>младенец</translation></message>
<message><source>baby angel</source><translation>ангелочек</translation></message>
<message><source>baby bottle</source><translation>бутылочка с соской</translation></message>
<message><source>baby chick</source><translation>цыпленок боком</translation></message>
<message><source>baby symbol</source><translation>пеленальная</translation></message>
<message><source>backhand</source><translation>тыльная</translation></message>
<message><source>backhand index pointing down</source><translation>указывающий вниз палец</translation></message>
<message><source>backhand index pointing left</source><translation>указывающий налево палец</translation></message>
<message><source>backhand index pointing right</source><translation>указывающий направо палец</translation></message>
<message><source>backhand index pointing up</source><translation>указывающий вверх палец</translation></message>
<message><source>backpack</source><translation>ранец</translation></message>
<message><source>backpacking</source><translation>рюкзак</translation></message>
<message><source>bacon</source><translation>бекон</translation></message>
<message><source>badger</source><translation>барсук</translation></message>
<message><source>badminton</source><translation>бадминтон</translation></message>
<message><source>bagel</source><translation>бублик</translation></message>
<message><source>baggage claim</source><translation>получение багажа</translation></message>
<message><source>baguette bread</source><translation>багет</translation></message>
<message><source>balance scale</source><translation>весы</translation></message>
<message><source>ball</source><translation>мяч</translation></message>
<message><source>ballet shoes</source><translation>пуанты</translation></message>
<message><source>balloon</source><translation>воздушный шарик</translation></message>
<message><source>ballot</source><translation>бюллетень</translation></message>
<message><source>ballot box with ballot</source><translation>избирательная урна</translation></message>
<message><source>banana</source><translation>банан</translation></message>
<message><source>banjo</source><translation>банджо</translation></message>
<message><source>bank</source><translation>банк</translation></message>
<message><source>bar chart</source><translation>гистограмма</translation></message>
<message><source>barber pole</source><translation>парикмахерская</translation></message>
<message><source>baseball</source><translation>бейсбол</translation></message>
<message><source>basket</source><translation>корзина</translation></message>
<message><source>basketball</source><translation>баскетбол</translation></message>
<message><source>bat</source><translation>летучая мышь</translation></message>
<message><source>bathtub</source><translation>ванна</translation></message>
<message><source>battery</source><translation>батарейка</translation></message>
<message><source>beach with umbrella</source><translation>пляж</translation></message>
<message><source>beaming face with smiling eyes</source><translation>светится от счастья</translation></message>
<message><source>beans</source><translation>фасоль</translation></message>
<message><source>bear</source><translation>морда медведя</translation></message>
<message><source>beating heart</source><translation>пульсирующее сердце</translation></message>
<message><source>beaver</source><translation>бобр</translation></message>
<message><source>bed</source><translation>кровать</translation></message>
<message><source>beer mug</source><translation>кружка пива</translation></message>
<message><source>beetle</source><translation>жук</translation></message>
<message><source>bell</source><translation>колокольчик</translation></message>
<message><source>bell pepper</source><translation>болгарский перец</translation></message>
<message><source>bell with slash</source><translation>перечеркнутый колокольчик</translation></message>
<message><source>bellhop bell</source><translation>гостиничный звонок</translation></message>
<message><source>bento box</source><translation>бэнто</translation></message>
<message><source>beverage box</source><translation>пакетик сока</translation></message>
<message><source>bicycle</source><translation>велосипед</translation></message>
<message><source>bike</source><translation>педали</translation></message>
<message><source>bikini</source><translation>бикини</translation></message>
<message><source>billed cap</source><translation>бейсболка</translation></message>
<message><source>biohazard</source><translation>биологическая угроза</translation></message>
<message><source>biologist</source><translation>биология</translation></message>
<message><source>bird</source><translation>птица</translation></message>
<message><source>birthday cake</source><translation>торт ко дню рождения</translation></message>
<message><source>bison</source><translation>бизон</translation></message>
<message><source>bite</source><translation>укус</translation></message>
<message><source>biting lip</source><translation>кусать губы</translation></message>
<message><source>black</source><translation>черный</translation></message>
<message><source>black bird</source><translation>черная птица</translation></message>
<message><source>black cat</source><translation>черная кошка</translation></message>
<message><source>black circle</source><translation>черный круг</translation></message>
<message><source>black flag</source><translation>черный флаг</translation></message>
<message><source>black heart</source><translation>черное сердце</translation></message>
<message><source>black large square</source><translation>большой черный квадрат</translation></message>
<message><source>black medium square</source><translation>черный квадрат</translation></message>
<message><source>black medium-small square</source><translation>небольшой черный квадрат</translation></message>
<message><source>black nib</source><translation>перьевой наконечник</translation></message>
<message><source>black small square</source><translation>черный квадратик</translation></message>
<message><source>black square button</source><translation>кнопка с черной рамкой</translation></message>
<message><source>blind</source><translation>слепой</translation></message>
<message><source>blood</source><translation>кровь</translation></message>
<message><source>blossom</source><translation>цветок</translation></message>
<message><source>blowfish</source><translation>рыба-еж</translation></message>
<message><source>blu-ray</source><translation>формат</translation></message>
<message><source>blue book</source><translation>синяя книга</translation></message>
<message><source>blue circle</source><translation>голубой круг</translation></message>
<message><source>blue heart</source><translation>синее сердце</translation></message>
<message><source>blue square</source><translation>синий квадрат</translation></message>
<message><source>blueberries</source><translation>голубика</translation></message>
<message><source>boar</source><translation>кабан</translation></message>
<message><source>boat</source><translation>лодка</translation></message>
<message><source>bodybuilder</source><translation>атлет</translation></message>
<message><source>bomb</source><translation>бомба</translation></message>
<message><source>bone</source><translation>кость</translation></message>
<message><source>book</source><translation>книжка</translation></message>
<message><source>bookmark</source><translation>закладка</translation></message>
<message><source>bookmark tabs</source><translation>стикеры-закладки</translation></message>
<message><source>books</source><translation>книги</translation></message>
<message><source>boomerang</source><translation>бумеранг</translation></message>
<message><source>bored</source><translation>скучно</translation></message>
<message><source>bottle with popping cork</source><translation>шампанское</translation></message>
<message><source>bouquet</source><translation>букет</translation></message>
<message><source>bow and arrow</source><translation>лук со стрелой</translation></message>
<message><source>bowl with spoon</source><translation>миска с ложкой</translation></message>
<message><source>bowling</source><translation>боулинг</translation></message>
<message><source>boxing glove</source><translation>боксерская перчатка</translation></message>
<message><source>boy</source><translation>мальчик</translation></message>
<message><source>brain</source><translation>мозг</translation></message>
<message><source>bread</source><translation>хлеб</translation></message>
<message><source>breakfast</source><translation>завтрак</translation></message>
<message><source>breast-feeding</source><translation>кормление грудью</translation></message>
<message><source>brick</source><translation>кирпичи</translation></message>
<message><source>bridge at night</source><translation>мост ночью</translation></message>
<message><source>briefcase</source><translation>портфель</translation></message>
<message><source>briefs</source><translation>плавки</translation></message>
<message><source>bright button</source><translation>высокая яркость</translation></message>
<message><source>brightness</source><translation>яркость</translation></message>
<message><source>bro</source><translation>взрослый</translation></message>
<message><source>broccoli</source><translation>брокколи</translation></message>
<message><source>broken chain</source><translation>разорванная цепь</translation></message>
<message><source>broken heart</source><translation>разбитое сердце</translation></message>
<message><source>broom</source><translation>метла</translation></message>
<message><source>brown circle</source><translation>коричневый круг</translation></message>
<message><source>brown heart</source><translation>коричневое сердце</translation></message>
<message><source>brown mushroom</source><translation>бурый гриб</translation></message>
<message><source>brown square</source><translation>коричневый квадрат</translation></message>
<message><source>bubble tea</source><translation>чай с шариками</translation></message>
<message><source>bubbles</source><translation>пузыри</translation></message>
<message><source>bucket</source><translation>ведро</translation></message>
<message><source>buffalo</source><translation>буйвол</translation></message>
<message><source>bug</source><translation>гусеница</translation></message>
<message><source>building</source><translation>здание</translation></message>
<message><source>building construction</source><translation>стройка</translation></message>
<message><source>bullet train</source><translation>поезд-пуля</translation></message>
<message><source>bullseye</source><translation>мишень</translation></message>
<message><source>bunny</source><translation>кролик</translation></message>
<message><source>burrito</source><translation>буррито</translation></message>
<message><source>bus</source><translation>автобус</translation></message>
<message><source>bus stop</source><translation>автобусная остановка</translation></message>
<message><source>bust in silhouette</source><translation>силуэт человека</translation></message>
<message><source>busts in silhouette</source><translation>два силуэта</translation></message>
<message><source>butter</source><translation>масло</translation></message>
<message><source>butterfly</source><translation>бабочка</translation></message>
<message><source>button</source><translation>кнопка</translation></message>
<message><source>cabbage</source><translation>капуста</translation></message>
<message><source>cactus</source><translation>кактус</translation></message>
<message><source>calendar</source><translation>календарь</translation></message>
<message><source>call me hand</source><translation>жест «позвони мне»</translation></message>
<message><source>camel</source><translation>одногорбый верблюд</translation></message>
<message><source>camera</source><translation>фотоаппарат</translation></message>
<message><source>camera with flash</source><translation>фотоаппарат со вспышкой</translation></message>
<message><source>camping</source><translation>кемпинг</translation></message>
<message><source>cancel</source><translation>отмена</translation></message>
<message><source>candle</source><translation>свеча</translation></message>
<message><source>candy</source><translation>конфета</translation></message>
<message><source>cane</source><translation>трость</translation></message>
<message><source>canned food</source><translation>консервы</translation></message>
<message><source>canoe</source><translation>каноэ</translation></message>
<message><source>card</source><translation>карты</translation></message>
<message><source>card file box</source><translation>картотека</translation></message>
<message><source>card index</source><translation>органайзер</translation></message>
<message><source>card index dividers</source><translation>маркированные папки</translation></message>
<message><source>carousel horse</source><translation>лошадь на карусели</translation></message>
<message><source>carp streamer</source><translation>вымпелы в виде карпов</translation></message>
<message><source>carpentry saw</source><translation>пила по дереву</translation></message>
<message><source>carrot</source><translation>морковь</translation></message>
<message><source>castle</source><translation>замок</translation></message>
<message><source>cat</source><translation>кошка</translation></message>
<message><source>cat face</source><translation>морда кошки</translation></message>
<message><source>cat with tears of joy</source><translation>смеющийся до слез кот</translation></message>
<message><source>cat with wry smile</source><translation>ухмыляющийся кот</translation></message>
<message><source>celebration</source><translation>праздник</translation></message>
<message><source>chains</source><translation>цепь</translation></message>
<message><source>chair</source><translation>стул</translation></message>
<message><source>chapel</source><translation>собор</translation></message>
<message><source>chart decreasing</source><translation>диаграмма падения</translation></message>
<message><source>chart increasing</source><translation>диаграмма роста</translation></message>
<message><source>chart increasing with yen</source><translation>биржа</translation></message>
<message><source>check box with check</source><translation>галочка в квадрате</translation></message>
<message><source>check mark</source><translation>галочка</translation></message>
<message><source>check mark button</source><translation>белая галочка</translation></message>
<message><source>checked</source><translation>галочка</translation></message>
<message><source>cheese</source><translation>сыр</translation></message>
<message><source>cheese wedge</source><translation>сыр</translation></message>
<message><source>chemist</source><translation>химик</translation></message>
<message><source>chequered flag</source><translation>клетчатый флаг</translation></message>
<message><source>cherries</source><translation>вишня</translation></message>
<message><source>cherry blossom</source><translation>цветок вишни</translation></message>
<message><source>chess pawn</source><translation>пешка</translation></message>
<message><source>chestnut</source><translation>каштан</translation></message>
<message><source>chick</source><translation>цыпленок</translation></message>
<message><source>chicken</source><translation>курица</translation></message>
<message><source>child</source><translation>ребенок</translation></message>
<message><source>children crossing</source><translation>знак «дети»</translation></message>
<message><source>chipmunk</source><translation>бурундук</translation></message>
<message><source>chocolate bar</source><translation>шоколад</translation></message>
<message><source>chopsticks</source><translation>палочки для еды</translation></message>
<message><source>christmas</source><translation>новый год</translation></message>
<message><source>church</source><translation>церковь</translation></message>
<message><source>cigarette</source><translation>сигарета</translation></message>
<message><source>cinema</source><translation>видеозапись</translation></message>
<message><source>circle</source><translation>круг</translation></message>
<message><source>circled M</source><translation>буква «м» в кружке</translation></message>
<message><source>circus tent</source><translation>цирковой шатер</translation></message>
<message><source>cityscape</source><translation>вид на город</translation></message>
<message><source>cityscape at dusk</source><translation>закат в городе</translation></message>
<message><source>clamp</source><translation>компрессор</translation></message>
<message><source>clapper board</source><translation>хлопушка-нумератор</translation></message>
<message><source>clapping hands</source><translation>аплодисменты</translation></message>
<message><source>classical building</source><translation>античное здание</translation></message>
<message><source>clinking beer mugs</source><translation>чокающиеся кружки</translation></message>
<message><source>clinking glasses</source><translation>чокающиеся бокалы</translation></message>
<message><source>clipboard</source><translation>планшет с зажимом</translation></message>
<message><source>clock</source><translation>час</translation></message>
<message><source>clockwise vertical arrows</source><translation>по часовой стрелке</translation></message>
<message><source>closed book</source><translation>закрытая книга</translation></message>
<message><source>closed mailbox with lowered flag</source><translation>закрытый почтовый ящик с опущенным флажком</translation></message>
<message><source>closed mailbox with raised flag</source><translation>закрытый почтовый ящик с поднятым флажком</translation></message>
<message><source>closed umbrella</source><translation>закрытый зонт</translation></message>
<message><source>cloud</source><translation>облако</translation></message>
<message><source>cloud with lightning</source><translation>молния</translation></message>
<message><source>cloud with lightning and rain</source><translation>гроза</translation></message>
<message><source>cloud with rain</source><translation>дождь</translation></message>
<message><source>cloud with snow</source><translation>снег</translation></message>
<message><source>clown face</source><translation>клоун</translation></message>
<message><source>club suit</source><translation>трефы</translation></message>
<message><source>clutch bag</source><translation>клатч</translation></message>
<message><source>coat</source><translation>пальто</translation></message>
<message><source>cockroach</source><translation>таракан</translation></message>
<message><source>cocktail glass</source><translation>коктейль</translation></message>
<message><source>coconut</source><translation>кокос</translation></message>
<message><source>coffin</source><translation>гроб</translation></message>
<message><source>coin</source><translation>монета</translation></message>
<message><source>cold face</source><translation>мерзнет</translation></message>
<message><source>collision</source><translation>взрыв</translation></message>
<message><source>comet</source><translation>комета</translation></message>
<message><source>compass</source><translation>компас</translation></message>
<message><source>computer</source><translation>компьютер</translation></message>
<message><source>computer disk</source><translation>диск</translation></message>
<message><source>computer mouse</source><translation>мышка</translation></message>
<message><source>confetti ball</source><translation>конфетти</translation></message>
<message><source>confounded face</source><translation>в растерянности</translation></message>
<message><source>confused</source><translation>непонятно</translation></message>
<message><source>confused face</source><translation>в замешательстве</translation></message>
<message><source>construction</source><translation>строительные работы</translation></message>
<message><source>construction worker</source><translation>строитель</translation></message>
<message><source>control knobs</source><translation>регуляторы</translation></message>
<message><source>convenience store</source><translation>круглосуточный магазин</translation></message>
<message><source>cook</source><translation>повар</translation></message>
<message><source>cooked rice</source><translation>рис</translation></message>
<message><source>cookie</source><translation>печенье</translation></message>
<message><source>cooking</source><translation>яичница на сковороде</translation></message>
<message><source>copyright</source><translation>значок защиты авторского права</translation></message>
<message><source>coral</source><translation>коралл</translation></message>
<message><source>corn</source><translation>кукуруза</translation></message>
<message><source>cosmetics</source><translation>косметика</translation></message>
<message><source>couch and lamp</source><translation>диван и торшер</translation></message>
<message><source>counterclockwise arrows button</source><translation>против часовой стрелки</translation></message>
<message><source>couple</source><translation>пара</translation></message>
<message><source>couple with heart</source><translation>влюбленная пара</translation></message>
<message><source>couple with heart: man, man</source><translation>влюбленная пара: мужчина мужчина</translation></message>
<message><source>couple with heart: woman, man</source><translation>влюбленная пара: женщина мужчина</translation></message>
<message><source>couple with heart: woman, woman</source><translation>влюбленная пара: женщина женщина</translation></message>
<message><source>cow</source><translation>корова</translation></message>
<message><source>cow face</source><translation>морда коровы</translation></message>
<message><source>cowboy hat face</source><translation>в ковбойской шляпе</translation></message>
<message><source>crab</source><translation>краб</translation></message>
<message><source>crayon</source><translation>восковой мелок</translation></message>
<message><source>credit card</source><translation>кредитная карта</translation></message>
<message><source>crescent moon</source><translation>полумесяц</translation></message>
<message><source>cricket</source><translation>сверчок</translation></message>
<message><source>cricket game</source><translation>крикет</translation></message>
<message><source>crocodile</source><translation>крокодил</translation></message>
<message><source>croissant</source><translation>круассан</translation></message>
<message><source>cross mark</source><translation>крестик</translation></message>
<message><source>cross mark button</source><translation>кнопка «крестик»</translation></message>
<message><source>crossed</source><translation>скрещенные</translation></message>
<message><source>crossed fingers</source><translation>скрещенные пальцы</translation></message>
<message><source>crossed flags</source><translation>скрещенные флаги</translation></message>
<message><source>crossed swords</source><translation>скрещенные мечи</translation></message>
<message><source>crown</source><translation>корона</translation></message>
<message><source>crutch</source><translation>костыль</translation></message>
<message><source>cry</source><translation>слезы</translation></message>
<message><source>crying</source><translation>плач</translation></message>
<message><source>crying cat</source><translation>плачущий кот</translation></message>
<message><source>crying face</source><translation>плачет</translation></message>
<message><source>crystal ball</source><translation>хрустальный шар</translation></message>
<message><source>cucumber</source><translation>огурец</translation></message>
<message><source>cup with straw</source><translation>стакан с соломинкой</translation></message>
<message><source>cupcake</source><translation>капкейк</translation></message>
<message><source>cupid</source><translation>купидон</translation></message>
<message><source>curling stone</source><translation>керлинг</translation></message>
<message><source>curly loop</source><translation>петля</translation></message>
<message><source>currency</source><translation>валюта</translation></message>
<message><source>currency exchange</source><translation>обмен валюты</translation></message>
<message><source>curry rice</source><translation>рис с карри</translation></message>
<message><source>curving</source><translation>поворот</translation></message>
<message><source>custard</source><translation>пудинг</translation></message>
<message><source>customs</source><translation>таможня</translation></message>
<message><source>cut of meat</source><translation>кусок мяса</translation></message>
<message><source>cyclone</source><translation>циклон</translation></message>
<message><source>dagger</source><translation>кинжал</translation></message>
<message><source>dance</source><translation>танцы</translation></message>
<message><source>dango</source><translation>данго</translation></message>
<message><source>dark skin tone</source><translation>очень темный тон кожи</translation></message>
<message><source>dashing away</source><translation>исчезновение</translation></message>
<message><source>data</source><translation>диаграмма</translation></message>
<message><source>deaf man</source><translation>глухой мужчина</translation></message>
<message><source>deaf person</source><translation>глухой человек</translation></message>
<message><source>deaf woman</source><translation>глухая женщина</translation></message>
<message><source>death</source><translation>смерть</translation></message>
<message><source>deciduous tree</source><translation>дерево</translation></message>
<message><source>deer</source><translation>олень</translation></message>
<message><source>delivery truck</source><translation>грузовик</translation></message>
<message><source>department store</source><translation>универмаг</translation></message>
<message><source>derelict house</source><translation>заброшенный дом</translation></message>
<message><source>desert</source><translation>пустыня</translation></message>
<message><source>desert island</source><translation>остров</translation></message>
<message><source>desktop computer</source><translation>компьютер</translation></message>
<message><source>dessert</source><translation>десерт</translation></message>
<message><source>detective</source><translation>детектив</translation></message>
<message><source>diamond</source><translation>ромб</translation></message>
<message><source>diamond suit</source><translation>бубны</translation></message>
<message><source>diamond with a dot</source><translation>ромб с точкой</translation></message>
<message><source>dim button</source><translation>низкая яркость</translation></message>
<message><source>dinosaur</source><translation>динозавр</translation></message>
<message><source>direction</source><translation>направление</translation></message>
<message><source>disappointed</source><translation>разочарован</translation></message>
<message><source>disappointed face</source><translation>разочарование</translation></message>
<message><source>disguised face</source><translation>маскировка</translation></message>
<message><source>disk</source><translation>диск</translation></message>
<message><source>divide</source><translation>знак деления</translation></message>
<message><source>diving mask</source><translation>маска с трубкой</translation></message>
<message><source>diya lamp</source><translation>масляная лампа</translation></message>
<message><source>dizzy</source><translation>кружащаяся звезда</translation></message>
<message><source>dna</source><translation>ДНК</translation></message>
<message><source>dodo</source><translation>дронт</translation></message>
<message><source>dog</source><translation>собака</translation></message>
<message><source>dog face</source><translation>морда собаки</translation></message>
<message><source>dollar</source><translation>доллар</translation></message>
<message><source>dollar banknote</source><translation>банкнота доллара</translation></message>
<message><source>dolphin</source><translation>дельфин</translation></message>
<message><source>done</source><translation>готово</translation></message>
<message><source>donkey</source><translation>осел</translation></message>
<message><source>door</source><translation>дверь</translation></message>
<message><source>dotted line face</source><translation>лицо пунктиром</translation></message>
<message><source>dotted six-pointed star</source><translation>шестиконечная звезда</translation></message>
<message><source>double curly loop</source><translation>двойная петля</translation></message>
<message><source>double exclamation mark</source><translation>два восклицательных знака</translation></message>
<message><source>doughnut</source><translation>пончик</translation></message>
<message><source>dove</source><translation>голубь</translation></message>
<message><source>down</source><translation>вниз</translation></message>
<message><source>down arrow</source><translation>стрелка вниз</translation></message>
<message><source>down-left arrow</source><translation>стрелка влево-вниз</translation></message>
<message><source>down-right arrow</source><translation>стрелка вправо-вниз</translation></message>
<message><source>downcast face with sweat</source><translation>в холодном поту</translation></message>
<message><source>downwards button</source><translation>треугольник острием вниз</translation></message>
<message><source>dragon</source><translation>дракон</translation></message>
<message><source>dragon face</source><translation>голова дракона</translation></message>
<message><source>dress</source><translation>платье</translation></message>
<message><source>drink</source><translation>напиток</translation></message>
<message><source>drive</source><translation>газель</translation></message>
<message><source>drooling face</source><translation>пускает слюни</translation></message>
<message><source>drop</source><translation>капля</translation></message>
<message><source>drop of blood</source><translation>капля крови</translation></message>
<message><source>droplet</source><translation>капля</translation></message>
<message><source>drum</source><translation>барабан</translation></message>
<message><source>duck</source><translation>утка</translation></message>
<message><source>dumpling</source><translation>вареник</translation></message>
<message><source>dvd</source><translation>DVD</translation></message>
<message><source>e-mail</source><translation>электронная почта</translation></message>
<message><source>eagle</source><translation>орел</translation></message>
<message><source>ear</source><translation>ухо</translation></message>
<message><source>ear of corn</source><translation>кукурузный початок</translation></message>
<message><source>ear with hearing aid</source><translation>ухо со слуховым аппаратом</translation></message>
<message><source>eat</source><translation>прибор</translation></message>
<message><source>education</source><translation>книга</translation></message>
<message><source>egg</source><translation>яйцо</translation></message>
<message><source>eggplant</source><translation>баклажан</translation></message>
<message><source>eight o’clock</source><translation>восемь часов</translation></message>
<message><source>eight-pointed star</source><translation>восьмиконечная звезда</translation></message>
<message><source>eight-spoked asterisk</source><translation>восьмиконечная звездочка</translation></message>
<message><source>eight-thirty</source><translation>полдевятого</translation></message>
<message><source>eject button</source><translation>выброс</translation></message>
<message><source>electric</source><translation>электричество</translation></message>
<message><source>electric plug</source><translation>вилка</translation></message>
<message><source>elegant</source><translation>красота</translation></message>
<message><source>elephant</source><translation>слон</translation></message>
<message><source>elevator</source><translation>лифт</translation></message>
<message><source>eleven o’clock</source><translation>одиннадцать часов</translation></message>
<message><source>eleven-thirty</source><translation>полдвенадцатого</translation></message>
<message><source>elf</source><translation>эльф</translation></message>
<message><source>email</source><translation>конверт</translation></message>
<message><source>empty nest</source><translation>пустое гнездо</translation></message>
<message><source>enraged face</source><translation>злится</translation></message>
<message><source>envelope</source><translation>конверт</translation></message>
<message><source>envelope with arrow</source><translation>исходящее письмо</translation></message>
<message><source>euro</source><translation>евро</translation></message>
<message><source>euro banknote</source><translation>банкнота евро</translation></message>
<message><source>evergreen tree</source><translation>елка</translation></message>
<message><source>evil</source><translation>зло</translation></message>
<message><source>ewe</source><translation>овца</translation></message>
<message><source>exclamation</source><translation>восклицание</translation></message>
<message><source>exclamation question mark</source><translation>восклицательный и вопросительный знаки</translation></message>
<message><source>exploding head</source><translation>взрыв мозга</translation></message>
<message><source>expressionless face</source><translation>без эмоций</translation></message>
<message><source>eye</source><translation>глаз</translation></message>
<message><source>eye in speech bubble</source><translation>значок свидетеля</translation></message>
<message><source>eyes</source><translation>глаза</translation></message>
<message><source>face blowing a kiss</source><translation>воздушный поцелуй</translation></message>
<message><source>face exhaling</source><translation>выдыхает</translation></message>
<message><source>face holding back tears</source><translation>еле сдерживает слезы</translation></message>
<message><source>face in clouds</source><translation>лицо в облаках</translation></message>
<message><source>face savoring food</source><translation>вкусно</translation></message>
<message><source>face screaming in fear</source><translation>в ужасе</translation></message>
<message><source>face vomiting</source><translation>рвота</translation></message>
<message><source>face with bags under eyes</source><translation>лицо с мешками под глазами</translation></message>
<message><source>face with crossed-out eyes</source><translation>головокружение</translation></message>
<message><source>face with diagonal mouth</source><translation>с перекошенным ртом</translation></message>
<message><source>face with hand over mouth</source><translation>прикрывает рот рукой</translation></message>
<message><source>face with head-bandage</source><translation>с перевязанной головой</translation></message>
<message><source>face with medical mask</source><translation>в медицинской маске</translation></message>
<message><source>face with monocle</source><translation>с моноклем</translation></message>
<message><source>face with open eyes and hand over mouth</source><translation>прикрывает рот рукой с открытыми глазами</translation></message>
<message><source>face with open mouth</source><translation>удивление</translation></message>
<message><source>face with peeking eye</source><translation>подсматривает</translation></message>
<message><source>face with raised eyebrow</source><translation>не верит</translation></message>
<message><source>face with rolling eyes</source><translation>закатывает глаза</translation></message>
<message><source>face with spiral eyes</source><translation>ошеломление</translation></message>
<message><source>face with steam from nose</source><translation>в ожидании успеха</translation></message>
<message><source>face with symbols on mouth</source><translation>цензура</translation></message>
<message><source>face with tears of joy</source><translation>смеется до слез</translation></message>
<message><source>face with thermometer</source><translation>с градусником во рту</translation></message>
<message><source>face with tongue</source><translation>показывает язык</translation></message>
<message><source>face without mouth</source><translation>лицо без рта</translation></message>
<message><source>factory</source><translation>завод</translation></message>
<message><source>factory worker</source><translation>рабочий</translation></message>
<message><source>fairy</source><translation>фея</translation></message>
<message><source>falafel</source><translation>фалафель</translation></message>
<message><source>fallen leaf</source><translation>падающие листья</translation></message>
<message><source>family</source><translation>семья</translation></message>
<message><source>family: adult, adult, child</source><translation>семья: двое взрослых и ребенок</translation></message>
<message><source>family: adult, adult, child, child</source><translation>семья: двое взрослых и двое детей</translation></message>
<message><source>family: adult, child</source><translation>семья: взрослый и ребенок</translation></message>
<message><source>family: adult, child, child</source><translation>семья: взрослый и двое детей</translation></message>
<message><source>family: man, boy</source><translation>семья: мужчина мальчик</translation></message>
<message><source>family: man, boy, boy</source><translation>семья: мужчина мальчик мальчик</translation></message>
<message><source>family: man, girl</source><translation>семья: мужчина девочка</translation></message>
<message><source>family: man, girl, boy</source><translation>семья: мужчина девочка мальчик</translation></message>
<message><source>family: man, girl, girl</source><translation>семья: мужчина девочка девочка</translation></message>
<message><source>family: man, man, boy</source><translation>семья: мужчина мужчина мальчик</translation></message>
<message><source>family: man, man, boy, boy</source><translation>семья: мужчина мужчина мальчик мальчик</translation></message>
<message><source>family: man, man, girl</source><translation>семья: мужчина мужчина девочка</translation></message>
<message><source>family: man, man, girl, boy</source><translation>семья: мужчина мужчина девочка мальчик</translation></message>
<message><source>family: man, man, girl, girl</source><translation>семья: мужчина мужчина девочка девочка</translation></message>
<message><source>family: man, woman, boy</source><translation>семья: мужчина женщина мальчик</translation></message>
<message><source>family: man, woman, boy, boy</source><translation>семья: мужчина женщина мальчик мальчик</translation></message>
<message><source>family: man, woman, girl</source><translation>семья: мужчина женщина девочка</translation></message>
<message><source>family: man, woman, girl, boy</source><translation>семья: мужчина женщина девочка мальчик</translation></message>
<message><source>family: man, woman, girl, girl</source><translation>семья: мужчина женщина девочка девочка</translation></message>
<message><source>family: woman, boy</source><translation>семья: женщина мальчик</translation></message>
<message><source>family: woman, boy, boy</source><translation>семья: женщина мальчик мальчик</translation></message>
<message><source>family: woman, girl</source><translation>семья: женщина девочка</translation></message>
<message><source>family: woman, girl, boy</source><translation>семья: женщина девочка мальчик</translation></message>
<message><source>family: woman, girl, girl</source><translation>семья: женщина девочка девочка</translation></message>
<message><source>family: woman, woman, boy</source><translation>семья: женщина женщина мальчик</translation></message>
<message><source>family: woman, woman, boy, boy</source><translation>семья: женщина женщина мальчик мальчик</translation></message>
<message><source>family: woman, woman, girl</source><translation>семья: женщина женщина девочка</translation></message>
<message><source>family: woman, woman, girl, boy</source><translation>семья: женщина женщина девочка мальчик</translation></message>
<message><source>family: woman, woman, girl, girl</source><translation>семья: женщина женщина девочка девочка</translation></message>
<message><source>farmer</source><translation>фермер</translation></message>
<message><source>fast down button</source><translation>два треугольника острием вниз</translation></message>
<message><source>fast reverse button</source><translation>перемотка назад</translation></message>
<message><source>fast up button</source><translation>два треугольника острием вверх</translation></message>
<message><source>fast-forward button</source><translation>перемотка вперед</translation></message>
<message><source>fax machine</source><translation>факс</translation></message>
<message><source>fearful face</source><translation>боится</translation></message>
<message><source>feather</source><translation>перо</translation></message>
<message><source>female sign</source><translation>женский символ</translation></message>
<message><source>ferris wheel</source><translation>колесо обозрения</translation></message>
<message><source>ferry</source><translation>паром</translation></message>
<message><source>festival</source><translation>фестиваль</translation></message>
<message><source>field hockey</source><translation>хоккей на траве</translation></message>
<message><source>file cabinet</source><translation>архивный шкаф</translation></message>
<message><source>file folder</source><translation>папка</translation></message>
<message><source>film frames</source><translation>кинопленка</translation></message>
<message><source>film projector</source><translation>кинопроектор</translation></message>
<message><source>finger</source><translation>палец</translation></message>
<message><source>fingerprint</source><translation>отпечаток пальца</translation></message>
<message><source>fire</source><translation>огонь</translation></message>
<message><source>fire engine</source><translation>пожарная машина</translation></message>
<message><source>fire extinguisher</source><translation>огнетушитель</translation></message>
<message><source>firecracker</source><translation>динамитная шашка</translation></message>
<message><source>firefighter</source><translation>пожарный</translation></message>
<message><source>fireworks</source><translation>фейерверк</translation></message>
<message><source>first quarter moon</source><translation>луна в первой четверти</translation></message>
<message><source>first quarter moon face</source><translation>луна в первой четверти с лицом</translation></message>
<message><source>fish</source><translation>рыба</translation></message>
<message><source>fish cake with swirl</source><translation>камабоко</translation></message>
<message><source>fishing</source><translation>рыбалка</translation></message>
<message><source>fishing pole</source><translation>удочка с рыбой</translation></message>
<message><source>fist</source><translation>кулак</translation></message>
<message><source>five</source><translation>пять</translation></message>
<message><source>five o’clock</source><translation>пять часов</translation></message>
<message><source>five-thirty</source><translation>полшестого</translation></message>
<message><source>flag</source><translation>флаг</translation></message>
<message><source>flag in hole</source><translation>гольф</translation></message>
<message><source>flag: Afghanistan</source><translation>флаг: Афганистан</translation></message>
<message><source>flag: Albania</source><translation>флаг: Албания</translation></message>
<message><source>flag: Algeria</source><translation>флаг: Алжир</translation></message>
<message><source>flag: American Samoa</source><translation>флаг: Американское Самоа</translation></message>
<message><source>flag: Andorra</source><translation>флаг: Андорра</translation></message>
<message><source>flag: Angola</source><translation>флаг: Ангола</translation></message>
<message><source>flag: Anguilla</source><translation>флаг: Ангилья</translation></message>
<message><source>flag: Antarctica</source><translation>флаг: Антарктида</translation></message>
<message><source>flag: Antigua &amp; Barbuda</source><translation>флаг: Антигуа и Барбуда</translation></message>
<message><source>flag: Argentina</source><translation>флаг: Аргентина</translation></message>
<message><source>flag: Armenia</source><translation>флаг: Армения</translation></message>
<message><source>flag: Aruba</source><translation>флаг: Аруба</translation></message>
<message><source>flag: Ascension Island</source><translation>флаг: о-в Вознесения</translation></message>
<message><source>flag: Australia</source><translation>флаг: Австралия</translation></message>
<message><source>flag: Austria</source><translation>флаг: Австрия</translation></message>
<message><source>flag: Azerbaijan</source><translation>флаг: Азербайджан</translation></message>
<message><source>flag: Bahamas</source><translation>флаг: Багамы</translation></message>
<message><source>flag: Bahrain</source><translation>флаг: Бахрейн</translation></message>
<message><source>flag: Bangladesh</source><translation>флаг: Бангладеш</translation></message>
<message><source>flag: Barbados</source><translation>флаг: Барбадос</translation></message>
<message><source>flag: Belarus</source><translation>флаг: Беларусь</translation></message>
<message><source>flag: Belgium</source><translation>флаг: Бельгия</translation></message>
<message><source>flag: Belize</source><translation>флаг: Белиз</translation></message>
<message><source>flag: Benin</source><translation>флаг: Бенин</translation></message>
<message><source>flag: Bermuda</source><translation>флаг: Бермудские о-ва</translation></message>
<message><source>flag: Bhutan</source><translation>флаг: Бутан</translation></message>
<message><source>flag: Bolivia</source><translation>флаг: Боливия</translation></message>
<message><source>flag: Bosnia &amp; Herzegovina</source><translation>флаг: Босния и Герцеговина</translation></message>
<message><source>flag: Botswana</source><translation>флаг: Ботсвана</translation></message>
<message><source>flag: Bouvet Island</source><translation>флаг: о-в Буве</translation></message>
<message><source>flag: Brazil</source><translation>флаг: Бразилия</translation></message>
<message><source>flag: British Indian Ocean Territory</source><translation>флаг: Британская территория в Индийском океане</translation></message>
<message><source>flag: British Virgin Islands</source><translation>флаг: Виргинские о-ва (Великобритания)</translation></message>
<message><source>flag: Brunei</source><translation>флаг: Бруней</translation></message>
<message><source>flag: Bulgaria</source><translation>флаг: Болгария</translation></message>
<message><source>flag: Burkina Faso</source><translation>флаг: Буркина-Фасо</translation></message>
<message><source>flag: Burundi</source><translation>флаг: Бурунди</translation></message>
<message><source>flag: Cambodia</source><translation>флаг: Камбоджа</translation></message>
<message><source>flag: Cameroon</source><translation>флаг: Камерун</translation></message>
<message><source>flag: Canada</source><translation>флаг: Канада</translation></message>
<message><source>flag: Canary Islands</source><translation>флаг: Канарские о-ва</translation></message>
<message><source>flag: Cape Verde</source><translation>флаг: Кабо-Верде</translation></message>
<message><source>flag: Caribbean Netherlands</source><translation>флаг: Бонэйр, Синт-Эстатиус и Саба</translation></message>
<message><source>flag: Cayman Islands</source><translation>флаг: о-ва Кайман</translation></message>
<message><source>flag: Central African Republic</source><translation>флаг: Центрально-Африканская Республика</translation></message>
<message><source>flag: Ceuta &amp; Melilla</source><translation>флаг: Сеута и Мелилья</translation></message>
<message><source>flag: Chad</source><translation>флаг: Чад</translation></message>
<message><source>flag: Chile</source><translation>флаг: Чили</translation></message>
<message><source>flag: China</source><translation>флаг: Китай</translation></message>
<message><source>flag: Christmas Island</source><translation>флаг: о-в Рождества</translation></message>
<message><source>flag: Clipperton Island</source><translation>флаг: о-в Клиппертон</translation></message>
<message><source>flag: Cocos (Keeling) Islands</source><translation>флаг: Кокосовые о-ва</translation></message>
<message><source>flag: Colombia</source><translation>флаг: Колумбия</translation></message>
<message><source>flag: Comoros</source><translation>флаг: Коморы</translation></message>
<message><source>flag: Congo - Brazzaville</source><translation>флаг: Конго - Браззавиль</translation></message>
<message><source>flag: Congo - Kinshasa</source><translation>флаг: Конго - Киншаса</translation></message>
<message><source>flag: Cook Islands</source><translation>флаг: о-ва Кука</translation></message>
<message><source>flag: Costa Rica</source><translation>флаг: Коста-Рика</translation></message>
<message><source>flag: Croatia</source><translation>флаг: Хорватия</translation></message>
<message><source>flag: Cuba</source><translation>флаг: Куба</translation></message>
<message><source>flag: Curaçao</source><translation>флаг: Кюрасао</translation></message>
<message><source>flag: Cyprus</source><translation>флаг: Кипр</translation></message>
<message><source>flag: Czechia</source><translation>флаг: Чехия</translation></message>
<message><source>flag: Côte d’Ivoire</source><translation>флаг: Кот-д’Ивуар</translation></message>
<message><source>flag: Denmark</source><translation>флаг: Дания</translation></message>
<message><source>flag: Diego Garcia</source><translation>флаг: Диего-Гарсия</translation></message>
<message><source>flag: Djibouti</source><translation>флаг: Джибути</translation></message>
<message><source>flag: Dominica</source><translation>флаг: Доминика</translation></message>
<message><source>flag: Dominican Republic</source><translation>флаг: Доминиканская Республика</translation></message>
<message><source>flag: Ecuador</source><translation>флаг: Эквадор</translation></message>
<message><source>flag: Egypt</source><translation>флаг: Египет</translation></message>
<message><source>flag: El Salvador</source><translation>флаг: Сальвадор</translation></message>
<message><source>flag: England</source><translation>флаг: Англия</translation></message>
<message><source>flag: Equatorial Guinea</source><translation>флаг: Экваториальная Гвинея</translation></message>
<message><source>flag: Eritrea</source><translation>флаг: Эритрея</translation></message>
<message><source>flag: Estonia</source><translation>флаг: Эстония</translation></message>
<message><source>flag: Eswatini</source><translation>флаг: Эсватини</translation></message>
<message><source>flag: Ethiopia</source><translation>флаг: Эфиопия</translation></message>
<message><source>flag: European Union</source><translation>флаг: Европейский союз</translation></message>
<message><source>flag: Falkland Islands</source><translation>флаг: Фолклендские о-ва</translation></message>
<message><source>flag: Faroe Islands</source><translation>флаг: Фарерские о-ва</translation></message>
<message><source>flag: Fiji</source><translation>флаг: Фиджи</translation></message>
<message><source>flag: Finland</source><translation>флаг: Финляндия</translation></message>
<message><source>flag: France</source><translation>флаг: Франция</translation></message>
<message><source>flag: French Guiana</source><translation>флаг: Французская Гвиана</translation></message>
<message><source>flag: French Polynesia</source><translation>флаг: Французская Полинезия</translation></message>
<message><source>flag: French Southern Territories</source><translation>флаг: Французские Южные территории</translation></message>
<message><source>flag: Gabon</source><translation>флаг: Габон</translation></message>
<message><source>flag: Gambia</source><translation>флаг: Гамбия</translation></message>
<message><source>flag: Georgia</source><translation>флаг: Грузия</translation></message>
<message><source>flag: Germany</source><translation>флаг: Германия</translation></message>
<message><source>flag: Ghana</source><translation>флаг: Гана</translation></message>
<message><source>flag: Gibraltar</source><translation>флаг: Гибралтар</translation></message>
<message><source>flag: Greece</source><translation>флаг: Греция</translation></message>
<message><source>flag: Greenland</source><translation>флаг: Гренландия</translation></message>
<message><source>flag: Grenada</source><translation>флаг: Гренада</translation></message>
<message><source>flag: Guadeloupe</source><translation>флаг: Гваделупа</translation></message>
<message><source>flag: Guam</source><translation>флаг: Гуам</translation></message>
<message><source>flag: Guatemala</source><translation>флаг: Гватемала</translation></message>
<message><source>flag: Guernsey</source><translation>флаг: Гернси</translation></message>
<message><source>flag: Guinea</source><translation>флаг: Гвинея</translation></message>
<message><source>flag: Guinea-Bissau</source><translation>флаг: Гвинея-Бисау</translation></message>
<message><source>flag: Guyana</source><translation>флаг: Гайана</translation></message>
<message><source>flag: Haiti</source><translation>флаг: Гаити</translation></message>
<message><source>flag: Heard &amp; McDonald Islands</source><translation>флаг: о-ва Херд и Макдональд</translation></message>
<message><source>flag: Honduras</source><translation>флаг: Гондурас</translation></message>
<message><source>flag: Hong Kong SAR China</source><translation>флаг: Гонконг (САР)</translation></message>
<message><source>flag: Hungary</source><translation>флаг: Венгрия</translation></message>
<message><source>flag: Iceland</source><translation>флаг: Исландия</translation></message>
<message><source>flag: India</source><translation>флаг: Индия</translation></message>
<message><source>flag: Indonesia</source><translation>флаг: Индонезия</translation></message>
<message><source>flag: Iran</source><translation>флаг: Иран</translation></message>
<message><source>flag: Iraq</source><translation>флаг: Ирак</translation></message>
<message><source>flag: Ireland</source><translation>флаг: Ирландия</translation></message>
<message><source>flag: Isle of Man</source><translation>флаг: о-в Мэн</translation></message>
<message><source>flag: Israel</source><translation>флаг: Израиль</translation></message>
<message><source>flag: Italy</source><translation>флаг: Италия</translation></message>
<message><source>flag: Jamaica</source><translation>флаг: Ямайка</translation></message>
<message><source>flag: Japan</source><translation>флаг: Япония</translation></message>
<message><source>flag: Jersey</source><translation>флаг: Джерси</translation></message>
<message><source>flag: Jordan</source><translation>флаг: Иордания</translation></message>
<message><source>flag: Kazakhstan</source><translation>флаг: Казахстан</translation></message>
<message><source>flag: Kenya</source><translation>флаг: Кения</translation></message>
<message><source>flag: Kiribati</source><translation>флаг: Кирибати</translation></message>
<message><source>flag: Kosovo</source><translation>флаг: Косово</translation></message>
<message><source>flag: Kuwait</source><translation>флаг: Кувейт</translation></message>
<message><source>flag: Kyrgyzstan</source><translation>флаг: Киргизия</translation></message>
<message><source>flag: Laos</source><translation>флаг: Лаос</translation></message>
<message><source>flag: Latvia</source><translation>флаг: Латвия</translation></message>
<message><source>flag: Lebanon</source><translation>флаг: Ливан</translation></message>
<message><source>flag: Lesotho</source><translation>флаг: Лесото</translation></message>
<message><source>flag: Liberia</source><translation>флаг: Либерия</translation></message>
<message><source>flag: Libya</source><translation>флаг: Ливия</translation></message>
<message><source>flag: Liechtenstein</source><translation>флаг: Лихтенштейн</translation></message>
<message><source>flag: Lithuania</source><translation>флаг: Литва</translation></message>
<message><source>flag: Luxembourg</source><translation>флаг: Люксембург</translation></message>
<message><source>flag: Macao SAR China</source><translation>флаг: Макао (САР)</translation></message>
<message><source>flag: Madagascar</source><translation>флаг: Мадагаскар</translation></message>
<message><source>flag: Malawi</source><translation>флаг: Малави</translation></message>
<message><source>flag: Malaysia</source><translation>флаг: Малайзия</translation></message>
<message><source>flag: Maldives</source><translation>флаг: Мальдивы</translation></message>
<message><source>flag: Mali</source><translation>флаг: Мали</translation></message>
<message><source>flag: Malta</source><translation>флаг: Мальта</translation></message>
<message><source>flag: Marshall Islands</source><translation>флаг: Маршалловы о-ва</translation></message>
<message><source>flag: Martinique</source><translation>флаг: Мартиника</translation></message>
<message><source>flag: Mauritania</source><translation>флаг: Мавритания</translation></message>
<message><source>flag: Mauritius</source><translation>флаг: Маврикий</translation></message>
<message><source>flag: Mayotte</source><translation>флаг: Майотта</translation></message>
<message><source>flag: Mexico</source><translation>флаг: Мексика</translation></message>
<message><source>flag: Micronesia</source><translation>флаг: Федеративные Штаты Микронезии</translation></message>
<message><source>flag: Moldova</source><translation>флаг: Молдова</translation></message>
<message><source>flag: Monaco</source><translation>флаг: Монако</translation></message>
<message><source>flag: Mongolia</source><translation>флаг: Монголия</translation></message>
<message><source>flag: Montenegro</source><translation>флаг: Черногория</translation></message>
<message><source>flag: Montserrat</source><translation>флаг: Монтсеррат</translation></message>
<message><source>flag: Morocco</source><translation>флаг: Марокко</translation></message>
<message><source>flag: Mozambique</source><translation>флаг: Мозамбик</translation></message>
<message><source>flag: Myanmar (Burma)</source><translation>флаг: Мьянма (Бирма)</translation></message>
<message><source>flag: Namibia</source><translation>флаг: Намибия</translation></message>
<message><source>flag: Nauru</source><translation>флаг: Науру</translation></message>
<message><source>flag: Nepal</source><translation>флаг: Непал</translation></message>
<message><source>flag: Netherlands</source><translation>флаг: Нидерланды</translation></message>
<message><source>flag: New Caledonia</source><translation>флаг: Новая Каледония</translation></message>
<message><source>flag: New Zealand</source><translation>флаг: Новая Зеландия</translation></message>
<message><source>flag: Nicaragua</source><translation>флаг: Никарагуа</translation></message>
<message><source>flag: Niger</source><translation>флаг: Нигер</translation></message>
<message><source>flag: Nigeria</source><translation>флаг: Нигерия</translation></message>
<message><source>flag: Niue</source><translation>флаг: Ниуэ</translation></message>
<message><source>flag: Norfolk Island</source><translation>флаг: о-в Норфолк</translation></message>
<message><source>flag: North Korea</source><translation>флаг: КНДР</translation></message>
<message><source>flag: North Macedonia</source><translation>флаг: Северная Македония</translation></message>
<message><source>flag: Northern Mariana Islands</source><translation>флаг: Северные Марианские о-ва</translation></message>
<message><source>flag: Norway</source><translation>флаг: Норвегия</translation></message>
<message><source>flag: Oman</source><translation>флаг: Оман</translation></message>
<message><source>flag: Pakistan</source><translation>флаг: Пакистан</translation></message>
<message><source>flag: Palau</source><translation>флаг: Палау</translation></message>
<message><source>flag: Palestinian Territories</source><translation>флаг: Палестинские территории</translation></message>
<message><source>flag: Panama</source><translation>флаг: Панама</translation></message>
<message><source>flag: Papua New Guinea</source><translation>флаг: Папуа — Новая Гвинея</translation></message>
<message><source>flag: Paraguay</source><translation>флаг: Парагвай</translation></message>
<message><source>flag: Peru</source><translation>флаг: Перу</translation></message>
<message><source>flag: Philippines</source><translation>флаг: Филиппины</translation></message>
<message><source>flag: Pitcairn Islands</source><translation>флаг: о-ва Питкэрн</translation></message>
<message><source>flag: Poland</source><translation>флаг: Польша</translation></message>
<message><source>flag: Portugal</source><translation>флаг: Португалия</translation></message>
<message><source>flag: Puerto Rico</source><translation>флаг: Пуэрто-Рико</translation></message>
<message><source>flag: Qatar</source><translation>флаг: Катар</translation></message>
<message><source>flag: Romania</source><translation>флаг: Румыния</translation></message>
<message><source>flag: Russia</source><translation>флаг: Россия</translation></message>
<message><source>flag: Rwanda</source><translation>флаг: Руанда</translation></message>
<message><source>flag: Réunion</source><translation>флаг: Реюньон</translation></message>
<message><source>flag: Samoa</source><translation>флаг: Самоа</translation></message>
<message><source>flag: San Marino</source><translation>флаг: Сан-Марино</translation></message>
<message><source>flag: Sark</source><translation>флаг: Сарк</translation></message>
<message><source>flag: Saudi Arabia</source><translation>флаг: Саудовская Аравия</translation></message>
<message><source>flag: Scotland</source><translation>флаг: Шотландия</translation></message>
<message><source>flag: Senegal</source><translation>флаг: Сенегал</translation></message>
<message><source>flag: Serbia</source><translation>флаг: Сербия</translation></message>
<message><source>flag: Seychelles</source><translation>флаг: Сейшельские о-ва</translation></message>
<message><source>flag: Sierra Leone</source><translation>флаг: Сьерра-Леоне</translation></message>
<message><source>flag: Singapore</source><translation>флаг: Сингапур</translation></message>
<message><source>flag: Sint Maarten</source><translation>флаг: Синт-Мартен</translation></message>
<message><source>flag: Slovakia</source><translation>флаг: Словакия</translation></message>
<message><source>flag: Slovenia</source><translation>флаг: Словения</translation></message>
<message><source>flag: Solomon Islands</source><translation>флаг: Соломоновы о-ва</translation></message>
<message><source>flag: Somalia</source><translation>флаг: Сомали</translation></message>
<message><source>flag: South Africa</source><translation>флаг: Южно-Африканская Республика</translation></message>
<message><source>flag: South Georgia &amp; South Sandwich Islands</source><translation>флаг: Южная Георгия и Южные Сандвичевы о-ва</translation></message>
<message><source>flag: South Korea</source><translation>флаг: Республика Корея</translation></message>
<message><source>flag: South Sudan</source><translation>флаг: Южный Судан</translation></message>
<message><source>flag: Spain</source><translation>флаг: Испания</translation></message>
<message><source>flag: Sri Lanka</source><translation>флаг: Шри-Ланка</translation></message>
<message><source>flag: St. Barthélemy</source><translation>флаг: Сен-Бартелеми</translation></message>
<message><source>flag: St. Helena</source><translation>флаг: о-в Св. Елены</translation></message>
<message><source>flag: St. Kitts &amp; Nevis</source><translation>флаг: Сент-Китс и Невис</translation></message>
<message><source>flag: St. Lucia</source><translation>флаг: Сент-Люсия</translation></message>
<message><source>flag: St. Martin</source><translation>флаг: Сен-Мартен</translation></message>
<message><source>flag: St. Pierre &amp; Miquelon</source><translation>флаг: Сен-Пьер и Микелон</translation></message>
<message><source>flag: St. Vincent &amp; Grenadines</source><translation>флаг: Сент-Винсент и Гренадины</translation></message>
<message><source>flag: Sudan</source><translation>флаг: Судан</translation></message>
<message><source>flag: Suriname</source><translation>флаг: Суринам</translation></message>
<message><source>flag: Svalbard &amp; Jan Mayen</source><translation>флаг: Шпицберген и Ян-Майен</translation></message>
<message><source>flag: Sweden</source><translation>флаг: Швеция</translation></message>
<message><source>flag: Switzerland</source><translation>флаг: Швейцария</translation></message>
<message><source>flag: Syria</source><translation>флаг: Сирия</translation></message>
<message><source>flag: São Tomé &amp; Príncipe</source><translation>флаг: Сан-Томе и Принсипи</translation></message>
<message><source>flag: Taiwan</source><translation>флаг: Тайвань</translation></message>
<message><source>flag: Tajikistan</source><translation>флаг: Таджикистан</translation></message>
<message><source>flag: Tanzania</source><translation>флаг: Танзания</translation></message>
<message><source>flag: Thailand</source><translation>флаг: Таиланд</translation></message>
<message><source>flag: Timor-Leste</source><translation>флаг: Восточный Тимор</translation></message>
<message><source>flag: Togo</source><translation>флаг: Того</translation></message>
<message><source>flag: Tokelau</source><translation>флаг: Токелау</translation></message>
<message><source>flag: Tonga</source><translation>флаг: Тонга</translation></message>
<message><source>flag: Trinidad &amp; Tobago</source><translation>флаг: Тринидад и Тобаго</translation></message>
<message><source>flag: Tristan da Cunha</source><translation>флаг: Тристан-да-Кунья</translation></message>
<message><source>flag: Tunisia</source><translation>флаг: Тунис</translation></message>
<message><source>flag: Turkmenistan</source><translation>флаг: Туркменистан</translation></message>
<message><source>flag: Turks &amp; Caicos Islands</source><translation>флаг: Тёркс и Кайкос</translation></message>
<message><source>flag: Tuvalu</source><translation>флаг: Тувалу</translation></message>
<message><source>flag: Türkiye</source><translation>флаг: Турция</translation></message>
<message><source>flag: U.S. Outlying Islands</source><translation>флаг: Внешние малые о-ва (США)</translation></message>
<message><source>flag: U.S. Virgin Islands</source><translation>флаг: Виргинские о-ва (США)</translation></message>
<message><source>flag: Uganda</source><translation>флаг: Уганда</translation></message>
<message><source>flag: Ukraine</source><translation>флаг: Украина</translation></message>
<message><source>flag: United Arab Emirates</source><translation>флаг: ОАЭ</translation></message>
<message><source>flag: United Kingdom</source><translation>флаг: Великобритания</translation></message>
<message><source>flag: United Nations</source><translation>флаг: Организация Объединенных Наций</translation></message>
<message><source>flag: United States</source><translation>флаг: Соединенные Штаты</translation></message>
<message><source>flag: Uruguay</source><translation>флаг: Уругвай</translation></message>
<message><source>flag: Uzbekistan</source><translation>флаг: Узбекистан</translation></message>
<message><source>flag: Vanuatu</source><translation>флаг: Вануату</translation></message>
<message><source>flag: Vatican City</source><translation>флаг: Ватикан</translation></message>
<message><source>flag: Venezuela</source><translation>флаг: Венесуэла</translation></message>
<message><source>flag: Vietnam</source><translation>флаг: Вьетнам</translation></message>
<message><source>flag: Wales</source><translation>флаг: Уэльс</translation></message>
<message><source>flag: Wallis &amp; Futuna</source><translation>флаг: Уоллис и Футуна</translation></message>
<message><source>flag: Western Sahara</source><translation>флаг: Западная Сахара</translation></message>
<message><source>flag: Yemen</source><translation>флаг: Йемен</translation></message>
<message><source>flag: Zambia</source><translation>флаг: Замбия</translation></message>
<message><source>flag: Zimbabwe</source><translation>флаг: Зимбабве</translation></message>
<message><source>flag: Åland Islands</source><translation>флаг: Аландские о-ва</translation></message>
<message><source>flamingo</source><translation>фламинго</translation></message>
<message><source>flashlight</source><translation>фонарик</translation></message>
<message><source>flat shoe</source><translation>балетки</translation></message>
<message><source>flatbread</source><translation>лепешка</translation></message>
<message><source>flavoring</source><translation>головка</translation></message>
<message><source>fleur-de-lis</source><translation>геральдическая лилия</translation></message>
<message><source>flexed biceps</source><translation>бицепс</translation></message>
<message><source>flirt</source><translation>флирт</translation></message>
<message><source>floppy disk</source><translation>дискета</translation></message>
<message><source>flower</source><translation>цветок</translation></message>
<message><source>flower playing cards</source><translation>цветочная карта</translation></message>
<message><source>flushed face</source><translation>краснеет</translation></message>
<message><source>flute</source><translation>флейта</translation></message>
<message><source>fly</source><translation>муха</translation></message>
<message><source>flying disc</source><translation>летающий диск</translation></message>
<message><source>flying saucer</source><translation>летающая тарелка</translation></message>
<message><source>fog</source><translation>густой туман</translation></message>
<message><source>foggy</source><translation>туман</translation></message>
<message><source>folded hands</source><translation>сложенные руки</translation></message>
<message><source>folder</source><translation>файл</translation></message>
<message><source>folding hand fan</source><translation>веер</translation></message>
<message><source>fondue</source><translation>фондю</translation></message>
<message><source>food</source><translation>еда</translation></message>
<message><source>foot</source><translation>щиколотка</translation></message>
<message><source>footprints</source><translation>следы</translation></message>
<message><source>forbidden</source><translation>нельзя</translation></message>
<message><source>fork and knife</source><translation>вилка и нож</translation></message>
<message><source>fork and knife with plate</source><translation>тарелка с приборами</translation></message>
<message><source>fortune cookie</source><translation>печенье с предсказанием</translation></message>
<message><source>fountain</source><translation>фонтан</translation></message>
<message><source>fountain pen</source><translation>перьевая ручка</translation></message>
<message><source>four</source><translation>четыре</translation></message>
<message><source>four leaf clover</source><translation>четырехлистный клевер</translation></message>
<message><source>four o’clock</source><translation>четыре часа</translation></message>
<message><source>four-thirty</source><translation>полпятого</translation></message>
<message><source>fox</source><translation>морда лисицы</translation></message>
<message><source>frame</source><translation>рама</translation></message>
<message><source>framed picture</source><translation>картина</translation></message>
<message><source>french fries</source><translation>картофель фри</translation></message>
<message><source>fried shrimp</source><translation>жареная креветка</translation></message>
<message><source>frog</source><translation>голова лягушки</translation></message>
<message><source>front-facing baby chick</source><translation>цыпленок</translation></message>
<message><source>frown</source><translation>расстроен</translation></message>
<message><source>frowning face</source><translation>грустит</translation></message>
<message><source>frowning face with open mouth</source><translation>в изумлении</translation></message>
<message><source>fruit</source><translation>фрукт</translation></message>
<message><source>fuel pump</source><translation>заправка</translation></message>
<message><source>full moon</source><translation>полнолуние</translation></message>
<message><source>full moon face</source><translation>полная луна с лицом</translation></message>
<message><source>funeral urn</source><translation>урна с прахом</translation></message>
<message><source>game</source><translation>игра</translation></message>
<message><source>game die</source><translation>игральная кость</translation></message>
<message><source>garlic</source><translation>чеснок</translation></message>
<message><source>gear</source><translation>шестеренка</translation></message>
<message><source>gem stone</source><translation>драгоценный камень</translation></message>
<message><source>genie</source><translation>джинн</translation></message>
<message><source>geometric</source><translation>геометрия</translation></message>
<message><source>ghost</source><translation>привидение</translation></message>
<message><source>ginger root</source><translation>корень имбиря</translation></message>
<message><source>giraffe</source><translation>жираф</translation></message>
<message><source>girl</source><translation>девочка</translation></message>
<message><source>glass of milk</source><translation>стакан молока</translation></message>
<message><source>glasses</source><translation>очки</translation></message>
<message><source>globe showing Americas</source><translation>Америка на земном шаре</translation></message>
<message><source>globe showing Asia-Australia</source><translation>Азия и Австралия на земном шаре</translation></message>
<message><source>globe showing Europe-Africa</source><translation>Европа и Африка на земном шаре</translation></message>
<message><source>globe with meridians</source><translation>меридианы</translation></message>
<message><source>glove</source><translation>перчатка</translation></message>
<message><source>gloves</source><translation>перчатки</translation></message>
<message><source>glowing star</source><translation>сияющая звезда</translation></message>
<message><source>goal</source><translation>гол</translation></message>
<message><source>goal net</source><translation>спортивные ворота</translation></message>
<message><source>goat</source><translation>коза</translation></message>
<message><source>goblin</source><translation>японский гоблин</translation></message>
<message><source>goggles</source><translation>защитные очки</translation></message>
<message><source>goose</source><translation>гусь</translation></message>
<message><source>gorilla</source><translation>горилла</translation></message>
<message><source>graduation cap</source><translation>шапочка выпускника</translation></message>
<message><source>grapes</source><translation>виноград</translation></message>
<message><source>green apple</source><translation>зеленое яблоко</translation></message>
<message><source>green book</source><translation>зеленая книга</translation></message>
<message><source>green circle</source><translation>зеленый круг</translation></message>
<message><source>green heart</source><translation>зеленое сердце</translation></message>
<message><source>green salad</source><translation>овощной салат</translation></message>
<message><source>green square</source><translation>зеленый квадрат</translation></message>
<message><source>grey heart</source><translation>серое сердце</translation></message>
<message><source>grimacing face</source><translation>гримаса</translation></message>
<message><source>grinning</source><translation>смех</translation></message>
<message><source>grinning cat</source><translation>улыбающийся кот</translation></message>
<message><source>grinning cat with smiling eyes</source><translation>смеющийся кот</translation></message>
<message><source>grinning face</source><translation>широко улыбается</translation></message>
<message><source>grinning face with big eyes</source><translation>смеется</translation></message>
<message><source>grinning face with smiling eyes</source><translation>смеется с закрытыми глазами</translation></message>
<message><source>grinning face with sweat</source><translation>нервно смеется</translation></message>
<message><source>grinning squinting face</source><translation>смеется с прищуренными глазами</translation></message>
<message><source>growing heart</source><translation>растущее сердце</translation></message>
<message><source>guard</source><translation>гвардеец</translation></message>
<message><source>guide dog</source><translation>собака-поводырь</translation></message>
<message><source>guitar</source><translation>гитара</translation></message>
<message><source>hair pick</source><translation>афро-гребень</translation></message>
<message><source>hamburger</source><translation>гамбургер</translation></message>
<message><source>hammer</source><translation>молоток</translation></message>
<message><source>hammer and pick</source><translation>кирка и молот</translation></message>
<message><source>hammer and wrench</source><translation>молот и гаечный ключ</translation></message>
<message><source>hamsa</source><translation>хамса</translation></message>
<message><source>hamster</source><translation>морда хомяка</translation></message>
<message><source>hand</source><translation>рука</translation></message>
<message><source>hand with fingers splayed</source><translation>раскрытая ладонь</translation></message>
<message><source>hand with index finger and thumb crossed</source><translation>жест «деньги»</translation></message>
<message><source>handbag</source><translation>сумка</translation></message>
<message><source>handshake</source><translation>рукопожатие</translation></message>
<message><source>harp</source><translation>арфа</translation></message>
<message><source>hatching chick</source><translation>цыпленок в яйце</translation></message>
<message><source>head shaking horizontally</source><translation>отрицательно качает головой</translation></message>
<message><source>head shaking vertically</source><translation>положительно качает головой</translation></message>
<message><source>headphone</source><translation>наушники</translation></message>
<message><source>headstone</source><translation>надгробие</translation></message>
<message><source>health worker</source><translation>медицинский работник</translation></message>
<message><source>hear-no-evil monkey</source><translation>ничего не слышу</translation></message>
<message><source>heart</source><translation>сердце</translation></message>
<message><source>heart decoration</source><translation>значок «сердце»</translation></message>
<message><source>heart exclamation</source><translation>восклицательный знак в виде сердца</translation></message>
<message><source>heart hands</source><translation>жест «сердце»</translation></message>
<message><source>heart on fire</source><translation>горящее сердце</translation></message>
<message><source>heart suit</source><translation>червы</translation></message>
<message><source>heart with arrow</source><translation>сердце, пронзенное стрелой</translation></message>
<message><source>heart with ribbon</source><translation>сердце с лентой</translation></message>
<message><source>hearts</source><translation>сердечки</translation></message>
<message><source>heavy dollar sign</source><translation>жирный знак доллара</translation></message>
<message><source>heavy equals sign</source><translation>жирный знак равенства</translation></message>
<message><source>hedgehog</source><translation>еж</translation></message>
<message><source>helicopter</source><translation>вертолет</translation></message>
<message><source>herb</source><translation>веточка</translation></message>
<message><source>hibiscus</source><translation>гибискус</translation></message>
<message><source>high voltage</source><translation>высокое напряжение</translation></message>
<message><source>high-heeled shoe</source><translation>туфли на каблуке</translation></message>
<message><source>high-speed train</source><translation>скоростной поезд</translation></message>
<message><source>hiking boot</source><translation>треккинговый ботинок</translation></message>
<message><source>hindu temple</source><translation>индуистский храм</translation></message>
<message><source>hippopotamus</source><translation>гиппопотам</translation></message>
<message><source>hmm</source><translation>хм</translation></message>
<message><source>hockey</source><translation>хоккей</translation></message>
<message><source>hole</source><translation>дыра</translation></message>
<message><source>hollow red circle</source><translation>красное кольцо</translation></message>
<message><source>honey pot</source><translation>мед</translation></message>
<message><source>honeybee</source><translation>пчела</translation></message>
<message><source>hook</source><translation>крюк</translation></message>
<message><source>horizontal traffic light</source><translation>горизонтальный светофор</translation></message>
<message><source>horoscope</source><translation>гороскоп</translation></message>
<message><source>horse</source><translation>лошадь</translation></message>
<message><source>horse face</source><translation>морда лошади</translation></message>
<message><source>horse racing</source><translation>скачки</translation></message>
<message><source>hospital</source><translation>больница</translation></message>
<message><source>hot beverage</source><translation>горячий напиток</translation></message>
<message><source>hot dog</source><translation>хот-дог</translation></message>
<message><source>hot face</source><translation>жар</translation></message>
<message><source>hot pepper</source><translation>острый перец</translation></message>
<message><source>hot springs</source><translation>горячие источники</translation></message>
<message><source>hotel</source><translation>гостиница</translation></message>
<message><source>hourglass done</source><translation>песочные часы</translation></message>
<message><source>hourglass not done</source><translation>время пошло</translation></message>
<message><source>house</source><translation>дом</translation></message>
<message><source>house with garden</source><translation>дом с садом</translation></message>
<message><source>houses</source><translation>дома</translation></message>
<message><source>hundred points</source><translation>сто баллов</translation></message>
<message><source>hushed face</source><translation>неприятный сюрприз</translation></message>
<message><source>hut</source><translation>хижина</translation></message>
<message><source>hyacinth</source><translation>гиацинт</translation></message>
<message><source>ice</source><translation>кубик льда</translation></message>
<message><source>ice cream</source><translation>мороженое</translation></message>
<message><source>ice hockey</source><translation>хоккей</translation></message>
<message><source>ice skate</source><translation>коньки</translation></message>
<message><source>identification card</source><translation>удостоверение личности</translation></message>
<message><source>identity</source><translation>идентификация</translation></message>
<message><source>ideograph</source><translation>иероглиф</translation></message>
<message><source>improvement</source><translation>ремонт</translation></message>
<message><source>inbox tray</source><translation>входящие</translation></message>
<message><source>incoming envelope</source><translation>входящее письмо</translation></message>
<message><source>index</source><translation>указывать</translation></message>
<message><source>index pointing at the viewer</source><translation>указательный палец на себя</translation></message>
<message><source>index pointing up</source><translation>указательный палец вверх</translation></message>
<message><source>infinity</source><translation>бесконечность</translation></message>
<message><source>information</source><translation>значок информации</translation></message>
<message><source>input</source><translation>ввод</translation></message>
<message><source>input latin letters</source><translation>ввод латиницей</translation></message>
<message><source>input latin lowercase</source><translation>ввод строчными</translation></message>
<message><source>input latin uppercase</source><translation>ввод прописными</translation></message>
<message><source>input numbers</source><translation>ввод цифр</translation></message>
<message><source>input symbols</source><translation>ввод символов</translation></message>
<message><source>insect</source><translation>насекомое</translation></message>
<message><source>instrument</source><translation>музыкальный инструмент</translation></message>
<message><source>irish</source><translation>клевер</translation></message>
<message><source>jack-o-lantern</source><translation>тыква-фонарь</translation></message>
<message><source>jar</source><translation>банка</translation></message>
<message><source>jeans</source><translation>джинсы</translation></message>
<message><source>jellyfish</source><translation>медуза</translation></message>
<message><source>joker</source><translation>джокер</translation></message>
<message><source>joystick</source><translation>джойстик</translation></message>
<message><source>judge</source><translation>судья</translation></message>
<message><source>kaaba</source><translation>Кааба</translation></message>
<message><source>kangaroo</source><translation>кенгуру</translation></message>
<message><source>key</source><translation>ключ</translation></message>
<message><source>keyboard</source><translation>клавиатура</translation></message>
<message><source>keycap</source><translation>клавиша</translation></message>
<message><source>keycap: #</source><translation>клавиши: #</translation></message>
<message><source>keycap: *</source><translation>клавиши: *</translation></message>
<message><source>keycap: 0</source><translation>клавиша 0</translation></message>
<message><source>keycap: 1</source><translation>клавиша 1</translation></message>
<message><source>keycap: 10</source><translation>клавиши: 10</translation></message>
<message><source>keycap: 2</source><translation>клавиша 2</translation></message>
<message><source>keycap: 3</source><translation>клавиша 3</translation></message>
<message><source>keycap: 4</source><translation>клавиша 4</translation></message>
<message><source>keycap: 5</source><translation>клавиша 5</translation></message>
<message><source>keycap: 6</source><translation>клавиша 6</translation></message>
<message><source>keycap: 7</source><translation>клавиша 7</translation></message>
<message><source>keycap: 8</source><translation>клавиша 8</translation></message>
<message><source>keycap: 9</source><translation>клавиша 9</translation></message>
<message><source>khanda</source><translation>кханда</translation></message>
<message><source>kick scooter</source><translation>самокат</translation></message>
<message><source>kimono</source><translation>кимоно</translation></message>
<message><source>kiss</source><translation>поцелуй</translation></message>
<message><source>kiss mark</source><translation>след от поцелуя</translation></message>
<message><source>kiss: man, man</source><translation>поцелуй: мужчина мужчина</translation></message>
<message><source>kiss: woman, man</source><translation>поцелуй: женщина мужчина</translation></message>
<message><source>kiss: woman, woman</source><translation>поцелуй: женщина женщина</translation></message>
<message><source>kissing cat</source><translation>целующий кот</translation></message>
<message><source>kissing face</source><translation>целует</translation></message>
<message><source>kissing face with closed eyes</source><translation>целует с закрытыми глазами</translation></message>
<message><source>kissing face with smiling eyes</source><translation>счастливый поцелуй</translation></message>
<message><source>kitchen knife</source><translation>нож</translation></message>
<message><source>kite</source><translation>воздушный змей</translation></message>
<message><source>kiwi fruit</source><translation>киви</translation></message>
<message><source>knife</source><translation>нож</translation></message>
<message><source>knot</source><translation>узел</translation></message>
<message><source>koala</source><translation>морда коалы</translation></message>
<message><source>lab</source><translation>лаборатория</translation></message>
<message><source>lab coat</source><translation>лабораторный халат</translation></message>
<message><source>label</source><translation>бирка</translation></message>
<message><source>lacrosse</source><translation>лакросс</translation></message>
<message><source>ladder</source><translation>лестница</translation></message>
<message><source>lady beetle</source><translation>божья коровка</translation></message>
<message><source>lamp</source><translation>лампа</translation></message>
<message><source>laptop</source><translation>ноутбук</translation></message>
<message><source>large</source><translation>большой</translation></message>
<message><source>large blue diamond</source><translation>большой голубой ромб</translation></message>
<message><source>large orange diamond</source><translation>большой оранжевый ромб</translation></message>
<message><source>last quarter moon</source><translation>луна в последней четверти</translation></message>
<message><source>last quarter moon face</source><translation>луна в последней четверти с лицом</translation></message>
<message><source>last track button</source><translation>предыдущий трек</translation></message>
<message><source>latin cross</source><translation>латинский крест</translation></message>
<message><source>law</source><translation>закон</translation></message>
<message><source>leaf</source><translation>листья</translation></message>
<message><source>leaf fluttering in wind</source><translation>листья на ветру</translation></message>
<message><source>leafless tree</source><translation>дерево без листвы</translation></message>
<message><source>leafy green</source><translation>зеленый салат</translation></message>
<message><source>ledger</source><translation>блокнот</translation></message>
<message><source>left</source><translation>влево</translation></message>
<message><source>left arrow</source><translation>стрелка влево</translation></message>
<message><source>left arrow curving right</source><translation>стрелка влево с поворотом вправо</translation></message>
<message><source>left luggage</source><translation>забытый багаж</translation></message>
<message><source>left speech bubble</source><translation>пустое облачко</translation></message>
<message><source>left-facing fist</source><translation>кулак влево</translation></message>
<message><source>left-right arrow</source><translation>стрелка влево-вправо</translation></message>
<message><source>leftwards hand</source><translation>рука влево</translation></message>
<message><source>leftwards pushing hand</source><translation>рука ладонью влево</translation></message>
<message><source>leg</source><translation>нога</translation></message>
<message><source>lemon</source><translation>лимон</translation></message>
<message><source>leopard</source><translation>леопард</translation></message>
<message><source>letter</source><translation>электронное</translation></message>
<message><source>letters</source><translation>алфавит</translation></message>
<message><source>level slider</source><translation>слайдер</translation></message>
<message><source>light blue heart</source><translation>голубое сердце</translation></message>
<message><source>light bulb</source><translation>лампочка</translation></message>
<message><source>light rail</source><translation>легкий рельсовый транспорт</translation></message>
<message><source>light skin tone</source><translation>очень светлый тон кожи</translation></message>
<message><source>lightning</source><translation>гром</translation></message>
<message><source>like</source><translation>нравится</translation></message>
<message><source>lime</source><translation>лайм</translation></message>
<message><source>link</source><translation>гиперссылка</translation></message>
<message><source>linked paperclips</source><translation>скрепки</translation></message>
<message><source>lion</source><translation>морда льва</translation></message>
<message><source>lipstick</source><translation>помада</translation></message>
<message><source>litter</source><translation>мусорить</translation></message>
<message><source>litter in bin sign</source><translation>бросайте мусор в урну</translation></message>
<message><source>lizard</source><translation>ящерица</translation></message>
<message><source>llama</source><translation>лама</translation></message>
<message><source>lobster</source><translation>омар</translation></message>
<message><source>lock</source><translation>замок</translation></message>
<message><source>locked</source><translation>закрытый замок</translation></message>
<message><source>locked with key</source><translation>закрытый замок с ключом</translation></message>
<message><source>locked with pen</source><translation>закрытый замок с перьевой ручкой</translation></message>
<message><source>locomotive</source><translation>паровоз</translation></message>
<message><source>lollipop</source><translation>леденец</translation></message>
<message><source>long drum</source><translation>конга</translation></message>
<message><source>lotion bottle</source><translation>бутылка лосьона</translation></message>
<message><source>lotus</source><translation>лотос</translation></message>
<message><source>loudly crying face</source><translation>слезы рекой</translation></message>
<message><source>loudspeaker</source><translation>громкоговоритель</translation></message>
<message><source>love</source><translation>любовь</translation></message>
<message><source>love hotel</source><translation>гостиница для свиданий</translation></message>
<message><source>love letter</source><translation>любовное письмо</translation></message>
<message><source>love-you gesture</source><translation>я-тебя-люблю</translation></message>
<message><source>low battery</source><translation>низкий уровень заряда</translation></message>
<message><source>lowered</source><translation>опущенный</translation></message>
<message><source>luggage</source><translation>багаж</translation></message>
<message><source>lumber</source><translation>древесина</translation></message>
<message><source>lungs</source><translation>легкие</translation></message>
<message><source>lying face</source><translation>лжец</translation></message>
<message><source>mage</source><translation>маг</translation></message>
<message><source>magic</source><translation>магия</translation></message>
<message><source>magic wand</source><translation>волшебная палочка</translation></message>
<message><source>magnet</source><translation>магнит</translation></message>
<message><source>magnetic</source><translation>магнит</translation></message>
<message><source>magnifying glass tilted left</source><translation>лупа, наклоненная влево</translation></message>
<message><source>magnifying glass tilted right</source><translation>лупа, наклоненная вправо</translation></message>
<message><source>mahjong red dragon</source><translation>маджонг</translation></message>
<message><source>mail</source><translation>почтовый</translation></message>
<message><source>male sign</source><translation>мужской символ</translation></message>
<message><source>mammal</source><translation>млекопитающее</translation></message>
<message><source>mammoth</source><translation>мамонт</translation></message>
<message><source>man</source><translation>мужчина</translation></message>
<message><source>man artist</source><translation>мужчина-художник</translation></message>
<message><source>man astronaut</source><translation>мужчина-космонавт</translation></message>
<message><source>man biking</source><translation>мужчина на велосипеде</translation></message>
<message><source>man bouncing ball</source><translation>мужчина с мячом</translation></message>
<message><source>man bowing</source><translation>мужчина кланяется</translation></message>
<message><source>man cartwheeling</source><translation>акробат</translation></message>
<message><source>man climbing</source><translation>мужчина взбирается по скале</translation></message>
<message><source>man construction worker</source><translation>мужчина-строитель</translation></message>
<message><source>man cook</source><translation>мужчина-повар</translation></message>
<message><source>man dancing</source><translation>танцующий мужчина</translation></message>
<message><source>man detective</source><translation>мужчина-детектив</translation></message>
<message><source>man elf</source><translation>мужчина-эльф</translation></message>
<message><source>man facepalming</source><translation>мужчина потерял дар речи</translation></message>
<message><source>man factory worker</source><translation>мужчина-рабочий</translation></message>
<message><source>man fairy</source><translation>мужчина-фея</translation></message>
<message><source>man farmer</source><translation>мужчина-фермер</translation></message>
<message><source>man feeding baby</source><translation>кормящий мужчина</translation></message>
<message><source>man firefighter</source><translation>мужчина-пожарный</translation></message>
<message><source>man frowning</source><translation>нахмурившийся мужчина</translation></message>
<message><source>man genie</source><translation>мужчина-джинн</translation></message>
<message><source>man gesturing NO</source><translation>мужчина против</translation></message>
<message><source>man gesturing OK</source><translation>мужчина за</translation></message>
<message><source>man getting haircut</source><translation>мужчина у парикмахера</translation></message>
<message><source>man getting massage</source><translation>мужчине массируют лицо</translation></message>
<message><source>man golfing</source><translation>мужчина играет в гольф</translation></message>
<message><source>man guard</source><translation>мужчина-гвардеец</translation></message>
<message><source>man health worker</source><translation>врач</translation></message>
<message><source>man in lotus position</source><translation>мужчина в позе лотоса</translation></message>
<message><source>man in manual wheelchair</source><translation>мужчина в ручном кресле-коляске</translation></message>
<message><source>man in manual wheelchair: facing right</source><translation>мужчина в ручном кресле-коляске: , направленные вправо</translation></message>
<message><source>man in motorized wheelchair</source><translation>мужчина в электрическом кресле-коляске</translation></message>
<message><source>man in motorized wheelchair: facing right</source><translation>мужчина в электрическом кресле-коляске: , направленные вправо</translation></message>
<message><source>man in steamy room</source><translation>мужчина в бане</translation></message>
<message><source>man in tuxedo</source><translation>мужчина в смокинге</translation></message>
<message><source>man judge</source><translation>мужчина-судья</translation></message>
<message><source>man juggling</source><translation>мужчина-жонглер</translation></message>
<message><source>man kneeling</source><translation>мужчина на коленях</translation></message>
<message><source>man kneeling: facing right</source><translation>мужчина на коленях: , направленные вправо</translation></message>
<message><source>man lifting weights</source><translation>мужчина со штангой</translation></message>
<message><source>man mage</source><translation>волшебник</translation></message>
<message><source>man mechanic</source><translation>мужчина-механик</translation></message>
<message><source>man mountain biking</source><translation>мужчина на горном велосипеде</translation></message>
<message><source>man office worker</source><translation>офисный работник - мужчина</translation></message>
<message><source>man pilot</source><translation>мужчина-пилот</translation></message>
<message><source>man playing handball</source><translation>гандболист</translation></message>
<message><source>man playing water polo</source><translation>мужчина играет в водное поло</translation></message>
<message><source>man police officer</source><translation>мужчина-полицейский</translation></message>
<message><source>man pouting</source><translation>обиженный мужчина</translation></message>
<message><source>man raising hand</source><translation>мужчина с поднятой рукой</translation></message>
<message><source>man rowing boat</source><translation>гребец</translation></message>
<message><source>man running</source><translation>мужчина бежит</translation></message>
<message><source>man running: facing right</source><translation>мужчина бежит: , направленные вправо</translation></message>
<message><source>man scientist</source><translation>мужчина-ученый</translation></message>
<message><source>man shrugging</source><translation>мужчина пожимает плечами</translation></message>
<message><source>man singer</source><translation>мужчина-певец</translation></message>
<message><source>man standing</source><translation>мужчина стоит</translation></message>
<message><source>man student</source><translation>студент</translation></message>
<message><source>man superhero</source><translation>мужчина-супергерой</translation></message>
<message><source>man supervillain</source><translation>мужчина-суперзлодей</translation></message>
<message><source>man surfing</source><translation>серфингист</translation></message>
<message><source>man swimming</source><translation>пловец</translation></message>
<message><source>man teacher</source><translation>учитель</translation></message>
<message><source>man technologist</source><translation>мужчина-инженер</translation></message>
<message><source>man tipping hand</source><translation>мужчина тянет руку</translation></message>
<message><source>man vampire</source><translation>мужчина-вампир</translation></message>
<message><source>man walking</source><translation>мужчина идет</translation></message>
<message><source>man walking: facing right</source><translation>мужчина идет: , направленные вправо</translation></message>
<message><source>man wearing turban</source><translation>мужчина в тюрбане</translation></message>
<message><source>man with veil</source><translation>мужчина в фате</translation></message>
<message><source>man with white cane</source><translation>мужчина с тростью для ходьбы</translation></message>
<message><source>man with white cane: facing right</source><translation>мужчина с тростью для ходьбы: , направленные вправо</translation></message>
<message><source>man zombie</source><translation>мужчина-зомби</translation></message>
<message><source>man: bald</source><translation>мужчина: без волос</translation></message>
<message><source>man: beard</source><translation>бородатый мужчина</translation></message>
<message><source>man: blond hair</source><translation>блондин</translation></message>
<message><source>man: curly hair</source><translation>мужчина: кудрявые волосы</translation></message>
<message><source>man: red hair</source><translation>мужчина: рыжие волосы</translation></message>
<message><source>man: white hair</source><translation>мужчина: седые волосы</translation></message>
<message><source>mango</source><translation>манго</translation></message>
<message><source>mantelpiece clock</source><translation>каминные часы</translation></message>
<message><source>manual wheelchair</source><translation>кресло-коляска с ручным приводом</translation></message>
<message><source>man’s shoe</source><translation>ботинок</translation></message>
<message><source>map of Japan</source><translation>карта Японии</translation></message>
<message><source>maple leaf</source><translation>кленовый лист</translation></message>
<message><source>maracas</source><translation>маракасы</translation></message>
<message><source>martial arts uniform</source><translation>спортивное кимоно</translation></message>
<message><source>mate</source><translation>мате</translation></message>
<message><source>meat</source><translation>мясо</translation></message>
<message><source>meat on bone</source><translation>мясо на косточке</translation></message>
<message><source>mechanic</source><translation>механик</translation></message>
<message><source>mechanical arm</source><translation>механическая рука</translation></message>
<message><source>mechanical leg</source><translation>механическая нога</translation></message>
<message><source>medal</source><translation>медаль</translation></message>
<message><source>medical</source><translation>врач</translation></message>
<message><source>medical symbol</source><translation>медицинский символ</translation></message>
<message><source>medicine</source><translation>медицина</translation></message>
<message><source>medium skin tone</source><translation>средний тон кожи</translation></message>
<message><source>medium-dark skin tone</source><translation>темный тон кожи</translation></message>
<message><source>medium-light skin tone</source><translation>светлый тон кожи</translation></message>
<message><source>megaphone</source><translation>мегафон</translation></message>
<message><source>melon</source><translation>дыня</translation></message>
<message><source>melting face</source><translation>тает</translation></message>
<message><source>memo</source><translation>заметка</translation></message>
<message><source>men holding hands</source><translation>двое мужчин</translation></message>
<message><source>men with bunny ears</source><translation>мужчины с ушами кролика</translation></message>
<message><source>men wrestling</source><translation>мужчины-борцы</translation></message>
<message><source>mending heart</source><translation>заживающее сердце</translation></message>
<message><source>menorah</source><translation>менора</translation></message>
<message><source>men’s room</source><translation>мужской туалет</translation></message>
<message><source>mermaid</source><translation>женщина-русалка</translation></message>
<message><source>merman</source><translation>тритон</translation></message>
<message><source>merperson</source><translation>русалка</translation></message>
<message><source>metro</source><translation>метро</translation></message>
<message><source>microbe</source><translation>микроб</translation></message>
<message><source>microphone</source><translation>микрофон</translation></message>
<message><source>microscope</source><translation>микроскоп</translation></message>
<message><source>middle finger</source><translation>средний палец</translation></message>
<message><source>military helmet</source><translation>армейская каска</translation></message>
<message><source>military medal</source><translation>военная медаль</translation></message>
<message><source>milk</source><translation>молоко</translation></message>
<message><source>milky way</source><translation>Млечный Путь</translation></message>
<message><source>minibus</source><translation>микроавтобус</translation></message>
<message><source>minus</source><translation>знак вычитания</translation></message>
<message><source>mirror</source><translation>зеркало</translation></message>
<message><source>mirror ball</source><translation>диско-шар</translation></message>
<message><source>moai</source><translation>истукан</translation></message>
<message><source>mobile phone</source><translation>мобильный телефон</translation></message>
<message><source>mobile phone off</source><translation>выключенный телефон</translation></message>
<message><source>mobile phone with arrow</source><translation>входящий вызов</translation></message>
<message><source>money</source><translation>деньги</translation></message>
<message><source>money bag</source><translation>мешок денег</translation></message>
<message><source>money with wings</source><translation>банкнота с крылышками</translation></message>
<message><source>money-mouth face</source><translation>деньги в глазах</translation></message>
<message><source>monkey</source><translation>обезьяна</translation></message>
<message><source>monkey face</source><translation>морда обезьяны</translation></message>
<message><source>monorail</source><translation>монорельс</translation></message>
<message><source>monster</source><translation>монстр</translation></message>
<message><source>moon</source><translation>луна</translation></message>
<message><source>moon cake</source><translation>лунный пирог</translation></message>
<message><source>moon viewing ceremony</source><translation>праздник Луны</translation></message>
<message><source>moose</source><translation>лось</translation></message>
<message><source>mosque</source><translation>мечеть</translation></message>
<message><source>mosquito</source><translation>комар</translation></message>
<message><source>motor boat</source><translation>моторная лодка</translation></message>
<message><source>motor scooter</source><translation>скутер</translation></message>
<message><source>motorcycle</source><translation>мотоцикл</translation></message>
<message><source>motorized wheelchair</source><translation>кресло-коляска с мотором</translation></message>
<message><source>motorway</source><translation>шоссе</translation></message>
<message><source>mount fuji</source><translation>Фудзияма</translation></message>
<message><source>mountain</source><translation>гора</translation></message>
<message><source>mountain cableway</source><translation>вагон фуникулера</translation></message>
<message><source>mountain railway</source><translation>поезд в горах</translation></message>
<message><source>mouse</source><translation>мышь</translation></message>
<message><source>mouse face</source><translation>морда мыши</translation></message>
<message><source>mouse trap</source><translation>мышеловка</translation></message>
<message><source>mouth</source><translation>рот</translation></message>
<message><source>movie</source><translation>кино</translation></message>
<message><source>movie camera</source><translation>кинокамера</translation></message>
<message><source>multiply</source><translation>знак умножения</translation></message>
<message><source>mushroom</source><translation>гриб</translation></message>
<message><source>music</source><translation>музыка</translation></message>
<message><source>musical keyboard</source><translation>клавишные</translation></message>
<message><source>musical note</source><translation>нота</translation></message>
<message><source>musical notes</source><translation>ноты</translation></message>
<message><source>musical score</source><translation>нотный стан</translation></message>
<message><source>muted speaker</source><translation>без звука</translation></message>
<message><source>nail polish</source><translation>маникюр</translation></message>
<message><source>name badge</source><translation>бейдж</translation></message>
<message><source>national park</source><translation>национальный парк</translation></message>
<message><source>nauseated face</source><translation>тошнит</translation></message>
<message><source>nazar amulet</source><translation>назар бонджук</translation></message>
<message><source>necktie</source><translation>галстук</translation></message>
<message><source>nerd face</source><translation>очкарик</translation></message>
<message><source>nervous</source><translation>беспокойство</translation></message>
<message><source>nest with eggs</source><translation>гнездо с яйцами</translation></message>
<message><source>nesting dolls</source><translation>матрешка</translation></message>
<message><source>neutral face</source><translation>все равно</translation></message>
<message><source>new moon</source><translation>новолуние</translation></message>
<message><source>new moon face</source><translation>новая луна с лицом</translation></message>
<message><source>newspaper</source><translation>газета</translation></message>
<message><source>next track button</source><translation>следующий трек</translation></message>
<message><source>night with stars</source><translation>звездная ночь</translation></message>
<message><source>nine o’clock</source><translation>девять часов</translation></message>
<message><source>nine-thirty</source><translation>полдесятого</translation></message>
<message><source>ninja</source><translation>ниндзя</translation></message>
<message><source>no bicycles</source><translation>перечеркнутый велосипед</translation></message>
<message><source>no entry</source><translation>въезд запрещен</translation></message>
<message><source>no littering</source><translation>не мусорьте</translation></message>
<message><source>no mobile phones</source><translation>мобильные телефоны запрещены</translation></message>
<message><source>no one under eighteen</source><translation>для людей старше восемнадцати лет</translation></message>
<message><source>no pedestrians</source><translation>переход запрещен</translation></message>
<message><source>no smoking</source><translation>курение запрещено</translation></message>
<message><source>non-potable water</source><translation>непитьевая вода</translation></message>
<message><source>nose</source><translation>нос</translation></message>
<message><source>note</source><translation>банкнота</translation></message>
<message><source>notebook</source><translation>тетрадь</translation></message>
<message><source>notebook with decorative cover</source><translation>записная книжка</translation></message>
<message><source>nut and bolt</source><translation>болт и гайка</translation></message>
<message><source>ocean</source><translation>океан</translation></message>
<message><source>octopus</source><translation>осьминог</translation></message>
<message><source>oden</source><translation>одэн</translation></message>
<message><source>office building</source><translation>офисное здание</translation></message>
<message><source>office worker</source><translation>офисный работник</translation></message>
<message><source>ogre</source><translation>чудовище</translation></message>
<message><source>oh</source><translation>усталость</translation></message>
<message><source>oil drum</source><translation>бочка</translation></message>
<message><source>old</source><translation>старый</translation></message>
<message><source>old key</source><translation>старинный ключ</translation></message>
<message><source>old man</source><translation>пожилой мужчина</translation></message>
<message><source>old woman</source><translation>пожилая женщина</translation></message>
<message><source>older person</source><translation>пожилой человек</translation></message>
<message><source>olive</source><translation>оливка</translation></message>
<message><source>om</source><translation>ом</translation></message>
<message><source>omg</source><translation>омг</translation></message>
<message><source>oncoming automobile</source><translation>автомобиль спереди</translation></message>
<message><source>oncoming bus</source><translation>автобус спереди</translation></message>
<message><source>oncoming fist</source><translation>кулак</translation></message>
<message><source>oncoming police car</source><translation>полицейская машина спереди</translation></message>
<message><source>oncoming taxi</source><translation>такси спереди</translation></message>
<message><source>one</source><translation>один</translation></message>
<message><source>one o’clock</source><translation>час</translation></message>
<message><source>one-piece swimsuit</source><translation>цельный купальник</translation></message>
<message><source>one-thirty</source><translation>полвторого</translation></message>
<message><source>onion</source><translation>лук</translation></message>
<message><source>open book</source><translation>открытая книга</translation></message>
<message><source>open file folder</source><translation>открытая папка</translation></message>
<message><source>open hands</source><translation>ладони в стороны</translation></message>
<message><source>open mailbox with lowered flag</source><translation>открытый почтовый ящик с опущенным флажком</translation></message>
<message><source>open mailbox with raised flag</source><translation>открытый почтовый ящик с поднятым флажком</translation></message>
<message><source>optical</source><translation>CD</translation></message>
<message><source>optical disk</source><translation>CD</translation></message>
<message><source>orange</source><translation>оранжевый</translation></message>
<message><source>orange book</source><translation>оранжевая книга</translation></message>
<message><source>orange circle</source><translation>оранжевый круг</translation></message>
<message><source>orange heart</source><translation>оранжевое сердце</translation></message>
<message><source>orange square</source><translation>оранжевый квадрат</translation></message>
<message><source>orangutan</source><translation>орангутан</translation></message>
<message><source>orchestra</source><translation>оркестр</translation></message>
<message><source>organ</source><translation>орган</translation></message>
<message><source>orthodox cross</source><translation>православный крест</translation></message>
<message><source>otter</source><translation>выдра</translation></message>
<message><source>outbox tray</source><translation>исходящие</translation></message>
<message><source>owl</source><translation>сова</translation></message>
<message><source>ox</source><translation>бык</translation></message>
<message><source>oyster</source><translation>устрица</translation></message>
<message><source>o’clock</source><translation>ровно</translation></message>
<message><source>package</source><translation>посылка</translation></message>
<message><source>packing</source><translation>багаж</translation></message>
<message><source>pad</source><translation>пружина</translation></message>
<message><source>page</source><translation>страница</translation></message>
<message><source>page facing up</source><translation>страница</translation></message>
<message><source>page with curl</source><translation>страница с загибом</translation></message>
<message><source>pager</source><translation>пейджер</translation></message>
<message><source>paid</source><translation>доллары</translation></message>
<message><source>paintbrush</source><translation>кисточка</translation></message>
<message><source>palm down hand</source><translation>рука ладонью вниз</translation></message>
<message><source>palm tree</source><translation>пальма</translation></message>
<message><source>palm up hand</source><translation>рука ладонью вверх</translation></message>
<message><source>palms up together</source><translation>ладони лодочкой</translation></message>
<message><source>pan</source><translation>сковорода</translation></message>
<message><source>pancakes</source><translation>блины</translation></message>
<message><source>panda</source><translation>морда панды</translation></message>
<message><source>paperclip</source><translation>скрепка</translation></message>
<message><source>parachute</source><translation>парашют</translation></message>
<message><source>parrot</source><translation>попугай</translation></message>
<message><source>part alternation mark</source><translation>вступает другой голос</translation></message>
<message><source>party</source><translation>вечеринка</translation></message>
<message><source>party popper</source><translation>хлопушка</translation></message>
<message><source>partying face</source><translation>на вечеринке</translation></message>
<message><source>passenger</source><translation>перевозки</translation></message>
<message><source>passenger ship</source><translation>пассажирский лайнер</translation></message>
<message><source>passport control</source><translation>паспортный контроль</translation></message>
<message><source>pastry</source><translation>торт</translation></message>
<message><source>pause button</source><translation>пауза</translation></message>
<message><source>paw prints</source><translation>следы животного</translation></message>
<message><source>pea pod</source><translation>стручок гороха</translation></message>
<message><source>peace symbol</source><translation>пацифик</translation></message>
<message><source>peach</source><translation>персик</translation></message>
<message><source>peacock</source><translation>павлин</translation></message>
<message><source>peanuts</source><translation>арахис</translation></message>
<message><source>pear</source><translation>груша</translation></message>
<message><source>pen</source><translation>шариковая ручка</translation></message>
<message><source>pencil</source><translation>карандаш</translation></message>
<message><source>penguin</source><translation>пингвин</translation></message>
<message><source>pensive face</source><translation>размышляет</translation></message>
<message><source>people holding hands</source><translation>люди, держащиеся за руки</translation></message>
<message><source>people hugging</source><translation>обнимающиеся люди</translation></message>
<message><source>people with bunny ears</source><translation>люди с ушами кролика</translation></message>
<message><source>people wrestling</source><translation>борцы</translation></message>
<message><source>pepper</source><translation>перец</translation></message>
<message><source>performing arts</source><translation>маски</translation></message>
<message><source>persevering face</source><translation>упорство</translation></message>
<message><source>person</source><translation>взрослый</translation></message>
<message><source>person biking</source><translation>велосипедист</translation></message>
<message><source>person bouncing ball</source><translation>баскетболист</translation></message>
<message><source>person bowing</source><translation>человек кланяется</translation></message>
<message><source>person cartwheeling</source><translation>акробатический трюк</translation></message>
<message><source>person climbing</source><translation>человек взбирается по скале</translation></message>
<message><source>person facepalming</source><translation>человек потерял дар речи</translation></message>
<message><source>person feeding baby</source><translation>кормящий человек</translation></message>
<message><source>person fencing</source><translation>фехтовальщик</translation></message>
<message><source>person frowning</source><translation>нахмурившийся человек</translation></message>
<message><source>person gesturing NO</source><translation>человек против</translation></message>
<message><source>person gesturing OK</source><translation>человек за</translation></message>
<message><source>person getting haircut</source><translation>человек у парикмахера</translation></message>
<message><source>person getting massage</source><translation>человеку массируют лицо</translation></message>
<message><source>person golfing</source><translation>гольфист</translation></message>
<message><source>person in bed</source><translation>человек в кровати</translation></message>
<message><source>person in lotus position</source><translation>человек в позе лотоса</translation></message>
<message><source>person in manual wheelchair</source><translation>человек в кресле-коляске с ручным приводом</translation></message>
<message><source>person in manual wheelchair: facing right</source><translation>человек в кресле-коляске с ручным приводом: , направленные вправо</translation></message>
<message><source>person in motorized wheelchair</source><translation>человек в кресле-коляске с мотором</translation></message>
<message><source>person in motorized wheelchair: facing right</source><translation>человек в кресле-коляске с мотором: , направленные вправо</translation></message>
<message><source>person in steamy room</source><translation>человек в бане</translation></message>
<message><source>person in suit levitating</source><translation>бизнесмен в воздухе</translation></message>
<message><source>person in tuxedo</source><translation>жених</translation></message>
<message><source>person juggling</source><translation>жонглер</translation></message>
<message><source>person kneeling</source><translation>человек на коленях</translation></message>
<message><source>person kneeling: facing right</source><translation>человек на коленях: , направленные вправо</translation></message>
<message><source>person lifting weights</source><translation>тяжелоатлет</translation></message>
<message><source>person mountain biking</source><translation>человек на горном велосипеде</translation></message>
<message><source>person playing handball</source><translation>гандбол</translation></message>
<message><source>person playing water polo</source><translation>водное поло</translation></message>
<message><source>person pouting</source><translation>обиженный человек</translation></message>
<message><source>person raising hand</source><translation>человек с поднятой рукой</translation></message>
<message><source>person rowing boat</source><translation>гребля</translation></message>
<message><source>person running</source><translation>человек бежит</translation></message>
<message><source>person running: facing right</source><translation>человек бежит: , направленные вправо</translation></message>
<message><source>person shrugging</source><translation>человек пожимает плечами</translation></message>
<message><source>person standing</source><translation>человек стоит</translation></message>
<message><source>person surfing</source><translation>серфинг</translation></message>
<message><source>person swimming</source><translation>плавание</translation></message>
<message><source>person taking bath</source><translation>человек в ванне</translation></message>
<message><source>person tipping hand</source><translation>человек тянет руку</translation></message>
<message><source>person walking</source><translation>человек идет</translation></message>
<message><source>person walking: facing right</source><translation>человек идет: , направленные вправо</translation></message>
<message><source>person wearing turban</source><translation>человек в тюрбане</translation></message>
<message><source>person with crown</source><translation>человек с короной</translation></message>
<message><source>person with skullcap</source><translation>мужчина в китайской шапке</translation></message>
<message><source>person with veil</source><translation>невеста</translation></message>
<message><source>person with white cane</source><translation>человек с белой тростью</translation></message>
<message><source>person with white cane: facing right</source><translation>человек с белой тростью: , направленные вправо</translation></message>
<message><source>person: bald</source><translation>взрослый: без волос</translation></message>
<message><source>person: beard</source><translation>бородатый человек</translation></message>
<message><source>person: blond hair</source><translation>человек со светлыми волосами</translation></message>
<message><source>person: curly hair</source><translation>взрослый: кудрявые волосы</translation></message>
<message><source>person: red hair</source><translation>взрослый: рыжие волосы</translation></message>
<message><source>person: white hair</source><translation>взрослый: седые волосы</translation></message>
<message><source>petri dish</source><translation>чашка Петри</translation></message>
<message><source>phoenix</source><translation>феникс</translation></message>
<message><source>phone</source><translation>телефон</translation></message>
<message><source>pick</source><translation>кирка</translation></message>
<message><source>pickup truck</source><translation>пикап</translation></message>
<message><source>pie</source><translation>пирог</translation></message>
<message><source>pig</source><translation>свинья</translation></message>
<message><source>pig face</source><translation>морда свиньи</translation></message>
<message><source>pig nose</source><translation>свиной пятачок</translation></message>
<message><source>pile of poo</source><translation>какашка</translation></message>
<message><source>pill</source><translation>пилюля</translation></message>
<message><source>pilot</source><translation>пилот</translation></message>
<message><source>pinched fingers</source><translation>щепоть</translation></message>
<message><source>pinching hand</source><translation>жест «мало»</translation></message>
<message><source>pine decoration</source><translation>украшенный бамбук</translation></message>
<message><source>pineapple</source><translation>ананас</translation></message>
<message><source>ping pong</source><translation>настольный теннис</translation></message>
<message><source>pink heart</source><translation>розовое сердце</translation></message>
<message><source>pirate flag</source><translation>пиратский флаг</translation></message>
<message><source>pizza</source><translation>пицца</translation></message>
<message><source>piñata</source><translation>пиньята</translation></message>
<message><source>placard</source><translation>плакат</translation></message>
<message><source>place of worship</source><translation>религия</translation></message>
<message><source>plane</source><translation>самолет</translation></message>
<message><source>play button</source><translation>воспроизведение</translation></message>
<message><source>play or pause button</source><translation>воспроизведение/пауза</translation></message>
<message><source>playground slide</source><translation>детская горка</translation></message>
<message><source>pleading face</source><translation>умоляет</translation></message>
<message><source>plumber</source><translation>сантехник</translation></message>
<message><source>plunger</source><translation>вантуз</translation></message>
<message><source>plus</source><translation>знак сложения</translation></message>
<message><source>point</source><translation>указывающий</translation></message>
<message><source>pointed</source><translation>вершиной</translation></message>
<message><source>pointing</source><translation>указательный</translation></message>
<message><source>polar bear</source><translation>морда белого медведя</translation></message>
<message><source>police</source><translation>полиция</translation></message>
<message><source>police car</source><translation>полицейская машина</translation></message>
<message><source>police car light</source><translation>мигалка</translation></message>
<message><source>police officer</source><translation>полицейский</translation></message>
<message><source>poodle</source><translation>пудель</translation></message>
<message><source>pool 8 ball</source><translation>бильярд</translation></message>
<message><source>popcorn</source><translation>попкорн</translation></message>
<message><source>post office</source><translation>почта</translation></message>
<message><source>postal horn</source><translation>почтовый рожок</translation></message>
<message><source>postbox</source><translation>почтовый ящик</translation></message>
<message><source>pot of food</source><translation>кастрюля с горячей едой</translation></message>
<message><source>potable water</source><translation>питьевая вода</translation></message>
<message><source>potato</source><translation>картофель</translation></message>
<message><source>potted plant</source><translation>растение в горшке</translation></message>
<message><source>poultry leg</source><translation>куриная ножка</translation></message>
<message><source>pound banknote</source><translation>банкнота фунта</translation></message>
<message><source>pouring liquid</source><translation>стакан с жидкостью</translation></message>
<message><source>pouting cat</source><translation>злой кот</translation></message>
<message><source>pray</source><translation>молитва</translation></message>
<message><source>prayer beads</source><translation>четки</translation></message>
<message><source>predator</source><translation>зверь</translation></message>
<message><source>pregnant</source><translation>беременность</translation></message>
<message><source>pregnant man</source><translation>беременный мужчина</translation></message>
<message><source>pregnant person</source><translation>беременный человек</translation></message>
<message><source>pregnant woman</source><translation>беременная женщина</translation></message>
<message><source>pretzel</source><translation>крендель</translation></message>
<message><source>prince</source><translation>принц</translation></message>
<message><source>princess</source><translation>принцесса</translation></message>
<message><source>printer</source><translation>принтер</translation></message>
<message><source>prohibited</source><translation>запрещено</translation></message>
<message><source>punctuation</source><translation>пунктуация</translation></message>
<message><source>purple</source><translation>фиолетовый</translation></message>
<message><source>purple circle</source><translation>фиолетовый круг</translation></message>
<message><source>purple heart</source><translation>фиолетовое сердце</translation></message>
<message><source>purple square</source><translation>фиолетовый квадрат</translation></message>
<message><source>purse</source><translation>кошелек</translation></message>
<message><source>pushpin</source><translation>канцелярская кнопка</translation></message>
<message><source>puzzle piece</source><translation>пазл</translation></message>
<message><source>quarter</source><translation>четверть</translation></message>
<message><source>question</source><translation>вопрос</translation></message>
<message><source>quiet</source><translation>тихо</translation></message>
<message><source>rabbit</source><translation>кролик</translation></message>
<message><source>rabbit face</source><translation>морда кролика</translation></message>
<message><source>raccoon</source><translation>морда енота</translation></message>
<message><source>racehorse</source><translation>скачки</translation></message>
<message><source>racing</source><translation>гонки</translation></message>
<message><source>racing car</source><translation>гоночный автомобиль</translation></message>
<message><source>radio</source><translation>радио</translation></message>
<message><source>radio button</source><translation>круглая кнопка</translation></message>
<message><source>radioactive</source><translation>радиация</translation></message>
<message><source>railway car</source><translation>вагон</translation></message>
<message><source>railway track</source><translation>железная дорога</translation></message>
<message><source>rain</source><translation>дождь</translation></message>
<message><source>rainbow</source><translation>радуга</translation></message>
<message><source>rainbow flag</source><translation>радужный флаг</translation></message>
<message><source>raised back of hand</source><translation>поднятая рука</translation></message>
<message><source>raised fist</source><translation>поднятый кулак</translation></message>
<message><source>raised hand</source><translation>поднятая ладонь</translation></message>
<message><source>raising hands</source><translation>ура</translation></message>
<message><source>ram</source><translation>баран</translation></message>
<message><source>rat</source><translation>крыса</translation></message>
<message><source>razor</source><translation>бритва</translation></message>
<message><source>receipt</source><translation>чек</translation></message>
<message><source>record button</source><translation>запись</translation></message>
<message><source>recycling symbol</source><translation>утилизация</translation></message>
<message><source>red apple</source><translation>красное яблоко</translation></message>
<message><source>red circle</source><translation>красный круг</translation></message>
<message><source>red envelope</source><translation>красный конверт</translation></message>
<message><source>red exclamation mark</source><translation>красный восклицательный знак</translation></message>
<message><source>red heart</source><translation>алое сердце</translation></message>
<message><source>red paper lantern</source><translation>красный бумажный фонарик</translation></message>
<message><source>red question mark</source><translation>красный вопросительный знак</translation></message>
<message><source>red square</source><translation>красный квадрат</translation></message>
<message><source>red triangle pointed down</source><translation>треугольник вершиной вниз</translation></message>
<message><source>red triangle pointed up</source><translation>треугольник вершиной вверх</translation></message>
<message><source>registered</source><translation>зарегистрированный товарный знак</translation></message>
<message><source>relieved</source><translation>облегчение</translation></message>
<message><source>relieved face</source><translation>испытывает облегчение</translation></message>
<message><source>religion</source><translation>религия</translation></message>
<message><source>reminder ribbon</source><translation>памятная лента</translation></message>
<message><source>repeat</source><translation>повтор</translation></message>
<message><source>repeat button</source><translation>повтор</translation></message>
<message><source>repeat single button</source><translation>повтор одной песни</translation></message>
<message><source>rescue worker’s helmet</source><translation>каска с белым крестом</translation></message>
<message><source>restroom</source><translation>уборная</translation></message>
<message><source>reverse button</source><translation>реверс</translation></message>
<message><source>revolving hearts</source><translation>вращающиеся сердца</translation></message>
<message><source>rhinoceros</source><translation>носорог</translation></message>
<message><source>ribbon</source><translation>бантик</translation></message>
<message><source>rice</source><translation>рис</translation></message>
<message><source>rice ball</source><translation>онигири</translation></message>
<message><source>rice cracker</source><translation>рисовый крекер</translation></message>
<message><source>right</source><translation>вправо</translation></message>
<message><source>right anger bubble</source><translation>гневное облачко</translation></message>
<message><source>right arrow</source><translation>стрелка вправо</translation></message>
<message><source>right arrow curving down</source><translation>стрелка вправо с поворотом вниз</translation></message>
<message><source>right arrow curving left</source><translation>стрелка вправо с поворотом влево</translation></message>
<message><source>right arrow curving up</source><translation>стрелка вправо с поворотом вверх</translation></message>
<message><source>right-facing fist</source><translation>кулак вправо</translation></message>
<message><source>rightwards hand</source><translation>рука вправо</translation></message>
<message><source>rightwards pushing hand</source><translation>рука ладонью вправо</translation></message>
<message><source>ring</source><translation>кольцо</translation></message>
<message><source>ring buoy</source><translation>спасательный круг</translation></message>
<message><source>ringed planet</source><translation>планета с кольцом</translation></message>
<message><source>roasted sweet potato</source><translation>печеный сладкий картофель</translation></message>
<message><source>robot</source><translation>робот</translation></message>
<message><source>rock</source><translation>камень</translation></message>
<message><source>rocket</source><translation>ракета</translation></message>
<message><source>roll of paper</source><translation>рулон бумаги</translation></message>
<message><source>rolled-up newspaper</source><translation>свернутая газета</translation></message>
<message><source>roller coaster</source><translation>американские горки</translation></message>
<message><source>roller skate</source><translation>роликовые коньки</translation></message>
<message><source>rolling on the floor laughing</source><translation>катается со смеху</translation></message>
<message><source>rooster</source><translation>петух</translation></message>
<message><source>root</source><translation>корень</translation></message>
<message><source>root vegetable</source><translation>корнеплод</translation></message>
<message><source>rose</source><translation>роза</translation></message>
<message><source>rosette</source><translation>розетка</translation></message>
<message><source>round pushpin</source><translation>канцелярская кнопка с шариком</translation></message>
<message><source>rugby football</source><translation>регби</translation></message>
<message><source>running</source><translation>бег</translation></message>
<message><source>running shirt</source><translation>футболка для бега</translation></message>
<message><source>running shoe</source><translation>кроссовки</translation></message>
<message><source>sad but relieved face</source><translation>обошлось</translation></message>
<message><source>safety pin</source><translation>английская булавка</translation></message>
<message><source>safety vest</source><translation>спасательный жилет</translation></message>
<message><source>sailboat</source><translation>парусник</translation></message>
<message><source>sake</source><translation>бутылка саке</translation></message>
<message><source>salt</source><translation>солонка</translation></message>
<message><source>saluting face</source><translation>воинское приветствие</translation></message>
<message><source>sandwich</source><translation>сэндвич</translation></message>
<message><source>sari</source><translation>сари</translation></message>
<message><source>satellite</source><translation>спутник</translation></message>
<message><source>satellite antenna</source><translation>спутниковая антенна</translation></message>
<message><source>sauropod</source><translation>зауропод</translation></message>
<message><source>saxophone</source><translation>саксофон</translation></message>
<message><source>scared</source><translation>испуг</translation></message>
<message><source>scarf</source><translation>шарф</translation></message>
<message><source>school</source><translation>школа</translation></message>
<message><source>science</source><translation>лупа</translation></message>
<message><source>scientist</source><translation>ученый</translation></message>
<message><source>scissors</source><translation>ножницы</translation></message>
<message><source>scorpion</source><translation>скорпион</translation></message>
<message><source>screwdriver</source><translation>отвертка</translation></message>
<message><source>scroll</source><translation>свиток</translation></message>
<message><source>seal</source><translation>тюлень</translation></message>
<message><source>seat</source><translation>кресло</translation></message>
<message><source>see-no-evil monkey</source><translation>ничего не вижу</translation></message>
<message><source>seedling</source><translation>росток</translation></message>
<message><source>selfie</source><translation>селфи</translation></message>
<message><source>service dog</source><translation>служебная собака</translation></message>
<message><source>seven o’clock</source><translation>семь часов</translation></message>
<message><source>seven-thirty</source><translation>полвосьмого</translation></message>
<message><source>sewing needle</source><translation>швейная игла</translation></message>
<message><source>shaking face</source><translation>трясущееся лицо</translation></message>
<message><source>shallow pan of food</source><translation>рагу в сковороде</translation></message>
<message><source>shamrock</source><translation>трилистник</translation></message>
<message><source>shark</source><translation>акула</translation></message>
<message><source>shaved ice</source><translation>мороженое в креманке</translation></message>
<message><source>sheaf of rice</source><translation>колос</translation></message>
<message><source>shield</source><translation>щит</translation></message>
<message><source>shinto shrine</source><translation>синтоистский храм</translation></message>
<message><source>ship</source><translation>корабль</translation></message>
<message><source>shirt</source><translation>футболка</translation></message>
<message><source>shocked</source><translation>шок</translation></message>
<message><source>shoes</source><translation>обувь</translation></message>
<message><source>shooting star</source><translation>падающая звезда</translation></message>
<message><source>shopping bags</source><translation>пакеты</translation></message>
<message><source>shopping cart</source><translation>тележка для покупок</translation></message>
<message><source>shortcake</source><translation>кусочек торта</translation></message>
<message><source>shorts</source><translation>шорты</translation></message>
<message><source>shovel</source><translation>лопата</translation></message>
<message><source>shower</source><translation>душ</translation></message>
<message><source>shrimp</source><translation>креветка</translation></message>
<message><source>shuffle tracks button</source><translation>случайный выбор</translation></message>
<message><source>shushing face</source><translation>тс-с-с</translation></message>
<message><source>sign of the horns</source><translation>рокерский жест</translation></message>
<message><source>silhouette</source><translation>силуэт</translation></message>
<message><source>singer</source><translation>певец</translation></message>
<message><source>six</source><translation>шесть</translation></message>
<message><source>six o’clock</source><translation>шесть часов</translation></message>
<message><source>six-thirty</source><translation>полседьмого</translation></message>
<message><source>skateboard</source><translation>скейтборд</translation></message>
<message><source>ski</source><translation>склон</translation></message>
<message><source>skier</source><translation>горные лыжи</translation></message>
<message><source>skis</source><translation>лыжи</translation></message>
<message><source>skull</source><translation>череп</translation></message>
<message><source>skull and crossbones</source><translation>череп и кости</translation></message>
<message><source>skunk</source><translation>скунс</translation></message>
<message><source>sled</source><translation>санки</translation></message>
<message><source>sleep</source><translation>сон</translation></message>
<message><source>sleeping</source><translation>спокойной</translation></message>
<message><source>sleeping face</source><translation>спит</translation></message>
<message><source>sleepy face</source><translation>хочет спать</translation></message>
<message><source>slightly frowning face</source><translation>немного грустит</translation></message>
<message><source>slightly smiling face</source><translation>слегка улыбается</translation></message>
<message><source>slot machine</source><translation>игровой автомат</translation></message>
<message><source>sloth</source><translation>ленивец</translation></message>
<message><source>small airplane</source><translation>маленький самолет</translation></message>
<message><source>small blue diamond</source><translation>небольшой голубой ромб</translation></message>
<message><source>small orange diamond</source><translation>небольшой оранжевый ромб</translation></message>
<message><source>smile</source><translation>улыбка</translation></message>
<message><source>smiling cat with heart-eyes</source><translation>влюбленный кот</translation></message>
<message><source>smiling face</source><translation>улыбается</translation></message>
<message><source>smiling face with halo</source><translation>с нимбом</translation></message>
<message><source>smiling face with heart-eyes</source><translation>влюбленное лицо</translation></message>
<message><source>smiling face with hearts</source><translation>улыбающееся лицо с сердечками</translation></message>
<message><source>smiling face with horns</source><translation>улыбающийся чертенок</translation></message>
<message><source>smiling face with open hands</source><translation>обнимает</translation></message>
<message><source>smiling face with smiling eyes</source><translation>довольно улыбается</translation></message>
<message><source>smiling face with sunglasses</source><translation>лицо в темных очках</translation></message>
<message><source>smiling face with tear</source><translation>улыбающееся лицо со слезой</translation></message>
<message><source>smirking face</source><translation>ухмыляется</translation></message>
<message><source>smooch</source><translation>скучаю</translation></message>
<message><source>snail</source><translation>улитка</translation></message>
<message><source>snake</source><translation>змея</translation></message>
<message><source>sneezing face</source><translation>чихает</translation></message>
<message><source>snow</source><translation>снег</translation></message>
<message><source>snow-capped mountain</source><translation>гора со снежной шапкой</translation></message>
<message><source>snowboarder</source><translation>сноубордист</translation></message>
<message><source>snowflake</source><translation>снежинка</translation></message>
<message><source>snowman</source><translation>снеговик под снегом</translation></message>
<message><source>snowman without snow</source><translation>снеговик</translation></message>
<message><source>soap</source><translation>мыло</translation></message>
<message><source>soar</source><translation>летать</translation></message>
<message><source>soccer ball</source><translation>футбол</translation></message>
<message><source>socks</source><translation>носки</translation></message>
<message><source>soft ice cream</source><translation>мороженое в стаканчике</translation></message>
<message><source>softball</source><translation>софтбол</translation></message>
<message><source>sound</source><translation>звук</translation></message>
<message><source>space</source><translation>месяц</translation></message>
<message><source>spade suit</source><translation>пики</translation></message>
<message><source>spaghetti</source><translation>спагетти</translation></message>
<message><source>sparkle</source><translation>искра</translation></message>
<message><source>sparkler</source><translation>бенгальский огонь</translation></message>
<message><source>sparkles</source><translation>блестки</translation></message>
<message><source>sparkling heart</source><translation>сверкающее сердце</translation></message>
<message><source>speak-no-evil monkey</source><translation>ничего никому не скажу</translation></message>
<message><source>speaker</source><translation>громкость</translation></message>
<message><source>speaker high volume</source><translation>высокая громкость</translation></message>
<message><source>speaker low volume</source><translation>низкая громкость</translation></message>
<message><source>speaker medium volume</source><translation>средняя громкость</translation></message>
<message><source>speaking head</source><translation>говорящая голова</translation></message>
<message><source>speech balloon</source><translation>облачко с многоточием</translation></message>
<message><source>speedboat</source><translation>катер</translation></message>
<message><source>spider</source><translation>паук</translation></message>
<message><source>spider web</source><translation>паутина</translation></message>
<message><source>spill</source><translation>пролить</translation></message>
<message><source>spiral calendar</source><translation>перекидной календарь</translation></message>
<message><source>spiral notepad</source><translation>перекидной блокнот</translation></message>
<message><source>spiral shell</source><translation>раковина</translation></message>
<message><source>splatter</source><translation>клякса</translation></message>
<message><source>sponge</source><translation>губка</translation></message>
<message><source>spoon</source><translation>ложка</translation></message>
<message><source>sport utility vehicle</source><translation>джип</translation></message>
<message><source>sports medal</source><translation>спортивная медаль</translation></message>
<message><source>spouting whale</source><translation>кит с фонтанчиком</translation></message>
<message><source>square</source><translation>квадрат</translation></message>
<message><source>squid</source><translation>кальмар</translation></message>
<message><source>squinting face with tongue</source><translation>морщится и показывает язык</translation></message>
<message><source>stadium</source><translation>стадион</translation></message>
<message><source>star</source><translation>желтая звезда</translation></message>
<message><source>star and crescent</source><translation>звезда и полумесяц</translation></message>
<message><source>star of David</source><translation>звезда Давида</translation></message>
<message><source>star-struck</source><translation>звезды в глазах</translation></message>
<message><source>stars</source><translation>звезды</translation></message>
<message><source>station</source><translation>железнодорожный вокзал</translation></message>
<message><source>statue</source><translation>статуя</translation></message>
<message><source>steaming</source><translation>пар</translation></message>
<message><source>steaming bowl</source><translation>лапша</translation></message>
<message><source>stethoscope</source><translation>стетоскоп</translation></message>
<message><source>stick</source><translation>клюшка</translation></message>
<message><source>stink</source><translation>вонючка</translation></message>
<message><source>stone</source><translation>камень</translation></message>
<message><source>stop</source><translation>стоп</translation></message>
<message><source>stop button</source><translation>стоп</translation></message>
<message><source>stop sign</source><translation>знак «стоп»</translation></message>
<message><source>stopwatch</source><translation>секундомер</translation></message>
<message><source>straight ruler</source><translation>линейка</translation></message>
<message><source>strawberry</source><translation>клубника</translation></message>
<message><source>student</source><translation>учащийся</translation></message>
<message><source>studio microphone</source><translation>студийный микрофон</translation></message>
<message><source>stuffed flatbread</source><translation>шаурма</translation></message>
<message><source>sun</source><translation>солнце</translation></message>
<message><source>sun behind cloud</source><translation>солнце за облаками</translation></message>
<message><source>sun behind large cloud</source><translation>солнце за облаком</translation></message>
<message><source>sun behind rain cloud</source><translation>слепой дождь</translation></message>
<message><source>sun behind small cloud</source><translation>солнце за облачком</translation></message>
<message><source>sun with face</source><translation>солнце с лицом</translation></message>
<message><source>sunflower</source><translation>подсолнух</translation></message>
<message><source>sunglasses</source><translation>солнечные очки</translation></message>
<message><source>sunrise</source><translation>восход</translation></message>
<message><source>sunrise over mountains</source><translation>восход солнца над горами</translation></message>
<message><source>sunset</source><translation>закат</translation></message>
<message><source>superhero</source><translation>супергерой</translation></message>
<message><source>superpower</source><translation>суперсила</translation></message>
<message><source>supervillain</source><translation>суперзлодей</translation></message>
<message><source>sushi</source><translation>суши</translation></message>
<message><source>suspension railway</source><translation>подвесная железная дорога</translation></message>
<message><source>swan</source><translation>лебедь</translation></message>
<message><source>sweat</source><translation>пот</translation></message>
<message><source>sweat droplets</source><translation>капли пота</translation></message>
<message><source>synagogue</source><translation>синагога</translation></message>
<message><source>syringe</source><translation>шприц</translation></message>
<message><source>t-shirt</source><translation>футболка</translation></message>
<message><source>taco</source><translation>тако</translation></message>
<message><source>takeout box</source><translation>коробка для еды на вынос</translation></message>
<message><source>tamale</source><translation>тамале</translation></message>
<message><source>tanabata tree</source><translation>бамбук с бумажными лентами</translation></message>
<message><source>tangerine</source><translation>мандарин</translation></message>
<message><source>taxi</source><translation>такси</translation></message>
<message><source>tea</source><translation>чай</translation></message>
<message><source>teacher</source><translation>педагог</translation></message>
<message><source>teacup without handle</source><translation>чашка без ручки</translation></message>
<message><source>teapot</source><translation>чайник</translation></message>
<message><source>tear-off calendar</source><translation>отрывной календарь</translation></message>
<message><source>technologist</source><translation>инженер</translation></message>
<message><source>teddy bear</source><translation>плюшевый мишка</translation></message>
<message><source>teeth</source><translation>зубы</translation></message>
<message><source>telephone</source><translation>телефон</translation></message>
<message><source>telephone receiver</source><translation>телефонная трубка</translation></message>
<message><source>telescope</source><translation>телескоп</translation></message>
<message><source>television</source><translation>телевизор</translation></message>
<message><source>ten o’clock</source><translation>десять часов</translation></message>
<message><source>ten-thirty</source><translation>пол-одиннадцатого</translation></message>
<message><source>tennis</source><translation>теннис</translation></message>
<message><source>tent</source><translation>палатка</translation></message>
<message><source>test tube</source><translation>пробирка</translation></message>
<message><source>thanks</source><translation>спасибо</translation></message>
<message><source>thermometer</source><translation>термометр</translation></message>
<message><source>thinking face</source><translation>думает</translation></message>
<message><source>thong sandal</source><translation>вьетнамки</translation></message>
<message><source>thought balloon</source><translation>облачко с мыслями</translation></message>
<message><source>thread</source><translation>катушка ниток</translation></message>
<message><source>three</source><translation>три</translation></message>
<message><source>three o’clock</source><translation>три часа</translation></message>
<message><source>three-thirty</source><translation>полчетвертого</translation></message>
<message><source>thumbs down</source><translation>большой палец вниз</translation></message>
<message><source>thumbs up</source><translation>большой палец вверх</translation></message>
<message><source>ticket</source><translation>билет</translation></message>
<message><source>tiger</source><translation>тигр</translation></message>
<message><source>tiger face</source><translation>морда тигра</translation></message>
<message><source>timer clock</source><translation>таймер</translation></message>
<message><source>tired</source><translation>устал</translation></message>
<message><source>tired face</source><translation>сильная усталость</translation></message>
<message><source>toilet</source><translation>унитаз</translation></message>
<message><source>tomato</source><translation>помидор</translation></message>
<message><source>tongue</source><translation>язык</translation></message>
<message><source>toolbox</source><translation>ящик для инструментов</translation></message>
<message><source>tooth</source><translation>зуб</translation></message>
<message><source>toothbrush</source><translation>зубная щетка</translation></message>
<message><source>top hat</source><translation>цилиндр</translation></message>
<message><source>tornado</source><translation>торнадо</translation></message>
<message><source>trackball</source><translation>трекбол</translation></message>
<message><source>tractor</source><translation>трактор</translation></message>
<message><source>trade mark</source><translation>товарный знак</translation></message>
<message><source>train</source><translation>поезд</translation></message>
<message><source>tram</source><translation>трамвай</translation></message>
<message><source>tram car</source><translation>трамвайный вагон</translation></message>
<message><source>transgender</source><translation>трансгендер</translation></message>
<message><source>transgender flag</source><translation>флаг трансгендерного сообщества</translation></message>
<message><source>transgender symbol</source><translation>трансгендер</translation></message>
<message><source>tree</source><translation>дерево</translation></message>
<message><source>trend</source><translation>тенденция</translation></message>
<message><source>triangle</source><translation>треугольник</translation></message>
<message><source>triangular flag</source><translation>треугольный флаг</translation></message>
<message><source>triangular ruler</source><translation>линейка-треугольник</translation></message>
<message><source>trident emblem</source><translation>трезубец</translation></message>
<message><source>troll</source><translation>тролль</translation></message>
<message><source>trolleybus</source><translation>троллейбус</translation></message>
<message><source>trophy</source><translation>кубок</translation></message>
<message><source>tropical</source><translation>тропики</translation></message>
<message><source>tropical drink</source><translation>тропический коктейль</translation></message>
<message><source>tropical fish</source><translation>тропическая рыба</translation></message>
<message><source>truck</source><translation>грузовик</translation></message>
<message><source>trumpet</source><translation>труба</translation></message>
<message><source>tulip</source><translation>тюльпан</translation></message>
<message><source>tumbler glass</source><translation>стакан с виски</translation></message>
<message><source>turkey</source><translation>индейка</translation></message>
<message><source>turtle</source><translation>черепаха</translation></message>
<message><source>twelve o’clock</source><translation>двенадцать часов</translation></message>
<message><source>twelve-thirty</source><translation>полпервого</translation></message>
<message><source>two hearts</source><translation>два сердца</translation></message>
<message><source>two o’clock</source><translation>два часа</translation></message>
<message><source>two-hump camel</source><translation>двугорбый верблюд</translation></message>
<message><source>two-thirty</source><translation>полтретьего</translation></message>
<message><source>type</source><translation>цвет</translation></message>
<message><source>ufo</source><translation>пришелец</translation></message>
<message><source>umbrella</source><translation>зонт</translation></message>
<message><source>umbrella on ground</source><translation>пляжный зонт</translation></message>
<message><source>umbrella with rain drops</source><translation>зонт под дождем</translation></message>
<message><source>unamused face</source><translation>скучает</translation></message>
<message><source>unicorn</source><translation>голова единорога</translation></message>
<message><source>unlocked</source><translation>открытый замок</translation></message>
<message><source>up</source><translation>вверх</translation></message>
<message><source>up arrow</source><translation>стрелка вверх</translation></message>
<message><source>up-down arrow</source><translation>стрелка вверх-вниз</translation></message>
<message><source>up-left arrow</source><translation>стрелка влево-вверх</translation></message>
<message><source>up-right arrow</source><translation>стрелка вправо-вверх</translation></message>
<message><source>upside-down face</source><translation>вверх тормашками</translation></message>
<message><source>upwards button</source><translation>треугольник острием вверх</translation></message>
<message><source>valentine</source><translation>валентинка</translation></message>
<message><source>vampire</source><translation>вампир</translation></message>
<message><source>vegetable</source><translation>овощ</translation></message>
<message><source>vertical traffic light</source><translation>вертикальный светофор</translation></message>
<message><source>vibration mode</source><translation>режим вибрации</translation></message>
<message><source>victory hand</source><translation>жест V</translation></message>
<message><source>video camera</source><translation>видеокамера</translation></message>
<message><source>video game</source><translation>видеоигры</translation></message>
<message><source>videocassette</source><translation>видеокассета</translation></message>
<message><source>violin</source><translation>скрипка</translation></message>
<message><source>volcano</source><translation>вулкан</translation></message>
<message><source>volleyball</source><translation>волейбол</translation></message>
<message><source>volume</source><translation>динамик</translation></message>
<message><source>vulcan salute</source><translation>вулканский салют</translation></message>
<message><source>waffle</source><translation>вафля</translation></message>
<message><source>waning</source><translation>убывающая</translation></message>
<message><source>waning crescent moon</source><translation>старая луна</translation></message>
<message><source>waning gibbous moon</source><translation>убывающая луна</translation></message>
<message><source>warning</source><translation>значок предупреждения</translation></message>
<message><source>wastebasket</source><translation>корзина для мусора</translation></message>
<message><source>watch</source><translation>наручные часы</translation></message>
<message><source>water buffalo</source><translation>буйвол</translation></message>
<message><source>water closet</source><translation>туалет</translation></message>
<message><source>water pistol</source><translation>водяной пистолет</translation></message>
<message><source>water wave</source><translation>волна</translation></message>
<message><source>watermelon</source><translation>арбуз</translation></message>
<message><source>waving</source><translation>реет</translation></message>
<message><source>waving hand</source><translation>машет рукой</translation></message>
<message><source>wavy dash</source><translation>волнистая линия</translation></message>
<message><source>waxing crescent moon</source><translation>молодая луна</translation></message>
<message><source>waxing gibbous moon</source><translation>прибывающая луна</translation></message>
<message><source>wc</source><translation>уборная</translation></message>
<message><source>weapon</source><translation>оружие</translation></message>
<message><source>weary cat</source><translation>кот в шоке</translation></message>
<message><source>weary face</source><translation>усталость</translation></message>
<message><source>wedding</source><translation>свадьба</translation></message>
<message><source>whale</source><translation>кит</translation></message>
<message><source>wheel</source><translation>автомобильное колесо</translation></message>
<message><source>wheel of dharma</source><translation>колесо дхармы</translation></message>
<message><source>wheelchair</source><translation>кресло</translation></message>
<message><source>wheelchair symbol</source><translation>значок «для инвалидов»</translation></message>
<message><source>white</source><translation>белый</translation></message>
<message><source>white cane</source><translation>белая трость</translation></message>
<message><source>white circle</source><translation>белый круг</translation></message>
<message><source>white exclamation mark</source><translation>белый восклицательный знак</translation></message>
<message><source>white flag</source><translation>белый флаг</translation></message>
<message><source>white flower</source><translation>белый цветок</translation></message>
<message><source>white heart</source><translation>белое сердце</translation></message>
<message><source>white large square</source><translation>большой белый квадрат</translation></message>
<message><source>white medium square</source><translation>белый квадрат</translation></message>
<message><source>white medium-small square</source><translation>небольшой белый квадрат</translation></message>
<message><source>white question mark</source><translation>белый вопросительный знак</translation></message>
<message><source>white small square</source><translation>белый квадратик</translation></message>
<message><source>white square button</source><translation>кнопка с белой рамкой</translation></message>
<message><source>whoa</source><translation>вау</translation></message>
<message><source>wilted flower</source><translation>увядший цветок</translation></message>
<message><source>wind</source><translation>ветер</translation></message>
<message><source>wind chime</source><translation>музыка ветра</translation></message>
<message><source>wind face</source><translation>дует ветер</translation></message>
<message><source>window</source><translation>окно</translation></message>
<message><source>wine glass</source><translation>бокал вина</translation></message>
<message><source>wing</source><translation>крыло</translation></message>
<message><source>winking face</source><translation>подмигивает</translation></message>
<message><source>winking face with tongue</source><translation>показывает язык и подмигивает</translation></message>
<message><source>wireless</source><translation>беспроводная сеть</translation></message>
<message><source>wizard</source><translation>волшебник</translation></message>
<message><source>wlan</source><translation>wlan</translation></message>
<message><source>wolf</source><translation>морда волка</translation></message>
<message><source>woman</source><translation>женщина</translation></message>
<message><source>woman and man holding hands</source><translation>мужчина и женщина</translation></message>
<message><source>woman artist</source><translation>художница</translation></message>
<message><source>woman astronaut</source><translation>женщина-космонавт</translation></message>
<message><source>woman biking</source><translation>женщина на велосипеде</translation></message>
<message><source>woman bouncing ball</source><translation>женщина с мячом</translation></message>
<message><source>woman bowing</source><translation>женщина кланяется</translation></message>
<message><source>woman cartwheeling</source><translation>женщина-акробат</translation></message>
<message><source>woman climbing</source><translation>женщина взбирается по скале</translation></message>
<message><source>woman construction worker</source><translation>женщина-строитель</translation></message>
<message><source>woman cook</source><translation>повариха</translation></message>
<message><source>woman dancing</source><translation>танцующая женщина</translation></message>
<message><source>woman detective</source><translation>женщина-детектив</translation></message>
<message><source>woman elf</source><translation>женщина-эльф</translation></message>
<message><source>woman facepalming</source><translation>женщина потеряла дар речи</translation></message>
<message><source>woman factory worker</source><translation>работница</translation></message>
<message><source>woman fairy</source><translation>женщина-фея</translation></message>
<message><source>woman farmer</source><translation>женщина-фермер</translation></message>
<message><source>woman feeding baby</source><translation>кормящая женщина</translation></message>
<message><source>woman firefighter</source><translation>женщина-пожарный</translation></message>
<message><source>woman frowning</source><translation>нахмурившаяся женщина</translation></message>
<message><source>woman genie</source><translation>женщина-джинн</translation></message>
<message><source>woman gesturing NO</source><translation>женщина против</translation></message>
<message><source>woman gesturing OK</source><translation>женщина за</translation></message>
<message><source>woman getting haircut</source><translation>женщина у парикмахера</translation></message>
<message><source>woman getting massage</source><translation>женщине массируют лицо</translation></message>
<message><source>woman golfing</source><translation>женщина играет в гольф</translation></message>
<message><source>woman guard</source><translation>женщина-гвардеец</translation></message>
<message><source>woman health worker</source><translation>женщина-врач</translation></message>
<message><source>woman in lotus position</source><translation>женщина в позе лотоса</translation></message>
<message><source>woman in manual wheelchair</source><translation>женщина в ручном кресле-коляске</translation></message>
<message><source>woman in manual wheelchair: facing right</source><translation>женщина в ручном кресле-коляске: , направленные вправо</translation></message>
<message><source>woman in motorized wheelchair</source><translation>женщина в электрическом кресле-коляске</translation></message>
<message><source>woman in motorized wheelchair: facing right</source><translation>женщина в электрическом кресле-коляске: , направленные вправо</translation></message>
<message><source>woman in steamy room</source><translation>женщина в бане</translation></message>
<message><source>woman in tuxedo</source><translation>женщина в смокинге</translation></message>
<message><source>woman judge</source><translation>женщина-судья</translation></message>
<message><source>woman juggling</source><translation>женщина-жонглер</translation></message>
<message><source>woman kneeling</source><translation>женщина на коленях</translation></message>
<message><source>woman kneeling: facing right</source><translation>женщина на коленях: , направленные вправо</translation></message>
<message><source>woman lifting weights</source><translation>женщина со штангой</translation></message>
<message><source>woman mage</source><translation>волшебница</translation></message>
<message><source>woman mechanic</source><translation>женщина-механик</translation></message>
<message><source>woman mountain biking</source><translation>женщина на горном велосипеде</translation></message>
<message><source>woman office worker</source><translation>офисная работница</translation></message>
<message><source>woman pilot</source><translation>женщина-пилот</translation></message>
<message><source>woman playing handball</source><translation>гандболистка</translation></message>
<message><source>woman playing water polo</source><translation>женщина играет в водное поло</translation></message>
<message><source>woman police officer</source><translation>женщина-полицейский</translation></message>
<message><source>woman pouting</source><translation>обиженная женщина</translation></message>
<message><source>woman raising hand</source><translation>женщина с поднятой рукой</translation></message>
<message><source>woman rowing boat</source><translation>гребчиха</translation></message>
<message><source>woman running</source><translation>женщина бежит</translation></message>
<message><source>woman running: facing right</source><translation>женщина бежит: , направленные вправо</translation></message>
<message><source>woman scientist</source><translation>ученая</translation></message>
<message><source>woman shrugging</source><translation>женщина пожимает плечами</translation></message>
<message><source>woman singer</source><translation>певица</translation></message>
<message><source>woman standing</source><translation>женщина стоит</translation></message>
<message><source>woman student</source><translation>студентка</translation></message>
<message><source>woman superhero</source><translation>женщина-супергерой</translation></message>
<message><source>woman supervillain</source><translation>женщина-суперзлодей</translation></message>
<message><source>woman surfing</source><translation>серфингистка</translation></message>
<message><source>woman swimming</source><translation>пловчиха</translation></message>
<message><source>woman teacher</source><translation>учительница</translation></message>
<message><source>woman technologist</source><translation>женщина-инженер</translation></message>
<message><source>woman tipping hand</source><translation>женщина тянет руку</translation></message>
<message><source>woman vampire</source><translation>женщина-вампир</translation></message>
<message><source>woman walking</source><translation>женщина идет</translation></message>
<message><source>woman walking: facing right</source><translation>женщина идет: , направленные вправо</translation></message>
<message><source>woman wearing turban</source><translation>женщина в тюрбане</translation></message>
<message><source>woman with headscarf</source><translation>женщина в платке</translation></message>
<message><source>woman with veil</source><translation>женщина в фате</translation></message>
<message><source>woman with white cane</source><translation>женщина с тростью для ходьбы</translation></message>
<message><source>woman with white cane: facing right</source><translation>женщина с тростью для ходьбы: , направленные вправо</translation></message>
<message><source>woman zombie</source><translation>женщина-зомби</translation></message>
<message><source>woman: bald</source><translation>женщина: без волос</translation></message>
<message><source>woman: beard</source><translation>бородатая женщина</translation></message>
<message><source>woman: blond hair</source><translation>блондинка</translation></message>
<message><source>woman: curly hair</source><translation>женщина: кудрявые волосы</translation></message>
<message><source>woman: red hair</source><translation>женщина: рыжие волосы</translation></message>
<message><source>woman: white hair</source><translation>женщина: седые волосы</translation></message>
<message><source>woman’s</source><translation>женская</translation></message>
<message><source>woman’s boot</source><translation>сапог</translation></message>
<message><source>woman’s clothes</source><translation>блузка</translation></message>
<message><source>woman’s hat</source><translation>шляпка</translation></message>
<message><source>woman’s sandal</source><translation>босоножки</translation></message>
<message><source>women holding hands</source><translation>две женщины</translation></message>
<message><source>women with bunny ears</source><translation>женщины с ушами кролика</translation></message>
<message><source>women wrestling</source><translation>женщины-борцы</translation></message>
<message><source>women’s room</source><translation>женский туалет</translation></message>
<message><source>wood</source><translation>древесина</translation></message>
<message><source>wool</source><translation>шерсть</translation></message>
<message><source>woozy face</source><translation>чувствует головокружение</translation></message>
<message><source>world</source><translation>глобус</translation></message>
<message><source>world map</source><translation>карта мира</translation></message>
<message><source>worm</source><translation>червяк</translation></message>
<message><source>worried face</source><translation>беспокоится</translation></message>
<message><source>wrapped gift</source><translation>подарок</translation></message>
<message><source>wrench</source><translation>гаечный ключ</translation></message>
<message><source>writing hand</source><translation>пишущая рука</translation></message>
<message><source>x-ray</source><translation>рентген</translation></message>
<message><source>yarn</source><translation>клубок</translation></message>
<message><source>yawn</source><translation>боковую</translation></message>
<message><source>yawning face</source><translation>зевает</translation></message>
<message><source>yellow circle</source><translation>желтый круг</translation></message>
<message><source>yellow heart</source><translation>желтое сердце</translation></message>
<message><source>yellow square</source><translation>желтый квадрат</translation></message>
<message><source>yen banknote</source><translation>банкнота иены</translation></message>
<message><source>yin yang</source><translation>инь-ян</translation></message>
<message><source>yo-yo</source><translation>йо-йо</translation></message>
<message><source>young</source><translation>дитя</translation></message>
<message><source>zany face</source><translation>сумасшедшее лицо</translation></message>
<message><source>zebra</source><translation>зебра</translation></message>
<message><source>zipper-mouth face</source><translation>рот на замке</translation></message>
<message><source>zodiac</source><translation>зодиак</translation></message>
<message><source>zombie</source><translation>зомби</translation></message>
<message><source>zoo</source><translation>зоопарк</translation></message>
</context>
</TS>
