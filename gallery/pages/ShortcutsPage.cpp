#include "ShortcutsPage.h"

#include "BusMonitor.h"
#include "GalleryStyles.h"
#include "Label.h"
#include "PlainParts.h"
#include "RowDelegates.h"
#include "ShortcutModel.h"

#include <UiElements/app/WAppSignals.h>
#include <UiElements/app/WFontManager.h>
#include <UiElements/app/WScaledFonts.h>
#include <UiElements/keyboard/WKeySequenceInfo.h>
#include <UiElements/layouts/FlowLayout.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/widgets/WListView.h>

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int ShownShortcuts = 11;
constexpr int ShownSignals = 7; // of those without arguments

/// A field with a button that empties it, as Escape does.
class SearchField : public QLineEdit
{
public:
    explicit SearchField(const QString &name)
        : m_clear(addAction(QIcon(), QLineEdit::TrailingPosition))
    {
        setAccessibleName(name);
        setPlaceholderText(name);
        followFontToken(this, WFont::BodySecondary);
        followPlaceholderColor(this);
        // Like the texts around it, also where it is not written in the script of the direction.
        followDirection(this, [this](Qt::LayoutDirection direction) {
            setAlignment((direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute
                         | Qt::AlignVCenter);
        });
        m_clear->setText(ShortcutsPage::tr("Clear"));
        m_clear->setToolTip(ShortcutsPage::tr("Clear (Esc)"));
        m_clear->setVisible(false);
        connect(m_clear, &QAction::triggered, this, &QLineEdit::clear);
        connect(this, &QLineEdit::textChanged, m_clear,
                [this](const QString &text) { m_clear->setVisible(!text.isEmpty()); });
    }

    /// Where the down key goes.
    void setResults(QWidget *results) { m_results = results; }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange || event->type() == QEvent::Polish || event->type() == QEvent::Show)
            drawCross();
        return QLineEdit::event(event);
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Escape && !text().isEmpty())
            clear();
        else if (m_results && event->key() == Qt::Key_Down && event->modifiers() == Qt::NoModifier)
            m_results->setFocus(Qt::TabFocusReason);
        else
            QLineEdit::keyPressEvent(event);
        // Qt turns the field to the direction of what is written, for good. Here it keeps that of the page.
        if (testAttribute(Qt::WA_SetLayoutDirection))
            unsetLayoutDirection();
    }

private:
    void drawCross()
    {
        const QColor color = WThemeUtils::getColorSet("input-text", WThemeUtils::getThemeTypeOfWidget(this)).normal();
        if (m_color == color)
            return;
        m_color = color;
        QIcon icon;
        for (int scale : {1, 2}) {
            QPixmap pixmap(16 * scale, 16 * scale);
            pixmap.setDevicePixelRatio(scale);
            pixmap.fill(Qt::transparent);
            QPainter painter(&pixmap);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(4, 4), QPointF(12, 12));
            painter.drawLine(QPointF(4, 12), QPointF(12, 4));
            painter.end();
            icon.addPixmap(pixmap);
        }
        m_clear->setIcon(icon);
    }

    QAction *const m_clear;
    QColor m_color;
    QWidget *m_results = nullptr;
};

/// Two lines in the middle of a view while it has no rows.
void showWhenEmpty(QAbstractItemView *view, const QString &title, const QString &hint)
{
    auto *column = new QVBoxLayout(view->viewport());
    auto *texts = new QWidget;
    auto *lines = new QVBoxLayout(texts);
    lines->setSpacing(4);
    lines->addWidget(new Label(title, WFont::SubheaderPrimary), 0, Qt::AlignHCenter);
    lines->addWidget(new Label(hint, WFont::BodySecondary, Label::Secondary), 0, Qt::AlignHCenter);
    column->addWidget(texts, 0, Qt::AlignCenter);
    const auto update = [view, texts] {
        texts->setVisible(view->model()->rowCount() == 0);
    };
    QObject::connect(view->model(), &QAbstractItemModel::modelReset, texts, update);
    QObject::connect(view->model(), &QAbstractItemModel::rowsInserted, texts, update);
    QObject::connect(view->model(), &QAbstractItemModel::rowsRemoved, texts, update);
    update();
}

template <typename Delegate>
WListView *makeView(QAbstractItemModel *model, int lines, const QString &name)
{
    auto *view = new WListView;
    view->setFontToken(WFont::BodySecondary);
    view->setCSS(GalleryStyles::itemView());
    view->setModel(model);
    view->setAccessibleName(name);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setResizeMode(QListView::Adjust);
    auto *delegate = new Delegate(view);
    view->setItemDelegate(delegate);
    const auto fit = [view, delegate, lines] {
        view->setMinimumHeight(lines * delegate->lineHeight() + 8);
        view->doItemsLayout();
    };
    QObject::connect(WFontManager::get()->getFont(FontManagerEnum::Default), &WScaledFonts::fontTokenChanged, view,
                     fit);
    fit();
    return view;
}

