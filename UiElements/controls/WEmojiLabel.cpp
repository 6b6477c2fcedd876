#include <UiElements/controls/WEmojiLabel.h>

#include "Checks_p.h"

#include <UiElements/emoji/EmojiConverter.h>
#include <UiElements/emoji/EmojiResources.h>

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QFontMetrics>
#include <QMetaMethod>
#include <QPainter>
#include <QPointer>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <vector>

using EmojiPicker::EmojiConverter;

namespace {

constexpr QChar Ellipsis(0x2026);
constexpr QStringView ImageTag = u"<img src=\"svgFile=";

bool isNewline(QChar c)
{
    switch (c.unicode()) {
    case u'\n':
    case u'\v':
    case u'\f':
    case u'\r':
    case 0x85:
    case 0x2028:
    case 0x2029: return true;
    default: return false;
    }
}

QString getNewlineCharacters(const QString &text)
{
    QString found;
    for (const QChar c : text) {
        if (isNewline(c) && !found.contains(c))
            found += c;
    }
    return found;
}

// QLabel breaks lines at "\n" only.
QString withPlainNewlines(QString text)
{
    const QString found = getNewlineCharacters(text);
    if (found.isEmpty() || found == QLatin1String("\n"))
        return text;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar &c : text) {
        if (isNewline(c))
            c = QLatin1Char('\n');
    }
    return text;
}

QStringList splitStringAtNewlines(const QString &text)
{
    return text.split(QLatin1Char('\n'));
}

// A line in parts: an emoji with an image, or text between such.
struct Part
{
    QString text;
    bool isImage;
};

std::vector<Part> partsOf(const QString &line)
{
    EmojiConverter converter(1, EmojiConverter::SvgFileTag);
    const QString rich = converter.toRichText(line);
    std::vector<Part> parts;
    int from = 0;
    const auto add = [&](int to, bool isImage) {
        if (to > from)
            parts.push_back({EmojiConverter::toPlainText(rich.mid(from, to - from)), isImage});
        from = to;
    };
    const QString tag = ImageTag.toString();
    for (int at = rich.indexOf(tag); at >= 0; at = rich.indexOf(tag, from)) {
        add(at, false);
        add(rich.indexOf(QLatin1Char('>'), at) + 1, true);
    }
    add(rich.size(), false);
    return parts;
}

// A line of nothing but images would be too low for them. What has no width, and belongs to the image where lines are
// broken, makes it as high as one of letters.
QString withLineHeight(QString rich)
{
    return rich.replace(QLatin1Char('>'), QStringLiteral(">\u200c")); // in what is escaped only images have one
}

int edgeOf(const QFontMetricsF &metrics)
{
    return int(std::round(metrics.height()));
}

// Takes as much from one end of a line as fits.
class Measure
{
public:
    explicit Measure(const QFont &font)
        : m_metrics(font)
        , m_edge(edgeOf(QFontMetricsF(font)))
    {
    }

    int ellipsis() const { return m_metrics.horizontalAdvance(Ellipsis); }
    int width(const Part &part) const { return part.isImage ? m_edge : m_metrics.horizontalAdvance(part.text); }
    int width(const std::vector<Part> &parts) const
    {
        int sum = 0;
        for (const Part &part : parts)
            sum += width(part);
        return sum;
    }

    QString head(const std::vector<Part> &parts, int room, int *used) const
    {
        QString taken;
        for (const Part &part : parts) {
            const int wide = width(part);
            if (wide > room - *used) {
                if (!part.isImage)
                    taken += letters(part.text, Qt::ElideRight, room, used);
                break;
            }
            *used += wide;
            taken += part.text;
        }
        return taken;
    }

    QString tail(const std::vector<Part> &parts, int room) const
    {
        QString taken;
        int used = 0;
        for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
            const int wide = width(*part);
            if (wide > room - used) {
                if (!part->isImage)
                    taken.prepend(letters(part->text, Qt::ElideLeft, room, &used));
                break;
            }
            used += wide;
            taken.prepend(part->text);
        }
        return taken;
    }

