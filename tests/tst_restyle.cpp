#include "support/Colors.h"
#include "support/ThemedClasses.h"
#include "support/WApplicationMain.h"
#include "support/WarningLog.h"

#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/widgets/RestyleReport.h>

#include <QBoxLayout>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabWidget>

#include <memory>

class Own : public WFrame
{
    Q_OBJECT

public:
    using WFrame::WFrame;

protected:
    // A state that only this class knows.
    void paintEvent(QPaintEvent *) override
    {
        QStyleOption option;
        option.initFrom(this);
        if (property("marked").toBool())
            option.state |= QStyle::State_MouseOver;
        QPainter painter(this);
        style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    }
};

namespace {

// Every color of every state differs from every other, in each theme.
WColorSets themeSets(int theme)
{
    WColorSets sets;
    int number = 0;
    for (const char *name : {"ground", "edge", "text", "fixed"}) {
        WColorSet set(QString::fromLatin1(name));
        const bool isFixed = qstrcmp(name, "fixed") == 0;
        for (int state = 0; state < WColorSet::StateCount; ++state)
            set.setColor(WColorSet::State(state), QColor(40 + 50 * number, 10 + 40 * state, isFixed ? 9 : 60 * theme));
        sets.emplace(name, set);
        ++number;
    }
    return sets;
}

constexpr int Inverted = 3; // the theme of the inverted sets

// By one letter, and several together.
QString templateOf(const QString &letters)
{
    QString css;
    for (const QChar letter : letters) {
        switch (letter.unicode()) {
        case 'F': // each state with colors of its own
            css += QLatin1String("$backgroundColors: ground; $borderColors: edge; $textColors: text; $borders: all; "
                                 "$borderWidth: 3;");
            break;
        case 'R': // rules for what is inside
            css += QLatin1String("QLabel { color: $(text.normal); background-color: $(edge.normal); } "
                                 "QLineEdit { background-color: $(ground.pressed); border: 2px solid $(edge.hovered); }"
                                 "WFrame { border: 4px solid $(ground.checked); } "
                                 "#one { background-color: $(ground.focused); } #two { color: $(edge.focused); }");
            break;
        case 'S': // the same for classes only
            css += QLatin1String("QLabel { color: $(text.normal); } WFrame, QRadioButton { border: 4px solid "
                                 "$(ground.checked); } WFrame:disabled { background-color: $(edge.pressed); }");
            break;
        case 'U': // what is painted twice shows
            css += QLatin1String("background-color: rgba(0, 90, 90, 100); border: 3px solid $(edge.hovered); "
                                 "border-radius: 14px; color: $(text.normal); padding: 2px 6px;");
            break;
        case 'D':
            css += QLatin1String("#three { background-color: $(edge.checked); } [toolTip=\"tip\"] { border: none; }");
            break;
        case 'P': css += QLatin1String("#x #one { border: 5px solid $(edge.pressed); }"); break;
        case 'L': css += QLatin1String("WFrame:no-frame { background-color: $(edge.hovered); }"); break;
        case 'X': css += QLatin1String("$backgroundColors: fixed; margin: 2px;"); break;
        case 'T': css += QLatin1String("$textColors: text;"); break;
        default: css += QLatin1String("$borders: all $(ground.normal); "); break; // expanded in two passes
        }
    }
    return css;
}

QWidget *create(const QString &name, QWidget *parent)
{
    QWidget *made = nullptr;
    forEachThemedClass([&](const char *className, const MakeWidget &make) {
        if (name == QLatin1String(className))
            made = make(parent);
    });
    if (made)
        return made;
    if (name == QLatin1String("QLabel"))
        return new QLabel(QStringLiteral("Text"), parent);
    if (name == QLatin1String("QLineEdit"))
        return new QLineEdit(parent);
    if (name == QLatin1String("QDialog"))
        return new QDialog(parent);
    if (name == QLatin1String("QStackedWidget"))
        return new QStackedWidget(parent);
    if (name == QLatin1String("QTabWidget"))
        return new QTabWidget(parent);
    return name == QLatin1String("Own") ? new Own(parent) : new QWidget(parent);
}

enum State { Normal, Disabled, Hovered, Pressed, Focused, Checked, StateEnd };
const char *const stateNames[] = {"normal", "disabled", "hovered", "pressed", "focused", "checked"};

void setState(QWidget *widget, int state)
{
    auto *button = qobject_cast<QAbstractButton *>(widget);
    widget->setEnabled(state != Disabled);
    if (state == Hovered || widget->underMouse()) {
        QEvent event(state == Hovered ? QEvent::Enter : QEvent::Leave);
        QCoreApplication::sendEvent(widget, &event);
    }
    widget->setFocusPolicy(Qt::StrongFocus);
    if (state == Focused)
        widget->setFocus();
    else
        widget->clearFocus();
    if (button) {
        button->setAutoExclusive(false);
        button->setDown(state == Pressed);
        button->setChecked(state == Checked);
    }
    widget->update();
}

// Windows in one of two ways: with templates, which follow the application, or given the expanded texts with
// QWidget::setStyleSheet() in tree order. A story told in both ways must have the same pictures.
class Stage
{
public:
    enum Way { Library, Literal };

