<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context><name>EmojiLocalisation</name>
<message><source>10:00</source><translation>10:00</translation></message>
<message><source>10:30</source><translation>10:30</translation></message>
<message><source>11:00</source><translation>11:00</translation></message>
<message><source>11:30</source><translation>11:30</translation></message>
<message><source>12:00</source><translation>12:00</translation></message>
<message><source>12:30</source><translation>12:30</translation></message>
<message><source>1:00</source><translation>1:00</translation></message>
<message><source>1:30</source><translation>1:30</translation></message>
<message><source>1st place medal</source><translation>ميدالية مركز أول</translation></message>
<message><source>2:00</source><translation>2:00</translation></message>
<message><source>2:30</source><translation>2:30</translation></message>
<message><source>2nd place medal</source><translation>ميدالية مركز ثانٍ</translation></message>
<message><source>3:00</source><translation>3:00</translation></message>
<message><source>3rd place medal</source><translation>ميدالية مركز ثالث</translation></message>
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
<message><source>?</source><translation>استفهام</translation></message>
<message><source>A button (blood type)</source><translation>زر A</translation></message>
<message><source>AB button (blood type)</source><translation>زر AB (فئة الدم)</translation></message>
<message><source>ATM sign</source><translation>علامة ماكينة صرف آلي</translation></message>
<message><source>Aquarius</source><translation>الدلو</translation></message>
<message><source>Aries</source><translation>الحمل</translation></message>
<message><source>B button (blood type)</source><translation>زر B</translation></message>
<message><source>BACK arrow</source><translation>سهم رجوع</translation></message>
<message><source>CL button</source><translation>مسح داخل مربع</translation></message>
<message><source>COOL button</source><translation>بارد داخل مربع</translation></message>
<message><source>Cancer</source><translation>السرطان</translation></message>
<message><source>Capricorn</source><translation>الجدي</translation></message>
<message><source>Christmas tree</source><translation>شجرة عيد الميلاد</translation></message>
<message><source>END arrow</source><translation>سهم النهاية</translation></message>
<message><source>FREE button</source><translation>زر "مجاني"</translation></message>
<message><source>Gemini</source><translation>الجوزاء</translation></message>
<message><source>ID button</source><translation>زر "معرّف الهويّة"</translation></message>
<message><source>Japanese castle</source><translation>قلعة يابانية</translation></message>
<message><source>Japanese dolls</source><translation>دميتان يابانيتان</translation></message>
<message><source>Japanese post office</source><translation>مكتب بريد ياباني</translation></message>
<message><source>Japanese symbol for beginner</source><translation>ورقة خضراء وصفراء</translation></message>
<message><source>Japanese “acceptable” button</source><translation>الزر /مقبول/ باليابانية</translation></message>
<message><source>Japanese “application” button</source><translation>الزر /تطبيق/ باليابانية</translation></message>
<message><source>Japanese “bargain” button</source><translation>الزر /صفقة/ باليابانية</translation></message>
<message><source>Japanese “congratulations” button</source><translation>الزر /تهانينا/ باليابانية</translation></message>
<message><source>Japanese “discount” button</source><translation>الزر /خصم/ باليابانية</translation></message>
<message><source>Japanese “free of charge” button</source><translation>الزر /مجاناً/ باليابانية</translation></message>
<message><source>Japanese “here” button</source><translation>هنا بالياباني في مربع</translation></message>
<message><source>Japanese “monthly amount” button</source><translation>الزر /مبلغ شهري/ باليابانية</translation></message>
<message><source>Japanese “no vacancy” button</source><translation>الزر /غير خالٍ/ باليابانية</translation></message>
<message><source>Japanese “not free of charge” button</source><translation>الزر /غير مجاني/ باليابانية</translation></message>
<message><source>Japanese “open for business” button</source><translation>الزر /عمل/ باليابانية</translation></message>
<message><source>Japanese “passing grade” button</source><translation>الزر /درجة النجاح/ باليابانية</translation></message>
<message><source>Japanese “prohibited” button</source><translation>الزر /ممنوع/ باليابانية</translation></message>
<message><source>Japanese “reserved” button</source><translation>الزر /محجوز/ باليابانية</translation></message>
<message><source>Japanese “secret” button</source><translation>الزر /سر/ باليابانية</translation></message>
<message><source>Japanese “service charge” button</source><translation>الزر /خدمة برسوم/ باليابانية</translation></message>
<message><source>Japanese “vacancy” button</source><translation>الزر /خالٍ/ باليابانية</translation></message>
<message><source>Leo</source><translation>الأسد</translation></message>
<message><source>Libra</source><translation>الميزان</translation></message>
<message><source>Mrs. Claus</source><translation>سيدة سانتا كلوز</translation></message>
<message><source>Mx Claus</source><translation>كلوز</translation></message>
<message><source>NEW button</source><translation>زر "جديد"</translation></message>
<message><source>NG button</source><translation>زر "غير جيد"</translation></message>
<message><source>O button (blood type)</source><translation>زر O</translation></message>
<message><source>OK button</source><translation>زر "موافق"</translation></message>
<message><source>OK hand</source><translation>يد تشير للموافقة</translation></message>
<message><source>ON! arrow</source><translation>سهم تشغيل</translation></message>
<message><source>Ophiuchus</source><translation>الحواء</translation></message>
<message><source>P button</source><translation>انتظار سيارات</translation></message>
<message><source>Pisces</source><translation>الحوت</translation></message>
<message><source>SOON arrow</source><translation>سهم علامة قريبًا</translation></message>
<message><source>SOS button</source><translation>زر "طوارئ"</translation></message>
<message><source>Sagittarius</source><translation>القوس</translation></message>
<message><source>Santa Claus</source><translation>بابا نويل</translation></message>
<message><source>Scorpio</source><translation>العقرب</translation></message>
<message><source>Statue of Liberty</source><translation>تمثال الحرية</translation></message>
<message><source>T-Rex</source><translation>التيرانوصور</translation></message>
<message><source>TOP arrow</source><translation>السهم لأعلى</translation></message>
<message><source>Taurus</source><translation>الثور</translation></message>
<message><source>Tokyo tower</source><translation>برج طوكيو</translation></message>
<message><source>UP! button</source><translation>أعلى</translation></message>
<message><source>VS button</source><translation>ضد</translation></message>
<message><source>Virgo</source><translation>العذراء</translation></message>
<message><source>ZZZ</source><translation>نعسان</translation></message>
<message><source>abacus</source><translation>معداد</translation></message>
<message><source>accessibility</source><translation>إمكانية الوصول</translation></message>
<message><source>accordion</source><translation>أكورديون</translation></message>
<message><source>adhesive bandage</source><translation>ضمادة لاصقة</translation></message>
<message><source>admission tickets</source><translation>تذكرتا دخول</translation></message>
<message><source>adult</source><translation>بالغ</translation></message>
<message><source>aerial tramway</source><translation>عربة قطار هوائي</translation></message>
<message><source>airplane</source><translation>طائرة</translation></message>
<message><source>airplane arrival</source><translation>وصول طائرة</translation></message>
<message><source>airplane departure</source><translation>مغادرة طائرة</translation></message>
<message><source>alarm clock</source><translation>ساعة منبه</translation></message>
<message><source>alembic</source><translation>أمبيق</translation></message>
<message><source>alien</source><translation>كائن فضائي</translation></message>
<message><source>alien monster</source><translation>وحش غريب</translation></message>
<message><source>ambulance</source><translation>سيارة إسعاف</translation></message>
<message><source>american football</source><translation>كرة قدم أمريكية</translation></message>
<message><source>amphora</source><translation>جرة</translation></message>
<message><source>amulet</source><translation>حسد</translation></message>
<message><source>anatomical heart</source><translation>عضو القلب</translation></message>
<message><source>anchor</source><translation>مرساة</translation></message>
<message><source>anger</source><translation>جنون</translation></message>
<message><source>anger symbol</source><translation>رمز الغضب</translation></message>
<message><source>angry</source><translation>غضب</translation></message>
<message><source>angry face</source><translation>وجه غاضب</translation></message>
<message><source>angry face with horns</source><translation>وجه غاضب بقرنين</translation></message>
<message><source>anguished face</source><translation>وجه مكروب</translation></message>
<message><source>animal</source><translation>حيوان</translation></message>
<message><source>ant</source><translation>نملة</translation></message>
<message><source>antenna bars</source><translation>إشارات هوائي</translation></message>
<message><source>anxious</source><translation>قلق</translation></message>
<message><source>anxious face with sweat</source><translation>وجه بفم مفتوح وعرق بارد</translation></message>
<message><source>arrow</source><translation>سهم</translation></message>
<message><source>art</source><translation>فن</translation></message>
<message><source>articulated lorry</source><translation>لوري</translation></message>
<message><source>artist</source><translation>فنان رسم</translation></message>
<message><source>artist palette</source><translation>لوحة ألوان الرسام</translation></message>
<message><source>astonished face</source><translation>وجه مندهش</translation></message>
<message><source>astronaut</source><translation>رائد الفضاء</translation></message>
<message><source>atom symbol</source><translation>نووي</translation></message>
<message><source>auto rickshaw</source><translation>توكتوك</translation></message>
<message><source>automobile</source><translation>سيارة</translation></message>
<message><source>avocado</source><translation>أفوكادو</translation></message>
<message><source>awesome</source><translation>عظيم</translation></message>
<message><source>axe</source><translation>بلطة</translation></message>
<message><source>babe</source><translation>حبيبي</translation></message>
<message><source>baby</source><translation>رضيع</translation></message>
<message><source>baby angel</source><translation>طفل ملاك</translation></message>
<message><source>baby bottle</source><translation>زجاجة الرضاعة</translation></message>
<message><source>baby chick</source><translation>كتكوت صغير</translation></message>
<message><source>baby symbol</source><translation>إشارة طفل</translation></message>
<message><source>backhand index pointing down</source><translation>إصبع لأسفل</translation></message>
<message><source>backhand index pointing left</source><translation>إصبع لليسار</translation></message>
<message><source>backhand index pointing right</source><translation>إصبع لليمين</translation></message>
<message><source>backhand index pointing up</source><translation>إصبع لأعلى</translation></message>
<message><source>backpack</source><translation>حقيبة مدرسة</translation></message>
<message><source>bacon</source><translation>لحم مقدد</translation></message>
<message><source>badger</source><translation>غرير</translation></message>
<message><source>badminton</source><translation>تنس الريشة</translation></message>
<message><source>bae</source><translation>زوج</translation></message>
<message><source>bag</source><translation>حقيبة</translation></message>
<message><source>bagel</source><translation>خبز البيغل</translation></message>
<message><source>baggage claim</source><translation>استرداد الحقائب</translation></message>
<message><source>baguette bread</source><translation>الخبز الفرنسي</translation></message>
<message><source>balance scale</source><translation>ميزان</translation></message>
<message><source>ball</source><translation>كرة</translation></message>
<message><source>ballet</source><translation>باليرينا</translation></message>
<message><source>ballet shoes</source><translation>حذاء باليه</translation></message>
<message><source>balloon</source><translation>بالون</translation></message>
<message><source>ballot</source><translation>اقتراع</translation></message>
<message><source>ballot box with ballot</source><translation>صندوق اقتراع وورقة اقتراع</translation></message>
<message><source>banana</source><translation>موز</translation></message>
<message><source>banjo</source><translation>آلة بانجو</translation></message>
<message><source>bank</source><translation>بنك</translation></message>
<message><source>bar</source><translation>بار</translation></message>
<message><source>bar chart</source><translation>مخطط بياني شريطي</translation></message>
<message><source>barber pole</source><translation>محل حلاقة</translation></message>
<message><source>baseball</source><translation>بيسبول</translation></message>
<message><source>basket</source><translation>سلة</translation></message>
<message><source>basketball</source><translation>كرة سلة</translation></message>
<message><source>bat</source><translation>خفاش</translation></message>
<message><source>bathroom</source><translation>حمام</translation></message>
<message><source>bathtub</source><translation>حوض استحمام</translation></message>
<message><source>battery</source><translation>بطارية</translation></message>
<message><source>beach</source><translation>شاطىء</translation></message>
<message><source>beach with umbrella</source><translation>شاطئ وشمسية</translation></message>
<message><source>beaming face with smiling eyes</source><translation>وجه مشرق بعينين باسمتين</translation></message>
<message><source>beans</source><translation>بقول</translation></message>
<message><source>bear</source><translation>وجه دب</translation></message>
<message><source>beating heart</source><translation>قلب يخفق</translation></message>
<message><source>beauty</source><translation>جمال</translation></message>
<message><source>beaver</source><translation>سمّور</translation></message>
<message><source>bed</source><translation>سرير</translation></message>
<message><source>beer mug</source><translation>كأس بيرة</translation></message>
<message><source>beetle</source><translation>خنفساء</translation></message>
<message><source>bell</source><translation>جرس</translation></message>
<message><source>bell pepper</source><translation>فلفل حلو</translation></message>
<message><source>bell with slash</source><translation>ممنوع استخدام الجرس</translation></message>
<message><source>bellhop bell</source><translation>جرس فندق</translation></message>
<message><source>bento box</source><translation>علبة طعام</translation></message>
<message><source>beverage box</source><translation>علبة عصير</translation></message>
<message><source>bff</source><translation>أصدقاء</translation></message>
<message><source>bicycle</source><translation>دراجة</translation></message>
<message><source>bike</source><translation>سيكل</translation></message>
<message><source>bikini</source><translation>ملابس البحر</translation></message>
<message><source>billed cap</source><translation>قبعة رياضية</translation></message>
<message><source>biohazard</source><translation>خطورة بيولوجية</translation></message>
<message><source>biologist</source><translation>بيولوجي</translation></message>
<message><source>bird</source><translation>طائر</translation></message>
<message><source>birthday</source><translation>عيد ميلاد</translation></message>
<message><source>birthday cake</source><translation>كعكة عيد ميلاد</translation></message>
<message><source>bison</source><translation>ثور أمريكي</translation></message>
<message><source>biting lip</source><translation>عض الشفاه</translation></message>
<message><source>black bird</source><translation>طائر أسود</translation></message>
<message><source>black cat</source><translation>هرّ أسود</translation></message>
<message><source>black circle</source><translation>دائرة سوداء</translation></message>
<message><source>black flag</source><translation>علم أسود يرفرف</translation></message>
<message><source>black heart</source><translation>قلب أسود</translation></message>
<message><source>black large square</source><translation>مربع كبير أسود</translation></message>
<message><source>black medium square</source><translation>مربع متوسط أسود</translation></message>
<message><source>black medium-small square</source><translation>مربع صغير متوسط أسود</translation></message>
<message><source>black nib</source><translation>سن قلم أسود</translation></message>
<message><source>black small square</source><translation>مربع صغير أسود</translation></message>
<message><source>black square button</source><translation>زر مربع أسود</translation></message>
<message><source>blessed</source><translation>مبارك</translation></message>
<message><source>blossom</source><translation>زهرة</translation></message>
<message><source>blowfish</source><translation>سمكة منتفخة</translation></message>
<message><source>blu-ray</source><translation>bluray</translation></message>
<message><source>blue</source><translation>أزرق</translation></message>
<message><source>blue book</source><translation>كتاب أزرق</translation></message>
<message><source>blue circle</source><translation>دائرة زرقاء</translation></message>
<message><source>blue heart</source><translation>قلب أزرق</translation></message>
<message><source>blue square</source><translation>مربع أزرق</translation></message>
<message><source>blueberries</source><translation>توت برّي</translation></message>
<message><source>boar</source><translation>خنزير بري</translation></message>
<message><source>boat</source><translation>زورق</translation></message>
<message><source>body</source><translation>جسم</translation></message>
<message><source>bomb</source><translation>قنبلة</translation></message>
<message><source>bone</source><translation>عظمة</translation></message>
<message><source>book</source><translation>كتاب</translation></message>
<message><source>bookmark</source><translation>علامة توقف قراءة</translation></message>
<message><source>bookmark tabs</source><translation>لصاقات علامات توقف قراءة</translation></message>
<message><source>books</source><translation>كتب</translation></message>
<message><source>boom</source><translation>بووم</translation></message>
<message><source>boomerang</source><translation>خذوف مرتد</translation></message>
<message><source>bottle</source><translation>زجاجة</translation></message>
<message><source>bottle with popping cork</source><translation>زجاجة بسدادة مفرقعة</translation></message>
<message><source>bouquet</source><translation>باقة زهور</translation></message>
<message><source>bow and arrow</source><translation>قوس وسهم</translation></message>
<message><source>bowl with spoon</source><translation>طبق وملعقة</translation></message>
<message><source>bowling</source><translation>بولينغ</translation></message>
<message><source>boxing glove</source><translation>قفاز ملاكمة</translation></message>
<message><source>boy</source><translation>صبي</translation></message>
<message><source>brain</source><translation>دماغ</translation></message>
<message><source>bread</source><translation>خبز</translation></message>
<message><source>breast-feeding</source><translation>رضاعة</translation></message>
<message><source>brick</source><translation>طوبة</translation></message>
<message><source>bridge at night</source><translation>جسر في الليل</translation></message>
<message><source>briefcase</source><translation>حقيبة كتب</translation></message>
<message><source>briefs</source><translation>ملابس تحتية</translation></message>
<message><source>bright</source><translation>مشمس</translation></message>
<message><source>bright button</source><translation>زر سطوع مرتفع</translation></message>
<message><source>bro</source><translation>اشقر</translation></message>
<message><source>broccoli</source><translation>بروكولي</translation></message>
<message><source>broken chain</source><translation>سلسلة مكسورة</translation></message>
<message><source>broken heart</source><translation>قلب مكسور</translation></message>
<message><source>broom</source><translation>مكنسة</translation></message>
<message><source>brown</source><translation>بني</translation></message>
<message><source>brown circle</source><translation>دائرة بنية</translation></message>
<message><source>brown heart</source><translation>قلب بني</translation></message>
<message><source>brown mushroom</source><translation>فطر بني</translation></message>
<message><source>brown square</source><translation>مربع بني</translation></message>
<message><source>bubble tea</source><translation>شاي الفقاعات</translation></message>
<message><source>bubbles</source><translation>فقاعات</translation></message>
<message><source>bucket</source><translation>دلو</translation></message>
<message><source>buffalo</source><translation>جاموس</translation></message>
<message><source>bug</source><translation>بق</translation></message>
<message><source>building</source><translation>مبنى</translation></message>
<message><source>building construction</source><translation>إنشاءات</translation></message>
<message><source>bullet train</source><translation>قطار سريع بوجه محدب</translation></message>
<message><source>bullseye</source><translation>نشان</translation></message>
<message><source>bundle</source><translation>دافئ</translation></message>
<message><source>bunny</source><translation>أرنب</translation></message>
<message><source>burrito</source><translation>بوريتو</translation></message>
<message><source>bus</source><translation>حافلة</translation></message>
<message><source>bus stop</source><translation>موقف حافلات</translation></message>
<message><source>bust in silhouette</source><translation>صورة ظلية</translation></message>
<message><source>busts in silhouette</source><translation>صورتان ظليتان</translation></message>
<message><source>butter</source><translation>زبد</translation></message>
<message><source>butterfly</source><translation>فراشة</translation></message>
<message><source>button</source><translation>زر</translation></message>
<message><source>cactus</source><translation>صبار</translation></message>
<message><source>cake</source><translation>كيكة</translation></message>
<message><source>calendar</source><translation>تقويم</translation></message>
<message><source>call me hand</source><translation>إشارة للاتصال</translation></message>
<message><source>camel</source><translation>جمل وحيد السنام</translation></message>
<message><source>camera</source><translation>كاميرا</translation></message>
<message><source>camera with flash</source><translation>كاميرا بفلاش</translation></message>
<message><source>camping</source><translation>تخييم</translation></message>
<message><source>candle</source><translation>شمعة</translation></message>
<message><source>candy</source><translation>حلوى</translation></message>
<message><source>canned food</source><translation>طعام معلّب</translation></message>
<message><source>canoe</source><translation>زورق</translation></message>
<message><source>card file box</source><translation>صندوق بطاقات</translation></message>
<message><source>card index</source><translation>فهرس بطاقات</translation></message>
<message><source>card index dividers</source><translation>حاجز بطاقات</translation></message>
<message><source>cardinal</source><translation>كاردينال</translation></message>
<message><source>carousel horse</source><translation>حصان الدوامة</translation></message>
<message><source>carp streamer</source><translation>قصاصات ملونة</translation></message>
<message><source>carpentry saw</source><translation>منشار يدوي</translation></message>
<message><source>carrot</source><translation>جزر</translation></message>
<message><source>cash</source><translation>كاش</translation></message>
<message><source>castle</source><translation>قلعة</translation></message>
<message><source>cat</source><translation>قطة</translation></message>
<message><source>cat face</source><translation>وجه قطة</translation></message>
<message><source>cat with tears of joy</source><translation>وجه قطة بدموع فرح</translation></message>
<message><source>cat with wry smile</source><translation>وجه قطة بابتسامة ممتعضة</translation></message>
<message><source>celebration</source><translation>احتفال</translation></message>
<message><source>chains</source><translation>سلاسل</translation></message>
<message><source>chair</source><translation>كرسي</translation></message>
<message><source>chart decreasing</source><translation>مخطط بياني لأسفل</translation></message>
<message><source>chart increasing</source><translation>اتجاه لأعلى</translation></message>
<message><source>chart increasing with yen</source><translation>مخطط لبيانات متزايدة مع الين</translation></message>
<message><source>check box with check</source><translation>مربع اختيار محدد</translation></message>
<message><source>check mark</source><translation>علامة صح</translation></message>
<message><source>check mark button</source><translation>زر علامة تحديد</translation></message>
<message><source>checkmark</source><translation>تحديد</translation></message>
<message><source>cheese wedge</source><translation>قطعة جبن</translation></message>
<message><source>chef</source><translation>شيف</translation></message>
<message><source>chemist</source><translation>كيميائي</translation></message>
<message><source>chemistry</source><translation>كيمياء</translation></message>
<message><source>chequered flag</source><translation>علم مربعات</translation></message>
<message><source>cherries</source><translation>كرز</translation></message>
<message><source>cherry blossom</source><translation>زهرة الكرز</translation></message>
<message><source>chess pawn</source><translation>بيدق</translation></message>
<message><source>chestnut</source><translation>كستناء</translation></message>
<message><source>chicken</source><translation>دجاجة</translation></message>
<message><source>child</source><translation>طفل</translation></message>
<message><source>children crossing</source><translation>عبور أطفال</translation></message>
<message><source>chipmunk</source><translation>سنجاب</translation></message>
<message><source>chocolate bar</source><translation>لوح شوكولاتة</translation></message>
<message><source>chopsticks</source><translation>عيدان للأكل</translation></message>
<message><source>christmas</source><translation>عيد الميلاد</translation></message>
<message><source>church</source><translation>كنيسة</translation></message>
<message><source>cigarette</source><translation>سيجارة</translation></message>
<message><source>cinema</source><translation>سينما</translation></message>
<message><source>circle</source><translation>دائرة</translation></message>
<message><source>circled M</source><translation>حرف إم</translation></message>
<message><source>circus tent</source><translation>خيمة سيرك</translation></message>
<message><source>cityscape</source><translation>ناطحات سحاب</translation></message>
<message><source>cityscape at dusk</source><translation>غروب مدينة</translation></message>
<message><source>clamp</source><translation>آلة ضغط</translation></message>
<message><source>clapper board</source><translation>كلاكيت</translation></message>
<message><source>clapping hands</source><translation>يدان تصفقان</translation></message>
<message><source>classical building</source><translation>مبنى أثري</translation></message>
<message><source>climb</source><translation>تسلق</translation></message>
<message><source>clinking beer mugs</source><translation>كأسا بيرة</translation></message>
<message><source>clinking glasses</source><translation>كأسان يرتطمان</translation></message>
<message><source>clipboard</source><translation>لوح كتابة مشبكي</translation></message>
<message><source>clock</source><translation>الساعة</translation></message>
<message><source>clockwise vertical arrows</source><translation>سهمان رأسيان مع عقارب الساعة</translation></message>
<message><source>closed book</source><translation>كتاب مغلق</translation></message>
<message><source>closed mailbox with lowered flag</source><translation>صندوق بريد مغلق بإشارة لأسفل</translation></message>
<message><source>closed mailbox with raised flag</source><translation>صندوق بريد مغلق بإشارة مرفوعة</translation></message>
<message><source>closed umbrella</source><translation>شمسية مغلقة</translation></message>
<message><source>clothes</source><translation>شوبينغ</translation></message>
<message><source>clothing</source><translation>ملابس</translation></message>
<message><source>cloud</source><translation>سحابة</translation></message>
<message><source>cloud with lightning</source><translation>سحابة وبرق</translation></message>
<message><source>cloud with lightning and rain</source><translation>سحابة وبرق ورعد</translation></message>
<message><source>cloud with rain</source><translation>سحابة ومطر</translation></message>
<message><source>cloud with snow</source><translation>سحابة وثلج</translation></message>
<message><source>clown face</source><translation>وجه مهرج</translation></message>
<message><source>club suit</source><translation>ورقة لعب بشكل شجرة</translation></message>
<message><source>clutch bag</source><translation>محفظة يد</translation></message>
<message><source>coat</source><translation>معطف</translation></message>
<message><source>cockroach</source><translation>صرصور</translation></message>
<message><source>cocktail glass</source><translation>كأس عصير كوكتيل</translation></message>
<message><source>coconut</source><translation>جوز الهند</translation></message>
<message><source>coffin</source><translation>تابوت</translation></message>
<message><source>coin</source><translation>عملة معدنية</translation></message>
<message><source>cold</source><translation>برد</translation></message>
<message><source>cold face</source><translation>وجه بارد</translation></message>
<message><source>collision</source><translation>تصادم</translation></message>
<message><source>comet</source><translation>مذنّب</translation></message>
<message><source>comic</source><translation>هزل</translation></message>
<message><source>compass</source><translation>بوصلة</translation></message>
<message><source>computer</source><translation>كمبيوتر</translation></message>
<message><source>computer disk</source><translation>قرص كمبيوتر</translation></message>
<message><source>computer mouse</source><translation>ماوس</translation></message>
<message><source>confetti ball</source><translation>كرة أوراق ملونة</translation></message>
<message><source>confounded face</source><translation>وجه مرتبك</translation></message>
<message><source>confused face</source><translation>وجه حائر</translation></message>
<message><source>construction</source><translation>تحت الإنشاء</translation></message>
<message><source>construction worker</source><translation>شخص يعمل في البناء</translation></message>
<message><source>control knobs</source><translation>أزرار تحكم</translation></message>
<message><source>convenience store</source><translation>متجر بقالة</translation></message>
<message><source>cook</source><translation>طاهي</translation></message>
<message><source>cooked rice</source><translation>أرز مطبوخ</translation></message>
<message><source>cookie</source><translation>كعكة</translation></message>
<message><source>cooking</source><translation>مقلاة</translation></message>
<message><source>copyright</source><translation>علامة حقوق نشر</translation></message>
<message><source>coral</source><translation>مرجان</translation></message>
<message><source>corn</source><translation>ذرة</translation></message>
<message><source>cosmetics</source><translation>مستحضرات تجميل</translation></message>
<message><source>couch and lamp</source><translation>كنبة ومصباح</translation></message>
<message><source>counterclockwise arrows button</source><translation>زر عكس اتجاه عقارب الساعة</translation></message>
<message><source>couple</source><translation>ثنائي</translation></message>
<message><source>couple with heart</source><translation>زوج وقلب</translation></message>
<message><source>couple with heart: man, man</source><translation>زوج وقلب: رجل ورجل</translation></message>
<message><source>couple with heart: woman, man</source><translation>زوج وقلب: سيدة ورجل</translation></message>
<message><source>couple with heart: woman, woman</source><translation>زوج وقلب: سيدة وسيدة</translation></message>
<message><source>cow</source><translation>بقرة</translation></message>
<message><source>cow face</source><translation>وجه بقرة</translation></message>
<message><source>cowboy hat face</source><translation>وجه بقبعة راعي بقر</translation></message>
<message><source>crab</source><translation>سرطان</translation></message>
<message><source>crayon</source><translation>قلم شمع ملون</translation></message>
<message><source>credit card</source><translation>بطاقة ائتمان</translation></message>
<message><source>crescent</source><translation>هلال</translation></message>
<message><source>crescent moon</source><translation>هلال</translation></message>
<message><source>cricket</source><translation>جدجد</translation></message>
<message><source>cricket game</source><translation>كريكيت</translation></message>
<message><source>crocodile</source><translation>تمساح</translation></message>
<message><source>croissant</source><translation>كرواسون</translation></message>
<message><source>cross mark</source><translation>علامة X</translation></message>
<message><source>cross mark button</source><translation>علامة X في مربع</translation></message>
<message><source>crossed fingers</source><translation>أصابع مشبكة</translation></message>
<message><source>crossed flags</source><translation>علمان متقاطعان</translation></message>
<message><source>crossed swords</source><translation>سيفان متصالبان</translation></message>
<message><source>crown</source><translation>تاج</translation></message>
<message><source>crutch</source><translation>عكاز</translation></message>
<message><source>cry</source><translation>بكاء</translation></message>
<message><source>crying</source><translation>يبكي</translation></message>
<message><source>crying cat</source><translation>وجه قطة يبكي</translation></message>
<message><source>crying face</source><translation>وجه يبكي</translation></message>
<message><source>crystal ball</source><translation>كرة كريستال</translation></message>
<message><source>cucumber</source><translation>خيار</translation></message>
<message><source>cup with straw</source><translation>كأس وقشة للشرب</translation></message>
<message><source>cupcake</source><translation>كعكة صغيرة</translation></message>
<message><source>curling stone</source><translation>حجرة لعبة الكرلنغ</translation></message>
<message><source>curly loop</source><translation>عقدة</translation></message>
<message><source>currency</source><translation>عملة</translation></message>
<message><source>currency exchange</source><translation>صرف عملة</translation></message>
<message><source>curry rice</source><translation>أرز وكاري</translation></message>
<message><source>custard</source><translation>كريم كراميل</translation></message>
<message><source>customs</source><translation>جمارك</translation></message>
<message><source>cut of meat</source><translation>قطعة لحم</translation></message>
<message><source>cyclone</source><translation>عاصفة</translation></message>
<message><source>dagger</source><translation>خنجر</translation></message>
<message><source>dance</source><translation>رقص</translation></message>
<message><source>dango</source><translation>حلوى الدانغو</translation></message>
<message><source>dark skin tone</source><translation>بشرة بلون غامق</translation></message>
<message><source>dashing away</source><translation>انطلاقة جري</translation></message>
<message><source>data</source><translation>احصائيات</translation></message>
<message><source>dating</source><translation>موعد</translation></message>
<message><source>dead</source><translation>ميت</translation></message>
<message><source>deaf man</source><translation>رجل أصم</translation></message>
<message><source>deaf person</source><translation>شخص أصم</translation></message>
<message><source>deaf woman</source><translation>سيدة صماء</translation></message>
<message><source>deciduous tree</source><translation>شجرة زائلة الخضرة</translation></message>
<message><source>deer</source><translation>غزال</translation></message>
<message><source>delivery truck</source><translation>شاحنة توصيل طلبات</translation></message>
<message><source>department store</source><translation>متجر شامل</translation></message>
<message><source>derelict house</source><translation>مبنى مهجور</translation></message>
<message><source>desert</source><translation>صحراء</translation></message>
<message><source>desert island</source><translation>جزيرة صحراوية</translation></message>
<message><source>desktop computer</source><translation>كمبيوتر</translation></message>
<message><source>dessert</source><translation>حلويات</translation></message>
<message><source>detective</source><translation>شخص يحقّق</translation></message>
<message><source>diamond</source><translation>ماسة</translation></message>
<message><source>diamond suit</source><translation>ورقة لعب بشكل ماسة</translation></message>
<message><source>diamond with a dot</source><translation>ماسة مع نقطة</translation></message>
<message><source>dim button</source><translation>زر سطوع منخفض</translation></message>
<message><source>dinner</source><translation>عشاء</translation></message>
<message><source>dinosaur</source><translation>ديناصور</translation></message>
<message><source>direction</source><translation>اتجاه</translation></message>
<message><source>disappear</source><translation>اختفاء</translation></message>
<message><source>disappointed</source><translation>محبط</translation></message>
<message><source>disappointed face</source><translation>وجه محبط</translation></message>
<message><source>disease</source><translation>بعوضة</translation></message>
<message><source>disguised face</source><translation>وجع مقنّع</translation></message>
<message><source>disk</source><translation>قرص</translation></message>
<message><source>divide</source><translation>علامة قسمة</translation></message>
<message><source>diving mask</source><translation>قناع غطس</translation></message>
<message><source>diya lamp</source><translation>مصباح ضياء</translation></message>
<message><source>dizzy</source><translation>دوار</translation></message>
<message><source>dna</source><translation>الحامض النووي</translation></message>
<message><source>doctor</source><translation>طبيب</translation></message>
<message><source>dodo</source><translation>طائر الدودو</translation></message>
<message><source>dog</source><translation>كلب</translation></message>
<message><source>dog face</source><translation>وجه كلب</translation></message>
<message><source>dollar</source><translation>دولار</translation></message>
<message><source>dollar banknote</source><translation>ورقة دولار</translation></message>
<message><source>dolphin</source><translation>دولفين</translation></message>
<message><source>donkey</source><translation>حمار</translation></message>
<message><source>door</source><translation>باب</translation></message>
<message><source>dotted line face</source><translation>وجه محدّد بنقاط</translation></message>
<message><source>dotted six-pointed star</source><translation>نجمة سداسية</translation></message>
<message><source>double curly loop</source><translation>عقدة مزدوجة</translation></message>
<message><source>double exclamation mark</source><translation>تعجب مزدوج</translation></message>
<message><source>doubt</source><translation>شك</translation></message>
<message><source>doughnut</source><translation>كعكة محلاة</translation></message>
<message><source>dove</source><translation>حمامة</translation></message>
<message><source>down arrow</source><translation>سهم لأسفل</translation></message>
<message><source>down-left arrow</source><translation>سهم لأسفل اليسار</translation></message>
<message><source>down-right arrow</source><translation>سهم لأسفل اليمين</translation></message>
<message><source>downcast face with sweat</source><translation>وجه بعرق بارد</translation></message>
<message><source>downwards button</source><translation>زر لأسفل</translation></message>
<message><source>dragon</source><translation>تنين</translation></message>
<message><source>dragon face</source><translation>وجه تنين</translation></message>
<message><source>dress</source><translation>فستان</translation></message>
<message><source>dressed</source><translation>تياب</translation></message>
<message><source>drink</source><translation>شراب</translation></message>
<message><source>drinking</source><translation>كحول</translation></message>
<message><source>drooling face</source><translation>وجه بلعاب سائل</translation></message>
<message><source>drop of blood</source><translation>قطرة دم</translation></message>
<message><source>droplet</source><translation>قطرة</translation></message>
<message><source>drum</source><translation>طبلة</translation></message>
<message><source>duck</source><translation>بطة</translation></message>
<message><source>dumpling</source><translation>زلابية صينية</translation></message>
<message><source>dvd</source><translation>قرص Dvd</translation></message>
<message><source>e-mail</source><translation>بريد إلكتروني</translation></message>
<message><source>eagle</source><translation>نسر</translation></message>
<message><source>ear</source><translation>أذن</translation></message>
<message><source>ear of corn</source><translation>ذرة</translation></message>
<message><source>ear with hearing aid</source><translation>أذن مع جهاز سمعي</translation></message>
<message><source>education</source><translation>تعليم</translation></message>
<message><source>egg</source><translation>بيض</translation></message>
<message><source>eggplant</source><translation>باذنجان</translation></message>
<message><source>eight o’clock</source><translation>الساعة الثامنة</translation></message>
<message><source>eight-pointed star</source><translation>نجمة بثمان نقاط</translation></message>
<message><source>eight-spoked asterisk</source><translation>نجمة ثمانية</translation></message>
<message><source>eight-thirty</source><translation>الثامنة والنصف</translation></message>
<message><source>eject button</source><translation>زر إخراج</translation></message>
<message><source>elderly</source><translation>عجوز</translation></message>
<message><source>electric</source><translation>كهرباء</translation></message>
<message><source>electric plug</source><translation>فيشة كهرباء</translation></message>
<message><source>elephant</source><translation>فيل</translation></message>
<message><source>elevator</source><translation>مصعد</translation></message>
<message><source>eleven o’clock</source><translation>الساعة الحادية عشرة</translation></message>
<message><source>eleven-thirty</source><translation>الحادية عشر ونصف</translation></message>
<message><source>elf</source><translation>جنّي صغير</translation></message>
<message><source>email</source><translation>ايميل</translation></message>
<message><source>emotion</source><translation>مشاعر</translation></message>
<message><source>empty nest</source><translation>عش فارغ</translation></message>
<message><source>engagement</source><translation>خطوبة</translation></message>
<message><source>enraged face</source><translation>وجه مشتاط غضبًا</translation></message>
<message><source>envelope</source><translation>ظرف</translation></message>
<message><source>envelope with arrow</source><translation>بريد صادر</translation></message>
<message><source>euro banknote</source><translation>ورقة يورو</translation></message>
<message><source>evergreen tree</source><translation>شجرة دائمة الخضرة</translation></message>
<message><source>evil</source><translation>شر</translation></message>
<message><source>ewe</source><translation>خروف</translation></message>
<message><source>exclamation</source><translation>تعجب</translation></message>
<message><source>exclamation question mark</source><translation>تعجب واستفهام</translation></message>
<message><source>experiment</source><translation>تجارب</translation></message>
<message><source>exploding head</source><translation>وجه برأس منفجر</translation></message>
<message><source>expressionless face</source><translation>وجه بدون تعبير</translation></message>
<message><source>eye</source><translation>عين</translation></message>
<message><source>eye in speech bubble</source><translation>عين في فقاعة كلام</translation></message>
<message><source>eyes</source><translation>عينان</translation></message>
<message><source>face</source><translation>وجه</translation></message>
<message><source>face blowing a kiss</source><translation>وجه يرسل قبلة</translation></message>
<message><source>face exhaling</source><translation>وجه يزفر الهواء</translation></message>
<message><source>face holding back tears</source><translation>وجه يحبس دموعه</translation></message>
<message><source>face in clouds</source><translation>وجه في الغيوم</translation></message>
<message><source>face savoring food</source><translation>وجه يتلذذ بالطعام</translation></message>
<message><source>face screaming in fear</source><translation>وجه خائف يصرخ</translation></message>
<message><source>face vomiting</source><translation>وجه يتقيّأ</translation></message>
<message><source>face with bags under eyes</source><translation>وجه بانتفاخ تحت العين</translation></message>
<message><source>face with crossed-out eyes</source><translation>وجه دائخ</translation></message>
<message><source>face with diagonal mouth</source><translation>وجه بفم مائل</translation></message>
<message><source>face with hand over mouth</source><translation>وجه ضاحك مع يد تغطّي الفم</translation></message>
<message><source>face with head-bandage</source><translation>وجه بعصابة رأس</translation></message>
<message><source>face with medical mask</source><translation>وجه بكمامة</translation></message>
<message><source>face with monocle</source><translation>وجه مع نظارة لعين واحدة</translation></message>
<message><source>face with open eyes and hand over mouth</source><translation>وجه بعينين مفتوحتين ويد تغطّي الفم</translation></message>
<message><source>face with open mouth</source><translation>وجه بفم مفتوح</translation></message>
<message><source>face with peeking eye</source><translation>وجه يختلس النظر</translation></message>
<message><source>face with raised eyebrow</source><translation>وجه بحاجب مرفوع</translation></message>
<message><source>face with rolling eyes</source><translation>وجه بعينين تدوران</translation></message>
<message><source>face with spiral eyes</source><translation>وجه بعينين دائختين</translation></message>
<message><source>face with steam from nose</source><translation>وجه بأنف يصدر بخارًا</translation></message>
<message><source>face with symbols on mouth</source><translation>وجه مع رموز على الفم</translation></message>
<message><source>face with tears of joy</source><translation>وجه بدموع فرح</translation></message>
<message><source>face with thermometer</source><translation>وجه مع ميزان للحرارة</translation></message>
<message><source>face with tongue</source><translation>وجه بلسان متدلٍ</translation></message>
<message><source>face without mouth</source><translation>وجه بدون فم</translation></message>
<message><source>factory</source><translation>مصنع</translation></message>
<message><source>factory worker</source><translation>عامل في مصنع</translation></message>
<message><source>fairy</source><translation>جنيّة خيالية</translation></message>
<message><source>fairytale</source><translation>خرافة</translation></message>
<message><source>falafel</source><translation>فلافل</translation></message>
<message><source>fallen leaf</source><translation>أوراق متساقطة</translation></message>
<message><source>falling</source><translation>سقوط</translation></message>
<message><source>family</source><translation>أسرة</translation></message>
<message><source>family: adult, adult, child</source><translation>أسرة: بالغ، بالغة، طفل</translation></message>
<message><source>family: adult, adult, child, child</source><translation>أسرة: بالغ، بالغة، طفل، طفلة</translation></message>
<message><source>family: adult, child</source><translation>أسرة: بالغ، طفل</translation></message>
<message><source>family: adult, child, child</source><translation>أسرة: بالغ، طفل، طفلة</translation></message>
<message><source>family: man, boy</source><translation>أسرة: رجل وصبي</translation></message>
<message><source>family: man, boy, boy</source><translation>أسرة: رجل، وصبي، وصبي</translation></message>
<message><source>family: man, girl</source><translation>أسرة: رجل وفتاة</translation></message>
<message><source>family: man, girl, boy</source><translation>أسرة: رجل، وفتاة، وصبي</translation></message>
<message><source>family: man, girl, girl</source><translation>أسرة: رجل، وفتاة، وفتاة</translation></message>
<message><source>family: man, man, boy</source><translation>أسرة: رجل، ورجل، وصبي</translation></message>
<message><source>family: man, man, boy, boy</source><translation>أسرة: رجل، ورجل، وصبي، وصبي</translation></message>
<message><source>family: man, man, girl</source><translation>أسرة: رجل، ورجل، وفتاة</translation></message>
<message><source>family: man, man, girl, boy</source><translation>أسرة: رجل، ورجل، وفتاة، وصبي</translation></message>
<message><source>family: man, man, girl, girl</source><translation>أسرة: رجل، ورجل، وفتاة، وفتاة</translation></message>
<message><source>family: man, woman, boy</source><translation>أسرة: رجل، وسيدة، وصبي</translation></message>
<message><source>family: man, woman, boy, boy</source><translation>أسرة: رجل، وسيدة، وصبي، وصبي</translation></message>
<message><source>family: man, woman, girl</source><translation>أسرة: رجل، وسيدة، وفتاة</translation></message>
<message><source>family: man, woman, girl, boy</source><translation>أسرة: رجل، وسيدة، وفتاة، وصبي</translation></message>
<message><source>family: man, woman, girl, girl</source><translation>أسرة: رجل، وسيدة، وفتاة، وفتاة</translation></message>
<message><source>family: woman, boy</source><translation>أسرة: سيدة وصبي</translation></message>
<message><source>family: woman, boy, boy</source><translation>أسرة: سيدة، وصبي، وصبي</translation></message>
<message><source>family: woman, girl</source><translation>أسرة: سيدة وفتاة</translation></message>
<message><source>family: woman, girl, boy</source><translation>أسرة: سيدة، وفتاة، وصبي</translation></message>
<message><source>family: woman, girl, girl</source><translation>أسرة: سيدة، وفتاة، وفتاة</translation></message>
<message><source>family: woman, woman, boy</source><translation>أسرة: سيدة، وسيدة، وصبي</translation></message>
<message><source>family: woman, woman, boy, boy</source><translation>أسرة: سيدة، وسيدة، وصبي، وصبي</translation></message>
<message><source>family: woman, woman, girl</source><translation>أسرة: سيدة، وسيدة، وفتاة</translation></message>
<message><source>family: woman, woman, girl, boy</source><translation>أسرة: سيدة، وسيدة، وفتاة، وصبي</translation></message>
<message><source>family: woman, woman, girl, girl</source><translation>أسرة: سيدة، وسيدة، وفتاة، وفتاة</translation></message>
<message><source>fantasy</source><translation>حدوتة</translation></message>
<message><source>farm</source><translation>مزرعة</translation></message>
<message><source>farmer</source><translation>مُزارع</translation></message>
<message><source>fast down button</source><translation>زر سريع لأسفل</translation></message>
<message><source>fast reverse button</source><translation>زر ترجيع سريع</translation></message>
<message><source>fast up button</source><translation>زر سريع لأعلى</translation></message>
<message><source>fast-forward button</source><translation>زر تقديم سريع</translation></message>
<message><source>fax machine</source><translation>فاكس</translation></message>
<message><source>fearful face</source><translation>وجه خائف</translation></message>
<message><source>feather</source><translation>ريشة</translation></message>
<message><source>female sign</source><translation>رمز أنثى</translation></message>
<message><source>ferris wheel</source><translation>عجلة دوارة</translation></message>
<message><source>ferry</source><translation>عبّارة</translation></message>
<message><source>field hockey</source><translation>هوكي أرضي</translation></message>
<message><source>file</source><translation>ملف</translation></message>
<message><source>file cabinet</source><translation>خزانة ملفات</translation></message>
<message><source>file folder</source><translation>مجلد ملفات</translation></message>
<message><source>film frames</source><translation>شريط سينمائي</translation></message>
<message><source>film projector</source><translation>جهاز عرض أفلام</translation></message>
<message><source>finger</source><translation>إصبع</translation></message>
<message><source>fingerprint</source><translation>بصمة</translation></message>
<message><source>fingers</source><translation>أصابع</translation></message>
<message><source>fire</source><translation>حريق</translation></message>
<message><source>fire engine</source><translation>سيارة إطفاء</translation></message>
<message><source>fire extinguisher</source><translation>مطفأة حريق</translation></message>
<message><source>firecracker</source><translation>مفرقعات</translation></message>
<message><source>firefighter</source><translation>إطفائي</translation></message>
<message><source>fireworks</source><translation>ألعاب نارية</translation></message>
<message><source>first</source><translation>أول</translation></message>
<message><source>first quarter moon</source><translation>تربيع أول</translation></message>
<message><source>first quarter moon face</source><translation>وجه تربيع أول</translation></message>
<message><source>fish</source><translation>سمكة</translation></message>
<message><source>fish cake with swirl</source><translation>كعكة سمك بشكل حلزوني</translation></message>
<message><source>fishing</source><translation>صيد</translation></message>
<message><source>fishing pole</source><translation>صنارة صيد</translation></message>
<message><source>five o’clock</source><translation>الساعة الخامسة</translation></message>
<message><source>five-thirty</source><translation>الخامسة والنصف</translation></message>
<message><source>flag</source><translation>علم</translation></message>
<message><source>flag in hole</source><translation>علم على حفرة</translation></message>
<message><source>flag: Afghanistan</source><translation>علم: أفغانستان</translation></message>
<message><source>flag: Albania</source><translation>علم: ألبانيا</translation></message>
<message><source>flag: Algeria</source><translation>علم: الجزائر</translation></message>
<message><source>flag: American Samoa</source><translation>علم: ساموا الأمريكية</translation></message>
<message><source>flag: Andorra</source><translation>علم: أندورا</translation></message>
<message><source>flag: Angola</source><translation>علم: أنغولا</translation></message>
<message><source>flag: Anguilla</source><translation>علم: أنغويلا</translation></message>
<message><source>flag: Antarctica</source><translation>علم: أنتاركتيكا</translation></message>
<message><source>flag: Antigua &amp; Barbuda</source><translation>علم: أنتيغوا وبربودا</translation></message>
<message><source>flag: Argentina</source><translation>علم: الأرجنتين</translation></message>
<message><source>flag: Armenia</source><translation>علم: أرمينيا</translation></message>
<message><source>flag: Aruba</source><translation>علم: أروبا</translation></message>
<message><source>flag: Ascension Island</source><translation>علم: جزيرة أسينشيون</translation></message>
<message><source>flag: Australia</source><translation>علم: أستراليا</translation></message>
<message><source>flag: Austria</source><translation>علم: النمسا</translation></message>
<message><source>flag: Azerbaijan</source><translation>علم: أذربيجان</translation></message>
<message><source>flag: Bahamas</source><translation>علم: جزر البهاما</translation></message>
<message><source>flag: Bahrain</source><translation>علم: البحرين</translation></message>
<message><source>flag: Bangladesh</source><translation>علم: بنغلاديش</translation></message>
<message><source>flag: Barbados</source><translation>علم: بربادوس</translation></message>
<message><source>flag: Belarus</source><translation>علم: بيلاروس</translation></message>
<message><source>flag: Belgium</source><translation>علم: بلجيكا</translation></message>
<message><source>flag: Belize</source><translation>علم: بليز</translation></message>
<message><source>flag: Benin</source><translation>علم: بنين</translation></message>
<message><source>flag: Bermuda</source><translation>علم: برمودا</translation></message>
<message><source>flag: Bhutan</source><translation>علم: بوتان</translation></message>
<message><source>flag: Bolivia</source><translation>علم: بوليفيا</translation></message>
<message><source>flag: Bosnia &amp; Herzegovina</source><translation>علم: البوسنة والهرسك</translation></message>
<message><source>flag: Botswana</source><translation>علم: بوتسوانا</translation></message>
<message><source>flag: Bouvet Island</source><translation>علم: جزيرة بوفيه</translation></message>
<message><source>flag: Brazil</source><translation>علم: البرازيل</translation></message>
<message><source>flag: British Indian Ocean Territory</source><translation>علم: الإقليم البريطاني في المحيط الهندي</translation></message>
<message><source>flag: British Virgin Islands</source><translation>علم: جزر فيرجن البريطانية</translation></message>
<message><source>flag: Brunei</source><translation>علم: بروناي</translation></message>
<message><source>flag: Bulgaria</source><translation>علم: بلغاريا</translation></message>
<message><source>flag: Burkina Faso</source><translation>علم: بوركينا فاسو</translation></message>
<message><source>flag: Burundi</source><translation>علم: بوروندي</translation></message>
<message><source>flag: Cambodia</source><translation>علم: كمبوديا</translation></message>
<message><source>flag: Cameroon</source><translation>علم: الكاميرون</translation></message>
<message><source>flag: Canada</source><translation>علم: كندا</translation></message>
<message><source>flag: Canary Islands</source><translation>علم: جزر الكناري</translation></message>
<message><source>flag: Cape Verde</source><translation>علم: الرأس الأخضر</translation></message>
<message><source>flag: Caribbean Netherlands</source><translation>علم: هولندا الكاريبية</translation></message>
<message><source>flag: Cayman Islands</source><translation>علم: جزر كايمان</translation></message>
<message><source>flag: Central African Republic</source><translation>علم: جمهورية أفريقيا الوسطى</translation></message>
<message><source>flag: Ceuta &amp; Melilla</source><translation>علم: سيوتا وميليلا</translation></message>
<message><source>flag: Chad</source><translation>علم: تشاد</translation></message>
<message><source>flag: Chile</source><translation>علم: تشيلي</translation></message>
<message><source>flag: China</source><translation>علم: الصين</translation></message>
<message><source>flag: Christmas Island</source><translation>علم: جزيرة كريسماس</translation></message>
<message><source>flag: Clipperton Island</source><translation>علم: جزيرة كليبيرتون</translation></message>
<message><source>flag: Cocos (Keeling) Islands</source><translation>علم: جزر كوكوس (كيلينغ)</translation></message>
<message><source>flag: Colombia</source><translation>علم: كولومبيا</translation></message>
<message><source>flag: Comoros</source><translation>علم: جزر القمر</translation></message>
<message><source>flag: Congo - Brazzaville</source><translation>علم: الكونغو - برازافيل</translation></message>
<message><source>flag: Congo - Kinshasa</source><translation>علم: الكونغو - كينشاسا</translation></message>
<message><source>flag: Cook Islands</source><translation>علم: جزر كوك</translation></message>
<message><source>flag: Costa Rica</source><translation>علم: كوستاريكا</translation></message>
<message><source>flag: Croatia</source><translation>علم: كرواتيا</translation></message>
<message><source>flag: Cuba</source><translation>علم: كوبا</translation></message>
<message><source>flag: Curaçao</source><translation>علم: كوراساو</translation></message>
<message><source>flag: Cyprus</source><translation>علم: قبرص</translation></message>
<message><source>flag: Czechia</source><translation>علم: التشيك</translation></message>
<message><source>flag: Côte d’Ivoire</source><translation>علم: ساحل العاج</translation></message>
<message><source>flag: Denmark</source><translation>علم: الدانمرك</translation></message>
<message><source>flag: Diego Garcia</source><translation>علم: دييغو غارسيا</translation></message>
<message><source>flag: Djibouti</source><translation>علم: جيبوتي</translation></message>
<message><source>flag: Dominica</source><translation>علم: دومينيكا</translation></message>
<message><source>flag: Dominican Republic</source><translation>علم: جمهورية الدومينيكان</translation></message>
<message><source>flag: Ecuador</source><translation>علم: الإكوادور</translation></message>
<message><source>flag: Egypt</source><translation>علم: مصر</translation></message>
<message><source>flag: El Salvador</source><translation>علم: السلفادور</translation></message>
<message><source>flag: England</source><translation>علم: إنجلترا</translation></message>
<message><source>flag: Equatorial Guinea</source><translation>علم: غينيا الاستوائية</translation></message>
<message><source>flag: Eritrea</source><translation>علم: إريتريا</translation></message>
<message><source>flag: Estonia</source><translation>علم: إستونيا</translation></message>
<message><source>flag: Eswatini</source><translation>علم: إسواتيني</translation></message>
<message><source>flag: Ethiopia</source><translation>علم: إثيوبيا</translation></message>
<message><source>flag: European Union</source><translation>علم: الاتحاد الأوروبي</translation></message>
<message><source>flag: Falkland Islands</source><translation>علم: جزر فوكلاند</translation></message>
<message><source>flag: Faroe Islands</source><translation>علم: جزر فارو</translation></message>
<message><source>flag: Fiji</source><translation>علم: فيجي</translation></message>
<message><source>flag: Finland</source><translation>علم: فنلندا</translation></message>
<message><source>flag: France</source><translation>علم: فرنسا</translation></message>
<message><source>flag: French Guiana</source><translation>علم: غويانا الفرنسية</translation></message>
<message><source>flag: French Polynesia</source><translation>علم: بولينيزيا الفرنسية</translation></message>
<message><source>flag: French Southern Territories</source><translation>علم: الأقاليم الجنوبية الفرنسية</translation></message>
<message><source>flag: Gabon</source><translation>علم: الغابون</translation></message>
<message><source>flag: Gambia</source><translation>علم: غامبيا</translation></message>
<message><source>flag: Georgia</source><translation>علم: جورجيا</translation></message>
<message><source>flag: Germany</source><translation>علم: ألمانيا</translation></message>
<message><source>flag: Ghana</source><translation>علم: غانا</translation></message>
<message><source>flag: Gibraltar</source><translation>علم: جبل طارق</translation></message>
<message><source>flag: Greece</source><translation>علم: اليونان</translation></message>
<message><source>flag: Greenland</source><translation>علم: غرينلاند</translation></message>
<message><source>flag: Grenada</source><translation>علم: غرينادا</translation></message>
<message><source>flag: Guadeloupe</source><translation>علم: غوادلوب</translation></message>
<message><source>flag: Guam</source><translation>علم: غوام</translation></message>
<message><source>flag: Guatemala</source><translation>علم: غواتيمالا</translation></message>
<message><source>flag: Guernsey</source><translation>علم: غيرنزي</translation></message>
<message><source>flag: Guinea</source><translation>علم: غينيا</translation></message>
<message><source>flag: Guinea-Bissau</source><translation>علم: غينيا بيساو</translation></message>
<message><source>flag: Guyana</source><translation>علم: غيانا</translation></message>
<message><source>flag: Haiti</source><translation>علم: هايتي</translation></message>
<message><source>flag: Heard &amp; McDonald Islands</source><translation>علم: جزيرة هيرد وجزر ماكدونالد</translation></message>
<message><source>flag: Honduras</source><translation>علم: هندوراس</translation></message>
<message><source>flag: Hong Kong SAR China</source><translation>علم: هونغ كونغ الصينية (منطقة إدارية خاصة)</translation></message>
<message><source>flag: Hungary</source><translation>علم: هنغاريا</translation></message>
<message><source>flag: Iceland</source><translation>علم: آيسلندا</translation></message>
<message><source>flag: India</source><translation>علم: الهند</translation></message>
<message><source>flag: Indonesia</source><translation>علم: إندونيسيا</translation></message>
<message><source>flag: Iran</source><translation>علم: إيران</translation></message>
<message><source>flag: Iraq</source><translation>علم: العراق</translation></message>
<message><source>flag: Ireland</source><translation>علم: أيرلندا</translation></message>
<message><source>flag: Isle of Man</source><translation>علم: جزيرة مان</translation></message>
<message><source>flag: Israel</source><translation>علم: إسرائيل</translation></message>
<message><source>flag: Italy</source><translation>علم: إيطاليا</translation></message>
<message><source>flag: Jamaica</source><translation>علم: جامايكا</translation></message>
<message><source>flag: Japan</source><translation>علم: اليابان</translation></message>
<message><source>flag: Jersey</source><translation>علم: جيرسي</translation></message>
<message><source>flag: Jordan</source><translation>علم: الأردن</translation></message>
<message><source>flag: Kazakhstan</source><translation>علم: كازاخستان</translation></message>
<message><source>flag: Kenya</source><translation>علم: كينيا</translation></message>
<message><source>flag: Kiribati</source><translation>علم: كيريباتي</translation></message>
<message><source>flag: Kosovo</source><translation>علم: كوسوفو</translation></message>
<message><source>flag: Kuwait</source><translation>علم: الكويت</translation></message>
<message><source>flag: Kyrgyzstan</source><translation>علم: قيرغيزستان</translation></message>
<message><source>flag: Laos</source><translation>علم: لاوس</translation></message>
<message><source>flag: Latvia</source><translation>علم: لاتفيا</translation></message>
<message><source>flag: Lebanon</source><translation>علم: لبنان</translation></message>
<message><source>flag: Lesotho</source><translation>علم: ليسوتو</translation></message>
<message><source>flag: Liberia</source><translation>علم: ليبيريا</translation></message>
<message><source>flag: Libya</source><translation>علم: ليبيا</translation></message>
<message><source>flag: Liechtenstein</source><translation>علم: ليختنشتاين</translation></message>
<message><source>flag: Lithuania</source><translation>علم: ليتوانيا</translation></message>
<message><source>flag: Luxembourg</source><translation>علم: لوكسمبورغ</translation></message>
<message><source>flag: Macao SAR China</source><translation>علم: منطقة ماكاو الإدارية الخاصة</translation></message>
<message><source>flag: Madagascar</source><translation>علم: مدغشقر</translation></message>
<message><source>flag: Malawi</source><translation>علم: ملاوي</translation></message>
<message><source>flag: Malaysia</source><translation>علم: ماليزيا</translation></message>
<message><source>flag: Maldives</source><translation>علم: جزر المالديف</translation></message>
<message><source>flag: Mali</source><translation>علم: مالي</translation></message>
<message><source>flag: Malta</source><translation>علم: مالطا</translation></message>
<message><source>flag: Marshall Islands</source><translation>علم: جزر مارشال</translation></message>
<message><source>flag: Martinique</source><translation>علم: جزر المارتينيك</translation></message>
<message><source>flag: Mauritania</source><translation>علم: موريتانيا</translation></message>
<message><source>flag: Mauritius</source><translation>علم: موريشيوس</translation></message>
<message><source>flag: Mayotte</source><translation>علم: مايوت</translation></message>
<message><source>flag: Mexico</source><translation>علم: المكسيك</translation></message>
<message><source>flag: Micronesia</source><translation>علم: ميكرونيزيا</translation></message>
<message><source>flag: Moldova</source><translation>علم: مولدوفا</translation></message>
<message><source>flag: Monaco</source><translation>علم: موناكو</translation></message>
<message><source>flag: Mongolia</source><translation>علم: منغوليا</translation></message>
<message><source>flag: Montenegro</source><translation>علم: الجبل الأسود</translation></message>
<message><source>flag: Montserrat</source><translation>علم: مونتسرات</translation></message>
<message><source>flag: Morocco</source><translation>علم: المغرب</translation></message>
<message><source>flag: Mozambique</source><translation>علم: موزمبيق</translation></message>
<message><source>flag: Myanmar (Burma)</source><translation>علم: ميانمار (بورما)</translation></message>
<message><source>flag: Namibia</source><translation>علم: ناميبيا</translation></message>
<message><source>flag: Nauru</source><translation>علم: ناورو</translation></message>
<message><source>flag: Nepal</source><translation>علم: نيبال</translation></message>
<message><source>flag: Netherlands</source><translation>علم: هولندا</translation></message>
<message><source>flag: New Caledonia</source><translation>علم: كاليدونيا الجديدة</translation></message>
<message><source>flag: New Zealand</source><translation>علم: نيوزيلندا</translation></message>
<message><source>flag: Nicaragua</source><translation>علم: نيكاراغوا</translation></message>
<message><source>flag: Niger</source><translation>علم: النيجر</translation></message>
<message><source>flag: Nigeria</source><translation>علم: نيجيريا</translation></message>
<message><source>flag: Niue</source><translation>علم: نيوي</translation></message>
<message><source>flag: Norfolk Island</source><translation>علم: جزيرة نورفولك</translation></message>
<message><source>flag: North Korea</source><translation>علم: كوريا الشمالية</translation></message>
<message><source>flag: North Macedonia</source><translation>علم: مقدونيا الشمالية</translation></message>
<message><source>flag: Northern Mariana Islands</source><translation>علم: جزر ماريانا الشمالية</translation></message>
<message><source>flag: Norway</source><translation>علم: النرويج</translation></message>
<message><source>flag: Oman</source><translation>علم: عُمان</translation></message>
<message><source>flag: Pakistan</source><translation>علم: باكستان</translation></message>
<message><source>flag: Palau</source><translation>علم: بالاو</translation></message>
<message><source>flag: Palestinian Territories</source><translation>علم: الأراضي الفلسطينية</translation></message>
<message><source>flag: Panama</source><translation>علم: بنما</translation></message>
<message><source>flag: Papua New Guinea</source><translation>علم: بابوا غينيا الجديدة</translation></message>
<message><source>flag: Paraguay</source><translation>علم: باراغواي</translation></message>
<message><source>flag: Peru</source><translation>علم: بيرو</translation></message>
<message><source>flag: Philippines</source><translation>علم: الفلبين</translation></message>
<message><source>flag: Pitcairn Islands</source><translation>علم: جزر بيتكيرن</translation></message>
<message><source>flag: Poland</source><translation>علم: بولندا</translation></message>
<message><source>flag: Portugal</source><translation>علم: البرتغال</translation></message>
<message><source>flag: Puerto Rico</source><translation>علم: بورتوريكو</translation></message>
<message><source>flag: Qatar</source><translation>علم: قطر</translation></message>
<message><source>flag: Romania</source><translation>علم: رومانيا</translation></message>
<message><source>flag: Russia</source><translation>علم: روسيا</translation></message>
<message><source>flag: Rwanda</source><translation>علم: رواندا</translation></message>
<message><source>flag: Réunion</source><translation>علم: روينيون</translation></message>
<message><source>flag: Samoa</source><translation>علم: ساموا</translation></message>
<message><source>flag: San Marino</source><translation>علم: سان مارينو</translation></message>
<message><source>flag: Sark</source><translation>علم: سارك</translation></message>
<message><source>flag: Saudi Arabia</source><translation>علم: المملكة العربية السعودية</translation></message>
<message><source>flag: Scotland</source><translation>علم: اسكتلندا</translation></message>
<message><source>flag: Senegal</source><translation>علم: السنغال</translation></message>
<message><source>flag: Serbia</source><translation>علم: صربيا</translation></message>
<message><source>flag: Seychelles</source><translation>علم: سيشل</translation></message>
<message><source>flag: Sierra Leone</source><translation>علم: سيراليون</translation></message>
<message><source>flag: Singapore</source><translation>علم: سنغافورة</translation></message>
<message><source>flag: Sint Maarten</source><translation>علم: سانت مارتن</translation></message>
<message><source>flag: Slovakia</source><translation>علم: سلوفاكيا</translation></message>
<message><source>flag: Slovenia</source><translation>علم: سلوفينيا</translation></message>
<message><source>flag: Solomon Islands</source><translation>علم: جزر سليمان</translation></message>
<message><source>flag: Somalia</source><translation>علم: الصومال</translation></message>
<message><source>flag: South Africa</source><translation>علم: جنوب أفريقيا</translation></message>
<message><source>flag: South Georgia &amp; South Sandwich Islands</source><translation>علم: جورجيا الجنوبية وجزر ساندويتش الجنوبية</translation></message>
<message><source>flag: South Korea</source><translation>علم: كوريا الجنوبية</translation></message>
<message><source>flag: South Sudan</source><translation>علم: جنوب السودان</translation></message>
<message><source>flag: Spain</source><translation>علم: إسبانيا</translation></message>
<message><source>flag: Sri Lanka</source><translation>علم: سريلانكا</translation></message>
<message><source>flag: St. Barthélemy</source><translation>علم: سان بارتليمي</translation></message>
<message><source>flag: St. Helena</source><translation>علم: سانت هيلينا</translation></message>
<message><source>flag: St. Kitts &amp; Nevis</source><translation>علم: سانت كيتس ونيفيس</translation></message>
<message><source>flag: St. Lucia</source><translation>علم: سانت لوسيا</translation></message>
<message><source>flag: St. Martin</source><translation>علم: سان مارتن</translation></message>
<message><source>flag: St. Pierre &amp; Miquelon</source><translation>علم: سان بيير ومكويلون</translation></message>
<message><source>flag: St. Vincent &amp; Grenadines</source><translation>علم: سانت فنسنت وجزر غرينادين</translation></message>
<message><source>flag: Sudan</source><translation>علم: السودان</translation></message>
<message><source>flag: Suriname</source><translation>علم: سورينام</translation></message>
<message><source>flag: Svalbard &amp; Jan Mayen</source><translation>علم: سفالبارد وجان ماين</translation></message>
<message><source>flag: Sweden</source><translation>علم: السويد</translation></message>
<message><source>flag: Switzerland</source><translation>علم: سويسرا</translation></message>
<message><source>flag: Syria</source><translation>علم: سوريا</translation></message>
<message><source>flag: São Tomé &amp; Príncipe</source><translation>علم: ساو تومي وبرينسيبي</translation></message>
<message><source>flag: Taiwan</source><translation>علم: تايوان</translation></message>
<message><source>flag: Tajikistan</source><translation>علم: طاجيكستان</translation></message>
<message><source>flag: Tanzania</source><translation>علم: تنزانيا</translation></message>
<message><source>flag: Thailand</source><translation>علم: تايلاند</translation></message>
<message><source>flag: Timor-Leste</source><translation>علم: تيمور - ليشتي</translation></message>
<message><source>flag: Togo</source><translation>علم: توغو</translation></message>
<message><source>flag: Tokelau</source><translation>علم: توكيلاو</translation></message>
<message><source>flag: Tonga</source><translation>علم: تونغا</translation></message>
<message><source>flag: Trinidad &amp; Tobago</source><translation>علم: ترينيداد وتوباغو</translation></message>
<message><source>flag: Tristan da Cunha</source><translation>علم: تريستان دا كونا</translation></message>
<message><source>flag: Tunisia</source><translation>علم: تونس</translation></message>
<message><source>flag: Turkmenistan</source><translation>علم: تركمانستان</translation></message>
<message><source>flag: Turks &amp; Caicos Islands</source><translation>علم: جزر توركس وكايكوس</translation></message>
<message><source>flag: Tuvalu</source><translation>علم: توفالو</translation></message>
<message><source>flag: Türkiye</source><translation>علم: تركيا</translation></message>
<message><source>flag: U.S. Outlying Islands</source><translation>علم: جزر الولايات المتحدة النائية</translation></message>
<message><source>flag: U.S. Virgin Islands</source><translation>علم: جزر فيرجن الأمريكية</translation></message>
<message><source>flag: Uganda</source><translation>علم: أوغندا</translation></message>
<message><source>flag: Ukraine</source><translation>علم: أوكرانيا</translation></message>
<message><source>flag: United Arab Emirates</source><translation>علم: الإمارات العربية المتحدة</translation></message>
<message><source>flag: United Kingdom</source><translation>علم: المملكة المتحدة</translation></message>
<message><source>flag: United Nations</source><translation>علم: الأمم المتحدة</translation></message>
<message><source>flag: United States</source><translation>علم: الولايات المتحدة</translation></message>
<message><source>flag: Uruguay</source><translation>علم: أورغواي</translation></message>
<message><source>flag: Uzbekistan</source><translation>علم: أوزبكستان</translation></message>
<message><source>flag: Vanuatu</source><translation>علم: فانواتو</translation></message>
<message><source>flag: Vatican City</source><translation>علم: الفاتيكان</translation></message>
<message><source>flag: Venezuela</source><translation>علم: فنزويلا</translation></message>
<message><source>flag: Vietnam</source><translation>علم: فيتنام</translation></message>
<message><source>flag: Wales</source><translation>علم: ويلز</translation></message>
<message><source>flag: Wallis &amp; Futuna</source><translation>علم: جزر والس وفوتونا</translation></message>
<message><source>flag: Western Sahara</source><translation>علم: الصحراء الغربية</translation></message>
<message><source>flag: Yemen</source><translation>علم: اليمن</translation></message>
<message><source>flag: Zambia</source><translation>علم: زامبيا</translation></message>
<message><source>flag: Zimbabwe</source><translation>علم: زيمبابوي</translation></message>
<message><source>flag: Åland Islands</source><translation>علم: جزر آلاند</translation></message>
<message><source>flamingo</source><translation>فلامينغو</translation></message>
<message><source>flashlight</source><translation>ضوء فلاش</translation></message>
<message><source>flat shoe</source><translation>حذاء نسائي بدون كعب</translation></message>
<message><source>flatbread</source><translation>خبز مفرود</translation></message>
<message><source>fleur-de-lis</source><translation>زنبقة</translation></message>
<message><source>flexed biceps</source><translation>عضلة الذراع</translation></message>
<message><source>floppy disk</source><translation>قرص مرن</translation></message>
<message><source>flower</source><translation>زهرة</translation></message>
<message><source>flower playing cards</source><translation>بطاقات لعب</translation></message>
<message><source>flushed face</source><translation>وجه متورد</translation></message>
<message><source>flute</source><translation>فلوت</translation></message>
<message><source>fly</source><translation>ذبابة</translation></message>
<message><source>flying disc</source><translation>قرص طائر</translation></message>
<message><source>flying saucer</source><translation>صحن طائر</translation></message>
<message><source>fog</source><translation>ضبابي</translation></message>
<message><source>foggy</source><translation>ضباب</translation></message>
<message><source>folded hands</source><translation>يدان مضمومتان</translation></message>
<message><source>folder</source><translation>فولدر</translation></message>
<message><source>folding hand fan</source><translation>مروحة يدوية</translation></message>
<message><source>fondue</source><translation>فوندو</translation></message>
<message><source>food</source><translation>طعام</translation></message>
<message><source>foot</source><translation>قدم</translation></message>
<message><source>footprints</source><translation>أثر قدمين</translation></message>
<message><source>forest</source><translation>غابة</translation></message>
<message><source>fork</source><translation>شوكة</translation></message>
<message><source>fork and knife</source><translation>شوكة وسكينة</translation></message>
<message><source>fork and knife with plate</source><translation>طبق وشوكة وسكينة</translation></message>
<message><source>fortune cookie</source><translation>كعكة الحظ</translation></message>
<message><source>fountain</source><translation>نافورة</translation></message>
<message><source>fountain pen</source><translation>قلم حبر</translation></message>
<message><source>four leaf clover</source><translation>ورقة برسيم رباعية</translation></message>
<message><source>four o’clock</source><translation>الساعة الرابعة</translation></message>
<message><source>four-thirty</source><translation>الرابعة والنصف</translation></message>
<message><source>fox</source><translation>وجه ثعلب</translation></message>
<message><source>framed picture</source><translation>إطار وصورة</translation></message>
<message><source>french fries</source><translation>بطاطس مقلية</translation></message>
<message><source>fried shrimp</source><translation>جمبري مقلي</translation></message>
<message><source>frog</source><translation>وجه ضفدع</translation></message>
<message><source>front-facing baby chick</source><translation>كتكوت صغير بوجه للأمام</translation></message>
<message><source>frown</source><translation>عابس</translation></message>
<message><source>frowning</source><translation>عبوس</translation></message>
<message><source>frowning face</source><translation>وجه عابس</translation></message>
<message><source>frowning face with open mouth</source><translation>وجه عابس بفم مفتوح</translation></message>
<message><source>fuel pump</source><translation>مضخة وقود</translation></message>
<message><source>full moon</source><translation>بدر</translation></message>
<message><source>full moon face</source><translation>وجه البدر</translation></message>
<message><source>funeral urn</source><translation>رماد موتى</translation></message>
<message><source>funny</source><translation>مضحك</translation></message>
<message><source>game</source><translation>لعبة</translation></message>
<message><source>game die</source><translation>زهر</translation></message>
<message><source>garlic</source><translation>ثوم</translation></message>
<message><source>gear</source><translation>ترس</translation></message>
<message><source>gem stone</source><translation>جوهرة</translation></message>
<message><source>genie</source><translation>مارد سحري</translation></message>
<message><source>geometric</source><translation>شكل هندسي</translation></message>
<message><source>gesture</source><translation>تأشير</translation></message>
<message><source>ghost</source><translation>شبح</translation></message>
<message><source>ginger root</source><translation>جذر الزنجبيل</translation></message>
<message><source>giraffe</source><translation>زرافة</translation></message>
<message><source>girl</source><translation>فتاة</translation></message>
<message><source>glass of milk</source><translation>كوب حليب</translation></message>
<message><source>glasses</source><translation>نظارة</translation></message>
<message><source>globe showing Americas</source><translation>كرة أرضية تعرض الأمريكتين</translation></message>
<message><source>globe showing Asia-Australia</source><translation>كرة أرضية تعرض آسيا وأستراليا</translation></message>
<message><source>globe showing Europe-Africa</source><translation>كرة أرضية تعرض أوروبا وإفريقيا</translation></message>
<message><source>globe with meridians</source><translation>كرة أرضية بخطوط طول</translation></message>
<message><source>glove</source><translation>قفاز</translation></message>
<message><source>gloves</source><translation>قفّازان</translation></message>
<message><source>glowing star</source><translation>نجم ساطع</translation></message>
<message><source>goal</source><translation>مرمى</translation></message>
<message><source>goal net</source><translation>شبكة المرمى</translation></message>
<message><source>goat</source><translation>معزة</translation></message>
<message><source>goblin</source><translation>عفريت</translation></message>
<message><source>goggles</source><translation>نظارة واقية</translation></message>
<message><source>goose</source><translation>إوزّة</translation></message>
<message><source>gorilla</source><translation>غوريلا</translation></message>
<message><source>graduation cap</source><translation>قبعة تخرج</translation></message>
<message><source>grapes</source><translation>عنب</translation></message>
<message><source>green apple</source><translation>تفاح أخضر</translation></message>
<message><source>green book</source><translation>كتاب أخضر</translation></message>
<message><source>green circle</source><translation>دائرة خضراء</translation></message>
<message><source>green heart</source><translation>قلب أخضر</translation></message>
<message><source>green salad</source><translation>سلطة خضراء</translation></message>
<message><source>green square</source><translation>مربع أخضر</translation></message>
<message><source>grey heart</source><translation>قلب رمادي</translation></message>
<message><source>grimacing face</source><translation>وجه متجهم</translation></message>
<message><source>grinning cat</source><translation>وجه قطة مبتسم بفم مفتوح</translation></message>
<message><source>grinning cat with smiling eyes</source><translation>وجه قطة مبتسم بعينين باسمتين</translation></message>
<message><source>grinning face</source><translation>وجه بابتسامة عريضة</translation></message>
<message><source>grinning face with big eyes</source><translation>وجه مبتسم بعينين كبيرتين</translation></message>
<message><source>grinning face with smiling eyes</source><translation>وجه مبتسم بعينين باسمتين</translation></message>
<message><source>grinning face with sweat</source><translation>وجه مبتسم بفم مفتوح وعرق بارد</translation></message>
<message><source>grinning squinting face</source><translation>وجه مبتسم بعينين مغلقتين</translation></message>
<message><source>growing heart</source><translation>قلب ينمو</translation></message>
<message><source>guard</source><translation>حارس</translation></message>
<message><source>guide dog</source><translation>كلب دليل</translation></message>
<message><source>guitar</source><translation>غيتار</translation></message>
<message><source>hair pick</source><translation>مشط عريض</translation></message>
<message><source>hamburger</source><translation>همبرغر</translation></message>
<message><source>hammer</source><translation>مطرقة</translation></message>
<message><source>hammer and pick</source><translation>مطرقة ومثقاب</translation></message>
<message><source>hammer and wrench</source><translation>شاكوش ومفتاح</translation></message>
<message><source>hamsa</source><translation>خمسة</translation></message>
<message><source>hamster</source><translation>وجه حيوان الهمستر</translation></message>
<message><source>hand</source><translation>يد</translation></message>
<message><source>hand with fingers splayed</source><translation>يد مرفوعة بأصابع متفرقة</translation></message>
<message><source>hand with index finger and thumb crossed</source><translation>يد مع تقاطع السبابة والإبهام</translation></message>
<message><source>handbag</source><translation>شنطة يد</translation></message>
<message><source>handshake</source><translation>مصافحة</translation></message>
<message><source>harp</source><translation>قيثارة</translation></message>
<message><source>hat</source><translation>قبعة</translation></message>
<message><source>hatching chick</source><translation>كتكوت خارج البيضة</translation></message>
<message><source>head shaking horizontally</source><translation>رأس يهتز أفقياً</translation></message>
<message><source>head shaking vertically</source><translation>رأس يهتز عمودياً</translation></message>
<message><source>headphone</source><translation>سماعة رأس</translation></message>
<message><source>headstone</source><translation>حجر مقبرة</translation></message>
<message><source>health worker</source><translation>موظف بقطاع الصحة</translation></message>
<message><source>hear-no-evil monkey</source><translation>قرد يحجب أذنيه</translation></message>
<message><source>heart</source><translation>قلب</translation></message>
<message><source>heart decoration</source><translation>زخرفة قلب</translation></message>
<message><source>heart exclamation</source><translation>قلب على شكل علامة تعجب</translation></message>
<message><source>heart hands</source><translation>أيدي متشابكة على شكل قلب</translation></message>
<message><source>heart on fire</source><translation>قلب يحترق</translation></message>
<message><source>heart suit</source><translation>ورقة قلب أحمر</translation></message>
<message><source>heart with arrow</source><translation>قلب وسهم</translation></message>
<message><source>heart with ribbon</source><translation>قلب عليه شريط</translation></message>
<message><source>heartbeat</source><translation>نبض</translation></message>
<message><source>hearts</source><translation>قلوب</translation></message>
<message><source>heavy dollar sign</source><translation>علامة دولار</translation></message>
<message><source>heavy equals sign</source><translation>علامة يساوي قاتمة</translation></message>
<message><source>hedgehog</source><translation>قنفد</translation></message>
<message><source>helicopter</source><translation>هليكوبتر</translation></message>
<message><source>hello</source><translation>ترحيب</translation></message>
<message><source>helmet</source><translation>خوذة</translation></message>
<message><source>herb</source><translation>عشب</translation></message>
<message><source>hibiscus</source><translation>كركديه</translation></message>
<message><source>high voltage</source><translation>جهد كهربي عالٍ</translation></message>
<message><source>high-heeled shoe</source><translation>حذاء بكعب عالٍ</translation></message>
<message><source>high-speed train</source><translation>قطار سريع</translation></message>
<message><source>hiking boot</source><translation>حذاء لرحلات المشي</translation></message>
<message><source>hindu</source><translation>هندوسي</translation></message>
<message><source>hindu temple</source><translation>معبد هندوسي</translation></message>
<message><source>hippopotamus</source><translation>فرس النهر</translation></message>
<message><source>hockey</source><translation>هوكي</translation></message>
<message><source>hole</source><translation>ثقب</translation></message>
<message><source>hollow red circle</source><translation>دائرة كبيرة سميكة</translation></message>
<message><source>home</source><translation>بيت</translation></message>
<message><source>honey pot</source><translation>جرة عسل</translation></message>
<message><source>honeybee</source><translation>نحلة</translation></message>
<message><source>hook</source><translation>خطاف</translation></message>
<message><source>horizontal traffic light</source><translation>إشارة مرور أفقية</translation></message>
<message><source>horn</source><translation>بوق</translation></message>
<message><source>horns</source><translation>قرون</translation></message>
<message><source>horoscope</source><translation>الأبراج</translation></message>
<message><source>horse</source><translation>حصان</translation></message>
<message><source>horse face</source><translation>وجه حصان</translation></message>
<message><source>horse racing</source><translation>سباق خيول</translation></message>
<message><source>hospital</source><translation>مستشفى</translation></message>
<message><source>hot beverage</source><translation>مشروب ساخن</translation></message>
<message><source>hot dog</source><translation>هوت دوغ</translation></message>
<message><source>hot face</source><translation>وجه حار</translation></message>
<message><source>hot pepper</source><translation>فلفل حار</translation></message>
<message><source>hot springs</source><translation>ينابيع ساخنة</translation></message>
<message><source>hotel</source><translation>فندق</translation></message>
<message><source>hourglass done</source><translation>مؤقت رملي مكتمل</translation></message>
<message><source>hourglass not done</source><translation>مؤقت رملي غير مكتمل</translation></message>
<message><source>house</source><translation>منزل</translation></message>
<message><source>house with garden</source><translation>منزل بحديقة</translation></message>
<message><source>houses</source><translation>منازل</translation></message>
<message><source>hugging</source><translation>عناق</translation></message>
<message><source>hundred points</source><translation>100 درجة</translation></message>
<message><source>hungry</source><translation>جوعان</translation></message>
<message><source>hushed face</source><translation>وجه مخفوت الصوت</translation></message>
<message><source>hut</source><translation>كوخ</translation></message>
<message><source>hyacinth</source><translation>زهرة الياقوتية</translation></message>
<message><source>ice</source><translation>مكعب ثلج</translation></message>
<message><source>ice cream</source><translation>آيس كريم</translation></message>
<message><source>ice hockey</source><translation>عصا هوكي جليد</translation></message>
<message><source>ice skate</source><translation>حذاء تزلج</translation></message>
<message><source>identification card</source><translation>بطاقة الهوية</translation></message>
<message><source>identity</source><translation>هوية</translation></message>
<message><source>improvement</source><translation>عدة</translation></message>
<message><source>inbox tray</source><translation>صندوق وارد</translation></message>
<message><source>incoming envelope</source><translation>بريد وارد</translation></message>
<message><source>index pointing at the viewer</source><translation>إصبع السبابة يشير إلى الناظر</translation></message>
<message><source>index pointing up</source><translation>سبابة يشير لأعلى</translation></message>
<message><source>infinity</source><translation>اللا نهاية</translation></message>
<message><source>information</source><translation>مصدر معلومات</translation></message>
<message><source>input latin letters</source><translation>أبجدية لاتينية</translation></message>
<message><source>input latin lowercase</source><translation>أحرف صغيرة</translation></message>
<message><source>input latin uppercase</source><translation>أحرف كبيرة</translation></message>
<message><source>input numbers</source><translation>أرقام</translation></message>
<message><source>input symbols</source><translation>رموز</translation></message>
<message><source>insect</source><translation>حشرة</translation></message>
<message><source>instrument</source><translation>آلة موسيقية</translation></message>
<message><source>irish</source><translation>ايرلندي</translation></message>
<message><source>jack-o-lantern</source><translation>هالوين</translation></message>
<message><source>jar</source><translation>برطمان</translation></message>
<message><source>jeans</source><translation>بنطلون جينز</translation></message>
<message><source>jellyfish</source><translation>قنديل بحر</translation></message>
<message><source>joker</source><translation>جوكر</translation></message>
<message><source>joystick</source><translation>ذراع تحكم</translation></message>
<message><source>judge</source><translation>قاضي</translation></message>
<message><source>kaaba</source><translation>الكعبة</translation></message>
<message><source>kangaroo</source><translation>كنغر</translation></message>
<message><source>kebab</source><translation>كباب</translation></message>
<message><source>key</source><translation>مفتاح</translation></message>
<message><source>keyboard</source><translation>لوحة مفاتيح</translation></message>
<message><source>keycap</source><translation>مفتاح</translation></message>
<message><source>keycap: #</source><translation>مفتاح: #</translation></message>
<message><source>keycap: *</source><translation>مفتاح: *</translation></message>
<message><source>keycap: 0</source><translation>مفتاح: 0</translation></message>
<message><source>keycap: 1</source><translation>مفتاح: 1</translation></message>
<message><source>keycap: 10</source><translation>مفتاح: 10</translation></message>
<message><source>keycap: 2</source><translation>مفتاح: 2</translation></message>
<message><source>keycap: 3</source><translation>مفتاح: 3</translation></message>
<message><source>keycap: 4</source><translation>مفتاح: 4</translation></message>
<message><source>keycap: 5</source><translation>مفتاح: 5</translation></message>
<message><source>keycap: 6</source><translation>مفتاح: 6</translation></message>
<message><source>keycap: 7</source><translation>مفتاح: 7</translation></message>
<message><source>keycap: 8</source><translation>مفتاح: 8</translation></message>
<message><source>keycap: 9</source><translation>مفتاح: 9</translation></message>
<message><source>khanda</source><translation>خندا</translation></message>
<message><source>kick</source><translation>ركل</translation></message>
<message><source>kick scooter</source><translation>سكوتر بدون محرك</translation></message>
<message><source>kimono</source><translation>كيمونو ياباني</translation></message>
<message><source>king</source><translation>ملكي</translation></message>
<message><source>kiss</source><translation>قبلة</translation></message>
<message><source>kiss mark</source><translation>علامة قبلة</translation></message>
<message><source>kiss: man, man</source><translation>قبلة: رجل ورجل</translation></message>
<message><source>kiss: woman, man</source><translation>قبلة: سيدة ورجل</translation></message>
<message><source>kiss: woman, woman</source><translation>قبلة: سيدة وسيدة</translation></message>
<message><source>kissing</source><translation>بوسة</translation></message>
<message><source>kissing cat</source><translation>وجه قطة تقبّل</translation></message>
<message><source>kissing face</source><translation>وجه يقبّل</translation></message>
<message><source>kissing face with closed eyes</source><translation>وجه يقبّل بعينين مغلقتين</translation></message>
<message><source>kissing face with smiling eyes</source><translation>وجه يقبّل بعينين باسمتين</translation></message>
<message><source>kitchen knife</source><translation>سكين طهي</translation></message>
<message><source>kite</source><translation>طائرة ورقية</translation></message>
<message><source>kitten</source><translation>هريرة</translation></message>
<message><source>kiwi fruit</source><translation>كيوي</translation></message>
<message><source>knife</source><translation>سكين</translation></message>
<message><source>knights</source><translation>فارس</translation></message>
<message><source>knot</source><translation>عُقدة</translation></message>
<message><source>koala</source><translation>دب كوالا</translation></message>
<message><source>lab</source><translation>مختبر</translation></message>
<message><source>lab coat</source><translation>معطف مختبر</translation></message>
<message><source>label</source><translation>ملصق</translation></message>
<message><source>lacrosse</source><translation>لاكروس</translation></message>
<message><source>ladder</source><translation>سلّم</translation></message>
<message><source>lady</source><translation>شقراء</translation></message>
<message><source>lady beetle</source><translation>دعسوقة</translation></message>
<message><source>lamp</source><translation>مصباح</translation></message>
<message><source>laptop</source><translation>كمبيوتر محمول</translation></message>
<message><source>large blue diamond</source><translation>ماسة زرقاء كبيرة</translation></message>
<message><source>large orange diamond</source><translation>ماسة برتقالي كبيرة</translation></message>
<message><source>last quarter moon</source><translation>تربيع ثان</translation></message>
<message><source>last quarter moon face</source><translation>وجه تربيع ثانٍ</translation></message>
<message><source>last track button</source><translation>زر آخر مقطع</translation></message>
<message><source>latin cross</source><translation>صليب لاتيني</translation></message>
<message><source>laugh</source><translation>ضحك</translation></message>
<message><source>leaf fluttering in wind</source><translation>ورقة متطايرة</translation></message>
<message><source>leafless tree</source><translation>شجرة بلا أوراق</translation></message>
<message><source>leafy green</source><translation>خضار ورقي</translation></message>
<message><source>ledger</source><translation>دفتر</translation></message>
<message><source>left arrow</source><translation>سهم لليسار</translation></message>
<message><source>left arrow curving right</source><translation>سهم أيسر بانحناء أيمن</translation></message>
<message><source>left luggage</source><translation>أمتعة</translation></message>
<message><source>left speech bubble</source><translation>فقاعة كلام يسرى</translation></message>
<message><source>left-facing fist</source><translation>قبضة لليسار</translation></message>
<message><source>left-right arrow</source><translation>سهم لليسار واليمين</translation></message>
<message><source>leftwards</source><translation>يسار</translation></message>
<message><source>leftwards hand</source><translation>يد باتجاه اليسار</translation></message>
<message><source>leftwards pushing hand</source><translation>يد تدفع يسارًا</translation></message>
<message><source>leg</source><translation>ساق</translation></message>
<message><source>lemon</source><translation>ليمون</translation></message>
<message><source>leopard</source><translation>فهد</translation></message>
<message><source>letter</source><translation>خطاب</translation></message>
<message><source>level slider</source><translation>شريط منسوب</translation></message>
<message><source>light blue heart</source><translation>قلب أزرق فاتح</translation></message>
<message><source>light bulb</source><translation>مصباح مضاء</translation></message>
<message><source>light rail</source><translation>نقل خفيف</translation></message>
<message><source>light skin tone</source><translation>بشرة بلون فاتح</translation></message>
<message><source>lightning</source><translation>برق</translation></message>
<message><source>lime</source><translation>الليم</translation></message>
<message><source>link</source><translation>علامة رابط</translation></message>
<message><source>linked paperclips</source><translation>مشبك ورق مقترن</translation></message>
<message><source>lion</source><translation>وجه أسد</translation></message>
<message><source>lipstick</source><translation>أحمر شفاه</translation></message>
<message><source>litter in bin sign</source><translation>إشارة صندوق النفايات</translation></message>
<message><source>lizard</source><translation>سحلية</translation></message>
<message><source>llama</source><translation>لاما</translation></message>
<message><source>lobster</source><translation>كركند</translation></message>
<message><source>lock</source><translation>قفل</translation></message>
<message><source>locked</source><translation>قفل</translation></message>
<message><source>locked with key</source><translation>قفل مغلق بمفتاح</translation></message>
<message><source>locked with pen</source><translation>قفل مغلق بقلم</translation></message>
<message><source>locomotive</source><translation>جرار بخار</translation></message>
<message><source>lollipop</source><translation>مصاصة</translation></message>
<message><source>long drum</source><translation>طبل طويل</translation></message>
<message><source>losing</source><translation>مخيب</translation></message>
<message><source>lotion bottle</source><translation>زجاجة غسول</translation></message>
<message><source>lotus</source><translation>لوتس</translation></message>
<message><source>loudly crying face</source><translation>وجه يبكي بكاءً مرتفعًا</translation></message>
<message><source>loudspeaker</source><translation>مكبر صوت</translation></message>
<message><source>love</source><translation>حب</translation></message>
<message><source>love hotel</source><translation>فندق حب</translation></message>
<message><source>love letter</source><translation>خطاب حب</translation></message>
<message><source>love-you gesture</source><translation>إشارة أحبك</translation></message>
<message><source>low battery</source><translation>بطارية ضعيفة</translation></message>
<message><source>luggage</source><translation>حقائب السفر</translation></message>
<message><source>lungs</source><translation>رئتان</translation></message>
<message><source>lying face</source><translation>وجه كاذب</translation></message>
<message><source>mad</source><translation>مجنون</translation></message>
<message><source>mage</source><translation>سحرة</translation></message>
<message><source>magic</source><translation>سحر</translation></message>
<message><source>magic wand</source><translation>عصا سحرية</translation></message>
<message><source>magnet</source><translation>مغناطيس</translation></message>
<message><source>magnetic</source><translation>مغناطيسي</translation></message>
<message><source>magnifying glass tilted left</source><translation>عدسة مكبرة اتجاه اليسار</translation></message>
<message><source>magnifying glass tilted right</source><translation>عدسة مكبرة اتجاه اليمين</translation></message>
<message><source>mahjong red dragon</source><translation>لعبة ورق يابانية</translation></message>
<message><source>mail</source><translation>بريد</translation></message>
<message><source>makeup</source><translation>تجميل</translation></message>
<message><source>male sign</source><translation>رمز ذكر</translation></message>
<message><source>mammoth</source><translation>ماموث</translation></message>
<message><source>man</source><translation>رجل</translation></message>
<message><source>man artist</source><translation>رسام</translation></message>
<message><source>man astronaut</source><translation>رائد فضاء</translation></message>
<message><source>man biking</source><translation>راكب دراجة</translation></message>
<message><source>man bouncing ball</source><translation>رجل وكرة</translation></message>
<message><source>man bowing</source><translation>رجل ينحني اعتذارًا</translation></message>
<message><source>man cartwheeling</source><translation>رجل يفعل حركة العجلة</translation></message>
<message><source>man climbing</source><translation>رجل يتسلّق</translation></message>
<message><source>man construction worker</source><translation>عامل بناء</translation></message>
<message><source>man cook</source><translation>طباخ</translation></message>
<message><source>man dancing</source><translation>رجل يرقص</translation></message>
<message><source>man detective</source><translation>محقّق</translation></message>
<message><source>man elf</source><translation>جنّي صغير ذكر</translation></message>
<message><source>man facepalming</source><translation>رجل يشعر بإحباط</translation></message>
<message><source>man factory worker</source><translation>عامل مصنع</translation></message>
<message><source>man fairy</source><translation>جنّي</translation></message>
<message><source>man farmer</source><translation>مزارع</translation></message>
<message><source>man feeding baby</source><translation>رجل يُرضع طفلاً</translation></message>
<message><source>man firefighter</source><translation>رجل إطفاء</translation></message>
<message><source>man frowning</source><translation>متجهم</translation></message>
<message><source>man genie</source><translation>مارد</translation></message>
<message><source>man gesturing NO</source><translation>غير موافق</translation></message>
<message><source>man gesturing OK</source><translation>موافق</translation></message>
<message><source>man getting haircut</source><translation>يقص شعره</translation></message>
<message><source>man getting massage</source><translation>تدليك لرجل</translation></message>
<message><source>man golfing</source><translation>لاعب غولف</translation></message>
<message><source>man guard</source><translation>رجل حراسة</translation></message>
<message><source>man health worker</source><translation>عامل بقطاع الصحة</translation></message>
<message><source>man in lotus position</source><translation>رجل متربّع</translation></message>
<message><source>man in manual wheelchair</source><translation>رجل على كرسي متحرك يدوي</translation></message>
<message><source>man in manual wheelchair: facing right</source><translation>رجل على كرسي متحرك يدوي: متجه لليمين</translation></message>
<message><source>man in motorized wheelchair</source><translation>رجل على كرسي متحرك كهربائي</translation></message>
<message><source>man in motorized wheelchair: facing right</source><translation>رجل على كرسي متحرك كهربائي: متجه لليمين</translation></message>
<message><source>man in steamy room</source><translation>رجل في حمّام بخار</translation></message>
<message><source>man in tuxedo</source><translation>رجل يرتدي بدلة رسمية</translation></message>
<message><source>man judge</source><translation>قاضٍ</translation></message>
<message><source>man juggling</source><translation>لاعب قذف الكرات</translation></message>
<message><source>man kneeling</source><translation>رجل جالس على ركبتيه</translation></message>
<message><source>man kneeling: facing right</source><translation>رجل جالس على ركبتيه: متجه لليمين</translation></message>
<message><source>man lifting weights</source><translation>رافع أثقال</translation></message>
<message><source>man mage</source><translation>ساحر</translation></message>
<message><source>man mechanic</source><translation>ميكانيكي</translation></message>
<message><source>man mountain biking</source><translation>متسلق جبال بدراجة</translation></message>
<message><source>man office worker</source><translation>موظف</translation></message>
<message><source>man pilot</source><translation>طيار</translation></message>
<message><source>man playing handball</source><translation>لاعب كرة يد</translation></message>
<message><source>man playing water polo</source><translation>لاعب كرة ماء</translation></message>
<message><source>man police officer</source><translation>شرطي</translation></message>
<message><source>man pouting</source><translation>رجل عابس</translation></message>
<message><source>man raising hand</source><translation>رجل يرفع يده</translation></message>
<message><source>man rowing boat</source><translation>رجل يجدف بقارب</translation></message>
<message><source>man running</source><translation>راكض</translation></message>
<message><source>man running: facing right</source><translation>راكض: متجه لليمين</translation></message>
<message><source>man scientist</source><translation>عالم</translation></message>
<message><source>man shrugging</source><translation>رجل لا يبالي</translation></message>
<message><source>man singer</source><translation>مطرب</translation></message>
<message><source>man standing</source><translation>رجل واقف</translation></message>
<message><source>man student</source><translation>طالب</translation></message>
<message><source>man superhero</source><translation>بطل خارق رجل</translation></message>
<message><source>man supervillain</source><translation>شرير خارق رجل</translation></message>
<message><source>man surfing</source><translation>راكب أمواج</translation></message>
<message><source>man swimming</source><translation>سباح</translation></message>
<message><source>man teacher</source><translation>معلم</translation></message>
<message><source>man technologist</source><translation>عالم تكنولوجيا</translation></message>
<message><source>man tipping hand</source><translation>رجل بيد مائلة</translation></message>
<message><source>man vampire</source><translation>مصاص دماء</translation></message>
<message><source>man walking</source><translation>سائر</translation></message>
<message><source>man walking: facing right</source><translation>سائر: متجه لليمين</translation></message>
<message><source>man wearing turban</source><translation>رجل يرتدي عمامة</translation></message>
<message><source>man with veil</source><translation>رجل بطرحة</translation></message>
<message><source>man with white cane</source><translation>رجل بعصا سير</translation></message>
<message><source>man with white cane: facing right</source><translation>رجل بعصا سير: متجه لليمين</translation></message>
<message><source>man zombie</source><translation>رجل زومبي</translation></message>
<message><source>man: bald</source><translation>رجل: أصلع</translation></message>
<message><source>man: beard</source><translation>رجل بلحية</translation></message>
<message><source>man: blond hair</source><translation>رجل أشقر</translation></message>
<message><source>man: curly hair</source><translation>رجل: شعر مجعد</translation></message>
<message><source>man: red hair</source><translation>رجل: شعر أحمر</translation></message>
<message><source>man: white hair</source><translation>رجل: شعر أبيض</translation></message>
<message><source>mango</source><translation>مانجو</translation></message>
<message><source>mantelpiece clock</source><translation>ساعة موقد</translation></message>
<message><source>manual wheelchair</source><translation>كرسي متحرك يدوي</translation></message>
<message><source>man’s shoe</source><translation>حذاء رجالي</translation></message>
<message><source>map of Japan</source><translation>خريطة اليابان</translation></message>
<message><source>maple leaf</source><translation>ورقة شجر القيقب</translation></message>
<message><source>maracas</source><translation>مركاس</translation></message>
<message><source>martial arts uniform</source><translation>زي فنون قتالية</translation></message>
<message><source>mate</source><translation>متة</translation></message>
<message><source>math</source><translation>رياضيات</translation></message>
<message><source>meat</source><translation>لحم</translation></message>
<message><source>meat on bone</source><translation>لحم بعظم</translation></message>
<message><source>mechanic</source><translation>خبير ميكانيكي</translation></message>
<message><source>mechanical arm</source><translation>ذراع اصطناعية</translation></message>
<message><source>mechanical leg</source><translation>ساق اصطناعية</translation></message>
<message><source>medal</source><translation>ميدالية</translation></message>
<message><source>medical symbol</source><translation>رمز طبي</translation></message>
<message><source>medicine</source><translation>دواء</translation></message>
<message><source>medium skin tone</source><translation>بشرة بلون معتدل</translation></message>
<message><source>medium-dark skin tone</source><translation>بشرة بلون معتدل مائل للغامق</translation></message>
<message><source>medium-light skin tone</source><translation>بشرة بلون فاتح ومعتدل</translation></message>
<message><source>megaphone</source><translation>مضخم الصوت</translation></message>
<message><source>melon</source><translation>شمام</translation></message>
<message><source>melting face</source><translation>وجه يذوب</translation></message>
<message><source>memo</source><translation>مذكرة</translation></message>
<message><source>men holding hands</source><translation>رجلان يمسكان بيد بعضهما</translation></message>
<message><source>men with bunny ears</source><translation>رجلان يرقصان</translation></message>
<message><source>men wrestling</source><translation>مصارعة رجال</translation></message>
<message><source>mending heart</source><translation>قلب يتعافى</translation></message>
<message><source>menorah</source><translation>شمعدان شعار اليهودية</translation></message>
<message><source>men’s room</source><translation>للرجال</translation></message>
<message><source>mermaid</source><translation>حورية بحر</translation></message>
<message><source>merman</source><translation>مخلوق له جسد رجل وذيل سمكة</translation></message>
<message><source>merperson</source><translation>مخلوق بحري بجسد بشري وذيل سمكة</translation></message>
<message><source>metro</source><translation>مترو</translation></message>
<message><source>microbe</source><translation>جرثومة</translation></message>
<message><source>microphone</source><translation>ميكروفون</translation></message>
<message><source>microscope</source><translation>ميكروسكوب</translation></message>
<message><source>middle finger</source><translation>إصبع الوسطى</translation></message>
<message><source>military</source><translation>عسكري</translation></message>
<message><source>military helmet</source><translation>خوذة عسكرية</translation></message>
<message><source>military medal</source><translation>ميدالية عسكرية</translation></message>
<message><source>milk</source><translation>حليب</translation></message>
<message><source>milky way</source><translation>درب التبانة</translation></message>
<message><source>minibus</source><translation>حافلة صغيرة</translation></message>
<message><source>minus</source><translation>علامة طرح</translation></message>
<message><source>mirror</source><translation>مرآة</translation></message>
<message><source>mirror ball</source><translation>الكرة المضيئة</translation></message>
<message><source>moai</source><translation>تمثال</translation></message>
<message><source>mobile phone</source><translation>هاتف جوال</translation></message>
<message><source>mobile phone off</source><translation>إغلاق الجوال</translation></message>
<message><source>mobile phone with arrow</source><translation>هاتف جوال مع سهم</translation></message>
<message><source>money</source><translation>مال</translation></message>
<message><source>money bag</source><translation>حقيبة نقود</translation></message>
<message><source>money with wings</source><translation>أموال تطير</translation></message>
<message><source>money-mouth face</source><translation>وجه بلسان من مال</translation></message>
<message><source>monkey</source><translation>قرد</translation></message>
<message><source>monkey face</source><translation>وجه قرد</translation></message>
<message><source>monorail</source><translation>خط سكة حديد أحادي</translation></message>
<message><source>monster</source><translation>وحش</translation></message>
<message><source>moon</source><translation>قمر</translation></message>
<message><source>moon cake</source><translation>كعكة القمر</translation></message>
<message><source>moon viewing ceremony</source><translation>احتفال برؤية القمر</translation></message>
<message><source>moose</source><translation>أيّل</translation></message>
<message><source>morning</source><translation>صباح</translation></message>
<message><source>mosque</source><translation>مسجد</translation></message>
<message><source>mosquito</source><translation>بعوضة</translation></message>
<message><source>motor boat</source><translation>زورق بخاري</translation></message>
<message><source>motor scooter</source><translation>سكوتر بمحرك</translation></message>
<message><source>motorcycle</source><translation>دراجة بخارية</translation></message>
<message><source>motorized wheelchair</source><translation>كرسي متحرك كهربائي</translation></message>
<message><source>motorway</source><translation>طريق سريع</translation></message>
<message><source>mount fuji</source><translation>جبل فوجي</translation></message>
<message><source>mountain</source><translation>جبل</translation></message>
<message><source>mountain cableway</source><translation>قطار جبلي</translation></message>
<message><source>mountain railway</source><translation>سكة حديد جبلية</translation></message>
<message><source>mouse</source><translation>فأر</translation></message>
<message><source>mouse face</source><translation>وجه فأر</translation></message>
<message><source>mouse trap</source><translation>مصيدة فئران</translation></message>
<message><source>mouth</source><translation>فم</translation></message>
<message><source>movie</source><translation>فيلم</translation></message>
<message><source>movie camera</source><translation>كاميرا أفلام</translation></message>
<message><source>multiply</source><translation>علامة ضرب</translation></message>
<message><source>mushroom</source><translation>عيش الغراب</translation></message>
<message><source>music</source><translation>موسيقى</translation></message>
<message><source>musical keyboard</source><translation>بيانو</translation></message>
<message><source>musical note</source><translation>نوتة موسيقية</translation></message>
<message><source>musical notes</source><translation>نوتات موسيقية</translation></message>
<message><source>musical score</source><translation>علامة موسيقية</translation></message>
<message><source>muted speaker</source><translation>ممنوع الحديث</translation></message>
<message><source>mwah</source><translation>عيد زواج</translation></message>
<message><source>myth</source><translation>أساطير</translation></message>
<message><source>nail polish</source><translation>طلاء أظافر</translation></message>
<message><source>name badge</source><translation>ملصق اسم</translation></message>
<message><source>national park</source><translation>حديقة وطنية</translation></message>
<message><source>nauseated face</source><translation>وجه مشمئز</translation></message>
<message><source>nazar amulet</source><translation>الخرزة الزرقاء</translation></message>
<message><source>necktie</source><translation>رابطة عنق</translation></message>
<message><source>needle</source><translation>إبرة</translation></message>
<message><source>nerd face</source><translation>وجه عبقري</translation></message>
<message><source>nervous</source><translation>متوتر</translation></message>
<message><source>nest with eggs</source><translation>عش به بيض</translation></message>
<message><source>nesting dolls</source><translation>دمية روسية</translation></message>
<message><source>neutral face</source><translation>وجه محايد</translation></message>
<message><source>new moon</source><translation>محاق</translation></message>
<message><source>new moon face</source><translation>وجه محاق</translation></message>
<message><source>newspaper</source><translation>جريدة</translation></message>
<message><source>next track button</source><translation>زر التالي</translation></message>
<message><source>night with stars</source><translation>ليل مع نجوم</translation></message>
<message><source>nine o’clock</source><translation>الساعة التاسعة</translation></message>
<message><source>nine-thirty</source><translation>التاسعة والنصف</translation></message>
<message><source>ninja</source><translation>نينجا</translation></message>
<message><source>no bicycles</source><translation>ممنوع ركوب الدراجات</translation></message>
<message><source>no entry</source><translation>ممنوع الدخول</translation></message>
<message><source>no littering</source><translation>ممنوع وضع النفايات</translation></message>
<message><source>no mobile phones</source><translation>ممنوع استخدام الهاتف الجوال</translation></message>
<message><source>no one under eighteen</source><translation>ممنوع لأقل من 18 عامًا</translation></message>
<message><source>no pedestrians</source><translation>ممنوع سير المشاة</translation></message>
<message><source>no smoking</source><translation>ممنوع التدخين</translation></message>
<message><source>non-potable water</source><translation>مياه غير صالحة للشرب</translation></message>
<message><source>nose</source><translation>أنف</translation></message>
<message><source>notebook</source><translation>دفتر ملاحظات</translation></message>
<message><source>notebook with decorative cover</source><translation>دفتر مزين</translation></message>
<message><source>nut and bolt</source><translation>صامولة ومسمار</translation></message>
<message><source>octopus</source><translation>أخطبوط</translation></message>
<message><source>oden</source><translation>طعام مشكل</translation></message>
<message><source>office</source><translation>مكتب</translation></message>
<message><source>office building</source><translation>مبنى إداري</translation></message>
<message><source>office worker</source><translation>موظف مكتب</translation></message>
<message><source>ogre</source><translation>غول</translation></message>
<message><source>oil</source><translation>زيت</translation></message>
<message><source>oil drum</source><translation>برميل نفط</translation></message>
<message><source>old key</source><translation>مفتاح قديم</translation></message>
<message><source>old man</source><translation>رجل عجوز</translation></message>
<message><source>old woman</source><translation>سيدة عجوز</translation></message>
<message><source>older person</source><translation>بالغ أكبر في السن</translation></message>
<message><source>olive</source><translation>زيتون</translation></message>
<message><source>om</source><translation>دين هندوسي</translation></message>
<message><source>omg</source><translation>يا إلهي</translation></message>
<message><source>oncoming automobile</source><translation>سيارة مقتربة</translation></message>
<message><source>oncoming bus</source><translation>حافلة مقتربة</translation></message>
<message><source>oncoming fist</source><translation>قبضة يد</translation></message>
<message><source>oncoming police car</source><translation>سيارة شرطة مقتربة</translation></message>
<message><source>oncoming taxi</source><translation>تاكسي مقترب</translation></message>
<message><source>one o’clock</source><translation>الساعة الواحدة</translation></message>
<message><source>one-piece</source><translation>بدلة سباحة</translation></message>
<message><source>one-piece swimsuit</source><translation>مايوه من قطعة واحدة</translation></message>
<message><source>one-thirty</source><translation>الواحدة والنصف</translation></message>
<message><source>onion</source><translation>بصل</translation></message>
<message><source>open</source><translation>مفتوح</translation></message>
<message><source>open book</source><translation>كتاب مفتوح</translation></message>
<message><source>open file folder</source><translation>مجلد مفتوح</translation></message>
<message><source>open hands</source><translation>يدان مفتوحتان</translation></message>
<message><source>open mailbox with lowered flag</source><translation>صندوق بريد مفتوح بإشارة لأسفل</translation></message>
<message><source>open mailbox with raised flag</source><translation>صندوق بريد مفتوح بإشارة مرفوعة</translation></message>
<message><source>optical</source><translation>كومبيوتر</translation></message>
<message><source>optical disk</source><translation>سي دي</translation></message>
<message><source>orange</source><translation>برتقالي</translation></message>
<message><source>orange book</source><translation>كتاب برتقالي</translation></message>
<message><source>orange circle</source><translation>دائرة برتقالية</translation></message>
<message><source>orange heart</source><translation>قلب برتقالي</translation></message>
<message><source>orange square</source><translation>مربع برتقالي</translation></message>
<message><source>orangutan</source><translation>إنسان الغاب</translation></message>
<message><source>orchestra</source><translation>أوركسترا</translation></message>
<message><source>organ</source><translation>عضو</translation></message>
<message><source>ornithology</source><translation>طير</translation></message>
<message><source>orthodox cross</source><translation>صليب أرثوزوكس</translation></message>
<message><source>otter</source><translation>قندس</translation></message>
<message><source>outbox tray</source><translation>صندوق صادر</translation></message>
<message><source>owl</source><translation>بومة</translation></message>
<message><source>ox</source><translation>ثور</translation></message>
<message><source>oyster</source><translation>محار</translation></message>
<message><source>package</source><translation>طرد</translation></message>
<message><source>pad</source><translation>حلزوني</translation></message>
<message><source>page</source><translation>صفحة</translation></message>
<message><source>page facing up</source><translation>مستند</translation></message>
<message><source>page with curl</source><translation>صفحة ملفوفة</translation></message>
<message><source>pager</source><translation>جهاز نداء آلي</translation></message>
<message><source>paintbrush</source><translation>فرشاة ألوان</translation></message>
<message><source>painting</source><translation>رسم</translation></message>
<message><source>palm down hand</source><translation>راحة يد للأسفل</translation></message>
<message><source>palm tree</source><translation>نخلة</translation></message>
<message><source>palm up hand</source><translation>راحة يد للأعلى</translation></message>
<message><source>palms up together</source><translation>راحتان مفتوحتان</translation></message>
<message><source>pancakes</source><translation>فطائر</translation></message>
<message><source>panda</source><translation>وجه باندا</translation></message>
<message><source>paperclip</source><translation>مشبك ورق</translation></message>
<message><source>parachute</source><translation>باراشوت</translation></message>
<message><source>parrot</source><translation>ببغاء</translation></message>
<message><source>part alternation mark</source><translation>بديل</translation></message>
<message><source>party</source><translation>حفلة</translation></message>
<message><source>party popper</source><translation>فرقعة حفلة</translation></message>
<message><source>partying face</source><translation>وجه محتفل</translation></message>
<message><source>passenger ship</source><translation>سفينة ركاب</translation></message>
<message><source>passport control</source><translation>مراقبة جوازات السفر</translation></message>
<message><source>pause button</source><translation>زر إيقاف مؤقت</translation></message>
<message><source>paw prints</source><translation>آثار حوافر</translation></message>
<message><source>pea pod</source><translation>قرن بازلاء</translation></message>
<message><source>peace symbol</source><translation>رمز سلام</translation></message>
<message><source>peach</source><translation>خوخ</translation></message>
<message><source>peacock</source><translation>طاووس</translation></message>
<message><source>peanuts</source><translation>فول سوداني</translation></message>
<message><source>pear</source><translation>كمثرى</translation></message>
<message><source>pen</source><translation>قلم</translation></message>
<message><source>pencil</source><translation>قلم رصاص</translation></message>
<message><source>penguin</source><translation>بطريق</translation></message>
<message><source>pensive face</source><translation>وجه متأمل</translation></message>
<message><source>people holding hands</source><translation>أشخاص يمسكون بأيدي بعضهم</translation></message>
<message><source>people hugging</source><translation>شخصان يتعانقان</translation></message>
<message><source>people with bunny ears</source><translation>شخصان يرقصان</translation></message>
<message><source>people wrestling</source><translation>مصارعون</translation></message>
<message><source>performing arts</source><translation>قناع وجه</translation></message>
<message><source>persevering face</source><translation>وجه جاد</translation></message>
<message><source>person</source><translation>بالغ</translation></message>
<message><source>person biking</source><translation>شخص يركب دراجة</translation></message>
<message><source>person bouncing ball</source><translation>شخص وكرة</translation></message>
<message><source>person bowing</source><translation>شخص ينحني اعتذارًا</translation></message>
<message><source>person cartwheeling</source><translation>شخص يؤدي حركة العجلة</translation></message>
<message><source>person climbing</source><translation>شخص يتسلّق</translation></message>
<message><source>person facepalming</source><translation>شخص محبط</translation></message>
<message><source>person feeding baby</source><translation>شخص يُرضع طفلاً</translation></message>
<message><source>person fencing</source><translation>مبارز</translation></message>
<message><source>person frowning</source><translation>شخص عابس</translation></message>
<message><source>person gesturing NO</source><translation>إشارة رفض</translation></message>
<message><source>person gesturing OK</source><translation>إشارة موافقة</translation></message>
<message><source>person getting haircut</source><translation>شخص يُقص شعره</translation></message>
<message><source>person getting massage</source><translation>شخص يحصل على مساج</translation></message>
<message><source>person golfing</source><translation>شخص يلعب غولف</translation></message>
<message><source>person in bed</source><translation>شخص على سرير</translation></message>
<message><source>person in lotus position</source><translation>شخص متربّع</translation></message>
<message><source>person in manual wheelchair</source><translation>شخص على كرسي متحرك يدوي</translation></message>
<message><source>person in manual wheelchair: facing right</source><translation>شخص على كرسي متحرك يدوي: متجه لليمين</translation></message>
<message><source>person in motorized wheelchair</source><translation>شخص على كرسي متحرك كهربائي</translation></message>
<message><source>person in motorized wheelchair: facing right</source><translation>شخص على كرسي متحرك كهربائي: متجه لليمين</translation></message>
<message><source>person in steamy room</source><translation>شخص في حمّام بخار</translation></message>
<message><source>person in suit levitating</source><translation>رجل أعمال يرتقي</translation></message>
<message><source>person in tuxedo</source><translation>شخص ببدلة رسمية</translation></message>
<message><source>person juggling</source><translation>شخص يؤدي ألعابًا بهلوانية</translation></message>
<message><source>person kneeling</source><translation>شخص جالس على ركبتيه</translation></message>
<message><source>person kneeling: facing right</source><translation>شخص جالس على ركبتيه: متجه لليمين</translation></message>
<message><source>person lifting weights</source><translation>شخص يرفع أثقال</translation></message>
<message><source>person mountain biking</source><translation>شخص يركب دراجة في الجبال</translation></message>
<message><source>person playing handball</source><translation>شخص يلعب كرة يد</translation></message>
<message><source>person playing water polo</source><translation>شخص يلعب كرة ماء</translation></message>
<message><source>person pouting</source><translation>شخص متجهم</translation></message>
<message><source>person raising hand</source><translation>شخص يرفع يده</translation></message>
<message><source>person rowing boat</source><translation>شخص يجدف بزورق</translation></message>
<message><source>person running</source><translation>شخص يجري</translation></message>
<message><source>person running: facing right</source><translation>شخص يجري: متجه لليمين</translation></message>
<message><source>person shrugging</source><translation>لا مبالاة</translation></message>
<message><source>person standing</source><translation>شخص واقف</translation></message>
<message><source>person surfing</source><translation>شخص يركب الأمواج</translation></message>
<message><source>person swimming</source><translation>شخص يسبح</translation></message>
<message><source>person taking bath</source><translation>شخص يستحم</translation></message>
<message><source>person tipping hand</source><translation>شخص بيد مائلة</translation></message>
<message><source>person walking</source><translation>شخص يسير</translation></message>
<message><source>person walking: facing right</source><translation>شخص يسير: متجه لليمين</translation></message>
<message><source>person wearing turban</source><translation>رجل بعمامة</translation></message>
<message><source>person with crown</source><translation>شخص يرتدي تاجاً</translation></message>
<message><source>person with skullcap</source><translation>رجل بعمامة صينية</translation></message>
<message><source>person with veil</source><translation>عروس بطرحة</translation></message>
<message><source>person with white cane</source><translation>شخص مع عصا سير</translation></message>
<message><source>person with white cane: facing right</source><translation>شخص مع عصا سير: متجه لليمين</translation></message>
<message><source>person: bald</source><translation>بالغ: أصلع</translation></message>
<message><source>person: beard</source><translation>شخص بلحية</translation></message>
<message><source>person: blond hair</source><translation>شخص أشقر</translation></message>
<message><source>person: curly hair</source><translation>بالغ: شعر مجعد</translation></message>
<message><source>person: red hair</source><translation>بالغ: شعر أحمر</translation></message>
<message><source>person: white hair</source><translation>بالغ: شعر أبيض</translation></message>
<message><source>pet</source><translation>اليف</translation></message>
<message><source>petri dish</source><translation>صحفة بتري</translation></message>
<message><source>phoenix</source><translation>العنقاء</translation></message>
<message><source>phone</source><translation>هاتف</translation></message>
<message><source>pick</source><translation>فأس</translation></message>
<message><source>pickup truck</source><translation>شاحنة خفيفة</translation></message>
<message><source>pie</source><translation>فطيرة</translation></message>
<message><source>pig</source><translation>خنزير</translation></message>
<message><source>pig face</source><translation>وجه خنزير</translation></message>
<message><source>pig nose</source><translation>أنف خنزير</translation></message>
<message><source>pile of poo</source><translation>فضلات</translation></message>
<message><source>pill</source><translation>حبوب</translation></message>
<message><source>pilot</source><translation>ربان طائرة</translation></message>
<message><source>pin</source><translation>دبوس</translation></message>
<message><source>pinched fingers</source><translation>أصابع مضمومة</translation></message>
<message><source>pinching hand</source><translation>يد تشير بمقدار ضئيل</translation></message>
<message><source>pine</source><translation>صنوبر</translation></message>
<message><source>pine decoration</source><translation>ديكور صنوبر</translation></message>
<message><source>pineapple</source><translation>أناناس</translation></message>
<message><source>ping pong</source><translation>تنس الطاولة</translation></message>
<message><source>pink heart</source><translation>قلب وردي</translation></message>
<message><source>pirate</source><translation>قراصنة</translation></message>
<message><source>pirate flag</source><translation>علم قراصنة</translation></message>
<message><source>pizza</source><translation>بيتزا</translation></message>
<message><source>piñata</source><translation>بنياتا</translation></message>
<message><source>placard</source><translation>يافطة</translation></message>
<message><source>place of worship</source><translation>مكان عبادة</translation></message>
<message><source>plane</source><translation>طائرة</translation></message>
<message><source>plant</source><translation>نبات</translation></message>
<message><source>play button</source><translation>زر تشغيل</translation></message>
<message><source>play or pause button</source><translation>زر تشغيل أو إيقاف مؤقت</translation></message>
<message><source>playground slide</source><translation>منزلق اللعب</translation></message>
<message><source>pleading face</source><translation>وجه ملتمس</translation></message>
<message><source>plumber</source><translation>سباك</translation></message>
<message><source>plunger</source><translation>مكبس غطاس</translation></message>
<message><source>plus</source><translation>علامة جمع</translation></message>
<message><source>pointing</source><translation>السبابة</translation></message>
<message><source>polar bear</source><translation>دب قطبي</translation></message>
<message><source>police</source><translation>سيارة شرطة</translation></message>
<message><source>police car</source><translation>سيارة شرطة</translation></message>
<message><source>police car light</source><translation>إضاءة سيارة شرطة دوارة</translation></message>
<message><source>police officer</source><translation>ضابط شرطة</translation></message>
<message><source>poodle</source><translation>بودل</translation></message>
<message><source>pool 8 ball</source><translation>بلياردو</translation></message>
<message><source>popcorn</source><translation>فشار</translation></message>
<message><source>post office</source><translation>مكتب بريد</translation></message>
<message><source>postal horn</source><translation>جرس بريد</translation></message>
<message><source>postbox</source><translation>صندوق بريد</translation></message>
<message><source>pot of food</source><translation>وعاء طعام</translation></message>
<message><source>potable water</source><translation>مياه صالحة للشرب</translation></message>
<message><source>potato</source><translation>بطاطس</translation></message>
<message><source>potted plant</source><translation>نبتة في وعاء</translation></message>
<message><source>poultry leg</source><translation>ساق دجاجة</translation></message>
<message><source>pound banknote</source><translation>ورقة جنيه</translation></message>
<message><source>pouring liquid</source><translation>سكب السائل</translation></message>
<message><source>pouting cat</source><translation>وجه قطة عابس</translation></message>
<message><source>pray</source><translation>صلاة</translation></message>
<message><source>prayer beads</source><translation>مسبحة صلاة</translation></message>
<message><source>pregnant</source><translation>حامل</translation></message>
<message><source>pregnant man</source><translation>رجل حامل</translation></message>
<message><source>pregnant person</source><translation>شخص حامل</translation></message>
<message><source>pregnant woman</source><translation>امرأة حامل</translation></message>
<message><source>pretzel</source><translation>بريتزل</translation></message>
<message><source>prince</source><translation>أمير</translation></message>
<message><source>princess</source><translation>أميرة</translation></message>
<message><source>printer</source><translation>طابعة</translation></message>
<message><source>prohibited</source><translation>ممنوع</translation></message>
<message><source>proud</source><translation>فخور</translation></message>
<message><source>punctuation</source><translation>ترقيم</translation></message>
<message><source>purple circle</source><translation>دائرة بنفسجية</translation></message>
<message><source>purple heart</source><translation>قلب أرجواني</translation></message>
<message><source>purple square</source><translation>مربع بنفسجي</translation></message>
<message><source>purse</source><translation>كيس نقود</translation></message>
<message><source>pushpin</source><translation>دبوس ضغط</translation></message>
<message><source>puzzle piece</source><translation>أحجية الصور المقطوعة</translation></message>
<message><source>quarter</source><translation>تربيع</translation></message>
<message><source>quiet</source><translation>صمت</translation></message>
<message><source>rabbit</source><translation>أرنب</translation></message>
<message><source>rabbit face</source><translation>وجه أرنب</translation></message>
<message><source>raccoon</source><translation>راكون</translation></message>
<message><source>racing</source><translation>سباق</translation></message>
<message><source>racing car</source><translation>سيارة سباق</translation></message>
<message><source>radio</source><translation>راديو</translation></message>
<message><source>radio button</source><translation>زر تبادلي</translation></message>
<message><source>radioactive</source><translation>إشعاع</translation></message>
<message><source>railway</source><translation>نقل عام</translation></message>
<message><source>railway car</source><translation>عربة قطار</translation></message>
<message><source>railway track</source><translation>سكة حديد</translation></message>
<message><source>rain</source><translation>مطر</translation></message>
<message><source>rainbow</source><translation>ألوان الطيف</translation></message>
<message><source>rainbow flag</source><translation>علم ألوان طيف</translation></message>
<message><source>raised</source><translation>يد مرفوعة</translation></message>
<message><source>raised back of hand</source><translation>ظهر يد مرفوعة</translation></message>
<message><source>raised fist</source><translation>قبضة يد مرفوعة</translation></message>
<message><source>raised hand</source><translation>يد مرفوعة</translation></message>
<message><source>raising hands</source><translation>تشجيع</translation></message>
<message><source>ram</source><translation>كبش</translation></message>
<message><source>rat</source><translation>جرذ</translation></message>
<message><source>razor</source><translation>موس حلاقة</translation></message>
<message><source>reach</source><translation>يصافح</translation></message>
<message><source>receipt</source><translation>إيصال</translation></message>
<message><source>record</source><translation>تسجيل</translation></message>
<message><source>record button</source><translation>زر تسجيل</translation></message>
<message><source>recycling symbol</source><translation>رمز تدوير</translation></message>
<message><source>red apple</source><translation>تفاح أحمر</translation></message>
<message><source>red circle</source><translation>دائرة حمراء</translation></message>
<message><source>red envelope</source><translation>ظرف أحمر بكتابة صينية</translation></message>
<message><source>red exclamation mark</source><translation>علامة تعجب حمراء</translation></message>
<message><source>red heart</source><translation>قلب أحمر</translation></message>
<message><source>red paper lantern</source><translation>فانوس بورق أحمر</translation></message>
<message><source>red question mark</source><translation>علامة استفهام حمراء</translation></message>
<message><source>red square</source><translation>مربع أحمر</translation></message>
<message><source>red triangle pointed down</source><translation>مثلث لأسفل أحمر</translation></message>
<message><source>red triangle pointed up</source><translation>مثلث لأعلى أحمر</translation></message>
<message><source>registered</source><translation>مسجَّل</translation></message>
<message><source>relationship</source><translation>زوج وقلب</translation></message>
<message><source>relax</source><translation>راحة</translation></message>
<message><source>relieved face</source><translation>وجه مرتاح</translation></message>
<message><source>religion</source><translation>دين</translation></message>
<message><source>reminder ribbon</source><translation>شريطة تذكير</translation></message>
<message><source>repeat button</source><translation>زر تكرار</translation></message>
<message><source>repeat single button</source><translation>زر تكرار مرة واحدة</translation></message>
<message><source>rescue worker’s helmet</source><translation>خوذة رجل إنقاذ</translation></message>
<message><source>restaurant</source><translation>مطعم</translation></message>
<message><source>restroom</source><translation>دورة مياه</translation></message>
<message><source>reverse button</source><translation>زر ترجيع</translation></message>
<message><source>revolving hearts</source><translation>قلوب تدور حول بعضها</translation></message>
<message><source>rhinoceros</source><translation>وحيد القرن</translation></message>
<message><source>ribbon</source><translation>شريط</translation></message>
<message><source>rice ball</source><translation>كرة أرز</translation></message>
<message><source>rice cracker</source><translation>مقرمشات أرز</translation></message>
<message><source>right anger bubble</source><translation>فقاعة غضب يمنى</translation></message>
<message><source>right arrow</source><translation>سهم لليمين</translation></message>
<message><source>right arrow curving down</source><translation>سهم لأسفل من اليسار</translation></message>
<message><source>right arrow curving left</source><translation>سهم أيمن بانحناء أيسر</translation></message>
<message><source>right arrow curving up</source><translation>سهم لأعلى من اليسار</translation></message>
<message><source>right-facing fist</source><translation>قبضة لليمين</translation></message>
<message><source>rightwards</source><translation>يمين</translation></message>
<message><source>rightwards hand</source><translation>يد باتجاه اليمين</translation></message>
<message><source>rightwards pushing hand</source><translation>يد تدفع يمينًا</translation></message>
<message><source>ring</source><translation>خاتم</translation></message>
<message><source>ring buoy</source><translation>عوامة</translation></message>
<message><source>ringed planet</source><translation>كوكب داخل حلقة</translation></message>
<message><source>roasted sweet potato</source><translation>بطاطا حلوة مشوية</translation></message>
<message><source>robot</source><translation>وجه روبوت</translation></message>
<message><source>rock</source><translation>صخرة</translation></message>
<message><source>rocket</source><translation>صاروخ</translation></message>
<message><source>roll of paper</source><translation>لفة ورق</translation></message>
<message><source>rolled-up newspaper</source><translation>صحيفة مطوية</translation></message>
<message><source>roller coaster</source><translation>قطار ملاهي</translation></message>
<message><source>roller skate</source><translation>حذاء مع عجلات</translation></message>
<message><source>rolling on the floor laughing</source><translation>وجه ضاحك يتدحرج على الأرض</translation></message>
<message><source>romance</source><translation>رومنس</translation></message>
<message><source>rooster</source><translation>ديك</translation></message>
<message><source>root</source><translation>جذر</translation></message>
<message><source>root vegetable</source><translation>خضراوات جذرية</translation></message>
<message><source>rose</source><translation>وردة</translation></message>
<message><source>rosette</source><translation>وردية</translation></message>
<message><source>round pushpin</source><translation>دبوس مستدير</translation></message>
<message><source>rugby football</source><translation>كرة رجبي</translation></message>
<message><source>running</source><translation>جري</translation></message>
<message><source>running shirt</source><translation>قميص رياضي</translation></message>
<message><source>running shoe</source><translation>حذاء رياضي</translation></message>
<message><source>sad</source><translation>حزين</translation></message>
<message><source>sad but relieved face</source><translation>وجه خيبة أمل</translation></message>
<message><source>safety pin</source><translation>دبوس أمان</translation></message>
<message><source>safety vest</source><translation>سترة سلامة</translation></message>
<message><source>sailboat</source><translation>مركب شراعي</translation></message>
<message><source>sake</source><translation>زجاجة وفنجان</translation></message>
<message><source>salt</source><translation>ملح</translation></message>
<message><source>saluting face</source><translation>وجه يلقي التحيّة</translation></message>
<message><source>sandwich</source><translation>ساندوتش</translation></message>
<message><source>sari</source><translation>ساري</translation></message>
<message><source>satellite</source><translation>قمر صناعي</translation></message>
<message><source>satellite antenna</source><translation>طبق قمر صناعي</translation></message>
<message><source>sauropod</source><translation>ديناصور صوروبودا</translation></message>
<message><source>saxophone</source><translation>ساكسفون</translation></message>
<message><source>scared</source><translation>خائف</translation></message>
<message><source>scarf</source><translation>وشاح</translation></message>
<message><source>scary</source><translation>مخيف</translation></message>
<message><source>school</source><translation>مدرسة</translation></message>
<message><source>science</source><translation>بحث</translation></message>
<message><source>scientist</source><translation>عالِم</translation></message>
<message><source>scissors</source><translation>مقص</translation></message>
<message><source>scooter</source><translation>سكوتر</translation></message>
<message><source>scorpion</source><translation>عقرب</translation></message>
<message><source>screwdriver</source><translation>مفك براغي</translation></message>
<message><source>scroll</source><translation>ورقة ملفوفة</translation></message>
<message><source>seal</source><translation>فقمة</translation></message>
<message><source>seat</source><translation>مقعد</translation></message>
<message><source>secret</source><translation>سر</translation></message>
<message><source>see-no-evil monkey</source><translation>قرد يحجب عينيه</translation></message>
<message><source>seedling</source><translation>شتلة</translation></message>
<message><source>selfie</source><translation>صورة سيلفي</translation></message>
<message><source>service dog</source><translation>كلب مساعدة</translation></message>
<message><source>seven o’clock</source><translation>الساعة السابعة</translation></message>
<message><source>seven-thirty</source><translation>السابعة والنصف</translation></message>
<message><source>sewing needle</source><translation>إبرة خياطة</translation></message>
<message><source>shaking face</source><translation>وجه يهتز</translation></message>
<message><source>shallow pan of food</source><translation>مقلاة مسطحة بها طعام</translation></message>
<message><source>shamrock</source><translation>نبات النفل</translation></message>
<message><source>shark</source><translation>سمكة قرش</translation></message>
<message><source>shaved ice</source><translation>آيس كريم مجروش</translation></message>
<message><source>sheaf of rice</source><translation>حزمة من الأرز</translation></message>
<message><source>sheep</source><translation>خروف</translation></message>
<message><source>shield</source><translation>درع</translation></message>
<message><source>shinto shrine</source><translation>ضريح</translation></message>
<message><source>ship</source><translation>سفينة</translation></message>
<message><source>shirt</source><translation>قميص</translation></message>
<message><source>shock</source><translation>صدمة</translation></message>
<message><source>shocked</source><translation>مصدوم</translation></message>
<message><source>shoe</source><translation>حذاء</translation></message>
<message><source>shooting star</source><translation>شهاب</translation></message>
<message><source>shopping</source><translation>تسوق</translation></message>
<message><source>shopping bags</source><translation>حقائب تسوق</translation></message>
<message><source>shopping cart</source><translation>عربة التسوق</translation></message>
<message><source>shortcake</source><translation>قطعة من الكعك</translation></message>
<message><source>shorts</source><translation>شورت</translation></message>
<message><source>shovel</source><translation>جاروف</translation></message>
<message><source>shower</source><translation>دوش</translation></message>
<message><source>showing</source><translation>العالم</translation></message>
<message><source>shrimp</source><translation>جمبري</translation></message>
<message><source>shuffle tracks button</source><translation>زر أسهم متداخلة</translation></message>
<message><source>shushing face</source><translation>وجه يطلب الصمت</translation></message>
<message><source>sick</source><translation>مريض</translation></message>
<message><source>sign of the horns</source><translation>إشارة قرون</translation></message>
<message><source>silhouette</source><translation>ظل</translation></message>
<message><source>singer</source><translation>مغنّي</translation></message>
<message><source>six o’clock</source><translation>الساعة السادسة</translation></message>
<message><source>six-thirty</source><translation>السادسة والنصف</translation></message>
<message><source>skateboard</source><translation>لوح التزلج</translation></message>
<message><source>ski</source><translation>سكي</translation></message>
<message><source>skier</source><translation>متزلّج على الثلج</translation></message>
<message><source>skis</source><translation>تزلج</translation></message>
<message><source>skull</source><translation>جمجمة</translation></message>
<message><source>skull and crossbones</source><translation>جمجمة بعظمتين متصالبتين</translation></message>
<message><source>skunk</source><translation>ظربان</translation></message>
<message><source>sled</source><translation>مزلجة</translation></message>
<message><source>sleeping face</source><translation>وجه نائم</translation></message>
<message><source>sleepy</source><translation>نعسان</translation></message>
<message><source>sleepy face</source><translation>وجه ناعس</translation></message>
<message><source>slightly frowning face</source><translation>وجه عابس قليلاً</translation></message>
<message><source>slightly smiling face</source><translation>وجه بابتسامة بسيطة</translation></message>
<message><source>slot machine</source><translation>جهاز قمار</translation></message>
<message><source>sloth</source><translation>كسلان</translation></message>
<message><source>small airplane</source><translation>طائرة صغيرة</translation></message>
<message><source>small blue diamond</source><translation>ماسة زرقاء صغيرة</translation></message>
<message><source>small orange diamond</source><translation>ماسة برتقالي صغيرة</translation></message>
<message><source>smiling</source><translation>ابتسامة</translation></message>
<message><source>smiling cat with heart-eyes</source><translation>وجه قطة مبتسم بعينين على شكل قلب</translation></message>
<message><source>smiling face</source><translation>وجه مبتسم</translation></message>
<message><source>smiling face with halo</source><translation>وجه مبتسم بهالة</translation></message>
<message><source>smiling face with heart-eyes</source><translation>وجه مبتسم مع عينين على شكل قلب</translation></message>
<message><source>smiling face with hearts</source><translation>وجه مبتسم مع ثلاثة قلوب</translation></message>
<message><source>smiling face with horns</source><translation>وجه مبتسم بقرنين</translation></message>
<message><source>smiling face with open hands</source><translation>وجه يعانق بابتسامة</translation></message>
<message><source>smiling face with smiling eyes</source><translation>وجه باسم بعينين باسمتين</translation></message>
<message><source>smiling face with sunglasses</source><translation>وجه مبتسم بنظارة شمس</translation></message>
<message><source>smiling face with tear</source><translation>وجه مبتسم مع دمعة</translation></message>
<message><source>smirking face</source><translation>وجه بابتسامة متكلفة</translation></message>
<message><source>snail</source><translation>حلزون</translation></message>
<message><source>snake</source><translation>ثعبان</translation></message>
<message><source>sneeze</source><translation>عطس</translation></message>
<message><source>sneezing face</source><translation>وجه يعطس</translation></message>
<message><source>snow</source><translation>ثلج</translation></message>
<message><source>snow-capped mountain</source><translation>جبل بقمة ثلجية</translation></message>
<message><source>snowboarder</source><translation>متزلج</translation></message>
<message><source>snowflake</source><translation>كتلة ثلج</translation></message>
<message><source>snowman</source><translation>رجل ثلج</translation></message>
<message><source>snowman without snow</source><translation>رجل ثلج بدون ثلج متساقط</translation></message>
<message><source>soap</source><translation>صابون</translation></message>
<message><source>soar</source><translation>طيران</translation></message>
<message><source>soccer ball</source><translation>كرة قدم</translation></message>
<message><source>socks</source><translation>جورب</translation></message>
<message><source>soft ice cream</source><translation>آيس كريم مخفف</translation></message>
<message><source>softball</source><translation>كرة ليّنة</translation></message>
<message><source>sound</source><translation>صوت</translation></message>
<message><source>space</source><translation>فضاء</translation></message>
<message><source>spade suit</source><translation>ورقة البستوني</translation></message>
<message><source>spaghetti</source><translation>سباغتي</translation></message>
<message><source>sparkle</source><translation>ومضة</translation></message>
<message><source>sparkler</source><translation>ماسة نارية</translation></message>
<message><source>sparkles</source><translation>ومضات</translation></message>
<message><source>sparkling heart</source><translation>قلب لامع</translation></message>
<message><source>speak-no-evil monkey</source><translation>قرد يحجب الكلام</translation></message>
<message><source>speaker</source><translation>سبيكر</translation></message>
<message><source>speaker high volume</source><translation>صوت سماعة مرتفع</translation></message>
<message><source>speaker low volume</source><translation>صوت سماعة منخفض</translation></message>
<message><source>speaker medium volume</source><translation>صوت معتدل</translation></message>
<message><source>speaking head</source><translation>رأس تتحدث</translation></message>
<message><source>speech balloon</source><translation>فقاعة كلام</translation></message>
<message><source>speedboat</source><translation>قارب سريع</translation></message>
<message><source>spider</source><translation>عنكبوت</translation></message>
<message><source>spider web</source><translation>شبكة عنكبوت</translation></message>
<message><source>spill</source><translation>سكب</translation></message>
<message><source>spiral calendar</source><translation>تقويم حلزوني</translation></message>
<message><source>spiral notepad</source><translation>ورقة ملاحظات</translation></message>
<message><source>spiral shell</source><translation>صدفة حلزونية</translation></message>
<message><source>splatter</source><translation>بقعة</translation></message>
<message><source>sponge</source><translation>اسفنجة</translation></message>
<message><source>spoon</source><translation>ملعقة</translation></message>
<message><source>sport utility vehicle</source><translation>مركبة رياضية</translation></message>
<message><source>sports medal</source><translation>ميدالية رياضية</translation></message>
<message><source>spouting whale</source><translation>حوت بنافورة</translation></message>
<message><source>spring</source><translation>ربيع</translation></message>
<message><source>square</source><translation>مربع</translation></message>
<message><source>squid</source><translation>حبار</translation></message>
<message><source>squinting face with tongue</source><translation>وجه بعينين مغلقتين ولسان متدلٍ</translation></message>
<message><source>stadium</source><translation>استاد</translation></message>
<message><source>star</source><translation>نجم متوسط أبيض</translation></message>
<message><source>star and crescent</source><translation>هلال ونجمة</translation></message>
<message><source>star of David</source><translation>نجمة داوود</translation></message>
<message><source>star-struck</source><translation>وجه بعينين على شكل نجمة</translation></message>
<message><source>stars</source><translation>نجوم</translation></message>
<message><source>station</source><translation>محطة قطار</translation></message>
<message><source>statue</source><translation>تمثال</translation></message>
<message><source>steaming bowl</source><translation>سلطانية البخار</translation></message>
<message><source>stethoscope</source><translation>سماعة طبيب</translation></message>
<message><source>stick</source><translation>عصا</translation></message>
<message><source>stop button</source><translation>زر إيقاف</translation></message>
<message><source>stop sign</source><translation>علامة توقف</translation></message>
<message><source>stopwatch</source><translation>ساعة توقف</translation></message>
<message><source>straight ruler</source><translation>مسطرة</translation></message>
<message><source>strawberry</source><translation>فراولة</translation></message>
<message><source>stuck-out</source><translation>لسان ممدود</translation></message>
<message><source>student</source><translation>طالِب</translation></message>
<message><source>studio microphone</source><translation>ميكروفون استوديو</translation></message>
<message><source>stuffed flatbread</source><translation>خبز مفرود محشو</translation></message>
<message><source>sun</source><translation>شمس</translation></message>
<message><source>sun behind cloud</source><translation>شمس خلف السحب</translation></message>
<message><source>sun behind large cloud</source><translation>شمس خلف سحابة كبيرة</translation></message>
<message><source>sun behind rain cloud</source><translation>شمس خلف سحابة ومطر</translation></message>
<message><source>sun behind small cloud</source><translation>شمس خلف سحابة صغيرة</translation></message>
<message><source>sun with face</source><translation>وجه الشمس</translation></message>
<message><source>sunflower</source><translation>دوار الشمس</translation></message>
<message><source>sunglasses</source><translation>نظارة شمس</translation></message>
<message><source>sunrise</source><translation>شروق</translation></message>
<message><source>sunrise over mountains</source><translation>شروق على جبل</translation></message>
<message><source>sunset</source><translation>غسق</translation></message>
<message><source>superhero</source><translation>بطل خارق</translation></message>
<message><source>supervillain</source><translation>شرير خارق</translation></message>
<message><source>sushi</source><translation>سوشي</translation></message>
<message><source>suspension railway</source><translation>سكة حديد معلقة</translation></message>
<message><source>swan</source><translation>إوزة</translation></message>
<message><source>sweat</source><translation>عرق</translation></message>
<message><source>sweat droplets</source><translation>عرق يتصبب</translation></message>
<message><source>sweet</source><translation>حلو</translation></message>
<message><source>swimming</source><translation>سباحة</translation></message>
<message><source>synagogue</source><translation>معبد يهودي</translation></message>
<message><source>syringe</source><translation>إبرة حقن</translation></message>
<message><source>t-shirt</source><translation>تي شيرت</translation></message>
<message><source>taco</source><translation>تاكو</translation></message>
<message><source>takeout box</source><translation>علبة طعام للخارج</translation></message>
<message><source>tamale</source><translation>تامال</translation></message>
<message><source>tanabata tree</source><translation>شجرة احتفال</translation></message>
<message><source>tangerine</source><translation>يوسفي</translation></message>
<message><source>taxi</source><translation>تاكسي</translation></message>
<message><source>tea</source><translation>شاي</translation></message>
<message><source>teacher</source><translation>أستاذ</translation></message>
<message><source>teacup without handle</source><translation>فنجان شاي بدون مقبض</translation></message>
<message><source>teapot</source><translation>إبريق شاي</translation></message>
<message><source>tear</source><translation>دموع</translation></message>
<message><source>tear-off calendar</source><translation>تقويم بأوراق للقطع</translation></message>
<message><source>technologist</source><translation>خبير تكنولوجيا</translation></message>
<message><source>teddy bear</source><translation>لعبة محشوة بشكل دب</translation></message>
<message><source>teeth</source><translation>أسنان</translation></message>
<message><source>telephone</source><translation>هاتف أرضي</translation></message>
<message><source>telephone receiver</source><translation>سماعة هاتف</translation></message>
<message><source>telescope</source><translation>تليسكوب</translation></message>
<message><source>television</source><translation>تليفزيون</translation></message>
<message><source>temple</source><translation>معبد</translation></message>
<message><source>ten o’clock</source><translation>الساعة العاشرة</translation></message>
<message><source>ten-thirty</source><translation>العاشرة والنصف</translation></message>
<message><source>tennis</source><translation>تنس</translation></message>
<message><source>tent</source><translation>خيمة</translation></message>
<message><source>test tube</source><translation>أنبوب اختبار</translation></message>
<message><source>thermometer</source><translation>ترمومتر</translation></message>
<message><source>thinking face</source><translation>وجه يفكر</translation></message>
<message><source>thong sandal</source><translation>صندل إصبع</translation></message>
<message><source>thought balloon</source><translation>فقاعة أفكار</translation></message>
<message><source>thread</source><translation>بكرة خيط</translation></message>
<message><source>three o’clock</source><translation>الساعة الثالثة</translation></message>
<message><source>three-thirty</source><translation>الثالثة والنصف</translation></message>
<message><source>thumbs down</source><translation>رفض</translation></message>
<message><source>thumbs up</source><translation>قبول</translation></message>
<message><source>ticket</source><translation>تذكرة</translation></message>
<message><source>tiger</source><translation>نمر</translation></message>
<message><source>tiger face</source><translation>وجه نمر</translation></message>
<message><source>time</source><translation>وقت</translation></message>
<message><source>timer clock</source><translation>ساعة مؤقت</translation></message>
<message><source>tired</source><translation>تعبان</translation></message>
<message><source>tired face</source><translation>وجه متعب</translation></message>
<message><source>toilet</source><translation>مرحاض</translation></message>
<message><source>tomato</source><translation>طماطم</translation></message>
<message><source>tongue</source><translation>لسان</translation></message>
<message><source>tool</source><translation>اداة</translation></message>
<message><source>toolbox</source><translation>صندوق أدوات</translation></message>
<message><source>tooth</source><translation>سن</translation></message>
<message><source>toothbrush</source><translation>فرشاة أسنان</translation></message>
<message><source>top hat</source><translation>قبعة رسمية</translation></message>
<message><source>tornado</source><translation>إعصار</translation></message>
<message><source>trackball</source><translation>كرة مسار</translation></message>
<message><source>tractor</source><translation>جرار</translation></message>
<message><source>trade mark</source><translation>إشارة علامة تجارية</translation></message>
<message><source>train</source><translation>قطار</translation></message>
<message><source>tram</source><translation>ترام</translation></message>
<message><source>tram car</source><translation>سيارة ترام</translation></message>
<message><source>transgender flag</source><translation>علم المتحولين جنسيًا</translation></message>
<message><source>transgender symbol</source><translation>رمز المتحوّلين جنسيًا</translation></message>
<message><source>travel</source><translation>سفر</translation></message>
<message><source>tree</source><translation>شجرة</translation></message>
<message><source>trend</source><translation>بيانات</translation></message>
<message><source>triangle</source><translation>مثلث</translation></message>
<message><source>triangular flag</source><translation>علم مثلث</translation></message>
<message><source>triangular ruler</source><translation>مسطرة مثلثة</translation></message>
<message><source>trident emblem</source><translation>رمز ثلاثي الشعب</translation></message>
<message><source>troll</source><translation>الترول</translation></message>
<message><source>trolleybus</source><translation>أتوبيس ترولي</translation></message>
<message><source>trophy</source><translation>كأس</translation></message>
<message><source>tropical</source><translation>استوائي</translation></message>
<message><source>tropical drink</source><translation>مشروب استوائي</translation></message>
<message><source>tropical fish</source><translation>سمكة استوائية</translation></message>
<message><source>truck</source><translation>شاحنة</translation></message>
<message><source>trumpet</source><translation>آلة نفخ</translation></message>
<message><source>tulip</source><translation>زهرة التوليب</translation></message>
<message><source>tumbler glass</source><translation>كوب زجاجي</translation></message>
<message><source>turkey</source><translation>ديك رومي</translation></message>
<message><source>turtle</source><translation>سلحفاة</translation></message>
<message><source>twelve o’clock</source><translation>الساعة الثانية عشرة</translation></message>
<message><source>twelve-thirty</source><translation>الثانية عشرة والنصف</translation></message>
<message><source>two hearts</source><translation>قلبان</translation></message>
<message><source>two o’clock</source><translation>الساعة الثانية</translation></message>
<message><source>two-hump camel</source><translation>جمل ثنائي السنام</translation></message>
<message><source>two-thirty</source><translation>الثانية والنصف</translation></message>
<message><source>type</source><translation>جلد</translation></message>
<message><source>umbrella</source><translation>شمسية</translation></message>
<message><source>umbrella on ground</source><translation>شمسية على الأرض</translation></message>
<message><source>umbrella with rain drops</source><translation>شمسية وقطرات مطر</translation></message>
<message><source>unamused face</source><translation>وجه غير مستمتع</translation></message>
<message><source>unhappy</source><translation>تعيس</translation></message>
<message><source>unicorn</source><translation>وجه أحادي قرن</translation></message>
<message><source>unimpressed</source><translation>لا تعليق</translation></message>
<message><source>unlock</source><translation>فتح</translation></message>
<message><source>unlocked</source><translation>قفل مفتوح</translation></message>
<message><source>up arrow</source><translation>سهم لأعلى</translation></message>
<message><source>up-down arrow</source><translation>سهم لأعلى وأسفل</translation></message>
<message><source>up-left arrow</source><translation>سهم لأعلى اليسار</translation></message>
<message><source>up-right arrow</source><translation>سهم لأعلى اليمين</translation></message>
<message><source>upset</source><translation>متجهم</translation></message>
<message><source>upside-down face</source><translation>وجه مقلوب</translation></message>
<message><source>upwards button</source><translation>زر لأعلى</translation></message>
<message><source>vampire</source><translation>مصّاص دماء</translation></message>
<message><source>vegetable</source><translation>خضار</translation></message>
<message><source>veggie</source><translation>نباتي</translation></message>
<message><source>vertical traffic light</source><translation>إشارة مرور رأسية</translation></message>
<message><source>vibration mode</source><translation>وضع اهتزاز</translation></message>
<message><source>victory</source><translation>انتصار</translation></message>
<message><source>victory hand</source><translation>علامة النصر</translation></message>
<message><source>video</source><translation>فيديو</translation></message>
<message><source>video camera</source><translation>كاميرا فيديو</translation></message>
<message><source>video game</source><translation>لعبة فيديو</translation></message>
<message><source>videocassette</source><translation>شريط فيديو</translation></message>
<message><source>violin</source><translation>كمان</translation></message>
<message><source>vitamin</source><translation>فيتامين</translation></message>
<message><source>volcano</source><translation>بركان</translation></message>
<message><source>volleyball</source><translation>كرة طائرة</translation></message>
<message><source>vulcan salute</source><translation>تحية فولكان</translation></message>
<message><source>waffle</source><translation>وافل</translation></message>
<message><source>walk</source><translation>تمشي</translation></message>
<message><source>waning</source><translation>متناقص</translation></message>
<message><source>waning crescent moon</source><translation>هلال آخر الشهر</translation></message>
<message><source>waning gibbous moon</source><translation>قمر أحدب متناقص</translation></message>
<message><source>warning</source><translation>إشارة تحذير</translation></message>
<message><source>wastebasket</source><translation>سلة نفايات</translation></message>
<message><source>watch</source><translation>ساعة</translation></message>
<message><source>water buffalo</source><translation>جاموس مائي</translation></message>
<message><source>water closet</source><translation>حمام</translation></message>
<message><source>water pistol</source><translation>مسدس ماء</translation></message>
<message><source>water wave</source><translation>موجة</translation></message>
<message><source>watermelon</source><translation>بطيخ</translation></message>
<message><source>waving hand</source><translation>تلويح باليد</translation></message>
<message><source>wavy dash</source><translation>شرطة مموجة</translation></message>
<message><source>waxing crescent moon</source><translation>هلال بداية الشهر</translation></message>
<message><source>waxing gibbous moon</source><translation>قمر أحدب متزايد</translation></message>
<message><source>weapon</source><translation>سلاح</translation></message>
<message><source>weary cat</source><translation>وجه قطة مجهد</translation></message>
<message><source>weary face</source><translation>وجه مجهد</translation></message>
<message><source>wedding</source><translation>كنيسة زفاف</translation></message>
<message><source>whale</source><translation>حوت</translation></message>
<message><source>wheel</source><translation>عجلة</translation></message>
<message><source>wheel of dharma</source><translation>عجلة دارما</translation></message>
<message><source>wheelchair</source><translation>كرسي متحرك</translation></message>
<message><source>wheelchair symbol</source><translation>كرسي متحرك</translation></message>
<message><source>white cane</source><translation>عصا سير</translation></message>
<message><source>white circle</source><translation>دائرة بيضاء</translation></message>
<message><source>white exclamation mark</source><translation>علامة تعجب بيضاء</translation></message>
<message><source>white flag</source><translation>علم أبيض يرفرف</translation></message>
<message><source>white flower</source><translation>وردة بيضاء</translation></message>
<message><source>white heart</source><translation>قلب أبيض</translation></message>
<message><source>white large square</source><translation>مربع كبير أبيض</translation></message>
<message><source>white medium square</source><translation>مربع متوسط أبيض</translation></message>
<message><source>white medium-small square</source><translation>مربع صغير متوسط أبيض</translation></message>
<message><source>white question mark</source><translation>علامة استفهام بيضاء</translation></message>
<message><source>white small square</source><translation>مربع صغير أبيض</translation></message>
<message><source>white square button</source><translation>زر مربع أبيض</translation></message>
<message><source>wilted flower</source><translation>وردة ذابلة</translation></message>
<message><source>win</source><translation>ربح</translation></message>
<message><source>wind chime</source><translation>جرس الريح</translation></message>
<message><source>wind face</source><translation>رياح</translation></message>
<message><source>window</source><translation>نافذة</translation></message>
<message><source>wine glass</source><translation>كأس شراب</translation></message>
<message><source>wing</source><translation>جناح</translation></message>
<message><source>winking face</source><translation>وجه يغمز</translation></message>
<message><source>winking face with tongue</source><translation>وجه بلسان متدلٍ وعين غامزة</translation></message>
<message><source>wireless</source><translation>اتصال لاسلكي</translation></message>
<message><source>wlan</source><translation>wlan</translation></message>
<message><source>wolf</source><translation>وجه ذئب</translation></message>
<message><source>woman</source><translation>سيدة</translation></message>
<message><source>woman and man holding hands</source><translation>رجل وامرأة يمسكان بيد بعضهما</translation></message>
<message><source>woman artist</source><translation>رسامة</translation></message>
<message><source>woman astronaut</source><translation>رائدة فضاء</translation></message>
<message><source>woman biking</source><translation>راكبة دراجة</translation></message>
<message><source>woman bouncing ball</source><translation>سيدة وكرة</translation></message>
<message><source>woman bowing</source><translation>سيدة تنحني اعتذارًا</translation></message>
<message><source>woman cartwheeling</source><translation>سيدة تفعل حركة العجلة</translation></message>
<message><source>woman climbing</source><translation>امرأة تتسلّق</translation></message>
<message><source>woman construction worker</source><translation>عاملة بناء</translation></message>
<message><source>woman cook</source><translation>طباخة</translation></message>
<message><source>woman dancing</source><translation>راقصة</translation></message>
<message><source>woman detective</source><translation>محقّقة</translation></message>
<message><source>woman elf</source><translation>جنيّة صغيرة</translation></message>
<message><source>woman facepalming</source><translation>سيدة تشعر بإحباط</translation></message>
<message><source>woman factory worker</source><translation>عاملة مصنع</translation></message>
<message><source>woman fairy</source><translation>جنّية</translation></message>
<message><source>woman farmer</source><translation>مزارعة</translation></message>
<message><source>woman feeding baby</source><translation>امرأة تُرضع طفلاً</translation></message>
<message><source>woman firefighter</source><translation>سيدة إطفاء</translation></message>
<message><source>woman frowning</source><translation>متجهمة</translation></message>
<message><source>woman genie</source><translation>ماردة</translation></message>
<message><source>woman gesturing NO</source><translation>غير موافقة</translation></message>
<message><source>woman gesturing OK</source><translation>موافقة</translation></message>
<message><source>woman getting haircut</source><translation>تقص شعرها</translation></message>
<message><source>woman getting massage</source><translation>تدليك لسيدة</translation></message>
<message><source>woman golfing</source><translation>لاعبة غولف</translation></message>
<message><source>woman guard</source><translation>حارسة</translation></message>
<message><source>woman health worker</source><translation>عاملة بقطاع الصحة</translation></message>
<message><source>woman in lotus position</source><translation>امرأة متربّعة</translation></message>
<message><source>woman in manual wheelchair</source><translation>سيدة على كرسي متحرك يدوي</translation></message>
<message><source>woman in manual wheelchair: facing right</source><translation>سيدة على كرسي متحرك يدوي: متجه لليمين</translation></message>
<message><source>woman in motorized wheelchair</source><translation>سيدة على كرسي متحرك كهربائي</translation></message>
<message><source>woman in motorized wheelchair: facing right</source><translation>سيدة على كرسي متحرك كهربائي: متجه لليمين</translation></message>
<message><source>woman in steamy room</source><translation>امرأة في حمّام بخار</translation></message>
<message><source>woman in tuxedo</source><translation>امرأة ببدلة رسمية</translation></message>
<message><source>woman judge</source><translation>قاضية</translation></message>
<message><source>woman juggling</source><translation>لاعبة قذف كرات</translation></message>
<message><source>woman kneeling</source><translation>سيدة جالسة على ركبتيها</translation></message>
<message><source>woman kneeling: facing right</source><translation>سيدة جالسة على ركبتيها: متجه لليمين</translation></message>
<message><source>woman lifting weights</source><translation>رافعة أثقال</translation></message>
<message><source>woman mage</source><translation>ساحرة</translation></message>
<message><source>woman mechanic</source><translation>ميكانيكية</translation></message>
<message><source>woman mountain biking</source><translation>متسلقة جبال بدراجة</translation></message>
<message><source>woman office worker</source><translation>موظفة</translation></message>
<message><source>woman pilot</source><translation>ربّانة طائرة</translation></message>
<message><source>woman playing handball</source><translation>لاعبة كرة يد</translation></message>
<message><source>woman playing water polo</source><translation>لاعبة كرة ماء</translation></message>
<message><source>woman police officer</source><translation>شرطية</translation></message>
<message><source>woman pouting</source><translation>سيدة عابسة</translation></message>
<message><source>woman raising hand</source><translation>سيدة ترفع يدها</translation></message>
<message><source>woman rowing boat</source><translation>سيدة تجدف بقارب</translation></message>
<message><source>woman running</source><translation>راكضة</translation></message>
<message><source>woman running: facing right</source><translation>راكضة: متجه لليمين</translation></message>
<message><source>woman scientist</source><translation>عالِمة</translation></message>
<message><source>woman shrugging</source><translation>سيدة لا تبالي</translation></message>
<message><source>woman singer</source><translation>مطربة</translation></message>
<message><source>woman standing</source><translation>سيدة واقفة</translation></message>
<message><source>woman student</source><translation>طالبة</translation></message>
<message><source>woman superhero</source><translation>بطلة خارقة</translation></message>
<message><source>woman supervillain</source><translation>شريرة خارقة</translation></message>
<message><source>woman surfing</source><translation>راكبة أمواج</translation></message>
<message><source>woman swimming</source><translation>سبَّاحة</translation></message>
<message><source>woman teacher</source><translation>معلمة</translation></message>
<message><source>woman technologist</source><translation>عالِمة تكنولوجيا</translation></message>
<message><source>woman tipping hand</source><translation>سيدة بيد مائلة</translation></message>
<message><source>woman vampire</source><translation>مصّاصة دماء</translation></message>
<message><source>woman walking</source><translation>سائرة</translation></message>
<message><source>woman walking: facing right</source><translation>سائرة: متجه لليمين</translation></message>
<message><source>woman wearing turban</source><translation>سيدة ترتدي عمامة</translation></message>
<message><source>woman with headscarf</source><translation>امرأة محجّبة</translation></message>
<message><source>woman with veil</source><translation>امرأة بطرحة</translation></message>
<message><source>woman with white cane</source><translation>سيدة بعصا سير</translation></message>
<message><source>woman with white cane: facing right</source><translation>سيدة بعصا سير: متجه لليمين</translation></message>
<message><source>woman zombie</source><translation>امرأة زومبي</translation></message>
<message><source>woman: bald</source><translation>سيدة: أصلع</translation></message>
<message><source>woman: beard</source><translation>امرأة بلحية</translation></message>
<message><source>woman: blond hair</source><translation>امرأة شقراء</translation></message>
<message><source>woman: curly hair</source><translation>سيدة: شعر مجعد</translation></message>
<message><source>woman: red hair</source><translation>سيدة: شعر أحمر</translation></message>
<message><source>woman: white hair</source><translation>سيدة: شعر أبيض</translation></message>
<message><source>woman’s boot</source><translation>حذاء طويل الساق حريمي</translation></message>
<message><source>woman’s clothes</source><translation>ملابس حريمي</translation></message>
<message><source>woman’s hat</source><translation>قبعة نسائية</translation></message>
<message><source>woman’s sandal</source><translation>صندل حريمي</translation></message>
<message><source>women holding hands</source><translation>امرأتان تمسكان بيد بعضهما</translation></message>
<message><source>women with bunny ears</source><translation>امرأتان ترقصان</translation></message>
<message><source>women wrestling</source><translation>مصارعة سيدات</translation></message>
<message><source>women’s room</source><translation>للسيدات</translation></message>
<message><source>wood</source><translation>خشب</translation></message>
<message><source>woozy face</source><translation>وجه مصاب بدوار</translation></message>
<message><source>world map</source><translation>خريطة العالم</translation></message>
<message><source>worm</source><translation>دودة</translation></message>
<message><source>worried face</source><translation>وجه قلق</translation></message>
<message><source>wrapped gift</source><translation>هدية ملفوفة</translation></message>
<message><source>wrench</source><translation>مفتاح ربط</translation></message>
<message><source>writing hand</source><translation>يد تكتب</translation></message>
<message><source>x-ray</source><translation>أشعة سينية</translation></message>
<message><source>xoxo</source><translation>xoxo</translation></message>
<message><source>yarn</source><translation>خيط حياكة</translation></message>
<message><source>yawn</source><translation>تثاؤب</translation></message>
<message><source>yawning face</source><translation>وجه متثائب</translation></message>
<message><source>yellow</source><translation>أصفر</translation></message>
<message><source>yellow circle</source><translation>دائرة صفراء</translation></message>
<message><source>yellow heart</source><translation>قلب أصفر</translation></message>
<message><source>yellow square</source><translation>مربع أصفر</translation></message>
<message><source>yen banknote</source><translation>ورقة ين</translation></message>
<message><source>yin yang</source><translation>نصفان متكاملان</translation></message>
<message><source>yo-yo</source><translation>يويو</translation></message>
<message><source>young</source><translation>صغير</translation></message>
<message><source>zany face</source><translation>وجه غريب الشكل</translation></message>
<message><source>zebra</source><translation>حمار وحشي</translation></message>
<message><source>zipper-mouth face</source><translation>وجه بفم مقفل</translation></message>
<message><source>zodiac</source><translation>برج</translation></message>
<message><source>zombie</source><translation>زومبي</translation></message>
<message><source>zoo</source><translation>حديقة الحيوانات</translation></message>
</context>
</TS>
