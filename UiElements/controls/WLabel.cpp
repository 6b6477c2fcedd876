#include <UiElements/controls/WLabel.h>

#include "Checks_p.h"
#include "ControlText_p.h"

#include <UiElements/emoji/EmojiConverter.h>
#include <UiElements/emoji/EmojiData.h>
#include <UiElements/icons/DrawUtils.h>
#include <UiElements/keyboard/WShortcut.h>
#include <UiElements/theme/WThemeUtils.h>

#include <QAccessibleWidget>
#include <QClipboard>
#include <QDebug>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QRegularExpression>
#include <QStyleOption>
#include <QTextDocument>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace {

constexpr QChar Ellipsis(0x2026);

const auto LinkStyle = QStringLiteral("<style type = \"text/css\">a:link{text-decoration: underline; color:%1;} "
                                      "a:visited{color:%2;} a:hover{color:%3;}</style>%4");

// Most rich texts name nothing outside of themselves, and need not be parsed twice.
bool mayNameFiles(const QString &text)
{
    static const QLatin1String words[] = {QLatin1String("img"),  QLatin1String("image"),  QLatin1String("url"),
                                          QLatin1String("link"), QLatin1String("import"), QLatin1String("background"),
                                          QLatin1String("\\"),   QLatin1String("![")};
    return std::any_of(std::begin(words), std::end(words),
                       [&text](QLatin1String word) { return text.contains(word, Qt::CaseInsensitive); });
}

std::shared_ptr<const EmojiPicker::EmojiData> &emojiCatalogue()
{
    static std::shared_ptr<const EmojiPicker::EmojiData> catalogue;
    return catalogue;
}

QString colorName(const QColor &color, const QColor &otherwise)
{
    return (color.isValid() ? color : otherwise).name();
}

// The set where there is one; sets that a theme lacks are not worth a message here.
WColorSet setOf(const char *name, const QWidget *widget)
{
    const WColorSets &sets = WThemeUtils::getWColorSetsByThemeType(WThemeUtils::getThemeTypeOfWidget(widget));
    const auto it = sets.find(name);
    return it == sets.end() ? WColorSet() : it->second;
}

} // namespace

// ---- accessibility

class LabelAccessible : public QAccessibleWidget
{
public:
    explicit LabelAccessible(WLabel *label)
        : QAccessibleWidget(label, QAccessible::StaticText)
    {
    }

    static QAccessibleInterface *create(const QString &, QObject *object)
    {
        auto *label = qobject_cast<WLabel *>(object);
        return label ? new LabelAccessible(label) : nullptr;
    }

    QAccessible::Role role() const override
    {
        if (label()->accessibleRole() != QAccessible::NoRole)
            return label()->accessibleRole();
        return label()->isClickable() ? QAccessible::Button : QAccessible::StaticText;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = !label()->isClickable();
        state.selectableText = label()->isSelectable();
        return state;
    }

    QString text(QAccessible::Text kind) const override
    {
        switch (int(kind)) {
        case QAccessible::Name:
            return label()->accessibleName().isEmpty() ? label()->spokenText() : label()->accessibleName();
        case QAccessible::Accelerator:
            if (const WShortcut *shortcut = WShortcut::attachedTo(label()))
                return shortcut->key().toString(QKeySequence::NativeText);
            break;
        case ThemeSupport::ElementUniqueIdText: return label()->elementUniqueId();
        default: break;
        }
        return QAccessibleWidget::text(kind);
    }

    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>> relations(QAccessible::Relation match) const override
    {
        auto all = QAccessibleWidget::relations(match);
        if ((match & QAccessible::Labelled) && label()->buddy())
            all.append({QAccessible::queryAccessibleInterface(label()->buddy()), QAccessible::Labelled});
        return all;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (label()->isEnabled() && label()->isClickable())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString &name) override
    {
        if (name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (label()->isEnabled() && label()->isClickable())
            label()->emitClicked();
    }

private:
    WLabel *label() const { return static_cast<WLabel *>(widget()); }
};

// ---- lines of plain text

/// A plain text that is broken into lines by the wrap mode.
class WLabel::Lines
{
public:
    Lines(const WLabel &label, int width)
        : m_layout(QString(label.QLabel::text()).replace(QLatin1Char('\n'), QChar::LineSeparator), label.font())
    {
        QTextOption option(
            QStyle::visualAlignment(label.layoutDirection(), label.alignment() & Qt::AlignHorizontal_Mask));
        option.setTextDirection(label.QLabel::text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        option.setWrapMode(label.wordWrap() ? label.m_wrapMode : QTextOption::ManualWrap);
        m_layout.setTextOption(option);
        m_layout.setCacheEnabled(true);
        m_layout.beginLayout();
        qreal y = 0;
        for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
            line.setLineWidth(width);
            line.setPosition(QPointF(0, y));
            y += line.height();
            m_width = std::max(m_width, line.naturalTextWidth());
        }
        m_layout.endLayout();
        m_height = y;
    }

