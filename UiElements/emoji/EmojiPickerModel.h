#pragma once

#include <UiElements/emoji/EmojiData.h>
#include <UiElements/uielements_export.h>

#include <QAbstractListModel>
#include <QHash>
#include <QStringList>

#include <memory>
#include <vector>

namespace EmojiPicker {

/// The emoji of a catalogue as a picker shows them: first those that were used recently, then each category in turn;
/// or, while there is a filter, what search() finds, best first.
///
/// The skin tones of an emoji share one row. It shows the tone that was chosen for this emoji; else the default tone,
/// if the emoji has it; else the base form. Tones count only where a category of the emoji offers them.
///
/// Recents, tones and the limit are the host's to store. They are known by short names and outlive the catalogue, which
/// is replaced when the language changes; without one the model is empty. GUI thread only.
class UIELEMENTS_EXPORT EmojiPickerModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(QStringList recents READ recents WRITE setRecents NOTIFY recentsChanged)
    Q_PROPERTY(int recentsLimit READ recentsLimit WRITE setRecentsLimit NOTIFY recentsLimitChanged)
    Q_PROPERTY(int defaultTone READ defaultTone WRITE setDefaultTone NOTIFY defaultToneChanged)
    Q_PROPERTY(QStringList categoryIds READ categoryIds NOTIFY categoriesChanged)

public:
    /// Qt::DisplayRole is the text; Qt::ToolTipRole and Qt::AccessibleTextRole are the localised name.
    enum Role {
        NameRole = Qt::UserRole, ///< "name"
        TextRole, ///< "text": the shown form, as all roles that depend on the tone
        LocalisedNameRole, ///< "localisedName"
        UnifiedRole, ///< "unified"
        ImagePathRole, ///< "imagePath", ":/emojis/1f600.svg"; for QML put "qrc" in front; empty without an image
        CategoryIdRole, ///< "categoryId": the category of the row; for a found emoji, the first that has it
        CategoryNameRole, ///< "categoryName"
        HasTonesRole, ///< "hasTones"
        TonesRole, ///< "tones": the texts of all forms, the base form first; at least one
        ToneRole, ///< "tone": the place of the shown form among them
        IsRecentRole ///< "isRecent": in all rows of an emoji that was used recently
    };
    Q_ENUM(Role)

    static constexpr int DefaultRecentsLimit = 24;

    explicit EmojiPickerModel(QObject *parent = nullptr);
    explicit EmojiPickerModel(const std::shared_ptr<const EmojiData> &catalogue, QObject *parent = nullptr);

    const std::shared_ptr<const EmojiData> &catalogue() const { return m_catalogue; }
    void setCatalogue(const std::shared_ptr<const EmojiData> &catalogue);

    /// Nothing but blanks filters nothing.
    QString filter() const { return m_filter; }
    void setFilter(const QString &filter);

    /// Short names, the last used first. Until they are set or one is added: defaultRecents().
    QStringList recents() const { return m_recents; }
    /// Names that are there twice count once; those that the catalogue does not have are left out.
    void setRecents(const QStringList &names);
    /// Makes it the first. A name that the catalogue does not have is reported and changes nothing.
    Q_INVOKABLE void addRecent(const QString &name);
    /// The oldest recents beyond it are forgotten. A negative limit is reported and changes nothing.
    int recentsLimit() const { return m_recentsLimit; }
    void setRecentsLimit(int limit);

    /// 0 for no tone, 1 (light) to 5 (dark). Any other number is reported and changes nothing.
    int defaultTone() const { return m_defaultTone; }
    void setDefaultTone(int tone);
    /// The place of the shown form in TonesRole; 0 for an unknown name.
    Q_INVOKABLE int tone(const QString &name) const;
    /// Remembers a place in TonesRole; -1 makes the emoji follow the default tone again. What the emoji does not have
    /// is reported and changes nothing.
    Q_INVOKABLE void setTone(const QString &name, int tone);

    /// The recents and those of the catalogue, in the order of the rows.
    QStringList categoryIds() const;
    Q_INVOKABLE QString categoryName(const QString &id) const;
    /// -1 for a category that is empty or unknown, and while there is a filter.
    Q_INVOKABLE int firstRowOf(const QString &categoryId) const;
    /// The row of the emoji in its category or among the found ones, or -1.
    Q_INVOKABLE int rowOf(const QString &name) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void filterChanged();
    void recentsChanged();
    void recentsLimitChanged();
    void defaultToneChanged();
    void toneChanged(const QString &name, int tone); ///< the choice for one emoji, as given to setTone()
    void categoriesChanged();

private:
    /// An emoji in a category; both are indices.
    struct Place
    {
        int emoji;
        int category; ///< -1 for the recents and for an emoji without a category
    };

    int shownRecents() const { return m_catalogue && !m_isFiltered ? m_recents.size() : 0; }
    Place placeAt(int row) const;
    std::vector<Place> find(const QString &query) const;
    void readCategories();
    QStringList usable(const QStringList &names) const;
    QStringList defaults() const;
    void replaceRecents(const QStringList &names);
    void announceRecents(const QStringList &before);
    void announce(const QVector<int> &roles, int first, int last);
    template <typename Matches>
    void announceRows(const QVector<int> &roles, Matches matches);
    bool offersTones(int emoji) const;
    int shownTone(int emoji) const;
    QStringList tones(int emoji) const;

    std::shared_ptr<const EmojiData> m_catalogue;
    std::vector<Place> m_all; ///< without the recents
    std::vector<Place> m_found;
    std::vector<int> m_homes; ///< by emoji, its first category or -1
    std::vector<bool> m_withTones; ///< by emoji
    QString m_filter;
    QStringList m_recents;
    QHash<QString, int> m_tones;
    int m_recentsLimit = DefaultRecentsLimit;
    int m_defaultTone = 0;
    bool m_isFiltered = false;
    bool m_hasOwnRecents = false;
};

} // namespace EmojiPicker