    // The tree: "name<parent:Class:templates", parents first. "w" and "v" are windows; "#name" is the object name, too.
    explicit Stage(Way way, const QString &tree)
        : isLibrary(way == Library)
    {
        for (const char *name : {"w", "v"}) {
            named.insert(QLatin1String(name), new QWidget);
            at("w")->resize(400, 300);
        }
        WApplication::find()->setInvertedColorSets(themeSets(Inverted));
        WApplication::find()->setColorSets(themeSets(0));
        const QStringList nodes = tree.split(QLatin1Char(' '));
        for (const QString &node : nodes)
            add(node);
    }
    ~Stage()
    {
        delete at("w");
        delete at("v");
    }
    Stage(const Stage &) = delete;
    Stage &operator=(const Stage &) = delete;

    QWidget *at(const QString &name) const { return named.value(name); }
    QWidget *at(const char *name) const { return at(QString::fromLatin1(name)); }

    // The story: "verb:name=value", and a number for a switch to that theme with a picture.
    void tell(const QString &story)
    {
        const QStringList words = story.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &word : words) {
            const QString verb = word.section(QLatin1Char(':'), 0, 0), rest = word.section(QLatin1Char(':'), 1);
            const QString name = rest.section(QLatin1Char('='), 0, 0), value = rest.section(QLatin1Char('='), 1);
            QWidget *widget = at(name);
            bool isNumber = false;
            const int number = verb.toInt(&isNumber);
            if (isNumber) {
                theme(number);
                shot(at("w"));
            } else if (verb == QLatin1String("theme")) {
                theme(name.toInt());
            } else if (verb == QLatin1String("during")) { // what follows happens in a slot in the middle of the pass
                themeAnd(value.toInt(), widget, story.section(word, 1));
                break;
            } else if (verb == QLatin1String("shot")) {
                shot(widget);
            } else if (verb == QLatin1String("add")) {
                add(rest);
                named.value(rest.section(QLatin1Char('<'), 0, 0))->show();
            } else if (verb == QLatin1String("delete")) {
                delete widget;
            } else if (verb == QLatin1String("show")) {
                widget->show();
            } else if (verb == QLatin1String("hide")) {
                widget->hide();
            } else if (verb == QLatin1String("on") || verb == QLatin1String("off")) {
                widget->setEnabled(verb == QLatin1String("on"));
            } else if (verb == QLatin1String("state")) {
                setState(widget, value.toInt());
            } else if (verb == QLatin1String("page")) {
                widget->setProperty("currentIndex", value.toInt());
            } else if (verb == QLatin1String("rename")) {
                widget->setObjectName(value);
                style(widget, templates.at(indexOf(widget)).second);
            } else if (verb == QLatin1String("css")) {
                style(widget, templateOf(value));
            } else if (verb == QLatin1String("type")) {
                ThemeSupport::of(widget)->setThemeType(value);
                restyle();
            } else if (verb == QLatin1String("move")) {
                widget->setParent(at(value));
                widget->show();
                restyle();
            } else if (verb == QLatin1String("foreign")) {
                widget->setStyleSheet(QStringLiteral("QFrame { border: 9px solid red; }"));
            } else if (verb == QLatin1String("plainsheet")) {
                widget->setStyleSheet(QStringLiteral("WFrame, QRadioButton { background-color: #123456; }"));
            } else if (verb == QLatin1String("style")) {
                static const std::unique_ptr<QStyle> windows(QStyleFactory::create(QStringLiteral("Windows")));
                widget->setStyle(windows.get());
            } else if (verb == QLatin1String("line")) {
                qobject_cast<QFrame *>(widget)->setLineWidth(0);
                widget->update();
            } else if (verb == QLatin1String("scale")) {
                WApplication::find()->setFontScaleFactor(value.toFloat() / 10);
            } else if (verb == QLatin1String("fill")) {
                widget->setAutoFillBackground(true);
            } else if (verb == QLatin1String("mark")) {
                widget->setProperty("marked", true);
                widget->update();
            } else {
                qWarning() << "no such verb" << word;
            }
        }
    }
    void theme(int number)
    {
        WApplication::find()->setColorSets(themeSets(number));
        restyle();
    }
    void shot(QWidget *of)
    {
        QCoreApplication::sendPostedEvents();
        pictures << of->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    // Every styleSheet() holds its own text, and the property the template.
    bool holdsTexts() const
    {
        return std::all_of(templates.begin(), templates.end(), [](const Styled &one) {
            if (!one.first)
                return true;
            const QString text = expanded(one.first, one.second);
            return ThemeSupport::of(one.first)->styleSheet() == text && one.first->styleSheet() == text
                && one.first->property("styleSheet").toString() == one.second;
        });
    }
    void style(QWidget *widget, const QString &css)
    {
        const std::size_t index = indexOf(widget);
        if (index == templates.size())
            templates.emplace_back(widget, css);
        templates[index].second = css;
        if (isLibrary)
            widget->setProperty("styleSheet", css);
        else
            setLiterally(widget, css);
    }
    void place(QWidget *widget, const QString &name, const QString &css)
    {
        QWidget *parent = widget->parentWidget();
        if (name.startsWith(QLatin1Char('#')))
            widget->setObjectName(name.mid(1));
        int before = 0; // siblings cover each other in steps
        for (QObject *object : parent ? parent->children() : QObjectList())
            before += object->isWidgetType() && object != widget && object->property("placed").toBool();
        widget->setProperty("placed", true);
        if (parent)
            widget->setGeometry(10, 10 + 45 * before, parent->width() - 20,
                                qMax(20, parent->height() - 20 - 45 * before));
        named.insert(name, widget);
        if (!css.isEmpty())
            style(widget, css);
    }

    const bool isLibrary;
    QList<QImage> pictures;

private:
    using Styled = std::pair<QPointer<QWidget>, QString>;

    void add(const QString &node)
    {
        const QStringList parts = node.split(QLatin1Char(':'));
        QWidget *parent = at(parts.at(0).section(QLatin1Char('<'), 1));
        QWidget *widget = create(parts.at(1), parent);
        place(widget, parts.at(0).section(QLatin1Char('<'), 0, 0), templateOf(parts.value(2)));
        if (auto *stack = qobject_cast<QStackedWidget *>(parent))
            stack->addWidget(widget);
        if (auto *tabs = qobject_cast<QTabWidget *>(parent))
            tabs->addTab(widget, QStringLiteral("Tab"));
    }
    void themeAnd(int number, QWidget *widget, const QString &story)
    {
        const auto isDone = std::make_shared<bool>(!isLibrary);
        if (isLibrary) {
            QObject context;
            QObject::connect(static_cast<WFrame *>(widget), &WFrame::cssChanged, &context, [isDone, story, this] {
                if (!std::exchange(*isDone, true))
                    tell(story);
            });
            theme(number);
        } else {
            theme(number);
            tell(story);
            restyle();
        }
        QVERIFY(*isDone);
        for (const char *window : {"w", "v"})
            shot(at(window));
        theme(2);
        shot(at("w"));
    }
    std::size_t indexOf(const QWidget *widget) const
    {
        return std::size_t(std::find_if(templates.begin(), templates.end(),
                                        [widget](const Styled &one) { return one.first == widget; })
                           - templates.begin());
    }
    static QString expanded(QWidget *widget, const QString &css)
    {
        const QString selector = widget->objectName().isEmpty() ? QString::fromLatin1(widget->metaObject()->className())
                                                                : QLatin1Char('#') + widget->objectName();
        return WThemeUtils::parseCSS(selector, css,
                                     WThemeUtils::getWColorSetsByThemeType(WThemeUtils::getThemeTypeOfWidget(widget)))
            .styleSheet;
    }
    static void setLiterally(QWidget *widget, const QString &css)
    {
        widget->setAttribute(Qt::WA_StyledBackground);
        widget->setStyleSheet(expanded(widget, css));
    }
    void restyle()
    {
        for (const char *window : {"w", "v"}) {
            const QList<QWidget *> all = isLibrary ? QList<QWidget *>() : at(window)->findChildren<QWidget *>();
            for (QWidget *widget : all) { // parents come before their children
                if (indexOf(widget) < templates.size())
                    setLiterally(widget, templates.at(indexOf(widget)).second);
            }
        }
    }

    QHash<QString, QPointer<QWidget>> named;
    std::vector<Styled> templates;
};

} // namespace

