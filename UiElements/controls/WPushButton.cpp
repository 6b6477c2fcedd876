#include <UiElements/controls/WPushButton.h>

#include "Checks_p.h"
#include "ControlText_p.h"

#include <UiElements/controls/WLabel.h>
#include <UiElements/icons/DrawUtils.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QDebug>
#include <QHelpEvent>
#include <QMenu>
#include <QPainterPath>
#include <QPointer>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace {

constexpr int longPressTime = 500; // ms
constexpr int badgeSize = 10;
constexpr int badgeGap = 2; // between badge and text

// What Qt's own interface for buttons tells, whose class is not public, and besides: the press of a checkable button,
// the badge, and the tooltip as name of a button that has no other.
class ButtonAccessible : public QAccessibleWidget
{
public:
    explicit ButtonAccessible(WPushButton *button)
        : QAccessibleWidget(button)
    {
    }

    static QAccessibleInterface *create(const QString &, QObject *object);

    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &name) const override;

private:
    WPushButton *button() const { return static_cast<WPushButton *>(widget()); }
    QString name() const;
    QString plainToolTip() const;
    QString shortcutText() const;
};

// Themed widgets get an interface that stands in front of another, for which it asks the factories once more. Asked for
// the same button a second time, this one knows that it is for that.
QAccessibleInterface *ButtonAccessible::create(const QString &, QObject *object)
{
    static const QObject *asked = nullptr;
    auto *button = qobject_cast<WPushButton *>(object);
    if (!button)
        return nullptr;
    if (std::exchange(asked, object) != object)
        return nullptr;
    asked = nullptr;
    return new ButtonAccessible(button);
}

QString ButtonAccessible::name() const
{
    if (!button()->accessibleName().isEmpty())
        return button()->accessibleName();
    const QString plain = WLabel::spokenText(ControlText::beginning(button()->plainText()));
    return plain.isEmpty() ? QAccessibleWidget::text(QAccessible::Name) : plain; // that of a label beside it
}

QString ButtonAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name) {
        const QString own = name();
        return own.isEmpty() ? plainToolTip() : own;
    }
    if (kind == QAccessible::Description) {
        QString description = button()->accessibleDescription();
        if (description.isEmpty() && !name().isEmpty())
            description = plainToolTip();
        if (button()->showsNews()) {
            const QString news = QCoreApplication::translate("WPushButton", "New activity");
            description = description.isEmpty() ? news : news + QStringLiteral(". ") + description;
        }
        return description;
    }
    if (kind == QAccessible::Accelerator)
        return shortcutText();
    return QAccessibleWidget::text(kind);
}

QString ButtonAccessible::plainToolTip() const
{
    const QString tip = button()->toolTip();
    return Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
}

QString ButtonAccessible::shortcutText() const
{
    return button()->shortcut().toString(QKeySequence::NativeText);
}

QAccessible::Role ButtonAccessible::role() const
{
    if (button()->menu())
        return QAccessible::ButtonMenu;
    if (button()->isCheckable())
        return button()->autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
    return QAccessible::Button;
}

QAccessible::State ButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    state.hasPopup = button()->menu() != nullptr;
    state.defaultButton = button()->isDefault();
    return state;
}

QStringList ButtonAccessible::actionNames() const
{
    QStringList names;
    if (button()->isEnabled()) {
        names << (button()->menu() ? showMenuAction() : pressAction());
        if (button()->isCheckable())
            names << toggleAction();
    }
    return names + QAccessibleWidget::actionNames();
}

void ButtonAccessible::doAction(const QString &name)
{
    if (!button()->isEnabled())
        return;
    if (name == pressAction() || name == showMenuAction()) {
        // Later: the menu runs an event loop of its own, and who asked for it waits for the answer.
        if (button()->menu())
            QMetaObject::invokeMethod(button(), &QPushButton::showMenu, Qt::QueuedConnection);
        else
            button()->animateClick();
    } else if (name == toggleAction() && button()->isCheckable()) {
        button()->click(); // who waits for clicked() is told, too
    } else {
        QAccessibleWidget::doAction(name);
    }
}

QStringList ButtonAccessible::keyBindingsForAction(const QString &name) const
{
    const bool operates = name == pressAction() || name == toggleAction() || name == showMenuAction();
    const QString key = operates ? shortcutText() : QString();
    return key.isEmpty() ? QStringList() : QStringList(key);
}

constexpr QStyle::State shownFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;

} // namespace

WPushButton::WPushButton(QWidget *parent)
    : Themed(parent)
{
    init();
}

