#include <UiElements/emoji/EmojiPickerModel.h>

#include <UiElements/emoji/EmojiResources.h>

#include <QDebug>
#include <QMetaEnum>

#include <algorithm>

namespace {

constexpr int ToneCount = 5;

// 1 (light) to 5 (dark), by the first modifier among the code points; 0 without one. Where it stands in the list of
// forms does not tell: tones may be missing.
int toneOf(const EmojiPicker::EmojiVariation &form)
{
    const QVector<QStringRef> codes = form.unified.splitRef(QLatin1Char('-'));
    for (const QStringRef &code : codes) {
        const uint codePoint = code.toUInt(nullptr, 16);
        if (codePoint >= 0x1F3FB && codePoint <= 0x1F3FF)
            return int(codePoint - 0x1F3FA);
    }
    return 0;
}

const QVector<int> &toneRoles()
{
    using Model = EmojiPicker::EmojiPickerModel;
    static const QVector<int> roles {Qt::DisplayRole, Model::TextRole, Model::UnifiedRole, Model::ImagePathRole,
                                     Model::ToneRole};
    return roles;
}

} // namespace

EmojiPicker::EmojiPickerModel::EmojiPickerModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

EmojiPicker::EmojiPickerModel::EmojiPickerModel(const std::shared_ptr<const EmojiData> &catalogue, QObject *parent)
    : QAbstractListModel(parent)
{
    setCatalogue(catalogue);
}

void EmojiPicker::EmojiPickerModel::setCatalogue(const std::shared_ptr<const EmojiData> &catalogue)
{
    if (catalogue == m_catalogue)
        return;
    const QStringList recents = m_recents;
    beginResetModel();
    m_catalogue = catalogue;
    readCategories();
    if (m_catalogue && m_hasOwnRecents) {
        m_recents = usable(m_recents);
    } else if (m_catalogue) {
        m_recents = defaults();
    }
    m_found = m_isFiltered ? find(m_filter) : std::vector<Place>();
    endResetModel();
    Q_EMIT categoriesChanged();
    if (m_recents != recents)
        Q_EMIT recentsChanged();
}

void EmojiPicker::EmojiPickerModel::readCategories()
{
    m_all.clear();
    m_homes.clear();
    m_withTones.clear();
    if (!m_catalogue)
        return;
    m_homes.resize(m_catalogue->names().size(), -1);
    m_withTones.resize(m_catalogue->names().size());
    const CategoryPointers &categories = m_catalogue->categories();
    for (std::size_t i = 0; i < categories.size(); ++i) {
        for (const quint16 emoji : categories[i]->emojis) {
            m_all.push_back({emoji, int(i)});
            if (m_homes[emoji] < 0)
                m_homes[emoji] = int(i);
            if (categories[i]->hasSkinVariations)
                m_withTones[emoji] = true;
        }
    }
}

std::vector<EmojiPicker::EmojiPickerModel::Place> EmojiPicker::EmojiPickerModel::find(const QString &query) const
{
    std::vector<Place> found;
    const EmojiPointers emojis = search(m_catalogue, query);
    found.reserve(emojis.size());
    for (const std::shared_ptr<const Emoji> &emoji : emojis) {
        const int index = findEmojiIndex(m_catalogue, emoji->variations.front().name);
        found.push_back({index, m_homes.at(std::size_t(index))});
    }
    return found;
}

void EmojiPicker::EmojiPickerModel::setFilter(const QString &filter)
{
    if (filter == m_filter)
        return;
    const bool isFiltered = !filter.trimmed().isEmpty();
    std::vector<Place> found = isFiltered ? find(filter) : std::vector<Place>();
    // A blank behind a word leaves the rows, and what is selected in them, alone.
    const bool areSame = isFiltered == m_isFiltered
        && std::equal(found.begin(), found.end(), m_found.begin(), m_found.end(),
                      [](const Place &left, const Place &right) { return left.emoji == right.emoji; });
    m_filter = filter;
    if (!areSame) {
        beginResetModel();
        m_isFiltered = isFiltered;
        m_found = std::move(found);
        endResetModel();
    }
    Q_EMIT filterChanged();
}

