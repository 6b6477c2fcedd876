#include <UiElements/controls/WSvgPushButton.h>

#include "Checks_p.h"
#include "ControlText_p.h"

#include <UiElements/icons/DrawUtils.h>
#include <UiElements/icons/WSvgIcon.h>

#include <QAbstractTextDocumentLayout>
#include <QDebug>
#include <QEvent>
#include <QMenu>
#include <QStaticText>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTextDocument>
#include <QtMath>

#include <algorithm>

namespace {

constexpr int badgeGap = 2;

QSize sizeOf(QTextDocument *document)
{
    const QSizeF size = document->size();
    return QSize(qCeil(size.width()), qCeil(size.height()));
}

// A name in another script keeps its own direction.
Qt::LayoutDirection directionOf(const QString &text)
{
    return text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

} // namespace

// What decides where icon and text are, besides the properties that say when they change.
struct WSvgPushButton::Room
{
    bool operator==(const Room &other) const
    {
        return contents == other.contents && button == other.button && badge == other.badge
            && iconSize == other.iconSize && direction == other.direction && elideMode == other.elideMode
            && elidePadding == other.elidePadding && font == other.font;
    }

    QRect contents; // this and the badge as in a left-to-right layout
    QRect button;
    QRect badge;
    QSize iconSize;
    QFont font;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    Qt::TextElideMode elideMode = Qt::ElideNone;
    int elidePadding = 0;
};

struct WSvgPushButton::Arrangement
{
    Room room;
    QRect textInLeftToRight;
    QRect icon;
    QRect text;
    QPointF textAt; // half a pixel is one at twice the resolution
    QStaticText staticText;
    QString markedText; // with a mnemonic to be underlined, which a static text cannot
    bool isCut = false;
    bool isWhole = true;
};

WSvgPushButton::WSvgPushButton(QWidget *parent)
    : WPushButton(parent)
{
    init();
}

WSvgPushButton::WSvgPushButton(const QString &text, QWidget *parent)
    : WPushButton(text, parent)
{
    init();
}

WSvgPushButton::~WSvgPushButton() = default;

void WSvgPushButton::init()
{
    setAttribute(Qt::WA_Hover);
    connect(this, &WSvgPushButton::svgIconColorSetChanged, this, &WSvgPushButton::onSvgIconColorSetChanged);
    connect(this, &WSvgPushButton::svgIconSizeChanged, this, &WSvgPushButton::onSvgIconSizeChanged);
}

bool WSvgPushButton::assignIcon(std::unique_ptr<WSvgIcon> *icon, const QString &path, const QSize &size)
{
    const QString before = *icon ? (*icon)->getFilePath() : QString();
    if (before == path && (path.isEmpty() || (*icon)->isValid())) {
        update();
        return false;
    }
    if (!*icon) {
        *icon = std::make_unique<WSvgIcon>();
        (*icon)->setIconSize(size);
        connect(icon->get(), &WSvgIcon::repaintNeeded, this, [this] { update(); });
        m_colorsAreApplied = false;
    }
    (*icon)->setFilePath(path);
    arrangeAgain();
    return before != path;
}

QString WSvgPushButton::svgIcon() const
{
    return m_icon ? m_icon->getFilePath() : QString();
}

void WSvgPushButton::setSvgIcon(const QString &path)
{
    const bool isOther = assignIcon(&m_icon, path, m_svgIconSize);
    if (m_icon)
        m_icon->setVisible(m_svgIconVisible);
    if (isOther)
        Q_EMIT svgIconChanged(path);
}

QString WSvgPushButton::svgIconChecked() const
{
    return m_checkedIcon ? m_checkedIcon->getFilePath() : QString();
}

void WSvgPushButton::setSvgIconChecked(const QString &path)
{
    const bool isOther = assignIcon(&m_checkedIcon, path, m_svgIconSize);
    if (m_checkedIcon)
        m_checkedIcon->setVisible(m_svgIconVisible);
    if (isOther)
        Q_EMIT svgIconCheckedChanged(path);
}

QString WSvgPushButton::innerSvgIcon() const
{
    return m_innerIcon ? m_innerIcon->getFilePath() : QString();
}

void WSvgPushButton::setInnerSvgIcon(const QString &path)
{
    assignIcon(&m_innerIcon, path, m_innerSvgIconSize);
}

void WSvgPushButton::setTextFormat(Qt::TextFormat format)
{
    if (format < Qt::PlainText || format > Qt::MarkdownText) {
        qWarning() << "WSvgPushButton::setTextFormat - Invalid format:" << int(format);
        return;
    }
    if (m_textFormat == format)
        return;
    m_textFormat = format;
    m_seenText.clear();
    m_isRich = false;
    arrangeAgain();
}

void WSvgPushButton::setSvgIconColorSet(const QString &name)
{
    if (m_svgIconColorSet == name)
        return;
    m_svgIconColorSet = name;
    Q_EMIT svgIconColorSetChanged(colorSet(name));
}

void WSvgPushButton::setInnerSvgIconColorSet(const QString &name)
{
    if (m_innerSvgIconColorSet == name)
        return;
    m_innerSvgIconColorSet = name;
    colorsAreOthers(name);
}

void WSvgPushButton::setSvgIconSize(const QSize &size)
{
    if (m_svgIconSize == size || !Checks::size(this, "setSvgIconSize", size))
        return;
    m_svgIconSize = size;
    Q_EMIT svgIconSizeChanged(size);
}

void WSvgPushButton::setInnerSvgIconSize(const QSize &size)
{
    if (!Checks::size(this, "setInnerSvgIconSize", size))
        return;
    m_innerSvgIconSize = size;
    if (m_innerIcon)
        m_innerIcon->setIconSize(size);
    update();
}

void WSvgPushButton::setSvgIconAlignment(WEnum::Alignment alignment)
{
    if (alignment < WEnum::Alignment::Left || alignment > WEnum::Alignment::Bottom) {
        qWarning() << "WSvgPushButton::setSvgIconAlignment - Invalid alignment:" << int(alignment);
        return;
    }
    m_svgIconAlignment = alignment;
    arrangeAgain();
}

void WSvgPushButton::setTextHorAlign(WEnum::HorAlign alignment)
{
    if (alignment < WEnum::HorAlign::Left || alignment > WEnum::HorAlign::Right) {
        qWarning() << "WSvgPushButton::setTextHorAlign - Invalid alignment:" << int(alignment);
        return;
    }
    m_textHorAlign = alignment;
    arrangeAgain();
}

void WSvgPushButton::setTextLeftPadding(int padding)
{
    if (!Checks::padding(this, "setTextLeftPadding", padding))
        return;
    m_textLeftPadding = padding;
    arrangeAgain();
}

void WSvgPushButton::setTextRightPadding(int padding)
{
    if (!Checks::padding(this, "setTextRightPadding", padding))
        return;
    m_textRightPadding = padding;
    arrangeAgain();
}

void WSvgPushButton::setSvgIconTopLeftPadding(const QPoint &padding)
{
    if (!Checks::padding(this, "setSvgIconTopLeftPadding", padding))
        return;
    m_svgIconTopLeftPadding = padding;
    arrangeAgain();
}

void WSvgPushButton::setSvgIconBottomRightPadding(const QPoint &padding)
{
    if (!Checks::padding(this, "setSvgIconBottomRightPadding", padding))
        return;
    m_svgIconBottomRightPadding = padding;
    arrangeAgain();
}

void WSvgPushButton::setSvgIconVisible(bool visible)
{
    m_svgIconVisible = visible;
    for (WSvgIcon *icon : {m_icon.get(), m_checkedIcon.get()}) {
        if (icon)
            icon->setVisible(visible);
    }
    arrangeAgain();
}

void WSvgPushButton::setText(const QString &text)
{
    WPushButton::setText(text);
    richText();
    update();
}

QSize WSvgPushButton::sizeHint() const
{
    QSize hint;
    if (QTextDocument *document = richText()) {
        hint = hintFor(sizeOf(document));
    } else {
        hint = WPushButton::sizeHint();
    }
    return hint + sizeOfIcons();
}

QSize WSvgPushButton::sizeOfIcons() const
{
    QSize size(0, 0);
    if (!text().isEmpty())
        size.rwidth() += m_textLeftPadding + m_textRightPadding;
    if (m_icon && m_icon->isValid() && m_icon->isVisible()) {
        const QPoint paddings = m_svgIconTopLeftPadding + m_svgIconBottomRightPadding;
        size += m_icon->getIconSize() + QSize(paddings.x(), paddings.y());
    }
    return size;
}

const WSvgIcon *WSvgPushButton::shownIcon() const
{
    const auto &icon = isChecked() && m_checkedIcon && m_checkedIcon->isValid() ? m_checkedIcon : m_icon;
    return icon && icon->isValid() && icon->isVisible() ? icon.get() : nullptr;
}

bool WSvgPushButton::showsOnlyIcon() const
{
    return WPushButton::showsOnlyIcon() || (text().isEmpty() && shownIcon());
}

bool WSvgPushButton::isDrawnByStyle() const
{
    return !icon().isNull() && !shownIcon() && !richText();
}

// The document that shows the text, if it is rich.
QTextDocument *WSvgPushButton::richText() const
{
    if (m_textFormat == Qt::PlainText)
        return nullptr;
    const QString now = text();
    const bool isOther = m_seenText != now;
    if (isOther) {
        m_seenText = now;
        m_isRich = !now.isEmpty() && (m_textFormat != Qt::AutoText || Qt::mightBeRichText(now));
        m_arrangement.reset();
    }
    if (!m_isRich)
        return nullptr;
    const bool isNew = !m_document;
    if (isNew) {
        m_document = new ControlText::GuardedDocument(const_cast<WSvgPushButton *>(this));
        m_document->setDocumentMargin(0);
    }
    if (m_document->defaultFont() != font())
        m_document->setDefaultFont(font());
    if (isNew || isOther) {
        m_document->setMarkup(ControlText::beginning(now, true), m_textFormat);
        m_document->removeOutside();
    }
    return m_document;
}

QString WSvgPushButton::plainText() const
{
    const QTextDocument *document = richText();
    return document ? m_document->plainText() : WPushButton::plainText();
}

void WSvgPushButton::onSvgIconColorSetChanged()
{
    m_colorsAreApplied = false;
    update();
}

void WSvgPushButton::onSvgIconSizeChanged()
{
    for (WSvgIcon *icon : {m_icon.get(), m_checkedIcon.get()}) {
        if (icon)
            icon->setIconSize(m_svgIconSize);
    }
    arrangeAgain();
}

void WSvgPushButton::onCSSChanged()
{
    m_colorsAreApplied = false;
    update();
}

void WSvgPushButton::onThemeChanged()
{
    WPushButton::onThemeChanged();
}

void WSvgPushButton::updateColors()
{
    WPushButton::updateColors();
    onCSSChanged();
}

void WSvgPushButton::colorsAreOthers(const QString &colorSetName)
{
    colorSet(colorSetName);
    m_colorsAreApplied = false;
    update();
}

void WSvgPushButton::applyColors()
{
    m_textColors = textColorSet();
    if (!m_textColors.normal().isValid()) {
        // What a sheet without color sets says is in the palette.
        m_textColors.fill(palette().color(QPalette::Active, QPalette::ButtonText));
        m_textColors.setColor(WColorSet::Disabled, palette().color(QPalette::Disabled, QPalette::ButtonText));
    }
    colorIcon(m_icon, m_svgIconColorSet);
    colorIcon(m_checkedIcon, m_svgIconColorSet);
    colorIcon(m_innerIcon, m_innerSvgIconColorSet);
}

void WSvgPushButton::colorIcon(const std::unique_ptr<WSvgIcon> &icon, const QString &colorSetName) const
{
    if (!icon)
        return;
    // One that this theme does not have was reported when it was named.
    const WColorSets &sets = WThemeUtils::getWColorSetsByThemeType(WThemeUtils::getThemeTypeOfWidget(this));
    const auto found = colorSetName.isEmpty() ? sets.end() : sets.find(colorSetName.toStdString());
    icon->setColorSet(found == sets.end() ? m_textColors : found->second);
}

void WSvgPushButton::arrangeAgain()
{
    m_arrangement.reset();
    updateGeometry();
    update();
}

QRect WSvgPushButton::contentsArea(const QStyleOptionButton &option) const
{
    QRect area = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    area = QStyle::visualRect(option.direction, option.rect, area);
    if (option.features & QStyleOptionButton::HasMenu)
        area.adjust(0, 0, -style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, this), 0);
    return area;
}