WPushButton::WPushButton(const QString &text, QWidget *parent)
    : Themed(text, parent)
{
    init();
}

WPushButton::WPushButton(const QIcon &icon, const QString &text, QWidget *parent)
    : Themed(icon, text, parent)
{
    init();
}

void WPushButton::init()
{
    QAccessible::installFactory(&ButtonAccessible::create);
    initTheme();
    theme().setDrawsOwnBox();
    connect(this, &WPushButton::cssChanged, this, [this] { updateColors(); });
}

void WPushButton::setElideMode(Qt::TextElideMode mode)
{
    if (mode < Qt::ElideLeft || mode > Qt::ElideNone) {
        qWarning() << "WPushButton::setElideMode - Invalid elide mode:" << int(mode);
        return;
    }
    if (m_elideMode == mode)
        return;
    m_elideMode = mode;
    m_shownText.isMade = false;
    update();
}

void WPushButton::setElidePadding(int padding)
{
    if (m_elidePadding == padding || !Checks::padding(this, "setElidePadding", padding))
        return;
    m_elidePadding = padding;
    m_shownText.isMade = false;
    update();
}

void WPushButton::setFocusRectColorSet(const QString &name)
{
    if (m_focusRectColorSet == name)
        return;
    m_focusRectColorSet = name;
    updateColors();
}

void WPushButton::setLongPressEnabled(bool enabled)
{
    m_longPressEnabled = enabled;
    if (!enabled && m_longPressTimer)
        m_longPressTimer->stop();
}

void WPushButton::setBadgeVisible(bool visible)
{
    if (m_badgeVisible == visible)
        return;
    m_badgeVisible = visible;
    m_shownText.isMade = false;
    updateGeometry();
    update();
    announceNews();
}

void WPushButton::announceNews()
{
    if (!QAccessible::isActive())
        return; // Qt would make an interface for it
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

QSize WPushButton::sizeHint() const
{
    const QString shown = ControlText::beginning(text());
    QSize hint = ControlText::isLong(text()) ? hintFor(fontMetrics().size(Qt::TextShowMnemonic, shown))
                                             : QPushButton::sizeHint();
    if (m_badgeVisible && !text().isEmpty()) {
        const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, shown).width();
        hint.setWidth(std::max(hint.width(), textWidth + iconRoom() + 2 * (badgeSize + badgeGap)));
    }
    return hint;
}

QSize WPushButton::hintFor(const QSize &contents) const
{
    ensurePolished();
    QStyleOptionButton option;
    initStyleOption(&option);
    QSize size = contents;
    if (menu())
        size.rwidth() += style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, this);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, size, this);
}

void WPushButton::onThemeChanged()
{
    const QPointer<WPushButton> alive(this);
    Themed::onThemeChanged();
    if (alive)
        updateColors();
}

QString WPushButton::plainText() const
{
    return ControlText::withoutMnemonics(text());
}

bool WPushButton::showsOnlyIcon() const
{
    return text().isEmpty() && !icon().isNull();
}

int WPushButton::iconRoom() const
{
    constexpr int gap = 4; // of QPushButton
    return icon().isNull() ? 0 : iconSize().width() + gap;
}

// The width for a centred text that stays beside the badge; -1 where it stays below.
int WPushButton::badgeRoom() const
{
    if (!m_badgeVisible || text().isEmpty())
        return -1;
    const QFontMetrics metrics = fontMetrics();
    const int baseline = (height() - metrics.height()) / 2 + metrics.ascent();
    if (baseline + metrics.tightBoundingRect(ControlText::beginning(plainText())).top() >= badgeSize)
        return -1;
    return std::max(0, width() - iconRoom() - 2 * (badgeSize + badgeGap));
}

const QString &WPushButton::shownText() const
{
    const QString source = text();
    const int iconWidth = iconRoom();
    if (m_shownText.isMade && m_shownText.size == size() && m_shownText.iconWidth == iconWidth
        && m_shownText.source == source)
        return m_shownText.text;

    const QString beginning = ControlText::beginning(source);
    m_shownText = {source, beginning, size(), iconWidth, true};
    const bool elides = m_elideMode != Qt::ElideNone;
    int room = elides ? std::max(0, width() - m_elidePadding) : -1;
    const int besideBadge = badgeRoom();
    if (besideBadge >= 0)
        room = elides ? std::min(room, besideBadge) : besideBadge;
    if (room >= 0)
        m_shownText.text =
            fontMetrics().elidedText(beginning, elides ? m_elideMode : Qt::ElideRight, room, Qt::TextShowMnemonic);
    return m_shownText.text;
}