// In the order given, each once, and no more than the limit.
QStringList EmojiPicker::EmojiPickerModel::usable(const QStringList &names) const
{
    QStringList usable;
    for (const QString &name : names) {
        if (usable.size() == m_recentsLimit)
            break;
        const int index = m_catalogue ? findEmojiIndex(m_catalogue, name) : 0;
        if (index >= 0 && index < MaxAddressableEmojis && !usable.contains(name))
            usable << name;
    }
    return usable;
}

QStringList EmojiPicker::EmojiPickerModel::defaults() const
{
    QStringList names;
    for (const quint16 index : defaultRecents(m_catalogue))
        names << m_catalogue->names().at(index);
    return names.mid(0, m_recentsLimit);
}

void EmojiPicker::EmojiPickerModel::setRecents(const QStringList &names)
{
    m_hasOwnRecents = true;
    replaceRecents(usable(names));
}

// Rows that stay where they are stay untouched.
void EmojiPicker::EmojiPickerModel::replaceRecents(const QStringList &names)
{
    if (names == m_recents)
        return;
    const QStringList before = m_recents;
    const bool areShown = m_catalogue && !m_isFiltered;
    const auto differing = std::mismatch(before.begin(), before.end(), names.begin(), names.end());
    const int same = int(differing.first - before.begin());
    if (same < before.size()) {
        if (areShown)
            beginRemoveRows({}, same, before.size() - 1);
        m_recents = before.mid(0, same);
        if (areShown)
            endRemoveRows();
    }
    if (same < names.size()) {
        if (areShown)
            beginInsertRows({}, same, names.size() - 1);
        m_recents = names;
        if (areShown)
            endInsertRows();
    }
    announceRecents(before);
}

void EmojiPicker::EmojiPickerModel::addRecent(const QString &name)
{
    const int index = findEmojiIndex(m_catalogue, name);
    if (index < 0) {
        qWarning() << "EmojiPickerModel::addRecent - No emoji" << name;
        return;
    }
    m_hasOwnRecents = true;
    if (m_recentsLimit == 0 || index >= MaxAddressableEmojis || (!m_recents.isEmpty() && m_recents.first() == name))
        return;
    const QStringList before = m_recents;
    const int from = m_recents.indexOf(name);
    if (from > 0) {
        if (!m_isFiltered)
            beginMoveRows({}, from, from, {}, 0);
        m_recents.move(from, 0);
        if (!m_isFiltered)
            endMoveRows();
    } else {
        if (m_recents.size() == m_recentsLimit) {
            if (!m_isFiltered)
                beginRemoveRows({}, m_recents.size() - 1, m_recents.size() - 1);
            m_recents.removeLast();
            if (!m_isFiltered)
                endRemoveRows();
        }
        if (!m_isFiltered)
            beginInsertRows({}, 0, 0);
        m_recents.prepend(name);
        if (!m_isFiltered)
            endInsertRows();
    }
    announceRecents(before);
}

void EmojiPicker::EmojiPickerModel::setRecentsLimit(int limit)
{
    if (limit < 0) {
        qWarning() << "EmojiPickerModel::setRecentsLimit - Negative limit" << limit;
        return;
    }
    if (limit == m_recentsLimit)
        return;
    m_recentsLimit = limit;
    replaceRecents(m_catalogue && !m_hasOwnRecents ? defaults() : m_recents.mid(0, limit));
    Q_EMIT recentsLimitChanged();
}

// Rows in categories know whether their emoji is a recent one.
void EmojiPicker::EmojiPickerModel::announceRecents(const QStringList &before)
{
    const auto changed = [this, &before](int row, const Place &place) {
        const QString &name = m_catalogue->names()[std::size_t(place.emoji)];
        return row >= shownRecents() && before.contains(name) != m_recents.contains(name);
    };
    announceRows({IsRecentRole}, changed);
    Q_EMIT recentsChanged();
}