    QSize size() const { return QSize(int(std::ceil(m_width)), int(std::ceil(m_height))); }

    void draw(QPainter *painter, const QRect &rect, Qt::Alignment alignment, Qt::TextElideMode elideMode) const
    {
        qreal top = rect.top();
        if (m_height < rect.height() && !(alignment & Qt::AlignTop))
            top += (rect.height() - m_height) / (alignment & Qt::AlignBottom ? 1 : 2);
        const QPointF origin(rect.left(), std::floor(top));
        for (int i = 0; i < m_layout.lineCount(); ++i) {
            const QTextLine line = m_layout.lineAt(i);
            const bool isLast = i + 1 < m_layout.lineCount() && elideMode != Qt::ElideNone
                && origin.y() + m_layout.lineAt(i + 1).y() + line.height() > rect.bottom() + 1;
            if (!isLast) {
                line.draw(painter, origin);
                continue;
            }
            const QString rest = m_layout.text().mid(line.textStart()).replace(QChar::LineSeparator, QLatin1Char(' '));
            const QRectF room(QPointF(rect.left(), origin.y() + line.y()), QSizeF(rect.width(), line.height()));
            painter->drawText(room, int(m_layout.textOption().alignment()) | Qt::TextSingleLine,
                              painter->fontMetrics().elidedText(rest, elideMode, rect.width()));
            return;
        }
    }

private:
    QTextLayout m_layout;
    qreal m_width = 0;
    qreal m_height = 0;
};

// ---- construction

WLabel::WLabel(QWidget *parent)
    : Themed(parent)
{
    init(QAccessible::NoRole);
}

WLabel::WLabel(QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags)
    : Themed(parent, flags)
{
    init(role);
}

WLabel::WLabel(const QString &text, QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags)
    : Themed(parent, flags)
{
    init(role);
    WLabel::setText(text);
}

WLabel::~WLabel() = default;

void WLabel::init(QAccessible::Role role)
{
    // Before anything asks for the interface of this label: it is made once.
    QAccessible::installFactory(&LabelAccessible::create);
    initTheme();
    if (role != QAccessible::NoRole)
        setAccessibleRole(role);
    WLabel::onLayoutDirectionChanged();
}

// ---- properties

void WLabel::setElideMode(Qt::TextElideMode mode)
{
    if (mode < Qt::ElideLeft || mode > Qt::ElideNone) {
        qWarning() << "WLabel::setElideMode - Invalid elide mode:" << int(mode);
        return;
    }
    if (m_elideMode == mode)
        return;
    m_elideMode = mode;
    invalidateText();
}

void WLabel::setElidePadding(int pixels)
{
    if (m_elidePadding == pixels || !Checks::padding(this, "setElidePadding", pixels))
        return;
    m_elidePadding = pixels;
    invalidateText();
}

Qt::Alignment WLabel::alignment() const
{
    return QLabel::alignment() == m_placedAlignment ? m_alignment : QLabel::alignment();
}

void WLabel::setAlignment(Qt::Alignment alignment)
{
    if (this->alignment() == alignment)
        return;
    m_alignment = m_placedAlignment = alignment;
    QLabel::setAlignment(alignment);
    invalidateText();
}

QString WLabel::text() const
{
    return QLabel::text() == m_shown ? m_text : QLabel::text();
}

void WLabel::setText(const QString &text)
{
    if (m_text == text && QLabel::text() == m_shown && QLabel::pixmap(Qt::ReturnByValue).isNull())
        return;
    if (text.isEmpty() && QLabel::text().isEmpty())
        clear(); // of a picture, which QLabel keeps for an empty text
    m_text = text;
    m_pixmap = QPixmap();
    showText();
}

void WLabel::setTextFormat(Qt::TextFormat format)
{
    if (textFormat() == format)
        return;
    QLabel::setTextFormat(format);
    if (!m_text.isEmpty())
        showText();
}

void WLabel::setTextInteractionFlags(Qt::TextInteractionFlags flags)
{
    const bool wasSelectable = isSelectable();
    QLabel::setTextInteractionFlags(flags);
    m_gaveTabFocus = false; // QLabel chooses a policy for the flags
    updateFocusPolicy();
    if (isSelectable() != wasSelectable)
        invalidateText();
    else if (isSelectable())
        update();
}

void WLabel::updateWrapMode(QTextOption::WrapMode mode)
{
    if (mode < QTextOption::NoWrap || mode > QTextOption::WrapAtWordBoundaryOrAnywhere) {
        qWarning() << "WLabel::updateWrapMode - Invalid wrap mode:" << int(mode);
        return;
    }
    if (m_wrapMode == mode)
        return;
    m_wrapMode = mode;
    invalidateText();
}

void WLabel::setPixmap(const QPixmap &pixmap)
{
    m_text.clear();
    m_shown.clear();
    m_pixmap = pixmap;
    QPixmap shown = pixmap;
    if (m_pixmapColor.isValid() && !shown.isNull()) {
        QPainter painter(&shown);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(shown.rect(), m_pixmapColor);
    }
    m_tintedKey = shown.cacheKey();
    QLabel::setPixmap(shown);
}

void WLabel::setPixmapColor(const QColor &color)
{
    if (m_pixmapColor == color)
        return;
    m_pixmapColor = color;
    const QPixmap shown = QLabel::pixmap(Qt::ReturnByValue);
    if (!shown.isNull())
        setPixmap(shown.cacheKey() == m_tintedKey ? QPixmap(m_pixmap) : shown);
}

void WLabel::setOutsideImagesAllowed(bool allowed)
{
    if (m_outsideImagesAllowed == allowed)
        return;
    m_outsideImagesAllowed = allowed;
    if (!m_text.isEmpty())
        showText();
}

// ---- text

void WLabel::showText()
{
    m_shown = displayText();
    m_isCut = ControlText::isLong(m_text);
    m_elided.width = -1;
    QLabel::setText(m_shown);
    placeText();
    colorLinks();
}

// A text that is found to be markup goes to QLabel as it is; its document takes colors from a sheet of its own.
bool WLabel::hasBareLinks() const
{
    return textFormat() == Qt::AutoText && !isPlain() && m_shown.contains(QLatin1String("<a"), Qt::CaseInsensitive);
}

void WLabel::colorLinks()
{
    auto *document = hasBareLinks() ? findChild<QTextDocument *>() : nullptr;
    if (!document)
        return;
    m_linkColors = setOf("button-hyperlink-text", this);
    document->setDefaultStyleSheet(
        QStringLiteral("a{color:%1}").arg(colorName(m_linkColors.normal(), palette().color(QPalette::Link))));
}

QString WLabel::displayText() const
{
    const Qt::TextFormat format = textFormat();
    const bool isMarkup = format != Qt::PlainText && (format != Qt::AutoText || Qt::mightBeRichText(m_text));
    const QString shown = ControlText::beginning(m_text, isMarkup);
    if (!isMarkup)
        return shown;
    const bool hasLinks = format == Qt::RichText && shown.contains(QLatin1String("<a"));
    return safeText(hasLinks ? withLinkColors(shown) : shown);
}

QString WLabel::withLinkColors(const QString &text) const
{
    m_linkColors = setOf("button-hyperlink-text", this);
    const QColor otherwise = palette().color(QPalette::Link);
    return LinkStyle.arg(colorName(m_linkColors.normal(), otherwise), colorName(m_linkColors.focused(), otherwise),
                         colorName(m_linkColors.hovered(), otherwise), text);
}

QString WLabel::safeText(const QString &text) const
{
    if (m_outsideImagesAllowed || !mayNameFiles(text))
        return text;
    ControlText::GuardedDocument document;
    document.setMarkup(text, textFormat());
    if (!document.removeOutside())
        return text;
    if (textFormat() == Qt::MarkdownText)
        return document.toMarkdown();
    // Qt writes the addresses of backgrounds that it could not read, too. In what it writes, a quote in a text or in
    // another attribute is escaped.
    QString html = document.toHtml();
    // It writes its own font, too, and the text is to follow that of the label.
    static const QRegularExpression body(QStringLiteral("<body style=\"[^\"]*\">"));
    html.replace(body, QStringLiteral("<body>"));
    static const QRegularExpression background(QStringLiteral(" background=\"([^\"]*)\""));
    for (auto match = background.match(html); match.hasMatch();
         match = background.match(html, match.capturedStart() + 1)) {
        if (!ControlText::isInResources(match.captured(1)))
            html.replace(match.capturedStart(), match.capturedLength(), QLatin1Char(' '));
    }
    return html;
}

void WLabel::setEmojiCatalogue(const std::shared_ptr<const EmojiPicker::EmojiData> &catalogue)
{
    emojiCatalogue() = catalogue;
}

QString WLabel::spokenText() const
{
    const QString text = QLabel::text();
    return spokenText(!isPlain() ? markupAsText(text) : buddy() ? ControlText::withoutMnemonics(text) : text);
}

QString WLabel::spokenText(const QString &plainText)
{
    return EmojiPicker::EmojiConverter::spokenText(plainText, emojiCatalogue());
}

QString WLabel::markupAsText(const QString &text) const
{
    ControlText::GuardedDocument document;
    document.setMarkup(text, textFormat());
    return document.plainText();
}

void WLabel::copyText()
{
    QGuiApplication::clipboard()->setText(isPlain() ? text() : markupAsText(text()));
}

void WLabel::selectAll()
{
    setSelection(0, 0); // brings the document up to date
    const auto *document = findChild<QTextDocument *>();
    if (document)
        setSelection(0, document->characterCount() - 1);
}

bool WLabel::isSelectable() const
{
    return textInteractionFlags() & (Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

bool WLabel::isPlain() const
{
    const Qt::TextFormat format = textFormat();
    return format == Qt::PlainText || (format == Qt::AutoText && !Qt::mightBeRichText(QLabel::text()));
}

void WLabel::invalidateText()
{
    m_elided.width = -1;
    placeText();
    updateGeometry();
    update();
}

// ---- theme

void WLabel::onThemeChanged()
{
    const QPointer<WLabel> alive(this);
    Themed::onThemeChanged();
    if (!alive || m_text.isEmpty())
        return;
    const bool isBare = hasBareLinks();
    if (isBare)
        QLabel::clear(); // so that it lays out the same text once more
    if (isBare || textFormat() == Qt::RichText)
        showText();
}

void WLabel::onLayoutDirectionChanged()
{
    Themed::onLayoutDirectionChanged();
    m_elided.width = -1;
    update();
}

QColor WLabel::textColor() const
{
    const QString name = const_cast<WLabel *>(this)->theme().colorSetName(WThemeUtils::ColorSetTypeText);
    if (!name.isEmpty()) {
        const QColor color = DrawUtils::colorForState(setOf(name.toUtf8().constData(), this), textState());
        if (color.isValid())
            return color;
    }
    return palette().color(foregroundRole());
}

QStyle::State WLabel::textState() const
{
    QStyleOption option;
    option.initFrom(this);
    return option.state;
}

// ---- layout

bool WLabel::elides() const
{
    // While it can be selected in, a text stands as it is.
    return m_elideMode != Qt::ElideNone && isPlain() && !(isSelectable() && (hasFocus() || hasSelectedText()));
}

bool WLabel::drawsItself() const
{
    if (!isPlain() || QLabel::text().isEmpty())
        return false;
    if (isSelectable())
        return elides() && isElided();
    if (elides() || (wordWrap() && m_wrapMode != QTextOption::WordWrap))
        return true;
    // QLabel takes left and right from the text's own direction.
    const bool isAtSide = !(alignment() & (Qt::AlignHCenter | Qt::AlignJustify | Qt::AlignAbsolute));
    return isAtSide && (layoutDirection() == Qt::RightToLeft) != QLabel::text().isRightToLeft();
}

// QLabel takes left and right from the direction of the text.
Qt::Alignment WLabel::placedAlignment() const
{
    const Qt::Alignment wanted = alignment();
    const bool isLaidOutByQt = isSelectable() || !isPlain();
    if (!isLaidOutByQt || wanted & (Qt::AlignHCenter | Qt::AlignJustify | Qt::AlignAbsolute)
        || (layoutDirection() == Qt::RightToLeft) == QLabel::text().isRightToLeft())
        return wanted;
    return QStyle::visualAlignment(layoutDirection(), wanted) | Qt::AlignAbsolute;
}

void WLabel::placeText()
{
    const Qt::Alignment wanted = alignment();
    const Qt::Alignment placed = placedAlignment();
    if (placed == QLabel::alignment())
        return;
    m_alignment = wanted;
    m_placedAlignment = placed;
    QLabel::setAlignment(placed);
}

QRect WLabel::textRect() const
{
    QRect rect = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    int room = indent();
    if (room < 0 && frameWidth() > 0)
        room = fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2 - margin();
    if (room > 0) {
        const Qt::Alignment at = QStyle::visualAlignment(layoutDirection(), alignment());
        rect.adjust(at & Qt::AlignLeft ? room : 0, at & Qt::AlignTop ? room : 0, at & Qt::AlignRight ? -room : 0,
                    at & Qt::AlignBottom ? -room : 0);
    }
    return rect;
}

QString WLabel::elidedText() const
{
    const int width = std::max(0, textRect().width() - m_elidePadding);
    if (m_elided.width == width)
        return m_elided.text;
    const QFontMetrics metrics = fontMetrics();
    const int flags = buddy() ? Qt::TextShowMnemonic : 0;
    QStringList lines = QLabel::text().split(QLatin1Char('\n'));
    for (QString &line : lines) {
        // No letter is narrower than half a pixel: the rest of a very long line need not be measured.
        const int enough = 2 * width + 64;
        if (m_elideMode == Qt::ElideRight && line.size() > enough)
            line.truncate(enough);
        line = metrics.elidedText(line, m_elideMode, width, flags);
    }
    m_elided.text = lines.join(QLatin1Char('\n'));
    m_elided.width = width;
    return m_elided.text;
}

bool WLabel::isElided() const
{
    if (QLabel::text() == m_shown && m_isCut)
        return true;
    if (!elides() || QLabel::text().isEmpty())
        return false;
    const QRect room = textRect();
    return wordWrap() ? Lines(*this, room.width()).size().height() > room.height() : elidedText() != QLabel::text();
}

QSize WLabel::sizeHint() const
{
    QSize hint = QLabel::sizeHint();
    if (m_elideMode != Qt::ElideNone && !QLabel::text().isEmpty() && isPlain())
        hint.rwidth() += m_elidePadding;
    return hint;
}

QSize WLabel::minimumSizeHint() const
{
    QSize hint = QLabel::minimumSizeHint();
    if (m_elideMode == Qt::ElideNone || wordWrap() || QLabel::text().isEmpty() || !isPlain())
        return hint;
    const int beside = width() - textRect().width();
    hint.setWidth(
        std::min(hint.width() + m_elidePadding, fontMetrics().horizontalAdvance(Ellipsis) + m_elidePadding + beside));
    return hint;
}

int WLabel::heightForWidth(int width) const
{
    if (!wordWrap() || m_wrapMode == QTextOption::WordWrap || !isPlain() || isSelectable())
        return QLabel::heightForWidth(width);
    const QRect room = textRect();
    return Lines(*this, std::max(0, width - (this->width() - room.width()))).size().height()
        + (height() - room.height());
}

// ---- painting

void WLabel::paintEvent(QPaintEvent *event)
{
    if (!drawsItself()) {
        QLabel::paintEvent(event);
    } else {
        QPainter painter(this);
        drawFrame(&painter);
        drawLines(&painter, textRect());
    }
    if (showsFocus()) {
        QPainter painter(this);
        drawFocus(&painter);
    }
}

void WLabel::drawLines(QPainter *painter, const QRect &rect) const
{
    painter->setPen(textColor());
    if (wordWrap()) {
        Lines(*this, rect.width()).draw(painter, rect, alignment(), elides() ? m_elideMode : Qt::ElideNone);
        return;
    }
    QPalette colors = palette();
    colors.setColor(foregroundRole(), textColor());
    const QString &text = elides() ? elidedText() : QLabel::text();
    const int flags = int(QStyle::visualAlignment(layoutDirection(), alignment()))
        | (text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight)
        | (buddy() ? Qt::TextShowMnemonic : 0);
    // Qt mirrors the alignment of right-to-left text once more.
    style()->drawItemText(painter, rect, flags | Qt::AlignAbsolute, colors, isEnabled(), text, foregroundRole());
}

bool WLabel::showsFocus() const
{
    // Where a text is only selected in, a click needs no frame.
    const bool byKeyboard =
        textInteractionFlags() & Qt::TextSelectableByKeyboard && window()->testAttribute(Qt::WA_KeyboardFocusChange);
    return hasFocus() && (byKeyboard || isClickable());
}

void WLabel::drawFocus(QPainter *painter)
{
    const QColor color = setOf("outline-focus", this).normal();
    const QVariant radius = property("focusBorderRadius");
    DrawUtils::drawFocusRect(painter, rect(), color.isValid() ? color : palette().color(QPalette::Highlight),
                             radius.isValid() ? radius.toDouble() : 3);
}

// ---- events

bool WLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isElided()) {
        showToolTip(static_cast<QHelpEvent *>(event)->globalPos());
        return true;
    }
    return Themed::event(event);
}

void WLabel::showToolTip(const QPoint &at)
{
    QToolTip::showText(at, ControlText::toolTip(isPlain() ? text() : spokenText()), this);
}

void WLabel::changeEvent(QEvent *event)
{
    Themed::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange: invalidateText(); break;
    default: break;
    }
}

