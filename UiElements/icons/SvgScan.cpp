#include "SvgScan_p.h"

#include <QBuffer>
#include <QHash>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>
#include <QXmlStreamReader>
#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace {

/// Whether the element becomes a node. Found by experiment with Qt 5.15: only the local name counts, whatever its
/// namespace. Every other element (title, metadata, gradients, clipPath, symbol ...) makes no node, and what is inside
/// belongs to the node around it: a path in a clipPath below the root is a child of the root.
bool makesNode(const QStringRef &name)
{
    for (const char *node : {"g", "svg", "defs", "switch", "path", "circle", "ellipse", "line", "polygon", "polyline",
                             "rect", "text", "textArea", "use", "image"}) {
        if (name == QLatin1String(node))
            return true;
    }
    return false;
}

/// The number at the beginning of the text as Qt reads it.
struct Number
{
    double value = 0;
    bool isWhole = false; ///< nothing follows

    explicit Number(const QStringRef &text)
    {
        static const QRegularExpression form(QStringLiteral("^[+]?(-?[0-9]*[.]?[0-9]*(?:[eE][-+]?[0-9]*)?)"));
        const QRegularExpressionMatch match = form.match(text);
        isWhole = match.capturedLength() == text.size();
        value = match.captured(1).toDouble(); // 0 when it is no number
        if (std::fpclassify(float(value)) != FP_NORMAL)
            value = 0;
    }
};

/// Without a positive width and height Qt makes no rectangle and no image.
bool isPositiveLength(const QStringRef &text, bool isImage)
{
    QStringRef length = text.trimmed();
    for (const char *unit : {"%", "px", "pc", "pt", "mm", "cm", "in"}) {
        if (length.endsWith(QLatin1String(unit))) {
            length.chop(int(qstrlen(unit)));
            break;
        }
    }
    const Number number(length);
    return number.value > 0 && (number.isWhole || isImage);
}

/// Of an animation, in milliseconds. What Qt cannot read is 0, and the animation is left out.
double clockValue(const QStringRef &text)
{
    QStringRef clock = text.trimmed();
    double unit = 1000;
    if (clock.endsWith(QLatin1String("ms"))) {
        clock.chop(2);
        unit = 1;
    } else if (clock.endsWith(QLatin1Char('s'))) {
        clock.chop(1);
    }
    const Number number(clock);
    return number.isWhole ? number.value * unit : 0;
}

/// More quoted values in one tag than a tag has: the reader compares each attribute with all before it.
bool hasCrowdedTag(const QByteArray &document)
{
    int count = 0;
    bool isValue = false;
    for (const char c : document) {
        if (c == '<')
            count = 0;
        else if (isValue && (c == '"' || c == '\'') && ++count > SvgLimits::AttributesOfElement)
            return true;
        if (c == '=')
            isValue = true;
        else if (c != ' ' && c != '\t' && c != '\r' && c != '\n')
            isValue = false;
    }
    return false;
}

/// Texts in a PNG can be compressed a thousandfold, and the reader unpacks them all.
bool hasLongCompressedText(const QByteArray &png)
{
    qint64 sum = 0;
    for (qint64 at = 8; at + 12 <= png.size();) {
        const qint64 length = qFromBigEndian<quint32>(png.constData() + at);
        const QByteArray chunk = png.mid(int(at) + 4, int(std::min<qint64>(length + 4, 100))); // a keyword is shorter
        const int flag = chunk.indexOf('\0') + 1; // behind the keyword
        if (chunk.startsWith("zTXt") || (chunk.startsWith("iTXt") && chunk.mid(flag, 1) != QByteArray(1, '\0')))
            sum += length;
        at += length + 12;
    }
    return sum > SvgLimits::ImageTextBytes;
}

/// An element and what it draws besides itself.
struct Element
{
    qint64 bytes = 0;
    qint64 text = 0; ///< characters
    int stops = 0; ///< of a gradient
    QVector<int> children;
    QStringList uses; ///< ids of what it stands for
    QStringList leansOn; ///< ids of the gradients it takes stops from
};