class tst_Restyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void states_data();
    void states();
    void stories_data();
    void stories();
    void report();
    void equalSets();
    void listsOfChildren();
    void restlessWidget();

private:
    void compare(const QString &tree, const std::function<void(Stage &)> &tell);
};

void tst_Restyle::compare(const QString &tree, const std::function<void(Stage &)> &tell)
{
    WarningLog log;
    Stage library(Stage::Library, tree);
    tell(library);
    QVERIFY(library.holdsTexts());
    library.at("w")->hide();
    Stage literal(Stage::Literal, tree);
    tell(literal);
    QCOMPARE(library.pictures.size(), literal.pictures.size());
    for (int i = 0; i < literal.pictures.size(); ++i) {
        QVERIFY2(library.pictures.at(i) == literal.pictures.at(i), qPrintable(QStringLiteral("picture %1").arg(i)));
        if (i > 0) // what does not show proves nothing
            QVERIFY2(literal.pictures.at(i) != literal.pictures.at(i - 1), qPrintable(QString::number(i)));
    }
    const QStringList messages = log.take();
    for (const QString &message : messages) {
        static const QRegularExpression expected(QStringLiteral("not understood|^This plugin does not support"));
        QVERIFY2(message.contains(expected), qPrintable(message));
    }
}

void tst_Restyle::states_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("place");
    forEachThemedClass([](const char *name, const MakeWidget &) {
        for (int state = Normal; state < StateEnd; ++state) {
            for (const char *place : {"leaf", "with children", "among equals"}) {
                QTest::addRow("%s, %s, %s", name, stateNames[state], place)
                    << QString::fromLatin1(name) << state << QString::fromLatin1(place);
            }
        }
    });
}