void WLabel::showEvent(QShowEvent *event)
{
    Themed::showEvent(event);
    if (!event->spontaneous())
        Q_EMIT onVisibilityChanged(true);
}

void WLabel::hideEvent(QHideEvent *event)
{
    Themed::hideEvent(event);
    if (!event->spontaneous())
        Q_EMIT onVisibilityChanged(false);
}

void WLabel::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<WLabel> alive(this);
    if (textInteractionFlags() != Qt::NoTextInteraction && !hasSelectedText() && rect().contains(event->pos())) {
        if (event->button() == Qt::LeftButton)
            emitClicked();
        else if (event->button() == Qt::RightButton && !text().isEmpty())
            selectAll();
    }
    if (alive)
        Themed::mouseReleaseEvent(event);
}

void WLabel::keyPressEvent(QKeyEvent *event)
{
    if (textInteractionFlags() == Qt::NoTextInteraction) {
        Themed::keyPressEvent(event);
        return;
    }
    const bool isPressKey =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    const bool presses = isPressKey && !(event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier));
    const bool copies = event->matches(QKeySequence::Copy);
    const bool cancels = event->matches(QKeySequence::Cancel) && hasSelectedText();
    // A button of the dialog, say, shall not answer the same key.
    const bool consumes = (presses && isClickable()) || copies || cancels;

    const QPointer<WLabel> alive(this);
    if (presses && !event->isAutoRepeat())
        emitClicked();
    if (alive && copies)
        selectAll();
    if (alive && cancels)
        setSelection(0, 0);
    if (alive)
        Themed::keyPressEvent(event);
    // After Qt, which would copy what is shown, and that may be less.
    if (alive && copies && !m_text.isEmpty())
        copyText();
    if (consumes)
        event->accept();
}

