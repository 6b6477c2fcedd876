#include <UiElements/keyboard/WShortcut.h>

#include <QCoreApplication>
#include <QDebug>
#include <QEvent>
#include <QTextDocument>
#include <QWidget>

#include <memory>
#include <utility>

/// Keeps the key in the texts of one element. It belongs to the element.
class WShortcut::Attachment : public QObject
{
public:
    Attachment(WShortcut *shortcut, QWidget *element)
        : QObject(element)
        , m_shortcut(shortcut)
        , m_element(element)
    {
        element->installEventFilter(this);
    }

    static Attachment *of(const QWidget *element)
    {
        for (QObject *child : element->children()) {
            if (auto *attachment = dynamic_cast<Attachment *>(child))
                return attachment;
        }
        return nullptr;
    }

    WShortcut *shortcut() const { return m_shortcut; }

    // Setting a tooltip sends an event, in which anybody may delete the element, the shortcut or the attachment.
    void refresh()
    {
        // A text that is not the one written here is the host's.
        if (m_element->toolTip() != m_toolTip.shown)
            m_toolTip.own = m_element->toolTip();
        if (m_element->accessibleDescription() != m_description.shown)
            m_description.own = m_element->accessibleDescription();
        m_toolTip.shown = withKey(m_toolTip.own.isEmpty() ? m_shortcut->getShortcutDescription() : m_toolTip.own);
        m_description.shown = m_description.own.isEmpty() ? QString() : withKey(m_description.own);
        write(m_toolTip.shown, m_description.shown);
    }

    /// Takes itself off the element, gives it its texts back and ends.
    void restore()
    {
        const std::unique_ptr<Attachment> self(this);
        if (m_element->toolTip() != m_toolTip.shown)
            m_toolTip.own = m_element->toolTip();
        if (m_element->accessibleDescription() != m_description.shown)
            m_description.own = m_element->accessibleDescription();
        m_element->removeEventFilter(this);
        setParent(nullptr);
        write(m_toolTip.own, m_description.own);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (!m_writing && (event->type() == QEvent::ToolTipChange || event->type() == QEvent::LanguageChange))
            refresh();
        return false;
    }

private:
    QString withKey(const QString &text) const
    {
        QString key = m_shortcut->key().toString(QKeySequence::NativeText);
        if (key.isEmpty())
            return text;
        if (text.isEmpty())
            return key;
        if (Qt::mightBeRichText(text))
            key = key.toHtmlEscaped();
        return text + QStringLiteral(" (%1)").arg(key);
    }

    void write(const QString &toolTip, const QString &description)
    {
        const QPointer<Attachment> self(this);
        const QPointer<QWidget> element(m_element);
        m_writing = true;
        if (m_element->toolTip() != toolTip)
            m_element->setToolTip(toolTip);
        if (self && element && element->accessibleDescription() != description)
            element->setAccessibleDescription(description);
        if (self)
            m_writing = false;
    }

    struct Text
    {
        QString own;
        QString shown;
    };
    WShortcut *const m_shortcut;
    QWidget *const m_element;
    Text m_toolTip;
    Text m_description;
    bool m_writing = false;
};

WShortcut::WShortcut(QWidget *parent)
    : QShortcut(parent)
{
}

WShortcut::WShortcut(const QKeySequence &key, QWidget *parent, Qt::ShortcutContext context)
    : QShortcut(key, parent, nullptr, nullptr, context)
{
}

WShortcut::~WShortcut()
{
    const QVector<QPointer<Attachment>> attachments = std::exchange(m_attachments, {});
    for (const QPointer<Attachment> &attachment : attachments) {
        if (attachment)
            attachment->restore();
    }
}

QString WShortcut::getShortcutDescription() const
{
    if (m_description.isEmpty())
        return QString();
    return QCoreApplication::translate("WShortcut", m_description.toUtf8().constData());
}

void WShortcut::setShortcutDescription(const QString &description)
{
    m_description = description;
    refreshAttachments();
}

void WShortcut::setShortcutGroup(ShortcutGroup group)
{
    switch (int(group)) {
    case 0:
    case General:
    case Messaging:
    case CallingAndMeeting:
    case Tool: m_group = group; return;
    }
    qWarning("WShortcut::setShortcutGroup - Not one group: %d", int(group));
}

QString WShortcut::shortcutGroupName(ShortcutGroup group)
{
    switch (group) {
    case General: return tr("General");
    case Messaging: return tr("Messaging");
    case CallingAndMeeting: return tr("Calling and meeting");
    case Tool: return tr("Tool");
    }
    return QString();
}

void WShortcut::setShortcutKey(const QKeySequence &key)
{
    setKey(key);
    refreshAttachments();
}

void WShortcut::setEnabled(bool enabled)
{
    if (m_temporarilyDisabled)
        m_enabledBefore = enabled;
    else
        QShortcut::setEnabled(enabled);
}

void WShortcut::temporarilyDisable(bool disable)
{
    if (m_temporarilyDisabled == disable)
        return;
    m_temporarilyDisabled = disable;
    if (disable) {
        m_enabledBefore = isEnabled();
        QShortcut::setEnabled(false);
    } else {
        QShortcut::setEnabled(m_enabledBefore);
    }
}

void WShortcut::attachTo(QWidget *element)
{
    if (!element) {
        qWarning("WShortcut::attachTo - The element must not be null");
        return;
    }
    const QPointer<WShortcut> self(this);
    const QPointer<QWidget> guard(element);
    if (const Attachment *earlier = Attachment::of(element))
        earlier->shortcut()->detachFrom(element);
    if (!self || !guard)
        return;
    auto *attachment = new Attachment(this, element);
    m_attachments << QPointer<Attachment>(attachment);
    attachment->refresh();
}

void WShortcut::detachFrom(QWidget *element)
{
    Attachment *attachment = element ? Attachment::of(element) : nullptr;
    if (!attachment || attachment->shortcut() != this)
        return;
    m_attachments.removeAll(attachment);
    attachment->restore();
}

WShortcut *WShortcut::attachedTo(const QWidget *element)
{
    const Attachment *attachment = element ? Attachment::of(element) : nullptr;
    return attachment ? attachment->shortcut() : nullptr;
}

bool WShortcut::event(QEvent *event)
{
    // Who holds it as a QShortcut can enable it in between.
    if (m_temporarilyDisabled && event->type() == QEvent::Shortcut)
        return true;
    return QShortcut::event(event);
}

void WShortcut::refreshAttachments()
{
    m_attachments.removeAll(nullptr); // of elements that died
    const QVector<QPointer<Attachment>> attachments = m_attachments;
    for (const QPointer<Attachment> &attachment : attachments) {
        if (attachment)
            attachment->refresh();
    }
}
