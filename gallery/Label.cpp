#include "Label.h"

#include "PlainParts.h"

#include <QEvent>

Label::Label(const QString &text, WFont::Token token, Role role)
    : Label(text, role)
{
    followFontToken(this, token);
}

Label::Label(const QString &text, Role role)
    : QLabel(text)
    , m_role(role)
{
    alignToDirection();
}

QString Label::role() const
{
    switch (m_role) {
    case Secondary: return QStringLiteral("secondary");
    case OnAccent: return QStringLiteral("on-accent");
    case Primary: break;
    }
    return QStringLiteral("primary");
}

Label *Label::wrapped()
{
    setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    return this;
}

// A wrapped QLabel asks for the height that it needs when it is narrow, which a page as wide as it is never gives it.
QSize Label::minimumSizeHint() const
{
    const QSize hint = QLabel::minimumSizeHint();
    return wordWrap() ? QSize(hint.width(), fontMetrics().height()) : hint;
}

void Label::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        alignToDirection();
    QLabel::changeEvent(event);
}

// QLabel aligns a text by the script that it is written in. Here the page decides, so that a mirrored page is mirrored
// also where its text is English.
void Label::alignToDirection()
{
    const Qt::Alignment side = layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    setAlignment(side | Qt::AlignAbsolute | (wordWrap() ? Qt::AlignTop : Qt::AlignVCenter));
}
