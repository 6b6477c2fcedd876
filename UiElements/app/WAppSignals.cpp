#include <UiElements/app/WAppSignals.h>

#include <UiElements/app/WApplication.h>
#include <UiElements/keyboard/ShortcutTable_p.h>

#include <QAction>
#include <QDebug>
#include <QMetaEnum>
#include <QPoint>
#include <QRect>
#include <QSet>
#include <QWidget>

#include <algorithm>

WAppSignals::WAppSignals(QObject *parent)
    : QObject(parent)
{
    // The host's types register themselves (see HostTypes.h), and what is not here Qt knows.
    qRegisterMetaType<std::string>();
    qRegisterMetaType<std::vector<std::string>>();
    qRegisterMetaType<Qt::ArrowType>();
    qRegisterMetaType<QWindow::Visibility>();
    qRegisterMetaType<QWindow *>();
    qRegisterMetaType<QPointer<QWidget>>();
    qRegisterMetaType<WKeySequenceLookup::Shortcut>();
}

WAppSignals *WAppSignals::get()
{
    const WApplication *app = WApplication::find();
    return app ? app->getAppSignals() : nullptr;
}

void WAppSignals::registerShortcuts(QWidget *mainWindow, WShortcut::ShortcutGroups groups)
{
    if (!mainWindow) {
        qWarning("Unable to register shortcuts, MainWindow must not be null!");
        return;
    }
    if (m_mainWindow) {
        qWarning("Shortcuts are already registred on another MainWindow! This should never happen.");
        return;
    }
    m_mainWindow = mainWindow;
    _registerShortcuts(mainWindow, groups);
}

void WAppSignals::_registerShortcuts(QWidget *mainWindow, WShortcut::ShortcutGroups groups)
{
    if (!mainWindow) {
        qWarning("Unable to register shortcuts, MainWindow must not be null!");
        return;
    }
    forgetDeadShortcuts();
    connect(mainWindow, &QObject::destroyed, this, &WAppSignals::forgetShortcutsOf, Qt::UniqueConnection);
    for (const ShortcutRow &row : ShortcutTable()) {
        if (!(groups & row.registeredWith))
            continue;
        WShortcut *shortcut = registerShortcut(mainWindow, int(row.id), row.keySequence(), row.emitSignal);
        if (!shortcut)
            continue;
        shortcut->setShortcutDescription(QString::fromUtf8(row.description));
        shortcut->setShortcutGroup(row.group);
    }
}

void WAppSignals::_registerDebugShortcuts(QWidget *mainWindow)
{
    _registerShortcuts(mainWindow, WShortcut::Tool);
}

WShortcut *WAppSignals::registerShortcut(QWidget *mainWindow, int id, const QKeySequence &key,
                                         void (*emitSignal)(WAppSignals &))
{
    if (entry(id)) {
        qWarning("This ShortcutId(%d) is already registered in the application. This should never happen!", id);
        return nullptr;
    }
    auto *shortcut = new WShortcut(key, mainWindow, Qt::WindowShortcut);
    m_shortcuts.append({id, shortcut});
    connect(shortcut, &QShortcut::activated, this, [this, emitSignal] { emitSignal(*this); });
    connect(shortcut, &QShortcut::activatedAmbiguously, this, [this, id] { reportAmbiguity(id); });
    return shortcut;
}

QList<WShortcut *> WAppSignals::getGroupShortcuts(WShortcut::ShortcutGroups groups) const
{
    QList<WShortcut *> found;
    for (const Entry &each : m_shortcuts) {
        if (each.shortcut && (groups & each.shortcut->getShortcutGroup()))
            found << each.shortcut;
    }
    return found;
}

WShortcut *WAppSignals::getShortcut(WAppSignals::Shortcut shortcutId) const
{
    const Entry *found = entry(int(shortcutId));
    if (!found)
        qWarning("Did not find shortcut with id (%d)", int(shortcutId));
    else if (!found->shortcut)
        qWarning("ShortcutId (%d) is null! This should never happen", int(shortcutId));
    return found ? found->shortcut.data() : nullptr;
}

QKeySequence WAppSignals::getKeySequence(WAppSignals::Shortcut shortcutId) const
{
    if (!entry(int(shortcutId))) {
        qWarning("ShortcutId (%d) is not registered! This should never happen", int(shortcutId));
        return QKeySequence();
    }
    const WShortcut *shortcut = getShortcut(shortcutId);
    return shortcut ? shortcut->key() : QKeySequence();
}

bool WAppSignals::shortcutExists(WAppSignals::Shortcut shortcutId) const
{
    const Entry *found = entry(int(shortcutId));
    return found && found->shortcut;
}

void WAppSignals::disableShortcut(WAppSignals::Shortcut shortcutId)
{
    if (WShortcut *shortcut = getShortcut(shortcutId))
        shortcut->setEnabled(false);
}