/// An element with all that it stands for.
struct Total
{
    enum State { Unknown, Open, Known };

    State state = Unknown;
    qint64 bytes = 0;
    qint64 elements = 1;
    qint64 text = 0;
    int stops = 0;
    int height = 0;
};

class Scanner
{
public:
    explicit Scanner(const QByteArray &document)
        : m_document(document)
        , m_xml(document)
    {
        m_xml.setNamespaceProcessing(false); // as Qt's SVG parser does
    }

    SvgScan run()
    {
        if (m_document.size() > SvgLimits::FileBytes)
            return refuse("too large");
        if (m_document.startsWith("\x1f\x8b"))
            return refuse("compressed");
        if (m_document.contains('\0')) // UTF-16 and UTF-32, in which nothing below would be found
            return refuse("unknown encoding");
        if (hasCrowdedTag(m_document))
            return refuse("too many attributes");
        while (!m_xml.atEnd() && m_result.verdict != SvgScan::Refused) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartDocument: checkEncoding(); break;
            case QXmlStreamReader::DTD: checkDeclarations(); break;
            case QXmlStreamReader::ProcessingInstruction:
                if (m_xml.processingInstructionTarget() == QLatin1String("xml-stylesheet"))
                    refuse("refers to another file");
                break;
            case QXmlStreamReader::StartElement: startElement(); break;
            case QXmlStreamReader::EndElement: endElement(); break;
            case QXmlStreamReader::Characters: characters(); break;
            default: break;
            }
        }
        if (m_result.verdict == SvgScan::Refused)
            return m_result;
        if (m_xml.hasError() || m_elements.isEmpty())
            return SvgScan();
        checkAmounts();
        return m_result;
    }

