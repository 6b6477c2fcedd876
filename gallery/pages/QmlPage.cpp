#include "QmlPage.h"

#include "Controls.h"
#include "GalleryStyles.h"
#include "Label.h"
#include "PlainParts.h"
#include "QmlEditor.h"
#include "QmlLedger.h"
#include "QmlSurface.h"

#include <UiElements/icons/WSvgRenderer.h>
#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/models/EmptyStateBaseListModel.h>
#include <UiElements/qml/DialogContext.h>
#include <UiElements/qml/PopupContext.h>
#include <UiElements/qml/PopupContextTimer.h>
#include <UiElements/qml/WQmlDialogController.h>
#include <UiElements/qml/WQmlPopupController.h>
#include <UiElements/qml/WQuickView.h>
#include <UiElements/qml/WQuickWidget.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/widgets/WListView.h>

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QPushButton>
#include <QQmlProperty>
#include <QQuickItem>
#include <QVBoxLayout>

namespace {

constexpr int People = 40;
constexpr int ListHeight = 220;
constexpr int SecondsOpen = 5;

QString embeddedList()
{
    return QStringLiteral("EmptyStateList.qml");
}

QPushButton *makeButton(const QString &text)
{
    auto *button = new QPushButton(text);
    followFontToken(button, WFont::BodySecondary);
    return button;
}

/// Checked as long as its popup is open; a click alone changes nothing.
class PopupButton : public QPushButton
{
public:
    explicit PopupButton(const QString &text)
    {
        setText(text);
        setCheckable(true);
        followFontToken(this, WFont::BodySecondary);
    }

protected:
    void nextCheckState() override { }
};

QComboBox *makeBox(const QString &name, const QStringList &texts)
{
    auto *box = new QComboBox;
    box->setAccessibleName(name);
    box->setToolTip(name);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    followFontToken(box, WFont::BodySecondary);
    box->addItems(texts);
    return box;
}

QVBoxLayout *columnOf(QWidget *card)
{
    auto *column = static_cast<QVBoxLayout *>(card->layout());
    column->setSpacing(8);
    return column;
}

EmptyStateBaseListModel *makeModel(const QString &name, const QString &header, const QString &subtitle,
                                   const char *icon, QObject *parent)
{
    auto *model = new EmptyStateBaseListModel(parent);
    model->setRoleNames({{Qt::UserRole, "title"}, {Qt::UserRole + 1, "subtitle"}});
    model->setHeader(name);
    model->setEmptyStateHeader(header);
    model->setEmptyStateSubtitle(subtitle);
    model->setEmptyStateImage(QStringLiteral("qrc") + WSvgRenderer::resourcePath(QLatin1String(icon)));
    model->setEmptyStateImageSize(QSize(40, 40));
    return model;
}

// Invented, and the same in every picture.
void addPeople(EmptyStateBaseListModel *model)
{
    const QStringList first {QStringLiteral("Ada"),   QStringLiteral("Bruno"), QStringLiteral("Chioma"),
                             QStringLiteral("Dilek"), QStringLiteral("Emil"),  QStringLiteral("Farah"),
                             QStringLiteral("Goran")};
    const QStringList last {QStringLiteral("Ahlberg"), QStringLiteral("Barros"), QStringLiteral("Castellano"),
                            QStringLiteral("Dvorak"), QStringLiteral("Eze")};
    const QStringList states {QmlPage::tr("Available"), QmlPage::tr("In a meeting"), QmlPage::tr("Back at 14:00")};
    BaseListModel::Rows rows;
    for (int i = model->getCount(), end = i + People; i < end; ++i) {
        const QString name = first.at(i % first.size()) + QLatin1Char(' ') + last.at((i / first.size()) % last.size());
        rows.push_back({std::to_string(i), {{Qt::UserRole, name}, {Qt::UserRole + 1, states.at(i % states.size())}}});
    }
    model->appendRows(std::move(rows));
}

} // namespace

