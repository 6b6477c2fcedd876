#pragma once

#include <UiElements/keyboard/WKeySequenceLookup.h>
#include <UiElements/uielements_export.h>

#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QVector>

class QEvent;
class QKeyEvent;

/// Turns the keys that are pressed in one view into shortcuts of WKeySequenceLookup, and announces them here and on
/// WGlobalSignalListener.
///
/// Where a shortcut of the main window has the same key and meaning (AttachFile, InsertLink ...), the bus is not asked
/// while the target has the focus: whoever answers passes it on, or disables it here.
///
/// Such a key does not reach shortcuts of the window (QShortcut, QAction, Shortcut in QML) as long as the target, or
/// something in it, has the focus. Who comes first within the target:
/// - Normally the element with the focus, its parents up to the target, and the target itself, with their event
///   filters. The shortcut is activated when all of them ignore the key, so a text edit keeps Return.
/// - With beforeChildren the shortcut, and they do not see the key: a compose box sends with Return. But keys of which
///   WKeySequenceLookup::comesAfterInputs() says so, such as Ctrl+C, are treated as above here too. EditLastMessage is
///   none of them: enable it while the text is empty.
/// Of several managers around the element with the focus, the innermost has the key; with beforeChildren the one that
/// got its target last.
///
/// One press activates one shortcut, once. The repeats of a key that is held activate nothing.
class UIELEMENTS_EXPORT WKeyboardShortcutsManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject *target READ target WRITE setTarget NOTIFY targetChanged)
    Q_PROPERTY(QVariantList groups READ groupList WRITE setGroupList NOTIFY groupsChanged)
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool beforeChildren READ beforeChildren WRITE setBeforeChildren NOTIFY beforeChildrenChanged)

public:
    explicit WKeyboardShortcutsManager(QObject *parent = nullptr);
    ~WKeyboardShortcutsManager() override;

    /// A QWidget, such as a QQuickWidget, or a QWindow, such as a QQuickView; in QML the attached Window.window. It
    /// takes the place of the one before. Null for none; anything else is refused. Not owned.
    QObject *target() const { return m_target; }
    void setTarget(QObject *target);

    /// None at first. Of two shortcuts with one key the one counts whose group is named first, unless it is disabled.
    /// A list with an unknown group is refused.
    QVector<WKeySequenceLookup::Group> groups() const { return m_groups; }
    void setGroups(const QVector<WKeySequenceLookup::Group> &groups);
    QVariantList groupList() const;
    void setGroupList(const QVariantList &groups);

    /// A disabled manager lets all keys pass, and so does one whose target is a disabled widget.
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);

    bool beforeChildren() const { return m_beforeChildren; }
    void setBeforeChildren(bool before);

    /// All are enabled at first; the key of a disabled one passes.
    Q_INVOKABLE bool isShortcutEnabled(WKeySequenceLookup::Shortcut shortcut) const;
    Q_INVOKABLE void setShortcutEnabled(WKeySequenceLookup::Shortcut shortcut, bool enabled);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// After shortcutActivated() of WGlobalSignalListener.
    void activated(WKeySequenceLookup::Shortcut shortcut);
    /// Once for each activated(): when the key is let go, or earlier when that could go unseen, because another window
    /// gets the focus, the target changes, the shortcut or the manager is disabled, or the manager dies.
    void released(WKeySequenceLookup::Shortcut shortcut);
    void targetChanged();
    void groupsChanged();
    void enabledChanged(bool enabled);
    void beforeChildrenChanged(bool before);

private:
    struct Held
    {
        WKeySequenceLookup::Shortcut shortcut;
        int key;
        quint32 nativeScanCode;
    };
    bool isInside(const QObject *receiver) const;
    WKeySequenceLookup::Shortcut wanted(const QKeyEvent &event) const;
    bool onKeyPress(QObject *watched, QKeyEvent *event);
    bool usesKey(QKeyEvent *event);
    void activate(WKeySequenceLookup::Shortcut shortcut, const QKeyEvent &event);
    void release(const QKeyEvent &event);
    void releaseAll();
    void onTargetDestroyed();

    QPointer<QObject> m_target;
    QVector<WKeySequenceLookup::Group> m_groups;
    QVector<WKeySequenceLookup::Shortcut> m_disabled;
    QVector<Held> m_held;
    bool m_enabled = true;
    bool m_beforeChildren = false;
};