QString WPushButton::elidedFullText() const
{
    return shownText() == text() ? QString() : plainText();
}

void WPushButton::initStyleOption(QStyleOptionButton *option) const
{
    QPushButton::initStyleOption(option);
    if (m_elideMode != Qt::ElideNone || m_badgeVisible || ControlText::isLong(option->text))
        option->text = shownText();
}

void WPushButton::updateColors()
{
    m_colorsAreRead = false;
    update();
}

WColorSet WPushButton::colorSet(const QString &name) const
{
    return WThemeUtils::getColorSet(name.toStdString(), WThemeUtils::getThemeTypeOfWidget(this));
}

WColorSet WPushButton::textColorSet() const
{
    const ThemeSupport *support = ThemeSupport::of(this);
    return support ? colorSet(support->colorSetName(WThemeUtils::ColorSetTypeText)) : WColorSet();
}

void WPushButton::readColors() const
{
    if (m_colorsAreRead)
        return;
    m_colorsAreRead = true;
    m_badgeColor = colorSet(QStringLiteral("badge-background")).normal();
    // The frame must be seen in every theme; a palette knows none.
    const std::string own = m_focusRectColorSet.toStdString();
    const std::string name = own.empty() ? "outline-focus" : own;
    const auto type = WThemeUtils::getThemeTypeOfWidget(this);
    const bool isKnown = !own.empty() || WThemeUtils::getWColorSetsByThemeType(type).count(name) > 0;
    m_focusColor = isKnown ? WThemeUtils::getColorSet(name, type).focused() : QColor();
    const WColorSets &sets = WThemeUtils::getWColorSetsByThemeType(type);
    const auto page = sets.find("background-primary");
    m_pageColor = page == sets.end() ? QColor() : page->second.normal();
}

QRect WPushButton::badgeRect() const
{
    return QRect(isRightToLeft() ? 0 : width() - badgeSize, 0, badgeSize, badgeSize);
}

QColor WPushButton::focusColor() const
{
    readColors();
    return m_focusColor;
}

void WPushButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    if (m_badgeVisible)
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QStyleOptionButton option;
    initStyleOption(&option);

    // Styles draw a frame of their own upon the button when told how the focus came.
    const QStyle::State state = option.state;
    option.state &= ~QStyle::State_KeyboardFocusChange;
    paintButton(&painter, option);
    option.state = state;

    paintContents(&painter, option);
    if ((state & shownFocus) == shownFocus)
        paintFocus(&painter, option);
    if (m_badgeVisible)
        paintBadge(&painter, option);
}

void WPushButton::paintButton(QStylePainter *painter, const QStyleOptionButton &option)
{
    painter->drawControl(QStyle::CE_PushButton, option);
}

void WPushButton::paintContents(QStylePainter *, const QStyleOptionButton &) { }

void WPushButton::paintFocus(QStylePainter *painter, const QStyleOptionButton &option)
{
    QStyleOptionFocusRect frame;
    frame.QStyleOption::operator=(option);
    if (m_customFocusRect.isValid())
        frame.rect = m_customFocusRect;
    frame.backgroundColor = option.palette.color(QPalette::Window);
    readColors();
    if (m_focusColor.isValid()) {
        frame.palette.setColor(QPalette::Highlight, m_focusColor);
        frame.palette.setColor(QPalette::WindowText, m_focusColor);
    }
    // Only the frame, along the corners of the button: some styles tint all that they surround.
    constexpr int width = 2;
    const double radius = property("focusBorderRadius").toDouble();
    QPainterPath ring;
    ring.addRoundedRect(frame.rect, radius, radius);
    ring.addRoundedRect(frame.rect.adjusted(width, width, -width, -width), std::max(0.0, radius - width),
                        std::max(0.0, radius - width));
    painter->save();
    painter->setClipPath(ring, Qt::IntersectClip);
    painter->drawPrimitive(QStyle::PE_FrameFocusRect, frame);
    painter->restore();
    // Styles draw it faint, and the button may have the color of the frame: a line of the page's color is within it.
    DrawUtils::drawFocusRect(painter, frame.rect, m_focusColor, radius);
    DrawUtils::drawFocusRect(painter, QRectF(frame.rect).adjusted(width, width, -width, -width), m_pageColor,
                             std::max(0.0, radius - width), 1);
}

void WPushButton::paintBadge(QStylePainter *painter, const QStyleOptionButton &)
{
    readColors();
    if (!m_badgeColor.isValid())
        return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_badgeColor);
    painter->drawEllipse(badgeRect());
}