QmlPage::QmlPage()
    : Page(QStringLiteral("QML"),
           tr("QML between widgets and in windows of its own, in the colors and fonts of the theme. Tab goes through "
              "it as through its siblings; Escape closes what has opened."))
    , m_ledger(new QmlLedger(this))
    , m_owned(std::make_unique<QObject>())
{
    m_ledger->listenTo(m_maker.engine());
    addEmbedded();
    addBalloons();
    addPopups();
    addWindows();
    WFrame *card = addCard(tr("Live reload"),
                           tr("A file on disk. A fault in it is shown in its view, and the next "
                              "good save heals that; the count of presses is kept."));
    card->layout()->addWidget(new QmlEditor(m_ledger));
    addLedger();
}

QmlPage::~QmlPage()
{
    // Nobody is left whom they could tell.
    m_popups.clear();
    m_badges.clear();
    m_owned.reset();
}

void QmlPage::changeEvent(QEvent *event)
{
    Page::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        giveThemeType();
}

// Views between widgets

void QmlPage::addEmbedded()
{
    WFrame *card = addCard(tr("Embedded"),
                           tr("Two choices, and lists of a model in C++. The numbers beside the "
                              "buttons come from a QML object that nobody sees."));
    QVBoxLayout *column = columnOf(card);
    auto *pair = new QmlSurface(tr("Order"), QmlSurface::FitsSize);
    WQmlDialogController *controller = makeController(QVariantMap {{QStringLiteral("first"), tr("By name")},
                                                                   {QStringLiteral("second"), tr("By time")},
                                                                   {QStringLiteral("name"), tr("Order")}});
    pair->setView(m_maker.factory().createQmlWidget(QStringLiteral("HalfPillPair.qml"), pair, controller));
    column->addWidget(pair);
    column->addSpacing(8);

    auto *people = makeModel(tr("People"), tr("Nobody is here"), tr("People you add are shown in this list."),
                             "people_24", m_owned.get());
    addPeople(people);
    auto *mentions = makeModel(tr("Mentions"), tr("No mentions yet"),
                               tr("When somebody writes your name, it is shown here."), "mention_24", m_owned.get());
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(makeList(people, tr("Add %1").arg(People)), 1);
    row->addWidget(makeList(mentions, tr("Fill")), 1);
    column->addLayout(row);
}

QWidget *QmlPage::makeList(EmptyStateBaseListModel *model, const QString &fillText)
{
    auto *all = new QWidget;
    auto *column = new QVBoxLayout(all);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    auto *surface = new QmlSurface(model->header());
    surface->setFixedHeight(ListHeight);
    surface->setView(
        m_maker.factory().createQmlWidget(embeddedList(), surface, makeController(QVariant::fromValue(model))));
    column->addWidget(surface);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    QPushButton *fill = makeButton(fillText);
    QPushButton *clear = makeButton(tr("Clear"));
    for (QPushButton *button : {fill, clear}) {
        button->setAccessibleDescription(model->header());
        row->addWidget(button);
    }
    addBadge(model, row);
    row->addStretch();
    column->addLayout(row);
    connect(fill, &QPushButton::clicked, model, [model] { addPeople(model); });
    connect(clear, &QPushButton::clicked, model, &BaseListModel::clear);
    return all;
}

void QmlPage::addBadge(EmptyStateBaseListModel *model, QBoxLayout *row)
{
    auto *label = new Label(QString(), WFont::BodySecondary, Label::Secondary);
    row->addWidget(label);
    m_maker.factory().createQmlComponent(
        QStringLiteral("CountText.qml"), m_owned.get(), makeController(QVariant::fromValue(model)),
        [this, label](QObject *object) {
            m_badges.append({object, label});
            QQmlProperty(object, QStringLiteral("text")).connectNotifySignal(this, SLOT(showBadges()));
        });
    showBadges();
}

void QmlPage::showBadges()
{
    for (const Badge &badge : qAsConst(m_badges)) {
        const QString text = badge.source ? badge.source->property("text").toString() : QString();
        badge.label->setText(text.isEmpty() ? tr("none") : text);
    }
}

void QmlPage::addBalloons()
{
    WFrame *card = addCard(tr("Balloons"),
                           tr("Box, arrow and border are one outline. The sides are those of the "
                              "screen and are not mirrored."));
    auto *surface = new QmlSurface(tr("Balloons"), QmlSurface::FitsHeight);
    surface->setView(m_maker.factory().createQmlWidget(QStringLiteral("gallery/Balloons.qml"), surface, nullptr));
    card->layout()->addWidget(surface);
}

// Popups