QPushButton *makeButton(const QString &text)
{
    auto *button = new QPushButton(text);
    followFontToken(button, WFont::BodySecondary);
    return button;
}

// What has no description for people is known to developers by the signal.
QString signalOf(const WShortcut *shortcut)
{
    const WAppSignals *bus = WAppSignals::get();
    const auto ids = QMetaEnum::fromType<WAppSignals::Shortcut>();
    for (int i = 0; i < ids.keyCount(); ++i) {
        const auto id = WAppSignals::Shortcut(ids.value(i));
        if (!bus->shortcutExists(id) || bus->getShortcut(id) != shortcut)
            continue;
        QString name = QString::fromLatin1(ids.key(i));
        name[0] = name.at(0).toLower();
        return name;
    }
    return QString();
}

QVector<ShortcutModel::Shortcut> shortcutsOfMainWindow()
{
    QVector<ShortcutModel::Shortcut> shortcuts;
    for (const auto group : {WShortcut::General, WShortcut::Messaging, WShortcut::CallingAndMeeting, WShortcut::Tool}) {
        const QList<WShortcut *> all = WAppSignals::get()->getGroupShortcuts(group);
        for (const WShortcut *shortcut : all) {
            const QString description = shortcut->getShortcutDescription();
            shortcuts.append({shortcut->getShortcutGroupName(),
                              description.isEmpty() ? signalOf(shortcut) : description, shortcut->key()});
        }
    }
    return shortcuts;
}

QVector<ShortcutModel::Shortcut> shortcutsOfViews()
{
    using Group = WKeySequenceLookup::Group;
    QVector<ShortcutModel::Shortcut> shortcuts;
    for (const Group group : {Group::General, Group::Messaging, Group::Formatting, Group::MeetingsAndCalling}) {
        const QVector<WKeySequenceInfo> all = WKeySequenceLookup::infos(group);
        for (const WKeySequenceInfo &info : all)
            shortcuts.append({info.groupName(), info.description(), info.keySequence()});
    }
    return shortcuts;
}

// Signals with arguments of several kinds.
void askForContactCard(const QRect &place)
{
    Q_EMIT WAppSignals::get()->showContactCard(place, QStringLiteral("ada@example.com"), Qt::LeftArrow, true, QString(),
                                               QString(), QString(), nullptr);
}

void askForSpace()
{
    Q_EMIT WAppSignals::get()->navigateToSpace(flarq::guid());
}

void askForContact()
{
    Q_EMIT WAppSignals::get()->addToContact(QStringLiteral("Zo\u00eb M\u00fcller, \u0141\u00f3d\u017a").toStdString());
}

void askForAddress(const QRect &place)
{
    Q_EMIT WAppSignals::get()->openE911AddressDialog(place, true);
}

// The same for every picture.
void emitExamples()
{
    askForAddress(QRect(640, 320, 160, 34));
    askForContact();
    askForSpace();
    askForContactCard(QRect(640, 280, 160, 34));
    Q_EMIT WAppSignals::get()->selectTeamsTab();
}

QRect placeOf(const QWidget *widget)
{
    return QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
}

} // namespace

ShortcutsPage::ShortcutsPage()
    : Page(tr("Shortcuts and signals"),
           tr("Every key of the main window asks on the signal bus. Press one, anywhere in the gallery."))
    , m_monitor(BusMonitor::get())
    , m_shortcuts(new ShortcutModel(this))
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(makeList(), 11);
    auto *column = new QVBoxLayout;
    column->setSpacing(16);
    column->addWidget(makeButtons());
    column->addWidget(makeMonitor(), 1);
    row->addLayout(column, 9);
    // The cards take the room that a larger window has.
    body()->setStretch(body()->count() - 1, 0);
    body()->insertLayout(body()->count() - 1, row, 1);
    readShortcuts();
}

