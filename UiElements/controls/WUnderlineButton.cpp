#include <UiElements/controls/WUnderlineButton.h>

#include "Checks_p.h"
#include "ControlText_p.h"

#include <UiElements/icons/DrawUtils.h>
#include <UiElements/icons/WSvgIcon.h>

#include <QDebug>
#include <QImageReader>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace {

constexpr int radius = 14; // of the background
constexpr int margin = 12; // beside the contents; the unread dot is within it
constexpr int gap = 6; // between dot, icons and text
constexpr int leftIconSize = 17;
constexpr int unreadTop = 12;
constexpr QSize unreadSize(10, 10);
constexpr int textGap = 2; // between text and underline

} // namespace

WUnderlineButton::WUnderlineButton(QWidget *parent)
    : WPushButton(parent)
{
    init();
}

WUnderlineButton::WUnderlineButton(const QString &text, QWidget *parent)
    : WPushButton(text, parent)
{
    init();
}

WUnderlineButton::~WUnderlineButton() = default;

void WUnderlineButton::init()
{
    m_textSet = QStringLiteral("qx-underlineButton-text");
    m_backgroundSet = QStringLiteral("qx-underlineButton-background");
    m_unreadIndicatorSize = unreadSize;
    setAccessibleRole(QAccessible::Button);
    setElideMode(Qt::ElideRight);
    setAttribute(Qt::WA_Hover); // styles set it for buttons that they draw themselves
}

void WUnderlineButton::setLength(int *length, int value, const char *what)
{
    if (!Checks::isLength(value)) {
        qWarning().nospace() << "WUnderlineButton::" << what << " - Invalid length: " << value;
        return;
    }
    if (*length == value)
        return;
    *length = value;
    updateGeometry();
    update();
}

void WUnderlineButton::setBorderWidth(int width)
{
    setLength(&m_borderWidth, width, "setBorderWidth");
}

void WUnderlineButton::setBottomPadding(int padding)
{
    setLength(&m_bottomPadding, padding, "setBottomPadding");
}

void WUnderlineButton::setShowUnreadIndicator(bool show)
{
    if (m_showUnreadIndicator == show)
        return;
    m_showUnreadIndicator = show;
    updateGeometry();
    update();
    announceNews();
}

void WUnderlineButton::setUnreadIndicatorSize(const QSize &size)
{
    if (size.isEmpty()) {
        qWarning() << "WUnderlineButton::setUnreadIndicatorSize - Invalid size:" << size;
        return;
    }
    if (!Checks::size(this, "setUnreadIndicatorSize", size))
        return;
    m_unreadIndicatorSize = size;
    updateGeometry();
    update();
}

void WUnderlineButton::setLeftIcon(const QString &path)
{
    if (m_leftIconPath == path)
        return;
    if (!path.isEmpty() && !QImageReader(path).canRead()) {
        qWarning() << "WUnderlineButton::setLeftIcon - Unable to read the image:" << path;
        return;
    }
    m_leftIconPath = path;
    m_leftIcon = path.isEmpty() ? QIcon() : QIcon(path);
    updateGeometry();
    update();
}

QString WUnderlineButton::anchorIcon() const
{
    return m_anchorIcon ? m_anchorIcon->getFilePath() : QString();
}

void WUnderlineButton::setAnchorIcon(const QString &path)
{
    if (anchorIcon() == path)
        return;
    std::unique_ptr<WSvgIcon> icon;
    if (!path.isEmpty()) {
        icon = std::make_unique<WSvgIcon>();
        icon->setFilePath(path);
        if (!icon->isValid())
            return;
        if (m_colors)
            icon->setColorSet(m_colors->text);
        connect(icon.get(), &WSvgIcon::repaintNeeded, this, qOverload<>(&QWidget::update));
    }
    m_anchorIcon = std::move(icon);
    updateGeometry();
    update();
}

void WUnderlineButton::setName(QString *name, const QString &value)
{
    if (*name == value)
        return;
    *name = value;
    updateColors();
}

void WUnderlineButton::setTextColorSet(const QString &name)
{
    setName(&m_textSet, name);
}

void WUnderlineButton::setBackgroundColorSet(const QString &name)
{
    setName(&m_backgroundSet, name);
}

void WUnderlineButton::setUnderlineColorSet(const QString &name)
{
    setName(&m_underlineSet, name);
}

void WUnderlineButton::onThemeChanged()
{
    WPushButton::onThemeChanged();
}

void WUnderlineButton::updateColors()
{
    m_colors.reset();
    WPushButton::updateColors();
}

const WUnderlineButton::Colors &WUnderlineButton::colors() const
{
    if (!m_colors) {
        m_colors = std::make_unique<Colors>();
        m_colors->text = colorSet(m_textSet);
        m_colors->background = colorSet(m_backgroundSet);
        m_colors->underline = m_underlineSet.isEmpty() ? m_colors->text : colorSet(m_underlineSet);
        m_colors->unread = colorSet(QStringLiteral("qx-unreadCountCircle-background"));
        if (m_anchorIcon)
            m_anchorIcon->setColorSet(m_colors->text);
    }
    return *m_colors;
}

bool WUnderlineButton::showsOnlyIcon() const
{
    return text().isEmpty() && (!m_leftIcon.isNull() || m_anchorIcon || !icon().isNull());
}

bool WUnderlineButton::showsNews() const
{
    return m_showUnreadIndicator || WPushButton::showsNews();
}

// What the text leaves free on either side.
int WUnderlineButton::leadingRoom() const
{
    const int dot = m_showUnreadIndicator ? m_unreadIndicatorSize.width() + gap : 0;
    return std::max(margin, dot) + (m_leftIcon.isNull() ? 0 : leftIconSize + gap);
}