void QmlPage::addPopups()
{
    WFrame *card = addCard(tr("Popups"),
                           tr("Each button opens a balloon that points at it. It turns to the other "
                              "side at an edge of the screen and goes along with the window."));
    QVBoxLayout *column = columnOf(card);
    m_place = makeBox(tr("Where the balloon opens"), {tr("Below"), tr("Above"), tr("Behind"), tr("Before")});
    m_alignment = makeBox(tr("Where on its side the arrow is"),
                          {tr("Arrow at the start"), tr("Arrow in the middle"), tr("Arrow at the end")});
    m_alignment->setCurrentIndex(1);
    m_timed = makeButton(tr("Close after %1 seconds").arg(SecondsOpen));
    m_timed->setToolTip(tr("Unless the pointer is over it"));
    m_timed->setCheckable(true);
    FlowLayout *options = nullptr;
    column->addWidget(makeFlow(&options));
    options->addWidget(m_place);
    options->addWidget(m_alignment);
    options->addWidget(m_timed);

    const QStringList names {tr("Top, start"), tr("Top"),           tr("Top, end"), tr("Start"),      tr("Middle"),
                             tr("End"),        tr("Bottom, start"), tr("Bottom"),   tr("Bottom, end")};
    auto *grid = new QGridLayout;
    grid->setContentsMargins(0, 8, 0, 8);
    grid->setVerticalSpacing(24);
    const Qt::Alignment sides[] = {Qt::AlignLeading, Qt::AlignHCenter, Qt::AlignTrailing};
    for (int i = 0; i < names.size(); ++i) {
        auto *button = new PopupButton(names.at(i));
        addPopup(button);
        grid->addWidget(button, i / 3, i % 3, sides[i % 3]);
    }
    for (int i = 0; i < 3; ++i)
        grid->setColumnStretch(i, 1);
    column->addLayout(grid);
    m_outcome = new Label(tr("Nothing was chosen yet"), WFont::BodyTertiary, Label::Secondary);
    column->addWidget(m_outcome);
}

void QmlPage::addPopup(QPushButton *button)
{
    auto *popup = new PopupContext(m_maker.factory(), QStringLiteral("BalloonPopup.qml"), m_owned.get());
    auto *controller = new WQmlPopupController(popup);
    const QString name = button->text();
    controller->setModel(QVariantMap {{QStringLiteral("title"), name},
                                      {QStringLiteral("text"), tr("Return takes the action, Escape closes this.")},
                                      {QStringLiteral("action"), tr("Take it")}});
    popup->setController(controller);
    popup->setTarget(button);
    popup->setActivationProperty("checked");
    m_popups.append(popup);
    connect(button, &QPushButton::clicked, popup, [this, popup] { openPopup(popup); });
    connect(popup, &PopupContext::closed, this, [this, name] { m_outcome->setText(tr("%1: closed").arg(name)); });
    connect(popup, &PopupContext::accepted, this, [this, name] { m_outcome->setText(tr("%1: taken").arg(name)); });
}

void QmlPage::openPopup(PopupContext *popup)
{
    static constexpr WQmlBalloon::ArrowAnchor Anchors[] = {WQmlBalloon::Top, WQmlBalloon::Bottom, WQmlBalloon::Left,
                                                           WQmlBalloon::Right};
    static constexpr WQmlBalloon::ArrowAlignment Along[] = {WQmlBalloon::LeftAlignment, WQmlBalloon::CenterAlignment,
                                                            WQmlBalloon::RightAlignment};
    static constexpr WQmlBalloon::ArrowAlignment Down[] = {WQmlBalloon::TopAlignment, WQmlBalloon::CenterAlignment,
                                                           WQmlBalloon::BottomAlignment};
    const WQmlBalloon::ArrowAnchor anchor = Anchors[m_place->currentIndex()];
    const bool isBeside = anchor == WQmlBalloon::Left || anchor == WQmlBalloon::Right;
    popup->setArrow(anchor, (isBeside ? Down : Along)[m_alignment->currentIndex()]);
    delete popup->findChild<PopupContextTimer *>();
    if (m_timed->isChecked())
        new PopupContextTimer(popup, SecondsOpen * 1000);
    giveThemeType();
    popup->toggle();
}

// Windows