void WAppSignals::disableAll()
{
    for (const Entry &each : qAsConst(m_shortcuts)) {
        if (each.shortcut)
            each.shortcut->setEnabled(false);
    }
}

QVector<WAppSignals::ShortcutConflict> WAppSignals::shortcutConflicts() const
{
    QVector<ShortcutConflict> conflicts;
    for (int i = 0; i < m_shortcuts.size(); ++i) {
        const Entry &each = m_shortcuts.at(i);
        if (!each.shortcut || !each.shortcut->isEnabled() || each.shortcut->key().isEmpty())
            continue;
        const QKeySequence key = each.shortcut->key();
        const auto add = [&](ShortcutConflict::Reason reason, const QString &other) {
            conflicts.append({reason, WAppSignals::Shortcut(each.id), key, other});
        };
        const QStringList others = othersWith(each, i + 1);
        for (const QString &other : others)
            add(ShortcutConflict::SameKey, other);
        const QString action = standardEditAction(key);
        if (!action.isEmpty())
            add(ShortcutConflict::EditAction, action);
        if (isReservedByDesktops(key))
            add(ShortcutConflict::Desktop, QString());
    }
    return conflicts;
}

const WAppSignals::Entry *WAppSignals::entry(int id) const
{
    const auto found =
        std::find_if(m_shortcuts.cbegin(), m_shortcuts.cend(), [id](const Entry &each) { return each.id == id; });
    return found == m_shortcuts.cend() ? nullptr : &*found;
}

/// The window is being destroyed, but its children still live.
void WAppSignals::forgetShortcutsOf(QObject *window)
{
    if (window == m_mainWindow)
        m_mainWindow.clear();
    for (Entry &each : m_shortcuts) {
        if (each.shortcut && each.shortcut->parent() == window)
            each.shortcut.clear();
    }
    forgetDeadShortcuts();
}

void WAppSignals::forgetDeadShortcuts()
{
    const auto isDead = [](const Entry &each) {
        return !each.shortcut;
    };
    m_shortcuts.erase(std::remove_if(m_shortcuts.begin(), m_shortcuts.end(), isDead), m_shortcuts.end());
}

// Qt triggers none of those that want a key, and says so to one of them at each press.
void WAppSignals::reportAmbiguity(int id) const
{
    const Entry *found = entry(id);
    if (!found || !found->shortcut)
        return;
    const QStringList names = QStringList(nameOf(*found)) + othersWith(*found, 0);
    qWarning("The key %s is ambiguous and triggers nothing; it belongs to %s",
             qUtf8Printable(found->shortcut->key().toString()), qUtf8Printable(names.join(QLatin1String(", "))));
}

QString WAppSignals::nameOf(const Entry &entry) const
{
    const QString description = entry.shortcut->getShortcutDescription();
    const char *key = QMetaEnum::fromType<Shortcut>().valueToKey(entry.id);
    return QStringLiteral("%1 (%2)").arg(description.isEmpty() ? QString::fromLatin1(key) : description).arg(entry.id);
}

/// The names of what else is enabled in the window and has the key: registered from the given place on, or of others.
QStringList WAppSignals::othersWith(const Entry &entry, int from) const
{
    const QKeySequence key = entry.shortcut->key();
    const auto same = [&key](const QKeySequence &other) {
        return !other.isEmpty()
            && (key.matches(other) != QKeySequence::NoMatch || other.matches(key) != QKeySequence::NoMatch);
    };
    QStringList names;
    QSet<const QShortcut *> registered;
    for (int i = 0; i < m_shortcuts.size(); ++i) {
        const Entry &each = m_shortcuts.at(i);
        registered << each.shortcut;
        if (i >= from && each.id != entry.id && each.shortcut && each.shortcut->isEnabled()
            && same(each.shortcut->key()))
            names << nameOf(each);
    }
    if (!entry.shortcut->parentWidget())
        return names;

    // Of other windows, such as dialogs, nothing stands in the way here, even if they are children.
    const QWidget *window = entry.shortcut->parentWidget()->window();
    QList<QWidget *> widgets = window->findChildren<QWidget *>();
    widgets.prepend(const_cast<QWidget *>(window));
    QSet<const QAction *> seen;
    for (const QWidget *widget : qAsConst(widgets)) {
        if (widget->window() != window)
            continue;
        const auto shortcuts = widget->findChildren<QShortcut *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QShortcut *shortcut : shortcuts) {
            if (!registered.contains(shortcut) && shortcut->isEnabled() && same(shortcut->key())) {
                const QString name = shortcut->objectName();
                names << (name.isEmpty() ? QString::fromLatin1(shortcut->metaObject()->className()) : name);
            }
        }
        const QList<QAction *> actions = widget->actions();
        for (const QAction *action : actions) {
            const QList<QKeySequence> keys = action->shortcuts();
            if (seen.contains(action) || !action->isEnabled() || !std::any_of(keys.cbegin(), keys.cend(), same))
                continue;
            seen << action;
            names << action->text();
        }
    }
    return names;
}