bool WPushButton::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::DynamicPropertyChange:
        if (static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == "customFocusRect")
            followCustomFocusRect();
        break;
    case QEvent::ToolTip:
        if (toolTip().isEmpty() || ControlText::isLong(toolTip())) {
            const QString full = toolTip().isEmpty() ? elidedFullText() : toolTip();
            if (full.isEmpty())
                break;
            QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), ControlText::toolTip(full), this);
            return true;
        }
        break;
    default: break;
    }
    return Themed::event(event);
}

void WPushButton::followCustomFocusRect()
{
    m_customFocusRect = property("customFocusRect").toRect();
    setProperty("hasCustomRect", m_customFocusRect.isValid() ? QVariant(true) : QVariant());
    update();
}

void WPushButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        const QPointer<WPushButton> alive(this);
        Q_EMIT rightClick();
        if (!alive)
            return;
    }
    if (event->button() == Qt::LeftButton) {
        m_longPressDone = false;
        if (m_longPressEnabled) {
            if (!m_longPressTimer) {
                m_longPressTimer = new QTimer(this);
                m_longPressTimer->setSingleShot(true);
                connect(m_longPressTimer, &QTimer::timeout, this, &WPushButton::onLongPressTimeout);
            }
            m_longPressTimer->start(longPressTime);
        }
    }
    Themed::mousePressEvent(event);
}

void WPushButton::onLongPressTimeout()
{
    if (!isDown())
        return;
    m_longPressDone = true;
    setDown(false);
    Q_EMIT longPressed();
}

void WPushButton::mouseMoveEvent(QMouseEvent *event)
{
    // The mouse button is still held: moving over the button would put it down again.
    if (m_longPressDone && (event->buttons() & Qt::LeftButton))
        event->accept();
    else
        Themed::mouseMoveEvent(event);
}

void WPushButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m_longPressDone = false;
        if (m_longPressTimer)
            m_longPressTimer->stop();
    }
    Themed::mouseReleaseEvent(event);
}

bool WPushButton::takesReturn(const QKeyEvent *event) const
{
    return (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && !event->isAutoRepeat() && !autoDefault()
        && !isDefault();
}

void WPushButton::keyPressEvent(QKeyEvent *event)
{
    m_focusCameWithWindow = false;
    if (takesReturn(event)) {
        event->accept();
        if (menu())
            setDown(true); // QPushButton opens it for a button that is
        Q_EMIT pressed();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
        if (m_arrowKeysSuppressed) {
            event->accept();
            return;
        }
        break;
    default: break;
    }
    Themed::keyPressEvent(event);
}

void WPushButton::keyReleaseEvent(QKeyEvent *event)
{
    if (takesReturn(event)) {
        event->accept();
        // What closes at the press of the key leaves its release to the button behind it.
        if (!std::exchange(m_focusCameWithWindow, false))
            Q_EMIT clicked(false);
        return;
    }
    Themed::keyReleaseEvent(event);
}

void WPushButton::focusInEvent(QFocusEvent *event)
{
    const bool byTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    m_focusCameWithWindow = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    Themed::focusInEvent(event);
    if (byTab && m_toolTipOnKeyboardFocus) {
        const QPoint below(0, height());
        QCoreApplication::postEvent(this, new QHelpEvent(QEvent::ToolTip, below, mapToGlobal(below)));
    }
    Q_EMIT onFocusIn();
}

void WPushButton::focusOutEvent(QFocusEvent *event)
{
    Themed::focusOutEvent(event);
    Q_EMIT onFocusOut();
}

void WPushButton::enterEvent(QEvent *event)
{
    Themed::enterEvent(event);
    Q_EMIT mouseEntered();
}

void WPushButton::leaveEvent(QEvent *event)
{
    Themed::leaveEvent(event);
    Q_EMIT mouseExited();
}

void WPushButton::showEvent(QShowEvent *event)
{
    Themed::showEvent(event);
#ifndef QT_NO_DEBUG
    warnIfUnnamed();
#endif
}

void WPushButton::hideEvent(QHideEvent *event)
{
    if (m_longPressTimer)
        m_longPressTimer->stop();
    Themed::hideEvent(event);
}

void WPushButton::changeEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange: m_shownText.isMade = false; break;
    default: break;
    }
    Themed::changeEvent(event);
}

void WPushButton::warnIfUnnamed()
{
    if (m_nameChecked)
        return;
    m_nameChecked = true;
    if (showsOnlyIcon() && accessibleName().isEmpty() && toolTip().isEmpty())
        qWarning() << "WPushButton - A button with only an icon needs an accessible name:" << this;
}
