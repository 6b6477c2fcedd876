#include <UiElements/controls/WSvgLabel.h>

#include "Checks_p.h"

#include <UiElements/icons/DrawUtils.h>
#include <UiElements/icons/WSvgIcon.h>

#include <QDebug>
#include <QPainter>
#include <QTextDocument>

#include <algorithm>

WSvgLabel::WSvgLabel(QWidget *parent)
    : WLabel(parent)
{
    init();
}

WSvgLabel::WSvgLabel(QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags)
    : WLabel(parent, role, flags)
{
    init();
}

WSvgLabel::WSvgLabel(const QString &text, QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags)
    : WLabel(text, parent, role, flags)
{
    init();
}

WSvgLabel::~WSvgLabel() = default;

void WSvgLabel::init()
{
    setAttribute(Qt::WA_Hover); // the icon's colors follow the state, whatever the style sheet says
}

// ---- properties

void WSvgLabel::changeLayout()
{
    invalidateText();
}

WSvgIcon *WSvgLabel::ensureIcon()
{
    if (!m_icon) {
        m_icon = std::make_unique<WSvgIcon>();
        m_icon->setFilePath(QString());
        m_icon->setIconSize(m_size);
        m_icon->setVisible(m_isIconVisible);
        connect(m_icon.get(), &WSvgIcon::repaintNeeded, this, [this] { update(); });
    }
    return m_icon.get();
}

QString WSvgLabel::svgIcon() const
{
    return m_icon ? m_icon->getFilePath() : QString();
}

void WSvgLabel::setSvgIcon(const QString &path)
{
    if (svgIcon() == path && (path.isEmpty() || m_icon->isValid())) {
        update();
        return;
    }
    const bool isOther = svgIcon() != path;
    ensureIcon()->setFilePath(path);
    changeLayout();
    if (isOther)
        Q_EMIT svgIconChanged(path);
}

WColorSet WSvgLabel::colorsOf(const QString &name) const
{
    // One that this theme does not have was reported when it was named.
    const WColorSets &sets = WThemeUtils::getWColorSetsByThemeType(WThemeUtils::getThemeTypeOfWidget(this));
    const auto found = sets.find(name.toStdString());
    if (found != sets.end())
        return found->second;
    WColorSet colors;
    colors.fill(textColor());
    return colors;
}

WColorSet WSvgLabel::namedColors(const QString &name) const
{
    return name.isEmpty() ? colorsOf(name)
                          : WThemeUtils::getColorSet(name.toStdString(), WThemeUtils::getThemeTypeOfWidget(this));
}

void WSvgLabel::setSvgIconColorSet(const QString &name)
{
    if (m_colorSet == name)
        return;
    m_colorSet = name;
    update();
    Q_EMIT svgIconColorSetChanged(namedColors(name));
}

void WSvgLabel::setSvgIconSize(const QSize &size)
{
    if (m_size == size || !Checks::size(this, "setSvgIconSize", size))
        return;
    m_size = size;
    if (m_icon)
        m_icon->setIconSize(size);
    changeLayout();
    Q_EMIT svgIconSizeChanged(size);
}

void WSvgLabel::setSvgIconAlignment(WEnum::Alignment alignment)
{
    if (alignment < WEnum::Alignment::Left || alignment > WEnum::Alignment::Bottom) {
        qWarning() << "WSvgLabel::setSvgIconAlignment - Invalid alignment:" << int(alignment);
    } else if (m_iconAlignment != alignment) {
        m_iconAlignment = alignment;
        changeLayout();
    }
}

void WSvgLabel::setTextHorAlign(WEnum::HorAlign alignment)
{
    if (alignment < WEnum::HorAlign::Left || alignment > WEnum::HorAlign::Right) {
        qWarning() << "WSvgLabel::setTextHorAlign - Invalid alignment:" << int(alignment);
    } else if (m_textAlignment != alignment) {
        m_textAlignment = alignment;
        changeLayout();
    }
}

void WSvgLabel::setTextLeftPadding(int padding)
{
    if (m_textLeftPadding == padding || !Checks::padding(this, "setTextLeftPadding", padding))
        return;
    m_textLeftPadding = padding;
    changeLayout();
}

void WSvgLabel::setTextRightPadding(int padding)
{
    if (m_textRightPadding == padding || !Checks::padding(this, "setTextRightPadding", padding))
        return;
    m_textRightPadding = padding;
    changeLayout();
}

void WSvgLabel::setSvgIconTopLeftPadding(const QPoint &padding)
{
    if (m_iconTopLeftPadding == padding || !Checks::padding(this, "setSvgIconTopLeftPadding", padding))
        return;
    m_iconTopLeftPadding = padding;
    changeLayout();
}

void WSvgLabel::setSvgIconBottomRightPadding(const QPoint &padding)
{
    if (m_iconBottomRightPadding == padding || !Checks::padding(this, "setSvgIconBottomRightPadding", padding))
        return;
    m_iconBottomRightPadding = padding;
    changeLayout();
}

