<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context><name>EmojiLocalisation</name>
<message><source>!</source><translation>הדגשה</translation></message>
<message><source>10:00</source><translation>10:00</translation></message>
<message><source>10:30</source><translation>10:30</translation></message>
<message><source>11:00</source><translation>11:00</translation></message>
<message><source>11:30</source><translation>11:30</translation></message>
<message><source>12:30</source><translation>12:30</translation></message>
<message><source>1st place medal</source><translation>מדליית זהב</translation></message>
<message><source>2:00</source><translation>02:00</translation></message>
<message><source>2:30</source><translation>02:30</translation></message>
<message><source>2nd place medal</source><translation>מדליית כסף</translation></message>
<message><source>3:00</source><translation>03:00</translation></message>
<message><source>3:30</source><translation>03:30</translation></message>
<message><source>3rd place medal</source><translation>מדליית ארד</translation></message>
<message><source>4:00</source><translation>04:00</translation></message>
<message><source>4:30</source><translation>04:30</translation></message>
<message><source>5:00</source><translation>05:00</translation></message>
<message><source>5:30</source><translation>05:30</translation></message>
<message><source>6:00</source><translation>06:00</translation></message>
<message><source>6:30</source><translation>06:30</translation></message>
<message><source>7:00</source><translation>07:00</translation></message>
<message><source>7:30</source><translation>07:30</translation></message>
<message><source>8:00</source><translation>08:00</translation></message>
<message><source>8:30</source><translation>08:30</translation></message>
<message><source>9:00</source><translation>09:00</translation></message>
<message><source>9:30</source><translation>09:30</translation></message>
<message><source>?</source><translation>סימן שאלה</translation></message>
<message><source>A button (blood type)</source><translation>לחצן A (סוג דם)</translation></message>
<message><source>AB button (blood type)</source><translation>לחצן AB (סוג דם)</translation></message>
<message><source>ATM sign</source><translation>שלט כספומט</translation></message>
<message><source>Aquarius</source><translation>מזל דלי</translation></message>
<message><source>Aries</source><translation>מזל טלה</translation></message>
<message><source>B button (blood type)</source><translation>לחצן B (סוג דם)</translation></message>
<message><source>BACK arrow</source><translation>חץ אחורה</translation></message>
<message><source>CL button</source><translation>לחצן CL</translation></message>
<message><source>COOL button</source><translation>לחצן cool</translation></message>
<message><source>Cancer</source><translation>מזל סרטן</translation></message>
<message><source>Capricorn</source><translation>מזל גדי</translation></message>
<message><source>Christmas tree</source><translation>עץ אשוח מקושט</translation></message>
<message><source>END arrow</source><translation>חץ לסוף</translation></message>
<message><source>FREE button</source><translation>לחצן free</translation></message>
<message><source>Gemini</source><translation>מזל תאומים</translation></message>
<message><source>ID button</source><translation>לחצן ID</translation></message>
<message><source>Japanese castle</source><translation>טירה יפנית</translation></message>
<message><source>Japanese dolls</source><translation>בובות יפניות</translation></message>
<message><source>Japanese post office</source><translation>בית דואר ביפן</translation></message>
<message><source>Japanese symbol for beginner</source><translation>סמל יפני לרמת מתחילים</translation></message>
<message><source>Japanese “acceptable” button</source><translation>לחצן ״מותר״ ביפנית</translation></message>
<message><source>Japanese “application” button</source><translation>לחצן ״הגשת בקשה״ ביפנית</translation></message>
<message><source>Japanese “bargain” button</source><translation>לחצן ״דיל״ ביפנית</translation></message>
<message><source>Japanese “congratulations” button</source><translation>לחצן ״בשעה טובה״ ביפנית</translation></message>
<message><source>Japanese “discount” button</source><translation>לחצן ״הנחה״ ביפנית</translation></message>
<message><source>Japanese “free of charge” button</source><translation>לחצן ״חינם״ ביפנית</translation></message>
<message><source>Japanese “here” button</source><translation>לחצן ״כאן״ ביפנית</translation></message>
<message><source>Japanese “monthly amount” button</source><translation>לחצן ״כמות חודשית״ ביפנית</translation></message>
<message><source>Japanese “no vacancy” button</source><translation>לחצן ״אין מקום״ ביפנית</translation></message>
<message><source>Japanese “not free of charge” button</source><translation>לחצן ״לא בחינם״ ביפנית</translation></message>
<message><source>Japanese “open for business” button</source><translation>לחצן ״פתוח״ ביפנית</translation></message>
<message><source>Japanese “passing grade” button</source><translation>לחצן ״ציון עובר״ ביפנית</translation></message>
<message><source>Japanese “prohibited” button</source><translation>לחצן ״אסור״ ביפנית</translation></message>
<message><source>Japanese “reserved” button</source><translation>לחצן ״מקום שמור״ ביפנית</translation></message>
<message><source>Japanese “secret” button</source><translation>לחצן ״סוד״ ביפנית</translation></message>
<message><source>Japanese “service charge” button</source><translation>לחצן ״דמי שירות״ ביפנית</translation></message>
<message><source>Japanese “vacancy” button</source><translation>לחצן ״יש מקום״ ביפנית</translation></message>
<message><source>Leo</source><translation>מזל אריה</translation></message>
<message><source>Libra</source><translation>מזל מאזניים</translation></message>
<message><source>Mrs. Claus</source><translation>גב׳ סנטה</translation></message>
<message><source>Mx Claus</source><translation>קלאוס</translation></message>
<message><source>NEW button</source><translation>לחצן NEW</translation></message>
<message><source>NG button</source><translation>לחצן NG</translation></message>
<message><source>O button (blood type)</source><translation>לחצן O (סוג דם)</translation></message>
<message><source>OK button</source><translation>לחצן OK</translation></message>
<message><source>OK hand</source><translation>יד מסמנת שהכל בסדר</translation></message>
<message><source>ON! arrow</source><translation>חץ פועל!</translation></message>
<message><source>Ophiuchus</source><translation>נושא הנחש</translation></message>
<message><source>P button</source><translation>לחצן P</translation></message>
<message><source>Pisces</source><translation>מזל דגים</translation></message>
<message><source>SOON arrow</source><translation>חץ בקרוב</translation></message>
<message><source>SOS button</source><translation>לחצן SOS</translation></message>
<message><source>Sagittarius</source><translation>מזל קשת</translation></message>
<message><source>Santa Claus</source><translation>סנטה קלאוס</translation></message>
<message><source>Scorpio</source><translation>מזל עקרב</translation></message>
<message><source>Statue of Liberty</source><translation>פסל החירות</translation></message>
<message><source>T-Rex</source><translation>טי-רקס</translation></message>
<message><source>TOP arrow</source><translation>חץ מעלה</translation></message>
<message><source>Taurus</source><translation>מזל שור</translation></message>
<message><source>Tokyo tower</source><translation>מגדל טוקיו</translation></message>
<message><source>UP! button</source><translation>לחצן up!</translation></message>
<message><source>VS button</source><translation>לחצן VS</translation></message>
<message><source>Virgo</source><translation>מזל בתולה</translation></message>
<message><source>ZZZ</source><translation>סימן נחירה</translation></message>
<message><source>abacus</source><translation>חשבונייה</translation></message>
<message><source>abcd</source><translation>אותיות</translation></message>
<message><source>accessibility</source><translation>נגישות</translation></message>
<message><source>accordion</source><translation>אקורדיון</translation></message>
<message><source>adhesive bandage</source><translation>פלסטר</translation></message>
<message><source>admission tickets</source><translation>כרטיס כניסה</translation></message>
<message><source>adult</source><translation>מבוגר</translation></message>
<message><source>aerial tramway</source><translation>קרון רכבל קטן</translation></message>
<message><source>airplane</source><translation>מטוס</translation></message>
<message><source>airplane arrival</source><translation>מטוס נוחת</translation></message>
<message><source>airplane departure</source><translation>מטוס ממריא</translation></message>
<message><source>alarm clock</source><translation>שעון מעורר</translation></message>
<message><source>alembic</source><translation>מבחנת כימיה</translation></message>
<message><source>alien</source><translation>חייזר</translation></message>
<message><source>alien monster</source><translation>מפלצת חייזרית</translation></message>
<message><source>ambulance</source><translation>אמבולנס</translation></message>
<message><source>american football</source><translation>פוטבול אמריקאי</translation></message>
<message><source>amphora</source><translation>כד עתיק</translation></message>
<message><source>amulet</source><translation>קמע</translation></message>
<message><source>anatomical heart</source><translation>לב</translation></message>
<message><source>anchor</source><translation>עוגן</translation></message>
<message><source>angel</source><translation>מלאך</translation></message>
<message><source>anger</source><translation>זועם</translation></message>
<message><source>anger symbol</source><translation>סמל כעס</translation></message>
<message><source>angry face</source><translation>פרצוף כועס</translation></message>
<message><source>angry face with horns</source><translation>פרצוף כועס עם קרניים</translation></message>
<message><source>anguished face</source><translation>פרצוף מיוסר</translation></message>
<message><source>animal</source><translation>בעל חיים</translation></message>
<message><source>ant</source><translation>נמלה</translation></message>
<message><source>antenna</source><translation>אנטנה</translation></message>
<message><source>antenna bars</source><translation>סמל עצמת קליטה</translation></message>
<message><source>anxious face with sweat</source><translation>פרצוף מפחד עם זיעה קרה</translation></message>
<message><source>arrow</source><translation>חץ</translation></message>
<message><source>articulated lorry</source><translation>משאית מפרקית</translation></message>
<message><source>artist</source><translation>אומן/ית</translation></message>
<message><source>artist palette</source><translation>פלטת צבעים</translation></message>
<message><source>astonished face</source><translation>פרצוף נדהם</translation></message>
<message><source>astronaut</source><translation>אסטרונאוט/ית</translation></message>
<message><source>atom symbol</source><translation>סמל האטום</translation></message>
<message><source>auto rickshaw</source><translation>ריקשה ממונעת</translation></message>
<message><source>automobile</source><translation>מכונית</translation></message>
<message><source>avocado</source><translation>אבוקדו</translation></message>
<message><source>award</source><translation>מדליה</translation></message>
<message><source>axe</source><translation>גרזן</translation></message>
<message><source>babe</source><translation>רומנטי</translation></message>
<message><source>baby</source><translation>תינוק</translation></message>
<message><source>baby angel</source><translation>מלאך תינוק</translation></message>
<message><source>baby bottle</source><translation>בקבוק של תינוק</translation></message>
<message><source>baby chick</source><translation>אפרוח</translation></message>
<message><source>baby symbol</source><translation>סמל של תינוק</translation></message>
<message><source>backhand index pointing down</source><translation>גב יד מצביעה למטה</translation></message>
<message><source>backhand index pointing left</source><translation>גב יד מצביעה שמאלה</translation></message>
<message><source>backhand index pointing right</source><translation>גב יד מצביעה ימינה</translation></message>
<message><source>backhand index pointing up</source><translation>גב יד מצביעה למעלה</translation></message>
<message><source>backpack</source><translation>ילקוט</translation></message>
<message><source>bacon</source><translation>בייקון</translation></message>
<message><source>badger</source><translation>גירית</translation></message>
<message><source>badminton</source><translation>בדמינטון</translation></message>
<message><source>bagel</source><translation>בייגל</translation></message>
<message><source>baggage claim</source><translation>שלט איסוף כבודה</translation></message>
<message><source>baguette bread</source><translation>באגט</translation></message>
<message><source>balance scale</source><translation>מאזניים</translation></message>
<message><source>ball</source><translation>כדור</translation></message>
<message><source>ballet</source><translation>נעלי בלט</translation></message>
<message><source>ballet shoes</source><translation>נעלי בלט</translation></message>
<message><source>balloon</source><translation>בלון</translation></message>
<message><source>ballot</source><translation>קלפי</translation></message>
<message><source>ballot box with ballot</source><translation>קלפי עם פתק הצבעה</translation></message>
<message><source>banana</source><translation>בננה</translation></message>
<message><source>banjo</source><translation>בנג׳ו</translation></message>
<message><source>bank</source><translation>בנק</translation></message>
<message><source>bar</source><translation>אלכוהול</translation></message>
<message><source>bar chart</source><translation>תרשים עמודות</translation></message>
<message><source>barber pole</source><translation>עמוד מספרה</translation></message>
<message><source>baseball</source><translation>כדור בסיס</translation></message>
<message><source>basket</source><translation>סל</translation></message>
<message><source>basketball</source><translation>כדור סל</translation></message>
<message><source>bat</source><translation>עטלף</translation></message>
<message><source>bathroom</source><translation>נוחיות</translation></message>
<message><source>bathtub</source><translation>אמבטיה</translation></message>
<message><source>battery</source><translation>סוללה</translation></message>
<message><source>beach with umbrella</source><translation>חוף עם שמשיה</translation></message>
<message><source>beaming face with smiling eyes</source><translation>פרצוף זורח עם עיניים מחייכות</translation></message>
<message><source>beans</source><translation>שעועית</translation></message>
<message><source>bear</source><translation>דוב</translation></message>
<message><source>beating heart</source><translation>לב פועם</translation></message>
<message><source>beaver</source><translation>בונה</translation></message>
<message><source>bed</source><translation>מיטה</translation></message>
<message><source>bedtime</source><translation>לילה טוב</translation></message>
<message><source>beer</source><translation>בירה</translation></message>
<message><source>beer mug</source><translation>כוס בירה</translation></message>
<message><source>beetle</source><translation>חיפושית</translation></message>
<message><source>behind</source><translation>מעונן</translation></message>
<message><source>bell</source><translation>פעמון</translation></message>
<message><source>bell pepper</source><translation>פלפל אדום</translation></message>
<message><source>bell with slash</source><translation>פעמון מושתק</translation></message>
<message><source>bellhop bell</source><translation>פעמון קבלה</translation></message>
<message><source>bento box</source><translation>חמגשית עם אוכל</translation></message>
<message><source>beverage box</source><translation>קופסת מיץ</translation></message>
<message><source>bff</source><translation>ידיים</translation></message>
<message><source>bicycle</source><translation>אופניים</translation></message>
<message><source>bikini</source><translation>ביקיני</translation></message>
<message><source>billed cap</source><translation>כובע מצחייה</translation></message>
<message><source>biohazard</source><translation>סכנה ביולוגית</translation></message>
<message><source>bird</source><translation>ציפור</translation></message>
<message><source>birthday</source><translation>יום הולדת</translation></message>
<message><source>birthday cake</source><translation>עוגת יום הולדת</translation></message>
<message><source>bison</source><translation>ביזון</translation></message>
<message><source>biting lip</source><translation>לנשוך שפתיים</translation></message>
<message><source>black</source><translation>שחור</translation></message>
<message><source>black bird</source><translation>ציפור שחורה</translation></message>
<message><source>black cat</source><translation>חתול שחור</translation></message>
<message><source>black circle</source><translation>עיגול שחור</translation></message>
<message><source>black flag</source><translation>דגל שחור</translation></message>
<message><source>black heart</source><translation>לב שחור</translation></message>
<message><source>black large square</source><translation>ריבוע גדול שחור</translation></message>
<message><source>black medium square</source><translation>ריבוע שחור בינוני</translation></message>
<message><source>black medium-small square</source><translation>ריבוע בינוני-קטן שחור</translation></message>
<message><source>black nib</source><translation>עט ציפורן שחור</translation></message>
<message><source>black small square</source><translation>ריבוע שחור קטן</translation></message>
<message><source>black square button</source><translation>לחצן ריבוע שחור</translation></message>
<message><source>blood</source><translation>סוג דם</translation></message>
<message><source>blossom</source><translation>פריחה</translation></message>
<message><source>blowfish</source><translation>אבו נפחא</translation></message>
<message><source>blue</source><translation>כחול</translation></message>
<message><source>blue book</source><translation>ספר כחול</translation></message>
<message><source>blue circle</source><translation>עיגול כחול</translation></message>
<message><source>blue heart</source><translation>לב כחול</translation></message>
<message><source>blue square</source><translation>ריבוע כחול</translation></message>
<message><source>blueberries</source><translation>אוכמניות</translation></message>
<message><source>boar</source><translation>חזיר בר</translation></message>
<message><source>boat</source><translation>סירה</translation></message>
<message><source>bodybuilder</source><translation>כושר</translation></message>
<message><source>bomb</source><translation>פצצה</translation></message>
<message><source>bone</source><translation>עצם</translation></message>
<message><source>book</source><translation>ספר</translation></message>
<message><source>bookmark</source><translation>סימנייה</translation></message>
<message><source>bookmark tabs</source><translation>תוויות סימניה</translation></message>
<message><source>books</source><translation>ספרים</translation></message>
<message><source>boomerang</source><translation>בומרנג</translation></message>
<message><source>bottle with popping cork</source><translation>בקבוק שמפניה עם פקק עף</translation></message>
<message><source>bouquet</source><translation>זר פרחים</translation></message>
<message><source>bow and arrow</source><translation>חץ וקשת</translation></message>
<message><source>bowl with spoon</source><translation>קערה עם כף</translation></message>
<message><source>bowling</source><translation>כדור באולינג</translation></message>
<message><source>boxing glove</source><translation>כפפת אגרוף</translation></message>
<message><source>boy</source><translation>בן</translation></message>
<message><source>brain</source><translation>מוח</translation></message>
<message><source>bread</source><translation>לחם</translation></message>
<message><source>breast-feeding</source><translation>אישה מניקה</translation></message>
<message><source>brick</source><translation>לבנה</translation></message>
<message><source>bridge at night</source><translation>גשר בלילה</translation></message>
<message><source>briefcase</source><translation>תיק מסמכים</translation></message>
<message><source>briefs</source><translation>תחתונים</translation></message>
<message><source>bright button</source><translation>כפתור הגברת עוצמת תאורה</translation></message>
<message><source>brightness</source><translation>בהירות</translation></message>
<message><source>bro</source><translation>נער</translation></message>
<message><source>broccoli</source><translation>ברוקולי</translation></message>
<message><source>broken chain</source><translation>שרשרת שבורה</translation></message>
<message><source>broken heart</source><translation>לב שבור</translation></message>
<message><source>broom</source><translation>מטאטא</translation></message>
<message><source>brown</source><translation>חום</translation></message>
<message><source>brown circle</source><translation>עיגול חום</translation></message>
<message><source>brown heart</source><translation>לב חום</translation></message>
<message><source>brown mushroom</source><translation>פטרייה חומה</translation></message>
<message><source>brown square</source><translation>ריבוע חום</translation></message>
<message><source>bubble tea</source><translation>באבל טי</translation></message>
<message><source>bubbles</source><translation>בועות</translation></message>
<message><source>bucket</source><translation>דלי</translation></message>
<message><source>buffalo</source><translation>תאו</translation></message>
<message><source>bug</source><translation>זחל</translation></message>
<message><source>building construction</source><translation>עבודות בניין</translation></message>
<message><source>bullet train</source><translation>רכבת מהירה עם חרטום בצורת קליע</translation></message>
<message><source>bullseye</source><translation>פגיעה בול</translation></message>
<message><source>burrito</source><translation>בוריטו</translation></message>
<message><source>bus</source><translation>אוטובוס</translation></message>
<message><source>bus stop</source><translation>תחנת אוטובוס</translation></message>
<message><source>bust</source><translation>חזה</translation></message>
<message><source>bust in silhouette</source><translation>צללית ראש וחזה</translation></message>
<message><source>busts in silhouette</source><translation>שתי צלליות ראש וחזה</translation></message>
<message><source>butter</source><translation>חמאה</translation></message>
<message><source>butterfly</source><translation>פרפר</translation></message>
<message><source>cactus</source><translation>קקטוס</translation></message>
<message><source>calendar</source><translation>לוח שנה</translation></message>
<message><source>call me hand</source><translation>יד מסמנת ’תתקשר אליי’</translation></message>
<message><source>camel</source><translation>גמל</translation></message>
<message><source>camera</source><translation>מצלמה</translation></message>
<message><source>camera with flash</source><translation>מצלמה עם פלאש</translation></message>
<message><source>camping</source><translation>מחנאות</translation></message>
<message><source>cancel</source><translation>ביטול</translation></message>
<message><source>candle</source><translation>נר</translation></message>
<message><source>candy</source><translation>סוכריה</translation></message>
<message><source>canned food</source><translation>שימורים</translation></message>
<message><source>canoe</source><translation>קאנו</translation></message>
<message><source>card file box</source><translation>קופסת תיוק כרטיסיות</translation></message>
<message><source>card index</source><translation>כרטסת</translation></message>
<message><source>card index dividers</source><translation>כרטסת עם חוצצים</translation></message>
<message><source>carousel horse</source><translation>סוס בקרוסלה</translation></message>
<message><source>carp streamer</source><translation>דגלים בצורת דגי קוי</translation></message>
<message><source>carpentry saw</source><translation>מסור</translation></message>
<message><source>carrot</source><translation>גזר</translation></message>
<message><source>castle</source><translation>טירה</translation></message>
<message><source>cat</source><translation>חתול</translation></message>
<message><source>cat face</source><translation>פני חתול</translation></message>
<message><source>cat with tears of joy</source><translation>חתול עם דמעות שמחה</translation></message>
<message><source>cat with wry smile</source><translation>חתול עם חיוך עקום</translation></message>
<message><source>celebration</source><translation>חגיגה</translation></message>
<message><source>chain</source><translation>שלשלאות</translation></message>
<message><source>chains</source><translation>שרשראות</translation></message>
<message><source>chair</source><translation>כיסא</translation></message>
<message><source>chart decreasing</source><translation>גרף יורד</translation></message>
<message><source>chart increasing</source><translation>גרף עולה</translation></message>
<message><source>chart increasing with yen</source><translation>גרף עולה עם סימן ין</translation></message>
<message><source>check box with check</source><translation>סימן אישור בתוך משבצת</translation></message>
<message><source>check mark</source><translation>סימן אישור ירוק</translation></message>
<message><source>check mark button</source><translation>סימן אישור</translation></message>
<message><source>checkmark</source><translation>סימן ביקורת</translation></message>
<message><source>cheese wedge</source><translation>חריץ גבינה</translation></message>
<message><source>chef</source><translation>שף</translation></message>
<message><source>chequered flag</source><translation>דגל מירוצים</translation></message>
<message><source>cherries</source><translation>דובדבנים</translation></message>
<message><source>cherry</source><translation>דובדבן</translation></message>
<message><source>cherry blossom</source><translation>פריחת דובדבן</translation></message>
<message><source>chess pawn</source><translation>פיון בשחמט</translation></message>
<message><source>chestnut</source><translation>ערמון</translation></message>
<message><source>chick</source><translation>אפרוח</translation></message>
<message><source>chicken</source><translation>תרנגולת</translation></message>
<message><source>child</source><translation>ילד</translation></message>
<message><source>children crossing</source><translation>ילדים חוצים</translation></message>
<message><source>chipmunk</source><translation>סנאי</translation></message>
<message><source>chocolate bar</source><translation>חפיסת שוקולד</translation></message>
<message><source>chopsticks</source><translation>מקלות אכילה</translation></message>
<message><source>church</source><translation>כנסייה</translation></message>
<message><source>cigarette</source><translation>סיגריה דולקת</translation></message>
<message><source>cinema</source><translation>קולנוע</translation></message>
<message><source>circle</source><translation>עיגול</translation></message>
<message><source>circled M</source><translation>m בעיגול</translation></message>
<message><source>circus tent</source><translation>אוהל קרקס</translation></message>
<message><source>citrus</source><translation>פרי הדר</translation></message>
<message><source>cityscape</source><translation>נוף עירוני</translation></message>
<message><source>cityscape at dusk</source><translation>נוף עירוני בשעת בין-ערביים</translation></message>
<message><source>clamp</source><translation>מלחציים</translation></message>
<message><source>clapper board</source><translation>קלאפר</translation></message>
<message><source>clapping hands</source><translation>מחיאות כפיים</translation></message>
<message><source>classical building</source><translation>מבנה קלאסי</translation></message>
<message><source>climb</source><translation>טיפוס</translation></message>
<message><source>clinking beer mugs</source><translation>השקת כוסות בירה</translation></message>
<message><source>clinking glasses</source><translation>השקת כוסות לחיים</translation></message>
<message><source>clipboard</source><translation>לוח כתיבה</translation></message>
<message><source>clockwise</source><translation>חצים</translation></message>
<message><source>clockwise vertical arrows</source><translation>חצים אנכיים מתעקלים בכיוון השעון</translation></message>
<message><source>closed book</source><translation>ספר סגור</translation></message>
<message><source>closed mailbox with lowered flag</source><translation>תיבת דואר סגורה עם דגלון למטה</translation></message>
<message><source>closed mailbox with raised flag</source><translation>תיבת דואר סגורה עם דגלון למעלה</translation></message>
<message><source>closed umbrella</source><translation>מטריה סגורה</translation></message>
<message><source>cloud</source><translation>ענן</translation></message>
<message><source>cloud with lightning</source><translation>ענן עם ברק</translation></message>
<message><source>cloud with lightning and rain</source><translation>ענן עם ברק וגשם</translation></message>
<message><source>cloud with rain</source><translation>ענן עם גשם</translation></message>
<message><source>cloud with snow</source><translation>ענן עם שלג</translation></message>
<message><source>clown face</source><translation>פרצוף ליצן</translation></message>
<message><source>club suit</source><translation>קלף תלתן</translation></message>
<message><source>clutch bag</source><translation>תיק ערב</translation></message>
<message><source>coat</source><translation>מעיל</translation></message>
<message><source>cockroach</source><translation>תיקן</translation></message>
<message><source>cocktail</source><translation>קוקטייל</translation></message>
<message><source>cocktail glass</source><translation>כוס קוקטייל</translation></message>
<message><source>coconut</source><translation>קוקוס</translation></message>
<message><source>coffin</source><translation>ארון קבורה</translation></message>
<message><source>coin</source><translation>מטבע</translation></message>
<message><source>cold face</source><translation>למות מקור</translation></message>
<message><source>collision</source><translation>פיצוץ</translation></message>
<message><source>comet</source><translation>שביט</translation></message>
<message><source>compass</source><translation>מצפן</translation></message>
<message><source>computer</source><translation>מחשב</translation></message>
<message><source>computer disk</source><translation>דיסק</translation></message>
<message><source>computer mouse</source><translation>עכבר למחשב</translation></message>
<message><source>confetti ball</source><translation>כדור קונפטי</translation></message>
<message><source>confounded face</source><translation>פרצוף מתוסכל</translation></message>
<message><source>confused</source><translation>מבולבל</translation></message>
<message><source>confused face</source><translation>פרצוף מבולבל</translation></message>
<message><source>construction</source><translation>מחסום עבודות בכביש</translation></message>
<message><source>construction worker</source><translation>פועל בניין</translation></message>
<message><source>control knobs</source><translation>כפתורי עוצמת קול</translation></message>
<message><source>convenience store</source><translation>חנות נוחות</translation></message>
<message><source>cook</source><translation>טבח/ית</translation></message>
<message><source>cooked rice</source><translation>אורז מבושל</translation></message>
<message><source>cookie</source><translation>עוגיה</translation></message>
<message><source>cooking</source><translation>בישול</translation></message>
<message><source>copyright</source><translation>זכויות יוצרים</translation></message>
<message><source>coral</source><translation>אלמוג</translation></message>
<message><source>cosmetics</source><translation>קוסמטיקה</translation></message>
<message><source>couch and lamp</source><translation>ספה ומנורה</translation></message>
<message><source>counterclockwise arrows button</source><translation>לחצן חצים נגד כיוון השעון</translation></message>
<message><source>couple</source><translation>זוג</translation></message>
<message><source>couple with heart</source><translation>זוג עם לב</translation></message>
<message><source>couple with heart: man, man</source><translation>זוג עם לב: איש, איש</translation></message>
<message><source>couple with heart: woman, man</source><translation>זוג עם לב: אישה, איש</translation></message>
<message><source>couple with heart: woman, woman</source><translation>זוג עם לב: אישה, אישה</translation></message>
<message><source>cow</source><translation>פרה</translation></message>
<message><source>cow face</source><translation>פני פרה</translation></message>
<message><source>cowboy hat face</source><translation>פרצוף עם כובע בוקרים</translation></message>
<message><source>crab</source><translation>סרטן</translation></message>
<message><source>crayon</source><translation>צבע פנדה</translation></message>
<message><source>cream</source><translation>גלידה</translation></message>
<message><source>credit card</source><translation>כרטיס אשראי</translation></message>
<message><source>crescent</source><translation>סהר</translation></message>
<message><source>crescent moon</source><translation>סהר</translation></message>
<message><source>cricket</source><translation>צרצר</translation></message>
<message><source>cricket game</source><translation>קריקט</translation></message>
<message><source>crocodile</source><translation>תנין</translation></message>
<message><source>croissant</source><translation>קרואסון</translation></message>
<message><source>cross mark</source><translation>איקס אדום</translation></message>
<message><source>cross mark button</source><translation>סימן איקס</translation></message>
<message><source>crossed fingers</source><translation>יד מחזיקה אצבעות</translation></message>
<message><source>crossed flags</source><translation>דגלים מוצלבים</translation></message>
<message><source>crossed swords</source><translation>חרבות מוצלבות</translation></message>
<message><source>crown</source><translation>כתר</translation></message>
<message><source>crutch</source><translation>קביים</translation></message>
<message><source>crying</source><translation>בוכה</translation></message>
<message><source>crying cat</source><translation>חתול בוכה</translation></message>
<message><source>crying face</source><translation>פרצוף בוכה</translation></message>
<message><source>crystal ball</source><translation>כדור בדולח</translation></message>
<message><source>cucumber</source><translation>מלפפון</translation></message>
<message><source>cup with straw</source><translation>כוס עם קש</translation></message>
<message><source>cupcake</source><translation>קפקייק</translation></message>
<message><source>curling stone</source><translation>אבן קרלינג</translation></message>
<message><source>curly loop</source><translation>לולאה</translation></message>
<message><source>currency</source><translation>מטבע</translation></message>
<message><source>currency exchange</source><translation>המרת מטבעות</translation></message>
<message><source>curry rice</source><translation>אורז קארי</translation></message>
<message><source>curving</source><translation>מתעקל</translation></message>
<message><source>custard</source><translation>פודינג</translation></message>
<message><source>customs</source><translation>שלט עמדת מכס</translation></message>
<message><source>cut of meat</source><translation>נתח בשר</translation></message>
<message><source>cyclone</source><translation>הוריקן</translation></message>
<message><source>dagger</source><translation>פגיון</translation></message>
<message><source>dance</source><translation>ריקוד</translation></message>
<message><source>dango</source><translation>שיפוד כופתאות</translation></message>
<message><source>dark skin tone</source><translation>גוון עור כהה</translation></message>
<message><source>dashing away</source><translation>ענן בתנועה מהירה</translation></message>
<message><source>data</source><translation>תרשים</translation></message>
<message><source>deaf man</source><translation>איש כבד שמיעה</translation></message>
<message><source>deaf person</source><translation>כבד שמיעה</translation></message>
<message><source>deaf woman</source><translation>אישה כבדת שמיעה</translation></message>
<message><source>death</source><translation>מוות</translation></message>
<message><source>deciduous tree</source><translation>עץ נשיר</translation></message>
<message><source>deer</source><translation>אייל</translation></message>
<message><source>delivery</source><translation>משלוח</translation></message>
<message><source>delivery truck</source><translation>משאית</translation></message>
<message><source>demon</source><translation>שטן</translation></message>
<message><source>department store</source><translation>כלבו</translation></message>
<message><source>derelict house</source><translation>בית מוזנח</translation></message>
<message><source>desert</source><translation>מדבר</translation></message>
<message><source>desert island</source><translation>אי בודד</translation></message>
<message><source>desktop computer</source><translation>מחשב שולחני</translation></message>
<message><source>dessert</source><translation>מתוק</translation></message>
<message><source>detective</source><translation>בלש</translation></message>
<message><source>devil</source><translation>קרניים</translation></message>
<message><source>diamond</source><translation>מעוין</translation></message>
<message><source>diamond suit</source><translation>קלף יהלום</translation></message>
<message><source>diamond with a dot</source><translation>מעוין כחול עם נקודה</translation></message>
<message><source>dim button</source><translation>לחצן עמעום תאורה</translation></message>
<message><source>dinosaur</source><translation>דינוזאור</translation></message>
<message><source>direction</source><translation>כיוון</translation></message>
<message><source>disappear</source><translation>נעלם</translation></message>
<message><source>disappointed</source><translation>מאוכזב</translation></message>
<message><source>disappointed face</source><translation>פרצוף מאוכזב</translation></message>
<message><source>disease</source><translation>מחלות</translation></message>
<message><source>disguised face</source><translation>פרצוף עם תחפושת</translation></message>
<message><source>divide</source><translation>סימן חילוק</translation></message>
<message><source>diving mask</source><translation>מסיכת צלילה</translation></message>
<message><source>diya lamp</source><translation>מנורת דייה</translation></message>
<message><source>dizzy</source><translation>כוכב נע במעגל</translation></message>
<message><source>dna</source><translation>די אנ איי</translation></message>
<message><source>doctor</source><translation>רופא</translation></message>
<message><source>dodo</source><translation>ציפור דודו</translation></message>
<message><source>dog</source><translation>כלב</translation></message>
<message><source>dog face</source><translation>פני כלב</translation></message>
<message><source>dollar</source><translation>דולר</translation></message>
<message><source>dollar banknote</source><translation>שטר דולר</translation></message>
<message><source>dolphin</source><translation>דולפין</translation></message>
<message><source>donkey</source><translation>חמור</translation></message>
<message><source>door</source><translation>דלת</translation></message>
<message><source>dotted line face</source><translation>פרצוף עם קו מקווקו</translation></message>
<message><source>dotted six-pointed star</source><translation>מגן דוד עם נקודה באמצע</translation></message>
<message><source>double curly loop</source><translation>לולאה כפולה</translation></message>
<message><source>double exclamation mark</source><translation>סימן קריאה כפול</translation></message>
<message><source>doubt</source><translation>לא בטוח</translation></message>
<message><source>doughnut</source><translation>סופגניה</translation></message>
<message><source>dove</source><translation>יונה</translation></message>
<message><source>down</source><translation>למטה</translation></message>
<message><source>down arrow</source><translation>חץ למטה</translation></message>
<message><source>down-left arrow</source><translation>חץ למטה ושמאלה</translation></message>
<message><source>down-right arrow</source><translation>חץ למטה וימינה</translation></message>
<message><source>downcast face with sweat</source><translation>פרצוף עם זיעה קרה</translation></message>
<message><source>downwards button</source><translation>לחצן מטה</translation></message>
<message><source>dragon</source><translation>דרקון</translation></message>
<message><source>dragon face</source><translation>פני דרקון</translation></message>
<message><source>dress</source><translation>שמלה</translation></message>
<message><source>dressed</source><translation>בגד</translation></message>
<message><source>drink</source><translation>משקה</translation></message>
<message><source>drinking</source><translation>בר</translation></message>
<message><source>drooling face</source><translation>פרצוף מזיל ריר</translation></message>
<message><source>drop of blood</source><translation>טיפת דם</translation></message>
<message><source>droplet</source><translation>טיפה</translation></message>
<message><source>drum</source><translation>תוף</translation></message>
<message><source>duck</source><translation>ברווז</translation></message>
<message><source>dumpling</source><translation>דים-סאם</translation></message>
<message><source>dunno</source><translation>לא יודע</translation></message>
<message><source>dvd</source><translation>dvd</translation></message>
<message><source>e-mail</source><translation>אימייל</translation></message>
<message><source>eagle</source><translation>נשר</translation></message>
<message><source>ear</source><translation>אוזן</translation></message>
<message><source>ear of corn</source><translation>קלח תירס</translation></message>
<message><source>ear with hearing aid</source><translation>אוזן עם מכשיר שמיעה</translation></message>
<message><source>eat</source><translation>סכו״ם</translation></message>
<message><source>egg</source><translation>ביצה</translation></message>
<message><source>eggplant</source><translation>חציל</translation></message>
<message><source>eight o’clock</source><translation>שמונה</translation></message>
<message><source>eight-pointed star</source><translation>כוכב עם שמונה פינות</translation></message>
<message><source>eight-spoked asterisk</source><translation>כוכבית עם שמונה פינות</translation></message>
<message><source>eight-thirty</source><translation>שמונה וחצי</translation></message>
<message><source>eject button</source><translation>לחצן הוצאה</translation></message>
<message><source>electric</source><translation>חשמל</translation></message>
<message><source>electric plug</source><translation>תקע חשמלי</translation></message>
<message><source>elephant</source><translation>פיל</translation></message>
<message><source>elevator</source><translation>מעלית</translation></message>
<message><source>eleven o’clock</source><translation>אחת-עשרה</translation></message>
<message><source>eleven-thirty</source><translation>אחת-עשרה וחצי</translation></message>
<message><source>elf</source><translation>אלף</translation></message>
<message><source>emergency</source><translation>חירום</translation></message>
<message><source>empty nest</source><translation>קן ריק</translation></message>
<message><source>engagement</source><translation>תכשיט</translation></message>
<message><source>enraged face</source><translation>פרצוף זועף</translation></message>
<message><source>envelope</source><translation>מעטפה</translation></message>
<message><source>envelope with arrow</source><translation>מעטפה עם חץ</translation></message>
<message><source>euro banknote</source><translation>שטר אירו</translation></message>
<message><source>evergreen tree</source><translation>עץ ירוק-עד</translation></message>
<message><source>ewe</source><translation>כבשה</translation></message>
<message><source>exclamation</source><translation>סימן קריאה</translation></message>
<message><source>exclamation question mark</source><translation>סימן שאלה וסימן קריאה</translation></message>
<message><source>exploding head</source><translation>ראש מתפוצץ</translation></message>
<message><source>expressionless face</source><translation>פרצוף חסר הבעה ועיניים סגורות</translation></message>
<message><source>eye</source><translation>עין</translation></message>
<message><source>eye in speech bubble</source><translation>עין בבועת דיבור</translation></message>
<message><source>eyes</source><translation>עיניים</translation></message>
<message><source>face</source><translation>פרצוף</translation></message>
<message><source>face blowing a kiss</source><translation>פרצוף מפריח נשיקה</translation></message>
<message><source>face exhaling</source><translation>פרצוף נושף</translation></message>
<message><source>face holding back tears</source><translation>פרצוף עם דמעות</translation></message>
<message><source>face in clouds</source><translation>פרצוף בעננים</translation></message>
<message><source>face savoring food</source><translation>פרצוף של הנאה מאוכל טעים</translation></message>
<message><source>face screaming in fear</source><translation>פרצוף צורח בפחד</translation></message>
<message><source>face vomiting</source><translation>פרצוף מקיא</translation></message>
<message><source>face with bags under eyes</source><translation>פרצוף עם שקיות מתחת לעיניים</translation></message>
<message><source>face with crossed-out eyes</source><translation>פרצוף עם סחרחורת</translation></message>
<message><source>face with diagonal mouth</source><translation>פרצוף מעקם את הפה</translation></message>
<message><source>face with hand over mouth</source><translation>פרצוף עם יד על הפה</translation></message>
<message><source>face with head-bandage</source><translation>פרצוף עם תחבושת ראש</translation></message>
<message><source>face with medical mask</source><translation>פרצוף עם מסיכת מנתח</translation></message>
<message><source>face with monocle</source><translation>פרצוף עם מונוקל</translation></message>
<message><source>face with open eyes and hand over mouth</source><translation>פרצוף עם יד על הפה ועיניים פעורות</translation></message>
<message><source>face with open mouth</source><translation>פרצוף עם פה פתוח</translation></message>
<message><source>face with peeking eye</source><translation>פרצוף מציץ עם יד על העיניים</translation></message>
<message><source>face with raised eyebrow</source><translation>פרצוף עם גבות מורמות</translation></message>
<message><source>face with rolling eyes</source><translation>פרצוף מגלגל עיניים</translation></message>
<message><source>face with spiral eyes</source><translation>פרצוף עם עיני ספירלה</translation></message>
<message><source>face with steam from nose</source><translation>פרצוף עם קיטור יוצא מהאף</translation></message>
<message><source>face with symbols on mouth</source><translation>פרצוף עם סמלים על הפה</translation></message>
<message><source>face with tears of joy</source><translation>פרצוף עם דמעות שמחה</translation></message>
<message><source>face with thermometer</source><translation>פרצוף עם מדחום</translation></message>
<message><source>face with tongue</source><translation>פרצוף מוציא לשון</translation></message>
<message><source>face without mouth</source><translation>פרצוף ללא פה</translation></message>
<message><source>facing</source><translation>פונה</translation></message>
<message><source>factory</source><translation>מפעל</translation></message>
<message><source>factory worker</source><translation>פועל/ת</translation></message>
<message><source>fairy</source><translation>פיה</translation></message>
<message><source>falafel</source><translation>פלאפל</translation></message>
<message><source>fallen leaf</source><translation>עלי שלכת</translation></message>
<message><source>family</source><translation>משפחה</translation></message>
<message><source>family: adult, adult, child</source><translation>משפחה: הורה, הורה, ילד</translation></message>
<message><source>family: adult, adult, child, child</source><translation>משפחה: הורה, הורה, ילד, ילד</translation></message>
<message><source>family: adult, child</source><translation>משפחה: הורה, ילד</translation></message>
<message><source>family: adult, child, child</source><translation>משפחה: מבוגר, מבוגרת, ילד, ילדה</translation></message>
<message><source>family: man, boy</source><translation>משפחה: איש, בן</translation></message>
<message><source>family: man, boy, boy</source><translation>משפחה: איש, בן, בן</translation></message>
<message><source>family: man, girl</source><translation>משפחה: איש, בת</translation></message>
<message><source>family: man, girl, boy</source><translation>משפחה: איש, בת, בן</translation></message>
<message><source>family: man, girl, girl</source><translation>משפחה: איש, בת, בת</translation></message>
<message><source>family: man, man, boy</source><translation>משפחה: איש, איש, בן</translation></message>
<message><source>family: man, man, boy, boy</source><translation>משפחה: איש, איש, בן, בן</translation></message>
<message><source>family: man, man, girl</source><translation>משפחה: איש, איש, בת</translation></message>
<message><source>family: man, man, girl, boy</source><translation>משפחה: איש, איש, בת, בן</translation></message>
<message><source>family: man, man, girl, girl</source><translation>משפחה: איש, איש, בת, בת</translation></message>
<message><source>family: man, woman, boy</source><translation>משפחה: איש, אישה, בן</translation></message>
<message><source>family: man, woman, boy, boy</source><translation>משפחה: איש, אישה, בן, בן</translation></message>
<message><source>family: man, woman, girl</source><translation>משפחה: איש, אישה, בת</translation></message>
<message><source>family: man, woman, girl, boy</source><translation>משפחה: איש, אישה, בת, בן</translation></message>
<message><source>family: man, woman, girl, girl</source><translation>משפחה: איש, אישה, בת, בת</translation></message>
<message><source>family: woman, boy</source><translation>משפחה: אישה, בן</translation></message>
<message><source>family: woman, boy, boy</source><translation>משפחה: אישה, בן, בן</translation></message>
<message><source>family: woman, girl</source><translation>משפחה: אישה, בת</translation></message>
<message><source>family: woman, girl, boy</source><translation>משפחה: אישה, בת, בן</translation></message>
<message><source>family: woman, girl, girl</source><translation>משפחה: אישה, בת, בת</translation></message>
<message><source>family: woman, woman, boy</source><translation>משפחה: אישה, אישה, בן</translation></message>
<message><source>family: woman, woman, boy, boy</source><translation>משפחה: אישה, אישה, בן, בן</translation></message>
<message><source>family: woman, woman, girl</source><translation>משפחה: אישה, אישה, בת</translation></message>
<message><source>family: woman, woman, girl, boy</source><translation>משפחה: אישה, אישה, בת, בן</translation></message>
<message><source>family: woman, woman, girl, girl</source><translation>משפחה: אישה, אישה, בת, בת</translation></message>
<message><source>farmer</source><translation>חקלאי/ת</translation></message>
<message><source>fast</source><translation>מהר</translation></message>
<message><source>fast down button</source><translation>לחצן מטה במהירות</translation></message>
<message><source>fast reverse button</source><translation>לחצן הרצה לאחור</translation></message>
<message><source>fast up button</source><translation>לחצן מעלה במהירות</translation></message>
<message><source>fast-forward button</source><translation>לחצן הרצה קדימה</translation></message>
<message><source>fax machine</source><translation>מכשיר פקס</translation></message>
<message><source>fearful face</source><translation>פרצוף מפוחד</translation></message>
<message><source>feather</source><translation>נוצה</translation></message>
<message><source>female sign</source><translation>סמל אישה</translation></message>
<message><source>ferris wheel</source><translation>גלגל ענק</translation></message>
<message><source>ferry</source><translation>מעבורת</translation></message>
<message><source>field hockey</source><translation>הוקי שדה</translation></message>
<message><source>file</source><translation>מסמכים</translation></message>
<message><source>file cabinet</source><translation>מגירות מסמכים</translation></message>
<message><source>file folder</source><translation>תיקיית מסמכים</translation></message>
<message><source>film frames</source><translation>פילם</translation></message>
<message><source>film projector</source><translation>מקרן קולנוע</translation></message>
<message><source>fingerprint</source><translation>טביעת אצבע</translation></message>
<message><source>fire</source><translation>אש</translation></message>
<message><source>fire engine</source><translation>כבאית</translation></message>
<message><source>fire extinguisher</source><translation>מטף אש</translation></message>
<message><source>firecracker</source><translation>זיקוקין די נור</translation></message>
<message><source>firefighter</source><translation>לוחם/ת אש</translation></message>
<message><source>fireworks</source><translation>זיקוקים</translation></message>
<message><source>first quarter moon</source><translation>חצי ירח מתמלא</translation></message>
<message><source>first quarter moon face</source><translation>פני סהר מתמלא</translation></message>
<message><source>fish</source><translation>דג</translation></message>
<message><source>fish cake with swirl</source><translation>עוגיית אורז עם עיטור</translation></message>
<message><source>fishing pole</source><translation>חכת דיג</translation></message>
<message><source>fist</source><translation>אגרוף</translation></message>
<message><source>five o’clock</source><translation>חמש</translation></message>
<message><source>five-thirty</source><translation>חמש וחצי</translation></message>
<message><source>flag</source><translation>דגל</translation></message>
<message><source>flag in hole</source><translation>דגל גולף</translation></message>
<message><source>flag: Afghanistan</source><translation>דגל: אפגניסטן</translation></message>
<message><source>flag: Albania</source><translation>דגל: אלבניה</translation></message>
<message><source>flag: Algeria</source><translation>דגל: אלג׳יריה</translation></message>
<message><source>flag: American Samoa</source><translation>דגל: סמואה האמריקנית</translation></message>
<message><source>flag: Andorra</source><translation>דגל: אנדורה</translation></message>
<message><source>flag: Angola</source><translation>דגל: אנגולה</translation></message>
<message><source>flag: Anguilla</source><translation>דגל: אנגווילה</translation></message>
<message><source>flag: Antarctica</source><translation>דגל: אנטארקטיקה</translation></message>
<message><source>flag: Antigua &amp; Barbuda</source><translation>דגל: אנטיגואה וברבודה</translation></message>
<message><source>flag: Argentina</source><translation>דגל: ארגנטינה</translation></message>
<message><source>flag: Armenia</source><translation>דגל: ארמניה</translation></message>
<message><source>flag: Aruba</source><translation>דגל: ארובה</translation></message>
<message><source>flag: Ascension Island</source><translation>דגל: האי אסנשן</translation></message>
<message><source>flag: Australia</source><translation>דגל: אוסטרליה</translation></message>
<message><source>flag: Austria</source><translation>דגל: אוסטריה</translation></message>
<message><source>flag: Azerbaijan</source><translation>דגל: אזרבייג׳ן</translation></message>
<message><source>flag: Bahamas</source><translation>דגל: איי בהאמה</translation></message>
<message><source>flag: Bahrain</source><translation>דגל: בחריין</translation></message>
<message><source>flag: Bangladesh</source><translation>דגל: בנגלדש</translation></message>
<message><source>flag: Barbados</source><translation>דגל: ברבדוס</translation></message>
<message><source>flag: Belarus</source><translation>דגל: בלארוס</translation></message>
<message><source>flag: Belgium</source><translation>דגל: בלגיה</translation></message>
<message><source>flag: Belize</source><translation>דגל: בליז</translation></message>
<message><source>flag: Benin</source><translation>דגל: בנין</translation></message>
<message><source>flag: Bermuda</source><translation>דגל: ברמודה</translation></message>
<message><source>flag: Bhutan</source><translation>דגל: בהוטן</translation></message>
<message><source>flag: Bolivia</source><translation>דגל: בוליביה</translation></message>
<message><source>flag: Bosnia &amp; Herzegovina</source><translation>דגל: בוסניה והרצגובינה</translation></message>
<message><source>flag: Botswana</source><translation>דגל: בוטסואנה</translation></message>
<message><source>flag: Bouvet Island</source><translation>דגל: האי בובה</translation></message>
<message><source>flag: Brazil</source><translation>דגל: ברזיל</translation></message>
<message><source>flag: British Indian Ocean Territory</source><translation>דגל: הטריטוריה הבריטית באוקיינוס ההודי</translation></message>
<message><source>flag: British Virgin Islands</source><translation>דגל: איי הבתולה הבריטיים</translation></message>
<message><source>flag: Brunei</source><translation>דגל: ברוניי</translation></message>
<message><source>flag: Bulgaria</source><translation>דגל: בולגריה</translation></message>
<message><source>flag: Burkina Faso</source><translation>דגל: בורקינה פאסו</translation></message>
<message><source>flag: Burundi</source><translation>דגל: בורונדי</translation></message>
<message><source>flag: Cambodia</source><translation>דגל: קמבודיה</translation></message>
<message><source>flag: Cameroon</source><translation>דגל: קמרון</translation></message>
<message><source>flag: Canada</source><translation>דגל: קנדה</translation></message>
<message><source>flag: Canary Islands</source><translation>דגל: האיים הקנריים</translation></message>
<message><source>flag: Cape Verde</source><translation>דגל: כף ורדה</translation></message>
<message><source>flag: Caribbean Netherlands</source><translation>דגל: האיים הקריביים ההולנדיים</translation></message>
<message><source>flag: Cayman Islands</source><translation>דגל: איי קיימן</translation></message>
<message><source>flag: Central African Republic</source><translation>דגל: הרפובליקה המרכז-אפריקאית</translation></message>
<message><source>flag: Ceuta &amp; Melilla</source><translation>דגל: סאוטה ומלייה</translation></message>
<message><source>flag: Chad</source><translation>דגל: צ׳אד</translation></message>
<message><source>flag: Chile</source><translation>דגל: צ׳ילה</translation></message>
<message><source>flag: China</source><translation>דגל: סין</translation></message>
<message><source>flag: Christmas Island</source><translation>דגל: אי חג המולד</translation></message>
<message><source>flag: Clipperton Island</source><translation>דגל: האי קליפרטון</translation></message>
<message><source>flag: Cocos (Keeling) Islands</source><translation>דגל: איי קוקוס (קילינג)</translation></message>
<message><source>flag: Colombia</source><translation>דגל: קולומביה</translation></message>
<message><source>flag: Comoros</source><translation>דגל: קומורו</translation></message>
<message><source>flag: Congo - Brazzaville</source><translation>דגל: קונגו - ברזאויל</translation></message>
<message><source>flag: Congo - Kinshasa</source><translation>דגל: קונגו - קינשאסה</translation></message>
<message><source>flag: Cook Islands</source><translation>דגל: איי קוק</translation></message>
<message><source>flag: Costa Rica</source><translation>דגל: קוסטה ריקה</translation></message>
<message><source>flag: Croatia</source><translation>דגל: קרואטיה</translation></message>
<message><source>flag: Cuba</source><translation>דגל: קובה</translation></message>
<message><source>flag: Curaçao</source><translation>דגל: קוראסאו</translation></message>
<message><source>flag: Cyprus</source><translation>דגל: קפריסין</translation></message>
<message><source>flag: Czechia</source><translation>דגל: צ׳כיה</translation></message>
<message><source>flag: Côte d’Ivoire</source><translation>דגל: חוף השנהב</translation></message>
<message><source>flag: Denmark</source><translation>דגל: דנמרק</translation></message>
<message><source>flag: Diego Garcia</source><translation>דגל: דייגו גרסיה</translation></message>
<message><source>flag: Djibouti</source><translation>דגל: ג׳יבוטי</translation></message>
<message><source>flag: Dominica</source><translation>דגל: דומיניקה</translation></message>
<message><source>flag: Dominican Republic</source><translation>דגל: הרפובליקה הדומיניקנית</translation></message>
<message><source>flag: Ecuador</source><translation>דגל: אקוודור</translation></message>
<message><source>flag: Egypt</source><translation>דגל: מצרים</translation></message>
<message><source>flag: El Salvador</source><translation>דגל: אל סלבדור</translation></message>
<message><source>flag: England</source><translation>דגל: אנגליה</translation></message>
<message><source>flag: Equatorial Guinea</source><translation>דגל: גינאה המשוונית</translation></message>
<message><source>flag: Eritrea</source><translation>דגל: אריתריאה</translation></message>
<message><source>flag: Estonia</source><translation>דגל: אסטוניה</translation></message>
<message><source>flag: Eswatini</source><translation>דגל: אסוואטיני</translation></message>
<message><source>flag: Ethiopia</source><translation>דגל: אתיופיה</translation></message>
<message><source>flag: European Union</source><translation>דגל: האיחוד האירופי</translation></message>
<message><source>flag: Falkland Islands</source><translation>דגל: איי פוקלנד</translation></message>
<message><source>flag: Faroe Islands</source><translation>דגל: איי פארו</translation></message>
<message><source>flag: Fiji</source><translation>דגל: פיג׳י</translation></message>
<message><source>flag: Finland</source><translation>דגל: פינלנד</translation></message>
<message><source>flag: France</source><translation>דגל: צרפת</translation></message>
<message><source>flag: French Guiana</source><translation>דגל: גיאנה הצרפתית</translation></message>
<message><source>flag: French Polynesia</source><translation>דגל: פולינזיה הצרפתית</translation></message>
<message><source>flag: French Southern Territories</source><translation>דגל: הטריטוריות הדרומיות של צרפת</translation></message>
<message><source>flag: Gabon</source><translation>דגל: גבון</translation></message>
<message><source>flag: Gambia</source><translation>דגל: גמביה</translation></message>
<message><source>flag: Georgia</source><translation>דגל: גאורגיה</translation></message>
<message><source>flag: Germany</source><translation>דגל: גרמניה</translation></message>
<message><source>flag: Ghana</source><translation>דגל: גאנה</translation></message>
<message><source>flag: Gibraltar</source><translation>דגל: גיברלטר</translation></message>
<message><source>flag: Greece</source><translation>דגל: יוון</translation></message>
<message><source>flag: Greenland</source><translation>דגל: גרינלנד</translation></message>
<message><source>flag: Grenada</source><translation>דגל: גרנדה</translation></message>
<message><source>flag: Guadeloupe</source><translation>דגל: גוואדלופ</translation></message>
<message><source>flag: Guam</source><translation>דגל: גואם</translation></message>
<message><source>flag: Guatemala</source><translation>דגל: גואטמלה</translation></message>
<message><source>flag: Guernsey</source><translation>דגל: גרנזי</translation></message>
<message><source>flag: Guinea</source><translation>דגל: גינאה</translation></message>
<message><source>flag: Guinea-Bissau</source><translation>דגל: גינאה-ביסאו</translation></message>
<message><source>flag: Guyana</source><translation>דגל: גיאנה</translation></message>
<message><source>flag: Haiti</source><translation>דגל: האיטי</translation></message>
<message><source>flag: Heard &amp; McDonald Islands</source><translation>דגל: איי הרד ומקדונלד</translation></message>
<message><source>flag: Honduras</source><translation>דגל: הונדורס</translation></message>
<message><source>flag: Hong Kong SAR China</source><translation>דגל: הונג קונג (אזור מנהלי מיוחד של סין)</translation></message>
<message><source>flag: Hungary</source><translation>דגל: הונגריה</translation></message>
<message><source>flag: Iceland</source><translation>דגל: איסלנד</translation></message>
<message><source>flag: India</source><translation>דגל: הודו</translation></message>
<message><source>flag: Indonesia</source><translation>דגל: אינדונזיה</translation></message>
<message><source>flag: Iran</source><translation>דגל: איראן</translation></message>
<message><source>flag: Iraq</source><translation>דגל: עיראק</translation></message>
<message><source>flag: Ireland</source><translation>דגל: אירלנד</translation></message>
<message><source>flag: Isle of Man</source><translation>דגל: האי מאן</translation></message>
<message><source>flag: Israel</source><translation>דגל: ישראל</translation></message>
<message><source>flag: Italy</source><translation>דגל: איטליה</translation></message>
<message><source>flag: Jamaica</source><translation>דגל: ג׳מייקה</translation></message>
<message><source>flag: Japan</source><translation>דגל: יפן</translation></message>
<message><source>flag: Jersey</source><translation>דגל: ג׳רזי</translation></message>
<message><source>flag: Jordan</source><translation>דגל: ירדן</translation></message>
<message><source>flag: Kazakhstan</source><translation>דגל: קזחסטן</translation></message>
<message><source>flag: Kenya</source><translation>דגל: קניה</translation></message>
<message><source>flag: Kiribati</source><translation>דגל: קיריבאטי</translation></message>
<message><source>flag: Kosovo</source><translation>דגל: קוסובו</translation></message>
<message><source>flag: Kuwait</source><translation>דגל: כווית</translation></message>
<message><source>flag: Kyrgyzstan</source><translation>דגל: קירגיזסטן</translation></message>
<message><source>flag: Laos</source><translation>דגל: לאוס</translation></message>
<message><source>flag: Latvia</source><translation>דגל: לטביה</translation></message>
<message><source>flag: Lebanon</source><translation>דגל: לבנון</translation></message>
<message><source>flag: Lesotho</source><translation>דגל: לסוטו</translation></message>
<message><source>flag: Liberia</source><translation>דגל: ליבריה</translation></message>
<message><source>flag: Libya</source><translation>דגל: לוב</translation></message>
<message><source>flag: Liechtenstein</source><translation>דגל: ליכטנשטיין</translation></message>
<message><source>flag: Lithuania</source><translation>דגל: ליטא</translation></message>
<message><source>flag: Luxembourg</source><translation>דגל: לוקסמבורג</translation></message>
<message><source>flag: Macao SAR China</source><translation>דגל: מקאו (אזור מנהלי מיוחד של סין)</translation></message>
<message><source>flag: Madagascar</source><translation>דגל: מדגסקר</translation></message>
<message><source>flag: Malawi</source><translation>דגל: מלאווי</translation></message>
<message><source>flag: Malaysia</source><translation>דגל: מלזיה</translation></message>
<message><source>flag: Maldives</source><translation>דגל: האיים המלדיביים</translation></message>
<message><source>flag: Mali</source><translation>דגל: מאלי</translation></message>
<message><source>flag: Malta</source><translation>דגל: מלטה</translation></message>
<message><source>flag: Marshall Islands</source><translation>דגל: איי מרשל</translation></message>
<message><source>flag: Martinique</source><translation>דגל: מרטיניק</translation></message>
<message><source>flag: Mauritania</source><translation>דגל: מאוריטניה</translation></message>
<message><source>flag: Mauritius</source><translation>דגל: מאוריציוס</translation></message>
<message><source>flag: Mayotte</source><translation>דגל: מאיוט</translation></message>
<message><source>flag: Mexico</source><translation>דגל: מקסיקו</translation></message>
<message><source>flag: Micronesia</source><translation>דגל: מיקרונזיה</translation></message>
<message><source>flag: Moldova</source><translation>דגל: מולדובה</translation></message>
<message><source>flag: Monaco</source><translation>דגל: מונקו</translation></message>
<message><source>flag: Mongolia</source><translation>דגל: מונגוליה</translation></message>
<message><source>flag: Montenegro</source><translation>דגל: מונטנגרו</translation></message>
<message><source>flag: Montserrat</source><translation>דגל: מונסראט</translation></message>
<message><source>flag: Morocco</source><translation>דגל: מרוקו</translation></message>
<message><source>flag: Mozambique</source><translation>דגל: מוזמביק</translation></message>
<message><source>flag: Myanmar (Burma)</source><translation>דגל: מיאנמר (בורמה)</translation></message>
<message><source>flag: Namibia</source><translation>דגל: נמיביה</translation></message>
<message><source>flag: Nauru</source><translation>דגל: נאורו</translation></message>
<message><source>flag: Nepal</source><translation>דגל: נפאל</translation></message>
<message><source>flag: Netherlands</source><translation>דגל: הולנד</translation></message>
<message><source>flag: New Caledonia</source><translation>דגל: קלדוניה החדשה</translation></message>
<message><source>flag: New Zealand</source><translation>דגל: ניו זילנד</translation></message>
<message><source>flag: Nicaragua</source><translation>דגל: ניקרגואה</translation></message>
<message><source>flag: Niger</source><translation>דגל: ניז׳ר</translation></message>
<message><source>flag: Nigeria</source><translation>דגל: ניגריה</translation></message>
<message><source>flag: Niue</source><translation>דגל: ניווה</translation></message>
<message><source>flag: Norfolk Island</source><translation>דגל: האי נורפוק</translation></message>
<message><source>flag: North Korea</source><translation>דגל: קוריאה הצפונית</translation></message>
<message><source>flag: North Macedonia</source><translation>דגל: מקדוניה הצפונית</translation></message>
<message><source>flag: Northern Mariana Islands</source><translation>דגל: איי מריאנה הצפוניים</translation></message>
<message><source>flag: Norway</source><translation>דגל: נורווגיה</translation></message>
<message><source>flag: Oman</source><translation>דגל: עומאן</translation></message>
<message><source>flag: Pakistan</source><translation>דגל: פקיסטן</translation></message>
<message><source>flag: Palau</source><translation>דגל: פלאו</translation></message>
<message><source>flag: Palestinian Territories</source><translation>דגל: השטחים הפלסטיניים</translation></message>
<message><source>flag: Panama</source><translation>דגל: פנמה</translation></message>
<message><source>flag: Papua New Guinea</source><translation>דגל: פפואה גינאה החדשה</translation></message>
<message><source>flag: Paraguay</source><translation>דגל: פרגוואי</translation></message>
<message><source>flag: Peru</source><translation>דגל: פרו</translation></message>
<message><source>flag: Philippines</source><translation>דגל: הפיליפינים</translation></message>
<message><source>flag: Pitcairn Islands</source><translation>דגל: איי פיטקרן</translation></message>
<message><source>flag: Poland</source><translation>דגל: פולין</translation></message>
<message><source>flag: Portugal</source><translation>דגל: פורטוגל</translation></message>
<message><source>flag: Puerto Rico</source><translation>דגל: פוארטו ריקו</translation></message>
<message><source>flag: Qatar</source><translation>דגל: קטאר</translation></message>
<message><source>flag: Romania</source><translation>דגל: רומניה</translation></message>
<message><source>flag: Russia</source><translation>דגל: רוסיה</translation></message>
<message><source>flag: Rwanda</source><translation>דגל: רואנדה</translation></message>
<message><source>flag: Réunion</source><translation>דגל: ראוניון</translation></message>
<message><source>flag: Samoa</source><translation>דגל: סמואה</translation></message>
<message><source>flag: San Marino</source><translation>דגל: סן מרינו</translation></message>
<message><source>flag: Sark</source><translation>דגל: סרק</translation></message>
<message><source>flag: Saudi Arabia</source><translation>דגל: ערב הסעודית</translation></message>
<message><source>flag: Scotland</source><translation>דגל: סקוטלנד</translation></message>
<message><source>flag: Senegal</source><translation>דגל: סנגל</translation></message>
<message><source>flag: Serbia</source><translation>דגל: סרביה</translation></message>
<message><source>flag: Seychelles</source><translation>דגל: איי סיישל</translation></message>
<message><source>flag: Sierra Leone</source><translation>דגל: סיירה לאון</translation></message>
<message><source>flag: Singapore</source><translation>דגל: סינגפור</translation></message>
<message><source>flag: Sint Maarten</source><translation>דגל: סנט מארטן</translation></message>
<message><source>flag: Slovakia</source><translation>דגל: סלובקיה</translation></message>
<message><source>flag: Slovenia</source><translation>דגל: סלובניה</translation></message>
<message><source>flag: Solomon Islands</source><translation>דגל: איי שלמה</translation></message>
<message><source>flag: Somalia</source><translation>דגל: סומליה</translation></message>
<message><source>flag: South Africa</source><translation>דגל: דרום אפריקה</translation></message>
<message><source>flag: South Georgia &amp; South Sandwich Islands</source><translation>דגל: ג׳ורג׳יה הדרומית ואיי סנדוויץ׳ הדרומיים</translation></message>
<message><source>flag: South Korea</source><translation>דגל: קוריאה הדרומית</translation></message>
<message><source>flag: South Sudan</source><translation>דגל: דרום סודן</translation></message>
<message><source>flag: Spain</source><translation>דגל: ספרד</translation></message>
<message><source>flag: Sri Lanka</source><translation>דגל: סרי לנקה</translation></message>
<message><source>flag: St. Barthélemy</source><translation>דגל: סנט ברתולומיאו</translation></message>
<message><source>flag: St. Helena</source><translation>דגל: סנט הלנה</translation></message>
<message><source>flag: St. Kitts &amp; Nevis</source><translation>דגל: סנט קיטס ונוויס</translation></message>
<message><source>flag: St. Lucia</source><translation>דגל: סנט לוסיה</translation></message>
<message><source>flag: St. Martin</source><translation>דגל: סן מרטן</translation></message>
<message><source>flag: St. Pierre &amp; Miquelon</source><translation>דגל: סנט פייר ומיקלון</translation></message>
<message><source>flag: St. Vincent &amp; Grenadines</source><translation>דגל: סנט וינסנט והגרנדינים</translation></message>
<message><source>flag: Sudan</source><translation>דגל: סודן</translation></message>
<message><source>flag: Suriname</source><translation>דגל: סורינאם</translation></message>
<message><source>flag: Svalbard &amp; Jan Mayen</source><translation>דגל: סבאלברד ויאן מאיין</translation></message>
<message><source>flag: Sweden</source><translation>דגל: שוודיה</translation></message>
<message><source>flag: Switzerland</source><translation>דגל: שווייץ</translation></message>
<message><source>flag: Syria</source><translation>דגל: סוריה</translation></message>
<message><source>flag: São Tomé &amp; Príncipe</source><translation>דגל: סאו טומה ופרינסיפה</translation></message>
<message><source>flag: Taiwan</source><translation>דגל: טייוואן</translation></message>
<message><source>flag: Tajikistan</source><translation>דגל: טג׳יקיסטן</translation></message>
<message><source>flag: Tanzania</source><translation>דגל: טנזניה</translation></message>
<message><source>flag: Thailand</source><translation>דגל: תאילנד</translation></message>
<message><source>flag: Timor-Leste</source><translation>דגל: טימור-לסטה</translation></message>
<message><source>flag: Togo</source><translation>דגל: טוגו</translation></message>
<message><source>flag: Tokelau</source><translation>דגל: טוקלאו</translation></message>
<message><source>flag: Tonga</source><translation>דגל: טונגה</translation></message>
<message><source>flag: Trinidad &amp; Tobago</source><translation>דגל: טרינידד וטובגו</translation></message>
<message><source>flag: Tristan da Cunha</source><translation>דגל: טריסטן דה קונה</translation></message>
<message><source>flag: Tunisia</source><translation>דגל: תוניסיה</translation></message>
<message><source>flag: Turkmenistan</source><translation>דגל: טורקמניסטן</translation></message>
<message><source>flag: Turks &amp; Caicos Islands</source><translation>דגל: איי טרקס וקייקוס</translation></message>
<message><source>flag: Tuvalu</source><translation>דגל: טובאלו</translation></message>
<message><source>flag: Türkiye</source><translation>דגל: טורקיה</translation></message>
<message><source>flag: U.S. Outlying Islands</source><translation>דגל: האיים המרוחקים הקטנים של ארה״ב</translation></message>
<message><source>flag: U.S. Virgin Islands</source><translation>דגל: איי הבתולה של ארצות הברית</translation></message>
<message><source>flag: Uganda</source><translation>דגל: אוגנדה</translation></message>
<message><source>flag: Ukraine</source><translation>דגל: אוקראינה</translation></message>
<message><source>flag: United Arab Emirates</source><translation>דגל: איחוד האמירויות הערביות</translation></message>
<message><source>flag: United Kingdom</source><translation>דגל: בריטניה</translation></message>
<message><source>flag: United Nations</source><translation>דגל: האומות המאוחדות</translation></message>
<message><source>flag: United States</source><translation>דגל: ארצות הברית</translation></message>
<message><source>flag: Uruguay</source><translation>דגל: אורוגוואי</translation></message>
<message><source>flag: Uzbekistan</source><translation>דגל: אוזבקיסטן</translation></message>
<message><source>flag: Vanuatu</source><translation>דגל: ונואטו</translation></message>
<message><source>flag: Vatican City</source><translation>דגל: הוותיקן</translation></message>
<message><source>flag: Venezuela</source><translation>דגל: ונצואלה</translation></message>
<message><source>flag: Vietnam</source><translation>דגל: וייטנאם</translation></message>
<message><source>flag: Wales</source><translation>דגל: וויילס</translation></message>
<message><source>flag: Wallis &amp; Futuna</source><translation>דגל: איי ווליס ופוטונה</translation></message>
<message><source>flag: Western Sahara</source><translation>דגל: סהרה המערבית</translation></message>
<message><source>flag: Yemen</source><translation>דגל: תימן</translation></message>
<message><source>flag: Zambia</source><translation>דגל: זמביה</translation></message>
<message><source>flag: Zimbabwe</source><translation>דגל: זימבבואה</translation></message>
<message><source>flag: Åland Islands</source><translation>דגל: איי אולנד</translation></message>
<message><source>flamingo</source><translation>פלמינגו</translation></message>
<message><source>flashlight</source><translation>פנס</translation></message>
<message><source>flat shoe</source><translation>נעל שטוחה</translation></message>
<message><source>flatbread</source><translation>פיתה</translation></message>
<message><source>fleur-de-lis</source><translation>שושן צחור</translation></message>
<message><source>flexed biceps</source><translation>יד עושה שריר</translation></message>
<message><source>floppy disk</source><translation>דיסקט</translation></message>
<message><source>flower</source><translation>פרח</translation></message>
<message><source>flower playing cards</source><translation>קלפי פרחים</translation></message>
<message><source>flushed face</source><translation>פרצוף נדהם וסמוק</translation></message>
<message><source>flute</source><translation>חליל</translation></message>
<message><source>fly</source><translation>זבוב</translation></message>
<message><source>flying disc</source><translation>פריזבי</translation></message>
<message><source>flying saucer</source><translation>צלחת מעופפת</translation></message>
<message><source>fog</source><translation>ערפל</translation></message>
<message><source>foggy</source><translation>מזג אוויר ערפילי</translation></message>
<message><source>folded hands</source><translation>כפות ידיים מוצמדות</translation></message>
<message><source>folder</source><translation>תיקייה</translation></message>
<message><source>folding hand fan</source><translation>מניפת יד מתקפלת</translation></message>
<message><source>fondue</source><translation>פונדו</translation></message>
<message><source>foot</source><translation>כף רגל</translation></message>
<message><source>footprints</source><translation>טביעות רגל</translation></message>
<message><source>forbidden</source><translation>אסור</translation></message>
<message><source>fork</source><translation>מזלג</translation></message>
<message><source>fork and knife</source><translation>סכין ומזלג</translation></message>
<message><source>fork and knife with plate</source><translation>סכין ומזלג עם צלחת</translation></message>
<message><source>fortune cookie</source><translation>עוגיית מזל</translation></message>
<message><source>fountain</source><translation>מזרקה</translation></message>
<message><source>fountain pen</source><translation>עט נובע</translation></message>
<message><source>four leaf clover</source><translation>תלתן ארבעה עלים</translation></message>
<message><source>four o’clock</source><translation>ארבע</translation></message>
<message><source>four-thirty</source><translation>ארבע וחצי</translation></message>
<message><source>fox</source><translation>שועל</translation></message>
<message><source>framed picture</source><translation>מסגרת עם תמונה</translation></message>
<message><source>french fries</source><translation>צ׳יפס</translation></message>
<message><source>fried shrimp</source><translation>שרימפ מטוגן</translation></message>
<message><source>frog</source><translation>פני צפרדע</translation></message>
<message><source>front-facing baby chick</source><translation>אפרוח מלפנים</translation></message>
<message><source>frowning face</source><translation>פרצוף עצוב</translation></message>
<message><source>frowning face with open mouth</source><translation>פרצוף עצוב עם פה פתוח</translation></message>
<message><source>fruit</source><translation>פרי</translation></message>
<message><source>fuel pump</source><translation>משאבת דלק</translation></message>
<message><source>full moon</source><translation>ירח מלא</translation></message>
<message><source>full moon face</source><translation>פני ירח מלא</translation></message>
<message><source>funeral urn</source><translation>כד אפר</translation></message>
<message><source>game</source><translation>משחק</translation></message>
<message><source>game die</source><translation>קוביית משחק</translation></message>
<message><source>garlic</source><translation>שום</translation></message>
<message><source>gear</source><translation>גלגל שיניים</translation></message>
<message><source>gem stone</source><translation>יהלום</translation></message>
<message><source>genie</source><translation>שד</translation></message>
<message><source>geometric</source><translation>צורה</translation></message>
<message><source>ghost</source><translation>רוח רפאים</translation></message>
<message><source>ginger root</source><translation>שורש ג׳ינג׳ר</translation></message>
<message><source>giraffe</source><translation>ג׳ירף</translation></message>
<message><source>girl</source><translation>בת</translation></message>
<message><source>glass of milk</source><translation>כוס חלב</translation></message>
<message><source>glasses</source><translation>משקפיים</translation></message>
<message><source>globe showing Americas</source><translation>גלובוס עם אמריקה</translation></message>
<message><source>globe showing Asia-Australia</source><translation>גלובוס עם אסיה ואוסטרליה</translation></message>
<message><source>globe showing Europe-Africa</source><translation>גלובוס עם אירופה ואפריקה</translation></message>
<message><source>globe with meridians</source><translation>גלובוס עם קווי אורך ורוחב</translation></message>
<message><source>gloves</source><translation>כפפות</translation></message>
<message><source>glowing star</source><translation>כוכב זוהר</translation></message>
<message><source>goal net</source><translation>שער כדורגל</translation></message>
<message><source>goat</source><translation>תיש</translation></message>
<message><source>goblin</source><translation>גובלין</translation></message>
<message><source>goggles</source><translation>משקפי שחייה</translation></message>
<message><source>goose</source><translation>אווז</translation></message>
<message><source>gorilla</source><translation>גורילה</translation></message>
<message><source>graduation cap</source><translation>כובע סיום לימודים</translation></message>
<message><source>grapes</source><translation>ענבים</translation></message>
<message><source>green</source><translation>ירוק</translation></message>
<message><source>green apple</source><translation>תפוח ירוק</translation></message>
<message><source>green book</source><translation>ספר ירוק</translation></message>
<message><source>green circle</source><translation>עיגול ירוק</translation></message>
<message><source>green heart</source><translation>לב ירוק</translation></message>
<message><source>green salad</source><translation>סלט ירקות</translation></message>
<message><source>green square</source><translation>ריבוע ירוק</translation></message>
<message><source>grey heart</source><translation>לב אפור</translation></message>
<message><source>grimacing face</source><translation>פרצוף חושף שיניים</translation></message>
<message><source>grin</source><translation>פנים מחייכות</translation></message>
<message><source>grinning cat</source><translation>חתול מחייך</translation></message>
<message><source>grinning cat with smiling eyes</source><translation>חתול מחייך עם עיניים מחייכות</translation></message>
<message><source>grinning face</source><translation>חיוך רחב</translation></message>
<message><source>grinning face with big eyes</source><translation>פרצוף עם חיוך רחב ועיניים גדולות</translation></message>
<message><source>grinning face with smiling eyes</source><translation>פרצוף מחייך עם פה פתוח ועיניים מחייכות</translation></message>
<message><source>grinning face with sweat</source><translation>פרצוף מחייך עם טיפת זיעה</translation></message>
<message><source>grinning squinting face</source><translation>פרצוף מחייך בפה פתוח ועיניים עצומות</translation></message>
<message><source>growing heart</source><translation>לב גדל</translation></message>
<message><source>guard</source><translation>שומר</translation></message>
<message><source>guide dog</source><translation>כלב נחייה</translation></message>
<message><source>guitar</source><translation>גיטרה</translation></message>
<message><source>haha</source><translation>חחח</translation></message>
<message><source>hair pick</source><translation>מסרק שיער</translation></message>
<message><source>halloween</source><translation>האלווין</translation></message>
<message><source>hamburger</source><translation>המבורגר</translation></message>
<message><source>hammer</source><translation>פטיש</translation></message>
<message><source>hammer and pick</source><translation>פטיש ומכוש</translation></message>
<message><source>hammer and wrench</source><translation>פטיש ומפתח ברגים</translation></message>
<message><source>hamsa</source><translation>חמסה</translation></message>
<message><source>hamster</source><translation>אוגר</translation></message>
<message><source>hand</source><translation>יד</translation></message>
<message><source>hand with fingers splayed</source><translation>כף יד פתוחה מורמת</translation></message>
<message><source>hand with index finger and thumb crossed</source><translation>קליק באצבעות</translation></message>
<message><source>handbag</source><translation>תיק יד</translation></message>
<message><source>handshake</source><translation>לחיצת יד</translation></message>
<message><source>harp</source><translation>נבל</translation></message>
<message><source>hat</source><translation>כובע</translation></message>
<message><source>hatching chick</source><translation>אפרוח בוקע</translation></message>
<message><source>head shaking horizontally</source><translation>מנענע ראש מצד לצד</translation></message>
<message><source>head shaking vertically</source><translation>מנענע ראש מלמעלה למטה</translation></message>
<message><source>headphone</source><translation>אוזניה</translation></message>
<message><source>headstone</source><translation>מצבה</translation></message>
<message><source>health worker</source><translation>עובד בשירותי הבריאות</translation></message>
<message><source>hear-no-evil monkey</source><translation>לא שמעתי</translation></message>
<message><source>heart</source><translation>לב</translation></message>
<message><source>heart decoration</source><translation>לב בריבוע ורוד</translation></message>
<message><source>heart exclamation</source><translation>סימן קריאה בצורת לב</translation></message>
<message><source>heart hands</source><translation>סימן לב עם הידיים</translation></message>
<message><source>heart on fire</source><translation>לב בלהבות</translation></message>
<message><source>heart suit</source><translation>קלף לב</translation></message>
<message><source>heart with arrow</source><translation>לב עם חץ</translation></message>
<message><source>heart with ribbon</source><translation>לב עם סרט מתנה</translation></message>
<message><source>hearts</source><translation>לבבות</translation></message>
<message><source>heavy dollar sign</source><translation>סימן דולר</translation></message>
<message><source>heavy equals sign</source><translation>סימן שווה עבה</translation></message>
<message><source>hedgehog</source><translation>קיפוד</translation></message>
<message><source>helicopter</source><translation>מסוק</translation></message>
<message><source>herb</source><translation>צמח תבלין</translation></message>
<message><source>hibiscus</source><translation>היביסקוס</translation></message>
<message><source>high voltage</source><translation>ברק</translation></message>
<message><source>high-heeled shoe</source><translation>נעל עקב גבוה</translation></message>
<message><source>high-speed train</source><translation>רכבת מהירה</translation></message>
<message><source>hiking boot</source><translation>נעלי הליכה</translation></message>
<message><source>hindu temple</source><translation>מקדש הינדי</translation></message>
<message><source>hippopotamus</source><translation>היפופוטם</translation></message>
<message><source>hockey</source><translation>הוקי</translation></message>
<message><source>hole</source><translation>חור</translation></message>
<message><source>hollow red circle</source><translation>עיגול אדום חלול</translation></message>
<message><source>honey pot</source><translation>צנצנת דבש</translation></message>
<message><source>honeybee</source><translation>דבורה</translation></message>
<message><source>hook</source><translation>קרס</translation></message>
<message><source>horizontal traffic light</source><translation>רמזור אופקי</translation></message>
<message><source>horoscope</source><translation>מזל</translation></message>
<message><source>horse</source><translation>סוס</translation></message>
<message><source>horse face</source><translation>פני סוס</translation></message>
<message><source>horse racing</source><translation>מירוצי סוסים</translation></message>
<message><source>hospital</source><translation>בית חולים</translation></message>
<message><source>hot beverage</source><translation>משקה חם</translation></message>
<message><source>hot dog</source><translation>נקניקייה בלחמניה</translation></message>
<message><source>hot face</source><translation>מת מחום</translation></message>
<message><source>hot pepper</source><translation>פלפל חריף</translation></message>
<message><source>hot springs</source><translation>מעיינות חמים</translation></message>
<message><source>hotel</source><translation>בית מלון</translation></message>
<message><source>hourglass done</source><translation>שעון חול</translation></message>
<message><source>hourglass not done</source><translation>חול זורם בשעון חול</translation></message>
<message><source>house</source><translation>בית</translation></message>
<message><source>house with garden</source><translation>בית עם גינה</translation></message>
<message><source>houses</source><translation>בתים</translation></message>
<message><source>hug</source><translation>חיבוק</translation></message>
<message><source>hundred points</source><translation>ציון 100</translation></message>
<message><source>hushed face</source><translation>פרצוף מופתע</translation></message>
<message><source>hut</source><translation>בקתה</translation></message>
<message><source>hyacinth</source><translation>יקינתון</translation></message>
<message><source>ice</source><translation>קוביית קרח</translation></message>
<message><source>ice cream</source><translation>גלידה</translation></message>
<message><source>ice hockey</source><translation>מקל ודיסקית של הוקי קרח</translation></message>
<message><source>ice skate</source><translation>נעל החלקה על קרח</translation></message>
<message><source>idea</source><translation>רעיון</translation></message>
<message><source>identification card</source><translation>תעודת זהות</translation></message>
<message><source>identity</source><translation>זהות</translation></message>
<message><source>ideograph</source><translation>לוגו</translation></message>
<message><source>inbox tray</source><translation>מגש דואר נכנס</translation></message>
<message><source>incoming envelope</source><translation>מעטפה נכנסת</translation></message>
<message><source>index pointing at the viewer</source><translation>אצבע מצביעה</translation></message>
<message><source>index pointing up</source><translation>יד מצביעה למעלה</translation></message>
<message><source>infinity</source><translation>אינסוף</translation></message>
<message><source>information</source><translation>סמל מידע</translation></message>
<message><source>input</source><translation>קלט</translation></message>
<message><source>input latin letters</source><translation>לחצן אותיות לטיניות</translation></message>
<message><source>input latin lowercase</source><translation>לחצן אותיות קטנות</translation></message>
<message><source>input latin uppercase</source><translation>לחצן אותיות גדולות</translation></message>
<message><source>input numbers</source><translation>לחצן מספרים</translation></message>
<message><source>input symbols</source><translation>לחצן סמלים</translation></message>
<message><source>insect</source><translation>חרק</translation></message>
<message><source>instrument</source><translation>כלי נגינה</translation></message>
<message><source>irish</source><translation>אירלנד</translation></message>
<message><source>jack-o-lantern</source><translation>מנורת דלעת</translation></message>
<message><source>jar</source><translation>צנצנת</translation></message>
<message><source>jeans</source><translation>מכנסי ג׳ינס</translation></message>
<message><source>jellyfish</source><translation>מדוזה</translation></message>
<message><source>joker</source><translation>ג׳וקר</translation></message>
<message><source>joy</source><translation>מצחיק</translation></message>
<message><source>joystick</source><translation>ג׳ויסטיק</translation></message>
<message><source>judge</source><translation>שופט/ת</translation></message>
<message><source>kaaba</source><translation>כעבה</translation></message>
<message><source>kangaroo</source><translation>קנגורו</translation></message>
<message><source>katakana</source><translation>קטאקאנה</translation></message>
<message><source>key</source><translation>מפתח</translation></message>
<message><source>keyboard</source><translation>מקלדת</translation></message>
<message><source>keycap</source><translation>מקש</translation></message>
<message><source>keycap: #</source><translation>מקש: #</translation></message>
<message><source>keycap: *</source><translation>מקש: *</translation></message>
<message><source>keycap: 0</source><translation>מקש: 0</translation></message>
<message><source>keycap: 1</source><translation>מקש: 1</translation></message>
<message><source>keycap: 10</source><translation>מקש: 10</translation></message>
<message><source>keycap: 2</source><translation>מקש: 2</translation></message>
<message><source>keycap: 3</source><translation>מקש: 3</translation></message>
<message><source>keycap: 4</source><translation>מקש: 4</translation></message>
<message><source>keycap: 5</source><translation>מקש: 5</translation></message>
<message><source>keycap: 6</source><translation>מקש: 6</translation></message>
<message><source>keycap: 7</source><translation>מקש: 7</translation></message>
<message><source>keycap: 8</source><translation>מקש: 8</translation></message>
<message><source>keycap: 9</source><translation>מקש: 9</translation></message>
<message><source>khanda</source><translation>סמל סיקי</translation></message>
<message><source>kick scooter</source><translation>קורקינט</translation></message>
<message><source>kimono</source><translation>קימונו</translation></message>
<message><source>kiss</source><translation>נשיקה</translation></message>
<message><source>kiss mark</source><translation>סימן נשיקה</translation></message>
<message><source>kiss: man, man</source><translation>נשיקה: איש, איש</translation></message>
<message><source>kiss: woman, man</source><translation>נשיקה: אישה, איש</translation></message>
<message><source>kiss: woman, woman</source><translation>נשיקה: אישה, אישה</translation></message>
<message><source>kissing</source><translation>מנשק</translation></message>
<message><source>kissing cat</source><translation>חתול מנשק</translation></message>
<message><source>kissing face</source><translation>פרצוף מנשק</translation></message>
<message><source>kissing face with closed eyes</source><translation>פרצוף מנשק עם עיניים סגורות</translation></message>
<message><source>kissing face with smiling eyes</source><translation>פרצוף מנשק עם עיניים מחייכות</translation></message>
<message><source>kitchen knife</source><translation>סכין מטבח</translation></message>
<message><source>kite</source><translation>עפיפון</translation></message>
<message><source>kiwi fruit</source><translation>קיווי</translation></message>
<message><source>knife</source><translation>סכין</translation></message>
<message><source>knot</source><translation>קשר</translation></message>
<message><source>koala</source><translation>קואלה</translation></message>
<message><source>lab</source><translation>מעבדה</translation></message>
<message><source>lab coat</source><translation>חלוק מעבדה</translation></message>
<message><source>label</source><translation>תווית</translation></message>
<message><source>lacrosse</source><translation>לקרוס</translation></message>
<message><source>ladder</source><translation>סולם</translation></message>
<message><source>lady</source><translation>תספורת</translation></message>
<message><source>lady beetle</source><translation>פרת משה רבנו</translation></message>
<message><source>laptop</source><translation>מחשב נייד</translation></message>
<message><source>large blue diamond</source><translation>מעוין כחול גדול</translation></message>
<message><source>large orange diamond</source><translation>מעוין כתום גדול</translation></message>
<message><source>last quarter moon</source><translation>חצי ירח מתרוקן</translation></message>
<message><source>last quarter moon face</source><translation>פני סהר מתרוקן</translation></message>
<message><source>last track button</source><translation>לחצן מעבר לשיר הקודם</translation></message>
<message><source>latin cross</source><translation>צלב</translation></message>
<message><source>leaf fluttering in wind</source><translation>עלה עף ברוח</translation></message>
<message><source>leafless tree</source><translation>עץ בלי עלים</translation></message>
<message><source>leafy green</source><translation>עלים ירוקים</translation></message>
<message><source>ledger</source><translation>יומן</translation></message>
<message><source>left arrow</source><translation>חץ שמאלה</translation></message>
<message><source>left arrow curving right</source><translation>חץ שמאלה מתעקל ימינה</translation></message>
<message><source>left luggage</source><translation>שלט אחסון כבודה</translation></message>
<message><source>left speech bubble</source><translation>בועת דיבור משמאל</translation></message>
<message><source>left-facing fist</source><translation>יד קמוצה שמאלה</translation></message>
<message><source>left-right arrow</source><translation>חץ שמאלה וימינה</translation></message>
<message><source>leftwards hand</source><translation>יד פונה שמאלה</translation></message>
<message><source>leftwards pushing hand</source><translation>יד דוחפת שמאלה</translation></message>
<message><source>leg</source><translation>רגל</translation></message>
<message><source>lemon</source><translation>לימון</translation></message>
<message><source>leopard</source><translation>נמר</translation></message>
<message><source>letter</source><translation>מכתב</translation></message>
<message><source>letters</source><translation>לטינית</translation></message>
<message><source>level slider</source><translation>מחוון עוצמת קול</translation></message>
<message><source>light blue heart</source><translation>לב תכלת</translation></message>
<message><source>light bulb</source><translation>נורה</translation></message>
<message><source>light rail</source><translation>רכבת קלה</translation></message>
<message><source>light skin tone</source><translation>גוון עור בהיר</translation></message>
<message><source>lightning</source><translation>ברק</translation></message>
<message><source>lime</source><translation>ליים</translation></message>
<message><source>link</source><translation>חוליות משולבות</translation></message>
<message><source>linked paperclips</source><translation>אטבי נייר מחוברים</translation></message>
<message><source>lion</source><translation>אריה</translation></message>
<message><source>lips</source><translation>שפתיים</translation></message>
<message><source>lipstick</source><translation>שפתון</translation></message>
<message><source>litter</source><translation>פסולת</translation></message>
<message><source>litter in bin sign</source><translation>שלט פסולת לפח</translation></message>
<message><source>lizard</source><translation>לטאה</translation></message>
<message><source>llama</source><translation>למה</translation></message>
<message><source>lobster</source><translation>לובסטר</translation></message>
<message><source>lock</source><translation>מנעול</translation></message>
<message><source>locked</source><translation>מנעול</translation></message>
<message><source>locked with key</source><translation>מנעול סגור עם מפתח</translation></message>
<message><source>locked with pen</source><translation>מנעול עם עט</translation></message>
<message><source>locomotive</source><translation>קטר</translation></message>
<message><source>lollipop</source><translation>סוכריה על מקל</translation></message>
<message><source>long drum</source><translation>תוף גבוה</translation></message>
<message><source>lotion bottle</source><translation>קרם לחות</translation></message>
<message><source>lotus</source><translation>לוטוס</translation></message>
<message><source>loudly crying face</source><translation>פרצוף בוכה בקול</translation></message>
<message><source>loudspeaker</source><translation>מגפון</translation></message>
<message><source>love</source><translation>אהבה</translation></message>
<message><source>love hotel</source><translation>מלון אהבה</translation></message>
<message><source>love letter</source><translation>מכתב אהבה</translation></message>
<message><source>love-you gesture</source><translation>בוהן, אצבע וזרת מורמות</translation></message>
<message><source>low battery</source><translation>סוללה נמוכה</translation></message>
<message><source>luggage</source><translation>מזוודה</translation></message>
<message><source>lungs</source><translation>ריאות</translation></message>
<message><source>lying face</source><translation>פרצוף עם אף פינוקיו</translation></message>
<message><source>mad</source><translation>כועס</translation></message>
<message><source>mage</source><translation>קוסם</translation></message>
<message><source>magic</source><translation>קוסם</translation></message>
<message><source>magic wand</source><translation>שרביט קסמים</translation></message>
<message><source>magnet</source><translation>מגנט</translation></message>
<message><source>magnetic</source><translation>מגנטי</translation></message>
<message><source>magnifying glass tilted left</source><translation>זכוכית מגדלת נוטה שמאלה</translation></message>
<message><source>magnifying glass tilted right</source><translation>זכוכית מגדלת נוטה ימינה</translation></message>
<message><source>mahjong red dragon</source><translation>דרקון אדום מה-ג׳ונג</translation></message>
<message><source>mail</source><translation>דואר</translation></message>
<message><source>male sign</source><translation>סמל גבר</translation></message>
<message><source>mammoth</source><translation>ממותה</translation></message>
<message><source>man</source><translation>איש</translation></message>
<message><source>man artist</source><translation>אמן</translation></message>
<message><source>man astronaut</source><translation>אסטרונאוט</translation></message>
<message><source>man biking</source><translation>גבר רוכב על אופניים</translation></message>
<message><source>man bouncing ball</source><translation>גבר מקפיץ כדור</translation></message>
<message><source>man bowing</source><translation>גבר משתחווה</translation></message>
<message><source>man cartwheeling</source><translation>גבר מבצע גלגלון</translation></message>
<message><source>man climbing</source><translation>איש מטפס</translation></message>
<message><source>man construction worker</source><translation>בנאי</translation></message>
<message><source>man cook</source><translation>טבח</translation></message>
<message><source>man dancing</source><translation>איש רוקד</translation></message>
<message><source>man detective</source><translation>חוקר פרטי</translation></message>
<message><source>man elf</source><translation>אלף בן</translation></message>
<message><source>man facepalming</source><translation>גבר מתוסכל</translation></message>
<message><source>man factory worker</source><translation>פועל</translation></message>
<message><source>man fairy</source><translation>פיה בן</translation></message>
<message><source>man farmer</source><translation>חקלאי</translation></message>
<message><source>man feeding baby</source><translation>איש מניק תינוק</translation></message>
<message><source>man firefighter</source><translation>לוחם אש</translation></message>
<message><source>man frowning</source><translation>גבר מדוכדך</translation></message>
<message><source>man genie</source><translation>דמון</translation></message>
<message><source>man gesturing NO</source><translation>גבר מסמן ״לא״</translation></message>
<message><source>man gesturing OK</source><translation>גבר עם הידיים על הראש</translation></message>
<message><source>man getting haircut</source><translation>גבר מסתפר</translation></message>
<message><source>man getting massage</source><translation>גבר מקבל עיסוי פנים</translation></message>
<message><source>man golfing</source><translation>גבר משחק גולף</translation></message>
<message><source>man guard</source><translation>מאבטח</translation></message>
<message><source>man health worker</source><translation>רופא</translation></message>
<message><source>man in lotus position</source><translation>איש בתנוחת לוטוס</translation></message>
<message><source>man in manual wheelchair</source><translation>איש בכסא גלגלים ידני</translation></message>
<message><source>man in manual wheelchair: facing right</source><translation>איש בכסא גלגלים ידני: פונה ימינה</translation></message>
<message><source>man in motorized wheelchair</source><translation>איש בכסא גלגלים ממונע</translation></message>
<message><source>man in motorized wheelchair: facing right</source><translation>איש בכסא גלגלים ממונע: פונה ימינה</translation></message>
<message><source>man in steamy room</source><translation>גבר בסאונה</translation></message>
<message><source>man in tuxedo</source><translation>גבר בטוקסידו</translation></message>
<message><source>man judge</source><translation>שופט</translation></message>
<message><source>man juggling</source><translation>גבר עושה ג׳גלינג</translation></message>
<message><source>man kneeling</source><translation>איש כורע ברך</translation></message>
<message><source>man kneeling: facing right</source><translation>איש כורע ברך: פונה ימינה</translation></message>
<message><source>man lifting weights</source><translation>גבר מרים משקולות</translation></message>
<message><source>man mage</source><translation>קוסם עם זקן</translation></message>
<message><source>man mechanic</source><translation>מכונאי</translation></message>
<message><source>man mountain biking</source><translation>גבר רוכב על אופני הרים</translation></message>
<message><source>man office worker</source><translation>עובד משרד</translation></message>
<message><source>man pilot</source><translation>טייס</translation></message>
<message><source>man playing handball</source><translation>גבר משחק כדוריד</translation></message>
<message><source>man playing water polo</source><translation>גבר משחק כדור-מים</translation></message>
<message><source>man police officer</source><translation>קצין משטרה</translation></message>
<message><source>man pouting</source><translation>גבר מבואס</translation></message>
<message><source>man raising hand</source><translation>גבר מרים את היד</translation></message>
<message><source>man rowing boat</source><translation>גבר חותר בסירה</translation></message>
<message><source>man running</source><translation>גבר רץ</translation></message>
<message><source>man running: facing right</source><translation>גבר רץ: פונה ימינה</translation></message>
<message><source>man scientist</source><translation>מדען</translation></message>
<message><source>man shrugging</source><translation>גבר מושך בכתפיו</translation></message>
<message><source>man singer</source><translation>זמר</translation></message>
<message><source>man standing</source><translation>איש עומד</translation></message>
<message><source>man student</source><translation>סטודנט</translation></message>
<message><source>man superhero</source><translation>סופרמן</translation></message>
<message><source>man supervillain</source><translation>רשע בעל כוחות על</translation></message>
<message><source>man surfing</source><translation>גבר גולש</translation></message>
<message><source>man swimming</source><translation>גבר שוחה</translation></message>
<message><source>man teacher</source><translation>מורה</translation></message>
<message><source>man technologist</source><translation>טכנולוג</translation></message>
<message><source>man tipping hand</source><translation>איש בדלפק מידע או מבקש טיפ</translation></message>
<message><source>man vampire</source><translation>ערפד בן</translation></message>
<message><source>man walking</source><translation>גבר הולך</translation></message>
<message><source>man walking: facing right</source><translation>גבר הולך: פונה ימינה</translation></message>
<message><source>man wearing turban</source><translation>גבר עם טורבן</translation></message>
<message><source>man with veil</source><translation>איש עם הינומה</translation></message>
<message><source>man with white cane</source><translation>איש עם מקל נחייה</translation></message>
<message><source>man with white cane: facing right</source><translation>איש עם מקל נחייה: פונה ימינה</translation></message>
<message><source>man zombie</source><translation>זומבי גבר</translation></message>
<message><source>man: bald</source><translation>איש: קירח</translation></message>
<message><source>man: beard</source><translation>גבר עם זקן</translation></message>
<message><source>man: blond hair</source><translation>בלונדיני</translation></message>
<message><source>man: curly hair</source><translation>איש: שיער מתולתל</translation></message>
<message><source>man: red hair</source><translation>איש: שיער ג׳ינג׳י</translation></message>
<message><source>man: white hair</source><translation>איש: שיער לבן</translation></message>
<message><source>mango</source><translation>מנגו</translation></message>
<message><source>mantelpiece clock</source><translation>שעון דקורטיבי</translation></message>
<message><source>manual wheelchair</source><translation>כסא גלגלים ידני</translation></message>
<message><source>man’s shoe</source><translation>נעל של גבר</translation></message>
<message><source>map of Japan</source><translation>מפת יפן</translation></message>
<message><source>maple leaf</source><translation>עלה מייפל</translation></message>
<message><source>maracas</source><translation>מאראקס</translation></message>
<message><source>marsupial</source><translation>חיית כיס</translation></message>
<message><source>martial arts uniform</source><translation>חליפת אומנויות לחימה</translation></message>
<message><source>mate</source><translation>מאטה</translation></message>
<message><source>math</source><translation>מתמטיקה</translation></message>
<message><source>meat on bone</source><translation>בשר על עצם</translation></message>
<message><source>mechanic</source><translation>מכונאי/ת</translation></message>
<message><source>mechanical arm</source><translation>זרוע מכנית</translation></message>
<message><source>mechanical leg</source><translation>רגל מכנית</translation></message>
<message><source>medical symbol</source><translation>סמל הרפואה</translation></message>
<message><source>medicine</source><translation>רפואה</translation></message>
<message><source>meditation</source><translation>מדיטציה</translation></message>
<message><source>medium skin tone</source><translation>גוון עור בינוני</translation></message>
<message><source>medium-dark skin tone</source><translation>גוון עור כהה בינוני</translation></message>
<message><source>medium-light skin tone</source><translation>גוון עור בהיר בינוני</translation></message>
<message><source>megaphone</source><translation>מגפון בלי ידית</translation></message>
<message><source>melon</source><translation>מלון</translation></message>
<message><source>melting face</source><translation>פרצוף נמס</translation></message>
<message><source>memo</source><translation>פתק תזכורת</translation></message>
<message><source>men holding hands</source><translation>שני גברים מחזיקים ידיים</translation></message>
<message><source>men with bunny ears</source><translation>גברים עם אוזני ארנב רוקדים</translation></message>
<message><source>men wrestling</source><translation>גברים מתאבקים</translation></message>
<message><source>mending heart</source><translation>לב שמשתקם</translation></message>
<message><source>menorah</source><translation>חנוכיה</translation></message>
<message><source>men’s room</source><translation>שלט שירותי גברים</translation></message>
<message><source>mermaid</source><translation>בת הים</translation></message>
<message><source>merman</source><translation>בן ים</translation></message>
<message><source>merperson</source><translation>בתולת ים</translation></message>
<message><source>metro</source><translation>רכבת תחתית</translation></message>
<message><source>mexican</source><translation>מקסיקני</translation></message>
<message><source>microbe</source><translation>מיקרוב</translation></message>
<message><source>microphone</source><translation>מיקרופון</translation></message>
<message><source>microscope</source><translation>מיקרוסקופ</translation></message>
<message><source>middle finger</source><translation>אצבע משולשת</translation></message>
<message><source>military helmet</source><translation>קסדה צבאית</translation></message>
<message><source>military medal</source><translation>מדליה צבאית</translation></message>
<message><source>milk</source><translation>חלב</translation></message>
<message><source>milky way</source><translation>שביל החלב</translation></message>
<message><source>minibus</source><translation>מיניבוס</translation></message>
<message><source>minus</source><translation>סימן חיסור</translation></message>
<message><source>mirror</source><translation>מראה</translation></message>
<message><source>mirror ball</source><translation>כדור מראה</translation></message>
<message><source>moai</source><translation>פסל מאיי הפסחא</translation></message>
<message><source>mobile phone</source><translation>טלפון נייד</translation></message>
<message><source>mobile phone off</source><translation>נייד כבוי</translation></message>
<message><source>mobile phone with arrow</source><translation>טלפון נייד עם חץ</translation></message>
<message><source>money</source><translation>כסף</translation></message>
<message><source>money bag</source><translation>שק כסף</translation></message>
<message><source>money with wings</source><translation>כסף עם כנפיים</translation></message>
<message><source>money-mouth face</source><translation>פרצוף עם סימני דולר בעיניים ובלשון</translation></message>
<message><source>monkey</source><translation>קוף</translation></message>
<message><source>monkey face</source><translation>פני קוף</translation></message>
<message><source>monorail</source><translation>רכבת עילית</translation></message>
<message><source>monster</source><translation>יצור</translation></message>
<message><source>moon</source><translation>ירח</translation></message>
<message><source>moon cake</source><translation>עוגת ירח סינית</translation></message>
<message><source>moon viewing ceremony</source><translation>טקס ירח</translation></message>
<message><source>moose</source><translation>אייל קורא</translation></message>
<message><source>mosque</source><translation>מסגד</translation></message>
<message><source>mosquito</source><translation>יתוש</translation></message>
<message><source>motor boat</source><translation>סירת מנוע</translation></message>
<message><source>motor scooter</source><translation>קטנוע</translation></message>
<message><source>motorcycle</source><translation>אופנוע</translation></message>
<message><source>motorized wheelchair</source><translation>כסא גלגלים ממונע</translation></message>
<message><source>motorway</source><translation>כביש מהיר</translation></message>
<message><source>mount fuji</source><translation>הר פוג׳י</translation></message>
<message><source>mountain</source><translation>הר</translation></message>
<message><source>mountain cableway</source><translation>קרון רכבל</translation></message>
<message><source>mountain railway</source><translation>רכבת בהרים</translation></message>
<message><source>mouse</source><translation>עכבר</translation></message>
<message><source>mouse face</source><translation>פני עכבר</translation></message>
<message><source>mouse trap</source><translation>מלכודת עכברים</translation></message>
<message><source>mouth</source><translation>פה</translation></message>
<message><source>movie</source><translation>קולנוע</translation></message>
<message><source>movie camera</source><translation>מצלמת קולנוע</translation></message>
<message><source>multiply</source><translation>סימן כפל</translation></message>
<message><source>mushroom</source><translation>פטריה</translation></message>
<message><source>music</source><translation>מוזיקה</translation></message>
<message><source>musical</source><translation>תווים</translation></message>
<message><source>musical keyboard</source><translation>קלידים</translation></message>
<message><source>musical note</source><translation>תו מוזיקלי</translation></message>
<message><source>musical notes</source><translation>תווים מוזיקליים</translation></message>
<message><source>musical score</source><translation>מפתח סול</translation></message>
<message><source>muted speaker</source><translation>רמקול מושתק</translation></message>
<message><source>mwah</source><translation>טו באב</translation></message>
<message><source>nail polish</source><translation>מריחת לק</translation></message>
<message><source>name badge</source><translation>תג שם</translation></message>
<message><source>national park</source><translation>שמורת טבע</translation></message>
<message><source>nauseated face</source><translation>פרצוף סובל מבחילה</translation></message>
<message><source>nazar amulet</source><translation>קמע</translation></message>
<message><source>necktie</source><translation>חולצה עם עניבה</translation></message>
<message><source>needle</source><translation>מחט</translation></message>
<message><source>nerd face</source><translation>פרצוף של חנון</translation></message>
<message><source>nest with eggs</source><translation>קן עם ביצים</translation></message>
<message><source>nesting dolls</source><translation>בבושקה</translation></message>
<message><source>neutral face</source><translation>פרצוף חסר הבעה</translation></message>
<message><source>new moon</source><translation>ירח חדש</translation></message>
<message><source>new moon face</source><translation>פני ירח חדש</translation></message>
<message><source>newspaper</source><translation>עיתון</translation></message>
<message><source>next track button</source><translation>לחצן מעבר לשיר הבא</translation></message>
<message><source>night with stars</source><translation>לילה עם כוכבים</translation></message>
<message><source>nine o’clock</source><translation>תשע</translation></message>
<message><source>nine-thirty</source><translation>תשע וחצי</translation></message>
<message><source>ninja</source><translation>נינג׳ה</translation></message>
<message><source>no bicycles</source><translation>אין כניסה לאופניים</translation></message>
<message><source>no entry</source><translation>אין כניסה</translation></message>
<message><source>no littering</source><translation>אין להשליך פסולת</translation></message>
<message><source>no mobile phones</source><translation>אין להשתמש במכשירים ניידים</translation></message>
<message><source>no one under eighteen</source><translation>מגיל שמונה-עשרה בלבד</translation></message>
<message><source>no pedestrians</source><translation>אין כניסה להולכי רגל</translation></message>
<message><source>no smoking</source><translation>אסור לעשן</translation></message>
<message><source>non-potable water</source><translation>אין לשתות את המים</translation></message>
<message><source>nose</source><translation>אף</translation></message>
<message><source>note</source><translation>שטר</translation></message>
<message><source>notebook</source><translation>מחברת</translation></message>
<message><source>notebook with decorative cover</source><translation>מחברת עם כריכה מעוטרת</translation></message>
<message><source>nut and bolt</source><translation>בורג ואום</translation></message>
<message><source>octopus</source><translation>תמנון</translation></message>
<message><source>oden</source><translation>שיפוד</translation></message>
<message><source>office building</source><translation>בניין משרדים</translation></message>
<message><source>office worker</source><translation>עובד/ת משרד</translation></message>
<message><source>ogre</source><translation>מפלצת</translation></message>
<message><source>oil drum</source><translation>חבית נפט</translation></message>
<message><source>old key</source><translation>מפתח ישן</translation></message>
<message><source>old man</source><translation>איש זקן</translation></message>
<message><source>old woman</source><translation>אישה זקנה</translation></message>
<message><source>older person</source><translation>איש מבוגר</translation></message>
<message><source>olive</source><translation>זית</translation></message>
<message><source>om</source><translation>אום</translation></message>
<message><source>oncoming automobile</source><translation>מכונית מלפנים</translation></message>
<message><source>oncoming bus</source><translation>אוטובוס מלפנים</translation></message>
<message><source>oncoming fist</source><translation>מכת אגרוף</translation></message>
<message><source>oncoming police car</source><translation>ניידת משטרה מלפנים</translation></message>
<message><source>oncoming taxi</source><translation>מונית מלפנים</translation></message>
<message><source>one o’clock</source><translation>אחת</translation></message>
<message><source>one-piece swimsuit</source><translation>בגד ים שלם</translation></message>
<message><source>one-thirty</source><translation>אחת וחצי</translation></message>
<message><source>onion</source><translation>בצל</translation></message>
<message><source>open book</source><translation>ספר פתוח</translation></message>
<message><source>open file folder</source><translation>תיקיית מסמכים פתוחה</translation></message>
<message><source>open hands</source><translation>כפות ידיים פתוחות</translation></message>
<message><source>open mailbox with lowered flag</source><translation>תיבת דואר פתוחה עם דגלון למטה</translation></message>
<message><source>open mailbox with raised flag</source><translation>תיבת דואר פתוחה עם דגלון למעלה</translation></message>
<message><source>optical</source><translation>דיסק</translation></message>
<message><source>optical disk</source><translation>דיסק אופטי</translation></message>
<message><source>orange</source><translation>כתום</translation></message>
<message><source>orange book</source><translation>ספר כתום</translation></message>
<message><source>orange circle</source><translation>עיגול כתום</translation></message>
<message><source>orange heart</source><translation>לב כתום</translation></message>
<message><source>orange square</source><translation>ריבוע כתום</translation></message>
<message><source>orangutan</source><translation>אורנגאוטן</translation></message>
<message><source>ornithology</source><translation>ציפור</translation></message>
<message><source>orthodox cross</source><translation>צלב אורתודוכסי</translation></message>
<message><source>otter</source><translation>לוטרה</translation></message>
<message><source>outbox tray</source><translation>מגש דואר יוצא</translation></message>
<message><source>owl</source><translation>ינשוף</translation></message>
<message><source>ox</source><translation>שור</translation></message>
<message><source>oyster</source><translation>צדפה</translation></message>
<message><source>package</source><translation>חבילה</translation></message>
<message><source>page facing up</source><translation>דף עם הפנים כלפי מעלה</translation></message>
<message><source>page with curl</source><translation>דף עם קצה מגולגל</translation></message>
<message><source>pager</source><translation>איתורית</translation></message>
<message><source>paintbrush</source><translation>מכחול</translation></message>
<message><source>painting</source><translation>ציור</translation></message>
<message><source>palm down hand</source><translation>כף יד פונה למטה</translation></message>
<message><source>palm tree</source><translation>עץ דקל</translation></message>
<message><source>palm up hand</source><translation>כף יד פונה למעלה</translation></message>
<message><source>palms up together</source><translation>כפות ידיים מוצמדות ופונות כלפי מעלה</translation></message>
<message><source>pancakes</source><translation>פנקייקס</translation></message>
<message><source>panda</source><translation>פנדה</translation></message>
<message><source>paper</source><translation>נייר</translation></message>
<message><source>paperclip</source><translation>אטב נייר</translation></message>
<message><source>parachute</source><translation>מצנח</translation></message>
<message><source>parrot</source><translation>תוכי</translation></message>
<message><source>part alternation mark</source><translation>סמל יפני מתחום המוזיקה</translation></message>
<message><source>party popper</source><translation>פצצת קונפטי</translation></message>
<message><source>partying face</source><translation>חגיגה</translation></message>
<message><source>passenger ship</source><translation>ספינת נוסעים</translation></message>
<message><source>passport control</source><translation>שלט עמדת דרכונים</translation></message>
<message><source>pause button</source><translation>לחצן השהייה</translation></message>
<message><source>paw prints</source><translation>טביעות רגל של חיה</translation></message>
<message><source>pea pod</source><translation>אפונה</translation></message>
<message><source>peace symbol</source><translation>סמל השלום</translation></message>
<message><source>peaceful</source><translation>peace</translation></message>
<message><source>peach</source><translation>אפרסק</translation></message>
<message><source>peacock</source><translation>טווס</translation></message>
<message><source>peanuts</source><translation>בוטנים</translation></message>
<message><source>pear</source><translation>אגס</translation></message>
<message><source>pen</source><translation>עט</translation></message>
<message><source>pencil</source><translation>עיפרון</translation></message>
<message><source>penguin</source><translation>פינגווין</translation></message>
<message><source>pensive face</source><translation>פרצוף מהורהר</translation></message>
<message><source>people holding hands</source><translation>אנשים מחזיקים ידיים</translation></message>
<message><source>people hugging</source><translation>אנשים מתחבקים</translation></message>
<message><source>people with bunny ears</source><translation>נשים עם אוזני ארנב רוקדות</translation></message>
<message><source>people wrestling</source><translation>מתאבקים</translation></message>
<message><source>pepper</source><translation>פלפל</translation></message>
<message><source>performing arts</source><translation>אמנויות הבמה</translation></message>
<message><source>persevering face</source><translation>פרצוף סובל</translation></message>
<message><source>person</source><translation>אדם</translation></message>
<message><source>person biking</source><translation>רוכב אופניים</translation></message>
<message><source>person bouncing ball</source><translation>הקפצת כדור</translation></message>
<message><source>person bowing</source><translation>אדם משתחווה</translation></message>
<message><source>person cartwheeling</source><translation>גלגלון</translation></message>
<message><source>person climbing</source><translation>מישהו מטפס</translation></message>
<message><source>person facepalming</source><translation>אישה עם יד על הפנים</translation></message>
<message><source>person feeding baby</source><translation>הנקה של תינוק</translation></message>
<message><source>person fencing</source><translation>סייף</translation></message>
<message><source>person frowning</source><translation>אישה לא מרוצה</translation></message>
<message><source>person gesturing NO</source><translation>אישה מסמנת ״לא בסדר״</translation></message>
<message><source>person gesturing OK</source><translation>אישה עם הידיים על הראש</translation></message>
<message><source>person getting haircut</source><translation>תספורת</translation></message>
<message><source>person getting massage</source><translation>עיסוי פנים</translation></message>
<message><source>person golfing</source><translation>שחקן גולף</translation></message>
<message><source>person in bed</source><translation>אדם במיטה</translation></message>
<message><source>person in lotus position</source><translation>מישהי בתנוחת לוטוס</translation></message>
<message><source>person in manual wheelchair</source><translation>אדם בכסא גלגלים ידני</translation></message>
<message><source>person in manual wheelchair: facing right</source><translation>אדם בכסא גלגלים ידני: פונה ימינה</translation></message>
<message><source>person in motorized wheelchair</source><translation>אדם בכסא גלגלים ממונע</translation></message>
<message><source>person in motorized wheelchair: facing right</source><translation>אדם בכסא גלגלים ממונע: פונה ימינה</translation></message>
<message><source>person in steamy room</source><translation>מישהי בסאונה</translation></message>
<message><source>person in suit levitating</source><translation>אדם בחליפת עסקים מרחף</translation></message>
<message><source>person in tuxedo</source><translation>איש בטוקסידו</translation></message>
<message><source>person juggling</source><translation>להטוטן</translation></message>
<message><source>person kneeling</source><translation>אדם כורע ברך</translation></message>
<message><source>person kneeling: facing right</source><translation>אדם כורע ברך: פונה ימינה</translation></message>
<message><source>person lifting weights</source><translation>מרים משקולות</translation></message>
<message><source>person mountain biking</source><translation>רוכב אופני הרים</translation></message>
<message><source>person playing handball</source><translation>כדוריד</translation></message>
<message><source>person playing water polo</source><translation>כדורמים</translation></message>
<message><source>person pouting</source><translation>אישה זועפת</translation></message>
<message><source>person raising hand</source><translation>אישה מרימה את היד</translation></message>
<message><source>person rowing boat</source><translation>סירת משוטים</translation></message>
<message><source>person running</source><translation>רץ</translation></message>
<message><source>person running: facing right</source><translation>רץ: פונה ימינה</translation></message>
<message><source>person shrugging</source><translation>מישהי מושכת בכתפיה</translation></message>
<message><source>person standing</source><translation>אדם עומד</translation></message>
<message><source>person surfing</source><translation>גולש גלים</translation></message>
<message><source>person swimming</source><translation>שחיין</translation></message>
<message><source>person taking bath</source><translation>אדם באמבטיה</translation></message>
<message><source>person tipping hand</source><translation>אדם בדלפק מידע או מבקש טיפ</translation></message>
<message><source>person walking</source><translation>איש הולך</translation></message>
<message><source>person walking: facing right</source><translation>איש הולך: פונה ימינה</translation></message>
<message><source>person wearing turban</source><translation>אדם עם טורבן</translation></message>
<message><source>person with crown</source><translation>פרצוף עם כתר</translation></message>
<message><source>person with skullcap</source><translation>אדם עם כובע סיני</translation></message>
<message><source>person with veil</source><translation>כלה עם הינומה</translation></message>
<message><source>person with white cane</source><translation>אדם עם מקל נחייה</translation></message>
<message><source>person with white cane: facing right</source><translation>אדם עם מקל נחייה: פונה ימינה</translation></message>
<message><source>person: bald</source><translation>אדם: קירח</translation></message>
<message><source>person: beard</source><translation>אדם מזוקן</translation></message>
<message><source>person: blond hair</source><translation>אדם עם שיער בלונדיני</translation></message>
<message><source>person: curly hair</source><translation>אדם: שיער מתולתל</translation></message>
<message><source>person: red hair</source><translation>אדם: שיער ג׳ינג׳י</translation></message>
<message><source>person: white hair</source><translation>אדם: שיער לבן</translation></message>
<message><source>pet</source><translation>חיית מחמד</translation></message>
<message><source>petri dish</source><translation>צלחת פטרי</translation></message>
<message><source>phoenix</source><translation>עוף החול</translation></message>
<message><source>phone</source><translation>טלפון</translation></message>
<message><source>pick</source><translation>מכוש</translation></message>
<message><source>pickup truck</source><translation>טנדר</translation></message>
<message><source>pie</source><translation>פשטידה</translation></message>
<message><source>pig</source><translation>חזיר</translation></message>
<message><source>pig face</source><translation>פני חזיר</translation></message>
<message><source>pig nose</source><translation>אף חזיר</translation></message>
<message><source>pile of poo</source><translation>גוש קקי</translation></message>
<message><source>pill</source><translation>כדור</translation></message>
<message><source>pilot</source><translation>טייס/ת</translation></message>
<message><source>pin</source><translation>סיכה</translation></message>
<message><source>pinched fingers</source><translation>יד מסמנת רק רגע</translation></message>
<message><source>pinching hand</source><translation>יד צובטת</translation></message>
<message><source>pine decoration</source><translation>קישוט אצטרובלים</translation></message>
<message><source>pineapple</source><translation>אננס</translation></message>
<message><source>ping pong</source><translation>פינג פונג</translation></message>
<message><source>pink heart</source><translation>לב ורוד</translation></message>
<message><source>pirate flag</source><translation>דגל פירטים</translation></message>
<message><source>pizza</source><translation>פיצה</translation></message>
<message><source>piñata</source><translation>פיניאטה</translation></message>
<message><source>placard</source><translation>כרזה</translation></message>
<message><source>place of worship</source><translation>בית תפילה</translation></message>
<message><source>plane</source><translation>מטוס</translation></message>
<message><source>play button</source><translation>לחצן השמעה</translation></message>
<message><source>play or pause button</source><translation>לחצן הפעלה/השהייה</translation></message>
<message><source>playground slide</source><translation>מגלשה</translation></message>
<message><source>pleading face</source><translation>מתחנן</translation></message>
<message><source>plunger</source><translation>פומפה</translation></message>
<message><source>plus</source><translation>סימן חיבור</translation></message>
<message><source>pointing</source><translation>מצביעה</translation></message>
<message><source>polar bear</source><translation>דוב קוטב</translation></message>
<message><source>police</source><translation>משטרה</translation></message>
<message><source>police car</source><translation>ניידת משטרה</translation></message>
<message><source>police car light</source><translation>פנס של ניידת משטרה</translation></message>
<message><source>police officer</source><translation>שוטר</translation></message>
<message><source>poodle</source><translation>פודל</translation></message>
<message><source>pool 8 ball</source><translation>כדור ביליארד</translation></message>
<message><source>popcorn</source><translation>פופקורן</translation></message>
<message><source>post office</source><translation>בית דואר</translation></message>
<message><source>postal horn</source><translation>קרן דואר</translation></message>
<message><source>postbox</source><translation>תיבת דואר</translation></message>
<message><source>pot of food</source><translation>סיר אוכל</translation></message>
<message><source>potable water</source><translation>שלט מי שתייה</translation></message>
<message><source>potato</source><translation>תפוח אדמה</translation></message>
<message><source>potted plant</source><translation>צמח בעציץ</translation></message>
<message><source>poultry leg</source><translation>שוק</translation></message>
<message><source>pound banknote</source><translation>שטר לירה שטרלינג</translation></message>
<message><source>pouring liquid</source><translation>מוזגים משקה</translation></message>
<message><source>pouting cat</source><translation>חתול זועף</translation></message>
<message><source>pray</source><translation>תפילה</translation></message>
<message><source>prayer beads</source><translation>מחרוזת תפילה</translation></message>
<message><source>pregnant</source><translation>היריון</translation></message>
<message><source>pregnant man</source><translation>איש עם בטן היריון</translation></message>
<message><source>pregnant person</source><translation>בהריון</translation></message>
<message><source>pregnant woman</source><translation>אישה בהיריון</translation></message>
<message><source>pretzel</source><translation>בייגלה</translation></message>
<message><source>prince</source><translation>נסיך עם כתר</translation></message>
<message><source>princess</source><translation>נסיכה</translation></message>
<message><source>printer</source><translation>מדפסת</translation></message>
<message><source>prohibited</source><translation>אסור</translation></message>
<message><source>purple</source><translation>סגול</translation></message>
<message><source>purple circle</source><translation>עיגול סגול</translation></message>
<message><source>purple heart</source><translation>לב סגול</translation></message>
<message><source>purple square</source><translation>ריבוע סגול</translation></message>
<message><source>purse</source><translation>ארנק</translation></message>
<message><source>pushpin</source><translation>נעץ</translation></message>
<message><source>puzzle piece</source><translation>חלק בפאזל</translation></message>
<message><source>question</source><translation>שאלה</translation></message>
<message><source>quiet</source><translation>שקט</translation></message>
<message><source>rabbit</source><translation>ארנב</translation></message>
<message><source>rabbit face</source><translation>פני ארנב</translation></message>
<message><source>raccoon</source><translation>רקון</translation></message>
<message><source>racehorse</source><translation>מרוצי סוסים</translation></message>
<message><source>racing</source><translation>מרוץ</translation></message>
<message><source>racing car</source><translation>מכונית מירוץ</translation></message>
<message><source>radio</source><translation>רדיו</translation></message>
<message><source>radio button</source><translation>לחצן רדיו</translation></message>
<message><source>radioactive</source><translation>רדיואקטיבי</translation></message>
<message><source>railway</source><translation>רכבת</translation></message>
<message><source>railway car</source><translation>קרון רכבת</translation></message>
<message><source>railway track</source><translation>מסילת רכבת</translation></message>
<message><source>rain</source><translation>גשם</translation></message>
<message><source>rainbow</source><translation>קשת בענן</translation></message>
<message><source>rainbow flag</source><translation>דגל בצבעי הקשת</translation></message>
<message><source>raised back of hand</source><translation>גב יד פרוש</translation></message>
<message><source>raised fist</source><translation>אגרוף מורם</translation></message>
<message><source>raised hand</source><translation>כף יד מורמת</translation></message>
<message><source>raising hands</source><translation>כפות ידיים מורמות</translation></message>
<message><source>ram</source><translation>אַיִל</translation></message>
<message><source>rat</source><translation>חולדה</translation></message>
<message><source>razor</source><translation>סכין גילוח</translation></message>
<message><source>reach</source><translation>נעים להכיר</translation></message>
<message><source>receipt</source><translation>קבלה</translation></message>
<message><source>record button</source><translation>לחצן הקלטה</translation></message>
<message><source>recycling symbol</source><translation>סמל מיחזור</translation></message>
<message><source>red apple</source><translation>תפוח אדום</translation></message>
<message><source>red circle</source><translation>עיגול אדום</translation></message>
<message><source>red envelope</source><translation>מעטפה אדומה</translation></message>
<message><source>red exclamation mark</source><translation>סימן קריאה אדום</translation></message>
<message><source>red heart</source><translation>לב אדום</translation></message>
<message><source>red paper lantern</source><translation>פנס נייר אדום</translation></message>
<message><source>red question mark</source><translation>סימן שאלה אדום</translation></message>
<message><source>red square</source><translation>ריבוע אדום</translation></message>
<message><source>red triangle pointed down</source><translation>משולש אדום כלפי מטה</translation></message>
<message><source>red triangle pointed up</source><translation>משולש אדום כלפי מעלה</translation></message>
<message><source>registered</source><translation>סימן רשום</translation></message>
<message><source>relationship</source><translation>זוג עם לב</translation></message>
<message><source>relieved face</source><translation>פרצוף של אנחת רווחה</translation></message>
<message><source>religion</source><translation>דת</translation></message>
<message><source>reminder ribbon</source><translation>סרט הזדהות</translation></message>
<message><source>repeat button</source><translation>סמל השמעה חוזרת</translation></message>
<message><source>repeat single button</source><translation>סמל חזרה על שיר אחד</translation></message>
<message><source>rescue worker’s helmet</source><translation>קסדה עם צלב לבן</translation></message>
<message><source>restroom</source><translation>שלט שירותים</translation></message>
<message><source>reverse button</source><translation>לחצן השמעה לאחור</translation></message>
<message><source>revolving hearts</source><translation>לבבות נעים במעגל</translation></message>
<message><source>rhinoceros</source><translation>קרנף</translation></message>
<message><source>ribbon</source><translation>סרט מתנה</translation></message>
<message><source>rice</source><translation>אורז</translation></message>
<message><source>rice ball</source><translation>כדור אורז</translation></message>
<message><source>rice cracker</source><translation>פריכית אורז</translation></message>
<message><source>right</source><translation>ימינה</translation></message>
<message><source>right anger bubble</source><translation>בועת דיבור כועס מימין</translation></message>
<message><source>right arrow</source><translation>חץ ימינה</translation></message>
<message><source>right arrow curving down</source><translation>חץ ימינה מתעקל מטה</translation></message>
<message><source>right arrow curving left</source><translation>חץ ימינה מתעקל שמאלה</translation></message>
<message><source>right arrow curving up</source><translation>חץ ימינה מתעקל מעלה</translation></message>
<message><source>right-facing fist</source><translation>יד קמוצה ימינה</translation></message>
<message><source>rightwards hand</source><translation>יד פונה ימינה</translation></message>
<message><source>rightwards pushing hand</source><translation>יד דוחפת ימינה</translation></message>
<message><source>ring</source><translation>טבעת</translation></message>
<message><source>ring buoy</source><translation>גלגל הצלה</translation></message>
<message><source>ringed planet</source><translation>כוכב לכת עם טבעות</translation></message>
<message><source>roasted sweet potato</source><translation>בטטה צלויה</translation></message>
<message><source>robot</source><translation>רובוט</translation></message>
<message><source>rock</source><translation>סלע</translation></message>
<message><source>rocket</source><translation>טיל</translation></message>
<message><source>rofl</source><translation>צחוק</translation></message>
<message><source>roll of paper</source><translation>גליל נייר</translation></message>
<message><source>rolled-up newspaper</source><translation>עיתון מגולגל</translation></message>
<message><source>roller coaster</source><translation>רכבת הרים</translation></message>
<message><source>roller skate</source><translation>גלגיליות</translation></message>
<message><source>rolling on the floor laughing</source><translation>מתגלגל על הרצפה מרוב צחוק</translation></message>
<message><source>romance</source><translation>רומנטיקה</translation></message>
<message><source>rooster</source><translation>תרנגול</translation></message>
<message><source>root</source><translation>שורש</translation></message>
<message><source>root vegetable</source><translation>ירק שורש</translation></message>
<message><source>rose</source><translation>ורד</translation></message>
<message><source>rosette</source><translation>פרח צהוב</translation></message>
<message><source>round pushpin</source><translation>סיכה</translation></message>
<message><source>rugby football</source><translation>כדור רוגבי</translation></message>
<message><source>running</source><translation>ריצה</translation></message>
<message><source>running shirt</source><translation>חולצת ריצה</translation></message>
<message><source>running shoe</source><translation>נעל ריצה</translation></message>
<message><source>sad</source><translation>עצוב</translation></message>
<message><source>sad but relieved face</source><translation>פרצוף מאוכזב עם דמעה</translation></message>
<message><source>safety pin</source><translation>סיכת ביטחון</translation></message>
<message><source>safety vest</source><translation>אפוד בטיחות</translation></message>
<message><source>sailboat</source><translation>סירת מפרש</translation></message>
<message><source>sake</source><translation>סאקה</translation></message>
<message><source>salt</source><translation>מלח</translation></message>
<message><source>saluting face</source><translation>פרצוף מצדיע</translation></message>
<message><source>sandwich</source><translation>סנדביץ׳</translation></message>
<message><source>sari</source><translation>סארי</translation></message>
<message><source>satellite</source><translation>לוויין</translation></message>
<message><source>satellite antenna</source><translation>צלחת לוויין</translation></message>
<message><source>sauropod</source><translation>סרופוד</translation></message>
<message><source>saxophone</source><translation>סקסופון</translation></message>
<message><source>scarf</source><translation>צעיף</translation></message>
<message><source>scene</source><translation>דילוג</translation></message>
<message><source>school</source><translation>בית ספר</translation></message>
<message><source>science</source><translation>מדע</translation></message>
<message><source>scientist</source><translation>מדען/ית</translation></message>
<message><source>scissors</source><translation>מספריים</translation></message>
<message><source>scorpion</source><translation>עקרב</translation></message>
<message><source>screwdriver</source><translation>מברג</translation></message>
<message><source>scroll</source><translation>מגילה</translation></message>
<message><source>seal</source><translation>כלב ים</translation></message>
<message><source>seat</source><translation>מושב</translation></message>
<message><source>see-no-evil monkey</source><translation>לא ראיתי</translation></message>
<message><source>seedling</source><translation>נבט</translation></message>
<message><source>selfie</source><translation>יד מצלמת סלפי</translation></message>
<message><source>service dog</source><translation>כלב שירות</translation></message>
<message><source>seven o’clock</source><translation>שבע</translation></message>
<message><source>seven-thirty</source><translation>שבע וחצי</translation></message>
<message><source>sewing needle</source><translation>מחט</translation></message>
<message><source>shaking face</source><translation>פרצוף רועד</translation></message>
<message><source>shallow pan of food</source><translation>תבשיל קדרה</translation></message>
<message><source>shamrock</source><translation>תלתן</translation></message>
<message><source>shark</source><translation>כריש</translation></message>
<message><source>shaved ice</source><translation>קערית ברד</translation></message>
<message><source>sheaf of rice</source><translation>שיבולי אורז</translation></message>
<message><source>sheep</source><translation>כבש</translation></message>
<message><source>shield</source><translation>מגן</translation></message>
<message><source>shinto shrine</source><translation>מקדש שינטו</translation></message>
<message><source>ship</source><translation>ספינה</translation></message>
<message><source>shirt</source><translation>חולצה</translation></message>
<message><source>shoes</source><translation>נעל</translation></message>
<message><source>shooting star</source><translation>כוכב שביט</translation></message>
<message><source>shopping bags</source><translation>שקיות קניות</translation></message>
<message><source>shopping cart</source><translation>עגלת קניות</translation></message>
<message><source>shortcake</source><translation>פרוסת עוגה</translation></message>
<message><source>shorts</source><translation>מכנסיים קצרים</translation></message>
<message><source>shovel</source><translation>מעדר</translation></message>
<message><source>shower</source><translation>מקלחת</translation></message>
<message><source>shrimp</source><translation>שרימפ</translation></message>
<message><source>shuffle tracks button</source><translation>סמל השמעה אקראית</translation></message>
<message><source>shushing face</source><translation>פרצוף עושה סימן לשקט</translation></message>
<message><source>sick</source><translation>חולה</translation></message>
<message><source>sign of the horns</source><translation>יד מסמנת קרניים</translation></message>
<message><source>singer</source><translation>זמר/ת</translation></message>
<message><source>six o’clock</source><translation>שש</translation></message>
<message><source>six-thirty</source><translation>שש וחצי</translation></message>
<message><source>skateboard</source><translation>סקייטבורד</translation></message>
<message><source>skeptical</source><translation>ספקן</translation></message>
<message><source>skewer</source><translation>שיפוד</translation></message>
<message><source>ski</source><translation>סקי</translation></message>
<message><source>skier</source><translation>גולש סקי</translation></message>
<message><source>skis</source><translation>מגלשי סקי</translation></message>
<message><source>skull</source><translation>גולגולת</translation></message>
<message><source>skull and crossbones</source><translation>סמל פיראטים</translation></message>
<message><source>skunk</source><translation>בואש</translation></message>
<message><source>sled</source><translation>מִזְחֶלֶת</translation></message>
<message><source>sleep</source><translation>לישון</translation></message>
<message><source>sleeping face</source><translation>פרצוף ישן</translation></message>
<message><source>sleepy face</source><translation>פרצוף ישנוני</translation></message>
<message><source>slightly frowning face</source><translation>פרצוף עם מבט עצוב</translation></message>
<message><source>slightly smiling face</source><translation>פרצוף עם חיוך קטן</translation></message>
<message><source>slot machine</source><translation>מכונת מזל</translation></message>
<message><source>sloth</source><translation>עצלן</translation></message>
<message><source>small airplane</source><translation>מטוס קטן</translation></message>
<message><source>small blue diamond</source><translation>מעוין כחול קטן</translation></message>
<message><source>small orange diamond</source><translation>מעוין כתום קטן</translation></message>
<message><source>smile</source><translation>חיוך</translation></message>
<message><source>smiling cat with heart-eyes</source><translation>חתול מחייך עם עיניים בצורת לב</translation></message>
<message><source>smiling face</source><translation>פרצוף מחייך</translation></message>
<message><source>smiling face with halo</source><translation>פרצוף מחייך עם הילת מלאך</translation></message>
<message><source>smiling face with heart-eyes</source><translation>פרצוף מחייך עם עיני לבבות</translation></message>
<message><source>smiling face with hearts</source><translation>פרצוף מחייך עם לבבות</translation></message>
<message><source>smiling face with horns</source><translation>פרצוף מחייך עם קרניים</translation></message>
<message><source>smiling face with open hands</source><translation>פרצוף מחבק</translation></message>
<message><source>smiling face with smiling eyes</source><translation>פרצוף מחייך עם עיניים מחייכות</translation></message>
<message><source>smiling face with sunglasses</source><translation>פרצוף מחייך עם משקפי שמש</translation></message>
<message><source>smiling face with tear</source><translation>פרצוף מחייך עם דמעה</translation></message>
<message><source>smirking face</source><translation>פרצוף זחוח</translation></message>
<message><source>smoking</source><translation>עישון</translation></message>
<message><source>snail</source><translation>חלזון</translation></message>
<message><source>snake</source><translation>נחש</translation></message>
<message><source>sneezing face</source><translation>פרצוף מקנח אף</translation></message>
<message><source>snow</source><translation>שלג</translation></message>
<message><source>snow-capped mountain</source><translation>הר עם פסגה מושלגת</translation></message>
<message><source>snowboarder</source><translation>גולש סנובורד</translation></message>
<message><source>snowflake</source><translation>פתית שלג</translation></message>
<message><source>snowman</source><translation>איש שלג</translation></message>
<message><source>snowman without snow</source><translation>איש שלג בלי שלג</translation></message>
<message><source>soap</source><translation>סבון</translation></message>
<message><source>soccer ball</source><translation>כדורגל</translation></message>
<message><source>socks</source><translation>גרביים</translation></message>
<message><source>soft ice cream</source><translation>גלידה בגביע</translation></message>
<message><source>softball</source><translation>סופטבול</translation></message>
<message><source>space</source><translation>חלל</translation></message>
<message><source>spade suit</source><translation>קלף עלה</translation></message>
<message><source>spaghetti</source><translation>ספגטי</translation></message>
<message><source>sparkle</source><translation>נוצץ</translation></message>
<message><source>sparkler</source><translation>זיקוק על מקל</translation></message>
<message><source>sparkles</source><translation>נצנוץ</translation></message>
<message><source>sparkling heart</source><translation>לב מנצנץ</translation></message>
<message><source>speak-no-evil monkey</source><translation>לא דיברתי</translation></message>
<message><source>speaker high volume</source><translation>ווליום חזק</translation></message>
<message><source>speaker low volume</source><translation>ווליום נמוך</translation></message>
<message><source>speaker medium volume</source><translation>ווליום בינוני</translation></message>
<message><source>speaking head</source><translation>צללית ראש מדבר</translation></message>
<message><source>special</source><translation>רגש</translation></message>
<message><source>speech balloon</source><translation>בועת דיבור</translation></message>
<message><source>speedboat</source><translation>סירת מירוץ</translation></message>
<message><source>spider</source><translation>עכביש</translation></message>
<message><source>spider web</source><translation>קורי עכביש</translation></message>
<message><source>spiral calendar</source><translation>לוח שנה עם ספירלה</translation></message>
<message><source>spiral notepad</source><translation>פנקס עם ספירלה</translation></message>
<message><source>spiral shell</source><translation>צדף מסולסל</translation></message>
<message><source>splatter</source><translation>כתם</translation></message>
<message><source>sponge</source><translation>ספוג</translation></message>
<message><source>spoon</source><translation>כפית</translation></message>
<message><source>sport utility vehicle</source><translation>ג׳יפ</translation></message>
<message><source>sports medal</source><translation>מדליית ספורט</translation></message>
<message><source>spouting whale</source><translation>לווייתן מתיז סילון מים</translation></message>
<message><source>square</source><translation>ריבוע</translation></message>
<message><source>squid</source><translation>דיונון</translation></message>
<message><source>squinting face with tongue</source><translation>פרצוף מוציא לשון ועוצם עיניים בחוזקה</translation></message>
<message><source>stadium</source><translation>איצטדיון</translation></message>
<message><source>star</source><translation>כוכב</translation></message>
<message><source>star and crescent</source><translation>כוכב וסהר</translation></message>
<message><source>star of David</source><translation>מגן דוד</translation></message>
<message><source>star-struck</source><translation>פרצוף עם עיני כוכבים</translation></message>
<message><source>station</source><translation>תחנה</translation></message>
<message><source>steaming bowl</source><translation>קערה מהבילה</translation></message>
<message><source>stethoscope</source><translation>סטתוסקופ</translation></message>
<message><source>stink</source><translation>מסריח</translation></message>
<message><source>stop button</source><translation>לחצן עצירה</translation></message>
<message><source>stop sign</source><translation>תמרור עצור</translation></message>
<message><source>stopwatch</source><translation>שעון עצר</translation></message>
<message><source>straight ruler</source><translation>סרגל</translation></message>
<message><source>strawberry</source><translation>תות שדה</translation></message>
<message><source>stress</source><translation>מתוח</translation></message>
<message><source>student</source><translation>סטודנט/ית</translation></message>
<message><source>studio microphone</source><translation>מיקרופון אולפן</translation></message>
<message><source>stuffed flatbread</source><translation>פיתה עם פלאפל</translation></message>
<message><source>sun</source><translation>שמש</translation></message>
<message><source>sun behind cloud</source><translation>שמש מאחורי ענן</translation></message>
<message><source>sun behind large cloud</source><translation>שמש מאחורי ענן גדול</translation></message>
<message><source>sun behind rain cloud</source><translation>שמש מאחורי ענן עם גשם</translation></message>
<message><source>sun behind small cloud</source><translation>שמש מאחורי ענן קטן</translation></message>
<message><source>sun with face</source><translation>פני שמש</translation></message>
<message><source>sunflower</source><translation>חמניה</translation></message>
<message><source>sunglasses</source><translation>משקפי שמש</translation></message>
<message><source>sunrise</source><translation>זריחה</translation></message>
<message><source>sunrise over mountains</source><translation>זריחה בהרים</translation></message>
<message><source>sunset</source><translation>שקיעה</translation></message>
<message><source>superhero</source><translation>גיבור על</translation></message>
<message><source>superpower</source><translation>כוחות על</translation></message>
<message><source>supervillain</source><translation>נבל על</translation></message>
<message><source>sushi</source><translation>סושי</translation></message>
<message><source>suspension railway</source><translation>רכבל</translation></message>
<message><source>swan</source><translation>ברבור</translation></message>
<message><source>sweat</source><translation>טיפה</translation></message>
<message><source>sweat droplets</source><translation>טיפות זיעה</translation></message>
<message><source>synagogue</source><translation>בית כנסת</translation></message>
<message><source>syringe</source><translation>מזרק</translation></message>
<message><source>t-shirt</source><translation>חולצת טי</translation></message>
<message><source>taco</source><translation>טאקו</translation></message>
<message><source>takeout box</source><translation>קופסת משלוח</translation></message>
<message><source>tamale</source><translation>טמלה</translation></message>
<message><source>tanabata tree</source><translation>קישוט חג יפני</translation></message>
<message><source>tangerine</source><translation>קלמנטינה</translation></message>
<message><source>taxi</source><translation>מונית</translation></message>
<message><source>tea</source><translation>תה</translation></message>
<message><source>teacher</source><translation>מצוות המורים</translation></message>
<message><source>teacup without handle</source><translation>ספל תה בלי ידית</translation></message>
<message><source>teapot</source><translation>קנקן תה</translation></message>
<message><source>tear</source><translation>דמעות</translation></message>
<message><source>tear-off calendar</source><translation>לוח שנה לתלישת דפים</translation></message>
<message><source>technologist</source><translation>טכנולוג/ית</translation></message>
<message><source>teddy bear</source><translation>דובי</translation></message>
<message><source>telephone</source><translation>טלפון רגיל</translation></message>
<message><source>telephone receiver</source><translation>שפופרת טלפון</translation></message>
<message><source>telescope</source><translation>טלסקופ</translation></message>
<message><source>television</source><translation>טלוויזיה</translation></message>
<message><source>ten o’clock</source><translation>עשר</translation></message>
<message><source>ten-thirty</source><translation>עשר וחצי</translation></message>
<message><source>tennis</source><translation>כדור טניס</translation></message>
<message><source>tent</source><translation>אוהל</translation></message>
<message><source>test tube</source><translation>מבחנה</translation></message>
<message><source>thanks</source><translation>תודה</translation></message>
<message><source>thermometer</source><translation>מדחום</translation></message>
<message><source>thinking face</source><translation>פרצוף חושב</translation></message>
<message><source>thong sandal</source><translation>כפכפי אצבע</translation></message>
<message><source>thought balloon</source><translation>בועת מחשבה</translation></message>
<message><source>thread</source><translation>חוט</translation></message>
<message><source>three o’clock</source><translation>שלוש</translation></message>
<message><source>three-thirty</source><translation>שלוש וחצי</translation></message>
<message><source>thumbs down</source><translation>אגודל למטה</translation></message>
<message><source>thumbs up</source><translation>אגודל למעלה</translation></message>
<message><source>ticket</source><translation>כרטיס</translation></message>
<message><source>tie</source><translation>עניבה</translation></message>
<message><source>tiger</source><translation>טיגריס</translation></message>
<message><source>tiger face</source><translation>פני טיגריס</translation></message>
<message><source>timer clock</source><translation>טיימר</translation></message>
<message><source>tired</source><translation>עייף</translation></message>
<message><source>tired face</source><translation>פרצוף עייף</translation></message>
<message><source>toilet</source><translation>אסלה</translation></message>
<message><source>tomato</source><translation>עגבנייה</translation></message>
<message><source>tongue</source><translation>לשון</translation></message>
<message><source>toolbox</source><translation>ארגז כלים</translation></message>
<message><source>tooth</source><translation>שן</translation></message>
<message><source>toothbrush</source><translation>מברשת שיניים</translation></message>
<message><source>top hat</source><translation>מגבעת צילינדר</translation></message>
<message><source>tornado</source><translation>טורנדו</translation></message>
<message><source>trackball</source><translation>גלגלת עכבר</translation></message>
<message><source>tractor</source><translation>טרקטור</translation></message>
<message><source>trade mark</source><translation>סימן מסחרי</translation></message>
<message><source>train</source><translation>רכבת</translation></message>
<message><source>tram</source><translation>חשמלית</translation></message>
<message><source>tram car</source><translation>קרון חשמלית</translation></message>
<message><source>transgender</source><translation>טרנסג׳נדר</translation></message>
<message><source>transgender flag</source><translation>דגל טרנסג׳נדר</translation></message>
<message><source>transgender symbol</source><translation>סמל לטרנסג׳נדר</translation></message>
<message><source>tray</source><translation>מגש</translation></message>
<message><source>tree</source><translation>עץ</translation></message>
<message><source>trend</source><translation>גרף</translation></message>
<message><source>triangular flag</source><translation>דגל משולש אדום</translation></message>
<message><source>triangular ruler</source><translation>סרגל משולש</translation></message>
<message><source>trident emblem</source><translation>סמל קילשון</translation></message>
<message><source>troll</source><translation>טרול</translation></message>
<message><source>trolleybus</source><translation>אוטובוס חשמלי</translation></message>
<message><source>trophy</source><translation>גביע</translation></message>
<message><source>tropical</source><translation>טרופי</translation></message>
<message><source>tropical drink</source><translation>קוקטייל טרופי</translation></message>
<message><source>tropical fish</source><translation>דג טרופי</translation></message>
<message><source>trumpet</source><translation>חצוצרה</translation></message>
<message><source>tulip</source><translation>צבעוני</translation></message>
<message><source>tumbler glass</source><translation>כוס ויסקי</translation></message>
<message><source>turkey</source><translation>תרנגול הודו</translation></message>
<message><source>turtle</source><translation>צב</translation></message>
<message><source>twelve o’clock</source><translation>שתיים-עשרה</translation></message>
<message><source>twelve-thirty</source><translation>שתיים-עשרה וחצי</translation></message>
<message><source>two hearts</source><translation>שני לבבות</translation></message>
<message><source>two o’clock</source><translation>שתיים</translation></message>
<message><source>two-hump camel</source><translation>גמל דו-דבשתי</translation></message>
<message><source>two-thirty</source><translation>שתיים וחצי</translation></message>
<message><source>type</source><translation>גוון עור</translation></message>
<message><source>ufo</source><translation>חוצן</translation></message>
<message><source>umbrella</source><translation>מטריה</translation></message>
<message><source>umbrella on ground</source><translation>שמשיה</translation></message>
<message><source>umbrella with rain drops</source><translation>מטריה עם טיפות גשם</translation></message>
<message><source>unamused face</source><translation>פרצוף לא מתרשם</translation></message>
<message><source>unicorn</source><translation>חד קרן</translation></message>
<message><source>unimpressed</source><translation>חסר הבעה</translation></message>
<message><source>unlocked</source><translation>מנעול פתוח</translation></message>
<message><source>up arrow</source><translation>חץ למעלה</translation></message>
<message><source>up-down arrow</source><translation>חץ מעלה ומטה</translation></message>
<message><source>up-left arrow</source><translation>חץ למעלה ושמאלה</translation></message>
<message><source>up-right arrow</source><translation>חץ למעלה וימינה</translation></message>
<message><source>upside-down face</source><translation>פרצוף הפוך</translation></message>
<message><source>upwards button</source><translation>לחצן מעלה</translation></message>
<message><source>vampire</source><translation>ערפד</translation></message>
<message><source>vegetable</source><translation>ירק</translation></message>
<message><source>veggie</source><translation>ירקות</translation></message>
<message><source>vertical traffic light</source><translation>רמזור אנכי</translation></message>
<message><source>vibration mode</source><translation>מצב רטט</translation></message>
<message><source>victory hand</source><translation>אצבעות מסמנות ניצחון</translation></message>
<message><source>video</source><translation>וידאו</translation></message>
<message><source>video camera</source><translation>מצלמת וידאו</translation></message>
<message><source>video game</source><translation>משחק וידאו</translation></message>
<message><source>videocassette</source><translation>קלטת וידאו</translation></message>
<message><source>violin</source><translation>כינור</translation></message>
<message><source>virus</source><translation>וירוס</translation></message>
<message><source>volcano</source><translation>הר געש</translation></message>
<message><source>volleyball</source><translation>כדורעף</translation></message>
<message><source>vulcan salute</source><translation>הצדעה וולקנית</translation></message>
<message><source>waffle</source><translation>וופל</translation></message>
<message><source>waning crescent moon</source><translation>סהר ירח מתרוקן</translation></message>
<message><source>waning gibbous moon</source><translation>ירח מתחיל להתרוקן</translation></message>
<message><source>warning</source><translation>שלט אזהרה</translation></message>
<message><source>wastebasket</source><translation>סל ניירות</translation></message>
<message><source>watch</source><translation>שעון יד</translation></message>
<message><source>water</source><translation>מים</translation></message>
<message><source>water buffalo</source><translation>תאו המים</translation></message>
<message><source>water closet</source><translation>שלט WC</translation></message>
<message><source>water pistol</source><translation>אקדח מים</translation></message>
<message><source>water wave</source><translation>גל</translation></message>
<message><source>watermelon</source><translation>אבטיח</translation></message>
<message><source>waving</source><translation>מתנפנף</translation></message>
<message><source>waving hand</source><translation>יד מנופפת</translation></message>
<message><source>wavy dash</source><translation>קו גלי</translation></message>
<message><source>waxing crescent moon</source><translation>סהר ירח מתמלא</translation></message>
<message><source>waxing gibbous moon</source><translation>ירח כמעט מלא</translation></message>
<message><source>wc</source><translation>ציבוריים</translation></message>
<message><source>weapon</source><translation>כלי נשק</translation></message>
<message><source>weary cat</source><translation>חתול פוחד</translation></message>
<message><source>weary face</source><translation>פרצוף מותש</translation></message>
<message><source>wedding</source><translation>חתונה</translation></message>
<message><source>weight</source><translation>משקל</translation></message>
<message><source>whale</source><translation>לוויתן</translation></message>
<message><source>what</source><translation>הלם</translation></message>
<message><source>wheel</source><translation>גלגל</translation></message>
<message><source>wheel of dharma</source><translation>גלגל הדהרמה</translation></message>
<message><source>wheelchair</source><translation>נכה</translation></message>
<message><source>wheelchair symbol</source><translation>שלט לנכים בלבד</translation></message>
<message><source>white cane</source><translation>מקל נחייה</translation></message>
<message><source>white circle</source><translation>עיגול לבן</translation></message>
<message><source>white exclamation mark</source><translation>סימן קריאה לבן</translation></message>
<message><source>white flag</source><translation>דגל לבן</translation></message>
<message><source>white flower</source><translation>פרח לבן</translation></message>
<message><source>white heart</source><translation>לב לבן</translation></message>
<message><source>white large square</source><translation>ריבוע גדול לבן</translation></message>
<message><source>white medium square</source><translation>ריבוע לבן בינוני</translation></message>
<message><source>white medium-small square</source><translation>ריבוע בינוני-קטן לבן</translation></message>
<message><source>white question mark</source><translation>סימן שאלה לבן</translation></message>
<message><source>white small square</source><translation>ריבוע לבן קטן</translation></message>
<message><source>white square button</source><translation>לחצן ריבוע לבן</translation></message>
<message><source>whoa</source><translation>מופתע</translation></message>
<message><source>wilted flower</source><translation>פרח נובל</translation></message>
<message><source>wind</source><translation>רוח</translation></message>
<message><source>wind chime</source><translation>פעמון רוח</translation></message>
<message><source>wind face</source><translation>פני רוח נושבת</translation></message>
<message><source>window</source><translation>חלון</translation></message>
<message><source>wine glass</source><translation>כוס יין</translation></message>
<message><source>wing</source><translation>כנף</translation></message>
<message><source>winking face</source><translation>פרצוף קורץ</translation></message>
<message><source>winking face with tongue</source><translation>פרצוף מוציא לשון וקורץ</translation></message>
<message><source>wireless</source><translation>אלחוטי</translation></message>
<message><source>witch</source><translation>מכשפה</translation></message>
<message><source>wolf</source><translation>זאב</translation></message>
<message><source>woman</source><translation>אישה</translation></message>
<message><source>woman and man holding hands</source><translation>איש ואישה מחזיקים ידיים</translation></message>
<message><source>woman artist</source><translation>אמנית</translation></message>
<message><source>woman astronaut</source><translation>אסטרונאוטית</translation></message>
<message><source>woman biking</source><translation>אישה רוכבת על אופניים</translation></message>
<message><source>woman bouncing ball</source><translation>אישה מקפיצה כדור</translation></message>
<message><source>woman bowing</source><translation>אישה משתחווה</translation></message>
<message><source>woman cartwheeling</source><translation>אישה מבצעת גלגלון</translation></message>
<message><source>woman climbing</source><translation>אישה מטפסת</translation></message>
<message><source>woman construction worker</source><translation>פועלת בניין</translation></message>
<message><source>woman cook</source><translation>טבחית</translation></message>
<message><source>woman dancing</source><translation>רקדנית</translation></message>
<message><source>woman detective</source><translation>חוקרת פרטית</translation></message>
<message><source>woman elf</source><translation>אלפית</translation></message>
<message><source>woman facepalming</source><translation>אישה מתוסכלת</translation></message>
<message><source>woman factory worker</source><translation>פועלת</translation></message>
<message><source>woman fairy</source><translation>פיה בת</translation></message>
<message><source>woman farmer</source><translation>חקלאית</translation></message>
<message><source>woman feeding baby</source><translation>אישה מניקה תינוק</translation></message>
<message><source>woman firefighter</source><translation>לוחמת אש</translation></message>
<message><source>woman frowning</source><translation>אישה מדוכדכת</translation></message>
<message><source>woman genie</source><translation>שדה</translation></message>
<message><source>woman gesturing NO</source><translation>אישה מסמנת ״לא״</translation></message>
<message><source>woman gesturing OK</source><translation>אישה עם ידיים על הראש</translation></message>
<message><source>woman getting haircut</source><translation>אישה מסתפרת</translation></message>
<message><source>woman getting massage</source><translation>אישה מקבלת עיסוי פנים</translation></message>
<message><source>woman golfing</source><translation>אישה משחקת גולף</translation></message>
<message><source>woman guard</source><translation>שומרת</translation></message>
<message><source>woman health worker</source><translation>רופאה</translation></message>
<message><source>woman in lotus position</source><translation>אישה בתנוחת לוטוס</translation></message>
<message><source>woman in manual wheelchair</source><translation>אישה בכסא גלגלים ידני</translation></message>
<message><source>woman in manual wheelchair: facing right</source><translation>אישה בכסא גלגלים ידני: פונה ימינה</translation></message>
<message><source>woman in motorized wheelchair</source><translation>אישה בכסא גלגלים ממונע</translation></message>
<message><source>woman in motorized wheelchair: facing right</source><translation>אישה בכסא גלגלים ממונע: פונה ימינה</translation></message>
<message><source>woman in steamy room</source><translation>אישה בסאונה</translation></message>
<message><source>woman in tuxedo</source><translation>אישה בטוקסידו</translation></message>
<message><source>woman judge</source><translation>שופטת</translation></message>
<message><source>woman juggling</source><translation>אישה עושה ג׳גלינג</translation></message>
<message><source>woman kneeling</source><translation>אישה כורעת ברך</translation></message>
<message><source>woman kneeling: facing right</source><translation>אישה כורעת ברך: פונה ימינה</translation></message>
<message><source>woman lifting weights</source><translation>אישה מרימה משקולות</translation></message>
<message><source>woman mage</source><translation>קוסמת</translation></message>
<message><source>woman mechanic</source><translation>מכונאית</translation></message>
<message><source>woman mountain biking</source><translation>אישה רוכבת על אופני הרים</translation></message>
<message><source>woman office worker</source><translation>עובדת משרד</translation></message>
<message><source>woman pilot</source><translation>טייסת</translation></message>
<message><source>woman playing handball</source><translation>אישה משחקת כדור יד</translation></message>
<message><source>woman playing water polo</source><translation>אישה משחקת כדור-מים</translation></message>
<message><source>woman police officer</source><translation>קצינת משטרה</translation></message>
<message><source>woman pouting</source><translation>אישה מבואסת</translation></message>
<message><source>woman raising hand</source><translation>אישה מנופפת בידה</translation></message>
<message><source>woman rowing boat</source><translation>אישה חותרת בסירה</translation></message>
<message><source>woman running</source><translation>אישה רצה</translation></message>
<message><source>woman running: facing right</source><translation>אישה רצה: פונה ימינה</translation></message>
<message><source>woman scientist</source><translation>מדענית</translation></message>
<message><source>woman shrugging</source><translation>אישה מושכת בכתפיה</translation></message>
<message><source>woman singer</source><translation>זמרת</translation></message>
<message><source>woman standing</source><translation>אישה עומדת</translation></message>
<message><source>woman student</source><translation>סטודנטית</translation></message>
<message><source>woman superhero</source><translation>סופרוומן</translation></message>
<message><source>woman supervillain</source><translation>מרשעת על</translation></message>
<message><source>woman surfing</source><translation>אישה גולשת</translation></message>
<message><source>woman swimming</source><translation>אישה שוחה</translation></message>
<message><source>woman teacher</source><translation>מוֹרָה</translation></message>
<message><source>woman technologist</source><translation>טכנולוגית</translation></message>
<message><source>woman tipping hand</source><translation>אישה מבקשת טיפ</translation></message>
<message><source>woman vampire</source><translation>ערפדית</translation></message>
<message><source>woman walking</source><translation>אישה הולכת</translation></message>
<message><source>woman walking: facing right</source><translation>אישה הולכת: פונה ימינה</translation></message>
<message><source>woman wearing turban</source><translation>אישה עם טורבן</translation></message>
<message><source>woman with headscarf</source><translation>אישה עם רעלה</translation></message>
<message><source>woman with veil</source><translation>אישה עם הינומה</translation></message>
<message><source>woman with white cane</source><translation>אישה עם מקל נחייה</translation></message>
<message><source>woman with white cane: facing right</source><translation>אישה עם מקל נחייה: פונה ימינה</translation></message>
<message><source>woman zombie</source><translation>זומבי אישה</translation></message>
<message><source>woman: bald</source><translation>אישה: קירח</translation></message>
<message><source>woman: beard</source><translation>אישה עם זקן</translation></message>
<message><source>woman: blond hair</source><translation>בלונדינית</translation></message>
<message><source>woman: curly hair</source><translation>אישה: שיער מתולתל</translation></message>
<message><source>woman: red hair</source><translation>אישה: שיער ג׳ינג׳י</translation></message>
<message><source>woman: white hair</source><translation>אישה: שיער לבן</translation></message>
<message><source>woman’s boot</source><translation>מגף של אישה</translation></message>
<message><source>woman’s clothes</source><translation>חולצת אישה</translation></message>
<message><source>woman’s hat</source><translation>כובע של אישה</translation></message>
<message><source>woman’s sandal</source><translation>סנדל של אישה</translation></message>
<message><source>women holding hands</source><translation>שתי נשים מחזיקות ידיים</translation></message>
<message><source>women with bunny ears</source><translation>נשים עם אוזני ארנב</translation></message>
<message><source>women wrestling</source><translation>נשים מתאבקות</translation></message>
<message><source>women’s room</source><translation>שלט שירותי נשים</translation></message>
<message><source>wood</source><translation>בול עץ</translation></message>
<message><source>woohoo</source><translation>קונפטי</translation></message>
<message><source>woozy face</source><translation>שיכור</translation></message>
<message><source>world</source><translation>עולם</translation></message>
<message><source>world map</source><translation>מפת העולם</translation></message>
<message><source>worm</source><translation>תולעת</translation></message>
<message><source>worried face</source><translation>פרצוף מודאג</translation></message>
<message><source>wrapped gift</source><translation>קופסת מתנה</translation></message>
<message><source>wrench</source><translation>מפתח ברגים</translation></message>
<message><source>writing hand</source><translation>יד כותבת</translation></message>
<message><source>x-ray</source><translation>רנטגן</translation></message>
<message><source>yarn</source><translation>צמר</translation></message>
<message><source>yawning face</source><translation>פרצוף מפהק</translation></message>
<message><source>yellow circle</source><translation>עיגול צהוב</translation></message>
<message><source>yellow heart</source><translation>לב צהוב</translation></message>
<message><source>yellow square</source><translation>ריבוע צהוב</translation></message>
<message><source>yen</source><translation>ין</translation></message>
<message><source>yen banknote</source><translation>שטר ין</translation></message>
<message><source>yikes</source><translation>זיעה קרה</translation></message>
<message><source>yin yang</source><translation>יין-יאנג</translation></message>
<message><source>yo-yo</source><translation>יו-יו</translation></message>
<message><source>zany face</source><translation>פרצוף משוגע</translation></message>
<message><source>zebra</source><translation>זברה</translation></message>
<message><source>zipper-mouth face</source><translation>פרצוף עם פה סגור ברוכסן</translation></message>
<message><source>zodiac</source><translation>גלגל המזלות</translation></message>
<message><source>zombie</source><translation>זומבי</translation></message>
</context>
</TS>