private:
    // Of a text that does not fit, what stands on one side of its ellipsis.
    QString letters(const QString &text, Qt::TextElideMode mode, int room, int *used) const
    {
        QString kept = m_metrics.elidedText(text, mode, std::min(room - *used + ellipsis(), width({text, false}) - 1));
        const int dots = kept.contains(Ellipsis) ? 1 : kept.size() < 3 ? kept.size() : 3;
        kept = mode == Qt::ElideRight ? kept.chopped(dots) : kept.mid(dots);
        *used += m_metrics.horizontalAdvance(kept);
        return kept;
    }

    const QFontMetrics m_metrics;
    const int m_edge;
};

/// Emoji in a document, as high as a line. Qt lets an image stand on the base line, by which a line with one becomes
/// higher; these reach as far down as the letters do.
class InlineEmoji : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    QSizeF intrinsicSize(QTextDocument *document, int, const QTextFormat &) override
    {
        const QFontMetricsF metrics(document->defaultFont());
        return QSizeF(edgeOf(metrics), metrics.ascent());
    }

    void drawObject(QPainter *painter, const QRectF &rect, QTextDocument *, int, const QTextFormat &format) override
    {
        const QString source = format.toImageFormat().name();
        const int from = source.indexOf(QLatin1String(".svg")) + 4;
        const QString emoji = source.mid(from, source.size() - from - int(qstrlen("unicode")));
        const qreal ratio = std::sqrt(std::abs(painter->deviceTransform().determinant()));
        const int edge = int(rect.width());
        const QImage image = EmojiPicker::EmojiResources::image(emoji, edge, ratio > 0 ? ratio : 1);
        if (isDimmed)
            painter->setOpacity(0.5);
        painter->drawImage(QRectF(rect.topLeft(), QSizeF(edge, edge)), image);
        if (isDimmed)
            painter->setOpacity(1);
    }

    bool isDimmed = false;
};

} // namespace

/// Never reads anything: its images are drawn by the label.
class WEmojiLabel::Document : public QTextDocument
{
public:
    Document()
    {
        setUndoRedoEnabled(false);
        setDocumentMargin(0);
        documentLayout()->registerHandler(QTextFormat::ImageObject, &m_images);
    }
    void setDimmed(bool dimmed) { m_images.isDimmed = dimmed; }

protected:
    QVariant loadResource(int, const QUrl &) override { return QVariant(); }

private:
    InlineEmoji m_images;
};

WEmojiLabel::WEmojiLabel(QWidget *parent)
    : WLabel(parent)
{
    init();
}

WEmojiLabel::WEmojiLabel(QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags)
    : WLabel(parent, role, flags)
{
    init();
}

WEmojiLabel::WEmojiLabel(const QString &text, QWidget *parent, QAccessible::Role role, Qt::WindowFlags flags)
    : WLabel(parent, role, flags)
{
    init();
    WEmojiLabel::setText(text);
}

WEmojiLabel::~WEmojiLabel() = default;

void WEmojiLabel::init()
{
    QLabel::setTextFormat(Qt::PlainText); // clazy:exclude=skipped-base-method
    connect(this, &WLabel::cssChanged, this, &WEmojiLabel::onCssChanged);
}

// ---- properties

void WEmojiLabel::setTextLeftPadding(int pixels)
{
    if (m_leftPadding != pixels && Checks::padding(this, "setTextLeftPadding", pixels)) {
        m_leftPadding = pixels;
        invalidateText();
    }
}

void WEmojiLabel::setTextRightPadding(int pixels)
{
    if (m_rightPadding != pixels && Checks::padding(this, "setTextRightPadding", pixels)) {
        m_rightPadding = pixels;
        invalidateText();
    }
}

void WEmojiLabel::setMirrorParentFocus(bool mirrors)
{
    if (m_mirrorsParentFocus == mirrors)
        return;
    m_mirrorsParentFocus = mirrors;
    if (m_mirrored)
        m_mirrored->removeEventFilter(this);
    m_mirrored = mirrors ? parentWidget() : nullptr;
    if (m_mirrored)
        m_mirrored->installEventFilter(this);
    invalidateText();
}