QRect WSvgPushButton::iconTextArea(const QRect &contents) const
{
    return contents;
}

QMargins WSvgPushButton::extraTextPadding() const
{
    return QMargins();
}

QRect WSvgPushButton::textArea(const QStyleOptionButton &option) const
{
    return arrangement(option).textInLeftToRight;
}

const WSvgPushButton::Arrangement &WSvgPushButton::arrangement(const QStyleOptionButton &option) const
{
    QTextDocument *document = richText();
    const WSvgIcon *icon = shownIcon();
    if (!document && m_seenText != text()) {
        m_seenText = text();
        m_arrangement.reset();
    }
    Room room;
    room.contents = contentsArea(option);
    room.button = option.rect;
    if (badgeVisible())
        room.badge = QStyle::visualRect(option.direction, option.rect, badgeRect());
    if (icon)
        room.iconSize = icon->getIconSize();
    room.font = font();
    room.direction = option.direction;
    room.elideMode = elideMode();
    room.elidePadding = elidePadding();
    if (!m_arrangement || !(m_arrangement->room == room)) {
        m_arrangement = std::make_unique<Arrangement>();
        m_arrangement->room = room;
        arrange(m_arrangement.get(), document);
    }
    return *m_arrangement;
}

void WSvgPushButton::arrange(Arrangement *now, QTextDocument *document) const
{
    const Room &room = now->room;
    const QFontMetrics font(room.font);
    const QMargins extra = extraTextPadding();
    DrawUtils::IconTextMetrics metrics;
    metrics.iconSize = room.iconSize;
    if (document)
        metrics.textSize = sizeOf(document);
    else if (!text().isEmpty())
        metrics.textSize = font.size(Qt::TextShowMnemonic, ControlText::beginning(text()));
    metrics.iconMargins = QMargins(m_svgIconTopLeftPadding.x(), m_svgIconTopLeftPadding.y(),
                                   m_svgIconBottomRightPadding.x(), m_svgIconBottomRightPadding.y());
    metrics.textLeftPadding = m_textLeftPadding + extra.left();
    metrics.textRightPadding = m_textRightPadding + extra.right();
    metrics.iconAlignment = m_svgIconAlignment;
    metrics.textAlignment = m_textHorAlign;
    const bool isBeside = m_svgIconAlignment == WEnum::Alignment::Left || m_svgIconAlignment == WEnum::Alignment::Right;

    QRect area = iconTextArea(room.contents);
    DrawUtils::IconTextLayout layout;
    const auto lay = [&] {
        layout = DrawUtils::calculateIconTextOffset(area, metrics, Qt::LeftToRight);
        // By its own height: beside an icon of any size it stands on the line of a text without one.
        if (isBeside && !layout.text.isNull())
            layout.text.moveTop(area.top() + (area.height() - metrics.textSize.height()) / 2);
    };
    lay();
    // The upper part of a line of text is empty.
    const QRect inked = layout.text.adjusted(0, font.ascent() - font.capHeight(), 0, 0);
    if (!room.badge.isNull() && inked.adjusted(0, 0, badgeGap, 0).intersects(room.badge)) {
        area.setRight(std::min(area.right(), room.badge.left() - badgeGap - 1));
        lay();
    }
    if (!document && room.elideMode != Qt::ElideNone && !layout.text.isNull())
        layout.text.setWidth(std::max(0, std::min(layout.text.width(), room.button.width() - room.elidePadding)));

    now->isCut = !metrics.textSize.isEmpty() && layout.text.width() < metrics.textSize.width();
    now->isWhole = !now->isCut && !ControlText::isLong(text());
    now->textInLeftToRight = layout.text;
    now->icon = layout.icon.isNull() ? QRect() : QStyle::visualRect(room.direction, room.button, layout.icon);
    now->text = layout.text.isNull() ? QRect() : QStyle::visualRect(room.direction, room.button, layout.text);
    if (now->text.isEmpty())
        return;
    now->textAt = isBeside ? QPointF(now->text.left(), area.top() + (area.height() - metrics.textSize.height()) / 2.0)
                           : QPointF(now->text.topLeft());
    if (!document) {
        prepareText(now);
        return;
    }
    // What is cut is the end of the text, in whatever direction it runs.
    const Qt::LayoutDirection side = now->isCut ? directionOf(document->toPlainText()) : room.direction;
    if (side == Qt::RightToLeft)
        now->textAt.setX(now->text.right() + 1 - metrics.textSize.width());
}