void WLabel::emitClicked()
{
    Q_EMIT clicked();
}

bool WLabel::hasClickReceivers() const
{
    static const QMetaMethod signal = QMetaMethod::fromSignal(&WLabel::clicked);
    return isSignalConnected(signal);
}

bool WLabel::isClickable() const
{
    return textInteractionFlags() != Qt::NoTextInteraction && hasClickReceivers();
}

void WLabel::connectNotify(const QMetaMethod &signal)
{
    if (signal.name() == "clicked")
        updateFocusPolicy();
}

void WLabel::disconnectNotify(const QMetaMethod &signal)
{
    // Later: Qt may hold the lock of the connections here, and to ask for one needs it.
    if (!signal.isValid() || signal.name() == "clicked")
        QMetaObject::invokeMethod(
            this, [this] { updateFocusPolicy(); }, Qt::QueuedConnection);
}

void WLabel::updateFocusPolicy()
{
    const bool isWanted = isClickable() || textInteractionFlags() & Qt::TextSelectableByKeyboard;
    if (isWanted && !(focusPolicy() & Qt::TabFocus)) {
        m_gaveTabFocus = true;
        setFocusPolicy(Qt::FocusPolicy(focusPolicy() | Qt::TabFocus));
    } else if (!isWanted && m_gaveTabFocus) {
        m_gaveTabFocus = false;
        setFocusPolicy(Qt::FocusPolicy(focusPolicy() & ~Qt::TabFocus));
    }
}