void WEmojiLabel::setTextFormat(Qt::TextFormat format)
{
    if (format != Qt::PlainText)
        qWarning("WEmojiLabel::setTextFormat - The text is always plain");
}

// The property "textFormat" knows the setter of QLabel only.
void WEmojiLabel::ensurePlain() const
{
    if (textFormat() != Qt::PlainText)
        const_cast<WEmojiLabel *>(this)->QLabel::setTextFormat(Qt::PlainText);
}

// ---- text

void WEmojiLabel::setText(const QString &_text)
{
    ensurePlain();
    WLabel::setText(_text);
}

QString WEmojiLabel::displayText() const
{
    return withPlainNewlines(WLabel::displayText());
}

void WEmojiLabel::onCssChanged()
{
    invalidateText();
}

void WEmojiLabel::onLayoutDirectionChanged()
{
    WLabel::onLayoutDirectionChanged();
    invalidateText();
}

void WEmojiLabel::invalidateText()
{
    // Qt lays out a selectable text, and knows no paddings.
    const bool needsIndent = isSelectable() && m_leftPadding + m_rightPadding > 0;
    if (needsIndent || m_hasOwnIndent) {
        const int leading = layoutDirection() == Qt::RightToLeft ? m_rightPadding : m_leftPadding;
        setIndent(needsIndent ? leading : -1);
        m_hasOwnIndent = needsIndent;
    }
    m_width = -1;
    m_naturalSize = QSize();
    m_html.clear();
    WLabel::invalidateText();
}

// Also for a text that was set through a QLabel pointer.
void WEmojiLabel::noticeText() const
{
    ensurePlain();
    const QString text = shownText();
    if (m_source == text)
        return;
    m_source = text;
    m_width = -1;
    m_naturalSize = QSize();
    m_hasNewline = text.contains(QLatin1Char('\n'));
    EmojiConverter converter(1, EmojiConverter::SvgFileTag);
    m_hasEmoji = !converter.toRichText(text).isSharedWith(text) && !converter.usedFiles().isEmpty();
}

bool WEmojiLabel::shouldDrawSvgEmojis() const
{
    if (isSelectable())
        return false;
    if (m_hasNewline && (alignment() & (Qt::AlignHCenter | Qt::AlignVCenter)))
        return false;
    if (m_mirrorsParentFocus && (alignment() & Qt::AlignHCenter))
        return false;
    return !m_source.isEmpty();
}

bool WEmojiLabel::showsImages() const
{
    noticeText();
    return m_hasEmoji && shouldDrawSvgEmojis();
}

QString WEmojiLabel::getElidedText() const
{
    if (!showsImages())
        return elides() && !wordWrap() ? elidedText() : shownText();
    updateText(WLabel::textRect().width());
    return m_elidedText;
}

bool WEmojiLabel::isElided() const
{
    if (!showsImages())
        return WLabel::isElided();
    updateText(WLabel::textRect().width());
    return m_elidedText != text() || (elides() && m_document->size().height() > textRect().height() + 1);
}

void WEmojiLabel::copyText()
{
    EmojiConverter(fontMetrics().height()).copyPlainText(text());
}

// ---- layout

QString WEmojiLabel::createIndentStyle() const
{
    if (m_leftPadding == 0 && m_rightPadding == 0)
        return QString();
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    return QStringLiteral("margin-left:%1px;margin-right:%2px;")
        .arg(isMirrored ? m_rightPadding : m_leftPadding)
        .arg(isMirrored ? m_leftPadding : m_rightPadding);
}

QString WEmojiLabel::createElidedLine(const QString &line, int width) const
{
    const Measure measure(font());
    // What is far outside need not be measured.
    const int enough = 2 * width + 64;
    const bool isCut = elideMode() == Qt::ElideRight && line.size() > enough;
    const std::vector<Part> parts = partsOf(isCut ? line.left(enough) : line);
    if (!isCut && measure.width(parts) <= width)
        return line;
    const int room = width - measure.ellipsis();
    if (room < 0)
        return QString();
    int used = 0;
    switch (elideMode()) {
    case Qt::ElideLeft: return Ellipsis + measure.tail(parts, room);
    case Qt::ElideMiddle: {
        const QString head = measure.head(parts, room / 2, &used);
        return head + Ellipsis + measure.tail(parts, room - used);
    }
    default: return measure.head(parts, room, &used) + Ellipsis;
    }
}