void WSvgPushButton::prepareText(Arrangement *now) const
{
    const Room &room = now->room;
    const QFontMetrics font(room.font);
    QString shown = ControlText::beginning(text());
    if (now->isCut && room.elideMode != Qt::ElideNone) {
        QStringList lines = shown.split(QLatin1Char('\n'));
        for (QString &line : lines)
            line = font.elidedText(line, room.elideMode, now->text.width(), Qt::TextShowMnemonic);
        shown = lines.join(QLatin1Char('\n'));
        now->isCut = false;
    }
    if (shown.contains(QLatin1Char('&')) && style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this)) {
        now->markedText = shown;
        return;
    }
    QString plain = ControlText::withoutMnemonics(shown);
    QTextOption option;
    option.setTextDirection(directionOf(plain));
    option.setWrapMode(QTextOption::NoWrap);
    const bool isOneLine = !plain.contains(QLatin1Char('\n'));
    if (!isOneLine) {
        option.setAlignment(Qt::AlignHCenter);
        plain.replace(QLatin1Char('\n'), QChar::LineSeparator); // which is what a static text breaks at
    }
    now->staticText.setTextFormat(Qt::PlainText);
    now->staticText.setTextOption(option);
    now->staticText.setText(plain);
    if (!isOneLine)
        now->staticText.setTextWidth(now->text.width());
    now->staticText.prepare(QTransform(), room.font);
    const Qt::LayoutDirection side = now->isCut ? option.textDirection() : room.direction;
    if (isOneLine && side == Qt::RightToLeft)
        now->textAt.rx() += now->text.width() - now->staticText.size().width();
}