// The state is entered and left after a switch, in the middle of one, and while the widget is hidden.
void tst_Restyle::states()
{
    QFETCH(QString, className);
    QFETCH(int, state);
    QFETCH(QString, place);
    const bool isButton = className == QLatin1String("WRadioButton"), isMenu = className == QLatin1String("WMenu");
    const bool shows = isButton ? state != Normal : state == Disabled || state == Focused || state == Hovered;
    const QString both = shows && !isMenu ? QStringLiteral("shot:w state:#target=0 shot:w ") : QString();
    compare(QStringLiteral("outer<w:WFrame:FR plain<outer:QWidget"), [&](Stage &stage) {
        const auto make = [&](const char *name, const QSize &size) {
            QWidget *widget = create(className, nullptr);
            widget->setParent(stage.at("plain"), Qt::Widget); // also what would be a window
            stage.place(widget, QString::fromLatin1(name), templateOf(QStringLiteral("F")));
            widget->setFixedSize(size); // a menu would take the size of its entries
            return widget;
        };
        const bool hasEquals = place == QLatin1String("among equals");
        QWidget *first = hasEquals ? make("#first", QSize(200, 100)) : nullptr;
        QWidget *widget = make("#target", QSize(250, 180));
        if (hasEquals)
            make("#last", QSize(100, 30));
        if (place == QLatin1String("with children")) {
            // The rules for its class in the template of the outer one hold for the same class inside, too.
            QWidget *same = create(className, nullptr);
            same->setParent(widget, Qt::Widget);
            stage.place(same, QStringLiteral("same"), {});
            same->setFixedSize(same->size());
            stage.tell(QStringLiteral("add:label<#target:QLabel add:edit<#target:QLineEdit add:fixed<#target:WFrame:X "
                                      "add:text<fixed:QLabel"));
        }
        QWidget *window = stage.at("w");
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        setState(widget, Normal);
        if (hasEquals)
            setState(first, Normal);
        const QString enter = QStringLiteral(" state:#target=%1 ").arg(state),
                      leave = QStringLiteral(" state:#target=0 ");
        const QString look = QStringLiteral(" show:#target shot:w hide:#target ");
        stage.tell(QStringLiteral("0 1") + enter + both + leave + QStringLiteral("2") + enter + QStringLiteral("1")
                   + leave + QStringLiteral("2 hide:#target theme:1") + enter + look + QStringLiteral("theme:0") + enter
                   + leave + look);
        if (hasEquals) {
            const QString others = QStringLiteral("state:#first=0 1 state:#first=%1 %2state:#first=0 2").arg(state);
            stage.tell(others.arg(shows && !isMenu ? QStringLiteral("shot:w 0 ") : QString()));
        }
    });
}