void EmojiPicker::EmojiPickerModel::announce(const QVector<int> &roles, int first, int last)
{
    Q_EMIT dataChanged(index(first), index(last), roles);
}

// One signal for each run of rows.
template <typename Matches>
void EmojiPicker::EmojiPickerModel::announceRows(const QVector<int> &roles, Matches matches)
{
    const int rows = rowCount();
    int first = -1;
    for (int row = 0; row <= rows; ++row) {
        const bool isMatch = row < rows && matches(row, placeAt(row));
        if (isMatch && first < 0) {
            first = row;
        } else if (!isMatch && first >= 0) {
            announce(roles, first, row - 1);
            first = -1;
        }
    }
}

bool EmojiPicker::EmojiPickerModel::offersTones(int emoji) const
{
    const std::size_t at = std::size_t(emoji);
    return m_catalogue->emojis()[at]->variations.size() > 1 && (m_withTones[at] || m_homes[at] < 0);
}

int EmojiPicker::EmojiPickerModel::shownTone(int emoji) const
{
    if (!offersTones(emoji))
        return 0;
    const std::vector<EmojiVariation> &forms = m_catalogue->emojis()[std::size_t(emoji)]->variations;
    const int chosen = m_tones.value(m_catalogue->names()[std::size_t(emoji)], -1);
    if (chosen >= 0 && chosen < int(forms.size()))
        return chosen;
    if (m_defaultTone == 0)
        return 0;
    const auto form = std::find_if(forms.begin() + 1, forms.end(),
                                   [this](const EmojiVariation &each) { return toneOf(each) == m_defaultTone; });
    return form == forms.end() ? 0 : int(form - forms.begin());
}

QStringList EmojiPicker::EmojiPickerModel::tones(int emoji) const
{
    QStringList texts;
    for (const EmojiVariation &form : m_catalogue->emojis()[std::size_t(emoji)]->variations) {
        texts << form.text;
        if (!offersTones(emoji))
            break;
    }
    return texts;
}

void EmojiPicker::EmojiPickerModel::setDefaultTone(int tone)
{
    if (tone < 0 || tone > ToneCount) {
        qWarning() << "EmojiPickerModel::setDefaultTone - No tone" << tone;
        return;
    }
    if (tone == m_defaultTone)
        return;
    const int before = m_defaultTone;
    int first = -1;
    int last = -1;
    for (int row = 0; row < rowCount(); ++row) {
        const int emoji = placeAt(row).emoji;
        m_defaultTone = before;
        const int shown = shownTone(emoji);
        m_defaultTone = tone;
        if (shownTone(emoji) != shown) {
            first = first < 0 ? row : first;
            last = row;
        }
    }
    m_defaultTone = tone;
    // Hundreds of rows, with gaps between them: one signal.
    if (first >= 0)
        announce(toneRoles(), first, last);
    Q_EMIT defaultToneChanged();
}

int EmojiPicker::EmojiPickerModel::tone(const QString &name) const
{
    const int emoji = findEmojiIndex(m_catalogue, name);
    return emoji < 0 ? 0 : shownTone(emoji);
}

void EmojiPicker::EmojiPickerModel::setTone(const QString &name, int tone)
{
    const int emoji = findEmojiIndex(m_catalogue, name);
    if (emoji < 0 || tone < -1 || tone >= tones(emoji).size()) {
        qWarning() << "EmojiPickerModel::setTone - No emoji" << name << "with tone" << tone;
        return;
    }
    if (tone == m_tones.value(name, -1))
        return;
    const int shown = shownTone(emoji);
    if (tone < 0)
        m_tones.remove(name);
    else
        m_tones.insert(name, tone);
    if (shownTone(emoji) != shown)
        announceRows(toneRoles(), [emoji](int, const Place &place) { return place.emoji == emoji; });
    Q_EMIT toneChanged(name, tone);
}