QString WSvgLabel::innerSvgIcon() const
{
    return m_icon ? m_icon->getInnerFilePath() : QString();
}

void WSvgLabel::setInnerSvgIcon(const QString &path)
{
    if (innerSvgIcon() == path)
        return;
    ensureIcon()->setInnerFilePath(path);
    m_icon->setInnerIconSize(m_innerSize);
    update();
}

void WSvgLabel::setInnerSvgIconColorSet(const QString &name)
{
    if (m_innerColorSet == name)
        return;
    m_innerColorSet = name;
    namedColors(name);
    update();
}

void WSvgLabel::setInnerSvgIconSize(const QSize &size)
{
    if (m_innerSize == size || !Checks::size(this, "setInnerSvgIconSize", size))
        return;
    m_innerSize = size;
    if (m_icon)
        m_icon->setInnerIconSize(size);
    update();
}

void WSvgLabel::setSvgIconVisible(bool visible)
{
    if (m_isIconVisible == visible)
        return;
    m_isIconVisible = visible;
    if (m_icon)
        m_icon->setVisible(visible);
    changeLayout();
}

// ---- layout

bool WSvgLabel::hasIcon() const
{
    return m_icon && m_icon->isValid() && m_icon->isVisible();
}

bool WSvgLabel::isBeside() const
{
    return m_iconAlignment == WEnum::Alignment::Left || m_iconAlignment == WEnum::Alignment::Right;
}

QSize WSvgLabel::iconBlock() const
{
    if (!hasIcon())
        return QSize(0, 0);
    const QPoint around = m_iconTopLeftPadding + m_iconBottomRightPadding;
    return m_size + QSize(around.x(), around.y());
}

int WSvgLabel::paddings() const
{
    return shownText().isEmpty() ? 0 : m_textLeftPadding + m_textRightPadding;
}

// Only QLabel knows what is selected, and which link the mouse is at.
bool WSvgLabel::isLaidOutByQt() const
{
    return isSelectable() || (!isPlain() && shownText().contains(QLatin1String("<a"), Qt::CaseInsensitive));
}

void WSvgLabel::invalidateText()
{
    m_hasOwnIndent = hasIcon() && isBeside() && isLaidOutByQt();
    const bool isFirst = m_iconAlignment == WEnum::Alignment::Left;
    const int room = m_hasOwnIndent ? iconBlock().width() + (isFirst ? m_textLeftPadding : m_textRightPadding) : -1;
    if (m_hasOwnIndent || m_hadOwnIndent)
        setIndent(room);
    m_hadOwnIndent = m_hasOwnIndent;
    WLabel::invalidateText();
}

