#include "IconModel.h"

#include <UiElements/icons/WSvgIcon.h>

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

IconModel::IconModel(QObject *parent)
    : QAbstractListModel(parent)
{
    readSet();
    update();
}

// "reply_16.svg", "reply-filled_24.svg"; something behind the size ("check_12_w.svg") belongs to the name.
void IconModel::readSet()
{
    static const QRegularExpression pattern(QStringLiteral("^(.+?)(-filled)?_(\\d+)(_\\w+)?\\.svg$"));
    const QDir folder(QStringLiteral(":/Resources"));
    const QStringList files = folder.entryList({QStringLiteral("*.svg")}, QDir::Files);
    m_fileCount = files.size();
    for (const QString &file : files) {
        const QRegularExpressionMatch match = pattern.match(file);
        if (match.hasMatch())
            m_icons[match.captured(1) + match.captured(4)].append(
                {match.captured(3).toInt(), match.capturedLength(2) > 0, folder.filePath(file)});
    }
}

QVector<int> IconModel::sizes() const
{
    QVector<int> sizes;
    for (const QVector<Variant> &variants : m_icons) {
        for (const Variant &variant : variants) {
            if (!sizes.contains(variant.size))
                sizes.append(variant.size);
        }
    }
    std::sort(sizes.begin(), sizes.end());
    return sizes;
}

void IconModel::setSize(int size)
{
    m_size = size;
    update();
}

void IconModel::setFilled(bool filled)
{
    m_isFilled = filled;
    update();
}

void IconModel::setFilter(const QString &words)
{
    static const QRegularExpression gap(QStringLiteral("[\\s,;_-]+"));
    m_words = words.split(gap, Qt::SkipEmptyParts);
    update();
}

void IconModel::update()
{
    beginResetModel();
    m_shown.clear();
    for (auto icon = m_icons.cbegin(); icon != m_icons.cend(); ++icon) {
        const bool found = std::all_of(m_words.cbegin(), m_words.cend(), [&icon](const QString &word) {
            return icon.key().contains(word, Qt::CaseInsensitive);
        });
        if (found && !path(icon.key(), m_size).isEmpty())
            m_shown.append(icon.key());
    }
    endResetModel();
}

QString IconModel::path(const QString &name, int size) const
{
    const QVector<Variant> variants = m_icons.value(name);
    for (const Variant &variant : variants) {
        if (variant.size == size && variant.isFilled == m_isFilled)
            return variant.path;
    }
    return QString();
}

QModelIndex IconModel::indexOf(const QString &name) const
{
    const int row = m_shown.indexOf(name);
    return row < 0 ? QModelIndex() : index(row);
}

int IconModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_shown.size();
}

QVariant IconModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const QString &name = m_shown.at(index.row());
    switch (role) {
    case Qt::DisplayRole: return name;
    case Qt::ToolTipRole:
    case PathRole: return path(name, m_size);
    case IsMirroredRole: return WSvgIcon::isMirroredBySet(path(name, m_size));
    // A reader says it with the name: that it is mirrored is painted beside it, too.
    case Qt::AccessibleTextRole:
        return WSvgIcon::isMirroredBySet(path(name, m_size)) ? tr("%1, mirrored from right to left").arg(name) : name;
    default: return QVariant();
    }
}
