#pragma once

#include <UiElements/uielements_export.h>

#include <QPointer>
#include <QShortcut>
#include <QVector>

/// A keyboard shortcut with a description and a group, so that a help dialog can list it.
class UIELEMENTS_EXPORT WShortcut : public QShortcut
{
    Q_OBJECT
    // Replaces QShortcut's property, so that a form or a script goes through setEnabled() of this class.
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled)

public:
    enum ShortcutGroup { General = 1, Messaging = 2, CallingAndMeeting = 4, Tool = 8 };
    Q_DECLARE_FLAGS(ShortcutGroups, ShortcutGroup)
    Q_FLAG(ShortcutGroups)

    explicit WShortcut(QWidget *parent);
    /// An empty key is no error: the shortcut is there, and nothing triggers it.
    WShortcut(const QKeySequence &key, QWidget *parent, Qt::ShortcutContext context = Qt::WindowShortcut);
    ~WShortcut() override;

    /// What was set, in the language of the moment: it is looked up among the translations of the context "WShortcut"
    /// at each call, and a text without translation is returned as it is.
    QString getShortcutDescription() const;
    void setShortcutDescription(const QString &description);

    /// 0 for a shortcut that help does not list.
    ShortcutGroup getShortcutGroup() const { return m_group; }
    /// One group or 0; several at once are refused with a warning.
    void setShortcutGroup(ShortcutGroup group);
    /// Translated; empty without a group.
    QString getShortcutGroupName() const { return shortcutGroupName(m_group); }
    static QString shortcutGroupName(ShortcutGroup group);

    /// Changes the key, here and in the texts of the elements that the shortcut is attached to. QShortcut::setKey()
    /// leaves those as they are until the next change.
    void setShortcutKey(const QKeySequence &key);

    /// Hides QShortcut's. While the shortcut is temporarily disabled this is remembered, and counts afterwards.
    void setEnabled(bool enabled);
    /// Silences the shortcut until it is called with false, which returns to what setEnabled() said last, also if that
    /// was meanwhile. Calls are not counted: one false undoes any number of true. Meanwhile isEnabled() is false and
    /// the key goes to the widget that has the focus.
    void temporarilyDisable(bool disable);

    /// Tells the key to those who use the element: its tooltip ends in " (Ctrl+F)", and so does the description that
    /// screen readers get, which is the tooltip unless the element has an accessible description. An empty tooltip
    /// becomes the shortcut's description and the key. A tooltip that the host sets later gets the key too, an
    /// accessible description with the next change of the tooltip or the key. An element shows the shortcut that was
    /// attached last, and gets its own texts back when that is detached or dies. A themed element also tells the key as
    /// its accelerator (QAccessible::Accelerator).
    ///
    /// The key does not trigger the element: who answers the shortcut's signal does.
    void attachTo(QWidget *element);
    void detachFrom(QWidget *element);
    /// The shortcut that the element shows, or null.
    static WShortcut *attachedTo(const QWidget *element);

protected:
    bool event(QEvent *event) override;

private:
    class Attachment;
    void refreshAttachments();

    QString m_description;
    QVector<QPointer<Attachment>> m_attachments;
    ShortcutGroup m_group = ShortcutGroup(0);
    bool m_enabledBefore = true; // what counts once it is no longer temporarily disabled
    bool m_temporarilyDisabled = false;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(WShortcut::ShortcutGroups)
