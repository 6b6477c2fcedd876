<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context><name>EmojiLocalisation</name>
<message><source>!</source><translation>!</translation></message>
<message><source>10:00</source><translation>10:00</translation></message>
<message><source>11:00</source><translation>11:00</translation></message>
<message><source>12:00</source><translation>12:00</translation></message>
<message><source>1:00</source><translation>1:00</translation></message>
<message><source>1:30</source><translation>1:30</translation></message>
<message><source>1st place medal</source><translation>金メダル</translation></message>
<message><source>2:00</source><translation>2:00</translation></message>
<message><source>2:30</source><translation>2:30</translation></message>
<message><source>2nd place medal</source><translation>銀メダル</translation></message>
<message><source>3:00</source><translation>3:00</translation></message>
<message><source>3:30</source><translation>3:30</translation></message>
<message><source>3rd place medal</source><translation>銅メダル</translation></message>
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
<message><source>A button (blood type)</source><translation>血液型A型</translation></message>
<message><source>AB button (blood type)</source><translation>血液型AB型</translation></message>
<message><source>ATM sign</source><translation>ATM</translation></message>
<message><source>Aquarius</source><translation>みずがめ座</translation></message>
<message><source>Aries</source><translation>おひつじ座</translation></message>
<message><source>B button (blood type)</source><translation>血液型B型</translation></message>
<message><source>BACK arrow</source><translation>BACK矢印</translation></message>
<message><source>CL button</source><translation>CLマーク</translation></message>
<message><source>COOL button</source><translation>COOLマーク</translation></message>
<message><source>Cancer</source><translation>かに座</translation></message>
<message><source>Capricorn</source><translation>やぎ座</translation></message>
<message><source>Christmas tree</source><translation>クリスマスツリー</translation></message>
<message><source>END arrow</source><translation>END矢印</translation></message>
<message><source>FREE button</source><translation>FREEマーク</translation></message>
<message><source>Gemini</source><translation>ふたご座</translation></message>
<message><source>ID button</source><translation>IDマーク</translation></message>
<message><source>Japanese castle</source><translation>城</translation></message>
<message><source>Japanese dolls</source><translation>ひな祭り</translation></message>
<message><source>Japanese post office</source><translation>郵便局</translation></message>
<message><source>Japanese symbol for beginner</source><translation>初心者マーク</translation></message>
<message><source>Japanese “acceptable” button</source><translation>可マーク</translation></message>
<message><source>Japanese “application” button</source><translation>申マーク</translation></message>
<message><source>Japanese “bargain” button</source><translation>マル得</translation></message>
<message><source>Japanese “congratulations” button</source><translation>祝マーク</translation></message>
<message><source>Japanese “discount” button</source><translation>割マーク</translation></message>
<message><source>Japanese “free of charge” button</source><translation>無マーク</translation></message>
<message><source>Japanese “here” button</source><translation>ココのマーク</translation></message>
<message><source>Japanese “monthly amount” button</source><translation>月マーク</translation></message>
<message><source>Japanese “no vacancy” button</source><translation>満マーク</translation></message>
<message><source>Japanese “not free of charge” button</source><translation>有マーク</translation></message>
<message><source>Japanese “open for business” button</source><translation>営マーク</translation></message>
<message><source>Japanese “passing grade” button</source><translation>合マーク</translation></message>
<message><source>Japanese “prohibited” button</source><translation>禁マーク</translation></message>
<message><source>Japanese “reserved” button</source><translation>指マーク</translation></message>
<message><source>Japanese “secret” button</source><translation>マル秘</translation></message>
<message><source>Japanese “service charge” button</source><translation>サのマーク</translation></message>
<message><source>Japanese “vacancy” button</source><translation>空マーク</translation></message>
<message><source>Leo</source><translation>しし座</translation></message>
<message><source>Libra</source><translation>てんびん座</translation></message>
<message><source>Mrs. Claus</source><translation>女性のサンタ</translation></message>
<message><source>Mx Claus</source><translation>サンタさん</translation></message>
<message><source>NEW button</source><translation>NEWマーク</translation></message>
<message><source>NG button</source><translation>NGマーク</translation></message>
<message><source>O button (blood type)</source><translation>血液型O型</translation></message>
<message><source>OK button</source><translation>OKマーク</translation></message>
<message><source>OK hand</source><translation>OKの手</translation></message>
<message><source>ON! arrow</source><translation>ON矢印</translation></message>
<message><source>Ophiuchus</source><translation>へびつかい座</translation></message>
<message><source>P button</source><translation>Pマーク</translation></message>
<message><source>Pisces</source><translation>うお座</translation></message>
<message><source>SOON arrow</source><translation>SOON矢印</translation></message>
<message><source>SOS button</source><translation>SOSマーク</translation></message>
<message><source>Sagittarius</source><translation>いて座</translation></message>
<message><source>Santa Claus</source><translation>サンタ</translation></message>
<message><source>Scorpio</source><translation>さそり座</translation></message>
<message><source>Statue of Liberty</source><translation>自由の女神</translation></message>
<message><source>T-Rex</source><translation>ティラノサウルス</translation></message>
<message><source>TOP arrow</source><translation>TOP矢印</translation></message>
<message><source>Taurus</source><translation>おうし座</translation></message>
<message><source>Tokyo tower</source><translation>東京タワー</translation></message>
<message><source>UP! button</source><translation>UPマーク</translation></message>
<message><source>VS button</source><translation>VSマーク</translation></message>
<message><source>Virgo</source><translation>おとめ座</translation></message>
<message><source>ZZZ</source><translation>グーグー</translation></message>
<message><source>abacus</source><translation>そろばん</translation></message>
<message><source>abcd</source><translation>abcd</translation></message>
<message><source>accessibility</source><translation>アクセシビリティ</translation></message>
<message><source>accordion</source><translation>アコーディオン</translation></message>
<message><source>actor</source><translation>俳優</translation></message>
<message><source>adhesive bandage</source><translation>絆創膏</translation></message>
<message><source>admission tickets</source><translation>入場券</translation></message>
<message><source>adult</source><translation>大人</translation></message>
<message><source>aerial tramway</source><translation>ロープウェイ</translation></message>
<message><source>airplane</source><translation>飛行機</translation></message>
<message><source>airplane arrival</source><translation>飛行機着陸</translation></message>
<message><source>airplane departure</source><translation>飛行機離陸</translation></message>
<message><source>alarm clock</source><translation>目覚まし時計</translation></message>
<message><source>alembic</source><translation>蒸留器</translation></message>
<message><source>alien</source><translation>エイリアン</translation></message>
<message><source>alien monster</source><translation>インベーダー</translation></message>
<message><source>ambulance</source><translation>救急車</translation></message>
<message><source>american football</source><translation>アメフト</translation></message>
<message><source>amphora</source><translation>壺</translation></message>
<message><source>amulet</source><translation>お守り</translation></message>
<message><source>anatomical heart</source><translation>心臓</translation></message>
<message><source>anchor</source><translation>錨</translation></message>
<message><source>anger symbol</source><translation>むかっ</translation></message>
<message><source>angry</source><translation>怒り</translation></message>
<message><source>angry face</source><translation>ぷんぷん</translation></message>
<message><source>angry face with horns</source><translation>怒った悪魔</translation></message>
<message><source>anguished face</source><translation>苦悩</translation></message>
<message><source>animal</source><translation>動物</translation></message>
<message><source>anniversary</source><translation>記念日</translation></message>
<message><source>ant</source><translation>アリ</translation></message>
<message><source>antenna bars</source><translation>アンテナマーク</translation></message>
<message><source>anxious face with sweat</source><translation>冷や汗青ざめ</translation></message>
<message><source>arm</source><translation>腕</translation></message>
<message><source>arrow</source><translation>矢印</translation></message>
<message><source>art</source><translation>芸術</translation></message>
<message><source>articulated lorry</source><translation>トレーラー</translation></message>
<message><source>artist</source><translation>芸術家</translation></message>
<message><source>artist palette</source><translation>絵の具パレット</translation></message>
<message><source>astonished face</source><translation>びっくり</translation></message>
<message><source>astronaut</source><translation>宇宙飛行士</translation></message>
<message><source>atom symbol</source><translation>原子のシンボル</translation></message>
<message><source>auto rickshaw</source><translation>三輪タクシー</translation></message>
<message><source>automobile</source><translation>自動車</translation></message>
<message><source>avocado</source><translation>アボカド</translation></message>
<message><source>awful</source><translation>悲しい</translation></message>
<message><source>axe</source><translation>斧</translation></message>
<message><source>baby</source><translation>赤ん坊</translation></message>
<message><source>baby angel</source><translation>天使</translation></message>
<message><source>baby bottle</source><translation>ほにゅう瓶</translation></message>
<message><source>baby chick</source><translation>ひよこ</translation></message>
<message><source>baby symbol</source><translation>ベビーマーク</translation></message>
<message><source>backhand index pointing down</source><translation>下指差し</translation></message>
<message><source>backhand index pointing left</source><translation>左指差し</translation></message>
<message><source>backhand index pointing right</source><translation>右指差し</translation></message>
<message><source>backhand index pointing up</source><translation>手の甲上指差し</translation></message>
<message><source>backpack</source><translation>バックパック</translation></message>
<message><source>bacon</source><translation>ベーコン</translation></message>
<message><source>bacteria</source><translation>バクテリア</translation></message>
<message><source>badger</source><translation>アナグマ</translation></message>
<message><source>badminton</source><translation>バドミントン</translation></message>
<message><source>bae</source><translation>恋人</translation></message>
<message><source>bag</source><translation>バッグ</translation></message>
<message><source>bagel</source><translation>ベーグル</translation></message>
<message><source>baggage claim</source><translation>手荷物受取</translation></message>
<message><source>baguette bread</source><translation>バゲット</translation></message>
<message><source>balance scale</source><translation>天秤</translation></message>
<message><source>ball</source><translation>ボール</translation></message>
<message><source>ballet</source><translation>バレエシューズ</translation></message>
<message><source>ballet shoes</source><translation>トウシューズ</translation></message>
<message><source>balloon</source><translation>風船</translation></message>
<message><source>ballot box with ballot</source><translation>投票箱</translation></message>
<message><source>banana</source><translation>バナナ</translation></message>
<message><source>banjo</source><translation>バンジョー</translation></message>
<message><source>bank</source><translation>銀行</translation></message>
<message><source>bar</source><translation>バー</translation></message>
<message><source>bar chart</source><translation>棒グラフ</translation></message>
<message><source>barber pole</source><translation>床屋</translation></message>
<message><source>baseball</source><translation>野球</translation></message>
<message><source>basket</source><translation>かご</translation></message>
<message><source>basketball</source><translation>バスケットボール</translation></message>
<message><source>bat</source><translation>コウモリ</translation></message>
<message><source>bathing</source><translation>水着</translation></message>
<message><source>bathroom</source><translation>お手洗い</translation></message>
<message><source>bathtub</source><translation>バスタブ</translation></message>
<message><source>battery</source><translation>電池</translation></message>
<message><source>bday</source><translation>ハッピーバースデー</translation></message>
<message><source>beach with umbrella</source><translation>ビーチパラソル</translation></message>
<message><source>beaming face with smiling eyes</source><translation>にやっと笑う</translation></message>
<message><source>beans</source><translation>豆</translation></message>
<message><source>bear</source><translation>クマの顔</translation></message>
<message><source>beating heart</source><translation>ドキドキするハート</translation></message>
<message><source>beaver</source><translation>ビーバー</translation></message>
<message><source>bed</source><translation>ベッド</translation></message>
<message><source>bedtime</source><translation>おやすみ</translation></message>
<message><source>beer mug</source><translation>ビールジョッキ</translation></message>
<message><source>beetle</source><translation>カブトムシ</translation></message>
<message><source>behind</source><translation>曇り</translation></message>
<message><source>bell</source><translation>ベル</translation></message>
<message><source>bell pepper</source><translation>ピーマン</translation></message>
<message><source>bell with slash</source><translation>ベル消音</translation></message>
<message><source>bellhop bell</source><translation>ベルボーイベル</translation></message>
<message><source>bento box</source><translation>弁当</translation></message>
<message><source>beverage box</source><translation>紙パック飲料</translation></message>
<message><source>bicycle</source><translation>自転車</translation></message>
<message><source>bike</source><translation>サイクリング</translation></message>
<message><source>bikini</source><translation>ビキニ</translation></message>
<message><source>billed cap</source><translation>キャップ</translation></message>
<message><source>biohazard</source><translation>バイオハザード</translation></message>
<message><source>biologist</source><translation>生物学者</translation></message>
<message><source>bird</source><translation>鳥</translation></message>
<message><source>birthday cake</source><translation>バースデーケーキ</translation></message>
<message><source>bison</source><translation>バイソン</translation></message>
<message><source>biting lip</source><translation>唇を咬んでいる口</translation></message>
<message><source>black</source><translation>黒</translation></message>
<message><source>black bird</source><translation>黒い鳥</translation></message>
<message><source>black cat</source><translation>黒猫</translation></message>
<message><source>black circle</source><translation>黒い丸</translation></message>
<message><source>black flag</source><translation>黒旗</translation></message>
<message><source>black heart</source><translation>黒いハート</translation></message>
<message><source>black large square</source><translation>黒四角特大</translation></message>
<message><source>black medium square</source><translation>黒四角大</translation></message>
<message><source>black medium-small square</source><translation>黒四角中</translation></message>
<message><source>black nib</source><translation>ペン先</translation></message>
<message><source>black small square</source><translation>黒四角小</translation></message>
<message><source>black square button</source><translation>黒枠四角</translation></message>
<message><source>blind</source><translation>視覚</translation></message>
<message><source>blood</source><translation>血液型</translation></message>
<message><source>blossom</source><translation>開花</translation></message>
<message><source>blowfish</source><translation>フグ</translation></message>
<message><source>blu-ray</source><translation>Blu-ray</translation></message>
<message><source>blue</source><translation>青</translation></message>
<message><source>blue book</source><translation>青の本</translation></message>
<message><source>blue circle</source><translation>青い丸</translation></message>
<message><source>blue heart</source><translation>青いハート</translation></message>
<message><source>blue square</source><translation>青い四角</translation></message>
<message><source>blueberries</source><translation>ブルーベリー</translation></message>
<message><source>boar</source><translation>イノシシ</translation></message>
<message><source>boat</source><translation>船</translation></message>
<message><source>body</source><translation>からだ</translation></message>
<message><source>bodybuilder</source><translation>筋トレ</translation></message>
<message><source>bomb</source><translation>爆弾</translation></message>
<message><source>bone</source><translation>骨</translation></message>
<message><source>book</source><translation>本</translation></message>
<message><source>bookmark</source><translation>しおり</translation></message>
<message><source>bookmark tabs</source><translation>ページに付箋</translation></message>
<message><source>books</source><translation>本の山</translation></message>
<message><source>boomerang</source><translation>ブーメラン</translation></message>
<message><source>boot</source><translation>ブーツ</translation></message>
<message><source>bottle with popping cork</source><translation>シャンパン</translation></message>
<message><source>bouquet</source><translation>花束</translation></message>
<message><source>bow and arrow</source><translation>弓矢</translation></message>
<message><source>bowl with spoon</source><translation>ボウルとスプーン</translation></message>
<message><source>bowling</source><translation>ボウリング</translation></message>
<message><source>box</source><translation>箱</translation></message>
<message><source>boxing glove</source><translation>ボクシング</translation></message>
<message><source>boy</source><translation>男の子</translation></message>
<message><source>brain</source><translation>脳</translation></message>
<message><source>bread</source><translation>食パン</translation></message>
<message><source>breakfast</source><translation>朝食</translation></message>
<message><source>breast-feeding</source><translation>授乳</translation></message>
<message><source>brick</source><translation>れんが</translation></message>
<message><source>bridge at night</source><translation>夜の橋</translation></message>
<message><source>briefcase</source><translation>ブリーフケース</translation></message>
<message><source>briefs</source><translation>ブリーフ</translation></message>
<message><source>bright button</source><translation>高輝度</translation></message>
<message><source>bro</source><translation>成人</translation></message>
<message><source>broccoli</source><translation>ブロッコリー</translation></message>
<message><source>broken chain</source><translation>壊れた鎖</translation></message>
<message><source>broken heart</source><translation>割れたハート</translation></message>
<message><source>broom</source><translation>ほうき</translation></message>
<message><source>brown</source><translation>茶色</translation></message>
<message><source>brown circle</source><translation>茶色の丸</translation></message>
<message><source>brown heart</source><translation>茶色いハート</translation></message>
<message><source>brown mushroom</source><translation>きのこ</translation></message>
<message><source>brown square</source><translation>茶色い四角</translation></message>
<message><source>bubble tea</source><translation>タピオカドリンク</translation></message>
<message><source>bubbles</source><translation>泡</translation></message>
<message><source>bucket</source><translation>バケツ</translation></message>
<message><source>buffalo</source><translation>バッファロー</translation></message>
<message><source>bug</source><translation>毛虫</translation></message>
<message><source>building</source><translation>建物</translation></message>
<message><source>building construction</source><translation>建設中</translation></message>
<message><source>bullet train</source><translation>0系新幹線</translation></message>
<message><source>bullseye</source><translation>的</translation></message>
<message><source>bundle</source><translation>厚着</translation></message>
<message><source>burrito</source><translation>ブリトー</translation></message>
<message><source>bus</source><translation>バス</translation></message>
<message><source>bus stop</source><translation>バス停</translation></message>
<message><source>bust</source><translation>上半身</translation></message>
<message><source>bust in silhouette</source><translation>人のシルエット</translation></message>
<message><source>busts in silhouette</source><translation>2人のシルエット</translation></message>
<message><source>butter</source><translation>バター</translation></message>
<message><source>butterfly</source><translation>チョウ</translation></message>
<message><source>cactus</source><translation>サボテン</translation></message>
<message><source>calendar</source><translation>カレンダー</translation></message>
<message><source>call me hand</source><translation>電話の合図</translation></message>
<message><source>camel</source><translation>ラクダ</translation></message>
<message><source>camera</source><translation>カメラ</translation></message>
<message><source>camera with flash</source><translation>フラッシュを焚いているカメラ</translation></message>
<message><source>camping</source><translation>キャンプ</translation></message>
<message><source>candle</source><translation>ろうそく</translation></message>
<message><source>candy</source><translation>キャンディ</translation></message>
<message><source>canned food</source><translation>缶詰</translation></message>
<message><source>canoe</source><translation>カヌー</translation></message>
<message><source>card</source><translation>カード</translation></message>
<message><source>card file box</source><translation>カードファイルボックス</translation></message>
<message><source>card index</source><translation>カードインデックス</translation></message>
<message><source>card index dividers</source><translation>カードフォルダー</translation></message>
<message><source>carousel horse</source><translation>メリーゴーランド</translation></message>
<message><source>carp streamer</source><translation>こいのぼり</translation></message>
<message><source>carpentry saw</source><translation>のこぎり</translation></message>
<message><source>carrot</source><translation>人参</translation></message>
<message><source>cash</source><translation>銀行</translation></message>
<message><source>castle</source><translation>西洋の城</translation></message>
<message><source>cat</source><translation>ネコ</translation></message>
<message><source>cat face</source><translation>ネコの顔</translation></message>
<message><source>cat with tears of joy</source><translation>嬉し泣きする猫</translation></message>
<message><source>cat with wry smile</source><translation>にやりとする猫</translation></message>
<message><source>celebration</source><translation>お祝い</translation></message>
<message><source>chains</source><translation>鎖</translation></message>
<message><source>chair</source><translation>椅子</translation></message>
<message><source>chart decreasing</source><translation>グラフ下向き</translation></message>
<message><source>chart increasing</source><translation>グラフ上向き</translation></message>
<message><source>chart increasing with yen</source><translation>為替</translation></message>
<message><source>check box with check</source><translation>チェックボックス</translation></message>
<message><source>check mark</source><translation>太字のチェック</translation></message>
<message><source>check mark button</source><translation>白抜きのチェック</translation></message>
<message><source>cheese</source><translation>チーズ</translation></message>
<message><source>cheese wedge</source><translation>チーズ</translation></message>
<message><source>chef</source><translation>料理</translation></message>
<message><source>chemist</source><translation>化学者</translation></message>
<message><source>chequered flag</source><translation>チェッカーフラッグ</translation></message>
<message><source>cherries</source><translation>さくらんぼ</translation></message>
<message><source>cherry blossom</source><translation>桜</translation></message>
<message><source>chess pawn</source><translation>チェスの駒</translation></message>
<message><source>chestnut</source><translation>くり</translation></message>
<message><source>chick</source><translation>ひよこ</translation></message>
<message><source>chicken</source><translation>にわとり</translation></message>
<message><source>child</source><translation>子供</translation></message>
<message><source>children crossing</source><translation>児童横断</translation></message>
<message><source>chipmunk</source><translation>リス</translation></message>
<message><source>chocolate bar</source><translation>チョコレート</translation></message>
<message><source>chopsticks</source><translation>はし</translation></message>
<message><source>church</source><translation>教会</translation></message>
<message><source>cigarette</source><translation>煙草</translation></message>
<message><source>cinema</source><translation>映画</translation></message>
<message><source>circle</source><translation>丸</translation></message>
<message><source>circled M</source><translation>丸いMマーク</translation></message>
<message><source>circus tent</source><translation>サーカス</translation></message>
<message><source>citrus</source><translation>柑橘類</translation></message>
<message><source>city</source><translation>都会</translation></message>
<message><source>cityscape</source><translation>高層ビル</translation></message>
<message><source>cityscape at dusk</source><translation>夕暮れの都会</translation></message>
<message><source>clamp</source><translation>万力</translation></message>
<message><source>clapper board</source><translation>カチンコ</translation></message>
<message><source>clapping hands</source><translation>拍手</translation></message>
<message><source>classical building</source><translation>歴史的な建物</translation></message>
<message><source>climb</source><translation>登る</translation></message>
<message><source>clinking beer mugs</source><translation>ビールで乾杯</translation></message>
<message><source>clinking glasses</source><translation>グラスで乾杯</translation></message>
<message><source>clipboard</source><translation>クリップボード</translation></message>
<message><source>clock</source><translation>時計</translation></message>
<message><source>clockwise</source><translation>時計回り</translation></message>
<message><source>clockwise vertical arrows</source><translation>右回り縦矢印</translation></message>
<message><source>closed book</source><translation>閉じた本</translation></message>
<message><source>closed mailbox with lowered flag</source><translation>閉じた郵便受け（手紙なし）</translation></message>
<message><source>closed mailbox with raised flag</source><translation>閉じた郵便受け（手紙あり）</translation></message>
<message><source>closed umbrella</source><translation>閉じた傘</translation></message>
<message><source>cloud</source><translation>雲</translation></message>
<message><source>cloud with lightning</source><translation>雷雲</translation></message>
<message><source>cloud with lightning and rain</source><translation>雷雨</translation></message>
<message><source>cloud with rain</source><translation>雨雲</translation></message>
<message><source>cloud with snow</source><translation>雪雲</translation></message>
<message><source>clown face</source><translation>ピエロの顔</translation></message>
<message><source>club</source><translation>お酒</translation></message>
<message><source>club suit</source><translation>クラブ</translation></message>
<message><source>clutch bag</source><translation>ポーチ</translation></message>
<message><source>coat</source><translation>コート</translation></message>
<message><source>cockroach</source><translation>ゴキブリ</translation></message>
<message><source>cocktail glass</source><translation>カクテルグラス</translation></message>
<message><source>coconut</source><translation>ココナツ</translation></message>
<message><source>coffin</source><translation>棺桶</translation></message>
<message><source>coin</source><translation>コイン</translation></message>
<message><source>cold face</source><translation>寒い顔</translation></message>
<message><source>collision</source><translation>衝突</translation></message>
<message><source>comet</source><translation>彗星</translation></message>
<message><source>comic</source><translation>マンガ</translation></message>
<message><source>compass</source><translation>コンパス</translation></message>
<message><source>computer</source><translation>コンピューター</translation></message>
<message><source>computer disk</source><translation>MD</translation></message>
<message><source>computer mouse</source><translation>マウス</translation></message>
<message><source>condiment</source><translation>調味料</translation></message>
<message><source>confetti ball</source><translation>くす玉</translation></message>
<message><source>confounded face</source><translation>困惑した顔</translation></message>
<message><source>confused</source><translation>困惑</translation></message>
<message><source>confused face</source><translation>混乱</translation></message>
<message><source>construction</source><translation>工事中</translation></message>
<message><source>construction worker</source><translation>建設作業員</translation></message>
<message><source>control knobs</source><translation>コントロールつまみ</translation></message>
<message><source>convenience store</source><translation>コンビニ</translation></message>
<message><source>cook</source><translation>コック</translation></message>
<message><source>cooked rice</source><translation>ごはん</translation></message>
<message><source>cookie</source><translation>クッキー</translation></message>
<message><source>cooking</source><translation>料理</translation></message>
<message><source>copyright</source><translation>著作権マーク</translation></message>
<message><source>coral</source><translation>サンゴ</translation></message>
<message><source>couch and lamp</source><translation>ソファとランプ</translation></message>
<message><source>counterclockwise arrows button</source><translation>左回り矢印</translation></message>
<message><source>couple</source><translation>カップル</translation></message>
<message><source>couple with heart</source><translation>カップルとハート</translation></message>
<message><source>couple with heart: man, man</source><translation>カップルとハート: 男性 男性</translation></message>
<message><source>couple with heart: woman, man</source><translation>カップルとハート: 女性 男性</translation></message>
<message><source>couple with heart: woman, woman</source><translation>カップルとハート: 女性 女性</translation></message>
<message><source>cow</source><translation>牝牛</translation></message>
<message><source>cow face</source><translation>牛の顔</translation></message>
<message><source>cowboy hat face</source><translation>カウボーイの顔</translation></message>
<message><source>crab</source><translation>カニ</translation></message>
<message><source>crayon</source><translation>クレヨン</translation></message>
<message><source>credit card</source><translation>クレジットカード</translation></message>
<message><source>crescent</source><translation>三日月</translation></message>
<message><source>crescent moon</source><translation>三日月</translation></message>
<message><source>cricket</source><translation>バッタ</translation></message>
<message><source>cricket game</source><translation>クリケット</translation></message>
<message><source>crocodile</source><translation>ワニ</translation></message>
<message><source>croissant</source><translation>クロワッサン</translation></message>
<message><source>cross mark</source><translation>バツ</translation></message>
<message><source>cross mark button</source><translation>白抜きのバツ</translation></message>
<message><source>crossed fingers</source><translation>指をクロス</translation></message>
<message><source>crossed flags</source><translation>祝日の旗</translation></message>
<message><source>crossed swords</source><translation>クロスした剣</translation></message>
<message><source>crown</source><translation>王冠</translation></message>
<message><source>crutch</source><translation>松葉杖</translation></message>
<message><source>cry</source><translation>泣く</translation></message>
<message><source>crying cat</source><translation>泣いている猫</translation></message>
<message><source>crying face</source><translation>泣き顔</translation></message>
<message><source>crystal ball</source><translation>水晶玉</translation></message>
<message><source>cucumber</source><translation>キュウリ</translation></message>
<message><source>cup with straw</source><translation>ストローカップ</translation></message>
<message><source>cupcake</source><translation>カップケーキ</translation></message>
<message><source>cupid</source><translation>キューピッド</translation></message>
<message><source>curling stone</source><translation>カーリング</translation></message>
<message><source>curly loop</source><translation>ループ</translation></message>
<message><source>currency</source><translation>通貨</translation></message>
<message><source>currency exchange</source><translation>外貨両替</translation></message>
<message><source>curry rice</source><translation>カレーライス</translation></message>
<message><source>custard</source><translation>プリン</translation></message>
<message><source>customs</source><translation>税関</translation></message>
<message><source>cut of meat</source><translation>ステーキ肉</translation></message>
<message><source>cyclone</source><translation>渦巻き</translation></message>
<message><source>dagger</source><translation>短刀</translation></message>
<message><source>dance</source><translation>ダンス</translation></message>
<message><source>dancer</source><translation>ダンサー</translation></message>
<message><source>dango</source><translation>だんご</translation></message>
<message><source>dark skin tone</source><translation>濃い肌色</translation></message>
<message><source>dashing away</source><translation>ダッシュ</translation></message>
<message><source>data</source><translation>データ</translation></message>
<message><source>deaf man</source><translation>耳の不自由な男性</translation></message>
<message><source>deaf person</source><translation>耳の不自由な人</translation></message>
<message><source>deaf woman</source><translation>耳の不自由な女性</translation></message>
<message><source>death</source><translation>死</translation></message>
<message><source>deciduous tree</source><translation>落葉樹</translation></message>
<message><source>deer</source><translation>シカ</translation></message>
<message><source>delivery truck</source><translation>トラック</translation></message>
<message><source>department store</source><translation>デパート</translation></message>
<message><source>derelict house</source><translation>廃屋</translation></message>
<message><source>desert</source><translation>砂漠</translation></message>
<message><source>desert island</source><translation>無人島</translation></message>
<message><source>desktop computer</source><translation>デスクトップパソコン</translation></message>
<message><source>dessert</source><translation>スイーツ</translation></message>
<message><source>detective</source><translation>探偵</translation></message>
<message><source>diamond</source><translation>ひし形</translation></message>
<message><source>diamond suit</source><translation>ダイヤ</translation></message>
<message><source>diamond with a dot</source><translation>ドット付きひし形</translation></message>
<message><source>dim button</source><translation>低輝度</translation></message>
<message><source>dinosaur</source><translation>恐竜</translation></message>
<message><source>disappointed face</source><translation>失望した顔</translation></message>
<message><source>disguised face</source><translation>変装した顔</translation></message>
<message><source>disk</source><translation>ディスク</translation></message>
<message><source>divide</source><translation>割り算</translation></message>
<message><source>diving mask</source><translation>ダイビング マスク</translation></message>
<message><source>diya lamp</source><translation>ディヤランプ</translation></message>
<message><source>dizzy</source><translation>くらくら</translation></message>
<message><source>dna</source><translation>DNA</translation></message>
<message><source>doctor</source><translation>医者</translation></message>
<message><source>dodo</source><translation>ドードー</translation></message>
<message><source>dog</source><translation>イヌ</translation></message>
<message><source>dog face</source><translation>イヌの顔</translation></message>
<message><source>dollar</source><translation>ドル</translation></message>
<message><source>dollar banknote</source><translation>ドル札</translation></message>
<message><source>dolphin</source><translation>イルカ</translation></message>
<message><source>donkey</source><translation>ロバ</translation></message>
<message><source>door</source><translation>ドア</translation></message>
<message><source>dotted line face</source><translation>点線の顔</translation></message>
<message><source>dotted six-pointed star</source><translation>六芒星</translation></message>
<message><source>double curly loop</source><translation>ダブルループ</translation></message>
<message><source>double exclamation mark</source><translation>二重感嘆符</translation></message>
<message><source>doughnut</source><translation>ドーナツ</translation></message>
<message><source>dove</source><translation>ハト</translation></message>
<message><source>down</source><translation>下</translation></message>
<message><source>down arrow</source><translation>下矢印</translation></message>
<message><source>down-left arrow</source><translation>左下矢印</translation></message>
<message><source>down-right arrow</source><translation>右下矢印</translation></message>
<message><source>downcast face with sweat</source><translation>冷や汗</translation></message>
<message><source>downwards button</source><translation>下ボタン</translation></message>
<message><source>dragon</source><translation>ドラゴン</translation></message>
<message><source>dragon face</source><translation>ドラゴンの顔</translation></message>
<message><source>dress</source><translation>ワンピース</translation></message>
<message><source>dressed</source><translation>服</translation></message>
<message><source>drinking</source><translation>アルコール</translation></message>
<message><source>drooling face</source><translation>よだれを垂らした顔</translation></message>
<message><source>drop of blood</source><translation>血液</translation></message>
<message><source>droplet</source><translation>水滴</translation></message>
<message><source>drum</source><translation>ドラム</translation></message>
<message><source>duck</source><translation>カモ</translation></message>
<message><source>dumpling</source><translation>点心</translation></message>
<message><source>dvd</source><translation>DVD</translation></message>
<message><source>e-mail</source><translation>Eメール</translation></message>
<message><source>eagle</source><translation>ワシ</translation></message>
<message><source>ear</source><translation>耳</translation></message>
<message><source>ear of corn</source><translation>とうもろこし</translation></message>
<message><source>ear with hearing aid</source><translation>補聴器を付けた耳</translation></message>
<message><source>eat</source><translation>食器</translation></message>
<message><source>education</source><translation>書籍</translation></message>
<message><source>egg</source><translation>卵</translation></message>
<message><source>eggplant</source><translation>ナス</translation></message>
<message><source>eight o’clock</source><translation>8時</translation></message>
<message><source>eight-pointed star</source><translation>八角星</translation></message>
<message><source>eight-spoked asterisk</source><translation>八角アスタリスク</translation></message>
<message><source>eight-thirty</source><translation>8時半</translation></message>
<message><source>eject button</source><translation>取り出しボタン</translation></message>
<message><source>electric plug</source><translation>コンセント</translation></message>
<message><source>electricity</source><translation>電気</translation></message>
<message><source>elephant</source><translation>ゾウ</translation></message>
<message><source>elevator</source><translation>エレベーター</translation></message>
<message><source>eleven o’clock</source><translation>11時</translation></message>
<message><source>eleven-thirty</source><translation>11時半</translation></message>
<message><source>elf</source><translation>エルフ</translation></message>
<message><source>empty nest</source><translation>空っぽの巣</translation></message>
<message><source>enraged face</source><translation>ふくれっ面</translation></message>
<message><source>envelope</source><translation>封筒</translation></message>
<message><source>envelope with arrow</source><translation>メール受信</translation></message>
<message><source>euro banknote</source><translation>ユーロ札</translation></message>
<message><source>evergreen tree</source><translation>常緑樹</translation></message>
<message><source>evil</source><translation>三猿</translation></message>
<message><source>ewe</source><translation>羊</translation></message>
<message><source>exclamation</source><translation>びっくりマーク</translation></message>
<message><source>exclamation question mark</source><translation>感嘆符疑問符</translation></message>
<message><source>explode</source><translation>ぼんっ</translation></message>
<message><source>exploding head</source><translation>頭爆発</translation></message>
<message><source>expressionless</source><translation>無表情</translation></message>
<message><source>expressionless face</source><translation>無表情</translation></message>
<message><source>extinction</source><translation>絶滅</translation></message>
<message><source>eye</source><translation>片目</translation></message>
<message><source>eye in speech bubble</source><translation>吹き出しの目</translation></message>
<message><source>eyes</source><translation>目</translation></message>
<message><source>face</source><translation>顔</translation></message>
<message><source>face blowing a kiss</source><translation>投げキッス</translation></message>
<message><source>face exhaling</source><translation>息を吐く顔</translation></message>
<message><source>face holding back tears</source><translation>涙をこらえた顔</translation></message>
<message><source>face in clouds</source><translation>雲の中の顔</translation></message>
<message><source>face savoring food</source><translation>にこにこぺろり</translation></message>
<message><source>face screaming in fear</source><translation>恐怖</translation></message>
<message><source>face vomiting</source><translation>嘔吐する顔</translation></message>
<message><source>face with bags under eyes</source><translation>目にクマがある顔</translation></message>
<message><source>face with crossed-out eyes</source><translation>めまい</translation></message>
<message><source>face with diagonal mouth</source><translation>口が斜めの顔</translation></message>
<message><source>face with hand over mouth</source><translation>口に手を当てた顔</translation></message>
<message><source>face with head-bandage</source><translation>包帯を巻いた顔</translation></message>
<message><source>face with medical mask</source><translation>マスク顔</translation></message>
<message><source>face with monocle</source><translation>モノクルを付けた顔</translation></message>
<message><source>face with open eyes and hand over mouth</source><translation>目を開けて口に手を当てた顔</translation></message>
<message><source>face with open mouth</source><translation>口が開いた顔</translation></message>
<message><source>face with peeking eye</source><translation>指の間からのぞき見る顔</translation></message>
<message><source>face with raised eyebrow</source><translation>眉を上げた顔</translation></message>
<message><source>face with rolling eyes</source><translation>上を見る顔</translation></message>
<message><source>face with spiral eyes</source><translation>目を回した顔</translation></message>
<message><source>face with steam from nose</source><translation>勝ち誇った顔</translation></message>
<message><source>face with symbols on mouth</source><translation>ののしる</translation></message>
<message><source>face with tears of joy</source><translation>嬉し泣き</translation></message>
<message><source>face with thermometer</source><translation>熱がある顔</translation></message>
<message><source>face with tongue</source><translation>舌を出した顔</translation></message>
<message><source>face without mouth</source><translation>口のない顔</translation></message>
<message><source>facing</source><translation>右向き</translation></message>
<message><source>factory</source><translation>工場</translation></message>
<message><source>factory worker</source><translation>溶接工</translation></message>
<message><source>fairy</source><translation>妖精</translation></message>
<message><source>falafel</source><translation>ファラフェル</translation></message>
<message><source>fallen leaf</source><translation>落ち葉</translation></message>
<message><source>family</source><translation>家族</translation></message>
<message><source>family: adult, adult, child</source><translation>家族: 大人二人と子供一人</translation></message>
<message><source>family: adult, adult, child, child</source><translation>家族: 大人二人と子供二人</translation></message>
<message><source>family: adult, child</source><translation>家族: 大人一人と子供一人</translation></message>
<message><source>family: adult, child, child</source><translation>家族: 大人一人と子供二人</translation></message>
<message><source>family: man, boy</source><translation>家族: 男性 男の子</translation></message>
<message><source>family: man, boy, boy</source><translation>家族: 男性 男の子 男の子</translation></message>
<message><source>family: man, girl</source><translation>家族: 男性 女の子</translation></message>
<message><source>family: man, girl, boy</source><translation>家族: 男性 女の子 男の子</translation></message>
<message><source>family: man, girl, girl</source><translation>家族: 男性 女の子 女の子</translation></message>
<message><source>family: man, man, boy</source><translation>家族: 男性 男性 男の子</translation></message>
<message><source>family: man, man, boy, boy</source><translation>家族: 男性 男性 男の子 男の子</translation></message>
<message><source>family: man, man, girl</source><translation>家族: 男性 男性 女の子</translation></message>
<message><source>family: man, man, girl, boy</source><translation>家族: 男性 男性 女の子 男の子</translation></message>
<message><source>family: man, man, girl, girl</source><translation>家族: 男性 男性 女の子 女の子</translation></message>
<message><source>family: man, woman, boy</source><translation>家族: 男性 女性 男の子</translation></message>
<message><source>family: man, woman, boy, boy</source><translation>家族: 男性 女性 男の子 男の子</translation></message>
<message><source>family: man, woman, girl</source><translation>家族: 男性 女性 女の子</translation></message>
<message><source>family: man, woman, girl, boy</source><translation>家族: 男性 女性 女の子 男の子</translation></message>
<message><source>family: man, woman, girl, girl</source><translation>家族: 男性 女性 女の子 女の子</translation></message>
<message><source>family: woman, boy</source><translation>家族: 女性 男の子</translation></message>
<message><source>family: woman, boy, boy</source><translation>家族: 女性 男の子 男の子</translation></message>
<message><source>family: woman, girl</source><translation>家族: 女性 女の子</translation></message>
<message><source>family: woman, girl, boy</source><translation>家族: 女性 女の子 男の子</translation></message>
<message><source>family: woman, girl, girl</source><translation>家族: 女性 女の子 女の子</translation></message>
<message><source>family: woman, woman, boy</source><translation>家族: 女性 女性 男の子</translation></message>
<message><source>family: woman, woman, boy, boy</source><translation>家族: 女性 女性 男の子 男の子</translation></message>
<message><source>family: woman, woman, girl</source><translation>家族: 女性 女性 女の子</translation></message>
<message><source>family: woman, woman, girl, boy</source><translation>家族: 女性 女性 女の子 男の子</translation></message>
<message><source>family: woman, woman, girl, girl</source><translation>家族: 女性 女性 女の子 女の子</translation></message>
<message><source>farm</source><translation>家畜</translation></message>
<message><source>farmer</source><translation>農家</translation></message>
<message><source>fast down button</source><translation>高速下ボタン</translation></message>
<message><source>fast reverse button</source><translation>早戻しボタン</translation></message>
<message><source>fast up button</source><translation>高速上ボタン</translation></message>
<message><source>fast-forward button</source><translation>早送りボタン</translation></message>
<message><source>fax machine</source><translation>ファックス</translation></message>
<message><source>fearful face</source><translation>青ざめ</translation></message>
<message><source>feather</source><translation>羽</translation></message>
<message><source>female sign</source><translation>女性のマーク</translation></message>
<message><source>ferris wheel</source><translation>観覧車</translation></message>
<message><source>ferry</source><translation>フェリー</translation></message>
<message><source>field hockey</source><translation>ホッケー</translation></message>
<message><source>file</source><translation>ファイル</translation></message>
<message><source>file cabinet</source><translation>ファイルキャビネット</translation></message>
<message><source>file folder</source><translation>フォルダー</translation></message>
<message><source>film frames</source><translation>映画フィルム</translation></message>
<message><source>film projector</source><translation>映写機</translation></message>
<message><source>finger</source><translation>指</translation></message>
<message><source>fingerprint</source><translation>指紋</translation></message>
<message><source>fire</source><translation>火</translation></message>
<message><source>fire engine</source><translation>消防車</translation></message>
<message><source>fire extinguisher</source><translation>消火器</translation></message>
<message><source>firecracker</source><translation>爆竹</translation></message>
<message><source>firefighter</source><translation>消防士</translation></message>
<message><source>fireworks</source><translation>打ち上げ花火</translation></message>
<message><source>first quarter moon</source><translation>上弦の月</translation></message>
<message><source>first quarter moon face</source><translation>顔のある上弦の月</translation></message>
<message><source>fish</source><translation>魚</translation></message>
<message><source>fish cake with swirl</source><translation>なると</translation></message>
<message><source>fishing pole</source><translation>釣り</translation></message>
<message><source>fist</source><translation>こぶし</translation></message>
<message><source>five o’clock</source><translation>5時</translation></message>
<message><source>five-thirty</source><translation>5時半</translation></message>
<message><source>flag</source><translation>旗</translation></message>
<message><source>flag in hole</source><translation>ゴルフ</translation></message>
<message><source>flag: Afghanistan</source><translation>旗: アフガニスタン</translation></message>
<message><source>flag: Albania</source><translation>旗: アルバニア</translation></message>
<message><source>flag: Algeria</source><translation>旗: アルジェリア</translation></message>
<message><source>flag: American Samoa</source><translation>旗: 米領サモア</translation></message>
<message><source>flag: Andorra</source><translation>旗: アンドラ</translation></message>
<message><source>flag: Angola</source><translation>旗: アンゴラ</translation></message>
<message><source>flag: Anguilla</source><translation>旗: アンギラ</translation></message>
<message><source>flag: Antarctica</source><translation>旗: 南極</translation></message>
<message><source>flag: Antigua &amp; Barbuda</source><translation>旗: アンティグア・バーブーダ</translation></message>
<message><source>flag: Argentina</source><translation>旗: アルゼンチン</translation></message>
<message><source>flag: Armenia</source><translation>旗: アルメニア</translation></message>
<message><source>flag: Aruba</source><translation>旗: アルバ</translation></message>
<message><source>flag: Ascension Island</source><translation>旗: アセンション島</translation></message>
<message><source>flag: Australia</source><translation>旗: オーストラリア</translation></message>
<message><source>flag: Austria</source><translation>旗: オーストリア</translation></message>
<message><source>flag: Azerbaijan</source><translation>旗: アゼルバイジャン</translation></message>
<message><source>flag: Bahamas</source><translation>旗: バハマ</translation></message>
<message><source>flag: Bahrain</source><translation>旗: バーレーン</translation></message>
<message><source>flag: Bangladesh</source><translation>旗: バングラデシュ</translation></message>
<message><source>flag: Barbados</source><translation>旗: バルバドス</translation></message>
<message><source>flag: Belarus</source><translation>旗: ベラルーシ</translation></message>
<message><source>flag: Belgium</source><translation>旗: ベルギー</translation></message>
<message><source>flag: Belize</source><translation>旗: ベリーズ</translation></message>
<message><source>flag: Benin</source><translation>旗: ベナン</translation></message>
<message><source>flag: Bermuda</source><translation>旗: バミューダ</translation></message>
<message><source>flag: Bhutan</source><translation>旗: ブータン</translation></message>
<message><source>flag: Bolivia</source><translation>旗: ボリビア</translation></message>
<message><source>flag: Bosnia &amp; Herzegovina</source><translation>旗: ボスニア・ヘルツェゴビナ</translation></message>
<message><source>flag: Botswana</source><translation>旗: ボツワナ</translation></message>
<message><source>flag: Bouvet Island</source><translation>旗: ブーベ島</translation></message>
<message><source>flag: Brazil</source><translation>旗: ブラジル</translation></message>
<message><source>flag: British Indian Ocean Territory</source><translation>旗: 英領インド洋地域</translation></message>
<message><source>flag: British Virgin Islands</source><translation>旗: 英領ヴァージン諸島</translation></message>
<message><source>flag: Brunei</source><translation>旗: ブルネイ</translation></message>
<message><source>flag: Bulgaria</source><translation>旗: ブルガリア</translation></message>
<message><source>flag: Burkina Faso</source><translation>旗: ブルキナファソ</translation></message>
<message><source>flag: Burundi</source><translation>旗: ブルンジ</translation></message>
<message><source>flag: Cambodia</source><translation>旗: カンボジア</translation></message>
<message><source>flag: Cameroon</source><translation>旗: カメルーン</translation></message>
<message><source>flag: Canada</source><translation>旗: カナダ</translation></message>
<message><source>flag: Canary Islands</source><translation>旗: カナリア諸島</translation></message>
<message><source>flag: Cape Verde</source><translation>旗: カーボベルデ</translation></message>
<message><source>flag: Caribbean Netherlands</source><translation>旗: オランダ領カリブ</translation></message>
<message><source>flag: Cayman Islands</source><translation>旗: ケイマン諸島</translation></message>
<message><source>flag: Central African Republic</source><translation>旗: 中央アフリカ共和国</translation></message>
<message><source>flag: Ceuta &amp; Melilla</source><translation>旗: セウタ・メリリャ</translation></message>
<message><source>flag: Chad</source><translation>旗: チャド</translation></message>
<message><source>flag: Chile</source><translation>旗: チリ</translation></message>
<message><source>flag: China</source><translation>旗: 中国</translation></message>
<message><source>flag: Christmas Island</source><translation>旗: クリスマス島</translation></message>
<message><source>flag: Clipperton Island</source><translation>旗: クリッパートン島</translation></message>
<message><source>flag: Cocos (Keeling) Islands</source><translation>旗: ココス(キーリング)諸島</translation></message>
<message><source>flag: Colombia</source><translation>旗: コロンビア</translation></message>
<message><source>flag: Comoros</source><translation>旗: コモロ</translation></message>
<message><source>flag: Congo - Brazzaville</source><translation>旗: コンゴ共和国(ブラザビル)</translation></message>
<message><source>flag: Congo - Kinshasa</source><translation>旗: コンゴ民主共和国(キンシャサ)</translation></message>
<message><source>flag: Cook Islands</source><translation>旗: クック諸島</translation></message>
<message><source>flag: Costa Rica</source><translation>旗: コスタリカ</translation></message>
<message><source>flag: Croatia</source><translation>旗: クロアチア</translation></message>
<message><source>flag: Cuba</source><translation>旗: キューバ</translation></message>
<message><source>flag: Curaçao</source><translation>旗: キュラソー</translation></message>
<message><source>flag: Cyprus</source><translation>旗: キプロス</translation></message>
<message><source>flag: Czechia</source><translation>旗: チェコ</translation></message>
<message><source>flag: Côte d’Ivoire</source><translation>旗: コートジボワール</translation></message>
<message><source>flag: Denmark</source><translation>旗: デンマーク</translation></message>
<message><source>flag: Diego Garcia</source><translation>旗: ディエゴガルシア島</translation></message>
<message><source>flag: Djibouti</source><translation>旗: ジブチ</translation></message>
<message><source>flag: Dominica</source><translation>旗: ドミニカ国</translation></message>
<message><source>flag: Dominican Republic</source><translation>旗: ドミニカ共和国</translation></message>
<message><source>flag: Ecuador</source><translation>旗: エクアドル</translation></message>
<message><source>flag: Egypt</source><translation>旗: エジプト</translation></message>
<message><source>flag: El Salvador</source><translation>旗: エルサルバドル</translation></message>
<message><source>flag: England</source><translation>旗: イングランド</translation></message>
<message><source>flag: Equatorial Guinea</source><translation>旗: 赤道ギニア</translation></message>
<message><source>flag: Eritrea</source><translation>旗: エリトリア</translation></message>
<message><source>flag: Estonia</source><translation>旗: エストニア</translation></message>
<message><source>flag: Eswatini</source><translation>旗: エスワティニ</translation></message>
<message><source>flag: Ethiopia</source><translation>旗: エチオピア</translation></message>
<message><source>flag: European Union</source><translation>旗: 欧州連合</translation></message>
<message><source>flag: Falkland Islands</source><translation>旗: フォークランド諸島</translation></message>
<message><source>flag: Faroe Islands</source><translation>旗: フェロー諸島</translation></message>
<message><source>flag: Fiji</source><translation>旗: フィジー</translation></message>
<message><source>flag: Finland</source><translation>旗: フィンランド</translation></message>
<message><source>flag: France</source><translation>旗: フランス</translation></message>
<message><source>flag: French Guiana</source><translation>旗: 仏領ギアナ</translation></message>
<message><source>flag: French Polynesia</source><translation>旗: 仏領ポリネシア</translation></message>
<message><source>flag: French Southern Territories</source><translation>旗: 仏領極南諸島</translation></message>
<message><source>flag: Gabon</source><translation>旗: ガボン</translation></message>
<message><source>flag: Gambia</source><translation>旗: ガンビア</translation></message>
<message><source>flag: Georgia</source><translation>旗: ジョージア</translation></message>
<message><source>flag: Germany</source><translation>旗: ドイツ</translation></message>
<message><source>flag: Ghana</source><translation>旗: ガーナ</translation></message>
<message><source>flag: Gibraltar</source><translation>旗: ジブラルタル</translation></message>
<message><source>flag: Greece</source><translation>旗: ギリシャ</translation></message>
<message><source>flag: Greenland</source><translation>旗: グリーンランド</translation></message>
<message><source>flag: Grenada</source><translation>旗: グレナダ</translation></message>
<message><source>flag: Guadeloupe</source><translation>旗: グアドループ</translation></message>
<message><source>flag: Guam</source><translation>旗: グアム</translation></message>
<message><source>flag: Guatemala</source><translation>旗: グアテマラ</translation></message>
<message><source>flag: Guernsey</source><translation>旗: ガーンジー</translation></message>
<message><source>flag: Guinea</source><translation>旗: ギニア</translation></message>
<message><source>flag: Guinea-Bissau</source><translation>旗: ギニアビサウ</translation></message>
<message><source>flag: Guyana</source><translation>旗: ガイアナ</translation></message>
<message><source>flag: Haiti</source><translation>旗: ハイチ</translation></message>
<message><source>flag: Heard &amp; McDonald Islands</source><translation>旗: ハード島・マクドナルド諸島</translation></message>
<message><source>flag: Honduras</source><translation>旗: ホンジュラス</translation></message>
<message><source>flag: Hong Kong SAR China</source><translation>旗: 中華人民共和国香港特別行政区</translation></message>
<message><source>flag: Hungary</source><translation>旗: ハンガリー</translation></message>
<message><source>flag: Iceland</source><translation>旗: アイスランド</translation></message>
<message><source>flag: India</source><translation>旗: インド</translation></message>
<message><source>flag: Indonesia</source><translation>旗: インドネシア</translation></message>
<message><source>flag: Iran</source><translation>旗: イラン</translation></message>
<message><source>flag: Iraq</source><translation>旗: イラク</translation></message>
<message><source>flag: Ireland</source><translation>旗: アイルランド</translation></message>
<message><source>flag: Isle of Man</source><translation>旗: マン島</translation></message>
<message><source>flag: Israel</source><translation>旗: イスラエル</translation></message>
<message><source>flag: Italy</source><translation>旗: イタリア</translation></message>
<message><source>flag: Jamaica</source><translation>旗: ジャマイカ</translation></message>
<message><source>flag: Japan</source><translation>旗: 日本</translation></message>
<message><source>flag: Jersey</source><translation>旗: ジャージー</translation></message>
<message><source>flag: Jordan</source><translation>旗: ヨルダン</translation></message>
<message><source>flag: Kazakhstan</source><translation>旗: カザフスタン</translation></message>
<message><source>flag: Kenya</source><translation>旗: ケニア</translation></message>
<message><source>flag: Kiribati</source><translation>旗: キリバス</translation></message>
<message><source>flag: Kosovo</source><translation>旗: コソボ</translation></message>
<message><source>flag: Kuwait</source><translation>旗: クウェート</translation></message>
<message><source>flag: Kyrgyzstan</source><translation>旗: キルギス</translation></message>
<message><source>flag: Laos</source><translation>旗: ラオス</translation></message>
<message><source>flag: Latvia</source><translation>旗: ラトビア</translation></message>
<message><source>flag: Lebanon</source><translation>旗: レバノン</translation></message>
<message><source>flag: Lesotho</source><translation>旗: レソト</translation></message>
<message><source>flag: Liberia</source><translation>旗: リベリア</translation></message>
<message><source>flag: Libya</source><translation>旗: リビア</translation></message>
<message><source>flag: Liechtenstein</source><translation>旗: リヒテンシュタイン</translation></message>
<message><source>flag: Lithuania</source><translation>旗: リトアニア</translation></message>
<message><source>flag: Luxembourg</source><translation>旗: ルクセンブルク</translation></message>
<message><source>flag: Macao SAR China</source><translation>旗: 中華人民共和国マカオ特別行政区</translation></message>
<message><source>flag: Madagascar</source><translation>旗: マダガスカル</translation></message>
<message><source>flag: Malawi</source><translation>旗: マラウイ</translation></message>
<message><source>flag: Malaysia</source><translation>旗: マレーシア</translation></message>
<message><source>flag: Maldives</source><translation>旗: モルディブ</translation></message>
<message><source>flag: Mali</source><translation>旗: マリ</translation></message>
<message><source>flag: Malta</source><translation>旗: マルタ</translation></message>
<message><source>flag: Marshall Islands</source><translation>旗: マーシャル諸島</translation></message>
<message><source>flag: Martinique</source><translation>旗: マルティニーク</translation></message>
<message><source>flag: Mauritania</source><translation>旗: モーリタニア</translation></message>
<message><source>flag: Mauritius</source><translation>旗: モーリシャス</translation></message>
<message><source>flag: Mayotte</source><translation>旗: マヨット</translation></message>
<message><source>flag: Mexico</source><translation>旗: メキシコ</translation></message>
<message><source>flag: Micronesia</source><translation>旗: ミクロネシア連邦</translation></message>
<message><source>flag: Moldova</source><translation>旗: モルドバ</translation></message>
<message><source>flag: Monaco</source><translation>旗: モナコ</translation></message>
<message><source>flag: Mongolia</source><translation>旗: モンゴル</translation></message>
<message><source>flag: Montenegro</source><translation>旗: モンテネグロ</translation></message>
<message><source>flag: Montserrat</source><translation>旗: モントセラト</translation></message>
<message><source>flag: Morocco</source><translation>旗: モロッコ</translation></message>
<message><source>flag: Mozambique</source><translation>旗: モザンビーク</translation></message>
<message><source>flag: Myanmar (Burma)</source><translation>旗: ミャンマー (ビルマ)</translation></message>
<message><source>flag: Namibia</source><translation>旗: ナミビア</translation></message>
<message><source>flag: Nauru</source><translation>旗: ナウル</translation></message>
<message><source>flag: Nepal</source><translation>旗: ネパール</translation></message>
<message><source>flag: Netherlands</source><translation>旗: オランダ</translation></message>
<message><source>flag: New Caledonia</source><translation>旗: ニューカレドニア</translation></message>
<message><source>flag: New Zealand</source><translation>旗: ニュージーランド</translation></message>
<message><source>flag: Nicaragua</source><translation>旗: ニカラグア</translation></message>
<message><source>flag: Niger</source><translation>旗: ニジェール</translation></message>
<message><source>flag: Nigeria</source><translation>旗: ナイジェリア</translation></message>
<message><source>flag: Niue</source><translation>旗: ニウエ</translation></message>
<message><source>flag: Norfolk Island</source><translation>旗: ノーフォーク島</translation></message>
<message><source>flag: North Korea</source><translation>旗: 北朝鮮</translation></message>
<message><source>flag: North Macedonia</source><translation>旗: 北マケドニア</translation></message>
<message><source>flag: Northern Mariana Islands</source><translation>旗: 北マリアナ諸島</translation></message>
<message><source>flag: Norway</source><translation>旗: ノルウェー</translation></message>
<message><source>flag: Oman</source><translation>旗: オマーン</translation></message>
<message><source>flag: Pakistan</source><translation>旗: パキスタン</translation></message>
<message><source>flag: Palau</source><translation>旗: パラオ</translation></message>
<message><source>flag: Palestinian Territories</source><translation>旗: パレスチナ自治区</translation></message>
<message><source>flag: Panama</source><translation>旗: パナマ</translation></message>
<message><source>flag: Papua New Guinea</source><translation>旗: パプアニューギニア</translation></message>
<message><source>flag: Paraguay</source><translation>旗: パラグアイ</translation></message>
<message><source>flag: Peru</source><translation>旗: ペルー</translation></message>
<message><source>flag: Philippines</source><translation>旗: フィリピン</translation></message>
<message><source>flag: Pitcairn Islands</source><translation>旗: ピトケアン諸島</translation></message>
<message><source>flag: Poland</source><translation>旗: ポーランド</translation></message>
<message><source>flag: Portugal</source><translation>旗: ポルトガル</translation></message>
<message><source>flag: Puerto Rico</source><translation>旗: プエルトリコ</translation></message>
<message><source>flag: Qatar</source><translation>旗: カタール</translation></message>
<message><source>flag: Romania</source><translation>旗: ルーマニア</translation></message>
<message><source>flag: Russia</source><translation>旗: ロシア</translation></message>
<message><source>flag: Rwanda</source><translation>旗: ルワンダ</translation></message>
<message><source>flag: Réunion</source><translation>旗: レユニオン</translation></message>
<message><source>flag: Samoa</source><translation>旗: サモア</translation></message>
<message><source>flag: San Marino</source><translation>旗: サンマリノ</translation></message>
<message><source>flag: Sark</source><translation>旗: サーク島</translation></message>
<message><source>flag: Saudi Arabia</source><translation>旗: サウジアラビア</translation></message>
<message><source>flag: Scotland</source><translation>旗: スコットランド</translation></message>
<message><source>flag: Senegal</source><translation>旗: セネガル</translation></message>
<message><source>flag: Serbia</source><translation>旗: セルビア</translation></message>
<message><source>flag: Seychelles</source><translation>旗: セーシェル</translation></message>
<message><source>flag: Sierra Leone</source><translation>旗: シエラレオネ</translation></message>
<message><source>flag: Singapore</source><translation>旗: シンガポール</translation></message>
<message><source>flag: Sint Maarten</source><translation>旗: シント・マールテン</translation></message>
<message><source>flag: Slovakia</source><translation>旗: スロバキア</translation></message>
<message><source>flag: Slovenia</source><translation>旗: スロベニア</translation></message>
<message><source>flag: Solomon Islands</source><translation>旗: ソロモン諸島</translation></message>
<message><source>flag: Somalia</source><translation>旗: ソマリア</translation></message>
<message><source>flag: South Africa</source><translation>旗: 南アフリカ</translation></message>
<message><source>flag: South Georgia &amp; South Sandwich Islands</source><translation>旗: サウスジョージア・サウスサンドウィッチ諸島</translation></message>
<message><source>flag: South Korea</source><translation>旗: 韓国</translation></message>
<message><source>flag: South Sudan</source><translation>旗: 南スーダン</translation></message>
<message><source>flag: Spain</source><translation>旗: スペイン</translation></message>
<message><source>flag: Sri Lanka</source><translation>旗: スリランカ</translation></message>
<message><source>flag: St. Barthélemy</source><translation>旗: サン・バルテルミー</translation></message>
<message><source>flag: St. Helena</source><translation>旗: セントヘレナ</translation></message>
<message><source>flag: St. Kitts &amp; Nevis</source><translation>旗: セントクリストファー・ネーヴィス</translation></message>
<message><source>flag: St. Lucia</source><translation>旗: セントルシア</translation></message>
<message><source>flag: St. Martin</source><translation>旗: サン・マルタン</translation></message>
<message><source>flag: St. Pierre &amp; Miquelon</source><translation>旗: サンピエール島・ミクロン島</translation></message>
<message><source>flag: St. Vincent &amp; Grenadines</source><translation>旗: セントビンセント及びグレナディーン諸島</translation></message>
<message><source>flag: Sudan</source><translation>旗: スーダン</translation></message>
<message><source>flag: Suriname</source><translation>旗: スリナム</translation></message>
<message><source>flag: Svalbard &amp; Jan Mayen</source><translation>旗: スバールバル諸島・ヤンマイエン島</translation></message>
<message><source>flag: Sweden</source><translation>旗: スウェーデン</translation></message>
<message><source>flag: Switzerland</source><translation>旗: スイス</translation></message>
<message><source>flag: Syria</source><translation>旗: シリア</translation></message>
<message><source>flag: São Tomé &amp; Príncipe</source><translation>旗: サントメ・プリンシペ</translation></message>
<message><source>flag: Taiwan</source><translation>旗: 台湾</translation></message>
<message><source>flag: Tajikistan</source><translation>旗: タジキスタン</translation></message>
<message><source>flag: Tanzania</source><translation>旗: タンザニア</translation></message>
<message><source>flag: Thailand</source><translation>旗: タイ</translation></message>
<message><source>flag: Timor-Leste</source><translation>旗: 東ティモール</translation></message>
<message><source>flag: Togo</source><translation>旗: トーゴ</translation></message>
<message><source>flag: Tokelau</source><translation>旗: トケラウ</translation></message>
<message><source>flag: Tonga</source><translation>旗: トンガ</translation></message>
<message><source>flag: Trinidad &amp; Tobago</source><translation>旗: トリニダード・トバゴ</translation></message>
<message><source>flag: Tristan da Cunha</source><translation>旗: トリスタン・ダ・クーニャ</translation></message>
<message><source>flag: Tunisia</source><translation>旗: チュニジア</translation></message>
<message><source>flag: Turkmenistan</source><translation>旗: トルクメニスタン</translation></message>
<message><source>flag: Turks &amp; Caicos Islands</source><translation>旗: タークス・カイコス諸島</translation></message>
<message><source>flag: Tuvalu</source><translation>旗: ツバル</translation></message>
<message><source>flag: Türkiye</source><translation>旗: トルコ</translation></message>
<message><source>flag: U.S. Outlying Islands</source><translation>旗: 合衆国領有小離島</translation></message>
<message><source>flag: U.S. Virgin Islands</source><translation>旗: 米領ヴァージン諸島</translation></message>
<message><source>flag: Uganda</source><translation>旗: ウガンダ</translation></message>
<message><source>flag: Ukraine</source><translation>旗: ウクライナ</translation></message>
<message><source>flag: United Arab Emirates</source><translation>旗: アラブ首長国連邦</translation></message>
<message><source>flag: United Kingdom</source><translation>旗: イギリス</translation></message>
<message><source>flag: United Nations</source><translation>旗: 国際連合</translation></message>
<message><source>flag: United States</source><translation>旗: アメリカ合衆国</translation></message>
<message><source>flag: Uruguay</source><translation>旗: ウルグアイ</translation></message>
<message><source>flag: Uzbekistan</source><translation>旗: ウズベキスタン</translation></message>
<message><source>flag: Vanuatu</source><translation>旗: バヌアツ</translation></message>
<message><source>flag: Vatican City</source><translation>旗: バチカン市国</translation></message>
<message><source>flag: Venezuela</source><translation>旗: ベネズエラ</translation></message>
<message><source>flag: Vietnam</source><translation>旗: ベトナム</translation></message>
<message><source>flag: Wales</source><translation>旗: ウェールズ</translation></message>
<message><source>flag: Wallis &amp; Futuna</source><translation>旗: ウォリス・フツナ</translation></message>
<message><source>flag: Western Sahara</source><translation>旗: 西サハラ</translation></message>
<message><source>flag: Yemen</source><translation>旗: イエメン</translation></message>
<message><source>flag: Zambia</source><translation>旗: ザンビア</translation></message>
<message><source>flag: Zimbabwe</source><translation>旗: ジンバブエ</translation></message>
<message><source>flag: Åland Islands</source><translation>旗: オーランド諸島</translation></message>
<message><source>flamingo</source><translation>フラミンゴ</translation></message>
<message><source>flashlight</source><translation>懐中電灯</translation></message>
<message><source>flat shoe</source><translation>フラットシューズ</translation></message>
<message><source>flatbread</source><translation>フラットブレッド</translation></message>
<message><source>fleur-de-lis</source><translation>フルール・ド・リス</translation></message>
<message><source>flexed biceps</source><translation>力こぶ</translation></message>
<message><source>floppy disk</source><translation>フロッピー</translation></message>
<message><source>flower</source><translation>花</translation></message>
<message><source>flower playing cards</source><translation>花札</translation></message>
<message><source>flushed face</source><translation>赤面</translation></message>
<message><source>flute</source><translation>笛</translation></message>
<message><source>fly</source><translation>ハエ</translation></message>
<message><source>flying disc</source><translation>フリスビー</translation></message>
<message><source>flying saucer</source><translation>空飛ぶ円盤</translation></message>
<message><source>fog</source><translation>霧</translation></message>
<message><source>foggy</source><translation>霧の都会</translation></message>
<message><source>folded hands</source><translation>祈り</translation></message>
<message><source>folding hand fan</source><translation>扇子</translation></message>
<message><source>fondue</source><translation>フォンデュ</translation></message>
<message><source>foot</source><translation>足</translation></message>
<message><source>footprints</source><translation>足あと</translation></message>
<message><source>forest</source><translation>森</translation></message>
<message><source>fork and knife</source><translation>ナイフとフォーク</translation></message>
<message><source>fork and knife with plate</source><translation>ナイフとフォークと皿</translation></message>
<message><source>fortune cookie</source><translation>フォーチュンクッキー</translation></message>
<message><source>fountain</source><translation>噴水</translation></message>
<message><source>fountain pen</source><translation>万年筆</translation></message>
<message><source>four leaf clover</source><translation>四つ葉のクローバー</translation></message>
<message><source>four o’clock</source><translation>4時</translation></message>
<message><source>four-thirty</source><translation>4時半</translation></message>
<message><source>fox</source><translation>キツネの顔</translation></message>
<message><source>framed picture</source><translation>絵画</translation></message>
<message><source>french fries</source><translation>フライドポテト</translation></message>
<message><source>fried shrimp</source><translation>エビフライ</translation></message>
<message><source>friends</source><translation>友達</translation></message>
<message><source>frog</source><translation>カエルの顔</translation></message>
<message><source>front-facing baby chick</source><translation>前を向いているひよこ</translation></message>
<message><source>frown</source><translation>しかめ面</translation></message>
<message><source>frowning face</source><translation>困った顔</translation></message>
<message><source>frowning face with open mouth</source><translation>あきれ顔</translation></message>
<message><source>fruit</source><translation>果物</translation></message>
<message><source>frustrated</source><translation>不満</translation></message>
<message><source>fuel pump</source><translation>ガソリンスタンド</translation></message>
<message><source>full moon</source><translation>満月</translation></message>
<message><source>full moon face</source><translation>顔のある満月</translation></message>
<message><source>funeral urn</source><translation>骨壺</translation></message>
<message><source>game die</source><translation>サイコロ</translation></message>
<message><source>garlic</source><translation>ニンニク</translation></message>
<message><source>gear</source><translation>歯車</translation></message>
<message><source>gem stone</source><translation>宝石</translation></message>
<message><source>genie</source><translation>精霊</translation></message>
<message><source>gesture</source><translation>ジェスチャー</translation></message>
<message><source>ghost</source><translation>お化け</translation></message>
<message><source>ginger root</source><translation>ショウガ</translation></message>
<message><source>giraffe</source><translation>キリン</translation></message>
<message><source>girl</source><translation>女の子</translation></message>
<message><source>glass</source><translation>グラス</translation></message>
<message><source>glass of milk</source><translation>牛乳入りのコップ</translation></message>
<message><source>glasses</source><translation>メガネ</translation></message>
<message><source>globe showing Americas</source><translation>地球（アメリカ大陸）</translation></message>
<message><source>globe showing Asia-Australia</source><translation>地球（アジアとオーストラリア）</translation></message>
<message><source>globe showing Europe-Africa</source><translation>地球（ヨーロッパとアフリカ）</translation></message>
<message><source>globe with meridians</source><translation>子午線のある地球</translation></message>
<message><source>gloves</source><translation>手袋</translation></message>
<message><source>glowing star</source><translation>きらきら星</translation></message>
<message><source>goal</source><translation>ゴール</translation></message>
<message><source>goal net</source><translation>ゴールネット</translation></message>
<message><source>goat</source><translation>山羊</translation></message>
<message><source>goblin</source><translation>天狗</translation></message>
<message><source>goggles</source><translation>ゴーグル</translation></message>
<message><source>golf</source><translation>ゴルフ</translation></message>
<message><source>goose</source><translation>ガチョウ</translation></message>
<message><source>gorilla</source><translation>ゴリラ</translation></message>
<message><source>graduation cap</source><translation>角帽</translation></message>
<message><source>grapes</source><translation>ぶどう</translation></message>
<message><source>green apple</source><translation>青リンゴ</translation></message>
<message><source>green book</source><translation>緑の本</translation></message>
<message><source>green circle</source><translation>緑の丸</translation></message>
<message><source>green heart</source><translation>緑のハート</translation></message>
<message><source>green salad</source><translation>グリーンサラダ</translation></message>
<message><source>green square</source><translation>緑の四角</translation></message>
<message><source>grey heart</source><translation>灰色のハート</translation></message>
<message><source>grimacing face</source><translation>しかめ面</translation></message>
<message><source>grin</source><translation>笑う</translation></message>
<message><source>grinning cat</source><translation>にっこり笑う猫</translation></message>
<message><source>grinning cat with smiling eyes</source><translation>にやっと笑う猫</translation></message>
<message><source>grinning face</source><translation>にっこり笑う</translation></message>
<message><source>grinning face with big eyes</source><translation>わーい</translation></message>
<message><source>grinning face with smiling eyes</source><translation>笑顔</translation></message>
<message><source>grinning face with sweat</source><translation>冷や汗笑顔</translation></message>
<message><source>grinning squinting face</source><translation>きゃー</translation></message>
<message><source>growing heart</source><translation>大きくなるハート</translation></message>
<message><source>guard</source><translation>衛兵</translation></message>
<message><source>guide dog</source><translation>盲導犬</translation></message>
<message><source>guitar</source><translation>ギター</translation></message>
<message><source>hair pick</source><translation>アフロコーム</translation></message>
<message><source>halloween</source><translation>ハロウィーン</translation></message>
<message><source>hamburger</source><translation>ハンバーガー</translation></message>
<message><source>hammer</source><translation>ハンマー</translation></message>
<message><source>hammer and pick</source><translation>ハンマーとつるはし</translation></message>
<message><source>hammer and wrench</source><translation>ハンマーとレンチ</translation></message>
<message><source>hamsa</source><translation>ハムサ</translation></message>
<message><source>hamster</source><translation>ハムスターの顔</translation></message>
<message><source>hand</source><translation>手</translation></message>
<message><source>hand with fingers splayed</source><translation>開いた手</translation></message>
<message><source>hand with index finger and thumb crossed</source><translation>親指と人差し指をクロス</translation></message>
<message><source>handbag</source><translation>ハンドバッグ</translation></message>
<message><source>handshake</source><translation>握手</translation></message>
<message><source>happy</source><translation>ハッピー</translation></message>
<message><source>harp</source><translation>ハープ</translation></message>
<message><source>hat</source><translation>帽子</translation></message>
<message><source>hatching chick</source><translation>卵からかえったひよこ</translation></message>
<message><source>head shaking horizontally</source><translation>首を横に振る</translation></message>
<message><source>head shaking vertically</source><translation>首を縦に振る</translation></message>
<message><source>headphone</source><translation>ヘッドホン</translation></message>
<message><source>headstone</source><translation>墓石</translation></message>
<message><source>health worker</source><translation>医者</translation></message>
<message><source>hear-no-evil monkey</source><translation>聞かざる</translation></message>
<message><source>hearing</source><translation>耳</translation></message>
<message><source>heart</source><translation>ハート</translation></message>
<message><source>heart decoration</source><translation>ハートデコ</translation></message>
<message><source>heart exclamation</source><translation>ハートのびっくり</translation></message>
<message><source>heart hands</source><translation>ハート形の手</translation></message>
<message><source>heart on fire</source><translation>燃えるハート</translation></message>
<message><source>heart suit</source><translation>ハート</translation></message>
<message><source>heart with arrow</source><translation>ハートに矢</translation></message>
<message><source>heart with ribbon</source><translation>ハートにリボン</translation></message>
<message><source>heartbeat</source><translation>鼓動</translation></message>
<message><source>heavy dollar sign</source><translation>ドル記号</translation></message>
<message><source>heavy equals sign</source><translation>太字の等号</translation></message>
<message><source>hedgehog</source><translation>ハリネズミ</translation></message>
<message><source>helicopter</source><translation>ヘリコプター</translation></message>
<message><source>hello</source><translation>さようなら</translation></message>
<message><source>herb</source><translation>ハーブ</translation></message>
<message><source>hibiscus</source><translation>ハイビスカス</translation></message>
<message><source>high</source><translation>ハイタッチ</translation></message>
<message><source>high voltage</source><translation>高電圧</translation></message>
<message><source>high-heeled shoe</source><translation>ハイヒール</translation></message>
<message><source>high-speed train</source><translation>新幹線</translation></message>
<message><source>hiking boot</source><translation>ハイキングシューズ</translation></message>
<message><source>hindu</source><translation>ヒンズー教</translation></message>
<message><source>hindu temple</source><translation>ヒンドゥー教の寺院</translation></message>
<message><source>hippopotamus</source><translation>カバ</translation></message>
<message><source>hockey</source><translation>ホッケー</translation></message>
<message><source>hole</source><translation>穴</translation></message>
<message><source>hollow red circle</source><translation>太い丸</translation></message>
<message><source>honey pot</source><translation>はちみつ</translation></message>
<message><source>honeybee</source><translation>ミツバチ</translation></message>
<message><source>hook</source><translation>フック</translation></message>
<message><source>horizontal traffic light</source><translation>信号横</translation></message>
<message><source>horse</source><translation>馬</translation></message>
<message><source>horse face</source><translation>馬の顔</translation></message>
<message><source>horse racing</source><translation>競馬</translation></message>
<message><source>hospital</source><translation>病院</translation></message>
<message><source>hot beverage</source><translation>温かい飲み物</translation></message>
<message><source>hot dog</source><translation>ホットドッグ</translation></message>
<message><source>hot face</source><translation>暑い顔</translation></message>
<message><source>hot pepper</source><translation>とうがらし</translation></message>
<message><source>hot springs</source><translation>温泉マーク</translation></message>
<message><source>hotel</source><translation>ホテル</translation></message>
<message><source>hourglass done</source><translation>砂時計</translation></message>
<message><source>hourglass not done</source><translation>砂が落ちている砂時計</translation></message>
<message><source>house</source><translation>家</translation></message>
<message><source>house with garden</source><translation>庭付きの家</translation></message>
<message><source>houses</source><translation>住宅街</translation></message>
<message><source>hugging</source><translation>ハグ</translation></message>
<message><source>hundred points</source><translation>100点満点</translation></message>
<message><source>hushed face</source><translation>ぽかーん</translation></message>
<message><source>hut</source><translation>わらぶき小屋</translation></message>
<message><source>hyacinth</source><translation>ヒヤシンス</translation></message>
<message><source>ice</source><translation>角氷</translation></message>
<message><source>ice cream</source><translation>アイスクリーム</translation></message>
<message><source>ice hockey</source><translation>アイスホッケー</translation></message>
<message><source>ice skate</source><translation>アイススケート</translation></message>
<message><source>identification card</source><translation>身分証</translation></message>
<message><source>inbox tray</source><translation>受信トレイ</translation></message>
<message><source>incoming envelope</source><translation>メール受信中</translation></message>
<message><source>index pointing at the viewer</source><translation>人を指差している手</translation></message>
<message><source>index pointing up</source><translation>上指差し</translation></message>
<message><source>infinity</source><translation>無限大</translation></message>
<message><source>information</source><translation>iマーク</translation></message>
<message><source>input</source><translation>入力</translation></message>
<message><source>input latin letters</source><translation>英字の入力</translation></message>
<message><source>input latin lowercase</source><translation>英小文字の入力</translation></message>
<message><source>input latin uppercase</source><translation>英大文字の入力</translation></message>
<message><source>input numbers</source><translation>数字の入力</translation></message>
<message><source>input symbols</source><translation>記号の入力</translation></message>
<message><source>insect</source><translation>虫</translation></message>
<message><source>instrument</source><translation>楽器</translation></message>
<message><source>internet</source><translation>インターネット</translation></message>
<message><source>jack-o-lantern</source><translation>ハロウィンかぼちゃ</translation></message>
<message><source>jar</source><translation>瓶</translation></message>
<message><source>jeans</source><translation>ジーンズ</translation></message>
<message><source>jellyfish</source><translation>クラゲ</translation></message>
<message><source>joker</source><translation>ジョーカー</translation></message>
<message><source>joy</source><translation>爆笑</translation></message>
<message><source>joystick</source><translation>ジョイスティック</translation></message>
<message><source>judge</source><translation>裁判官</translation></message>
<message><source>kaaba</source><translation>カーバ</translation></message>
<message><source>kangaroo</source><translation>カンガルー</translation></message>
<message><source>key</source><translation>鍵</translation></message>
<message><source>keyboard</source><translation>キーボード</translation></message>
<message><source>keycap</source><translation>囲み数字</translation></message>
<message><source>keycap: #</source><translation>囲み数字: #</translation></message>
<message><source>keycap: *</source><translation>囲み数字: *</translation></message>
<message><source>keycap: 0</source><translation>囲み数字: 0</translation></message>
<message><source>keycap: 1</source><translation>囲み数字: 1</translation></message>
<message><source>keycap: 10</source><translation>囲み数字: 10</translation></message>
<message><source>keycap: 2</source><translation>囲み数字: 2</translation></message>
<message><source>keycap: 3</source><translation>囲み数字: 3</translation></message>
<message><source>keycap: 4</source><translation>囲み数字: 4</translation></message>
<message><source>keycap: 5</source><translation>囲み数字: 5</translation></message>
<message><source>keycap: 6</source><translation>囲み数字: 6</translation></message>
<message><source>keycap: 7</source><translation>囲み数字: 7</translation></message>
<message><source>keycap: 8</source><translation>囲み数字: 8</translation></message>
<message><source>keycap: 9</source><translation>囲み数字: 9</translation></message>
<message><source>khanda</source><translation>カンダ</translation></message>
<message><source>kick scooter</source><translation>キックボード</translation></message>
<message><source>kimono</source><translation>着物</translation></message>
<message><source>kiss</source><translation>2人でキス</translation></message>
<message><source>kiss mark</source><translation>キスマーク</translation></message>
<message><source>kiss: man, man</source><translation>2人でキス: 男性 男性</translation></message>
<message><source>kiss: woman, man</source><translation>2人でキス: 女性 男性</translation></message>
<message><source>kiss: woman, woman</source><translation>2人でキス: 女性 女性</translation></message>
<message><source>kissing</source><translation>ちゅっ</translation></message>
<message><source>kissing cat</source><translation>猫のキス</translation></message>
<message><source>kissing face</source><translation>キス</translation></message>
<message><source>kissing face with closed eyes</source><translation>ちゅっ</translation></message>
<message><source>kissing face with smiling eyes</source><translation>にっこりキス</translation></message>
<message><source>kitchen knife</source><translation>包丁</translation></message>
<message><source>kite</source><translation>たこ</translation></message>
<message><source>kiwi fruit</source><translation>キウイフルーツ</translation></message>
<message><source>knife</source><translation>ナイフ</translation></message>
<message><source>knot</source><translation>結び目</translation></message>
<message><source>koala</source><translation>コアラ</translation></message>
<message><source>lab</source><translation>実験</translation></message>
<message><source>lab coat</source><translation>白衣</translation></message>
<message><source>label</source><translation>荷札</translation></message>
<message><source>lacrosse</source><translation>ラクロス</translation></message>
<message><source>ladder</source><translation>はしご</translation></message>
<message><source>lady beetle</source><translation>テントウムシ</translation></message>
<message><source>laptop</source><translation>ノートパソコン</translation></message>
<message><source>large blue diamond</source><translation>大きい青のひし形</translation></message>
<message><source>large orange diamond</source><translation>大きいオレンジのひし形</translation></message>
<message><source>last quarter moon</source><translation>下弦の月</translation></message>
<message><source>last quarter moon face</source><translation>顔のある下弦の月</translation></message>
<message><source>last track button</source><translation>前の曲ボタン</translation></message>
<message><source>latin cross</source><translation>十字架</translation></message>
<message><source>leaf</source><translation>葉</translation></message>
<message><source>leaf fluttering in wind</source><translation>風に揺れる葉</translation></message>
<message><source>leafless tree</source><translation>枯れ木</translation></message>
<message><source>leafy green</source><translation>葉野菜</translation></message>
<message><source>ledger</source><translation>リングノート</translation></message>
<message><source>left arrow</source><translation>左矢印</translation></message>
<message><source>left arrow curving right</source><translation>左カーブ矢印</translation></message>
<message><source>left luggage</source><translation>手荷物預かり</translation></message>
<message><source>left speech bubble</source><translation>吹き出し左</translation></message>
<message><source>left-facing fist</source><translation>左向きのこぶし</translation></message>
<message><source>left-right arrow</source><translation>左右矢印</translation></message>
<message><source>leftwards hand</source><translation>左に向けた手</translation></message>
<message><source>leftwards pushing hand</source><translation>左向きに押している手</translation></message>
<message><source>leg</source><translation>脚</translation></message>
<message><source>lemon</source><translation>レモン</translation></message>
<message><source>leopard</source><translation>ヒョウ</translation></message>
<message><source>letter</source><translation>手紙</translation></message>
<message><source>level slider</source><translation>レベルスライダー</translation></message>
<message><source>light blue heart</source><translation>薄い青のハート</translation></message>
<message><source>light bulb</source><translation>電球</translation></message>
<message><source>light rail</source><translation>ライトレール</translation></message>
<message><source>light skin tone</source><translation>薄い肌色</translation></message>
<message><source>lime</source><translation>ライム</translation></message>
<message><source>link</source><translation>リンクシンボル</translation></message>
<message><source>linked paperclips</source><translation>つながったクリップ</translation></message>
<message><source>lion</source><translation>ライオンの顔</translation></message>
<message><source>lipstick</source><translation>口紅</translation></message>
<message><source>litter in bin sign</source><translation>ゴミ箱</translation></message>
<message><source>lizard</source><translation>トカゲ</translation></message>
<message><source>llama</source><translation>ラマ</translation></message>
<message><source>lobster</source><translation>ザリガニ</translation></message>
<message><source>lock</source><translation>鍵</translation></message>
<message><source>locked</source><translation>閉じた錠</translation></message>
<message><source>locked with key</source><translation>閉じた錠と鍵</translation></message>
<message><source>locked with pen</source><translation>閉じた錠とペン</translation></message>
<message><source>locomotive</source><translation>蒸気機関車</translation></message>
<message><source>lollipop</source><translation>ぺろぺろキャンディ</translation></message>
<message><source>long drum</source><translation>コンガ</translation></message>
<message><source>losing</source><translation>がっかり</translation></message>
<message><source>lotion bottle</source><translation>ローション</translation></message>
<message><source>lotus</source><translation>ハスの花</translation></message>
<message><source>loudly crying face</source><translation>大泣き</translation></message>
<message><source>loudspeaker</source><translation>拡声器</translation></message>
<message><source>love hotel</source><translation>ラブホテル</translation></message>
<message><source>love letter</source><translation>ラブレター</translation></message>
<message><source>love-you gesture</source><translation>アイラブユー</translation></message>
<message><source>low battery</source><translation>バッテリー残量低下</translation></message>
<message><source>lowered</source><translation>手紙なし</translation></message>
<message><source>luggage</source><translation>スーツケース</translation></message>
<message><source>lungs</source><translation>肺</translation></message>
<message><source>lying face</source><translation>うそつきの顔</translation></message>
<message><source>mage</source><translation>魔法使い</translation></message>
<message><source>magic</source><translation>魔法</translation></message>
<message><source>magic wand</source><translation>魔法の杖</translation></message>
<message><source>magnet</source><translation>U字型磁石</translation></message>
<message><source>magnetic</source><translation>磁石</translation></message>
<message><source>magnifying glass tilted left</source><translation>虫眼鏡左</translation></message>
<message><source>magnifying glass tilted right</source><translation>虫眼鏡右</translation></message>
<message><source>mahjong red dragon</source><translation>麻雀</translation></message>
<message><source>male sign</source><translation>男性のマーク</translation></message>
<message><source>mammal</source><translation>哺乳類</translation></message>
<message><source>mammoth</source><translation>マンモス</translation></message>
<message><source>man</source><translation>男性</translation></message>
<message><source>man artist</source><translation>男性の芸術家</translation></message>
<message><source>man astronaut</source><translation>男性宇宙飛行士</translation></message>
<message><source>man biking</source><translation>自転車に乗る男</translation></message>
<message><source>man bouncing ball</source><translation>バスケットボールをする男</translation></message>
<message><source>man bowing</source><translation>おじぎする男</translation></message>
<message><source>man cartwheeling</source><translation>側転する男</translation></message>
<message><source>man climbing</source><translation>山を登る男</translation></message>
<message><source>man construction worker</source><translation>男性の建設作業員</translation></message>
<message><source>man cook</source><translation>男性のコック</translation></message>
<message><source>man dancing</source><translation>踊る男</translation></message>
<message><source>man detective</source><translation>男性の探偵</translation></message>
<message><source>man elf</source><translation>男のエルフ</translation></message>
<message><source>man facepalming</source><translation>ひたいに手をあてる男</translation></message>
<message><source>man factory worker</source><translation>男性の溶接工</translation></message>
<message><source>man fairy</source><translation>男の妖精</translation></message>
<message><source>man farmer</source><translation>農家の男性</translation></message>
<message><source>man feeding baby</source><translation>授乳する男性</translation></message>
<message><source>man firefighter</source><translation>男性消防士</translation></message>
<message><source>man frowning</source><translation>しかめ面の男</translation></message>
<message><source>man genie</source><translation>男の精霊</translation></message>
<message><source>man gesturing NO</source><translation>ダメのポーズをする男</translation></message>
<message><source>man gesturing OK</source><translation>OKのポーズをする男</translation></message>
<message><source>man getting haircut</source><translation>散髪される男</translation></message>
<message><source>man getting massage</source><translation>フェイスマッサージ中の男</translation></message>
<message><source>man golfing</source><translation>ゴルフをする男</translation></message>
<message><source>man guard</source><translation>男性の衛兵</translation></message>
<message><source>man health worker</source><translation>男性の医者</translation></message>
<message><source>man in lotus position</source><translation>ヨガのポーズをする男</translation></message>
<message><source>man in manual wheelchair</source><translation>手動式車椅子の男性</translation></message>
<message><source>man in manual wheelchair: facing right</source><translation>手動式車椅子の男性: 右向き</translation></message>
<message><source>man in motorized wheelchair</source><translation>電動車椅子の男性</translation></message>
<message><source>man in motorized wheelchair: facing right</source><translation>電動車椅子の男性: 右向き</translation></message>
<message><source>man in steamy room</source><translation>サウナに入る男</translation></message>
<message><source>man in tuxedo</source><translation>タキシードの男性</translation></message>
<message><source>man judge</source><translation>男性の裁判官</translation></message>
<message><source>man juggling</source><translation>ジャグリングをする男</translation></message>
<message><source>man kneeling</source><translation>正座する男性</translation></message>
<message><source>man kneeling: facing right</source><translation>正座する男性: 右向き</translation></message>
<message><source>man lifting weights</source><translation>重量挙げをする男</translation></message>
<message><source>man mage</source><translation>男の魔法使い</translation></message>
<message><source>man mechanic</source><translation>男性の整備士</translation></message>
<message><source>man mountain biking</source><translation>マウンテンバイクに乗る男</translation></message>
<message><source>man office worker</source><translation>男性会社員</translation></message>
<message><source>man pilot</source><translation>男性パイロット</translation></message>
<message><source>man playing handball</source><translation>ハンドボールをする男</translation></message>
<message><source>man playing water polo</source><translation>水球をする男</translation></message>
<message><source>man police officer</source><translation>男性警察官</translation></message>
<message><source>man pouting</source><translation>不機嫌な男</translation></message>
<message><source>man raising hand</source><translation>手を挙げる男</translation></message>
<message><source>man rowing boat</source><translation>ボートをこぐ男</translation></message>
<message><source>man running</source><translation>走る男</translation></message>
<message><source>man running: facing right</source><translation>走る男: 右向き</translation></message>
<message><source>man scientist</source><translation>男性科学者</translation></message>
<message><source>man shrugging</source><translation>お手上げする男</translation></message>
<message><source>man singer</source><translation>男性歌手</translation></message>
<message><source>man standing</source><translation>立つ男</translation></message>
<message><source>man student</source><translation>男子学生</translation></message>
<message><source>man superhero</source><translation>男性のスーパーヒーロー</translation></message>
<message><source>man supervillain</source><translation>男性の悪役</translation></message>
<message><source>man surfing</source><translation>サーフィンする男</translation></message>
<message><source>man swimming</source><translation>泳ぐ男</translation></message>
<message><source>man teacher</source><translation>男性の教師</translation></message>
<message><source>man technologist</source><translation>男性技術者</translation></message>
<message><source>man tipping hand</source><translation>案内する男</translation></message>
<message><source>man vampire</source><translation>男の吸血鬼</translation></message>
<message><source>man walking</source><translation>歩く男</translation></message>
<message><source>man walking: facing right</source><translation>歩く男: 右向き</translation></message>
<message><source>man wearing turban</source><translation>ターバンの男性</translation></message>
<message><source>man with veil</source><translation>ベールの男性</translation></message>
<message><source>man with white cane</source><translation>杖をついた男性</translation></message>
<message><source>man with white cane: facing right</source><translation>杖をついた男性: 右向き</translation></message>
<message><source>man zombie</source><translation>男のゾンビ</translation></message>
<message><source>man: bald</source><translation>男性: はげ頭</translation></message>
<message><source>man: beard</source><translation>あごひげの男性</translation></message>
<message><source>man: blond hair</source><translation>金髪の男性</translation></message>
<message><source>man: curly hair</source><translation>男性: 巻き毛</translation></message>
<message><source>man: red hair</source><translation>男性: 赤毛</translation></message>
<message><source>man: white hair</source><translation>男性: 白髪</translation></message>
<message><source>mango</source><translation>マンゴー</translation></message>
<message><source>mantelpiece clock</source><translation>置時計</translation></message>
<message><source>manual wheelchair</source><translation>手動式車椅子</translation></message>
<message><source>man’s shoe</source><translation>紳士靴</translation></message>
<message><source>map</source><translation>地図</translation></message>
<message><source>map of Japan</source><translation>日本地図</translation></message>
<message><source>maple leaf</source><translation>かえで</translation></message>
<message><source>maracas</source><translation>マラカス</translation></message>
<message><source>martial arts uniform</source><translation>武道</translation></message>
<message><source>mate</source><translation>マテ茶</translation></message>
<message><source>meat</source><translation>肉</translation></message>
<message><source>meat on bone</source><translation>骨付き肉</translation></message>
<message><source>mechanic</source><translation>整備士</translation></message>
<message><source>mechanical arm</source><translation>義手</translation></message>
<message><source>mechanical leg</source><translation>義足</translation></message>
<message><source>medal</source><translation>メダル</translation></message>
<message><source>medical symbol</source><translation>医療のシンボル</translation></message>
<message><source>medicine</source><translation>医療</translation></message>
<message><source>medium skin tone</source><translation>中間の肌色</translation></message>
<message><source>medium-dark skin tone</source><translation>やや濃い肌色</translation></message>
<message><source>medium-light skin tone</source><translation>やや薄い肌色</translation></message>
<message><source>megaphone</source><translation>メガホン</translation></message>
<message><source>meh</source><translation>ふーん</translation></message>
<message><source>melon</source><translation>メロン</translation></message>
<message><source>melting face</source><translation>溶けている顔</translation></message>
<message><source>memo</source><translation>鉛筆とメモ</translation></message>
<message><source>men holding hands</source><translation>手をつなぐ男性</translation></message>
<message><source>men with bunny ears</source><translation>バニーボーイ</translation></message>
<message><source>men wrestling</source><translation>レスリングする男</translation></message>
<message><source>mending heart</source><translation>包帯を巻いたハート</translation></message>
<message><source>menorah</source><translation>メノーラー</translation></message>
<message><source>men’s room</source><translation>男子トイレ</translation></message>
<message><source>mermaid</source><translation>マーメイド</translation></message>
<message><source>merman</source><translation>マーマン</translation></message>
<message><source>merperson</source><translation>人魚</translation></message>
<message><source>metro</source><translation>地下鉄</translation></message>
<message><source>mexican</source><translation>メキシカン</translation></message>
<message><source>microbe</source><translation>微生物</translation></message>
<message><source>microphone</source><translation>マイク</translation></message>
<message><source>microscope</source><translation>顕微鏡</translation></message>
<message><source>middle finger</source><translation>立てた中指</translation></message>
<message><source>military helmet</source><translation>軍用ヘルメット</translation></message>
<message><source>military medal</source><translation>勲章</translation></message>
<message><source>milky way</source><translation>天の川</translation></message>
<message><source>minibus</source><translation>マイクロバス</translation></message>
<message><source>minus</source><translation>マイナス</translation></message>
<message><source>mirror</source><translation>鏡</translation></message>
<message><source>mirror ball</source><translation>ミラーボール</translation></message>
<message><source>moai</source><translation>モアイ</translation></message>
<message><source>mobile phone</source><translation>携帯電話</translation></message>
<message><source>mobile phone off</source><translation>携帯電話電源オフ</translation></message>
<message><source>mobile phone with arrow</source><translation>着信中</translation></message>
<message><source>money</source><translation>お金</translation></message>
<message><source>money bag</source><translation>ドル袋</translation></message>
<message><source>money with wings</source><translation>羽が生えたお金</translation></message>
<message><source>money-mouth face</source><translation>お金の顔</translation></message>
<message><source>monkey</source><translation>サル</translation></message>
<message><source>monkey face</source><translation>サルの顔</translation></message>
<message><source>monorail</source><translation>モノレール</translation></message>
<message><source>moon</source><translation>月</translation></message>
<message><source>moon cake</source><translation>月餅</translation></message>
<message><source>moon viewing ceremony</source><translation>月見</translation></message>
<message><source>moose</source><translation>ヘラジカ</translation></message>
<message><source>mosque</source><translation>モスク</translation></message>
<message><source>mosquito</source><translation>蚊</translation></message>
<message><source>motor boat</source><translation>モーターボート</translation></message>
<message><source>motor scooter</source><translation>スクーター</translation></message>
<message><source>motorcycle</source><translation>オートバイ</translation></message>
<message><source>motorized wheelchair</source><translation>電動車椅子</translation></message>
<message><source>motorway</source><translation>高速道路</translation></message>
<message><source>mount fuji</source><translation>富士山</translation></message>
<message><source>mountain</source><translation>山</translation></message>
<message><source>mountain cableway</source><translation>ケーブルカー</translation></message>
<message><source>mountain railway</source><translation>登山鉄道</translation></message>
<message><source>mouse</source><translation>ハツカネズミ</translation></message>
<message><source>mouse face</source><translation>ネズミの顔</translation></message>
<message><source>mouse trap</source><translation>ねずみ捕り</translation></message>
<message><source>mouth</source><translation>口</translation></message>
<message><source>movie</source><translation>映画</translation></message>
<message><source>movie camera</source><translation>映画カメラ</translation></message>
<message><source>multiply</source><translation>掛け算</translation></message>
<message><source>mushroom</source><translation>キノコ</translation></message>
<message><source>music</source><translation>音楽</translation></message>
<message><source>musical keyboard</source><translation>鍵盤</translation></message>
<message><source>musical note</source><translation>音符</translation></message>
<message><source>musical notes</source><translation>複数の音符</translation></message>
<message><source>musical score</source><translation>楽譜</translation></message>
<message><source>muted speaker</source><translation>スピーカー消音</translation></message>
<message><source>mwah</source><translation>2人でキス</translation></message>
<message><source>myth</source><translation>神話</translation></message>
<message><source>nail polish</source><translation>マニキュアを塗る手</translation></message>
<message><source>name badge</source><translation>名札</translation></message>
<message><source>national park</source><translation>国立公園</translation></message>
<message><source>nauseated face</source><translation>吐き気を催している顔</translation></message>
<message><source>nazar amulet</source><translation>ナザール・ボンジュウ</translation></message>
<message><source>necktie</source><translation>ネクタイ</translation></message>
<message><source>nerd face</source><translation>オタク</translation></message>
<message><source>nervous</source><translation>冷や汗</translation></message>
<message><source>nest with eggs</source><translation>鳥の卵と巣</translation></message>
<message><source>nesting dolls</source><translation>マトリョーシカ</translation></message>
<message><source>neutral face</source><translation>ポーカーフェイス</translation></message>
<message><source>new moon</source><translation>新月</translation></message>
<message><source>new moon face</source><translation>顔のある新月</translation></message>
<message><source>newspaper</source><translation>新聞</translation></message>
<message><source>next track button</source><translation>次の曲ボタン</translation></message>
<message><source>night with stars</source><translation>夜の都会</translation></message>
<message><source>nine o’clock</source><translation>9時</translation></message>
<message><source>nine-thirty</source><translation>9時半</translation></message>
<message><source>ninja</source><translation>忍者</translation></message>
<message><source>no bicycles</source><translation>自転車禁止</translation></message>
<message><source>no entry</source><translation>車両進入禁止</translation></message>
<message><source>no littering</source><translation>ポイ捨て禁止</translation></message>
<message><source>no mobile phones</source><translation>携帯電話禁止</translation></message>
<message><source>no one under eighteen</source><translation>18歳未満禁止</translation></message>
<message><source>no pedestrians</source><translation>歩行者立入禁止</translation></message>
<message><source>no smoking</source><translation>禁煙</translation></message>
<message><source>non-potable water</source><translation>飲用不可</translation></message>
<message><source>nose</source><translation>鼻</translation></message>
<message><source>notebook</source><translation>ノート</translation></message>
<message><source>notebook with decorative cover</source><translation>表紙付きノート</translation></message>
<message><source>nut and bolt</source><translation>ボルトとナット</translation></message>
<message><source>octopus</source><translation>タコ</translation></message>
<message><source>oden</source><translation>おでん</translation></message>
<message><source>office building</source><translation>オフィスビル</translation></message>
<message><source>office worker</source><translation>会社員</translation></message>
<message><source>ogre</source><translation>鬼</translation></message>
<message><source>oil</source><translation>オイル</translation></message>
<message><source>oil drum</source><translation>ドラム缶</translation></message>
<message><source>old key</source><translation>古い鍵</translation></message>
<message><source>old man</source><translation>おじいさん</translation></message>
<message><source>old woman</source><translation>おばあさん</translation></message>
<message><source>older person</source><translation>お年寄り</translation></message>
<message><source>olive</source><translation>オリーブ</translation></message>
<message><source>om</source><translation>オーム</translation></message>
<message><source>oncoming automobile</source><translation>自動車正面</translation></message>
<message><source>oncoming bus</source><translation>バス正面</translation></message>
<message><source>oncoming fist</source><translation>グー</translation></message>
<message><source>oncoming police car</source><translation>パトカー正面</translation></message>
<message><source>oncoming taxi</source><translation>タクシー正面</translation></message>
<message><source>one o’clock</source><translation>1時</translation></message>
<message><source>one-piece swimsuit</source><translation>ワンピースの水着</translation></message>
<message><source>one-thirty</source><translation>1時半</translation></message>
<message><source>onion</source><translation>タマネギ</translation></message>
<message><source>open book</source><translation>開いた本</translation></message>
<message><source>open file folder</source><translation>開いたフォルダー</translation></message>
<message><source>open hands</source><translation>両手のひら</translation></message>
<message><source>open mailbox with lowered flag</source><translation>開いた郵便受け（手紙なし）</translation></message>
<message><source>open mailbox with raised flag</source><translation>開いた郵便受け（手紙あり）</translation></message>
<message><source>optical disk</source><translation>CD</translation></message>
<message><source>orange</source><translation>オレンジ</translation></message>
<message><source>orange book</source><translation>オレンジの本</translation></message>
<message><source>orange circle</source><translation>オレンジの丸</translation></message>
<message><source>orange heart</source><translation>オレンジのハート</translation></message>
<message><source>orange square</source><translation>オレンジの四角</translation></message>
<message><source>orangutan</source><translation>オランウータン</translation></message>
<message><source>orchestra</source><translation>オーケストラ</translation></message>
<message><source>organ</source><translation>臓器</translation></message>
<message><source>orthodox cross</source><translation>八端十字架</translation></message>
<message><source>otter</source><translation>カワウソ</translation></message>
<message><source>outbox tray</source><translation>送信トレイ</translation></message>
<message><source>owl</source><translation>フクロウ</translation></message>
<message><source>ox</source><translation>牡牛</translation></message>
<message><source>oyster</source><translation>牡蠣</translation></message>
<message><source>package</source><translation>荷物</translation></message>
<message><source>page</source><translation>ドキュメント</translation></message>
<message><source>page facing up</source><translation>ページ</translation></message>
<message><source>page with curl</source><translation>巻きページ</translation></message>
<message><source>pager</source><translation>ポケベル</translation></message>
<message><source>paintbrush</source><translation>絵筆</translation></message>
<message><source>palm down hand</source><translation>下に向けた手</translation></message>
<message><source>palm tree</source><translation>ヤシの木</translation></message>
<message><source>palm up hand</source><translation>上に向けた手</translation></message>
<message><source>palms up together</source><translation>手のひらを揃えた両手</translation></message>
<message><source>pancakes</source><translation>パンケーキ</translation></message>
<message><source>panda</source><translation>パンダの顔</translation></message>
<message><source>paperclip</source><translation>クリップ</translation></message>
<message><source>parachute</source><translation>パラシュート</translation></message>
<message><source>parrot</source><translation>オウム</translation></message>
<message><source>part alternation mark</source><translation>いおりてん</translation></message>
<message><source>party</source><translation>パーティー</translation></message>
<message><source>party popper</source><translation>クラッカー</translation></message>
<message><source>partying face</source><translation>パーティーの顔</translation></message>
<message><source>passenger</source><translation>客船</translation></message>
<message><source>passenger ship</source><translation>客船</translation></message>
<message><source>passport control</source><translation>出入国審査</translation></message>
<message><source>pause button</source><translation>一時停止ボタン</translation></message>
<message><source>paw prints</source><translation>肉球</translation></message>
<message><source>pea pod</source><translation>エンドウ豆</translation></message>
<message><source>peace symbol</source><translation>ピースマーク</translation></message>
<message><source>peach</source><translation>桃</translation></message>
<message><source>peacock</source><translation>クジャク</translation></message>
<message><source>peanuts</source><translation>ピーナッツ</translation></message>
<message><source>pear</source><translation>洋ナシ</translation></message>
<message><source>pen</source><translation>ペン</translation></message>
<message><source>pencil</source><translation>鉛筆</translation></message>
<message><source>penguin</source><translation>ペンギン</translation></message>
<message><source>pensive face</source><translation>しょぼーん</translation></message>
<message><source>people holding hands</source><translation>手をつなぐ2人</translation></message>
<message><source>people hugging</source><translation>ハグする人</translation></message>
<message><source>people with bunny ears</source><translation>バニー</translation></message>
<message><source>people wrestling</source><translation>レスリングする人</translation></message>
<message><source>pepper</source><translation>とうがらし</translation></message>
<message><source>performing arts</source><translation>舞台芸術</translation></message>
<message><source>persevering face</source><translation>我慢</translation></message>
<message><source>person</source><translation>大人</translation></message>
<message><source>person biking</source><translation>自転車に乗る人</translation></message>
<message><source>person bouncing ball</source><translation>バスケットボールをする人</translation></message>
<message><source>person bowing</source><translation>おじぎする人</translation></message>
<message><source>person cartwheeling</source><translation>側転する人</translation></message>
<message><source>person climbing</source><translation>山を登る人</translation></message>
<message><source>person facepalming</source><translation>ひたいに手をあてる人</translation></message>
<message><source>person feeding baby</source><translation>授乳する人</translation></message>
<message><source>person fencing</source><translation>フェンシングをする人</translation></message>
<message><source>person frowning</source><translation>しかめ面の人</translation></message>
<message><source>person gesturing NO</source><translation>ダメのポーズをする人</translation></message>
<message><source>person gesturing OK</source><translation>OKのポーズをする人</translation></message>
<message><source>person getting haircut</source><translation>散髪される人</translation></message>
<message><source>person getting massage</source><translation>フェイスマッサージ中の人</translation></message>
<message><source>person golfing</source><translation>ゴルフをする人</translation></message>
<message><source>person in bed</source><translation>ベッドに寝る人</translation></message>
<message><source>person in lotus position</source><translation>ヨガのポーズをする人</translation></message>
<message><source>person in manual wheelchair</source><translation>手動式車椅子の人</translation></message>
<message><source>person in manual wheelchair: facing right</source><translation>手動式車椅子の人: 右向き</translation></message>
<message><source>person in motorized wheelchair</source><translation>電動車椅子の人</translation></message>
<message><source>person in motorized wheelchair: facing right</source><translation>電動車椅子の人: 右向き</translation></message>
<message><source>person in steamy room</source><translation>サウナに入る人</translation></message>
<message><source>person in suit levitating</source><translation>浮いてるビジネスマン</translation></message>
<message><source>person in tuxedo</source><translation>タキシードの人</translation></message>
<message><source>person juggling</source><translation>ジャグリングをする人</translation></message>
<message><source>person kneeling</source><translation>正座する人</translation></message>
<message><source>person kneeling: facing right</source><translation>正座する人: 右向き</translation></message>
<message><source>person lifting weights</source><translation>重量挙げをする人</translation></message>
<message><source>person mountain biking</source><translation>マウンテンバイクに乗る人</translation></message>
<message><source>person playing handball</source><translation>ハンドボールをする人</translation></message>
<message><source>person playing water polo</source><translation>水球をする人</translation></message>
<message><source>person pouting</source><translation>不機嫌な人</translation></message>
<message><source>person raising hand</source><translation>手を挙げる人</translation></message>
<message><source>person rowing boat</source><translation>ボートをこぐ人</translation></message>
<message><source>person running</source><translation>走る人</translation></message>
<message><source>person running: facing right</source><translation>走る人: 右向き</translation></message>
<message><source>person shrugging</source><translation>お手上げする人</translation></message>
<message><source>person standing</source><translation>立つ人</translation></message>
<message><source>person surfing</source><translation>サーフィンする人</translation></message>
<message><source>person swimming</source><translation>泳ぐ人</translation></message>
<message><source>person taking bath</source><translation>風呂に入る人</translation></message>
<message><source>person tipping hand</source><translation>案内する人</translation></message>
<message><source>person walking</source><translation>歩く人</translation></message>
<message><source>person walking: facing right</source><translation>歩く人: 右向き</translation></message>
<message><source>person wearing turban</source><translation>ターバンの人</translation></message>
<message><source>person with crown</source><translation>王冠をかぶった人</translation></message>
<message><source>person with skullcap</source><translation>中華帽の男性</translation></message>
<message><source>person with veil</source><translation>ベールの人</translation></message>
<message><source>person with white cane</source><translation>杖をついた人</translation></message>
<message><source>person with white cane: facing right</source><translation>杖をついた人: 右向き</translation></message>
<message><source>person: bald</source><translation>大人: はげ頭</translation></message>
<message><source>person: beard</source><translation>あごひげの人</translation></message>
<message><source>person: blond hair</source><translation>金髪の人</translation></message>
<message><source>person: curly hair</source><translation>大人: 巻き毛</translation></message>
<message><source>person: red hair</source><translation>大人: 赤毛</translation></message>
<message><source>person: white hair</source><translation>大人: 白髪</translation></message>
<message><source>pet</source><translation>ペット</translation></message>
<message><source>petri dish</source><translation>ペトリ皿</translation></message>
<message><source>phoenix</source><translation>フェニックス</translation></message>
<message><source>phone</source><translation>スマホ</translation></message>
<message><source>pick</source><translation>つるはし</translation></message>
<message><source>pickup truck</source><translation>軽トラック</translation></message>
<message><source>pie</source><translation>パイ</translation></message>
<message><source>pig</source><translation>ブタ</translation></message>
<message><source>pig face</source><translation>ブタの顔</translation></message>
<message><source>pig nose</source><translation>ブタ鼻</translation></message>
<message><source>pile of poo</source><translation>うんち</translation></message>
<message><source>pill</source><translation>薬</translation></message>
<message><source>pilot</source><translation>パイロット</translation></message>
<message><source>pinched fingers</source><translation>上向きにすぼめた手</translation></message>
<message><source>pinching hand</source><translation>つまんでいる指</translation></message>
<message><source>pine decoration</source><translation>門松</translation></message>
<message><source>pineapple</source><translation>パイナップル</translation></message>
<message><source>ping pong</source><translation>卓球</translation></message>
<message><source>pink heart</source><translation>ピンクのハート</translation></message>
<message><source>pirate</source><translation>海賊</translation></message>
<message><source>pirate flag</source><translation>海賊旗</translation></message>
<message><source>pizza</source><translation>ピザ</translation></message>
<message><source>piñata</source><translation>ピニャータ</translation></message>
<message><source>placard</source><translation>プラカード</translation></message>
<message><source>place of worship</source><translation>礼拝所</translation></message>
<message><source>plant</source><translation>植物</translation></message>
<message><source>play button</source><translation>再生ボタン</translation></message>
<message><source>play or pause button</source><translation>再生／一時停止ボタン</translation></message>
<message><source>playground slide</source><translation>すべり台</translation></message>
<message><source>pleading face</source><translation>訴えるような顔</translation></message>
<message><source>plunger</source><translation>ラバーカップ</translation></message>
<message><source>plus</source><translation>プラス</translation></message>
<message><source>pointed</source><translation>三角</translation></message>
<message><source>pointing</source><translation>指差し</translation></message>
<message><source>polar bear</source><translation>シロクマ</translation></message>
<message><source>police</source><translation>警察</translation></message>
<message><source>police car</source><translation>パトカー</translation></message>
<message><source>police car light</source><translation>パトランプ</translation></message>
<message><source>police officer</source><translation>警察官</translation></message>
<message><source>poodle</source><translation>プードル</translation></message>
<message><source>pool 8 ball</source><translation>ビリヤード</translation></message>
<message><source>popcorn</source><translation>ポップコーン</translation></message>
<message><source>post</source><translation>郵便</translation></message>
<message><source>post office</source><translation>西洋の郵便局</translation></message>
<message><source>postal horn</source><translation>郵便ラッパ</translation></message>
<message><source>postbox</source><translation>郵便ポスト</translation></message>
<message><source>pot of food</source><translation>なべ</translation></message>
<message><source>potable water</source><translation>飲料水</translation></message>
<message><source>potato</source><translation>ジャガイモ</translation></message>
<message><source>potted plant</source><translation>鉢植え</translation></message>
<message><source>poultry leg</source><translation>鶏もも肉</translation></message>
<message><source>pound banknote</source><translation>ポンド札</translation></message>
<message><source>pouring liquid</source><translation>コップから注ぐ</translation></message>
<message><source>pouting</source><translation>ぷんぷん</translation></message>
<message><source>pouting cat</source><translation>不機嫌な猫</translation></message>
<message><source>pray</source><translation>祈り</translation></message>
<message><source>prayer beads</source><translation>数珠</translation></message>
<message><source>pregnant</source><translation>妊娠</translation></message>
<message><source>pregnant man</source><translation>妊夫</translation></message>
<message><source>pregnant person</source><translation>妊娠した人</translation></message>
<message><source>pregnant woman</source><translation>妊婦</translation></message>
<message><source>pretzel</source><translation>プレッツェル</translation></message>
<message><source>prince</source><translation>プリンス</translation></message>
<message><source>princess</source><translation>プリンセス</translation></message>
<message><source>printer</source><translation>プリンタ</translation></message>
<message><source>prohibited</source><translation>車両通行止め</translation></message>
<message><source>puck</source><translation>パック</translation></message>
<message><source>punctuation</source><translation>約物</translation></message>
<message><source>purple</source><translation>紫</translation></message>
<message><source>purple circle</source><translation>紫の丸</translation></message>
<message><source>purple heart</source><translation>紫のハート</translation></message>
<message><source>purple square</source><translation>紫の四角</translation></message>
<message><source>purse</source><translation>がま口</translation></message>
<message><source>pushpin</source><translation>押しピン</translation></message>
<message><source>puzzle piece</source><translation>ジグソーパズル</translation></message>
<message><source>quarter</source><translation>半月</translation></message>
<message><source>queen</source><translation>冠</translation></message>
<message><source>rabbit</source><translation>ウサギ</translation></message>
<message><source>rabbit face</source><translation>ウサギの顔</translation></message>
<message><source>raccoon</source><translation>アライグマ</translation></message>
<message><source>racing car</source><translation>レーシングカー</translation></message>
<message><source>radio</source><translation>ラジオ</translation></message>
<message><source>radio button</source><translation>ラジオボタン</translation></message>
<message><source>radioactive</source><translation>放射能</translation></message>
<message><source>railway</source><translation>電車</translation></message>
<message><source>railway car</source><translation>電車</translation></message>
<message><source>railway track</source><translation>線路</translation></message>
<message><source>rain</source><translation>雨</translation></message>
<message><source>rainbow</source><translation>虹</translation></message>
<message><source>rainbow flag</source><translation>レインボーフラッグ</translation></message>
<message><source>raised back of hand</source><translation>手の甲</translation></message>
<message><source>raised fist</source><translation>げんこつ</translation></message>
<message><source>raised hand</source><translation>挙手</translation></message>
<message><source>raising hands</source><translation>バンザイ</translation></message>
<message><source>ram</source><translation>牡羊</translation></message>
<message><source>rat</source><translation>ネズミ</translation></message>
<message><source>razor</source><translation>剃刀</translation></message>
<message><source>reach</source><translation>方向</translation></message>
<message><source>receipt</source><translation>レシート</translation></message>
<message><source>record button</source><translation>録音録画ボタン</translation></message>
<message><source>recycling symbol</source><translation>リサイクルマーク</translation></message>
<message><source>red apple</source><translation>赤リンゴ</translation></message>
<message><source>red circle</source><translation>赤い丸</translation></message>
<message><source>red envelope</source><translation>赤い封筒</translation></message>
<message><source>red exclamation mark</source><translation>赤い感嘆符</translation></message>
<message><source>red heart</source><translation>赤いハート</translation></message>
<message><source>red paper lantern</source><translation>赤ちょうちん</translation></message>
<message><source>red question mark</source><translation>赤い疑問符</translation></message>
<message><source>red square</source><translation>赤い四角</translation></message>
<message><source>red triangle pointed down</source><translation>赤い下三角</translation></message>
<message><source>red triangle pointed up</source><translation>赤い上三角</translation></message>
<message><source>registered</source><translation>登録商標マーク</translation></message>
<message><source>relationship</source><translation>カップルとハート</translation></message>
<message><source>relax</source><translation>リラックス</translation></message>
<message><source>relief</source><translation>安心</translation></message>
<message><source>relieved face</source><translation>ほっとした顔</translation></message>
<message><source>religion</source><translation>宗教</translation></message>
<message><source>reminder ribbon</source><translation>リマインダーリボン</translation></message>
<message><source>repeat button</source><translation>リピートボタン</translation></message>
<message><source>repeat single button</source><translation>1曲リピートボタン</translation></message>
<message><source>rescue worker’s helmet</source><translation>白十字ヘルメット</translation></message>
<message><source>restroom</source><translation>トイレ</translation></message>
<message><source>reverse</source><translation>巻き戻し</translation></message>
<message><source>reverse button</source><translation>逆再生ボタン</translation></message>
<message><source>revolving hearts</source><translation>回転するハート</translation></message>
<message><source>rhinoceros</source><translation>サイ</translation></message>
<message><source>ribbon</source><translation>リボン</translation></message>
<message><source>rice</source><translation>米</translation></message>
<message><source>rice ball</source><translation>おにぎり</translation></message>
<message><source>rice cracker</source><translation>せんべい</translation></message>
<message><source>right anger bubble</source><translation>怒りの吹き出し</translation></message>
<message><source>right arrow</source><translation>右矢印</translation></message>
<message><source>right arrow curving down</source><translation>下カーブ矢印</translation></message>
<message><source>right arrow curving left</source><translation>右カーブ矢印</translation></message>
<message><source>right arrow curving up</source><translation>上カーブ矢印</translation></message>
<message><source>right-facing fist</source><translation>右向きのこぶし</translation></message>
<message><source>rightwards hand</source><translation>右に向けた手</translation></message>
<message><source>rightwards pushing hand</source><translation>右向きに押している手</translation></message>
<message><source>ring</source><translation>指輪</translation></message>
<message><source>ring buoy</source><translation>救命浮環</translation></message>
<message><source>ringed planet</source><translation>環のある惑星</translation></message>
<message><source>roasted sweet potato</source><translation>焼き芋</translation></message>
<message><source>robot</source><translation>ロボット</translation></message>
<message><source>rock</source><translation>岩石</translation></message>
<message><source>rocket</source><translation>ロケット</translation></message>
<message><source>rofl</source><translation>あはは</translation></message>
<message><source>roll of paper</source><translation>トイレットペーパー</translation></message>
<message><source>rolled-up newspaper</source><translation>丸めた新聞</translation></message>
<message><source>roller coaster</source><translation>ジェットコースター</translation></message>
<message><source>roller skate</source><translation>ローラースケート</translation></message>
<message><source>rolling on the floor laughing</source><translation>笑い転げる</translation></message>
<message><source>rooster</source><translation>おんどり</translation></message>
<message><source>root vegetable</source><translation>根菜</translation></message>
<message><source>rose</source><translation>バラ</translation></message>
<message><source>rosette</source><translation>花飾り</translation></message>
<message><source>round pushpin</source><translation>丸い押しピン</translation></message>
<message><source>rugby football</source><translation>ラグビー</translation></message>
<message><source>running shirt</source><translation>長距離走</translation></message>
<message><source>running shoe</source><translation>スニーカー</translation></message>
<message><source>sad but relieved face</source><translation>どうしよう</translation></message>
<message><source>safety pin</source><translation>安全ピン</translation></message>
<message><source>safety vest</source><translation>安全ベスト</translation></message>
<message><source>sailboat</source><translation>ヨット</translation></message>
<message><source>sake</source><translation>徳利</translation></message>
<message><source>salt</source><translation>塩</translation></message>
<message><source>saluting face</source><translation>敬礼する顔</translation></message>
<message><source>sandal</source><translation>サンダル</translation></message>
<message><source>sandwich</source><translation>サンドイッチ</translation></message>
<message><source>sari</source><translation>サリー</translation></message>
<message><source>satellite</source><translation>人工衛星</translation></message>
<message><source>satellite antenna</source><translation>パラボラアンテナ</translation></message>
<message><source>sauropod</source><translation>草食恐竜</translation></message>
<message><source>saxophone</source><translation>サックス</translation></message>
<message><source>scarf</source><translation>マフラー</translation></message>
<message><source>school</source><translation>学校</translation></message>
<message><source>science</source><translation>科学</translation></message>
<message><source>scientist</source><translation>科学者</translation></message>
<message><source>scissors</source><translation>はさみ</translation></message>
<message><source>scorpion</source><translation>サソリ</translation></message>
<message><source>screwdriver</source><translation>ねじ回し</translation></message>
<message><source>scroll</source><translation>巻き物</translation></message>
<message><source>scuba</source><translation>スキューバ</translation></message>
<message><source>seal</source><translation>アザラシ</translation></message>
<message><source>seat</source><translation>座席</translation></message>
<message><source>secret</source><translation>秘密</translation></message>
<message><source>see-no-evil monkey</source><translation>見ざる</translation></message>
<message><source>seedling</source><translation>新芽</translation></message>
<message><source>selfie</source><translation>セルフィー</translation></message>
<message><source>service dog</source><translation>介助犬</translation></message>
<message><source>seven o’clock</source><translation>7時</translation></message>
<message><source>seven-thirty</source><translation>7時半</translation></message>
<message><source>sewing needle</source><translation>縫い針</translation></message>
<message><source>shaking face</source><translation>震えている顔</translation></message>
<message><source>shallow pan of food</source><translation>パエリア</translation></message>
<message><source>shamrock</source><translation>クローバー</translation></message>
<message><source>shark</source><translation>サメ</translation></message>
<message><source>shaved ice</source><translation>かき氷</translation></message>
<message><source>sheaf of rice</source><translation>稲</translation></message>
<message><source>shield</source><translation>盾</translation></message>
<message><source>shinto shrine</source><translation>鳥居</translation></message>
<message><source>ship</source><translation>船</translation></message>
<message><source>shirt</source><translation>シャツ</translation></message>
<message><source>shoe</source><translation>靴</translation></message>
<message><source>shooting</source><translation>流れ星</translation></message>
<message><source>shooting star</source><translation>流れ星</translation></message>
<message><source>shopping bags</source><translation>紙袋</translation></message>
<message><source>shopping cart</source><translation>ショッピングカート</translation></message>
<message><source>shortcake</source><translation>ショートケーキ</translation></message>
<message><source>shorts</source><translation>ショーツ</translation></message>
<message><source>shovel</source><translation>シャベル</translation></message>
<message><source>shower</source><translation>シャワー</translation></message>
<message><source>shrimp</source><translation>エビ</translation></message>
<message><source>shuffle tracks button</source><translation>シャッフルボタン</translation></message>
<message><source>shushing face</source><translation>しーっ</translation></message>
<message><source>sick</source><translation>病気</translation></message>
<message><source>sign of the horns</source><translation>角の指サイン</translation></message>
<message><source>silhouette</source><translation>シルエット</translation></message>
<message><source>singer</source><translation>歌手</translation></message>
<message><source>siren</source><translation>サイレン</translation></message>
<message><source>six o’clock</source><translation>6時</translation></message>
<message><source>six-thirty</source><translation>6時半</translation></message>
<message><source>skateboard</source><translation>スケートボード</translation></message>
<message><source>skewer</source><translation>串</translation></message>
<message><source>skier</source><translation>スキーヤー</translation></message>
<message><source>skis</source><translation>スキー</translation></message>
<message><source>skull</source><translation>ドクロ</translation></message>
<message><source>skull and crossbones</source><translation>ドクロと骨</translation></message>
<message><source>skunk</source><translation>スカンク</translation></message>
<message><source>sled</source><translation>そり競技</translation></message>
<message><source>sleep</source><translation>寝る</translation></message>
<message><source>sleeping face</source><translation>寝る</translation></message>
<message><source>sleepy</source><translation>眠い</translation></message>
<message><source>sleepy face</source><translation>眠い</translation></message>
<message><source>slightly frowning face</source><translation>少し困った顔</translation></message>
<message><source>slightly smiling face</source><translation>微笑む</translation></message>
<message><source>slot machine</source><translation>スロットマシン</translation></message>
<message><source>sloth</source><translation>ナマケモノ</translation></message>
<message><source>small airplane</source><translation>小型飛行機</translation></message>
<message><source>small blue diamond</source><translation>小さい青のひし形</translation></message>
<message><source>small orange diamond</source><translation>小さいオレンジのひし形</translation></message>
<message><source>smell</source><translation>鼻</translation></message>
<message><source>smile</source><translation>笑顔</translation></message>
<message><source>smiling</source><translation>スマイル</translation></message>
<message><source>smiling cat with heart-eyes</source><translation>目がハートの猫</translation></message>
<message><source>smiling face</source><translation>スマイリー</translation></message>
<message><source>smiling face with halo</source><translation>天使の輪がついた笑顔</translation></message>
<message><source>smiling face with heart-eyes</source><translation>目がハートの笑顔</translation></message>
<message><source>smiling face with hearts</source><translation>ハートの笑顔</translation></message>
<message><source>smiling face with horns</source><translation>笑った悪魔</translation></message>
<message><source>smiling face with open hands</source><translation>ハグ</translation></message>
<message><source>smiling face with smiling eyes</source><translation>にこにこ</translation></message>
<message><source>smiling face with sunglasses</source><translation>サングラスで笑顔</translation></message>
<message><source>smiling face with tear</source><translation>嬉し涙の顔</translation></message>
<message><source>smirking face</source><translation>薄笑いをする顔</translation></message>
<message><source>snail</source><translation>かたつむり</translation></message>
<message><source>snake</source><translation>ヘビ</translation></message>
<message><source>sneeze</source><translation>くしゃみ</translation></message>
<message><source>sneezing face</source><translation>くしゃみする顔</translation></message>
<message><source>snow</source><translation>雪</translation></message>
<message><source>snow-capped mountain</source><translation>雪山</translation></message>
<message><source>snowboarder</source><translation>スノーボーダー</translation></message>
<message><source>snowflake</source><translation>雪の結晶</translation></message>
<message><source>snowman</source><translation>雪だるまと雪</translation></message>
<message><source>snowman without snow</source><translation>雪だるま</translation></message>
<message><source>soap</source><translation>石けん</translation></message>
<message><source>soccer ball</source><translation>サッカー</translation></message>
<message><source>socks</source><translation>ソックス</translation></message>
<message><source>soft ice cream</source><translation>ソフトクリーム</translation></message>
<message><source>softball</source><translation>ソフトボール</translation></message>
<message><source>soup</source><translation>スープ</translation></message>
<message><source>sour</source><translation>酸っぱい</translation></message>
<message><source>spa</source><translation>スパ</translation></message>
<message><source>space</source><translation>宇宙</translation></message>
<message><source>spade suit</source><translation>スペード</translation></message>
<message><source>spaghetti</source><translation>スパゲッティ</translation></message>
<message><source>sparkle</source><translation>スパークル</translation></message>
<message><source>sparkler</source><translation>線香花火</translation></message>
<message><source>sparkles</source><translation>きらきら</translation></message>
<message><source>sparkling heart</source><translation>きらきらハート</translation></message>
<message><source>speak-no-evil monkey</source><translation>言わざる</translation></message>
<message><source>speaker</source><translation>スピーカー</translation></message>
<message><source>speaker high volume</source><translation>スピーカー音量大</translation></message>
<message><source>speaker low volume</source><translation>スピーカー</translation></message>
<message><source>speaker medium volume</source><translation>スピーカー音量小</translation></message>
<message><source>speaking head</source><translation>話す人のシルエット</translation></message>
<message><source>special</source><translation>好き</translation></message>
<message><source>speech balloon</source><translation>会話の吹き出し</translation></message>
<message><source>speedboat</source><translation>スピードボート</translation></message>
<message><source>spider</source><translation>クモ</translation></message>
<message><source>spider web</source><translation>クモの巣</translation></message>
<message><source>spiral calendar</source><translation>月めくりカレンダー</translation></message>
<message><source>spiral notepad</source><translation>メモ帳</translation></message>
<message><source>spiral shell</source><translation>巻き貝</translation></message>
<message><source>splatter</source><translation>飛び散ったペンキ</translation></message>
<message><source>sponge</source><translation>スポンジ</translation></message>
<message><source>spoon</source><translation>スプーン</translation></message>
<message><source>sport utility vehicle</source><translation>アールブイ車</translation></message>
<message><source>sports medal</source><translation>メダル</translation></message>
<message><source>spouting whale</source><translation>潮吹きクジラ</translation></message>
<message><source>square</source><translation>正方形</translation></message>
<message><source>squid</source><translation>イカ</translation></message>
<message><source>squinting face with tongue</source><translation>目を閉じてべー</translation></message>
<message><source>stadium</source><translation>競技場</translation></message>
<message><source>star</source><translation>スター</translation></message>
<message><source>star and crescent</source><translation>星と三日月</translation></message>
<message><source>star of David</source><translation>ダビデの星</translation></message>
<message><source>star-struck</source><translation>目が星の笑顔</translation></message>
<message><source>station</source><translation>駅</translation></message>
<message><source>steaming bowl</source><translation>ラーメン</translation></message>
<message><source>stethoscope</source><translation>聴診器</translation></message>
<message><source>stick</source><translation>スティック</translation></message>
<message><source>stop</source><translation>ストップ</translation></message>
<message><source>stop button</source><translation>停止ボタン</translation></message>
<message><source>stop sign</source><translation>止まれの標識</translation></message>
<message><source>stopwatch</source><translation>ストップウォッチ</translation></message>
<message><source>straight ruler</source><translation>定規</translation></message>
<message><source>strawberry</source><translation>いちご</translation></message>
<message><source>student</source><translation>学生</translation></message>
<message><source>studio microphone</source><translation>スタジオマイク</translation></message>
<message><source>stuffed flatbread</source><translation>ケバブサンド</translation></message>
<message><source>sun</source><translation>太陽</translation></message>
<message><source>sun behind cloud</source><translation>曇り時々晴れ</translation></message>
<message><source>sun behind large cloud</source><translation>曇り一時晴れ</translation></message>
<message><source>sun behind rain cloud</source><translation>雨時々晴れ</translation></message>
<message><source>sun behind small cloud</source><translation>晴れ時々曇り</translation></message>
<message><source>sun with face</source><translation>顔のある太陽</translation></message>
<message><source>sunflower</source><translation>ヒマワリ</translation></message>
<message><source>sunglasses</source><translation>サングラス</translation></message>
<message><source>sunrise</source><translation>日の出</translation></message>
<message><source>sunrise over mountains</source><translation>山から日の出</translation></message>
<message><source>sunset</source><translation>夕日</translation></message>
<message><source>superhero</source><translation>スーパーヒーロー</translation></message>
<message><source>superpower</source><translation>超人</translation></message>
<message><source>supervillain</source><translation>悪役</translation></message>
<message><source>sushi</source><translation>すし</translation></message>
<message><source>suspension railway</source><translation>懸垂式モノレール</translation></message>
<message><source>swan</source><translation>白鳥</translation></message>
<message><source>sweat</source><translation>汗</translation></message>
<message><source>sweat droplets</source><translation>あせあせ</translation></message>
<message><source>sweet</source><translation>デザート</translation></message>
<message><source>swimming</source><translation>水泳</translation></message>
<message><source>swimsuit</source><translation>スイムウェア</translation></message>
<message><source>synagogue</source><translation>シナゴーグ</translation></message>
<message><source>syringe</source><translation>注射器</translation></message>
<message><source>t-shirt</source><translation>Tシャツ</translation></message>
<message><source>taco</source><translation>タコス</translation></message>
<message><source>takeout box</source><translation>テイクアウト弁当</translation></message>
<message><source>tamale</source><translation>タマル</translation></message>
<message><source>tanabata tree</source><translation>七夕</translation></message>
<message><source>tangerine</source><translation>みかん</translation></message>
<message><source>taxi</source><translation>タクシー</translation></message>
<message><source>tea</source><translation>お茶</translation></message>
<message><source>teacher</source><translation>教師</translation></message>
<message><source>teacup without handle</source><translation>湯飲み</translation></message>
<message><source>teapot</source><translation>ティーポット</translation></message>
<message><source>tear</source><translation>涙</translation></message>
<message><source>tear-off calendar</source><translation>日めくりカレンダー</translation></message>
<message><source>technologist</source><translation>技術者</translation></message>
<message><source>teddy bear</source><translation>テディベア</translation></message>
<message><source>telephone</source><translation>固定電話</translation></message>
<message><source>telephone receiver</source><translation>受話器</translation></message>
<message><source>telescope</source><translation>望遠鏡</translation></message>
<message><source>television</source><translation>テレビ</translation></message>
<message><source>ten o’clock</source><translation>10時</translation></message>
<message><source>ten-thirty</source><translation>10時半</translation></message>
<message><source>tennis</source><translation>テニス</translation></message>
<message><source>tent</source><translation>テント</translation></message>
<message><source>test tube</source><translation>試験管</translation></message>
<message><source>thanks</source><translation>ありがとう</translation></message>
<message><source>thermometer</source><translation>温度計</translation></message>
<message><source>thinking face</source><translation>考える顔</translation></message>
<message><source>thong sandal</source><translation>ビーチサンダル</translation></message>
<message><source>thought balloon</source><translation>雲形の吹き出し</translation></message>
<message><source>thread</source><translation>糸</translation></message>
<message><source>three o’clock</source><translation>3時</translation></message>
<message><source>three-thirty</source><translation>3時半</translation></message>
<message><source>thumbs down</source><translation>サムズダウン</translation></message>
<message><source>thumbs up</source><translation>サムズアップ</translation></message>
<message><source>ticket</source><translation>チケット</translation></message>
<message><source>tiger</source><translation>トラ</translation></message>
<message><source>tiger face</source><translation>トラの顔</translation></message>
<message><source>timer</source><translation>タイマー</translation></message>
<message><source>timer clock</source><translation>タイマー</translation></message>
<message><source>tired face</source><translation>疲れた</translation></message>
<message><source>toilet</source><translation>便器</translation></message>
<message><source>tomato</source><translation>トマト</translation></message>
<message><source>tongue</source><translation>舌</translation></message>
<message><source>toolbox</source><translation>工具箱</translation></message>
<message><source>tooth</source><translation>歯</translation></message>
<message><source>toothbrush</source><translation>歯ブラシ</translation></message>
<message><source>top hat</source><translation>シルクハット</translation></message>
<message><source>tornado</source><translation>竜巻</translation></message>
<message><source>trackball</source><translation>トラックボール</translation></message>
<message><source>tractor</source><translation>トラクター</translation></message>
<message><source>trade mark</source><translation>商標マーク</translation></message>
<message><source>train</source><translation>電車正面</translation></message>
<message><source>tram</source><translation>路面電車正面</translation></message>
<message><source>tram car</source><translation>路面電車</translation></message>
<message><source>transgender</source><translation>LGBT</translation></message>
<message><source>transgender flag</source><translation>トランスジェンダーフラッグ</translation></message>
<message><source>transgender symbol</source><translation>トランスジェンダーのマーク</translation></message>
<message><source>tray</source><translation>トレイ</translation></message>
<message><source>trend</source><translation>チャート</translation></message>
<message><source>triangular flag</source><translation>三角の旗</translation></message>
<message><source>triangular ruler</source><translation>三角定規</translation></message>
<message><source>trident emblem</source><translation>トライデント</translation></message>
<message><source>troll</source><translation>トロール</translation></message>
<message><source>trolleybus</source><translation>トロリーバス</translation></message>
<message><source>trophy</source><translation>トロフィー</translation></message>
<message><source>tropical</source><translation>トロピカル</translation></message>
<message><source>tropical drink</source><translation>トロピカルドリンク</translation></message>
<message><source>tropical fish</source><translation>熱帯魚</translation></message>
<message><source>truck</source><translation>トラック</translation></message>
<message><source>trumpet</source><translation>トランペット</translation></message>
<message><source>tulip</source><translation>チューリップ</translation></message>
<message><source>tumbler glass</source><translation>タンブラーグラス</translation></message>
<message><source>turkey</source><translation>七面鳥</translation></message>
<message><source>turtle</source><translation>カメ</translation></message>
<message><source>twelve o’clock</source><translation>12時</translation></message>
<message><source>twelve-thirty</source><translation>12時半</translation></message>
<message><source>two hearts</source><translation>2つのハート</translation></message>
<message><source>two o’clock</source><translation>2時</translation></message>
<message><source>two-hump camel</source><translation>フタコブラクダ</translation></message>
<message><source>two-thirty</source><translation>2時半</translation></message>
<message><source>type</source><translation>肌の色</translation></message>
<message><source>ufo</source><translation>宇宙人</translation></message>
<message><source>umbrella</source><translation>傘</translation></message>
<message><source>umbrella on ground</source><translation>パラソル</translation></message>
<message><source>umbrella with rain drops</source><translation>傘と雨</translation></message>
<message><source>unamused face</source><translation>しらけた</translation></message>
<message><source>underwear</source><translation>下着</translation></message>
<message><source>unicorn</source><translation>ユニコーンの顔</translation></message>
<message><source>unlocked</source><translation>開いた錠</translation></message>
<message><source>up</source><translation>上</translation></message>
<message><source>up arrow</source><translation>上矢印</translation></message>
<message><source>up-down arrow</source><translation>上下矢印</translation></message>
<message><source>up-left arrow</source><translation>左上矢印</translation></message>
<message><source>up-right arrow</source><translation>右上矢印</translation></message>
<message><source>upside-down face</source><translation>さかさまの顔</translation></message>
<message><source>upwards button</source><translation>上ボタン</translation></message>
<message><source>vampire</source><translation>吸血鬼</translation></message>
<message><source>vegetable</source><translation>野菜</translation></message>
<message><source>vehicle</source><translation>車</translation></message>
<message><source>vertical traffic light</source><translation>信号縦</translation></message>
<message><source>vibration mode</source><translation>マナーモード</translation></message>
<message><source>victory hand</source><translation>Vサイン</translation></message>
<message><source>video</source><translation>ビデオ</translation></message>
<message><source>video camera</source><translation>ビデオカメラ</translation></message>
<message><source>video game</source><translation>テレビゲーム</translation></message>
<message><source>videocassette</source><translation>ビデオテープ</translation></message>
<message><source>violin</source><translation>バイオリン</translation></message>
<message><source>virus</source><translation>ウイルス</translation></message>
<message><source>volcano</source><translation>火山</translation></message>
<message><source>volleyball</source><translation>バレーボール</translation></message>
<message><source>vomit</source><translation>気持ち悪い</translation></message>
<message><source>vulcan salute</source><translation>バルカンの挨拶</translation></message>
<message><source>waffle</source><translation>ワッフル</translation></message>
<message><source>waning crescent moon</source><translation>有明月</translation></message>
<message><source>waning gibbous moon</source><translation>寝待月</translation></message>
<message><source>warning</source><translation>警告</translation></message>
<message><source>wastebasket</source><translation>ごみ箱</translation></message>
<message><source>watch</source><translation>腕時計</translation></message>
<message><source>water buffalo</source><translation>水牛</translation></message>
<message><source>water closet</source><translation>WC</translation></message>
<message><source>water pistol</source><translation>水鉄砲</translation></message>
<message><source>water wave</source><translation>波</translation></message>
<message><source>watermelon</source><translation>スイカ</translation></message>
<message><source>waving hand</source><translation>手を振る</translation></message>
<message><source>wavy dash</source><translation>波線</translation></message>
<message><source>waxing crescent moon</source><translation>初月</translation></message>
<message><source>waxing gibbous moon</source><translation>十三夜月</translation></message>
<message><source>weapon</source><translation>武器</translation></message>
<message><source>weary cat</source><translation>絶望する猫</translation></message>
<message><source>weary face</source><translation>あきらめ</translation></message>
<message><source>weather</source><translation>天気</translation></message>
<message><source>wedding</source><translation>結婚式</translation></message>
<message><source>whale</source><translation>クジラ</translation></message>
<message><source>wheel</source><translation>ホイール</translation></message>
<message><source>wheel of dharma</source><translation>法輪</translation></message>
<message><source>wheelchair</source><translation>車いす</translation></message>
<message><source>wheelchair symbol</source><translation>車椅子</translation></message>
<message><source>white cane</source><translation>白杖</translation></message>
<message><source>white circle</source><translation>白い丸</translation></message>
<message><source>white exclamation mark</source><translation>白い感嘆符</translation></message>
<message><source>white flag</source><translation>白旗</translation></message>
<message><source>white flower</source><translation>大変よくできました</translation></message>
<message><source>white heart</source><translation>白いハート</translation></message>
<message><source>white large square</source><translation>白四角特大</translation></message>
<message><source>white medium square</source><translation>白四角大</translation></message>
<message><source>white medium-small square</source><translation>白四角中</translation></message>
<message><source>white question mark</source><translation>白い疑問符</translation></message>
<message><source>white small square</source><translation>白四角小</translation></message>
<message><source>white square button</source><translation>白枠四角</translation></message>
<message><source>wilted flower</source><translation>しおれた花</translation></message>
<message><source>wind</source><translation>風</translation></message>
<message><source>wind chime</source><translation>風鈴</translation></message>
<message><source>wind face</source><translation>顔のある風</translation></message>
<message><source>window</source><translation>窓</translation></message>
<message><source>wine glass</source><translation>ワイングラス</translation></message>
<message><source>wing</source><translation>翼</translation></message>
<message><source>winking face</source><translation>ウインク</translation></message>
<message><source>winking face with tongue</source><translation>あっかんべー</translation></message>
<message><source>wireless</source><translation>Wi-Fi</translation></message>
<message><source>wizard</source><translation>魔術師</translation></message>
<message><source>wolf</source><translation>オオカミの顔</translation></message>
<message><source>woman</source><translation>女性</translation></message>
<message><source>woman and man holding hands</source><translation>手をつなぐ男女</translation></message>
<message><source>woman artist</source><translation>女性の芸術家</translation></message>
<message><source>woman astronaut</source><translation>女性宇宙飛行士</translation></message>
<message><source>woman biking</source><translation>自転車に乗る女</translation></message>
<message><source>woman bouncing ball</source><translation>バスケットボールをする女</translation></message>
<message><source>woman bowing</source><translation>おじぎする女</translation></message>
<message><source>woman cartwheeling</source><translation>側転する女</translation></message>
<message><source>woman climbing</source><translation>山を登る女</translation></message>
<message><source>woman construction worker</source><translation>女性の建設作業員</translation></message>
<message><source>woman cook</source><translation>女性のコック</translation></message>
<message><source>woman dancing</source><translation>踊る女</translation></message>
<message><source>woman detective</source><translation>女性の探偵</translation></message>
<message><source>woman elf</source><translation>女のエルフ</translation></message>
<message><source>woman facepalming</source><translation>ひたいに手をあてる女</translation></message>
<message><source>woman factory worker</source><translation>女性の溶接工</translation></message>
<message><source>woman fairy</source><translation>女の妖精</translation></message>
<message><source>woman farmer</source><translation>農家の女性</translation></message>
<message><source>woman feeding baby</source><translation>授乳する女性</translation></message>
<message><source>woman firefighter</source><translation>女性消防士</translation></message>
<message><source>woman frowning</source><translation>しかめ面の女</translation></message>
<message><source>woman genie</source><translation>女の精霊</translation></message>
<message><source>woman gesturing NO</source><translation>ダメのポーズをする女</translation></message>
<message><source>woman gesturing OK</source><translation>OKのポーズをする女</translation></message>
<message><source>woman getting haircut</source><translation>散髪される女</translation></message>
<message><source>woman getting massage</source><translation>フェイスマッサージ中の女</translation></message>
<message><source>woman golfing</source><translation>ゴルフをする女</translation></message>
<message><source>woman guard</source><translation>女性の衛兵</translation></message>
<message><source>woman health worker</source><translation>女性の医者</translation></message>
<message><source>woman in lotus position</source><translation>ヨガのポーズをする女</translation></message>
<message><source>woman in manual wheelchair</source><translation>手動式車椅子の女性</translation></message>
<message><source>woman in manual wheelchair: facing right</source><translation>手動式車椅子の女性: 右向き</translation></message>
<message><source>woman in motorized wheelchair</source><translation>電動車椅子の女性</translation></message>
<message><source>woman in motorized wheelchair: facing right</source><translation>電動車椅子の女性: 右向き</translation></message>
<message><source>woman in steamy room</source><translation>サウナに入る女</translation></message>
<message><source>woman in tuxedo</source><translation>タキシードの女性</translation></message>
<message><source>woman judge</source><translation>女性の裁判官</translation></message>
<message><source>woman juggling</source><translation>ジャグリングをする女</translation></message>
<message><source>woman kneeling</source><translation>正座する女性</translation></message>
<message><source>woman kneeling: facing right</source><translation>正座する女性: 右向き</translation></message>
<message><source>woman lifting weights</source><translation>重量挙げをする女</translation></message>
<message><source>woman mage</source><translation>女の魔法使い</translation></message>
<message><source>woman mechanic</source><translation>女性の整備士</translation></message>
<message><source>woman mountain biking</source><translation>マウンテンバイクに乗る女</translation></message>
<message><source>woman office worker</source><translation>女性会社員</translation></message>
<message><source>woman pilot</source><translation>女性パイロット</translation></message>
<message><source>woman playing handball</source><translation>ハンドボールをする女</translation></message>
<message><source>woman playing water polo</source><translation>水球をする女</translation></message>
<message><source>woman police officer</source><translation>女性警察官</translation></message>
<message><source>woman pouting</source><translation>不機嫌な女</translation></message>
<message><source>woman raising hand</source><translation>手を挙げる女</translation></message>
<message><source>woman rowing boat</source><translation>ボートをこぐ女</translation></message>
<message><source>woman running</source><translation>走る女</translation></message>
<message><source>woman running: facing right</source><translation>走る女: 右向き</translation></message>
<message><source>woman scientist</source><translation>女性科学者</translation></message>
<message><source>woman shrugging</source><translation>お手上げする女</translation></message>
<message><source>woman singer</source><translation>女性歌手</translation></message>
<message><source>woman standing</source><translation>立つ女</translation></message>
<message><source>woman student</source><translation>女子学生</translation></message>
<message><source>woman superhero</source><translation>女性のスーパーヒーロー</translation></message>
<message><source>woman supervillain</source><translation>女性の悪役</translation></message>
<message><source>woman surfing</source><translation>サーフィンする女</translation></message>
<message><source>woman swimming</source><translation>泳ぐ女</translation></message>
<message><source>woman teacher</source><translation>女性の教師</translation></message>
<message><source>woman technologist</source><translation>女性技術者</translation></message>
<message><source>woman tipping hand</source><translation>案内する女</translation></message>
<message><source>woman vampire</source><translation>女の吸血鬼</translation></message>
<message><source>woman walking</source><translation>歩く女</translation></message>
<message><source>woman walking: facing right</source><translation>歩く女: 右向き</translation></message>
<message><source>woman wearing turban</source><translation>ターバンの女性</translation></message>
<message><source>woman with headscarf</source><translation>スカーフの女性</translation></message>
<message><source>woman with veil</source><translation>ベールの女性</translation></message>
<message><source>woman with white cane</source><translation>杖をついた女性</translation></message>
<message><source>woman with white cane: facing right</source><translation>杖をついた女性: 右向き</translation></message>
<message><source>woman zombie</source><translation>女のゾンビ</translation></message>
<message><source>woman: bald</source><translation>女性: はげ頭</translation></message>
<message><source>woman: beard</source><translation>あごひげの女性</translation></message>
<message><source>woman: blond hair</source><translation>金髪の女性</translation></message>
<message><source>woman: curly hair</source><translation>女性: 巻き毛</translation></message>
<message><source>woman: red hair</source><translation>女性: 赤毛</translation></message>
<message><source>woman: white hair</source><translation>女性: 白髪</translation></message>
<message><source>woman’s boot</source><translation>ブーツ</translation></message>
<message><source>woman’s clothes</source><translation>婦人服</translation></message>
<message><source>woman’s hat</source><translation>婦人帽子</translation></message>
<message><source>woman’s sandal</source><translation>サンダル</translation></message>
<message><source>women holding hands</source><translation>手をつなぐ女性</translation></message>
<message><source>women with bunny ears</source><translation>バニーガール</translation></message>
<message><source>women wrestling</source><translation>レスリングする女</translation></message>
<message><source>women’s room</source><translation>女子トイレ</translation></message>
<message><source>wood</source><translation>丸太</translation></message>
<message><source>woozy face</source><translation>ふらふらの顔</translation></message>
<message><source>world map</source><translation>世界地図</translation></message>
<message><source>worm</source><translation>ミミズ</translation></message>
<message><source>worried face</source><translation>悩む顔</translation></message>
<message><source>wrapped gift</source><translation>プレゼント</translation></message>
<message><source>wrench</source><translation>レンチ</translation></message>
<message><source>writing hand</source><translation>書いている手</translation></message>
<message><source>x-ray</source><translation>X線</translation></message>
<message><source>yarn</source><translation>毛糸</translation></message>
<message><source>yawning face</source><translation>あくびした顔</translation></message>
<message><source>yellow</source><translation>黄色</translation></message>
<message><source>yellow circle</source><translation>黄色い丸</translation></message>
<message><source>yellow heart</source><translation>黄色のハート</translation></message>
<message><source>yellow square</source><translation>黄色い四角</translation></message>
<message><source>yen banknote</source><translation>円札</translation></message>
<message><source>yin yang</source><translation>陰陽</translation></message>
<message><source>yo-yo</source><translation>ヨーヨー</translation></message>
<message><source>zany face</source><translation>ふざけた顔</translation></message>
<message><source>zebra</source><translation>シマウマ</translation></message>
<message><source>zipper-mouth face</source><translation>口チャック</translation></message>
<message><source>zodiac</source><translation>星座</translation></message>
<message><source>zombie</source><translation>ゾンビ</translation></message>
</context>
</TS>
