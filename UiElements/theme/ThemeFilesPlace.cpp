#include "ThemeFilesPlace_p.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cstring>

namespace {

// Walks over a text that a parser has found valid, and so looks at little more than brackets and quotes.
class Walk
{
public:
    explicit Walk(const QByteArray &json)
        : m_json(json)
    {
    }

    /// The first byte of the member or element, or -1. The place is then behind all of them or at the one found.
    int enter(int value, const QString &key)
    {
        m_at = value;
        if (at() != '{' && at() != '[')
            return -1;
        const bool isObject = at() == '{';
        int found = -1;
        int index = 0;
        ++m_at;
        for (skipBlanks(); m_at < m_json.size() && at() != '}' && at() != ']'; skipBlanks()) {
            QString name = QString::number(index++);
            if (isObject) {
                const int begin = m_at;
                skipString();
                name = unquoted(m_json.mid(begin, m_at - begin));
                skipBlanks();
            }
            if (name == key)
                found = m_at; // of several members with one name a parser takes the last
            skipValue();
        }
        return found;
    }
    int firstValue()
    {
        m_at = m_json.startsWith("\xef\xbb\xbf") ? 3 : 0;
        skipBlanks();
        return m_at;
    }

private:
    char at() const { return m_at < m_json.size() ? m_json.at(m_at) : '\0'; }
    void skipBlanks()
    {
        while (m_at < m_json.size() && std::strchr(" \t\r\n,:", at()))
            ++m_at;
    }
    void skipString()
    {
        for (++m_at; m_at < m_json.size() && at() != '"'; ++m_at) {
            if (at() == '\\')
                ++m_at;
        }
        ++m_at;
    }
    void skipValue()
    {
        int depth = 0;
        do {
            const char c = at();
            if (c == '"') {
                skipString();
                continue;
            }
            depth += c == '{' || c == '[';
            depth -= c == '}' || c == ']';
            ++m_at;
        } while (m_at < m_json.size() && (depth > 0 || !std::strchr(" \t\r\n,}]", at())));
    }
    static QString unquoted(const QByteArray &quoted)
    {
        return QJsonDocument::fromJson('[' + quoted + ']').array().at(0).toString();
    }

    const QByteArray &m_json;
    int m_at = 0;
};

} // namespace

ThemeFilesPlace::LineAndColumn ThemeFilesPlace::lineAndColumn(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(qMax(0, offset));
    return {before.count('\n') + 1, QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1)).size() + 1};
}

int ThemeFilesPlace::offsetOf(const QByteArray &json, const QStringList &keys)
{
    Walk walk(json);
    int offset = walk.firstValue();
    for (const QString &key : keys) {
        const int next = walk.enter(offset, key);
        if (next < 0)
            break;
        offset = next;
    }
    return offset;
}