QStringList EmojiPicker::EmojiPickerModel::categoryIds() const
{
    QStringList ids;
    if (!m_catalogue)
        return ids;
    ids << RecentsId;
    for (const std::shared_ptr<const Category> &category : m_catalogue->categories())
        ids << category->id;
    return ids;
}

QString EmojiPicker::EmojiPickerModel::categoryName(const QString &id) const
{
    if (!m_catalogue)
        return QString();
    if (id == RecentsId)
        return tr("Recently used");
    for (const std::shared_ptr<const Category> &category : m_catalogue->categories()) {
        if (category->id == id)
            return category->name;
    }
    return QString();
}

int EmojiPicker::EmojiPickerModel::firstRowOf(const QString &categoryId) const
{
    if (!m_catalogue || m_isFiltered)
        return -1;
    if (categoryId == RecentsId)
        return m_recents.isEmpty() ? -1 : 0;
    int row = m_recents.size();
    for (const std::shared_ptr<const Category> &category : m_catalogue->categories()) {
        if (category->id == categoryId)
            return category->emojis.empty() ? -1 : row;
        row += int(category->emojis.size());
    }
    return -1;
}

int EmojiPicker::EmojiPickerModel::rowOf(const QString &name) const
{
    const int emoji = findEmojiIndex(m_catalogue, name);
    if (emoji < 0)
        return -1;
    const std::vector<Place> &places = m_isFiltered ? m_found : m_all;
    const auto at =
        std::find_if(places.begin(), places.end(), [emoji](const Place &place) { return place.emoji == emoji; });
    return at == places.end() ? -1 : shownRecents() + int(at - places.begin());
}

EmojiPicker::EmojiPickerModel::Place EmojiPicker::EmojiPickerModel::placeAt(int row) const
{
    if (m_isFiltered)
        return m_found[std::size_t(row)];
    if (row < m_recents.size())
        return {findEmojiIndex(m_catalogue, m_recents.at(row)), -1};
    return m_all[std::size_t(row - m_recents.size())];
}

int EmojiPicker::EmojiPickerModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_isFiltered ? int(m_found.size()) : shownRecents() + int(m_all.size());
}

QVariant EmojiPicker::EmojiPickerModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !checkIndex(index, CheckIndexOption::ParentIsInvalid))
        return QVariant();
    const Place place = placeAt(index.row());
    const bool isInRecents = index.row() < shownRecents();
    const Emoji &emoji = *m_catalogue->emojis()[std::size_t(place.emoji)];
    const auto form = [&]() -> const EmojiVariation & {
        return emoji.variations[std::size_t(shownTone(place.emoji))];
    };
    const auto category = [&](QString Category::*member) {
        return place.category < 0 ? QString() : *m_catalogue->categories()[std::size_t(place.category)].*member;
    };
    switch (role) {
    case Qt::DisplayRole:
    case TextRole: return form().text;
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
    case LocalisedNameRole: return emoji.variations.front().localisedName;
    case NameRole: return emoji.variations.front().name;
    case UnifiedRole: return form().unified;
    case ImagePathRole: return EmojiResources::imagePath(form().text);
    case CategoryIdRole: return isInRecents ? QString(RecentsId) : category(&Category::id);
    case CategoryNameRole: return isInRecents ? categoryName(RecentsId) : category(&Category::name);
    case HasTonesRole: return offersTones(place.emoji);
    case TonesRole: return tones(place.emoji);
    case ToneRole: return shownTone(place.emoji);
    case IsRecentRole: return isInRecents || m_recents.contains(emoji.variations.front().name);
    default: return QVariant();
    }
}

QHash<int, QByteArray> EmojiPicker::EmojiPickerModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractListModel::roleNames();
    const QMetaEnum roles = QMetaEnum::fromType<Role>();
    for (int i = 0; i < roles.keyCount(); ++i) {
        QByteArray name = roles.key(i);
        name.chop(4); // "Role"
        name[0] = char(QChar::toLower(uint(name.at(0))));
        names.insert(roles.value(i), name);
    }
    return names;
}
