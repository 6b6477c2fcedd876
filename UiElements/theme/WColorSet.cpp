#include <UiElements/theme/WColorSet.h>

#include <QDebug>

WColorSet::WColorSet(const QString &text)
    : m_text(text)
{
}

QColor WColorSet::color(State state) const
{
    if (state < 0 || state >= StateCount) {
        qWarning("WColorSet: color state is invalid!");
        return QColor();
    }
    return m_colors[std::size_t(state)];
}

QColor WColorSet::color(const QString &stateName) const
{
    return color(State(stateFromName(stateName)));
}

void WColorSet::setColor(State state, const QColor &color)
{
    if (state < 0 || state >= StateCount) {
        qWarning("WColorSet: color state is invalid!");
        return;
    }
    m_colors[std::size_t(state)] = color;
}

const QStringList &WColorSet::stateNames()
{
    static const QStringList names {QStringLiteral("normal"),   QStringLiteral("hovered"), QStringLiteral("pressed"),
                                    QStringLiteral("disabled"), QStringLiteral("focused"), QStringLiteral("checked")};
    return names;
}

int WColorSet::stateFromName(QStringView name)
{
    const QStringList &names = stateNames();
    for (int i = 0; i < StateCount; ++i) {
        if (name == names.at(i))
            return i;
    }
    return -1;
}