void WSvgPushButton::initStyleOption(QStyleOptionButton *option) const
{
    WPushButton::initStyleOption(option);
    if (isDrawnByStyle())
        return;
    option->text.clear();
    option->icon = QIcon();
}

void WSvgPushButton::paintButton(QStylePainter *painter, const QStyleOptionButton &option)
{
    // There is nothing in the option that the style could draw upon the box.
    if (isDrawnByStyle())
        WPushButton::paintButton(painter, option);
    else
        painter->drawControl(QStyle::CE_PushButtonBevel, option);
}

void WSvgPushButton::paintContents(QStylePainter *painter, const QStyleOptionButton &option)
{
    if (isDrawnByStyle())
        return;
    if (!m_colorsAreApplied) {
        applyColors();
        m_colorsAreApplied = true;
    }
    const Arrangement &now = arrangement(option);
    const WSvgIcon *icon = shownIcon();
    if (icon && !now.icon.isEmpty()) {
        painter->translate(now.icon.topLeft());
        icon->draw(painter, option.state);
        painter->translate(-now.icon.topLeft());
        if (m_innerIcon && m_innerIcon->isValid()) {
            const QSizeF room = m_svgIconSize - m_innerSvgIconSize;
            const QPointF at = QPointF(now.icon.topLeft()) + QPointF(room.width() * 0.5, room.height() * 0.5);
            painter->translate(at);
            m_innerIcon->draw(painter, option.state);
            painter->translate(-at);
        }
    }
    if (now.text.isEmpty())
        return;

    const QColor color = DrawUtils::colorForState(m_textColors, option.state);
    if (now.isCut) {
        painter->save();
        painter->setClipRect(now.text, Qt::IntersectClip);
    }
    if (QTextDocument *document = richText()) {
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, color);
        painter->translate(now.textAt);
        document->documentLayout()->draw(painter, context);
        painter->translate(-now.textAt);
    } else {
        painter->setPen(color);
        if (now.markedText.isEmpty()) {
            painter->drawStaticText(now.textAt, now.staticText);
        } else {
            const Qt::Alignment side = QStyle::visualAlignment(option.direction, Qt::AlignLeft);
            const QRectF rect(now.text.left(), now.textAt.y(), now.text.width(), now.text.height());
            const int forced = now.markedText.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
            painter->drawText(rect, int(side | Qt::AlignVCenter) | Qt::TextShowMnemonic | forced, now.markedText);
        }
    }
    if (now.isCut)
        painter->restore();
}

QString WSvgPushButton::elidedFullText() const
{
    if (isDrawnByStyle())
        return WPushButton::elidedFullText();
    QStyleOptionButton option;
    initStyleOption(&option);
    return text().isEmpty() || arrangement(option).isWhole ? QString() : plainText();
}

void WSvgPushButton::changeEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::StyleChange: m_colorsAreApplied = false; [[fallthrough]];
    case QEvent::FontChange: m_arrangement.reset(); break;
    default: break;
    }
    WPushButton::changeEvent(event);
}