QWidget *ShortcutsPage::makeList()
{
    WFrame *card = makeCard(tr("Keyboard shortcuts"), tr("What a help dialog lists, by group."));
    auto *field = new SearchField(tr("Search by name, key or group"));
    auto *count = new Label(QString(), WFont::BodyTertiary, Label::Secondary);
    auto *list = makeView<ShortcutDelegate>(m_shortcuts, ShownShortcuts, tr("Keyboard shortcuts"));
    showWhenEmpty(list, tr("No shortcut found"), tr("Try fewer or shorter words."));
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    auto *choice = new QButtonGroup(card);
    const auto addSource = [&](const QString &text, const QString &name, Source source) {
        QPushButton *button = makeButton(text);
        button->setAccessibleName(name);
        button->setCheckable(true);
        button->setChecked(m_source == source);
        choice->addButton(button);
        row->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, source] {
            m_source = source;
            readShortcuts();
        });
    };
    addSource(tr("Main window"), tr("Shortcuts of the main window"), Source::MainWindow);
    addSource(tr("Views"), tr("Shortcuts that views handle themselves"), Source::Views);
    row->addStretch();
    row->addWidget(count);
    auto *column = static_cast<QVBoxLayout *>(card->layout());
    column->addWidget(field);
    column->addSpacing(4);
    column->addLayout(row);
    column->addSpacing(4);
    column->addWidget(list, 1);
    field->setResults(list);
    setFocusProxy(field);

    connect(field, &QLineEdit::textChanged, m_shortcuts, &ShortcutModel::setFilter);
    // Readers speak of what has the focus: while somebody writes, that is the field.
    connect(m_shortcuts, &QAbstractItemModel::modelReset, count, [this, count, field] {
        const int found = m_shortcuts->matchCount();
        const QString text = found == 1 ? tr("1 shortcut") : tr("%1 shortcuts").arg(found);
        count->setText(text);
        field->setAccessibleDescription(found ? text : tr("No shortcut found"));
    });
    return card;
}

QWidget *ShortcutsPage::makeButtons()
{
    WFrame *card = makeCard(tr("Try it"), tr("The tooltip of the first button tells its key."));
    auto *row = new FlowLayout(8, 8);
    static_cast<QVBoxLayout *>(card->layout())->addLayout(row);
    const auto add = [row](const QString &text, const std::function<void(const QWidget *)> &ask) {
        QPushButton *button = makeButton(text);
        connect(button, &QPushButton::clicked, button, [button, ask] { ask(button); });
        row->addWidget(button);
        return button;
    };
    QPushButton *teams = add(tr("Go to teams"), [](const QWidget *) { Q_EMIT WAppSignals::get()->selectTeamsTab(); });
    teams->setProperty("kind", QStringLiteral("primary"));
    if (WAppSignals::get()->shortcutExists(WAppSignals::Shortcut::SelectTeamsTab))
        WAppSignals::get()->getShortcut(WAppSignals::Shortcut::SelectTeamsTab)->attachTo(teams);
    add(tr("Contact card"), [](const QWidget *button) { askForContactCard(placeOf(button)); });
    add(tr("Go to a space"), [](const QWidget *) { askForSpace(); });
    add(tr("Add a contact"), [](const QWidget *) { askForContact(); });
    add(tr("Emergency address"), [](const QWidget *button) { askForAddress(placeOf(button)); });
    return card;
}

QWidget *ShortcutsPage::makeMonitor()
{
    WFrame *card = makeCard(QString(), QString());
    auto *count = new Label(QString(), WFont::BodyTertiary, Label::Secondary);
    QPushButton *pause = makeButton(tr("Pause"));
    pause->setCheckable(true);
    pause->setChecked(m_monitor->isPaused());
    QPushButton *clear = makeButton(tr("Clear"));
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(new Label(tr("What the bus says"), WFont::SubheaderPrimary), 1);
    row->addWidget(pause);
    row->addWidget(clear);
    auto *list = makeView<EmissionDelegate>(m_monitor, ShownSignals, tr("Signals"));
    showWhenEmpty(list, tr("Nothing yet"), tr("Press a key, Ctrl+2 for example."));
    auto *column = static_cast<QVBoxLayout *>(card->layout());
    column->addLayout(row);
    column->addWidget(count);
    column->addSpacing(8);
    column->addWidget(list, 1);

    // Rows move on with each signal. Who comes back begins with those in view.
    connect(qApp, &QApplication::focusChanged, list, [list](const QWidget *old) {
        if (old == list) {
            list->clearSelection();
            list->setCurrentIndex(QModelIndex());
        }
    });
    const auto update = [this, count, clear] {
        const int seen = m_monitor->rowCount();
        QString text = seen == 0 ? tr("No signals")
            : seen == 1          ? tr("1 signal")
                                 : tr("%1 signals, the newest first").arg(seen);
        if (m_monitor->isPaused())
            text += QStringLiteral("   \u00b7   ") + tr("%1 left out").arg(m_monitor->leftOut());
        count->setText(text);
        clear->setEnabled(seen > 0);
    };
    connect(m_monitor, &BusMonitor::countsChanged, count, update);
    connect(pause, &QPushButton::toggled, m_monitor, &BusMonitor::setPaused);
    connect(clear, &QPushButton::clicked, m_monitor, &BusMonitor::clear);
    update();
    return card;
}

void ShortcutsPage::readShortcuts()
{
    m_shortcuts->setShortcuts(m_source == Source::Views ? shortcutsOfViews() : shortcutsOfMainWindow());
}

void ShortcutsPage::showEvent(QShowEvent *event)
{
    readShortcuts();
    if (!m_monitor->timesShown()) {
        m_monitor->clear();
        emitExamples();
    }
    Page::showEvent(event);
}