int WUnderlineButton::trailingRoom() const
{
    return margin + (m_anchorIcon ? m_anchorIcon->getIconSize().width() + gap : 0);
}

QSize WUnderlineButton::sizeHint() const
{
    ensurePolished();
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, ControlText::beginning(this->text()));
    const int icons =
        std::max(m_leftIcon.isNull() ? 0 : leftIconSize, m_anchorIcon ? m_anchorIcon->getIconSize().height() : 0);
    // The contents are in the middle of the height, so that the room below them is needed above, too.
    const int below = m_borderWidth + m_bottomPadding + textGap;
    int height = std::max(text.height(), icons) + 2 * below;
    if (m_showUnreadIndicator)
        height = std::max(height, unreadTop + m_unreadIndicatorSize.height());
    return QSize(leadingRoom() + text.width() + trailingRoom(), std::max(height, 2 * radius));
}

QString WUnderlineButton::fitting(const QString &text) const
{
    const int room = std::max(0, width() - leadingRoom() - trailingRoom());
    const Qt::TextElideMode mode = elideMode() == Qt::ElideNone ? Qt::ElideRight : elideMode();
    return fontMetrics().elidedText(ControlText::beginning(text), mode, room, Qt::TextShowMnemonic);
}

void WUnderlineButton::initStyleOption(QStyleOptionButton *option) const
{
    WPushButton::initStyleOption(option);
    option->text = fitting(text());
}

QString WUnderlineButton::elidedFullText() const
{
    return fitting(text()) == text() ? QString() : plainText();
}

void WUnderlineButton::paintButton(QStylePainter *painter, const QStyleOptionButton &option)
{
    const Colors &sets = colors();
    const QRect rect = option.rect;
    const auto placed = [&option, &rect](const QRect &r) {
        return QStyle::visualRect(option.direction, rect, r);
    };
    const auto inMiddle = [&rect](int x, const QSize &size) {
        return QRect(QPoint(x, rect.top() + (rect.height() - size.height()) / 2), size);
    };
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->setPen(Qt::NoPen);

    if (option.state & (QStyle::State_On | QStyle::State_MouseOver | QStyle::State_Sunken)) {
        const QColor color = DrawUtils::colorForState(sets.background, option.state);
        if (color.isValid()) {
            painter->setBrush(color);
            painter->drawRoundedRect(rect, radius, radius);
        }
    }

    if (!m_leftIcon.isNull()) {
        const int x = rect.left() + leadingRoom() - leftIconSize - gap;
        m_leftIcon.paint(painter, placed(inMiddle(x, QSize(leftIconSize, leftIconSize))), Qt::AlignCenter,
                         option.state & QStyle::State_Enabled ? QIcon::Normal : QIcon::Disabled);
    }

    paintUnderline(painter, option);
    if (m_anchorIcon) {
        const QSize size = m_anchorIcon->getIconSize();
        painter->save();
        painter->setLayoutDirection(option.direction);
        painter->translate(placed(inMiddle(rect.left() + rect.width() - margin - size.width(), size)).topLeft());
        m_anchorIcon->draw(painter, option.state);
        painter->restore();
    }

    paintText(painter, option);
    if (m_showUnreadIndicator) {
        const QColor color = DrawUtils::colorForState(sets.unread, option.state & QStyle::State_Enabled);
        if (color.isValid()) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(color);
            painter->drawEllipse(placed(QRect(QPoint(rect.left(), rect.top() + unreadTop), m_unreadIndicatorSize)));
        }
    }
}

void WUnderlineButton::paintUnderline(QPainter *painter, const QStyleOptionButton &option)
{
    if (!(option.state & QStyle::State_On) || m_borderWidth <= 0)
        return;
    // Its own states are checked and disabled: it does not light up when the button does.
    const QColor color =
        DrawUtils::colorForState(colors().underline, option.state & (QStyle::State_Enabled | QStyle::State_On));
    const QRect &rect = option.rect;
    const int inset = std::min(radius, rect.width() / 4);
    const double y = rect.top() + rect.height() - m_bottomPadding - m_borderWidth / 2.0;
    painter->setPen(color.isValid() ? QPen(color, m_borderWidth, Qt::SolidLine, Qt::FlatCap) : QPen(Qt::NoPen));
    painter->drawLine(QLineF(rect.left() + inset, y, rect.left() + rect.width() - inset, y));
}

void WUnderlineButton::paintText(QPainter *painter, const QStyleOptionButton &option)
{
    if (option.text.isEmpty())
        return;
    const QColor color = DrawUtils::colorForState(colors().text, option.state);
    painter->setPen(color.isValid() ? color : option.palette.color(QPalette::ButtonText));
    const QRect room = option.rect.adjusted(leadingRoom(), 0, -trailingRoom(), 0);
    const int shownMnemonic = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this)
        ? int(Qt::TextShowMnemonic)
        : int(Qt::TextHideMnemonic);
    // The ellipsis stays at the end of a text that goes the other way than the layout.
    const int direction = option.text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    painter->drawText(QStyle::visualRect(option.direction, option.rect, room),
                      Qt::AlignCenter | Qt::TextSingleLine | shownMnemonic | direction, option.text);
}

void WUnderlineButton::paintFocus(QStylePainter *painter, const QStyleOptionButton &option)
{
    const QVariant asked = property("focusBorderRadius");
    const QRect custom = property("customFocusRect").toRect();
    const QColor color = focusColor();
    DrawUtils::drawFocusRect(painter, custom.isValid() ? custom : option.rect,
                             color.isValid() ? color : option.palette.color(QPalette::Highlight),
                             asked.isValid() ? asked.toDouble() : radius);
}