void tst_Restyle::stories_data()
{
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("story");
    const auto row = [](const char *name, const char *tree, const char *story) {
        QTest::newRow(name) << QString::fromLatin1(tree) << QString::fromLatin1(story);
    };
    row("only the rules of an ancestor change",
        "a<w:WFrame:R b<a:QWidget c<b:WWidget:X d<c:WFrame:X e<c:QWidget f<e:QLabel", "show:w 0 1 2");
    row("theme types in each other", "a<w:WFrame:FR b<a:QWidget c<b:WFrame:FR #one<c:WRadioButton:F d<c:QLabel",
        "show:w 0 type:c=inverted shot:w type:#one=inverted theme:1 type:#one=global shot:w type:c=global shot:w");
    row("children styled first", "a<w:WFrame b<a:QWidget c<b:WFrame d<c:WRadioButton:F e<c:QLabel",
        "css:c=X css:a=R show:w 0 1 css:c=F shot:w 2");
    row("names", "a<w:WFrame:R #one<a:WFrame:T c<a:WFrame:X #two<c:QLabel", "show:w 0 1 rename:#one=two 2");
    row("rules for whatever is below", "a<w:WFrame:U b<a:WRadioButton:T c<w:WRadioButton:T d<a:WRadioButton:T",
        "show:w 0 1 2");
    row("rules for a name inside of another", "a<w:WFrame:P #x<a:WWidget:X b<a:WFrame:T c<#x:WFrame:T",
        "show:w 0 rename:b=one rename:c=one 1 2");
    row("backgrounds filled by the host", "a<w:WFrame:U b<w:WFrame:U c<w:WFrame:U", "show:w 1 fill:b 2 1 fill:a 2");
    row("token inside a directive", "a<w:WFrame:2R b<a:WFrame:F", "show:w 0 1 2");
    row("a state that only the class knows", "#one<w:Own:F", "show:w 1 mark:#one shot:w");
    row("children for a leaf", "a<w:WFrame:F",
        "show:w 1 add:b<a:WFrame add:c<a:WFrame:T shot:w off:b off:c shot:w on:b on:c 2 delete:b delete:c 1 off:a "
        "shot:w");
    row("foreign sheet, shown", "a<w:WFrame:F b<a:WFrame:F c<a:WFrame",
        "foreign:c show:w 1 foreign:a shot:w 2 foreign:b off:b shot:w 1");
    row("foreign sheet, hidden", "a<w:WFrame:F b<a:WFrame:X c<b:QLabel",
        "show:w 0 hide:a theme:1 foreign:a show:a shot:w hide:a theme:2 foreign:a theme:1 show:a shot:w");
    for (const char *book : {"QStackedWidget", "QTabWidget"}) {
        const QByteArray tree = QByteArray("a<w:WFrame:FR book<a:") + book
            + " p<book:QWidget q<book:QWidget b<p:WFrame:F c<b:WRadioButton:F d<b:QLabel e<q:WFrame:XR "
              "f<e:WRadioButton:F "
              "g<e:QLabel";
        row(book, tree.constData(),
            "show:w 0 1 shot:f page:book=1 shot:w 2 shot:c page:book=0 shot:w theme:1 shot:q theme:2 theme:0 "
            "page:book=1 "
            "shot:w");
    }
    row("window hidden during switches", "a<w:WFrame:FR b<a:QWidget c<b:WFrame:F d<a:QLabel",
        "show:w 0 hide:w theme:1 theme:0 off:c show:w shot:w hide:w theme:2 on:c theme:1 show:w shot:w");
    row("part of a hidden page is grabbed", "a<w:WFrame:R b<a:WFrame:X c<b:QLabel",
        "show:w shot:b hide:a theme:1 shot:b");
    row("deferred, then moved to a shown parent", "a<w:WFrame:F b<v:WFrame:FR c<b:WFrame:F d<c:QLabel",
        "show:w show:v 0 hide:v theme:1 move:c=a shot:w 2");
    row("dialogs of a hidden window",
        "a<w:WFrame:R b<a:QDialog c<b:QLabel #d<a:WDialog:X e<#d:QLabel f<#d:WFrame:T g<a:WDialog h<g:QLabel",
        "show:w show:b show:#d show:g shot:b hide:w hide:#d hide:g theme:1 shot:b show:#d shot:#d show:g shot:g");
    row("dialog that is shown later than its window was hidden", "a<w:WFrame:R b<a:WDialog c<b:QLabel",
        "show:w show:b shot:b hide:w hide:b theme:1 show:b shot:b");
    row("dialogs and menus of a shown window",
        "a<w:WFrame:FR b<a:QWidget c<b:WMenu:F d<a:WFrame:X e<d:QDialog f<e:WFrame:F g<e:QLabel",
        "show:w 0 shot:c 1 show:e shot:e shot:c theme:2 shot:e hide:e theme:1 show:e shot:e");

    row("equals inside of others",
        "a<w:WFrame:S c<a:WFrame:F d<a:WFrame:F e<a:WFrame:X f<e:WFrame:F h<e:WFrame:F #p<a:WFrame:D #q<#p:WFrame:T "
        "#three<#p:WFrame:T i<#p:WFrame:T",
        "show:w 0 1 off:d shot:w 2 off:h shot:w on:d shot:w off:i shot:w 1");
    row("equals that show through",
        "a<w:WFrame:S b<a:WFrame:U c<a:WFrame:U d<a:WRadioButton:U e<a:WRadioButton:U "
        "f<a:WWidget:U g<a:WWidget:U",
        "show:w 0 1 shot:c shot:e shot:g shot:w 2 hide:c theme:0 shot:c show:c shot:w");
    row("equals of which one has no line", "a<w:WFrame:S b<a:WFrame:FL c<a:WFrame:FL d<a:WFrame:FL",
        "show:w 0 1 line:c shot:w 2 line:b shot:w 1");
    row("equals at other sizes of fonts",
        "a<w:WFrame:S b<a:WRadioButton:F c<a:WRadioButton:F d<a:WFrame:F e<a:WFrame:F",
        "show:w 0 1 scale:=14 2 scale:=10 1");
    for (const char *className : {"WFrame", "WRadioButton", "WWidget"}) {
        const QByteArray equals = QByteArray("a<w:WFrame:S #m<a:C:F #n<a:C:F #o<a:C:F k<a:C:F l<a:C:F g<v:WFrame:F")
                                      .replace(":C:", QByteArray(":") + className + ':');
        for (const char *act : {"delete:W shot:w", "css:W=U shot:w", "rename:W=two", "foreign:W shot:w",
                                "move:W=g shot:w", "off:W shot:w", "hide:W shot:w theme:0 show:W",
                                "type:W=inverted shot:w", "add:x<W:QLabel", "state:W=2", "state:W=4", "state:W=5",
                                "style:W", "plainsheet:w shot:w", "css:a=U shot:w", "css:a=XR shot:w rename:W=one"}) {
            for (const char *who : {"#m", "#n", "l"}) {
                const QByteArray story =
                    QByteArray("show:w 0 1 ") + QByteArray(act).replace("W", who) + " 2 off:#o shot:w 1 shot:#o";
                row(qPrintable(QStringLiteral("equal %1: %2 %3")
                                   .arg(QLatin1String(className), QLatin1String(who), QLatin1String(act))),
                    equals.constData(), story.constData());
            }
        }
    }

    const QByteArray tree = "a<w:WFrame:FR b<a:WFrame:F p<a:QWidget c<p:WFrame:F d<c:QLabel e<c:WRadioButton:F "
                            "g<v:WFrame:FR h<g:WFrame:F";
    for (const char *act :
         {"delete:c", "delete:p", "add:n<a:WFrame:FR add:m<n:QLabel", "css:c=XR", "css:a=XR", "hide:c", "show:v hide:p",
          "type:c=inverted", "move:h=a move:c=g", "move:b=g", "theme:4", "theme:4 delete:c theme:1"}) {
        const QByteArray story = QByteArray("type:g=inverted show:w show:v 0 during:b=1 ") + act;
        row(qPrintable(QStringLiteral("in a slot: ") + QLatin1String(act)), tree.constData(), story.constData());
    }
}

