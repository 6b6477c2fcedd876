#pragma once

#include <UiElements/uielements_export.h>

#include <QColor>
#include <QMetaType>
#include <QString>
#include <QStringList>

#include <array>
#include <string>
#include <unordered_map>

/// A named set of six colors, one for each interaction state of an element.
///
/// A value type: copies are independent and cheap to make. A default-constructed set has an empty text and six
/// invalid colors; callers read an invalid color as "no color of the theme". From QML the colors are the properties
/// `normal`, `hovered`, `pressed`, `disabled`, `focused` and `checked`.
class UIELEMENTS_EXPORT WColorSet
{
    Q_GADGET
    Q_PROPERTY(QString text READ text)
    Q_PROPERTY(QColor normal READ normal)
    Q_PROPERTY(QColor hovered READ hovered)
    Q_PROPERTY(QColor pressed READ pressed)
    Q_PROPERTY(QColor disabled READ disabled)
    Q_PROPERTY(QColor focused READ focused)
    Q_PROPERTY(QColor checked READ checked)

public:
    /// In the order of stateNames(), which is the order in which theme files are read.
    enum State { Normal, Hovered, Pressed, Disabled, Focused, Checked };
    Q_ENUM(State)
    static constexpr int StateCount = 6;

    WColorSet() = default;
    explicit WColorSet(const QString &text);

    /// The name of the set; empty in a set that belongs to no theme.
    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }

    QColor color(State state) const;
    /// The color of the state with that name. A text that is none of stateNames() is reported and gives an invalid
    /// color.
    QColor color(const QString &stateName) const;
    void setColor(State state, const QColor &color);
    /// Gives all six states the same color.
    void fill(const QColor &color) { m_colors.fill(color); }

    QColor normal() const { return m_colors[Normal]; }
    QColor hovered() const { return m_colors[Hovered]; }
    QColor pressed() const { return m_colors[Pressed]; }
    QColor disabled() const { return m_colors[Disabled]; }
    QColor focused() const { return m_colors[Focused]; }
    QColor checked() const { return m_colors[Checked]; }

    bool operator==(const WColorSet &other) const { return m_text == other.m_text && m_colors == other.m_colors; }
    bool operator!=(const WColorSet &other) const { return !(*this == other); }

    /// "normal", "hovered", "pressed", "disabled", "focused", "checked": the words of theme files and of tokens.
    static const QStringList &stateNames();
    /// The state with that name, or -1.
    static int stateFromName(QStringView name);

private:
    QString m_text;
    std::array<QColor, StateCount> m_colors;
};

Q_DECLARE_METATYPE(WColorSet)
Q_DECLARE_METATYPE(WColorSet::State)

/// Color sets by name; names are UTF-8.
using WColorSets = std::unordered_map<std::string, WColorSet>;
/// The named colors of a color file; names are UTF-8.
using WPalette = std::unordered_map<std::string, QColor>;
/// Color-set names by number.
using WColorTokens = std::unordered_map<int, std::string>;