// QLabel indents a text at the side that it is aligned to.
Qt::Alignment WSvgLabel::placedAlignment() const
{
    if (!m_hasOwnIndent)
        return WLabel::placedAlignment();
    const bool isAtLeft = (m_iconAlignment == WEnum::Alignment::Left) == (layoutDirection() == Qt::LeftToRight);
    return (alignment() & Qt::AlignVertical_Mask) | (isAtLeft ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignAbsolute;
}

// The room that the icon leaves. The block of both may be narrower.
QRect WSvgLabel::textRect() const
{
    QRect rect = WLabel::textRect();
    if (isLaidOutByQt())
        return rect;
    const QSize icon = iconBlock();
    QRect room = rect.adjusted(m_textLeftPadding, 0, -m_textRightPadding, 0);
    switch (m_iconAlignment) {
    case WEnum::Alignment::Left: room.adjust(icon.width(), 0, 0, 0); break;
    case WEnum::Alignment::Right: room.adjust(0, 0, -icon.width(), 0); break;
    case WEnum::Alignment::Top: room.adjust(0, icon.height(), 0, 0); break;
    case WEnum::Alignment::Bottom: room.adjust(0, 0, 0, -icon.height()); break;
    }
    return QStyle::visualRect(layoutDirection(), rect, room);
}

QSize WSvgLabel::sizeHint() const
{
    const QSize hint = WLabel::sizeHint();
    // QLabel has its indent in the hint already.
    return isLaidOutByQt() && m_hasOwnIndent ? QSize(hint.width(), hint.height() + iconBlock().height())
                                             : hint + iconBlock() + QSize(paddings(), 0);
}

QSize WSvgLabel::minimumSizeHint() const
{
    const QSize icon = iconBlock();
    QSize least = QLabel::minimumSizeHint(); // clazy:exclude=skipped-base-method
    if (!(isLaidOutByQt() && m_hasOwnIndent)) {
        const bool elidesText = elideMode() != Qt::ElideNone && isPlain() && !wordWrap() && !shownText().isEmpty();
        const int text = elidesText ? fontMetrics().horizontalAdvance(QChar(0x2026)) + elidePadding() : least.width();
        least.setWidth(std::min(sizeHint().width(), text + paddings() + (isBeside() ? icon.width() : 0)));
    }
    return QSize(least.width(), isBeside() ? std::max(least.height(), icon.height()) : least.height() + icon.height());
}

int WSvgLabel::heightForWidth(int width) const
{
    if (isLaidOutByQt())
        return WLabel::heightForWidth(width);
    const QSize icon = iconBlock();
    const int height = WLabel::heightForWidth(width - paddings() - (isBeside() ? icon.width() : 0));
    return height < 0 ? height : isBeside() ? std::max(height, icon.height()) : height + icon.height();
}

QTextDocument *WSvgLabel::document() const
{
    if (isPlain() || shownText().isEmpty())
        return nullptr;
    if (!m_document) {
        m_document = std::make_unique<QTextDocument>();
        m_document->setUndoRedoEnabled(false);
        m_document->setDocumentMargin(0);
    }
    if (m_document->defaultFont() != font())
        m_document->setDefaultFont(font());
    if (m_documentText != shownText()) {
        m_documentText = shownText();
        if (textFormat() == Qt::MarkdownText)
            m_document->setMarkdown(m_documentText);
        else
            m_document->setHtml(m_documentText);
    }
    m_document->setTextWidth(wordWrap() ? textRect().width() : -1);
    return m_document.get();
}

// ---- painting

void WSvgLabel::onThemeChanged()
{
    WLabel::onThemeChanged();
}

void WSvgLabel::paintEvent(QPaintEvent *event)
{
    if (m_icon) {
        m_icon->setColorSet(colorsOf(m_colorSet));
        if (!m_icon->getInnerFilePath().isEmpty())
            m_icon->setInnerColorSet(m_innerColorSet.isEmpty() ? m_icon->getColorSet() : colorsOf(m_innerColorSet));
    }
    DrawUtils::IconText content;
    content.icon = hasIcon() ? m_icon.get() : nullptr;
    content.metrics.iconMargins = QMargins(m_iconTopLeftPadding.x(), m_iconTopLeftPadding.y(),
                                           m_iconBottomRightPadding.x(), m_iconBottomRightPadding.y());
    content.metrics.iconAlignment = m_iconAlignment;
    content.metrics.textAlignment = m_textAlignment;

    const bool isPicture = !QLabel::pixmap(Qt::ReturnByValue).isNull() || movie();
    if (isPicture || isLaidOutByQt()) {
        WLabel::paintEvent(event);
        if (!content.icon || isPicture)
            return;
        QPainter painter(this);
        const QRect rect = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
        const bool isAtEnd = m_iconAlignment == WEnum::Alignment::Right;
        content.metrics.textAlignment = isAtEnd ? WEnum::HorAlign::Right : WEnum::HorAlign::Left;
        DrawUtils::drawSvgIconText(&painter, rect, content, textState());
        return;
    }

    QPainter painter(this);
    drawFrame(&painter);
    painter.setPen(textColor());
    const QRect rect = WLabel::textRect();
    const QString shown = shownText();
    content.textColors.fill(textColor());
    content.metrics.textLeftPadding = m_textLeftPadding;
    content.metrics.textRightPadding = m_textRightPadding;
    content.elideMode = Qt::ElideNone;
    const bool hasLines = isPlain() && (wordWrap() || shown.contains(QLatin1Char('\n')));
    content.document = document();
    if (!content.document && !hasLines) {
        // The painter's direction is that of the layout; the ends of a text that goes the other way would be exchanged.
        const bool goesLeft = shown.isRightToLeft();
        const QChar mark(goesLeft ? 0x200f : 0x200e);
        content.text = elides() ? elidedText() : shown;
        if (!shown.isEmpty() && goesLeft != (layoutDirection() == Qt::RightToLeft))
            content.text = mark + content.text + mark;
        DrawUtils::drawSvgIconText(&painter, rect, content, textState());
    } else if (content.document) {
        DrawUtils::drawSvgIconText(&painter, rect, content, textState());
    } else {
        // The utility draws single lines: only the icon, where it belongs beside all of the text.
        content.metrics.iconSize = content.icon ? m_size : QSize();
        const QRect room = textRect();
        const QSize text = wordWrap() ? QSize(room.width(), WLabel::heightForWidth(room.width()))
                                      : fontMetrics().size(0, elides() ? elidedText() : shown);
        content.metrics.textSize = text;
        const DrawUtils::IconTextLayout layout =
            DrawUtils::calculateIconTextOffset(rect, content.metrics, layoutDirection());
        if (content.icon) {
            painter.save();
            painter.translate(layout.icon.topLeft());
            m_icon->draw(&painter, textState());
            painter.restore();
        }
        drawLines(&painter, layout.text);
    }
    if (showsFocus())
        drawFocus(&painter);
}