void tst_Restyle::stories()
{
    QFETCH(QString, tree);
    QFETCH(QString, story);
    compare(tree, [&story](Stage &stage) { stage.tell(story); });
}

void tst_Restyle::report()
{
    // "b" is below one that changes, "e" is hidden, "g" has no template.
    Stage s(Stage::Library,
            QStringLiteral("a<w:WFrame:F p<a:QWidget b<p:WFrame:X c<w:WFrame:X d<c:WFrame:X e<w:WFrame:F f<e:WFrame:F "
                           "g<w:WFrame"));
    const auto switched = [&s](const char *before, int theme) {
        s.tell(QString::fromLatin1(before));
        s.theme(theme);
        const RestyleReport last = RestyleReport::last();
        return QStringLiteral("%1 %2 %3").arg(last.restyled).arg(last.unchanged).arg(last.deferred);
    };
    QCOMPARE(switched("show:w hide:e", 1), QStringLiteral("2 2 2"));
    QVERIFY(RestyleReport::last().microseconds > 0);
    QCOMPARE(switched("", 1), QStringLiteral("0 6 0"));
    QCOMPARE(switched("", 2), QStringLiteral("2 2 2"));
    QCOMPARE(switched("show:e", 1), QStringLiteral("4 2 0"));
    QCOMPARE(switched("foreign:c foreign:g", 1), QStringLiteral("1 5 0")); // back to its own
    WarningLog log;
    QCOMPARE(switched("css:a=2T", 2), QStringLiteral("3 3 0")); // Qt polished what is below at once
    QCOMPARE(switched("hide:w", 1), QStringLiteral("1 3 2"));
}

