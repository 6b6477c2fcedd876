#include "ShortcutModel.h"

#include <algorithm>

ShortcutModel::ShortcutModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

void ShortcutModel::setShortcuts(const QVector<Shortcut> &shortcuts)
{
    if (m_shortcuts == shortcuts)
        return;
    m_shortcuts = shortcuts;
    filter();
}

void ShortcutModel::setFilter(const QString &words)
{
    const QStringList split = words.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (m_words == split)
        return;
    m_words = split;
    filter();
}

bool ShortcutModel::matches(const Shortcut &shortcut) const
{
    // A word has no blanks in it, so it cannot match over the ends of two texts.
    const QString text = shortcut.description + QLatin1Char(' ') + shortcut.key.toString(QKeySequence::NativeText)
        + QLatin1Char(' ') + shortcut.group;
    return std::all_of(m_words.cbegin(), m_words.cend(),
                       [&text](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
}

void ShortcutModel::filter()
{
    beginResetModel();
    m_rows.clear();
    m_matchCount = 0;
    QString group;
    for (int i = 0; i < m_shortcuts.size(); ++i) {
        if (!matches(m_shortcuts.at(i)))
            continue;
        if (m_rows.isEmpty() || m_shortcuts.at(i).group != group)
            m_rows.append({i, true});
        group = m_shortcuts.at(i).group;
        m_rows.append({i, false});
        ++m_matchCount;
    }
    endResetModel();
}

int ShortcutModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

QVariant ShortcutModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return QVariant();
    const Row &row = m_rows.at(index.row());
    const Shortcut &shortcut = m_shortcuts.at(row.shortcut);
    switch (role) {
    case IsHeadingRole: return row.isHeading;
    case Qt::DisplayRole: return row.isHeading ? shortcut.group : shortcut.description;
    case KeyRole: return row.isHeading ? QVariant() : QVariant(shortcut.key);
    case Qt::AccessibleTextRole:
        if (row.isHeading)
            return shortcut.group;
        return tr("%1, %2").arg(shortcut.description, shortcut.key.toString(QKeySequence::NativeText));
    // Who goes through the rows by the keyboard does not come across the headings.
    case Qt::AccessibleDescriptionRole: return row.isHeading ? QString() : shortcut.group;
    default: return QVariant();
    }
}

Qt::ItemFlags ShortcutModel::flags(const QModelIndex &index) const
{
    const bool isHeading = index.isValid() && m_rows.at(index.row()).isHeading;
    return isHeading ? Qt::ItemNeverHasChildren : Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}