void QmlPage::addWindows()
{
    WFrame *card = addCard(tr("Dialogs and windows"),
                           tr("A dialog blocks its window and tells how it ended. A window "
                              "is there beside the others and appears where it was left."));
    QVBoxLayout *column = columnOf(card);
    QPushButton *ask = makeButton(tr("Open dialog"));
    QPushButton *open = makeButton(tr("Open window"));
    auto *answer = new Label(tr("No answer yet"), WFont::BodyTertiary, Label::Secondary);
    FlowLayout *row = nullptr;
    column->addWidget(makeFlow(&row));
    row->setItemAlignment(FlowLayout::ItemAlignment::Center);
    row->addWidget(ask);
    row->addWidget(open);
    row->addWidget(answer);

    m_question = {{QStringLiteral("title"), tr("Leave the space?")},
                  {QStringLiteral("text"), tr("You will no longer get its messages.")},
                  {QStringLiteral("acceptText"), tr("Leave")},
                  {QStringLiteral("rejectText"), tr("Stay")}};
    m_dialogController = makeController(m_question);
    auto *dialog = new DialogContext(m_maker.factory(), QStringLiteral("MessageDialog.qml"), m_owned.get());
    dialog->setParentWidget(this);
    dialog->setController(m_dialogController);
    connect(ask, &QPushButton::clicked, dialog, [this, dialog] {
        giveThemeType();
        if (dialog->open())
            dialog->view()->setTitle(tr("Leave the space?"));
    });
    connect(dialog, &DialogContext::accepted, answer, [answer] { answer->setText(tr("Answer: leave")); });
    connect(dialog, &DialogContext::rejected, answer, [answer] { answer->setText(tr("Answer: stay")); });

    auto *model = makeModel(tr("People"), tr("Nobody is here"), QString(), "people_24", m_owned.get());
    addPeople(model);
    m_window = new WQuickViewContext(m_maker.factory(), embeddedList(), m_owned.get());
    m_window->setParentWidget(this);
    m_window->setController(makeController(QVariant::fromValue(model)));
    connect(open, &QPushButton::clicked, m_window, [this] {
        if (m_window->isOpen())
            m_window->close();
        else
            m_window->open();
    });
    connect(m_window, &WQuickViewContext::opened, this, [this, open] {
        m_window->view()->setTitle(tr("People"));
        open->setText(tr("Close window"));
        giveThemeType();
    });
    connect(m_window, &WQuickViewContext::closed, open, [open] { open->setText(tr("Open window")); });
}

// Ledger

void QmlPage::addLedger()
{
    WFrame *card = addCard(tr("Ledger of views"),
                           tr("Everything that was shown on this page, how much of it lives "
                              "and how long the last one took to its first frame."));
    auto *list = new WListView;
    list->setFontToken(WFont::BodySecondary);
    list->setCSS(GalleryStyles::itemView());
    list->setModel(m_ledger);
    list->setAccessibleName(tr("Ledger of views"));
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setMinimumHeight(ListHeight);
    auto *count = new Label(QString(), WFont::BodyTertiary, Label::Secondary);
    const auto update = [this, count] {
        count->setText(tr("%n live", nullptr, m_ledger->liveCount()));
    };
    connect(m_ledger, &QmlLedger::liveCountChanged, count, update);
    update();
    QVBoxLayout *column = columnOf(card);
    column->addWidget(list);
    column->addWidget(count);
}

WQmlDialogController *QmlPage::makeController(const QVariant &model)
{
    auto *controller = new WQmlDialogController(m_owned.get());
    controller->setModel(model);
    return controller;
}

// Views in windows of their own follow the theme type of this one.
void QmlPage::giveThemeType()
{
    if (!m_window) // not yet made
        return;
    const auto type = WThemeUtils::getThemeTypeOfWidget(this);
    const QString name = WThemeUtils::themeTypeToString(type);
    for (const PopupContext *popup : qAsConst(m_popups))
        popup->popupController()->setThemeType(name);
    if (m_question.value(QStringLiteral("themeType")) != name) {
        m_question.insert(QStringLiteral("themeType"), name);
        m_dialogController->setModel(m_question);
    }
    const QPointer<WQuickView> view = m_window->view();
    if (!view)
        return;
    view->setColor(WThemeUtils::getColorSet("background-primary", type).normal());
    if (view->rootObject())
        view->rootObject()->setProperty("themeType", name);
}