private:
    SvgScan refuse(const char *reason)
    {
        m_result.verdict = SvgScan::Refused;
        m_result.reason = QString::fromLatin1(reason);
        return m_result;
    }

    void checkEncoding()
    {
        // Others (UTF-7, EBCDIC ...) could hide what is looked for as bytes.
        const QString encoding = m_xml.documentEncoding().toString().toLower();
        if (!encoding.isEmpty() && encoding != QLatin1String("utf-8") && encoding != QLatin1String("utf8")
            && encoding != QLatin1String("us-ascii") && !encoding.startsWith(QLatin1String("iso-8859-"))
            && !encoding.startsWith(QLatin1String("windows-125")))
            refuse("unknown encoding");
    }

    // Drawing programs write entities for their namespaces, so flat ones are let through while they stay small.
    void checkDeclarations()
    {
        // Each of its elements would get them, so a short document could have any amount.
        if (m_xml.text().contains(QLatin1String("<!ATTLIST")))
            return void(refuse("declares attributes"));
        int longest = 0;
        const QXmlStreamEntityDeclarations entities = m_xml.entityDeclarations();
        for (const QXmlStreamEntityDeclaration &entity : entities) {
            if (!entity.systemId().isEmpty())
                return void(refuse("refers to another file"));
            if (entity.value().contains(QLatin1Char('&')) || entity.value().contains(QLatin1Char('<')))
                return void(refuse("nested entities"));
            longest = std::max(longest, entity.value().size());
        }
        if (qint64(longest) * m_document.count('&') > SvgLimits::FileBytes)
            refuse("entities of great length");
    }

    void startElement()
    {
        const QStringRef name = m_xml.name();
        if (m_open.isEmpty() && name != QLatin1String("svg"))
            return void(m_xml.raiseError());
        if (m_open.size() >= SvgLimits::Depth)
            return void(refuse("nested too deep"));
        if (m_elements.size() >= SvgLimits::Elements)
            return void(refuse("too many elements"));

        const int index = m_elements.size();
        m_elements.append(Element());
        if (!m_open.isEmpty())
            m_elements[m_open.last().element].children.append(index);
        const bool isNode = readAttributes(index, name) && makesNode(name);
        if (isNode && m_nodes == 1)
            ++m_result.rootChildren;
        const bool isText = name.startsWith(QLatin1String("text")) || name == QLatin1String("tspan");
        m_open.append({index, isNode, name == QLatin1String("style"), isText});
        m_nodes += isNode ? 1 : 0;
        m_isStyle += m_open.last().isStyle ? 1 : 0;
        m_isText += isText ? 1 : 0;
        m_hasSpans = m_hasSpans || name == QLatin1String("tspan");
        m_elements[index].text = isText ? 10 : 0; // for the font, which is looked for once for each
        // Stops go to the last gradient, wherever they are.
        if (name == QLatin1String("linearGradient") || name == QLatin1String("radialGradient"))
            m_gradient = index;
        else if (name == QLatin1String("stop"))
            ++m_elements[m_gradient].stops;
    }

    /// False when Qt makes nothing of the element for what is in them.
    bool readAttributes(int index, const QStringRef &name)
    {
        Element &element = m_elements[index];
        const bool isImage = name == QLatin1String("image");
        const QXmlStreamAttributes attributes = m_xml.attributes();
        for (const QXmlStreamAttribute &attribute : attributes) {
            element.bytes += attribute.value().size();
            const QStringRef key = attribute.name(); // the local part
            if (key == QLatin1String("id"))
                m_ids.insert(attribute.value().toString(), index);
            else if (key == QLatin1String("class"))
                m_classes += attribute.value().size();
            else if (key == QLatin1String("style"))
                checkStyle(attribute.value());
            else if (key == QLatin1String("stroke-dasharray"))
                m_longestDashes = std::max<qint64>(m_longestDashes, attribute.value().size());
            else if (key == QLatin1String("font-size"))
                addFontSize(attribute.value());
            if (key == QLatin1String("href"))
                checkReference(attribute, name, &element);
            else
                checkUrls(attribute.value());
        }
        if (name == QLatin1String("glyph") || name == QLatin1String("missing-glyph"))
            m_longestGlyph = std::max(m_longestGlyph, element.bytes);
        if (name == QLatin1String("animateTransform") || name == QLatin1String("animateColor")) {
            // Qt counts in an int how often an animation that began long ago has run.
            if (clockValue(attributes.value(QLatin1String("begin"))) < 0
                && clockValue(attributes.value(QLatin1String("dur"))) < SvgLimits::ClockShortest)
                refuse("began too long ago");
        }

        const bool hasPicture =
            !isImage || checkImage(attributes.value(QLatin1String("xlink:href")).trimmed().toString());
        const bool hasSize = (!isImage && name != QLatin1String("rect"))
            || (isPositiveLength(attributes.value(QLatin1String("width")), isImage)
                && isPositiveLength(attributes.value(QLatin1String("height")), isImage));
        return hasPicture && hasSize;
    }

    // Each of them, whatever its prefix: which one Qt takes differs from element to element.
    void checkReference(const QXmlStreamAttribute &attribute, const QStringRef &name, Element *element)
    {
        const QString target = attribute.value().toString();
        const bool isData = target.trimmed().startsWith(QLatin1String("data:"));
        if (target.trimmed().isEmpty() || name == QLatin1String("a")) // a link is not followed
            return;
        if (name == QLatin1String("image") ? !isData : !target.trimmed().startsWith(QLatin1Char('#')))
            return void(refuse("refers to another file"));
        if (name == QLatin1String("use"))
            element->uses << target.mid(1); // Qt drops the first character, even a blank
        else if (name.endsWith(QLatin1String("Gradient")))
            element->leansOn << (target.startsWith(QLatin1Char('#')) ? target.mid(1) : target);
    }

    /// A picture in the document; false when it cannot be read.
    bool checkImage(const QString &href)
    {
        const int start = href.lastIndexOf(QLatin1String("base64,"));
        if (start < 0)
            return false;
        QByteArray bytes = QByteArray::fromBase64(href.midRef(start + 7).toLatin1());
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        QImageReader reader(&buffer);
        const QByteArray format = reader.format();
        if (format.isEmpty())
            return false;
        if (format != "png" && format != "jpeg" && format != "jpg" && format != "gif" && format != "bmp") {
            refuse("an embedded picture of another kind"); // an SVG in the SVG, for one
            return false;
        }
        // Each scan of a JPEG goes over the whole picture, and can be a few bytes long.
        if ((format == "png" && hasLongCompressedText(bytes))
            || (format.startsWith("jp") && bytes.count("\xff\xda") > SvgLimits::ImageScans)) {
            refuse("an embedded picture that is compressed too much");
            return false;
        }
        const QSize size = reader.size();
        m_imagePixels += size.isValid() ? qint64(size.width()) * size.height() : SvgLimits::ImagePixels + 1;
        if (m_imagePixels > SvgLimits::ImagePixels) {
            refuse("embedded pictures of giant size");
            return false;
        }
        return !reader.read().isNull();
    }

    /// url() in a property or in a style.
    void checkUrls(const QStringRef &text)
    {
        for (int at = text.indexOf(QLatin1String("url("), 0, Qt::CaseInsensitive); at >= 0;
             at = text.indexOf(QLatin1String("url("), at + 4, Qt::CaseInsensitive)) {
            const int end = text.indexOf(QLatin1Char(')'), at);
            QString target = text.mid(at + 4, end < 0 ? -1 : end - at - 4).trimmed().toString();
            target.remove(QLatin1Char('"')).remove(QLatin1Char('\''));
            if (!target.trimmed().startsWith(QLatin1Char('#')))
                return void(refuse("refers to another file"));
        }
    }

    void checkStyle(const QStringRef &style)
    {
        // For each escape Qt's style parser moves all that follows.
        const int escapes = style.count(QLatin1Char('\\'));
        m_styleMoves += qint64(escapes) * style.size();
        if (m_styleMoves > SvgLimits::StyleMoves)
            refuse("too many style rules");
        if (escapes > 0 || style.contains(QLatin1String("stroke-dasharray")))
            m_longestDashes = std::max<qint64>(m_longestDashes, style.size());
        static const QRegularExpression fontSize(QStringLiteral("font-size\\s*:([^;}]*)"));
        for (auto match = fontSize.globalMatch(style); match.hasNext();)
            addFontSize(match.next().capturedRef(1));
        if (escapes > 0)
            m_smallestFont = 0; // it may be there in other letters
    }

    void addFontSize(const QStringRef &text)
    {
        const double size = Number(text.trimmed()).value;
        if (size > 0) {
            m_smallestFont = std::min(m_smallestFont, size);
            m_largestFont = std::max(m_largestFont, size);
        }
    }

    void endElement()
    {
        const Open last = m_open.takeLast();
        m_nodes -= last.isNode ? 1 : 0;
        m_isStyle -= last.isStyle ? 1 : 0;
        m_isText -= last.isText ? 1 : 0;
    }

    void characters()
    {
        if (m_open.isEmpty())
            return;
        const QStringRef text = m_xml.text();
        if (m_isText > 0)
            m_elements[m_open.last().element].text += text.size();
        if (m_isStyle > 0) {
            ++m_styleParts; // each piece of text is a style sheet
            bool wasWord = true;
            for (const QChar c : text) {
                const bool isWord = c.isLetterOrNumber() || c == QLatin1Char('-') || c == QLatin1Char('_');
                if (!isWord && (wasWord || !c.isSpace()))
                    m_styleParts += c == QLatin1Char('{') ? 3 : 1;
                wasWord = isWord;
            }
            m_classRules += text.count(QLatin1Char('.')) + text.count(QLatin1Char('['));
            m_siblingRules += text.count(QLatin1Char('+')) + text.count(QLatin1Char('~'));
            checkStyle(text);
            if (text.contains(QLatin1String("@import"), Qt::CaseInsensitive))
                refuse("refers to another file");
            checkUrls(text);
        }
    }

    void checkAmounts()
    {
        m_result.verdict = SvgScan::Fine;
        // Every element is compared with every part of every rule, with each of its classes, and its place among its
        // siblings is looked for.
        const qint64 elements = m_elements.size();
        if (m_styleParts * elements + m_classRules * m_classes / 8 + m_siblingRules * elements * elements / 300
            > SvgLimits::StyleMatches)
            return void(refuse("too many style rules"));
        // Qt draws text large and scales it, a span in proportion. Where nothing is left of its size, each font of the
        // system is tried.
        if (m_hasSpans && m_smallestFont < SvgLimits::FontSize && m_smallestFont * 100 < m_largestFont)
            return void(refuse("too small text"));
        m_totals = QVector<Total>(m_elements.size());
        const Total all = total(0, 0);
        if (m_result.verdict == SvgScan::Fine && all.text * m_longestGlyph > SvgLimits::WrittenOutBytes)
            refuse("too much text");
        else if (m_result.verdict == SvgScan::Fine && all.elements * m_longestDashes > SvgLimits::DashMatches)
            refuse("too many dashes");
    }

    Total total(int index, int depth)
    {
        if (m_totals.at(index).state == Total::Known)
            return m_totals.at(index);
        if (m_totals.at(index).state == Total::Open)
            refuse("refers to itself");
        else if (depth > SvgLimits::Depth)
            refuse("nested too deep");
        if (m_result.verdict != SvgScan::Fine)
            return Total();

        m_totals[index].state = Total::Open;
        const Element &element = m_elements.at(index);
        Total sum;
        sum.state = Total::Known;
        sum.bytes = element.bytes;
        sum.text = element.text;
        sum.stops = element.stops;
        const auto add = [&](int other) {
            const Total part = total(other, depth + 1);
            sum.bytes += part.bytes;
            sum.elements += part.elements;
            sum.text += part.text;
            sum.height = std::max(sum.height, part.height + 1);
            if (sum.bytes > SvgLimits::WrittenOutBytes || sum.elements > SvgLimits::Elements)
                refuse("multiplies itself");
        };
        for (int at = 0; at < element.children.size() && m_result.verdict == SvgScan::Fine; ++at)
            add(element.children.at(at));
        for (const QString &id : element.uses)
            forEachWithId(id, add);
        for (const QString &id : element.leansOn) {
            forEachWithId(id, [&](int other) {
                const Total part = total(other, depth + 1);
                sum.stops = std::max(sum.stops, element.stops + part.stops);
                sum.height = std::max(sum.height, part.height + 1);
                ++sum.elements; // counts the references to an id that many have
            });
        }
        if (m_result.verdict != SvgScan::Fine)
            return sum;
        if (sum.height > SvgLimits::Depth)
            refuse("nested too deep");
        else if (sum.text > SvgLimits::WrittenOutText)
            refuse("too much text");
        else if (sum.stops > SvgLimits::GradientStops)
            refuse("too many gradient stops");
        m_totals[index] = sum;
        return sum;
    }

    // Which of several elements with one id is meant depends on the order; all are looked at.
    template <typename Visitor>
    void forEachWithId(const QString &id, Visitor visit)
    {
        const auto [begin, end] = std::as_const(m_ids).equal_range(id);
        for (auto at = begin; at != end && m_result.verdict == SvgScan::Fine; ++at)
            visit(*at);
    }

    struct Open
    {
        int element;
        bool isNode;
        bool isStyle;
        bool isText;
    };

    const QByteArray &m_document;
    QXmlStreamReader m_xml;
    SvgScan m_result;
    QVector<Element> m_elements;
    QVector<Total> m_totals;
    QVector<Open> m_open;
    QMultiHash<QString, int> m_ids;
    qint64 m_imagePixels = 0;
    qint64 m_longestGlyph = 0;
    qint64 m_styleParts = 0;
    qint64 m_classRules = 0;
    qint64 m_siblingRules = 0;
    qint64 m_classes = 0;
    qint64 m_styleMoves = 0;
    qint64 m_longestDashes = 0; // the description of a pattern, which Qt compares for each shape
    double m_smallestFont = 12; // without any size it is about this
    double m_largestFont = 12;
    bool m_hasSpans = false;
    int m_gradient = 0; // the last; the root before there is one
    int m_nodes = 0; // open elements that made a node, the root among them
    int m_isStyle = 0;
    int m_isText = 0;
};

} // namespace

SvgScan scanSvg(const QByteArray &document)
{
    return Scanner(document).run();
}
