#include <UiElements/controls/WSvgAnchorButton.h>

#include "Checks_p.h"

#include <UiElements/icons/WSvgIcon.h>

#include <QMenu>
#include <QStyleOptionButton>
#include <QStylePainter>

WSvgAnchorButton::WSvgAnchorButton(QWidget *parent)
    : WSvgPushButton(parent)
{
}

WSvgAnchorButton::WSvgAnchorButton(const QString &text, QWidget *parent)
    : WSvgPushButton(text, parent)
{
}

WSvgAnchorButton::~WSvgAnchorButton() = default;

QString WSvgAnchorButton::anchorSvgOn() const
{
    return m_anchorOn ? m_anchorOn->getFilePath() : QString();
}

void WSvgAnchorButton::setAnchorSvgOn(const QString &path)
{
    if (assignIcon(&m_anchorOn, path, m_anchorIconSize))
        Q_EMIT anchorSvgOnChanged(path);
}

QString WSvgAnchorButton::anchorSvgOff() const
{
    return m_anchorOff ? m_anchorOff->getFilePath() : QString();
}

void WSvgAnchorButton::setAnchorSvgOff(const QString &path)
{
    if (assignIcon(&m_anchorOff, path, m_anchorIconSize))
        Q_EMIT anchorSvgOffChanged(path);
}

void WSvgAnchorButton::setAnchorIconSize(const QSize &size)
{
    if (!Checks::size(this, "setAnchorIconSize", size))
        return;
    m_anchorIconSize = size;
    for (WSvgIcon *icon : {m_anchorOn.get(), m_anchorOff.get()}) {
        if (icon)
            icon->setIconSize(size);
    }
    arrangeAgain();
}

void WSvgAnchorButton::setAnchorSvgColorSet(const QString &name)
{
    if (m_anchorSvgColorSet == name)
        return;
    m_anchorSvgColorSet = name;
    colorsAreOthers(name);
}

void WSvgAnchorButton::setAnchorPadding(int padding)
{
    if (!Checks::padding(this, "setAnchorPadding", padding))
        return;
    m_anchorPadding = padding;
    arrangeAgain();
}

void WSvgAnchorButton::setAnchorSvgOffset(int offset)
{
    if (qAbs(qint64(offset)) > QWIDGETSIZE_MAX) {
        qWarning() << "WSvgAnchorButton::setAnchorSvgOffset - Invalid offset:" << offset;
        return;
    }
    m_anchorSvgOffset = offset;
    arrangeAgain();
}

void WSvgAnchorButton::setIsLeftAnchor(bool isLeft)
{
    m_isLeftAnchor = isLeft;
    arrangeAgain();
}

void WSvgAnchorButton::setAlignAnchorIconToText(bool align)
{
    m_alignAnchorIconToText = align;
    arrangeAgain();
}

void WSvgAnchorButton::setAnchorSvgVisible(bool visible)
{
    m_anchorSvgVisible = visible;
    arrangeAgain();
}

void WSvgAnchorButton::onThemeChanged()
{
    WSvgPushButton::onThemeChanged();
}

void WSvgAnchorButton::applyColors()
{
    WSvgPushButton::applyColors();
    colorIcon(m_anchorOn, m_anchorSvgColorSet);
    colorIcon(m_anchorOff, m_anchorSvgColorSet);
}

// The icon for the state, or the other one; null where no anchor is to be seen.
const WSvgIcon *WSvgAnchorButton::usableAnchor(bool isOn) const
{
    if (!m_anchorSvgVisible)
        return nullptr;
    const WSvgIcon *wanted = isOn ? m_anchorOn.get() : m_anchorOff.get();
    const WSvgIcon *other = isOn ? m_anchorOff.get() : m_anchorOn.get();
    if (wanted && wanted->isValid())
        return wanted;
    return other && other->isValid() ? other : nullptr;
}

bool WSvgAnchorButton::standsAtText() const
{
    return m_alignAnchorIconToText && !text().isEmpty();
}

QRect WSvgAnchorButton::anchorRect(const QRect &contents, const QRect &text) const
{
    const bool isAtText = standsAtText() && !text.isNull();
    const QRect &line = isAtText ? text : contents;
    QRect rect(QPoint(), m_anchorIconSize);
    rect.moveTop((line.top() + line.bottom()) / 2 - qRound(m_anchorIconSize.height() * 0.5) + m_anchorSvgOffset);
    if (isAtText)
        rect.moveLeft(m_isLeftAnchor ? text.left() - m_anchorPadding - rect.width()
                                     : text.right() + 1 + m_anchorPadding);
    else
        rect.moveLeft(m_isLeftAnchor ? contents.left() + m_anchorPadding
                                     : contents.right() - rect.width() - m_anchorPadding);
    return rect;
}

QRect WSvgAnchorButton::iconTextArea(const QRect &contents) const
{
    if (standsAtText() || !usableAnchor(true))
        return contents;
    const QRect anchor = anchorRect(contents, QRect());
    QRect area = contents;
    if (m_isLeftAnchor)
        area.setLeft(anchor.right() + 1);
    else
        area.setRight(anchor.left() - 1);
    return area;
}

QMargins WSvgAnchorButton::extraTextPadding() const
{
    if (!standsAtText() || !usableAnchor(true))
        return QMargins();
    const int room = m_anchorPadding + m_anchorIconSize.width();
    return m_isLeftAnchor ? QMargins(room, 0, 0, 0) : QMargins(0, 0, room, 0);
}

QSize WSvgAnchorButton::sizeOfIcons() const
{
    QSize size = WSvgPushButton::sizeOfIcons();
    if (usableAnchor(true))
        size += QSize(m_anchorIconSize.width() + m_anchorPadding, m_anchorIconSize.height() + m_anchorSvgOffset);
    return size;
}

void WSvgAnchorButton::initStyleOption(QStyleOptionButton *option) const
{
    WSvgPushButton::initStyleOption(option);
    if (usableAnchor(true))
        option->features &= ~QStyleOptionButton::HasMenu;
}

void WSvgAnchorButton::paintContents(QStylePainter *painter, const QStyleOptionButton &option)
{
    WSvgPushButton::paintContents(painter, option);
    const WSvgIcon *anchor = usableAnchor(isChecked() || (menu() && menu()->isVisible()));
    if (!anchor)
        return;
    const QRect rect =
        QStyle::visualRect(option.direction, option.rect, anchorRect(contentsArea(option), textArea(option)));
    painter->translate(rect.topLeft());
    anchor->draw(painter, option.state);
    painter->translate(-rect.topLeft());
}