void tst_Restyle::equalSets()
{
    Stage s(Stage::Library, QStringLiteral("a<w:WFrame:F b<a:WFrame:X c<w:WFrame:F d<a:QLabel"));
    s.tell(QStringLiteral("show:w hide:c 1"));
    struct Counter : QObject
    {
        int count = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::StyleChange || event->type() == QEvent::Paint;
            return false;
        }
    } counter;
    QCoreApplication::processEvents();
    const auto announced = std::make_shared<int>(0);
    for (const char *name : {"a", "b", "c", "d"}) {
        s.at(name)->installEventFilter(&counter);
        if (auto *frame = qobject_cast<WFrame *>(s.at(name)))
            connect(frame, &WFrame::cssChanged, &counter, [announced] { ++*announced; });
    }
    s.theme(1);
    WApplication::find()->setInvertedColorSets(themeSets(Inverted + 1)); // nobody's
    QCoreApplication::processEvents();
    QCOMPARE(counter.count, 0);
    QCOMPARE(*announced, 6);
    const RestyleReport last = RestyleReport::last();
    QCOMPARE(last.restyled + last.deferred, 0);
    QCOMPARE(last.unchanged, 3);
}

// While the styled widgets below are out of the lists, others come and go, and they themselves, too.
void tst_Restyle::listsOfChildren()
{
    Stage s(Stage::Library,
            QStringLiteral("a<w:WFrame:FR doomed<a:QWidget below<doomed:WFrame:F b<a:WFrame:F p<a:QWidget q<p:WFrame:F "
                           "c<a:WFrame:F label<a:QLabel d<a:WFrame:F"));
    auto *layout = new QHBoxLayout(s.at("a"));
    for (const char *name : {"doomed", "b", "p", "c", "label", "d"})
        layout->addWidget(s.at(name));
    s.tell(QStringLiteral("show:w"));
    const auto list = [&s](const char *name) {
        return s.at(name)->children();
    };
    const QObjectList before = list("a"), beforePlain = list("p");
    s.theme(1);
    QCOMPARE(list("a"), before);
    QCOMPARE(list("p"), beforePlain);

    struct Filter : QObject
    {
        std::function<void()> act;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::StyleChange && act)
                std::exchange(act, {})();
            return false;
        }
    } filter;
    // Qt's own list of what it polishes does not stand the death of one that is still to come.
    s.at("label")->installEventFilter(&filter);
    filter.act = [&s] {
        s.tell(QStringLiteral("add:new<a:QLabel delete:b move:c=p delete:doomed"));
    };
    s.theme(2);
    QVERIFY(!s.at("below"));
    QCOMPARE(list("a"), QObjectList({s.at("p"), s.at("label"), s.at("d"), layout, s.at("new")}));
    QCOMPARE(list("p"), beforePlain + QObjectList({s.at("c")}));
    QCOMPARE(layout->count(), 3); // an item left over would be a widget that is gone
    s.at("w")->resize(450, 350);
    layout->activate();
    s.at("label")->removeEventFilter(&filter);
    s.at("new")->installEventFilter(&filter);
    filter.act = [&s] {
        s.tell(QStringLiteral("delete:label"));
    };
    s.theme(1);
    QCOMPARE(list("a"), QObjectList({s.at("p"), s.at("d"), layout, s.at("new")}));
}

// Whoever answers a style change with another template.
void tst_Restyle::restlessWidget()
{
    struct Host : WFrame
    {
        int rounds = 0, depth = 0, deepest = 0;
        void changeEvent(QEvent *event) override
        {
            WFrame::changeEvent(event);
            if (event->type() != QEvent::StyleChange || rounds > 150)
                return;
            deepest = std::max(deepest, ++depth);
            setCSS(QStringLiteral("color: %1;").arg(++rounds % 2 ? QLatin1String("red") : QLatin1String("blue")));
            --depth;
        }
    } host;
    host.setObjectName(QStringLiteral("restless"));
    host.show();
    WarningLog log;
    host.setCSS(QStringLiteral("color: green;"));
    QTRY_VERIFY(host.rounds > 150);
    QCOMPARE(host.deepest, 1);
    QCoreApplication::processEvents();
    QVERIFY(host.QWidget::styleSheet().contains(QLatin1String("red")));
    const QStringList warnings = log.take();
    QCOMPARE(warnings.size(), 1);
    QVERIFY(warnings.first().startsWith(QLatin1String("ThemeSupport - Restyled 100 times within a second: WFrame(")));
}

W_TEST_MAIN(tst_Restyle)
#include "tst_restyle.moc"