QStringList WEmojiLabel::createElidedLines(int width) const
{
    QStringList lines = splitStringAtNewlines(m_source);
    for (QString &line : lines)
        line = createElidedLine(line, width);
    return lines;
}

void WEmojiLabel::build(const QStringList &lines) const
{
    const QColor color = textColor();
    // Families may be called anything, and a name that ends the attribute would be markup.
    QString family = font().family();
    family.remove(QLatin1Char('"')).remove(QLatin1Char('\''));
    const QString colorName = color.alpha() == 255 ? color.name()
                                                   : QStringLiteral("rgba(%1,%2,%3,%4%)")
                                                         .arg(color.red())
                                                         .arg(color.green())
                                                         .arg(color.blue())
                                                         .arg(color.alphaF() * 100);
    const QString style = QStringLiteral("style=\"color:%1;font-family:'%2';%3\"")
                              .arg(colorName, family.toHtmlEscaped(), createIndentStyle());
    EmojiConverter converter(1, EmojiConverter::SvgFileTag);
    QString html = QStringLiteral("<div ") + style + QLatin1Char('>');
    for (int i = 0; i < lines.size(); ++i)
        html += (i > 0 ? QStringLiteral("<br>") : QString()) + withLineHeight(converter.toRichText(lines.at(i)));
    html += QStringLiteral("</div>");

    if (!m_document)
        m_document = std::make_unique<Document>();
    QTextOption option(QStyle::visualAlignment(layoutDirection(), alignment() & Qt::AlignHorizontal_Mask)
                       | Qt::AlignAbsolute);
    option.setTextDirection(m_source.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(wordWrap() ? wrapMode() : QTextOption::ManualWrap);
    const QTextOption before = m_document->defaultTextOption();
    if (before.alignment() != option.alignment() || before.textDirection() != option.textDirection()
        || before.wrapMode() != option.wrapMode())
        m_document->setDefaultTextOption(option);
    if (m_html == html)
        return;
    m_html = html;
    m_document->setDefaultFont(font());
    const QString sheet = styleSheet();
    if (m_document->defaultStyleSheet() != sheet)
        m_document->setDefaultStyleSheet(sheet);
    m_document->setHtml(html);
}

QSize WEmojiLabel::naturalSize() const
{
    if (!m_naturalSize.isValid()) {
        build(splitStringAtNewlines(m_source));
        m_width = -1;
        m_document->setTextWidth(-1);
        m_naturalSize = QSize(int(std::ceil(m_document->idealWidth())), int(std::ceil(m_document->size().height())));
    }
    return m_naturalSize;
}

void WEmojiLabel::updateText(int width) const
{
    const int padding = m_leftPadding + m_rightPadding;
    const bool isTooWide = elides() && !wordWrap() && naturalSize().width() > width - elidePadding();
    const QStringList lines =
        isTooWide ? createElidedLines(width - padding - elidePadding()) : splitStringAtNewlines(m_source);
    build(lines);
    m_elidedText = lines.join(QLatin1Char('\n'));
    if (m_width != width || m_document->textWidth() != width) {
        m_width = width;
        m_document->setTextWidth(width);
    }
}

QPoint WEmojiLabel::getTextOffset() const
{
    const QRect rect = WLabel::textRect();
    const int height = int(std::ceil(m_document->size().height()));
    int y = rect.top();
    if (alignment() & Qt::AlignBottom)
        y += rect.height() - height;
    else if (!(alignment() & Qt::AlignTop))
        y += (rect.height() - height) / 2;
    return QPoint(rect.left(), y);
}

QRect WEmojiLabel::textRect() const
{
    const QRect rect = WLabel::textRect();
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    int left = isMirrored ? m_rightPadding : m_leftPadding;
    int right = isMirrored ? m_leftPadding : m_rightPadding;
    if (m_hasOwnIndent)
        (isMirrored ? right : left) = 0;
    return rect.adjusted(left, 0, -right, 0);
}

bool WEmojiLabel::drawsItself() const
{
    return WLabel::drawsItself() || (m_leftPadding + m_rightPadding > 0 && !isSelectable() && !m_source.isEmpty());
}

int WEmojiLabel::besideText() const
{
    return width() - WLabel::textRect().width();
}

int WEmojiLabel::aroundText() const
{
    return height() - WLabel::textRect().height();
}

QSize WEmojiLabel::sizeHint() const
{
    if (!showsImages()) {
        const QSize hint = WLabel::sizeHint();
        return m_source.isEmpty() ? hint : hint + QSize(m_leftPadding + m_rightPadding, 0);
    }
    ensurePolished();
    QSize size = naturalSize();
    const int wide = fontMetrics().averageCharWidth() * 80;
    if (wordWrap() && size.width() > wide)
        size = QSize(wide, heightForWidth(wide + besideText()) - aroundText());
    const int free = elideMode() == Qt::ElideNone ? 0 : elidePadding();
    return size + QSize(besideText() + free, aroundText());
}

QSize WEmojiLabel::minimumSizeHint() const
{
    if (!showsImages()) {
        const QSize hint = WLabel::minimumSizeHint();
        return m_source.isEmpty() ? hint : hint + QSize(m_leftPadding + m_rightPadding, 0);
    }
    const QSize hint = sizeHint();
    const int padding = m_leftPadding + m_rightPadding;
    if (wordWrap()) {
        build(splitStringAtNewlines(m_source));
        m_width = -1;
        m_document->setTextWidth(0);
        const int widest = int(std::ceil(m_document->size().width())) + besideText();
        return QSize(std::min(hint.width(), widest), naturalSize().height() + aroundText());
    }
    if (elideMode() == Qt::ElideNone)
        return hint;
    const int least = fontMetrics().horizontalAdvance(Ellipsis) + padding + elidePadding() + besideText();
    return QSize(std::min(hint.width(), least), hint.height());
}

int WEmojiLabel::heightForWidth(int width) const
{
    if (!showsImages())
        return WLabel::heightForWidth(width - (isSelectable() ? 0 : m_leftPadding + m_rightPadding));
    if (!wordWrap())
        return -1;
    updateText(std::max(0, width - besideText()));
    return int(std::ceil(m_document->size().height())) + aroundText();
}

// ---- painting

QStyle::State WEmojiLabel::textState() const
{
    QStyle::State state = WLabel::textState();
    if (m_mirrored && m_mirrored->hasFocus())
        state |= QStyle::State_HasFocus;
    return state;
}

void WEmojiLabel::paintEvent(QPaintEvent *event)
{
    if (!showsImages()) {
        WLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    updateText(WLabel::textRect().width());

    drawFrame(&painter);
    painter.save();
    painter.setClipRect(contentsRect(), Qt::IntersectClip);
    painter.translate(getTextOffset());
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = palette();
    context.palette.setColor(QPalette::Text, textColor());
    m_document->setDimmed(!isEnabled());
    m_document->documentLayout()->draw(&painter, context);
    painter.restore();
    if (showsFocus())
        drawFocus(&painter);
}

// ---- events

bool WEmojiLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ParentChange && m_mirrorsParentFocus) {
        if (m_mirrored)
            m_mirrored->removeEventFilter(this);
        m_mirrored = parentWidget();
        if (m_mirrored)
            m_mirrored->installEventFilter(this);
    }
    return WLabel::event(event);
}

bool WEmojiLabel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_mirrored && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        update();
    return WLabel::eventFilter(watched, event);
}

void WEmojiLabel::emitClicked()
{
    const QPointer<WEmojiLabel> alive(this);
    WLabel::emitClicked();
    if (alive)
        Q_EMIT clicked();
}

bool WEmojiLabel::hasClickReceivers() const
{
    static const QMetaMethod signal = QMetaMethod::fromSignal(&WEmojiLabel::clicked);
    return WLabel::hasClickReceivers() || isSignalConnected(signal);
}

#include "WEmojiLabel.moc"
